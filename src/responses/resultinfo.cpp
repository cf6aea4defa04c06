#include "arvxml/resultinfo.h"

#include "core/contentmodel.h"

namespace ArvXml {

namespace {

/// A polygon or a rectangle: reading one removes the other. The polygon's binding judges and reports the choice, and a
/// polygon goes before a rectangle.
template <auto Polygon, auto Rectangle>
Particle polygonOrRectangle()
{
    Binding either = readInsteadOf<Polygon, Rectangle>();
    either.isValid = [](const XmlElementBase& owner) {
        const auto& polygon = memberOf<Polygon>(owner);
        const auto& rectangle = memberOf<Rectangle>(owner);
        return polygon.isPresent() ? isMemberValid(polygon) : rectangle.isPresent() && isMemberValid(rectangle);
    };
    either.syntaxError = [](XmlElementBase& owner) {
        if (memberOf<Polygon>(owner).isPresent())
            return memberError(memberOf<Polygon>(owner));
        if (memberOf<Rectangle>(owner).isPresent())
            return memberError(memberOf<Rectangle>(owner));
        return QStringLiteral("Neither AreaPolygon nor AreaRect");
    };
    return oneOf({
        {"AreaPolygon", either},
        {"AreaRect", unjudged(unreported(readInsteadOf<Rectangle, Polygon>()))},
    });
}

} // namespace

// What all records have

XmlResInfo::XmlResInfo(const QString& className)
    : XmlVersionedComposite(className)
{
}

const ContentModel& XmlResInfo::contentModel() const
{
    using Self = XmlResInfo;
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .strictSequence({
                required("Name", child<&Self::m_objName>()),
                polygonOrRectangle<&Self::m_areaPoly, &Self::m_areaRect>(),
                required("ResultGrid", child<&Self::m_resultGrid>()),
                required("Values", child<&Self::m_gridValues>()),
            })
            .refusesOtherVersions();
    return model;
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

const ContentModel& XmlResInfo_BestSensor_Type::contentModel() const
{
    using Self = XmlResInfo_BestSensor_Type;
    static const NeverDestroyed<ContentModel> model =
        ContentModel(XmlResInfo::contentModel())
            .strictSequence({optional("Comment", unreported(renewed<&Self::m_comment>()))});
    return model;
}

} // namespace ArvXml
