#pragma once

#include "bound.h"
#include "plain.h"

#include <QtCore/QString>

#include <cstring>

namespace Bench {

/// What was read, in brief: how many things, and one number that every value and its place decide.
/// The same documents give the same tally, whoever read them.
class Tally {
public:
    void add(int value) { mix(static_cast<quint64>(static_cast<qint64>(value))); }
    void add(double value)
    {
        quint64 bits = 0;
        static_assert(sizeof bits == sizeof value);
        std::memcpy(&bits, &value, sizeof bits);
        mix(bits);
        m_sum += value;
    }
    void add(const QString& text)
    {
        for (const QChar character : text)
            mix(character.unicode());
        mix(static_cast<quint64>(text.size()));
    }

    quint64 values() const { return m_values; }
    double sum() const { return m_sum; }

    bool operator==(const Tally& other) const { return m_values == other.m_values && m_digest == other.m_digest; }

private:
    void mix(quint64 value)
    {
        m_digest = (m_digest ^ value) * Q_UINT64_C(0x9E3779B97F4A7C15);
        m_digest ^= m_digest >> 29;
        ++m_values;
    }

    quint64 m_values = 0;
    quint64 m_digest = 0;
    double m_sum = 0.0;
};

Tally tallyOf(const Plain::Contents& contents);
/// The same of the library's objects.
Tally tallyOf(const Trees& trees, const std::vector<Document>& documents);

} // namespace Bench
