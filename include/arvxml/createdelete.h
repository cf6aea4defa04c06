#pragma once

/// \file
/// The commands to create and delete planning objects.

#include "arvxml/areas.h"
#include "arvxml/command.h"
#include "arvxml/devices.h"
#include "arvxml/emitters.h"
#include "arvxml/names.h"
#include "arvxml/signalpaths.h"
#include "arvxml/stations.h"

namespace ArvXml {

/// The command to create or replace one planning object, followed by the reference:
/// `<Create><Emitter version="1.0">...</Emitter><Reference>42</Reference></Create>`. All objects set are written, in
/// the order of the accessors. A signal path is read as "Path" but written as "SignalPath", which cannot be read back.
/// Reading resets the command first, including its envelope.
class ARVXML_EXPORT XmlCmdCreate : public XmlChoiceCommand {
public:
    XmlCmdCreate();

    bool hasDeploymentArea() const { return m_deploymentArea.isPresent(); }
    /// The deployment area, tag "DeploymentArea"; null when absent.
    const XmlDeploymentAreaType* deploymentArea() const { return m_deploymentArea.get(); }
    void setDeploymentArea(const XmlDeploymentAreaType& object) { m_deploymentArea.set(object); }

    bool hasAoi() const { return m_aoi.isPresent(); }
    /// The area of interest, tag "AOI"; null when absent.
    const XmlAoiType* aoi() const { return m_aoi.get(); }
    void setAoi(const XmlAoiType& object) { m_aoi.set(object); }

    bool hasEmitter() const { return m_emitter.isPresent(); }
    /// The emitter, tag "Emitter"; null when absent.
    const XmlEmitterType* emitter() const { return m_emitter.get(); }
    void setEmitter(const XmlEmitterType& object) { m_emitter.set(object); }

    bool hasReceiver() const { return m_receiver.isPresent(); }
    /// The receiver, tag "Receiver"; null when absent.
    const XmlReceiverType* receiver() const { return m_receiver.get(); }
    void setReceiver(const XmlReceiverType& object) { m_receiver.set(object); }

    bool hasDf() const { return m_df.isPresent(); }
    /// The direction finder, tag "DF"; null when absent.
    const XmlDfType* df() const { return m_df.get(); }
    void setDf(const XmlDfType& object) { m_df.set(object); }

    bool hasStation() const { return m_station.isPresent(); }
    /// The station, tag "Station"; null when absent.
    const XmlStationType* station() const { return m_station.get(); }
    void setStation(const XmlStationType& object) { m_station.set(object); }

    bool hasSignalPath() const { return m_signalPath.isPresent(); }
    /// The signal path, tag "Path" on reading, "SignalPath" on writing; null when absent.
    const XmlSignalPathType* signalPath() const { return m_signalPath.get(); }
    void setSignalPath(const XmlSignalPathType& object) { m_signalPath.set(object); }

    bool hasDevice() const { return m_device.isPresent(); }
    /// The device, tag "Device"; null when absent.
    const XmlDeviceType* device() const { return m_device.get(); }
    void setDevice(const XmlDeviceType& object) { m_device.set(object); }

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlDeploymentAreaType> m_deploymentArea;
    OptionalChild<XmlAoiType> m_aoi;
    OptionalChild<XmlEmitterType> m_emitter;
    OptionalChild<XmlReceiverType> m_receiver;
    OptionalChild<XmlDfType> m_df;
    OptionalChild<XmlStationType> m_station;
    OptionalChild<XmlSignalPathType> m_signalPath;
    OptionalChild<XmlDeviceType> m_device;
};

/// The command to delete one or all planning objects of one kind, followed by the reference; all kinds set are written,
/// in the order of the accessors: `<Delete><Emitter><Name>TX 1</Name></Emitter><Reference>42</Reference></Delete>`.
/// Reading resets the command first, including its envelope.
class ARVXML_EXPORT XmlCmdDelete : public XmlChoiceCommand {
public:
    XmlCmdDelete();

    bool hasDeploy() const { return m_deploymentArea.isPresent(); }
    /// The deployment areas to delete, tag "DeploymentArea"; null when absent.
    const XmlNameAllType* deploy() const { return m_deploymentArea.get(); }
    void setDeploy(const XmlNameAllType& names) { m_deploymentArea.set(names); }

    bool hasAoi() const { return m_aoi.isPresent(); }
    /// The areas of interest to delete, tag "AOI"; null when absent.
    const XmlNameAllType* aoi() const { return m_aoi.get(); }
    void setAoi(const XmlNameAllType& names) { m_aoi.set(names); }

    bool hasEmitter() const { return m_emitter.isPresent(); }
    /// The emitters to delete, tag "Emitter"; null when absent.
    const XmlNameAllType* emitter() const { return m_emitter.get(); }
    void setEmitter(const XmlNameAllType& names) { m_emitter.set(names); }

    bool hasReceiver() const { return m_receiver.isPresent(); }
    /// The receivers to delete, tag "Receiver"; null when absent.
    const XmlNameAllType* receiver() const { return m_receiver.get(); }
    void setReceiver(const XmlNameAllType& names) { m_receiver.set(names); }

    bool hasDf() const { return m_df.isPresent(); }
    /// The direction finders to delete, tag "DF"; null when absent.
    const XmlNameAllType* df() const { return m_df.get(); }
    void setDf(const XmlNameAllType& names) { m_df.set(names); }

    bool hasDevice() const { return m_device.isPresent(); }
    /// The devices to delete, tag "Device"; null when absent.
    const XmlNameAllType* device() const { return m_device.get(); }
    void setDevice(const XmlNameAllType& names) { m_device.set(names); }

    bool hasSignalPath() const { return m_signalPath.isPresent(); }
    /// The signal paths to delete, tag "SignalPath"; null when absent.
    const XmlNameAllType* signalPath() const { return m_signalPath.get(); }
    void setSignalPath(const XmlNameAllType& names) { m_signalPath.set(names); }

    bool hasStation() const { return m_station.isPresent(); }
    /// The stations to delete, tag "Station"; null when absent.
    const XmlNameAllType* station() const { return m_station.get(); }
    void setStation(const XmlNameAllType& names) { m_station.set(names); }

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlNameAllType> m_deploymentArea;
    OptionalChild<XmlNameAllType> m_aoi;
    OptionalChild<XmlNameAllType> m_emitter;
    OptionalChild<XmlNameAllType> m_receiver;
    OptionalChild<XmlNameAllType> m_df;
    OptionalChild<XmlNameAllType> m_device;
    OptionalChild<XmlNameAllType> m_signalPath;
    OptionalChild<XmlNameAllType> m_station;
};

} // namespace ArvXml
