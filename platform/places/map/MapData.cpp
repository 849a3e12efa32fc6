#include "platform/places/map/MapData.h"

#include <cmath>

namespace Quorbel {

std::shared_ptr<const MapData> MapData::open(const QString& folder)
{
    using MapFormat::Kind;
    auto data = std::make_shared<MapData>();
    const struct {
        const char* name;
        Kind kind;
        std::unique_ptr<const MapFile>& file;
    } files[] = {
        { "gshhg-shores-high.map", Kind::shore, data->shoresHigh },
        { "gshhg-shores-middle.map", Kind::shore, data->shoresMiddle },
        { "gshhg-shores-low.map", Kind::shore, data->shoresLow },
        { "gshhg-rivers-high.map", Kind::rivers, data->riversHigh },
        { "gshhg-rivers-low.map", Kind::rivers, data->riversLow },
        { "borders.map", Kind::borders, data->borders },
        { "towns.map", Kind::towns, data->towns },
    };
    for (const auto& [name, kind, file] : files) {
        file = MapFile::open(folder + u'/' + QLatin1String(name), kind);
        if (!file)
            return nullptr;
    }
    return data;
}

const MapFile& MapData::shores(double kilometersPerPixel) const
{
    // The sources leave out what is smaller than 0.2, 1 and 5 km.
    if (kilometersPerPixel < 0.7)
        return *shoresHigh;
    return kilometersPerPixel < 3 ? *shoresMiddle : *shoresLow;
}

const MapFile& MapData::rivers(double kilometersPerPixel) const
{
    return kilometersPerPixel < 1.5 ? *riversHigh : *riversLow;
}

QList<SeenBin> seenBins(const MapFile& file, const MapProjection& projection)
{
    const auto& bounds = projection.bounds();
    const double degrees = file.degrees();
    const double halfDiagonal = M_SQRT2 * degrees / 2 * M_PI / 180 * MapProjection::earthRadius;
    QList<SeenBin> seen;
    for (int row = 0; row < file.rows(); ++row) {
        const double south = file.south(row * file.columns());
        if (south > bounds.north || south + degrees < bounds.south)
            continue;
        for (int column = 0; column < file.columns(); ++column) {
            const int bin = row * file.columns() + column;
            const double middle = file.west(bin) + degrees / 2;
            const double west = wrappedDegrees(middle - projection.center().longitude) - degrees / 2;
            const bool isWithin = west <= bounds.east && west + degrees >= bounds.west;
            const double reach = 1.1 * projection.radius() + halfDiagonal;
            if (isWithin && projection.kilometersTo(south + degrees / 2, middle) <= reach)
                seen.append({ bin, south, west, degrees / MapFormat::binUnits });
        }
    }
    return seen;
}

}  // namespace Quorbel
