#include "results.h"

#include <algorithm>
#include <cmath>

namespace Bench {

namespace {

/// The value below which a part of the sorted samples lies, between two of them where need be.
double quantile(const std::vector<double>& sorted, double part)
{
    const double place = part * static_cast<double>(sorted.size() - 1);
    const double below = std::floor(place);
    const auto index = static_cast<size_t>(below);
    const double next = sorted[std::min(index + 1, sorted.size() - 1)];
    return sorted[index] + (place - below) * (next - sorted[index]);
}

} // namespace

Summary summaryOf(std::vector<double> samples)
{
    std::sort(samples.begin(), samples.end());
    return {quantile(samples, 0.5), quantile(samples, 0.25), quantile(samples, 0.75)};
}

void Results::addSubject(const QString& subject, qint64 bytes)
{
    m_bytes[subject] = bytes;
}

void Results::addSample(const QString& subject, Figure figure, double sample)
{
    m_samples[{subject, figure}].push_back(sample);
}

std::optional<Summary> Results::summary(const QString& subject, Figure figure) const
{
    const auto found = m_samples.find({subject, figure});
    if (found == m_samples.end())
        return std::nullopt;
    return summaryOf(found->second);
}

qint64 Results::bytes(const QString& subject) const
{
    const auto found = m_bytes.find(subject);
    return found == m_bytes.end() ? 0 : found->second;
}

} // namespace Bench
