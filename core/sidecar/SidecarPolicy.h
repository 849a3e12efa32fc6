// Which photos keep their edits beside them, in an XMP sidecar, and which file that is.
// Thread: any. A plain value; what asks for files touches the file system.
#pragma once

#include "core/schema/Enumerations.h"

#include <QList>
#include <QString>
#include <QUrl>

namespace Quorbel {

/// How a sidecar that does not exist yet is called: "IMG_1.xmp" or "IMG_1.CR3.xmp".
enum class SidecarNaming { base, full };

template <>
struct RawValues<SidecarNaming> {
    static const QList<std::pair<SidecarNaming, QString>>& table();
};

struct SidecarPolicy {
    bool isRawBeside = false;  ///< edits of raw photos, but DNG, go beside them
    bool isDngBeside = false;  ///< edits of DNG photos do
    SidecarNaming naming = SidecarNaming::base;  ///< of new ones
    bool operator==(const SidecarPolicy&) const = default;

    /// Whether there is any photo whose edits go beside it.
    bool isInUse() const { return isRawBeside || isDngBeside; }
    /// Whether the edits of this photo do. Goes by the name alone.
    bool isBeside(const QUrl& photo) const;
    /// The sidecar that is there, of a photo whose edits go beside it: "photo.ext.xmp" before "photo.xmp", with the
    /// extension in small letters or capitals; "" for any other photo, and where there is none. A folder of such a name
    /// is one only where no file is: it is named then, and nothing is written.
    QString existing(const QUrl& photo) const;
    /// The same, or the path that a new one gets. A base name that the photo shares with another one whose edits go
    /// beside it is not enough for a new sidecar: then the full one is taken.
    QString path(const QUrl& photo) const;
    /// Whether another photo, whose edits go beside it, has the same base name in the folder.
    bool sharesBase(const QUrl& photo) const;
    /// The files that a save of these photos writes, in their order: their own, or their sidecars.
    QList<QUrl> filesToWrite(const QList<QUrl>& photos) const;
};

}  // namespace Quorbel
