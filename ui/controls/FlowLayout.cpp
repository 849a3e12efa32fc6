#include "ui/controls/FlowLayout.h"

#include <QStyle>
#include <QWidget>

namespace Quorbel {

FlowLayout::FlowLayout(int spacing, QWidget* parent)
    : QLayout(parent)
{
    setSpacing(spacing);
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

void FlowLayout::setLastItemFills(bool fills)
{
    m_lastItemFills = fills;
    invalidate();
}

int FlowLayout::lines(const QList<int>& widths, int available, int spacing)
{
    int lines = 0;
    int running = 0;
    for (const int width : widths) {
        if (lines == 0 || running + width > available) {
            ++lines;
            running = 0;
        }
        running += width + spacing;
    }
    return lines;
}

void FlowLayout::insertWidget(int index, QWidget* widget)
{
    addChildWidget(widget);
    m_items.insert(qBound(0, index, count()), new QWidgetItem(widget));
    invalidate();
}

void FlowLayout::addItem(QLayoutItem* item)
{
    m_items.append(item);
    invalidate();
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

QSize FlowLayout::sizeHint() const
{
    int width = 0;
    int height = 0;
    for (const QLayoutItem* item : m_items) {
        if (item->isEmpty())
            continue;
        width += (width > 0 ? spacing() : 0) + item->sizeHint().width();
        height = qMax(height, item->sizeHint().height());
    }
    const QMargins margins = contentsMargins();
    return { width + margins.left() + margins.right(), height + margins.top() + margins.bottom() };
}

QSize FlowLayout::minimumSize() const
{
    int width = 0;
    int height = 0;
    for (const QLayoutItem* item : m_items) {
        width = qMax(width, item->sizeHint().width());
        height = qMax(height, item->sizeHint().height());
    }
    const QMargins margins = contentsMargins();
    return { width + margins.left() + margins.right(), height + margins.top() + margins.bottom() };
}

int FlowLayout::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    const int available = width - margins.left() - margins.right();
    int running = 0;
    int lineHeight = 0;
    int height = 0;
    bool lineHasItem = false;
    for (const QLayoutItem* item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        if (lineHasItem && running + size.width() > available) {
            height += lineHeight + spacing();
            running = 0;
            lineHeight = 0;
        }
        lineHasItem = true;
        running += size.width() + spacing();
        lineHeight = qMax(lineHeight, size.height());
    }
    return height + lineHeight + margins.top() + margins.bottom();
}

void FlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    const QRect bounds = rect.marginsRemoved(contentsMargins());
    const int rightEdge = bounds.x() + bounds.width();
    int x = bounds.x();
    int y = bounds.y();
    int lineHeight = 0;
    for (QLayoutItem* item : std::as_const(m_items)) {
        if (item->isEmpty())
            continue;
        QSize size = item->sizeHint();
        if (x + size.width() > rightEdge && x != bounds.x()) {
            x = bounds.x();
            y += lineHeight + spacing();
            lineHeight = 0;
        }
        if (m_lastItemFills && item == m_items.last())
            size.setWidth(qMax(size.width(), rightEdge - x));
        item->setGeometry(QStyle::visualRect(parentWidget()->layoutDirection(), bounds, QRect(QPoint(x, y), size)));
        x += size.width() + spacing();
        lineHeight = qMax(lineHeight, size.height());
    }
}

}  // namespace Quorbel
