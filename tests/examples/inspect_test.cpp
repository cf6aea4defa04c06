#include "programs.h"

#include <QtCore/QDirIterator>

/// What the sample documents' list of expectations says of one file.
struct Expectation {
    QString file;
    int status;
    QString text;
};

static QVector<Expectation> expectations()
{
    QVector<Expectation> all;
    const QStringList lines = QString::fromUtf8(sample("EXPECTED.txt")).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        static const QRegularExpression form(QStringLiteral("^(\\S+) +([012]) (.+)$"));
        const QRegularExpressionMatch match = form.match(line);
        all.append({match.captured(1), match.captured(2).toInt(), match.captured(3)});
    }
    return all;
}

static Run inspect(const QStringList& arguments)
{
    return runProgram(INSPECT_PROGRAM, arguments);
}

class InspectTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void samples_data();
    void samples();
    void everySampleIsExpected();
    void theWorstFileCounts();
    void noFileIsAnError();
    void aLoneAttributeMakesAResponse();
    void rewritesTheDocument();
    void rewritesIndented();
    void rewritesWhatIsReadableThoughNotAcceptable();
    void whatIsRewrittenIsNotAlwaysReadable_data();
    void whatIsRewrittenIsNotAlwaysReadable();
    void rewrittenModelsAreNotAlwaysReadable_data();
    void rewrittenModelsAreNotAlwaysReadable();
    void indentedResultsAreNotReadable();
    void placeOfAnError_data();
    void placeOfAnError();
    void lostOutputIsAnError_data();
    void lostOutputIsAnError();
};

void InspectTest::samples_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("text");
    const QVector<Expectation> all = expectations();
    for (const Expectation& one : all)
        QTest::newRow(qPrintable(one.file + QStringLiteral(": ") + one.text)) << one.file << one.status << one.text;
}

void InspectTest::samples()
{
    QFETCH(QString, file);
    QFETCH(int, status);
    QFETCH(QString, text);
    QVERIFY2(!file.isEmpty(), "a line of EXPECTED.txt has not the form: file, status, text");

    const Run run = inspect({samplePath(file)});

    QVERIFY2(run.output.contains(text), qPrintable(run.output));
    QCOMPARE(run.status, status);
    QCOMPARE(run.errors, QString());
}

void InspectTest::everySampleIsExpected()
{
    QStringList expected;
    const QVector<Expectation> all = expectations();
    for (const Expectation& one : all)
        expected.append(one.file);
    const QDir folder(QStringLiteral(DOCUMENTS_FOLDER));
    int samples = 0;
    QDirIterator files(folder.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = folder.relativeFilePath(files.next());
        if (file == QLatin1String("EXPECTED.txt"))
            continue;
        QVERIFY2(expected.contains(file), qPrintable(file));
        ++samples;
    }
    QVERIFY(samples > 140);
}

void InspectTest::theWorstFileCounts()
{
    const QString good = samplePath(QStringLiteral("good/calculate-cep.xml"));
    const QString bad = samplePath(QStringLiteral("bad/cep-grid-25.xml"));
    const QString unreadable = samplePath(QStringLiteral("unreadable/not-xml.txt"));
    QCOMPARE(inspect({good, good}).status, 0);
    QCOMPARE(inspect({good, bad, good}).status, 1);
    const Run run = inspect({unreadable, bad, good});
    QCOMPARE(run.status, 2);
    QVERIFY(run.output.contains(good + QStringLiteral(": command document, acceptable")));
}

void InspectTest::noFileIsAnError()
{
    const Run run = inspect({});
    QCOMPARE(run.status, 2);
    QVERIFY(run.errors.contains(QLatin1String("Usage")));
}

void InspectTest::aLoneAttributeMakesAResponse()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("document.xml"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<Anything final='true'><ORDER_DEF/></Anything>");
    file.close();
    const Run run = inspect({path});
    QVERIFY2(run.output.contains(QLatin1String("document.xml: response, reading stops")), qPrintable(run.output));
    QCOMPARE(run.status, 1);
}

void InspectTest::rewritesTheDocument()
{
    const QString path = samplePath(QStringLiteral("good/query-version.xml"));
    const Run run = inspect({QStringLiteral("--rewrite"), path});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.output,
             QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?><Commands><ORDER_DEF>"
                            "<ORDER_ID>ARV240305140709042</ORDER_ID><ORDER_SENDER>planning-desk-2</ORDER_SENDER>"
                            "</ORDER_DEF><Administrative><QueryVersion/><Reference>hello</Reference>"
                            "</Administrative></Commands>\n"));
    QCOMPARE(run.errors, path + QStringLiteral(": command document, acceptable\n"));
}

void InspectTest::rewritesIndented()
{
    const Run run = inspect({QStringLiteral("--rewrite"), QStringLiteral("--indent"),
                             samplePath(QStringLiteral("good/response-version.xml"))});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.output,
             QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                            "<Response type=\"automatic\" final=\"true\" timestamp=\"2024-03-05T14:07:12\">\n"
                            "    <ORDER_DEF>\n"
                            "        <ORDER_ID>ARV240305140709042</ORDER_ID>\n"
                            "        <ORDER_SENDER>planning-desk-2</ORDER_SENDER>\n"
                            "    </ORDER_DEF>\n"
                            "    <Automatic status=\"ack\">\n"
                            "        <CommandReference>hello</CommandReference>\n"
                            "        <ArvVersion>3.2</ArvVersion>\n"
                            "    </Automatic>\n"
                            "</Response>\n"));
}

void InspectTest::rewritesWhatIsReadableThoughNotAcceptable()
{
    const QString option = QStringLiteral("--rewrite");
    const Run judged = inspect({option, samplePath(QStringLiteral("bad/envelope-with-short-id.xml"))});
    QCOMPARE(judged.status, 1);
    QVERIFY(judged.output.contains(QLatin1String("<ORDER_ID></ORDER_ID>")));
    const Run unread = inspect({option, samplePath(QStringLiteral("bad/cep-grid-25.xml"))});
    QCOMPARE(unread.status, 1);
    QCOMPARE(unread.output, QString());
}

void InspectTest::whatIsRewrittenIsNotAlwaysReadable_data()
{
    QTest::addColumn<QString>("kept");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* kept, int status, const char* text) {
        QTest::newRow(name) << QString::fromLatin1(kept) << status << QString::fromLatin1(text);
    };
    row("an emitter is", "emitter-1", 0, "command document, acceptable");
    row("an area is", "area-1", 0, "command document, acceptable");
    row("a station's interlink is not", "station-4", 1, "Unexpected element \"Power\".");
    row("a signal path is not", "path-1", 1, "Unexpected element \"SignalPath\".");
    row("a device with one list is", "device-1", 0, "command document, acceptable");
    row("a device with four lists, one of gains, is not", "device-3", 1, "Unexpected element \"Gains\".");
    row("a device with four lists, one of angles, is not", "device-6", 1, "Unexpected element \"Degrees\".");
}

void InspectTest::whatIsRewrittenIsNotAlwaysReadable()
{
    QFETCH(QString, kept);
    QFETCH(int, status);
    QFETCH(QString, text);
    // One command of the plan, written and read again.
    const QString plan = QString::fromUtf8(sample("good/plan.xml"));
    const int end = int(plan.indexOf(QStringLiteral("<Reference>%1</Reference>").arg(kept)));
    const int begin = int(plan.lastIndexOf(QLatin1String("<Create>"), end));
    QVERIFY(begin > 0);
    const int length = int(plan.indexOf(QLatin1String("</Create>"), end) + 9 - begin);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("document.xml"));
    const auto write = [&path](const QString& document) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(document.toUtf8()) > 0;
    };

    QVERIFY(write(QStringLiteral("<Commands>%1</Commands>").arg(plan.mid(begin, length))));
    const Run rewritten = inspect({QStringLiteral("--rewrite"), path});
    QCOMPARE(rewritten.status, 0);
    QVERIFY(write(rewritten.output));
    const Run again = inspect({path});

    QVERIFY2(again.output.contains(text), qPrintable(again.output));
    QCOMPARE(again.status, status);
}

void InspectTest::rewrittenModelsAreNotAlwaysReadable_data()
{
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("rewritten");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* set, const char* rewritten, const char* text) {
        QTest::newRow(name) << QString::fromLatin1(set) << QString::fromLatin1(rewritten) << QString::fromLatin1(text);
    };
    const char* good = "command document, acceptable";
    row("P.1546 is", "<PropertiesP1546><TimePct>10</TimePct><RxAntEnviro>Warm Sea</RxAntEnviro></PropertiesP1546>",
        "<PropertiesP1546><TimePct>10.00</TimePct><RxAntEnviro>Warm Sea</RxAntEnviro></PropertiesP1546>", good);
    row("P.526 with a K-factor alone is", "<PropertiesP526><K-factor>2</K-factor></PropertiesP526>",
        "<PropertiesP526><K-factor>2.000</K-factor></PropertiesP526>", good);
    row("P.526 with a polarisation is not", "<PropertiesP526><Pol>Vertical</Pol></PropertiesP526>",
        "<PropertiesP526><Polarisation>Vertical</Polarisation></PropertiesP526>",
        "Unexpected token \"StartElement\": Polarisation.");
    row("P.526 with another label is no XML", "<PropertiesP526><Surface>Sea Water</Surface></PropertiesP526>",
        "<PropertiesP526><Surface Condition>Sea Water</Surface Condition></PropertiesP526>",
        "command document, reading stops at line 1, ");
    row("Okumura-Hata without a K-factor is", "<PropertiesOkumura><CitySize>Large</CitySize></PropertiesOkumura>",
        "<PropertiesOkumura><CitySize>Large</CitySize></PropertiesOkumura>", good);
    row("Okumura-Hata with a K-factor is not", "<PropertiesOkumura><K-factor>2</K-factor></PropertiesOkumura>",
        "<PropertiesOkumura><PropertiesOkumura>2.0000</PropertiesOkumura></PropertiesOkumura>",
        "Unexpected token \"StartElement\": PropertiesOkumura.");
    row("ITM is, with another surface",
        "<PropertiesITM><Climate>Continental Subtropical</Climate><Surface>Sea Water</Surface></PropertiesITM>",
        "<PropertiesITM><Climate>Continental Subtropical</Climate><Surface>Poor Ground</Surface></PropertiesITM>",
        good);
    row("ITM with a surface but no climate is not", "<PropertiesITM><Surface>Sea Water</Surface></PropertiesITM>",
        "<PropertiesITM><Surface>UNDEFINED</Surface></PropertiesITM>", "Illegal value for \"Surface\".");
}

void InspectTest::rewrittenModelsAreNotAlwaysReadable()
{
    QFETCH(QString, set);
    QFETCH(QString, rewritten);
    QFETCH(QString, text);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("document.xml"));
    const auto write = [&path](const QString& document) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(document.toUtf8()) > 0;
    };

    QVERIFY(write(QStringLiteral("<Commands><PropagationModel>%1<Reference>m</Reference></PropagationModel></Commands>")
                      .arg(set)));
    const Run first = inspect({QStringLiteral("--rewrite"), path});
    QCOMPARE(first.status, 0);
    QVERIFY2(first.output.contains(QStringLiteral("<PropagationModel>%1<Reference>").arg(rewritten)),
             qPrintable(first.output));
    QVERIFY(write(first.output));
    const Run again = inspect({path});

    QVERIFY2(again.output.contains(text), qPrintable(again.output));
    QCOMPARE(again.status, text.endsWith(QLatin1String("acceptable")) ? 0 : 1);
}

void InspectTest::indentedResultsAreNotReadable()
{
    // A request with one result alone: other elements of the sample cannot be read again, indented or not.
    const QString request = QString::fromUtf8(sample("good/snapshot.xml"));
    const int begin = int(request.indexOf(QLatin1String("<Result_CEP")));
    const int end = int(request.indexOf(QLatin1String("</Result_CEP>"), begin));
    QVERIFY(begin > 0 && end > begin);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("document.xml"));
    const auto write = [&path](const QString& document) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(document.toUtf8()) > 0;
    };
    const QString one = QStringLiteral("<Snapshot><ScreenshotPath>p</ScreenshotPath><DisplayedObjects>%1</Result_CEP>"
                                       "</DisplayedObjects></Snapshot>")
                            .arg(request.mid(begin, end - begin));
    QVERIFY(write(one));
    const Run plain = inspect({QStringLiteral("--rewrite"), path});
    const Run indented = inspect({QStringLiteral("--rewrite"), QStringLiteral("--indent"), path});
    QCOMPARE(plain.status, 0);
    QCOMPARE(indented.status, 0);
    QVERIFY(write(plain.output));
    QCOMPARE(inspect({path}).status, 0);
    QVERIFY(write(indented.output));
    const Run again = inspect({path});
    QCOMPARE(again.status, 1);
    QVERIFY2(again.output.contains(QLatin1String("Unexpected characters")), qPrintable(again.output));
}

void InspectTest::placeOfAnError_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("text");
    QTest::newRow("an element tells it") << QStringLiteral("bad/create-two-objects.xml")
                                         << QStringLiteral("command document, reading stops in XmlCmdCreate (line 21, "
                                                           "column 28): Unexpected element \"Receiver\".");
    QTest::newRow("the reader does not") << QStringLiteral("bad/cut-off.xml")
                                         << QStringLiteral("command document, reading stops at line 13, column 0: "
                                                           "Premature end of document.");
}

void InspectTest::placeOfAnError()
{
    QFETCH(QString, file);
    QFETCH(QString, text);
    QCOMPARE(inspect({samplePath(file)}).output, QStringLiteral("%1: %2\n").arg(samplePath(file), text));
}

void InspectTest::lostOutputIsAnError_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("file");
    QTest::newRow("of a report") << QStringList() << QStringLiteral("good/calculate-cep.xml");
    QTest::newRow("of a document") << QStringList(QStringLiteral("--rewrite")) << QStringLiteral("good/plan.xml");
}

void InspectTest::lostOutputIsAnError()
{
    QFETCH(QStringList, options);
    QFETCH(QString, file);
    const Run run =
        runProgramInto(QStringLiteral("/dev/full"), INSPECT_PROGRAM, options + QStringList(samplePath(file)));
    QCOMPARE(run.status, 2);
    QVERIFY2(run.errors.endsWith(QLatin1String("standard output: cannot be written\n")), qPrintable(run.errors));
}

QTEST_GUILESS_MAIN(InspectTest)
#include "inspect_test.moc"
