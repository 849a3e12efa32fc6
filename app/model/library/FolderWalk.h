// The photos of folders and of all folders in them, handed over while they are found.
// Thread: any; a walk belongs in the background. Touches the file system; starts nothing.
//
// The photos of a folder come before those of the folders in it, names in natural order. Hidden folders are left out,
// but for a top. A link is followed where it leads to something that is not reached anyway; never to a folder that it
// lies in itself. Each folder is entered once, and each file listed once: second names (hard links) are photos of their
// own, as they are to whoever writes them. Folders that cannot be read are left out.
#pragma once

#include "app/model/library/PhotoFile.h"

#include <functional>
#include <stop_token>

namespace Quorbel::FolderWalk {

struct Folder {
    QUrl url{};
    bool isListed = false;  ///< to its end; false: gone, not readable, or the walk was stopped in it
};

/// What bears the extension of a photo.
struct Photo {
    QUrl url{};
    PhotoFile::Look look{};
};

/// A piece of a walk.
struct Found {
    QList<Photo> photos{};
    QList<Folder> folders{};  ///< those that the walk is through with, without those in them
    bool isLast = false;
};

/// Photos whose edits go beside them are looked at with their sidecars. `take` is called in the calling thread, the
/// first time soon, then every tenth of a second or for 500 photos, and at the end. `entering` is told each folder
/// before it is listed: who watches it from then on misses nothing. False when stopped.
bool through(const QList<QUrl>& tops, const SidecarPolicy& sidecars, const std::stop_token& stop,
    const std::function<void(Found)>& take, const std::function<void(const QString& folder)>& entering = {});

}  // namespace Quorbel::FolderWalk
