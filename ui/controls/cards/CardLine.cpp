#include "ui/controls/cards/CardLine.h"

#include "ui/controls/HoverFade.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace Quorbel {

namespace {

// Points.
constexpr qreal high = 32;
constexpr qreal highFolded = 42;
constexpr qreal chevron = 12;
constexpr qreal chevronRight = 4;  // from the chevron to the end of the line
constexpr qreal gap = 7;
constexpr qreal ringSide = 6;
constexpr qreal radius = 9;

QFont titleFont()
{
    return verbatimFont(13, QFont::Medium);
}

}  // namespace

CardLine::CardLine(QWidget* parent)
    : FoldLine({}, parent)
{
    onRestyle(this, [this] {
        updateGeometry();
        showToolTip();
    });
    installFocusRing(this, { RingShape::tight, radius, {}, [this] { return ringBox(); } });
}

// All of a folded card.
QRectF CardLine::ringBox() const
{
    const qreal out = isOpen() ? pxF(ringSide) : 0;
    return QRectF(rect()).adjusted(-out, 0, out, 0);
}

QSize CardLine::sizeHint() const
{
    return { px(240), px(isOpen() ? high : highFolded) };
}

QSize CardLine::minimumSizeHint() const
{
    return { px(90), px(isOpen() ? high : highFolded) };
}

QRectF CardLine::summaryRect() const
{
    return QRectF(rect()).adjusted(px(side), 0, -px(side) - pxF(gap + chevron + chevronRight), 0);
}

QString CardLine::hiddenText() const
{
    if (!isOpen())
        return FoldLine::hiddenText();
    return QFontMetricsF(titleFont()).horizontalAdvance(text()) > width() ? text() : QString();
}

void CardLine::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete && !event->modifiers() && !isOpen())
        emit removeAsked();
    else
        FoldLine::keyPressEvent(event);
}

void CardLine::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setOpacity(opacity());
    if (!isOpen()) {
        const qreal shade = theme.derived.hover.alphaF() * qMax(fade()->hover(), fade()->pressed());
        paintBox(painter, rect(), pxF(radius), withAlpha(theme.derived.hover, shade), Qt::NoPen);
        summary().paint(painter, mirrored(summaryRect(), this), theme);
        const qreal end = width() - px(side) - pxF(chevronRight);
        return paintChevron(painter, mirrored(QRectF(end - pxF(chevron), 0, pxF(chevron), height()), this));
    }
    painter.setFont(titleFont());
    painter.setPen(theme.text);
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
        painter.fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

}  // namespace Quorbel
