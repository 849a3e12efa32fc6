// Paints one row of the list of new names: the old name, the new one with what is missing in it, and why one should
// look at it. Thread: the main thread.
#pragma once

#include "core/renaming/RenamePlan.h"

#include <QStyledItemDelegate>

namespace Quorbel {

class RenameRowDelegate final : public QStyledItemDelegate {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RenameRowDelegate)

public:
    using RowAt = std::function<const RenameRow*(int row)>;

    explicit RenameRowDelegate(RowAt rowAt, QObject* parent = nullptr);

    /// Pixels, in a list of this width: in a narrow one the new name stands under the old one.
    static int rowHeight(int listWidth);
    /// What stands for a value that the photo does not have, by its label.
    static QString missingText(const QString& label);
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    struct Look;

    static qreal paintWords(QPainter& painter, const QRectF& row, const RenameRow& of, const Look& look);
    static void paintOldName(QPainter& painter, const QRectF& box, const RenameRow& row, const Look& look);
    static void paintArrowAndName(QPainter& painter, const QRectF& box, const RenameRow& row, const Look& look);
    static void paintNewName(QPainter& painter, const QRectF& box, const RenameRow& row, const Look& look);

    static void paintPieces(QPainter& painter, const QRectF& box, const RenameRow& row, const Look& look);

    RowAt m_rowAt;
};

}  // namespace Quorbel
