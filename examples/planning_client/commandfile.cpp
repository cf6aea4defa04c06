#include "planning_client/commandfile.h"

#include "common/document.h"

#include <arvxml/arvxml.h>

#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

using namespace ArvXml;

namespace {

/// \a document with \a envelope in the place of its own.
///
/// The commands are copied token by token. The elements that have read them are not asked to write them:
/// a signal path to create, a station's interlink, devices with four lists, and the parameters of some
/// propagation models are written in a way that the service's reader refuses.
QByteArray withEnvelope(const QByteArray& document, const XmlOrderDef& envelope)
{
    QByteArray copy;
    QXmlStreamReader reader(document);
    QXmlStreamWriter writer(&copy);
    writer.writeStartDocument();
    Document::goToRoot(reader);
    writer.writeCurrentToken(reader);
    envelope.produceXml(writer, QStringLiteral("ORDER_DEF"));
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("ORDER_DEF"))
            reader.skipCurrentElement();
        else
            writer.writeCurrentToken(reader);
    }
    return copy;
}

} // namespace

Order orderFrom(const QByteArray& document)
{
    Order order;
    XmlCmdRoot root;
    const Document::ReadError error = Document::read(document, root);
    const auto inLists = root.getAdministrativeCmds().size() + root.getCreateCmds().size() + root.getDeleteCmds().size()
        + root.getCalculationCmds().size();
    order.commandCount = static_cast<int>(inLists) + (root.getPropagationModelCmd() ? 1 : 0);
    if (error) {
        order.problem = error.withPlace();
        return order;
    }
    order.problem = Document::problems(root);
    if (order.problem.isEmpty() && order.commandCount == 0)
        order.problem = QStringLiteral("There is no command.");
    if (!order.problem.isEmpty())
        return order;

    const XmlOrderDef envelope = XmlOrderDef::createValidInstance();
    order.id = envelope.orderId();
    order.document = withEnvelope(document, envelope);
    return order;
}
