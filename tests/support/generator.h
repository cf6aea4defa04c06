#pragma once

#include "support/samples.h"

#include <QtCore/QVector>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <random>
#include <type_traits>
#include <utility>
#include <vector>

/// \file
/// Random elements of every class, and what each class holds.
///
/// `describe(visitor, Class<T>())` names everything that an element of type T holds, once: the getter, the setter, and
/// which values are good and which are faults. Generating, comparing, counting and taking apart are visitors of it.
///
/// `generate<T>(random, Validity)` makes an element through its setters; through reading only what no setter changes.

namespace Generator {

using Samples::Class;

enum class Validity {
    Valid, ///< acceptable, though not always readable: limits, odd values and rare combinations are among them
    Faulty ///< with random faults; by chance with none
};

/// Reproducible random numbers, the same everywhere.
class Random {
public:
    /// The first object made takes the \a way given, of all the ways in which optional things can be there or not.
    explicit Random(quint32 seed, std::optional<int> way = {})
        : m_engine(seed)
        , m_way(way)
    {
        m_faultRate = of(std::vector<int>{3, 12, 40});
    }

    /// From 0 to \a count - 1.
    int below(int count) { return static_cast<int>(m_engine() % static_cast<quint32>(count)); }
    int between(int lowest, int highest) { return lowest + below(highest - lowest + 1); }
    bool oneIn(int count) { return below(count) == 0; }
    double real(double low, double high)
    {
        return low + (high - low) * (static_cast<double>(m_engine()) / static_cast<double>(std::mt19937::max()));
    }
    template <typename T>
    T of(const std::vector<T>& values)
    {
        return values[static_cast<std::size_t>(below(static_cast<int>(values.size())))];
    }
    /// Whether something is to be wrong.
    bool isFault(Validity validity) { return validity == Validity::Faulty && oneIn(m_faultRate); }

    std::optional<int> takeWay() { return std::exchange(m_way, std::nullopt); }
    /// How many ways there are to make the object made last.
    int ways() const { return m_ways; }
    void setWays(int ways) { m_ways = ways; }

private:
    std::mt19937 m_engine;
    std::optional<int> m_way;
    int m_ways = 1;
    int m_faultRate;
};

// Which values are good, which are faults, and what is left of them on the wire

/// The unit in which a number is written, against that of its getter.
inline double scaleOf(const ArvXml::IXmlElement&)
{
    return 1.0;
}
inline double scaleOf(const ArvXml::XmlFreqType& frequency)
{
    if (frequency.unit() == QLatin1String("Hz"))
        return 1e-6;
    if (frequency.unit() == QLatin1String("kHz"))
        return 1e-3;
    return frequency.unit() == QLatin1String("GHz") ? 1e3 : 1.0;
}

struct Real {
    double low;
    double high;
    int decimals; ///< how many are written; with a negative number so many significant digits
    std::vector<double> edges;
    std::vector<double> faults;

    double good(Random& random) const { return random.oneIn(4) ? random.of(edges) : random.real(low, high); }
    double bad(Random& random) const { return random.of(faults); }
    double carried(double value) const { return value; }
    bool agree(double before, double after, double scale) const
    {
        if (std::isnan(before) || std::isnan(after))
            return std::isnan(before) && std::isnan(after);
        if (before == after)
            return true;
        const double digit = decimals >= 0 ? scale * std::pow(10.0, -decimals)
                                           : std::pow(10.0, std::floor(std::log10(std::abs(before))) + 1 + decimals);
        return std::abs(before - after) <= 0.5 * digit + 1e-15 * std::abs(before);
    }
};

/// Everything that is carried as it is.
struct Exact {
    template <typename T>
    T carried(const T& value) const
    {
        return value;
    }
    template <typename T>
    bool agree(const T& before, const T& after, double) const
    {
        return before == after;
    }
};

struct Whole : Exact {
    int low;
    int high;
    std::vector<int> edges;
    std::vector<int> faults;

    Whole(int lowest, int highest, std::vector<int> edgeValues, std::vector<int> faultValues)
        : low(lowest)
        , high(highest)
        , edges(std::move(edgeValues))
        , faults(std::move(faultValues))
    {
    }
    int good(Random& random) const { return random.oneIn(4) ? random.of(edges) : random.between(low, high); }
    int bad(Random& random) const { return faults.empty() ? good(random) : random.of(faults); }
};

/// A choice of which the texts from \a first to \a last are known; others are acceptable, too, as a rule.
struct Choice {
    int first;
    int last;
    std::vector<int> faults;
    std::optional<int> othersReadAs; ///< where others are written with a text that can be read

    int good(Random& random) const
    {
        return random.oneIn(20) ? random.of(std::vector<int>{last + 1, -1, 99}) : random.between(first, last);
    }
    int bad(Random& random) const { return faults.empty() ? good(random) : random.of(faults); }
    template <typename T>
    T carried(T value) const
    {
        const bool isKnown = int(value) >= first && int(value) <= last;
        return isKnown || !othersReadAs ? value : static_cast<T>(*othersReadAs);
    }
    template <typename T>
    bool agree(T before, T after, double) const
    {
        return before == after;
    }
};

/// A choice of which only the known are acceptable.
struct OnlyKnown : Exact {
    int last;

    explicit OnlyKnown(int known)
        : last(known)
    {
    }
    int good(Random& random) const { return random.between(1, last); }
    int bad(Random& random) const { return random.between(0, last + 1); }
};

struct OnlyOne : Exact {
    int goodValue;
    int badValue;

    OnlyOne(int accepted, int other)
        : goodValue(accepted)
        , badValue(other)
    {
    }
    int good(Random&) const { return goodValue; }
    int bad(Random&) const { return badValue; }
};

struct Text : Exact {
    int shortest;
    int longest;
    bool isLongFault;

    explicit Text(int least, int most = 40, bool isLonger = false)
        : shortest(least)
        , longest(most)
        , isLongFault(isLonger)
    {
    }
    static QString ofLength(int length, Random& random)
    {
        static const QString letters = QString::fromUtf8("aZ09 _-/&<>\"'\n\t;]ä°€日");
        static const QString wide = QString::fromUtf8("🛰");
        QString text;
        while (text.size() < length) {
            if (text.size() + wide.size() <= length && random.oneIn(40))
                text += wide;
            else
                text += letters.at(random.below(int(letters.size())));
        }
        return text;
    }
    QString good(Random& random) const
    {
        if (random.oneIn(20))
            return QString(longest, QLatin1Char('x'));
        return ofLength(random.between(shortest, std::min(longest, 12)), random);
    }
    QString bad(Random& random) const
    {
        return isLongFault && random.oneIn(2) ? ofLength(longest + 1 + random.below(3), random) : QString();
    }
};

struct OneOf : Exact {
    std::vector<QString> goodTexts;
    std::vector<QString> badTexts;

    OneOf(std::vector<QString> accepted, std::vector<QString> others)
        : goodTexts(std::move(accepted))
        , badTexts(std::move(others))
    {
    }
    QString good(Random& random) const { return random.of(goodTexts); }
    QString bad(Random& random) const { return random.of(badTexts); }
};

struct OrderId : Exact {
    static QString good(Random& random)
    {
        const ushort zero = random.oneIn(8) ? 0x0660 : '0'; // digits of any script will do
        auto id = QStringLiteral("ARV");
        for (int digit = 0; digit < 15; ++digit)
            id += QChar(zero + random.below(10));
        return id;
    }
    static QString bad(Random&) { return QStringLiteral("ARV1"); }
};

/// A time; written to the second.
struct Moment {
    bool mayBeInvalid;

    QDateTime good(Random& random) const
    {
        if (mayBeInvalid && random.oneIn(20))
            return {};
        const QDate date(random.between(1900, 2100), random.between(1, 12), random.between(1, 28));
        const QTime time(random.between(9, 20), random.below(60), random.below(60), random.below(1000));
        switch (random.below(4)) {
        case 0:
            return TestValues::timeInUtc(date, time);
        case 1:
            return TestValues::timeAhead(date, time, 60 * random.between(-720, 720));
        default:
            return QDateTime(date, time);
        }
    }
    QDateTime bad(Random& random) const { return good(random); }
    static QDateTime carried(const QDateTime& value)
    {
        return value.isValid() ? value.addMSecs(-value.time().msec()) : value;
    }
    static bool agree(const QDateTime& before, const QDateTime& after, double)
    {
        return before == after && (!before.isValid() || before.offsetFromUtc() == after.offsetFromUtc());
    }
};

struct Flag : Exact {
    bool isFalseFault;

    explicit Flag(bool mustBeTrue = false)
        : isFalseFault(mustBeTrue)
    {
    }
    bool good(Random& random) const { return isFalseFault || random.oneIn(2); }
    bool bad(Random&) const { return false; }
};

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

inline const OneOf& versions()
{
    static const OneOf texts = {{TestValues::text("1.0")},
                                {TestValues::text("2.0"), TestValues::text("1.0 "), QString()}};
    return texts;
}
/// A number that must be above the smallest and below the greatest one.
inline Real normal(int decimals)
{
    return {0.001, 200.0, decimals, {3e-308, 1e-10, 0.0000005, 1e300}, {0.0, -0.0, -1.0, 1e-310, infinity, notANumber}};
}
/// A parameter between limits that both belong to it; what is no number passes.
inline Real within(double low, double high, int decimals)
{
    return {low, high, decimals, {low, high, notANumber}, {low - 0.001, high + 0.001, infinity, -infinity}};
}
inline Whole wholeWithin(int low, int high)
{
    return {low, high, {low, high}, {low - 1, high + 1, std::numeric_limits<int>::min()}};
}
inline Choice knownTo(int last)
{
    return {1, last, {0}, {}};
}

/// Reads \a xml into an element for what no setter changes.
template <typename T>
void readInto(T& element, const QString& xml)
{
    ElementTest::readError(element, xml);
}

/// Gives a quantity another unit; its value stays, the version is "1.0" then.
template <typename T>
void readUnit(T& quantity, const QString& unit)
{
    if (unit != quantity.unit())
        readInto(quantity, QStringLiteral("<Q unit=\"%1\"/>").arg(unit));
}

// What each class holds

template <typename V, typename T>
void version(V& v)
{
    v.value("version", &T::version, &T::setVersion, versions());
}

#define GENERATOR_DESCRIBE(T)                                                                                          \
    template <typename V>                                                                                              \
    void describe(V& v, Class<ArvXml::T>)
#define GENERATOR_VERSIONED(T)                                                                                         \
    using Self = ArvXml::T;                                                                                            \
    version<V, Self>(v)
#define GENERATOR_UNIT(good)                                                                                           \
    v.value("unit", &Self::unit, readUnit<Self>,                                                                       \
            OneOf{{QString::fromUtf8(good)}, {TestValues::text("km"), TestValues::text("w")}})

GENERATOR_DESCRIBE(XmlDBMType)
{
    GENERATOR_VERSIONED(XmlDBMType);
    v.value("dBm", &Self::dBm, &Self::setDBM, normal(9));
}
GENERATOR_DESCRIBE(XmlDecibelType)
{
    GENERATOR_VERSIONED(XmlDecibelType);
    v.value("decibel", &Self::decibel, &Self::setDecibel, normal(6));
}
GENERATOR_DESCRIBE(XmlDegreesType)
{
    GENERATOR_VERSIONED(XmlDegreesType);
    v.value("degrees", &Self::degrees, &Self::setDegrees,
            Real{0.0, 90.0, 1, {0.0, -0.0, 90.0, 0.04}, {-0.001, 90.001, infinity, notANumber}});
}
GENERATOR_DESCRIBE(XmlLengthType)
{
    using Self = ArvXml::XmlLengthType;
    GENERATOR_UNIT("m");
    version<V, Self>(v);
    v.value("length", &Self::length, &Self::setLength,
            Whole{-100, 4000, {0, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}, {}});
}
GENERATOR_DESCRIBE(XmlPowerType)
{
    using Self = ArvXml::XmlPowerType;
    GENERATOR_UNIT("W");
    version<V, Self>(v);
    v.value("power", &Self::power, &Self::setPower,
            Real{-60.0, 1000.0, 15, {-60.0, 0.0, 1e-20, 1e30, infinity}, {-60.001, -infinity, notANumber}});
}
GENERATOR_DESCRIBE(XmlFreqType)
{
    GENERATOR_VERSIONED(XmlFreqType);
    v.value("unit", &Self::unit, &Self::setUnit,
            OneOf{{TestValues::text("Hz"), TestValues::text("kHz"), TestValues::text("MHz"), TestValues::text("GHz")},
                  {TestValues::text("mhz"), QString()}});
    // make() sees to higher ones.
    v.value("frequency_MHz", &Self::frequency_MHz, &Self::setFrequency_MHz,
            Real{1e-4, 900.0, 6, {1e-20, 0.1, 900.0, infinity}, {0.0, -1.0, -infinity, notANumber}});
}
GENERATOR_DESCRIBE(XmlBandwidthType)
{
    using Self = ArvXml::XmlBandwidthType;
    GENERATOR_UNIT("kHz");
    version<V, Self>(v);
    v.value(
        "bandwidth_khz", &Self::bandwidth_khz,
        [](Self& bandwidth, double value) {
            // Nearly always one that can be read again.
            const bool isOrdinary = value >= 1.0 && value < 50000.0;
            bandwidth.setBandwidth(isOrdinary ? std::floor(value) : value);
        },
        Real{1.0, 50000.0, -6, {0.0, 1.0, 999999.0, 0.5, 1e6, infinity}, {-1.0, -0.5, notANumber}});
}
GENERATOR_DESCRIBE(XmlFieldstrengthType)
{
    using Self = ArvXml::XmlFieldstrengthType;
    GENERATOR_UNIT("dBm");
    version<V, Self>(v);
    v.value("fieldstrength", &Self::fieldstrength, &Self::setFieldstrength,
            Real{-150.0, 10.0, 15, {-99999.98, 0.0, 1e30, infinity}, {-99999.989, -1e9, -infinity, notANumber}});
}
GENERATOR_DESCRIBE(XmlSinadType)
{
    GENERATOR_VERSIONED(XmlSinadType);
    v.value("sinad", &Self::sinad, &Self::setSinad, normal(6));
}
GENERATOR_DESCRIBE(XmlDfPrecisionType)
{
    using Self = ArvXml::XmlDfPrecisionType;
    GENERATOR_UNIT("°");
    version<V, Self>(v);
    v.value("precision", &Self::precision, &Self::setPrecision,
            Whole{-1, 90, {-1, 0, std::numeric_limits<int>::max()}, {-2, std::numeric_limits<int>::min()}});
}

GENERATOR_DESCRIBE(XmlDBMListType)
{
    GENERATOR_VERSIONED(XmlDBMListType);
    v.list("dBmList", &Self::dBmList, &Self::setDBMList);
}
GENERATOR_DESCRIBE(XmlDecibelListType)
{
    GENERATOR_VERSIONED(XmlDecibelListType);
    v.list("decibelList", &Self::decibelList, &Self::setDecibelList);
}
GENERATOR_DESCRIBE(XmlDegreesListType)
{
    GENERATOR_VERSIONED(XmlDegreesListType);
    v.list("degreeList", &Self::degreeList, &Self::setDegreesList);
}
GENERATOR_DESCRIBE(XmlFreqListType)
{
    GENERATOR_VERSIONED(XmlFreqListType);
    v.list("freqList", &Self::freqList, &Self::setFreqList);
}
GENERATOR_DESCRIBE(XmlFreqThrPairType)
{
    GENERATOR_VERSIONED(XmlFreqThrPairType);
    v.child("frequency", &Self::frequency, &Self::setFrequency);
    v.child("fieldstrength", &Self::fieldstrength, &Self::setFieldstrength);
}
GENERATOR_DESCRIBE(XmlFreqThrListType)
{
    GENERATOR_VERSIONED(XmlFreqThrListType);
    v.list("freqThrPairs", &Self::freqThrPairs, &Self::setFreqThrPairs);
}

GENERATOR_DESCRIBE(XmlObjNameType)
{
    using Self = ArvXml::XmlObjNameType;
    v.value("objName", &Self::objName, &Self::setObjName, Text(1, 128, true));
}
GENERATOR_DESCRIBE(XmlReferenceType)
{
    using Self = ArvXml::XmlReferenceType;
    v.value("reference", &Self::reference, &Self::setReference, Text(1, 50, true));
}
GENERATOR_DESCRIBE(XmlKeyType)
{
    using Self = ArvXml::XmlKeyType;
    v.value("key", &Self::key, &Self::setKey,
            Whole{0, 40, {0, std::numeric_limits<int>::max()}, {-1, std::numeric_limits<int>::min()}});
}
GENERATOR_DESCRIBE(XmlNameAllType)
{
    using Self = ArvXml::XmlNameAllType;
    v.optional("objName", &Self::objName, &Self::setObjName);
}
GENERATOR_DESCRIBE(XmlNameAllMultiType)
{
    using Self = ArvXml::XmlNameAllMultiType;
    v.list("objNames", &Self::objNames, &Self::setObjNames);
}

GENERATOR_DESCRIBE(XmlCoordinateType)
{
    GENERATOR_VERSIONED(XmlCoordinateType);
    v.value("longitude", &Self::longitude, &Self::setLongitude,
            Real{-180.0, 180.0, 6, {-180.0, 180.0, 1e-9}, {-180.000001, 180.1, -999.999, infinity, notANumber}});
    v.value("latitude", &Self::latitude, &Self::setLatitude,
            Real{-90.0, 90.0, 6, {-90.0, 90.0, 0.0}, {-90.000001, 90.1, -999.999, -infinity, notANumber}});
}
GENERATOR_DESCRIBE(XmlNumCoordType)
{
    using Self = ArvXml::XmlNumCoordType;
    describe(v, Class<ArvXml::XmlCoordinateType>());
    v.value("number", &Self::number, &Self::setNumber,
            Whole{0, 40, {0, std::numeric_limits<int>::max()}, {-1, std::numeric_limits<int>::min()}});
}
GENERATOR_DESCRIBE(XmlAreaRectType)
{
    GENERATOR_VERSIONED(XmlAreaRectType);
    v.child("upperLeft", &Self::upperLeft, &Self::setUpperLeft);
    v.child("lowerRight", &Self::lowerRight, &Self::setLowerRight);
}
GENERATOR_DESCRIBE(XmlAreaPolyType)
{
    GENERATOR_VERSIONED(XmlAreaPolyType);
    v.list("vertices", &Self::vertices, &Self::setVertices);
}
GENERATOR_DESCRIBE(XmlOrderDef)
{
    using Self = ArvXml::XmlOrderDef;
    v.value("orderId", &Self::orderId, &Self::setOrderId, OrderId());
    v.value("orderSender", &Self::orderSender, &Self::setOrderSender, Text(1));
}

GENERATOR_DESCRIBE(XmlDeviceCategoryType)
{
    using Self = ArvXml::XmlDeviceCategoryType;
    v.value("category", &Self::category, &Self::setCategory, knownTo(6));
}
GENERATOR_DESCRIBE(XmlDeviceType)
{
    GENERATOR_VERSIONED(XmlDeviceType);
    v.child("category", &Self::category, &Self::setCategory);
    v.child("objName", &Self::objName, &Self::setObjName);
    v.child("frequencyList", &Self::frequencyList, &Self::setFrequencyList);
    v.optional("noiseList", &Self::noiseList, &Self::setNoiseList);
    v.optional("kFactorList", &Self::kFactorList, &Self::setKfactorList);
    v.optional("attenuationList", &Self::attenuationList, &Self::setAttenuationList);
    v.optional("gainList", &Self::gainList, &Self::setGainList);
    v.optional("accuracyList", &Self::accuracyList, &Self::setAccuracyList);
    v.optional("dbmList", &Self::dbmList, &Self::setDBMList);
}
GENERATOR_DESCRIBE(XmlDeviceListType)
{
    GENERATOR_VERSIONED(XmlDeviceListType);
    v.list("deviceList", &Self::deviceList, &Self::setDeviceList);
}
GENERATOR_DESCRIBE(XmlMapType)
{
    GENERATOR_VERSIONED(XmlMapType);
    v.child("key", &Self::key, &Self::setKey);
    v.child("value", &Self::value, &Self::setValue);
}
GENERATOR_DESCRIBE(XmlMapListType)
{
    GENERATOR_VERSIONED(XmlMapListType);
    v.list("mapList", &Self::mapList, &Self::setMapList);
}
GENERATOR_DESCRIBE(XmlSignalPathType)
{
    GENERATOR_VERSIONED(XmlSignalPathType);
    v.child("objName", &Self::objName, &Self::setObjName);
    v.child("sinad", &Self::sinad, &Self::setSinad);
    v.child("devices", &Self::devices, &Self::setDevices);
    v.optional("ant", &Self::ant, &Self::setAnt);
    v.optional("cab", &Self::cab, &Self::setCab);
}
GENERATOR_DESCRIBE(XmlTxParamType)
{
    GENERATOR_VERSIONED(XmlTxParamType);
    v.child("frequency", &Self::frequency, &Self::setFrequency);
    v.child("txPower", &Self::txPower, &Self::setTxPower);
    v.child("antennaHeight", &Self::antennaHeight, &Self::setAntennaHeight);
    v.child("bandwidth", &Self::bandwidth, &Self::setBandwidth);
}
GENERATOR_DESCRIBE(XmlRxParamType)
{
    GENERATOR_VERSIONED(XmlRxParamType);
    v.child("antennaHeight", &Self::antennaHeight, &Self::setAntennaHeight);
    v.child("rxThres", &Self::rxThres, &Self::setRxThres);
}
GENERATOR_DESCRIBE(XmlStationInterlinkType)
{
    using Self = ArvXml::XmlStationInterlinkType;
    // The version changes by reading only; that fails afterwards, since nothing follows.
    v.value(
        "version", &Self::supportsVersion,
        [](Self& link, bool isSupported) {
            if (isSupported != link.supportsVersion())
                readInto(link, QStringLiteral("<L version=\"%1\"/>").arg(isSupported ? 1.0 : 2.0, 0, 'f', 1));
        },
        Flag(true));
    v.child("freq", &Self::freq, &Self::setFreq);
    v.child("power", &Self::power, &Self::setPower);
    v.child("rxThresh", &Self::rxThresh, &Self::setRxThresh);
    v.child("antHgt", &Self::antHgt, &Self::setAntHgt);
}
GENERATOR_DESCRIBE(XmlStationType)
{
    using Self = ArvXml::XmlStationType;
    v.child("objName", &Self::objName, &Self::setObjName);
    v.optional("signalPath", &Self::signalPath, &Self::setSignalPath);
    v.child("position", &Self::position, &Self::setPosition);
    v.optional("rxParam", &Self::rxParam, &Self::setRxParam);
    v.optional("dfPrecision", &Self::dfPrecision, &Self::setDfPrecision);
    v.optional("interlink", &Self::interlink, &Self::setInterlink);
}
template <typename V, typename T>
void describeSite(V& v)
{
    version<V, T>(v);
    v.child("objName", &T::objName, &T::setObjName);
    v.child("position", &T::position, &T::setPosition);
}
GENERATOR_DESCRIBE(XmlReceiverType)
{
    using Self = ArvXml::XmlReceiverType;
    describeSite<V, Self>(v);
    v.child("rxParam", &Self::rxParam, &Self::setRxParam);
    v.optional("interlink", &Self::interlink, &Self::setInterlink);
}
GENERATOR_DESCRIBE(XmlEmitterType)
{
    using Self = ArvXml::XmlEmitterType;
    describeSite<V, Self>(v);
    v.child("txParam", &Self::txParam, &Self::setTxParam);
}
GENERATOR_DESCRIBE(XmlDfType)
{
    using Self = ArvXml::XmlDfType;
    describeSite<V, Self>(v);
    v.child("rxParam", &Self::rxParam, &Self::setRxParam);
    v.child("dfPrecision", &Self::dfPrecision, &Self::setDfPrecision);
    v.optional("interlink", &Self::interlink, &Self::setInterlink);
}
GENERATOR_DESCRIBE(XmlDeploymentAreaType)
{
    GENERATOR_VERSIONED(XmlDeploymentAreaType);
    v.optional("signalPath", &Self::signalPath, &Self::setSignalPath);
    v.child("objName", &Self::objName, &Self::setObjName);
    v.oneOf(2);
    v.optional("areaRect", &Self::areaRect, &Self::setAreaRect);
    v.optional("areaPoly", &Self::areaPoly, &Self::setAreaPoly);
    v.child("antHgt", &Self::antHgt, &Self::setAngtHgt);
    v.child("rxThresh", &Self::rxThresh, &Self::setRxThresh);
    v.child("txFreq", &Self::txFreq, &Self::setTxFreq);
    v.child("txPower", &Self::txPower, &Self::setTxPower);
}
GENERATOR_DESCRIBE(XmlAoiType)
{
    GENERATOR_VERSIONED(XmlAoiType);
    v.child("objName", &Self::objName, &Self::setObjName);
    v.oneOf(2);
    v.optional("areaRect", &Self::areaRect, &Self::setAreaRect);
    v.optional("areaPoly", &Self::areaPoly, &Self::setAreaPoly);
    v.child("txParam", &Self::txParam, &Self::setTxParam);
    v.optional("RxThres", &Self::RxThres, &Self::setRxThres);
}

GENERATOR_DESCRIBE(XmlPropModelEnumType)
{
    using Self = ArvXml::XmlPropModelEnumType;
    v.value("model", qConstOverload<>(&Self::model), &Self::setModel, knownTo(8));
}
GENERATOR_DESCRIBE(XmlPropModelP1546Type)
{
    using Self = ArvXml::XmlPropModelP1546Type;
    const Choice one = {0, 3, {}, 0};
    const Choice onOff = {0, 1, {}, 0};
    v.parameter("kFactor", &Self::hasKfactor, &Self::kFactor, &Self::setKfactor, within(0.1, 5.0, 3));
    v.parameter("time", &Self::hasTime, &Self::time, &Self::setTime, within(0.01, 50.0, 2));
    v.parameter("path", &Self::hasPath, qConstOverload<>(&Self::path), &Self::setPath, one);
    v.parameter("locVar", &Self::hasLocVar, &Self::locVar, &Self::setLocVar, within(1.0, 99.0, 2));
    v.parameter("broadAntGain", &Self::hasBroadAntGain, &Self::broadAntGain, &Self::setBroadAntGAin,
                within(0.0, 99.999, 3));
    v.parameter("rxAntE", &Self::hasRxAntE, qConstOverload<>(&Self::rxAntE), &Self::setRxAntE, one);
    v.parameter("avgAreaE", &Self::hasAvgAreaE, qConstOverload<>(&Self::avgAreaE), &Self::setAvgAreaE, one);
    v.parameter("correction", &Self::hasCorrection, qConstOverload<>(&Self::correction), &Self::setCorrection, onOff);
    v.parameter("broadAnt", &Self::hasBroadAnt, qConstOverload<>(&Self::broadAnt), &Self::setBroadAnt, one);
    v.parameter("rxAnt", &Self::hasRxAnt, qConstOverload<>(&Self::rxAnt), &Self::setRxAnt, one);
}
GENERATOR_DESCRIBE(XmlPropModelP452Type)
{
    using Self = ArvXml::XmlPropModelP452Type;
    const Real distance = within(0.0, 40000.0, 1);
    v.parameter("deltaN", &Self::hasDeltaN, &Self::deltaN, &Self::setDeltaN, within(0.0, 600.0, 1));
    v.parameter("surfaceRefract", &Self::hasSurfaceRefract, &Self::surfaceRefract, &Self::setSurfaceRefract,
                wholeWithin(250, 400));
    v.parameter("timePct", &Self::hasTimePct, &Self::timePct, &Self::setTimePct, within(0.01, 50.0, 2));
    v.parameter("pressure_hPa", &Self::hasPressure_hPa, &Self::pressure_hPa, &Self::setPressure_hPa,
                wholeWithin(800, 1100));
    v.parameter("temp_C", &Self::hasTemp_C, &Self::temp_C, &Self::setTemp_C, wholeWithin(-60, 50));
    v.parameter("overWater_km", &Self::hasOverWater_km, &Self::overWater_km, &Self::setOverWater_km, distance);
    v.parameter("inlandCoastal_km", &Self::hasInlandCoastal_km, &Self::inlandCoastal_km, &Self::setInlandCoastal_km,
                distance);
    v.parameter("inland_km", &Self::hasInland_km, &Self::inland_km, &Self::setInland_km, distance);
    v.parameter("distTxCoast_km", &Self::hasDistTxCoast_km, &Self::distTxCoast_km, &Self::setDistTxCoast_km, distance);
    v.parameter("distRxCoast_km", &Self::hasDistRxCoast_km, &Self::distRxCoast_km, &Self::setDistRxCoast_km, distance);
}
GENERATOR_DESCRIBE(XmlPropModelP526Type)
{
    using Self = ArvXml::XmlPropModelP526Type;
    v.parameter("kFactor", &Self::hasKFactor, &Self::kFactor, &Self::setKfactor, within(0.1, 5.0, 3));
    v.parameter("pol", &Self::hasPol, qConstOverload<>(&Self::pol), &Self::setPol, Choice{0, 1, {}, 0});
    v.parameter("surf", &Self::hasSurf, qConstOverload<>(&Self::surf), &Self::setSurf, Choice{0, 4, {}, 0});
    v.parameter("smooth", &Self::hasSmooth, qConstOverload<>(&Self::smooth), &Self::setSmooth, Choice{0, 1, {}, 0});
    v.parameter("subPath", &Self::hasSubPath, qConstOverload<>(&Self::subPath), &Self::setSubPath, Choice{0, 1, {}, 1});
}
GENERATOR_DESCRIBE(XmlPropModelP533Type)
{
    using Self = ArvXml::XmlPropModelP533Type;
    v.parameter("kFactor", &Self::hasKFactor, &Self::kFactor, &Self::setKfactor, within(0.1, 5.0, 3));
    v.parameter("sunSpots", &Self::hasSunSpots, &Self::sunSpots, &Self::setSunSpots, within(0.0, 999.9, 1));
}
GENERATOR_DESCRIBE(XmlPropModelITMType)
{
    using Self = ArvXml::XmlPropModelITMType;
    v.parameter("RRI", &Self::hasRRI, &Self::RRI, &Self::setRRI, within(-300.0, 400.0, 4));
    v.parameter("pol", &Self::hasPol, qConstOverload<>(&Self::pol), &Self::setPol, knownTo(2));
    v.parameter("climate", &Self::hasClimate, qConstOverload<>(&Self::climate), &Self::setClimate, knownTo(7));
    v.parameter("surface", &Self::hasSurface, qConstOverload<>(&Self::surface), &Self::setSurface, knownTo(5));
    v.parameter("conf", &Self::hasConf, &Self::conf, &Self::setConf, within(0.0, 100.0, 2));
    v.parameter("time", &Self::hasTime, &Self::time, &Self::setTime, within(0.0, 100.0, 2));
}
GENERATOR_DESCRIBE(XmlPropModelHataType)
{
    using Self = ArvXml::XmlPropModelHataType;
    v.parameter("Kfactor", &Self::hasKfactor, &Self::Kfactor, &Self::setKfactor, within(0.1, 5.0, 4));
    v.parameter("areaType", &Self::hasAreaType, qConstOverload<>(&Self::areaType), &Self::setAreaType, knownTo(3));
    v.parameter("citySize", &Self::hasCitySize, qConstOverload<>(&Self::citySize), &Self::setCitySize, knownTo(3));
}
GENERATOR_DESCRIBE(XmlPropModelOLOSType)
{
    using Self = ArvXml::XmlPropModelOLOSType;
    v.parameter("Kfactor", &Self::hasKfactor, &Self::Kfactor, &Self::setKfactor, within(0.1, 5.0, 4));
    v.parameter("maxRange_km", &Self::hasMaxRange_km, &Self::maxRange_km, &Self::setMaxRange_km, within(0.1, 50.0, 3));
}
GENERATOR_DESCRIBE(XmlPropModelFSType)
{
    using Self = ArvXml::XmlPropModelFSType;
    v.parameter("Kfactor", &Self::hasKfactor, &Self::Kfactor, &Self::setKfactor, within(0.1, 5.0, 4));
}
template <typename V, typename T>
void describeCommand(V& v)
{
    v.child("cmdReference", &T::cmdReference, &T::setCmdReference);
    v.unwritten("orderDef", &T::orderDef, &T::setOrderDef);
}
GENERATOR_DESCRIBE(XmlPropModelType)
{
    using Self = ArvXml::XmlPropModelType;
    v.optional("model", &Self::model, &Self::setModel);
    v.oneOf(8, true);
    v.optional("freespace", &Self::freespace, &Self::setFreespace);
    v.optional("OLOS", &Self::OLOS, &Self::setOLOS);
    v.optional("ITM", &Self::ITM, &Self::setITM);
    v.optional("P452", &Self::P452, &Self::setP452);
    v.optional("P1546", &Self::P1546, &Self::setP1546);
    v.optional("P526", &Self::P526, &Self::setP526);
    v.optional("P533", &Self::P533, &Self::setP533);
    v.optional("Hata", &Self::Hata, &Self::setHata);
    describeCommand<V, Self>(v);
}

GENERATOR_DESCRIBE(XmlResultGridType)
{
    using Self = ArvXml::XmlResultGridType;
    v.value("size", qConstOverload<>(&Self::size), &Self::setSize, knownTo(6));
}
GENERATOR_DESCRIBE(XmlCepProbType)
{
    using Self = ArvXml::XmlCepProbType;
    v.value("prob", qConstOverload<>(&Self::prob), &Self::setProb, knownTo(5));
}
GENERATOR_DESCRIBE(XmlCepType)
{
    using Self = ArvXml::XmlCepType;
    v.child("useDFs", &Self::useDFs, &Self::setUseDFs);
    v.child("AOIs", &Self::AOIs, &Self::setAOIs);
    v.optional("probability", &Self::probability, &Self::setProbability);
    v.optional("resultGrid", &Self::resultGrid, &Self::setResultGrid);
}
GENERATOR_DESCRIBE(XmlDetectProbType)
{
    using Self = ArvXml::XmlDetectProbType;
    v.child("useRxDFs", &Self::useRxDFs, &Self::setUseRxDFs);
    v.child("AOIs", &Self::AOIs, &Self::setAOIs);
    v.optional("resultGrid", &Self::resultGrid, &Self::setResultGrid);
}
GENERATOR_DESCRIBE(XmlDfCovType)
{
    using Self = ArvXml::XmlDfCovType;
    v.child("useDFs", &Self::useDFs, &Self::setUseDFs);
    v.child("AOIs", &Self::AOIs, &Self::setAOIs);
    v.optional("resultGrid", &Self::resultGrid, &Self::setResultGrid);
}
GENERATOR_DESCRIBE(XmlBestSensorType)
{
    using Self = ArvXml::XmlBestSensorType;
    v.child("useRxDFs", &Self::useRxDFs, &Self::setUseRxDFs);
    v.child("AOIs", &Self::AOIs, &Self::setAOIs);
    v.optional("resultGrid", &Self::resultGrid, &Self::setResultGrid);
    v.optional("comment", &Self::comment, &Self::setComment);
}
GENERATOR_DESCRIBE(XmlFindSitesType)
{
    using Self = ArvXml::XmlFindSitesType;
    v.optional("knownEmitters", &Self::knownEmitters, &Self::setKnownEmitters);
    v.value("randNumber", &Self::randNumber, &Self::setRandNumber, Whole{-1, 500, {-1, 0, 500}, {-2, 501, 7}});
    v.value("randDistri", qConstOverload<>(&Self::randDistri), &Self::setRandDistri, knownTo(2));
    v.child("deploymentAreas", &Self::deploymentAreas, &Self::setDeploymentAreas);
    v.optional("resultGrid", &Self::resultGrid, &Self::setResultGrid);
}
GENERATOR_DESCRIBE(XmlInterlinkPlanningType)
{
    using Self = ArvXml::XmlInterlinkPlanningType;
    v.value("firstName", &Self::firstName, &Self::setFirstName, Text(1, 128));
    v.value("secondName", &Self::secondName, &Self::setSecondName, Text(1, 129)); // one too long to be read
}

GENERATOR_DESCRIBE(XmlCmdCalc)
{
    using Self = ArvXml::XmlCmdCalc;
    v.oneOf(6);
    v.optional("findSites", &Self::findSites, &Self::setFindSites);
    v.optional("cep", &Self::cep, &Self::setCep);
    v.optional("detectProb", &Self::detectProb, &Self::setDetectProb);
    v.optional("dfCov", &Self::dfCov, &Self::setDfCov);
    v.optional("interlink", &Self::interlink, &Self::setInterlink);
    v.optional("bestSensor", &Self::bestSensor, &Self::setBestSensor);
    describeCommand<V, Self>(v);
}
GENERATOR_DESCRIBE(XmlCmdAdmin)
{
    using Self = ArvXml::XmlCmdAdmin;
    // The kind changes by reading only.
    v.value(
        "adminCmd", &Self::adminCmd,
        [](Self& command, Self::AdminCmd kind) {
            if (kind == Self::AdminQueryVersion)
                readInto(command, QStringLiteral("<A><QueryVersion/></A>"));
        },
        OnlyOne{Self::AdminQueryVersion, Self::AdminUndefined});
    describeCommand<V, Self>(v);
}
GENERATOR_DESCRIBE(XmlCmdCreate)
{
    using Self = ArvXml::XmlCmdCreate;
    v.oneOf(8);
    v.optional("deploymentArea", &Self::deploymentArea, &Self::setDeploymentArea);
    v.optional("aoi", &Self::aoi, &Self::setAoi);
    v.optional("emitter", &Self::emitter, &Self::setEmitter);
    v.optional("receiver", &Self::receiver, &Self::setReceiver);
    v.optional("df", &Self::df, &Self::setDf);
    v.optional("station", &Self::station, &Self::setStation);
    v.optional("signalPath", &Self::signalPath, &Self::setSignalPath);
    v.optional("device", &Self::device, &Self::setDevice);
    describeCommand<V, Self>(v);
}
GENERATOR_DESCRIBE(XmlCmdDelete)
{
    using Self = ArvXml::XmlCmdDelete;
    v.oneOf(8);
    v.optional("deploy", &Self::deploy, &Self::setDeploy);
    v.optional("aoi", &Self::aoi, &Self::setAoi);
    v.optional("emitter", &Self::emitter, &Self::setEmitter);
    v.optional("receiver", &Self::receiver, &Self::setReceiver);
    v.optional("df", &Self::df, &Self::setDf);
    v.optional("device", &Self::device, &Self::setDevice);
    v.optional("signalPath", &Self::signalPath, &Self::setSignalPath);
    v.optional("station", &Self::station, &Self::setStation);
    describeCommand<V, Self>(v);
}
/// A root is filled by reading; make() does that.
GENERATOR_DESCRIBE(XmlCmdRoot)
{
    using Self = ArvXml::XmlCmdRoot;
    v.optional("orderDef", &Self::orderDef, &Self::setOrderDef);
    v.held("administrative", &Self::getAdministrativeCmds);
    v.held("create", &Self::getCreateCmds);
    v.held("delete", &Self::getDeleteCmds);
    v.held("calculation", &Self::getCalculationCmds);
    v.heldOne("model", &Self::getPropagationModelCmd);
}

GENERATOR_DESCRIBE(XmlGridResultType)
{
    using Self = ArvXml::XmlGridResultType;
    v.value("type", &Self::type, &Self::setType, OnlyKnown{5});
    v.optional("findSites", &Self::findSites, &Self::setFindSites);
    v.optional("cep", &Self::cep, &Self::setCep);
    v.optional("detectProb", &Self::detectProb, &Self::setDetectProb);
    v.optional("dfCov", &Self::dfCov, &Self::setDfCov);
    v.optional("bestSensor", &Self::bestSensor, &Self::setBestSensor);
    v.value("screenshotFilename", &Self::screenshotFilename, &Self::setScreenshotFilename, Text(1));
}
GENERATOR_DESCRIBE(XmlGridValuesType)
{
    GENERATOR_VERSIONED(XmlGridValuesType);
    const Real any = {-1e3, 1e3, -6, {0.0, 1e300, -infinity, notANumber, 1e-7, 1234567.0}, {1.0}};
    v.value("unit", &Self::unit, &Self::setUnit, Text(1));
    v.value("min", &Self::min, &Self::setMin, any);
    v.value("max", &Self::max, &Self::setMax, any);
}
GENERATOR_DESCRIBE(XmlInterlinkResultType)
{
    using Self = ArvXml::XmlInterlinkResultType;
    v.child("parameters", &Self::parameters, &Self::setParameters);
    v.value("resultText", &Self::resultText, &Self::setResultText, Text(1));
    v.value("screenshotFilename", &Self::screenshotFilename, &Self::setScreenshotFilename, Text(0));
}
GENERATOR_DESCRIBE(XmlAutoRespType)
{
    using Self = ArvXml::XmlAutoRespType;
    v.value("status", &Self::status, &Self::setStatus, OnlyKnown{2});
    v.child("reference", &Self::reference, &Self::setReference);
    v.value("errorMessage", &Self::errorMessage, &Self::setErrorMessage, Text(1));
    v.value("estimatedTime", &Self::estimatedTime, &Self::setEstimatedTime, Moment{false});
    v.value("arvVersion", &Self::arvVersion, &Self::setArvVersion, Text(1));
    v.optional("gridResult", &Self::gridResult, &Self::setGridResult);
    v.optional("interlinkResult", &Self::interlinkResult, &Self::setInterlinkResult);
}
GENERATOR_DESCRIBE(XmlResultObjectType)
{
    using Self = ArvXml::XmlResultObjectType;
    v.optional("station", &Self::station, &Self::setStation);
    v.optional("emitter", &Self::emitter, &Self::setEmitter);
    v.optional("rx", &Self::rx, &Self::setRx);
    v.optional("df", &Self::df, &Self::setDf);
}
GENERATOR_DESCRIBE(XmlInteractRespType)
{
    using Self = ArvXml::XmlInteractRespType;
    v.oneOf(3);
    v.optional("gridResult", &Self::gridResult, &Self::setGridResult);
    v.optional("interlinkResult", &Self::interlinkResult, &Self::setInterlinkResult);
    v.optional("result", &Self::result, &Self::setResult);
}
GENERATOR_DESCRIBE(XmlRespRoot)
{
    using Self = ArvXml::XmlRespRoot;
    v.value("type", &Self::type, &Self::setType, OnlyKnown{2});
    v.value("final", &Self::isFinal, &Self::setFinal, Flag());
    v.value("timestamp", &Self::timestamp, &Self::setTimestamp, Moment{true});
    v.optional("orderDef", &Self::orderDef, &Self::setOrderDef);
    v.optional("autoResp", &Self::autoResp, &Self::setAutoResp);
    v.optional("interactResp", &Self::interactResp, &Self::setInteractResp);
}

template <typename V, typename T>
void describeRecord(V& v)
{
    version<V, T>(v);
    v.child("objName", &T::objName, &T::setObjName);
    v.oneOf(2, false, true);
    v.optional("areaPoly", &T::areaPoly, &T::setAreaPoly);
    v.optional("areaRect", &T::areaRect, &T::setAreaRect);
    v.child("resultGrid", &T::resultGrid, &T::setResultGrid);
    v.child("gridValues", &T::gridValues, &T::setGridValues);
}
GENERATOR_DESCRIBE(XmlResInfo_Cep_Type)
{
    describeRecord<V, ArvXml::XmlResInfo_Cep_Type>(v);
}
GENERATOR_DESCRIBE(XmlResInfo_DetectProb_Type)
{
    describeRecord<V, ArvXml::XmlResInfo_DetectProb_Type>(v);
}
GENERATOR_DESCRIBE(XmlResInfo_DfCov_Type)
{
    describeRecord<V, ArvXml::XmlResInfo_DfCov_Type>(v);
}
GENERATOR_DESCRIBE(XmlResInfo_FindSites_Type)
{
    describeRecord<V, ArvXml::XmlResInfo_FindSites_Type>(v);
}
GENERATOR_DESCRIBE(XmlResInfo_BestSensor_Type)
{
    using Self = ArvXml::XmlResInfo_BestSensor_Type;
    describeRecord<V, Self>(v);
    v.optional("comment", &Self::comment, &Self::setComment);
}
GENERATOR_DESCRIBE(XmlArvBtType)
{
    GENERATOR_VERSIONED(XmlArvBtType);
    v.value("screenshotPath", &Self::screenshotPath, &Self::setScreenshotPath, Text(1));
    v.added("deployments", &Self::deployments, &Self::addDeployment);
    v.added("aois", &Self::aois, &Self::addAoi);
    v.added("knownEmitters", &Self::knownEmitters, &Self::addKnownEmitter);
    v.added("receivers", &Self::receivers, &Self::addReceiver);
    v.added("dfs", &Self::dfs, &Self::addDf);
    v.added("resFindSite", &Self::resFindSite, &Self::addResFindSite);
    v.added("resCep", &Self::resCep, &Self::addResCep);
    v.added("resDetectProb", &Self::resDetectProb, &Self::addResDetectProb);
    v.added("resDfCov", &Self::resDfCov, &Self::addResDfCov);
}

#undef GENERATOR_DESCRIBE
#undef GENERATOR_VERSIONED
#undef GENERATOR_UNIT

/// Shows \a visitor what an element of type \a T holds.
template <typename T, typename V>
void visit(V& visitor)
{
    describe(visitor, Class<T>());
}

// Getters

/// The child behind what a getter gives: a pointer, null when absent, or a reference.
template <typename T>
const T* pointerTo(const T* child)
{
    return child;
}
template <typename T>
const T* pointerTo(const T& child)
{
    return &child;
}
template <typename T, typename Get>
using ChildOf = std::remove_const_t<
    std::remove_pointer_t<decltype(pointerTo(std::invoke(std::declval<Get>(), std::declval<const T&>())))>>;
template <typename T, typename Get>
using ValueOf = std::decay_t<std::invoke_result_t<Get, const T&>>;
template <typename T, typename Get>
using ItemOf = std::remove_pointer_t<typename ValueOf<T, Get>::value_type>;

/// A visitor that overrides what it wants to know; by default everything that is a child counts alike.
template <typename Self>
class Visitor {
public:
    void oneOf(int, bool = false, bool = false) { }
    template <typename Get, typename Set>
    void optional(const char* name, Get get, Set set)
    {
        self().child(name, get, set);
    }
    template <typename Get, typename Set>
    void unwritten(const char* name, Get get, Set set)
    {
        self().child(name, get, set);
    }
    template <typename Get, typename Set, typename Rule>
    void value(const char*, Get, Set, const Rule&)
    {
    }
    template <typename Has, typename Get, typename Set, typename Rule>
    void parameter(const char* name, Has, Get get, Set set, const Rule& rule)
    {
        self().value(name, get, set, rule);
    }
    template <typename Get, typename Set>
    void list(const char* name, Get get, Set)
    {
        self().held(name, get);
    }
    template <typename Get, typename Add>
    void added(const char* name, Get get, Add)
    {
        self().held(name, get);
    }

private:
    Self& self() { return static_cast<Self&>(*this); }
};

// Generating

template <typename T>
T generate(Random& random, Validity validity);

/// Sets what an element holds, at random.
template <typename T>
class Making {
public:
    Making(T& object, Random& random, Validity validity, std::optional<int> way)
        : m_object(object)
        , m_random(random)
        , m_validity(validity)
        , m_way(way)
    {
    }

    T& object() { return m_object; }
    Random& random() { return m_random; }
    Validity validity() const { return m_validity; }
    int ways() const { return m_ways; }
    bool isFault() { return m_random.isFault(m_validity); }

    /// One of \a count ways: all in turn for the first object, at random for those in it.
    int take(int count)
    {
        m_ways *= count;
        if (!m_way)
            return m_random.below(count);
        const int taken = *m_way % count;
        *m_way /= count;
        return taken;
    }

    /// Of the \a count optional things that follow there is one, or as the case may be none, or all.
    void oneOf(int count, bool mayBeNone = false, bool mayBeAll = false)
    {
        m_grouped = count;
        m_there = take(count + int(mayBeNone) + int(mayBeAll));
        m_isAll = mayBeAll && m_there == count;
        m_isMixed = isFault();
    }
    template <typename Get, typename Set>
    void child(const char*, Get, Set set)
    {
        std::invoke(set, m_object, generate<ChildOf<T, Get>>(m_random, m_validity));
    }
    template <typename Get, typename Set>
    void optional(const char* name, Get get, Set set)
    {
        if (isThere())
            child(name, get, set);
    }
    template <typename Get, typename Set>
    void unwritten(const char* name, Get get, Set set)
    {
        optional(name, get, set);
    }
    template <typename Get, typename Set, typename Rule>
    void value(const char*, Get, Set set, const Rule& rule)
    {
        using Value = ValueOf<T, Get>;
        std::invoke(set, m_object, static_cast<Value>(isFault() ? rule.bad(m_random) : rule.good(m_random)));
    }
    template <typename Has, typename Get, typename Set, typename Rule>
    void parameter(const char* name, Has, Get get, Set set, const Rule& rule)
    {
        if (isThere())
            value(name, get, set, rule);
    }
    template <typename Get, typename Set>
    void list(const char*, Get, Set set)
    {
        using Item = ItemOf<T, Get>;
        std::vector<Item> items;
        for (int left = isFault() ? 0 : m_random.between(1, 3); left > 0; --left)
            items.push_back(generate<Item>(m_random, m_validity));
        setList<ValueOf<T, Get>>(set, items);
    }
    template <typename Get, typename Add>
    void added(const char*, Get, Add add)
    {
        for (int left = isThere() ? m_random.between(1, 2) : 0; left > 0; --left)
            std::invoke(add, m_object, generate<ItemOf<T, Get>>(m_random, m_validity));
    }
    template <typename Get>
    void held(const char*, Get)
    {
    }
    template <typename Get>
    void heldOne(const char*, Get)
    {
    }

    template <typename Pointers, typename Set, typename Item>
    void setList(Set set, std::vector<Item>& items)
    {
        Pointers pointers;
        for (Item& item : items)
            pointers.append(&item);
        std::invoke(set, m_object, pointers);
    }

private:
    bool isThere()
    {
        if (m_grouped == 0)
            return take(2) == 1;
        const int last = --m_grouped;
        if (m_isMixed)
            return m_random.oneIn(3);
        return m_isAll || last == m_there;
    }

    T& m_object;
    Random& m_random;
    Validity m_validity;
    std::optional<int> m_way;
    int m_ways = 1;
    int m_grouped = 0;
    int m_there = 0;
    bool m_isAll = false;
    bool m_isMixed = false;
};

template <typename T>
void make(Making<T>& making)
{
    visit<T>(making);
}

inline void make(Making<ArvXml::XmlNameAllType>& making)
{
    if (making.isFault()) { // nothing is chosen, or a choice is not complete
        if (making.random().oneIn(2))
            readInto(making.object(), QStringLiteral("<DF><Name>DF 1</Name><All/></DF>"));
        return;
    }
    if (making.take(2) == 0)
        making.object().setAll();
    else
        making.object().setObjName(generate<ArvXml::XmlObjNameType>(making.random(), making.validity()));
}
inline void make(Making<ArvXml::XmlNameAllMultiType>& making)
{
    if (making.isFault()) {
        if (making.random().oneIn(2))
            readInto(making.object(), QStringLiteral("<AOIs><Name>North</Name><All/></AOIs>"));
        return;
    }
    if (making.take(2) == 0)
        making.object().setAll();
    else
        visit<ArvXml::XmlNameAllMultiType>(making);
}
/// High frequencies, too; but in units other than the getter's, numbers of ten digits and more may not keep their last
/// decimals on the wire.
inline void make(Making<ArvXml::XmlFreqType>& making)
{
    visit<ArvXml::XmlFreqType>(making);
    ArvXml::XmlFreqType& frequency = making.object();
    const double highest = 9e8 * scaleOf(frequency);
    if (!(frequency.frequency_MHz() > 0.0) || making.random().oneIn(2))
        return;
    const bool isCarriedAsItIs = frequency.unit() == QLatin1String("MHz") && making.random().oneIn(4);
    frequency.setFrequency_MHz(isCarriedAsItIs ? 1e300 : making.random().real(1e-4, highest));
}
/// Numbers ascend; three vertices or more can be read.
inline void make(Making<ArvXml::XmlAreaPolyType>& making)
{
    using ArvXml::XmlNumCoordType;
    Random& random = making.random();
    std::vector<XmlNumCoordType> vertices;
    int number = random.below(3);
    for (int left = random.oneIn(10) ? random.below(3) : random.between(3, 5); left > 0; --left) {
        vertices.push_back(generate<XmlNumCoordType>(random, making.validity()));
        if (vertices.back().number() >= 0)
            vertices.back().setNumber(number);
        number += making.isFault() ? 0 : random.between(1, 3);
    }
    making.setList<QVector<XmlNumCoordType*>>(&ArvXml::XmlAreaPolyType::setVertices, vertices);
    making.object().setVersion(making.isFault() ? versions().bad(random) : versions().good(random));
}
/// A reset entry holds neither key nor value.
inline void make(Making<ArvXml::XmlMapType>& making)
{
    if (making.isFault())
        making.object().reset();
    if (making.isFault())
        making.object().setKey(generate<ArvXml::XmlKeyType>(making.random(), making.validity()));
    else
        visit<ArvXml::XmlMapType>(making);
    if (making.isFault())
        making.object().reset();
}
inline void make(Making<ArvXml::XmlFindSitesType>& making)
{
    visit<ArvXml::XmlFindSitesType>(making);
    // Random emitters, a distribution alone, which is not written, or neither.
    const int told = making.take(3);
    if (told > 0)
        making.object().setRandNumber(-1);
    if (told > 1)
        making.object().setRandDistri(ArvXml::XmlFindSitesType::Undefined);
}
inline void make(Making<ArvXml::XmlGridResultType>& making)
{
    using ArvXml::XmlGridResultType;
    XmlGridResultType& result = making.object();
    if (making.isFault()) {
        visit<XmlGridResultType>(making);
        return;
    }
    const int type = making.take(5);
    result.setType(static_cast<XmlGridResultType::ResultType>(type + 1));
    const auto set = [&](auto setter, auto parametersType) {
        using Parameters = typename decltype(parametersType)::Type;
        std::invoke(setter, result, generate<Parameters>(making.random(), making.validity()));
    };
    if (type == 0)
        set(&XmlGridResultType::setFindSites, Class<ArvXml::XmlFindSitesType>());
    else if (type == 1)
        set(&XmlGridResultType::setCep, Class<ArvXml::XmlCepType>());
    else if (type == 2)
        set(&XmlGridResultType::setDetectProb, Class<ArvXml::XmlDetectProbType>());
    else if (type == 3)
        set(&XmlGridResultType::setDfCov, Class<ArvXml::XmlDfCovType>());
    else
        set(&XmlGridResultType::setBestSensor, Class<ArvXml::XmlBestSensorType>());
    if (making.isFault())
        result.setType(static_cast<XmlGridResultType::ResultType>(6));
    const Text filename(1);
    result.setScreenshotFilename(making.isFault() ? filename.bad(making.random()) : filename.good(making.random()));
}
inline void make(Making<ArvXml::XmlInterlinkResultType>& making)
{
    visit<ArvXml::XmlInterlinkResultType>(making);
    if (making.take(2) == 0)
        making.object().setScreenshotFilename(QString());
    else if (!making.object().hasScreenshotFilename())
        making.object().setScreenshotFilename(QStringLiteral("link.png"));
}
/// An error behind which everything but a time may be held, or one item.
inline void make(Making<ArvXml::XmlAutoRespType>& making)
{
    using ArvXml::XmlAutoRespType;
    XmlAutoRespType& response = making.object();
    enum Items { Version = 1, Grid = 2, Link = 4, Error = 8, Time = 16 };
    const std::vector<int> acceptable = {
        Error,
        Error | Version,
        Error | Grid,
        Error | Version | Grid,
        Error | Link,
        Error | Version | Link,
        Error | Grid | Link,
        Error | Version | Grid | Link,
        Time,
        Version,
        Grid,
        Link,
    };
    int items = acceptable[static_cast<std::size_t>(making.take(static_cast<int>(acceptable.size())))];
    const bool isRandom = making.isFault();
    if (isRandom)
        items = making.random().oneIn(3) ? 0 : making.random().below(32);
    Random& random = making.random();
    const auto status = (items & Error) != 0 ? XmlAutoRespType::StatusFault : XmlAutoRespType::StatusAck;
    response.setStatus(making.isFault() ? static_cast<XmlAutoRespType::RespStatus>(random.below(4)) : status);
    response.setReference(generate<ArvXml::XmlReferenceType>(random, making.validity()));
    if ((items & Error) != 0)
        response.setErrorMessage(Text(1).good(random));
    if ((items & Time) != 0)
        response.setEstimatedTime(Moment{false}.good(random));
    if ((items & Version) != 0)
        response.setArvVersion(Text(1).good(random));
    if ((items & Grid) != 0)
        response.setGridResult(generate<ArvXml::XmlGridResultType>(random, making.validity()));
    if ((items & Link) != 0)
        response.setInterlinkResult(generate<ArvXml::XmlInterlinkResultType>(random, making.validity()));
}
/// The type says which content there is; a type beyond the known ones goes with any.
inline void make(Making<ArvXml::XmlRespRoot>& making)
{
    using ArvXml::XmlRespRoot;
    XmlRespRoot& root = making.object();
    Random& random = making.random();
    if (making.take(2) == 1)
        root.setOrderDef(generate<ArvXml::XmlOrderDef>(random, making.validity()));
    const bool isRandom = making.isFault();
    const int way = making.take(6);
    const int type = isRandom ? random.below(4) : way == 0 ? 2 : way == 1 ? 1 : 3;
    const int content = isRandom ? random.below(4) : way < 2 ? way + 1 : way - 2;
    root.setType(static_cast<XmlRespRoot::RespType>(type));
    if ((content & 1) != 0)
        root.setAutoResp(generate<ArvXml::XmlAutoRespType>(random, making.validity()));
    if ((content & 2) != 0)
        root.setInteractResp(generate<ArvXml::XmlInteractRespType>(random, making.validity()));
    root.setFinal(random.oneIn(2));
    root.setTimestamp(Moment{true}.good(random));
}
/// Commands are made by reading, and then assigned to. The model cannot be changed: what is read of it stays.
inline void make(Making<ArvXml::XmlCmdRoot>& making)
{
    using namespace ArvXml;
    Random& random = making.random();
    XmlCmdRoot& root = making.object();
    QString model;
    if (making.take(2) == 1) {
        XmlPropModelType read(true);
        do {
            model = ElementTest::written(generate<XmlPropModelType>(random, making.validity()),
                                         QStringLiteral("PropagationModel"));
        } while (!ElementTest::readError(read, model).isEmpty()); // until it can be read
    }
    QString document;
    const auto add = [&](const char* xml) {
        document += QString::fromLatin1(xml).repeated(making.take(2) == 0 ? 0 : random.between(1, 2));
    };
    add("<Administrative><QueryVersion/></Administrative>");
    add("<Create><Station><Name/><Position><Longitude/><Latitude/></Position></Station><Reference/></Create>");
    add("<Delete><DF><All/></DF><Reference/></Delete>");
    document += model;
    add("<Calculate><InterlinkPlanning><FirstName/><SecondName/></InterlinkPlanning><Reference/></Calculate>");
    readInto(root, QStringLiteral("<Commands>%1</Commands>").arg(document));
    if (making.take(2) == 1)
        root.setOrderDef(generate<XmlOrderDef>(random, making.validity()));
    const auto fill = [&](const auto& commands) {
        for (auto* command : commands)
            *command = generate<std::decay_t<decltype(*command)>>(random, making.validity());
    };
    fill(root.getAdministrativeCmds());
    fill(root.getCreateCmds());
    fill(root.getDeleteCmds());
    fill(root.getCalculationCmds());
}

template <typename T>
T newObject(bool isCommand)
{
    if constexpr (std::is_same_v<T, ArvXml::XmlPropModelType>)
        return T(isCommand);
    else
        return T();
}

template <typename T>
T generate(Random& random, Validity validity)
{
    const std::optional<int> way = random.takeWay();
    T object = newObject<T>(true);
    Making<T> making(object, random, validity, way);
    if constexpr (std::is_same_v<T, ArvXml::XmlPropModelType>)
        object = T(making.take(2) == 1);
    make(making);
    random.setWays(making.ways());
    return object;
}

} // namespace Generator
