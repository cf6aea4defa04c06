#include "arvxml/resultgrid.h"

#include "core/enumerationrules.h"

namespace ArvXml {

XmlResultGridType::XmlResultGridType()
    : XmlEnumeration(QStringLiteral("XmlResultGridType"))
{
}

const EnumerationRules& XmlResultGridType::rules() const
{
    static const NeverDestroyed<EnumerationRules> rules = EnumerationRules{
        EnumerationTexts({"10", "50", "100", "200", "500", "1000"}),
        "Illegal enum value.",
        "Illegal grid size.",
    };
    return rules;
}

} // namespace ArvXml
