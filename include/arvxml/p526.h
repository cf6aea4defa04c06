#pragma once

/// \file
/// The parameters of ITU-R P.526.

#include "arvxml/parameterset.h"

namespace ArvXml {

/// The parameters of the ITU-R P.526 diffraction model, all optional. All but the K-factor are written with other tags
/// ("Polarisation", and labels with spaces, which are not XML names) and cannot be read back. Texts must match those of
/// the enumerators exactly, including that of value 0 ("Illegal enum for Pol"). Values outside the enumerators are
/// written with the default text; no value is invalid. Read as:
/// \code{.xml}
/// <PropertiesP526>
///     <K-factor>1.333</K-factor>
///     <Pol>Vertical</Pol>
///     <Surface>Sea Water</Surface>
///     <AssumeSmoothEarth>Off</AssumeSmoothEarth>
///     <IncludeSubPathDiffractionLoss>On</IncludeSubPathDiffractionLoss>
/// </PropertiesP526>
/// \endcode
class ARVXML_EXPORT XmlPropModelP526Type : public XmlParameterSet {
public:
    /// The polarisations, with their texts.
    enum Polarisation : int {
        PolarisationHorizontal = 0, ///< "Horizontal"
        PolarisationVertical = 1,   ///< "Vertical"
    };

    /// The kinds of ground, with their texts.
    enum Surface : int {
        SurfaceAverageGround = 0, ///< "Average Ground"
        SurfacePoorGround = 1,    ///< "Poor Ground"
        SurfaceGoodGround = 2,    ///< "Good Ground"
        SurfaceFreshWater = 3,    ///< "Fresh Water"
        SurfaceSeaWater = 4,      ///< "Sea Water"
    };

    /// Off or on, with their texts.
    enum Switch : int {
        SwitchOff = 0, ///< "Off"
        SwitchOn = 1,  ///< "On"
    };

    XmlPropModelP526Type();

    /// The effective earth radius factor, tag "K-factor" ("K-factor out of bounds"): 0.1 to 5.0, default 1.3333.
    double kFactor() const { return realValue(KFactorRow); }
    void setKfactor(double value) { setValue(KFactorRow, value); }
    bool hasKFactor() const { return isPresent(KFactorRow); }

    /// The polarisation, read as "Pol", written as "Polarisation"; horizontal by default.
    Polarisation pol() { return choiceValue<Polarisation>(PolRow); }
    Polarisation pol() const { return choiceValue<Polarisation>(PolRow); }
    void setPol(Polarisation value) { setValue(PolRow, value); }
    bool hasPol() const { return isPresent(PolRow); }

    /// The ground, read as "Surface", written as "Surface Condition"; average ground by default.
    Surface surf() { return choiceValue<Surface>(SurfRow); }
    Surface surf() const { return choiceValue<Surface>(SurfRow); }
    void setSurf(Surface value) { setValue(SurfRow, value); }
    bool hasSurf() const { return isPresent(SurfRow); }

    /// Whether the earth is assumed smooth, read as "AssumeSmoothEarth", written as "Assume Smooth Earth for complete
    /// path"; off by default.
    Switch smooth() { return choiceValue<Switch>(SmoothRow); }
    Switch smooth() const { return choiceValue<Switch>(SmoothRow); }
    void setSmooth(Switch value) { setValue(SmoothRow, value); }
    bool hasSmooth() const { return isPresent(SmoothRow); }

    /// Whether to include sub-path diffraction, read as "IncludeSubPathDiffractionLoss", written as "Include sub path
    /// diffraction loss"; on by default.
    Switch subPath() { return choiceValue<Switch>(SubPathRow); }
    Switch subPath() const { return choiceValue<Switch>(SubPathRow); }
    void setSubPath(Switch value) { setValue(SubPathRow, value); }
    bool hasSubPath() const { return isPresent(SubPathRow); }

private:
    static const ParameterTable& table();

    enum Row { KFactorRow, PolRow, SurfRow, SmoothRow, SubPathRow };
};

} // namespace ArvXml
