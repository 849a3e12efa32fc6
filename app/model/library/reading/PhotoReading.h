// One load's reading: what was listed is read in slices, several at once, and whatever comes of each is told at once.
// Thread: the main thread; the slices are read in the background. Ends all of them when it is destroyed.
// Knows no list of photos: who listens puts the records where they belong.
#pragma once

#include "app/model/RunningTasks.h"
#include "app/model/library/PhotoReader.h"
#include "app/model/library/reading/ReadQueue.h"

#include <optional>

namespace Quorbel {

class OwnWrites;

class PhotoReading final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PhotoReading)

public:
    enum class Pace {
        none,
        untilFirst,  ///< one slice after the other, until a photo was read
        demanded,  ///< only what somebody waits for
        all,
    };

    /// `writes`: knows which photos were written meanwhile; outlives this.
    /// `cache`: what is read is put into it; null where there is none.
    PhotoReading(Announcer& announcer, RunningTasks& tasks, MetadataService service, std::shared_ptr<RecordCache> cache,
        const OwnWrites& writes);
    ~PhotoReading() override;

    /// What is read from now on is read so.
    void setSidecars(const SidecarPolicy& policy) { m_service.sidecars = policy; }
    /// What is to be read of so many photos, made in the background: a hundred thousand take their time. Needs that
    /// nothing was added yet.
    void begin(ReadQueue queue, qsizetype photos);
    /// Further photos that are to be read, in their order; `known`: and such as need no reading. Both count in its
    /// progress.
    void add(const QList<QUrl>& photos, qsizetype known = 0);
    /// Further ones will be added.
    void expectMore() { m_queue.expectMore(); }
    /// What is said of files that were left out before.
    void addLeftOut(const QList<LeftOut>& files) { m_leftOut += files; }
    /// These are to be read once more.
    void addAgain(const QList<QUrl>& photos);
    void setPace(Pace pace);
    Pace pace() const { return m_pace; }
    /// While other photos come first, only what somebody waits for is read.
    void setPaused(bool paused);
    void setFirst(const std::optional<QUrl>& photo);
    void setInView(const QList<QUrl>& photos) { m_queue.setInView(photos); }
    void require(const QList<QUrl>& photos);
    /// Whether it waits, or is being read.
    bool isAwaited(const QUrl& photo) const { return m_queue.isKnown(photo); }
    /// These need not be read any more: they are gone, or somebody else has read them.
    void drop(const QList<QUrl>& photos);
    /// From now on only what somebody waits for is read.
    void cancel();

    /// Whether there is a photo that was read, or needed no reading.
    bool hasRead() const { return m_hasRead || m_known > 0; }
    /// Files that the user skipped.
    const QSet<QUrl>& tooSlow() const { return m_tooSlow; }
    const QList<LeftOut>& leftOut() const { return m_leftOut; }
    /// Whether all that the pace asks for has been read.
    bool isAtRest() const;
    /// The banner's text about what could not be read; nothing where all could.
    std::optional<QString> leftOutText() const;
    /// The same, once.
    std::optional<QString> takeLeftOutText();
    /// Nothing is read or told any more.
    void end();

signals:
    /// A slice has ended: these were read, and those are no photos that can be read, or gone.
    void read(const QList<ImageRecord>& records, const QList<QUrl>& unreadable);
    /// All that this pace asks for has been read. Said once, until there is more to read.
    void rested();
    /// The tool fails at everything, and why. Nothing is read any more.
    void failed(const QString& reason);

private:
    struct Slice {
        int id = 0;  ///< of its task
        QList<QUrl> photos{};
        int writes = 0;  ///< that had begun or ended when it began
    };

    void schedule();
    void startSlices();
    void start(const QList<QUrl>& photos);
    void finish(const Slice& slice, const PhotoReader::Result& result);
    void take(const Slice& slice, const PhotoReader::Result& result);
    QList<ImageRecord> upToDate(const Slice& slice, const PhotoReader::Result& result);
    void leaveOut(const QUrl& photo, const QString& reason);
    bool searchCulprit(const Slice& slice, const QString& reason);
    void showTask();
    void endTask();

    Announcer& m_announcer;
    RunningTasks& m_tasks;
    MetadataService m_service;
    std::shared_ptr<RecordCache> m_cache;
    const OwnWrites& m_writes;
    ReadQueue m_queue;
    Pace m_pace = Pace::none;
    std::vector<Slice> m_running;
    std::optional<RunningTasks::Task> m_task;  ///< shows how far all of it is
    qsizetype m_total = 0;  ///< photos of the load, read or not
    qsizetype m_known = 0;  ///< of these, such as needed no reading
    QHash<QUrl, int> m_changes;  ///< how often a photo had changed when it was read
    QList<LeftOut> m_leftOut;
    QSet<QUrl> m_tooSlow;
    bool m_hasRead = false;
    bool m_isPaused = false;
    bool m_isResting = true;
    int m_failures = 0;  ///< slices that failed as a whole
};

}  // namespace Quorbel
