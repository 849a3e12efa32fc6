// Reads photos for the model: leaves out what ExifTool would stumble over, and turns failures into texts.
// Thread: any but the main one; read() blocks on ExifTool.
#pragma once

#include "app/model/TaskProgress.h"
#include "app/model/library/PhotoFile.h"
#include "core/MetadataService.h"

#include <memory>
#include <optional>
#include <stop_token>

namespace Quorbel {
class RecordCache;
}

namespace Quorbel::PhotoReader {

struct Result {
    QList<ImageRecord> records{};  ///< of the files that were read, in their order
    QList<LeftOut> leftOut{};
    QList<QUrl> changed{};  ///< files that are not what they were before the read
    std::optional<QString> error{};  ///< the read failed as a whole: its description; there are no records
    bool isCancelled = false;
};

/// Never throws. A pipe blocks ExifTool for ever, and it walks into directories: what is no regular file is left out
/// silently, and so is what is gone, before or during the read. Empty, unreadable, dangling and broken files are left
/// out and named. A record bears the modification date that its file had before the read, so that a change during the
/// read is noticed by the next look at the folder. What was read is put into the cache, where there is one; nothing is
/// taken from it.
Result read(const MetadataService& service, const QList<QUrl>& urls, TaskProgress& progress, std::stop_token stop,
    const std::shared_ptr<RecordCache>& cache = {});

/// The banner's text for these files; at least one. Photos whose sidecars are broken are not left out.
QString leftOutText(const QList<LeftOut>& files);

}  // namespace Quorbel::PhotoReader
