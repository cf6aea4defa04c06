#include "support/elementtest.h"
#include "support/qtversion.h"

#include <arvxml/orderdef.h>

#include <QtCore/QLocale>
#include <QtNetwork/QHostInfo>

#include <dlfcn.h>
#include <optional>
#include <sys/time.h>
#include <sys/utsname.h>
#include <time.h>
#include <type_traits>

// The clock and the host name that Qt asks the system for; the real ones unless a test sets others.

namespace {

std::optional<timeval> fixedTime;
std::optional<QByteArray> fixedHost;

template <typename Function>
Function* next(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

__attribute__((visibility("default"))) int gettimeofday(timeval* time, void* zone) noexcept
{
    if (!fixedTime)
        return next<int(timeval*, void*)>("gettimeofday")(time, zone);
    *time = *fixedTime;
    return 0;
}

// Qt 6.8 asks for the time this way.
__attribute__((visibility("default"))) int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    if (!fixedTime || clock != CLOCK_REALTIME)
        return next<int(clockid_t, timespec*)>("clock_gettime")(clock, time);
    time->tv_sec = fixedTime->tv_sec;
    time->tv_nsec = 1000 * fixedTime->tv_usec;
    return 0;
}

__attribute__((visibility("default"))) int uname(utsname* system) noexcept
{
    const int result = next<int(utsname*)>("uname")(system);
    if (fixedHost)
        qstrncpy(system->nodename, fixedHost->constData(), sizeof system->nodename);
    return result;
}

} // extern "C"

using namespace ArvXml;

namespace {

/// An envelope whose collected problems can be seen.
struct Probe : XmlOrderDef {
    QString storedError() { return mySyntaxError(); }
};

const QString someId = QStringLiteral("ARV240305140709042");
const QString otherId = QStringLiteral("ARV000000000000000");

XmlOrderDef order(const QString& id, const QString& sender)
{
    XmlOrderDef element;
    element.setOrderId(id);
    element.setOrderSender(sender);
    return element;
}

} // namespace

class OrderdefTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void newEnvelope();
    void idsAreSet_data();
    void idsAreSet();
    void senderIsSet();
    void childrenAreRead_data();
    void childrenAreRead();
    void usedEnvelopeIsReadAgain_data();
    void usedEnvelopeIsReadAgain();
    void readingStartsAnywhere_data();
    void readingStartsAnywhere();
    void written_data();
    void written();
    void judged_data();
    void judged();
    void copied();
    void resetIsLikeNew();
    void failedReadingLeavesAUsableEnvelope();

    void instanceHasTheTimeAsId_data();
    void instanceHasTheTimeAsId();
    void instancesOfOneMillisecondHaveTheSameId();
    void instanceHasTheHostAsSender();
    void instanceWithoutAHostNameIsInvalid();
    void instanceOfThisMoment();

private:
    static void setClock(time_t seconds, suseconds_t microseconds, const char* zone);
};

void OrderdefTest::cleanup()
{
    fixedTime.reset();
    fixedHost.reset();
}

void OrderdefTest::newEnvelope()
{
    static_assert(std::is_same_v<decltype(std::declval<const XmlOrderDef&>().orderId()), const QString&>);
    static_assert(std::is_same_v<decltype(std::declval<const XmlOrderDef&>().orderSender()), const QString&>);
    static_assert(std::is_same_v<decltype(XmlOrderDef::createValidInstance()), XmlOrderDef>);

    XmlOrderDef element;
    QCOMPARE(element.orderId(), QString());
    QCOMPARE(element.orderSender(), QString());
    QVERIFY(!element.isValid());
    QCOMPARE(element.syntaxError(),
             QStringLiteral("+++ in XmlOrderDef Begin:\nId not set.\nSender not set.\n--- in XmlOrderDef End"));
}

void OrderdefTest::idsAreSet_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("accepted");
    const QString fifteenArabicDigits = QString(15, QChar(0x0663));
    QTest::newRow("15 digits") << QStringLiteral("ARV240305140709042") << true;
    QTest::newRow("15 zeros") << QStringLiteral("ARV000000000000000") << true;
    QTest::newRow("15 nines, which are no time") << QStringLiteral("ARV999999999999999") << true;
    QTest::newRow("15 digits of another script") << QStringLiteral("ARV") + fifteenArabicDigits << true;
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("the prefix alone") << QStringLiteral("ARV") << false;
    QTest::newRow("5 digits") << QStringLiteral("ARV12345") << false;
    QTest::newRow("14 digits") << QStringLiteral("ARV24030514070904") << false;
    QTest::newRow("16 digits") << QStringLiteral("ARV2403051407090421") << false;
    QTest::newRow("a small prefix") << QStringLiteral("arv240305140709042") << false;
    QTest::newRow("a prefix with one small letter") << QStringLiteral("ARv240305140709042") << false;
    QTest::newRow("another prefix") << QStringLiteral("ARW240305140709042") << false;
    QTest::newRow("no prefix") << QStringLiteral("240305140709042") << false;
    QTest::newRow("18 digits") << QStringLiteral("123240305140709042") << false;
    QTest::newRow("a letter as the first digit") << QStringLiteral("ARVx40305140709042") << false;
    QTest::newRow("a letter among the digits") << QStringLiteral("ARV2403051x0709042") << false;
    QTest::newRow("a letter as the last digit") << QStringLiteral("ARV24030514070904x") << false;
    QTest::newRow("a sign") << QStringLiteral("ARV-24030514070904") << false;
    QTest::newRow("a superscript two, a number but no digit")
        << QStringLiteral("ARV24030514070904") + QChar(0x00B2) << false;
    QTest::newRow("a blank in front") << QStringLiteral(" ARV240305140709042") << false;
    QTest::newRow("a blank behind") << QStringLiteral("ARV240305140709042 ") << false;
    QTest::newRow("a line feed behind") << QStringLiteral("ARV240305140709042\n") << false;
    QTest::newRow("a line feed as the last digit") << QStringLiteral("ARV24030514070904\n") << false;
    QTest::newRow("a line before") << QStringLiteral("x\nARV240305140709042") << false;
    QTest::newRow("something in front") << QStringLiteral("xARV240305140709042") << false;
}

void OrderdefTest::idsAreSet()
{
    QFETCH(QString, id);
    QFETCH(bool, accepted);

    XmlOrderDef empty;
    QCOMPARE(empty.setOrderId(id), accepted);
    QCOMPARE(empty.orderId(), accepted ? id : QString());

    XmlOrderDef used = order(QStringLiteral("ARV111111111111111"), QStringLiteral("host"));
    QCOMPARE(used.setOrderId(id), accepted);
    QCOMPARE(used.orderId(), accepted ? id : QStringLiteral("ARV111111111111111"));
    QCOMPARE(used.orderSender(), QStringLiteral("host"));

    // The reader takes the same ids; line feeds at the ends reach it too.
    XmlOrderDef read;
    QCOMPARE(ElementTest::readError(read, QStringLiteral("<O><ORDER_ID>%1</ORDER_ID><ORDER_SENDER/></O>").arg(id)),
             QString());
    QCOMPARE(read.orderId(), accepted ? id : QString());
}

void OrderdefTest::senderIsSet()
{
    XmlOrderDef element;
    QVERIFY(!element.setOrderSender(QString()));
    QCOMPARE(element.orderSender(), QString());
    QVERIFY(element.setOrderSender(QStringLiteral("x")));
    QCOMPARE(element.orderSender(), QStringLiteral("x"));
    QVERIFY(!element.setOrderSender(QString()));
    QVERIFY(!element.setOrderSender(QStringLiteral("")));
    QCOMPARE(element.orderSender(), QStringLiteral("x"));
    QVERIFY(element.setOrderSender(QStringLiteral(" ")));
    QCOMPARE(element.orderSender(), QStringLiteral(" "));
    QVERIFY(element.setOrderSender(QString(1000, QLatin1Char('y'))));
    QCOMPARE(element.orderSender(), QString(1000, QLatin1Char('y')));
    QCOMPARE(element.orderId(), QString());

    QVERIFY(element.setOrderSender(element.orderSender()));
    QCOMPARE(element.orderSender(), QString(1000, QLatin1Char('y')));
    QVERIFY(element.setOrderId(someId));
    QVERIFY(element.setOrderId(element.orderId()));
    QCOMPARE(element.orderId(), someId);
}

void OrderdefTest::childrenAreRead_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("sender");
    const QString id = QStringLiteral("<ORDER_ID>ARV240305140709042</ORDER_ID>"); // 39 characters
    const QString otherIdXml = QStringLiteral("<ORDER_ID>ARV000000000000000</ORDER_ID>");
    const QString sender = QStringLiteral("<ORDER_SENDER>host</ORDER_SENDER>"); // 33 characters
    const QString otherSender = QStringLiteral("<ORDER_SENDER>else</ORDER_SENDER>");
    const QString other = QStringLiteral("<Other/>");
    const QString host = QStringLiteral("host");
    const QString none;
    const auto in = [](const QString& content) { return QStringLiteral("<ORDER_DEF>%1</ORDER_DEF>").arg(content); };
    const auto start = [](qint64 column, const char* tag) {
        return QStringLiteral("in XmlOrderDef (line 1, column %1): Unexpected token \"StartElement\": %2.")
            .arg(QString::number(column), QLatin1String(tag));
    };
    const auto end = [](qint64 column) {
        return QStringLiteral("in XmlOrderDef (line 1, column %1): Unexpected token \"EndElement\": ORDER_DEF.")
            .arg(column);
    };

    QTest::newRow("nothing") << in(none) << end(23) << none << none;
    QTest::newRow("an id") << in(id) << end(62) << someId << none;
    QTest::newRow("a sender") << in(sender) << end(56) << none << host;
    QTest::newRow("something else") << in(other) << start(19, "Other") << none << none;
    QTest::newRow("an id in small letters")
        << in(QStringLiteral("<order_id/>")) << start(22, "order_id") << none << none;

    QTest::newRow("id, sender") << in(id + sender) << none << someId << host;
    QTest::newRow("id, id") << in(id + otherIdXml) << start(60, "ORDER_ID") << someId << none;
    QTest::newRow("id, something else") << in(id + other) << start(58, "Other") << someId << none;
    QTest::newRow("sender, id") << in(sender + id) << start(54, "ORDER_ID") << none << host;
    QTest::newRow("sender, sender") << in(sender + otherSender) << start(58, "ORDER_SENDER") << none << host;
    QTest::newRow("sender, something else") << in(sender + other) << start(52, "Other") << none << host;
    QTest::newRow("id, sender, id") << in(id + sender + otherIdXml) << start(93, "ORDER_ID") << someId << host;
    QTest::newRow("id, sender, sender") << in(id + sender + otherSender) << start(97, "ORDER_SENDER") << someId << host;
    QTest::newRow("id, sender, something else") << in(id + sender + other) << start(91, "Other") << someId << host;

    QTest::newRow("an id of five digits is dropped")
        << in(QStringLiteral("<ORDER_ID>ARV12345</ORDER_ID>") + sender) << none << none << host;
    QTest::newRow("an id with blanks around it is dropped")
        << in(QStringLiteral("<ORDER_ID> ARV240305140709042 </ORDER_ID>") + sender) << none << none << host;
    QTest::newRow("an empty id is dropped") << in(QStringLiteral("<ORDER_ID/>") + sender) << none << none << host;
    QTest::newRow("a dropped id has been seen")
        << in(QStringLiteral("<ORDER_ID/>") + id) << start(32, "ORDER_ID") << none << none;
    QTest::newRow("an empty sender is accepted and dropped")
        << in(id + QStringLiteral("<ORDER_SENDER></ORDER_SENDER>")) << none << someId << none;
    QTest::newRow("a dropped sender has been seen")
        << in(id + QStringLiteral("<ORDER_SENDER/>") + sender) << start(79, "ORDER_SENDER") << someId << none;
    QTest::newRow("a sender keeps its blanks")
        << in(id + QStringLiteral("<ORDER_SENDER> a b </ORDER_SENDER>")) << none << someId << QStringLiteral(" a b ");
    QTest::newRow("comments within the texts do not count")
        << in(QStringLiteral("<ORDER_ID>ARV2403051<!-- x -->40709042</ORDER_ID><ORDER_SENDER>ho<!-- y -->st&amp;"
                             "</ORDER_SENDER>"))
        << none << someId << QStringLiteral("host&");
    QTest::newRow("attributes do not matter")
        << QStringLiteral("<ORDER_DEF version=\"2.0\">%1<ORDER_SENDER x=\"y\">host</ORDER_SENDER></ORDER_DEF>").arg(id)
        << none << someId << host;
    QTest::newRow("texts, comments and instructions between the children")
        << in(QStringLiteral("\n a <!-- b -->") + id + QStringLiteral("<?c d?> e ") + sender + QStringLiteral(" f\n"))
        << none << someId << host;
    QTest::newRow("an entity that only an absent document type knows")
        << QStringLiteral("<!DOCTYPE ORDER_DEF SYSTEM \"o.dtd\"><ORDER_DEF>&other;%1%2</ORDER_DEF>").arg(id, sender)
        << none << someId << host;

    QTest::newRow("an element inside the id: what was read until then counts")
        << in(QStringLiteral("<ORDER_ID>ARV240305140709042<b/></ORDER_ID>") + sender)
        << QStringLiteral("Expected character data.") << someId << none;
    QTest::newRow("an element inside the sender: what was read until then counts")
        << in(id + QStringLiteral("<ORDER_SENDER>host<b/></ORDER_SENDER>"))
        << QStringLiteral("Expected character data.") << someId << host;
    QTest::newRow("an error on the third line")
        << QStringLiteral("<ORDER_DEF>\n  %1\n  <Other/>\n</ORDER_DEF>").arg(id)
        << QStringLiteral("in XmlOrderDef (line 3, column 10): Unexpected token \"StartElement\": Other.") << someId
        << none;
    QTest::newRow("an end on the third line")
        << QStringLiteral("<ORDER_DEF>\n  %1\n</ORDER_DEF>").arg(sender)
        << QStringLiteral("in XmlOrderDef (line 3, column 12): Unexpected token \"EndElement\": ORDER_DEF.") << none
        << host;
    QTest::newRow("an unfinished envelope") << QStringLiteral("<ORDER_DEF>%1%2").arg(id, sender)
                                            << QStringLiteral("Premature end of document.") << someId << host;
    QTest::newRow("a broken envelope") << QStringLiteral("<ORDER_DEF>%1%2</ORDER>").arg(id, sender)
                                       << QStringLiteral("Opening and ending tag mismatch.") << someId << host;
}

void OrderdefTest::childrenAreRead()
{
    QFETCH(QString, xml);
    QFETCH(QString, error);
    QFETCH(QString, id);
    QFETCH(QString, sender);

    XmlOrderDef element;
    QCOMPARE(ElementTest::readError(element, xml), error);
    QCOMPARE(element.orderId(), id);
    QCOMPARE(element.orderSender(), sender);
    QCOMPARE(element.syntaxError().contains(QStringLiteral("Id not set.")), id.isEmpty());
    QCOMPARE(element.syntaxError().contains(QStringLiteral("Sender not set.")), sender.isEmpty());
}

void OrderdefTest::usedEnvelopeIsReadAgain_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("sender");
    QTest::newRow("both are replaced") << QStringLiteral(
        "<O><ORDER_ID>ARV000000000000000</ORDER_ID><ORDER_SENDER>new</ORDER_SENDER></O>")
                                       << otherId << QStringLiteral("new");
    QTest::newRow("an id that is dropped leaves the old one")
        << QStringLiteral("<O><ORDER_ID>ARV0</ORDER_ID><ORDER_SENDER>new</ORDER_SENDER></O>") << someId
        << QStringLiteral("new");
    QTest::newRow("an empty sender leaves the old one")
        << QStringLiteral("<O><ORDER_ID>ARV000000000000000</ORDER_ID><ORDER_SENDER/></O>") << otherId
        << QStringLiteral("host");
}

void OrderdefTest::usedEnvelopeIsReadAgain()
{
    QFETCH(QString, xml);
    QFETCH(QString, id);
    QFETCH(QString, sender);
    XmlOrderDef element = order(someId, QStringLiteral("host"));
    QCOMPARE(ElementTest::readError(element, xml), QString());
    QCOMPARE(element.orderId(), id);
    QCOMPARE(element.orderSender(), sender);
}

void OrderdefTest::readingStartsAnywhere_data()
{
    QTest::addColumn<int>("tokens");
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("sender");
    const QString plain = QStringLiteral("<O> <ORDER_ID/><ORDER_SENDER>host</ORDER_SENDER></O>");
    const QString empty = QStringLiteral("<O/>");
    const QString o = QStringLiteral("O");
    const QString host = QStringLiteral("host");
    const QString none;
    QTest::newRow("before the first token")
        << 0 << QStringLiteral("<?xml version=\"1.0\"?><O/>") << o
        << QStringLiteral("in XmlOrderDef (line 1, column 21): Unexpected token \"StartDocument\".") << none;
    QTest::newRow("before the start tag")
        << 1 << plain << o << QStringLiteral("in XmlOrderDef (line 1, column 3): Unexpected token \"StartElement\": O.")
        << none;
    QTest::newRow("before a document type and the id")
        << 1 << QStringLiteral("<!DOCTYPE ORDER_ID><ORDER_ID/>") << o
        << QStringLiteral("in XmlOrderDef (line 1, column 30): Unexpected token \"EndDocument\".") << none;
    QTest::newRow("on the start tag") << 2 << plain << o << none << host;
    QTest::newRow("on a text") << 3 << plain << o << none << host;
    QTest::newRow("inside the id")
        << 4 << plain << o
        << QStringLiteral("in XmlOrderDef (line 1, column 15): Unexpected token \"EndElement\": ORDER_ID.") << none;
    QTest::newRow("inside a strange element")
        << 3 << QStringLiteral("<O><X/></O>") << o
        << QStringLiteral("in XmlOrderDef (line 1, column 7): Unexpected token \"EndElement\": X.") << none;
    QTest::newRow("on the end tag") << 3 << empty << o
                                    << QStringLiteral(
                                           "in XmlOrderDef (line 1, column 4): Unexpected token \"EndDocument\".")
                                    << none;
    QTest::newRow("at the end of the document") << 4 << empty << o << none << none;
    QTest::newRow("under another tag") << 2 << plain << QStringLiteral("o")
                                       << QStringLiteral(
                                              "in XmlOrderDef (line 1, column 52): Unexpected token \"EndElement\": O.")
                                       << host;
}

void OrderdefTest::readingStartsAnywhere()
{
    QFETCH(int, tokens);
    QFETCH(QString, xml);
    QFETCH(QString, tag);
    QFETCH(QString, error);
    QFETCH(QString, sender);
    QXmlStreamReader reader(xml);
    for (int i = 0; i < tokens; ++i)
        reader.readNext();
    XmlOrderDef element;
    element.processXml(reader, tag);
    QCOMPARE(reader.errorString(), error);
    QCOMPARE(element.orderSender(), sender);
}

void OrderdefTest::written_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("sender");
    QTest::addColumn<QString>("xml");
    QTest::newRow("both") << someId << QStringLiteral("a<b")
                          << QStringLiteral("<Tag><ORDER_ID>ARV240305140709042</ORDER_ID>"
                                            "<ORDER_SENDER>a&lt;b</ORDER_SENDER></Tag>");
    QTest::newRow("an id") << someId << QString()
                           << QStringLiteral("<Tag><ORDER_ID>ARV240305140709042</ORDER_ID>"
                                             "<ORDER_SENDER></ORDER_SENDER></Tag>");
    QTest::newRow("a sender") << QString() << QStringLiteral("host")
                              << QStringLiteral("<Tag><ORDER_ID></ORDER_ID><ORDER_SENDER>host</ORDER_SENDER></Tag>");
    QTest::newRow("nothing") << QString() << QString()
                             << QStringLiteral("<Tag><ORDER_ID></ORDER_ID><ORDER_SENDER></ORDER_SENDER></Tag>");
}

void OrderdefTest::written()
{
    QFETCH(QString, id);
    QFETCH(QString, sender);
    QFETCH(QString, xml);
    QCOMPARE(ElementTest::written(order(id, sender), QStringLiteral("Tag")), xml);
}

void OrderdefTest::judged_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("sender");
    QTest::addColumn<QString>("error");
    QTest::newRow("both") << someId << QStringLiteral("host") << QString();
    QTest::newRow("an id") << someId << QString()
                           << QStringLiteral("+++ in XmlOrderDef Begin:\nSender not set.\n--- in XmlOrderDef End");
    QTest::newRow("a sender") << QString() << QStringLiteral("host")
                              << QStringLiteral("+++ in XmlOrderDef Begin:\nId not set.\n--- in XmlOrderDef End");
    QTest::newRow("nothing") << QString() << QString()
                             << QStringLiteral(
                                    "+++ in XmlOrderDef Begin:\nId not set.\nSender not set.\n--- in XmlOrderDef End");
}

void OrderdefTest::judged()
{
    QFETCH(QString, id);
    QFETCH(QString, sender);
    QFETCH(QString, error);
    XmlOrderDef element = order(id, sender);
    QCOMPARE(element.isValid(), error.isEmpty());
    QCOMPARE(element.syntaxError(), error);
    QCOMPARE(element.syntaxError(), error);
}

void OrderdefTest::copied()
{
    XmlOrderDef source = order(someId, QStringLiteral("host"));
    const XmlOrderDef copy(source);
    XmlOrderDef assigned = order(otherId, QStringLiteral("else"));
    QCOMPARE(&(assigned = source), &assigned);
    source.setOrderId(otherId);
    source.setOrderSender(QStringLiteral("changed"));
    QCOMPARE(copy.orderId(), someId);
    QCOMPARE(copy.orderSender(), QStringLiteral("host"));
    QCOMPARE(assigned.orderId(), someId);
    QCOMPARE(assigned.orderSender(), QStringLiteral("host"));
    const XmlOrderDef& itself = assigned;
    assigned = itself;
    QCOMPARE(assigned.orderId(), someId);
    QCOMPARE(assigned.orderSender(), QStringLiteral("host"));
    assigned = XmlOrderDef();
    QCOMPARE(assigned.orderId(), QString());
    QCOMPARE(assigned.orderSender(), QString());

    const QString error = QStringLiteral("+++ in XmlOrderDef Begin:\nSender not set.\n--- in XmlOrderDef End");
    Probe judgedOrder;
    judgedOrder.setOrderId(someId);
    QCOMPARE(judgedOrder.syntaxError(), error);
    Probe judgedCopy(judgedOrder);
    QCOMPARE(judgedCopy.storedError(), error);
    Probe judgedAssigned;
    judgedAssigned = judgedOrder;
    QCOMPARE(judgedAssigned.storedError(), error);
}

void OrderdefTest::resetIsLikeNew()
{
    Probe element;
    element.setOrderId(someId);
    QVERIFY(!element.syntaxError().isEmpty());
    element.setOrderSender(QStringLiteral("host"));
    element.reset();
    QCOMPARE(element.storedError(), QString());
    QCOMPARE(element.orderId(), QString());
    QCOMPARE(element.orderSender(), QString());
    QVERIFY(!element.isValid());
    QCOMPARE(ElementTest::written(element, QStringLiteral("O")),
             QStringLiteral("<O><ORDER_ID></ORDER_ID><ORDER_SENDER></ORDER_SENDER></O>"));
}

void OrderdefTest::failedReadingLeavesAUsableEnvelope()
{
    XmlOrderDef element;
    QCOMPARE(ElementTest::readError(element, QStringLiteral("<O><ORDER_SENDER>a</ORDER_SENDER></O>")),
             QStringLiteral("in XmlOrderDef (line 1, column 37): Unexpected token \"EndElement\": O."));
    QVERIFY(!element.isValid());
    QCOMPARE(element.syntaxError(), QStringLiteral("+++ in XmlOrderDef Begin:\nId not set.\n--- in XmlOrderDef End"));
    QCOMPARE(XmlOrderDef(element).orderSender(), QStringLiteral("a"));
    QCOMPARE(ElementTest::written(element, QStringLiteral("O")),
             QStringLiteral("<O><ORDER_ID></ORDER_ID><ORDER_SENDER>a</ORDER_SENDER></O>"));
    element.reset();
    QCOMPARE(element.orderSender(), QString());
    QCOMPARE(ElementTest::readError(element,
                                    QStringLiteral("<O><ORDER_ID>ARV240305140709042</ORDER_ID>"
                                                   "<ORDER_SENDER>b</ORDER_SENDER></O>")),
             QString());
    QVERIFY(element.isValid());
    QCOMPARE(element.syntaxError(), QString());
}

// Fresh envelopes

void OrderdefTest::setClock(time_t seconds, suseconds_t microseconds, const char* zone)
{
    qputenv("TZ", zone);
    tzset();
    timeval time = {};
    time.tv_sec = seconds;
    time.tv_usec = microseconds;
    fixedTime = time;
}

void OrderdefTest::instanceHasTheTimeAsId_data()
{
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<int>("microseconds");
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("id");
    QTest::newRow("2024-03-05 14:07:09.042 in the afternoon")
        << qint64(1709647629) << 42000 << QByteArray("UTC") << QStringLiteral("ARV240305140709042");
    QTest::newRow("2024-03-05 19:37:09.042, local time five and a half hours ahead")
        << qint64(1709647629) << 42000 << QByteArray("XXX-5:30") << QStringLiteral("ARV240305193709042");
    QTest::newRow("2024-03-04 23:07:09.042, local time on the day before")
        << qint64(1709647629) << 42000 << QByteArray("XXX15") << QStringLiteral("ARV240304230709042");
    QTest::newRow("2001-02-03 00:00:00.000, midnight is hour 00")
        << qint64(981158400) << 0 << QByteArray("UTC") << QStringLiteral("ARV010203000000000");
    // The moment is that of QDateTime::currentDateTime(), which cuts microseconds off, or rounds them with Qt 6.8.
    QTest::newRow("2024-12-31 23:59:59.999, and almost a millisecond")
        << qint64(1735689599) << 999999 << QByteArray("UTC")
        << (isQtFrom(6, 8) ? QStringLiteral("ARV250101000000000") : QStringLiteral("ARV241231235959999"));
    if (sizeof(time_t) > 4) // a clock of 32 bits ends in 2038
        QTest::newRow("2100-01-01 01:02:03.004, the century is lost")
            << qint64(4102448523) << 4000 << QByteArray("UTC") << QStringLiteral("ARV000101010203004");
}

void OrderdefTest::instanceHasTheTimeAsId()
{
    QFETCH(qint64, seconds);
    QFETCH(int, microseconds);
    QFETCH(QByteArray, zone);
    QFETCH(QString, id);
    setClock(static_cast<time_t>(seconds), microseconds, zone.constData());
    fixedHost = QByteArray("station");

    XmlOrderDef element = XmlOrderDef::createValidInstance();
    QCOMPARE(element.orderId(), id);
    QVERIFY(element.isValid());
    QCOMPARE(element.syntaxError(), QString());
}

void OrderdefTest::instancesOfOneMillisecondHaveTheSameId()
{
    setClock(1709647629, 42000, "UTC");
    const XmlOrderDef first = XmlOrderDef::createValidInstance();
    setClock(1709647629, 42499, "UTC");
    const XmlOrderDef second = XmlOrderDef::createValidInstance();
    setClock(1709647629, 43000, "UTC");
    const XmlOrderDef third = XmlOrderDef::createValidInstance();
    QCOMPARE(first.orderId(), QStringLiteral("ARV240305140709042"));
    QCOMPARE(second.orderId(), QStringLiteral("ARV240305140709042"));
    QCOMPARE(third.orderId(), QStringLiteral("ARV240305140709043"));
}

void OrderdefTest::instanceHasTheHostAsSender()
{
    fixedHost = QByteArray("planning-7");
    XmlOrderDef element = XmlOrderDef::createValidInstance();
    QCOMPARE(element.orderSender(), QStringLiteral("planning-7"));
    QVERIFY(element.isValid());
    QCOMPARE(element.syntaxError(), QString());
}

void OrderdefTest::instanceWithoutAHostNameIsInvalid()
{
    setClock(1709647629, 42000, "UTC");
    fixedHost = QByteArray("");
    XmlOrderDef element = XmlOrderDef::createValidInstance();
    QCOMPARE(element.orderId(), QStringLiteral("ARV240305140709042"));
    QCOMPARE(element.orderSender(), QString());
    QVERIFY(!element.isValid());
    QCOMPARE(element.syntaxError(),
             QStringLiteral("+++ in XmlOrderDef Begin:\nSender not set.\n--- in XmlOrderDef End"));
}

void OrderdefTest::instanceOfThisMoment()
{
    const auto idOfThisMoment = [] {
        return QLocale::c().toString(QDateTime::currentDateTime(), QStringLiteral("'ARV'yyMMddhhmmsszzz"));
    };
    const QString before = idOfThisMoment();
    const XmlOrderDef element = XmlOrderDef::createValidInstance();
    const QString after = idOfThisMoment();
    QVERIFY(before <= element.orderId());
    QVERIFY(element.orderId() <= after);
    QCOMPARE(element.orderSender(), QHostInfo::localHostName());
}

QTEST_APPLESS_MAIN(OrderdefTest)
#include "orderdef_test.moc"
