#include "arvxml/command.h"

namespace ArvXml {

void XmlCommand::reset()
{
    m_orderDef.clear();
    XmlComposite::reset(); // the reference stands in the form of every command
}

} // namespace ArvXml
