// What lies in the open folders.
// Thread: any but the main one. Touches the file system; starts nothing.
#pragma once

#include "core/sidecar/SidecarPolicy.h"
#include "platform/files/FolderFiles.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>
#include <stop_token>

namespace Quorbel {

class SeenSidecars;

/// A sidecar as a look at its folder sees it; one without a name is none.
struct SidecarStamp {
    QString name{};
    std::optional<qint64> modified{};  ///< milliseconds since 1970, UTC
    bool operator==(const SidecarStamp&) const = default;
};

/// The entries of folders that bear the extension of a photo.
struct FolderScan {
    struct Folder {
        bool isListed = false;  ///< to its end; false: it is gone or may not be read
        quint64 device = 0;  ///< that it lies on
        bool hasFolders = false;  ///< folders in it are among those of the scan
        QHash<QString, FolderFiles::Stamp> photos{};  ///< by name
        QHash<QString, SidecarStamp> sidecars{};  ///< by the name of the photo; of those that have one
    };
    QHash<QString, Folder> folders{};  ///< by path

    using Entering = std::function<void(const QString& path)>;
    /// `entering` is told each folder before it is listed: who watches it from then on misses nothing. With subfolders,
    /// those of FolderWalk. Once stopped, it ends early.
    static FolderScan of(const QList<QUrl>& folders, bool withSubfolders, const SidecarPolicy& sidecars,
        const Entering& entering, const std::stop_token& stop);
    /// The photos of one folder alone; nothing when it cannot be listed to its end: half a listing would pass for files
    /// removed. `sidecars` is told of those that are seen on the way.
    static std::optional<QList<QUrl>> entries(const QString& folder, SeenSidecars* sidecars);

private:
    void addFolder(
        const QString& path, const SidecarPolicy& sidecars, const Entering& entering, const std::stop_token& stop);
    void addWalk(
        const QList<QUrl>& tops, const SidecarPolicy& sidecars, const Entering& entering, const std::stop_token& stop);
};

/// A photo's path in two pieces.
struct PhotoPlace {
    QString folder{};
    QString name{};

    static PhotoPlace of(const QUrl& photo);
    static PhotoPlace of(const QString& path);
};

/// The file's modification date as it stands on disk, to the millisecond.
std::optional<QDateTime> modificationDate(const QString& path);

}  // namespace Quorbel
