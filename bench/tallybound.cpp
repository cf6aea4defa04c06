#include "tally.h"

#include <arvxml/commandroot.h>
#include <arvxml/responseroot.h>
#include <arvxml/snapshot.h>

namespace Bench {

namespace {

using namespace ArvXml;

// The values of the library's objects, in the order in which those of the plain structs are added.

/// What may be absent: null, then.
template <typename T, typename Add>
void addOptional(Tally& tally, const T* value, Add add)
{
    tally.add(value ? 1 : 0);
    if (value)
        add(tally, *value);
}

/// The items of a list, null for none.
template <typename List, typename Add>
void addItems(Tally& tally, const List& items, Add add)
{
    tally.add(static_cast<int>(items.size()));
    for (const auto* item : items)
        add(tally, *item);
}

void addPosition(Tally& tally, const XmlCoordinateType& position)
{
    tally.add(position.longitude());
    tally.add(position.latitude());
}

void addVertex(Tally& tally, const XmlNumCoordType& vertex)
{
    tally.add(vertex.number());
    addPosition(tally, vertex);
}

void addRectangle(Tally& tally, const XmlAreaRectType& rectangle)
{
    addPosition(tally, *rectangle.upperLeft());
    addPosition(tally, *rectangle.lowerRight());
}

template <typename Area>
void addRegion(Tally& tally, const Area& area)
{
    addOptional(tally, area.areaRect(), addRectangle);
    addItems(tally, area.areaPoly() ? area.areaPoly()->vertices() : QVector<XmlNumCoordType*>(), addVertex);
}

void addDecibels(Tally& tally, const XmlDecibelListType* list)
{
    addItems(tally, list ? list->decibelList() : QList<XmlDecibelType*>(),
             [](Tally& to, const XmlDecibelType& item) { to.add(item.decibel()); });
}

QString categoryText(XmlDeviceCategoryType::Category category)
{
    switch (category) {
    case XmlDeviceCategoryType::Receiver:
        return QStringLiteral("Receiver");
    case XmlDeviceCategoryType::PassiveAntennas:
        return QStringLiteral("PassiveAntennas");
    case XmlDeviceCategoryType::Cable:
        return QStringLiteral("Cable");
    case XmlDeviceCategoryType::ActiveAntennas:
        return QStringLiteral("ActiveAntennas");
    case XmlDeviceCategoryType::DF:
        return QStringLiteral("DF");
    case XmlDeviceCategoryType::Other:
    case XmlDeviceCategoryType::Undefined:
        break; // not generated
    }
    return QString();
}

void addDevice(Tally& tally, const XmlDeviceType& device)
{
    tally.add(categoryText(device.category()->category()));
    tally.add(device.objName()->objName());
    addItems(tally, device.frequencyList()->freqList(),
             [](Tally& to, const XmlFreqType& item) { to.add(item.frequency_MHz()); });
    addDecibels(tally, device.noiseList());
    addDecibels(tally, device.kFactorList());
    addDecibels(tally, device.attenuationList());
    addDecibels(tally, device.gainList());
    addItems(tally, device.hasAccuracy() ? device.accuracyList()->degreeList() : QList<XmlDegreesType*>(),
             [](Tally& to, const XmlDegreesType& item) { to.add(item.degrees()); });
    addItems(tally, device.hasDBM() ? device.dbmList()->dBmList() : QList<XmlDBMType*>(),
             [](Tally& to, const XmlDBMType& item) { to.add(item.dBm()); });
}

void addMap(Tally& tally, const XmlMapType& entry)
{
    tally.add(entry.key()->key());
    tally.add(entry.value()->length());
}

void addSignalPath(Tally& tally, const XmlSignalPathType& path)
{
    tally.add(path.objName()->objName());
    tally.add(path.sinad()->sinad());
    addItems(tally, path.devices()->deviceList(), addDevice);
    addItems(tally, path.hasAnt() ? path.ant()->mapList() : QList<XmlMapType*>(), addMap);
    addItems(tally, path.hasCab() ? path.cab()->mapList() : QList<XmlMapType*>(), addMap);
}

void addTxParameter(Tally& tally, const XmlTxParamType& parameter)
{
    tally.add(parameter.frequency()->frequency_MHz());
    tally.add(parameter.txPower()->power());
    tally.add(parameter.antennaHeight()->length());
    tally.add(static_cast<int>(parameter.bandwidth()->bandwidth_khz()));
}

void addRxParameter(Tally& tally, const XmlRxParamType& parameter)
{
    tally.add(parameter.antennaHeight()->length());
    tally.add(parameter.rxThres()->fieldstrength());
}

void addInterlink(Tally& tally, const XmlStationInterlinkType& interlink)
{
    tally.add(interlink.freq()->frequency_MHz());
    tally.add(interlink.power()->power());
    tally.add(interlink.rxThresh()->fieldstrength());
    tally.add(interlink.antHgt()->length());
}

void addThreshold(Tally& tally, const XmlFieldstrengthType& threshold)
{
    tally.add(threshold.fieldstrength());
}

void addPrecision(Tally& tally, const XmlDfPrecisionType& precision)
{
    tally.add(precision.precision());
}

void addDeploymentArea(Tally& tally, const XmlDeploymentAreaType& area)
{
    addOptional(tally, area.signalPath(), addSignalPath);
    tally.add(area.objName()->objName());
    addRegion(tally, area);
    tally.add(area.antHgt()->length());
    addThreshold(tally, *area.rxThresh());
    tally.add(area.txFreq()->frequency_MHz());
    tally.add(area.txPower()->power());
}

void addAoi(Tally& tally, const XmlAoiType& area)
{
    tally.add(area.objName()->objName());
    addRegion(tally, area);
    addTxParameter(tally, *area.txParam());
    addOptional(tally, area.RxThres(), addThreshold);
}

void addStation(Tally& tally, const XmlStationType& station)
{
    tally.add(station.objName()->objName());
    addOptional(tally, station.signalPath(), addSignalPath);
    addPosition(tally, *station.position());
    addOptional(tally, station.rxParam(), addRxParameter);
    addOptional(tally, station.dfPrecision(), addPrecision);
    addOptional(tally, station.interlink(), addInterlink);
}

void addReceiver(Tally& tally, const XmlReceiverType& receiver)
{
    tally.add(receiver.objName()->objName());
    addPosition(tally, *receiver.position());
    addRxParameter(tally, *receiver.rxParam());
    addOptional(tally, receiver.interlink(), addInterlink);
}

void addEmitter(Tally& tally, const XmlEmitterType& emitter)
{
    tally.add(emitter.objName()->objName());
    addPosition(tally, *emitter.position());
    addTxParameter(tally, *emitter.txParam());
}

void addDf(Tally& tally, const XmlDfType& finder)
{
    tally.add(finder.objName()->objName());
    addPosition(tally, *finder.position());
    addRxParameter(tally, *finder.rxParam());
    addPrecision(tally, *finder.dfPrecision());
    addOptional(tally, finder.interlink(), addInterlink);
}

void addResultRecord(Tally& tally, const XmlResInfo& record)
{
    static const int spacings[] = {0, 10, 50, 100, 200, 500, 1000};
    tally.add(record.objName()->objName());
    addRegion(tally, record);
    tally.add(spacings[record.resultGrid()->size()]);
    tally.add(record.gridValues()->unit());
    tally.add(record.gridValues()->min());
    tally.add(record.gridValues()->max());
}

void addEnvelope(Tally& tally, const XmlOrderDef* envelope)
{
    tally.add(envelope ? envelope->orderId() : QString());
    tally.add(envelope ? envelope->orderSender() : QString());
}

// Commands

/// The objects of one kind, got from the commands by \a object, with the references of their commands.
template <typename Object, typename Add>
void addCreates(Tally& tally, const QList<XmlCmdCreate*>& creates, const Object* (XmlCmdCreate::*object)() const,
                Add add)
{
    int count = 0;
    for (const XmlCmdCreate* create : creates)
        count += (create->*object)() ? 1 : 0;
    tally.add(count);
    for (const XmlCmdCreate* create : creates) {
        if (const Object* held = (create->*object)()) {
            add(tally, *held);
            tally.add(create->cmdReference().reference());
        }
    }
}

void addCommands(Tally& tally, const XmlCmdRoot& root)
{
    const QList<XmlCmdCreate*> creates = root.getCreateCmds();
    addEnvelope(tally, root.orderDef());
    addCreates(tally, creates, &XmlCmdCreate::deploymentArea, addDeploymentArea);
    addCreates(tally, creates, &XmlCmdCreate::aoi, addAoi);
    addCreates(tally, creates, &XmlCmdCreate::station, addStation);
    addCreates(tally, creates, &XmlCmdCreate::receiver, addReceiver);
    addCreates(tally, creates, &XmlCmdCreate::emitter, addEmitter);
    addCreates(tally, creates, &XmlCmdCreate::df, addDf);
    addCreates(tally, creates, &XmlCmdCreate::signalPath, addSignalPath);
    addCreates(tally, creates, &XmlCmdCreate::device, addDevice);
}

// Snapshots

void addSnapshot(Tally& tally, const XmlArvBtType& snapshot)
{
    tally.add(snapshot.screenshotPath());
    addItems(tally, snapshot.deployments(), addDeploymentArea);
    addItems(tally, snapshot.aois(), addAoi);
    addItems(tally, snapshot.knownEmitters(), addEmitter);
    addItems(tally, snapshot.receivers(), addReceiver);
    addItems(tally, snapshot.dfs(), addDf);
    addItems(tally, snapshot.resFindSite(), addResultRecord);
    addItems(tally, snapshot.resCep(), addResultRecord);
    addItems(tally, snapshot.resDetectProb(), addResultRecord);
    addItems(tally, snapshot.resDfCov(), addResultRecord);
}

// Responses

void addInterlinkResult(Tally& tally, const XmlInterlinkResultType& result)
{
    tally.add(result.parameters()->firstName());
    tally.add(result.parameters()->secondName());
    tally.add(result.resultText());
    tally.add(result.screenshotFilename());
}

void addResponse(Tally& tally, const XmlRespRoot& response)
{
    const XmlAutoRespType* automatic = response.autoResp();
    const XmlInteractRespType* interactive = response.interactResp();
    tally.add(response.type() == XmlRespRoot::RespAutomatic ? 1 : 0);
    tally.add(response.isFinal() ? 1 : 0);
    tally.add(response.timestamp().toString(Qt::ISODate));
    addEnvelope(tally, response.orderDef());
    tally.add(automatic && automatic->status() == XmlAutoRespType::StatusFault ? 1 : 0);
    tally.add(automatic ? automatic->reference().reference() : QString());
    tally.add(automatic ? automatic->errorMessage() : QString());
    tally.add(automatic ? automatic->estimatedTime().toString(Qt::ISODate) : QString());
    tally.add(automatic ? automatic->arvVersion() : QString());
    const XmlInterlinkResultType* ofInteractive = interactive ? interactive->interlinkResult() : nullptr;
    addOptional(tally, automatic ? automatic->interlinkResult() : ofInteractive, addInterlinkResult);
}

/// The documents of one kind.
template <typename Tree, typename Add>
void addTrees(Tally& tally, const Trees& trees, const std::vector<Document>& documents, Root root, Add add)
{
    std::vector<const Tree*> chosen;
    for (size_t i = 0; i < trees.size(); ++i) {
        if (documents[i].root == root)
            chosen.push_back(static_cast<const Tree*>(trees[i].get()));
    }
    addItems(tally, chosen, add);
}

} // namespace

Tally tallyOf(const Trees& trees, const std::vector<Document>& documents)
{
    Tally tally;
    addTrees<XmlCmdRoot>(tally, trees, documents, Root::Commands, addCommands);
    addTrees<XmlArvBtType>(tally, trees, documents, Root::Snapshot, addSnapshot);
    addTrees<XmlRespRoot>(tally, trees, documents, Root::Response, addResponse);
    return tally;
}

} // namespace Bench
