// An example tool: tells of XML files which document of the protocol each is, and whether it is
// acceptable.

#include "common/document.h"
#include "common/kinds.h"

#include <arvxml/element.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <algorithm>
#include <cstdio>
#include <memory>

using namespace ArvXml;

namespace {

enum Status {
    Acceptable = 0,
    NotAcceptable = 1,
    NotReadable = 2, ///< no such file, no XML, or none of the protocol's documents
};

struct Settings {
    bool rewrite = false;
    bool indent = false;
};

/// Tells about one file. With rewriting, the standard output is for documents alone.
Status inspect(const QString& fileName, const Settings& settings)
{
    const auto report = [&](Status status, const QString& text) {
        std::fprintf(settings.rewrite ? stderr : stdout, "%s: %s\n", qPrintable(fileName), qPrintable(text));
        return status;
    };

    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return report(NotReadable, QStringLiteral("cannot be opened: %1").arg(file.errorString()));
    const QByteArray document = file.readAll();
    const Document::Outline outline = Document::outlineOf(document);
    if (outline.tag.isEmpty())
        return report(NotReadable, QStringLiteral("no document: %1").arg(outline.error));
    const Document::Kind* kind = Document::kindOf(outline);
    if (!kind)
        return report(NotReadable, QStringLiteral("<%1> is no document of the protocol").arg(outline.tag));

    const QString name = QString::fromLatin1(kind->name);
    const std::unique_ptr<IXmlElement> root = kind->make();
    const Document::ReadError error = Document::read(document, *root);
    if (error) {
        return report(NotAcceptable,
                      QStringLiteral("%1, reading stops at line %2, column %3: %4")
                          .arg(name)
                          .arg(error.line)
                          .arg(error.column)
                          .arg(error.text));
    }
    if (settings.rewrite)
        std::printf("%s\n", Document::written(*root, outline.tag, settings.indent).trimmed().constData());
    const QString problems = Document::problems(*root);
    if (!problems.isEmpty())
        return report(NotAcceptable, QStringLiteral("%1, not acceptable:\n%2").arg(name, problems));
    return report(Acceptable, QStringLiteral("%1, acceptable").arg(name));
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("inspect"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Tells which document of the protocol each file is, and what is wrong with it.\n"
                       "Exit status: 0 all acceptable, 1 not acceptable, 2 not readable at all."));
    parser.addHelpOption();
    const QCommandLineOption rewriteOption(
        QStringLiteral("rewrite"),
        QStringLiteral(
            "Write each document that could be read to the standard output, and the report elsewhere. Some "
            "elements are written otherwise than they are read, and one under tags that are no XML: not every "
            "document can be read again."));
    const QCommandLineOption indentOption(QStringLiteral("indent"), QStringLiteral("Indent what is rewritten."));
    parser.addOptions({rewriteOption, indentOption});
    parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("The files."), QStringLiteral("files..."));
    parser.process(app);

    const QStringList files = parser.positionalArguments();
    if (files.isEmpty()) {
        std::fprintf(stderr, "%s", qPrintable(parser.helpText()));
        return NotReadable;
    }
    Settings settings;
    settings.rewrite = parser.isSet(rewriteOption);
    settings.indent = parser.isSet(indentOption);
    Status worst = Acceptable;
    for (const QString& file : files)
        worst = std::max(worst, inspect(file, settings));
    return worst;
}
