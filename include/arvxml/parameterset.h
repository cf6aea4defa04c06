#pragma once

/// \file
/// The base of the parameter sets of the propagation models.

#include "arvxml/element.h"

#include <vector>

namespace ArvXml {

class ParameterTable;

/// The base of the parameter sets of the propagation models: optional values, without attributes or version. Setters
/// store a value unchecked and flag it as present; only present values are written and validated. Getters always return
/// the value; reset() clears the flag. Unless its class says otherwise, reading resets the set first, accepts each
/// parameter at most once, in the order of the sample, and on an unreadable text ("Illegal K-factor value (must be
/// numeric)") clears the flag and leaves the default. Numbers out of range are read and reported later; NaN is not.
class ARVXML_EXPORT XmlParameterSet : public XmlElement {
public:
    ~XmlParameterSet() override = default;

    void processXml(QXmlStreamReader& reader, const QString& tagName) override;
    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    void reset() override;

protected:
    /// Constructs a set of these parameters, in the order of reading and writing, with their defaults.
    XmlParameterSet(const QString& className, const ParameterTable& table);
    // Protected: a set must not get the values of a set of another kind.
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
    /// Sets every value to its default and clears every flag.
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
