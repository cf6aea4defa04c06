#include "arvxml/command.h"

#include "core/elementform.h"

namespace ArvXml {

void XmlCommand::reset()
{
    m_orderDef.clear();
    XmlComposite::reset(); // the reference stands in the form of every command
}

Content XmlChoiceCommand::referenceChild()
{
    return reportedApart(child<&XmlChoiceCommand::m_reference>());
}

bool XmlChoiceCommand::holdsExactlyOne() const
{
    return heldChildren() == 1;
}

bool XmlChoiceCommand::isValid() const
{
    return XmlCommand::isValid() && holdsExactlyOne();
}

void XmlChoiceCommand::addErrors()
{
    addSyntaxError(memberError(m_reference));
    addChildrenErrors();
    if (!holdsExactlyOne())
        addSyntaxError(QStringLiteral("Too many or too few elements."));
}

} // namespace ArvXml
