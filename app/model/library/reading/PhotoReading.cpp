#include "app/model/library/reading/PhotoReading.h"

#include "app/model/Background.h"
#include "app/model/library/reading/OwnWrites.h"
#include "core/language/Texts.h"

#include <QPointer>
#include <QThread>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// A photo that changes whenever it is read is shown as it was.
constexpr int mostChanges = 3;
// So often a slice may fail before one was read. One bad photo fails with one half of its slice, never with both.
constexpr int mostFailures = 4;

size_t readsAtOnce()
{
    return size_t(std::max(1, QThread::idealThreadCount()));
}

}  // namespace

PhotoReading::PhotoReading(Announcer& announcer, RunningTasks& tasks, MetadataService service,
    std::shared_ptr<RecordCache> cache, const OwnWrites& writes)
    : m_announcer(announcer)
    , m_tasks(tasks)
    , m_service(std::move(service))
    , m_cache(std::move(cache))
    , m_writes(writes)
{
}

PhotoReading::~PhotoReading()
{
    end();
    discardInBackground(std::move(m_queue));
}

void PhotoReading::end()
{
    m_pace = Pace::none;
    for (const Slice& slice : std::exchange(m_running, {})) {
        m_tasks.stop(slice.id);
        m_tasks.end(slice.id);
    }
    endTask();
}

void PhotoReading::begin(ReadQueue queue, qsizetype photos)
{
    m_queue = std::move(queue);
    m_total = photos;
    m_known = photos - m_queue.left();
    schedule();
}

void PhotoReading::add(const QList<QUrl>& photos, qsizetype known)
{
    m_queue.add(photos);
    m_total += photos.size() + known;
    m_known += known;
    if (m_task)
        m_task->progress->total = m_total;
    schedule();
}

void PhotoReading::addAgain(const QList<QUrl>& photos)
{
    m_queue.add(photos);
    schedule();
}

void PhotoReading::setPace(Pace pace)
{
    m_pace = pace;
    m_isResting = false;
    schedule();
}

void PhotoReading::setPaused(bool paused)
{
    m_isPaused = paused;
    schedule();
}

void PhotoReading::setFirst(const std::optional<QUrl>& photo)
{
    m_queue.setFirst(photo);
    schedule();
}

void PhotoReading::require(const QList<QUrl>& photos)
{
    m_queue.require(photos);
    if (!photos.isEmpty())
        showTask();
    schedule();
}

std::optional<QString> PhotoReading::leftOutText() const
{
    return m_leftOut.isEmpty() ? std::nullopt : std::optional(PhotoReader::leftOutText(m_leftOut));
}

std::optional<QString> PhotoReading::takeLeftOutText()
{
    const auto text = leftOutText();
    m_leftOut.clear();
    return text;
}

void PhotoReading::showTask()
{
    if (m_task)
        return;
    m_task = m_tasks.begin(RunningTasks::Kind::load, m_total);
    m_task->progress->done = m_total - m_queue.left();
}

void PhotoReading::endTask()
{
    if (m_task)
        m_tasks.end(m_task->id);
    m_task.reset();
}

void PhotoReading::drop(const QList<QUrl>& photos)
{
    m_queue.end(photos);
    const auto isWanted = [this](const QUrl& photo) { return m_queue.isKnown(photo); };
    for (const Slice& slice : m_running)
        if (std::none_of(slice.photos.cbegin(), slice.photos.cend(), isWanted))
            m_tasks.stop(slice.id);
    schedule();
}

void PhotoReading::cancel()
{
    m_pace = Pace::demanded;
    for (const Slice& slice : m_running)
        m_tasks.stop(slice.id);
    endTask();
    schedule();
}

void PhotoReading::schedule()
{
    const Announcer::Together together(m_announcer);
    const QPointer<PhotoReading> self(this);
    startSlices();
    if (m_task)
        m_task->progress->done = m_total - m_queue.left();
    if (isAtRest() && !std::exchange(m_isResting, true))
        emit rested();
    if (self && isAtRest())
        endTask();
}

void PhotoReading::startSlices()
{
    if (m_pace == Pace::none || (m_pace == Pace::untilFirst && hasRead()))
        return;
    const size_t most = m_pace == Pace::untilFirst ? 1 : readsAtOnce();
    while (m_running.size() < most) {
        const QList<QUrl> photos = m_queue.next(m_pace == Pace::demanded || m_isPaused);
        if (photos.isEmpty())
            return;
        if (m_pace != Pace::demanded)
            showTask();
        start(photos);
    }
    // Nobody waits for the fields of one photo until two hundred others are done.
    if (m_running.size() == most && m_pace != Pace::untilFirst)
        if (const QList<QUrl> first = m_queue.nextFirst(); !first.isEmpty())
            start(first);
}

void PhotoReading::start(const QList<QUrl>& photos)
{
    const RunningTasks::Task task =
        m_tasks.begin(RunningTasks::Kind::slice, photos.size(), photos, m_task ? m_task->id : 0);
    const Slice slice{ task.id, photos, m_writes.count() };
    m_running.push_back(slice);
    m_isResting = false;
    const auto job = [service = m_service, cache = m_cache, photos, progress = task.progress,
                         stop = task.stop.get_token()] {
        return PhotoReader::read(service, photos, *progress, stop, cache);
    };
    const auto done = [this, slice](const PhotoReader::Result& result) { finish(slice, result); };
    // Nobody waits for many.
    if (photos.size() > ReadQueue::wholeSize)
        runPatiently(this, job, done);
    else
        runInBackground(this, job, done);
}

void PhotoReading::finish(const Slice& slice, const PhotoReader::Result& result)
{
    // Who hears of it may end the reading.
    const QPointer<PhotoReading> self(this);
    const Announcer::Together together(m_announcer);
    if (std::erase_if(m_running, [&slice](const Slice& running) { return running.id == slice.id; }) == 0)
        return;
    const std::optional<RunningTasks::Task> ended = m_tasks.end(slice.id);
    if (ended && ended->skipped) {
        m_tooSlow.insert(*ended->skipped);
        leaveOut(*ended->skipped, Texts::tr("took too long"));
    } else if (result.error) {
        if (!searchCulprit(slice, *result.error)) {
            end();
            return emit failed(*result.error);
        }
    } else if (!result.isCancelled) {
        take(slice, result);
    }
    if (!self)
        return;
    m_queue.putBack(slice.photos);
    schedule();
}

// What was read is told, and what cannot be. The rest waits again.
void PhotoReading::take(const Slice& slice, const PhotoReader::Result& result)
{
    const QList<ImageRecord> records = upToDate(slice, result);
    QSet<QUrl> answered;
    for (const ImageRecord& record : result.records)
        answered.insert(record.url);
    QList<QUrl> unreadable;
    for (const QUrl& photo : slice.photos)
        if (!answered.contains(photo) && m_queue.isKnown(photo))
            unreadable.append(photo);
    m_leftOut += result.leftOut;
    m_queue.end(unreadable);
    for (const ImageRecord& record : records)
        m_queue.end({ record.url });
    m_hasRead = m_hasRead || !records.isEmpty();
    if (!records.isEmpty() || !unreadable.isEmpty())
        emit read(records, unreadable);
}

// Without what changed during the read, what a save of ours wrote meanwhile, and what was read elsewhere since.
QList<ImageRecord> PhotoReading::upToDate(const Slice& slice, const PhotoReader::Result& result)
{
    const QSet<QUrl> changed(result.changed.cbegin(), result.changed.cend());
    QList<ImageRecord> records;
    for (const ImageRecord& record : result.records) {
        const bool isOld = changed.contains(record.url) && ++m_changes[record.url] < mostChanges;
        if (!isOld && !m_writes.wasWritten(record.url, slice.writes) && m_queue.isKnown(record.url))
            records.append(record);
    }
    return records;
}

void PhotoReading::leaveOut(const QUrl& photo, const QString& reason)
{
    m_leftOut.append({ photo.fileName(), reason });
    m_queue.end({ photo });
    emit read({}, { photo });
}

// A slice that failed as a whole: its halves are read by themselves, until the photo is found at which the tool fails.
// False when it fails at all of them.
bool PhotoReading::searchCulprit(const Slice& slice, const QString& reason)
{
    ++m_failures;
    const bool isAll = m_running.empty() && m_queue.waiting() == 0;
    if (!m_hasRead && (isAll || m_failures == mostFailures))
        return false;
    if (slice.photos.size() == 1) {
        leaveOut(slice.photos.constFirst(), reason);
        return true;
    }
    const qsizetype half = slice.photos.size() / 2;
    m_queue.addPart(slice.photos.first(half));
    m_queue.addPart(slice.photos.sliced(half));
    return true;
}

bool PhotoReading::isAtRest() const
{
    if (!m_running.empty())
        return false;
    return m_queue.left() == 0 || m_pace == Pace::demanded || (m_pace == Pace::untilFirst && hasRead());
}

}  // namespace Quorbel
