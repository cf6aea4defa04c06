#include "support/elementtest.h"
#include "support/responsetest.h"
#include "support/values.h"

#include <arvxml/interlinkresult.h>

#include <type_traits>
#include <utility>

using namespace ArvXml;
using namespace ResponseTest;
using TestValues::text;

namespace {

/// Shows the error text that is kept in the element.
struct Probe : XmlInterlinkResultType {
    using XmlElementBase::mySyntaxError;
};

XmlInterlinkPlanningType planning(const QString& first, const QString& second)
{
    XmlInterlinkPlanningType parameters;
    parameters.setFirstName(first);
    parameters.setSecondName(second);
    return parameters;
}

XmlInterlinkResultType result(const QString& first, const QString& text, const QString& filename)
{
    XmlInterlinkResultType element;
    element.setParameters(planning(first, QStringLiteral("B")));
    element.setResultText(text);
    element.setScreenshotFilename(filename);
    return element;
}

/// Everything that \a element holds.
QString held(const XmlInterlinkResultType& element)
{
    return QStringList({element.parameters()->firstName(), element.parameters()->secondName(), element.resultText(),
                        element.screenshotFilename()})
        .join(QLatin1Char(';'));
}

const char parametersXml[] = "<Parameters><FirstName>A</FirstName><SecondName>B</SecondName></Parameters>";

QString withParameters(const char* xml)
{
    return QString::fromLatin1(xml).replace(QLatin1String("{P}"), QLatin1String(parametersXml));
}

} // namespace

static_assert(std::is_base_of_v<XmlElementBase, XmlInterlinkResultType>);
static_assert(
    std::is_same_v<decltype(std::declval<XmlInterlinkResultType&>().parameters()), const XmlInterlinkPlanningType*>);

class InterlinkresultTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void newObject();
    void accessors();
    void parametersAreAssigned();
    void copies();
    void assignment_data();
    void assignment();
    void errorTextIsCopiedAndReset();
    void written_data();
    void written();
    void readBack();
    void startTags_data();
    void startTags();
    void endTags_data();
    void endTags();
    void refused_data();
    void refused();
    void otherTokensAreSkipped();
    void tagOfTheWrapper();
    void positions_data();
    void positions();
    void readingIntoUsedObject();
    void useAfterFailedRead();
    void checked_data();
    void checked();
    void reset();
};

void InterlinkresultTest::newObject()
{
    XmlInterlinkResultType element;
    QVERIFY(element.parameters() != nullptr);
    QVERIFY(element.parameters()->firstName().isEmpty());
    QVERIFY(element.parameters()->secondName().isEmpty());
    QVERIFY(element.resultText().isEmpty());
    QVERIFY(!element.hasScreenshotFilename());
    QVERIFY(element.screenshotFilename().isEmpty());
    QVERIFY(!element.isValid());
}

void InterlinkresultTest::accessors()
{
    XmlInterlinkResultType element;
    element.setResultText(QStringLiteral("feasible"));
    QCOMPARE(element.resultText(), QStringLiteral("feasible"));
    QVERIFY(!element.hasScreenshotFilename());
    element.setScreenshotFilename(QStringLiteral("link.png"));
    QCOMPARE(element.screenshotFilename(), QStringLiteral("link.png"));
    QVERIFY(element.hasScreenshotFilename());
    QCOMPARE(element.resultText(), QStringLiteral("feasible"));
    element.setScreenshotFilename(QString());
    QVERIFY(!element.hasScreenshotFilename());
}

void InterlinkresultTest::parametersAreAssigned()
{
    XmlInterlinkResultType element;
    const XmlInterlinkPlanningType* const before = element.parameters();
    XmlInterlinkPlanningType given = planning(QStringLiteral("A"), QStringLiteral("B"));
    element.setParameters(given);
    given.setFirstName(QStringLiteral("changed"));
    QCOMPARE(element.parameters(), before);
    QCOMPARE(held(element), QStringLiteral("A;B;;"));

    element.setParameters(*element.parameters());
    QCOMPARE(held(element), QStringLiteral("A;B;;"));
}

void InterlinkresultTest::copies()
{
    XmlInterlinkResultType original = result(QStringLiteral("A"), QStringLiteral("text"), QStringLiteral("file"));
    const XmlInterlinkResultType copy(original);
    QVERIFY(copy.parameters() != original.parameters());
    original.setParameters(planning(QStringLiteral("X"), QStringLiteral("Y")));
    original.setResultText(QStringLiteral("other"));
    original.setScreenshotFilename(QString());
    QCOMPARE(held(copy), QStringLiteral("A;B;text;file"));

    const XmlInterlinkResultType& self = original;
    original = self;
    QCOMPARE(held(original), QStringLiteral("X;Y;other;"));
}

void InterlinkresultTest::assignment_data()
{
    QTest::addColumn<QString>("sourceFile");
    QTest::addColumn<QString>("targetFile");

    const QString source = QStringLiteral("source.png");
    const QString target = QStringLiteral("target.png");
    QTest::newRow("a file name is replaced") << source << target;
    QTest::newRow("a file name is added") << source << QString();
    QTest::newRow("a file name is removed") << QString() << target;
    QTest::newRow("none has a file name") << QString() << QString();
}

void InterlinkresultTest::assignment()
{
    QFETCH(QString, sourceFile);
    QFETCH(QString, targetFile);

    XmlInterlinkResultType source = result(QStringLiteral("S"), QStringLiteral("source"), sourceFile);
    XmlInterlinkResultType target = result(QStringLiteral("T"), QStringLiteral("target"), targetFile);
    target = source;
    source.reset();
    QCOMPARE(held(target), QStringLiteral("S;B;source;") + sourceFile);
    QCOMPARE(target.hasScreenshotFilename(), !sourceFile.isEmpty());
}

void InterlinkresultTest::errorTextIsCopiedAndReset()
{
    Probe source;
    source.setParameters(planning(QStringLiteral("A"), QStringLiteral("B")));
    source.syntaxError();
    const QString text = QStringLiteral("+++ in XmlInterlinkResultType Begin:\n"
                                        "Missing Result Text\n"
                                        "--- in XmlInterlinkResultType End");
    checkKeptErrorText(source, text);
}

void InterlinkresultTest::written_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("filename");
    QTest::addColumn<QString>("xml");

    QTest::newRow("the text is written though it is empty")
        << QString() << QString() << QString()
        << QStringLiteral("<I><Parameters><FirstName></FirstName><SecondName>B</SecondName></Parameters>"
                          "<Result><Text></Text></Result></I>");
    QTest::newRow("a file name follows the text")
        << QStringLiteral("A") << QStringLiteral("feasible") << QStringLiteral("link.png")
        << QStringLiteral("<I><Parameters><FirstName>A</FirstName><SecondName>B</SecondName></Parameters>"
                          "<Result><Text>feasible</Text><ScreenshotFilename>link.png</ScreenshotFilename>"
                          "</Result></I>");
    QTest::newRow("a file name without a text")
        << QStringLiteral("A") << QString() << QStringLiteral("link.png")
        << QStringLiteral("<I><Parameters><FirstName>A</FirstName><SecondName>B</SecondName></Parameters>"
                          "<Result><Text></Text><ScreenshotFilename>link.png</ScreenshotFilename></Result></I>");
    QTest::newRow("no file name")
        << QStringLiteral("A") << QStringLiteral("a < b") << QString()
        << QStringLiteral("<I><Parameters><FirstName>A</FirstName><SecondName>B</SecondName></Parameters>"
                          "<Result><Text>a &lt; b</Text></Result></I>");
}

void InterlinkresultTest::written()
{
    QFETCH(QString, first);
    QFETCH(QString, text);
    QFETCH(QString, filename);
    QFETCH(QString, xml);

    QCOMPARE(ElementTest::written(result(first, text, filename), QStringLiteral("I")), xml);
    if (first.isEmpty()) {
        QCOMPARE(ElementTest::written(XmlInterlinkResultType(), QStringLiteral("InterlinkResult")),
                 QStringLiteral("<InterlinkResult><Parameters><FirstName></FirstName><SecondName></SecondName>"
                                "</Parameters><Result><Text></Text></Result></InterlinkResult>"));
    }
}

void InterlinkresultTest::readBack()
{
    const auto element = ElementTest::readFrom<XmlInterlinkResultType>(
        QStringLiteral("<InterlinkResult>\n"
                       "  <Parameters>\n    <FirstName>North</FirstName>\n    <SecondName>South</SecondName>\n"
                       "  </Parameters>\n"
                       "  <Result>\n    <Text>feasible</Text>\n"
                       "    <ScreenshotFilename>link.png</ScreenshotFilename>\n  </Result>\n"
                       "</InterlinkResult>"));
    QCOMPARE(held(element), QStringLiteral("North;South;feasible;link.png"));
    const auto again =
        ElementTest::readFrom<XmlInterlinkResultType>(ElementTest::written(element, QStringLiteral("Other")));
    QCOMPARE(held(again), QStringLiteral("North;South;feasible;link.png"));
}

void InterlinkresultTest::startTags_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<bool>("accepted");

    // What may follow what has been read: P = Parameters, R = Result, T = Text, F = ScreenshotFilename
    const struct {
        const char* name;
        const char* before;
        const char* accepted;
    } states[] = {
        {"nothing", "", "PR"},
        {"the parameters", "{P}", "R"},
        {"an open result", "<Result>", "TF"},
        {"the parameters and an open result", "{P}<Result>", "TF"},
        {"an empty result", "<Result></Result>", "PR"},
        {"the parameters and an empty result", "{P}<Result></Result>", "R"},
        {"an empty result and the parameters", "<Result/>{P}", "R"},
        {"two empty results", "<Result/><Result/>", "PR"},
        {"a text", "<Result><Text>t</Text>", "F"},
        {"the parameters and a text", "{P}<Result><Text>t</Text>", "F"},
        {"a file name", "<Result><ScreenshotFilename>f</ScreenshotFilename>", ""},
        {"the parameters and a file name", "{P}<Result><ScreenshotFilename>f</ScreenshotFilename>", ""},
        {"a text and a file name", "<Result><Text>t</Text><ScreenshotFilename>f</ScreenshotFilename>", ""},
        {"the parameters, a text and a file name",
         "{P}<Result><Text>t</Text><ScreenshotFilename>f</ScreenshotFilename>", ""},
        {"a result with a text", "<Result><Text>t</Text></Result>", ""},
        {"a result with an empty text", "<Result><Text/></Result>", ""},
        {"the parameters and a result with a text", "{P}<Result><Text>t</Text></Result>", ""},
        {"a result with a file name", "<Result><ScreenshotFilename>f</ScreenshotFilename></Result>", ""},
        {"the parameters and a result with a file name",
         "{P}<Result><ScreenshotFilename>f</ScreenshotFilename></Result>", ""},
        {"a result with a text and a file name",
         "<Result><Text>t</Text><ScreenshotFilename>f</ScreenshotFilename></Result>", ""},
        {"the parameters and a complete result",
         "{P}<Result><Text>t</Text><ScreenshotFilename>f</ScreenshotFilename></Result>", ""},
    };
    const char* const tags[] = {"Parameters", "Result", "Text", "ScreenshotFilename", "Other", "result"};
    for (const auto& state : states) {
        for (const char* tag : tags) {
            const bool accepted = QByteArray(state.accepted).contains(tag[0] == 'S' ? 'F' : tag[0]);
            QTest::addRow("%s after %s is %s", tag, state.name, accepted ? "accepted" : "refused")
                << withParameters(state.before) << QString::fromLatin1(tag) << accepted;
        }
    }
}

void InterlinkresultTest::startTags()
{
    QFETCH(QString, before);
    QFETCH(QString, tag);
    QFETCH(bool, accepted);

    XmlInterlinkResultType element;
    const QString start = QStringLiteral("<InterlinkResult>%1<%2>").arg(before, tag);
    if (!accepted) {
        const Refusal refused = refusal(start + QLatin1Char('|'), text("XmlInterlinkResultType"),
                                        QStringLiteral("Unexpected token \"StartElement\": ") + tag);
        QCOMPARE(ElementTest::readError(element, refused.xml), refused.error);
        return;
    }
    // The document ends after the tag: nothing else is wrong with it.
    QString content = QStringLiteral("new</%1>").arg(tag);
    if (tag == QLatin1String("Parameters"))
        content = QStringLiteral("<FirstName>new</FirstName><SecondName>B</SecondName></Parameters>");
    else if (tag == QLatin1String("Result"))
        content.clear();
    QCOMPARE(ElementTest::readError(element, start + content), QStringLiteral("Premature end of document."));
    if (tag == QLatin1String("Parameters"))
        QCOMPARE(element.parameters()->firstName(), QStringLiteral("new"));
    if (tag == QLatin1String("Text"))
        QCOMPARE(element.resultText(), QStringLiteral("new"));
    if (tag == QLatin1String("ScreenshotFilename"))
        QCOMPARE(element.screenshotFilename(), QStringLiteral("new"));
}

void InterlinkresultTest::endTags_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("complete");

    const auto row = [](const char* name, const char* content, bool complete) {
        QTest::newRow(name) << withParameters(content) << complete;
    };
    row("nothing is too little", "", false);
    row("parameters alone are too little", "{P}", false);
    row("an empty result is too little", "<Result/>", false);
    row("parameters and an empty result are too little", "{P}<Result/>", false);
    row("a text alone is too little", "<Result><Text>t</Text></Result>", false);
    row("a file name alone is too little", "<Result><ScreenshotFilename>f</ScreenshotFilename></Result>", false);
    row("a text and a file name are too little",
        "<Result><Text>t</Text><ScreenshotFilename>f</ScreenshotFilename></Result>", false);
    row("parameters and a file name are too little", "{P}<Result><ScreenshotFilename>f</ScreenshotFilename></Result>",
        false);
    row("parameters and a text are enough", "{P}<Result><Text>t</Text></Result>", true);
    row("an empty text is enough", "{P}<Result><Text></Text></Result>", true);
    row("a file name may follow", "{P}<Result><Text>t</Text><ScreenshotFilename>f</ScreenshotFilename></Result>", true);
    row("the parameters may follow an empty result", "<Result/>{P}<Result><Text>t</Text></Result>", true);
}

void InterlinkresultTest::endTags()
{
    QFETCH(QString, content);
    QFETCH(bool, complete);

    XmlInterlinkResultType element;
    const Refusal document =
        refusal(QStringLiteral("<InterlinkResult>\n%1\n</InterlinkResult>|").arg(content),
                text("XmlInterlinkResultType"), QStringLiteral("Unexpected token \"EndElement\": InterlinkResult"));
    QCOMPARE(ElementTest::readError(element, document.xml), complete ? QString() : document.error);
}

void InterlinkresultTest::refused_data()
{
    QTest::addColumn<QString>("marked");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("message");

    const auto row = [](const char* name, const char* marked, const char* className, const char* message) {
        QTest::newRow(name) << withParameters(marked) << QString::fromLatin1(className) << QString::fromLatin1(message);
    };
    row("a tag is compared with its case", "<I>\n  <parameters>|</parameters>\n</I>", "XmlInterlinkResultType",
        "Unexpected token \"StartElement\": parameters");
    row("the parameters miss a name", "<I>\n<Parameters>\n<FirstName>A</FirstName></Parameters>|</I>",
        "XmlInterlinkPlanningType", "Unexpected token \"EndElement\": Parameters");
    row("the end tag of a result that was not entered", "<Result>{P}\n</Result>|", "XmlInterlinkResultType",
        "Unexpected token \"EndElement\": Result");
    row("the end tag of a result that was left", "<Result>{P}\n<Result/></Result>|", "XmlInterlinkResultType",
        "Unexpected token \"EndElement\": Result");
    row("the end tag of another element", "<J>{P}<Result><Text>t</Text></Result>\n</J>|", "XmlInterlinkResultType",
        "Unexpected token \"EndElement\": J");
}

void InterlinkresultTest::refused()
{
    QFETCH(QString, marked);
    QFETCH(QString, className);
    QFETCH(QString, message);

    checkRefused<XmlInterlinkResultType>(refusal(marked, className, message), QStringLiteral("I"));
}

void InterlinkresultTest::otherTokensAreSkipped()
{
    XmlInterlinkResultType element;
    QCOMPARE(ElementTest::readError(element,
                                    withParameters("<I>text<!-- comment --><?pi data?>{P} 5 <Result>x"
                                                   "<Text>a<!-- comment -->b<![CDATA[<c>]]></Text>y</Result>z</I>")),
             QString());
    QCOMPARE(held(element), QStringLiteral("A;B;ab<c>;"));
}

void InterlinkresultTest::tagOfTheWrapper()
{
    // The end of the inner "Result" closes the result, not the element.
    QXmlStreamReader reader(withParameters("<Result>{P}<Result><Text>t</Text></Result></Result>"));
    reader.readNextStartElement();
    XmlInterlinkResultType element;
    element.processXml(reader, QStringLiteral("Result"));
    QCOMPARE(reader.errorString(), QString());
    QVERIFY(reader.isEndElement());
    QCOMPARE(reader.readNext(), QXmlStreamReader::EndDocument);
}

void InterlinkresultTest::positions_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("tokens");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("read");

    const QString complete = withParameters("<I>text{P}<Result><Text>t</Text></Result></I>");
    QTest::newRow("before the first token") << complete << 0
                                            << QStringLiteral("in XmlInterlinkResultType (line 1, column 2): "
                                                              "Unexpected token \"StartDocument\".")
                                            << QStringLiteral(";;;");
    QTest::newRow("before a start tag that is then one of its children")
        << complete << 1
        << QStringLiteral("in XmlInterlinkResultType (line 1, column 3): "
                          "Unexpected token \"StartElement\": I.")
        << QStringLiteral(";;;");
    QTest::newRow("on the start tag") << complete << 2 << QString() << QStringLiteral("A;B;t;");
    QTest::newRow("on the text inside") << complete << 3 << QString() << QStringLiteral("A;B;t;");
    QTest::newRow("at the end of the document") << QStringLiteral("<I/>") << 4 << QString() << QStringLiteral(";;;");
    QTest::newRow("up to the end of the document")
        << QStringLiteral("<Result>\n<Text>t</Text></Result>") << 1
        << QStringLiteral("in XmlInterlinkResultType (line 2, column 23): Unexpected token \"EndDocument\".")
        << QStringLiteral(";;t;");
}

void InterlinkresultTest::positions()
{
    QFETCH(QString, xml);
    QFETCH(int, tokens);
    QFETCH(QString, error);
    QFETCH(QString, read);

    QXmlStreamReader reader(xml);
    for (int i = 0; i < tokens; ++i)
        reader.readNext();
    XmlInterlinkResultType element;
    element.processXml(reader, QStringLiteral("I"));
    QCOMPARE(reader.errorString(), error);
    QCOMPARE(held(element), read);
}

void InterlinkresultTest::readingIntoUsedObject()
{
    XmlInterlinkResultType element = result(QStringLiteral("old"), QStringLiteral("old"), QStringLiteral("old.png"));
    QCOMPARE(ElementTest::readError(element, withParameters("<I>{P}<Result><Text>new</Text></Result></I>")), QString());
    QCOMPARE(held(element), QStringLiteral("A;B;new;old.png"));
    QCOMPARE(ElementTest::readError(element, withParameters("<I>{P}<Result><Text/><ScreenshotFilename/></Result></I>")),
             QString());
    QCOMPARE(held(element), QStringLiteral("A;B;;"));
}

void InterlinkresultTest::useAfterFailedRead()
{
    XmlInterlinkResultType element;
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<I><Result>\n<Text>read<x/></Text></Result></I>")),
             QStringLiteral("Expected character data."));
    QCOMPARE(held(element), QStringLiteral(";;read;"));

    const QString misplaced = withParameters("<I>{P}\n<Result><Text>kept</Text><x/></Result></I>");
    QCOMPARE(ElementTest::readError(element, misplaced),
             QStringLiteral("in XmlInterlinkResultType (line 2, column 29): Unexpected token \"StartElement\": x."));
    QCOMPARE(held(element), QStringLiteral("A;B;kept;"));
    QVERIFY(element.isValid());
    QCOMPARE(element.syntaxError(), QString());
    QCOMPARE(held(XmlInterlinkResultType(element)), QStringLiteral("A;B;kept;"));
    QCOMPARE(ElementTest::written(element, QStringLiteral("I")),
             QStringLiteral("<I><Parameters><FirstName>A</FirstName><SecondName>B</SecondName></Parameters>"
                            "<Result><Text>kept</Text></Result></I>"));
    QCOMPARE(ElementTest::readError(element, withParameters("<I>{P}<Result><Text>again</Text></Result></I>")),
             QString());
    QCOMPARE(held(element), QStringLiteral("A;B;again;"));
    element.reset();
    QCOMPARE(held(element), QStringLiteral(";;;"));

    QXmlStreamReader broken(QStringLiteral("<I><Result></I>"));
    broken.readNextStartElement();
    element.processXml(broken, QStringLiteral("I"));
    QCOMPARE(broken.error(), QXmlStreamReader::NotWellFormedError); // the reader's own, not replaced
    QVERIFY(!broken.errorString().startsWith(QLatin1String("in ")));
}

void InterlinkresultTest::checked_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");

    QTest::newRow("complete") << QStringLiteral("A") << QStringLiteral("t") << QString();
    QTest::newRow("without a text") << QStringLiteral("A") << QString()
                                    << QStringLiteral("+++ in XmlInterlinkResultType Begin:\n"
                                                      "Missing Result Text\n"
                                                      "--- in XmlInterlinkResultType End");
    QTest::newRow("with invalid parameters") << QString() << QStringLiteral("t")
                                             << QStringLiteral("+++ in XmlInterlinkResultType Begin:\n"
                                                               "+++ in XmlInterlinkPlanningType Begin:\n"
                                                               "FirstName not set\n"
                                                               "--- in XmlInterlinkPlanningType End\n"
                                                               "--- in XmlInterlinkResultType End");
    QTest::newRow("with both, the parameters come first") << QString() << QString()
                                                          << QStringLiteral("+++ in XmlInterlinkResultType Begin:\n"
                                                                            "+++ in XmlInterlinkPlanningType Begin:\n"
                                                                            "FirstName not set\n"
                                                                            "--- in XmlInterlinkPlanningType End\n"
                                                                            "Missing Result Text\n"
                                                                            "--- in XmlInterlinkResultType End");
}

void InterlinkresultTest::checked()
{
    QFETCH(QString, first);
    QFETCH(QString, text);
    QFETCH(QString, error);

    for (const QString& filename : {QString(), QStringLiteral("link.png")}) { // makes no difference
        XmlInterlinkResultType element = result(first, text, filename);
        QCOMPARE(element.isValid(), error.isEmpty());
        QCOMPARE(element.syntaxError(), error);
        QCOMPARE(element.syntaxError(), error);
    }
}

void InterlinkresultTest::reset()
{
    XmlInterlinkResultType element = result(QStringLiteral("A"), QStringLiteral("text"), QStringLiteral("file"));
    const XmlInterlinkPlanningType* const parameters = element.parameters();
    element.reset();
    QCOMPARE(element.parameters(), parameters);
    QCOMPARE(held(element), QStringLiteral(";;;"));
    QVERIFY(!element.hasScreenshotFilename());
    QCOMPARE(element.syntaxError(),
             QStringLiteral("+++ in XmlInterlinkResultType Begin:\n"
                            "+++ in XmlInterlinkPlanningType Begin:\n"
                            "FirstName not set\n"
                            "SecondName not set\n"
                            "--- in XmlInterlinkPlanningType End\n"
                            "Missing Result Text\n"
                            "--- in XmlInterlinkResultType End"));
    QCOMPARE(ElementTest::written(element, QStringLiteral("I")),
             ElementTest::written(XmlInterlinkResultType(), QStringLiteral("I")));
}

QTEST_APPLESS_MAIN(InterlinkresultTest)
#include "interlinkresult_test.moc"
