#pragma once

/// \file
/// The records of results in a display snapshot request.

#include "arvxml/composite.h"
#include "arvxml/geometry.h"
#include "arvxml/gridresult.h"
#include "arvxml/names.h"
#include "arvxml/resultgrid.h"

namespace ArvXml {

/// The base of the result information records: the name of a result grid, the area it covers, its spacing and the range
/// of its values. The children come in the order shown, with either "AreaPolygon" or "AreaRect"; all are required.
/// \code{.xml}
/// <Result_CEP version="1.0">
///     <Name>CEP of the valley</Name>
///     <AreaPolygon version="1.0">...</AreaPolygon>
///     <ResultGrid>100</ResultGrid>
///     <Values version="1.0" unit="km"><Min>0.2</Min><Max>3</Max></Values>
/// </Result_CEP>
/// \endcode
/// White space inside "Values" ends the read (see XmlGridValuesType): an indented document cannot be read. Reading one
/// kind of area removes the other; setting does not. With both set, both are written (and the second is refused on
/// reading), and only the polygon is validated. With neither the problem is "Neither AreaPolygon nor AreaRect".
class ARVXML_EXPORT XmlResInfo : public XmlVersionedComposite {
public:
    /// The name of the result, tag "Name".
    const XmlObjNameType* objName() const { return &m_objName; }
    void setObjName(const XmlObjNameType& objName) { m_objName = objName; }

    bool hasAreaPoly() const { return m_areaPoly.isPresent(); }
    /// The polygon, tag "AreaPolygon"; null when absent.
    const XmlAreaPolyType* areaPoly() const { return m_areaPoly.get(); }
    void setAreaPoly(const XmlAreaPolyType& polygon) { m_areaPoly.set(polygon); }

    bool hasAreaRect() const { return m_areaRect.isPresent(); }
    /// The rectangle, tag "AreaRect"; null when absent.
    const XmlAreaRectType* areaRect() const { return m_areaRect.get(); }
    void setAreaRect(const XmlAreaRectType& rectangle) { m_areaRect.set(rectangle); }

    /// The spacing of the result grid, tag "ResultGrid".
    const XmlResultGridType* resultGrid() const { return &m_resultGrid; }
    void setResultGrid(const XmlResultGridType& grid) { m_resultGrid = grid; }

    /// The range of the values, tag "Values".
    const XmlGridValuesType* gridValues() const { return &m_gridValues; }
    void setGridValues(const XmlGridValuesType& values) { m_gridValues = values; }

protected:
    explicit XmlResInfo(const QString& className);

    const ContentModel& contentModel() const override;

private:
    XmlObjNameType m_objName;
    OptionalChild<XmlAreaPolyType> m_areaPoly;
    OptionalChild<XmlAreaRectType> m_areaRect;
    XmlResultGridType m_resultGrid;
    XmlGridValuesType m_gridValues;
};

/// A result of the order "CEP" (circular error probable).
class ARVXML_EXPORT XmlResInfo_Cep_Type : public XmlResInfo {
public:
    XmlResInfo_Cep_Type();
};

/// A result of the order "DetectionProbability".
class ARVXML_EXPORT XmlResInfo_DetectProb_Type : public XmlResInfo {
public:
    XmlResInfo_DetectProb_Type();
};

/// A result of the order "DFcoverage" (coverage by direction finders).
class ARVXML_EXPORT XmlResInfo_DfCov_Type : public XmlResInfo {
public:
    XmlResInfo_DfCov_Type();
};

/// A result of the order "FindPossibleSites".
class ARVXML_EXPORT XmlResInfo_FindSites_Type : public XmlResInfo {
public:
    XmlResInfo_FindSites_Type();
};

/// A result of the order "BestSensorCov" (which sensor serves best). An optional `<Comment>...</Comment>` follows the
/// values, checked by isValid() but not reported by syntaxError(). Messages call the class XmlResInfo_DetectProb_Type.
class ARVXML_EXPORT XmlResInfo_BestSensor_Type : public XmlResInfo {
public:
    XmlResInfo_BestSensor_Type();

    bool hasComment() const { return m_comment.isPresent(); }
    /// The comment, tag "Comment"; null when absent. Reading replaces it.
    const XmlObjNameType* comment() const { return m_comment.get(); }
    void setComment(const XmlObjNameType& comment) { m_comment.set(comment); }

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlObjNameType> m_comment;
};

} // namespace ArvXml
