#include "app/model/library/FolderRefresh.h"

#include "app/model/Background.h"
#include "core/language/Texts.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds emptiedMoment{ 300 };

// Whether the list has it as it was seen. One without a date is never looked at again.
bool isAsSeen(const ImageRecord& photo, const FolderNews::File& file)
{
    const auto& date = photo.contentModificationDate;
    const auto& sidecar = photo.sidecarModificationDate;
    return (!date || date->toMSecsSinceEpoch() == file.stamp.modified) && photo.sidecarName == file.sidecar.name
        && (sidecar ? std::optional(sidecar->toMSecsSinceEpoch()) : std::nullopt) == file.sidecar.modified;
}

}  // namespace

FolderRefresh::FolderRefresh(Announcer& announcer, RunningTasks& tasks, PhotoList& photos,
    std::optional<MetadataService> service, std::shared_ptr<RecordCache> cache)
    : m_announcer(announcer)
    , m_tasks(tasks)
    , m_photos(photos)
    , m_service(std::move(service))
    , m_cache(std::move(cache))
    , m_lookThreads(new QThreadPool)
{
    // Each folder that was opened may have left one that hangs.
    m_lookThreads->setMaxThreadCount(100);
    setLooks({});
    connect(&m_times, &LookTimes::due, this, &FolderRefresh::look);
    connect(&m_times, &LookTimes::dueByTheClock, this, &FolderRefresh::lookByTheClock);
}

FolderRefresh::~FolderRefresh()
{
    m_stop.request_stop();
    // A look ends within a file. One that does not is at a file system that is gone: nobody waits for that.
    if (m_lookThreads->waitForDone(200))
        delete m_lookThreads;
}

void FolderRefresh::setLooks(const Looks& looks)
{
    m_looks = looks;
    m_times.setInterval(looks.interval);
}

void FolderRefresh::setSidecars(const SidecarPolicy& policy)
{
    if (!m_service || m_service->sidecars == policy)
        return;
    m_writes.noteSidecars({ m_service->sidecars, policy });
    m_service->sidecars = policy;
}

void FolderRefresh::begin(const QList<QUrl>& folders, bool withSubfolders)
{
    ++m_generation;
    m_stop.request_stop();
    m_stop = {};
    m_tasks.cancelRefreshes();
    m_reads = 0;
    m_isRefreshing = false;
    m_again = false;
    m_isAsked = false;
    m_sinceEmptied.invalidate();
    m_passedOverUnread = false;
    m_folders = m_photos.files() ? folders : QList<QUrl>();
    m_withSubfolders = withSubfolders;
    m_tooSlow.clear();
    m_times.begin(canRefresh());
    // Until the first look says more.
    const int count = int(folders.size());
    const Watching expected{ Watching::How::told, count, count };
    m_announcer.assign(m_watching, canRefresh() ? expected : Watching(), Change::watching);
    look();
}

void FolderRefresh::refresh()
{
    m_isAsked = true;
    look();
}

// A look for no special reason: not while there is a better one.
void FolderRefresh::lookByTheClock()
{
    if (m_isRefreshing || m_writes.isRenaming() || !m_writes.photos().isEmpty())
        m_times.postpone();
    else
        look();
}

void FolderRefresh::look()
{
    if (!canRefresh())
        return;
    if (m_isRefreshing || m_writes.isRenaming()) {
        m_again = true;
        return;
    }
    m_isRefreshing = true;
    const FolderLook::Question question{ m_folders, m_withSubfolders, std::exchange(m_isAsked, false), m_photos.files(),
        m_times.watches(), m_service->sidecars, m_looks.fileSystemOf };
    runIn(
        *m_lookThreads, this, [question, stop = m_stop.get_token()] { return FolderLook::at(question, stop); },
        [this, generation = m_generation, renames = m_photos.renames(), writes = m_writes.count()](
            const FolderLook& look) {
            if (generation != m_generation)
                return;
            m_isRefreshing = false;
            // A look that is older than a rename or save of our own would take our doing for another program's.
            if (std::exchange(m_again, false) || renames != m_photos.renames() || writes != m_writes.count())
                this->look();
            else
                takeLook(look);
        });
}

void FolderRefresh::takeLook(const FolderLook& look)
{
    const Announcer::Together together(m_announcer);
    m_announcer.assign(m_watching, look.watching, Change::watching);
    apply(look.news);
    planNext(look);
}

void FolderRefresh::planNext(const FolderLook& look)
{
    if (look.isOutdated)
        m_times.lookSoon({});
    // Where a folder is not there, nobody will tell that it is again.
    if (look.watching.how == Watching::How::looking || look.news.isAway || m_passedOverUnread)
        m_times.goOn(look.taken);
    else
        m_times.rest();
}

// In the list's order; without those that are not in it, or being written.
QList<int> FolderRefresh::positions(const QList<QUrl>& photos) const
{
    QList<int> found;
    for (const QUrl& photo : photos)
        if (const int at = m_photos.position(photo); at >= 0 && !m_writes.photos().contains(photo))
            found.append(at);
    std::sort(found.begin(), found.end());
    return found;
}

void FolderRefresh::apply(const FolderNews& news)
{
    m_passedOverWritten = m_passedOverWritten || !m_writes.photos().isEmpty();
    const QList<int> gone = positions(surelyGone(news));
    const QList<FolderNews::File> changed = this->changed(news);
    QList<FolderNews::File> further = news.further;
    further.removeIf(
        [this](const FolderNews::File& file) { return m_photos.contains(file.url) || m_tooSlow.contains(file.url); });
    if (!gone.isEmpty())
        emit vanished(gone);
    if (!changed.isEmpty())
        read(changed, [this](const QList<ImageRecord>& fresh) { takeChanged(fresh); });
    if (!further.isEmpty())
        read(further, [this](const QList<ImageRecord>& fresh) { takeAdded(fresh); });
}

// A folder that is being removed is empty for a moment: what was in it is gone when it is still empty after that.
QList<QUrl> FolderRefresh::surelyGone(const FolderNews& news)
{
    if (news.emptied.isEmpty()) {
        m_sinceEmptied.invalidate();
        return news.gone;
    }
    if (!m_sinceEmptied.isValid())
        m_sinceEmptied.start();
    if (m_sinceEmptied.elapsed() >= emptiedMoment.count())
        return news.gone + news.emptied;
    m_times.lookSoon(emptiedMoment);
    return news.gone;
}

// Those that are not as the list has them by now, in its order.
QList<FolderNews::File> FolderRefresh::changed(const FolderNews& news)
{
    QList<FolderNews::File> changed;
    m_passedOverUnread = false;
    for (const FolderNews::File& file : news.changed) {
        const ImageRecord* photo = m_photos.record(file.url);
        if (!photo || m_writes.photos().contains(file.url) || m_tooSlow.contains(file.url))
            continue;
        if (isAsSeen(*photo, file))
            continue;
        // What was not read yet will be. It may be so just now, and too soon: that shows in the look that follows.
        if (photo->isUnread || (m_isAwaited && m_isAwaited(file.url)))
            m_passedOverUnread = true;
        else
            changed.append(file);
    }
    std::sort(changed.begin(), changed.end(), [this](const FolderNews::File& a, const FolderNews::File& b) {
        return m_photos.position(a.url) < m_photos.position(b.url);
    });
    return changed;
}

// Silent: what cannot be read stays as it is, or out. A file that the user skips is not asked for again.
void FolderRefresh::read(const QList<FolderNews::File>& files, const Take& take)
{
    m_isRefreshing = true;
    ++m_reads;
    QList<QUrl> urls;
    for (const FolderNews::File& file : files)
        urls.append(file.url);
    const RunningTasks::Task task = m_tasks.begin(RunningTasks::Kind::refresh, urls.size(), urls);
    runInBackground(
        this,
        [service = *m_service, cache = m_cache, urls, progress = task.progress, stop = task.stop.get_token()] {
            return PhotoReader::read(service, urls, *progress, stop, cache);
        },
        [this, files, take, id = task.id, generation = m_generation, writes = m_writes.count()](
            const PhotoReader::Result& result) {
            const Announcer::Together together(m_announcer);
            const std::optional<RunningTasks::Task> ended = m_tasks.end(id);
            if (generation != m_generation)
                return;
            if (ended && ended->skipped) {
                skip(files, *ended->skipped, take);
                return endStep();
            }
            // What was read before a save of ours must not overwrite what was read after it.
            if (writes == m_writes.count()) {
                take(result.records);
                noteUnreadable(files, result);
            } else {
                m_again = true;
            }
            endStep();
        });
}

void FolderRefresh::skip(QList<FolderNews::File> files, const QUrl& photo, const Take& take)
{
    m_tooSlow.insert(photo);
    emit problem(PhotoReader::leftOutText({ { photo.fileName(), Texts::tr("took too long") } }));
    files.removeIf([&photo](const FolderNews::File& file) { return file.url == photo; });
    read(files, take);
}

// They would be read again at every look.
void FolderRefresh::noteUnreadable(const QList<FolderNews::File>& files, const PhotoReader::Result& result)
{
    if (result.isCancelled || result.error || !m_photos.files())
        return;
    QSet<QUrl> read;
    for (const ImageRecord& record : result.records)
        read.insert(record.url);
    QList<FolderNews::File> unreadable = files;
    unreadable.removeIf([&read](const FolderNews::File& file) { return read.contains(file.url); });
    m_photos.files()->noteUnreadable(unreadable);
}

void FolderRefresh::takeChanged(const QList<ImageRecord>& fresh)
{
    QList<QUrl> photos;
    QList<QUrl> files;
    for (const ImageRecord& record : fresh) {
        photos.append(record.url);
        const ImageRecord* before = m_photos.record(record.url);
        if (before && before->contentModificationDate != record.contentModificationDate)
            files.append(record.url);
    }
    if (!m_photos.replace(fresh))
        return;
    if (!files.isEmpty())
        emit filesChanged(files);
    emit reread(photos);
}

void FolderRefresh::takeAdded(const QList<ImageRecord>& fresh)
{
    if (m_photos.append(fresh))
        emit added();
}

void FolderRefresh::endStep()
{
    if (--m_reads > 0)
        return;
    m_isRefreshing = false;
    if (std::exchange(m_again, false))
        look();
}

void FolderRefresh::beginWriting(const QSet<QUrl>& photos)
{
    m_writes.begin(photos);
}

void FolderRefresh::endWriting(bool isComplete)
{
    m_writes.end();
    if (!isComplete || std::exchange(m_passedOverWritten, false))
        look();
}

void FolderRefresh::beginRenaming()
{
    m_writes.beginRenaming();
}

void FolderRefresh::endRenaming(const NewNames& names)
{
    m_writes.endRenaming(names);
    if (!m_isRefreshing && std::exchange(m_again, false))
        look();
}

}  // namespace Quorbel
