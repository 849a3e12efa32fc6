#include "ui/Painting.h"

#include "ui/Metrics.h"
#include "ui/Theme.h"

namespace Quorbel {

void paintBox(QPainter& painter, const QRectF& rect, qreal radius, const QColor& fill, const QPen& border)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill.alpha() == 0 ? QBrush(Qt::NoBrush) : QBrush(fill));
    painter.setPen(border);
    const qreal inset = border.style() == Qt::NoPen ? 0 : border.widthF() / 2;
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius - inset, radius - inset);
}

void paintShadow(QPainter& painter, const QRectF& box, qreal radius, const QColor& shadow)
{
    // A blur of 28 pixels, 8 lower than the box, as a stack of outlines that fade towards the outside.
    constexpr int steps = 14;
    constexpr qreal reach = 18;
    constexpr qreal drop = 6;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QColor layer = shadow;
    layer.setAlphaF(shadow.alphaF() / steps);
    painter.setBrush(layer);
    for (int i = 0; i < steps; ++i) {
        const qreal grow = reach * (1 - qreal(i) / steps) - reach / 3;
        painter.drawRoundedRect(
            box.adjusted(-grow, -grow + drop, grow, grow + drop), radius + qMax(0.0, grow), radius + qMax(0.0, grow));
    }
}

void paintFieldFrame(QPainter& painter, const QRectF& rect, const FieldState& state, const Theme& theme)
{
    QColor ground = state.edited ? theme.amberBg : theme.field;
    QColor line = state.edited ? theme.amberLine : mixed(theme.fieldLine, theme.derived.fieldHoverLine, state.hover);
    if (state.focused)
        line = state.edited ? theme.amber : theme.derived.focusStrong;
    if (!state.enabled) {
        ground = theme.derived.fieldOff;
        line = theme.line;
    }
    paintBox(painter, rect, pxF(7), ground, QPen(line, 1));
}

}  // namespace Quorbel
