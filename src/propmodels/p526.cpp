#include "arvxml/p526.h"

#include "propmodels/parametertable.h"

namespace ArvXml {

XmlPropModelP526Type::XmlPropModelP526Type()
    : XmlParameterSet(QStringLiteral("XmlPropModelP526Type"))
{
    resetParameters();
}

const ParameterTable& XmlPropModelP526Type::table() const
{
    static const std::vector<QString> polarisations = texts({"Horizontal", "Vertical"});
    static const std::vector<QString> surfaces =
        texts({"Average Ground", "Poor Ground", "Good Ground", "Fresh Water", "Sea Water"});
    static const std::vector<QString> switches = texts({"Off", "On"});

    // real: tag, default, decimals, lowest, highest, problem out of range, reader error
    // choice: tag, default, texts from value 0 on, reader error
    static const ParameterTable table = {
        {KFactorRow,
         real("K-factor", 1.3333, 3, 0.1, 5.0, "K-factor out of bounds", "Illegal K-factor value (must be numeric)")},
        {PolRow,
         writtenAs("Polarisation", choice("Pol", PolarisationHorizontal, polarisations, "Illegal enum for Pol"))},
        {SurfRow,
         writtenAs("Surface Condition", choice("Surface", SurfaceAverageGround, surfaces, "Illegal enum for Surface"))},
        {SmoothRow,
         writtenAs("Assume Smooth Earth for complete path",
                   choice("AssumeSmoothEarth", SwitchOff, switches, "Illegal enum for AssumeSmoothEarth"))},
        {SubPathRow,
         writtenAs("Include sub path diffraction loss",
                   choice("IncludeSubPathDiffractionLoss", SwitchOn, switches,
                          "Illegal enum for IncludeSubPathDiffractionLoss"))},
    };
    return table;
}

} // namespace ArvXml
