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
    enum : Marks { Order = 1, Reference = 2 };
    static const ElementForm form =
        ElementForm(listWording)
            .children({
                {"FindPossibleSites", Order, Order | Reference, renewed<&Self::m_findSites>()},
                {"CEP", Order, Order | Reference, renewed<&Self::m_cep>()},
                {"DetectionProbability", Order, Order | Reference, renewed<&Self::m_detectProb>()},
                {"DFcoverage", Order, Order | Reference, renewed<&Self::m_dfCov>()},
                {"InterlinkPlanning", Order, Order | Reference, renewed<&Self::m_interlink>()},
                {"BestSensorCov", Order, Order | Reference, keptByReset(renewed<&Self::m_bestSensor>())},
                {"Reference", Reference, Reference, referenceChild(), Order},
            })
            .completeWith(Order | Reference);
    return form;
}

} // namespace ArvXml
