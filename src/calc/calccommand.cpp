#include "arvxml/calccommand.h"

#include "core/contentmodel.h"

namespace ArvXml {

XmlCmdCalc::XmlCmdCalc()
    : XmlChoiceCommand(QStringLiteral("XmlCmdCalc"))
{
}

const ContentModel& XmlCmdCalc::contentModel() const
{
    using Self = XmlCmdCalc;
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .strictSequence({
                oneOf({
                    {"FindPossibleSites", renewed<&Self::m_findSites>()},
                    {"CEP", renewed<&Self::m_cep>()},
                    {"DetectionProbability", renewed<&Self::m_detectProb>()},
                    {"DFcoverage", renewed<&Self::m_dfCov>()},
                    {"InterlinkPlanning", renewed<&Self::m_interlink>()},
                    {"BestSensorCov", keptByReset(renewed<&Self::m_bestSensor>())},
                }),
                required("Reference", child<&Self::m_reference>()),
            })
            .reportedFirst({"Reference"});
    return model;
}

} // namespace ArvXml
