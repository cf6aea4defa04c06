#pragma once

#include <QtCore/QString>

#include <cstring>

/// \file
/// Texts that are compared and copied for every element read.

namespace ArvXml {

/// Whether two texts are the same. Names and attributes are short; most are either the very same constant,
/// or differ in length or in the first characters.
inline bool isSameText(QStringView text, QStringView other)
{
    const auto size = text.size();
    if (size != other.size())
        return false;
    const QChar* const a = text.data();
    const QChar* const b = other.data();
    if (a == b)
        return true;
    const auto differ = [a, b](qsizetype at) { // in the four characters from there
        quint64 x = 0;
        quint64 y = 0;
        std::memcpy(&x, a + at, sizeof x);
        std::memcpy(&y, b + at, sizeof y);
        return x != y;
    };
    if (size < 4) {
        for (qsizetype at = 0; at < size; ++at) {
            if (a[at] != b[at])
                return false;
        }
        return true;
    }
    for (qsizetype at = 0; at + 4 < size; at += 4) {
        if (differ(at))
            return false;
    }
    return !differ(size - 4); // the last four may have been looked at in part
}

/// A text of the stream, to keep. With Qt 5, its toString() would share the stream's own buffer when that holds nothing
/// else, with room for much more, and the stream would have to make itself another.
template <typename Text>
QString detachedCopy(const Text& text)
{
    return QString(text.data(), static_cast<int>(text.size()));
}

/// Keeps \a text in \a held, unless it is empty. A constant that says the same stays: it takes no memory.
template <typename Text>
void assignUnlessEmpty(const Text& text, QString& held)
{
    if (!text.isEmpty() && !isSameText(text, held))
        held = detachedCopy(text);
}

} // namespace ArvXml
