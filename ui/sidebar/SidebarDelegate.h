// Paints one row of the photo list, a photo's or a folder's heading. Thread: the main thread. Asks the thumbnail store
// for nothing: it shows what is there.
#pragma once

#include "ui/sidebar/GroupedRows.h"

#include <QPointer>
#include <QStyledItemDelegate>

namespace Quorbel {

class SidebarModel;
class ThumbnailStore;

class SidebarDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    SidebarDelegate(const SidebarModel& rows, ThumbnailStore* thumbs, QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    /// Device-independent pixels from one photo's row to the next.
    static int pitch();
    static RowPitch pitches();
    /// Of a heading, without the gap below it.
    static int headingHeight();

private:
    const SidebarModel& m_rows;
    QPointer<ThumbnailStore> m_thumbs;
};

}  // namespace Quorbel
