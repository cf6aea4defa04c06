#include "support/elementtest.h"

#include <arvxml/coverageorders.h>
#include <arvxml/element.h>
#include <arvxml/geometry.h>
#include <arvxml/names.h>
#include <arvxml/orderdef.h>
#include <arvxml/ownership.h>
#include <arvxml/quantities.h>
#include <arvxml/resultgrid.h>
#include <arvxml/signalpaths.h>
#include <arvxml/valuelists.h>

#include <QtCore/QDebug>
#include <QtCore/QVector>

#include <memory>
#include <type_traits>
#include <utility>

using namespace ArvXml;
using ElementTest::readError;
using ElementTest::written;

namespace {

/// An element that makes the operations of the base usable from outside.
class Probe : public XmlElementBase {
public:
    explicit Probe(const QString& className = QStringLiteral("Probe"))
        : XmlElementBase(className)
    {
    }
    Probe(const Probe&) = default;
    Probe& operator=(const Probe&) = default;
    ~Probe() override
    {
        if (m_destroyed)
            *m_destroyed = true;
    }

    using XmlElementBase::addSyntaxError;
    using XmlElementBase::classname;
    using XmlElementBase::clearSyntaxError;
    using XmlElementBase::mySyntaxError;
    using XmlElementBase::setReaderError;

    void processXml(QXmlStreamReader&, const QString&) override { }
    void produceXml(QXmlStreamWriter&, const QString&) const override { }
    bool isValid() const override { return true; }
    QString syntaxError() override { return mySyntaxError(); }

    void noteDestruction(bool* destroyed) { m_destroyed = destroyed; }

private:
    bool* m_destroyed = nullptr;
};

/// An element of the protocol that counts how often it is checked and shows its stored problems.
template <typename Base>
class Watched : public Base {
public:
    using Base::mySyntaxError;
    bool isValid() const override
    {
        ++m_checks;
        return Base::isValid();
    }
    QString syntaxError() override
    {
        ++m_checks;
        return Base::syntaxError();
    }
    int checks() const { return m_checks; }

private:
    mutable int m_checks = 0;
};

// What is not public cannot be called from here.
#define DETECT(Name, expression)                                                                                       \
    template <typename T, typename = void>                                                                             \
    struct Name : std::false_type {                                                                                    \
    };                                                                                                                 \
    template <typename T>                                                                                              \
    struct Name<T, std::void_t<decltype(expression)>> : std::true_type {                                               \
    };
DETECT(CallsClassname, std::declval<T&>().classname())
DETECT(CallsSetReaderError, std::declval<T&>().setReaderError(std::declval<QXmlStreamReader&>(), QString()))
DETECT(CallsAddSyntaxError, std::declval<T&>().addSyntaxError(QString()))
DETECT(CallsClearSyntaxError, std::declval<T&>().clearSyntaxError())
DETECT(CallsMySyntaxError, std::declval<T&>().mySyntaxError())
DETECT(CallsSupportsVersion, std::declval<const T&>().supportsVersion())
#undef DETECT

/// Goes on to the next token of the kind given. Returns whether there is one.
bool advanceTo(QXmlStreamReader& reader, QXmlStreamReader::TokenType token)
{
    while (reader.tokenType() != token) {
        if (reader.atEnd())
            return false;
        reader.readNext();
    }
    return true;
}

/// A child to be held, which counts its objects and the assignments made.
struct Held {
    static int alive;
    static int assignments;

    int value = 7;

    Held() { ++alive; }
    explicit Held(int v)
        : value(v)
    {
        ++alive;
    }
    Held(const Held& other)
        : value(other.value)
    {
        ++alive;
    }
    Held& operator=(const Held& other) noexcept
    {
        value = other.value;
        ++assignments;
        return *this;
    }
    ~Held()
    {
        value = -1;
        --alive;
    }
};
int Held::alive = 0;
int Held::assignments = 0;

using Child = OptionalChild<Held>;

template <typename Pointers>
QVector<int> valuesOf(const OwnedList<Held, Pointers>& list)
{
    QVector<int> values;
    for (const Held* item : list.items())
        values.append(item->value);
    return values;
}

OwnedList<Held> listOf(const QVector<int>& values)
{
    OwnedList<Held> list;
    for (const int value : values)
        list.append(Held(value));
    return list;
}

constexpr auto noToken = QXmlStreamReader::NoToken;

} // namespace

Q_DECLARE_METATYPE(QXmlStreamReader::TokenType)

class ElementTestCase : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Held::alive = 0;
        Held::assignments = 0;
    }

    // The interface and the base

    void theInterface()
    {
        static_assert(std::is_abstract_v<IXmlElement>);
        static_assert(std::has_virtual_destructor_v<IXmlElement>);
        static_assert(std::is_abstract_v<XmlElementBase>);
        static_assert(std::is_base_of_v<IXmlElement, XmlElementBase>);
        static_assert(std::is_base_of_v<XmlElementBase, XmlDBMType>);
        static_assert(std::is_same_v<decltype(&IXmlElement::processXml),
                                     void (IXmlElement::*)(QXmlStreamReader&, const QString&)>);
        static_assert(std::is_same_v<decltype(&IXmlElement::produceXml),
                                     void (IXmlElement::*)(QXmlStreamWriter&, const QString&) const>);
        static_assert(std::is_same_v<decltype(&IXmlElement::isValid), bool (IXmlElement::*)() const>);
        static_assert(std::is_same_v<decltype(&IXmlElement::syntaxError), QString (IXmlElement::*)()>);
        static_assert(std::is_same_v<decltype(&IXmlElement::reset), void (IXmlElement::*)()>);
        static_assert(std::is_same_v<decltype(std::declval<const Probe&>().classname()), const QString&>);
        static_assert(std::is_same_v<decltype(std::declval<Probe&>().mySyntaxError()), QString>);

        // The helpers are for elements only; the probe shows that the question is put rightly.
        static_assert(CallsClassname<Probe>::value && !CallsClassname<XmlDBMType>::value);
        static_assert(CallsSetReaderError<Probe>::value && !CallsSetReaderError<XmlDBMType>::value);
        static_assert(CallsAddSyntaxError<Probe>::value && !CallsAddSyntaxError<XmlDBMType>::value);
        static_assert(CallsClearSyntaxError<Probe>::value && !CallsClearSyntaxError<XmlDBMType>::value);
        static_assert(CallsMySyntaxError<Probe>::value && !CallsMySyntaxError<XmlDBMType>::value);
        static_assert(CallsSupportsVersion<XmlStationInterlinkType>::value && !CallsSupportsVersion<XmlDBMType>::value);
        static_assert(!CallsSupportsVersion<XmlDBMListType>::value);

        // Nothing of the above can fail at run time, but deleting through the interface can.
        bool destroyed = false;
        auto* probe = new Probe;
        probe->noteDestruction(&destroyed);
        const IXmlElement* element = probe;
        delete element;
        QVERIFY(destroyed);
    }

    void aNewElement()
    {
        Probe probe(QStringLiteral("SomeType"));
        QCOMPARE(probe.classname(), QStringLiteral("SomeType"));
        QVERIFY(probe.mySyntaxError().isEmpty());
    }

    void addSyntaxError_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QString>("block");
        QTest::newRow("nothing added") << QStringList() << QString();
        QTest::newRow("an empty text alone adds nothing") << QStringList{QString()} << QString();
        QTest::newRow("one text") << QStringList{QStringLiteral("one.")}
                                  << QStringLiteral("+++ in Probe Begin:\none.\n--- in Probe End");
        QTest::newRow("two texts are joined by one line feed")
            << QStringList{QStringLiteral("one."), QStringLiteral("two.")}
            << QStringLiteral("+++ in Probe Begin:\none.\ntwo.\n--- in Probe End");
        QTest::newRow("empty texts between leave no line")
            << QStringList{QString(),         QStringLiteral("one."), QString(),
                           QLatin1String(""), QStringLiteral("two."), QString()}
            << QStringLiteral("+++ in Probe Begin:\none.\ntwo.\n--- in Probe End");
        QTest::newRow("a text keeps its own line feeds")
            << QStringList{QStringLiteral("one\n"), QStringLiteral("\ntwo")}
            << QStringLiteral("+++ in Probe Begin:\none\n\n\ntwo\n--- in Probe End");
        QTest::newRow("a blank is a text")
            << QStringList{QStringLiteral(" ")} << QStringLiteral("+++ in Probe Begin:\n \n--- in Probe End");
        QTest::newRow("the same text twice") << QStringList{QStringLiteral("x"), QStringLiteral("x")}
                                             << QStringLiteral("+++ in Probe Begin:\nx\nx\n--- in Probe End");
    }
    void addSyntaxError()
    {
        QFETCH(QStringList, texts);
        QFETCH(QString, block);
        Probe probe;
        for (const QString& text : std::as_const(texts))
            probe.addSyntaxError(text);
        QCOMPARE(probe.mySyntaxError(), block);
        QCOMPARE(probe.mySyntaxError(), block); // asking changes nothing
    }

    void placeholdersInBlocks_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("block");
        QTest::newRow("the text contains %1") << QStringLiteral("T") << QStringLiteral("a %1 b")
                                              << QStringLiteral("+++ in T Begin:\na %1 b\n--- in T End");
        QTest::newRow("the text contains %2") << QStringLiteral("T") << QStringLiteral("a %2 b")
                                              << QStringLiteral("+++ in T Begin:\na %2 b\n--- in T End");
        QTest::newRow("the text contains %1, %2 and %3")
            << QStringLiteral("T") << QStringLiteral("%1%2%3 100%")
            << QStringLiteral("+++ in T Begin:\n%1%2%3 100%\n--- in T End");
        QTest::newRow("the class name contains %2")
            << QStringLiteral("T%2") << QStringLiteral("x") << QStringLiteral("+++ in T%2 Begin:\nx\n--- in T%2 End");
    }
    void placeholdersInBlocks()
    {
        QFETCH(QString, className);
        QFETCH(QString, text);
        QFETCH(QString, block);
        Probe probe(className);
        probe.addSyntaxError(text);
        QCOMPARE(probe.mySyntaxError(), block);
    }

    void forgettingProblems()
    {
        Probe probe;
        probe.addSyntaxError(QStringLiteral("one"));
        probe.clearSyntaxError();
        QVERIFY(probe.mySyntaxError().isEmpty());
        probe.addSyntaxError(QStringLiteral("two"));
        QCOMPARE(probe.mySyntaxError(), QStringLiteral("+++ in Probe Begin:\ntwo\n--- in Probe End"));

        IXmlElement& element = probe;
        element.reset();
        QVERIFY(probe.mySyntaxError().isEmpty());
        QCOMPARE(probe.classname(), QStringLiteral("Probe"));
    }

    void setReaderError_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("error");
        const QString xml = QStringLiteral("<a>\n  <b>\n");
        QTest::newRow("a message") << QStringLiteral("XmlSomeType") << QStringLiteral("Some message") << xml
                                   << QStringLiteral("in XmlSomeType (line 1, column 3): Some message.");
        QTest::newRow("a full stop is always added") << QStringLiteral("T") << QStringLiteral("Stop.") << xml
                                                     << QStringLiteral("in T (line 1, column 3): Stop..");
        QTest::newRow("an empty message")
            << QStringLiteral("T") << QString() << xml << QStringLiteral("in T (line 1, column 3): .");
        QTest::newRow("the message contains placeholders")
            << QStringLiteral("T") << QStringLiteral("%1 %2 %3 %4 %5") << xml
            << QStringLiteral("in T (line 1, column 3): %1 %2 %3 %4 %5.");
        QTest::newRow("the class name contains placeholders") << QStringLiteral("T%1%4") << QStringLiteral("m") << xml
                                                              << QStringLiteral("in T%1%4 (line 1, column 3): m.");
        QTest::newRow("large numbers have no separators")
            << QStringLiteral("T") << QStringLiteral("m")
            << QString(QStringLiteral("<!--") + QString(1233, QLatin1Char('\n')) + QStringLiteral("-->")
                       + QString(2000, QLatin1Char(' ')) + QStringLiteral("<a>"))
            << QStringLiteral("in T (line 1234, column 2006): m.");
    }
    void setReaderError()
    {
        QFETCH(QString, className);
        QFETCH(QString, message);
        QFETCH(QString, xml);
        QFETCH(QString, error);
        QXmlStreamReader reader(xml);
        QVERIFY(advanceTo(reader, QXmlStreamReader::StartElement));
        Probe probe(className);
        probe.setReaderError(reader, message);
        QVERIFY(reader.hasError());
        QCOMPARE(reader.error(), QXmlStreamReader::CustomError);
        QCOMPARE(reader.errorString(), error);
        QVERIFY(probe.mySyntaxError().isEmpty()); // reader errors are no problems of the content
    }

    void setReaderErrorFollowsTheReader()
    {
        QXmlStreamReader reader(QStringLiteral("<a>\n  <b>\n"));
        QVERIFY(advanceTo(reader, QXmlStreamReader::Characters));
        QVERIFY(advanceTo(reader, QXmlStreamReader::StartElement));
        Probe probe;
        probe.setReaderError(reader, QStringLiteral("first"));
        QCOMPARE(reader.errorString(), QStringLiteral("in Probe (line 2, column 5): first."));
        Probe other(QStringLiteral("Other"));
        other.setReaderError(reader, QStringLiteral("last"));
        QCOMPARE(reader.errorString(), QStringLiteral("in Other (line 2, column 5): last."));
    }

    void copies()
    {
        Probe original(QStringLiteral("Original"));
        original.addSyntaxError(QStringLiteral("one"));
        Probe copy(original);
        QCOMPARE(copy.classname(), QStringLiteral("Original"));
        QCOMPARE(copy.mySyntaxError(), QStringLiteral("+++ in Original Begin:\none\n--- in Original End"));
        original.addSyntaxError(QStringLiteral("two"));
        QCOMPARE(copy.mySyntaxError(), QStringLiteral("+++ in Original Begin:\none\n--- in Original End"));

        Probe target(QStringLiteral("Target"));
        target.addSyntaxError(QStringLiteral("old"));
        QCOMPARE(&(target = copy), &target);
        QCOMPARE(target.classname(), QStringLiteral("Original"));
        QCOMPARE(target.mySyntaxError(), QStringLiteral("+++ in Original Begin:\none\n--- in Original End"));
        copy.reset();
        QCOMPARE(target.mySyntaxError(), QStringLiteral("+++ in Original Begin:\none\n--- in Original End"));

        const Probe& self = target;
        target = self;
        QCOMPARE(target.classname(), QStringLiteral("Original"));
        QCOMPARE(target.mySyntaxError(), QStringLiteral("+++ in Original Begin:\none\n--- in Original End"));
    }

    // Versions

    void versions_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("problem");
        QTest::newRow("1.0 is supported") << QStringLiteral("1.0") << QString();
        QTest::newRow("2.0 is not") << QStringLiteral("2.0") << QStringLiteral("Version \"2.0\" not supported");
        QTest::newRow("1 is not") << QStringLiteral("1") << QStringLiteral("Version \"1\" not supported");
        QTest::newRow("1.00 is not") << QStringLiteral("1.00") << QStringLiteral("Version \"1.00\" not supported");
        QTest::newRow("a blank before counts")
            << QStringLiteral(" 1.0") << QStringLiteral("Version \" 1.0\" not supported");
        QTest::newRow("a blank after counts")
            << QStringLiteral("1.0 ") << QStringLiteral("Version \"1.0 \" not supported");
        QTest::newRow("an empty version is not") << QString() << QStringLiteral("Version \"\" not supported");
        QTest::newRow("a placeholder is shown as it is")
            << QStringLiteral("%1") << QStringLiteral("Version \"%1\" not supported");
    }
    void versions()
    {
        QFETCH(QString, version);
        QFETCH(QString, problem);
        XmlPowerType power;
        QCOMPARE(power.version(), QStringLiteral("1.0"));
        power.setVersion(version);
        QCOMPARE(power.version(), version);
        static_assert(std::is_same_v<decltype(power.version()), QString>);
        QCOMPARE(power.isValid(), problem.isEmpty());
        QCOMPARE(power.syntaxError(),
                 problem.isEmpty() ? QString()
                                   : QString(QStringLiteral("+++ in XmlPowerType Begin:\n") + problem
                                             + QStringLiteral("\n--- in XmlPowerType End")));
        const XmlPowerType copy = power;
        power.reset();
        QCOMPARE(power.version(), QStringLiteral("1.0"));
        QCOMPARE(copy.version(), version);
    }

    void writingAVersion()
    {
        XmlSinadType sinad;
        sinad.setVersion(QStringLiteral("<2>"));
        QCOMPARE(written(sinad, QStringLiteral("a")), QStringLiteral("<a version=\"&lt;2&gt;\">0.000000</a>"));
    }

    void readingAVersion_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QString>("version");
        QTest::newRow("none") << QString() << QStringLiteral("1.0");
        QTest::newRow("empty") << QStringLiteral(" version=\"\"") << QStringLiteral("1.0");
        QTest::newRow("1.0") << QStringLiteral(" version=\"1.0\"") << QStringLiteral("1.0");
        QTest::newRow("2.0") << QStringLiteral(" version=\"2.0\"") << QStringLiteral("2.0");
        QTest::newRow("another case of letters") << QStringLiteral(" Version=\"2.0\"") << QStringLiteral("1.0");
        QTest::newRow("among other attributes")
            << QStringLiteral(" x=\"1\" version=\"3\" y=\"2\"") << QStringLiteral("3");
    }
    void readingAVersion()
    {
        QFETCH(QString, attributes);
        QFETCH(QString, version);
        const QString item = QStringLiteral("<dBm>3</dBm>");
        const QString problem = QStringLiteral("Version \"%1\" not supported").arg(version);

        XmlDBMType leaf;
        leaf.setVersion(QStringLiteral("9"));
        QCOMPARE(readError(leaf, QStringLiteral("<a%1>3</a>").arg(attributes)), QString());
        QCOMPARE(leaf.version(), version);
        QCOMPARE(leaf.dBm(), 3.0);
        QCOMPARE(leaf.isValid(), version == QStringLiteral("1.0"));
        QCOMPARE(leaf.syntaxError().contains(problem), version != QStringLiteral("1.0"));

        XmlDBMListType list;
        list.setVersion(QStringLiteral("9"));
        QCOMPARE(readError(list, QStringLiteral("<a%1>%2</a>").arg(attributes, item)), QString());
        QCOMPARE(list.version(), version);
        QCOMPARE(list.dBmList().size(), 1);
        QCOMPARE(list.isValid(), version == QStringLiteral("1.0"));
        QCOMPARE(list.syntaxError().contains(problem), version != QStringLiteral("1.0"));
    }

    void compositesRefuseOtherVersions()
    {
        XmlCoordinateType position;
        position.setLongitude(1.0);
        QCOMPARE(readError(position,
                           QStringLiteral("<P\n version=\"2.0\">\n<Longitude>8</Longitude><Latitude>9</Latitude></P>")),
                 QStringLiteral("in XmlCoordinateType (line 2, column 15): Version not supported: 2.0."));
        QCOMPARE(position.version(), QStringLiteral("2.0"));
        QCOMPARE(position.longitude(), 1.0);

        // The version of an earlier reading is forgotten.
        const QString xml = QStringLiteral("<P><Longitude>8</Longitude><Latitude>9</Latitude></P>");
        QCOMPARE(readError(position, xml), QString());
        QCOMPARE(position.version(), QStringLiteral("1.0"));
        QCOMPARE(position.longitude(), 8.0);
        QCOMPARE(readError(position, QStringLiteral("<P version=\"%1\"/>")),
                 QStringLiteral("in XmlCoordinateType (line 1, column 17): Version not supported: %1."));
    }

    // The tokens that an element meets

    void wrongPosition_data()
    {
        QTest::addColumn<QXmlStreamReader::TokenType>("position");
        QTest::addColumn<QString>("where");
        QTest::newRow("after the document's start")
            << QXmlStreamReader::StartDocument << QStringLiteral("line 1, column 2");
        QTest::newRow("on a document type") << QXmlStreamReader::DTD << QStringLiteral("line 1, column 12");
        QTest::newRow("on text") << QXmlStreamReader::Characters << QStringLiteral("line 2, column 3");
        QTest::newRow("on a comment") << QXmlStreamReader::Comment << QStringLiteral("line 2, column 10");
        QTest::newRow("on a processing instruction")
            << QXmlStreamReader::ProcessingInstruction << QStringLiteral("line 2, column 15");
        QTest::newRow("on an end tag") << QXmlStreamReader::EndElement << QStringLiteral("line 2, column 19");
        QTest::newRow("at the document's end") << QXmlStreamReader::EndDocument << QStringLiteral("line 2, column 19");
    }
    void wrongPosition()
    {
        QFETCH(QXmlStreamReader::TokenType, position);
        QFETCH(QString, where);
        XmlPowerType power;
        XmlDBMListType list;
        XmlCoordinateType coordinate;
        power.setPower(5.0);
        coordinate.setLongitude(5.0);
        const XmlDBMType item;
        list.setDBMList({const_cast<XmlDBMType*>(&item)});

        const QVector<std::pair<XmlElementBase*, QString>> elements = {
            {&power, QStringLiteral("XmlPowerType")},
            {&list, QStringLiteral("XmlDBMListType")},
            {&coordinate, QStringLiteral("XmlCoordinateType")},
        };
        for (const auto& [element, name] : elements) {
            QXmlStreamReader reader(QStringLiteral("<!DOCTYPE a><a version=\"2.0\">\n1 <!--c--><?p?></a>"));
            QVERIFY(advanceTo(reader, position));
            const qint64 offset = reader.characterOffset();
            element->processXml(reader, QStringLiteral("a"));
            QCOMPARE(reader.errorString(),
                     QStringLiteral("in %1 (%2): Parse error (wrong position).").arg(name, where));
            QCOMPARE(reader.characterOffset(), offset); // no further token was read
        }
        QCOMPARE(power.power(), 5.0);
        QCOMPARE(power.unit(), QStringLiteral("W"));
        QCOMPARE(coordinate.longitude(), 5.0);
        QVERIFY(list.dBmList().isEmpty()); // emptied first of all
    }

    void wrongPositionBeforeTheFirstToken()
    {
        QXmlStreamReader reader(QStringLiteral("<a version=\"2.0\" unit=\"W\">5</a>"));
        XmlPowerType power;
        power.setVersion(QStringLiteral("3.0"));
        QCOMPARE(reader.tokenType(), noToken);
        power.processXml(reader, QStringLiteral("a"));
        QVERIFY(reader.errorString().startsWith(QStringLiteral("in XmlPowerType (line 1, column ")));
        QVERIFY(reader.errorString().endsWith(QStringLiteral("): Parse error (wrong position).")));
        QCOMPARE(power.power(), -9.9);
        QCOMPARE(power.version(), QStringLiteral("1.0")); // restored first of all, no attribute taken
    }

    void wrongPositionReplacesAnEarlierError()
    {
        QXmlStreamReader reader(QStringLiteral("<a></b>"));
        while (!reader.atEnd())
            reader.readNext();
        QCOMPARE(reader.errorString(), QStringLiteral("Opening and ending tag mismatch."));
        XmlPowerType power;
        power.processXml(reader, QStringLiteral("a"));
        QCOMPARE(reader.errorString(),
                 QStringLiteral("in XmlPowerType (line 1, column 7): Parse error (wrong position)."));
    }

    void theDocumentsStartAndEnd()
    {
        // Elements that do not ask for a start tag go into their loop at once.
        QXmlStreamReader fresh(QStringLiteral("<a>50</a>"));
        XmlResultGridType grid;
        grid.processXml(fresh, QStringLiteral("a"));
        QCOMPARE(fresh.errorString(),
                 QStringLiteral("in XmlResultGridType (line 1, column 2): Unexpected token \"StartDocument\"."));
        QCOMPARE(int(grid.size()), 0);

        QXmlStreamReader done(QStringLiteral("<a>50</a>"));
        QVERIFY(advanceTo(done, QXmlStreamReader::EndElement));
        grid.processXml(done, QStringLiteral("a"));
        QCOMPARE(done.errorString(),
                 QStringLiteral("in XmlResultGridType (line 1, column 9): Unexpected token \"EndDocument\"."));

        QXmlStreamReader freshOrder(QStringLiteral("<a>50</a>"));
        XmlOrderDef order;
        order.processXml(freshOrder, QStringLiteral("a"));
        QCOMPARE(freshOrder.errorString(),
                 QStringLiteral("in XmlOrderDef (line 1, column 2): Unexpected token \"StartDocument\"."));
        QXmlStreamReader doneOrder(QStringLiteral("<a>\n50</a>"));
        QVERIFY(advanceTo(doneOrder, QXmlStreamReader::EndElement));
        order.processXml(doneOrder, QStringLiteral("a"));
        QCOMPARE(doneOrder.errorString(),
                 QStringLiteral("in XmlOrderDef (line 2, column 6): Unexpected token \"EndDocument\"."));

        // At the very end there is no token left to read, and no error.
        QXmlStreamReader over(QStringLiteral("<a>50</a>"));
        QVERIFY(advanceTo(over, QXmlStreamReader::EndDocument));
        grid.processXml(over, QStringLiteral("a"));
        QVERIFY(!over.hasError());
        QCOMPARE(int(grid.size()), 0);
    }

    void aDocumentTypeIsIgnored()
    {
        QXmlStreamReader reader(QStringLiteral("<!DOCTYPE a><a>50</a>"));
        QCOMPARE(reader.readNext(), QXmlStreamReader::StartDocument);
        XmlResultGridType grid;
        grid.processXml(reader, QStringLiteral("a"));
        QCOMPARE(reader.errorString(),
                 QStringLiteral("in XmlResultGridType (line 1, column 15): Unexpected token \"StartElement\"."));
    }

    void ignoredTokensInALeaf_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<double>("value");
        QTest::newRow("a comment before") << QStringLiteral("<a><!-- 9 -->5</a>") << 5.0;
        QTest::newRow("a comment after") << QStringLiteral("<a>5<!-- 9 --></a>") << 5.0;
        QTest::newRow("a processing instruction before") << QStringLiteral("<a><?p 9?>5</a>") << 5.0;
        QTest::newRow("a processing instruction after") << QStringLiteral("<a>5<?p 9?></a>") << 5.0;
        QTest::newRow("a reference that cannot be resolved")
            << QStringLiteral("<!DOCTYPE a SYSTEM \"a.dtd\"><a>5&nine;</a>") << 5.0;
        QTest::newRow("a CDATA section is text") << QStringLiteral("<a><![CDATA[5]]></a>") << 5.0;
        QTest::newRow("character references are text") << QStringLiteral("<a>&#53;</a>") << 5.0;
        QTest::newRow("a resolved reference is text")
            << QStringLiteral("<!DOCTYPE a [<!ENTITY five \"5\">]><a>&five;2</a>") << 52.0;
        QTest::newRow("each piece of text counts by itself") << QStringLiteral("<a>1<!-- -->2</a>") << 2.0;
        QTest::newRow("a CDATA section is a piece by itself") << QStringLiteral("<a>1<![CDATA[2]]>3</a>") << 3.0;
        QTest::newRow("no text at all keeps the value") << QStringLiteral("<a><!-- 9 --></a>") << 1.5;
    }
    void ignoredTokensInALeaf()
    {
        QFETCH(QString, xml);
        QFETCH(double, value);
        XmlSinadType sinad;
        sinad.setSinad(1.5);
        QCOMPARE(readError(sinad, xml), QString());
        QCOMPARE(sinad.sinad(), value);
    }

    void ignoredTokensInAList_data()
    {
        QTest::addColumn<QString>("between");
        QTest::newRow("blanks") << QStringLiteral(" \t\r\n ");
        QTest::newRow("text") << QStringLiteral("text 5");
        QTest::newRow("a CDATA section") << QStringLiteral("<![CDATA[<dBm>]]>");
        QTest::newRow("a comment") << QStringLiteral("<!-- <dBm> -->");
        QTest::newRow("a processing instruction") << QStringLiteral("<?p x?>");
        QTest::newRow("a reference that cannot be resolved") << QStringLiteral("&what;");
    }
    void ignoredTokensInAList()
    {
        QFETCH(QString, between);
        const QString documentType = QStringLiteral("<!DOCTYPE a SYSTEM \"a.dtd\">");

        XmlDBMListType list;
        QCOMPARE(
            readError(list,
                      documentType
                          + QStringLiteral("<a>~<dBm>1</dBm>~<dBm>2</dBm>~</a>").replace(QLatin1Char('~'), between)),
            QString());
        QCOMPARE(list.dBmList().size(), 2);
        QCOMPARE(list.dBmList().at(0)->dBm(), 1.0);
        QCOMPARE(list.dBmList().at(1)->dBm(), 2.0);

        XmlCoordinateType coordinate;
        QCOMPARE(readError(coordinate,
                           documentType
                               + QStringLiteral("<a>~<Longitude>1</Longitude>~<Latitude>2</Latitude>~</a>")
                                     .replace(QLatin1Char('~'), between)),
                 QString());
        QCOMPARE(coordinate.longitude(), 1.0);
        QCOMPARE(coordinate.latitude(), 2.0);
    }

    void refusedTags_data()
    {
        QTest::addColumn<int>("kind"); // 0 a leaf, 1 a list, 2 a composite
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("error");
        const QString a = QStringLiteral("a");
        QTest::newRow("a tag in a leaf")
            << 0 << a << QStringLiteral("<a><b>\n</b></a>")
            << QStringLiteral("in XmlResultGridType (line 1, column 6): Unexpected token \"StartElement\".");
        QTest::newRow("the own tag in a leaf")
            << 0 << a << QStringLiteral("<a><a/></a>")
            << QStringLiteral("in XmlResultGridType (line 1, column 7): Unexpected token \"StartElement\".");
        QTest::newRow("another end tag of a leaf")
            << 0 << QStringLiteral("b") << QStringLiteral("<a>50</a>")
            << QStringLiteral("in XmlResultGridType (line 1, column 9): Unexpected token \"EndElement\".");
        QTest::newRow("an unknown tag in a list")
            << 1 << a << QStringLiteral("<a>\n  <dBm>1</dBm>\n  <b>\n</b></a>")
            << QStringLiteral("in XmlDBMListType (line 3, column 5): Unexpected element \"b\".");
        QTest::newRow("the letters of tags are compared exactly")
            << 1 << a << QStringLiteral("<a><dbm>1</dbm></a>")
            << QStringLiteral("in XmlDBMListType (line 1, column 8): Unexpected element \"dbm\".");
        QTest::newRow("another end tag of a list")
            << 1 << QStringLiteral("b") << QStringLiteral("<a><dBm>1</dBm></a>")
            << QStringLiteral("in XmlDBMListType (line 1, column 19): Unexpected token \"EndElement\".");
        QTest::newRow("the end tag of an incomplete list")
            << 1 << a << QStringLiteral("<a>\n</a>")
            << QStringLiteral("in XmlDBMListType (line 2, column 4): Unexpected token \"EndElement\".");
        QTest::newRow("an unknown tag in a composite")
            << 2 << a << QStringLiteral("<a>\n<b/></a>")
            << QStringLiteral("in XmlCoordinateType (line 2, column 4): Unexpected token \"StartElement\": b.");
        QTest::newRow("another end tag of a composite")
            << 2 << QStringLiteral("b") << QStringLiteral("<a><Longitude>1</Longitude><Latitude>2</Latitude>\n</a>")
            << QStringLiteral("in XmlCoordinateType (line 2, column 4): Unexpected token \"EndElement\": a.");
        QTest::newRow("the end tag of an incomplete composite")
            << 2 << a << QStringLiteral("<a><Longitude>1</Longitude></a>")
            << QStringLiteral("in XmlCoordinateType (line 1, column 31): Unexpected token \"EndElement\": a.");
    }
    void refusedTags()
    {
        QFETCH(int, kind);
        QFETCH(QString, tag);
        QFETCH(QString, xml);
        QFETCH(QString, error);
        XmlResultGridType leaf;
        leaf.setSize(XmlResultGridType::Grid50);
        XmlDBMListType list;
        XmlCoordinateType composite;
        XmlElementBase* const elements[] = {&leaf, &list, &composite};
        QXmlStreamReader reader(xml);
        QVERIFY(advanceTo(reader, QXmlStreamReader::StartElement));
        elements[kind]->processXml(reader, tag);
        QCOMPARE(reader.errorString(), error);
    }

    void tagsAreLocalNames()
    {
        XmlDBMListType list;
        QXmlStreamReader reader(QStringLiteral("<p:a xmlns:p=\"urn:x\"><p:dBm>1</p:dBm></p:a><!---->"));
        QVERIFY(advanceTo(reader, QXmlStreamReader::StartElement));
        list.processXml(reader, QStringLiteral("a"));
        QCOMPARE(reader.errorString(), QString());
        QCOMPARE(list.dBmList().size(), 1);
        QCOMPARE(reader.tokenType(), QXmlStreamReader::EndElement); // read up to the own end tag
        QCOMPARE(reader.name().toString(), QStringLiteral("a"));
    }

    void theReadersOwnErrors_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("error");
        QTest::addColumn<int>("code");
        const int premature = QXmlStreamReader::PrematureEndOfDocumentError;
        const int malformed = QXmlStreamReader::NotWellFormedError;
        const QString prematureText = QStringLiteral("Premature end of document.");
        const QString mismatch = QStringLiteral("Opening and ending tag mismatch.");
        QTest::newRow("nothing follows the start tag") << QStringLiteral("<a>") << prematureText << premature;
        QTest::newRow("cut in a comment") << QStringLiteral("<a><!-- ") << prematureText << premature;
        QTest::newRow("cut in an end tag") << QStringLiteral("<a></") << prematureText << premature;
        QTest::newRow("end tags that do not fit") << QStringLiteral("<a></b>") << mismatch << malformed;
        QTest::newRow("a reference to nothing")
            << QStringLiteral("<a>&b;</a>") << QStringLiteral("Entity 'b' not declared.") << malformed;
    }
    void theReadersOwnErrors()
    {
        QFETCH(QString, xml);
        QFETCH(QString, error);
        QFETCH(int, code);
        XmlResultGridType grid;
        XmlSinadType sinad;
        XmlDBMListType list;
        XmlCoordinateType coordinate;
        XmlOrderDef order;
        for (XmlElementBase* element : {static_cast<XmlElementBase*>(&grid), static_cast<XmlElementBase*>(&sinad),
                                        static_cast<XmlElementBase*>(&list), static_cast<XmlElementBase*>(&coordinate),
                                        static_cast<XmlElementBase*>(&order)}) {
            QXmlStreamReader reader(xml);
            QVERIFY(advanceTo(reader, QXmlStreamReader::StartElement));
            element->processXml(reader, QStringLiteral("a"));
            QCOMPARE(reader.errorString(), error); // not framed by our class
            QCOMPARE(int(reader.error()), code);
        }
    }

    void anEarlierErrorEndsReadingAtOnce()
    {
        QXmlStreamReader reader(QStringLiteral("<a>50</a>"));
        QVERIFY(advanceTo(reader, QXmlStreamReader::StartElement));
        reader.raiseError(QStringLiteral("Earlier."));
        const qint64 offset = reader.characterOffset();
        XmlResultGridType grid;
        grid.setSize(XmlResultGridType::Grid10);
        grid.processXml(reader, QStringLiteral("a"));
        QCOMPARE(reader.errorString(), QStringLiteral("Earlier."));
        QCOMPARE(reader.characterOffset(), offset);
        QCOMPARE(int(grid.size()), int(XmlResultGridType::Grid10));
    }

    void aNestedErrorStopsAll()
    {
        XmlFreqThrListType list;
        QCOMPARE(readError(list,
                           QStringLiteral("<L>\n"
                                          " <Pair>\n"
                                          "  <Frequency unit=\"MHz\">5</Frequency>\n"
                                          "  <RxThreshold unit=\"dBm\">loud</RxThreshold>\n"
                                          " </Pair>\n"
                                          " <Pair><Frequency unit=\"MHz\">6</Frequency>"
                                          "<RxThreshold unit=\"dBm\">-80</RxThreshold></Pair>\n"
                                          "</L>")),
                 QStringLiteral("in XmlFieldstrengthType (line 4, column 31): Illegal value (must be numeric)."));
        QCOMPARE(list.freqThrPairs().size(), 1);
        QCOMPARE(list.freqThrPairs().at(0)->frequency()->frequency_MHz(), 5.0);

        XmlAreaRectType area;
        QCOMPARE(readError(area,
                           QStringLiteral("<R><UpperLeft><Wrong/></UpperLeft><LowerRight><Longitude>1</Longitude>"
                                          "<Latitude>2</Latitude></LowerRight></R>")),
                 QStringLiteral("in XmlCoordinateType (line 1, column 22): Unexpected token \"StartElement\": Wrong."));
        QCOMPARE(area.lowerRight()->longitude(), -999.999);
    }

    void theExampleOfAnIllegalValue()
    {
        XmlDBMListType list;
        const QString xml = QStringLiteral("<L>") + QString(11, QLatin1Char('\n'))
            + QStringLiteral("<dBm unit=\"dBm\">not a number!</dBm></L>");
        QCOMPARE(readError(list, xml),
                 QStringLiteral("in XmlDBMType (line 12, column 30): Illegal value (must be numeric)."));
        QCOMPARE(list.dBmList().size(), 1);
        QCOMPARE(list.dBmList().at(0)->dBm(), -110.0);
    }

    void theFirstIllegalPieceOfTextEndsReading()
    {
        XmlSinadType sinad;
        sinad.setSinad(4.0);
        QCOMPARE(readError(sinad, QStringLiteral("<S>\n3<!-- -->abc<!-- -->5</S>")),
                 QStringLiteral("in XmlSinadType (line 2, column 13): Illegal value (must be numeric)."));
        QCOMPARE(sinad.sinad(), 0.0);
    }

    void aMissingAttributeDoesNotHideTheVersion()
    {
        XmlPowerType power;
        QCOMPARE(readError(power, QStringLiteral("<P version=\"2.0\">\n5</P>")),
                 QStringLiteral("in XmlPowerType (line 1, column 17): Missing attribute: \"unit\"."));
        QCOMPARE(power.version(), QStringLiteral("2.0"));
        QCOMPARE(power.power(), -9.9); // its text was not read
    }

    // Checking

    void readingAndWritingDoNotCheck()
    {
        Watched<XmlSinadType> sinad;
        QCOMPARE(readError(sinad, QStringLiteral("<S version=\"7\">-5</S>")), QString());
        QCOMPARE(sinad.sinad(), -5.0);
        QCOMPARE(written(sinad, QStringLiteral("S")), QStringLiteral("<S version=\"7\">-5.000000</S>"));
        QCOMPARE(sinad.checks(), 0);
        QVERIFY(sinad.mySyntaxError().isEmpty());

        Watched<XmlDBMListType> list;
        QCOMPARE(readError(list, QStringLiteral("<L version=\"7\"><dBm version=\"8\">-5</dBm></L>")), QString());
        QCOMPARE(written(list, QStringLiteral("L")),
                 QStringLiteral("<L version=\"7\"><dBm version=\"8\" unit=\"dBm\">-5.000000000</dBm></L>"));
        QCOMPARE(list.checks(), 0);
        QVERIFY(list.mySyntaxError().isEmpty());
    }

    void aCarriageReturnComesBackAsALineFeed()
    {
        // Only a character reference brings one in. The stream writer does not make a reference of it again, and XML
        // takes what it writes for the end of a line.
        XmlObjNameType name;
        QCOMPARE(readError(name, QStringLiteral("<Name>Hill&#13;Top&#13;&#10;North</Name>")), QString());
        QCOMPARE(name.objName(), QStringLiteral("Hill\rTop\r\nNorth"));
        QCOMPARE(written(name, QStringLiteral("Name")), QStringLiteral("<Name>Hill\rTop\r\nNorth</Name>"));
        QCOMPARE(readError(name, QStringLiteral("<Name>Hill\rTop\r\nNorth</Name>")), QString());
        QCOMPARE(name.objName(), QStringLiteral("Hill\nTop\nNorth"));
    }

    void debugOutput()
    {
        XmlObjNameType name;
        name.setObjName(QStringLiteral("\"Hill\" & Dale"));
        XmlReferenceType reference; // called otherwise in messages
        XmlAreaRectType rectangle;  // with children, invalid as it is
        XmlCoordinateType corner;
        corner.setLongitude(8.5);
        corner.setLatitude(47.4);
        rectangle.setUpperLeft(corner);

        QString shown;
        QDebug(&shown) << "read" << name << 1 << static_cast<const XmlElementBase&>(reference);
        QCOMPARE(shown,
                 QStringLiteral("read <XmlObjNameType>&quot;Hill&quot; &amp; Dale</XmlObjNameType> 1 "
                                "<XmlreferenceType></XmlreferenceType> "));
        shown.clear();
        QDebug(&shown).nospace() << rectangle << '|' << QStringLiteral("text");
        QCOMPARE(shown,
                 QStringLiteral("<XmlAreaRectType version=\"1.0\">"
                                "<UpperLeft version=\"1.0\"><Longitude>8.500000</Longitude>"
                                "<Latitude>47.400000</Latitude></UpperLeft>"
                                "<LowerRight version=\"1.0\"><Longitude>-999.999000</Longitude>"
                                "<Latitude>-999.999000</Latitude></LowerRight></XmlAreaRectType>|\"text\""));
    }

    void theProblemsFoundAreKept()
    {
        const QString block = QStringLiteral("+++ in XmlSinadType Begin:\nIllegal frequency.\n--- in XmlSinadType End");
        Watched<XmlSinadType> sinad;
        QCOMPARE(sinad.syntaxError(), block);
        QCOMPARE(sinad.syntaxError(), block); // built anew, not added to
        QCOMPARE(sinad.mySyntaxError(), block);

        // Asking for validity and reading leave them, copies take them along, a new check replaces them.
        QVERIFY(!sinad.isValid());
        QCOMPARE(sinad.mySyntaxError(), block);
        QCOMPARE(readError(sinad, QStringLiteral("<S>5</S>")), QString());
        QVERIFY(sinad.isValid());
        QCOMPARE(sinad.mySyntaxError(), block);
        Watched<XmlSinadType> copy(sinad);
        QCOMPARE(copy.mySyntaxError(), block);
        Watched<XmlSinadType> assigned;
        assigned = sinad;
        QCOMPARE(assigned.mySyntaxError(), block);
        QVERIFY(sinad.syntaxError().isEmpty());
        QVERIFY(sinad.mySyntaxError().isEmpty());
        QCOMPARE(copy.mySyntaxError(), block);

        // After a reset the default is reported again, but not before it is asked for.
        copy.reset();
        QVERIFY(copy.mySyntaxError().isEmpty());
        QCOMPARE(copy.syntaxError(), block);
    }

    void resetForgetsTheProblems()
    {
        Watched<XmlDBMListType> list;
        Watched<XmlCoordinateType> coordinate;
        Watched<XmlResultGridType> grid;
        Watched<XmlPowerType> power;
        power.setPower(-61.0);
        QVERIFY(!list.syntaxError().isEmpty());
        QVERIFY(!coordinate.syntaxError().isEmpty());
        QVERIFY(!grid.syntaxError().isEmpty());
        QVERIFY(!power.syntaxError().isEmpty());
        list.reset();
        coordinate.reset();
        grid.reset();
        power.reset();
        QVERIFY(list.mySyntaxError().isEmpty());
        QVERIFY(coordinate.mySyntaxError().isEmpty());
        QVERIFY(grid.mySyntaxError().isEmpty());
        QVERIFY(power.mySyntaxError().isEmpty());
    }

    void nestedBlocks()
    {
        XmlDBMListType list;
        XmlDBMType item;
        list.setDBMList({&item});
        QCOMPARE(list.syntaxError(),
                 QStringLiteral("+++ in XmlDBMListType Begin:\n"
                                "+++ in XmlDBMType Begin:\n"
                                "Illegal decibel.\n"
                                "--- in XmlDBMType End\n"
                                "--- in XmlDBMListType End"));
        item.setDBM(1.0);
        list.setDBMList({&item});
        QVERIFY(list.syntaxError().isEmpty());
        QVERIFY(list.isValid());
    }

    void placeholdersInNestedBlocks()
    {
        XmlDBMListType list;
        XmlDBMType item;
        item.setDBM(1.0);
        item.setVersion(QStringLiteral("%2%1"));
        list.setDBMList({&item});
        list.setVersion(QStringLiteral("%1%2"));
        QCOMPARE(list.syntaxError(),
                 QStringLiteral("+++ in XmlDBMListType Begin:\n"
                                "Version \"%1%2\" not supported\n"
                                "+++ in XmlDBMType Begin:\n"
                                "Version \"%2%1\" not supported\n"
                                "--- in XmlDBMType End\n"
                                "--- in XmlDBMListType End"));
    }

    // A child that may be absent

    void anOptionalChild()
    {
        {
            Child child;
            QVERIFY(!child.isPresent());
            QVERIFY(!child.get());
            QVERIFY(!std::as_const(child).get());
            QCOMPARE(Held::alive, 0);

            const Held given(3);
            child.set(given);
            QVERIFY(child.isPresent());
            QVERIFY(child.get() != &given);
            QCOMPARE(std::as_const(child).get(), child.get());
            QCOMPARE(child.get()->value, 3);
            QCOMPARE(Held::assignments, 0);

            // Setting again assigns into the child held.
            const Held* const held = child.get();
            child.set(Held(4));
            QCOMPARE(child.get(), held);
            QCOMPARE(child.get()->value, 4);
            QCOMPARE(Held::assignments, 1);

            child.set(*child.get());
            QCOMPARE(child.get(), held);
            QCOMPARE(child.get()->value, 4);

            child.clear();
            QVERIFY(!child.isPresent());
            QVERIFY(!child.get());
            QCOMPARE(Held::alive, 1); // the given one
            child.clear();
            QVERIFY(!child.isPresent());
            child.set(Held(5));
        }
        QCOMPARE(Held::alive, 0);
    }

    void obtainingAndRenewingAnOptionalChild()
    {
        Child child;
        Held& made = child.obtain();
        QCOMPARE(made.value, 7);
        QCOMPARE(child.get(), &made);
        made.value = 1;
        QCOMPARE(&child.obtain(), &made);
        QCOMPARE(child.get()->value, 1);
        QCOMPARE(Held::alive, 1);

        Held& renewed = child.renew();
        QCOMPARE(renewed.value, 7);
        QCOMPARE(child.get(), &renewed);
        QCOMPARE(Held::alive, 1); // the old one is gone

        child.clear();
        QCOMPARE(child.renew().value, 7);
        QCOMPARE(Held::alive, 1);
    }

    void releasingAnOptionalChild()
    {
        Child child;
        QVERIFY(!child.release());
        child.set(Held(2));
        const Held* const held = child.get();
        const std::unique_ptr<Held> released(child.release());
        QCOMPARE(released.get(), held);
        QCOMPARE(released->value, 2);
        QVERIFY(!child.isPresent());
        QCOMPARE(Held::alive, 1);
    }

    void copyingAnOptionalChild()
    {
        const Child absent;
        const Child copyOfAbsent(absent);
        QVERIFY(!copyOfAbsent.isPresent());

        Child present;
        present.set(Held(2));
        Child copy(present);
        QVERIFY(copy.isPresent());
        QVERIFY(copy.get() != present.get());
        QCOMPARE(copy.get()->value, 2);
        copy.get()->value = 3;
        QCOMPARE(present.get()->value, 2);
        QCOMPARE(Held::alive, 2);
    }

    void assigningAnOptionalChild_data()
    {
        QTest::addColumn<bool>("held");
        QTest::addColumn<bool>("given");
        QTest::newRow("both present") << true << true;
        QTest::newRow("only the target present") << true << false;
        QTest::newRow("only the source present") << false << true;
        QTest::newRow("none present") << false << false;
    }
    void assigningAnOptionalChild()
    {
        QFETCH(bool, held);
        QFETCH(bool, given);
        Child target;
        Child source;
        if (held)
            target.set(Held(1));
        if (given)
            source.set(Held(2));
        const Held* const before = target.get();
        QCOMPARE(&(target = source), &target);
        QCOMPARE(target.isPresent(), given);
        QCOMPARE(source.isPresent(), given);
        if (given) {
            QVERIFY(target.get() != source.get());
            QCOMPARE(target.get()->value, 2);
            QCOMPARE(source.get()->value, 2);
        }
        if (held && given)
            QCOMPARE(target.get(), before); // assigned into the child held
        QCOMPARE(Held::assignments, held && given ? 1 : 0);
        QCOMPARE(Held::alive, given ? 2 : 0);
    }

    void assigningAnOptionalChildToItself()
    {
        Child child;
        const Child& self = child;
        child = self;
        QVERIFY(!child.isPresent());
        child.set(Held(2));
        const Held* const held = child.get();
        child = self;
        QCOMPARE(child.get(), held);
        QCOMPARE(child.get()->value, 2);
        QCOMPARE(Held::alive, 1);
    }

    void movingAnOptionalChild()
    {
        static_assert(std::is_nothrow_move_constructible_v<Child> && std::is_nothrow_move_assignable_v<Child>);
        Child first;
        first.set(Held(2));
        const Held* const held = first.get();
        Child second(std::move(first));
        QCOMPARE(second.get(), held); // moved, not copied
        QVERIFY(!first.isPresent());
        Child third;
        third = std::move(second);
        QCOMPARE(third.get(), held);
        QVERIFY(!second.isPresent());

        // With a child on both sides, the target keeps its object, as when it is copied to.
        Child fourth;
        fourth.set(Held(3));
        const Held* const kept = fourth.get();
        fourth = std::move(third);
        QCOMPARE(fourth.get(), kept);
        QCOMPARE(kept->value, 2);
        fourth = Child();
        QVERIFY(!fourth.isPresent());
        first.set(Held(9)); // usable again
        QCOMPARE(first.get()->value, 9);
    }

    // Children that are repeated

    void anOwnedList()
    {
        {
            OwnedList<Held> list;
            QVERIFY(list.isEmpty());
            QCOMPARE(list.size(), 0);
            QVERIFY(list.items().isEmpty());

            Held& first = list.append();
            QCOMPARE(first.value, 7);
            Held given(2);
            Held& second = list.append(given);
            QVERIFY(&second != &given);
            given.value = 3;
            QCOMPARE(valuesOf(list), (QVector<int>{7, 2}));
            QCOMPARE(list.items().at(0), &first);
            QCOMPARE(list.items().at(1), &second);
            QVERIFY(!list.isEmpty());
            QCOMPARE(list.size(), 2);
            static_assert(std::is_same_v<decltype(list.items()), const QList<Held*>&>);

            std::swap(list.order()[0], list.order()[1]);
            QCOMPARE(valuesOf(list), (QVector<int>{2, 7}));
            QCOMPARE(Held::alive, 3);

            list.clear();
            QVERIFY(list.isEmpty());
            QCOMPARE(Held::alive, 1);
            list.clear();
            QVERIFY(list.isEmpty());
            list.append();
        }
        QCOMPARE(Held::alive, 0);
    }

    void appendingAnOwnItem()
    {
        OwnedList<Held> list = listOf({1, 2});
        for (int i = 0; i < 50; ++i)
            list.append(*list.items().at(0));
        QCOMPARE(list.size(), 52);
        QCOMPARE(list.items().last()->value, 1);
        QVERIFY(list.items().last() != list.items().first());
        QCOMPARE(Held::alive, 52);
    }

    void settingAList()
    {
        OwnedList<Held> list = listOf({1, 2, 3});
        {
            Held four(4);
            Held five(5);
            list.set({&four, &five, &four});
            QVERIFY(list.items().at(0) != &four);
            QVERIFY(list.items().at(0) != list.items().at(2));
            QCOMPARE(Held::alive, 5); // the old items are gone
            four.value = 40;
        }
        QCOMPARE(valuesOf(list), (QVector<int>{4, 5, 4}));
        QCOMPARE(Held::assignments, 0);
        list.set({});
        QVERIFY(list.isEmpty());
        QCOMPARE(Held::alive, 0);
    }

    void settingAListWithNullPointers()
    {
        OwnedList<Held> list = listOf({1});
        Held two(2);
        Held three(3);
        list.set({nullptr, &two, nullptr, nullptr, &three, nullptr});
        QCOMPARE(valuesOf(list), (QVector<int>{2, 3}));
        list.set({nullptr});
        QVERIFY(list.isEmpty());
        QCOMPARE(Held::alive, 2);
    }

    void settingAListWithItself()
    {
        OwnedList<Held> list = listOf({1, 2, 3});
        list.set(list.items());
        QCOMPARE(valuesOf(list), (QVector<int>{1, 2, 3}));

        QList<Held*> some = {list.items().at(2), list.items().at(0), list.items().at(2)};
        list.set(some);
        QCOMPARE(valuesOf(list), (QVector<int>{3, 1, 3}));
        QVERIFY(list.items().at(0) != list.items().at(2));
        QCOMPARE(Held::alive, 3);
    }

    void copyingAList()
    {
        OwnedList<Held> list = listOf({1, 2});
        OwnedList<Held> copy(list);
        QCOMPARE(valuesOf(copy), (QVector<int>{1, 2}));
        QVERIFY(copy.items().at(0) != list.items().at(0));
        list.items().at(0)->value = 9;
        list.append();
        QCOMPARE(valuesOf(copy), (QVector<int>{1, 2}));

        OwnedList<Held> assigned = listOf({5, 6, 7});
        QCOMPARE(&(assigned = list), &assigned);
        QCOMPARE(valuesOf(assigned), (QVector<int>{9, 2, 7}));
        QVERIFY(assigned.items().at(0) != list.items().at(0));
        QCOMPARE(Held::alive, 8);

        // Assigned to itself, it keeps its very objects: pointers handed out stay good.
        const OwnedList<Held>& self = assigned;
        const QList<Held*> handedOut = assigned.items();
        assigned = self;
        QCOMPARE(valuesOf(assigned), (QVector<int>{9, 2, 7}));
        QCOMPARE(assigned.items(), handedOut);
        QCOMPARE(Held::alive, 8);

        assigned = OwnedList<Held>(copy); // by a move
        QCOMPARE(valuesOf(assigned), (QVector<int>{1, 2}));
        const OwnedList<Held> empty;
        assigned = empty;
        QVERIFY(assigned.isEmpty());
        QCOMPARE(Held::alive, 5);
    }

    void movingAList()
    {
        static_assert(std::is_nothrow_move_constructible_v<OwnedList<Held>>);
        static_assert(std::is_nothrow_move_assignable_v<OwnedList<Held>>);
        {
            OwnedList<Held> first = listOf({1, 2});
            const Held* const held = first.items().at(0);
            OwnedList<Held> second(std::move(first));
            QCOMPARE(second.items().at(0), held); // moved, not copied
            QCOMPARE(valuesOf(second), (QVector<int>{1, 2}));
            QVERIFY(first.isEmpty());
            OwnedList<Held> third = listOf({3});
            third = std::move(second);
            QCOMPARE(third.items().at(0), held);
            QCOMPARE(valuesOf(third), (QVector<int>{1, 2}));
            first.append(Held(4)); // usable again
            QCOMPARE(valuesOf(first), (QVector<int>{4}));
        }
        QCOMPARE(Held::alive, 0); // each was destroyed once
    }

    void aListInAnotherContainer()
    {
        OwnedList<Held, QVector<Held*>> list;
        list.append(Held(1));
        list.append();
        list.set(list.items());
        const OwnedList<Held, QVector<Held*>> copy(list);
        list.set({nullptr, list.items().at(1)});
        QCOMPARE(valuesOf(list), (QVector<int>{7}));
        QCOMPARE(valuesOf(copy), (QVector<int>{1, 7}));
        static_assert(std::is_same_v<decltype(list.items()), const QVector<Held*>&>);
        QCOMPARE(Held::alive, 3);
    }

    void movedElements()
    {
        XmlDBMType item;
        item.setDBM(4.0);
        XmlDBMListType list;
        list.setDBMList({&item});
        XmlDBMListType moved(std::move(list));
        QCOMPARE(moved.dBmList().size(), 1);
        XmlDBMListType target;
        target.setDBMList({&item, &item});
        target = std::move(moved);
        QCOMPARE(target.dBmList().size(), 1);
        QCOMPARE(target.dBmList().at(0)->dBm(), 4.0);
        QVERIFY(target.isValid());
        target.setVersion(QStringLiteral("2"));
        QCOMPARE(target.syntaxError(),
                 QStringLiteral("+++ in XmlDBMListType Begin:\n"
                                "Version \"2\" not supported\n"
                                "--- in XmlDBMListType End"));
    }
};

QTEST_APPLESS_MAIN(ElementTestCase)
#include "element_test.moc"
