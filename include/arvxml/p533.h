#pragma once

/// \file
/// The parameters of ITU-R P.533.

#include "arvxml/parameterset.h"

namespace ArvXml {

/// The parameters of the ITU-R P.533 HF model, both optional. Numbers out of range are reported as "K-factor out of
/// bounds" and "SmoothedSunSpotNumber out of bounds". Messages call the class "XmlPropModelP526Type".
/// \code{.xml}
/// <PropertiesP533>
///     <K-factor>1.000</K-factor>
///     <SmoothedSunSpotNumber>5.0</SmoothedSunSpotNumber>
/// </PropertiesP533>
/// \endcode
class ARVXML_EXPORT XmlPropModelP533Type : public XmlParameterSet {
public:
    XmlPropModelP533Type();

    /// The effective earth radius factor, tag "K-factor": 0.1 to 5.0, default 1.0.
    double kFactor() const { return realValue(KFactorRow); }
    void setKfactor(double value) { setValue(KFactorRow, value); }
    bool hasKFactor() const { return isPresent(KFactorRow); }

    /// The smoothed sunspot number, tag "SmoothedSunSpotNumber": 0.0 to 999.9, default 5.0.
    double sunSpots() const { return realValue(SunSpotsRow); }
    void setSunSpots(double value) { setValue(SunSpotsRow, value); }
    bool hasSunSpots() const { return isPresent(SunSpotsRow); }

private:
    static const ParameterTable& table();

    enum Row { KFactorRow, SunSpotsRow };
};

} // namespace ArvXml
