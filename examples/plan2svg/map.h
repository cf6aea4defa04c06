#pragma once

#include "plan2svg/features.h"

#include <QtCore/QRectF>

/// Where the places of the earth lie on the picture.
///
/// A plan spans some kilometres to some hundred, so degrees are drawn as they are, with the longitudes
/// made shorter by the cosine of the middle latitude. Nothing is cut at the date line: an area across it is
/// drawn the long way round the earth.
class Map {
public:
    /// A map that shows all of \a features, of the width given, and of a height that suits them.
    Map(const QVector<Feature>& features, QPointF corner, double width);

    /// The map on the picture.
    QRectF frame() const { return m_frame; }
    /// A place on the picture.
    QPointF place(const QPointF& point) const;

    /// The part of the frame that lies on the earth: around places near its edges, the frame is larger.
    QRectF earth() const;

    /// The lines of the grid in one direction.
    struct Lines {
        double step;             ///< the degrees between two of them
        QVector<double> degrees; ///< where they stand
    };
    Lines meridians() const;
    Lines parallels() const;

    /// A round length for the scale, in metres, and its length on the picture, \a greatestLength at most.
    struct Scale {
        double metres;
        double length;
    };
    Scale scale(double greatestLength) const;

private:
    QRectF m_degrees; ///< what is shown, the south as top
    QRectF m_frame;
    double m_perDegree; ///< the length of a degree of latitude on the picture
    double m_shrinking; ///< of longitudes
};
