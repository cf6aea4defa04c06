#include "exercise.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QSet>
#include <QtCore/QXmlStreamReader>

#include <cstdio>
#include <cstdlib>

/// \file
/// Writes the first inputs of all targets: `fuzz_seeds DICTIONARY TARGET-FOLDER DOCUMENTS...`. Every sample of every
/// class goes to fuzz_elements, and those of the roots also to their own targets, with all documents (*.xml) below the
/// given folders. Fails when a name of the protocol that one of them holds is not in the dictionary.

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

/// Notes the names of tags and attributes that no one made up for a single document.
void noteNames(const QByteArray& document, QSet<QString>& names)
{
    QXmlStreamReader reader(document);
    reader.readNextStartElement(); // the tag of the document element is free
    while (!reader.atEnd() && !reader.hasError()) {
        if (reader.readNext() == QXmlStreamReader::StartElement)
            names.insert(reader.name().toString());
        for (const QXmlStreamAttribute& attribute : reader.attributes())
            names.insert(attribute.name().toString());
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
        fail(QStringLiteral("which dictionary, and where to?"));
    const QByteArray dictionary = contentOf(QString::fromLocal8Bit(argv[1]));
    const QDir out(QString::fromLocal8Bit(argv[2]));
    const auto folderOf = [&out](const QString& target) { return out.filePath(target); };
    const auto& classes = Samples::classes();
    QSet<QString> names;
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
            noteNames(sample.xml.toUtf8(), names);
        }
    }

    // Which root a document is for is not told by it; every root is to cope with the others', too.
    for (int argument = 3; argument < argc; ++argument) {
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

    for (const QString& name : qAsConst(names)) {
        if (!dictionary.contains('"' + name.toUtf8() + '"'))
            fail(QStringLiteral("the dictionary lacks ") + name);
    }
    std::printf("%d seeds\n", count);
    return 0;
}
