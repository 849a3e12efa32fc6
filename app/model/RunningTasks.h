// The reads and writes under way: how far they are, which file one is stuck at, and how they are given up.
// Thread: the main thread; the tasks themselves run elsewhere and write to their TaskProgress.
// Knows nothing of photos, edits or saves: only of the files that a task was given.
#pragma once

#include "app/model/Announcer.h"
#include "app/model/TaskProgress.h"

#include <QDeadlineTimer>
#include <QList>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace Quorbel {

/// How far a read or a write has come, in files.
struct Progress {
    qsizetype done = 0;
    qsizetype total = 0;
    bool isSurvey = false;  ///< of a look at what photos hold beside their records
    bool isFill = false;  ///< of photos that a template is filled in for
    bool operator==(const Progress&) const = default;
};

class RunningTasks final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RunningTasks)

public:
    enum class Kind {
        load,  ///< reads many photos, in slices
        slice,  ///< a read that is part of a load, and counts in its progress; alone it is not shown unless it stalls
        write,
        check,  ///< the read that follows a write: it cannot be cancelled, though a file of it can be skipped
        refresh,  ///< not shown unless it stalls
        fill,  ///< works out what a template gives for each photo
        survey,  ///< looks at the details of all open photos; gives way to all but these two
        details,  ///< a read that is part of a survey, or of none; never shown: a file that it stalls at is skipped
    };
    struct Task {
        int id = 0;
        Kind kind = Kind::load;
        int load = 0;  ///< of a slice or of details: the load or survey that it is part of; 0 for none
        QList<QUrl> files{};  ///< of a read
        std::optional<QUrl> skipped{};  ///< ended because of this file
        std::shared_ptr<TaskProgress> progress{};
        std::stop_source stop{};
    };

    /// `stallInterval`: how long a read may be at one file before the user is offered to skip it.
    RunningTasks(Announcer& announcer, std::chrono::milliseconds stallInterval);
    /// Reads are given up, a write goes on to its end.
    ~RunningTasks() override;

    /// `files`: those that a read reads; they can be skipped. `load`: of a slice or of details.
    Task begin(Kind kind, qsizetype total, const QList<QUrl>& files = {}, int load = 0);
    /// The task as it was.
    std::optional<Task> end(int id);
    /// Asks a read to end soon.
    void stop(int id);
    /// Gives up refreshes that are shown.
    void cancelShownRefreshes();
    void cancelRefreshes();
    /// Ends the read that is stuck, with `skipped` set.
    void skipStalledFile();

    /// Whether anything runs that details give way to.
    bool isBusy() const { return m_isBusy; }
    /// Whether one is shown.
    bool isWorking() const { return m_isWorking; }
    /// Of several tasks the one that began last; nothing while none is shown.
    const std::optional<Progress>& progress() const { return m_progress; }
    /// Name of the file that a read does not get done with; nothing while it gets on.
    const std::optional<QString>& stalledFile() const { return m_stalledFile; }

signals:
    void busyChanged();

private:
    /// Reads that are stuck, and at what.
    using Stalls = std::vector<std::pair<int, QUrl>>;
    class StallWatches;

    void show(const Task& task);
    void updateBusy();
    Task* task(int id);
    std::vector<Task> watchedReads() const;
    void publishProgress();
    void lookForStall();
    void publishStall(const Stalls& stalls);
    void skipStalledDetails(const Stalls& stalls);
    void forgetOldStall();

    Announcer& m_announcer;
    std::vector<Task> m_shown;
    std::vector<Task> m_quiet;  ///< slices, details, and reads of a refresh that are not shown
    int m_lastID = 0;
    bool m_isBusy = false;
    bool m_isWorking = false;
    std::optional<Progress> m_progress;
    std::optional<QString> m_stalledFile;
    std::optional<QUrl> m_stalledURL;
    int m_stalledID = 0;  ///< of the task that is stuck at it
    std::chrono::milliseconds m_stallInterval;
    std::shared_ptr<StallWatches> m_stallWatches;  ///< used in the background, by one look at a time
    QDeadlineTimer m_nextLook{ 0 };
    bool m_isLooking = false;
    QTimer m_timer;
};

}  // namespace Quorbel
