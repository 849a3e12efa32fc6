// The photo list as an item model: one row for each photo that passes the search, in the order shown; with subfolders
// one more for each folder's heading, and none for the photos of folded folders.
// Thread: the main thread. Holds no record: it points into AppModel's.
#pragma once

#include "core/schema/ImageRecord.h"
#include "ui/sidebar/GroupedRows.h"

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
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    const GroupedRows& rows() const { return m_rows; }
    /// The photo of a row; null for a heading and beyond the end. Valid until AppModel's records change.
    const ImageRecord* record(int row) const;
    /// Of the photo of a row: the file whose picture is shown, and the line under its name.
    QUrl seenFile(const ImageRecord& photo) const;
    QString line(const ImageRecord& photo) const;
    /// The group that a row is the heading of; null for any other. Valid until the groups change.
    const FolderGroup* heading(int row) const;
    /// The row of a photo; -1 when it is not shown. Quick for lists of any length.
    int row(const QUrl& url) const;
    /// The same, by the position in AppModel's records.
    int rowOfPosition(int position) const;
    /// The same; the row of its folder's heading when it is folded away.
    int rowOrHeading(const QUrl& url) const;

private:
    QString toolTip(const ImageRecord& photo) const;
    void sync();
    int groupThatFolded(const QList<FolderGroup>& groups) const;
    void fold(int group, GroupedRows rows);
    qsizetype shownAt(int position) const;

    AppModel& m_model;
    QList<int> m_shown;  ///< positions in AppModel's records of the photos that pass the search
    GroupedRows m_rows;
    mutable QList<int> m_shownAt{};  ///< by position, -1: not shown; filled by the first question after a change
};

}  // namespace Quorbel
