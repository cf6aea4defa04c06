#include "picture.h"

#include <QtCore/QIODevice>
#include <QtCore/QXmlStreamWriter>

#include <algorithm>

namespace Bench {

namespace {

constexpr double width = 960;
constexpr double panelWidth = 440;
constexpr double margin = 26;
constexpr double labelWidth = 140;
constexpr double barHeight = 15;
constexpr double barStep = 19;
constexpr double panelHead = 34;
constexpr double panelFoot = 18;
constexpr double pictureHead = 64;

struct Bar {
    QString label;
    double value;
    double limit;
};

struct Panel {
    QString title;
    std::vector<Bar> bars;
};

/// The ratios with a limit, by their titles.
std::vector<Panel> panelsOf(const std::vector<Row>& rows)
{
    std::vector<Panel> panels;
    for (const Row& row : rows) {
        if (!row.ratio || !row.ratio->limit)
            continue;
        const Ratio& ratio = *row.ratio;
        auto panel = std::find_if(panels.begin(), panels.end(),
                                  [&ratio](const Panel& known) { return known.title == ratio.title; });
        if (panel == panels.end())
            panel = panels.insert(panels.end(), {ratio.title, {}});
        panel->bars.push_back({ratio.subject, ratio.value, *ratio.limit});
    }
    return panels;
}

double heightOf(const Panel& panel)
{
    return panelHead + barStep * static_cast<double>(panel.bars.size()) + panelFoot;
}

QString number(double value)
{
    return QString::number(value, 'f', 1);
}

/// Writes the few shapes that the picture needs.
class Canvas {
public:
    explicit Canvas(QIODevice& device)
        : m_writer(&device)
    {
        m_writer.setAutoFormatting(true);
        m_writer.setAutoFormattingIndent(1);
    }

    void begin(double height)
    {
        m_writer.writeStartDocument();
        m_writer.writeStartElement(QStringLiteral("svg"));
        set("xmlns", QStringLiteral("http://www.w3.org/2000/svg"));
        set("width", number(width));
        set("height", number(height));
        set("viewBox", QStringLiteral("0 0 %1 %2").arg(number(width), number(height)));
        set("font-family", QStringLiteral("sans-serif"));
        rectangle(0, 0, width, height, "#ffffff");
    }
    void end() { m_writer.writeEndDocument(); }

    void rectangle(double x, double y, double wide, double high, const char* colour)
    {
        m_writer.writeStartElement(QStringLiteral("rect"));
        set("x", number(x));
        set("y", number(y));
        set("width", number(wide));
        set("height", number(high));
        set("fill", QLatin1String(colour));
        m_writer.writeEndElement();
    }
    void line(double x, double top, double bottom, const char* colour)
    {
        m_writer.writeStartElement(QStringLiteral("line"));
        set("x1", number(x));
        set("x2", number(x));
        set("y1", number(top));
        set("y2", number(bottom));
        set("stroke", QLatin1String(colour));
        set("stroke-width", QStringLiteral("1.5"));
        m_writer.writeEndElement();
    }
    void text(double x, double y, int size, const char* anchor, const char* colour, const QString& text)
    {
        m_writer.writeStartElement(QStringLiteral("text"));
        set("x", number(x));
        set("y", number(y));
        set("font-size", QString::number(size));
        set("text-anchor", QLatin1String(anchor));
        set("fill", QLatin1String(colour));
        m_writer.writeCharacters(text);
        m_writer.writeEndElement();
    }

private:
    void set(const char* name, const QString& value) { m_writer.writeAttribute(QLatin1String(name), value); }

    QXmlStreamWriter m_writer;
};

constexpr const char* ink = "#222222";
constexpr const char* faint = "#666666";
constexpr const char* within = "#5b8db8";
constexpr const char* over = "#c9772f";
constexpr const char* limitLine = "#b02020";

void drawPanel(Canvas& canvas, const Panel& panel, double left, double top)
{
    double greatest = 0.0;
    for (const Bar& bar : panel.bars)
        greatest = std::max({greatest, bar.value, bar.limit});
    const double barsLeft = left + labelWidth;
    const double scale = (panelWidth - labelWidth - 46) / greatest;

    canvas.text(left, top + 14, 14, "start", ink, panel.title);
    double y = top + panelHead;
    for (const Bar& bar : panel.bars) {
        const double end = barsLeft + bar.value * scale;
        const double limit = barsLeft + bar.limit * scale;
        canvas.text(barsLeft - 6, y + barHeight - 3, 11, "end", faint, bar.label);
        canvas.rectangle(barsLeft, y, bar.value * scale, barHeight, bar.value > bar.limit ? over : within);
        canvas.line(limit, y - 2, y + barStep - 2, limitLine);
        canvas.text(std::max(end, limit) + 4, y + barHeight - 3, 11, "start", ink, QString::number(bar.value, 'f', 2));
        y += barStep;
    }
    const auto [least, most] = std::minmax_element(
        panel.bars.begin(), panel.bars.end(), [](const Bar& one, const Bar& other) { return one.limit < other.limit; });
    QString limits = QStringLiteral("at most %1").arg(least->limit, 0, 'f', 2);
    if (least->limit < most->limit)
        limits += QStringLiteral(" or %1").arg(most->limit, 0, 'f', 2);
    canvas.text(barsLeft + most->limit * scale, y + 10, 10, "middle", limitLine, limits);
}

} // namespace

void drawPicture(const std::vector<Row>& rows, QIODevice& device)
{
    const std::vector<Panel> panels = panelsOf(rows);
    double columns[2] = {pictureHead, pictureHead};
    std::vector<std::pair<double, double>> places;
    for (const Panel& panel : panels) {
        const int column = columns[0] <= columns[1] ? 0 : 1;
        places.emplace_back(margin + column * (panelWidth + margin), columns[column]);
        columns[column] += heightOf(panel) + 14;
    }

    Canvas canvas(device);
    canvas.begin(std::max(columns[0], columns[1]));
    canvas.text(margin, 28, 18, "start", ink, QStringLiteral("Ratios, and the limits that they must keep"));
    canvas.text(margin, 46, 12, "start", faint,
                QStringLiteral("shorter is better; blue keeps the limit, orange is over it"));
    for (size_t i = 0; i < panels.size(); ++i)
        drawPanel(canvas, panels[i], places[i].first, places[i].second);
    canvas.end();
}

} // namespace Bench
