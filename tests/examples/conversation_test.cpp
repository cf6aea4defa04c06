#include "programs.h"

#include <arvxml/arvxml.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QXmlStreamReader>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

#include <memory>
#include <vector>

using namespace ArvXml;

namespace {

/// A service of its own for each test, on a free port.
class RunningService {
public:
    explicit RunningService(const QStringList& options = {})
    {
        const QString portFile = m_folder.filePath(QStringLiteral("port"));
        m_process.setStandardErrorFile(m_folder.filePath(QStringLiteral("log")));
        m_process.start(
            QStringLiteral(SERVICE_PROGRAM),
            QStringList{QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--port-file"), portFile}
                + options);
        QElapsedTimer time;
        time.start();
        while (!QFile::exists(portFile) && time.elapsed() < patienceMs && m_process.state() != QProcess::NotRunning)
            m_process.waitForFinished(20);
        QFile file(portFile);
        if (file.open(QIODevice::ReadOnly))
            m_port = file.readAll().trimmed().toUShort();
    }
    ~RunningService()
    {
        m_process.kill();
        m_process.waitForFinished(patienceMs);
    }

    quint16 port() const { return m_port; }
    bool isRunning() { return !m_process.waitForFinished(0) && m_process.state() == QProcess::Running; }
    QProcess& process() { return m_process; }
    QString log() const
    {
        QFile file(m_folder.filePath(QStringLiteral("log")));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    QStringList clientArguments(const QStringList& arguments) const
    {
        return QStringList{QStringLiteral("--port"), QString::number(m_port), QStringLiteral("--timeout"),
                           QString::number(patienceMs / 1000)}
        + arguments;
    }
    Run client(const QStringList& arguments) const { return runProgram(CLIENT_PROGRAM, clientArguments(arguments)); }

    /// Whether a usual client is served.
    bool serves() const
    {
        const Run run = client({QStringLiteral("version")});
        return run.status == 0 && run.output.contains(QLatin1String("Version of the service"));
    }

private:
    QTemporaryDir m_folder;
    QProcess m_process;
    quint16 m_port = 0;
};

/// A client that speaks bytes, to say what a usual one never would.
class RawClient {
public:
    explicit RawClient(const RunningService& service)
    {
        m_socket.setProxy(QNetworkProxy::NoProxy);
        m_socket.connectToHost(QHostAddress::LocalHost, service.port());
        m_socket.waitForConnected(patienceMs);
    }

    bool send(const QByteArray& bytes)
    {
        m_socket.write(bytes);
        while (m_socket.bytesToWrite() > 0) {
            if (!m_socket.waitForBytesWritten(patienceMs))
                return false;
        }
        return true;
    }

    /// The next document that the service sends; empty when none comes.
    QByteArray receive()
    {
        while (m_received.indexOf('\0') < 0) {
            if (m_socket.bytesAvailable() == 0 && !m_socket.waitForReadyRead(patienceMs))
                return QByteArray();
            m_received += m_socket.readAll();
        }
        const int end = m_received.indexOf('\0');
        const QByteArray document = m_received.left(end);
        m_received.remove(0, end + 1);
        return document;
    }

    bool isSentAway()
    {
        return m_socket.state() == QAbstractSocket::UnconnectedState || m_socket.waitForDisconnected(patienceMs);
    }

private:
    QTcpSocket m_socket;
    QByteArray m_received;
};

QByteArray framed(const QByteArray& document)
{
    return document + '\0';
}

QString read(XmlRespRoot& root, const QByteArray& document)
{
    QXmlStreamReader reader(document);
    reader.readNextStartElement();
    root.processXml(reader, QStringLiteral("Response"));
    return reader.errorString();
}

QString errorMessage(const QByteArray& response)
{
    XmlRespRoot root;
    read(root, response);
    return root.isValid() && root.autoResp()->status() == XmlAutoRespType::StatusFault
        ? root.autoResp()->errorMessage()
        : QStringLiteral("(no valid fault)");
}

} // namespace

class ConversationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void orders_data();
    void orders();
    void rawDocuments_data();
    void rawDocuments();
    void badOrdersAreNotSent_data();
    void badOrdersAreNotSent();

    void anInterlinkOrderIsAcknowledgedThenCarriedOut();
    void aCepOrderEndsInAGridResult();
    void aFaultSaysWhatIsWrong_data();
    void aFaultSaysWhatIsWrong();
    void everyCommandOfADocumentIsAnswered();
    void everyCommandOfABadDocumentIsRefused();

    void documentsMayComeInPiecesOrTogether();
    void rubbishDoesNotHarm();
    void aTooLongDocumentIsRefused();
    void hangingUpHalfWayDoesNotHarm();
    void aSilentClientHoldsNobodyUp();
    void aSilentClientIsSentAwayAtLast();
    void aClientMaySendMuchBeforeItReads();
    void severalAtOnceAreServed();

    void endsOnRequest();
    void endsAfterSomeDocuments();
    void clientWithoutService();
    void clientAgainstBadServices_data();
    void clientAgainstBadServices();
};

void ConversationTest::orders_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("texts");
    const auto words = [](const char* text) { return QString::fromLatin1(text).split(QLatin1Char('|')); };
    const QString stops = QStringLiteral("This is no failure.");
    QTest::newRow("interlink") << words("interlink|Relay South|Relay North|--reference|link 1")
                               << words("[reference link 1] Result expected at 20|[reference link 1] Result: interlink "
                                        "from Relay South to Relay North|is feasible|picture: result-1.png");
    QTest::newRow("cep") << words("cep|DF 1|DF 2|--area|North|--area|South|--probability|90|--grid|100|--reference|c")
                         << words("Result expected at 20|[reference c] Grid result: circular error "
                                  "probable|direction finders: DF 1, DF 2\n|areas of interest: North, "
                                  "South\n|probability: 90 %\n|grid spacing: 100\n")
            + QStringList(stops);
    QTest::newRow("detection probability of all sensors")
        << words("detect|--area|North")
        << words("Grid result: detection probability|receivers and direction finders: all\n|areas of interest: North\n")
            + QStringList(stops);
    QTest::newRow("direction-finding coverage")
        << words("dfcov|DF 1|--grid|1000")
        << words("Grid result: direction-finding coverage|direction finders: DF 1\n|areas of interest: all\n|grid "
                 "spacing: 1000\n")
            + QStringList(stops);
    QTest::newRow("best sensor") << words("bestsensor|RX 1")
                                 << words("Grid result: best sensor coverage|receivers and direction finders: RX 1\n")
            + QStringList(stops);
    QTest::newRow("possible sites")
        << words("findsites|Ridge|--random-emitters|12")
        << words("Grid result: possible sites|random emitters: 12\n|deployment areas: Ridge\n") + QStringList(stops);
    QTest::newRow("version") << words("version|--reference|hello")
                             << words("[reference hello] Version of the service: Example planning service 1.0");
}

void ConversationTest::orders()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, texts);
    RunningService service;
    QVERIFY(service.port() != 0);

    const Run run = service.client(arguments);

    QCOMPARE(run.errors, QString());
    for (const QString& text : texts)
        QVERIFY2(run.output.contains(text), qPrintable(run.output));
    QCOMPARE(run.status, 0);
}

void ConversationTest::rawDocuments_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("finalAnswers");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* file, int finalAnswers, int status, const char* text) {
        QTest::newRow(file) << QString::fromLatin1(file) << finalAnswers << status << QString::fromLatin1(text);
    };
    row("good/calculate-best-sensor.xml", 1, 0, "[reference harbour-3] Grid result: best sensor coverage");
    row("good/calculate-cep.xml", 1, 0, "[reference cep-coast-1] Grid result: circular error probable");
    row("good/calculate-detection-probability.xml", 1, 0, "[reference valleys] Grid result: detection probability");
    row("good/calculate-df-coverage.xml", 1, 0, "[reference 17] Grid result: direction-finding coverage");
    row("good/calculate-interlink.xml", 1, 0, "[reference link-9] Result: interlink from Relay Ridge South");
    row("good/calculate-possible-sites.xml", 1, 0, "known emitters: Beacon 4");
    row("good/query-version.xml", 1, 0, "[reference hello] Version of the service");
    row("good/several-commands.xml", 3, 0, "[reference several-3] Grid result: circular error probable");
    row("good/without-envelope.xml", 1, 0, "[reference cep-coast-1] Grid result: circular error probable");
    row("bad/calculate-without-reference.xml", 1, 1,
        "[reference unknown] Fault:\n  in XmlCmdCalc (line 19, column 14): Unexpected token \"EndElement\".\n");
    row("bad/sites-too-many-random-emitters.xml", 1, 1, "  RandomEmitters/Number out of bounds\n");
    row("bad/envelope-with-short-id.xml", 1, 1, "[reference cep-coast-1] Fault:\n  +++ in XmlCmdRoot Begin:\n");
    row("unreadable/not-xml.txt", 1, 1, "[reference unknown] Fault:\n  Start tag expected.\n");
    row("unreadable/empty.xml", 1, 1, "[reference unknown] Fault:\n  Premature end of document.\n");
}

void ConversationTest::rawDocuments()
{
    QFETCH(QString, file);
    QFETCH(int, finalAnswers);
    QFETCH(int, status);
    QFETCH(QString, text);
    RunningService service;

    const Run run = service.client(
        {QStringLiteral("--raw"), samplePath(file), QStringLiteral("--answers"), QString::number(finalAnswers)});

    QCOMPARE(run.errors, QString());
    QVERIFY2(run.output.contains(text), qPrintable(run.output));
    QCOMPARE(run.status, status);
}

void ConversationTest::badOrdersAreNotSent_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* arguments, const char* text) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char('|')) << QString::fromLatin1(text);
    };
    row("interlink with one name", "interlink|Relay South", "SecondName not set\n");
    row("an unknown level", "cep|--probability|80", "Illegal probability value.\n");
    row("an unknown spacing", "detect|--grid|25", "Illegal grid size.\n");
    row("too many emitters", "findsites|--random-emitters|501", "RandomEmitters/Number out of bounds\n");
    row("no reference", "version|--reference|", "String too short (min. 1)\n");
    row("an unknown kind", "forecast", "There is no order of the kind \"forecast\".");
}

void ConversationTest::badOrdersAreNotSent()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, text);
    RunningService service;
    const Run run = service.client(arguments);
    QVERIFY2(run.errors.contains(text), qPrintable(run.errors));
    QCOMPARE(run.status, 1);
    QCOMPARE(service.log(), QString());
}

void ConversationTest::anInterlinkOrderIsAcknowledgedThenCarriedOut()
{
    RunningService service;
    RawClient client(service);
    QVERIFY(client.send(framed(sample("good/calculate-interlink.xml"))));

    XmlRespRoot first;
    QCOMPARE(read(first, client.receive()), QString());
    QVERIFY(first.isValid());
    QCOMPARE(first.type(), XmlRespRoot::RespAutomatic);
    QVERIFY(!first.isFinal());
    QCOMPARE(first.orderDef()->orderId(), QStringLiteral("ARV240305140709042"));
    QCOMPARE(first.orderDef()->orderSender(), QStringLiteral("planning-desk-2"));
    QCOMPARE(first.autoResp()->status(), XmlAutoRespType::StatusAck);
    QCOMPARE(first.autoResp()->reference().reference(), QStringLiteral("link-9"));
    QVERIFY(first.autoResp()->hasEstimatedTime());

    XmlRespRoot last;
    QCOMPARE(read(last, client.receive()), QString());
    QVERIFY(last.isValid());
    QVERIFY(last.isFinal());
    QCOMPARE(last.orderDef()->orderId(), QStringLiteral("ARV240305140709042"));
    QCOMPARE(last.autoResp()->reference().reference(), QStringLiteral("link-9"));
    QVERIFY(last.autoResp()->hasInterlinkResult());
    QCOMPARE(last.autoResp()->interlinkResult()->parameters()->secondName(),
             QString::fromUtf8("Relay Z\xc3\xbcrich Nord"));
}

void ConversationTest::aCepOrderEndsInAGridResult()
{
    RunningService service;
    RawClient client(service);
    QVERIFY(client.send(framed(sample("good/calculate-cep.xml"))));
    QVERIFY(client.receive().contains("final=\"false\""));
    const QByteArray last = client.receive();
    const QByteArray expected =
        "<Automatic status=\"ack\"><CommandReference>cep-coast-1</CommandReference><GridResult type=\"CEP\"><CEP>"
        "<Parameter><UseDFs><Name>DF Hill North</Name><Name>DF Water Tower</Name></UseDFs>"
        "<AOIs><Name>Coast Strip</Name></AOIs><Probability>90</Probability><ResultGrid>100</ResultGrid></Parameter>"
        "<ScreenshotFilename>result-1.png</ScreenshotFilename></CEP></GridResult></Automatic></Response>";
    QVERIFY2(last.contains(expected), last.constData());
    QVERIFY2(last.contains("<Response type=\"automatic\" final=\"true\" timestamp=\"20"), last.constData());
}

void ConversationTest::aFaultSaysWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("message");
    QTest::newRow("no XML") << QByteArray("good morning") << QStringLiteral("Start tag expected.");
    QTest::newRow("nothing") << QByteArray() << QStringLiteral("Premature end of document.");
    QTest::newRow("a document type declaration") << QByteArray("<!DOCTYPE Commands [<!ENTITY a \"b\">]><Commands/>")
                                                 << QStringLiteral("A document type declaration is not accepted.");
    QTest::newRow("a document type declaration without entities")
        << QByteArray("<!DOCTYPE Commands><Commands/>")
        << QStringLiteral("A document type declaration is not accepted.");
    QTest::newRow("rubbish behind the end")
        << QByteArray("<Commands/>rubbish") << QStringLiteral("Extra content at end of document.");
    QTest::newRow("no command") << QByteArray("<Commands/>")
                                << QStringLiteral("The document holds no command for this service.");
    QTest::newRow("an unknown command")
        << QByteArray("<Commands><Forecast/></Commands>")
        << QStringLiteral("in XmlCmdRoot (line 1, column 21): Unexpected token \"StartElement\": Forecast.");
    QTest::newRow("a reference that is too short")
        << QByteArray("<Commands><Administrative><QueryVersion/><Reference/></Administrative></Commands>")
        << QStringLiteral("+++ in XmlCmdRoot Begin:\n+++ in XmlCmdAdmin Begin:\n+++ in XmlreferenceType Begin:\nString "
                          "too short (min. 1)\n--- in XmlreferenceType End\n--- in XmlCmdAdmin End\n--- in XmlCmdRoot "
                          "End");
}

void ConversationTest::aFaultSaysWhatIsWrong()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, message);
    RunningService service;
    RawClient client(service);
    QVERIFY(client.send(framed(document)));
    const QByteArray response = client.receive();
    QCOMPARE(errorMessage(response), message);
    XmlRespRoot root;
    read(root, response);
    QVERIFY(root.isFinal());
    QVERIFY(!root.hasOrderDef());
    QCOMPARE(root.autoResp()->reference().reference(), QStringLiteral("unknown"));
}

void ConversationTest::everyCommandOfADocumentIsAnswered()
{
    RunningService service;
    RawClient client(service);
    QVERIFY(client.send(framed(sample("good/several-commands.xml"))));
    QStringList answers;
    for (int i = 0; i < 5; ++i) {
        XmlRespRoot root;
        read(root, client.receive()); // the grid result's error does not matter here
        QVERIFY(root.hasAutoResp());
        answers += root.autoResp()->reference().reference()
            + (root.isFinal() ? QStringLiteral(" final") : QStringLiteral(" estimate"));
    }
    QCOMPARE(answers,
             (QStringList{QStringLiteral("several-1 final"), QStringLiteral("several-2 estimate"),
                          QStringLiteral("several-2 final"), QStringLiteral("several-3 estimate"),
                          QStringLiteral("several-3 final")}));
    QTRY_COMPARE_WITH_TIMEOUT(service.log().count(QLatin1Char('\n')), 1, patienceMs);
}

void ConversationTest::everyCommandOfABadDocumentIsRefused()
{
    RunningService service;
    RawClient client(service);
    QVERIFY(client.send(
        framed("<C><Administrative><QueryVersion/><Reference>1</Reference></Administrative><Calculate>"
               "<InterlinkPlanning><FirstName>A</FirstName><SecondName/></InterlinkPlanning><Reference>2</Reference>"
               "</Calculate></C>")));
    for (const char* reference : {"1", "2"}) {
        const QByteArray response = client.receive();
        QVERIFY2(errorMessage(response).contains(QLatin1String("SecondName not set")), response.constData());
        QVERIFY(response.contains(QByteArray("<CommandReference>") + reference + '<'));
    }
}

void ConversationTest::documentsMayComeInPiecesOrTogether()
{
    RunningService service;
    RawClient client(service);
    const QByteArray query = framed(sample("good/query-version.xml"));
    for (int i = 0; i < query.size(); i += 7)
        QVERIFY(client.send(query.mid(i, 7)));
    QVERIFY(client.receive().contains("<ArvVersion>"));

    QVERIFY(client.send(query + query + query.left(20)));
    QVERIFY(client.receive().contains("<ArvVersion>"));
    QVERIFY(client.receive().contains("<ArvVersion>"));
    QVERIFY(client.send(query.mid(20)));
    QVERIFY(client.receive().contains("<ArvVersion>"));
}

void ConversationTest::rubbishDoesNotHarm()
{
    RunningService service;
    RawClient client(service);
    QByteArray rubbish;
    for (int i = 0; i < 100000; ++i)
        rubbish += static_cast<char>(1 + (i * 7919) % 255);
    QVERIFY(client.send(framed(rubbish)));
    QVERIFY(errorMessage(client.receive()) != QStringLiteral("(no valid fault)"));
    // The same client may do better later.
    QVERIFY(client.send(framed(sample("good/query-version.xml"))));
    QVERIFY(client.receive().contains("<ArvVersion>"));
    QVERIFY(service.serves());
    QVERIFY(service.isRunning());
}

void ConversationTest::aTooLongDocumentIsRefused()
{
    constexpr int limit = 16 * 1024 * 1024;
    RunningService service;
    RawClient client(service);
    const QByteArray head = "<Commands>";
    const QByteArray tail = "<Administrative><QueryVersion/><Reference>1</Reference></Administrative></Commands>";
    const QByteArray longest = head + QByteArray(limit - head.size() - tail.size(), ' ') + tail;
    QVERIFY(client.send(framed(longest)));
    QVERIFY(client.receive().contains("<ArvVersion>"));
    QVERIFY(client.send(framed(longest + ' ')));
    QCOMPARE(errorMessage(client.receive()), QStringLiteral("The document is too long."));
    QVERIFY(client.send(framed(sample("good/query-version.xml"))));
    QVERIFY(client.receive().contains("<ArvVersion>"));
}

void ConversationTest::hangingUpHalfWayDoesNotHarm()
{
    RunningService service;
    const QByteArray order = framed(sample("good/calculate-cep.xml"));
    for (int i = 0; i < 5; ++i) {
        RawClient client(service);
        QVERIFY(client.send(order.left(order.size() / 2)));
    }
    {
        // This one hangs up before its answers come.
        RawClient client(service);
        QVERIFY(client.send(order));
    }
    QVERIFY(service.serves());
    QVERIFY(service.isRunning());
}

void ConversationTest::aSilentClientHoldsNobodyUp()
{
    RunningService service;
    RawClient silent(service);
    RawClient slow(service);
    const QByteArray query = framed(sample("good/query-version.xml"));
    QVERIFY(slow.send(query.left(50)));

    QVERIFY(service.serves());
    QVERIFY(service.serves());

    QVERIFY(slow.send(query.mid(50)));
    QVERIFY(slow.receive().contains("<ArvVersion>"));
    QVERIFY(silent.send(query));
    QVERIFY(silent.receive().contains("<ArvVersion>"));
}

void ConversationTest::aSilentClientIsSentAwayAtLast()
{
    RunningService service({QStringLiteral("--idle"), QStringLiteral("1")});
    RawClient silent(service);
    QVERIFY(silent.isSentAway());
    QVERIFY(service.log().contains(QLatin1String("silent for too long")));
    QVERIFY(service.serves());
}

void ConversationTest::aClientMaySendMuchBeforeItReads()
{
    constexpr int count = 10000;
    RunningService service;
    RawClient client(service);
    const QByteArray query = framed(sample("good/query-version.xml"));
    QVERIFY(client.send(query.repeated(count)));
    for (int i = 0; i < count; ++i)
        QVERIFY(client.receive().contains("<ArvVersion>"));
}

void ConversationTest::severalAtOnceAreServed()
{
    RunningService service;
    std::vector<std::unique_ptr<QProcess>> clients;
    for (int i = 0; i < 8; ++i) {
        clients.push_back(std::make_unique<QProcess>());
        clients.back()->start(QStringLiteral(CLIENT_PROGRAM),
                              service.clientArguments({QStringLiteral("interlink"), QStringLiteral("Relay %1").arg(i),
                                                       QStringLiteral("Tower %1").arg(i), QStringLiteral("--reference"),
                                                       QStringLiteral("r%1").arg(i)}));
    }
    for (int i = 0; i < 8; ++i) {
        const Run run = finished(*clients[static_cast<std::size_t>(i)]);
        QCOMPARE(run.status, 0);
        const QString result = QStringLiteral("[reference r%1] Result: interlink from Relay %1 to Tower %1\n").arg(i);
        QVERIFY2(run.output.contains(result), qPrintable(run.output));
    }
}

void ConversationTest::endsOnRequest()
{
    RunningService service;
    RawClient silent(service);
    QVERIFY(service.serves());
    service.process().terminate();
    QCOMPARE(finished(service.process()).status, 0);
}

void ConversationTest::endsAfterSomeDocuments()
{
    RunningService service({QStringLiteral("--quit-after"), QStringLiteral("2")});
    QVERIFY(service.serves());
    QVERIFY(service.isRunning());
    QVERIFY(service.serves());
    QCOMPARE(finished(service.process()).status, 0);
}

void ConversationTest::clientWithoutService()
{
    quint16 port = 0;
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        port = server.serverPort();
    }
    const Run run =
        runProgram(CLIENT_PROGRAM, {QStringLiteral("--port"), QString::number(port), QStringLiteral("version")});
    QVERIFY2(run.errors.contains(QLatin1String("Cannot reach the service")), qPrintable(run.errors));
    QCOMPARE(run.status, 2);
}

void ConversationTest::clientAgainstBadServices_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");
    const int patience = patienceMs / 1000;
    QTest::newRow("hangs up") << QByteArray() << patience << QStringLiteral("No answer: ");
    QTest::newRow("hangs up half way") << QByteArray("<Response") << patience << QStringLiteral("No answer: ");
    QTest::newRow("sends rubbish") << framed("rubbish") << patience
                                   << QStringLiteral("The response cannot be read (line 1, column 1):\n  Start tag "
                                                     "expected.");
    QTest::newRow("sends an empty response")
        << framed("<Response type=\"automatic\" final=\"true\" timestamp=\"2024-03-05T14:07:12\"/>") << patience
        << QStringLiteral("Type automatic but no content");
    QTest::newRow("answers another order") << framed(sample("good/response-version.xml")) << patience
                                           << QStringLiteral("The service answered another order: ARV240305140709042");
    QTest::newRow("sends too much") << framed(QByteArray(16 * 1024 * 1024 + 1, 'x')) << patience
                                    << QStringLiteral("a document that is too long");
    QTest::newRow("stays silent") << QByteArray("silent") << 1 << QStringLiteral("No answer: ");
}

void ConversationTest::clientAgainstBadServices()
{
    QFETCH(QByteArray, answer);
    QFETCH(int, seconds);
    QFETCH(QString, text);
    const bool hangsUp = answer.isEmpty() || answer == "<Response";
    const bool isSilent = answer == "silent";

    QTcpServer server;
    server.setProxy(QNetworkProxy::NoProxy);
    QVERIFY(server.listen(QHostAddress::LocalHost));
    connect(&server, &QTcpServer::newConnection, &server, [&] {
        QTcpSocket* socket = server.nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, socket, [=] {
            socket->readAll();
            if (!isSilent)
                socket->write(answer);
            if (hangsUp)
                socket->disconnectFromHost();
        });
    });
    QProcess client;
    client.start(QStringLiteral(CLIENT_PROGRAM),
                 {QStringLiteral("--port"), QString::number(server.serverPort()), QStringLiteral("--timeout"),
                  QString::number(seconds), QStringLiteral("version")});
    QVERIFY(client.waitForStarted(patienceMs));
    QTRY_COMPARE_WITH_TIMEOUT(client.state(), QProcess::NotRunning, patienceMs);

    const Run run = finished(client);
    QVERIFY2((run.output + run.errors).contains(text), qPrintable(run.output + run.errors));
    QCOMPARE(run.status, 2);
}

QTEST_GUILESS_MAIN(ConversationTest)
#include "conversation_test.moc"
