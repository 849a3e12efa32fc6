// How a HEIF or AVIF file says that stored pixels become the picture: cut, turned, mirrored, in the file's order.
// Thread: the one that owns the device; the steps are plain values.
#pragma once

#include "platform/images/gate/HeifItems.h"

#include <QIODevice>
#include <QImage>
#include <QList>
#include <QRectF>

namespace Quorbel {

struct HeifTransformation {
    enum class Kind { cut, turn, mirror };
    Kind kind = Kind::turn;
    int quarterTurns = 0;  ///< counterclockwise
    bool upsideDown = false;  ///< mirrored top to bottom; otherwise left to right
    QSizeF size{};  ///< of what stays of the picture
    QPointF offset{};  ///< of its middle from the picture's

    /// Those of an item. The device's position is put back to the start.
    static QList<HeifTransformation> of(QIODevice& device, const HeifItems& items, quint32 item);

    /// The picture after this step. What would leave nothing is not done.
    QImage applied(const QImage& image) const;
};

}  // namespace Quorbel
