// A list whose rows are photos and headings, of two heights: where they are, how they scroll and how they are painted.
// Thread: the main thread. Knows neither photos nor folders, only rows; a delegate paints each.
#pragma once

#include "ui/sidebar/GroupedRows.h"

#include <QAccessible>
#include <QListView>

#include <optional>

namespace Quorbel {

/// Only the rows on screen cost anything, whatever the list's length. The heading of the group at the top stays there
/// while its photos scroll by, until the next one pushes it out.
class GroupedListView : public QListView {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(GroupedListView)

public:
    explicit GroupedListView(QWidget* parent = nullptr);

    /// Of a heading that stays at the top: where it is seen.
    QRect visualRect(const QModelIndex& index) const override;
    /// As little as makes the row seen; a photo below the heading that stays at the top.
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint& point) const override;
    void doItemsLayout() override;
    /// y of the line under a heading that stays at the top, in this widget; nothing while there is none.
    std::optional<int> stuckLine() const;

signals:
    /// stuckLine() may have another answer.
    void stuckLineMoved();

protected:
    /// The rows of the item model that is shown; must live as long as this.
    void setRows(const GroupedRows& rows) { m_rows = &rows; }
    const GroupedRows& rows() const { return *m_rows; }
    /// Where a row begins in the viewport, though it may be hidden or off screen.
    int topOf(int row) const;
    /// Scrolls until a row begins there.
    void scrollRowTo(int row, int y);
    /// Something of a row changed that screen readers tell.
    void tellReaders(QAccessible::Event event, const QModelIndex& index);
    /// The first and the last row that can be seen.
    std::pair<int, int> rowsOnScreen() const;

    void dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles = {}) override;
    void paintEvent(QPaintEvent* event) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;

private:
    QRect rowRect(int row, int top) const;
    int inset() const;
    std::optional<int> stuckTop() const;
    int stuckGroup() const;
    void place();
    void followPointer();
    void announceStuckLine();
    void paintRow(QPainter& painter, QStyleOptionViewItem& option, int row) const;

    const GroupedRows* m_rows;
    std::optional<QPoint> m_pointer;  ///< in the viewport
    int m_hovered = -1;  ///< row
    std::optional<int> m_announcedLine;
};

}  // namespace Quorbel
