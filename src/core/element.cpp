#include "arvxml/element.h"

#include "core/elementreader.h"
#include "core/versions.h"

#include <QtCore/QDebug>
#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

namespace ArvXml {

IXmlElement::~IXmlElement() = default;

// The base

XmlElementBase::XmlElementBase(const QString& className)
    : m_className(className)
{
}

XmlElementBase::XmlElementBase(const XmlElementBase& other) noexcept = default;
XmlElementBase::~XmlElementBase() = default;
XmlElementBase& XmlElementBase::operator=(const XmlElementBase& other) noexcept = default;

void XmlElementBase::reset()
{
    clearSyntaxError();
}

void XmlElementBase::setReaderError(QXmlStreamReader& reader, const QString& message)
{
    raiseError(reader, m_className, message);
}

void XmlElementBase::addSyntaxError(const QString& text)
{
    if (text.isEmpty())
        return;
    if (!m_syntaxError.isEmpty())
        m_syntaxError += QLatin1Char('\n');
    m_syntaxError += text;
}

void XmlElementBase::clearSyntaxError()
{
    m_syntaxError.clear();
}

QString XmlElementBase::mySyntaxError()
{
    const QString blockTemplate = QStringLiteral("+++ in %1 Begin:\n%2\n--- in %1 End");
    return m_syntaxError.isEmpty() ? QString() : blockTemplate.arg(m_className, m_syntaxError);
}

QDebug operator<<(QDebug debug, const XmlElementBase& element)
{
    QString xml;
    QXmlStreamWriter writer(&xml);
    element.produceXml(writer, element.classname());
    const QDebugStateSaver saver(debug);
    debug.noquote().nospace() << xml;
    return debug;
}

QString XmlElement::syntaxError()
{
    clearSyntaxError();
    addErrors();
    return mySyntaxError();
}

XmlVersioned::XmlVersioned()
    : m_version(supportedVersion())
{
}

bool XmlVersioned::supportsVersion() const
{
    return isSupportedVersion(m_version);
}

} // namespace ArvXml
