#include "ui/controls/cards/EditedDot.h"

#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"

#include <QPainter>

namespace Quorbel::EditedDot {

namespace {
// Points.
constexpr qreal left = 1;
constexpr qreal size = 6;
}  // namespace

void paint(QPainter& painter, const QWidget* widget, double middle)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::of(widget).amber);
    painter.drawEllipse(mirrored(QRectF(pxF(left), middle - pxF(size) / 2, pxF(size), pxF(size)), widget));
    painter.restore();
}

}  // namespace Quorbel::EditedDot
