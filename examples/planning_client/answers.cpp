#include "planning_client/answers.h"

#include "common/document.h"

#include <arvxml/arvxml.h>

#include <QtCore/QStringList>

using namespace ArvXml;

namespace {

QString listed(const QString& what, const XmlNameAllMultiType& names)
{
    if (names.all())
        return QStringLiteral("  %1: all\n").arg(what);
    QStringList texts;
    for (const XmlObjNameType* name : names.objNames())
        texts.append(name->objName());
    return QStringLiteral("  %1: %2\n").arg(what, texts.join(QStringLiteral(", ")));
}

QString gridSpacing(const XmlResultGridType* grid)
{
    static const char* const texts[] = {"undefined", "10", "50", "100", "200", "500", "1000"};
    return grid ? QStringLiteral("  grid spacing: %1\n").arg(QLatin1String(texts[grid->size()])) : QString();
}

QString parameters(const XmlCepType& order)
{
    static const char* const percent[] = {"undefined", "50", "66", "75", "90", "95"};
    QString text = listed(QStringLiteral("direction finders"), *order.useDFs())
        + listed(QStringLiteral("areas of interest"), *order.AOIs());
    if (order.hasProbability())
        text += QStringLiteral("  probability: %1 %\n").arg(QLatin1String(percent[order.probability()->prob()]));
    return text + gridSpacing(order.resultGrid());
}

QString parameters(const XmlDfCovType& order)
{
    return listed(QStringLiteral("direction finders"), *order.useDFs())
        + listed(QStringLiteral("areas of interest"), *order.AOIs()) + gridSpacing(order.resultGrid());
}

/// The orders that use receivers and direction finders.
template <typename CoverageOrder>
QString parameters(const CoverageOrder& order)
{
    return listed(QStringLiteral("receivers and direction finders"), *order.useRxDFs())
        + listed(QStringLiteral("areas of interest"), *order.AOIs()) + gridSpacing(order.resultGrid());
}

QString parameters(const XmlFindSitesType& order)
{
    QString text;
    if (order.hasKnownEmitters())
        text += listed(QStringLiteral("known emitters"), *order.knownEmitters());
    if (order.hasRandEmitters())
        text += QStringLiteral("  random emitters: %1\n").arg(order.randNumber());
    return text + listed(QStringLiteral("deployment areas"), *order.deploymentAreas())
        + gridSpacing(order.resultGrid());
}

/// The kind and the parameters of a grid result, of which no more can be read.
QString gridText(const XmlGridResultType& result)
{
    if (result.hasFindSites())
        return QStringLiteral("possible sites\n") + parameters(*result.findSites());
    if (result.hasCep())
        return QStringLiteral("circular error probable\n") + parameters(*result.cep());
    if (result.hasDetectProb())
        return QStringLiteral("detection probability\n") + parameters(*result.detectProb());
    if (result.hasDfCov())
        return QStringLiteral("direction-finding coverage\n") + parameters(*result.dfCov());
    if (result.hasBestSensor())
        return QStringLiteral("best sensor coverage\n") + parameters(*result.bestSensor());
    return QString();
}

QString interlinkText(const XmlInterlinkResultType& result)
{
    QString text = QStringLiteral("interlink from %1 to %2\n  %3\n")
                       .arg(result.parameters()->firstName(), result.parameters()->secondName(), result.resultText());
    if (result.hasScreenshotFilename())
        text += QStringLiteral("  picture: %1\n").arg(result.screenshotFilename());
    return text;
}

template <typename Site>
QString siteText(const QString& kind, const Site& site)
{
    return QStringLiteral("%1 %2\n  longitude %3, latitude %4\n")
        .arg(kind, site.objName()->objName())
        .arg(site.position()->longitude(), 0, 'f', 6)
        .arg(site.position()->latitude(), 0, 'f', 6);
}

QString objectText(const XmlResultObjectType& object)
{
    if (object.hasStation())
        return siteText(QStringLiteral("station"), *object.station());
    if (object.hasEmitter())
        return siteText(QStringLiteral("emitter"), *object.emitter());
    if (object.hasRx())
        return siteText(QStringLiteral("receiver"), *object.rx());
    if (object.hasDf())
        return siteText(QStringLiteral("direction finder"), *object.df());
    return QStringLiteral("nothing\n");
}

/// The grid result of \a root, null when there is none.
const XmlGridResultType* gridResultOf(const XmlRespRoot& root)
{
    if (root.hasInteractResp())
        return root.interactResp()->gridResult();
    return root.hasAutoResp() ? root.autoResp()->gridResult() : nullptr;
}

/// Whether a grid result holds parameters, and acceptable ones.
bool hasGoodParameters(const XmlGridResultType& result)
{
    int count = 0;
    for (const IXmlElement* held : std::initializer_list<const IXmlElement*>{
             result.findSites(), result.cep(), result.detectProb(), result.dfCov(), result.bestSensor()}) {
        if (held && !held->isValid())
            return false;
        count += held ? 1 : 0;
    }
    return count > 0;
}

/// Whether reading ended where the protocol makes it end in every grid result: behind the parameters. Incomplete
/// parameters end there, too, with the same words, so that they are looked at.
bool endsAtGridParameters(const XmlRespRoot& root, const Document::ReadError& error)
{
    const XmlGridResultType* const result = gridResultOf(root);
    if (!result || !hasGoodParameters(*result)
        || !error.text.endsWith(QLatin1String("Unexpected token \"EndElement\": Parameter.")))
        return false;
    if (root.hasInteractResp())
        return root.type() == XmlRespRoot::RespInteractive;
    return root.type() == XmlRespRoot::RespAutomatic && root.autoResp()->status() == XmlAutoRespType::StatusAck;
}

/// Whether reading ended where the protocol makes it end in every result object: at its end tag. What
/// was read until there can be judged as usual.
bool endsBehindObject(const XmlRespRoot& root, const Document::ReadError& error)
{
    return root.hasInteractResp() && root.interactResp()->hasResult()
        && error.text.startsWith(QLatin1String("in XmlResultObjectType "))
        && error.text.endsWith(QLatin1String("Unexpected token \"EndElement\": Station."));
}

QString indented(QString text)
{
    return QStringLiteral("  ") + text.replace(QLatin1Char('\n'), QLatin1String("\n  ")) + QLatin1Char('\n');
}

} // namespace

Answer understand(const QByteArray& response)
{
    Answer answer;
    XmlRespRoot root;
    const Document::ReadError error = Document::read(response, root);
    if (root.hasOrderDef())
        answer.orderId = root.orderDef()->orderId();
    if (root.hasAutoResp())
        answer.reference = root.autoResp()->reference().reference();

    // What the service sends on its own account says nothing about the order under way.
    const Answer::Verdict good = root.hasInteractResp() ? Answer::Delivered
        : root.isFinal()                                ? Answer::Done
                                                        : Answer::Acknowledged;
    const bool endsByRule = endsBehindObject(root, error);

    if (endsAtGridParameters(root, error)) {
        answer.verdict = good;
        answer.text = QStringLiteral("Grid result: %1"
                                     "  The reader stops here: the protocol does not let it read a grid result beyond\n"
                                     "  its parameters, so the name of the picture is not known. This is no failure.\n")
                          .arg(gridText(*gridResultOf(root)));
    } else if (error && !endsByRule) {
        answer.text = QStringLiteral("The response cannot be read:\n") + indented(error.withPlace());
    } else if (!root.isValid()) {
        answer.text = QStringLiteral("The response is not acceptable:\n") + indented(Document::problems(root));
    } else if (endsByRule) {
        answer.verdict = good;
        answer.text =
            QStringLiteral("Delivered by the service on its own: %1"
                           "  The reader stops here: by the protocol, reading a delivered object always ends with\n"
                           "  an error at its end tag. The object was read; this is no failure.\n")
                .arg(objectText(*root.interactResp()->result()));
    } else if (root.hasInteractResp()) {
        answer.verdict = good;
        if (root.interactResp()->hasInterlinkResult())
            answer.text = QStringLiteral("Delivered by the service on its own: ")
                + interlinkText(*root.interactResp()->interlinkResult());
    } else {
        const XmlAutoRespType& automatic = *root.autoResp();
        answer.verdict = good;
        if (automatic.hasErrorMessage()) {
            answer.verdict = Answer::Refused;
            answer.text = QStringLiteral("Fault:\n") + indented(automatic.errorMessage());
        } else if (automatic.hasEstimatedTime()) {
            // There is no answer that says "done": a last one with a time means it.
            const QString text =
                root.isFinal() ? QStringLiteral("Done at %1\n") : QStringLiteral("Result expected at %1\n");
            answer.text = text.arg(automatic.estimatedTime().toString(Qt::ISODate));
        } else if (automatic.hasArvVersion()) {
            answer.text = QStringLiteral("Version of the service: %1\n").arg(automatic.arvVersion());
        } else if (automatic.hasInterlinkResult()) {
            answer.text = QStringLiteral("Result: ") + interlinkText(*automatic.interlinkResult());
        }
    }
    return answer;
}
