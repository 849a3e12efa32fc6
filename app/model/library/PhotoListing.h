// Which of the things given to the program are photos.
// Thread: any; a listing belongs in the background. Touches the file system; starts nothing.
#pragma once

#include "app/model/library/PhotoFile.h"

namespace Quorbel {

/// The photos among the folders and files that the user gave.
struct PhotoListing {
    QList<PhotoFile> files{};  ///< each once, in natural order of their names
    QList<LeftOut> leftOut{};  ///< of those that bear the extension of a photo
    QString label{};  ///< what is open, for the window's title
    std::optional<QUrl> folder{};  ///< set when exactly one folder was given: the one to watch
    QList<QUrl> existing{};  ///< the given URLs that exist

    /// Folders contribute their immediate entries, hidden ones too; what does not exist is skipped, and a folder
    /// that cannot be listed counts as empty. A photo that a killed save left without its name has it again.
    static PhotoListing of(const QList<QUrl>& urls);
    /// Whether there is a photo or a folder among them. Lists nothing.
    static bool isWorthListing(const QList<QUrl>& urls);
};

}  // namespace Quorbel
