// Reads data/landmarks.tsv and checks every row against the world's towns and borders.
// Thread: any. Throws BuildError naming the row that does not hold.
#pragma once

#include "tools/places/Gazetteer.h"
#include "tools/places/StateRaster.h"

namespace Quorbel::Places {

/// Columns: name, alternates (separated by |), town, state, country (alpha-2), latitude, longitude.
/// Each row's position must lie in its country, its state be one of that country's, its town exist near it.
/// Town and state may be empty.
QList<Entry> readLandmarks(const QString& path, const Gazetteer& gazetteer, const StateRaster& raster);

}  // namespace Quorbel::Places
