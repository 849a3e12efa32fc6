// The part of Saving that shifts times: like any save it runs alone, is proved, and can be taken back.
#include "app/model/Background.h"
#include "app/model/saving/Saving.h"
#include "app/model/timeshift/ShiftJob.h"

namespace Quorbel {

void Saving::shiftTimes(const ShiftJob::Order& order, const ShiftJob::Looked& looked)
{
    dropLook();
    const Announcer::Together together(m_announcer);
    begin(order.targets);
    const RunningTasks::Task task = m_tasks.begin(RunningTasks::Kind::write, order.targets.size());
    runInBackground(
        this,
        [service = *m_service, order, looked, history = m_history, progress = task.progress] {
            return ShiftJob::run(service, order, looked, history, *progress);
        },
        [this, order, id = task.id](const ShiftJob::Written& written) {
            {
                const Announcer::Together done(m_announcer);
                if (!written.error)
                    checkShift(order, written);
                m_tasks.end(id);
            }
            if (written.error)
                finish({ .message = ShiftJob::message(order, written, {}) });
        });
}

void Saving::checkShift(const ShiftJob::Order& order, const ShiftJob::Written& written, const QSet<QUrl>& tooSlow)
{
    const RunningTasks::Task task = m_tasks.begin(RunningTasks::Kind::check, order.targets.size(), order.targets);
    runInBackground(
        this,
        [service = *m_service, cache = m_cache, order, written, tooSlow, progress = task.progress,
            stop = task.stop.get_token()] {
            return ShiftJob::check(service, order, written, tooSlow, *progress, stop, cache);
        },
        [this, order, written, tooSlow, id = task.id](const ShiftJob::Checked& checked) {
            {
                const Announcer::Together done(m_announcer);
                const std::optional<RunningTasks::Task> ended = m_tasks.end(id);
                if (ended && ended->skipped)
                    return checkShift(order, written, QSet(tooSlow) << *ended->skipped);
                if (written.undoable)
                    setUndoable(*written.undoable);
            }
            finish({ .records = checked.records,
                .message = ShiftJob::message(order, written, checked),
                .isGood = !checked.error && checked.failures.isEmpty() && checked.differing.isEmpty() });
        });
}

}  // namespace Quorbel
