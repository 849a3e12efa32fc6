// What the map writes names at: towns of the GeoNames table and, where there are none, landmarks of ours.
// Thread: any. Throws BuildError.
#pragma once

#include "tools/map/MapWriter.h"

namespace Quorbel::MapBuild {

/// From cities500.txt and landmarks.tsv.
MapWriter readTowns(const QString& cities, const QString& landmarks);

}  // namespace Quorbel::MapBuild
