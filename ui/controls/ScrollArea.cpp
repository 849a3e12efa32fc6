#include "ui/controls/ScrollArea.h"

#include "ui/controls/OverlayScrollBar.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QEvent>
#include <QPainter>

namespace Quorbel {

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

bool ScrollArea::event(QEvent* event)
{
    // The area's own paint event goes to its viewport instead.
    if (event->type() != QEvent::Paint || !m_framed)
        return QScrollArea::event(event);
    const Theme& theme = Theme::of(this);
    QPainter painter(this);
    paintBox(painter, rect(), pxF(7), theme.field, QPen(theme.line, 1));
    return true;
}

}  // namespace Quorbel
