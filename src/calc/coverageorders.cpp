#include "arvxml/coverageorders.h"

#include "core/contentmodel.h"
#include "core/enumerationrules.h"

namespace ArvXml {

XmlCepProbType::XmlCepProbType()
    : XmlEnumeration(QStringLiteral("XmlCepProbType"))
{
}

const EnumerationRules& XmlCepProbType::rules() const
{
    static const NeverDestroyed<EnumerationRules> rules = EnumerationRules{
        EnumerationTexts({"50", "66", "75", "90", "95"}),
        "Illegal enum value", // no full stop here
        "Illegal probability value.",
    };
    return rules;
}

XmlCepType::XmlCepType()
    : XmlCoverageOrder(QStringLiteral("XmlCepType"))
{
}

const ContentModel& XmlCepType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(compositeWording)
            .sequence({
                required("UseDFs", child<&XmlCepType::m_sensors>()),
                required("AOIs", child<&XmlCepType::m_areas>()),
                optional("Probability", renewed<&XmlCepType::m_probability>()),
                optional("ResultGrid", renewed<&XmlCepType::m_resultGrid>()),
            });
    return model;
}

XmlDetectProbType::XmlDetectProbType()
    : XmlCoverageOrder(QStringLiteral("XmlDetectProbType"))
{
}

const ContentModel& XmlDetectProbType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(compositeWording)
            .sequence({
                required("UseRxDFs", child<&XmlDetectProbType::m_sensors>()),
                required("AOIs", child<&XmlDetectProbType::m_areas>()),
                optional("ResultGrid", renewed<&XmlDetectProbType::m_resultGrid>()),
            });
    return model;
}

XmlDfCovType::XmlDfCovType()
    : XmlCoverageOrder(QStringLiteral("XmlDfCovType"))
{
}

const ContentModel& XmlDfCovType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(compositeWording)
            .sequence({
                required("UseDFs", child<&XmlDfCovType::m_sensors>()),
                required("AOIs", child<&XmlDfCovType::m_areas>()),
                optional("ResultGrid", renewed<&XmlDfCovType::m_resultGrid>()),
            });
    return model;
}

XmlBestSensorType::XmlBestSensorType()
    : XmlCoverageOrder(QStringLiteral("XmlBestSensorType"))
{
}

const ContentModel& XmlBestSensorType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(compositeWording)
            .sequence({
                required("UseRxDFs", child<&XmlBestSensorType::m_sensors>()),
                required("AOIs", child<&XmlBestSensorType::m_areas>()),
                optional("ResultGrid", renewed<&XmlBestSensorType::m_resultGrid>()),
                optional("Comment", renewed<&XmlBestSensorType::m_comment>()),
            });
    return model;
}

} // namespace ArvXml
