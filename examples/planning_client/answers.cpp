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

/// Whether reading ended where the protocol makes it end in every grid result: behind the parameters.
/// What was read until there is good.
bool endsAtGridParameters(const XmlRespRoot& root, const Document::ReadError& error)
{
    return root.hasAutoResp() && root.autoResp()->hasGridResult()
        && error.text.endsWith(QLatin1String("Unexpected token \"EndElement\": Parameter."))
        && root.autoResp()->status() == XmlAutoRespType::StatusAck;
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

    if (endsAtGridParameters(root, error)) {
        answer.verdict = root.isFinal() ? Answer::Done : Answer::Acknowledged;
        answer.text = QStringLiteral("Grid result: %1"
                                     "  The reader stops here: the protocol does not let it read a grid result beyond\n"
                                     "  its parameters, so the name of the picture is not known. This is no failure.\n")
                          .arg(gridText(*root.autoResp()->gridResult()));
    } else if (error) {
        answer.text = QStringLiteral("The response cannot be read (line %1, column %2):\n%3")
                          .arg(error.line)
                          .arg(error.column)
                          .arg(indented(error.text));
    } else if (!root.isValid()) {
        answer.text = QStringLiteral("The response is not acceptable:\n") + indented(root.syntaxError());
    } else if (!root.hasAutoResp()) {
        answer.text = QStringLiteral("The response is not an answer to a command.\n");
    } else {
        const XmlAutoRespType& automatic = *root.autoResp();
        answer.verdict = root.isFinal() ? Answer::Done : Answer::Acknowledged;
        if (automatic.hasErrorMessage()) {
            answer.verdict = Answer::Refused;
            answer.text = QStringLiteral("Fault:\n") + indented(automatic.errorMessage());
        } else if (automatic.hasEstimatedTime()) {
            answer.text =
                QStringLiteral("Result expected at %1\n").arg(automatic.estimatedTime().toString(Qt::ISODate));
        } else if (automatic.hasArvVersion()) {
            answer.text = QStringLiteral("Version of the service: %1\n").arg(automatic.arvVersion());
        } else if (automatic.hasInterlinkResult()) {
            answer.text = QStringLiteral("Result: ") + interlinkText(*automatic.interlinkResult());
        }
    }
    return answer;
}
