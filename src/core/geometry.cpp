#include "arvxml/geometry.h"

#include "core/contentmodel.h"
#include "core/numbers.h"

#include <algorithm>
#include <utility>

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

void readNumber(XmlElementBase& owner, ElementReader& in)
{
    if (!in.requireStartTag())
        return;
    const auto text = in.requireAttribute(numberAttribute());
    if (text.isEmpty())
        return;
    bool ok = false;
    static_cast<XmlNumCoordType&>(owner).setNumber(toInteger(text, &ok));
    if (!ok)
        in.fail(QStringLiteral("Illegal attribute value (must be numeric)"));
}
void writeNumber(const XmlElementBase& owner, QXmlStreamWriter& writer)
{
    writer.writeAttribute(numberAttribute(), numberText(static_cast<const XmlNumCoordType&>(owner).number()));
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

const ContentModel& XmlCoordinateType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(compositeWording)
            .sequence({
                required("Longitude", as(ContentKind::Real, text<XmlCoordinateType, takeLongitude, longitudeText>())),
                required("Latitude", as(ContentKind::Real, text<XmlCoordinateType, takeLatitude, latitudeText>())),
            })
            .refusesOtherVersions();
    return model;
}

bool XmlCoordinateType::isValid() const
{
    return XmlVersionedComposite::isValid() && isLongitude(m_longitude) && isLatitude(m_latitude);
}

void XmlCoordinateType::addErrors()
{
    XmlVersionedComposite::addErrors();
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

const ContentModel& XmlNumCoordType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(XmlCoordinateType::contentModel()).attributes(readNumber, writeNumber);
    return model;
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

const ContentModel& XmlAreaRectType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(compositeWording)
            .sequence({
                required("UpperLeft", child<&XmlAreaRectType::m_upperLeft>()),
                required("LowerRight", child<&XmlAreaRectType::m_lowerRight>()),
            })
            .refusesOtherVersions();
    return model;
}

// A polygon

namespace {

bool comesBefore(const XmlNumCoordType* a, const XmlNumCoordType* b)
{
    return a->number() < b->number();
}

/// Moves each vertex from \a firstNew on before the first one with a greater number, as if each had been inserted there
/// on its own, but all at once. It gets by without memory, so that it cannot fail.
void sortIn(QVector<XmlNumCoordType*>& vertices, int firstNew)
{
    if (firstNew == vertices.size() || std::is_sorted(vertices.cbegin(), vertices.cend(), comesBefore))
        return;
    using Place = QVector<XmlNumCoordType*>::iterator; // a pointer with Qt 5, a class with Qt 6
    const Place middle = vertices.begin() + firstNew;
    std::stable_sort(middle, vertices.end(), comesBefore);
    if (std::is_sorted(vertices.begin(), middle, comesBefore)) {
        std::inplace_merge(vertices.begin(), middle, vertices.end(), comesBefore);
        return;
    }
    // Numbers of vertices held before have been changed, which does not move those.
    Place place = vertices.begin();
    for (Place next = middle; next != vertices.end(); ++next) {
        place = std::find_if(place, next, [next](const XmlNumCoordType* held) { return comesBefore(*next, held); });
        std::rotate(place, next, next + 1);
        ++place;
    }
}

} // namespace

XmlAreaPolyType::XmlAreaPolyType()
    : XmlVersionedComposite(QStringLiteral("XmlAreaPolyType"))
{
}

const ContentModel& XmlAreaPolyType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(compositeWording)
            // Not reported here: the problems end with the first illegal number.
            .sequence({repeated("Vertex", unreported(items<&XmlAreaPolyType::m_vertices>()))})
            .completeIf([](const XmlElementBase& owner) {
                return static_cast<const XmlAreaPolyType&>(owner).m_vertices.size() >= minVertices;
            })
            .refusesOtherVersions();
    return model;
}

void XmlAreaPolyType::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    struct SortsInTheEnd { // however the reading ends
        QVector<XmlNumCoordType*>& vertices;
        const int held = static_cast<int>(vertices.size());
        ~SortsInTheEnd() { sortIn(vertices, held); }
    };
    const SortsInTheEnd sorter{m_vertices.order()};
    XmlVersionedComposite::processXml(reader, tagName);
}

void XmlAreaPolyType::setVertices(const QVector<XmlNumCoordType*>& vertices)
{
    OwnedList<XmlNumCoordType, QVector<XmlNumCoordType*>> copies;
    copies.set(vertices);
    sortIn(copies.order(), 0);
    m_vertices = std::move(copies);
}

bool XmlAreaPolyType::isValid() const
{
    int previous = -1;
    for (const XmlNumCoordType* vertex : m_vertices.items()) {
        if (vertex->number() <= previous)
            return false;
        previous = vertex->number();
    }
    return XmlVersionedComposite::isValid();
}

void XmlAreaPolyType::addErrors()
{
    XmlVersionedComposite::addErrors();
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
