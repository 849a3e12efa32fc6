// Writes places.db, the file that place search and reverse look-up read.
// Thread: any. Throws BuildError. The same input gives the same bytes.
#pragma once

#include "tools/places/Gazetteer.h"
#include "tools/places/StateRaster.h"

namespace Quorbel::Places {

/// Replaces the file at the path.
void writePlaceFile(const QString& path, const Gazetteer& gazetteer, const StateRaster& raster);

}  // namespace Quorbel::Places
