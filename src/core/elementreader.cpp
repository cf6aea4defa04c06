#include "core/elementreader.h"

namespace ArvXml {

void ElementReader::fail(const QString& message)
{
    m_element.setReaderError(m_reader, message);
}

bool ElementReader::requireStartTag()
{
    if (!m_atStartTag)
        fail(QStringLiteral("Parse error (wrong position)"));
    return m_atStartTag;
}

bool ElementReader::takeAttribute(const QString& name, QString& value)
{
    // The copy of the attributes must be gone before the next token is read: the stream would
    // otherwise have to detach its own.
    const QXmlStreamAttributes attributes = m_reader.attributes();
    const auto text = attributes.value(name);
    if (text.isEmpty())
        return false;
    if (text != value)
        value = text.toString();
    return true;
}

bool ElementReader::requireAttribute(const QString& name, QString& value)
{
    const bool taken = takeAttribute(name, value);
    if (!taken)
        fail(QStringLiteral("Missing attribute: \"%1\"").arg(name));
    return taken;
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
    switch (m_reader.tokenType()) {
    case QXmlStreamReader::Invalid:
        if (!m_reader.hasError())
            fail(QStringLiteral("Invalid token"));
        break;
    case QXmlStreamReader::StartDocument:
        fail(QStringLiteral("Unexpected token \"StartDocument\""));
        break;
    case QXmlStreamReader::EndDocument:
        fail(QStringLiteral("Unexpected token \"EndDocument\""));
        break;
    default:
        break; // comments, processing instructions, unresolved entities: nothing to us
    }
}

} // namespace ArvXml
