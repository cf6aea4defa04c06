#pragma once

#include <QtCore/QString>

#include <optional>

/// \file
/// The one place where numbers become text and text becomes numbers. Plain decimals, which is nearly all
/// that the protocol carries, go a short way; everything else goes Qt's. Both give the same bits and the
/// same text, and accept the same.

namespace ArvXml {

/// How a number is written: 'f' with so many decimals, or 'g' with so many significant digits.
struct NumberFormat {
    char format;
    int digits;
};

/// As QString::number() writes it.
QString numberText(double value, NumberFormat format);
/// The same by the short way; null for a number or format that needs Qt's.
QString fastText(double value, NumberFormat format);
inline QString numberText(int value)
{
    return QString::number(value);
}

/// The number that \a begin to \a end say in plain decimals, `-?[0-9]+(\.[0-9]+)?`, of up to nineteen digits
/// without the zeros at the end. Nothing for every other text.
std::optional<double> fastReal(const QChar* begin, const QChar* end);
/// The same for `-?[0-9]+` of at most nine digits.
std::optional<int> fastInteger(const QChar* begin, const QChar* end);

/// A real number in the C locale; 0.0 when \a text is none.
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
/// A decimal integer; 0 when \a text is none.
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
