#pragma once

#include "arvxml/parameterset.h"

namespace ArvXml {

/// The parameters of the Okumura-Hata model, all optional: read as `<PropertiesOkumura>
/// <K-factor>1.3333</K-factor><AreaType>Urban</AreaType><CitySize>Large</CitySize></PropertiesOkumura>`.
///
/// The K-factor is written under the tag of the set itself, which the reader refuses: a set with a K-factor
/// cannot be read back. Each parameter comes at most once, in this order. Choices are read exactly by their
/// texts: "Urban", "Suburban", "Open rural"; "Small", "Medium", "Large". Value 0 is written "UNDEFINED", not
/// read, and invalid; a value outside is written so, too, but valid. Reading resets the set first.
class ARVXML_EXPORT XmlPropModelHataType : public XmlParameterSet {
public:
    enum Area : int {
        AreaUndefined = 0,
        AreaUrban = 1,
        AreaSuburban = 2,
        AreaOpenRural = 3,
    };

    enum Size : int {
        SizeUndefined = 0,
        SizeSmall = 1,
        SizeMedium = 2,
        SizeLarge = 3,
    };

    XmlPropModelHataType();

    /// The effective earth radius factor, tag "K-factor" ("Kfactor" in messages): 0.1 to 5.0, default 1.3333.
    double Kfactor() const { return realValue(KFactorRow); }
    void setKfactor(double value) { setValue(KFactorRow, value); }
    bool hasKfactor() const { return isPresent(KFactorRow); }

    /// The kind of area, tag "AreaType" ("Illegal AreaType").
    Area areaType() { return choiceValue<Area>(AreaTypeRow); }
    Area areaType() const { return choiceValue<Area>(AreaTypeRow); }
    void setAreaType(Area value) { setValue(AreaTypeRow, value); }
    bool hasAreaType() const { return isPresent(AreaTypeRow); }

    /// The size of the city, tag "CitySize" ("Illegal CitySize").
    Size citySize() { return choiceValue<Size>(CitySizeRow); }
    Size citySize() const { return choiceValue<Size>(CitySizeRow); }
    void setCitySize(Size value) { setValue(CitySizeRow, value); }
    bool hasCitySize() const { return isPresent(CitySizeRow); }

protected:
    const ParameterTable& table() const override;

private:
    enum Row { KFactorRow, AreaTypeRow, CitySizeRow };
};

} // namespace ArvXml
