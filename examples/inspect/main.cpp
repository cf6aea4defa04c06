// An example tool: tells of XML files which document of the protocol each is, and whether it is
// acceptable.

#include "common/document.h"
#include "common/kinds.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cstdio>

namespace {

enum Status {
    Acceptable = 0,
    NotAcceptable = 1,
    NotReadable = 2, ///< no such file, no XML, or none of the protocol's documents
    NotTold = 2,     ///< the standard output cannot be written
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

    const Document::Loaded document = Document::load(fileName);
    if (!document.problem.isEmpty())
        return report(document.root ? NotAcceptable : NotReadable, document.problem);
    if (settings.rewrite) {
        const QByteArray rewritten = Document::written(*document.root, document.tag, settings.indent).trimmed();
        std::printf("%s\n", rewritten.constData());
    }
    const QString problems = Document::problems(*document.root);
    if (!problems.isEmpty())
        return report(NotAcceptable, QStringLiteral("%1, not acceptable:\n%2").arg(document.kind, problems));
    return report(Acceptable, QStringLiteral("%1, acceptable").arg(document.kind));
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("inspect"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Tells which document of the protocol each file is, and what is wrong with it.\n"
                       "Exit status: 0 all acceptable, 1 not acceptable, 2 not readable at all, or the standard output "
                       "not writable."));
    parser.addHelpOption();
    const QCommandLineOption rewriteOption(
        QStringLiteral("rewrite"),
        QStringLiteral(
            "Write each document that could be read to the standard output, and the report elsewhere. Some "
            "elements are written otherwise than they are read, and one under tags that are no XML: not every "
            "document can be read again."));
    const QCommandLineOption indentOption(
        QStringLiteral("indent"),
        QStringLiteral("Indent what is rewritten, for people: snapshot requests with results "
                       "cannot be read again then."));
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
    if (std::fflush(stdout) != 0 || std::ferror(stdout)) {
        std::fprintf(stderr, "standard output: cannot be written\n");
        return NotTold;
    }
    return worst;
}
