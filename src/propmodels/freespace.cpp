#include "arvxml/freespace.h"

#include "propmodels/parametertable.h"

namespace ArvXml {

XmlPropModelFSType::XmlPropModelFSType()
    : XmlParameterSet(QStringLiteral("XmlPropModelFSType"), table())
{
}

const ParameterTable& XmlPropModelFSType::table()
{
    // real: tag, default, decimals, lowest, highest, problem out of range, reader error
    static const NeverDestroyed<ParameterTable> table =
        ParameterTable({
                           {KFactorRow,
                            repeatable(real("K-factor", 1.3333, 4, 0.1, 5.0, "K-factor out of bounds",
                                            "Illegal K-factor value (must be numeric)"))},
                       })
            .keptBeforeReading();
    return table;
}

} // namespace ArvXml
