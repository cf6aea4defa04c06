#include "arvxml/resultinfo.h"

#include "core/elementform.h"

namespace ArvXml {

namespace {

/// The polygon's child judges the choice of areas and reports it: a polygon goes before a rectangle.
template <auto Polygon, auto Rectangle>
Content areaChoice()
{
    Content content = readInsteadOf<Polygon, Rectangle>();
    content.isValid = [](const XmlElementBase& owner) {
        const auto& polygon = memberOf<Polygon>(owner);
        const auto& rectangle = memberOf<Rectangle>(owner);
        return polygon.isPresent() ? isMemberValid(polygon) : rectangle.isPresent() && isMemberValid(rectangle);
    };
    content.syntaxError = [](XmlElementBase& owner) {
        if (memberOf<Polygon>(owner).isPresent())
            return memberError(memberOf<Polygon>(owner));
        if (memberOf<Rectangle>(owner).isPresent())
            return memberError(memberOf<Rectangle>(owner));
        return QStringLiteral("Neither AreaPolygon nor AreaRect");
    };
    return content;
}

} // namespace

// What all records have

XmlResInfo::XmlResInfo(const QString& className)
    : XmlVersionedComposite(className)
{
}

ElementForm XmlResInfo::commonForm()
{
    using Self = XmlResInfo;
    return ElementForm(listWording)
        .strictSequence({
            required("Name", child<&Self::m_objName>()),
            oneOf({
                {"AreaPolygon", areaChoice<&Self::m_areaPoly, &Self::m_areaRect>()},
                {"AreaRect", unjudged(reportedApart(readInsteadOf<&Self::m_areaRect, &Self::m_areaPoly>()))},
            }),
            required("ResultGrid", child<&Self::m_resultGrid>()),
            required("Values", child<&Self::m_gridValues>()),
        })
        .refusesOtherVersions();
}

const ElementForm& XmlResInfo::form() const
{
    static const NeverDestroyed<ElementForm> form = commonForm();
    return form;
}

// The records

XmlResInfo_Cep_Type::XmlResInfo_Cep_Type()
    : XmlResInfo(QStringLiteral("XmlResInfo_Cep_Type"))
{
}

XmlResInfo_DetectProb_Type::XmlResInfo_DetectProb_Type()
    : XmlResInfo(QStringLiteral("XmlResInfo_DetectProb_Type"))
{
}

XmlResInfo_DfCov_Type::XmlResInfo_DfCov_Type()
    : XmlResInfo(QStringLiteral("XmlResInfo_DfCov_Type"))
{
}

XmlResInfo_FindSites_Type::XmlResInfo_FindSites_Type()
    : XmlResInfo(QStringLiteral("XmlResInfo_FindSites_Type"))
{
}

XmlResInfo_BestSensor_Type::XmlResInfo_BestSensor_Type()
    : XmlResInfo(QStringLiteral("XmlResInfo_DetectProb_Type")) // the name of another class
{
}

const ElementForm& XmlResInfo_BestSensor_Type::form() const
{
    using Self = XmlResInfo_BestSensor_Type;
    static const NeverDestroyed<ElementForm> form =
        commonForm().strictSequence({optional("Comment", reportedApart(renewed<&Self::m_comment>()))});
    return form;
}

} // namespace ArvXml
