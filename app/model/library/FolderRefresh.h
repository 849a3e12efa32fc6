// Keeps the open photos true to what other programs do to their folder: one look at it in the background, then only
// what differs is read.
// Thread: the main thread; looks and reads run in the background. Knows no selection and no edits: who does hears of
// every change of the list.
#pragma once

#include "app/model/RunningTasks.h"
#include "app/model/library/PhotoList.h"
#include "core/MetadataService.h"

#include <functional>
#include <memory>

namespace Quorbel {

class FolderWatcher;
struct FolderNews;

class FolderRefresh final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FolderRefresh)

public:
    FolderRefresh(Announcer& announcer, RunningTasks& tasks, PhotoList& photos, std::optional<MetadataService> service);
    ~FolderRefresh() override;

    /// Something else is open now: what was on its way for the old photos is dropped. The folder is watched; nothing
    /// is where there is none. `tooSlow`: files that the user skipped; they are not asked for again.
    void begin(const std::optional<QUrl>& folder, const QSet<QUrl>& tooSlow);
    bool canRefresh() const { return m_folder && m_service; }
    /// One at a time, from the look at the folder to the last read; a call meanwhile is answered by one more.
    void refresh();

    /// A write of our own to these photos begins: until its end they are left alone, since it reads them again then,
    /// and for a moment between backup and replacement they are not even there.
    void beginWriting(const QSet<QUrl>& photos);
    /// `isComplete`: every photo was read again after the write.
    void endWriting(bool isComplete);
    /// Counts the ends of writes: what was read under another number may be older than what is in the files.
    int endedWrites() const { return m_endedWrites; }
    bool isBeingWritten(const QUrl& photo) const { return m_beingWritten.contains(photo); }

signals:
    /// These are no longer in the folder (positions, ascending). Whoever hears it takes them out of the list.
    void vanished(const QList<int>& positions);
    /// These are in the list as they are now.
    void reread(const QList<QUrl>& photos);
    /// Further photos are in the list.
    void added();
    /// A text for the banner.
    void problem(const QString& text);

private:
    using Take = std::function<void(const QList<ImageRecord>&)>;

    void apply(const FolderNews& news);
    QList<int> positions(const QList<QUrl>& photos) const;
    void read(const QList<QUrl>& urls, const Take& take);
    void takeChanged(const QList<ImageRecord>& fresh);
    void takeAdded(const QList<ImageRecord>& fresh);
    void endStep();
    void watch();

    Announcer& m_announcer;
    RunningTasks& m_tasks;
    PhotoList& m_photos;
    std::optional<MetadataService> m_service;
    std::optional<QUrl> m_folder;
    QSet<QUrl> m_tooSlow;
    std::unique_ptr<FolderWatcher> m_watcher;
    QSet<QUrl> m_beingWritten;
    int m_generation = 0;  ///< counts what was opened; results for an earlier one are dropped
    int m_writes = 0;  ///< counts beginnings and ends of writes
    int m_endedWrites = 0;
    bool m_isRefreshing = false;
    bool m_again = false;
    int m_reads = 0;
    bool m_passedOverWritten = false;  ///< photos were left out because they were being written
};

}  // namespace Quorbel
