#include "support/samples.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

/// \file
/// What the reference says is true: the sample in the comment of each class can be read, is acceptable, and is written
/// again as it stands there; the pictures show the classes that there are.

using namespace ArvXml;
using Samples::ElementClass;

Q_DECLARE_METATYPE(const ElementClass*)

namespace {

QString contentOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

/// All files of this kind in a folder, one after the other.
QString contentOfAll(const char* folder, const char* kind)
{
    const QDir files(QString::fromUtf8(folder), QLatin1String(kind));
    QString content;
    for (const QString& name : files.entryList())
        content += contentOf(files.filePath(name));
    return content;
}

/// The sample in the comment of a class, without the white space between its tags; empty if it has none.
QString sampleOf(const QString& className)
{
    static const QString headers = contentOfAll(HEADERS, "*.h");
    static const QRegularExpression comment(QStringLiteral("((?:^///.*\n)+)class ARVXML_EXPORT (\\w+)"),
                                            QRegularExpression::MultilineOption);
    static const QHash<QString, QString> comments = [] {
        QHash<QString, QString> found;
        for (auto matches = comment.globalMatch(headers); matches.hasNext();) {
            const auto match = matches.next();
            found.insert(match.captured(2), match.captured(1).remove(QStringLiteral("///")));
        }
        return found;
    }();
    static const QRegularExpression block(QStringLiteral(R"(\\code\{\.xml\}(.*?)\\endcode)"),
                                          QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression line(QStringLiteral("`(<.*?>)`"));
    const auto inBlock = block.match(comments.value(className));
    const auto inLine = line.match(comments.value(className));
    QString sample = (inBlock.hasMatch() ? inBlock : inLine).captured(1).trimmed();
    return sample.replace(QRegularExpression(QStringLiteral(">\\s+<")), QStringLiteral("><"));
}

/// The classes whose samples stand for the "..." in others, by tag.
const QHash<QString, QString>& classesByTag()
{
    static const QHash<QString, QString> classes = {
        {QStringLiteral("Administrative"), QStringLiteral("XmlCmdAdmin")},
        {QStringLiteral("AntHgtMap"), QStringLiteral("XmlMapListType")},
        {QStringLiteral("AreaOfInterest"), QStringLiteral("XmlAoiType")},
        {QStringLiteral("AreaPolygon"), QStringLiteral("XmlAreaPolyType")},
        {QStringLiteral("AreaRect"), QStringLiteral("XmlAreaRectType")},
        {QStringLiteral("Attenuations"), QStringLiteral("XmlDecibelListType")},
        {QStringLiteral("Automatic"), QStringLiteral("XmlAutoRespType")},
        {QStringLiteral("CEP"), QStringLiteral("XmlCepType")},
        {QStringLiteral("CabLenMap"), QStringLiteral("XmlMapListType")},
        {QStringLiteral("Calculate"), QStringLiteral("XmlCmdCalc")},
        {QStringLiteral("Create"), QStringLiteral("XmlCmdCreate")},
        {QStringLiteral("Delete"), QStringLiteral("XmlCmdDelete")},
        {QStringLiteral("DeploymentArea"), QStringLiteral("XmlDeploymentAreaType")},
        {QStringLiteral("Device"), QStringLiteral("XmlDeviceType")},
        {QStringLiteral("DirectionFinder"), QStringLiteral("XmlDfType")},
        {QStringLiteral("Emitter"), QStringLiteral("XmlEmitterType")},
        {QStringLiteral("Frequencies"), QStringLiteral("XmlFreqListType")},
        {QStringLiteral("InterlinkResult"), QStringLiteral("XmlInterlinkResultType")},
        {QStringLiteral("KnownEmitter"), QStringLiteral("XmlEmitterType")},
        {QStringLiteral("Map"), QStringLiteral("XmlMapType")},
        {QStringLiteral("ORDER_DEF"), QStringLiteral("XmlOrderDef")},
        {QStringLiteral("Pair"), QStringLiteral("XmlFreqThrPairType")},
        {QStringLiteral("Position"), QStringLiteral("XmlCoordinateType")},
        {QStringLiteral("PropagationModel"), QStringLiteral("XmlPropModelType")},
        {QStringLiteral("Receiver"), QStringLiteral("XmlReceiverType")},
        {QStringLiteral("Result_CEP"), QStringLiteral("XmlResInfo")},
        {QStringLiteral("Result_DetectProb"), QStringLiteral("XmlResInfo")},
        {QStringLiteral("Result_DfCoverage"), QStringLiteral("XmlResInfo")},
        {QStringLiteral("Result_FindSites"), QStringLiteral("XmlResInfo")},
        {QStringLiteral("RxParameter"), QStringLiteral("XmlRxParamType")},
        {QStringLiteral("SignalPath"), QStringLiteral("XmlSignalPathType")},
        {QStringLiteral("StationInterlink"), QStringLiteral("XmlStationInterlinkType")},
        {QStringLiteral("TxParameter"), QStringLiteral("XmlTxParamType")},
    };
    return classes;
}

/// A sample with what stands for its "...".
QString expanded(QString sample)
{
    static const QRegularExpression elided(QStringLiteral(R"(<(\w+)[^<>]*>(\.\.\.)</\1>)"));
    for (auto match = elided.match(sample); match.hasMatch(); match = elided.match(sample)) {
        const QString other = expanded(sampleOf(classesByTag().value(match.captured(1))));
        const auto begin = other.indexOf(QLatin1Char('>')) + 1;
        const auto end = other.lastIndexOf(QLatin1String("</"));
        if (end < begin)
            qFatal("nothing stands for the content of %s", qPrintable(match.captured(1)));
        sample.replace(match.capturedStart(2), match.capturedLength(2), other.mid(begin, end - begin));
    }
    return sample;
}

/// What a sample becomes when it is written: links and map entries are written otherwise wherever they stand, and
/// some parameters of models.
QString asWritten(QString sample)
{
    static const QRegularExpression link(QStringLiteral("<StationInterlink .*?</StationInterlink>"));
    for (auto match = link.match(sample); match.hasMatch(); match = link.match(sample, match.capturedStart() + 1)) {
        const QString written = match.captured().replace(QLatin1String("TxPower"), QLatin1String("Power"));
        sample.replace(match.capturedStart(), match.capturedLength(), written);
    }
    sample.replace(QRegularExpression(QStringLiteral("<Key>\\d+</Key><Value( .*?>.*?)</Value>")),
                   QStringLiteral("<Key\\1</Key><Value\\1</Value>"));
    if (sample.startsWith(QLatin1String("<PropertiesOkumura>")))
        sample.replace(QLatin1String("K-factor"), QLatin1String("PropertiesOkumura"));
    if (sample.startsWith(QLatin1String("<PropertiesP526>"))) {
        const std::pair<const char*, const char*> names[] = {
            {"Pol", "Polarisation"},
            {"Surface", "Surface Condition"},
            {"AssumeSmoothEarth", "Assume Smooth Earth for complete path"},
            {"IncludeSubPathDiffractionLoss", "Include sub path diffraction loss"},
        };
        for (const auto& [read, written] : names) {
            sample.replace(QStringLiteral("<%1>").arg(QLatin1String(read)),
                           QStringLiteral("<%1>").arg(QLatin1String(written)));
            sample.replace(QStringLiteral("</%1>").arg(QLatin1String(read)),
                           QStringLiteral("</%1>").arg(QLatin1String(written)));
        }
    }
    return sample;
}

/// How the reading of a sample ends: with no error but in the classes that are never read to their end.
QString expectedErrorEnd(const QString& className)
{
    if (className == QLatin1String("XmlGridResultType"))
        return QStringLiteral("Unexpected token \"EndElement\": Parameter.");
    if (className == QLatin1String("XmlResultObjectType"))
        return QStringLiteral("Unexpected token \"EndElement\": Station.");
    return {};
}

} // namespace

class CommentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sampleIsTrue_data();
    void sampleIsTrue();
    void picturesShowEveryClass();
};

void CommentsTest::sampleIsTrue_data()
{
    QTest::addColumn<const ElementClass*>("elementClass");
    for (const ElementClass& elementClass : Samples::classes())
        QTest::newRow(qPrintable(elementClass.title())) << &elementClass;
}

void CommentsTest::sampleIsTrue()
{
    QFETCH(const ElementClass*, elementClass);
    if (elementClass->variant == QLatin1String("definition"))
        return; // the sample shows the command
    // The sample of the records stands at their base.
    const bool isRecord = elementClass->name.startsWith(QLatin1String("XmlResInfo_"));
    const QString sample = expanded(sampleOf(isRecord ? QStringLiteral("XmlResInfo") : elementClass->name));
    QVERIFY2(!sample.isEmpty(), "no sample in the comment");

    const Samples::Element element = elementClass->create();
    const QString error = ElementTest::readError(*element, sample);
    const QString errorEnd = expectedErrorEnd(elementClass->name);
    QVERIFY2(errorEnd.isEmpty() ? error.isEmpty() : error.endsWith(errorEnd), qPrintable(error));
    if (auto* result = dynamic_cast<XmlGridResultType*>(element.get()))
        result->setScreenshotFilename(QStringLiteral("cep.png")); // not reached by reading

    QCOMPARE(element->syntaxError(), QString());
    QVERIFY(element->isValid());
    const QString tag = sample.mid(1, sample.indexOf(QRegularExpression(QStringLiteral("[ >]"))) - 1);
    QCOMPARE(ElementTest::written(*element, tag), asWritten(sample));
}

void CommentsTest::picturesShowEveryClass()
{
    static const QRegularExpression className(QStringLiteral("\\bXml\\w+"));
    QSet<QString> shown;
    const QString sources = contentOfAll(PICTURES, "*.dot");
    for (auto matches = className.globalMatch(sources); matches.hasNext();)
        shown.insert(matches.next().captured());

    QSet<QString> expected = {QStringLiteral("XmlResInfo")}; // the base of the records
    for (const ElementClass& elementClass : Samples::classes())
        expected.insert(elementClass.name);
    // No document holds these.
    expected.remove(QStringLiteral("XmlFreqThrListType"));
    expected.remove(QStringLiteral("XmlFreqThrPairType"));
    expected.remove(QStringLiteral("XmlResInfo_BestSensor_Type"));

    QCOMPARE(QStringList((shown - expected).values()).join(QLatin1Char(' ')), QString());
    QCOMPARE(QStringList((expected - shown).values()).join(QLatin1Char(' ')), QString());
}

QTEST_APPLESS_MAIN(CommentsTest)
#include "comments_test.moc"
