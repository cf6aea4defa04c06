#pragma once

/// \file
/// The bases of the measured quantities.

#include "arvxml/element.h"

namespace ArvXml {

struct QuantityRules;

/// The base of the measured quantities: one number as text, with the attribute "version" and, except for the SINAD,
/// "unit". A text that is not a number is the reader error "Illegal value (must be numeric)" and leaves the default; an
/// empty element keeps the value. Setters do not check; isValid() and syntaxError() report numbers out of range and
/// wrong versions. The decimals written are those of the sample of each class; smaller numbers are written as zero.
class ARVXML_EXPORT XmlQuantity : public XmlElement, public XmlVersioned {
public:
    void processXml(QXmlStreamReader& reader, const QString& tagName) override;
    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    void reset() override;

protected:
    XmlQuantity(const QString& className, const QuantityRules& rules);

    void addErrors() override;

    /// The rules passed to the constructor. They are not stored: lists of levels would take a sixth more memory.
    virtual const QuantityRules& rules() const = 0;

    double m_value;

private:
    /// Reads the unit from the start tag.
    virtual void readUnit(ElementReader& in);
    /// The unit to write; null for a quantity without one.
    virtual const QString* writtenUnit() const;
    /// Whether the unit is valid.
    virtual bool isUnitValid() const;
    /// Stores a number as read from the wire.
    virtual void takeNumber(double number);
    /// The number as written to the wire.
    virtual double writtenNumber() const;
};

/// The base of the quantities with a fixed unit, which is written but not read.
class ARVXML_EXPORT XmlFixedUnitQuantity : public XmlQuantity {
public:
    /// The unit, always the same.
    const QString& unit() const;

protected:
    using XmlQuantity::XmlQuantity;

private:
    const QString* writtenUnit() const override;
};

/// The base of quantities with a required attribute "unit" ("Missing attribute: "unit""), validated only after reading.
class ARVXML_EXPORT XmlReadUnitQuantity : public XmlQuantity {
public:
    /// The unit as read; for a new element the default of its class.
    const QString& unit() const { return m_unit; }
    void reset() override;

protected:
    XmlReadUnitQuantity(const QString& className, const QuantityRules& rules);

    QString m_unit;

private:
    void readUnit(ElementReader& in) override;
    const QString* writtenUnit() const override;
    bool isUnitValid() const override;
};

} // namespace ArvXml
