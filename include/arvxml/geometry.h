#pragma once

/// \file
/// Positions, rectangles and polygons.

#include "arvxml/composite.h"

#include <QtCore/QVector>

namespace ArvXml {

/// A position in degrees, east and north positive. Both children are required, in the order shown. Default -999.999
/// (invalid); valid from -180.0 to 180.0 ("Longitude out of bounds") and from -90.0 to 90.0 ("Latitude out of bounds").
/// A text that is not a number reads as 0.0 without an error.
/// \code{.xml}
/// <Position version="1.0">
///     <Longitude>8.500000</Longitude>
///     <Latitude>47.400000</Latitude>
/// </Position>
/// \endcode
class ARVXML_EXPORT XmlCoordinateType : public XmlVersionedComposite {
public:
    XmlCoordinateType();

    /// The longitude in degrees, east positive.
    double longitude() const { return m_longitude; }
    void setLongitude(double longitude) { m_longitude = longitude; }

    /// The latitude in degrees, north positive.
    double latitude() const { return m_latitude; }
    void setLatitude(double latitude) { m_latitude = latitude; }

    bool isValid() const override;
    void reset() override;

protected:
    void addErrors() override;
    const ContentModel& contentModel() const override;

private:
    double m_longitude;
    double m_latitude;
};

/// A numbered vertex of a polygon. Attribute "number" is required ("Missing attribute: "number"", "Illegal attribute
/// value (must be numeric)"), -9999 by default, and valid from 0 ("(XmlNumCoordType) Number attribute too small (min.
/// 0)"). Messages call the class "XmlCoordinateType".
/// \code{.xml}
/// <Vertex version="1.0" number="0">
///     <Longitude>8.500000</Longitude>
///     <Latitude>47.400000</Latitude>
/// </Vertex>
/// \endcode
class ARVXML_EXPORT XmlNumCoordType : public XmlCoordinateType {
public:
    XmlNumCoordType();

    /// The number of the vertex, attribute "number".
    int number() const { return m_number; }
    void setNumber(int number) { m_number = number; }

    bool isValid() const override;
    void reset() override;

protected:
    void addErrors() override;

private:
    const ContentModel& contentModel() const override;

    int m_number;
};

/// A rectangle given by two corners, both required, in the order shown. Their relative position is not checked.
/// \code{.xml}
/// <AreaRect version="1.0">
///     <UpperLeft version="1.0">
///         <Longitude>8.500000</Longitude>
///         <Latitude>47.400000</Latitude>
///     </UpperLeft>
///     <LowerRight version="1.0">
///         <Longitude>8.600000</Longitude>
///         <Latitude>47.300000</Latitude>
///     </LowerRight>
/// </AreaRect>
/// \endcode
class ARVXML_EXPORT XmlAreaRectType : public XmlVersionedComposite {
public:
    XmlAreaRectType();

    /// The north-western corner, tag "UpperLeft".
    const XmlCoordinateType* upperLeft() const { return &m_upperLeft; }
    void setUpperLeft(const XmlCoordinateType& corner) { m_upperLeft = corner; }

    /// The south-eastern corner, tag "LowerRight".
    const XmlCoordinateType* lowerRight() const { return &m_lowerRight; }
    void setLowerRight(const XmlCoordinateType& corner) { m_lowerRight = corner; }

private:
    const ContentModel& contentModel() const override;

    XmlCoordinateType m_upperLeft;
    XmlCoordinateType m_lowerRight;
};

/// A polygon of vertices, stored and written by ascending number. Reading keeps existing vertices and requires three in
/// total, in any order. Validation requires none, but strictly ascending numbers from 0 or more ("Illegal numbering.").
/// \code{.xml}
/// <AreaPolygon version="1.0">
///     <Vertex version="1.0" number="0"><Longitude>8.500000</Longitude><Latitude>47.400000</Latitude></Vertex>
///     <Vertex version="1.0" number="1"><Longitude>8.600000</Longitude><Latitude>47.400000</Latitude></Vertex>
///     <Vertex version="1.0" number="2"><Longitude>8.600000</Longitude><Latitude>47.300000</Latitude></Vertex>
/// </AreaPolygon>
/// \endcode
class ARVXML_EXPORT XmlAreaPolyType : public XmlVersionedComposite {
public:
    XmlAreaPolyType();

    /// The vertices in order, owned by the polygon. Changing a number does not move a vertex.
    QVector<XmlNumCoordType*> vertices() const { return m_vertices.items(); }
    /// Replaces the vertices with copies, sorted by number; vertices with the same number keep their order.
    void setVertices(const QVector<XmlNumCoordType*>& vertices);

    void processXml(QXmlStreamReader& reader, const QString& tagName) override;
    bool isValid() const override;

protected:
    void addErrors() override;

private:
    const ContentModel& contentModel() const override;

    OwnedList<XmlNumCoordType, QVector<XmlNumCoordType*>> m_vertices;
};

} // namespace ArvXml
