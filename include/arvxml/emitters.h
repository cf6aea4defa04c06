#pragma once

#include "arvxml/element.h"
#include "arvxml/geometry.h"
#include "arvxml/names.h"
#include "arvxml/quantities.h"
#include "arvxml/signalpaths.h"

namespace ArvXml {

/// The precision of bearings in whole degrees: `<DFprecision version="1.0" unit="°">3</DFprecision>`.
///
/// Default -2; valid from -1 on ("XmlDfPrecisionType: Illegal precision."), with the unit "°"
/// ("XmlDfPrecisionType: Illegal unit."). The unit is required on reading and cannot be set otherwise. A
/// text that is no decimal integer is "Illegal value (must be numeric)" and leaves -2.
class ARVXML_EXPORT XmlDfPrecisionType : public XmlReadUnitQuantity {
public:
    XmlDfPrecisionType();
    int precision() const { return static_cast<int>(m_value); }
    void setPrecision(int precision) { m_value = precision; }

protected:
    const QuantityRules& rules() const override;
};

/// The base of the named sites of a plan: a name and a position.
class ARVXML_EXPORT XmlSite : public XmlVersionedComposite {
public:
    const XmlObjNameType* objName() const { return &m_objName; }
    void setObjName(const XmlObjNameType& objName) { m_objName = objName; }
    const XmlCoordinateType* position() const { return &m_position; }
    void setPosition(const XmlCoordinateType& position) { m_position = position; }

protected:
    using XmlVersionedComposite::XmlVersionedComposite;

    XmlObjNameType m_objName;
    XmlCoordinateType m_position;
};

/// A known transmitter: `<Emitter version="1.0"><Name>...</Name><Position .../><TxParameter .../>
/// </Emitter>`, all required. A position before the name is read, but then the name is refused. Another version than
/// "1.0" is refused while reading.
class ARVXML_EXPORT XmlEmitterType : public XmlSite {
public:
    XmlEmitterType();
    const XmlTxParamType* txParam() const { return &m_txParam; }
    void setTxParam(const XmlTxParamType& parameters) { m_txParam = parameters; }

protected:
    const ElementForm& form() const override;

private:
    XmlTxParamType m_txParam;
};

/// A direction finder: `<DF version="1.0"><Name>...</Name><Position .../><RxParameter .../>
/// <DFprecision .../><StationInterlink .../></DF>`, the interlink optional. A position before the name is
/// read, but then the name is refused. Another version than "1.0" is refused while reading.
class ARVXML_EXPORT XmlDfType : public XmlSite {
public:
    XmlDfType();
    const XmlRxParamType* rxParam() const { return &m_rxParam; }
    void setRxParam(const XmlRxParamType& parameters) { m_rxParam = parameters; }
    const XmlDfPrecisionType* dfPrecision() const { return &m_dfPrecision; }
    void setDfPrecision(const XmlDfPrecisionType& precision) { m_dfPrecision = precision; }

    bool hasInterlink() const { return m_interlink.isPresent(); }
    /// The link to the network, null when absent. Reading replaces the one held.
    const XmlStationInterlinkType* interlink() const { return m_interlink.get(); }
    void setInterlink(const XmlStationInterlinkType& interlink) { m_interlink.set(interlink); }

protected:
    const ElementForm& form() const override;

private:
    XmlRxParamType m_rxParam;
    XmlDfPrecisionType m_dfPrecision;
    OptionalChild<XmlStationInterlinkType> m_interlink;
};

} // namespace ArvXml
