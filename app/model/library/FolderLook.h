// One look at the open folders: what is different, and whether one will hear of what comes next.
// Thread: any but the main one; a look waits for as long as the file system does.
#pragma once

#include "app/model/library/KnownFiles.h"
#include "platform/files/FileSystem.h"

#include <chrono>
#include <memory>

namespace Quorbel {

class FolderWatches;

/// How changes by others in the open folders become known.
struct Watching {
    enum class How {
        none,  ///< no folder is open
        told,  ///< the system tells of each
        looking,  ///< it does not: one looks every few seconds
        partly,  ///< it tells of some folders; one looks at the others when asked to
    };
    How how = How::none;
    int folders = 0;  ///< that are open
    int watched = 0;  ///< of which the system tells
    bool operator==(const Watching&) const = default;
};

struct FolderLook {
    FolderNews news{};
    Watching watching{};
    bool isOutdated = false;  ///< folders are watched only since they were looked at: another look must follow
    std::chrono::milliseconds taken{};

    struct Question {
        QList<QUrl> folders{};
        bool withSubfolders = false;
        bool isAsked = false;  ///< by somebody: also tells of what was read in vain
        std::shared_ptr<KnownFiles> files{};
        std::shared_ptr<FolderWatches> watches{};
        SidecarPolicy sidecars{};
        /// Empty: FileSystem::of.
        std::function<FileSystem(const QString& path)> fileSystemOf{};
    };
    /// From now on all of the folders that can be are watched, those that were found to be new too.
    static FolderLook at(const Question& question, const std::stop_token& stop);
};

}  // namespace Quorbel
