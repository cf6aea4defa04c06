#include "support/elementtest.h"
#include "support/responsetest.h"

#include <arvxml/interactiveresponse.h>

#include <type_traits>
#include <utility>

using namespace ArvXml;
using namespace ResponseTest;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;

namespace {

// The two elements, each showing what the base keeps for itself.
struct Response : XmlInteractRespType {
    using XmlInteractRespType::classname;
    using XmlInteractRespType::mySyntaxError;
};
struct Object : XmlResultObjectType {
    using XmlResultObjectType::classname;
    using XmlResultObjectType::mySyntaxError;
};

const QString positionXml = QStringLiteral("<Position version=\"1.0\"><Longitude>7.500000</Longitude>"
                                           "<Latitude>47.250000</Latitude></Position>");
const QString heightXml = QStringLiteral("<AntennaHeight version=\"1.0\" unit=\"m\">10</AntennaHeight>");
const QString txParameterXml =
    QStringLiteral("<TxParameter version=\"1.0\"><Frequency version=\"1.0\" unit=\"MHz\">145.500000</Frequency>"
                   "<TxPower version=\"1.0\" unit=\"W\">5.000000000000000</TxPower>")
    + heightXml + QStringLiteral("<Bandwidth version=\"1.0\" unit=\"kHz\">25</Bandwidth></TxParameter>");
const QString rxParameterXml = QStringLiteral("<RxParameter version=\"1.0\">") + heightXml
    + QStringLiteral("<RxThreshold version=\"1.0\" unit=\"dBm\">-80.500000000000000</RxThreshold></RxParameter>");
const QString precisionXml =
    QStringLiteral("<DFprecision version=\"1.0\" unit=\"%1\">3</DFprecision>").arg(QChar(0x00B0));

// What the two elements hold, with a place for a name (or another text without which it is invalid).
const QString stationXml = QStringLiteral("<Station><Name>%1</Name>") + positionXml + QStringLiteral("</Station>");
const QString emitterXml = QStringLiteral("<Emitter version=\"1.0\"><Name>%1</Name>") + positionXml + txParameterXml
    + QStringLiteral("</Emitter>");
const QString receiverXml = QStringLiteral("<Receiver version=\"1.0\"><Name>%1</Name>") + positionXml + rxParameterXml
    + QStringLiteral("</Receiver>");
const QString dfXml = QStringLiteral("<DF version=\"1.0\"><Name>%1</Name>") + positionXml + rxParameterXml
    + precisionXml + QStringLiteral("</DF>");
const QString cepXml = QStringLiteral("<UseDFs><All/></UseDFs><AOIs><All/></AOIs>");
const QString gridXml = QStringLiteral("<GridResult type=\"CEP\"><CEP><Parameter>") + cepXml
    + QStringLiteral("</Parameter><ScreenshotFilename>%1</ScreenshotFilename></CEP></GridResult>");
const QString interlinkXml =
    QStringLiteral("<InterlinkResult><Parameters><FirstName>A</FirstName><SecondName>B</SecondName></Parameters>"
                   "<Result><Text>%1</Text></Result></InterlinkResult>");
const QString objectXml = QStringLiteral("<Station>") + stationXml + QStringLiteral("</Station>");

const QString first = QStringLiteral("First");
const QString second = QStringLiteral("Second");

QString problem(const char* className, const QString& body)
{
    return QStringLiteral("+++ in %1 Begin:\n%2--- in %1 End\n").arg(QLatin1String(className), body);
}

const QString nameProblem = QStringLiteral("+++ in XmlObjNameType Begin:\n"
                                           "Object name too short (min. 1).\n"
                                           "--- in XmlObjNameType End\n");
const QString countProblem = QStringLiteral("Illegal number of elements\n");

template <typename T>
T make(const QString& name);
template <>
XmlStationType make(const QString& name)
{
    return readFrom<XmlStationType>(stationXml.arg(name));
}
template <>
XmlEmitterType make(const QString& name)
{
    return readFrom<XmlEmitterType>(emitterXml.arg(name));
}
template <>
XmlReceiverType make(const QString& name)
{
    return readFrom<XmlReceiverType>(receiverXml.arg(name));
}
template <>
XmlDfType make(const QString& name)
{
    return readFrom<XmlDfType>(dfXml.arg(name));
}
template <>
XmlGridResultType make(const QString& name)
{
    XmlGridResultType result;
    result.setType(XmlGridResultType::ResultCep);
    result.setCep(readFrom<XmlCepType>(QStringLiteral("<CEP>%1</CEP>").arg(cepXml)));
    result.setScreenshotFilename(name);
    return result;
}
template <>
XmlInterlinkResultType make(const QString& name)
{
    return readFrom<XmlInterlinkResultType>(interlinkXml.arg(name));
}
template <>
XmlResultObjectType make(const QString& name)
{
    XmlResultObjectType object;
    object.setStation(make<XmlStationType>(name));
    return object;
}

/// What an element may hold.
template <typename E>
struct Member {
    const char* tag;
    QString xml;
    QString problem; ///< what is said about it without a name
    bool (*has)(const E&);
    const IXmlElement* (*get)(const E&);
    void (*set)(E&, const QString& name);
    void (*setItself)(E&);
};

template <typename E, typename T, auto Has, auto Get, auto Set>
Member<E> member(const char* tag, const QString& xml, const QString& problem)
{
    static_assert(std::is_same_v<decltype((std::declval<const E&>().*Get)()), const T*>);
    return {tag,
            xml,
            problem,
            [](const E& element) { return (element.*Has)(); },
            [](const E& element) -> const IXmlElement* { return (element.*Get)(); },
            [](E& element, const QString& name) { (element.*Set)(make<T>(name)); },
            [](E& element) { (element.*Set)(*(element.*Get)()); }};
}

/// The members in the order of writing.
template <typename E>
const QList<Member<E>>& membersOf();

template <>
const QList<Member<Response>>& membersOf<Response>()
{
    using E = XmlInteractRespType;
    static const QList<Member<Response>> list = {
        member<Response, XmlGridResultType, &E::hasGridResult, &E::gridResult, &E::setGridResult>(
            "GridResult", gridXml, problem("XmlGridResultType", QStringLiteral("Screenshot path not set\n"))),
        member<Response, XmlInterlinkResultType, &E::hasInterlinkResult, &E::interlinkResult, &E::setInterlinkResult>(
            "InterlinkResult", interlinkXml,
            problem("XmlInterlinkResultType", QStringLiteral("Missing Result Text\n"))),
        member<Response, XmlResultObjectType, &E::hasResult, &E::result, &E::setResult>(
            "Station", objectXml, problem("XmlResultObjectType", problem("XmlStationType", nameProblem))),
    };
    return list;
}

template <>
const QList<Member<Object>>& membersOf<Object>()
{
    using E = XmlResultObjectType;
    static const QList<Member<Object>> list = {
        member<Object, XmlStationType, &E::hasStation, &E::station, &E::setStation>(
            "Station", stationXml, problem("XmlStationType", nameProblem)),
        member<Object, XmlEmitterType, &E::hasEmitter, &E::emitter, &E::setEmitter>(
            "Emitter", emitterXml, problem("XmlEmitterType", nameProblem)),
        member<Object, XmlReceiverType, &E::hasRx, &E::rx, &E::setRx>("Receiver", receiverXml,
                                                                      problem("XmlReceiverType", nameProblem)),
        member<Object, XmlDfType, &E::hasDf, &E::df, &E::setDf>("DF", dfXml, problem("XmlDfType", nameProblem)),
    };
    return list;
}

template <typename E>
QString className()
{
    return std::is_same_v<E, Response> ? QStringLiteral("XmlInteractRespType") : QStringLiteral("XmlResultObjectType");
}

template <typename E>
QString block(const QString& body)
{
    return body.isEmpty() ? QString() : QStringLiteral("+++ in %1 Begin:\n%2--- in %1 End").arg(className<E>(), body);
}

/// The members held, a bit each.
template <typename E>
int heldMembers(const E& element)
{
    int held = 0;
    for (int i = 0; i < membersOf<E>().size(); ++i) {
        const Member<E>& member = membersOf<E>()[i];
        if (member.has(element))
            held |= 1 << i;
        if (member.has(element) != (member.get(element) != nullptr))
            QTest::qFail("a member is held, but its getter says otherwise", __FILE__, __LINE__);
    }
    return held;
}

template <typename E>
E elementWith(int held, const QString& name)
{
    E element;
    for (int i = int(membersOf<E>().size()) - 1; i >= 0; --i) {
        if (held & (1 << i))
            membersOf<E>()[i].set(element, name);
    }
    return element;
}

/// The members of \a held, a bit each, in the order of writing.
template <typename E>
QString xmlWith(int held, const QString& name)
{
    QString xml;
    for (int i = 0; i < membersOf<E>().size(); ++i) {
        if (held & (1 << i))
            xml += membersOf<E>()[i].xml.arg(name);
    }
    return xml.isEmpty() ? QStringLiteral("<X/>") : QStringLiteral("<X>%1</X>").arg(xml);
}

template <typename E>
QString writtenX(const E& element)
{
    return written(element, QStringLiteral("X"));
}

template <typename E>
void verifyEmpty(E& empty)
{
    QCOMPARE(heldMembers(empty), 0);
    QCOMPARE(writtenX(empty), QStringLiteral("<X/>"));
    const bool object = std::is_same_v<E, Object>; // the number of its members is not judged
    QCOMPARE(empty.isValid(), object);
    QCOMPARE(empty.syntaxError(), object ? QString() : block<E>(countProblem));
}

template <typename E>
void checkNewElement()
{
    static_assert(std::is_base_of_v<XmlElementBase, E>);
    E element;
    QCOMPARE(element.classname(), className<E>());
    QCOMPARE(element.mySyntaxError(), QString());
    verifyEmpty(element);
}

template <typename E>
void checkAccessors()
{
    const int count = int(membersOf<E>().size());
    for (int i = 0; i < count; ++i) {
        const Member<E>& member = membersOf<E>()[i];
        const QString tag = QString::fromLatin1(member.tag);
        E one;
        member.set(one, first);
        QCOMPARE(heldMembers(one), 1 << i);
        const IXmlElement* held = member.get(one);
        QCOMPARE(written(*held, tag), member.xml.arg(first));
        member.set(one, second);
        QCOMPARE(member.get(one), held); // assigned into
        QCOMPARE(written(*held, tag), member.xml.arg(second));
        member.setItself(one);
        QCOMPARE(member.get(one), held);
        QCOMPARE(written(*held, tag), member.xml.arg(second));

        // Every other member stays.
        for (int j = 0; j < count; ++j) {
            E two;
            membersOf<E>()[j].set(two, first);
            member.set(two, second);
            QCOMPARE(heldMembers(two), (1 << i) | (1 << j));
            QCOMPARE(written(*membersOf<E>()[j].get(two), QString::fromLatin1(membersOf<E>()[j].tag)),
                     membersOf<E>()[j].xml.arg(i == j ? second : first));
        }
    }
}

template <typename E>
void checkWriting()
{
    // They are set in the reverse order.
    for (int held = 0; held < 1 << membersOf<E>().size(); ++held)
        QCOMPARE(writtenX(elementWith<E>(held, first)), xmlWith<E>(held, first));
    QVERIFY(written(elementWith<E>(1, first), QStringLiteral("Other")).startsWith(QLatin1String("<Other><")));
}

template <typename E>
void checkJudgement()
{
    // Each member is absent, valid or invalid.
    const int count = int(membersOf<E>().size());
    int combinations = 1;
    for (int i = 0; i < count; ++i)
        combinations *= 3;
    for (int combination = 0; combination < combinations; ++combination) {
        E element;
        QString problems;
        int held = 0;
        for (int i = 0, rest = combination; i < count; ++i, rest /= 3) {
            if (rest % 3 == 0)
                continue;
            ++held;
            membersOf<E>()[i].set(element, rest % 3 == 1 ? first : QString());
            if (rest % 3 == 2)
                problems += membersOf<E>()[i].problem;
        }
        bool valid = problems.isEmpty();
        if (std::is_same_v<E, Response> && held != 1) {
            valid = false;
            problems += countProblem;
        }
        QCOMPARE(element.isValid(), valid);
        QCOMPARE(element.syntaxError(), block<E>(problems));
        QCOMPARE(element.syntaxError(), block<E>(problems));
    }
}

template <typename E>
void checkCopies()
{
    const int count = int(membersOf<E>().size());
    const int all = (1 << count) - 1;
    auto source = elementWith<E>(all, first);
    E copy(source);
    E assigned;
    assigned = source;
    for (const E* other : {&copy, &assigned}) {
        for (const Member<E>& member : membersOf<E>())
            QVERIFY(member.get(*other) != member.get(source));
    }
    source.reset();
    QCOMPARE(writtenX(copy), xmlWith<E>(all, first));
    QCOMPARE(writtenX(assigned), xmlWith<E>(all, first));
    const E& same = copy;
    copy = same;
    QCOMPARE(writtenX(copy), xmlWith<E>(all, first));

    for (int before = 0; before <= all; ++before) {
        for (int after = 0; after <= all; ++after) {
            auto target = elementWith<E>(before, first);
            target = elementWith<E>(after, second);
            QCOMPARE(heldMembers(target), after);
            QCOMPARE(writtenX(target), xmlWith<E>(after, second));
            QCOMPARE(writtenX(E(target)), xmlWith<E>(after, second));
        }
    }

    auto faulty = elementWith<E>(all, QString());
    const QString error = faulty.syntaxError();
    QVERIFY(!error.isEmpty());
    QCOMPARE(E(faulty).mySyntaxError(), error);
    copy = faulty;
    QCOMPARE(copy.mySyntaxError(), error);
}

template <typename E>
void checkReset()
{
    const int all = int((1 << membersOf<E>().size()) - 1);
    auto used = elementWith<E>(all, QString());
    QVERIFY(!used.syntaxError().isEmpty());
    used.reset();
    QCOMPARE(used.mySyntaxError(), QString());
    verifyEmpty(used);
    membersOf<E>()[1].set(used, first);
    QCOMPARE(writtenX(used), xmlWith<E>(2, first));
}

/// {G}, {I} and {S} stand for the items of a response, {St}, {Em}, {Rx} and {Df} for the members of a
/// result object; a "|" inside stands where their reading fails.
QString expanded(const char* pattern)
{
    return QString::fromLatin1(pattern)
        .replace(QLatin1String("{G}"), gridXml.arg(first))
        .replace(QLatin1String("{G|}"),
                 gridXml.arg(first).replace(QLatin1String("</Parameter>"), QLatin1String("</Parameter>|")))
        .replace(QLatin1String("{I}"), interlinkXml.arg(first))
        .replace(QLatin1String("{S}"), objectXml.arg(first))
        .replace(QLatin1String("{St}"), stationXml.arg(first))
        .replace(QLatin1String("{Em}"), emitterXml.arg(first))
        .replace(QLatin1String("{Rx}"), receiverXml.arg(first))
        .replace(QLatin1String("{Df}"), dfXml.arg(first));
}

} // namespace

class InteractiveresponseTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void newElement_data() { elements(); }
    void newElement();
    void accessors_data() { elements(); }
    void accessors();
    void writing_data() { elements(); }
    void writing();
    void judgement_data() { elements(); }
    void judgement();
    void emptyObjectInAResponse();
    void copies_data() { elements(); }
    void copies();
    void reset_data() { elements(); }
    void reset();
    void responses_data();
    void responses();
    void responseGates_data();
    void responseGates();
    void objects_data();
    void objects();
    void objectGates_data();
    void objectGates();
    void foreignEndTags();
    void usedResponse();
    void usedObject();
    void useAfterFailedRead();
    void responsePositions();
    void objectPositions();

private:
    static void elements();
};

void InteractiveresponseTest::elements()
{
    QTest::addColumn<bool>("response");
    QTest::newRow("an interactive response") << true;
    QTest::newRow("a result object") << false;
}

void InteractiveresponseTest::newElement()
{
    QFETCH(bool, response);
    response ? checkNewElement<Response>() : checkNewElement<Object>();
}

void InteractiveresponseTest::accessors()
{
    QFETCH(bool, response);
    response ? checkAccessors<Response>() : checkAccessors<Object>();
}

void InteractiveresponseTest::writing()
{
    QFETCH(bool, response);
    response ? checkWriting<Response>() : checkWriting<Object>();
}

void InteractiveresponseTest::judgement()
{
    QFETCH(bool, response);
    response ? checkJudgement<Response>() : checkJudgement<Object>();
}

void InteractiveresponseTest::emptyObjectInAResponse()
{
    Response response;
    response.setResult(XmlResultObjectType());
    QVERIFY(response.isValid());
    QCOMPARE(response.syntaxError(), QString());
    QCOMPARE(written(response, QStringLiteral("Interactive")), QStringLiteral("<Interactive><Station/></Interactive>"));
}

void InteractiveresponseTest::copies()
{
    QFETCH(bool, response);
    response ? checkCopies<Response>() : checkCopies<Object>();
}

void InteractiveresponseTest::reset()
{
    QFETCH(bool, response);
    response ? checkReset<Response>() : checkReset<Object>();
}

void InteractiveresponseTest::responses_data()
{
    QTest::addColumn<QString>("marked");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("message"); ///< empty when the response is read
    QTest::addColumn<int>("held");

    const auto row = [](const char* name, const char* content, const char* className, const char* message, int held) {
        QTest::newRow(name) << QStringLiteral("<X>") + expanded(content) + QStringLiteral("</X>")
                            << QString::fromLatin1(className) << QString::fromLatin1(message) << held;
    };
    const char own[] = "XmlInteractRespType";
    row("an interlink result", "{I}", "", "", 2);
    row("other tokens are skipped", "text<!-- c -->\n<?p i?>{I} 5 <![CDATA[x]]>\n", "", "", 2);
    row("a grid result is refused by its parameters", "\n{G|}", "XmlCepType",
        "Unexpected token \"EndElement\": Parameter", 1);
    row("a result object is refused by its end tag", "\n {S}|", "XmlResultObjectType",
        "Unexpected token \"EndElement\": Station", 4);
    row("a result object on several lines", "\n <Station>\n  {Em}\n </Station>|\n", "XmlResultObjectType",
        "Unexpected token \"EndElement\": Station", 4);
    row("an empty result object", "\n<Station></Station>|", "XmlResultObjectType",
        "Unexpected token \"EndElement\": Station", 4);
    row("a result object with two members", "<Station>{Em}\n<DF>|</DF></Station>", "XmlResultObjectType",
        "Unexpected element \"DF\"", 4);
    row("a failing interlink result", "\n<InterlinkResult></InterlinkResult>|", "XmlInterlinkResultType",
        "Unexpected token \"EndElement\": InterlinkResult", 2);
    row("a grid result without a type", "\n<GridResult>|</GridResult>", "XmlGridResultType",
        "Illegal attribute value in \"type\"", 1);
    row("another element", "\n\n <Other>|</Other>", own, "Unexpected token \"StartElement\": Other", 0);
    row("a planning object without a frame", "\n<Emitter>|</Emitter>", own,
        "Unexpected token \"StartElement\": Emitter", 0);
    row("the case of a tag counts", "<station>|</station>", own, "Unexpected token \"StartElement\": station", 0);
    row("the element in itself", "<X>|</X>", own, "Unexpected token \"StartElement\": X", 0);
    row("the content of an interlink result", "<Parameters>|</Parameters>", own,
        "Unexpected token \"StartElement\": Parameters", 0);
}

void InteractiveresponseTest::responses()
{
    QFETCH(QString, marked);
    QFETCH(QString, className);
    QFETCH(QString, message);
    QFETCH(int, held);

    Response response;
    if (message.isEmpty()) {
        QCOMPARE(readError(response, marked), QString());
        QVERIFY(response.isValid());
        QCOMPARE(writtenX(response), xmlWith<Response>(held, first));
    } else {
        const Refusal refused = refusal(marked, className, message);
        QCOMPARE(readError(response, refused.xml), refused.error);
    }
    QCOMPARE(heldMembers(response), held); // with what was read until then
}

void InteractiveresponseTest::responseGates_data()
{
    QTest::addColumn<QString>("marked");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("held");

    // A second item never comes to be read. After a grid result or a result object, because these end the read
    // themselves; after an interlink result it is refused.
    const auto add = [](const char* pattern, const char* next, const char* className, const char* message, int held) {
        QTest::addRow("%s then %s", pattern, next)
            << expanded((QByteArray("<X>\n") + pattern + "\n<" + next + ">" + (qstrcmp(pattern, "{I}") == 0 ? "|" : "")
                         + "</" + next + "></X>")
                            .constData())
            << QString::fromLatin1(className) << QString::fromLatin1(message) << held;
    };
    add("{I}", "GridResult", "XmlInteractRespType", "Unexpected token \"StartElement\": GridResult", 2);
    add("{I}", "InterlinkResult", "XmlInteractRespType", "Unexpected token \"StartElement\": InterlinkResult", 2);
    add("{I}", "Station", "XmlInteractRespType", "Unexpected token \"StartElement\": Station", 2);
    add("{I}", "Other", "XmlInteractRespType", "Unexpected token \"StartElement\": Other", 2);
    add("{G|}", "GridResult", "XmlCepType", "Unexpected token \"EndElement\": Parameter", 1);
    add("{G|}", "InterlinkResult", "XmlCepType", "Unexpected token \"EndElement\": Parameter", 1);
    add("{G|}", "Station", "XmlCepType", "Unexpected token \"EndElement\": Parameter", 1);
    add("{G|}", "Other", "XmlCepType", "Unexpected token \"EndElement\": Parameter", 1);
    add("{S}|", "GridResult", "XmlResultObjectType", "Unexpected token \"EndElement\": Station", 4);
    add("{S}|", "InterlinkResult", "XmlResultObjectType", "Unexpected token \"EndElement\": Station", 4);
    add("{S}|", "Station", "XmlResultObjectType", "Unexpected token \"EndElement\": Station", 4);
    add("{S}|", "Other", "XmlResultObjectType", "Unexpected token \"EndElement\": Station", 4);
}

void InteractiveresponseTest::responseGates()
{
    responses();
}

void InteractiveresponseTest::objects_data()
{
    QTest::addColumn<QString>("marked");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("held");

    const auto row = [](const char* name, const char* content, const char* className, const char* message, int held) {
        QTest::newRow(name) << QStringLiteral("<X>") + expanded(content) + QStringLiteral("</X>|")
                            << QString::fromLatin1(className) << QString::fromLatin1(message) << held;
    };
    const char own[] = "XmlResultObjectType";
    const char end[] = "Unexpected token \"EndElement\": X";
    row("a station", "\n{St}\n", own, end, 1);
    row("an emitter", "\n\n   {Em}\n  ", own, end, 2);
    row("a receiver", "{Rx}", own, end, 4);
    row("a direction finder", "{Df}", own, end, 8);
    row("nothing", "\n", own, end, 0);
    row("other tokens are skipped", "text<!-- c -->\n<?p i?>{Em} 5 <![CDATA[x]]>\n", own, end, 2);
    row("another element", "\n\n <Other>|</Other>", own, "Unexpected element \"Other\"", 0);
    row("a signal path", "\n<SignalPath>|</SignalPath>", own, "Unexpected element \"SignalPath\"", 0);
    row("an area of interest", "<AOI>|</AOI>", own, "Unexpected element \"AOI\"", 0);
    row("the case of a tag counts", "<Df>|</Df>", own, "Unexpected element \"Df\"", 0);
    row("the element in itself", "<X>|</X>", own, "Unexpected element \"X\"", 0);
    row("a failing station", "\n<Station>\n</Station>|", "XmlStationType", "Unexpected token \"EndElement\": Station",
        1);
    row("an emitter of another version", "\n<Emitter version=\"2.0\">|</Emitter>", "XmlEmitterType",
        "Version not supported: 2.0", 2);
    row("a failing receiver", "\n<Receiver><Other>|</Other></Receiver>", "XmlReceiverType",
        "Unexpected element \"Other\"", 4);
    row("a failing direction finder", "\n<DF></DF>|", "XmlDfType", "Unexpected token \"EndElement\"", 8);
}

void InteractiveresponseTest::objects()
{
    QFETCH(QString, marked);
    QFETCH(QString, className);
    QFETCH(QString, message);
    QFETCH(int, held);

    const Refusal refused = refusal(marked, className, message);
    Object object;
    QCOMPARE(readError(object, QString(refused.xml).remove(QLatin1Char('|'))), refused.error);
    QCOMPARE(heldMembers(object), held);
    if (refused.error.endsWith(QLatin1String("\"EndElement\": X."))) {
        // The member was read whole, and the element can be used.
        QCOMPARE(writtenX(object), xmlWith<Object>(held, first));
        QVERIFY(object.isValid());
        QCOMPARE(object.syntaxError(), QString());
    }
}

void InteractiveresponseTest::objectGates_data()
{
    QTest::addColumn<QString>("marked");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("held");

    const auto add = [](const char* pattern, const char* next, const char* message, int held) {
        QTest::addRow("%s then %s", pattern, next)
            << expanded((QByteArray("<X>\n") + pattern + "\n <" + next + ">|</" + next + "></X>").constData())
            << QStringLiteral("XmlResultObjectType") << QString::fromLatin1(message) << held;
    };
    add("{St}", "Station", "Unexpected element \"Station\"", 1);
    add("{St}", "Emitter", "Unexpected element \"Emitter\"", 1);
    add("{St}", "Receiver", "Unexpected element \"Receiver\"", 1);
    add("{St}", "DF", "Unexpected element \"DF\"", 1);
    add("{St}", "Other", "Unexpected element \"Other\"", 1);
    add("{Em}", "Station", "Unexpected element \"Station\"", 2);
    add("{Em}", "Emitter", "Unexpected element \"Emitter\"", 2);
    add("{Em}", "Receiver", "Unexpected element \"Receiver\"", 2);
    add("{Em}", "DF", "Unexpected element \"DF\"", 2);
    add("{Em}", "Other", "Unexpected element \"Other\"", 2);
    add("{Rx}", "Station", "Unexpected element \"Station\"", 4);
    add("{Rx}", "Emitter", "Unexpected element \"Emitter\"", 4);
    add("{Rx}", "Receiver", "Unexpected element \"Receiver\"", 4);
    add("{Rx}", "DF", "Unexpected element \"DF\"", 4);
    add("{Rx}", "Other", "Unexpected element \"Other\"", 4);
    add("{Df}", "Station", "Unexpected element \"Station\"", 8);
    add("{Df}", "Emitter", "Unexpected element \"Emitter\"", 8);
    add("{Df}", "Receiver", "Unexpected element \"Receiver\"", 8);
    add("{Df}", "DF", "Unexpected element \"DF\"", 8);
    add("{Df}", "Other", "Unexpected element \"Other\"", 8);
}

void InteractiveresponseTest::objectGates()
{
    objects();
}

void InteractiveresponseTest::foreignEndTags()
{
    // Every end tag is refused by its name.
    QXmlStreamReader forObject(QStringLiteral("<Other>\n%1\n</Other>").arg(emitterXml.arg(first)));
    forObject.readNextStartElement();
    Object object;
    object.processXml(forObject, QStringLiteral("Station"));
    QCOMPARE(forObject.errorString(),
             QStringLiteral("in XmlResultObjectType (line 3, column 8): Unexpected token \"EndElement\": Other."));
    QVERIFY(object.hasEmitter());

    QXmlStreamReader forResponse(QStringLiteral("<Other>\n%1\n</Other>").arg(interlinkXml.arg(first)));
    forResponse.readNextStartElement();
    Response response;
    response.processXml(forResponse, QStringLiteral("Interactive"));
    QCOMPARE(forResponse.errorString(),
             QStringLiteral("in XmlInteractRespType (line 3, column 8): Unexpected token \"EndElement\": Other."));
    QVERIFY(response.hasInterlinkResult());

    // Under its usual tag.
    Response empty;
    QCOMPARE(
        readError(empty, QStringLiteral("<Interactive>\n</Interactive>")),
        QStringLiteral("in XmlInteractRespType (line 2, column 14): Unexpected token \"EndElement\": Interactive."));
    QCOMPARE(
        readError(empty, QStringLiteral("<Interactive version=\"2.0\">%1</Interactive>").arg(interlinkXml.arg(first))),
        QString());
    QCOMPARE(readError(object, QStringLiteral("<Station version=\"2.0\">\n%1</Station>").arg(stationXml.arg(second))),
             QStringLiteral("in XmlResultObjectType (line 2, column %1): Unexpected token \"EndElement\": Station.")
                 .arg(stationXml.arg(second).size() + 10));
    QCOMPARE(object.station()->objName()->objName(), second);
}

void InteractiveresponseTest::usedResponse()
{
    // The item of the kind read is a new one; the others stay.
    auto interlink = elementWith<Response>(7, first);
    XmlInterlinkResultType old = *interlink.interlinkResult();
    old.setScreenshotFilename(QStringLiteral("old.png"));
    interlink.setInterlinkResult(old);
    QCOMPARE(readError(interlink, QStringLiteral("<X>%1</X>").arg(interlinkXml.arg(second))), QString());
    QCOMPARE(writtenX(interlink),
             QStringLiteral("<X>%1%2%3</X>").arg(gridXml.arg(first), interlinkXml.arg(second), objectXml.arg(first)));
    QVERIFY(!interlink.isValid());

    auto grid = elementWith<Response>(7, first);
    QVERIFY(!readError(grid, QStringLiteral("<X><GridResult type=\"FindSites\"/></X>")).isEmpty());
    QCOMPARE(writtenX(grid),
             QStringLiteral("<X><GridResult type=\"FindSites\"/>%1%2</X>")
                 .arg(interlinkXml.arg(first), objectXml.arg(first)));

    auto object = elementWith<Response>(7, first);
    QVERIFY(!readError(object, QStringLiteral("<X><Station>%1</Station></X>").arg(emitterXml.arg(second))).isEmpty());
    QCOMPARE(writtenX(object),
             QStringLiteral("<X>%1%2<Station>%3</Station></X>")
                 .arg(gridXml.arg(first), interlinkXml.arg(first), emitterXml.arg(second)));
}

void InteractiveresponseTest::usedObject()
{
    const QString end = QStringLiteral("Unexpected token \"EndElement\": X.");
    for (int i = 0; i < 4; ++i) {
        auto object = elementWith<Object>(15, first);
        const QString tag = QString::fromLatin1(membersOf<Object>()[i].tag);
        QVERIFY(
            readError(object, QStringLiteral("<X>%1</X>").arg(membersOf<Object>()[i].xml.arg(second))).endsWith(end));
        QString expected;
        for (int j = 0; j < 4; ++j)
            expected += membersOf<Object>()[j].xml.arg(i == j ? second : first);
        QCOMPARE(writtenX(object), QStringLiteral("<X>%1</X>").arg(expected));

        // The member is a new one: nothing of the old one is left.
        QVERIFY(!readError(object, QStringLiteral("<X><%1><Wrong/></%1></X>").arg(tag)).isEmpty());
        QCOMPARE(heldMembers(object), 15);
        const QString held = written(*membersOf<Object>()[i].get(object), tag);
        QVERIFY(held.contains(QLatin1String("<Name></Name>")));
        QVERIFY(held.contains(QLatin1String("<Longitude>-999.999000</Longitude>")));
    }

    // A station that had parameters has none.
    XmlStationType station = make<XmlStationType>(first);
    station.setRxParam(readFrom<XmlRxParamType>(rxParameterXml));
    Object object;
    object.setStation(station);
    QVERIFY(object.station()->hasRxParam());
    QVERIFY(readError(object, QStringLiteral("<X>%1</X>").arg(stationXml.arg(second))).endsWith(end));
    QVERIFY(!object.station()->hasRxParam());

    // Each reading may bring one member.
    Object filled;
    QVERIFY(readError(filled, QStringLiteral("<X>%1</X>").arg(dfXml.arg(first))).endsWith(end));
    QVERIFY(readError(filled, QStringLiteral("<X>%1</X>").arg(emitterXml.arg(first))).endsWith(end));
    QCOMPARE(writtenX(filled), xmlWith<Object>(2 + 8, first));
}

void InteractiveresponseTest::useAfterFailedRead()
{
    Response response;
    QCOMPARE(
        readError(response,
                  QStringLiteral("<Interactive>\n<Station>%1</Station></Interactive>").arg(emitterXml.arg(QString()))),
        QStringLiteral("in XmlResultObjectType (line 2, column %1): Unexpected token \"EndElement\": Station.")
            .arg(emitterXml.arg(QString()).size() + 19));
    QVERIFY(!response.isValid());
    QCOMPARE(response.syntaxError(),
             block<Response>(problem("XmlResultObjectType", problem("XmlEmitterType", nameProblem))));
    const QString held = QStringLiteral("<X><Station>%1</Station></X>").arg(emitterXml.arg(QString()));
    QCOMPARE(writtenX(response), held);
    QCOMPARE(writtenX(Response(response)), held);
    response.reset();
    verifyEmpty(response);
    QCOMPARE(readError(response, QStringLiteral("<X>%1</X>").arg(interlinkXml.arg(first))), QString());
    QVERIFY(response.isValid());

    Object object;
    QVERIFY(!readError(object, QStringLiteral("<X><DF version=\"1.0\"><Name>D</Name></DF></X>")).isEmpty());
    QVERIFY(!object.isValid());
    QVERIFY(
        object.syntaxError().startsWith(QLatin1String("+++ in XmlResultObjectType Begin:\n+++ in XmlDfType Begin:\n")));
    QCOMPARE(Object(object).df()->objName()->objName(), QStringLiteral("D"));
    object.reset();
    verifyEmpty(object);

    // The stream's own errors stay.
    QCOMPARE(readError(response, QStringLiteral("<X>")), QStringLiteral("Premature end of document."));
    QCOMPARE(readError(object, QStringLiteral("<X>")), QStringLiteral("Premature end of document."));
    QCOMPARE(readError(response, QStringLiteral("<X></Y>")), QStringLiteral("Opening and ending tag mismatch."));
    QCOMPARE(readError(object, QStringLiteral("<X></Y>")), QStringLiteral("Opening and ending tag mismatch."));
}

void InteractiveresponseTest::responsePositions()
{
    const QString tag = QStringLiteral("Interactive");
    const QString xml = QStringLiteral("<Interactive>\n%1</Interactive>").arg(interlinkXml.arg(first));
    Response response;

    QXmlStreamReader fresh(xml);
    response.processXml(fresh, tag);
    QVERIFY(fresh.errorString().startsWith(QLatin1String("in XmlInteractRespType (line 1, column ")));
    QVERIFY(fresh.errorString().endsWith(QLatin1String("): Unexpected token \"StartDocument\".")));

    QXmlStreamReader atStart(xml);
    atStart.readNext();
    response.processXml(atStart, tag);
    QCOMPARE(
        atStart.errorString(),
        QStringLiteral("in XmlInteractRespType (line 1, column 13): Unexpected token \"StartElement\": Interactive."));
    QCOMPARE(heldMembers(response), 0);

    // There is no check of the position: on characters inside, reading goes on.
    QXmlStreamReader onText(xml);
    onText.readNextStartElement();
    onText.readNext();
    QVERIFY(onText.isCharacters());
    response.processXml(onText, tag);
    QCOMPARE(onText.errorString(), QString());
    QVERIFY(response.isValid());
    response.processXml(onText, tag);
    QCOMPARE(onText.errorString(),
             QStringLiteral("in XmlInteractRespType (line 2, column %1): Unexpected token \"EndDocument\".")
                 .arg(interlinkXml.arg(first).size() + 14));

    Response untouched;
    QXmlStreamReader atEnd(xml);
    while (!atEnd.atEnd())
        atEnd.readNext();
    untouched.processXml(atEnd, tag);
    QVERIFY(!atEnd.hasError());
    QCOMPARE(heldMembers(untouched), 0);

    QXmlStreamReader inDocument(QStringLiteral("<Doc>%1<Next/></Doc>").arg(xml));
    inDocument.readNextStartElement();
    inDocument.readNextStartElement();
    untouched.processXml(inDocument, tag);
    QVERIFY(inDocument.readNextStartElement());
    QCOMPARE(inDocument.name().toString(), QStringLiteral("Next"));
}

void InteractiveresponseTest::objectPositions()
{
    const QString tag = QStringLiteral("Station");
    const QString xml = QStringLiteral("<Station>\n%1\n</Station>").arg(receiverXml.arg(first));
    const QString end =
        QStringLiteral("in XmlResultObjectType (line 3, column 10): Unexpected token \"EndElement\": Station.");
    Object object;

    QXmlStreamReader fresh(xml);
    object.processXml(fresh, tag);
    QVERIFY(fresh.errorString().startsWith(QLatin1String("in XmlResultObjectType (line 1, column ")));
    QVERIFY(fresh.errorString().endsWith(QLatin1String("): Unexpected token \"StartDocument\".")));
    QCOMPARE(heldMembers(object), 0);

    QXmlStreamReader onText(xml);
    onText.readNextStartElement();
    onText.readNext();
    QVERIFY(onText.isCharacters());
    object.processXml(onText, tag);
    QCOMPARE(onText.errorString(), end);
    QCOMPARE(heldMembers(object), 4);

    QXmlStreamReader afterwards(xml);
    while (afterwards.readNext() != QXmlStreamReader::EndElement || afterwards.name() != tag) { }
    object.processXml(afterwards, tag);
    QCOMPARE(afterwards.errorString(),
             QStringLiteral("in XmlResultObjectType (line 3, column 10): Unexpected token \"EndDocument\"."));

    Object untouched;
    QXmlStreamReader atEnd(xml);
    while (!atEnd.atEnd())
        atEnd.readNext();
    untouched.processXml(atEnd, tag);
    QVERIFY(!atEnd.hasError());
    QCOMPARE(heldMembers(untouched), 0);
}

QTEST_APPLESS_MAIN(InteractiveresponseTest)
#include "interactiveresponse_test.moc"
