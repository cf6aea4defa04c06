#pragma once

/// \file
/// The calculation command.

#include "arvxml/command.h"
#include "arvxml/coverageorders.h"
#include "arvxml/siteorders.h"

namespace ArvXml {

/// The calculation command, one order followed by the reference:
/// `<Calculate><CEP>...</CEP><Reference>42</Reference></Calculate>`. All orders set are written, in the order of the
/// accessors; readers refuse the second. Reading does not reset the command but replaces an order of the same kind.
class ARVXML_EXPORT XmlCmdCalc : public XmlChoiceCommand {
public:
    XmlCmdCalc();

    /// The order for possible sites, tag "FindPossibleSites"; null when absent.
    const XmlFindSitesType* findSites() const { return m_findSites.get(); }
    bool hasFindSites() const { return m_findSites.isPresent(); }
    void setFindSites(const XmlFindSitesType& order) { m_findSites.set(order); }

    /// The order for the circular error probable, tag "CEP"; null when absent.
    const XmlCepType* cep() const { return m_cep.get(); }
    bool hasCep() const { return m_cep.isPresent(); }
    void setCep(const XmlCepType& order) { m_cep.set(order); }

    /// The order for the detection probability, tag "DetectionProbability"; null when absent.
    const XmlDetectProbType* detectProb() const { return m_detectProb.get(); }
    bool hasDetectProb() const { return m_detectProb.isPresent(); }
    void setDetectProb(const XmlDetectProbType& order) { m_detectProb.set(order); }

    /// The order for the direction-finding coverage, tag "DFcoverage"; null when absent.
    const XmlDfCovType* dfCov() const { return m_dfCov.get(); }
    bool hasDfCov() const { return m_dfCov.isPresent(); }
    void setDfCov(const XmlDfCovType& order) { m_dfCov.set(order); }

    /// The order for interlink planning, tag "InterlinkPlanning"; null when absent.
    const XmlInterlinkPlanningType* interlink() const { return m_interlink.get(); }
    bool hasInterlink() const { return m_interlink.isPresent(); }
    void setInterlink(const XmlInterlinkPlanningType& order) { m_interlink.set(order); }

    /// The order for the best sensor coverage, tag "BestSensorCov"; null when absent. reset() does not remove it.
    const XmlBestSensorType* bestSensor() const { return m_bestSensor.get(); }
    bool hasBestSensor() const { return m_bestSensor.isPresent(); }
    void setBestSensor(const XmlBestSensorType& order) { m_bestSensor.set(order); }

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlFindSitesType> m_findSites;
    OptionalChild<XmlCepType> m_cep;
    OptionalChild<XmlDetectProbType> m_detectProb;
    OptionalChild<XmlDfCovType> m_dfCov;
    OptionalChild<XmlInterlinkPlanningType> m_interlink;
    OptionalChild<XmlBestSensorType> m_bestSensor;
};

} // namespace ArvXml
