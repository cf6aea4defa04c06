#include "kinds.h"
#include "support/values.h"

#include <arvxml/areas.h>

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <type_traits>

using namespace ArvXml;
using namespace ObjectTest;
using ElementTest::readFrom;
using TestValues::objName;

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
        Kind area = versionedKindOf<XmlDeploymentAreaType>(QStringLiteral("XmlDeploymentAreaType"));
        area.name = "a deployment area";
        area.completeSelections = 4;
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
        Kind area = versionedKindOf<XmlAoiType>(QStringLiteral("XmlAoiType"));
        area.name = "an area of interest";
        area.completeSelections = 4;
        area.children = {nameChild(), areaRectChild(), areaPolyChild(), txParameterChild(), thresholdChild()};
        // A threshold outlives the resetting.
        area.reset = [](IXmlElement& element) {
            const std::unique_ptr<const XmlFieldstrengthType> kept(static_cast<const XmlAoiType&>(element).RxThres());
            element.reset();
        };
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
    const qint64 line = kind.all().indexOf(QStringLiteral("AreaPolygon")) + 3;
    QCOMPARE(readError(area, documentWith<T>(second)),
             kind.message(line, 14, QStringLiteral("Unexpected element \"AreaPolygon\"")));
    QVERIFY(area.hasAreaRect() && !area.hasAreaPoly());
    QCOMPARE(area.areaRect()->lowerRight()->latitude(), 4.0);
    QVERIFY(!readError(area, QStringLiteral("<S></S>")).isEmpty());
    QVERIFY(area.hasAreaRect() && !area.hasAreaPoly());
}

} // namespace

class AreasTest : public ObjectTest::KindsTest {
    Q_OBJECT

    QVector<const Kind*> kinds() const override { return {&deploymentArea(), &areaOfInterest()}; }

private Q_SLOTS:
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
#include "moc_kinds.cpp"
