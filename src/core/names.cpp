#include "arvxml/names.h"

#include "core/contentmodel.h"
#include "core/numbers.h"
#include "core/textrules.h"

namespace ArvXml {

XmlObjNameType::XmlObjNameType()
    : XmlText(QStringLiteral("XmlObjNameType"))
{
}

const TextRules& XmlObjNameType::rules() const
{
    static constexpr TextRules rules = {128, "Object name too short (min. 1).", "Object name too long (max. 128)"};
    return rules;
}

XmlReferenceType::XmlReferenceType()
    : XmlText(QStringLiteral("XmlreferenceType")) // with a small r
{
}

const TextRules& XmlReferenceType::rules() const
{
    static constexpr TextRules rules = {50, "String too short (min. 1)", "String too long (max. 50)"};
    return rules;
}

// A key

XmlKeyType::XmlKeyType()
    : XmlElement(QStringLiteral("XmlKeyType"))
{
}

void XmlKeyType::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    ElementReader in(classname(), reader, tagName, leafWording);
    in.readLeaf([&](const auto& text) {
        bool ok = false;
        m_key = toInteger(text, &ok);
        if (!ok)
            in.fail(QStringLiteral("Illegal value (must be numeric)"));
    });
}

void XmlKeyType::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeTextElement(tagName, numberText(m_key));
}

bool XmlKeyType::isValid() const
{
    return m_key >= 0;
}

void XmlKeyType::addErrors()
{
    if (m_key < 0)
        addSyntaxError(QStringLiteral("XmlMapType: Illegal Key.")); // names the map, whose key it is
}

void XmlKeyType::reset()
{
    m_key = 0;
    XmlElement::reset();
}

// Names or all

void XmlNameChoice::setAll()
{
    resetChildren();
    setInitialised();
}

void XmlNameChoice::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeStartElement(tagName);
    if (all())
        writer.writeEmptyElement(QStringLiteral("All"));
    writeChildren(writer);
    writer.writeEndElement();
}

void XmlNameChoice::addErrors()
{
    if (!m_initialised)
        addSyntaxError(QStringLiteral("Uninitialized."));
    addChildrenErrors();
}

void XmlNameChoice::reset()
{
    m_initialised = false;
    XmlComposite::reset();
}

XmlNameAllType::XmlNameAllType()
    : XmlNameChoice(QStringLiteral("XmlNameAllType"))
{
}

const ContentModel& XmlNameAllType::contentModel() const
{
    using Self = XmlNameAllType;
    // Odd: a reference may stand anywhere and is skipped, and its end tag is taken without the start tag, too.
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .sequence({oneOf({
                {"All", called<Self, &Self::resetChildren>()},
                {"Name", reused<&Self::m_objName>()},
            })})
            .anywhere("Reference", skipped())
            .whenComplete([](XmlElementBase& owner) { static_cast<Self&>(owner).setInitialised(); })
            .wrapperEnds({WrapperEnd("All"), WrapperEnd("Reference")});
    return model;
}

void XmlNameAllType::setObjName(const XmlObjNameType& objName)
{
    m_objName.set(objName);
    setInitialised();
}

bool XmlNameAllType::isValid() const
{
    // With a name it does not count whether the choice was made, though syntaxError() reports it.
    return hasObjName() ? m_objName.get()->isValid() : isInitialised();
}

XmlNameAllMultiType::XmlNameAllMultiType()
    : XmlNameChoice(QStringLiteral("XmlNameAllMultiType"))
{
}

const ContentModel& XmlNameAllMultiType::contentModel() const
{
    using Self = XmlNameAllMultiType;
    enum : Marks { All = 1, Name = 2 };
    // Odd: "All" may follow nothing, but names may follow names: a choice of which one branch is repeated.
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .rows({
                Row("All", called<Self, &Self::resetChildren>())
                    .alternative(1)
                    .required()
                    .marks(All)
                    .refusedAfter(All | Name),
                Row("Name", items<&Self::m_objNames>()).alternative(1).atLeastOnce().marks(Name).refusedAfter(All),
            })
            .completeWith(All)
            .completeWith(Name)
            .whenComplete([](XmlElementBase& owner) { static_cast<Self&>(owner).setInitialised(); })
            .wrapperEnds({WrapperEnd("All")});
    return model;
}

void XmlNameAllMultiType::setObjNames(const QList<XmlObjNameType*>& objNames)
{
    m_objNames.set(objNames);
    setInitialised();
}

bool XmlNameAllMultiType::isValid() const
{
    return isInitialised() && XmlNameChoice::isValid();
}

} // namespace ArvXml
