#pragma once

#include "core/texts.h"

#include <QtCore/QString>
#include <QtCore/QVarLengthArray>
#include <QtCore/QXmlStreamReader>

#include <optional>

namespace ArvXml {

/// The messages with which an element refuses a tag; "%1" is the name of the tag. Nearly all elements use one of three
/// wordings.
struct Wording {
    const char* start;
    const char* end;
};

/// Values without children.
constexpr Wording leafWording = {"Unexpected token \"StartElement\"", "Unexpected token \"EndElement\""};
/// Lists, and some composites.
constexpr Wording listWording = {"Unexpected element \"%1\"", "Unexpected token \"EndElement\""};
/// Composites that name both tags.
constexpr Wording compositeWording = {"Unexpected token \"StartElement\": %1", "Unexpected token \"EndElement\": %1"};

/// A text that belongs to the stream.
using StreamText = decltype(QXmlStreamReader().text());

/// The names of attributes that several elements have.
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

/// Reads one element: gives access to the stream, knows the tag of the element, and raises errors in its name.
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

    /// Raises \a message on the stream in the name of the element, which ends all loops that read the stream.
    void fail(const QString& message);

    /// Whether the stream was at a start tag when reading began; raises an error otherwise.
    bool requireStartTag();

    bool hasAttribute(const QString& name) { return attributeNamed(name) != nullptr; }
    /// The text of the attribute, empty if absent; valid until the next token is read.
    StreamText attribute(const QString& name);
    /// The same, but raises an error if it is empty.
    StreamText requireAttribute(const QString& name);
    /// Raises the error for an attribute with an unknown text.
    void refuseAttribute(const QString& name);

    /// The whole text of the child element at whose start tag the stream is. An element inside it is an error of the
    /// stream; the text before it is returned.
    QString childText() { return m_reader.readElementText(); }

    /// Skips the child element at whose start tag the stream is, with its content.
    void skipChild() { m_reader.skipCurrentElement(); }

    void refuseStart() { refuseTag(m_wording.start); }
    void refuseEnd() { refuseTag(m_wording.end); }

    /// Whether the stream is at a tag with the name of the element.
    bool atOwnTag() const { return isSameText(m_reader.name(), QStringView(m_tagName.data(), m_tagName.size())); }

    /// Reads the tokens of the element until \a onEnd returns that it is complete, or an error occurs.
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
                continue; // only this element can have raised an error
            default:
                refuseOtherToken();
                break;
            }
            if (m_reader.hasError())
                return;
        }
    }

    /// Reads an element without children, calling \a onText for each piece of text.
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
    /// A copy, since the caller's may belong to the element being read. Copying these few characters is faster than the
    /// two atomic operations of a shared QString.
    const QVarLengthArray<QChar, 32> m_tagName;
    const Wording& m_wording;
    const bool m_atStartTag;
    bool m_hasFailed = false;
    /// A copy of the attributes of the start tag. It must be gone before the next token is read: the stream would
    /// otherwise have to detach its own.
    std::optional<QXmlStreamAttributes> m_attributes;
};

} // namespace ArvXml
