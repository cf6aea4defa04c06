#include "arvxml/commandroot.h"

#include "core/elementform.h"

namespace ArvXml {

XmlCmdRoot::XmlCmdRoot()
    : XmlComposite(QStringLiteral("XmlCmdRoot"))
{
}

template <auto Member>
Content XmlCmdRoot::commands()
{
    Content content = heldIn<Member>();
    content.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        XmlCommand& command = memberOf<Member>(owner).append();
        command.processXml(in.stream(), tag);
        const auto& root = static_cast<const XmlCmdRoot&>(owner);
        if (root.hasOrderDef())
            command.setOrderDef(*root.orderDef());
    };
    return content;
}

const ElementForm& XmlCmdRoot::form() const
{
    using Self = XmlCmdRoot;
    enum : Marks { Envelope = 1, Administrative = 2, Calculate = 4 };
    constexpr Marks Commands = Administrative | Calculate;
    static const ElementForm form =
        ElementForm(compositeWording)
            .children({
                {"ORDER_DEF", Envelope, Envelope | Commands, renewed<&Self::m_orderDef>()},
                {"Administrative", Administrative, Calculate, commands<&Self::m_administrative>()},
                {"Calculate", Calculate, 0, commands<&Self::m_calculations>()},
            })
            .completeWith(0);
    return form;
}

} // namespace ArvXml
