// Soft drop shadows under rounded rectangles. Thread: the main thread.
#pragma once

#include <QRectF>

class QPainter;

namespace Quorbel {

struct Theme;

enum class Shadow {
    notice,  ///< notices that float over the window
    dropdown,  ///< lists under a field; stays within the 25 pixels around the rectangle
    sheet,  ///< sheets
    photo,  ///< the photo of the preview column, and its cards
};

/// Draws the shadow that a rounded rectangle casts, not the rectangle itself; nothing under it is spared, so draw
/// what is opaque afterwards. Sizes in device-independent pixels. Blurred once a kind, radius and scale.
void paintShadow(QPainter& painter, const QRectF& rect, qreal radius, Shadow kind, const Theme& theme);

}  // namespace Quorbel
