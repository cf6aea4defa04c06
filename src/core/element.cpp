#include "arvxml/element.h"

#include "core/elementform.h"
#include "core/enumeration.h"

#include <QtCore/QDebug>
#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

namespace ArvXml {

namespace {

QString supportedVersion()
{
    return QStringLiteral("1.0");
}

} // namespace

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
    const QString errorTemplate = QStringLiteral("in %3 (line %1, column %2): %4.");
    reader.raiseError(errorTemplate.arg(reader.lineNumber(), 0, 10, QLatin1Char(' '))
                          .arg(reader.columnNumber(), 0, 10, QLatin1Char(' '))
                          .arg(m_className, message));
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

// Versions

XmlVersioned::XmlVersioned()
    : m_version(supportedVersion())
{
}

bool XmlVersioned::supportsVersion() const
{
    return isSameText(m_version, supportedVersion());
}

void XmlVersioned::restoreVersion()
{
    if (!supportsVersion())
        m_version = supportedVersion();
}

void XmlVersioned::readVersion(ElementReader& in)
{
    keepText(in.attribute(versionAttribute()), m_version);
}

void XmlVersioned::refuseOtherVersions(ElementReader& in) const
{
    if (!supportsVersion())
        in.fail(QStringLiteral("Version not supported: %1").arg(m_version));
}

void XmlVersioned::writeVersion(QXmlStreamWriter& writer) const
{
    writer.writeAttribute(versionAttribute(), m_version);
}

QString XmlVersioned::versionError() const
{
    return supportsVersion() ? QString() : QStringLiteral("Version \"%1\" not supported").arg(m_version);
}

// Composites

void XmlComposite::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    const ElementForm& form = this->form();
    ElementReader in(*this, reader, tagName, form.m_wording);
    Marks read = openElement(in);

    // Children come in the order of the form, as a rule: the row of the last one is looked at first.
    // Where rows share a tag, their gates let only one of them be open.
    const Row* row = form.m_rows.data();
    const auto onStart = [&] {
        const auto name = reader.name();
        for (auto left = form.m_rows.size(); left > 0; --left) {
            if (isSameText(name, row->tag) && row->isOpen(read)) {
                read |= row->sets;
                row->content.read(*this, in, row->tag);
                return;
            }
            row = row == &form.m_rows.back() ? &form.m_rows.front() : row + 1;
        }
        in.refuseStart();
    };
    const auto onEnd = [&] {
        if (in.atOwnTag() && isComplete(read)) {
            form.m_whenComplete(*this);
            return true;
        }
        for (const InnerEnd& end : form.m_innerEnds) {
            if (isSameText(reader.name(), end.tag) && (read & end.needs) == end.needs) {
                read = (read & ~end.clears) | end.sets;
                end.effect(*this);
                return false;
            }
        }
        in.refuseEnd();
        return false;
    };
    in.readTokens(onStart, onEnd, [&] { read |= form.m_onCharacters(*this, in, read); });
}

void XmlComposite::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeStartElement(tagName);
    writeAttributes(writer);
    writeChildren(writer);
    writer.writeEndElement();
}

bool XmlComposite::isValid() const
{
    for (const Row& row : form().m_rows) {
        if (!row.content.isValid(*this))
            return false;
    }
    return true;
}

void XmlComposite::addErrors()
{
    addChildrenErrors();
}

void XmlComposite::reset()
{
    for (const Row& row : form().m_rows)
        row.content.reset(*this);
    XmlElement::reset();
}

quint32 XmlComposite::openElement(ElementReader&)
{
    return 0;
}

bool XmlComposite::isComplete(quint32 read) const
{
    for (const ElementForm::Completion& completion : form().m_completions) {
        if ((read & completion.among) == completion.marks)
            return true;
    }
    return false;
}

void XmlComposite::writeAttributes(QXmlStreamWriter&) const { }

void XmlComposite::writeChildren(QXmlStreamWriter& writer) const
{
    for (const Row& row : form().m_rows)
        row.content.write(*this, writer, row.writtenTag);
}

void XmlComposite::addChildrenErrors()
{
    for (const Row& row : form().m_rows)
        addSyntaxError(row.content.syntaxError(*this));
}

int XmlComposite::heldChildren() const
{
    int count = 0;
    for (const Row& row : form().m_rows)
        count += row.content.count(*this);
    return count;
}

bool XmlVersionedComposite::isValid() const
{
    return supportsVersion() && XmlComposite::isValid();
}

void XmlVersionedComposite::addErrors()
{
    addSyntaxError(versionError());
    addChildrenErrors();
}

void XmlVersionedComposite::reset()
{
    restoreVersion();
    XmlComposite::reset();
}

quint32 XmlVersionedComposite::openElement(ElementReader& in)
{
    restoreVersion();
    if (in.requireStartTag())
        readVersion(in);
    if (form().m_refusesOtherVersions)
        refuseOtherVersions(in);
    return 0;
}

void XmlVersionedComposite::writeAttributes(QXmlStreamWriter& writer) const
{
    writeVersion(writer);
}

// Lists

bool XmlList::isValid() const
{
    return heldChildren() > 0 && XmlVersionedComposite::isValid();
}

void XmlList::addErrors()
{
    XmlVersionedComposite::addErrors();
    if (heldChildren() == 0)
        addSyntaxError(form().m_tooFew);
}

quint32 XmlList::openElement(ElementReader& in)
{
    form().m_rows.front().content.reset(*this);
    return XmlVersionedComposite::openElement(in);
}

// Enumerations

void XmlEnumeration::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    ElementReader in(*this, reader, tagName, leafWording);
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
