// A small map image around a point, drawn on this machine from the files of share/quorbel/places.
// Thread: render() from the main thread; drawing on a worker; the answer on the main thread.
#pragma once

#include "platform/places/search/PlaceProvider.h"

#include <QFont>
#include <QImage>
#include <QSizeF>

namespace Quorbel {

struct MapRequest {
    GeoPoint center{};
    QSizeF size{};  ///< device-independent pixels
    qreal devicePixelRatio = 1;
    double kilometersAcross = 150;
    bool dark = false;
    QFont font{};  ///< its family; the sizes are the map's own
    qreal textScale = 1;  ///< how much larger than at the desktop's normal font size
    Qt::LayoutDirection direction = Qt::LeftToRight;  ///< names stand after their dots, the scale in the corner before
    bool widen = true;  ///< zooms out until there is something to see
};

struct MapImage {
    QImage image{};  ///< with its device pixel ratio set; no marker on it
    double kilometersAcross = 0;  ///< what was drawn, after widening
    QString attribution{};  ///< to show on the map, bottom right (left where one reads from there), where room is left
                            ///< for it
};

class MapRenderer {
public:
    virtual ~MapRenderer() = default;
    /// Answers later, never within the call: noData when the map files are missing or the request asks for nothing
    /// (no size, no valid centre). Requests are drawn in order, one at a time.
    virtual PlaceToken render(const MapRequest& request, PlaceCallback<MapImage> answer) = 0;
};

/// From the map files in the data folder, share/quorbel/places.
std::unique_ptr<MapRenderer> makeMapRenderer(const QString& dataFolder);

}  // namespace Quorbel
