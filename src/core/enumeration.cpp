#include "arvxml/enumeration.h"

#include "core/elementreader.h"
#include "core/enumerationrules.h"

#include <QtCore/QXmlStreamWriter>

namespace ArvXml {

EnumerationTexts::EnumerationTexts(std::initializer_list<const char*> texts)
{
    m_texts.push_back(QStringLiteral("UNDEFINED"));
    for (const char* text : texts)
        m_texts.push_back(QString::fromLatin1(text));
}

const QString& EnumerationTexts::text(int value) const
{
    const auto index = static_cast<std::size_t>(value);
    return value > 0 && index < m_texts.size() ? m_texts[index] : m_texts.front();
}

void XmlEnumeration::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    ElementReader in(classname(), reader, tagName, leafWording);
    in.readLeaf([&](const auto& text) {
        m_value = rules().texts.value(text);
        if (m_value == 0)
            in.fail(QString::fromLatin1(rules().unknownText));
    });
}

void XmlEnumeration::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeTextElement(tagName, rules().texts.text(m_value));
}

bool XmlEnumeration::isValid() const
{
    return m_value != 0;
}

void XmlEnumeration::addErrors()
{
    if (m_value == 0)
        addSyntaxError(QString::fromLatin1(rules().undefinedError));
}

void XmlEnumeration::reset()
{
    m_value = 0;
    XmlElement::reset();
}

} // namespace ArvXml
