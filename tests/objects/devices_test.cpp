#include "objects/gatedchild.h"
#include "support/elementtest.h"

#include <arvxml/devices.h>

#include <algorithm>
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

/// The children in the order of writing.
const QVector<Child>& deviceChildren()
{
    static const QVector<Child> all = {
        {QStringLiteral("DeviceCategory"),
         words("DeviceCategory Name Frequencies Noises KFactors Attenuations Gains Degrees DBM"),
         QStringLiteral("<DeviceCategory>Cable</DeviceCategory>"),
         QStringLiteral("<DeviceCategory>Cable</DeviceCategory>"),
         QStringLiteral("<DeviceCategory>UNDEFINED</DeviceCategory>")},
        {QStringLiteral("Name"), words("Name Frequencies Noises KFactors Attenuations Gains Degrees DBM"),
         QStringLiteral("<Name>Filter 7</Name>"), QStringLiteral("<Name>Filter 7</Name>"),
         QStringLiteral("<Name></Name>")},
        {QStringLiteral("Frequencies"), words("Frequencies Noises KFactors Attenuations Gains Degrees DBM"),
         QStringLiteral("<Frequencies><Frequency unit=\"MHz\">100</Frequency></Frequencies>"),
         QStringLiteral("<Frequencies version=\"1.0\"><Frequency version=\"1.0\" unit=\"MHz\">100.000000</Frequency>"
                        "</Frequencies>"),
         QStringLiteral("<Frequencies version=\"1.0\"/>")},
        {QStringLiteral("Noises"), words("Noises KFactors Attenuations Gains Degrees DBM"),
         QStringLiteral("<Noises><Decibel>1</Decibel></Noises>"),
         QStringLiteral("<Noises version=\"1.0\"><Decibel version=\"1.0\" unit=\"dB\">1.000000</Decibel></Noises>"),
         QString()},
        {QStringLiteral("KFactors"), words("KFactors Attenuations"),
         QStringLiteral("<KFactors><Decibel>2</Decibel></KFactors>"),
         QStringLiteral("<KFactors version=\"1.0\"><Decibel version=\"1.0\" unit=\"dB\">2.000000</Decibel></KFactors>"),
         QString()},
        {QStringLiteral("Attenuations"), words("Noises KFactors Attenuations Gains Degrees DBM"),
         QStringLiteral("<Attenuations><Decibel>3</Decibel></Attenuations>"),
         QStringLiteral("<Attenuations version=\"1.0\"><Decibel version=\"1.0\" unit=\"dB\">3.000000</Decibel>"
                        "</Attenuations>"),
         QString()},
        {QStringLiteral("Gains"), words("KFactors Attenuations Gains Degrees DBM"),
         QStringLiteral("<Gains><Decibel>4</Decibel></Gains>"),
         QStringLiteral("<Gains version=\"1.0\"><Decibel version=\"1.0\" unit=\"dB\">4.000000</Decibel></Gains>"),
         QString()},
        {QStringLiteral("Degrees"), words("KFactors Attenuations Gains Degrees DBM"),
         QStringLiteral("<Degrees><Degrees>5</Degrees></Degrees>"),
         QString(QLatin1String("<Degrees version=\"1.0\"><Degrees version=\"1.0\" unit=\"") + QChar(0x00B0)
                 + QLatin1String("\">5.0</Degrees></Degrees>")),
         QString()},
        {QStringLiteral("DBM"), words("KFactors Attenuations DBM"), QStringLiteral("<DBM><dBm>6</dBm></DBM>"),
         QStringLiteral("<DBM version=\"1.0\"><dBm version=\"1.0\" unit=\"dBm\">6.000000000</dBm></DBM>"), QString()},
    };
    return all;
}

const Child& child(const QString& tag)
{
    for (const Child& child : deviceChildren()) {
        if (child.tag == tag)
            return child;
    }
    qFatal("no such child: %s", qPrintable(tag));
}

const QStringList& fixedTags()
{
    static const QStringList tags = words("DeviceCategory Name Frequencies");
    return tags;
}

const QStringList& listTags()
{
    static const QStringList tags = words("Noises KFactors Attenuations Gains Degrees DBM");
    return tags;
}

/// The five sets of lists with which a device may end, in the order of writing.
const QVector<QStringList>& completeSets()
{
    static const QVector<QStringList> sets = {
        words("Noises"),
        words("Noises KFactors Gains DBM"),
        words("Noises KFactors Degrees DBM"),
        words("KFactors"),
        words("Attenuations"),
    };
    return sets;
}

/// The position in \a tags of the first child that its gate refuses; the size when none is.
int firstRefused(const QStringList& tags)
{
    for (int i = 0; i < tags.size(); ++i) {
        for (int before = 0; before < i; ++before) {
            if (child(tags.at(i)).refusedAfter.contains(tags.at(before)))
                return i;
        }
    }
    return int(tags.size());
}

bool isComplete(const QStringList& tags)
{
    QStringList lists;
    for (const QString& tag : listTags()) {
        if (tags.contains(tag))
            lists.append(tag);
    }
    for (const QString& tag : fixedTags()) {
        if (!tags.contains(tag))
            return false;
    }
    return completeSets().contains(lists);
}

/// A device of these children, each on a line of its own, from the second line on.
QString deviceXml(const QStringList& tags)
{
    QString xml = QStringLiteral("<D>\n");
    for (const QString& tag : tags)
        xml += child(tag).xml + QLatin1Char('\n');
    return xml + QStringLiteral("</D>");
}

/// What reading deviceXml() is to report.
QString deviceError(const QStringList& tags)
{
    const int refused = firstRefused(tags);
    if (refused < tags.size()) {
        return QStringLiteral("in XmlDeviceType (line %1, column %2): Unexpected element \"%3\".")
            .arg(refused + 2)
            .arg(tags.at(refused).size() + 2)
            .arg(tags.at(refused));
    }
    if (isComplete(tags))
        return QString();
    return QStringLiteral("in XmlDeviceType (line %1, column 4): Unexpected token \"EndElement\".")
        .arg(tags.size() + 2);
}

/// How a device that was new and has read these children is written.
QString deviceHolding(const QStringList& tags)
{
    QString xml = QStringLiteral("<D version=\"1.0\">");
    for (const Child& child : deviceChildren())
        xml += tags.contains(child.tag) ? child.written : child.byDefault;
    return xml + QStringLiteral("</D>");
}

// The lists of a device

template <typename List>
struct Values;
template <>
struct Values<XmlDecibelListType> {
    static double get(const XmlDecibelListType& list) { return list.decibelList().first()->decibel(); }
    static XmlDecibelListType make(double value)
    {
        XmlDecibelType item;
        item.setDecibel(value);
        XmlDecibelListType list;
        list.setDecibelList({&item});
        return list;
    }
};
template <>
struct Values<XmlDegreesListType> {
    static double get(const XmlDegreesListType& list) { return list.degreeList().first()->degrees(); }
    static XmlDegreesListType make(double value)
    {
        XmlDegreesType item;
        item.setDegrees(value);
        XmlDegreesListType list;
        list.setDegreesList({&item});
        return list;
    }
};
template <>
struct Values<XmlDBMListType> {
    static double get(const XmlDBMListType& list) { return list.dBmList().first()->dBm(); }
    static XmlDBMListType make(double value)
    {
        XmlDBMType item;
        item.setDBM(value);
        XmlDBMListType list;
        list.setDBMList({&item});
        return list;
    }
};

/// The operations of one optional list of a device.
struct ListAccess {
    QString tag;
    bool (*has)(const XmlDeviceType& device);
    const void* (*address)(const XmlDeviceType& device);
    double (*value)(const XmlDeviceType& device);
    void (*set)(XmlDeviceType& device, double value);
    void (*setWithVersion)(XmlDeviceType& device, const QString& version);
    void (*setOwn)(XmlDeviceType& device);
};

template <typename List, bool (XmlDeviceType::*Has)() const, const List* (XmlDeviceType::*Get)() const,
          void (XmlDeviceType::*Set)(const List&)>
ListAccess access(const char* tag)
{
    return {
        QString::fromLatin1(tag),
        [](const XmlDeviceType& device) { return (device.*Has)(); },
        [](const XmlDeviceType& device) -> const void* { return (device.*Get)(); },
        [](const XmlDeviceType& device) { return Values<List>::get(*(device.*Get)()); },
        [](XmlDeviceType& device, double value) { (device.*Set)(Values<List>::make(value)); },
        [](XmlDeviceType& device, const QString& version) {
            List list = Values<List>::make(1.0);
            list.setVersion(version);
            (device.*Set)(list);
        },
        [](XmlDeviceType& device) { (device.*Set)(*(device.*Get)()); },
    };
}

/// The optional lists in the order of writing.
const QVector<ListAccess>& lists()
{
    using D = XmlDeviceType;
    static const QVector<ListAccess> all = {
        access<XmlDecibelListType, &D::hasNoise, &D::noiseList, &D::setNoiseList>("Noises"),
        access<XmlDecibelListType, &D::hasKfactor, &D::kFactorList, &D::setKfactorList>("KFactors"),
        access<XmlDecibelListType, &D::hasAttenuation, &D::attenuationList, &D::setAttenuationList>("Attenuations"),
        access<XmlDecibelListType, &D::hasGain, &D::gainList, &D::setGainList>("Gains"),
        access<XmlDegreesListType, &D::hasAccuracy, &D::accuracyList, &D::setAccuracyList>("Degrees"),
        access<XmlDBMListType, &D::hasDBM, &D::dbmList, &D::setDBMList>("DBM"),
    };
    return all;
}

XmlDeviceCategoryType category(XmlDeviceCategoryType::Category value)
{
    XmlDeviceCategoryType category;
    category.setCategory(value);
    return category;
}

XmlObjNameType name(const QString& text)
{
    XmlObjNameType name;
    name.setObjName(text);
    return name;
}

XmlFreqListType frequencies(double value)
{
    XmlFreqType frequency;
    frequency.setFrequency_MHz(value);
    XmlFreqListType list;
    list.setFreqList({&frequency});
    return list;
}

/// A device as deviceXml() has it, made by its setters. \a set has a bit for each list.
XmlDeviceType deviceWith(int set, double factor = 1.0)
{
    XmlDeviceType device;
    device.setCategory(category(XmlDeviceCategoryType::Cable));
    device.setObjName(name(QStringLiteral("Filter 7")));
    device.setFrequencyList(frequencies(100.0 * factor));
    for (int i = 0; i < lists().size(); ++i) {
        if (set & (1 << i))
            lists().at(i).set(device, (i + 1) * factor);
    }
    return device;
}

QStringList tagsOf(int set)
{
    QStringList tags;
    for (int i = 0; i < listTags().size(); ++i) {
        if (set & (1 << i))
            tags.append(listTags().at(i));
    }
    return tags;
}

constexpr int noList = 0;
constexpr int noisesOnly = 1;
constexpr int allLists = 63;

const QString newDeviceXml = QStringLiteral("<D version=\"1.0\"><DeviceCategory>UNDEFINED</DeviceCategory><Name></Name>"
                                            "<Frequencies version=\"1.0\"/></D>");

QString newDeviceError()
{
    return block("XmlDeviceType",
                 block("XmlDeviceCategoryType", QStringLiteral("Illegal Device Category.")) + QLatin1Char('\n')
                     + block("XmlObjNameType", QStringLiteral("Object name too short (min. 1).")) + QLatin1Char('\n')
                     + block("XmlFreqListType", QStringLiteral("Too few frequencies (min. 1)")));
}

// Map entries

XmlKeyType key(int value)
{
    XmlKeyType key;
    key.setKey(value);
    return key;
}

XmlLengthType length(int value, const QString& version = QStringLiteral("1.0"))
{
    XmlLengthType length;
    length.setLength(value);
    length.setVersion(version);
    return length;
}

XmlMapType entry(int keyNumber, int value)
{
    XmlMapType entry;
    entry.setKey(key(keyNumber));
    entry.setValue(length(value));
    return entry;
}

QString entryXml(int value)
{
    return QStringLiteral("<M version=\"1.0\"><Key version=\"1.0\" unit=\"m\">%1</Key>"
                          "<Value version=\"1.0\" unit=\"m\">%1</Value></M>")
        .arg(value);
}

const QString newEntryXml = QStringLiteral("<M version=\"1.0\"><Key version=\"1.0\" unit=\"m\">0</Key>"
                                           "<Value version=\"1.0\" unit=\"m\">0</Value></M>");

// The two lists, told alike. A number marks each entry.

struct DeviceEntries {
    using List = XmlDeviceListType;
    using Item = XmlDeviceType;
    static constexpr const char* className = "XmlDeviceListType";
    static constexpr const char* tag = "Device";
    static constexpr const char* otherTag = "Map";
    static constexpr const char* tooFew = "Too few devices (min. 1)";
    static const QList<Item*>& items(const List& list) { return list.deviceList(); }
    static void setItems(List& list, const QList<Item*>& items) { list.setDeviceList(items); }
    static Item item(int number)
    {
        Item device = deviceWith(noisesOnly);
        device.setObjName(name(QString::number(number)));
        return device;
    }
    static int number(const Item& item) { return item.objName()->objName().toInt(); }
    static void setNumber(Item& item, int number) { item.setObjName(name(QString::number(number))); }
    static QString xml(int number)
    {
        return QStringLiteral("<Device><DeviceCategory>Cable</DeviceCategory><Name>%1</Name>"
                              "<Frequencies><Frequency unit=\"MHz\">100</Frequency></Frequencies>"
                              "<Noises><Decibel>1</Decibel></Noises></Device>")
            .arg(number);
    }
    static QString writtenXml(int number)
    {
        return QStringLiteral(
                   "<Device version=\"1.0\"><DeviceCategory>Cable</DeviceCategory><Name>%1</Name>"
                   "<Frequencies version=\"1.0\"><Frequency version=\"1.0\" unit=\"MHz\">100.000000</Frequency>"
                   "</Frequencies><Noises version=\"1.0\"><Decibel version=\"1.0\" unit=\"dB\">1.000000</Decibel>"
                   "</Noises></Device>")
            .arg(number);
    }
    /// An entry that fails at its first child, on the second line of it.
    static QString failingXml() { return QStringLiteral("<Device>\n<DeviceCategory>Horse</DeviceCategory></Device>"); }
    static QString failure()
    {
        return QStringLiteral("in XmlDeviceCategoryType (line 4, column 22): Illegal enum value..");
    }
    static QString failedXml()
    {
        return QStringLiteral("<Device version=\"1.0\"><DeviceCategory>UNDEFINED</DeviceCategory><Name></Name>"
                              "<Frequencies version=\"1.0\"/></Device>");
    }
    static QString versionFailure()
    {
        return QStringLiteral("in XmlDeviceType (line 3, column 23): Version not supported: 3.0.");
    }
    static QString versionError(const QString& version)
    {
        return block("XmlDeviceType", QStringLiteral("Version \"%1\" not supported").arg(version));
    }
};

struct MapEntries {
    using List = XmlMapListType;
    using Item = XmlMapType;
    static constexpr const char* className = "XmlMapListType";
    static constexpr const char* tag = "Map";
    static constexpr const char* otherTag = "Device";
    static constexpr const char* tooFew = "Too few mappings (min. 1)";
    static const QList<Item*>& items(const List& list) { return list.mapList(); }
    static void setItems(List& list, const QList<Item*>& items) { list.setMapList(items); }
    static Item item(int number) { return entry(number, number); }
    static int number(const Item& item) { return item.value()->length(); }
    static void setNumber(Item& item, int number) { item.setValue(length(number)); }
    static QString xml(int number)
    {
        return QStringLiteral("<Map><Key>1</Key><Value unit=\"m\">%1</Value></Map>").arg(number);
    }
    static QString writtenXml(int number)
    {
        return QStringLiteral("<Map version=\"1.0\"><Key version=\"1.0\" unit=\"m\">%1</Key>"
                              "<Value version=\"1.0\" unit=\"m\">%1</Value></Map>")
            .arg(number);
    }
    static QString failingXml() { return QStringLiteral("<Map>\n<Key>Horse</Key></Map>"); }
    static QString failure()
    {
        return QStringLiteral("in XmlKeyType (line 4, column 11): Illegal value (must be numeric).");
    }
    static QString failedXml()
    {
        return QStringLiteral("<Map version=\"1.0\"><Key version=\"1.0\" unit=\"m\">0</Key>"
                              "<Value version=\"1.0\" unit=\"m\">0</Value></Map>");
    }
    static QString versionFailure()
    {
        return QStringLiteral("in XmlMapType (line 3, column 20): Version not supported: 3.0.");
    }
    static QString versionError(const QString& version)
    {
        return block("XmlMapType", QStringLiteral("Version \"%1\" not supported").arg(version));
    }
};

template <typename Kind>
QVector<int> numbers(const typename Kind::List& list)
{
    QVector<int> numbers;
    for (const auto* item : Kind::items(list))
        numbers.append(Kind::number(*item));
    return numbers;
}

using Numbers = QVector<int>;

/// A list of entries with these numbers.
template <typename Kind>
typename Kind::List listOf(const Numbers& numbers)
{
    QList<typename Kind::Item*> items;
    for (const int number : numbers)
        items.append(new typename Kind::Item(Kind::item(number)));
    typename Kind::List list;
    Kind::setItems(list, items);
    qDeleteAll(items);
    return list;
}

QString xmlOf(const QString& version, const QString& content)
{
    return content.isEmpty() ? QStringLiteral("<L version=\"%1\"/>").arg(version)
                             : QStringLiteral("<L version=\"%1\">").arg(version) + content + QStringLiteral("</L>");
}

} // namespace

class DevicesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatUsersMayCall()
    {
        static_assert(!HasVersion<XmlDeviceCategoryType>::value && !HasSetVersion<XmlDeviceCategoryType>::value);
        static_assert(HasVersion<XmlDeviceType>::value && HasSetVersion<XmlDeviceType>::value);
        static_assert(HasVersion<XmlDeviceListType>::value && HasSetVersion<XmlDeviceListType>::value);
        static_assert(HasVersion<XmlMapType>::value && HasSetVersion<XmlMapType>::value);
        static_assert(HasVersion<XmlMapListType>::value && HasSetVersion<XmlMapListType>::value);
        static_assert(!ShowsSupportsVersion<XmlDeviceCategoryType>::value);
        static_assert(!ShowsSupportsVersion<XmlDeviceType>::value);
        static_assert(!ShowsSupportsVersion<XmlDeviceListType>::value);
        static_assert(!ShowsSupportsVersion<XmlMapType>::value);
        static_assert(!ShowsSupportsVersion<XmlMapListType>::value);

        static_assert(std::is_base_of_v<XmlElementBase, XmlDeviceCategoryType>);
        static_assert(std::is_base_of_v<XmlElementBase, XmlDeviceType>);
        static_assert(std::is_base_of_v<XmlElementBase, XmlDeviceListType>);
        static_assert(std::is_base_of_v<XmlElementBase, XmlMapType>);
        static_assert(std::is_base_of_v<XmlElementBase, XmlMapListType>);

        const XmlDeviceCategoryType category;
        static_assert(std::is_same_v<decltype(category.category()), XmlDeviceCategoryType::Category>);
        const XmlDeviceType device;
        static_assert(std::is_same_v<decltype(device.category()), const XmlDeviceCategoryType*>);
        static_assert(std::is_same_v<decltype(device.objName()), const XmlObjNameType*>);
        static_assert(std::is_same_v<decltype(device.frequencyList()), const XmlFreqListType*>);
        static_assert(std::is_same_v<decltype(device.noiseList()), const XmlDecibelListType*>);
        static_assert(std::is_same_v<decltype(device.kFactorList()), const XmlDecibelListType*>);
        static_assert(std::is_same_v<decltype(device.attenuationList()), const XmlDecibelListType*>);
        static_assert(std::is_same_v<decltype(device.gainList()), const XmlDecibelListType*>);
        static_assert(std::is_same_v<decltype(device.accuracyList()), const XmlDegreesListType*>);
        static_assert(std::is_same_v<decltype(device.dbmList()), const XmlDBMListType*>);
        static_assert(std::is_same_v<decltype(device.version()), QString>);
        const XmlDeviceListType devices;
        static_assert(std::is_same_v<decltype(devices.deviceList()), const QList<XmlDeviceType*>&>);
        static_assert(std::is_same_v<decltype(devices.version()), QString>);
        const XmlMapType entry;
        static_assert(std::is_same_v<decltype(entry.key()), const XmlKeyType*>);
        static_assert(std::is_same_v<decltype(entry.value()), const XmlLengthType*>);
        static_assert(std::is_same_v<decltype(entry.version()), QString>);
        const XmlMapListType entries;
        static_assert(std::is_same_v<decltype(entries.mapList()), const QList<XmlMapType*>&>);
        static_assert(std::is_same_v<decltype(entries.version()), QString>);
    }

    // The category

    void theCategoriesInOrder()
    {
        using C = XmlDeviceCategoryType;
        QCOMPARE(static_cast<int>(C::Undefined), 0);
        QCOMPARE(static_cast<int>(C::Receiver), 1);
        QCOMPARE(static_cast<int>(C::PassiveAntennas), 2);
        QCOMPARE(static_cast<int>(C::Cable), 3);
        QCOMPARE(static_cast<int>(C::Other), 4);
        QCOMPARE(static_cast<int>(C::ActiveAntennas), 5);
        QCOMPARE(static_cast<int>(C::DF), 6);
    }

    // A device: what it holds

    void aNewDevice()
    {
        XmlDeviceType device;
        QVERIFY(device.category());
        QCOMPARE(device.category()->category(), XmlDeviceCategoryType::Undefined);
        QVERIFY(device.objName());
        QCOMPARE(device.objName()->objName(), QString());
        QVERIFY(device.frequencyList());
        QVERIFY(device.frequencyList()->freqList().isEmpty());
        QCOMPARE(device.version(), QStringLiteral("1.0"));
        for (const ListAccess& list : lists()) {
            QVERIFY2(!list.has(device), qPrintable(list.tag));
            QVERIFY2(!list.address(device), qPrintable(list.tag));
        }
        QVERIFY(!device.isValid());
        QCOMPARE(device.syntaxError(), newDeviceError());
        QCOMPARE(written(device, QStringLiteral("D")), newDeviceXml);
    }

    void theFixedChildrenOfADevice()
    {
        XmlDeviceType device;
        const auto* heldCategory = device.category();
        const auto* heldName = device.objName();
        const auto* heldFrequencies = device.frequencyList();

        XmlDeviceCategoryType newCategory = category(XmlDeviceCategoryType::DF);
        XmlObjNameType newName = name(QStringLiteral("DF 1"));
        XmlFreqListType newFrequencies = frequencies(5.0);
        device.setCategory(newCategory);
        device.setObjName(newName);
        device.setFrequencyList(newFrequencies);
        device.setVersion(QStringLiteral("7"));
        const auto check = [&] {
            QCOMPARE(device.category(), heldCategory); // assigned in place
            QCOMPARE(device.objName(), heldName);
            QCOMPARE(device.frequencyList(), heldFrequencies);
            QCOMPARE(device.category()->category(), XmlDeviceCategoryType::DF);
            QCOMPARE(device.objName()->objName(), QStringLiteral("DF 1"));
            QCOMPARE(device.frequencyList()->freqList().size(), 1);
            QCOMPARE(device.frequencyList()->freqList().first()->frequency_MHz(), 5.0);
            QCOMPARE(device.version(), QStringLiteral("7"));
        };
        check();

        newCategory.reset();
        newName.reset();
        newFrequencies.reset();
        check(); // the device has copies

        device.setCategory(*device.category());
        device.setObjName(*device.objName());
        device.setFrequencyList(*device.frequencyList());
        check();
    }

    void theOptionalListsOfADevice()
    {
        for (int i = 0; i < lists().size(); ++i) {
            const ListAccess& list = lists().at(i);
            XmlDeviceType device = deviceWith(noList);
            list.set(device, 8.0);
            for (int other = 0; other < lists().size(); ++other)
                QCOMPARE(lists().at(other).has(device), other == i);
            QCOMPARE(list.value(device), 8.0);
            const void* held = list.address(device);
            QVERIFY2(held, qPrintable(list.tag));

            list.set(device, 9.0);
            QCOMPARE(list.value(device), 9.0);
            QCOMPARE(list.address(device), held); // assigned in place
            list.setOwn(device);
            QCOMPARE(list.value(device), 9.0);
            QCOMPARE(list.address(device), held);
        }

        // One list may be handed to another.
        XmlDeviceType device;
        device.setNoiseList(Values<XmlDecibelListType>::make(3.0));
        device.setGainList(*device.noiseList());
        device.setNoiseList(Values<XmlDecibelListType>::make(4.0));
        QCOMPARE(device.gainList()->decibelList().first()->decibel(), 3.0);
        QVERIFY(device.gainList() != device.noiseList());
        device.setNoiseList(*device.gainList());
        QCOMPARE(device.noiseList()->decibelList().first()->decibel(), 3.0);

        // The caller's list stays the caller's.
        XmlDBMListType levels = Values<XmlDBMListType>::make(3.0);
        device.setDBMList(levels);
        levels.reset();
        QCOMPARE(device.dbmList()->dBmList().size(), 1);
        QCOMPARE(device.dbmList()->dBmList().first()->dBm(), 3.0);
    }

    void copiesOfADevice()
    {
        XmlDeviceType device = deviceWith(allLists);
        device.setVersion(QStringLiteral("3.0"));
        const QString xml = written(device, QStringLiteral("D"));

        const XmlDeviceType copy(device);
        QCOMPARE(written(copy, QStringLiteral("D")), xml);
        QVERIFY(copy.category() != device.category());
        QVERIFY(copy.objName() != device.objName());
        QVERIFY(copy.frequencyList() != device.frequencyList());
        QVERIFY(copy.frequencyList()->freqList().first() != device.frequencyList()->freqList().first());
        for (const ListAccess& list : lists())
            QVERIFY2(list.address(copy) != list.address(device), qPrintable(list.tag));

        const XmlDeviceType& self = device;
        device = self;
        QCOMPARE(written(device, QStringLiteral("D")), xml);

        device.reset();
        QCOMPARE(written(copy, QStringLiteral("D")), xml);
        QCOMPARE(copy.version(), QStringLiteral("3.0"));
    }

    // Every set of lists is assigned to every other.
    void assigningADevice()
    {
        for (int target = 0; target <= allLists; ++target) {
            for (int source = 0; source <= allLists; ++source) {
                XmlDeviceType from = deviceWith(source, 2.0);
                from.setVersion(QStringLiteral("2.0"));
                XmlDeviceType to = deviceWith(target);
                QVector<const void*> held;
                for (const ListAccess& list : lists())
                    held.append(list.address(to));
                const auto* heldCategory = to.category();
                const auto* heldName = to.objName();
                const auto* heldFrequencies = to.frequencyList();

                to = from;
                QCOMPARE(written(to, QStringLiteral("D")), written(from, QStringLiteral("D")));
                QCOMPARE(to.version(), QStringLiteral("2.0"));
                QCOMPARE(to.category(), heldCategory);
                QCOMPARE(to.objName(), heldName);
                QCOMPARE(to.frequencyList(), heldFrequencies);
                for (int i = 0; i < lists().size(); ++i) {
                    const ListAccess& list = lists().at(i);
                    QCOMPARE(list.has(to), (source & (1 << i)) != 0);
                    if (!list.has(to)) {
                        QVERIFY(!list.address(to));
                        continue;
                    }
                    QCOMPARE(list.value(to), (i + 1) * 2.0);
                    QVERIFY(list.address(to) != list.address(from));
                    if (target & (1 << i))
                        QCOMPARE(list.address(to), held.at(i));
                }
            }
        }
    }

    void resettingADevice()
    {
        XmlDeviceType device = deviceWith(allLists);
        device.setVersion(QStringLiteral("2.0"));
        const auto* heldCategory = device.category();
        const auto* heldName = device.objName();
        const auto* heldFrequencies = device.frequencyList();
        device.reset();
        QCOMPARE(device.category(), heldCategory); // reset in place
        QCOMPARE(device.objName(), heldName);
        QCOMPARE(device.frequencyList(), heldFrequencies);
        QCOMPARE(device.version(), QStringLiteral("1.0"));
        for (const ListAccess& list : lists()) {
            QVERIFY2(!list.has(device), qPrintable(list.tag));
            QVERIFY2(!list.address(device), qPrintable(list.tag));
        }
        QCOMPARE(written(device, QStringLiteral("D")), newDeviceXml);
        QVERIFY(!device.isValid());
        QCOMPARE(device.syntaxError(), newDeviceError());
    }

    // A device: what is wrong with it

    void judgingADevice_data()
    {
        QTest::addColumn<QString>("part"); // the one that is wrong
        QTest::addColumn<QString>("problem");
        QTest::newRow("nothing is wrong") << QString() << QString();
        QTest::newRow("the version is another")
            << QStringLiteral("version") << QStringLiteral("Version \"2.0\" not supported");
        QTest::newRow("the version is no text")
            << QStringLiteral("no version") << QStringLiteral("Version \"\" not supported");
        QTest::newRow("the version is longer")
            << QStringLiteral("longer version") << QStringLiteral("Version \"1.00\" not supported");
        QTest::newRow("the category is undefined")
            << QStringLiteral("DeviceCategory")
            << block("XmlDeviceCategoryType", QStringLiteral("Illegal Device Category."));
        QTest::newRow("the name is empty")
            << QStringLiteral("Name") << block("XmlObjNameType", QStringLiteral("Object name too short (min. 1)."));
        QTest::newRow("there are no frequencies")
            << QStringLiteral("Frequencies")
            << block("XmlFreqListType", QStringLiteral("Too few frequencies (min. 1)"));
        const QString version = QStringLiteral("Version \"x\" not supported");
        for (const char* tag : {"Noises", "KFactors", "Attenuations", "Gains"})
            QTest::newRow(tag) << QString::fromLatin1(tag) << block("XmlDecibelListType", version);
        QTest::newRow("Degrees") << QStringLiteral("Degrees") << block("XmlDegreesListType", version);
        QTest::newRow("DBM") << QStringLiteral("DBM") << block("XmlDBMListType", version);
    }
    void judgingADevice()
    {
        QFETCH(QString, part);
        QFETCH(QString, problem);
        XmlDeviceType device = deviceWith(allLists);
        if (part == QStringLiteral("version"))
            device.setVersion(QStringLiteral("2.0"));
        else if (part == QStringLiteral("no version"))
            device.setVersion(QString());
        else if (part == QStringLiteral("longer version"))
            device.setVersion(QStringLiteral("1.00"));
        else if (part == QStringLiteral("DeviceCategory"))
            device.setCategory(XmlDeviceCategoryType());
        else if (part == QStringLiteral("Name"))
            device.setObjName(XmlObjNameType());
        else if (part == QStringLiteral("Frequencies"))
            device.setFrequencyList(XmlFreqListType());
        for (const ListAccess& list : lists()) {
            if (part == list.tag)
                list.setWithVersion(device, QStringLiteral("x"));
        }
        QCOMPARE(device.isValid(), part.isEmpty());
        QCOMPARE(device.syntaxError(), part.isEmpty() ? QString() : block("XmlDeviceType", problem));
        QCOMPARE(device.syntaxError(), part.isEmpty() ? QString() : block("XmlDeviceType", problem)); // not twice in it
    }

    void theOrderOfADevicesProblems()
    {
        XmlDeviceType device;
        device.setVersion(QStringLiteral("2.0"));
        for (const ListAccess& list : lists())
            list.setWithVersion(device, list.tag);
        QCOMPARE(device.syntaxError(),
                 QStringLiteral("+++ in XmlDeviceType Begin:\n"
                                "Version \"2.0\" not supported\n"
                                "+++ in XmlDeviceCategoryType Begin:\n"
                                "Illegal Device Category.\n"
                                "--- in XmlDeviceCategoryType End\n"
                                "+++ in XmlObjNameType Begin:\n"
                                "Object name too short (min. 1).\n"
                                "--- in XmlObjNameType End\n"
                                "+++ in XmlFreqListType Begin:\n"
                                "Too few frequencies (min. 1)\n"
                                "--- in XmlFreqListType End\n"
                                "+++ in XmlDecibelListType Begin:\n"
                                "Version \"Noises\" not supported\n"
                                "--- in XmlDecibelListType End\n"
                                "+++ in XmlDecibelListType Begin:\n"
                                "Version \"KFactors\" not supported\n"
                                "--- in XmlDecibelListType End\n"
                                "+++ in XmlDecibelListType Begin:\n"
                                "Version \"Attenuations\" not supported\n"
                                "--- in XmlDecibelListType End\n"
                                "+++ in XmlDecibelListType Begin:\n"
                                "Version \"Gains\" not supported\n"
                                "--- in XmlDecibelListType End\n"
                                "+++ in XmlDegreesListType Begin:\n"
                                "Version \"Degrees\" not supported\n"
                                "--- in XmlDegreesListType End\n"
                                "+++ in XmlDBMListType Begin:\n"
                                "Version \"DBM\" not supported\n"
                                "--- in XmlDBMListType End\n"
                                "--- in XmlDeviceType End"));
    }

    // A device: the order of its children

    void gates_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<bool>("refused");
        for (const Child& before : deviceChildren()) {
            for (const Child& child : deviceChildren()) {
                const bool refused = child.refusedAfter.contains(before.tag);
                const QString row =
                    QStringLiteral("%1 after %2 is %3")
                        .arg(child.tag, before.tag, refused ? QStringLiteral("refused") : QStringLiteral("read"));
                QTest::newRow(qPrintable(row)) << before.tag << child.tag << refused;
            }
        }
    }
    void gates()
    {
        QFETCH(QString, before);
        QFETCH(QString, tag);
        QFETCH(bool, refused);
        XmlDeviceType device;
        const QString error = readError(device, deviceXml({before, tag}));
        if (refused) {
            QCOMPARE(error,
                     QStringLiteral("in XmlDeviceType (line 3, column %1): Unexpected element \"%2\".")
                         .arg(tag.size() + 2)
                         .arg(tag));
        } else {
            QCOMPARE(error, QStringLiteral("in XmlDeviceType (line 4, column 4): Unexpected token \"EndElement\"."));
        }
        // What was read is kept, and nothing else has come up.
        QCOMPARE(written(device, QStringLiteral("D")),
                 deviceHolding(refused ? QStringList{before} : QStringList{before, tag}));
    }

    // What counts is what has been read, not what was last.
    void upToFourChildrenInEveryOrder()
    {
        int complete = 0;
        QVector<QStringList> sequences = {QStringList()};
        for (int first = 0; first < sequences.size(); ++first) {
            const QStringList tags = sequences.at(first);
            XmlDeviceType device;
            const QString error = readError(device, deviceXml(tags));
            QCOMPARE(error, deviceError(tags));
            QCOMPARE(written(device, QStringLiteral("D")), deviceHolding(tags.mid(0, firstRefused(tags))));
            if (error.isEmpty())
                ++complete;
            if (tags.size() < 4 && firstRefused(tags) == tags.size()) {
                for (const Child& child : deviceChildren())
                    sequences.append(tags + QStringList{child.tag});
            }
        }
        QCOMPARE(complete, 3); // the fixed children and a list that may stand alone
    }

    void theGateTableAgreesWithItself()
    {
        // A slip in the tables above would make the tests ask for the wrong thing.
        QCOMPARE(deviceChildren().size(), 9);
        int refusals = 0;
        for (const Child& child : deviceChildren())
            refusals += int(child.refusedAfter.size());
        QCOMPARE(refusals, 9 + 8 + 7 + 6 + 2 + 6 + 5 + 5 + 3);
        QCOMPARE(lists().size(), 6);
    }

    // All 64 sets of lists, each in every order: five are complete, each in one order only.
    void sets_data()
    {
        QTest::addColumn<int>("set");
        QTest::addColumn<bool>("readable");    // in some order
        QTest::addColumn<QString>("complete"); // the order in which the device may end
        for (int set = 0; set <= allLists; ++set) {
            const QStringList tags = tagsOf(set);
            // Attenuations go with no other list, and gains not with accuracies.
            const bool readable = !(tags.contains(QStringLiteral("Attenuations")) && tags.size() > 1)
                && !(tags.contains(QStringLiteral("Gains")) && tags.contains(QStringLiteral("Degrees")));
            QString complete;
            const QString name = tags.join(QLatin1Char(' '));
            if (name == QStringLiteral("Noises") || name == QStringLiteral("KFactors")
                || name == QStringLiteral("Attenuations"))
                complete = name;
            else if (name == QStringLiteral("Noises KFactors Gains DBM"))
                complete = QStringLiteral("Noises Gains DBM KFactors");
            else if (name == QStringLiteral("Noises KFactors Degrees DBM"))
                complete = QStringLiteral("Noises Degrees DBM KFactors");
            QTest::newRow(name.isEmpty() ? "no list" : qPrintable(name)) << set << readable << complete;
        }
    }
    void sets()
    {
        QFETCH(int, set);
        QFETCH(bool, readable);
        QFETCH(QString, complete);
        const QStringList held = tagsOf(set);
        const QString whole = deviceHolding(fixedTags() + held);

        QStringList order = held;
        std::sort(order.begin(), order.end());
        bool wasReadable = false;
        QStringList completeOrders;
        do {
            const QStringList tags = fixedTags() + order;
            XmlDeviceType device;
            const QString error = readError(device, deviceXml(tags));
            QCOMPARE(error, deviceError(tags));
            if (!error.contains(QStringLiteral("Unexpected element"))) {
                wasReadable = true;
                QCOMPARE(written(device, QStringLiteral("D")), whole);
                QVERIFY(device.isValid()); // whether it may end or not
            }
            if (error.isEmpty())
                completeOrders.append(order.join(QLatin1Char(' ')));
        } while (std::next_permutation(order.begin(), order.end()));
        QCOMPARE(wasReadable, readable);
        QCOMPARE(completeOrders, complete.isEmpty() ? QStringList() : QStringList{complete});

        // Made by setters, every set is valid and written.
        XmlDeviceType made = deviceWith(set);
        QVERIFY(made.isValid());
        QCOMPARE(made.syntaxError(), QString());
        QCOMPARE(written(made, QStringLiteral("D")), whole);
    }

    void theFixedChildrenAreRequired()
    {
        for (const QStringList& set : completeSets()) {
            const bool four = set.size() == 4;
            const QStringList order =
                four ? QStringList{set.at(0), set.at(2), set.at(3), set.at(1)} : set; // the K-factors last
            for (int fixed = 0; fixed < 8; ++fixed) {
                QStringList tags;
                for (int i = 0; i < 3; ++i) {
                    if (fixed & (1 << i))
                        tags.append(fixedTags().at(i));
                }
                tags += order;
                XmlDeviceType device;
                const QString error = readError(device, deviceXml(tags));
                if (fixed == 7) {
                    QCOMPARE(error, QString());
                } else {
                    QCOMPARE(error,
                             QStringLiteral("in XmlDeviceType (line %1, column 4): Unexpected token \"EndElement\".")
                                 .arg(tags.size() + 2));
                }
                QCOMPARE(written(device, QStringLiteral("D")), deviceHolding(tags));
            }
        }
    }

    void readingWhatTheLibraryWrote_data()
    {
        QTest::addColumn<QString>("lists");
        QTest::addColumn<QString>("error");
        QTest::newRow("noises are read") << QStringLiteral("Noises") << QString();
        QTest::newRow("K-factors are read") << QStringLiteral("KFactors") << QString();
        QTest::newRow("attenuations are read") << QStringLiteral("Attenuations") << QString();
        QTest::newRow("gains behind K-factors are refused")
            << QStringLiteral("Noises KFactors Gains DBM") << QStringLiteral("Unexpected element \"Gains\".");
        QTest::newRow("accuracies behind K-factors are refused")
            << QStringLiteral("Noises KFactors Degrees DBM") << QStringLiteral("Unexpected element \"Degrees\".");
        QTest::newRow("a device without lists is refused")
            << QString() << QStringLiteral("Unexpected token \"EndElement\".");
    }
    void readingWhatTheLibraryWrote()
    {
        QFETCH(QString, lists);
        QFETCH(QString, error);
        const QStringList tags = lists.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        int set = 0;
        for (int i = 0; i < listTags().size(); ++i) {
            if (tags.contains(listTags().at(i)))
                set |= 1 << i;
        }
        const QString xml = written(deviceWith(set), QStringLiteral("D"));
        XmlDeviceType device;
        const QString raised = readError(device, xml);
        if (error.isEmpty()) {
            QCOMPARE(raised, QString());
            QCOMPARE(written(device, QStringLiteral("D")), xml);
        } else {
            QVERIFY(raised.startsWith(QStringLiteral("in XmlDeviceType (line 1, column ")));
            QVERIFY2(raised.endsWith(QStringLiteral("): ") + error), qPrintable(raised));
        }
    }

    // A device: reading

    void readingADevice_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("error");
        const QString start = child(QStringLiteral("DeviceCategory")).xml + child(QStringLiteral("Name")).xml
            + child(QStringLiteral("Frequencies")).xml;
        const QString whole = start + child(QStringLiteral("Noises")).xml;
        const QString unexpected = QStringLiteral("in XmlDeviceType (line 2, column %1): Unexpected element \"%2\".");

        QTest::newRow("a whole device") << QStringLiteral("<D>%1</D>").arg(whole) << QString();
        QTest::newRow("the supported version") << QStringLiteral("<D version=\"1.0\">%1</D>").arg(whole) << QString();
        QTest::newRow("an empty version") << QStringLiteral("<D version=\"\">%1</D>").arg(whole) << QString();
        QTest::newRow("other attributes") << QStringLiteral("<D Version=\"2\" id=\"3\">%1</D>").arg(whole) << QString();
        QTest::newRow("text, comments and instructions between the children")
            << QStringLiteral("<D>text<!-- x -->%1<?y z?><![CDATA[<Gains/>]]>%2 </D>")
                   .arg(start, child(QStringLiteral("Noises")).xml)
            << QString();
        QTest::newRow("another version") << QStringLiteral("<D version=\"2.0\">%1</D>").arg(whole)
                                         << QStringLiteral(
                                                "in XmlDeviceType (line 1, column 17): Version not supported: 2.0.");
        QTest::newRow("a longer version")
            << QStringLiteral("<D\n version=\"1.00\">%1</D>").arg(whole)
            << QStringLiteral("in XmlDeviceType (line 2, column 16): Version not supported: 1.00.");
        QTest::newRow("a shorter version")
            << QStringLiteral("<D version=\"1\">%1</D>").arg(whole)
            << QStringLiteral("in XmlDeviceType (line 1, column 15): Version not supported: 1.");
        for (const char* tag : {"Category", "devicecategory", "name", "Frequency", "noises", "Kfactors", "KFactor",
                                "Attenuation", "Gain", "degrees", "dBm", "dbm", "Reference", "D"}) {
            QTest::newRow(tag) << QStringLiteral("<D>%1\n<%2/></D>").arg(start, QLatin1String(tag))
                               << unexpected.arg(qstrlen(tag) + 3).arg(QLatin1String(tag));
        }
        QTest::newRow("an unknown child first")
            << QStringLiteral("<D>\n<x>%1</x></D>").arg(whole) << unexpected.arg(3).arg(QStringLiteral("x"));
        QTest::newRow("nothing at all") << QStringLiteral(
            "<D/>") << QStringLiteral("in XmlDeviceType (line 1, column 4): Unexpected token \"EndElement\".");
        QTest::newRow("a category that is none")
            << QStringLiteral("<D>\n<DeviceCategory>Horse</DeviceCategory></D>")
            << QStringLiteral("in XmlDeviceCategoryType (line 2, column 22): Illegal enum value..");
        QTest::newRow("a name with a child")
            << QStringLiteral("<D>%1\n<Name><b/></Name></D>").arg(child(QStringLiteral("DeviceCategory")).xml)
            << QStringLiteral("in XmlObjNameType (line 2, column 10): Unexpected token \"StartElement\".");
        QTest::newRow("no frequencies in the list")
            << QStringLiteral("<D>\n<Frequencies></Frequencies></D>")
            << QStringLiteral("in XmlFreqListType (line 2, column 27): Unexpected token \"EndElement\".");
        QTest::newRow("a noise that is no number")
            << QStringLiteral("<D>%1\n<Noises><Decibel>1</Decibel><Decibel>x</Decibel></Noises></D>").arg(start)
            << QStringLiteral("in XmlDecibelType (line 2, column 39): Illegal value (must be numeric).");
        QTest::newRow("accuracies of levels")
            << QStringLiteral("<D>%1\n<Degrees><dBm>1</dBm></Degrees></D>").arg(start)
            << QStringLiteral("in XmlDegreesListType (line 2, column 14): Unexpected element \"dBm\".");
        QTest::newRow("levels of ratios")
            << QStringLiteral("<D>%1\n<DBM><Decibel>1</Decibel></DBM></D>").arg(start)
            << QStringLiteral("in XmlDBMListType (line 2, column 14): Unexpected element \"Decibel\".");
        QTest::newRow("a list of another version is read")
            << QStringLiteral("<D>%1<Noises version=\"2.0\"><Decibel>1</Decibel></Noises></D>").arg(start) << QString();
        QTest::newRow("a document that ends early")
            << QStringLiteral("<D>%1").arg(whole) << QStringLiteral("Premature end of document.");
    }
    void readingADevice()
    {
        QFETCH(QString, xml);
        QFETCH(QString, error);
        XmlDeviceType device;
        device.setVersion(QStringLiteral("9"));
        QCOMPARE(readError(device, xml), error);
        QCOMPARE(device.version(),
                 error.contains(QStringLiteral("Version"))
                     ? error.section(QLatin1Char(' '), -1).chopped(1) // the version is kept as it was read
                     : QStringLiteral("1.0"));

        // Whatever happened, the object can be checked, written, copied, read again and reset.
        QCOMPARE(device.isValid(), device.syntaxError().isEmpty());
        QCOMPARE(written(XmlDeviceType(device), QStringLiteral("D")), written(device, QStringLiteral("D")));
        QCOMPARE(readError(device, deviceXml(words("DeviceCategory Name Frequencies KFactors"))), QString());
        QCOMPARE(device.kFactorList()->decibelList().first()->decibel(), 2.0);
        device.reset();
        QCOMPARE(written(device, QStringLiteral("D")), newDeviceXml);
        QCOMPARE(device.syntaxError(), newDeviceError());
    }

    void whatADeviceReads()
    {
        auto device =
            readFrom<XmlDeviceType>(deviceXml(words("DeviceCategory Name Frequencies Noises Gains DBM KFactors")));
        QCOMPARE(device.category()->category(), XmlDeviceCategoryType::Cable);
        QCOMPARE(device.objName()->objName(), QStringLiteral("Filter 7"));
        QCOMPARE(device.frequencyList()->freqList().size(), 1);
        QCOMPARE(device.frequencyList()->freqList().first()->frequency_MHz(), 100.0);
        QVERIFY(device.hasNoise() && device.hasKfactor() && device.hasGain() && device.hasDBM());
        QCOMPARE(device.noiseList()->decibelList().first()->decibel(), 1.0);
        QCOMPARE(device.kFactorList()->decibelList().first()->decibel(), 2.0);
        QVERIFY(!device.attenuationList());
        QCOMPARE(device.gainList()->decibelList().first()->decibel(), 4.0);
        QVERIFY(!device.accuracyList());
        QCOMPARE(device.dbmList()->dBmList().first()->dBm(), 6.0);
        QVERIFY(device.isValid());
        QCOMPARE(device.syntaxError(), QString());

        device =
            readFrom<XmlDeviceType>(deviceXml(words("DeviceCategory Name Frequencies Noises Degrees DBM KFactors")));
        QVERIFY(!device.hasGain());
        QVERIFY(device.hasAccuracy());
        QCOMPARE(device.accuracyList()->degreeList().first()->degrees(), 5.0);
        device = readFrom<XmlDeviceType>(deviceXml(words("DeviceCategory Name Frequencies Attenuations")));
        QVERIFY(device.hasAttenuation());
        QCOMPARE(device.attenuationList()->decibelList().first()->decibel(), 3.0);
        QVERIFY(!device.hasNoise());
    }

    void aFailureInsideADevice()
    {
        // The child that failed is there with what it had read.
        XmlDeviceType device;
        QVERIFY(!readError(device,
                           QStringLiteral("<D><DeviceCategory>DF</DeviceCategory><Name>A</Name>"
                                          "<Frequencies><Frequency unit=\"MHz\">7</Frequency></Frequencies>"
                                          "<Noises><Decibel>1</Decibel><Decibel>x</Decibel></Noises></D>"))
                     .isEmpty());
        QCOMPARE(device.category()->category(), XmlDeviceCategoryType::DF);
        QCOMPARE(device.objName()->objName(), QStringLiteral("A"));
        QCOMPARE(device.frequencyList()->freqList().first()->frequency_MHz(), 7.0);
        QVERIFY(device.hasNoise());
        QCOMPARE(device.noiseList()->decibelList().size(), 2);

        // A wrong category leaves none.
        QVERIFY(!readError(device, QStringLiteral("<D><DeviceCategory>Horse</DeviceCategory></D>")).isEmpty());
        QCOMPARE(device.category()->category(), XmlDeviceCategoryType::Undefined);
        QCOMPARE(device.objName()->objName(), QStringLiteral("A"));

        // Another version ends the reading before the first child.
        device.setCategory(category(XmlDeviceCategoryType::Other));
        QVERIFY(
            !readError(device, QStringLiteral("<D version=\"2.0\"><DeviceCategory>DF</DeviceCategory></D>")).isEmpty());
        QCOMPARE(device.category()->category(), XmlDeviceCategoryType::Other);
        QCOMPARE(device.version(), QStringLiteral("2.0"));
        QVERIFY(!device.isValid());
    }

    void readingIntoAUsedDevice()
    {
        XmlDeviceType device = deviceWith(allLists, 3.0);
        QVector<const void*> held = {device.category(), device.objName(), device.frequencyList()};
        for (const ListAccess& list : lists())
            held.append(list.address(device));

        // The children are read in place and not reset before; absent ones stay.
        QCOMPARE(readError(device,
                           QStringLiteral("<D><DeviceCategory/><Name/>"
                                          "<Frequencies><Frequency unit=\"MHz\">7</Frequency></Frequencies>"
                                          "<Noises><Decibel>8</Decibel></Noises><Gains><Decibel>9</Decibel></Gains>"
                                          "<DBM><dBm>10</dBm></DBM><KFactors><Decibel>11</Decibel></KFactors></D>")),
                 QString());
        QCOMPARE(device.category()->category(), XmlDeviceCategoryType::Cable);
        QCOMPARE(device.objName()->objName(), QStringLiteral("Filter 7"));
        QCOMPARE(device.frequencyList()->freqList().size(), 1);
        QCOMPARE(device.frequencyList()->freqList().first()->frequency_MHz(), 7.0);
        const QVector<double> values = {8.0, 11.0, 9.0, 9.0, 15.0, 10.0};
        for (int i = 0; i < lists().size(); ++i)
            QCOMPARE(lists().at(i).value(device), values.at(i));
        QCOMPARE(device.noiseList()->decibelList().size(), 1); // a list starts anew

        QVector<const void*> now = {device.category(), device.objName(), device.frequencyList()};
        for (const ListAccess& list : lists())
            now.append(list.address(device));
        QCOMPARE(now, held);

        // What is held does not count for the gates and the set.
        QCOMPARE(readError(device, deviceXml(words("DeviceCategory Name Frequencies Degrees"))),
                 QStringLiteral("in XmlDeviceType (line 6, column 4): Unexpected token \"EndElement\"."));
        QCOMPARE(readError(device, deviceXml(words("DeviceCategory Name Frequencies Attenuations"))), QString());
        QCOMPARE(readError(device, deviceXml(words("Noises"))),
                 QStringLiteral("in XmlDeviceType (line 3, column 4): Unexpected token \"EndElement\"."));
    }

    void aDeviceAtAWrongPosition()
    {
        const QString tag = QStringLiteral("D");
        XmlDeviceType device = deviceWith(noisesOnly);
        const QString before = written(device, tag);
        // The version is restored first: the one held does not lead to another error.
        const auto use = [&] { device.setVersion(QStringLiteral("9")); };
        const QString error = QStringLiteral("in XmlDeviceType (line %1): Parse error (wrong position).");

        use();
        QXmlStreamReader fresh(deviceXml(words("DeviceCategory")));
        device.processXml(fresh, tag);
        QCOMPARE(fresh.errorString(), error.arg(QStringLiteral("1, column 0")));
        QCOMPARE(written(device, tag), before);

        use();
        QXmlStreamReader onText(QStringLiteral("<D version=\"2.0\">\n  <Name>x</Name></D>"));
        onText.readNextStartElement();
        QCOMPARE(onText.readNext(), QXmlStreamReader::Characters);
        device.processXml(onText, tag);
        QCOMPARE(onText.errorString(), error.arg(QStringLiteral("2, column 3")));
        QCOMPARE(written(device, tag), before);

        use();
        QXmlStreamReader atEnd(QStringLiteral("<D>\n</D>"));
        while (!atEnd.atEnd())
            atEnd.readNext();
        device.processXml(atEnd, tag);
        QCOMPARE(atEnd.errorString(), error.arg(QStringLiteral("2, column 4")));
        QCOMPARE(written(device, tag), before);

        use();
        QXmlStreamReader otherTag(deviceXml(words("DeviceCategory Name Frequencies Noises")));
        otherTag.readNextStartElement();
        device.processXml(otherTag, QStringLiteral("d"));
        QCOMPARE(otherTag.errorString(),
                 QStringLiteral("in XmlDeviceType (line 6, column 4): Unexpected token \"EndElement\"."));
    }

    void aDeviceStandsUnderAnyTag()
    {
        const XmlDeviceType device = deviceWith(noisesOnly);
        const QString xml = written(device, QStringLiteral("Noises")); // also under the tag of a child
        XmlDeviceType read;
        QCOMPARE(readError(read, xml), QString());
        QCOMPARE(written(read, QStringLiteral("D")), deviceHolding(fixedTags() + QStringList(words("Noises"))));

        QXmlStreamReader reader(QStringLiteral("<All>%1<Next/></All>").arg(xml));
        reader.readNextStartElement();
        reader.readNextStartElement();
        read.processXml(reader, QStringLiteral("Noises"));
        QCOMPARE(reader.tokenType(), QXmlStreamReader::EndElement); // the end tag is read, and nothing behind it
        QVERIFY(reader.readNextStartElement());
        QCOMPARE(reader.name().toString(), QStringLiteral("Next"));
    }

    // The two lists

    void anEmptyDeviceList() { anEmptyList<DeviceEntries>(); }
    void anEmptyMapList() { anEmptyList<MapEntries>(); }
    void theItemsOfADeviceList() { theItems<DeviceEntries>(); }
    void theItemsOfAMapList() { theItems<MapEntries>(); }
    void copiesOfADeviceList() { copies<DeviceEntries>(); }
    void copiesOfAMapList() { copies<MapEntries>(); }
    void readingADeviceList() { readingAList<DeviceEntries>(); }
    void readingAMapList() { readingAList<MapEntries>(); }
    void failuresInADeviceList() { failuresInAList<DeviceEntries>(); }
    void failuresInAMapList() { failuresInAList<MapEntries>(); }
    void versionsOfADeviceList() { versionsOfAList<DeviceEntries>(); }
    void versionsOfAMapList() { versionsOfAList<MapEntries>(); }
    void problemsOfADeviceList() { problemsOfAList<DeviceEntries>(); }
    void problemsOfAMapList() { problemsOfAList<MapEntries>(); }
    void aDeviceListAtAWrongPosition() { aListAtAWrongPosition<DeviceEntries>(); }
    void aMapListAtAWrongPosition() { aListAtAWrongPosition<MapEntries>(); }

    void devicesOfAUsedListAreNotReused()
    {
        XmlDeviceListType list = listOf<DeviceEntries>({5});
        QCOMPARE(readError(list,
                           QStringLiteral("<L><Device><DeviceCategory/><Name/><Frequencies>"
                                          "<Frequency unit=\"MHz\">1</Frequency></Frequencies>"
                                          "<KFactors><Decibel>1</Decibel></KFactors></Device></L>")),
                 QString());
        const XmlDeviceType* device = list.deviceList().first();
        QCOMPARE(device->category()->category(), XmlDeviceCategoryType::Undefined);
        QCOMPARE(device->objName()->objName(), QString());
        QVERIFY(!device->hasNoise());
        QVERIFY(device->hasKfactor());
    }

    void entriesOfAUsedListAreNotReused()
    {
        XmlMapListType list = listOf<MapEntries>({5});
        QCOMPARE(readError(list, QStringLiteral("<L><Map><Key/><Value unit=\"m\"/></Map></L>")), QString());
        QCOMPARE(list.mapList().first()->key()->key(), 0);
        QCOMPARE(list.mapList().first()->value()->length(), 0);
    }

    void aDeviceListUnderTheTagOfItsDevices()
    {
        XmlDeviceListType list;
        QCOMPARE(
            readError(list, QStringLiteral("<Device>%1%2</Device>").arg(DeviceEntries::xml(1), DeviceEntries::xml(2))),
            QString());
        QCOMPARE(numbers<DeviceEntries>(list), (Numbers{1, 2}));
    }

    // A map entry

    void aNewEntry()
    {
        XmlMapType entry;
        QVERIFY(entry.key());
        QCOMPARE(entry.key()->key(), 0);
        QVERIFY(entry.value());
        QCOMPARE(entry.value()->length(), 0);
        QCOMPARE(entry.version(), QStringLiteral("1.0"));
        QVERIFY(entry.isValid());
        QCOMPARE(entry.syntaxError(), QString());
        QCOMPARE(written(entry, QStringLiteral("M")), newEntryXml);
    }

    void theChildrenOfAnEntry()
    {
        XmlMapType entry;
        const auto* heldKey = entry.key();
        const auto* heldValue = entry.value();
        XmlKeyType newKey = key(3);
        XmlLengthType newValue = length(12);
        entry.setKey(newKey);
        entry.setValue(newValue);
        entry.setVersion(QStringLiteral("5"));
        newKey.reset();
        newValue.reset();
        const auto check = [&] {
            QCOMPARE(entry.key(), heldKey); // assigned in place
            QCOMPARE(entry.value(), heldValue);
            QCOMPARE(entry.key()->key(), 3);
            QCOMPARE(entry.value()->length(), 12);
            QCOMPARE(entry.version(), QStringLiteral("5"));
        };
        check();
        entry.setKey(*entry.key());
        entry.setValue(*entry.value());
        check();

        XmlMapType copy(entry);
        QVERIFY(copy.key() != entry.key());
        QVERIFY(copy.value() != entry.value());
        XmlMapType assigned;
        const auto* assignedKey = assigned.key();
        const auto* assignedValue = assigned.value();
        assigned = entry;
        QCOMPARE(assigned.key(), assignedKey);
        QCOMPARE(assigned.value(), assignedValue);
        const XmlMapType& self = entry;
        entry = self;
        check();
        entry.setKey(key(4));
        entry.setValue(length(13));
        entry.setVersion(QStringLiteral("6"));
        for (const XmlMapType* other : {&copy, &assigned}) {
            QCOMPARE(other->key()->key(), 3);
            QCOMPARE(other->value()->length(), 12);
            QCOMPARE(other->version(), QStringLiteral("5"));
        }
    }

    void anEntryIsWrittenWithItsValueTwice()
    {
        XmlMapType written3 = entry(3, 12);
        QCOMPARE(written(written3, QStringLiteral("M")), entryXml(12));
        written3.setVersion(QStringLiteral("2.0"));
        written3.setValue(length(-7, QStringLiteral("4")));
        QCOMPARE(written(written3, QStringLiteral("Map")),
                 QStringLiteral("<Map version=\"2.0\"><Key version=\"4\" unit=\"m\">-7</Key>"
                                "<Value version=\"4\" unit=\"m\">-7</Value></Map>"));

        // Read again, the length has become the key.
        const auto again = readFrom<XmlMapType>(entryXml(12));
        QCOMPARE(again.key()->key(), 12);
        QCOMPARE(again.value()->length(), 12);
    }

    void judgingAnEntry()
    {
        // The key is reported, but does not count.
        XmlMapType judged = entry(-1, 12);
        QVERIFY(judged.isValid());
        const QString keyError = block("XmlKeyType", QStringLiteral("XmlMapType: Illegal Key."));
        QCOMPARE(judged.syntaxError(), block("XmlMapType", keyError));
        judged.setKey(key(0));
        QVERIFY(judged.isValid());
        QCOMPARE(judged.syntaxError(), QString());

        judged.setValue(length(12, QStringLiteral("2.0")));
        QVERIFY(!judged.isValid());
        const QString valueError = block("XmlLengthType", QStringLiteral("Version \"2.0\" not supported"));
        QCOMPARE(judged.syntaxError(), block("XmlMapType", valueError));

        judged.setValue(length(-12)); // any length will do
        QVERIFY(judged.isValid());
        judged.setVersion(QStringLiteral("1"));
        QVERIFY(!judged.isValid());
        QCOMPARE(judged.syntaxError(), block("XmlMapType", QStringLiteral("Version \"1\" not supported")));

        judged.setKey(key(-5));
        judged.setValue(length(12, QStringLiteral("2.0")));
        QCOMPARE(judged.syntaxError(),
                 QStringLiteral("+++ in XmlMapType Begin:\n"
                                "Version \"1\" not supported\n"
                                "+++ in XmlKeyType Begin:\n"
                                "XmlMapType: Illegal Key.\n"
                                "--- in XmlKeyType End\n"
                                "+++ in XmlLengthType Begin:\n"
                                "Version \"2.0\" not supported\n"
                                "--- in XmlLengthType End\n"
                                "--- in XmlMapType End"));
    }

    void readingAnEntry_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("error");
        QTest::addColumn<int>("key");   // 7 is there before
        QTest::addColumn<int>("value"); // 8 is there before
        const QString k = QStringLiteral("<Key>3</Key>");
        const QString v = QStringLiteral("<Value unit=\"m\">12</Value>");
        const QString unexpected = QStringLiteral("in XmlMapType (line 2, column %1): Unexpected element \"%2\".");
        const QString end = QStringLiteral("in XmlMapType (line 2, column 4): Unexpected token \"EndElement\".");

        // The pairs: what follows what
        QTest::newRow("a value after the key is read")
            << QStringLiteral("<M>%1\n%2</M>").arg(k, v) << QString() << 3 << 12;
        QTest::newRow("a key after a key is refused") << QStringLiteral("<M>%1\n<Key>4</Key>%2</M>").arg(k, v)
                                                      << unexpected.arg(5).arg(QStringLiteral("Key")) << 3 << 8;
        QTest::newRow("a key after the value is refused")
            << QStringLiteral("<M>%2\n%1</M>").arg(k, v) << unexpected.arg(5).arg(QStringLiteral("Key")) << 7 << 12;
        QTest::newRow("a value after a value is refused")
            << QStringLiteral("<M>%1\n<Value unit=\"m\">4</Value></M>").arg(v)
            << unexpected.arg(16).arg(QStringLiteral("Value")) << 7 << 12;
        QTest::newRow("a second value after the key is refused")
            << QStringLiteral("<M>%1%2\n%2</M>").arg(k, v) << unexpected.arg(16).arg(QStringLiteral("Value")) << 3
            << 12;
        QTest::newRow("a key after both is refused")
            << QStringLiteral("<M>%1%2\n%1</M>").arg(k, v) << unexpected.arg(5).arg(QStringLiteral("Key")) << 3 << 12;

        // The end
        QTest::newRow("an entry without children") << QStringLiteral("<M>\n</M>") << end << 7 << 8;
        QTest::newRow("an entry without value") << QStringLiteral("<M>%1\n</M>").arg(k) << end << 3 << 8;
        QTest::newRow("an entry without key, whose value is read first")
            << QStringLiteral("<M>%1\n</M>").arg(v) << end << 7 << 12;
        QTest::newRow("a document that ends early")
            << QStringLiteral("<M>%1%2").arg(k, v) << QStringLiteral("Premature end of document.") << 3 << 12;

        // Other children
        for (const char* tag : {"key", "value", "Length", "Map", "M"}) {
            QTest::newRow(tag) << QStringLiteral("<M>%1\n<%3/>%2</M>").arg(k, v, QLatin1String(tag))
                               << unexpected.arg(qstrlen(tag) + 3).arg(QLatin1String(tag)) << 3 << 8;
        }
        QTest::newRow("text and comments between the children")
            << QStringLiteral("<M>x%1<!-- y -->\n%2z</M>").arg(k, v) << QString() << 3 << 12;
        QTest::newRow("empty children leave what is held")
            << QStringLiteral("<M><Key/><Value unit=\"m\"></Value></M>") << QString() << 7 << 8;
        QTest::newRow("a negative key is read")
            << QStringLiteral("<M><Key>-3</Key>%1</M>").arg(v) << QString() << -3 << 12;
        QTest::newRow("a key that is no number")
            << QStringLiteral("<M>\n<Key>x</Key>%1</M>").arg(v)
            << QStringLiteral("in XmlKeyType (line 2, column 7): Illegal value (must be numeric).") << 0 << 8;
        QTest::newRow("a value without a unit")
            << QStringLiteral("<M>%1\n<Value>12</Value></M>").arg(k)
            << QStringLiteral("in XmlLengthType (line 2, column 7): Missing attribute: \"unit\".") << 3 << 8;

        // The version
        QTest::newRow("the supported version")
            << QStringLiteral("<M version=\"1.0\">%1%2</M>").arg(k, v) << QString() << 3 << 12;
        QTest::newRow("an empty version")
            << QStringLiteral("<M version=\"\">%1%2</M>").arg(k, v) << QString() << 3 << 12;
        QTest::newRow("another version") << QStringLiteral("<M version=\"2.0\">%1%2</M>").arg(k, v)
                                         << QStringLiteral(
                                                "in XmlMapType (line 1, column 17): Version not supported: 2.0.")
                                         << 7 << 8;
    }
    void readingAnEntry()
    {
        QFETCH(QString, xml);
        QFETCH(QString, error);
        QFETCH(int, key);
        QFETCH(int, value);
        XmlMapType read = entry(7, 8);
        read.setVersion(QStringLiteral("9"));
        const auto* heldKey = read.key();
        const auto* heldValue = read.value();
        QCOMPARE(readError(read, xml), error);
        QCOMPARE(read.key(), heldKey); // read in place
        QCOMPARE(read.value(), heldValue);
        QCOMPARE(read.key()->key(), key);
        QCOMPARE(read.value()->length(), value);
        QCOMPARE(read.version(),
                 error.contains(QStringLiteral("Version")) ? QStringLiteral("2.0") : QStringLiteral("1.0"));

        // Whatever happened, the entry can be used on.
        QCOMPARE(XmlMapType(read).value()->length(), value);
        read.syntaxError();
        QCOMPARE(readError(read, QStringLiteral("<M><Key>1</Key><Value unit=\"m\">2</Value></M>")), QString());
        QVERIFY(read.isValid());
        QCOMPARE(read.syntaxError(), QString());
        QCOMPARE(written(read, QStringLiteral("M")), entryXml(2));
    }

    void aUnitThatIsNoMetre()
    {
        auto read = readFrom<XmlMapType>(QStringLiteral("<M><Key>1</Key><Value unit=\"km\">2</Value></M>"));
        QVERIFY(!read.isValid());
        QCOMPARE(read.syntaxError(),
                 block("XmlMapType", block("XmlLengthType", QStringLiteral("Illegal unit (must be \"m\")."))));
        QCOMPARE(written(read, QStringLiteral("M")),
                 QStringLiteral("<M version=\"1.0\"><Key version=\"1.0\" unit=\"km\">2</Key>"
                                "<Value version=\"1.0\" unit=\"km\">2</Value></M>"));
    }

    void anEntryAtAWrongPosition()
    {
        const QString tag = QStringLiteral("M");
        const QString error = QStringLiteral("in XmlMapType (line %1): Parse error (wrong position).");
        XmlMapType read = entry(7, 8);

        read.setVersion(QStringLiteral("9"));
        QXmlStreamReader fresh(QStringLiteral("<M><Key>1</Key></M>"));
        read.processXml(fresh, tag);
        QCOMPARE(fresh.errorString(), error.arg(QStringLiteral("1, column 0")));

        read.setVersion(QStringLiteral("9"));
        QXmlStreamReader onText(QStringLiteral("<M version=\"2.0\">\n <Key>1</Key></M>"));
        onText.readNextStartElement();
        QCOMPARE(onText.readNext(), QXmlStreamReader::Characters);
        read.processXml(onText, tag);
        QCOMPARE(onText.errorString(), error.arg(QStringLiteral("2, column 2")));

        read.setVersion(QStringLiteral("9"));
        QXmlStreamReader atEnd(QStringLiteral("<M>\n</M>"));
        while (!atEnd.atEnd())
            atEnd.readNext();
        read.processXml(atEnd, tag);
        QCOMPARE(atEnd.errorString(), error.arg(QStringLiteral("2, column 4")));
        QCOMPARE(read.key()->key(), 7);
        QCOMPARE(read.value()->length(), 8);
        QCOMPARE(read.version(), QStringLiteral("1.0"));

        QXmlStreamReader otherTag(QStringLiteral("<M><Key>1</Key><Value unit=\"m\">2</Value>\n</M>"));
        otherTag.readNextStartElement();
        read.processXml(otherTag, QStringLiteral("m"));
        QCOMPARE(otherTag.errorString(),
                 QStringLiteral("in XmlMapType (line 2, column 4): Unexpected token \"EndElement\"."));
    }

    // A reset takes key and value away, and nothing is harmed by that.

    void aResetEntry()
    {
        XmlMapType entry = ::entry(-3, 12);
        entry.setVersion(QStringLiteral("2.0"));
        entry.syntaxError();
        const auto check = [](XmlMapType& emptied) {
            QVERIFY(!emptied.key());
            QVERIFY(!emptied.value());
            QCOMPARE(emptied.version(), QStringLiteral("1.0"));
            QVERIFY(!emptied.isValid());
            QCOMPARE(emptied.syntaxError(), QString());
            QCOMPARE(written(emptied, QStringLiteral("M")), QStringLiteral("<M version=\"1.0\"/>"));
        };
        entry.reset();
        check(entry);
        entry.reset();
        check(entry);

        XmlMapType copy(entry);
        check(copy);
        XmlMapType full = ::entry(1, 2);
        full = entry;
        check(full);
        const XmlMapType& self = entry;
        entry = self;
        check(entry);
        full = copy; // neither side holds anything
        check(full);

        const XmlMapType source = ::entry(1, 2);
        entry = source;
        QCOMPARE(entry.key()->key(), 1);
        QCOMPARE(entry.value()->length(), 2);
        QVERIFY(entry.key() != source.key());
        QVERIFY(entry.value() != source.value());
        QVERIFY(entry.isValid());

        copy.setVersion(QStringLiteral("2.0"));
        QVERIFY(!copy.isValid());
        QCOMPARE(copy.syntaxError(), block("XmlMapType", QStringLiteral("Version \"2.0\" not supported")));
        QCOMPARE(written(copy, QStringLiteral("M")), QStringLiteral("<M version=\"2.0\"/>"));
    }

    void settingAResetEntry()
    {
        XmlMapType entry;
        entry.reset();
        entry.setKey(key(-3));
        QVERIFY(entry.key());
        QCOMPARE(entry.key()->key(), -3);
        QVERIFY(!entry.value());
        QVERIFY(!entry.isValid());
        QCOMPARE(entry.syntaxError(),
                 block("XmlMapType", block("XmlKeyType", QStringLiteral("XmlMapType: Illegal Key."))));
        QCOMPARE(written(entry, QStringLiteral("M")), QStringLiteral("<M version=\"1.0\"/>"));

        // With half of it held, it is copied as it is.
        XmlMapType full = ::entry(1, 2);
        full = entry;
        QCOMPARE(full.key()->key(), -3);
        QVERIFY(!full.value());

        entry.reset();
        entry.setValue(length(12));
        QVERIFY(!entry.key());
        QCOMPARE(entry.value()->length(), 12);
        QVERIFY(entry.isValid());
        QCOMPARE(entry.syntaxError(), QString());
        QCOMPARE(written(entry, QStringLiteral("M")), entryXml(12));
        const XmlMapType copy(entry);
        QVERIFY(!copy.key());
        QCOMPARE(copy.value()->length(), 12);
    }

    void readingAResetEntry()
    {
        XmlMapType entry;
        entry.reset();
        QCOMPARE(readError(entry, QStringLiteral("<M><Key>3</Key><Value unit=\"m\">12</Value></M>")), QString());
        QCOMPARE(entry.key()->key(), 3);
        QCOMPARE(entry.value()->length(), 12);
        QVERIFY(entry.isValid());
        QCOMPARE(written(entry, QStringLiteral("M")), entryXml(12));

        // What is not read does not come back.
        entry.reset();
        QVERIFY(!readError(entry, QStringLiteral("<M/>")).isEmpty());
        QVERIFY(!entry.key());
        QVERIFY(!entry.value());
        QVERIFY(!readError(entry, QStringLiteral("<M><Key>3</Key></M>")).isEmpty());
        QCOMPARE(entry.key()->key(), 3);
        QVERIFY(!entry.value());
        entry.reset();
        QVERIFY(!readError(entry, QStringLiteral("<M><Value unit=\"m\">5</Value></M>")).isEmpty());
        QVERIFY(!entry.key());
        QCOMPARE(entry.value()->length(), 5);
        entry.reset();
        QXmlStreamReader fresh(QStringLiteral("<M/>"));
        entry.processXml(fresh, QStringLiteral("M"));
        QVERIFY(fresh.errorString().endsWith(QStringLiteral("): Parse error (wrong position).")));
        QVERIFY(!entry.key());
        QVERIFY(!entry.value());
    }

    void aResetEntryInAList()
    {
        XmlMapListType list = listOf<MapEntries>({5, 6});
        list.mapList().first()->reset();
        QVERIFY(!list.isValid());
        QCOMPARE(list.syntaxError(), QString());
        const QString xml =
            QStringLiteral("<L version=\"1.0\"><Map version=\"1.0\"/>%1</L>").arg(MapEntries::writtenXml(6));
        QCOMPARE(written(list, QStringLiteral("L")), xml);
        list.setMapList(list.mapList());
        QCOMPARE(written(list, QStringLiteral("L")), xml);
        XmlMapListType copy(list);
        QCOMPARE(written(copy, QStringLiteral("L")), xml);
        QVERIFY(!copy.mapList().first()->value());
        copy.reset();
        QVERIFY(copy.mapList().isEmpty());
    }

private:
    template <typename Kind>
    void anEmptyList()
    {
        typename Kind::List list;
        const QString problems = block(Kind::className, QString::fromLatin1(Kind::tooFew));
        const auto check = [&] {
            QVERIFY(Kind::items(list).isEmpty());
            QCOMPARE(list.version(), QStringLiteral("1.0"));
            QVERIFY(!list.isValid());
            QCOMPARE(list.syntaxError(), problems);
            QCOMPARE(written(list, QStringLiteral("L")), QStringLiteral("<L version=\"1.0\"/>"));
        };
        check();
        list.setVersion(QStringLiteral("2.0"));
        QCOMPARE(list.version(), QStringLiteral("2.0"));
        QCOMPARE(list.syntaxError(),
                 block(Kind::className,
                       QStringLiteral("Version \"2.0\" not supported\n") + QString::fromLatin1(Kind::tooFew)));

        list = listOf<Kind>({5, 6});
        list.setVersion(QStringLiteral("2.0"));
        list.reset();
        check();
        list = listOf<Kind>({5, 6});
        Kind::setItems(list, {});
        check();

        const QString refused =
            QStringLiteral("in %1 (line %2): Unexpected token \"EndElement\".").arg(QLatin1String(Kind::className));
        list = listOf<Kind>({5, 6});
        QCOMPARE(readError(list, QStringLiteral("<L/>")), refused.arg(QStringLiteral("1, column 4")));
        check(); // also after a failed reading
        QCOMPARE(readError(list, QStringLiteral("<L>\n  \n</L>")), refused.arg(QStringLiteral("3, column 4")));
    }

    template <typename Kind>
    void theItems()
    {
        using Item = typename Kind::Item;
        Item first = Kind::item(1);
        Item second = Kind::item(2);
        typename Kind::List list = listOf<Kind>({7, 8, 9});
        Kind::setItems(list, {&first, nullptr, &second, &first});
        QCOMPARE(numbers<Kind>(list), (Numbers{1, 2, 1}));
        for (const Item* item : Kind::items(list)) {
            QVERIFY(item != &first);
            QVERIFY(item != &second);
        }
        QVERIFY(Kind::items(list).at(0) != Kind::items(list).at(2));
        Kind::setNumber(first, 99); // still the caller's
        QCOMPARE(numbers<Kind>(list), (Numbers{1, 2, 1}));
        QCOMPARE(written(list, QStringLiteral("L")),
                 xmlOf(QStringLiteral("1.0"), Kind::writtenXml(1) + Kind::writtenXml(2) + Kind::writtenXml(1)));
        QVERIFY(list.isValid());

        // The list's own list, and some of its own items
        Kind::setItems(list, Kind::items(list));
        QCOMPARE(numbers<Kind>(list), (Numbers{1, 2, 1}));
        const QList<Item*> own = {Kind::items(list).at(1), Kind::items(list).at(0), Kind::items(list).at(1)};
        Kind::setItems(list, own);
        QCOMPARE(numbers<Kind>(list), (Numbers{2, 1, 2}));

        list.setVersion(QStringLiteral("3"));
        Kind::setItems(list, {&second});
        QCOMPARE(list.version(), QStringLiteral("3")); // the setter is about the items
    }

    template <typename Kind>
    void copies()
    {
        typename Kind::List list = listOf<Kind>({1, 2});
        list.setVersion(QStringLiteral("3"));
        const QString xml = xmlOf(QStringLiteral("3"), Kind::writtenXml(1) + Kind::writtenXml(2));

        const typename Kind::List copy(list);
        typename Kind::List assigned = listOf<Kind>({7, 8, 9});
        assigned = list;
        const typename Kind::List& self = assigned;
        assigned = self;
        for (const auto* other : {&copy, static_cast<const typename Kind::List*>(&assigned)}) {
            QCOMPARE(written(*other, QStringLiteral("L")), xml);
            QVERIFY(Kind::items(*other).at(0) != Kind::items(list).at(0));
            QVERIFY(Kind::items(*other).at(1) != Kind::items(list).at(1));
        }
        Kind::setNumber(*Kind::items(list).at(0), 50);
        list.setVersion(QStringLiteral("4"));
        QCOMPARE(written(copy, QStringLiteral("L")), xml);
        QCOMPARE(written(assigned, QStringLiteral("L")), xml);
        list.reset();
        QCOMPARE(written(copy, QStringLiteral("L")), xml);
        assigned = list;
        QVERIFY(Kind::items(assigned).isEmpty());
        assigned = copy;
        QCOMPARE(written(assigned, QStringLiteral("L")), xml);
    }

    template <typename Kind>
    void readingAList()
    {
        typename Kind::List list;
        QCOMPARE(readError(list, QStringLiteral("<L>%1</L>").arg(Kind::xml(1))), QString());
        QCOMPARE(numbers<Kind>(list), Numbers{1});
        QVERIFY(list.isValid());
        QCOMPARE(list.syntaxError(), QString());

        // Another reading replaces the entries.
        const QString three = Kind::xml(2) + QStringLiteral("\n x<!-- y -->") + Kind::xml(3) + Kind::xml(2);
        QCOMPARE(readError(list, QStringLiteral("<L version=\"1.0\"> %1 </L>").arg(three)), QString());
        QCOMPARE(numbers<Kind>(list), (Numbers{2, 3, 2}));
        QCOMPARE(written(list, QStringLiteral("L")),
                 xmlOf(QStringLiteral("1.0"), Kind::writtenXml(2) + Kind::writtenXml(3) + Kind::writtenXml(2)));

        // There is no most.
        QString many;
        for (int i = 0; i < 300; ++i)
            many += Kind::xml(i);
        QCOMPARE(readError(list, QStringLiteral("<L>%1</L>").arg(many)), QString());
        QCOMPARE(Kind::items(list).size(), 300);
        QVERIFY(list.isValid());
    }

    template <typename Kind>
    void failuresInAList()
    {
        const QString inList =
            QStringLiteral("in %1 (line 2, column %2): Unexpected element \"%3\".").arg(QLatin1String(Kind::className));
        const QString tag = QString::fromLatin1(Kind::tag);
        typename Kind::List list = listOf<Kind>({7, 8, 9});

        // Other tags, also in front of everything
        for (const QString& other : {QString::fromLatin1(Kind::otherTag), tag.toLower(), QStringLiteral("L")}) {
            const QString error = inList.arg(other.size() + 2).arg(other);
            QCOMPARE(readError(list, QStringLiteral("<L>\n<%1>%2</%1></L>").arg(other, Kind::xml(1))), error);
            QVERIFY(Kind::items(list).isEmpty());
            QCOMPARE(readError(list, QStringLiteral("<L>%2\n<%1></%1>%2</L>").arg(other, Kind::xml(1))), error);
            QCOMPARE(numbers<Kind>(list), Numbers{1});
        }

        // The entry during which the reading failed is kept, those behind it are not read.
        QCOMPARE(readError(list, QStringLiteral("<L>\n%1\n%2%1</L>").arg(Kind::xml(1), Kind::failingXml())),
                 Kind::failure());
        QCOMPARE(Kind::items(list).size(), 2);
        QCOMPARE(Kind::number(*Kind::items(list).first()), 1);
        QCOMPARE(written(list, QStringLiteral("L")),
                 xmlOf(QStringLiteral("1.0"), Kind::writtenXml(1) + Kind::failedXml()));

        // So is an entry of another version, which is refused.
        QCOMPARE(readError(list, QStringLiteral("<L>\n%1\n<%2 version=\"3.0\"/></L>").arg(Kind::xml(1), tag)),
                 Kind::versionFailure());
        QCOMPARE(Kind::items(list).size(), 2);
        QCOMPARE(Kind::items(list).last()->version(), QStringLiteral("3.0"));
        QVERIFY(!list.isValid());

        // An entry that is empty is refused by itself.
        QVERIFY(readError(list, QStringLiteral("<L><%1/></L>").arg(tag))
                    .endsWith(QStringLiteral("): Unexpected token \"EndElement\".")));
        QCOMPARE(Kind::items(list).size(), 1);

        QCOMPARE(readError(list, QStringLiteral("<L>%1").arg(Kind::xml(4))),
                 QStringLiteral("Premature end of document."));
        QCOMPARE(numbers<Kind>(list), Numbers{4});

        // The list is none the worse for it.
        const typename Kind::List copy(list);
        QCOMPARE(numbers<Kind>(copy), Numbers{4});
        QVERIFY(list.isValid());
        QCOMPARE(list.syntaxError(), QString());
        list.reset();
        QVERIFY(Kind::items(list).isEmpty());
        QCOMPARE(readError(list, QStringLiteral("<L>%1</L>").arg(Kind::xml(5))), QString());
        QCOMPARE(numbers<Kind>(list), Numbers{5});
    }

    template <typename Kind>
    void versionsOfAList()
    {
        typename Kind::List list;
        list.setVersion(QStringLiteral("9"));
        QCOMPARE(readError(list, QStringLiteral("<L>%1</L>").arg(Kind::xml(1))), QString());
        QCOMPARE(list.version(), QStringLiteral("1.0"));

        QCOMPARE(readError(list, QStringLiteral("<L version=\"2.0\">%1</L>").arg(Kind::xml(1))), QString());
        QCOMPARE(list.version(), QStringLiteral("2.0"));
        QCOMPARE(numbers<Kind>(list), Numbers{1});
        QVERIFY(!list.isValid());
        QCOMPARE(list.syntaxError(), block(Kind::className, QStringLiteral("Version \"2.0\" not supported")));
        QCOMPARE(written(list, QStringLiteral("L")), xmlOf(QStringLiteral("2.0"), Kind::writtenXml(1)));

        QCOMPARE(readError(list, QStringLiteral("<L version=\"\">%1</L>").arg(Kind::xml(1))), QString());
        QCOMPARE(list.version(), QStringLiteral("1.0"));
        QVERIFY(list.isValid());
    }

    template <typename Kind>
    void problemsOfAList()
    {
        typename Kind::List list = listOf<Kind>({1, 2, 3});
        QVERIFY(list.isValid());
        Kind::items(list).at(0)->setVersion(QStringLiteral("a"));
        QVERIFY(!list.isValid());
        Kind::items(list).at(2)->setVersion(QStringLiteral("b"));
        QCOMPARE(list.syntaxError(),
                 block(Kind::className,
                       Kind::versionError(QStringLiteral("a")) + QLatin1Char('\n')
                           + Kind::versionError(QStringLiteral("b"))));
        Kind::items(list).at(0)->setVersion(QStringLiteral("1.0"));
        QVERIFY(!list.isValid()); // the last one counts too
        list.setVersion(QStringLiteral("c"));
        QCOMPARE(list.syntaxError(),
                 block(Kind::className,
                       QStringLiteral("Version \"c\" not supported\n") + Kind::versionError(QStringLiteral("b"))));
    }

    template <typename Kind>
    void aListAtAWrongPosition()
    {
        const QString error =
            QStringLiteral("in %1 (line %2): Parse error (wrong position).").arg(QLatin1String(Kind::className));
        typename Kind::List list;
        const auto use = [&] {
            list = listOf<Kind>({7, 8});
            list.setVersion(QStringLiteral("9"));
        };
        const auto check = [&] {
            QVERIFY(Kind::items(list).isEmpty()); // emptied before anything else
            QCOMPARE(list.version(), QStringLiteral("1.0"));
        };

        use();
        QXmlStreamReader fresh(QStringLiteral("<L>%1</L>").arg(Kind::xml(1)));
        list.processXml(fresh, QStringLiteral("L"));
        QCOMPARE(fresh.errorString(), error.arg(QStringLiteral("1, column 0")));
        check();

        use();
        QXmlStreamReader onText(QStringLiteral("<L version=\"2.0\">\n  %1</L>").arg(Kind::xml(1)));
        onText.readNextStartElement();
        QCOMPARE(onText.readNext(), QXmlStreamReader::Characters);
        list.processXml(onText, QStringLiteral("L"));
        QCOMPARE(onText.errorString(), error.arg(QStringLiteral("2, column 3")));
        check();

        use();
        QXmlStreamReader atEnd(QStringLiteral("<L>\n</L>"));
        while (!atEnd.atEnd())
            atEnd.readNext();
        list.processXml(atEnd, QStringLiteral("L"));
        QCOMPARE(atEnd.errorString(), error.arg(QStringLiteral("2, column 4")));
        check();

        use();
        QXmlStreamReader otherTag(QStringLiteral("<L>%1\n</L>").arg(Kind::xml(1)));
        otherTag.readNextStartElement();
        list.processXml(otherTag, QStringLiteral("l"));
        QCOMPARE(otherTag.errorString(),
                 QStringLiteral("in %1 (line 2, column 4): Unexpected token \"EndElement\".")
                     .arg(QLatin1String(Kind::className)));
        QCOMPARE(numbers<Kind>(list), Numbers{1});
    }
};

QTEST_APPLESS_MAIN(DevicesTest)
#include "devices_test.moc"
