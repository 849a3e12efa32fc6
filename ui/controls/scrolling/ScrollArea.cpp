#include "ui/controls/scrolling/ScrollArea.h"

#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>

namespace Quorbel {

namespace {
constexpr qreal aroundWidget = 8;  // points
}

ScrollArea::ScrollArea(QWidget* parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    viewport()->setAutoFillBackground(false);
    OverlayScrollBar::attach(this);
}

void ScrollArea::setContent(QWidget* content)
{
    setWidget(content);
    content->setAutoFillBackground(false);  // which setWidget() turns on
}

void ScrollArea::setFramed(bool on)
{
    m_framed = on;
    const int border = on ? 1 : 0;
    setViewportMargins(border, border, border, border);
}

// Not QScrollArea's own way: that centers what it has not shown before, and knows nothing of what covers the lower end.
void ScrollArea::reveal(const QRect& part, int around)
{
    const int room = viewport()->height() - m_covered;
    const int free = part.height() > room ? around : qMin(around, (room - part.height()) / 2);
    const int lowest = part.bottom() + 1 + free - room;
    verticalScrollBar()->setValue(qMin(qMax(verticalScrollBar()->value(), lowest), part.top() - free));
}

void ScrollArea::reveal(const QWidget& widget)
{
    reveal(QRect(widget.mapTo(this->widget(), QPoint()), widget.size()), px(aroundWidget));
}

ScrollArea* ScrollArea::around(const QWidget& widget)
{
    for (QWidget* above = widget.parentWidget(); above && !above->isWindow(); above = above->parentWidget())
        if (auto* area = qobject_cast<ScrollArea*>(above);
            area && area->widget() && area->widget()->isAncestorOf(&widget))
            return area;
    return nullptr;
}

bool ScrollArea::event(QEvent* event)
{
    // The area's own paint event goes to its viewport instead.
    if (event->type() != QEvent::Paint || !m_framed)
        return QScrollArea::event(event);
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    paintBox(painter, rect(), pxF(7), theme.field, QPen(theme.line, 1));
    return true;
}

}  // namespace Quorbel
