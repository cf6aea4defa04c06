#pragma once

#include <arvxml/arvxml.h>

#include <QtCore/QString>

#include <map>

/// The planning objects that the clients have created, by kind and name, and the propagation model that
/// they have chosen. They are kept in memory only, and all clients share them.
class Plan {
public:
    /// Carries \a command out: adds its object, or puts it in the place of the one of the same kind and
    /// name. Returns why that is not possible, empty when it was done.
    QString create(const ArvXml::XmlCmdCreate& command);

    /// Carries \a command out: removes one object of a kind, or all. Returns why that is not possible,
    /// empty when it was done.
    QString remove(const ArvXml::XmlCmdDelete& command);

    /// Takes the model that \a command selects. Its parameters are not kept: calculations are only pretended.
    void choose(const ArvXml::XmlPropModelType& command);
    /// The name of the model chosen last, "Free-space" when none was.
    QString modelName() const;

    /// The first station by name, null when there is none.
    const ArvXml::XmlStationType* firstStation() const;
    /// The first of the deployment areas that \a names tells, null when it is not known.
    const ArvXml::XmlDeploymentAreaType* firstDeploymentArea(const ArvXml::XmlNameAllMultiType& names) const;

private:
    template <typename Object>
    using ByName = std::map<QString, Object>;

    ByName<ArvXml::XmlDeploymentAreaType> m_deploymentAreas;
    ByName<ArvXml::XmlAoiType> m_areasOfInterest;
    ByName<ArvXml::XmlEmitterType> m_emitters;
    ByName<ArvXml::XmlReceiverType> m_receivers;
    ByName<ArvXml::XmlDfType> m_directionFinders;
    ByName<ArvXml::XmlStationType> m_stations;
    ByName<ArvXml::XmlSignalPathType> m_signalPaths;
    ByName<ArvXml::XmlDeviceType> m_devices;
    ArvXml::XmlPropModelEnumType::Model m_model = ArvXml::XmlPropModelEnumType::ModelFreespace;
};
