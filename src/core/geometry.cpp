#include "arvxml/geometry.h"

#include "core/elementform.h"
#include "core/numbers.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace ArvXml {

namespace {

constexpr double undefinedDegrees = -999.999;
constexpr int undefinedNumber = -9999;
constexpr NumberFormat degreesFormat = {'f', 6};
constexpr int minVertices = 3;

QString numberAttribute()
{
    return QStringLiteral("number");
}

// A text that is no number counts as 0.0 here; the protocol wants no error for it.
void takeLongitude(XmlCoordinateType& coordinate, const QString& text)
{
    coordinate.setLongitude(toReal(text));
}
void takeLatitude(XmlCoordinateType& coordinate, const QString& text)
{
    coordinate.setLatitude(toReal(text));
}
QString longitudeText(const XmlCoordinateType& coordinate)
{
    return numberText(coordinate.longitude(), degreesFormat);
}
QString latitudeText(const XmlCoordinateType& coordinate)
{
    return numberText(coordinate.latitude(), degreesFormat);
}

bool isLongitude(double degrees)
{
    return degrees >= -180.0 && degrees <= 180.0;
}
bool isLatitude(double degrees)
{
    return degrees >= -90.0 && degrees <= 90.0;
}

} // namespace

// A position

XmlCoordinateType::XmlCoordinateType()
    : XmlVersionedComposite(QStringLiteral("XmlCoordinateType"))
    , m_longitude(undefinedDegrees)
    , m_latitude(undefinedDegrees)
{
}

const ElementForm& XmlCoordinateType::form() const
{
    static const ElementForm form =
        ElementForm(compositeWording)
            .sequence({
                required("Longitude", text<XmlCoordinateType, takeLongitude, longitudeText>()),
                required("Latitude", text<XmlCoordinateType, takeLatitude, latitudeText>()),
            })
            .refusesOtherVersions();
    return form;
}

bool XmlCoordinateType::isValid() const
{
    return supportsVersion() && isLongitude(m_longitude) && isLatitude(m_latitude);
}

void XmlCoordinateType::addErrors()
{
    addSyntaxError(versionError());
    if (!isLongitude(m_longitude))
        addSyntaxError(QStringLiteral("Longitude out of bounds"));
    if (!isLatitude(m_latitude))
        addSyntaxError(QStringLiteral("Latitude out of bounds"));
}

void XmlCoordinateType::reset()
{
    m_longitude = undefinedDegrees;
    m_latitude = undefinedDegrees;
    XmlVersionedComposite::reset();
}

// A numbered vertex; it has the class name of the coordinate

XmlNumCoordType::XmlNumCoordType()
    : m_number(undefinedNumber)
{
}

quint32 XmlNumCoordType::openElement(ElementReader& in)
{
    if (in.requireStartTag()) {
        if (const auto text = in.requireAttribute(numberAttribute()); !text.isEmpty()) {
            bool ok = false;
            m_number = toInteger(text, &ok);
            if (!ok)
                in.fail(QStringLiteral("Illegal attribute value (must be numeric)"));
        }
    }
    // The coordinate opens in every case; what it raises replaces an error raised here.
    return XmlCoordinateType::openElement(in);
}

void XmlNumCoordType::writeAttributes(QXmlStreamWriter& writer) const
{
    writeVersion(writer);
    writer.writeAttribute(numberAttribute(), numberText(m_number));
}

bool XmlNumCoordType::isValid() const
{
    return XmlCoordinateType::isValid() && m_number >= 0;
}

void XmlNumCoordType::addErrors()
{
    XmlCoordinateType::addErrors();
    if (m_number < 0)
        addSyntaxError(QStringLiteral("(XmlNumCoordType) Number attribute too small (min. 0)"));
}

void XmlNumCoordType::reset()
{
    m_number = undefinedNumber;
    XmlCoordinateType::reset();
}

// A rectangle

XmlAreaRectType::XmlAreaRectType()
    : XmlVersionedComposite(QStringLiteral("XmlAreaRectType"))
{
}

const ElementForm& XmlAreaRectType::form() const
{
    static const ElementForm form = ElementForm(compositeWording)
                                        .sequence({
                                            required("UpperLeft", child<&XmlAreaRectType::m_upperLeft>()),
                                            required("LowerRight", child<&XmlAreaRectType::m_lowerRight>()),
                                        })
                                        .refusesOtherVersions();
    return form;
}

// A polygon

XmlAreaPolyType::XmlAreaPolyType()
    : XmlVersionedComposite(QStringLiteral("XmlAreaPolyType"))
{
}

const ElementForm& XmlAreaPolyType::form() const
{
    enum : Marks { Vertex = 1 };
    static const ElementForm form = ElementForm(compositeWording)
                                        .children({{"Vertex", Vertex, 0, items<&XmlAreaPolyType::m_vertices>()}})
                                        .refusesOtherVersions();
    return form;
}

bool XmlAreaPolyType::isComplete(quint32) const
{
    return m_vertices.size() >= minVertices;
}

void XmlAreaPolyType::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    const int held = m_vertices.size();
    XmlVersionedComposite::processXml(reader, tagName);
    sortIn(held);
}

void XmlAreaPolyType::setVertices(const QVector<XmlNumCoordType*>& vertices)
{
    m_vertices.set(vertices);
    sortIn(0);
}

/// Moves each vertex from \a firstNew on before the first one with a greater number, as if each had
/// been inserted there on its own, but all at once: a vertex goes by its number, one held before by
/// the greatest number up to it.
void XmlAreaPolyType::sortIn(int firstNew)
{
    struct Place {
        int number;
        XmlNumCoordType* vertex;
    };
    QVector<XmlNumCoordType*>& vertices = m_vertices.order();
    std::vector<Place> places;
    places.reserve(static_cast<std::size_t>(vertices.size()));
    int greatest = std::numeric_limits<int>::min();
    for (XmlNumCoordType* vertex : qAsConst(vertices)) {
        const bool isNew = static_cast<int>(places.size()) >= firstNew;
        greatest = std::max(greatest, vertex->number());
        places.push_back({isNew ? vertex->number() : greatest, vertex});
    }

    const auto comesBefore = [](const Place& a, const Place& b) { return a.number < b.number; };
    if (std::is_sorted(places.cbegin(), places.cend(), comesBefore))
        return;
    std::stable_sort(places.begin(), places.end(), comesBefore);
    std::transform(places.cbegin(), places.cend(), vertices.begin(), [](const Place& place) { return place.vertex; });
}

bool XmlAreaPolyType::isValid() const
{
    if (!supportsVersion())
        return false;
    int previous = -1;
    for (const XmlNumCoordType* vertex : m_vertices.items()) {
        if (!vertex->isValid() || vertex->number() <= previous)
            return false;
        previous = vertex->number();
    }
    return true;
}

void XmlAreaPolyType::addErrors()
{
    addSyntaxError(versionError());
    int previous = -1;
    for (XmlNumCoordType* vertex : m_vertices.items()) {
        addSyntaxError(vertex->syntaxError());
        if (vertex->number() <= previous) {
            addSyntaxError(QStringLiteral("Illegal numbering."));
            break;
        }
        previous = vertex->number();
    }
}

} // namespace ArvXml
