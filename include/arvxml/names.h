#pragma once

/// \file
/// Names of planning objects, keys, and references of commands.

#include "arvxml/composite.h"
#include "arvxml/text.h"

namespace ArvXml {

/// The name of one planning object: `<Name>Site 1</Name>`, 1 to 128 characters.
///
/// Problems: "Object name too short (min. 1)." and "Object name too long (max. 128)".
class ARVXML_EXPORT XmlObjNameType : public XmlText {
public:
    XmlObjNameType();

    /// The name; the length is not checked here.
    const QString& objName() const { return m_text; }
    void setObjName(const QString& objName) { m_text = objName; }

private:
    const TextRules& rules() const override;
};

/// The reference of a command, by which a response points back to it: `<Reference>42</Reference>`,
/// 1 to 50 characters.
///
/// Messages call the class "XmlreferenceType". Problems: "String too short (min. 1)" and "String too
/// long (max. 50)".
class ARVXML_EXPORT XmlReferenceType : public XmlText {
public:
    XmlReferenceType();

    /// The text of the reference; the length is not checked here.
    const QString& reference() const { return m_text; }
    void setReference(const QString& reference) { m_text = reference; }

private:
    const TextRules& rules() const override;
};

/// The key of a map entry: `<Key>3</Key>`.
///
/// A decimal integer, 0 or more ("XmlMapType: Illegal Key."). Default 0, also stored for a text that is no integer
/// ("Illegal value (must be numeric)").
class ARVXML_EXPORT XmlKeyType : public XmlElement {
public:
    XmlKeyType();

    /// The number; negative ones are stored, too.
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

/// The base of the choices between names and all objects. A new choice means all, and is written so, but is
/// "Uninitialized." until it is made: by a setter, even one that sets what was there, or by reading.
class ARVXML_EXPORT XmlNameChoice : public XmlComposite {
public:
    /// Whether all objects are meant, that is, no name is held; also on a new element.
    bool all() const { return heldChildren() == 0; }
    /// Removes the names: all objects are meant.
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

/// One object by its name, or all: `<Emitter><Name>TX 1</Name></Emitter>` or
/// `<Emitter><All/></Emitter>`. A "Reference" inside is skipped on reading.
///
/// With a name, the choice is valid as the name is, even where syntaxError() reports "Uninitialized.",
/// as after a reading that failed.
class ARVXML_EXPORT XmlNameAllType : public XmlNameChoice {
public:
    XmlNameAllType();

    bool hasObjName() const { return m_objName.isPresent(); }
    /// The name, null when all are meant.
    const XmlObjNameType* objName() const { return m_objName.get(); }
    void setObjName(const XmlObjNameType& objName);

    bool isValid() const override;

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlObjNameType> m_objName;
};

/// Several objects by their names, or all: `<AOIs><Name>North</Name><Name>South</Name></AOIs>` or
/// `<AOIs><All/></AOIs>`.
///
/// Until the choice is made the element is invalid, whatever it holds. Reading into a used element adds
/// the names read to those held; "All" removes them.
class ARVXML_EXPORT XmlNameAllMultiType : public XmlNameChoice {
public:
    XmlNameAllMultiType();

    /// The names, owned by the element; empty when all are meant.
    const QList<XmlObjNameType*>& objNames() const { return m_objNames.items(); }
    /// Replaces the names by copies of the given ones. No names at all mean all objects.
    void setObjNames(const QList<XmlObjNameType*>& objNames);

    bool isValid() const override;

private:
    const ContentModel& contentModel() const override;

    OwnedList<XmlObjNameType> m_objNames;
};

} // namespace ArvXml
