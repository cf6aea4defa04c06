#pragma once

#include "core/neverdestroyed.h"
#include "core/numbers.h"

#include <QtCore/QString>

#include <cmath>
#include <limits>

namespace ArvXml {

/// What is particular to one measured quantity.
struct QuantityRules {
    bool isInteger;      ///< whether the text must be an integer, else a real number
    QString unit;        ///< the fixed unit, or the one by default; empty when there is none
    double defaultValue; ///< also stored for a text that is no number
    NumberFormat format; ///< how it is written
    double min;          ///< a value below is refused, as is one that is no number (NaN)
    double max;          ///< a value above is refused
    const char* valueError;
    const char* unitError;
    bool reportsNan = false; ///< whether syntaxError() reports a value that is no number

    bool accepts(double value) const { return value >= min && value <= max; }
};

constexpr double unlimited = std::numeric_limits<double>::infinity();
/// The numbers next to a limit that is itself refused.
inline double above(double limit)
{
    return std::nextafter(limit, unlimited);
}
inline double below(double limit)
{
    return std::nextafter(limit, -unlimited);
}

inline QuantityRules realQuantity(const QString& unit, double defaultValue, NumberFormat format, double min, double max,
                                  const char* valueError, const char* unitError = nullptr)
{
    return {false, unit, defaultValue, format, min, max, valueError, unitError};
}
inline QuantityRules integerQuantity(const QString& unit, double defaultValue, NumberFormat format, double min,
                                     const char* valueError, const char* unitError)
{
    return {true, unit, defaultValue, format, min, unlimited, valueError, unitError};
}
/// The same, but a value that is no number is reported, too.
inline QuantityRules reportingNan(QuantityRules rules)
{
    rules.reportsNan = true;
    return rules;
}

} // namespace ArvXml
