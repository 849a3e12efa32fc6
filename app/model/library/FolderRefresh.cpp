#include "app/model/library/FolderRefresh.h"

#include "app/model/Background.h"
#include "app/model/library/FolderWatcher.h"
#include "app/model/library/KnownFiles.h"
#include "app/model/library/PhotoReader.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

FolderRefresh::FolderRefresh(
    Announcer& announcer, RunningTasks& tasks, PhotoList& photos, std::optional<MetadataService> service)
    : m_announcer(announcer)
    , m_tasks(tasks)
    , m_photos(photos)
    , m_service(std::move(service))
{
}

FolderRefresh::~FolderRefresh() = default;

void FolderRefresh::begin(const std::optional<QUrl>& folder, const QSet<QUrl>& tooSlow)
{
    ++m_generation;
    m_tasks.cancelRefreshes();
    m_reads = 0;
    m_isRefreshing = false;
    m_again = false;
    m_folder = folder;
    m_tooSlow = tooSlow;
    watch();
}

void FolderRefresh::watch()
{
    m_watcher.reset();
    if (m_folder)
        m_watcher = std::make_unique<FolderWatcher>(*m_folder, [this] { refresh(); });
}

void FolderRefresh::refresh()
{
    if (!canRefresh())
        return;
    if (m_isRefreshing) {
        m_again = true;
        return;
    }
    m_isRefreshing = true;
    runInBackground(
        this, [folder = *m_folder, files = m_photos.files()] { return files->look(folder); },
        [this, generation = m_generation, serial = m_photos.serial(), writes = m_writes](const FolderNews& news) {
            if (generation != m_generation)
                return;
            m_isRefreshing = false;
            // A look that is older than a rename or save of our own would take our doing for another program's.
            if (std::exchange(m_again, false) || serial != m_photos.serial() || writes != m_writes)
                return refresh();
            if (news.isListed)
                apply(news);
        });
}

// In the list's order; without those that are not in it, or being written.
QList<int> FolderRefresh::positions(const QList<QUrl>& photos) const
{
    QList<int> found;
    for (const QUrl& photo : photos)
        if (const int at = m_photos.position(photo); at >= 0 && !m_beingWritten.contains(photo))
            found.append(at);
    std::sort(found.begin(), found.end());
    return found;
}

void FolderRefresh::apply(const FolderNews& news)
{
    const Announcer::Together together(m_announcer);
    m_passedOverWritten = m_passedOverWritten || !m_beingWritten.isEmpty();
    const QList<int> gone = positions(news.gone);
    QList<QUrl> changed;
    for (const int at : positions(news.changed))
        if (const QUrl& photo = m_photos.records().at(at).url; !m_tooSlow.contains(photo))
            changed.append(photo);
    QList<QUrl> further = news.further;
    further.removeIf([this](const QUrl& photo) { return m_photos.contains(photo) || m_tooSlow.contains(photo); });
    if (!gone.isEmpty())
        emit vanished(gone);
    if (!changed.isEmpty())
        read(changed, [this](const QList<ImageRecord>& fresh) { takeChanged(fresh); });
    if (!further.isEmpty())
        read(further, [this](const QList<ImageRecord>& fresh) { takeAdded(fresh); });
    // A folder that was away and came back is another one to the system.
    if (m_watcher && !m_watcher->isWatching())
        watch();
}

// Silent: what cannot be read stays as it is, or out. A file that the user skips is not asked for again.
void FolderRefresh::read(const QList<QUrl>& urls, const Take& take)
{
    m_isRefreshing = true;
    ++m_reads;
    const RunningTasks::Task task = m_tasks.begin(RunningTasks::Kind::refresh, urls.size(), urls);
    runInBackground(
        this,
        [service = *m_service, urls, progress = task.progress, stop = task.stop.get_token()] {
            return PhotoReader::read(service, urls, *progress, stop).records;
        },
        [this, urls, take, id = task.id, generation = m_generation, writes = m_writes](
            const QList<ImageRecord>& fresh) {
            const Announcer::Together together(m_announcer);
            const std::optional<RunningTasks::Task> ended = m_tasks.end(id);
            if (generation != m_generation)
                return;
            if (ended && ended->skipped) {
                m_tooSlow.insert(*ended->skipped);
                emit problem(PhotoReader::leftOutText({ { ended->skipped->fileName(), u"took too long"_s } }));
                QList<QUrl> rest = urls;
                rest.removeAll(*ended->skipped);
                read(rest, take);
                return endStep();
            }
            // What was read before a save of ours must not overwrite what was read after it.
            if (writes == m_writes)
                take(fresh);
            else
                m_again = true;
            endStep();
        });
}

void FolderRefresh::takeChanged(const QList<ImageRecord>& fresh)
{
    if (!m_photos.replace(fresh))
        return;
    QList<QUrl> photos;
    for (const ImageRecord& record : fresh)
        photos.append(record.url);
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
        refresh();
}

void FolderRefresh::beginWriting(const QSet<QUrl>& photos)
{
    m_beingWritten = photos;
    ++m_writes;
}

void FolderRefresh::endWriting(bool isComplete)
{
    m_beingWritten.clear();
    ++m_writes;
    ++m_endedWrites;
    if (!isComplete || std::exchange(m_passedOverWritten, false))
        refresh();
}

}  // namespace Quorbel
