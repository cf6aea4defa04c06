#include "arvxml/siteorders.h"

#include "core/elementform.h"
#include "core/enumeration.h"
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

} // namespace

// Possible sites

XmlFindSitesType::XmlFindSitesType()
    : XmlComposite(QStringLiteral("XmlFindSitesType"))
    , m_randNumber(noRandomEmitters)
{
}

const ElementForm& XmlFindSitesType::form() const
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
    // "Number" and "Distribution" stand inside "RandomEmitters", whose tags this element reads and
    // writes itself. While it is open the children after it are let through.
    static const NeverDestroyed<ElementForm> form =
        ElementForm(compositeWording)
            .children({
                {"UseKnownEmitters", Known, Known | RandomEmitters | Areas | ResultGrid,
                 renewed<&Self::m_knownEmitters>()},
                {"RandomEmitters", RandomEmitters | InRandom, RandomEmitters | Areas | ResultGrid,
                 writtenBy<&Self::writeRandomEmitters>()},
                {"Number", Number, Number | Distri, takenBy<&Self::takeNumber>(), InRandom},
                {"Distribution", Distri, Distri, takenBy<&Self::takeDistribution>(), InRandom},
                {"DeploymentAreas", Areas, Areas | ResultGrid, child<&Self::m_deploymentAreas>()},
                {"ResultGrid", ResultGrid, ResultGrid, renewed<&Self::m_resultGrid>()},
            })
            .innerEnds({{"RandomEmitters", InRandom | Number | Distri, InRandom, 0}})
            .completeWith(Areas);
    return form;
}

bool XmlFindSitesType::hasRandEmitters() const
{
    return m_randDistribution != Undefined && m_randNumber >= 0;
}

void XmlFindSitesType::takeNumber(const QString& text, ElementReader& in)
{
    bool ok = false;
    m_randNumber = toInteger(text, &ok);
    if (!ok) {
        m_randNumber = noRandomEmitters;
        in.fail(QStringLiteral("Illegal value for \"Number\" (must be numeric)"));
    }
}

void XmlFindSitesType::takeDistribution(const QString& text, ElementReader& in)
{
    m_randDistribution = static_cast<Distribution>(distributionTexts().value(text));
    if (m_randDistribution == Undefined)
        in.fail(QStringLiteral("Illegal value for \"Distribution\""));
}

void XmlFindSitesType::writeRandomEmitters(QXmlStreamWriter& writer, const QString& tag) const
{
    if (!hasRandEmitters())
        return;
    writer.writeStartElement(tag);
    writer.writeTextElement(QStringLiteral("Number"), numberText(m_randNumber));
    writer.writeTextElement(QStringLiteral("Distribution"), distributionTexts().text(m_randDistribution));
    writer.writeEndElement();
}

bool XmlFindSitesType::isRandomNumberValid() const
{
    return m_randNumber >= noRandomEmitters && m_randNumber <= maxRandomEmitters;
}

bool XmlFindSitesType::lacksDistribution() const
{
    return m_randNumber >= 0 && m_randDistribution == Undefined;
}

bool XmlFindSitesType::isValid() const
{
    return XmlComposite::isValid() && isRandomNumberValid() && !lacksDistribution();
}

void XmlFindSitesType::addErrors()
{
    addSyntaxError(memberError(m_deploymentAreas));
    addSyntaxError(memberError(m_knownEmitters));
    if (!isRandomNumberValid())
        addSyntaxError(QStringLiteral("RandomEmitters/Number out of bounds"));
    if (lacksDistribution())
        addSyntaxError(QStringLiteral("RandomEmitters distribution not set"));
    addSyntaxError(memberError(m_resultGrid));
}

void XmlFindSitesType::reset()
{
    m_randNumber = noRandomEmitters;
    m_randDistribution = Undefined;
    XmlComposite::reset();
}

// Interlink planning

XmlInterlinkPlanningType::XmlInterlinkPlanningType()
    : XmlComposite(QStringLiteral("XmlInterlinkPlanningType"))
{
}

const ElementForm& XmlInterlinkPlanningType::form() const
{
    using Self = XmlInterlinkPlanningType;
    static const NeverDestroyed<ElementForm> form =
        ElementForm(compositeWording)
            .sequence({
                required("FirstName", text<Self, takeFirstName, &Self::firstName>()),
                required("SecondName", text<Self, takeSecondName, &Self::secondName>()),
            });
    return form;
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
