#pragma once

#include <QtCore/QString>

#include <optional>

/// \file
/// Conversion between numbers and texts. Plain decimals, nearly all numbers in documents, take a fast path; all others
/// are left to Qt. Both accept the same texts and give the same results, to the bit.

namespace ArvXml {

/// The format of a number: 'f' with a number of decimals, or 'g' with a number of significant digits.
struct NumberFormat {
    char format;
    int digits;
};

/// The same as QString::number().
QString numberText(double value, NumberFormat format);
/// The fast path of this; null for numbers and formats that are left to Qt.
QString fastText(double value, NumberFormat format);
inline QString numberText(int value)
{
    return QString::number(value);
}

/// The number between \a begin and \a end, if they are plain decimals, `-?[0-9]+(\.[0-9]+)?`, of up to nineteen digits
/// not counting trailing zeros; nothing for all other texts.
std::optional<double> fastReal(const QChar* begin, const QChar* end);
/// The same for `-?[0-9]+` of at most nine digits.
std::optional<int> fastInteger(const QChar* begin, const QChar* end);

/// The real number in \a text, in the C locale; 0.0 if it is not one.
template <typename Text>
double toReal(const Text& text, bool* ok = nullptr)
{
    if (const auto number = fastReal(text.data(), text.data() + text.size())) {
        if (ok)
            *ok = true;
        return *number;
    }
    return text.toDouble(ok);
}
/// The decimal integer in \a text; 0 if it is not one.
template <typename Text>
int toInteger(const Text& text, bool* ok = nullptr)
{
    if (const auto number = fastInteger(text.data(), text.data() + text.size())) {
        if (ok)
            *ok = true;
        return *number;
    }
    return text.toInt(ok, 10);
}

} // namespace ArvXml
