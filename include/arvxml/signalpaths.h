#pragma once

/// \file
/// Signal paths, and the parameters of transmitters, receiving sites and links.

#include "arvxml/composite.h"
#include "arvxml/devices.h"
#include "arvxml/names.h"
#include "arvxml/quantities.h"

namespace ArvXml {

/// A named chain of devices from the antenna to the receiver, with the SINAD it needs. The children come in the order
/// shown. The maps are optional; reading reuses existing ones. The list of devices has the same tag as its items.
/// \code{.xml}
/// <SignalPath version="1.0">
///     <Name>Mast 1</Name>
///     <SINAD version="1.0">12.000000</SINAD>
///     <Device version="1.0">
///         <Device version="1.0">...</Device>
///     </Device>
///     <AntHgtMap version="1.0">...</AntHgtMap>
///     <CabLenMap version="1.0">...</CabLenMap>
/// </SignalPath>
/// \endcode
class ARVXML_EXPORT XmlSignalPathType : public XmlVersionedComposite {
public:
    XmlSignalPathType();

    /// The name, tag "Name".
    const XmlObjNameType* objName() const { return &m_objName; }
    void setObjName(const XmlObjNameType& objName) { m_objName = objName; }

    /// The required SINAD, tag "SINAD".
    const XmlSinadType* sinad() const { return &m_sinad; }
    void setSinad(const XmlSinadType& sinad) { m_sinad = sinad; }

    /// The devices, tag "Device".
    const XmlDeviceListType* devices() const { return &m_devices; }
    void setDevices(const XmlDeviceListType& devices) { m_devices = devices; }

    bool hasAnt() const { return m_antennaHeights.isPresent(); }
    /// Antenna heights by key, tag "AntHgtMap"; null when absent.
    const XmlMapListType* ant() const { return m_antennaHeights.get(); }
    void setAnt(const XmlMapListType& heights) { m_antennaHeights.set(heights); }

    bool hasCab() const { return m_cableLengths.isPresent(); }
    /// Cable lengths by key, tag "CabLenMap"; null when absent.
    const XmlMapListType* cab() const { return m_cableLengths.get(); }
    void setCab(const XmlMapListType& lengths) { m_cableLengths.set(lengths); }

private:
    const ContentModel& contentModel() const override;

    XmlObjNameType m_objName;
    XmlSinadType m_sinad;
    XmlDeviceListType m_devices;
    OptionalChild<XmlMapListType> m_antennaHeights;
    OptionalChild<XmlMapListType> m_cableLengths;
};

/// The parameters of a transmitter, all required, in this order. Versions other than "1.0" are read and reported.
/// \code{.xml}
/// <TxParameter version="1.0">
///     <Frequency version="1.0" unit="MHz">145.500000</Frequency>
///     <TxPower version="1.0" unit="W">10.000000000000000</TxPower>
///     <AntennaHeight version="1.0" unit="m">10</AntennaHeight>
///     <Bandwidth version="1.0" unit="kHz">25</Bandwidth>
/// </TxParameter>
/// \endcode
class ARVXML_EXPORT XmlTxParamType : public XmlVersionedComposite {
public:
    XmlTxParamType();

    /// The frequency of the transmitter, tag "Frequency".
    const XmlFreqType* frequency() const { return &m_frequency; }
    void setFrequency(const XmlFreqType& frequency) { m_frequency = frequency; }

    /// The power of the transmitter, tag "TxPower".
    const XmlPowerType* txPower() const { return &m_txPower; }
    void setTxPower(const XmlPowerType& power) { m_txPower = power; }

    /// The height of the antenna, tag "AntennaHeight".
    const XmlLengthType* antennaHeight() const { return &m_antennaHeight; }
    void setAntennaHeight(const XmlLengthType& height) { m_antennaHeight = height; }

    /// The bandwidth of the emission, tag "Bandwidth".
    const XmlBandwidthType* bandwidth() const { return &m_bandwidth; }
    void setBandwidth(const XmlBandwidthType& bandwidth) { m_bandwidth = bandwidth; }

private:
    const ContentModel& contentModel() const override;

    XmlFreqType m_frequency;
    XmlPowerType m_txPower;
    XmlLengthType m_antennaHeight;
    XmlBandwidthType m_bandwidth;
};

/// The parameters of a receiving site, both required, in this order. Versions other than "1.0" are read and reported.
/// \code{.xml}
/// <RxParameter version="1.0">
///     <AntennaHeight version="1.0" unit="m">10</AntennaHeight>
///     <RxThreshold version="1.0" unit="dBm">-100.000000000000000</RxThreshold>
/// </RxParameter>
/// \endcode
class ARVXML_EXPORT XmlRxParamType : public XmlVersionedComposite {
public:
    XmlRxParamType();

    /// The height of the antenna, tag "AntennaHeight".
    const XmlLengthType* antennaHeight() const { return &m_antennaHeight; }
    void setAntennaHeight(const XmlLengthType& height) { m_antennaHeight = height; }

    /// The threshold of the receiver, tag "RxThreshold".
    const XmlFieldstrengthType* rxThres() const { return &m_rxThreshold; }
    void setRxThres(const XmlFieldstrengthType& threshold) { m_rxThreshold = threshold; }

private:
    const ContentModel& contentModel() const override;

    XmlLengthType m_antennaHeight;
    XmlFieldstrengthType m_rxThreshold;
};

/// The radio link of a station to the network, all children required, in the order shown. The power is written as
/// "Power", which the reader refuses: what is written cannot be read back. Versions other than "1.0" are read and
/// reported. The version is changed by reading only and has no accessors. Read as:
/// \code{.xml}
/// <StationInterlink version="1.0">
///     <Frequency version="1.0" unit="MHz">400.000000</Frequency>
///     <TxPower version="1.0" unit="W">5.000000000000000</TxPower>
///     <RxThreshold version="1.0" unit="dBm">-90.000000000000000</RxThreshold>
///     <AntennaHeight version="1.0" unit="m">12</AntennaHeight>
/// </StationInterlink>
/// \endcode
class ARVXML_EXPORT XmlStationInterlinkType : public XmlComposite {
public:
    XmlStationInterlinkType();

    /// The frequency of the link, tag "Frequency".
    const XmlFreqType* freq() const { return &m_frequency; }
    void setFreq(const XmlFreqType& frequency) { m_frequency = frequency; }

    /// The power of the link's transmitter, tag "TxPower" on reading, "Power" on writing.
    const XmlPowerType* power() const { return &m_power; }
    void setPower(const XmlPowerType& power) { m_power = power; }

    /// The threshold of the link's receiver, tag "RxThreshold".
    const XmlFieldstrengthType* rxThresh() const { return &m_rxThreshold; }
    void setRxThresh(const XmlFieldstrengthType& threshold) { m_rxThreshold = threshold; }

    /// The height of the link's antenna, tag "AntennaHeight".
    const XmlLengthType* antHgt() const { return &m_antennaHeight; }
    void setAntHgt(const XmlLengthType& height) { m_antennaHeight = height; }

    /// Whether the version read is exactly "1.0".
    bool supportsVersion() const;

    bool isValid() const override;
    void reset() override;

protected:
    void addErrors() override;

private:
    const ContentModel& contentModel() const override;

    QString m_version;
    XmlFreqType m_frequency;
    XmlPowerType m_power;
    XmlFieldstrengthType m_rxThreshold;
    XmlLengthType m_antennaHeight;
};

} // namespace ArvXml
