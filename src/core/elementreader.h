#pragma once

#include "arvxml/element.h"

#include <QtCore/QString>
#include <QtCore/QXmlStreamReader>

namespace ArvXml {

/// How an element words the refusal of a tag; "%1" is the name of the tag. Three families speak for
/// nearly all elements.
struct Wording {
    const char* start;
    const char* end;
};

/// Values without children.
constexpr Wording leafWording = {"Unexpected token \"StartElement\"", "Unexpected token \"EndElement\""};
/// Lists, and the composites that speak like them.
constexpr Wording listWording = {"Unexpected element \"%1\"", "Unexpected token \"EndElement\""};
/// Composites that name the tag either way.
constexpr Wording compositeWording = {"Unexpected token \"StartElement\": %1", "Unexpected token \"EndElement\": %1"};

/// The names of the attributes that several elements have.
inline QString versionAttribute()
{
    return QStringLiteral("version");
}
inline QString unitAttribute()
{
    return QStringLiteral("unit");
}
inline QString typeAttribute()
{
    return QStringLiteral("type");
}

/// One reading of one element: the stream, the tag under which the element stands, and the errors
/// raised in the element's name.
class ElementReader {
public:
    ElementReader(XmlElementBase& element, QXmlStreamReader& reader, const QString& tagName, const Wording& wording)
        : m_element(element)
        , m_reader(reader)
        , m_tagName(tagName)
        , m_wording(wording)
        , m_atStartTag(reader.isStartElement())
    {
    }
    ElementReader(const ElementReader&) = delete;
    ElementReader& operator=(const ElementReader&) = delete;

    QXmlStreamReader& stream() { return m_reader; }

    /// Raises \a message on the stream in the element's name; this ends every loop that reads it.
    void fail(const QString& message);

    /// Whether the stream stood on a start tag when the reading began; raises an error if not.
    bool requireStartTag();

    /// Takes the attribute into \a value when it is present and not empty. Returns whether it was.
    bool takeAttribute(const QString& name, QString& value);
    /// The same, and raises an error when there was nothing to take.
    bool requireAttribute(const QString& name, QString& value);
    bool hasAttribute(const QString& name) const { return m_reader.attributes().hasAttribute(name); }
    /// The attribute's text, empty when absent.
    QString attribute(const QString& name) const { return m_reader.attributes().value(name).toString(); }
    /// Raises the error of an attribute whose text means nothing.
    void refuseAttribute(const QString& name);

    /// The whole text of the child element on whose start tag the stream stands. An element inside
    /// it is an error of the stream; the text read until then is returned.
    QString childText() { return m_reader.readElementText(); }

    /// Skips the child element on whose start tag the stream stands, with all it contains.
    void skipChild() { m_reader.skipCurrentElement(); }

    void refuseStart() { refuseTag(m_wording.start); }
    void refuseEnd() { refuseTag(m_wording.end); }

    /// Whether the stream stands on a tag of the element's own name.
    bool atOwnTag() const { return m_reader.name() == m_tagName; }

    /// Goes through the tokens of the element until \a onEnd says that it is complete, or an error
    /// ends the reading.
    template <typename OnStart, typename OnEnd, typename OnCharacters>
    void readTokens(OnStart onStart, OnEnd onEnd, OnCharacters onCharacters)
    {
        while (!m_reader.atEnd() && !m_reader.hasError()) {
            switch (m_reader.readNext()) {
            case QXmlStreamReader::StartElement:
                onStart();
                break;
            case QXmlStreamReader::EndElement:
                if (onEnd())
                    return;
                break;
            case QXmlStreamReader::Characters:
                onCharacters();
                break;
            default:
                refuseOtherToken();
                break;
            }
        }
    }

    /// Reads an element without children: \a onText gets each piece of its text.
    template <typename OnText>
    void readLeaf(OnText onText)
    {
        readTokens([this] { refuseStart(); },
                   [this] {
                       if (atOwnTag())
                           return true;
                       refuseEnd();
                       return false;
                   },
                   [this, onText] { onText(m_reader.text()); });
    }

private:
    void refuseTag(const char* message);
    void refuseOtherToken();

    XmlElementBase& m_element;
    QXmlStreamReader& m_reader;
    const QString m_tagName; // a copy: the caller's may be a text of the very element that is read
    const Wording& m_wording;
    const bool m_atStartTag;
};

} // namespace ArvXml
