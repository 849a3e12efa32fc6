// What lies in a folder, and which of the things given to the program are photos.
// Thread: any. Touches the file system; starts nothing.
#pragma once

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

namespace Quorbel {

/// The photos among the folders and files that the user gave.
struct PhotoListing {
    QList<QUrl> files{};  ///< each once, in natural order of their names
    QString label{};  ///< what is open, for the window's title
    std::optional<QUrl> folder{};  ///< set when exactly one folder was given: the one to watch
    QList<QUrl> existing{};  ///< the given URLs that exist

    /// Folders contribute their immediate entries, hidden ones too; what does not exist is skipped, and a folder
    /// that cannot be listed counts as empty.
    static PhotoListing of(const QList<QUrl>& urls);
};

/// The entries of one folder that bear the extension of a photo.
struct FolderScan {
    bool isListed = false;  ///< false: the folder is gone or may not be read
    /// Modification date by URL; nothing where the file system gives none (a dangling link). What is certainly no
    /// file (a folder, a pipe) is not among them.
    QHash<QUrl, std::optional<QDateTime>> photos{};

    static FolderScan of(const QUrl& folder);
};

/// The file's modification date as it stands on disk, to the millisecond.
std::optional<QDateTime> modificationDate(const QString& path);

}  // namespace Quorbel
