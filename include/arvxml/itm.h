#pragma once

/// \file
/// The parameters of the Irregular Terrain Model.

#include "arvxml/parameterset.h"

namespace ArvXml {

/// The parameters of the Irregular Terrain Model, all optional. Texts must match those of the enumerators exactly
/// ("Illegal value for "Pol""). Value 0 is written as "UNDEFINED", not read, and invalid; values outside the
/// enumerators are written the same way but valid. Numbers out of range are reported like "RRI out of bounds".
/// \code{.xml}
/// <PropertiesITM>
///     <RRI>300.0000</RRI>
///     <Pol>H</Pol>
///     <Climate>Continental Subtropical</Climate>
///     <Surface>Poor Ground</Surface>
///     <Conf>0.50</Conf>
///     <Time>0.50</Time>
/// </PropertiesITM>
/// \endcode
class ARVXML_EXPORT XmlPropModelITMType : public XmlParameterSet {
public:
    /// The polarisations, with their texts.
    enum Polarisation : int {
        PolarisationUndefined = 0, ///< Not set.
        PolarisationH = 1,         ///< "H"
        PolarisationV = 2,         ///< "V"
    };

    /// The radio climates, with their texts.
    enum Climate : int {
        ClimateUndefined = 0,              ///< Not set.
        ClimateEquatorial = 1,             ///< "Equatorial"
        ClimateContinentalSubtropical = 2, ///< "Continental Subtropical"
        ClimateMaritimeTropical = 3,       ///< "Maritime Tropical"
        ClimateDesert = 4,                 ///< "Desert"
        ClimateContinentalTemperate = 5,   ///< "Continental Temperate"
        ClimateMaritimeTemperateLand = 6,  ///< "Maritime Temperate, Land"
        ClimateMaritimeTemperateSea = 7,   ///< "Maritime Temperate, Sea"
    };

    /// The kinds of ground, with their texts on reading. On writing the climate selects the text; see surface().
    enum Surface : int {
        SurfaceUndefined = 0,     ///< Not set.
        SurfaceAverageGround = 1, ///< "Average Ground"
        SurfacePoorGround = 2,    ///< "Poor Ground"
        SurfaceGoodGround = 3,    ///< "Good Ground"
        SurfaceFreshWater = 4,    ///< "Fresh Water"
        SurfaceSeaWater = 5,      ///< "Sea Water"
    };

    XmlPropModelITMType();

    /// The radio refractivity, tag "RRI": -300.0 to 400.0, default 300.0.
    double RRI() const { return realValue(RriRow); }
    void setRRI(double value) { setValue(RriRow, value); }
    bool hasRRI() const { return isPresent(RriRow); }

    /// The polarisation, tag "Pol" ("Illegal polarisation"); undefined by default.
    Polarisation pol() { return choiceValue<Polarisation>(PolRow); }
    Polarisation pol() const { return choiceValue<Polarisation>(PolRow); }
    void setPol(Polarisation value) { setValue(PolRow, value); }
    bool hasPol() const { return isPresent(PolRow); }

    /// The radio climate, tag "Climate" ("Illegal climate"); undefined by default.
    Climate climate() { return choiceValue<Climate>(ClimateRow); }
    Climate climate() const { return choiceValue<Climate>(ClimateRow); }
    void setClimate(Climate value) { setValue(ClimateRow, value); }
    bool hasClimate() const { return isPresent(ClimateRow); }

    /// The ground, tag "Surface" ("Illegal surface"). The value of the climate selects the text written: climate 2
    /// writes "Poor Ground", whatever the ground, and climates 0, 6 and 7 write "UNDEFINED".
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

private:
    static const ParameterTable& table();

    enum Row { RriRow, PolRow, ClimateRow, SurfaceRow, ConfRow, TimeRow };
};

} // namespace ArvXml
