#include "arvxml/p526.h"

#include "propmodels/parametertable.h"

namespace ArvXml {

namespace {

std::vector<QString> p526Polarisations()
{
    return texts({"Horizontal", "Vertical"});
}

std::vector<QString> p526Surfaces()
{
    return texts({"Average Ground", "Poor Ground", "Good Ground", "Fresh Water", "Sea Water"});
}

} // namespace

XmlPropModelP526Type::XmlPropModelP526Type()
    : XmlParameterSet(QStringLiteral("XmlPropModelP526Type"), table())
{
}

const ParameterTable& XmlPropModelP526Type::table()
{
    // real: tag, default, decimals, lowest, highest, problem out of range, reader error
    // choice: tag, default, texts from value 0 on, reader error
    static const NeverDestroyed<ParameterTable> table = ParameterTable{
        {KFactorRow,
         real("K-factor", 1.3333, 3, 0.1, 5.0, "K-factor out of bounds", "Illegal K-factor value (must be numeric)")},
        {PolRow,
         writtenAs("Polarisation", choice("Pol", PolarisationHorizontal, p526Polarisations(), "Illegal enum for Pol"))},
        {SurfRow,
         writtenAs("Surface Condition",
                   choice("Surface", SurfaceAverageGround, p526Surfaces(), "Illegal enum for Surface"))},
        {SmoothRow,
         writtenAs("Assume Smooth Earth for complete path",
                   choice("AssumeSmoothEarth", SwitchOff, switchTexts(), "Illegal enum for AssumeSmoothEarth"))},
        {SubPathRow,
         writtenAs("Include sub path diffraction loss",
                   choice("IncludeSubPathDiffractionLoss", SwitchOn, switchTexts(),
                          "Illegal enum for IncludeSubPathDiffractionLoss"))},
    };
    return table;
}

} // namespace ArvXml
