#include "rows.h"

#include <QtCore/QTextStream>

#include <algorithm>
#include <array>

namespace Bench {

namespace {

QString text(double value, Figure figure, Results::Unit unit)
{
    if (figure == Figure::Heap)
        return QStringLiteral("%1 MB").arg(value / 1e6, 0, 'f', 2);
    if (unit == Results::Unit::Instructions)
        return QStringLiteral("%1 M").arg(value / 1e6, 0, 'f', 3);
    return QStringLiteral("%1 ms").arg(value * 1e3, 0, 'f', 3);
}

/// Makes the lines of the table, leaving out what was not measured.
class RowMaker {
public:
    explicit RowMaker(const Results& results)
        : m_results(results)
    {
    }

    std::vector<Row> rows() const { return m_rows; }

    void addSubject(const QString& subject, Kind kind)
    {
        const bool isCommands = kind == Kind::Devices || kind == Kind::Creates;
        m_subject = subject;
        addFigure(Figure::ReadFloor);
        addFigure(Figure::ReadDom);
        addRatio(Figure::ReadDom, Figure::ReadFloor, {});
        addFigure(Figure::ReadPlain);
        addRatio(Figure::ReadPlain, Figure::ReadFloor, {});
        addFigure(Figure::Read);
        addRatio(Figure::Read, Figure::ReadFloor, isCommands ? 1.10 : 1.12);
        addRatio(Figure::Read, Figure::ReadPlain, 1.00);
        addRatio(Figure::Read, Figure::ReadDom, 0.45);
        addFigure(Figure::WriteFloor);
        addFigure(Figure::Write);
        addRatio(Figure::Write, Figure::WriteFloor, 1.05);
        addFigure(Figure::IsValid);
        addFigure(Figure::SyntaxError);
        addJudging();
        addFigure(Figure::Copy);
        addRatio(Figure::Copy, Figure::Read, 0.25);
        addFigure(Figure::Destroy);
        addRatio(Figure::Destroy, Figure::Read, {});
        addHeap();
    }

    /// The time per byte of 100 MB against that of 1 MB.
    void addGrowth(Figure figure, Kind kind, std::optional<double> limit)
    {
        const QString great = subjectName(kind, 100);
        const QString small = subjectName(kind, 1);
        const auto more = m_results.summary(great, figure);
        const auto less = m_results.summary(small, figure);
        if (!more || !less)
            return;
        const double perByte = more->median / static_cast<double>(m_results.bytes(great));
        const double perByteOfSmall = less->median / static_cast<double>(m_results.bytes(small));
        m_subject = great;
        add(QStringLiteral("%1, per byte").arg(nameOf(figure)), perByte / perByteOfSmall, QStringLiteral("1 MB"),
            limit);
    }

    void addPolygons(int vertices)
    {
        const QString rising = subjectName(vertices, VertexOrder::Rising);
        for (const VertexOrder order : {VertexOrder::Rising, VertexOrder::Falling, VertexOrder::Random}) {
            m_subject = subjectName(vertices, order);
            addFigure(Figure::Read);
            const auto measured = m_results.summary(m_subject, Figure::Read);
            const auto reference = m_results.summary(rising, Figure::Read);
            if (measured && reference && order != VertexOrder::Rising)
                add(QStringLiteral("reading, by order"), measured->median / reference->median,
                    nameOf(VertexOrder::Rising), 1.5);
        }
    }

private:
    void addFigure(Figure figure)
    {
        const auto summary = m_results.summary(m_subject, figure);
        if (!summary)
            return;
        const auto told = [&](double value) { return text(value, figure, m_results.unit()); };
        Row row{m_subject, nameOf(figure), told(summary->median), {}, {}, {}};
        if (summary->low < summary->high)
            row.spread = QStringLiteral("%1 .. %2").arg(told(summary->low), told(summary->high));
        m_rows.push_back(row);
    }

    /// Adds a ratio, to the line of its figure when that has none yet.
    void add(const QString& figure, double value, const QString& reference, std::optional<double> limit)
    {
        const Ratio ratio{QStringLiteral("%1 / %2").arg(figure, reference), m_subject, value, limit};
        if (!m_rows.empty() && m_rows.back().subject == m_subject && m_rows.back().figure == figure
            && !m_rows.back().ratio) {
            m_rows.back().ratio = ratio;
            m_rows.back().reference = reference;
        } else {
            m_rows.push_back({m_subject, figure, {}, {}, ratio, reference});
        }
    }

    void addRatio(Figure figure, Figure reference, std::optional<double> limit)
    {
        const auto measured = m_results.summary(m_subject, figure);
        const auto against = m_results.summary(m_subject, reference);
        if (measured && against)
            add(nameOf(figure), measured->median / against->median, nameOf(reference), limit);
    }

    void addJudging()
    {
        const auto isValid = m_results.summary(m_subject, Figure::IsValid);
        const auto syntaxError = m_results.summary(m_subject, Figure::SyntaxError);
        const auto reading = m_results.summary(m_subject, Figure::Read);
        if (isValid && syntaxError && reading)
            add(QStringLiteral("isValid() and syntaxError()"),
                (isValid->median + syntaxError->median) / reading->median, nameOf(Figure::Read), 0.08);
    }

    void addHeap()
    {
        addFigure(Figure::Heap);
        if (const auto heap = m_results.summary(m_subject, Figure::Heap))
            add(nameOf(Figure::Heap), heap->median / static_cast<double>(m_results.bytes(m_subject)),
                QStringLiteral("document"), 1.5);
    }

    const Results& m_results;
    QString m_subject;
    std::vector<Row> m_rows;
};

using Cells = std::array<QString, 7>;

Cells cellsOf(const Row& row)
{
    Cells cells{row.subject, row.figure, row.measured, row.spread, {}, row.reference, {}};
    if (row.ratio) {
        cells[4] = QString::number(row.ratio->value, 'f', 3);
        if (row.ratio->limit) {
            cells[6] = QStringLiteral("%1").arg(*row.ratio->limit, 0, 'f', 2);
            if (row.ratio->value > *row.ratio->limit)
                cells[6] += QStringLiteral(" OVER");
        }
    }
    return cells;
}

} // namespace

std::vector<Row> makeRows(const Results& results, const Coverage& coverage)
{
    RowMaker maker(results);
    for (const Kind kind : coverage.kinds) {
        for (const int megabytes : coverage.megabytes)
            maker.addSubject(subjectName(kind, megabytes), kind);
    }
    for (const Kind kind : coverage.kinds) {
        maker.addGrowth(Figure::ReadFloor, kind, {});
        maker.addGrowth(Figure::Read, kind, 1.10);
    }
    maker.addPolygons(coverage.polygonVertices);
    return maker.rows();
}

void printTable(const std::vector<Row>& rows, QTextStream& out)
{
    std::vector<Cells> lines = {{
        QStringLiteral("documents"),
        QStringLiteral("figure"),
        QStringLiteral("median"),
        QStringLiteral("quartiles"),
        QStringLiteral("ratio"),
        QStringLiteral("against"),
        QStringLiteral("at most"),
    }};
    for (const Row& row : rows)
        lines.push_back(cellsOf(row));

    std::array<int, std::tuple_size_v<Cells>> widths{};
    for (const Cells& line : lines) {
        for (size_t column = 0; column < line.size(); ++column)
            widths[column] = std::max(widths[column], static_cast<int>(line[column].size()));
    }
    for (const Cells& line : lines) {
        for (size_t column = 0; column < line.size(); ++column)
            out << "| " << line[column].leftJustified(widths[column]) << ' ';
        out << "|\n";
        if (&line == &lines.front()) {
            for (const int width : widths)
                out << '|' << QString(width + 2, QLatin1Char('-'));
            out << "|\n";
        }
    }
    const auto over = std::count_if(rows.begin(), rows.end(), [](const Row& row) {
        return row.ratio && row.ratio->limit && row.ratio->value > *row.ratio->limit;
    });
    out << "\nOver the limit: " << static_cast<int>(over) << '\n';
}

} // namespace Bench
