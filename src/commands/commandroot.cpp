#include "arvxml/commandroot.h"

#include "core/contentmodel.h"

namespace ArvXml {

namespace {

constexpr bool isCommand = true;

/// Every command gets a copy of the document's envelope.
void readCommand(XmlCommand& command, const XmlCmdRoot& root, ElementReader& in, const QString& tag)
{
    command.processXml(in.stream(), tag);
    if (root.hasOrderDef())
        command.setOrderDef(*root.orderDef());
}

template <auto Member>
Binding commands()
{
    Binding binding = heldIn<Member>();
    binding.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        readCommand(memberOf<Member>(owner).append(), static_cast<const XmlCmdRoot&>(owner), in, tag);
    };
    return binding;
}

template <auto Member>
Binding propModelCommand()
{
    Binding binding = heldIn<Member>();
    binding.holds.newElement = []() -> std::unique_ptr<XmlElement> {
        return std::make_unique<XmlPropModelType>(isCommand);
    };
    binding.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        readCommand(memberOf<Member>(owner).renew(isCommand), static_cast<const XmlCmdRoot&>(owner), in, tag);
    };
    return binding;
}

} // namespace

XmlCmdRoot::XmlCmdRoot()
    : XmlComposite(QStringLiteral("XmlCmdRoot"))
{
}

const ContentModel& XmlCmdRoot::contentModel() const
{
    using Self = XmlCmdRoot;
    static const NeverDestroyed<ContentModel> model =
        ContentModel(compositeWording)
            .sequence({
                optional("ORDER_DEF", renewed<&Self::m_orderDef>()),
                repeated("Administrative", commands<&Self::m_administrative>()),
                repeated("Create", commands<&Self::m_creates>()),
                // Delete commands are neither judged nor reported here.
                repeated("Delete", unjudged(unreported(commands<&Self::m_deletes>()))),
                optional("PropagationModel", propModelCommand<&Self::m_propModel>()),
                repeated("Calculate", commands<&Self::m_calculations>()),
            });
    return model;
}

} // namespace ArvXml
