#include "instructions.h"

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <functional>

/// What callgrind counts: it knows functions by their names.
extern "C" __attribute__((noinline)) void arvxml_bench_measured(Bench::Task* task)
{
    task->run();
}

namespace Bench {

namespace {

/// Goes through all that is counted, in the order of counting.
void forEachTask(const Coverage& coverage, const std::function<void(Subject&, Figure)>& visit)
{
    for (const Kind kind : coverage.kinds) {
        for (const int megabytes : coverage.megabytes) {
            Subject subject(subjectName(kind, megabytes), generate(kind, megabytes * qint64(1000000)));
            for (const Figure figure : tasks())
                visit(subject, figure);
        }
    }
    for (const VertexOrder order : {VertexOrder::Rising, VertexOrder::Falling, VertexOrder::Random}) {
        Subject subject(subjectName(coverage.polygonVertices, order),
                        {polygonDocument(coverage.polygonVertices, order)});
        visit(subject, Figure::Read);
    }
}

/// The instructions of one file of counts.
double countIn(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("Cannot open %s", qPrintable(fileName));
    const QByteArray start = QByteArrayLiteral("summary: ");
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        if (line.startsWith(start))
            return line.mid(start.size()).trimmed().toDouble();
    }
    qFatal("No counts in %s", qPrintable(fileName));
}

} // namespace

void runForInstructions(const Coverage& coverage)
{
    forEachTask(coverage, [](Subject& subject, Figure figure) {
        const auto task = makeTask(figure, subject);
        task->prepare();
        arvxml_bench_measured(task.get());
        task->tidy();
    });
}

Results collectInstructions(const Coverage& coverage, const QString& prefix)
{
    Results results(Results::Unit::Instructions);
    int number = 0;
    forEachTask(coverage, [&](Subject& subject, Figure figure) {
        if (results.bytes(subject.name()) == 0) {
            results.addSubject(subject.name(), subject.bytes());
            results.addSample(subject.name(), Figure::Heap, static_cast<double>(subject.heapBytes()));
        }
        results.addSample(subject.name(), figure, countIn(QStringLiteral("%1.%2").arg(prefix).arg(++number)));
    });
    return results;
}

} // namespace Bench
