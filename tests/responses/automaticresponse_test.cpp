#include "support/elementtest.h"
#include "support/responsetest.h"
#include "support/values.h"

#include <arvxml/automaticresponse.h>

#include <type_traits>
#include <utility>

using namespace ArvXml;
using namespace ResponseTest;
using TestValues::reference;
using TestValues::someTime;
using TestValues::text;
using TestValues::timeAhead;
using TestValues::timeInUtc;

namespace {

/// Shows the error text that is kept in the element.
struct Probe : XmlAutoRespType {
    using XmlElementBase::mySyntaxError;
};

using Response = XmlAutoRespType;

/// A valid grid result; without a file name it is not.
XmlGridResultType gridResult(const QString& filename)
{
    XmlNameAllMultiType all;
    all.setAll();
    XmlCepType parameters;
    parameters.setUseDFs(all);
    parameters.setAOIs(all);
    XmlGridResultType result;
    result.setType(XmlGridResultType::ResultCep);
    result.setCep(parameters);
    result.setScreenshotFilename(filename);
    return result;
}

/// A valid interlink result; without a text it is not.
XmlInterlinkResultType interlinkResult(const QString& resultText)
{
    XmlInterlinkPlanningType parameters;
    parameters.setFirstName(QStringLiteral("A"));
    parameters.setSecondName(QStringLiteral("B"));
    XmlInterlinkResultType result;
    result.setParameters(parameters);
    result.setResultText(resultText);
    return result;
}

const char gridXml[] = "<GridResult type=\"CEP\"><CEP><Parameter><UseDFs><All/></UseDFs><AOIs><All/></AOIs></Parameter>"
                       "<ScreenshotFilename>f.png</ScreenshotFilename></CEP></GridResult>";
const char interlinkXml[] =
    "<InterlinkResult><Parameters><FirstName>A</FirstName><SecondName>B</SecondName></Parameters>"
    "<Result><Text>t</Text></Result></InterlinkResult>";

/// Everything that \a response holds.
QString held(const Response& response)
{
    return QStringList({QString::number(response.status()), response.reference().reference(),
                        response.estimatedTime().toString(Qt::ISODate),
                        response.gridResult() ? response.gridResult()->screenshotFilename() : QStringLiteral("-"),
                        response.interlinkResult() ? response.interlinkResult()->resultText() : QStringLiteral("-"),
                        response.errorMessage(), response.arvVersion()})
        .join(QLatin1Char(';'));
}

QString written(const Response& response)
{
    return ElementTest::written(response, QStringLiteral("Automatic"));
}

/// A response with everything set.
Response fullResponse()
{
    Response response;
    response.setStatus(Response::StatusFault);
    response.setReference(reference(QStringLiteral("ref")));
    response.setEstimatedTime(someTime());
    response.setGridResult(gridResult(QStringLiteral("f.png")));
    response.setInterlinkResult(interlinkResult(QStringLiteral("t")));
    response.setErrorMessage(QStringLiteral("error"));
    response.setArvVersion(QStringLiteral("7.1"));
    return response;
}

const char fullHeld[] = "1;ref;2024-03-05T14:07:09;f.png;t;error;7.1";
const char newHeld[] = "0;;;-;-;;";

} // namespace

static_assert(std::is_base_of_v<XmlElementBase, Response>);
static_assert(std::is_same_v<decltype(std::declval<Response&>().reference()), const XmlReferenceType&>);
static_assert(std::is_same_v<decltype(std::declval<Response&>().gridResult()), const XmlGridResultType*>);
static_assert(std::is_same_v<decltype(std::declval<Response&>().interlinkResult()), const XmlInterlinkResultType*>);

class AutomaticresponseTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void newObject();
    void accessors();
    void resultsAreCopiedAndAssigned();
    void copies_data();
    void copies();
    void selfAssignment();
    void errorTextIsCopiedAndReset();
    void combinations_data();
    void combinations();
    void checked_data();
    void checked();
    void written_data();
    void written();
    void writtenTime_data();
    void writtenTime();
    void status_data();
    void status();
    void pairs_data();
    void pairs();
    void endTags_data();
    void endTags();
    void refused_data();
    void refused();
    void timeRead_data();
    void timeRead();
    void readBack_data();
    void readBack();
    void otherTokensAreSkipped();
    void readingIntoUsedObject();
    void useAfterFailedRead();
    void nestedElementInText();
    void wrongPosition_data();
    void wrongPosition();
    void reset();
};

void AutomaticresponseTest::newObject()
{
    Response response;
    QCOMPARE(response.status(), Response::StatusUndefined);
    QCOMPARE(response.reference().reference(), QString());
    QVERIFY(!response.hasErrorMessage());
    QCOMPARE(response.errorMessage(), QString());
    QVERIFY(!response.hasEstimatedTime());
    QVERIFY(!response.estimatedTime().isValid());
    QVERIFY(!response.hasArvVersion());
    QCOMPARE(response.arvVersion(), QString());
    QVERIFY(!response.hasGridResult());
    QVERIFY(response.gridResult() == nullptr);
    QVERIFY(!response.hasInterlinkResult());
    QVERIFY(response.interlinkResult() == nullptr);
    QVERIFY(!response.isValid());
}

void AutomaticresponseTest::accessors()
{
    QCOMPARE(static_cast<int>(Response::StatusUndefined), 0);
    QCOMPARE(static_cast<int>(Response::StatusFault), 1);
    QCOMPARE(static_cast<int>(Response::StatusAck), 2);

    Response response;
    response.setStatus(Response::StatusAck);
    QCOMPARE(held(response), text("2;;;-;-;;"));
    response.setReference(reference(QStringLiteral("ref")));
    QCOMPARE(held(response), text("2;ref;;-;-;;"));
    response.setReference(response.reference());
    QCOMPARE(held(response), text("2;ref;;-;-;;"));
    response.setErrorMessage(QStringLiteral("error"));
    QVERIFY(response.hasErrorMessage());
    QCOMPARE(held(response), text("2;ref;;-;-;error;"));
    response.setErrorMessage(QString());
    QVERIFY(!response.hasErrorMessage());
    response.setArvVersion(QStringLiteral("7.1"));
    QVERIFY(response.hasArvVersion());
    QCOMPARE(held(response), text("2;ref;;-;-;;7.1"));
    response.setArvVersion(QString());
    QVERIFY(!response.hasArvVersion());
    response.setEstimatedTime(someTime());
    QVERIFY(response.hasEstimatedTime());
    QCOMPARE(response.estimatedTime(), someTime());
    QCOMPARE(held(response), text("2;ref;2024-03-05T14:07:09;-;-;;"));
    response.setEstimatedTime(QDateTime(QDate(2024, 2, 30), QTime(1, 2))); // there is no such day
    QVERIFY(!response.hasEstimatedTime());
    response.setGridResult(gridResult(QStringLiteral("f.png")));
    QVERIFY(response.hasGridResult());
    QVERIFY(!response.hasInterlinkResult());
    response.setInterlinkResult(interlinkResult(QStringLiteral("t")));
    QVERIFY(response.hasInterlinkResult());
    QCOMPARE(held(response), text("2;ref;;f.png;t;;"));
}

void AutomaticresponseTest::resultsAreCopiedAndAssigned()
{
    Response response;
    XmlGridResultType grid = gridResult(QStringLiteral("f.png"));
    XmlInterlinkResultType interlink = interlinkResult(QStringLiteral("t"));
    response.setGridResult(grid);
    response.setInterlinkResult(interlink);
    const XmlGridResultType* const heldGrid = response.gridResult();
    const XmlInterlinkResultType* const heldInterlink = response.interlinkResult();
    grid.setScreenshotFilename(QStringLiteral("second.png"));
    interlink.setResultText(QStringLiteral("second"));
    QCOMPARE(held(response), text("0;;;f.png;t;;"));

    response.setGridResult(grid);
    response.setInterlinkResult(interlink);
    QCOMPARE(response.gridResult(), heldGrid);
    QCOMPARE(response.interlinkResult(), heldInterlink);
    response.setGridResult(*response.gridResult());
    response.setInterlinkResult(*response.interlinkResult());
    QCOMPARE(held(response), text("0;;;second.png;second;;"));
    QVERIFY(response.gridResult()->hasCep());
    QCOMPARE(response.interlinkResult()->parameters()->firstName(), QStringLiteral("A"));
}

void AutomaticresponseTest::copies_data()
{
    QTest::addColumn<bool>("sourceGrid");
    QTest::addColumn<bool>("sourceInterlink");
    QTest::addColumn<bool>("targetGrid");
    QTest::addColumn<bool>("targetInterlink");

    for (int i = 0; i < 16; ++i) {
        QTest::addRow("source with grid %d, interlink %d; target with grid %d, interlink %d", i & 1, (i >> 1) & 1,
                      (i >> 2) & 1, i >> 3)
            << ((i & 1) != 0) << ((i & 2) != 0) << ((i & 4) != 0) << ((i & 8) != 0);
    }
}

void AutomaticresponseTest::copies()
{
    QFETCH(bool, sourceGrid);
    QFETCH(bool, sourceInterlink);
    QFETCH(bool, targetGrid);
    QFETCH(bool, targetInterlink);

    Response source;
    source.setStatus(Response::StatusAck);
    source.setReference(reference(QStringLiteral("source")));
    source.setEstimatedTime(someTime());
    source.setErrorMessage(QStringLiteral("error"));
    source.setArvVersion(QStringLiteral("7.1"));
    if (sourceGrid)
        source.setGridResult(gridResult(QStringLiteral("source.png")));
    if (sourceInterlink)
        source.setInterlinkResult(interlinkResult(QStringLiteral("source")));

    Response target;
    target.setStatus(Response::StatusFault);
    target.setReference(reference(QStringLiteral("target")));
    target.setErrorMessage(QStringLiteral("target"));
    if (targetGrid)
        target.setGridResult(gridResult(QStringLiteral("target.png")));
    if (targetInterlink)
        target.setInterlinkResult(interlinkResult(QStringLiteral("target")));

    const Response copy(source);
    target = source;
    QVERIFY(!sourceGrid || (copy.gridResult() != source.gridResult() && target.gridResult() != source.gridResult()));
    QVERIFY(!sourceInterlink
            || (copy.interlinkResult() != source.interlinkResult()
                && target.interlinkResult() != source.interlinkResult()));
    source.reset();
    source.setReference(reference(QStringLiteral("changed")));
    const QString expected =
        QStringLiteral("2;source;2024-03-05T14:07:09;%1;%2;error;7.1")
            .arg(sourceGrid ? text("source.png") : text("-"), sourceInterlink ? text("source") : text("-"));
    QCOMPARE(held(copy), expected);
    QCOMPARE(held(target), expected);
}

void AutomaticresponseTest::selfAssignment()
{
    Response response = fullResponse();
    const Response& self = response;
    response = self;
    QCOMPARE(held(response), text(fullHeld));
}

void AutomaticresponseTest::errorTextIsCopiedAndReset()
{
    Probe source;
    source.setReference(reference(QStringLiteral("r")));
    source.setStatus(Response::StatusFault);
    source.syntaxError();
    const QString error = text("+++ in XmlAutoRespType Begin:\nMust have status 'ack'\n--- in XmlAutoRespType End");
    checkKeptErrorText(source, error);
}

void AutomaticresponseTest::combinations_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("validReference");
    QTest::addColumn<bool>("error");
    QTest::addColumn<bool>("time");
    QTest::addColumn<bool>("version");
    QTest::addColumn<int>("grid");
    QTest::addColumn<int>("interlink");

    const char* const results[] = {"no", "a valid", "an invalid"};
    for (int status = 0; status < 3; ++status)
        for (const bool validReference : {true, false})
            for (const bool error : {false, true})
                for (const bool time : {false, true})
                    for (const bool version : {false, true})
                        for (int grid = 0; grid < 3; ++grid)
                            for (int interlink = 0; interlink < 3; ++interlink)
                                QTest::addRow("status %d, reference %d, error %d, time %d, version %d, %s grid result, "
                                              "%s interlink result",
                                              status, validReference, error, time, version, results[grid],
                                              results[interlink])
                                    << status << validReference << error << time << version << grid << interlink;
}

void AutomaticresponseTest::combinations()
{
    QFETCH(int, status);
    QFETCH(bool, validReference);
    QFETCH(bool, error);
    QFETCH(bool, time);
    QFETCH(bool, version);
    QFETCH(int, grid);
    QFETCH(int, interlink);

    Response response;
    response.setStatus(static_cast<Response::RespStatus>(status));
    if (validReference)
        response.setReference(reference(QStringLiteral("ref")));
    if (error)
        response.setErrorMessage(QStringLiteral("error"));
    if (time)
        response.setEstimatedTime(someTime());
    if (version)
        response.setArvVersion(QStringLiteral("7.1"));
    if (grid != 0)
        response.setGridResult(gridResult(grid == 1 ? QStringLiteral("f.png") : QString()));
    if (interlink != 0)
        response.setInterlinkResult(interlinkResult(interlink == 1 ? QStringLiteral("t") : QString()));

    const bool isFault = status == 1;
    const bool isAck = status == 2;
    const bool hasGrid = grid != 0;
    const bool hasInterlink = interlink != 0;

    bool valid = status != 0 && validReference && grid != 2 && interlink != 2;
    if (error)
        valid = valid && isFault && !time;
    else
        valid = valid && isAck && ((version != hasInterlink) != (hasGrid != time));
    QCOMPARE(response.isValid(), valid);

    QStringList problems;
    if (status == 0)
        problems += text("Status not defined.");
    if (!validReference) {
        problems += text("+++ in XmlreferenceType Begin:\n"
                         "String too short (min. 1)\n"
                         "--- in XmlreferenceType End");
    }
    if (error && !isFault)
        problems += text("Has ErrorMessage but not status 'fault'");
    if (error && time)
        problems += text("Has ErrorMessage but also EstimatedTime");
    if (!error && !isAck)
        problems += text("Must have status 'ack'");
    if (!error && time && (version || hasGrid || hasInterlink))
        problems += text("If EstimatedTime given, no results allowed");
    if (!error && !time && version && (hasGrid || hasInterlink))
        problems += text("If ArvVersion set, no results allowed");
    if (!error && !time && !version && hasGrid && hasInterlink)
        problems += text("Only one result allowed");
    if (grid == 2) {
        problems += text("+++ in XmlGridResultType Begin:\n"
                         "Screenshot path not set\n"
                         "--- in XmlGridResultType End");
    }
    if (interlink == 2) {
        problems += text("+++ in XmlInterlinkResultType Begin:\n"
                         "Missing Result Text\n"
                         "--- in XmlInterlinkResultType End");
    }
    const QString problem = problems.isEmpty()
        ? QString()
        : QStringLiteral("+++ in XmlAutoRespType Begin:\n%1\n--- in XmlAutoRespType End")
              .arg(problems.join(QLatin1Char('\n')));
    QCOMPARE(response.syntaxError(), problem);
    QCOMPARE(response.syntaxError(), problem);

    const char* const statusTexts[] = {"UNDEFINED", "fault", "ack"};
    QString xml = QStringLiteral("<Automatic status=\"%1\"><CommandReference>%2</CommandReference>")
                      .arg(text(statusTexts[status]), validReference ? text("ref") : QString());
    if (error)
        xml += text("<ErrorMessage>error</ErrorMessage>");
    else if (time)
        xml += text("<EstimatedTime>2024-03-05T14:07:09</EstimatedTime>");
    else
        xml += (version ? text("<ArvVersion>7.1</ArvVersion>") : QString())
            + (hasGrid ? text(gridXml).replace(QLatin1String("f.png"), grid == 1 ? text("f.png") : QString())
                       : QString())
            + (hasInterlink
                   ? text(interlinkXml).replace(QLatin1String(">t<"), interlink == 1 ? text(">t<") : text("><"))
                   : QString());
    QCOMPARE(::written(response), xml + text("</Automatic>"));
}

void AutomaticresponseTest::checked_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("items"); ///< E(rror), T(ime), V(ersion), G(rid), I(nterlink)
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("problems");

    const auto row = [](const char* name, int status, const char* items, bool valid, const char* problems) {
        QTest::newRow(name) << status << text(items) << valid << text(problems);
    };
    row("an acknowledgement without an item is invalid but not reported", 2, "", false, "");
    row("a time alone", 2, "T", true, "");
    row("a version alone", 2, "V", true, "");
    row("a grid result alone", 2, "G", true, "");
    row("an interlink result alone", 2, "I", true, "");
    row("a fault with its message", 1, "E", true, "");
    row("a fault without a message", 1, "", false, "Must have status 'ack'\n");
    row("a message with a grid result", 1, "EG", true, "");
    row("a message with a version", 1, "EV", true, "");
    row("a message with all results", 1, "EVGI", true, "");
    row("a message with a time", 1, "ET", false, "Has ErrorMessage but also EstimatedTime\n");
    row("an acknowledgement with a message", 2, "E", false, "Has ErrorMessage but not status 'fault'\n");
    row("an acknowledgement with a message and a time", 2, "ET", false,
        "Has ErrorMessage but not status 'fault'\nHas ErrorMessage but also EstimatedTime\n");
    row("nothing defined", 0, "", false, "Status not defined.\nMust have status 'ack'\n");
    row("a message without a status", 0, "E", false, "Status not defined.\nHas ErrorMessage but not status 'fault'\n");
    row("a version and both results are valid but reported", 2, "VGI", true, "If ArvVersion set, no results allowed\n");
    row("a time and both results are valid but reported", 2, "TGI", true,
        "If EstimatedTime given, no results allowed\n");
    row("a time, a version and a result are valid but reported", 2, "TVG", true,
        "If EstimatedTime given, no results allowed\n");
    row("both results", 2, "GI", false, "Only one result allowed\n");
    row("a version and a result", 2, "VI", false, "If ArvVersion set, no results allowed\n");
    row("a time and a version", 2, "TV", false, "If EstimatedTime given, no results allowed\n");
    row("everything but a message", 2, "TVGI", false, "If EstimatedTime given, no results allowed\n");
    row("a status beyond the known ones", 3, "V", false, "Must have status 'ack'\n");
    row("a message with a status beyond the known ones", 3, "E", false, "Has ErrorMessage but not status 'fault'\n");
}

void AutomaticresponseTest::checked()
{
    QFETCH(int, status);
    QFETCH(QString, items);
    QFETCH(bool, valid);
    QFETCH(QString, problems);

    Response response;
    response.setStatus(static_cast<Response::RespStatus>(status));
    response.setReference(reference(QStringLiteral("ref")));
    if (items.contains(QLatin1Char('E')))
        response.setErrorMessage(QStringLiteral("error"));
    if (items.contains(QLatin1Char('T')))
        response.setEstimatedTime(someTime());
    if (items.contains(QLatin1Char('V')))
        response.setArvVersion(QStringLiteral("7.1"));
    if (items.contains(QLatin1Char('G')))
        response.setGridResult(gridResult(QStringLiteral("f.png")));
    if (items.contains(QLatin1Char('I')))
        response.setInterlinkResult(interlinkResult(QStringLiteral("t")));
    QCOMPARE(response.isValid(), valid);
    QCOMPARE(response.syntaxError(),
             problems.isEmpty()
                 ? QString()
                 : QStringLiteral("+++ in XmlAutoRespType Begin:\n%1--- in XmlAutoRespType End").arg(problems));

    // A reference that is too long
    response.setReference(reference(QString(50, QLatin1Char('r'))));
    QCOMPARE(response.isValid(), valid);
    response.setReference(reference(QString(51, QLatin1Char('r'))));
    QVERIFY(!response.isValid());
    QVERIFY(response.syntaxError().contains(QLatin1String("String too long (max. 50)")));
}

void AutomaticresponseTest::written_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("text");

    QTest::newRow("undefined") << 0 << text("UNDEFINED");
    QTest::newRow("fault") << 1 << text("fault");
    QTest::newRow("ack") << 2 << text("ack");
    QTest::newRow("above the known ones") << 3 << text("UNDEFINED");
    QTest::newRow("below the known ones") << -1 << text("UNDEFINED");
}

void AutomaticresponseTest::written()
{
    QFETCH(int, status);
    QFETCH(QString, text);

    Response response;
    response.setStatus(static_cast<Response::RespStatus>(status));
    QCOMPARE(ElementTest::written(response, QStringLiteral("A")),
             QStringLiteral("<A status=\"%1\"><CommandReference></CommandReference></A>").arg(text));
}

void AutomaticresponseTest::writtenTime_data()
{
    QTest::addColumn<QDateTime>("time");
    QTest::addColumn<QString>("text");

    const QDate day(2024, 3, 5);
    QTest::newRow("local") << QDateTime(day, QTime(14, 7, 9)) << text("2024-03-05T14:07:09");
    QTest::newRow("without the fraction") << QDateTime(day, QTime(14, 7, 9, 999)) << text("2024-03-05T14:07:09");
    QTest::newRow("UTC") << timeInUtc(day, QTime(14, 7, 9)) << text("2024-03-05T14:07:09Z");
    QTest::newRow("with an offset") << timeAhead(day, QTime(14, 7, 9), 5400) << text("2024-03-05T14:07:09+01:30");
}

void AutomaticresponseTest::writtenTime()
{
    QFETCH(QDateTime, time);
    QFETCH(QString, text);

    Response response;
    response.setEstimatedTime(time);
    QCOMPARE(ElementTest::written(response, QStringLiteral("A")),
             QStringLiteral("<A status=\"UNDEFINED\"><CommandReference></CommandReference>"
                            "<EstimatedTime>%1</EstimatedTime></A>")
                 .arg(text));
}

void AutomaticresponseTest::status_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<int>("status");

    QTest::newRow("ack") << text(" status=\"ack\"") << 2;
    QTest::newRow("fault") << text(" status=\"fault\"") << 1;
    for (const char* wrong : {"ACK", "Ack", "FAULT", "Fault", " ack", "ack ", "UNDEFINED", "", "2", "acknowledged"})
        QTest::addRow("'%s' is refused", wrong) << QStringLiteral(" status=\"%1\"").arg(text(wrong)) << 0;
    QTest::newRow("a missing attribute is refused") << QString() << 0;
    QTest::newRow("the case of the name counts") << text(" Status=\"ack\"") << 0;
}

void AutomaticresponseTest::status()
{
    QFETCH(QString, attribute);
    QFETCH(int, status);

    Response response;
    response.setStatus(status == 2 ? Response::StatusFault : Response::StatusAck);
    const Refusal refused = refusal(QStringLiteral("\n\n <Automatic%1>|\n<CommandReference>new</CommandReference>"
                                                   "<ArvVersion>7.1</ArvVersion></Automatic>")
                                        .arg(attribute),
                                    text("XmlAutoRespType"), text("Illegal attribute value in \"status\""));
    QCOMPARE(ElementTest::readError(response, refused.xml), status == 0 ? refused.error : QString());
    QCOMPARE(static_cast<int>(response.status()), status);
    QCOMPARE(response.reference().reference(), status == 0 ? QString() : QStringLiteral("new"));
}

void AutomaticresponseTest::pairs_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<bool>("accepted");

    const struct {
        const char* tag;
        const char* xml; ///< null where reading it always ends in an error
    } children[] = {
        {"CommandReference", "<CommandReference>r</CommandReference>"},
        {"ErrorMessage", "<ErrorMessage>e</ErrorMessage>"},
        {"EstimatedTime", "<EstimatedTime>2024-03-05T14:07:09</EstimatedTime>"},
        {"GridResult", nullptr},
        {"InterlinkResult", interlinkXml},
        {"ArvVersion", "<ArvVersion>v</ArvVersion>"},
    };
    const char* const tags[] = {"CommandReference", "ErrorMessage", "EstimatedTime", "GridResult",
                                "InterlinkResult",  "ArvVersion",   "Reference",     "errorMessage"};
    for (int tag = 0; tag < 8; ++tag)
        QTest::addRow("%s first", tags[tag]) << QString() << text(tags[tag]) << (tag < 6);
    for (const auto& child : children) {
        if (!child.xml)
            continue;
        const bool isReference = &child == &children[0];
        for (int tag = 0; tag < 8; ++tag) {
            // Only an item may follow, and only the reference
            QTest::addRow("%s after %s", tags[tag], child.tag)
                << text(child.xml) << text(tags[tag]) << (isReference && tag > 0 && tag < 6);
            if (!isReference) {
                QTest::addRow("%s after the reference and %s", tags[tag], child.tag)
                    << text(children[0].xml) + text(child.xml) << text(tags[tag]) << false;
            }
        }
    }
    QTest::newRow("a second item after an empty error message")
        << text("<CommandReference>r</CommandReference><ErrorMessage/>") << text("ArvVersion") << false;
    QTest::newRow("a second reference after an empty one")
        << text("<CommandReference/>") << text("CommandReference") << false;
}

void AutomaticresponseTest::pairs()
{
    QFETCH(QString, before);
    QFETCH(QString, tag);
    QFETCH(bool, accepted);

    Response response;
    const QString start = QStringLiteral("<Automatic status=\"ack\">\n%1\n <%2").arg(before, tag);
    if (!accepted) {
        const Refusal refused =
            refusal(start + text(">|"), text("XmlAutoRespType"), text("Unexpected token \"StartElement\": ") + tag);
        QCOMPARE(ElementTest::readError(response, refused.xml), refused.error);
        return;
    }
    // The document ends after the tag: nothing else is wrong with it.
    QString content = QStringLiteral(">2024-03-05T14:07:10</%1>").arg(tag);
    if (tag == QLatin1String("GridResult"))
        content = text(" type=\"DetectProb\">");
    else if (tag == QLatin1String("InterlinkResult"))
        content = text("><Result><Text>new</Text>");
    QCOMPARE(ElementTest::readError(response, start + content), QStringLiteral("Premature end of document."));
    const QString read = QStringLiteral("2024-03-05T14:07:10");
    if (tag == QLatin1String("CommandReference"))
        QCOMPARE(response.reference().reference(), read);
    else if (tag == QLatin1String("ErrorMessage"))
        QCOMPARE(response.errorMessage(), read);
    else if (tag == QLatin1String("EstimatedTime"))
        QCOMPARE(response.estimatedTime(), QDateTime(QDate(2024, 3, 5), QTime(14, 7, 10)));
    else if (tag == QLatin1String("ArvVersion"))
        QCOMPARE(response.arvVersion(), read);
    else if (tag == QLatin1String("GridResult"))
        QCOMPARE(response.gridResult()->type(), XmlGridResultType::ResultDetectProb);
    else
        QCOMPARE(response.interlinkResult()->resultText(), QStringLiteral("new"));
    QCOMPARE(response.hasErrorMessage(), tag == QLatin1String("ErrorMessage"));
    QCOMPARE(response.hasEstimatedTime(), tag == QLatin1String("EstimatedTime"));
    QCOMPARE(response.hasArvVersion(), tag == QLatin1String("ArvVersion"));
    QCOMPARE(response.hasGridResult(), tag == QLatin1String("GridResult"));
    QCOMPARE(response.hasInterlinkResult(), tag == QLatin1String("InterlinkResult"));
}

void AutomaticresponseTest::endTags_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("complete");

    QTest::newRow("nothing is too little") << QString() << false;
    QTest::newRow("the reference alone is too little") << text("<CommandReference>r</CommandReference>") << false;
    for (const char* item : {"<ErrorMessage>e</ErrorMessage>", "<EstimatedTime>2024-03-05T14:07:09</EstimatedTime>",
                             interlinkXml, "<ArvVersion>v</ArvVersion>"}) {
        QTest::addRow("%.15s alone is too little", item) << text(item) << false;
        QTest::addRow("the reference and %.15s are enough", item)
            << text("<CommandReference>r</CommandReference>") + text(item) << true;
    }
    QTest::newRow("empty children are enough") << text("<CommandReference/><ArvVersion/>") << true;
}

void AutomaticresponseTest::endTags()
{
    QFETCH(QString, content);
    QFETCH(bool, complete);

    Response response;
    const Refusal document = refusal(QStringLiteral("<Automatic status=\"fault\">%1\n</Automatic>|").arg(content),
                                     text("XmlAutoRespType"), text("Unexpected token \"EndElement\": Automatic"));
    QCOMPARE(ElementTest::readError(response, document.xml), complete ? QString() : document.error);
}

void AutomaticresponseTest::refused_data()
{
    QTest::addColumn<QString>("marked");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("message");

    const auto row = [](const char* name, const char* marked, const char* className, const char* message) {
        QTest::newRow(name) << text(marked) << text(className) << text(message);
    };
    row("an error message and a time",
        "<Automatic status=\"fault\">\n  <CommandReference>r</CommandReference>\n  <ErrorMessage>e</ErrorMessage>\n"
        "  <EstimatedTime>|2024-03-05T14:07:09</EstimatedTime>\n</Automatic>",
        "XmlAutoRespType", "Unexpected token \"StartElement\": EstimatedTime");
    row("another end tag",
        "<Other status=\"ack\"><CommandReference>r</CommandReference>\n<ArvVersion>v</ArvVersion></Other>|",
        "XmlAutoRespType", "Unexpected token \"EndElement\": Other");
    row("an element in the reference",
        "<Automatic status=\"ack\"><CommandReference><Reference>|r</Reference></CommandReference></Automatic>",
        "XmlreferenceType", "Unexpected token \"StartElement\"");
    row("a grid result without a type",
        "<Automatic status=\"ack\"><CommandReference>r</CommandReference>\n<GridResult>|</GridResult></Automatic>",
        "XmlGridResultType", "Illegal attribute value in \"type\"");
    row("a complete grid result",
        "<Automatic status=\"ack\"><CommandReference>r</CommandReference>\n<GridResult type=\"CEP\">\n<CEP>\n"
        "<Parameter><UseDFs><All/></UseDFs><AOIs><All/></AOIs></Parameter>|\n"
        "<ScreenshotFilename>f</ScreenshotFilename></CEP></GridResult></Automatic>",
        "XmlCepType", "Unexpected token \"EndElement\": Parameter");
    row("an interlink result without a text",
        "<Automatic status=\"ack\"><CommandReference>r</CommandReference>\n<InterlinkResult>\n</InterlinkResult>|"
        "</Automatic>",
        "XmlInterlinkResultType", "Unexpected token \"EndElement\": InterlinkResult");
}

void AutomaticresponseTest::refused()
{
    QFETCH(QString, marked);
    QFETCH(QString, className);
    QFETCH(QString, message);

    checkRefused<Response>(refusal(marked, className, message), QStringLiteral("Automatic"));
}

void AutomaticresponseTest::timeRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDateTime>("time");

    const QDate day(2024, 3, 5);
    QTest::newRow("local") << text("2024-03-05T14:07:09") << QDateTime(day, QTime(14, 7, 9));
    QTest::newRow("with a fraction") << text("2024-03-05T14:07:09.042") << QDateTime(day, QTime(14, 7, 9, 42));
    QTest::newRow("UTC") << text("2024-03-05T14:07:09Z") << timeInUtc(day, QTime(14, 7, 9));
    QTest::newRow("with an offset") << text("2024-03-05T14:07:09+01:30") << timeAhead(day, QTime(14, 7, 9), 5400);
    QTest::newRow("another form") << text("05.03.2024 14:07:09") << QDateTime();
    QTest::newRow("no such day") << text("2024-02-30T14:07:09") << QDateTime();
    QTest::newRow("no such hour") << text("2024-03-05T25:07:09") << QDateTime();
    QTest::newRow("words") << text("soon") << QDateTime();
    QTest::newRow("nothing") << QString() << QDateTime();
}

void AutomaticresponseTest::timeRead()
{
    QFETCH(QString, text);
    QFETCH(QDateTime, time);

    Response response;
    response.setEstimatedTime(QDateTime(QDate(2000, 1, 1), QTime(0, 0)));
    const Refusal refused = refusal(QStringLiteral("<Automatic status=\"ack\">\n<CommandReference>r</CommandReference>"
                                                   "\n<EstimatedTime>%1</EstimatedTime>|</Automatic>")
                                        .arg(text),
                                    QStringLiteral("XmlAutoRespType"), QStringLiteral("Illegal dateTime format"));
    QCOMPARE(ElementTest::readError(response, refused.xml), time.isValid() ? QString() : refused.error);
    QCOMPARE(response.hasEstimatedTime(), time.isValid());
    if (time.isValid()) {
        QCOMPARE(response.estimatedTime(), time);
        QCOMPARE(response.estimatedTime().timeSpec(), time.timeSpec());
    }
}

void AutomaticresponseTest::readBack_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("read");

    const auto row = [](const char* name, const QString& content, const char* read) {
        QTest::newRow(name) << QStringLiteral("<Automatic status=\"%1\"><CommandReference>r</CommandReference>%2"
                                              "</Automatic>")
                                   .arg(read[0] == '1' ? text("fault") : text("ack"), content)
                            << text(read);
    };
    row("an error message", text("<ErrorMessage>a &lt; b</ErrorMessage>"), "1;r;;-;-;a < b;");
    row("a time", text("<EstimatedTime>2024-03-05T14:07:09</EstimatedTime>"), "2;r;2024-03-05T14:07:09;-;-;;");
    row("a version", text("<ArvVersion>7.1</ArvVersion>"), "2;r;;-;-;;7.1");
    row("an interlink result", text(interlinkXml), "2;r;;-;t;;");
}

void AutomaticresponseTest::readBack()
{
    QFETCH(QString, xml);
    QFETCH(QString, read);

    const auto response = ElementTest::readFrom<Response>(xml);
    QCOMPARE(held(response), read);
    QVERIFY(response.isValid());
    QCOMPARE(::written(response), xml);
}

void AutomaticresponseTest::otherTokensAreSkipped()
{
    const auto response = ElementTest::readFrom<Response>(
        text("<Automatic status=\"ack\">text<!-- comment --><?pi data?><CommandReference>r</CommandReference> 5 "
             "<ArvVersion>7<!-- comment -->.<![CDATA[1]]></ArvVersion>more<!-- comment --></Automatic>"));
    QCOMPARE(held(response), text("2;r;;-;-;;7.1"));
}

void AutomaticresponseTest::readingIntoUsedObject()
{
    const QString start = text("<Automatic status=\"ack\"><CommandReference>new</CommandReference>");
    const QString end = text("</Automatic>");

    Response response = fullResponse();
    QCOMPARE(ElementTest::readError(response, start + text("<ArvVersion>new</ArvVersion>") + end), QString());
    QCOMPARE(held(response), text("2;new;2024-03-05T14:07:09;f.png;t;error;new"));
    QCOMPARE(ElementTest::readError(response, start + text("<ErrorMessage></ErrorMessage>") + end), QString());
    QCOMPARE(held(response), text("2;new;2024-03-05T14:07:09;f.png;t;;new"));
    QVERIFY(!response.hasErrorMessage());

    // An empty reference keeps the old one
    QCOMPARE(ElementTest::readError(response, text("<A status=\"ack\"><CommandReference/><ArvVersion/></A>")),
             QString());
    QCOMPARE(held(response), text("2;new;2024-03-05T14:07:09;f.png;t;;"));

    // Results are replaced as a whole
    XmlInterlinkResultType withFile = interlinkResult(QStringLiteral("old"));
    withFile.setScreenshotFilename(QStringLiteral("old.png"));
    response.setInterlinkResult(withFile);
    QCOMPARE(ElementTest::readError(response, start + text(interlinkXml) + end), QString());
    QCOMPARE(response.interlinkResult()->resultText(), QStringLiteral("t"));
    QVERIFY(!response.interlinkResult()->hasScreenshotFilename());

    QVERIFY(!ElementTest::readError(response, start + text("<GridResult type=\"DfCoverage\"/>") + end).isEmpty());
    QCOMPARE(response.gridResult()->type(), XmlGridResultType::ResultDfCoverage);
    QVERIFY(!response.gridResult()->hasCep());
    QCOMPARE(response.gridResult()->screenshotFilename(), QString());
}

void AutomaticresponseTest::useAfterFailedRead()
{
    Response response;
    const QString xml = text("<Automatic status=\"ack\">\n<CommandReference>r</CommandReference>\n"
                             "<ArvVersion>7.1</ArvVersion>\n<ErrorMessage>e</ErrorMessage></Automatic>");
    QCOMPARE(ElementTest::readError(response, xml),
             text("in XmlAutoRespType (line 4, column 14): Unexpected token \"StartElement\": ErrorMessage."));
    QCOMPARE(held(response), text("2;r;;-;-;;7.1"));
    QVERIFY(response.isValid());
    QCOMPARE(response.syntaxError(), QString());
    QCOMPARE(held(Response(response)), text("2;r;;-;-;;7.1"));
    QCOMPARE(::written(response),
             text("<Automatic status=\"ack\"><CommandReference>r</CommandReference><ArvVersion>7.1</ArvVersion>"
                  "</Automatic>"));
    QCOMPARE(ElementTest::readError(response, ::written(response)), QString());
    response.reset();
    QCOMPARE(held(response), text(newHeld));

    QXmlStreamReader broken(text("<Automatic status=\"ack\"><CommandReference></Automatic>"));
    broken.readNextStartElement();
    response.processXml(broken, QStringLiteral("Automatic"));
    QCOMPARE(broken.error(), QXmlStreamReader::NotWellFormedError); // the reader's own, not replaced
    QVERIFY(!broken.errorString().startsWith(QLatin1String("in ")));
}

void AutomaticresponseTest::nestedElementInText()
{
    const QString start = text("<Automatic status=\"ack\"><CommandReference>r</CommandReference>\n");
    Response response;
    QCOMPARE(ElementTest::readError(response, start + text("<ErrorMessage>read<b/></ErrorMessage></Automatic>")),
             text("Expected character data."));
    QCOMPARE(response.errorMessage(), text("read"));
    QCOMPARE(ElementTest::readError(response, start + text("<ArvVersion>7.1<b/></ArvVersion></Automatic>")),
             text("Expected character data."));
    QCOMPARE(response.arvVersion(), text("7.1"));
    QCOMPARE(ElementTest::readError(response,
                                    start + text("<EstimatedTime>2024-03-05T14:07:09<b/></EstimatedTime></Automatic>")),
             text("Expected character data."));
    QCOMPARE(response.estimatedTime(), someTime());
    // What was read is no time: this is said last
    QCOMPARE(ElementTest::readError(response, start + text("<EstimatedTime>2024<b/></EstimatedTime></Automatic>")),
             text("in XmlAutoRespType (line 2, column 23): Illegal dateTime format."));
    QVERIFY(!response.hasEstimatedTime());
}

void AutomaticresponseTest::wrongPosition_data()
{
    addWrongPositions("line 2, column 21", "line 2, column 28", "line 2, column 32");
}

void AutomaticresponseTest::wrongPosition()
{
    QFETCH(int, tokens);
    QFETCH(QString, place);

    QXmlStreamReader reader(text("<?xml version=\"1.0\"?>\n<r status=\"ack\">text<!-- --></r>"));
    for (int i = 0; i < tokens; ++i)
        reader.readNext();
    Response response = fullResponse();
    response.processXml(reader, QStringLiteral("r"));
    QCOMPARE(reader.errorString(), QStringLiteral("in XmlAutoRespType (%1): Parse error (wrong position).").arg(place));
    QCOMPARE(held(response), text(fullHeld));
}

void AutomaticresponseTest::reset()
{
    Response response = fullResponse();
    const XmlReferenceType* const heldReference = &response.reference();
    response.reset();
    QCOMPARE(held(response), text(newHeld));
    QCOMPARE(&response.reference(), heldReference);
    QVERIFY(!response.hasErrorMessage());
    QVERIFY(!response.hasEstimatedTime());
    QVERIFY(!response.estimatedTime().isValid());
    QVERIFY(!response.hasArvVersion());
    QVERIFY(!response.hasGridResult());
    QVERIFY(!response.hasInterlinkResult());
    QVERIFY(!response.isValid());
    QCOMPARE(response.syntaxError(),
             text("+++ in XmlAutoRespType Begin:\n"
                  "Status not defined.\n"
                  "+++ in XmlreferenceType Begin:\n"
                  "String too short (min. 1)\n"
                  "--- in XmlreferenceType End\n"
                  "Must have status 'ack'\n"
                  "--- in XmlAutoRespType End"));
    QCOMPARE(::written(response), ::written(Response()));
}

QTEST_APPLESS_MAIN(AutomaticresponseTest)
#include "automaticresponse_test.moc"
