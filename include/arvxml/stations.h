#pragma once

/// \file
/// Stations and receivers.

#include "arvxml/emitters.h"
#include "arvxml/site.h"

namespace ArvXml {

/// A sensor site of the deployment. The children come in the order shown; only name and position are required. Reading
/// reuses existing optional children. There is no version: a "version" attribute is ignored. What is written with an
/// interlink cannot be read back; see XmlStationInterlinkType.
/// \code{.xml}
/// <Station>
///     <Name>Site 1</Name>
///     <SignalPath version="1.0">...</SignalPath>
///     <Position version="1.0">...</Position>
///     <RxParameter version="1.0">...</RxParameter>
///     <DFprecision version="1.0" unit="°">3</DFprecision>
///     <StationInterlink version="1.0">...</StationInterlink>
/// </Station>
/// \endcode
class ARVXML_EXPORT XmlStationType : public XmlComposite {
public:
    XmlStationType();

    /// The name, tag "Name".
    const XmlObjNameType* objName() const { return &m_objName; }
    void setObjName(const XmlObjNameType& objName) { m_objName = objName; }

    bool hasSignalPath() const { return m_signalPath.isPresent(); }
    /// The signal path, tag "SignalPath"; null when absent.
    const XmlSignalPathType* signalPath() const { return m_signalPath.get(); }
    void setSignalPath(const XmlSignalPathType& signalPath) { m_signalPath.set(signalPath); }

    /// The position, tag "Position".
    const XmlCoordinateType* position() const { return &m_position; }
    void setPosition(const XmlCoordinateType& position) { m_position = position; }

    bool hasRxParam() const { return m_rxParam.isPresent(); }
    /// The receiver parameters, tag "RxParameter"; null when absent.
    const XmlRxParamType* rxParam() const { return m_rxParam.get(); }
    void setRxParam(const XmlRxParamType& parameters) { m_rxParam.set(parameters); }

    bool hasDfPrecision() const { return m_dfPrecision.isPresent(); }
    /// The bearing precision, tag "DFprecision"; null when absent.
    const XmlDfPrecisionType* dfPrecision() const { return m_dfPrecision.get(); }
    void setDfPrecision(const XmlDfPrecisionType& precision) { m_dfPrecision.set(precision); }

    bool hasInterlink() const { return m_interlink.isPresent(); }
    /// The link to the network, tag "StationInterlink"; null when absent.
    const XmlStationInterlinkType* interlink() const { return m_interlink.get(); }
    void setInterlink(const XmlStationInterlinkType& interlink) { m_interlink.set(interlink); }

private:
    const ContentModel& contentModel() const override;

    XmlObjNameType m_objName;
    OptionalChild<XmlSignalPathType> m_signalPath;
    XmlCoordinateType m_position;
    OptionalChild<XmlRxParamType> m_rxParam;
    OptionalChild<XmlDfPrecisionType> m_dfPrecision;
    OptionalChild<XmlStationInterlinkType> m_interlink;
};

/// A receiving site; with the optional interlink, what is written cannot be read back (see XmlStationInterlinkType).
/// \code{.xml}
/// <Receiver version="1.0">
///     <Name>RX 1</Name>
///     <Position version="1.0">...</Position>
///     <RxParameter version="1.0">...</RxParameter>
///     <StationInterlink version="1.0">...</StationInterlink>
/// </Receiver>
/// \endcode
class ARVXML_EXPORT XmlReceiverType : public XmlSite {
public:
    XmlReceiverType();

    /// The parameters of the receiver, tag "RxParameter".
    const XmlRxParamType* rxParam() const { return &m_rxParam; }
    void setRxParam(const XmlRxParamType& parameters) { m_rxParam = parameters; }

    bool hasInterlink() const { return m_interlink.isPresent(); }
    /// The link to the network, tag "StationInterlink"; null when absent. Reading replaces it.
    const XmlStationInterlinkType* interlink() const { return m_interlink.get(); }
    void setInterlink(const XmlStationInterlinkType& interlink) { m_interlink.set(interlink); }

private:
    const ContentModel& contentModel() const override;

    XmlRxParamType m_rxParam;
    OptionalChild<XmlStationInterlinkType> m_interlink;
};

} // namespace ArvXml
