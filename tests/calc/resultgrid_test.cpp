#include "support/elementtest.h"
#include "support/values.h"

#include <arvxml/resultgrid.h>

#include <climits>
#include <type_traits>
#include <utility>

using ArvXml::XmlResultGridType;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;
using TestValues::grid;

namespace {

const QString gridTag = QStringLiteral("ResultGrid");
const QString sizeError = QStringLiteral("+++ in XmlResultGridType Begin:\n"
                                         "Illegal grid size.\n"
                                         "--- in XmlResultGridType End");

XmlResultGridType::GridSize size(int value)
{
    return static_cast<XmlResultGridType::GridSize>(value);
}

/// Shows what the base keeps for itself.
struct OpenGrid : XmlResultGridType {
    using XmlResultGridType::classname;
    using XmlResultGridType::mySyntaxError;
};

} // namespace

class ResultgridTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void interface();
    void defaults();
    void copies();
    void texts_data();
    void texts();
    void otherValues_data();
    void otherValues();
    void readerErrors_data();
    void readerErrors();
    void ignoredTokens_data();
    void ignoredTokens();
    void emptyElementKeepsTheValue();
    void stopsAtItsEndTag();
    void wrongTagName();
    void wrongPositions();
    void reset();
    void reuseAfterFailure();
};

void ResultgridTest::interface()
{
    using Size = XmlResultGridType::GridSize;
    static_assert(std::is_base_of_v<ArvXml::XmlElementBase, XmlResultGridType>);
    static_assert(std::is_same_v<decltype(std::declval<XmlResultGridType&>().size()), Size>);
    static_assert(std::is_same_v<decltype(std::declval<const XmlResultGridType&>().size()), Size>);
    QCOMPARE(OpenGrid().classname(), QStringLiteral("XmlResultGridType"));
}

void ResultgridTest::defaults()
{
    XmlResultGridType element;
    QCOMPARE(static_cast<int>(element.size()), 0);
    QVERIFY(!element.isValid());
    QCOMPARE(element.syntaxError(), sizeError);
    QCOMPARE(written(element, gridTag), QStringLiteral("<ResultGrid>UNDEFINED</ResultGrid>"));
}

void ResultgridTest::copies()
{
    XmlResultGridType original = grid(3);
    XmlResultGridType copy(original);
    original.setSize(size(5));
    QCOMPARE(static_cast<int>(copy.size()), 3);

    copy = original;
    QCOMPARE(static_cast<int>(copy.size()), 5);
    original.setSize(size(1));
    QCOMPARE(static_cast<int>(copy.size()), 5);

    const XmlResultGridType& same = copy;
    copy = same;
    QCOMPARE(static_cast<int>(same.size()), 5);

    OpenGrid faulty;
    faulty.syntaxError();
    OpenGrid faultyCopy(faulty);
    QCOMPARE(faultyCopy.mySyntaxError(), sizeError);
    OpenGrid assigned;
    assigned = faulty;
    QCOMPARE(assigned.mySyntaxError(), sizeError);
}

void ResultgridTest::texts_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("xml");

    QTest::newRow("10") << 1 << QStringLiteral("<ResultGrid>10</ResultGrid>");
    QTest::newRow("50") << 2 << QStringLiteral("<ResultGrid>50</ResultGrid>");
    QTest::newRow("100") << 3 << QStringLiteral("<ResultGrid>100</ResultGrid>");
    QTest::newRow("200") << 4 << QStringLiteral("<ResultGrid>200</ResultGrid>");
    QTest::newRow("500") << 5 << QStringLiteral("<ResultGrid>500</ResultGrid>");
    QTest::newRow("1000") << 6 << QStringLiteral("<ResultGrid>1000</ResultGrid>");
}

void ResultgridTest::texts()
{
    QFETCH(int, value);
    QFETCH(QString, xml);

    auto element = readFrom<XmlResultGridType>(xml);
    QCOMPARE(static_cast<int>(element.size()), value);
    QCOMPARE(static_cast<int>(std::as_const(element).size()), value);
    QVERIFY(element.isValid());
    QCOMPARE(element.syntaxError(), QString());
    QCOMPARE(written(element, gridTag), xml);
    QCOMPARE(written(grid(value), gridTag), xml);
}

void ResultgridTest::otherValues_data()
{
    QTest::addColumn<int>("value");

    QTest::newRow("just above the last one") << 7;
    QTest::newRow("just below 0") << -1;
    QTest::newRow("the largest") << INT_MAX;
    QTest::newRow("the smallest") << INT_MIN;
}

void ResultgridTest::otherValues()
{
    QFETCH(int, value);

    XmlResultGridType element = grid(value);
    QCOMPARE(static_cast<int>(element.size()), value);
    QCOMPARE(written(element, gridTag), QStringLiteral("<ResultGrid>UNDEFINED</ResultGrid>"));
    QVERIFY(element.isValid()); // only 0 counts as undefined
    QCOMPARE(element.syntaxError(), QString());
}

void ResultgridTest::readerErrors_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("value");

    // The stream has looked one character past a text when it hands it out.
    const QString unknownAt = QStringLiteral("in XmlResultGridType (line 1, column %1): Illegal enum value..");
    QTest::newRow("another number") << QStringLiteral("<ResultGrid>250</ResultGrid>") << unknownAt.arg(16) << 0;
    QTest::newRow("a blank before") << QStringLiteral("<ResultGrid> 100</ResultGrid>") << unknownAt.arg(17) << 0;
    QTest::newRow("a blank after") << QStringLiteral("<ResultGrid>100 </ResultGrid>") << unknownAt.arg(17) << 0;
    QTest::newRow("a blank alone") << QStringLiteral("<ResultGrid> </ResultGrid>") << unknownAt.arg(14) << 0;
    QTest::newRow("UNDEFINED is never read")
        << QStringLiteral("<ResultGrid>UNDEFINED</ResultGrid>") << unknownAt.arg(22) << 0;
    QTest::newRow("a leading zero") << QStringLiteral("<ResultGrid>010</ResultGrid>") << unknownAt.arg(16) << 0;
    QTest::newRow("an enumeration value") << QStringLiteral("<ResultGrid>3</ResultGrid>") << unknownAt.arg(14) << 0;
    QTest::newRow("zero") << QStringLiteral("<ResultGrid>0</ResultGrid>") << unknownAt.arg(14) << 0;
    QTest::newRow("an unknown text on another line")
        << QStringLiteral("<!-- -->\n\n  <ResultGrid>250</ResultGrid>")
        << QStringLiteral("in XmlResultGridType (line 3, column 18): Illegal enum value..") << 0;
    QTest::newRow("a start tag inside")
        << QStringLiteral("<ResultGrid><!--\n--><x>100</x></ResultGrid>")
        << QStringLiteral("in XmlResultGridType (line 2, column 6): Unexpected token \"StartElement\".") << 6;
    QTest::newRow("a start tag after the text")
        << QStringLiteral("<ResultGrid>100<x/></ResultGrid>")
        << QStringLiteral("in XmlResultGridType (line 1, column 19): Unexpected token \"StartElement\".") << 3;
    QTest::newRow("a premature end") << QStringLiteral("<ResultGrid>") << QStringLiteral("Premature end of document.")
                                     << 6;
    QTest::newRow("another end tag") << QStringLiteral("<ResultGrid>100</Grid>")
                                     << QStringLiteral("Opening and ending tag mismatch.") << 3;
}

void ResultgridTest::readerErrors()
{
    QFETCH(QString, xml);
    QFETCH(QString, error);
    QFETCH(int, value);

    XmlResultGridType element = grid(6);
    QCOMPARE(readError(element, xml), error);
    QCOMPARE(static_cast<int>(element.size()), value);
}

void ResultgridTest::ignoredTokens_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("value");

    QTest::newRow("comments") << QStringLiteral("<ResultGrid><!-- a -->100<!-- b --></ResultGrid>") << 3;
    QTest::newRow("processing instructions") << QStringLiteral("<ResultGrid><?a b?>100<?a b?></ResultGrid>") << 3;
    QTest::newRow("attributes") << QStringLiteral("<ResultGrid version=\"2.0\" unit=\"m\">100</ResultGrid>") << 3;
    QTest::newRow("each piece of text counts for itself, the last one stays")
        << QStringLiteral("<ResultGrid>10<!-- -->50</ResultGrid>") << 2;
}

void ResultgridTest::ignoredTokens()
{
    QFETCH(QString, xml);
    QFETCH(int, value);

    QCOMPARE(static_cast<int>(readFrom<XmlResultGridType>(xml).size()), value);
}

void ResultgridTest::emptyElementKeepsTheValue()
{
    XmlResultGridType element = grid(4);
    QCOMPARE(readError(element, QStringLiteral("<ResultGrid/>")), QString());
    QCOMPARE(static_cast<int>(element.size()), 4);
    QCOMPARE(readError(element, QStringLiteral("<ResultGrid></ResultGrid>")), QString());
    QCOMPARE(static_cast<int>(element.size()), 4);
}

void ResultgridTest::stopsAtItsEndTag()
{
    QXmlStreamReader reader(QStringLiteral("<Order><Spacing>200</Spacing>500</Order>"));
    reader.readNextStartElement();
    reader.readNextStartElement();
    XmlResultGridType element;
    element.processXml(reader, QStringLiteral("Spacing"));
    QVERIFY(reader.isEndElement());
    QCOMPARE(reader.name().toString(), QStringLiteral("Spacing"));
    QCOMPARE(static_cast<int>(element.size()), 4);
}

void ResultgridTest::wrongTagName()
{
    QXmlStreamReader reader(QStringLiteral("<resultgrid>10</resultgrid>"));
    reader.readNextStartElement();
    XmlResultGridType element;
    element.processXml(reader, gridTag);
    QCOMPARE(reader.errorString(),
             QStringLiteral("in XmlResultGridType (line 1, column 27): Unexpected token \"EndElement\"."));
    QCOMPARE(static_cast<int>(element.size()), 1);
}

void ResultgridTest::wrongPositions()
{
    const QString xml = QStringLiteral("<ResultGrid>100</ResultGrid>");
    {
        QXmlStreamReader reader(xml);
        XmlResultGridType element = grid(5);
        element.processXml(reader, gridTag);
        QVERIFY(reader.errorString().startsWith(QLatin1String("in XmlResultGridType (line 1, column ")));
        QVERIFY(reader.errorString().endsWith(QLatin1String("): Unexpected token \"StartDocument\".")));
        QCOMPARE(static_cast<int>(element.size()), 5);
    }
    {
        QXmlStreamReader reader(xml);
        reader.readNext();
        QVERIFY(reader.isStartDocument());
        XmlResultGridType element = grid(5);
        element.processXml(reader, gridTag);
        QCOMPARE(reader.errorString(),
                 QStringLiteral("in XmlResultGridType (line 1, column 12): Unexpected token \"StartElement\"."));
        QCOMPARE(static_cast<int>(element.size()), 5);
    }
    {
        // There is no check of the position: reading goes on with the next token.
        QXmlStreamReader reader(xml);
        reader.readNextStartElement();
        reader.readNext();
        QVERIFY(reader.isCharacters());
        XmlResultGridType element = grid(5);
        element.processXml(reader, gridTag);
        QVERIFY(!reader.hasError());
        QVERIFY(reader.isEndElement());
        QCOMPARE(static_cast<int>(element.size()), 5);

        element.processXml(reader, gridTag);
        QCOMPARE(reader.errorString(),
                 QStringLiteral("in XmlResultGridType (line 1, column 28): Unexpected token \"EndDocument\"."));
    }
    {
        QXmlStreamReader reader(xml);
        while (!reader.atEnd())
            reader.readNext();
        XmlResultGridType element = grid(5);
        element.processXml(reader, gridTag);
        QVERIFY(!reader.hasError());
        QCOMPARE(static_cast<int>(element.size()), 5);
    }
}

void ResultgridTest::reset()
{
    OpenGrid element;
    element.syntaxError();
    element.setSize(size(2));
    element.reset();
    QCOMPARE(static_cast<int>(element.size()), 0);
    QCOMPARE(element.mySyntaxError(), QString());
    QCOMPARE(element.syntaxError(), sizeError);
    QCOMPARE(element.syntaxError(), sizeError);

    element.setSize(size(2));
    QCOMPARE(element.syntaxError(), QString());
}

void ResultgridTest::reuseAfterFailure()
{
    XmlResultGridType element = grid(2);
    QVERIFY(!readError(element, QStringLiteral("<ResultGrid>250</ResultGrid>")).isEmpty());
    QCOMPARE(element.syntaxError(), sizeError);
    QCOMPARE(written(XmlResultGridType(element), gridTag), QStringLiteral("<ResultGrid>UNDEFINED</ResultGrid>"));
    QCOMPARE(readError(element, QStringLiteral("<ResultGrid>1000</ResultGrid>")), QString());
    QCOMPARE(static_cast<int>(element.size()), 6);
    element.reset();
    QVERIFY(!element.isValid());
}

QTEST_APPLESS_MAIN(ResultgridTest)
#include "resultgrid_test.moc"
