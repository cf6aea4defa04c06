#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVector>

/// What the service has to say to one command document.
struct Answers {
    QVector<QByteArray> documents; ///< response documents, at least one
    QString summary;               ///< one line for the log
};

/// Reads \a command, judges it, and carries its commands out.
///
/// Calculations are only pretended: this is an example of the conversation, not of radio planning.
Answers answersTo(const QByteArray& command);

/// The answer to a document of which nothing is known, not even a reference.
Answers refusal(const QString& reason);
