// Which of the things given to the program are photos.
// Thread: any; a listing belongs in the background. Touches the file system; starts nothing.
#pragma once

#include "app/model/library/FolderOrder.h"
#include "app/model/library/PhotoFile.h"

#include <functional>
#include <stop_token>

namespace Quorbel {

namespace FolderWalk {
struct Found;
}

/// The photos among the folders and files that the user gave.
struct PhotoListing {
    enum class Part {
        whole,
        first,  ///< further ones may follow
        further,
    };
    Part part = Part::whole;
    QList<PhotoFile> files{};  ///< each once, in natural order of their names; with subfolders in that of the walk
    QList<LeftOut> leftOut{};  ///< of those that bear the extension of a photo
    QString label{};  ///< what is open, for the window's title
    std::optional<QUrl> folder{};  ///< set when exactly one folder was given
    QList<QUrl> existing{};  ///< the given URLs that exist
    QList<QUrl> tops{};  ///< folders that were listed with all folders in them

    /// Folders contribute their immediate entries, hidden ones too; what does not exist is skipped, and a folder
    /// that cannot be listed counts as empty. A photo that a killed save left without its name has it again.
    static PhotoListing of(const QList<QUrl>& urls, const SidecarPolicy& sidecars = {});
    /// The same, but folders contribute the photos of all folders in them too, and `take` is given the files in pieces
    /// while they are found (FolderWalk). The first one with files in it is the whole or the first part; all but files
    /// is the same in each. Ends early once stopped.
    static void withSubfolders(const QList<QUrl>& urls, const SidecarPolicy& sidecars, const std::stop_token& stop,
        const std::function<void(PhotoListing)>& take);
    /// Whether there is a photo or a folder among them. Lists nothing.
    static bool isWorthListing(const QList<QUrl>& urls);
    /// The folders that are watched: the one that was given, or all with those in them.
    QList<QUrl> watched() const;
    /// The order that subfolders bring; none without.
    FolderOrder folderOrder() const;

private:
    void add(const FolderWalk::Found& found);
};

}  // namespace Quorbel
