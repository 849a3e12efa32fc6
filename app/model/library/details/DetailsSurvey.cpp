#include "app/model/library/details/DetailsSurvey.h"

namespace Quorbel {

void DetailsSurvey::setOn(bool on, bool isLooking)
{
    m_isOn = on;
    m_isLooking = isLooking;
}

QList<QUrl> DetailsSurvey::take(qsizetype most, const std::function<bool(const QUrl&)>& isToBeRead)
{
    QList<QUrl> next;
    qsizetype looked = 0;
    while (looked < m_photos.size() && next.size() < most) {
        const QUrl& photo = m_photos.at(looked++);
        if (isToBeRead(photo))
            next.append(photo);
    }
    m_photos.remove(0, looked);
    m_isLooking = m_isLooking || !next.isEmpty();
    return next;
}

void DetailsSurvey::show(qsizetype done, qsizetype total)
{
    if (!m_task)
        m_task = m_tasks.begin(RunningTasks::Kind::survey, total);
    m_task->progress->total = total;
    m_task->progress->done = done;
}

void DetailsSurvey::end()
{
    m_isLooking = false;
    if (const auto task = std::exchange(m_task, std::nullopt))
        m_tasks.end(task->id);
}

void DetailsSurvey::drop()
{
    m_isOn = false;
    end();
    m_photos.clear();
}

}  // namespace Quorbel
