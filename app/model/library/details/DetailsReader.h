// Reads the details of some photos for the model: from the cache what is known there, the rest by one run of the tool.
// Thread: any but the main one; read() blocks on ExifTool.
#pragma once

#include "app/model/TaskProgress.h"
#include "core/MetadataService.h"

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

namespace Quorbel {
class RecordCache;
}

namespace Quorbel::DetailsReader {

/// Like MetadataService::details().
using Ask = std::function<QHash<QUrl, PhotoDetails>(const QList<ImageRecord>& photos, const ReadControl& control)>;

struct Order {
    QList<ImageRecord> photos{};  ///< as the list has them
    qsizetype most = 0;  ///< so many of those that are not in the cache are read, the first ones
    std::shared_ptr<RecordCache> cache{};  ///< what is read is put into it; null where there is none
    bool isCacheAsked = true;
    SidecarPolicy sidecars{};  ///< by which the photos were read
};

struct Result {
    QList<PhotoDetails> found{};
    qsizetype known = 0;  ///< of these, such as the cache knew
    QHash<QUrl, QString> unreadable{};  ///< the tool was asked for these, or could not be, and why there is no answer
    QList<QUrl> changed{};  ///< files that are not what they were before the read
    std::optional<QString> error{};  ///< the run failed as a whole: its description; what the cache knew is found
    QList<QUrl> asked{};  ///< the photos of that run
    bool isCancelled = false;
};

/// Never throws. Photos that are in none of the lists were not looked at yet.
Result read(const Ask& ask, const Order& order, TaskProgress& progress, std::stop_token stop);

}  // namespace Quorbel::DetailsReader
