#include "kinds.h"
#include "support/values.h"

#include <arvxml/stations.h>

#include <type_traits>

using namespace ArvXml;
using namespace ObjectTest;
using ElementTest::readFrom;
using TestValues::objName;

namespace {

const Kind& station()
{
    static const Kind kind = [] {
        Kind station = kindOf<XmlStationType>(QStringLiteral("XmlStationType"));
        station.name = "a station";
        station.completeSelections = 16;
        station.refusedStart = QStringLiteral("Unexpected token \"StartElement\": %1");
        station.refusedEnd = QStringLiteral("Unexpected token \"EndElement\": %1");
        station.children = {nameChild(),        signalPathChild(),  positionChild(),
                            rxParameterChild(), dfPrecisionChild(), interlinkChild()};
        // Here the receiver parameters and the precision are optional.
        for (int optional : {3, 4}) {
            station.children[optional].initial.clear();
            station.children[optional].initialProblem.clear();
        }
        station.gates = {
            {"Name", "Name SignalPath Position RxParameter DFprecision StationInterlink"},
            {"SignalPath", "SignalPath Position RxParameter DFprecision StationInterlink"},
            {"Position", "Position RxParameter DFprecision StationInterlink"},
            {"RxParameter", "RxParameter DFprecision StationInterlink"},
            {"DFprecision", "DFprecision StationInterlink"},
            {"StationInterlink", "StationInterlink"},
        };
        station.needed = {"Name", "Position"};
        return station;
    }();
    return kind;
}

const Kind& receiver()
{
    static const Kind kind = [] {
        Kind receiver = versionedKindOf<XmlReceiverType>(QStringLiteral("XmlReceiverType"));
        receiver.name = "a receiver";
        receiver.completeSelections = 2;
        receiver.children = {nameChild(), positionChild(), rxParameterChild(), interlinkChild()};
        receiver.gates = {
            {"Name", "Name Position RxParameter StationInterlink"},
            {"Position", "Position RxParameter StationInterlink"},
            {"RxParameter", "RxParameter StationInterlink"},
            {"StationInterlink", "StationInterlink"},
        };
        receiver.needed = {"Name", "Position", "RxParameter"};
        return receiver;
    }();
    return kind;
}

} // namespace

class StationsTest : public ObjectTest::KindsTest {
    Q_OBJECT

    QVector<const Kind*> kinds() const override { return {&station(), &receiver()}; }

private Q_SLOTS:
    // The station alone

    void stationAccessors()
    {
        static_assert(std::is_base_of_v<XmlElementBase, XmlStationType>);
        XmlStationType station;
        const XmlStationType& constant = station;
        static_assert(std::is_same_v<decltype(constant.objName()), const XmlObjNameType*>);
        static_assert(std::is_same_v<decltype(constant.signalPath()), const XmlSignalPathType*>);
        static_assert(std::is_same_v<decltype(constant.position()), const XmlCoordinateType*>);
        static_assert(std::is_same_v<decltype(constant.rxParam()), const XmlRxParamType*>);
        static_assert(std::is_same_v<decltype(constant.dfPrecision()), const XmlDfPrecisionType*>);
        static_assert(std::is_same_v<decltype(constant.interlink()), const XmlStationInterlinkType*>);
        QCOMPARE(constant.objName()->objName(), QString());
        QCOMPARE(constant.position()->longitude(), -999.999);
        QCOMPARE(constant.position()->latitude(), -999.999);
        const auto hasNoOptionalChild = [&constant] {
            return !constant.hasSignalPath() && !constant.signalPath() && !constant.hasRxParam() && !constant.rxParam()
                && !constant.hasDfPrecision() && !constant.dfPrecision() && !constant.hasInterlink()
                && !constant.interlink();
        };
        QVERIFY(hasNoOptionalChild());

        // What is always there is assigned into.
        const XmlObjNameType* const name = constant.objName();
        const XmlCoordinateType* const position = constant.position();
        station.setObjName(objName(QStringLiteral("Alpha")));
        station.setPosition(coordinate(10.5, 50.0));
        QCOMPARE(constant.objName(), name);
        QCOMPARE(name->objName(), QStringLiteral("Alpha"));
        QCOMPARE(constant.position(), position);
        QCOMPARE(position->longitude(), 10.5);
        QVERIFY(hasNoOptionalChild());
        QVERIFY(station.isValid());

        // What may be absent is made, and then assigned into.
        auto path = readFrom<XmlSignalPathType>(signalPathChild().xml);
        station.setSignalPath(path);
        QVERIFY(station.hasSignalPath());
        const XmlSignalPathType* const heldPath = constant.signalPath();
        QVERIFY(heldPath && heldPath != &path);
        path.setObjName(objName(QStringLiteral("Other")));
        QCOMPARE(heldPath->objName()->objName(), QStringLiteral("Path"));
        station.setSignalPath(path);
        QCOMPARE(constant.signalPath(), heldPath);
        QCOMPARE(heldPath->objName()->objName(), QStringLiteral("Other"));
        QVERIFY(!station.hasRxParam() && !station.hasDfPrecision() && !station.hasInterlink());

        auto parameters = readFrom<XmlRxParamType>(rxParameterChild().xml);
        station.setRxParam(parameters);
        QVERIFY(station.hasRxParam());
        const XmlRxParamType* const heldParameters = constant.rxParam();
        QVERIFY(heldParameters && heldParameters != &parameters);
        parameters.setVersion(QStringLiteral("3"));
        QCOMPARE(heldParameters->version(), QStringLiteral("1.0"));
        QCOMPARE(heldParameters->antennaHeight()->length(), 7);
        station.setRxParam(parameters);
        QCOMPARE(constant.rxParam(), heldParameters);
        QCOMPARE(heldParameters->version(), QStringLiteral("3"));
        QVERIFY(!station.hasDfPrecision() && !station.hasInterlink());

        XmlDfPrecisionType precision;
        precision.setPrecision(5);
        station.setDfPrecision(precision);
        QVERIFY(station.hasDfPrecision());
        const XmlDfPrecisionType* const heldPrecision = constant.dfPrecision();
        QVERIFY(heldPrecision && heldPrecision != &precision);
        precision.setPrecision(6);
        QCOMPARE(heldPrecision->precision(), 5);
        station.setDfPrecision(precision);
        QCOMPARE(constant.dfPrecision(), heldPrecision);
        QCOMPARE(heldPrecision->precision(), 6);
        QVERIFY(!station.hasInterlink());

        checkInterlinkAccessors(station);
        const XmlStationInterlinkType* const heldInterlink = constant.interlink();

        // Its own children may be handed to it.
        const QString xml = written(station, QStringLiteral("S"));
        station.setObjName(*station.objName());
        station.setSignalPath(*station.signalPath());
        station.setPosition(*station.position());
        station.setRxParam(*station.rxParam());
        station.setDfPrecision(*station.dfPrecision());
        station.setInterlink(*station.interlink());
        QCOMPARE(written(station, QStringLiteral("S")), xml);

        // Assignment assigns into the children that both have, and copies none of them twice.
        XmlStationType source;
        source.setInterlink(readFrom<XmlStationInterlinkType>(interlinkChild().xml));
        source.setRxParam(readFrom<XmlRxParamType>(rxParameterChild().xml));
        station = source;
        QCOMPARE(constant.interlink(), heldInterlink);
        QCOMPARE(heldInterlink->freq()->frequency_MHz(), 440.0);
        QCOMPARE(constant.rxParam(), heldParameters);
        QCOMPARE(heldParameters->version(), QStringLiteral("1.0"));
        QVERIFY(!station.hasSignalPath() && !station.signalPath());
        QVERIFY(!station.hasDfPrecision() && !station.dfPrecision());

        station.reset();
        QVERIFY(hasNoOptionalChild());
        QCOMPARE(constant.objName(), name); // these are reset in place
        QCOMPARE(name->objName(), QString());
        QCOMPARE(constant.position(), position);
        QCOMPARE(position->longitude(), -999.999);
        QVERIFY(source.interlink());
    }

    void aFullStation()
    {
        const QString xml = QStringLiteral(
            "<Station><Name>Alpha</Name><SignalPath version=\"1.0\"><Name>Path</Name><SINAD version=\"1.0\">12.000000"
            "</SINAD><Device version=\"1.0\"><Device version=\"1.0\"><DeviceCategory>Cable</DeviceCategory>"
            "<Name>Cable</Name><Frequencies version=\"1.0\"><Frequency version=\"1.0\" unit=\"MHz\">430.000000"
            "</Frequency></Frequencies><Attenuations version=\"1.0\"><Decibel version=\"1.0\" unit=\"dB\">3.000000"
            "</Decibel></Attenuations></Device></Device></SignalPath><Position version=\"1.0\"><Longitude>10.500000"
            "</Longitude><Latitude>50.000000</Latitude></Position><RxParameter version=\"1.0\">"
            "<AntennaHeight version=\"1.0\" unit=\"m\">7</AntennaHeight><RxThreshold version=\"1.0\" unit=\"dBm\">"
            "-80.000000000000000</RxThreshold></RxParameter><DFprecision version=\"1.0\" unit=\"\u00B0\">3"
            "</DFprecision><StationInterlink version=\"1.0\"><Frequency version=\"1.0\" unit=\"MHz\">440.000000"
            "</Frequency><%1 version=\"1.0\" unit=\"W\">5.000000000000000</%1><RxThreshold version=\"1.0\""
            " unit=\"dBm\">-90.000000000000000</RxThreshold><AntennaHeight version=\"1.0\" unit=\"m\">9"
            "</AntennaHeight></StationInterlink></Station>");
        const auto station = readFrom<XmlStationType>(xml.arg(QStringLiteral("TxPower")));
        QCOMPARE(written(station, QStringLiteral("Station")), xml.arg(QStringLiteral("Power")));
        QCOMPARE(station.signalPath()->sinad()->sinad(), 12.0);
        QCOMPARE(station.rxParam()->antennaHeight()->length(), 7);
        QCOMPARE(station.dfPrecision()->precision(), 3);
        QCOMPARE(station.interlink()->power()->power(), 5.0);
    }

    void aSmallStation()
    {
        const QString xml = QStringLiteral("<Station><Name>Alpha</Name><Position version=\"1.0\"><Longitude>10.500000"
                                           "</Longitude><Latitude>50.000000</Latitude></Position></Station>");
        auto station = readFrom<XmlStationType>(xml);
        QCOMPARE(written(station, QStringLiteral("Station")), xml);
        QVERIFY(station.isValid());
        QCOMPARE(station.syntaxError(), QString());
    }

    void aStationHasNoAttributes_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::newRow("the version of the others") << QStringLiteral("version=\"1.0\"");
        QTest::newRow("another version") << QStringLiteral("version=\"2.0\"");
        QTest::newRow("an empty version") << QStringLiteral("version=\"\"");
        QTest::newRow("something else") << QStringLiteral("number=\"1\" unit=\"m\"");
    }
    void aStationHasNoAttributes()
    {
        QFETCH(QString, attributes);
        const QString xml = QStringLiteral("<Station%1><Name>Alpha</Name><Position version=\"1.0\"><Longitude>"
                                           "10.500000</Longitude><Latitude>50.000000</Latitude></Position></Station>");
        auto station = readFrom<XmlStationType>(xml.arg(QLatin1Char(' ') + attributes));
        QVERIFY(station.isValid());
        QCOMPARE(station.syntaxError(), QString());
        QCOMPARE(written(station, QStringLiteral("Station")), xml.arg(QString()));
    }

    void problemsOfAStation()
    {
        auto element = readFrom<XmlStationType>(::station().document(::station().all(), ::station().all()));
        QVERIFY(!element.isValid());
        QCOMPARE(element.syntaxError(),
                 QStringLiteral("+++ in XmlStationType Begin:\n"
                                "+++ in XmlObjNameType Begin:\n"
                                "Object name too long (max. 128)\n"
                                "--- in XmlObjNameType End\n"
                                "+++ in XmlSignalPathType Begin:\n"
                                "+++ in XmlObjNameType Begin:\n"
                                "Object name too long (max. 128)\n"
                                "--- in XmlObjNameType End\n"
                                "--- in XmlSignalPathType End\n"
                                "+++ in XmlCoordinateType Begin:\n"
                                "Longitude out of bounds\n"
                                "--- in XmlCoordinateType End\n"
                                "+++ in XmlRxParamType Begin:\n"
                                "Version \"2.0\" not supported\n"
                                "--- in XmlRxParamType End\n"
                                "+++ in XmlDfPrecisionType Begin:\n"
                                "XmlDfPrecisionType: Illegal unit.\n"
                                "--- in XmlDfPrecisionType End\n"
                                "+++ in XmlStationInterlinkType Begin:\n"
                                "Version \"2.0\" not supported\n"
                                "--- in XmlStationInterlinkType End\n"
                                "--- in XmlStationType End"));
    }

    void whereAStationStarts()
    {
        const QString children = QStringLiteral("<Name>Beta</Name><Position version=\"1.0\"><Longitude>1.000000"
                                                "</Longitude><Latitude>2.000000</Latitude></Position></S>");
        const QString xml = QStringLiteral("<S>") + children;
        XmlStationType station;

        // The position is not looked at: the reading goes on from wherever the reader stands.
        QXmlStreamReader onText(QStringLiteral("<S>\n") + children);
        onText.readNextStartElement();
        QCOMPARE(onText.readNext(), QXmlStreamReader::Characters);
        station.processXml(onText, QStringLiteral("S"));
        QCOMPARE(onText.errorString(), QString());
        QCOMPARE(written(station, QStringLiteral("S")), xml);

        QXmlStreamReader onEnd(QStringLiteral("<P><Q></Q><Name>Gamma</Name></P>"));
        while (!onEnd.isEndElement())
            onEnd.readNext();
        station.processXml(onEnd, QStringLiteral("P"));
        QVERIFY(onEnd.errorString().startsWith(QStringLiteral("in XmlStationType (line 1, column ")));
        QVERIFY(onEnd.errorString().endsWith(QStringLiteral("): Unexpected token \"EndElement\": P.")));
        QCOMPARE(station.objName()->objName(), QStringLiteral("Gamma"));
        QCOMPARE(station.position()->longitude(), 1.0);

        QXmlStreamReader fresh(xml);
        station.processXml(fresh, QStringLiteral("S"));
        QVERIFY(fresh.errorString().startsWith(QStringLiteral("in XmlStationType (line 1, column ")));
        QVERIFY(fresh.errorString().endsWith(QStringLiteral("): Unexpected token \"StartDocument\".")));

        QXmlStreamReader onLastTag(QStringLiteral("<S>\n</S>"));
        while (!onLastTag.isEndElement())
            onLastTag.readNext();
        station.processXml(onLastTag, QStringLiteral("S"));
        QVERIFY(onLastTag.errorString().startsWith(QStringLiteral("in XmlStationType (line 2, column ")));
        QVERIFY(onLastTag.errorString().endsWith(QStringLiteral("): Unexpected token \"EndDocument\".")));

        // At the end there is nothing to go on from, and nothing to complain of.
        QXmlStreamReader atEnd(QStringLiteral("<S/>"));
        while (!atEnd.atEnd())
            atEnd.readNext();
        station.processXml(atEnd, QStringLiteral("S"));
        QVERIFY(!atEnd.hasError());
        QCOMPARE(station.objName()->objName(), QStringLiteral("Gamma"));

        // An earlier error of the reader stays.
        QXmlStreamReader failed(xml);
        failed.readNextStartElement();
        failed.raiseError(QStringLiteral("Enough."));
        station.processXml(failed, QStringLiteral("S"));
        QCOMPARE(failed.errorString(), QStringLiteral("Enough."));
        QCOMPARE(station.objName()->objName(), QStringLiteral("Gamma"));
    }

    void aStationReadAgain()
    {
        auto station = readFrom<XmlStationType>(::station().document(::station().all()));
        const XmlObjNameType* const name = station.objName();
        const XmlSignalPathType* const path = station.signalPath();
        const XmlCoordinateType* const position = station.position();
        const XmlRxParamType* const parameters = station.rxParam();
        const XmlDfPrecisionType* const precision = station.dfPrecision();
        const XmlStationInterlinkType* const interlink = station.interlink();

        // What a document leaves out stays as it is.
        QCOMPARE(readError(station, ::station().document({QStringLiteral("Name"), QStringLiteral("Position")})),
                 QString());
        QCOMPARE(written(station, QStringLiteral("S")), ::station().written(::station().all()));

        // All children are read into, the optional ones too: those without a text keep what they hold.
        QCOMPARE(readError(station,
                           QStringLiteral("<S><Name/><SignalPath><Name/><SINAD/>%1</SignalPath><Position><Longitude>3"
                                          "</Longitude><Latitude>4</Latitude></Position><RxParameter>"
                                          "<AntennaHeight unit=\"m\"/><RxThreshold unit=\"W\"/></RxParameter>"
                                          "<DFprecision unit=\"x\"/>%2</S>")
                               .arg(signalPathChild()
                                        .xml.section(QStringLiteral("</SINAD>"), 1)
                                        .remove(QStringLiteral("</SignalPath>")),
                                    emptyInterlink)),
                 QString());
        QCOMPARE(station.objName(), name);
        QCOMPARE(name->objName(), QStringLiteral("Alpha"));
        QCOMPARE(station.signalPath(), path);
        QCOMPARE(path->objName()->objName(), QStringLiteral("Path"));
        QCOMPARE(path->sinad()->sinad(), 12.0);
        QCOMPARE(station.position(), position);
        QCOMPARE(position->longitude(), 3.0);
        QCOMPARE(station.rxParam(), parameters);
        QCOMPARE(parameters->antennaHeight()->length(), 7);
        QCOMPARE(parameters->rxThres()->fieldstrength(), -80.0);
        QCOMPARE(parameters->rxThres()->unit(), QStringLiteral("W"));
        QCOMPARE(station.dfPrecision(), precision);
        QCOMPARE(precision->precision(), 3);
        QCOMPARE(precision->unit(), QStringLiteral("x"));
        QCOMPARE(station.interlink(), interlink);
        QCOMPARE(interlink->freq()->frequency_MHz(), 440.0);
        QCOMPARE(interlink->power()->power(), 5.0);
        QCOMPARE(interlink->rxThresh()->fieldstrength(), -90.0);
        QCOMPARE(interlink->antHgt()->length(), 9);
    }

    void aStationThatFails()
    {
        XmlStationType station;
        QCOMPARE(readError(station,
                           QStringLiteral("<S><Name>Alpha</Name><Position><Longitude>1</Longitude><Latitude>2"
                                          "</Latitude></Position><StationInterlink>\n<Frequency unit=\"MHz\">440"
                                          "</Frequency><Power/></StationInterlink></S>")),
                 QStringLiteral("in XmlStationInterlinkType (line 2, column 45): Unexpected element \"Power\"."));
        // What was read is kept, also of the child that failed.
        QCOMPARE(station.objName()->objName(), QStringLiteral("Alpha"));
        QCOMPARE(station.position()->latitude(), 2.0);
        QVERIFY(station.hasInterlink());
        QCOMPARE(station.interlink()->freq()->frequency_MHz(), 440.0);
        QVERIFY(!station.isValid());
    }

    // The receiver alone

    void receiverAccessors()
    {
        static_assert(std::is_base_of_v<XmlElementBase, XmlReceiverType>);
        XmlReceiverType receiver;
        const XmlReceiverType& constant = receiver;
        static_assert(std::is_same_v<decltype(constant.objName()), const XmlObjNameType*>);
        static_assert(std::is_same_v<decltype(constant.position()), const XmlCoordinateType*>);
        static_assert(std::is_same_v<decltype(constant.rxParam()), const XmlRxParamType*>);
        static_assert(std::is_same_v<decltype(constant.interlink()), const XmlStationInterlinkType*>);
        static_assert(std::is_same_v<decltype(constant.version()), QString>);
        const XmlObjNameType* const name = constant.objName();
        const XmlCoordinateType* const position = constant.position();
        const XmlRxParamType* const parameters = constant.rxParam();
        QCOMPARE(name->objName(), QString());
        QCOMPARE(position->longitude(), -999.999);
        QCOMPARE(parameters->rxThres()->fieldstrength(), -99999.999);
        QCOMPARE(constant.version(), QStringLiteral("1.0"));
        QVERIFY(!constant.hasInterlink() && !constant.interlink());

        receiver.setObjName(objName(QStringLiteral("Alpha")));
        receiver.setPosition(coordinate(10.5, 50.0));
        receiver.setRxParam(readFrom<XmlRxParamType>(rxParameterChild().xml));
        QCOMPARE(constant.objName(), name);
        QCOMPARE(name->objName(), QStringLiteral("Alpha"));
        QCOMPARE(constant.position(), position);
        QCOMPARE(position->latitude(), 50.0);
        QCOMPARE(constant.rxParam(), parameters);
        QCOMPARE(parameters->antennaHeight()->length(), 7);
        QVERIFY(receiver.isValid());
        QVERIFY(!constant.hasInterlink() && !constant.interlink());

        checkInterlinkAccessors(receiver);
        const XmlStationInterlinkType* const held = constant.interlink();

        const QString xml = written(receiver, QStringLiteral("S"));
        receiver.setObjName(*receiver.objName());
        receiver.setPosition(*receiver.position());
        receiver.setRxParam(*receiver.rxParam());
        receiver.setInterlink(*receiver.interlink());
        QCOMPARE(written(receiver, QStringLiteral("S")), xml);

        XmlReceiverType source;
        source.setInterlink(readFrom<XmlStationInterlinkType>(interlinkChild().xml));
        receiver = source;
        QCOMPARE(constant.interlink(), held); // assigned into
        QCOMPARE(held->freq()->frequency_MHz(), 440.0);

        receiver.setVersion(QStringLiteral("2.0"));
        receiver.reset();
        QVERIFY(!constant.hasInterlink() && !constant.interlink());
        QCOMPARE(constant.objName(), name); // these are reset in place
        QCOMPARE(constant.position(), position);
        QCOMPARE(constant.rxParam(), parameters);
        QCOMPARE(name->objName(), QString());
        QCOMPARE(position->latitude(), -999.999);
        QCOMPARE(parameters->antennaHeight()->length(), 0);
        QCOMPARE(constant.version(), QStringLiteral("1.0"));
    }

    void aFullReceiver()
    {
        const QString xml = QStringLiteral(
            "<Receiver version=\"1.0\"><Name>Alpha</Name><Position version=\"1.0\"><Longitude>10.500000</Longitude>"
            "<Latitude>50.000000</Latitude></Position><RxParameter version=\"1.0\"><AntennaHeight version=\"1.0\""
            " unit=\"m\">7</AntennaHeight><RxThreshold version=\"1.0\" unit=\"dBm\">-80.000000000000000</RxThreshold>"
            "</RxParameter><StationInterlink version=\"1.0\"><Frequency version=\"1.0\" unit=\"MHz\">440.000000"
            "</Frequency><%1 version=\"1.0\" unit=\"W\">5.000000000000000</%1><RxThreshold version=\"1.0\""
            " unit=\"dBm\">-90.000000000000000</RxThreshold><AntennaHeight version=\"1.0\" unit=\"m\">9"
            "</AntennaHeight></StationInterlink></Receiver>");
        const auto receiver = readFrom<XmlReceiverType>(xml.arg(QStringLiteral("TxPower")));
        QCOMPARE(written(receiver, QStringLiteral("Receiver")), xml.arg(QStringLiteral("Power")));
    }

    void problemsOfAReceiver()
    {
        auto element = readFrom<XmlReceiverType>(::receiver().document(::receiver().all(), ::receiver().all()));
        element.setVersion(QStringLiteral("3.0"));
        QVERIFY(!element.isValid());
        QCOMPARE(element.syntaxError(),
                 QStringLiteral("+++ in XmlReceiverType Begin:\n"
                                "Version \"3.0\" not supported\n"
                                "+++ in XmlObjNameType Begin:\n"
                                "Object name too long (max. 128)\n"
                                "--- in XmlObjNameType End\n"
                                "+++ in XmlCoordinateType Begin:\n"
                                "Longitude out of bounds\n"
                                "--- in XmlCoordinateType End\n"
                                "+++ in XmlRxParamType Begin:\n"
                                "Version \"2.0\" not supported\n"
                                "--- in XmlRxParamType End\n"
                                "+++ in XmlStationInterlinkType Begin:\n"
                                "Version \"2.0\" not supported\n"
                                "--- in XmlStationInterlinkType End\n"
                                "--- in XmlReceiverType End"));
    }

    void aReceiverReadAgain()
    {
        const QStringList required = ::receiver().required();
        auto receiver = readFrom<XmlReceiverType>(::receiver().document(::receiver().all()));
        const XmlObjNameType* const name = receiver.objName();
        const XmlCoordinateType* const position = receiver.position();
        const XmlRxParamType* const parameters = receiver.rxParam();
        const XmlStationInterlinkType* const interlink = receiver.interlink();

        // Without an interlink in the document, the one held stays.
        QCOMPARE(readError(receiver, ::receiver().document(required)), QString());
        QCOMPARE(receiver.interlink(), interlink);
        QCOMPARE(interlink->freq()->frequency_MHz(), 440.0);

        // With one, it is a new interlink that is read; everything else is read in place.
        const QString xml =
            QStringLiteral("<S><Name/><Position><Longitude>3</Longitude><Latitude>4</Latitude></Position><RxParameter>"
                           "<AntennaHeight unit=\"m\"/><RxThreshold unit=\"dBm\"/></RxParameter>%1</S>");
        checkNewInterlinkIsRead(receiver, xml);
        QCOMPARE(receiver.objName(), name);
        QCOMPARE(name->objName(), QStringLiteral("Alpha"));
        QCOMPARE(receiver.position(), position);
        QCOMPARE(position->longitude(), 3.0);
        QCOMPARE(receiver.rxParam(), parameters);
        QCOMPARE(parameters->antennaHeight()->length(), 7);
        QCOMPARE(parameters->rxThres()->fieldstrength(), -80.0);

        // Also when its reading fails.
        checkNewInterlinkThatFails(receiver, xml);

        // A refused interlink replaces nothing.
        receiver.setInterlink(readFrom<XmlStationInterlinkType>(interlinkChild().xml));
        QVERIFY(!readError(receiver,
                           ::receiver().document(
                               {QStringLiteral("Name"), QStringLiteral("Other"), QStringLiteral("StationInterlink")}))
                     .isEmpty());
        QCOMPARE(receiver.interlink()->antHgt()->length(), 9);
    }
};

QTEST_APPLESS_MAIN(StationsTest)
#include "moc_kinds.cpp"
#include "stations_test.moc"
