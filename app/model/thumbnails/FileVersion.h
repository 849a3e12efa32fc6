// Which file a name stands for at the moment: what differs when it was written, or when another file took its name.
// Thread: any. One look at the file system each.
#pragma once

#include <QString>

namespace Quorbel {

struct FileVersion {
    qint64 size = -1;  ///< bytes; -1: there is no file
    qint64 seconds = 0;  ///< of the modification, since 1970
    qint64 nanoseconds = 0;
    quint64 inode = 0;

    static FileVersion of(const QString& path);
    bool operator==(const FileVersion&) const = default;
};

}  // namespace Quorbel
