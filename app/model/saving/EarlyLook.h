// What a save of some photos is about to replace, read while the user still types, so that the save need not.
// Thread: any; look() blocks on ExifTool, and values() on look(). Knows nothing of edits.
#pragma once

#include "app/model/library/PhotoFile.h"
#include "core/MetadataService.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stop_token>

namespace Quorbel {

class EarlyLook final {
public:
    /// Of more photos no look is worth while: few of them are saved, and that save takes its time anyway.
    static constexpr qsizetype mostPhotos = 64;

    /// `patience`: how long after this a save waits for the look at the most.
    EarlyLook(const QSet<QUrl>& photos, std::chrono::milliseconds patience);
    Q_DISABLE_COPY_MOVE(EarlyLook)

    const QSet<QUrl>& photos() const { return m_photos; }
    /// Reads, once. Never throws; a look that fails is no look.
    void look(const MetadataService& service);
    /// Ends the look, if it runs, without a result.
    void giveUp();
    /// What these photos hold in all tags that a save may replace, as if it looked now. Waits for the look. Nothing
    /// when that failed or takes too long, when it was at other photos, or when one of them may have changed since.
    std::optional<OldValues> values(const QList<QUrl>& targets);

private:
    struct Found {
        QHash<QUrl, PhotoFile> files{};  ///< as they were before they were read, by what is behind links
        OldValues values{};
    };

    std::optional<Found> find(const MetadataService& service) const;
    bool isOf(const QList<QUrl>& targets) const;

    const QSet<QUrl> m_photos;
    const std::chrono::steady_clock::time_point m_latest;
    std::stop_source m_stop;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_hasEnded = false;
    std::optional<Found> m_found;
};

}  // namespace Quorbel
