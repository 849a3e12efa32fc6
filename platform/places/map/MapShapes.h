// What of a map file an image shows, as paths to fill or to draw.
// Thread: any.
#pragma once

#include "platform/places/map/MapData.h"

#include <QMap>
#include <QPainterPath>

#include <functional>

namespace Quorbel {

/// Paths by type, in points of the image. Nothing is in them that the projection's bounds leave out, and no detail
/// that a pixel of the given density (pixels a point) cannot show. Both stop early when asked to.
using MapPaths = QMap<int, QPainterPath>;
using IsCancelled = std::function<bool()>;

/// Polygons, to be filled with Qt::WindingFill: those of neighbouring bins join without a seam.
MapPaths mapAreas(const MapFile& file, const MapProjection& projection, qreal density, const IsCancelled& isCancelled);
/// Lines of the types up to `last`.
MapPaths mapLines(
    const MapFile& file, const MapProjection& projection, qreal density, int last, const IsCancelled& isCancelled);

}  // namespace Quorbel
