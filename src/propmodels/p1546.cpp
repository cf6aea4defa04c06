#include "arvxml/p1546.h"

#include "propmodels/parametertable.h"

namespace ArvXml {

XmlPropModelP1546Type::XmlPropModelP1546Type()
    : XmlParameterSet(QStringLiteral("XmlPropModelP1546Type"))
{
    resetParameters();
}

const ParameterTable& XmlPropModelP1546Type::table() const
{
    // Each list of texts starts with that of value 0.
    static const std::vector<QString> paths = texts({"Undefined", "Land", "Cold Sea", "Warm Sea"});
    static const std::vector<QString> environments = texts({"Undefined", "Open", "Suburban", "Warm Sea"});
    static const std::vector<QString> switches = texts({"Off", "On"});
    static const ParameterTable table = {
        real("K-factor", 1.3333, 3, 0.1, 5.0, "K-factor out of bounds", "Illegal K-factor value (must be numeric)"),
        real("TimePct", 50.0, 2, 0.01, 50.0, "TimePct out of bounds", "Illegal TimePct value (must be numeric)"),
        choice("PropPathType", PathUndefined, paths, "Illegal enum for PropPathType"),
        badTextClears(
            TimeRow,
            real("LocVar", 50.0, 2, 1.0, 99.0, "LocVar out of bounds", "Illegal LocVar value (must be numeric)")),
        afterBadText(50.0,
                     real("BoardAntGain", 0.0, 3, 0.0, 99.999, "BroadAntGain out of bounds",
                          "Illegal BoardAntGain value (must be numeric)")),
        choice("RxAntEnviro", EnvironmentUndefined, environments, "Illegal enum for RxAntEnviro"),
        choice("AvgAreaEnviro", EnvironmentUndefined, environments, "Illegal enum for AvgAreaEnviro"),
        choice("PathCorrection", SwitchOff, switches, "Illegal enum for PathCorrection"),
        choice("PathTypeForBroadAnt", PathUndefined, paths, "Illegal enum for PathTypeForBroadAnt"),
        choice("PathTypeForRxAnt", PathUndefined, paths, "Illegal enum for PathTypeForRxAnt"),
    };
    return table;
}

} // namespace ArvXml
