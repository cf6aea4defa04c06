#pragma once

#include "documents.h"

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <optional>
#include <vector>

/// \file
/// The reader that a programmer would write by hand instead of using the library: plain structs, and a
/// loop over QXmlStreamReader for each element. It keeps the values and refuses unknown elements; it
/// does not look at the order of the elements, nor at versions and at units other than those of frequencies.

namespace Bench::Plain {

struct Position {
    double longitude = 0.0;
    double latitude = 0.0;
};

struct Vertex {
    int number = 0;
    Position position;
};

struct Rectangle {
    Position upperLeft;
    Position lowerRight;
};

/// A rectangle or a polygon.
struct Region {
    std::optional<Rectangle> rectangle;
    std::vector<Vertex> polygon; ///< by rising numbers
};

struct Device {
    QString category;
    QString name;
    std::vector<double> frequencies; ///< in MHz, as all frequencies
    std::vector<double> noises;
    std::vector<double> kFactors;
    std::vector<double> attenuations;
    std::vector<double> gains;
    std::vector<double> degrees;
    std::vector<double> levels;
};

struct LengthByKey {
    int key = 0;
    int length = 0;
};

struct SignalPath {
    QString name;
    double sinad = 0.0;
    std::vector<Device> devices;
    std::vector<LengthByKey> antennaHeights;
    std::vector<LengthByKey> cableLengths;
};

struct TxParameter {
    double frequency = 0.0;
    double power = 0.0;
    int antennaHeight = 0;
    int bandwidth = 0;
};

struct RxParameter {
    int antennaHeight = 0;
    double threshold = 0.0;
};

struct Interlink {
    double frequency = 0.0;
    double power = 0.0;
    double threshold = 0.0;
    int antennaHeight = 0;
};

struct DeploymentArea {
    std::optional<SignalPath> signalPath;
    QString name;
    Region region;
    int antennaHeight = 0;
    double threshold = 0.0;
    double frequency = 0.0;
    double power = 0.0;
};

struct AreaOfInterest {
    QString name;
    Region region;
    TxParameter transmitter;
    std::optional<double> threshold;
};

struct Station {
    QString name;
    std::optional<SignalPath> signalPath;
    Position position;
    std::optional<RxParameter> receiver;
    std::optional<int> precision;
    std::optional<Interlink> interlink;
};

struct Receiver {
    QString name;
    Position position;
    RxParameter receiver;
    std::optional<Interlink> interlink;
};

struct Emitter {
    QString name;
    Position position;
    TxParameter transmitter;
};

struct DirectionFinder {
    QString name;
    Position position;
    RxParameter receiver;
    int precision = 0;
    std::optional<Interlink> interlink;
};

struct ResultRecord {
    QString name;
    Region region;
    int spacing = 0;
    QString unit;
    double min = 0.0;
    double max = 0.0;
};

struct Envelope {
    QString id;
    QString sender;
};

/// An object to create, and the reference of the command.
template <typename Object>
struct Create {
    Object object;
    QString reference;
};

struct Commands {
    Envelope envelope;
    std::vector<Create<DeploymentArea>> deploymentAreas;
    std::vector<Create<AreaOfInterest>> areasOfInterest;
    std::vector<Create<Station>> stations;
    std::vector<Create<Receiver>> receivers;
    std::vector<Create<Emitter>> emitters;
    std::vector<Create<DirectionFinder>> directionFinders;
    std::vector<Create<SignalPath>> signalPaths;
    std::vector<Create<Device>> devices;
};

struct Snapshot {
    QString path;
    std::vector<DeploymentArea> deploymentAreas;
    std::vector<AreaOfInterest> areasOfInterest;
    std::vector<Emitter> emitters;
    std::vector<Receiver> receivers;
    std::vector<DirectionFinder> directionFinders;
    std::vector<ResultRecord> sites;
    std::vector<ResultRecord> circularErrors;
    std::vector<ResultRecord> detections;
    std::vector<ResultRecord> coverages;
};

struct InterlinkResult {
    QString firstName;
    QString secondName;
    QString text;
    QString picture;
};

struct Response {
    bool automatic = false;
    bool last = false;
    QDateTime timestamp;
    Envelope envelope;
    bool fault = false;
    QString reference;
    QString errorMessage;
    QDateTime estimatedTime;
    QString version;
    std::optional<InterlinkResult> interlinkResult;
};

/// What the documents of one measurement hold.
struct Contents {
    std::vector<Commands> commands;
    std::vector<Snapshot> snapshots;
    std::vector<Response> responses;
};

/// Reads \a document into \a contents. Returns what was wrong, normally nothing.
QString readDocument(const Document& document, Contents& contents);

} // namespace Bench::Plain
