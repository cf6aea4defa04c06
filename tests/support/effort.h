#pragma once

#include <QtCore/QtGlobal>

#include <algorithm>
#include <vector>

/// \file
/// How much a test does of what it does by the thousands. ARVXML_TEST_EFFORT in the environment says it in percent, for
/// checkers under which everything takes long. There are fewer, or smaller, examples of each kind then, but at least
/// one.

namespace TestEffort {

/// 1 for all, else how many times less is done.
inline int divisor()
{
    static const int divisor = [] {
        if (!qEnvironmentVariableIsSet("ARVXML_TEST_EFFORT"))
            return 1;
        const int percent = qEnvironmentVariableIntValue("ARVXML_TEST_EFFORT");
        if (percent < 1 || percent > 100)
            qFatal("ARVXML_TEST_EFFORT is to be a number from 1 to 100.");
        if (percent < 100)
            qInfo("ARVXML_TEST_EFFORT=%d: one of %d among the many examples, or their size divided by %d.", percent,
                  100 / percent, 100 / percent);
        return 100 / percent;
    }();
    return divisor;
}

/// What is left of \a count, at least one.
inline int reduced(int count)
{
    return std::max(1, count / divisor());
}

/// Which of \a count examples of one kind are done, by their numbers: all, or one in so many, and at least one. \a
/// first says with which one to begin: where there are many rows of examples, it is not to be the same in each of them.
inline std::vector<int> taken(int count, int first = 0)
{
    std::vector<int> numbers;
    for (int number = 0; number < count; ++number) {
        if ((number + count - first % count) % count % divisor() == 0)
            numbers.push_back(number);
    }
    return numbers;
}

/// Whether it is the turn of the next example, whatever its kind: always, or once in so many times. That each kind has
/// one is left to the test.
inline bool isNextTaken()
{
    static int next = 0;
    return next++ % divisor() == 0;
}

} // namespace TestEffort
