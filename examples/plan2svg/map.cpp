#include "plan2svg/map.h"

#include <QtCore/QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double metresPerDegree = 111195; // of latitude, on a sphere
constexpr double leastDegrees = 0.01;      // shown around a single place
constexpr double margin = 0.12;            // around what is shown, as a part of it

/// The largest of 1, 2, 5, 10, 20 ... times 10 to some power that is not above \a limit.
double roundNumber(double limit)
{
    const double power = qPow(10, qFloor(std::log10(limit)));
    for (const double factor : {5, 2}) {
        if (factor * power <= limit)
            return factor * power;
    }
    return power;
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

double Map::gridStep() const
{
    return roundNumber(m_degrees.height() / 2);
}

QVector<double> Map::meridians() const
{
    return lines(m_degrees.left(), m_degrees.right());
}

QVector<double> Map::parallels() const
{
    return lines(m_degrees.top(), m_degrees.bottom());
}

QVector<double> Map::lines(double from, double to) const
{
    QVector<double> lines;
    const double step = gridStep();
    for (int i = qCeil(from / step); i * step < to; ++i)
        lines.append(i * step);
    return lines;
}

Map::Scale Map::scale() const
{
    const double metres = roundNumber(m_degrees.height() * metresPerDegree / 3);
    return {metres, metres / metresPerDegree * m_perDegree};
}
