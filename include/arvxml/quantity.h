#pragma once

/// \file
/// The bases of the measured quantities.

#include "arvxml/element.h"

namespace ArvXml {

struct QuantityRules;

/// The base of the measured quantities: an element whose text is one number, with the attribute
/// "version" and, for all but the SINAD, "unit".
///
/// A text that is no number is the reader error "Illegal value (must be numeric)" and leaves the
/// default in the element; an empty element leaves the value as it was. Setters store without
/// checking; numbers out of range and wrong versions are reported by isValid() and syntaxError(). The
/// decimals written are those of the example at each class: a number smaller than they can show is
/// written as zero.
class ARVXML_EXPORT XmlQuantity : public XmlElement, public XmlVersioned {
public:
    void processXml(QXmlStreamReader& reader, const QString& tagName) override;
    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    void reset() override;

protected:
    XmlQuantity(const QString& className, const QuantityRules& rules);

    void addErrors() override;

    /// The rules that the constructor got. An object does not keep them: lists of levels would take a third more
    /// memory.
    virtual const QuantityRules& rules() const = 0;

    double m_value;

private:
    /// Reads the unit from the start tag.
    virtual void readUnit(ElementReader& in);
    /// The unit to write; null for a quantity without one.
    virtual const QString* writtenUnit() const;
    /// Whether the quantity may have the unit it has.
    virtual bool isUnitValid() const;
    /// Takes a number as it stands on the wire.
    virtual void takeNumber(double number);
    /// The number as it stands on the wire.
    virtual double writtenNumber() const;
};

/// The base of the quantities whose unit is fixed: it is written, but not read.
class ARVXML_EXPORT XmlFixedUnitQuantity : public XmlQuantity {
public:
    /// The unit, always the same.
    const QString& unit() const;

protected:
    using XmlQuantity::XmlQuantity;

private:
    const QString* writtenUnit() const override;
};

/// The base of the quantities whose unit is read: the attribute "unit" is required ("Missing
/// attribute: "unit""), its text is stored whatever it is, and judged afterwards.
class ARVXML_EXPORT XmlReadUnitQuantity : public XmlQuantity {
public:
    /// The unit as it was read; on a new element the one that its class names.
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
