#include "arvxml/p452.h"

#include "propmodels/parametertable.h"

namespace ArvXml {

XmlPropModelP452Type::XmlPropModelP452Type()
    : XmlParameterSet(QStringLiteral("XmlPropModelP542Type"), table()) // not its own name
{
}

const ParameterTable& XmlPropModelP452Type::table()
{
    // real: tag, default, decimals, lowest, highest, problem out of range, reader error
    // integer: tag, default, lowest, highest, problem out of range, reader error
    static const NeverDestroyed<ParameterTable> table = ParameterTable{
        {DeltaNRow,
         real("DeltaN", 45.59, 1, 0.0, 600.0, "DeltaN out of bounds", "Illegal DeltaN value (must be numeric)")},
        {SurfaceRefractRow,
         integer("SurfaceRefract", 329, 250, 400, "SurfaceRefract out of bounds",
                 "Illegal SurfaceRefract value (must be numeric)")},
        {TimePctRow,
         real("TimePct", 50.0, 2, 0.01, 50.0, "TimePct out of bounds", "Illegal TimePct value (must be numeric)")},
        {PressureRow,
         integer("Pressure_hPa", 1013, 800, 1100, "Pressure_hPa out of bounds",
                 "Illegal Pressure_hPa value (must be numeric)")},
        {TempRow, integer("Temp_C", 15, -60, 50, "Temp_C out of bounds", "Illegal Temp_C value (must be numeric)")},
        {OverWaterRow,
         real("OverWater_km", 0.0, 1, 0.0, 40000.0, "OverWater_km out of bounds",
              "Illegal OverWater_km value (must be numeric)")},
        {InlandCoastalRow,
         real("InlandCoastal_km", 0.0, 1, 0.0, 40000.0, "InlandCoastal_km out of bounds",
              "Illegal InlandCoastal_km value (must be numeric)")},
        {InlandRow,
         real("Inland_km", 0.0, 1, 0.0, 40000.0, "Inland_km out of bounds",
              "Illegal Inland_km value (must be numeric)")},
        {DistTxCoastRow,
         real("DistTxCoast_km", 500.0, 1, 0.0, 40000.0, "DistTxCoast_km out of bounds",
              "Illegal DistTxCoast_km value (must be numeric)")},
        {DistRxCoastRow,
         real("DistRxCoast_km", 500.0, 1, 0.0, 40000.0, "DistRxCoast_km out of bounds",
              "Illegal DistRxCoast_km value (must be numeric)")},
    };
    return table;
}

} // namespace ArvXml
