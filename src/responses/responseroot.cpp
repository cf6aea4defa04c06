#include "arvxml/responseroot.h"

#include "core/elementform.h"
#include "core/enumeration.h"
#include "core/times.h"

namespace ArvXml {

namespace {

QString finalAttribute()
{
    return QStringLiteral("final");
}

QString timestampAttribute()
{
    return QStringLiteral("timestamp");
}

const EnumerationTexts& responseTypeTexts()
{
    static const NeverDestroyed<EnumerationTexts> texts = EnumerationTexts({"interactive", "automatic"});
    return texts;
}

} // namespace

XmlRespRoot::XmlRespRoot()
    : XmlComposite(QStringLiteral("XmlRespRoot"))
    , m_timestamp(QDateTime::currentDateTime())
{
}

const ElementForm& XmlRespRoot::form() const
{
    using Self = XmlRespRoot;
    static const NeverDestroyed<ElementForm> form = ElementForm(compositeWording)
                                                        .anywhere("ORDER_DEF", renewed<&Self::m_orderDef>())
                                                        .sequence({optional(oneOf({
                                                            {"Automatic", renewed<&Self::m_automatic>()},
                                                            {"Interactive", renewed<&Self::m_interactive>()},
                                                        }))});
    return form;
}

quint32 XmlRespRoot::openElement(ElementReader& in)
{
    if (!in.requireStartTag())
        return 0;
    m_type = static_cast<RespType>(responseTypeTexts().value(in.attribute(typeAttribute())));
    if (m_type == RespUndefined)
        in.refuseAttribute(typeAttribute());
    if (!takeFinal(keptText(in.attribute(finalAttribute()))))
        in.refuseAttribute(finalAttribute());
    setTimestamp(toDateTime(keptText(in.attribute(timestampAttribute()))));
    if (!m_timestamp.isValid())
        in.refuseAttribute(timestampAttribute());
    return 0;
}

bool XmlRespRoot::takeFinal(const QString& text)
{
    const auto is = [&text](QLatin1String word) { return text.compare(word, Qt::CaseInsensitive) == 0; };
    if (is(QLatin1String("TRUE")) || text == QLatin1String("1"))
        m_final = true;
    else if (is(QLatin1String("FALSE")) || text == QLatin1String("0"))
        m_final = false;
    else
        return false;
    return true;
}

void XmlRespRoot::writeAttributes(QXmlStreamWriter& writer) const
{
    writer.writeAttribute(typeAttribute(), responseTypeTexts().text(m_type));
    writer.writeAttribute(finalAttribute(), m_final ? QStringLiteral("true") : QStringLiteral("false"));
    writer.writeAttribute(timestampAttribute(), isoText(m_timestamp));
}

bool XmlRespRoot::isValid() const
{
    if (!isMemberValid(m_orderDef))
        return false;
    switch (m_type) {
    case RespUndefined:
        return false;
    case RespAutomatic:
        return hasAutoResp() && !hasInteractResp() && m_automatic.get()->isValid();
    case RespInteractive:
        return hasInteractResp() && !hasAutoResp() && m_interactive.get()->isValid();
    }
    return true; // a type beyond the known ones is not checked against the content
}

void XmlRespRoot::addErrors()
{
    if (m_type == RespUndefined)
        addSyntaxError(QStringLiteral("Type not defined."));
    else if (m_type == RespAutomatic && !hasAutoResp())
        addSyntaxError(QStringLiteral("Type automatic but no content"));
    else if (m_type == RespAutomatic && hasInteractResp())
        addSyntaxError(QStringLiteral("Type automatic but interactive content"));
    else if (m_type == RespAutomatic)
        addSyntaxError(memberError(m_automatic));
    else if (m_type == RespInteractive && !hasInteractResp())
        addSyntaxError(QStringLiteral("Type interactive but no content"));
    else if (m_type == RespInteractive && hasAutoResp())
        addSyntaxError(QStringLiteral("Type interactive but automatic content"));
    else if (m_type == RespInteractive)
        addSyntaxError(memberError(m_interactive));
    addSyntaxError(memberError(m_orderDef));
}

void XmlRespRoot::reset()
{
    m_type = RespUndefined;
    m_final = true;
    m_timestamp = QDateTime::currentDateTime();
    XmlComposite::reset();
}

} // namespace ArvXml
