#include "common/document.h"

#include <arvxml/commandroot.h>
#include <arvxml/element.h>

#include <QtCore/QStringList>
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

QString ReadError::withPlace() const
{
    const QString place = QStringLiteral("(line %1, column %2)").arg(line).arg(column);
    if (text.startsWith(QLatin1String("in ")) && text.contains(place))
        return text;
    return QStringLiteral("at line %1, column %2: %3").arg(QString::number(line), QString::number(column), text);
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

QString problems(ArvXml::IXmlElement& root)
{
    QStringList texts;
    const auto judge = [&texts](ArvXml::IXmlElement& element) {
        if (element.isValid())
            return;
        // Some values that are not acceptable have no message, such as a frequency that is not a number.
        const QString text = element.syntaxError();
        texts.append(text.isEmpty() ? QStringLiteral("Some value is not acceptable.") : text);
    };
    judge(root);
    if (const auto* commands = dynamic_cast<const ArvXml::XmlCmdRoot*>(&root)) {
        for (ArvXml::XmlCmdDelete* command : commands->getDeleteCmds())
            judge(*command);
    }
    return texts.join(QLatin1Char('\n'));
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
