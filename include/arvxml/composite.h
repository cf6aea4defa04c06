#pragma once

/// \file
/// The bases of the elements that contain child elements.

#include "arvxml/element.h"

namespace ArvXml {

class ContentModel;

/// The base of the elements with child elements. The content model defines the wire form: the tags in the order of
/// writing, their bindings, and which may follow which. The operations follow it; a class overrides those that differ.
class ARVXML_EXPORT XmlComposite : public XmlElement {
public:
    void processXml(QXmlStreamReader& reader, const QString& tagName) override;
    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    void reset() override;

protected:
    using XmlElement::XmlElement;

    void addErrors() override;

    virtual void writeAttributes(QXmlStreamWriter& writer) const;
    /// Writes the children in the order of the content model.
    void writeChildren(QXmlStreamWriter& writer) const;
    /// Adds the problems of the children in the order of the content model.
    void addChildrenErrors();
    /// Resets the children that are always present, and removes the others.
    void resetChildren();
    /// The number of children, not counting those that are always present.
    int heldChildren() const;

    virtual const ContentModel& contentModel() const = 0;

private:
    /// Reads the start tag.
    virtual void readStartTag(ElementReader& in);
};

/// A composite with a version. Unless its class says otherwise, versions other than "1.0" are refused on reading.
class ARVXML_EXPORT XmlVersionedComposite : public XmlComposite, public XmlVersioned {
public:
    bool isValid() const override;
    void reset() override;

protected:
    using XmlComposite::XmlComposite;

    void addErrors() override;
    void writeAttributes(QXmlStreamWriter& writer) const override;

private:
    void readStartTag(ElementReader& in) override;
};

/// The base of the lists: at least one item, all with the same tag. Reading deletes the existing items first. Versions
/// other than "1.0" are read and reported.
class ARVXML_EXPORT XmlList : public XmlVersionedComposite {
public:
    bool isValid() const override;

protected:
    using XmlVersionedComposite::XmlVersionedComposite;

    void addErrors() override;
};

} // namespace ArvXml
