#pragma once

#include "plan2svg/features.h"

#include <QtCore/QRectF>

/// Where the places of the earth lie on the picture.
///
/// A plan spans some kilometres to some hundred, so degrees are drawn as they are, with the longitudes
/// made shorter by the cosine of the middle latitude. Nothing is cut at the date line.
class Map {
public:
    /// A map that shows all of \a features, of the width given, and of a height that suits them.
    Map(const QVector<Feature>& features, QPointF corner, double width);

    /// The map on the picture.
    QRectF frame() const { return m_frame; }
    /// A place on the picture.
    QPointF place(const QPointF& point) const;

    /// The degrees between two lines of the grid, the same for both directions.
    double gridStep() const;
    /// The longitudes or latitudes at which the lines stand.
    QVector<double> meridians() const;
    QVector<double> parallels() const;

    /// A round length for the scale, in metres, and its length on the picture.
    struct Scale {
        double metres;
        double length;
    };
    Scale scale() const;

private:
    QVector<double> lines(double from, double to) const;

    QRectF m_degrees; ///< what is shown, the south as top
    QRectF m_frame;
    double m_perDegree; ///< the length of a degree of latitude on the picture
    double m_shrinking; ///< of longitudes
};
