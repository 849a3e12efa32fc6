// Which files were given which names: so that a killed rename is dealt with by the next start, and so that it can be
// taken back, also after a restart. A folder with one file for each rename, to which is added what happens.
// Thread: any, one program at a time (RenameHistory).
#pragma once

#include "core/renaming/RenamePlan.h"

#include <QDateTime>

#include <optional>

namespace Quorbel {

/// Which file it was, whatever its name.
struct FileMark {
    quint64 inode = 0;
    qint64 size = -1;  ///< bytes; -1: there was none
    qint64 modified = 0;  ///< nanoseconds since 1970, UTC
    bool operator==(const FileMark&) const = default;

    /// A link itself, not what it points to.
    static FileMark of(const QString& path);
};

struct RenameEntry {
    struct Folder {
        FolderRenaming renaming{};
        QList<FileMark> marks{};  ///< of its files
        bool isMoved = false;
        bool isUndone = false;  ///< by a later rename, or by the start after a kill
    };

    QString mark{};  ///< of the names on the way
    qint64 undoes = 0;  ///< number of the rename that this one takes back; 0: none
    QList<Folder> folders{};
    bool isDone = false;

    /// Files of this folder, or of all, that are photos and are where they were moved to.
    static qsizetype photosIn(const Folder& folder);
    qsizetype photos() const;
};

class RenameJournal final {
public:
    /// Renames that are kept.
    static constexpr qsizetype limit = 20;

    /// The folder comes with the first rename.
    explicit RenameJournal(const QString& folder)
        : m_folder(folder)
    {
    }

    const QString& folder() const { return m_folder; }
    /// The numbers of the renames, oldest first.
    QList<qint64> numbers() const;
    /// Nothing when it is gone or damaged.
    std::optional<RenameEntry> load(qint64 number) const;

    /// A rename begins; its number, or nothing when the file system refuses. The oldest beyond `limit` are forgotten.
    std::optional<qint64> begin(const QString& mark, qint64 undoes = 0) const;
    /// Before any of the folder's files is touched: it is on the disk when this returns true. Of the others a loss of
    /// power costs no more than that the folder gets its old names back.
    bool noteFolder(qint64 number, const RenameEntry::Folder& folder) const;
    /// A folder's number is its place among those that were noted.
    bool noteMoved(qint64 number, qsizetype folder) const;
    bool noteUndone(qint64 number, qsizetype folder) const;
    bool noteDone(qint64 number) const;
    void remove(qint64 number) const;

private:
    QString pathOf(qint64 number) const;
    bool add(qint64 number, const QByteArray& line, bool isPrecious = false) const;

    QString m_folder;
};

}  // namespace Quorbel
