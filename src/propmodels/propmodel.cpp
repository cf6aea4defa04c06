#include "arvxml/propmodel.h"

#include "core/elementform.h"
#include "core/enumeration.h"

namespace ArvXml {

// The selection

XmlPropModelEnumType::XmlPropModelEnumType()
    : XmlEnumeration(QStringLiteral("XmlPropModelEnumType"))
{
}

const EnumerationRules& XmlPropModelEnumType::rules() const
{
    static const NeverDestroyed<EnumerationRules> rules = EnumerationRules{
        EnumerationTexts({"Free-space", "OLOS", "ITM", "P.452", "P.1546", "P.526", "P.533", "Okumura-Hata"}),
        "Illegal enum value.",
        "No model selected.",
    };
    return rules;
}

void XmlPropModelEnumType::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    // Unlike the other enumerations: on a start tag only, and the text is read whole, which ends on the end tag
    // or with an error.
    ElementReader in(*this, reader, tagName, leafWording);
    if (!in.requireStartTag())
        return;
    m_value = rules().texts.value(in.childText());
    if (m_value == ModelUndefined)
        in.fail(QString::fromLatin1(rules().unknownText));
}

// The command

namespace {

enum PropModelMarks : Marks { Selection = 1, Properties = 2, CommandReference = 4, Command = 8 };

} // namespace

XmlPropModelType::XmlPropModelType(bool isCommand)
    : XmlCommand(QStringLiteral("XmlPropModelType"))
    , m_isCommand(isCommand)
{
}

/// The reference; it is written and judged only for a command, and the gate lets only a command read it.
Content XmlPropModelType::referenceOfCommand()
{
    Content content = reportedApart(child<&XmlPropModelType::m_reference>());
    content.write = [](const XmlElementBase& owner, QXmlStreamWriter& writer, const QString& tag) {
        const auto& self = static_cast<const XmlPropModelType&>(owner);
        if (self.isCommand())
            self.m_reference.produceXml(writer, tag);
    };
    content.isValid = [](const XmlElementBase& owner) {
        const auto& self = static_cast<const XmlPropModelType&>(owner);
        return !self.isCommand() || self.m_reference.isValid();
    };
    return content;
}

const ElementForm& XmlPropModelType::form() const
{
    using Self = XmlPropModelType;
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .children({
                {"SelectModel", Selection, Selection | Properties | CommandReference,
                 reportedApart(renewed<&Self::m_model>())},
                {"PropertiesFreespace", Properties, Properties | CommandReference, renewed<&Self::m_freespace>()},
                {"PropertiesOLOS", Properties, Properties | CommandReference, renewed<&Self::m_olos>()},
                {"PropertiesITM", Properties, Properties | CommandReference, renewed<&Self::m_itm>()},
                {"PropertiesP452", Properties, Properties | CommandReference, renewed<&Self::m_p452>()},
                {"PropertiesP1546", Properties, Properties | CommandReference, renewed<&Self::m_p1546>()},
                {"PropertiesP526", Properties, Properties | CommandReference, renewed<&Self::m_p526>()},
                {"PropertiesP533", Properties, Properties | CommandReference, renewed<&Self::m_p533>()},
                {"PropertiesOkumura", Properties, Properties | CommandReference, renewed<&Self::m_hata>()},
                {"Reference", CommandReference, CommandReference, referenceOfCommand(), Command},
            })
            .completeWhen(Command, 0)
            .completeWith(Command | CommandReference);
    return form;
}

quint32 XmlPropModelType::openElement(ElementReader&)
{
    return m_isCommand ? Marks(Command) : Marks(0);
}

bool XmlPropModelType::hasTooManySets() const
{
    return heldChildren() - int(hasModel()) > 1;
}

bool XmlPropModelType::isValid() const
{
    return XmlCommand::isValid() && !hasTooManySets();
}

void XmlPropModelType::addErrors()
{
    addSyntaxError(memberError(m_model));
    if (m_isCommand)
        addSyntaxError(memberError(m_reference)); // reported before the sets, though written last
    addChildrenErrors();
    if (hasTooManySets())
        addSyntaxError(QStringLiteral("Illegal number of elements."));
}

} // namespace ArvXml
