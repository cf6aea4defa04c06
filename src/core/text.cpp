#include "arvxml/text.h"

#include "core/elementreader.h"
#include "core/textrules.h"

#include <QtCore/QXmlStreamWriter>

namespace ArvXml {

void XmlText::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    ElementReader in(classname(), reader, tagName, leafWording);
    in.readLeaf([this](const auto& text) { m_text = detachedCopy(text); });
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

} // namespace ArvXml
