#include "arvxml/itm.h"

#include "propmodels/parametertable.h"

namespace ArvXml {

XmlPropModelITMType::XmlPropModelITMType()
    : XmlParameterSet(QStringLiteral("XmlPropModelITMType"))
{
    resetParameters();
}

const ParameterTable& XmlPropModelITMType::table() const
{
    // Each list of texts starts with that of value 1.
    static const std::vector<QString> polarisations = texts({"H", "V"});
    static const std::vector<QString> climates =
        texts({"Equatorial", "Continental Subtropical", "Maritime Tropical", "Desert", "Continental Temperate",
               "Maritime Temperate, Land", "Maritime Temperate, Sea"});
    static const std::vector<QString> surfaces =
        texts({"Average Ground", "Poor Ground", "Good Ground", "Fresh Water", "Sea Water"});
    static const ParameterTable table =
        ParameterTable(
            {
                real("RRI", 300.0, 4, -300.0, 400.0, "RRI out of bounds", "Illegal RRI value (must be numeric)"),
                definedChoice("Pol", polarisations, "Illegal polarisation", "Illegal value for \"Pol\""),
                definedChoice("Climate", climates, "Illegal climate", "Illegal value for \"Climate\""),
                textChosenBy(ClimateValueRow,
                             definedChoice("Surface", surfaces, "Illegal surface", "Illegal value for \"Surface\"")),
                real("Conf", 0.5, 2, 0.0, 100.0, "Conf out of bounds", "Illegal Conf value (must be numeric)"),
                real("Time", 0.5, 2, 0.0, 100.0, "Time out of bounds", "Illegal Time value (must be numeric)"),
            })
            .reportedInOrder({RriValueRow, ConfRow, TimeRow, ClimateValueRow, PolRow, SurfaceValueRow});
    return table;
}

} // namespace ArvXml
