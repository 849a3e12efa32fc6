// Paints one row of the photo list. Thread: the main thread. Asks the thumbnail store for nothing: it shows what is
// there.
#pragma once

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

    /// Device-independent pixels from one row to the next.
    static int pitch();

private:
    const SidebarModel& m_rows;
    QPointer<ThumbnailStore> m_thumbs;
};

}  // namespace Quorbel
