#pragma once

/// \file
/// Deployment areas and areas of interest.

#include "arvxml/composite.h"
#include "arvxml/geometry.h"
#include "arvxml/names.h"
#include "arvxml/quantities.h"
#include "arvxml/signalpaths.h"

namespace ArvXml {

/// The base of named areas: a name, then a rectangle or a polygon. Setting or reading one shape removes the other. With
/// none or both, the problem is "Neither AreaRect nor AreaPolygon". If a shape is read first, the name is refused.
class ARVXML_EXPORT XmlPlanArea : public XmlVersionedComposite {
public:
    /// The name, tag "Name".
    const XmlObjNameType* objName() const { return &m_objName; }
    void setObjName(const XmlObjNameType& objName) { m_objName = objName; }

    bool hasAreaRect() const { return m_areaRect.isPresent(); }
    /// The rectangle, tag "AreaRect"; null when absent. Setting it removes the polygon.
    const XmlAreaRectType* areaRect() const { return m_areaRect.get(); }
    void setAreaRect(const XmlAreaRectType& rectangle);

    bool hasAreaPoly() const { return m_areaPoly.isPresent(); }
    /// The polygon, tag "AreaPolygon"; null when absent. Setting it removes the rectangle.
    const XmlAreaPolyType* areaPoly() const { return m_areaPoly.get(); }
    void setAreaPoly(const XmlAreaPolyType& polygon);

protected:
    using XmlVersionedComposite::XmlVersionedComposite;

    XmlObjNameType m_objName;
    OptionalChild<XmlAreaRectType> m_areaRect;
    OptionalChild<XmlAreaPolyType> m_areaPoly;
};

/// An area in which sensors may be placed, and the assumptions for sensors there. The children come in the order shown,
/// with either "AreaRect" or "AreaPolygon". Only the signal path is optional; reading reuses an existing one.
/// \code{.xml}
/// <DeploymentArea version="1.0">
///     <SignalPath version="1.0">...</SignalPath>
///     <Name>Hill</Name>
///     <AreaRect version="1.0">...</AreaRect>
///     <AntennaHeight version="1.0" unit="m">10</AntennaHeight>
///     <RxThreshold version="1.0" unit="dBm">-100.000000000000000</RxThreshold>
///     <Frequency version="1.0" unit="MHz">145.500000</Frequency>
///     <TxPower version="1.0" unit="W">10.000000000000000</TxPower>
/// </DeploymentArea>
/// \endcode
class ARVXML_EXPORT XmlDeploymentAreaType : public XmlPlanArea {
public:
    XmlDeploymentAreaType();

    bool hasSignalPath() const { return m_signalPath.isPresent(); }
    /// The signal path of the sensors, tag "SignalPath"; null when absent.
    const XmlSignalPathType* signalPath() const { return m_signalPath.get(); }
    void setSignalPath(const XmlSignalPathType& signalPath) { m_signalPath.set(signalPath); }

    /// The height of the sensors' antennas, tag "AntennaHeight". The setter is spelled "Angt".
    const XmlLengthType* antHgt() const { return &m_antennaHeight; }
    void setAngtHgt(const XmlLengthType& height) { m_antennaHeight = height; }

    /// The threshold of the sensors' receivers, tag "RxThreshold".
    const XmlFieldstrengthType* rxThresh() const { return &m_rxThreshold; }
    void setRxThresh(const XmlFieldstrengthType& threshold) { m_rxThreshold = threshold; }

    /// The transmit frequency of the sensors, tag "Frequency".
    const XmlFreqType* txFreq() const { return &m_txFrequency; }
    void setTxFreq(const XmlFreqType& frequency) { m_txFrequency = frequency; }

    /// The transmit power of the sensors, tag "TxPower".
    const XmlPowerType* txPower() const { return &m_txPower; }
    void setTxPower(const XmlPowerType& power) { m_txPower = power; }

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlSignalPathType> m_signalPath;
    XmlLengthType m_antennaHeight;
    XmlFieldstrengthType m_rxThreshold;
    XmlFreqType m_txFrequency;
    XmlPowerType m_txPower;
};

/// An area to be covered (area of interest), and the assumptions for the emitters in it. The children come in the order
/// shown, with either "AreaPolygon" or "AreaRect". Only the threshold is optional; reading replaces it.
/// \code{.xml}
/// <AOI version="1.0">
///     <Name>Northern valley</Name>
///     <AreaPolygon version="1.0">...</AreaPolygon>
///     <TxParameter version="1.0">...</TxParameter>
///     <RxThreshold version="1.0" unit="dBm">-100.000000000000000</RxThreshold>
/// </AOI>
/// \endcode
class ARVXML_EXPORT XmlAoiType : public XmlPlanArea {
public:
    XmlAoiType();

    /// The parameters of the emitters, tag "TxParameter".
    const XmlTxParamType* txParam() const { return &m_txParam; }
    void setTxParam(const XmlTxParamType& parameters) { m_txParam = parameters; }

    bool hasRxThreshold() const { return m_rxThreshold.isPresent(); }
    /// The threshold of the receivers, tag "RxThreshold"; null when absent. The getter begins with a capital R.
    const XmlFieldstrengthType* RxThres() const { return m_rxThreshold.get(); }
    void setRxThres(const XmlFieldstrengthType& threshold) { m_rxThreshold.set(threshold); }

    /// Resets the element. The threshold is reset and released, not destroyed: whoever kept its pointer then owns it.
    void reset() override;

private:
    const ContentModel& contentModel() const override;

    XmlTxParamType m_txParam;
    OptionalChild<XmlFieldstrengthType> m_rxThreshold;
};

} // namespace ArvXml
