#pragma once

/// \file
/// The parameters of the optical line-of-sight model.

#include "arvxml/parameterset.h"

namespace ArvXml {

/// The parameters of the optical line-of-sight model, both optional. The K-factor may be repeated before the range; the
/// last one counts. Reading does not reset the set. reset() keeps the text of the last syntaxError().
/// \code{.xml}
/// <PropertiesOLOS>
///     <K-factor>1.0000</K-factor>
///     <MaxRange_km>50.000</MaxRange_km>
/// </PropertiesOLOS>
/// \endcode
class ARVXML_EXPORT XmlPropModelOLOSType : public XmlParameterSet {
public:
    XmlPropModelOLOSType();

    /// The effective earth radius factor, tag "K-factor": 0.1 to 5.0, default 1.0.
    double Kfactor() const { return realValue(KFactorRow); }
    void setKfactor(double value) { setValue(KFactorRow, value); }
    bool hasKfactor() const { return isPresent(KFactorRow); }

    /// The maximum range, tag "MaxRange_km": 0.1 to 50.0 km ("Range out of bounds"; reader error "Illegal range value
    /// (must be numeric)"), default 50.0.
    double maxRange_km() const { return realValue(MaxRangeRow); }
    void setMaxRange_km(double value) { setValue(MaxRangeRow, value); }
    bool hasMaxRange_km() const { return isPresent(MaxRangeRow); }

    void reset() override;

private:
    static const ParameterTable& table();

    enum Row { KFactorRow, MaxRangeRow };
};

} // namespace ArvXml
