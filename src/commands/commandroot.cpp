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

const ElementForm& XmlCmdRoot::form() const
{
    using Self = XmlCmdRoot;
    enum : Marks { Envelope = 1, Administrative = 2, Create = 4, Delete = 8, Calculate = 16 };
    static const ElementForm form =
        ElementForm(compositeWording)
            .children({
                {"ORDER_DEF", Envelope, Envelope | Administrative | Create | Delete | Calculate,
                 renewed<&Self::m_orderDef>()},
                {"Administrative", Administrative, Create | Delete | Calculate, commands<&Self::m_administrative>()},
                {"Create", Create, Delete | Calculate, commands<&Self::m_creates>()},
                // Delete commands are neither judged nor reported here.
                {"Delete", Delete, Calculate, unjudged(reportedApart(commands<&Self::m_deletes>()))},
                {"Calculate", Calculate, 0, commands<&Self::m_calculations>()},
            })
            .completeWith(0);
    return form;
}

} // namespace ArvXml
