#include "arvxml/commandroot.h"

#include "core/elementform.h"

namespace ArvXml {

XmlCmdRoot::XmlCmdRoot()
    : XmlComposite(QStringLiteral("XmlCmdRoot"))
{
}

void XmlCmdRoot::handEnvelope(XmlCommand& command) const
{
    if (hasOrderDef())
        command.setOrderDef(*orderDef());
}

template <auto Member>
Content XmlCmdRoot::commands()
{
    Content content = heldIn<Member>();
    content.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        XmlCommand& command = memberOf<Member>(owner).append();
        command.processXml(in.stream(), tag);
        static_cast<const XmlCmdRoot&>(owner).handEnvelope(command);
    };
    return content;
}

Content XmlCmdRoot::propModelCommand()
{
    Content content = heldIn<&XmlCmdRoot::m_propModel>();
    content.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        auto& root = static_cast<XmlCmdRoot&>(owner);
        constexpr bool isCommand = true;
        XmlCommand& command = root.m_propModel.renew(isCommand);
        command.processXml(in.stream(), tag);
        root.handEnvelope(command);
    };
    return content;
}

const ElementForm& XmlCmdRoot::form() const
{
    using Self = XmlCmdRoot;
    static const NeverDestroyed<ElementForm> form =
        ElementForm(compositeWording)
            .sequence({
                optional("ORDER_DEF", renewed<&Self::m_orderDef>()),
                repeated("Administrative", commands<&Self::m_administrative>()),
                repeated("Create", commands<&Self::m_creates>()),
                // Delete commands are neither judged nor reported here.
                repeated("Delete", unjudged(reportedApart(commands<&Self::m_deletes>()))),
                optional("PropagationModel", propModelCommand()),
                repeated("Calculate", commands<&Self::m_calculations>()),
            });
    return form;
}

} // namespace ArvXml
