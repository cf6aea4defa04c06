#include "planning_service/calculations.h"

using namespace ArvXml;

namespace {

/// The name of the next picture that the service "renders".
QString nextScreenshot()
{
    static int number = 0;
    return QStringLiteral("result-%1.png").arg(++number);
}

/// A position in \a area: the middle of a rectangle, the first corner of a polygon.
XmlCoordinateType siteIn(const XmlDeploymentAreaType& area)
{
    if (area.hasAreaPoly())
        return *area.areaPoly()->vertices().first(); // when read, a polygon has three corners at least
    const XmlCoordinateType& upperLeft = *area.areaRect()->upperLeft();
    const XmlCoordinateType& lowerRight = *area.areaRect()->lowerRight();
    XmlCoordinateType middle;
    middle.setLongitude((upperLeft.longitude() + lowerRight.longitude()) / 2);
    middle.setLatitude((upperLeft.latitude() + lowerRight.latitude()) / 2);
    return middle;
}

/// What a client can read of \a station. Signal paths and interlinks are left out: the library writes
/// an interlink, and some devices, in a way that its own reader refuses.
XmlStationType readable(const XmlStationType& station)
{
    XmlStationType result;
    result.setObjName(*station.objName());
    result.setPosition(*station.position());
    if (station.hasRxParam())
        result.setRxParam(*station.rxParam());
    if (station.hasDfPrecision())
        result.setDfPrecision(*station.dfPrecision());
    return result;
}

XmlStationType newStation(const XmlDeploymentAreaType& area)
{
    XmlObjNameType name;
    name.setObjName(QStringLiteral("Proposed station"));
    XmlRxParamType receiver;
    receiver.setAntennaHeight(*area.antHgt());
    receiver.setRxThres(*area.rxThresh());

    XmlStationType station;
    station.setObjName(name);
    station.setPosition(siteIn(area));
    station.setRxParam(receiver);
    return station;
}

} // namespace

XmlInterlinkResultType planInterlink(const XmlInterlinkPlanningType& order, const QString& model)
{
    XmlInterlinkResultType result;
    result.setParameters(order);
    result.setResultText(QStringLiteral("The link from %1 to %2 is feasible, calculated with %3.")
                             .arg(order.firstName(), order.secondName(), model));
    result.setScreenshotFilename(nextScreenshot());
    return result;
}

/// A grid result names the kind of the calculation and repeats the order's parameters.
XmlGridResultType calculateGrid(const XmlCmdCalc& command)
{
    XmlGridResultType result;
    if (command.hasFindSites()) {
        result.setType(XmlGridResultType::ResultFindSites);
        result.setFindSites(*command.findSites());
    } else if (command.hasCep()) {
        result.setType(XmlGridResultType::ResultCep);
        result.setCep(*command.cep());
    } else if (command.hasDetectProb()) {
        result.setType(XmlGridResultType::ResultDetectProb);
        result.setDetectProb(*command.detectProb());
    } else if (command.hasDfCov()) {
        result.setType(XmlGridResultType::ResultDfCoverage);
        result.setDfCov(*command.dfCov());
    } else if (command.hasBestSensor()) {
        result.setType(XmlGridResultType::ResultBestSensorCov);
        result.setBestSensor(*command.bestSensor());
    }
    result.setScreenshotFilename(nextScreenshot());
    return result;
}

std::optional<XmlStationType> proposeStation(const XmlFindSitesType& order, const Plan& plan)
{
    if (const XmlStationType* station = plan.firstStation())
        return readable(*station);
    if (const XmlDeploymentAreaType* area = plan.firstDeploymentArea(*order.deploymentAreas()))
        return newStation(*area);
    return std::nullopt;
}
