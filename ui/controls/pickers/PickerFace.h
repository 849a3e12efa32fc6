// How a closed picker looks, a field with two small arrows at its end, and which keys open it.
// Thread: the main thread.
#pragma once

#include "ui/controls/theme/Painting.h"

#include <QString>

class QKeyEvent;

namespace Quorbel::PickerFace {

/// With the painter's font; a text without room ends in "…".
void paint(QPainter& painter, const QRectF& rect, const QString& text, const QColor& ink, const FieldState& state,
    const Theme& theme);
/// Up, Down and Return; Space clicks any button.
bool isOpenedBy(const QKeyEvent& event);
/// Pixels that a text has there.
int textRoom(int width);

}  // namespace Quorbel::PickerFace
