#pragma once

/// \file
/// Names of planning objects, keys, and references of commands.

#include "arvxml/composite.h"
#include "arvxml/text.h"

namespace ArvXml {

/// The name of a planning object: `<Name>Site 1</Name>`, 1 to 128 characters. Problems: "Object name too short (min.
/// 1)." and "Object name too long (max. 128)".
class ARVXML_EXPORT XmlObjNameType : public XmlText {
public:
    XmlObjNameType();

    /// The name; the setter does not check the length.
    const QString& objName() const { return m_text; }
    void setObjName(const QString& objName) { m_text = objName; }

private:
    const TextRules& rules() const override;
};

/// The reference of a command, by which a response refers to it: `<Reference>42</Reference>`, 1 to 50 characters.
/// Messages call the class "XmlreferenceType". Problems: "String too short (min. 1)" and "String too long (max. 50)".
class ARVXML_EXPORT XmlReferenceType : public XmlText {
public:
    XmlReferenceType();

    /// The text of the reference; the setter does not check the length.
    const QString& reference() const { return m_text; }
    void setReference(const QString& reference) { m_text = reference; }

private:
    const TextRules& rules() const override;
};

/// The key of a map entry: `<Key>3</Key>`. A decimal integer of 0 or more ("XmlMapType: Illegal Key."). Default 0, also
/// stored for a text that is not an integer ("Illegal value (must be numeric)").
class ARVXML_EXPORT XmlKeyType : public XmlElement {
public:
    XmlKeyType();

    /// The number; negative numbers are stored, too.
    int key() const { return m_key; }
    void setKey(int key) { m_key = key; }

    void processXml(QXmlStreamReader& reader, const QString& tagName) override;
    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    void reset() override;

protected:
    void addErrors() override;

private:
    int m_key = 0;
};

/// The base of the choices between names and all objects. A new choice means all objects and is written that way, but
/// is "Uninitialized." until it is made by a setter (even one that changes nothing) or by reading.
class ARVXML_EXPORT XmlNameChoice : public XmlComposite {
public:
    /// Whether all objects are meant, that is, there is no name; also true for a new element.
    bool all() const { return heldChildren() == 0; }
    /// Removes the names, so that all objects are meant.
    void setAll();

    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    void reset() override;

protected:
    using XmlComposite::XmlComposite;

    void addErrors() override;
    bool isInitialised() const { return m_initialised; }
    void setInitialised() { m_initialised = true; }

private:
    bool m_initialised = false;
};

/// One object by name, or all: `<Emitter><Name>TX 1</Name></Emitter>` or `<Emitter><All/></Emitter>`. A "Reference" is
/// skipped. A valid name makes it valid, even if syntaxError() reports "Uninitialized.", as after a failed read.
class ARVXML_EXPORT XmlNameAllType : public XmlNameChoice {
public:
    XmlNameAllType();

    bool hasObjName() const { return m_objName.isPresent(); }
    /// The name; null if all objects are meant.
    const XmlObjNameType* objName() const { return m_objName.get(); }
    void setObjName(const XmlObjNameType& objName);

    bool isValid() const override;

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlObjNameType> m_objName;
};

/// Several objects by name, or all: `<AOIs><Name>North</Name><Name>South</Name></AOIs>` or `<AOIs><All/></AOIs>`.
/// Invalid until the choice is made, whatever the content. Reading appends names; "All" removes them.
class ARVXML_EXPORT XmlNameAllMultiType : public XmlNameChoice {
public:
    XmlNameAllMultiType();

    /// The names, owned by the element; empty if all objects are meant.
    const QList<XmlObjNameType*>& objNames() const { return m_objNames.items(); }
    /// Replaces the names with copies. An empty list means all objects.
    void setObjNames(const QList<XmlObjNameType*>& objNames);

    bool isValid() const override;

private:
    const ContentModel& contentModel() const override;

    OwnedList<XmlObjNameType> m_objNames;
};

} // namespace ArvXml
