#pragma once

#include "arvxml/devices.h"
#include "arvxml/element.h"
#include "arvxml/names.h"
#include "arvxml/quantities.h"

namespace ArvXml {

/// A named chain of devices from the antenna to the receiver, with the SINAD it needs:
/// `<SignalPath version="1.0"><Name>...</Name><SINAD .../><Device version="1.0"><Device .../></Device>
/// <AntHgtMap .../><CabLenMap .../></SignalPath>`, in this order, the two maps optional. The list of
/// devices stands under "Device", as each device in it does. Another version than "1.0" is refused while
/// reading.
class ARVXML_EXPORT XmlSignalPathType : public XmlVersionedComposite {
public:
    XmlSignalPathType();
    const XmlObjNameType* objName() const { return &m_objName; }
    void setObjName(const XmlObjNameType& objName) { m_objName = objName; }
    /// The SINAD that the path needs.
    const XmlSinadType* sinad() const { return &m_sinad; }
    void setSinad(const XmlSinadType& sinad) { m_sinad = sinad; }
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

protected:
    const ElementForm& form() const override;

private:
    XmlObjNameType m_objName;
    XmlSinadType m_sinad;
    XmlDeviceListType m_devices;
    OptionalChild<XmlMapListType> m_antennaHeights;
    OptionalChild<XmlMapListType> m_cableLengths;
};

/// The parameters of a transmitter: `<TxParameter version="1.0"><Frequency .../><TxPower .../>
/// <AntennaHeight .../><Bandwidth .../></TxParameter>`, all required, in this order.
class ARVXML_EXPORT XmlTxParamType : public XmlVersionedComposite {
public:
    XmlTxParamType();
    const XmlFreqType* frequency() const { return &m_frequency; }
    void setFrequency(const XmlFreqType& frequency) { m_frequency = frequency; }
    const XmlPowerType* txPower() const { return &m_txPower; }
    void setTxPower(const XmlPowerType& power) { m_txPower = power; }
    const XmlLengthType* antennaHeight() const { return &m_antennaHeight; }
    void setAntennaHeight(const XmlLengthType& height) { m_antennaHeight = height; }
    const XmlBandwidthType* bandwidth() const { return &m_bandwidth; }
    void setBandwidth(const XmlBandwidthType& bandwidth) { m_bandwidth = bandwidth; }

protected:
    const ElementForm& form() const override;

private:
    XmlFreqType m_frequency;
    XmlPowerType m_txPower;
    XmlLengthType m_antennaHeight;
    XmlBandwidthType m_bandwidth;
};

/// The parameters of a receiving site: `<RxParameter version="1.0"><AntennaHeight .../>
/// <RxThreshold .../></RxParameter>`, both required, in this order.
class ARVXML_EXPORT XmlRxParamType : public XmlVersionedComposite {
public:
    XmlRxParamType();
    const XmlLengthType* antennaHeight() const { return &m_antennaHeight; }
    void setAntennaHeight(const XmlLengthType& height) { m_antennaHeight = height; }
    const XmlFieldstrengthType* rxThres() const { return &m_rxThreshold; }
    void setRxThres(const XmlFieldstrengthType& threshold) { m_rxThreshold = threshold; }

protected:
    const ElementForm& form() const override;

private:
    XmlLengthType m_antennaHeight;
    XmlFieldstrengthType m_rxThreshold;
};

/// The radio link of a station to the network: read as `<StationInterlink version="1.0">
/// <Frequency .../><TxPower .../><RxThreshold .../><AntennaHeight .../></StationInterlink>`, all
/// required, in this order.
///
/// The power is written under "Power", which the reader refuses: what the library writes cannot be read
/// back by it. The version changes by reading only; there are no accessors for it.
class ARVXML_EXPORT XmlStationInterlinkType : public XmlVersionedComposite {
public:
    XmlStationInterlinkType();
    const XmlFreqType* freq() const { return &m_frequency; }
    void setFreq(const XmlFreqType& frequency) { m_frequency = frequency; }
    const XmlPowerType* power() const { return &m_power; }
    void setPower(const XmlPowerType& power) { m_power = power; }
    const XmlFieldstrengthType* rxThresh() const { return &m_rxThreshold; }
    void setRxThresh(const XmlFieldstrengthType& threshold) { m_rxThreshold = threshold; }
    const XmlLengthType* antHgt() const { return &m_antennaHeight; }
    void setAntHgt(const XmlLengthType& height) { m_antennaHeight = height; }

    /// Whether the version read is exactly "1.0".
    using XmlVersioned::supportsVersion;

protected:
    const ElementForm& form() const override;

private:
    using XmlVersioned::setVersion;
    using XmlVersioned::version;

    XmlFreqType m_frequency;
    XmlPowerType m_power;
    XmlFieldstrengthType m_rxThreshold;
    XmlLengthType m_antennaHeight;
};

} // namespace ArvXml
