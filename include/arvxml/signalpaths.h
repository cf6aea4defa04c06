#pragma once

/// \file
/// Signal paths, and the parameters of transmitters, receiving sites and links.

#include "arvxml/composite.h"
#include "arvxml/devices.h"
#include "arvxml/names.h"
#include "arvxml/quantities.h"

namespace ArvXml {

/// A named chain of devices from the antenna to the receiver, with the SINAD it needs:
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
/// The children come in this order, the two maps optional; reading reuses the maps held. The list of
/// devices stands under "Device", as each device in it does. Another version than "1.0" is refused while
/// reading.
class ARVXML_EXPORT XmlSignalPathType : public XmlVersionedComposite {
public:
    XmlSignalPathType();

    /// The name, tag "Name".
    const XmlObjNameType* objName() const { return &m_objName; }
    void setObjName(const XmlObjNameType& objName) { m_objName = objName; }

    /// The SINAD that the path needs, tag "SINAD".
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

/// The parameters of a transmitter, all required, in this order:
/// \code{.xml}
/// <TxParameter version="1.0">
///     <Frequency version="1.0" unit="MHz">145.500000</Frequency>
///     <TxPower version="1.0" unit="W">10.000000000000000</TxPower>
///     <AntennaHeight version="1.0" unit="m">10</AntennaHeight>
///     <Bandwidth version="1.0" unit="kHz">25</Bandwidth>
/// </TxParameter>
/// \endcode
/// Another version than "1.0" is read, and reported when the parameters are judged.
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

/// The parameters of a receiving site, both required, in this order:
/// \code{.xml}
/// <RxParameter version="1.0">
///     <AntennaHeight version="1.0" unit="m">10</AntennaHeight>
///     <RxThreshold version="1.0" unit="dBm">-100.000000000000000</RxThreshold>
/// </RxParameter>
/// \endcode
/// Another version than "1.0" is read, and reported when the parameters are judged.
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

/// The radio link of a station to the network, all children required, in this order. It is read as
/// \code{.xml}
/// <StationInterlink version="1.0">
///     <Frequency version="1.0" unit="MHz">400.000000</Frequency>
///     <TxPower version="1.0" unit="W">5.000000000000000</TxPower>
///     <RxThreshold version="1.0" unit="dBm">-90.000000000000000</RxThreshold>
///     <AntennaHeight version="1.0" unit="m">12</AntennaHeight>
/// </StationInterlink>
/// \endcode
/// The power is written under "Power", which the reader refuses: what the library writes cannot be read
/// back by it.
///
/// Another version than "1.0" is read, and reported when the link is judged. The version changes by reading only;
/// there are no accessors for it.
class ARVXML_EXPORT XmlStationInterlinkType : public XmlComposite {
public:
    XmlStationInterlinkType();

    /// The frequency of the link, tag "Frequency".
    const XmlFreqType* freq() const { return &m_frequency; }
    void setFreq(const XmlFreqType& frequency) { m_frequency = frequency; }

    /// The power of the link's transmitter, tag "TxPower" read, "Power" written.
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
