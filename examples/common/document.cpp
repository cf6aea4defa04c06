#include "common/document.h"

#include <arvxml/element.h>

#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

namespace Document {

bool goToRoot(QXmlStreamReader& reader)
{
    while (!reader.atEnd() && !reader.hasError()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            return true;
        case QXmlStreamReader::DTD:
            reader.raiseError(QStringLiteral("A document type declaration is not accepted."));
            return false;
        default:
            break; // the XML declaration, comments, processing instructions
        }
    }
    return false;
}

ReadError read(const QByteArray& document, ArvXml::IXmlElement& root)
{
    QXmlStreamReader reader(document);
    if (goToRoot(reader)) {
        // The protocol leaves the document element's tag to its writer, so any will do. The copy is
        // needed: the reader's own name changes as it reads on.
        const QString tag = reader.name().toString();
        root.processXml(reader, tag);
    }
    while (!reader.atEnd() && !reader.hasError())
        reader.readNext();

    if (!reader.hasError())
        return {};
    return {reader.errorString(), reader.lineNumber(), reader.columnNumber()};
}

QByteArray written(const ArvXml::IXmlElement& root, const QString& tag, bool indent)
{
    QByteArray document;
    QXmlStreamWriter writer(&document);
    writer.setAutoFormatting(indent);
    writer.writeStartDocument();
    root.produceXml(writer, tag);
    writer.writeEndDocument();
    return document;
}

} // namespace Document
