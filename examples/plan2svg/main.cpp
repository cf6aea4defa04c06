// An example tool: draws the plan that a document holds as a picture (SVG), for people who would rather
// look than read.

#include "common/kinds.h"
#include "plan2svg/drawing.h"

#include <arvxml/commandroot.h>
#include <arvxml/snapshot.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

#include <cstdio>

using namespace ArvXml;

namespace {

enum Status {
    Drawn = 0,
    NothingToDraw = 1,
    Failed = 2, ///< the document cannot be read, or the picture not be written
};

void warn(const QString& fileName, const QString& text)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(fileName), qPrintable(text));
}

Status report(Status status, const QString& fileName, const QString& text)
{
    warn(fileName, text);
    return status;
}

Features featuresOf(const IXmlElement& root)
{
    if (const auto* commands = dynamic_cast<const XmlCmdRoot*>(&root))
        return ::featuresOf(*commands);
    if (const auto* request = dynamic_cast<const XmlArvBtType*>(&root))
        return ::featuresOf(*request);
    return {}; // a response has no plan
}

/// Writes to the standard output when there is no file name. Returns what went wrong, empty for nothing.
QString writeTo(const QString& fileName, const QByteArray& picture)
{
    const QFileInfo target(fileName);
    if (!fileName.isEmpty() && (!target.exists() || target.isFile())) {
        QSaveFile file(fileName); // no half of a picture, and the old one stays when the new one fails
        const bool isWritten =
            file.open(QIODevice::WriteOnly) && file.write(picture) == picture.size() && file.commit();
        return isWritten ? QString() : file.errorString();
    }
    QFile file(fileName); // a device is written to, not replaced
    const bool isOpen = fileName.isEmpty() ? file.open(stdout, QIODevice::WriteOnly) : file.open(QIODevice::WriteOnly);
    const bool isWritten = isOpen && file.write(picture) == picture.size() && file.flush();
    return isWritten ? QString() : file.errorString();
}

Status draw(const QString& fileName, const QString& title, const QString& pictureName)
{
    const Document::Loaded document = Document::load(fileName);
    if (!document.problem.isEmpty())
        return report(Failed, fileName, document.problem);
    const Features features = featuresOf(*document.root);
    for (const QString& object : features.leftOut)
        warn(fileName, QStringLiteral("left out, it has no place on earth: %1").arg(object));
    if (features.drawable.isEmpty())
        return report(NothingToDraw, fileName, QStringLiteral("%1, nothing to draw").arg(document.kind));
    const QString problem = writeTo(pictureName, drawingOf(features.drawable, title));
    if (!problem.isEmpty()) {
        return report(Failed, pictureName.isEmpty() ? QStringLiteral("standard output") : pictureName,
                      QStringLiteral("cannot be written: %1").arg(problem));
    }
    return Drawn;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("plan2svg"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Draws the plan of a document: what a command document creates, or what a snapshot request\n"
                       "wants to be shown. Values are not judged: inspect does that. An area across the date line is\n"
                       "drawn the long way round the earth.\n"
                       "Exit status: 0 drawn, 1 nothing to draw, 2 not readable (or the picture not writable)."));
    parser.addHelpOption();
    const QCommandLineOption titleOption(QStringLiteral("title"),
                                         QStringLiteral("The picture's title, by default the document's file name."),
                                         QStringLiteral("text"));
    const QCommandLineOption outputOption(QStringList({QStringLiteral("o"), QStringLiteral("output")}),
                                          QStringLiteral("The picture's file, by default the standard output."),
                                          QStringLiteral("file"));
    parser.addOptions({titleOption, outputOption});
    parser.addPositionalArgument(QStringLiteral("document"), QStringLiteral("The document."));
    parser.process(app);

    const QStringList files = parser.positionalArguments();
    if (files.size() != 1) {
        std::fprintf(stderr, "%s", qPrintable(parser.helpText()));
        return Failed;
    }
    const QString title = parser.isSet(titleOption) ? parser.value(titleOption) : QFileInfo(files.first()).fileName();
    return draw(files.first(), title, parser.value(outputOption));
}
