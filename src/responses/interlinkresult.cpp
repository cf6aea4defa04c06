#include "arvxml/interlinkresult.h"

#include "core/elementform.h"

namespace ArvXml {

XmlInterlinkResultType::XmlInterlinkResultType()
    : XmlComposite(QStringLiteral("XmlInterlinkResultType"))
{
}

const ElementForm& XmlInterlinkResultType::form() const
{
    using Self = XmlInterlinkResultType;
    enum : Marks { Parameters = 1, InResult = 2, Text = 4, Filename = 8 };
    // "Text" and "ScreenshotFilename" stand inside "Result", whose tags this element reads and writes
    // itself. "Result" may be left and entered again, and may come first, until one of them was read.
    static const NeverDestroyed<ElementForm> form =
        ElementForm(compositeWording)
            .children({
                {"Parameters", Parameters, Parameters | InResult | Text | Filename, child<&Self::m_parameters>()},
                {"Result", InResult, InResult | Text | Filename, writtenBy<&Self::writeResult>()},
                {"Text", Text, Text | Filename, takenBy<&Self::setResultText>(), InResult},
                {"ScreenshotFilename", Filename, Filename, takenBy<&Self::setScreenshotFilename>(), InResult},
            })
            .innerEnds({{"Result", InResult, InResult, 0}})
            .completeWhen(Parameters | Text | InResult, Parameters | Text);
    return form;
}

void XmlInterlinkResultType::writeResult(QXmlStreamWriter& writer, const QString& tag) const
{
    writer.writeStartElement(tag);
    writer.writeTextElement(QStringLiteral("Text"), m_resultText);
    if (hasScreenshotFilename())
        writer.writeTextElement(QStringLiteral("ScreenshotFilename"), m_screenshotFilename);
    writer.writeEndElement();
}

bool XmlInterlinkResultType::isValid() const
{
    return XmlComposite::isValid() && !m_resultText.isEmpty();
}

void XmlInterlinkResultType::addErrors()
{
    addChildrenErrors();
    if (m_resultText.isEmpty())
        addSyntaxError(QStringLiteral("Missing Result Text"));
}

void XmlInterlinkResultType::reset()
{
    m_resultText.clear();
    m_screenshotFilename.clear();
    XmlComposite::reset();
}

} // namespace ArvXml
