#include "ui/sidebar/GroupedListView.h"

#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"
#include "ui/sidebar/SidebarDelegate.h"

#include <QHoverEvent>
#include <QPainter>
#include <QScrollBar>

namespace Quorbel {

namespace {

constexpr qreal margin = 6;  // points, around the rows

const GroupedRows& noRows()
{
    static const GroupedRows none;
    return none;
}

}  // namespace

GroupedListView::GroupedListView(QWidget* parent)
    : QListView(parent)
    , m_rows(&noRows())
{
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(NoFrame);
    setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_Hover);
}

// --- Where the rows are ---

// A heading that stays at the top covers the whole width and leaves no margin above: where there are headings, the
// margin is a part of what scrolls. Else it stays empty while the rows scroll.
int GroupedListView::inset() const
{
    return rows().isGrouped() ? px(margin) : 0;
}

void GroupedListView::place()
{
    const int around = px(margin) - inset();
    const QMargins margins = mirrored(QMargins(around, around, 0, around));
    setViewportMargins(margins.left(), margins.top(), margins.right(), margins.bottom());
}

int GroupedListView::topOf(int row) const
{
    return inset() + rows().top(row, SidebarDelegate::pitches()) - verticalOffset();
}

QRect GroupedListView::rowRect(int row, int top) const
{
    const RowPitch pitch = SidebarDelegate::pitches();
    const int height = rows().headingAt(row) >= 0 ? pitch.heading : pitch.photo;
    return mirrored(QRect(inset(), top, viewport()->width() - inset(), height), viewport());
}

QRect GroupedListView::visualRect(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    const int group = rows().headingAt(index.row());
    const bool isStuck = group >= 0 && group == stuckGroup();
    return rowRect(index.row(), isStuck ? *stuckTop() : topOf(index.row()));
}

QModelIndex GroupedListView::indexAt(const QPoint& point) const
{
    if (!viewport()->rect().contains(point))
        return {};
    if (const auto top = stuckTop(); top && point.y() < *top + SidebarDelegate::headingHeight())
        return model()->index(rows().rowOfHeading(stuckGroup()), 0);
    const int row = rows().rowAt(point.y() + verticalOffset() - inset(), SidebarDelegate::pitches());
    const bool isInIt = row >= 0 && rowRect(row, topOf(row)).contains(point);
    return isInIt ? model()->index(row, 0) : QModelIndex();
}

std::pair<int, int> GroupedListView::rowsOnScreen() const
{
    const int above = verticalOffset() - inset();
    const RowPitch pitch = SidebarDelegate::pitches();
    return { qMax(0, rows().rowAt(above, pitch)), rows().rowAt(above + viewport()->height(), pitch) };
}

// The group whose heading has been scrolled out at the top, though not all of its rows; -1 where there is none.
int GroupedListView::stuckGroup() const
{
    const int above = verticalOffset() - inset();
    if (above <= 0 || !rows().isGrouped())
        return -1;
    const int group = rows().groupAt(rows().rowAt(above, SidebarDelegate::pitches()));
    return group >= 0 && topOf(rows().rowOfHeading(group)) < 0 ? group : -1;
}

std::optional<int> GroupedListView::stuckTop() const
{
    const int group = stuckGroup();
    if (group < 0)
        return std::nullopt;
    if (group + 1 == rows().groups().size())
        return 0;
    return qMin(0, topOf(rows().rowOfHeading(group + 1)) - SidebarDelegate::headingHeight());
}

std::optional<int> GroupedListView::stuckLine() const
{
    const auto top = stuckTop();
    return top ? std::optional(viewport()->y() + *top + SidebarDelegate::headingHeight() - 1) : std::nullopt;
}

void GroupedListView::announceStuckLine()
{
    const auto line = stuckLine();
    if (line == std::exchange(m_announcedLine, line))
        return;
    emit stuckLineMoved();
}

// --- Scrolling ---

void GroupedListView::scrollRowTo(int row, int y)
{
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(verticalOffset() + topOf(row) - y);
}

void GroupedListView::scrollTo(const QModelIndex& index, ScrollHint)
{
    executeDelayedItemsLayout();
    if (!index.isValid())
        return;
    const int row = index.row();
    const int group = rows().headingAt(row);
    if (group >= 0 && group == stuckGroup())
        return;
    const int highest = rows().isGrouped() && group < 0 ? SidebarDelegate::pitches().heading : 0;
    const int lowest = viewport()->height() - inset() - rowRect(row, 0).height();
    const int top = topOf(row);
    if (top < highest || lowest < highest)
        scrollRowTo(row, highest);
    else if (top > lowest)
        scrollRowTo(row, lowest);
    if (verticalOffset() <= inset() && inset() > 0 && top < highest)
        verticalScrollBar()->setValue(0);  // no heading stays, with nothing but the margin gone
}

void GroupedListView::updateGeometries()
{
    const int length = rows().top(rows().count(), SidebarDelegate::pitches()) + 2 * inset();
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, qMax(0, length - viewport()->height()));
    QAbstractItemView::updateGeometries();
    followPointer();
    announceStuckLine();
}

// Not QListView's: it would look at every row.
void GroupedListView::doItemsLayout()
{
    place();
    QAbstractItemView::doItemsLayout();
}

// Only what is on screen shows it. Rows are as high as ever: nothing has to be laid out again, as QListView would do.
void GroupedListView::dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles)
{
    const auto [top, bottom] = rowsOnScreen();
    const int from = qMax(first.row(), stuckGroup() < 0 ? top : rows().rowOfHeading(stuckGroup()));
    const int to = qMin(last.row(), bottom);
    if (from <= to)
        QAbstractItemView::dataChanged(model()->index(from, 0), model()->index(to, 0), roles);
}

void GroupedListView::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    if (rows().isGrouped()) {
        // What stays at the top was moved with the rest.
        const QRect band(0, 0, viewport()->width(), SidebarDelegate::headingHeight());
        viewport()->update(band.united(band.translated(0, dy)));
    }
    followPointer();
    announceStuckLine();
}

// --- The pointer ---

bool GroupedListView::viewportEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        m_pointer = static_cast<QHoverEvent*>(event)->position().toPoint();
        followPointer();
        break;
    case QEvent::HoverLeave:
        m_pointer.reset();
        followPointer();
        break;
    default:
        break;
    }
    return QListView::viewportEvent(event);
}

void GroupedListView::followPointer()
{
    const int row = m_pointer ? indexAt(*m_pointer).row() : -1;
    const int before = std::exchange(m_hovered, row);
    if (row == before)
        return;
    update(model()->index(before, 0));
    update(model()->index(row, 0));
}

// --- Painting ---

void GroupedListView::paintRow(QPainter& painter, QStyleOptionViewItem& option, int row) const
{
    const QModelIndex index = model()->index(row, 0);
    option.rect = visualRect(index);
    option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
    option.state.setFlag(QStyle::State_HasFocus, hasFocus() && index == currentIndex());
    option.state.setFlag(QStyle::State_MouseOver, row == m_hovered);
    itemDelegate()->paint(&painter, option, index);
}

void GroupedListView::paintEvent(QPaintEvent* event)
{
    DirectedPainter painter(viewport());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const auto stuck = stuckTop();
    const int stuckRow = stuck ? rows().rowOfHeading(stuckGroup()) : -1;
    const auto [first, last] = rowsOnScreen();
    for (int row = first; row <= last; ++row)
        if (row != stuckRow && event->region().intersects(rowRect(row, topOf(row))))
            paintRow(painter, option, row);
    if (!stuck)
        return;
    const Theme& theme = Theme::of(this);
    const QRect band(0, *stuck, viewport()->width(), SidebarDelegate::headingHeight());
    painter.fillRect(band, theme.bg);
    paintRow(painter, option, stuckRow);
    painter.fillRect(0, band.bottom(), band.width(), 1, theme.line);
}

QRegion GroupedListView::visualRegionForSelection(const QItemSelection& selection) const
{
    const auto [first, last] = rowsOnScreen();
    QRegion region;
    for (const QItemSelectionRange& range : selection) {
        const int top = qMax(first, range.top());
        const int bottom = qMin(last, range.bottom());
        if (top <= bottom)
            region += rowRect(top, topOf(top)).united(rowRect(bottom, topOf(bottom)));
    }
    return region;
}

// --- Screen readers ---

// Not QListView's either, for the same reason: it finds a row's number by its place.
void GroupedListView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QAbstractItemView::currentChanged(current, previous);
    if (hasFocus())
        tellReaders(QAccessible::Focus, current);
}

void GroupedListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QAbstractItemView::selectionChanged(selected, deselected);
    if (!selected.isEmpty())
        tellReaders(QAccessible::SelectionAdd, selected.constFirst().topLeft());
    if (!deselected.isEmpty())
        tellReaders(QAccessible::SelectionRemove, deselected.constFirst().topLeft());
}

void GroupedListView::tellReaders(QAccessible::Event event, const QModelIndex& index)
{
    if (!QAccessible::isActive() || !index.isValid())
        return;
    QAccessibleEvent told(this, event);
    told.setChild(index.row());
    QAccessible::updateAccessibility(&told);
}

}  // namespace Quorbel
