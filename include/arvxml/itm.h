#pragma once

#include "arvxml/parameterset.h"

namespace ArvXml {

/// The parameters of the Irregular Terrain Model, all optional:
/// `<PropertiesITM><RRI>300.0000</RRI><Pol>H</Pol>...</PropertiesITM>`.
///
/// Each parameter comes at most once, in the order of the accessors below. Choices are read exactly by their
/// texts: "H", "V"; "Equatorial", "Continental Subtropical", "Maritime Tropical", "Desert", "Continental
/// Temperate", "Maritime Temperate, Land", "Maritime Temperate, Sea"; "Average Ground", "Poor Ground", "Good
/// Ground", "Fresh Water", "Sea Water". Value 0 is written "UNDEFINED", not read, and invalid; a value outside
/// is written so, too, but valid. Reading resets the set first.
class ARVXML_EXPORT XmlPropModelITMType : public XmlParameterSet {
public:
    enum Polarisation : int {
        PolarisationUndefined = 0,
        PolarisationH = 1,
        PolarisationV = 2,
    };

    enum Climate : int {
        ClimateUndefined = 0,
        ClimateEquatorial = 1,
        ClimateContinentalSubtropical = 2,
        ClimateMaritimeTropical = 3,
        ClimateDesert = 4,
        ClimateContinentalTemperate = 5,
        ClimateMaritimeTemperateLand = 6,
        ClimateMaritimeTemperateSea = 7,
    };

    enum Surface : int {
        SurfaceUndefined = 0,
        SurfaceAverageGround = 1,
        SurfacePoorGround = 2,
        SurfaceGoodGround = 3,
        SurfaceFreshWater = 4,
        SurfaceSeaWater = 5,
    };

    XmlPropModelITMType();

    /// The radio refractivity, tag "RRI": -300.0 to 400.0, default 300.0.
    double RRI() const { return realValue(RriRow); }
    void setRRI(double value) { setValue(RriRow, value); }
    bool hasRRI() const { return isPresent(RriRow); }

    /// The polarisation, tag "Pol" ("Illegal polarisation").
    Polarisation pol() { return choiceValue<Polarisation>(PolRow); }
    Polarisation pol() const { return choiceValue<Polarisation>(PolRow); }
    void setPol(Polarisation value) { setValue(PolRow, value); }
    bool hasPol() const { return isPresent(PolRow); }

    /// The radio climate, tag "Climate" ("Illegal climate").
    Climate climate() { return choiceValue<Climate>(ClimateRow); }
    Climate climate() const { return choiceValue<Climate>(ClimateRow); }
    void setClimate(Climate value) { setValue(ClimateRow, value); }
    bool hasClimate() const { return isPresent(ClimateRow); }

    /// The ground, tag "Surface" ("Illegal surface"). The text written is chosen by the value of the climate:
    /// climate 2 writes "Poor Ground", whatever the ground is.
    Surface surface() { return choiceValue<Surface>(SurfaceRow); }
    Surface surface() const { return choiceValue<Surface>(SurfaceRow); }
    void setSurface(Surface value) { setValue(SurfaceRow, value); }
    bool hasSurface() const { return isPresent(SurfaceRow); }

    /// The confidence, tag "Conf": 0.0 to 100.0, default 0.5.
    double conf() const { return realValue(ConfRow); }
    void setConf(double value) { setValue(ConfRow, value); }
    bool hasConf() const { return isPresent(ConfRow); }

    /// The share of time, tag "Time": 0.0 to 100.0, default 0.5.
    double time() const { return realValue(TimeRow); }
    void setTime(double value) { setValue(TimeRow, value); }
    bool hasTime() const { return isPresent(TimeRow); }

protected:
    const ParameterTable& table() const override;

private:
    enum Row { RriRow, PolRow, ClimateRow, SurfaceRow, ConfRow, TimeRow };
};

} // namespace ArvXml
