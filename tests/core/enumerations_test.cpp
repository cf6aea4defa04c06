#include "support/elementtest.h"

#include <arvxml/coverageorders.h>
#include <arvxml/devices.h>
#include <arvxml/resultgrid.h>

#include <climits>
#include <memory>

/// What all enumerations do alike. The selection of a propagation model reads in its own way and has its own test.

using namespace ArvXml;
using ElementTest::readError;
using ElementTest::written;

namespace {

/// An enumeration behind its base, with what is particular to it.
struct Enumeration {
    const char* className;
    QStringList texts; ///< that of value 1 first
    QString unknownText;
    QString undefinedError;
    std::unique_ptr<XmlElement> (*make)();
    std::unique_ptr<XmlElement> (*copy)(const XmlElement& source);
    void (*assign)(XmlElement& target, const XmlElement& source);
    void (*set)(XmlElement& element, int value);
    int (*get)(const XmlElement& element);

    std::unique_ptr<XmlElement> holding(int value) const
    {
        auto element = make();
        set(*element, value);
        return element;
    }
    QString text(int value) const { return texts.at(value - 1); }
    QString problem() const
    {
        return QStringLiteral("+++ in %1 Begin:\n%2\n--- in %1 End").arg(QLatin1String(className), undefinedError);
    }
    /// The reader's error with \a message where the mark ^ stands in \a xml.
    QString errorAt(const QString& xml, const QString& message) const
    {
        const QString before = xml.section(QLatin1Char('^'), 0, 0);
        return QStringLiteral("in %1 (line %2, column %3): %4.")
            .arg(QLatin1String(className), QString::number(before.count(QLatin1Char('\n')) + 1),
                 QString::number(before.size() - before.lastIndexOf(QLatin1Char('\n')) - 1), message);
    }
};

// The getters of the two orders have a variant for elements that can be changed; both say the same.
int valueOf(const XmlDeviceCategoryType& element)
{
    return element.category();
}
int valueOf(const XmlResultGridType& element)
{
    XmlResultGridType changeable(element);
    static_assert(std::is_same_v<decltype(changeable.size()), XmlResultGridType::GridSize>);
    return changeable.size() == element.size() ? element.size() : INT_MIN;
}
int valueOf(const XmlCepProbType& element)
{
    XmlCepProbType changeable(element);
    static_assert(std::is_same_v<decltype(changeable.prob()), XmlCepProbType::Prob>);
    return changeable.prob() == element.prob() ? element.prob() : INT_MIN;
}
void setValue(XmlDeviceCategoryType& element, int value)
{
    element.setCategory(static_cast<XmlDeviceCategoryType::Category>(value));
}
void setValue(XmlResultGridType& element, int value)
{
    element.setSize(static_cast<XmlResultGridType::GridSize>(value));
}
void setValue(XmlCepProbType& element, int value)
{
    element.setProb(static_cast<XmlCepProbType::Prob>(value));
}

template <typename Element>
Enumeration enumeration(const char* className, const QStringList& texts, const char* unknownText,
                        const char* undefinedError)
{
    static_assert(std::is_base_of_v<XmlElementBase, Element>);
    return {className,
            texts,
            QString::fromLatin1(unknownText),
            QString::fromLatin1(undefinedError),
            []() -> std::unique_ptr<XmlElement> { return std::make_unique<Element>(); },
            [](const XmlElement& source) -> std::unique_ptr<XmlElement> {
                return std::make_unique<Element>(static_cast<const Element&>(source));
            },
            [](XmlElement& target, const XmlElement& source) {
                static_cast<Element&>(target) = static_cast<const Element&>(source);
            },
            [](XmlElement& element, int value) { setValue(static_cast<Element&>(element), value); },
            [](const XmlElement& element) { return valueOf(static_cast<const Element&>(element)); }};
}

QStringList list(const char* texts)
{
    return QString::fromLatin1(texts).split(QLatin1Char(' '));
}

const std::vector<Enumeration>& enumerations()
{
    // The only one without a full stop in its text is the probability.
    static const std::vector<Enumeration> all = {
        enumeration<XmlDeviceCategoryType>("XmlDeviceCategoryType",
                                           list("Receiver PassiveAntennas Cable Other ActiveAntennas DF"),
                                           "Illegal enum value.", "Illegal Device Category."),
        enumeration<XmlResultGridType>("XmlResultGridType", list("10 50 100 200 500 1000"), "Illegal enum value.",
                                       "Illegal grid size."),
        enumeration<XmlCepProbType>("XmlCepProbType", list("50 66 75 90 95"), "Illegal enum value",
                                    "Illegal probability value."),
    };
    return all;
}

const QString tag = QStringLiteral("E");
const QString undefined = QStringLiteral("<E>UNDEFINED</E>");

} // namespace

class EnumerationsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewOne();
    void texts();
    void otherValues();
    void reading_data();
    void reading();
    void positions();
    void copies();
    void reset();
};

void EnumerationsTest::aNewOne()
{
    for (const Enumeration& kind : enumerations()) {
        const auto element = kind.make();
        QCOMPARE(kind.get(*element), 0);
        QVERIFY(!element->isValid());
        QCOMPARE(element->syntaxError(), kind.problem());
        QCOMPARE(element->syntaxError(), kind.problem());
        QCOMPARE(written(*element, tag), undefined);
    }
}

void EnumerationsTest::texts()
{
    for (const Enumeration& kind : enumerations()) {
        for (int value = 1; value <= kind.texts.size(); ++value) {
            const QString xml = QStringLiteral("<E>%1</E>").arg(kind.text(value));
            const auto read = kind.make();
            QCOMPARE(readError(*read, xml), QString());
            QCOMPARE(kind.get(*read), value);
            QVERIFY(read->isValid());
            QCOMPARE(read->syntaxError(), QString());
            QCOMPARE(written(*read, tag), xml);
            QCOMPARE(written(*kind.holding(value), tag), xml);
        }
    }
}

void EnumerationsTest::otherValues()
{
    for (const Enumeration& kind : enumerations()) {
        for (const int value : {int(kind.texts.size()) + 1, -1, INT_MAX, INT_MIN}) {
            const auto element = kind.holding(value);
            QCOMPARE(kind.get(*element), value);
            QCOMPARE(written(*element, tag), undefined);
            QVERIFY(element->isValid()); // only 0 counts as undefined
            QCOMPARE(element->syntaxError(), QString());
        }
    }
}

// In the texts, {1} and {2} stand for those of values 1 and 2, and ^ for the place of the error. The element holds
// value 3 before.
void EnumerationsTest::reading_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* name, const char* xml, int value, const char* error = "") {
        QTest::newRow(name) << QString::fromUtf8(xml) << value << QString::fromUtf8(error);
    };
    row("no text leaves the value", "<E></E>", 3);
    row("an empty element leaves the value", "<E/>", 3);
    row("a comment alone leaves the value", "<E><!-- {1} --></E>", 3);
    row("attributes are not read", "<E version=\"2.0\" unit=\"m\">{2}</E>", 2);
    row("comments and instructions are skipped", "<E><!-- x --><?y z?>{2}<!-- x --><?y z?></E>", 2);
    row("marked text is text", "<E><![CDATA[{2}]]></E>", 2);
    row("of two texts the last one counts", "<E>{2}<!-- x -->{1}</E>", 1);

    const char* const illegal = "illegal";
    row("each piece of text is compared alone", "<E>{1}<!-- x -->x<^/E>", 0, illegal);
    row("half a text", "<E>{half}<^!-- x -->{other half}</E>", 0, illegal);
    row("an unknown text", "<E>x<^/E>", 0, illegal);
    row("an unknown text on another line", "<!-- -->\n\n  <E>x<^/E>", 0, illegal);
    row("a blank before", "<E> {1}<^/E>", 0, illegal);
    row("a blank after", "<E>{1} <^/E>", 0, illegal);
    row("on a line of its own", "<E>\n  {1}\n<^/E>", 0, illegal);
    row("blanks alone", "<E>\n  <^/E>", 0, illegal);
    row("UNDEFINED is never read", "<E>UNDEFINED<^/E>", 0, illegal);
    row("the name of no value", "<E>Undefined<^/E>", 0, illegal);
    row("an enumeration value", "<E>3<^/E>", 0, illegal);
    row("zero", "<E>0<^/E>", 0, illegal);
    row("a leading zero", "<E>0{1}<^/E>", 0, illegal);
    row("a letter less", "<E>{half}<^/E>", 0, illegal);
    row("the other letters", "<E>{other case}<^/E>", 0, illegal);
    row("a text up to the next line", "<E>{1}\n<^x/></E>", 0, illegal);

    const char* const start = "Unexpected token \"StartElement\"";
    row("a child before the text", "<E><x/>^{1}</E>", 3, start);
    row("a child on another line", "<E><!--\n--><x>^{1}</x></E>", 3, start);
    row("a child of the same name", "<E>{2}<!-- --><E>^{1}</E></E>", 2, start);
    row("a document that ends early", "<E>", 3, "Premature end of document.");
    row("a document that ends after a text", "<E>{2}<!-- x -->", 2, "Premature end of document.");
    row("another end tag", "<E>{2}</F>", 2, "Opening and ending tag mismatch.");
}

void EnumerationsTest::reading()
{
    QFETCH(QString, xml);
    QFETCH(int, value);
    QFETCH(QString, error);
    for (const Enumeration& kind : enumerations()) {
        const QString first = kind.text(1);
        QString otherCase = first.toUpper();
        if (otherCase == first)
            otherCase = QStringLiteral("x"); // a number
        QString marked = xml;
        marked.replace(QLatin1String("{1}"), first).replace(QLatin1String("{2}"), kind.text(2));
        marked.replace(QLatin1String("{half}"), first.left(1)).replace(QLatin1String("{other half}"), first.mid(1));
        marked.replace(QLatin1String("{other case}"), otherCase);
        const QString expected = !marked.contains(QLatin1Char('^')) ? error
            : error == QLatin1String("illegal")                     ? kind.errorAt(marked, kind.unknownText)
                                                                    : kind.errorAt(marked, error);

        const auto element = kind.holding(3);
        QCOMPARE(readError(*element, QString(marked).remove(QLatin1Char('^'))), expected);
        QCOMPARE(kind.get(*element), value);

        // Whatever happened, the element can be used on.
        QCOMPARE(element->isValid(), value != 0);
        QCOMPARE(element->syntaxError(), value != 0 ? QString() : kind.problem());
        QCOMPARE(kind.get(*kind.copy(*element)), value);
        QCOMPARE(readError(*element, QStringLiteral("<E>%1</E>").arg(kind.text(4))), QString());
        QCOMPARE(kind.get(*element), 4);
        QCOMPARE(element->syntaxError(), QString());
        element->reset();
        QCOMPARE(kind.get(*element), 0);
    }
}

void EnumerationsTest::positions()
{
    for (const Enumeration& kind : enumerations()) {
        const QString xml = QStringLiteral("<E>%1</E>").arg(kind.text(1));
        const auto element = kind.holding(3);
        const auto errorOf = [&](QXmlStreamReader& reader, const QString& ownTag = tag) {
            element->processXml(reader, ownTag);
            return reader.errorString();
        };

        QXmlStreamReader fresh(xml);
        QCOMPARE(errorOf(fresh),
                 kind.errorAt(QStringLiteral("<E^"), QStringLiteral("Unexpected token \"StartDocument\"")));
        QXmlStreamReader before(xml);
        before.readNext();
        QVERIFY(before.isStartDocument());
        QCOMPARE(errorOf(before),
                 kind.errorAt(QStringLiteral("<E>^"), QStringLiteral("Unexpected token \"StartElement\"")));
        QCOMPARE(kind.get(*element), 3);

        // There is no check of the position: what follows is read.
        QXmlStreamReader onText(xml);
        onText.readNextStartElement();
        onText.readNext();
        QVERIFY(onText.isCharacters());
        QCOMPARE(errorOf(onText), QString());
        QVERIFY(onText.isEndElement());
        QCOMPARE(kind.get(*element), 3);
        QCOMPARE(errorOf(onText),
                 kind.errorAt(xml + QLatin1Char('^'), QStringLiteral("Unexpected token \"EndDocument\"")));

        QXmlStreamReader onComment(QStringLiteral("<E><!-- x -->%1</E>").arg(kind.text(2)));
        onComment.readNextStartElement();
        onComment.readNext();
        QVERIFY(onComment.isComment());
        QCOMPARE(errorOf(onComment), QString());
        QCOMPARE(kind.get(*element), 2);

        QXmlStreamReader atEnd(xml);
        while (!atEnd.atEnd())
            atEnd.readNext();
        QCOMPARE(errorOf(atEnd), QString());
        QXmlStreamReader failed(xml);
        failed.readNextStartElement();
        failed.raiseError(QStringLiteral("before"));
        QCOMPARE(errorOf(failed), QStringLiteral("before"));
        QCOMPARE(kind.get(*element), 2);

        QXmlStreamReader otherCase(xml);
        otherCase.readNextStartElement();
        QCOMPARE(errorOf(otherCase, QStringLiteral("e")),
                 kind.errorAt(xml + QLatin1Char('^'), QStringLiteral("Unexpected token \"EndElement\"")));
        QCOMPARE(kind.get(*element), 1);

        // It stops at its own end tag.
        QXmlStreamReader inside(QStringLiteral("<O><S>%1</S>x</O>").arg(kind.text(4)));
        inside.readNextStartElement();
        inside.readNextStartElement();
        QCOMPARE(errorOf(inside, QStringLiteral("S")), QString());
        QVERIFY(inside.isEndElement());
        QCOMPARE(inside.name().toString(), QStringLiteral("S"));
        QCOMPARE(kind.get(*element), 4);
    }
}

void EnumerationsTest::copies()
{
    for (const Enumeration& kind : enumerations()) {
        const auto original = kind.holding(3);
        const auto copy = kind.copy(*original);
        const auto assigned = kind.make();
        kind.assign(*assigned, *original);
        kind.set(*original, 5);
        QCOMPARE(kind.get(*copy), 3);
        QCOMPARE(kind.get(*assigned), 3);
        kind.assign(*copy, *copy);
        QCOMPARE(kind.get(*copy), 3);
        original->reset();
        QCOMPARE(kind.get(*assigned), 3);
    }
}

void EnumerationsTest::reset()
{
    for (const Enumeration& kind : enumerations()) {
        const auto element = kind.holding(2);
        element->syntaxError();
        element->reset();
        QCOMPARE(kind.get(*element), 0);
        QCOMPARE(element->syntaxError(), kind.problem());
        kind.set(*element, 2);
        QCOMPARE(element->syntaxError(), QString()); // not the text of the last check
    }
}

QTEST_APPLESS_MAIN(EnumerationsTest)
#include "enumerations_test.moc"
