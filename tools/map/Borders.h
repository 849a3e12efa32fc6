// National and state lines out of a geopackage of state polygons: the edges that two polygons share.
// Thread: any. Throws BuildError.
#pragma once

#include "tools/map/MapWriter.h"

namespace Quorbel::MapBuild {

/// Lines of MapFormat::BorderType.
MapWriter readBorders(const QString& geopackage);

}  // namespace Quorbel::MapBuild
