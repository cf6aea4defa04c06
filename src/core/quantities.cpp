#include "arvxml/quantities.h"

#include "core/quantityrules.h"
#include "core/texts.h"

#include <limits>

namespace ArvXml {

namespace {

// Only normal positive numbers pass, so zero, negative values and most defaults do not. The
// protocol judges levels, ratios and SINADs this way.
bool isNormalPositive(double value)
{
    return value > std::numeric_limits<double>::min() && value < std::numeric_limits<double>::max();
}

/// The nine quantities: unit, default, numbers, format, what is valid, whether NaN is reported, problems.
struct AllRules {
    QuantityRules dBm = {
        QStringLiteral("dBm"), -110.0, QuantityRules::Real, {'f', 9},
        isNormalPositive,      true,   "Illegal decibel.",  nullptr,
    };
    QuantityRules decibel = {
        QStringLiteral("dB"), -0.0, QuantityRules::Real, {'f', 6}, isNormalPositive, true, "Illegal decibel.", nullptr,
    };
    QuantityRules degrees = {
        QString(QChar(0x00B0)),
        -0.0,
        QuantityRules::Real,
        {'f', 1},
        [](double value) { return value >= 0.0 && value <= 90.0; },
        true,
        "Illegal decibel.", // an angle, and yet
        nullptr,
    };
    QuantityRules length = {
        QStringLiteral("m"),
        0.0,
        QuantityRules::Integer,
        {'f', 0},
        [](double) { return true; },
        false,
        nullptr,
        "Illegal unit (must be \"m\").",
    };
    QuantityRules power = {
        QStringLiteral("W"),
        -9.9,
        QuantityRules::Real,
        {'f', 15},
        [](double value) { return value >= -60.0; },
        false,
        "Illegal power.",
        "Illegal unit.",
    };
    QuantityRules frequency = {
        QStringLiteral("MHz"),
        -9.9,
        QuantityRules::Real,
        {'f', 6},
        [](double value) { return value > 0.0; },
        false,
        "Illegal frequency.",
        "Illegal unit.",
    };
    QuantityRules bandwidth = {
        QStringLiteral("kHz"),
        -1.0,
        QuantityRules::Integer,
        {'g', 6},
        [](double value) { return value >= 0.0; },
        false,
        "XmlDfPrecisionType: Illegal precision.", // names another class
        "XmlDfPrecisionType: Illegal unit.",
    };
    QuantityRules fieldstrength = {
        QStringLiteral("dBm"),
        -99999.999,
        QuantityRules::Real,
        {'f', 15},
        [](double value) { return value > -99999.989; },
        false,
        "Illegal fieldstrength.",
        "Illegal unit.",
    };
    QuantityRules sinad = {
        QString(),
        0.0,
        QuantityRules::Real,
        {'f', 6},
        isNormalPositive,
        true,
        "Illegal frequency.", // no frequency, and yet
        nullptr,
    };
};

const AllRules& rules()
{
    static const NeverDestroyed<AllRules> rules = AllRules();
    return rules;
}

/// A unit of frequency: what a number in it is multiplied by to give MHz, and what MHz are
/// multiplied by to give it.
struct FrequencyUnit {
    QStringView unit;
    double toMHz;
    double fromMHz;
};

const FrequencyUnit* frequencyUnit(const QString& unit)
{
    static constexpr FrequencyUnit units[] = {
        {u"Hz", 1e-6, 1e6},
        {u"kHz", 0.001, 1000.0},
        {u"MHz", 1.0, 1.0},
        {u"GHz", 1000.0, 0.001},
    };
    for (const FrequencyUnit& known : units) {
        if (isSameText(known.unit, unit))
            return &known;
    }
    return nullptr;
}

} // namespace

XmlDBMType::XmlDBMType()
    : XmlFixedUnitQuantity(QStringLiteral("XmlDBMType"), rules().dBm)
{
}

XmlDecibelType::XmlDecibelType()
    : XmlFixedUnitQuantity(QStringLiteral("XmlDecibelType"), rules().decibel)
{
}

XmlDegreesType::XmlDegreesType()
    : XmlFixedUnitQuantity(QStringLiteral("XmlDegreesType"), rules().degrees)
{
}

XmlLengthType::XmlLengthType()
    : XmlReadUnitQuantity(QStringLiteral("XmlLengthType"), rules().length)
{
}

XmlPowerType::XmlPowerType()
    : XmlReadUnitQuantity(QStringLiteral("XmlPowerType"), rules().power)
{
}

XmlFreqType::XmlFreqType()
    : XmlReadUnitQuantity(QStringLiteral("XmlFreqType"), rules().frequency)
{
}

bool XmlFreqType::isUnitValid() const
{
    return frequencyUnit(m_unit) != nullptr;
}

void XmlFreqType::takeNumber(double number)
{
    // With an unknown unit the number means nothing; the unit itself is reported later.
    if (const FrequencyUnit* unit = frequencyUnit(m_unit))
        m_value = number * unit->toMHz;
}

double XmlFreqType::writtenNumber() const
{
    const FrequencyUnit* unit = frequencyUnit(m_unit);
    return unit ? m_value * unit->fromMHz : m_value;
}

XmlBandwidthType::XmlBandwidthType()
    : XmlReadUnitQuantity(QStringLiteral("XmlBandwidthType"), rules().bandwidth)
{
}

XmlFieldstrengthType::XmlFieldstrengthType()
    : XmlReadUnitQuantity(QStringLiteral("XmlFieldstrengthType"), rules().fieldstrength)
{
}

XmlSinadType::XmlSinadType()
    : XmlQuantity(QStringLiteral("XmlSinadType"), rules().sinad)
{
}

} // namespace ArvXml
