#pragma once

#include "arvxml/element.h"
#include "arvxml/emitters.h"
#include "arvxml/geometry.h"
#include "arvxml/names.h"
#include "arvxml/signalpaths.h"

namespace ArvXml {

/// A sensor site of the deployment: `<Station><Name>...</Name><SignalPath .../><Position .../>
/// <RxParameter .../><DFprecision .../><StationInterlink .../></Station>`, in this order; only name and
/// position are required. Reading reuses the optional children held. It has no version: a "version" attribute is
/// ignored.
class ARVXML_EXPORT XmlStationType : public XmlComposite {
public:
    XmlStationType();
    const XmlObjNameType* objName() const { return &m_objName; }
    void setObjName(const XmlObjNameType& objName) { m_objName = objName; }

    bool hasSignalPath() const { return m_signalPath.isPresent(); }
    /// The signal path, null when absent.
    const XmlSignalPathType* signalPath() const { return m_signalPath.get(); }
    void setSignalPath(const XmlSignalPathType& signalPath) { m_signalPath.set(signalPath); }

    const XmlCoordinateType* position() const { return &m_position; }
    void setPosition(const XmlCoordinateType& position) { m_position = position; }

    bool hasRxParam() const { return m_rxParam.isPresent(); }
    /// The receiver parameters, null when absent.
    const XmlRxParamType* rxParam() const { return m_rxParam.get(); }
    void setRxParam(const XmlRxParamType& parameters) { m_rxParam.set(parameters); }

    bool hasDfPrecision() const { return m_dfPrecision.isPresent(); }
    /// The bearing precision, null when absent.
    const XmlDfPrecisionType* dfPrecision() const { return m_dfPrecision.get(); }
    void setDfPrecision(const XmlDfPrecisionType& precision) { m_dfPrecision.set(precision); }

    bool hasInterlink() const { return m_interlink.isPresent(); }
    /// The link to the network, null when absent.
    const XmlStationInterlinkType* interlink() const { return m_interlink.get(); }
    void setInterlink(const XmlStationInterlinkType& interlink) { m_interlink.set(interlink); }

protected:
    const ElementForm& form() const override;

private:
    XmlObjNameType m_objName;
    OptionalChild<XmlSignalPathType> m_signalPath;
    XmlCoordinateType m_position;
    OptionalChild<XmlRxParamType> m_rxParam;
    OptionalChild<XmlDfPrecisionType> m_dfPrecision;
    OptionalChild<XmlStationInterlinkType> m_interlink;
};

/// A receiving site: `<Receiver version="1.0"><Name>...</Name><Position .../><RxParameter .../>
/// <StationInterlink .../></Receiver>`, the interlink optional. A position before the name is read,
/// but then the name is refused. Another version than "1.0" is refused while reading.
class ARVXML_EXPORT XmlReceiverType : public XmlSite {
public:
    XmlReceiverType();
    const XmlRxParamType* rxParam() const { return &m_rxParam; }
    void setRxParam(const XmlRxParamType& parameters) { m_rxParam = parameters; }

    bool hasInterlink() const { return m_interlink.isPresent(); }
    /// The link to the network, null when absent. Reading replaces the one held.
    const XmlStationInterlinkType* interlink() const { return m_interlink.get(); }
    void setInterlink(const XmlStationInterlinkType& interlink) { m_interlink.set(interlink); }

protected:
    const ElementForm& form() const override;

private:
    XmlRxParamType m_rxParam;
    OptionalChild<XmlStationInterlinkType> m_interlink;
};

} // namespace ArvXml
