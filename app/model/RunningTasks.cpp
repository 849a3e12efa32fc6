#include "app/model/RunningTasks.h"

#include "app/model/Background.h"
#include "app/model/StallWatch.h"

#include <algorithm>
#include <map>

namespace Quorbel {

namespace {

// How often progress and stalls are looked at while something runs.
constexpr int lookInterval = 50;  // ms
constexpr int looksPerStall = 20;

}  // namespace

// One watch a read: each has a process of its own.
class RunningTasks::StallWatches {
public:
    Stalls look(const std::vector<Task>& reads, std::chrono::milliseconds interval)
    {
        Stalls stalls;
        std::map<int, StallWatch> watches;
        for (const Task& read : reads) {
            auto known = m_watches.extract(read.id);
            StallWatch& watch = known ? watches.insert(std::move(known)).position->second
                                      : watches.try_emplace(read.id, interval).first->second;
            if (const auto file = watch.look(read.progress->processID, read.files))
                stalls.emplace_back(read.id, *file);
        }
        m_watches = std::move(watches);
        return stalls;
    }

private:
    std::map<int, StallWatch> m_watches;  // by task
};

RunningTasks::RunningTasks(Announcer& announcer, std::chrono::milliseconds stallInterval)
    : m_announcer(announcer)
    , m_stallInterval(stallInterval)
    , m_stallWatches(std::make_shared<StallWatches>())
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

RunningTasks::Task RunningTasks::begin(Kind kind, qsizetype total, const QList<QUrl>& files, int load)
{
    Task task{ ++m_lastID, kind, load, files, {}, std::make_shared<TaskProgress>(), {} };
    task.progress->total = total;
    if (!m_timer.isActive())
        m_timer.start();
    if (kind == Kind::refresh || kind == Kind::slice || kind == Kind::details)
        m_quiet.push_back(task);
    else
        show(task);
    updateBusy();
    return task;
}

void RunningTasks::updateBusy()
{
    const auto goesFirst = [](const Task& task) { return task.kind != Kind::survey && task.kind != Kind::details; };
    const bool isBusy = std::any_of(m_shown.cbegin(), m_shown.cend(), goesFirst)
        || std::any_of(m_quiet.cbegin(), m_quiet.cend(), goesFirst);
    if (std::exchange(m_isBusy, isBusy) != isBusy)
        emit busyChanged();
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
    updateBusy();
    return ended;
}

RunningTasks::Task* RunningTasks::task(int id)
{
    for (std::vector<Task>* tasks : { &m_shown, &m_quiet })
        for (Task& task : *tasks)
            if (task.id == id)
                return &task;
    return nullptr;
}

void RunningTasks::stop(int id)
{
    if (Task* running = task(id))
        running->stop.request_stop();
}

void RunningTasks::cancelShownRefreshes()
{
    for (Task& task : m_shown)
        if (task.kind == Kind::refresh)
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
    Task* read = task(m_stalledID);
    if (!read || !m_stalledURL)
        return;
    read->skipped = m_stalledURL;
    read->stop.request_stop();
    m_announcer.assign(m_stalledFile, std::nullopt, Change::stalledFile);
}

// What the task that is shown reads; where nothing is shown, all reads. And all reads of details.
std::vector<RunningTasks::Task> RunningTasks::watchedReads() const
{
    std::vector<Task> reads = m_quiet;
    if (!m_shown.empty()) {
        const Task& latest = m_shown.back();
        std::erase_if(
            reads, [&latest](const Task& read) { return read.load != latest.id && read.kind != Kind::details; });
        if (latest.kind == Kind::check || latest.kind == Kind::refresh || latest.kind == Kind::slice)
            reads.push_back(latest);
    }
    std::erase_if(reads, [](const Task& read) { return read.stop.stop_requested(); });
    return reads;
}

void RunningTasks::publishProgress()
{
    std::optional<Progress> progress;
    if (!m_shown.empty()) {
        const Task& latest = m_shown.back();
        progress = Progress{ latest.progress->done, latest.progress->total, latest.kind == Kind::survey,
            latest.kind == Kind::fill };
        for (const Task& slice : m_quiet)
            if (slice.load == latest.id)
                progress->done += slice.progress->done;
        progress->done = std::min(progress->done, progress->total);
    }
    m_announcer.assign(m_progress, progress, Change::progress);
}

void RunningTasks::lookForStall()
{
    forgetOldStall();
    const std::vector<Task> reads = watchedReads();
    if (reads.empty() || m_isLooking || !m_nextLook.hasExpired())
        return;
    m_isLooking = true;
    m_nextLook = QDeadlineTimer(m_stallInterval / looksPerStall);
    runInBackground(
        this, [watches = m_stallWatches, reads, interval = m_stallInterval] { return watches->look(reads, interval); },
        [this](const Stalls& stalls) {
            m_isLooking = false;
            publishStall(stalls);
        });
}

// What was found is of no interest any more when other reads are watched by now.
void RunningTasks::publishStall(const Stalls& stalls)
{
    const Announcer::Together together(m_announcer);
    skipStalledDetails(stalls);
    std::optional<QUrl> file;
    for (const Task& read : watchedReads())
        for (const auto& [id, stalledAt] : stalls)
            if (read.id == id && !file) {
                file = stalledAt;
                m_stalledID = id;
            }
    m_stalledURL = file;
    const auto quiet =
        std::find_if(m_quiet.begin(), m_quiet.end(), [this](const Task& read) { return read.id == m_stalledID; });
    if (file && m_shown.empty() && quiet != m_quiet.end()) {
        const Task read = *quiet;
        m_quiet.erase(quiet);
        show(read);
    }
    const auto name = file ? std::optional(file->fileName()) : std::nullopt;
    m_announcer.assign(m_stalledFile, name, Change::stalledFile);
}

// Nobody waits for them, and nobody is asked.
void RunningTasks::skipStalledDetails(const Stalls& stalls)
{
    for (const auto& [id, stalledAt] : stalls)
        if (Task* read = task(id); read && read->kind == Kind::details && !read->stop.stop_requested()) {
            read->skipped = stalledAt;
            read->stop.request_stop();
        }
}

void RunningTasks::forgetOldStall()
{
    const std::vector<Task> reads = watchedReads();
    if (std::any_of(reads.cbegin(), reads.cend(), [this](const Task& read) { return read.id == m_stalledID; }))
        return;
    m_stalledURL.reset();
    m_announcer.assign(m_stalledFile, std::nullopt, Change::stalledFile);
}

}  // namespace Quorbel
