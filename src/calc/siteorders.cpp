#include "arvxml/siteorders.h"

#include "core/contentmodel.h"
#include "core/enumerationrules.h"
#include "core/numbers.h"

namespace ArvXml {

namespace {

constexpr int noRandomEmitters = -1;
constexpr int maxRandomEmitters = 500;
constexpr int maxNameLength = 128;

const EnumerationTexts& distributionTexts()
{
    static const NeverDestroyed<EnumerationTexts> texts = EnumerationTexts({"Random", "Grid"});
    return texts;
}

/// A name that is too long is refused, but stored all the same.
void refuseLongName(const QString& name, const QString& message, ElementReader& in)
{
    if (name.size() > maxNameLength)
        in.fail(message);
}
void takeFirstName(XmlInterlinkPlanningType& order, const QString& text, ElementReader& in)
{
    order.setFirstName(text);
    refuseLongName(text, QStringLiteral("FirstName too long (max. 128)"), in);
}
void takeSecondName(XmlInterlinkPlanningType& order, const QString& text, ElementReader& in)
{
    order.setSecondName(text);
    refuseLongName(text, QStringLiteral("SecondName too long (max. 128)"), in);
}

// Random emitters: a number, and how they are placed

void takeNumber(XmlFindSitesType& order, const QString& text, ElementReader& in)
{
    bool ok = false;
    const int number = toInteger(text, &ok);
    order.setRandNumber(ok ? number : noRandomEmitters);
    if (!ok)
        in.fail(QStringLiteral("Illegal value for \"Number\" (must be numeric)"));
}

void takeDistribution(XmlFindSitesType& order, const QString& text, ElementReader& in)
{
    order.setRandDistri(static_cast<XmlFindSitesType::Distribution>(distributionTexts().value(text)));
    if (order.randDistri() == XmlFindSitesType::Undefined)
        in.fail(QStringLiteral("Illegal value for \"Distribution\""));
}

bool isNumberValid(const XmlFindSitesType& order)
{
    return order.randNumber() >= noRandomEmitters && order.randNumber() <= maxRandomEmitters;
}

bool lacksDistribution(const XmlFindSitesType& order)
{
    return order.randNumber() >= 0 && order.randDistri() == XmlFindSitesType::Undefined;
}

Binding randomEmitters()
{
    using Order = XmlFindSitesType;
    Binding binding;
    binding.holds.kind = ContentKind::Wrapper;
    binding.write = [](const XmlElementBase& owner, QXmlStreamWriter& writer, const QString& tag) {
        const auto& order = static_cast<const Order&>(owner);
        if (!order.hasRandEmitters())
            return;
        writer.writeStartElement(tag);
        writer.writeTextElement(QStringLiteral("Number"), numberText(order.randNumber()));
        writer.writeTextElement(QStringLiteral("Distribution"), distributionTexts().text(order.randDistri()));
        writer.writeEndElement();
    };
    binding.isValid = [](const XmlElementBase& owner) {
        const auto& order = static_cast<const Order&>(owner);
        return isNumberValid(order) && !lacksDistribution(order);
    };
    binding.syntaxError = [](XmlElementBase& owner) {
        const auto& order = static_cast<const Order&>(owner);
        QStringList problems;
        if (!isNumberValid(order))
            problems += QStringLiteral("RandomEmitters/Number out of bounds");
        if (lacksDistribution(order))
            problems += QStringLiteral("RandomEmitters distribution not set");
        return problems.join(QLatin1Char('\n'));
    };
    binding.reset = [](XmlElementBase& owner) {
        auto& order = static_cast<Order&>(owner);
        order.setRandNumber(noRandomEmitters);
        order.setRandDistri(Order::Undefined);
    };
    return binding;
}

} // namespace

// Possible sites

XmlFindSitesType::XmlFindSitesType()
    : XmlComposite(QStringLiteral("XmlFindSitesType"))
    , m_randNumber(noRandomEmitters)
{
}

const ContentModel& XmlFindSitesType::contentModel() const
{
    using Self = XmlFindSitesType;
    enum : Marks {
        Known = 1,
        RandomEmitters = 2,
        InRandom = 4,
        Number = 8,
        Distri = 16,
        Areas = 32,
        ResultGrid = 64,
    };
    // Odd: while "RandomEmitters" is open, the children after it are let through, and the own end tag, too.
    static const NeverDestroyed<ContentModel> model =
        ContentModel(compositeWording)
            .rows({
                Row("UseKnownEmitters", renewed<&Self::m_knownEmitters>())
                    .marks(Known)
                    .refusedAfter(Known | RandomEmitters | Areas | ResultGrid),
                Row("RandomEmitters", randomEmitters())
                    .marks(RandomEmitters | InRandom)
                    .refusedAfter(RandomEmitters | Areas | ResultGrid),
                Row("Number", as(ContentKind::Integer, takenBy<Self, takeNumber>()))
                    .within("RandomEmitters")
                    .required()
                    .marks(Number)
                    .refusedAfter(Number | Distri)
                    .onlyAfter(InRandom),
                Row("Distribution", asChoice(distributionTexts(), takenBy<Self, takeDistribution>()))
                    .within("RandomEmitters")
                    .required()
                    .marks(Distri)
                    .refusedAfter(Distri)
                    .onlyAfter(InRandom),
                Row("DeploymentAreas", child<&Self::m_deploymentAreas>())
                    .required()
                    .marks(Areas)
                    .refusedAfter(Areas | ResultGrid),
                Row("ResultGrid", renewed<&Self::m_resultGrid>()).marks(ResultGrid).refusedAfter(ResultGrid),
            })
            .wrapperEnds({WrapperEnd("RandomEmitters").onlyAfter(InRandom | Number | Distri).clears(InRandom)})
            .completeWith(Areas)
            .reportedFirst({"DeploymentAreas"});
    return model;
}

bool XmlFindSitesType::hasRandEmitters() const
{
    return m_randDistribution != Undefined && m_randNumber >= 0;
}

// Interlink planning

XmlInterlinkPlanningType::XmlInterlinkPlanningType()
    : XmlComposite(QStringLiteral("XmlInterlinkPlanningType"))
{
}

const ContentModel& XmlInterlinkPlanningType::contentModel() const
{
    using Self = XmlInterlinkPlanningType;
    static const NeverDestroyed<ContentModel> model =
        ContentModel(compositeWording)
            .sequence({
                required("FirstName", text<Self, takeFirstName, &Self::firstName>()),
                required("SecondName", text<Self, takeSecondName, &Self::secondName>()),
            });
    return model;
}

bool XmlInterlinkPlanningType::isValid() const
{
    return !m_firstName.isEmpty() && !m_secondName.isEmpty();
}

void XmlInterlinkPlanningType::addErrors()
{
    if (m_firstName.isEmpty())
        addSyntaxError(QStringLiteral("FirstName not set"));
    if (m_secondName.isEmpty())
        addSyntaxError(QStringLiteral("SecondName not set"));
}

void XmlInterlinkPlanningType::reset()
{
    m_firstName.clear();
    m_secondName.clear();
    XmlComposite::reset();
}

} // namespace ArvXml
