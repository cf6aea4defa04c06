#include "arvxml/itm.h"

#include "propmodels/parametertable.h"

namespace ArvXml {

namespace {

std::vector<QString> itmPolarisations()
{
    return texts({"UNDEFINED", "H", "V"});
}

std::vector<QString> itmClimates()
{
    return texts({"UNDEFINED", "Equatorial", "Continental Subtropical", "Maritime Tropical", "Desert",
                  "Continental Temperate", "Maritime Temperate, Land", "Maritime Temperate, Sea"});
}

std::vector<QString> itmSurfaces()
{
    return texts({"UNDEFINED", "Average Ground", "Poor Ground", "Good Ground", "Fresh Water", "Sea Water"});
}

} // namespace

XmlPropModelITMType::XmlPropModelITMType()
    : XmlParameterSet(QStringLiteral("XmlPropModelITMType"), table())
{
}

const ParameterTable& XmlPropModelITMType::table()
{
    // real: tag, default, decimals, lowest, highest, problem out of range, reader error
    // definedChoice: tag, texts from value 0 on, problem of value 0, reader error
    static const NeverDestroyed<ParameterTable> table =
        ParameterTable(
            {
                {RriRow,
                 real("RRI", 300.0, 4, -300.0, 400.0, "RRI out of bounds", "Illegal RRI value (must be numeric)")},
                {PolRow, definedChoice("Pol", itmPolarisations(), "Illegal polarisation", "Illegal value for \"Pol\"")},
                {ClimateRow,
                 definedChoice("Climate", itmClimates(), "Illegal climate", "Illegal value for \"Climate\"")},
                {SurfaceRow,
                 textChosenBy(
                     ClimateRow,
                     definedChoice("Surface", itmSurfaces(), "Illegal surface", "Illegal value for \"Surface\""))},
                {ConfRow,
                 real("Conf", 0.5, 2, 0.0, 100.0, "Conf out of bounds", "Illegal Conf value (must be numeric)")},
                {TimeRow,
                 real("Time", 0.5, 2, 0.0, 100.0, "Time out of bounds", "Illegal Time value (must be numeric)")},
            })
            .reportedFirst({RriRow, ConfRow, TimeRow, ClimateRow});
    return table;
}

} // namespace ArvXml
