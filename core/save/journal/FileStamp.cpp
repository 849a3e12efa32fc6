#include "core/save/journal/FileStamp.h"

#include <QDateTime>
#include <QFileInfo>

namespace Quorbel {

std::optional<FileStamp> FileStamp::of(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return std::nullopt;
    return FileStamp{ .modified = info.lastModified().toMSecsSinceEpoch(), .size = info.size() };
}

}  // namespace Quorbel
