// The files of the open photos and their modification dates as they were read, for looks at the folder in the
// background: the list of photos itself never leaves the main thread, and a copy of it for each look would cost more
// than the look.
// Thread: any. note() and forget() never wait for a look; looks wait for one another.
#pragma once

#include "app/model/library/FolderScan.h"
#include "core/schema/ImageRecord.h"

#include <mutex>
#include <vector>

namespace Quorbel {

/// What is different in a folder from what is known of it.
struct FolderNews {
    bool isListed = false;  ///< false: the folder is gone or may not be read, and nothing can be said
    QList<QUrl> gone{};
    QList<QUrl> changed{};
    QList<QUrl> further{};  ///< not known yet; in natural order of their names
};

class KnownFiles final {
public:
    explicit KnownFiles(const QList<ImageRecord>& photos);
    Q_DISABLE_COPY_MOVE(KnownFiles)

    /// The photo is new, or was read again.
    void note(const ImageRecord& photo);
    void forget(const QUrl& photo);
    /// Looks at the folder; what was noted until then is taken into account.
    FolderNews look(const QUrl& folder);

private:
    struct Step {
        QUrl photo{};
        std::optional<QDateTime> modified{};
        bool isForgotten = false;
    };

    void catchUp();

    std::mutex m_looking;
    QHash<QUrl, std::optional<QDateTime>> m_files;  ///< under m_looking
    std::mutex m_noting;
    std::vector<Step> m_steps;  ///< since the last look; under m_noting
};

}  // namespace Quorbel
