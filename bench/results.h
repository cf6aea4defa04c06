#pragma once

#include "tasks.h"

#include <QtCore/QString>

#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace Bench {

/// The middle of the samples, and the quarters around it.
struct Summary {
    double median;
    double low;
    double high;
};

Summary summaryOf(std::vector<double> samples);

/// What was measured, by subject and figure.
class Results {
public:
    /// What the samples of the tasks count.
    enum class Unit { Seconds, Instructions };

    explicit Results(Unit unit)
        : m_unit(unit)
    {
    }

    Unit unit() const { return m_unit; }
    /// Notes the size of the documents of a subject.
    void addSubject(const QString& subject, qint64 bytes);
    void addSample(const QString& subject, Figure figure, double sample);

    /// Nothing when it was not measured.
    std::optional<Summary> summary(const QString& subject, Figure figure) const;
    /// The size of the documents of \a subject; 0 when it was not measured.
    qint64 bytes(const QString& subject) const;

private:
    Unit m_unit;
    std::map<QString, qint64> m_bytes;
    std::map<std::pair<QString, Figure>, std::vector<double>> m_samples;
};

} // namespace Bench
