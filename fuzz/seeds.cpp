#include "exercise.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QMap>

#include <cstdio>
#include <cstdlib>

/// \file
/// Writes the first inputs of all targets: `fuzz_seeds TARGET-FOLDER DOCUMENTS...`. Every sample of every class goes to
/// fuzz_elements, and those of the roots also to their own targets, with all documents (*.xml) below the given folders.

namespace {

[[noreturn]] void fail(const QString& message)
{
    std::fprintf(stderr, "fuzz_seeds: %s\n", qPrintable(message));
    std::exit(1);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail(QStringLiteral("cannot read ") + path);
    return file.readAll();
}

void write(const QString& folder, const QString& name, const QByteArray& content)
{
    QFile file(QDir(folder).filePath(name));
    if (!QDir().mkpath(folder) || !file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        fail(QStringLiteral("cannot write ") + file.fileName());
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2)
        fail(QStringLiteral("where to?"));
    const QDir out(QString::fromLocal8Bit(argv[1]));
    const auto folderOf = [&out](const QString& target) { return out.filePath(target); };
    const auto& classes = Samples::classes();
    int count = 0;

    // The document of a root's target goes to the target of all classes, too, behind the byte of its class.
    const auto writeFor = [&](std::size_t row, const QString& name, const QByteArray& document) {
        static const QMap<QString, QString> targets = {
            {QStringLiteral("XmlCmdRoot"), QStringLiteral("fuzz_commands")},
            {QStringLiteral("XmlRespRoot"), QStringLiteral("fuzz_response")},
            {QStringLiteral("XmlArvBtType"), QStringLiteral("fuzz_snapshot")},
        };
        write(folderOf(QStringLiteral("fuzz_elements")), name, QByteArray(1, static_cast<char>(row)) + document);
        const QString target = targets.value(classes.at(row).name);
        if (!target.isEmpty())
            write(folderOf(target), name, document);
        ++count;
    };

    for (std::size_t row = 0; row < classes.size(); ++row) {
        int number = 0;
        for (const Samples::Sample& sample : classes.at(row).samples) {
            const QString name = QStringLiteral("%1-%2")
                                     .arg(classes.at(row).title().replace(QLatin1Char(' '), QLatin1Char('-')))
                                     .arg(++number);
            writeFor(row, name, sample.xml.toUtf8());
        }
    }

    // Which root a document is for is not told by it; every root is to cope with the others', too.
    for (int argument = 2; argument < argc; ++argument) {
        const QDir folder(QString::fromLocal8Bit(argv[argument]));
        QDirIterator files(folder.path(), {QStringLiteral("*.xml")}, QDir::Files, QDirIterator::Subdirectories);
        if (!files.hasNext())
            fail(QStringLiteral("no documents in ") + folder.path());
        while (files.hasNext()) {
            const QString path = files.next();
            const QString name = folder.relativeFilePath(path).replace(QLatin1Char('/'), QLatin1Char('-'));
            const QByteArray document = contentOf(path);
            for (const char* root : {"XmlCmdRoot", "XmlRespRoot", "XmlArvBtType"}) {
                const std::size_t row = static_cast<std::size_t>(&Fuzz::classNamed(root) - classes.data());
                writeFor(row, QLatin1String(root) + QLatin1Char('-') + name, document);
            }
        }
    }

    std::printf("%d seeds\n", count);
    return 0;
}
