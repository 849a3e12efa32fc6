// Draws one map image from the map's data. Pure: the same request gives the same pixels.
// Thread: any; uses fonts, so there must be a QGuiApplication.
#pragma once

#include "platform/places/map/MapData.h"
#include "platform/places/map/MapRenderer.h"
#include "platform/places/map/MapShapes.h"

namespace Quorbel {

/// The image is null when it was cancelled half-way.
MapImage drawMap(const MapData& data, const MapRequest& request, const IsCancelled& isCancelled);

}  // namespace Quorbel
