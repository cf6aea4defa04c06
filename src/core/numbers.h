#pragma once

#include <QtCore/QString>

/// \file
/// The one place where numbers become text and text becomes numbers.

namespace ArvXml {

/// How a number is written: 'f' with so many decimals, or 'g' with so many significant digits.
struct NumberFormat {
    char format;
    int digits;
};

inline QString numberText(double value, NumberFormat format)
{
    return QString::number(value, format.format, format.digits);
}
inline QString numberText(int value)
{
    return QString::number(value);
}

/// A real number in the C locale; 0.0 when \a text is none.
template <typename Text>
double toReal(const Text& text, bool* ok = nullptr)
{
    return text.toDouble(ok);
}
/// A decimal integer; 0 when \a text is none.
template <typename Text>
int toInteger(const Text& text, bool* ok = nullptr)
{
    return text.toInt(ok, 10);
}

} // namespace ArvXml
