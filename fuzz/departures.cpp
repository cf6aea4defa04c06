#include "departures.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace Fuzz {

namespace {

bool isOneOf(const QString& name, std::initializer_list<const char*> names)
{
    return std::any_of(names.begin(), names.end(), [&name](const char* one) { return name == QLatin1String(one); });
}

/// An inner tag whose end tag an element reads itself. Under the very same tag of its own it takes that for its end.
struct InnerTag {
    const char* className;
    const char* tag;
};

constexpr InnerTag innerTags[] = {
    {"XmlNameAllType", "All"},
    {"XmlNameAllMultiType", "All"},
    {"XmlCmdAdmin", "QueryVersion"},
    {"XmlInterlinkResultType", "Result"},
    {"XmlFindSitesType", "RandomEmitters"},
    {"XmlGridValuesType", "Max"},
    {"XmlArvBtType", "DisplayedObjects"},
};

/// What the library writes but refuses to read: a piece of the document that makes it so.
constexpr const char* refusedTags[] = {
    "<Power ",              // an interlink reads its power under "TxPower"
    "</KFactors><Gains ",   // a device reads the K-factors behind the gains,
    "</KFactors><Degrees ", // and behind the accuracies
    "<Polarisation>",       // of model P.526, which reads "Pol"; its other names hold blanks, and so are no XML:
    "<Surface Condition>",
    "<Assume Smooth Earth for complete path>",
    "<Include sub path diffraction loss>",
};

/// The same asked of the element itself: whatever is written must not, by mistake of ours, be readable.
bool holdsWhatCannotBeReadBack(const ArvXml::IXmlElement& element, const QString& tag)
{
    using namespace ArvXml;
    if (dynamic_cast<const XmlStationInterlinkType*>(&element))
        return true; // the power
    if (const auto* station = dynamic_cast<const XmlStationType*>(&element))
        return station->hasInterlink();
    if (const auto* receiver = dynamic_cast<const XmlReceiverType*>(&element))
        return receiver->hasInterlink();
    if (const auto* df = dynamic_cast<const XmlDfType*>(&element))
        return df->hasInterlink();
    if (const auto* command = dynamic_cast<const XmlCmdCreate*>(&element))
        return command->hasSignalPath(); // read under "Path"
    if (const auto* device = dynamic_cast<const XmlDeviceType*>(&element))
        return device->hasKfactor() && device->hasNoise(); // written second, read last
    if (const auto* p526 = dynamic_cast<const XmlPropModelP526Type*>(&element))
        return p526->hasPol() || p526->hasSurf() || p526->hasSmooth() || p526->hasSubPath();
    if (const auto* hata = dynamic_cast<const XmlPropModelHataType*>(&element))
        return hata->hasKfactor() && tag != QLatin1String("K-factor"); // written under the tag of the set
    return false;
}

/// An error with which the library's reader refuses what the library wrote.
struct Refusal {
    const char* className; ///< as the error shows it; null for an error of the stream
    const char* message;   ///< what the error begins with
    const char* trace;     ///< a regular expression for what is in the document that causes it
};

const Refusal refusals[] = {
    // Written under another tag than it is read
    {"XmlStationInterlinkType", "Unexpected element \"Power\"", "<Power "},
    {"XmlCmdCreate", "Unexpected element \"SignalPath\"", "<SignalPath "},
    {"XmlPropModelP526Type", "Unexpected token \"StartElement\": Polarisation", "<Polarisation>"},
    {"XmlPropModelHataType", "Unexpected token \"StartElement\": ", R"(<([^ />]+)><\1>)"},
    {"XmlPropModelHataType", "Illegal value for ", R"(<(AreaType|CitySize)><\1>)"},
    {nullptr, "", "<(Surface Condition|Assume Smooth Earth for complete path|Include sub path diffraction loss)>"},
    // Written in another order
    {"XmlDeviceType", "Unexpected element \"Gains\"", "</KFactors><Gains "},
    {"XmlDeviceType", "Unexpected element \"Degrees\"", "</KFactors><Degrees "},
    // Not chosen: read without a text, which leaves the value as it was
    {"XmlDeviceCategoryType", "Illegal enum value.", ">UNDEFINED<"},
    {"XmlPropModelEnumType", "Illegal enum value.", ">UNDEFINED<"},
    {"XmlResultGridType", "Illegal enum value.", ">UNDEFINED<"},
    {"XmlCepProbType", "Illegal enum value", ">UNDEFINED<"},
    // The text of the surface is chosen by the climate, of which there are more
    {"XmlPropModelITMType", "Illegal value for \"Surface\"", "<Surface>UNDEFINED<"},
    // Written with six significant digits, and read as an integer
    {"XmlBandwidthType", "Illegal value (must be numeric)", R"(>-?[0-9.]+e\+[0-9]+<)"},
};

/// Splits "in CLASS (line L, column C): MESSAGE."; errors of the stream have no class.
struct ErrorParts {
    QString className;
    QString message;
};

ErrorParts partsOf(const QString& error)
{
    static const QRegularExpression form(QStringLiteral(R"(^in (\w+) \(line [0-9]+, column [0-9]+\): (.*)\.$)"),
                                         QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = form.match(error);
    return match.hasMatch() ? ErrorParts{match.captured(1), match.captured(2)} : ErrorParts{{}, error};
}

/// A frequency is held in megahertz: in another unit, its last digits may differ each time it is written.
bool isSameButForFrequencies(const QByteArray& written, const QByteArray& again)
{
    static const QRegularExpression frequency(QStringLiteral(R"re( unit="(?:Hz|kHz|GHz)">(-?[0-9.]+)</)re"));
    QString first = QString::fromUtf8(written);
    QString second = QString::fromUtf8(again);
    auto left = frequency.globalMatch(first);
    auto right = frequency.globalMatch(second);
    while (left.hasNext() && right.hasNext()) {
        const double a = left.next().captured(1).toDouble();
        const double b = right.next().captured(1).toDouble();
        if (std::abs(a - b) > 1e-6 + 1e-12 * std::abs(a))
            return false;
    }
    return left.hasNext() == right.hasNext() && first.remove(frequency) == second.remove(frequency);
}

} // namespace

bool isNeverRead(const Samples::ElementClass& elementClass)
{
    // A result object refuses its own end tag, a grid result that of its parameters.
    return isOneOf(elementClass.name, {"XmlResultObjectType", "XmlGridResultType"});
}

bool mayEndInside(const Samples::ElementClass& elementClass, const QString& tag)
{
    return std::any_of(std::begin(innerTags), std::end(innerTags), [&](const InnerTag& inner) {
        return elementClass.name == QLatin1String(inner.className) && tag == QLatin1String(inner.tag);
    });
}

bool isLeftByReset(const Samples::ElementClass& elementClass)
{
    // A range keeps its unit and version, an entry loses its key and value for good, and the order of the best
    // sensor coverage stays in its command.
    return isOneOf(elementClass.name,
                   {"XmlGridValuesType", "XmlResInfo_Cep_Type", "XmlResInfo_DetectProb_Type", "XmlResInfo_DfCov_Type",
                    "XmlResInfo_FindSites_Type", "XmlResInfo_BestSensor_Type", "XmlMapType", "XmlCmdCalc"});
}

bool mayBeInvalidInSilence(const ArvXml::IXmlElement& element, const QByteArray& written)
{
    using namespace ArvXml;
    if (written.contains(">nan<"))
        return true; // a number that is none breaks no limit
    if (const auto* result = dynamic_cast<const XmlResInfo_BestSensor_Type*>(&element))
        return result->hasComment() && !result->comment()->isValid(); // the comment is not reported
    const auto* response = dynamic_cast<const XmlAutoRespType*>(&element);
    if (const auto* root = dynamic_cast<const XmlRespRoot*>(&element))
        response = root->autoResp();
    return response && !response->hasErrorMessage() && !response->hasArvVersion() && !response->hasEstimatedTime()
        && !response->hasGridResult() && !response->hasInterlinkResult(); // an item that is empty is none
}

bool mustBeRefused(const ArvXml::IXmlElement& element, const QString& tag, const QByteArray& written)
{
    const int content = int(written.indexOf('>') + 1); // the element's own tag may be any
    return holdsWhatCannotBeReadBack(element, tag)
        || std::any_of(std::begin(refusedTags), std::end(refusedTags),
                       [&](const char* refused) { return written.indexOf(refused, content) >= 0; });
}

bool isKnownRefusal(const QByteArray& written, const QString& error)
{
    const ErrorParts parts = partsOf(error);
    return std::any_of(std::begin(refusals), std::end(refusals), [&](const Refusal& refusal) {
        return parts.className == QLatin1String(refusal.className)
            && parts.message.startsWith(QLatin1String(refusal.message))
            && QString::fromUtf8(written).contains(QRegularExpression(QString::fromLatin1(refusal.trace)));
    });
}

bool isSameContent(const QByteArray& written, const QByteArray& again)
{
    // A carriage return, which only a character reference can bring in, is written as it is, and XML reads it as the
    // end of a line.
    const QByteArray read = QByteArray(written).replace("\r\n", "\n").replace('\r', '\n');
    return read == again || isSameButForFrequencies(read, again);
}

} // namespace Fuzz
