// An example tool: draws the plan that a document holds as a picture (SVG), for people who would rather
// look than read.

#include "common/document.h"
#include "common/kinds.h"
#include "plan2svg/drawing.h"

#include <arvxml/commandroot.h>
#include <arvxml/snapshot.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cstdio>

using namespace ArvXml;

namespace {

enum Status {
    Drawn = 0,
    NothingToDraw = 1,
    Failed = 2, ///< the document cannot be read, or the picture not be written
};

int report(Status status, const QString& fileName, const QString& text)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(fileName), qPrintable(text));
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

bool writeTo(const QString& fileName, const QByteArray& picture)
{
    QFile file(fileName);
    const bool isOpen = fileName.isEmpty() ? file.open(stdout, QIODevice::WriteOnly) : file.open(QIODevice::WriteOnly);
    return isOpen && file.write(picture) == picture.size() && file.flush();
}

int draw(const QString& fileName, const QString& title, const QString& pictureName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return report(Failed, fileName, QStringLiteral("cannot be opened: %1").arg(file.errorString()));
    const QByteArray document = file.readAll();
    const Document::Outline outline = Document::outlineOf(document);
    if (outline.tag.isEmpty())
        return report(Failed, fileName, QStringLiteral("no document: %1").arg(outline.error));
    const Document::Kind* kind = Document::kindOf(outline);
    if (!kind)
        return report(Failed, fileName, QStringLiteral("<%1> is no document of the protocol").arg(outline.tag));

    const QString name = QString::fromLatin1(kind->name);
    const std::unique_ptr<IXmlElement> root = kind->make();
    const Document::ReadError error = Document::read(document, *root);
    const Features features = featuresOf(*root);
    if (error) {
        return report(Failed, fileName,
                      QStringLiteral("%1, reading stops at line %2, column %3: %4")
                          .arg(name)
                          .arg(error.line)
                          .arg(error.column)
                          .arg(error.text));
    }
    for (const QString& object : features.leftOut)
        report(Drawn, fileName, QStringLiteral("left out, it has no place on earth: %1").arg(object));
    if (features.drawable.isEmpty())
        return report(NothingToDraw, fileName, QStringLiteral("%1, nothing to draw").arg(name));
    if (!writeTo(pictureName, drawingOf(features.drawable, title)))
        return report(Failed, pictureName, QStringLiteral("cannot be written"));
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
                       "wants to be shown.\n"
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
