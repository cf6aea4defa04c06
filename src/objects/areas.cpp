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
    enum : Marks { Path = 1, Name = 2, Area = 4, Height = 8, Threshold = 16, Frequency = 32, Power = 64 };
    static const ElementForm form =
        ElementForm(listWording)
            .children({
                {"SignalPath", Path, Path | Name | Area | Height | Threshold | Frequency | Power,
                 reused<&Self::m_signalPath>()},
                {"Name", Name, Name | Area | Height | Threshold | Frequency | Power, child<&Self::m_objName>()},
                {"AreaRect", Area, Area | Height | Threshold | Frequency | Power, areaRectChild()},
                {"AreaPolygon", Area, Area | Height | Threshold | Frequency | Power, areaPolyChild()},
                {"AntennaHeight", Height, Height | Threshold | Frequency | Power, child<&Self::m_antennaHeight>()},
                {"RxThreshold", Threshold, Threshold | Frequency | Power, child<&Self::m_rxThreshold>()},
                {"Frequency", Frequency, Frequency | Power, child<&Self::m_txFrequency>()},
                {"TxPower", Power, Power, child<&Self::m_txPower>()},
            })
            .completeWith(Name | Area | Height | Threshold | Frequency | Power)
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
    enum : Marks { Name = 1, Area = 2, TxParameter = 4, Threshold = 8 };
    static const ElementForm form =
        ElementForm(listWording)
            .children({
                {"Name", Name, Name | Area | TxParameter | Threshold, child<&Self::m_objName>()},
                {"AreaRect", Area, Area | TxParameter | Threshold, areaRectChild()},
                {"AreaPolygon", Area, Area | TxParameter | Threshold, areaPolyChild()},
                {"TxParameter", TxParameter, TxParameter | Threshold, child<&Self::m_txParam>()},
                {"RxThreshold", Threshold, Threshold, renewed<&Self::m_rxThreshold>()},
            })
            .completeWith(Name | Area | TxParameter)
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
