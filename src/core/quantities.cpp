#include "arvxml/quantities.h"

#include "core/elementreader.h"
#include "core/quantity.h"

#include <QtCore/QXmlStreamWriter>

#include <limits>

namespace ArvXml {

namespace {

// Only normal positive numbers pass, so zero, negative values and most defaults do not. The
// protocol judges levels, ratios and SINADs this way.
bool isNormalPositive(double value)
{
    return value > std::numeric_limits<double>::min() && value < std::numeric_limits<double>::max();
}
bool isNotNormalPositive(double value)
{
    return !isNormalPositive(value);
}

bool isAnything(double)
{
    return true;
}
bool isNothing(double)
{
    return false;
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

// What all quantities do

XmlQuantity::XmlQuantity(const QString& className, const QuantityRules& rules)
    : XmlElement(className)
    , m_value(rules.fallback)
{
}

void XmlQuantity::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    const QuantityRules& rules = this->rules();
    ElementReader in(*this, reader, tagName, leafWording);
    openElement(in);
    in.readLeaf([&](const auto& text) {
        bool ok = false;
        const double number = rules.numbers == QuantityRules::Real ? toReal(text, &ok) : toInteger(text, &ok);
        if (ok) {
            takeNumber(number);
        } else {
            in.fail(QStringLiteral("Illegal value (must be numeric)"));
            m_value = rules.fallback;
        }
    });
}

void XmlQuantity::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeStartElement(tagName);
    writeVersion(writer);
    if (const QString* unit = writtenUnit())
        writer.writeAttribute(unitAttribute(), *unit);
    writer.writeCharacters(numberText(writtenNumber(), rules().format));
    writer.writeEndElement();
}

bool XmlQuantity::isValid() const
{
    return supportsVersion() && rules().isValid(m_value) && isUnitValid();
}

void XmlQuantity::addErrors()
{
    addSyntaxError(versionError());
    if (rules().isReported(m_value))
        addSyntaxError(QString::fromLatin1(rules().valueError));
    if (!isUnitValid())
        addSyntaxError(QString::fromLatin1(rules().unitError));
}

void XmlQuantity::reset()
{
    m_value = rules().fallback;
    restoreVersion();
    XmlElement::reset();
}

void XmlQuantity::openElement(ElementReader& in)
{
    restoreVersion();
    if (in.requireStartTag())
        readVersion(in);
}

const QString* XmlQuantity::writtenUnit() const
{
    return nullptr;
}

bool XmlQuantity::isUnitValid() const
{
    return true;
}

void XmlQuantity::takeNumber(double number)
{
    m_value = number;
}

double XmlQuantity::writtenNumber() const
{
    return m_value;
}

const QString& XmlFixedUnitQuantity::unit() const
{
    return rules().unit;
}

const QString* XmlFixedUnitQuantity::writtenUnit() const
{
    return &unit();
}

XmlReadUnitQuantity::XmlReadUnitQuantity(const QString& className, const QuantityRules& rules)
    : XmlQuantity(className, rules)
    , m_unit(rules.unit)
{
}

void XmlReadUnitQuantity::reset()
{
    m_unit = rules().unit;
    XmlQuantity::reset();
}

void XmlReadUnitQuantity::openElement(ElementReader& in)
{
    restoreVersion();
    if (in.requireStartTag()) {
        keepText(in.requireAttribute(unitAttribute()), m_unit);
        readVersion(in);
    }
}

const QString* XmlReadUnitQuantity::writtenUnit() const
{
    return &m_unit;
}

bool XmlReadUnitQuantity::isUnitValid() const
{
    return isSameText(m_unit, rules().unit);
}

// The nine quantities, each with its rules:
// unit, default, numbers, format, what is valid, what is reported, and how

static const QuantityRules& dBmRules()
{
    static const NeverDestroyed<QuantityRules> rules = QuantityRules{
        QStringLiteral("dBm"), -110.0,  QuantityRules::Real, {'f', 9}, isNormalPositive, isNotNormalPositive,
        "Illegal decibel.",    nullptr,
    };
    return rules;
}

XmlDBMType::XmlDBMType()
    : XmlFixedUnitQuantity(QStringLiteral("XmlDBMType"), dBmRules())
{
}

const QuantityRules& XmlDBMType::rules() const
{
    return dBmRules();
}

static const QuantityRules& decibelRules()
{
    static const NeverDestroyed<QuantityRules> rules = QuantityRules{
        QStringLiteral("dB"), -0.0,    QuantityRules::Real, {'f', 6}, isNormalPositive, isNotNormalPositive,
        "Illegal decibel.",   nullptr,
    };
    return rules;
}

XmlDecibelType::XmlDecibelType()
    : XmlFixedUnitQuantity(QStringLiteral("XmlDecibelType"), decibelRules())
{
}

const QuantityRules& XmlDecibelType::rules() const
{
    return decibelRules();
}

static const QuantityRules& degreesRules()
{
    static const NeverDestroyed<QuantityRules> rules = QuantityRules{
        QString(QChar(0x00B0)),
        -0.0,
        QuantityRules::Real,
        {'f', 1},
        [](double value) { return value >= 0.0 && value <= 90.0; },
        [](double value) { return !(value >= 0.0 && value <= 90.0); },
        "Illegal decibel.", // an angle, and yet
        nullptr,
    };
    return rules;
}

XmlDegreesType::XmlDegreesType()
    : XmlFixedUnitQuantity(QStringLiteral("XmlDegreesType"), degreesRules())
{
}

const QuantityRules& XmlDegreesType::rules() const
{
    return degreesRules();
}

static const QuantityRules& lengthRules()
{
    static const NeverDestroyed<QuantityRules> rules = QuantityRules{
        QStringLiteral("m"), 0.0,     QuantityRules::Integer,          {'f', 0}, isAnything,
        isNothing,           nullptr, "Illegal unit (must be \"m\").",
    };
    return rules;
}

XmlLengthType::XmlLengthType()
    : XmlReadUnitQuantity(QStringLiteral("XmlLengthType"), lengthRules())
{
}

const QuantityRules& XmlLengthType::rules() const
{
    return lengthRules();
}

static const QuantityRules& powerRules()
{
    static const NeverDestroyed<QuantityRules> rules = QuantityRules{
        QStringLiteral("W"),
        -9.9,
        QuantityRules::Real,
        {'f', 15},
        [](double value) { return value >= -60.0; },
        [](double value) { return value < -60.0; },
        "Illegal power.",
        "Illegal unit.",
    };
    return rules;
}

XmlPowerType::XmlPowerType()
    : XmlReadUnitQuantity(QStringLiteral("XmlPowerType"), powerRules())
{
}

const QuantityRules& XmlPowerType::rules() const
{
    return powerRules();
}

static const QuantityRules& freqRules()
{
    static const NeverDestroyed<QuantityRules> rules = QuantityRules{
        QStringLiteral("MHz"),
        -9.9,
        QuantityRules::Real,
        {'f', 6},
        [](double value) { return value > 0.0; },
        [](double value) { return value <= 0.0; },
        "Illegal frequency.",
        "Illegal unit.",
    };
    return rules;
}

XmlFreqType::XmlFreqType()
    : XmlReadUnitQuantity(QStringLiteral("XmlFreqType"), freqRules())
{
}

const QuantityRules& XmlFreqType::rules() const
{
    return freqRules();
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

static const QuantityRules& bandwidthRules()
{
    static const NeverDestroyed<QuantityRules> rules = QuantityRules{
        QStringLiteral("kHz"),
        -1.0,
        QuantityRules::Integer,
        {'g', 6},
        [](double value) { return value >= 0.0; },
        [](double value) { return value < 0.0; },
        "XmlDfPrecisionType: Illegal precision.", // names another class
        "XmlDfPrecisionType: Illegal unit.",
    };
    return rules;
}

XmlBandwidthType::XmlBandwidthType()
    : XmlReadUnitQuantity(QStringLiteral("XmlBandwidthType"), bandwidthRules())
{
}

const QuantityRules& XmlBandwidthType::rules() const
{
    return bandwidthRules();
}

static const QuantityRules& fieldstrengthRules()
{
    static const NeverDestroyed<QuantityRules> rules = QuantityRules{
        QStringLiteral("dBm"),
        -99999.999,
        QuantityRules::Real,
        {'f', 15},
        [](double value) { return value > -99999.989; },
        [](double value) { return value <= -99999.989; },
        "Illegal fieldstrength.",
        "Illegal unit.",
    };
    return rules;
}

XmlFieldstrengthType::XmlFieldstrengthType()
    : XmlReadUnitQuantity(QStringLiteral("XmlFieldstrengthType"), fieldstrengthRules())
{
}

const QuantityRules& XmlFieldstrengthType::rules() const
{
    return fieldstrengthRules();
}

static const QuantityRules& sinadRules()
{
    static const NeverDestroyed<QuantityRules> rules = QuantityRules{
        QString(),
        0.0,
        QuantityRules::Real,
        {'f', 6},
        isNormalPositive,
        isNotNormalPositive,
        "Illegal frequency.", // no frequency, and yet
        nullptr,
    };
    return rules;
}

XmlSinadType::XmlSinadType()
    : XmlQuantity(QStringLiteral("XmlSinadType"), sinadRules())
{
}

const QuantityRules& XmlSinadType::rules() const
{
    return sinadRules();
}

} // namespace ArvXml
