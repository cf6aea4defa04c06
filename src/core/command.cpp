#include "arvxml/command.h"

#include "core/contentmodel.h"

namespace ArvXml {

void XmlCommand::reset()
{
    m_orderDef.clear();
    m_reference.reset();
    XmlComposite::reset();
}

bool XmlChoiceCommand::isValid() const
{
    return XmlCommand::isValid() && heldChildren() == 1;
}

void XmlChoiceCommand::addErrors()
{
    addChildrenErrors();
    if (heldChildren() != 1)
        addSyntaxError(QStringLiteral("Too many or too few elements."));
}

} // namespace ArvXml
