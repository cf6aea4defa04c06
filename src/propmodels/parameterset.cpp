#include "arvxml/parameterset.h"

#include "core/elementreader.h"
#include "core/numbers.h"
#include "propmodels/parametertable.h"

#include <QtCore/QXmlStreamWriter>

#include <algorithm>

namespace ArvXml {

XmlParameterSet::XmlParameterSet(const QString& className, const ParameterTable& table)
    : XmlElement(className)
    , m_table(&table)
{
    resetParameters();
}

XmlParameterSet& XmlParameterSet::operator=(XmlParameterSet&& other) noexcept
{
    XmlElement::operator=(other);
    m_parameters.swap(other.m_parameters);
    return *this;
}

void XmlParameterSet::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    const ParameterTable& table = *m_table;
    ElementReader in(classname(), reader, tagName, compositeWording);
    if (table.isResetBeforeReading())
        reset();

    int open = 0; // the first parameter that may still come
    const auto onStart = [&] {
        for (int parameter = open; parameter < table.size(); ++parameter) {
            const ParameterRow& row = table.row(parameter);
            if (reader.name() == row.tag) {
                open = row.isRepeatable ? parameter : parameter + 1;
                readParameter(parameter, in);
                return;
            }
        }
        in.refuseStart();
    };
    const auto onEnd = [&] {
        if (in.atOwnTag())
            return true;
        in.refuseEnd();
        return false;
    };
    in.readTokens(onStart, onEnd, [] {});
}

void XmlParameterSet::readParameter(int parameter, ElementReader& in)
{
    const ParameterRow& row = m_table->row(parameter);
    const QString text = in.childText();

    bool ok = false;
    double value = 0.0;
    switch (row.kind) {
    case ParameterRow::Real:
        value = toReal(text, &ok);
        break;
    case ParameterRow::Integer:
        value = toInteger(text, &ok);
        break;
    case ParameterRow::Choice: {
        const auto first = row.texts.cbegin() + (row.zeroIsUndefined ? 1 : 0);
        const auto found = std::find(first, row.texts.cend(), text);
        ok = found != row.texts.cend();
        value = static_cast<double>(found - row.texts.cbegin());
    } break;
    }

    setValue(parameter, ok ? value : row.valueAfterReadError);
    if (!ok) {
        at(row.clearedByReadError.value_or(parameter)).isPresent = false;
        in.fail(row.readError);
    }
}

/// How \a value is written.
static QString writtenText(const ParameterRow& row, double value)
{
    switch (row.kind) {
    case ParameterRow::Real:
        return numberText(value, NumberFormat{'f', row.decimals});
    case ParameterRow::Integer:
        return numberText(static_cast<int>(value));
    case ParameterRow::Choice:
        break;
    }
    const int choice = static_cast<int>(value);
    const bool hasText = choice >= 0 && choice < static_cast<int>(row.texts.size());
    return row.texts[static_cast<std::size_t>(hasText ? choice : static_cast<int>(row.defaultValue))];
}

void XmlParameterSet::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeStartElement(tagName);
    for (int parameter = 0; parameter < m_table->size(); ++parameter) {
        const ParameterRow& row = m_table->row(parameter);
        if (!isPresent(parameter))
            continue;
        const double value = realValue(row.textChosenBy.value_or(parameter));
        writer.writeTextElement(row.writtenTag.isNull() ? tagName : row.writtenTag, writtenText(row, value));
    }
    writer.writeEndElement();
}

static bool isAcceptable(const ParameterRow& row, double value)
{
    if (row.kind == ParameterRow::Choice)
        return !row.zeroIsUndefined || value != 0.0;
    return !(value < row.min || value > row.max); // NaN passes
}

bool XmlParameterSet::isValid() const
{
    for (int parameter = 0; parameter < m_table->size(); ++parameter) {
        if (isPresent(parameter) && !isAcceptable(m_table->row(parameter), realValue(parameter)))
            return false;
    }
    return true;
}

void XmlParameterSet::addErrors()
{
    for (const int parameter : m_table->reportOrder()) {
        if (isPresent(parameter) && !isAcceptable(m_table->row(parameter), realValue(parameter)))
            addSyntaxError(m_table->row(parameter).rangeError);
    }
}

void XmlParameterSet::resetParameters()
{
    m_parameters.clear();
    for (int parameter = 0; parameter < m_table->size(); ++parameter)
        m_parameters.push_back({m_table->row(parameter).defaultValue, false});
}

void XmlParameterSet::reset()
{
    resetParameters();
    XmlElement::reset();
}

} // namespace ArvXml
