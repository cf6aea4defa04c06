#pragma once

/// \file
/// What every element can do.

#include "arvxml/export.h"
#include "arvxml/ownership.h"

#include <QtCore/QString>

class QDebug;
class QXmlStreamReader;
class QXmlStreamWriter;

/// Objects for the XML documents of the planning protocol.
namespace ArvXml {

class ElementReader;

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

private:
    friend class XmlQuantity;
    friend class XmlVersionedComposite;

    bool supportsVersion() const;

    QString m_version;
};

} // namespace ArvXml
