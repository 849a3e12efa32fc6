// Shorelines, lakes and rivers as the GSHHG package for map tools has them: netCDF files, divided into bins, the
// shorelines cut into segments at the bins' edges. Here the segments become closed polygons again, one set a bin.
// Thread: any. Throws BuildError when a file is not of that form.
#pragma once

#include "tools/map/MapWriter.h"

namespace Quorbel::MapBuild {

/// Polygons of MapFormat::ShoreType.
MapWriter readShores(const QString& path);
/// Permanent rivers, types 0 (wide) to 4 (minor).
MapWriter readRivers(const QString& path);

}  // namespace Quorbel::MapBuild
