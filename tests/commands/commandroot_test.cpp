#include "support/elementtest.h"

#include <arvxml/commandroot.h>

#include <type_traits>
#include <utility>

using namespace ArvXml;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;

namespace {

const QString rootTag = QStringLiteral("Commands");
const QString firstId = QStringLiteral("ARV240305140709042");
const QString secondId = QStringLiteral("ARV250101000000000");

QString envelopeXml(const QString& id)
{
    return QStringLiteral("<ORDER_DEF><ORDER_ID>%1</ORDER_ID><ORDER_SENDER>host</ORDER_SENDER></ORDER_DEF>").arg(id);
}

QString adminXml(const QString& reference)
{
    return QStringLiteral("<Administrative><QueryVersion/><Reference>%1</Reference></Administrative>").arg(reference);
}

QString calcXml(const QString& reference)
{
    return QStringLiteral("<Calculate><CEP><UseDFs><All/></UseDFs><AOIs><All/></AOIs></CEP><Reference>%1</Reference>"
                          "</Calculate>")
        .arg(reference);
}

const QString a1 = adminXml(QStringLiteral("a1"));
const QString a2 = adminXml(QStringLiteral("a2"));
const QString c1 = calcXml(QStringLiteral("c1"));
const QString c2 = calcXml(QStringLiteral("c2"));

QString document(const QString& children)
{
    return QStringLiteral("<Commands>") + children + QStringLiteral("</Commands>");
}

QString block(const QString& body)
{
    return QStringLiteral("+++ in XmlCmdRoot Begin:\n") + body + QStringLiteral("--- in XmlCmdRoot End");
}

XmlOrderDef envelope(const QString& id)
{
    XmlOrderDef envelope;
    envelope.setOrderId(id);
    envelope.setOrderSender(QStringLiteral("host"));
    return envelope;
}

/// Shows what the base keeps for itself.
struct Root : XmlCmdRoot {
    using XmlCmdRoot::classname;
    using XmlCmdRoot::mySyntaxError;
};

} // namespace

class CommandrootTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void interface();
    void defaults();
    void envelopeAccessors();
    void listsHandedOut();
    void roundTrip_data();
    void roundTrip();
    void gates_data();
    void gates();
    void ignoredTokens();
    void envelopesOfTheCommands();
    void envelopeHeldBefore();
    void copies();
    void assignments();
    void judgement_data();
    void judgement();
    void problemsInOrder();
    void reset();
    void reuse();
    void readerErrors_data();
    void readerErrors();
    void positions();
};

void CommandrootTest::interface()
{
    using R = XmlCmdRoot;
    static_assert(std::is_base_of_v<XmlElementBase, R>);
    static_assert(
        std::is_same_v<decltype(std::declval<const R&>().getAdministrativeCmds()), const QList<XmlCmdAdmin*>>);
    static_assert(std::is_same_v<decltype(std::declval<const R&>().getCalculationCmds()), const QList<XmlCmdCalc*>>);
    static_assert(std::is_same_v<decltype(std::declval<R&>().orderDef()), const XmlOrderDef*>);
    QCOMPARE(Root().classname(), QStringLiteral("XmlCmdRoot"));
}

void CommandrootTest::defaults()
{
    Root root;
    QVERIFY(!root.hasOrderDef());
    QVERIFY(!root.orderDef());
    QVERIFY(root.getAdministrativeCmds().isEmpty());
    QVERIFY(root.getCalculationCmds().isEmpty());
    QVERIFY(root.isValid());
    QCOMPARE(root.syntaxError(), QString());
    QCOMPARE(written(root, rootTag), QStringLiteral("<Commands/>"));
}

void CommandrootTest::envelopeAccessors()
{
    Root root;
    const XmlOrderDef given = envelope(firstId);
    root.setOrderDef(given);
    QVERIFY(root.hasOrderDef());
    const XmlOrderDef* held = root.orderDef();
    QVERIFY(held != &given);
    QCOMPARE(held->orderId(), firstId);
    root.setOrderDef(envelope(secondId));
    QCOMPARE(root.orderDef(), held);
    QCOMPARE(held->orderId(), secondId);
    root.setOrderDef(*held);
    QCOMPARE(written(root, rootTag), document(envelopeXml(secondId)));

    // The commands keep the copies they got when they were read.
    auto filled = readFrom<Root>(document(envelopeXml(firstId) + a1));
    filled.setOrderDef(envelope(secondId));
    QCOMPARE(filled.getAdministrativeCmds().first()->orderDef()->orderId(), firstId);
}

void CommandrootTest::listsHandedOut()
{
    const auto root = readFrom<XmlCmdRoot>(document(a1 + a2 + c1));
    QList<XmlCmdAdmin*> administrative = root.getAdministrativeCmds();
    QCOMPARE(administrative.size(), 2);
    XmlCmdAdmin* first = administrative.first();
    administrative.clear();
    QList<XmlCmdCalc*> calculations = root.getCalculationCmds();
    calculations.clear();
    QCOMPARE(root.getAdministrativeCmds().size(), 2);
    QCOMPARE(root.getAdministrativeCmds().first(), first); // the same objects every time
    QCOMPARE(root.getCalculationCmds().size(), 1);

    // A change to a command is a change to the root.
    XmlReferenceType reference;
    reference.setReference(QStringLiteral("new"));
    first->setCmdReference(reference);
    QCOMPARE(written(root, rootTag), document(adminXml(QStringLiteral("new")) + a2 + c1));
}

void CommandrootTest::roundTrip_data()
{
    QTest::addColumn<QString>("children");
    QTest::addColumn<int>("administrative");
    QTest::addColumn<int>("calculations");

    const QString id = envelopeXml(firstId);
    QTest::newRow("an envelope") << id << 0 << 0;
    QTest::newRow("an administrative command") << a1 << 1 << 0;
    QTest::newRow("a calculation") << c1 << 0 << 1;
    QTest::newRow("an envelope and an administrative command") << id + a1 << 1 << 0;
    QTest::newRow("an envelope and a calculation") << id + c1 << 0 << 1;
    QTest::newRow("several of each, in order") << a1 + a2 + c1 + c2 << 2 << 2;
    QTest::newRow("several of each, the other way round") << a2 + a1 + c2 + c1 << 2 << 2;
    QTest::newRow("everything") << id + a1 + a2 + c1 + c2 + c1 << 2 << 3;
}

void CommandrootTest::roundTrip()
{
    QFETCH(QString, children);
    QFETCH(int, administrative);
    QFETCH(int, calculations);

    auto root = readFrom<XmlCmdRoot>(document(children));
    QCOMPARE(root.hasOrderDef(), children.startsWith(QLatin1String("<ORDER_DEF>")));
    QCOMPARE(root.getAdministrativeCmds().size(), administrative);
    QCOMPARE(root.getCalculationCmds().size(), calculations);
    QVERIFY(root.isValid());
    QCOMPARE(root.syntaxError(), QString());
    QCOMPARE(written(root, rootTag), document(children));
    QCOMPARE(written(root, QStringLiteral("Other")), QStringLiteral("<Other>%1</Other>").arg(children));
}

void CommandrootTest::gates_data()
{
    QTest::addColumn<QStringList>("children");
    QTest::addColumn<bool>("accepted");

    // What may follow the children before: "+" accepted, "x" refused.
    const QStringList next = {QStringLiteral("ORDER_DEF"), QStringLiteral("Administrative"),
                              QStringLiteral("Calculate"), QStringLiteral("calculate"), QStringLiteral("Reference")};
    const auto add = [&](const char* before, const char* outcomes) {
        const QStringList beforeTags = QString::fromLatin1(before).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (int i = 0; i < next.size(); ++i) {
            QTest::newRow(qPrintable(QStringLiteral("(%1) then %2").arg(QString::fromLatin1(before), next[i])))
                << (beforeTags + QStringList(next[i])) << (outcomes[i] == '+');
        }
    };

    add("", "+++xx");
    add("ORDER_DEF", "x++xx");
    add("Administrative", "x++xx");
    add("Calculate", "xx+xx");
    add("ORDER_DEF Administrative", "x++xx");
    add("ORDER_DEF Calculate", "xx+xx");
    add("Administrative Administrative", "x++xx");
    add("Administrative Calculate", "xx+xx");
    add("Calculate Calculate", "xx+xx");
    add("ORDER_DEF Administrative Calculate", "xx+xx");
}

void CommandrootTest::gates()
{
    QFETCH(QStringList, children);
    QFETCH(bool, accepted);

    QString xml = QStringLiteral("<Commands>\n");
    int commands = 0;
    for (const QString& child : children) {
        if (child == QLatin1String("ORDER_DEF"))
            xml += envelopeXml(firstId);
        else if (child == QLatin1String("Administrative"))
            xml += a1;
        else if (child == QLatin1String("Calculate"))
            xml += c1;
        else
            xml += QStringLiteral("<%1></%1>").arg(child);
        xml += QLatin1Char('\n');
        commands += child == QLatin1String("Administrative") || child == QLatin1String("Calculate") ? 1 : 0;
    }
    xml += QStringLiteral("</Commands>");

    QString expected;
    if (!accepted) {
        expected = QStringLiteral("in XmlCmdRoot (line %1, column %2): Unexpected token \"StartElement\": %3.")
                       .arg(children.size() + 1)
                       .arg(children.last().size() + 2)
                       .arg(children.last());
        if (children.last() == QLatin1String("Administrative"))
            --commands;
    }
    XmlCmdRoot root;
    QCOMPARE(readError(root, xml), expected);
    // What was read until then stays.
    QCOMPARE(root.getAdministrativeCmds().size() + root.getCalculationCmds().size(), commands);
    QCOMPARE(root.hasOrderDef(), children.first() == QLatin1String("ORDER_DEF"));

    // Every call starts afresh.
    QCOMPARE(readError(root, document(envelopeXml(secondId) + a2 + c2)), QString());
    QCOMPARE(root.getAdministrativeCmds().size() + root.getCalculationCmds().size(), commands + 2);
    QCOMPARE(root.orderDef()->orderId(), secondId);
}

void CommandrootTest::ignoredTokens()
{
    const auto root = readFrom<XmlCmdRoot>(
        QStringLiteral("<?xml version=\"1.0\"?><!DOCTYPE Commands><Commands version=\"2.0\">text<!-- c -->%1\n<?p i?>%2"
                       "<![CDATA[x]]>%3</Commands>")
            .arg(envelopeXml(firstId), a1, c1));
    QCOMPARE(written(root, rootTag), document(envelopeXml(firstId) + a1 + c1));

    XmlCmdRoot empty;
    QCOMPARE(readError(empty, QStringLiteral("<Commands/>")), QString());
    QVERIFY(empty.isValid());
}

void CommandrootTest::envelopesOfTheCommands()
{
    const auto root = readFrom<XmlCmdRoot>(document(envelopeXml(firstId) + a1 + a2 + c1));
    const QList<XmlCmdAdmin*> administrative = root.getAdministrativeCmds();
    QCOMPARE(administrative[0]->orderDef()->orderId(), firstId);
    QCOMPARE(administrative[0]->orderDef()->orderSender(), QStringLiteral("host"));
    QCOMPARE(administrative[1]->orderDef()->orderId(), firstId);
    QCOMPARE(root.getCalculationCmds().first()->orderDef()->orderId(), firstId);
    QCOMPARE(root.getCalculationCmds().first()->orderDef()->orderSender(), QStringLiteral("host"));

    // Each has its own.
    QVERIFY(administrative[0]->orderDef() != root.orderDef());
    QVERIFY(administrative[0]->orderDef() != administrative[1]->orderDef());
    QVERIFY(root.getCalculationCmds().first()->orderDef() != root.orderDef());

    // A command taken out of the root takes it along.
    XmlCmdAdmin taken;
    {
        const XmlCmdRoot other(root);
        taken = *other.getAdministrativeCmds().first();
    }
    QCOMPARE(taken.orderDef()->orderId(), firstId);

    const auto without = readFrom<XmlCmdRoot>(document(a1 + c1));
    QVERIFY(!without.getAdministrativeCmds().first()->hasOrderDef());
    QVERIFY(!without.getCalculationCmds().first()->hasOrderDef());

    // A command that fails gets it too, and is held.
    XmlCmdRoot failed;
    QVERIFY(!readError(failed, document(envelopeXml(firstId) + QStringLiteral("<Administrative/>"))).isEmpty());
    QCOMPARE(failed.getAdministrativeCmds().size(), 1);
    QCOMPARE(failed.getAdministrativeCmds().first()->orderDef()->orderId(), firstId);
    XmlCmdRoot failedToo;
    QVERIFY(!readError(failedToo, document(envelopeXml(firstId) + QStringLiteral("<Calculate/>"))).isEmpty());
    QCOMPARE(failedToo.getCalculationCmds().size(), 1);
    QCOMPARE(failedToo.getCalculationCmds().first()->orderDef()->orderId(), firstId);
}

void CommandrootTest::envelopeHeldBefore()
{
    // Commands of a document without an envelope get the one held.
    XmlCmdRoot root;
    root.setOrderDef(envelope(firstId));
    QCOMPARE(readError(root, document(a1 + c1)), QString());
    QCOMPARE(root.getAdministrativeCmds().first()->orderDef()->orderId(), firstId);
    QCOMPARE(root.getCalculationCmds().first()->orderDef()->orderId(), firstId);

    // A new one takes its place; the commands held keep theirs.
    QCOMPARE(readError(root, document(envelopeXml(secondId) + a2)), QString());
    QCOMPARE(root.orderDef()->orderId(), secondId);
    QCOMPARE(root.getAdministrativeCmds().first()->orderDef()->orderId(), firstId);
    QCOMPARE(root.getAdministrativeCmds().last()->orderDef()->orderId(), secondId);

    // It is a new object: nothing of the old one is left, also when it fails.
    QCOMPARE(readError(root, document(envelopeXml(QStringLiteral("ARV12345")))), QString());
    QCOMPARE(root.orderDef()->orderId(), QString());
    root.setOrderDef(envelope(firstId));
    QCOMPARE(readError(root, QStringLiteral("<Commands>\n<ORDER_DEF></ORDER_DEF></Commands>")),
             QStringLiteral("in XmlOrderDef (line 2, column 23): Unexpected token \"EndElement\": ORDER_DEF."));
    QVERIFY(root.hasOrderDef());
    QCOMPARE(root.orderDef()->orderId(), QString());
}

void CommandrootTest::copies()
{
    const QString full = document(envelopeXml(firstId) + a1 + a2 + c1 + c2);
    auto root = readFrom<Root>(full);
    Root copy(root);
    Root assigned;
    assigned = root;
    for (const Root* other : {&copy, &assigned}) {
        QCOMPARE(written(*other, rootTag), full);
        QVERIFY(other->orderDef() != root.orderDef());
        for (int i = 0; i < 2; ++i) {
            const XmlCmdAdmin* admin = other->getAdministrativeCmds()[i];
            QVERIFY(admin != root.getAdministrativeCmds()[i]);
            QCOMPARE(admin->orderDef()->orderId(), firstId);
            QVERIFY(admin->orderDef() != root.getAdministrativeCmds()[i]->orderDef());
            const XmlCmdCalc* calc = other->getCalculationCmds()[i];
            QVERIFY(calc != root.getCalculationCmds()[i]);
            QCOMPARE(calc->orderDef()->orderId(), firstId);
            QVERIFY(calc->orderDef() != root.getCalculationCmds()[i]->orderDef());
        }
    }
    root.reset();
    QCOMPARE(written(copy, rootTag), full);
    QCOMPARE(written(assigned, rootTag), full);

    const Root& same = copy;
    copy = same;
    QCOMPARE(written(copy, rootTag), full);
    QCOMPARE(copy.getAdministrativeCmds().first()->orderDef()->orderId(), firstId);

    Root faulty;
    faulty.setOrderDef(XmlOrderDef());
    const QString error = faulty.syntaxError();
    QCOMPARE(Root(faulty).mySyntaxError(), error);
    copy = faulty;
    QCOMPARE(copy.mySyntaxError(), error);
}

void CommandrootTest::assignments()
{
    // Every presence on either side: the target becomes what the source is.
    const QStringList contents = {QString(),    envelopeXml(firstId),           a1,
                                  c1,           envelopeXml(secondId) + a2,     envelopeXml(firstId) + c1 + c2,
                                  a1 + a2 + c2, envelopeXml(secondId) + a1 + c1};
    for (const QString& before : contents) {
        for (const QString& after : contents) {
            auto target = readFrom<XmlCmdRoot>(document(before));
            const auto source = readFrom<XmlCmdRoot>(document(after));
            target = source;
            QCOMPARE(target.hasOrderDef(), source.hasOrderDef());
            QCOMPARE(written(target, QStringLiteral("R")), written(source, QStringLiteral("R")));
            QCOMPARE(written(target, rootTag), after.isEmpty() ? QStringLiteral("<Commands/>") : document(after));
        }
    }
}

void CommandrootTest::judgement_data()
{
    QTest::addColumn<QString>("children");
    QTest::addColumn<bool>("valid");

    const QString id = envelopeXml(firstId);
    const QString badId = envelopeXml(QString());
    const QString badAdmin = QStringLiteral("<Administrative><QueryVersion/></Administrative>");
    const QString badCalc = calcXml(QString());
    QTest::newRow("an empty root") << QString() << true;
    QTest::newRow("an envelope") << id << true;
    QTest::newRow("an envelope without id") << badId << false;
    QTest::newRow("commands without an envelope") << a1 + c1 << true;
    QTest::newRow("an invalid administrative command") << badAdmin << false;
    QTest::newRow("the last administrative command is invalid") << id + a1 + badAdmin + c1 << false;
    QTest::newRow("the first administrative command is invalid") << id + badAdmin + a1 + c1 << false;
    QTest::newRow("an invalid calculation") << badCalc << false;
    QTest::newRow("the last calculation is invalid") << id + a1 + c1 + badCalc << false;
    QTest::newRow("the first calculation is invalid") << id + a1 + badCalc + c1 << false;
    QTest::newRow("everything is in order") << id + a1 + a2 + c1 + c2 << true;
}

void CommandrootTest::judgement()
{
    QFETCH(QString, children);
    QFETCH(bool, valid);

    auto root = readFrom<XmlCmdRoot>(document(children));
    QCOMPARE(root.isValid(), valid);
    QCOMPARE(root.syntaxError().isEmpty(), valid);
}

void CommandrootTest::problemsInOrder()
{
    const QString reference = QStringLiteral("+++ in XmlreferenceType Begin:\n"
                                             "String too short (min. 1)\n"
                                             "--- in XmlreferenceType End\n");
    const QString admin = QStringLiteral("+++ in XmlCmdAdmin Begin:\n%1--- in XmlCmdAdmin End\n").arg(reference);
    const QString calc = QStringLiteral("+++ in XmlCmdCalc Begin:\n%1--- in XmlCmdCalc End\n").arg(reference);
    const QString badAdmin = QStringLiteral("<Administrative><QueryVersion/></Administrative>");
    const QString badCalc = calcXml(QString());

    auto root =
        readFrom<XmlCmdRoot>(document(envelopeXml(QString()) + badAdmin + a1 + badAdmin + badCalc + c1 + badCalc));
    const QString all = block(QStringLiteral("+++ in XmlOrderDef Begin:\n"
                                             "Id not set.\n"
                                             "--- in XmlOrderDef End\n")
                              + admin + admin + calc + calc);
    QCOMPARE(root.syntaxError(), all);
    QCOMPARE(root.syntaxError(), all);

    auto last = readFrom<XmlCmdRoot>(document(a1 + c1 + badCalc));
    QCOMPARE(last.syntaxError(), block(calc));
}

void CommandrootTest::reset()
{
    auto root = readFrom<Root>(document(envelopeXml(QString()) + a1 + c1 + c2));
    QVERIFY(!root.syntaxError().isEmpty());
    root.reset();
    QCOMPARE(root.mySyntaxError(), QString());
    QVERIFY(!root.hasOrderDef());
    QVERIFY(!root.orderDef());
    QVERIFY(root.getAdministrativeCmds().isEmpty());
    QVERIFY(root.getCalculationCmds().isEmpty());
    QVERIFY(root.isValid());
    QCOMPARE(root.syntaxError(), QString());
    QCOMPARE(written(root, rootTag), QStringLiteral("<Commands/>"));
    QCOMPARE(readError(root, document(a1)), QString());
    QCOMPARE(written(root, rootTag), document(a1));
}

void CommandrootTest::reuse()
{
    auto root = readFrom<XmlCmdRoot>(document(envelopeXml(firstId) + a1 + c1));
    const XmlCmdAdmin* held = root.getAdministrativeCmds().first();
    QCOMPARE(readError(root, document(a2 + c2)), QString());
    QCOMPARE(root.getAdministrativeCmds().first(), held);
    QCOMPARE(written(root, rootTag), document(envelopeXml(firstId) + a1 + a2 + c1 + c2));
    QCOMPARE(readError(root, document(envelopeXml(secondId))), QString());
    QCOMPARE(written(root, rootTag), document(envelopeXml(secondId) + a1 + a2 + c1 + c2));

    // After a failure it can be judged, written, copied, reset and read into.
    QVERIFY(!readError(root, document(a1 + QStringLiteral("<Administrative/>"))).isEmpty());
    QCOMPARE(root.getAdministrativeCmds().size(), 4);
    QVERIFY(!root.isValid());
    QVERIFY(!root.syntaxError().isEmpty());
    QCOMPARE(written(XmlCmdRoot(root), rootTag),
             document(envelopeXml(secondId) + a1 + a2 + a1
                      + QStringLiteral("<Administrative><Reference></Reference></Administrative>") + c1 + c2));
    root.reset();
    QCOMPARE(readError(root, document(c1)), QString());
    QCOMPARE(written(root, rootTag), document(c1));
}

void CommandrootTest::readerErrors_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("error");

    QTest::newRow("an unknown command")
        << QStringLiteral("<Commands>\n\n   <Compute/></Commands>")
        << QStringLiteral("in XmlCmdRoot (line 3, column 13): Unexpected token \"StartElement\": Compute.");
    QTest::newRow("a failing administrative command")
        << QStringLiteral("<Commands>\n<Administrative></Administrative><Other/></Commands>")
        << QStringLiteral("in XmlCmdAdmin (line 2, column 33): Unexpected token \"EndElement\".");
    QTest::newRow("a failing calculation")
        << QStringLiteral("<Commands>\n<Calculate></Calculate><Other/></Commands>")
        << QStringLiteral("in XmlCmdCalc (line 2, column 23): Unexpected token \"EndElement\".");
    QTest::newRow("a failing envelope")
        << QStringLiteral("<Commands>\n<ORDER_DEF><x></x></ORDER_DEF></Commands>")
        << QStringLiteral("in XmlOrderDef (line 2, column 14): Unexpected token \"StartElement\": x.");
    QTest::newRow("a premature end") << QStringLiteral("<Commands>") << QStringLiteral("Premature end of document.");
    QTest::newRow("an end tag that does not match")
        << QStringLiteral("<Commands></commands>") << QStringLiteral("Opening and ending tag mismatch.");
}

void CommandrootTest::readerErrors()
{
    QFETCH(QString, xml);
    QFETCH(QString, error);

    XmlCmdRoot root;
    QCOMPARE(readError(root, xml), error);
}

void CommandrootTest::positions()
{
    const QString xml = QStringLiteral("<Commands>\n%1</Commands>").arg(a1);
    XmlCmdRoot root;

    QXmlStreamReader fresh(xml);
    root.processXml(fresh, rootTag);
    QVERIFY(fresh.errorString().startsWith(QLatin1String("in XmlCmdRoot (line 1, column ")));
    QVERIFY(fresh.errorString().endsWith(QLatin1String("): Unexpected token \"StartDocument\".")));

    QXmlStreamReader atStart(xml);
    atStart.readNext();
    root.processXml(atStart, rootTag);
    QCOMPARE(atStart.errorString(),
             QStringLiteral("in XmlCmdRoot (line 1, column 10): Unexpected token \"StartElement\": Commands."));
    QVERIFY(root.getAdministrativeCmds().isEmpty());

    // There is no check of the position: on characters inside, reading goes on.
    QXmlStreamReader onText(xml);
    onText.readNextStartElement();
    onText.readNext();
    QVERIFY(onText.isCharacters());
    root.processXml(onText, rootTag);
    QCOMPARE(onText.errorString(), QString());
    QCOMPARE(root.getAdministrativeCmds().size(), 1);
    root.processXml(onText, rootTag);
    QCOMPARE(onText.errorString(),
             QStringLiteral("in XmlCmdRoot (line 2, column %1): "
                            "Unexpected token \"EndDocument\".")
                 .arg(a1.size() + 11));

    XmlCmdRoot untouched;
    QXmlStreamReader atEnd(xml);
    while (!atEnd.atEnd())
        atEnd.readNext();
    untouched.processXml(atEnd, rootTag);
    QVERIFY(!atEnd.hasError());
    QVERIFY(untouched.getAdministrativeCmds().isEmpty());

    QXmlStreamReader otherTag(QStringLiteral("<Commands>\n</Commands>"));
    otherTag.readNextStartElement();
    untouched.processXml(otherTag, QStringLiteral("commands"));
    QCOMPARE(otherTag.errorString(),
             QStringLiteral("in XmlCmdRoot (line 2, column 11): Unexpected token \"EndElement\": Commands."));

    QXmlStreamReader inDocument(QStringLiteral("<Doc>%1<Next/></Doc>").arg(xml));
    inDocument.readNextStartElement();
    inDocument.readNextStartElement();
    untouched.processXml(inDocument, rootTag);
    QVERIFY(inDocument.readNextStartElement());
    QCOMPARE(inDocument.name().toString(), QStringLiteral("Next"));
}

QTEST_APPLESS_MAIN(CommandrootTest)
#include "commandroot_test.moc"
