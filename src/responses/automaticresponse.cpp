#include "arvxml/automaticresponse.h"

#include "core/contentmodel.h"
#include "core/enumerationrules.h"
#include "core/times.h"

namespace ArvXml {

namespace {

constexpr char referenceTag[] = "CommandReference";
constexpr char errorTag[] = "ErrorMessage";
constexpr char timeTag[] = "EstimatedTime";
constexpr char versionTag[] = "ArvVersion";
constexpr char gridTag[] = "GridResult";
constexpr char interlinkTag[] = "InterlinkResult";

QString statusAttribute()
{
    return QStringLiteral("status");
}

const EnumerationTexts& statusTexts()
{
    static const NeverDestroyed<EnumerationTexts> texts = EnumerationTexts({"fault", "ack"});
    return texts;
}

void readStatus(XmlElementBase& owner, ElementReader& in)
{
    if (!in.requireStartTag())
        return;
    auto& response = static_cast<XmlAutoRespType&>(owner);
    const int status = statusTexts().value(in.attribute(statusAttribute()));
    response.setStatus(static_cast<XmlAutoRespType::RespStatus>(status));
    if (status == XmlAutoRespType::StatusUndefined)
        in.refuseAttribute(statusAttribute());
}

void writeStatus(const XmlElementBase& owner, QXmlStreamWriter& writer)
{
    const auto& response = static_cast<const XmlAutoRespType&>(owner);
    writer.writeAttribute(statusAttribute(), statusTexts().text(response.status()));
}

void takeEstimatedTime(XmlAutoRespType& response, const QString& text, ElementReader& in)
{
    response.setEstimatedTime(toDateTime(text));
    if (!response.hasEstimatedTime())
        in.fail(QStringLiteral("Illegal dateTime format"));
}

} // namespace

XmlAutoRespType::XmlAutoRespType()
    : XmlComposite(QStringLiteral("XmlAutoRespType"))
{
}

const ContentModel& XmlAutoRespType::contentModel() const
{
    using Self = XmlAutoRespType;
    static const NeverDestroyed<ContentModel> model =
        ContentModel(compositeWording)
            .sequence({
                required(referenceTag, child<&Self::m_reference>()),
                oneOf({
                    {errorTag, takenBy<Self, &Self::setErrorMessage>()},
                    {timeTag, as(ContentKind::Time, takenBy<Self, takeEstimatedTime>())},
                    {gridTag, renewed<&Self::m_gridResult>()},
                    {interlinkTag, renewed<&Self::m_interlinkResult>()},
                    {versionTag, takenBy<Self, &Self::setArvVersion>()},
                }),
            })
            .attributes(readStatus, writeStatus);
    return model;
}

void XmlAutoRespType::produceXml(QXmlStreamWriter& writer, const QString& tagName) const
{
    writer.writeStartElement(tagName);
    writeAttributes(writer);
    m_reference.produceXml(writer, QString::fromLatin1(referenceTag));
    if (hasErrorMessage()) {
        writer.writeTextElement(QString::fromLatin1(errorTag), m_errorMessage); // and nothing more
    } else if (hasEstimatedTime()) {
        writer.writeTextElement(QString::fromLatin1(timeTag), isoText(m_estimatedTime)); // likewise
    } else {
        if (hasArvVersion())
            writer.writeTextElement(QString::fromLatin1(versionTag), m_arvVersion);
        writeMember(m_gridResult, writer, QString::fromLatin1(gridTag));
        writeMember(m_interlinkResult, writer, QString::fromLatin1(interlinkTag));
    }
    writer.writeEndElement();
}

bool XmlAutoRespType::isValid() const
{
    if (m_status == StatusUndefined || !XmlComposite::isValid())
        return false;
    if (hasErrorMessage())
        return m_status == StatusFault && !hasEstimatedTime();
    const int items = int(hasArvVersion()) + int(hasEstimatedTime()) + int(hasGridResult()) + int(hasInterlinkResult());
    return m_status == StatusAck && items % 2 == 1; // one item, but three pass as well
}

void XmlAutoRespType::addErrors()
{
    const bool hasResult = hasGridResult() || hasInterlinkResult();

    if (m_status == StatusUndefined)
        addSyntaxError(QStringLiteral("Status not defined."));
    addSyntaxError(memberError(m_reference));
    if (hasErrorMessage()) {
        if (m_status != StatusFault)
            addSyntaxError(QStringLiteral("Has ErrorMessage but not status 'fault'"));
        if (hasEstimatedTime())
            addSyntaxError(QStringLiteral("Has ErrorMessage but also EstimatedTime"));
    } else {
        if (m_status != StatusAck)
            addSyntaxError(QStringLiteral("Must have status 'ack'"));
        if (hasEstimatedTime() && (hasArvVersion() || hasResult))
            addSyntaxError(QStringLiteral("If EstimatedTime given, no results allowed"));
        else if (hasArvVersion() && hasResult)
            addSyntaxError(QStringLiteral("If ArvVersion set, no results allowed"));
        else if (hasGridResult() && hasInterlinkResult())
            addSyntaxError(QStringLiteral("Only one result allowed"));
    }
    addSyntaxError(memberError(m_gridResult));
    addSyntaxError(memberError(m_interlinkResult));
}

void XmlAutoRespType::reset()
{
    m_status = StatusUndefined;
    m_estimatedTime = QDateTime();
    m_errorMessage.clear();
    m_arvVersion.clear();
    XmlComposite::reset();
}

} // namespace ArvXml
