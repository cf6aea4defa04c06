#pragma once

#include "common/framing.h"
#include "planning_service/plan.h"

#include <QtCore/QTimer>
#include <QtNetwork/QTcpServer>

class QTcpSocket;

/// The socket side of the service: takes clients on the loopback interface, and answers the documents
/// that they send. One thread serves all; nobody is waited for.
class Service : public QObject {
public:
    struct Settings {
        int idleSeconds = 300; ///< a client silent for longer is sent away
        int quitAfter = 0;     ///< end after this many documents; 0 for never
    };

    explicit Service(const Settings& settings);

    /// Starts to listen; port 0 picks a free one.
    bool listen(quint16 port);
    quint16 port() const { return m_server.serverPort(); }
    QString errorString() const { return m_server.errorString(); }

    /// Takes no more clients and documents, sends what is still to be sent, and ends the program.
    void stop();

private:
    /// What is kept for each client; lives as long as its socket.
    struct Client : QObject {
        explicit Client(QTcpSocket* connection);

        QTcpSocket* socket;
        Framing framing;
        QTimer idle;
        QString name;
    };

    void welcomeClients();
    void serve(Client& client);
    void answer(const Frame& frame, Client& client);
    void quitWhenAlone() const;

    const Settings m_settings;
    Plan m_plan;
    int m_clientCount = 0;
    int m_documentCount = 0;
    bool m_stopping = false;
    QTcpServer m_server; // last: its sockets still report to the service when they are destroyed
};
