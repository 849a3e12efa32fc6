// The rows of the photo list: photos alone, or, where subfolders are open, a heading above the photos of each folder
// and those of folded ones left out. Which row is what, and where it is.
// Thread: the main thread. Plain values: knows no photo, only positions among those that pass the search. Every answer
// takes a few steps for lists of any length.
#pragma once

#include "app/model/library/FolderGroups.h"

#include <vector>

namespace Quorbel {

/// From one row to the next, in device-independent pixels.
struct RowPitch {
    int heading = 1;
    int photo = 1;
};

class GroupedRows final {
public:
    GroupedRows() = default;
    /// No groups: a row for each of the photos.
    GroupedRows(QList<FolderGroup> groups, qsizetype photos);

    int count() const { return m_count; }
    const QList<FolderGroup>& groups() const { return m_groups; }
    bool isGrouped() const { return !m_groups.isEmpty(); }
    /// The group that a row belongs to; -1 where there are none, and beyond the ends.
    int groupAt(int row) const;
    /// The group that a row is the heading of; -1 for any other row.
    int headingAt(int row) const;
    /// Position among the photos that pass the search; -1 for a heading, and beyond the ends.
    qsizetype photoAt(int row) const;
    /// -1 for a photo that is folded away.
    int rowOfPhoto(qsizetype photo) const;
    int rowOfHeading(int group) const { return m_headings[size_t(group)]; }
    /// The group that a photo lies in; -1 where there are none.
    int groupOfPhoto(qsizetype photo) const;
    /// -1 when there is none.
    int groupOfFolder(const QUrl& folder) const;

    /// Where a row begins, below the top of the first; for count(), where the last one ends.
    int top(int row, RowPitch pitch) const;
    /// The row at this height, the first one above the top, the last one below the end; -1 where there are no rows.
    int rowAt(int y, RowPitch pitch) const;

private:
    QList<FolderGroup> m_groups;
    std::vector<int> m_headings;  ///< rows, by group
    int m_count = 0;
};

}  // namespace Quorbel
