#include "planning_service/answers.h"

#include "common/document.h"
#include "planning_service/calculations.h"
#include "planning_service/plan.h"

#include <arvxml/arvxml.h>

#include <QtCore/QDateTime>

using namespace ArvXml;

namespace {

/// How long a calculation is said to take.
constexpr int calculationSeconds = 5;

/// Every command of a bad document is answered with all that is wrong in it; so that has to be short.
constexpr int maxProblemsLength = 4000;

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
        root.setAutoResp(answer);
        append(root);
    }

    /// Adds a station that no command asked for. As nothing follows on it, it is final, although the
    /// answer to the command under way is not.
    void deliver(const XmlStationType& station)
    {
        XmlResultObjectType object;
        object.setStation(station);
        XmlInteractRespType content;
        content.setResult(object);
        XmlRespRoot root;
        root.setType(XmlRespRoot::RespInteractive);
        root.setFinal(true);
        root.setInteractResp(content);
        append(root);
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
    void append(XmlRespRoot& root)
    {
        // An envelope that is not valid would make the response invalid, too.
        if (m_envelope && m_envelope->isValid())
            root.setOrderDef(*m_envelope);
        m_answers.documents.append(Document::written(root, QStringLiteral("Response")));
    }

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

/// The answer to a command that has no result. The protocol has no item that says "done": a final
/// answer with the present time comes closest.
XmlAutoRespType done(const XmlReferenceType& reference)
{
    XmlAutoRespType answer = acknowledgement(reference);
    answer.setEstimatedTime(QDateTime::currentDateTime());
    return answer;
}

void answer(const XmlCmdAdmin& command, Plan&, Reply& reply)
{
    XmlAutoRespType version = acknowledgement(command.cmdReference());
    version.setArvVersion(QStringLiteral("Example planning service 1.0"));
    reply.add(version, true);
    reply.note(QStringLiteral("version"), command.cmdReference());
}

void answerChange(const XmlCommand& command, const QString& problem, const QString& what, Reply& reply)
{
    if (!problem.isEmpty()) {
        reply.fault(command.cmdReference(), problem);
        return;
    }
    reply.add(done(command.cmdReference()), true);
    reply.note(what, command.cmdReference());
}

void answer(const XmlCmdCreate& command, Plan& plan, Reply& reply)
{
    answerChange(command, plan.create(command), QStringLiteral("created"), reply);
}

void answer(const XmlCmdDelete& command, Plan& plan, Reply& reply)
{
    answerChange(command, plan.remove(command), QStringLiteral("deleted"), reply);
}

void answer(const XmlPropModelType& command, Plan& plan, Reply& reply)
{
    plan.choose(command);
    answerChange(command, QString(), QStringLiteral("model ") + plan.modelName(), reply);
}

void answer(const XmlCmdCalc& command, Plan& plan, Reply& reply)
{
    XmlAutoRespType estimate = acknowledgement(command.cmdReference());
    estimate.setEstimatedTime(QDateTime::currentDateTime().addSecs(calculationSeconds));
    reply.add(estimate, false);

    // No command asks for a planning object: the service delivers one on its own while it plans.
    if (command.hasFindSites()) {
        if (const auto station = proposeStation(*command.findSites(), plan)) {
            reply.deliver(*station);
            reply.note(QStringLiteral("station"), command.cmdReference());
        }
    }

    XmlAutoRespType result = acknowledgement(command.cmdReference());
    if (command.hasInterlink())
        result.setInterlinkResult(planInterlink(*command.interlink(), plan.modelName()));
    else
        result.setGridResult(calculateGrid(command));
    reply.add(result, true);
    const QString kind = command.hasInterlink() ? QStringLiteral("interlink") : QStringLiteral("grid");
    reply.note(QStringLiteral("%1 result with %2").arg(kind, plan.modelName()), command.cmdReference());
}

/// Calls \a use with every command of \a root, in the order of the document.
template <typename Use>
void forEachCommand(const XmlCmdRoot& root, const Use& use)
{
    for (const XmlCmdAdmin* command : root.getAdministrativeCmds())
        use(*command);
    for (const XmlCmdCreate* command : root.getCreateCmds())
        use(*command);
    for (const XmlCmdDelete* command : root.getDeleteCmds())
        use(*command);
    if (const XmlPropModelType* command = root.getPropagationModelCmd())
        use(*command);
    for (const XmlCmdCalc* command : root.getCalculationCmds())
        use(*command);
}

} // namespace

Answers answersTo(const QByteArray& command, Plan& plan)
{
    XmlCmdRoot root;
    const Document::ReadError error = Document::read(command, root);
    Reply reply(root.orderDef());
    if (error) {
        // What was read until the error is of no use, but the envelope tells whose order it was.
        reply.fault(error.text);
        return reply.answers();
    }

    const QString problems = Document::problems(root).left(maxProblemsLength);
    forEachCommand(root, [&](const auto& one) {
        if (problems.isEmpty())
            answer(one, plan, reply);
        else
            reply.fault(one.cmdReference(), problems);
    });
    if (reply.answers().documents.isEmpty())
        reply.fault(QStringLiteral("The document holds no command for this service."));
    return reply.answers();
}

Answers refusal(const QString& reason)
{
    Reply reply;
    reply.fault(reason);
    return reply.answers();
}
