#include "plan2svg/map.h"

#include <QtCore/QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double metresPerDegree = 111195; // of latitude, on a sphere
constexpr double leastDegrees = 0.01;      // shown around a single place
constexpr double margin = 0.12;            // around what is shown, as a part of it

/// The largest of 1, 2 and 5 times a power of ten that is not above \a limit.
double roundNumber(double limit)
{
    const double power = qPow(10, qFloor(std::log10(limit)));
    for (const double factor : {5, 2}) {
        if (factor * power <= limit)
            return factor * power;
    }
    return power;
}

/// The degrees between two lines: round, or a part of the circle where much of the world is shown.
double gridStep(double limit)
{
    for (const double step : {90, 45, 30}) {
        if (step <= limit)
            return step;
    }
    return roundNumber(limit);
}

/// Multiples of the step from \a from to \a to, but none beyond \a most, where the earth ends.
Map::Lines linesBetween(double from, double to, double most, double step)
{
    Map::Lines lines{step, {}};
    for (int i = qCeil(std::max(from, -most) / step); i * step <= std::min(to, most); ++i)
        lines.degrees.append(i * step);
    return lines;
}

QRectF extentOf(const QVector<Feature>& features)
{
    QPointF least(180, 90);
    QPointF most(-180, -90);
    for (const Feature& feature : features) {
        for (const QPointF& point : feature.points) {
            least = {std::min(least.x(), point.x()), std::min(least.y(), point.y())};
            most = {std::max(most.x(), point.x()), std::max(most.y(), point.y())};
        }
    }
    return {least, most};
}

/// Makes the range \a size long, without moving its middle.
void widen(double& from, double& to, double size)
{
    const double missing = std::max(0.0, size - (to - from));
    from -= missing / 2;
    to += missing / 2;
}

} // namespace

Map::Map(const QVector<Feature>& features, QPointF corner, double width)
{
    const QRectF extent = extentOf(features);
    double west = extent.left();
    double east = extent.right();
    double south = extent.top();
    double north = extent.bottom();
    // Towards the poles the picture would become infinitely narrow.
    m_shrinking = std::max(0.05, qCos(qDegreesToRadians((south + north) / 2)));

    widen(west, east, std::max(leastDegrees / m_shrinking, (1 + margin) * (east - west)));
    widen(south, north, std::max(leastDegrees, (1 + margin) * (north - south)));
    // Neither a stripe nor a tower: the height is between half the width and the width.
    widen(west, east, (north - south) / m_shrinking);
    widen(south, north, (east - west) * m_shrinking / 2);

    m_degrees = QRectF(QPointF(west, south), QPointF(east, north));
    m_perDegree = width / (m_degrees.width() * m_shrinking);
    m_frame = QRectF(corner, QSizeF(width, m_degrees.height() * m_perDegree));
}

QPointF Map::place(const QPointF& point) const
{
    return {m_frame.left() + (point.x() - m_degrees.left()) * m_shrinking * m_perDegree,
            m_frame.bottom() - (point.y() - m_degrees.top()) * m_perDegree};
}

QRectF Map::earth() const
{
    return m_frame.intersected(QRectF(place({-180, 90}), place({180, -90})));
}

Map::Lines Map::meridians() const
{
    return linesBetween(m_degrees.left(), m_degrees.right(), 180, gridStep(m_degrees.width() / 4));
}

Map::Lines Map::parallels() const
{
    return linesBetween(m_degrees.top(), m_degrees.bottom(), 90, gridStep(m_degrees.height() / 2));
}

Map::Scale Map::scale(double greatestLength) const
{
    const double metresPerLength = metresPerDegree / m_perDegree;
    const double metres = roundNumber(std::min(m_frame.height() / 3, greatestLength) * metresPerLength);
    return {metres, metres / metresPerLength};
}
