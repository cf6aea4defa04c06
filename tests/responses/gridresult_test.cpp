#include "support/elementtest.h"
#include "support/responsetest.h"
#include "support/values.h"

#include <arvxml/gridresult.h>

#include <limits>
#include <type_traits>
#include <utility>

using namespace ArvXml;
using namespace ResponseTest;
using TestValues::names;
using TestValues::text;

namespace {

/// Shows the error text that is kept in the element.
template <typename Element>
struct Probe : Element {
    using XmlElementBase::mySyntaxError;
};

using Result = XmlGridResultType;

/// The kinds of results.
const struct Kind {
    Result::ResultType type;
    const char* text;
    const char* wrapper;
    const char* className; ///< of the parameters
    const char* names;     ///< the child of the parameters to which the tests give a name
    bool hasAreas;         ///< whether "AOIs" follows
    const char* problem;   ///< when the parameters are missing or accompanied by others
} kinds[] = {
    {Result::ResultFindSites, "FindSites", "FindPossibleSites", "XmlFindSitesType", "DeploymentAreas", false,
     "Type is 'FindSites' but no FindSites parameters or other parameters found"},
    {Result::ResultCep, "CEP", "CEP", "XmlCepType", "UseDFs", true,
     "Type is 'CEP' but no CEP parameters or other parameters found"},
    {Result::ResultDetectProb, "DetectProb", "DetectionProbability", "XmlDetectProbType", "UseRxDFs", true,
     "Type is 'DetectProb' but no DetectProb parameters or other parameters found"},
    {Result::ResultDfCoverage, "DfCoverage", "DFcoverage", "XmlDfCovType", "UseDFs", true,
     "Type is 'DfCoverage' but no DfCoverage parameters or other parameters found"},
    {Result::ResultBestSensorCov, "BestSensorCov", "BestSensorCov", "XmlBestSensorType", "UseRxDFs", true,
     "Type is 'BestSensorCov' but no BestSensorCov parameters or other parameters found"},
};
constexpr int kindCount = 5;

XmlNameAllMultiType all()
{
    XmlNameAllMultiType names;
    names.setAll();
    return names;
}

XmlFindSitesType findSites(const QString& name)
{
    XmlFindSitesType parameters;
    parameters.setDeploymentAreas(names(name));
    return parameters;
}

XmlCepType cep(const QString& name)
{
    XmlCepType parameters;
    parameters.setUseDFs(names(name));
    parameters.setAOIs(all());
    return parameters;
}

XmlDetectProbType detectProb(const QString& name)
{
    XmlDetectProbType parameters;
    parameters.setUseRxDFs(names(name));
    parameters.setAOIs(all());
    return parameters;
}

XmlDfCovType dfCov(const QString& name)
{
    XmlDfCovType parameters;
    parameters.setUseDFs(names(name));
    parameters.setAOIs(all());
    return parameters;
}

XmlBestSensorType bestSensor(const QString& name)
{
    XmlBestSensorType parameters;
    parameters.setUseRxDFs(names(name));
    parameters.setAOIs(all());
    return parameters;
}

void setParameters(Result& result, int kind, const QString& name)
{
    switch (kind) {
    case 0:
        return result.setFindSites(findSites(name));
    case 1:
        return result.setCep(cep(name));
    case 2:
        return result.setDetectProb(detectProb(name));
    case 3:
        return result.setDfCov(dfCov(name));
    default:
        return result.setBestSensor(bestSensor(name));
    }
}

const XmlElementBase* parameters(const Result& result, int kind)
{
    const XmlElementBase* const held[] = {result.findSites(), result.cep(), result.detectProb(), result.dfCov(),
                                          result.bestSensor()};
    return held[kind];
}

bool hasParameters(const Result& result, int kind)
{
    const bool held[] = {result.hasFindSites(), result.hasCep(), result.hasDetectProb(), result.hasDfCov(),
                         result.hasBestSensor()};
    return held[kind];
}

/// The parameters as they stand under "Parameter".
QString parametersXml(int kind, const QString& name)
{
    return QStringLiteral("<Parameter><%1><Name>%2</Name></%1>%3</Parameter>")
        .arg(QLatin1String(kinds[kind].names), name,
             kinds[kind].hasAreas ? QStringLiteral("<AOIs><All/></AOIs>") : QString());
}

QString wrapperXml(int kind, const QString& name, const QString& filename)
{
    return QStringLiteral("<%1>%2<ScreenshotFilename>%3</ScreenshotFilename></%1>")
        .arg(QLatin1String(kinds[kind].wrapper), parametersXml(kind, name), filename);
}

/// The problem of parameters of which the name is empty.
QString parametersError(int kind)
{
    return QStringLiteral("+++ in %1 Begin:\n"
                          "+++ in XmlNameAllMultiType Begin:\n"
                          "+++ in XmlObjNameType Begin:\n"
                          "Object name too short (min. 1).\n"
                          "--- in XmlObjNameType End\n"
                          "--- in XmlNameAllMultiType End\n"
                          "--- in %1 End")
        .arg(QLatin1String(kinds[kind].className));
}

/// A result that holds the sets of which the bits in \a sets are set, all named \a name.
Result resultWith(int sets, const QString& name, const QString& filename)
{
    Result result;
    for (int kind = 0; kind < kindCount; ++kind) {
        if ((sets & (1 << kind)) != 0)
            setParameters(result, kind, name);
    }
    result.setScreenshotFilename(filename);
    return result;
}

QString writtenSets(int sets, const QString& name, const QString& filename)
{
    QString xml;
    for (int kind = 0; kind < kindCount; ++kind) {
        if ((sets & (1 << kind)) != 0)
            xml += wrapperXml(kind, name, filename);
    }
    return xml;
}

QString written(const Result& result)
{
    return ElementTest::written(result, QStringLiteral("G"));
}

XmlGridValuesType values(const QString& version, const QString& unit, double min, double max)
{
    XmlGridValuesType element;
    element.setVersion(version);
    element.setUnit(unit);
    element.setMin(min);
    element.setMax(max);
    return element;
}

} // namespace

static_assert(std::is_base_of_v<XmlElementBase, XmlGridResultType>);
static_assert(std::is_base_of_v<XmlElementBase, XmlGridValuesType>);
static_assert(std::is_same_v<decltype(std::declval<Result&>().findSites()), const XmlFindSitesType*>);
static_assert(std::is_same_v<decltype(std::declval<Result&>().cep()), const XmlCepType*>);
static_assert(std::is_same_v<decltype(std::declval<Result&>().detectProb()), const XmlDetectProbType*>);
static_assert(std::is_same_v<decltype(std::declval<Result&>().dfCov()), const XmlDfCovType*>);
static_assert(std::is_same_v<decltype(std::declval<Result&>().bestSensor()), const XmlBestSensorType*>);

class GridresultTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void newResult();
    void accessors();
    void parametersAreCopiedAndAssigned();
    void copiesOfResults_data();
    void copiesOfResults();
    void selfAssignmentOfResult();
    void errorTextIsCopiedAndReset();
    void writtenResult_data();
    void writtenResult();
    void checkedResult_data();
    void checkedResult();
    void checkedUnknownType_data();
    void checkedUnknownType();
    void typeRead_data();
    void typeRead();
    void wrappers_data();
    void wrappers();
    void refusedInResult_data();
    void refusedInResult();
    void parametersRead_data();
    void parametersRead();
    void readingIntoUsedResult();
    void useAfterFailedRead();
    void wrongPosition_data();
    void wrongPosition();
    void unknownTypeAtAWrongPosition();
    void resetResult();

    void newValues();
    void valuesAccessorsAndCopies();
    void writtenValues_data();
    void writtenValues();
    void valuesRead_data();
    void valuesRead();
    void valuesTags_data();
    void valuesTags();
    void refusedInValues_data();
    void refusedInValues();
    void attributesOfUsedValues_data();
    void attributesOfUsedValues();
    void valuesAfterFailedRead();
    void tagOfItsChildren();
    void checkedValues_data();
    void checkedValues();
    void resetValues();
};

// The grid result

void GridresultTest::newResult()
{
    Result result;
    QCOMPARE(result.type(), Result::ResultUndefined);
    for (int kind = 0; kind < kindCount; ++kind) {
        QVERIFY(!hasParameters(result, kind));
        QVERIFY(parameters(result, kind) == nullptr);
    }
    QCOMPARE(result.screenshotFilename(), QString());
    QVERIFY(!result.isValid());
}

void GridresultTest::accessors()
{
    QCOMPARE(static_cast<int>(Result::ResultUndefined), 0);
    QCOMPARE(static_cast<int>(Result::ResultFindSites), 1);
    QCOMPARE(static_cast<int>(Result::ResultCep), 2);
    QCOMPARE(static_cast<int>(Result::ResultDetectProb), 3);
    QCOMPARE(static_cast<int>(Result::ResultDfCoverage), 4);
    QCOMPARE(static_cast<int>(Result::ResultBestSensorCov), 5);

    Result result;
    for (const Kind& kind : kinds) {
        result.setType(kind.type);
        QCOMPARE(result.type(), kind.type);
    }
    result.setScreenshotFilename(QStringLiteral("grid.png"));
    QCOMPARE(result.screenshotFilename(), QStringLiteral("grid.png"));
    QVERIFY(!result.hasFindSites());
}

void GridresultTest::parametersAreCopiedAndAssigned()
{
    for (int kind = 0; kind < kindCount; ++kind) {
        Result result;
        setParameters(result, kind, QStringLiteral("first"));
        for (int other = 0; other < kindCount; ++other)
            QCOMPARE(hasParameters(result, other), other == kind);
        const XmlElementBase* const held = parameters(result, kind);
        QVERIFY(held != nullptr);
        setParameters(result, kind, QStringLiteral("second"));
        QCOMPARE(parameters(result, kind), held);
        QCOMPARE(ElementTest::written(*held, QStringLiteral("Parameter")),
                 parametersXml(kind, QStringLiteral("second")));
    }

    Result result = resultWith(31, QStringLiteral("own"), QString());
    result.setFindSites(*result.findSites());
    result.setCep(*result.cep());
    result.setDetectProb(*result.detectProb());
    result.setDfCov(*result.dfCov());
    result.setBestSensor(*result.bestSensor());
    QCOMPARE(written(result),
             QStringLiteral("<G type=\"UNDEFINED\">%1</G>").arg(writtenSets(31, QStringLiteral("own"), QString())));

    XmlCepType given = cep(QStringLiteral("given"));
    result.setCep(given);
    given.setUseDFs(names(QStringLiteral("changed")));
    QCOMPARE(result.cep()->useDFs()->objNames().first()->objName(), QStringLiteral("given"));
}

void GridresultTest::copiesOfResults_data()
{
    QTest::addColumn<int>("sets");
    for (int sets = 0; sets < 32; ++sets)
        QTest::addRow("a source with sets %d%d%d%d%d", sets & 1, (sets >> 1) & 1, (sets >> 2) & 1, (sets >> 3) & 1,
                      sets >> 4)
            << sets;
}

void GridresultTest::copiesOfResults()
{
    QFETCH(int, sets);

    const QString expected = sets == 0
        ? QStringLiteral("<G type=\"CEP\"/>")
        : QStringLiteral("<G type=\"CEP\">%1</G>")
              .arg(writtenSets(sets, QStringLiteral("source"), QStringLiteral("source.png")));
    Result source = resultWith(sets, QStringLiteral("source"), QStringLiteral("source.png"));
    source.setType(Result::ResultCep);
    const Result copy(source);
    for (int kind = 0; kind < kindCount; ++kind) {
        QCOMPARE(hasParameters(copy, kind), (sets & (1 << kind)) != 0);
        QVERIFY(!hasParameters(copy, kind) || parameters(copy, kind) != parameters(source, kind));
    }

    for (int before = 0; before < 32; ++before) {
        Result target = resultWith(before, QStringLiteral("target"), QStringLiteral("target.png"));
        target.setType(Result::ResultDfCoverage);
        target = copy;
        QCOMPARE(written(target), expected);
        for (int kind = 0; kind < kindCount; ++kind)
            QVERIFY(!hasParameters(copy, kind) || parameters(copy, kind) != parameters(target, kind));
        target.reset();
    }
    source.reset();
    QCOMPARE(written(copy), expected);
}

void GridresultTest::selfAssignmentOfResult()
{
    Result result = resultWith(31, QStringLiteral("n"), QStringLiteral("f"));
    result.setType(Result::ResultDfCoverage);
    const Result& self = result;
    result = self;
    QCOMPARE(
        written(result),
        QStringLiteral("<G type=\"DfCoverage\">%1</G>").arg(writtenSets(31, QStringLiteral("n"), QStringLiteral("f"))));
}

void GridresultTest::errorTextIsCopiedAndReset()
{
    Probe<XmlGridResultType> result;
    result.setScreenshotFilename(QStringLiteral("f"));
    result.syntaxError();
    const QString resultText = QStringLiteral("+++ in XmlGridResultType Begin:\n"
                                              "Type not defined\n"
                                              "--- in XmlGridResultType End");
    checkKeptErrorText(result, resultText);

    Probe<XmlGridValuesType> range;
    range.syntaxError();
    const QString rangeText = QStringLiteral("+++ in XmlGridValuesType Begin:\n"
                                             "Missing mandatory attributes\n"
                                             "--- in XmlGridValuesType End");
    checkKeptErrorText(range, rangeText);
}

void GridresultTest::writtenResult_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("sets");
    QTest::addColumn<QString>("xml");

    QTest::newRow("a new object") << 0 << 0 << text("<G type=\"UNDEFINED\"/>");
    QTest::newRow("a type without a set") << 3 << 0 << text("<G type=\"DetectProb\"/>");
    QTest::newRow("a type above the known ones") << 6 << 0 << text("<G type=\"UNDEFINED\"/>");
    QTest::newRow("a type below the known ones") << -1 << 0 << text("<G type=\"UNDEFINED\"/>");
    QTest::newRow("possible sites")
        << 1 << 1
        << text("<G type=\"FindSites\"><FindPossibleSites><Parameter><DeploymentAreas><Name>n</Name>"
                "</DeploymentAreas></Parameter><ScreenshotFilename>f.png</ScreenshotFilename>"
                "</FindPossibleSites></G>");
    QTest::newRow("a circular error")
        << 2 << 2
        << text("<G type=\"CEP\"><CEP><Parameter><UseDFs><Name>n</Name></UseDFs><AOIs><All/></AOIs></Parameter>"
                "<ScreenshotFilename>f.png</ScreenshotFilename></CEP></G>");
    QTest::newRow("a detection probability")
        << 3 << 4
        << text("<G type=\"DetectProb\"><DetectionProbability><Parameter><UseRxDFs><Name>n</Name></UseRxDFs>"
                "<AOIs><All/></AOIs></Parameter><ScreenshotFilename>f.png</ScreenshotFilename>"
                "</DetectionProbability></G>");
    QTest::newRow("a direction-finding coverage")
        << 4 << 8
        << text("<G type=\"DfCoverage\"><DFcoverage><Parameter><UseDFs><Name>n</Name></UseDFs><AOIs><All/></AOIs>"
                "</Parameter><ScreenshotFilename>f.png</ScreenshotFilename></DFcoverage></G>");
    QTest::newRow("a best sensor coverage")
        << 5 << 16
        << text("<G type=\"BestSensorCov\"><BestSensorCov><Parameter><UseRxDFs><Name>n</Name></UseRxDFs><AOIs><All/>"
                "</AOIs></Parameter><ScreenshotFilename>f.png</ScreenshotFilename></BestSensorCov></G>");
    QTest::newRow("a set that is not of the type")
        << 1 << 2
        << text("<G type=\"FindSites\"><CEP><Parameter><UseDFs><Name>n</Name></UseDFs><AOIs><All/></AOIs></Parameter>"
                "<ScreenshotFilename>f.png</ScreenshotFilename></CEP></G>");
    QTest::newRow("all sets, each with the file name, in their order")
        << 4 << 31
        << text("<G type=\"DfCoverage\">"
                "<FindPossibleSites><Parameter><DeploymentAreas><Name>n</Name></DeploymentAreas></Parameter>"
                "<ScreenshotFilename>f.png</ScreenshotFilename></FindPossibleSites>"
                "<CEP><Parameter><UseDFs><Name>n</Name></UseDFs><AOIs><All/></AOIs></Parameter>"
                "<ScreenshotFilename>f.png</ScreenshotFilename></CEP>"
                "<DetectionProbability><Parameter><UseRxDFs><Name>n</Name></UseRxDFs><AOIs><All/></AOIs></Parameter>"
                "<ScreenshotFilename>f.png</ScreenshotFilename></DetectionProbability>"
                "<DFcoverage><Parameter><UseDFs><Name>n</Name></UseDFs><AOIs><All/></AOIs></Parameter>"
                "<ScreenshotFilename>f.png</ScreenshotFilename></DFcoverage>"
                "<BestSensorCov><Parameter><UseRxDFs><Name>n</Name></UseRxDFs><AOIs><All/></AOIs></Parameter>"
                "<ScreenshotFilename>f.png</ScreenshotFilename></BestSensorCov></G>");
}

void GridresultTest::writtenResult()
{
    QFETCH(int, type);
    QFETCH(int, sets);
    QFETCH(QString, xml);

    Result result = resultWith(sets, QStringLiteral("n"), QStringLiteral("f.png"));
    result.setType(static_cast<Result::ResultType>(type));
    QCOMPARE(written(result), xml);

    result.setScreenshotFilename(QString()); // the element is written all the same
    QCOMPARE(written(result), xml.replace(QLatin1String(">f.png<"), QLatin1String("><")));
}

void GridresultTest::checkedResult_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("sets");
    QTest::addColumn<int>("invalidSets");
    QTest::addColumn<bool>("hasFilename");

    for (int type = 0; type <= kindCount; ++type) {
        for (int sets = 0; sets < 32; ++sets) {
            for (const bool hasFilename : {true, false}) {
                for (int invalid = -1; invalid <= kindCount; ++invalid) { // none, one of them, all
                    const int invalidSets = invalid < 0 ? 0 : invalid == kindCount ? sets : sets & (1 << invalid);
                    if (invalid >= 0 && invalidSets == 0)
                        continue;
                    QTest::addRow("type %d, sets %d, of these invalid %d (%d), %s file name", type, sets, invalidSets,
                                  invalid, hasFilename ? "with a" : "without a")
                        << type << sets << invalidSets << hasFilename;
                }
            }
        }
    }
}

void GridresultTest::checkedResult()
{
    QFETCH(int, type);
    QFETCH(int, sets);
    QFETCH(int, invalidSets);
    QFETCH(bool, hasFilename);

    Result result;
    result.setType(static_cast<Result::ResultType>(type));
    if (hasFilename)
        result.setScreenshotFilename(QStringLiteral("f.png"));
    QStringList problems;
    const bool agrees = type > 0 && sets == 1 << (type - 1);
    if (type > 0 && !agrees)
        problems += text(kinds[type - 1].problem);
    for (int kind = 0; kind < kindCount; ++kind) {
        if ((sets & (1 << kind)) == 0)
            continue;
        const bool invalid = (invalidSets & (1 << kind)) != 0;
        setParameters(result, kind, invalid ? QString() : QStringLiteral("n"));
        if (invalid)
            problems += parametersError(kind);
    }
    if (type == 0)
        problems += text("Type not defined");
    if (!hasFilename)
        problems += text("Screenshot path not set");

    const QString error = problems.isEmpty()
        ? QString()
        : QStringLiteral("+++ in XmlGridResultType Begin:\n%1\n--- in XmlGridResultType End")
              .arg(problems.join(QLatin1Char('\n')));
    QCOMPARE(result.isValid(), agrees && invalidSets == 0 && hasFilename);
    QCOMPARE(result.syntaxError(), error);
    QCOMPARE(result.syntaxError(), error);
}

// A type beyond the known ones has no parameters that could be its own, and no message either.
void GridresultTest::checkedUnknownType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("hasSet");
    for (const int type : {-1, 6, 99}) {
        QTest::addRow("type %d with a set", type) << type << true;
        QTest::addRow("type %d without a set", type) << type << false;
    }
}

void GridresultTest::checkedUnknownType()
{
    QFETCH(int, type);
    QFETCH(bool, hasSet);
    Result result;
    result.setType(static_cast<Result::ResultType>(type));
    result.setScreenshotFilename(QStringLiteral("f.png"));
    if (hasSet)
        setParameters(result, 0, QStringLiteral("n"));
    QVERIFY(!result.isValid());
    QCOMPARE(result.syntaxError(), QString());
}

void GridresultTest::typeRead_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<int>("type");

    for (const Kind& kind : kinds)
        QTest::addRow("%s is a type", kind.text)
            << QStringLiteral(" type=\"%1\"").arg(text(kind.text)) << int(kind.type);
    QTest::newRow("UNDEFINED is no type") << text(" type=\"UNDEFINED\"") << 0;
    QTest::newRow("an empty text is no type") << text(" type=\"\"") << 0;
    QTest::newRow("a missing attribute") << QString() << 0;
    QTest::newRow("the case counts") << text(" type=\"Cep\"") << 0;
    QTest::newRow("the case counts in the attribute's name") << text(" Type=\"CEP\"") << 0;
    QTest::newRow("blanks count") << text(" type=\" CEP\"") << 0;
    QTest::newRow("a number is no type") << text(" type=\"2\"") << 0;
    for (const char* wrapper : {"FindPossibleSites", "DetectionProbability", "DFcoverage"})
        QTest::addRow("%s is a wrapper, no type", wrapper) << QStringLiteral(" type=\"%1\"").arg(text(wrapper)) << 0;
}

void GridresultTest::typeRead()
{
    QFETCH(QString, attribute);
    QFETCH(int, type);

    for (const auto before : {Result::ResultUndefined, Result::ResultDetectProb}) {
        Result result;
        result.setType(before);
        if (type == 0) {
            const Refusal refused = refusal(QStringLiteral("\n<GridResult%1>|\n<CEP/></GridResult>").arg(attribute),
                                            text("XmlGridResultType"), text("Illegal attribute value in \"type\""));
            QCOMPARE(ElementTest::readError(result, refused.xml), refused.error);
        } else {
            QCOMPARE(ElementTest::readError(result, QStringLiteral("<GridResult%1>").arg(attribute)),
                     QStringLiteral("Premature end of document."));
        }
        QCOMPARE(static_cast<int>(result.type()), type);
    }
}

void GridresultTest::wrappers_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<bool>("accepted");

    for (int type = 0; type < kindCount; ++type) {
        for (const Kind& kind : kinds) {
            QTest::addRow("wrapper %s under type %s", kind.wrapper, kinds[type].text)
                << type << text(kind.wrapper) << (kind.type == kinds[type].type);
        }
    }
    // What stands in the wrapper may not stand before it; the wrapper has another name than the type
    for (const char* tag : {"Parameter", "ScreenshotFilename", "Other", "cep", "FindSites", "DetectProb", "DfCoverage"})
        QTest::addRow("%s is no wrapper", tag) << 1 << text(tag) << false;
}

void GridresultTest::wrappers()
{
    QFETCH(int, kind);
    QFETCH(QString, tag);
    QFETCH(bool, accepted);

    Result result;
    const QString start = QStringLiteral("<GridResult type=\"%1\">\n  <%2>|").arg(text(kinds[kind].text), tag);
    const Refusal refused =
        refusal(start, text("XmlGridResultType"), QStringLiteral("Unexpected token \"StartElement\": ") + tag);
    QCOMPARE(ElementTest::readError(result, refused.xml),
             accepted ? QStringLiteral("Premature end of document.") : refused.error);
    QVERIFY(!hasParameters(result, kind));
}

void GridresultTest::refusedInResult_data()
{
    QTest::addColumn<QString>("marked");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("message");

    const auto row = [](const char* name, const char* marked, const char* className, const char* message) {
        QTest::newRow(name) << text(marked) << text(className) << text(message);
    };
    const char own[] = "XmlGridResultType";
    row("no wrapper", "<G type=\"CEP\">\n</G>|", own, "Unexpected token \"EndElement\": G");
    // An empty wrapper is left by its end tag, but does not complete the result.
    row("an empty FindPossibleSites", "<G type=\"FindSites\">\n<FindPossibleSites></FindPossibleSites></G>|", own,
        "Unexpected token \"EndElement\": G");
    row("an empty CEP", "<G type=\"CEP\">\n<CEP></CEP></G>|", own, "Unexpected token \"EndElement\": G");
    row("an empty DetectionProbability", "<G type=\"DetectProb\">\n<DetectionProbability></DetectionProbability></G>|",
        own, "Unexpected token \"EndElement\": G");
    row("an empty DFcoverage", "<G type=\"DfCoverage\">\n<DFcoverage></DFcoverage></G>|", own,
        "Unexpected token \"EndElement\": G");
    row("an empty BestSensorCov", "<G type=\"BestSensorCov\">\n<BestSensorCov></BestSensorCov></G>|", own,
        "Unexpected token \"EndElement\": G");
    row("another end tag", "<H type=\"CEP\">\n\n </H>|", own, "Unexpected token \"EndElement\": H");
    row("the wrapper in itself", "<G type=\"CEP\"><CEP><CEP>|</CEP></CEP></G>", own,
        "Unexpected token \"StartElement\": CEP");
    row("another wrapper in the wrapper", "<G type=\"CEP\"><CEP>\n<DFcoverage>|</DFcoverage></CEP></G>", own,
        "Unexpected token \"StartElement\": DFcoverage");
    row("a second wrapper", "<G type=\"CEP\">\n<CEP/>\n<CEP>|</CEP></G>", own,
        "Unexpected token \"StartElement\": CEP");
    row("another wrapper after the wrapper", "<G type=\"CEP\"><CEP/><DFcoverage>|</DFcoverage></G>", own,
        "Unexpected token \"StartElement\": DFcoverage");
    row("a file name before the parameters",
        "<G type=\"CEP\">\n<CEP><ScreenshotFilename>|f</ScreenshotFilename></CEP></G>", own,
        "Unexpected token \"StartElement\": ScreenshotFilename");
    row("parameters after the wrapper", "<G type=\"CEP\"><CEP/><Parameter>|</Parameter></G>", own,
        "Unexpected token \"StartElement\": Parameter");
    row("a file name after the wrapper", "<G type=\"CEP\"><CEP/><ScreenshotFilename>|</ScreenshotFilename></G>", own,
        "Unexpected token \"StartElement\": ScreenshotFilename");
    row("another element in the wrapper", "<G type=\"CEP\"><CEP><parameter>|</parameter></CEP></G>", own,
        "Unexpected token \"StartElement\": parameter");
    row("the parameters directly in the wrapper", "<G type=\"CEP\"><CEP><UseDFs>|</UseDFs></CEP></G>", own,
        "Unexpected token \"StartElement\": UseDFs");
    row("a wrapper named like the element", "<CEP type=\"CEP\">\n<CEP>\n</CEP>\n</CEP>|", own,
        "Unexpected token \"EndElement\": CEP");
    row("text and comments are skipped before", "<G type=\"CEP\">5<!-- c --><?pi d?><CEP>a<Other>|</Other></CEP></G>",
        own, "Unexpected token \"StartElement\": Other");
    row("empty parameters", "<G type=\"CEP\">\n<CEP>\n<Parameter></Parameter>|</CEP></G>", "XmlCepType",
        "Unexpected token \"EndElement\": Parameter");
    row("parameters of another kind", "<G type=\"CEP\"><CEP><Parameter>\n<UseRxDFs>|</UseRxDFs></Parameter></CEP></G>",
        "XmlCepType", "Unexpected token \"StartElement\": UseRxDFs");
    row("parameters that are wrong inside",
        "<G type=\"DfCoverage\"><DFcoverage><Parameter><UseDFs><Site>|</Site></UseDFs></Parameter></DFcoverage></G>",
        "XmlNameAllMultiType", "Unexpected element \"Site\"");
}

void GridresultTest::refusedInResult()
{
    QFETCH(QString, marked);
    QFETCH(QString, className);
    QFETCH(QString, message);

    const Refusal refused = refusal(marked, className, message);
    QXmlStreamReader reader(refused.xml);
    reader.readNextStartElement();
    Result result;
    const QString tag = reader.name() == QLatin1String("CEP") ? QStringLiteral("CEP") : QStringLiteral("G");
    result.processXml(reader, tag);
    QCOMPARE(reader.errorString(), refused.error);
}

void GridresultTest::parametersRead_data()
{
    QTest::addColumn<int>("kind");
    for (int kind = 0; kind < kindCount; ++kind)
        QTest::newRow(kinds[kind].text) << kind;
}

void GridresultTest::parametersRead()
{
    QFETCH(int, kind);

    // The parameters take the wrapper's tag for theirs: what is written cannot be read to its end.
    const QString wrapper = text(kinds[kind].wrapper);
    const QString before = QStringLiteral("<GridResult type=\"%1\">\n <%2>\n  %3")
                               .arg(text(kinds[kind].text), wrapper, parametersXml(kind, QStringLiteral("read")));
    const QString after = QStringLiteral("<ScreenshotFilename>f</ScreenshotFilename></%1></GridResult>").arg(wrapper);
    const Refusal refused = refusal(before + QLatin1Char('|') + after, text(kinds[kind].className),
                                    text("Unexpected token \"EndElement\": Parameter"));
    // All sets are held: only that of the type is replaced
    Result result = resultWith(31, QStringLiteral("old"), QStringLiteral("old.png"));
    QCOMPARE(ElementTest::readError(result, refused.xml), refused.error);
    QCOMPARE(result.type(), kinds[kind].type);
    for (int other = 0; other < kindCount; ++other) {
        QCOMPARE(ElementTest::written(*parameters(result, other), QStringLiteral("Parameter")),
                 parametersXml(other, other == kind ? QStringLiteral("read") : QStringLiteral("old")));
    }
    QCOMPARE(result.screenshotFilename(), QStringLiteral("old.png"));

    Result fresh;
    QCOMPARE(ElementTest::readError(fresh, refused.xml), refused.error);
    for (int other = 0; other < kindCount; ++other)
        QCOMPARE(hasParameters(fresh, other), other == kind);
    QCOMPARE(fresh.screenshotFilename(), QString());

    // so the writer's own document is refused
    Result complete = resultWith(1 << kind, QStringLiteral("n"), QStringLiteral("f"));
    complete.setType(kinds[kind].type);
    QVERIFY(complete.isValid());
    QVERIFY(ElementTest::readError(fresh, written(complete))
                .endsWith(QLatin1String("Unexpected token \"EndElement\": Parameter.")));
}

void GridresultTest::readingIntoUsedResult()
{
    // Parameters are held until new ones begin, and then replaced as a whole
    Result result;
    XmlCepType parameters = cep(QStringLiteral("old"));
    parameters.setProbability(XmlCepProbType());
    result.setCep(parameters);
    ElementTest::readError(result, QStringLiteral("<G type=\"CEP\"><CEP></CEP></G>"));
    QVERIFY(result.hasCep());
    QVERIFY(result.cep()->hasProbability());
    ElementTest::readError(result, QStringLiteral("<G type=\"CEP\"><CEP><Parameter></Parameter></CEP></G>"));
    QVERIFY(result.hasCep());
    QVERIFY(!result.cep()->hasProbability());
    QVERIFY(result.cep()->useDFs()->objNames().isEmpty());
}

void GridresultTest::useAfterFailedRead()
{
    Result result;
    const QString xml = QStringLiteral("<G type=\"CEP\"><CEP><Parameter><UseDFs><Name>n</Name></UseDFs>"
                                       "<AOIs><All/></AOIs></Parameter>"
                                       "<ScreenshotFilename>f</ScreenshotFilename></CEP></G>");
    const QString error = QStringLiteral("in XmlCepType (line 1, column 92): "
                                         "Unexpected token \"EndElement\": Parameter.");
    QCOMPARE(ElementTest::readError(result, xml), error);
    QVERIFY(!result.isValid());
    QCOMPARE(result.syntaxError(),
             QStringLiteral("+++ in XmlGridResultType Begin:\n"
                            "Screenshot path not set\n"
                            "--- in XmlGridResultType End"));
    result.setScreenshotFilename(QStringLiteral("f"));
    QVERIFY(result.isValid());
    const Result copy(result);
    QCOMPARE(written(copy), xml);
    QCOMPARE(ElementTest::readError(result, xml), error);
    result.reset();
    QCOMPARE(written(result), QStringLiteral("<G type=\"UNDEFINED\"/>"));
    QCOMPARE(ElementTest::readError(result, xml), error);
    QVERIFY(result.hasCep());

    QXmlStreamReader broken(QStringLiteral("<G type=\"CEP\"><CEP></G>"));
    broken.readNextStartElement();
    result.processXml(broken, QStringLiteral("G"));
    QCOMPARE(broken.error(), QXmlStreamReader::NotWellFormedError); // the reader's own, not replaced
    QVERIFY(!broken.errorString().startsWith(QLatin1String("in ")));
}

void GridresultTest::wrongPosition_data()
{
    addWrongPositions("line 2, column 56", "line 2, column 63", "line 2, column 67");
}

void GridresultTest::wrongPosition()
{
    QFETCH(int, tokens);
    QFETCH(QString, place);

    const QString xml = QStringLiteral("<?xml version=\"1.0\"?>\n"
                                       "<r type=\"CEP\" version=\"2.0\" unit=\"dB\" status=\"ack\">text<!-- -->"
                                       "</r>");
    // A result
    QXmlStreamReader reader(xml);
    for (int i = 0; i < tokens; ++i)
        reader.readNext();
    Result result = resultWith(2, QStringLiteral("n"), QStringLiteral("f"));
    result.setType(Result::ResultDfCoverage);
    const QString before = written(result);
    result.processXml(reader, QStringLiteral("r"));
    QCOMPARE(reader.errorString(),
             QStringLiteral("in XmlGridResultType (%1): Parse error (wrong position).").arg(place));
    QCOMPARE(written(result), before);

    // A range, which then does not look at its version either
    QXmlStreamReader other(xml);
    for (int i = 0; i < tokens; ++i)
        other.readNext();
    XmlGridValuesType range = values(QStringLiteral("3.0"), QString(), 1.0, 2.0);
    range.processXml(other, QStringLiteral("r"));
    QCOMPARE(other.errorString(),
             QStringLiteral("in XmlGridValuesType (%1): Parse error (wrong position).").arg(place));
    QCOMPARE(ElementTest::written(range, QStringLiteral("V")),
             QStringLiteral("<V version=\"3.0\" unit=\"\"><Min>1</Min><Max>2</Max></V>"));
}

// What a setter put into it is no type to begin with; the sanitizers would see it shifted by.
void GridresultTest::unknownTypeAtAWrongPosition()
{
    for (const int type : {-1, 99}) {
        XmlGridResultType result;
        result.setType(static_cast<XmlGridResultType::ResultType>(type));
        QXmlStreamReader reader(QStringLiteral("<GridResult type=\"CEP\"/>"));
        result.processXml(reader, QStringLiteral("GridResult"));
        QCOMPARE(reader.errorString(),
                 QStringLiteral("in XmlGridResultType (line 1, column 0): Parse error (wrong position)."));
    }
}

void GridresultTest::resetResult()
{
    Result result = resultWith(31, QStringLiteral("n"), QStringLiteral("f"));
    result.setType(Result::ResultBestSensorCov);
    result.reset();
    QCOMPARE(result.type(), Result::ResultUndefined);
    for (int kind = 0; kind < kindCount; ++kind) {
        QVERIFY(!hasParameters(result, kind));
        QVERIFY(parameters(result, kind) == nullptr);
    }
    QCOMPARE(result.screenshotFilename(), QString());
    QCOMPARE(result.syntaxError(),
             QStringLiteral("+++ in XmlGridResultType Begin:\n"
                            "Type not defined\n"
                            "Screenshot path not set\n"
                            "--- in XmlGridResultType End"));
}

// The range of values

void GridresultTest::newValues()
{
    const XmlGridValuesType range;
    QCOMPARE(range.version(), QStringLiteral("1.0"));
    QCOMPARE(range.unit(), QString());
    QCOMPARE(range.min(), 0.0);
    QCOMPARE(range.max(), 0.0);
    QVERIFY(!range.isValid());
}

void GridresultTest::valuesAccessorsAndCopies()
{
    XmlGridValuesType range = values(QStringLiteral("2.0"), QStringLiteral("dB"), -1.5, 4.25);
    QCOMPARE(range.version(), QStringLiteral("2.0"));
    QCOMPARE(range.unit(), QStringLiteral("dB"));
    QCOMPARE(range.min(), -1.5);
    QCOMPARE(range.max(), 4.25);

    const XmlGridValuesType copy(range);
    XmlGridValuesType assigned = values(QStringLiteral("1.0"), QStringLiteral("m"), 7.0, 8.0);
    assigned = range;
    const XmlGridValuesType& self = range;
    range = self;
    for (const XmlGridValuesType* each : {&copy, &std::as_const(assigned), &std::as_const(range)})
        QCOMPARE(ElementTest::written(*each, QStringLiteral("V")),
                 QStringLiteral("<V version=\"2.0\" unit=\"dB\"><Min>-1.5</Min><Max>4.25</Max></V>"));
    range.setUnit(QStringLiteral("changed"));
    QCOMPARE(copy.unit(), QStringLiteral("dB"));
}

void GridresultTest::writtenValues_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QString>("minText");
    QTest::addColumn<QString>("maxText");

    constexpr double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("zero") << 0.0 << 0.0 << text("0") << text("0");
    QTest::newRow("very small and very large")
        << 0.000012345678 << 1234567.0 << text("1.23457e-05") << text("1.23457e+06");
    QTest::newRow("six digits before the exponent is needed")
        << 123456.0 << 999999.0 << text("123456") << text("999999");
    QTest::newRow("no trailing zeros") << -12.5 << 40.0 << text("-12.5") << text("40");
    QTest::newRow("rounded to six digits") << 3.14159265 << -1000.12345 << text("3.14159") << text("-1000.12");
    QTest::newRow("the smallest without an exponent") << 0.0001 << 0.00009 << text("0.0001") << text("9e-05");
    QTest::newRow("no numbers") << std::numeric_limits<double>::quiet_NaN() << infinity << text("nan") << text("inf");
}

void GridresultTest::writtenValues()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(QString, minText);
    QFETCH(QString, maxText);

    QCOMPARE(ElementTest::written(values(QStringLiteral("1.0"), QStringLiteral("dB"), min, max), QStringLiteral("V")),
             QStringLiteral("<V version=\"1.0\" unit=\"dB\"><Min>%1</Min><Max>%2</Max></V>").arg(minText, maxText));
    QCOMPARE(
        ElementTest::written(values(QString(), QString(), min, max), QStringLiteral("Values")),
        QStringLiteral("<Values version=\"\" unit=\"\"><Min>%1</Min><Max>%2</Max></Values>").arg(minText, maxText));
}

void GridresultTest::valuesRead_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");

    constexpr double infinity = std::numeric_limits<double>::infinity();
    const auto row = [](const char* name, const char* xml, double min, double max) {
        QTest::newRow(name) << text(xml) << min << max;
    };
    row("both numbers", "<V version=\"1.0\" unit=\"dB\"><Min>-12.5</Min><Max>40</Max></V>", -12.5, 40.0);
    row("the order of the attributes does not matter",
        "<V unit=\"dB\" version=\"1.0\"><Min>-1e3</Min><Max>+0.5</Max></V>", -1000.0, 0.5);
    row("a version that is absent stays as it was", "<V unit=\"dB\"><Min>1</Min><Max>2</Max></V>", 1.0, 2.0);
    row("empty numbers stay as they were", "<V version=\"1.0\" unit=\"dB\"><Min></Min><Max/></V>", 0.0, 0.0);
    row("a minimum above the maximum", "<V version=\"1.0\" unit=\"dB\"><Min>2</Min><Max>1</Max></V>", 2.0, 1.0);
    row("the last piece of a text counts",
        "<V version=\"1.0\" unit=\"dB\"><Min>1<!-- c -->2<?pi d?>3</Min><Max><![CDATA[4]]><!-- c --></Max></V>", 3.0,
        4.0);
    row("comments between the numbers",
        "<V version=\"1.0\" unit=\"dB\"><!-- c --><Min>1</Min><?pi d?><Max>2</Max><!-- c --></V>", 1.0, 2.0);
    row("infinite", "<V version=\"1.0\" unit=\"dB\"><Min>-inf</Min><Max>inf</Max></V>", -infinity, infinity);
}

void GridresultTest::valuesRead()
{
    QFETCH(QString, xml);
    QFETCH(double, min);
    QFETCH(double, max);

    XmlGridValuesType range;
    QCOMPARE(ElementTest::readError(range, xml), QString());
    QCOMPARE(range.version(), QStringLiteral("1.0"));
    QCOMPARE(range.unit(), QStringLiteral("dB"));
    QCOMPARE(range.min(), min);
    QCOMPARE(range.max(), max);

    const QString out = ElementTest::written(range, QStringLiteral("W"));
    XmlGridValuesType again;
    QCOMPARE(ElementTest::readError(again, out), QString());
    QCOMPARE(ElementTest::written(again, QStringLiteral("W")), out);
}

void GridresultTest::valuesTags_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<bool>("accepted");

    const struct {
        const char* name;
        const char* before;
        const char* accepted;
    } states[] = {
        {"at the start", "", "Min"},
        {"in Min", "<Min>", ""},
        {"in Min after its number", "<Min>1", ""},
        {"after Min", "<Min>1</Min>", "Max"},
        {"after an empty Min", "<Min/>", "Max"},
        {"in Max", "<Min>1</Min><Max>", ""},
        {"after Max", "<Min>1</Min><Max>2</Max>", ""},
    };
    for (const auto& state : states) {
        for (const char* tag : {"Min", "Max", "Other", "min"}) {
            const bool accepted = QByteArray(state.accepted) == tag;
            QTest::addRow("%s %s is %s", tag, state.name, accepted ? "accepted" : "refused")
                << text(state.before) << text(tag) << accepted;
        }
    }
}

void GridresultTest::valuesTags()
{
    QFETCH(QString, before);
    QFETCH(QString, tag);
    QFETCH(bool, accepted);

    XmlGridValuesType range;
    const Refusal refused = refusal(QStringLiteral("<V version=\"1.0\"\nunit=\"dB\">%1<%2>|").arg(before, tag),
                                    text("XmlGridValuesType"), QStringLiteral("Unexpected element \"%1\"").arg(tag));
    QCOMPARE(ElementTest::readError(range, refused.xml),
             accepted ? QStringLiteral("Premature end of document.") : refused.error);
}

void GridresultTest::refusedInValues_data()
{
    QTest::addColumn<QString>("marked");
    QTest::addColumn<QString>("message");

    const auto row = [](const char* name, const char* marked, const char* message) {
        QTest::newRow(name) << text(marked) << text(message);
    };
    const char lacking[] = "Missing mandatory attributes";
    row("no attributes", "<V>|<Min>1</Min><Max>2</Max></V>", lacking);
    row("no unit", "<V version=\"1.0\">|<Min>1</Min><Max>2</Max></V>", lacking);
    row("an empty unit", "\n\n<V version=\"1.0\"\n  unit=\"\">|<Min>1</Min><Max>2</Max></V>", lacking);
    row("an unsupported version", "<V version=\"2.0\" unit=\"dB\">|<Min>1</Min><Max>2</Max></V>",
        "Version not supported: 2.0");
    row("a version written otherwise", "<V version=\"1.00\" unit=\"dB\">|<Min>1</Min><Max>2</Max></V>",
        "Version not supported: 1.00");
    row("the version is complained about last", "<V version=\"2.0\">|<Min>1</Min><Max>2</Max></V>",
        "Version not supported: 2.0");
    row("an empty version is missing, and not supported", "<V version=\"\" unit=\"dB\">|<Min>1</Min><Max>2</Max></V>",
        "Version not supported: ");

    // A text has been read to its end when the "<" after it has been seen
    const char characters[] = "Unexpected characters";
    row("white space before Min", "<V version=\"1.0\" unit=\"dB\">\n  <|Min>1</Min><Max>2</Max></V>", characters);
    row("white space between the numbers", "<V version=\"1.0\" unit=\"dB\"><Min>1</Min>\n  <|Max>2</Max></V>",
        characters);
    row("white space after Max", "<V version=\"1.0\" unit=\"dB\"><Min>1</Min><Max>2</Max>\n<|/V>", characters);
    row("white space alone in Min", "<V version=\"1.0\" unit=\"dB\"><Min> <|/Min><Max>2</Max></V>", characters);
    row("a number before Min", "<V version=\"1.0\" unit=\"dB\">5<|Min>1</Min><Max>2</Max></V>", characters);
    row("a number between the numbers", "<V version=\"1.0\" unit=\"dB\"><Min>1</Min>5<|Max>2</Max></V>", characters);
    row("a number after Max", "<V version=\"1.0\" unit=\"dB\"><Min>1</Min><Max>2</Max>5<|/V>", characters);
    row("no number in Min", "<V version=\"1.0\" unit=\"dB\"><Min>abc<|/Min><Max>2</Max></V>", characters);
    row("no number in Max", "<V version=\"1.0\"\n unit=\"dB\"><Min>1</Min><Max>1,5<|/Max></V>", characters);
    row("a number with its unit", "<V version=\"1.0\" unit=\"dB\"><Min>1 dB<|/Min><Max>2</Max></V>", characters);

    const char end[] = "Unexpected token \"EndElement\"";
    row("no numbers", "<V version=\"1.0\" unit=\"dB\"></V>|", end);
    row("a minimum alone", "<V version=\"1.0\" unit=\"dB\"><Min>1</Min></V>|", end);
    row("another end tag", "<X version=\"1.0\" unit=\"dB\"><Min>1</Min><Max>2</Max></X>|", end);
}

void GridresultTest::refusedInValues()
{
    QFETCH(QString, marked);
    QFETCH(QString, message);

    checkRefused<XmlGridValuesType>(refusal(marked, text("XmlGridValuesType"), message), QStringLiteral("V"));
}

void GridresultTest::attributesOfUsedValues_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("versionRead");
    QTest::addColumn<QString>("unitRead");

    const auto row = [](const char* name, const char* version, const char* unit, const char* attributes,
                        const char* message, const char* versionRead, const char* unitRead) {
        QTest::newRow(name) << text(version) << text(unit) << text(attributes) << text(message) << text(versionRead)
                            << text(unitRead);
    };
    row("absent attributes leave what is held", "1.0", "dB", "", "", "1.0", "dB");
    row("an absent unit leaves the unit", "1.0", "dB", " version=\"1.0\"", "", "1.0", "dB");
    row("a unit is replaced", "1.0", "dB", " unit=\"m\"", "", "1.0", "m");
    row("a version is replaced", "2.0", "dB", " version=\"1.0\"", "", "1.0", "dB");
    row("an absent version is not restored", "2.0", "dB", " unit=\"m\"", "Version not supported: 2.0", "2.0", "m");
    row("an empty unit is taken", "1.0", "dB", " unit=\"\"", "Missing mandatory attributes", "1.0", "");
    row("an empty version is taken", "1.0", "dB", " version=\"\"", "Version not supported: ", "", "dB");
}

void GridresultTest::attributesOfUsedValues()
{
    QFETCH(QString, version);
    QFETCH(QString, unit);
    QFETCH(QString, attributes);
    QFETCH(QString, message);
    QFETCH(QString, versionRead);
    QFETCH(QString, unitRead);

    XmlGridValuesType range = values(version, unit, 7.0, 8.0);
    const Refusal refused = refusal(QStringLiteral("<V%1>|<Min>1</Min><Max></Max></V>").arg(attributes),
                                    text("XmlGridValuesType"), message);
    QCOMPARE(ElementTest::readError(range, refused.xml), message.isEmpty() ? QString() : refused.error);
    QCOMPARE(range.version(), versionRead);
    QCOMPARE(range.unit(), unitRead);
    QCOMPARE(range.min(), message.isEmpty() ? 1.0 : 7.0);
    QCOMPARE(range.max(), 8.0);
}

void GridresultTest::valuesAfterFailedRead()
{
    XmlGridValuesType range;
    const QString indented = QStringLiteral("<V version=\"1.0\" unit=\"dB\"><Min>1</Min>\n  <Max>2</Max></V>");
    QCOMPARE(ElementTest::readError(range, indented),
             QStringLiteral("in XmlGridValuesType (line 2, column 3): Unexpected characters."));
    QVERIFY(range.isValid());
    QCOMPARE(range.syntaxError(), QString());
    QCOMPARE(ElementTest::written(XmlGridValuesType(range), QStringLiteral("V")),
             QStringLiteral("<V version=\"1.0\" unit=\"dB\"><Min>1</Min><Max>0</Max></V>"));

    // A text that is no number changes nothing
    QCOMPARE(ElementTest::readError(range, QStringLiteral("<V><Min>x</Min></V>")),
             QStringLiteral("in XmlGridValuesType (line 1, column 10): Unexpected characters."));
    QCOMPARE(range.min(), 1.0);

    QCOMPARE(ElementTest::readError(range, QStringLiteral("<V><Min>3</Min><Max>4</Max></V>")), QString());
    QCOMPARE(range.min(), 3.0);
    QCOMPARE(range.max(), 4.0);

    QXmlStreamReader broken(QStringLiteral("<V><Min>3</V>"));
    broken.readNextStartElement();
    range.processXml(broken, QStringLiteral("V"));
    QCOMPARE(broken.error(), QXmlStreamReader::NotWellFormedError); // the reader's own, not replaced
    QVERIFY(!broken.errorString().startsWith(QLatin1String("in ")));
}

void GridresultTest::tagOfItsChildren()
{
    // The inner end tags close the numbers, not the element
    for (const QString& tag : {QStringLiteral("Min"), QStringLiteral("Max")}) {
        QXmlStreamReader reader(
            QStringLiteral("<%1 version=\"1.0\" unit=\"dB\"><Min>1</Min><Max>2</Max></%1>").arg(tag));
        reader.readNextStartElement();
        XmlGridValuesType range;
        range.processXml(reader, tag);
        QCOMPARE(reader.errorString(), QString());
        QCOMPARE(range.max(), 2.0);
        QVERIFY(reader.isEndElement());
        QCOMPARE(reader.readNext(), QXmlStreamReader::EndDocument);
    }
}

void GridresultTest::checkedValues_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("problems");

    QTest::newRow("complete") << text("1.0") << text("dB") << QString();
    QTest::newRow("without a unit") << text("1.0") << QString() << text("Missing mandatory attributes\n");
    QTest::newRow("of another version") << text("2.0") << text("dB") << text("Version \"2.0\" not supported\n");
    QTest::newRow("of another version, without a unit")
        << text("1.1") << QString() << text("Missing mandatory attributes\nVersion \"1.1\" not supported\n");
    QTest::newRow("without a version") << QString() << text("dB")
                                       << text("Missing mandatory attributes\nVersion \"\" not supported\n");
    QTest::newRow("without both") << QString() << QString()
                                  << text("Missing mandatory attributes\nVersion \"\" not supported\n");
}

void GridresultTest::checkedValues()
{
    QFETCH(QString, version);
    QFETCH(QString, unit);
    QFETCH(QString, problems);

    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double number : {0.0, 5.0, nan}) { // the numbers do not matter
        XmlGridValuesType range = values(version, unit, number, 1.0);
        QCOMPARE(range.isValid(), problems.isEmpty());
        const QString error = problems.isEmpty()
            ? QString()
            : QStringLiteral("+++ in XmlGridValuesType Begin:\n%1--- in XmlGridValuesType End").arg(problems);
        QCOMPARE(range.syntaxError(), error);
        QCOMPARE(range.syntaxError(), error);
    }
}

void GridresultTest::resetValues()
{
    XmlGridValuesType range = values(QStringLiteral("2.0"), QStringLiteral("dB"), 1.0, 2.0);
    range.reset();
    QCOMPARE(range.min(), 0.0);
    QCOMPARE(range.max(), 0.0);
    QCOMPARE(range.version(), QStringLiteral("2.0"));
    QCOMPARE(range.unit(), QStringLiteral("dB"));
}

QTEST_APPLESS_MAIN(GridresultTest)
#include "gridresult_test.moc"
