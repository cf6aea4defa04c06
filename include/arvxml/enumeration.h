#pragma once

/// \file
/// The base of the elements whose content is one of several texts.

#include "arvxml/element.h"

namespace ArvXml {

struct EnumerationRules;

/// The base of the elements whose content is one of several texts. Value 0 (undefined) is never read, invalid, and
/// written as "UNDEFINED"; unlisted values are written the same way but valid. Texts are matched exactly, including
/// case and spaces. Each piece of text is read on its own (comments split it); without text the value is kept.
class ARVXML_EXPORT XmlEnumeration : public XmlElement {
public:
    void processXml(QXmlStreamReader& reader, const QString& tagName) override;
    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    void reset() override;

protected:
    using XmlElement::XmlElement;

    void addErrors() override;

    int m_value = 0;

private:
    virtual const EnumerationRules& rules() const = 0;
};

} // namespace ArvXml
