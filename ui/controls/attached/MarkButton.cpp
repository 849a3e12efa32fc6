#include "ui/controls/attached/MarkButton.h"

#include "ui/controls/HoverFade.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QPainter>

namespace Quorbel {

namespace {

// Points.
constexpr qreal high = 19;
constexpr qreal radius = 5;
constexpr qreal markSize = 12;
constexpr qreal iconGap = 5;

}  // namespace

MarkButton::MarkButton(const QString& icon, QWidget* parent)
    : ThemedButton({}, parent)
    , m_icon(icon)
{
    onRestyle(this, [this] {
        setFont(sansFont(11));
        updateGeometry();
    });
    installFocusRing(this, { RingShape::tight, radius, {}, {} });
}

void MarkButton::setOpen(bool open)
{
    m_open = open;
    update();
}

QSize MarkButton::sizeHint() const
{
    const int text = fontMetrics().horizontalAdvance(this->text());
    return { text + px(2 * sidePadding + markSize + iconGap) + 1, px(high) };
}

QSize MarkButton::minimumSizeHint() const
{
    return { px(60), px(high) };
}

QRect MarkButton::textRect() const
{
    return rect().adjusted(px(sidePadding + markSize + iconGap), 0, -px(sidePadding), 0);
}

void MarkButton::resizeEvent(QResizeEvent* event)
{
    ThemedButton::resizeEvent(event);
    setToolTip(width() < sizeHint().width() ? text() : QString());
}

void MarkButton::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    const qreal shade = m_open ? 1 : qMax(fade()->hover(), fade()->pressed());
    paintBox(painter, rect(), pxF(radius), withAlpha(theme.amberBg, theme.amberBg.alphaF() * shade),
        m_open ? HighContrast::groundEdge(theme) : Qt::NoPen);
    const QColor ink = theme.derived.amberText;
    const QRectF icon(pxF(sidePadding), 0, pxF(markSize), height());
    Icon::paint(painter, mirrored(icon, this), m_icon, pxF(markSize), ink);
    painter.setPen(ink);
    const QRect box = textRect();
    painter.drawText(mirrored(box, this), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
        fontMetrics().elidedText(text(), Qt::ElideRight, box.width()));
}

}  // namespace Quorbel
