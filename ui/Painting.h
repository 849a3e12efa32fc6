// Shapes that several controls draw. Thread: the main thread.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QRectF>

namespace Quorbel {

struct Theme;

/// A filled rounded rectangle; its border, if any, lies inside `rect`.
void paintBox(QPainter& painter, const QRectF& rect, qreal radius, const QColor& fill, const QPen& border);
/// A soft shadow below a rounded rectangle, within the 25 pixels around it. For menus, notices and dropdowns.
void paintShadow(QPainter& painter, const QRectF& box, qreal radius, const QColor& shadow);

struct FieldState {
    bool enabled = true;
    bool focused = false;
    bool edited = false;
    qreal hover = 0;  ///< 0…1
};
/// Ground and border of every field-like control, as its state asks.
void paintFieldFrame(QPainter& painter, const QRectF& rect, const FieldState& state, const Theme& theme);

}  // namespace Quorbel
