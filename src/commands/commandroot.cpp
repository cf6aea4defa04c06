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
    enum : Marks { Envelope = 1, Administrative = 2, Create = 4, Delete = 8, Model = 16, Calculate = 32 };
    static const ElementForm form =
        ElementForm(compositeWording)
            .children({
                {"ORDER_DEF", Envelope, Envelope | Administrative | Create | Delete | Model | Calculate,
                 renewed<&Self::m_orderDef>()},
                {"Administrative", Administrative, Create | Delete | Model | Calculate,
                 commands<&Self::m_administrative>()},
                {"Create", Create, Delete | Model | Calculate, commands<&Self::m_creates>()},
                // Delete commands are neither judged nor reported here.
                {"Delete", Delete, Model | Calculate, unjudged(reportedApart(commands<&Self::m_deletes>()))},
                {"PropagationModel", Model, Model | Calculate, propModelCommand()},
                {"Calculate", Calculate, 0, commands<&Self::m_calculations>()},
            })
            .completeWith(0);
    return form;
}

} // namespace ArvXml
