#include "plan2svg/drawing.h"

#include "plan2svg/map.h"

#include <QtCore/QXmlStreamWriter>

#include <algorithm>
#include <cmath>

namespace {

// All lengths are those of the picture.
constexpr double mapLeft = 64;
constexpr double mapTop = 48;
constexpr double mapWidth = 720;
constexpr double legendWidth = 176;
constexpr double legendRow = 24;
constexpr double symbolSize = 7;
constexpr double letterWidth = 6.6; // of a label, roughly
constexpr double letterHeight = 12;

/// How a kind of feature looks, in the order of the enumeration.
struct Look {
    const char* id; ///< the class of its shapes in the document
    const char* legend;
    const char* color;
    const char* dashes; ///< of an outline
    const char* symbol; ///< the path of a site's symbol around its place, empty for areas
};
constexpr Look looks[] = {
    {"area-of-interest", "Area of interest", "#1f6fb4", "", ""},
    {"deployment-area", "Deployment area", "#2e8b57", "8 4", ""},
    {"result-area", "Result", "#c9710c", "2 4", ""},
    {"station", "Station", "#333333", "", "M0-7L7 0L0 7L-7 0Z"},
    {"receiver", "Receiver", "#1f6fb4", "", "M-6-6H6V6H-6Z"},
    {"direction-finder", "Direction finder", "#7b3fa0", "", "M-7 0a7 7 0 1 0 14 0a7 7 0 1 0-14 0"},
    {"emitter", "Emitter", "#c0282d", "", "M0-8L7 5H-7Z"},
};

const Look& lookOf(FeatureKind kind)
{
    return looks[static_cast<int>(kind)];
}

QString latin1(const char* text)
{
    return QString::fromLatin1(text);
}

QString number(double value)
{
    QString text = QString::number(value, 'f', 1);
    return text.endsWith(QLatin1String(".0")) ? text.chopped(2) : text;
}

/// "9.25° E": as many decimals as the step of the grid needs.
QString degrees(double value, double step, const char* positive, const char* negative)
{
    const int decimals = std::max(0, static_cast<int>(std::ceil(-std::log10(step) - 1e-9)));
    const bool isZero = std::abs(value) < step / 2;
    const char* side = isZero ? "" : value > 0 ? positive : negative;
    return QString::number(std::abs(value), 'f', decimals) + QChar(0xb0) + latin1(side);
}

QString lengthText(double metres)
{
    return metres < 1000 ? number(metres) + latin1(" m") : number(metres / 1000) + latin1(" km");
}

QPointF middleOf(const QVector<QPointF>& points)
{
    QPointF sum;
    for (const QPointF& point : points)
        sum += point;
    return points.isEmpty() ? sum : sum / points.size();
}

/// Draws one picture.
class Drawing {
public:
    Drawing(const QVector<Feature>& features, QByteArray& document)
        : m_features(features)
        , m_map(features, {mapLeft, mapTop}, mapWidth)
        , m_writer(&document)
    {
        std::stable_sort(m_features.begin(), m_features.end(),
                         [](const Feature& a, const Feature& b) { return a.kind < b.kind; });
    }

    void draw(const QString& title)
    {
        const double width = m_map.frame().right() + legendWidth + 32;
        const double height = std::max(m_map.frame().bottom(), mapTop + 8 * legendRow) + 48;
        m_writer.setAutoFormatting(true);
        m_writer.setAutoFormattingIndent(1);
        m_writer.writeStartDocument();
        m_writer.writeDefaultNamespace(latin1("http://www.w3.org/2000/svg"));
        m_writer.writeStartElement(latin1("http://www.w3.org/2000/svg"), latin1("svg"));
        attribute("width", width);
        attribute("height", height);
        attribute("viewBox", latin1("0 0 %1 %2").arg(number(width), number(height)));
        attribute("font-family", latin1("sans-serif"));
        attribute("font-size", letterHeight);
        text("title", title);
        writeClip();
        rectangle(QRectF(0, 0, width, height), "background", "#ffffff", "none");
        writeText({mapLeft, mapTop - 18}, "start", title, "heading", "18");

        drawGrid();
        m_writer.writeStartElement(latin1("g"));
        attribute("clip-path", latin1("url(#map)"));
        for (const Feature& feature : m_features)
            drawShape(feature);
        drawLabels();
        m_writer.writeEndElement();
        drawScale();
        drawLegend();
        m_writer.writeEndDocument();
    }

private:
    void attribute(const char* name, const QString& value) { m_writer.writeAttribute(latin1(name), value); }
    void attribute(const char* name, double value) { attribute(name, number(value)); }
    void text(const char* tag, const QString& value) { m_writer.writeTextElement(latin1(tag), value); }

    void writeClip()
    {
        m_writer.writeStartElement(latin1("clipPath"));
        attribute("id", latin1("map"));
        rectangle(m_map.frame(), nullptr, nullptr, nullptr);
        m_writer.writeEndElement();
    }

    void rectangle(const QRectF& where, const char* id, const char* fill, const char* stroke)
    {
        m_writer.writeEmptyElement(latin1("rect"));
        attribute("x", where.x());
        attribute("y", where.y());
        attribute("width", where.width());
        attribute("height", where.height());
        if (!id)
            return;
        attribute("class", latin1(id));
        attribute("fill", latin1(fill));
        attribute("stroke", latin1(stroke));
    }

    void line(QPointF from, QPointF to, const char* id, const char* color, double width)
    {
        m_writer.writeEmptyElement(latin1("line"));
        attribute("class", latin1(id));
        attribute("x1", from.x());
        attribute("y1", from.y());
        attribute("x2", to.x());
        attribute("y2", to.y());
        attribute("stroke", latin1(color));
        attribute("stroke-width", width);
    }

    void writeText(QPointF where, const char* anchor, const QString& value, const char* id, const char* size = nullptr)
    {
        m_writer.writeStartElement(latin1("text"));
        attribute("class", latin1(id));
        attribute("x", where.x());
        attribute("y", where.y());
        attribute("text-anchor", latin1(anchor));
        if (size)
            attribute("font-size", latin1(size));
        m_writer.writeCharacters(value);
        m_writer.writeEndElement();
    }

    void drawGrid()
    {
        const QRectF frame = m_map.frame();
        rectangle(frame, "map", "#fbfaf6", "#555555");
        const double step = m_map.gridStep();
        const auto meridians = m_map.meridians();
        for (const double longitude : meridians) {
            const double x = m_map.place({longitude, 0}).x();
            line({x, frame.top()}, {x, frame.bottom()}, "meridian", "#d8d4c8", 1);
            writeText({x, frame.bottom() + 18}, "middle", degrees(longitude, step, "E", "W"), "degrees");
        }
        const auto parallels = m_map.parallels();
        for (const double latitude : parallels) {
            const double y = m_map.place({0, latitude}).y();
            line({frame.left(), y}, {frame.right(), y}, "parallel", "#d8d4c8", 1);
            writeText({frame.left() - 6, y + 4}, "end", degrees(latitude, step, "N", "S"), "degrees");
        }
    }

    void area(const Look& look, const QVector<QPointF>& corners)
    {
        QStringList points;
        for (const QPointF& corner : corners)
            points.append(latin1("%1,%2").arg(number(corner.x()), number(corner.y())));
        m_writer.writeEmptyElement(latin1("polygon"));
        attribute("class", latin1(look.id));
        attribute("points", points.join(QLatin1Char(' ')));
        attribute("fill", latin1(look.color));
        attribute("fill-opacity", latin1("0.12"));
        attribute("stroke", latin1(look.color));
        attribute("stroke-width", latin1("1.5"));
        if (*look.dashes)
            attribute("stroke-dasharray", latin1(look.dashes));
    }

    void symbol(const Look& look, QPointF where)
    {
        m_writer.writeEmptyElement(latin1("path"));
        attribute("class", latin1(look.id));
        attribute("transform", latin1("translate(%1 %2)").arg(number(where.x()), number(where.y())));
        attribute("d", latin1(look.symbol));
        attribute("fill", latin1(look.color));
        attribute("stroke", latin1("#ffffff"));
    }

    void drawShape(const Feature& feature)
    {
        QVector<QPointF> places;
        for (const QPointF& point : feature.points)
            places.append(m_map.place(point));
        if (feature.isArea())
            area(lookOf(feature.kind), places);
        else
            symbol(lookOf(feature.kind), places.first());
    }

    /// Names stand where they hide nothing, as far as there is such a place. Sites come first: the name
    /// of an area finds room more easily.
    void drawLabels()
    {
        QVector<QRectF> taken;
        for (const Feature& feature : m_features) {
            if (!feature.isArea())
                taken.append(around(m_map.place(feature.points.first()), 2 * symbolSize, 2 * symbolSize));
        }
        for (auto feature = m_features.crbegin(); feature != m_features.crend(); ++feature)
            drawLabel(*feature, taken);
    }

    void drawLabel(const Feature& feature, QVector<QRectF>& taken)
    {
        const double width = letterWidth * feature.name.size();
        const QPointF middle = m_map.place(middleOf(feature.points));
        const double aside = feature.isArea() ? 0 : symbolSize + 4 + width / 2;
        const double above = feature.isArea() ? letterHeight : symbolSize + letterHeight;
        // Beside and above the place first, then further away.
        QVector<QPointF> offsets = {{aside, 0}, {-aside, 0}, {0, -above}, {0, above}};
        for (int row = 1; row <= 3; ++row) {
            for (const double side : {aside, -aside, 0.0})
                offsets << QPointF(side, -row * above) << QPointF(side, row * above);
        }
        const auto isFree = [&](const QRectF& room) {
            return m_map.frame().contains(room) && std::none_of(taken.begin(), taken.end(), [&](const QRectF& other) {
                       return other.intersects(room);
                   });
        };
        QRectF room = around(middle + offsets.first(), width, letterHeight);
        for (const QPointF& offset : qAsConst(offsets)) {
            const QRectF candidate = around(middle + offset, width, letterHeight);
            if (isFree(candidate)) {
                room = candidate;
                break;
            }
        }
        taken.append(room);
        m_writer.writeStartElement(latin1("text"));
        attribute("class", latin1("name"));
        attribute("x", room.center().x());
        attribute("y", room.center().y() + 4);
        attribute("text-anchor", latin1("middle"));
        attribute("fill", latin1(lookOf(feature.kind).color));
        // A light edge keeps the name readable on lines.
        attribute("stroke", latin1("#fbfaf6"));
        attribute("stroke-width", latin1("3"));
        attribute("paint-order", latin1("stroke"));
        m_writer.writeCharacters(feature.name);
        m_writer.writeEndElement();
    }

    static QRectF around(QPointF middle, double width, double height)
    {
        return {middle.x() - width / 2, middle.y() - height / 2, width, height};
    }

    void drawScale()
    {
        const Map::Scale scale = m_map.scale();
        const QPointF end = m_map.frame().bottomRight() + QPointF(24, -8);
        const QPointF begin = end;
        const QPointF right = begin + QPointF(std::min(scale.length, legendWidth), 0);
        const QPointF tick(0, 5);
        line(begin, right, "scale", "#333333", 2);
        line(begin - tick, begin + tick, "scale", "#333333", 2);
        line(right - tick, right + tick, "scale", "#333333", 2);
        writeText({(begin.x() + right.x()) / 2, begin.y() - 10}, "middle", lengthText(scale.metres), "scale");
    }

    void drawLegend()
    {
        QPointF place = m_map.frame().topRight() + QPointF(36, 12);
        for (int i = 0; i < static_cast<int>(std::size(looks)); ++i) {
            const auto kind = static_cast<FeatureKind>(i);
            const bool occurs = std::any_of(m_features.begin(), m_features.end(),
                                            [kind](const Feature& feature) { return feature.kind == kind; });
            if (!occurs)
                continue;
            const Look& look = looks[i];
            if (*look.symbol) {
                symbol(look, place);
            } else {
                const QRectF box = around(place, 20, 12);
                area(look, {box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()});
            }
            writeText(place + QPointF(20, 4), "start", latin1(look.legend), "legend");
            place.ry() += legendRow;
        }
    }

    QVector<Feature> m_features;
    Map m_map;
    QXmlStreamWriter m_writer;
};

} // namespace

QByteArray drawingOf(const QVector<Feature>& features, const QString& title)
{
    QByteArray document;
    Drawing(features, document).draw(title);
    return document;
}
