#pragma once

#include "objects/gatedchild.h"
#include "support/elementtest.h"

#include <arvxml/element.h>
#include <arvxml/geometry.h>
#include <arvxml/signalpaths.h>

#include <memory>

/// \file
/// What the tests of the planning objects share: kinds of elements that are described by tables, and what
/// the elements of all kinds do.

namespace ObjectTest {

using ArvXml::IXmlElement;
using ArvXml::XmlCoordinateType;
using ArvXml::XmlFreqType;
using ArvXml::XmlStationInterlinkType;
using ElementTest::readError;
using ElementTest::written;

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

/// Whether a word stands in both lists.
inline bool haveCommon(const QStringList& some, const QStringList& others)
{
    for (const QString& word : some) {
        if (others.contains(word))
            return true;
    }
    return false;
}

/// A kind of element, and how to deal with its elements without knowing their type.
struct Kind {
    const char* name = nullptr; ///< in the names of rows
    int completeSelections = 0; ///< of the children, with everything that is required
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
    void (*reset)(IXmlElement&);
    QString (*version)(const IXmlElement&) = nullptr; ///< if it has one
    void (*setVersion)(IXmlElement&, const QString&) = nullptr;

    /// The child of this tag, if there is one.
    const Child* child(const QString& tag) const
    {
        for (const Child& child : children) {
            if (child.tag == tag)
                return &child;
        }
        return nullptr;
    }

    /// The tags of all children.
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

    /// The children that every element has.
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
                const qint64 column = held ? held->xml.indexOf(QLatin1Char('>')) + 1 : tag.size() + 3;
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

    /// A message of the reader as an element of this kind raises it.
    QString message(qint64 line, qint64 column, const QString& text) const
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

    /// The frame around what is reported of an element.
    static QString block(const QString& name, const QString& lines)
    {
        return QStringLiteral("+++ in %1 Begin:\n%2\n--- in %1 End").arg(name, lines);
    }
};

/// The kind of the elements of type T, which have no version.
template <typename T>
Kind kindOf(const QString& className)
{
    Kind kind;
    kind.className = className;
    kind.refusedStart = QStringLiteral("Unexpected element \"%1\"");
    kind.refusedEnd = QStringLiteral("Unexpected token \"EndElement\"");
    kind.make = []() -> std::shared_ptr<IXmlElement> { return std::make_shared<T>(); };
    kind.copy = [](const IXmlElement& element) -> std::shared_ptr<IXmlElement> {
        return std::make_shared<T>(static_cast<const T&>(element));
    };
    kind.assign = [](IXmlElement& to, const IXmlElement& from) { static_cast<T&>(to) = static_cast<const T&>(from); };
    kind.reset = [](IXmlElement& element) { element.reset(); };
    return kind;
}

/// The same for elements that have a version.
template <typename T>
Kind versionedKindOf(const QString& className)
{
    Kind kind = kindOf<T>(className);
    kind.attributes = QStringLiteral(" version=\"1.0\"");
    kind.version = [](const IXmlElement& element) { return static_cast<const T&>(element).version(); };
    kind.setVersion = [](IXmlElement& element, const QString& version) {
        static_cast<T&>(element).setVersion(version);
    };
    return kind;
}

// Children, valid and with problems

inline Child nameChild()
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

inline Child signalPathChild()
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

inline Child positionChild()
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

inline Child rxParameterChild()
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

inline Child txParameterChild()
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

inline Child dfPrecisionChild()
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

inline Child interlinkChild()
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

/// Leaves without a text keep what they hold; so an interlink that was there before shows.
inline const QString emptyInterlink = QStringLiteral("<StationInterlink><Frequency unit=\"MHz\"/><TxPower unit=\"W\"/>"
                                                     "<RxThreshold unit=\"dBm\"/><AntennaHeight unit=\"m\"/>"
                                                     "</StationInterlink>");

/// A position.
inline XmlCoordinateType coordinate(double longitude, double latitude)
{
    XmlCoordinateType coordinate;
    coordinate.setLongitude(longitude);
    coordinate.setLatitude(latitude);
    return coordinate;
}

/// An interlink that is set is made, and a second one assigned into the first.
template <typename Element>
void checkInterlinkAccessors(Element& element)
{
    const Element& constant = element;
    auto interlink = ElementTest::readFrom<XmlStationInterlinkType>(interlinkChild().xml);
    element.setInterlink(interlink);
    QVERIFY(element.hasInterlink());
    const XmlStationInterlinkType* const held = constant.interlink();
    QVERIFY(held && held != &interlink);
    interlink.setFreq(XmlFreqType());
    QCOMPARE(held->freq()->frequency_MHz(), 440.0);
    element.setInterlink(interlink);
    QCOMPARE(constant.interlink(), held);
    QCOMPARE(held->freq()->frequency_MHz(), -9.9);
}

/// The one in a document is read into a new interlink. \a xml has a place for it.
template <typename Element>
void checkNewInterlinkIsRead(Element& element, const QString& xml)
{
    QCOMPARE(readError(element, xml.arg(emptyInterlink)), QString());
    QVERIFY(element.hasInterlink());
    QCOMPARE(element.interlink()->freq()->frequency_MHz(), -9.9);
    QCOMPARE(element.interlink()->power()->power(), -9.9);
    QCOMPARE(element.interlink()->rxThresh()->fieldstrength(), -99999.999);
    QCOMPARE(element.interlink()->antHgt()->length(), 0);
}

/// That new interlink stays, too, when its reading fails.
template <typename Element>
void checkNewInterlinkThatFails(Element& element, const QString& xml)
{
    element.setInterlink(ElementTest::readFrom<XmlStationInterlinkType>(interlinkChild().xml));
    QCOMPARE(readError(element,
                       xml.arg(QStringLiteral("\n<StationInterlink><Frequency unit=\"kHz\">500</Frequency>"
                                              "</StationInterlink>"))),
             QStringLiteral("in XmlStationInterlinkType (line 2, column 74): Unexpected token \"EndElement\"."));
    QVERIFY(element.hasInterlink());
    QCOMPARE(element.interlink()->freq()->frequency_MHz(), 0.5);
    QCOMPARE(element.interlink()->antHgt()->length(), 0);
}

} // namespace ObjectTest

Q_DECLARE_METATYPE(const ObjectTest::Kind*)

namespace ObjectTest {

/// The tests of what the elements of all kinds do. The test of a family says which kinds it has, and adds
/// the rows of errors().
class KindsTest : public QObject {
    Q_OBJECT

protected:
    /// The kinds of the family.
    virtual QVector<const Kind*> kinds() const = 0;

private:
    /// A row for each kind.
    void addKinds() const
    {
        QTest::addColumn<const Kind*>("kind");
        const QVector<const Kind*> all = kinds();
        for (const Kind* kind : all)
            QTest::newRow(kind->name) << kind;
    }

    /// A row for each kind that has a version.
    void addVersionedKinds() const
    {
        QTest::addColumn<const Kind*>("kind");
        const QVector<const Kind*> all = kinds();
        for (const Kind* kind : all) {
            if (kind->version)
                QTest::newRow(kind->name) << kind;
        }
    }

private Q_SLOTS:
    void aNewOne_data() { addKinds(); }
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
        const QVector<const Kind*> all = kinds();
        for (const Kind* kind : all) {
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
        for (const QString& end : std::as_const(ends)) {
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

    void selection_data() { addKinds(); }
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
                const qint64 line = more.size() + 1;
                const qint64 column = child.xml.indexOf(QLatin1Char('>')) + 1;
                QCOMPARE(
                    readError(*kind->make(), kind->document(more)),
                    kind->message(line, column, QString(kind->refusedStart).replace(QStringLiteral("%1"), child.tag)));
            }
        }
        QCOMPARE(complete, kind->completeSelections);
    }

    void letterCase_data() { addKinds(); }
    void letterCase()
    {
        QFETCH(const Kind*, kind);
        for (const Child& child : kind->children) {
            const QString tag = child.tag.toUpper();
            QCOMPARE(readError(*kind->make(), QStringLiteral("<S>\n<%1></%1></S>").arg(tag)),
                     kind->message(2, tag.size() + 2, QString(kind->refusedStart).replace(QStringLiteral("%1"), tag)));
        }
    }

    void whatIsIgnored_data() { addKinds(); }
    void whatIsIgnored()
    {
        QFETCH(const Kind*, kind);
        const auto element = kind->make();
        QString xml = kind->document(kind->all(), {}, QStringLiteral(" other=\"x\" Version=\"2.0\""));
        xml.replace(QStringLiteral("\n"), QStringLiteral("\ntext <!-- comment --><?target data?><![CDATA[1]]>\n"));
        QCOMPARE(readError(*element, xml), QString());
        QCOMPARE(written(*element, QStringLiteral("S")), kind->written(kind->all()));
    }

    void endTag_data() { addKinds(); }
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

    void cutOff_data() { addKinds(); }
    void cutOff()
    {
        QFETCH(const Kind*, kind);
        const auto element = kind->make();
        QString xml = kind->document(kind->all());
        xml.chop(4);
        QCOMPARE(readError(*element, xml), QStringLiteral("Premature end of document."));
        QCOMPARE(written(*element, QStringLiteral("S")), kind->written(kind->all()));
    }

    void judgement_data() { addKinds(); }
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
            for (const QString& tag : std::as_const(tags)) {
                const auto element = kind->make();
                QCOMPARE(readError(*element, kind->document(tags, {tag})), QString());
                QVERIFY2(!element->isValid(), qPrintable(tag));
                QCOMPARE(element->syntaxError(), kind->problems(tags, {tag}));
                QVERIFY(element->syntaxError().contains(kind->child(tag)->problem));
            }
        }
    }

    void copies_data() { addKinds(); }
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
            for (const auto& other : std::as_const(others)) {
                QCOMPARE(written(*other, QStringLiteral("S")), xml);
                QCOMPARE(other->syntaxError(), problems);
            }
        }
    }

    void resetting_data() { addKinds(); }
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

    // Versions and positions

    void versions_data() { addVersionedKinds(); }
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

    void positions_data() { addVersionedKinds(); }
    void positions()
    {
        QFETCH(const Kind*, kind);
        const auto element = kind->make();
        QCOMPARE(readError(*element, kind->document(kind->all())), QString());
        const auto check = [&](QXmlStreamReader& reader, qint64 line, qint64 column) {
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
};

} // namespace ObjectTest
