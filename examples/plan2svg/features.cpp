#include "plan2svg/features.h"

#include <arvxml/commandroot.h>
#include <arvxml/snapshot.h>

using namespace ArvXml;

namespace {

/// Collects what has a place.
class Collector {
public:
    /// Adds \a object, null for none. \a what tells a person what it is.
    void addSite(FeatureKind kind, const char* what, const XmlSite* object)
    {
        if (object)
            addSite(kind, what, *object->objName(), *object->position());
    }
    /// Stations have a name and a position, but are not of the common type of the sites.
    void addSite(FeatureKind kind, const char* what, const XmlStationType* object)
    {
        if (object)
            addSite(kind, what, *object->objName(), *object->position());
    }

    /// Areas of all types have a name, and a rectangle or a polygon.
    template <typename Area>
    void addArea(FeatureKind kind, const char* what, const Area* object)
    {
        if (!object)
            return;
        QVector<const XmlCoordinateType*> corners;
        QVector<QPointF> points;
        if (object->hasAreaPoly()) {
            const auto vertices = object->areaPoly()->vertices();
            for (const XmlNumCoordType* vertex : vertices) {
                corners.append(vertex);
                points.append(pointOf(*vertex));
            }
        } else if (object->hasAreaRect()) {
            const XmlAreaRectType& rectangle = *object->areaRect();
            const QPointF first = pointOf(*rectangle.upperLeft());
            const QPointF second = pointOf(*rectangle.lowerRight());
            corners = {rectangle.upperLeft(), rectangle.lowerRight()};
            points = {first, {second.x(), first.y()}, second, {first.x(), second.y()}};
        }
        add({kind, object->objName()->objName(), points}, what, corners);
    }

    Features features() const { return m_features; }

private:
    static QPointF pointOf(const XmlCoordinateType& position) { return {position.longitude(), position.latitude()}; }

    void addSite(FeatureKind kind, const char* what, const XmlObjNameType& name, const XmlCoordinateType& position)
    {
        add({kind, name.objName(), {pointOf(position)}}, what, {&position});
    }

    void add(const Feature& feature, const char* what, const QVector<const XmlCoordinateType*>& places)
    {
        bool isOnEarth = !places.isEmpty();
        for (const XmlCoordinateType* place : places) {
            const double longitude = place->longitude();
            const double latitude = place->latitude();
            isOnEarth = isOnEarth && longitude >= -180 && longitude <= 180 && latitude >= -90 && latitude <= 90;
        }
        if (isOnEarth)
            m_features.drawable.append(feature);
        else
            m_features.leftOut.append(QStringLiteral("%1 \"%2\"").arg(QString::fromLatin1(what), feature.name));
    }

    Features m_features;
};

} // namespace

Features featuresOf(const XmlCmdRoot& commands)
{
    Collector collector;
    const auto creates = commands.getCreateCmds();
    for (const XmlCmdCreate* create : creates) {
        collector.addArea(FeatureKind::DeploymentArea, "deployment area", create->deploymentArea());
        collector.addArea(FeatureKind::AreaOfInterest, "area of interest", create->aoi());
        collector.addSite(FeatureKind::Emitter, "emitter", create->emitter());
        collector.addSite(FeatureKind::Receiver, "receiver", create->receiver());
        collector.addSite(FeatureKind::DirectionFinder, "direction finder", create->df());
        collector.addSite(FeatureKind::Station, "station", create->station());
    }
    return collector.features();
}

Features featuresOf(const XmlArvBtType& request)
{
    Collector collector;
    const auto addAreas = [&collector](FeatureKind kind, const char* what, const auto& areas) {
        for (const auto* area : areas)
            collector.addArea(kind, what, area);
    };
    const auto addSites = [&collector](FeatureKind kind, const char* what, const auto& sites) {
        for (const XmlSite* site : sites)
            collector.addSite(kind, what, site);
    };
    addAreas(FeatureKind::DeploymentArea, "deployment area", request.deployments());
    addAreas(FeatureKind::AreaOfInterest, "area of interest", request.aois());
    addSites(FeatureKind::Emitter, "emitter", request.knownEmitters());
    addSites(FeatureKind::Receiver, "receiver", request.receivers());
    addSites(FeatureKind::DirectionFinder, "direction finder", request.dfs());
    addAreas(FeatureKind::ResultArea, "result", request.resFindSite());
    addAreas(FeatureKind::ResultArea, "result", request.resCep());
    addAreas(FeatureKind::ResultArea, "result", request.resDetectProb());
    addAreas(FeatureKind::ResultArea, "result", request.resDfCov());
    return collector.features();
}
