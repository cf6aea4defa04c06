#include "arvxml/areas.h"

#include "core/contentmodel.h"

namespace ArvXml {

namespace {

/// A rectangle or a polygon: reading one removes the other. The rectangle's binding judges and reports the choice.
template <auto Rectangle, auto Polygon>
Particle rectangleOrPolygon()
{
    Binding rectangle = readInsteadOf<Rectangle, Polygon>();
    rectangle.isValid = [](const XmlElementBase& owner) {
        const auto& held = memberOf<Rectangle>(owner);
        return held.isPresent() != memberOf<Polygon>(owner).isPresent() && isMemberValid(held);
    };
    rectangle.syntaxError = [](XmlElementBase& owner) {
        auto& held = memberOf<Rectangle>(owner);
        auto& polygon = memberOf<Polygon>(owner);
        if (held.isPresent() == polygon.isPresent())
            return QStringLiteral("Neither AreaRect nor AreaPolygon"); // also for both
        return held.isPresent() ? memberError(held) : memberError(polygon);
    };
    return oneOf({{"AreaRect", rectangle}, {"AreaPolygon", unreported(readInsteadOf<Polygon, Rectangle>())}});
}

} // namespace

// What both have

void XmlPlanArea::setAreaRect(const XmlAreaRectType& rectangle)
{
    m_areaRect.set(rectangle);
    m_areaPoly.clear();
}

void XmlPlanArea::setAreaPoly(const XmlAreaPolyType& polygon)
{
    m_areaPoly.set(polygon);
    m_areaRect.clear();
}

// A deployment area

XmlDeploymentAreaType::XmlDeploymentAreaType()
    : XmlPlanArea(QStringLiteral("XmlDeploymentAreaType"))
{
}

const ContentModel& XmlDeploymentAreaType::contentModel() const
{
    using Self = XmlDeploymentAreaType;
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .sequence({
                optional("SignalPath", reused<&Self::m_signalPath>()),
                required("Name", child<&Self::m_objName>()),
                rectangleOrPolygon<&Self::m_areaRect, &Self::m_areaPoly>(),
                required("AntennaHeight", child<&Self::m_antennaHeight>()),
                required("RxThreshold", child<&Self::m_rxThreshold>()),
                required("Frequency", child<&Self::m_txFrequency>()),
                required("TxPower", child<&Self::m_txPower>()),
            })
            .refusesOtherVersions();
    return model;
}

// An area of interest

XmlAoiType::XmlAoiType()
    : XmlPlanArea(QStringLiteral("XmlAoiType"))
{
}

const ContentModel& XmlAoiType::contentModel() const
{
    using Self = XmlAoiType;
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .sequence({
                required("Name", child<&Self::m_objName>()),
                rectangleOrPolygon<&Self::m_areaRect, &Self::m_areaPoly>(),
                required("TxParameter", child<&Self::m_txParam>()),
                optional("RxThreshold", renewed<&Self::m_rxThreshold>()),
            })
            .refusesOtherVersions();
    return model;
}

void XmlAoiType::reset()
{
    // The threshold is let go, not destroyed: users may go on using the object they have a pointer to.
    if (XmlFieldstrengthType* threshold = m_rxThreshold.release())
        threshold->reset();
    XmlPlanArea::reset();
}

} // namespace ArvXml
