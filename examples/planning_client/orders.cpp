#include "planning_client/orders.h"

#include "common/document.h"
#include "planning_client/models.h"

#include <arvxml/arvxml.h>

#include <QtCore/QXmlStreamWriter>

#include <functional>
#include <list>

using namespace ArvXml;

namespace {

/// The objects of these names, or all objects when there are none.
XmlNameAllMultiType namesOrAll(const QStringList& names)
{
    XmlNameAllMultiType result;
    result.setAll();
    // The setter copies, so the names need to live until the end of this function only.
    std::list<XmlObjNameType> objects;
    QList<XmlObjNameType*> pointers;
    for (const QString& name : names) {
        objects.emplace_back();
        objects.back().setObjName(name);
        pointers.append(&objects.back());
    }
    if (!pointers.isEmpty())
        result.setObjNames(pointers);
    return result;
}

/// The value that stands for a text the user gave; 0, which is never valid, for an unknown one.
template <typename Value>
Value valueOf(const QString& text, const QStringList& texts)
{
    return static_cast<Value>(texts.indexOf(text) + 1);
}

XmlResultGridType gridOf(const QString& spacing)
{
    static const QStringList texts = QStringLiteral("10 50 100 200 500 1000").split(QLatin1Char(' '));
    XmlResultGridType grid;
    grid.setSize(valueOf<XmlResultGridType::GridSize>(spacing, texts));
    return grid;
}

XmlCepProbType probabilityOf(const QString& percent)
{
    static const QStringList texts = QStringLiteral("50 66 75 90 95").split(QLatin1Char(' '));
    XmlCepProbType probability;
    probability.setProb(valueOf<XmlCepProbType::Prob>(percent, texts));
    return probability;
}

/// What the orders over areas of interest have in common.
template <typename CoverageOrder>
CoverageOrder coverage(const Wish& wish)
{
    CoverageOrder order;
    order.setAOIs(namesOrAll(wish.areas));
    if (!wish.grid.isEmpty())
        order.setResultGrid(gridOf(wish.grid));
    return order;
}

XmlInterlinkPlanningType interlink(const Wish& wish)
{
    XmlInterlinkPlanningType order;
    order.setFirstName(wish.names.value(0));
    order.setSecondName(wish.names.value(1));
    return order;
}

XmlCepType cep(const Wish& wish)
{
    auto order = coverage<XmlCepType>(wish);
    order.setUseDFs(namesOrAll(wish.names));
    if (!wish.probability.isEmpty())
        order.setProbability(probabilityOf(wish.probability));
    return order;
}

XmlDetectProbType detectProb(const Wish& wish)
{
    auto order = coverage<XmlDetectProbType>(wish);
    order.setUseRxDFs(namesOrAll(wish.names));
    return order;
}

XmlDfCovType dfCov(const Wish& wish)
{
    auto order = coverage<XmlDfCovType>(wish);
    order.setUseDFs(namesOrAll(wish.names));
    return order;
}

XmlBestSensorType bestSensor(const Wish& wish)
{
    auto order = coverage<XmlBestSensorType>(wish);
    order.setUseRxDFs(namesOrAll(wish.names));
    return order;
}

XmlFindSitesType findSites(const Wish& wish)
{
    XmlFindSitesType order;
    order.setDeploymentAreas(namesOrAll(wish.names));
    if (wish.randomEmitters != -1) {
        order.setRandNumber(wish.randomEmitters);
        order.setRandDistri(wish.emittersOnGrid ? XmlFindSitesType::Grid : XmlFindSitesType::Random);
    }
    if (!wish.grid.isEmpty())
        order.setResultGrid(gridOf(wish.grid));
    return order;
}

bool fill(XmlCmdCalc& command, const Wish& wish)
{
    if (wish.kind == QLatin1String("interlink"))
        command.setInterlink(interlink(wish));
    else if (wish.kind == QLatin1String("cep"))
        command.setCep(cep(wish));
    else if (wish.kind == QLatin1String("detect"))
        command.setDetectProb(detectProb(wish));
    else if (wish.kind == QLatin1String("dfcov"))
        command.setDfCov(dfCov(wish));
    else if (wish.kind == QLatin1String("bestsensor"))
        command.setBestSensor(bestSensor(wish));
    else if (wish.kind == QLatin1String("findsites"))
        command.setFindSites(findSites(wish));
    else
        return false;
    return true;
}

/// A command, judged and ready to be written.
struct Command {
    QString problem; ///< why it is not acceptable
    std::function<void(QXmlStreamWriter&)> write;
};

/// The version query. Its kind cannot be set by code, so its tags are written here.
Command versionQuery(XmlReferenceType reference)
{
    const auto write = [reference](QXmlStreamWriter& writer) {
        writer.writeStartElement(QStringLiteral("Administrative"));
        writer.writeEmptyElement(QStringLiteral("QueryVersion"));
        reference.produceXml(writer, QStringLiteral("Reference"));
        writer.writeEndElement();
    };
    return {Document::problems(reference), write};
}

Command propagationModel(const Wish& wish, const XmlReferenceType& reference)
{
    const ModelChoice choice(wish.names, reference);
    return {choice.problem(), [choice](QXmlStreamWriter& writer) { choice.write(writer); }};
}

Command calculation(const Wish& wish, const XmlReferenceType& reference)
{
    XmlCmdCalc command;
    command.setCmdReference(reference);
    if (!fill(command, wish))
        return {QStringLiteral("There is no order of the kind \"%1\".").arg(wish.kind), {}};
    return {Document::problems(command),
            [command](QXmlStreamWriter& writer) { command.produceXml(writer, QStringLiteral("Calculate")); }};
}

Command commandFor(const Wish& wish)
{
    XmlReferenceType reference;
    reference.setReference(wish.reference);
    if (wish.kind == QLatin1String("version"))
        return versionQuery(reference);
    if (wish.kind == QLatin1String("model"))
        return propagationModel(wish, reference);
    return calculation(wish, reference);
}

} // namespace

Order makeOrder(const Wish& wish)
{
    Order order;
    XmlOrderDef envelope = XmlOrderDef::createValidInstance();
    order.id = envelope.orderId();
    const Command command = commandFor(wish);
    order.problem = command.problem.isEmpty() ? Document::problems(envelope) : command.problem;
    if (!order.problem.isEmpty())
        return order;

    // Commands cannot be added to a document element by code: it is written here around them.
    QXmlStreamWriter writer(&order.document);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("Commands"));
    envelope.produceXml(writer, QStringLiteral("ORDER_DEF"));
    command.write(writer);
    writer.writeEndElement();
    writer.writeEndDocument();
    return order;
}
