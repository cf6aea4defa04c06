#include "planning_service/plan.h"

using namespace ArvXml;

namespace {

/// A client that runs wild must not fill the service's memory.
constexpr std::size_t maxObjectsOfAKind = 10000;

template <typename Object>
QString put(std::map<QString, Object>& objects, const Object& object)
{
    const QString name = object.objName()->objName();
    if (objects.size() == maxObjectsOfAKind && objects.count(name) == 0)
        return QStringLiteral("The plan holds too many objects of this kind.");
    objects[name] = object;
    return QString();
}

template <typename Object>
QString take(std::map<QString, Object>& objects, const XmlNameAllType& names)
{
    if (names.all())
        objects.clear();
    else if (objects.erase(names.objName()->objName()) == 0)
        return QStringLiteral("The plan holds no object of this kind with the name \"%1\".")
            .arg(names.objName()->objName());
    return QString();
}

template <typename Object>
const Object* firstOf(const std::map<QString, Object>& objects)
{
    return objects.empty() ? nullptr : &objects.begin()->second;
}

} // namespace

QString Plan::create(const XmlCmdCreate& command)
{
    if (command.hasDeploymentArea())
        return put(m_deploymentAreas, *command.deploymentArea());
    if (command.hasAoi())
        return put(m_areasOfInterest, *command.aoi());
    if (command.hasEmitter())
        return put(m_emitters, *command.emitter());
    if (command.hasReceiver())
        return put(m_receivers, *command.receiver());
    if (command.hasDf())
        return put(m_directionFinders, *command.df());
    if (command.hasStation())
        return put(m_stations, *command.station());
    if (command.hasSignalPath())
        return put(m_signalPaths, *command.signalPath());
    return put(m_devices, *command.device());
}

QString Plan::remove(const XmlCmdDelete& command)
{
    if (command.hasDeploy())
        return take(m_deploymentAreas, *command.deploy());
    if (command.hasAoi())
        return take(m_areasOfInterest, *command.aoi());
    if (command.hasEmitter())
        return take(m_emitters, *command.emitter());
    if (command.hasReceiver())
        return take(m_receivers, *command.receiver());
    if (command.hasDf())
        return take(m_directionFinders, *command.df());
    if (command.hasStation())
        return take(m_stations, *command.station());
    if (command.hasSignalPath())
        return take(m_signalPaths, *command.signalPath());
    return take(m_devices, *command.device());
}

void Plan::choose(const XmlPropModelType& command)
{
    // A command may bring parameters without a selection: the model stays then.
    if (command.hasModel())
        m_model = command.model()->model();
}

QString Plan::modelName() const
{
    static const char* const names[] = {"undefined", "Free-space", "OLOS",  "ITM",         "P.452",
                                        "P.1546",    "P.526",      "P.533", "Okumura-Hata"};
    return QLatin1String(names[m_model]);
}

const XmlStationType* Plan::firstStation() const
{
    return firstOf(m_stations);
}

const XmlDeploymentAreaType* Plan::firstDeploymentArea(const XmlNameAllMultiType& names) const
{
    if (names.all())
        return firstOf(m_deploymentAreas);
    const auto found = m_deploymentAreas.find(names.objNames().first()->objName());
    return found == m_deploymentAreas.end() ? nullptr : &found->second;
}
