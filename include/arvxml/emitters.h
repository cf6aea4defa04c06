#pragma once

/// \file
/// Emitters, direction finders and the precision of bearings.

#include "arvxml/quantities.h"
#include "arvxml/signalpaths.h"
#include "arvxml/site.h"

namespace ArvXml {

/// The precision of bearings in whole degrees: `<DFprecision version="1.0" unit="°">3</DFprecision>`. Default -2;
/// valid from -1 ("XmlDfPrecisionType: Illegal precision.") with the unit "°" ("XmlDfPrecisionType: Illegal unit."),
/// which has no setter. A text that is not a decimal integer is "Illegal value (must be numeric)" and leaves -2.
class ARVXML_EXPORT XmlDfPrecisionType : public XmlReadUnitQuantity {
public:
    XmlDfPrecisionType();

    /// The precision in degrees.
    int precision() const { return static_cast<int>(m_value); }
    void setPrecision(int precision) { m_value = precision; }

private:
    const QuantityRules& rules() const override;
};

/// A known transmitter; all children are required, in this order:
/// \code{.xml}
/// <Emitter version="1.0">
///     <Name>TX 1</Name>
///     <Position version="1.0">...</Position>
///     <TxParameter version="1.0">...</TxParameter>
/// </Emitter>
/// \endcode
class ARVXML_EXPORT XmlEmitterType : public XmlSite {
public:
    XmlEmitterType();

    /// The parameters of the transmitter, tag "TxParameter".
    const XmlTxParamType* txParam() const { return &m_txParam; }
    void setTxParam(const XmlTxParamType& parameters) { m_txParam = parameters; }

private:
    const ContentModel& contentModel() const override;

    XmlTxParamType m_txParam;
};

/// A direction finder; with the optional interlink, what is written cannot be read back (see XmlStationInterlinkType).
/// \code{.xml}
/// <DF version="1.0">
///     <Name>DF 1</Name>
///     <Position version="1.0">...</Position>
///     <RxParameter version="1.0">...</RxParameter>
///     <DFprecision version="1.0" unit="°">3</DFprecision>
///     <StationInterlink version="1.0">...</StationInterlink>
/// </DF>
/// \endcode
class ARVXML_EXPORT XmlDfType : public XmlSite {
public:
    XmlDfType();

    /// The parameters of the receiver, tag "RxParameter".
    const XmlRxParamType* rxParam() const { return &m_rxParam; }
    void setRxParam(const XmlRxParamType& parameters) { m_rxParam = parameters; }

    /// The precision of the bearings, tag "DFprecision".
    const XmlDfPrecisionType* dfPrecision() const { return &m_dfPrecision; }
    void setDfPrecision(const XmlDfPrecisionType& precision) { m_dfPrecision = precision; }

    bool hasInterlink() const { return m_interlink.isPresent(); }
    /// The link to the network, tag "StationInterlink"; null when absent. Reading replaces it.
    const XmlStationInterlinkType* interlink() const { return m_interlink.get(); }
    void setInterlink(const XmlStationInterlinkType& interlink) { m_interlink.set(interlink); }

private:
    const ContentModel& contentModel() const override;

    XmlRxParamType m_rxParam;
    XmlDfPrecisionType m_dfPrecision;
    OptionalChild<XmlStationInterlinkType> m_interlink;
};

} // namespace ArvXml
