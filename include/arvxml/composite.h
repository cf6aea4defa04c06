#pragma once

/// \file
/// The bases of the elements whose content is child elements.

#include "arvxml/element.h"

namespace ArvXml {

class ContentModel;

/// The base of the elements whose content is child elements.
///
/// What such an element looks like on the wire is said once, by its content model: the tags in the order of writing,
/// what they are bound to, and what may follow what. The operations here carry it out; a class overrides those in which
/// it departs.
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
    /// How many children the element holds, those left out that are always present.
    int heldChildren() const;

    virtual const ContentModel& contentModel() const = 0;

private:
    /// Reads what stands in the start tag.
    virtual void readStartTag(ElementReader& in);
};

/// A composite with a version.
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

/// The base of the lists: at least one item, all under one tag. Reading deletes the items held first.
/// Another version than "1.0" is read, and reported when the list is judged.
class ARVXML_EXPORT XmlList : public XmlVersionedComposite {
public:
    bool isValid() const override;

protected:
    using XmlVersionedComposite::XmlVersionedComposite;

    void addErrors() override;
};

} // namespace ArvXml
