// Shapes that several controls draw. Thread: the main thread.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QRectF>

class QWidget;

namespace Quorbel {

struct Theme;

/// A line of one pixel in dashes.
QPen dashedPen(const QColor& color);
/// A filled rounded rectangle; its border, if any, lies inside `rect`.
void paintBox(QPainter& painter, const QRectF& rect, qreal radius, const QColor& fill, const QPen& border);
/// Gives a translucent popup on X11 the shape of a rounded rectangle: where nothing composes windows, what is
/// transparent in one is black. The pixels that smooth the corners stay within the shape. To be called at each resize.
void cutCorners(QWidget& popup, qreal radius);
/// Paints the ground of a popup whose corners were cut. Without a compositor the half covered pixels of the edge would
/// be blended with black: they lie on the colour of the edge instead.
void paintCutBox(QPainter& painter, const QRect& rect, qreal radius, const QColor& fill, const QColor& edge);

struct FieldState {
    bool enabled = true;
    bool focused = false;
    bool edited = false;
    qreal hover = 0;  ///< 0…1
    bool isGap = false;  ///< empty, and wanted: a dashed border
};
/// Ground and border of every field-like control, as its state asks.
void paintFieldFrame(QPainter& painter, const QRectF& rect, const FieldState& state, const Theme& theme);

}  // namespace Quorbel
