#include "arvxml/responseroot.h"

#include "core/contentmodel.h"
#include "core/enumerationrules.h"
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

/// Whether \a text says whether a response is the last one; if so, the response takes it.
bool takeFinal(XmlRespRoot& response, const QString& text)
{
    const auto is = [&text](QLatin1String word) { return text.compare(word, Qt::CaseInsensitive) == 0; };
    const bool isTrue = is(QLatin1String("TRUE")) || text == QLatin1String("1");
    const bool isFalse = is(QLatin1String("FALSE")) || text == QLatin1String("0");
    if (isTrue || isFalse)
        response.setFinal(isTrue);
    return isTrue || isFalse;
}

void readAttributes(XmlElementBase& owner, ElementReader& in)
{
    if (!in.requireStartTag())
        return;
    auto& response = static_cast<XmlRespRoot&>(owner);
    response.setType(static_cast<XmlRespRoot::RespType>(responseTypeTexts().value(in.attribute(typeAttribute()))));
    if (response.type() == XmlRespRoot::RespUndefined)
        in.refuseAttribute(typeAttribute());
    if (!takeFinal(response, detachedCopy(in.attribute(finalAttribute()))))
        in.refuseAttribute(finalAttribute());
    response.setTimestamp(toDateTime(detachedCopy(in.attribute(timestampAttribute()))));
    if (!response.timestamp().isValid())
        in.refuseAttribute(timestampAttribute());
}

void writeAttributes(const XmlElementBase& owner, QXmlStreamWriter& writer)
{
    const auto& response = static_cast<const XmlRespRoot&>(owner);
    writer.writeAttribute(typeAttribute(), responseTypeTexts().text(response.type()));
    writer.writeAttribute(finalAttribute(), response.isFinal() ? QStringLiteral("true") : QStringLiteral("false"));
    writer.writeAttribute(timestampAttribute(), isoText(response.timestamp()));
}

} // namespace

XmlRespRoot::XmlRespRoot()
    : XmlComposite(QStringLiteral("XmlRespRoot"))
    , m_timestamp(QDateTime::currentDateTime())
{
}

const ContentModel& XmlRespRoot::contentModel() const
{
    using Self = XmlRespRoot;
    static const NeverDestroyed<ContentModel> model = ContentModel(compositeWording)
                                                          .attributes(readAttributes, ArvXml::writeAttributes)
                                                          .anywhere("ORDER_DEF", renewed<&Self::m_orderDef>())
                                                          .sequence({optional(oneOf({
                                                              {"Automatic", renewed<&Self::m_automatic>()},
                                                              {"Interactive", renewed<&Self::m_interactive>()},
                                                          }))});
    return model;
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
