// A small map image around a point, drawn on this machine from the files of share/quorbel/places.
// Thread: render() from the main thread; drawing on a worker; the answer on the main thread.
#pragma once

#include "platform/places/PlaceProvider.h"

#include <QImage>
#include <QSizeF>

namespace Quorbel {

struct MapRequest {
    GeoPoint centre{};
    QSizeF size{};  ///< device-independent pixels
    qreal devicePixelRatio = 1;
    double kilometresAcross = 150;
    bool dark = false;
    bool widen = true;  ///< zooms out until there is something to see
};

struct MapImage {
    QImage image{};  ///< with its device pixel ratio set; no marker on it
    double kilometresAcross = 0;  ///< what was drawn, after widening
    QString attribution{};  ///< to show on the map; empty when no licence asks for it
};

class MapRenderer {
public:
    virtual ~MapRenderer() = default;
    /// noData when the map files are missing.
    virtual PlaceToken render(const MapRequest& request, PlaceCallback<MapImage> answer) = 0;
};

}  // namespace Quorbel
