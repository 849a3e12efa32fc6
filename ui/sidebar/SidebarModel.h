// The photo list as an item model: one row for each photo that passes the search, in sort order.
// Thread: the main thread. Holds no record: it points into AppModel's.
#pragma once

#include "core/schema/ImageRecord.h"

#include <QAbstractListModel>
#include <QList>

namespace Quorbel {

class AppModel;

class SidebarModel final : public QAbstractListModel {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SidebarModel)

public:
    explicit SidebarModel(AppModel& model, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// The photo of a row; null beyond the end. Valid until AppModel's records change.
    const ImageRecord* record(int row) const;
    /// The row of a photo; -1 when it is not shown. Quick for lists of any length.
    int row(const QUrl& url) const;

private:
    void sync();

    AppModel& m_model;
    QList<int> m_rows;  ///< positions in AppModel's records
    mutable QList<int> m_rowOf{};  ///< by position, -1: not shown; filled by the first question after a change
};

}  // namespace Quorbel
