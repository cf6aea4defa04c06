#pragma once

/// \file
/// The envelope of an order.

#include "arvxml/composite.h"

namespace ArvXml {

/// The envelope of an order, in command and response documents; both children are required, in this order:
/// \code{.xml}
/// <ORDER_DEF>
///     <ORDER_ID>ARV240305140709042</ORDER_ID>
///     <ORDER_SENDER>client-1</ORDER_SENDER>
/// </ORDER_DEF>
/// \endcode
/// Valid with both set ("Id not set.", "Sender not set."). An id of another form is dropped while
/// reading, without an error; so is an empty sender. What was held before then stays: reset an envelope
/// before reading into it again.
class ARVXML_EXPORT XmlOrderDef : public XmlComposite {
public:
    XmlOrderDef();

    /// A fresh envelope: "ARV" with the local date and time as id ("yyMMddhhmmsszzz", to the
    /// millisecond), the name of this host as sender. Two made within one millisecond have the same id.
    /// Without a host name the sender stays empty and the envelope is not valid.
    static XmlOrderDef createValidInstance();

    /// The id, empty by default.
    const QString& orderId() const { return m_orderId; }
    /// Stores \a id and returns true if it is "ARV" and exactly 15 digits, of whatever script; otherwise
    /// changes nothing.
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
