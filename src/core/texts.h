#pragma once

#include <QtCore/QString>

#include <cstring>

/// \file
/// Functions to compare and copy texts, called for every element read.

namespace ArvXml {

/// Whether two texts are equal. Names and attributes are short; most are either the same constant, or differ in length
/// or in the first characters.
inline bool isSameText(QStringView text, QStringView other)
{
    const auto size = text.size();
    if (size != other.size())
        return false;
    const QChar* const a = text.data();
    const QChar* const b = other.data();
    if (a == b)
        return true;
    const auto differ = [a, b](qsizetype at) { // in the four characters at that index
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
    return !differ(size - 4); // may overlap with those already compared
}

/// A copy of a text of the stream. In Qt 5, toString() may instead share the whole buffer of the stream, which is
/// larger than the text, and which the stream would have to allocate again.
template <typename Text>
QString detachedCopy(const Text& text)
{
    return QString(text.data(), static_cast<int>(text.size()));
}

/// Assigns \a text to \a held, unless it is empty. An equal text stays: it may be a constant, which takes no memory.
template <typename Text>
void assignUnlessEmpty(const Text& text, QString& held)
{
    if (!text.isEmpty() && !isSameText(text, held))
        held = detachedCopy(text);
}

} // namespace ArvXml
