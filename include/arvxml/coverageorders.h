#pragma once

#include "arvxml/element.h"
#include "arvxml/names.h"
#include "arvxml/resultgrid.h"

namespace ArvXml {

/// The base of the orders that ask for a result over areas of interest: the sensors to use, the
/// areas, and optionally the spacing of the result grid.
///
/// Sensors and areas are always held, always written, and required on reading. A grid read replaces
/// the one held; what the document does not mention stays as it was.
/// Name lists grow when read again, until "All" empties them.
class ARVXML_EXPORT XmlCoverageOrder : public XmlComposite {
public:
    /// The areas of interest.
    const XmlNameAllMultiType* AOIs() const { return &m_areas; }
    void setAOIs(const XmlNameAllMultiType& areas) { m_areas = areas; }

    bool hasResultGrid() const { return m_resultGrid.isPresent(); }
    /// The spacing of the result grid, null when absent.
    const XmlResultGridType* resultGrid() const { return m_resultGrid.get(); }
    void setResultGrid(const XmlResultGridType& resultGrid) { m_resultGrid.set(resultGrid); }

protected:
    using XmlComposite::XmlComposite;

    XmlNameAllMultiType m_sensors;
    XmlNameAllMultiType m_areas;
    OptionalChild<XmlResultGridType> m_resultGrid;
};

/// The probability level of a circular error, in percent: `<Probability>90</Probability>`.
///
/// Texts "50", "66", "75", "90", "95"; another text is the reader error "Illegal enum value" (without
/// a full stop). An undefined level is reported as "Illegal probability value.".
class ARVXML_EXPORT XmlCepProbType : public XmlEnumeration {
public:
    enum Prob : int {
        Undefined = 0,
        Prob50 = 1,
        Prob66 = 2,
        Prob75 = 3,
        Prob90 = 4,
        Prob95 = 5,
    };

    XmlCepProbType();
    Prob prob() { return static_cast<Prob>(m_value); }
    Prob prob() const { return static_cast<Prob>(m_value); }
    void setProb(Prob prob) { m_value = prob; }

protected:
    const EnumerationRules& rules() const override;
};

/// The order of the circular error probable of direction-finding fixes: `<CEP><UseDFs>...</UseDFs>
/// <AOIs>...</AOIs><Probability>90</Probability><ResultGrid>100</ResultGrid></CEP>`, the last two
/// optional.
class ARVXML_EXPORT XmlCepType : public XmlCoverageOrder {
public:
    XmlCepType();
    /// The direction finders to use.
    const XmlNameAllMultiType* useDFs() const { return &m_sensors; }
    void setUseDFs(const XmlNameAllMultiType& sensors) { m_sensors = sensors; }

    bool hasProbability() const { return m_probability.isPresent(); }
    /// The probability level, null when absent.
    const XmlCepProbType* probability() const { return m_probability.get(); }
    void setProbability(const XmlCepProbType& probability) { m_probability.set(probability); }

protected:
    const ElementForm& form() const override;

private:
    OptionalChild<XmlCepProbType> m_probability;
};

/// The order of the detection probability: `<DetectionProbability><UseRxDFs>...</UseRxDFs>
/// <AOIs>...</AOIs><ResultGrid>100</ResultGrid></DetectionProbability>`, the grid optional.
class ARVXML_EXPORT XmlDetectProbType : public XmlCoverageOrder {
public:
    XmlDetectProbType();
    /// The receivers and direction finders to use.
    const XmlNameAllMultiType* useRxDFs() const { return &m_sensors; }
    void setUseRxDFs(const XmlNameAllMultiType& sensors) { m_sensors = sensors; }

protected:
    const ElementForm& form() const override;
};

/// The order of the direction-finding coverage: `<DFcoverage><UseDFs>...</UseDFs><AOIs>...</AOIs>
/// <ResultGrid>100</ResultGrid></DFcoverage>`, the grid optional.
class ARVXML_EXPORT XmlDfCovType : public XmlCoverageOrder {
public:
    XmlDfCovType();
    /// The direction finders to use.
    const XmlNameAllMultiType* useDFs() const { return &m_sensors; }
    void setUseDFs(const XmlNameAllMultiType& sensors) { m_sensors = sensors; }

protected:
    const ElementForm& form() const override;
};

/// The order of the best sensor coverage: `<BestSensorCov><UseRxDFs>...</UseRxDFs><AOIs>...</AOIs>
/// <ResultGrid>100</ResultGrid><Comment>...</Comment></BestSensorCov>`, the last two optional.
class ARVXML_EXPORT XmlBestSensorType : public XmlCoverageOrder {
public:
    XmlBestSensorType();
    /// The receivers and direction finders to use.
    const XmlNameAllMultiType* useRxDFs() const { return &m_sensors; }
    void setUseRxDFs(const XmlNameAllMultiType& sensors) { m_sensors = sensors; }

    bool hasComment() const { return m_comment.isPresent(); }
    /// A comment of 1 to 128 characters, null when absent.
    const XmlObjNameType* comment() const { return m_comment.get(); }
    void setComment(const XmlObjNameType& comment) { m_comment.set(comment); }

protected:
    const ElementForm& form() const override;

private:
    OptionalChild<XmlObjNameType> m_comment;
};

} // namespace ArvXml
