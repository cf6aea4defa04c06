#include "support/commandtest.h"

#include <arvxml/createdelete.h>

#include <type_traits>
#include <utility>

using namespace ArvXml;
using namespace CommandTest;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;
using TestValues::envelope;
using TestValues::reference;

namespace {

// The two commands, each showing what the base keeps for itself.
struct Create : XmlCmdCreate {
    using XmlCmdCreate::classname;
    using XmlCmdCreate::mySyntaxError;
};
struct Delete : XmlCmdDelete {
    using XmlCmdDelete::classname;
    using XmlCmdDelete::mySyntaxError;
};

template <typename C>
QString tagOf();
template <>
QString tagOf<Create>()
{
    return QStringLiteral("Create");
}
template <>
QString tagOf<Delete>()
{
    return QStringLiteral("Delete");
}

template <typename C>
QString block(const QString& body)
{
    const QString name = QStringLiteral("XmlCmd") + tagOf<C>();
    return QStringLiteral("+++ in %1 Begin:\n%2--- in %1 End").arg(name, body);
}

/// \a children inside the command's element.
template <typename C>
QString command(const QString& children)
{
    return QStringLiteral("<%1>%2</%1>").arg(tagOf<C>(), children);
}

const QString positionXml = QStringLiteral("<Position version=\"1.0\"><Longitude>7.500000</Longitude>"
                                           "<Latitude>47.250000</Latitude></Position>");
const QString rectangleXml = QStringLiteral(
    "<AreaRect version=\"1.0\">"
    "<UpperLeft version=\"1.0\"><Longitude>7.000000</Longitude><Latitude>48.000000</Latitude></UpperLeft>"
    "<LowerRight version=\"1.0\"><Longitude>8.000000</Longitude><Latitude>47.000000</Latitude>"
    "</LowerRight></AreaRect>");
const QString heightXml = QStringLiteral("<AntennaHeight version=\"1.0\" unit=\"m\">10</AntennaHeight>");
const QString thresholdXml =
    QStringLiteral("<RxThreshold version=\"1.0\" unit=\"dBm\">-80.500000000000000</RxThreshold>");
const QString frequencyXml = QStringLiteral("<Frequency version=\"1.0\" unit=\"MHz\">145.500000</Frequency>");
const QString powerXml = QStringLiteral("<TxPower version=\"1.0\" unit=\"W\">5.000000000000000</TxPower>");
const QString txParameterXml = QStringLiteral("<TxParameter version=\"1.0\">") + frequencyXml + powerXml + heightXml
    + QStringLiteral("<Bandwidth version=\"1.0\" unit=\"kHz\">25</Bandwidth></TxParameter>");
const QString rxParameterXml =
    QStringLiteral("<RxParameter version=\"1.0\">") + heightXml + thresholdXml + QStringLiteral("</RxParameter>");
const QString precisionXml =
    QStringLiteral("<DFprecision version=\"1.0\" unit=\"%1\">3</DFprecision>").arg(QChar(0x00B0));
const QString deviceContentXml = QStringLiteral("<Frequencies version=\"1.0\">") + frequencyXml
    + QStringLiteral("</Frequencies><Attenuations version=\"1.0\"><Decibel version=\"1.0\" unit=\"dB\">1.500000"
                     "</Decibel></Attenuations>");
const QString categoryXml = QStringLiteral("<DeviceCategory>Cable</DeviceCategory>");
const QString chainXml = QStringLiteral("<SINAD version=\"1.0\">12.000000</SINAD><Device version=\"1.0\">"
                                        "<Device version=\"1.0\">")
    + categoryXml + QStringLiteral("<Name>Cable 1</Name>") + deviceContentXml + QStringLiteral("</Device></Device>");

const QString referenceXml = QStringLiteral("<Reference>42</Reference>");
const QString noReferenceXml = QStringLiteral("<Reference></Reference>");

/// A slot of a command.
template <typename C>
struct Slot {
    const char* tag;
    const char* writtenTag;
    const char* className;
    QString form; ///< with places for the tag and the name
    bool (*has)(const C&);
    const IXmlElement* (*get)(const C&);
    void (*set)(C&, const QString& xml);

    /// The object under a tag, named \a name. Without a name it is invalid.
    QString under(const char* anyTag, const QString& name) const { return form.arg(QLatin1String(anyTag), name); }
    QString read(const QString& name = QStringLiteral("First")) const { return under(tag, name); }
    QString writtenXml(const QString& name = QStringLiteral("First")) const { return under(writtenTag, name); }
    /// What is said about an object without a name.
    QString problem() const
    {
        return QStringLiteral("+++ in %1 Begin:\n"
                              "+++ in XmlObjNameType Begin:\n"
                              "Object name too short (min. 1).\n"
                              "--- in XmlObjNameType End\n"
                              "--- in %1 End\n")
            .arg(QLatin1String(className));
    }
};

template <typename C, typename Object, auto Has, auto Get, auto Set>
Slot<C> slot(const char* tag, const char* writtenTag, const char* className, const QString& form)
{
    static_assert(std::is_same_v<decltype((std::declval<const C&>().*Get)()), const Object*>);
    return {tag,
            writtenTag,
            className,
            form,
            [](const C& command) { return (command.*Has)(); },
            [](const C& command) -> const IXmlElement* { return (command.*Get)(); },
            [](C& command, const QString& xml) {
                // An empty text hands the command its own object.
                if (xml.isEmpty())
                    (command.*Set)(*(command.*Get)());
                else
                    (command.*Set)(readFrom<Object>(xml));
            }};
}

/// The slots of a command, in their order.
template <typename C>
const QList<Slot<C>>& slotsOf();

template <>
const QList<Slot<Create>>& slotsOf<Create>()
{
    using C = XmlCmdCreate;
    const QString start = QStringLiteral("<%1 version=\"1.0\">");
    const QString name = QStringLiteral("<Name>%2</Name>");
    const QString end = QStringLiteral("</%1>");
    static const QList<Slot<Create>> list = {
        slot<Create, XmlDeploymentAreaType, &C::hasDeploymentArea, &C::deploymentArea, &C::setDeploymentArea>(
            "DeploymentArea", "DeploymentArea", "XmlDeploymentAreaType",
            start + name + rectangleXml + heightXml + thresholdXml + frequencyXml + powerXml + end),
        slot<Create, XmlAoiType, &C::hasAoi, &C::aoi, &C::setAoi>("AOI", "AOI", "XmlAoiType",
                                                                  start + name + rectangleXml + txParameterXml + end),
        slot<Create, XmlEmitterType, &C::hasEmitter, &C::emitter, &C::setEmitter>(
            "Emitter", "Emitter", "XmlEmitterType", start + name + positionXml + txParameterXml + end),
        slot<Create, XmlReceiverType, &C::hasReceiver, &C::receiver, &C::setReceiver>(
            "Receiver", "Receiver", "XmlReceiverType", start + name + positionXml + rxParameterXml + end),
        slot<Create, XmlDfType, &C::hasDf, &C::df, &C::setDf>(
            "DF", "DF", "XmlDfType", start + name + positionXml + rxParameterXml + precisionXml + end),
        slot<Create, XmlStationType, &C::hasStation, &C::station, &C::setStation>(
            "Station", "Station", "XmlStationType", QStringLiteral("<%1>") + name + positionXml + end),
        slot<Create, XmlSignalPathType, &C::hasSignalPath, &C::signalPath, &C::setSignalPath>(
            "Path", "SignalPath", "XmlSignalPathType", start + name + chainXml + end),
        slot<Create, XmlDeviceType, &C::hasDevice, &C::device, &C::setDevice>(
            "Device", "Device", "XmlDeviceType", start + categoryXml + name + deviceContentXml + end),
    };
    return list;
}

template <>
const QList<Slot<Delete>>& slotsOf<Delete>()
{
    using C = XmlCmdDelete;
    using N = XmlNameAllType;
    const char* const type = "XmlNameAllType";
    const QString form = QStringLiteral("<%1><Name>%2</Name></%1>");
    static const QList<Slot<Delete>> list = {
        slot<Delete, N, &C::hasDeploy, &C::deploy, &C::setDeploy>("DeploymentArea", "DeploymentArea", type, form),
        slot<Delete, N, &C::hasAoi, &C::aoi, &C::setAoi>("AOI", "AOI", type, form),
        slot<Delete, N, &C::hasEmitter, &C::emitter, &C::setEmitter>("Emitter", "Emitter", type, form),
        slot<Delete, N, &C::hasReceiver, &C::receiver, &C::setReceiver>("Receiver", "Receiver", type, form),
        slot<Delete, N, &C::hasDf, &C::df, &C::setDf>("DF", "DF", type, form),
        slot<Delete, N, &C::hasDevice, &C::device, &C::setDevice>("Device", "Device", type, form),
        slot<Delete, N, &C::hasSignalPath, &C::signalPath, &C::setSignalPath>("SignalPath", "SignalPath", type, form),
        slot<Delete, N, &C::hasStation, &C::station, &C::setStation>("Station", "Station", type, form),
    };
    return list;
}

const int slotCount = 8;

/// A command with the slots of \a filled (a bit each) and a reference.
template <typename C>
C commandWith(int filled, const QString& name = QStringLiteral("First"))
{
    C command;
    for (int i = 0; i < slotCount; ++i) {
        if (filled & (1 << i))
            slotsOf<C>()[i].set(command, slotsOf<C>()[i].read(name));
    }
    command.setCmdReference(reference(QStringLiteral("42")));
    return command;
}

/// The slots filled, a bit each.
template <typename C>
int filledSlots(const C& command)
{
    int filled = 0;
    for (int i = 0; i < slotCount; ++i) {
        const Slot<C>& slot = slotsOf<C>()[i];
        if (slot.has(command))
            filled |= 1 << i;
        if (slot.has(command) != (slot.get(command) != nullptr))
            QTest::qFail("a slot is filled, but its getter says otherwise", __FILE__, __LINE__);
    }
    return filled;
}

/// The command as written, with the slots of \a filled.
template <typename C>
QString xmlWith(int filled, const QString& name = QStringLiteral("First"), const QString& endXml = referenceXml)
{
    QString children;
    for (int i = 0; i < slotCount; ++i) {
        if (filled & (1 << i))
            children += slotsOf<C>()[i].writtenXml(name);
    }
    return command<C>(children + endXml);
}

template <typename C>
void verifyEmpty(C& empty)
{
    QCOMPARE(filledSlots(empty), 0);
    QVERIFY(!empty.hasOrderDef());
    QVERIFY(!empty.orderDef());
    QCOMPARE(empty.cmdReference().reference(), QString());
    QVERIFY(!empty.isValid());
    QCOMPARE(written(empty, tagOf<C>()), command<C>(noReferenceXml));
    QCOMPARE(empty.syntaxError(), block<C>(referenceProblem + countProblem));
}

template <typename C>
void checkInterface()
{
    static_assert(std::is_base_of_v<XmlElementBase, C>);
    static_assert(std::is_same_v<decltype(std::declval<const C&>().cmdReference()), const XmlReferenceType&>);
    static_assert(std::is_same_v<decltype(std::declval<const C&>().orderDef()), const XmlOrderDef*>);
    QCOMPARE(C().classname(), QStringLiteral("XmlCmd") + tagOf<C>());
}

template <typename C>
void checkNewCommand()
{
    C empty;
    QCOMPARE(empty.mySyntaxError(), QString());
    verifyEmpty(empty);
}

template <typename C>
void checkSlotAccessors()
{
    const QString second = QStringLiteral("Second");
    for (int i = 0; i < slotCount; ++i) {
        const Slot<C>& slot = slotsOf<C>()[i];
        C one;
        slot.set(one, slot.read());
        QCOMPARE(filledSlots(one), 1 << i);
        const IXmlElement* held = slot.get(one);
        QCOMPARE(written(*held, QString::fromLatin1(slot.tag)), slot.read());
        slot.set(one, slot.read(second));
        QCOMPARE(slot.get(one), held); // assigned into
        QCOMPARE(written(*held, QString::fromLatin1(slot.tag)), slot.read(second));
        slot.set(one, QString());
        QCOMPARE(slot.get(one), held);
        QCOMPARE(written(*held, QString::fromLatin1(slot.tag)), slot.read(second));
        QCOMPARE(one.cmdReference().reference(), QString());
        QVERIFY(!one.hasOrderDef());

        // Every other slot keeps what it holds, the envelope and the reference too.
        for (int j = 0; j < slotCount; ++j) {
            auto two = commandWith<C>(1 << j);
            two.setOrderDef(envelope(QStringLiteral("host")));
            slot.set(two, slot.read(second));
            QCOMPARE(filledSlots(two), (1 << i) | (1 << j));
            QCOMPARE(written(*slotsOf<C>()[j].get(two), QString::fromLatin1(slotsOf<C>()[j].tag)),
                     slotsOf<C>()[j].read(i == j ? second : QStringLiteral("First")));
            QCOMPARE(two.orderDef()->orderSender(), QStringLiteral("host"));
            QCOMPARE(two.cmdReference().reference(), QStringLiteral("42"));
        }
    }
}

template <typename C>
void checkReferenceAndEnvelope()
{
    C one;
    XmlReferenceType given = reference(QStringLiteral("r1"));
    one.setCmdReference(given);
    given.setReference(QStringLiteral("changed"));
    QCOMPARE(one.cmdReference().reference(), QStringLiteral("r1"));
    one.setCmdReference(one.cmdReference());
    QCOMPARE(one.cmdReference().reference(), QStringLiteral("r1"));
    QVERIFY(!one.hasOrderDef());

    checkEnvelopeAccessors(one);
    QCOMPARE(filledSlots(one), 0);

    // The envelope is not written, judged or reported.
    auto full = commandWith<C>(1);
    full.setOrderDef(XmlOrderDef());
    QCOMPARE(written(full, tagOf<C>()), xmlWith<C>(1));
    QVERIFY(full.isValid());
    QCOMPARE(full.syntaxError(), QString());
}

template <typename C>
void checkRoundTrips()
{
    for (int i = 0; i < slotCount; ++i) {
        const Slot<C>& slot = slotsOf<C>()[i];
        auto one = readFrom<C>(command<C>(slot.read() + referenceXml));
        QCOMPARE(filledSlots(one), 1 << i);
        QCOMPARE(one.cmdReference().reference(), QStringLiteral("42"));
        QVERIFY(!one.hasOrderDef());
        QVERIFY(one.isValid());
        QCOMPARE(one.syntaxError(), QString());
        QCOMPARE(written(one, tagOf<C>()), command<C>(slot.writtenXml() + referenceXml));
        QCOMPARE(written(one, QStringLiteral("Other")),
                 QStringLiteral("<Other>%1</Other>").arg(slot.writtenXml() + referenceXml));
    }
}

template <typename C>
void checkTokensIgnored()
{
    const Slot<C>& slot = slotsOf<C>()[2];
    const auto one =
        readFrom<C>(QStringLiteral("<?xml version=\"1.0\"?><!DOCTYPE %1><%1 version=\"2.0\">text<!-- c -->%2"
                                   "\n<?p i?> 5 <![CDATA[x]]>%3 more\n</%1>")
                        .arg(tagOf<C>(), slot.read(), referenceXml));
    QCOMPARE(written(one, tagOf<C>()), xmlWith<C>(1 << 2));
}

template <typename C>
void checkReadingResets()
{
    const int all = (1 << slotCount) - 1;
    const auto used = [] {
        auto command = commandWith<C>((1 << slotCount) - 1, QStringLiteral("Old"));
        command.setOrderDef(envelope(QStringLiteral("host")));
        command.setCmdReference(XmlReferenceType());
        command.syntaxError();
        return command;
    };
    QCOMPARE(filledSlots(used()), all);
    QVERIFY(!used().mySyntaxError().isEmpty());

    for (int i = 0; i < slotCount; ++i) {
        C again = used();
        QCOMPARE(readError(again, command<C>(slotsOf<C>()[i].read() + referenceXml)), QString());
        QCOMPARE(filledSlots(again), 1 << i);
        QVERIFY(!again.hasOrderDef());
        QVERIFY(!again.orderDef());
        QCOMPARE(again.mySyntaxError(), QString());
        QCOMPARE(written(again, tagOf<C>()), xmlWith<C>(1 << i));
        // Reading once more, the second content alone is held.
        QCOMPARE(readError(again, command<C>(slotsOf<C>()[7 - i].read() + QStringLiteral("<Reference>2</Reference>"))),
                 QString());
        QCOMPARE(written(again, tagOf<C>()),
                 xmlWith<C>(1 << (7 - i), QStringLiteral("First"), QStringLiteral("<Reference>2</Reference>")));
    }

    // Nothing is left either when there is nothing to read, or nothing that is understood.
    C failed = used();
    failed.setCmdReference(reference(QStringLiteral("old")));
    QVERIFY(!readError(failed, command<C>(QStringLiteral("<Other></Other>"))).isEmpty());
    verifyEmpty(failed);
    C without = used();
    without.setCmdReference(reference(QStringLiteral("old")));
    QVERIFY(!readError(without, command<C>(slotsOf<C>()[0].read())).isEmpty());
    QCOMPARE(written(without, tagOf<C>()), xmlWith<C>(1, QStringLiteral("First"), noReferenceXml));
    C unread = used();
    unread.setCmdReference(reference(QStringLiteral("old")));
    QXmlStreamReader atEnd(QStringLiteral("<x/>"));
    while (!atEnd.atEnd())
        atEnd.readNext();
    unread.processXml(atEnd, tagOf<C>());
    QVERIFY(!atEnd.hasError());
    verifyEmpty(unread);
}

template <typename C>
void checkCounts()
{
    // Every number of slots: each alone, every pair, and more.
    for (int filled = 0; filled < 1 << slotCount; ++filled) {
        C some = commandWith<C>(0);
        for (int i = slotCount - 1; i >= 0; --i) {
            if (filled & (1 << i))
                slotsOf<C>()[i].set(some, slotsOf<C>()[i].read());
        }
        const bool one = filled == 1 || filled == 2 || filled == 4 || filled == 8 || filled == 16 || filled == 32
            || filled == 64 || filled == 128;
        QCOMPARE(some.isValid(), one);
        QCOMPARE(some.syntaxError(), one ? QString() : block<C>(countProblem));
        QCOMPARE(some.syntaxError(), one ? QString() : block<C>(countProblem));
        QCOMPARE(written(some, tagOf<C>()), xmlWith<C>(filled));
    }
}

template <typename C>
void checkJudgement()
{
    for (int i = 0; i < slotCount; ++i) {
        const Slot<C>& slot = slotsOf<C>()[i];
        auto bad = commandWith<C>(1 << i, QString());
        QVERIFY(!bad.isValid());
        QCOMPARE(bad.syntaxError(), block<C>(slot.problem()));
        // The reference comes first, though it is written last.
        bad.setCmdReference(XmlReferenceType());
        QVERIFY(!bad.isValid());
        QCOMPARE(bad.syntaxError(), block<C>(referenceProblem + slot.problem()));
        slot.set(bad, slot.read());
        QVERIFY(!bad.isValid());
        QCOMPARE(bad.syntaxError(), block<C>(referenceProblem));
        bad.setCmdReference(reference(QStringLiteral("r")));
        QVERIFY(bad.isValid());
        QCOMPARE(bad.syntaxError(), QString());

        // One of many is wrong.
        auto all = commandWith<C>(255);
        slot.set(all, slot.read(QString()));
        QCOMPARE(all.syntaxError(), block<C>(slot.problem() + countProblem));
        QVERIFY(!all.isValid());
    }

    QString problems = referenceProblem;
    for (const Slot<C>& slot : slotsOf<C>())
        problems += slot.problem();
    auto worst = commandWith<C>(255, QString());
    worst.setCmdReference(XmlReferenceType());
    QCOMPARE(worst.syntaxError(), block<C>(problems + countProblem));
    QVERIFY(!worst.isValid());

    auto bounds = commandWith<C>(1);
    bounds.setCmdReference(reference(QString(50, QLatin1Char('r'))));
    QVERIFY(bounds.isValid());
    bounds.setCmdReference(reference(QString(51, QLatin1Char('r'))));
    QVERIFY(!bounds.isValid());
    QCOMPARE(bounds.syntaxError(),
             block<C>(QStringLiteral("+++ in XmlreferenceType Begin:\n"
                                     "String too long (max. 50)\n"
                                     "--- in XmlreferenceType End\n")));
}

template <typename C>
void checkCopies()
{
    const QString full = xmlWith<C>(255);
    auto source = commandWith<C>(255);
    source.setOrderDef(envelope(QStringLiteral("host")));
    C copy(source);
    C assigned;
    assigned = source;
    for (const C* other : {&copy, &assigned}) {
        QCOMPARE(written(*other, tagOf<C>()), full);
        QVERIFY(other->orderDef() != source.orderDef());
        QVERIFY(&other->cmdReference() != &source.cmdReference());
        for (const Slot<C>& slot : slotsOf<C>())
            QVERIFY(slot.get(*other) != slot.get(source));
    }
    source.reset();
    for (const C* other : {&copy, &assigned}) {
        QCOMPARE(written(*other, tagOf<C>()), full);
        QCOMPARE(other->orderDef()->orderSender(), QStringLiteral("host"));
    }
    const C& same = copy;
    copy = same;
    QCOMPARE(written(copy, tagOf<C>()), full);
    QCOMPARE(copy.orderDef()->orderSender(), QStringLiteral("host"));

    C faulty;
    const QString error = faulty.syntaxError();
    QCOMPARE(C(faulty).mySyntaxError(), error);
    copy = faulty;
    QCOMPARE(copy.mySyntaxError(), error);
    verifyEmpty(copy);
}

template <typename C>
void checkAssignments()
{
    // Every slot and the envelope: present and absent on either side, alone and among others.
    const QList<int> presences = {0,   1,   2,   4,   8,   16,  32,  64,  128, 256,
                                  511, 510, 509, 507, 503, 495, 479, 447, 383, 255};
    const auto filled = [](int presence, const QString& name) {
        auto command = commandWith<C>(presence & 255, name);
        if (presence & 256)
            command.setOrderDef(envelope(name));
        command.setCmdReference(reference(name));
        return command;
    };
    for (const int after : presences) {
        const C source = filled(after, QStringLiteral("New"));
        const QString xml =
            xmlWith<C>(after & 255, QStringLiteral("New"), QStringLiteral("<Reference>New</Reference>"));
        for (const int before : presences) {
            C target = filled(before, QStringLiteral("Old"));
            target = source;
            QCOMPARE(filledSlots(target), after & 255);
            QCOMPARE(written(target, tagOf<C>()), xml);
            QCOMPARE(target.hasOrderDef(), (after & 256) != 0);
            if (target.hasOrderDef())
                QCOMPARE(target.orderDef()->orderSender(), QStringLiteral("New"));
        }
    }
}

template <typename C>
void checkReset()
{
    auto used = commandWith<C>(255, QString());
    used.setOrderDef(envelope(QStringLiteral("host")));
    QVERIFY(!used.syntaxError().isEmpty());
    used.reset();
    QCOMPARE(used.mySyntaxError(), QString());
    verifyEmpty(used);
    QCOMPARE(readError(used, command<C>(slotsOf<C>()[7].read() + referenceXml)), QString());
    QVERIFY(used.isValid());
    QCOMPARE(written(used, tagOf<C>()), xmlWith<C>(128));
}

template <typename C>
void checkUseAfterFailedRead()
{
    C failed;
    QCOMPARE(readError(failed, QStringLiteral("<%1>\n%2\n</%1>").arg(tagOf<C>(), slotsOf<C>()[3].read())),
             QStringLiteral("in XmlCmd%1 (line 3, column 9): Unexpected token \"EndElement\".").arg(tagOf<C>()));
    QCOMPARE(filledSlots(failed), 8);
    QVERIFY(!failed.isValid());
    QCOMPARE(failed.syntaxError(), block<C>(referenceProblem));
    const QString held = xmlWith<C>(8, QStringLiteral("First"), noReferenceXml);
    QCOMPARE(written(failed, tagOf<C>()), held);
    QCOMPARE(written(C(failed), tagOf<C>()), held);
    failed.setCmdReference(reference(QStringLiteral("42")));
    QVERIFY(failed.isValid());
    failed.reset();
    verifyEmpty(failed);
    QCOMPARE(readError(failed, command<C>(slotsOf<C>()[4].read() + referenceXml)), QString());
    QVERIFY(failed.isValid());

    // An object whose reading fails is held as far as it was read.
    for (int i = 0; i < slotCount; ++i) {
        const Slot<C>& slot = slotsOf<C>()[i];
        const QString version =
            slot.form.contains(QLatin1String("<%1 version")) ? QStringLiteral(" version=\"1.0\"") : QString();
        const QString xml =
            QStringLiteral("<%1>\n<%2%3><Other></Other></%2></%1>").arg(tagOf<C>(), QLatin1String(slot.tag), version);
        C broken;
        const QString error = readError(broken, xml);
        const qint64 column = QString::fromLatin1(slot.tag).size() + version.size() + 2 + 7;
        const QString message = qstrcmp(slot.className, "XmlStationType") == 0
            ? QStringLiteral("Unexpected token \"StartElement\": Other")
            : QStringLiteral("Unexpected element \"Other\"");
        QCOMPARE(error,
                 QStringLiteral("in %1 (line 2, column %2): %3.")
                     .arg(QLatin1String(slot.className), QString::number(column), message));
        QCOMPARE(filledSlots(broken), 1 << i);
    }
}

template <typename C>
void checkReaderErrors()
{
    const QString tag = tagOf<C>();
    const QString start = QStringLiteral("<%1>").arg(tag);
    const QString object = slotsOf<C>()[2].read();
    const auto own = [&](qint64 line, qint64 column, const char* message) {
        return QStringLiteral("in XmlCmd%1 (line %2, column %3): %4.")
            .arg(tag, QString::number(line), QString::number(column), QLatin1String(message));
    };
    C one;
    QCOMPARE(readError(one, start + QStringLiteral("\n</") + tag + QLatin1Char('>')),
             own(2, 9, "Unexpected token \"EndElement\""));
    QCOMPARE(readError(one, start + QStringLiteral("\n\n  <Receivers/></") + tag + QLatin1Char('>')),
             own(3, 14, "Unexpected element \"Receivers\""));
    // The envelope is not for the command to read.
    QCOMPARE(readError(one, start + QStringLiteral("\n<ORDER_DEF></ORDER_DEF></") + tag + QLatin1Char('>')),
             own(2, 11, "Unexpected element \"ORDER_DEF\""));
    QCOMPARE(readError(one,
                       start + object + QStringLiteral("\n<Receiver></Receiver>") + referenceXml
                           + QStringLiteral("</%1>").arg(tag)),
             own(2, 10, "Unexpected element \"Receiver\""));
    // A failing reference, in its own words.
    QCOMPARE(
        readError(one, start + object + QStringLiteral("\n<Reference>r<x></x></Reference></") + tag + QLatin1Char('>')),
        QStringLiteral("in XmlreferenceType (line 2, column 15): Unexpected token \"StartElement\"."));
    QCOMPARE(one.cmdReference().reference(), QStringLiteral("r"));
    // The stream's own errors.
    QCOMPARE(readError(one, start + object), QStringLiteral("Premature end of document."));
    QCOMPARE(filledSlots(one), 4);
    QCOMPARE(readError(one, start + object + referenceXml + QStringLiteral("</Other>")),
             QStringLiteral("Opening and ending tag mismatch."));
}

template <typename C>
void checkPositions()
{
    const QString tag = tagOf<C>();
    const QString xml = QStringLiteral("<%1>\n%2%3</%1>").arg(tag, slotsOf<C>()[2].read(), referenceXml);
    C one;

    QXmlStreamReader fresh(xml);
    one.processXml(fresh, tag);
    QVERIFY(fresh.errorString().startsWith(QStringLiteral("in XmlCmd%1 (line 1, column ").arg(tag)));
    QVERIFY(fresh.errorString().endsWith(QLatin1String("): Unexpected token \"StartDocument\".")));

    QXmlStreamReader atStart(xml);
    atStart.readNext();
    one.processXml(atStart, tag);
    QCOMPARE(atStart.errorString(),
             QStringLiteral("in XmlCmd%1 (line 1, column 8): Unexpected element \"%1\".").arg(tag));

    // There is no check of the position: on characters inside, reading goes on.
    QXmlStreamReader onText(xml);
    onText.readNextStartElement();
    onText.readNext();
    QVERIFY(onText.isCharacters());
    one.processXml(onText, tag);
    QCOMPARE(onText.errorString(), QString());
    QVERIFY(one.isValid());
    one.processXml(onText, tag);
    const qint64 column = slotsOf<C>()[2].read().size() + referenceXml.size() + 9;
    QCOMPARE(onText.errorString(),
             QStringLiteral("in XmlCmd%1 (line 2, column %2): Unexpected token \"EndDocument\".").arg(tag).arg(column));

    // The end tag is compared with the tag given.
    QXmlStreamReader otherTag(xml);
    otherTag.readNextStartElement();
    one.processXml(otherTag, tag.toLower());
    QCOMPARE(otherTag.errorString(),
             QStringLiteral("in XmlCmd%1 (line 2, column %2): Unexpected token \"EndElement\".").arg(tag).arg(column));
    QCOMPARE(filledSlots(one), 4);
    QXmlStreamReader anyTag(QString(xml).replace(tag, QStringLiteral("Any")));
    anyTag.readNextStartElement();
    one.processXml(anyTag, QStringLiteral("Any"));
    QCOMPARE(anyTag.errorString(), QString());

    QXmlStreamReader inDocument(QStringLiteral("<Doc>%1<Next/></Doc>").arg(xml));
    inDocument.readNextStartElement();
    inDocument.readNextStartElement();
    one.processXml(inDocument, tag);
    QVERIFY(inDocument.readNextStartElement());
    QCOMPARE(inDocument.name().toString(), QStringLiteral("Next"));
}

template <typename C>
void checkGate(const QStringList& children, bool accepted)
{
    const QString tag = tagOf<C>();
    const QString& next = children.last();
    QString xml = QStringLiteral("<%1>\n").arg(tag);
    int filled = 0;
    bool referenced = false;
    const auto add = [&](const QString& child) {
        if (child == QLatin1String("Reference")) {
            xml += referenceXml;
            referenced = true;
        }
        for (int i = 0; i < slotCount; ++i) {
            if (child == QLatin1String(slotsOf<C>()[i].tag)) {
                xml += slotsOf<C>()[i].read();
                filled |= 1 << i;
            }
        }
        xml += QLatin1Char('\n');
    };
    for (int i = 0; i + 1 < children.size(); ++i)
        add(children[i]);

    const qint64 line = children.size() + 1;
    QString message;
    qint64 errorLine = line;
    qint64 column = next.size() + 2;
    if (next == QLatin1String("End")) {
        xml += QStringLiteral("</%1>").arg(tag);
        column = 9;
        if (!accepted)
            message = QStringLiteral("Unexpected token \"EndElement\"");
    } else if (accepted) {
        add(next);
        xml += QStringLiteral("<Stop></Stop></%1>").arg(tag); // so far it is read
        errorLine = line + 1;
        column = 6;
        message = QStringLiteral("Unexpected element \"Stop\"");
    } else {
        xml += QStringLiteral("<%1></%1></%2>").arg(next, tag);
        message = QStringLiteral("Unexpected element \"%1\"").arg(next);
    }

    C one;
    QCOMPARE(readError(one, xml),
             message.isEmpty() ? QString()
                               : QStringLiteral("in XmlCmd%1 (line %2, column %3): %4.")
                                     .arg(tag, QString::number(errorLine), QString::number(column), message));
    QCOMPARE(filledSlots(one), filled);
    QCOMPARE(one.cmdReference().reference(), referenced ? QStringLiteral("42") : QString());
}

} // namespace

class CreatedeleteTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void interface();
    void newCommand_data() { commands(); }
    void newCommand();
    void slotAccessors_data() { commands(); }
    void slotAccessors();
    void referenceAndEnvelope_data() { commands(); }
    void referenceAndEnvelope();
    void roundTrips_data() { commands(); }
    void roundTrips();
    void tokensIgnored_data() { commands(); }
    void tokensIgnored();
    void gates_data();
    void gates();
    void deleteGates_data();
    void deleteGates();
    void readingResets_data() { commands(); }
    void readingResets();
    void counts_data() { commands(); }
    void counts();
    void judgement_data() { commands(); }
    void judgement();
    void copies_data() { commands(); }
    void copies();
    void assignments_data() { commands(); }
    void assignments();
    void reset_data() { commands(); }
    void reset();
    void useAfterFailedRead_data() { commands(); }
    void useAfterFailedRead();
    void readerErrors_data() { commands(); }
    void readerErrors();
    void positions_data() { commands(); }
    void positions();
    void signalPath();
    void objectsInside();
    void namesToDelete();

private:
    static void commands();
};

void CreatedeleteTest::commands()
{
    QTest::addColumn<bool>("creates");
    QTest::newRow("Create") << true;
    QTest::newRow("Delete") << false;
}

void CreatedeleteTest::interface()
{
    checkInterface<Create>();
    checkInterface<Delete>();
}

void CreatedeleteTest::newCommand()
{
    QFETCH(bool, creates);
    creates ? checkNewCommand<Create>() : checkNewCommand<Delete>();
}

void CreatedeleteTest::slotAccessors()
{
    QFETCH(bool, creates);
    creates ? checkSlotAccessors<Create>() : checkSlotAccessors<Delete>();
}

void CreatedeleteTest::referenceAndEnvelope()
{
    QFETCH(bool, creates);
    creates ? checkReferenceAndEnvelope<Create>() : checkReferenceAndEnvelope<Delete>();
}

void CreatedeleteTest::roundTrips()
{
    QFETCH(bool, creates);
    creates ? checkRoundTrips<Create>() : checkRoundTrips<Delete>();
}

void CreatedeleteTest::tokensIgnored()
{
    QFETCH(bool, creates);
    creates ? checkTokensIgnored<Create>() : checkTokensIgnored<Delete>();
}

namespace {

// What may follow the children before: "+" accepted, "x" refused. "End" is the command's end tag.
void addGates(const char* next, const char* before, const char* outcomes)
{
    const QStringList tags = QString::fromLatin1(next).split(QLatin1Char(' '));
    const QStringList beforeTags = QString::fromLatin1(before).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QCOMPARE(tags.size(), static_cast<int>(qstrlen(outcomes)));
    for (int i = 0; i < tags.size(); ++i) {
        QTest::newRow(qPrintable(QStringLiteral("(%1) then %2").arg(QString::fromLatin1(before), tags[i])))
            << (beforeTags + QStringList(tags[i])) << (outcomes[i] == '+');
    }
}

} // namespace

void CreatedeleteTest::gates_data()
{
    QTest::addColumn<QStringList>("children");
    QTest::addColumn<bool>("accepted");

    const auto add = [](const char* before, const char* outcomes) {
        addGates(
            "DeploymentArea AOI Emitter Receiver DF Station Path Device Reference SignalPath emitter Create Name End",
            before, outcomes);
    };
    add("", "+++++++++xxxxx");
    add("DeploymentArea", "xxxxxxxx+xxxxx");
    add("AOI", "xxxxxxxx+xxxxx");
    add("Emitter", "xxxxxxxx+xxxxx");
    add("Receiver", "xxxxxxxx+xxxxx");
    add("DF", "xxxxxxxx+xxxxx");
    add("Station", "xxxxxxxx+xxxxx");
    add("Path", "xxxxxxxx+xxxxx");
    add("Device", "xxxxxxxx+xxxxx");
    add("Reference", "xxxxxxxxxxxxxx");
    add("DeploymentArea Reference", "xxxxxxxxxxxxx+");
    add("AOI Reference", "xxxxxxxxxxxxx+");
    add("Emitter Reference", "xxxxxxxxxxxxx+");
    add("Receiver Reference", "xxxxxxxxxxxxx+");
    add("DF Reference", "xxxxxxxxxxxxx+");
    add("Station Reference", "xxxxxxxxxxxxx+");
    add("Path Reference", "xxxxxxxxxxxxx+");
    add("Device Reference", "xxxxxxxxxxxxx+");
}

void CreatedeleteTest::gates()
{
    QFETCH(QStringList, children);
    QFETCH(bool, accepted);
    checkGate<Create>(children, accepted);
}

void CreatedeleteTest::deleteGates_data()
{
    QTest::addColumn<QStringList>("children");
    QTest::addColumn<bool>("accepted");

    const auto add = [](const char* before, const char* outcomes) {
        addGates(
            "DeploymentArea AOI Emitter Receiver DF Device SignalPath Station Reference Path emitter Delete Name End",
            before, outcomes);
    };
    add("", "+++++++++xxxxx");
    add("DeploymentArea", "xxxxxxxx+xxxxx");
    add("AOI", "xxxxxxxx+xxxxx");
    add("Emitter", "xxxxxxxx+xxxxx");
    add("Receiver", "xxxxxxxx+xxxxx");
    add("DF", "xxxxxxxx+xxxxx");
    add("Device", "xxxxxxxx+xxxxx");
    add("SignalPath", "xxxxxxxx+xxxxx");
    add("Station", "xxxxxxxx+xxxxx");
    add("Reference", "xxxxxxxxxxxxxx");
    add("DeploymentArea Reference", "xxxxxxxxxxxxx+");
    add("AOI Reference", "xxxxxxxxxxxxx+");
    add("Emitter Reference", "xxxxxxxxxxxxx+");
    add("Receiver Reference", "xxxxxxxxxxxxx+");
    add("DF Reference", "xxxxxxxxxxxxx+");
    add("Device Reference", "xxxxxxxxxxxxx+");
    add("SignalPath Reference", "xxxxxxxxxxxxx+");
    add("Station Reference", "xxxxxxxxxxxxx+");
}

void CreatedeleteTest::deleteGates()
{
    QFETCH(QStringList, children);
    QFETCH(bool, accepted);
    checkGate<Delete>(children, accepted);
}

void CreatedeleteTest::readingResets()
{
    QFETCH(bool, creates);
    creates ? checkReadingResets<Create>() : checkReadingResets<Delete>();
}

void CreatedeleteTest::counts()
{
    QFETCH(bool, creates);
    creates ? checkCounts<Create>() : checkCounts<Delete>();
}

void CreatedeleteTest::judgement()
{
    QFETCH(bool, creates);
    creates ? checkJudgement<Create>() : checkJudgement<Delete>();
}

void CreatedeleteTest::copies()
{
    QFETCH(bool, creates);
    creates ? checkCopies<Create>() : checkCopies<Delete>();
}

void CreatedeleteTest::assignments()
{
    QFETCH(bool, creates);
    creates ? checkAssignments<Create>() : checkAssignments<Delete>();
}

void CreatedeleteTest::reset()
{
    QFETCH(bool, creates);
    creates ? checkReset<Create>() : checkReset<Delete>();
}

void CreatedeleteTest::useAfterFailedRead()
{
    QFETCH(bool, creates);
    creates ? checkUseAfterFailedRead<Create>() : checkUseAfterFailedRead<Delete>();
}

void CreatedeleteTest::readerErrors()
{
    QFETCH(bool, creates);
    creates ? checkReaderErrors<Create>() : checkReaderErrors<Delete>();
}

void CreatedeleteTest::positions()
{
    QFETCH(bool, creates);
    creates ? checkPositions<Create>() : checkPositions<Delete>();
}

void CreatedeleteTest::signalPath()
{
    // A create command that it wrote itself is refused; a delete command reads what it writes.
    const auto create = readFrom<Create>(command<Create>(slotsOf<Create>()[6].read() + referenceXml));
    const QString own = written(create, tagOf<Create>());
    QVERIFY(own.startsWith(QLatin1String("<Create><SignalPath version=\"1.0\"><Name>First</Name>")));
    QVERIFY(!own.contains(QLatin1String("<Path")));
    Create again;
    QCOMPARE(readError(again, own),
             QStringLiteral("in XmlCmdCreate (line 1, column 34): Unexpected element \"SignalPath\"."));
    QVERIFY(!again.hasSignalPath());

    const QString deleting =
        QStringLiteral("<Delete><SignalPath><All/></SignalPath><Reference>42</Reference></Delete>");
    const auto removal = readFrom<Delete>(deleting);
    QVERIFY(removal.hasSignalPath());
    QCOMPARE(written(removal, tagOf<Delete>()), deleting);
}

void CreatedeleteTest::objectsInside()
{
    // The versions that the objects refuse are refused here too.
    Create create;
    QCOMPARE(readError(create, QStringLiteral("<Create>\n<Emitter version=\"2.0\"></Emitter></Create>")),
             QStringLiteral("in XmlEmitterType (line 2, column 23): Version not supported: 2.0."));
    QVERIFY(create.hasEmitter());
    QCOMPARE(create.emitter()->version(), QStringLiteral("2.0"));
    // A station has no version.
    QCOMPARE(readError(create, QStringLiteral("<Create>\n<Station version=\"2.0\"><Name>S</Name></Station></Create>")),
             QStringLiteral("in XmlStationType (line 2, column 47): Unexpected token \"EndElement\": Station."));
    QCOMPARE(create.station()->objName()->objName(), QStringLiteral("S"));
    QVERIFY(!create.hasEmitter());
    // Names that the command knows mean something else inside an object.
    QString inner = slotsOf<Create>()[5].read();
    inner.replace(QLatin1String("<Name>First</Name>"),
                  QLatin1String("<Name>First</Name>") + slotsOf<Create>()[6].writtenXml());
    const auto station = readFrom<Create>(command<Create>(inner + referenceXml));
    QVERIFY(station.station()->hasSignalPath());
    QVERIFY(!station.hasSignalPath());
    QCOMPARE(written(station, tagOf<Create>()), command<Create>(inner + referenceXml));
}

void CreatedeleteTest::namesToDelete()
{
    auto all = readFrom<Delete>(QStringLiteral("<Delete><Emitter><All/></Emitter><Reference>42</Reference></Delete>"));
    QVERIFY(all.emitter()->all());
    QVERIFY(all.isValid());
    auto one = readFrom<Delete>(QStringLiteral("<Delete><DF><Name>DF 1</Name></DF><Reference>42</Reference></Delete>"));
    QVERIFY(!one.df()->all());
    QCOMPARE(one.df()->objName()->objName(), QStringLiteral("DF 1"));

    // A reference inside means nothing; the command's own is still needed.
    const auto inside = readFrom<Delete>(
        QStringLiteral("<Delete><AOI><Reference>1</Reference><All/></AOI><Reference>2</Reference></Delete>"));
    QCOMPARE(inside.cmdReference().reference(), QStringLiteral("2"));
    Delete without;
    QCOMPARE(readError(without, QStringLiteral("<Delete>\n<AOI><Reference>1</Reference><All/></AOI></Delete>")),
             QStringLiteral("in XmlCmdDelete (line 2, column 50): Unexpected token \"EndElement\"."));

    // Names that nobody chose.
    Delete fresh;
    fresh.setStation(XmlNameAllType());
    fresh.setCmdReference(reference(QStringLiteral("r")));
    QVERIFY(!fresh.isValid());
    QCOMPARE(fresh.syntaxError(),
             block<Delete>(QStringLiteral("+++ in XmlNameAllType Begin:\n"
                                          "Uninitialized.\n"
                                          "--- in XmlNameAllType End\n")));
    QCOMPARE(written(fresh, tagOf<Delete>()),
             QStringLiteral("<Delete><Station><All/></Station><Reference>r</Reference></Delete>"));
}

QTEST_APPLESS_MAIN(CreatedeleteTest)
#include "createdelete_test.moc"
