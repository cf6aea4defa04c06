#include "arvxml/names.h"

#include "core/elementform.h"
#include "core/numbers.h"

namespace ArvXml {

namespace {

/// How long a text may be, and what is said when it is not.
struct TextRules {
    int max;
    const char* tooShort;
    const char* tooLong;

    bool isValid(const QString& text) const { return !text.isEmpty() && text.size() <= max; }
    QString error(const QString& text) const
    {
        if (text.isEmpty())
            return QString::fromLatin1(tooShort);
        return text.size() > max ? QString::fromLatin1(tooLong) : QString();
    }
};

constexpr TextRules objNameRules = {128, "Object name too short (min. 1).", "Object name too long (max. 128)"};
constexpr TextRules referenceRules = {50, "String too short (min. 1)", "String too long (max. 50)"};

} // namespace

// A name

XmlObjNameType::XmlObjNameType()
    : XmlElementBase(QStringLiteral("XmlObjNameType"))
{
}

void XmlObjNameType::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    ElementReader in(*this, reader, tagName, leafWording);
    in.readLeaf([this](const auto& text) { m_objName = text.toString(); });
}

void XmlObjNameType::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeTextElement(tagName, m_objName);
}

bool XmlObjNameType::isValid() const
{
    return objNameRules.isValid(m_objName);
}

QString XmlObjNameType::syntaxError()
{
    clearSyntaxError();
    addSyntaxError(objNameRules.error(m_objName));
    return mySyntaxError();
}

void XmlObjNameType::reset()
{
    m_objName.clear();
    XmlElementBase::reset();
}

// A reference

XmlReferenceType::XmlReferenceType()
    : XmlElementBase(QStringLiteral("XmlreferenceType")) // with a small r
{
}

void XmlReferenceType::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    ElementReader in(*this, reader, tagName, leafWording);
    in.readLeaf([this](const auto& text) { m_reference = text.toString(); });
}

void XmlReferenceType::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeTextElement(tagName, m_reference);
}

bool XmlReferenceType::isValid() const
{
    return referenceRules.isValid(m_reference);
}

QString XmlReferenceType::syntaxError()
{
    clearSyntaxError();
    addSyntaxError(referenceRules.error(m_reference));
    return mySyntaxError();
}

void XmlReferenceType::reset()
{
    m_reference.clear();
    XmlElementBase::reset();
}

// A key

XmlKeyType::XmlKeyType()
    : XmlElementBase(QStringLiteral("XmlKeyType"))
{
}

void XmlKeyType::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    ElementReader in(*this, reader, tagName, leafWording);
    in.readLeaf([&](const auto& text) {
        bool ok = false;
        m_key = toInteger(text, &ok);
        if (!ok)
            in.fail(QStringLiteral("Illegal value (must be numeric)"));
    });
}

void XmlKeyType::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeTextElement(tagName, numberText(m_key));
}

bool XmlKeyType::isValid() const
{
    return m_key >= 0;
}

QString XmlKeyType::syntaxError()
{
    clearSyntaxError();
    if (m_key < 0)
        addSyntaxError(QStringLiteral("XmlMapType: Illegal Key.")); // names the map, whose key it is
    return mySyntaxError();
}

void XmlKeyType::reset()
{
    m_key = 0;
    XmlElementBase::reset();
}

// One name or all

XmlNameAllType::XmlNameAllType()
    : XmlComposite(QStringLiteral("XmlNameAllType"))
{
}

const ElementForm& XmlNameAllType::form() const
{
    enum : Marks { Choice = 1 };
    static const ElementForm form = ElementForm(listWording)
                                        .children({
                                            {"All", Choice, Choice, called<&XmlNameAllType::chooseAll>()},
                                            {"Name", Choice, Choice, reused<&XmlNameAllType::m_objName>()},
                                            {"Reference", 0, 0, skipped()},
                                        })
                                        .completeWith(Choice)
                                        .whenComplete(callOwner<&XmlNameAllType::setInitialised>)
                                        .innerEnds({{"All", 0, 0, 0}, {"Reference", 0, 0, 0}});
    return form;
}

void XmlNameAllType::setAll()
{
    chooseAll();
    setInitialised();
}

void XmlNameAllType::setObjName(const XmlObjNameType& objName)
{
    m_objName.set(objName);
    setInitialised();
}

void XmlNameAllType::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeStartElement(tagName);
    if (all())
        writer.writeEmptyElement(QStringLiteral("All"));
    writeChildren(writer);
    writer.writeEndElement();
}

bool XmlNameAllType::isValid() const
{
    // With a name the flag does not count here, though syntaxError() reports it.
    return hasObjName() ? m_objName.get()->isValid() : m_initialised;
}

QString XmlNameAllType::syntaxError()
{
    clearSyntaxError();
    if (!m_initialised)
        addSyntaxError(QStringLiteral("Uninitialized."));
    addChildrenErrors();
    return mySyntaxError();
}

void XmlNameAllType::reset()
{
    m_initialised = false;
    XmlComposite::reset();
}

// Several names or all

XmlNameAllMultiType::XmlNameAllMultiType()
    : XmlComposite(QStringLiteral("XmlNameAllMultiType"))
{
}

const ElementForm& XmlNameAllMultiType::form() const
{
    enum : Marks { All = 1, Name = 2 };
    static const ElementForm form = ElementForm(listWording)
                                        .children({
                                            {"All", All, All | Name, called<&XmlNameAllMultiType::chooseAll>()},
                                            {"Name", Name, All, items<&XmlNameAllMultiType::m_objNames>()},
                                        })
                                        .completeWith(All)
                                        .completeWith(Name)
                                        .whenComplete(callOwner<&XmlNameAllMultiType::setInitialised>)
                                        .innerEnds({{"All", 0, 0, 0}});
    return form;
}

void XmlNameAllMultiType::setAll()
{
    chooseAll();
    setInitialised();
}

void XmlNameAllMultiType::setObjNames(const QList<XmlObjNameType*>& objNames)
{
    m_objNames.set(objNames);
    setInitialised();
}

void XmlNameAllMultiType::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeStartElement(tagName);
    if (all())
        writer.writeEmptyElement(QStringLiteral("All"));
    writeChildren(writer);
    writer.writeEndElement();
}

bool XmlNameAllMultiType::isValid() const
{
    return m_initialised && XmlComposite::isValid();
}

QString XmlNameAllMultiType::syntaxError()
{
    clearSyntaxError();
    if (!m_initialised)
        addSyntaxError(QStringLiteral("Uninitialized."));
    addChildrenErrors();
    return mySyntaxError();
}

void XmlNameAllMultiType::reset()
{
    m_initialised = false;
    XmlComposite::reset();
}

} // namespace ArvXml
