#include "objects/gatedchild.h"
#include "support/elementtest.h"

#include <arvxml/signalpaths.h>

#include <memory>
#include <type_traits>

using namespace ArvXml;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;
using ObjectTest::block;
using ObjectTest::HasSetVersion;
using ObjectTest::HasVersion;
using ObjectTest::ShowsSupportsVersion;
using ObjectTest::words;
using Child = ObjectTest::GatedChild;

namespace {

/// One of the four elements.
struct Kind {
    const char* className = nullptr;
    std::unique_ptr<IXmlElement> (*make)() = nullptr;
    bool refusesOtherVersions = false;
    QStringList required;
    QString defaultProblems;
    QVector<Child> children; // in the order of writing

    const Child& child(const QString& tag) const
    {
        for (const Child& child : children) {
            if (child.tag == tag)
                return child;
        }
        qFatal("no such child: %s", qPrintable(tag));
    }

    QStringList tags() const
    {
        QStringList tags;
        for (const Child& child : children)
            tags.append(child.tag);
        return tags;
    }

    /// The position in \a tags of the first child that its gate refuses; the size when none is.
    int firstRefused(const QStringList& tags) const
    {
        for (int i = 0; i < tags.size(); ++i) {
            for (int before = 0; before < i; ++before) {
                if (child(tags.at(i)).refusedAfter.contains(tags.at(before)))
                    return i;
            }
        }
        return int(tags.size());
    }

    /// An element of these children, each on a line of its own, from the second line on.
    QString xml(const QStringList& tags) const
    {
        QString xml = QStringLiteral("<E>\n");
        for (const QString& tag : tags)
            xml += child(tag).xml + QLatin1Char('\n');
        return xml + QStringLiteral("</E>");
    }

    QString unexpectedElement(qint64 line, qint64 column, const QString& tag) const
    {
        return QStringLiteral("in %1 (line %2, column %3): Unexpected element \"%4\".")
            .arg(QLatin1String(className))
            .arg(line)
            .arg(column)
            .arg(tag);
    }
    QString unexpectedEnd(qint64 line) const
    {
        return QStringLiteral("in %1 (line %2, column 4): Unexpected token \"EndElement\".")
            .arg(QLatin1String(className))
            .arg(line);
    }

    /// What reading xml() is to report.
    QString error(const QStringList& tags) const
    {
        const int refused = firstRefused(tags);
        if (refused < tags.size()) {
            const int startTag = int(child(tags.at(refused)).xml.indexOf(QLatin1Char('>')) + 1);
            return unexpectedElement(refused + 2, startTag, tags.at(refused));
        }
        for (const QString& tag : required) {
            if (!tags.contains(tag))
                return unexpectedEnd(tags.size() + 2);
        }
        return QString();
    }

    /// How an element that was new and has read these children is written.
    QString holding(const QStringList& tags, const QString& version = QStringLiteral("1.0")) const
    {
        QString xml = QStringLiteral("<E version=\"%1\">").arg(version);
        for (const Child& child : children)
            xml += tags.contains(child.tag) ? child.written : child.byDefault;
        return xml + QStringLiteral("</E>");
    }
};

template <typename T>
std::unique_ptr<IXmlElement> make()
{
    return std::make_unique<T>();
}

const QString freqXml = QStringLiteral("<Frequency unit=\"kHz\">2400</Frequency>");
const QString freqWritten = QStringLiteral("<Frequency version=\"1.0\" unit=\"kHz\">2400.000000</Frequency>");
const QString freqDefault = QStringLiteral("<Frequency version=\"1.0\" unit=\"MHz\">-9.900000</Frequency>");
const QString powerXml = QStringLiteral("<TxPower unit=\"W\">10</TxPower>");
const QString heightXml = QStringLiteral("<AntennaHeight unit=\"m\">25</AntennaHeight>");
const QString heightWritten = QStringLiteral("<AntennaHeight version=\"1.0\" unit=\"m\">25</AntennaHeight>");
const QString heightDefault = QStringLiteral("<AntennaHeight version=\"1.0\" unit=\"m\">0</AntennaHeight>");
const QString thresholdXml = QStringLiteral("<RxThreshold unit=\"dBm\">-80</RxThreshold>");
const QString thresholdWritten =
    QStringLiteral("<RxThreshold version=\"1.0\" unit=\"dBm\">-80.000000000000000</RxThreshold>");
const QString thresholdDefault =
    QStringLiteral("<RxThreshold version=\"1.0\" unit=\"dBm\">-99999.998999999996158</RxThreshold>");

const Kind& signalPath()
{
    static const Kind kind = {
        "XmlSignalPathType",
        make<XmlSignalPathType>,
        true,
        words("Name SINAD Device"),
        block("XmlObjNameType", QStringLiteral("Object name too short (min. 1).")) + QLatin1Char('\n')
            + block("XmlSinadType", QStringLiteral("Illegal frequency.")) + QLatin1Char('\n')
            + block("XmlDeviceListType", QStringLiteral("Too few devices (min. 1)")),
        {
            {QStringLiteral("Name"), words("Name SINAD Device AntHgtMap CabLenMap"),
             QStringLiteral("<Name>Path 1</Name>"), QStringLiteral("<Name>Path 1</Name>"),
             QStringLiteral("<Name></Name>")},
            {QStringLiteral("SINAD"), words("SINAD Device AntHgtMap CabLenMap"), QStringLiteral("<SINAD>12.5</SINAD>"),
             QStringLiteral("<SINAD version=\"1.0\">12.500000</SINAD>"),
             QStringLiteral("<SINAD version=\"1.0\">0.000000</SINAD>")},
            {QStringLiteral("Device"), words("Device AntHgtMap CabLenMap"),
             QStringLiteral("<Device><Device><DeviceCategory>Cable</DeviceCategory><Name>C 1</Name>"
                            "<Frequencies><Frequency unit=\"MHz\">100</Frequency></Frequencies>"
                            "<Attenuations><Decibel>3</Decibel></Attenuations></Device></Device>"),
             QStringLiteral("<Device version=\"1.0\"><Device version=\"1.0\"><DeviceCategory>Cable</DeviceCategory>"
                            "<Name>C 1</Name><Frequencies version=\"1.0\">"
                            "<Frequency version=\"1.0\" unit=\"MHz\">100.000000</Frequency></Frequencies>"
                            "<Attenuations version=\"1.0\"><Decibel version=\"1.0\" unit=\"dB\">3.000000</Decibel>"
                            "</Attenuations></Device></Device>"),
             QStringLiteral("<Device version=\"1.0\"/>")},
            {QStringLiteral("AntHgtMap"), words("AntHgtMap CabLenMap"),
             QStringLiteral("<AntHgtMap><Map><Key>1</Key><Value unit=\"m\">30</Value></Map></AntHgtMap>"),
             QStringLiteral("<AntHgtMap version=\"1.0\"><Map version=\"1.0\"><Key version=\"1.0\" unit=\"m\">30</Key>"
                            "<Value version=\"1.0\" unit=\"m\">30</Value></Map></AntHgtMap>"),
             QString()},
            {QStringLiteral("CabLenMap"), words("CabLenMap"),
             QStringLiteral("<CabLenMap><Map><Key>1</Key><Value unit=\"m\">45</Value></Map></CabLenMap>"),
             QStringLiteral("<CabLenMap version=\"1.0\"><Map version=\"1.0\"><Key version=\"1.0\" unit=\"m\">45</Key>"
                            "<Value version=\"1.0\" unit=\"m\">45</Value></Map></CabLenMap>"),
             QString()},
        },
    };
    return kind;
}

const Kind& txParam()
{
    static const Kind kind = {
        "XmlTxParamType",
        make<XmlTxParamType>,
        false,
        words("Frequency TxPower AntennaHeight Bandwidth"),
        block("XmlFreqType", QStringLiteral("Illegal frequency.")) + QLatin1Char('\n')
            + block("XmlBandwidthType", QStringLiteral("XmlDfPrecisionType: Illegal precision.")),
        {
            {QStringLiteral("Frequency"), words("Frequency TxPower AntennaHeight Bandwidth"), freqXml, freqWritten,
             freqDefault},
            {QStringLiteral("TxPower"), words("TxPower AntennaHeight Bandwidth"), powerXml,
             QStringLiteral("<TxPower version=\"1.0\" unit=\"W\">10.000000000000000</TxPower>"),
             QStringLiteral("<TxPower version=\"1.0\" unit=\"W\">-9.900000000000000</TxPower>")},
            {QStringLiteral("AntennaHeight"), words("AntennaHeight Bandwidth"), heightXml, heightWritten,
             heightDefault},
            {QStringLiteral("Bandwidth"), words("Bandwidth"), QStringLiteral("<Bandwidth unit=\"kHz\">12</Bandwidth>"),
             QStringLiteral("<Bandwidth version=\"1.0\" unit=\"kHz\">12</Bandwidth>"),
             QStringLiteral("<Bandwidth version=\"1.0\" unit=\"kHz\">-1</Bandwidth>")},
        },
    };
    return kind;
}

const Kind& rxParam()
{
    static const Kind kind = {
        "XmlRxParamType",
        make<XmlRxParamType>,
        false,
        words("AntennaHeight RxThreshold"),
        block("XmlFieldstrengthType", QStringLiteral("Illegal fieldstrength.")),
        {
            {QStringLiteral("AntennaHeight"), words("AntennaHeight RxThreshold"), heightXml, heightWritten,
             heightDefault},
            {QStringLiteral("RxThreshold"), words("RxThreshold"), thresholdXml, thresholdWritten, thresholdDefault},
        },
    };
    return kind;
}

const Kind& interlink()
{
    static const Kind kind = {
        "XmlStationInterlinkType",
        make<XmlStationInterlinkType>,
        false,
        words("Frequency TxPower RxThreshold AntennaHeight"),
        block("XmlFreqType", QStringLiteral("Illegal frequency.")) + QLatin1Char('\n')
            + block("XmlFieldstrengthType", QStringLiteral("Illegal fieldstrength.")),
        {
            {QStringLiteral("Frequency"), words("Frequency TxPower RxThreshold AntennaHeight"), freqXml, freqWritten,
             freqDefault},
            // read under one tag, written under another
            {QStringLiteral("TxPower"), words("TxPower RxThreshold AntennaHeight"), powerXml,
             QStringLiteral("<Power version=\"1.0\" unit=\"W\">10.000000000000000</Power>"),
             QStringLiteral("<Power version=\"1.0\" unit=\"W\">-9.900000000000000</Power>")},
            {QStringLiteral("RxThreshold"), words("RxThreshold AntennaHeight"), thresholdXml, thresholdWritten,
             thresholdDefault},
            {QStringLiteral("AntennaHeight"), words("AntennaHeight"), heightXml, heightWritten, heightDefault},
        },
    };
    return kind;
}

using GetKind = const Kind& (*)();

const GetKind kinds[] = {signalPath, txParam, rxParam, interlink};

const QString tagE = QStringLiteral("E");

// Children

XmlObjNameType name(const QString& text)
{
    XmlObjNameType name;
    name.setObjName(text);
    return name;
}

XmlSinadType sinad(double value)
{
    XmlSinadType sinad;
    sinad.setSinad(value);
    return sinad;
}

XmlDeviceListType devices(const QString& deviceName)
{
    XmlDeviceType device;
    device.setObjName(name(deviceName));
    XmlDeviceListType list;
    list.setDeviceList({&device});
    return list;
}

XmlMapListType map(int value)
{
    XmlLengthType length;
    length.setLength(value);
    XmlMapType entry;
    entry.setValue(length);
    XmlMapListType list;
    list.setMapList({&entry});
    return list;
}

int valueOf(const XmlMapListType* map)
{
    return map->mapList().first()->value()->length();
}

XmlFreqType freq(double value)
{
    XmlFreqType freq;
    freq.setFrequency_MHz(value);
    return freq;
}

XmlPowerType power(double value)
{
    XmlPowerType power;
    power.setPower(value);
    return power;
}

XmlLengthType length(int value)
{
    XmlLengthType length;
    length.setLength(value);
    return length;
}

XmlBandwidthType bandwidth(double value)
{
    XmlBandwidthType bandwidth;
    bandwidth.setBandwidth(value);
    return bandwidth;
}

XmlFieldstrengthType threshold(double value)
{
    XmlFieldstrengthType threshold;
    threshold.setFieldstrength(value);
    return threshold;
}

/// A signal path with the two maps, if asked for.
XmlSignalPathType pathWith(bool ant, bool cab, int factor = 1)
{
    XmlSignalPathType path;
    path.setObjName(name(QStringLiteral("P%1").arg(factor)));
    path.setSinad(sinad(factor));
    path.setDevices(devices(QStringLiteral("D%1").arg(factor)));
    if (ant)
        path.setAnt(map(10 * factor));
    if (cab)
        path.setCab(map(20 * factor));
    return path;
}

} // namespace

Q_DECLARE_METATYPE(GetKind)

class SignalpathsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatUsersMayCall()
    {
        static_assert(HasVersion<XmlSignalPathType>::value && HasSetVersion<XmlSignalPathType>::value);
        static_assert(HasVersion<XmlTxParamType>::value && HasSetVersion<XmlTxParamType>::value);
        static_assert(HasVersion<XmlRxParamType>::value && HasSetVersion<XmlRxParamType>::value);
        static_assert(!HasVersion<XmlStationInterlinkType>::value);
        static_assert(!HasSetVersion<XmlStationInterlinkType>::value);
        static_assert(!ShowsSupportsVersion<XmlSignalPathType>::value);
        static_assert(!ShowsSupportsVersion<XmlTxParamType>::value);
        static_assert(!ShowsSupportsVersion<XmlRxParamType>::value);
        static_assert(ShowsSupportsVersion<XmlStationInterlinkType>::value);
        static_assert(ShowsSupportsVersion<const XmlStationInterlinkType>::value);

        static_assert(std::is_base_of_v<XmlElementBase, XmlSignalPathType>);
        static_assert(std::is_base_of_v<XmlElementBase, XmlTxParamType>);
        static_assert(std::is_base_of_v<XmlElementBase, XmlRxParamType>);
        static_assert(std::is_base_of_v<XmlElementBase, XmlStationInterlinkType>);

        const XmlSignalPathType path;
        static_assert(std::is_same_v<decltype(path.objName()), const XmlObjNameType*>);
        static_assert(std::is_same_v<decltype(path.sinad()), const XmlSinadType*>);
        static_assert(std::is_same_v<decltype(path.devices()), const XmlDeviceListType*>);
        static_assert(std::is_same_v<decltype(path.ant()), const XmlMapListType*>);
        static_assert(std::is_same_v<decltype(path.cab()), const XmlMapListType*>);
        static_assert(std::is_same_v<decltype(path.version()), QString>);
        const XmlTxParamType tx;
        static_assert(std::is_same_v<decltype(tx.frequency()), const XmlFreqType*>);
        static_assert(std::is_same_v<decltype(tx.txPower()), const XmlPowerType*>);
        static_assert(std::is_same_v<decltype(tx.antennaHeight()), const XmlLengthType*>);
        static_assert(std::is_same_v<decltype(tx.bandwidth()), const XmlBandwidthType*>);
        static_assert(std::is_same_v<decltype(tx.version()), QString>);
        const XmlRxParamType rx;
        static_assert(std::is_same_v<decltype(rx.antennaHeight()), const XmlLengthType*>);
        static_assert(std::is_same_v<decltype(rx.rxThres()), const XmlFieldstrengthType*>);
        static_assert(std::is_same_v<decltype(rx.version()), QString>);
        const XmlStationInterlinkType link;
        static_assert(std::is_same_v<decltype(link.freq()), const XmlFreqType*>);
        static_assert(std::is_same_v<decltype(link.power()), const XmlPowerType*>);
        static_assert(std::is_same_v<decltype(link.rxThresh()), const XmlFieldstrengthType*>);
        static_assert(std::is_same_v<decltype(link.antHgt()), const XmlLengthType*>);
        static_assert(std::is_same_v<decltype(link.supportsVersion()), bool>);
        QVERIFY(link.supportsVersion());
    }

    // New, filled and reset

    void kinds_data()
    {
        QTest::addColumn<GetKind>("get");
        for (const GetKind get : kinds)
            QTest::newRow(get().className) << get;
    }

    void newAndReset_data() { kinds_data(); }
    void newAndReset()
    {
        QFETCH(GetKind, get);
        const Kind& kind = get();
        const auto element = kind.make();
        const auto check = [&] {
            QCOMPARE(written(*element, tagE), kind.holding({}));
            QVERIFY(!element->isValid());
            QCOMPARE(element->syntaxError(), block(kind.className, kind.defaultProblems));
        };
        check();
        QCOMPARE(readError(*element, kind.xml(kind.tags())), QString());
        QVERIFY(element->isValid());
        element->reset();
        check();

        QVERIFY(readError(*element, QStringLiteral("<E version=\"2.0\">%1<x/></E>").arg(kind.children.first().xml))
                    .startsWith(QStringLiteral("in ") + QLatin1String(kind.className)));
        element->reset();
        check();
    }

    void aSignalPath()
    {
        XmlSignalPathType path;
        const auto* heldName = path.objName();
        const auto* heldSinad = path.sinad();
        const auto* heldDevices = path.devices();
        QVERIFY(heldName && heldSinad && heldDevices);
        QCOMPARE(heldName->objName(), QString());
        QCOMPARE(heldSinad->sinad(), 0.0);
        QVERIFY(heldDevices->deviceList().isEmpty());
        QVERIFY(!path.hasAnt());
        QVERIFY(!path.ant());
        QVERIFY(!path.hasCab());
        QVERIFY(!path.cab());
        QCOMPARE(path.version(), QStringLiteral("1.0"));

        path.setAnt(map(10));
        QVERIFY(path.hasAnt());
        QVERIFY(!path.hasCab());
        path.setCab(map(20));
        QVERIFY(path.hasCab());
        const auto* heldAnt = path.ant();
        const auto* heldCab = path.cab();
        QCOMPARE(valueOf(heldAnt), 10);
        QCOMPARE(valueOf(heldCab), 20);

        XmlMapListType heights = map(11);
        path.setAnt(heights);
        heights.reset();
        path.setCab(map(21));
        path.setObjName(name(QStringLiteral("P")));
        path.setSinad(sinad(12.5));
        path.setDevices(devices(QStringLiteral("D")));
        path.setVersion(QStringLiteral("7"));
        const auto check = [&] {
            QCOMPARE(path.objName(), heldName); // all assigned in place
            QCOMPARE(path.sinad(), heldSinad);
            QCOMPARE(path.devices(), heldDevices);
            QCOMPARE(path.ant(), heldAnt);
            QCOMPARE(path.cab(), heldCab);
            QCOMPARE(path.objName()->objName(), QStringLiteral("P"));
            QCOMPARE(path.sinad()->sinad(), 12.5);
            QCOMPARE(path.devices()->deviceList().size(), 1);
            QCOMPARE(path.devices()->deviceList().first()->objName()->objName(), QStringLiteral("D"));
            QCOMPARE(valueOf(path.ant()), 11);
            QCOMPARE(valueOf(path.cab()), 21);
            QCOMPARE(path.version(), QStringLiteral("7"));
        };
        check();
        // Its own children are safe to hand over.
        path.setObjName(*path.objName());
        path.setSinad(*path.sinad());
        path.setDevices(*path.devices());
        path.setAnt(*path.ant());
        path.setCab(*path.cab());
        const XmlSignalPathType& self = path;
        path = self;
        check();

        path.reset();
        QCOMPARE(path.objName(), heldName); // reset in place
        QCOMPARE(path.sinad(), heldSinad);
        QCOMPARE(path.devices(), heldDevices);
        QVERIFY(!path.hasAnt());
        QVERIFY(!path.ant());
        QVERIFY(!path.hasCab());
        QVERIFY(!path.cab());
        QCOMPARE(path.version(), QStringLiteral("1.0"));
        QCOMPARE(written(path, tagE), signalPath().holding({}));

        // One map may be handed to the other.
        path.setAnt(map(10));
        path.setCab(*path.ant());
        path.setAnt(map(11));
        QCOMPARE(valueOf(path.cab()), 10);
    }

    // Every set of maps is assigned to every other.
    void assigningASignalPath_data()
    {
        QTest::addColumn<bool>("ant");
        QTest::addColumn<bool>("cab");
        QTest::addColumn<bool>("newAnt");
        QTest::addColumn<bool>("newCab");
        for (int i = 0; i < 16; ++i) {
            QTest::addRow("from %d to %d", i / 4, i % 4) << bool(i & 1) << bool(i & 2) << bool(i & 4) << bool(i & 8);
        }
    }
    void assigningASignalPath()
    {
        QFETCH(bool, ant);
        QFETCH(bool, cab);
        QFETCH(bool, newAnt);
        QFETCH(bool, newCab);
        XmlSignalPathType source = pathWith(newAnt, newCab, 2);
        source.setVersion(QStringLiteral("2.0"));
        const QString xml = written(source, tagE);
        XmlSignalPathType path = pathWith(ant, cab);
        const auto* heldAnt = path.ant();
        const auto* heldCab = path.cab();
        const auto* heldName = path.objName();
        const auto* heldSinad = path.sinad();
        const auto* heldDevices = path.devices();
        path = source;
        const XmlSignalPathType copy(source);
        for (const XmlSignalPathType* other : {&copy, static_cast<const XmlSignalPathType*>(&path)}) {
            QCOMPARE(written(*other, tagE), xml);
            QCOMPARE(other->version(), QStringLiteral("2.0"));
            QCOMPARE(other->hasAnt(), newAnt);
            QCOMPARE(other->hasCab(), newCab);
            QCOMPARE(other->ant() != nullptr, newAnt);
            QCOMPARE(other->cab() != nullptr, newCab);
            QVERIFY(!newAnt || (other->ant() != source.ant() && valueOf(other->ant()) == 20));
            QVERIFY(!newCab || (other->cab() != source.cab() && valueOf(other->cab()) == 40));
            QVERIFY(other->objName() != source.objName());
            QVERIFY(other->sinad() != source.sinad());
            QVERIFY(other->devices() != source.devices());
        }
        QCOMPARE(path.objName(), heldName);
        QCOMPARE(path.sinad(), heldSinad);
        QCOMPARE(path.devices(), heldDevices);
        if (ant && newAnt)
            QCOMPARE(path.ant(), heldAnt);
        if (cab && newCab)
            QCOMPARE(path.cab(), heldCab);
        source.reset();
        QCOMPARE(written(path, tagE), xml);
        QCOMPARE(written(copy, tagE), xml);
    }

    void aTransmitter()
    {
        XmlTxParamType tx;
        const auto* heldFrequency = tx.frequency();
        const auto* heldPower = tx.txPower();
        const auto* heldHeight = tx.antennaHeight();
        const auto* heldBandwidth = tx.bandwidth();
        const auto checkHeld = [&] {
            QCOMPARE(tx.frequency(), heldFrequency);
            QCOMPARE(tx.txPower(), heldPower);
            QCOMPARE(tx.antennaHeight(), heldHeight);
            QCOMPARE(tx.bandwidth(), heldBandwidth);
        };
        const auto checkNew = [](const XmlTxParamType& it) {
            QCOMPARE(it.frequency()->frequency_MHz(), -9.9);
            QCOMPARE(it.txPower()->power(), -9.9);
            QCOMPARE(it.antennaHeight()->length(), 0);
            QCOMPARE(it.bandwidth()->bandwidth_khz(), -1.0);
            QCOMPARE(it.version(), QStringLiteral("1.0"));
        };
        const auto check = [](const XmlTxParamType& it) {
            QCOMPARE(it.frequency()->frequency_MHz(), 5.0);
            QCOMPARE(it.txPower()->power(), 6.0);
            QCOMPARE(it.antennaHeight()->length(), 7);
            QCOMPARE(it.bandwidth()->bandwidth_khz(), 8.0);
            QCOMPARE(it.version(), QStringLiteral("9"));
        };
        checkNew(tx);
        tx.setFrequency(freq(5.0));
        tx.setTxPower(power(6.0));
        tx.setAntennaHeight(length(7));
        tx.setBandwidth(bandwidth(8.0));
        tx.setVersion(QStringLiteral("9"));
        check(tx);
        tx.setFrequency(*tx.frequency());
        tx.setTxPower(*tx.txPower());
        tx.setAntennaHeight(*tx.antennaHeight());
        tx.setBandwidth(*tx.bandwidth());
        const XmlTxParamType& self = tx;
        tx = self;
        check(tx);
        checkHeld();

        const XmlTxParamType copy(tx);
        XmlTxParamType assigned;
        assigned = tx;
        tx.reset();
        checkNew(tx);
        checkHeld();
        check(copy);
        check(assigned);
        tx = copy;
        check(tx);
        checkHeld();
    }

    void aReceiver()
    {
        XmlRxParamType rx;
        const auto* heldHeight = rx.antennaHeight();
        const auto* heldThreshold = rx.rxThres();
        const auto checkHeld = [&] {
            QCOMPARE(rx.antennaHeight(), heldHeight);
            QCOMPARE(rx.rxThres(), heldThreshold);
        };
        const auto checkNew = [](const XmlRxParamType& it) {
            QCOMPARE(it.antennaHeight()->length(), 0);
            QCOMPARE(it.rxThres()->fieldstrength(), -99999.999);
            QCOMPARE(it.version(), QStringLiteral("1.0"));
        };
        const auto check = [](const XmlRxParamType& it) {
            QCOMPARE(it.antennaHeight()->length(), 5);
            QCOMPARE(it.rxThres()->fieldstrength(), 6.0);
            QCOMPARE(it.version(), QStringLiteral("9"));
        };
        checkNew(rx);
        rx.setAntennaHeight(length(5));
        rx.setRxThres(threshold(6.0));
        rx.setVersion(QStringLiteral("9"));
        check(rx);
        rx.setAntennaHeight(*rx.antennaHeight());
        rx.setRxThres(*rx.rxThres());
        const XmlRxParamType& self = rx;
        rx = self;
        check(rx);
        checkHeld();

        const XmlRxParamType copy(rx);
        XmlRxParamType assigned;
        assigned = rx;
        rx.reset();
        checkNew(rx);
        checkHeld();
        check(copy);
        check(assigned);
        rx = copy;
        check(rx);
        checkHeld();
    }

    void anInterlink()
    {
        XmlStationInterlinkType link;
        const auto* heldFrequency = link.freq();
        const auto* heldPower = link.power();
        const auto* heldThreshold = link.rxThresh();
        const auto* heldHeight = link.antHgt();
        const auto checkHeld = [&] {
            QCOMPARE(link.freq(), heldFrequency);
            QCOMPARE(link.power(), heldPower);
            QCOMPARE(link.rxThresh(), heldThreshold);
            QCOMPARE(link.antHgt(), heldHeight);
        };
        const auto checkNew = [](const XmlStationInterlinkType& it) {
            QCOMPARE(it.freq()->frequency_MHz(), -9.9);
            QCOMPARE(it.power()->power(), -9.9);
            QCOMPARE(it.rxThresh()->fieldstrength(), -99999.999);
            QCOMPARE(it.antHgt()->length(), 0);
            QVERIFY(it.supportsVersion());
        };
        const QString children = QStringLiteral("<Frequency version=\"1.0\" unit=\"MHz\">5.000000</Frequency>"
                                                "<Power version=\"1.0\" unit=\"W\">6.000000000000000</Power>"
                                                "<RxThreshold version=\"1.0\" unit=\"dBm\">-80.000000000000000"
                                                "</RxThreshold>"
                                                "<AntennaHeight version=\"1.0\" unit=\"m\">8</AntennaHeight>");
        checkNew(link);
        // The version comes by reading only.
        QVERIFY(!readError(link, QStringLiteral("<E version=\"2.0\"/>")).isEmpty());
        link.setFreq(freq(5.0));
        link.setPower(power(6.0));
        link.setRxThresh(threshold(-80.0));
        link.setAntHgt(length(8));
        const auto check = [&](const XmlStationInterlinkType& it) {
            QCOMPARE(it.freq()->frequency_MHz(), 5.0);
            QCOMPARE(it.power()->power(), 6.0);
            QCOMPARE(it.rxThresh()->fieldstrength(), -80.0);
            QCOMPARE(it.antHgt()->length(), 8);
            QVERIFY(!it.supportsVersion());
            QCOMPARE(written(it, tagE), QStringLiteral("<E version=\"2.0\">%1</E>").arg(children));
        };
        check(link);
        link.setFreq(*link.freq());
        link.setPower(*link.power());
        link.setRxThresh(*link.rxThresh());
        link.setAntHgt(*link.antHgt());
        const XmlStationInterlinkType& self = link;
        link = self;
        check(link);
        checkHeld();

        const XmlStationInterlinkType copy(link);
        XmlStationInterlinkType assigned;
        assigned = link;
        link.reset();
        checkNew(link);
        checkHeld();
        check(copy);
        check(assigned);
        link = copy;
        check(link);
        checkHeld();
    }

    void theVersionOfAnInterlink_data()
    {
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<bool>("supported");
        QTest::newRow("none") << QString() << true;
        QTest::newRow("an empty one") << QStringLiteral(" version=\"\"") << true;
        QTest::newRow("the supported one") << QStringLiteral(" version=\"1.0\"") << true;
        QTest::newRow("another") << QStringLiteral(" version=\"2.0\"") << false;
        QTest::newRow("a shorter one") << QStringLiteral(" version=\"1\"") << false;
        QTest::newRow("a longer one") << QStringLiteral(" version=\"1.00\"") << false;
        QTest::newRow("one with a blank") << QStringLiteral(" version=\"1.0 \"") << false;
    }
    void theVersionOfAnInterlink()
    {
        QFETCH(QString, attribute);
        QFETCH(bool, supported);
        const Kind& kind = interlink();
        const QString children = QString(kind.xml(kind.tags())).remove(QStringLiteral("<E>"));
        auto link = readFrom<XmlStationInterlinkType>(QStringLiteral("<E version=\"0\">") + children);
        QVERIFY(!link.supportsVersion());
        QCOMPARE(readError(link, QStringLiteral("<E%1>").arg(attribute) + children), QString());
        QCOMPARE(link.supportsVersion(), supported);
        QCOMPARE(link.isValid(), supported);
        QCOMPARE(link.syntaxError().isEmpty(), supported);
    }

    // The order of the children

    void theTablesAgreeWithThemselves()
    {
        // A slip in the tables above would make the tests ask for the wrong thing.
        for (const GetKind get : kinds) {
            const QVector<Child>& children = get().children;
            for (int i = 0; i < children.size(); ++i)
                QCOMPARE(children.at(i).refusedAfter, get().tags().mid(i)); // itself and those after it
        }
    }

    void gates_data()
    {
        QTest::addColumn<GetKind>("get");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<bool>("refused");
        for (const GetKind get : kinds) {
            for (const Child& before : get().children) {
                for (const Child& child : get().children) {
                    const bool refused = child.refusedAfter.contains(before.tag);
                    const QString row = QStringLiteral("%1: %2 after %3 is %4")
                                            .arg(QLatin1String(get().className), child.tag, before.tag,
                                                 refused ? QStringLiteral("refused") : QStringLiteral("read"));
                    QTest::newRow(qPrintable(row)) << get << before.tag << child.tag << refused;
                }
            }
        }
    }
    void gates()
    {
        QFETCH(GetKind, get);
        QFETCH(QString, before);
        QFETCH(QString, tag);
        QFETCH(bool, refused);
        const Kind& kind = get();
        const auto element = kind.make();
        const QString error = readError(*element, kind.xml({before, tag}));
        const int startTag = int(kind.child(tag).xml.indexOf(QLatin1Char('>')) + 1);
        if (refused)
            QCOMPARE(error, kind.unexpectedElement(3, startTag, tag));
        else if (kind.required == QStringList{before, tag})
            QCOMPARE(error, QString());
        else
            QCOMPARE(error, kind.unexpectedEnd(4));
        // What was read is kept, and nothing else has come up.
        QCOMPARE(written(*element, tagE), kind.holding(refused ? QStringList{before} : QStringList{before, tag}));
    }

    // Every sequence of children up to the first that is refused, so every set of children too.
    void sequences_data() { kinds_data(); }
    void sequences()
    {
        QFETCH(GetKind, get);
        const Kind& kind = get();
        QStringList complete;
        QVector<QStringList> sequences = {QStringList()};
        for (int i = 0; i < sequences.size(); ++i) {
            const QStringList tags = sequences.at(i);
            const auto element = kind.make();
            const QString error = readError(*element, kind.xml(tags));
            QCOMPARE(error, kind.error(tags));
            QCOMPARE(written(*element, tagE), kind.holding(tags.mid(0, kind.firstRefused(tags))));
            if (error.isEmpty()) {
                complete.append(tags.join(QLatin1Char(' ')));
                QVERIFY(element->isValid());
                QCOMPARE(element->syntaxError(), QString());
            }
            if (kind.firstRefused(tags) == tags.size()) {
                for (const Child& child : kind.children)
                    sequences.append(tags + QStringList{child.tag});
            }
        }
        QStringList expected = {kind.required.join(QLatin1Char(' '))};
        if (get == signalPath) {
            expected = QStringList{QStringLiteral("Name SINAD Device"), QStringLiteral("Name SINAD Device AntHgtMap"),
                                   QStringLiteral("Name SINAD Device CabLenMap"),
                                   QStringLiteral("Name SINAD Device AntHgtMap CabLenMap")};
        }
        QCOMPARE(complete, expected);
    }

    void otherChildren_data()
    {
        QTest::addColumn<GetKind>("get");
        QTest::addColumn<QString>("tag");
        const auto row = [](const GetKind get, const char* tag) {
            QTest::addRow("%s: %s", get().className, tag) << get << QString::fromLatin1(tag);
        };
        for (const char* tag : {"name", "Sinad", "Devices", "AntHgt", "antHgtMap", "CabLen", "Map", "E"})
            row(signalPath, tag);
        for (const char* tag : {"frequency", "Power", "txPower", "AntHgt", "RxThreshold", "bandwidth", "E"})
            row(txParam, tag);
        for (const char* tag : {"antennaHeight", "RxThres", "RxThresh", "Frequency", "TxPower", "Power", "E"})
            row(rxParam, tag);
        for (const char* tag : {"Freq", "Power", "power", "RxThresh", "AntHgt", "Bandwidth", "E"})
            row(interlink, tag);
    }
    void otherChildren()
    {
        QFETCH(GetKind, get);
        QFETCH(QString, tag);
        const Kind& kind = get();
        const auto element = kind.make();
        const QString error = kind.unexpectedElement(2, tag.size() + 2, tag);
        QCOMPARE(readError(*element, QStringLiteral("<E>\n<%1></%1></E>").arg(tag)), error);
        QCOMPARE(written(*element, tagE), kind.holding({}));
        const Child& first = kind.children.first();
        QCOMPARE(readError(*element, QStringLiteral("<E>%1\n<%2></%2></E>").arg(first.xml, tag)), error);
        QCOMPARE(written(*element, tagE), kind.holding({first.tag}));
    }

    void readingWhatTheLibraryWrote_data() { kinds_data(); }
    void readingWhatTheLibraryWrote()
    {
        QFETCH(GetKind, get);
        const Kind& kind = get();
        const auto element = kind.make();
        QCOMPARE(readError(*element, kind.xml(kind.tags())), QString());
        const QString xml = written(*element, tagE);
        const auto again = kind.make();
        if (get == interlink) {
            const QString upToPower =
                QStringLiteral("<E version=\"1.0\">%1<Power version=\"1.0\" unit=\"W\">").arg(freqWritten);
            QVERIFY(xml.startsWith(upToPower));
            QCOMPARE(readError(*again, xml), kind.unexpectedElement(1, upToPower.size(), QStringLiteral("Power")));
            QCOMPARE(written(*again, tagE), kind.holding({QStringLiteral("Frequency")}));
        } else {
            QCOMPARE(readError(*again, xml), QString());
            QCOMPARE(written(*again, tagE), xml);
        }
    }

    // Reading

    void versions_data() { kinds_data(); }
    void versions()
    {
        QFETCH(GetKind, get);
        const Kind& kind = get();
        const QString children = QString(kind.xml(kind.tags())).remove(QStringLiteral("<E>"));
        const auto element = kind.make();
        const auto read = [&](const char* start) { return readError(*element, QString::fromLatin1(start) + children); };

        QCOMPARE(read("<E version=\"1.0\">"), QString());
        QCOMPARE(written(*element, tagE), kind.holding(kind.tags()));
        element->reset();
        const QString error = read("<E\n version=\"2.0\">");
        if (kind.refusesOtherVersions) {
            QCOMPARE(error,
                     QStringLiteral("in %1 (line 2, column 15): Version not supported: 2.0.")
                         .arg(QLatin1String(kind.className)));
            QCOMPARE(written(*element, tagE), kind.holding({}, QStringLiteral("2.0"))); // no child is read
            QCOMPARE(element->syntaxError(),
                     block(kind.className, QStringLiteral("Version \"2.0\" not supported\n") + kind.defaultProblems));
        } else {
            QCOMPARE(error, QString());
            QCOMPARE(written(*element, tagE), kind.holding(kind.tags(), QStringLiteral("2.0")));
            QCOMPARE(element->syntaxError(), block(kind.className, QStringLiteral("Version \"2.0\" not supported")));
        }
        QVERIFY(!element->isValid());

        // The next reading starts from the default again.
        QCOMPARE(read("<E>"), QString());
        QCOMPARE(written(*element, tagE), kind.holding(kind.tags()));
        QVERIFY(!read("<E version=\"2.0\"><x/>").isEmpty());
        QCOMPARE(read("<E version=\"\" Version=\"3\">"), QString());
        QCOMPARE(written(*element, tagE), kind.holding(kind.tags()));
        QVERIFY(element->isValid());
        QCOMPARE(element->syntaxError(), QString());
    }

    void settingVersions()
    {
        XmlSignalPathType path = readFrom<XmlSignalPathType>(signalPath().xml(signalPath().tags()));
        XmlTxParamType tx = readFrom<XmlTxParamType>(txParam().xml(txParam().tags()));
        XmlRxParamType rx = readFrom<XmlRxParamType>(rxParam().xml(rxParam().tags()));
        for (const QString& version :
             {QStringLiteral("1"), QStringLiteral("1.00"), QStringLiteral("1.0 "), QString()}) {
            const QString problem = QStringLiteral("Version \"%1\" not supported").arg(version);
            path.setVersion(version);
            QVERIFY(!path.isValid());
            QCOMPARE(path.syntaxError(), block("XmlSignalPathType", problem));
            QCOMPARE(written(path, tagE), signalPath().holding(signalPath().tags(), version));
            tx.setVersion(version);
            QVERIFY(!tx.isValid());
            QCOMPARE(tx.syntaxError(), block("XmlTxParamType", problem));
            QCOMPARE(written(tx, tagE), txParam().holding(txParam().tags(), version));
            rx.setVersion(version);
            QVERIFY(!rx.isValid());
            QCOMPARE(rx.syntaxError(), block("XmlRxParamType", problem));
            QCOMPARE(written(rx, tagE), rxParam().holding(rxParam().tags(), version));
        }
        path.setVersion(QStringLiteral("1.0"));
        QVERIFY(path.isValid());
        tx.setVersion(QStringLiteral("1.0"));
        QVERIFY(tx.isValid());
        rx.setVersion(QStringLiteral("1.0"));
        QVERIFY(rx.isValid());
    }

    void whatStandsBetweenTheChildren_data() { kinds_data(); }
    void whatStandsBetweenTheChildren()
    {
        QFETCH(GetKind, get);
        const Kind& kind = get();
        QString xml = QStringLiteral("<E>text");
        for (const Child& child : kind.children)
            xml += QStringLiteral("<!-- x --> y ") + child.xml + QStringLiteral("<?z z?><![CDATA[<Name/>]]>\n");
        const auto element = kind.make();
        QCOMPARE(readError(*element, xml + QStringLiteral("</E>")), QString());
        QCOMPARE(written(*element, tagE), kind.holding(kind.tags()));
        QCOMPARE(written(*element, QStringLiteral("Other")),
                 kind.holding(kind.tags())
                     .replace(QStringLiteral("<E "), QStringLiteral("<Other "))
                     .replace(QStringLiteral("</E>"), QStringLiteral("</Other>")));

        QCOMPARE(readError(*element, xml), QStringLiteral("Premature end of document."));
        QCOMPARE(written(*element, tagE), kind.holding(kind.tags()));
    }

    void theEndTag_data() { kinds_data(); }
    void theEndTag()
    {
        QFETCH(GetKind, get);
        const Kind& kind = get();
        const auto element = kind.make();
        QXmlStreamReader other(kind.xml(kind.tags()));
        other.readNextStartElement();
        element->processXml(other, QStringLiteral("e"));
        QCOMPARE(other.errorString(), kind.unexpectedEnd(kind.children.size() + 2));
        QCOMPARE(written(*element, tagE), kind.holding(kind.tags()));

        QXmlStreamReader two(QStringLiteral("<All>%1<Next/></All>").arg(kind.xml(kind.tags())));
        two.readNextStartElement();
        two.readNextStartElement();
        element->processXml(two, tagE);
        QCOMPARE(two.errorString(), QString());
        QCOMPARE(two.tokenType(), QXmlStreamReader::EndElement); // nothing behind it is read
        QVERIFY(two.readNextStartElement());
        QCOMPARE(two.name().toString(), QStringLiteral("Next"));

        QCOMPARE(readError(*element, QStringLiteral("<E/>")), kind.unexpectedEnd(1));
    }

    void wrongPositions_data() { kinds_data(); }
    void wrongPositions()
    {
        QFETCH(GetKind, get);
        const Kind& kind = get();
        const QString error =
            QStringLiteral("in %1 (line %2): Parse error (wrong position).").arg(QLatin1String(kind.className));
        const auto element = kind.make();
        QCOMPARE(readError(*element, kind.xml(kind.tags())), QString());
        const QString held = kind.holding(kind.tags());
        // Another version is left, which each reading replaces.
        const auto use = [&] { QVERIFY(!readError(*element, QStringLiteral("<E version=\"2.0\"/>")).isEmpty()); };

        use();
        QXmlStreamReader fresh(QStringLiteral("<E version=\"3\"/>"));
        element->processXml(fresh, tagE);
        QCOMPARE(fresh.errorString(), error.arg(QStringLiteral("1, column 0")));
        QCOMPARE(written(*element, tagE), held);

        use();
        QXmlStreamReader onText(QStringLiteral("<E version=\"3\">\n  <Name>N</Name></E>"));
        onText.readNextStartElement();
        QCOMPARE(onText.readNext(), QXmlStreamReader::Characters);
        element->processXml(onText, tagE);
        QCOMPARE(onText.errorString(), error.arg(QStringLiteral("2, column 3")));
        QCOMPARE(written(*element, tagE), held);

        use();
        QXmlStreamReader atEnd(QStringLiteral("<E>\n</E>"));
        while (!atEnd.atEnd())
            atEnd.readNext();
        element->processXml(atEnd, tagE);
        QCOMPARE(atEnd.errorString(), error.arg(QStringLiteral("2, column 4")));
        QCOMPARE(written(*element, tagE), held);
        QVERIFY(element->isValid());
    }

    // The children are read in place and not reset before.
    void readingIntoAUsedSignalPath()
    {
        XmlSignalPathType path = pathWith(true, true);
        const auto* heldName = path.objName();
        const auto* heldSinad = path.sinad();
        const auto* heldDevices = path.devices();
        const auto* heldAnt = path.ant();
        const auto* heldCab = path.cab();
        const auto checkHeld = [&] {
            QCOMPARE(path.objName(), heldName);
            QCOMPARE(path.sinad(), heldSinad);
            QCOMPARE(path.devices(), heldDevices);
            QCOMPARE(path.ant(), heldAnt);
            QCOMPARE(path.cab(), heldCab);
        };
        QCOMPARE(readError(path,
                           QStringLiteral("<E><Name/><SINAD/>%1%2</E>")
                               .arg(signalPath().children.at(2).xml, signalPath().children.at(3).xml)),
                 QString());
        QCOMPARE(path.objName()->objName(), QStringLiteral("P1"));
        QCOMPARE(path.sinad()->sinad(), 1.0);
        QCOMPARE(path.devices()->deviceList().size(), 1);
        QCOMPARE(path.devices()->deviceList().first()->objName()->objName(), QStringLiteral("C 1"));
        QCOMPARE(valueOf(path.ant()), 30);
        QCOMPARE(path.ant()->mapList().size(), 1);
        QCOMPARE(valueOf(path.cab()), 20); // it did not stand there
        checkHeld();

        // What is held does not count for the order and the end.
        QCOMPARE(readError(path, signalPath().xml(words("Name SINAD CabLenMap"))),
                 QStringLiteral("in XmlSignalPathType (line 5, column 4): Unexpected token \"EndElement\"."));
        QCOMPARE(valueOf(path.cab()), 45);
        QCOMPARE(readError(path, signalPath().xml(words("Name SINAD Device"))), QString());
        checkHeld();
    }

    void readingIntoAUsedElement()
    {
        XmlTxParamType tx = readFrom<XmlTxParamType>(txParam().xml(txParam().tags()));
        const void* txHeld[] = {tx.frequency(), tx.txPower(), tx.antennaHeight(), tx.bandwidth()};
        QCOMPARE(readError(tx,
                           QStringLiteral("<E><Frequency unit=\"kHz\"/><TxPower unit=\"W\">7</TxPower>"
                                          "<AntennaHeight unit=\"m\"/><Bandwidth unit=\"kHz\"/></E>")),
                 QString());
        QCOMPARE(tx.frequency()->frequency_MHz(), 2.4);
        QCOMPARE(tx.txPower()->power(), 7.0);
        QCOMPARE(tx.antennaHeight()->length(), 25);
        QCOMPARE(tx.bandwidth()->bandwidth_khz(), 12.0);
        const void* txNow[] = {tx.frequency(), tx.txPower(), tx.antennaHeight(), tx.bandwidth()};
        for (int i = 0; i < 4; ++i)
            QCOMPARE(txNow[i], txHeld[i]);

        XmlRxParamType rx = readFrom<XmlRxParamType>(rxParam().xml(rxParam().tags()));
        const auto* rxHeight = rx.antennaHeight();
        const auto* rxThreshold = rx.rxThres();
        QCOMPARE(readError(rx, QStringLiteral("<E><AntennaHeight unit=\"m\"/><RxThreshold unit=\"dBm\"/></E>")),
                 QString());
        QCOMPARE(rx.antennaHeight(), rxHeight);
        QCOMPARE(rx.antennaHeight()->length(), 25);
        QCOMPARE(rx.rxThres(), rxThreshold);
        QCOMPARE(rx.rxThres()->fieldstrength(), -80.0);

        auto link = readFrom<XmlStationInterlinkType>(interlink().xml(interlink().tags()));
        const void* linkHeld[] = {link.freq(), link.power(), link.rxThresh(), link.antHgt()};
        QCOMPARE(readError(link,
                           QStringLiteral("<E><Frequency unit=\"MHz\">3</Frequency><TxPower unit=\"W\"/>"
                                          "<RxThreshold unit=\"dBm\"/><AntennaHeight unit=\"m\"/></E>")),
                 QString());
        QCOMPARE(link.freq()->frequency_MHz(), 3.0);
        QCOMPARE(link.power()->power(), 10.0);
        QCOMPARE(link.rxThresh()->fieldstrength(), -80.0);
        QCOMPARE(link.antHgt()->length(), 25);
        const void* linkNow[] = {link.freq(), link.power(), link.rxThresh(), link.antHgt()};
        for (int i = 0; i < 4; ++i)
            QCOMPARE(linkNow[i], linkHeld[i]);
    }

    void failuresInChildren_data()
    {
        QTest::addColumn<GetKind>("get");
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("error");
        QTest::addColumn<QStringList>("read"); // before the failure
        QTest::newRow("a name with a child")
            << GetKind(signalPath) << QStringLiteral("<E>\n<Name><b/></Name></E>")
            << QStringLiteral("in XmlObjNameType (line 2, column 10): Unexpected token \"StartElement\".")
            << QStringList();
        QTest::newRow("a SINAD that is no number")
            << GetKind(signalPath) << QStringLiteral("<E><Name>Path 1</Name>\n<SINAD>x</SINAD></E>")
            << QStringLiteral("in XmlSinadType (line 2, column 9): Illegal value (must be numeric).") << words("Name");
        QTest::newRow("a device outside a list of devices")
            << GetKind(signalPath)
            << QStringLiteral("<E><Name>Path 1</Name><SINAD>12.5</SINAD>\n<Device><DeviceCategory/></Device></E>")
            << QStringLiteral("in XmlDeviceListType (line 2, column 25): Unexpected element \"DeviceCategory\".")
            << words("Name SINAD");
        QTest::newRow("a list without devices")
            << GetKind(signalPath) << QStringLiteral("<E><Name>Path 1</Name><SINAD>12.5</SINAD>\n<Device></Device></E>")
            << QStringLiteral("in XmlDeviceListType (line 2, column 17): Unexpected token \"EndElement\".")
            << words("Name SINAD");
        QTest::newRow("a frequency without a unit")
            << GetKind(txParam) << QStringLiteral("<E>\n<Frequency>5</Frequency></E>")
            << QStringLiteral("in XmlFreqType (line 2, column 11): Missing attribute: \"unit\".") << QStringList();
        QTest::newRow("a bandwidth that is no whole number")
            << GetKind(txParam)
            << QStringLiteral("<E>%1%2%3\n<Bandwidth unit=\"kHz\">2.5</Bandwidth></E>")
                   .arg(freqXml, powerXml, heightXml)
            << QStringLiteral("in XmlBandwidthType (line 2, column 26): Illegal value (must be numeric).")
            << words("Frequency TxPower AntennaHeight");
        QTest::newRow("a threshold that is no number")
            << GetKind(rxParam) << QStringLiteral("<E>%1\n<RxThreshold unit=\"dBm\">x</RxThreshold></E>").arg(heightXml)
            << QStringLiteral("in XmlFieldstrengthType (line 2, column 26): Illegal value (must be numeric).")
            << words("AntennaHeight");
        QTest::newRow("a power without a unit")
            << GetKind(interlink) << QStringLiteral("<E>%1\n<TxPower>5</TxPower></E>").arg(freqXml)
            << QStringLiteral("in XmlPowerType (line 2, column 9): Missing attribute: \"unit\".") << words("Frequency");
    }
    void failuresInChildren()
    {
        QFETCH(GetKind, get);
        QFETCH(QString, xml);
        QFETCH(QString, error);
        QFETCH(QStringList, read);
        const Kind& kind = get();
        const auto element = kind.make();
        QCOMPARE(readError(*element, xml), error);
        QCOMPARE(written(*element, tagE), kind.holding(read));
        QVERIFY(!element->isValid());
        QVERIFY(!element->syntaxError().isEmpty());

        // The element is none the worse for it.
        QCOMPARE(readError(*element, kind.xml(kind.tags())), QString());
        QCOMPARE(written(*element, tagE), kind.holding(kind.tags()));
        QVERIFY(element->isValid());
        QCOMPARE(element->syntaxError(), QString());
        element->reset();
        QCOMPARE(written(*element, tagE), kind.holding({}));
    }

    void mapsThatFail()
    {
        const QString start =
            QStringLiteral("<E>%1%2%3\n")
                .arg(signalPath().child(QStringLiteral("Name")).xml, signalPath().child(QStringLiteral("SINAD")).xml,
                     signalPath().child(QStringLiteral("Device")).xml);
        XmlSignalPathType path;
        // The map is there as soon as its start tag is.
        QCOMPARE(readError(path, start + QStringLiteral("<AntHgtMap></AntHgtMap></E>")),
                 QStringLiteral("in XmlMapListType (line 2, column 23): Unexpected token \"EndElement\"."));
        QVERIFY(path.hasAnt());
        QVERIFY(path.ant()->mapList().isEmpty());
        QVERIFY(!path.hasCab());
        QVERIFY(!path.isValid());

        path.reset();
        QCOMPARE(
            readError(path, start + QStringLiteral("<CabLenMap><Map><Value unit=\"m\">5</Value></Map></CabLenMap>")),
            QStringLiteral("in XmlMapType (line 2, column 47): Unexpected token \"EndElement\"."));
        QVERIFY(!path.hasAnt());
        QVERIFY(path.hasCab());
        QCOMPARE(valueOf(path.cab()), 5);

        path.reset();
        QCOMPARE(readError(path,
                           start + signalPath().child(QStringLiteral("CabLenMap")).xml
                               + QStringLiteral("\n<AntHgtMap><Map/></AntHgtMap></E>")),
                 QStringLiteral("in XmlSignalPathType (line 3, column 11): Unexpected element \"AntHgtMap\"."));
        QVERIFY(!path.hasAnt());
        QVERIFY(path.hasCab());
    }

    // What is wrong

    void problemsOfASignalPath_data()
    {
        QTest::addColumn<QString>("part"); // the one that is wrong
        QTest::addColumn<QString>("problem");
        QTest::newRow("nothing is wrong") << QString() << QString();
        QTest::newRow("the name is empty")
            << QStringLiteral("Name") << block("XmlObjNameType", QStringLiteral("Object name too short (min. 1)."));
        QTest::newRow("the SINAD is zero")
            << QStringLiteral("SINAD") << block("XmlSinadType", QStringLiteral("Illegal frequency."));
        QTest::newRow("there are no devices")
            << QStringLiteral("Device") << block("XmlDeviceListType", QStringLiteral("Too few devices (min. 1)"));
        const QString tooFew = block("XmlMapListType", QStringLiteral("Too few mappings (min. 1)"));
        QTest::newRow("there are no antenna heights") << QStringLiteral("AntHgtMap") << tooFew;
        QTest::newRow("there are no cable lengths") << QStringLiteral("CabLenMap") << tooFew;
    }
    void problemsOfASignalPath()
    {
        QFETCH(QString, part);
        QFETCH(QString, problem);
        auto path = readFrom<XmlSignalPathType>(signalPath().xml(signalPath().tags()));
        if (part == QStringLiteral("Name"))
            path.setObjName(XmlObjNameType());
        else if (part == QStringLiteral("SINAD"))
            path.setSinad(XmlSinadType());
        else if (part == QStringLiteral("Device"))
            path.setDevices(XmlDeviceListType());
        else if (part == QStringLiteral("AntHgtMap"))
            path.setAnt(XmlMapListType());
        else if (part == QStringLiteral("CabLenMap"))
            path.setCab(XmlMapListType());
        QCOMPARE(path.isValid(), part.isEmpty());
        QCOMPARE(path.syntaxError(), part.isEmpty() ? QString() : block("XmlSignalPathType", problem));
    }

    // Each child alone makes the element invalid; with another version it is the only one wrong.
    void wrongChildren_data()
    {
        QTest::addColumn<GetKind>("get");
        QTest::addColumn<int>("wrong");
        for (const GetKind get : {GetKind(txParam), GetKind(rxParam), GetKind(interlink)}) {
            for (int i = 0; i < get().children.size(); ++i)
                QTest::addRow("%s: %s", get().className, qPrintable(get().children.at(i).tag)) << get << i;
        }
    }
    void wrongChildren()
    {
        QFETCH(GetKind, get);
        QFETCH(int, wrong);
        const Kind& kind = get();
        const char* classes[] = {"XmlFreqType", "XmlPowerType", "XmlLengthType", "XmlBandwidthType",
                                 "XmlFieldstrengthType"};
        const QString tag = kind.children.at(wrong).tag;
        const int index = int(words("Frequency TxPower AntennaHeight Bandwidth RxThreshold").indexOf(tag));
        QString xml = kind.xml(kind.tags());
        xml.replace(QLatin1Char('<') + tag + QLatin1Char(' '),
                    QLatin1Char('<') + tag + QLatin1String(" version=\"x\" "));
        const auto element = kind.make();
        QCOMPARE(readError(*element, xml), QString());
        QVERIFY(!element->isValid());
        QCOMPARE(element->syntaxError(),
                 block(kind.className, block(classes[index], QStringLiteral("Version \"x\" not supported"))));
    }

    void theOrderOfProblems_data()
    {
        QTest::addColumn<GetKind>("get");
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("problems");
        QTest::newRow("a transmitter") << GetKind(txParam)
                                       << QStringLiteral(
                                              "<E version=\"0\"><Frequency unit=\"MHz\" version=\"1\">1</Frequency>"
                                              "<TxPower unit=\"W\" version=\"2\">1</TxPower>"
                                              "<AntennaHeight unit=\"m\" version=\"3\">1</AntennaHeight>"
                                              "<Bandwidth unit=\"kHz\" version=\"4\">1</Bandwidth></E>")
                                       << QStringLiteral("+++ in XmlTxParamType Begin:\n"
                                                         "Version \"0\" not supported\n"
                                                         "+++ in XmlFreqType Begin:\n"
                                                         "Version \"1\" not supported\n"
                                                         "--- in XmlFreqType End\n"
                                                         "+++ in XmlPowerType Begin:\n"
                                                         "Version \"2\" not supported\n"
                                                         "--- in XmlPowerType End\n"
                                                         "+++ in XmlLengthType Begin:\n"
                                                         "Version \"3\" not supported\n"
                                                         "--- in XmlLengthType End\n"
                                                         "+++ in XmlBandwidthType Begin:\n"
                                                         "Version \"4\" not supported\n"
                                                         "--- in XmlBandwidthType End\n"
                                                         "--- in XmlTxParamType End");
        QTest::newRow("a receiver") << GetKind(rxParam)
                                    << QStringLiteral(
                                           "<E version=\"0\"><AntennaHeight unit=\"m\" version=\"1\">1</AntennaHeight>"
                                           "<RxThreshold unit=\"dBm\" version=\"2\">1</RxThreshold></E>")
                                    << QStringLiteral("+++ in XmlRxParamType Begin:\n"
                                                      "Version \"0\" not supported\n"
                                                      "+++ in XmlLengthType Begin:\n"
                                                      "Version \"1\" not supported\n"
                                                      "--- in XmlLengthType End\n"
                                                      "+++ in XmlFieldstrengthType Begin:\n"
                                                      "Version \"2\" not supported\n"
                                                      "--- in XmlFieldstrengthType End\n"
                                                      "--- in XmlRxParamType End");
        QTest::newRow("an interlink") << GetKind(interlink)
                                      << QStringLiteral(
                                             "<E version=\"0\"><Frequency unit=\"MHz\" version=\"1\">1</Frequency>"
                                             "<TxPower unit=\"W\" version=\"2\">1</TxPower>"
                                             "<RxThreshold unit=\"dBm\" version=\"3\">1</RxThreshold>"
                                             "<AntennaHeight unit=\"m\" version=\"4\">1</AntennaHeight></E>")
                                      << QStringLiteral("+++ in XmlStationInterlinkType Begin:\n"
                                                        "Version \"0\" not supported\n"
                                                        "+++ in XmlFreqType Begin:\n"
                                                        "Version \"1\" not supported\n"
                                                        "--- in XmlFreqType End\n"
                                                        "+++ in XmlPowerType Begin:\n"
                                                        "Version \"2\" not supported\n"
                                                        "--- in XmlPowerType End\n"
                                                        "+++ in XmlFieldstrengthType Begin:\n"
                                                        "Version \"3\" not supported\n"
                                                        "--- in XmlFieldstrengthType End\n"
                                                        "+++ in XmlLengthType Begin:\n"
                                                        "Version \"4\" not supported\n"
                                                        "--- in XmlLengthType End\n"
                                                        "--- in XmlStationInterlinkType End");
    }
    void theOrderOfProblems()
    {
        QFETCH(GetKind, get);
        QFETCH(QString, xml);
        QFETCH(QString, problems);
        const auto element = get().make();
        QCOMPARE(readError(*element, xml), QString());
        QCOMPARE(element->syntaxError(), problems);
        QCOMPARE(element->syntaxError(), problems); // each asking starts anew
    }

    void theOrderOfProblemsOfASignalPath()
    {
        XmlSignalPathType path;
        path.setVersion(QStringLiteral("0"));
        XmlMapListType heights = map(1);
        heights.setVersion(QStringLiteral("4"));
        path.setAnt(heights);
        XmlMapListType lengths = map(1);
        lengths.setVersion(QStringLiteral("5"));
        path.setCab(lengths);
        const QString problems = QStringLiteral("+++ in XmlSignalPathType Begin:\n"
                                                "Version \"0\" not supported\n"
                                                "+++ in XmlObjNameType Begin:\n"
                                                "Object name too short (min. 1).\n"
                                                "--- in XmlObjNameType End\n"
                                                "+++ in XmlSinadType Begin:\n"
                                                "Illegal frequency.\n"
                                                "--- in XmlSinadType End\n"
                                                "+++ in XmlDeviceListType Begin:\n"
                                                "Too few devices (min. 1)\n"
                                                "--- in XmlDeviceListType End\n"
                                                "+++ in XmlMapListType Begin:\n"
                                                "Version \"4\" not supported\n"
                                                "--- in XmlMapListType End\n"
                                                "+++ in XmlMapListType Begin:\n"
                                                "Version \"5\" not supported\n"
                                                "--- in XmlMapListType End\n"
                                                "--- in XmlSignalPathType End");
        QCOMPARE(path.syntaxError(), problems);
        QCOMPARE(path.syntaxError(), problems);
    }

    // A key is reported, but does not make a path invalid.
    void aPathWithANegativeKey()
    {
        XmlKeyType key;
        key.setKey(-1);
        XmlMapType entry;
        entry.setKey(key);
        XmlMapListType heights;
        heights.setMapList({&entry});
        auto path = readFrom<XmlSignalPathType>(signalPath().xml(signalPath().tags()));
        path.setAnt(heights);
        QVERIFY(path.isValid());
        QCOMPARE(path.syntaxError(),
                 block("XmlSignalPathType",
                       block("XmlMapListType",
                             block("XmlMapType", block("XmlKeyType", QStringLiteral("XmlMapType: Illegal Key."))))));
    }
};

QTEST_APPLESS_MAIN(SignalpathsTest)
#include "signalpaths_test.moc"
