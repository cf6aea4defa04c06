// An example client: sends an order, or the commands of a file, to the service and tells what comes back.

#include "common/framing.h"
#include "planning_client/answers.h"
#include "planning_client/commandfile.h"
#include "planning_client/orders.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QTcpSocket>

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace {

/// The exit status of the program.
enum Status {
    Carried = 0, ///< the order was carried out
    Refused = 1, ///< the order was not acceptable, to us or to the service
    Failed = 2,  ///< there was no proper conversation, or it was called wrongly
};

void say(const QString& text)
{
    std::printf("%s", qPrintable(text));
    std::fflush(stdout);
}

int fail(const QString& text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
    return Failed;
}

/// Tells \a answer to \a order; the status that the program has if this was the last one.
int tell(const Answer& answer, const Order& order)
{
    // Raw bytes have no id, and take every answer.
    if (!order.id.isEmpty() && !answer.orderId.isEmpty() && answer.orderId != order.id)
        return fail(QStringLiteral("The service answered another order: %1").arg(answer.orderId));
    if (!answer.reference.isEmpty())
        say(QStringLiteral("[reference %1] ").arg(answer.reference));
    say(answer.text);
    switch (answer.verdict) {
    case Answer::Unacceptable:
        return Failed;
    case Answer::Refused:
        return Refused;
    default:
        return Carried;
    }
}

/// Sends \a order and tells the answers, until each of its commands has got the final one.
int converse(const Order& order, quint16 port, QDeadlineTimer deadline)
{
    int finalAnswers = order.commandCount;
    const auto remaining = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
    QTcpSocket socket;
    socket.setProxy(QNetworkProxy::NoProxy);
    socket.connectToHost(QHostAddress::LocalHost, port);
    if (!socket.waitForConnected(remaining()))
        return fail(QStringLiteral("Cannot reach the service: %1").arg(socket.errorString()));
    socket.write(framed(order.document));

    int status = Carried;
    Framing framing;
    while (finalAnswers > 0) {
        if (socket.bytesAvailable() == 0 && !socket.waitForReadyRead(remaining()))
            return fail(QStringLiteral("No answer: %1").arg(socket.errorString()));
        const QVector<Frame> frames = framing.take(socket.readAll());
        for (const Frame& frame : frames) {
            if (frame.tooLong)
                return fail(QStringLiteral("The service sent a document that is too long."));
            const Answer answer = understand(frame.document);
            status = std::max(status, tell(answer, order));
            if (status == Failed)
                return Failed;
            if (answer.verdict == Answer::Done || answer.verdict == Answer::Refused)
                --finalAnswers;
        }
    }
    return status;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("planning_client"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Sends an order to the planning service and tells what comes back.\n\n"
        "  interlink A B                    plan the link between two objects\n"
        "  cep [DF...]                      circular error probable of fixes by direction finders\n"
        "  detect [SENSOR...]               detection probability\n"
        "  dfcov [DF...]                    direction-finding coverage\n"
        "  bestsensor [SENSOR...]           best sensor coverage\n"
        "  findsites [AREA...]              possible sites in deployment areas\n"
        "  model NAME [PARAMETER=VALUE...]  choose the propagation model and its parameters\n"
        "  version                          ask for the version of the service\n\n"
        "No names mean all. A wrong model or parameter is answered with those that there are. Instead\n"
        "of an order, --commands sends the commands of a file, for example those that create and delete\n"
        "the objects of a plan.\n\n"
        "Exit status: 0 carried out, 1 not acceptable, 2 no proper conversation."));
    parser.addHelpOption();
    const QCommandLineOption portOption(QStringLiteral("port"), QStringLiteral("The service's <port>."),
                                        QStringLiteral("port"));
    const QCommandLineOption referenceOption(QStringLiteral("reference"),
                                             QStringLiteral("Mark the command with <text>, 1 to 50 characters."),
                                             QStringLiteral("text"), QStringLiteral("1"));
    const QCommandLineOption areaOption(QStringLiteral("area"),
                                        QStringLiteral("Area of interest; may be repeated (default: all)."),
                                        QStringLiteral("name"));
    const QCommandLineOption gridOption(QStringLiteral("grid"),
                                        QStringLiteral("Spacing of the result grid: 10, 50, 100, 200, 500 or 1000."),
                                        QStringLiteral("spacing"));
    const QCommandLineOption probabilityOption(QStringLiteral("probability"),
                                               QStringLiteral("Level of the circular error: 50, 66, 75, 90 or 95."),
                                               QStringLiteral("percent"));
    const QCommandLineOption emittersOption(QStringLiteral("random-emitters"),
                                            QStringLiteral("Find sites against <n> emitters on a grid, 0 to 500."),
                                            QStringLiteral("n"), QStringLiteral("-1"));
    const QCommandLineOption commandsOption(
        QStringLiteral("commands"),
        QStringLiteral("Send the commands of <file>, a command document, in an envelope of our own."),
        QStringLiteral("file"));
    const QCommandLineOption rawOption(QStringLiteral("raw"),
                                       QStringLiteral("Send the bytes of <file> as they are, good or bad."),
                                       QStringLiteral("file"));
    const QCommandLineOption answersOption(QStringLiteral("answers"),
                                           QStringLiteral("With --raw: wait for <n> final answers (default: 1)."),
                                           QStringLiteral("n"), QStringLiteral("1"));
    const QCommandLineOption timeoutOption(QStringLiteral("timeout"), QStringLiteral("Wait for at most <seconds>."),
                                           QStringLiteral("seconds"), QStringLiteral("30"));
    parser.addOptions({portOption, referenceOption, areaOption, gridOption, probabilityOption, emittersOption,
                       commandsOption, rawOption, answersOption, timeoutOption});
    parser.addPositionalArgument(QStringLiteral("kind"), QStringLiteral("The kind of the order, see above."));
    parser.addPositionalArgument(QStringLiteral("names"), QStringLiteral("Names of objects, or a model."),
                                 QStringLiteral("[names...]"));
    parser.process(app);

    bool numbersOk[4] = {};
    const quint16 port = parser.value(portOption).toUShort(&numbersOk[0]);
    const int seconds = parser.value(timeoutOption).toInt(&numbersOk[1]);
    const int finalAnswers = parser.value(answersOption).toInt(&numbersOk[2]);
    Wish wish;
    wish.names = parser.positionalArguments();
    wish.kind = wish.names.isEmpty() ? QString() : wish.names.takeFirst();
    wish.areas = parser.values(areaOption);
    wish.reference = parser.value(referenceOption);
    wish.grid = parser.value(gridOption);
    wish.probability = parser.value(probabilityOption);
    wish.randomEmitters = parser.value(emittersOption).toInt(&numbersOk[3]);
    const bool isRaw = parser.isSet(rawOption);
    const bool isFile = isRaw || parser.isSet(commandsOption);
    const bool isClear = isFile == wish.kind.isEmpty() && !(isRaw && parser.isSet(commandsOption));
    if (!numbersOk[0] || port == 0)
        return fail(QStringLiteral("The option --port needs the number of the service's port; see --help."));
    if (!std::all_of(std::begin(numbersOk), std::end(numbersOk), [](bool ok) { return ok; }) || seconds <= 0)
        return fail(QStringLiteral("An option that needs a number has another text; see --help."));
    if (!isClear)
        return fail(parser.helpText());
    if (wish.kind == QLatin1String("version") && !wish.names.isEmpty())
        return fail(QStringLiteral("A version query takes no names."));

    QFile file(parser.value(isRaw ? rawOption : commandsOption));
    if (isFile && !file.open(QIODevice::ReadOnly))
        return fail(QStringLiteral("Cannot read %1: %2").arg(file.fileName(), file.errorString()));
    Order order;
    if (isRaw) {
        order.document = file.readAll();
        order.commandCount = finalAnswers;
        say(QStringLiteral("Sending %1 as it is.\n").arg(file.fileName()));
    } else {
        order = isFile ? orderFrom(file.readAll()) : makeOrder(wish);
        if (!order.problem.isEmpty()) {
            fail(QStringLiteral("The order is not sent, it is not acceptable:\n%1").arg(order.problem));
            return Refused;
        }
        const QString what = isFile ? QStringLiteral("%1 commands of %2").arg(order.commandCount).arg(file.fileName())
                                    : (wish.kind + QLatin1Char(' ') + wish.names.join(QStringLiteral(", "))).trimmed();
        say(QStringLiteral("Sending order %1: %2\n").arg(order.id, what));
    }
    return converse(order, port, QDeadlineTimer(seconds * 1000LL));
}
