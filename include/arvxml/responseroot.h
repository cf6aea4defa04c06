#pragma once

/// \file
/// The document element of responses.

#include "arvxml/automaticresponse.h"
#include "arvxml/composite.h"
#include "arvxml/interactiveresponse.h"
#include "arvxml/orderdef.h"

#include <QtCore/QDateTime>

namespace ArvXml {

/// The document element of a response, with "Automatic" or "Interactive" according to its type. The caller chooses the
/// tag. All three attributes are required; the last one missing or wrong is the reader error "Illegal attribute value
/// in "NAME"". At most one response is read; the envelope may be repeated, the last one counts. Reading replaces both.
/// \code{.xml}
/// <Response type="automatic" final="false" timestamp="2024-03-05T14:07:09">
///     <ORDER_DEF>...</ORDER_DEF>
///     <Automatic status="ack">...</Automatic>
/// </Response>
/// \endcode
/// Setting one kind of content keeps the other. Type and content are compared on validation, not on reading. A new root
/// is invalid until it has a type and the content of that type ("Type automatic but no content", "Type automatic but
/// interactive content" etc.). A type outside the enumerators is not compared. An envelope must always be valid.
class ARVXML_EXPORT XmlRespRoot : public XmlComposite {
public:
    /// The types of responses, with their texts, which are matched exactly.
    enum RespType : int {
        RespUndefined = 0,   ///< Not set.
        RespInteractive = 1, ///< "interactive": an unsolicited result
        RespAutomatic = 2,   ///< "automatic": the response to a command
    };

    XmlRespRoot();

    /// Attribute "type". An undefined type ("Type not defined.") is written as "UNDEFINED", which no reader accepts.
    RespType type() const { return m_type; }
    void setType(RespType type) { m_type = type; }

    /// Whether this is the last response to the order, attribute "final"; true by default. Written as "true" or
    /// "false"; read case-insensitively, or as "1" or "0".
    bool isFinal() const { return m_final; }
    void setFinal(bool last) { m_final = last; }

    /// The time of the response, attribute "timestamp", in ISO 8601 to the second; the local time of construction by
    /// default. A text in another format is stored as an invalid time, which is written as an empty text.
    const QDateTime& timestamp() const { return m_timestamp; }
    void setTimestamp(const QDateTime& timestamp) { m_timestamp = timestamp; }

    bool hasOrderDef() const { return m_orderDef.isPresent(); }
    /// The envelope of the answered order, tag "ORDER_DEF"; null when absent. Read at any position, written first.
    const XmlOrderDef* orderDef() const { return m_orderDef.get(); }
    void setOrderDef(const XmlOrderDef& orderDef) { m_orderDef.set(orderDef); }

    bool hasAutoResp() const { return m_automatic.isPresent(); }
    /// The response to a command, tag "Automatic"; null when absent.
    const XmlAutoRespType* autoResp() const { return m_automatic.get(); }
    void setAutoResp(const XmlAutoRespType& response) { m_automatic.set(response); }

    bool hasInteractResp() const { return m_interactive.isPresent(); }
    /// An unsolicited result, tag "Interactive"; null when absent.
    const XmlInteractRespType* interactResp() const { return m_interactive.get(); }
    void setInteractResp(const XmlInteractRespType& response) { m_interactive.set(response); }

    bool isValid() const override;
    void reset() override;

protected:
    void addErrors() override;

private:
    const ContentModel& contentModel() const override;

    RespType m_type = RespUndefined;
    bool m_final = true;
    QDateTime m_timestamp;
    OptionalChild<XmlOrderDef> m_orderDef;
    OptionalChild<XmlAutoRespType> m_automatic;
    OptionalChild<XmlInteractRespType> m_interactive;
};

} // namespace ArvXml
