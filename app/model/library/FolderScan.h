// What lies in a folder.
// Thread: any. Touches the file system; starts nothing.
#pragma once

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

namespace Quorbel {

/// The entries of one folder that bear the extension of a photo.
struct FolderScan {
    bool isListed = false;  ///< false: the folder is gone or may not be read
    /// Modification date by URL; nothing where the file system gives none (a dangling link). What is certainly no
    /// file (a folder, a pipe) is not among them.
    QHash<QUrl, std::optional<QDateTime>> photos{};

    static FolderScan of(const QUrl& folder);
    /// The photos alone; nothing when the folder cannot be listed to its end: half a listing would pass for files
    /// removed.
    static std::optional<QList<QUrl>> entries(const QString& folder);
};

/// The file's modification date as it stands on disk, to the millisecond.
std::optional<QDateTime> modificationDate(const QString& path);

}  // namespace Quorbel
