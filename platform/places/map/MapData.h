// The map files of one data folder, opened together.
// Thread: any; nothing changes once opened.
#pragma once

#include "platform/places/map/MapFile.h"
#include "platform/places/map/MapProjection.h"

#include <QList>

namespace Quorbel {

struct MapData {
    /// Null when one of the files is missing or no map file.
    static std::shared_ptr<const MapData> open(const QString& folder);

    /// The coarsest shores and rivers that still look exact at so many kilometres a pixel.
    const MapFile& shores(double kilometersPerPixel) const;
    const MapFile& rivers(double kilometersPerPixel) const;

    std::unique_ptr<const MapFile> shoresHigh{};
    std::unique_ptr<const MapFile> shoresMiddle{};
    std::unique_ptr<const MapFile> shoresLow{};
    std::unique_ptr<const MapFile> riversHigh{};
    std::unique_ptr<const MapFile> riversLow{};
    std::unique_ptr<const MapFile> borders{};
    std::unique_ptr<const MapFile> towns{};
};

/// A bin that the image may show, and how its units become degrees.
struct SeenBin {
    int number = 0;
    double south = 0;
    double west = 0;  ///< east of the centre, degrees
    double degreesPerUnit = 0;
};
QList<SeenBin> seenBins(const MapFile& file, const MapProjection& projection);

}  // namespace Quorbel
