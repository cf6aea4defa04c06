#pragma once

#include "arvxml/element.h"

namespace ArvXml {

/// The name of one planning object: `<Name>Site 1</Name>`, 1 to 128 characters.
///
/// Problems: "Object name too short (min. 1)." and "Object name too long (max. 128)". An empty
/// element leaves the name as it was.
class ARVXML_EXPORT XmlObjNameType : public XmlElementBase {
public:
    XmlObjNameType();
    const QString& objName() const { return m_objName; }
    void setObjName(const QString& objName) { m_objName = objName; }

    void processXml(QXmlStreamReader& reader, const QString& tagName) override;
    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    QString syntaxError() override;
    void reset() override;

private:
    QString m_objName;
};

/// The reference of a command, by which a response points back to it: `<Reference>42</Reference>`,
/// 1 to 50 characters.
///
/// Messages call the class "XmlreferenceType". Problems: "String too short (min. 1)" and "String too
/// long (max. 50)". An empty element leaves the reference as it was.
class ARVXML_EXPORT XmlReferenceType : public XmlElementBase {
public:
    XmlReferenceType();
    const QString& reference() const { return m_reference; }
    void setReference(const QString& reference) { m_reference = reference; }

    void processXml(QXmlStreamReader& reader, const QString& tagName) override;
    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    QString syntaxError() override;
    void reset() override;

private:
    QString m_reference;
};

/// The key of a map entry: `<Key>3</Key>`, a decimal integer, 0 or more ("XmlMapType: Illegal
/// Key."). Default 0, also stored for a text that is no integer.
class ARVXML_EXPORT XmlKeyType : public XmlElementBase {
public:
    XmlKeyType();
    int key() const { return m_key; }
    void setKey(int key) { m_key = key; }

    void processXml(QXmlStreamReader& reader, const QString& tagName) override;
    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    QString syntaxError() override;
    void reset() override;

private:
    int m_key = 0;
};

/// One object by its name, or all: `<Emitter><Name>TX 1</Name></Emitter>` or
/// `<Emitter><All/></Emitter>`. A "Reference" inside is skipped on reading.
///
/// A new element means all, but is "Uninitialized." until a choice is read or set; one with a name
/// is valid as its name is, whether initialised or not.
class ARVXML_EXPORT XmlNameAllType : public XmlComposite {
public:
    XmlNameAllType();
    /// Whether all objects are meant, that is, no name is held; also on a new element.
    bool all() const { return !m_objName.isPresent(); }
    void setAll();
    bool hasObjName() const { return m_objName.isPresent(); }
    /// The name, null when all are meant.
    const XmlObjNameType* objName() const { return m_objName.get(); }
    void setObjName(const XmlObjNameType& objName);

    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    QString syntaxError() override;
    void reset() override;

protected:
    const ElementForm& form() const override;

private:
    void chooseAll() { m_objName.clear(); }
    void setInitialised() { m_initialised = true; }

    OptionalChild<XmlObjNameType> m_objName;
    bool m_initialised = false;
};

/// Several objects by their names, or all: `<AOIs><Name>North</Name><Name>South</Name></AOIs>` or
/// `<AOIs><All/></AOIs>`.
///
/// A new element means all, but is "Uninitialized." and invalid until a choice is read or set.
/// Reading into a used element adds the names read to those held; "All" removes them.
class ARVXML_EXPORT XmlNameAllMultiType : public XmlComposite {
public:
    XmlNameAllMultiType();
    /// Whether all objects are meant, that is, no names are held; also on a new element.
    bool all() const { return m_objNames.isEmpty(); }
    void setAll();
    /// The names, owned by the element; empty when all are meant.
    const QList<XmlObjNameType*>& objNames() const { return m_objNames.items(); }
    /// Replaces the names by copies of the given ones. No names at all mean all objects.
    void setObjNames(const QList<XmlObjNameType*>& objNames);

    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    QString syntaxError() override;
    void reset() override;

protected:
    const ElementForm& form() const override;

private:
    void chooseAll() { m_objNames.clear(); }
    void setInitialised() { m_initialised = true; }

    OwnedList<XmlObjNameType> m_objNames;
    bool m_initialised = false;
};

} // namespace ArvXml
