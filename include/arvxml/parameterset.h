#pragma once

/// \file
/// What the parameter sets of the propagation models have in common.

#include "arvxml/element.h"

#include <vector>

namespace ArvXml {

class ParameterTable;

/// The base of the parameter sets of the propagation models: a row of optional values.
///
/// Each value has a flag that tells whether it is present; only present values are written and judged.
/// Setters store the value without checking and set the flag; getters return the value whether present
/// or not. A flag is cleared by reset(), and by a text that cannot be read ("Illegal K-factor value (must be
/// numeric)"); the value is then the default, where its class says nothing else. Numbers out of range are
/// stored while reading, and reported afterwards. A set has no attributes and no version.
class ARVXML_EXPORT XmlParameterSet : public XmlElement {
public:
    ~XmlParameterSet() override = default;

    void processXml(QXmlStreamReader& reader, const QString& tagName) override;
    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    void reset() override;

protected:
    /// A set with these parameters, in the order of reading and writing; the values are their defaults.
    XmlParameterSet(const QString& className, const ParameterTable& table);
    // Protected: a set is no good with the values of a set of another kind.
    XmlParameterSet(const XmlParameterSet&) = default;
    XmlParameterSet& operator=(const XmlParameterSet&) = default;
    /// Exchanges all values and flags, so that both sides keep a value for each parameter.
    XmlParameterSet& operator=(XmlParameterSet&& other) noexcept;

    void addErrors() override;

    double realValue(int parameter) const { return at(parameter).value; }
    int integerValue(int parameter) const { return static_cast<int>(at(parameter).value); }
    template <typename Enumeration>
    Enumeration choiceValue(int parameter) const
    {
        return static_cast<Enumeration>(integerValue(parameter));
    }
    bool isPresent(int parameter) const { return at(parameter).isPresent; }
    void setValue(int parameter, double value) { at(parameter) = {value, true}; }
    /// Puts every value to its default and clears every flag.
    void resetParameters();

private:
    struct Parameter {
        double value;
        bool isPresent;
    };

    const Parameter& at(int parameter) const { return m_parameters[static_cast<std::size_t>(parameter)]; }
    Parameter& at(int parameter) { return m_parameters[static_cast<std::size_t>(parameter)]; }
    void readParameter(int parameter, ElementReader& in);

    const ParameterTable* m_table;
    std::vector<Parameter> m_parameters;
};

} // namespace ArvXml
