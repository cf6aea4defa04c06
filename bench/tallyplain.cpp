#include "tally.h"

namespace Bench {

using namespace Plain;

namespace {

/// Adds the values of a struct in the order of its members, and tells of what is optional whether it is there.
class PlainTally {
public:
    Tally tally() const { return m_tally; }

    void add(double value) { m_tally.add(value); }
    void add(int value) { m_tally.add(value); }
    void add(const QString& value) { m_tally.add(value); }

    template <typename T>
    void add(const std::optional<T>& value)
    {
        add(value ? 1 : 0);
        if (value)
            add(*value);
    }

    template <typename T>
    void add(const std::vector<T>& values)
    {
        add(static_cast<int>(values.size()));
        for (const T& value : values)
            add(value);
    }

    void add(const Position& position)
    {
        add(position.longitude);
        add(position.latitude);
    }

    void add(const Vertex& vertex)
    {
        add(vertex.number);
        add(vertex.position);
    }

    void add(const Rectangle& rectangle)
    {
        add(rectangle.upperLeft);
        add(rectangle.lowerRight);
    }

    void add(const Region& region)
    {
        add(region.rectangle);
        add(region.polygon);
    }

    void add(const Device& device)
    {
        add(device.category);
        add(device.name);
        for (const auto* values : {&device.frequencies, &device.noises, &device.kFactors, &device.attenuations,
                                   &device.gains, &device.degrees, &device.levels})
            add(*values);
    }

    void add(const LengthByKey& entry)
    {
        add(entry.key);
        add(entry.length);
    }

    void add(const SignalPath& path)
    {
        add(path.name);
        add(path.sinad);
        add(path.devices);
        add(path.antennaHeights);
        add(path.cableLengths);
    }

    void add(const TxParameter& parameter)
    {
        add(parameter.frequency);
        add(parameter.power);
        add(parameter.antennaHeight);
        add(parameter.bandwidth);
    }

    void add(const RxParameter& parameter)
    {
        add(parameter.antennaHeight);
        add(parameter.threshold);
    }

    void add(const Interlink& interlink)
    {
        add(interlink.frequency);
        add(interlink.power);
        add(interlink.threshold);
        add(interlink.antennaHeight);
    }

    void add(const DeploymentArea& area)
    {
        add(area.signalPath);
        add(area.name);
        add(area.region);
        add(area.antennaHeight);
        add(area.threshold);
        add(area.frequency);
        add(area.power);
    }

    void add(const AreaOfInterest& area)
    {
        add(area.name);
        add(area.region);
        add(area.transmitter);
        add(area.threshold);
    }

    void add(const Station& station)
    {
        add(station.name);
        add(station.signalPath);
        add(station.position);
        add(station.receiver);
        add(station.precision);
        add(station.interlink);
    }

    void add(const Receiver& receiver)
    {
        add(receiver.name);
        add(receiver.position);
        add(receiver.receiver);
        add(receiver.interlink);
    }

    void add(const Emitter& emitter)
    {
        add(emitter.name);
        add(emitter.position);
        add(emitter.transmitter);
    }

    void add(const DirectionFinder& finder)
    {
        add(finder.name);
        add(finder.position);
        add(finder.receiver);
        add(finder.precision);
        add(finder.interlink);
    }

    void add(const ResultRecord& record)
    {
        add(record.name);
        add(record.region);
        add(record.spacing);
        add(record.unit);
        add(record.min);
        add(record.max);
    }

    template <typename Object>
    void add(const Create<Object>& create)
    {
        add(create.object);
        add(create.reference);
    }

    void add(const Envelope& envelope)
    {
        add(envelope.id);
        add(envelope.sender);
    }

    void add(const Commands& commands)
    {
        add(commands.envelope);
        add(commands.deploymentAreas);
        add(commands.areasOfInterest);
        add(commands.stations);
        add(commands.receivers);
        add(commands.emitters);
        add(commands.directionFinders);
        add(commands.signalPaths);
        add(commands.devices);
    }

    void add(const Snapshot& snapshot)
    {
        add(snapshot.path);
        add(snapshot.deploymentAreas);
        add(snapshot.areasOfInterest);
        add(snapshot.emitters);
        add(snapshot.receivers);
        add(snapshot.directionFinders);
        add(snapshot.sites);
        add(snapshot.circularErrors);
        add(snapshot.detections);
        add(snapshot.coverages);
    }

    void add(const InterlinkResult& result)
    {
        add(result.firstName);
        add(result.secondName);
        add(result.text);
        add(result.picture);
    }

    void add(const Response& response)
    {
        add(response.automatic ? 1 : 0);
        add(response.last ? 1 : 0);
        add(response.timestamp.toString(Qt::ISODate));
        add(response.envelope);
        add(response.fault ? 1 : 0);
        add(response.reference);
        add(response.errorMessage);
        add(response.estimatedTime.toString(Qt::ISODate));
        add(response.version);
        add(response.interlinkResult);
    }

private:
    Tally m_tally;
};

} // namespace

Tally tallyOf(const Contents& contents)
{
    PlainTally tally;
    tally.add(contents.commands);
    tally.add(contents.snapshots);
    tally.add(contents.responses);
    return tally.tally();
}

} // namespace Bench
