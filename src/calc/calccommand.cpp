#include "arvxml/calccommand.h"

#include "core/elementform.h"

namespace ArvXml {

XmlCmdCalc::XmlCmdCalc()
    : XmlChoiceCommand(QStringLiteral("XmlCmdCalc"))
{
}

const ElementForm& XmlCmdCalc::form() const
{
    using Self = XmlCmdCalc;
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .strictSequence({
                oneOf({
                    {"FindPossibleSites", renewed<&Self::m_findSites>()},
                    {"CEP", renewed<&Self::m_cep>()},
                    {"DetectionProbability", renewed<&Self::m_detectProb>()},
                    {"DFcoverage", renewed<&Self::m_dfCov>()},
                    {"InterlinkPlanning", renewed<&Self::m_interlink>()},
                    {"BestSensorCov", keptByReset(renewed<&Self::m_bestSensor>())},
                }),
                required("Reference", referenceChild()),
            });
    return form;
}

} // namespace ArvXml
