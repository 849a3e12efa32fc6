// Which folders one queue of the kernel's file events (inotify) is about.
// Thread: any, one call at a time; each waits for as long as the file system does. Reading the queue is another's.
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

#include <mutex>

namespace Quorbel {

class FolderWatches final {
public:
    /// `most`: how many folders at the same time.
    explicit FolderWatches(int most);
    ~FolderWatches();
    Q_DISABLE_COPY_MOVE(FolderWatches)

    /// The queue; -1 where the system grants none. Valid as long as this lives.
    int descriptor() const { return m_descriptor; }
    /// From now on, what happens to the immediate entries of the folder is queued: created, deleted, moved, written,
    /// closed after writing, attributes changed. A folder that is watched already still is; another one of its name is
    /// watched in its place. False: it cannot be, or no more folders than now.
    bool add(const QString& folder);
    /// All others are no longer watched.
    void keep(const QSet<QString>& folders);

private:
    const int m_most;
    const int m_descriptor;
    std::mutex m_changing;
    QHash<QString, int> m_watched;  ///< the queue's number of each folder; under m_changing
};

}  // namespace Quorbel
