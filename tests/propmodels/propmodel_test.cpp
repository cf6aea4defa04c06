#include "support/elementtest.h"

#include <arvxml/propmodel.h>

#include <type_traits>
#include <utility>

using namespace ArvXml;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;

namespace {

const QString modelTag = QStringLiteral("PropagationModel");
const QString selectTag = QStringLiteral("SelectModel");
const QString referenceXml = QStringLiteral("<Reference>42</Reference>");
const QString emptyReferenceXml = QStringLiteral("<Reference></Reference>");
const QString countProblem = QStringLiteral("Illegal number of elements.\n");
const QString referenceProblem = QStringLiteral("+++ in XmlreferenceType Begin:\n"
                                                "String too short (min. 1)\n"
                                                "--- in XmlreferenceType End\n");

QString block(const QString& body)
{
    return QStringLiteral("+++ in XmlPropModelType Begin:\n") + body + QStringLiteral("--- in XmlPropModelType End");
}

QString document(const QString& children)
{
    return QStringLiteral("<PropagationModel>") + children + QStringLiteral("</PropagationModel>");
}

XmlReferenceType reference(const QString& text)
{
    XmlReferenceType reference;
    reference.setReference(text);
    return reference;
}

XmlOrderDef envelope(const QString& sender)
{
    XmlOrderDef envelope;
    envelope.setOrderId(QStringLiteral("ARV240305140709042"));
    envelope.setOrderSender(sender);
    return envelope;
}

XmlPropModelEnumType selection(int value)
{
    XmlPropModelEnumType selection;
    selection.setModel(static_cast<XmlPropModelEnumType::Model>(value));
    return selection;
}

/// The element as a command, and as no command; they show what the base keeps for itself.
template <bool IsCommand>
struct ModelOf : XmlPropModelType {
    ModelOf()
        : XmlPropModelType(IsCommand)
    {
    }
    using XmlPropModelType::classname;
    using XmlPropModelType::mySyntaxError;
};
using Command = ModelOf<true>;
using Plain = ModelOf<false>;

struct Selection : XmlPropModelEnumType {
    Selection() = default;
    explicit Selection(const XmlPropModelEnumType& other)
        : XmlPropModelEnumType(other)
    {
    }
    using XmlPropModelEnumType::classname;
    using XmlPropModelEnumType::mySyntaxError;
};

/// An optional child.
struct ChildAccess {
    const char* tag;
    bool (*has)(const XmlPropModelType&);
    const IXmlElement* (*get)(const XmlPropModelType&);
    void (*set)(XmlPropModelType&, const QString& xml);
    QString xml;
    QString otherXml;
    QString invalidXml;
    QString problem;
};

template <typename Child, bool (XmlPropModelType::*Has)() const, const Child* (XmlPropModelType::*Get)() const,
          void (XmlPropModelType::*Set)(const Child&)>
ChildAccess access(const char* tag, const char* content, const char* otherContent, const char* invalidContent,
                   const char* className, const char* problem)
{
    const auto xml = [tag](const char* text) {
        return QStringLiteral("<%1>%2</%1>").arg(QString::fromLatin1(tag), QString::fromLatin1(text));
    };
    return {tag,
            [](const XmlPropModelType& model) { return (model.*Has)(); },
            [](const XmlPropModelType& model) -> const IXmlElement* { return (model.*Get)(); },
            [](XmlPropModelType& model, const QString& text) {
                // An empty text hands the element its own child.
                if (text.isEmpty()) {
                    (model.*Set)(*(model.*Get)());
                } else {
                    Child child;
                    readError(child, text); // the undefined selection is an error, and kept
                    (model.*Set)(child);
                }
            },
            xml(content),
            xml(otherContent),
            xml(invalidContent),
            QStringLiteral("+++ in %1 Begin:\n%2\n--- in %1 End\n")
                .arg(QString::fromLatin1(className), QString::fromLatin1(problem))};
}

/// The selection, then the parameter sets, in the order of writing.
const QList<ChildAccess>& parts()
{
    using M = XmlPropModelType;
    static const QList<ChildAccess> parts = {
        access<XmlPropModelEnumType, &M::hasModel, &M::model, &M::setModel>(
            "SelectModel", "ITM", "P.452", "UNDEFINED", "XmlPropModelEnumType", "No model selected."),
        access<XmlPropModelFSType, &M::hasFreespace, &M::freespace, &M::setFreespace>(
            "PropertiesFreespace", "<K-factor>1.5000</K-factor>", "<K-factor>2.0000</K-factor>",
            "<K-factor>9.0000</K-factor>", "XmlPropModelFSType", "K-factor out of bounds"),
        access<XmlPropModelOLOSType, &M::hasOLOS, &M::OLOS, &M::setOLOS>(
            "PropertiesOLOS", "<MaxRange_km>10.000</MaxRange_km>", "<K-factor>2.0000</K-factor>",
            "<MaxRange_km>99.000</MaxRange_km>", "XmlPropModelOLOSType", "Range out of bounds"),
        access<XmlPropModelITMType, &M::hasITM, &M::ITM, &M::setITM>("PropertiesITM", "<RRI>310.0000</RRI>",
                                                                     "<Pol>H</Pol>", "<RRI>999.0000</RRI>",
                                                                     "XmlPropModelITMType", "RRI out of bounds"),
        access<XmlPropModelP452Type, &M::hasP452, &M::P452, &M::setP452>(
            "PropertiesP452", "<DeltaN>50.0</DeltaN>", "<Temp_C>20</Temp_C>", "<DeltaN>999.0</DeltaN>",
            "XmlPropModelP542Type", "DeltaN out of bounds"),
        access<XmlPropModelP1546Type, &M::hasP1546, &M::P1546, &M::setP1546>(
            "PropertiesP1546", "<TimePct>10.00</TimePct>", "<LocVar>20.00</LocVar>", "<TimePct>90.00</TimePct>",
            "XmlPropModelP1546Type", "TimePct out of bounds"),
        access<XmlPropModelP526Type, &M::hasP526, &M::P526, &M::setP526>(
            "PropertiesP526", "<K-factor>2.000</K-factor>", "<K-factor>3.000</K-factor>", "<K-factor>9.000</K-factor>",
            "XmlPropModelP526Type", "K-factor out of bounds"),
        access<XmlPropModelP533Type, &M::hasP533, &M::P533, &M::setP533>(
            "PropertiesP533", "<K-factor>2.000</K-factor>", "<SmoothedSunSpotNumber>12.0</SmoothedSunSpotNumber>",
            "<SmoothedSunSpotNumber>1000.0</SmoothedSunSpotNumber>", "XmlPropModelP526Type",
            "SmoothedSunSpotNumber out of bounds"),
        access<XmlPropModelHataType, &M::hasHata, &M::Hata, &M::setHata>(
            "PropertiesOkumura", "<AreaType>Urban</AreaType>", "<CitySize>Large</CitySize>",
            "<K-factor>9.0000</K-factor>", "XmlPropModelHataType", "Kfactor out of bounds"),
    };
    return parts;
}

/// A valid command with the child \a index alone.
Command commandWith(int index)
{
    Command command;
    parts()[index].set(command, parts()[index].xml);
    command.setCmdReference(reference(QStringLiteral("42")));
    return command;
}

/// Gives \a model the children whose bit is set in \a present. Returns their text.
QString setChildren(XmlPropModelType& model, int present)
{
    QString xml;
    for (int i = 0; i < parts().size(); ++i) {
        if (present & (1 << i)) {
            parts()[i].set(model, parts()[i].xml);
            xml += parts()[i].xml;
        }
    }
    return xml;
}

void addChildRows()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < parts().size(); ++i)
        QTest::newRow(parts()[i].tag) << i;
}

} // namespace

class PropmodelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void selectionInterface();
    void selectionTexts_data();
    void selectionTexts();
    void selectionOutsideTheList();
    void selectionErrors_data();
    void selectionErrors();
    void selectionReadWhole();
    void selectionPositions();
    void selectionCopies();
    void selectionReset();

    void interface();
    void defaults();
    void envelopeAndReference();
    void eachChild_data() { addChildRows(); }
    void eachChild();
    void replacedWhenRead();
    void keptWhenNotRead();
    void copies_data() { addChildRows(); }
    void copies();
    void copiesOfTheEnvelope();
    void copiesOfTheFlag();
    void gates_data();
    void gates();
    void everyKindReads_data();
    void everyKindReads();
    void ignoredTokens();
    void everyPresence();
    void bothITMAndHata();
    void selectionIsNotTied();
    void invalidChild_data() { addChildRows(); }
    void invalidChild();
    void problemsInOrder();
    void referenceOfNoCommand();
    void reset();
    void reuse();
    void failures_data();
    void failures();
    void positions();
};

void PropmodelTest::selectionInterface()
{
    using E = XmlPropModelEnumType;
    static_assert(std::is_base_of_v<XmlElementBase, E>);
    static_assert(std::is_same_v<decltype(std::declval<E&>().model()), E::Model>);
    static_assert(std::is_same_v<decltype(std::declval<const E&>().model()), E::Model>);
    QCOMPARE(static_cast<int>(E::ModelUndefined), 0);
    QCOMPARE(static_cast<int>(E::ModelFreespace), 1);
    QCOMPARE(static_cast<int>(E::ModelOLOS), 2);
    QCOMPARE(static_cast<int>(E::ModelITM), 3);
    QCOMPARE(static_cast<int>(E::ModelP452), 4);
    QCOMPARE(static_cast<int>(E::ModelP1546), 5);
    QCOMPARE(static_cast<int>(E::ModelP526), 6);
    QCOMPARE(static_cast<int>(E::ModelP533), 7);
    QCOMPARE(static_cast<int>(E::ModelOkumuraHata), 8);

    Selection fresh;
    QCOMPARE(fresh.classname(), QStringLiteral("XmlPropModelEnumType"));
    QCOMPARE(static_cast<int>(fresh.model()), 0);
    QVERIFY(!fresh.isValid());
    QCOMPARE(fresh.syntaxError(),
             QStringLiteral("+++ in XmlPropModelEnumType Begin:\nNo model selected.\n--- in XmlPropModelEnumType End"));
    QCOMPARE(written(fresh, selectTag), QStringLiteral("<SelectModel>UNDEFINED</SelectModel>"));
}

void PropmodelTest::selectionTexts_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("free space") << 1 << QStringLiteral("Free-space");
    QTest::newRow("optical line of sight") << 2 << QStringLiteral("OLOS");
    QTest::newRow("irregular terrain") << 3 << QStringLiteral("ITM");
    QTest::newRow("P.452") << 4 << QStringLiteral("P.452");
    QTest::newRow("P.1546") << 5 << QStringLiteral("P.1546");
    QTest::newRow("P.526") << 6 << QStringLiteral("P.526");
    QTest::newRow("P.533") << 7 << QStringLiteral("P.533");
    QTest::newRow("Okumura-Hata") << 8 << QStringLiteral("Okumura-Hata");
}

void PropmodelTest::selectionTexts()
{
    QFETCH(int, value);
    QFETCH(QString, text);

    auto read = readFrom<XmlPropModelEnumType>(QStringLiteral("<SelectModel>%1</SelectModel>").arg(text));
    QCOMPARE(static_cast<int>(read.model()), value);
    QVERIFY(read.isValid());
    QCOMPARE(read.syntaxError(), QString());
    QCOMPARE(written(selection(value), QStringLiteral("M")), QStringLiteral("<M>%1</M>").arg(text));

    // Case and blanks count.
    for (const QString& other : {text + QLatin1Char(' '), QLatin1Char(' ') + text, text.chopped(1)}) {
        XmlPropModelEnumType refused = selection(3);
        QCOMPARE(
            readError(refused, QStringLiteral("<M>%1</M>").arg(other)),
            QStringLiteral("in XmlPropModelEnumType (line 1, column %1): Illegal enum value..").arg(other.size() + 7));
        QCOMPARE(static_cast<int>(refused.model()), 0);
    }
    XmlPropModelEnumType lower;
    QVERIFY(!readError(lower, QStringLiteral("<M>%1</M>").arg(text.toLower())).isEmpty());
}

void PropmodelTest::selectionOutsideTheList()
{
    // Only 0 is no choice; what lies outside the list has no text.
    for (const int value : {9, 10, 1000, -1, -1000}) {
        XmlPropModelEnumType odd = selection(value);
        QCOMPARE(static_cast<int>(odd.model()), value);
        QVERIFY(odd.isValid());
        QCOMPARE(odd.syntaxError(), QString());
        QCOMPARE(written(odd, selectTag), QStringLiteral("<SelectModel>UNDEFINED</SelectModel>"));
    }
}

void PropmodelTest::selectionErrors_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("error");

    QTest::newRow("the text of no choice")
        << QStringLiteral("<SelectModel>UNDEFINED</SelectModel>") << 0
        << QStringLiteral("in XmlPropModelEnumType (line 1, column 36): Illegal enum value..");
    QTest::newRow("another case") << QStringLiteral("<SelectModel>\np.1546</SelectModel>") << 0
                                  << QStringLiteral(
                                         "in XmlPropModelEnumType (line 2, column 20): Illegal enum value..");
    QTest::newRow("lower case") << QStringLiteral("<SelectModel>p.1546</SelectModel>") << 0
                                << QStringLiteral("in XmlPropModelEnumType (line 1, column 33): Illegal enum value..");
    QTest::newRow("a number") << QStringLiteral("<SelectModel>5</SelectModel>") << 0
                              << QStringLiteral("in XmlPropModelEnumType (line 1, column 28): Illegal enum value..");
    QTest::newRow("no text") << QStringLiteral("<SelectModel></SelectModel>") << 0
                             << QStringLiteral("in XmlPropModelEnumType (line 1, column 27): Illegal enum value..");
    QTest::newRow("an empty element") << QStringLiteral(
        "<SelectModel/>") << 0 << QStringLiteral("in XmlPropModelEnumType (line 1, column 14): Illegal enum value..");
    QTest::newRow("an element in place of the text")
        << QStringLiteral("<SelectModel><b></b></SelectModel>") << 0
        << QStringLiteral("in XmlPropModelEnumType (line 1, column 16): Illegal enum value..");
    QTest::newRow("an element after a text")
        << QStringLiteral("<SelectModel>ITM<b></b></SelectModel>") << 3 << QStringLiteral("Expected character data.");
    QTest::newRow("an element after an unknown text")
        << QStringLiteral("<SelectModel>itm<b></b></SelectModel>") << 0
        << QStringLiteral("in XmlPropModelEnumType (line 1, column 19): Illegal enum value..");
    QTest::newRow("a premature end after a text")
        << QStringLiteral("<SelectModel>ITM<!-- c -->") << 3 << QStringLiteral("Premature end of document.");
}

void PropmodelTest::selectionErrors()
{
    QFETCH(QString, xml);
    QFETCH(int, value);
    QFETCH(QString, error);

    XmlPropModelEnumType used = selection(5);
    QCOMPARE(readError(used, xml), error);
    QCOMPARE(static_cast<int>(used.model()), value);
}

void PropmodelTest::selectionReadWhole()
{
    // Comments and sections do not cut the text; the end tag is whatever closes the element.
    auto read = readFrom<XmlPropModelEnumType>(
        QStringLiteral("<SelectModel>P.<!-- c -->15<?p i?><![CDATA[46]]></SelectModel>"));
    QCOMPARE(static_cast<int>(read.model()), 5);
    QCOMPARE(readError(read, QStringLiteral("<SelectModel version=\"2.0\">OLOS</SelectModel>")), QString());
    QCOMPARE(static_cast<int>(read.model()), 2);

    QXmlStreamReader reader(QStringLiteral("<a><b>P.526</b><next/></a>"));
    reader.readNextStartElement();
    reader.readNextStartElement();
    read.processXml(reader, selectTag);
    QCOMPARE(reader.errorString(), QString());
    QCOMPARE(static_cast<int>(read.model()), 6);
    QVERIFY(reader.isEndElement());
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(reader.name().toString(), QStringLiteral("next"));
}

void PropmodelTest::selectionPositions()
{
    const QString xml = QStringLiteral("<SelectModel>\nITM</SelectModel>");

    XmlPropModelEnumType used = selection(5);
    QXmlStreamReader fresh(xml);
    used.processXml(fresh, selectTag);
    QVERIFY(fresh.errorString().startsWith(QLatin1String("in XmlPropModelEnumType (line 1, column ")));
    QVERIFY(fresh.errorString().endsWith(QLatin1String("): Parse error (wrong position).")));

    QXmlStreamReader atStart(xml);
    atStart.readNext();
    used.processXml(atStart, selectTag);
    QVERIFY(atStart.errorString().endsWith(QLatin1String("): Parse error (wrong position).")));

    QXmlStreamReader onText(xml);
    onText.readNextStartElement();
    onText.readNext();
    QVERIFY(onText.isCharacters());
    used.processXml(onText, selectTag);
    QVERIFY(onText.errorString().startsWith(QLatin1String("in XmlPropModelEnumType (line 2, column ")));
    QVERIFY(onText.errorString().endsWith(QLatin1String("): Parse error (wrong position).")));

    QXmlStreamReader onEndTag(xml);
    while (!onEndTag.isEndElement())
        onEndTag.readNext();
    used.processXml(onEndTag, selectTag);
    QCOMPARE(onEndTag.errorString(),
             QStringLiteral("in XmlPropModelEnumType (line 2, column 17): Parse error (wrong position)."));

    QXmlStreamReader atEnd(xml);
    while (!atEnd.atEnd())
        atEnd.readNext();
    used.processXml(atEnd, selectTag);
    QCOMPARE(atEnd.errorString(),
             QStringLiteral("in XmlPropModelEnumType (line 2, column 17): Parse error (wrong position)."));

    // Nothing was read.
    QCOMPARE(static_cast<int>(used.model()), 5);
}

void PropmodelTest::selectionCopies()
{
    Selection original;
    const QString error = original.syntaxError();
    QCOMPARE(Selection(original).mySyntaxError(), error);
    Selection assigned(selection(4));
    QCOMPARE(assigned.mySyntaxError(), QString());
    assigned = original;
    QCOMPARE(static_cast<int>(assigned.model()), 0);
    QCOMPARE(assigned.mySyntaxError(), error);

    original.setModel(XmlPropModelEnumType::ModelP533);
    QCOMPARE(static_cast<int>(assigned.model()), 0);
    const Selection copy(original);
    QCOMPARE(static_cast<int>(copy.model()), 7);
    const Selection& same = original;
    original = same;
    QCOMPARE(static_cast<int>(original.model()), 7);
    QCOMPARE(original.mySyntaxError(), error);
    QCOMPARE(original.syntaxError(), QString()); // it starts anew
    QCOMPARE(original.mySyntaxError(), QString());
}

void PropmodelTest::selectionReset()
{
    Selection used;
    QVERIFY(!used.syntaxError().isEmpty());
    used.setModel(XmlPropModelEnumType::ModelITM);
    used.reset();
    QCOMPARE(static_cast<int>(used.model()), 0);
    QCOMPARE(used.mySyntaxError(), QString());
    QVERIFY(!used.isValid());
    QCOMPARE(used.syntaxError(), Selection().syntaxError());
    QCOMPARE(readError(used, QStringLiteral("<M>ITM</M>")), QString());
    QCOMPARE(static_cast<int>(used.model()), 3);
}

void PropmodelTest::interface()
{
    using M = XmlPropModelType;
    static_assert(std::is_base_of_v<XmlElementBase, M>);
    static_assert(std::is_constructible_v<M, bool>);
    static_assert(!std::is_default_constructible_v<M>);
    static_assert(std::is_same_v<decltype(std::declval<const M&>().isCommand()), bool>);
    static_assert(std::is_same_v<decltype(std::declval<const M&>().cmdReference()), const XmlReferenceType&>);
    static_assert(std::is_same_v<decltype(std::declval<M&>().orderDef()), const XmlOrderDef*>);
    static_assert(std::is_same_v<decltype(std::declval<M&>().model()), const XmlPropModelEnumType*>);
    static_assert(std::is_same_v<decltype(std::declval<M&>().freespace()), const XmlPropModelFSType*>);
    static_assert(std::is_same_v<decltype(std::declval<M&>().OLOS()), const XmlPropModelOLOSType*>);
    static_assert(std::is_same_v<decltype(std::declval<M&>().ITM()), const XmlPropModelITMType*>);
    static_assert(std::is_same_v<decltype(std::declval<M&>().P452()), const XmlPropModelP452Type*>);
    static_assert(std::is_same_v<decltype(std::declval<M&>().P1546()), const XmlPropModelP1546Type*>);
    static_assert(std::is_same_v<decltype(std::declval<M&>().P526()), const XmlPropModelP526Type*>);
    static_assert(std::is_same_v<decltype(std::declval<M&>().P533()), const XmlPropModelP533Type*>);
    static_assert(std::is_same_v<decltype(std::declval<M&>().Hata()), const XmlPropModelHataType*>);
    QCOMPARE(Command().classname(), QStringLiteral("XmlPropModelType"));
    QCOMPARE(Plain().classname(), QStringLiteral("XmlPropModelType"));
    QVERIFY(XmlPropModelType(true).isCommand());
    QVERIFY(!XmlPropModelType(false).isCommand());
}

void PropmodelTest::defaults()
{
    Command command;
    Plain plain;
    for (const XmlPropModelType* model :
         {static_cast<XmlPropModelType*>(&command), static_cast<XmlPropModelType*>(&plain)}) {
        QVERIFY(!model->hasOrderDef());
        QVERIFY(!model->orderDef());
        QCOMPARE(model->cmdReference().reference(), QString());
        for (const ChildAccess& child : parts()) {
            QVERIFY2(!child.has(*model), child.tag);
            QVERIFY2(!child.get(*model), child.tag);
        }
    }

    QVERIFY(!command.isValid()); // for its reference
    QCOMPARE(command.syntaxError(), block(referenceProblem));
    QCOMPARE(written(command, modelTag), document(emptyReferenceXml));
    QVERIFY(plain.isValid());
    QCOMPARE(plain.syntaxError(), QString());
    QCOMPARE(written(plain, modelTag), QStringLiteral("<PropagationModel/>"));

    // Neither a selection nor a set is required.
    command.setCmdReference(reference(QStringLiteral("42")));
    QVERIFY(command.isValid());
    QCOMPARE(command.syntaxError(), QString());
    QCOMPARE(written(command, QStringLiteral("M")), QStringLiteral("<M>%1</M>").arg(referenceXml));
}

void PropmodelTest::envelopeAndReference()
{
    Command command;
    const XmlReferenceType* heldReference = &command.cmdReference();
    command.setCmdReference(reference(QStringLiteral("42")));
    QCOMPARE(&command.cmdReference(), heldReference);
    QCOMPARE(command.cmdReference().reference(), QStringLiteral("42"));
    command.setCmdReference(command.cmdReference());
    QCOMPARE(command.cmdReference().reference(), QStringLiteral("42"));

    const XmlOrderDef given = envelope(QStringLiteral("host"));
    command.setOrderDef(given);
    QVERIFY(command.hasOrderDef());
    const XmlOrderDef* held = command.orderDef();
    QVERIFY(held != &given);
    QCOMPARE(held->orderId(), QStringLiteral("ARV240305140709042"));
    command.setOrderDef(envelope(QStringLiteral("other")));
    QCOMPARE(command.orderDef(), held);
    QCOMPARE(held->orderSender(), QStringLiteral("other"));
    command.setOrderDef(*held);
    QCOMPARE(command.orderDef()->orderSender(), QStringLiteral("other"));

    // The envelope is neither written nor judged nor read.
    for (const bool isCommand : {true, false}) {
        XmlPropModelType model(isCommand);
        model.setCmdReference(reference(QStringLiteral("42")));
        model.setOrderDef(XmlOrderDef());
        QVERIFY(model.isValid());
        QCOMPARE(model.syntaxError(), QString());
        QCOMPARE(written(model, modelTag), isCommand ? document(referenceXml) : QStringLiteral("<PropagationModel/>"));
        QCOMPARE(readError(model, QStringLiteral("<PropagationModel><ORDER_DEF/>")),
                 QStringLiteral("in XmlPropModelType (line 1, column 30): Unexpected element \"ORDER_DEF\"."));
        QVERIFY(model.hasOrderDef());
    }
}

void PropmodelTest::eachChild()
{
    QFETCH(int, index);
    const ChildAccess& child = parts()[index];

    // Read: this one alone is present.
    auto command = readFrom<Command>(document(child.xml + referenceXml));
    auto plain = readFrom<Plain>(document(child.xml));
    for (int i = 0; i < parts().size(); ++i) {
        QCOMPARE(parts()[i].has(command), i == index);
        QCOMPARE(parts()[i].get(command) != nullptr, i == index);
        QCOMPARE(parts()[i].has(plain), i == index);
    }
    QCOMPARE(command.cmdReference().reference(), QStringLiteral("42"));
    QVERIFY(command.isValid());
    QCOMPARE(command.syntaxError(), QString());
    QCOMPARE(written(command, modelTag), document(child.xml + referenceXml));
    QVERIFY(plain.isValid());
    QCOMPARE(plain.syntaxError(), QString());
    QCOMPARE(written(plain, modelTag), document(child.xml));

    // Read into an element that holds one: nothing of the old one is left.
    QVERIFY(child.otherXml != child.xml);
    QCOMPARE(readError(command, document(child.otherXml + QStringLiteral("<Reference>43</Reference>"))), QString());
    QCOMPARE(written(command, modelTag), document(child.otherXml + QStringLiteral("<Reference>43</Reference>")));

    // Set: a copy first, then assigned into.
    Command set;
    child.set(set, child.xml);
    for (int i = 0; i < parts().size(); ++i)
        QCOMPARE(parts()[i].has(set), i == index);
    const IXmlElement* held = child.get(set);
    QVERIFY(held);
    child.set(set, child.otherXml);
    QCOMPARE(child.get(set), held);
    QCOMPARE(written(set, modelTag), document(child.otherXml + emptyReferenceXml));
    child.set(set, QString());
    QCOMPARE(child.get(set), held);
    QCOMPARE(written(set, modelTag), document(child.otherXml + emptyReferenceXml));
}

void PropmodelTest::replacedWhenRead()
{
    // Sets that keep what they hold when they read themselves are new ones here.
    Command command;
    XmlPropModelOLOSType olos;
    olos.setMaxRange_km(10.0);
    command.setOLOS(olos);
    QCOMPARE(
        readError(command,
                  document(QStringLiteral("<PropertiesOLOS><K-factor>2</K-factor></PropertiesOLOS>") + referenceXml)),
        QString());
    QVERIFY(command.OLOS()->hasKfactor());
    QVERIFY(!command.OLOS()->hasMaxRange_km());
    QCOMPARE(command.OLOS()->maxRange_km(), 50.0);

    XmlPropModelFSType freespace;
    freespace.setKfactor(2.0);
    command.setFreespace(freespace);
    QCOMPARE(readError(command, document(QStringLiteral("<PropertiesFreespace/>") + referenceXml)), QString());
    QVERIFY(command.hasFreespace());
    QVERIFY(!command.freespace()->hasKfactor());
    QCOMPARE(command.freespace()->Kfactor(), 1.3333);

    // A new selection holds no problem found in the old one.
    Selection faulty;
    QVERIFY(!faulty.syntaxError().isEmpty());
    command.setModel(faulty);
    QVERIFY(!Selection(*command.model()).mySyntaxError().isEmpty());
    QCOMPARE(readError(command, document(QStringLiteral("<SelectModel>OLOS</SelectModel>") + referenceXml)), QString());
    QCOMPARE(static_cast<int>(command.model()->model()), 2);
    QCOMPARE(Selection(*command.model()).mySyntaxError(), QString());
}

void PropmodelTest::keptWhenNotRead()
{
    // What the document does not mention stays, the reference of an empty tag too.
    Command command;
    const QString all = setChildren(command, 0x1ff);
    command.setCmdReference(reference(QStringLiteral("42")));
    command.setOrderDef(envelope(QStringLiteral("host")));
    const XmlReferenceType* heldReference = &command.cmdReference();
    QCOMPARE(readError(command, document(QStringLiteral("<Reference/>"))), QString());
    QCOMPARE(written(command, modelTag), document(all + referenceXml));
    QCOMPARE(&command.cmdReference(), heldReference);
    QVERIFY(command.hasOrderDef());

    for (const ChildAccess& child : parts()) {
        Command used;
        const QString before = setChildren(used, 0x1ff);
        QCOMPARE(readError(used, document(child.otherXml + referenceXml)), QString());
        QCOMPARE(written(used, modelTag), document(QString(before).replace(child.xml, child.otherXml) + referenceXml));
    }
}

void PropmodelTest::copies()
{
    QFETCH(int, index);
    const ChildAccess& child = parts()[index];

    Command original = commandWith(index);
    Command copy(original);
    Command assigned;
    assigned = original;
    QVERIFY(child.get(copy) != child.get(original));
    QVERIFY(child.get(assigned) != child.get(original));
    child.set(original, child.otherXml);
    original.setCmdReference(reference(QStringLiteral("43")));
    QCOMPARE(written(copy, modelTag), document(child.xml + referenceXml));
    QCOMPARE(written(assigned, modelTag), document(child.xml + referenceXml));
    const Command& same = copy;
    copy = same;
    QCOMPARE(written(copy, modelTag), document(child.xml + referenceXml));

    const QString changed = document(child.otherXml + QStringLiteral("<Reference>43</Reference>"));
    copy = original; // both hold one
    QCOMPARE(written(copy, modelTag), changed);
    QVERIFY(child.get(copy) != child.get(original));
    copy = Command(); // only the target does
    QVERIFY(!child.has(copy));
    QCOMPARE(written(copy, modelTag), document(emptyReferenceXml));
    copy = Command(); // none does
    QCOMPARE(written(copy, modelTag), document(emptyReferenceXml));
    QVERIFY(!child.has(Command(copy)));
    copy = original; // only the source does
    QCOMPARE(written(copy, modelTag), changed);
    QVERIFY(child.get(copy) != child.get(original));

    // Every other child on the other side.
    for (int i = 0; i < parts().size(); ++i) {
        Command target = commandWith(i);
        const Command source = commandWith(index);
        target = source;
        QCOMPARE(written(target, modelTag), document(child.xml + referenceXml));
    }
}

void PropmodelTest::copiesOfTheEnvelope()
{
    Command with;
    with.setOrderDef(envelope(QStringLiteral("host")));
    const Command without;

    Command target(with);
    QVERIFY(target.orderDef() != with.orderDef());
    QCOMPARE(target.orderDef()->orderSender(), QStringLiteral("host"));
    with.setOrderDef(envelope(QStringLiteral("other")));
    QCOMPARE(target.orderDef()->orderSender(), QStringLiteral("host"));
    target = with;
    QCOMPARE(target.orderDef()->orderSender(), QStringLiteral("other"));
    QVERIFY(target.orderDef() != with.orderDef());
    target = without;
    QVERIFY(!target.hasOrderDef());
    target = without;
    QVERIFY(!target.hasOrderDef());
    QVERIFY(!Command(without).hasOrderDef());
    target = with;
    QVERIFY(target.hasOrderDef());
    QVERIFY(target.orderDef() != with.orderDef());

    Command faulty;
    const QString error = faulty.syntaxError();
    QVERIFY(!error.isEmpty());
    QCOMPARE(Command(faulty).mySyntaxError(), error);
    target = faulty;
    QCOMPARE(target.mySyntaxError(), error);
}

void PropmodelTest::copiesOfTheFlag()
{
    for (const bool isCommand : {true, false}) {
        XmlPropModelType source(isCommand);
        source.setCmdReference(reference(QStringLiteral("42")));
        const XmlPropModelType copy(source);
        QCOMPARE(copy.isCommand(), isCommand);
        QCOMPARE(copy.cmdReference().reference(), QStringLiteral("42"));
        for (const bool wasCommand : {true, false}) {
            XmlPropModelType target(wasCommand);
            target = source;
            QCOMPARE(target.isCommand(), isCommand);
            QCOMPARE(target.cmdReference().reference(), QStringLiteral("42"));
            QCOMPARE(written(target, modelTag),
                     isCommand ? document(referenceXml) : QStringLiteral("<PropagationModel/>"));
            QCOMPARE(readError(target, document(QString())).isEmpty(), !isCommand);
        }
    }
}

void PropmodelTest::gates_data()
{
    QTest::addColumn<bool>("isCommand");
    QTest::addColumn<QStringList>("tags");
    QTest::addColumn<QString>("outcome");

    // What each child does after the children before it: "+" the element may end then, "e" the child is
    // accepted, but the end tag is not, "x" the child is refused.
    const QStringList sets = {QStringLiteral("PropertiesFreespace"), QStringLiteral("PropertiesOLOS"),
                              QStringLiteral("PropertiesITM"),       QStringLiteral("PropertiesP452"),
                              QStringLiteral("PropertiesP1546"),     QStringLiteral("PropertiesP526"),
                              QStringLiteral("PropertiesP533"),      QStringLiteral("PropertiesOkumura")};
    const QStringList next = QStringList(QStringLiteral("SelectModel")) + sets
        + QStringList({QStringLiteral("Reference"), QStringLiteral("selectModel"), QStringLiteral("PropertiesHata"),
                       QStringLiteral("PropertiesFreeSpace"), QStringLiteral("K-factor")});
    const auto add = [&](bool isCommand, const QString& before, const char* outcomes) {
        const QStringList beforeTags = before.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (int i = 0; i < next.size(); ++i) {
            QTest::newRow(qPrintable(
                QStringLiteral("%1: (%2) then %3")
                    .arg(isCommand ? QStringLiteral("a command") : QStringLiteral("no command"), before, next[i])))
                << isCommand << (beforeTags + QStringList(next[i])) << QString(QLatin1Char(outcomes[i]));
        }
    };

    QTest::newRow("a command without children") << true << QStringList() << QStringLiteral("e");
    add(true, QString(), "eeeeeeeee+xxxx");
    add(true, QStringLiteral("SelectModel"), "xeeeeeeee+xxxx");
    add(true, QStringLiteral("Reference"), "xxxxxxxxxxxxxx");
    add(true, QStringLiteral("SelectModel Reference"), "xxxxxxxxxxxxxx");
    for (const QString& set : sets) {
        add(true, set, "xxxxxxxxx+xxxx");
        add(true, QStringLiteral("SelectModel ") + set, "xxxxxxxxx+xxxx");
        add(true, set + QStringLiteral(" Reference"), "xxxxxxxxxxxxxx");
        add(true, QStringLiteral("SelectModel ") + set + QStringLiteral(" Reference"), "xxxxxxxxxxxxxx");
    }

    QTest::newRow("no command, without children") << false << QStringList() << QStringLiteral("+");
    add(false, QString(), "+++++++++xxxxx");
    add(false, QStringLiteral("SelectModel"), "x++++++++xxxxx");
    for (const QString& set : sets) {
        add(false, set, "xxxxxxxxxxxxxx");
        add(false, QStringLiteral("SelectModel ") + set, "xxxxxxxxxxxxxx");
    }
}

void PropmodelTest::gates()
{
    QFETCH(bool, isCommand);
    QFETCH(QStringList, tags);
    QFETCH(QString, outcome);

    QString xml = QStringLiteral("<PropagationModel>\n");
    for (const QString& tag : tags) {
        QString childXml = tag == QLatin1String("Reference") ? referenceXml : QStringLiteral("<%1></%1>").arg(tag);
        for (const ChildAccess& child : parts()) {
            if (tag == QLatin1String(child.tag))
                childXml = child.xml;
        }
        xml += childXml + QLatin1Char('\n');
    }
    xml += QStringLiteral("</PropagationModel>");

    QString expected;
    if (outcome == QLatin1String("x")) {
        expected = QStringLiteral("in XmlPropModelType (line %1, column %2): Unexpected element \"%3\".")
                       .arg(tags.size() + 1)
                       .arg(tags.last().size() + 2)
                       .arg(tags.last());
    } else if (outcome == QLatin1String("e")) {
        expected = QStringLiteral("in XmlPropModelType (line %1, column 19): Unexpected token \"EndElement\".")
                       .arg(tags.size() + 2);
    }
    XmlPropModelType model(isCommand);
    QCOMPARE(readError(model, xml), expected);
    // What was read until then stays; what was refused is not there.
    const QStringList read = outcome == QLatin1String("x") ? tags.mid(0, tags.size() - 1) : tags;
    for (const ChildAccess& child : parts())
        QCOMPARE(child.has(model), read.contains(QLatin1String(child.tag)));
    QCOMPARE(model.cmdReference().reference(),
             read.contains(QLatin1String("Reference")) ? QStringLiteral("42") : QString());

    // Every call starts afresh.
    QCOMPARE(readError(model,
                       document(QStringLiteral("<SelectModel>ITM</SelectModel><PropertiesITM/>")
                                + (isCommand ? referenceXml : QString()))),
             QString());
}

void PropmodelTest::everyKindReads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("index");

    const QStringList texts = {QStringLiteral("Free-space"), QStringLiteral("OLOS"),        QStringLiteral("ITM"),
                               QStringLiteral("P.452"),      QStringLiteral("P.1546"),      QStringLiteral("P.526"),
                               QStringLiteral("P.533"),      QStringLiteral("Okumura-Hata")};
    // Nothing ties the set to the selection.
    for (int text = 0; text < texts.size(); ++text) {
        for (int i = 1; i < parts().size(); ++i) {
            QTest::newRow(qPrintable(QStringLiteral("%1 with %2").arg(texts[text], QLatin1String(parts()[i].tag))))
                << texts[text] << text + 1 << i;
        }
    }
}

void PropmodelTest::everyKindReads()
{
    QFETCH(QString, text);
    QFETCH(int, value);
    QFETCH(int, index);

    const QString xml =
        document(QStringLiteral("<SelectModel>%1</SelectModel>").arg(text) + parts()[index].xml + referenceXml);
    auto command = readFrom<Command>(xml);
    XmlPropModelEnumType selected(*command.model());
    QCOMPARE(static_cast<int>(selected.model()), value);
    QVERIFY(parts()[index].has(command));
    QVERIFY(command.isValid());
    QCOMPARE(command.syntaxError(), QString());
    QCOMPARE(written(command, modelTag), xml);
}

void PropmodelTest::ignoredTokens()
{
    const auto command =
        readFrom<Command>(QStringLiteral("<PropagationModel version=\"2.0\">text<!-- c -->%1\n<?p i?>%2<![CDATA[x]]>%3 "
                                         "</PropagationModel>")
                              .arg(parts()[0].xml, parts()[4].xml, referenceXml));
    QVERIFY(command.isValid());
    QCOMPARE(written(command, QStringLiteral("Other")),
             QStringLiteral("<Other>%1%2%3</Other>").arg(parts()[0].xml, parts()[4].xml, referenceXml));
}

void PropmodelTest::everyPresence()
{
    for (int present = 0; present < 0x200; ++present) {
        Command command;
        Plain plain;
        const QString xml = setChildren(command, present);
        setChildren(plain, present);
        command.setCmdReference(reference(QStringLiteral("42")));
        int sets = 0;
        for (int i = 1; i < parts().size(); ++i)
            sets += (present >> i) & 1;

        QCOMPARE(command.isValid(), sets <= 1);
        QCOMPARE(command.syntaxError(), sets <= 1 ? QString() : block(countProblem));
        QCOMPARE(plain.isValid(), sets <= 1);
        QCOMPARE(plain.syntaxError(), sets <= 1 ? QString() : block(countProblem));
        QCOMPARE(written(command, modelTag), document(xml + referenceXml));
        QCOMPARE(written(plain, modelTag), xml.isEmpty() ? QStringLiteral("<PropagationModel/>") : document(xml));

        const Command copy(command);
        Command rest;
        setChildren(rest, 0x1ff & ~present);
        rest = command;
        for (int i = 0; i < parts().size(); ++i) {
            const bool isPresent = (present & (1 << i)) != 0;
            QCOMPARE(parts()[i].has(command), isPresent);
            QCOMPARE(parts()[i].has(copy), isPresent);
            QCOMPARE(parts()[i].has(rest), isPresent);
            QVERIFY(!isPresent || parts()[i].get(copy) != parts()[i].get(command));
        }
        QCOMPARE(written(copy, modelTag), document(xml + referenceXml));
        QCOMPARE(written(rest, modelTag), document(xml + referenceXml));
    }
}

void PropmodelTest::bothITMAndHata()
{
    XmlPropModelHataType hata;
    hata.setAreaType(XmlPropModelHataType::AreaUrban);
    XmlPropModelITMType itm;
    itm.setRRI(310.0);
    Command command;
    command.setCmdReference(reference(QStringLiteral("42")));
    command.setHata(hata);
    QVERIFY(command.isValid());
    command.setITM(itm);
    QVERIFY(!command.isValid());
    QCOMPARE(command.syntaxError(),
             QStringLiteral("+++ in XmlPropModelType Begin:\n"
                            "Illegal number of elements.\n"
                            "--- in XmlPropModelType End"));
    QCOMPARE(written(command, modelTag),
             QStringLiteral("<PropagationModel><PropertiesITM><RRI>310.0000</RRI></PropertiesITM>"
                            "<PropertiesOkumura><AreaType>Urban</AreaType></PropertiesOkumura>"
                            "<Reference>42</Reference></PropagationModel>"));

    // The K-factor of the Okumura-Hata set goes out under the tag of the set.
    hata.setKfactor(1.3333);
    Plain plain;
    plain.setHata(hata);
    QVERIFY(plain.isValid());
    const QString xml = QStringLiteral("<PropagationModel><PropertiesOkumura>"
                                       "<PropertiesOkumura>1.3333</PropertiesOkumura><AreaType>Urban</AreaType>"
                                       "</PropertiesOkumura></PropagationModel>");
    QCOMPARE(written(plain, modelTag), xml);
    QCOMPARE(readError(plain, xml),
             QStringLiteral("in XmlPropModelHataType (line 1, column 56): "
                            "Unexpected token \"StartElement\": PropertiesOkumura."));
    QVERIFY(plain.hasHata());
}

void PropmodelTest::selectionIsNotTied()
{
    XmlPropModelType command(true);
    command.setCmdReference(reference(QStringLiteral("42")));
    command.setModel(selection(3));
    command.setP452(XmlPropModelP452Type());
    QVERIFY(command.isValid());
    QCOMPARE(command.syntaxError(), QString());
    QCOMPARE(written(command, modelTag),
             document(QStringLiteral("<SelectModel>ITM</SelectModel><PropertiesP452/>") + referenceXml));

    // Nor is a set needed for a selection outside the list, which counts as one.
    command.setModel(selection(9));
    QVERIFY(command.isValid());
    QCOMPARE(written(command, modelTag),
             document(QStringLiteral("<SelectModel>UNDEFINED</SelectModel><PropertiesP452/>") + referenceXml));
}

void PropmodelTest::invalidChild()
{
    QFETCH(int, index);
    const ChildAccess& child = parts()[index];

    Command command = commandWith(index);
    QVERIFY(command.isValid());
    child.set(command, child.invalidXml);
    QVERIFY(!command.isValid());
    QCOMPARE(command.syntaxError(), block(child.problem));
    Plain plain;
    child.set(plain, child.invalidXml);
    QVERIFY(!plain.isValid());
    QCOMPARE(plain.syntaxError(), block(child.problem));

    // Read and judged: what cannot be read at all is no case here.
    if (index > 0) {
        auto read = readFrom<Command>(document(child.invalidXml + referenceXml));
        QVERIFY(!read.isValid());
        QCOMPARE(read.syntaxError(), block(child.problem));
    }

    // The reference of a command counts.
    Command nameless = commandWith(index);
    nameless.setCmdReference(XmlReferenceType());
    QVERIFY(!nameless.isValid());
    QCOMPARE(nameless.syntaxError(), block(referenceProblem));
}

void PropmodelTest::problemsInOrder()
{
    Command command;
    Plain plain;
    QString sets;
    for (int i = int(parts().size()) - 1; i >= 0; --i) {
        parts()[i].set(command, parts()[i].invalidXml);
        parts()[i].set(plain, parts()[i].invalidXml);
        if (i > 0)
            sets.prepend(parts()[i].problem);
    }
    const QString selected = QStringLiteral("+++ in XmlPropModelEnumType Begin:\n"
                                            "No model selected.\n"
                                            "--- in XmlPropModelEnumType End\n");
    QCOMPARE(command.syntaxError(), block(selected + referenceProblem + sets + countProblem));
    QCOMPARE(command.syntaxError(), block(selected + referenceProblem + sets + countProblem));
    QVERIFY(!command.isValid());
    QCOMPARE(plain.syntaxError(), block(selected + sets + countProblem));
    QVERIFY(!plain.isValid());

    command = Command();
    command.setModel(XmlPropModelEnumType());
    QCOMPARE(command.syntaxError(), block(selected + referenceProblem));
    command.setHata(XmlPropModelHataType());
    command.setCmdReference(reference(QString(51, QLatin1Char('r'))));
    QCOMPARE(command.syntaxError(),
             block(selected
                   + QStringLiteral("+++ in XmlreferenceType Begin:\n"
                                    "String too long (max. 50)\n"
                                    "--- in XmlreferenceType End\n")));
}

void PropmodelTest::referenceOfNoCommand()
{
    // It can be set, but is neither judged nor written nor read.
    Plain plain;
    plain.setCmdReference(reference(QString(51, QLatin1Char('r'))));
    QCOMPARE(plain.cmdReference().reference().size(), 51);
    QVERIFY(plain.isValid());
    QCOMPARE(plain.syntaxError(), QString());
    QCOMPARE(written(plain, modelTag), QStringLiteral("<PropagationModel/>"));
    QCOMPARE(readError(plain, document(referenceXml)),
             QStringLiteral("in XmlPropModelType (line 1, column 29): Unexpected element \"Reference\"."));
    QCOMPARE(plain.cmdReference().reference().size(), 51);
}

void PropmodelTest::reset()
{
    Command command;
    setChildren(command, 0x1ff);
    command.setCmdReference(reference(QStringLiteral("42")));
    command.setOrderDef(envelope(QStringLiteral("host")));
    QVERIFY(!command.syntaxError().isEmpty());
    const XmlReferenceType* heldReference = &command.cmdReference();
    command.reset();
    QCOMPARE(command.mySyntaxError(), QString());
    for (const ChildAccess& child : parts()) {
        QVERIFY2(!child.has(command), child.tag);
        QVERIFY2(!child.get(command), child.tag);
    }
    QVERIFY(!command.hasOrderDef());
    QVERIFY(!command.orderDef());
    QCOMPARE(&command.cmdReference(), heldReference);
    QCOMPARE(command.cmdReference().reference(), QString());
    QVERIFY(command.isCommand());
    QVERIFY(!command.isValid());
    QCOMPARE(command.syntaxError(), Command().syntaxError());
    QCOMPARE(written(command, modelTag), document(emptyReferenceXml));
    QCOMPARE(readError(command, document(parts()[5].xml + referenceXml)), QString());
    QCOMPARE(written(command, modelTag), document(parts()[5].xml + referenceXml));

    Plain plain;
    setChildren(plain, 0x1ff);
    plain.setCmdReference(reference(QStringLiteral("42")));
    plain.reset();
    QVERIFY(!plain.isCommand());
    QCOMPARE(plain.cmdReference().reference(), QString());
    QCOMPARE(written(plain, modelTag), QStringLiteral("<PropagationModel/>"));
}

void PropmodelTest::reuse()
{
    // Reading does not reset: a set of another kind stays, and the element has one too many.
    Command command = commandWith(1);
    QCOMPARE(readError(command, document(parts()[2].xml + referenceXml)), QString());
    QVERIFY(!command.isValid());
    QCOMPARE(command.syntaxError(), block(countProblem));
    QCOMPARE(written(command, modelTag), document(parts()[1].xml + parts()[2].xml + referenceXml));

    // After a failure it can be judged, written, copied, reset and read into.
    Command failed;
    QVERIFY(!readError(failed, document(parts()[0].xml + QStringLiteral("<x/>"))).isEmpty());
    QVERIFY(!failed.isValid());
    QCOMPARE(failed.syntaxError(), block(referenceProblem));
    QCOMPARE(written(Command(failed), modelTag), document(parts()[0].xml + emptyReferenceXml));
    failed.reset();
    QCOMPARE(readError(failed, document(referenceXml)), QString());
    QCOMPARE(written(failed, modelTag), document(referenceXml));
}

void PropmodelTest::failures_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("childXml");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("left"); ///< the child as it is written afterwards

    QTest::newRow("the selection") << 0 << QStringLiteral("<SelectModel>x</SelectModel>")
                                   << QStringLiteral("in XmlPropModelEnumType (line 2, column 28): "
                                                     "Illegal enum value..")
                                   << QStringLiteral("<SelectModel>UNDEFINED</SelectModel>");
    QTest::newRow("free space") << 1 << QStringLiteral("<PropertiesFreespace><K-factor>x</K-factor>")
                                << QStringLiteral("in XmlPropModelFSType (line 2, column 43): "
                                                  "Illegal K-factor value (must be numeric).")
                                << QStringLiteral("<PropertiesFreespace/>");
    QTest::newRow("optical line of sight")
        << 2 << QStringLiteral("<PropertiesOLOS><K-factor>2</K-factor><MaxRange_km>x</MaxRange_km>")
        << QStringLiteral("in XmlPropModelOLOSType (line 2, column 66): Illegal range value (must be numeric).")
        << QStringLiteral("<PropertiesOLOS><K-factor>2.0000</K-factor></PropertiesOLOS>");
    QTest::newRow("irregular terrain")
        << 3 << QStringLiteral("<PropertiesITM><x></x>")
        << QStringLiteral("in XmlPropModelITMType (line 2, column 18): Unexpected token \"StartElement\": x.")
        << QStringLiteral("<PropertiesITM/>");
    QTest::newRow("P.452") << 4 << QStringLiteral("<PropertiesP452><x></x>")
                           << QStringLiteral("in XmlPropModelP542Type (line 2, column 19): "
                                             "Unexpected token \"StartElement\": x.")
                           << QStringLiteral("<PropertiesP452/>");
    QTest::newRow("P.1546") << 5 << QStringLiteral("<PropertiesP1546><x></x>")
                            << QStringLiteral("in XmlPropModelP1546Type (line 2, column 20): "
                                              "Unexpected token \"StartElement\": x.")
                            << QStringLiteral("<PropertiesP1546/>");
    QTest::newRow("P.526") << 6 << QStringLiteral("<PropertiesP526><x></x>")
                           << QStringLiteral("in XmlPropModelP526Type (line 2, column 19): "
                                             "Unexpected token \"StartElement\": x.")
                           << QStringLiteral("<PropertiesP526/>");
    QTest::newRow("P.533") << 7 << QStringLiteral("<PropertiesP533><x></x>")
                           << QStringLiteral("in XmlPropModelP526Type (line 2, column 19): "
                                             "Unexpected token \"StartElement\": x.")
                           << QStringLiteral("<PropertiesP533/>");
    QTest::newRow("Okumura-Hata") << 8 << QStringLiteral("<PropertiesOkumura><AreaType>Sea</AreaType>")
                                  << QStringLiteral("in XmlPropModelHataType (line 2, column 43): "
                                                    "Illegal value for \"AreaType\".")
                                  << QStringLiteral("<PropertiesOkumura/>");
}

void PropmodelTest::failures()
{
    QFETCH(int, index);
    QFETCH(QString, childXml);
    QFETCH(QString, error);
    QFETCH(QString, left);

    // The child stays attached, and nothing after it is read.
    Command command;
    QCOMPARE(
        readError(command, QStringLiteral("<PropagationModel>\n%1<Reference>42</Reference><Other/>").arg(childXml)),
        error);
    for (int i = 0; i < parts().size(); ++i)
        QCOMPARE(parts()[i].has(command), i == index);
    QCOMPARE(command.cmdReference().reference(), QString());
    QCOMPARE(written(command, modelTag), document(left + emptyReferenceXml));

    // It takes the place of the one held.
    Command used = commandWith(index);
    QCOMPARE(readError(used, QStringLiteral("<PropagationModel>\n%1").arg(childXml)), error);
    QCOMPARE(written(used, modelTag), document(left + referenceXml));
}

void PropmodelTest::positions()
{
    const QString xml = QStringLiteral("<PropagationModel>\n%1</PropagationModel>").arg(referenceXml);
    Command command;

    QXmlStreamReader fresh(xml);
    command.processXml(fresh, modelTag);
    QVERIFY(fresh.errorString().startsWith(QLatin1String("in XmlPropModelType (line 1, column ")));
    QVERIFY(fresh.errorString().endsWith(QLatin1String("): Unexpected token \"StartDocument\".")));

    QXmlStreamReader atStart(xml);
    atStart.readNext();
    command.processXml(atStart, modelTag);
    QCOMPARE(atStart.errorString(),
             QStringLiteral("in XmlPropModelType (line 1, column 18): Unexpected element \"PropagationModel\"."));
    QCOMPARE(command.cmdReference().reference(), QString());

    // There is no check of the position: on characters inside, reading goes on.
    QXmlStreamReader onText(xml);
    onText.readNextStartElement();
    onText.readNext();
    QVERIFY(onText.isCharacters());
    command.processXml(onText, modelTag);
    QCOMPARE(onText.errorString(), QString());
    QCOMPARE(command.cmdReference().reference(), QStringLiteral("42"));
    command.processXml(onText, modelTag);
    QCOMPARE(onText.errorString(),
             QStringLiteral("in XmlPropModelType (line 2, column 44): Unexpected token \"EndDocument\"."));

    Command untouched;
    QXmlStreamReader atEnd(xml);
    while (!atEnd.atEnd())
        atEnd.readNext();
    untouched.processXml(atEnd, modelTag);
    QVERIFY(!atEnd.hasError());
    QCOMPARE(untouched.cmdReference().reference(), QString());

    // An end tag of another name, also when it could come.
    Plain plain;
    QXmlStreamReader otherTag(QStringLiteral("<PropagationModel>\n</PropagationModel>"));
    otherTag.readNextStartElement();
    plain.processXml(otherTag, QStringLiteral("propagationModel"));
    QCOMPARE(otherTag.errorString(),
             QStringLiteral("in XmlPropModelType (line 2, column 19): Unexpected token \"EndElement\"."));

    QXmlStreamReader inDocument(QStringLiteral("<Doc>%1<Next/></Doc>").arg(xml));
    inDocument.readNextStartElement();
    inDocument.readNextStartElement();
    untouched.processXml(inDocument, modelTag);
    QVERIFY(inDocument.readNextStartElement());
    QCOMPARE(inDocument.name().toString(), QStringLiteral("Next"));
}

QTEST_APPLESS_MAIN(PropmodelTest)
#include "propmodel_test.moc"
