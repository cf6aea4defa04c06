#include "arvxml/orderdef.h"

#include "core/contentmodel.h"
#include "core/times.h"

#include <QtCore/QDateTime>
#include <QtNetwork/QHostInfo>

#include <algorithm>

namespace ArvXml {

namespace {

constexpr QLatin1String idPrefix("ARV", 3);
constexpr int idDigits = 15;

bool isOrderId(const QString& text)
{
    return text.size() == idPrefix.size() + idDigits && text.startsWith(idPrefix)
        && std::all_of(text.cbegin() + idPrefix.size(), text.cend(), [](QChar c) { return c.isDigit(); });
}

} // namespace

XmlOrderDef::XmlOrderDef()
    : XmlComposite(QStringLiteral("XmlOrderDef"))
{
}

const ContentModel& XmlOrderDef::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(compositeWording)
            .sequence({
                required("ORDER_ID", text<XmlOrderDef, &XmlOrderDef::setOrderId, &XmlOrderDef::orderId>()),
                required("ORDER_SENDER", text<XmlOrderDef, &XmlOrderDef::setOrderSender, &XmlOrderDef::orderSender>()),
            });
    return model;
}

XmlOrderDef XmlOrderDef::createValidInstance()
{
    XmlOrderDef order;
    order.setOrderId(idPrefix + timeDigits(QDateTime::currentDateTime()));
    order.setOrderSender(QHostInfo::localHostName());
    return order;
}

bool XmlOrderDef::setOrderId(const QString& id)
{
    const bool accepted = isOrderId(id);
    if (accepted)
        m_orderId = id;
    return accepted;
}

bool XmlOrderDef::setOrderSender(const QString& sender)
{
    const bool accepted = !sender.isEmpty();
    if (accepted)
        m_orderSender = sender;
    return accepted;
}

bool XmlOrderDef::isValid() const
{
    return !m_orderId.isEmpty() && !m_orderSender.isEmpty();
}

void XmlOrderDef::addErrors()
{
    if (m_orderId.isEmpty())
        addSyntaxError(QStringLiteral("Id not set."));
    if (m_orderSender.isEmpty())
        addSyntaxError(QStringLiteral("Sender not set."));
}

void XmlOrderDef::reset()
{
    m_orderId.clear();
    m_orderSender.clear();
    XmlComposite::reset();
}

} // namespace ArvXml
