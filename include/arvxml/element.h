#pragma once

/// \file
/// The interface and the bases of all elements.

#include "arvxml/export.h"
#include "arvxml/ownership.h"

#include <QtCore/QString>

class QDebug;
class QXmlStreamReader;
class QXmlStreamWriter;

/// Objects for the XML documents of the planning protocol.
namespace ArvXml {

class ElementReader;

/// The interface of all elements of the protocol. An element does not know its tag: its owner passes the tag, so that
/// one type serves several tags. No operation throws on bad input.
///
/// Getters of children return pointers. A pointer to a child that is always present is valid as long as its owner. A
/// pointer to an optional child is valid until the child is removed (by reset(), or by assigning an element without
/// one) or, where its class says so, replaced by reading. A pointer to a list item is valid until the list is set,
/// read, reset or assigned to. A moved-from element can be reset, assigned to and destroyed.
///
/// Threads may call const operations on an element that nobody changes meanwhile, and any operation on an element that
/// no other thread uses. Elements work until the very end of a program, in destructors of globals and in threads that
/// outlive main(). If memory runs out, std::bad_alloc leaves an element that can be used, assigned to and destroyed.
class ARVXML_EXPORT IXmlElement {
public:
    virtual ~IXmlElement();

    /// Reads the element from \a reader, positioned at its start tag, up to and including the end tag \a tagName (a
    /// local name without prefix). Unless its class says so, reading does not reset the element: what the document does
    /// not contain is unchanged, except for the version. At a token other than a start tag, elements with attributes,
    /// and others whose class says so, raise "Parse error (wrong position)"; all others continue with the next token.
    ///
    /// A failure ends the whole read; see `reader.hasError()` and `reader.errorString()`. The element raises it as "in
    /// CLASS (line L, column C): MESSAGE.". For malformed XML, or an element inside a text that is read whole, the
    /// reader raises its own error. What was read before is kept. Values out of range are not a failure; see isValid().
    virtual void processXml(QXmlStreamReader& reader, const QString& tagName) = 0;

    /// Writes the element with the tag \a tagName. The content is written whether it is valid or not.
    virtual void produceXml(QXmlStreamWriter& writer, const QString& tagName) const = 0;

    /// Whether the content conforms to the protocol.
    virtual bool isValid() const = 0;

    /// The problems of the content, one per line, those of each element framed by its class name; empty if there are
    /// none. Agrees with isValid() except where a class says so, and for NaN, which may be invalid without being
    /// reported. Not const, since the element stores the text.
    virtual QString syntaxError() = 0;

    /// Resets the element to the state of a new one, unless its class says otherwise.
    virtual void reset() = 0;

protected:
    IXmlElement() = default;
    IXmlElement(const IXmlElement&) = default;
    IXmlElement& operator=(const IXmlElement&) = default;
};

/// The base of all elements: the class name in messages, and problems of the last syntaxError(), cleared by reset().
class ARVXML_EXPORT XmlElementBase : public IXmlElement {
public:
    /// Constructs an element that messages call \a className.
    explicit XmlElementBase(const QString& className);
    /// Copies the class name and the problems.
    XmlElementBase(const XmlElementBase& other) noexcept;
    ~XmlElementBase() override;
    /// Copies the class name and the problems.
    XmlElementBase& operator=(const XmlElementBase& other) noexcept;

    void reset() override;

protected:
    /// The class name shown in messages; not always the name of the C++ class.
    const QString& classname() const { return m_className; }

    /// Raises "in CLASS (line L, column C): MESSAGE." on \a reader, in place of any earlier error.
    void setReaderError(QXmlStreamReader& reader, const QString& message);

    /// Adds a problem on its own line; an empty text adds nothing.
    void addSyntaxError(const QString& text);
    void clearSyntaxError();
    /// The collected problems, framed by the class name; empty if there are none.
    QString mySyntaxError();

private:
    friend ARVXML_EXPORT QDebug operator<<(QDebug debug, const XmlElementBase& element);

    QString m_className;
    QString m_syntaxError;
};

/// Prints the XML of an element on one line, valid or not. Since the element does not know its tag, the class name
/// shown in messages is used: `<XmlObjNameType>Site 1</XmlObjNameType>`.
ARVXML_EXPORT QDebug operator<<(QDebug debug, const XmlElementBase& element);

/// The base of all elements of the library; implements syntaxError().
class ARVXML_EXPORT XmlElement : public XmlElementBase {
public:
    QString syntaxError() override;

protected:
    using XmlElementBase::XmlElementBase;

    /// Adds the problems of the element and of its children.
    virtual void addErrors() = 0;
};

/// The version of a versioned element: attribute "version"; only "1.0", the default, is supported. Some elements refuse
/// other versions on reading ("Version not supported: 2.0"); the others read them, and isValid() and syntaxError()
/// report them (`Version "2.0" not supported`). A missing or empty attribute means "1.0".
class ARVXML_EXPORT XmlVersioned {
public:
    /// The version; the setter does not check it.
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
