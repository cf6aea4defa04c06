#include "arvxml/parameterset.h"

#include "core/elementreader.h"
#include "core/numbers.h"
#include "propmodels/parametertable.h"

#include <QtCore/QXmlStreamWriter>

#include <algorithm>

namespace ArvXml {

XmlParameterSet& XmlParameterSet::operator=(XmlParameterSet&& other) noexcept
{
    XmlElement::operator=(other);
    m_parameters.swap(other.m_parameters);
    return *this;
}

void XmlParameterSet::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    const ParameterTable& table = this->table();
    if (table.isResetBeforeReading())
        reset();
    ElementReader in(*this, reader, tagName, compositeWording);

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
    const ParameterRow& row = table().row(parameter);
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

    setValue(parameter, ok ? value : row.afterBadText);
    if (!ok) {
        at(row.clearedByBadText.value_or(parameter)).isPresent = false;
        in.fail(row.readError);
    }
}

QString XmlParameterSet::writtenText(int parameter) const
{
    const ParameterRow& row = table().row(parameter);
    switch (row.kind) {
    case ParameterRow::Real:
        return numberText(realValue(parameter), NumberFormat{'f', row.decimals});
    case ParameterRow::Integer:
        return numberText(integerValue(parameter));
    case ParameterRow::Choice:
        break;
    }
    const int value = integerValue(row.textChosenBy.value_or(parameter));
    const bool hasText = value >= 0 && value < static_cast<int>(row.texts.size());
    return row.texts[static_cast<std::size_t>(hasText ? value : static_cast<int>(row.byDefault))];
}

void XmlParameterSet::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeStartElement(tagName);
    for (int parameter = 0; parameter < table().size(); ++parameter) {
        const QString& tag = table().row(parameter).writtenTag;
        if (isPresent(parameter))
            writer.writeTextElement(tag.isNull() ? tagName : tag, writtenText(parameter));
    }
    writer.writeEndElement();
}

bool XmlParameterSet::isParameterValid(int parameter) const
{
    const ParameterRow& row = table().row(parameter);
    const double value = realValue(parameter);
    if (row.kind == ParameterRow::Choice)
        return !row.zeroIsUndefined || value != 0.0;
    return !(value < row.min || value > row.max); // NaN passes
}

bool XmlParameterSet::isValid() const
{
    for (int parameter = 0; parameter < table().size(); ++parameter) {
        if (isPresent(parameter) && !isParameterValid(parameter))
            return false;
    }
    return true;
}

void XmlParameterSet::addErrors()
{
    for (const int parameter : table().reportOrder()) {
        if (isPresent(parameter) && !isParameterValid(parameter))
            addSyntaxError(table().row(parameter).rangeError);
    }
}

void XmlParameterSet::resetParameters()
{
    m_parameters.clear();
    for (int parameter = 0; parameter < table().size(); ++parameter)
        m_parameters.push_back({table().row(parameter).byDefault, false});
}

void XmlParameterSet::reset()
{
    resetParameters();
    XmlElement::reset();
}

} // namespace ArvXml
