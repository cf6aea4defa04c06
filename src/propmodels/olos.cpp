#include "arvxml/olos.h"

#include "propmodels/parametertable.h"

namespace ArvXml {

XmlPropModelOLOSType::XmlPropModelOLOSType()
    : XmlParameterSet(QStringLiteral("XmlPropModelOLOSType"), table())
{
}

const ParameterTable& XmlPropModelOLOSType::table()
{
    // real: tag, default, decimals, lowest, highest, problem out of range, reader error
    static const NeverDestroyed<ParameterTable> table =
        ParameterTable({
                           {KFactorRow,
                            repeatable(real("K-factor", 1.0, 4, 0.1, 5.0, "K-factor out of bounds",
                                            "Illegal K-factor value (must be numeric)"))},
                           {MaxRangeRow,
                            real("MaxRange_km", 50.0, 3, 0.1, 50.0, "Range out of bounds",
                                 "Illegal range value (must be numeric)")},
                       })
            .keptBeforeReading();
    return table;
}

void XmlPropModelOLOSType::reset()
{
    resetParameters(); // and nothing else: the text of the last syntaxError() stays
}

} // namespace ArvXml
