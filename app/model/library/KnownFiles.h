// The files of the open photos and their modification dates as they were read, and those of their sidecars, for looks
// at the folders in the background: the list of photos itself never leaves the main thread, and a copy of it for each
// look would cost more than the look. Thread: any. What notes never waits for a look; looks wait for one another.
#pragma once

#include "app/model/library/FolderScan.h"
#include "core/schema/ImageRecord.h"

#include <mutex>
#include <vector>

namespace Quorbel {

/// What is different in the folders from what is known of them.
struct FolderNews {
    struct File {
        QUrl url{};
        FolderFiles::Stamp stamp{};  ///< as it was seen
        SidecarStamp sidecar{};  ///< the same
    };
    /// A folder that was given, or holds known photos, is gone, may not be read, or lies on a disk that is not there:
    /// nothing can be said of its photos.
    bool isAway = false;
    QList<QUrl> gone{};
    /// Gone as well, from folders that hold no photo any more. One that is being removed is empty for a moment before
    /// it is gone.
    QList<QUrl> emptied{};
    QList<File> changed{};
    QList<File> further{};  ///< not known yet; in natural order of their names
};

class KnownFiles final {
public:
    explicit KnownFiles(const QList<ImageRecord>& photos);
    Q_DISABLE_COPY_MOVE(KnownFiles)

    /// The photo is new, or was read again.
    void note(const ImageRecord& photo);
    void forget(const QUrl& photo);
    /// These were read in vain: they are no news until they are other files, or somebody asks.
    void noteUnreadable(const QList<FolderNews::File>& files);

    /// Compares what was noted until now with a scan that begins now. `isAsked`: also tells of what was read in vain.
    FolderNews look(const std::function<FolderScan()>& scan, bool isAsked);

private:
    struct Folder {
        QHash<QString, std::optional<qint64>> dates{};  ///< by name; milliseconds since 1970, UTC
        QHash<QString, SidecarStamp> sidecars{};  ///< by the name of the photo; of those that have one
    };
    struct Step {
        enum class What { note, forget, unreadable };
        What what = What::note;
        QUrl photo{};
        std::optional<QDateTime> modified{};
        FolderFiles::Stamp stamp{};
        SidecarStamp sidecar{};
    };
    struct Comparison;

    static bool isSame(const Step& vain, const FolderNews::File& seen);
    static Step noteOf(const ImageRecord& photo);
    void add(const Step& step);
    void catchUp();
    void take(const Step& step);

    std::mutex m_looking;
    // Under m_looking. A folder's names are held once, as the records have them.
    QHash<QString, Folder> m_folders;
    QHash<QString, Step> m_unreadable;  ///< by path
    QHash<QString, quint64> m_devices;  ///< of each folder, by path, when there last was something in it
    std::mutex m_noting;
    std::vector<Step> m_steps;  ///< since the last look; under m_noting
};

}  // namespace Quorbel
