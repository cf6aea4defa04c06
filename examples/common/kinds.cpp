#include "common/kinds.h"

#include "common/document.h"

#include <arvxml/commandroot.h>
#include <arvxml/responseroot.h>
#include <arvxml/snapshot.h>

#include <QtCore/QFile>
#include <QtCore/QStringList>
#include <QtCore/QXmlStreamReader>

#include <algorithm>
#include <vector>

using namespace ArvXml;

namespace Document {

namespace {

/// What is seen of a document without knowing its kind.
struct Outline {
    QString tag; ///< the document element's tag, empty when there is none
    QStringList attributes;
    QStringList children; ///< as far as the document is well-formed
    QString error;
};

/// A kind of document. The document element's tag is free, so a kind is recognised by any of these
/// attributes of the document element, or any of these children.
struct Kind {
    const char* name;
    QStringList attributes;
    QStringList children;
    std::unique_ptr<IXmlElement> (*make)(); ///< an empty root of this kind
};

template <typename Root>
std::unique_ptr<IXmlElement> make()
{
    return std::make_unique<Root>();
}

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// The first kind that fits counts. A response may have an ORDER_DEF, too, so it comes first.
const std::vector<Kind>& kinds()
{
    static const std::vector<Kind> table = {
        {"response", words("type final timestamp"), words("Automatic Interactive"), make<XmlRespRoot>},
        {"command document", words(""), words("ORDER_DEF Administrative Create Delete PropagationModel Calculate"),
         make<XmlCmdRoot>},
        {"snapshot request", words(""), words("ScreenshotPath DisplayedObjects"), make<XmlArvBtType>},
    };
    return table;
}

Outline outlineOf(const QByteArray& document)
{
    Outline outline;
    QXmlStreamReader reader(document);
    if (goToRoot(reader)) {
        outline.tag = reader.name().toString();
        const QXmlStreamAttributes attributes = reader.attributes();
        for (const QXmlStreamAttribute& attribute : attributes)
            outline.attributes.append(attribute.name().toString());
        while (reader.readNextStartElement()) {
            const QString child = reader.name().toString();
            if (!outline.children.contains(child))
                outline.children.append(child);
            reader.skipCurrentElement();
        }
    }
    outline.error = reader.errorString();
    return outline;
}

/// Null when the document is none of the protocol's.
const Kind* kindOf(const Outline& outline)
{
    const auto overlap = [](const QStringList& some, const QStringList& others) {
        return std::any_of(some.begin(), some.end(), [&others](const QString& one) { return others.contains(one); });
    };
    for (const Kind& kind : kinds()) {
        if (overlap(kind.attributes, outline.attributes) || overlap(kind.children, outline.children))
            return &kind;
    }
    return nullptr;
}

} // namespace

Loaded load(const QString& fileName)
{
    Loaded loaded;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        loaded.problem = QStringLiteral("cannot be opened: %1").arg(file.errorString());
        return loaded;
    }
    const QByteArray document = file.readAll();
    const Outline outline = outlineOf(document);
    loaded.tag = outline.tag;
    if (outline.tag.isEmpty()) {
        loaded.problem = QStringLiteral("no document: %1").arg(outline.error);
        return loaded;
    }
    const Kind* kind = kindOf(outline);
    if (!kind) {
        loaded.problem = QStringLiteral("<%1> is no document of the protocol").arg(outline.tag);
        return loaded;
    }
    loaded.kind = QString::fromLatin1(kind->name);
    loaded.root = kind->make();
    const ReadError error = read(document, *loaded.root);
    if (error)
        loaded.problem = QStringLiteral("%1, reading stops %2").arg(loaded.kind, error.withPlace());
    return loaded;
}

} // namespace Document
