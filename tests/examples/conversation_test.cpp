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
        const int end = int(m_received.indexOf('\0'));
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

/// A service that answers everything with the same bytes, and keeps what it was sent.
class FakeService {
public:
    explicit FakeService(const QByteArray& answer, bool hangsUp = false)
    {
        m_server.setProxy(QNetworkProxy::NoProxy);
        m_server.listen(QHostAddress::LocalHost);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this, answer, hangsUp] {
            QTcpSocket* socket = m_server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket, answer, hangsUp] {
                m_received += socket->readAll();
                if (!m_received.endsWith('\0'))
                    return;
                socket->write(answer);
                if (hangsUp)
                    socket->disconnectFromHost();
            });
        });
    }

    const QByteArray& received() const { return m_received; }

    /// Runs a client against this service.
    Run client(const QStringList& arguments, int seconds = patienceMs / 1000)
    {
        QProcess process;
        process.start(QStringLiteral(CLIENT_PROGRAM),
                      QStringList{QStringLiteral("--port"), QString::number(m_server.serverPort()),
                                  QStringLiteral("--timeout"), QString::number(seconds)}
                          + arguments);
        // Unlike QProcess's own waiting, this lets the server work meanwhile.
        if (process.waitForStarted(patienceMs)
            && !QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, patienceMs))
            process.kill();
        return finished(process);
    }

private:
    QTcpServer m_server;
    QByteArray m_received;
};

/// A command document in a file, for the client to read.
class CommandFile {
public:
    explicit CommandFile(const QByteArray& commands)
    {
        QFile file(path());
        if (file.open(QIODevice::WriteOnly))
            file.write("<Commands>" + commands + "</Commands>");
    }
    QString path() const { return m_folder.filePath(QStringLiteral("commands.xml")); }

private:
    QTemporaryDir m_folder;
};

QByteArray createStation(const QByteArray& name, const QByteArray& reference)
{
    return "<Create><Station><Name>" + name
        + "</Name><Position version=\"1.0\"><Longitude>9.5</Longitude><Latitude>54.5</Latitude></Position></Station>"
          "<Reference>"
        + reference + "</Reference></Create>";
}

QByteArray deleteStation(const QByteArray& name, const QByteArray& reference)
{
    return "<Delete><Station>" + (name.isEmpty() ? QByteArray("<All/>") : "<Name>" + name + "</Name>")
        + "</Station><Reference>" + reference + "</Reference></Delete>";
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

    void aPlanIsSentAndChanged();
    void everyKindIsDeletedByNameAndAtOnce();
    void aSecondObjectOfANameReplacesTheFirst();
    void commandFilesGetAnEnvelopeAndAreElseSentAsTheyAre();
    void badCommandFilesAreNotSent_data();
    void badCommandFilesAreNotSent();
    void oneBadCommandRefusesTheWholeDocument();
    void createAndDeleteAreAnsweredOnce();
    void possibleSitesDeliverAStation();
    void aSiteIsProposedWhereThereIsNoStation_data();
    void aSiteIsProposedWhereThereIsNoStation();
    void deliveredObjects_data();
    void deliveredObjects();
    void aDeliveredObjectIsNoAnswer();
    void thePlanIsBounded();
    void faultsOfManyBadCommandsStayShort();

    void modelsAreSentAsTheServiceReadsThem_data();
    void modelsAreSentAsTheServiceReadsThem();
    void everyChoiceOfAModelCanBeSent_data();
    void everyChoiceOfAModelCanBeSent();
    void everyModelIsNamedInTheResult_data();
    void everyModelIsNamedInTheResult();
    void theModelChosenLastIsKept();
    void aModelIsAnsweredOnce();
    void aCompleteDocumentGoesThrough();

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
    QTest::newRow("interlink")
        << words("interlink|Relay South|Relay North|--reference|link 1")
        << words("[reference link 1] Result expected at 20|[reference link 1] Result: interlink "
                 "from Relay South to Relay North|is feasible, calculated with Free-space.\n|picture: result-1.png");
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
    QTest::newRow("model") << words("model|P.1546|TimePct=10|K-factor=1.333|--reference|m")
                           << words("Sending order ARV|[reference m] Done at 20");
    QTest::newRow("model without parameters") << words("model|OLOS") << words("[reference 1] Done at 20");
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
    row("good/complete.xml", 17, 0, "[reference complete-17] Grid result: best sensor coverage");
    row("good/model-free-space.xml", 1, 0, "[reference model-free-space] Done at 20");
    row("good/model-itm.xml", 1, 0, "[reference model-itm] Done at 20");
    row("good/model-okumura-hata.xml", 1, 0, "[reference model-okumura-hata] Done at 20");
    row("good/model-olos.xml", 1, 0, "[reference model-olos] Done at 20");
    row("good/model-olos-k-factor-twice.xml", 1, 0, "[reference model-1] Done at 20");
    row("good/model-p1546.xml", 1, 0, "[reference model-p1546] Done at 20");
    row("good/model-p452.xml", 1, 0, "[reference model-p452] Done at 20");
    row("good/model-p526.xml", 1, 0, "[reference model-p526] Done at 20");
    row("good/model-p533.xml", 1, 0, "[reference model-p533] Done at 20");
    row("good/model-parameters-of-another.xml", 1, 0, "[reference model-1] Done at 20");
    row("good/model-selection-only.xml", 1, 0, "[reference model-1] Done at 20");
    row("good/plan.xml", 35, 0, "[reference device-12] Done at 20");
    row("good/change-plan.xml", 4, 0, "[reference change-3] Done at 20");
    row("good/delete-all-of-each-kind.xml", 8, 0, "[reference all-8] Done at 20");
    row("good/delete-one-of-each-kind.xml", 8, 1,
        "[reference gone-8] Fault:\n  The plan holds no object of this kind with the name \"Active loop\".\n");
    row("good/without-envelope.xml", 1, 0, "[reference cep-coast-1] Grid result: circular error probable");
    row("bad/calculate-without-reference.xml", 1, 1,
        "[reference unknown] Fault:\n  in XmlCmdCalc (line 19, column 14): Unexpected token \"EndElement\".\n");
    row("bad/sites-too-many-random-emitters.xml", 1, 1, "  RandomEmitters/Number out of bounds\n");
    row("bad/envelope-with-short-id.xml", 1, 1, "[reference cep-coast-1] Fault:\n  +++ in XmlCmdRoot Begin:\n");
    row("bad/create-station-without-position.xml", 1, 1, "Unexpected token \"EndElement\": Station.\n");
    row("bad/create-device-negative-noise.xml", 1, 1, "Illegal decibel.\n");
    row("bad/create-emitter-frequency-not-a-number.xml", 1, 1,
        "[reference 1] Fault:\n  Some value is not acceptable.\n");
    row("bad/delete-name-empty.xml", 1, 1, "Object name too short (min. 1).\n");
    row("bad/model-okumura-hata-as-written.xml", 1, 1,
        "[reference unknown] Fault:\n  in XmlPropModelHataType (line 10, column 25): Unexpected token "
        "\"StartElement\": "
        "PropertiesOkumura.\n");
    row("bad/model-p452-pressure-too-low.xml", 1, 1,
        "[reference model-1] Fault:\n  +++ in XmlCmdRoot Begin:\n  +++ in XmlPropModelType Begin:\n  +++ in "
        "XmlPropModelP542Type Begin:\n  Pressure_hPa out of bounds\n");
    row("bad/model-twice.xml", 1, 1, "[reference unknown] Fault:\n  in XmlCmdRoot (line 11, column 20): ");
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
    row("no model", "model", "There is no model \"\". The models: Free-space, OLOS, ITM, P.452, ");
    row("an unknown model", "model|p.1546",
        "There is no model \"p.1546\". The models: Free-space, OLOS, ITM, P.452, P.1546, P.526, P.533, Okumura-Hata\n");
    row("an unknown parameter of a model", "model|P.533|K-factor=1|Sunspots=5",
        "P.533 has no parameter \"Sunspots\". Its parameters: K-factor, SmoothedSunSpotNumber\n");
    row("a parameter of another model", "model|Free-space|MaxRange_km=5",
        "Free-space has no parameter \"MaxRange_km\". Its parameters: K-factor\n");
    row("a name that P.526 is written with", "model|P.526|Polarisation=Vertical",
        "P.526 has no parameter \"Polarisation\". Its parameters: K-factor, Pol, Surface, AssumeSmoothEarth, "
        "IncludeSubPathDiffractionLoss\n");
    row("a parameter twice", "model|OLOS|K-factor=1|K-factor=2", "K-factor is given twice.\n");
    row("a parameter without a value", "model|OLOS|K-factor", "K-factor cannot be \"\", only a number\n");
    row("a word for a number", "model|P.1546|K-factor=4/3", "K-factor cannot be \"4/3\", only a number\n");
    row("not a number, which is in no range", "model|ITM|RRI=nan", "RRI cannot be \"nan\", only a number\n");
    row("infinity", "model|ITM|RRI=inf", "RRI cannot be \"inf\", only a number\n");
    row("a fraction for a whole number", "model|P.452|SurfaceRefract=329.5",
        "SurfaceRefract cannot be \"329.5\", only a whole number\n");
    row("an unknown choice", "model|P.526|Pol=H", "Pol cannot be \"H\", only Horizontal | Vertical\n");
    row("an undefined choice", "model|ITM|Pol=UNDEFINED", "Pol cannot be \"UNDEFINED\", only H | V\n");
    row("a choice in lower case", "model|Okumura-Hata|AreaType=urban",
        "AreaType cannot be \"urban\", only Urban | Suburban | Open rural\n");
    row("a number too high", "model|P.1546|K-factor=5.0001",
        "+++ in XmlPropModelP1546Type Begin:\nK-factor out of bounds\n");
    row("a number too low, of a set that the library does not write", "model|P.526|K-factor=0.09|Pol=Vertical",
        "+++ in XmlPropModelP526Type Begin:\nK-factor out of bounds\n");
    row("a whole number too low", "model|P.452|Temp_C=-61", "Temp_C out of bounds\n");
    row("a model without a reference", "model|P.452|--reference|", "String too short (min. 1)\n");
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
    QVERIFY(QTest::qWaitFor([&] { return service.log().count(QLatin1Char('\n')) == 1; }, patienceMs));
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

void ConversationTest::aPlanIsSentAndChanged()
{
    RunningService service;
    const QString option = QStringLiteral("--commands");
    const Run plan = service.client({option, samplePath(QStringLiteral("good/plan.xml"))});
    QCOMPARE(plan.errors, QString());
    QCOMPARE(plan.output.count(QLatin1String("] Done at 20")), 35);
    QCOMPARE(plan.status, 0);

    const Run sites = service.client({QStringLiteral("findsites")});
    QVERIFY2(sites.output.contains(QLatin1String("Delivered by the service on its own: station Station Cliff\n"
                                                 "  longitude 10.270000, latitude 54.410000\n")),
             qPrintable(sites.output));
    QVERIFY2(sites.output.contains(QLatin1String("Grid result: possible sites")), qPrintable(sites.output));
    QCOMPARE(sites.status, 0);

    const QString removal = samplePath(QStringLiteral("good/delete-one-of-each-kind.xml"));
    const Run removed = service.client({option, removal});
    QCOMPARE(removed.output.count(QLatin1String("] Done at 20")), 8);
    QCOMPARE(removed.status, 0);
    const Run again = service.client({option, removal});
    QCOMPARE(again.output.count(QLatin1String("] Fault:")), 8);
    QCOMPARE(again.status, 1);

    const Run others = service.client({QStringLiteral("findsites")});
    QVERIFY2(others.output.contains(QLatin1String("station Station Lock\n")), qPrintable(others.output));
}

void ConversationTest::everyKindIsDeletedByNameAndAtOnce()
{
    RunningService service;
    const QString option = QStringLiteral("--commands");
    QCOMPARE(service.client({option, samplePath(QStringLiteral("good/plan.xml"))}).status, 0);
    QCOMPARE(service.client({option, samplePath(QStringLiteral("good/delete-all-of-each-kind.xml"))}).status, 0);
    // Nothing is left, of no kind; to delete all of nothing is no fault.
    const Run byName = service.client({option, samplePath(QStringLiteral("good/delete-one-of-each-kind.xml"))});
    QCOMPARE(byName.output.count(QLatin1String("] Fault:")), 8);
    QCOMPARE(service.client({option, samplePath(QStringLiteral("good/delete-all-of-each-kind.xml"))}).status, 0);
}

void ConversationTest::aSecondObjectOfANameReplacesTheFirst()
{
    RunningService service;
    const CommandFile first(createStation("Station Moor", "1"));
    QCOMPARE(service.client({QStringLiteral("--commands"), first.path()}).status, 0);
    QCOMPARE(service.client({QStringLiteral("--commands"), samplePath(QStringLiteral("good/change-plan.xml"))}).status,
             0);
    const Run sites = service.client({QStringLiteral("findsites")});
    QVERIFY2(sites.output.contains(QLatin1String("station Station Moor\n  longitude 9.664000, latitude 54.481000\n")),
             qPrintable(sites.output));
    const CommandFile removal(deleteStation("Station Moor", "1") + deleteStation("Station Moor", "2"));
    const Run removed = service.client({QStringLiteral("--commands"), removal.path()});
    QVERIFY2(removed.output.contains(QLatin1String("[reference 1] Done")), qPrintable(removed.output));
    QVERIFY2(removed.output.contains(QLatin1String("[reference 2] Fault")), qPrintable(removed.output));
}

void ConversationTest::commandFilesGetAnEnvelopeAndAreElseSentAsTheyAre()
{
    FakeService service(framed("rubbish"));
    const Run run = service.client({QStringLiteral("--commands"), samplePath(QStringLiteral("good/plan.xml"))});
    QCOMPARE(run.status, 2);

    // The sample's commands use nothing that XML could say in two ways, so their bytes are the same.
    const QByteArray file = sample("good/plan.xml");
    const QByteArray commands = file.mid(file.indexOf("<!-- A plan")).trimmed();
    const QByteArray sent = service.received();
    QVERIFY(commands.size() > 10000);
    QVERIFY(sent.contains(commands));
    QCOMPARE(sent.count("<ORDER_DEF>"), 1);
    QVERIFY(!sent.contains("ARV240305140709042"));
    QVERIFY(sent.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?><Commands><ORDER_DEF><ORDER_ID>ARV"));
}

void ConversationTest::badCommandFilesAreNotSent_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* file, int status, const char* text) {
        QTest::newRow(file) << QString::fromLatin1(file) << status << QString::fromLatin1(text);
    };
    row("bad/create-station-without-position.xml", 1,
        "in XmlStationType (line 10, column 14): Unexpected token \"EndElement\": Station.\n");
    row("bad/create-receiver-height-in-feet.xml", 1, "Illegal unit (must be \"m\").\n");
    row("bad/create-emitter-frequency-not-a-number.xml", 1, "Some value is not acceptable.\n");
    row("bad/delete-name-empty.xml", 1, "Object name too short (min. 1).\n");
    row("bad/model-p526-as-written.xml", 1,
        "in XmlPropModelP526Type (line 11, column 20): Unexpected token \"StartElement\": "
        "Polarisation.\n");
    row("bad/model-p533-sunspots-1000.xml", 1, "SmoothedSunSpotNumber out of bounds\n");
    row("good/response-fault.xml", 1, "Unexpected token \"StartElement\": Automatic.\n");
    row("unreadable/another-protocol.xml", 1, "in XmlCmdRoot ");
    row("unreadable/empty.xml", 1, "Premature end of document.\n");
    row("unreadable/document-type-declaration.xml", 1, "A document type declaration is not accepted.\n");
    row("no-such-file.xml", 2, "Cannot read ");
}

void ConversationTest::badCommandFilesAreNotSent()
{
    QFETCH(QString, file);
    QFETCH(int, status);
    QFETCH(QString, text);
    RunningService service;
    const Run run = service.client({QStringLiteral("--commands"), samplePath(file)});
    QVERIFY2(run.errors.contains(text), qPrintable(run.errors));
    QCOMPARE(run.status, status);
    QCOMPARE(service.log(), QString());
}

void ConversationTest::oneBadCommandRefusesTheWholeDocument()
{
    RunningService service;
    RawClient client(service);
    QVERIFY(client.send(framed("<C>" + createStation("Station Moor", "1") + deleteStation("Station Moor", "2")
                               + "<Delete><Station><Name/></Station><Reference>3</Reference></Delete></C>")));
    for (const char* reference : {"1", "2", "3"}) {
        const QByteArray response = client.receive();
        QCOMPARE(errorMessage(response),
                 QStringLiteral("+++ in XmlCmdDelete Begin:\n+++ in XmlNameAllType Begin:\n+++ in XmlObjNameType "
                                "Begin:\nObject name too short (min. 1).\n--- in XmlObjNameType End\n--- in "
                                "XmlNameAllType End\n--- in XmlCmdDelete End"));
        QVERIFY(response.contains(QByteArray("<CommandReference>") + reference + '<'));
    }
    // The station was not created.
    QVERIFY(client.send(framed("<C>" + deleteStation("Station Moor", "4") + "</C>")));
    QCOMPARE(errorMessage(client.receive()),
             QStringLiteral("The plan holds no object of this kind with the name \"Station Moor\"."));
}

void ConversationTest::createAndDeleteAreAnsweredOnce()
{
    RunningService service;
    RawClient client(service);
    QVERIFY(client.send(framed("<C><ORDER_DEF><ORDER_ID>ARV240305140709042</ORDER_ID><ORDER_SENDER>x</ORDER_SENDER>"
                               "</ORDER_DEF>"
                               + createStation("Station Moor", "first") + deleteStation("Station Moor", "second")
                               + deleteStation("", "third") + "</C>")));
    for (const char* reference : {"first", "second", "third"}) {
        XmlRespRoot root;
        QCOMPARE(read(root, client.receive()), QString());
        QVERIFY(root.isValid());
        QVERIFY(root.isFinal());
        QCOMPARE(root.orderDef()->orderId(), QStringLiteral("ARV240305140709042"));
        QCOMPARE(root.autoResp()->status(), XmlAutoRespType::StatusAck);
        QCOMPARE(root.autoResp()->reference().reference(), QString::fromLatin1(reference));
        QVERIFY(qAbs(root.autoResp()->estimatedTime().secsTo(QDateTime::currentDateTime())) < patienceMs / 1000);
    }
    QVERIFY(QTest::qWaitFor(
        [&] {
            return service.log().contains(QLatin1String(
                "answered with: created (reference first), deleted (reference second), deleted (reference third)\n"));
        },
        patienceMs));
}

void ConversationTest::possibleSitesDeliverAStation()
{
    RunningService service;
    RawClient client(service);
    QVERIFY(client.send(framed(sample("good/plan.xml"))));
    for (int i = 0; i < 35; ++i)
        QVERIFY(client.receive().contains("<EstimatedTime>"));
    QVERIFY(client.send(framed(sample("good/calculate-possible-sites.xml"))));

    const QByteArray first = client.receive();
    QVERIFY2(first.contains("<Response type=\"automatic\" final=\"false\""), first.constData());
    const QByteArray second = client.receive();
    QVERIFY2(second.contains("<Response type=\"interactive\" final=\"true\""), second.constData());
    QVERIFY2(second.contains("<ORDER_ID>ARV240305140709042</ORDER_ID>"), second.constData());
    // The station of the plan, but for its signal path and its interlink.
    QVERIFY2(second.contains("<Interactive><Station><Station><Name>Station Cliff</Name><Position version=\"1.0\">"
                             "<Longitude>10.270000</Longitude><Latitude>54.410000</Latitude></Position>"
                             "<RxParameter version=\"1.0\"><AntennaHeight version=\"1.0\" unit=\"m\">18"
                             "</AntennaHeight><RxThreshold version=\"1.0\" unit=\"dBm\">-99.000000000000000"
                             "</RxThreshold></RxParameter><DFprecision version=\"1.0\" unit=\"\xc2\xb0\">1"
                             "</DFprecision></Station></Station></Interactive></Response>"),
             second.constData());
    const QByteArray third = client.receive();
    QVERIFY2(third.contains("<Response type=\"automatic\" final=\"true\""), third.constData());
    QVERIFY2(third.contains("<GridResult type="), third.constData());
}

void ConversationTest::aSiteIsProposedWhereThereIsNoStation_data()
{
    QTest::addColumn<QStringList>("areas");
    QTest::addColumn<QString>("site");
    const auto row = [](const char* name, const char* areas, const char* site) {
        QTest::newRow(name) << QString::fromLatin1(areas).split(QLatin1Char('|'), Qt::SkipEmptyParts)
                            << QString::fromLatin1(site);
    };
    row("in the middle of a rectangle", "Ridge South", "longitude 9.545000, latitude 54.385000\n");
    row("at the first corner of a polygon", "Harbour Hills", "longitude 9.980000, latitude 54.360000\n");
    row("in the first area named", "Inland Plateau|Ridge South", "longitude 9.200000, latitude 54.200000\n");
    row("in the plan's first area when all are meant", "", "longitude 9.980000, latitude 54.360000\n");
    row("nowhere when the area is not known", "Elsewhere|Ridge South", "");
}

void ConversationTest::aSiteIsProposedWhereThereIsNoStation()
{
    QFETCH(QStringList, areas);
    QFETCH(QString, site);
    RunningService service;
    QCOMPARE(service.client({QStringLiteral("--commands"), samplePath(QStringLiteral("good/plan.xml"))}).status, 0);
    const CommandFile removal(deleteStation("", "1"));
    QCOMPARE(service.client({QStringLiteral("--commands"), removal.path()}).status, 0);

    const Run run = service.client(QStringList(QStringLiteral("findsites")) + areas);

    QCOMPARE(run.status, 0);
    const QString delivered = QStringLiteral("Delivered by the service on its own: station Proposed station\n  ");
    if (site.isEmpty())
        QVERIFY2(!run.output.contains(QLatin1String("Delivered")), qPrintable(run.output));
    else
        QVERIFY2(run.output.contains(delivered + site), qPrintable(run.output));
}

void ConversationTest::deliveredObjects_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* file, int status, const char* text) {
        QTest::newRow(file) << QString::fromLatin1(file) << status << QString::fromLatin1(text);
    };
    row("interactive-results/station.xml", 0, "own: station Station Moor\n  longitude 9.660000, latitude 54.480000\n");
    row("interactive-results/emitter.xml", 0, "own: emitter Beacon 4\n  longitude 10.210000, latitude 54.430000\n");
    row("interactive-results/receiver.xml", 0, "own: receiver RX Quarry\n  longitude 9.580000, latitude 54.380000\n");
    row("interactive-results/direction-finder.xml", 0,
        "own: direction finder DF Headland\n  longitude 10.310000, latitude 54.400000\n");
    row("good/response-interactive-interlink.xml", 0, "own: interlink from Station Cliff to Tower Harbour\n");
    row("grid-results/interactive-cep.xml", 0, "Grid result: circular error probable\n");
    row("interactive-results/station-beyond-the-pole.xml", 2, "not acceptable:\n  +++ in XmlRespRoot Begin:\n");
    row("bad/response-interactive-station-without-position.xml", 2,
        "cannot be read:\n  in XmlStationType (line 11, column 16): Unexpected token "
        "\"EndElement\": Station.\n");
    row("bad/response-interactive-station-with-power.xml", 2, "Unexpected element \"Power\".\n");
    row("bad/response-interactive-marked-automatic.xml", 2, "Type automatic but no content\n");
}

void ConversationTest::deliveredObjects()
{
    QFETCH(QString, file);
    QFETCH(int, status);
    QFETCH(QString, text);
    FakeService service(framed(sample(qPrintable(file))) + framed(sample("good/response-version.xml")));

    const Run run = service.client({QStringLiteral("--raw"), samplePath(QStringLiteral("good/query-version.xml"))});

    QVERIFY2(run.output.contains(text), qPrintable(run.output));
    QCOMPARE(run.output.contains(QLatin1String("Version of the service: 3.2")), status == 0);
    QCOMPARE(run.status, status);
}

void ConversationTest::aDeliveredObjectIsNoAnswer()
{
    FakeService service(framed(sample("interactive-results/station.xml")), true);
    const Run run = service.client({QStringLiteral("--raw"), samplePath(QStringLiteral("good/query-version.xml"))});
    QVERIFY2(run.output.contains(QLatin1String("station Station Moor\n")), qPrintable(run.output));
    QVERIFY2(run.errors.contains(QLatin1String("No answer: ")), qPrintable(run.errors));
    QCOMPARE(run.status, 2);
}

void ConversationTest::thePlanIsBounded()
{
    constexpr int limit = 10000;
    RunningService service;
    RawClient client(service);
    QByteArray commands;
    for (int i = 0; i <= limit; ++i)
        commands += createStation("S" + QByteArray::number(i), QByteArray::number(i));
    QVERIFY(client.send(framed("<C>" + commands + createStation("S0", "again") + "</C>")));
    for (int i = 0; i < limit; ++i)
        QVERIFY(client.receive().contains("<EstimatedTime>"));
    QCOMPARE(errorMessage(client.receive()), QStringLiteral("The plan holds too many objects of this kind."));
    QVERIFY(client.receive().contains("<EstimatedTime>"));
}

void ConversationTest::faultsOfManyBadCommandsStayShort()
{
    constexpr int count = 1000;
    RunningService service;
    RawClient client(service);
    QVERIFY(client.send(framed("<C>" + createStation("", "1").repeated(count) + "</C>")));
    for (int i = 0; i < count; ++i) {
        const QString message = errorMessage(client.receive());
        QVERIFY(message.startsWith(QLatin1String("+++ in XmlCmdRoot Begin:\n")));
        QCOMPARE(message.size(), 4000);
    }
}

void ConversationTest::modelsAreSentAsTheServiceReadsThem_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("command");
    const auto row = [](const char* words, const char* content) {
        const QStringList list = QString::fromLatin1(words).split(QLatin1Char('|'));
        QTest::newRow(words) << list
                             << QByteArray("<PropagationModel><SelectModel>") + list.first().toLatin1()
                + "</SelectModel>" + content + "<Reference>m</Reference></PropagationModel>";
    };
    row("Free-space", "");
    row("Free-space|K-factor=1.3333", "<PropertiesFreespace><K-factor>1.3333</K-factor></PropertiesFreespace>");
    row("OLOS|MaxRange_km=42.5|K-factor=1",
        "<PropertiesOLOS><K-factor>1.0000</K-factor><MaxRange_km>42.500</MaxRange_km></PropertiesOLOS>");
    row("ITM|Time=90|Conf=50|Climate=Desert|Pol=V|RRI=-300",
        "<PropertiesITM><RRI>-300.0000</RRI><Pol>V</Pol><Climate>Desert</Climate><Conf>50.00</Conf><Time>90.00</Time>"
        "</PropertiesITM>");
    // With a surface, the text of which the library would choose by the climate.
    row("ITM|Time=90|Conf=50|Surface=Sea Water|Climate=Desert|Pol=V|RRI=301.5",
        "<PropertiesITM><RRI>301.5</RRI><Pol>V</Pol><Climate>Desert</Climate><Surface>Sea Water</Surface>"
        "<Conf>50</Conf><Time>90</Time></PropertiesITM>");
    row("P.452|DistRxCoast_km=40000|DistTxCoast_km=3|Inland_km=120.4|InlandCoastal_km=30|OverWater_km=12.5|Temp_C=-60|"
        "Pressure_hPa=1013|TimePct=0.01|SurfaceRefract=329|DeltaN=45.59",
        "<PropertiesP452><DeltaN>45.6</DeltaN><SurfaceRefract>329</SurfaceRefract><TimePct>0.01</TimePct>"
        "<Pressure_hPa>1013</Pressure_hPa><Temp_C>-60</Temp_C><OverWater_km>12.5</OverWater_km>"
        "<InlandCoastal_km>30.0</InlandCoastal_km><Inland_km>120.4</Inland_km><DistTxCoast_km>3.0</DistTxCoast_km>"
        "<DistRxCoast_km>40000.0</DistRxCoast_km></PropertiesP452>");
    row("P.1546|PathTypeForRxAnt=Undefined|PathTypeForBroadAnt=Land|PathCorrection=On|AvgAreaEnviro=Suburban|"
        "RxAntEnviro=Warm Sea|BoardAntGain=2.15|LocVar=50|PropPathType=Cold Sea|TimePct=10|K-factor=1.333",
        "<PropertiesP1546><K-factor>1.333</K-factor><TimePct>10.00</TimePct><PropPathType>Cold Sea</PropPathType>"
        "<LocVar>50.00</LocVar><BoardAntGain>2.150</BoardAntGain><RxAntEnviro>Warm Sea</RxAntEnviro>"
        "<AvgAreaEnviro>Suburban</AvgAreaEnviro><PathCorrection>On</PathCorrection>"
        "<PathTypeForBroadAnt>Land</PathTypeForBroadAnt><PathTypeForRxAnt>Undefined</PathTypeForRxAnt>"
        "</PropertiesP1546>");
    row("P.526|K-factor=2", "<PropertiesP526><K-factor>2.000</K-factor></PropertiesP526>");
    // With labels that the library would write as tags.
    row("P.526|IncludeSubPathDiffractionLoss=Off|AssumeSmoothEarth=On|Surface=Fresh Water|Pol=Vertical|K-factor=2",
        "<PropertiesP526><K-factor>2</K-factor><Pol>Vertical</Pol><Surface>Fresh Water</Surface>"
        "<AssumeSmoothEarth>On</AssumeSmoothEarth><IncludeSubPathDiffractionLoss>Off</IncludeSubPathDiffractionLoss>"
        "</PropertiesP526>");
    row("P.533|SmoothedSunSpotNumber=999.9|K-factor=1",
        "<PropertiesP533><K-factor>1.000</K-factor><SmoothedSunSpotNumber>999.9</SmoothedSunSpotNumber>"
        "</PropertiesP533>");
    row("Okumura-Hata|CitySize=Medium|AreaType=Open rural",
        "<PropertiesOkumura><AreaType>Open rural</AreaType><CitySize>Medium</CitySize></PropertiesOkumura>");
    // With a K-factor, which the library would write under the tag of the set.
    row("Okumura-Hata|CitySize=Medium|AreaType=Open rural|K-factor=1.3333",
        "<PropertiesOkumura><K-factor>1.3333</K-factor><AreaType>Open rural</AreaType><CitySize>Medium</CitySize>"
        "</PropertiesOkumura>");
}

void ConversationTest::modelsAreSentAsTheServiceReadsThem()
{
    QFETCH(QStringList, words);
    QFETCH(QByteArray, command);
    const QStringList arguments =
        QStringList{QStringLiteral("--reference"), QStringLiteral("m"), QStringLiteral("model")} + words;

    FakeService fake(framed("rubbish"));
    QCOMPARE(fake.client(arguments).status, 2);
    QVERIFY2(fake.received().contains("</ORDER_DEF>" + command + "</Commands>"), fake.received().constData());

    RunningService service;
    const Run run = service.client(arguments);
    QCOMPARE(run.errors, QString());
    QVERIFY2(run.output.contains(QLatin1String("[reference m] Done at 20")), qPrintable(run.output));
    QCOMPARE(run.status, 0);
}

void ConversationTest::everyChoiceOfAModelCanBeSent_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("parameter");
    QTest::addColumn<QString>("value");
    const auto rows = [](const char* model, const char* parameter, const char* values) {
        const QStringList list = QString::fromLatin1(values).split(QLatin1Char('|'));
        for (const QString& value : list)
            QTest::addRow("%s %s=%s", model, parameter, qPrintable(value))
                << QString::fromLatin1(model) << QString::fromLatin1(parameter) << value;
    };
    const char* paths = "Undefined|Land|Cold Sea|Warm Sea";
    const char* surroundings = "Undefined|Open|Suburban|Warm Sea";
    const char* grounds = "Average Ground|Poor Ground|Good Ground|Fresh Water|Sea Water";
    rows("ITM", "Pol", "H|V");
    rows("ITM", "Climate",
         "Equatorial|Continental Subtropical|Maritime Tropical|Desert|Continental Temperate|"
         "Maritime Temperate, Land|Maritime Temperate, Sea");
    rows("ITM", "Surface", grounds);
    rows("P.1546", "PropPathType", paths);
    rows("P.1546", "RxAntEnviro", surroundings);
    rows("P.1546", "AvgAreaEnviro", surroundings);
    rows("P.1546", "PathCorrection", "Off|On");
    rows("P.1546", "PathTypeForBroadAnt", paths);
    rows("P.1546", "PathTypeForRxAnt", paths);
    rows("P.526", "Pol", "Horizontal|Vertical");
    rows("P.526", "Surface", grounds);
    rows("P.526", "AssumeSmoothEarth", "Off|On");
    rows("P.526", "IncludeSubPathDiffractionLoss", "Off|On");
    rows("Okumura-Hata", "AreaType", "Urban|Suburban|Open rural");
    rows("Okumura-Hata", "CitySize", "Small|Medium|Large");
}

void ConversationTest::everyChoiceOfAModelCanBeSent()
{
    QFETCH(QString, model);
    QFETCH(QString, parameter);
    QFETCH(QString, value);
    FakeService service(framed("rubbish"));
    service.client({QStringLiteral("model"), model, parameter + QLatin1Char('=') + value});
    const QString element = QStringLiteral("<%1>%2</%1>").arg(parameter, value);
    QVERIFY2(service.received().contains(element.toUtf8()), service.received().constData());
}

void ConversationTest::everyModelIsNamedInTheResult_data()
{
    QTest::addColumn<QString>("model");
    for (const char* model : {"Free-space", "OLOS", "ITM", "P.452", "P.1546", "P.526", "P.533", "Okumura-Hata"})
        QTest::newRow(model) << QString::fromLatin1(model);
}

void ConversationTest::everyModelIsNamedInTheResult()
{
    QFETCH(QString, model);
    RunningService service;
    const CommandFile commands("<PropagationModel><SelectModel>" + model.toLatin1()
                               + "</SelectModel><Reference>m</Reference></PropagationModel><Calculate>"
                                 "<InterlinkPlanning><FirstName>A</FirstName><SecondName>B</SecondName>"
                                 "</InterlinkPlanning><Reference>l</Reference></Calculate>");
    const Run run = service.client({QStringLiteral("--commands"), commands.path()});
    QCOMPARE(run.errors, QString());
    QVERIFY2(run.output.contains(QStringLiteral("The link from A to B is feasible, calculated with %1.\n").arg(model)),
             qPrintable(run.output));
    QCOMPARE(run.status, 0);
    QVERIFY(QTest::qWaitFor(
        [&] {
            return service.log().contains(
                QStringLiteral("answered with: model %1 (reference m), interlink result with %1 (reference l)\n")
                    .arg(model));
        },
        patienceMs));
}

void ConversationTest::theModelChosenLastIsKept()
{
    RunningService service;
    const auto calculatesWith = [&service](const char* model) {
        const QString text = QStringLiteral("calculated with %1.\n").arg(QLatin1String(model));
        return service.client({QStringLiteral("interlink"), QStringLiteral("A"), QStringLiteral("B")})
            .output.contains(text);
    };
    const auto choose = [&service](const QByteArray& content, const QByteArray& behind = QByteArray()) {
        RawClient client(service);
        client.send(framed("<C><PropagationModel>" + content + "<Reference>m</Reference></PropagationModel>" + behind
                           + "</C>"));
        return client.receive();
    };

    QVERIFY(calculatesWith("Free-space"));
    QVERIFY(choose("<SelectModel>P.452</SelectModel>").contains("status=\"ack\""));
    QVERIFY(calculatesWith("P.452"));
    QVERIFY(choose("<SelectModel>ITM</SelectModel>").contains("status=\"ack\""));
    QVERIFY(calculatesWith("ITM"));
    // Neither of these is accepted.
    const QByteArray tooHigh = "<PropertiesOLOS><K-factor>6</K-factor></PropertiesOLOS>";
    QVERIFY(errorMessage(choose("<SelectModel>OLOS</SelectModel>" + tooHigh)).contains(QLatin1String("K-factor out")));
    QVERIFY(errorMessage(choose("<SelectModel>olos</SelectModel>")).contains(QLatin1String("Illegal enum value.")));
    const QByteArray badOrder = "<Calculate><InterlinkPlanning><FirstName>A</FirstName><SecondName/>"
                                "</InterlinkPlanning><Reference>l</Reference></Calculate>";
    QVERIFY(errorMessage(choose("<SelectModel>OLOS</SelectModel>", badOrder))
                .contains(QLatin1String("SecondName not set")));
    QVERIFY(calculatesWith("ITM"));
    // Parameters alone leave the model as it is.
    QVERIFY(choose("<PropertiesOLOS><K-factor>2</K-factor></PropertiesOLOS>").contains("status=\"ack\""));
    QVERIFY(calculatesWith("ITM"));
}

void ConversationTest::aModelIsAnsweredOnce()
{
    RunningService service;
    RawClient client(service);
    QVERIFY(client.send(framed(sample("good/model-p526.xml")) + framed(sample("good/query-version.xml"))));
    XmlRespRoot root;
    QCOMPARE(read(root, client.receive()), QString());
    QVERIFY(root.isValid());
    QVERIFY(root.isFinal());
    QCOMPARE(root.orderDef()->orderId(), QStringLiteral("ARV240305140709042"));
    QCOMPARE(root.autoResp()->status(), XmlAutoRespType::StatusAck);
    QCOMPARE(root.autoResp()->reference().reference(), QStringLiteral("model-p526"));
    QVERIFY(qAbs(root.autoResp()->estimatedTime().secsTo(QDateTime::currentDateTime())) < patienceMs / 1000);
    QVERIFY(client.receive().contains("<ArvVersion>"));
}

void ConversationTest::aCompleteDocumentGoesThrough()
{
    RunningService service;
    const Run run = service.client({QStringLiteral("--commands"), samplePath(QStringLiteral("good/complete.xml"))});

    QCOMPARE(run.errors, QString());
    QCOMPARE(run.status, 0);
    QVERIFY2(run.output.contains(QLatin1String(": 17 commands of ")), qPrintable(run.output));
    // One version, then seven creates, two deletes and the model, then six orders.
    QVERIFY(run.output.contains(QLatin1String("[reference complete-1] Version of the service")));
    for (int i = 2; i <= 11; ++i)
        QVERIFY2(run.output.contains(QStringLiteral("[reference complete-%1] Done at 20").arg(i)),
                 qPrintable(run.output));
    for (int i = 12; i <= 17; ++i)
        QVERIFY2(run.output.contains(QStringLiteral("[reference complete-%1] Result expected at 20").arg(i)),
                 qPrintable(run.output));
    QVERIFY(run.output.contains(QLatin1String("Delivered by the service on its own: station Station Cliff\n")));
    QCOMPARE(run.output.count(QLatin1String("] Grid result: ")), 5);
    QVERIFY2(run.output.contains(QLatin1String("[reference complete-16] Result: interlink from Relay Ridge South to "
                                               "Relay Harbour\n  The link from Relay Ridge South to Relay Harbour is "
                                               "feasible, calculated with P.526.\n")),
             qPrintable(run.output));
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
                                   << QStringLiteral("The response cannot be read:\n  at line 1, column 1: Start tag "
                                                     "expected.");
    QTest::newRow("sends an empty response")
        << framed("<Response type=\"automatic\" final=\"true\" timestamp=\"2024-03-05T14:07:12\"/>") << patience
        << QStringLiteral("Type automatic but no content");
    QTest::newRow("sends a grid result of incomplete parameters")
        << framed(
               "<Response type=\"automatic\" final=\"true\" timestamp=\"2024-03-05T14:07:09\"><Automatic "
               "status=\"ack\">"
               "<CommandReference>1</CommandReference><GridResult type=\"CEP\"><CEP><Parameter><UseDFs><All/></UseDFs>"
               "</Parameter></CEP></GridResult></Automatic></Response>")
        << patience << QStringLiteral("The response cannot be read:\n  in XmlCepType (line 1, column 208): ");
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

    FakeService service(answer == "silent" ? QByteArray() : answer, hangsUp);
    const Run run = service.client({QStringLiteral("version")}, seconds);

    QVERIFY2((run.output + run.errors).contains(text), qPrintable(run.output + run.errors));
    QCOMPARE(run.status, 2);
}

QTEST_GUILESS_MAIN(ConversationTest)
#include "conversation_test.moc"
