#include "arvxml/names.h"

#include "core/elementform.h"
#include "core/numbers.h"

namespace ArvXml {

/// How long a text may be, and what is said when it is not.
struct TextRules {
    int max;
    const char* tooShort;
    const char* tooLong;
};

// Texts

void XmlText::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    ElementReader in(*this, reader, tagName, leafWording);
    in.readLeaf([this](const auto& text) { m_text = keptText(text); });
}

void XmlText::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeTextElement(tagName, m_text);
}

bool XmlText::isValid() const
{
    return !m_text.isEmpty() && m_text.size() <= rules().max;
}

void XmlText::addErrors()
{
    if (m_text.isEmpty())
        addSyntaxError(QString::fromLatin1(rules().tooShort));
    else if (m_text.size() > rules().max)
        addSyntaxError(QString::fromLatin1(rules().tooLong));
}

void XmlText::reset()
{
    m_text.clear();
    XmlElement::reset();
}

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
    ElementReader in(*this, reader, tagName, leafWording);
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
    removeNames();
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

const ElementForm& XmlNameAllType::form() const
{
    enum : Marks { Choice = 1 };
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .children({
                {"All", Choice, Choice, called<&XmlNameAllType::removeNames>()},
                {"Name", Choice, Choice, reused<&XmlNameAllType::m_objName>()},
                {"Reference", 0, 0, skipped()},
            })
            .completeWith(Choice)
            .whenComplete(callOwner<&XmlNameAllType::setInitialised>)
            .innerEnds({{"All", 0, 0, 0}, {"Reference", 0, 0, 0}});
    return form;
}

void XmlNameAllType::setObjName(const XmlObjNameType& objName)
{
    m_objName.set(objName);
    setInitialised();
}

void XmlNameAllType::removeNames()
{
    m_objName.clear();
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

const ElementForm& XmlNameAllMultiType::form() const
{
    enum : Marks { All = 1, Name = 2 };
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .children({
                {"All", All, All | Name, called<&XmlNameAllMultiType::removeNames>()},
                {"Name", Name, All, items<&XmlNameAllMultiType::m_objNames>()},
            })
            .completeWith(All)
            .completeWith(Name)
            .whenComplete(callOwner<&XmlNameAllMultiType::setInitialised>)
            .innerEnds({{"All", 0, 0, 0}});
    return form;
}

void XmlNameAllMultiType::setObjNames(const QList<XmlObjNameType*>& objNames)
{
    m_objNames.set(objNames);
    setInitialised();
}

void XmlNameAllMultiType::removeNames()
{
    m_objNames.clear();
}

bool XmlNameAllMultiType::isValid() const
{
    return isInitialised() && XmlNameChoice::isValid();
}

} // namespace ArvXml
