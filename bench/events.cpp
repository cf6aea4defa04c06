#include "events.h"

#include <QtCore/QSet>
#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

namespace Bench {

namespace {

/// A text of its own, as long as need be. Its own toString() may hand out the reader's own buffer with
/// all the room that it has, and the texts would lie too far apart for the processor's caches.
template <typename Text>
QString compact(const Text& text)
{
    return QString(text.data(), text.size());
}

} // namespace

Events recordEvents(const QByteArray& document)
{
    QSet<QString> constants;
    const auto constant = [&constants](const auto& text) { return *constants.insert(compact(text)); };

    Events events;
    QXmlStreamReader reader(document);
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement: {
            events.push_back({Event::Start, constant(reader.name()), {}});
            const QXmlStreamAttributes attributes = reader.attributes();
            for (const QXmlStreamAttribute& attribute : attributes)
                events.push_back({Event::Attribute, constant(attribute.name()), constant(attribute.value())});
            break;
        }
        case QXmlStreamReader::EndElement:
            events.push_back({Event::End, {}, {}});
            break;
        case QXmlStreamReader::Characters:
            events.push_back({Event::Characters, {}, compact(reader.text())});
            break;
        default:
            break; // around the document element
        }
    }
    return events;
}

QByteArray replayEvents(const Events& events, int reserve)
{
    QByteArray text;
    text.reserve(reserve);
    QXmlStreamWriter writer(&text);
    writer.writeStartDocument();
    for (const Event& event : events) {
        switch (event.type) {
        case Event::Start:
            writer.writeStartElement(event.name);
            break;
        case Event::Attribute:
            writer.writeAttribute(event.name, event.text);
            break;
        case Event::Characters:
            writer.writeCharacters(event.text);
            break;
        case Event::End:
            writer.writeEndElement();
            break;
        }
    }
    writer.writeEndDocument();
    return text;
}

} // namespace Bench
