#include "arvxml/p1546.h"

#include "propmodels/parametertable.h"

namespace ArvXml {

namespace {

std::vector<QString> p1546Paths()
{
    return texts({"Undefined", "Land", "Cold Sea", "Warm Sea"});
}

std::vector<QString> p1546Environments()
{
    return texts({"Undefined", "Open", "Suburban", "Warm Sea"});
}

} // namespace

XmlPropModelP1546Type::XmlPropModelP1546Type()
    : XmlParameterSet(QStringLiteral("XmlPropModelP1546Type"), table())
{
}

const ParameterTable& XmlPropModelP1546Type::table()
{
    // real: tag, default, decimals, lowest, highest, problem out of range, reader error
    // choice: tag, default, texts from value 0 on, reader error
    static const NeverDestroyed<ParameterTable> table = ParameterTable{
        {KFactorRow,
         real("K-factor", 1.3333, 3, 0.1, 5.0, "K-factor out of bounds", "Illegal K-factor value (must be numeric)")},
        {TimeRow,
         real("TimePct", 50.0, 2, 0.01, 50.0, "TimePct out of bounds", "Illegal TimePct value (must be numeric)")},
        {PathRow, choice("PropPathType", PathUndefined, p1546Paths(), "Illegal enum for PropPathType")},
        {LocVarRow,
         readErrorClears(
             TimeRow,
             real("LocVar", 50.0, 2, 1.0, 99.0, "LocVar out of bounds", "Illegal LocVar value (must be numeric)"))},
        {BroadAntGainRow,
         valueAfterReadError(50.0,
                             real("BoardAntGain", 0.0, 3, 0.0, 99.999, "BroadAntGain out of bounds",
                                  "Illegal BoardAntGain value (must be numeric)"))},
        {RxAntERow, choice("RxAntEnviro", EnvironmentUndefined, p1546Environments(), "Illegal enum for RxAntEnviro")},
        {AvgAreaERow,
         choice("AvgAreaEnviro", EnvironmentUndefined, p1546Environments(), "Illegal enum for AvgAreaEnviro")},
        {CorrectionRow, choice("PathCorrection", SwitchOff, switchTexts(), "Illegal enum for PathCorrection")},
        {BroadAntRow,
         choice("PathTypeForBroadAnt", PathUndefined, p1546Paths(), "Illegal enum for PathTypeForBroadAnt")},
        {RxAntRow, choice("PathTypeForRxAnt", PathUndefined, p1546Paths(), "Illegal enum for PathTypeForRxAnt")},
    };
    return table;
}

} // namespace ArvXml
