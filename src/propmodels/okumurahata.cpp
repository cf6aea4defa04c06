#include "arvxml/okumurahata.h"

#include "propmodels/parametertable.h"

namespace ArvXml {

XmlPropModelHataType::XmlPropModelHataType()
    : XmlParameterSet(QStringLiteral("XmlPropModelHataType"))
{
    resetParameters();
}

const ParameterTable& XmlPropModelHataType::table() const
{
    // Each list of texts starts with that of value 1.
    static const std::vector<QString> areas = texts({"Urban", "Suburban", "Open rural"});
    static const std::vector<QString> sizes = texts({"Small", "Medium", "Large"});
    static const ParameterTable table = {
        writtenAsTheSet(
            real("K-factor", 1.3333, 4, 0.1, 5.0, "Kfactor out of bounds", "Illegal Kfactor value (must be numeric)")),
        definedChoice("AreaType", areas, "Illegal AreaType", "Illegal value for \"AreaType\""),
        definedChoice("CitySize", sizes, "Illegal CitySize", "Illegal value for \"CitySize\""),
    };
    return table;
}

} // namespace ArvXml
