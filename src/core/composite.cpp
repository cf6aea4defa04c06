#include "arvxml/composite.h"

#include "core/contentmodel.h"
#include "core/versions.h"

#include <QtCore/QXmlStreamReader>

namespace ArvXml {

void XmlComposite::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    const ContentModel& model = contentModel();
    ElementReader in(classname(), reader, tagName,
                     model.m_wording); // first: the tag may be a text that reset() removes
    if (model.m_isResetBeforeReading)
        reset();
    else if (model.m_areItemsReplaced)
        resetChildren();
    readStartTag(in);
    Marks read = model.m_firstMarks(*this);

    // Children come in the order of the model, as a rule: the row of the last one is looked at first.
    // Where rows share a tag, their gates let only one of them be open.
    const Row* row = model.m_rows.data();
    const auto onStart = [&] {
        const auto name = reader.name();
        for (auto left = model.m_rows.size(); left > 0; --left) {
            if (isSameText(name, row->tag) && row->isOpen(read)) {
                read |= row->sets;
                row->binding.read(*this, in, row->tag);
                return;
            }
            row = row == &model.m_rows.back() ? &model.m_rows.front() : row + 1;
        }
        in.refuseStart();
    };
    const auto onEnd = [&] {
        if (in.atOwnTag() && model.mayEnd(*this, read)) {
            model.m_whenComplete(*this);
            return true;
        }
        for (const WrapperEnd& end : model.m_wrapperEnds) {
            if (isSameText(reader.name(), end.tag) && (read & end.needs) == end.needs) {
                read = (read & ~end.cleared) | end.sets;
                end.effect(*this);
                return false;
            }
        }
        in.refuseEnd();
        return false;
    };
    in.readTokens(onStart, onEnd, [&] { read |= model.m_onCharacters(*this, in, read); });
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
    for (const Row& row : contentModel().m_rows) {
        if (!row.binding.isValid(*this))
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
    resetChildren();
    XmlElement::reset();
}

void XmlComposite::readStartTag(ElementReader& in)
{
    contentModel().m_readAttributes(*this, in);
}

void XmlComposite::writeAttributes(QXmlStreamWriter& writer) const
{
    contentModel().m_writeAttributes(*this, writer);
}

void XmlComposite::writeChildren(QXmlStreamWriter& writer) const
{
    for (const Row& row : contentModel().m_rows)
        row.binding.write(*this, writer, row.writtenTag);
}

void XmlComposite::addChildrenErrors()
{
    const ContentModel& model = contentModel();
    for (const std::size_t row : model.m_reportedFirst)
        addSyntaxError(model.m_rows[row].binding.syntaxError(*this));
    for (const Row& row : model.m_rows) {
        if (!row.isReportedFirst)
            addSyntaxError(row.binding.syntaxError(*this));
    }
}

void XmlComposite::resetChildren()
{
    for (const Row& row : contentModel().m_rows)
        row.binding.reset(*this);
}

int XmlComposite::heldChildren() const
{
    int count = 0;
    for (const Row& row : contentModel().m_rows)
        count += row.binding.count(*this);
    return count;
}

bool XmlVersionedComposite::isValid() const
{
    return supportsVersion() && XmlComposite::isValid();
}

void XmlVersionedComposite::addErrors()
{
    addSyntaxError(versionError(version()));
    addChildrenErrors();
}

void XmlVersionedComposite::reset()
{
    m_version = supportedVersion();
    XmlComposite::reset();
}

void XmlVersionedComposite::readStartTag(ElementReader& in)
{
    const ContentModel& model = contentModel();
    model.m_readAttributes(*this, in);
    readVersion(in, m_version); // what it raises replaces an error raised by the other attributes
    if (model.m_refusesOtherVersions)
        refuseOtherVersions(in, m_version);
}

void XmlVersionedComposite::writeAttributes(QXmlStreamWriter& writer) const
{
    writeVersion(writer, m_version);
    XmlComposite::writeAttributes(writer);
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
        addSyntaxError(contentModel().m_tooFew);
}

} // namespace ArvXml
