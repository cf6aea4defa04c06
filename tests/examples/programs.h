#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

/// \file
/// What the tests of the example programs share. The time limits are for machines that are slow and
/// busy; nothing waits that long where all is well.

constexpr int patienceMs = 120000;

/// How a program ended, and what it printed.
struct Run {
    int status = -1; ///< -1 when it did not end by itself
    QString output;  ///< standard output
    QString errors;  ///< standard error
};

inline Run finished(QProcess& process)
{
    Run run;
    if (process.state() != QProcess::NotRunning && !process.waitForFinished(patienceMs))
        process.kill();
    else if (process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.output = QString::fromUtf8(process.readAllStandardOutput());
    run.errors = QString::fromUtf8(process.readAllStandardError());
    return run;
}

inline Run runProgram(const char* program, const QStringList& arguments)
{
    QProcess process;
    process.start(QString::fromUtf8(program), arguments);
    if (!process.waitForStarted(patienceMs))
        return Run();
    return finished(process);
}

/// A run whose standard output goes to a file. The device /dev/full is one that cannot be written.
inline Run runProgramInto(const QString& outputFile, const char* program, const QStringList& arguments)
{
    QProcess process;
    process.setStandardOutputFile(outputFile);
    process.start(QString::fromUtf8(program), arguments);
    if (!process.waitForStarted(patienceMs))
        return Run();
    return finished(process);
}

inline QString samplePath(const QString& name)
{
    return QDir(QStringLiteral(DOCUMENTS_FOLDER)).filePath(name);
}

inline QByteArray sample(const char* name)
{
    QFile file(samplePath(QString::fromLatin1(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
