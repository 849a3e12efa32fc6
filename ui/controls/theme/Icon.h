// Icons by symbol name: 24×24 line drawings compiled in from ui/icons, in any colour, sharp at any scale.
// Thread: the main thread.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QRectF>
#include <QString>

class QPainter;

namespace Quorbel::Icon {

/// The drawing tinted with the colour; `size` in device-independent pixels. `stroke` is the line width in the 24×24
/// drawing, 0 for the drawing's own (1.7). A null pixmap for an unknown name. Cached.
QPixmap pixmap(const QString& name, qreal size, const QColor& color, qreal devicePixelRatio, qreal stroke = 0);
/// Draws it centred in the rectangle, as large as `size` says.
void paint(
    QPainter& painter, const QRectF& rect, const QString& name, qreal size, const QColor& color, qreal stroke = 0);
bool exists(const QString& name);

}  // namespace Quorbel::Icon
