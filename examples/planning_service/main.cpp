// An example service: answers command documents on a loopback socket.

#include "planning_service/service.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QSaveFile>

#include <cstdio>

#ifdef Q_OS_UNIX
#include <QtCore/QSocketNotifier>

#include <csignal>
#include <unistd.h>
#endif

namespace {

#ifdef Q_OS_UNIX
int terminationPipe[2];

/// Stops \a service on SIGTERM and SIGINT. A signal handler may do next to nothing: it writes a byte
/// into a pipe, which the event loop watches.
void stopOnTermination(Service& service)
{
    if (pipe(terminationPipe) != 0)
        return;
    auto* notifier = new QSocketNotifier(terminationPipe[0], QSocketNotifier::Read, &service);
    QObject::connect(notifier, &QSocketNotifier::activated, &service, [&service, notifier] {
        notifier->setEnabled(false);
        service.stop();
    });
    const auto handler = [](int) {
        if (write(terminationPipe[1], "", 1) < 0)
            _exit(1);
    };
    std::signal(SIGTERM, handler);
    std::signal(SIGINT, handler);
}
#else
void stopOnTermination(Service&) { }
#endif

/// Writes the port for scripts to find. The file appears with its whole content or not at all.
bool writePort(const QString& fileName, quint16 port)
{
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(QByteArray::number(port) + '\n') > 0 && file.commit();
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("planning_service"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Answers command documents on a loopback socket."));
    parser.addHelpOption();
    const QCommandLineOption portOption(QStringLiteral("port"), QStringLiteral("Listen on <port>; 0 picks a free one."),
                                        QStringLiteral("port"), QStringLiteral("0"));
    const QCommandLineOption portFileOption(QStringLiteral("port-file"),
                                            QStringLiteral("Write the port into <file> once listening."),
                                            QStringLiteral("file"));
    const QCommandLineOption quitAfterOption(QStringLiteral("quit-after"), QStringLiteral("End after <n> documents."),
                                             QStringLiteral("n"));
    const QCommandLineOption idleOption(QStringLiteral("idle"),
                                        QStringLiteral("Send a client away that is silent for <seconds>."),
                                        QStringLiteral("seconds"), QStringLiteral("300"));
    parser.addOptions({portOption, portFileOption, quitAfterOption, idleOption});
    parser.process(app);

    bool portOk = false;
    bool idleOk = false;
    bool quitAfterOk = true;
    const quint16 port = parser.value(portOption).toUShort(&portOk);
    Service::Settings settings;
    settings.idleSeconds = parser.value(idleOption).toInt(&idleOk);
    if (parser.isSet(quitAfterOption))
        settings.quitAfter = parser.value(quitAfterOption).toInt(&quitAfterOk);
    const bool inRange = settings.idleSeconds > 0 && settings.idleSeconds <= 24 * 3600 && settings.quitAfter >= 0;
    if (!portOk || !idleOk || !quitAfterOk || !inRange || !parser.positionalArguments().isEmpty()) {
        std::fprintf(stderr, "%s", qPrintable(parser.helpText()));
        return 2;
    }

    Service service(settings);
    if (!service.listen(port)) {
        std::fprintf(stderr, "cannot listen: %s\n", qPrintable(service.errorString()));
        return 1;
    }
    stopOnTermination(service);
    std::printf("Listening on 127.0.0.1, port %d\n", service.port());
    std::fflush(stdout);
    if (parser.isSet(portFileOption) && !writePort(parser.value(portFileOption), service.port())) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(parser.value(portFileOption)));
        return 1;
    }
    return QCoreApplication::exec();
}
