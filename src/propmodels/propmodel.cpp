#include "arvxml/propmodel.h"

#include "core/contentmodel.h"
#include "core/enumerationrules.h"

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
    ElementReader in(classname(), reader, tagName, leafWording);
    if (!in.requireStartTag())
        return;
    m_value = rules().texts.value(in.childText());
    if (m_value == ModelUndefined)
        in.fail(QString::fromLatin1(rules().unknownText));
}

// The command

XmlPropModelType::XmlPropModelType(bool isCommand)
    : XmlCommand(QStringLiteral("XmlPropModelType"))
    , m_isCommand(isCommand)
{
}

const ContentModel& XmlPropModelType::contentModel() const
{
    using Self = XmlPropModelType;
    const auto selectionAndSets = [] {
        return ContentModel(listWording)
            .sequence({
                optional("SelectModel", renewed<&Self::m_model>()),
                optional(oneOf({
                    {"PropertiesFreespace", renewed<&Self::m_freespace>()},
                    {"PropertiesOLOS", renewed<&Self::m_olos>()},
                    {"PropertiesITM", renewed<&Self::m_itm>()},
                    {"PropertiesP452", renewed<&Self::m_p452>()},
                    {"PropertiesP1546", renewed<&Self::m_p1546>()},
                    {"PropertiesP526", renewed<&Self::m_p526>()},
                    {"PropertiesP533", renewed<&Self::m_p533>()},
                    {"PropertiesOkumura", renewed<&Self::m_hata>()},
                })),
            });
    };
    static const NeverDestroyed<ContentModel> model = selectionAndSets();
    static const NeverDestroyed<ContentModel> commandModel =
        selectionAndSets()
            .strictSequence({required("Reference", child<&Self::m_reference>())})
            .reportedFirst({"SelectModel", "Reference"});
    return m_isCommand ? commandModel : model;
}

bool XmlPropModelType::isValid() const
{
    return XmlCommand::isValid() && heldChildren() - int(hasModel()) <= 1;
}

void XmlPropModelType::addErrors()
{
    addChildrenErrors();
    if (heldChildren() - int(hasModel()) > 1)
        addSyntaxError(QStringLiteral("Illegal number of elements."));
}

} // namespace ArvXml
