#include "arvxml/p533.h"

#include "propmodels/parametertable.h"

namespace ArvXml {

XmlPropModelP533Type::XmlPropModelP533Type()
    : XmlParameterSet(QStringLiteral("XmlPropModelP526Type"), table()) // not its own name
{
}

const ParameterTable& XmlPropModelP533Type::table()
{
    // real: tag, default, decimals, lowest, highest, problem out of range, reader error
    static const NeverDestroyed<ParameterTable> table = ParameterTable{
        {KFactorRow,
         real("K-factor", 1.0, 3, 0.1, 5.0, "K-factor out of bounds", "Illegal K-factor value (must be numeric)")},
        {SunSpotsRow,
         real("SmoothedSunSpotNumber", 5.0, 1, 0.0, 999.9, "SmoothedSunSpotNumber out of bounds",
              "Illegal SmoothedSunSpotNumber value (must be numeric)")},
    };
    return table;
}

} // namespace ArvXml
