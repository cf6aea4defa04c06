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
    static const std::vector<QString> areas = texts({"UNDEFINED", "Urban", "Suburban", "Open rural"});
    static const std::vector<QString> sizes = texts({"UNDEFINED", "Small", "Medium", "Large"});

    // real: tag, default, decimals, lowest, highest, problem out of range, reader error
    // definedChoice: tag, texts from value 0 on, problem of value 0, reader error
    static const ParameterTable table = {
        {KFactorRow,
         writtenAsTheSet(real("K-factor", 1.3333, 4, 0.1, 5.0, "Kfactor out of bounds",
                              "Illegal Kfactor value (must be numeric)"))},
        {AreaTypeRow, definedChoice("AreaType", areas, "Illegal AreaType", "Illegal value for \"AreaType\"")},
        {CitySizeRow, definedChoice("CitySize", sizes, "Illegal CitySize", "Illegal value for \"CitySize\"")},
    };
    return table;
}

} // namespace ArvXml
