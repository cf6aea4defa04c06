#include "arvxml/gridresult.h"

#include "core/elementform.h"
#include "core/enumeration.h"
#include "core/numbers.h"

#include <array>

namespace ArvXml {

namespace {

const EnumerationTexts& resultTypeTexts()
{
    static const NeverDestroyed<EnumerationTexts> texts =
        EnumerationTexts({"FindSites", "CEP", "DetectProb", "DfCoverage", "BestSensorCov"});
    return texts;
}

// The wrappers of the parameters
constexpr char findSitesTag[] = "FindPossibleSites";
constexpr char cepTag[] = "CEP";
constexpr char detectProbTag[] = "DetectionProbability";
constexpr char dfCovTag[] = "DFcoverage";
constexpr char bestSensorTag[] = "BestSensorCov";

enum GridResultMarks : Marks {
    InWrapper = 1,
    WrapperDone = 2,
    ParameterDone = 4,
    FilenameDone = 8,
    FirstType = 16, ///< set while reading a result of the first type, the next bit for the second
};

constexpr Marks typeMark(XmlGridResultType::ResultType type)
{
    return type == XmlGridResultType::ResultUndefined ? 0 : Marks(FirstType) << (type - 1);
}

/// Parameters of one kind, written in their wrapper together with the file name.
template <auto Member>
Content wrapped()
{
    Content content = heldIn<Member>();
    // The wrapper's tag is only entered; "Parameter" is what reads the set.
    content.write = [](const XmlElementBase& owner, QXmlStreamWriter& writer, const QString& wrapper) {
        const auto& set = memberOf<Member>(owner);
        if (!set.isPresent())
            return;
        writer.writeStartElement(wrapper);
        set.get()->produceXml(writer, QStringLiteral("Parameter"));
        writer.writeTextElement(QStringLiteral("ScreenshotFilename"),
                                static_cast<const XmlGridResultType&>(owner).screenshotFilename());
        writer.writeEndElement();
    };
    return content;
}

/// Reads the parameters into a new set that takes the wrapper's tag for its own: it will refuse the end
/// tag of "Parameter".
template <auto Member, const char* wrapper>
Content readAs()
{
    Content content;
    content.read = [](XmlElementBase& owner, ElementReader& in, const QString&) {
        memberOf<Member>(owner).renew().processXml(in.stream(), QString::fromLatin1(wrapper));
    };
    return content;
}

/// "Parameter", the first of its rows that fits: the type decides, not the wrapper's name.
Row parameter(XmlGridResultType::ResultType type, const Content& parameters)
{
    return {"Parameter", 0, ParameterDone | FilenameDone, parameters, InWrapper | typeMark(type)};
}

} // namespace

// A grid result

XmlGridResultType::XmlGridResultType()
    : XmlComposite(QStringLiteral("XmlGridResultType"))
{
}

const ElementForm& XmlGridResultType::form() const
{
    using Self = XmlGridResultType;
    constexpr Marks Entered = InWrapper | WrapperDone;
    static const NeverDestroyed<ElementForm> form =
        ElementForm(compositeWording)
            .children({
                {findSitesTag, InWrapper, Entered, wrapped<&Self::m_findSites>(), typeMark(ResultFindSites)},
                {cepTag, InWrapper, Entered, wrapped<&Self::m_cep>(), typeMark(ResultCep)},
                {detectProbTag, InWrapper, Entered, wrapped<&Self::m_detectProb>(), typeMark(ResultDetectProb)},
                {dfCovTag, InWrapper, Entered, wrapped<&Self::m_dfCov>(), typeMark(ResultDfCoverage)},
                {bestSensorTag, InWrapper, Entered, wrapped<&Self::m_bestSensor>(), typeMark(ResultBestSensorCov)},
                parameter(ResultFindSites, readAs<&Self::m_findSites, findSitesTag>()),
                parameter(ResultCep, readAs<&Self::m_cep, cepTag>()),
                parameter(ResultDetectProb, readAs<&Self::m_detectProb, detectProbTag>()),
                parameter(ResultDfCoverage, readAs<&Self::m_dfCov, dfCovTag>()),
                parameter(ResultBestSensorCov, readAs<&Self::m_bestSensor, bestSensorTag>()),
                {"ScreenshotFilename", FilenameDone, FilenameDone, takenBy<&Self::setScreenshotFilename>(),
                 InWrapper | ParameterDone},
            })
            .innerEnds({
                {"Parameter", InWrapper, 0, ParameterDone},
                {findSitesTag, InWrapper, InWrapper, WrapperDone},
                {cepTag, InWrapper, InWrapper, WrapperDone},
                {detectProbTag, InWrapper, InWrapper, WrapperDone},
                {dfCovTag, InWrapper, InWrapper, WrapperDone},
                {bestSensorTag, InWrapper, InWrapper, WrapperDone},
            })
            .completeWhen(InWrapper | WrapperDone | ParameterDone | FilenameDone,
                          WrapperDone | ParameterDone | FilenameDone);
    return form;
}

quint32 XmlGridResultType::openElement(ElementReader& in)
{
    if (!in.requireStartTag())
        return 0;
    m_type = static_cast<ResultType>(resultTypeTexts().value(in.attribute(typeAttribute())));
    if (m_type == ResultUndefined)
        in.refuseAttribute(typeAttribute());
    return typeMark(m_type);
}

void XmlGridResultType::writeAttributes(QXmlStreamWriter& writer) const
{
    writer.writeAttribute(typeAttribute(), resultTypeTexts().text(m_type));
}

bool XmlGridResultType::isTypeDefined() const
{
    return m_type >= ResultFindSites && m_type <= ResultBestSensorCov;
}

bool XmlGridResultType::hasParametersOfType() const
{
    const std::array<bool, 5> held = {hasFindSites(), hasCep(), hasDetectProb(), hasDfCov(), hasBestSensor()};
    for (int i = 0; i < static_cast<int>(held.size()); ++i) {
        const bool isOfType = i + 1 == m_type;
        if (held[static_cast<std::size_t>(i)] != isOfType)
            return false;
    }
    return true;
}

bool XmlGridResultType::isValid() const
{
    return isTypeDefined() && hasParametersOfType() && XmlComposite::isValid() && !m_screenshotFilename.isEmpty();
}

void XmlGridResultType::addErrors()
{
    if (isTypeDefined() && !hasParametersOfType()) {
        const QString& type = resultTypeTexts().text(m_type);
        addSyntaxError(QStringLiteral("Type is '%1' but no %1 parameters or other parameters found").arg(type));
    }
    addChildrenErrors();
    if (m_type == ResultUndefined)
        addSyntaxError(QStringLiteral("Type not defined"));
    if (m_screenshotFilename.isEmpty())
        addSyntaxError(QStringLiteral("Screenshot path not set"));
}

void XmlGridResultType::reset()
{
    m_type = ResultUndefined;
    m_screenshotFilename.clear();
    XmlComposite::reset();
}

// A range of values

namespace {

constexpr NumberFormat valueFormat = {'g', 6};

enum GridValuesMarks : Marks { InMin = 1, MinDone = 2, InMax = 4, MaxDone = 8 };

/// Nothing but a number in "Min" or "Max" is accepted, not even white space between them.
Marks takeCharacters(XmlElementBase& owner, ElementReader& in, Marks read)
{
    auto& values = static_cast<XmlGridValuesType&>(owner);
    bool ok = false;
    const double number = toReal(in.stream().text(), &ok);
    if (ok && (read & InMin) != 0)
        values.setMin(number);
    else if (ok && (read & InMax) != 0)
        values.setMax(number);
    else
        in.fail(QStringLiteral("Unexpected characters"));
    return 0;
}

} // namespace

XmlGridValuesType::XmlGridValuesType()
    : XmlVersionedComposite(QStringLiteral("XmlGridValuesType"))
{
}

const ElementForm& XmlGridValuesType::form() const
{
    using Self = XmlGridValuesType;
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .children({
                {"Min", InMin, InMin | MinDone, writtenBy<&Self::writeMin>()},
                {"Max", InMax, InMax | MaxDone, writtenBy<&Self::writeMax>(), MinDone},
            })
            .innerEnds({
                {"Min", InMin, InMin, MinDone},
                {"Max", InMax, InMax, MaxDone},
            })
            .completeWith(MaxDone)
            .onCharacters(takeCharacters);
    return form;
}

quint32 XmlGridValuesType::openElement(ElementReader& in)
{
    if (!in.requireStartTag())
        return 0;
    // Unlike elsewhere, what the tag does not say stays as it was, and what it says counts even when
    // it is empty.
    if (in.hasAttribute(versionAttribute()))
        setVersion(keptText(in.attribute(versionAttribute())));
    if (in.hasAttribute(unitAttribute()))
        setUnit(keptText(in.attribute(unitAttribute())));
    if (lacksAttributes())
        in.fail(QStringLiteral("Missing mandatory attributes"));
    refuseOtherVersions(in);
    return 0;
}

void XmlGridValuesType::writeAttributes(QXmlStreamWriter& writer) const
{
    writeVersion(writer);
    writer.writeAttribute(unitAttribute(), m_unit);
}

void XmlGridValuesType::writeMin(QXmlStreamWriter& writer, const QString& tag) const
{
    writer.writeTextElement(tag, numberText(m_min, valueFormat));
}

void XmlGridValuesType::writeMax(QXmlStreamWriter& writer, const QString& tag) const
{
    writer.writeTextElement(tag, numberText(m_max, valueFormat));
}

bool XmlGridValuesType::lacksAttributes() const
{
    return version().isEmpty() || m_unit.isEmpty();
}

bool XmlGridValuesType::isValid() const
{
    return supportsVersion() && !m_unit.isEmpty();
}

void XmlGridValuesType::addErrors()
{
    if (lacksAttributes())
        addSyntaxError(QStringLiteral("Missing mandatory attributes"));
    addSyntaxError(versionError());
}

void XmlGridValuesType::reset()
{
    // Version and unit stay as they are.
    m_min = 0.0;
    m_max = 0.0;
    clearSyntaxError();
}

} // namespace ArvXml
