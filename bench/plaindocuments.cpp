#include "plain.h"
#include "plainobjects.h"

namespace Bench::Plain {

namespace {

Envelope readEnvelope(QXmlStreamReader& reader)
{
    Envelope envelope;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("ORDER_ID"))
            envelope.id = reader.readElementText();
        else if (reader.name() == QLatin1String("ORDER_SENDER"))
            envelope.sender = reader.readElementText();
        else
            refuse(reader);
    }
    return envelope;
}

// Commands

/// Appends the object of a command and returns where the command's reference is to go.
template <typename Object>
QString* append(std::vector<Create<Object>>& creates, Object object)
{
    creates.push_back({std::move(object), {}});
    return &creates.back().reference;
}

void readCreate(QXmlStreamReader& reader, Commands& commands)
{
    QString* reference = nullptr;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("DeploymentArea"))
            reference = append(commands.deploymentAreas, readDeploymentArea(reader));
        else if (reader.name() == QLatin1String("AOI"))
            reference = append(commands.areasOfInterest, readAreaOfInterest(reader));
        else if (reader.name() == QLatin1String("Station"))
            reference = append(commands.stations, readStation(reader));
        else if (reader.name() == QLatin1String("Receiver"))
            reference = append(commands.receivers, readReceiver(reader));
        else if (reader.name() == QLatin1String("Emitter"))
            reference = append(commands.emitters, readEmitter(reader));
        else if (reader.name() == QLatin1String("DF"))
            reference = append(commands.directionFinders, readDirectionFinder(reader));
        else if (reader.name() == QLatin1String("Path"))
            reference = append(commands.signalPaths, readSignalPath(reader));
        else if (reader.name() == QLatin1String("Device"))
            reference = append(commands.devices, readDevice(reader));
        else if (reader.name() == QLatin1String("Reference") && reference)
            *reference = reader.readElementText();
        else
            refuse(reader);
    }
}

Commands readCommands(QXmlStreamReader& reader)
{
    Commands commands;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("ORDER_DEF"))
            commands.envelope = readEnvelope(reader);
        else if (reader.name() == QLatin1String("Create"))
            readCreate(reader, commands);
        else
            refuse(reader);
    }
    return commands;
}

// Snapshots

void readDisplayedObjects(QXmlStreamReader& reader, Snapshot& snapshot)
{
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("DeploymentArea"))
            snapshot.deploymentAreas.push_back(readDeploymentArea(reader));
        else if (reader.name() == QLatin1String("AreaOfInterest"))
            snapshot.areasOfInterest.push_back(readAreaOfInterest(reader));
        else if (reader.name() == QLatin1String("KnownEmitter"))
            snapshot.emitters.push_back(readEmitter(reader));
        else if (reader.name() == QLatin1String("Receiver"))
            snapshot.receivers.push_back(readReceiver(reader));
        else if (reader.name() == QLatin1String("DirectionFinder"))
            snapshot.directionFinders.push_back(readDirectionFinder(reader));
        else if (reader.name() == QLatin1String("Result_FindSites"))
            snapshot.sites.push_back(readResultRecord(reader));
        else if (reader.name() == QLatin1String("Result_CEP"))
            snapshot.circularErrors.push_back(readResultRecord(reader));
        else if (reader.name() == QLatin1String("Result_DetectProb"))
            snapshot.detections.push_back(readResultRecord(reader));
        else if (reader.name() == QLatin1String("Result_DfCoverage"))
            snapshot.coverages.push_back(readResultRecord(reader));
        else
            refuse(reader);
    }
}

Snapshot readSnapshot(QXmlStreamReader& reader)
{
    Snapshot snapshot;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("ScreenshotPath"))
            snapshot.path = reader.readElementText();
        else if (reader.name() == QLatin1String("DisplayedObjects"))
            readDisplayedObjects(reader, snapshot);
        else
            refuse(reader);
    }
    return snapshot;
}

// Responses

InterlinkResult readInterlinkResult(QXmlStreamReader& reader)
{
    InterlinkResult result;
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("Parameters")) {
            while (reader.readNextStartElement()) {
                if (reader.name() == QLatin1String("FirstName"))
                    result.firstName = reader.readElementText();
                else if (reader.name() == QLatin1String("SecondName"))
                    result.secondName = reader.readElementText();
                else
                    refuse(reader);
            }
        } else if (reader.name() == QLatin1String("Result")) {
            while (reader.readNextStartElement()) {
                if (reader.name() == QLatin1String("Text"))
                    result.text = reader.readElementText();
                else if (reader.name() == QLatin1String("ScreenshotFilename"))
                    result.picture = reader.readElementText();
                else
                    refuse(reader);
            }
        } else {
            refuse(reader);
        }
    }
    return result;
}

void readAnswer(QXmlStreamReader& reader, Response& response)
{
    response.fault = reader.attributes().value(QLatin1String("status")) == QLatin1String("fault");
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("CommandReference"))
            response.reference = reader.readElementText();
        else if (reader.name() == QLatin1String("ErrorMessage"))
            response.errorMessage = reader.readElementText();
        else if (reader.name() == QLatin1String("EstimatedTime"))
            response.estimatedTime = QDateTime::fromString(reader.readElementText(), Qt::ISODate);
        else if (reader.name() == QLatin1String("ArvVersion"))
            response.version = reader.readElementText();
        else if (reader.name() == QLatin1String("InterlinkResult"))
            response.interlinkResult = readInterlinkResult(reader);
        else
            refuse(reader);
    }
}

Response readResponse(QXmlStreamReader& reader)
{
    Response response;
    const QXmlStreamAttributes attributes = reader.attributes();
    response.automatic = attributes.value(QLatin1String("type")) == QLatin1String("automatic");
    response.last = attributes.value(QLatin1String("final")) == QLatin1String("true");
    response.timestamp = QDateTime::fromString(attributes.value(QLatin1String("timestamp")).toString(), Qt::ISODate);
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("ORDER_DEF"))
            response.envelope = readEnvelope(reader);
        else if (reader.name() == QLatin1String("Automatic") || reader.name() == QLatin1String("Interactive"))
            readAnswer(reader, response);
        else
            refuse(reader);
    }
    return response;
}

} // namespace

QString readDocument(const Document& document, Contents& contents)
{
    QXmlStreamReader reader(document.text);
    if (reader.readNextStartElement()) {
        switch (document.root) {
        case Root::Commands:
            contents.commands.push_back(readCommands(reader));
            break;
        case Root::Snapshot:
            contents.snapshots.push_back(readSnapshot(reader));
            break;
        case Root::Response:
            contents.responses.push_back(readResponse(reader));
            break;
        }
    }
    while (!reader.atEnd())
        reader.readNext();
    return reader.errorString();
}

} // namespace Bench::Plain
