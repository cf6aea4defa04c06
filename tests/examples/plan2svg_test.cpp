#include "programs.h"

#include <QtCore/QXmlStreamReader>

namespace {

Run draw(const QStringList& arguments)
{
    return runProgram(PLAN2SVG_PROGRAM, arguments);
}

/// What a picture consists of: "tag.class: text" for each element with a class, in its order.
QStringList contentOf(const QString& picture)
{
    QStringList content;
    QXmlStreamReader reader(picture);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString name = reader.name().toString();
        const QString id = reader.attributes().value(QLatin1String("class")).toString();
        const QString text = name == QLatin1String("text") ? reader.readElementText() : QString();
        if (!id.isEmpty())
            content.append(name + QLatin1Char('.') + id + (text.isEmpty() ? QString() : QStringLiteral(": ") + text));
    }
    return reader.hasError() ? QStringList(reader.errorString()) : content;
}

int count(const QStringList& content, const char* what)
{
    return static_cast<int>(content.count(QString::fromLatin1(what)));
}

/// A file with a document, kept as long as the object lives.
class DocumentFile {
public:
    explicit DocumentFile(const QString& content)
        : m_path(m_folder.filePath(QStringLiteral("document.xml")))
    {
        QFile file(m_path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content.toUtf8()) < 0)
            qFatal("cannot write a file");
    }
    QString path() const { return m_path; }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

QString request(const QString& objects)
{
    return QStringLiteral("<Snapshot><ScreenshotPath>p</ScreenshotPath><DisplayedObjects>%1</DisplayedObjects>"
                          "</Snapshot>")
        .arg(objects);
}

QString receiver(const QString& name, double longitude, double latitude)
{
    return QStringLiteral("<Receiver><Name>%1</Name><Position><Longitude>%2</Longitude><Latitude>%3</Latitude>"
                          "</Position><RxParameter><AntennaHeight unit=\"m\">1</AntennaHeight>"
                          "<RxThreshold unit=\"dBm\">1</RxThreshold></RxParameter></Receiver>")
        .arg(name)
        .arg(longitude)
        .arg(latitude);
}

} // namespace

class Plan2svgTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void commandDocument();
    void snapshotRequest();
    void pictureOfTheReadme();
    void pictureToStandardOutput();
    void places();
    void scales_data();
    void scales();
    void namesAreTexts();
    void nothingToDraw_data();
    void nothingToDraw();
    void objectsWithoutPlace();
    void failures_data();
    void failures();
    void pictureThatCannotBeWritten();
    void usage();
};

void Plan2svgTest::commandDocument()
{
    const Run run = draw({samplePath(QStringLiteral("good/plan.xml"))});
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.status, 0);
    const QStringList content = contentOf(run.output);
    // One more of each stands in the legend.
    QCOMPARE(count(content, "polygon.deployment-area"), 3 + 1);
    QCOMPARE(count(content, "polygon.area-of-interest"), 3 + 1);
    QCOMPARE(count(content, "polygon.result-area"), 0);
    QCOMPARE(count(content, "path.emitter"), 4 + 1);
    QCOMPARE(count(content, "path.receiver"), 3 + 1);
    QCOMPARE(count(content, "path.direction-finder"), 3 + 1);
    QCOMPARE(count(content, "path.station"), 4 + 1);
    QCOMPARE(count(content, "text.name: Ridge South"), 1);
    QCOMPARE(count(content, "text.name: Coast Strip"), 1);
    QCOMPARE(count(content, "text.name: Beacon 4"), 1);
    QCOMPARE(count(content, "text.name: Tower Harbour"), 1);
    QCOMPARE(count(content, "text.legend: Station"), 1);
    QCOMPARE(count(content, "text.legend: Result"), 0);
    QCOMPARE(count(content, "text.heading: plan.xml"), 1);
    QCOMPARE(count(content, "text.scale: 10 km"), 1);
}

void Plan2svgTest::snapshotRequest()
{
    const Run run = draw({samplePath(QStringLiteral("good/snapshot.xml"))});
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.status, 0);
    const QStringList content = contentOf(run.output);
    QCOMPARE(count(content, "polygon.deployment-area"), 2 + 1);
    QCOMPARE(count(content, "polygon.area-of-interest"), 2 + 1);
    QCOMPARE(count(content, "polygon.result-area"), 4 + 1);
    QCOMPARE(count(content, "path.emitter"), 2 + 1);
    QCOMPARE(count(content, "path.receiver"), 2 + 1);
    QCOMPARE(count(content, "path.direction-finder"), 3 + 1);
    QCOMPARE(count(content, "path.station"), 0);
    for (const char* name : {"Sites on the ridge", "CEP of the strip", "Detection, valley", "Coverage, west"})
        QCOMPARE(count(content, qPrintable(QStringLiteral("text.name: ") + QLatin1String(name))), 1);
    QCOMPARE(count(content, "text.legend: Result"), 1);
    QCOMPARE(count(content, "text.legend: Station"), 0);
}

void Plan2svgTest::pictureOfTheReadme()
{
    // Made by: plan2svg examples/documents/good/snapshot.xml --title "Sensors on the ridge"
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("plan.svg"));
    const Run run = draw({samplePath(QStringLiteral("good/snapshot.xml")), QStringLiteral("--title"),
                          QStringLiteral("Sensors on the ridge"), QStringLiteral("-o"), path});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.output, QString());
    QFile drawn(path);
    QFile shown(QStringLiteral(PICTURES_FOLDER) + QStringLiteral("/plan.svg"));
    QVERIFY(drawn.open(QIODevice::ReadOnly) && shown.open(QIODevice::ReadOnly));
    QCOMPARE(drawn.readAll(), shown.readAll());
}

void Plan2svgTest::pictureToStandardOutput()
{
    const DocumentFile document(request(receiver(QStringLiteral("R"), 0, 0)));
    const Run run = draw({document.path()});
    QVERIFY(run.output.startsWith(QLatin1String("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                                "<svg xmlns=\"http://www.w3.org/2000/svg\" ")));
    QVERIFY(run.output.endsWith(QLatin1String("</svg>\n")));
}

void Plan2svgTest::places()
{
    // West is left, north is up; on the equator a degree is as long in both directions.
    const DocumentFile document(request(receiver(QStringLiteral("west"), -1, 0)
                                        + receiver(QStringLiteral("north"), 0, 1)
                                        + receiver(QStringLiteral("south-east"), 1, -1)));
    const Run run = draw({document.path()});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.output.count(QLatin1String("<path class=\"receiver\" transform=\"translate(")), 4);
    const auto hasReceiverAt = [&run](const char* place) {
        return run.output.contains(
            QStringLiteral("<path class=\"receiver\" transform=\"translate(%1)\"").arg(QLatin1String(place)));
    };
    // The map is 720 wide and high and shows 2.24 degrees; its middle is at (64 + 360, 48 + 360).
    QVERIFY2(hasReceiverAt("102.6 408"), qPrintable(run.output));
    QVERIFY2(hasReceiverAt("424 86.6"), qPrintable(run.output));
    QVERIFY2(hasReceiverAt("745.4 729.4"), qPrintable(run.output));
    const QStringList content = contentOf(run.output);
    for (const char* text : {"1\u00b0W", "0\u00b0", "1\u00b0E", "1\u00b0N", "1\u00b0S"})
        QVERIFY2(content.contains(QStringLiteral("text.degrees: ") + QString::fromUtf8(text)), text);
}

void Plan2svgTest::scales_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QString>("scale");
    QTest::newRow("a single place") << 0.0 << QStringLiteral("200 m");
    QTest::newRow("some kilometres") << 0.1 << QStringLiteral("5 km");
    QTest::newRow("a country") << 5.0 << QStringLiteral("200 km");
    QTest::newRow("half the world") << 80.0 << QStringLiteral("5000 km");
}

void Plan2svgTest::scales()
{
    QFETCH(double, degrees);
    QFETCH(QString, scale);
    const DocumentFile document(
        request(receiver(QStringLiteral("A"), -degrees, -degrees) + receiver(QStringLiteral("B"), degrees, degrees)));
    const Run run = draw({document.path()});
    const QStringList scales = contentOf(run.output).filter(QRegularExpression(QStringLiteral("^text\\.scale")));
    QCOMPARE(scales, QStringList(QStringLiteral("text.scale: ") + scale));
}

void Plan2svgTest::namesAreTexts()
{
    const DocumentFile document(request(receiver(QStringLiteral("&lt;script&gt; &amp; \u00c4"), 0, 0)));
    const Run run = draw({document.path(), QStringLiteral("--title"), QStringLiteral("a < b")});
    QVERIFY(contentOf(run.output).contains(QStringLiteral("text.name: <script> & \u00c4")));
    QVERIFY(contentOf(run.output).contains(QStringLiteral("text.heading: a < b")));
}

void Plan2svgTest::nothingToDraw_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("kind");
    QTest::newRow("commands that create nothing")
        << QStringLiteral("good/calculate-cep.xml") << QStringLiteral("command document");
    QTest::newRow("a request without objects")
        << QStringLiteral("good/snapshot-of-nothing.xml") << QStringLiteral("snapshot request");
    QTest::newRow("a response") << QStringLiteral("good/response-version.xml") << QStringLiteral("response");
}

void Plan2svgTest::nothingToDraw()
{
    QFETCH(QString, file);
    QFETCH(QString, kind);
    const Run run = draw({samplePath(file)});
    QCOMPARE(run.status, 1);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.errors, QStringLiteral("%1: %2, nothing to draw\n").arg(samplePath(file), kind));
}

void Plan2svgTest::objectsWithoutPlace()
{
    const DocumentFile document(request(receiver(QStringLiteral("good"), 10, 50)
                                        + receiver(QStringLiteral("beyond"), 180.5, 50)
                                        + receiver(QStringLiteral("above"), 10, 90.5)));
    const Run run = draw({document.path()});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.errors,
             QStringLiteral("%1: left out, it has no place on earth: receiver \"beyond\"\n"
                            "%1: left out, it has no place on earth: receiver \"above\"\n")
                 .arg(document.path()));
    QCOMPARE(contentOf(run.output).filter(QStringLiteral("text.name")), QStringList(QStringLiteral("text.name: good")));
}

void Plan2svgTest::failures_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* file, const char* text) {
        QTest::newRow(name) << samplePath(QString::fromLatin1(file)) << QString::fromLatin1(text);
    };
    row("no file", "unreadable/no-such-file.xml", "cannot be opened: ");
    row("no XML", "unreadable/not-xml.txt", "no document: Start tag expected.");
    row("another protocol", "unreadable/another-protocol.xml", "<Weather> is no document of the protocol");
    row("a document that is cut off", "bad/cut-off.xml", "command document, reading stops at line 13, ");
    row("a request in the wrong order", "bad/snapshot-receiver-before-emitter.xml",
        "snapshot request, reading stops at line 16, column 32: in XmlArvBtType (line 16, column 32): Unexpected "
        "token \"StartElement\".\n");
}

void Plan2svgTest::failures()
{
    QFETCH(QString, file);
    QFETCH(QString, text);
    const Run run = draw({file});
    QCOMPARE(run.status, 2);
    QCOMPARE(run.output, QString());
    QVERIFY2(run.errors.startsWith(file + QStringLiteral(": ") + text), qPrintable(run.errors));
}

void Plan2svgTest::pictureThatCannotBeWritten()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("missing/picture.svg"));
    const Run run = draw({samplePath(QStringLiteral("good/plan.xml")), QStringLiteral("--output"), path});
    QCOMPARE(run.status, 2);
    QCOMPARE(run.errors, path + QStringLiteral(": cannot be written\n"));
}

void Plan2svgTest::usage()
{
    for (const QStringList& arguments : {QStringList(), QStringList({QStringLiteral("a"), QStringLiteral("b")})}) {
        const Run run = draw(arguments);
        QCOMPARE(run.status, 2);
        QVERIFY(run.errors.contains(QLatin1String("Usage")));
    }
}

QTEST_GUILESS_MAIN(Plan2svgTest)
#include "plan2svg_test.moc"
