#pragma once

/// \file
/// The results of calculations over an area, and the range of a grid's values.

#include "arvxml/composite.h"
#include "arvxml/coverageorders.h"
#include "arvxml/siteorders.h"

namespace ArvXml {

/// The result of a calculation over an area. The parameters repeat the order, in a wrapper with its tag. The picture is
/// a file of the service, transferred by name only. Valid with a type ("Type not defined"), the parameters of that type
/// and no others ("Type is 'CEP' but no CEP parameters or other parameters found"), and a file name ("Screenshot path
/// not set"). A type outside the enumerators is invalid without a reported problem.
/// \code{.xml}
/// <GridResult type="CEP">
///     <CEP>
///         <Parameter>
///             <UseDFs><All/></UseDFs>
///             <AOIs><Name>Northern valley</Name></AOIs>
///         </Parameter>
///         <ScreenshotFilename>cep.png</ScreenshotFilename>
///     </CEP>
/// </GridResult>
/// \endcode
/// Reading never succeeds. In a complete document it stops after "Parameter": the parameters are read with the tag of
/// the wrapper ("CEP") as theirs, and so refuse the end tag of "Parameter" ("Unexpected token "EndElement": Parameter",
/// in their class). Type and parameters are kept, replacing those of that type; the file name is not reached.
class ARVXML_EXPORT XmlGridResultType : public XmlComposite {
public:
    /// The types of calculations, with the texts of the attribute and the wrapper.
    enum ResultType : int {
        ResultUndefined = 0,     ///< Not set.
        ResultFindSites = 1,     ///< "FindSites", wrapper "FindPossibleSites"
        ResultCep = 2,           ///< "CEP", wrapper "CEP"
        ResultDetectProb = 3,    ///< "DetectProb", wrapper "DetectionProbability"
        ResultDfCoverage = 4,    ///< "DfCoverage", wrapper "DFcoverage"
        ResultBestSensorCov = 5, ///< "BestSensorCov", wrapper "BestSensorCov"
    };

    XmlGridResultType();

    /// Attribute "type"; other texts are the reader error "Illegal attribute value in "type"". An undefined type is
    /// written as "UNDEFINED", which no reader accepts.
    ResultType type() const { return m_type; }
    void setType(ResultType type) { m_type = type; }

    /// Parameters in the wrapper "FindPossibleSites"; null when absent.
    const XmlFindSitesType* findSites() const { return m_findSites.get(); }
    bool hasFindSites() const { return m_findSites.isPresent(); }
    void setFindSites(const XmlFindSitesType& parameters) { m_findSites.set(parameters); }

    /// Parameters in the wrapper "CEP"; null when absent.
    const XmlCepType* cep() const { return m_cep.get(); }
    bool hasCep() const { return m_cep.isPresent(); }
    void setCep(const XmlCepType& parameters) { m_cep.set(parameters); }

    /// Parameters in the wrapper "DetectionProbability"; null when absent.
    const XmlDetectProbType* detectProb() const { return m_detectProb.get(); }
    bool hasDetectProb() const { return m_detectProb.isPresent(); }
    void setDetectProb(const XmlDetectProbType& parameters) { m_detectProb.set(parameters); }

    /// Parameters in the wrapper "DFcoverage"; null when absent.
    const XmlDfCovType* dfCov() const { return m_dfCov.get(); }
    bool hasDfCov() const { return m_dfCov.isPresent(); }
    void setDfCov(const XmlDfCovType& parameters) { m_dfCov.set(parameters); }

    /// Parameters in the wrapper "BestSensorCov"; null when absent.
    const XmlBestSensorType* bestSensor() const { return m_bestSensor.get(); }
    bool hasBestSensor() const { return m_bestSensor.isPresent(); }
    void setBestSensor(const XmlBestSensorType& parameters) { m_bestSensor.set(parameters); }

    /// The name of the picture file, tag "ScreenshotFilename"; written in every wrapper.
    const QString& screenshotFilename() const { return m_screenshotFilename; }
    void setScreenshotFilename(const QString& filename) { m_screenshotFilename = filename; }

    bool isValid() const override;
    void reset() override;

protected:
    void addErrors() override;

private:
    const ContentModel& contentModel() const override;

    ResultType m_type = ResultUndefined;
    OptionalChild<XmlFindSitesType> m_findSites;
    OptionalChild<XmlCepType> m_cep;
    OptionalChild<XmlDetectProbType> m_detectProb;
    OptionalChild<XmlDfCovType> m_dfCov;
    OptionalChild<XmlBestSensorType> m_bestSensor;
    QString m_screenshotFilename;
};

/// The range of the values of a result grid: `<Values version="1.0" unit="dB"><Min>-12.5</Min><Max>40</Max></Values>`.
/// Both tags are required, in this order. The numbers are written with six significant digits and not compared; an
/// empty tag leaves its number unchanged. White space between the tags is refused ("Unexpected characters"): an
/// indented document cannot be read. The unit must not be empty ("Missing mandatory attributes"). Versions other than
/// "1.0" are refused, even an empty one. A missing attribute keeps its value. reset() changes only the numbers.
class ARVXML_EXPORT XmlGridValuesType : public XmlComposite, public XmlVersioned {
public:
    XmlGridValuesType();

    /// The unit of the values, attribute "unit": any text, empty (and invalid) by default.
    const QString& unit() const { return m_unit; }
    void setUnit(const QString& unit) { m_unit = unit; }

    /// The minimum, tag "Min"; 0.0 by default.
    double min() const { return m_min; }
    void setMin(double min) { m_min = min; }

    /// The maximum, tag "Max"; 0.0 by default.
    double max() const { return m_max; }
    void setMax(double max) { m_max = max; }

    bool isValid() const override;
    void reset() override;

protected:
    void addErrors() override;

private:
    const ContentModel& contentModel() const override;

    QString m_unit;
    double m_min = 0.0;
    double m_max = 0.0;
};

} // namespace ArvXml
