#pragma once

/// \file
/// The envelope of an order.

#include "arvxml/composite.h"

namespace ArvXml {

/// The envelope of an order, in command and response documents; both children are required, in the order shown. Valid
/// with both set ("Id not set.", "Sender not set."). Reading drops an id in another format and an empty sender without
/// an error, and keeps the existing one: reset an envelope before reading into it again.
/// \code{.xml}
/// <ORDER_DEF>
///     <ORDER_ID>ARV240305140709042</ORDER_ID>
///     <ORDER_SENDER>client-1</ORDER_SENDER>
/// </ORDER_DEF>
/// \endcode
class ARVXML_EXPORT XmlOrderDef : public XmlComposite {
public:
    XmlOrderDef();

    /// A new envelope, with "ARV" and the local date and time ("yyMMddhhmmsszzz") as id and the host name as sender.
    /// Two within one millisecond have the same id. Without a host name the sender is empty and the envelope invalid.
    static XmlOrderDef createValidInstance();

    /// The id, empty by default.
    const QString& orderId() const { return m_orderId; }
    /// Stores \a id and returns true if it is "ARV" and exactly 15 digits of any script; otherwise changes nothing.
    bool setOrderId(const QString& id);

    /// The sender's name, empty by default.
    const QString& orderSender() const { return m_orderSender; }
    /// Stores \a sender and returns true if it is not empty; otherwise changes nothing.
    bool setOrderSender(const QString& sender);

    bool isValid() const override;
    void reset() override;

protected:
    void addErrors() override;

private:
    const ContentModel& contentModel() const override;

    QString m_orderId;
    QString m_orderSender;
};

} // namespace ArvXml
