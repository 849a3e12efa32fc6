// A sidecar as it was before a save. Thread: any; reads and writes that one file.
#pragma once

#include "core/save/journal/FileStamp.h"

#include <QByteArray>

namespace Quorbel {

/// The XMP file beside a photo that a save has written as well.
struct JournalSidecar {
    QString path{};  ///< empty: none was written
    std::optional<FileStamp> before{};  ///< nothing when there was none
    std::optional<FileStamp> after{};
    QByteArray text{};  ///< all that it held before
    bool operator==(const JournalSidecar&) const = default;

    /// As it is now, before the save.
    static JournalSidecar of(const QString& path);
    /// Puts it back unless somebody else changed it since. Whether that worked, or was not to be done.
    bool restore() const;
};

}  // namespace Quorbel
