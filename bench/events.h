#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <vector>

/// \file
/// The writing floor: what a document costs that is written from ready-made texts.

namespace Bench {

/// One call of the writer. Equal tags, attributes and their values are one shared text.
struct Event {
    enum Type { Start, Attribute, Characters, End };

    Type type;
    QString name; ///< of a start tag or an attribute
    QString text; ///< of an attribute or characters
};

using Events = std::vector<Event>;

/// The events that write \a document.
Events recordEvents(const QByteArray& document);
QByteArray replayEvents(const Events& events, int reserve);

} // namespace Bench
