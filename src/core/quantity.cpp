#include "arvxml/quantity.h"

#include "core/elementreader.h"
#include "core/quantityrules.h"
#include "core/versions.h"

#include <QtCore/QXmlStreamWriter>

#include <cmath>

namespace ArvXml {

XmlQuantity::XmlQuantity(const QString& className, const QuantityRules& rules)
    : XmlElement(className)
    , m_value(rules.defaultValue)
{
}

void XmlQuantity::processXml(QXmlStreamReader& reader, const QString& tagName)
{
    const QuantityRules& rules = this->rules();
    ElementReader in(classname(), reader, tagName, leafWording);
    if (readVersion(in, m_version))
        readUnit(in);
    in.readLeaf([&](const auto& text) {
        bool ok = false;
        const double number = rules.isInteger ? toInteger(text, &ok) : toReal(text, &ok);
        if (ok) {
            takeNumber(number);
        } else {
            in.fail(QStringLiteral("Illegal value (must be numeric)"));
            m_value = rules.defaultValue;
        }
    });
}

void XmlQuantity::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeStartElement(tagName);
    writeVersion(writer, m_version);
    if (const QString* unit = writtenUnit())
        writer.writeAttribute(unitAttribute(), *unit);
    writer.writeCharacters(numberText(writtenNumber(), rules().format));
    writer.writeEndElement();
}

bool XmlQuantity::isValid() const
{
    return supportsVersion() && rules().accepts(m_value) && isUnitValid();
}

void XmlQuantity::addErrors()
{
    addSyntaxError(versionError(m_version));
    if (!rules().accepts(m_value) && (rules().reportsNan || !std::isnan(m_value)))
        addSyntaxError(QString::fromLatin1(rules().valueError));
    if (!isUnitValid())
        addSyntaxError(QString::fromLatin1(rules().unitError));
}

void XmlQuantity::reset()
{
    m_value = rules().defaultValue;
    m_version = supportedVersion();
    XmlElement::reset();
}

void XmlQuantity::readUnit(ElementReader&) { }

const QString* XmlQuantity::writtenUnit() const
{
    return nullptr;
}

bool XmlQuantity::isUnitValid() const
{
    return true;
}

void XmlQuantity::takeNumber(double number)
{
    m_value = number;
}

double XmlQuantity::writtenNumber() const
{
    return m_value;
}

const QString& XmlFixedUnitQuantity::unit() const
{
    return rules().unit;
}

const QString* XmlFixedUnitQuantity::writtenUnit() const
{
    return &unit();
}

XmlReadUnitQuantity::XmlReadUnitQuantity(const QString& className, const QuantityRules& rules)
    : XmlQuantity(className, rules)
    , m_unit(rules.unit)
{
}

void XmlReadUnitQuantity::reset()
{
    m_unit = rules().unit;
    XmlQuantity::reset();
}

void XmlReadUnitQuantity::readUnit(ElementReader& in)
{
    assignUnlessEmpty(in.requireAttribute(unitAttribute()), m_unit);
}

const QString* XmlReadUnitQuantity::writtenUnit() const
{
    return &m_unit;
}

bool XmlReadUnitQuantity::isUnitValid() const
{
    return isSameText(m_unit, rules().unit);
}

} // namespace ArvXml
