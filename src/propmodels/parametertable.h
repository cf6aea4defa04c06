#pragma once

#include "core/neverdestroyed.h"

#include <QtCore/QString>

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace ArvXml {

/// One parameter of a set: a row of its table.
struct ParameterRow {
    enum Kind { Real, Integer, Choice };

    Kind kind = Real;
    QString tag;                      ///< read under this tag
    QString writtenTag;               ///< written under this one; null for the tag of the set itself
    double defaultValue = 0.0;        ///< the value of a new set; its text also stands for a choice outside the texts
    double valueAfterReadError = 0.0; ///< the value after a text that cannot be read
    int decimals = 0;                 ///< how many are written
    double min = -std::numeric_limits<double>::infinity();
    double max = std::numeric_limits<double>::infinity();
    QString rangeError;                    ///< the problem of a value that is out of range (NaN never is) or undefined
    QString readError;                     ///< raised for a text that cannot be read
    std::vector<QString> texts;            ///< of a choice, by value
    bool zeroIsUndefined = false;          ///< whether value 0 of a choice is not read, and a problem
    bool isRepeatable = false;             ///< whether it may come again while none after it has been read
    std::optional<int> clearedByReadError; ///< the parameter whose flag a bad text clears, if not its own
    std::optional<int> textChosenBy;       ///< the parameter whose value chooses the text written, if not its own
};

/// The texts of a choice, that of value 0 first.
inline std::vector<QString> texts(std::initializer_list<const char*> list)
{
    std::vector<QString> result;
    for (const char* text : list)
        result.push_back(QString::fromLatin1(text));
    return result;
}

/// Those of a choice between off and on.
inline std::vector<QString> switchTexts()
{
    return texts({"Off", "On"});
}

/// A real number, valid from \a min to \a max, written with \a decimals.
inline ParameterRow real(const char* tag, double defaultValue, int decimals, double min, double max,
                         const char* rangeError, const char* readError)
{
    ParameterRow row;
    row.tag = row.writtenTag = QString::fromLatin1(tag);
    row.defaultValue = row.valueAfterReadError = defaultValue;
    row.decimals = decimals;
    row.min = min;
    row.max = max;
    row.rangeError = QString::fromLatin1(rangeError);
    row.readError = QString::fromLatin1(readError);
    return row;
}

/// A decimal integer, valid from \a min to \a max.
inline ParameterRow integer(const char* tag, int defaultValue, int min, int max, const char* rangeError,
                            const char* readError)
{
    ParameterRow row = real(tag, defaultValue, 0, min, max, rangeError, readError);
    row.kind = ParameterRow::Integer;
    return row;
}

/// A choice out of \a texts.
inline ParameterRow choice(const char* tag, int defaultValue, std::vector<QString> texts, const char* readError)
{
    ParameterRow row;
    row.kind = ParameterRow::Choice;
    row.tag = row.writtenTag = QString::fromLatin1(tag);
    row.defaultValue = row.valueAfterReadError = defaultValue;
    row.readError = QString::fromLatin1(readError);
    row.texts = std::move(texts);
    return row;
}

/// A choice whose value 0 means undefined: its text is written but not read, and \a undefinedError is the
/// problem of the value.
inline ParameterRow definedChoice(const char* tag, std::vector<QString> texts, const char* undefinedError,
                                  const char* readError)
{
    ParameterRow row = choice(tag, 0, std::move(texts), readError);
    row.zeroIsUndefined = true;
    row.rangeError = QString::fromLatin1(undefinedError);
    return row;
}

// Departures, each said by its name.

inline ParameterRow writtenAs(const char* tag, ParameterRow row)
{
    row.writtenTag = QString::fromLatin1(tag);
    return row;
}
inline ParameterRow writtenAsTheSet(ParameterRow row)
{
    row.writtenTag = QString();
    return row;
}
inline ParameterRow valueAfterReadError(double value, ParameterRow row)
{
    row.valueAfterReadError = value;
    return row;
}
inline ParameterRow readErrorClears(int parameter, ParameterRow row)
{
    row.clearedByReadError = parameter;
    return row;
}
inline ParameterRow textChosenBy(int parameter, ParameterRow row)
{
    row.textChosenBy = parameter;
    return row;
}
inline ParameterRow repeatable(ParameterRow row)
{
    row.isRepeatable = true;
    return row;
}

/// The parameters of a set, in the order of reading and writing.
class ParameterTable {
public:
    /// A row, and the value of the set that it is about: they count alike.
    struct NumberedRow {
        int parameter;
        ParameterRow row;
    };

    ParameterTable(std::initializer_list<NumberedRow> rows)
    {
        for (const NumberedRow& numbered : rows) {
            m_reportOrder.push_back(numbered.parameter);
            m_rows.push_back(numbered.row);
            Q_ASSERT(numbered.parameter == size() - 1);
        }
    }

    /// The set keeps what it holds when it is read; the usual set is reset first.
    ParameterTable& keptBeforeReading()
    {
        m_isResetBeforeReading = false;
        return *this;
    }
    /// syntaxError() reports these parameters first, in this order, and the others as they are written.
    ParameterTable& reportedFirst(std::initializer_list<int> parameters)
    {
        auto place = m_reportOrder.begin();
        for (const int parameter : parameters) {
            const auto found = std::find(place, m_reportOrder.end(), parameter);
            std::rotate(place++, found, found + 1);
        }
        return *this;
    }

    int size() const { return static_cast<int>(m_rows.size()); }
    const ParameterRow& row(int parameter) const { return m_rows[static_cast<std::size_t>(parameter)]; }
    bool isResetBeforeReading() const { return m_isResetBeforeReading; }
    const std::vector<int>& reportOrder() const { return m_reportOrder; }

private:
    std::vector<ParameterRow> m_rows;
    std::vector<int> m_reportOrder;
    bool m_isResetBeforeReading = true;
};

} // namespace ArvXml
