#include "arvxml/calccommand.h"

#include "core/elementform.h"

namespace ArvXml {

XmlCmdCalc::XmlCmdCalc()
    : XmlCommand(QStringLiteral("XmlCmdCalc"))
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
                {"Reference", Reference, Reference, reportedApart(child<&Self::m_reference>()), Order},
            })
            .completeWith(Order | Reference);
    return form;
}

bool XmlCmdCalc::hasExactlyOneOrder() const
{
    return presentCount(m_findSites, m_cep, m_detectProb, m_dfCov, m_interlink, m_bestSensor) == 1;
}

bool XmlCmdCalc::isValid() const
{
    return XmlCommand::isValid() && hasExactlyOneOrder();
}

QString XmlCmdCalc::syntaxError()
{
    clearSyntaxError();
    addSyntaxError(memberError(m_reference)); // reported first, though written last
    addChildrenErrors();
    if (!hasExactlyOneOrder())
        addSyntaxError(QStringLiteral("Too many or too few elements."));
    return mySyntaxError();
}

} // namespace ArvXml
