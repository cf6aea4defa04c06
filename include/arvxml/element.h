#pragma once

/// \file
/// What every element can do, and the bases that carry it out.

#include "arvxml/export.h"
#include "arvxml/ownership.h"

#include <QtCore/QString>

class QDebug;
class QXmlStreamReader;
class QXmlStreamWriter;

/// Objects for the XML documents of the planning protocol.
namespace ArvXml {

class ElementForm;
class ElementReader;
struct Content;
struct EnumerationRules;

/// What every element of the protocol can do.
///
/// Getters of children return pointers. One to a child that is always present is good as long as its
/// owner lives; one to an optional child until the child is removed (by reset(), or by assigning an
/// element that has none), or replaced by reading where its class says so; one to an item of a list until
/// the list is set, read, reset or assigned to. After a move, an element is fit for reset(), assignment
/// and destruction.
///
/// Elements can be used by several threads: const operations on one that nobody changes meanwhile, and any operation on
/// one that no other thread uses. They can be used to the last moment of a program, by the destructors of globals and
/// by threads that outlive main(). When memory runs out, std::bad_alloc leaves an element that can be used, assigned
/// to and destroyed.
///
/// An element does not know the tag under which it stands: whoever holds it passes the tag, so one
/// type serves under several tags. No operation throws for bad input.
class ARVXML_EXPORT IXmlElement {
public:
    virtual ~IXmlElement();

    /// Reads the element from \a reader, which stands on the element's start tag, up to and
    /// including the end tag \a tagName (a local name, without a prefix).
    ///
    /// A failure ends the whole read; ask `reader.hasError()` and `reader.errorString()`. The element
    /// raises it as "in CLASS (line L, column C): MESSAGE."; what is no XML at all, or holds an element
    /// where a text is read whole, the reader raises itself in its own words. What was read until then is
    /// kept. Values out of range are no failure here; see isValid().
    ///
    /// Reading does not reset the element, but where its class says so: what the document does not mention stays as
    /// it was, but for the version.
    ///
    /// On another token than a start tag, elements with attributes, and others whose class says so, raise
    /// "Parse error (wrong position)"; the rest go on with the next token.
    virtual void processXml(QXmlStreamReader& reader, const QString& tagName) = 0;

    /// Writes the element under the tag \a tagName. What is held is written, valid or not.
    virtual void produceXml(QXmlStreamWriter& writer, const QString& tagName) const = 0;

    /// Whether the content is acceptable to the protocol.
    virtual bool isValid() const = 0;

    /// What is wrong with the content, one line a problem, the problems of an element framed by its
    /// class; empty when nothing is. It agrees with isValid() but where a class says so, and for a
    /// number that is not one (NaN): that may be invalid without a problem being told.
    ///
    /// Not const, since the text is kept in the element.
    virtual QString syntaxError() = 0;

    /// Returns to the state of a new object, as far as the class says nothing else.
    virtual void reset() = 0;

protected:
    IXmlElement() = default;
    IXmlElement(const IXmlElement&) = default;
    IXmlElement& operator=(const IXmlElement&) = default;
};

/// The base of every element: its class name, as messages show it, and the problems found by the
/// last syntaxError(), which reset() forgets.
class ARVXML_EXPORT XmlElementBase : public IXmlElement {
public:
    /// An element that messages call \a className.
    explicit XmlElementBase(const QString& className);
    /// Copies take over the class name and the problems found.
    XmlElementBase(const XmlElementBase& other) noexcept;
    ~XmlElementBase() override;
    /// Takes over the class name and the problems found.
    XmlElementBase& operator=(const XmlElementBase& other) noexcept;

    void reset() override;

protected:
    /// The class name that messages show. It is not the name of the C++ class everywhere.
    const QString& classname() const { return m_className; }

    /// Raises "in CLASS (line L, column C): MESSAGE." on \a reader, in place of any earlier error.
    void setReaderError(QXmlStreamReader& reader, const QString& message);

    /// Adds a problem on a line of its own; an empty text adds nothing.
    void addSyntaxError(const QString& text);
    void clearSyntaxError();
    /// The problems collected, framed by the class name; empty when there are none.
    QString mySyntaxError();

private:
    friend class ElementReader;
    friend ARVXML_EXPORT QDebug operator<<(QDebug debug, const XmlElementBase& element);

    QString m_className;
    QString m_syntaxError;
};

/// Shows an element on one line as the XML that it writes, valid or not. An element does not know its tag: it stands
/// under the name by which messages call its class, as in `<XmlObjNameType>Site 1</XmlObjNameType>`.
ARVXML_EXPORT QDebug operator<<(QDebug debug, const XmlElementBase& element);

/// The base of all elements of the library: syntaxError() is told once.
class ARVXML_EXPORT XmlElement : public XmlElementBase {
public:
    QString syntaxError() override;

protected:
    using XmlElementBase::XmlElementBase;

    /// Adds the element's problems, and those of its children.
    virtual void addErrors() = 0;
};

/// The version of a versioned element: attribute "version", by default and only supported "1.0".
///
/// Some elements refuse another version while reading ("Version not supported: 2.0"); in the others
/// it is read and reported by isValid() and syntaxError() (`Version "2.0" not supported`). An attribute that is
/// missing or empty stands for "1.0".
class ARVXML_EXPORT XmlVersioned {
public:
    /// The version; stored without checking it.
    QString version() const { return m_version; }
    void setVersion(const QString& version) { m_version = version; }

protected:
    XmlVersioned();
    XmlVersioned(const XmlVersioned&) = default;
    XmlVersioned(XmlVersioned&&) = default;
    ~XmlVersioned() = default;
    XmlVersioned& operator=(const XmlVersioned&) = default;
    XmlVersioned& operator=(XmlVersioned&&) = default;

    /// Whether the version is exactly "1.0".
    bool supportsVersion() const;
    /// Makes the version "1.0" again.
    void restoreVersion();
    /// Takes the version of the start tag if it has one.
    void readVersion(ElementReader& in);
    /// Raises an error on the reader if the version is not supported.
    void refuseOtherVersions(ElementReader& in) const;
    void writeVersion(QXmlStreamWriter& writer) const;
    /// The problem with the version, or nothing.
    QString versionError() const;

private:
    QString m_version;
};

/// The base of the elements whose content is child elements.
///
/// What such an element looks like on the wire is told once, by its form: the tags in the order of writing, what
/// holds them, and what may follow what. The operations here carry a form out; a class overrides those in which it
/// departs.
class ARVXML_EXPORT XmlComposite : public XmlElement {
public:
    void processXml(QXmlStreamReader& reader, const QString& tagName) override;
    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    void reset() override;

protected:
    using XmlElement::XmlElement;

    void addErrors() override;
    /// The element's wire form.
    virtual const ElementForm& form() const = 0;
    /// What happens before the children are read (position, attributes). Returns the marks that the
    /// children's gates find set.
    virtual quint32 openElement(ElementReader& in);
    /// Whether the end tag may come once the children marked in \a read have been read.
    virtual bool isComplete(quint32 read) const;
    virtual void writeAttributes(QXmlStreamWriter& writer) const;

    /// Writes the children in the order of the form.
    void writeChildren(QXmlStreamWriter& writer) const;
    /// Adds the problems of the children in the order of the form.
    void addChildrenErrors();
    /// How many children the element holds, those left out that are always there.
    int heldChildren() const;
};

/// A composite with a version.
class ARVXML_EXPORT XmlVersionedComposite : public XmlComposite, public XmlVersioned {
public:
    bool isValid() const override;
    void reset() override;

protected:
    using XmlComposite::XmlComposite;

    void addErrors() override;
    quint32 openElement(ElementReader& in) override;
    void writeAttributes(QXmlStreamWriter& writer) const override;
};

/// The base of the lists: at least one item, all under one tag. Reading deletes the items held first.
/// Another version than "1.0" is read, and reported when the list is judged.
class ARVXML_EXPORT XmlList : public XmlVersionedComposite {
public:
    bool isValid() const override;

protected:
    using XmlVersionedComposite::XmlVersionedComposite;

    void addErrors() override;
    quint32 openElement(ElementReader& in) override;
};

/// The base of the elements whose content is one text out of a list.
///
/// Value 0 means that none is chosen; it is never read, makes the element invalid, and is written as "UNDEFINED", as
/// is every value outside the list, which is valid all the same. Texts are compared exactly: case and blanks count.
/// Each piece of text is taken for itself (a comment cuts a text in two); an element without text keeps its value.
class ARVXML_EXPORT XmlEnumeration : public XmlElement {
public:
    void processXml(QXmlStreamReader& reader, const QString& tagName) override;
    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    void reset() override;

protected:
    using XmlElement::XmlElement;

    void addErrors() override;
    virtual const EnumerationRules& rules() const = 0;

    int m_value = 0;
};

} // namespace ArvXml
