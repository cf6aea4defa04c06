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

QString createXml(const QString& reference)
{
    return QStringLiteral("<Create><Station><Name>S</Name><Position version=\"1.0\"><Longitude>7.500000</Longitude>"
                          "<Latitude>47.250000</Latitude></Position></Station><Reference>%1</Reference></Create>")
        .arg(reference);
}

QString deleteXml(const QString& reference)
{
    return QStringLiteral("<Delete><Emitter><All/></Emitter><Reference>%1</Reference></Delete>").arg(reference);
}

QString modelXml(const QString& reference)
{
    return QStringLiteral("<PropagationModel><SelectModel>OLOS</SelectModel><PropertiesOLOS>"
                          "<MaxRange_km>10.000</MaxRange_km></PropertiesOLOS><Reference>%1</Reference>"
                          "</PropagationModel>")
        .arg(reference);
}

const QString a1 = adminXml(QStringLiteral("a1"));
const QString a2 = adminXml(QStringLiteral("a2"));
const QString n1 = createXml(QStringLiteral("n1"));
const QString n2 = createXml(QStringLiteral("n2"));
const QString d1 = deleteXml(QStringLiteral("d1"));
const QString d2 = deleteXml(QStringLiteral("d2"));
const QString m1 = modelXml(QStringLiteral("m1"));
/// Without a parameter set, so that something of the other model would be seen.
const QString m2 = QStringLiteral("<PropagationModel><SelectModel>P.1546</SelectModel><Reference>m2</Reference>"
                                  "</PropagationModel>");
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

/// How many commands of each kind are held, in the order of writing.
QList<int> counts(const XmlCmdRoot& root)
{
    return {int(root.getAdministrativeCmds().size()), int(root.getCreateCmds().size()),
            int(root.getDeleteCmds().size()), root.getPropagationModelCmd() ? 1 : 0,
            int(root.getCalculationCmds().size())};
}

/// The commands of all kinds, in the order of writing.
QList<const XmlCommand*> commandsOf(const XmlCmdRoot& root)
{
    QList<const XmlCommand*> commands;
    for (const XmlCmdAdmin* command : root.getAdministrativeCmds())
        commands << command;
    for (const XmlCmdCreate* command : root.getCreateCmds())
        commands << command;
    for (const XmlCmdDelete* command : root.getDeleteCmds())
        commands << command;
    if (root.getPropagationModelCmd())
        commands << root.getPropagationModelCmd();
    for (const XmlCmdCalc* command : root.getCalculationCmds())
        commands << command;
    return commands;
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
    void propagationModel();
    void modelReplaced();
    void copies();
    void assignments();
    void judgement_data();
    void judgement();
    void problemsInOrder();
    void reset();
    void reuse();
    void positions();
};

void CommandrootTest::interface()
{
    using R = XmlCmdRoot;
    static_assert(std::is_base_of_v<XmlElementBase, R>);
    static_assert(
        std::is_same_v<decltype(std::declval<const R&>().getAdministrativeCmds()), const QList<XmlCmdAdmin*>>);
    static_assert(std::is_same_v<decltype(std::declval<const R&>().getCreateCmds()), const QList<XmlCmdCreate*>>);
    static_assert(std::is_same_v<decltype(std::declval<const R&>().getDeleteCmds()), const QList<XmlCmdDelete*>>);
    static_assert(std::is_same_v<decltype(std::declval<const R&>().getCalculationCmds()), const QList<XmlCmdCalc*>>);
    static_assert(std::is_same_v<decltype(std::declval<const R&>().getPropagationModelCmd()), const XmlPropModelType*>);
    static_assert(std::is_same_v<decltype(std::declval<R&>().orderDef()), const XmlOrderDef*>);
    QCOMPARE(Root().classname(), QStringLiteral("XmlCmdRoot"));
}

void CommandrootTest::defaults()
{
    Root root;
    QVERIFY(!root.hasOrderDef());
    QVERIFY(!root.orderDef());
    QVERIFY(root.getAdministrativeCmds().isEmpty());
    QVERIFY(root.getCreateCmds().isEmpty());
    QVERIFY(root.getDeleteCmds().isEmpty());
    QVERIFY(!root.getPropagationModelCmd());
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
    const auto root = readFrom<XmlCmdRoot>(document(a1 + a2 + n1 + d1 + d2 + c1));
    QList<XmlCmdAdmin*> administrative = root.getAdministrativeCmds();
    QCOMPARE(administrative.size(), 2);
    XmlCmdAdmin* first = administrative.first();
    administrative.clear();
    QList<XmlCmdCalc*> calculations = root.getCalculationCmds();
    calculations.clear();
    QList<XmlCmdCreate*> creates = root.getCreateCmds();
    XmlCmdCreate* create = creates.first();
    creates.clear();
    QList<XmlCmdDelete*> deletes = root.getDeleteCmds();
    XmlCmdDelete* lastDelete = deletes.last();
    deletes.clear();
    QCOMPARE(root.getCreateCmds().size(), 1);
    QCOMPARE(root.getCreateCmds().first(), create);
    QCOMPARE(root.getDeleteCmds().size(), 2);
    QCOMPARE(root.getDeleteCmds().last(), lastDelete);
    QCOMPARE(root.getAdministrativeCmds().size(), 2);
    QCOMPARE(root.getAdministrativeCmds().first(), first); // the same objects every time
    QCOMPARE(root.getCalculationCmds().size(), 1);

    // A change to a command is a change to the root.
    XmlReferenceType reference;
    reference.setReference(QStringLiteral("new"));
    first->setCmdReference(reference);
    create->setCmdReference(reference);
    lastDelete->setCmdReference(reference);
    QCOMPARE(written(root, rootTag),
             document(adminXml(QStringLiteral("new")) + a2 + createXml(QStringLiteral("new")) + d1
                      + deleteXml(QStringLiteral("new")) + c1));
}

void CommandrootTest::roundTrip_data()
{
    QTest::addColumn<QString>("children");
    QTest::addColumn<QList<int>>("commands"); ///< how many of each kind

    using N = QList<int>;
    const QString id = envelopeXml(firstId);
    QTest::newRow("an envelope") << id << N{0, 0, 0, 0, 0};
    QTest::newRow("an administrative command") << a1 << N{1, 0, 0, 0, 0};
    QTest::newRow("a create command") << n1 << N{0, 1, 0, 0, 0};
    QTest::newRow("a delete command") << d1 << N{0, 0, 1, 0, 0};
    QTest::newRow("a calculation") << c1 << N{0, 0, 0, 0, 1};
    QTest::newRow("a model") << m1 << N{0, 0, 0, 1, 0};
    QTest::newRow("another model") << m2 << N{0, 0, 0, 1, 0};
    QTest::newRow("a model without a selection")
        << QStringLiteral("<PropagationModel><Reference>m</Reference></PropagationModel>") << N{0, 0, 0, 1, 0};
    QTest::newRow("an envelope and a model") << id + m1 << N{0, 0, 0, 1, 0};
    QTest::newRow("a model between deletes and calculations") << d1 + d2 + m1 + c1 + c2 << N{0, 0, 2, 1, 2};
    QTest::newRow("a model between administrative commands and calculations") << a1 + m2 + c1 << N{1, 0, 0, 1, 1};
    QTest::newRow("a model between creates and calculations") << n1 + n2 + m2 + c1 << N{0, 2, 0, 1, 1};
    QTest::newRow("a model after everything else") << id + a1 + n1 + d1 + m1 << N{1, 1, 1, 1, 0};
    QTest::newRow("one of each, with an envelope") << id + a1 + n1 + d1 + m1 + c1 << N{1, 1, 1, 1, 1};
    QTest::newRow("an envelope and an administrative command") << id + a1 << N{1, 0, 0, 0, 0};
    QTest::newRow("an envelope and a create command") << id + n1 << N{0, 1, 0, 0, 0};
    QTest::newRow("an envelope and a delete command") << id + d1 << N{0, 0, 1, 0, 0};
    QTest::newRow("an envelope and a calculation") << id + c1 << N{0, 0, 0, 0, 1};
    QTest::newRow("several of each, in order") << a1 + a2 + n1 + n2 + d1 + d2 + c1 + c2 << N{2, 2, 2, 0, 2};
    QTest::newRow("several of each, the other way round") << a2 + a1 + n2 + n1 + d2 + d1 + c2 + c1 << N{2, 2, 2, 0, 2};
    QTest::newRow("everything") << id + a1 + a2 + n1 + n2 + n1 + d1 + c1 + c2 + c1 << N{2, 3, 1, 0, 3};
}

void CommandrootTest::roundTrip()
{
    QFETCH(QString, children);
    QFETCH(QList<int>, commands);

    auto root = readFrom<XmlCmdRoot>(document(children));
    QCOMPARE(root.hasOrderDef(), children.startsWith(QLatin1String("<ORDER_DEF>")));
    QCOMPARE(counts(root), commands);
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
    const QStringList next = {QStringLiteral("ORDER_DEF"),        QStringLiteral("Administrative"),
                              QStringLiteral("Create"),           QStringLiteral("Delete"),
                              QStringLiteral("PropagationModel"), QStringLiteral("Calculate"),
                              QStringLiteral("create"),           QStringLiteral("Reference")};
    const auto add = [&](const char* before, const char* outcomes) {
        const QStringList beforeTags = QString::fromLatin1(before).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (int i = 0; i < next.size(); ++i) {
            QTest::newRow(qPrintable(QStringLiteral("(%1) then %2").arg(QString::fromLatin1(before), next[i])))
                << (beforeTags + QStringList(next[i])) << (outcomes[i] == '+');
        }
    };

    // Every kind alone, and every two that may follow each other.
    add("", "++++++xx");
    add("ORDER_DEF", "x+++++xx");
    add("Administrative", "x+++++xx");
    add("Create", "xx++++xx");
    add("Delete", "xxx+++xx");
    add("PropagationModel", "xxxxx+xx");
    add("Calculate", "xxxxx+xx");
    add("ORDER_DEF Administrative", "x+++++xx");
    add("ORDER_DEF Create", "xx++++xx");
    add("ORDER_DEF Delete", "xxx+++xx");
    add("ORDER_DEF PropagationModel", "xxxxx+xx");
    add("ORDER_DEF Calculate", "xxxxx+xx");
    add("Administrative Administrative", "x+++++xx");
    add("Administrative Create", "xx++++xx");
    add("Administrative Delete", "xxx+++xx");
    add("Administrative PropagationModel", "xxxxx+xx");
    add("Administrative Calculate", "xxxxx+xx");
    add("Create Create", "xx++++xx");
    add("Create Delete", "xxx+++xx");
    add("Create PropagationModel", "xxxxx+xx");
    add("Create Calculate", "xxxxx+xx");
    add("Delete Delete", "xxx+++xx");
    add("Delete PropagationModel", "xxxxx+xx");
    add("Delete Calculate", "xxxxx+xx");
    add("PropagationModel Calculate", "xxxxx+xx");
    add("Calculate Calculate", "xxxxx+xx");
    add("ORDER_DEF Administrative Create", "xx++++xx");
    add("ORDER_DEF Administrative Create Delete", "xxx+++xx");
    add("ORDER_DEF Administrative Create Delete PropagationModel", "xxxxx+xx");
    add("ORDER_DEF Administrative Create Delete Calculate", "xxxxx+xx");
    add("ORDER_DEF Administrative Create Delete PropagationModel Calculate", "xxxxx+xx");
}

void CommandrootTest::gates()
{
    QFETCH(QStringList, children);
    QFETCH(bool, accepted);

    const QStringList kinds = {QStringLiteral("Administrative"), QStringLiteral("Create"), QStringLiteral("Delete"),
                               QStringLiteral("PropagationModel"), QStringLiteral("Calculate")};
    const QStringList commands = {a1, n1, d1, m1, c1};
    QString xml = QStringLiteral("<Commands>\n");
    QList<int> read = {0, 0, 0, 0, 0};
    for (int i = 0; i < children.size(); ++i) {
        const QString& child = children[i];
        const int kind = int(kinds.indexOf(child));
        if (child == QLatin1String("ORDER_DEF"))
            xml += envelopeXml(firstId);
        else if (kind >= 0)
            xml += commands[kind];
        else
            xml += QStringLiteral("<%1></%1>").arg(child);
        xml += QLatin1Char('\n');
        if (kind >= 0 && (accepted || i < children.size() - 1))
            ++read[kind];
    }
    xml += QStringLiteral("</Commands>");

    QString expected;
    if (!accepted) {
        expected = QStringLiteral("in XmlCmdRoot (line %1, column %2): Unexpected token \"StartElement\": %3.")
                       .arg(children.size() + 1)
                       .arg(children.last().size() + 2)
                       .arg(children.last());
    }
    XmlCmdRoot root;
    QCOMPARE(readError(root, xml), expected);
    // What was read until then stays.
    QCOMPARE(counts(root), read);
    QCOMPARE(root.hasOrderDef(), children.first() == QLatin1String("ORDER_DEF"));

    // Every call starts afresh.
    QCOMPARE(readError(root, document(envelopeXml(secondId) + a2 + n2 + d2 + m2 + c2)), QString());
    for (int& count : read)
        ++count;
    read[kinds.indexOf(QStringLiteral("PropagationModel"))] = 1; // replaced, not added
    QCOMPARE(root.getPropagationModelCmd()->cmdReference().reference(), QStringLiteral("m2"));
    QCOMPARE(counts(root), read);
    QCOMPARE(root.orderDef()->orderId(), secondId);
}

void CommandrootTest::ignoredTokens()
{
    const auto root = readFrom<XmlCmdRoot>(
        QStringLiteral("<?xml version=\"1.0\"?><!DOCTYPE Commands><Commands version=\"2.0\">text<!-- c -->%1\n<?p i?>%2"
                       "<![CDATA[x]]>%3text<!-- c -->%4</Commands>")
            .arg(envelopeXml(firstId), a1, m1, c1));
    QCOMPARE(written(root, rootTag), document(envelopeXml(firstId) + a1 + m1 + c1));

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

    // Commands of every kind, each with a copy of its own.
    const auto every = readFrom<XmlCmdRoot>(document(envelopeXml(firstId) + a1 + n1 + n2 + d1 + d2 + m1 + c1));
    QList<const XmlOrderDef*> envelopes = {every.orderDef()};
    for (const XmlCommand* command : commandsOf(every)) {
        QVERIFY(command->hasOrderDef());
        QCOMPARE(command->orderDef()->orderId(), firstId);
        QCOMPARE(command->orderDef()->orderSender(), QStringLiteral("host"));
        QVERIFY(!envelopes.contains(command->orderDef()));
        envelopes << command->orderDef();
    }
    QCOMPARE(envelopes.size(), 8);

    // A command taken out of the root takes it along.
    XmlCmdAdmin taken;
    XmlCmdCreate takenCreate;
    XmlCmdDelete takenDelete;
    XmlPropModelType takenModel(false);
    {
        const XmlCmdRoot other(every);
        taken = *other.getAdministrativeCmds().first();
        takenCreate = *other.getCreateCmds().last();
        takenDelete = *other.getDeleteCmds().last();
        takenModel = *other.getPropagationModelCmd();
    }
    QCOMPARE(taken.orderDef()->orderId(), firstId);
    QCOMPARE(takenCreate.orderDef()->orderId(), firstId);
    QCOMPARE(written(takenCreate, QStringLiteral("Create")), n2);
    QCOMPARE(takenDelete.orderDef()->orderId(), firstId);
    QCOMPARE(written(takenDelete, QStringLiteral("Delete")), d2);
    QCOMPARE(takenModel.orderDef()->orderId(), firstId);
    QVERIFY(takenModel.isCommand());
    QCOMPARE(written(takenModel, QStringLiteral("PropagationModel")), m1);

    const auto without = readFrom<XmlCmdRoot>(document(a1 + n1 + d1 + m1 + c1));
    QCOMPARE(commandsOf(without).size(), 5);
    for (const XmlCommand* command : commandsOf(without))
        QVERIFY(!command->hasOrderDef());
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
    for (const char* tag : {"Create", "Delete"}) {
        XmlCmdRoot broken;
        QCOMPARE(
            readError(
                broken,
                QStringLiteral("<Commands>%1\n<%2></%2></Commands>").arg(envelopeXml(firstId), QLatin1String(tag))),
            QStringLiteral("in XmlCmd%1 (line 2, column 17): Unexpected token \"EndElement\".")
                .arg(QLatin1String(tag)));
        QCOMPARE(commandsOf(broken).size(), 1);
        QCOMPARE(commandsOf(broken).first()->orderDef()->orderId(), firstId);
    }
}

void CommandrootTest::envelopeHeldBefore()
{
    // Commands of a document without an envelope get the one held.
    XmlCmdRoot root;
    root.setOrderDef(envelope(firstId));
    QCOMPARE(readError(root, document(a1 + n1 + d1 + m1 + c1)), QString());
    QCOMPARE(root.getPropagationModelCmd()->orderDef()->orderId(), firstId);
    QCOMPARE(root.getAdministrativeCmds().first()->orderDef()->orderId(), firstId);
    QCOMPARE(root.getCreateCmds().first()->orderDef()->orderId(), firstId);
    QCOMPARE(root.getDeleteCmds().first()->orderDef()->orderId(), firstId);
    QCOMPARE(root.getCalculationCmds().first()->orderDef()->orderId(), firstId);

    // A new one takes its place; the commands held keep theirs.
    QCOMPARE(readError(root, document(envelopeXml(secondId) + a2 + n2 + d2)), QString());
    QCOMPARE(root.orderDef()->orderId(), secondId);
    QCOMPARE(root.getPropagationModelCmd()->orderDef()->orderId(), firstId);
    QCOMPARE(root.getCreateCmds().first()->orderDef()->orderId(), firstId);
    QCOMPARE(root.getCreateCmds().last()->orderDef()->orderId(), secondId);
    QCOMPARE(root.getDeleteCmds().first()->orderDef()->orderId(), firstId);
    QCOMPARE(root.getDeleteCmds().last()->orderDef()->orderId(), secondId);
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

void CommandrootTest::propagationModel()
{
    // The model is read in its command form.
    const auto root = readFrom<XmlCmdRoot>(document(envelopeXml(firstId) + a1 + m1 + c1));
    const XmlPropModelType* model = root.getPropagationModelCmd();
    QVERIFY(model);
    QVERIFY(model->isCommand());
    QCOMPARE(model->cmdReference().reference(), QStringLiteral("m1"));
    QCOMPARE(model->model()->model(), XmlPropModelEnumType::ModelOLOS);
    QCOMPARE(model->OLOS()->maxRange_km(), 10.0);
    QCOMPARE(root.getPropagationModelCmd(), model); // the same object every time

    // It gets a copy of the envelope, and keeps it.
    QCOMPARE(model->orderDef()->orderId(), firstId);
    QCOMPARE(model->orderDef()->orderSender(), QStringLiteral("host"));
    QVERIFY(model->orderDef() != root.orderDef());
    QVERIFY(model->orderDef() != root.getCalculationCmds().first()->orderDef());
    auto changed = readFrom<XmlCmdRoot>(document(envelopeXml(firstId) + m1));
    changed.setOrderDef(envelope(secondId));
    QCOMPARE(changed.getPropagationModelCmd()->orderDef()->orderId(), firstId);

    // One that fails gets it too, and is held.
    XmlCmdRoot failed;
    QCOMPARE(readError(failed,
                       QStringLiteral("<Commands>%1\n<PropagationModel><SelectModel>ITM</SelectModel>"
                                      "</PropagationModel></Commands>")
                           .arg(envelopeXml(firstId))),
             QStringLiteral("in XmlPropModelType (line 2, column 67): Unexpected token \"EndElement\"."));
    QVERIFY(failed.getPropagationModelCmd());
    QCOMPARE(failed.getPropagationModelCmd()->orderDef()->orderId(), firstId);
    QCOMPARE(failed.getPropagationModelCmd()->model()->model(), XmlPropModelEnumType::ModelITM);
    QVERIFY(!failed.isValid());
}

void CommandrootTest::modelReplaced()
{
    // A second one in the same document is refused, and the first one stays.
    XmlCmdRoot root;
    QCOMPARE(readError(root, QStringLiteral("<Commands>%1\n%2</Commands>").arg(m1, m2)),
             QStringLiteral("in XmlCmdRoot (line 2, column 18): Unexpected token \"StartElement\": PropagationModel."));
    QCOMPARE(written(root, rootTag), document(m1));

    // In the next document it takes the place of the one held: nothing of that is left.
    QCOMPARE(readError(root, document(envelopeXml(firstId) + m2)), QString());
    QCOMPARE(written(root, rootTag), document(envelopeXml(firstId) + m2));
    QVERIFY(!root.getPropagationModelCmd()->hasOLOS());
    QCOMPARE(root.getPropagationModelCmd()->orderDef()->orderId(), firstId);
    QCOMPARE(readError(root, document(envelopeXml(secondId) + m1 + c1)), QString());
    QCOMPARE(written(root, rootTag), document(envelopeXml(secondId) + m1 + c1));
    QCOMPARE(root.getPropagationModelCmd()->orderDef()->orderId(), secondId);

    // A document without one leaves it.
    const XmlPropModelType* held = root.getPropagationModelCmd();
    QCOMPARE(readError(root, document(c2)), QString());
    QCOMPARE(root.getPropagationModelCmd(), held);
    QCOMPARE(written(root, rootTag), document(envelopeXml(secondId) + m1 + c1 + c2));

    // A failing one replaces it too.
    QVERIFY(!readError(root, document(QStringLiteral("<PropagationModel/>"))).isEmpty());
    QVERIFY(!root.getPropagationModelCmd()->hasModel());
    QCOMPARE(root.getPropagationModelCmd()->cmdReference().reference(), QString());
    root.reset();
    QVERIFY(!root.getPropagationModelCmd());
    QCOMPARE(readError(root, document(m2)), QString());
    QCOMPARE(written(root, rootTag), document(m2));
    QVERIFY(!root.getPropagationModelCmd()->hasOrderDef());
}

void CommandrootTest::copies()
{
    const QString full = document(envelopeXml(firstId) + a1 + a2 + n1 + n2 + d1 + d2 + m1 + c1 + c2);
    auto root = readFrom<Root>(full);
    Root copy(root);
    Root assigned;
    assigned = root;
    for (const Root* other : {&copy, &assigned}) {
        QCOMPARE(written(*other, rootTag), full);
        QVERIFY(other->orderDef() != root.orderDef());
        const XmlPropModelType* model = other->getPropagationModelCmd();
        QVERIFY(model != root.getPropagationModelCmd());
        QVERIFY(model->OLOS() != root.getPropagationModelCmd()->OLOS());
        QVERIFY(model->isCommand());
        QCOMPARE(model->orderDef()->orderId(), firstId);
        QVERIFY(model->orderDef() != root.getPropagationModelCmd()->orderDef());
        for (int i = 0; i < 2; ++i) {
            const XmlCmdAdmin* admin = other->getAdministrativeCmds()[i];
            QVERIFY(admin != root.getAdministrativeCmds()[i]);
            QCOMPARE(admin->orderDef()->orderId(), firstId);
            QVERIFY(admin->orderDef() != root.getAdministrativeCmds()[i]->orderDef());
            const XmlCmdCalc* calc = other->getCalculationCmds()[i];
            QVERIFY(calc != root.getCalculationCmds()[i]);
            QCOMPARE(calc->orderDef()->orderId(), firstId);
            QVERIFY(calc->orderDef() != root.getCalculationCmds()[i]->orderDef());
            const XmlCmdCreate* create = other->getCreateCmds()[i];
            QVERIFY(create != root.getCreateCmds()[i]);
            QVERIFY(create->station() != root.getCreateCmds()[i]->station());
            QCOMPARE(create->orderDef()->orderId(), firstId);
            QVERIFY(create->orderDef() != root.getCreateCmds()[i]->orderDef());
            const XmlCmdDelete* removal = other->getDeleteCmds()[i];
            QVERIFY(removal != root.getDeleteCmds()[i]);
            QVERIFY(removal->emitter() != root.getDeleteCmds()[i]->emitter());
            QCOMPARE(removal->orderDef()->orderId(), firstId);
            QVERIFY(removal->orderDef() != root.getDeleteCmds()[i]->orderDef());
        }
    }
    root.reset();
    QCOMPARE(written(copy, rootTag), full);
    QCOMPARE(written(assigned, rootTag), full);

    const Root& same = copy;
    copy = same;
    QCOMPARE(written(copy, rootTag), full);
    QCOMPARE(copy.getAdministrativeCmds().first()->orderDef()->orderId(), firstId);
    QCOMPARE(copy.getPropagationModelCmd()->orderDef()->orderId(), firstId);

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
    const QStringList contents = {QString(),
                                  envelopeXml(firstId),
                                  a1,
                                  c1,
                                  envelopeXml(secondId) + a2,
                                  envelopeXml(firstId) + c1 + c2,
                                  a1 + a2 + c2,
                                  envelopeXml(secondId) + a1 + c1,
                                  n1,
                                  d1,
                                  envelopeXml(firstId) + n1 + n2,
                                  envelopeXml(secondId) + d1 + d2,
                                  n2 + d2,
                                  a1 + n1 + d1 + c1,
                                  envelopeXml(secondId) + a1 + a2 + n1 + n2 + d1 + d2 + c1 + c2,
                                  m1,
                                  m2,
                                  envelopeXml(firstId) + m1,
                                  a1 + m2 + c1,
                                  n1 + d1 + m1,
                                  envelopeXml(secondId) + a1 + n1 + d1 + m2 + c1};
    for (const QString& before : contents) {
        for (const QString& after : contents) {
            auto target = readFrom<XmlCmdRoot>(document(before));
            const auto source = readFrom<XmlCmdRoot>(document(after));
            target = source;
            QCOMPARE(target.hasOrderDef(), source.hasOrderDef());
            QCOMPARE(counts(target), counts(source));
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
    const QString badCreate = createXml(QString());
    const QString badDelete = deleteXml(QString());
    QTest::newRow("an invalid create command") << badCreate << false;
    QTest::newRow("the last create command is invalid") << id + a1 + n1 + badCreate + d1 + c1 << false;
    QTest::newRow("the first create command is invalid") << id + a1 + badCreate + n1 + d1 + c1 << false;
    QTest::newRow("an invalid delete command does not count") << badDelete << true;
    QTest::newRow("none of the delete commands counts") << id + a1 + n1 + badDelete + d1 + badDelete + c1 << true;
    QTest::newRow("an invalid delete command among invalid ones") << badAdmin + badDelete << false;
    QTest::newRow("an invalid model") << modelXml(QString()) << false;
    QTest::newRow("an invalid model among valid commands") << id + a1 + n1 + d1 + modelXml(QString()) + c1 << false;
    QTest::newRow("a model with a parameter out of bounds") << id
            + QStringLiteral("<PropagationModel><PropertiesOLOS><MaxRange_km>50.001</MaxRange_km></PropertiesOLOS>"
                             "<Reference>m</Reference></PropagationModel>")
                                                            << false;
    QTest::newRow("a valid model among invalid commands") << badAdmin + m1 << false;
    QTest::newRow("a valid model after an invalid delete command") << badDelete + m1 << true;
    QTest::newRow("everything is in order") << id + a1 + a2 + n1 + n2 + d1 + d2 + m1 + c1 + c2 << true;
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

    const QString create = QStringLiteral("+++ in XmlCmdCreate Begin:\n%1--- in XmlCmdCreate End\n").arg(reference);
    const QString model =
        QStringLiteral("+++ in XmlPropModelType Begin:\n%1--- in XmlPropModelType End\n").arg(reference);
    const QString badCreate = createXml(QString());
    const QString badDelete = deleteXml(QString());

    auto root =
        readFrom<XmlCmdRoot>(document(envelopeXml(QString()) + badAdmin + a1 + badAdmin + badCreate + n1 + badCreate
                                      + badDelete + d1 + modelXml(QString()) + badCalc + c1 + badCalc));
    const QString all = block(QStringLiteral("+++ in XmlOrderDef Begin:\n"
                                             "Id not set.\n"
                                             "--- in XmlOrderDef End\n")
                              + admin + admin + create + create + model + calc + calc);
    QCOMPARE(root.syntaxError(), all);
    QCOMPARE(root.syntaxError(), all);

    auto last = readFrom<XmlCmdRoot>(document(a1 + c1 + badCalc));
    QCOMPARE(last.syntaxError(), block(calc));
    auto created = readFrom<XmlCmdRoot>(document(a1 + n1 + badCreate + d1 + c1));
    QCOMPARE(created.syntaxError(), block(create));
    auto modelled = readFrom<XmlCmdRoot>(document(a1 + n1 + d1 + modelXml(QString()) + c1));
    QCOMPARE(modelled.syntaxError(), block(model));

    // A delete command says itself what is wrong with it; its root says nothing.
    auto deleted = readFrom<XmlCmdRoot>(document(badDelete));
    QVERIFY(deleted.isValid());
    QCOMPARE(deleted.syntaxError(), QString());
    QVERIFY(!deleted.getDeleteCmds().first()->isValid());
    QCOMPARE(deleted.getDeleteCmds().first()->syntaxError() + QLatin1Char('\n'),
             QStringLiteral("+++ in XmlCmdDelete Begin:\n%1--- in XmlCmdDelete End\n").arg(reference));
}

void CommandrootTest::reset()
{
    auto root = readFrom<Root>(document(envelopeXml(QString()) + a1 + n1 + n2 + d1 + d2 + m1 + c1 + c2));
    QVERIFY(!root.syntaxError().isEmpty());
    root.reset();
    QCOMPARE(root.mySyntaxError(), QString());
    QVERIFY(!root.hasOrderDef());
    QVERIFY(!root.orderDef());
    QVERIFY(root.getAdministrativeCmds().isEmpty());
    QVERIFY(root.getCreateCmds().isEmpty());
    QVERIFY(root.getDeleteCmds().isEmpty());
    QVERIFY(!root.getPropagationModelCmd());
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

    auto mixed = readFrom<XmlCmdRoot>(document(n1 + d1));
    const XmlCmdCreate* heldCreate = mixed.getCreateCmds().first();
    const XmlCmdDelete* heldDelete = mixed.getDeleteCmds().first();
    QCOMPARE(readError(mixed, document(a1 + n2 + d2 + c1)), QString());
    QCOMPARE(mixed.getCreateCmds().first(), heldCreate);
    QCOMPARE(mixed.getDeleteCmds().first(), heldDelete);
    QCOMPARE(written(mixed, rootTag), document(a1 + n1 + n2 + d1 + d2 + c1));

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
