#include "arvxml/resultinfo.h"

#include "core/elementform.h"

namespace ArvXml {

namespace {

enum ResInfoMarks : Marks { Name = 1, Area = 2, Grid = 4, Values = 8, Comment = 16 };

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
    // Each child needs the one before it, so that all before it have been read: it is refused after itself alone.
    return ElementForm(listWording)
        .children({
            {"Name", Name, Name, child<&Self::m_objName>()},
            {"AreaPolygon", Area, Area, areaChoice<&Self::m_areaPoly, &Self::m_areaRect>(), Name},
            {"AreaRect", Area, Area, unjudged(reportedApart(readInsteadOf<&Self::m_areaRect, &Self::m_areaPoly>())),
             Name},
            {"ResultGrid", Grid, Grid, child<&Self::m_resultGrid>(), Area},
            {"Values", Values, Values, child<&Self::m_gridValues>(), Grid},
        })
        .completeWith(Values)
        .refusesOtherVersions();
}

const ElementForm& XmlResInfo::form() const
{
    static const ElementForm form = commonForm();
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
    static const ElementForm form = commonForm().children({
        {"Comment", Comment, Comment, reportedApart(renewed<&Self::m_comment>()), Values},
    });
    return form;
}

} // namespace ArvXml
