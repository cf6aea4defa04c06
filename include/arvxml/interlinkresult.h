#pragma once

/// \file
/// The result of interlink planning.

#include "arvxml/composite.h"
#include "arvxml/siteorders.h"

namespace ArvXml {

/// The result of interlink planning, the file name optional. On reading, parameters precede the "Result" with the text
/// ("Result" may be left and entered again before that); a file name without text is refused at the end tag. Valid with
/// valid parameters and text ("Missing Result Text").
/// \code{.xml}
/// <InterlinkResult>
///     <Parameters>
///         <FirstName>Site 1</FirstName>
///         <SecondName>Site 2</SecondName>
///     </Parameters>
///     <Result>
///         <Text>feasible</Text>
///         <ScreenshotFilename>link.png</ScreenshotFilename>
///     </Result>
/// </InterlinkResult>
/// \endcode
class ARVXML_EXPORT XmlInterlinkResultType : public XmlComposite {
public:
    XmlInterlinkResultType();

    /// The parameters of the order, repeated in the result; tag "Parameters".
    const XmlInterlinkPlanningType* parameters() const { return &m_parameters; }
    void setParameters(const XmlInterlinkPlanningType& parameters) { m_parameters = parameters; }

    /// The result text, tag "Text": at least one character.
    const QString& resultText() const { return m_resultText; }
    void setResultText(const QString& text) { m_resultText = text; }

    bool hasScreenshotFilename() const { return !m_screenshotFilename.isEmpty(); }
    /// The name of the picture file, tag "ScreenshotFilename"; empty if there is none.
    const QString& screenshotFilename() const { return m_screenshotFilename; }
    void setScreenshotFilename(const QString& filename) { m_screenshotFilename = filename; }

    bool isValid() const override;
    void reset() override;

protected:
    void addErrors() override;

private:
    const ContentModel& contentModel() const override;

    XmlInterlinkPlanningType m_parameters;
    QString m_resultText;
    QString m_screenshotFilename;
};

} // namespace ArvXml
