#include "arvxml/gridresult.h"

#include "core/contentmodel.h"
#include "core/enumerationrules.h"
#include "core/numbers.h"
#include "core/versions.h"

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
    FirstType = 4, ///< set while reading a result of the first type, the next bit for the second
};

constexpr Marks typeMark(XmlGridResultType::ResultType type)
{
    const bool isKnown = type >= XmlGridResultType::ResultFindSites && type <= XmlGridResultType::ResultBestSensorCov;
    return isKnown ? Marks(FirstType) << (type - 1) : 0;
}

/// One kind of result: parameters in a wrapper, which are written together with the file name. The wrapper's tag is
/// only entered; "Parameter" is what reads the parameters, whatever the wrapper. Odd: they take the wrapper's tag for
/// their own, and so refuse the end tag of "Parameter": reading ends there.
template <auto Member, const char* tag>
void addKind(ContentModel& model, XmlGridResultType::ResultType type)
{
    Binding wrapper = heldIn<Member>();
    wrapper.holds.kind = ContentKind::Wrapper;
    wrapper.write = [](const XmlElementBase& owner, QXmlStreamWriter& writer, const QString& wrapperTag) {
        const auto& held = memberOf<Member>(owner);
        if (!held.isPresent())
            return;
        writer.writeStartElement(wrapperTag);
        held.get()->produceXml(writer, QStringLiteral("Parameter"));
        writer.writeTextElement(QStringLiteral("ScreenshotFilename"),
                                static_cast<const XmlGridResultType&>(owner).screenshotFilename());
        writer.writeEndElement();
    };
    Binding parameters;
    parameters.holds = heldIn<Member>().holds;
    parameters.read = [](XmlElementBase& owner, ElementReader& in, const QString&) {
        memberOf<Member>(owner).renew().processXml(in.stream(), QString::fromLatin1(tag));
    };
    model.rows({
        Row(tag, wrapper)
            .alternative(1)
            .required()
            .marks(InWrapper)
            .refusedAfter(InWrapper | WrapperDone)
            .onlyAfter(typeMark(type)),
        Row("Parameter", parameters).within(tag).required().onlyAfter(InWrapper | typeMark(type)),
    });
    model.wrapperEnds({WrapperEnd(tag).onlyAfter(InWrapper).clears(InWrapper).marks(WrapperDone)});
}

void readType(XmlElementBase& owner, ElementReader& in)
{
    if (!in.requireStartTag())
        return;
    const int type = resultTypeTexts().value(in.attribute(typeAttribute()));
    static_cast<XmlGridResultType&>(owner).setType(static_cast<XmlGridResultType::ResultType>(type));
    if (type == XmlGridResultType::ResultUndefined)
        in.refuseAttribute(typeAttribute());
}

void writeType(const XmlElementBase& owner, QXmlStreamWriter& writer)
{
    const auto& result = static_cast<const XmlGridResultType&>(owner);
    writer.writeAttribute(typeAttribute(), resultTypeTexts().text(result.type()));
}

bool isTypeDefined(const XmlGridResultType& result)
{
    return result.type() >= XmlGridResultType::ResultFindSites
        && result.type() <= XmlGridResultType::ResultBestSensorCov;
}

/// Whether there are parameters of the result's type, and no others.
bool hasParametersOfType(const XmlGridResultType& result)
{
    const std::array<bool, 5> held = {result.hasFindSites(), result.hasCep(), result.hasDetectProb(), result.hasDfCov(),
                                      result.hasBestSensor()};
    for (int i = 0; i < static_cast<int>(held.size()); ++i) {
        const bool isOfType = i + 1 == result.type();
        if (held[static_cast<std::size_t>(i)] != isOfType)
            return false;
    }
    return true;
}

} // namespace

// A grid result

XmlGridResultType::XmlGridResultType()
    : XmlComposite(QStringLiteral("XmlGridResultType"))
{
}

const ContentModel& XmlGridResultType::contentModel() const
{
    using Self = XmlGridResultType;
    // Odd: the type in the start tag decides which wrapper and which parameters are taken. Nothing completes the
    // element, since reading ends inside the wrapper.
    static const NeverDestroyed<ContentModel> model = [] {
        ContentModel result(compositeWording);
        addKind<&Self::m_findSites, findSitesTag>(result, ResultFindSites);
        addKind<&Self::m_cep, cepTag>(result, ResultCep);
        addKind<&Self::m_detectProb, detectProbTag>(result, ResultDetectProb);
        addKind<&Self::m_dfCov, dfCovTag>(result, ResultDfCoverage);
        addKind<&Self::m_bestSensor, bestSensorTag>(result, ResultBestSensorCov);
        return result.attributes(readType, writeType)
            .startsWith([](const XmlElementBase& owner) { return typeMark(static_cast<const Self&>(owner).m_type); })
            .neverComplete();
    }();
    return model;
}

bool XmlGridResultType::isValid() const
{
    return isTypeDefined(*this) && hasParametersOfType(*this) && XmlComposite::isValid()
        && !m_screenshotFilename.isEmpty();
}

void XmlGridResultType::addErrors()
{
    if (isTypeDefined(*this) && !hasParametersOfType(*this)) {
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

void writeMin(const XmlGridValuesType& values, QXmlStreamWriter& writer, const QString& tag)
{
    writer.writeTextElement(tag, numberText(values.min(), valueFormat));
}
void writeMax(const XmlGridValuesType& values, QXmlStreamWriter& writer, const QString& tag)
{
    writer.writeTextElement(tag, numberText(values.max(), valueFormat));
}

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

bool lacksAttributes(const XmlGridValuesType& values)
{
    return values.version().isEmpty() || values.unit().isEmpty();
}

/// Odd: what the tag does not say stays as it was, and what it says counts even when it is empty.
void readVersionAndUnit(XmlElementBase& owner, ElementReader& in)
{
    if (!in.requireStartTag())
        return;
    auto& values = static_cast<XmlGridValuesType&>(owner);
    if (in.hasAttribute(versionAttribute()))
        values.setVersion(detachedCopy(in.attribute(versionAttribute())));
    if (in.hasAttribute(unitAttribute()))
        values.setUnit(detachedCopy(in.attribute(unitAttribute())));
    if (lacksAttributes(values))
        in.fail(QStringLiteral("Missing mandatory attributes"));
    refuseOtherVersions(in, values.version());
}

void writeVersionAndUnit(const XmlElementBase& owner, QXmlStreamWriter& writer)
{
    const auto& values = static_cast<const XmlGridValuesType&>(owner);
    writeVersion(writer, values.version());
    writer.writeAttribute(unitAttribute(), values.unit());
}

} // namespace

XmlGridValuesType::XmlGridValuesType()
    : XmlComposite(QStringLiteral("XmlGridValuesType"))
{
}

const ContentModel& XmlGridValuesType::contentModel() const
{
    using Self = XmlGridValuesType;
    // Odd: the numbers are taken from the characters between the tags, and their range begins with "Min".
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .attributes(readVersionAndUnit, writeVersionAndUnit)
            .rows({
                Row("Min", as(ContentKind::Real, writtenBy<Self, writeMin>()))
                    .required()
                    .marks(InMin)
                    .refusedAfter(InMin | MinDone),
                Row("Max", as(ContentKind::Real, writtenBy<Self, writeMax>()))
                    .required()
                    .marks(InMax)
                    .refusedAfter(InMax | MaxDone)
                    .onlyAfter(MinDone),
            })
            .onCharacters(takeCharacters)
            .wrapperEnds({
                WrapperEnd("Min").onlyAfter(InMin).clears(InMin).marks(MinDone),
                WrapperEnd("Max").onlyAfter(InMax).clears(InMax).marks(MaxDone),
            })
            .completeWith(MaxDone);
    return model;
}

bool XmlGridValuesType::isValid() const
{
    return isSupportedVersion(version()) && !m_unit.isEmpty();
}

void XmlGridValuesType::addErrors()
{
    if (lacksAttributes(*this))
        addSyntaxError(QStringLiteral("Missing mandatory attributes"));
    addSyntaxError(versionError(version()));
}

void XmlGridValuesType::reset()
{
    // Version and unit stay as they are.
    m_min = 0.0;
    m_max = 0.0;
    clearSyntaxError();
}

} // namespace ArvXml
