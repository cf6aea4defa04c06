#include "core/numbers.h"

#include <algorithm>
#include <array>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>

namespace ArvXml {

namespace {

/// These powers of ten are exact as real numbers. There are as many as a plain number has decimals, and one.
constexpr std::array<double, 19> exactPowers = [] {
    std::array<double, 19> powers{};
    powers[0] = 1;
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = 10 * powers[i - 1];
    return powers;
}();

#ifdef __SIZEOF_INT128__
__extension__ using Wide = unsigned __int128;

constexpr std::array<quint64, 16> integerPowers = [] {
    std::array<quint64, 16> powers{};
    powers[0] = 1;
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = 10 * powers[i - 1];
    return powers;
}();
#endif

constexpr int mantissaBits = 53;
constexpr quint64 exactIntegers = quint64(1) << mantissaBits; ///< all up to here are exact as real numbers

/// The value of a decimal digit, above 9 for everything else.
unsigned digitOf(QChar character)
{
    return unsigned(character.unicode()) - unsigned('0');
}

} // namespace

// Reading

namespace {

/// Takes the digits from \a at on into \a number, and returns where they end.
const QChar* takeDigits(const QChar* at, const QChar* end, quint64& number)
{
    quint64 digits = number;
    for (; at != end; ++at) {
        const unsigned digit = digitOf(*at);
        if (digit > 9)
            break;
        digits = 10 * digits + digit;
    }
    number = digits;
    return at;
}

/// Whether a quotient of two doubles is rounded once, to the nearest double. Where doubles are evaluated in longer
/// registers (x87), it is rounded twice. Where the program has set another rounding mode, the two sides differ.
bool roundsToNearest()
{
#if FLT_EVAL_METHOD == 0
    static volatile float tiny = std::numeric_limits<float>::min(); // volatile: computed as the program runs
    const float little = tiny;
    return 1.0F + little == 1.0F - little;
#else
    return false;
#endif
}

/// \a digits divided by a power of ten, one of exactPowers, rounded to nearest, half to even.
std::optional<double> quotient(quint64 digits, std::size_t decimals)
{
    // An integer is exact, whatever the machine.
    if (decimals == 0 && digits <= exactIntegers)
        return static_cast<double>(digits);
    if (!roundsToNearest())
        return {};
    // Both exact as real numbers: the division rounds once, and so correctly.
    if (digits <= exactIntegers)
        return static_cast<double>(digits) / exactPowers[decimals];
#ifdef __SIZEOF_INT128__
    // Else divide integers, so that the quotient has some bits more than a real number, and whether anything
    // remains tells on which side of a half it lies.
    if (decimals < integerPowers.size()) {
        const quint64 divisor = integerPowers[decimals];
        constexpr int shift = 64;
        const Wide dividend = Wide(digits) << shift;
        Wide result = dividend / divisor;
        const bool remains = result * divisor != dividend;
        int bits = 0;
        for (Wide rest = result; rest != 0; rest >>= 1)
            ++bits;
        // Here digits are above 2^53 and the divisor below 2^50, so that at least two bits are too many.
        const int extra = std::max(bits - mantissaBits, 1);
        const Wide half = Wide(1) << (extra - 1);
        const Wide cut = result & ((half << 1) - 1);
        result >>= extra;
        if (cut > half || (cut == half && (remains || (result & 1) != 0)))
            ++result;
        return std::ldexp(static_cast<double>(static_cast<quint64>(result)), extra - shift);
    }
#endif
    return {};
}

} // namespace

std::optional<double> fastReal(const QChar* begin, const QChar* end)
{
    const bool isNegative = begin != end && *begin == QLatin1Char('-');
    const QChar* const first = begin + (isNegative ? 1 : 0);
    quint64 digits = 0;
    const QChar* at = takeDigits(first, end, digits);
    if (at == first)
        return {};

    std::size_t decimals = 0;
    if (at != end) {
        if (*at != QLatin1Char('.') || ++at == end)
            return {};
        // Much is written with fifteen decimals, most of them zeros.
        while (end != at && *(end - 1) == QLatin1Char('0'))
            --end;
        decimals = static_cast<std::size_t>(end - at);
        at = takeDigits(at, end, digits);
    }
    constexpr int safeLength = 20; // nineteen digits and a point: that many digits cannot overflow, 18 of them decimals
    if (at != end || end - first > safeLength - (decimals > 0 ? 0 : 1))
        return {};
    const std::optional<double> magnitude = quotient(digits, decimals);
    return magnitude && isNegative ? std::optional<double>(-*magnitude) : magnitude;
}

std::optional<int> fastInteger(const QChar* begin, const QChar* end)
{
    const bool isNegative = begin != end && *begin == QLatin1Char('-');
    const QChar* at = begin + (isNegative ? 1 : 0);
    if (at == end || end - at > 9)
        return {};
    int number = 0;
    for (; at != end; ++at) {
        const unsigned digit = digitOf(*at);
        if (digit > 9)
            return {};
        number = 10 * number + static_cast<int>(digit);
    }
    return isNegative ? -number : number;
}

// Writing: a number below 2^53 is an integer and a binary fraction of at most 53 bits, whose decimals an
// integer of 128 bits holds exactly.

namespace {

#ifdef __SIZEOF_INT128__

/// A magnitude rounded to some decimals, half upwards.
struct Decimal {
    quint64 integer;
    quint64 fraction; ///< the decimals as an integer
};

std::optional<Decimal> rounded(double magnitude, int decimals)
{
    quint64 bits = 0;
    static_assert(sizeof bits == sizeof magnitude);
    std::memcpy(&bits, &magnitude, sizeof bits);
    const int exponent = static_cast<int>(bits >> (mantissaBits - 1));
    // Nothing smaller than normal numbers, nothing from 2^53 on, no infinities and no NaN.
    const int shift = 1075 - exponent;
    if (exponent == 0 || shift < 0)
        return {};
    const quint64 mantissa = (bits & (exactIntegers / 2 - 1)) | exactIntegers / 2;
    if (shift == 0)
        return Decimal{mantissa, 0};

    Decimal decimal = {0, 0};
    quint64 fraction = mantissa;
    if (shift < mantissaBits) {
        decimal.integer = mantissa >> shift;
        fraction = mantissa & ((quint64(1) << shift) - 1);
    }
    const quint64 one = integerPowers[static_cast<std::size_t>(decimals)];
    if (shift < 110) { // below, not even the fifteenth decimal is reached
        const Wide half = Wide(1) << (shift - 1);
        decimal.fraction = static_cast<quint64>((Wide(fraction) * one + half) >> shift);
    }
    if (decimal.fraction == one) {
        decimal.fraction = 0;
        ++decimal.integer;
    }
    return decimal;
}

int digitsOf(quint64 number)
{
    int count = 1;
    while (static_cast<std::size_t>(count) < integerPowers.size()
           && number >= integerPowers[static_cast<std::size_t>(count)])
        ++count;
    return number >= 10 * integerPowers.back() ? count + 1 : count;
}

/// Writes the last \a count digits of \a number so that they end before \a end.
void writeDigits(QChar* end, quint64 number, int count)
{
    for (; count > 0; --count) {
        *--end = QChar(static_cast<ushort>('0' + number % 10));
        number /= 10;
    }
}

QString text(bool isNegative, Decimal decimal, int decimals)
{
    const int integerDigits = digitsOf(decimal.integer);
    const int length = (isNegative ? 1 : 0) + integerDigits + (decimals > 0 ? 1 + decimals : 0);
    QString text(length, Qt::Uninitialized);
    QChar* const begin = text.data();
    QChar* const end = begin + length;
    if (isNegative)
        *begin = QLatin1Char('-');
    if (decimals > 0) {
        writeDigits(end, decimal.fraction, decimals);
        *(end - decimals - 1) = QLatin1Char('.');
        writeDigits(end - decimals - 1, decimal.integer, integerDigits);
    } else {
        writeDigits(end, decimal.integer, integerDigits);
    }
    return text;
}

/// 'f': so many decimals.
QString fixedText(double value, int decimals)
{
    if (decimals >= static_cast<int>(integerPowers.size()))
        return {};
    const std::optional<Decimal> decimal = rounded(qAbs(value), decimals);
    return decimal ? text(value < 0, *decimal, decimals) : QString();
}

/// 'g': so many significant digits, without zeros at the end; only where no exponent is written and the
/// first digit is not a decimal.
QString generalText(double value, int digits)
{
    const double magnitude = qAbs(value);
    if (digits >= static_cast<int>(integerPowers.size()) || !(magnitude >= 1)
        || !(magnitude < exactPowers[static_cast<std::size_t>(digits)]))
        return {};
    int decimals = digits - digitsOf(static_cast<quint64>(magnitude));
    std::optional<Decimal> decimal = rounded(magnitude, decimals);
    if (!decimal || digitsOf(decimal->integer) > digits - decimals)
        return {}; // rounded up to one digit more
    for (; decimals > 0 && decimal->fraction % 10 == 0; --decimals)
        decimal->fraction /= 10;
    return text(value < 0, *decimal, decimals);
}

} // namespace

QString fastText(double value, NumberFormat format)
{
    return format.format == 'f' ? fixedText(value, format.digits) : generalText(value, format.digits);
}

#else

} // namespace

QString fastText(double, NumberFormat)
{
    return {};
}

#endif

QString numberText(double value, NumberFormat format)
{
    const QString text = fastText(value, format);
    return text.isNull() ? QString::number(value, format.format, format.digits) : text;
}

} // namespace ArvXml
