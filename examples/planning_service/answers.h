#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVector>

class Plan;

/// What the service has to say to one command document.
struct Answers {
    QVector<QByteArray> documents; ///< response documents, at least one
    QString summary;               ///< one line for the log
};

/// Reads \a command, judges it, and carries its commands out on \a plan: all of them, or none when one is
/// not acceptable.
Answers answersTo(const QByteArray& command, Plan& plan);

/// The answer to a document of which nothing is known, not even a reference.
Answers refusal(const QString& reason);
