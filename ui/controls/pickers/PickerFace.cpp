#include "ui/controls/pickers/PickerFace.h"

#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"

#include <QKeyEvent>

namespace Quorbel::PickerFace {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal left = 10;
constexpr qreal right = 8;
constexpr qreal arrows = 14;
constexpr qreal gap = 4;

}  // namespace

bool isOpenedBy(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Down || event.key() == Qt::Key_Up || event.key() == Qt::Key_Return
        || event.key() == Qt::Key_Enter;
}

int textRoom(int width)
{
    return width - px(left + gap + arrows + right);
}

void paint(QPainter& painter, const QRectF& rect, const QString& text, const QColor& ink, const FieldState& state,
    const Theme& theme)
{
    paintFieldFrame(painter, rect, state, theme);
    painter.setPen(ink);
    const QRectF room(rect.left() + px(left), rect.top(), textRoom(int(rect.width())), rect.height());
    const auto placed = [&](const QRectF& place) { return mirrored(place, rect, painter.layoutDirection()); };
    painter.drawText(placed(room), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
        keptInOrder(painter.fontMetrics().elidedText(text, Qt::ElideRight, int(room.width()))));
    Icon::paint(painter, placed(QRectF(rect.right() - pxF(right + arrows), rect.top(), pxF(arrows), rect.height())),
        u"chevron.up.chevron.down"_s, pxF(arrows), theme.muted);
}

}  // namespace Quorbel::PickerFace
