// The photos on screen by the folder that they lie in, where subfolders are open; and which folders are folded.
// Thread: the main thread. Plain values: knows no photo, only positions among those on screen.
#pragma once

#include <QList>
#include <QSet>
#include <QString>
#include <QUrl>

namespace Quorbel {

/// The photos of one folder that pass the search: a run of AppModel::visibleRows().
struct FolderGroup {
    QUrl folder{};
    QString parents{};  ///< names of the folders between the top and this one: "A / B"; "" directly below the top
    QString name{};
    qsizetype first = 0;  ///< position in visibleRows()
    qsizetype count = 0;  ///< at least 1
    bool isFolded = false;
    bool operator==(const FolderGroup&) const = default;
};

class FolderGroups final {
public:
    /// Ascending, without gaps; none where no subfolders are open.
    const QList<FolderGroup>& list() const { return m_list; }
    /// Takes on what is on screen now; whether anything is different. What was folded still is.
    bool update(QList<FolderGroup> groups);
    /// Whether anything is different on screen.
    bool setFolded(const QList<QUrl>& folders, bool on);
    void unfoldAll() { m_folded.clear(); }
    /// Whether the photo at this position of visibleRows() lies in a folded group.
    bool isFolded(qsizetype row) const;

private:
    QList<FolderGroup> m_list;
    QSet<QUrl> m_folded;
};

}  // namespace Quorbel
