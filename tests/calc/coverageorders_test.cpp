#include "support/elementtest.h"
#include "support/values.h"

#include <arvxml/coverageorders.h>

#include <climits>
#include <memory>
#include <type_traits>
#include <utility>

using namespace ArvXml;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;
using TestValues::grid;
using TestValues::names;
using TestValues::objName;

namespace {

XmlCepProbType prob(int value)
{
    XmlCepProbType prob;
    prob.setProb(static_cast<XmlCepProbType::Prob>(value));
    return prob;
}

// The four orders under common names. The fourth child is that which only some have.

struct Cep : XmlCepType {
    using XmlCepType::classname;
    using XmlCepType::mySyntaxError;
    static QString tag() { return QStringLiteral("CEP"); }
    static QString name() { return QStringLiteral("XmlCepType"); }
    static QString sensorsTag() { return QStringLiteral("UseDFs"); }
    const XmlNameAllMultiType* sensors() const { return useDFs(); }
    void setSensors(const XmlNameAllMultiType& sensors) { setUseDFs(sensors); }
};

struct DetectProb : XmlDetectProbType {
    using XmlDetectProbType::classname;
    using XmlDetectProbType::mySyntaxError;
    static QString tag() { return QStringLiteral("DetectionProbability"); }
    static QString name() { return QStringLiteral("XmlDetectProbType"); }
    static QString sensorsTag() { return QStringLiteral("UseRxDFs"); }
    const XmlNameAllMultiType* sensors() const { return useRxDFs(); }
    void setSensors(const XmlNameAllMultiType& sensors) { setUseRxDFs(sensors); }
};

struct DfCov : XmlDfCovType {
    using XmlDfCovType::classname;
    using XmlDfCovType::mySyntaxError;
    static QString tag() { return QStringLiteral("DFcoverage"); }
    static QString name() { return QStringLiteral("XmlDfCovType"); }
    static QString sensorsTag() { return QStringLiteral("UseDFs"); }
    const XmlNameAllMultiType* sensors() const { return useDFs(); }
    void setSensors(const XmlNameAllMultiType& sensors) { setUseDFs(sensors); }
};

struct BestSensor : XmlBestSensorType {
    using XmlBestSensorType::classname;
    using XmlBestSensorType::mySyntaxError;
    static QString tag() { return QStringLiteral("BestSensorCov"); }
    static QString name() { return QStringLiteral("XmlBestSensorType"); }
    static QString sensorsTag() { return QStringLiteral("UseRxDFs"); }
    const XmlNameAllMultiType* sensors() const { return useRxDFs(); }
    void setSensors(const XmlNameAllMultiType& sensors) { setUseRxDFs(sensors); }
};

std::unique_ptr<XmlElementBase> newOrder(const QString& tag)
{
    if (tag == Cep::tag())
        return std::make_unique<XmlCepType>();
    if (tag == DetectProb::tag())
        return std::make_unique<XmlDetectProbType>();
    if (tag == DfCov::tag())
        return std::make_unique<XmlDfCovType>();
    return std::make_unique<XmlBestSensorType>();
}

QString className(const QString& tag)
{
    if (tag == Cep::tag())
        return Cep::name();
    if (tag == DetectProb::tag())
        return DetectProb::name();
    return tag == DfCov::tag() ? DfCov::name() : BestSensor::name();
}

QString childXml(const QString& tag)
{
    if (tag == QLatin1String("Probability"))
        return QStringLiteral("<Probability>90</Probability>");
    if (tag == QLatin1String("ResultGrid"))
        return QStringLiteral("<ResultGrid>100</ResultGrid>");
    if (tag == QLatin1String("Comment"))
        return QStringLiteral("<Comment>Note</Comment>");
    return QStringLiteral("<%1><All/></%1>").arg(tag);
}

/// \a xml with the tags "o" and "s" of the order and its sensors made those of the class.
template <typename Order>
QString tagged(QString xml)
{
    return xml.replace(QLatin1String("o>"), Order::tag() + QLatin1Char('>'))
        .replace(QLatin1String("s>"), Order::sensorsTag() + QLatin1Char('>'))
        .replace(QStringLiteral("AOI") + Order::sensorsTag(), QStringLiteral("AOIs"));
}

const QString uninitialised = QStringLiteral("+++ in XmlNameAllMultiType Begin:\n"
                                             "Uninitialized.\n"
                                             "--- in XmlNameAllMultiType End\n");

template <typename Order>
void checkDefaults()
{
    Order order;
    QCOMPARE(order.classname(), Order::name());
    QVERIFY(order.sensors()->all());
    QVERIFY(order.AOIs()->all());
    QVERIFY(!order.hasResultGrid());
    QVERIFY(!order.resultGrid());
    QVERIFY(!order.isValid());
    QCOMPARE(order.syntaxError(),
             QStringLiteral("+++ in %1 Begin:\n").arg(Order::name()) + uninitialised + uninitialised
                 + QStringLiteral("--- in %1 End").arg(Order::name()));
    QCOMPARE(written(order, Order::tag()), tagged<Order>(QStringLiteral("<o><s><All/></s><AOIs><All/></AOIs></o>")));
    QCOMPARE(written(order, QStringLiteral("Other")).left(7), QStringLiteral("<Other>"));
}

template <typename Order>
void checkAccessors()
{
    Order order;
    const XmlNameAllMultiType* sensors = order.sensors();
    const XmlNameAllMultiType* areas = order.AOIs();
    order.setSensors(names(QStringLiteral("S")));
    order.setAOIs(names(QStringLiteral("A")));
    QCOMPARE(order.sensors(), sensors); // assigned into
    QCOMPARE(order.AOIs(), areas);
    QCOMPARE(sensors->objNames().first()->objName(), QStringLiteral("S"));
    QCOMPARE(areas->objNames().first()->objName(), QStringLiteral("A"));

    const XmlResultGridType given = grid(2);
    order.setResultGrid(given);
    const XmlResultGridType* held = order.resultGrid();
    QVERIFY(order.hasResultGrid());
    QVERIFY(held != &given);
    QCOMPARE(static_cast<int>(held->size()), 2);
    order.setResultGrid(grid(3));
    QCOMPARE(order.resultGrid(), held);
    QCOMPARE(static_cast<int>(held->size()), 3);

    const QString full = tagged<Order>(QStringLiteral("<o><s><Name>S</Name></s><AOIs><Name>A</Name></AOIs>"
                                                      "<ResultGrid>100</ResultGrid></o>"));
    QCOMPARE(written(order, Order::tag()), full);
    order.setSensors(*order.sensors());
    order.setAOIs(*order.AOIs());
    order.setResultGrid(*order.resultGrid());
    QCOMPARE(written(order, Order::tag()), full);
    QVERIFY(order.isValid());
    QCOMPARE(order.syntaxError(), QString());
}

template <typename Order>
void checkCopies()
{
    Order original;
    original.setSensors(names(QStringLiteral("S")));
    original.setAOIs(names(QStringLiteral("A")));
    original.setResultGrid(grid(3));
    const QString full = written(original, Order::tag());

    Order copy(original);
    QVERIFY(copy.sensors() != original.sensors());
    QVERIFY(copy.AOIs() != original.AOIs());
    QVERIFY(copy.resultGrid() != original.resultGrid());
    Order assigned;
    assigned = original;
    original.setSensors(names(QStringLiteral("T")));
    original.setAOIs(names(QStringLiteral("B")));
    original.setResultGrid(grid(1));
    QCOMPARE(written(copy, Order::tag()), full);
    QCOMPARE(written(assigned, Order::tag()), full);

    const Order& same = copy;
    copy = same;
    QCOMPARE(written(copy, Order::tag()), full);

    copy = original; // both hold a grid
    QCOMPARE(static_cast<int>(copy.resultGrid()->size()), 1);
    QVERIFY(copy.resultGrid() != original.resultGrid());
    copy = Order(); // only the target does
    QVERIFY(!copy.hasResultGrid());
    copy = Order(); // none does
    QVERIFY(!copy.hasResultGrid());
    QVERIFY(!Order(copy).hasResultGrid());
    copy = original; // only the source does
    QCOMPARE(static_cast<int>(copy.resultGrid()->size()), 1);

    Order faulty;
    const QString error = faulty.syntaxError();
    QCOMPARE(Order(faulty).mySyntaxError(), error);
    copy = faulty;
    QCOMPARE(copy.mySyntaxError(), error);
}

template <typename Order>
void checkRoundTrip()
{
    const QString full = tagged<Order>(
        QStringLiteral("<o><s><Name>S</Name><Name>T</Name></s><AOIs><All/></AOIs><ResultGrid>1000</ResultGrid></o>"));
    auto order = readFrom<Order>(full);
    QCOMPARE(order.sensors()->objNames().size(), 2);
    QCOMPARE(order.sensors()->objNames().last()->objName(), QStringLiteral("T"));
    QVERIFY(order.AOIs()->all());
    QCOMPARE(static_cast<int>(order.resultGrid()->size()), 6);
    QVERIFY(order.isValid());
    QCOMPARE(order.syntaxError(), QString());
    QCOMPARE(written(order, Order::tag()), full);

    // Whatever is not an element is passed over, attributes too.
    auto noisy = readFrom<Order>(
        tagged<Order>(QStringLiteral("<o>text<!-- c --><s><All/></s><?p i?><![CDATA[x]]><AOIs><All/></AOIs>\n</o>")));
    QVERIFY(noisy.isValid());
    QVERIFY(!noisy.hasResultGrid());
    Order versioned;
    QCOMPARE(readError(versioned,
                       tagged<Order>(QStringLiteral("<o><s><All/></s><AOIs><All/></AOIs></o>"))
                           .replace(QLatin1Char('<') + Order::tag(),
                                    QLatin1Char('<') + Order::tag() + QStringLiteral(" version=\"2.0\""))),
             QString());
    QVERIFY(!written(versioned, Order::tag()).contains(QLatin1String("version")));
}

template <typename Order>
void checkJudgement()
{
    const QString nameError = QStringLiteral("+++ in XmlNameAllMultiType Begin:\n"
                                             "+++ in XmlObjNameType Begin:\n"
                                             "Object name too short (min. 1).\n"
                                             "--- in XmlObjNameType End\n"
                                             "--- in XmlNameAllMultiType End\n");
    const QString gridError = QStringLiteral("+++ in XmlResultGridType Begin:\n"
                                             "Illegal grid size.\n"
                                             "--- in XmlResultGridType End\n");
    const auto block = [](const QString& body) {
        return QStringLiteral("+++ in %1 Begin:\n").arg(Order::name()) + body
            + QStringLiteral("--- in %1 End").arg(Order::name());
    };
    Order order;
    order.setSensors(names(QStringLiteral("S")));
    order.setAOIs(names(QStringLiteral("A")));
    QVERIFY(order.isValid());
    QCOMPARE(order.syntaxError(), QString());

    order.setSensors(names(QString()));
    QVERIFY(!order.isValid());
    QCOMPARE(order.syntaxError(), block(nameError));

    // The areas alone
    order.setSensors(names(QStringLiteral("S")));
    order.setAOIs(XmlNameAllMultiType());
    QVERIFY(!order.isValid());
    QCOMPARE(order.syntaxError(), block(uninitialised));

    order.setSensors(names(QString()));
    order.setResultGrid(grid(0));
    QVERIFY(!order.isValid());
    QCOMPARE(order.syntaxError(), block(nameError + uninitialised + gridError));
    QCOMPARE(order.syntaxError(), block(nameError + uninitialised + gridError));

    order.setSensors(names(QStringLiteral("S")));
    QVERIFY(!order.isValid());
    QCOMPARE(order.syntaxError(), block(uninitialised + gridError));

    order.setAOIs(names(QStringLiteral("A")));
    QVERIFY(!order.isValid());
    QCOMPARE(order.syntaxError(), block(gridError));
    QCOMPARE(written(order, Order::tag()),
             tagged<Order>(QStringLiteral("<o><s><Name>S</Name></s><AOIs><Name>A</Name></AOIs>"
                                          "<ResultGrid>UNDEFINED</ResultGrid></o>")));
}

template <typename Order>
void checkReset()
{
    Order order;
    order.setSensors(names(QStringLiteral("S")));
    order.setAOIs(names(QStringLiteral("A")));
    order.setResultGrid(grid(0));
    order.syntaxError();
    order.reset();
    QCOMPARE(order.mySyntaxError(), QString());
    QVERIFY(!order.hasResultGrid());
    QVERIFY(!order.isValid());
    QCOMPARE(written(order, Order::tag()), written(Order(), Order::tag()));
    QCOMPARE(order.syntaxError(), Order().syntaxError());
}

template <typename Order>
void checkReuse()
{
    Order order;
    order.setSensors(names(QStringLiteral("S")));
    order.setAOIs(names(QStringLiteral("A")));
    order.setResultGrid(grid(3));
    const XmlNameAllMultiType* sensors = order.sensors();

    // What the document does not mention stays; name lists grow.
    QCOMPARE(readError(order, tagged<Order>(QStringLiteral("<o><s><Name>T</Name></s><AOIs><Name>B</Name></AOIs></o>"))),
             QString());
    QCOMPARE(order.sensors(), sensors);
    QCOMPARE(written(order, Order::tag()),
             tagged<Order>(QStringLiteral("<o><s><Name>S</Name><Name>T</Name></s><AOIs><Name>A</Name><Name>B</Name>"
                                          "</AOIs><ResultGrid>100</ResultGrid></o>")));

    // A grid read is a new one: an empty element finds no size to keep.
    QCOMPARE(readError(order, tagged<Order>(QStringLiteral("<o><s><All/></s><AOIs><All/></AOIs><ResultGrid/></o>"))),
             QString());
    QCOMPARE(
        written(order, Order::tag()),
        tagged<Order>(QStringLiteral("<o><s><All/></s><AOIs><All/></AOIs><ResultGrid>UNDEFINED</ResultGrid></o>")));

    // What was read before a failure stays.
    QVERIFY(!readError(order, tagged<Order>(QStringLiteral("<o><s><Name>U</Name></s><Strange/></o>"))).isEmpty());
    QCOMPARE(written(Order(order), Order::tag()),
             tagged<Order>(QStringLiteral("<o><s><Name>U</Name></s><AOIs><All/></AOIs>"
                                          "<ResultGrid>UNDEFINED</ResultGrid></o>")));
    QVERIFY(!order.isValid());
    QVERIFY(!order.syntaxError().isEmpty());
    order.reset();
    QCOMPARE(readError(order, tagged<Order>(QStringLiteral("<o><s><All/></s><AOIs><All/></AOIs></o>"))), QString());
    QVERIFY(order.isValid());

    // A child that fails stays attached, and its error is the one reported.
    Order failed;
    QCOMPARE(readError(failed,
                       tagged<Order>(QStringLiteral("<o><s><All/></s><AOIs><All/></AOIs>\n"
                                                    "<ResultGrid>250</ResultGrid></o>"))),
             QStringLiteral("in XmlResultGridType (line 2, column 16): Illegal enum value.."));
    QVERIFY(failed.hasResultGrid());
    QCOMPARE(readError(failed, tagged<Order>(QStringLiteral("<o><s>\n<Bad/></s></o>"))),
             QStringLiteral("in XmlNameAllMultiType (line 2, column 6): Unexpected element \"Bad\"."));
    QCOMPARE(readError(failed, tagged<Order>(QStringLiteral("<o><s>"))), QStringLiteral("Premature end of document."));
}

template <typename Order>
void checkPositions()
{
    const QString content = tagged<Order>(QStringLiteral("<o><s><All/></s><AOIs><All/></AOIs></o>"));
    {
        QXmlStreamReader reader(content);
        Order order;
        order.processXml(reader, Order::tag());
        QVERIFY(reader.errorString().startsWith(QStringLiteral("in %1 (line 1, column ").arg(Order::name())));
        QVERIFY(reader.errorString().endsWith(QLatin1String("): Unexpected token \"StartDocument\".")));
    }
    {
        QXmlStreamReader reader(content);
        reader.readNext();
        Order order;
        order.processXml(reader, Order::tag());
        QCOMPARE(reader.errorString(),
                 QStringLiteral("in %1 (line 1, column %2): Unexpected token \"StartElement\": %3.")
                     .arg(Order::name(), QString::number(Order::tag().size() + 2), Order::tag()));
    }
    {
        // On characters inside the element, reading just goes on.
        QXmlStreamReader reader(QString(content)
                                    .replace(QLatin1String("><AOIs"), QLatin1String(">\n<AOIs"))
                                    .insert(Order::tag().size() + 2, QLatin1Char('\n')));
        reader.readNextStartElement();
        reader.readNext();
        QVERIFY(reader.isCharacters());
        Order order;
        order.processXml(reader, Order::tag());
        QCOMPARE(reader.errorString(), QString());
        QVERIFY(order.isValid());
        QVERIFY(reader.isEndElement());
        QVERIFY(reader.name() == Order::tag());

        order.processXml(reader, Order::tag());
        QCOMPARE(reader.errorString(),
                 QStringLiteral("in %1 (line 3, column %2): Unexpected token \"EndDocument\".")
                     .arg(Order::name())
                     .arg(QStringLiteral("<AOIs><All/></AOIs></>").size() + Order::tag().size()));
        QVERIFY(order.isValid());
    }
    {
        QXmlStreamReader reader(content);
        while (!reader.atEnd())
            reader.readNext();
        Order order;
        order.processXml(reader, Order::tag());
        QVERIFY(!reader.hasError());
        QVERIFY(!order.isValid());
    }
    {
        // The end tag of an element around it is not its own.
        QXmlStreamReader reader(content);
        reader.readNextStartElement();
        Order order;
        order.processXml(reader, QStringLiteral("Other"));
        QCOMPARE(reader.errorString(),
                 QStringLiteral("in %1 (line 1, column %2): Unexpected token \"EndElement\": %3.")
                     .arg(Order::name(), QString::number(content.size()), Order::tag()));
        QVERIFY(order.isValid());
    }
    {
        // Nothing behind the own end tag is touched.
        QXmlStreamReader reader(QStringLiteral("<Doc>") + content + QStringLiteral("<Next/></Doc>"));
        reader.readNextStartElement();
        reader.readNextStartElement();
        Order order;
        order.processXml(reader, Order::tag());
        QVERIFY(reader.readNextStartElement());
        QCOMPARE(reader.name().toString(), QStringLiteral("Next"));
    }
}

} // namespace

class CoverageordersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void interface();
    void defaults();
    void accessors();
    void copies();
    void roundTrip();
    void judgement();
    void reset();
    void reuse();
    void positions();
    void gates_data();
    void gates();
    void cepWithAllChildren();
    void cepProbability();
    void bestSensorComment();
};

void CoverageordersTest::interface()
{
    static_assert(std::is_base_of_v<XmlElementBase, XmlCepType>);
    static_assert(std::is_base_of_v<XmlElementBase, XmlDetectProbType>);
    static_assert(std::is_base_of_v<XmlElementBase, XmlDfCovType>);
    static_assert(std::is_base_of_v<XmlElementBase, XmlBestSensorType>);
    static_assert(std::is_same_v<decltype(std::declval<XmlCepType&>().useDFs()), const XmlNameAllMultiType*>);
    static_assert(std::is_same_v<decltype(std::declval<XmlCepType&>().AOIs()), const XmlNameAllMultiType*>);
    static_assert(std::is_same_v<decltype(std::declval<XmlCepType&>().probability()), const XmlCepProbType*>);
    static_assert(std::is_same_v<decltype(std::declval<XmlCepType&>().resultGrid()), const XmlResultGridType*>);
    static_assert(std::is_same_v<decltype(std::declval<XmlBestSensorType&>().comment()), const XmlObjNameType*>);
    static_assert(std::is_same_v<decltype(std::declval<XmlCepProbType&>().prob()), XmlCepProbType::Prob>);
    static_assert(std::is_same_v<decltype(std::declval<const XmlCepProbType&>().prob()), XmlCepProbType::Prob>);
}

void CoverageordersTest::defaults()
{
    checkDefaults<Cep>();
    checkDefaults<DetectProb>();
    checkDefaults<DfCov>();
    checkDefaults<BestSensor>();
    QVERIFY(!XmlCepType().hasProbability());
    QVERIFY(!XmlCepType().probability());
    QVERIFY(!XmlBestSensorType().hasComment());
    QVERIFY(!XmlBestSensorType().comment());
}

void CoverageordersTest::accessors()
{
    checkAccessors<Cep>();
    checkAccessors<DetectProb>();
    checkAccessors<DfCov>();
    checkAccessors<BestSensor>();
}

void CoverageordersTest::copies()
{
    checkCopies<Cep>();
    checkCopies<DetectProb>();
    checkCopies<DfCov>();
    checkCopies<BestSensor>();
}

void CoverageordersTest::roundTrip()
{
    checkRoundTrip<Cep>();
    checkRoundTrip<DetectProb>();
    checkRoundTrip<DfCov>();
    checkRoundTrip<BestSensor>();
}

void CoverageordersTest::judgement()
{
    checkJudgement<Cep>();
    checkJudgement<DetectProb>();
    checkJudgement<DfCov>();
    checkJudgement<BestSensor>();
}

void CoverageordersTest::reset()
{
    checkReset<Cep>();
    checkReset<DetectProb>();
    checkReset<DfCov>();
    checkReset<BestSensor>();
}

void CoverageordersTest::reuse()
{
    checkReuse<Cep>();
    checkReuse<DetectProb>();
    checkReuse<DfCov>();
    checkReuse<BestSensor>();
}

void CoverageordersTest::positions()
{
    checkPositions<Cep>();
    checkPositions<DetectProb>();
    checkPositions<DfCov>();
    checkPositions<BestSensor>();
}

void CoverageordersTest::gates_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QStringList>("children");
    QTest::addColumn<QString>("outcome");

    // What each child does after the children before it: "+" the order may end then, "e" the child is
    // accepted, but the end tag is not, "x" the child is refused.
    const auto add = [](const char* tag, const char* next, const char* before, const char* outcomes) {
        const QStringList nextTags = QString::fromLatin1(next).split(QLatin1Char(' '));
        const QStringList beforeTags = QString::fromLatin1(before).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (int i = 0; i < nextTags.size(); ++i) {
            QTest::newRow(qPrintable(QStringLiteral("%1: (%2) then %3")
                                         .arg(QString::fromLatin1(tag), QString::fromLatin1(before), nextTags[i])))
                << QString::fromLatin1(tag) << (beforeTags + QStringList(nextTags[i]))
                << QString(QLatin1Char(outcomes[i]));
        }
    };

    const char* tag = "CEP";
    const char* next = "UseDFs AOIs Probability ResultGrid UseRxDFs Comment aois";
    add(tag, next, "", "eeeexxx");
    add(tag, next, "UseDFs", "x+eexxx");
    add(tag, next, "AOIs", "xxeexxx");
    add(tag, next, "Probability", "xxxexxx");
    add(tag, next, "ResultGrid", "xxxxxxx");
    add(tag, next, "UseDFs AOIs", "xx++xxx");
    add(tag, next, "UseDFs Probability", "xxxexxx");
    add(tag, next, "UseDFs AOIs Probability", "xxx+xxx");
    add(tag, next, "UseDFs AOIs ResultGrid", "xxxxxxx");
    add(tag, next, "UseDFs AOIs Probability ResultGrid", "xxxxxxx");

    tag = "DetectionProbability";
    next = "UseRxDFs AOIs ResultGrid UseDFs Probability Comment";
    add(tag, next, "", "eeexxx");
    add(tag, next, "UseRxDFs", "x+exxx");
    add(tag, next, "AOIs", "xxexxx");
    add(tag, next, "ResultGrid", "xxxxxx");
    add(tag, next, "UseRxDFs AOIs", "xx+xxx");
    add(tag, next, "UseRxDFs AOIs ResultGrid", "xxxxxx");

    tag = "DFcoverage";
    next = "UseDFs AOIs ResultGrid UseRxDFs Probability Comment";
    add(tag, next, "", "eeexxx");
    add(tag, next, "UseDFs", "x+exxx");
    add(tag, next, "AOIs", "xxexxx");
    add(tag, next, "ResultGrid", "xxxxxx");
    add(tag, next, "UseDFs AOIs", "xx+xxx");
    add(tag, next, "UseDFs AOIs ResultGrid", "xxxxxx");

    tag = "BestSensorCov";
    next = "UseRxDFs AOIs ResultGrid Comment UseDFs Probability";
    add(tag, next, "", "eeeexx");
    add(tag, next, "UseRxDFs", "x+eexx");
    add(tag, next, "AOIs", "xxeexx");
    add(tag, next, "ResultGrid", "xxxexx");
    add(tag, next, "Comment", "xxxxxx");
    add(tag, next, "UseRxDFs AOIs", "xx++xx");
    add(tag, next, "UseRxDFs ResultGrid", "xxxexx");
    add(tag, next, "UseRxDFs AOIs ResultGrid", "xxx+xx");
    add(tag, next, "UseRxDFs AOIs Comment", "xxxxxx");
    add(tag, next, "UseRxDFs AOIs ResultGrid Comment", "xxxxxx");

    for (const char* empty : {"CEP", "DetectionProbability", "DFcoverage", "BestSensorCov"}) {
        QTest::newRow(qPrintable(QString::fromLatin1(empty) + QStringLiteral(": no children")))
            << QString::fromLatin1(empty) << QStringList() << QStringLiteral("e");
    }
}

void CoverageordersTest::gates()
{
    QFETCH(QString, tag);
    QFETCH(QStringList, children);
    QFETCH(QString, outcome);

    // Each child on a line of its own, below the start tag.
    QString xml = QStringLiteral("<%1>\n").arg(tag);
    for (const QString& child : children)
        xml += childXml(child) + QLatin1Char('\n');
    xml += QStringLiteral("</%1>").arg(tag);

    QString expected;
    if (outcome == QLatin1String("x")) {
        expected = QStringLiteral("in %1 (line %2, column %3): Unexpected token \"StartElement\": %4.")
                       .arg(className(tag))
                       .arg(children.size() + 1)
                       .arg(children.last().size() + 2)
                       .arg(children.last());
    } else if (outcome == QLatin1String("e")) {
        expected = QStringLiteral("in %1 (line %2, column %3): Unexpected token \"EndElement\": %4.")
                       .arg(className(tag))
                       .arg(children.size() + 2)
                       .arg(tag.size() + 3)
                       .arg(tag);
    }
    const auto order = newOrder(tag);
    QCOMPARE(readError(*order, xml), expected);

    // Every call starts afresh.
    const QString valid = children.contains(QStringLiteral("UseRxDFs"))
        ? QStringLiteral("<%1><UseRxDFs><All/></UseRxDFs><AOIs><All/></AOIs></%1>").arg(tag)
        : QStringLiteral("<%1><UseDFs><All/></UseDFs><AOIs><All/></AOIs></%1>").arg(tag);
    if (outcome == QLatin1String("+"))
        QCOMPARE(readError(*order, valid), QString());
}

void CoverageordersTest::cepWithAllChildren()
{
    const QString xml = QStringLiteral("<CEP><UseDFs><Name>DF 1</Name></UseDFs><AOIs><Name>North</Name></AOIs>"
                                       "<Probability>90</Probability><ResultGrid>100</ResultGrid></CEP>");
    auto order = readFrom<XmlCepType>(xml);
    QCOMPARE(order.useDFs()->objNames().first()->objName(), QStringLiteral("DF 1"));
    QCOMPARE(order.AOIs()->objNames().first()->objName(), QStringLiteral("North"));
    QCOMPARE(static_cast<int>(order.probability()->prob()), 4);
    QCOMPARE(static_cast<int>(order.resultGrid()->size()), 3);
    QVERIFY(order.isValid());
    QCOMPARE(order.syntaxError(), QString());
    QCOMPARE(written(order, QStringLiteral("CEP")), xml);
    QCOMPARE(written(XmlCepType(order), QStringLiteral("CEP")), xml);
}

void CoverageordersTest::cepProbability()
{
    XmlCepType order;
    order.setUseDFs(names(QStringLiteral("S")));
    order.setAOIs(names(QStringLiteral("A")));
    const XmlCepProbType given = prob(1);
    order.setProbability(given);
    QVERIFY(order.hasProbability());
    const XmlCepProbType* held = order.probability();
    QVERIFY(held != &given);
    order.setProbability(prob(2));
    QCOMPARE(order.probability(), held);
    QCOMPARE(static_cast<int>(held->prob()), 2);
    order.setProbability(*held);
    QCOMPARE(static_cast<int>(order.probability()->prob()), 2);
    QVERIFY(order.isValid());
    QCOMPARE(written(order, QStringLiteral("CEP")),
             QStringLiteral("<CEP><UseDFs><Name>S</Name></UseDFs><AOIs><Name>A</Name></AOIs>"
                            "<Probability>66</Probability></CEP>"));

    // Presence on either side of an assignment.
    XmlCepType copy(order);
    QVERIFY(copy.probability() != order.probability());
    order.setProbability(prob(5));
    QCOMPARE(static_cast<int>(copy.probability()->prob()), 2);
    copy = order;
    QCOMPARE(static_cast<int>(copy.probability()->prob()), 5);
    XmlCepType other;
    other = order;
    QCOMPARE(static_cast<int>(other.probability()->prob()), 5);
    other = XmlCepType();
    QVERIFY(!other.hasProbability());
    other = XmlCepType();
    QVERIFY(!other.hasProbability());

    // The probability is reported before the grid.
    order.setProbability(prob(0));
    QVERIFY(!order.isValid());
    order.setResultGrid(grid(0));
    QCOMPARE(order.syntaxError(),
             QStringLiteral("+++ in XmlCepType Begin:\n"
                            "+++ in XmlCepProbType Begin:\n"
                            "Illegal probability value.\n"
                            "--- in XmlCepProbType End\n"
                            "+++ in XmlResultGridType Begin:\n"
                            "Illegal grid size.\n"
                            "--- in XmlResultGridType End\n"
                            "--- in XmlCepType End"));
    order.reset();
    QVERIFY(!order.hasProbability());

    // One read is a new one; one not mentioned stays.
    order.setProbability(prob(3));
    QCOMPARE(readError(order, QStringLiteral("<CEP><UseDFs><All/></UseDFs><AOIs><All/></AOIs></CEP>")), QString());
    QCOMPARE(static_cast<int>(order.probability()->prob()), 3);
    QCOMPARE(readError(order, QStringLiteral("<CEP><UseDFs><All/></UseDFs><AOIs><All/></AOIs><Probability/></CEP>")),
             QString());
    QCOMPARE(static_cast<int>(order.probability()->prob()), 0);
    QCOMPARE(readError(order,
                       QStringLiteral("<CEP><UseDFs><All/></UseDFs><AOIs><All/></AOIs>\n"
                                      "<Probability>80</Probability></CEP>")),
             QStringLiteral("in XmlCepProbType (line 2, column 16): Illegal enum value."));
}

void CoverageordersTest::bestSensorComment()
{
    const QString xml = QStringLiteral("<BestSensorCov><UseRxDFs><All/></UseRxDFs><AOIs><All/></AOIs>"
                                       "<ResultGrid>50</ResultGrid><Comment>Note</Comment></BestSensorCov>");
    auto order = readFrom<XmlBestSensorType>(xml);
    QCOMPARE(order.comment()->objName(), QStringLiteral("Note"));
    QCOMPARE(static_cast<int>(order.resultGrid()->size()), 2);
    QVERIFY(order.isValid());
    QCOMPARE(order.syntaxError(), QString());
    QCOMPARE(written(order, QStringLiteral("BestSensorCov")), xml);

    const XmlObjNameType* held = order.comment();
    order.setComment(objName(QStringLiteral("Other")));
    QCOMPARE(order.comment(), held);
    QCOMPARE(held->objName(), QStringLiteral("Other"));
    order.setComment(*held);
    QCOMPARE(order.comment()->objName(), QStringLiteral("Other"));
    XmlBestSensorType fresh;
    const XmlObjNameType given = objName(QStringLiteral("Given"));
    fresh.setComment(given);
    QVERIFY(fresh.hasComment());
    QVERIFY(fresh.comment() != &given);

    // Presence on either side of an assignment.
    XmlBestSensorType copy(order);
    QVERIFY(copy.comment() != order.comment());
    order.setComment(objName(QStringLiteral("New")));
    QCOMPARE(copy.comment()->objName(), QStringLiteral("Other"));
    copy = order;
    QCOMPARE(copy.comment()->objName(), QStringLiteral("New"));
    XmlBestSensorType other;
    other = order;
    QCOMPARE(other.comment()->objName(), QStringLiteral("New"));
    other = XmlBestSensorType();
    QVERIFY(!other.hasComment());
    other = XmlBestSensorType();
    QVERIFY(!other.hasComment());

    // The comment is reported after the grid.
    order.setComment(objName(QString()));
    QVERIFY(!order.isValid());
    order.setResultGrid(grid(0));
    QCOMPARE(order.syntaxError(),
             QStringLiteral("+++ in XmlBestSensorType Begin:\n"
                            "+++ in XmlResultGridType Begin:\n"
                            "Illegal grid size.\n"
                            "--- in XmlResultGridType End\n"
                            "+++ in XmlObjNameType Begin:\n"
                            "Object name too short (min. 1).\n"
                            "--- in XmlObjNameType End\n"
                            "--- in XmlBestSensorType End"));
    order.reset();
    QVERIFY(!order.hasComment());

    // One read is a new one; one not mentioned stays.
    order.setComment(objName(QStringLiteral("Kept")));
    QCOMPARE(readError(order, QStringLiteral("<B><UseRxDFs><All/></UseRxDFs><AOIs><All/></AOIs></B>")), QString());
    QCOMPARE(order.comment()->objName(), QStringLiteral("Kept"));
    QCOMPARE(readError(order, QStringLiteral("<B><UseRxDFs><All/></UseRxDFs><AOIs><All/></AOIs><Comment/></B>")),
             QString());
    QCOMPARE(order.comment()->objName(), QString());
    QVERIFY(order.hasComment());
}

QTEST_APPLESS_MAIN(CoverageordersTest)
#include "coverageorders_test.moc"
