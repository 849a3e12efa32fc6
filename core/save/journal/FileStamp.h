// When a file was changed last, and how large it is. Thread: any.
#pragma once

#include <QString>

#include <optional>

namespace Quorbel {

/// Enough of a file's state to tell whether somebody else changed it since.
struct FileStamp {
    qint64 modified = 0;  ///< milliseconds since 1970, UTC
    qint64 size = 0;  ///< bytes
    bool operator==(const FileStamp&) const = default;

    /// Nothing when there is no such file.
    static std::optional<FileStamp> of(const QString& path);
};

}  // namespace Quorbel
