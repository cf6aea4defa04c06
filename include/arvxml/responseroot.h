#pragma once

/// \file
/// The document element of responses.

#include "arvxml/automaticresponse.h"
#include "arvxml/composite.h"
#include "arvxml/interactiveresponse.h"
#include "arvxml/orderdef.h"

#include <QtCore/QDateTime>

namespace ArvXml {

/// The document element of a response, with "Automatic" or "Interactive", as its type is. The caller chooses its tag.
/// \code{.xml}
/// <Response type="automatic" final="false" timestamp="2024-03-05T14:07:09">
///     <ORDER_DEF>...</ORDER_DEF>
///     <Automatic status="ack">...</Automatic>
/// </Response>
/// \endcode
/// All three attributes are required; each that is missing or wrong is the reader error "Illegal
/// attribute value in "NAME"", and of several the last one is reported. Whether type and content agree
/// is not seen while reading, but judged. Setting one kind of content leaves the other. A new root is
/// invalid until it has a type and the content of that type ("Type automatic but no content", "Type
/// automatic but interactive content", and the like). A type beyond the known ones is not judged against
/// the content; an envelope must be valid in any case.
///
/// At most one answer is read; the envelope may be repeated, and the last one counts. Reading replaces what is held of
/// both; what the document does not mention stays.
class ARVXML_EXPORT XmlRespRoot : public XmlComposite {
public:
    /// The kinds of responses, with their texts, read exactly so.
    enum RespType : int {
        RespUndefined = 0,   ///< Not told.
        RespInteractive = 1, ///< "interactive": a result that the service delivers on its own
        RespAutomatic = 2,   ///< "automatic": the answer to a command
    };

    XmlRespRoot();

    /// Attribute "type". An undefined type is written as "UNDEFINED", which no reader accepts ("Type not defined.").
    RespType type() const { return m_type; }
    void setType(RespType type) { m_type = type; }

    /// Whether this is the last response to the order, attribute "final"; true by default. Written as "true" or
    /// "false", read in any letter case, or as "1" or "0".
    bool isFinal() const { return m_final; }
    void setFinal(bool last) { m_final = last; }

    /// When the response was made, attribute "timestamp": in ISO 8601 on the wire, to the second; the local time of
    /// construction by default. A text of another form is stored as an invalid time, and an invalid time
    /// is written as an empty text.
    const QDateTime& timestamp() const { return m_timestamp; }
    void setTimestamp(const QDateTime& timestamp) { m_timestamp = timestamp; }

    bool hasOrderDef() const { return m_orderDef.isPresent(); }
    /// The envelope of the order answered, tag "ORDER_DEF"; null when absent. Read at any place, written first.
    const XmlOrderDef* orderDef() const { return m_orderDef.get(); }
    void setOrderDef(const XmlOrderDef& orderDef) { m_orderDef.set(orderDef); }

    bool hasAutoResp() const { return m_automatic.isPresent(); }
    /// The answer to a command, tag "Automatic"; null when absent.
    const XmlAutoRespType* autoResp() const { return m_automatic.get(); }
    void setAutoResp(const XmlAutoRespType& response) { m_automatic.set(response); }

    bool hasInteractResp() const { return m_interactive.isPresent(); }
    /// A result delivered on the service's own account, tag "Interactive"; null when absent.
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
