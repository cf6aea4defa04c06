#include "arvxml/command.h"

#include "core/elementform.h"

namespace ArvXml {

void XmlCommand::reset()
{
    m_orderDef.clear();
    XmlComposite::reset(); // the reference stands in the form of every command
}

bool XmlChoiceCommand::holdsExactlyOne() const
{
    constexpr int reference = 1; // it is counted with the others
    return heldChildren() - reference == 1;
}

bool XmlChoiceCommand::isValid() const
{
    return XmlCommand::isValid() && holdsExactlyOne();
}

void XmlChoiceCommand::addErrors()
{
    addSyntaxError(memberError(m_reference)); // reported first, though written last
    addChildrenErrors();
    if (!holdsExactlyOne())
        addSyntaxError(QStringLiteral("Too many or too few elements."));
}

} // namespace ArvXml
