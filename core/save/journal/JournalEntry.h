// What one save replaced, and in which files. Thread: any. Plain values.
#pragma once

#include "core/save/journal/FileStamp.h"
#include "core/save/journal/JournalSidecar.h"
#include "core/tool/TagDump.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

namespace Quorbel {

struct JournalFile {
    QString path{};
    /// The photo that was saved, where it is a symbolic link to this file, or this file is its sidecar.
    QString link{};
    FileStamp before{};
    FileStamp after{};
    /// What they held before the save. A written tag that is not here was absent.
    FileTags tags{};
    QStringList writtenTags{};  ///< of this file, where they are not all of the save's; see JournalTags::writtenTags()
    JournalSidecar sidecar{};

    /// The file is the sidecar of a photo whose edits go beside it: it goes back whole.
    bool isSidecar() const { return !path.isEmpty() && path == sidecar.path; }
    /// The photo that the user knows the file by.
    QString photo() const { return isSidecar() && !link.isEmpty() ? link : path; }
    bool operator==(const JournalFile&) const = default;
};

/// One save.
struct JournalEntry {
    QDateTime savedAt{};
    QStringList writtenTags{};  ///< the tags that the save assigned in some file, as its assignments name them
    QStringList customNames{};  ///< names of the custom fields among them
    QList<JournalFile> files{};
    bool isTimeShift = false;  ///< the save was a shift of times
    bool operator==(const JournalEntry&) const = default;
};

}  // namespace Quorbel
