#pragma once

/// \file
/// The calculation orders for possible sites and for the link between two objects.

#include "arvxml/composite.h"
#include "arvxml/names.h"
#include "arvxml/resultgrid.h"

namespace ArvXml {

/// The order of possible sensor sites within deployment areas, against known emitters, a number of
/// random ones, or both; all but the deployment areas is optional:
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
/// Random emitters need a number from 0 to 500 ("RandomEmitters/Number out of bounds") and a
/// distribution ("RandomEmitters distribution not set"); without a distribution they are not written, and
/// one beyond the known ones is written as "UNDEFINED", which no reader accepts. With a number below 0 they are read
/// and not written. Inside "RandomEmitters" the children that follow it are read, too.
///
/// While reading, a number that is no integer is "Illegal value for "Number" (must be numeric)", an
/// unknown distribution "Illegal value for "Distribution"".
class ARVXML_EXPORT XmlFindSitesType : public XmlComposite {
public:
    /// How random emitters are placed, with the texts.
    enum Distribution : int {
        Undefined = 0, ///< Not told: no random emitters are written.
        Random = 1,    ///< "Random"
        Grid = 2,      ///< "Grid"
    };

    XmlFindSitesType();

    bool hasKnownEmitters() const { return m_knownEmitters.isPresent(); }
    /// The known emitters to consider, tag "UseKnownEmitters"; null when absent. Reading replaces those held.
    const XmlNameAllMultiType* knownEmitters() const { return m_knownEmitters.get(); }
    void setKnownEmitters(const XmlNameAllMultiType& emitters) { m_knownEmitters.set(emitters); }

    /// Whether random emitters are asked for: a number of 0 or more, and a distribution.
    bool hasRandEmitters() const;
    /// The number of random emitters, -1 (the default) for none; 0 to 500.
    int randNumber() const { return m_randNumber; }
    void setRandNumber(int number) { m_randNumber = number; }

    /// How the random emitters are placed; Undefined by default.
    Distribution randDistri() { return m_randDistribution; }
    Distribution randDistri() const { return m_randDistribution; }
    void setRandDistri(Distribution distribution) { m_randDistribution = distribution; }

    /// The deployment areas in which sites are sought, tag "DeploymentAreas".
    const XmlNameAllMultiType* deploymentAreas() const { return &m_deploymentAreas; }
    void setDeploymentAreas(const XmlNameAllMultiType& areas) { m_deploymentAreas = areas; }

    bool hasResultGrid() const { return m_resultGrid.isPresent(); }
    /// The spacing of the result grid, tag "ResultGrid"; null when absent. Reading replaces the one held.
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

/// The order to plan the link between two named objects, both required, in this order:
/// \code{.xml}
/// <InterlinkPlanning>
///     <FirstName>Site 1</FirstName>
///     <SecondName>Site 2</SecondName>
/// </InterlinkPlanning>
/// \endcode
/// A name of more than 128 characters is an error while reading ("FirstName too long (max. 128)"),
/// though it is stored; setters and judging know no such limit. An empty one is a problem afterwards
/// ("FirstName not set").
class ARVXML_EXPORT XmlInterlinkPlanningType : public XmlComposite {
public:
    XmlInterlinkPlanningType();

    /// The object at one end of the link, tag "FirstName": 1 to 128 characters.
    const QString& firstName() const { return m_firstName; }
    void setFirstName(const QString& name) { m_firstName = name; }

    /// The object at the other end, tag "SecondName": likewise.
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
