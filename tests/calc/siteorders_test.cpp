#include "support/positions.h"
#include "support/values.h"

#include <arvxml/siteorders.h>

#include <climits>
#include <type_traits>
#include <utility>

using namespace ArvXml;
using ElementTest::checkReadingFromElsewhere;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;
using TestValues::grid;
using TestValues::names;

namespace {

const QString sitesTag = QStringLiteral("FindPossibleSites");
const QString linkTag = QStringLiteral("InterlinkPlanning");

const QString uninitialised = QStringLiteral("+++ in XmlNameAllMultiType Begin:\n"
                                             "Uninitialized.\n"
                                             "--- in XmlNameAllMultiType End\n");
const QString nameTooShort = QStringLiteral("+++ in XmlNameAllMultiType Begin:\n"
                                            "+++ in XmlObjNameType Begin:\n"
                                            "Object name too short (min. 1).\n"
                                            "--- in XmlObjNameType End\n"
                                            "--- in XmlNameAllMultiType End\n");

QString sitesBlock(const QString& body)
{
    return QStringLiteral("+++ in XmlFindSitesType Begin:\n") + body + QStringLiteral("--- in XmlFindSitesType End");
}

XmlFindSitesType::Distribution distribution(int value)
{
    return static_cast<XmlFindSitesType::Distribution>(value);
}

/// Shows what the base keeps for itself.
struct Sites : XmlFindSitesType {
    using XmlFindSitesType::classname;
    using XmlFindSitesType::mySyntaxError;
};
struct Link : XmlInterlinkPlanningType {
    using XmlInterlinkPlanningType::classname;
    using XmlInterlinkPlanningType::mySyntaxError;
};

/// An order that is valid with its areas alone.
Sites validSites()
{
    Sites order;
    order.setDeploymentAreas(names(QStringLiteral("A")));
    return order;
}

Sites fullSites()
{
    Sites order = validSites();
    order.setKnownEmitters(names(QStringLiteral("E")));
    order.setRandNumber(10);
    order.setRandDistri(distribution(2));
    order.setResultGrid(grid(3));
    return order;
}

const QString fullSitesXml = QStringLiteral("<FindPossibleSites><UseKnownEmitters><Name>E</Name></UseKnownEmitters>"
                                            "<RandomEmitters><Number>10</Number><Distribution>Grid</Distribution>"
                                            "</RandomEmitters><DeploymentAreas><Name>A</Name></DeploymentAreas>"
                                            "<ResultGrid>100</ResultGrid></FindPossibleSites>");

Link link(const QString& first, const QString& second)
{
    Link order;
    order.setFirstName(first);
    order.setSecondName(second);
    return order;
}

} // namespace

class SiteordersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void interface();
    void sitesDefaults();
    void sitesAccessors();
    void sitesCopies();
    void sitesAssignments_data();
    void sitesAssignments();
    void sitesRoundTrip();
    void sitesGates_data();
    void sitesGates();
    void sitesEnd_data();
    void sitesEnd();
    void sitesNumbers_data();
    void sitesNumbers();
    void sitesDistributions_data();
    void sitesDistributions();
    void sitesRandomEmitters_data();
    void sitesRandomEmitters();
    void sitesProblemsInOrder();
    void sitesReset();
    void sitesReuse();
    void sitesPositions();
    void sitesUnderTheTagOfAnInnerElement();

    void linkDefaults();
    void linkAccessorsAndCopies();
    void linkRoundTrip();
    void linkGates_data();
    void linkGates();
    void linkLengths_data();
    void linkLengths();
    void linkReaderErrors_data();
    void linkReaderErrors();
    void linkJudgement_data();
    void linkJudgement();
    void linkReset();
    void linkReuse();
    void linkPositions();
};

void SiteordersTest::interface()
{
    using Distribution = XmlFindSitesType::Distribution;
    static_assert(std::is_base_of_v<XmlElementBase, XmlFindSitesType>);
    static_assert(std::is_base_of_v<XmlElementBase, XmlInterlinkPlanningType>);
    static_assert(std::is_same_v<decltype(std::declval<XmlFindSitesType&>().randDistri()), Distribution>);
    static_assert(std::is_same_v<decltype(std::declval<const XmlFindSitesType&>().randDistri()), Distribution>);
    static_assert(std::is_same_v<decltype(std::declval<XmlFindSitesType&>().randNumber()), int>);
    static_assert(
        std::is_same_v<decltype(std::declval<XmlFindSitesType&>().knownEmitters()), const XmlNameAllMultiType*>);
    static_assert(
        std::is_same_v<decltype(std::declval<XmlFindSitesType&>().deploymentAreas()), const XmlNameAllMultiType*>);
    static_assert(std::is_same_v<decltype(std::declval<XmlFindSitesType&>().resultGrid()), const XmlResultGridType*>);
    QCOMPARE(Sites().classname(), QStringLiteral("XmlFindSitesType"));
    QCOMPARE(Link().classname(), QStringLiteral("XmlInterlinkPlanningType"));
}

// Possible sites

void SiteordersTest::sitesDefaults()
{
    Sites order;
    QVERIFY(!order.hasKnownEmitters());
    QVERIFY(!order.knownEmitters());
    QCOMPARE(order.randNumber(), -1);
    QCOMPARE(static_cast<int>(order.randDistri()), 0);
    QVERIFY(!order.hasRandEmitters());
    QVERIFY(order.deploymentAreas()->objNames().isEmpty());
    QVERIFY(!order.hasResultGrid());
    QVERIFY(!order.resultGrid());
    QVERIFY(!order.isValid());
    QCOMPARE(order.syntaxError(), sitesBlock(uninitialised));
    QCOMPARE(written(order, sitesTag),
             QStringLiteral("<FindPossibleSites><DeploymentAreas><All/></DeploymentAreas></FindPossibleSites>"));
}

void SiteordersTest::sitesAccessors()
{
    Sites order;
    const XmlNameAllMultiType* areas = order.deploymentAreas();
    order.setDeploymentAreas(names(QStringLiteral("A")));
    QCOMPARE(order.deploymentAreas(), areas);
    QCOMPARE(areas->objNames().first()->objName(), QStringLiteral("A"));

    const XmlNameAllMultiType emitters = names(QStringLiteral("D"));
    order.setKnownEmitters(emitters);
    const XmlNameAllMultiType* heldEmitters = order.knownEmitters();
    QVERIFY(order.hasKnownEmitters());
    QVERIFY(heldEmitters != &emitters);
    order.setKnownEmitters(names(QStringLiteral("E")));
    QCOMPARE(order.knownEmitters(), heldEmitters);
    QCOMPARE(heldEmitters->objNames().first()->objName(), QStringLiteral("E"));

    const XmlResultGridType given = grid(1);
    order.setResultGrid(given);
    const XmlResultGridType* heldGrid = order.resultGrid();
    QVERIFY(order.hasResultGrid());
    QVERIFY(heldGrid != &given);
    order.setResultGrid(grid(3));
    QCOMPARE(order.resultGrid(), heldGrid);
    QCOMPARE(static_cast<int>(heldGrid->size()), 3);

    order.setRandNumber(10);
    QCOMPARE(order.randNumber(), 10);
    order.setRandDistri(distribution(2));
    QCOMPARE(static_cast<int>(order.randDistri()), 2);
    QCOMPARE(static_cast<int>(std::as_const(order).randDistri()), 2);

    order.setDeploymentAreas(*order.deploymentAreas());
    order.setKnownEmitters(*order.knownEmitters());
    order.setResultGrid(*order.resultGrid());
    QCOMPARE(written(order, sitesTag), fullSitesXml);
}

void SiteordersTest::sitesCopies()
{
    Sites original = fullSites();
    Sites copy(original);
    QVERIFY(copy.knownEmitters() != original.knownEmitters());
    QVERIFY(copy.deploymentAreas() != original.deploymentAreas());
    QVERIFY(copy.resultGrid() != original.resultGrid());
    Sites assigned;
    assigned = original;
    original.setKnownEmitters(names(QStringLiteral("X")));
    original.setDeploymentAreas(names(QStringLiteral("X")));
    original.setResultGrid(grid(1));
    original.setRandNumber(1);
    original.setRandDistri(distribution(1));
    QCOMPARE(written(copy, sitesTag), fullSitesXml);
    QCOMPARE(written(assigned, sitesTag), fullSitesXml);
    const Sites& same = copy;
    copy = same;
    QCOMPARE(written(copy, sitesTag), fullSitesXml);

    Sites faulty;
    faulty.syntaxError();
    QCOMPARE(Sites(faulty).mySyntaxError(), sitesBlock(uninitialised));
    copy = faulty;
    QCOMPARE(copy.mySyntaxError(), sitesBlock(uninitialised));
}

void SiteordersTest::sitesAssignments_data()
{
    QTest::addColumn<bool>("targetKnown");
    QTest::addColumn<bool>("targetGrid");
    QTest::addColumn<bool>("sourceKnown");
    QTest::addColumn<bool>("sourceGrid");

    for (int i = 0; i < 16; ++i) {
        QTest::newRow(qPrintable(QStringLiteral("presence %1").arg(i, 4, 2, QLatin1Char('0'))))
            << ((i & 8) != 0) << ((i & 4) != 0) << ((i & 2) != 0) << ((i & 1) != 0);
    }
}

void SiteordersTest::sitesAssignments()
{
    QFETCH(bool, targetKnown);
    QFETCH(bool, targetGrid);
    QFETCH(bool, sourceKnown);
    QFETCH(bool, sourceGrid);

    XmlFindSitesType target;
    if (targetKnown)
        target.setKnownEmitters(names(QStringLiteral("Old")));
    if (targetGrid)
        target.setResultGrid(grid(1));
    XmlFindSitesType source;
    if (sourceKnown)
        source.setKnownEmitters(names(QStringLiteral("New")));
    if (sourceGrid)
        source.setResultGrid(grid(2));

    target = source;
    QCOMPARE(target.hasKnownEmitters(), sourceKnown);
    QCOMPARE(target.hasResultGrid(), sourceGrid);
    if (sourceKnown) {
        QVERIFY(target.knownEmitters() != source.knownEmitters());
        QCOMPARE(target.knownEmitters()->objNames().first()->objName(), QStringLiteral("New"));
    }
    if (sourceGrid) {
        QVERIFY(target.resultGrid() != source.resultGrid());
        QCOMPARE(static_cast<int>(target.resultGrid()->size()), 2);
    }
    const XmlFindSitesType copy(source);
    QCOMPARE(copy.hasKnownEmitters(), sourceKnown);
    QCOMPARE(copy.hasResultGrid(), sourceGrid);
}

void SiteordersTest::sitesRoundTrip()
{
    auto order = readFrom<XmlFindSitesType>(fullSitesXml);
    QCOMPARE(order.knownEmitters()->objNames().first()->objName(), QStringLiteral("E"));
    QCOMPARE(order.randNumber(), 10);
    QCOMPARE(static_cast<int>(order.randDistri()), 2);
    QVERIFY(order.hasRandEmitters());
    QCOMPARE(order.deploymentAreas()->objNames().first()->objName(), QStringLiteral("A"));
    QCOMPARE(static_cast<int>(order.resultGrid()->size()), 3);
    QVERIFY(order.isValid());
    QCOMPARE(order.syntaxError(), QString());
    QCOMPARE(written(order, sitesTag), fullSitesXml);

    // Text, comments and attributes mean nothing.
    auto noisy = readFrom<XmlFindSitesType>(
        QStringLiteral("<Sites version=\"2.0\">text<!-- c --><RandomEmitters x=\"y\">\n <Number>7</Number>text"
                       "<?p i?><Distribution>Random</Distribution></RandomEmitters><![CDATA[x]]>"
                       "<DeploymentAreas><All/></DeploymentAreas></Sites>"));
    QCOMPARE(written(noisy, sitesTag),
             QStringLiteral("<FindPossibleSites><RandomEmitters><Number>7</Number><Distribution>Random</Distribution>"
                            "</RandomEmitters><DeploymentAreas><All/></DeploymentAreas></FindPossibleSites>"));
    QVERIFY(!noisy.hasKnownEmitters());
    QVERIFY(!noisy.hasResultGrid());
}

void SiteordersTest::sitesGates_data()
{
    QTest::addColumn<QStringList>("tokens");
    QTest::addColumn<bool>("accepted");

    // For each child and the end of "RandomEmitters" after what comes before: "+" accepted, "x"
    // refused, "-" not possible in a document. Letters: K(nown), R(andom start), N(umber),
    // D(istribution), E(nd of random), A(reas), G(rid), U(nknown).
    const auto token = [](QChar letter) {
        switch (letter.toLatin1()) {
        case 'K':
            return QStringLiteral("UseKnownEmitters");
        case 'R':
            return QStringLiteral("RandomEmitters");
        case 'N':
            return QStringLiteral("Number");
        case 'D':
            return QStringLiteral("Distribution");
        case 'E':
            return QStringLiteral("/RandomEmitters");
        case 'A':
            return QStringLiteral("DeploymentAreas");
        case 'G':
            return QStringLiteral("ResultGrid");
        default:
            return QStringLiteral("randomemitters");
        }
    };
    const auto add = [&](const char* before, const char* outcomes) {
        const QString next = QStringLiteral("KRNDEAGU");
        QStringList beforeTokens;
        for (const QChar letter : QString::fromLatin1(before))
            beforeTokens.append(token(letter));
        for (int i = 0; i < next.size(); ++i) {
            if (outcomes[i] == '-')
                continue;
            QTest::newRow(qPrintable(QStringLiteral("(%1) then %2").arg(QString::fromLatin1(before), token(next[i]))))
                << (beforeTokens + QStringList(token(next[i]))) << (outcomes[i] == '+');
        }
    };

    //            KRNDEAGU
    add("", "++xx-++x");
    add("K", "x+xx-++x");
    add("R", "xx++x++x");
    add("RN", "xxx+x++x");
    add("RD", "xxxxx++x");
    add("RND", "xxxx+++x");
    add("RNDE", "xxxx-++x");
    add("A", "xxxx-x+x");
    add("G", "xxxx-xxx");
    add("AG", "xxxx-xxx");
    add("KR", "xx++x++x");
    add("KRNDE", "xxxx-++x");
    add("KA", "xxxx-x+x");
    add("KG", "xxxx-xxx");
    add("RA", "xx++xx+x"); // inside "RandomEmitters" too
    add("RAN", "xxx+xx+x");
    add("RAND", "xxxx+x+x");
    add("RANDE", "xxxx-x+x");
    add("RG", "xx++xxxx");
    add("RGND", "xxxx+xxx");
    add("RNDEA", "xxxx-x+x");
    add("RNDEG", "xxxx-xxx");
    add("KRNDEAG", "xxxx-xxx");
}

void SiteordersTest::sitesGates()
{
    QFETCH(QStringList, tokens);
    QFETCH(bool, accepted);

    // Each token on a line of its own below the start tag; an unknown element shows that the last one
    // was accepted.
    const auto tokenXml = [](const QString& token) {
        if (token == QLatin1String("RandomEmitters") || token.startsWith(QLatin1Char('/')))
            return QStringLiteral("<%1>").arg(token);
        if (token == QLatin1String("Number"))
            return QStringLiteral("<Number>10</Number>");
        if (token == QLatin1String("Distribution"))
            return QStringLiteral("<Distribution>Grid</Distribution>");
        if (token == QLatin1String("ResultGrid"))
            return QStringLiteral("<ResultGrid>100</ResultGrid>");
        return QStringLiteral("<%1><All/></%1>").arg(token);
    };
    QString xml = QStringLiteral("<FindPossibleSites>\n");
    for (const QString& token : tokens)
        xml += tokenXml(token) + QLatin1Char('\n');
    xml += QStringLiteral("<Probe>");

    const QString last = tokens.last();
    QString expected;
    if (accepted) {
        expected = QStringLiteral("in XmlFindSitesType (line %1, column 7): Unexpected token \"StartElement\": Probe.")
                       .arg(tokens.size() + 2);
    } else if (last.startsWith(QLatin1Char('/'))) {
        expected = QStringLiteral("in XmlFindSitesType (line %1, column 17): "
                                  "Unexpected token \"EndElement\": RandomEmitters.")
                       .arg(tokens.size() + 1);
    } else {
        expected = QStringLiteral("in XmlFindSitesType (line %1, column %2): Unexpected token \"StartElement\": %3.")
                       .arg(tokens.size() + 1)
                       .arg(last.size() + 2)
                       .arg(last);
    }
    XmlFindSitesType order;
    QCOMPARE(readError(order, xml), expected);

    // The next reading starts afresh, whatever was open.
    QCOMPARE(readError(order, fullSitesXml), QString());
}

void SiteordersTest::sitesEnd_data()
{
    QTest::addColumn<QString>("children");
    QTest::addColumn<bool>("complete");

    const QString known = QStringLiteral("<UseKnownEmitters><All/></UseKnownEmitters>");
    const QString random = QStringLiteral("<RandomEmitters><Number>1</Number><Distribution>Grid</Distribution>"
                                          "</RandomEmitters>");
    const QString areas = QStringLiteral("<DeploymentAreas><All/></DeploymentAreas>");
    const QString gridXml = QStringLiteral("<ResultGrid>100</ResultGrid>");
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("known emitters") << known << false;
    QTest::newRow("random emitters") << random << false;
    QTest::newRow("a grid") << gridXml << false;
    QTest::newRow("all but the areas") << known + random + gridXml << false;
    QTest::newRow("the areas") << areas << true;
    QTest::newRow("known emitters and areas") << known + areas << true;
    QTest::newRow("random emitters and areas") << random + areas << true;
    QTest::newRow("areas and a grid") << areas + gridXml << true;
    QTest::newRow("known and random emitters and areas") << known + random + areas << true;
    QTest::newRow("everything") << known + random + areas + gridXml << true;
    QTest::newRow("areas inside the random emitters")
        << QStringLiteral("<RandomEmitters><DeploymentAreas><All/></DeploymentAreas><Number>1</Number>"
                          "<Distribution>Grid</Distribution></RandomEmitters>")
        << true;
}

void SiteordersTest::sitesEnd()
{
    QFETCH(QString, children);
    QFETCH(bool, complete);

    XmlFindSitesType order;
    QCOMPARE(readError(order, QStringLiteral("<FindPossibleSites>\n%1\n</FindPossibleSites>").arg(children)),
             complete ? QString()
                      : QStringLiteral("in XmlFindSitesType (line 3, column 20): "
                                       "Unexpected token \"EndElement\": FindPossibleSites."));
}

void SiteordersTest::sitesNumbers_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("error");

    const QString none;
    QTest::newRow("zero") << QStringLiteral("0") << 0 << none;
    QTest::newRow("the most") << QStringLiteral("500") << 500 << none;
    QTest::newRow("too many is stored all the same") << QStringLiteral("501") << 501 << none;
    QTest::newRow("minus one") << QStringLiteral("-1") << -1 << none;
    QTest::newRow("a negative number is stored all the same") << QStringLiteral("-7") << -7 << none;
    QTest::newRow("the largest integer") << QStringLiteral("2147483647") << INT_MAX << none;
    QTest::newRow("leading zeros are decimal") << QStringLiteral("010") << 10 << none;
    QTest::newRow("blanks around are dropped") << QStringLiteral(" 12 ") << 12 << none;
    QTest::newRow("a comment inside is passed over") << QStringLiteral("1<!-- -->2") << 12 << none;
    const QString at = QStringLiteral("in XmlFindSitesType (line 2, column %1): "
                                      "Illegal value for \"Number\" (must be numeric).");
    QTest::newRow("beyond the largest integer") << QStringLiteral("2147483648") << -1 << at.arg(27);
    QTest::newRow("a fraction") << QStringLiteral("12.5") << -1 << at.arg(21);
    QTest::newRow("a word") << QStringLiteral("ten") << -1 << at.arg(20);
    QTest::newRow("hexadecimal") << QStringLiteral("0x10") << -1 << at.arg(21);
    QTest::newRow("digits and letters") << QStringLiteral("12a") << -1 << at.arg(20);
    QTest::newRow("nothing") << QString() << -1 << at.arg(17);
    QTest::newRow("an element inside after digits")
        << QStringLiteral("12<x/>") << 12 << QStringLiteral("Expected character data.");
    QTest::newRow("an element inside alone") << QStringLiteral("<x></x>") << -1 << at.arg(11);
}

void SiteordersTest::sitesNumbers()
{
    QFETCH(QString, content);
    QFETCH(int, number);
    QFETCH(QString, error);

    XmlFindSitesType order;
    order.setRandNumber(77);
    QCOMPARE(readError(order,
                       QStringLiteral("<F><RandomEmitters>\n<Number>%1</Number><Distribution>Grid</Distribution>"
                                      "</RandomEmitters><DeploymentAreas><All/></DeploymentAreas></F>")
                           .arg(content)),
             error);
    QCOMPARE(order.randNumber(), number);
}

void SiteordersTest::sitesDistributions_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("error");

    const QString at = QStringLiteral("in XmlFindSitesType (line 2, column %1): "
                                      "Illegal value for \"Distribution\".");
    QTest::newRow("Random") << QStringLiteral("Random") << 1 << QString();
    QTest::newRow("Grid") << QStringLiteral("Grid") << 2 << QString();
    QTest::newRow("another text") << QStringLiteral("Other") << 0 << at.arg(34);
    QTest::newRow("lower case") << QStringLiteral("grid") << 0 << at.arg(33);
    QTest::newRow("a blank before") << QStringLiteral(" Grid") << 0 << at.arg(34);
    QTest::newRow("UNDEFINED is never read") << QStringLiteral("UNDEFINED") << 0 << at.arg(38);
    QTest::newRow("a value") << QStringLiteral("2") << 0 << at.arg(30);
    QTest::newRow("nothing") << QString() << 0 << at.arg(29);
    QTest::newRow("an element inside after the text")
        << QStringLiteral("Grid<x/>") << 2 << QStringLiteral("Expected character data.");
    QTest::newRow("an element inside alone") << QStringLiteral("<x></x>") << 0 << at.arg(17);
}

void SiteordersTest::sitesDistributions()
{
    QFETCH(QString, content);
    QFETCH(int, value);
    QFETCH(QString, error);

    XmlFindSitesType order;
    order.setRandDistri(distribution(1));
    QCOMPARE(readError(order,
                       QStringLiteral("<F><RandomEmitters><Number>5</Number>\n<Distribution>%1</Distribution>"
                                      "</RandomEmitters><DeploymentAreas><All/></DeploymentAreas></F>")
                           .arg(content)),
             error);
    QCOMPARE(static_cast<int>(order.randDistri()), value);
}

void SiteordersTest::sitesRandomEmitters_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("distri");
    QTest::addColumn<QString>("random"); // as written
    QTest::addColumn<QString>("problems");

    const QString none;
    const QString bounds = QStringLiteral("RandomEmitters/Number out of bounds\n");
    const QString notSet = QStringLiteral("RandomEmitters distribution not set\n");
    const QString xml = QStringLiteral("<RandomEmitters><Number>%1</Number><Distribution>%2</Distribution>"
                                       "</RandomEmitters>");
    const QString random = QStringLiteral("Random");
    const QString gridText = QStringLiteral("Grid");
    const QString undefined = QStringLiteral("UNDEFINED");
    const auto number = [](const char* text) { return QString::fromLatin1(text); };

    QTest::newRow("-1 without distribution") << -1 << 0 << none << none;
    QTest::newRow("-1 with distribution") << -1 << 1 << none << none;
    QTest::newRow("-2 without distribution") << -2 << 0 << none << bounds;
    QTest::newRow("-2 with distribution") << -2 << 2 << none << bounds;
    QTest::newRow("the smallest with distribution") << INT_MIN << 2 << none << bounds;
    QTest::newRow("0 without distribution") << 0 << 0 << none << notSet;
    QTest::newRow("0 at random") << 0 << 1 << xml.arg(number("0"), random) << none;
    QTest::newRow("5 without distribution") << 5 << 0 << none << notSet;
    QTest::newRow("5 in a grid") << 5 << 2 << xml.arg(number("5"), gridText) << none;
    QTest::newRow("500 without distribution") << 500 << 0 << none << notSet;
    QTest::newRow("500 at random") << 500 << 1 << xml.arg(number("500"), random) << none;
    QTest::newRow("501 at random") << 501 << 1 << xml.arg(number("501"), random) << bounds;
    QTest::newRow("501 without distribution") << 501 << 0 << none << bounds + notSet;
    QTest::newRow("the largest in a grid") << INT_MAX << 2 << xml.arg(number("2147483647"), gridText) << bounds;
    QTest::newRow("an unknown distribution above") << 5 << 3 << xml.arg(number("5"), undefined) << none;
    QTest::newRow("an unknown distribution below") << 5 << -1 << xml.arg(number("5"), undefined) << none;
}

void SiteordersTest::sitesRandomEmitters()
{
    QFETCH(int, number);
    QFETCH(int, distri);
    QFETCH(QString, random);
    QFETCH(QString, problems);

    Sites order = validSites();
    order.setRandNumber(number);
    order.setRandDistri(distribution(distri));
    QCOMPARE(order.hasRandEmitters(), !random.isEmpty());
    QCOMPARE(written(order, sitesTag),
             QStringLiteral("<FindPossibleSites>%1<DeploymentAreas><Name>A</Name></DeploymentAreas>"
                            "</FindPossibleSites>")
                 .arg(random));
    QCOMPARE(order.isValid(), problems.isEmpty());
    QCOMPARE(order.syntaxError(), problems.isEmpty() ? QString() : sitesBlock(problems));
}

void SiteordersTest::sitesProblemsInOrder()
{
    const QString gridError = QStringLiteral("+++ in XmlResultGridType Begin:\n"
                                             "Illegal grid size.\n"
                                             "--- in XmlResultGridType End\n");
    Sites order;
    order.setKnownEmitters(names(QString()));
    order.setRandNumber(501);
    order.setResultGrid(grid(0));
    const QString all = sitesBlock(uninitialised + nameTooShort
                                   + QStringLiteral("RandomEmitters/Number out of bounds\n"
                                                    "RandomEmitters distribution not set\n")
                                   + gridError);
    QCOMPARE(order.syntaxError(), all);
    QCOMPARE(order.syntaxError(), all);
    QVERIFY(!order.isValid());

    // Each alone.
    order = validSites();
    order.setKnownEmitters(names(QString()));
    QVERIFY(!order.isValid());
    QCOMPARE(order.syntaxError(), sitesBlock(nameTooShort));
    order = validSites();
    order.setKnownEmitters(XmlNameAllMultiType());
    QVERIFY(!order.isValid());
    QCOMPARE(order.syntaxError(), sitesBlock(uninitialised));
    order = validSites();
    order.setResultGrid(grid(0));
    QVERIFY(!order.isValid());
    QCOMPARE(order.syntaxError(), sitesBlock(gridError));
    order = fullSites();
    QVERIFY(order.isValid());
    QCOMPARE(order.syntaxError(), QString());
    order.setDeploymentAreas(names(QString()));
    QVERIFY(!order.isValid());
    QCOMPARE(order.syntaxError(), sitesBlock(nameTooShort));
}

void SiteordersTest::sitesReset()
{
    Sites order = fullSites();
    order.setResultGrid(grid(0));
    order.syntaxError();
    order.reset();
    QCOMPARE(order.mySyntaxError(), QString());
    QVERIFY(!order.hasKnownEmitters());
    QVERIFY(!order.hasResultGrid());
    QCOMPARE(order.randNumber(), -1);
    QCOMPARE(static_cast<int>(order.randDistri()), 0);
    QVERIFY(!order.isValid());
    QCOMPARE(written(order, sitesTag), written(Sites(), sitesTag));
    QCOMPARE(order.syntaxError(), Sites().syntaxError());
}

void SiteordersTest::sitesReuse()
{
    // What the document does not mention stays; the areas grow.
    Sites order = fullSites();
    QCOMPARE(readError(order, QStringLiteral("<F><DeploymentAreas><Name>B</Name></DeploymentAreas></F>")), QString());
    QCOMPARE(
        written(order, sitesTag),
        QString(fullSitesXml).replace(QLatin1String("<Name>A</Name>"), QLatin1String("<Name>A</Name><Name>B</Name>")));

    // Known emitters and a grid read are new ones.
    QCOMPARE(readError(order,
                       QStringLiteral("<F><UseKnownEmitters><Name>G</Name></UseKnownEmitters>"
                                      "<DeploymentAreas><All/></DeploymentAreas><ResultGrid/></F>")),
             QString());
    QCOMPARE(order.knownEmitters()->objNames().size(), 1);
    QCOMPARE(order.knownEmitters()->objNames().first()->objName(), QStringLiteral("G"));
    QCOMPARE(static_cast<int>(order.resultGrid()->size()), 0);

    // What was read before a failure stays, and the order can be used on.
    order = validSites();
    QCOMPARE(readError(order, QStringLiteral("<F><RandomEmitters><Number>8</Number><Bad/>")),
             QStringLiteral("in XmlFindSitesType (line 1, column 43): Unexpected token \"StartElement\": Bad."));
    QCOMPARE(order.randNumber(), 8);
    QCOMPARE(order.syntaxError(), sitesBlock(QStringLiteral("RandomEmitters distribution not set\n")));
    QVERIFY(!order.isValid());
    QCOMPARE(written(XmlFindSitesType(order), sitesTag),
             QStringLiteral("<FindPossibleSites><DeploymentAreas><Name>A</Name></DeploymentAreas>"
                            "</FindPossibleSites>"));
    order.reset();
    QCOMPARE(readError(order, fullSitesXml), QString());
    QCOMPARE(written(order, sitesTag), fullSitesXml);

    // The error of a child is the one reported, and the child stays.
    Sites failed;
    QCOMPARE(readError(failed, QStringLiteral("<F>\n<UseKnownEmitters><Name>H</Name><Bad>")),
             QStringLiteral("in XmlNameAllMultiType (line 2, column 37): Unexpected element \"Bad\"."));
    QCOMPARE(failed.knownEmitters()->objNames().first()->objName(), QStringLiteral("H"));
    QCOMPARE(readError(failed,
                       QStringLiteral("<F><DeploymentAreas><All/></DeploymentAreas>\n"
                                      "<ResultGrid>250</ResultGrid></F>")),
             QStringLiteral("in XmlResultGridType (line 2, column 16): Illegal enum value.."));
    QVERIFY(failed.hasResultGrid());
    QCOMPARE(readError(failed, QStringLiteral("<F>")), QStringLiteral("Premature end of document."));
}

void SiteordersTest::sitesPositions()
{
    const QString xml = QStringLiteral("<F>\n<DeploymentAreas><All/></DeploymentAreas></F>");
    checkReadingFromElsewhere<XmlFindSitesType>({
        QStringLiteral("XmlFindSitesType"),
        QStringLiteral("F"),
        xml,
        QStringLiteral("<F><DeploymentAreas><All/></DeploymentAreas></F>"),
        QStringLiteral("in XmlFindSitesType (line 1, column 3): Unexpected token \"StartElement\": F."),
        QStringLiteral("in XmlFindSitesType (line 2, column 45): Unexpected token \"EndDocument\"."),
        QStringLiteral("f"),
        QStringLiteral("in XmlFindSitesType (line 2, column 45): Unexpected token \"EndElement\": F."),
    });
}

void SiteordersTest::sitesUnderTheTagOfAnInnerElement()
{
    // With the areas read, an end tag of the order's own name ends the order, even that of the random
    // emitters inside it.
    QXmlStreamReader reader(QStringLiteral("<RandomEmitters><RandomEmitters><Number>3</Number>"
                                           "<Distribution>Grid</Distribution><DeploymentAreas><All/>"
                                           "</DeploymentAreas></RandomEmitters><Next/></RandomEmitters>"));
    reader.readNextStartElement();
    XmlFindSitesType order;
    order.processXml(reader, QStringLiteral("RandomEmitters"));
    QVERIFY(!reader.hasError());
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.name().toString(), QStringLiteral("Next"));

    // Without the areas it ends the random emitters.
    QCOMPARE(readError(order,
                       QStringLiteral("<RandomEmitters><RandomEmitters><Number>4</Number>"
                                      "<Distribution>Grid</Distribution></RandomEmitters>"
                                      "<DeploymentAreas><All/></DeploymentAreas></RandomEmitters>")),
             QString());
    QCOMPARE(order.randNumber(), 4);

    // Once they are closed, the next such end tag is neither theirs nor, without areas, the order's.
    QCOMPARE(readError(order,
                       QStringLiteral("<RandomEmitters><RandomEmitters><Number>4</Number>"
                                      "<Distribution>Grid</Distribution></RandomEmitters>\n</RandomEmitters>")),
             QStringLiteral("in XmlFindSitesType (line 2, column 17): "
                            "Unexpected token \"EndElement\": RandomEmitters."));
}

// Interlink planning

void SiteordersTest::linkDefaults()
{
    Link order;
    QCOMPARE(order.firstName(), QString());
    QCOMPARE(order.secondName(), QString());
    QVERIFY(!order.isValid());
    QCOMPARE(order.syntaxError(),
             QStringLiteral("+++ in XmlInterlinkPlanningType Begin:\n"
                            "FirstName not set\n"
                            "SecondName not set\n"
                            "--- in XmlInterlinkPlanningType End"));
    QCOMPARE(written(order, linkTag),
             QStringLiteral("<InterlinkPlanning><FirstName></FirstName>"
                            "<SecondName></SecondName></InterlinkPlanning>"));
}

void SiteordersTest::linkAccessorsAndCopies()
{
    Link order = link(QStringLiteral("A"), QStringLiteral("B"));
    QCOMPARE(order.firstName(), QStringLiteral("A"));
    QCOMPARE(order.secondName(), QStringLiteral("B"));
    order.setFirstName(order.firstName());
    order.setSecondName(order.secondName());

    Link copy(order);
    Link assigned;
    assigned = order;
    order.setFirstName(QStringLiteral("X"));
    order.setSecondName(QStringLiteral("Y"));
    const QString xml = QStringLiteral("<InterlinkPlanning><FirstName>A</FirstName><SecondName>B</SecondName>"
                                       "</InterlinkPlanning>");
    QCOMPARE(written(copy, linkTag), xml);
    QCOMPARE(written(assigned, linkTag), xml);
    const Link& same = copy;
    copy = same;
    QCOMPARE(written(copy, linkTag), xml);

    Link faulty;
    const QString error = faulty.syntaxError();
    QCOMPARE(Link(faulty).mySyntaxError(), error);
    copy = faulty;
    QCOMPARE(copy.mySyntaxError(), error);
}

void SiteordersTest::linkRoundTrip()
{
    const QString xml = QStringLiteral("<InterlinkPlanning><FirstName>A &amp; B</FirstName>"
                                       "<SecondName> C </SecondName></InterlinkPlanning>");
    auto order = readFrom<XmlInterlinkPlanningType>(xml);
    QCOMPARE(order.firstName(), QStringLiteral("A & B"));
    QCOMPARE(order.secondName(), QStringLiteral(" C "));
    QVERIFY(order.isValid());
    QCOMPARE(order.syntaxError(), QString());
    QCOMPARE(written(order, linkTag), xml);

    const auto noisy = readFrom<XmlInterlinkPlanningType>(
        QStringLiteral("<I version=\"2.0\">text<FirstName x=\"y\">A<!-- c -->B</FirstName><!-- c --><?p i?>\n"
                       "<SecondName>C<![CDATA[D]]></SecondName></I>"));
    QCOMPARE(noisy.firstName(), QStringLiteral("AB"));
    QCOMPARE(noisy.secondName(), QStringLiteral("CD"));
}

void SiteordersTest::linkGates_data()
{
    QTest::addColumn<QStringList>("children");
    QTest::addColumn<QString>("outcome");

    // "+" complete, "e" the end tag is refused, "x" the last child is refused.
    const QString first = QStringLiteral("FirstName");
    const QString second = QStringLiteral("SecondName");
    const QString accepted = QStringLiteral("+");
    const QString end = QStringLiteral("e");
    const QString refused = QStringLiteral("x");
    QTest::newRow("no children") << QStringList() << end;
    QTest::newRow("the first name alone") << QStringList{first} << end;
    QTest::newRow("the second name alone") << QStringList{second} << end;
    QTest::newRow("another child") << QStringList{QStringLiteral("firstname")} << refused;
    QTest::newRow("both in order") << QStringList{first, second} << accepted;
    QTest::newRow("the first name twice") << QStringList{first, first} << refused;
    QTest::newRow("the second name first") << QStringList{second, first} << refused;
    QTest::newRow("the second name twice") << QStringList{second, second} << refused;
    QTest::newRow("the first name after both") << QStringList{first, second, first} << refused;
    QTest::newRow("the second name again after both") << QStringList{first, second, second} << refused;
    QTest::newRow("another child after both") << QStringList{first, second, QStringLiteral("Name")} << refused;
}

void SiteordersTest::linkGates()
{
    QFETCH(QStringList, children);
    QFETCH(QString, outcome);

    QString xml = QStringLiteral("<InterlinkPlanning>\n");
    for (const QString& child : children)
        xml += QStringLiteral("<%1>A</%1>\n").arg(child);
    xml += QStringLiteral("</InterlinkPlanning>");

    QString expected;
    if (outcome == QLatin1String("x")) {
        expected = QStringLiteral("in XmlInterlinkPlanningType (line %1, column %2): "
                                  "Unexpected token \"StartElement\": %3.")
                       .arg(children.size() + 1)
                       .arg(children.last().size() + 2)
                       .arg(children.last());
    } else if (outcome == QLatin1String("e")) {
        expected = QStringLiteral("in XmlInterlinkPlanningType (line %1, column 20): "
                                  "Unexpected token \"EndElement\": InterlinkPlanning.")
                       .arg(children.size() + 2);
    }
    XmlInterlinkPlanningType order;
    QCOMPARE(readError(order, xml), expected);
    QCOMPARE(readError(order, QStringLiteral("<I><FirstName>A</FirstName><SecondName>B</SecondName></I>")), QString());
}

void SiteordersTest::linkLengths_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<QString>("error");

    QTest::newRow("one character each") << 1 << 1 << QString();
    QTest::newRow("128 characters each") << 128 << 128 << QString();
    QTest::newRow("empty names") << 0 << 0 << QString();
    QTest::newRow("a first name of 129 characters")
        << 129 << 1
        << QStringLiteral("in XmlInterlinkPlanningType (line 2, column 152): FirstName too long (max. 128).");
    QTest::newRow("a second name of 129 characters")
        << 1 << 129
        << QStringLiteral("in XmlInterlinkPlanningType (line 3, column 154): SecondName too long (max. 128).");
}

void SiteordersTest::linkLengths()
{
    QFETCH(int, first);
    QFETCH(int, second);
    QFETCH(QString, error);

    const QString firstName(first, QLatin1Char('f'));
    const QString secondName(second, QLatin1Char('s'));
    Link order = link(QStringLiteral("old"), QStringLiteral("old"));
    QCOMPARE(readError(order,
                       QStringLiteral("<I>\n<FirstName>%1</FirstName>\n<SecondName>%2</SecondName></I>")
                           .arg(firstName, secondName)),
             error);
    QCOMPARE(order.firstName(), firstName); // also when too long
    QCOMPARE(order.secondName(), first > 128 ? QStringLiteral("old") : secondName);

    // The length matters only while reading.
    Link set = link(firstName, secondName);
    QCOMPARE(set.isValid(), first > 0);
    QCOMPARE(set.syntaxError().isEmpty(), first > 0);
    QCOMPARE(written(set, QStringLiteral("I")),
             QStringLiteral("<I><FirstName>%1</FirstName><SecondName>%2</SecondName></I>").arg(firstName, secondName));
}

void SiteordersTest::linkReaderErrors_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");

    const QString noText = QStringLiteral("Expected character data.");
    const QString old = QStringLiteral("old");
    QTest::newRow("an element inside the first name")
        << QStringLiteral("<I><FirstName>AB<x/></FirstName>") << noText << QStringLiteral("AB") << old;
    QTest::newRow("an element inside the second name")
        << QStringLiteral("<I><FirstName>A</FirstName><SecondName><x/></SecondName>") << noText << QStringLiteral("A")
        << QString();
    QTest::newRow("a long first name with an element inside")
        << QStringLiteral("<I><FirstName>%1<x></x></FirstName>").arg(QString(129, QLatin1Char('f')))
        << QStringLiteral("in XmlInterlinkPlanningType (line 1, column 146): FirstName too long (max. 128).")
        << QString(129, QLatin1Char('f')) << old;
    QTest::newRow("a premature end") << QStringLiteral("<I>") << QStringLiteral("Premature end of document.") << old
                                     << old;
}

void SiteordersTest::linkReaderErrors()
{
    QFETCH(QString, xml);
    QFETCH(QString, error);
    QFETCH(QString, first);
    QFETCH(QString, second);

    Link order = link(QStringLiteral("old"), QStringLiteral("old"));
    QCOMPARE(readError(order, xml), error);
    QCOMPARE(order.firstName(), first);
    QCOMPARE(order.secondName(), second);
}

void SiteordersTest::linkJudgement_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("problems");

    const QString a = QStringLiteral("A");
    QTest::newRow("both set") << a << a << QString();
    QTest::newRow("the first not set") << QString() << a << QStringLiteral("FirstName not set\n");
    QTest::newRow("the second not set") << a << QString() << QStringLiteral("SecondName not set\n");
    QTest::newRow("none set") << QString() << QString() << QStringLiteral("FirstName not set\nSecondName not set\n");
    QTest::newRow("blanks count") << QStringLiteral(" ") << QStringLiteral(" ") << QString();
}

void SiteordersTest::linkJudgement()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(QString, problems);

    Link order = link(first, second);
    const QString expected = problems.isEmpty() ? QString()
                                                : QStringLiteral("+++ in XmlInterlinkPlanningType Begin:\n%1"
                                                                 "--- in XmlInterlinkPlanningType End")
                                                      .arg(problems);
    QCOMPARE(order.isValid(), problems.isEmpty());
    QCOMPARE(order.syntaxError(), expected);
    QCOMPARE(order.syntaxError(), expected);
}

void SiteordersTest::linkReset()
{
    Link order = link(QStringLiteral("A"), QString());
    order.syntaxError();
    order.setSecondName(QStringLiteral("B"));
    order.reset();
    QCOMPARE(order.mySyntaxError(), QString());
    QCOMPARE(order.firstName(), QString());
    QCOMPARE(order.secondName(), QString());
    QCOMPARE(order.syntaxError(), Link().syntaxError());
}

void SiteordersTest::linkReuse()
{
    Link order = link(QStringLiteral("A"), QStringLiteral("B"));
    QCOMPARE(readError(order, QStringLiteral("<I>\n  <Other/></I>")),
             QStringLiteral("in XmlInterlinkPlanningType (line 2, column 10): "
                            "Unexpected token \"StartElement\": Other."));
    QCOMPARE(order.firstName(), QStringLiteral("A")); // nothing is reset
    QCOMPARE(order.secondName(), QStringLiteral("B"));
    QVERIFY(!readError(order, QStringLiteral("<I><FirstName></FirstName></I>")).isEmpty());
    QCOMPARE(order.firstName(), QString()); // an empty text is stored too
    QCOMPARE(order.secondName(), QStringLiteral("B"));
    QCOMPARE(order.syntaxError(),
             QStringLiteral("+++ in XmlInterlinkPlanningType Begin:\n"
                            "FirstName not set\n"
                            "--- in XmlInterlinkPlanningType End"));
    QCOMPARE(XmlInterlinkPlanningType(order).secondName(), QStringLiteral("B"));
    order.reset();
    QCOMPARE(readError(order, QStringLiteral("<I><FirstName>C</FirstName><SecondName>D</SecondName></I>")), QString());
    QVERIFY(order.isValid());
}

void SiteordersTest::linkPositions()
{
    const QString xml = QStringLiteral("<I>\n<FirstName>A</FirstName><SecondName>B</SecondName></I>");
    checkReadingFromElsewhere<XmlInterlinkPlanningType>({
        QStringLiteral("XmlInterlinkPlanningType"),
        QStringLiteral("I"),
        xml,
        QStringLiteral("<I><FirstName></FirstName><SecondName></SecondName></I>"),
        QStringLiteral("in XmlInterlinkPlanningType (line 1, column 3): Unexpected token \"StartElement\": I."),
        QStringLiteral("in XmlInterlinkPlanningType (line 2, column 54): Unexpected token \"EndDocument\"."),
        QStringLiteral("i"),
        QStringLiteral("in XmlInterlinkPlanningType (line 2, column 54): Unexpected token \"EndElement\": I."),
    });
}

QTEST_APPLESS_MAIN(SiteordersTest)
#include "siteorders_test.moc"
