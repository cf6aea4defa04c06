#pragma once

#include "arvxml/parameterset.h"

namespace ArvXml {

/// The parameters of the ITU-R P.526 diffraction model, all optional: read as
/// `<PropertiesP526><K-factor>1.333</K-factor><Pol>Vertical</Pol>...</PropertiesP526>`.
///
/// All but the K-factor are written under other names than they are read ("Polarisation", and labels with
/// blanks, which are no names of XML): none of them can be read back. Each parameter comes at most once, in the
/// order of the accessors below. Choices are read exactly by their texts, that of value 0 included:
/// "Horizontal", "Vertical"; "Average Ground", "Poor Ground", "Good Ground", "Fresh Water", "Sea Water"; "Off",
/// "On". A value outside is written with the default's text. Reading resets the set first.
class ARVXML_EXPORT XmlPropModelP526Type : public XmlParameterSet {
public:
    enum Polarisation : int {
        PolarisationHorizontal = 0,
        PolarisationVertical = 1,
    };

    enum Surface : int {
        SurfaceAverageGround = 0,
        SurfacePoorGround = 1,
        SurfaceGoodGround = 2,
        SurfaceFreshWater = 3,
        SurfaceSeaWater = 4,
    };

    enum Switch : int {
        SwitchOff = 0,
        SwitchOn = 1,
    };

    XmlPropModelP526Type();

    /// The effective earth radius factor, tag "K-factor": 0.1 to 5.0, default 1.3333.
    double kFactor() const { return realValue(KFactorRow); }
    void setKfactor(double value) { setValue(KFactorRow, value); }
    bool hasKFactor() const { return isPresent(KFactorRow); }

    /// The polarisation, read under "Pol", written under "Polarisation".
    Polarisation pol() { return choiceValue<Polarisation>(PolRow); }
    Polarisation pol() const { return choiceValue<Polarisation>(PolRow); }
    void setPol(Polarisation value) { setValue(PolRow, value); }
    bool hasPol() const { return isPresent(PolRow); }

    /// The ground, read under "Surface", written under "Surface Condition".
    Surface surf() { return choiceValue<Surface>(SurfRow); }
    Surface surf() const { return choiceValue<Surface>(SurfRow); }
    void setSurf(Surface value) { setValue(SurfRow, value); }
    bool hasSurf() const { return isPresent(SurfRow); }

    /// Whether the earth is taken as smooth, read under "AssumeSmoothEarth", written under "Assume Smooth
    /// Earth for complete path".
    Switch smooth() { return choiceValue<Switch>(SmoothRow); }
    Switch smooth() const { return choiceValue<Switch>(SmoothRow); }
    void setSmooth(Switch value) { setValue(SmoothRow, value); }
    bool hasSmooth() const { return isPresent(SmoothRow); }

    /// Whether the diffraction of sub-paths counts, read under "IncludeSubPathDiffractionLoss", written under
    /// "Include sub path diffraction loss". On by default.
    Switch subPath() { return choiceValue<Switch>(SubPathRow); }
    Switch subPath() const { return choiceValue<Switch>(SubPathRow); }
    void setSubPath(Switch value) { setValue(SubPathRow, value); }
    bool hasSubPath() const { return isPresent(SubPathRow); }

protected:
    const ParameterTable& table() const override;

private:
    enum Row { KFactorRow, PolRow, SurfRow, SmoothRow, SubPathRow };
};

} // namespace ArvXml
