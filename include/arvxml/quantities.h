#pragma once

/// \file
/// Measured quantities: one number each, with a unit.

#include "arvxml/quantity.h"

namespace ArvXml {

/// A level in dBm: `<dBm version="1.0" unit="dBm">3.000000000</dBm>`. Default -110.0.
///
/// Valid only when greater than 2.2250738585072014e-308 and less than 1.7976931348623157e308: every
/// zero and negative level is reported as "Illegal decibel.", the default included.
class ARVXML_EXPORT XmlDBMType : public XmlFixedUnitQuantity {
public:
    XmlDBMType();

    /// The level in dBm.
    double dBm() const { return m_value; }
    void setDBM(double dBm) { m_value = dBm; }

private:
    const QuantityRules& rules() const override;
};

/// A ratio in dB: `<Decibel version="1.0" unit="dB">3.000000</Decibel>`. Default -0.0.
///
/// Valid only when greater than 2.2250738585072014e-308 and less than 1.7976931348623157e308: every
/// zero and negative ratio is reported as "Illegal decibel.", the default included.
class ARVXML_EXPORT XmlDecibelType : public XmlFixedUnitQuantity {
public:
    XmlDecibelType();

    /// The ratio in dB.
    double decibel() const { return m_value; }
    void setDecibel(double decibel) { m_value = decibel; }

private:
    const QuantityRules& rules() const override;
};

/// An angle in degrees: `<Degrees version="1.0" unit="°">12.3</Degrees>`. Default -0.0.
///
/// Valid from 0.0 to 90.0; otherwise the problem reads "Illegal decibel.", for angles too.
class ARVXML_EXPORT XmlDegreesType : public XmlFixedUnitQuantity {
public:
    XmlDegreesType();

    /// The angle in degrees.
    double degrees() const { return m_value; }
    void setDegrees(double degrees) { m_value = degrees; }

private:
    const QuantityRules& rules() const override;
};

/// A length in whole metres: `<AntennaHeight version="1.0" unit="m">10</AntennaHeight>`. Default 0.
///
/// Read as a decimal integer: 12.5 is not numeric here. Any length is valid, with the unit "m"
/// ("Illegal unit (must be "m").").
class ARVXML_EXPORT XmlLengthType : public XmlReadUnitQuantity {
public:
    XmlLengthType();

    /// The length in metres.
    int length() const { return static_cast<int>(m_value); }
    void setLength(int length) { m_value = length; }

private:
    const QuantityRules& rules() const override;
};

/// A power in W: `<TxPower version="1.0" unit="W">10.000000000000000</TxPower>`. Default -9.9.
///
/// Valid from -60.0 on ("Illegal power."), with the unit "W" ("Illegal unit.").
class ARVXML_EXPORT XmlPowerType : public XmlReadUnitQuantity {
public:
    XmlPowerType();

    /// The power in W.
    double power() const { return m_value; }
    void setPower(double power) { m_value = power; }

private:
    const QuantityRules& rules() const override;
};

/// A frequency: `<Frequency version="1.0" unit="kHz">2400.000000</Frequency>`. Default -9.9 MHz.
///
/// The value is held in MHz, whatever the unit on the wire. A number read with an unknown unit is
/// dropped (the value stays as it was) and the unit reported later. Valid above 0.0 ("Illegal
/// frequency."), with the unit "Hz", "kHz", "MHz" or "GHz" ("Illegal unit.").
///
/// In Hz, from some gigahertz on, the conversion to MHz and back changes the last decimals written, a little
/// more each time that a document is read and written again.
class ARVXML_EXPORT XmlFreqType : public XmlReadUnitQuantity {
public:
    XmlFreqType();

    /// The frequency in MHz, whatever the unit.
    double frequency_MHz() const { return m_value; }
    void setFrequency_MHz(double frequency) { m_value = frequency; }

    /// The unit to write in; it does not change the value held. An unknown unit is written with the
    /// number of megahertz, and an empty one is refused by readers.
    void setUnit(const QString& unit) { m_unit = unit; }

private:
    const QuantityRules& rules() const override;
    bool isUnitValid() const override;
    void takeNumber(double number) override;
    double writtenNumber() const override;
};

/// A bandwidth in kHz: `<Bandwidth version="1.0" unit="kHz">25</Bandwidth>`. Default -1.0.
///
/// Read as a decimal integer, but written with six significant digits: 25.5, or anything from a million
/// on (1e+06), is valid and written, and refused when read. Valid from 0.0 on, with the unit "kHz". Its
/// problems name another class: "XmlDfPrecisionType: Illegal precision." and "XmlDfPrecisionType: Illegal
/// unit.".
class ARVXML_EXPORT XmlBandwidthType : public XmlReadUnitQuantity {
public:
    XmlBandwidthType();

    /// The bandwidth in kHz.
    double bandwidth_khz() const { return m_value; }
    void setBandwidth(double bandwidth) { m_value = bandwidth; }

private:
    const QuantityRules& rules() const override;
};

/// A field strength threshold in dBm:
/// `<RxThreshold version="1.0" unit="dBm">-100.000000000000000</RxThreshold>`. Default -99999.999.
///
/// Valid above -99999.989 ("Illegal fieldstrength."), just above the default, with the unit "dBm"
/// ("Illegal unit.").
class ARVXML_EXPORT XmlFieldstrengthType : public XmlReadUnitQuantity {
public:
    XmlFieldstrengthType();

    /// The threshold in dBm.
    double fieldstrength() const { return m_value; }
    void setFieldstrength(double fieldstrength) { m_value = fieldstrength; }

private:
    const QuantityRules& rules() const override;
};

/// A signal-to-interference ratio (SINAD): `<SINAD version="1.0">12.000000</SINAD>`, without a unit;
/// a "unit" attribute is ignored. Default 0.0.
///
/// Valid only when greater than 2.2250738585072014e-308 and less than 1.7976931348623157e308;
/// otherwise the problem reads "Illegal frequency.", for a SINAD too.
class ARVXML_EXPORT XmlSinadType : public XmlQuantity {
public:
    XmlSinadType();

    /// The ratio, without a unit.
    double sinad() const { return m_value; }
    void setSinad(double sinad) { m_value = sinad; }

private:
    const QuantityRules& rules() const override;
};

} // namespace ArvXml
