#include "programs.h"

#include <QtCore/QHash>
#include <QtCore/QRegularExpression>
#include <QtCore/QXmlStreamReader>

#include <algorithm>
#include <cmath>

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

double numberOf(const QXmlStreamAttributes& attributes, const char* name)
{
    return attributes.value(QLatin1String(name)).toDouble();
}

/// A text of the picture.
struct Text {
    QString text;
    QString anchor;
    double x;
    double y;
};

QVector<Text> textsOf(const QString& picture, const char* cssClass)
{
    QVector<Text> texts;
    QXmlStreamReader reader(picture);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != QLatin1String("text"))
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        if (attributes.value(QLatin1String("class")) != QLatin1String(cssClass))
            continue;
        const QString anchor = attributes.value(QLatin1String("text-anchor")).toString();
        texts.append({reader.readElementText(), anchor, numberOf(attributes, "x"), numberOf(attributes, "y")});
    }
    return texts;
}

QStringList namesIn(const QString& picture)
{
    QStringList names;
    const QVector<Text> texts = textsOf(picture, "name");
    for (const Text& text : texts)
        names.append(text.text);
    return names;
}

/// The title of each shape, in their order; empty for one without.
QStringList titlesIn(const QString& picture)
{
    QStringList titles;
    QXmlStreamReader reader(picture);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("path") || reader.name() == QLatin1String("polygon"))
            titles.append(QString());
        else if (reader.name() == QLatin1String("title") && !titles.isEmpty())
            titles.last() = reader.readElementText();
    }
    return titles;
}

/// The places of the receivers' symbols; the last one stands in the legend.
QVector<QPointF> receiversIn(const QString& picture)
{
    QVector<QPointF> places;
    static const QRegularExpression form(
        QStringLiteral("<path class=\"receiver\" transform=\"translate\\((\\S+) (\\S+)\\)\""));
    for (auto matches = form.globalMatch(picture); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        places.append({match.captured(1).toDouble(), match.captured(2).toDouble()});
    }
    return places;
}

/// The corners of the areas of interest; the last one stands in the legend.
QVector<QVector<QPointF>> areasIn(const QString& picture)
{
    QVector<QVector<QPointF>> areas;
    static const QRegularExpression form(QStringLiteral("<polygon class=\"area-of-interest\" points=\"([^\"]+)\""));
    for (auto matches = form.globalMatch(picture); matches.hasNext();) {
        QVector<QPointF> corners;
        const QStringList points = matches.next().captured(1).split(QLatin1Char(' '));
        for (const QString& point : points) {
            corners.append(
                {point.section(QLatin1Char(','), 0, 0).toDouble(), point.section(QLatin1Char(','), 1, 1).toDouble()});
        }
        areas.append(corners);
    }
    return areas;
}

/// The length of the scale's line, and the metres that it stands for.
struct Scale {
    double length = 0;
    double metres = 0;
};

Scale scaleOf(const QString& picture)
{
    static const QRegularExpression form(
        QStringLiteral("<line class=\"scale\" x1=\"(\\S+)\" y1=\"\\S+\" x2=\"(\\S+)\""));
    const QRegularExpressionMatch line = form.match(picture);
    const QVector<Text> texts = textsOf(picture, "scale");
    if (!line.hasMatch() || texts.size() != 1)
        return Scale();
    const QString text = texts.first().text;
    const double unit = text.endsWith(QLatin1String(" km")) ? 1000 : 1;
    return {line.captured(2).toDouble() - line.captured(1).toDouble(),
            text.section(QLatin1Char(' '), 0, 0).toDouble() * unit};
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

QString areaOfInterest(const QString& name, const QVector<QPointF>& corners)
{
    QString vertices;
    for (int i = 0; i < corners.size(); ++i) {
        vertices += QStringLiteral("<Vertex number=\"%1\"><Longitude>%2</Longitude><Latitude>%3</Latitude></Vertex>")
                        .arg(i)
                        .arg(corners.at(i).x())
                        .arg(corners.at(i).y());
    }
    // The parameters of an area of the sample: they are not drawn.
    const QString request = QString::fromUtf8(sample("good/snapshot.xml"));
    const int begin =
        int(request.indexOf(QLatin1String("<TxParameter"), request.indexOf(QLatin1String("<AreaOfInterest"))));
    const int end = int(request.indexOf(QLatin1String("</AreaOfInterest>"), begin));
    return QStringLiteral("<AreaOfInterest><Name>%1</Name><AreaPolygon>%2</AreaPolygon>%3</AreaOfInterest>")
        .arg(name, vertices, request.mid(begin, end - begin));
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
    void scaleMatchesDistances_data();
    void scaleMatchesDistances();
    void meridianLabelsDoNotOverlap_data();
    void meridianLabelsDoNotOverlap();
    void gridOfTheWorld();
    void gridEndsWithTheEarth_data();
    void gridEndsWithTheEarth();
    void receiversCloseTogether();
    void namesAreTexts();
    void longNames();
    void emptyNames();
    void longTitles();
    void namesBesideSites();
    void namesWithoutRoom();
    void smallAreas();
    void namesInsideAreas();
    void resultsShowOnAreas();
    void nothingToDraw_data();
    void nothingToDraw();
    void objectsWithoutPlace();
    void edgesOfTheEarth_data();
    void edgesOfTheEarth();
    void failures_data();
    void failures();
    void pictureThatCannotBeWritten_data();
    void pictureThatCannotBeWritten();
    void pictureToADevice();
    void standardOutputThatCannotBeWritten();
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
    // The map is 720 wide and high and shows 2.24 degrees; its middle is at (76 + 360, 48 + 360).
    QVERIFY2(hasReceiverAt("114.6 408"), qPrintable(run.output));
    QVERIFY2(hasReceiverAt("436 86.6"), qPrintable(run.output));
    QVERIFY2(hasReceiverAt("757.4 729.4"), qPrintable(run.output));
    const QStringList content = contentOf(run.output);
    for (const char* text : {"1.0\u00b0W", "0.0\u00b0", "1.0\u00b0E", "1\u00b0N", "0\u00b0", "1\u00b0S"})
        QVERIFY2(content.contains(QStringLiteral("text.degrees: ") + QString::fromUtf8(text)), text);
}

void Plan2svgTest::scales_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QString>("scale");
    QTest::newRow("a single place") << 0.0 << QStringLiteral("200 m");
    QTest::newRow("a kilometre") << 0.02 << QStringLiteral("1 km");
    QTest::newRow("some kilometres") << 0.1 << QStringLiteral("5 km");
    QTest::newRow("a country") << 5.0 << QStringLiteral("200 km");
    QTest::newRow("half the world") << 80.0 << QStringLiteral("2000 km");
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

void Plan2svgTest::scaleMatchesDistances_data()
{
    QTest::addColumn<double>("latitude"); // of the southern one of two receivers
    QTest::addColumn<double>("distance"); // to the northern one, in degrees
    QTest::addColumn<double>("width");    // in degrees
    QTest::newRow("a high map, with a scale as long as it may be") << 50.0 << 1.0 << 0.0;
    QTest::newRow("a wide map, with a shorter one") << 50.0 << 0.1 << 1.0;
    QTest::newRow("far north") << 80.0 << 0.5 << 0.1;
    QTest::newRow("the whole height of the world") << -90.0 << 180.0 << 0.0;
}

void Plan2svgTest::scaleMatchesDistances()
{
    QFETCH(double, latitude);
    QFETCH(double, distance);
    QFETCH(double, width);
    const DocumentFile document(request(receiver(QStringLiteral("south"), 10, latitude)
                                        + receiver(QStringLiteral("north"), 10 + width, latitude + distance)));
    const Run run = draw({document.path()});
    const QVector<QPointF> places = receiversIn(run.output);
    const Scale scale = scaleOf(run.output);
    QCOMPARE(places.size(), 2 + 1);
    QVERIFY(scale.length > 50 && scale.length <= 176);
    const double metres = (places.at(0).y() - places.at(1).y()) / scale.length * scale.metres;
    const double expected = distance * 111195; // on a sphere
    QVERIFY2(std::abs(metres / expected - 1) < 0.005, qPrintable(QString::number(metres)));
}

void Plan2svgTest::meridianLabelsDoNotOverlap_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("size");
    for (const double latitude : {0.0, 54.0, 70.0, 78.1, 85.0, 89.0, -89.0}) {
        for (const double size : {0.0, 0.001, 0.1, 0.3, 0.9}) {
            const QString name = QStringLiteral("%1 degrees at %2").arg(size).arg(latitude);
            QTest::newRow(qPrintable(name)) << latitude << size;
        }
    }
}

void Plan2svgTest::meridianLabelsDoNotOverlap()
{
    QFETCH(double, latitude);
    QFETCH(double, size);
    const DocumentFile document(request(receiver(QStringLiteral("A"), -170, latitude)
                                        + receiver(QStringLiteral("B"), -170 + size, latitude + size)));
    const Run run = draw({document.path()});
    QVector<Text> meridians;
    const QVector<Text> texts = textsOf(run.output, "degrees");
    for (const Text& text : texts) {
        if (text.anchor == QLatin1String("middle"))
            meridians.append(text);
    }
    QVERIFY(meridians.size() >= 3);
    for (int i = 1; i < meridians.size(); ++i) {
        const double room = meridians.at(i).x - meridians.at(i - 1).x;
        QVERIFY2(room > 6.6 * double(meridians.at(i).text.size()), qPrintable(meridians.at(i).text));
        QVERIFY(meridians.at(i).text != meridians.at(i - 1).text); // there are decimals enough
    }
}

void Plan2svgTest::gridOfTheWorld()
{
    const DocumentFile document(
        request(receiver(QStringLiteral("A"), -180, -90) + receiver(QStringLiteral("B"), 180, 90)));
    const Run run = draw({document.path()});
    QStringList degrees;
    const QVector<Text> texts = textsOf(run.output, "degrees");
    for (const Text& text : texts)
        degrees.append(text.text.chopped(text.text.endsWith(QChar(0xb0)) ? 1 : 2) + text.text.right(1));
    QCOMPARE(degrees.join(QLatin1Char(' ')), QStringLiteral("180W 90W 0\u00b0 90E 180E 90S 0\u00b0 90N"));
    // The lines end where the earth does: at the two receivers.
    const QVector<QPointF> places = receiversIn(run.output);
    QVERIFY(run.output.contains(QStringLiteral("<line class=\"meridian\" x1=\"%1\" y1=\"%2\" x2=\"%1\" y2=\"%3\"")
                                    .arg(places.at(0).x())
                                    .arg(places.at(1).y())
                                    .arg(places.at(0).y())));
    QVERIFY(run.output.contains(QStringLiteral("<line class=\"parallel\" x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%2\"")
                                    .arg(places.at(0).x())
                                    .arg(places.at(1).y())
                                    .arg(places.at(1).x())));
}

void Plan2svgTest::gridEndsWithTheEarth_data()
{
    QTest::addColumn<double>("longitude");
    QTest::addColumn<double>("latitude");
    QTest::newRow("the south pole, at the date line from the east") << -180.0 << -90.0;
    QTest::newRow("the north pole, at the date line from the west") << 180.0 << 90.0;
}

void Plan2svgTest::gridEndsWithTheEarth()
{
    QFETCH(double, longitude);
    QFETCH(double, latitude);
    const DocumentFile document(request(receiver(QStringLiteral("A"), longitude, latitude)));
    const Run run = draw({document.path()});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.errors, QString());
    // The outermost lines lead through the receiver: it stands in the corner of the earth.
    const QPointF place = receiversIn(run.output).first();
    QVector<double> meridians;
    QVector<double> parallels;
    const QVector<Text> texts = textsOf(run.output, "degrees");
    for (const Text& text : texts) {
        if (text.anchor == QLatin1String("middle"))
            meridians.append(text.x);
        else
            parallels.append(text.y - 4);
    }
    QVERIFY(meridians.size() > 1 && parallels.size() > 1);
    QCOMPARE(longitude < 0 ? meridians.first() : meridians.last(), place.x());
    QCOMPARE(latitude < 0 ? parallels.first() : parallels.last(), place.y());
    QVERIFY(!run.output.contains(QLatin1String("nan")) && !run.output.contains(QLatin1String("inf\"")));
}

void Plan2svgTest::receiversCloseTogether()
{
    const DocumentFile document(
        request(receiver(QStringLiteral("A"), 10, 0) + receiver(QStringLiteral("B"), 10.001, 0)));
    const Run run = draw({document.path()});
    QCOMPARE(run.status, 0);
    const QVector<QPointF> places = receiversIn(run.output);
    QCOMPARE(places.size(), 2 + 1);
    // A hundredth of a degree is shown at least.
    QVERIFY(std::abs(places.at(1).x() - places.at(0).x() - 72) < 0.2);
    QCOMPARE(namesIn(run.output), QStringList({QStringLiteral("B"), QStringLiteral("A")}));
}

void Plan2svgTest::longNames()
{
    const QString thirty = QStringLiteral("123456789 123456789 1234567890");
    const DocumentFile document(request(receiver(thirty, 10, 50) + receiver(thirty + QLatin1Char('1'), 10.5, 51)));
    const Run run = draw({document.path()});
    QCOMPARE(namesIn(run.output), QStringList({thirty.left(29) + QChar(0x2026), thirty}));
    QCOMPARE(titlesIn(run.output), QStringList({thirty, thirty + QLatin1Char('1'), QString()}));
}

void Plan2svgTest::emptyNames()
{
    const DocumentFile document(request(receiver(QString(), 10, 50) + receiver(QStringLiteral("B"), 10.5, 51)));
    const Run run = draw({document.path()});
    QCOMPARE(namesIn(run.output), QStringList(QStringLiteral("B")));
    QCOMPARE(titlesIn(run.output), QStringList({QString(), QStringLiteral("B"), QString()}));
}

void Plan2svgTest::longTitles()
{
    const QString title(81, QLatin1Char('t'));
    const DocumentFile document(request(receiver(QStringLiteral("A"), 10, 50)));
    const Run run = draw({document.path(), QStringLiteral("--title"), title});
    QCOMPARE(textsOf(run.output, "heading").first().text, title.left(79) + QChar(0x2026));
    QVERIFY(run.output.contains(QStringLiteral("<title>%1</title>").arg(title)));
}

void Plan2svgTest::namesBesideSites()
{
    // The eastern one has no room on its right.
    const DocumentFile document(request(receiver(QStringLiteral("the western one"), 10, 50)
                                        + receiver(QStringLiteral("the eastern one"), 11, 50)));
    const Run run = draw({document.path()});
    const QVector<QPointF> places = receiversIn(run.output);
    const QVector<Text> names = textsOf(run.output, "name");
    QCOMPARE(names.size(), 2);
    QCOMPARE(names.at(0).text, QStringLiteral("the eastern one"));
    QCOMPARE(names.at(0).anchor, QStringLiteral("end"));
    QVERIFY(names.at(0).x < places.at(1).x() - 7 && names.at(0).x > places.at(1).x() - 15);
    QCOMPARE(names.at(1).text, QStringLiteral("the western one"));
    QCOMPARE(names.at(1).anchor, QStringLiteral("start"));
    QVERIFY(names.at(1).x > places.at(0).x() + 7 && names.at(1).x < places.at(0).x() + 15);
}

void Plan2svgTest::namesWithoutRoom()
{
    QString objects = receiver(QStringLiteral("far away"), 11, 50);
    const int atOnePlace = 60;
    for (int i = 0; i < atOnePlace; ++i)
        objects += receiver(QStringLiteral("Receiver %1").arg(i), 10, 50);
    const DocumentFile document(request(objects));
    const Run run = draw({document.path()});
    const QVector<Text> names = textsOf(run.output, "name");
    QVERIFY(names.size() > 5 && names.size() < atOnePlace);
    QCOMPARE(titlesIn(run.output).filter(QStringLiteral("Receiver ")).size(), atOnePlace);
    for (int i = 0; i < names.size(); ++i) {
        for (int other = 0; other < i; ++other) {
            const bool isNear = std::abs(names.at(i).y - names.at(other).y) < 12 && names.at(i).x == names.at(other).x
                && names.at(i).anchor == names.at(other).anchor;
            QVERIFY2(!isNear, qPrintable(names.at(i).text));
        }
    }
}

void Plan2svgTest::smallAreas()
{
    const DocumentFile document(
        request(areaOfInterest(QStringLiteral("small"), {{10.5, 50.5}, {10.501, 50.5}, {10.501, 50.501}})
                + receiver(QStringLiteral("A"), 10, 50) + receiver(QStringLiteral("B"), 11, 51)));
    const Run run = draw({document.path()});
    QCOMPARE(run.status, 0);
    const QVector<QVector<QPointF>> areas = areasIn(run.output);
    QCOMPARE(areas.size(), 1 + 1);
    const QVector<QPointF> corners = areas.first();
    QCOMPARE(corners.size(), 4);
    QVERIFY(std::abs(corners.at(1).x() - corners.at(0).x() - 4) < 0.2);
    QVERIFY(std::abs(corners.at(2).y() - corners.at(1).y() - 4) < 0.2);
    const Text name = textsOf(run.output, "name").last();
    QCOMPARE(name.text, QStringLiteral("small"));
    QCOMPARE(name.anchor, QStringLiteral("start"));
    QVERIFY(name.x > corners.at(1).x() && name.x < corners.at(1).x() + 8);
}

void Plan2svgTest::namesInsideAreas()
{
    const QVector<QPointF> ell = {{10, 0}, {11, 0}, {11, 0.2}, {10.2, 0.2}, {10.2, 1}, {10, 1}};
    const DocumentFile document(request(areaOfInterest(QStringLiteral("Ell"), ell)));
    const Run run = draw({document.path()});
    QCOMPARE(run.status, 0);
    const QVector<QPointF> corners = areasIn(run.output).first();
    const Text name = textsOf(run.output, "name").first();
    QCOMPARE(name.anchor, QStringLiteral("middle"));
    const bool isInUpright = name.x > corners.at(0).x() && name.x < corners.at(3).x() && name.y > corners.at(4).y();
    const bool isInFoot = name.x > corners.at(0).x() && name.x < corners.at(1).x() && name.y > corners.at(2).y();
    QVERIFY(isInUpright || isInFoot);
    QVERIFY(name.y < corners.at(0).y());
}

void Plan2svgTest::resultsShowOnAreas()
{
    // Several results of the sample lie on areas of interest. They are drawn later, dotted, with a heavier line.
    const Run run = draw({samplePath(QStringLiteral("good/snapshot.xml"))});
    static const QRegularExpression form(
        QStringLiteral("class=\"(\\S+)\" points=\"([^\"]+)\" [^>]*stroke-width=\"(\\S+)\"( stroke-dasharray)?"));
    QHash<QString, double> widthOfArea;
    int onAreas = 0;
    for (auto matches = form.globalMatch(run.output); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QString points = match.captured(2);
        if (match.captured(1) == QLatin1String("area-of-interest")) {
            widthOfArea.insert(points, match.captured(3).toDouble());
        } else if (match.captured(1) == QLatin1String("result-area") && widthOfArea.contains(points)) {
            QVERIFY(match.captured(3).toDouble() > widthOfArea.value(points));
            QVERIFY(!match.captured(4).isEmpty());
            ++onAreas;
        }
    }
    QCOMPARE(onAreas, 2);
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

void Plan2svgTest::edgesOfTheEarth_data()
{
    QTest::addColumn<QString>("longitude");
    QTest::addColumn<QString>("latitude");
    QTest::addColumn<bool>("isDrawn");
    const auto row = [](const char* name, const char* longitude, const char* latitude, bool isDrawn) {
        QTest::newRow(name) << QString::fromLatin1(longitude) << QString::fromLatin1(latitude) << isDrawn;
    };
    row("180 degrees west", "-180", "50", true);
    row("beyond 180 degrees west", "-180.0001", "50", false);
    row("180 degrees east", "180", "50", true);
    row("beyond 180 degrees east", "180.0001", "50", false);
    row("the south pole", "10", "-90", true);
    row("beyond the south pole", "10", "-90.0001", false);
    row("the north pole", "10", "90", true);
    row("beyond the north pole", "10", "90.0001", false);
}

void Plan2svgTest::edgesOfTheEarth()
{
    QFETCH(QString, longitude);
    QFETCH(QString, latitude);
    QFETCH(bool, isDrawn);
    const QString site = receiver(QStringLiteral("edge"), 0.25, 0.75)
                             .replace(QStringLiteral(">0.25<"), QStringLiteral(">%1<").arg(longitude))
                             .replace(QStringLiteral(">0.75<"), QStringLiteral(">%1<").arg(latitude));
    const DocumentFile document(request(site));
    const Run run = draw({document.path()});
    QCOMPARE(run.status, isDrawn ? 0 : 1);
    QCOMPARE(namesIn(run.output).size(), isDrawn ? 1 : 0);
    QCOMPARE(run.errors.contains(QLatin1String("left out, it has no place on earth: receiver \"edge\"")), !isDrawn);
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
        "snapshot request, reading stops in XmlArvBtType (line 16, column 32): Unexpected token \"StartElement\".\n");
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

void Plan2svgTest::pictureThatCannotBeWritten_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no such folder") << QStringLiteral("/no such folder/picture.svg")
                                    << QStringLiteral("No such file or directory");
    QTest::newRow("a folder") << QDir::tempPath() << QStringLiteral("Is a directory");
}

void Plan2svgTest::pictureThatCannotBeWritten()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    const Run run = draw({samplePath(QStringLiteral("good/plan.xml")), QStringLiteral("--output"), path});
    QCOMPARE(run.status, 2);
    QCOMPARE(run.errors, QStringLiteral("%1: cannot be written: %2\n").arg(path, reason));
}

void Plan2svgTest::pictureToADevice()
{
    // It is written to; a picture's file would be replaced by a new one.
    const QString document = samplePath(QStringLiteral("good/plan.xml"));
    const Run run = draw({document, QStringLiteral("-o"), QStringLiteral("/dev/stdout")});
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.status, 0);
    QCOMPARE(run.output, draw({document}).output);
}

void Plan2svgTest::standardOutputThatCannotBeWritten()
{
    const Run run =
        runProgramInto(QStringLiteral("/dev/full"), PLAN2SVG_PROGRAM, {samplePath(QStringLiteral("good/plan.xml"))});
    QCOMPARE(run.status, 2);
    QCOMPARE(run.errors, QStringLiteral("standard output: cannot be written: No space left on device\n"));
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
