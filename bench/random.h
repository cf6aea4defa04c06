#pragma once

#include <QtCore/QtGlobal>

#include <random>

namespace Bench {

/// Random numbers that are the same on every machine: the engine is fixed by the language, its
/// distributions are not, so the ranges are cut here.
class Random {
public:
    explicit Random(quint32 seed)
        : m_engine(seed)
    {
    }

    /// From 0 to \a count - 1.
    int below(int count) { return static_cast<int>((quint64(m_engine()) * quint64(count)) >> 32); }
    int between(int least, int most) { return least + below(most - least + 1); }
    bool oneIn(int count) { return below(count) == 0; }

    template <typename T, int Count>
    const T& among(const T (&choices)[Count])
    {
        return choices[below(Count)];
    }

private:
    std::mt19937 m_engine;
};

} // namespace Bench
