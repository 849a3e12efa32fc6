// Which towns a map names, and where the names stand.
// Thread: any; uses fonts, so there must be a QGuiApplication.
#pragma once

#include "platform/places/map/MapData.h"

#include <QFont>
#include <QPointF>
#include <QRectF>

namespace Quorbel {

struct SeenTown {
    QPointF at{};  ///< in points of the image
    double distance = 0;  ///< km from the centre
    quint8 rank = 0;
    quint8 flags = 0;
    quint32 population = 0;
    QString name{};
};

/// Those in the image and a little around it, the highest rank first. Wide images get only each region's largest.
QList<SeenTown> seenTowns(const MapFile& file, const MapProjection& projection);

struct MapLabel {
    QString text{};
    QFont font{};
    QRectF box{};  ///< of the text
    QPointF dot{};
};

/// Names that touch neither each other nor the reserved boxes nor the image's edge. The town under the centre comes
/// first, then the others by rank. `textScale` makes all of it larger. Beside its dot a name stands where `direction`
/// leads to, if it can.
QList<MapLabel> placeLabels(QList<SeenTown> towns, const MapProjection& projection, const QFont& font, qreal textScale,
    const QList<QRectF>& reserved, Qt::LayoutDirection direction = Qt::LeftToRight);

}  // namespace Quorbel
