#pragma once

/// \file
/// The base of the elements whose content is one text out of a list.

#include "arvxml/element.h"

namespace ArvXml {

struct EnumerationRules;

/// The base of the elements whose content is one text out of a list.
///
/// Value 0 means that none is chosen; it is never read, makes the element invalid, and is written as "UNDEFINED", as
/// is every value outside the list, which is valid all the same. Texts are compared exactly: case and blanks count.
/// Each piece of text is taken for itself (a comment cuts a text in two); an element without text keeps its value.
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
