#include "app/model/library/Library.h"

#include "app/model/Background.h"
#include "app/model/library/FolderScan.h"
#include "app/model/library/PhotoListing.h"
#include "app/model/library/PhotoReader.h"
#include "core/save/ExternalRefresh.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

/// A load on its way. It is used by one thread at a time, and goes in the background.
struct Library::Load {
    PhotoListing listing{};
    QSet<QUrl> tooSlow{};
    QList<QUrl> unread{};
    PhotoReader::Result read{};
    OpenPhotos photos{};  ///< in the end: the records that were read
    int writes = 0;  ///< that had ended when what follows began

    static std::shared_ptr<Load> of(PhotoListing listing)
    {
        auto* load = new Load{ .listing = std::move(listing) };
        load->unread = load->urls();
        return { load, [](Load* done) { discardInBackground(std::unique_ptr<Load>(done)); } };
    }
    QList<QUrl> urls() const;
    void skip(const QUrl& file);
    void run(
        const MetadataService& service, RecordSortOrder order, TaskProgress& progress, const std::stop_token& stop);

private:
    void readChanged(const MetadataService& service, TaskProgress& progress, const std::stop_token& stop);
};

QList<QUrl> Library::Load::urls() const
{
    QList<QUrl> urls;
    for (const PhotoFile& file : listing.files)
        urls.append(file.url);
    return urls;
}

// Begins anew, without this file.
void Library::Load::skip(const QUrl& file)
{
    tooSlow.insert(file);
    read = {};
    photos = {};
    unread = urls();
    unread.removeIf([this](const QUrl& url) { return tooSlow.contains(url); });
}

void Library::Load::run(
    const MetadataService& service, RecordSortOrder order, TaskProgress& progress, const std::stop_token& stop)
{
    if (unread.isEmpty())
        read.records = std::move(photos.records);
    else
        read = PhotoReader::read(service, std::exchange(unread, {}), progress, stop);
    if (!read.error && !read.isCancelled)
        readChanged(service, progress, stop);
    photos = OpenPhotos::of(std::move(read.records), order, !listing.watched().isEmpty(), listing.folderOrder(), stop);
}

// What was changed since it was read. Silent: what cannot be read any more stays as it is.
void Library::Load::readChanged(const MetadataService& service, TaskProgress& progress, const std::stop_token& stop)
{
    const QList<QUrl> changed = ExternalRefresh::modifiedURLs(read.records, [&stop](const ImageRecord& record) {
        return stop.stop_requested() ? std::nullopt : modificationDate(record.url.toLocalFile());
    });
    if (changed.isEmpty())
        return;
    QHash<QUrl, ImageRecord> fresh;
    for (const ImageRecord& record : PhotoReader::read(service, changed, progress, stop).records)
        fresh.insert(record.url, record);
    for (ImageRecord& record : read.records)
        if (const auto again = fresh.constFind(record.url); again != fresh.cend())
            record = *again;
}

Library::Library(
    Announcer& announcer, RunningTasks& tasks, std::optional<MetadataService> service, RecordSortOrder order)
    : m_announcer(announcer)
    , m_tasks(tasks)
    , m_service(std::move(service))
    , m_photos(announcer, order)
    , m_refresh(announcer, tasks, m_photos, m_service)
{
}

void Library::load(const QList<QUrl>& given, bool withSubfolders)
{
    m_arrived.reset();
    // Without the tool nothing is read.
    const auto task = m_service ? std::optional(m_tasks.begin(RunningTasks::Kind::load, 0)) : std::nullopt;
    runInBackground(
        this,
        [given, withSubfolders, stop = task ? task->stop.get_token() : std::stop_token()] {
            return withSubfolders ? PhotoListing::withSubfolders(given, stop) : PhotoListing::of(given);
        },
        [this, id = task ? std::optional(task->id) : std::nullopt](PhotoListing listing) {
            const Announcer::Together together(m_announcer);
            const auto ended = id ? m_tasks.end(*id) : std::nullopt;
            if (ended && ended->stop.stop_requested())
                return;
            if (listing.files.isEmpty() && !listing.leftOut.isEmpty())
                return emit problem(PhotoReader::leftOutText(listing.leftOut));
            if (listing.files.isEmpty())
                return emit problem(u"No supported images were found."_s);
            emit listed(listing.existing);
            if (m_service)
                read(Load::of(std::move(listing)));
        });
}

void Library::read(const std::shared_ptr<Load>& load)
{
    load->writes = m_refresh.endedWrites();
    const RunningTasks::Task task = m_tasks.begin(RunningTasks::Kind::load, load->unread.size(), load->unread);
    runInBackground(
        this,
        [service = *m_service, load, order = m_photos.order(), progress = task.progress, stop = task.stop.get_token()] {
            load->run(service, order, *progress, stop);
        },
        [this, load, id = task.id] {
            const Announcer::Together together(m_announcer);
            std::optional<RunningTasks::Task> ended = m_tasks.end(id);
            if (ended && ended->skipped) {
                load->skip(*ended->skipped);
                read(load);
            } else if (ended && !ended->stop.stop_requested()) {
                finish(load);
            }
            discardInBackground(std::move(ended));
        });
}

void Library::finish(const std::shared_ptr<Load>& load)
{
    const PhotoReader::Result& result = load->read;
    if (result.isCancelled)
        return;
    if (result.error) {
        emit problem(u"Could not read metadata: "_s + *result.error);
        return;
    }
    // What was read may be older than what a save of ours wrote meanwhile.
    if (load->writes != m_refresh.endedWrites() && !load->photos.records.isEmpty())
        return read(load);
    QList<LeftOut> leftOut = load->listing.leftOut + result.leftOut;
    if (!load->tooSlow.isEmpty())
        for (const PhotoFile& file : load->listing.files)
            if (load->tooSlow.contains(file.url))
                leftOut.append({ file.url.fileName(), u"took too long"_s });
    if (!leftOut.isEmpty())
        emit problem(PhotoReader::leftOutText(leftOut));
    else if (load->photos.records.isEmpty())
        emit problem(u"No supported images were found."_s);
    if (load->photos.records.isEmpty())
        return;
    m_arrived = load;
    emit arrived();
}

void Library::open()
{
    const Announcer::Together together(m_announcer);
    const std::shared_ptr<Load> load = std::exchange(m_arrived, nullptr);
    if (!load)
        return;
    if (load->writes != m_refresh.endedWrites())
        return read(load);
    show(*load);
    emit opened();
}

void Library::show(Load& load)
{
    m_photos.open(std::move(load.photos));
    const bool hasOtherName = std::exchange(m_folderName, load.listing.label) != load.listing.label;
    const bool isOtherFolder = std::exchange(m_folderURL, load.listing.folder) != load.listing.folder;
    if (hasOtherName || isOtherFolder)
        m_announcer.announce(Change::folder);
    m_refresh.begin(load.listing.watched(), !load.listing.tops.isEmpty(), load.tooSlow);
}

void Library::close()
{
    const Announcer::Together together(m_announcer);
    m_tasks.cancelReads();
    m_arrived.reset();
    Load nothing;
    show(nothing);
}

}  // namespace Quorbel
