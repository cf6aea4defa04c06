#include "support/elementtest.h"
#include "support/qtversion.h"
#include "support/responsetest.h"
#include "support/values.h"

#include <arvxml/responseroot.h>

#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>

#include <time.h>
#include <type_traits>
#include <utility>

using namespace ArvXml;
using namespace ResponseTest;
using TestValues::envelope;
using TestValues::someTime;
using TestValues::text;
using TestValues::timeAhead;
using TestValues::timeInUtc;

namespace {

/// Shows the error text that is kept in the element.
struct Probe : XmlRespRoot {
    using XmlElementBase::mySyntaxError;
};

/// Sets the zone of local times, and the old one again in the end.
class Zone {
public:
    explicit Zone(const char* zone)
        : m_before(qgetenv("TZ"))
        , m_wasSet(qEnvironmentVariableIsSet("TZ"))
    {
        set(zone);
    }
    ~Zone()
    {
        if (!m_wasSet)
            qunsetenv("TZ");
        else
            qputenv("TZ", m_before);
        tzset();
    }
    static void set(const char* zone)
    {
        qputenv("TZ", zone);
        tzset();
    }

private:
    const QByteArray m_before;
    const bool m_wasSet;
};

/// A valid response; without a reference it is not.
XmlAutoRespType autoResp(const QString& reference)
{
    XmlAutoRespType response;
    response.setStatus(XmlAutoRespType::StatusAck);
    response.setReference(TestValues::reference(reference));
    response.setArvVersion(QStringLiteral("7.1"));
    return response;
}

/// A valid response; without a text it is not.
XmlInteractRespType interactResp(const QString& resultText)
{
    XmlInterlinkResultType result;
    XmlInterlinkPlanningType parameters;
    parameters.setFirstName(QStringLiteral("A"));
    parameters.setSecondName(QStringLiteral("B"));
    result.setParameters(parameters);
    result.setResultText(resultText);
    XmlInteractRespType response;
    response.setInterlinkResult(result);
    return response;
}

/// The text by which an interactive response is known; "?" without a result.
QString resultText(const XmlInteractRespType& response)
{
    return response.hasInterlinkResult() ? response.interlinkResult()->resultText() : QStringLiteral("?");
}

/// Everything that \a root holds.
QString held(const XmlRespRoot& root)
{
    return QStringList({QString::number(root.type()), QString::number(root.isFinal()),
                        root.timestamp().toString(Qt::ISODate),
                        root.orderDef() ? root.orderDef()->orderSender() : QStringLiteral("-"),
                        root.autoResp() ? root.autoResp()->reference().reference() : QStringLiteral("-"),
                        root.interactResp() ? resultText(*root.interactResp()) : QStringLiteral("-")})
        .join(QLatin1Char(';'));
}

QString written(const XmlRespRoot& root)
{
    return ElementTest::written(root, QStringLiteral("R"));
}

const char orderXml[] =
    "<ORDER_DEF><ORDER_ID>ARV240305140709042</ORDER_ID><ORDER_SENDER>host</ORDER_SENDER></ORDER_DEF>";
const char autoXml[] = "<Automatic status=\"ack\"><CommandReference>ref</CommandReference><ArvVersion>7.1</ArvVersion>"
                       "</Automatic>";
const char interactXml[] =
    "<Interactive><InterlinkResult><Parameters><FirstName>A</FirstName><SecondName>B</SecondName>"
    "</Parameters><Result><Text>link</Text></Result></InterlinkResult></Interactive>";
const char startXml[] = "<R type=\"automatic\" final=\"true\" timestamp=\"2024-03-05T14:07:09\">";

QString document(const char* content)
{
    return text(startXml)
        + text(content)
              .replace(QLatin1String("{O}"), QLatin1String(orderXml))
              .replace(QLatin1String("{A}"), QLatin1String(autoXml))
              .replace(QLatin1String("{I}"), QLatin1String(interactXml))
        + text("</R>");
}

} // namespace

static_assert(std::is_base_of_v<XmlElementBase, XmlRespRoot>);
static_assert(std::is_same_v<decltype(std::declval<XmlRespRoot&>().timestamp()), const QDateTime&>);
static_assert(std::is_same_v<decltype(std::declval<XmlRespRoot&>().orderDef()), const XmlOrderDef*>);
static_assert(std::is_same_v<decltype(std::declval<XmlRespRoot&>().autoResp()), const XmlAutoRespType*>);
static_assert(std::is_same_v<decltype(std::declval<XmlRespRoot&>().interactResp()), const XmlInteractRespType*>);

class ResponserootTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void newObject();
    void accessors();
    void childrenAreCopiedAndAssigned();
    void copies_data();
    void copies();
    void selfAssignment();
    void errorTextIsCopiedAndReset();
    void written_data();
    void written();
    void newObjectIsNotReadBack();
    void typeRead_data();
    void typeRead();
    void finalRead_data();
    void finalRead();
    void timestampRead_data();
    void timestampRead();
    void timeThatSummerTimeLeavesOut();
    void timeOfMakingIsLocal();
    void severalWrongAttributes_data();
    void severalWrongAttributes();
    void children_data();
    void children();
    void gates_data();
    void gates();
    void refused_data();
    void refused();
    void readingIntoUsedObject();
    void laterOrderReplacesEarlierOne();
    void useAfterFailedRead();
    void wrongPosition_data();
    void wrongPosition();
    void combinations_data();
    void combinations();
    void reset();
};

void ResponserootTest::newObject()
{
    const QDateTime before = QDateTime::currentDateTime();
    const XmlRespRoot root;
    const QDateTime after = QDateTime::currentDateTime();
    QCOMPARE(root.type(), XmlRespRoot::RespUndefined);
    QVERIFY(root.isFinal());
    QVERIFY(root.timestamp() >= before);
    QVERIFY(root.timestamp() <= after);
    QCOMPARE(root.timestamp().timeSpec(), Qt::LocalTime);
    QVERIFY(!root.hasOrderDef());
    QVERIFY(root.orderDef() == nullptr);
    QVERIFY(!root.hasAutoResp());
    QVERIFY(root.autoResp() == nullptr);
    QVERIFY(!root.hasInteractResp());
    QVERIFY(root.interactResp() == nullptr);
    QVERIFY(!root.isValid());
}

void ResponserootTest::accessors()
{
    QCOMPARE(static_cast<int>(XmlRespRoot::RespUndefined), 0);
    QCOMPARE(static_cast<int>(XmlRespRoot::RespInteractive), 1);
    QCOMPARE(static_cast<int>(XmlRespRoot::RespAutomatic), 2);

    XmlRespRoot root;
    root.setType(XmlRespRoot::RespInteractive);
    QCOMPARE(root.type(), XmlRespRoot::RespInteractive);
    root.setFinal(false);
    QVERIFY(!root.isFinal());
    root.setFinal(true);
    QVERIFY(root.isFinal());
    root.setTimestamp(someTime());
    QCOMPARE(root.timestamp(), someTime());
    root.setTimestamp(QDateTime());
    QVERIFY(!root.timestamp().isValid());
    root.setOrderDef(envelope(QStringLiteral("host")));
    QVERIFY(root.hasOrderDef());
    QVERIFY(!root.hasAutoResp());
    root.setAutoResp(autoResp(QStringLiteral("ref")));
    QVERIFY(root.hasAutoResp());
    QVERIFY(!root.hasInteractResp());
    root.setInteractResp(interactResp(QStringLiteral("link")));
    QVERIFY(root.hasInteractResp());
    QVERIFY(root.hasAutoResp()); // setting one kind of content leaves the other
    root.setAutoResp(autoResp(QStringLiteral("ref")));
    QCOMPARE(held(root), text("1;1;;host;ref;link"));
}

void ResponserootTest::childrenAreCopiedAndAssigned()
{
    XmlRespRoot root;
    XmlOrderDef order = envelope(QStringLiteral("first"));
    XmlAutoRespType response = autoResp(QStringLiteral("first"));
    XmlInteractRespType interactive = interactResp(QStringLiteral("first"));
    root.setTimestamp(someTime());
    root.setOrderDef(order);
    root.setAutoResp(response);
    root.setInteractResp(interactive);
    const XmlOrderDef* const heldOrder = root.orderDef();
    const XmlAutoRespType* const heldResponse = root.autoResp();
    const XmlInteractRespType* const heldInteractive = root.interactResp();
    order.setOrderSender(QStringLiteral("second"));
    response.setReference(autoResp(QStringLiteral("second")).reference());
    interactive = interactResp(QStringLiteral("second"));
    QCOMPARE(held(root), text("0;1;2024-03-05T14:07:09;first;first;first"));

    root.setOrderDef(order);
    root.setAutoResp(response);
    root.setInteractResp(interactive);
    QCOMPARE(root.orderDef(), heldOrder);
    QCOMPARE(root.autoResp(), heldResponse);
    QCOMPARE(root.interactResp(), heldInteractive);
    root.setOrderDef(*root.orderDef());
    root.setAutoResp(*root.autoResp());
    root.setInteractResp(*root.interactResp());
    QCOMPARE(held(root), text("0;1;2024-03-05T14:07:09;second;second;second"));
}

void ResponserootTest::copies_data()
{
    QTest::addColumn<int>("inSource");
    QTest::addColumn<int>("inTarget");

    // 1 stands for the order, 2 for the automatic response, 4 for the interactive one.
    for (int source = 0; source < 8; ++source) {
        for (int target = 0; target < 8; ++target)
            QTest::addRow("children %d in the source, %d in the target", source, target) << source << target;
    }
}

void ResponserootTest::copies()
{
    QFETCH(int, inSource);
    QFETCH(int, inTarget);

    const auto fill = [](XmlRespRoot& root, int children, const QString& name) {
        if (children & 1)
            root.setOrderDef(envelope(name));
        if (children & 2)
            root.setAutoResp(autoResp(name));
        if (children & 4)
            root.setInteractResp(interactResp(name));
    };
    XmlRespRoot source;
    source.setType(XmlRespRoot::RespAutomatic);
    source.setFinal(false);
    source.setTimestamp(someTime());
    fill(source, inSource, QStringLiteral("source"));
    XmlRespRoot target;
    fill(target, inTarget, QStringLiteral("target"));

    const XmlRespRoot copy(source);
    target = source;
    for (const XmlRespRoot* other : {&copy, static_cast<const XmlRespRoot*>(&target)}) {
        QVERIFY(!(inSource & 1) || other->orderDef() != source.orderDef());
        QVERIFY(!(inSource & 2) || other->autoResp() != source.autoResp());
        QVERIFY(!(inSource & 4) || other->interactResp() != source.interactResp());
    }
    source.reset();
    const auto name = [inSource](int child) { return (inSource & child) ? text("source") : text("-"); };
    const QString expected = QStringLiteral("2;0;2024-03-05T14:07:09;%1;%2;%3").arg(name(1), name(2), name(4));
    QCOMPARE(held(copy), expected);
    QCOMPARE(held(target), expected);
}

void ResponserootTest::selfAssignment()
{
    XmlRespRoot root;
    root.setType(XmlRespRoot::RespAutomatic);
    root.setFinal(false);
    root.setTimestamp(someTime());
    root.setOrderDef(envelope(QStringLiteral("host")));
    root.setAutoResp(autoResp(QStringLiteral("ref")));
    root.setInteractResp(interactResp(QStringLiteral("link")));
    const XmlRespRoot& self = root;
    root = self;
    QCOMPARE(held(root), text("2;0;2024-03-05T14:07:09;host;ref;link"));
}

void ResponserootTest::errorTextIsCopiedAndReset()
{
    Probe source;
    source.syntaxError();
    const QString error = text("+++ in XmlRespRoot Begin:\nType not defined.\n--- in XmlRespRoot End");
    checkKeptErrorText(source, error);
}

void ResponserootTest::written_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isFinal");
    QTest::addColumn<QDateTime>("time");
    QTest::addColumn<QString>("children");
    QTest::addColumn<QString>("xml");

    const QDate day(2024, 3, 5);
    const QTime time(14, 7, 9, 999);
    QTest::newRow("undefined") << 0 << true << QDateTime(day, time) << QString()
                               << text("<R type=\"UNDEFINED\" final=\"true\" timestamp=\"2024-03-05T14:07:09\"/>");
    QTest::newRow("interactive") << 1 << false << timeInUtc(day, time) << QString()
                                 << text(
                                        "<R type=\"interactive\" final=\"false\" timestamp=\"2024-03-05T14:07:09Z\"/>");
    QTest::newRow("automatic") << 2 << true << timeAhead(day, time, -3600) << QString()
                               << text(
                                      "<R type=\"automatic\" final=\"true\" timestamp=\"2024-03-05T14:07:09-01:00\"/>");
    QTest::newRow("a type above the known ones, no time")
        << 3 << true << QDateTime() << QString() << text("<R type=\"UNDEFINED\" final=\"true\" timestamp=\"\"/>");
    QTest::newRow("a type below the known ones, no time")
        << -1 << true << QDateTime() << QString() << text("<R type=\"UNDEFINED\" final=\"true\" timestamp=\"\"/>");
    const QString start = text("<R type=\"automatic\" final=\"false\" timestamp=\"2024-03-05T14:07:09\">");
    QTest::newRow("an order") << 2 << false << QDateTime(day, time) << text("O")
                              << start + text(orderXml) + text("</R>");
    QTest::newRow("a response") << 2 << false << QDateTime(day, time) << text("A")
                                << start + text(autoXml) + text("</R>");
    QTest::newRow("the order comes first")
        << 2 << false << QDateTime(day, time) << text("AO") << start + text(orderXml) + text(autoXml) + text("</R>");
    QTest::newRow("an interactive response")
        << 2 << false << QDateTime(day, time) << text("I") << start + text(interactXml) + text("</R>");
    QTest::newRow("everything, set in the reverse order")
        << 2 << false << QDateTime(day, time) << text("IAO")
        << start + text(orderXml) + text(autoXml) + text(interactXml) + text("</R>");
    QTest::newRow("an interactive response and an order") << 2 << false << QDateTime(day, time) << text("IO")
                                                          << start + text(orderXml) + text(interactXml) + text("</R>");
    QTest::newRow("a response of another type")
        << 1 << false << QDateTime(day, time) << text("A")
        << text("<R type=\"interactive\" final=\"false\" timestamp=\"2024-03-05T14:07:09\">") + text(autoXml)
            + text("</R>");
}

void ResponserootTest::written()
{
    QFETCH(int, type);
    QFETCH(bool, isFinal);
    QFETCH(QDateTime, time);
    QFETCH(QString, children);
    QFETCH(QString, xml);

    XmlRespRoot root;
    root.setType(static_cast<XmlRespRoot::RespType>(type));
    root.setFinal(isFinal);
    root.setTimestamp(time);
    if (children.contains(QLatin1Char('I')))
        root.setInteractResp(interactResp(QStringLiteral("link")));
    if (children.contains(QLatin1Char('A')))
        root.setAutoResp(autoResp(QStringLiteral("ref")));
    if (children.contains(QLatin1Char('O')))
        root.setOrderDef(envelope(QStringLiteral("host")));
    QCOMPARE(::written(root), xml);
}

void ResponserootTest::newObjectIsNotReadBack()
{
    const XmlRespRoot root;
    const QString xml = ElementTest::written(root, QStringLiteral("Response"));
    const QRegularExpression form(text("^<Response type=\"UNDEFINED\" final=\"true\" "
                                       "timestamp=\"(\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d)\"/>$"));
    const QRegularExpressionMatch match = form.match(xml);
    QVERIFY(match.hasMatch());
    QCOMPARE(match.captured(1), QLocale::c().toString(root.timestamp(), QStringLiteral("yyyy-MM-ddTHH:mm:ss")));

    XmlRespRoot other;
    QCOMPARE(ElementTest::readError(other, xml),
             text("in XmlRespRoot (line 1, column 73): Illegal attribute value in \"type\"."));
}

void ResponserootTest::typeRead_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<int>("type");

    QTest::newRow("interactive") << text("type=\"interactive\"") << 1;
    QTest::newRow("automatic") << text("type=\"automatic\"") << 2;
    for (const char* wrong :
         {"Automatic", "AUTOMATIC", "Interactive", " automatic", "automatic ", "UNDEFINED", "", "2"})
        QTest::addRow("'%s' is refused", wrong) << QStringLiteral("type=\"%1\"").arg(text(wrong)) << 0;
    QTest::newRow("a missing attribute is refused") << QString() << 0;
    QTest::newRow("the case of the name counts") << text("Type=\"automatic\"") << 0;
}

void ResponserootTest::typeRead()
{
    QFETCH(QString, attribute);
    QFETCH(int, type);

    for (const auto before : {XmlRespRoot::RespInteractive, XmlRespRoot::RespAutomatic}) {
        XmlRespRoot root;
        root.setType(before);
        const Refusal refused = refusal(
            QStringLiteral("\n  <R %1\n  final=\"false\" timestamp=\"2024-03-05T14:07:09\">|</R>").arg(attribute),
            text("XmlRespRoot"), text("Illegal attribute value in \"type\""));
        QCOMPARE(ElementTest::readError(root, refused.xml), type == 0 ? refused.error : QString());
        QCOMPARE(held(root), QString::number(type) + text(";0;2024-03-05T14:07:09;-;-;-"));
    }
}

void ResponserootTest::finalRead_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("read"); ///< empty for an error

    for (const char* yes : {"true", "TRUE", "True", "tRuE", "1"})
        QTest::addRow("%s means yes", yes) << QStringLiteral("final=\"%1\"").arg(text(yes)) << text("true");
    for (const char* no : {"false", "FALSE", "False", "fAlSe", "0"})
        QTest::addRow("%s means no", no) << QStringLiteral("final=\"%1\"").arg(text(no)) << text("false");
    for (const char* wrong : {"yes", "no", "", "2", "10", "01", "-1", " true", "true ", "t", "truefalse"})
        QTest::addRow("'%s' is refused", wrong) << QStringLiteral("final=\"%1\"").arg(text(wrong)) << QString();
    QTest::newRow("a missing attribute is refused") << QString() << QString();
    QTest::newRow("the case of the name counts") << text("Final=\"true\"") << QString();
}

void ResponserootTest::finalRead()
{
    QFETCH(QString, attribute);
    QFETCH(QString, read);

    for (const bool before : {true, false}) {
        XmlRespRoot root;
        root.setFinal(before);
        const Refusal refused =
            refusal(QStringLiteral("<R type=\"automatic\"\n%1 timestamp=\"2024-03-05T14:07:09\">|</R>").arg(attribute),
                    text("XmlRespRoot"), text("Illegal attribute value in \"final\""));
        QCOMPARE(ElementTest::readError(root, refused.xml), read.isEmpty() ? refused.error : QString());
        QCOMPARE(root.isFinal(), read.isEmpty() ? before : read == QLatin1String("true"));
        QCOMPARE(root.type(), XmlRespRoot::RespAutomatic);
        QCOMPARE(root.timestamp(), someTime());
    }
}

void ResponserootTest::timestampRead_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QDateTime>("time");

    const QDate day(2024, 3, 5);
    const QTime time(14, 7, 9);
    QTest::newRow("local") << text("timestamp=\"2024-03-05T14:07:09\"") << QDateTime(day, time);
    QTest::newRow("with a fraction") << text("timestamp=\"2024-03-05T14:07:09.042\"")
                                     << QDateTime(day, QTime(14, 7, 9, 42));
    QTest::newRow("UTC") << text("timestamp=\"2024-03-05T14:07:09Z\"") << timeInUtc(day, time);
    QTest::newRow("with an offset") << text("timestamp=\"2024-03-05T14:07:09-01:00\"") << timeAhead(day, time, -3600);
    for (const char* wrong : {"now", "", "05.03.2024 14:07:09", "2024-02-30T14:07:09", "2024-03-05T25:07:09"})
        QTest::addRow("'%s' is refused", wrong) << QStringLiteral("timestamp=\"%1\"").arg(text(wrong)) << QDateTime();
    QTest::newRow("a missing attribute is refused") << QString() << QDateTime();
    QTest::newRow("the case of the name counts") << text("Timestamp=\"2024-03-05T14:07:09\"") << QDateTime();
}

void ResponserootTest::timestampRead()
{
    QFETCH(QString, attribute);
    QFETCH(QDateTime, time);

    XmlRespRoot root;
    const Refusal refused = refusal(QStringLiteral("<R type=\"automatic\" final=\"false\"\n\n %1>|</R>").arg(attribute),
                                    text("XmlRespRoot"), text("Illegal attribute value in \"timestamp\""));
    QCOMPARE(ElementTest::readError(root, refused.xml), time.isValid() ? QString() : refused.error);
    QCOMPARE(root.timestamp().isValid(), time.isValid());
    if (time.isValid()) {
        QCOMPARE(root.timestamp(), time);
        QCOMPARE(root.timestamp().timeSpec(), time.timeSpec());
    }
    QVERIFY(!root.isFinal());
}

void ResponserootTest::timeThatSummerTimeLeavesOut()
{
    // A text without a zone is local time to its reader. Where clocks go from two to three, half past two is none.
    const Zone zone("CET-1CEST,M3.5.0,M10.5.0/3");
    const auto read = [](XmlRespRoot& root, const char* time) {
        return ElementTest::readError(
            root, QStringLiteral("<R type=\"automatic\" final=\"true\" timestamp=\"%1\"/>").arg(text(time)));
    };
    XmlRespRoot root;
    QCOMPARE(read(root, "2024-03-31T01:59:59"), QString());
    QCOMPARE(root.timestamp(), timeInUtc(QDate(2024, 3, 31), QTime(0, 59, 59)));
    QCOMPARE(read(root, "2024-03-31T03:00:00"), QString());
    QCOMPARE(root.timestamp(), timeInUtc(QDate(2024, 3, 31), QTime(1, 0)));

    const QString error = read(root, "2024-03-31T02:30:00");
    if (!isQtFrom(6, 8)) {
        QCOMPARE(error,
                 QStringLiteral("in XmlRespRoot (line 1, column 66): Illegal attribute value in \"timestamp\"."));
        QVERIFY(!root.timestamp().isValid());
    } else { // an hour later by the clock
        QCOMPARE(error, QString());
        QCOMPARE(root.timestamp(), timeInUtc(QDate(2024, 3, 31), QTime(1, 30)));
    }
    // With its zone told, the time is clear to every reader.
    QCOMPARE(read(root, "2024-03-31T02:30:00Z"), QString());
    QCOMPARE(root.timestamp(), timeInUtc(QDate(2024, 3, 31), QTime(2, 30)));
    root.setTimestamp(timeInUtc(QDate(2024, 3, 31), QTime(2, 30)));
    QCOMPARE(ElementTest::written(root, text("R")),
             QStringLiteral("<R type=\"automatic\" final=\"true\" timestamp=\"2024-03-31T02:30:00Z\"/>"));
}

void ResponserootTest::timeOfMakingIsLocal()
{
    // From the first moment on, also where the getter is not asked, and whatever becomes of the zone.
    const Zone zone("XXX-5:30");
    const QDateTime before = QDateTime::currentDateTime();
    XmlRespRoot root;
    const QDateTime& held = root.timestamp();
    Zone::set("UTC");
    QCOMPARE(held.timeSpec(), Qt::LocalTime);
    QCOMPARE(held.time(), root.timestamp().time());
    QVERIFY(qAbs(before.time().msecsTo(held.time())) < 60000 || before.date() != held.date());

    Zone::set("XXX-5:30");
    root.reset();
    QCOMPARE(held.timeSpec(), Qt::LocalTime); // a reference from before the reset
    root = XmlRespRoot();
    QCOMPARE(held.timeSpec(), Qt::LocalTime);
    QVERIFY(qAbs(held.secsTo(QDateTime::currentDateTime())) < 60);
}

void ResponserootTest::severalWrongAttributes_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("name");

    QTest::newRow("all missing") << QString() << text("timestamp");
    QTest::newRow("type and final") << text(" timestamp=\"2024-03-05T14:07:09\" final=\"no\" type=\"no\"")
                                    << text("final");
    QTest::newRow("type and timestamp") << text(" timestamp=\"no\" final=\"true\" type=\"no\"") << text("timestamp");
    QTest::newRow("final and timestamp") << text(" timestamp=\"no\" final=\"no\" type=\"automatic\"")
                                         << text("timestamp");
}

void ResponserootTest::severalWrongAttributes()
{
    QFETCH(QString, attributes);
    QFETCH(QString, name);

    // The last one looked at is reported; the children are not read
    XmlRespRoot root;
    const Refusal refused = refusal(QStringLiteral("<R%1>|%2</R>").arg(attributes, text(orderXml)), text("XmlRespRoot"),
                                    QStringLiteral("Illegal attribute value in \"%1\"").arg(name));
    QCOMPARE(ElementTest::readError(root, refused.xml), refused.error);
    QVERIFY(!root.hasOrderDef());
}

void ResponserootTest::children_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("read");

    const auto row = [](const char* name, const char* content, const char* read) {
        QTest::newRow(name) << document(content) << text("2;1;2024-03-05T14:07:09;") + text(read);
    };
    row("none", "", "-;-;-");
    row("an order", "{O}", "host;-;-");
    row("a response", "{A}", "-;ref;-");
    row("an interactive response", "{I}", "-;-;link");
    row("an order and a response", "{O}{A}", "host;ref;-");
    row("an order and an interactive response", "{O}{I}", "host;-;link");
    row("an order after the response", "{A}{O}", "host;ref;-");
    row("an order after the interactive response", "{I}{O}", "host;-;link");
    row("an order repeated", "{O}{O}", "host;-;-");
    row("orders before and after the response", "{O}{O}{A}{O}{O}", "host;ref;-");
    row("orders before and after the interactive response", "{O}{O}{I}{O}{O}", "host;-;link");
    row("other tokens are skipped", "text<!-- comment --><?pi data?>\n{O} 5 {A}\n", "host;ref;-");
    row("other tokens are skipped around an interactive response",
        "text<!-- comment --><?pi data?>\n{I} 5 <![CDATA[x]]>\n", "-;-;link");
}

void ResponserootTest::children()
{
    QFETCH(QString, xml);
    QFETCH(QString, read);

    const auto root = ElementTest::readFrom<XmlRespRoot>(xml);
    QCOMPARE(held(root), read);

    QString expected = text(startXml);
    if (root.hasOrderDef())
        expected += text(orderXml);
    if (root.hasAutoResp())
        expected += text(autoXml);
    if (root.hasInteractResp())
        expected += text(interactXml);
    if (root.hasOrderDef() || root.hasAutoResp() || root.hasInteractResp())
        QCOMPARE(::written(root), expected + text("</R>"));

    // The type is not compared with what follows
    XmlRespRoot interactive;
    QCOMPARE(ElementTest::readError(interactive, QString(xml).replace(text("automatic"), text("interactive"))),
             QString());
    QCOMPARE(held(interactive), QString(read).replace(0, 1, QLatin1Char('1')));
}

void ResponserootTest::gates_data()
{
    QTest::addColumn<QStringList>("children");
    QTest::addColumn<bool>("accepted");

    // What may follow the children before: "+" accepted, "x" refused.
    const QStringList next = {QStringLiteral("ORDER_DEF"), QStringLiteral("Automatic"), QStringLiteral("Interactive"),
                              QStringLiteral("interactive"), QStringLiteral("Station")};
    const auto add = [&](const char* before, const char* outcomes) {
        const QStringList beforeTags = text(before).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (int i = 0; i < next.size(); ++i) {
            QTest::newRow(qPrintable(QStringLiteral("(%1) then %2").arg(text(before), next[i])))
                << (beforeTags + QStringList(next[i])) << (outcomes[i] == '+');
        }
    };

    add("", "+++xx");
    add("ORDER_DEF", "+++xx");
    add("Automatic", "+xxxx");
    add("Interactive", "+xxxx");
    add("ORDER_DEF ORDER_DEF", "+++xx");
    add("ORDER_DEF Automatic", "+xxxx");
    add("ORDER_DEF Interactive", "+xxxx");
    add("Automatic ORDER_DEF", "+xxxx");
    add("Interactive ORDER_DEF", "+xxxx");
    add("ORDER_DEF Automatic ORDER_DEF", "+xxxx");
    add("ORDER_DEF Interactive ORDER_DEF", "+xxxx");
}

void ResponserootTest::gates()
{
    QFETCH(QStringList, children);
    QFETCH(bool, accepted);

    QString marked = text(startXml) + QLatin1Char('\n');
    QStringList read = {text("-"), text("-"), text("-")};
    for (int i = 0; i < children.size(); ++i) {
        const QString& child = children[i];
        if (i == children.size() - 1 && !accepted) {
            marked += QStringLiteral("<%1>|</%1>\n").arg(child);
        } else if (child == QLatin1String("ORDER_DEF")) {
            marked += text(orderXml) + QLatin1Char('\n');
            read[0] = text("host");
        } else if (child == QLatin1String("Automatic")) {
            marked += text(autoXml) + QLatin1Char('\n');
            read[1] = text("ref");
        } else {
            marked += text(interactXml) + QLatin1Char('\n');
            read[2] = text("link");
        }
    }
    marked += text("</R>");

    XmlRespRoot root;
    if (accepted) {
        QCOMPARE(ElementTest::readError(root, marked), QString());
    } else {
        const Refusal refused = refusal(marked, text("XmlRespRoot"),
                                        QStringLiteral("Unexpected token \"StartElement\": %1").arg(children.last()));
        QCOMPARE(ElementTest::readError(root, refused.xml), refused.error);
    }
    QCOMPARE(held(root), text("2;1;2024-03-05T14:07:09;") + read.join(QLatin1Char(';')));

    // Every call starts afresh; one kind of content leaves the other.
    QCOMPARE(ElementTest::readError(root, document("{I}")), QString());
    QCOMPARE(held(root), QStringLiteral("2;1;2024-03-05T14:07:09;%1;%2;link").arg(read[0], read[1]));
    QCOMPARE(ElementTest::readError(root, document("{A}")), QString());
    QCOMPARE(held(root), QStringLiteral("2;1;2024-03-05T14:07:09;%1;ref;link").arg(read[0]));
}

void ResponserootTest::refused_data()
{
    QTest::addColumn<QString>("marked");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("message");

    const auto row = [](const char* name, const char* content, const char* className, const char* message) {
        QTest::newRow(name) << document(content) << text(className) << text(message);
    };
    const char own[] = "XmlRespRoot";
    row("a second response", "\n{A}\n  <Automatic status=\"ack\">|</Automatic>", own,
        "Unexpected token \"StartElement\": Automatic");
    row("a second response after an order", "\n{A}{O}\n<Automatic>|</Automatic>", own,
        "Unexpected token \"StartElement\": Automatic");
    row("an interactive response after an automatic one", "\n{A}\n <Interactive>|</Interactive>", own,
        "Unexpected token \"StartElement\": Interactive");
    row("an automatic response after an interactive one", "\n{I}\n <Automatic status=\"ack\">|</Automatic>", own,
        "Unexpected token \"StartElement\": Automatic");
    row("a second interactive response", "\n{I}{O}\n  <Interactive>|</Interactive>", own,
        "Unexpected token \"StartElement\": Interactive");
    row("an empty interactive response", "\n{O}\n<Interactive></Interactive>|", "XmlInteractRespType",
        "Unexpected token \"EndElement\": Interactive");
    row("an interactive response with two items",
        "<Interactive><InterlinkResult><Parameters><FirstName>A</FirstName><SecondName>B</SecondName></Parameters>"
        "<Result><Text>t</Text></Result></InterlinkResult>\n<GridResult>|</GridResult></Interactive>",
        "XmlInteractRespType", "Unexpected token \"StartElement\": GridResult");
    row("a result object", "\n<Interactive>\n <Station>\n </Station>|\n</Interactive>", "XmlResultObjectType",
        "Unexpected token \"EndElement\": Station");
    row("another element", "<Other>|</Other>", own, "Unexpected token \"StartElement\": Other");
    row("another element after the children", "{O}{A}\n\n<Other>|</Other>", own,
        "Unexpected token \"StartElement\": Other");
    row("the case of a tag counts", "\n<automatic>|</automatic>", own, "Unexpected token \"StartElement\": automatic");
    row("the case of the order's tag counts", "\n<order_def>|</order_def>", own,
        "Unexpected token \"StartElement\": order_def");
    row("the element in itself", "\n<R>|</R>", own, "Unexpected token \"StartElement\": R");
    row("an order without an id", "\n<ORDER_DEF><ORDER_SENDER>host</ORDER_SENDER>\n</ORDER_DEF>|", "XmlOrderDef",
        "Unexpected token \"EndElement\": ORDER_DEF");
    row("a response without a status", "\n <Automatic>|</Automatic>", "XmlAutoRespType",
        "Illegal attribute value in \"status\"");
    row("a response without a reference", "\n<Automatic status=\"ack\">\n</Automatic>|", "XmlAutoRespType",
        "Unexpected token \"EndElement\": Automatic");
    row("a grid result",
        "<Automatic status=\"ack\">\n<CommandReference>r</CommandReference>\n<GridResult type=\"FindSites\">\n"
        "<FindPossibleSites>\n<Parameter><DeploymentAreas><All/></DeploymentAreas></Parameter>|"
        "<ScreenshotFilename>f</ScreenshotFilename></FindPossibleSites></GridResult></Automatic>",
        "XmlFindSitesType", "Unexpected token \"EndElement\": Parameter");

    QTest::newRow("another end tag")
        << document("\n{O}{A}\n").replace(text("<R "), text("<Other ")).replace(text("</R>"), text("</Other>|"))
        << text(own) << text("Unexpected token \"EndElement\": Other");
}

void ResponserootTest::refused()
{
    QFETCH(QString, marked);
    QFETCH(QString, className);
    QFETCH(QString, message);

    checkRefused<XmlRespRoot>(refusal(marked, className, message), QStringLiteral("R"));
}

void ResponserootTest::readingIntoUsedObject()
{
    XmlRespRoot root;
    root.setType(XmlRespRoot::RespInteractive);
    root.setFinal(false);
    root.setOrderDef(envelope(QStringLiteral("old")));
    XmlAutoRespType old = autoResp(QStringLiteral("old"));
    old.setErrorMessage(QStringLiteral("old"));
    root.setAutoResp(old);

    // What the document does not mention stays
    QCOMPARE(ElementTest::readError(root, document("")), QString());
    QCOMPARE(held(root), text("2;1;2024-03-05T14:07:09;old;old;-"));
    QVERIFY(root.autoResp()->hasErrorMessage());

    // A child is replaced as a whole; one response in each reading
    QCOMPARE(ElementTest::readError(root, document("{A}")), QString());
    QCOMPARE(held(root), text("2;1;2024-03-05T14:07:09;old;ref;-"));
    QVERIFY(!root.autoResp()->hasErrorMessage());
    QCOMPARE(ElementTest::readError(root, document("{O}{A}")), QString());
    QCOMPARE(held(root), text("2;1;2024-03-05T14:07:09;host;ref;-"));

    XmlInteractRespType both = interactResp(QStringLiteral("old"));
    both.setResult(XmlResultObjectType());
    root.setInteractResp(both);
    QCOMPARE(ElementTest::readError(root, document("")), QString());
    QCOMPARE(held(root), text("2;1;2024-03-05T14:07:09;host;ref;old"));
    QCOMPARE(ElementTest::readError(root, document("{I}")), QString());
    QCOMPARE(held(root), text("2;1;2024-03-05T14:07:09;host;ref;link"));
    QVERIFY(!root.interactResp()->hasResult());
}

void ResponserootTest::laterOrderReplacesEarlierOne()
{
    // An id of another form and an empty sender are dropped: nothing of the first order may show
    const auto root = ElementTest::readFrom<XmlRespRoot>(
        document("{O}<ORDER_DEF><ORDER_ID>ARV12345</ORDER_ID><ORDER_SENDER></ORDER_SENDER></ORDER_DEF>"));
    QVERIFY(root.hasOrderDef());
    QCOMPARE(root.orderDef()->orderId(), QString());
    QCOMPARE(root.orderDef()->orderSender(), QString());
}

void ResponserootTest::useAfterFailedRead()
{
    XmlRespRoot root;
    root.setAutoResp(autoResp(QStringLiteral("old")));
    QCOMPARE(ElementTest::readError(root,
                                    document("{O}\n<Automatic status=\"fault\">\n<ArvVersion>8</ArvVersion>"
                                             "</Automatic>")),
             text("in XmlAutoRespType (line 3, column 38): Unexpected token \"EndElement\": Automatic."));
    QCOMPARE(held(root), text("2;1;2024-03-05T14:07:09;host;;-"));
    QCOMPARE(root.autoResp()->arvVersion(), text("8"));
    QVERIFY(!root.isValid());
    QCOMPARE(root.syntaxError(),
             text("+++ in XmlRespRoot Begin:\n"
                  "+++ in XmlAutoRespType Begin:\n"
                  "+++ in XmlreferenceType Begin:\n"
                  "String too short (min. 1)\n"
                  "--- in XmlreferenceType End\n"
                  "Must have status 'ack'\n"
                  "--- in XmlAutoRespType End\n"
                  "--- in XmlRespRoot End"));
    QCOMPARE(held(XmlRespRoot(root)), text("2;1;2024-03-05T14:07:09;host;;-"));
    QCOMPARE(::written(root),
             text(startXml) + text(orderXml)
                 + text("<Automatic status=\"fault\"><CommandReference></CommandReference><ArvVersion>8</ArvVersion>"
                        "</Automatic></R>"));
    QCOMPARE(ElementTest::readError(root, document("{A}")), QString());
    QVERIFY(root.isValid());

    // A result object always ends the read, but what it brought can be used.
    XmlRespRoot object;
    const QString station = text("<Interactive>\n<Station><Station><Name>S</Name><Position version=\"1.0\">"
                                 "<Longitude>7.500000</Longitude><Latitude>47.250000</Latitude></Position></Station>"
                                 "</Station></Interactive>");
    const QString interactive = text(startXml).replace(text("automatic"), text("interactive"));
    QCOMPARE(ElementTest::readError(object, interactive + station + text(orderXml) + text("</R>")),
             text("in XmlResultObjectType (line 2, column 148): Unexpected token \"EndElement\": Station."));
    QVERIFY(!object.hasOrderDef());
    QVERIFY(object.isValid());
    QCOMPARE(object.syntaxError(), QString());
    QCOMPARE(::written(object), interactive + QString(station).remove(QLatin1Char('\n')) + text("</R>"));
    QCOMPARE(object.interactResp()->result()->station()->objName()->objName(), text("S"));
    root.reset();
    QVERIFY(!root.hasOrderDef());

    QXmlStreamReader broken(text(startXml) + text("<ORDER_DEF></R>"));
    broken.readNextStartElement();
    root.processXml(broken, QStringLiteral("R"));
    QCOMPARE(broken.error(), QXmlStreamReader::NotWellFormedError); // the reader's own, not replaced
    QVERIFY(!broken.errorString().startsWith(QLatin1String("in ")));
    QCOMPARE(ElementTest::readError(root, text(startXml)), text("Premature end of document."));
}

void ResponserootTest::wrongPosition_data()
{
    addWrongPositions("line 2, column 25", "line 2, column 32", "line 2, column 36");
}

void ResponserootTest::wrongPosition()
{
    QFETCH(int, tokens);
    QFETCH(QString, place);

    QXmlStreamReader reader(text("<?xml version=\"1.0\"?>\n<R type=\"automatic\">text<!-- --></R>"));
    for (int i = 0; i < tokens; ++i)
        reader.readNext();
    XmlRespRoot root;
    root.setType(XmlRespRoot::RespInteractive);
    root.setFinal(false);
    root.setTimestamp(someTime());
    root.processXml(reader, QStringLiteral("R"));
    QCOMPARE(reader.errorString(), QStringLiteral("in XmlRespRoot (%1): Parse error (wrong position).").arg(place));
    QCOMPARE(held(root), text("1;0;2024-03-05T14:07:09;-;-;-"));
}

void ResponserootTest::combinations_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("order");
    QTest::addColumn<int>("automatic");
    QTest::addColumn<int>("interactive");
    QTest::addColumn<bool>("contentFits"); ///< and is valid
    QTest::addColumn<QString>("contentProblem");

    const QString automaticProblem = text("+++ in XmlAutoRespType Begin:\n"
                                          "+++ in XmlreferenceType Begin:\n"
                                          "String too short (min. 1)\n"
                                          "--- in XmlreferenceType End\n"
                                          "--- in XmlAutoRespType End\n");
    const QString interactiveProblem = text("+++ in XmlInteractRespType Begin:\n"
                                            "+++ in XmlInterlinkResultType Begin:\n"
                                            "Missing Result Text\n"
                                            "--- in XmlInterlinkResultType End\n"
                                            "--- in XmlInteractRespType End\n");
    const QString undefined = text("Type not defined.\n");
    const QString noAutomatic = text("Type automatic but no content\n");
    const QString notJustAutomatic = text("Type automatic but interactive content\n");
    const QString noInteractive = text("Type interactive but no content\n");
    const QString notJustInteractive = text("Type interactive but automatic content\n");
    const QString none;

    // Each kind of content is absent (0), valid (1) or invalid (2).
    struct Outcome {
        int type;
        int automatic;
        int interactive;
        bool fits;
        QString problem;
    };
    const QList<Outcome> outcomes = {
        {0, 0, 0, false, undefined},
        {0, 0, 1, false, undefined},
        {0, 0, 2, false, undefined},
        {0, 1, 0, false, undefined},
        {0, 1, 1, false, undefined},
        {0, 1, 2, false, undefined},
        {0, 2, 0, false, undefined},
        {0, 2, 1, false, undefined},
        {0, 2, 2, false, undefined},
        {1, 0, 0, false, noInteractive},
        {1, 0, 1, true, none},
        {1, 0, 2, false, interactiveProblem},
        {1, 1, 0, false, noInteractive},
        {1, 1, 1, false, notJustInteractive},
        {1, 1, 2, false, notJustInteractive},
        {1, 2, 0, false, noInteractive},
        {1, 2, 1, false, notJustInteractive},
        {1, 2, 2, false, notJustInteractive},
        {2, 0, 0, false, noAutomatic},
        {2, 0, 1, false, noAutomatic},
        {2, 0, 2, false, noAutomatic},
        {2, 1, 0, true, none},
        {2, 1, 1, false, notJustAutomatic},
        {2, 1, 2, false, notJustAutomatic},
        {2, 2, 0, false, automaticProblem},
        {2, 2, 1, false, notJustAutomatic},
        {2, 2, 2, false, notJustAutomatic},
        // With a type beyond the known ones the content is not looked at.
        {3, 0, 0, true, none},
        {3, 0, 1, true, none},
        {3, 0, 2, true, none},
        {3, 1, 0, true, none},
        {3, 1, 1, true, none},
        {3, 1, 2, true, none},
        {3, 2, 0, true, none},
        {3, 2, 1, true, none},
        {3, 2, 2, true, none},
    };
    const char* const states[] = {"no", "a valid", "an invalid"};
    for (const Outcome& outcome : outcomes) {
        for (int order = 0; order < 3; ++order) {
            QTest::addRow("type %d, %s order, %s automatic response, %s interactive response", outcome.type,
                          states[order], states[outcome.automatic], states[outcome.interactive])
                << outcome.type << order << outcome.automatic << outcome.interactive << outcome.fits << outcome.problem;
        }
    }
}

void ResponserootTest::combinations()
{
    QFETCH(int, type);
    QFETCH(int, order);
    QFETCH(int, automatic);
    QFETCH(int, interactive);
    QFETCH(bool, contentFits);
    QFETCH(QString, contentProblem);

    XmlRespRoot root;
    root.setType(static_cast<XmlRespRoot::RespType>(type));
    if (order != 0)
        root.setOrderDef(order == 1 ? envelope(QStringLiteral("host")) : XmlOrderDef());
    if (automatic != 0)
        root.setAutoResp(autoResp(automatic == 1 ? QStringLiteral("ref") : QString()));
    if (interactive != 0)
        root.setInteractResp(interactResp(interactive == 1 ? QStringLiteral("link") : QString()));

    const bool valid = contentFits && order != 2;
    QString problems = contentProblem;
    if (order == 2)
        problems += text("+++ in XmlOrderDef Begin:\n"
                         "Id not set.\n"
                         "Sender not set.\n"
                         "--- in XmlOrderDef End\n");
    const QString error = problems.isEmpty()
        ? QString()
        : QStringLiteral("+++ in XmlRespRoot Begin:\n%1--- in XmlRespRoot End").arg(problems);

    for (const bool isFinal : {true, false}) { // neither this nor the time matters
        root.setFinal(isFinal);
        root.setTimestamp(isFinal ? someTime() : QDateTime());
        QCOMPARE(root.isValid(), valid);
        QCOMPARE(root.syntaxError(), error);
        QCOMPARE(root.syntaxError(), error);
    }
}

void ResponserootTest::reset()
{
    XmlRespRoot root;
    root.setType(XmlRespRoot::RespAutomatic);
    root.setFinal(false);
    root.setTimestamp(someTime());
    root.setOrderDef(envelope(QStringLiteral("host")));
    root.setAutoResp(autoResp(QStringLiteral("ref")));
    root.setInteractResp(interactResp(QStringLiteral("link")));
    const QDateTime before = QDateTime::currentDateTime();
    root.reset();
    const QDateTime after = QDateTime::currentDateTime();
    QCOMPARE(root.type(), XmlRespRoot::RespUndefined);
    QVERIFY(root.isFinal());
    QVERIFY(root.timestamp() >= before);
    QVERIFY(root.timestamp() <= after);
    QCOMPARE(root.timestamp().timeSpec(), Qt::LocalTime);
    QVERIFY(!root.hasOrderDef());
    QVERIFY(root.orderDef() == nullptr);
    QVERIFY(!root.hasAutoResp());
    QVERIFY(root.autoResp() == nullptr);
    QVERIFY(!root.hasInteractResp());
    QVERIFY(root.interactResp() == nullptr);
    QVERIFY(!root.isValid());
    QCOMPARE(root.syntaxError(), text("+++ in XmlRespRoot Begin:\nType not defined.\n--- in XmlRespRoot End"));
}

QTEST_APPLESS_MAIN(ResponserootTest)
#include "responseroot_test.moc"
