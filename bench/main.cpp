#include "check.h"
#include "instructions.h"
#include "picture.h"
#include "rows.h"
#include "timing.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTextStream>

using namespace Bench;

namespace {

QCommandLineOption withValue(const char* name, const char* what, const char* value, const char* standard)
{
    return {QString::fromLatin1(name), QString::fromLatin1(what), QString::fromLatin1(value),
            QString::fromLatin1(standard)};
}

QCommandLineOption flag(const char* name, const char* what)
{
    return {QString::fromLatin1(name), QString::fromLatin1(what)};
}

/// The kinds named, all known ones allowed. Stops the program at an unknown one.
std::vector<Kind> kindsNamed(const QString& names)
{
    std::vector<Kind> kinds;
    for (const QString& name : names.split(QLatin1Char(','))) {
        bool isKnown = false;
        for (const Kind kind :
             {Kind::Devices, Kind::Creates, Kind::Polygons, Kind::Responses, Kind::Snapshot, Kind::Answers}) {
            if (nameOf(kind) == name) {
                kinds.push_back(kind);
                isKnown = true;
            }
        }
        if (!isKnown)
            qFatal("Unknown kind: %s", qPrintable(name));
    }
    return kinds;
}

/// A number from 1 on. Stops the program at anything else.
int numberNamed(const QString& text)
{
    bool ok = false;
    const int number = text.toInt(&ok);
    if (!ok || number < 1)
        qFatal("Not a number from 1 on: %s", qPrintable(text));
    return number;
}

std::vector<int> numbersNamed(const QString& texts)
{
    std::vector<int> numbers;
    for (const QString& text : texts.split(QLatin1Char(',')))
        numbers.push_back(numberNamed(text));
    return numbers;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);

    const auto kinds = withValue("kinds", "What to measure; also: snapshot, answers (the two parts of responses).",
                                 "names", "devices,creates,polygons,responses");
    const auto sizes = withValue("sizes", "The sizes of the documents in MB.", "numbers", "1,10,100");
    const auto vertices = withValue("vertices", "The vertices of the great polygons.", "number", "1000000");
    const auto repetitions = withValue("repetitions", "How often to repeat.", "number", "11");
    const auto greatRepetitions =
        withValue("great-repetitions", "How often to repeat what is 100 MB or more.", "number", "5");
    const auto picture = withValue("picture", "Where to draw the ratios (SVG).", "file", "");
    const auto checkOnly = flag("check", "Measure nothing; check that what is measured is comparable.");
    const auto runOnly = flag("run-once", "Run each task once, under callgrind.");
    const auto counts = withValue("counts", "Tell the counts that callgrind left in files of this name.", "file", "");
    QCommandLineParser parser;
    parser.addOptions({kinds, sizes, vertices, repetitions, greatRepetitions, picture, checkOnly, runOnly, counts});
    parser.addHelpOption();
    parser.process(application);

    if (parser.isSet(checkOnly))
        return check(out) ? 0 : 1;

    const Coverage coverage{kindsNamed(parser.value(kinds)), numbersNamed(parser.value(sizes)),
                            numberNamed(parser.value(vertices))};
    if (parser.isSet(runOnly)) {
        runForInstructions(coverage);
        return 0;
    }
    const Results results = parser.isSet(counts)
        ? collectInstructions(coverage, parser.value(counts))
        : measureTimes(coverage, {numberNamed(parser.value(repetitions)), numberNamed(parser.value(greatRepetitions))});
    const std::vector<Row> rows = makeRows(results, coverage);
    printTable(rows, out);

    if (parser.isSet(picture)) {
        QFile file(parser.value(picture));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("Cannot write %s", qPrintable(file.fileName()));
        drawPicture(rows, file);
    }
    return 0;
}
