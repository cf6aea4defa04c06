#include "arvxml/quantities.h"

#include "core/quantityrules.h"
#include "core/texts.h"

#include <limits>

namespace ArvXml {

namespace {

/// Levels, ratios and SINADs: only normal positive numbers pass, so zero, negative values and most defaults do not.
QuantityRules normalPositive(const QString& unit, double defaultValue, int decimals, const char* error)
{
    using Limits = std::numeric_limits<double>;
    const auto accepts = [](double value) { return value > Limits::min() && value < Limits::max(); };
    return reportingNan(realQuantity(unit, defaultValue, {'f', decimals}, accepts, error));
}
bool isDegrees(double value)
{
    return value >= 0.0 && value <= 90.0;
}

/// The nine quantities: unit, default, format or decimals, which values are valid, problems.
struct AllRules {
    QuantityRules dBm = normalPositive(QStringLiteral("dBm"), -110.0, 9, "Illegal decibel.");
    QuantityRules decibel = normalPositive(QStringLiteral("dB"), -0.0, 6, "Illegal decibel.");
    QuantityRules degrees = // an angle, and yet reported as a decibel
        reportingNan(realQuantity(QString(QChar(0x00B0)), -0.0, {'f', 1}, isDegrees, "Illegal decibel."));
    QuantityRules length = integerQuantity(
        QStringLiteral("m"), 0, {'f', 0}, [](double) { return true; }, nullptr, "Illegal unit (must be \"m\").");
    QuantityRules power = realQuantity(
        QStringLiteral("W"), -9.9, {'f', 15}, [](double value) { return value >= -60.0; }, "Illegal power.",
        "Illegal unit.");
    QuantityRules frequency = realQuantity(
        QStringLiteral("MHz"), -9.9, {'f', 6}, [](double value) { return value > 0.0; }, "Illegal frequency.",
        "Illegal unit.");
    QuantityRules bandwidth = integerQuantity(
        QStringLiteral("kHz"), -1, {'g', 6}, [](double value) { return value >= 0.0; },
        "XmlDfPrecisionType: Illegal precision.", "XmlDfPrecisionType: Illegal unit."); // names another class
    QuantityRules fieldstrength = realQuantity(
        QStringLiteral("dBm"), -99999.999, {'f', 15}, [](double value) { return value > -99999.989; },
        "Illegal fieldstrength.", "Illegal unit.");
    QuantityRules sinad = normalPositive(QString(), 0.0, 6, "Illegal frequency."); // no frequency, and yet
};

const AllRules& allRules()
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
    : XmlFixedUnitQuantity(QStringLiteral("XmlDBMType"), allRules().dBm)
{
}

const QuantityRules& XmlDBMType::rules() const
{
    return allRules().dBm;
}

XmlDecibelType::XmlDecibelType()
    : XmlFixedUnitQuantity(QStringLiteral("XmlDecibelType"), allRules().decibel)
{
}

const QuantityRules& XmlDecibelType::rules() const
{
    return allRules().decibel;
}

XmlDegreesType::XmlDegreesType()
    : XmlFixedUnitQuantity(QStringLiteral("XmlDegreesType"), allRules().degrees)
{
}

const QuantityRules& XmlDegreesType::rules() const
{
    return allRules().degrees;
}

XmlLengthType::XmlLengthType()
    : XmlReadUnitQuantity(QStringLiteral("XmlLengthType"), allRules().length)
{
}

const QuantityRules& XmlLengthType::rules() const
{
    return allRules().length;
}

XmlPowerType::XmlPowerType()
    : XmlReadUnitQuantity(QStringLiteral("XmlPowerType"), allRules().power)
{
}

const QuantityRules& XmlPowerType::rules() const
{
    return allRules().power;
}

XmlFreqType::XmlFreqType()
    : XmlReadUnitQuantity(QStringLiteral("XmlFreqType"), allRules().frequency)
{
}

const QuantityRules& XmlFreqType::rules() const
{
    return allRules().frequency;
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
    : XmlReadUnitQuantity(QStringLiteral("XmlBandwidthType"), allRules().bandwidth)
{
}

const QuantityRules& XmlBandwidthType::rules() const
{
    return allRules().bandwidth;
}

XmlFieldstrengthType::XmlFieldstrengthType()
    : XmlReadUnitQuantity(QStringLiteral("XmlFieldstrengthType"), allRules().fieldstrength)
{
}

const QuantityRules& XmlFieldstrengthType::rules() const
{
    return allRules().fieldstrength;
}

XmlSinadType::XmlSinadType()
    : XmlQuantity(QStringLiteral("XmlSinadType"), allRules().sinad)
{
}

const QuantityRules& XmlSinadType::rules() const
{
    return allRules().sinad;
}

} // namespace ArvXml
