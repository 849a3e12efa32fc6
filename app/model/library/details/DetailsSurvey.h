// The look at all open photos, one slice after the other: which of them are still to come, and how far it is. Thread:
// the main thread. Reads nothing; knows no details.
#pragma once

#include "app/model/RunningTasks.h"
#include "core/renaming/NewNames.h"

#include <functional>
#include <optional>

namespace Quorbel {

class DetailsSurvey final {
    Q_DISABLE_COPY_MOVE(DetailsSurvey)

public:
    /// `tasks` outlives this.
    explicit DetailsSurvey(RunningTasks& tasks)
        : m_tasks(tasks)
    {
    }

    /// Whether all photos are wanted; `isLooking`: some of them are still to be looked at.
    void setOn(bool on, bool isLooking);
    bool isOn() const { return m_isOn; }
    bool isLooking() const { return m_isLooking; }

    /// What may still be wanted, from now on.
    void setPhotos(const QList<QUrl>& photos) { m_photos = photos; }
    /// Takes so many of them out that are to be read.
    QList<QUrl> take(qsizetype most, const std::function<bool(const QUrl&)>& isToBeRead);
    /// These were taken, and may be wanted all the same.
    void putBack(const QList<QUrl>& photos) { m_photos = photos + m_photos; }
    void rename(const NewNames& names) { m_photos = names.of(m_photos); }

    /// Shown as a task, until end().
    void show(qsizetype done, qsizetype total);
    bool isShown() const { return m_task.has_value(); }
    void setDone(qsizetype done) { m_task->progress->done = done; }
    /// 0 while it is not shown.
    int task() const { return m_task ? m_task->id : 0; }
    /// Nothing is left to look at.
    void end();
    /// No photo is wanted, and nothing shown, any more.
    void drop();

private:
    RunningTasks& m_tasks;
    bool m_isOn = false;
    bool m_isLooking = false;
    QList<QUrl> m_photos;  ///< that may still be wanted
    std::optional<RunningTasks::Task> m_task;  ///< shows how far it is
};

}  // namespace Quorbel
