#include "support/elementtest.h"

#include <arvxml/emitters.h>

#include <limits>
#include <memory>
#include <type_traits>

using namespace ArvXml;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;

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

Child positionChild()
{
    const QString problem = QStringLiteral("+++ in XmlCoordinateType Begin:\n%1\n--- in XmlCoordinateType End");
    return {
        QStringLiteral("Position"),
        QStringLiteral("<Position><Longitude>10.5</Longitude><Latitude>50</Latitude></Position>"),
        QStringLiteral("<Position version=\"1.0\"><Longitude>10.500000</Longitude><Latitude>50.000000</Latitude>"
                       "</Position>"),
        QStringLiteral("<Position version=\"1.0\"><Longitude>-999.999000</Longitude><Latitude>-999.999000</Latitude>"
                       "</Position>"),
        problem.arg(QStringLiteral("Longitude out of bounds\nLatitude out of bounds")),
        QStringLiteral("<Position><Longitude>180.5</Longitude><Latitude>50</Latitude></Position>"),
        problem.arg(QStringLiteral("Longitude out of bounds")),
    };
}

Child rxParameterChild()
{
    return {
        QStringLiteral("RxParameter"),
        QStringLiteral("<RxParameter><AntennaHeight unit=\"m\">7</AntennaHeight>"
                       "<RxThreshold unit=\"dBm\">-80</RxThreshold></RxParameter>"),
        QStringLiteral("<RxParameter version=\"1.0\"><AntennaHeight version=\"1.0\" unit=\"m\">7</AntennaHeight>"
                       "<RxThreshold version=\"1.0\" unit=\"dBm\">-80.000000000000000</RxThreshold></RxParameter>"),
        QStringLiteral("<RxParameter version=\"1.0\"><AntennaHeight version=\"1.0\" unit=\"m\">0</AntennaHeight>"
                       "<RxThreshold version=\"1.0\" unit=\"dBm\">-99999.998999999996158</RxThreshold></RxParameter>"),
        QStringLiteral("+++ in XmlRxParamType Begin:\n"
                       "+++ in XmlFieldstrengthType Begin:\n"
                       "Illegal fieldstrength.\n"
                       "--- in XmlFieldstrengthType End\n"
                       "--- in XmlRxParamType End"),
        QStringLiteral("<RxParameter version=\"2.0\"><AntennaHeight unit=\"m\">7</AntennaHeight>"
                       "<RxThreshold unit=\"dBm\">-80</RxThreshold></RxParameter>"),
        QStringLiteral("+++ in XmlRxParamType Begin:\nVersion \"2.0\" not supported\n--- in XmlRxParamType End"),
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

Child dfPrecisionChild()
{
    return {
        QStringLiteral("DFprecision"),
        QStringLiteral("<DFprecision unit=\"\u00B0\">3</DFprecision>"),
        QStringLiteral("<DFprecision version=\"1.0\" unit=\"\u00B0\">3</DFprecision>"),
        QStringLiteral("<DFprecision version=\"1.0\" unit=\"\u00B0\">-2</DFprecision>"),
        QStringLiteral("+++ in XmlDfPrecisionType Begin:\n"
                       "XmlDfPrecisionType: Illegal precision.\n"
                       "--- in XmlDfPrecisionType End"),
        QStringLiteral("<DFprecision unit=\"deg\">4</DFprecision>"),
        QStringLiteral("+++ in XmlDfPrecisionType Begin:\n"
                       "XmlDfPrecisionType: Illegal unit.\n"
                       "--- in XmlDfPrecisionType End"),
    };
}

Child interlinkChild()
{
    // The power is read under one tag and written under another.
    return {
        QStringLiteral("StationInterlink"),
        QStringLiteral("<StationInterlink><Frequency unit=\"MHz\">440</Frequency><TxPower unit=\"W\">5</TxPower>"
                       "<RxThreshold unit=\"dBm\">-90</RxThreshold><AntennaHeight unit=\"m\">9</AntennaHeight>"
                       "</StationInterlink>"),
        QStringLiteral("<StationInterlink version=\"1.0\">"
                       "<Frequency version=\"1.0\" unit=\"MHz\">440.000000</Frequency>"
                       "<Power version=\"1.0\" unit=\"W\">5.000000000000000</Power>"
                       "<RxThreshold version=\"1.0\" unit=\"dBm\">-90.000000000000000</RxThreshold>"
                       "<AntennaHeight version=\"1.0\" unit=\"m\">9</AntennaHeight></StationInterlink>"),
        QString(),
        QString(),
        QStringLiteral("<StationInterlink version=\"2.0\"><Frequency unit=\"MHz\">441</Frequency>"
                       "<TxPower unit=\"W\">5</TxPower><RxThreshold unit=\"dBm\">-90</RxThreshold>"
                       "<AntennaHeight unit=\"m\">9</AntennaHeight></StationInterlink>"),
        QStringLiteral("+++ in XmlStationInterlinkType Begin:\n"
                       "Version \"2.0\" not supported\n"
                       "--- in XmlStationInterlinkType End"),
    };
}

const Kind& emitter()
{
    static const Kind kind = [] {
        Kind emitter = kindOf<XmlEmitterType>(QStringLiteral("XmlEmitterType"));
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
        Kind finder = kindOf<XmlDfType>(QStringLiteral("XmlDfType"));
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

QVector<const Kind*> allKinds()
{
    return {&emitter(), &directionFinder()};
}

// Leaves without a text keep what they hold; so an interlink that was there before shows.
const QString emptyInterlink = QStringLiteral("<StationInterlink><Frequency unit=\"MHz\"/><TxPower unit=\"W\"/>"
                                              "<RxThreshold unit=\"dBm\"/><AntennaHeight unit=\"m\"/>"
                                              "</StationInterlink>");

XmlObjNameType objName(const QString& text)
{
    XmlObjNameType name;
    name.setObjName(text);
    return name;
}

XmlCoordinateType coordinate(double longitude, double latitude)
{
    XmlCoordinateType coordinate;
    coordinate.setLongitude(longitude);
    coordinate.setLatitude(latitude);
    return coordinate;
}

QString precisionBlock(const QString& lines)
{
    return QStringLiteral("+++ in XmlDfPrecisionType Begin:\n%1\n--- in XmlDfPrecisionType End").arg(lines);
}

const QString illegalPrecision = QStringLiteral("XmlDfPrecisionType: Illegal precision.");
const QString illegalUnit = QStringLiteral("XmlDfPrecisionType: Illegal unit.");
const QString degree = QString(QChar(0x00B0));

} // namespace

Q_DECLARE_METATYPE(const Kind*)

class EmittersTest : public QObject {
    Q_OBJECT

    static void kinds()
    {
        QTest::addColumn<const Kind*>("kind");
        QTest::addColumn<int>("completeSelections"); // with everything that is required
        QTest::newRow("an emitter") << &emitter() << 1;
        QTest::newRow("a direction finder") << &directionFinder() << 2;
    }
    static void versionedKinds()
    {
        QTest::addColumn<const Kind*>("kind");
        QTest::newRow("an emitter") << &emitter();
        QTest::newRow("a direction finder") << &directionFinder();
    }

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
        element->reset();
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
            source->reset();
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
            element->reset();
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
        const QString name = QStringLiteral("<S>\n  <Name>a</Name>\n");
        const QString position =
            QStringLiteral("  <Position><Longitude>1</Longitude><Latitude>2</Latitude></Position>\n");
        const QString rxParameter = QStringLiteral("  <RxParameter><AntennaHeight unit=\"m\">1</AntennaHeight>"
                                                   "<RxThreshold unit=\"dBm\">-80</RxThreshold></RxParameter>\n");
        const QString precision = QStringLiteral("  <DFprecision unit=\"\u00B0\">3</DFprecision>\n");
        const Kind* kind = &emitter();
        QTest::newRow("an emitter with the position before the name")
            << kind << QStringLiteral("<S>\n") + position + QStringLiteral("  <Name>a</Name>\n</S>")
            << QStringLiteral("in XmlEmitterType (line 3, column 8): Unexpected element \"Name\".");
        QTest::newRow("an emitter without a name")
            << kind << QStringLiteral("<S>\n") + position + txParameterChild().xml + QStringLiteral("\n</S>")
            << QStringLiteral("in XmlEmitterType (line 4, column 4): Unexpected token \"EndElement\".");
        QTest::newRow("an emitter without transmitter parameters")
            << kind << name + position + QStringLiteral("</S>")
            << QStringLiteral("in XmlEmitterType (line 4, column 4): Unexpected token \"EndElement\".");
        QTest::newRow("an empty emitter")
            << kind << QStringLiteral("<S/>")
            << QStringLiteral("in XmlEmitterType (line 1, column 4): Unexpected token \"EndElement\".");
        QTest::newRow("an emitter with a receiver's child")
            << kind << name + position + QStringLiteral("  <RxParameter version=\"1.0\"/></S>")
            << QStringLiteral("in XmlEmitterType (line 4, column 30): Unexpected element \"RxParameter\".");
        QTest::newRow("an emitter of another version")
            << kind << QStringLiteral("<S\n  version=\"2.0\"><Name>a</Name></S>")
            << QStringLiteral("in XmlEmitterType (line 2, column 16): Version not supported: 2.0.");
        QTest::newRow("an emitter with a position of another version")
            << kind << name + QStringLiteral("  <Position version=\"2\"/></S>")
            << QStringLiteral("in XmlCoordinateType (line 3, column 25): Version not supported: 2.");
        QTest::newRow("an emitter with a bandwidth that is no integer")
            << kind
            << name + position
                + QStringLiteral("  <TxParameter><Frequency unit=\"MHz\">1</Frequency><TxPower unit=\"W\">1</TxPower>"
                                 "<AntennaHeight unit=\"m\">1</AntennaHeight>\n<Bandwidth unit=\"kHz\">2.5"
                                 "</Bandwidth></TxParameter></S>")
            << QStringLiteral("in XmlBandwidthType (line 5, column 26): Illegal value (must be numeric).");
        kind = &directionFinder();
        QTest::newRow("a direction finder with the position before the name")
            << kind << QStringLiteral("<S>\n") + position + QStringLiteral("  <Name>a</Name>\n</S>")
            << QStringLiteral("in XmlDfType (line 3, column 8): Unexpected element \"Name\".");
        QTest::newRow("a direction finder without a precision")
            << kind << name + position + rxParameter + QStringLiteral("</S>")
            << QStringLiteral("in XmlDfType (line 5, column 4): Unexpected token \"EndElement\".");
        QTest::newRow("a direction finder with an interlink in place of the precision")
            << kind << name + position + rxParameter + interlinkChild().xml + QStringLiteral("\n</S>")
            << QStringLiteral("in XmlDfType (line 6, column 4): Unexpected token \"EndElement\".");
        QTest::newRow("a direction finder with a second interlink")
            << kind
            << name + position + rxParameter + precision + interlinkChild().xml
                + QStringLiteral("\n  <StationInterlink version=\"1.0\"/>\n</S>")
            << QStringLiteral("in XmlDfType (line 7, column 35): Unexpected element \"StationInterlink\".");
        QTest::newRow("a direction finder with a signal path")
            << kind << name + QStringLiteral("  <SignalPath/>\n</S>")
            << QStringLiteral("in XmlDfType (line 3, column 15): Unexpected element \"SignalPath\".");
        QTest::newRow("a direction finder of another version")
            << kind << QStringLiteral("<S\n  version=\"1.1\"><Name>a</Name></S>")
            << QStringLiteral("in XmlDfType (line 2, column 16): Version not supported: 1.1.");
        QTest::newRow("a direction finder with a precision without a unit")
            << kind << name + position + rxParameter + QStringLiteral("  <DFprecision>3</DFprecision></S>")
            << QStringLiteral("in XmlDfPrecisionType (line 5, column 15): Missing attribute: \"unit\".");
        QTest::newRow("a direction finder with a precision that is no integer")
            << kind
            << name + position + rxParameter + QStringLiteral("  <DFprecision unit=\"\u00B0\">2.5</DFprecision></S>")
            << QStringLiteral("in XmlDfPrecisionType (line 5, column 28): Illegal value (must be numeric).");
        QTest::newRow("a direction finder with an interlink that is no number")
            << kind
            << name + position + rxParameter + precision
                + QStringLiteral("  <StationInterlink>\n<Frequency unit=\"MHz\">x</Frequency></StationInterlink></S>")
            << QStringLiteral("in XmlFreqType (line 7, column 24): Illegal value (must be numeric).");
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
        element->reset();
        QCOMPARE(written(*element, QStringLiteral("S")), kind->written({}));
        QCOMPARE(readError(*element, xml), error);
        QCOMPARE(written(*element, QStringLiteral("S")), left);
        element->reset();
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
        auto interlink = readFrom<XmlStationInterlinkType>(interlinkChild().xml);
        finder.setInterlink(interlink);
        QVERIFY(finder.hasInterlink());
        const XmlStationInterlinkType* const held = constant.interlink();
        QVERIFY(held && held != &interlink);
        interlink.setFreq(XmlFreqType());
        QCOMPARE(held->freq()->frequency_MHz(), 440.0);
        finder.setInterlink(interlink);
        QCOMPARE(constant.interlink(), held);
        QCOMPARE(held->freq()->frequency_MHz(), -9.9);

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
        QCOMPARE(readError(finder, xml.arg(emptyInterlink)), QString());
        QVERIFY(finder.hasInterlink());
        QCOMPARE(finder.interlink()->freq()->frequency_MHz(), -9.9);
        QCOMPARE(finder.interlink()->power()->power(), -9.9);
        QCOMPARE(finder.interlink()->rxThresh()->fieldstrength(), -99999.999);
        QCOMPARE(finder.interlink()->antHgt()->length(), 0);
        QCOMPARE(finder.objName(), name);
        QCOMPARE(name->objName(), QStringLiteral("Alpha"));
        QCOMPARE(finder.position(), position);
        QCOMPARE(position->longitude(), 3.0);
        QCOMPARE(finder.rxParam(), parameters);
        QCOMPARE(parameters->antennaHeight()->length(), 7);
        QCOMPARE(finder.dfPrecision(), precision);
        QCOMPARE(precision->precision(), 3);

        // Also when its reading fails.
        finder.setInterlink(readFrom<XmlStationInterlinkType>(interlinkChild().xml));
        QCOMPARE(readError(finder,
                           xml.arg(QStringLiteral("\n<StationInterlink><Frequency unit=\"kHz\">500</Frequency>"
                                                  "</StationInterlink>"))),
                 QStringLiteral("in XmlStationInterlinkType (line 2, column 74): Unexpected token \"EndElement\"."));
        QVERIFY(finder.hasInterlink());
        QCOMPARE(finder.interlink()->freq()->frequency_MHz(), 0.5);
        QCOMPARE(finder.interlink()->antHgt()->length(), 0);

        // A refused interlink replaces nothing.
        QCOMPARE(readError(finder, xml.arg(interlinkChild().xml + QStringLiteral("\n<StationInterlink/>"))),
                 QStringLiteral("in XmlDfType (line 2, column 19): Unexpected element \"StationInterlink\"."));
        QCOMPARE(finder.interlink()->antHgt()->length(), 9);
    }
};

QTEST_APPLESS_MAIN(EmittersTest)
#include "emitters_test.moc"
