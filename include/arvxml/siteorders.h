#pragma once

/// \file
/// The calculation orders for possible sites and for the link between two objects.

#include "arvxml/composite.h"
#include "arvxml/names.h"
#include "arvxml/resultgrid.h"

namespace ArvXml {

/// The order for possible sensor sites within deployment areas, against known emitters, a number of random ones, or
/// both; all children except the deployment areas are optional. Random emitters need a number from 0 to 500
/// ("RandomEmitters/Number out of bounds") and a distribution ("RandomEmitters distribution not set"). Without a
/// distribution they are not written; one outside the enumerators is written as "UNDEFINED", which no reader accepts.
/// \code{.xml}
/// <FindPossibleSites>
///     <UseKnownEmitters><All/></UseKnownEmitters>
///     <RandomEmitters>
///         <Number>10</Number>
///         <Distribution>Grid</Distribution>
///     </RandomEmitters>
///     <DeploymentAreas><Name>Hill</Name></DeploymentAreas>
///     <ResultGrid>100</ResultGrid>
/// </FindPossibleSites>
/// \endcode
/// On reading, a number that is not an integer is "Illegal value for "Number" (must be numeric)", an unknown
/// distribution "Illegal value for "Distribution"". With a number below 0, random emitters are read but not written.
/// "RandomEmitters" may also contain the children that follow it.
class ARVXML_EXPORT XmlFindSitesType : public XmlComposite {
public:
    /// The distributions of random emitters, with their texts.
    enum Distribution : int {
        Undefined = 0, ///< Not set: no random emitters are written.
        Random = 1,    ///< "Random"
        Grid = 2,      ///< "Grid"
    };

    XmlFindSitesType();

    bool hasKnownEmitters() const { return m_knownEmitters.isPresent(); }
    /// The known emitters to consider, tag "UseKnownEmitters"; null when absent. Reading replaces them.
    const XmlNameAllMultiType* knownEmitters() const { return m_knownEmitters.get(); }
    void setKnownEmitters(const XmlNameAllMultiType& emitters) { m_knownEmitters.set(emitters); }

    /// Whether random emitters are requested: a number of 0 or more and a distribution.
    bool hasRandEmitters() const;
    /// The number of random emitters: 0 to 500, or -1 (the default) for none.
    int randNumber() const { return m_randNumber; }
    void setRandNumber(int number) { m_randNumber = number; }

    /// The distribution of the random emitters; Undefined by default.
    Distribution randDistri() { return m_randDistribution; }
    Distribution randDistri() const { return m_randDistribution; }
    void setRandDistri(Distribution distribution) { m_randDistribution = distribution; }

    /// The deployment areas in which to find sites, tag "DeploymentAreas".
    const XmlNameAllMultiType* deploymentAreas() const { return &m_deploymentAreas; }
    void setDeploymentAreas(const XmlNameAllMultiType& areas) { m_deploymentAreas = areas; }

    bool hasResultGrid() const { return m_resultGrid.isPresent(); }
    /// The spacing of the result grid, tag "ResultGrid"; null when absent. Reading replaces it.
    const XmlResultGridType* resultGrid() const { return m_resultGrid.get(); }
    void setResultGrid(const XmlResultGridType& resultGrid) { m_resultGrid.set(resultGrid); }

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlNameAllMultiType> m_knownEmitters;
    int m_randNumber;
    Distribution m_randDistribution = Undefined;
    XmlNameAllMultiType m_deploymentAreas;
    OptionalChild<XmlResultGridType> m_resultGrid;
};

/// The order to plan the link between two named objects, both required, in the order shown. On reading, a name of more
/// than 128 characters is an error ("FirstName too long (max. 128)") but is stored; setters and validation have no such
/// limit. An empty name is a problem ("FirstName not set").
/// \code{.xml}
/// <InterlinkPlanning>
///     <FirstName>Site 1</FirstName>
///     <SecondName>Site 2</SecondName>
/// </InterlinkPlanning>
/// \endcode
class ARVXML_EXPORT XmlInterlinkPlanningType : public XmlComposite {
public:
    XmlInterlinkPlanningType();

    /// The object at one end of the link, tag "FirstName": 1 to 128 characters.
    const QString& firstName() const { return m_firstName; }
    void setFirstName(const QString& name) { m_firstName = name; }

    /// The object at the other end, tag "SecondName": 1 to 128 characters.
    const QString& secondName() const { return m_secondName; }
    void setSecondName(const QString& name) { m_secondName = name; }

    bool isValid() const override;
    void reset() override;

protected:
    void addErrors() override;

private:
    const ContentModel& contentModel() const override;

    QString m_firstName;
    QString m_secondName;
};

} // namespace ArvXml
