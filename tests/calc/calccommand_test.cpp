#include "support/commandtest.h"
#include "support/positions.h"

#include <arvxml/calccommand.h>

#include <type_traits>
#include <utility>

using namespace ArvXml;
using namespace CommandTest;
using ElementTest::checkReadingFromElsewhere;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;
using TestValues::envelope;
using TestValues::reference;

namespace {

const QString calcTag = QStringLiteral("Calculate");

const QString findSitesXml = QStringLiteral("<FindPossibleSites><DeploymentAreas><All/></DeploymentAreas>"
                                            "</FindPossibleSites>");
const QString cepXml = QStringLiteral("<CEP><UseDFs><All/></UseDFs><AOIs><All/></AOIs></CEP>");
const QString detectProbXml = QStringLiteral("<DetectionProbability><UseRxDFs><All/></UseRxDFs><AOIs><All/></AOIs>"
                                             "</DetectionProbability>");
const QString dfCovXml = QStringLiteral("<DFcoverage><UseDFs><All/></UseDFs><AOIs><All/></AOIs></DFcoverage>");
const QString interlinkXml = QStringLiteral("<InterlinkPlanning><FirstName>A</FirstName><SecondName>B</SecondName>"
                                            "</InterlinkPlanning>");
const QString bestSensorXml = QStringLiteral("<BestSensorCov><UseRxDFs><All/></UseRxDFs><AOIs><All/></AOIs>"
                                             "</BestSensorCov>");
const QString referenceXml = QStringLiteral("<Reference>42</Reference>");

const QString emptyXml = QStringLiteral("<Calculate><Reference></Reference></Calculate>");

QString block(const QString& body)
{
    return QStringLiteral("+++ in XmlCmdCalc Begin:\n") + body + QStringLiteral("--- in XmlCmdCalc End");
}

QString calculate(const QString& children)
{
    return QStringLiteral("<Calculate>") + children + QStringLiteral("</Calculate>");
}

/// Shows what the base keeps for itself.
struct Calc : XmlCmdCalc {
    using XmlCmdCalc::classname;
    using XmlCmdCalc::mySyntaxError;
};

/// The orders of a command, in the order of writing.
struct OrderAccess {
    const char* tag;
    bool (*has)(const XmlCmdCalc&);
    const IXmlElement* (*get)(const XmlCmdCalc&);
    void (*set)(XmlCmdCalc&, const QString& xml);
    QString xml;
    QString otherXml;
};

/// \a xml with one more name or another one.
QString other(const QString& xml)
{
    return QString(xml)
        .replace(QLatin1String("<All/>"), QLatin1String("<Name>Other</Name>"))
        .replace(QLatin1String(">A<"), QLatin1String(">Other<"));
}

template <typename Order, bool (XmlCmdCalc::*Has)() const, const Order* (XmlCmdCalc::*Get)() const,
          void (XmlCmdCalc::*Set)(const Order&)>
OrderAccess access(const char* tag, const QString& xml)
{
    return {tag,
            [](const XmlCmdCalc& command) { return (command.*Has)(); },
            [](const XmlCmdCalc& command) -> const IXmlElement* { return (command.*Get)(); },
            [](XmlCmdCalc& command, const QString& text) {
                // An empty text hands the command its own order.
                if (text.isEmpty())
                    (command.*Set)(*(command.*Get)());
                else
                    (command.*Set)(readFrom<Order>(text));
            },
            xml,
            other(xml)};
}

const QList<OrderAccess>& orders()
{
    using C = XmlCmdCalc;
    static const QList<OrderAccess> orders = {
        access<XmlFindSitesType, &C::hasFindSites, &C::findSites, &C::setFindSites>("FindPossibleSites", findSitesXml),
        access<XmlCepType, &C::hasCep, &C::cep, &C::setCep>("CEP", cepXml),
        access<XmlDetectProbType, &C::hasDetectProb, &C::detectProb, &C::setDetectProb>("DetectionProbability",
                                                                                        detectProbXml),
        access<XmlDfCovType, &C::hasDfCov, &C::dfCov, &C::setDfCov>("DFcoverage", dfCovXml),
        access<XmlInterlinkPlanningType, &C::hasInterlink, &C::interlink, &C::setInterlink>("InterlinkPlanning",
                                                                                            interlinkXml),
        access<XmlBestSensorType, &C::hasBestSensor, &C::bestSensor, &C::setBestSensor>("BestSensorCov", bestSensorXml),
    };
    return orders;
}

/// A valid command with the order \a index.
Calc commandWith(int index)
{
    Calc command;
    orders()[index].set(command, orders()[index].xml);
    command.setCmdReference(reference(QStringLiteral("42")));
    return command;
}

void addOrderRows()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < orders().size(); ++i)
        QTest::newRow(orders()[i].tag) << i;
}

} // namespace

class CalccommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void interface();
    void defaults();
    void envelopeAndReference();
    void eachOrder_data() { addOrderRows(); }
    void eachOrder();
    void copies_data() { addOrderRows(); }
    void copies();
    void assignmentsOfTheEnvelope();
    void gates_data();
    void gates();
    void ignoredTokens();
    void writingOrder();
    void numberOfOrders_data();
    void numberOfOrders();
    void problemsInOrder();
    void reset();
    void reuse();
    void failures();
    void positions();
};

void CalccommandTest::interface()
{
    using C = XmlCmdCalc;
    static_assert(std::is_base_of_v<XmlElementBase, C>);
    static_assert(std::is_same_v<decltype(std::declval<C&>().cmdReference()), const XmlReferenceType&>);
    static_assert(std::is_same_v<decltype(std::declval<C&>().orderDef()), const XmlOrderDef*>);
    static_assert(std::is_same_v<decltype(std::declval<C&>().findSites()), const XmlFindSitesType*>);
    static_assert(std::is_same_v<decltype(std::declval<C&>().cep()), const XmlCepType*>);
    static_assert(std::is_same_v<decltype(std::declval<C&>().detectProb()), const XmlDetectProbType*>);
    static_assert(std::is_same_v<decltype(std::declval<C&>().dfCov()), const XmlDfCovType*>);
    static_assert(std::is_same_v<decltype(std::declval<C&>().interlink()), const XmlInterlinkPlanningType*>);
    static_assert(std::is_same_v<decltype(std::declval<C&>().bestSensor()), const XmlBestSensorType*>);
    QCOMPARE(Calc().classname(), QStringLiteral("XmlCmdCalc"));
}

void CalccommandTest::defaults()
{
    Calc command;
    QVERIFY(!command.hasOrderDef());
    QVERIFY(!command.orderDef());
    QCOMPARE(command.cmdReference().reference(), QString());
    for (const OrderAccess& order : orders()) {
        QVERIFY2(!order.has(command), order.tag);
        QVERIFY2(!order.get(command), order.tag);
    }
    QVERIFY(!command.isValid());
    QCOMPARE(command.syntaxError(),
             block(QStringLiteral("+++ in XmlreferenceType Begin:\n"
                                  "String too short (min. 1)\n"
                                  "--- in XmlreferenceType End\n")
                   + countProblem));
    QCOMPARE(written(command, calcTag), emptyXml);

    command.setCmdReference(reference(QStringLiteral("42")));
    QVERIFY(!command.isValid());
    QCOMPARE(command.syntaxError(), block(countProblem));
    QCOMPARE(written(command, calcTag), calculate(referenceXml));
}

void CalccommandTest::envelopeAndReference()
{
    Calc command;
    checkReferenceAccessors(command);
    checkEnvelopeAccessors(command);

    // The envelope is neither written nor judged by the command, nor read.
    Calc full = commandWith(1);
    full.setOrderDef(XmlOrderDef());
    QCOMPARE(written(full, calcTag), calculate(cepXml + referenceXml));
    QVERIFY(full.isValid());
    QCOMPARE(full.syntaxError(), QString());
    QCOMPARE(readError(full, QStringLiteral("<Calculate><ORDER_DEF/>")),
             QStringLiteral("in XmlCmdCalc (line 1, column 23): Unexpected element \"ORDER_DEF\"."));
    QVERIFY(full.hasOrderDef());
}

void CalccommandTest::eachOrder()
{
    QFETCH(int, index);
    const OrderAccess& order = orders()[index];

    // Read: this one alone is present.
    auto command = readFrom<Calc>(calculate(order.xml + referenceXml));
    for (int i = 0; i < orders().size(); ++i)
        QCOMPARE(orders()[i].has(command), i == index);
    QCOMPARE(command.cmdReference().reference(), QStringLiteral("42"));
    QVERIFY(command.isValid());
    QCOMPARE(command.syntaxError(), QString());
    QCOMPARE(written(command, calcTag), calculate(order.xml + referenceXml));

    // Read into a command that holds one: a new order, not the old one grown.
    QCOMPARE(readError(command, calculate(order.otherXml + QStringLiteral("<Reference>43</Reference>"))), QString());
    QCOMPARE(written(command, calcTag), calculate(order.otherXml + QStringLiteral("<Reference>43</Reference>")));
    QCOMPARE(readError(command, calculate(order.otherXml + QStringLiteral("<Reference>43</Reference>"))), QString());
    QCOMPARE(written(command, calcTag), calculate(order.otherXml + QStringLiteral("<Reference>43</Reference>")));
    QVERIFY(order.otherXml != order.xml);

    // Set: a copy first, then assigned into.
    Calc set;
    order.set(set, order.xml);
    QVERIFY(order.has(set));
    const IXmlElement* held = order.get(set);
    order.set(set, order.otherXml);
    QCOMPARE(order.get(set), held);
    QCOMPARE(written(set, calcTag), calculate(order.otherXml + QStringLiteral("<Reference></Reference>")));
    order.set(set, QString());
    QCOMPARE(written(set, calcTag), calculate(order.otherXml + QStringLiteral("<Reference></Reference>")));
}

void CalccommandTest::copies()
{
    QFETCH(int, index);
    const OrderAccess& order = orders()[index];

    Calc original = commandWith(index);
    original.setOrderDef(envelope(QStringLiteral("host")));
    Calc copy(original);
    Calc assigned;
    assigned = original;
    QVERIFY(order.get(copy) != order.get(original));
    QVERIFY(order.get(assigned) != order.get(original));
    order.set(original, order.otherXml);
    original.setCmdReference(reference(QStringLiteral("43")));
    QCOMPARE(written(copy, calcTag), calculate(order.xml + referenceXml));
    QCOMPARE(written(assigned, calcTag), calculate(order.xml + referenceXml));
    const Calc& same = copy;
    copy = same;
    QCOMPARE(written(copy, calcTag), calculate(order.xml + referenceXml));

    copy = original; // both hold one
    QCOMPARE(written(copy, calcTag), calculate(order.otherXml + QStringLiteral("<Reference>43</Reference>")));
    copy = Calc(); // only the target does
    QCOMPARE(written(copy, calcTag), emptyXml);
    copy = Calc(); // none does
    QCOMPARE(written(copy, calcTag), emptyXml);
    QVERIFY(!order.has(Calc(copy)));
    copy = original; // only the source does
    QVERIFY(order.has(copy));
}

void CalccommandTest::assignmentsOfTheEnvelope()
{
    Calc with;
    with.setOrderDef(envelope(QStringLiteral("host")));
    const Calc without;

    Calc target(with);
    QVERIFY(target.orderDef() != with.orderDef());
    QCOMPARE(target.orderDef()->orderSender(), QStringLiteral("host"));
    with.setOrderDef(envelope(QStringLiteral("other")));
    QCOMPARE(target.orderDef()->orderSender(), QStringLiteral("host"));
    target = with;
    QCOMPARE(target.orderDef()->orderSender(), QStringLiteral("other"));
    target = without;
    QVERIFY(!target.hasOrderDef());
    target = without;
    QVERIFY(!target.hasOrderDef());
    QVERIFY(!Calc(without).hasOrderDef());
    target = with;
    QVERIFY(target.hasOrderDef());
    QVERIFY(target.orderDef() != with.orderDef());

    Calc faulty;
    const QString error = faulty.syntaxError();
    QCOMPARE(Calc(faulty).mySyntaxError(), error);
    target = faulty;
    QCOMPARE(target.mySyntaxError(), error);
}

void CalccommandTest::gates_data()
{
    QTest::addColumn<QStringList>("children");
    QTest::addColumn<QString>("outcome");

    // What each child does after the children before it: "+" the command may end then, "e" the child
    // is accepted, but the end tag is not, "x" the child is refused.
    const QStringList next = {QStringLiteral("FindPossibleSites"),
                              QStringLiteral("CEP"),
                              QStringLiteral("DetectionProbability"),
                              QStringLiteral("DFcoverage"),
                              QStringLiteral("InterlinkPlanning"),
                              QStringLiteral("BestSensorCov"),
                              QStringLiteral("Reference"),
                              QStringLiteral("cep")};
    const auto add = [&](const char* before, const char* outcomes) {
        const QStringList beforeTags = QString::fromLatin1(before).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (int i = 0; i < next.size(); ++i) {
            QTest::newRow(qPrintable(QStringLiteral("(%1) then %2").arg(QString::fromLatin1(before), next[i])))
                << (beforeTags + QStringList(next[i])) << QString(QLatin1Char(outcomes[i]));
        }
    };

    add("", "eeeeeexx");
    add("FindPossibleSites", "xxxxxx+x");
    add("CEP", "xxxxxx+x");
    add("DetectionProbability", "xxxxxx+x");
    add("DFcoverage", "xxxxxx+x");
    add("InterlinkPlanning", "xxxxxx+x");
    add("BestSensorCov", "xxxxxx+x");
    add("FindPossibleSites Reference", "xxxxxxxx");
    add("CEP Reference", "xxxxxxxx");
    add("DetectionProbability Reference", "xxxxxxxx");
    add("DFcoverage Reference", "xxxxxxxx");
    add("InterlinkPlanning Reference", "xxxxxxxx");
    add("BestSensorCov Reference", "xxxxxxxx");
    QTest::newRow("no children") << QStringList() << QStringLiteral("e");
}

void CalccommandTest::gates()
{
    QFETCH(QStringList, children);
    QFETCH(QString, outcome);

    QString xml = QStringLiteral("<Calculate>\n");
    for (const QString& child : children) {
        QString childXml = referenceXml;
        for (const OrderAccess& order : orders()) {
            if (child == QLatin1String(order.tag))
                childXml = order.xml;
        }
        if (child == QLatin1String("cep"))
            childXml = QStringLiteral("<cep></cep>");
        xml += childXml + QLatin1Char('\n');
    }
    xml += QStringLiteral("</Calculate>");

    QString expected;
    if (outcome == QLatin1String("x")) {
        expected = QStringLiteral("in XmlCmdCalc (line %1, column %2): Unexpected element \"%3\".")
                       .arg(children.size() + 1)
                       .arg(children.last().size() + 2)
                       .arg(children.last());
    } else if (outcome == QLatin1String("e")) {
        expected = QStringLiteral("in XmlCmdCalc (line %1, column 12): Unexpected token \"EndElement\".")
                       .arg(children.size() + 2);
    }
    XmlCmdCalc command;
    QCOMPARE(readError(command, xml), expected);

    // Every call starts afresh.
    QCOMPARE(readError(command, calculate(cepXml + referenceXml)), QString());
}

void CalccommandTest::ignoredTokens()
{
    const auto command = readFrom<XmlCmdCalc>(
        QStringLiteral("<Calculate version=\"2.0\">text<!-- c -->%1\n<?p i?><![CDATA[x]]>%2 </Calculate>")
            .arg(cepXml, referenceXml));
    QVERIFY(command.isValid());
    QCOMPARE(written(command, QStringLiteral("Other")),
             QStringLiteral("<Other>%1%2</Other>").arg(cepXml, referenceXml));
}

void CalccommandTest::writingOrder()
{
    // Set in the reverse order.
    XmlCmdCalc command;
    for (int i = int(orders().size()) - 1; i >= 0; --i)
        orders()[i].set(command, orders()[i].xml);
    command.setCmdReference(reference(QStringLiteral("42")));
    QCOMPARE(written(command, calcTag),
             calculate(findSitesXml + cepXml + detectProbXml + dfCovXml + interlinkXml + bestSensorXml + referenceXml));
}

void CalccommandTest::numberOfOrders_data()
{
    QTest::addColumn<int>("present"); // a bit for each order

    for (int i = 0; i < 64; ++i)
        QTest::newRow(qPrintable(QStringLiteral("presence %1").arg(i, 6, 2, QLatin1Char('0')))) << i;
}

void CalccommandTest::numberOfOrders()
{
    QFETCH(int, present);

    XmlCmdCalc command;
    command.setCmdReference(reference(QStringLiteral("42")));
    int count = 0;
    for (int i = 0; i < orders().size(); ++i) {
        if (present & (1 << i)) {
            orders()[i].set(command, orders()[i].xml);
            ++count;
        }
    }
    QCOMPARE(command.isValid(), count == 1);
    QCOMPARE(command.syntaxError(), count == 1 ? QString() : block(countProblem));
}

void CalccommandTest::problemsInOrder()
{
    XmlCmdCalc command;
    command.setBestSensor(XmlBestSensorType());
    command.setInterlink(XmlInterlinkPlanningType());
    command.setDfCov(XmlDfCovType());
    command.setDetectProb(XmlDetectProbType());
    command.setCep(XmlCepType());
    command.setFindSites(XmlFindSitesType());
    command.setCmdReference(reference(QString(51, QLatin1Char('r'))));

    const QString uninitialised = QStringLiteral("+++ in XmlNameAllMultiType Begin:\n"
                                                 "Uninitialized.\n"
                                                 "--- in XmlNameAllMultiType End\n");
    const auto order = [](const char* name, const QString& body) {
        return QStringLiteral("+++ in %1 Begin:\n%2--- in %1 End\n").arg(QString::fromLatin1(name), body);
    };
    const QString all =
        block(order("XmlreferenceType", QStringLiteral("String too long (max. 50)\n"))
              + order("XmlFindSitesType", uninitialised) + order("XmlCepType", uninitialised + uninitialised)
              + order("XmlDetectProbType", uninitialised + uninitialised)
              + order("XmlDfCovType", uninitialised + uninitialised)
              + order("XmlInterlinkPlanningType", QStringLiteral("FirstName not set\nSecondName not set\n"))
              + order("XmlBestSensorType", uninitialised + uninitialised) + countProblem);
    QCOMPARE(command.syntaxError(), all);
    QCOMPARE(command.syntaxError(), all);

    // An invalid order, and an invalid reference, each alone.
    XmlCmdCalc one;
    one.setCmdReference(reference(QStringLiteral("42")));
    one.setBestSensor(XmlBestSensorType());
    QVERIFY(!one.isValid());
    QCOMPARE(one.syntaxError(), block(order("XmlBestSensorType", uninitialised + uninitialised)));
    for (int i = 0; i < orders().size(); ++i) {
        XmlCmdCalc valid = commandWith(i);
        QVERIFY(valid.isValid());
        valid.setCmdReference(XmlReferenceType());
        QVERIFY(!valid.isValid());
        QCOMPARE(valid.syntaxError(), block(order("XmlreferenceType", QStringLiteral("String too short (min. 1)\n"))));
    }
    XmlCmdCalc invalid;
    invalid.setCmdReference(reference(QStringLiteral("42")));
    invalid.setFindSites(XmlFindSitesType());
    QVERIFY(!invalid.isValid());
    invalid = commandWith(1);
    invalid.setCep(XmlCepType());
    QVERIFY(!invalid.isValid());
    invalid = commandWith(2);
    invalid.setDetectProb(XmlDetectProbType());
    QVERIFY(!invalid.isValid());
    invalid = commandWith(3);
    invalid.setDfCov(XmlDfCovType());
    QVERIFY(!invalid.isValid());
    invalid = commandWith(4);
    invalid.setInterlink(XmlInterlinkPlanningType());
    QVERIFY(!invalid.isValid());
}

void CalccommandTest::reset()
{
    Calc command;
    for (int i = 0; i < orders().size(); ++i)
        orders()[i].set(command, orders()[i].xml);
    command.setCmdReference(reference(QStringLiteral("42")));
    command.setOrderDef(envelope(QStringLiteral("host")));
    QVERIFY(!command.syntaxError().isEmpty());
    const XmlBestSensorType* bestSensor = command.bestSensor();

    // The best sensor coverage outlives it.
    command.reset();
    QCOMPARE(command.mySyntaxError(), QString());
    QVERIFY(!command.hasOrderDef());
    QVERIFY(!command.hasFindSites());
    QVERIFY(!command.hasCep());
    QVERIFY(!command.hasDetectProb());
    QVERIFY(!command.hasDfCov());
    QVERIFY(!command.hasInterlink());
    QCOMPARE(command.bestSensor(), bestSensor);
    QCOMPARE(command.cmdReference().reference(), QString());
    QCOMPARE(written(command, calcTag), calculate(bestSensorXml + QStringLiteral("<Reference></Reference>")));
    command.setCmdReference(reference(QStringLiteral("43")));
    QVERIFY(command.isValid());

    // Without one, the command is as new.
    Calc plain = commandWith(1);
    plain.setOrderDef(envelope(QStringLiteral("host")));
    plain.reset();
    QCOMPARE(written(plain, calcTag), emptyXml);
    QVERIFY(!plain.hasOrderDef());
    QCOMPARE(plain.syntaxError(), Calc().syntaxError());
}

void CalccommandTest::reuse()
{
    // Reading does not reset: an order of another kind stays, and the command has one too many.
    Calc command = commandWith(1);
    command.setOrderDef(envelope(QStringLiteral("host")));
    const XmlReferenceType* heldReference = &command.cmdReference();
    QCOMPARE(readError(command, calculate(dfCovXml + QStringLiteral("<Reference/>"))), QString());
    QVERIFY(command.hasOrderDef());
    QCOMPARE(&command.cmdReference(), heldReference);
    QCOMPARE(command.cmdReference().reference(), QStringLiteral("42")); // an empty one leaves it
    QVERIFY(!command.isValid());
    QCOMPARE(command.syntaxError(), block(countProblem));
    QCOMPARE(written(command, calcTag), calculate(cepXml + dfCovXml + referenceXml));

    command.reset();
    QCOMPARE(readError(command, calculate(dfCovXml + referenceXml)), QString());
    QVERIFY(command.isValid());
}

void CalccommandTest::failures()
{
    // What was made before the failure stays attached.
    Calc command;
    QCOMPARE(readError(command, QStringLiteral("<Calculate>\n%1\n<Bad>").arg(cepXml)),
             QStringLiteral("in XmlCmdCalc (line 3, column 5): Unexpected element \"Bad\"."));
    QVERIFY(command.hasCep());
    QCOMPARE(written(Calc(command), calcTag), calculate(cepXml + QStringLiteral("<Reference></Reference>")));
    QVERIFY(!command.isValid());
    QVERIFY(!command.syntaxError().isEmpty());

    // The error of an order is the one reported, and the half-read order takes the place of the old.
    QCOMPARE(readError(command, QStringLiteral("<Calculate>\n<CEP>\n<AOIs><Name>N</Name></AOIs><UseDFs>")),
             QStringLiteral("in XmlCepType (line 3, column 35): Unexpected token \"StartElement\": UseDFs."));
    QCOMPARE(written(command, calcTag),
             calculate(QStringLiteral("<CEP><UseDFs><All/></UseDFs><AOIs><Name>N</Name></AOIs></CEP>"
                                      "<Reference></Reference>")));
    Calc link = commandWith(4);
    QVERIFY(!readError(link, QStringLiteral("<Calculate><InterlinkPlanning><FirstName>C</FirstName><Bad/>")).isEmpty());
    QCOMPARE(link.interlink()->firstName(), QStringLiteral("C"));
    QCOMPARE(link.interlink()->secondName(), QString());
    QCOMPARE(readError(command, QStringLiteral("<Calculate>%1\n<Reference>42<x>").arg(cepXml)),
             QStringLiteral("in XmlreferenceType (line 2, column 16): Unexpected token \"StartElement\"."));
    QCOMPARE(command.cmdReference().reference(), QStringLiteral("42"));
    QCOMPARE(readError(command, QStringLiteral("<Calculate>")), QStringLiteral("Premature end of document."));
    QCOMPARE(readError(command, QStringLiteral("<Calculate></calculate>")),
             QStringLiteral("Opening and ending tag mismatch."));

    QCOMPARE(readError(command, calculate(cepXml + referenceXml)), QString());
    QVERIFY(command.isValid());
}

void CalccommandTest::positions()
{
    const QString xml = QStringLiteral("<Calculate>\n%1\n%2</Calculate>").arg(cepXml, referenceXml);
    checkReadingFromElsewhere<XmlCmdCalc>({
        QStringLiteral("XmlCmdCalc"),
        calcTag,
        xml,
        emptyXml,
        QStringLiteral("in XmlCmdCalc (line 1, column 11): Unexpected element \"Calculate\"."),
        QStringLiteral("in XmlCmdCalc (line 3, column 37): Unexpected token \"EndDocument\"."),
        QStringLiteral("Other"),
        QStringLiteral("in XmlCmdCalc (line 3, column 37): Unexpected token \"EndElement\"."),
    });
}

QTEST_APPLESS_MAIN(CalccommandTest)
#include "calccommand_test.moc"
