#include "core/contentmodel.h"
#include "core/enumerationrules.h"

#include <arvxml/arvxml.h>

#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>

#include <cxxabi.h>

#include <map>
#include <memory>
#include <typeinfo>

/// What the content models say of themselves: which children an element has, of which class, and how often. The models
/// are no part of the interface, so the library's objects are linked into this program.

using namespace ArvXml;

namespace {

/// Content models can be asked for from outside.
class Models : public XmlComposite {
public:
    using XmlComposite::contentModel;
};
const ContentModel& modelOf(const XmlComposite& element)
{
    return (element.*&Models::contentModel)();
}

QString classOf(const XmlElement& element)
{
    const std::unique_ptr<char, void (*)(void*)> name(
        abi::__cxa_demangle(typeid(element).name(), nullptr, nullptr, nullptr), std::free);
    return QString::fromLatin1(name.get()).remove(QStringLiteral("ArvXml::"));
}

QString contentOf(const ContentKind& content)
{
    switch (content.kind) {
    case ContentKind::Empty:
        return QStringLiteral("empty");
    case ContentKind::Text:
        return QStringLiteral("text");
    case ContentKind::Integer:
        return QStringLiteral("integer");
    case ContentKind::Real:
        return QStringLiteral("real");
    case ContentKind::Time:
        return QStringLiteral("time");
    case ContentKind::Anything:
        return QStringLiteral("anything");
    case ContentKind::Choice: {
        QStringList texts;
        for (int value = 1; content.texts->text(value) != QLatin1String("UNDEFINED"); ++value)
            texts.append(QLatin1Char('"') + content.texts->text(value) + QLatin1Char('"'));
        return texts.join(QLatin1Char('/'));
    }
    case ContentKind::Element:
        return classOf(*content.newElement());
    case ContentKind::Wrapper:
        break;
    }
    return QString();
}

const char* signOf(Occurrence occurrence)
{
    switch (occurrence) {
    case Occurrence::Optional:
        return "?";
    case Occurrence::Required:
        return "";
    case Occurrence::Repeated:
        return "*";
    case Occurrence::AtLeastOnce:
        return "+";
    }
    return "";
}

/// A model in the way of a DTD: the children inside \a wrapper, with the signs "?", "*", "+" and "|", and what stands
/// under each tag; in braces, what the element reads itself.
QString shown(const ContentModel& model, const QString& wrapper = {})
{
    QString text;
    int choice = 0;
    for (const Row& row : model.allRows()) {
        if (row.wrapper != wrapper)
            continue;
        if (!text.isEmpty())
            text += row.choice != 0 && row.choice == choice ? QStringLiteral(" | ") : QStringLiteral(", ");
        choice = row.choice;
        text += row.tag;
        if (row.writtenTag != row.tag)
            text += QStringLiteral(" (written as %1)").arg(row.writtenTag);
        text += QString::fromLatin1(signOf(row.occurrence));
        text += row.binding.holds.kind == ContentKind::Wrapper
            ? QStringLiteral(" { ") + shown(model, row.tag) + QStringLiteral(" }")
            : QLatin1Char(' ') + contentOf(row.binding.holds);
    }
    return text;
}

const char expectedModels[] = R"(
XmlAoiType: Name XmlObjNameType, AreaRect XmlAreaRectType | AreaPolygon XmlAreaPolyType, TxParameter XmlTxParamType,
    RxThreshold? XmlFieldstrengthType
XmlAreaPolyType: Vertex* XmlNumCoordType
XmlAreaRectType: UpperLeft XmlCoordinateType, LowerRight XmlCoordinateType
XmlArvBtType: ScreenshotPath text, DisplayedObjects { DeploymentArea* XmlDeploymentAreaType, AreaOfInterest*
    XmlAoiType, KnownEmitter* XmlEmitterType, Receiver* XmlReceiverType, DirectionFinder* XmlDfType,
    Result_FindSites* XmlResInfo_FindSites_Type, Result_CEP* XmlResInfo_Cep_Type, Result_DetectProb*
    XmlResInfo_DetectProb_Type, Result_DfCoverage* XmlResInfo_DfCov_Type }
XmlAutoRespType: CommandReference XmlReferenceType, ErrorMessage text | EstimatedTime time | GridResult
    XmlGridResultType | InterlinkResult XmlInterlinkResultType | ArvVersion text
XmlBestSensorType: UseRxDFs XmlNameAllMultiType, AOIs XmlNameAllMultiType, ResultGrid? XmlResultGridType, Comment?
    XmlObjNameType
XmlCepType: UseDFs XmlNameAllMultiType, AOIs XmlNameAllMultiType, Probability? XmlCepProbType, ResultGrid?
    XmlResultGridType
XmlCmdAdmin: QueryVersion empty, Reference* XmlReferenceType
XmlCmdCalc: FindPossibleSites XmlFindSitesType | CEP XmlCepType | DetectionProbability XmlDetectProbType |
    DFcoverage XmlDfCovType | InterlinkPlanning XmlInterlinkPlanningType | BestSensorCov XmlBestSensorType,
    Reference XmlReferenceType
XmlCmdCreate: DeploymentArea XmlDeploymentAreaType | AOI XmlAoiType | Emitter XmlEmitterType | Receiver
    XmlReceiverType | DF XmlDfType | Station XmlStationType | Path (written as SignalPath) XmlSignalPathType |
    Device XmlDeviceType, Reference XmlReferenceType
XmlCmdDelete: DeploymentArea XmlNameAllType | AOI XmlNameAllType | Emitter XmlNameAllType | Receiver XmlNameAllType
    | DF XmlNameAllType | Device XmlNameAllType | SignalPath XmlNameAllType | Station XmlNameAllType, Reference
    XmlReferenceType
XmlCmdRoot: ORDER_DEF? XmlOrderDef, Administrative* XmlCmdAdmin, Create* XmlCmdCreate, Delete* XmlCmdDelete,
    PropagationModel? XmlPropModelType, Calculate* XmlCmdCalc
XmlCoordinateType: Longitude real, Latitude real
XmlDBMListType: dBm+ XmlDBMType
XmlDecibelListType: Decibel+ XmlDecibelType
XmlDegreesListType: Degrees+ XmlDegreesType
XmlDeploymentAreaType: SignalPath? XmlSignalPathType, Name XmlObjNameType, AreaRect XmlAreaRectType | AreaPolygon
    XmlAreaPolyType, AntennaHeight XmlLengthType, RxThreshold XmlFieldstrengthType, Frequency XmlFreqType, TxPower
    XmlPowerType
XmlDetectProbType: UseRxDFs XmlNameAllMultiType, AOIs XmlNameAllMultiType, ResultGrid? XmlResultGridType
XmlDeviceListType: Device+ XmlDeviceType
XmlDeviceType: DeviceCategory XmlDeviceCategoryType, Name XmlObjNameType, Frequencies XmlFreqListType, Noises?
    XmlDecibelListType, KFactors? XmlDecibelListType, Attenuations? XmlDecibelListType, Gains? XmlDecibelListType,
    Degrees? XmlDegreesListType, DBM? XmlDBMListType
XmlDfCovType: UseDFs XmlNameAllMultiType, AOIs XmlNameAllMultiType, ResultGrid? XmlResultGridType
XmlDfType: Name XmlObjNameType, Position XmlCoordinateType, RxParameter XmlRxParamType, DFprecision
    XmlDfPrecisionType, StationInterlink? XmlStationInterlinkType
XmlEmitterType: Name XmlObjNameType, Position XmlCoordinateType, TxParameter XmlTxParamType
XmlFindSitesType: UseKnownEmitters? XmlNameAllMultiType, RandomEmitters? { Number integer, Distribution
    "Random"/"Grid" }, DeploymentAreas XmlNameAllMultiType, ResultGrid? XmlResultGridType
XmlFreqListType: Frequency+ XmlFreqType
XmlFreqThrListType: Pair+ XmlFreqThrPairType
XmlFreqThrPairType: Frequency XmlFreqType, RxThreshold XmlFieldstrengthType
XmlGridResultType: FindPossibleSites { Parameter XmlFindSitesType } | CEP { Parameter XmlCepType } |
    DetectionProbability { Parameter XmlDetectProbType } | DFcoverage { Parameter XmlDfCovType } | BestSensorCov {
    Parameter XmlBestSensorType }
XmlGridValuesType: Min real, Max real
XmlInteractRespType: GridResult XmlGridResultType | InterlinkResult XmlInterlinkResultType | Station
    XmlResultObjectType
XmlInterlinkPlanningType: FirstName text, SecondName text
XmlInterlinkResultType: Parameters XmlInterlinkPlanningType, Result { Text text, ScreenshotFilename? text }
XmlMapListType: Map+ XmlMapType
XmlMapType: Key XmlKeyType, Value XmlLengthType
XmlNameAllMultiType: All empty | Name+ XmlObjNameType
XmlNameAllType: All empty | Name XmlObjNameType, Reference* anything
XmlNumCoordType: Longitude real, Latitude real
XmlOrderDef: ORDER_ID text, ORDER_SENDER text
XmlPropModelType: SelectModel? XmlPropModelEnumType, PropertiesFreespace? XmlPropModelFSType | PropertiesOLOS?
    XmlPropModelOLOSType | PropertiesITM? XmlPropModelITMType | PropertiesP452? XmlPropModelP452Type |
    PropertiesP1546? XmlPropModelP1546Type | PropertiesP526? XmlPropModelP526Type | PropertiesP533?
    XmlPropModelP533Type | PropertiesOkumura? XmlPropModelHataType
XmlPropModelType as a command: SelectModel? XmlPropModelEnumType, PropertiesFreespace? XmlPropModelFSType |
    PropertiesOLOS? XmlPropModelOLOSType | PropertiesITM? XmlPropModelITMType | PropertiesP452? XmlPropModelP452Type
    | PropertiesP1546? XmlPropModelP1546Type | PropertiesP526? XmlPropModelP526Type | PropertiesP533?
    XmlPropModelP533Type | PropertiesOkumura? XmlPropModelHataType, Reference XmlReferenceType
XmlReceiverType: Name XmlObjNameType, Position XmlCoordinateType, RxParameter XmlRxParamType, StationInterlink?
    XmlStationInterlinkType
XmlResInfo_BestSensor_Type: Name XmlObjNameType, AreaPolygon XmlAreaPolyType | AreaRect XmlAreaRectType, ResultGrid
    XmlResultGridType, Values XmlGridValuesType, Comment? XmlObjNameType
XmlResInfo_Cep_Type: Name XmlObjNameType, AreaPolygon XmlAreaPolyType | AreaRect XmlAreaRectType, ResultGrid
    XmlResultGridType, Values XmlGridValuesType
XmlResInfo_DetectProb_Type: Name XmlObjNameType, AreaPolygon XmlAreaPolyType | AreaRect XmlAreaRectType, ResultGrid
    XmlResultGridType, Values XmlGridValuesType
XmlResInfo_DfCov_Type: Name XmlObjNameType, AreaPolygon XmlAreaPolyType | AreaRect XmlAreaRectType, ResultGrid
    XmlResultGridType, Values XmlGridValuesType
XmlResInfo_FindSites_Type: Name XmlObjNameType, AreaPolygon XmlAreaPolyType | AreaRect XmlAreaRectType, ResultGrid
    XmlResultGridType, Values XmlGridValuesType
XmlRespRoot: ORDER_DEF* XmlOrderDef, Automatic? XmlAutoRespType | Interactive? XmlInteractRespType
XmlResultObjectType: Station XmlStationType | Emitter XmlEmitterType | Receiver XmlReceiverType | DF XmlDfType
XmlRxParamType: AntennaHeight XmlLengthType, RxThreshold XmlFieldstrengthType
XmlSignalPathType: Name XmlObjNameType, SINAD XmlSinadType, Device XmlDeviceListType, AntHgtMap? XmlMapListType,
    CabLenMap? XmlMapListType
XmlStationInterlinkType: Frequency XmlFreqType, TxPower (written as Power) XmlPowerType, RxThreshold
    XmlFieldstrengthType, AntennaHeight XmlLengthType
XmlStationType: Name XmlObjNameType, SignalPath? XmlSignalPathType, Position XmlCoordinateType, RxParameter?
    XmlRxParamType, DFprecision? XmlDfPrecisionType, StationInterlink? XmlStationInterlinkType
XmlTxParamType: Frequency XmlFreqType, TxPower XmlPowerType, AntennaHeight XmlLengthType, Bandwidth XmlBandwidthType
)";

/// The model of every class that a document with this element can hold.
void collect(const XmlElement& element, std::map<QString, QString>& models)
{
    const auto* composite = dynamic_cast<const XmlComposite*>(&element);
    if (!composite)
        return;
    const ContentModel& model = modelOf(*composite);
    QString name = classOf(element);
    if (const auto* propModel = dynamic_cast<const XmlPropModelType*>(&element); propModel && propModel->isCommand())
        name += QStringLiteral(" as a command");
    if (!models.emplace(name, shown(model)).second)
        return;
    for (const Row& row : model.allRows()) {
        if (row.binding.holds.newElement)
            collect(*row.binding.holds.newElement(), models);
    }
}

} // namespace

class ContentModelsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyModel()
    {
        std::map<QString, QString> models;
        collect(XmlCmdRoot(), models);
        collect(XmlRespRoot(), models);
        collect(XmlArvBtType(), models);
        // In no document, but elements all the same.
        collect(XmlPropModelType(false), models);
        collect(XmlFreqThrListType(), models);
        collect(XmlResInfo_BestSensor_Type(), models);

        // One line a class; a line that begins with a blank goes on with the one before.
        QString text = QString::fromLatin1(expectedModels).trimmed();
        text.replace(QRegularExpression(QStringLiteral("\\n +")), QStringLiteral(" "));
        const QStringList expected = text.split(QLatin1Char('\n'));
        QStringList found;
        for (const auto& [name, model] : models)
            found.append(name + QStringLiteral(": ") + model);
        for (int i = 0; i < found.size() && i < expected.size(); ++i)
            QCOMPARE(found.at(i), expected.at(i));
        QCOMPARE(found.size(), expected.size());
    }
};

QTEST_APPLESS_MAIN(ContentModelsTest)
#include "contentmodels_test.moc"
