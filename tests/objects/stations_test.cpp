#include "support/elementtest.h"

#include <arvxml/stations.h>

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
    QString (*version)(const IXmlElement&) = nullptr; ///< if it has one
    void (*setVersion)(IXmlElement&, const QString&) = nullptr;

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
    if constexpr (std::is_same_v<T, XmlReceiverType>) {
        kind.version = [](const IXmlElement& element) { return static_cast<const T&>(element).version(); };
        kind.setVersion = [](IXmlElement& element, const QString& version) {
            static_cast<T&>(element).setVersion(version);
        };
    }
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

Child dfPrecisionChild()
{
    return {
        QStringLiteral("DFprecision"),
        QStringLiteral("<DFprecision unit=\"\u00B0\">3</DFprecision>"),
        QStringLiteral("<DFprecision version=\"1.0\" unit=\"\u00B0\">3</DFprecision>"),
        QString(),
        QString(),
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

const Kind& station()
{
    static const Kind kind = [] {
        Kind station = kindOf<XmlStationType>(QStringLiteral("XmlStationType"));
        station.refusedStart = QStringLiteral("Unexpected token \"StartElement\": %1");
        station.refusedEnd = QStringLiteral("Unexpected token \"EndElement\": %1");
        station.attributes.clear();
        station.children = {nameChild(),        signalPathChild(),  positionChild(),
                            rxParameterChild(), dfPrecisionChild(), interlinkChild()};
        // Here the receiver parameters are optional.
        station.children[3].initial.clear();
        station.children[3].initialProblem.clear();
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
        Kind receiver = kindOf<XmlReceiverType>(QStringLiteral("XmlReceiverType"));
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

QVector<const Kind*> allKinds()
{
    return {&station(), &receiver()};
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

} // namespace

Q_DECLARE_METATYPE(const Kind*)

class StationsTest : public QObject {
    Q_OBJECT

    static void kinds()
    {
        QTest::addColumn<const Kind*>("kind");
        QTest::addColumn<int>("completeSelections"); // with everything that is required
        QTest::newRow("a station") << &station() << 16;
        QTest::newRow("a receiver") << &receiver() << 2;
    }
    static void versionedKinds()
    {
        QTest::addColumn<const Kind*>("kind");
        QTest::newRow("a receiver") << &receiver();
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
        const Kind* kind = &station();
        QTest::newRow("a station with the signal path after the position")
            << kind << name + position + QStringLiteral("  <SignalPath version=\"1.0\"/>\n</S>")
            << QStringLiteral("in XmlStationType (line 4, column 29): Unexpected token \"StartElement\": SignalPath.");
        QTest::newRow("a station with the position before the name")
            << kind << QStringLiteral("<S>\n") + position + QStringLiteral("  <Name>a</Name>\n</S>")
            << QStringLiteral("in XmlStationType (line 3, column 8): Unexpected token \"StartElement\": Name.");
        QTest::newRow("a station that ends before the position")
            << kind << name + QStringLiteral("</S>")
            << QStringLiteral("in XmlStationType (line 3, column 4): Unexpected token \"EndElement\": S.");
        QTest::newRow("a station without a name")
            << kind << QStringLiteral("<S>\n") + position + QStringLiteral("</S>")
            << QStringLiteral("in XmlStationType (line 3, column 4): Unexpected token \"EndElement\": S.");
        QTest::newRow("an empty station")
            << kind << QStringLiteral("<S/>")
            << QStringLiteral("in XmlStationType (line 1, column 4): Unexpected token \"EndElement\": S.");
        QTest::newRow("a station with something unknown")
            << kind << name + QStringLiteral("  <Unknown/></S>")
            << QStringLiteral("in XmlStationType (line 3, column 12): Unexpected token \"StartElement\": Unknown.");
        QTest::newRow("a station with a name that holds an element")
            << kind << QStringLiteral("<S>\n  <Name>a<b/></Name></S>")
            << QStringLiteral("in XmlObjNameType (line 2, column 13): Unexpected token \"StartElement\".");
        QTest::newRow("a station with a signal path of another version")
            << kind << name + QStringLiteral("  <SignalPath version=\"2.0\"/></S>")
            << QStringLiteral("in XmlSignalPathType (line 3, column 29): Version not supported: 2.0.");
        QTest::newRow("a station with a position without latitude")
            << kind << name + QStringLiteral("  <Position><Longitude>1</Longitude>\n  </Position></S>")
            << QStringLiteral("in XmlCoordinateType (line 4, column 13): Unexpected token \"EndElement\": Position.");
        QTest::newRow("a station with a precision that is no number")
            << kind << name + position + QStringLiteral("  <DFprecision unit=\"\u00B0\">2.5</DFprecision></S>")
            << QStringLiteral("in XmlDfPrecisionType (line 4, column 28): Illegal value (must be numeric).");
        QTest::newRow("a station with an interlink as it is written")
            << kind
            << name + position
                + QStringLiteral("  <StationInterlink><Frequency unit=\"MHz\">5</Frequency>\n"
                                 "  <Power unit=\"W\">5</Power></StationInterlink></S>")
            << QStringLiteral("in XmlStationInterlinkType (line 5, column 18): Unexpected element \"Power\".");
        kind = &receiver();
        const QString rxParameter = QStringLiteral("  <RxParameter><AntennaHeight unit=\"m\">1</AntennaHeight>"
                                                   "<RxThreshold unit=\"dBm\">-80</RxThreshold></RxParameter>\n");
        QTest::newRow("a receiver with the position before the name")
            << kind << QStringLiteral("<S>\n") + position + QStringLiteral("  <Name>a</Name>\n</S>")
            << QStringLiteral("in XmlReceiverType (line 3, column 8): Unexpected element \"Name\".");
        QTest::newRow("a receiver without receiver parameters")
            << kind << name + position + QStringLiteral("</S>")
            << QStringLiteral("in XmlReceiverType (line 4, column 4): Unexpected token \"EndElement\".");
        QTest::newRow("an empty receiver")
            << kind << QStringLiteral("<S/>")
            << QStringLiteral("in XmlReceiverType (line 1, column 4): Unexpected token \"EndElement\".");
        QTest::newRow("a receiver with a station's child")
            << kind << name + position + QStringLiteral("  <DFprecision unit=\"\u00B0\">3</DFprecision>\n</S>")
            << QStringLiteral("in XmlReceiverType (line 4, column 24): Unexpected element \"DFprecision\".");
        QTest::newRow("a receiver with a second interlink")
            << kind
            << name + position + rxParameter + interlinkChild().xml
                + QStringLiteral("\n  <StationInterlink version=\"1.0\"/>\n</S>")
            << QStringLiteral("in XmlReceiverType (line 6, column 35): Unexpected element \"StationInterlink\".");
        QTest::newRow("a receiver of another version")
            << kind << QStringLiteral("<S\n  version=\"1.1\"><Name>a</Name></S>")
            << QStringLiteral("in XmlReceiverType (line 2, column 16): Version not supported: 1.1.");
        QTest::newRow("a receiver with a position of another version")
            << kind << name + QStringLiteral("  <Position version=\"2\"/></S>")
            << QStringLiteral("in XmlCoordinateType (line 3, column 25): Version not supported: 2.");
        QTest::newRow("a receiver with a height without a unit")
            << kind
            << name + position
                + QStringLiteral("  <RxParameter>\n    <AntennaHeight>1</AntennaHeight></RxParameter></S>")
            << QStringLiteral("in XmlLengthType (line 5, column 19): Missing attribute: \"unit\".");
        QTest::newRow("a receiver with an interlink that is no number")
            << kind
            << name + position + rxParameter
                + QStringLiteral("  <StationInterlink>\n<Frequency unit=\"MHz\">x</Frequency></StationInterlink></S>")
            << QStringLiteral("in XmlFreqType (line 6, column 24): Illegal value (must be numeric).");
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

        auto interlink = readFrom<XmlStationInterlinkType>(interlinkChild().xml);
        station.setInterlink(interlink);
        QVERIFY(station.hasInterlink());
        const XmlStationInterlinkType* const heldInterlink = constant.interlink();
        QVERIFY(heldInterlink && heldInterlink != &interlink);
        interlink.setFreq(XmlFreqType());
        QCOMPARE(heldInterlink->freq()->frequency_MHz(), 440.0);
        station.setInterlink(interlink);
        QCOMPARE(constant.interlink(), heldInterlink);
        QCOMPARE(heldInterlink->freq()->frequency_MHz(), -9.9);

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

        auto interlink = readFrom<XmlStationInterlinkType>(interlinkChild().xml);
        receiver.setInterlink(interlink);
        QVERIFY(receiver.hasInterlink());
        const XmlStationInterlinkType* const held = constant.interlink();
        QVERIFY(held && held != &interlink);
        interlink.setFreq(XmlFreqType());
        QCOMPARE(held->freq()->frequency_MHz(), 440.0);
        receiver.setInterlink(interlink);
        QCOMPARE(constant.interlink(), held);
        QCOMPARE(held->freq()->frequency_MHz(), -9.9);

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
        QCOMPARE(readError(receiver, xml.arg(emptyInterlink)), QString());
        QVERIFY(receiver.hasInterlink());
        QCOMPARE(receiver.interlink()->freq()->frequency_MHz(), -9.9);
        QCOMPARE(receiver.interlink()->power()->power(), -9.9);
        QCOMPARE(receiver.interlink()->rxThresh()->fieldstrength(), -99999.999);
        QCOMPARE(receiver.interlink()->antHgt()->length(), 0);
        QCOMPARE(receiver.objName(), name);
        QCOMPARE(name->objName(), QStringLiteral("Alpha"));
        QCOMPARE(receiver.position(), position);
        QCOMPARE(position->longitude(), 3.0);
        QCOMPARE(receiver.rxParam(), parameters);
        QCOMPARE(parameters->antennaHeight()->length(), 7);
        QCOMPARE(parameters->rxThres()->fieldstrength(), -80.0);

        // Also when its reading fails.
        receiver.setInterlink(readFrom<XmlStationInterlinkType>(interlinkChild().xml));
        QCOMPARE(readError(receiver,
                           xml.arg(QStringLiteral("\n<StationInterlink><Frequency unit=\"kHz\">500</Frequency>"
                                                  "</StationInterlink>"))),
                 QStringLiteral("in XmlStationInterlinkType (line 2, column 74): Unexpected token \"EndElement\"."));
        QVERIFY(receiver.hasInterlink());
        QCOMPARE(receiver.interlink()->freq()->frequency_MHz(), 0.5);
        QCOMPARE(receiver.interlink()->antHgt()->length(), 0);

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
#include "stations_test.moc"
