#pragma once

/// \file
/// The parameters of the Okumura-Hata model.

#include "arvxml/parameterset.h"

namespace ArvXml {

/// The parameters of the Okumura-Hata model, all optional. The K-factor is written with the tag of the set itself,
/// which the reader refuses: such a set cannot be read back. Texts must match those of the enumerators exactly
/// ("Illegal value for "AreaType""). Value 0 is written as "UNDEFINED", not read, and invalid; values outside the
/// enumerators are written the same way but valid. Read as:
/// \code{.xml}
/// <PropertiesOkumura>
///     <K-factor>1.3333</K-factor>
///     <AreaType>Urban</AreaType>
///     <CitySize>Large</CitySize>
/// </PropertiesOkumura>
/// \endcode
class ARVXML_EXPORT XmlPropModelHataType : public XmlParameterSet {
public:
    /// The kinds of areas, with their texts.
    enum Area : int {
        AreaUndefined = 0, ///< Not set.
        AreaUrban = 1,     ///< "Urban"
        AreaSuburban = 2,  ///< "Suburban"
        AreaOpenRural = 3, ///< "Open rural"
    };

    /// The sizes of cities, with their texts.
    enum Size : int {
        SizeUndefined = 0, ///< Not set.
        SizeSmall = 1,     ///< "Small"
        SizeMedium = 2,    ///< "Medium"
        SizeLarge = 3,     ///< "Large"
    };

    XmlPropModelHataType();

    /// The effective earth radius factor, tag "K-factor" on reading: 0.1 to 5.0 ("Kfactor out of bounds"; reader error
    /// "Illegal Kfactor value (must be numeric)"), default 1.3333.
    double Kfactor() const { return realValue(KFactorRow); }
    void setKfactor(double value) { setValue(KFactorRow, value); }
    bool hasKfactor() const { return isPresent(KFactorRow); }

    /// The kind of area, tag "AreaType" ("Illegal AreaType"); undefined by default.
    Area areaType() { return choiceValue<Area>(AreaTypeRow); }
    Area areaType() const { return choiceValue<Area>(AreaTypeRow); }
    void setAreaType(Area value) { setValue(AreaTypeRow, value); }
    bool hasAreaType() const { return isPresent(AreaTypeRow); }

    /// The size of the city, tag "CitySize" ("Illegal CitySize"); undefined by default.
    Size citySize() { return choiceValue<Size>(CitySizeRow); }
    Size citySize() const { return choiceValue<Size>(CitySizeRow); }
    void setCitySize(Size value) { setValue(CitySizeRow, value); }
    bool hasCitySize() const { return isPresent(CitySizeRow); }

private:
    static const ParameterTable& table();

    enum Row { KFactorRow, AreaTypeRow, CitySizeRow };
};

} // namespace ArvXml
