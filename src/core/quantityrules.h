#pragma once

#include "core/neverdestroyed.h"
#include "core/numbers.h"

#include <QtCore/QString>

namespace ArvXml {

/// What is particular to one measured quantity.
struct QuantityRules {
    enum Numbers { Real, Integer };

    QString unit;        ///< the fixed unit, or the one by default; empty when there is none
    double defaultValue; ///< also stored for a text that is no number
    Numbers numbers;     ///< what the text may be
    NumberFormat format; ///< how it is written
    bool (*isValid)(double value);
    bool
        reportsNan; ///< whether syntaxError() reports a value that is no number (NaN); isValid() refuses it in any case
    const char* valueError;
    const char* unitError;
};

} // namespace ArvXml
