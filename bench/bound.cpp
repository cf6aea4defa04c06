#include "bound.h"

#include <arvxml/commandroot.h>
#include <arvxml/responseroot.h>
#include <arvxml/snapshot.h>

#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

namespace Bench {

using namespace ArvXml;

std::unique_ptr<IXmlElement> newTree(Root root)
{
    switch (root) {
    case Root::Commands:
        return std::make_unique<XmlCmdRoot>();
    case Root::Snapshot:
        return std::make_unique<XmlArvBtType>();
    case Root::Response:
        return std::make_unique<XmlRespRoot>();
    }
    Q_UNREACHABLE();
}

std::unique_ptr<IXmlElement> copyOf(const IXmlElement& tree, Root root)
{
    switch (root) {
    case Root::Commands:
        return std::make_unique<XmlCmdRoot>(static_cast<const XmlCmdRoot&>(tree));
    case Root::Snapshot:
        return std::make_unique<XmlArvBtType>(static_cast<const XmlArvBtType&>(tree));
    case Root::Response:
        return std::make_unique<XmlRespRoot>(static_cast<const XmlRespRoot&>(tree));
    }
    Q_UNREACHABLE();
}

QString tagOf(Root root)
{
    switch (root) {
    case Root::Commands:
        return QStringLiteral("Commands");
    case Root::Snapshot:
        return QStringLiteral("Snapshot");
    case Root::Response:
        return QStringLiteral("Response");
    }
    Q_UNREACHABLE();
}

QString readDocument(const Document& document, IXmlElement& tree)
{
    QXmlStreamReader reader(document.text);
    reader.readNextStartElement();
    tree.processXml(reader, reader.name().toString());
    while (!reader.atEnd())
        reader.readNext();
    return reader.errorString();
}

QByteArray writeDocument(const IXmlElement& tree, Root root, int reserve)
{
    QByteArray text;
    text.reserve(reserve);
    QXmlStreamWriter writer(&text);
    writer.writeStartDocument();
    tree.produceXml(writer, tagOf(root));
    writer.writeEndDocument();
    return text;
}

Trees readAll(const std::vector<Document>& documents)
{
    Trees trees;
    trees.reserve(documents.size());
    for (const Document& document : documents) {
        trees.push_back(newTree(document.root));
        const QString error = readDocument(document, *trees.back());
        if (!error.isEmpty())
            qFatal("A generated document cannot be read: %s", qPrintable(error));
    }
    return trees;
}

} // namespace Bench
