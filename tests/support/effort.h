#pragma once

#include <QtCore/QtGlobal>

#include <algorithm>

/// \file
/// How much a test does of what it does by the thousands. ARVXML_TEST_EFFORT in the environment says it in percent, for
/// checkers under which everything takes long. Every case stays; there are fewer, or smaller, examples of it.

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

/// Whether it is the turn of the next example: always, or once in so many times.
inline bool isNextTaken()
{
    static int next = 0;
    return next++ % divisor() == 0;
}

} // namespace TestEffort
