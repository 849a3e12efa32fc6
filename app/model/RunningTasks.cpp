#include "app/model/RunningTasks.h"

#include "app/model/Background.h"

namespace Quorbel {

namespace {

// How often progress and stalls are looked at while something runs.
constexpr int lookInterval = 50;  // ms
constexpr int looksPerStall = 20;

}  // namespace

RunningTasks::RunningTasks(Announcer& announcer, std::chrono::milliseconds stallInterval)
    : m_announcer(announcer)
    , m_stallInterval(stallInterval)
    , m_stallWatch(std::make_shared<StallWatch>(stallInterval))
{
    m_timer.setInterval(lookInterval);
    connect(&m_timer, &QTimer::timeout, this, &RunningTasks::publishProgress);
    connect(&m_timer, &QTimer::timeout, this, &RunningTasks::lookForStall);
}

RunningTasks::~RunningTasks()
{
    for (std::vector<Task>* tasks : { &m_shown, &m_quiet })
        for (Task& task : *tasks)
            if (task.kind != Kind::write)
                task.stop.request_stop();
}

RunningTasks::Task RunningTasks::begin(Kind kind, qsizetype total, const QList<QUrl>& files)
{
    Task task{ ++m_lastID, kind, files, {}, std::make_shared<TaskProgress>(), {} };
    task.progress->total = total;
    m_timer.start();
    if (kind == Kind::refresh)
        m_quiet.push_back(task);
    else
        show(task);
    return task;
}

void RunningTasks::show(const Task& task)
{
    m_shown.push_back(task);
    m_announcer.assign(m_isWorking, true, Change::isWorking);
    publishProgress();
}

std::optional<RunningTasks::Task> RunningTasks::end(int id)
{
    std::optional<Task> ended;
    for (std::vector<Task>* tasks : { &m_shown, &m_quiet }) {
        for (const Task& task : *tasks)
            if (task.id == id)
                ended = task;
        std::erase_if(*tasks, [id](const Task& task) { return task.id == id; });
    }
    if (m_shown.empty() && m_quiet.empty())
        m_timer.stop();
    m_announcer.assign(m_isWorking, !m_shown.empty(), Change::isWorking);
    publishProgress();
    forgetOldStall();
    return ended;
}

void RunningTasks::cancelReads()
{
    for (Task& task : m_shown)
        if (task.kind == Kind::load || task.kind == Kind::refresh)
            task.stop.request_stop();
}

void RunningTasks::cancelRefreshes()
{
    for (std::vector<Task>* tasks : { &m_shown, &m_quiet })
        for (Task& task : *tasks)
            if (task.kind == Kind::refresh)
                task.stop.request_stop();
}

void RunningTasks::skipStalledFile()
{
    Task* read = watchedRead();
    if (!read || !m_stalledURL)
        return;
    read->skipped = m_stalledURL;
    read->stop.request_stop();
    m_announcer.assign(m_stalledFile, std::nullopt, Change::stalledFile);
}

// The task that is shown, if it is a read that goes on; where nothing is shown, a read of a refresh.
RunningTasks::Task* RunningTasks::watchedRead()
{
    std::vector<Task>& tasks = m_shown.empty() ? m_quiet : m_shown;
    if (tasks.empty() || tasks.back().kind == Kind::write || tasks.back().stop.stop_requested())
        return nullptr;
    return &tasks.back();
}

void RunningTasks::publishProgress()
{
    std::optional<Progress> progress;
    if (!m_shown.empty()) {
        const TaskProgress& latest = *m_shown.back().progress;
        progress = Progress{ latest.done, latest.total };
    }
    m_announcer.assign(m_progress, progress, Change::progress);
}

void RunningTasks::lookForStall()
{
    forgetOldStall();
    const Task* read = watchedRead();
    if (!read || m_isLooking || !m_nextLook.hasExpired())
        return;
    m_isLooking = true;
    m_nextLook = QDeadlineTimer(m_stallInterval / looksPerStall);
    runInBackground(
        this,
        [watch = m_stallWatch, processID = read->progress->processID.load(), files = read->files] {
            return watch->look(processID, files);
        },
        [this, id = read->id](const std::optional<QUrl>& file) {
            m_isLooking = false;
            publishStall(id, file);
        });
}

// What was found is of no interest any more when another task is watched by now.
void RunningTasks::publishStall(int id, const std::optional<QUrl>& file)
{
    const Task* read = watchedRead();
    if (!read || read->id != id)
        return;
    const Announcer::Together together(m_announcer);
    m_stalledURL = file;
    m_stalledID = id;
    if (file && m_shown.empty()) {
        const Task quiet = m_quiet.back();
        m_quiet.pop_back();
        show(quiet);
    }
    const auto name = file ? std::optional(file->fileName()) : std::nullopt;
    m_announcer.assign(m_stalledFile, name, Change::stalledFile);
}

void RunningTasks::forgetOldStall()
{
    const Task* read = watchedRead();
    if (read && read->id == m_stalledID)
        return;
    m_stalledURL.reset();
    m_announcer.assign(m_stalledFile, std::nullopt, Change::stalledFile);
}

}  // namespace Quorbel
