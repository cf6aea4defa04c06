#pragma once

/// \file
/// The calculation orders for results over areas of interest.

#include "arvxml/composite.h"
#include "arvxml/enumeration.h"
#include "arvxml/names.h"
#include "arvxml/resultgrid.h"

namespace ArvXml {

/// The base of the orders for results over areas of interest: the sensors to use, the areas, and optionally the spacing
/// of the result grid. Sensors and areas are always present and written, and required on reading. Reading replaces the
/// grid, and appends names until "All" removes them. The orders have no problems but those of their children.
class ARVXML_EXPORT XmlCoverageOrder : public XmlComposite {
public:
    /// The areas of interest, tag "AOIs".
    const XmlNameAllMultiType* AOIs() const { return &m_areas; }
    void setAOIs(const XmlNameAllMultiType& areas) { m_areas = areas; }

    bool hasResultGrid() const { return m_resultGrid.isPresent(); }
    /// The spacing of the result grid, tag "ResultGrid"; null when absent.
    const XmlResultGridType* resultGrid() const { return m_resultGrid.get(); }
    void setResultGrid(const XmlResultGridType& resultGrid) { m_resultGrid.set(resultGrid); }

protected:
    using XmlComposite::XmlComposite;

    XmlNameAllMultiType m_sensors;
    XmlNameAllMultiType m_areas;
    OptionalChild<XmlResultGridType> m_resultGrid;
};

/// The probability level of a circular error in percent: `<Probability>90</Probability>`. See the enumerators for the
/// texts. Others are the reader error "Illegal enum value" (no full stop). Problem: "Illegal probability value.".
class ARVXML_EXPORT XmlCepProbType : public XmlEnumeration {
public:
    /// The levels, with their texts.
    enum Prob : int {
        Undefined = 0, ///< Not set.
        Prob50 = 1,    ///< "50"
        Prob66 = 2,    ///< "66"
        Prob75 = 3,    ///< "75"
        Prob90 = 4,    ///< "90"
        Prob95 = 5,    ///< "95"
    };

    XmlCepProbType();

    /// The level; Undefined by default.
    Prob prob() { return static_cast<Prob>(m_value); }
    Prob prob() const { return static_cast<Prob>(m_value); }
    void setProb(Prob prob) { m_value = prob; }

private:
    const EnumerationRules& rules() const override;
};

/// The order for the circular error probable of direction-finding fixes; the last two children are optional:
/// \code{.xml}
/// <CEP>
///     <UseDFs><All/></UseDFs>
///     <AOIs><Name>Northern valley</Name></AOIs>
///     <Probability>90</Probability>
///     <ResultGrid>100</ResultGrid>
/// </CEP>
/// \endcode
class ARVXML_EXPORT XmlCepType : public XmlCoverageOrder {
public:
    XmlCepType();

    /// The direction finders to use, tag "UseDFs".
    const XmlNameAllMultiType* useDFs() const { return &m_sensors; }
    void setUseDFs(const XmlNameAllMultiType& sensors) { m_sensors = sensors; }

    bool hasProbability() const { return m_probability.isPresent(); }
    /// The probability level, tag "Probability"; null when absent. Reading replaces it.
    const XmlCepProbType* probability() const { return m_probability.get(); }
    void setProbability(const XmlCepProbType& probability) { m_probability.set(probability); }

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlCepProbType> m_probability;
};

/// The order for the detection probability; the grid is optional:
/// \code{.xml}
/// <DetectionProbability>
///     <UseRxDFs><All/></UseRxDFs>
///     <AOIs><Name>Northern valley</Name></AOIs>
///     <ResultGrid>100</ResultGrid>
/// </DetectionProbability>
/// \endcode
class ARVXML_EXPORT XmlDetectProbType : public XmlCoverageOrder {
public:
    XmlDetectProbType();

    /// The receivers and direction finders to use, tag "UseRxDFs".
    const XmlNameAllMultiType* useRxDFs() const { return &m_sensors; }
    void setUseRxDFs(const XmlNameAllMultiType& sensors) { m_sensors = sensors; }

private:
    const ContentModel& contentModel() const override;
};

/// The order for the direction-finding coverage; the grid is optional:
/// \code{.xml}
/// <DFcoverage>
///     <UseDFs><All/></UseDFs>
///     <AOIs><Name>Northern valley</Name></AOIs>
///     <ResultGrid>100</ResultGrid>
/// </DFcoverage>
/// \endcode
class ARVXML_EXPORT XmlDfCovType : public XmlCoverageOrder {
public:
    XmlDfCovType();

    /// The direction finders to use, tag "UseDFs".
    const XmlNameAllMultiType* useDFs() const { return &m_sensors; }
    void setUseDFs(const XmlNameAllMultiType& sensors) { m_sensors = sensors; }

private:
    const ContentModel& contentModel() const override;
};

/// The order for the best sensor coverage; the last two children are optional:
/// \code{.xml}
/// <BestSensorCov>
///     <UseRxDFs><All/></UseRxDFs>
///     <AOIs><Name>Northern valley</Name></AOIs>
///     <ResultGrid>100</ResultGrid>
///     <Comment>first draft</Comment>
/// </BestSensorCov>
/// \endcode
class ARVXML_EXPORT XmlBestSensorType : public XmlCoverageOrder {
public:
    XmlBestSensorType();

    /// The receivers and direction finders to use, tag "UseRxDFs".
    const XmlNameAllMultiType* useRxDFs() const { return &m_sensors; }
    void setUseRxDFs(const XmlNameAllMultiType& sensors) { m_sensors = sensors; }

    bool hasComment() const { return m_comment.isPresent(); }
    /// A comment of 1 to 128 characters, tag "Comment"; null when absent. Reading replaces it.
    const XmlObjNameType* comment() const { return m_comment.get(); }
    void setComment(const XmlObjNameType& comment) { m_comment.set(comment); }

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlObjNameType> m_comment;
};

} // namespace ArvXml
