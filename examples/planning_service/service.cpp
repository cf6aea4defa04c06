#include "planning_service/service.h"

#include "planning_service/answers.h"

#include <QtCore/QCoreApplication>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QTcpSocket>

#include <cstdio>

namespace {

// Bounds on what strangers can make the service hold.
constexpr int maxClients = 100;
constexpr int readBufferSize = 64 * 1024;
constexpr int maxUnsent = 1024 * 1024;

/// How long clients have to take their last answers when the service ends.
constexpr int farewellMs = 2000;

void log(const QString& line)
{
    std::fprintf(stderr, "%s\n", qPrintable(line));
}

} // namespace

Service::Client::Client(QTcpSocket* connection)
    : QObject(connection)
    , socket(connection)
    , name(QStringLiteral("client %1").arg(connection->peerPort()))
{
}

Service::Service(const Settings& settings)
    : m_settings(settings)
{
    m_server.setProxy(QNetworkProxy::NoProxy);
    connect(&m_server, &QTcpServer::newConnection, this, &Service::welcomeClients);
}

bool Service::listen(quint16 port)
{
    return m_server.listen(QHostAddress::LocalHost, port);
}

void Service::welcomeClients()
{
    while (QTcpSocket* socket = m_server.nextPendingConnection()) {
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        if (m_clientCount == maxClients) {
            log(QStringLiteral("too many clients, one is sent away"));
            socket->disconnectFromHost();
            continue;
        }
        ++m_clientCount;
        auto* client = new Client(socket);
        const auto serveClient = [this, client] { serve(*client); };
        connect(socket, &QTcpSocket::readyRead, this, serveClient);
        connect(socket, &QTcpSocket::bytesWritten, this, serveClient);
        connect(socket, &QTcpSocket::disconnected, this, [this] {
            --m_clientCount;
            quitWhenAlone();
        });
        connect(&client->idle, &QTimer::timeout, socket, [client] {
            log(QStringLiteral("%1: silent for too long, sent away").arg(client->name));
            client->socket->abort();
        });
        client->idle.start(m_settings.idleSeconds * 1000);
        // With a bounded buffer, a client that sends faster than it is served has to wait.
        socket->setReadBufferSize(readBufferSize);
    }
}

void Service::serve(Client& client)
{
    // A client that does not take its answers gets no further ones; it is served again when it does.
    while (!m_stopping && client.socket->bytesAvailable() > 0 && client.socket->bytesToWrite() < maxUnsent) {
        client.idle.start();
        const QVector<Frame> frames = client.framing.take(client.socket->read(readBufferSize));
        for (const Frame& frame : frames) {
            if (!m_stopping)
                answer(frame, client);
        }
    }
}

void Service::answer(const Frame& frame, Client& client)
{
    const Answers answers =
        frame.tooLong ? refusal(QStringLiteral("The document is too long.")) : answersTo(frame.document, m_plan);
    for (const QByteArray& document : answers.documents)
        client.socket->write(framed(document));
    log(QStringLiteral("%1: a document, answered with: %2").arg(client.name, answers.summary));
    ++m_documentCount;
    if (m_documentCount == m_settings.quitAfter)
        stop();
}

void Service::stop()
{
    m_stopping = true;
    m_server.close();
    const QList<QTcpSocket*> sockets = m_server.findChildren<QTcpSocket*>();
    for (QTcpSocket* socket : sockets)
        socket->disconnectFromHost();
    QTimer::singleShot(farewellMs, qApp, &QCoreApplication::quit);
    quitWhenAlone();
}

void Service::quitWhenAlone() const
{
    if (m_stopping && m_clientCount == 0)
        QCoreApplication::quit();
}
