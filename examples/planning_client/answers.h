#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// What a response document says, in plain words.
struct Answer {
    enum Verdict {
        Acknowledged, ///< the order is accepted, the result is yet to come
        Delivered,    ///< no answer to a command, but something the service sends on its own
        Done,         ///< the order is carried out
        Refused,      ///< the service reports a fault
        Unacceptable, ///< the response itself is no good
    };

    Verdict verdict = Unacceptable;
    QString text;
    QString orderId;   ///< from the envelope, empty when there is none
    QString reference; ///< of the command answered
};

Answer understand(const QByteArray& response);
