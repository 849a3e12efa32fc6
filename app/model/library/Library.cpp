#include "app/model/library/Library.h"

#include "app/model/Background.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

Library::Library(
    Announcer& announcer, RunningTasks& tasks, std::optional<MetadataService> service, RecordSortOrder order)
    : m_announcer(announcer)
    , m_tasks(tasks)
    , m_service(std::move(service))
    , m_photos(announcer, order)
    , m_refresh(announcer, tasks, m_photos, m_service)
{
}

void Library::load(const PhotoListing& listing)
{
    if (m_service)
        read(listing, {});
}

void Library::read(const PhotoListing& listing, const QSet<QUrl>& tooSlow)
{
    QList<QUrl> files = listing.files;
    files.removeIf([&tooSlow](const QUrl& file) { return tooSlow.contains(file); });
    const RunningTasks::Task task = m_tasks.begin(RunningTasks::Kind::load, files.size(), files);
    runInBackground(
        this,
        [service = *m_service, files, progress = task.progress, stop = task.stop.get_token()] {
            return PhotoReader::read(service, files, *progress, stop);
        },
        [this, listing, tooSlow, id = task.id](PhotoReader::Result result) {
            const Announcer::Together together(m_announcer);
            const std::optional<RunningTasks::Task> ended = m_tasks.end(id);
            if (ended && ended->skipped)
                return read(listing, QSet(tooSlow) << *ended->skipped);
            finish(listing, tooSlow, std::move(result));
        });
}

void Library::finish(const PhotoListing& listing, const QSet<QUrl>& tooSlow, PhotoReader::Result result)
{
    if (result.isCancelled)
        return;
    if (result.error) {
        emit problem(u"Could not read metadata: "_s + *result.error);
        return;
    }
    for (const QUrl& file : listing.files)
        if (tooSlow.contains(file))
            result.leftOut.append({ file.fileName(), u"took too long"_s });
    if (!result.leftOut.isEmpty())
        emit problem(PhotoReader::leftOutText(result.leftOut));
    else if (result.records.isEmpty())
        emit problem(u"No supported images were found."_s);
    if (result.records.isEmpty())
        return;
    show(std::move(result.records), listing, tooSlow);
    emit opened();
}

void Library::show(QList<ImageRecord> records, const PhotoListing& listing, const QSet<QUrl>& tooSlow)
{
    m_photos.open(std::move(records));
    const bool hasOtherName = std::exchange(m_folderName, listing.label) != listing.label;
    const bool isOtherFolder = std::exchange(m_folderURL, listing.folder) != listing.folder;
    if (hasOtherName || isOtherFolder)
        m_announcer.announce(Change::folder);
    m_refresh.begin(listing.folder, tooSlow);
}

void Library::close()
{
    const Announcer::Together together(m_announcer);
    m_tasks.cancelReads();
    show({}, {}, {});
}

}  // namespace Quorbel
