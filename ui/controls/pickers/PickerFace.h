// How a closed picker looks: a field with two small arrows at its end.
// Thread: the main thread. A drawing.
#pragma once

#include "ui/controls/theme/Painting.h"

#include <QString>

namespace Quorbel::PickerFace {

/// With the painter's font; a text without room ends in "…".
void paint(QPainter& painter, const QRectF& rect, const QString& text, const QColor& ink, const FieldState& state,
    const Theme& theme);
/// Pixels that a text has there.
int textRoom(int width);

}  // namespace Quorbel::PickerFace
