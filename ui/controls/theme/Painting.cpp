#include "ui/controls/theme/Painting.h"

#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Theme.h"

#include <QBitmap>
#include <QGuiApplication>
#include <QWidget>

namespace Quorbel {

void paintBox(QPainter& painter, const QRectF& rect, qreal radius, const QColor& fill, const QPen& border)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill.alpha() == 0 ? QBrush(Qt::NoBrush) : QBrush(fill));
    painter.setPen(border);
    const qreal inset = border.style() == Qt::NoPen ? 0 : border.widthF() / 2;
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius - inset, radius - inset);
}

QPen dashedPen(const QColor& color)
{
    QPen pen(color, 1);
    pen.setDashPattern({ 3, 2 });
    return pen;
}

void cutCorners(QWidget& popup, qreal radius)
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    QBitmap shape(popup.size());
    shape.fill(Qt::color0);
    QPainter painter(&shape);
    painter.setPen(Qt::color1);  // half a pixel beyond the edge
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(popup.rect(), radius, radius);
    painter.end();
    popup.setMask(shape);
}

void paintCutBox(QPainter& painter, const QRect& rect, qreal radius, const QColor& fill, const QColor& edge)
{
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(edge);
        painter.setBrush(edge);
        painter.drawRoundedRect(rect, radius, radius);
    }
    paintBox(painter, rect, radius, fill, QPen(edge, 1));
}

void paintFieldFrame(QPainter& painter, const QRectF& rect, const FieldState& state, const Theme& theme)
{
    QColor ground = state.edited ? theme.amberBg : theme.field;
    const QColor rest = mixed(theme.fieldLine, theme.derived.fieldHoverLine, state.hover);
    const QColor gap = mixed(theme.derived.dashedLine, theme.muted, state.hover);
    const QColor unedited = state.isGap ? gap : rest;
    QColor line = state.edited ? theme.amberLine : unedited;
    if (state.focused)
        line = state.edited ? theme.amber : theme.derived.focusStrong;
    if (!state.enabled) {
        ground = theme.derived.fieldOff;
        line = HighContrast::isOn(theme) ? theme.derived.primaryOffText : theme.line;
    }
    const bool isDashed = state.isGap && !state.focused;
    const bool isMarked = state.enabled && (state.edited || state.focused || isDashed);
    const qreal width = isMarked ? HighContrast::markedLine(theme) : 1;
    QPen border = isDashed ? dashedPen(line) : QPen(line);
    border.setWidthF(width);
    paintBox(painter, rect, pxF(7), ground, border);
}

}  // namespace Quorbel
