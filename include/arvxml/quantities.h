#pragma once

/// \file
/// Measured quantities: one number each, with a unit.

#include "arvxml/quantity.h"

namespace ArvXml {

/// A level in dBm: `<dBm version="1.0" unit="dBm">3.000000000</dBm>`. Default -110.0 (invalid). Valid above
/// 2.2250738585072014e-308 and below 1.7976931348623157e308; zero and negative levels are "Illegal decibel.".
class ARVXML_EXPORT XmlDBMType : public XmlFixedUnitQuantity {
public:
    XmlDBMType();

    /// The level in dBm.
    double dBm() const { return m_value; }
    void setDBM(double dBm) { m_value = dBm; }

private:
    const QuantityRules& rules() const override;
};

/// A ratio in dB: `<Decibel version="1.0" unit="dB">3.000000</Decibel>`. Default -0.0 (invalid). Valid above
/// 2.2250738585072014e-308 and below 1.7976931348623157e308; zero and negative ratios are "Illegal decibel.".
class ARVXML_EXPORT XmlDecibelType : public XmlFixedUnitQuantity {
public:
    XmlDecibelType();

    /// The ratio in dB.
    double decibel() const { return m_value; }
    void setDecibel(double decibel) { m_value = decibel; }

private:
    const QuantityRules& rules() const override;
};

/// An angle in degrees: `<Degrees version="1.0" unit="°">12.3</Degrees>`. Default -0.0, valid from 0.0 to 90.0
/// ("Illegal decibel.", sic).
class ARVXML_EXPORT XmlDegreesType : public XmlFixedUnitQuantity {
public:
    XmlDegreesType();

    /// The angle in degrees.
    double degrees() const { return m_value; }
    void setDegrees(double degrees) { m_value = degrees; }

private:
    const QuantityRules& rules() const override;
};

/// A length in whole metres: `<AntennaHeight version="1.0" unit="m">10</AntennaHeight>`. Default 0. Read as a decimal
/// integer: 12.5 is not numeric here. Any length is valid with the unit "m" ("Illegal unit (must be "m").").
class ARVXML_EXPORT XmlLengthType : public XmlReadUnitQuantity {
public:
    XmlLengthType();

    /// The length in metres.
    int length() const { return static_cast<int>(m_value); }
    void setLength(int length) { m_value = length; }

private:
    const QuantityRules& rules() const override;
};

/// A power in W: `<TxPower version="1.0" unit="W">10.000000000000000</TxPower>`. Default -9.9. Valid from -60.0
/// ("Illegal power.") with the unit "W" ("Illegal unit.").
class ARVXML_EXPORT XmlPowerType : public XmlReadUnitQuantity {
public:
    XmlPowerType();

    /// The power in W.
    double power() const { return m_value; }
    void setPower(double power) { m_value = power; }

private:
    const QuantityRules& rules() const override;
};

/// A frequency: `<Frequency version="1.0" unit="kHz">2400.000000</Frequency>`. Default -9.9 MHz. The value is held in
/// MHz, whatever the unit on the wire. With an unknown unit the number read is ignored and the unit reported later.
/// Valid above 0.0 ("Illegal frequency.") with the unit "Hz", "kHz", "MHz" or "GHz" ("Illegal unit."). In Hz, from a
/// few gigahertz up, conversion to MHz and back changes the last decimals, a little more with each round trip.
class ARVXML_EXPORT XmlFreqType : public XmlReadUnitQuantity {
public:
    XmlFreqType();

    /// The frequency in MHz, whatever the unit.
    double frequency_MHz() const { return m_value; }
    void setFrequency_MHz(double frequency) { m_value = frequency; }

    /// The unit, for writing only. An unknown one is written with the value in MHz; readers refuse an empty one.
    void setUnit(const QString& unit) { m_unit = unit; }

private:
    const QuantityRules& rules() const override;
    bool isUnitValid() const override;
    void takeNumber(double number) override;
    double writtenNumber() const override;
};

/// A bandwidth in kHz: `<Bandwidth version="1.0" unit="kHz">25</Bandwidth>`. Default -1.0. Valid from 0.0
/// ("XmlDfPrecisionType: Illegal precision.", sic) with the unit "kHz" ("XmlDfPrecisionType: Illegal unit.", sic). Read
/// as a decimal integer but written with six significant digits: 25.5, or 1e+06 and more, is valid but unreadable.
class ARVXML_EXPORT XmlBandwidthType : public XmlReadUnitQuantity {
public:
    XmlBandwidthType();

    /// The bandwidth in kHz.
    double bandwidth_khz() const { return m_value; }
    void setBandwidth(double bandwidth) { m_value = bandwidth; }

private:
    const QuantityRules& rules() const override;
};

/// A field strength threshold in dBm: `<RxThreshold version="1.0" unit="dBm">-100.000000000000000</RxThreshold>`.
/// Default -99999.999, valid above -99999.989 ("Illegal fieldstrength.") with the unit "dBm" ("Illegal unit.").
class ARVXML_EXPORT XmlFieldstrengthType : public XmlReadUnitQuantity {
public:
    XmlFieldstrengthType();

    /// The threshold in dBm.
    double fieldstrength() const { return m_value; }
    void setFieldstrength(double fieldstrength) { m_value = fieldstrength; }

private:
    const QuantityRules& rules() const override;
};

/// A signal-to-interference ratio (SINAD): `<SINAD version="1.0">12.000000</SINAD>`. A "unit" is ignored. Default 0.0
/// (invalid). Valid above 2.2250738585072014e-308 and below 1.7976931348623157e308 ("Illegal frequency.", sic).
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
