#include "common/kinds.h"

#include "common/document.h"

#include <arvxml/commandroot.h>
#include <arvxml/responseroot.h>
#include <arvxml/snapshot.h>

#include <QtCore/QXmlStreamReader>

#include <algorithm>
#include <vector>

using namespace ArvXml;

namespace Document {

namespace {

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

} // namespace

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

} // namespace Document
