#pragma once

#include "support/elementtest.h"
#include "support/values.h"

#include <arvxml/arvxml.h>

#include <QtCore/QString>

#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

/// \file
/// Every class of element, each with samples of what it holds.
///
/// `forEachClass(visitor)` calls `visitor(Class<T>, name)` for each type; `classes()` is the same as a table, with
/// functions that make, copy and assign elements by their base, and with the samples.

namespace Samples {

/// An element as a document holds it. A new element that reads \a xml reports \a error, writes \a written, and has
/// these \a problems.
struct Sample {
    const char* name;
    QString xml;                                           ///< as read, under a tag of its own
    QString written = {};                                  ///< as written, if that differs; see expected()
    QString error = {};                                    ///< the reader's error
    QString problems = {};                                 ///< what syntaxError() says
    bool valid = problems.isEmpty();                       ///< what isValid() says
    std::function<void(ArvXml::IXmlElement&)> finish = {}; ///< sets what cannot be read
    QString unseen = {};                                   ///< what is held without being written; see unseenOf()

    const QString& expected() const { return written.isNull() ? xml : written; }
};

/// A type of element.
template <typename T>
struct Class {
    using Type = T;
};

/// The problems of an element, as syntaxError() frames them.
inline QString framed(const char* className, const QString& problems)
{
    return QStringLiteral("+++ in %1 Begin:\n%2\n--- in %1 End").arg(QLatin1String(className), problems);
}

/// An element that \a set changes through its own type.
template <typename T>
std::function<void(ArvXml::IXmlElement&)> finished(void (*set)(T&))
{
    return [set](ArvXml::IXmlElement& element) { set(dynamic_cast<T&>(element)); };
}

// What elements hold without writing it

inline QString envelopeText(const ArvXml::XmlOrderDef* envelope)
{
    return envelope ? envelope->orderId() + QLatin1Char(' ') + envelope->orderSender() : QStringLiteral("none");
}

inline QString unseenOf(const ArvXml::IXmlElement&)
{
    return {};
}
/// The envelope of a command.
inline QString unseenOf(const ArvXml::XmlCommand& command)
{
    return command.hasOrderDef() ? envelopeText(command.orderDef()) : QString();
}
/// The envelopes of the commands.
inline QString unseenOf(const ArvXml::XmlCmdRoot& root)
{
    QStringList envelopes;
    const auto note = [&envelopes](const ArvXml::XmlCommand* command) {
        envelopes.append(envelopeText(command->orderDef()));
    };
    for (const auto* command : root.getAdministrativeCmds())
        note(command);
    for (const auto* command : root.getCreateCmds())
        note(command);
    for (const auto* command : root.getDeleteCmds())
        note(command);
    if (const auto* model = root.getPropagationModelCmd())
        note(model);
    for (const auto* command : root.getCalculationCmds())
        note(command);
    return envelopes.join(QLatin1String(", "));
}
/// The key of a map entry.
inline QString unseenOf(const ArvXml::XmlMapType& entry)
{
    return entry.key() ? QString::number(entry.key()->key()) : QStringLiteral("no key");
}
/// The keys of the entries.
inline QString unseenOf(const ArvXml::XmlMapListType& list)
{
    QStringList keys;
    for (const ArvXml::XmlMapType* entry : list.mapList())
        keys.append(unseenOf(*entry));
    return keys.join(QLatin1Char(' '));
}
/// Random emitters that are told by halves.
inline QString unseenOf(const ArvXml::XmlFindSitesType& order)
{
    return QStringLiteral("%1 %2").arg(order.randNumber()).arg(int(order.randDistri()));
}
/// Everything behind an error message or an estimated time.
inline QString unseenOf(const ArvXml::XmlAutoRespType& response)
{
    return QStringLiteral("%1|%2|%3|%4|%5")
        .arg(response.errorMessage(), response.estimatedTime().toString(Qt::ISODate), response.arvVersion(),
             response.hasGridResult() ? response.gridResult()->screenshotFilename() : QStringLiteral("-"),
             response.hasInterlinkResult() ? response.interlinkResult()->resultText() : QStringLiteral("-"));
}
/// The file name of a result without parameters.
inline QString unseenOf(const ArvXml::XmlGridResultType& result)
{
    return result.screenshotFilename();
}
/// The gain, which a text that is no number changes without making it present.
inline QString unseenOf(const ArvXml::XmlPropModelP1546Type& parameters)
{
    return QString::number(parameters.broadAntGain());
}

/// Resets \a element, and destroys what its reset() lets go without destroying it.
inline void reset(ArvXml::IXmlElement& element)
{
    std::unique_ptr<const ArvXml::XmlFieldstrengthType> letGo;
    if (const auto* aoi = dynamic_cast<const ArvXml::XmlAoiType*>(&element))
        letGo.reset(aoi->RxThres());
    element.reset();
}

// Pieces of which the samples are made, as read; "written" ones are those that are written otherwise

inline const QString name = QStringLiteral(R"(<Name>Site 1</Name>)");
inline const QString areaRect = QStringLiteral(
    R"(<AreaRect version="1.0"><UpperLeft version="1.0"><Longitude>8.500000</Longitude>)"
    R"(<Latitude>47.400000</Latitude></UpperLeft><LowerRight version="1.0"><Longitude>8.600000</Longitude>)"
    R"(<Latitude>47.300000</Latitude></LowerRight></AreaRect>)");
inline const QString areaPolygon = QStringLiteral(
    R"(<AreaPolygon version="1.0"><Vertex version="1.0" number="0"><Longitude>7.100000</Longitude>)"
    R"(<Latitude>46.100000</Latitude></Vertex><Vertex version="1.0" number="1"><Longitude>7.200000</Longitude>)"
    R"(<Latitude>46.200000</Latitude></Vertex><Vertex version="1.0" number="5"><Longitude>7.300000</Longitude>)"
    R"(<Latitude>46.300000</Latitude></Vertex></AreaPolygon>)");
inline const QString position = QStringLiteral(
    R"(<Position version="1.0"><Longitude>-8.250000</Longitude><Latitude>-47.125000</Latitude></Position>)");
inline const QString antennaHeight = QStringLiteral(R"(<AntennaHeight version="1.0" unit="m">10</AntennaHeight>)");
inline const QString rxThreshold =
    QStringLiteral(R"(<RxThreshold version="1.0" unit="dBm">-100.500000000000000</RxThreshold>)");
inline const QString frequency = QStringLiteral(R"(<Frequency version="1.0" unit="kHz">2400.500000</Frequency>)");
inline const QString txPower = QStringLiteral(R"(<TxPower version="1.0" unit="W">10.500000000000000</TxPower>)");
inline const QString bandwidth = QStringLiteral(R"(<Bandwidth version="1.0" unit="kHz">25</Bandwidth>)");
inline const QString sinad = QStringLiteral(R"(<SINAD version="1.0">12.500000</SINAD>)");
inline const QString dfPrecision = QStringLiteral(R"(<DFprecision version="1.0" unit="°">3</DFprecision>)");

inline const QString txParameter = QStringLiteral(R"(<TxParameter version="1.0">)") + frequency + txPower
    + antennaHeight + bandwidth + QStringLiteral(R"(</TxParameter>)");
inline const QString rxParameter = QStringLiteral(R"(<RxParameter version="1.0">)") + antennaHeight + rxThreshold
    + QStringLiteral(R"(</RxParameter>)");

inline const QString interlink =
    QStringLiteral(R"(<StationInterlink version="1.0"><Frequency version="1.0" unit="MHz">433.000000</Frequency>)"
                   R"(<TxPower version="1.0" unit="W">2.500000000000000</TxPower>)"
                   R"(<RxThreshold version="1.0" unit="dBm">-90.000000000000000</RxThreshold>)"
                   R"(<AntennaHeight version="1.0" unit="m">6</AntennaHeight></StationInterlink>)");
/// The power is written under another tag.
inline const QString interlinkWritten =
    QStringLiteral(R"(<StationInterlink version="1.0"><Frequency version="1.0" unit="MHz">433.000000</Frequency>)"
                   R"(<Power version="1.0" unit="W">2.500000000000000</Power>)"
                   R"(<RxThreshold version="1.0" unit="dBm">-90.000000000000000</RxThreshold>)"
                   R"(<AntennaHeight version="1.0" unit="m">6</AntennaHeight></StationInterlink>)");

inline const QString frequencies =
    QStringLiteral(R"(<Frequencies version="1.0">)") + frequency + QStringLiteral(R"(</Frequencies>)");
inline const QString noises =
    QStringLiteral(R"(<Noises version="1.0"><Decibel version="1.0" unit="dB">1.500000</Decibel></Noises>)");
inline const QString kFactors =
    QStringLiteral(R"(<KFactors version="1.0"><Decibel version="1.0" unit="dB">2.500000</Decibel></KFactors>)");
inline const QString attenuations =
    QStringLiteral(R"(<Attenuations version="1.0"><Decibel version="1.0" unit="dB">3.500000</Decibel></Attenuations>)");
inline const QString gains =
    QStringLiteral(R"(<Gains version="1.0"><Decibel version="1.0" unit="dB">4.500000</Decibel></Gains>)");
inline const QString degrees =
    QStringLiteral(R"(<Degrees version="1.0"><Degrees version="1.0" unit="°">5.5</Degrees></Degrees>)");
inline const QString levels =
    QStringLiteral(R"(<DBM version="1.0"><dBm version="1.0" unit="dBm">6.500000000</dBm></DBM>)");

/// A device with these lists of values.
inline QString device(const QString& lists)
{
    return QStringLiteral(R"(<Device version="1.0"><DeviceCategory>DF</DeviceCategory><Name>Antenna 1</Name>)")
        + frequencies + lists + QStringLiteral(R"(</Device>)");
}

/// An entry for the key 3; the value is written in its place, too.
inline const QString mapEntry =
    QStringLiteral(R"(<Map version="1.0"><Key>3</Key><Value version="1.0" unit="m">12</Value></Map>)");
inline const QString mapEntryWritten = QStringLiteral(
    R"(<Map version="1.0"><Key version="1.0" unit="m">12</Key><Value version="1.0" unit="m">12</Value></Map>)");
inline const QString otherMapEntry =
    QStringLiteral(R"(<Map version="1.0"><Key>4</Key><Value version="1.0" unit="m">7</Value></Map>)");
inline const QString otherMapEntryWritten = QStringLiteral(
    R"(<Map version="1.0"><Key version="1.0" unit="m">7</Key><Value version="1.0" unit="m">7</Value></Map>)");

/// A signal path under \a tag with its two maps.
inline QString signalPath(const char* tag, const QString& heightEntry, const QString& cableEntry)
{
    return QStringLiteral(R"(<%1 version="1.0"><Name>Path 1</Name>%2<Device version="1.0">%3</Device>)"
                          R"(<AntHgtMap version="1.0">%4</AntHgtMap><CabLenMap version="1.0">%5</CabLenMap></%1>)")
        .arg(QLatin1String(tag), sinad, device(noises), heightEntry, cableEntry);
}
inline QString signalPath(const char* tag = "SignalPath")
{
    return signalPath(tag, mapEntry, otherMapEntry);
}
inline QString signalPathWritten()
{
    return signalPath("SignalPath", mapEntryWritten, otherMapEntryWritten);
}

/// A deployment area with, or as the case may be without, a signal path.
inline QString deploymentArea(const QString& path, const QString& area)
{
    return QStringLiteral(R"(<DeploymentArea version="1.0">)") + path + name + area + antennaHeight + rxThreshold
        + frequency + txPower + QStringLiteral(R"(</DeploymentArea>)");
}
inline QString areaOfInterest(const char* tag, const QString& area, const QString& threshold)
{
    return QStringLiteral(R"(<%1 version="1.0">%2%3%4%5</%1>)")
        .arg(QLatin1String(tag), name, area, txParameter, threshold);
}
inline QString emitter(const char* tag = "Emitter")
{
    return QStringLiteral(R"(<%1 version="1.0">%2%3%4</%1>)").arg(QLatin1String(tag), name, position, txParameter);
}
inline QString receiver(const QString& link)
{
    return QStringLiteral(R"(<Receiver version="1.0">)") + name + position + rxParameter + link
        + QStringLiteral(R"(</Receiver>)");
}
inline QString directionFinder(const char* tag, const QString& link)
{
    return QStringLiteral(R"(<%1 version="1.0">%2%3%4%5%6</%1>)")
        .arg(QLatin1String(tag), name, position, rxParameter, dfPrecision, link);
}
inline QString station(const QString& path, const QString& link)
{
    return QStringLiteral(R"(<Station>)") + name + path + position + rxParameter + dfPrecision + link
        + QStringLiteral(R"(</Station>)");
}

inline const QString all = QStringLiteral(R"(<All/>)");
inline const QString twoNames = QStringLiteral(R"(<Name>North</Name><Name>South</Name>)");
inline const QString reference = QStringLiteral(R"(<Reference>42</Reference>)");
inline const QString grid = QStringLiteral(R"(<ResultGrid>100</ResultGrid>)");

// The content of the orders, which stand under several tags
inline const QString findSitesContent =
    QStringLiteral(R"(<UseKnownEmitters><Name>TX 1</Name></UseKnownEmitters><RandomEmitters><Number>10</Number>)"
                   R"(<Distribution>Grid</Distribution></RandomEmitters><DeploymentAreas><All/></DeploymentAreas>)"
                   R"(<ResultGrid>500</ResultGrid>)");
inline const QString cepContent =
    QStringLiteral(R"(<UseDFs><Name>DF 1</Name></UseDFs><AOIs><Name>North</Name><Name>South</Name></AOIs>)"
                   R"(<Probability>90</Probability><ResultGrid>100</ResultGrid>)");
inline const QString detectProbContent =
    QStringLiteral(R"(<UseRxDFs><Name>RX 1</Name></UseRxDFs><AOIs><All/></AOIs><ResultGrid>50</ResultGrid>)");
inline const QString dfCovContent =
    QStringLiteral(R"(<UseDFs><All/></UseDFs><AOIs><Name>North</Name></AOIs><ResultGrid>200</ResultGrid>)");
inline const QString bestSensorContent =
    QStringLiteral(R"(<UseRxDFs><All/></UseRxDFs><AOIs><Name>West</Name></AOIs><ResultGrid>1000</ResultGrid>)"
                   R"(<Comment>Best of all</Comment>)");
inline const QString interlinkContent = QStringLiteral(R"(<FirstName>Hill</FirstName><SecondName>Valley</SecondName>)");

inline const QString interlinkResult = QStringLiteral(
    R"(<InterlinkResult><Parameters><FirstName>Hill</FirstName><SecondName>Valley</SecondName></Parameters>)"
    R"(<Result><Text>feasible</Text><ScreenshotFilename>link.png</ScreenshotFilename></Result></InterlinkResult>)");
/// A result that cannot be read to its end.
inline const QString gridResult = QStringLiteral(
    R"(<GridResult type="DetectProb"><DetectionProbability><Parameter><UseRxDFs><All/></UseRxDFs>)"
    R"(<AOIs><All/></AOIs></Parameter><ScreenshotFilename>detect.png</ScreenshotFilename></DetectionProbability>)"
    R"(</GridResult>)");
/// What is left of it.
inline const QString gridResultRead =
    QStringLiteral(R"(<GridResult type="DetectProb"><DetectionProbability><Parameter><UseRxDFs><All/></UseRxDFs>)"
                   R"(<AOIs><All/></AOIs></Parameter><ScreenshotFilename></ScreenshotFilename></DetectionProbability>)"
                   R"(</GridResult>)");

inline const QString values =
    QStringLiteral(R"(<Values version="1.0" unit="km"><Min>-12.5</Min><Max>40</Max></Values>)");
inline QString resultInfo(const char* tag, const QString& area, const QString& comment = QString())
{
    return QStringLiteral(R"(<%1 version="1.0"><Name>Result 1</Name>%2%3%4%5</%1>)")
        .arg(QLatin1String(tag), area, grid, values, comment);
}

inline void setEnvelope(ArvXml::XmlCommand& command)
{
    command.setOrderDef(TestValues::envelope(QStringLiteral("planner")));
}
/// How unseenOf() shows that envelope.
inline const QString envelopeShown = QStringLiteral("ARV240305140709042 planner");

// The samples of each class

template <typename T>
std::vector<Sample> samplesOf();

// Quantities

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlDBMType>()
{
    return {
        {"a level", QStringLiteral(R"(<dBm version="1.0" unit="dBm">3.500000000</dBm>)")},
        {"a bad one",
         QStringLiteral(R"(<dBm version="2.0" unit="dBm">-1.000000000</dBm>)"),
         {},
         {},
         framed("XmlDBMType", QStringLiteral("Version \"2.0\" not supported\nIllegal decibel."))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlDecibelType>()
{
    return {
        {"a ratio", QStringLiteral(R"(<Decibel version="1.0" unit="dB">3.500000</Decibel>)")},
        {"a bad one",
         QStringLiteral(R"(<Decibel version="2.0" unit="dB">-1.000000</Decibel>)"),
         {},
         {},
         framed("XmlDecibelType", QStringLiteral("Version \"2.0\" not supported\nIllegal decibel."))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlDegreesType>()
{
    return {
        {"an angle", QStringLiteral(R"(<Degrees version="1.0" unit="°">12.3</Degrees>)")},
        {"a bad one",
         QStringLiteral(R"(<Degrees version="2.0" unit="°">90.5</Degrees>)"),
         {},
         {},
         framed("XmlDegreesType", QStringLiteral("Version \"2.0\" not supported\nIllegal decibel."))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlLengthType>()
{
    return {
        {"a length", antennaHeight},
        {"a bad one",
         QStringLiteral(R"(<Length version="2.0" unit="km">-5</Length>)"),
         {},
         {},
         framed("XmlLengthType", QStringLiteral("Version \"2.0\" not supported\nIllegal unit (must be \"m\")."))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlPowerType>()
{
    return {
        {"a power", txPower},
        {"a bad one",
         QStringLiteral(R"(<TxPower version="2.0" unit="kW">-61.000000000000000</TxPower>)"),
         {},
         {},
         framed("XmlPowerType", QStringLiteral("Version \"2.0\" not supported\nIllegal power.\nIllegal unit."))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlFreqType>()
{
    return {
        {"a frequency", frequency},
        {"a bad one",
         QStringLiteral(R"(<Frequency version="2.0" unit="GHz">-1.000000</Frequency>)"),
         {},
         {},
         framed("XmlFreqType", QStringLiteral("Version \"2.0\" not supported\nIllegal frequency."))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlBandwidthType>()
{
    return {
        {"a bandwidth", bandwidth},
        {"a bad one",
         QStringLiteral(R"(<Bandwidth version="2.0" unit="Hz">-5</Bandwidth>)"),
         {},
         {},
         framed("XmlBandwidthType",
                QStringLiteral("Version \"2.0\" not supported\nXmlDfPrecisionType: Illegal precision.\n"
                               "XmlDfPrecisionType: Illegal unit."))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlFieldstrengthType>()
{
    return {
        {"a threshold", rxThreshold},
        {"a bad one",
         QStringLiteral(R"(<RxThreshold version="2.0" unit="W">-100000.000000000000000</RxThreshold>)"),
         {},
         {},
         framed("XmlFieldstrengthType",
                QStringLiteral("Version \"2.0\" not supported\nIllegal fieldstrength.\nIllegal unit."))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlSinadType>()
{
    return {
        {"a ratio", sinad},
        {"a bad one",
         QStringLiteral(R"(<SINAD version="2.0">-1.000000</SINAD>)"),
         {},
         {},
         framed("XmlSinadType", QStringLiteral("Version \"2.0\" not supported\nIllegal frequency."))},
    };
}

// Lists of values

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlDBMListType>()
{
    return {
        {"two levels",
         QStringLiteral(R"(<DBM version="1.0"><dBm version="1.0" unit="dBm">1.000000000</dBm>)"
                        R"(<dBm version="1.0" unit="dBm">2.000000000</dBm></DBM>)")},
        {"another version",
         QStringLiteral(R"(<DBM version="2.0"><dBm version="1.0" unit="dBm">9.000000000</dBm></DBM>)"),
         {},
         {},
         framed("XmlDBMListType", QStringLiteral("Version \"2.0\" not supported"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlDecibelListType>()
{
    return {
        {"two ratios",
         QStringLiteral(R"(<Gains version="1.0"><Decibel version="1.0" unit="dB">1.000000</Decibel>)"
                        R"(<Decibel version="1.0" unit="dB">2.000000</Decibel></Gains>)")},
        {"another version",
         QStringLiteral(R"(<Gains version="2.0"><Decibel version="1.0" unit="dB">9.000000</Decibel></Gains>)"),
         {},
         {},
         framed("XmlDecibelListType", QStringLiteral("Version \"2.0\" not supported"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlDegreesListType>()
{
    return {
        {"two angles",
         QStringLiteral(R"(<Degrees version="1.0"><Degrees version="1.0" unit="°">1.0</Degrees>)"
                        R"(<Degrees version="1.0" unit="°">2.0</Degrees></Degrees>)")},
        {"another version",
         QStringLiteral(R"(<Degrees version="2.0"><Degrees version="1.0" unit="°">9.0</Degrees></Degrees>)"),
         {},
         {},
         framed("XmlDegreesListType", QStringLiteral("Version \"2.0\" not supported"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlFreqListType>()
{
    return {
        {"two frequencies",
         QStringLiteral(R"(<Frequencies version="1.0"><Frequency version="1.0" unit="MHz">100.000000</Frequency>)"
                        R"(<Frequency version="1.0" unit="kHz">2.000000</Frequency></Frequencies>)")},
        {"another version",
         QStringLiteral(R"(<Frequencies version="2.0"><Frequency version="1.0" unit="Hz">9.000000</Frequency>)"
                        R"(</Frequencies>)"),
         {},
         {},
         framed("XmlFreqListType", QStringLiteral("Version \"2.0\" not supported"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlFreqThrPairType>()
{
    return {
        {"a pair", QStringLiteral(R"(<Pair version="1.0">)") + frequency + rxThreshold + QStringLiteral(R"(</Pair>)")},
        {"another version",
         QStringLiteral(R"(<Pair version="2.0"><Frequency version="1.0" unit="Hz">9.000000</Frequency>)"
                        R"(<RxThreshold version="1.0" unit="dBm">-9.000000000000000</RxThreshold></Pair>)"),
         {},
         {},
         framed("XmlFreqThrPairType", QStringLiteral("Version \"2.0\" not supported"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlFreqThrListType>()
{
    return {
        {"two pairs",
         QStringLiteral(R"(<Thresholds version="1.0"><Pair version="1.0">)") + frequency + rxThreshold
             + QStringLiteral(R"(</Pair><Pair version="1.0"><Frequency version="1.0" unit="GHz">1.000000</Frequency>)"
                              R"(<RxThreshold version="1.0" unit="dBm">-80.000000000000000</RxThreshold></Pair>)"
                              R"(</Thresholds>)")},
        {"another version",
         QStringLiteral(R"(<Thresholds version="2.0"><Pair version="1.0">)") + frequency + rxThreshold
             + QStringLiteral(R"(</Pair></Thresholds>)"),
         {},
         {},
         framed("XmlFreqThrListType", QStringLiteral("Version \"2.0\" not supported"))},
    };
}

// Names, keys and references

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlObjNameType>()
{
    return {
        {"a name", name},
        {"another one", QStringLiteral(R"(<Name>Höhe &amp; Tal</Name>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlReferenceType>()
{
    return {
        {"a reference", reference},
        {"too long",
         QStringLiteral(R"(<Reference>123456789 123456789 123456789 123456789 123456789 1</Reference>)"),
         {},
         {},
         framed("XmlreferenceType", QStringLiteral("String too long (max. 50)"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlKeyType>()
{
    return {
        {"a key", QStringLiteral(R"(<Key>3</Key>)")},
        {"a bad one",
         QStringLiteral(R"(<Key>-4</Key>)"),
         {},
         {},
         framed("XmlKeyType", QStringLiteral("XmlMapType: Illegal Key."))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlNameAllType>()
{
    return {
        {"a name", QStringLiteral(R"(<Emitter><Name>TX 1</Name></Emitter>)")},
        {"all", QStringLiteral(R"(<Emitter><All/></Emitter>)")},
        {"a name with a reference", QStringLiteral(R"(<Emitter><Reference>7</Reference><Name>TX 2</Name></Emitter>)"),
         QStringLiteral(R"(<Emitter><Name>TX 2</Name></Emitter>)")},
        {"a name, and cut off", QStringLiteral(R"(<Emitter><Name>TX 3</Name><Name>TX 4</Name></Emitter>)"),
         QStringLiteral(R"(<Emitter><Name>TX 3</Name></Emitter>)"),
         QStringLiteral("in XmlNameAllType (line 1, column 32): Unexpected element \"Name\"."),
         framed("XmlNameAllType", QStringLiteral("Uninitialized.")), true},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlNameAllMultiType>()
{
    return {
        {"two names", QStringLiteral(R"(<AOIs><Name>North</Name><Name>South</Name></AOIs>)")},
        {"all", QStringLiteral(R"(<AOIs><All/></AOIs>)")},
        {"a name, and cut off", QStringLiteral(R"(<AOIs><Name>North</Name><All/></AOIs>)"),
         QStringLiteral(R"(<AOIs><Name>North</Name></AOIs>)"),
         QStringLiteral("in XmlNameAllMultiType (line 1, column 30): Unexpected element \"All\"."),
         framed("XmlNameAllMultiType", QStringLiteral("Uninitialized."))},
    };
}

// Geometry

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlCoordinateType>()
{
    return {
        {"a position", position},
        {"a bad one",
         QStringLiteral(R"(<Position version="1.0"><Longitude>180.500000</Longitude>)"
                        R"(<Latitude>-90.500000</Latitude></Position>)"),
         {},
         {},
         framed("XmlCoordinateType", QStringLiteral("Longitude out of bounds\nLatitude out of bounds"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlNumCoordType>()
{
    return {
        {"a vertex",
         QStringLiteral(R"(<Vertex version="1.0" number="2"><Longitude>7.100000</Longitude>)"
                        R"(<Latitude>46.100000</Latitude></Vertex>)")},
        {"a bad one",
         QStringLiteral(R"(<Vertex version="1.0" number="-1"><Longitude>-180.500000</Longitude>)"
                        R"(<Latitude>90.500000</Latitude></Vertex>)"),
         {},
         {},
         framed("XmlCoordinateType",
                QStringLiteral("Longitude out of bounds\nLatitude out of bounds\n"
                               "(XmlNumCoordType) Number attribute too small (min. 0)"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlAreaRectType>()
{
    return {
        {"a rectangle", areaRect},
        {"another one",
         QStringLiteral(R"(<AreaRect version="1.0"><UpperLeft version="1.0"><Longitude>1.000000</Longitude>)"
                        R"(<Latitude>2.000000</Latitude></UpperLeft><LowerRight version="1.0">)"
                        R"(<Longitude>3.000000</Longitude><Latitude>1.500000</Latitude></LowerRight></AreaRect>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlAreaPolyType>()
{
    return {
        {"a triangle", areaPolygon},
        {"four vertices out of order",
         QStringLiteral(R"(<AreaPolygon version="1.0"><Vertex version="1.0" number="3"><Longitude>4.000000</Longitude>)"
                        R"(<Latitude>1.000000</Latitude></Vertex><Vertex version="1.0" number="0">)"
                        R"(<Longitude>1.000000</Longitude><Latitude>1.000000</Latitude></Vertex>)"
                        R"(<Vertex version="1.0" number="2"><Longitude>3.000000</Longitude>)"
                        R"(<Latitude>2.000000</Latitude></Vertex><Vertex version="1.0" number="1">)"
                        R"(<Longitude>2.000000</Longitude><Latitude>2.000000</Latitude></Vertex></AreaPolygon>)"),
         QStringLiteral(R"(<AreaPolygon version="1.0"><Vertex version="1.0" number="0"><Longitude>1.000000</Longitude>)"
                        R"(<Latitude>1.000000</Latitude></Vertex><Vertex version="1.0" number="1">)"
                        R"(<Longitude>2.000000</Longitude><Latitude>2.000000</Latitude></Vertex>)"
                        R"(<Vertex version="1.0" number="2"><Longitude>3.000000</Longitude>)"
                        R"(<Latitude>2.000000</Latitude></Vertex><Vertex version="1.0" number="3">)"
                        R"(<Longitude>4.000000</Longitude><Latitude>1.000000</Latitude></Vertex></AreaPolygon>)")},
    };
}

// The envelope

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlOrderDef>()
{
    return {
        {"an envelope",
         QStringLiteral(R"(<ORDER_DEF><ORDER_ID>ARV240305140709042</ORDER_ID><ORDER_SENDER>host</ORDER_SENDER>)"
                        R"(</ORDER_DEF>)")},
        {"an id that is dropped",
         QStringLiteral(R"(<ORDER_DEF><ORDER_ID>ARV24030</ORDER_ID><ORDER_SENDER>other</ORDER_SENDER></ORDER_DEF>)"),
         QStringLiteral(R"(<ORDER_DEF><ORDER_ID></ORDER_ID><ORDER_SENDER>other</ORDER_SENDER></ORDER_DEF>)"),
         {},
         framed("XmlOrderDef", QStringLiteral("Id not set."))},
        {"an id alone",
         QStringLiteral(R"(<ORDER_DEF><ORDER_ID>ARV240305140709043</ORDER_ID><ORDER_SENDER></ORDER_SENDER>)"
                        R"(</ORDER_DEF>)"),
         {},
         {},
         framed("XmlOrderDef", QStringLiteral("Sender not set."))},
    };
}

// Planning objects

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlDeviceCategoryType>()
{
    return {
        {"a direction finder", QStringLiteral(R"(<DeviceCategory>DF</DeviceCategory>)")},
        {"passive antennas", QStringLiteral(R"(<DeviceCategory>PassiveAntennas</DeviceCategory>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlDeviceType>()
{
    // K-factors are read last and written second.
    return {
        {"noises", device(noises)},
        {"noises, gains, levels and K-factors", device(noises + gains + levels + kFactors),
         device(noises + kFactors + gains + levels)},
        {"noises, accuracies, levels and K-factors", device(noises + degrees + levels + kFactors),
         device(noises + kFactors + degrees + levels)},
        {"K-factors", device(kFactors)},
        {"attenuations of another device",
         QStringLiteral(R"(<Device version="1.0"><DeviceCategory>Cable</DeviceCategory><Name>Cable 1</Name>)"
                        R"(<Frequencies version="1.0"><Frequency version="1.0" unit="Hz">50.000000</Frequency>)"
                        R"(</Frequencies>)")
             + attenuations + QStringLiteral(R"(</Device>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlDeviceListType>()
{
    return {
        {"two devices",
         QStringLiteral(R"(<Device version="1.0">)") + device(noises) + device(attenuations)
             + QStringLiteral(R"(</Device>)")},
        {"another version",
         QStringLiteral(R"(<Device version="2.0">)") + device(kFactors) + QStringLiteral(R"(</Device>)"),
         {},
         {},
         framed("XmlDeviceListType", QStringLiteral("Version \"2.0\" not supported"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlMapType>()
{
    // The key is never written, but reported.
    return {
        {"an entry", mapEntry, mapEntryWritten, {}, {}, true, {}, QStringLiteral("3")},
        {"a bad key",
         QStringLiteral(R"(<Map version="1.0"><Key>-4</Key><Value version="1.0" unit="m">7</Value></Map>)"),
         otherMapEntryWritten,
         {},
         framed("XmlMapType", framed("XmlKeyType", QStringLiteral("XmlMapType: Illegal Key."))),
         true,
         {},
         QStringLiteral("-4")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlMapListType>()
{
    return {
        {"two entries",
         QStringLiteral(R"(<AntHgtMap version="1.0">)") + mapEntry + otherMapEntry + QStringLiteral(R"(</AntHgtMap>)"),
         QStringLiteral(R"(<AntHgtMap version="1.0">)") + mapEntryWritten + otherMapEntryWritten
             + QStringLiteral(R"(</AntHgtMap>)"),
         {},
         {},
         true,
         {},
         QStringLiteral("3 4")},
        {"another version",
         QStringLiteral(R"(<AntHgtMap version="2.0">)") + otherMapEntry + QStringLiteral(R"(</AntHgtMap>)"),
         QStringLiteral(R"(<AntHgtMap version="2.0">)") + otherMapEntryWritten + QStringLiteral(R"(</AntHgtMap>)"),
         {},
         framed("XmlMapListType", QStringLiteral("Version \"2.0\" not supported")),
         false,
         {},
         QStringLiteral("4")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlSignalPathType>()
{
    return {
        {"both maps", signalPath(), signalPathWritten()},
        {"no map",
         QStringLiteral(R"(<SignalPath version="1.0"><Name>Path 2</Name><SINAD version="1.0">1.000000</SINAD>)"
                        R"(<Device version="1.0">)")
             + device(kFactors) + QStringLiteral(R"(</Device></SignalPath>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlTxParamType>()
{
    return {
        {"parameters", txParameter},
        {"another version",
         QStringLiteral(R"(<TxParameter version="2.0"><Frequency version="1.0" unit="MHz">100.000000</Frequency>)"
                        R"(<TxPower version="1.0" unit="W">1.000000000000000</TxPower>)"
                        R"(<AntennaHeight version="1.0" unit="m">2</AntennaHeight>)"
                        R"(<Bandwidth version="1.0" unit="kHz">3</Bandwidth></TxParameter>)"),
         {},
         {},
         framed("XmlTxParamType", QStringLiteral("Version \"2.0\" not supported"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlRxParamType>()
{
    return {
        {"parameters", rxParameter},
        {"another version",
         QStringLiteral(R"(<RxParameter version="2.0"><AntennaHeight version="1.0" unit="m">2</AntennaHeight>)"
                        R"(<RxThreshold version="1.0" unit="dBm">-3.000000000000000</RxThreshold></RxParameter>)"),
         {},
         {},
         framed("XmlRxParamType", QStringLiteral("Version \"2.0\" not supported"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlStationInterlinkType>()
{
    return {
        {"a link", interlink, interlinkWritten},
        {"another version",
         QStringLiteral(R"(<StationInterlink version="2.0"><Frequency version="1.0" unit="MHz">100.000000</Frequency>)"
                        R"(<TxPower version="1.0" unit="W">1.000000000000000</TxPower>)"
                        R"(<RxThreshold version="1.0" unit="dBm">-3.000000000000000</RxThreshold>)"
                        R"(<AntennaHeight version="1.0" unit="m">2</AntennaHeight></StationInterlink>)"),
         QStringLiteral(R"(<StationInterlink version="2.0"><Frequency version="1.0" unit="MHz">100.000000</Frequency>)"
                        R"(<Power version="1.0" unit="W">1.000000000000000</Power>)"
                        R"(<RxThreshold version="1.0" unit="dBm">-3.000000000000000</RxThreshold>)"
                        R"(<AntennaHeight version="1.0" unit="m">2</AntennaHeight></StationInterlink>)"),
         {},
         framed("XmlStationInterlinkType", QStringLiteral("Version \"2.0\" not supported"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlStationType>()
{
    return {
        {"everything", station(signalPath(), interlink), station(signalPathWritten(), interlinkWritten)},
        {"name and position",
         QStringLiteral(R"(<Station><Name>Ridge</Name><Position version="1.0"><Longitude>7.750000</Longitude>)"
                        R"(<Latitude>47.125000</Latitude></Position></Station>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlReceiverType>()
{
    return {
        {"everything", receiver(interlink), receiver(interlinkWritten)},
        {"no link",
         QStringLiteral(R"(<Receiver version="1.0"><Name>RX 2</Name><Position version="1.0">)"
                        R"(<Longitude>7.750000</Longitude><Latitude>47.125000</Latitude></Position>)"
                        R"(<RxParameter version="1.0"><AntennaHeight version="1.0" unit="m">2</AntennaHeight>)"
                        R"(<RxThreshold version="1.0" unit="dBm">-3.000000000000000</RxThreshold></RxParameter>)"
                        R"(</Receiver>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlDfPrecisionType>()
{
    return {
        {"a precision", dfPrecision},
        {"a bad one",
         QStringLiteral(R"(<DFprecision version="2.0" unit="deg">-3</DFprecision>)"),
         {},
         {},
         framed("XmlDfPrecisionType",
                QStringLiteral("Version \"2.0\" not supported\nXmlDfPrecisionType: Illegal precision.\n"
                               "XmlDfPrecisionType: Illegal unit."))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlEmitterType>()
{
    return {
        {"an emitter", emitter()},
        {"another one",
         QStringLiteral(R"(<Emitter version="1.0"><Name>TX 2</Name><Position version="1.0">)"
                        R"(<Longitude>7.750000</Longitude><Latitude>47.125000</Latitude></Position>)"
                        R"(<TxParameter version="1.0"><Frequency version="1.0" unit="MHz">100.000000</Frequency>)"
                        R"(<TxPower version="1.0" unit="W">1.000000000000000</TxPower>)"
                        R"(<AntennaHeight version="1.0" unit="m">2</AntennaHeight>)"
                        R"(<Bandwidth version="1.0" unit="kHz">3</Bandwidth></TxParameter></Emitter>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlDfType>()
{
    return {
        {"everything", directionFinder("DF", interlink), directionFinder("DF", interlinkWritten)},
        {"no link",
         QStringLiteral(R"(<DF version="1.0"><Name>DF 2</Name><Position version="1.0">)"
                        R"(<Longitude>7.750000</Longitude><Latitude>47.125000</Latitude></Position>)"
                        R"(<RxParameter version="1.0"><AntennaHeight version="1.0" unit="m">2</AntennaHeight>)"
                        R"(<RxThreshold version="1.0" unit="dBm">-3.000000000000000</RxThreshold></RxParameter>)"
                        R"(<DFprecision version="1.0" unit="°">1</DFprecision></DF>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlDeploymentAreaType>()
{
    return {
        {"a rectangle with a signal path", deploymentArea(signalPath(), areaRect),
         deploymentArea(signalPathWritten(), areaRect)},
        {"a polygon without one",
         QStringLiteral(R"(<DeploymentArea version="1.0"><Name>Area 2</Name>)") + areaPolygon
             + QStringLiteral(R"(<AntennaHeight version="1.0" unit="m">2</AntennaHeight>)"
                              R"(<RxThreshold version="1.0" unit="dBm">-3.000000000000000</RxThreshold>)"
                              R"(<Frequency version="1.0" unit="MHz">100.000000</Frequency>)"
                              R"(<TxPower version="1.0" unit="W">1.000000000000000</TxPower></DeploymentArea>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlAoiType>()
{
    return {
        {"a polygon with a threshold", areaOfInterest("AOI", areaPolygon, rxThreshold)},
        {"a rectangle without one",
         QStringLiteral(R"(<AOI version="1.0"><Name>South</Name>)") + areaRect
             + QStringLiteral(R"(<TxParameter version="1.0"><Frequency version="1.0" unit="MHz">100.000000</Frequency>)"
                              R"(<TxPower version="1.0" unit="W">1.000000000000000</TxPower>)"
                              R"(<AntennaHeight version="1.0" unit="m">2</AntennaHeight>)"
                              R"(<Bandwidth version="1.0" unit="kHz">3</Bandwidth></TxParameter></AOI>)")},
    };
}

// Propagation models

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlPropModelEnumType>()
{
    return {
        {"one", QStringLiteral(R"(<SelectModel>ITM</SelectModel>)")},
        {"another one", QStringLiteral(R"(<SelectModel>Okumura-Hata</SelectModel>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlPropModelP1546Type>()
{
    return {
        {"everything",
         QStringLiteral(R"(<PropertiesP1546><K-factor>1.250</K-factor><TimePct>10.00</TimePct>)"
                        R"(<PropPathType>Land</PropPathType><LocVar>60.00</LocVar><BoardAntGain>3.500</BoardAntGain>)"
                        R"(<RxAntEnviro>Open</RxAntEnviro><AvgAreaEnviro>Suburban</AvgAreaEnviro>)"
                        R"(<PathCorrection>On</PathCorrection><PathTypeForBroadAnt>Cold Sea</PathTypeForBroadAnt>)"
                        R"(<PathTypeForRxAnt>Warm Sea</PathTypeForRxAnt></PropertiesP1546>)"),
         {},
         {},
         {},
         true,
         {},
         QStringLiteral("3.5")},
        {"a part out of bounds",
         QStringLiteral(R"(<PropertiesP1546><TimePct>60.00</TimePct><LocVar>0.50</LocVar></PropertiesP1546>)"),
         {},
         {},
         framed("XmlPropModelP1546Type", QStringLiteral("TimePct out of bounds\nLocVar out of bounds")),
         false,
         {},
         QStringLiteral("0")},
        {"a gain that is no number",
         QStringLiteral(R"(<PropertiesP1546><TimePct>10.00</TimePct><BoardAntGain>x</BoardAntGain></PropertiesP1546>)"),
         QStringLiteral(R"(<PropertiesP1546><TimePct>10.00</TimePct></PropertiesP1546>)"),
         QStringLiteral("in XmlPropModelP1546Type (line 1, column 71): "
                        "Illegal BoardAntGain value (must be numeric)."),
         {},
         true,
         {},
         QStringLiteral("50")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlPropModelP452Type>()
{
    return {
        {"everything",
         QStringLiteral(R"(<PropertiesP452><DeltaN>45.5</DeltaN><SurfaceRefract>300</SurfaceRefract>)"
                        R"(<TimePct>10.00</TimePct><Pressure_hPa>1000</Pressure_hPa><Temp_C>-5</Temp_C>)"
                        R"(<OverWater_km>1.5</OverWater_km><InlandCoastal_km>2.5</InlandCoastal_km>)"
                        R"(<Inland_km>3.5</Inland_km><DistTxCoast_km>4.5</DistTxCoast_km>)"
                        R"(<DistRxCoast_km>5.5</DistRxCoast_km></PropertiesP452>)")},
        {"a part out of bounds",
         QStringLiteral(R"(<PropertiesP452><DeltaN>-1.0</DeltaN><Temp_C>51</Temp_C></PropertiesP452>)"),
         {},
         {},
         framed("XmlPropModelP542Type", QStringLiteral("DeltaN out of bounds\nTemp_C out of bounds"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlPropModelP526Type>()
{
    // Most parameters are written under other names than they are read.
    return {
        {"everything",
         QStringLiteral(R"(<PropertiesP526><K-factor>1.250</K-factor><Pol>Vertical</Pol><Surface>Sea Water</Surface>)"
                        R"(<AssumeSmoothEarth>On</AssumeSmoothEarth>)"
                        R"(<IncludeSubPathDiffractionLoss>Off</IncludeSubPathDiffractionLoss></PropertiesP526>)"),
         QStringLiteral(
             R"(<PropertiesP526><K-factor>1.250</K-factor><Polarisation>Vertical</Polarisation>)"
             R"(<Surface Condition>Sea Water</Surface Condition>)"
             R"(<Assume Smooth Earth for complete path>On</Assume Smooth Earth for complete path>)"
             R"(<Include sub path diffraction loss>Off</Include sub path diffraction loss></PropertiesP526>)")},
        {"a K-factor out of bounds",
         QStringLiteral(R"(<PropertiesP526><K-factor>6.000</K-factor></PropertiesP526>)"),
         {},
         {},
         framed("XmlPropModelP526Type", QStringLiteral("K-factor out of bounds"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlPropModelP533Type>()
{
    return {
        {"everything",
         QStringLiteral(R"(<PropertiesP533><K-factor>1.250</K-factor>)"
                        R"(<SmoothedSunSpotNumber>80.5</SmoothedSunSpotNumber></PropertiesP533>)")},
        {"a part out of bounds",
         QStringLiteral(R"(<PropertiesP533><SmoothedSunSpotNumber>1000.0</SmoothedSunSpotNumber></PropertiesP533>)"),
         {},
         {},
         framed("XmlPropModelP526Type", QStringLiteral("SmoothedSunSpotNumber out of bounds"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlPropModelITMType>()
{
    // The ground written is chosen by the climate.
    return {
        {"everything",
         QStringLiteral(R"(<PropertiesITM><RRI>310.0000</RRI><Pol>V</Pol><Climate>Desert</Climate>)"
                        R"(<Surface>Poor Ground</Surface><Conf>60.50</Conf><Time>70.50</Time></PropertiesITM>)"),
         QStringLiteral(R"(<PropertiesITM><RRI>310.0000</RRI><Pol>V</Pol><Climate>Desert</Climate>)"
                        R"(<Surface>Fresh Water</Surface><Conf>60.50</Conf><Time>70.50</Time></PropertiesITM>)")},
        {"a part out of bounds",
         QStringLiteral(R"(<PropertiesITM><RRI>401.0000</RRI><Conf>-1.00</Conf></PropertiesITM>)"),
         {},
         {},
         framed("XmlPropModelITMType", QStringLiteral("RRI out of bounds\nConf out of bounds"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlPropModelHataType>()
{
    // The K-factor is written under the tag of the set.
    return {
        {"everything",
         QStringLiteral(R"(<PropertiesOkumura><K-factor>1.2500</K-factor><AreaType>Open rural</AreaType>)"
                        R"(<CitySize>Medium</CitySize></PropertiesOkumura>)"),
         QStringLiteral(R"(<PropertiesOkumura><PropertiesOkumura>1.2500</PropertiesOkumura>)"
                        R"(<AreaType>Open rural</AreaType><CitySize>Medium</CitySize></PropertiesOkumura>)")},
        {"a K-factor out of bounds",
         QStringLiteral(R"(<PropertiesOkumura><K-factor>6.0000</K-factor></PropertiesOkumura>)"),
         QStringLiteral(R"(<PropertiesOkumura><PropertiesOkumura>6.0000</PropertiesOkumura></PropertiesOkumura>)"),
         {},
         framed("XmlPropModelHataType", QStringLiteral("Kfactor out of bounds"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlPropModelOLOSType>()
{
    return {
        {"everything",
         QStringLiteral(R"(<PropertiesOLOS><K-factor>1.2500</K-factor><MaxRange_km>35.500</MaxRange_km>)"
                        R"(</PropertiesOLOS>)")},
        {"a range out of bounds",
         QStringLiteral(R"(<PropertiesOLOS><MaxRange_km>51.000</MaxRange_km></PropertiesOLOS>)"),
         {},
         {},
         framed("XmlPropModelOLOSType", QStringLiteral("Range out of bounds"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlPropModelFSType>()
{
    return {
        {"a K-factor", QStringLiteral(R"(<PropertiesFreespace><K-factor>1.2500</K-factor></PropertiesFreespace>)")},
        {"one out of bounds",
         QStringLiteral(R"(<PropertiesFreespace><K-factor>6.0000</K-factor></PropertiesFreespace>)"),
         {},
         {},
         framed("XmlPropModelFSType", QStringLiteral("K-factor out of bounds"))},
    };
}

/// The model definition with each of its sets, as a command, that is with a reference, or not.
inline std::vector<Sample> propModelSamples(bool isCommand)
{
    const auto definition = [isCommand](const QString& model, const QString& set) {
        return QStringLiteral(R"(<PropagationModel><SelectModel>%1</SelectModel>%2%3</PropagationModel>)")
            .arg(model, set, isCommand ? reference : QString());
    };
    std::vector<Sample> samples;
    const auto add = [&](const char* sampleName, const char* model, const std::vector<Sample>& sets) {
        const QString text = QString::fromLatin1(model);
        samples.push_back({sampleName, definition(text, sets.front().xml), definition(text, sets.front().expected())});
    };
    add("free space", "Free-space", samplesOf<ArvXml::XmlPropModelFSType>());
    add("line of sight", "OLOS", samplesOf<ArvXml::XmlPropModelOLOSType>());
    add("irregular terrain", "ITM", samplesOf<ArvXml::XmlPropModelITMType>());
    add("P.452", "P.452", samplesOf<ArvXml::XmlPropModelP452Type>());
    add("P.1546", "P.1546", samplesOf<ArvXml::XmlPropModelP1546Type>());
    add("P.526", "P.526", samplesOf<ArvXml::XmlPropModelP526Type>());
    add("P.533", "P.533", samplesOf<ArvXml::XmlPropModelP533Type>());
    add("Okumura-Hata", "Okumura-Hata", samplesOf<ArvXml::XmlPropModelHataType>());
    if (isCommand) {
        samples.push_back({"an envelope and no set",
                           QStringLiteral(R"(<PropagationModel><Reference>43</Reference></PropagationModel>)"),
                           {},
                           {},
                           {},
                           true,
                           finished<ArvXml::XmlCommand>(setEnvelope),
                           envelopeShown});
    } else {
        samples.push_back({"no set", QStringLiteral(R"(<PropagationModel/>)")});
    }
    return samples;
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlPropModelType>()
{
    return propModelSamples(true);
}

// Orders

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlResultGridType>()
{
    return {
        {"a spacing", grid},
        {"another one", QStringLiteral(R"(<ResultGrid>1000</ResultGrid>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlCepProbType>()
{
    return {
        {"a level", QStringLiteral(R"(<Probability>90</Probability>)")},
        {"another one", QStringLiteral(R"(<Probability>66</Probability>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlCepType>()
{
    return {
        {"everything", QStringLiteral(R"(<CEP>)") + cepContent + QStringLiteral(R"(</CEP>)")},
        {"what is required", QStringLiteral(R"(<CEP><UseDFs><All/></UseDFs><AOIs><Name>West</Name></AOIs></CEP>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlDetectProbType>()
{
    return {
        {"everything",
         QStringLiteral(R"(<DetectionProbability>)") + detectProbContent
             + QStringLiteral(R"(</DetectionProbability>)")},
        {"what is required",
         QStringLiteral(R"(<DetectionProbability><UseRxDFs><All/></UseRxDFs><AOIs><Name>West</Name></AOIs>)"
                        R"(</DetectionProbability>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlDfCovType>()
{
    return {
        {"everything", QStringLiteral(R"(<DFcoverage>)") + dfCovContent + QStringLiteral(R"(</DFcoverage>)")},
        {"what is required",
         QStringLiteral(R"(<DFcoverage><UseDFs><Name>DF 2</Name></UseDFs><AOIs><Name>West</Name></AOIs>)"
                        R"(</DFcoverage>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlBestSensorType>()
{
    return {
        {"everything",
         QStringLiteral(R"(<BestSensorCov>)") + bestSensorContent + QStringLiteral(R"(</BestSensorCov>)")},
        {"what is required",
         QStringLiteral(R"(<BestSensorCov><UseRxDFs><Name>RX 2</Name></UseRxDFs><AOIs><All/></AOIs>)"
                        R"(</BestSensorCov>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlFindSitesType>()
{
    return {
        {"everything",
         QStringLiteral(R"(<FindPossibleSites>)") + findSitesContent + QStringLiteral(R"(</FindPossibleSites>)"),
         {},
         {},
         {},
         true,
         {},
         QStringLiteral("10 2")},
        {"what is required",
         QStringLiteral(R"(<FindPossibleSites><DeploymentAreas><Name>West</Name></DeploymentAreas>)"
                        R"(</FindPossibleSites>)"),
         {},
         {},
         {},
         true,
         {},
         QStringLiteral("-1 0")},
        {"a number without a distribution",
         QStringLiteral(R"(<FindPossibleSites><DeploymentAreas><All/></DeploymentAreas></FindPossibleSites>)"),
         {},
         {},
         framed("XmlFindSitesType", QStringLiteral("RandomEmitters distribution not set")),
         false,
         finished<ArvXml::XmlFindSitesType>([](ArvXml::XmlFindSitesType& order) { order.setRandNumber(7); }),
         QStringLiteral("7 0")},
        {"a distribution without a number",
         QStringLiteral(R"(<FindPossibleSites><DeploymentAreas><All/></DeploymentAreas></FindPossibleSites>)"),
         {},
         {},
         {},
         true,
         finished<ArvXml::XmlFindSitesType>(
             [](ArvXml::XmlFindSitesType& order) { order.setRandDistri(ArvXml::XmlFindSitesType::Random); }),
         QStringLiteral("-1 1")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlInterlinkPlanningType>()
{
    return {
        {"two names",
         QStringLiteral(R"(<InterlinkPlanning>)") + interlinkContent + QStringLiteral(R"(</InterlinkPlanning>)")},
        {"one name",
         QStringLiteral(R"(<InterlinkPlanning><FirstName>Peak</FirstName><SecondName></SecondName>)"
                        R"(</InterlinkPlanning>)"),
         {},
         {},
         framed("XmlInterlinkPlanningType", QStringLiteral("SecondName not set"))},
    };
}

// Commands

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlCmdCalc>()
{
    const auto command = [](const char* tag, const QString& content) {
        return QStringLiteral(R"(<Calculate><%1>%2</%1>%3</Calculate>)").arg(QLatin1String(tag), content, reference);
    };
    return {
        {"possible sites, and an envelope",
         command("FindPossibleSites", findSitesContent),
         {},
         {},
         {},
         true,
         finished<ArvXml::XmlCommand>(setEnvelope),
         envelopeShown},
        {"error probable", command("CEP", cepContent)},
        {"detection probability", command("DetectionProbability", detectProbContent)},
        {"coverage", command("DFcoverage", dfCovContent)},
        {"a link", command("InterlinkPlanning", interlinkContent)},
        {"best sensor", command("BestSensorCov", bestSensorContent)},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlCmdAdmin>()
{
    return {
        {"a query with an envelope",
         QStringLiteral(R"(<Administrative><QueryVersion/><Reference>42</Reference></Administrative>)"),
         {},
         {},
         {},
         true,
         finished<ArvXml::XmlCommand>(setEnvelope),
         envelopeShown},
        {"a query without a reference",
         QStringLiteral(R"(<Administrative><QueryVersion/></Administrative>)"),
         QStringLiteral(R"(<Administrative><QueryVersion/><Reference></Reference></Administrative>)"),
         {},
         framed("XmlCmdAdmin", framed("XmlreferenceType", QStringLiteral("String too short (min. 1)")))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlCmdCreate>()
{
    const auto command = [](const QString& object) {
        return QStringLiteral(R"(<Create>)") + object + reference + QStringLiteral(R"(</Create>)");
    };
    return {
        {"a deployment area, and an envelope",
         command(deploymentArea(signalPath(), areaPolygon)),
         command(deploymentArea(signalPathWritten(), areaPolygon)),
         {},
         {},
         true,
         finished<ArvXml::XmlCommand>(setEnvelope),
         envelopeShown},
        {"an area of interest", command(areaOfInterest("AOI", areaRect, rxThreshold))},
        {"an emitter", command(emitter())},
        {"a receiver", command(receiver(interlink)), command(receiver(interlinkWritten))},
        {"a direction finder", command(directionFinder("DF", interlink)),
         command(directionFinder("DF", interlinkWritten))},
        {"a station", command(station(signalPath(), interlink)),
         command(station(signalPathWritten(), interlinkWritten))},
        {"a signal path", command(signalPath("Path")), command(signalPathWritten())},
        {"a device", command(device(attenuations))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlCmdDelete>()
{
    const auto command = [](const char* tag, const QString& object) {
        return QStringLiteral(R"(<Delete><%1>%2</%1>%3</Delete>)").arg(QLatin1String(tag), object, reference);
    };
    return {
        {"deployment areas, and an envelope",
         command("DeploymentArea", all),
         {},
         {},
         {},
         true,
         finished<ArvXml::XmlCommand>(setEnvelope),
         envelopeShown},
        {"an area of interest", command("AOI", name)},
        {"an emitter", command("Emitter", name)},
        {"receivers", command("Receiver", all)},
        {"a direction finder", command("DF", name)},
        {"a device", command("Device", name)},
        {"a signal path", command("SignalPath", name)},
        {"stations", command("Station", all)},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlCmdRoot>()
{
    return {
        {"commands of every kind",
         QStringLiteral(R"(<Commands><ORDER_DEF><ORDER_ID>ARV240305140709042</ORDER_ID>)"
                        R"(<ORDER_SENDER>planner</ORDER_SENDER></ORDER_DEF><Administrative><QueryVersion/>)"
                        R"(<Reference>1</Reference></Administrative><Create>)")
             + emitter()
             + QStringLiteral(R"(<Reference>2</Reference></Create><Delete><AOI><All/></AOI><Reference>3</Reference>)"
                              R"(</Delete><PropagationModel><SelectModel>ITM</SelectModel><Reference>4</Reference>)"
                              R"(</PropagationModel><Calculate><CEP>)")
             + cepContent + QStringLiteral(R"(</CEP><Reference>5</Reference></Calculate><Calculate><DFcoverage>)")
             + dfCovContent + QStringLiteral(R"(</DFcoverage><Reference>6</Reference></Calculate></Commands>)"),
         {},
         {},
         {},
         true,
         {},
         QStringLiteral("ARV240305140709042 planner, ARV240305140709042 planner, ARV240305140709042 planner, "
                        "ARV240305140709042 planner, ARV240305140709042 planner, ARV240305140709042 planner")},
        {"no envelope",
         QStringLiteral(R"(<Commands><Delete><DF><Name>DF 1</Name></DF><Reference>7</Reference></Delete>)"
                        R"(<Delete><DF><Name>DF 2</Name></DF><Reference>8</Reference></Delete></Commands>)"),
         {},
         {},
         {},
         true,
         {},
         QStringLiteral("none, none")},
        {"nothing", QStringLiteral(R"(<Commands/>)")},
    };
}

// Results and responses

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlGridResultType>()
{
    // Reading stops behind the parameters; the file name is set afterwards.
    const auto result = [](const char* type, const char* wrapper, const QString& parameters) {
        return QStringLiteral(R"(<GridResult type="%1"><%2><Parameter>%3</Parameter>)"
                              R"(<ScreenshotFilename>grid.png</ScreenshotFilename></%2></GridResult>)")
            .arg(QLatin1String(type), QLatin1String(wrapper), parameters);
    };
    const auto setFilename = finished<ArvXml::XmlGridResultType>(
        [](ArvXml::XmlGridResultType& read) { read.setScreenshotFilename(QStringLiteral("grid.png")); });
    const QString filename = QStringLiteral("grid.png");
    return {
        {"possible sites",
         result("FindSites", "FindPossibleSites", findSitesContent),
         {},
         QStringLiteral("in XmlFindSitesType (line 1, column 279): Unexpected token \"EndElement\": Parameter."),
         {},
         true,
         setFilename,
         filename},
        {"error probable",
         result("CEP", "CEP", cepContent),
         {},
         QStringLiteral("in XmlCepType (line 1, column 191): Unexpected token \"EndElement\": Parameter."),
         {},
         true,
         setFilename,
         filename},
        {"detection probability",
         result("DetectProb", "DetectionProbability", detectProbContent),
         {},
         QStringLiteral("in XmlDetectProbType (line 1, column 159): Unexpected token \"EndElement\": Parameter."),
         {},
         true,
         setFilename,
         filename},
        {"coverage",
         result("DfCoverage", "DFcoverage", dfCovContent),
         {},
         QStringLiteral("in XmlDfCovType (line 1, column 147): Unexpected token \"EndElement\": Parameter."),
         {},
         true,
         setFilename,
         filename},
        {"best sensor",
         result("BestSensorCov", "BestSensorCov", bestSensorContent),
         {},
         QStringLiteral("in XmlBestSensorType (line 1, column 187): Unexpected token \"EndElement\": Parameter."),
         {},
         true,
         setFilename,
         filename},
        {"as read", gridResult, gridResultRead,
         QStringLiteral("in XmlDetectProbType (line 1, column 121): Unexpected token \"EndElement\": Parameter."),
         framed("XmlGridResultType", QStringLiteral("Screenshot path not set"))},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlGridValuesType>()
{
    return {
        {"a range", values},
        {"another one", QStringLiteral(R"(<Values version="1.0" unit="dB"><Min>0.25</Min><Max>-3</Max></Values>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlInterlinkResultType>()
{
    return {
        {"everything", interlinkResult},
        {"no picture",
         QStringLiteral(R"(<InterlinkResult><Parameters><FirstName>Peak</FirstName><SecondName>Plain</SecondName>)"
                        R"(</Parameters><Result><Text>no link</Text></Result></InterlinkResult>)")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlAutoRespType>()
{
    const auto response = [](const char* status, const QString& item) {
        return QStringLiteral(R"(<Automatic status="%1"><CommandReference>42</CommandReference>%2</Automatic>)")
            .arg(QLatin1String(status), item);
    };
    return {
        {"an error",
         response("fault", QStringLiteral(R"(<ErrorMessage>No such area</ErrorMessage>)")),
         {},
         {},
         {},
         true,
         {},
         QStringLiteral("No such area|||-|-")},
        {"a time",
         response("ack", QStringLiteral(R"(<EstimatedTime>2024-03-05T14:07:09</EstimatedTime>)")),
         {},
         {},
         {},
         true,
         {},
         QStringLiteral("|2024-03-05T14:07:09||-|-")},
        {"a version",
         response("ack", QStringLiteral(R"(<ArvVersion>3.1</ArvVersion>)")),
         {},
         {},
         {},
         true,
         {},
         QStringLiteral("||3.1|-|-")},
        {"a grid",
         response("ack", gridResult),
         response("ack", gridResultRead),
         QStringLiteral("in XmlDetectProbType (line 1, column 184): Unexpected token \"EndElement\": Parameter."),
         framed("XmlAutoRespType", framed("XmlGridResultType", QStringLiteral("Screenshot path not set"))),
         false,
         {},
         QStringLiteral("||||-")},
        {"a link", response("ack", interlinkResult), {}, {}, {}, true, {}, QStringLiteral("|||-|feasible")},
        {"everything behind an error",
         response("fault", QStringLiteral(R"(<ErrorMessage>Out of disk</ErrorMessage>)")),
         {},
         {},
         framed("XmlAutoRespType",
                QStringLiteral("Has ErrorMessage but also EstimatedTime\n")
                    + framed("XmlGridResultType", QStringLiteral("Type not defined"))),
         false,
         finished<ArvXml::XmlAutoRespType>([](ArvXml::XmlAutoRespType& read) {
             read.setEstimatedTime(TestValues::someTime());
             read.setArvVersion(QStringLiteral("3.2"));
             ArvXml::XmlGridResultType result;
             result.setScreenshotFilename(QStringLiteral("grid.png"));
             read.setGridResult(result);
             read.setInterlinkResult(ElementTest::readFrom<ArvXml::XmlInterlinkResultType>(interlinkResult));
         }),
         QStringLiteral("Out of disk|2024-03-05T14:07:09|3.2|grid.png|feasible")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlResultObjectType>()
{
    // Its own end tag is always refused.
    const auto result = [](const QString& object) {
        return QStringLiteral(R"(<Station>)") + object + QStringLiteral(R"(</Station>)");
    };
    return {
        {"a station",
         result(QStringLiteral(R"(<Station><Name>Ridge</Name><Position version="1.0"><Longitude>7.750000</Longitude>)"
                               R"(<Latitude>47.125000</Latitude></Position></Station>)")),
         {},
         QStringLiteral("in XmlResultObjectType (line 1, column 152): Unexpected token \"EndElement\": Station.")},
        {"an emitter",
         result(emitter()),
         {},
         QStringLiteral("in XmlResultObjectType (line 1, column 435): Unexpected token \"EndElement\": Station.")},
        {"a receiver", result(receiver(interlink)), result(receiver(interlinkWritten)),
         QStringLiteral("in XmlResultObjectType (line 1, column 634): Unexpected token \"EndElement\": Station.")},
        {"a direction finder",
         result(directionFinder("DF", QString())),
         {},
         QStringLiteral("in XmlResultObjectType (line 1, column 379): Unexpected token \"EndElement\": Station.")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlInteractRespType>()
{
    const auto response = [](const QString& item) {
        return QStringLiteral(R"(<Interactive>)") + item + QStringLiteral(R"(</Interactive>)");
    };
    return {
        {"a link", response(interlinkResult)},
        {"a grid", response(gridResult), response(gridResultRead),
         QStringLiteral("in XmlDetectProbType (line 1, column 134): Unexpected token \"EndElement\": Parameter."),
         framed("XmlInteractRespType", framed("XmlGridResultType", QStringLiteral("Screenshot path not set")))},
        {"an emitter",
         response(QStringLiteral(R"(<Station>)") + emitter() + QStringLiteral(R"(</Station>)")),
         {},
         QStringLiteral("in XmlResultObjectType (line 1, column 448): Unexpected token \"EndElement\": Station.")},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlRespRoot>()
{
    return {
        {"an answer with an envelope",
         QStringLiteral(R"(<Response type="automatic" final="false" timestamp="2024-03-05T14:07:09"><ORDER_DEF>)"
                        R"(<ORDER_ID>ARV240305140709042</ORDER_ID><ORDER_SENDER>host</ORDER_SENDER></ORDER_DEF>)"
                        R"(<Automatic status="ack"><CommandReference>42</CommandReference>)"
                        R"(<ArvVersion>3.1</ArvVersion></Automatic></Response>)")},
        {"a result",
         QStringLiteral(R"(<Response type="interactive" final="true" timestamp="2025-01-31T23:59:58"><Interactive>)")
             + interlinkResult + QStringLiteral(R"(</Interactive></Response>)")},
    };
}

// Result information and the display snapshot

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlResInfo_Cep_Type>()
{
    return {
        {"a polygon", resultInfo("Result_CEP", areaPolygon)},
        {"a rectangle", resultInfo("Result_CEP", areaRect)},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlResInfo_DetectProb_Type>()
{
    return {
        {"a polygon", resultInfo("Result_DetectProb", areaPolygon)},
        {"a rectangle", resultInfo("Result_DetectProb", areaRect)},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlResInfo_DfCov_Type>()
{
    return {
        {"a polygon", resultInfo("Result_DfCoverage", areaPolygon)},
        {"a rectangle", resultInfo("Result_DfCoverage", areaRect)},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlResInfo_FindSites_Type>()
{
    return {
        {"a polygon", resultInfo("Result_FindSites", areaPolygon)},
        {"a rectangle", resultInfo("Result_FindSites", areaRect)},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlResInfo_BestSensor_Type>()
{
    return {
        {"a polygon with a comment",
         resultInfo("Result_BestSensor", areaPolygon, QStringLiteral(R"(<Comment>Best of all</Comment>)"))},
        {"a rectangle without one", resultInfo("Result_BestSensor", areaRect)},
    };
}

template <>
inline std::vector<Sample> samplesOf<ArvXml::XmlArvBtType>()
{
    const auto request = [](const QString& areaPath, const QString& link) {
        return QStringLiteral(R"(<Snapshot version="1.0"><ScreenshotPath>/tmp/plan.png</ScreenshotPath>)"
                              R"(<DisplayedObjects>)")
            + deploymentArea(areaPath, areaRect) + deploymentArea(QString(), areaPolygon)
            + areaOfInterest("AreaOfInterest", areaRect, rxThreshold) + emitter("KnownEmitter") + receiver(link)
            + directionFinder("DirectionFinder", link) + resultInfo("Result_FindSites", areaRect)
            + resultInfo("Result_CEP", areaPolygon) + resultInfo("Result_DetectProb", areaRect)
            + resultInfo("Result_DfCoverage", areaPolygon) + QStringLiteral(R"(</DisplayedObjects></Snapshot>)");
    };
    return {
        {"objects of every kind", request(signalPath(), interlink), request(signalPathWritten(), interlinkWritten)},
        {"nothing",
         QStringLiteral(R"(<Snapshot version="1.0"><ScreenshotPath>empty.png</ScreenshotPath><DisplayedObjects/>)"
                        R"(</Snapshot>)")},
    };
}

// The classes

/// Calls `visit(Class<T>(), name)` for every concrete class.
template <typename Visitor>
void forEachClass(Visitor&& visit)
{
#define SAMPLES_VISIT(Type) visit(Class<ArvXml::Type>(), #Type)
    SAMPLES_VISIT(XmlDBMType);
    SAMPLES_VISIT(XmlDecibelType);
    SAMPLES_VISIT(XmlDegreesType);
    SAMPLES_VISIT(XmlLengthType);
    SAMPLES_VISIT(XmlPowerType);
    SAMPLES_VISIT(XmlFreqType);
    SAMPLES_VISIT(XmlBandwidthType);
    SAMPLES_VISIT(XmlFieldstrengthType);
    SAMPLES_VISIT(XmlSinadType);
    SAMPLES_VISIT(XmlDBMListType);
    SAMPLES_VISIT(XmlDecibelListType);
    SAMPLES_VISIT(XmlDegreesListType);
    SAMPLES_VISIT(XmlFreqListType);
    SAMPLES_VISIT(XmlFreqThrPairType);
    SAMPLES_VISIT(XmlFreqThrListType);
    SAMPLES_VISIT(XmlObjNameType);
    SAMPLES_VISIT(XmlReferenceType);
    SAMPLES_VISIT(XmlKeyType);
    SAMPLES_VISIT(XmlNameAllType);
    SAMPLES_VISIT(XmlNameAllMultiType);
    SAMPLES_VISIT(XmlCoordinateType);
    SAMPLES_VISIT(XmlNumCoordType);
    SAMPLES_VISIT(XmlAreaRectType);
    SAMPLES_VISIT(XmlAreaPolyType);
    SAMPLES_VISIT(XmlOrderDef);
    SAMPLES_VISIT(XmlDeploymentAreaType);
    SAMPLES_VISIT(XmlAoiType);
    SAMPLES_VISIT(XmlDeviceCategoryType);
    SAMPLES_VISIT(XmlDeviceType);
    SAMPLES_VISIT(XmlDeviceListType);
    SAMPLES_VISIT(XmlMapType);
    SAMPLES_VISIT(XmlMapListType);
    SAMPLES_VISIT(XmlSignalPathType);
    SAMPLES_VISIT(XmlTxParamType);
    SAMPLES_VISIT(XmlRxParamType);
    SAMPLES_VISIT(XmlStationInterlinkType);
    SAMPLES_VISIT(XmlStationType);
    SAMPLES_VISIT(XmlReceiverType);
    SAMPLES_VISIT(XmlDfPrecisionType);
    SAMPLES_VISIT(XmlEmitterType);
    SAMPLES_VISIT(XmlDfType);
    SAMPLES_VISIT(XmlPropModelEnumType);
    SAMPLES_VISIT(XmlPropModelType);
    SAMPLES_VISIT(XmlPropModelP1546Type);
    SAMPLES_VISIT(XmlPropModelP452Type);
    SAMPLES_VISIT(XmlPropModelP526Type);
    SAMPLES_VISIT(XmlPropModelP533Type);
    SAMPLES_VISIT(XmlPropModelITMType);
    SAMPLES_VISIT(XmlPropModelHataType);
    SAMPLES_VISIT(XmlPropModelOLOSType);
    SAMPLES_VISIT(XmlPropModelFSType);
    SAMPLES_VISIT(XmlResultGridType);
    SAMPLES_VISIT(XmlCepProbType);
    SAMPLES_VISIT(XmlCepType);
    SAMPLES_VISIT(XmlDetectProbType);
    SAMPLES_VISIT(XmlDfCovType);
    SAMPLES_VISIT(XmlBestSensorType);
    SAMPLES_VISIT(XmlFindSitesType);
    SAMPLES_VISIT(XmlInterlinkPlanningType);
    SAMPLES_VISIT(XmlCmdCalc);
    SAMPLES_VISIT(XmlCmdAdmin);
    SAMPLES_VISIT(XmlCmdCreate);
    SAMPLES_VISIT(XmlCmdDelete);
    SAMPLES_VISIT(XmlCmdRoot);
    SAMPLES_VISIT(XmlGridResultType);
    SAMPLES_VISIT(XmlGridValuesType);
    SAMPLES_VISIT(XmlInterlinkResultType);
    SAMPLES_VISIT(XmlAutoRespType);
    SAMPLES_VISIT(XmlResultObjectType);
    SAMPLES_VISIT(XmlInteractRespType);
    SAMPLES_VISIT(XmlRespRoot);
    SAMPLES_VISIT(XmlResInfo_Cep_Type);
    SAMPLES_VISIT(XmlResInfo_DetectProb_Type);
    SAMPLES_VISIT(XmlResInfo_DfCov_Type);
    SAMPLES_VISIT(XmlResInfo_FindSites_Type);
    SAMPLES_VISIT(XmlResInfo_BestSensor_Type);
    SAMPLES_VISIT(XmlArvBtType);
#undef SAMPLES_VISIT
}

using Element = std::unique_ptr<ArvXml::IXmlElement>;

/// A class, its type hidden behind functions.
struct ElementClass {
    QString name;
    QString variant; ///< of an XmlPropModelType: "command" or "definition"; empty for all others
    Element (*create)();
    Element (*copy)(const ArvXml::IXmlElement& source);
    /// Assigns \a source to \a target, and returns what the assignment returns.
    ArvXml::IXmlElement* (*assign)(ArvXml::IXmlElement& target, const ArvXml::IXmlElement& source);
    /// What an element holds without writing it.
    QString (*unseen)(const ArvXml::IXmlElement& element);
    std::vector<Sample> samples;

    QString title() const { return variant.isEmpty() ? name : name + QLatin1Char(' ') + variant; }
};

/// A new element of type \a T; \a isCommand matters to the one class that has no default constructor.
template <typename T, bool isCommand>
Element newElement()
{
    if constexpr (std::is_same_v<T, ArvXml::XmlPropModelType>)
        return std::make_unique<T>(isCommand);
    else
        return std::make_unique<T>();
}

template <typename T, bool isCommand = true>
ElementClass elementClass(const char* className, const char* variant, std::vector<Sample> samples)
{
    using ArvXml::IXmlElement;
    return {
        QString::fromLatin1(className),
        QString::fromLatin1(variant),
        newElement<T, isCommand>,
        [](const IXmlElement& source) -> Element { return std::make_unique<T>(dynamic_cast<const T&>(source)); },
        [](IXmlElement& target, const IXmlElement& source) -> IXmlElement* {
            return &(dynamic_cast<T&>(target) = dynamic_cast<const T&>(source));
        },
        [](const IXmlElement& element) { return unseenOf(dynamic_cast<const T&>(element)); },
        std::move(samples),
    };
}

/// The table of all concrete classes.
inline const std::vector<ElementClass>& classes()
{
    static const std::vector<ElementClass> table = [] {
        std::vector<ElementClass> rows;
        forEachClass([&rows](auto type, const char* className) {
            using T = typename decltype(type)::Type;
            if constexpr (std::is_same_v<T, ArvXml::XmlPropModelType>) {
                rows.push_back(elementClass<T, true>(className, "command", propModelSamples(true)));
                rows.push_back(elementClass<T, false>(className, "definition", propModelSamples(false)));
            } else {
                rows.push_back(elementClass<T>(className, "", samplesOf<T>()));
            }
        });
        return rows;
    }();
    return table;
}

/// A new element that holds the sample. \a error, if given, gets the reader's error.
inline Element newFrom(const ElementClass& elementClass, const Sample& sample, QString* error = nullptr)
{
    Element element = elementClass.create();
    const QString readerError = ElementTest::readError(*element, sample.xml);
    if (error)
        *error = readerError;
    if (sample.finish)
        sample.finish(*element);
    return element;
}

/// The tag under which the sample stands.
inline QString tagOf(const Sample& sample)
{
    QXmlStreamReader reader(sample.xml);
    reader.readNextStartElement();
    return reader.name().toString();
}

} // namespace Samples
