#include "ui/controls/cards/EditedDot.h"

#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Theme.h"

#include <QPainter>

namespace Quorbel::EditedDot {

namespace {
// Points.
constexpr qreal left = 1;
constexpr qreal size = 6;
}  // namespace

void paint(QPainter& painter, double middle, const Theme& theme)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.amber);
    painter.drawEllipse(QRectF(pxF(left), middle - pxF(size) / 2, pxF(size), pxF(size)));
    painter.restore();
}

}  // namespace Quorbel::EditedDot
