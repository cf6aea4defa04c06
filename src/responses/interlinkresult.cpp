#include "arvxml/interlinkresult.h"

#include "core/contentmodel.h"

namespace ArvXml {

static void writeResult(const XmlInterlinkResultType& result, QXmlStreamWriter& writer, const QString& tag)
{
    writer.writeStartElement(tag);
    writer.writeTextElement(QStringLiteral("Text"), result.resultText());
    if (result.hasScreenshotFilename())
        writer.writeTextElement(QStringLiteral("ScreenshotFilename"), result.screenshotFilename());
    writer.writeEndElement();
}

XmlInterlinkResultType::XmlInterlinkResultType()
    : XmlComposite(QStringLiteral("XmlInterlinkResultType"))
{
}

const ContentModel& XmlInterlinkResultType::contentModel() const
{
    using Self = XmlInterlinkResultType;
    enum : Marks { Parameters = 1, InResult = 2, Text = 4, Filename = 8 };
    // Odd: "Result" may be left and entered again, and may come first, until a text in it has been read.
    static const NeverDestroyed<ContentModel> model =
        ContentModel(compositeWording)
            .rows({
                Row("Parameters", child<&Self::m_parameters>())
                    .required()
                    .marks(Parameters)
                    .refusedAfter(Parameters | InResult | Text | Filename),
                Row("Result", as(ContentKind::Wrapper, writtenBy<Self, writeResult>()))
                    .required()
                    .marks(InResult)
                    .refusedAfter(InResult | Text | Filename),
                Row("Text", takenBy<Self, &Self::setResultText>())
                    .within("Result")
                    .required()
                    .marks(Text)
                    .refusedAfter(Text | Filename)
                    .onlyAfter(InResult),
                Row("ScreenshotFilename", takenBy<Self, &Self::setScreenshotFilename>())
                    .within("Result")
                    .marks(Filename)
                    .refusedAfter(Filename)
                    .onlyAfter(InResult),
            })
            .wrapperEnds({WrapperEnd("Result").onlyAfter(InResult).clears(InResult)})
            .completeWhen(Parameters | Text | InResult, Parameters | Text);
    return model;
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
