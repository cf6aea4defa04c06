#include "support/elementtest.h"

#include <arvxml/areas.h>

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <type_traits>

using namespace ArvXml;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;

namespace {

/// The object whose end is looked for, and whether it has come.
const void* watched = nullptr;
bool watchedIsFreed = false;

void watch(const void* object)
{
    watched = object;
    watchedIsFreed = false;
}

void release(void* memory)
{
    if (memory && memory == watched) {
        watched = nullptr;
        watchedIsFreed = true;
    }
    std::free(memory);
}

} // namespace

// These stand in for the ones of the library, too, and so show what becomes of the children.
void* operator new(std::size_t size)
{
    if (void* memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return std::malloc(size > 0 ? size : 1);
}
void operator delete(void* memory) noexcept
{
    release(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    release(memory);
}

namespace {

/// A child of an element: how it may stand on the wire, and what is reported of it.
struct Child {
    QString tag;
    QString xml;            ///< a valid one
    QString written;        ///< the same, as it is written
    QString initial;        ///< what a new element writes; empty for nothing
    QString initialProblem; ///< what is reported of a new element; empty for nothing
    QString wrong;          ///< one that reads without an error, but is not valid
    QString problem;        ///< what is reported of that
};

/// A tag, and those after which it is refused.
struct Gate {
    const char* tag;
    const char* refusedAfter;
};

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

bool haveCommon(const QStringList& some, const QStringList& others)
{
    for (const QString& word : some) {
        if (others.contains(word))
            return true;
    }
    return false;
}

/// A kind of element, and how to deal with its elements without knowing their type.
struct Kind {
    QString className;
    QString refusedStart;
    QString refusedEnd;
    QString attributes;
    QVector<Child> children; ///< in the order of writing
    QVector<Gate> gates;
    QVector<const char*> needed; ///< the end tag needs one of each
    std::shared_ptr<IXmlElement> (*make)();
    std::shared_ptr<IXmlElement> (*copy)(const IXmlElement&);
    void (*assign)(IXmlElement&, const IXmlElement&);
    QString (*version)(const IXmlElement&);
    void (*setVersion)(IXmlElement&, const QString&);
    void (*reset)(IXmlElement&);

    const Child* child(const QString& tag) const
    {
        for (const Child& child : children) {
            if (child.tag == tag)
                return &child;
        }
        return nullptr;
    }

    QStringList tags() const
    {
        QStringList tags;
        for (const Child& child : children)
            tags.append(child.tag);
        return tags;
    }

    /// All selections of the children, each in the order of writing.
    QVector<QStringList> selections(const QStringList& among) const
    {
        QVector<QStringList> selections;
        for (int bits = 0; bits < (1 << among.size()); ++bits) {
            QStringList selection;
            for (int i = 0; i < among.size(); ++i) {
                if (bits & (1 << i))
                    selection.append(among.at(i));
            }
            // There is at most one area.
            if (!selection.contains(QStringLiteral("AreaRect")) || !selection.contains(QStringLiteral("AreaPolygon")))
                selections.append(selection);
        }
        return selections;
    }

    /// The children that a new element does not have.
    QStringList optional() const
    {
        QStringList tags;
        for (const Child& child : children) {
            if (child.initial.isEmpty())
                tags.append(child.tag);
        }
        return tags;
    }

    QStringList required() const
    {
        QStringList tags;
        for (const Child& child : children) {
            if (!child.initial.isEmpty())
                tags.append(child.tag);
        }
        return tags;
    }

    /// Everything a complete element may hold.
    QStringList all() const { return selections(tags()).last(); }

    /// Each child on a line of its own, valid unless it is among \a wrong.
    QString document(const QStringList& tags, const QStringList& wrong = {}, const QString& attribute = QString()) const
    {
        QString xml = QStringLiteral("<S") + attribute + QStringLiteral(">\n");
        for (const QString& tag : tags) {
            const Child* const held = child(tag);
            xml += !held ? QStringLiteral("<%1/>").arg(tag) : wrong.contains(tag) ? held->wrong : held->xml;
            xml += QLatin1Char('\n');
        }
        return xml + QStringLiteral("</S>");
    }

    /// How the reading of such a document ends by the table of gates; \a read gets the tags accepted.
    QString error(const QStringList& tags, QStringList* read) const
    {
        int line = 1;
        for (const QString& tag : tags) {
            ++line;
            bool open = false;
            for (const Gate& gate : gates) {
                if (tag == QLatin1String(gate.tag))
                    open = !haveCommon(words(gate.refusedAfter), *read);
            }
            if (!open) {
                const Child* const held = child(tag);
                const int column = held ? held->xml.indexOf(QLatin1Char('>')) + 1 : tag.size() + 3;
                return message(line, column, QString(refusedStart).replace(QStringLiteral("%1"), tag));
            }
            read->append(tag);
        }
        for (const char* group : needed) {
            if (!haveCommon(words(group), *read))
                return message(line + 1, 4, QString(refusedEnd).replace(QStringLiteral("%1"), QStringLiteral("S")));
        }
        return QString();
    }

    QString message(int line, int column, const QString& text) const
    {
        return QStringLiteral("in %1 (line %2, column %3): %4.")
            .arg(className, QString::number(line), QString::number(column), text);
    }

    /// How an element looks that holds these children.
    QString written(const QStringList& held) const
    {
        QString xml = QStringLiteral("<S") + attributes + QLatin1Char('>');
        for (const Child& child : children)
            xml += held.contains(child.tag) ? child.written : child.initial;
        return xml + QStringLiteral("</S>");
    }

    /// What is reported of an element that holds these children.
    QString problems(const QStringList& held, const QStringList& wrong, const QString& first = QString()) const
    {
        QStringList lines;
        lines.append(first);
        for (const Child& child : children) {
            lines.append(wrong.contains(child.tag)      ? child.problem
                             : held.contains(child.tag) ? QString()
                                                        : child.initialProblem);
        }
        if (haveCommon(held, words("AreaRect AreaPolygon")))
            lines.removeAll(QStringLiteral("Neither AreaRect nor AreaPolygon"));
        lines.removeAll(QString());
        return lines.isEmpty() ? QString() : block(className, lines.join(QLatin1Char('\n')));
    }

    static QString block(const QString& name, const QString& lines)
    {
        return QStringLiteral("+++ in %1 Begin:\n%2\n--- in %1 End").arg(name, lines);
    }
};

template <typename T>
Kind kindOf(const QString& className)
{
    Kind kind;
    kind.className = className;
    kind.refusedStart = QStringLiteral("Unexpected element \"%1\"");
    kind.refusedEnd = QStringLiteral("Unexpected token \"EndElement\"");
    kind.attributes = QStringLiteral(" version=\"1.0\"");
    kind.make = []() -> std::shared_ptr<IXmlElement> { return std::make_shared<T>(); };
    kind.copy = [](const IXmlElement& element) -> std::shared_ptr<IXmlElement> {
        return std::make_shared<T>(static_cast<const T&>(element));
    };
    kind.assign = [](IXmlElement& to, const IXmlElement& from) { static_cast<T&>(to) = static_cast<const T&>(from); };
    kind.version = [](const IXmlElement& element) { return static_cast<const T&>(element).version(); };
    kind.setVersion = [](IXmlElement& element, const QString& version) {
        static_cast<T&>(element).setVersion(version);
    };
    kind.reset = [](IXmlElement& element) {
        if constexpr (std::is_same_v<T, XmlAoiType>) {
            // A threshold outlives the resetting.
            const std::unique_ptr<const XmlFieldstrengthType> kept(static_cast<const T&>(element).RxThres());
            element.reset();
        } else {
            element.reset();
        }
    };
    return kind;
}

// Children, valid and with problems

Child nameChild()
{
    return {
        QStringLiteral("Name"),
        QStringLiteral("<Name>Alpha</Name>"),
        QStringLiteral("<Name>Alpha</Name>"),
        QStringLiteral("<Name></Name>"),
        QStringLiteral("+++ in XmlObjNameType Begin:\nObject name too short (min. 1).\n--- in XmlObjNameType End"),
        QStringLiteral("<Name>%1</Name>").arg(QString(129, QLatin1Char('n'))),
        QStringLiteral("+++ in XmlObjNameType Begin:\nObject name too long (max. 128)\n--- in XmlObjNameType End"),
    };
}

Child signalPathChild()
{
    const QString xml = QStringLiteral(
        "<SignalPath version=\"1.0\"><Name>%1</Name><SINAD version=\"1.0\">12.000000</SINAD><Device version=\"1.0\">"
        "<Device version=\"1.0\"><DeviceCategory>Cable</DeviceCategory><Name>Cable</Name><Frequencies version=\"1.0\">"
        "<Frequency version=\"1.0\" unit=\"MHz\">430.000000</Frequency></Frequencies><Attenuations version=\"1.0\">"
        "<Decibel version=\"1.0\" unit=\"dB\">3.000000</Decibel></Attenuations></Device></Device></SignalPath>");
    return {
        QStringLiteral("SignalPath"),
        xml.arg(QStringLiteral("Path")),
        xml.arg(QStringLiteral("Path")),
        QString(),
        QString(),
        xml.arg(QString(129, QLatin1Char('p'))),
        QStringLiteral("+++ in XmlSignalPathType Begin:\n"
                       "+++ in XmlObjNameType Begin:\n"
                       "Object name too long (max. 128)\n"
                       "--- in XmlObjNameType End\n"
                       "--- in XmlSignalPathType End"),
    };
}

Child txParameterChild()
{
    return {
        QStringLiteral("TxParameter"),
        QStringLiteral("<TxParameter><Frequency unit=\"MHz\">430</Frequency><TxPower unit=\"W\">10</TxPower>"
                       "<AntennaHeight unit=\"m\">8</AntennaHeight><Bandwidth unit=\"kHz\">25</Bandwidth>"
                       "</TxParameter>"),
        QStringLiteral("<TxParameter version=\"1.0\"><Frequency version=\"1.0\" unit=\"MHz\">430.000000</Frequency>"
                       "<TxPower version=\"1.0\" unit=\"W\">10.000000000000000</TxPower>"
                       "<AntennaHeight version=\"1.0\" unit=\"m\">8</AntennaHeight>"
                       "<Bandwidth version=\"1.0\" unit=\"kHz\">25</Bandwidth></TxParameter>"),
        QStringLiteral("<TxParameter version=\"1.0\"><Frequency version=\"1.0\" unit=\"MHz\">-9.900000</Frequency>"
                       "<TxPower version=\"1.0\" unit=\"W\">-9.900000000000000</TxPower>"
                       "<AntennaHeight version=\"1.0\" unit=\"m\">0</AntennaHeight>"
                       "<Bandwidth version=\"1.0\" unit=\"kHz\">-1</Bandwidth></TxParameter>"),
        QStringLiteral("+++ in XmlTxParamType Begin:\n"
                       "+++ in XmlFreqType Begin:\n"
                       "Illegal frequency.\n"
                       "--- in XmlFreqType End\n"
                       "+++ in XmlBandwidthType Begin:\n"
                       "XmlDfPrecisionType: Illegal precision.\n"
                       "--- in XmlBandwidthType End\n"
                       "--- in XmlTxParamType End"),
        QStringLiteral("<TxParameter version=\"2.0\"><Frequency unit=\"MHz\">430</Frequency>"
                       "<TxPower unit=\"W\">10</TxPower><AntennaHeight unit=\"m\">8</AntennaHeight>"
                       "<Bandwidth unit=\"kHz\">25</Bandwidth></TxParameter>"),
        QStringLiteral("+++ in XmlTxParamType Begin:\nVersion \"2.0\" not supported\n--- in XmlTxParamType End"),
    };
}

Child areaRectChild()
{
    return {
        QStringLiteral("AreaRect"),
        QStringLiteral("<AreaRect><UpperLeft><Longitude>8</Longitude><Latitude>51</Latitude></UpperLeft>"
                       "<LowerRight><Longitude>9</Longitude><Latitude>50</Latitude></LowerRight></AreaRect>"),
        QStringLiteral("<AreaRect version=\"1.0\">"
                       "<UpperLeft version=\"1.0\"><Longitude>8.000000</Longitude><Latitude>51.000000</Latitude>"
                       "</UpperLeft><LowerRight version=\"1.0\"><Longitude>9.000000</Longitude>"
                       "<Latitude>50.000000</Latitude></LowerRight></AreaRect>"),
        QString(),
        QStringLiteral("Neither AreaRect nor AreaPolygon"),
        QStringLiteral("<AreaRect><UpperLeft><Longitude>-180.5</Longitude><Latitude>51</Latitude></UpperLeft>"
                       "<LowerRight><Longitude>9</Longitude><Latitude>50</Latitude></LowerRight></AreaRect>"),
        QStringLiteral("+++ in XmlAreaRectType Begin:\n"
                       "+++ in XmlCoordinateType Begin:\n"
                       "Longitude out of bounds\n"
                       "--- in XmlCoordinateType End\n"
                       "--- in XmlAreaRectType End"),
    };
}

Child areaPolyChild()
{
    return {
        QStringLiteral("AreaPolygon"),
        QStringLiteral("<AreaPolygon><Vertex number=\"0\"><Longitude>8</Longitude><Latitude>50</Latitude></Vertex>"
                       "<Vertex number=\"1\"><Longitude>9</Longitude><Latitude>50</Latitude></Vertex>"
                       "<Vertex number=\"2\"><Longitude>9</Longitude><Latitude>51</Latitude></Vertex></AreaPolygon>"),
        QStringLiteral("<AreaPolygon version=\"1.0\">"
                       "<Vertex version=\"1.0\" number=\"0\"><Longitude>8.000000</Longitude>"
                       "<Latitude>50.000000</Latitude></Vertex>"
                       "<Vertex version=\"1.0\" number=\"1\"><Longitude>9.000000</Longitude>"
                       "<Latitude>50.000000</Latitude></Vertex>"
                       "<Vertex version=\"1.0\" number=\"2\"><Longitude>9.000000</Longitude>"
                       "<Latitude>51.000000</Latitude></Vertex></AreaPolygon>"),
        QString(),
        QString(),
        QStringLiteral("<AreaPolygon><Vertex number=\"0\"><Longitude>8</Longitude><Latitude>50</Latitude></Vertex>"
                       "<Vertex number=\"1\"><Longitude>9</Longitude><Latitude>50</Latitude></Vertex>"
                       "<Vertex number=\"1\"><Longitude>9</Longitude><Latitude>51</Latitude></Vertex></AreaPolygon>"),
        QStringLiteral("+++ in XmlAreaPolyType Begin:\nIllegal numbering.\n--- in XmlAreaPolyType End"),
    };
}

Child heightChild()
{
    return {
        QStringLiteral("AntennaHeight"),
        QStringLiteral("<AntennaHeight unit=\"m\">7</AntennaHeight>"),
        QStringLiteral("<AntennaHeight version=\"1.0\" unit=\"m\">7</AntennaHeight>"),
        QStringLiteral("<AntennaHeight version=\"1.0\" unit=\"m\">0</AntennaHeight>"),
        QString(),
        QStringLiteral("<AntennaHeight unit=\"km\">6</AntennaHeight>"),
        QStringLiteral("+++ in XmlLengthType Begin:\nIllegal unit (must be \"m\").\n--- in XmlLengthType End"),
    };
}

Child thresholdChild()
{
    return {
        QStringLiteral("RxThreshold"),
        QStringLiteral("<RxThreshold unit=\"dBm\">-80</RxThreshold>"),
        QStringLiteral("<RxThreshold version=\"1.0\" unit=\"dBm\">-80.000000000000000</RxThreshold>"),
        QStringLiteral("<RxThreshold version=\"1.0\" unit=\"dBm\">-99999.998999999996158</RxThreshold>"),
        QStringLiteral("+++ in XmlFieldstrengthType Begin:\nIllegal fieldstrength.\n--- in XmlFieldstrengthType End"),
        QStringLiteral("<RxThreshold unit=\"W\">-70</RxThreshold>"),
        QStringLiteral("+++ in XmlFieldstrengthType Begin:\nIllegal unit.\n--- in XmlFieldstrengthType End"),
    };
}

Child frequencyChild()
{
    return {
        QStringLiteral("Frequency"),
        QStringLiteral("<Frequency unit=\"MHz\">430</Frequency>"),
        QStringLiteral("<Frequency version=\"1.0\" unit=\"MHz\">430.000000</Frequency>"),
        QStringLiteral("<Frequency version=\"1.0\" unit=\"MHz\">-9.900000</Frequency>"),
        QStringLiteral("+++ in XmlFreqType Begin:\nIllegal frequency.\n--- in XmlFreqType End"),
        QStringLiteral("<Frequency version=\"2.0\" unit=\"MHz\">0</Frequency>"),
        QStringLiteral("+++ in XmlFreqType Begin:\n"
                       "Version \"2.0\" not supported\n"
                       "Illegal frequency.\n"
                       "--- in XmlFreqType End"),
    };
}

Child txPowerChild()
{
    return {
        QStringLiteral("TxPower"),
        QStringLiteral("<TxPower unit=\"W\">10</TxPower>"),
        QStringLiteral("<TxPower version=\"1.0\" unit=\"W\">10.000000000000000</TxPower>"),
        QStringLiteral("<TxPower version=\"1.0\" unit=\"W\">-9.900000000000000</TxPower>"),
        QString(),
        QStringLiteral("<TxPower unit=\"kW\">-61</TxPower>"),
        QStringLiteral("+++ in XmlPowerType Begin:\nIllegal power.\nIllegal unit.\n--- in XmlPowerType End"),
    };
}

const Kind& deploymentArea()
{
    static const Kind kind = [] {
        Kind area = kindOf<XmlDeploymentAreaType>(QStringLiteral("XmlDeploymentAreaType"));
        area.children = {signalPathChild(), nameChild(),      areaRectChild(),  areaPolyChild(),
                         heightChild(),     thresholdChild(), frequencyChild(), txPowerChild()};
        area.gates = {
            {"SignalPath", "SignalPath Name AreaRect AreaPolygon AntennaHeight RxThreshold Frequency TxPower"},
            {"Name", "Name AreaRect AreaPolygon AntennaHeight RxThreshold Frequency TxPower"},
            {"AreaRect", "AreaRect AreaPolygon AntennaHeight RxThreshold Frequency TxPower"},
            {"AreaPolygon", "AreaRect AreaPolygon AntennaHeight RxThreshold Frequency TxPower"},
            {"AntennaHeight", "AntennaHeight RxThreshold Frequency TxPower"},
            {"RxThreshold", "RxThreshold Frequency TxPower"},
            {"Frequency", "Frequency TxPower"},
            {"TxPower", "TxPower"},
        };
        area.needed = {"Name", "AreaRect AreaPolygon", "AntennaHeight", "RxThreshold", "Frequency", "TxPower"};
        return area;
    }();
    return kind;
}

const Kind& areaOfInterest()
{
    static const Kind kind = [] {
        Kind area = kindOf<XmlAoiType>(QStringLiteral("XmlAoiType"));
        area.children = {nameChild(), areaRectChild(), areaPolyChild(), txParameterChild(), thresholdChild()};
        // Here the threshold is optional.
        area.children[4].initial.clear();
        area.children[4].initialProblem.clear();
        area.gates = {
            {"AreaRect", "AreaRect AreaPolygon TxParameter RxThreshold"},
            {"Name", "Name AreaRect AreaPolygon TxParameter RxThreshold"},
            {"AreaPolygon", "AreaRect AreaPolygon TxParameter RxThreshold"},
            {"TxParameter", "TxParameter RxThreshold"},
            {"RxThreshold", "RxThreshold"},
        };
        area.needed = {"Name", "AreaRect AreaPolygon", "TxParameter"};
        return area;
    }();
    return kind;
}

QVector<const Kind*> allKinds()
{
    return {&deploymentArea(), &areaOfInterest()};
}

XmlObjNameType objName(const QString& text)
{
    XmlObjNameType name;
    name.setObjName(text);
    return name;
}

XmlFieldstrengthType threshold(double value)
{
    XmlFieldstrengthType threshold;
    threshold.setFieldstrength(value);
    return threshold;
}

XmlAreaRectType rectangle()
{
    return readFrom<XmlAreaRectType>(areaRectChild().xml);
}

XmlAreaPolyType polygon()
{
    return readFrom<XmlAreaPolyType>(areaPolyChild().xml);
}

/// The kind of areas of the type T.
template <typename T>
const Kind& kindFor()
{
    return std::is_same_v<T, XmlAoiType> ? areaOfInterest() : deploymentArea();
}

/// A complete document with \a area in the place of the area.
template <typename T>
QString documentWith(const QString& area)
{
    const Kind& kind = kindFor<T>();
    QStringList tags = kind.all();
    tags.removeAll(QStringLiteral("AreaRect"));
    QString xml = kind.document(tags);
    return xml.replace(areaPolyChild().xml, area);
}

// What both types do about their areas

template <typename T>
void checkAreaAccessors()
{
    T area;
    const T& constant = area;
    static_assert(std::is_base_of_v<XmlElementBase, T>);
    static_assert(std::is_same_v<decltype(constant.objName()), const XmlObjNameType*>);
    static_assert(std::is_same_v<decltype(constant.areaRect()), const XmlAreaRectType*>);
    static_assert(std::is_same_v<decltype(constant.areaPoly()), const XmlAreaPolyType*>);
    static_assert(std::is_same_v<decltype(constant.version()), QString>);
    QVERIFY(!constant.hasAreaRect() && !constant.areaRect());
    QVERIFY(!constant.hasAreaPoly() && !constant.areaPoly());

    const XmlObjNameType* const name = constant.objName();
    QCOMPARE(name->objName(), QString());
    area.setObjName(objName(QStringLiteral("Alpha")));
    QCOMPARE(constant.objName(), name);
    QCOMPARE(name->objName(), QStringLiteral("Alpha"));
    area.setObjName(*area.objName());
    QCOMPARE(name->objName(), QStringLiteral("Alpha"));

    // A rectangle is made, and then assigned into.
    XmlAreaRectType rect = rectangle();
    area.setAreaRect(rect);
    QVERIFY(constant.hasAreaRect() && !constant.hasAreaPoly() && !constant.areaPoly());
    const XmlAreaRectType* const heldRect = constant.areaRect();
    QVERIFY(heldRect && heldRect != &rect);
    rect.setVersion(QStringLiteral("2"));
    QCOMPARE(heldRect->version(), QStringLiteral("1.0"));
    QCOMPARE(heldRect->upperLeft()->longitude(), 8.0);
    area.setAreaRect(rect);
    QCOMPARE(constant.areaRect(), heldRect);
    QCOMPARE(heldRect->version(), QStringLiteral("2"));
    area.setAreaRect(*area.areaRect());
    QCOMPARE(heldRect->upperLeft()->longitude(), 8.0);

    // A polygon takes its place, and the other way round.
    XmlAreaPolyType poly = polygon();
    watch(heldRect);
    area.setAreaPoly(poly);
    QVERIFY(watchedIsFreed);
    QVERIFY(constant.hasAreaPoly() && !constant.hasAreaRect() && !constant.areaRect());
    const XmlAreaPolyType* const heldPoly = constant.areaPoly();
    QVERIFY(heldPoly && heldPoly != &poly);
    poly.setVersion(QStringLiteral("3"));
    QCOMPARE(heldPoly->version(), QStringLiteral("1.0"));
    QCOMPARE(heldPoly->vertices().size(), 3);
    area.setAreaPoly(poly);
    QCOMPARE(constant.areaPoly(), heldPoly);
    QCOMPARE(heldPoly->version(), QStringLiteral("3"));
    area.setAreaPoly(*area.areaPoly());
    QCOMPARE(heldPoly->vertices().size(), 3);

    // Assignment assigns into the area that both have.
    T other;
    other.setAreaPoly(polygon());
    area = other;
    QCOMPARE(constant.areaPoly(), heldPoly);
    QCOMPARE(heldPoly->version(), QStringLiteral("1.0"));

    watch(heldPoly);
    area.setAreaRect(rectangle());
    QVERIFY(watchedIsFreed);
    QVERIFY(constant.hasAreaRect() && !constant.hasAreaPoly() && !constant.areaPoly());

    // It brings the area that the other has, and takes away the one that it has not.
    other = area;
    QVERIFY(other.hasAreaRect() && !other.hasAreaPoly());
    other = T();
    QVERIFY(!other.hasAreaRect() && !other.hasAreaPoly());

    area.reset();
    QVERIFY(!constant.hasAreaRect() && !constant.areaRect());
    area.setAreaPoly(polygon());
    area.reset();
    QVERIFY(!constant.hasAreaPoly() && !constant.areaPoly());
    QCOMPARE(constant.objName(), name); // reset in place
    QCOMPARE(name->objName(), QString());
}

template <typename T>
void checkReadingAreas()
{
    const Kind& kind = kindFor<T>();
    const QString rectXml = documentWith<T>(areaRectChild().xml);
    const QString polyXml = documentWith<T>(areaPolyChild().xml);

    // The one read removes the other.
    T area;
    area.setAreaPoly(polygon());
    watch(area.areaPoly());
    QCOMPARE(readError(area, rectXml), QString());
    QVERIFY(watchedIsFreed);
    QVERIFY(area.hasAreaRect() && !area.hasAreaPoly() && !area.areaPoly());
    QVERIFY(area.isValid());
    watch(area.areaRect());
    QCOMPARE(readError(area, polyXml), QString());
    QVERIFY(watchedIsFreed);
    QVERIFY(area.hasAreaPoly() && !area.hasAreaRect() && !area.areaRect());
    QVERIFY(area.isValid());
    QCOMPARE(written(area, QStringLiteral("S")).count(QStringLiteral("<Area")), 1);

    // One that is held is read into: the polygon keeps its vertices,
    const XmlAreaPolyType* const poly = area.areaPoly();
    watch(poly);
    QCOMPARE(readError(area, polyXml), QString());
    QVERIFY(!watchedIsFreed);
    QCOMPARE(area.areaPoly(), poly);
    QCOMPARE(poly->vertices().size(), 6);
    // the rectangle the corner that is not read.
    area.setAreaRect(rectangle());
    const XmlAreaRectType* const rect = area.areaRect();
    watch(rect);
    QVERIFY(readError(area,
                      documentWith<T>(QStringLiteral("<AreaRect><UpperLeft><Longitude>1</Longitude><Latitude>2"
                                                     "</Latitude></UpperLeft></AreaRect>")))
                .endsWith(QStringLiteral("): Unexpected token \"EndElement\": AreaRect.")));
    QVERIFY(!watchedIsFreed);
    QCOMPARE(area.areaRect(), rect);
    QCOMPARE(rect->upperLeft()->longitude(), 1.0);
    QCOMPARE(rect->lowerRight()->longitude(), 9.0);

    // There is but one area, too, when its reading fails.
    QVERIFY(!readError(area, documentWith<T>(QStringLiteral("<AreaPolygon></AreaPolygon>"))).isEmpty());
    QVERIFY(area.hasAreaPoly() && !area.hasAreaRect());
    QVERIFY(!readError(area, documentWith<T>(QStringLiteral("<AreaRect version=\"2.0\"/>"))).isEmpty());
    QVERIFY(area.hasAreaRect() && !area.hasAreaPoly());

    // One that is refused removes nothing, and a document without an area leaves the one held.
    area.setAreaRect(rectangle());
    const QString second = QStringLiteral("<AreaRect><UpperLeft><Longitude>1</Longitude><Latitude>2</Latitude>"
                                          "</UpperLeft><LowerRight><Longitude>3</Longitude><Latitude>4</Latitude>"
                                          "</LowerRight></AreaRect>\n<AreaPolygon/>");
    const int line = kind.all().indexOf(QStringLiteral("AreaPolygon")) + 3;
    QCOMPARE(readError(area, documentWith<T>(second)),
             kind.message(line, 14, QStringLiteral("Unexpected element \"AreaPolygon\"")));
    QVERIFY(area.hasAreaRect() && !area.hasAreaPoly());
    QCOMPARE(area.areaRect()->lowerRight()->latitude(), 4.0);
    QVERIFY(!readError(area, QStringLiteral("<S></S>")).isEmpty());
    QVERIFY(area.hasAreaRect() && !area.hasAreaPoly());
}

} // namespace

Q_DECLARE_METATYPE(const Kind*)

class AreasTest : public QObject {
    Q_OBJECT

    static void kinds()
    {
        QTest::addColumn<const Kind*>("kind");
        QTest::addColumn<int>("completeSelections"); // with everything that is required
        QTest::newRow("a deployment area") << &deploymentArea() << 4;
        QTest::newRow("an area of interest") << &areaOfInterest() << 4;
    }
    static void versionedKinds()
    {
        QTest::addColumn<const Kind*>("kind");
        QTest::newRow("a deployment area") << &deploymentArea();
        QTest::newRow("an area of interest") << &areaOfInterest();
    }

private Q_SLOTS:
    // What all of them do

    void aNewOne_data() { kinds(); }
    void aNewOne()
    {
        QFETCH(const Kind*, kind);
        const auto element = kind->make();
        QCOMPARE(written(*element, QStringLiteral("S")), kind->written({}));
        QVERIFY(!element->isValid());
        const QString problems = kind->problems({}, {});
        QCOMPARE(element->syntaxError(), problems);
        QCOMPARE(element->syntaxError(), problems); // not added up
        QString other = kind->written({});
        other.replace(0, 2, QStringLiteral("<Other")).chop(4);
        QCOMPARE(written(*element, QStringLiteral("Other")), other + QStringLiteral("</Other>"));
    }

    void order_data()
    {
        QTest::addColumn<const Kind*>("kind");
        QTest::addColumn<QStringList>("start");
        for (const Kind* kind : allKinds()) {
            const QStringList tags = kind->tags() << QStringLiteral("Other");
            for (const QString& first : tags) {
                const QString alone = QStringLiteral("%1: %2").arg(kind->className, first);
                QTest::newRow(qPrintable(alone)) << kind << QStringList{first};
                for (const QString& second : tags) {
                    const QString both = QStringLiteral("%1, then %2").arg(alone, second);
                    QTest::newRow(qPrintable(both)) << kind << QStringList{first, second};
                }
            }
        }
    }
    void order()
    {
        QFETCH(const Kind*, kind);
        QFETCH(QStringList, start);
        // Alone, and with any other child behind it.
        QStringList ends = kind->tags();
        ends.append(QString());
        for (const QString& end : qAsConst(ends)) {
            QStringList tags = start;
            if (!end.isEmpty())
                tags.append(end);
            QStringList read;
            const QString error = kind->error(tags, &read);
            const auto element = kind->make();
            QCOMPARE(readError(*element, kind->document(tags)), error);
            // What was accepted has been read.
            QCOMPARE(written(*element, QStringLiteral("S")), kind->written(read));
            QCOMPARE(element->syntaxError(), kind->problems(read, {}));
            // Whether a child may come is asked anew in each reading.
            QCOMPARE(readError(*element, kind->document(tags)), error);
        }
    }

    void selection_data() { kinds(); }
    void selection()
    {
        QFETCH(const Kind*, kind);
        int complete = 0;
        const QVector<QStringList> selections = kind->selections(kind->tags());
        for (const QStringList& tags : selections) {
            QStringList read;
            const QString error = kind->error(tags, &read);
            QCOMPARE(read, tags);
            const auto element = kind->make();
            QCOMPARE(readError(*element, kind->document(tags)), error);
            QCOMPARE(written(*element, QStringLiteral("S")), kind->written(tags));
            QCOMPARE(element->isValid(), kind->problems(tags, {}).isEmpty());
            QCOMPARE(element->syntaxError(), kind->problems(tags, {}));
            if (error.isEmpty())
                ++complete;
            // Once everything was read, nothing more is accepted.
            for (const Child& child : kind->children) {
                if (tags != kind->all())
                    break;
                QStringList more = tags;
                more.append(child.tag);
                const int line = more.size() + 1;
                const int column = child.xml.indexOf(QLatin1Char('>')) + 1;
                QCOMPARE(
                    readError(*kind->make(), kind->document(more)),
                    kind->message(line, column, QString(kind->refusedStart).replace(QStringLiteral("%1"), child.tag)));
            }
        }
        QFETCH(int, completeSelections);
        QCOMPARE(complete, completeSelections);
    }

    void letterCase_data() { kinds(); }
    void letterCase()
    {
        QFETCH(const Kind*, kind);
        for (const Child& child : kind->children) {
            const QString tag = child.tag.toUpper();
            QCOMPARE(readError(*kind->make(), QStringLiteral("<S>\n<%1></%1></S>").arg(tag)),
                     kind->message(2, tag.size() + 2, QString(kind->refusedStart).replace(QStringLiteral("%1"), tag)));
        }
    }

    void whatIsIgnored_data() { kinds(); }
    void whatIsIgnored()
    {
        QFETCH(const Kind*, kind);
        const auto element = kind->make();
        QString xml = kind->document(kind->all(), {}, QStringLiteral(" other=\"x\" Version=\"2.0\""));
        xml.replace(QStringLiteral("\n"), QStringLiteral("\ntext <!-- comment --><?target data?><![CDATA[1]]>\n"));
        QCOMPARE(readError(*element, xml), QString());
        QCOMPARE(written(*element, QStringLiteral("S")), kind->written(kind->all()));
    }

    void endTag_data() { kinds(); }
    void endTag()
    {
        QFETCH(const Kind*, kind);
        const auto element = kind->make();
        QXmlStreamReader reader(kind->document(kind->all()));
        reader.readNextStartElement();
        element->processXml(reader, QStringLiteral("s"));
        QCOMPARE(reader.errorString(),
                 kind->message(kind->all().size() + 2, 4,
                               QString(kind->refusedEnd).replace(QStringLiteral("%1"), QStringLiteral("S"))));
        QCOMPARE(written(*element, QStringLiteral("S")), kind->written(kind->all()));

        // The reader is left on the element's end tag.
        QXmlStreamReader inside(QStringLiteral("<P>") + kind->document(kind->all()) + QStringLiteral("<N/></P>"));
        inside.readNextStartElement();
        inside.readNextStartElement();
        kind->reset(*element);
        element->processXml(inside, QStringLiteral("S"));
        QVERIFY(!inside.hasError());
        QVERIFY(inside.isEndElement());
        QCOMPARE(inside.name().toString(), QStringLiteral("S"));
        QVERIFY(inside.readNextStartElement());
        QCOMPARE(inside.name().toString(), QStringLiteral("N"));
    }

    void cutOff_data() { kinds(); }
    void cutOff()
    {
        QFETCH(const Kind*, kind);
        const auto element = kind->make();
        QString xml = kind->document(kind->all());
        xml.chop(4);
        QCOMPARE(readError(*element, xml), QStringLiteral("Premature end of document."));
        QCOMPARE(written(*element, QStringLiteral("S")), kind->written(kind->all()));
    }

    void judgement_data() { kinds(); }
    void judgement()
    {
        QFETCH(const Kind*, kind);
        const QVector<QStringList> selections = kind->selections(kind->optional());
        for (const QStringList& optional : selections) {
            const QStringList held = kind->required() + optional;
            QStringList tags;
            for (const Child& child : kind->children) {
                if (held.contains(child.tag))
                    tags.append(child.tag);
            }
            QStringList ignored;
            if (!kind->error(tags, &ignored).isEmpty())
                continue;
            const auto valid = kind->make();
            QCOMPARE(readError(*valid, kind->document(tags)), QString());
            QVERIFY(valid->isValid());
            QCOMPARE(valid->syntaxError(), QString());

            const auto invalid = kind->make();
            QCOMPARE(readError(*invalid, kind->document(tags, tags)), QString());
            QVERIFY(!invalid->isValid());
            QCOMPARE(invalid->syntaxError(), kind->problems(tags, tags));
            QCOMPARE(invalid->syntaxError(), kind->problems(tags, tags));

            // Each child alone is enough.
            for (const QString& tag : qAsConst(tags)) {
                const auto element = kind->make();
                QCOMPARE(readError(*element, kind->document(tags, {tag})), QString());
                QVERIFY2(!element->isValid(), qPrintable(tag));
                QCOMPARE(element->syntaxError(), kind->problems(tags, {tag}));
                QVERIFY(element->syntaxError().contains(kind->child(tag)->problem));
            }
        }
    }

    void copies_data() { kinds(); }
    void copies()
    {
        QFETCH(const Kind*, kind);
        const auto fill = [kind](IXmlElement& element, const QStringList& optional, bool wrong) {
            const QStringList held = kind->required() + optional;
            QStringList tags;
            for (const Child& child : kind->children) {
                if (held.contains(child.tag))
                    tags.append(child.tag);
            }
            readError(element, kind->document(tags, wrong ? tags : QStringList()));
        };
        const QVector<QStringList> selections = kind->selections(kind->optional());
        for (const QStringList& sourceHas : selections) {
            const QString xml = kind->written(kind->required() + sourceHas);
            const auto source = kind->make();
            fill(*source, sourceHas, false);
            QCOMPARE(written(*source, QStringLiteral("S")), xml);
            const QString problems = source->syntaxError();

            QVector<std::shared_ptr<IXmlElement>> others{kind->copy(*source)};
            for (const QStringList& targetHas : selections) {
                others.append(kind->make());
                fill(*others.last(), targetHas, true);
                kind->assign(*others.last(), *source);
                QCOMPARE(written(*source, QStringLiteral("S")), xml);
            }
            others.append(kind->make());
            kind->assign(*others.last(), *source);
            kind->assign(*source, *source);
            QCOMPARE(written(*source, QStringLiteral("S")), xml);

            // The others are theirs alone, whatever becomes of the source.
            fill(*source, sourceHas, true);
            kind->reset(*source);
            for (const auto& other : qAsConst(others)) {
                QCOMPARE(written(*other, QStringLiteral("S")), xml);
                QCOMPARE(other->syntaxError(), problems);
            }
        }
    }

    void resetting_data() { kinds(); }
    void resetting()
    {
        QFETCH(const Kind*, kind);
        const auto element = kind->make();
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(readError(*element, kind->document(kind->all(), kind->all())), QString());
            QVERIFY(!element->syntaxError().isEmpty());
            kind->reset(*element);
            QCOMPARE(written(*element, QStringLiteral("S")), kind->written({}));
            QVERIFY(!element->isValid());
            QCOMPARE(element->syntaxError(), kind->problems({}, {}));
        }
        QCOMPARE(readError(*element, kind->document(kind->all())), QString());
        QVERIFY(element->isValid());
        QCOMPARE(element->syntaxError(), QString());
    }

    void errors_data()
    {
        QTest::addColumn<const Kind*>("kind");
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("error");
        const QString start = QStringLiteral("<S>\n");
        const QString name = QStringLiteral("  <Name>a</Name>\n");
        const QString end = QStringLiteral("</S>");
        const QString rect = areaRectChild().xml + QLatin1Char('\n');
        const QString poly = areaPolyChild().xml + QLatin1Char('\n');
        const QString height = heightChild().xml + QLatin1Char('\n');
        const Kind* kind = &deploymentArea();
        QTest::newRow("a deployment area with a polygon after the rectangle")
            << kind << start + name + rect + QStringLiteral("  <AreaPolygon version=\"1.0\"/>") + end
            << QStringLiteral("in XmlDeploymentAreaType (line 4, column 30): Unexpected element \"AreaPolygon\".");
        QTest::newRow("a deployment area with a rectangle after the polygon")
            << kind << start + name + poly + QStringLiteral("  <AreaRect/>") + end
            << QStringLiteral("in XmlDeploymentAreaType (line 4, column 13): Unexpected element \"AreaRect\".");
        QTest::newRow("a deployment area with two rectangles")
            << kind << start + name + rect + rect + end
            << QStringLiteral("in XmlDeploymentAreaType (line 4, column 10): Unexpected element \"AreaRect\".");
        QTest::newRow("a deployment area with the area before the name")
            << kind << start + rect + name + end
            << QStringLiteral("in XmlDeploymentAreaType (line 3, column 8): Unexpected element \"Name\".");
        QTest::newRow("a deployment area with the signal path after the name")
            << kind << start + name + QStringLiteral("  <SignalPath/>") + end
            << QStringLiteral("in XmlDeploymentAreaType (line 3, column 15): Unexpected element \"SignalPath\".");
        QTest::newRow("a deployment area with the area after the height")
            << kind << start + name + height + poly + end
            << QStringLiteral("in XmlDeploymentAreaType (line 4, column 13): Unexpected element \"AreaPolygon\".");
        QTest::newRow("a deployment area without an area")
            << kind
            << start + name + height + thresholdChild().xml + frequencyChild().xml + txPowerChild().xml
                + QLatin1Char('\n') + end
            << QStringLiteral("in XmlDeploymentAreaType (line 5, column 4): Unexpected token \"EndElement\".");
        QTest::newRow("an empty deployment area")
            << kind << QStringLiteral("<S/>")
            << QStringLiteral("in XmlDeploymentAreaType (line 1, column 4): Unexpected token \"EndElement\".");
        QTest::newRow("a deployment area of another version")
            << kind << QStringLiteral("<S\n  version=\"2.0\"><Name>a</Name></S>")
            << QStringLiteral("in XmlDeploymentAreaType (line 2, column 16): Version not supported: 2.0.");
        QTest::newRow("a deployment area with a signal path of another version")
            << kind << start + QStringLiteral("  <SignalPath version=\"2.0\"/>") + end
            << QStringLiteral("in XmlSignalPathType (line 2, column 29): Version not supported: 2.0.");
        QTest::newRow("a deployment area with a polygon of another version")
            << kind << start + name + QStringLiteral("  <AreaPolygon version=\"2\"/>") + end
            << QStringLiteral("in XmlAreaPolyType (line 3, column 28): Version not supported: 2.");
        QTest::newRow("a deployment area with a height that is no integer")
            << kind << start + name + rect + QStringLiteral("<AntennaHeight unit=\"m\">1.5</AntennaHeight>") + end
            << QStringLiteral("in XmlLengthType (line 4, column 28): Illegal value (must be numeric).");
        QTest::newRow("a deployment area with a threshold without a unit")
            << kind << start + name + rect + height + QStringLiteral("<RxThreshold>1</RxThreshold>") + end
            << QStringLiteral("in XmlFieldstrengthType (line 5, column 13): Missing attribute: \"unit\".");
        QTest::newRow("a deployment area with something unknown")
            << kind << start + name + QStringLiteral("<TxParameter/>") + end
            << QStringLiteral("in XmlDeploymentAreaType (line 3, column 14): Unexpected element \"TxParameter\".");
        kind = &areaOfInterest();
        const QString parameters = txParameterChild().xml + QLatin1Char('\n');
        QTest::newRow("an area of interest with a polygon after the rectangle")
            << kind << start + name + rect + QStringLiteral("  <AreaPolygon version=\"1.0\"/>") + end
            << QStringLiteral("in XmlAoiType (line 4, column 30): Unexpected element \"AreaPolygon\".");
        QTest::newRow("an area of interest with two polygons")
            << kind << start + name + poly + poly + end
            << QStringLiteral("in XmlAoiType (line 4, column 13): Unexpected element \"AreaPolygon\".");
        QTest::newRow("an area of interest with the area before the name")
            << kind << start + poly + name + end
            << QStringLiteral("in XmlAoiType (line 3, column 8): Unexpected element \"Name\".");
        QTest::newRow("an area of interest with the area after the parameters")
            << kind << start + name + parameters + rect + end
            << QStringLiteral("in XmlAoiType (line 4, column 10): Unexpected element \"AreaRect\".");
        QTest::newRow("an area of interest without an area")
            << kind << start + name + parameters + end
            << QStringLiteral("in XmlAoiType (line 4, column 4): Unexpected token \"EndElement\".");
        QTest::newRow("an area of interest without parameters")
            << kind << start + name + rect + thresholdChild().xml + QLatin1Char('\n') + end
            << QStringLiteral("in XmlAoiType (line 5, column 4): Unexpected token \"EndElement\".");
        QTest::newRow("an empty area of interest")
            << kind << QStringLiteral("<S/>")
            << QStringLiteral("in XmlAoiType (line 1, column 4): Unexpected token \"EndElement\".");
        QTest::newRow("an area of interest with a second threshold")
            << kind
            << start + name + rect + parameters + thresholdChild().xml + QStringLiteral("\n <RxThreshold/>") + end
            << QStringLiteral("in XmlAoiType (line 6, column 15): Unexpected element \"RxThreshold\".");
        QTest::newRow("an area of interest with a signal path")
            << kind << start + QStringLiteral("<SignalPath/>") + end
            << QStringLiteral("in XmlAoiType (line 2, column 13): Unexpected element \"SignalPath\".");
        QTest::newRow("an area of interest of another version")
            << kind << QStringLiteral("<S\n  version=\"1.1\"><Name>a</Name></S>")
            << QStringLiteral("in XmlAoiType (line 2, column 16): Version not supported: 1.1.");
        QTest::newRow("an area of interest with a polygon of two vertices")
            << kind
            << start + name
                + QStringLiteral("<AreaPolygon><Vertex number=\"0\"><Longitude>8</Longitude><Latitude>50</Latitude>"
                                 "</Vertex><Vertex number=\"1\"><Longitude>9</Longitude><Latitude>50</Latitude>"
                                 "</Vertex>\n</AreaPolygon>")
                + end
            << QStringLiteral("in XmlAreaPolyType (line 4, column 14): Unexpected token \"EndElement\": AreaPolygon.");
        QTest::newRow("an area of interest with a threshold that is no number")
            << kind
            << start + name + rect + parameters + QStringLiteral("<RxThreshold unit=\"dBm\">x</RxThreshold>") + end
            << QStringLiteral("in XmlFieldstrengthType (line 5, column 26): Illegal value (must be numeric).");
    }
    void errors()
    {
        QFETCH(const Kind*, kind);
        QFETCH(QString, xml);
        QFETCH(QString, error);
        const auto element = kind->make();
        QCOMPARE(readError(*element, xml), error);

        // The element is none the worse for it.
        QCOMPARE(element->isValid(), element->syntaxError().isEmpty());
        const QString left = written(*element, QStringLiteral("S"));
        QCOMPARE(written(*kind->copy(*element), QStringLiteral("S")), left);
        kind->reset(*element);
        QCOMPARE(written(*element, QStringLiteral("S")), kind->written({}));
        QCOMPARE(readError(*element, xml), error);
        QCOMPARE(written(*element, QStringLiteral("S")), left);
        kind->reset(*element);
        QCOMPARE(readError(*element, kind->document(kind->all())), QString());
        QCOMPARE(written(*element, QStringLiteral("S")), kind->written(kind->all()));
        QVERIFY(element->isValid());
    }

    // Versions and positions

    void versions_data() { versionedKinds(); }
    void versions()
    {
        QFETCH(const Kind*, kind);
        const auto element = kind->make();
        QCOMPARE(kind->version(*element), QStringLiteral("1.0"));
        kind->setVersion(*element, QStringLiteral("9"));
        QCOMPARE(kind->version(*element), QStringLiteral("9"));
        QVERIFY(written(*element, QStringLiteral("S")).startsWith(QStringLiteral("<S version=\"9\"><")));
        QCOMPARE(element->syntaxError(), kind->problems({}, {}, QStringLiteral("Version \"9\" not supported")));

        // Reading begins with "1.0".
        QCOMPARE(readError(*element, kind->document(kind->all())), QString());
        QCOMPARE(kind->version(*element), QStringLiteral("1.0"));
        QVERIFY(element->isValid());

        for (const QString& other : {QStringLiteral("2.0"), QStringLiteral("1"), QStringLiteral("1.00"),
                                     QStringLiteral(" 1.0"), QStringLiteral("1.1")}) {
            // Everything but the version is in order.
            kind->setVersion(*element, other);
            QVERIFY(!element->isValid());
            QCOMPARE(element->syntaxError(),
                     kind->problems(kind->all(), {}, QStringLiteral("Version \"%1\" not supported").arg(other)));
            const auto copy = kind->copy(*element);
            QCOMPARE(kind->version(*copy), other);
            kind->assign(*copy, *kind->make());
            QCOMPARE(kind->version(*copy), QStringLiteral("1.0"));
            kind->assign(*copy, *element);
            QCOMPARE(kind->version(*copy), other);

            // It is refused while reading, before anything else is read.
            const auto refused = kind->make();
            const QString attribute = QStringLiteral("\n version=\"%1\"").arg(other);
            QCOMPARE(readError(*refused, kind->document(kind->all(), {}, attribute)),
                     kind->message(2, attribute.size(), QStringLiteral("Version not supported: %1").arg(other)));
            QCOMPARE(kind->version(*refused), other);
            QCOMPARE(refused->syntaxError(),
                     kind->problems({}, {}, QStringLiteral("Version \"%1\" not supported").arg(other)));
            kind->setVersion(*refused, QStringLiteral("1.0"));
            QCOMPARE(written(*refused, QStringLiteral("S")), kind->written({}));

            kind->setVersion(*refused, other);
            refused->reset();
            QCOMPARE(kind->version(*refused), QStringLiteral("1.0"));
        }
        for (const QString& attribute :
             {QString(), QStringLiteral(" version=\"\""), QStringLiteral(" version=\"1.0\"")}) {
            const auto accepted = kind->make();
            kind->setVersion(*accepted, QStringLiteral("9"));
            QCOMPARE(readError(*accepted, kind->document(kind->all(), {}, attribute)), QString());
            QCOMPARE(kind->version(*accepted), QStringLiteral("1.0"));
        }
    }

    void positions_data() { versionedKinds(); }
    void positions()
    {
        QFETCH(const Kind*, kind);
        const auto element = kind->make();
        QCOMPARE(readError(*element, kind->document(kind->all())), QString());
        const auto check = [&](QXmlStreamReader& reader, int line, int column) {
            kind->setVersion(*element, QStringLiteral("9"));
            element->processXml(reader, QStringLiteral("S"));
            QCOMPARE(reader.errorString(), kind->message(line, column, QStringLiteral("Parse error (wrong position)")));
            QCOMPARE(kind->version(*element), QStringLiteral("1.0"));
            QCOMPARE(written(*element, QStringLiteral("S")), kind->written(kind->all())); // nothing was read
        };
        const QString xml = kind->document(kind->all(), kind->all(), QStringLiteral(" version=\"2.0\""));

        QXmlStreamReader fresh(xml);
        check(fresh, 1, 0);
        QXmlStreamReader onText(xml);
        onText.readNextStartElement();
        QCOMPARE(onText.readNext(), QXmlStreamReader::Characters);
        check(onText, 2, 1);
        QXmlStreamReader onEnd(QStringLiteral("<S>\n</S>"));
        while (!onEnd.isEndElement())
            onEnd.readNext();
        check(onEnd, 2, 4);
        QXmlStreamReader atEnd(QStringLiteral("<S>\n</S>"));
        while (!atEnd.atEnd())
            atEnd.readNext();
        check(atEnd, 2, 4);
    }

    // The choice of the area

    void areaAccessors()
    {
        checkAreaAccessors<XmlDeploymentAreaType>();
        checkAreaAccessors<XmlAoiType>();
    }

    void readingAreas()
    {
        checkReadingAreas<XmlDeploymentAreaType>();
        checkReadingAreas<XmlAoiType>();
    }

    void neitherArea()
    {
        XmlAoiType aoi;
        aoi.setObjName(objName(QStringLiteral("Alpha")));
        aoi.setTxParam(readFrom<XmlTxParamType>(txParameterChild().xml));
        QVERIFY(!aoi.isValid());
        QCOMPARE(aoi.syntaxError(),
                 QStringLiteral("+++ in XmlAoiType Begin:\nNeither AreaRect nor AreaPolygon\n--- in XmlAoiType End"));
        QCOMPARE(written(aoi, QStringLiteral("S")),
                 QStringLiteral("<S version=\"1.0\"><Name>Alpha</Name>%1</S>").arg(txParameterChild().written));
        // A new polygon has nothing wrong with it.
        aoi.setAreaPoly(XmlAreaPolyType());
        QVERIFY(aoi.isValid());
        QCOMPARE(aoi.syntaxError(), QString());
        aoi.setAreaRect(XmlAreaRectType());
        QVERIFY(!aoi.isValid());
        QVERIFY(!aoi.syntaxError().contains(QStringLiteral("Neither")));
        QVERIFY(aoi.syntaxError().startsWith(QStringLiteral(
            "+++ in XmlAoiType Begin:\n+++ in XmlAreaRectType Begin:\n+++ in XmlCoordinateType Begin:\n")));

        XmlDeploymentAreaType area;
        area.setObjName(objName(QStringLiteral("Alpha")));
        area.setRxThresh(threshold(-80.0));
        area.setTxFreq(readFrom<XmlFreqType>(frequencyChild().xml));
        QVERIFY(!area.isValid());
        QCOMPARE(area.syntaxError(),
                 QStringLiteral("+++ in XmlDeploymentAreaType Begin:\n"
                                "Neither AreaRect nor AreaPolygon\n"
                                "--- in XmlDeploymentAreaType End"));
        QVERIFY(!written(area, QStringLiteral("S")).contains(QStringLiteral("<Area")));
        area.setAreaPoly(XmlAreaPolyType());
        QVERIFY(area.isValid());
        QCOMPARE(area.syntaxError(), QString());
    }

    // The deployment area alone

    void deploymentAreaAccessors()
    {
        XmlDeploymentAreaType area;
        const XmlDeploymentAreaType& constant = area;
        static_assert(std::is_same_v<decltype(constant.signalPath()), const XmlSignalPathType*>);
        static_assert(std::is_same_v<decltype(constant.antHgt()), const XmlLengthType*>);
        static_assert(std::is_same_v<decltype(constant.rxThresh()), const XmlFieldstrengthType*>);
        static_assert(std::is_same_v<decltype(constant.txFreq()), const XmlFreqType*>);
        static_assert(std::is_same_v<decltype(constant.txPower()), const XmlPowerType*>);
        const XmlLengthType* const height = constant.antHgt();
        const XmlFieldstrengthType* const heldThreshold = constant.rxThresh();
        const XmlFreqType* const frequency = constant.txFreq();
        const XmlPowerType* const power = constant.txPower();
        QCOMPARE(height->length(), 0);
        QCOMPARE(heldThreshold->fieldstrength(), -99999.999);
        QCOMPARE(frequency->frequency_MHz(), -9.9);
        QCOMPARE(power->power(), -9.9);
        QCOMPARE(constant.version(), QStringLiteral("1.0"));
        QVERIFY(!constant.hasSignalPath() && !constant.signalPath());

        XmlLengthType givenHeight;
        givenHeight.setLength(7);
        area.setAngtHgt(givenHeight);
        area.setRxThresh(threshold(-80.0));
        area.setTxFreq(readFrom<XmlFreqType>(frequencyChild().xml));
        XmlPowerType givenPower;
        givenPower.setPower(10.0);
        area.setTxPower(givenPower);
        givenHeight.setLength(8);
        givenPower.setPower(11.0);
        QCOMPARE(constant.antHgt(), height); // assigned into
        QCOMPARE(height->length(), 7);
        QCOMPARE(constant.rxThresh(), heldThreshold);
        QCOMPARE(heldThreshold->fieldstrength(), -80.0);
        QCOMPARE(constant.txFreq(), frequency);
        QCOMPARE(frequency->frequency_MHz(), 430.0);
        QCOMPARE(constant.txPower(), power);
        QCOMPARE(power->power(), 10.0);

        auto path = readFrom<XmlSignalPathType>(signalPathChild().xml);
        area.setSignalPath(path);
        QVERIFY(constant.hasSignalPath());
        const XmlSignalPathType* const heldPath = constant.signalPath();
        QVERIFY(heldPath && heldPath != &path);
        path.setObjName(objName(QStringLiteral("Other")));
        QCOMPARE(heldPath->objName()->objName(), QStringLiteral("Path"));
        area.setSignalPath(path);
        QCOMPARE(constant.signalPath(), heldPath);
        QCOMPARE(heldPath->objName()->objName(), QStringLiteral("Other"));

        const QString xml = written(area, QStringLiteral("S"));
        area.setSignalPath(*area.signalPath());
        area.setAngtHgt(*area.antHgt());
        area.setRxThresh(*area.rxThresh());
        area.setTxFreq(*area.txFreq());
        area.setTxPower(*area.txPower());
        QCOMPARE(written(area, QStringLiteral("S")), xml);

        XmlDeploymentAreaType other;
        other.setSignalPath(readFrom<XmlSignalPathType>(signalPathChild().xml));
        area = other;
        QCOMPARE(constant.signalPath(), heldPath); // assigned into
        QCOMPARE(heldPath->objName()->objName(), QStringLiteral("Path"));
        QCOMPARE(constant.txPower(), power);
        QCOMPARE(power->power(), -9.9);

        area.setAngtHgt(givenHeight);
        area.setTxPower(givenPower);
        area.setVersion(QStringLiteral("2.0"));
        area.reset();
        QVERIFY(!constant.hasSignalPath() && !constant.signalPath());
        QCOMPARE(constant.antHgt(), height); // these are reset in place
        QCOMPARE(height->length(), 0);
        QCOMPARE(constant.rxThresh(), heldThreshold);
        QCOMPARE(constant.txFreq(), frequency);
        QCOMPARE(constant.txPower(), power);
        QCOMPARE(power->power(), -9.9);
        QCOMPARE(constant.version(), QStringLiteral("1.0"));
    }

    void aFullDeploymentArea()
    {
        const QString xml = QStringLiteral(
            "<DeploymentArea version=\"1.0\"><SignalPath version=\"1.0\"><Name>Path</Name><SINAD version=\"1.0\">"
            "12.000000</SINAD><Device version=\"1.0\"><Device version=\"1.0\"><DeviceCategory>Cable</DeviceCategory>"
            "<Name>Cable</Name><Frequencies version=\"1.0\"><Frequency version=\"1.0\" unit=\"MHz\">430.000000"
            "</Frequency></Frequencies><Attenuations version=\"1.0\"><Decibel version=\"1.0\" unit=\"dB\">3.000000"
            "</Decibel></Attenuations></Device></Device></SignalPath><Name>Alpha</Name>%1<AntennaHeight"
            " version=\"1.0\" unit=\"m\">7</AntennaHeight><RxThreshold version=\"1.0\" unit=\"dBm\">"
            "-80.000000000000000</RxThreshold><Frequency version=\"1.0\" unit=\"MHz\">430.000000</Frequency>"
            "<TxPower version=\"1.0\" unit=\"W\">10.000000000000000</TxPower></DeploymentArea>");
        for (const QString& area : {areaRectChild().written, areaPolyChild().written}) {
            const auto element = readFrom<XmlDeploymentAreaType>(xml.arg(area));
            QCOMPARE(written(element, QStringLiteral("DeploymentArea")), xml.arg(area));
        }
    }

    void problemsOfADeploymentArea()
    {
        const Kind& kind = deploymentArea();
        auto area = readFrom<XmlDeploymentAreaType>(kind.document(kind.all(), kind.all()));
        area.setVersion(QStringLiteral("3.0"));
        QVERIFY(!area.isValid());
        const QString problems = QStringLiteral("+++ in XmlDeploymentAreaType Begin:\n"
                                                "Version \"3.0\" not supported\n"
                                                "+++ in XmlSignalPathType Begin:\n"
                                                "+++ in XmlObjNameType Begin:\n"
                                                "Object name too long (max. 128)\n"
                                                "--- in XmlObjNameType End\n"
                                                "--- in XmlSignalPathType End\n"
                                                "+++ in XmlObjNameType Begin:\n"
                                                "Object name too long (max. 128)\n"
                                                "--- in XmlObjNameType End\n"
                                                "%1\n"
                                                "+++ in XmlLengthType Begin:\n"
                                                "Illegal unit (must be \"m\").\n"
                                                "--- in XmlLengthType End\n"
                                                "+++ in XmlFieldstrengthType Begin:\n"
                                                "Illegal unit.\n"
                                                "--- in XmlFieldstrengthType End\n"
                                                "+++ in XmlFreqType Begin:\n"
                                                "Version \"2.0\" not supported\n"
                                                "Illegal frequency.\n"
                                                "--- in XmlFreqType End\n"
                                                "+++ in XmlPowerType Begin:\n"
                                                "Illegal power.\n"
                                                "Illegal unit.\n"
                                                "--- in XmlPowerType End\n"
                                                "--- in XmlDeploymentAreaType End");
        QCOMPARE(area.syntaxError(),
                 problems.arg(QStringLiteral("+++ in XmlAreaPolyType Begin:\n"
                                             "Illegal numbering.\n"
                                             "--- in XmlAreaPolyType End")));
        area.setAreaRect(readFrom<XmlAreaRectType>(areaRectChild().wrong));
        QCOMPARE(area.syntaxError(),
                 problems.arg(QStringLiteral("+++ in XmlAreaRectType Begin:\n"
                                             "+++ in XmlCoordinateType Begin:\n"
                                             "Longitude out of bounds\n"
                                             "--- in XmlCoordinateType End\n"
                                             "--- in XmlAreaRectType End")));
        // Without an area, the line stands in its place.
        XmlDeploymentAreaType empty;
        empty.setVersion(QStringLiteral("3.0"));
        QCOMPARE(empty.syntaxError(),
                 QStringLiteral("+++ in XmlDeploymentAreaType Begin:\n"
                                "Version \"3.0\" not supported\n"
                                "+++ in XmlObjNameType Begin:\n"
                                "Object name too short (min. 1).\n"
                                "--- in XmlObjNameType End\n"
                                "Neither AreaRect nor AreaPolygon\n"
                                "+++ in XmlFieldstrengthType Begin:\n"
                                "Illegal fieldstrength.\n"
                                "--- in XmlFieldstrengthType End\n"
                                "+++ in XmlFreqType Begin:\n"
                                "Illegal frequency.\n"
                                "--- in XmlFreqType End\n"
                                "--- in XmlDeploymentAreaType End"));
    }

    void aDeploymentAreaReadAgain()
    {
        const Kind& kind = deploymentArea();
        auto area = readFrom<XmlDeploymentAreaType>(kind.document(kind.all()));
        const XmlSignalPathType* const path = area.signalPath();
        const XmlObjNameType* const name = area.objName();
        const XmlLengthType* const height = area.antHgt();
        const XmlFieldstrengthType* const heldThreshold = area.rxThresh();
        const XmlFreqType* const frequency = area.txFreq();
        const XmlPowerType* const power = area.txPower();

        // All are read in place, so what a document leaves out stays: the signal path with its SINAD, and
        QString pathXml = signalPathChild().xml;
        pathXml.replace(QStringLiteral("12.000000"), QString());
        const QString rest = areaRectChild().xml
            + QStringLiteral("<AntennaHeight unit=\"m\"/><RxThreshold unit=\"W\"/><Frequency unit=\"MHz\"/>"
                             "<TxPower unit=\"W\"/></S>");
        QCOMPARE(readError(area, QStringLiteral("<S>%1<Name/>%2").arg(pathXml, rest)), QString());
        QCOMPARE(area.signalPath(), path);
        QCOMPARE(path->sinad()->sinad(), 12.0);
        QCOMPARE(area.objName(), name);
        QCOMPARE(name->objName(), QStringLiteral("Alpha"));
        QCOMPARE(area.antHgt(), height);
        QCOMPARE(height->length(), 7);
        QCOMPARE(area.rxThresh(), heldThreshold);
        QCOMPARE(heldThreshold->fieldstrength(), -80.0);
        QCOMPARE(heldThreshold->unit(), QStringLiteral("W"));
        QCOMPARE(area.txFreq(), frequency);
        QCOMPARE(frequency->frequency_MHz(), 430.0);
        QCOMPARE(area.txPower(), power);
        QCOMPARE(power->power(), 10.0);
        // a signal path that is not there at all.
        QCOMPARE(readError(area, QStringLiteral("<S><Name/>%1").arg(rest)), QString());
        QCOMPARE(area.signalPath(), path);
    }

    // The area of interest alone

    void aoiAccessors()
    {
        XmlAoiType aoi;
        const XmlAoiType& constant = aoi;
        static_assert(std::is_same_v<decltype(constant.txParam()), const XmlTxParamType*>);
        static_assert(std::is_same_v<decltype(constant.RxThres()), const XmlFieldstrengthType*>);
        const XmlTxParamType* const parameters = constant.txParam();
        QCOMPARE(parameters->bandwidth()->bandwidth_khz(), -1.0);
        QCOMPARE(constant.version(), QStringLiteral("1.0"));
        QVERIFY(!constant.hasRxThreshold() && !constant.RxThres());

        auto given = readFrom<XmlTxParamType>(txParameterChild().xml);
        aoi.setTxParam(given);
        given.reset();
        QCOMPARE(constant.txParam(), parameters); // assigned into
        QCOMPARE(parameters->bandwidth()->bandwidth_khz(), 25.0);
        aoi.setTxParam(*aoi.txParam());
        QCOMPARE(parameters->bandwidth()->bandwidth_khz(), 25.0);
        QVERIFY(!constant.hasRxThreshold() && !constant.RxThres());

        // The threshold is made, and then assigned into.
        XmlFieldstrengthType first = threshold(-80.0);
        aoi.setRxThres(first);
        QVERIFY(constant.hasRxThreshold());
        const XmlFieldstrengthType* const held = constant.RxThres();
        QVERIFY(held && held != &first);
        first.setFieldstrength(-1.0);
        QCOMPARE(held->fieldstrength(), -80.0);
        aoi.setRxThres(threshold(-70.0));
        QCOMPARE(constant.RxThres(), held);
        QCOMPARE(held->fieldstrength(), -70.0);
        aoi.setRxThres(*aoi.RxThres());
        QCOMPARE(held->fieldstrength(), -70.0);

        XmlAoiType other;
        other.setRxThres(threshold(-60.0));
        aoi = other;
        QCOMPARE(constant.RxThres(), held); // assigned into
        QCOMPARE(held->fieldstrength(), -60.0);
        // Assigning one without a threshold frees the one held.
        watch(held);
        aoi = XmlAoiType();
        QVERIFY(watchedIsFreed);
        QVERIFY(!constant.hasRxThreshold() && !constant.RxThres());
    }

    void aFullAoi()
    {
        const QString xml = QStringLiteral(
            "<AOI version=\"1.0\"><Name>Alpha</Name>%1<TxParameter version=\"1.0\"><Frequency version=\"1.0\""
            " unit=\"MHz\">430.000000</Frequency><TxPower version=\"1.0\" unit=\"W\">10.000000000000000</TxPower>"
            "<AntennaHeight version=\"1.0\" unit=\"m\">8</AntennaHeight><Bandwidth version=\"1.0\" unit=\"kHz\">25"
            "</Bandwidth></TxParameter>%2</AOI>");
        const QString held =
            QStringLiteral("<RxThreshold version=\"1.0\" unit=\"dBm\">-80.000000000000000</RxThreshold>");
        for (const QString& area : {areaRectChild().written, areaPolyChild().written}) {
            for (const QString& threshold : {held, QString()}) {
                auto aoi = readFrom<XmlAoiType>(xml.arg(area, threshold));
                QCOMPARE(aoi.hasRxThreshold(), !threshold.isEmpty());
                QVERIFY(aoi.isValid());
                QCOMPARE(written(aoi, QStringLiteral("AOI")), xml.arg(area, threshold));
            }
        }
    }

    void problemsOfAnAoi()
    {
        const Kind& kind = areaOfInterest();
        auto aoi = readFrom<XmlAoiType>(kind.document(kind.all(), kind.all()));
        aoi.setVersion(QStringLiteral("3.0"));
        QVERIFY(!aoi.isValid());
        QCOMPARE(aoi.syntaxError(),
                 QStringLiteral("+++ in XmlAoiType Begin:\n"
                                "Version \"3.0\" not supported\n"
                                "+++ in XmlObjNameType Begin:\n"
                                "Object name too long (max. 128)\n"
                                "--- in XmlObjNameType End\n"
                                "+++ in XmlAreaPolyType Begin:\n"
                                "Illegal numbering.\n"
                                "--- in XmlAreaPolyType End\n"
                                "+++ in XmlTxParamType Begin:\n"
                                "Version \"2.0\" not supported\n"
                                "--- in XmlTxParamType End\n"
                                "+++ in XmlFieldstrengthType Begin:\n"
                                "Illegal unit.\n"
                                "--- in XmlFieldstrengthType End\n"
                                "--- in XmlAoiType End"));
    }

    void anAoiReadAgain()
    {
        const Kind& kind = areaOfInterest();
        auto aoi = readFrom<XmlAoiType>(kind.document(kind.all()));
        const XmlTxParamType* const parameters = aoi.txParam();
        const XmlFieldstrengthType* const held = aoi.RxThres();
        const QString xml =
            QStringLiteral("<S><Name/>%1<TxParameter><Frequency unit=\"MHz\"/><TxPower unit=\"W\"/><AntennaHeight"
                           " unit=\"m\"/><Bandwidth unit=\"kHz\"/></TxParameter>%2</S>");

        // Without a threshold in the document, the one held stays; the parameters are read in place.
        watch(held);
        QCOMPARE(readError(aoi, xml.arg(areaRectChild().xml, QString())), QString());
        QVERIFY(!watchedIsFreed);
        QCOMPARE(aoi.RxThres(), held);
        QCOMPARE(held->fieldstrength(), -80.0);
        QCOMPARE(aoi.objName()->objName(), QStringLiteral("Alpha"));
        QCOMPARE(aoi.txParam(), parameters);
        QCOMPARE(parameters->bandwidth()->bandwidth_khz(), 25.0);

        // With one, it is a new threshold that is read: it has nothing of the one held.
        watch(held);
        QCOMPARE(readError(aoi, xml.arg(areaRectChild().xml, QStringLiteral("<RxThreshold unit=\"dBm\"/>"))),
                 QString());
        QVERIFY(watchedIsFreed);
        QVERIFY(aoi.hasRxThreshold());
        QCOMPARE(aoi.RxThres()->fieldstrength(), -99999.999);

        // Also when its reading fails.
        XmlFieldstrengthType other = readFrom<XmlFieldstrengthType>(QStringLiteral("<T unit=\"W\">-50</T>"));
        aoi.setRxThres(other);
        watch(aoi.RxThres());
        QCOMPARE(readError(aoi, xml.arg(areaRectChild().xml, QStringLiteral("\n<RxThreshold/>"))),
                 QStringLiteral("in XmlFieldstrengthType (line 2, column 14): Missing attribute: \"unit\"."));
        QVERIFY(watchedIsFreed);
        QCOMPARE(aoi.RxThres()->fieldstrength(), -99999.999);
        QCOMPARE(aoi.RxThres()->unit(), QStringLiteral("dBm"));

        // One that is refused replaces nothing.
        aoi.setRxThres(other);
        QCOMPARE(readError(aoi, QStringLiteral("<S><Other/><RxThreshold unit=\"dBm\"/></S>")),
                 QStringLiteral("in XmlAoiType (line 1, column 11): Unexpected element \"Other\"."));
        QCOMPARE(aoi.RxThres()->fieldstrength(), -50.0);
    }

    void resettingAnAoi()
    {
        const Kind& kind = areaOfInterest();
        auto aoi = readFrom<XmlAoiType>(kind.document(kind.all()));
        aoi.setRxThres(readFrom<XmlFieldstrengthType>(QStringLiteral("<T version=\"2.0\" unit=\"W\">-50</T>")));
        aoi.setVersion(QStringLiteral("2.0"));
        const XmlObjNameType* const name = aoi.objName();
        const XmlTxParamType* const parameters = aoi.txParam();
        const XmlFieldstrengthType* const held = aoi.RxThres();
        watch(held);
        aoi.reset();
        QVERIFY(!aoi.hasRxThreshold() && !aoi.RxThres());
        QVERIFY(!aoi.hasAreaPoly() && !aoi.areaPoly());
        QCOMPARE(aoi.version(), QStringLiteral("1.0"));
        QCOMPARE(aoi.objName(), name); // these are reset in place
        QCOMPARE(name->objName(), QString());
        QCOMPARE(aoi.txParam(), parameters);
        QCOMPARE(parameters->bandwidth()->bandwidth_khz(), -1.0);

        // The threshold is no longer the area's, but it lives, with its defaults.
        QVERIFY(!watchedIsFreed);
        QCOMPARE(held->fieldstrength(), -99999.999);
        QCOMPARE(held->unit(), QStringLiteral("dBm"));
        QCOMPARE(held->version(), QStringLiteral("1.0"));
        aoi.setRxThres(threshold(-80.0)); // another one
        QVERIFY(aoi.RxThres() != held);
        QCOMPARE(held->fieldstrength(), -99999.999);
        delete held;
        QVERIFY(watchedIsFreed);
        QCOMPARE(aoi.RxThres()->fieldstrength(), -80.0);
    }

    void resettingAnAoiWithoutAThreshold()
    {
        const Kind& kind = areaOfInterest();
        XmlAoiType aoi;
        aoi.reset();
        QCOMPARE(written(aoi, QStringLiteral("S")), kind.written({}));
        const QStringList tags = {QStringLiteral("Name"), QStringLiteral("AreaRect"), QStringLiteral("TxParameter")};
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(readError(aoi, kind.document(tags)), QString());
            aoi.setVersion(QStringLiteral("2.0"));
            watch(aoi.areaRect());
            aoi.reset();
            QVERIFY(watchedIsFreed);
            QVERIFY(!aoi.hasRxThreshold() && !aoi.hasAreaRect() && !aoi.hasAreaPoly());
            QCOMPARE(written(aoi, QStringLiteral("S")), kind.written({}));
            QCOMPARE(aoi.syntaxError(), kind.problems({}, {}));
        }
    }

    void theEndOfAnAoi()
    {
        auto aoi = std::make_unique<XmlAoiType>();
        aoi->setRxThres(threshold(-80.0));
        watch(aoi->RxThres());
        aoi.reset();
        QVERIFY(watchedIsFreed);

        // The threshold of a copy is the copy's.
        XmlAoiType source;
        source.setRxThres(threshold(-80.0));
        aoi = std::make_unique<XmlAoiType>(source);
        QVERIFY(aoi->RxThres() != source.RxThres());
        watch(source.RxThres());
        aoi.reset();
        QVERIFY(!watchedIsFreed);
        QCOMPARE(source.RxThres()->fieldstrength(), -80.0);
    }
};

QTEST_APPLESS_MAIN(AreasTest)
#include "areas_test.moc"
