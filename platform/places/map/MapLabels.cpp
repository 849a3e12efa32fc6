#include "platform/places/map/MapLabels.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>

namespace Quorbel {

namespace {

constexpr int mostTowns = 6000;  // read for one image
constexpr int fewestInBin = 8;
constexpr int mostTried = 400;  // that a name is measured for

constexpr double ranksPerPowerOfTen = 30;  // see the towns' file
constexpr int largeRank = 171;  // half a million people, or a capital of 23,000
constexpr int middleRank = 147;  // 80,000

constexpr double gap = 4;  // points between a dot and its name
constexpr double marginAcross = 7;  // points between names
constexpr double marginAbove = 2;
constexpr double marginReserved = 3;
constexpr double pointsPerLabel = 46;  // of width: more names would be a crowd

QFont labelFont(QFont font, int rank, qreal textScale)
{
    const int size = rank >= largeRank ? 12 : rank >= middleRank ? 11 : 10;
    font.setPixelSize(std::max(1, int(std::lround(size * textScale))));
    font.setWeight(rank >= largeRank ? QFont::DemiBold : QFont::Normal);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

// A large place counts for a near one up to a point: the city, not its suburb.
double nearness(const SeenTown& town, double kilometersAcross)
{
    return town.rank / ranksPerPowerOfTen - town.distance / (0.02 * kilometersAcross);
}

// Puts the place at the centre before all others.
void putNearestFirst(QList<SeenTown>& towns, double kilometersAcross)
{
    const double reach = 0.12 * kilometersAcross;
    auto best = towns.end();
    for (auto town = towns.begin(); town != towns.end(); ++town) {
        if (town->distance <= reach
            && (best == towns.end() || nearness(*town, kilometersAcross) > nearness(*best, kilometersAcross)))
            best = town;
    }
    if (best != towns.end())
        std::rotate(towns.begin(), best, best + 1);
}

// Where a name may stand, the best place first.
std::array<QRectF, 6> candidates(
    const QPointF& dot, const QSizeF& text, const QPointF& center, qreal textScale, Qt::LayoutDirection direction)
{
    const double w = text.width();
    const double h = text.height();
    const double away = gap * textScale + 1;
    const double besideMarker = 14 * textScale;
    std::array<QRectF, 6> places{ QRectF(dot.x() + away, dot.y() - h / 2, w, h),
        QRectF(dot.x() - away - w, dot.y() - h / 2, w, h), QRectF(dot.x() - w / 2, dot.y() + away - 2, w, h),
        QRectF(dot.x() - w / 2, dot.y() - away + 2 - h, w, h),
        QRectF(center.x() + besideMarker, center.y() - h - 2, w, h),
        QRectF(center.x() - besideMarker - w, center.y() - h - 2, w, h) };
    if (direction == Qt::RightToLeft) {
        std::swap(places[0], places[1]);
        std::swap(places[4], places[5]);
    }
    return places;
}

bool touchesAny(const QRectF& box, const QList<QRectF>& others, double across, double above)
{
    const auto wide = box.adjusted(-across, -above, across, above);
    return std::any_of(others.begin(), others.end(), [&](const QRectF& other) { return other.intersects(wide); });
}

}  // namespace

QList<SeenTown> seenTowns(const MapFile& file, const MapProjection& projection)
{
    const auto bins = seenBins(file, projection);
    const int most = std::max<int>(fewestInBin, mostTowns / std::max<int>(1, int(bins.size())));
    const QRectF around = QRectF(QPointF(), projection.size()).adjusted(-40, -40, 40, 40);
    QList<SeenTown> towns;
    for (const auto& bin : bins) {
        int left = most;
        file.forEachTown(bin.number, [&](const MapTown& town) {
            const double latitude = bin.south + town.y * bin.degreesPerUnit;
            const double longitude = projection.center().longitude + bin.west + town.x * bin.degreesPerUnit;
            const auto at = projection.map(latitude, longitude);
            if (around.contains(at) && projection.isInFront(latitude, longitude)) {
                towns.append({ at, projection.kilometersTo(latitude, longitude), town.rank, town.flags, town.population,
                    QString::fromUtf8(town.name) });
            }
            return --left > 0;
        });
    }
    std::stable_sort(towns.begin(), towns.end(), [](const SeenTown& a, const SeenTown& b) { return a.rank > b.rank; });
    return towns;
}

QList<MapLabel> placeLabels(QList<SeenTown> towns, const MapProjection& projection, const QFont& font, qreal textScale,
    const QList<QRectF>& reserved, Qt::LayoutDirection direction)
{
    const QRectF image(QPointF(), projection.size());
    const QRectF room = image.adjusted(4, 2, -4, -2);
    const double besideCenter = 30 * textScale;
    const auto most = qsizetype(std::max(2.0, image.width() / (pointsPerLabel * textScale)));
    putNearestFirst(towns, projection.kilometersAcross());

    QList<QRectF> taken;
    QList<MapLabel> labels;
    QSet<QString> names;
    int tried = 0;
    for (const auto& town : towns) {
        if (labels.size() >= most || tried > mostTried)
            break;
        if (!room.contains(town.at) || names.contains(town.name))
            continue;
        ++tried;
        const auto written = labelFont(font, town.rank, textScale);
        const QFontMetricsF metrics(written);
        const QSizeF size(metrics.horizontalAdvance(town.name), metrics.height());
        const auto places = candidates(town.at, size, image.center(), textScale, direction);
        const bool isAtCenter = QLineF(town.at, image.center()).length() < besideCenter;
        const QRectF dot(town.at - QPointF(3, 3), QSizeF(6, 6));
        const auto isFree = [&](const QRectF& box) {
            // What is reserved may lie over the dot: the marker does, at the centre.
            return room.contains(box) && !touchesAny(box, reserved, marginReserved, 0)
                && !touchesAny(box.united(dot), taken, marginAcross, marginAbove);
        };
        const auto* const end = places.data() + (isAtCenter ? 6 : 4);
        const auto* const place = std::find_if(places.data(), end, isFree);
        if (place == end)
            continue;
        taken.append(place->united(dot));
        names.insert(town.name);
        labels.append({ town.name, written, *place, town.at });
    }
    return labels;
}

}  // namespace Quorbel
