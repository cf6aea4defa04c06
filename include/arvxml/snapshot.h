#pragma once

/// \file
/// The display snapshot request.

#include "arvxml/areas.h"
#include "arvxml/composite.h"
#include "arvxml/emitters.h"
#include "arvxml/resultinfo.h"
#include "arvxml/stations.h"

namespace ArvXml {

/// The root of the third document, the display snapshot request: it asks the planning display for a screen
/// shot that shows the objects listed, to be stored in a file. The caller chooses its tag.
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
/// There may be any number of each kind, grouped in this order. Results of the best sensor coverage cannot be shown.
/// The objects belong to the request; adding one copies it. Of each kind, has...() is a number, in spite of the name.
/// Single objects are not removed; reset() removes all.
///
/// On reading, the path comes first and must hold text: behind an empty one, "DisplayedObjects" is
/// refused. "DisplayedObjects" must be there, be it empty. The objects are appended to those held: reading
/// twice into one request doubles them. Another version than "1.0" is refused while reading.
///
/// Valid with a path ("Screen shot path is empty") and valid objects.
class ARVXML_EXPORT XmlArvBtType : public XmlVersionedComposite {
public:
    XmlArvBtType();

    /// The file in which the screen shot is to be stored, as the display finds it; tag "ScreenshotPath". Of several
    /// pieces of text (a comment cuts a text in two) the last is kept on reading.
    const QString& screenshotPath() const { return m_screenshotPath; }
    void setScreenshotPath(const QString& path) { m_screenshotPath = path; }

    /// Deployment areas, tag "DeploymentArea": how many, all of them, one more.
    int hasDeployments() const { return m_deployments.size(); }
    const QList<XmlDeploymentAreaType*> deployments() const { return m_deployments.items(); }
    void addDeployment(const XmlDeploymentAreaType& area) { m_deployments.append(area); }

    /// Areas of interest, tag "AreaOfInterest": how many, all of them, one more.
    int hasAois() const { return m_aois.size(); }
    const QList<XmlAoiType*> aois() const { return m_aois.items(); }
    void addAoi(const XmlAoiType& area) { m_aois.append(area); }

    /// Known emitters, tag "KnownEmitter": how many, all of them, one more.
    int hasKnownEmitters() const { return m_knownEmitters.size(); }
    const QList<XmlEmitterType*> knownEmitters() const { return m_knownEmitters.items(); }
    void addKnownEmitter(const XmlEmitterType& emitter) { m_knownEmitters.append(emitter); }

    /// Receivers, tag "Receiver": how many, all of them, one more.
    int hasReceivers() const { return m_receivers.size(); }
    const QList<XmlReceiverType*> receivers() const { return m_receivers.items(); }
    void addReceiver(const XmlReceiverType& receiver) { m_receivers.append(receiver); }

    /// Direction finders, tag "DirectionFinder": how many, all of them, one more.
    int hasDfs() const { return m_dfs.size(); }
    const QList<XmlDfType*> dfs() const { return m_dfs.items(); }
    void addDf(const XmlDfType& directionFinder) { m_dfs.append(directionFinder); }

    /// Results of finding sites, tag "Result_FindSites": how many, all of them, one more.
    int hasResFindSite() const { return m_resFindSite.size(); }
    const QList<XmlResInfo_FindSites_Type*> resFindSite() const { return m_resFindSite.items(); }
    void addResFindSite(const XmlResInfo_FindSites_Type& result) { m_resFindSite.append(result); }

    /// Results of the circular error probable, tag "Result_CEP": how many, all of them, one more.
    int hasResCep() const { return m_resCep.size(); }
    const QList<XmlResInfo_Cep_Type*> resCep() const { return m_resCep.items(); }
    void addResCep(const XmlResInfo_Cep_Type& result) { m_resCep.append(result); }

    /// Results of the detection probability, tag "Result_DetectProb": how many, all of them, one more.
    int hasResDetectProb() const { return m_resDetectProb.size(); }
    const QList<XmlResInfo_DetectProb_Type*> resDetectProb() const { return m_resDetectProb.items(); }
    void addResDetectProb(const XmlResInfo_DetectProb_Type& result) { m_resDetectProb.append(result); }

    /// Results of the direction-finding coverage, tag "Result_DfCoverage": how many, all of them, one more.
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
