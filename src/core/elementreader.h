#pragma once

#include "core/texts.h"

#include <QtCore/QString>
#include <QtCore/QVarLengthArray>
#include <QtCore/QXmlStreamReader>

#include <optional>

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

/// A piece of text that belongs to the stream.
using StreamText = decltype(QXmlStreamReader().text());

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

/// Raises "in CLASS (line L, column C): MESSAGE." on \a reader, in place of any earlier error.
void raiseError(QXmlStreamReader& reader, const QString& className, const QString& message);

/// One reading of one element: the stream, the tag under which the element stands, and the errors
/// raised in the element's name.
class ElementReader {
public:
    ElementReader(const QString& className, QXmlStreamReader& reader, const QString& tagName, const Wording& wording)
        : m_className(className)
        , m_reader(reader)
        , m_tagName(tagName.cbegin(), tagName.cend())
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

    bool hasAttribute(const QString& name) { return attributeNamed(name) != nullptr; }
    /// The attribute's text, empty when absent; good until the next token is read.
    StreamText attribute(const QString& name);
    /// The same, and raises an error when it is empty.
    StreamText requireAttribute(const QString& name);
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
    bool atOwnTag() const { return isSameText(m_reader.name(), QStringView(m_tagName.data(), m_tagName.size())); }

    /// Goes through the tokens of the element until \a onEnd says that it is complete, or an error
    /// ends the reading.
    template <typename OnStart, typename OnEnd, typename OnCharacters>
    void readTokens(OnStart onStart, OnEnd onEnd, OnCharacters onCharacters)
    {
        m_attributes.reset();
        if (m_reader.atEnd() || m_reader.hasError())
            return;
        while (true) {
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
                if (m_hasFailed)
                    return;
                continue; // nobody but this element can have raised an error
            default:
                refuseOtherToken();
                break;
            }
            if (m_reader.hasError())
                return;
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
    const QXmlStreamAttribute* attributeNamed(const QString& name);
    void refuseTag(const char* message);
    void refuseOtherToken();

    const QString& m_className;
    QXmlStreamReader& m_reader;
    /// A copy, since the caller's may be a text of the very element that is read. A QString would share it, which
    /// takes two atomic operations, more than these few characters.
    const QVarLengthArray<QChar, 32> m_tagName;
    const Wording& m_wording;
    const bool m_atStartTag;
    bool m_hasFailed = false;
    /// A copy of the start tag's attributes while they are looked at. It must be gone before the next token
    /// is read: the stream would otherwise have to detach its own.
    std::optional<QXmlStreamAttributes> m_attributes;
};

} // namespace ArvXml
