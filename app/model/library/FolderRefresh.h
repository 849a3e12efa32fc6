// Keeps the open photos true to what other programs do to their folders: one look at them in the background, then only
// what differs is read. Looks follow the system's word, or come every few seconds where it gives none.
// Thread: the main thread; looks and reads run in the background. Knows no selection and no edits: who does hears of
// every change of the list.
#pragma once

#include "app/model/RunningTasks.h"
#include "app/model/library/FolderLook.h"
#include "app/model/library/LookTimes.h"
#include "app/model/library/PhotoList.h"
#include "app/model/library/PhotoReader.h"
#include "app/model/library/reading/OwnWrites.h"
#include "core/MetadataService.h"

#include <QElapsedTimer>
#include <QThreadPool>

namespace Quorbel {

class FolderRefresh final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FolderRefresh)

public:
    /// `cache`: what is read is put into it; null where there is none.
    FolderRefresh(Announcer& announcer, RunningTasks& tasks, PhotoList& photos, std::optional<MetadataService> service,
        std::shared_ptr<RecordCache> cache = {});
    ~FolderRefresh() override;

    /// How looks are made: set before the first begin().
    struct Looks {
        std::function<FileSystem(const QString& path)> fileSystemOf{};  ///< empty: FileSystem::of
        std::chrono::milliseconds interval{ 3000 };  ///< between looks where the system does not tell of changes
    };
    void setLooks(const Looks& looks);

    /// From now on photos are read so. What other reads have begun with counts as written since.
    void setSidecars(const SidecarPolicy& policy);

    /// Tells which photos are going to be read anyway: their changes are none.
    void setAwaited(std::function<bool(const QUrl&)> isAwaited) { m_isAwaited = std::move(isAwaited); }

    /// Something else is open now, listed to its end: what was on its way for the old photos is dropped. The folders
    /// are looked at soon, and watched from then on, with subfolders also those that come; none: nothing is.
    void begin(const QList<QUrl>& folders, bool withSubfolders);
    bool canRefresh() const { return !m_folders.isEmpty() && m_service; }
    /// Somebody wants to know. One at a time, from the look at the folders to the last read; a call meanwhile is
    /// answered by one more.
    void refresh();
    /// How changes by others become known.
    const Watching& watching() const { return m_watching; }
    /// While nobody sees the photos, only the system's word leads to looks.
    void setOnScreen(bool on) { m_times.setOnScreen(on); }

    /// The user skipped it: it is not asked for again.
    void leaveAlone(const QUrl& photo) { m_tooSlow.insert(photo); }
    /// A write of our own to these photos begins: until its end they are left alone, since it reads them again then,
    /// and for a moment between backup and replacement they are not even there.
    void beginWriting(const QSet<QUrl>& photos);
    /// `isComplete`: every photo was read again after the write.
    void endWriting(bool isComplete);
    /// We give photos other names: until the end nobody looks, since some have names by then that nobody knows.
    void beginRenaming();
    /// These names changed.
    void endRenaming(const NewNames& names);
    /// What other reads are held against. Lives as long as this.
    const OwnWrites& writes() const { return m_writes; }

signals:
    /// These are no longer in the folder (positions, ascending). Whoever hears it takes them out of the list.
    void vanished(const QList<int>& positions);
    /// These are in the list as they are now.
    void reread(const QList<QUrl>& photos);
    /// Before that, which of them are other files by now, and not only their sidecars.
    void filesChanged(const QList<QUrl>& photos);
    /// Further photos are in the list.
    void added();
    /// A text for the banner.
    void problem(const QString& text);

private:
    using Take = std::function<void(const QList<ImageRecord>&)>;

    void look();
    void lookByTheClock();
    void takeLook(const FolderLook& look);
    void planNext(const FolderLook& look);
    void apply(const FolderNews& news);
    QList<QUrl> surelyGone(const FolderNews& news);
    QList<FolderNews::File> changed(const FolderNews& news);
    QList<int> positions(const QList<QUrl>& photos) const;
    void read(const QList<FolderNews::File>& files, const Take& take);
    void skip(QList<FolderNews::File> files, const QUrl& photo, const Take& take);
    void noteUnreadable(const QList<FolderNews::File>& files, const PhotoReader::Result& result);
    void takeChanged(const QList<ImageRecord>& fresh);
    void takeAdded(const QList<ImageRecord>& fresh);
    void endStep();

    Announcer& m_announcer;
    RunningTasks& m_tasks;
    PhotoList& m_photos;
    std::optional<MetadataService> m_service;
    std::shared_ptr<RecordCache> m_cache;
    Looks m_looks;
    QList<QUrl> m_folders;
    bool m_withSubfolders = false;
    QSet<QUrl> m_tooSlow;  ///< files that the user skipped
    LookTimes m_times;
    Watching m_watching;
    /// Of looks alone: one that hangs on a file system that is gone keeps no other work waiting, nor the program's end.
    QThreadPool* m_lookThreads;
    std::function<bool(const QUrl&)> m_isAwaited;
    std::stop_source m_stop;
    QElapsedTimer m_sinceEmptied;  ///< valid while a folder that has become empty may be about to go
    OwnWrites m_writes;
    int m_generation = 0;  ///< counts what was opened; results for an earlier one are dropped
    bool m_isRefreshing = false;
    bool m_again = false;
    bool m_isAsked = false;  ///< the next look is somebody's wish
    bool m_passedOverUnread = false;  ///< photos changed that are still to be read: a look must follow
    int m_reads = 0;
    bool m_passedOverWritten = false;  ///< photos were left out because they were being written
};

}  // namespace Quorbel
