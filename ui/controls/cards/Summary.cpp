#include "ui/controls/cards/Summary.h"

#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"

#include <QPainter>

#include <cmath>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal points = 13;

QString joint()
{
    return u" · "_s;
}

}  // namespace

QString Summary::text() const
{
    return rest.isEmpty() ? first : first + joint() + rest;
}

int Summary::width() const
{
    return int(std::ceil(QFontMetricsF(verbatimFont(points)).horizontalAdvance(text())));
}

void Summary::paint(QPainter& painter, const QRectF& rect, const Theme& theme) const
{
    painter.setFont(verbatimFont(points));
    const QFontMetricsF metrics(painter.font());
    const auto draw = [&](const QString& part, const QRectF& room, const QColor& color) {
        painter.setPen(color);
        painter.drawText(mirrored(room, rect, painter.layoutDirection()),
            Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
            metrics.elidedText(part, Qt::ElideRight, room.width()));
    };
    draw(first, rect, theme.text);
    const QRectF behind = rect.adjusted(metrics.horizontalAdvance(first), 0, 0, 0);
    // A dot and nothing behind it would say nothing.
    if (!rest.isEmpty() && behind.width() > metrics.horizontalAdvance(joint() + u"M…"_s))
        draw(joint() + rest, behind, theme.derived.label);
}

}  // namespace Quorbel
