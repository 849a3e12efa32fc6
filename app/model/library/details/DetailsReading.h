// When the details of photos are read: those of the selected ones once all else rests, then of those in view; of all
// open photos when somebody asks for it. Loads, saves, their checks and refreshes go first: what runs here is given up
// for them at once, and taken up again.
// Thread: the main thread; photos are read in the background, by threads that yield. Knows no selection and no edits:
// it is told.
#pragma once

#include "app/model/RunningTasks.h"
#include "app/model/library/PhotoList.h"
#include "app/model/library/details/DetailsFailures.h"
#include "app/model/library/details/DetailsInSight.h"
#include "app/model/library/details/DetailsReader.h"
#include "app/model/library/details/DetailsStore.h"
#include "app/model/library/details/DetailsSurvey.h"

namespace Quorbel {

class OwnWrites;

class DetailsReading final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DetailsReading)

public:
    /// What is known of how the homes of all open photos compare.
    struct Census {
        qsizetype disagreeing = 0;  ///< photos
        qsizetype unknown = 0;  ///< photos that were not looked at yet, or could not be
        bool isLooking = false;  ///< at all of them
        bool isFiltering = false;  ///< only those that disagree are listed
        bool operator==(const Census&) const = default;
    };

    /// `writes`: knows which photos were written meanwhile. `cache`: null where there is none. All outlive this.
    DetailsReading(Announcer& announcer, RunningTasks& tasks, PhotoList& photos, const OwnWrites& writes,
        std::shared_ptr<RecordCache> cache);
    ~DetailsReading() override;

    /// Set before the first photos are opened. `ask`: empty: nothing is read. `delay`: how long all else must rest
    /// before photos are read that nobody asked for.
    void setAsking(DetailsReader::Ask ask, std::chrono::milliseconds delay);

    void setSidecars(const SidecarPolicy& policy) { m_sidecars = policy; }

    const DetailsStore& store() const { return m_store; }
    Census census() const;
    /// Why a photo that is not known will not be, either; nothing while it may be.
    std::optional<DetailsFailure> failure(const QUrl& photo) const;
    /// A photo with a failure is read all the same.
    void tryAgain(const QUrl& photo);

    /// Others are open now: all that was known and asked for is dropped.
    void begin();
    /// `first`: the photo whose fields are on screen. Of too many, only those in view are read.
    void setSelected(const std::optional<QUrl>& first, const QSet<QUrl>& photos);
    void setInView(const QList<QUrl>& photos);
    /// While on, nothing is read.
    void setPaused(bool on);
    /// These changed, or may have: they are looked at anew.
    void outdate(const QList<QUrl>& photos);
    /// Further photos are in the list.
    void noteAdded();
    /// These are no longer in it.
    void forget(const QSet<QUrl>& photos);
    /// Photos have other names in the list by now.
    void rename(const NewNames& names);
    /// From now on nothing is believed that was read before.
    void readAgain();

    /// Whether only photos are listed whose homes disagree. While on, all photos are looked at, one slice after the
    /// other, unless that is cancelled.
    void setFiltering(bool on);
    /// Looks no further at all of them; what is known stays.
    void cancel();
    /// Somebody waits for these and no others, however many, and sees how far it is. True when there is nothing to wait
    /// for any more: what could be known of them is. Asked again whenever changed() was told.
    bool require(const QList<QUrl>& photos);
    /// Goes on with what was cancelled, or given up.
    void resume();
    /// Such of these as come to agree stay listed until they are not held any more: they are being edited.
    void setHeld(const QSet<QUrl>& photos);

signals:
    /// The details of these photos are known, or are out of date.
    void changed(const QList<QUrl>& photos);
    /// A text for the banner.
    void problem(const QString& text);

private:
    enum class Lane { selected, patient };
    struct Run {
        int id = 0;  ///< of its task
        Lane lane = Lane::patient;
        QList<QUrl> photos{};
        int writes = 0;  ///< that had begun or ended when it began
        QSet<QUrl> outdated{};  ///< since then
    };

    void wake();
    void schedule();
    void startSelected();
    void startPatient();
    bool isOpen(const QUrl& photo) const { return m_photos.contains(photo); }
    bool isWanted(const ImageRecord& photo) const;
    bool isWanted(const QUrl& photo) const;
    bool isToBeRead(const QUrl& photo) const { return isWanted(photo) && !m_reading.contains(photo); }
    QList<QUrl> nextSelected() const;
    QList<QUrl> nextInView() const;
    QList<QUrl> nextPart();
    QList<QUrl> nextRequired();
    QList<QUrl> nextOfAll();
    qsizetype ofAllAtOnce() const;
    QList<QUrl> allWanted() const;
    void start(Lane lane, const QList<QUrl>& photos);
    void stop(const Run& run);
    void finish(int id, const DetailsReader::Result& result);
    void take(const Run& run, const DetailsReader::Result& result);
    void list(const QList<QUrl>& photos);
    void noteFailure(const QList<QUrl>& photos, const QString& reason);
    void drop();
    void tell();

    Announcer& m_announcer;
    RunningTasks& m_tasks;
    PhotoList& m_photos;
    const OwnWrites& m_writes;
    std::shared_ptr<RecordCache> m_cache;
    SidecarPolicy m_sidecars;
    DetailsReader::Ask m_ask;
    std::chrono::milliseconds m_delay{ 0 };
    QTimer m_soon;
    DetailsStore m_store;
    std::vector<Run> m_running;
    QSet<QUrl> m_reading;  ///< in one of the runs
    DetailsFailures m_failures;
    std::vector<QList<QUrl>> m_parts;  ///< to be read by themselves: the tool failed at them
    bool m_isPaused = false;
    bool m_isCacheAsked = true;
    DetailsInSight m_inSight;
    QList<QUrl> m_required;  ///< that are still wanted
    qsizetype m_requiredInAll = 0;
    DetailsSurvey m_survey;  ///< of all photos
    bool m_isCacheUseful = true;  ///< it knew photos of the survey's last slice
    QSet<QUrl> m_held;
    QSet<QUrl> m_kept;  ///< listed though they agree
    Census m_told;
};

}  // namespace Quorbel
