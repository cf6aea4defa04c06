#include "plainobjects.h"

#include <algorithm>

namespace Bench::Plain {

void refuse(QXmlStreamReader& reader)
{
    reader.raiseError(QStringLiteral("Unexpected element %1").arg(reader.name().toString()));
}

namespace {

double readReal(QXmlStreamReader& reader)
{
    bool ok = false;
    const double value = reader.readElementText().toDouble(&ok);
    if (!ok)
        reader.raiseError(QStringLiteral("Not a number"));
    return value;
}

int readInteger(QXmlStreamReader& reader)
{
    bool ok = false;
    const int value = reader.readElementText().toInt(&ok);
    if (!ok)
        reader.raiseError(QStringLiteral("Not an integer"));
    return value;
}

double readFrequency(QXmlStreamReader& reader)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    const auto unit = attributes.value(QLatin1String("unit"));
    double factor = 1.0;
    if (unit == QLatin1String("MHz"))
        factor = 1.0;
    else if (unit == QLatin1String("kHz"))
        factor = 0.001;
    else if (unit == QLatin1String("GHz"))
        factor = 1000.0;
    else if (unit == QLatin1String("Hz"))
        factor = 1e-6;
    else
        reader.raiseError(QStringLiteral("Unknown unit"));
    return readReal(reader) * factor;
}

// Regions

Position readPosition(QXmlStreamReader& reader)
{
    Position position;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Longitude"))
            position.longitude = readReal(reader);
        else if (reader.name() == QLatin1String("Latitude"))
            position.latitude = readReal(reader);
        else
            refuse(reader);
    }
    return position;
}

Vertex readVertex(QXmlStreamReader& reader)
{
    Vertex vertex;
    const QXmlStreamAttributes attributes = reader.attributes();
    bool ok = false;
    vertex.number = attributes.value(QLatin1String("number")).toInt(&ok);
    if (!ok)
        reader.raiseError(QStringLiteral("Not an integer"));
    vertex.position = readPosition(reader);
    return vertex;
}

Rectangle readRectangle(QXmlStreamReader& reader)
{
    Rectangle rectangle;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("UpperLeft"))
            rectangle.upperLeft = readPosition(reader);
        else if (reader.name() == QLatin1String("LowerRight"))
            rectangle.lowerRight = readPosition(reader);
        else
            refuse(reader);
    }
    return rectangle;
}

std::vector<Vertex> readPolygon(QXmlStreamReader& reader)
{
    std::vector<Vertex> vertices;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Vertex"))
            vertices.push_back(readVertex(reader));
        else
            refuse(reader);
    }
    const auto byNumber = [](const Vertex& left, const Vertex& right) { return left.number < right.number; };
    if (!std::is_sorted(vertices.begin(), vertices.end(), byNumber))
        std::stable_sort(vertices.begin(), vertices.end(), byNumber);
    return vertices;
}

// The parameters of sites

TxParameter readTxParameter(QXmlStreamReader& reader)
{
    TxParameter parameter;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Frequency"))
            parameter.frequency = readFrequency(reader);
        else if (reader.name() == QLatin1String("TxPower"))
            parameter.power = readReal(reader);
        else if (reader.name() == QLatin1String("AntennaHeight"))
            parameter.antennaHeight = readInteger(reader);
        else if (reader.name() == QLatin1String("Bandwidth"))
            parameter.bandwidth = readInteger(reader);
        else
            refuse(reader);
    }
    return parameter;
}

RxParameter readRxParameter(QXmlStreamReader& reader)
{
    RxParameter parameter;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("AntennaHeight"))
            parameter.antennaHeight = readInteger(reader);
        else if (reader.name() == QLatin1String("RxThreshold"))
            parameter.threshold = readReal(reader);
        else
            refuse(reader);
    }
    return parameter;
}

Interlink readInterlink(QXmlStreamReader& reader)
{
    Interlink interlink;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Frequency"))
            interlink.frequency = readFrequency(reader);
        else if (reader.name() == QLatin1String("TxPower"))
            interlink.power = readReal(reader);
        else if (reader.name() == QLatin1String("RxThreshold"))
            interlink.threshold = readReal(reader);
        else if (reader.name() == QLatin1String("AntennaHeight"))
            interlink.antennaHeight = readInteger(reader);
        else
            refuse(reader);
    }
    return interlink;
}

// Parts of signal paths and devices

std::vector<double> readReals(QXmlStreamReader& reader, QLatin1String tag)
{
    std::vector<double> values;
    while (reader.readNextStartElement()) {
        if (reader.name() == tag)
            values.push_back(readReal(reader));
        else
            refuse(reader);
    }
    return values;
}

std::vector<double> readFrequencies(QXmlStreamReader& reader)
{
    std::vector<double> values;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Frequency"))
            values.push_back(readFrequency(reader));
        else
            refuse(reader);
    }
    return values;
}

std::vector<Device> readDevices(QXmlStreamReader& reader)
{
    std::vector<Device> devices;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Device"))
            devices.push_back(readDevice(reader));
        else
            refuse(reader);
    }
    return devices;
}

LengthByKey readLengthByKey(QXmlStreamReader& reader)
{
    LengthByKey entry;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Key"))
            entry.key = readInteger(reader);
        else if (reader.name() == QLatin1String("Value"))
            entry.length = readInteger(reader);
        else
            refuse(reader);
    }
    return entry;
}

std::vector<LengthByKey> readLengthsByKey(QXmlStreamReader& reader)
{
    std::vector<LengthByKey> entries;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Map"))
            entries.push_back(readLengthByKey(reader));
        else
            refuse(reader);
    }
    return entries;
}

} // namespace

// Areas

DeploymentArea readDeploymentArea(QXmlStreamReader& reader)
{
    DeploymentArea area;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("SignalPath"))
            area.signalPath = readSignalPath(reader);
        else if (reader.name() == QLatin1String("Name"))
            area.name = reader.readElementText();
        else if (reader.name() == QLatin1String("AreaRect"))
            area.region.rectangle = readRectangle(reader);
        else if (reader.name() == QLatin1String("AreaPolygon"))
            area.region.polygon = readPolygon(reader);
        else if (reader.name() == QLatin1String("AntennaHeight"))
            area.antennaHeight = readInteger(reader);
        else if (reader.name() == QLatin1String("RxThreshold"))
            area.threshold = readReal(reader);
        else if (reader.name() == QLatin1String("Frequency"))
            area.frequency = readFrequency(reader);
        else if (reader.name() == QLatin1String("TxPower"))
            area.power = readReal(reader);
        else
            refuse(reader);
    }
    return area;
}

AreaOfInterest readAreaOfInterest(QXmlStreamReader& reader)
{
    AreaOfInterest area;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Name"))
            area.name = reader.readElementText();
        else if (reader.name() == QLatin1String("AreaRect"))
            area.region.rectangle = readRectangle(reader);
        else if (reader.name() == QLatin1String("AreaPolygon"))
            area.region.polygon = readPolygon(reader);
        else if (reader.name() == QLatin1String("TxParameter"))
            area.transmitter = readTxParameter(reader);
        else if (reader.name() == QLatin1String("RxThreshold"))
            area.threshold = readReal(reader);
        else
            refuse(reader);
    }
    return area;
}

// Sites

Station readStation(QXmlStreamReader& reader)
{
    Station station;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Name"))
            station.name = reader.readElementText();
        else if (reader.name() == QLatin1String("SignalPath"))
            station.signalPath = readSignalPath(reader);
        else if (reader.name() == QLatin1String("Position"))
            station.position = readPosition(reader);
        else if (reader.name() == QLatin1String("RxParameter"))
            station.receiver = readRxParameter(reader);
        else if (reader.name() == QLatin1String("DFprecision"))
            station.precision = readInteger(reader);
        else if (reader.name() == QLatin1String("StationInterlink"))
            station.interlink = readInterlink(reader);
        else
            refuse(reader);
    }
    return station;
}

Receiver readReceiver(QXmlStreamReader& reader)
{
    Receiver receiver;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Name"))
            receiver.name = reader.readElementText();
        else if (reader.name() == QLatin1String("Position"))
            receiver.position = readPosition(reader);
        else if (reader.name() == QLatin1String("RxParameter"))
            receiver.receiver = readRxParameter(reader);
        else if (reader.name() == QLatin1String("StationInterlink"))
            receiver.interlink = readInterlink(reader);
        else
            refuse(reader);
    }
    return receiver;
}

Emitter readEmitter(QXmlStreamReader& reader)
{
    Emitter emitter;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Name"))
            emitter.name = reader.readElementText();
        else if (reader.name() == QLatin1String("Position"))
            emitter.position = readPosition(reader);
        else if (reader.name() == QLatin1String("TxParameter"))
            emitter.transmitter = readTxParameter(reader);
        else
            refuse(reader);
    }
    return emitter;
}

DirectionFinder readDirectionFinder(QXmlStreamReader& reader)
{
    DirectionFinder finder;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Name"))
            finder.name = reader.readElementText();
        else if (reader.name() == QLatin1String("Position"))
            finder.position = readPosition(reader);
        else if (reader.name() == QLatin1String("RxParameter"))
            finder.receiver = readRxParameter(reader);
        else if (reader.name() == QLatin1String("DFprecision"))
            finder.precision = readInteger(reader);
        else if (reader.name() == QLatin1String("StationInterlink"))
            finder.interlink = readInterlink(reader);
        else
            refuse(reader);
    }
    return finder;
}

// Signal paths and devices

SignalPath readSignalPath(QXmlStreamReader& reader)
{
    SignalPath path;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Name"))
            path.name = reader.readElementText();
        else if (reader.name() == QLatin1String("SINAD"))
            path.sinad = readReal(reader);
        else if (reader.name() == QLatin1String("Device"))
            path.devices = readDevices(reader);
        else if (reader.name() == QLatin1String("AntHgtMap"))
            path.antennaHeights = readLengthsByKey(reader);
        else if (reader.name() == QLatin1String("CabLenMap"))
            path.cableLengths = readLengthsByKey(reader);
        else
            refuse(reader);
    }
    return path;
}

Device readDevice(QXmlStreamReader& reader)
{
    Device device;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("DeviceCategory"))
            device.category = reader.readElementText();
        else if (reader.name() == QLatin1String("Name"))
            device.name = reader.readElementText();
        else if (reader.name() == QLatin1String("Frequencies"))
            device.frequencies = readFrequencies(reader);
        else if (reader.name() == QLatin1String("Noises"))
            device.noises = readReals(reader, QLatin1String("Decibel"));
        else if (reader.name() == QLatin1String("KFactors"))
            device.kFactors = readReals(reader, QLatin1String("Decibel"));
        else if (reader.name() == QLatin1String("Attenuations"))
            device.attenuations = readReals(reader, QLatin1String("Decibel"));
        else if (reader.name() == QLatin1String("Gains"))
            device.gains = readReals(reader, QLatin1String("Decibel"));
        else if (reader.name() == QLatin1String("Degrees"))
            device.degrees = readReals(reader, QLatin1String("Degrees"));
        else if (reader.name() == QLatin1String("DBM"))
            device.levels = readReals(reader, QLatin1String("dBm"));
        else
            refuse(reader);
    }
    return device;
}

// Results

ResultRecord readResultRecord(QXmlStreamReader& reader)
{
    ResultRecord record;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Name")) {
            record.name = reader.readElementText();
        } else if (reader.name() == QLatin1String("AreaPolygon")) {
            record.region.polygon = readPolygon(reader);
        } else if (reader.name() == QLatin1String("AreaRect")) {
            record.region.rectangle = readRectangle(reader);
        } else if (reader.name() == QLatin1String("ResultGrid")) {
            record.spacing = readInteger(reader);
        } else if (reader.name() == QLatin1String("Values")) {
            record.unit = reader.attributes().value(QLatin1String("unit")).toString();
            while (reader.readNextStartElement()) {
                if (reader.name() == QLatin1String("Min"))
                    record.min = readReal(reader);
                else if (reader.name() == QLatin1String("Max"))
                    record.max = readReal(reader);
                else
                    refuse(reader);
            }
        } else {
            refuse(reader);
        }
    }
    return record;
}

} // namespace Bench::Plain
