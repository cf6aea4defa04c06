#include "documents.h"

#include "planwriter.h"

#include <numeric>
#include <utility>

namespace Bench {

namespace {

constexpr quint32 seed = 20240305;

/// A command document: the commands that \a create writes, until it has the size.
template <typename Create>
Document commandDocument(qint64 bytes, Create create)
{
    PlanWriter writer(seed);
    writer.open("Commands");
    writer.envelope();
    while (writer.size() < bytes) {
        writer.open("Create");
        create(writer);
        writer.reference("Reference");
        writer.close();
    }
    writer.close();
    return {Root::Commands, writer.finish()};
}

void createDevice(PlanWriter& writer)
{
    writer.device("Device", writer.random().between(50, 400));
}

void createArea(PlanWriter& writer)
{
    const int vertices = writer.random().between(200, 2000);
    if (writer.random().oneIn(2))
        writer.deploymentArea("DeploymentArea", vertices);
    else
        writer.areaOfInterest("AOI", vertices);
}

void createAnything(PlanWriter& writer)
{
    Random& random = writer.random();
    const int choice = random.below(100);
    const int vertices = random.oneIn(2) ? 0 : random.between(3, 12);
    if (choice < 12)
        writer.deploymentArea("DeploymentArea", vertices);
    else if (choice < 24)
        writer.areaOfInterest("AOI", vertices);
    else if (choice < 44)
        writer.station("Station");
    else if (choice < 58)
        writer.receiver("Receiver");
    else if (choice < 78)
        writer.emitter("Emitter");
    else if (choice < 88)
        writer.directionFinder("DF");
    else if (choice < 94)
        writer.signalPath("Path");
    else
        writer.device("Device", random.between(3, 12));
}

Document snapshotDocument(qint64 bytes)
{
    PlanWriter writer(seed);
    const auto areaVertices = [&writer] { return writer.random().oneIn(2) ? 0 : writer.random().between(3, 30); };
    const std::pair<const char*, void (*)(PlanWriter&, const char*, int)> groups[] = {
        {"DeploymentArea", [](PlanWriter& w, const char* tag, int vertices) { w.deploymentArea(tag, vertices); }},
        {"AreaOfInterest", [](PlanWriter& w, const char* tag, int vertices) { w.areaOfInterest(tag, vertices); }},
        {"KnownEmitter", [](PlanWriter& w, const char* tag, int) { w.emitter(tag); }},
        {"Receiver", [](PlanWriter& w, const char* tag, int) { w.receiver(tag); }},
        {"DirectionFinder", [](PlanWriter& w, const char* tag, int) { w.directionFinder(tag); }},
        {"Result_FindSites", [](PlanWriter& w, const char* tag, int) { w.resultRecord(tag); }},
        {"Result_CEP", [](PlanWriter& w, const char* tag, int) { w.resultRecord(tag); }},
        {"Result_DetectProb", [](PlanWriter& w, const char* tag, int) { w.resultRecord(tag); }},
        {"Result_DfCoverage", [](PlanWriter& w, const char* tag, int) { w.resultRecord(tag); }},
    };

    writer.openVersioned("Snapshot");
    writer.text("ScreenshotPath", QStringLiteral("/srv/planning/pictures/plan.png"));
    writer.open("DisplayedObjects");
    int group = 0;
    for (const auto& [tag, write] : groups) {
        ++group;
        while (writer.size() < bytes * group / qint64(std::size(groups)))
            write(writer, tag, areaVertices());
    }
    writer.close();
    writer.close();
    return {Root::Snapshot, writer.finish()};
}

void interlinkResult(PlanWriter& writer)
{
    writer.open("InterlinkResult");
    writer.open("Parameters");
    writer.text("FirstName", writer.placeName());
    writer.text("SecondName", writer.placeName());
    writer.close();
    writer.open("Result");
    writer.text("Text", QStringLiteral("Feasible with a fade margin of %1 dB.").arg(writer.random().between(3, 40)));
    if (writer.random().oneIn(2))
        writer.text("ScreenshotFilename", QStringLiteral("link-%1.png").arg(writer.random().between(1, 9999)));
    writer.close();
    writer.close();
}

void automaticAnswer(PlanWriter& writer)
{
    const int choice = writer.random().below(4);
    writer.open("Automatic");
    writer.attribute("status", choice == 0 ? QStringLiteral("fault") : QStringLiteral("ack"));
    writer.reference("CommandReference");
    if (choice == 0)
        writer.text("ErrorMessage", QStringLiteral("There is no area of interest %1.").arg(writer.placeName()));
    else if (choice == 1)
        writer.text("EstimatedTime", QStringLiteral("2024-03-05T14:07:%1").arg(writer.random().between(10, 59)));
    else if (choice == 2)
        writer.text("ArvVersion", QStringLiteral("3.%1").arg(writer.random().below(20)));
    else
        interlinkResult(writer);
    writer.close();
}

Document responseDocument(quint32 ownSeed)
{
    PlanWriter writer(ownSeed);
    const bool automatic = !writer.random().oneIn(4);
    writer.open("Response");
    writer.attribute("type", automatic ? QStringLiteral("automatic") : QStringLiteral("interactive"));
    writer.attribute("final", writer.random().oneIn(2) ? QStringLiteral("true") : QStringLiteral("false"));
    writer.attribute("timestamp", QStringLiteral("2024-03-05T14:%1:09").arg(writer.random().between(10, 59)));
    writer.envelope();
    if (automatic) {
        automaticAnswer(writer);
    } else {
        writer.open("Interactive");
        interlinkResult(writer);
        writer.close();
    }
    writer.close();
    return {Root::Response, writer.finish()};
}

void appendAnswers(std::vector<Document>& documents, qint64 bytes)
{
    quint32 ownSeed = seed;
    for (qint64 written = 0; written < bytes; written += documents.back().text.size())
        documents.push_back(responseDocument(++ownSeed));
}

/// The numbers of the vertices as they follow each other.
std::vector<int> vertexNumbers(int vertices, VertexOrder order)
{
    std::vector<int> numbers(static_cast<size_t>(vertices));
    if (order == VertexOrder::Falling)
        std::iota(numbers.rbegin(), numbers.rend(), 0);
    else
        std::iota(numbers.begin(), numbers.end(), 0);
    if (order == VertexOrder::Random) {
        Random random(seed);
        for (size_t left = numbers.size(); left > 1; --left)
            std::swap(numbers[left - 1], numbers[static_cast<size_t>(random.below(static_cast<int>(left)))]);
    }
    return numbers;
}

} // namespace

const std::vector<Kind>& mainKinds()
{
    static const std::vector<Kind> kinds = {Kind::Devices, Kind::Creates, Kind::Polygons, Kind::Responses};
    return kinds;
}

QString nameOf(Kind kind)
{
    switch (kind) {
    case Kind::Devices:
        return QStringLiteral("devices");
    case Kind::Creates:
        return QStringLiteral("creates");
    case Kind::Polygons:
        return QStringLiteral("polygons");
    case Kind::Responses:
        return QStringLiteral("responses");
    case Kind::Snapshot:
        return QStringLiteral("snapshot");
    case Kind::Answers:
        return QStringLiteral("answers");
    }
    Q_UNREACHABLE();
}

std::vector<Document> generate(Kind kind, qint64 bytes)
{
    std::vector<Document> documents;
    switch (kind) {
    case Kind::Devices:
        documents.push_back(commandDocument(bytes, createDevice));
        break;
    case Kind::Creates:
        documents.push_back(commandDocument(bytes, createAnything));
        break;
    case Kind::Polygons:
        documents.push_back(commandDocument(bytes, createArea));
        break;
    case Kind::Responses:
        documents.push_back(snapshotDocument(bytes / 2));
        appendAnswers(documents, bytes / 2);
        break;
    case Kind::Snapshot:
        documents.push_back(snapshotDocument(bytes));
        break;
    case Kind::Answers:
        appendAnswers(documents, bytes);
        break;
    }
    return documents;
}

QString nameOf(VertexOrder order)
{
    switch (order) {
    case VertexOrder::Rising:
        return QStringLiteral("rising");
    case VertexOrder::Falling:
        return QStringLiteral("falling");
    case VertexOrder::Random:
        return QStringLiteral("random");
    }
    Q_UNREACHABLE();
}

Document polygonDocument(int vertices, VertexOrder order)
{
    PlanWriter writer(seed);
    writer.open("Commands");
    writer.open("Create");
    writer.openVersioned("AOI");
    writer.text("Name", writer.placeName());
    writer.openVersioned("AreaPolygon");
    int longitude = 9500000;
    int latitude = 54400000;
    for (const int number : vertexNumbers(vertices, order)) {
        longitude += writer.random().between(-4000, 4000);
        latitude += writer.random().between(-4000, 4000);
        writer.vertex(number, longitude, latitude);
    }
    writer.close();
    writer.txParameter();
    writer.close();
    writer.reference("Reference");
    writer.close();
    writer.close();
    return {Root::Commands, writer.finish()};
}

qint64 bytesOf(const std::vector<Document>& documents)
{
    qint64 bytes = 0;
    for (const Document& document : documents)
        bytes += document.text.size();
    return bytes;
}

} // namespace Bench
