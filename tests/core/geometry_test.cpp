#include "support/effort.h"
#include "support/elementtest.h"

#include <arvxml/geometry.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <initializer_list>
#include <limits>
#include <memory>
#include <random>
#include <type_traits>
#include <utility>
#include <vector>

using namespace ArvXml;

namespace {

enum class Kind { Coordinate, Vertex, Rectangle, Polygon };

/// The numbers of vertices, each with the place at which it was given.
using Order = std::vector<std::pair<int, int>>;

/// An element whose collected problems can be seen.
template <typename Element>
struct Probe : Element {
    QString storedError() { return this->mySyntaxError(); }
};

std::unique_ptr<IXmlElement> newElement(Kind kind)
{
    switch (kind) {
    case Kind::Coordinate:
        return std::make_unique<XmlCoordinateType>();
    case Kind::Vertex:
        return std::make_unique<XmlNumCoordType>();
    case Kind::Rectangle:
        return std::make_unique<XmlAreaRectType>();
    case Kind::Polygon:
        return std::make_unique<XmlAreaPolyType>();
    }
    return nullptr;
}

XmlCoordinateType coordinate(double longitude, double latitude)
{
    XmlCoordinateType element;
    element.setLongitude(longitude);
    element.setLatitude(latitude);
    return element;
}

XmlNumCoordType vertex(int number, double longitude = 8.5, double latitude = 47.25)
{
    XmlNumCoordType element;
    element.setNumber(number);
    element.setLongitude(longitude);
    element.setLatitude(latitude);
    return element;
}

XmlAreaRectType rectangle(const XmlCoordinateType& upperLeft, const XmlCoordinateType& lowerRight)
{
    XmlAreaRectType element;
    element.setUpperLeft(upperLeft);
    element.setLowerRight(lowerRight);
    return element;
}

XmlAreaPolyType polygon(const std::vector<XmlNumCoordType>& vertices)
{
    std::vector<XmlNumCoordType> copies = vertices;
    QVector<XmlNumCoordType*> pointers;
    for (XmlNumCoordType& copy : copies)
        pointers.append(&copy);
    XmlAreaPolyType element;
    element.setVertices(pointers);
    return element;
}

/// A polygon of vertices that stand in the order of these numbers, ascending or not.
XmlAreaPolyType numbered(const std::vector<int>& numbers)
{
    XmlAreaPolyType element = polygon(std::vector<XmlNumCoordType>(numbers.size(), vertex(0)));
    const QVector<XmlNumCoordType*> vertices = element.vertices();
    for (std::size_t i = 0; i < numbers.size(); ++i)
        vertices.at(static_cast<int>(i))->setNumber(numbers[i]);
    return element;
}

QString vertexXml(int number, int latitude = 2)
{
    return QStringLiteral("<Vertex number=\"%1\"><Longitude>1</Longitude><Latitude>%2</Latitude></Vertex>")
        .arg(QString::number(number), QString::number(latitude));
}

QString polygonXml(const std::vector<int>& numbers)
{
    QString xml = QStringLiteral("<P>");
    for (std::size_t i = 0; i < numbers.size(); ++i)
        xml += vertexXml(numbers[i], static_cast<int>(i));
    return xml + QStringLiteral("</P>");
}

std::vector<int> numbersOf(const XmlAreaPolyType& element)
{
    std::vector<int> numbers;
    for (const XmlNumCoordType* held : element.vertices())
        numbers.push_back(held->number());
    return numbers;
}

/// The latitude of a vertex tells at which place it was given.
Order orderOf(const XmlAreaPolyType& element)
{
    Order order;
    for (const XmlNumCoordType* held : element.vertices())
        order.emplace_back(held->number(), static_cast<int>(held->latitude()));
    return order;
}

/// What inserting one by one makes of it: before the first greater number, else at the end.
void insertOneByOne(Order& order, const std::vector<int>& numbers)
{
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        auto place = order.begin();
        while (place != order.end() && place->first <= numbers[i])
            ++place;
        order.insert(place, std::make_pair(numbers[i], static_cast<int>(i)));
    }
}

std::vector<int> randomNumbers(unsigned seed, int count, int least, int greatest)
{
    std::mt19937 generator(seed);
    std::uniform_int_distribution<int> distribution(least, greatest);
    std::vector<int> numbers;
    for (int i = 0; i < count; ++i)
        numbers.push_back(distribution(generator));
    return numbers;
}

/// The content of a complete coordinate; 46 characters.
const QString position = QStringLiteral("<Longitude>1</Longitude><Latitude>2</Latitude>");
const QString upperLeftXml = QStringLiteral("<UpperLeft>") + position + QStringLiteral("</UpperLeft>");    // 69
const QString lowerRightXml = QStringLiteral("<LowerRight>") + position + QStringLiteral("</LowerRight>"); // 71

const QString newCoordinateError = QStringLiteral("+++ in XmlCoordinateType Begin:\nLongitude out of bounds\n"
                                                  "Latitude out of bounds\n--- in XmlCoordinateType End");
const QString newVertexError =
    QStringLiteral("+++ in XmlCoordinateType Begin:\nLongitude out of bounds\nLatitude out of bounds\n"
                   "(XmlNumCoordType) Number attribute too small (min. 0)\n--- in XmlCoordinateType End");
const QString newRectangleError =
    QStringLiteral("+++ in XmlAreaRectType Begin:\n"
                   "+++ in XmlCoordinateType Begin:\nLongitude out of bounds\nLatitude out of bounds\n"
                   "--- in XmlCoordinateType End\n"
                   "+++ in XmlCoordinateType Begin:\nLongitude out of bounds\nLatitude out of bounds\n"
                   "--- in XmlCoordinateType End\n"
                   "--- in XmlAreaRectType End");

} // namespace

Q_DECLARE_METATYPE(Kind)
Q_DECLARE_METATYPE(std::vector<int>)

class GeometryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // All of them
    void versionIsRead_data();
    void versionIsRead();
    void readingStartsOnTheStartTag_data();
    void readingStartsOnTheStartTag();
    void streamErrorsStay_data();
    void streamErrorsStay();

    // Positions
    void newCoordinate();
    void coordinateTextsAreRead_data();
    void coordinateTextsAreRead();
    void coordinateChildrenAreGated_data();
    void coordinateChildrenAreGated();
    void coordinateIsWritten_data();
    void coordinateIsWritten();
    void coordinateIsJudged_data();
    void coordinateIsJudged();
    void coordinateIsCopied();
    void coordinateIsReset();

    // Numbered vertices
    void newVertex();
    void vertexNumberIsRead_data();
    void vertexNumberIsRead();
    void vertexReadsNothingAtAWrongPosition();
    void vertexIsWritten();
    void vertexIsJudged_data();
    void vertexIsJudged();
    void vertexIsCopied();
    void vertexIsReset();

    // Rectangles
    void newRectangle();
    void rectangleCornersAreSet();
    void rectangleChildrenAreGated_data();
    void rectangleChildrenAreGated();
    void rectangleIsReadAgain();
    void rectangleIsWritten();
    void rectangleIsJudged_data();
    void rectangleIsJudged();
    void rectangleIsCopied();
    void rectangleIsReset();

    // Polygons
    void newPolygon();
    void polygonVerticesAreSet();
    void polygonChildrenAreRead_data();
    void polygonChildrenAreRead();
    void polygonIsReadAgain();
    void polygonIsWritten();
    void polygonIsJudged_data();
    void polygonIsJudged();
    void polygonJudgesEachVertex_data();
    void polygonJudgesEachVertex();
    void polygonIsCopied_data();
    void polygonIsCopied();
    void polygonIsReset();
    void verticesFindTheirPlaces_data();
    void verticesFindTheirPlaces();
    void verticesFindTheirPlacesAmongThoseHeld_data();
    void verticesFindTheirPlacesAmongThoseHeld();
    void failedVertexFindsItsPlace_data();
    void failedVertexFindsItsPlace();
    void readingTimeDoesNotDependOnTheOrder();
};

// All of them

void GeometryTest::versionIsRead_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("error");
    const QString v1 = QStringLiteral("1.0");
    QTest::newRow("no version") << QString() << v1 << QString();
    QTest::newRow("an empty version") << QStringLiteral(" version=\"\"") << v1 << QString();
    QTest::newRow("the version") << QStringLiteral(" version=\"1.0\"") << v1 << QString();
    QTest::newRow("another version") << QStringLiteral(" version=\"2.0\"") << QStringLiteral("2.0")
                                     << QStringLiteral("Version not supported: 2.0.");
    QTest::newRow("a version without decimals")
        << QStringLiteral(" version=\"1\"") << QStringLiteral("1") << QStringLiteral("Version not supported: 1.");
    QTest::newRow("a version with a blank") << QStringLiteral(" version=\" 1.0\"") << QStringLiteral(" 1.0")
                                            << QStringLiteral("Version not supported:  1.0.");
    QTest::newRow("a version of nothing but a blank")
        << QStringLiteral(" version=\" \"") << QStringLiteral(" ") << QStringLiteral("Version not supported:  .");
    QTest::newRow("a version like a place marker")
        << QStringLiteral(" version=\"%4\"") << QStringLiteral("%4") << QStringLiteral("Version not supported: %4.");
    QTest::newRow("a version under another name") << QStringLiteral(" Version=\"2.0\"") << v1 << QString();
}

template <typename Element>
void readsVersion(const QString& classText, const QString& attributes, const QString& content, const QString& version,
                  const QString& error)
{
    Element element;
    element.setVersion(QStringLiteral("3.0"));
    const QString before = ElementTest::written(element, QStringLiteral("E"));
    const QString start = QStringLiteral("<E%1>").arg(attributes);
    const QString expected = error.isEmpty()
        ? QString()
        : QStringLiteral("in %1 (line 1, column %2): %3").arg(classText, QString::number(start.size()), error);
    QCOMPARE(ElementTest::readError(element, start + content + QStringLiteral("</E>")), expected);
    QCOMPARE(element.version(), version);
    QCOMPARE(element.isValid(), error.isEmpty());
    if (!error.isEmpty()) // the children have not been looked at
        QVERIFY(!ElementTest::written(element, QStringLiteral("E")).contains(QStringLiteral("1.000000")));
    QVERIFY(ElementTest::written(element, QStringLiteral("E")) != before);
}

void GeometryTest::versionIsRead()
{
    QFETCH(QString, attribute);
    QFETCH(QString, version);
    QFETCH(QString, error);
    readsVersion<XmlCoordinateType>(QStringLiteral("XmlCoordinateType"), attribute, position, version, error);
    readsVersion<XmlNumCoordType>(QStringLiteral("XmlCoordinateType"), QStringLiteral(" number=\"1\"") + attribute,
                                  position, version, error);
    readsVersion<XmlAreaRectType>(QStringLiteral("XmlAreaRectType"), attribute, upperLeftXml + lowerRightXml, version,
                                  error);
    readsVersion<XmlAreaPolyType>(QStringLiteral("XmlAreaPolyType"), attribute,
                                  vertexXml(1) + vertexXml(2) + vertexXml(3), version, error);
}

void GeometryTest::readingStartsOnTheStartTag_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("tokens");
    QTest::addColumn<QString>("error");
    const auto wrong = [](const char* className, qint64 line, qint64 column) {
        return QStringLiteral("in %1 (line %2, column %3): Parse error (wrong position).")
            .arg(QLatin1String(className), QString::number(line), QString::number(column));
    };
    // The text is read under the tag E; its tokens are the start of the document, the start tag, a
    // line feed and a blank, the end tag and the end of the document.
    QTest::newRow("a coordinate before the first token") << Kind::Coordinate << 0 << wrong("XmlCoordinateType", 1, 0);
    QTest::newRow("a coordinate at the start of the document")
        << Kind::Coordinate << 1 << wrong("XmlCoordinateType", 1, 21);
    QTest::newRow("a coordinate on a text") << Kind::Coordinate << 3 << wrong("XmlCoordinateType", 2, 2);
    QTest::newRow("a coordinate on its end tag") << Kind::Coordinate << 4 << wrong("XmlCoordinateType", 2, 5);
    QTest::newRow("a coordinate at the end of the document")
        << Kind::Coordinate << 5 << wrong("XmlCoordinateType", 2, 5);

    QTest::newRow("a vertex before the first token") << Kind::Vertex << 0 << wrong("XmlCoordinateType", 1, 0);
    QTest::newRow("a vertex at the start of the document") << Kind::Vertex << 1 << wrong("XmlCoordinateType", 1, 21);
    QTest::newRow("a vertex on a text") << Kind::Vertex << 3 << wrong("XmlCoordinateType", 2, 2);
    QTest::newRow("a vertex on its end tag") << Kind::Vertex << 4 << wrong("XmlCoordinateType", 2, 5);
    QTest::newRow("a vertex at the end of the document") << Kind::Vertex << 5 << wrong("XmlCoordinateType", 2, 5);

    QTest::newRow("a rectangle before the first token") << Kind::Rectangle << 0 << wrong("XmlAreaRectType", 1, 0);
    QTest::newRow("a rectangle at the start of the document")
        << Kind::Rectangle << 1 << wrong("XmlAreaRectType", 1, 21);
    QTest::newRow("a rectangle on a text") << Kind::Rectangle << 3 << wrong("XmlAreaRectType", 2, 2);
    QTest::newRow("a rectangle on its end tag") << Kind::Rectangle << 4 << wrong("XmlAreaRectType", 2, 5);
    QTest::newRow("a rectangle at the end of the document") << Kind::Rectangle << 5 << wrong("XmlAreaRectType", 2, 5);

    QTest::newRow("a polygon before the first token") << Kind::Polygon << 0 << wrong("XmlAreaPolyType", 1, 0);
    QTest::newRow("a polygon at the start of the document") << Kind::Polygon << 1 << wrong("XmlAreaPolyType", 1, 21);
    QTest::newRow("a polygon on a text") << Kind::Polygon << 3 << wrong("XmlAreaPolyType", 2, 2);
    QTest::newRow("a polygon on its end tag") << Kind::Polygon << 4 << wrong("XmlAreaPolyType", 2, 5);
    QTest::newRow("a polygon at the end of the document") << Kind::Polygon << 5 << wrong("XmlAreaPolyType", 2, 5);
}

void GeometryTest::readingStartsOnTheStartTag()
{
    QFETCH(Kind, kind);
    QFETCH(int, tokens);
    QFETCH(QString, error);

    const auto element = newElement(kind);
    const QString before = ElementTest::written(*element, QStringLiteral("E"));
    dynamic_cast<XmlVersioned&>(*element).setVersion(QStringLiteral("2.0"));
    QXmlStreamReader reader(QStringLiteral("<?xml version=\"1.0\"?><E number=\"1\">\n </E>"));
    for (int i = 0; i < tokens; ++i)
        reader.readNext();
    element->processXml(reader, QStringLiteral("E"));
    QCOMPARE(reader.errorString(), error);
    // Nothing is read, but the version has been restored; so there is no complaint about it either.
    QCOMPARE(ElementTest::written(*element, QStringLiteral("E")), before);
}

void GeometryTest::streamErrorsStay_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("content");
    QTest::newRow("a coordinate") << Kind::Coordinate << position;
    QTest::newRow("a vertex") << Kind::Vertex << position;
    QTest::newRow("a rectangle") << Kind::Rectangle << upperLeftXml + lowerRightXml;
    QTest::newRow("a polygon") << Kind::Polygon << vertexXml(1) + vertexXml(2) + vertexXml(3);
}

void GeometryTest::streamErrorsStay()
{
    QFETCH(Kind, kind);
    QFETCH(QString, content);
    const QString start = QStringLiteral("<E number=\"1\">") + content;
    const auto element = newElement(kind);
    QCOMPARE(ElementTest::readError(*element, start), QStringLiteral("Premature end of document."));
    QCOMPARE(ElementTest::readError(*element, start + QStringLiteral("</F>")),
             QStringLiteral("Opening and ending tag mismatch."));
    // Comments, instructions, texts and entities unknown here do not matter.
    QCOMPARE(ElementTest::readError(*element,
                                    QStringLiteral("<!DOCTYPE E SYSTEM \"e.dtd\"><E number=\"1\">&other; x <!-- y "
                                                   "--><?do it?>\n%1 z <!-- --></E>")
                                        .arg(content)),
             QString());
}

// Positions

void GeometryTest::newCoordinate()
{
    XmlCoordinateType element;
    QCOMPARE(element.longitude(), -999.999);
    QCOMPARE(element.latitude(), -999.999);
    QCOMPARE(element.version(), QStringLiteral("1.0"));
    QVERIFY(!element.isValid());
    QCOMPARE(element.syntaxError(), newCoordinateError);

    element.setLongitude(8.5);
    QCOMPARE(element.longitude(), 8.5);
    QCOMPARE(element.latitude(), -999.999);
    QVERIFY(!element.isValid());
    element.setLatitude(-1000.0);
    QCOMPARE(element.latitude(), -1000.0);
    element.setVersion(QStringLiteral("2.0"));
    QCOMPARE(element.version(), QStringLiteral("2.0"));
    element.setVersion(QString());
    QCOMPARE(element.version(), QString());
}

void GeometryTest::coordinateTextsAreRead_data()
{
    QTest::addColumn<QString>("longitude");
    QTest::addColumn<QString>("latitude");
    QTest::addColumn<double>("readLongitude");
    QTest::addColumn<double>("readLatitude");
    QTest::newRow("numbers") << QStringLiteral("8.5") << QStringLiteral("-47.25") << 8.5 << -47.25;
    QTest::newRow("numbers with exponents") << QStringLiteral("1e2") << QStringLiteral("-25E-2") << 100.0 << -0.25;
    QTest::newRow("numbers out of bounds") << QStringLiteral("1234.5") << QStringLiteral("-90.5") << 1234.5 << -90.5;
    QTest::newRow("texts") << QStringLiteral("east") << QStringLiteral("12x") << 0.0 << 0.0;
    QTest::newRow("nothing") << QString() << QString() << 0.0 << 0.0;
    QTest::newRow("numbers with a comma") << QStringLiteral("8,5") << QStringLiteral("1,000") << 0.0 << 0.0;
    QTest::newRow("comments within the numbers")
        << QStringLiteral("1<!-- x -->2") << QStringLiteral("3<?y z?>4") << 12.0 << 34.0;
}

void GeometryTest::coordinateTextsAreRead()
{
    QFETCH(QString, longitude);
    QFETCH(QString, latitude);
    QFETCH(double, readLongitude);
    QFETCH(double, readLatitude);
    const QString content =
        QStringLiteral("<Longitude>%1</Longitude><Latitude>%2</Latitude></C>").arg(longitude, latitude);

    XmlCoordinateType element = coordinate(5.0, 6.0);
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<C>") + content), QString());
    QCOMPARE(element.longitude(), readLongitude);
    QCOMPARE(element.latitude(), readLatitude);

    XmlNumCoordType numberedElement = vertex(1, 5.0, 6.0);
    QCOMPARE(ElementTest::readError(numberedElement, QStringLiteral("<C number=\"2\">") + content), QString());
    QCOMPARE(numberedElement.longitude(), readLongitude);
    QCOMPARE(numberedElement.latitude(), readLatitude);
    QCOMPARE(numberedElement.number(), 2);
}

void GeometryTest::coordinateChildrenAreGated_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("error");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<double>("latitude");
    const QString longitude = QStringLiteral("<Longitude>1</Longitude>"); // 24 characters
    const QString latitude = QStringLiteral("<Latitude>2</Latitude>");    // 22 characters
    const QString otherLongitude = QStringLiteral("<Longitude>3</Longitude>");
    const QString otherLatitude = QStringLiteral("<Latitude>4</Latitude>");
    const QString other = QStringLiteral("<Other/>");
    const auto in = [](const QString& content) { return QStringLiteral("<C>%1</C>").arg(content); };
    const auto start = [](qint64 column, const char* tag) {
        return QStringLiteral("in XmlCoordinateType (line 1, column %1): Unexpected token \"StartElement\": %2.")
            .arg(QString::number(column), QLatin1String(tag));
    };
    const auto end = [](qint64 column) {
        return QStringLiteral("in XmlCoordinateType (line 1, column %1): Unexpected token \"EndElement\": C.")
            .arg(column);
    };
    const double unread = 9.0;

    QTest::newRow("nothing") << in(QString()) << end(7) << unread << unread;
    QTest::newRow("longitude") << in(longitude) << end(31) << 1.0 << unread;
    QTest::newRow("latitude") << in(latitude) << end(29) << unread << 2.0;
    QTest::newRow("something else") << in(other) << start(11, "Other") << unread << unread;
    QTest::newRow("longitude in small letters")
        << in(QStringLiteral("<longitude>1</longitude>")) << start(14, "longitude") << unread << unread;
    QTest::newRow("longitude, longitude") << in(longitude + otherLongitude) << start(38, "Longitude") << 1.0 << unread;
    QTest::newRow("longitude, latitude") << in(longitude + latitude) << QString() << 1.0 << 2.0;
    QTest::newRow("longitude, something else") << in(longitude + other) << start(35, "Other") << 1.0 << unread;
    QTest::newRow("latitude, longitude") << in(latitude + longitude) << start(36, "Longitude") << unread << 2.0;
    QTest::newRow("latitude, latitude") << in(latitude + otherLatitude) << start(35, "Latitude") << unread << 2.0;
    QTest::newRow("latitude, something else") << in(latitude + other) << start(33, "Other") << unread << 2.0;
    QTest::newRow("longitude, latitude, longitude")
        << in(longitude + latitude + otherLongitude) << start(60, "Longitude") << 1.0 << 2.0;
    QTest::newRow("longitude, latitude, latitude")
        << in(longitude + latitude + otherLatitude) << start(59, "Latitude") << 1.0 << 2.0;
    QTest::newRow("longitude, latitude, something else")
        << in(longitude + latitude + other) << start(57, "Other") << 1.0 << 2.0;
    QTest::newRow("an element inside the longitude: what was read until then counts")
        << in(QStringLiteral("<Longitude>12<b/></Longitude>")) << QStringLiteral("Expected character data.") << 12.0
        << unread;
    QTest::newRow("an element inside the latitude: what was read until then counts")
        << in(longitude + QStringLiteral("<Latitude><b/>7</Latitude>")) << QStringLiteral("Expected character data.")
        << 1.0 << 0.0;
    QTest::newRow("a child on the second line")
        << QStringLiteral("<C>\n  <Latitude>2</Latitude><Longitude>1</Longitude></C>")
        << QStringLiteral("in XmlCoordinateType (line 2, column 35): Unexpected token \"StartElement\": Longitude.")
        << unread << 2.0;
    QTest::newRow("the end on the third line")
        << QStringLiteral("<C>\n  <Longitude>1</Longitude>\n </C>")
        << QStringLiteral("in XmlCoordinateType (line 3, column 5): Unexpected token \"EndElement\": C.") << 1.0
        << unread;
}

void GeometryTest::coordinateChildrenAreGated()
{
    QFETCH(QString, xml);
    QFETCH(QString, error);
    QFETCH(double, longitude);
    QFETCH(double, latitude);

    XmlCoordinateType element = coordinate(9.0, 9.0);
    QCOMPARE(ElementTest::readError(element, xml), error);
    QCOMPARE(element.longitude(), longitude);
    QCOMPARE(element.latitude(), latitude);
    QCOMPARE(XmlCoordinateType(element).longitude(), longitude);
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<C>%1</C>").arg(position)), QString());
    QCOMPARE(element.longitude(), 1.0);
    QCOMPARE(element.latitude(), 2.0);

    // A vertex passes the same gates. Its number stands on a line of its own.
    XmlNumCoordType numberedElement = vertex(1, 9.0, 9.0);
    QString vertexError = error;
    vertexError.replace(QStringLiteral("(line 3,"), QStringLiteral("(line 4,"))
        .replace(QStringLiteral("(line 2,"), QStringLiteral("(line 3,"))
        .replace(QStringLiteral("(line 1,"), QStringLiteral("(line 2,"));
    QCOMPARE(ElementTest::readError(numberedElement, QStringLiteral("<C number=\"7\"\n  >") + xml.mid(3)), vertexError);
    QCOMPARE(numberedElement.number(), 7);
    QCOMPARE(numberedElement.longitude(), longitude);
    QCOMPARE(numberedElement.latitude(), latitude);

    // Under another tag its end is not found.
    QXmlStreamReader reader(QStringLiteral("<C>%1</C>").arg(position));
    reader.readNextStartElement();
    element.processXml(reader, QStringLiteral("c"));
    QCOMPARE(reader.errorString(),
             QStringLiteral("in XmlCoordinateType (line 1, column 53): Unexpected token \"EndElement\": C."));
}

void GeometryTest::coordinateIsWritten_data()
{
    QTest::addColumn<double>("longitude");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("xml");
    QTest::newRow("a position") << 8.5 << -47.25 << QStringLiteral("1.0")
                                << QStringLiteral("<Tag version=\"1.0\"><Longitude>8.500000</Longitude>"
                                                  "<Latitude>-47.250000</Latitude></Tag>");
    QTest::newRow("rounded to six decimals") << 1.23456789 << 0.0000004 << QStringLiteral("1.0")
                                             << QStringLiteral("<Tag version=\"1.0\"><Longitude>1.234568</Longitude>"
                                                               "<Latitude>0.000000</Latitude></Tag>");
    QTest::newRow("what is not valid") << -999.999 << 1e7 << QStringLiteral("2.0")
                                       << QStringLiteral("<Tag version=\"2.0\"><Longitude>-999.999000</Longitude>"
                                                         "<Latitude>10000000.000000</Latitude></Tag>");
    QTest::newRow("a version to be escaped, and no numbers")
        << std::numeric_limits<double>::quiet_NaN() << std::numeric_limits<double>::infinity() << QStringLiteral("<")
        << QStringLiteral("<Tag version=\"&lt;\"><Longitude>nan</Longitude><Latitude>inf</Latitude></Tag>");
    QTest::newRow("an empty version") << 0.0 << 0.0 << QString()
                                      << QStringLiteral("<Tag version=\"\"><Longitude>0.000000</Longitude>"
                                                        "<Latitude>0.000000</Latitude></Tag>");
}

void GeometryTest::coordinateIsWritten()
{
    QFETCH(double, longitude);
    QFETCH(double, latitude);
    QFETCH(QString, version);
    QFETCH(QString, xml);
    XmlCoordinateType element = coordinate(longitude, latitude);
    element.setVersion(version);
    QCOMPARE(ElementTest::written(element, QStringLiteral("Tag")), xml);
}

void GeometryTest::coordinateIsJudged_data()
{
    QTest::addColumn<double>("longitude");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("problems");
    const QString v1 = QStringLiteral("1.0");
    const QString longitudeOut = QStringLiteral("Longitude out of bounds\n");
    const QString latitudeOut = QStringLiteral("Latitude out of bounds\n");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("a position") << 8.5 << 47.25 << v1 << QString();
    QTest::newRow("the greatest") << 180.0 << 90.0 << v1 << QString();
    QTest::newRow("the least") << -180.0 << -90.0 << v1 << QString();
    QTest::newRow("longitude 180.000001") << 180.000001 << 0.0 << v1 << longitudeOut;
    QTest::newRow("longitude -180.000001") << -180.000001 << 0.0 << v1 << longitudeOut;
    QTest::newRow("longitude just above") << std::nextafter(180.0, 181.0) << 0.0 << v1 << longitudeOut;
    QTest::newRow("longitude just below") << std::nextafter(-180.0, -181.0) << 0.0 << v1 << longitudeOut;
    QTest::newRow("latitude 90.000001") << 0.0 << 90.000001 << v1 << latitudeOut;
    QTest::newRow("latitude -90.000001") << 0.0 << -90.000001 << v1 << latitudeOut;
    QTest::newRow("latitude just above") << 0.0 << std::nextafter(90.0, 91.0) << v1 << latitudeOut;
    QTest::newRow("latitude just below") << 0.0 << std::nextafter(-90.0, -91.0) << v1 << latitudeOut;
    QTest::newRow("endless") << infinity << -infinity << v1 << longitudeOut + latitudeOut;
    QTest::newRow("longitude not a number") << nan << 0.0 << v1 << longitudeOut;
    QTest::newRow("latitude not a number") << 0.0 << nan << v1 << latitudeOut;
    QTest::newRow("another version") << 0.0 << 0.0 << QStringLiteral("2.0")
                                     << QStringLiteral("Version \"2.0\" not supported\n");
    QTest::newRow("an empty version") << 0.0 << 0.0 << QString() << QStringLiteral("Version \"\" not supported\n");
    QTest::newRow("a version like a place marker, and all the rest")
        << 181.0 << 91.0 << QStringLiteral("%2")
        << QStringLiteral("Version \"%2\" not supported\n") + longitudeOut + latitudeOut;
}

template <typename Element>
void judgesPosition(Element& element, double longitude, double latitude, const QString& version,
                    const QString& problems)
{
    element.setLongitude(longitude);
    element.setLatitude(latitude);
    element.setVersion(version);
    const QString error = problems.isEmpty() ? QString()
                                             : QStringLiteral("+++ in XmlCoordinateType Begin:\n") + problems
            + QStringLiteral("--- in XmlCoordinateType End");
    QCOMPARE(element.isValid(), problems.isEmpty());
    QCOMPARE(element.syntaxError(), error);
    QCOMPARE(element.syntaxError(), error);
}

void GeometryTest::coordinateIsJudged()
{
    QFETCH(double, longitude);
    QFETCH(double, latitude);
    QFETCH(QString, version);
    QFETCH(QString, problems);
    XmlCoordinateType element;
    judgesPosition(element, longitude, latitude, version, problems);
    XmlNumCoordType numberedElement = vertex(0);
    judgesPosition(numberedElement, longitude, latitude, version, problems);
    numberedElement.setNumber(-1);
    judgesPosition(numberedElement, longitude, latitude, version,
                   problems + QStringLiteral("(XmlNumCoordType) Number attribute too small (min. 0)\n"));
}

void GeometryTest::coordinateIsCopied()
{
    Probe<XmlCoordinateType> source;
    source.setLongitude(1.0);
    source.setVersion(QStringLiteral("2.0"));
    const QString error = QStringLiteral("+++ in XmlCoordinateType Begin:\nVersion \"2.0\" not supported\n"
                                         "Latitude out of bounds\n--- in XmlCoordinateType End");
    QCOMPARE(source.syntaxError(), error);
    Probe<XmlCoordinateType> copy(source);
    Probe<XmlCoordinateType> assigned;
    QCOMPARE(&(assigned = source), &assigned);
    const Probe<XmlCoordinateType>& itself = assigned;
    assigned = itself;
    source.setLongitude(3.0);
    source.setLatitude(4.0);
    source.setVersion(QStringLiteral("1.0"));
    const QString xml =
        QStringLiteral("<C version=\"2.0\"><Longitude>1.000000</Longitude><Latitude>-999.999000</Latitude></C>");
    QCOMPARE(ElementTest::written(copy, QStringLiteral("C")), xml);
    QCOMPARE(ElementTest::written(assigned, QStringLiteral("C")), xml);
    QCOMPARE(copy.storedError(), error);
    QCOMPARE(assigned.storedError(), error);
}

void GeometryTest::coordinateIsReset()
{
    Probe<XmlCoordinateType> element;
    element.setLongitude(1.0);
    element.setLatitude(2.0);
    element.setVersion(QStringLiteral("2.0"));
    QVERIFY(!element.syntaxError().isEmpty());
    element.reset();
    QCOMPARE(element.storedError(), QString());
    QCOMPARE(element.longitude(), -999.999);
    QCOMPARE(element.latitude(), -999.999);
    QCOMPARE(element.version(), QStringLiteral("1.0"));
    QCOMPARE(element.syntaxError(), newCoordinateError);
}

// Numbered vertices

void GeometryTest::newVertex()
{
    static_assert(std::is_base_of_v<XmlCoordinateType, XmlNumCoordType>);
    static_assert(std::is_same_v<decltype(std::declval<const XmlNumCoordType&>().number()), int>);
    XmlNumCoordType element;
    QCOMPARE(element.number(), -9999);
    QCOMPARE(element.longitude(), -999.999);
    QCOMPARE(element.latitude(), -999.999);
    QCOMPARE(element.version(), QStringLiteral("1.0"));
    QVERIFY(!element.isValid());
    QCOMPARE(element.syntaxError(), newVertexError);
    element.setNumber(-5);
    QCOMPARE(element.number(), -5);
}

void GeometryTest::vertexNumberIsRead_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("number");
    const QString missing = QStringLiteral("Missing attribute: \"number\".");
    const QString illegal = QStringLiteral("Illegal attribute value (must be numeric).");
    QTest::newRow("a number") << QStringLiteral(" number=\"5\"") << QString() << 5;
    QTest::newRow("0") << QStringLiteral(" number=\"0\"") << QString() << 0;
    QTest::newRow("a negative number") << QStringLiteral(" number=\"-1\"") << QString() << -1;
    QTest::newRow("leading zeros are decimal") << QStringLiteral(" number=\"010\"") << QString() << 10;
    QTest::newRow("the greatest") << QStringLiteral(" number=\"2147483647\"") << QString() << 2147483647;
    QTest::newRow("the least") << QStringLiteral(" number=\"-2147483648\"") << QString()
                               << std::numeric_limits<int>::min();
    QTest::newRow("a number after the version") << QStringLiteral(" version=\"1.0\" number=\"5\"") << QString() << 5;
    QTest::newRow("no number") << QString() << missing << 77;
    QTest::newRow("an empty number") << QStringLiteral(" number=\"\"") << missing << 77;
    QTest::newRow("a number of nothing but a blank") << QStringLiteral(" number=\" \"") << illegal << 0;
    QTest::newRow("a number under another name") << QStringLiteral(" Number=\"5\"") << missing << 77;
    QTest::newRow("x1") << QStringLiteral(" number=\"x1\"") << illegal << 0;
    QTest::newRow("1.5") << QStringLiteral(" number=\"1.5\"") << illegal << 0;
    QTest::newRow("a hexadecimal number") << QStringLiteral(" number=\"0x1\"") << illegal << 0;
    QTest::newRow("above the greatest") << QStringLiteral(" number=\"2147483648\"") << illegal << 0;
    QTest::newRow("no number, another version")
        << QStringLiteral(" version=\"2.0\"") << QStringLiteral("Version not supported: 2.0.") << 77;
    QTest::newRow("x1, another version") << QStringLiteral(" number=\"x1\" version=\"2.0\"")
                                         << QStringLiteral("Version not supported: 2.0.") << 0;
    QTest::newRow("a number, another version")
        << QStringLiteral(" number=\"5\" version=\"2.0\"") << QStringLiteral("Version not supported: 2.0.") << 5;
}

void GeometryTest::vertexNumberIsRead()
{
    QFETCH(QString, attributes);
    QFETCH(QString, error);
    QFETCH(int, number);

    const QString lastLine = QStringLiteral("  <V%1>").arg(attributes);
    const QString xml = QStringLiteral("<!-- one\ntwo -->\n") + lastLine + position + QStringLiteral("</V>");
    XmlNumCoordType element = vertex(77, 9.0, 9.0);
    QCOMPARE(ElementTest::readError(element, xml),
             error.isEmpty() ? QString()
                             : QStringLiteral("in XmlCoordinateType (line 3, column %1): %2")
                                   .arg(QString::number(lastLine.size()), error));
    QCOMPARE(element.number(), number);
    QCOMPARE(element.longitude(), error.isEmpty() ? 1.0 : 9.0); // an error ends the reading before the children
    QCOMPARE(element.latitude(), error.isEmpty() ? 2.0 : 9.0);
    QCOMPARE(element.version(),
             attributes.contains(QStringLiteral("2.0")) ? QStringLiteral("2.0") : QStringLiteral("1.0"));
}

void GeometryTest::vertexReadsNothingAtAWrongPosition()
{
    XmlNumCoordType element = vertex(77, 9.0, 8.0);
    element.setVersion(QStringLiteral("2.0"));
    QXmlStreamReader reader(QStringLiteral("<V number=\"1\"> %1</V>").arg(position));
    reader.readNextStartElement();
    reader.readNext();
    element.processXml(reader, QStringLiteral("V"));
    QCOMPARE(reader.errorString(),
             QStringLiteral("in XmlCoordinateType (line 1, column 16): Parse error (wrong position)."));
    QCOMPARE(element.number(), 77);
    QCOMPARE(element.longitude(), 9.0);
    QCOMPARE(element.latitude(), 8.0);
    QCOMPARE(element.version(), QStringLiteral("1.0"));
}

void GeometryTest::vertexIsWritten()
{
    XmlNumCoordType element = vertex(12, 1.5, 2.5);
    QCOMPARE(ElementTest::written(element, QStringLiteral("Tag")),
             QStringLiteral("<Tag version=\"1.0\" number=\"12\"><Longitude>1.500000</Longitude>"
                            "<Latitude>2.500000</Latitude></Tag>"));
    QCOMPARE(ElementTest::written(XmlNumCoordType(), QStringLiteral("Tag")),
             QStringLiteral("<Tag version=\"1.0\" number=\"-9999\"><Longitude>-999.999000</Longitude>"
                            "<Latitude>-999.999000</Latitude></Tag>"));
    element.setVersion(QStringLiteral("2.0"));
    element.setNumber(std::numeric_limits<int>::max());
    QCOMPARE(ElementTest::written(element, QStringLiteral("Tag")),
             QStringLiteral("<Tag version=\"2.0\" number=\"2147483647\"><Longitude>1.500000</Longitude>"
                            "<Latitude>2.500000</Latitude></Tag>"));
}

void GeometryTest::vertexIsJudged_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("error");
    const QString tooSmall =
        QStringLiteral("+++ in XmlCoordinateType Begin:\n(XmlNumCoordType) Number attribute too small (min. 0)\n"
                       "--- in XmlCoordinateType End");
    QTest::newRow("0") << 0 << QString();
    QTest::newRow("the greatest") << std::numeric_limits<int>::max() << QString();
    QTest::newRow("-1") << -1 << tooSmall;
    QTest::newRow("the default") << -9999 << tooSmall;
}

void GeometryTest::vertexIsJudged()
{
    QFETCH(int, number);
    QFETCH(QString, error);
    XmlNumCoordType element = vertex(number);
    QCOMPARE(element.isValid(), error.isEmpty());
    QCOMPARE(element.syntaxError(), error);
    QCOMPARE(element.syntaxError(), error);
}

void GeometryTest::vertexIsCopied()
{
    XmlNumCoordType source = vertex(4, 1.0, 2.0);
    source.setVersion(QStringLiteral("2.0"));
    const XmlNumCoordType copy(source);
    XmlNumCoordType assigned = vertex(5);
    QCOMPARE(&(assigned = source), &assigned);
    const XmlNumCoordType& itself = assigned;
    assigned = itself;
    source.reset();
    const QString xml = QStringLiteral("<V version=\"2.0\" number=\"4\"><Longitude>1.000000</Longitude>"
                                       "<Latitude>2.000000</Latitude></V>");
    QCOMPARE(ElementTest::written(copy, QStringLiteral("V")), xml);
    QCOMPARE(ElementTest::written(assigned, QStringLiteral("V")), xml);
}

void GeometryTest::vertexIsReset()
{
    Probe<XmlNumCoordType> element;
    element.setNumber(-3);
    element.setLongitude(1.0);
    element.setLatitude(2.0);
    element.setVersion(QStringLiteral("2.0"));
    QVERIFY(!element.syntaxError().isEmpty());
    element.reset();
    QCOMPARE(element.storedError(), QString());
    QCOMPARE(element.number(), -9999);
    QCOMPARE(element.longitude(), -999.999);
    QCOMPARE(element.latitude(), -999.999);
    QCOMPARE(element.version(), QStringLiteral("1.0"));
    QCOMPARE(element.syntaxError(), newVertexError);
}

// Rectangles

void GeometryTest::newRectangle()
{
    static_assert(
        std::is_same_v<decltype(std::declval<const XmlAreaRectType&>().upperLeft()), const XmlCoordinateType*>);
    static_assert(
        std::is_same_v<decltype(std::declval<const XmlAreaRectType&>().lowerRight()), const XmlCoordinateType*>);
    XmlAreaRectType element;
    QVERIFY(element.upperLeft());
    QVERIFY(element.lowerRight());
    QVERIFY(element.upperLeft() != element.lowerRight());
    QCOMPARE(element.upperLeft()->longitude(), -999.999);
    QCOMPARE(element.lowerRight()->latitude(), -999.999);
    QCOMPARE(element.version(), QStringLiteral("1.0"));
    QVERIFY(!element.isValid());
    QCOMPARE(element.syntaxError(), newRectangleError);
}

void GeometryTest::rectangleCornersAreSet()
{
    XmlAreaRectType element;
    const XmlCoordinateType* const upperLeft = element.upperLeft();
    const XmlCoordinateType* const lowerRight = element.lowerRight();
    XmlCoordinateType corner = coordinate(1.0, 2.0);
    corner.setVersion(QStringLiteral("2.0"));
    element.setUpperLeft(corner);
    element.setLowerRight(coordinate(3.0, 4.0));
    corner.reset();
    QCOMPARE(element.upperLeft(), upperLeft); // assigned to, not replaced
    QCOMPARE(element.lowerRight(), lowerRight);
    QCOMPARE(upperLeft->longitude(), 1.0);
    QCOMPARE(upperLeft->latitude(), 2.0);
    QCOMPARE(upperLeft->version(), QStringLiteral("2.0"));
    QCOMPARE(lowerRight->longitude(), 3.0);
    QCOMPARE(lowerRight->latitude(), 4.0);
    QCOMPARE(element.version(), QStringLiteral("1.0"));

    element.setUpperLeft(*element.upperLeft());
    QCOMPARE(upperLeft->longitude(), 1.0);
    element.setLowerRight(*element.upperLeft());
    QCOMPARE(lowerRight->longitude(), 1.0);
    element.setVersion(QStringLiteral("3.0"));
    QCOMPARE(element.version(), QStringLiteral("3.0"));
}

void GeometryTest::rectangleChildrenAreGated_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("error");
    const QString& left = upperLeftXml;
    const QString& right = lowerRightXml;
    const QString other = QStringLiteral("<Other/>");
    const auto in = [](const QString& content) { return QStringLiteral("<R>%1</R>").arg(content); };
    const auto start = [](qint64 column, const char* tag) {
        return QStringLiteral("in XmlAreaRectType (line 1, column %1): Unexpected token \"StartElement\": %2.")
            .arg(QString::number(column), QLatin1String(tag));
    };
    const auto end = [](qint64 column) {
        return QStringLiteral("in XmlAreaRectType (line 1, column %1): Unexpected token \"EndElement\": R.")
            .arg(column);
    };
    QTest::newRow("nothing") << in(QString()) << end(7);
    QTest::newRow("upper left") << in(left) << end(76);
    QTest::newRow("lower right") << in(right) << end(78);
    QTest::newRow("something else") << in(other) << start(11, "Other");
    QTest::newRow("upper left in small letters") << in(QStringLiteral("<upperLeft/>")) << start(15, "upperLeft");
    QTest::newRow("upper left, upper left") << in(left + left) << start(83, "UpperLeft");
    QTest::newRow("upper left, lower right") << in(left + right) << QString();
    QTest::newRow("upper left, something else") << in(left + other) << start(80, "Other");
    QTest::newRow("lower right, upper left") << in(right + left) << start(85, "UpperLeft");
    QTest::newRow("lower right, lower right") << in(right + right) << start(86, "LowerRight");
    QTest::newRow("lower right, something else") << in(right + other) << start(82, "Other");
    QTest::newRow("both, upper left") << in(left + right + left) << start(154, "UpperLeft");
    QTest::newRow("both, lower right") << in(left + right + right) << start(155, "LowerRight");
    QTest::newRow("both, something else") << in(left + right + other) << start(151, "Other");
    QTest::newRow("a corner without a latitude, on the second line")
        << QStringLiteral("<R>\n <UpperLeft><Longitude>1</Longitude></UpperLeft></R>")
        << QStringLiteral("in XmlCoordinateType (line 2, column 48): Unexpected token \"EndElement\": UpperLeft.");
    QTest::newRow("a corner of another version")
        << QStringLiteral("<R>%1<LowerRight version=\"2.0\"/></R>").arg(left)
        << QStringLiteral("in XmlCoordinateType (line 1, column 99): Version not supported: 2.0.");
    QTest::newRow("an end on the third line")
        << QStringLiteral("<R>\n%1\n</R>").arg(left)
        << QStringLiteral("in XmlAreaRectType (line 3, column 4): Unexpected token \"EndElement\": R.");
}

void GeometryTest::rectangleChildrenAreGated()
{
    QFETCH(QString, xml);
    QFETCH(QString, error);
    XmlAreaRectType element;
    QCOMPARE(ElementTest::readError(element, xml), error);
    QCOMPARE(element.isValid(), xml.contains(upperLeftXml + lowerRightXml));

    // Whatever was read, the element can be used on.
    element.reset();
    QCOMPARE(element.syntaxError(), newRectangleError);
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<R>%1%2</R>").arg(upperLeftXml, lowerRightXml)),
             QString());
    QVERIFY(element.isValid());
}

void GeometryTest::rectangleIsReadAgain()
{
    XmlAreaRectType element = rectangle(coordinate(10.0, 20.0), coordinate(30.0, 40.0));
    const XmlCoordinateType* const upperLeft = element.upperLeft();
    QCOMPARE(ElementTest::readError(
                 element,
                 QStringLiteral("<R><UpperLeft version=\"1.0\"><Longitude>5</Longitude><Latitude>6</Latitude>"
                                "</UpperLeft><LowerRight><Longitude>7</Longitude></LowerRight></R>")),
             QStringLiteral("in XmlCoordinateType (line 1, column 135): Unexpected token \"EndElement\": LowerRight."));
    QCOMPARE(element.upperLeft(), upperLeft);
    QCOMPARE(upperLeft->longitude(), 5.0);
    QCOMPARE(upperLeft->latitude(), 6.0);
    QCOMPARE(element.lowerRight()->longitude(), 7.0);
    QCOMPARE(element.lowerRight()->latitude(), 40.0); // as it was
}

void GeometryTest::rectangleIsWritten()
{
    XmlAreaRectType element = rectangle(coordinate(1.0, 2.0), coordinate(3.0, 4.0));
    element.setVersion(QStringLiteral("2.0"));
    QCOMPARE(ElementTest::written(element, QStringLiteral("Tag")),
             QStringLiteral("<Tag version=\"2.0\"><UpperLeft version=\"1.0\"><Longitude>1.000000</Longitude>"
                            "<Latitude>2.000000</Latitude></UpperLeft><LowerRight version=\"1.0\">"
                            "<Longitude>3.000000</Longitude><Latitude>4.000000</Latitude></LowerRight></Tag>"));
}

void GeometryTest::rectangleIsJudged_data()
{
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("right");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("error");
    const QString v1 = QStringLiteral("1.0");
    QTest::newRow("good corners") << 1.0 << 2.0 << v1 << QString();
    QTest::newRow("good corners the wrong way round") << 2.0 << 1.0 << v1 << QString();
    QTest::newRow("equal corners") << 1.0 << 1.0 << v1 << QString();
    QTest::newRow("a bad upper left corner")
        << 181.0 << 2.0 << v1
        << QStringLiteral("+++ in XmlAreaRectType Begin:\n+++ in XmlCoordinateType Begin:\nLongitude out of bounds\n"
                          "--- in XmlCoordinateType End\n--- in XmlAreaRectType End");
    QTest::newRow("a bad lower right corner")
        << 1.0 << 182.0 << v1
        << QStringLiteral("+++ in XmlAreaRectType Begin:\n+++ in XmlCoordinateType Begin:\nLongitude out of bounds\n"
                          "--- in XmlCoordinateType End\n--- in XmlAreaRectType End");
    QTest::newRow("another version") << 1.0 << 2.0 << QStringLiteral("2.0")
                                     << QStringLiteral("+++ in XmlAreaRectType Begin:\nVersion \"2.0\" not supported\n"
                                                       "--- in XmlAreaRectType End");
    QTest::newRow("everything")
        << 181.0 << -99.0 << QStringLiteral("2.0")
        << QStringLiteral("+++ in XmlAreaRectType Begin:\nVersion \"2.0\" not supported\n"
                          "+++ in XmlCoordinateType Begin:\nLongitude out of bounds\n--- in XmlCoordinateType End\n"
                          "+++ in XmlCoordinateType Begin:\nLatitude out of bounds\n--- in XmlCoordinateType End\n"
                          "--- in XmlAreaRectType End");
}

void GeometryTest::rectangleIsJudged()
{
    QFETCH(double, left);
    QFETCH(double, right);
    QFETCH(QString, version);
    QFETCH(QString, error);
    // A negative value stands for the latitude of the lower right corner.
    XmlAreaRectType element =
        rectangle(coordinate(left, 2.0), right < 0 ? coordinate(2.0, right) : coordinate(right, 2.0));
    element.setVersion(version);
    QCOMPARE(element.isValid(), error.isEmpty());
    QCOMPARE(element.syntaxError(), error);
    QCOMPARE(element.syntaxError(), error);

    // The latitudes may lie either way too.
    XmlAreaRectType upsideDown = rectangle(coordinate(1.0, -10.0), coordinate(2.0, 10.0));
    QVERIFY(upsideDown.isValid());
    QCOMPARE(upsideDown.syntaxError(), QString());
}

void GeometryTest::rectangleIsCopied()
{
    XmlAreaRectType source = rectangle(coordinate(1.0, 2.0), coordinate(3.0, 4.0));
    source.setVersion(QStringLiteral("2.0"));
    const QString xml = ElementTest::written(source, QStringLiteral("R"));
    QVERIFY(xml.contains(QStringLiteral("<Latitude>4.000000</Latitude>")));
    const XmlAreaRectType copy(source);
    XmlAreaRectType assigned;
    QCOMPARE(&(assigned = source), &assigned);
    const XmlAreaRectType& itself = assigned;
    assigned = itself;
    QVERIFY(copy.upperLeft() != source.upperLeft());
    QVERIFY(assigned.lowerRight() != source.lowerRight());
    source.reset();
    QCOMPARE(ElementTest::written(copy, QStringLiteral("R")), xml);
    QCOMPARE(ElementTest::written(assigned, QStringLiteral("R")), xml);
}

void GeometryTest::rectangleIsReset()
{
    Probe<XmlAreaRectType> element;
    XmlCoordinateType corner = coordinate(1.0, 2.0);
    corner.setVersion(QStringLiteral("3.0"));
    element.setUpperLeft(corner);
    element.setLowerRight(corner);
    element.setVersion(QStringLiteral("2.0"));
    QVERIFY(!element.syntaxError().isEmpty());
    const XmlCoordinateType* const upperLeft = element.upperLeft();
    const XmlCoordinateType* const lowerRight = element.lowerRight();
    element.reset();
    QCOMPARE(element.storedError(), QString());
    QCOMPARE(element.upperLeft(), upperLeft);
    QCOMPARE(element.lowerRight(), lowerRight);
    const QString defaults = QStringLiteral("<Longitude>-999.999000</Longitude><Latitude>-999.999000</Latitude>");
    QCOMPARE(ElementTest::written(element, QStringLiteral("R")),
             QStringLiteral("<R version=\"1.0\"><UpperLeft version=\"1.0\">%1</UpperLeft>"
                            "<LowerRight version=\"1.0\">%1</LowerRight></R>")
                 .arg(defaults));
    QCOMPARE(element.syntaxError(), newRectangleError);
}

// Polygons

void GeometryTest::newPolygon()
{
    static_assert(
        std::is_same_v<decltype(std::declval<const XmlAreaPolyType&>().vertices()), QVector<XmlNumCoordType*>>);
    XmlAreaPolyType element;
    QVERIFY(element.vertices().isEmpty());
    QCOMPARE(element.version(), QStringLiteral("1.0"));
    QVERIFY(element.isValid());
    QCOMPARE(element.syntaxError(), QString());
}

void GeometryTest::polygonVerticesAreSet()
{
    XmlNumCoordType a = vertex(2, 1.0, 10.0);
    XmlNumCoordType b = vertex(0, 1.0, 11.0);
    XmlNumCoordType c = vertex(2, 1.0, 12.0);
    XmlNumCoordType d = vertex(1, 1.0, 13.0);
    a.setVersion(QStringLiteral("2.0"));
    XmlAreaPolyType element;
    element.setVertices({&a, &b, nullptr, &c, &d});
    const Order expected = {{0, 11}, {1, 13}, {2, 10}, {2, 12}};
    QCOMPARE(orderOf(element), expected);
    QCOMPARE(element.vertices().at(2)->version(), QStringLiteral("2.0"));
    for (const XmlNumCoordType* held : element.vertices())
        QVERIFY(held != &a && held != &b && held != &c && held != &d);
    QCOMPARE(element.vertices(), element.vertices()); // the same pointers each time
    a.setNumber(-5);
    QCOMPARE(orderOf(element), expected);

    element.setVertices(element.vertices());
    QCOMPARE(orderOf(element), expected);
    element.setVertices({element.vertices().at(3), element.vertices().at(0)});
    const Order two = {{0, 11}, {2, 12}};
    QCOMPARE(orderOf(element), two);

    element.setVersion(QStringLiteral("2.0"));
    element.setVertices({});
    QVERIFY(element.vertices().isEmpty());
    QCOMPARE(element.version(), QStringLiteral("2.0"));
}

void GeometryTest::polygonChildrenAreRead_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("error");
    QTest::addColumn<std::vector<int>>("numbers");
    const auto of = [](std::initializer_list<int> numbers) {
        QString xml;
        for (const int number : numbers)
            xml += vertexXml(number); // 74 characters with a number of one digit
        return xml;
    };
    const auto start = [](qint64 column, const char* tag) {
        return QStringLiteral("in XmlAreaPolyType (line 1, column %1): Unexpected token \"StartElement\": %2.")
            .arg(QString::number(column), QLatin1String(tag));
    };
    const auto end = [](qint64 column) {
        return QStringLiteral("in XmlAreaPolyType (line 1, column %1): Unexpected token \"EndElement\": P.")
            .arg(column);
    };
    using Numbers = std::vector<int>;
    QTest::newRow("no vertex") << QString() << end(7) << Numbers();
    QTest::newRow("1 vertex") << of({1}) << end(81) << Numbers{1};
    QTest::newRow("2 vertices") << of({1, 2}) << end(155) << Numbers{1, 2};
    QTest::newRow("3 vertices") << of({1, 2, 3}) << QString() << Numbers{1, 2, 3};
    QTest::newRow("4 vertices") << of({1, 2, 3, 4}) << QString() << Numbers{1, 2, 3, 4};
    QTest::newRow("3 vertices of one number") << of({1, 1, 1}) << QString() << Numbers{1, 1, 1};
    QTest::newRow("2, 0, 1") << of({2, 0, 1}) << QString() << Numbers{0, 1, 2};
    QTest::newRow("something else") << QStringLiteral("<Other/>") << start(11, "Other") << Numbers();
    QTest::newRow("vertex in small letters")
        << QStringLiteral("<vertex number=\"1\"/>") << start(23, "vertex") << Numbers();
    QTest::newRow("3 vertices, something else")
        << of({3, 2, 1}) + QStringLiteral("<Other/>") << start(233, "Other") << Numbers{1, 2, 3};
    QTest::newRow("a child of a vertex outside of one")
        << of({1, 2, 3}) + QStringLiteral("<Longitude>1</Longitude>") << start(236, "Longitude") << Numbers{1, 2, 3};
    QTest::newRow("an end on the third line")
        << QStringLiteral("\n  ") + of({1, 2}) + QStringLiteral("\n ")
        << QStringLiteral("in XmlAreaPolyType (line 3, column 5): Unexpected token \"EndElement\": P.")
        << Numbers{1, 2};
    QTest::newRow("a vertex without a number, on the second line")
        << of({1, 2, 3}) + QStringLiteral("\n <Vertex>%1</Vertex>").arg(position)
        << QStringLiteral("in XmlCoordinateType (line 2, column 9): Missing attribute: \"number\".")
        << Numbers{-9999, 1, 2, 3};
}

void GeometryTest::polygonChildrenAreRead()
{
    QFETCH(QString, content);
    QFETCH(QString, error);
    QFETCH(std::vector<int>, numbers);
    XmlAreaPolyType element;
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<P>%1</P>").arg(content)), error);
    QCOMPARE(numbersOf(element), numbers);
    QCOMPARE(numbersOf(XmlAreaPolyType(element)), numbers);

    // Whatever was read, the element can be used on.
    element.reset();
    QVERIFY(element.vertices().isEmpty());
    QCOMPARE(
        ElementTest::readError(element, QStringLiteral("<P>%1%2%3</P>").arg(vertexXml(6), vertexXml(5), vertexXml(4))),
        QString());
    QCOMPARE(numbersOf(element), std::vector<int>({4, 5, 6}));
    QVERIFY(element.isValid());

    // Under another tag its end is not found.
    QXmlStreamReader reader(QStringLiteral("<P/>"));
    reader.readNextStartElement();
    element.processXml(reader, QStringLiteral("p"));
    QCOMPARE(reader.errorString(),
             QStringLiteral("in XmlAreaPolyType (line 1, column 4): Unexpected token \"EndElement\": P."));
}

void GeometryTest::polygonIsReadAgain()
{
    XmlAreaPolyType element = polygon({vertex(1), vertex(5)});
    const QVector<XmlNumCoordType*> held = element.vertices();
    // The vertices held count too.
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<P>%1</P>").arg(vertexXml(3))), QString());
    QCOMPARE(numbersOf(element), std::vector<int>({1, 3, 5}));
    QCOMPARE(element.vertices().at(0), held.at(0));
    QCOMPARE(element.vertices().at(2), held.at(1));
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<P></P>")), QString());
    QCOMPARE(numbersOf(element), std::vector<int>({1, 3, 5}));
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<P version=\"2.0\">%1</P>").arg(vertexXml(3))),
             QStringLiteral("in XmlAreaPolyType (line 1, column 17): Version not supported: 2.0."));
    QCOMPARE(numbersOf(element), std::vector<int>({1, 3, 5}));
    QVERIFY(!element.isValid());
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<P></P>")), QString());
    QVERIFY(element.isValid());
}

void GeometryTest::polygonIsWritten()
{
    XmlAreaPolyType element = polygon({vertex(2, 1.0, 2.0), vertex(0, 3.0, 4.0)});
    element.setVersion(QStringLiteral("2.0"));
    QCOMPARE(ElementTest::written(element, QStringLiteral("Tag")),
             QStringLiteral("<Tag version=\"2.0\"><Vertex version=\"1.0\" number=\"0\"><Longitude>3.000000</Longitude>"
                            "<Latitude>4.000000</Latitude></Vertex><Vertex version=\"1.0\" number=\"2\">"
                            "<Longitude>1.000000</Longitude><Latitude>2.000000</Latitude></Vertex></Tag>"));
    QCOMPARE(ElementTest::written(XmlAreaPolyType(), QStringLiteral("Tag")), QStringLiteral("<Tag version=\"1.0\"/>"));
}

void GeometryTest::polygonIsJudged_data()
{
    QTest::addColumn<std::vector<int>>("numbers");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("problems");
    const QString v1 = QStringLiteral("1.0");
    const QString illegal = QStringLiteral("Illegal numbering.\n");
    const QString negative = QStringLiteral("+++ in XmlCoordinateType Begin:\n"
                                            "(XmlNumCoordType) Number attribute too small (min. 0)\n"
                                            "--- in XmlCoordinateType End\n");
    using Numbers = std::vector<int>;
    QTest::newRow("none") << Numbers{} << v1 << QString();
    QTest::newRow("0") << Numbers{0} << v1 << QString();
    QTest::newRow("0, 1, 2") << Numbers{0, 1, 2} << v1 << QString();
    QTest::newRow("with gaps") << Numbers{3, 70, 2147483647} << v1 << QString();
    QTest::newRow("-1") << Numbers{-1} << v1 << negative + illegal;
    QTest::newRow("-2, nothing after it is judged") << Numbers{-2, -3, 1} << v1 << negative + illegal;
    QTest::newRow("0, 0") << Numbers{0, 0} << v1 << illegal;
    QTest::newRow("1, 1") << Numbers{1, 1} << v1 << illegal;
    QTest::newRow("1, 1, 1, 1: said once") << Numbers{1, 1, 1, 1} << v1 << illegal;
    QTest::newRow("0, 1, 1, 2") << Numbers{0, 1, 1, 2} << v1 << illegal;
    QTest::newRow("falling") << Numbers{2, 1} << v1 << illegal;
    QTest::newRow("falling below 0") << Numbers{2, -1} << v1 << negative + illegal;
    QTest::newRow("none, another version")
        << Numbers{} << QStringLiteral("2.0") << QStringLiteral("Version \"2.0\" not supported\n");
    QTest::newRow("1, 1, another version")
        << Numbers{1, 1} << QStringLiteral("2.0") << QStringLiteral("Version \"2.0\" not supported\n") + illegal;
}

void GeometryTest::polygonIsJudged()
{
    QFETCH(std::vector<int>, numbers);
    QFETCH(QString, version);
    QFETCH(QString, problems);
    XmlAreaPolyType element = numbered(numbers);
    element.setVersion(version);
    const QString error = problems.isEmpty()
        ? QString()
        : QStringLiteral("+++ in XmlAreaPolyType Begin:\n") + problems + QStringLiteral("--- in XmlAreaPolyType End");
    QCOMPARE(element.isValid(), problems.isEmpty());
    QCOMPARE(element.syntaxError(), error);
    QCOMPARE(element.syntaxError(), error);
    QCOMPARE(numbersOf(element), numbers);
}

void GeometryTest::polygonJudgesEachVertex_data()
{
    QTest::addColumn<std::vector<int>>("numbers");
    QTest::addColumn<std::vector<int>>("latitudes");
    QTest::addColumn<QString>("problems");
    const QString bad =
        QStringLiteral("+++ in XmlCoordinateType Begin:\nLatitude out of bounds\n--- in XmlCoordinateType End\n");
    using Numbers = std::vector<int>;
    QTest::newRow("all good") << Numbers{1, 2, 3} << Numbers{1, 2, 3} << QString();
    QTest::newRow("the first") << Numbers{1, 2, 3} << Numbers{91, 2, 3} << bad;
    QTest::newRow("the last") << Numbers{1, 2, 3} << Numbers{1, 2, 91} << bad;
    QTest::newRow("two of them") << Numbers{1, 2, 3} << Numbers{91, 2, -91} << bad + bad;
    QTest::newRow("none after illegal numbering")
        << Numbers{1, 1, 2} << Numbers{91, -91, 91} << bad + bad + QStringLiteral("Illegal numbering.\n");
}

void GeometryTest::polygonJudgesEachVertex()
{
    QFETCH(std::vector<int>, numbers);
    QFETCH(std::vector<int>, latitudes);
    QFETCH(QString, problems);
    XmlAreaPolyType element = numbered(numbers);
    for (std::size_t i = 0; i < latitudes.size(); ++i)
        element.vertices().at(static_cast<int>(i))->setLatitude(latitudes[i]);
    QCOMPARE(element.isValid(), problems.isEmpty());
    QCOMPARE(element.syntaxError(),
             problems.isEmpty() ? QString()
                                : QStringLiteral("+++ in XmlAreaPolyType Begin:\n") + problems
                     + QStringLiteral("--- in XmlAreaPolyType End"));

    // So it does with the versions.
    XmlAreaPolyType versioned = numbered({0, 1});
    versioned.vertices().at(1)->setVersion(QStringLiteral("2.0"));
    QVERIFY(!versioned.isValid());
    QCOMPARE(versioned.syntaxError(),
             QStringLiteral("+++ in XmlAreaPolyType Begin:\n+++ in XmlCoordinateType Begin:\n"
                            "Version \"2.0\" not supported\n--- in XmlCoordinateType End\n"
                            "--- in XmlAreaPolyType End"));
}

void GeometryTest::polygonIsCopied_data()
{
    QTest::addColumn<std::vector<int>>("before");
    QTest::addColumn<std::vector<int>>("after");
    using Numbers = std::vector<int>;
    QTest::newRow("none to none") << Numbers{} << Numbers{};
    QTest::newRow("none to some") << Numbers{} << Numbers{1, 2, 3};
    QTest::newRow("some to none") << Numbers{1, 2, 3} << Numbers{};
    QTest::newRow("some to fewer") << Numbers{1, 2, 3} << Numbers{7};
    QTest::newRow("some to more, out of order") << Numbers{1} << Numbers{3, 1, 2};
}

void GeometryTest::polygonIsCopied()
{
    QFETCH(std::vector<int>, before);
    QFETCH(std::vector<int>, after);
    XmlAreaPolyType source = numbered(after);
    source.setVersion(QStringLiteral("2.0"));
    const XmlAreaPolyType copy(source);
    XmlAreaPolyType assigned = numbered(before);
    QCOMPARE(&(assigned = source), &assigned);
    const XmlAreaPolyType& itself = assigned;
    assigned = itself;
    for (int i = 0; i < source.vertices().size(); ++i) {
        QVERIFY(copy.vertices().at(i) != source.vertices().at(i));
        QVERIFY(assigned.vertices().at(i) != source.vertices().at(i));
        source.vertices().at(i)->setNumber(99);
    }
    source.reset();
    QCOMPARE(numbersOf(copy), after);
    QCOMPARE(numbersOf(assigned), after);
    QCOMPARE(copy.version(), QStringLiteral("2.0"));
    QCOMPARE(assigned.version(), QStringLiteral("2.0"));
}

void GeometryTest::polygonIsReset()
{
    Probe<XmlAreaPolyType> element;
    XmlNumCoordType bad;
    element.setVertices({&bad, &bad});
    element.setVersion(QStringLiteral("2.0"));
    QVERIFY(!element.syntaxError().isEmpty());
    element.reset();
    QCOMPARE(element.storedError(), QString());
    QVERIFY(element.vertices().isEmpty());
    QCOMPARE(element.version(), QStringLiteral("1.0"));
    QVERIFY(element.isValid());
    QCOMPARE(element.syntaxError(), QString());
}

void GeometryTest::verticesFindTheirPlaces_data()
{
    QTest::addColumn<std::vector<int>>("numbers");
    using Numbers = std::vector<int>;
    Numbers rising;
    Numbers falling;
    for (int i = 0; i < 50; ++i) {
        rising.push_back(i);
        falling.push_back(50 - i);
    }
    QTest::newRow("rising") << rising;
    QTest::newRow("falling") << falling;
    QTest::newRow("all the same") << Numbers(20, 7);
    QTest::newRow("pairs falling") << Numbers{3, 3, 2, 2, 1, 1, 0, 0};
    QTest::newRow("negative ones too") << Numbers{0, -1, 5, -9999, 5, -1};
    QTest::newRow("the extremes") << Numbers{2147483647, -2147483647 - 1, 0, 2147483647, -2147483647 - 1};
    QTest::newRow("random, many repeats") << randomNumbers(1, 100, 0, 9);
    QTest::newRow("random, few repeats") << randomNumbers(2, 100, -100, 100);
    QTest::newRow("random, large") << randomNumbers(3, 100, 0, 2000000000);
}

void GeometryTest::verticesFindTheirPlaces()
{
    QFETCH(std::vector<int>, numbers);
    Order expected;
    insertOneByOne(expected, numbers);

    const auto read = ElementTest::readFrom<XmlAreaPolyType>(polygonXml(numbers));
    QCOMPARE(orderOf(read), expected);

    std::vector<XmlNumCoordType> vertices;
    for (std::size_t i = 0; i < numbers.size(); ++i)
        vertices.push_back(vertex(numbers[i], 1.0, static_cast<double>(i)));
    QCOMPARE(orderOf(polygon(vertices)), expected);
}

void GeometryTest::verticesFindTheirPlacesAmongThoseHeld_data()
{
    QTest::addColumn<std::vector<int>>("held");
    QTest::addColumn<std::vector<int>>("numbers");
    using Numbers = std::vector<int>;
    QTest::newRow("between those in order") << Numbers{2, 4, 6, 8} << Numbers{9, 7, 5, 3, 1, 4, 8};
    QTest::newRow("behind equal ones") << Numbers{1, 1, 1} << Numbers{1, 1, 0};
    QTest::newRow("among those falling") << Numbers{9, 5, 1} << Numbers{4, 0, 9, 10, 8, 6, 5};
    QTest::newRow("one too great in the middle") << Numbers{1, 50, 2, 3} << Numbers{2, 3, 49, 50, 51};
    QTest::newRow("one too small in the middle") << Numbers{10, 20, 5, 30} << Numbers{5, 6, 15, 25, 35, 4};
    QTest::newRow("one too great in front") << Numbers{100, 1, 2, 3} << Numbers{1, 2, 3, 0, 100, 101};
    QTest::newRow("one too small at the end") << Numbers{1, 2, 3, 0} << Numbers{0, 1, 2, 3, 4, 0, -1};
    QTest::newRow("none that are new") << Numbers{3, 1, 2} << Numbers{};
    QTest::newRow("the extremes") << Numbers{-2147483647 - 1, 2147483647, -2147483647 - 1}
                                  << Numbers{2147483647, -2147483647 - 1, 0};
    for (unsigned seed = 0; seed < 40; ++seed) {
        const int greatest = seed % 2 == 0 ? 10 : 1000;
        QTest::newRow(qPrintable(QStringLiteral("random, number %1").arg(seed)))
            << randomNumbers(seed, 5 + static_cast<int>(seed), -greatest, greatest)
            << randomNumbers(1000 + seed, 40, -greatest, greatest);
    }
}

void GeometryTest::verticesFindTheirPlacesAmongThoseHeld()
{
    QFETCH(std::vector<int>, held);
    QFETCH(std::vector<int>, numbers);
    // The vertices held have latitudes from 1000 on.
    XmlAreaPolyType element = numbered(held);
    Order expected;
    for (std::size_t i = 0; i < held.size(); ++i) {
        const int latitude = 1000 + static_cast<int>(i);
        element.vertices().at(static_cast<int>(i))->setLatitude(latitude);
        expected.emplace_back(held[i], latitude);
    }
    insertOneByOne(expected, numbers);
    QCOMPARE(ElementTest::readError(element, polygonXml(numbers)), QString());
    QCOMPARE(orderOf(element), expected);
}

void GeometryTest::failedVertexFindsItsPlace_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<std::vector<int>>("numbers");
    using Numbers = std::vector<int>;
    QTest::newRow("without a number it has the default") << QStringLiteral("<Vertex/>") << Numbers{-9999, -5, 1, 5};
    QTest::newRow("with a text for a number it has 0")
        << QStringLiteral("<Vertex number=\"x1\"/>") << Numbers{-5, 0, 1, 5};
    QTest::newRow("without children it has its number")
        << QStringLiteral("<Vertex number=\"3\"/>") << Numbers{-5, 1, 3, 5};
    QTest::newRow("of another version it has its number")
        << QStringLiteral("<Vertex number=\"7\" version=\"2.0\"/>") << Numbers{-5, 1, 5, 7};
}

void GeometryTest::failedVertexFindsItsPlace()
{
    QFETCH(QString, xml);
    QFETCH(std::vector<int>, numbers);
    XmlAreaPolyType element = polygon({vertex(5), vertex(-5)});
    const QString all = QStringLiteral("<P>%1%2%3</P>").arg(vertexXml(1), xml, vertexXml(2));
    QVERIFY(!ElementTest::readError(element, all).isEmpty());
    QCOMPARE(numbersOf(element), numbers);
}

void GeometryTest::readingTimeDoesNotDependOnTheOrder()
{
    const int count = TestEffort::reduced(200000);
    std::vector<int> rising(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        rising[static_cast<std::size_t>(i)] = i;
    const std::vector<int> falling(rising.rbegin(), rising.rend());
    std::vector<int> mixed = rising;
    std::shuffle(mixed.begin(), mixed.end(), std::mt19937(1));

    // The processor time, so that others on the machine do not count.
    const auto timeToRead = [&rising](const std::vector<int>& numbers) {
        const QString xml = polygonXml(numbers);
        const std::clock_t begin = std::clock();
        const auto element = ElementTest::readFrom<XmlAreaPolyType>(xml);
        const std::clock_t end = std::clock();
        if (numbersOf(element) != rising)
            QTest::qFail("the vertices are out of order", __FILE__, __LINE__);
        return static_cast<double>(end - begin) / CLOCKS_PER_SEC;
    };
    const double risingTime = timeToRead(rising);
    const double fallingTime = timeToRead(falling);
    const double mixedTime = timeToRead(mixed);
    const double bound = 10.0 * std::max(0.1, std::min({risingTime, fallingTime, mixedTime}));
    QVERIFY2(risingTime < bound, qPrintable(QString::number(risingTime)));
    QVERIFY2(fallingTime < bound, qPrintable(QString::number(fallingTime)));
    QVERIFY2(mixedTime < bound, qPrintable(QString::number(mixedTime)));
}

QTEST_APPLESS_MAIN(GeometryTest)
#include "geometry_test.moc"
