#include "timing.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <memory>

namespace Bench {

namespace {

/// Gives back all that is free. Otherwise a task would pay for sorting what the one before it freed, or be
/// spared the system's calls for memory, as it happens; this way each runs as in a new process.
void emptyHeap()
{
    malloc_trim(0);
}

void measureTask(benchmark::State& state, Figure figure, Subject& subject)
{
    const auto task = makeTask(figure, subject);
    while (state.KeepRunning()) {
        state.PauseTiming();
        task->prepare();
        emptyHeap();
        state.ResumeTiming();
        task->run();
        state.PauseTiming();
        task->tidy();
        state.ResumeTiming();
    }
}

/// Collects the repetitions; telling them is the table's.
class Collector : public benchmark::BenchmarkReporter {
public:
    Collector(Results& results, const std::vector<std::pair<QString, Figure>>& measured)
        : m_results(results)
        , m_measured(measured)
    {
    }

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            if (run.error_occurred)
                qFatal("%s", run.error_message.c_str());
            const auto& [subject, figure] = m_measured[static_cast<size_t>(run.family_index)];
            m_results.addSample(subject, figure, run.cpu_accumulated_time / static_cast<double>(run.iterations));
        }
    }

private:
    Results& m_results;
    const std::vector<std::pair<QString, Figure>>& m_measured;
};

/// Tasks that are measured in one go.
class Group {
public:
    Group(Results& results, const Repetitions& repetitions)
        : m_results(results)
        , m_repetitions(repetitions)
    {
    }

    void add(const std::shared_ptr<Subject>& subject, const std::vector<Figure>& figures)
    {
        m_results.addSubject(subject->name(), subject->bytes());
        for (const Figure figure : figures) {
            if (figure == Figure::Heap)
                m_results.addSample(subject->name(), figure, static_cast<double>(subject->heapBytes()));
            else
                addTask(subject, figure);
        }
    }

    void run()
    {
        Collector collector(m_results, m_measured);
        benchmark::RunSpecifiedBenchmarks(&collector);
        benchmark::ClearRegisteredBenchmarks();
    }

private:
    void addTask(const std::shared_ptr<Subject>& subject, Figure figure)
    {
        const QString name = QStringLiteral("%1: %2").arg(subject->name(), nameOf(figure));
        const bool isGreat = subject->bytes() >= 100000000;
        m_measured.emplace_back(subject->name(), figure);
        const auto measure = [subject, figure](benchmark::State& state) { measureTask(state, figure, *subject); };
        benchmark::RegisterBenchmark(qPrintable(name), measure)
            ->Iterations(iterations(subject->bytes(), figure))
            ->Repetitions(isGreat ? m_repetitions.great : m_repetitions.small)
            ->MeasureProcessCPUTime();
    }

    /// As many as make up 10 MB, more of what is quick.
    static benchmark::IterationCount iterations(qint64 bytes, Figure figure)
    {
        const bool isQuick = figure == Figure::IsValid || figure == Figure::SyntaxError;
        return std::max(qint64(1), qint64(10000000) / bytes) * (isQuick ? 5 : 1);
    }

    Results& m_results;
    Repetitions m_repetitions;
    std::vector<std::pair<QString, Figure>> m_measured;
};

/// As if given on the command line.
void configureBenchmarks()
{
    char program[] = "arvxml_bench";
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    char* arguments[] = {program, interleaving};
    int count = 2;
    benchmark::Initialize(&count, arguments);
}

} // namespace

Results measureTimes(const Coverage& coverage, const Repetitions& repetitions)
{
    configureBenchmarks();
    Results results(Results::Unit::Seconds);
    std::vector<Figure> figures = tasks();
    figures.insert(figures.begin(), Figure::Heap);

    for (const Kind kind : coverage.kinds) {
        Group group(results, repetitions);
        for (const int megabytes : coverage.megabytes) {
            const QString name = subjectName(kind, megabytes);
            group.add(std::make_shared<Subject>(name, generate(kind, megabytes * qint64(1000000))), figures);
        }
        group.run();
    }

    Group polygons(results, repetitions);
    for (const VertexOrder order : {VertexOrder::Rising, VertexOrder::Falling, VertexOrder::Random}) {
        const int vertices = coverage.polygonVertices;
        std::vector<Document> documents;
        documents.push_back(polygonDocument(vertices, order));
        polygons.add(std::make_shared<Subject>(subjectName(vertices, order), std::move(documents)), {Figure::Read});
    }
    polygons.run();
    return results;
}

} // namespace Bench
