#pragma once

#include "core/neverdestroyed.h"
#include "core/numbers.h"

#include <QtCore/QString>

namespace ArvXml {

/// What is specific to a measured quantity.
struct QuantityRules {
    bool isInteger;      ///< whether the text must be an integer instead of a real number
    QString unit;        ///< the fixed or the default unit; empty if there is none
    double defaultValue; ///< also stored for a text that is not a number
    NumberFormat format; ///< for writing
    bool (*accepts)(double value);
    const char* valueError;
    const char* unitError;
    bool reportsNan = false; ///< whether syntaxError() reports NaN
};

inline QuantityRules realQuantity(const QString& unit, double defaultValue, NumberFormat format,
                                  bool (*accepts)(double), const char* valueError, const char* unitError = nullptr)
{
    return {false, unit, defaultValue, format, accepts, valueError, unitError};
}
inline QuantityRules integerQuantity(const QString& unit, int defaultValue, NumberFormat format,
                                     bool (*accepts)(double), const char* valueError, const char* unitError)
{
    return {true, unit, double(defaultValue), format, accepts, valueError, unitError};
}
/// The same, but NaN is reported as well.
inline QuantityRules reportingNan(QuantityRules rules)
{
    rules.reportsNan = true;
    return rules;
}

} // namespace ArvXml
