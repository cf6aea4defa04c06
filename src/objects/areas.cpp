#include "arvxml/areas.h"

#include "core/elementform.h"

namespace ArvXml {

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

Content XmlPlanArea::areaRectChild()
{
    Content content = readInsteadOf<&XmlPlanArea::m_areaRect, &XmlPlanArea::m_areaPoly>();
    content.isValid = [](const XmlElementBase& owner) {
        const auto& self = static_cast<const XmlPlanArea&>(owner);
        return self.hasAreaRect() != self.hasAreaPoly() && isMemberValid(self.m_areaRect);
    };
    content.syntaxError = [](XmlElementBase& owner) {
        auto& self = static_cast<XmlPlanArea&>(owner);
        if (self.hasAreaRect() == self.hasAreaPoly())
            return QStringLiteral("Neither AreaRect nor AreaPolygon"); // also for both
        return self.hasAreaRect() ? memberError(self.m_areaRect) : memberError(self.m_areaPoly);
    };
    return content;
}

Content XmlPlanArea::areaPolyChild()
{
    return reportedApart(readInsteadOf<&XmlPlanArea::m_areaPoly, &XmlPlanArea::m_areaRect>());
}

// A deployment area

XmlDeploymentAreaType::XmlDeploymentAreaType()
    : XmlPlanArea(QStringLiteral("XmlDeploymentAreaType"))
{
}

const ElementForm& XmlDeploymentAreaType::form() const
{
    using Self = XmlDeploymentAreaType;
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .sequence({
                optional("SignalPath", reused<&Self::m_signalPath>()),
                required("Name", child<&Self::m_objName>()),
                oneOf({{"AreaRect", areaRectChild()}, {"AreaPolygon", areaPolyChild()}}),
                required("AntennaHeight", child<&Self::m_antennaHeight>()),
                required("RxThreshold", child<&Self::m_rxThreshold>()),
                required("Frequency", child<&Self::m_txFrequency>()),
                required("TxPower", child<&Self::m_txPower>()),
            })
            .refusesOtherVersions();
    return form;
}

// An area of interest

XmlAoiType::XmlAoiType()
    : XmlPlanArea(QStringLiteral("XmlAoiType"))
{
}

const ElementForm& XmlAoiType::form() const
{
    using Self = XmlAoiType;
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .sequence({
                required("Name", child<&Self::m_objName>()),
                oneOf({{"AreaRect", areaRectChild()}, {"AreaPolygon", areaPolyChild()}}),
                required("TxParameter", child<&Self::m_txParam>()),
                optional("RxThreshold", renewed<&Self::m_rxThreshold>()),
            })
            .refusesOtherVersions();
    return form;
}

void XmlAoiType::reset()
{
    // The threshold is let go, not destroyed: users may go on using the object they have a pointer to.
    if (XmlFieldstrengthType* threshold = m_rxThreshold.release())
        threshold->reset();
    XmlPlanArea::reset();
}

} // namespace ArvXml
