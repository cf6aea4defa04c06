#include "arvxml/okumurahata.h"

#include "propmodels/parametertable.h"

namespace ArvXml {

namespace {

std::vector<QString> hataAreas()
{
    return texts({"UNDEFINED", "Urban", "Suburban", "Open rural"});
}

std::vector<QString> hataSizes()
{
    return texts({"UNDEFINED", "Small", "Medium", "Large"});
}

} // namespace

XmlPropModelHataType::XmlPropModelHataType()
    : XmlParameterSet(QStringLiteral("XmlPropModelHataType"), table())
{
}

const ParameterTable& XmlPropModelHataType::table()
{
    // real: tag, default, decimals, lowest, highest, problem out of range, reader error
    // definedChoice: tag, texts from value 0 on, problem of value 0, reader error
    static const NeverDestroyed<ParameterTable> table = ParameterTable{
        {KFactorRow,
         writtenAsTheSet(real("K-factor", 1.3333, 4, 0.1, 5.0, "Kfactor out of bounds",
                              "Illegal Kfactor value (must be numeric)"))},
        {AreaTypeRow, definedChoice("AreaType", hataAreas(), "Illegal AreaType", "Illegal value for \"AreaType\"")},
        {CitySizeRow, definedChoice("CitySize", hataSizes(), "Illegal CitySize", "Illegal value for \"CitySize\"")},
    };
    return table;
}

} // namespace ArvXml
