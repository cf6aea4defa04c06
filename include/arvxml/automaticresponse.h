#pragma once

/// \file
/// The service's answer to one command.

#include "arvxml/composite.h"
#include "arvxml/gridresult.h"
#include "arvxml/interlinkresult.h"
#include "arvxml/names.h"

#include <QtCore/QDateTime>

namespace ArvXml {

/// The service's answer to one command:
/// \code{.xml}
/// <Automatic status="ack">
///     <CommandReference>42</CommandReference>
///     <EstimatedTime>2024-03-05T14:07:09</EstimatedTime>
/// </Automatic>
/// \endcode
/// After the reference comes exactly one item: "ErrorMessage" (with status "fault"),
/// "EstimatedTime", "ArvVersion", "GridResult" or "InterlinkResult" (with status "ack").
///
/// An error message is written alone, else an estimated time alone; what else is held is dropped then.
/// Otherwise version, grid result and interlink result are written as far as they are held, more than
/// a reader accepts. isValid() and syntaxError() tell such objects, not always alike: three items are
/// valid though reported, and no item is invalid though not reported. The problems read "Status not
/// defined.", "Has ErrorMessage but not status 'fault'", "Has ErrorMessage but also EstimatedTime", "Must
/// have status 'ack'", "If EstimatedTime given, no results allowed", "If ArvVersion set, no results
/// allowed" and "Only one result allowed".
///
/// A "GridResult" always ends the read with an error, see XmlGridResultType; what was read is kept. Reading replaces a
/// result held.
///
/// A result held is removed by reset() only; message, version and time go away with an empty value.
class ARVXML_EXPORT XmlAutoRespType : public XmlComposite {
public:
    /// How the command fared, with the texts.
    enum RespStatus : int {
        StatusUndefined = 0, ///< Not told.
        StatusFault = 1,     ///< "fault": it failed.
        StatusAck = 2,       ///< "ack": it is acknowledged.
    };

    XmlAutoRespType();
    /// Attribute "status"; an unknown text is the reader error "Illegal attribute value in "status"".
    /// An undefined status is written as "UNDEFINED", which no reader accepts.
    RespStatus status() const { return m_status; }
    void setStatus(RespStatus status) { m_status = status; }

    /// The reference of the command answered, tag "CommandReference".
    const XmlReferenceType& reference() const { return m_reference; }
    void setReference(const XmlReferenceType& reference) { m_reference = reference; }

    bool hasErrorMessage() const { return !m_errorMessage.isEmpty(); }
    /// What went wrong, tag "ErrorMessage"; empty for nothing.
    const QString& errorMessage() const { return m_errorMessage; }
    void setErrorMessage(const QString& message) { m_errorMessage = message; }

    bool hasEstimatedTime() const { return m_estimatedTime.isValid(); }
    /// When the result is expected, tag "EstimatedTime"; invalid for no estimate, in ISO 8601 on the wire, written to
    /// the second. A text of another form is the reader error "Illegal dateTime format".
    const QDateTime& estimatedTime() const { return m_estimatedTime; }
    void setEstimatedTime(const QDateTime& time) { m_estimatedTime = time; }

    bool hasArvVersion() const { return !m_arvVersion.isEmpty(); }
    /// The service's version, the answer to a version query, tag "ArvVersion"; empty for none.
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
