#pragma once

/// \file
/// The base of the elements whose content is one short text.

#include "arvxml/element.h"

namespace ArvXml {

struct TextRules;

/// The base of the elements whose content is one short text. An empty element leaves the text unchanged. Each piece of
/// text replaces the one before (a comment splits a text in two); spaces count.
class ARVXML_EXPORT XmlText : public XmlElement {
public:
    void processXml(QXmlStreamReader& reader, const QString& tagName) override;
    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    void reset() override;

protected:
    using XmlElement::XmlElement;

    void addErrors() override;

    QString m_text;

private:
    virtual const TextRules& rules() const = 0;
};

} // namespace ArvXml
