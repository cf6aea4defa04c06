#include "plan2svg/drawing.h"

#include "plan2svg/map.h"

#include <QtCore/QXmlStreamWriter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// All lengths are those of the picture.
constexpr double mapLeft = 76;
constexpr double mapTop = 48;
constexpr double mapWidth = 720;
constexpr double legendWidth = 176;
constexpr double legendRow = 24;
constexpr double symbolSize = 7;
constexpr double leastAreaSize = 4; // smaller ones would not be seen
constexpr double letterWidth = 7;   // of a label, roughly
constexpr double letterHeight = 12;
constexpr double nameRow = 14; // from one name to that below
constexpr int maxNameLetters = 30;
constexpr int maxTitleLetters = 80;

/// How a kind of feature looks, in the order of the enumeration.
struct Look {
    FeatureKind kind;
    const char* cssClass; ///< of its shapes in the document
    const char* legend;
    const char* color;
    const char* dashes; ///< of an outline
    double lineWidth;   ///< of an outline
    const char* symbol; ///< the path of a site's symbol around its place, empty for areas
};
constexpr Look looks[] = {
    {FeatureKind::AreaOfInterest, "area-of-interest", "Area of interest", "#1f6fb4", "", 1.5, ""},
    {FeatureKind::DeploymentArea, "deployment-area", "Deployment area", "#2e8b57", "8 4", 1.5, ""},
    // Results often lie on the very area they were asked for: heavy dots show on its line.
    {FeatureKind::ResultArea, "result-area", "Result", "#c9710c", "3 5", 3, ""},
    {FeatureKind::Station, "station", "Station", "#333333", "", 0, "M0-7L7 0L0 7L-7 0Z"},
    {FeatureKind::Receiver, "receiver", "Receiver", "#1f6fb4", "", 0, "M-6-6H6V6H-6Z"},
    {FeatureKind::DirectionFinder, "direction-finder", "Direction finder", "#7b3fa0", "", 0,
     "M-7 0a7 7 0 1 0 14 0a7 7 0 1 0-14 0"},
    {FeatureKind::Emitter, "emitter", "Emitter", "#c0282d", "", 0, "M0-8L7 5H-7Z"},
};

constexpr bool looksMatchTheEnumeration()
{
    int i = 0;
    for (const Look& look : looks) {
        if (static_cast<int>(look.kind) != i++)
            return false;
    }
    return i == static_cast<int>(FeatureKind::Emitter) + 1;
}
static_assert(looksMatchTheEnumeration());

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

/// \a text, or its beginning and an ellipsis when it has more than \a most letters.
QString shortened(const QString& text, int most)
{
    if (text.size() <= most)
        return text;
    const int end = text.at(most - 2).isHighSurrogate() ? most - 2 : most - 1; // no half of a letter
    return text.left(end) + QChar(0x2026);
}

QRectF around(QPointF middle, double width, double height)
{
    return {middle.x() - width / 2, middle.y() - height / 2, width, height};
}

QVector<QPointF> cornersOf(const QRectF& box)
{
    return {box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()};
}

QRectF boundsOf(const QVector<QPointF>& points)
{
    const auto [left, right] = std::minmax_element(points.begin(), points.end(),
                                                   [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); });
    const auto [top, bottom] = std::minmax_element(points.begin(), points.end(),
                                                   [](const QPointF& a, const QPointF& b) { return a.y() < b.y(); });
    return {QPointF(left->x(), top->y()), QPointF(right->x(), bottom->y())};
}

/// A point inside the polygon, which the middle of its corners need not be: the middle of the widest part
/// that the polygon has at the height of that one.
QPointF pointInside(const QVector<QPointF>& corners)
{
    QPointF middle;
    for (const QPointF& corner : corners)
        middle += corner / static_cast<double>(corners.size());
    QVector<double> crossings; // of the outline with the horizontal line through the middle
    for (int i = 0; i < corners.size(); ++i) {
        const QPointF from = corners.at(i);
        const QPointF to = corners.at((i + 1) % corners.size());
        if ((from.y() > middle.y()) != (to.y() > middle.y()))
            crossings.append(from.x() + (middle.y() - from.y()) / (to.y() - from.y()) * (to.x() - from.x()));
    }
    std::sort(crossings.begin(), crossings.end());
    double widest = 0;
    for (int i = 0; i + 1 < crossings.size(); i += 2) {
        const double width = crossings.at(i + 1) - crossings.at(i);
        if (width > widest) {
            widest = width;
            middle.setX(crossings.at(i) + width / 2);
        }
    }
    return middle;
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
        const double height = std::max(m_map.frame().bottom(), mapTop + (std::size(looks) + 1) * legendRow) + 48;
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
        writeText({mapLeft, mapTop - 18}, "start", shortened(title, maxTitleLetters), "heading", "18");

        drawGrid();
        m_writer.writeStartElement(latin1("g"));
        attribute("clip-path", latin1("url(#map)"));
        for (const Feature& feature : std::as_const(m_features))
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

    void rectangle(const QRectF& where, const char* cssClass, const char* fill, const char* stroke)
    {
        m_writer.writeEmptyElement(latin1("rect"));
        attribute("x", where.x());
        attribute("y", where.y());
        attribute("width", where.width());
        attribute("height", where.height());
        if (!cssClass)
            return;
        attribute("class", latin1(cssClass));
        attribute("fill", latin1(fill));
        attribute("stroke", latin1(stroke));
    }

    void line(QPointF from, QPointF to, const char* cssClass, const char* color, double width)
    {
        m_writer.writeEmptyElement(latin1("line"));
        attribute("class", latin1(cssClass));
        attribute("x1", from.x());
        attribute("y1", from.y());
        attribute("x2", to.x());
        attribute("y2", to.y());
        attribute("stroke", latin1(color));
        attribute("stroke-width", width);
    }

    void writeText(QPointF where, const char* anchor, const QString& value, const char* cssClass,
                   const char* size = nullptr)
    {
        m_writer.writeStartElement(latin1("text"));
        attribute("class", latin1(cssClass));
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
        const QRectF earth = m_map.earth();
        rectangle(frame, "map", "#fbfaf6", "#555555");
        const Map::Lines meridians = m_map.meridians();
        for (const double longitude : meridians.degrees) {
            const double x = m_map.place({longitude, 0}).x();
            line({x, earth.top()}, {x, earth.bottom()}, "meridian", "#d8d4c8", 1);
            writeText({x, frame.bottom() + 18}, "middle", degrees(longitude, meridians.step, "E", "W"), "degrees");
        }
        const Map::Lines parallels = m_map.parallels();
        for (const double latitude : parallels.degrees) {
            const double y = m_map.place({0, latitude}).y();
            line({earth.left(), y}, {earth.right(), y}, "parallel", "#d8d4c8", 1);
            writeText({frame.left() - 6, y + 4}, "end", degrees(latitude, parallels.step, "N", "S"), "degrees");
        }
    }

    /// The whole name of a shape, which viewers show when the pointer rests on it.
    void writeTitle(const QString& name)
    {
        if (!name.isEmpty())
            text("title", name);
    }

    void area(const Look& look, const QVector<QPointF>& corners, const QString& name = QString())
    {
        QStringList points;
        for (const QPointF& corner : corners)
            points.append(latin1("%1,%2").arg(number(corner.x()), number(corner.y())));
        m_writer.writeStartElement(latin1("polygon"));
        attribute("class", latin1(look.cssClass));
        attribute("points", points.join(QLatin1Char(' ')));
        attribute("fill", latin1(look.color));
        attribute("fill-opacity", latin1("0.12"));
        attribute("stroke", latin1(look.color));
        attribute("stroke-width", look.lineWidth);
        if (*look.dashes)
            attribute("stroke-dasharray", latin1(look.dashes));
        writeTitle(name);
        m_writer.writeEndElement();
    }

    void symbol(const Look& look, QPointF where, const QString& name = QString())
    {
        m_writer.writeStartElement(latin1("path"));
        attribute("class", latin1(look.cssClass));
        attribute("transform", latin1("translate(%1 %2)").arg(number(where.x()), number(where.y())));
        attribute("d", latin1(look.symbol));
        attribute("fill", latin1(look.color));
        attribute("stroke", latin1("#ffffff"));
        writeTitle(name);
        m_writer.writeEndElement();
    }

    QVector<QPointF> placesOf(const Feature& feature) const
    {
        QVector<QPointF> places;
        for (const QPointF& point : feature.points)
            places.append(m_map.place(point));
        return places;
    }

    /// The room that a shape takes.
    QRectF shapeOf(const Feature& feature) const
    {
        const QRectF bounds = boundsOf(placesOf(feature));
        const double least = feature.isArea() ? leastAreaSize : 2 * symbolSize;
        return around(bounds.center(), std::max(bounds.width(), least), std::max(bounds.height(), least));
    }

    void drawShape(const Feature& feature)
    {
        const Look& look = lookOf(feature.kind);
        const QVector<QPointF> places = placesOf(feature);
        const QRectF bounds = boundsOf(places);
        if (!feature.isArea())
            symbol(look, places.first(), feature.name);
        else if (std::min(bounds.width(), bounds.height()) < leastAreaSize)
            area(look, cornersOf(shapeOf(feature)), feature.name);
        else
            area(look, places, feature.name);
    }

    /// Names stand where they hide nothing. Sites come first: the name of an area finds room more easily.
    void drawLabels()
    {
        QVector<QRectF> taken;
        for (const Feature& feature : std::as_const(m_features)) {
            const QRectF shape = shapeOf(feature);
            if (std::max(shape.width(), shape.height()) <= 2 * symbolSize)
                taken.append(shape);
        }
        for (auto feature = m_features.crbegin(); feature != m_features.crend(); ++feature)
            drawLabel(*feature, taken);
    }

    /// A name that finds no room is left out; the shape's title tells it.
    void drawLabel(const Feature& feature, QVector<QRectF>& taken)
    {
        const QString name = shortened(feature.name, maxNameLetters);
        if (name.isEmpty())
            return;
        const double width = letterWidth * static_cast<double>(name.size());
        const QRectF shape = shapeOf(feature);
        const bool isInside = feature.isArea() && shape.width() >= width && shape.height() >= letterHeight;
        const QPointF middle = isInside ? pointInside(placesOf(feature)) : shape.center();
        const auto isFree = [&](const QRectF& room) {
            return (isInside || !room.intersects(shape))
                && std::none_of(taken.begin(), taken.end(),
                                [&room](const QRectF& other) { return other.intersects(room); });
        };
        const QVector<QPointF> offsets = isInside ? offsetsInside() : offsetsBeside(shape.size(), width);
        for (const QPointF& offset : offsets) {
            const QRectF room = insideTheFrame(around(middle + offset, width, letterHeight));
            if (isFree(room)) {
                taken.append(room);
                writeName(room, offset.x(), name, lookOf(feature.kind).color);
                return;
            }
        }
    }

    /// From the middle of an area to those of its name: as near as possible.
    static QVector<QPointF> offsetsInside()
    {
        QVector<QPointF> offsets = {{0, 0}};
        for (int row = 1; row <= 3; ++row)
            offsets << QPointF(0, -row * nameRow) << QPointF(0, row * nameRow);
        return offsets;
    }

    /// From the middle of a shape to those of its name: beside, above and below it first, then further away.
    static QVector<QPointF> offsetsBeside(QSizeF shape, double width)
    {
        const double aside = shape.width() / 2 + 4 + width / 2;
        const double above = shape.height() / 2 + letterHeight;
        QVector<QPointF> offsets = {{aside, 0}, {-aside, 0}};
        for (int row = 0; row < 4; ++row) {
            for (const double side : {0.0, aside, -aside}) {
                const double away = above + row * nameRow;
                offsets << QPointF(side, -away) << QPointF(side, away);
            }
        }
        return offsets;
    }

    QRectF insideTheFrame(QRectF room) const
    {
        const QRectF frame = m_map.frame();
        room.moveLeft(std::clamp(room.left(), frame.left(), frame.right() - room.width()));
        room.moveTop(std::clamp(room.top(), frame.top(), frame.bottom() - room.height()));
        return room;
    }

    /// \a side is positive on the right of the shape, negative on its left. The width of the letters is a
    /// guess, so a name beside its shape starts or ends there.
    void writeName(const QRectF& room, double side, const QString& name, const char* color)
    {
        m_writer.writeStartElement(latin1("text"));
        attribute("class", latin1("name"));
        attribute("x", side > 0 ? room.left() : side < 0 ? room.right() : room.center().x());
        attribute("y", room.center().y() + 4);
        attribute("text-anchor", latin1(side > 0 ? "start" : side < 0 ? "end" : "middle"));
        attribute("fill", latin1(color));
        // A light edge keeps the name readable on lines.
        attribute("stroke", latin1("#fbfaf6"));
        attribute("stroke-width", latin1("3"));
        attribute("paint-order", latin1("stroke"));
        m_writer.writeCharacters(name);
        m_writer.writeEndElement();
    }

    void drawScale()
    {
        const Map::Scale scale = m_map.scale(legendWidth);
        const QPointF begin = m_map.frame().bottomRight() + QPointF(24, -8);
        const QPointF right = begin + QPointF(scale.length, 0);
        const QPointF tick(0, 5);
        line(begin, right, "scale", "#333333", 2);
        line(begin - tick, begin + tick, "scale", "#333333", 2);
        line(right - tick, right + tick, "scale", "#333333", 2);
        writeText({(begin.x() + right.x()) / 2, begin.y() - 10}, "middle", lengthText(scale.metres), "scale");
    }

    void drawLegend()
    {
        QPointF place = m_map.frame().topRight() + QPointF(36, 12);
        for (const Look& look : looks) {
            const bool occurs = std::any_of(m_features.begin(), m_features.end(),
                                            [&look](const Feature& feature) { return feature.kind == look.kind; });
            if (!occurs)
                continue;
            if (*look.symbol)
                symbol(look, place);
            else
                area(look, cornersOf(around(place, 20, 12)));
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
