#pragma once

/// \file
/// The display snapshot request.

#include "arvxml/areas.h"
#include "arvxml/composite.h"
#include "arvxml/emitters.h"
#include "arvxml/resultinfo.h"
#include "arvxml/stations.h"

namespace ArvXml {

/// The root of the third document, the display snapshot request, asking the planning display to save a screen shot of
/// the listed objects in a file. The caller chooses the tag. Any number of each kind may come, in the order shown.
/// Results of best sensor coverage cannot be shown. Valid with a path ("Screen shot path is empty") and valid objects.
/// \code{.xml}
/// <Snapshot version="1.0">
///     <ScreenshotPath>/tmp/plan.png</ScreenshotPath>
///     <DisplayedObjects>
///         <DeploymentArea version="1.0">...</DeploymentArea>
///         <AreaOfInterest version="1.0">...</AreaOfInterest>
///         <KnownEmitter version="1.0">...</KnownEmitter>
///         <Receiver version="1.0">...</Receiver>
///         <DirectionFinder version="1.0">...</DirectionFinder>
///         <Result_FindSites version="1.0">...</Result_FindSites>
///         <Result_CEP version="1.0">...</Result_CEP>
///         <Result_DetectProb version="1.0">...</Result_DetectProb>
///         <Result_DfCoverage version="1.0">...</Result_DfCoverage>
///     </DisplayedObjects>
/// </Snapshot>
/// \endcode
/// The request owns the objects; adding one copies it. The has...() functions return a number, despite their name.
/// Single objects cannot be removed; reset() removes all. On reading, the path comes first and must contain text, which
/// may be white space: after an empty one, "DisplayedObjects", which is required even if empty, is refused. Reading
/// appends objects.
class ARVXML_EXPORT XmlArvBtType : public XmlVersionedComposite {
public:
    XmlArvBtType();

    /// Path of the screen shot for the display, tag "ScreenshotPath". Comments split the text; the last piece is kept.
    const QString& screenshotPath() const { return m_screenshotPath; }
    void setScreenshotPath(const QString& path) { m_screenshotPath = path; }

    /// Deployment areas, tag "DeploymentArea": their number, the list, and adding one.
    int hasDeployments() const { return m_deployments.size(); }
    const QList<XmlDeploymentAreaType*> deployments() const { return m_deployments.items(); }
    void addDeployment(const XmlDeploymentAreaType& area) { m_deployments.append(area); }

    /// Areas of interest, tag "AreaOfInterest": their number, the list, and adding one.
    int hasAois() const { return m_aois.size(); }
    const QList<XmlAoiType*> aois() const { return m_aois.items(); }
    void addAoi(const XmlAoiType& area) { m_aois.append(area); }

    /// Known emitters, tag "KnownEmitter": their number, the list, and adding one.
    int hasKnownEmitters() const { return m_knownEmitters.size(); }
    const QList<XmlEmitterType*> knownEmitters() const { return m_knownEmitters.items(); }
    void addKnownEmitter(const XmlEmitterType& emitter) { m_knownEmitters.append(emitter); }

    /// Receivers, tag "Receiver": their number, the list, and adding one.
    int hasReceivers() const { return m_receivers.size(); }
    const QList<XmlReceiverType*> receivers() const { return m_receivers.items(); }
    void addReceiver(const XmlReceiverType& receiver) { m_receivers.append(receiver); }

    /// Direction finders, tag "DirectionFinder": their number, the list, and adding one.
    int hasDfs() const { return m_dfs.size(); }
    const QList<XmlDfType*> dfs() const { return m_dfs.items(); }
    void addDf(const XmlDfType& directionFinder) { m_dfs.append(directionFinder); }

    /// Results of finding sites, tag "Result_FindSites": their number, the list, and adding one.
    int hasResFindSite() const { return m_resFindSite.size(); }
    const QList<XmlResInfo_FindSites_Type*> resFindSite() const { return m_resFindSite.items(); }
    void addResFindSite(const XmlResInfo_FindSites_Type& result) { m_resFindSite.append(result); }

    /// Results of the circular error probable, tag "Result_CEP": their number, the list, and adding one.
    int hasResCep() const { return m_resCep.size(); }
    const QList<XmlResInfo_Cep_Type*> resCep() const { return m_resCep.items(); }
    void addResCep(const XmlResInfo_Cep_Type& result) { m_resCep.append(result); }

    /// Results of the detection probability, tag "Result_DetectProb": their number, the list, and adding one.
    int hasResDetectProb() const { return m_resDetectProb.size(); }
    const QList<XmlResInfo_DetectProb_Type*> resDetectProb() const { return m_resDetectProb.items(); }
    void addResDetectProb(const XmlResInfo_DetectProb_Type& result) { m_resDetectProb.append(result); }

    /// Results of the direction-finding coverage, tag "Result_DfCoverage": their number, the list, and adding one.
    int hasResDfCov() const { return m_resDfCov.size(); }
    const QList<XmlResInfo_DfCov_Type*> resDfCov() const { return m_resDfCov.items(); }
    void addResDfCov(const XmlResInfo_DfCov_Type& result) { m_resDfCov.append(result); }

    void produceXml(QXmlStreamWriter& writer, const QString& tagName) const override;
    bool isValid() const override;
    void reset() override;

protected:
    void addErrors() override;

private:
    const ContentModel& contentModel() const override;

    OwnedList<XmlDeploymentAreaType> m_deployments;
    OwnedList<XmlAoiType> m_aois;
    OwnedList<XmlEmitterType> m_knownEmitters;
    OwnedList<XmlReceiverType> m_receivers;
    OwnedList<XmlDfType> m_dfs;
    OwnedList<XmlResInfo_FindSites_Type> m_resFindSite;
    OwnedList<XmlResInfo_Cep_Type> m_resCep;
    OwnedList<XmlResInfo_DetectProb_Type> m_resDetectProb;
    OwnedList<XmlResInfo_DfCov_Type> m_resDfCov;
    QString m_screenshotPath;
};

} // namespace ArvXml
