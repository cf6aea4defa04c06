#include "core/elementreader.h"

namespace ArvXml {

void raiseError(QXmlStreamReader& reader, const QString& className, const QString& message)
{
    const QString errorTemplate = QStringLiteral("in %3 (line %1, column %2): %4.");
    reader.raiseError(errorTemplate.arg(reader.lineNumber(), 0, 10, QLatin1Char(' '))
                          .arg(reader.columnNumber(), 0, 10, QLatin1Char(' '))
                          .arg(className, message));
}

void ElementReader::fail(const QString& message)
{
    m_hasFailed = true;
    raiseError(m_reader, m_className, message);
}

bool ElementReader::requireStartTag()
{
    if (!m_atStartTag)
        fail(QStringLiteral("Parse error (wrong position)"));
    return m_atStartTag;
}

const QXmlStreamAttribute* ElementReader::attributeNamed(const QString& name)
{
    if (!m_attributes)
        m_attributes = m_reader.attributes();
    const QXmlStreamAttributes& attributes = *m_attributes;
    for (const QXmlStreamAttribute& attribute : attributes) {
        if (isSameText(attribute.qualifiedName(), name))
            return &attribute;
    }
    return nullptr;
}

StreamText ElementReader::attribute(const QString& name)
{
    const QXmlStreamAttribute* attribute = attributeNamed(name);
    return attribute ? attribute->value() : StreamText();
}

StreamText ElementReader::requireAttribute(const QString& name)
{
    StreamText text = attribute(name);
    if (text.isEmpty())
        fail(QStringLiteral("Missing attribute: \"%1\"").arg(name));
    return text;
}

void ElementReader::refuseAttribute(const QString& name)
{
    fail(QStringLiteral("Illegal attribute value in \"%1\"").arg(name));
}

void ElementReader::refuseTag(const char* message)
{
    fail(QString::fromLatin1(message).replace(QLatin1String("%1"), m_reader.name().toString()));
}

void ElementReader::refuseOtherToken()
{
    const char* message = nullptr;
    switch (m_reader.tokenType()) {
    case QXmlStreamReader::Invalid:
        message = "Invalid token";
        break;
    case QXmlStreamReader::StartDocument:
        message = "Unexpected token \"StartDocument\"";
        break;
    case QXmlStreamReader::EndDocument:
        message = "Unexpected token \"EndDocument\"";
        break;
    default:
        break; // comments, processing instructions, unresolved entities: nothing to us
    }
    // The stream's own error, which most invalid tokens come with, says more.
    if (message && !m_reader.hasError())
        fail(QString::fromLatin1(message));
}

} // namespace ArvXml
