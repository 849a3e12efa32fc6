#include "platform/places/map/MapPainter.h"

#include "platform/places/map/MapLabels.h"
#include "platform/places/map/MapPalette.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr double nearestAcross = 1;  // km: the data knows nothing finer
// From the centre to a corner, in km: less than the earth's radius, so that the horizon stays out of sight.
constexpr double farthestCorner = 4700;
constexpr double widening = 2.5;

// How many names make a map worth showing. A lone town on an island or in a desert is shown with what surrounds it,
// not from so far that it becomes a speck; from farther still, one name says too little again.
int fewestLabels(double kilometersAcross)
{
    return kilometersAcross >= 300 && kilometersAcross < 1000 ? 1 : 2;
}

constexpr double statesUpTo = 1200;  // km across; beyond, state lines would be a thicket
constexpr double graticuleFrom = 300;  // km across

const QString attributionText = u"© GeoNames"_s;

constexpr double kilometersPerDegree = MapProjection::earthRadius * M_PI / 180;

// One map being drawn: what it shows, and how.
class Scene {
public:
    Scene(const MapData& data, const MapRequest& request, const IsCancelled& isCancelled)
        : m_data(data)
        , m_request(request)
        , m_isCancelled(isCancelled)
        , m_palette(MapPalette::of(request.dark))
        , m_projection(chooseScale())
        , m_kilometersPerPixel(m_projection.kilometersAcross() / request.size.width() / request.devicePixelRatio)
    {
    }

    MapImage draw();

private:
    MapProjection chooseScale();
    QList<QRectF> reservedBoxes() const;
    QFont font(double size) const;

    void drawLand(QPainter& painter);
    void drawSettlements(QPainter& painter) const;
    void drawRivers(QPainter& painter);
    void drawSea(QPainter& painter) const;
    QPainterPath graticule() const;
    void drawBorders(QPainter& painter);
    void drawLabels(QPainter& painter) const;
    void drawScaleBar(QPainter& painter) const;
    void drawText(QPainter& painter, QPointF baseline, const QFont& font, const QString& text) const;

    const MapData& m_data;
    const MapRequest& m_request;
    const IsCancelled& m_isCancelled;
    const MapPalette& m_palette;
    QList<SeenTown> m_towns{};
    QList<MapLabel> m_labels{};
    MapProjection m_projection;
    double m_kilometersPerPixel;
    bool m_hasLand = false;
};

// Widens until there is something to see, before anything is drawn.
MapProjection Scene::chooseScale()
{
    const auto& size = m_request.size;
    const double farthest = 2 * farthestCorner * size.width() / std::hypot(size.width(), size.height());
    double across = std::clamp(m_request.kilometersAcross, std::min(nearestAcross, farthest), farthest);
    for (;;) {
        const MapProjection projection(m_request.center, size, across);
        m_towns = seenTowns(*m_data.towns, projection);
        m_labels =
            placeLabels(m_towns, projection, m_request.font, m_request.textScale, reservedBoxes(), m_request.direction);
        if (!m_request.widen || m_labels.size() >= fewestLabels(across) || across >= farthest || m_isCancelled())
            return projection;
        across = std::min(across * widening, farthest);
    }
}

QFont Scene::font(double size) const
{
    QFont font = m_request.font;
    font.setPixelSize(std::max(1, int(std::lround(size * m_request.textScale))));
    font.setWeight(QFont::Normal);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

// The marker's, the scale bar's and the credit's.
QList<QRectF> Scene::reservedBoxes() const
{
    const double width = m_request.size.width();
    const double height = m_request.size.height();
    const double scale = m_request.textScale;
    const double credit = QFontMetricsF(font(9)).horizontalAdvance(attributionText) + 16 * scale;
    QList<QRectF> boxes{ QRectF(width / 2 - 10 * scale, height / 2 - 24 * scale, 20 * scale, 28 * scale),
        QRectF(0, height - 24 * scale, std::max(84 * scale, 0.17 * width), 24 * scale),
        QRectF(width - credit, height - 20 * scale, credit, 20 * scale) };
    if (m_request.direction == Qt::RightToLeft)
        for (QRectF& box : boxes)
            box.moveLeft(width - box.right());
    return boxes;
}

MapImage Scene::draw()
{
    const auto pixels = (m_request.size * m_request.devicePixelRatio).toSize();
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(m_request.devicePixelRatio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    using Step = void (*)(Scene&, QPainter&);
    constexpr Step steps[] = {
        [](Scene& scene, QPainter& painter) { scene.drawLand(painter); },
        [](Scene& scene, QPainter& painter) { scene.drawRivers(painter); },
        [](Scene& scene, QPainter& painter) { scene.drawSea(painter); },
        [](Scene& scene, QPainter& painter) { scene.drawBorders(painter); },
        [](Scene& scene, QPainter& painter) { scene.drawLabels(painter); },
        [](Scene& scene, QPainter& painter) { scene.drawScaleBar(painter); },
    };
    for (const auto step : steps) {
        if (m_isCancelled())
            return {};
        step(*this, painter);
    }
    painter.end();
    return { image, m_projection.kilometersAcross(), attributionText };
}

void Scene::drawLand(QPainter& painter)
{
    const auto areas =
        mapAreas(m_data.shores(m_kilometersPerPixel), m_projection, m_request.devicePixelRatio, m_isCancelled);
    m_hasLand = areas.contains(MapFormat::land);
    // Water is a hole in the land, through which the sea will show.
    for (int type = MapFormat::land; type <= MapFormat::pondOnIsland; ++type) {
        painter.setCompositionMode(
            type % 2 == 1 ? QPainter::CompositionMode_SourceOver : QPainter::CompositionMode_DestinationOut);
        painter.fillPath(areas.value(type), m_palette.land);
    }
    drawSettlements(painter);
}

// Patches, as large as that many people need, fading outwards; where they meet they grow together. Water is
// not drawn yet and so stays free of them.
void Scene::drawSettlements(QPainter& painter) const
{
    constexpr double radiusOfThousand = 0.15;  // km
    constexpr double largestRadius = 9;  // km
    constexpr double leastRadius = 0.8;  // points
    constexpr quint32 fewest = 2000;  // people
    QColor faded = m_palette.settled;
    faded.setAlpha(0);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.setPen(Qt::NoPen);
    for (const auto& town : m_towns) {
        const double radius =
            std::min(largestRadius, radiusOfThousand * std::sqrt(town.population / 1000.0)) * m_projection.scale();
        if (town.population < fewest || radius < leastRadius)
            continue;
        QRadialGradient fading(town.at, radius);
        fading.setColorAt(0.5, m_palette.settled);
        fading.setColorAt(1, faded);
        painter.setBrush(fading);
        painter.drawEllipse(town.at, radius, radius);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void Scene::drawRivers(QPainter& painter)
{
    const double across = m_projection.kilometersAcross();
    const int last = across < 250 ? 4 : across < 600 ? 3 : across < 1500 ? 2 : across < 4000 ? 1 : -1;
    const auto rivers =
        mapLines(m_data.rivers(m_kilometersPerPixel), m_projection, m_request.devicePixelRatio, last, m_isCancelled);
    for (auto it = rivers.cbegin(); it != rivers.cend(); ++it) {
        const double width = across > 600 ? 0.7 : it.key() <= 1 ? 1.3 : it.key() == 2 ? 1.0 : 0.8;
        painter.strokePath(it.value(), QPen(m_palette.river, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
}

// Under all that is there already.
void Scene::drawSea(QPainter& painter) const
{
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
    if (!m_hasLand || m_projection.kilometersAcross() >= graticuleFrom)
        painter.strokePath(graticule(), QPen(m_palette.graticule, 0.7));
    painter.fillRect(QRectF(QPointF(), m_request.size), m_palette.sea);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

// Parallels and meridians about a fifth of the image apart.
QPainterPath Scene::graticule() const
{
    const auto stepFor = [this](double kilometers) {
        constexpr double steps[] = { 0.1, 0.2, 0.5, 1, 2, 5, 10, 15 };
        const auto* step = std::find_if(std::begin(steps), std::end(steps) - 1,
            [&](double degrees) { return degrees * kilometers * m_projection.scale() >= 90; });
        return *step;
    };
    const auto& bounds = m_projection.bounds();
    const auto& center = m_projection.center();
    QPainterPath path;
    const auto trace = [&](int pieces, auto position) {
        bool isDown = false;
        for (int i = 0; i <= pieces; ++i) {
            const GeoPoint point = position(double(i) / pieces);
            if (m_projection.isInFront(point.latitude, point.longitude)) {
                const auto at = m_projection.map(point.latitude, point.longitude);
                isDown ? path.lineTo(at) : path.moveTo(at);
                isDown = true;
            } else {
                isDown = false;
            }
        }
    };
    const double parallels = stepFor(kilometersPerDegree);
    const double meridians = stepFor(kilometersPerDegree * std::cos(center.latitude * M_PI / 180));
    for (double y = std::ceil(bounds.south / parallels) * parallels; y <= bounds.north; y += parallels)
        trace(120, [&](double t) { return GeoPoint{ y, center.longitude + std::lerp(bounds.west, bounds.east, t) }; });
    // A whole round needs each meridian once.
    const double east = center.longitude + bounds.east - (bounds.east == 180 ? meridians / 2 : 0);
    for (double x = std::ceil((center.longitude + bounds.west) / meridians) * meridians; x <= east; x += meridians)
        trace(60, [&](double t) { return GeoPoint{ std::lerp(bounds.south, bounds.north, t), x }; });
    return path;
}

void Scene::drawBorders(QPainter& painter)
{
    const int last = m_projection.kilometersAcross() <= statesUpTo ? MapFormat::state : MapFormat::national;
    const auto borders = mapLines(*m_data.borders, m_projection, m_request.devicePixelRatio, last, m_isCancelled);
    QPen pen(m_palette.state, 0.8, Qt::CustomDashLine, Qt::FlatCap, Qt::RoundJoin);
    pen.setDashPattern({ 4, 2.5 });
    painter.strokePath(borders.value(MapFormat::state), pen);
    const double width = m_projection.kilometersAcross() > statesUpTo ? 0.8 : 1.2;
    painter.strokePath(borders.value(MapFormat::national),
        QPen(m_palette.national, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void Scene::drawText(QPainter& painter, QPointF baseline, const QFont& font, const QString& text) const
{
    QPainterPath outline;
    outline.addText(baseline, font, text);
    painter.strokePath(outline, QPen(m_palette.halo, 2.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(outline, m_palette.text);
}

void Scene::drawLabels(QPainter& painter) const
{
    for (const auto& label : m_labels) {
        const double ascent = QFontMetricsF(label.font).ascent();
        drawText(painter, label.box.topLeft() + QPointF(0, ascent), label.font, label.text);
        painter.setPen(QPen(m_palette.halo, 1.2));
        painter.setBrush(m_palette.text);
        painter.drawEllipse(label.dot, 2.2, 2.2);
    }
}

void Scene::drawScaleBar(QPainter& painter) const
{
    constexpr double lengths[] = { 0.1, 0.2, 0.5, 1, 2, 5, 10, 20, 50, 100, 200, 500, 1000 };
    const double most = 0.16 * m_projection.kilometersAcross();
    const auto* length = std::upper_bound(std::begin(lengths), std::end(lengths), most) - 1;
    const double kilometers = *std::max(length, std::begin(lengths));
    const double bottom = m_request.size.height() - 7;
    const auto text = kilometers < 1 ? u"%1 m"_s.arg(kilometers * 1000) : u"%1 km"_s.arg(kilometers);
    const bool isAtRight = m_request.direction == Qt::RightToLeft;
    const auto left = [&](double width) { return isAtRight ? m_request.size.width() - 8 - width : 8; };
    const double barWidth = kilometers * m_projection.scale();
    const QLineF bar(left(barWidth), bottom, left(barWidth) + barWidth, bottom);
    painter.setPen(QPen(m_palette.halo, 3.2, Qt::SolidLine, Qt::SquareCap));
    painter.drawLine(bar);
    painter.setPen(QPen(m_palette.text, 1.2, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(bar);
    drawText(painter, QPointF(left(QFontMetricsF(font(9)).horizontalAdvance(text)), bottom - 4), font(9), text);
}

}  // namespace

MapImage drawMap(const MapData& data, const MapRequest& request, const IsCancelled& isCancelled)
{
    return Scene(data, request, isCancelled).draw();
}

}  // namespace Quorbel
