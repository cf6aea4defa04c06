#pragma once

/// \file
/// The response of the service to one command.

#include "arvxml/composite.h"
#include "arvxml/gridresult.h"
#include "arvxml/interlinkresult.h"
#include "arvxml/names.h"

#include <QtCore/QDateTime>

namespace ArvXml {

/// The response of the service to one command. The reference is followed by exactly one item: "ErrorMessage" (with
/// status "fault"), "EstimatedTime", "ArvVersion", "GridResult" or "InterlinkResult" (with status "ack").
/// \code{.xml}
/// <Automatic status="ack">
///     <CommandReference>42</CommandReference>
///     <EstimatedTime>2024-03-05T14:07:09</EstimatedTime>
/// </Automatic>
/// \endcode
/// An error message is written alone, otherwise an estimated time alone; without them version, grid result and
/// interlink result are all written if present, which is more than a reader accepts. Reading replaces an existing
/// result. A "GridResult" always ends the read with an error (see XmlGridResultType), but what was read is kept. Only
/// reset() removes a result; message, version and time are removed by setting an empty value.
///
/// isValid() and syntaxError() check the number of items, but differ: three items are valid but reported, no item is
/// invalid but not reported. The problems are "Status not defined.", "Has ErrorMessage but not status 'fault'", "Has
/// ErrorMessage but also EstimatedTime", "Must have status 'ack'", "If EstimatedTime given, no results allowed", "If
/// ArvVersion set, no results allowed" and "Only one result allowed".
class ARVXML_EXPORT XmlAutoRespType : public XmlComposite {
public:
    /// The outcomes of a command, with their texts.
    enum RespStatus : int {
        StatusUndefined = 0, ///< Not set.
        StatusFault = 1,     ///< "fault": the command failed.
        StatusAck = 2,       ///< "ack": the command is acknowledged.
    };

    XmlAutoRespType();
    /// Attribute "status"; other texts are the reader error "Illegal attribute value in "status"". An undefined status
    /// is written as "UNDEFINED", which no reader accepts.
    RespStatus status() const { return m_status; }
    void setStatus(RespStatus status) { m_status = status; }

    /// The reference of the answered command, tag "CommandReference".
    const XmlReferenceType& reference() const { return m_reference; }
    void setReference(const XmlReferenceType& reference) { m_reference = reference; }

    bool hasErrorMessage() const { return !m_errorMessage.isEmpty(); }
    /// The error message, tag "ErrorMessage"; empty if there is none.
    const QString& errorMessage() const { return m_errorMessage; }
    void setErrorMessage(const QString& message) { m_errorMessage = message; }

    bool hasEstimatedTime() const { return m_estimatedTime.isValid(); }
    /// The expected time of the result, tag "EstimatedTime", in ISO 8601, written to the second; invalid if there is
    /// none. Another format is the reader error "Illegal dateTime format".
    const QDateTime& estimatedTime() const { return m_estimatedTime; }
    void setEstimatedTime(const QDateTime& time) { m_estimatedTime = time; }

    bool hasArvVersion() const { return !m_arvVersion.isEmpty(); }
    /// The version of the service (the answer to a version query), tag "ArvVersion"; empty if there is none.
    const QString& arvVersion() const { return m_arvVersion; }
    void setArvVersion(const QString& version) { m_arvVersion = version; }

    bool hasGridResult() const { return m_gridResult.isPresent(); }
    /// The result of a calculation over an area, tag "GridResult"; null when absent.
    const XmlGridResultType* gridResult() const { return m_gridResult.get(); }
    void setGridResult(const XmlGridResultType& result) { m_gridResult.set(result); }

    bool hasInterlinkResult() const { return m_interlinkResult.isPresent(); }
    /// The result of interlink planning, tag "InterlinkResult"; null when absent.
    const XmlInterlinkResultType* interlinkResult() const { return m_interlinkResult.get(); }
    void setInterlinkResult(const XmlInterlinkResultType& result) { m_interlinkResult.set(result); }

    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    void reset() override;

protected:
    void addErrors() override;

private:
    const ContentModel& contentModel() const override;

    RespStatus m_status = StatusUndefined;
    XmlReferenceType m_reference;
    QDateTime m_estimatedTime;
    OptionalChild<XmlGridResultType> m_gridResult;
    OptionalChild<XmlInterlinkResultType> m_interlinkResult;
    QString m_errorMessage;
    QString m_arvVersion;
};

} // namespace ArvXml
