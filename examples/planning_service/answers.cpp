#include "planning_service/answers.h"

#include "common/document.h"

#include <arvxml/arvxml.h>

#include <QtCore/QDateTime>

using namespace ArvXml;

namespace {

/// How long a calculation is said to take.
constexpr int calculationSeconds = 5;

/// Collects the answers to one document.
class Reply {
public:
    explicit Reply(const XmlOrderDef* envelope = nullptr)
        : m_envelope(envelope)
    {
    }

    void add(const XmlAutoRespType& answer, bool last)
    {
        XmlRespRoot root;
        root.setType(XmlRespRoot::RespAutomatic);
        root.setFinal(last);
        // An envelope that is not valid would make the response invalid, too.
        if (m_envelope && m_envelope->isValid())
            root.setOrderDef(*m_envelope);
        root.setAutoResp(answer);
        m_answers.documents.append(Document::written(root, QStringLiteral("Response")));
    }

    void fault(const XmlReferenceType& reference, const QString& message)
    {
        XmlAutoRespType answer;
        answer.setStatus(XmlAutoRespType::StatusFault);
        answer.setReference(reference.isValid() ? reference : unknownReference());
        answer.setErrorMessage(message);
        add(answer, true);
        note(QStringLiteral("fault"), answer.reference());
    }
    void fault(const QString& message) { fault(unknownReference(), message); }

    void note(const QString& what, const XmlReferenceType& reference)
    {
        if (!m_answers.summary.isEmpty())
            m_answers.summary += QStringLiteral(", ");
        // A reference is a stranger's text: it must not break the log's lines.
        m_answers.summary += QStringLiteral("%1 (reference %2)").arg(what, reference.reference().simplified());
    }

    const Answers& answers() const { return m_answers; }

private:
    /// A response needs a reference; this one stands for a command that gave none.
    static XmlReferenceType unknownReference()
    {
        XmlReferenceType reference;
        reference.setReference(QStringLiteral("unknown"));
        return reference;
    }

    const XmlOrderDef* m_envelope;
    Answers m_answers;
};

XmlAutoRespType acknowledgement(const XmlReferenceType& reference)
{
    XmlAutoRespType answer;
    answer.setStatus(XmlAutoRespType::StatusAck);
    answer.setReference(reference);
    return answer;
}

/// The name of the next picture that the service "renders".
QString nextScreenshot()
{
    static int number = 0;
    return QStringLiteral("result-%1.png").arg(++number);
}

XmlInterlinkResultType planInterlink(const XmlInterlinkPlanningType& order)
{
    XmlInterlinkResultType result;
    result.setParameters(order);
    result.setResultText(
        QStringLiteral("The link from %1 to %2 is feasible.").arg(order.firstName(), order.secondName()));
    result.setScreenshotFilename(nextScreenshot());
    return result;
}

/// A grid result names the kind of the calculation and repeats the order's parameters.
XmlGridResultType calculateGrid(const XmlCmdCalc& command)
{
    XmlGridResultType result;
    if (command.hasFindSites()) {
        result.setType(XmlGridResultType::ResultFindSites);
        result.setFindSites(*command.findSites());
    } else if (command.hasCep()) {
        result.setType(XmlGridResultType::ResultCep);
        result.setCep(*command.cep());
    } else if (command.hasDetectProb()) {
        result.setType(XmlGridResultType::ResultDetectProb);
        result.setDetectProb(*command.detectProb());
    } else if (command.hasDfCov()) {
        result.setType(XmlGridResultType::ResultDfCoverage);
        result.setDfCov(*command.dfCov());
    } else if (command.hasBestSensor()) {
        result.setType(XmlGridResultType::ResultBestSensorCov);
        result.setBestSensor(*command.bestSensor());
    }
    result.setScreenshotFilename(nextScreenshot());
    return result;
}

void answer(const XmlCmdAdmin& command, Reply& reply)
{
    XmlAutoRespType version = acknowledgement(command.cmdReference());
    version.setArvVersion(QStringLiteral("Example planning service 1.0"));
    reply.add(version, true);
    reply.note(QStringLiteral("version"), command.cmdReference());
}

void answer(const XmlCmdCalc& command, Reply& reply)
{
    XmlAutoRespType estimate = acknowledgement(command.cmdReference());
    estimate.setEstimatedTime(QDateTime::currentDateTime().addSecs(calculationSeconds));
    reply.add(estimate, false);

    XmlAutoRespType result = acknowledgement(command.cmdReference());
    if (command.hasInterlink())
        result.setInterlinkResult(planInterlink(*command.interlink()));
    else
        result.setGridResult(calculateGrid(command));
    reply.add(result, true);
    reply.note(command.hasInterlink() ? QStringLiteral("interlink result") : QStringLiteral("grid result"),
               command.cmdReference());
}

} // namespace

Answers answersTo(const QByteArray& command)
{
    XmlCmdRoot root;
    const Document::ReadError error = Document::read(command, root);
    Reply reply(root.orderDef());
    if (error) {
        // What was read until the error is of no use, but the envelope tells whose order it was.
        reply.fault(error.text);
        return reply.answers();
    }

    const QList<XmlCmdAdmin*> queries = root.getAdministrativeCmds();
    const QList<XmlCmdCalc*> calculations = root.getCalculationCmds();
    if (queries.isEmpty() && calculations.isEmpty()) {
        reply.fault(QStringLiteral("The document holds no command for this service."));
    } else if (!root.isValid()) {
        const QString problems = root.syntaxError();
        for (const XmlCmdAdmin* query : queries)
            reply.fault(query->cmdReference(), problems);
        for (const XmlCmdCalc* calculation : calculations)
            reply.fault(calculation->cmdReference(), problems);
    } else {
        for (const XmlCmdAdmin* query : queries)
            answer(*query, reply);
        for (const XmlCmdCalc* calculation : calculations)
            answer(*calculation, reply);
    }
    return reply.answers();
}

Answers refusal(const QString& reason)
{
    Reply reply;
    reply.fault(reason);
    return reply.answers();
}
