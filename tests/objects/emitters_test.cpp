#include "kinds.h"
#include "support/values.h"

#include <arvxml/emitters.h>

#include <limits>
#include <type_traits>

using namespace ArvXml;
using namespace ObjectTest;
using ElementTest::readFrom;
using TestValues::objName;

namespace {

const Kind& emitter()
{
    static const Kind kind = [] {
        Kind emitter = versionedKindOf<XmlEmitterType>(QStringLiteral("XmlEmitterType"));
        emitter.name = "an emitter";
        emitter.completeSelections = 1;
        emitter.children = {nameChild(), positionChild(), txParameterChild()};
        emitter.gates = {
            {"Position", "Position TxParameter"},
            {"Name", "Name Position TxParameter"},
            {"TxParameter", "TxParameter"},
        };
        emitter.needed = {"Name", "Position", "TxParameter"};
        return emitter;
    }();
    return kind;
}

const Kind& directionFinder()
{
    static const Kind kind = [] {
        Kind finder = versionedKindOf<XmlDfType>(QStringLiteral("XmlDfType"));
        finder.name = "a direction finder";
        finder.completeSelections = 2;
        finder.children = {nameChild(), positionChild(), rxParameterChild(), dfPrecisionChild(), interlinkChild()};
        finder.gates = {
            {"Position", "Position RxParameter DFprecision StationInterlink"},
            {"Name", "Name Position RxParameter DFprecision StationInterlink"},
            {"StationInterlink", "StationInterlink"},
            {"RxParameter", "RxParameter DFprecision StationInterlink"},
            {"DFprecision", "DFprecision StationInterlink"},
        };
        finder.needed = {"Name", "Position", "RxParameter", "DFprecision"};
        return finder;
    }();
    return kind;
}

QString precisionBlock(const QString& lines)
{
    return QStringLiteral("+++ in XmlDfPrecisionType Begin:\n%1\n--- in XmlDfPrecisionType End").arg(lines);
}

const QString illegalPrecision = QStringLiteral("XmlDfPrecisionType: Illegal precision.");
const QString illegalUnit = QStringLiteral("XmlDfPrecisionType: Illegal unit.");
const QString degree = QString(QChar(0x00B0));

} // namespace

class EmittersTest : public ObjectTest::KindsTest {
    Q_OBJECT

    QVector<const Kind*> kinds() const override { return {&emitter(), &directionFinder()}; }

private Q_SLOTS:
    // The precision

    void aNewPrecision()
    {
        static_assert(std::is_base_of_v<XmlElementBase, XmlDfPrecisionType>);
        static_assert(std::is_same_v<decltype(std::declval<const XmlDfPrecisionType&>().precision()), int>);
        static_assert(std::is_same_v<decltype(std::declval<const XmlDfPrecisionType&>().unit()), const QString&>);
        static_assert(std::is_same_v<decltype(std::declval<const XmlDfPrecisionType&>().version()), QString>);
        XmlDfPrecisionType precision;
        const auto check = [&precision] {
            QCOMPARE(precision.precision(), -2);
            QCOMPARE(precision.unit(), degree);
            QCOMPARE(precision.version(), QStringLiteral("1.0"));
            QVERIFY(!precision.isValid());
            QCOMPARE(precision.syntaxError(), precisionBlock(illegalPrecision));
            QCOMPARE(written(precision, QStringLiteral("D")),
                     QStringLiteral("<D version=\"1.0\" unit=\"\u00B0\">-2</D>"));
        };
        check();
        QCOMPARE(readError(precision, QStringLiteral("<D version=\"2.0\" unit=\"deg\">5</D>")), QString());
        precision.reset();
        check();
    }

    void precisions_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("valid");
        QTest::newRow("the least") << std::numeric_limits<int>::min() << QStringLiteral("-2147483648") << false;
        QTest::newRow("minus three") << -3 << QStringLiteral("-3") << false;
        QTest::newRow("the default") << -2 << QStringLiteral("-2") << false;
        QTest::newRow("the first valid one") << -1 << QStringLiteral("-1") << true;
        QTest::newRow("zero") << 0 << QStringLiteral("0") << true;
        QTest::newRow("three") << 3 << QStringLiteral("3") << true;
        QTest::newRow("more than a circle") << 361 << QStringLiteral("361") << true;
        QTest::newRow("a million") << 1234567 << QStringLiteral("1234567") << true;
        QTest::newRow("the greatest") << std::numeric_limits<int>::max() << QStringLiteral("2147483647") << true;
    }
    void precisions()
    {
        QFETCH(int, value);
        QFETCH(QString, text);
        QFETCH(bool, valid);
        const QString xml = QStringLiteral("<D version=\"1.0\" unit=\"\u00B0\">%1</D>").arg(text);

        XmlDfPrecisionType set;
        set.setPrecision(value);
        XmlDfPrecisionType read;
        QCOMPARE(readError(read, xml), QString());
        const XmlDfPrecisionType copied(set);
        XmlDfPrecisionType assigned;
        assigned.setPrecision(9);
        assigned = set;
        for (XmlDfPrecisionType precision : {set, read, copied, assigned}) {
            QCOMPARE(precision.precision(), value);
            QCOMPARE(precision.isValid(), valid);
            QCOMPARE(precision.syntaxError(), valid ? QString() : precisionBlock(illegalPrecision));
            QCOMPARE(written(precision, QStringLiteral("D")), xml);
        }
    }

    void readingAPrecision_data()
    {
        QTest::addColumn<QString>("xml"); // into a precision of 7 with the unit "x" and the version "9"
        QTest::addColumn<QString>("error");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("version");
        const QString numeric =
            QStringLiteral("in XmlDfPrecisionType (line 2, column %1): Illegal value (must be numeric).");
        const QString missing = QStringLiteral("in XmlDfPrecisionType (line %1): Missing attribute: \"unit\".");
        const QString one = QStringLiteral("1.0");
        QTest::newRow("with both attributes")
            << QStringLiteral("<D version=\"1.0\" unit=\"\u00B0\">3</D>") << QString() << 3 << degree << one;
        QTest::newRow("without a version")
            << QStringLiteral("<D unit=\"\u00B0\">-1</D>") << QString() << -1 << degree << one;
        QTest::newRow("with an empty version")
            << QStringLiteral("<D version=\"\" unit=\"\u00B0\">4</D>") << QString() << 4 << degree << one;
        QTest::newRow("another version is no error yet") << QStringLiteral("<D unit=\"\u00B0\" version=\"2.0\">4</D>")
                                                         << QString() << 4 << degree << QStringLiteral("2.0");
        QTest::newRow("another unit is no error yet")
            << QStringLiteral("<D unit=\"deg\">4</D>") << QString() << 4 << QStringLiteral("deg") << one;
        QTest::newRow("other attributes are ignored")
            << QStringLiteral("<D Version=\"2\" Unit=\"m\" unit=\"rad\">4</D>") << QString() << 4
            << QStringLiteral("rad") << one;
        QTest::newRow("without a unit") << QStringLiteral("<D>3</D>") << missing.arg(QStringLiteral("1, column 3")) << 7
                                        << QStringLiteral("x") << one;
        QTest::newRow("with an empty unit, on the second line")
            << QStringLiteral("<D\n unit=\"\">3</D>") << missing.arg(QStringLiteral("2, column 9")) << 7
            << QStringLiteral("x") << one;
        QTest::newRow("the version is read behind the missing unit")
            << QStringLiteral("<D version=\"3.0\">3</D>") << missing.arg(QStringLiteral("1, column 17")) << 7
            << QStringLiteral("x") << QStringLiteral("3.0");
        QTest::newRow("without a text") << QStringLiteral("<D unit=\"\u00B0\"/>") << QString() << 7 << degree << one;
        QTest::newRow("with an empty text")
            << QStringLiteral("<D unit=\"\u00B0\"></D>") << QString() << 7 << degree << one;
        QTest::newRow("out of range") << QStringLiteral("<D unit=\"\u00B0\">-3</D>") << QString() << -3 << degree
                                      << one;
        QTest::newRow("a comment divides the text; the last part counts")
            << QStringLiteral("<D unit=\"\u00B0\">1<!-- -->2<?pi x?></D>") << QString() << 2 << degree << one;
        QTest::newRow("a fraction") << QStringLiteral("<D unit=\"\u00B0\">\n2.5</D>") << numeric.arg(4) << -2 << degree
                                    << one;
        QTest::newRow("letters") << QStringLiteral("<D unit=\"\u00B0\">\nabc</D>") << numeric.arg(4) << -2 << degree
                                 << one;
        QTest::newRow("an exponent") << QStringLiteral("<D unit=\"\u00B0\">\n1e3</D>") << numeric.arg(4) << -2 << degree
                                     << one;
        QTest::newRow("hexadecimal") << QStringLiteral("<D unit=\"\u00B0\">\n0x1F</D>") << numeric.arg(5) << -2
                                     << degree << one;
        QTest::newRow("a digit of another base")
            << QStringLiteral("<D unit=\"\u00B0\">\n1A</D>") << numeric.arg(3) << -2 << degree << one;
        QTest::newRow("a leading zero is decimal, too")
            << QStringLiteral("<D unit=\"\u00B0\">010</D>") << QString() << 10 << degree << one;
        QTest::newRow("blanks alone") << QStringLiteral("<D unit=\"\u00B0\">\n </D>") << numeric.arg(2) << -2 << degree
                                      << one;
        QTest::newRow("too great") << QStringLiteral("<D unit=\"\u00B0\">\n2147483648</D>") << numeric.arg(11) << -2
                                   << degree << one;
        QTest::newRow("too small") << QStringLiteral("<D unit=\"\u00B0\">\n-2147483649</D>") << numeric.arg(12) << -2
                                   << degree << one;
        QTest::newRow("a number, then something else")
            << QStringLiteral("<D unit=\"\u00B0\">1<!--\n-->x</D>") << numeric.arg(5) << -2 << degree << one;
        QTest::newRow("an element inside")
            << QStringLiteral("<D unit=\"\u00B0\">5<Other/></D>")
            << QStringLiteral("in XmlDfPrecisionType (line 1, column 21): Unexpected token \"StartElement\".") << 5
            << degree << one;
        QTest::newRow("its own tag inside")
            << QStringLiteral("<D unit=\"\u00B0\">5<D>")
            << QStringLiteral("in XmlDfPrecisionType (line 1, column 16): Unexpected token \"StartElement\".") << 5
            << degree << one;
        QTest::newRow("blanks around the number")
            << QStringLiteral("<D unit=\"\u00B0\">\n 4 </D>") << QString() << 4 << degree << one;
        QTest::newRow("with a plus") << QStringLiteral("<D unit=\"\u00B0\">+4</D>") << QString() << 4 << degree << one;
        QTest::newRow("cut off") << QStringLiteral("<D unit=\"\u00B0\">")
                                 << QStringLiteral("Premature end of document.") << 7 << degree << one;
    }
    void readingAPrecision()
    {
        QFETCH(QString, xml);
        QFETCH(QString, error);
        QFETCH(int, value);
        QFETCH(QString, unit);
        QFETCH(QString, version);
        XmlDfPrecisionType precision;
        QCOMPARE(readError(precision, QStringLiteral("<D unit=\"x\">7</D>")), QString());
        precision.setVersion(QStringLiteral("9"));

        QCOMPARE(readError(precision, xml), error);
        QCOMPARE(precision.precision(), value);
        QCOMPARE(precision.unit(), unit);
        QCOMPARE(precision.version(), version);

        // It can be copied, written and read again.
        const XmlDfPrecisionType copy(precision);
        QCOMPARE(written(copy, QStringLiteral("E")),
                 QStringLiteral("<E version=\"%1\" unit=\"%2\">%3</E>").arg(version, unit, QString::number(value)));
        QCOMPARE(readError(precision, QStringLiteral("<D unit=\"\u00B0\">8</D>")), QString());
        QCOMPARE(precision.precision(), 8);
        QVERIFY(precision.isValid());
        QCOMPARE(precision.syntaxError(), QString());
    }

    void problemsOfAPrecision_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("problems"); // empty for a valid one
        const QString version = QStringLiteral("Version \"2.0\" not supported");
        QTest::newRow("none") << QStringLiteral("<D unit=\"\u00B0\">3</D>") << QString();
        QTest::newRow("the precision") << QStringLiteral("<D unit=\"\u00B0\">-2</D>") << illegalPrecision;
        QTest::newRow("the unit") << QStringLiteral("<D unit=\"deg\">3</D>") << illegalUnit;
        QTest::newRow("two degree signs") << QStringLiteral("<D unit=\"\u00B0\u00B0\">3</D>") << illegalUnit;
        QTest::newRow("an ordinal indicator") << QStringLiteral("<D unit=\"\u00BA\">3</D>") << illegalUnit;
        QTest::newRow("the version") << QStringLiteral("<D version=\"2.0\" unit=\"\u00B0\">3</D>") << version;
        QTest::newRow("all three") << QStringLiteral("<D version=\"2.0\" unit=\"m\">-3</D>")
                                   << version + QLatin1Char('\n') + illegalPrecision + QLatin1Char('\n') + illegalUnit;
    }
    void problemsOfAPrecision()
    {
        QFETCH(QString, xml);
        QFETCH(QString, problems);
        auto precision = readFrom<XmlDfPrecisionType>(xml);
        QCOMPARE(precision.isValid(), problems.isEmpty());
        for (int i = 0; i < 2; ++i)
            QCOMPARE(precision.syntaxError(), problems.isEmpty() ? QString() : precisionBlock(problems));
        precision.reset();
        QCOMPARE(precision.syntaxError(), precisionBlock(illegalPrecision));
    }

    void copiesOfAPrecision()
    {
        auto source = readFrom<XmlDfPrecisionType>(QStringLiteral("<D version=\"2.0\" unit=\"deg\">5</D>"));
        const QString xml = QStringLiteral("<D version=\"2.0\" unit=\"deg\">5</D>");
        XmlDfPrecisionType copy(source);
        XmlDfPrecisionType assigned;
        assigned = source;
        const XmlDfPrecisionType& self = assigned;
        assigned = self;
        source.reset();
        QCOMPARE(written(copy, QStringLiteral("D")), xml);
        QCOMPARE(written(assigned, QStringLiteral("D")), xml);
        QCOMPARE(copy.syntaxError(), precisionBlock(QStringLiteral("Version \"2.0\" not supported\n") + illegalUnit));
        copy.setVersion(QStringLiteral("1.0"));
        QCOMPARE(copy.version(), QStringLiteral("1.0"));
        QCOMPARE(assigned.version(), QStringLiteral("2.0"));
        // The unit cannot be set; another version alone is a problem, too.
        source.setPrecision(3);
        QVERIFY(source.isValid());
        source.setVersion(QStringLiteral("1"));
        QVERIFY(!source.isValid());
    }

    void aPrecisionAtAWrongPosition()
    {
        const QString xml = QStringLiteral("<D unit=\"m\" version=\"2.0\">\n5</D>");
        XmlDfPrecisionType precision;
        const auto check = [&precision](QXmlStreamReader& reader, const QString& place) {
            QCOMPARE(readError(precision, QStringLiteral("<D unit=\"x\" version=\"3.0\">7</D>")), QString());
            precision.processXml(reader, QStringLiteral("D"));
            QCOMPARE(reader.errorString(),
                     QStringLiteral("in XmlDfPrecisionType (line %1): Parse error (wrong position).").arg(place));
            QCOMPARE(precision.precision(), 7);
            QCOMPARE(precision.unit(), QStringLiteral("x"));
            QCOMPARE(precision.version(), QStringLiteral("1.0"));
        };
        QXmlStreamReader fresh(xml);
        check(fresh, QStringLiteral("1, column 0"));
        QXmlStreamReader onText(xml);
        onText.readNextStartElement();
        QCOMPARE(onText.readNext(), QXmlStreamReader::Characters);
        check(onText, QStringLiteral("2, column 2"));
        QXmlStreamReader onEnd(xml);
        while (!onEnd.isEndElement())
            onEnd.readNext();
        check(onEnd, QStringLiteral("2, column 5"));
        QXmlStreamReader atEnd(xml);
        while (!atEnd.atEnd())
            atEnd.readNext();
        check(atEnd, QStringLiteral("2, column 5"));
    }

    void theEndTagOfAPrecision()
    {
        XmlDfPrecisionType precision;
        QXmlStreamReader reader(QStringLiteral("<D unit=\"\u00B0\">\n5</D>"));
        reader.readNextStartElement();
        precision.processXml(reader, QStringLiteral("d"));
        QCOMPARE(reader.errorString(),
                 QStringLiteral("in XmlDfPrecisionType (line 2, column 5): Unexpected token \"EndElement\"."));
        QCOMPARE(precision.precision(), 5);

        QXmlStreamReader inside(QStringLiteral("<P><D unit=\"\u00B0\">6</D><N/></P>"));
        inside.readNextStartElement();
        inside.readNextStartElement();
        precision.processXml(inside, QStringLiteral("D"));
        QVERIFY(!inside.hasError());
        QVERIFY(inside.isEndElement());
        QVERIFY(inside.readNextStartElement());
        QCOMPARE(inside.name().toString(), QStringLiteral("N"));
        QCOMPARE(precision.precision(), 6);
    }

    // The emitter alone

    void emitterAccessors()
    {
        static_assert(std::is_base_of_v<XmlElementBase, XmlEmitterType>);
        XmlEmitterType emitter;
        const XmlEmitterType& constant = emitter;
        static_assert(std::is_same_v<decltype(constant.objName()), const XmlObjNameType*>);
        static_assert(std::is_same_v<decltype(constant.position()), const XmlCoordinateType*>);
        static_assert(std::is_same_v<decltype(constant.txParam()), const XmlTxParamType*>);
        static_assert(std::is_same_v<decltype(constant.version()), QString>);
        const XmlObjNameType* const name = constant.objName();
        const XmlCoordinateType* const position = constant.position();
        const XmlTxParamType* const parameters = constant.txParam();
        QCOMPARE(name->objName(), QString());
        QCOMPARE(position->longitude(), -999.999);
        QCOMPARE(parameters->bandwidth()->bandwidth_khz(), -1.0);

        // The children are assigned into.
        emitter.setObjName(objName(QStringLiteral("Alpha")));
        emitter.setPosition(coordinate(10.5, 50.0));
        auto given = readFrom<XmlTxParamType>(txParameterChild().xml);
        emitter.setTxParam(given);
        given.reset();
        QCOMPARE(constant.objName(), name);
        QCOMPARE(name->objName(), QStringLiteral("Alpha"));
        QCOMPARE(constant.position(), position);
        QCOMPARE(position->longitude(), 10.5);
        QCOMPARE(constant.txParam(), parameters);
        QCOMPARE(parameters->frequency()->frequency_MHz(), 430.0);
        QVERIFY(emitter.isValid());

        const QString xml = written(emitter, QStringLiteral("S"));
        emitter.setObjName(*emitter.objName());
        emitter.setPosition(*emitter.position());
        emitter.setTxParam(*emitter.txParam());
        QCOMPARE(written(emitter, QStringLiteral("S")), xml);

        emitter.setVersion(QStringLiteral("2.0"));
        emitter.reset();
        QCOMPARE(constant.objName(), name); // all are reset in place
        QCOMPARE(constant.position(), position);
        QCOMPARE(constant.txParam(), parameters);
        QCOMPARE(name->objName(), QString());
        QCOMPARE(position->longitude(), -999.999);
        QCOMPARE(parameters->bandwidth()->bandwidth_khz(), -1.0);
        QCOMPARE(constant.version(), QStringLiteral("1.0"));
    }

    void aFullEmitter()
    {
        const QString xml = QStringLiteral(
            "<Emitter version=\"1.0\"><Name>Alpha</Name><Position version=\"1.0\"><Longitude>10.500000</Longitude>"
            "<Latitude>50.000000</Latitude></Position><TxParameter version=\"1.0\"><Frequency version=\"1.0\""
            " unit=\"MHz\">430.000000</Frequency><TxPower version=\"1.0\" unit=\"W\">10.000000000000000</TxPower>"
            "<AntennaHeight version=\"1.0\" unit=\"m\">8</AntennaHeight><Bandwidth version=\"1.0\" unit=\"kHz\">25"
            "</Bandwidth></TxParameter></Emitter>");
        const auto emitter = readFrom<XmlEmitterType>(xml);
        QCOMPARE(written(emitter, QStringLiteral("Emitter")), xml);
    }

    void problemsOfAnEmitter()
    {
        auto element = readFrom<XmlEmitterType>(::emitter().document(::emitter().all(), ::emitter().all()));
        element.setVersion(QStringLiteral("3.0"));
        QVERIFY(!element.isValid());
        QCOMPARE(element.syntaxError(),
                 QStringLiteral("+++ in XmlEmitterType Begin:\n"
                                "Version \"3.0\" not supported\n"
                                "+++ in XmlObjNameType Begin:\n"
                                "Object name too long (max. 128)\n"
                                "--- in XmlObjNameType End\n"
                                "+++ in XmlCoordinateType Begin:\n"
                                "Longitude out of bounds\n"
                                "--- in XmlCoordinateType End\n"
                                "+++ in XmlTxParamType Begin:\n"
                                "Version \"2.0\" not supported\n"
                                "--- in XmlTxParamType End\n"
                                "--- in XmlEmitterType End"));
    }

    void anEmitterReadAgain()
    {
        auto emitter = readFrom<XmlEmitterType>(::emitter().document(::emitter().all()));
        const XmlObjNameType* const name = emitter.objName();
        const XmlCoordinateType* const position = emitter.position();
        const XmlTxParamType* const parameters = emitter.txParam();

        // All are read in place, so what a document leaves out stays.
        QCOMPARE(
            readError(emitter,
                      QStringLiteral("<S><Name/><Position><Longitude>3</Longitude><Latitude>4</Latitude></Position>"
                                     "<TxParameter><Frequency unit=\"MHz\"/><TxPower unit=\"W\"/>"
                                     "<AntennaHeight unit=\"m\"/><Bandwidth unit=\"kHz\"/></TxParameter></S>")),
            QString());
        QCOMPARE(emitter.objName(), name);
        QCOMPARE(name->objName(), QStringLiteral("Alpha"));
        QCOMPARE(emitter.position(), position);
        QCOMPARE(position->latitude(), 4.0);
        QCOMPARE(emitter.txParam(), parameters);
        QCOMPARE(parameters->frequency()->frequency_MHz(), 430.0);
        QCOMPARE(parameters->bandwidth()->bandwidth_khz(), 25.0);
    }

    // The direction finder alone

    void directionFinderAccessors()
    {
        static_assert(std::is_base_of_v<XmlElementBase, XmlDfType>);
        XmlDfType finder;
        const XmlDfType& constant = finder;
        static_assert(std::is_same_v<decltype(constant.objName()), const XmlObjNameType*>);
        static_assert(std::is_same_v<decltype(constant.position()), const XmlCoordinateType*>);
        static_assert(std::is_same_v<decltype(constant.rxParam()), const XmlRxParamType*>);
        static_assert(std::is_same_v<decltype(constant.dfPrecision()), const XmlDfPrecisionType*>);
        static_assert(std::is_same_v<decltype(constant.interlink()), const XmlStationInterlinkType*>);
        static_assert(std::is_same_v<decltype(constant.version()), QString>);
        const XmlObjNameType* const name = constant.objName();
        const XmlCoordinateType* const position = constant.position();
        const XmlRxParamType* const parameters = constant.rxParam();
        const XmlDfPrecisionType* const precision = constant.dfPrecision();
        QCOMPARE(name->objName(), QString());
        QCOMPARE(position->longitude(), -999.999);
        QCOMPARE(parameters->rxThres()->fieldstrength(), -99999.999);
        QCOMPARE(precision->precision(), -2);
        QVERIFY(!constant.hasInterlink() && !constant.interlink());

        // What is always there is assigned into.
        finder.setObjName(objName(QStringLiteral("Alpha")));
        finder.setPosition(coordinate(10.5, 50.0));
        finder.setRxParam(readFrom<XmlRxParamType>(rxParameterChild().xml));
        XmlDfPrecisionType given;
        given.setPrecision(4);
        finder.setDfPrecision(given);
        given.setPrecision(5);
        QCOMPARE(constant.objName(), name);
        QCOMPARE(name->objName(), QStringLiteral("Alpha"));
        QCOMPARE(constant.position(), position);
        QCOMPARE(position->latitude(), 50.0);
        QCOMPARE(constant.rxParam(), parameters);
        QCOMPARE(parameters->antennaHeight()->length(), 7);
        QCOMPARE(constant.dfPrecision(), precision);
        QCOMPARE(precision->precision(), 4);
        QVERIFY(finder.isValid());
        QVERIFY(!constant.hasInterlink() && !constant.interlink());

        // The interlink is made, and then assigned into.
        checkInterlinkAccessors(finder);
        const XmlStationInterlinkType* const held = constant.interlink();

        const QString xml = written(finder, QStringLiteral("S"));
        finder.setObjName(*finder.objName());
        finder.setPosition(*finder.position());
        finder.setRxParam(*finder.rxParam());
        finder.setDfPrecision(*finder.dfPrecision());
        finder.setInterlink(*finder.interlink());
        QCOMPARE(written(finder, QStringLiteral("S")), xml);

        XmlDfType source;
        source.setInterlink(readFrom<XmlStationInterlinkType>(interlinkChild().xml));
        finder = source;
        QCOMPARE(constant.interlink(), held); // assigned into
        QCOMPARE(held->freq()->frequency_MHz(), 440.0);
        QCOMPARE(constant.dfPrecision(), precision);
        QCOMPARE(precision->precision(), -2);

        finder.setDfPrecision(given);
        finder.setVersion(QStringLiteral("2.0"));
        finder.reset();
        QVERIFY(!constant.hasInterlink() && !constant.interlink());
        QCOMPARE(constant.objName(), name); // these are reset in place
        QCOMPARE(constant.position(), position);
        QCOMPARE(constant.rxParam(), parameters);
        QCOMPARE(constant.dfPrecision(), precision);
        QCOMPARE(precision->precision(), -2);
        QCOMPARE(constant.version(), QStringLiteral("1.0"));
    }

    void aFullDirectionFinder()
    {
        const QString xml = QStringLiteral(
            "<DF version=\"1.0\"><Name>Alpha</Name><Position version=\"1.0\"><Longitude>10.500000</Longitude>"
            "<Latitude>50.000000</Latitude></Position><RxParameter version=\"1.0\"><AntennaHeight version=\"1.0\""
            " unit=\"m\">7</AntennaHeight><RxThreshold version=\"1.0\" unit=\"dBm\">-80.000000000000000</RxThreshold>"
            "</RxParameter><DFprecision version=\"1.0\" unit=\"\u00B0\">3</DFprecision><StationInterlink"
            " version=\"1.0\"><Frequency version=\"1.0\" unit=\"MHz\">440.000000</Frequency><%1 version=\"1.0\""
            " unit=\"W\">5.000000000000000</%1><RxThreshold version=\"1.0\" unit=\"dBm\">-90.000000000000000"
            "</RxThreshold><AntennaHeight version=\"1.0\" unit=\"m\">9</AntennaHeight></StationInterlink></DF>");
        const auto finder = readFrom<XmlDfType>(xml.arg(QStringLiteral("TxPower")));
        QCOMPARE(written(finder, QStringLiteral("DF")), xml.arg(QStringLiteral("Power")));
    }

    void problemsOfADirectionFinder()
    {
        const Kind& kind = directionFinder();
        auto finder = readFrom<XmlDfType>(kind.document(kind.all(), kind.all()));
        finder.setVersion(QStringLiteral("3.0"));
        QVERIFY(!finder.isValid());
        QCOMPARE(finder.syntaxError(),
                 QStringLiteral("+++ in XmlDfType Begin:\n"
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
                                "+++ in XmlDfPrecisionType Begin:\n"
                                "XmlDfPrecisionType: Illegal unit.\n"
                                "--- in XmlDfPrecisionType End\n"
                                "+++ in XmlStationInterlinkType Begin:\n"
                                "Version \"2.0\" not supported\n"
                                "--- in XmlStationInterlinkType End\n"
                                "--- in XmlDfType End"));
    }

    void aDirectionFinderReadAgain()
    {
        const Kind& kind = directionFinder();
        auto finder = readFrom<XmlDfType>(kind.document(kind.all()));
        const XmlObjNameType* const name = finder.objName();
        const XmlCoordinateType* const position = finder.position();
        const XmlRxParamType* const parameters = finder.rxParam();
        const XmlDfPrecisionType* const precision = finder.dfPrecision();
        const XmlStationInterlinkType* const interlink = finder.interlink();

        // Without an interlink in the document, the one held stays.
        QCOMPARE(readError(finder, kind.document(kind.required())), QString());
        QCOMPARE(finder.interlink(), interlink);
        QCOMPARE(interlink->freq()->frequency_MHz(), 440.0);

        // With one, it is a new interlink that is read; everything else is read in place.
        const QString xml =
            QStringLiteral("<S><Name/><Position><Longitude>3</Longitude><Latitude>4</Latitude></Position><RxParameter>"
                           "<AntennaHeight unit=\"m\"/><RxThreshold unit=\"dBm\"/></RxParameter>"
                           "<DFprecision unit=\"\u00B0\"/>%1</S>");
        checkNewInterlinkIsRead(finder, xml);
        QCOMPARE(finder.objName(), name);
        QCOMPARE(name->objName(), QStringLiteral("Alpha"));
        QCOMPARE(finder.position(), position);
        QCOMPARE(position->longitude(), 3.0);
        QCOMPARE(finder.rxParam(), parameters);
        QCOMPARE(parameters->antennaHeight()->length(), 7);
        QCOMPARE(finder.dfPrecision(), precision);
        QCOMPARE(precision->precision(), 3);

        // Also when its reading fails.
        checkNewInterlinkThatFails(finder, xml);

        // A refused interlink replaces nothing.
        QCOMPARE(readError(finder, xml.arg(interlinkChild().xml + QStringLiteral("\n<StationInterlink/>"))),
                 QStringLiteral("in XmlDfType (line 2, column 19): Unexpected element \"StationInterlink\"."));
        QCOMPARE(finder.interlink()->antHgt()->length(), 9);
    }
};

QTEST_APPLESS_MAIN(EmittersTest)
#include "emitters_test.moc"
#include "moc_kinds.cpp"
