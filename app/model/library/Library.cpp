#include "app/model/library/Library.h"

#include "app/model/BackgroundPieces.h"
#include "app/model/library/PhotoListing.h"
#include "app/model/library/cache/RecordCache.h"
#include "core/language/Texts.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QList<QUrl> urlsOf(const QList<ImageRecord>& records)
{
    QList<QUrl> urls;
    urls.reserve(records.size());
    for (const ImageRecord& record : records)
        urls.append(record.url);
    return urls;
}

QList<QUrl> unreadOf(const QList<ImageRecord>& records)
{
    QList<QUrl> unread;
    for (const ImageRecord& record : records)
        if (record.isUnread)
            unread.append(record.url);
    return unread;
}

}  // namespace

/// A load on its way. Made in the background, then used on the main thread.
struct Library::Load {
    PhotoListing listing{};
    QList<ImageRecord> records{};  // of a further part
    OpenPhotos photos{};  // else
    ReadQueue queue{};  // of those that are unread
    std::unique_ptr<PhotoReading> reading{};
    QList<ImageRecord> early{};  // read before it is shown
    QList<QUrl> unreadable{};  // the same, of those that cannot be read
    SidecarPolicy sidecars{};  // by which it knows what was read before
    int writes = 0;  // of ours that had begun or ended when it was read
    bool hasArrived = false;

    Load() = default;
    ~Load()
    {
        discardInBackground(std::move(photos));
        discardInBackground(std::move(listing));
    }
    Q_DISABLE_COPY_MOVE(Load)

    static std::shared_ptr<Load> of(PhotoListing listing, RecordCache* cache, const SidecarPolicy& sidecars,
        const ListForm& form, const std::stop_token& stop)
    {
        auto load = std::make_shared<Load>();
        load->sidecars = sidecars;
        load->listing = std::move(listing);
        const QList<PhotoFile>& files = load->listing.files;
        const QHash<QUrl, ImageRecord> known = cache ? cache->find(files, stop) : QHash<QUrl, ImageRecord>();
        load->records.reserve(files.size());
        for (const PhotoFile& file : files) {
            const auto record = known.constFind(file.url);
            load->records.append(record != known.cend() ? *record : file.unreadRecord());
        }
        if (load->listing.part != PhotoListing::Part::further)
            load->prepare(form, stop);
        return load;
    }
    void prepare(const ListForm& form, const std::stop_token& stop)
    {
        photos =
            OpenPhotos::of(std::exchange(records, {}), form, !listing.watched().isEmpty(), listing.folderOrder(), stop);
        queue.add(unreadOf(photos.records));
    }
};

/// A walk through folders that goes on while what it found is shown.
struct Library::Walk {
    std::unique_ptr<BackgroundPieces<std::shared_ptr<Load>>> pieces{};
    QList<QUrl> given{};
    QList<QUrl> watched{};  // once it has ended
    QList<LeftOut> leftOut{};  // before anything was shown
    bool isShown = false;
    std::stop_source stop{};

    Walk() = default;
    ~Walk() { stop.request_stop(); }
    Q_DISABLE_COPY_MOVE(Walk)
};

Library::Library(Announcer& announcer, RunningTasks& tasks, std::optional<MetadataService> service,
    RecordSortOrder order, std::shared_ptr<RecordCache> cache)
    : m_announcer(announcer)
    , m_tasks(tasks)
    , m_service(std::move(service))
    , m_cache(std::move(cache))
    , m_photos(announcer, order)
    , m_refresh(announcer, tasks, m_photos, m_service, m_cache)
    , m_details(announcer, tasks, m_photos, m_refresh.writes(), m_cache)
{
    m_refresh.setAwaited([this](const QUrl& photo) { return m_reading && m_reading->isAwaited(photo); });
    connect(&m_refresh, &FolderRefresh::reread, this, &Library::noteRead);
    connect(&m_refresh, &FolderRefresh::added, &m_details, &DetailsReading::noteAdded);
    connect(this, &Library::added, &m_details, &DetailsReading::noteAdded);
    connect(&m_details, &DetailsReading::problem, this, &Library::problem);
}

Library::~Library() = default;

void Library::load(const QList<QUrl>& given, bool withSubfolders)
{
    const Announcer::Together together(m_announcer);
    endListing();
    dropNext();
    const std::stop_token stop = beginListing();
    if (withSubfolders)
        return walk(given);
    runInBackground(
        this,
        [given, cache = m_cache, sidecars = sidecars(), form = m_photos.form(), stop] {
            return Load::of(PhotoListing::of(given, sidecars), cache.get(), sidecars, form, stop);
        },
        [this, serial = ++m_loads](const std::shared_ptr<Load>& load) {
            if (serial == m_loads)
                takeListed(load);
        });
}

std::stop_token Library::beginListing()
{
    // Without the tool nothing is read.
    if (!m_service)
        return {};
    const RunningTasks::Task task = m_tasks.begin(RunningTasks::Kind::load, 0);
    m_listing = task.id;
    return task.stop.get_token();
}

void Library::walk(const QList<QUrl>& given)
{
    using Pieces = BackgroundPieces<std::shared_ptr<Load>>;
    m_walk = std::make_unique<Walk>();
    m_walk->given = given;
    m_walk->pieces = std::make_unique<Pieces>(
        [given, cache = m_cache, sidecars = sidecars(), form = m_photos.form(), stop = m_walk->stop.get_token()](
            const Pieces::Give& give) {
            PhotoListing::withSubfolders(given, sidecars, stop,
                [&](PhotoListing piece) { give(Load::of(std::move(piece), cache.get(), sidecars, form, stop)); });
        },
        [this](const std::shared_ptr<Load>& piece) { takePiece(piece); }, [this] { endWalk(); });
}

void Library::takePiece(const std::shared_ptr<Load>& piece)
{
    const Announcer::Together together(m_announcer);
    if (!isWalkShown()) {
        m_walk->leftOut += std::exchange(piece->listing.leftOut, {});
        if (piece->listing.files.isEmpty())
            return;
        // Nothing that came before could be read.
        if (!piece->records.isEmpty())
            piece->prepare(m_photos.form(), {});
        piece->listing.leftOut = std::exchange(m_walk->leftOut, {});
        m_walk->pieces->setPaused(true);
        return takeListed(piece);
    }
    QList<ImageRecord> records = piece->records + piece->photos.records;
    records.removeIf([this](const ImageRecord& photo) { return m_photos.contains(photo.url); });
    const QList<QUrl> unread = unreadOf(records) + readOtherwise(records, piece->sidecars);
    m_reading->addLeftOut(piece->listing.leftOut);
    if (m_photos.append(records))
        emit added();
    m_reading->add(unread, records.size() - unread.size());
}

// What is on screen comes from the walk that is under way.
bool Library::isWalkShown() const
{
    return m_walk && m_walk->isShown;
}

void Library::endWalk()
{
    const Announcer::Together together(m_announcer);
    const bool isShown = isWalkShown();
    const QList<LeftOut> leftOut = m_walk->leftOut;
    const QList<QUrl> watched = m_walk->watched;
    endListing();
    if (!isShown)
        return sayNothingFound(leftOut);
    m_refresh.begin(watched, true);
    for (const QUrl& photo : m_reading->tooSlow())
        m_refresh.leaveAlone(photo);
    if (m_reading->isAtRest())
        takeRested();
}

void Library::sayNothingFound(const QList<LeftOut>& leftOut)
{
    emit problem(leftOut.isEmpty() ? Texts::tr("No supported images were found.") : PhotoReader::leftOutText(leftOut));
}

void Library::endListing()
{
    ++m_loads;
    m_walk.reset();
    endListingTask();
}

void Library::endListingTask()
{
    if (!m_listing)
        return;
    m_tasks.stop(*m_listing);
    m_tasks.end(*m_listing);
    m_listing.reset();
}

void Library::takeListed(const std::shared_ptr<Load>& load)
{
    const Announcer::Together together(m_announcer);
    const PhotoListing& listing = load->listing;
    if (listing.files.isEmpty()) {
        endListing();
        return sayNothingFound(listing.leftOut);
    }
    emit listed(listing.existing);
    if (m_service)
        begin(load);
    if (!m_walk || !m_service)
        endListing();
}

void Library::begin(const std::shared_ptr<Load>& load)
{
    load->reading = newReading();
    load->reading->addLeftOut(load->listing.leftOut);
    load->reading->begin(std::move(load->queue), load->photos.records.size());
    if (load->listing.part != PhotoListing::Part::whole)
        load->reading->expectMore();
    const QList<QUrl> inView = m_photos.firstOnScreen(load->photos, ReadQueue::viewSize);
    load->reading->setInView(inView);
    load->reading->setFirst(inView.isEmpty() ? std::nullopt : std::optional(inView.constFirst()));
    if (m_photos.records().isEmpty())
        show(load);
    else
        awaitFirst(load);
}

// What is open stays until there is something to show in its place.
void Library::awaitFirst(const std::shared_ptr<Load>& load)
{
    m_next = load;
    m_next->writes = m_refresh.writes().count();
    // The new photos come first.
    if (m_reading)
        m_reading->setPaused(true);
    PhotoReading& reading = *load->reading;
    connect(
        &reading, &PhotoReading::read, this, [this](const QList<ImageRecord>& records, const QList<QUrl>& unreadable) {
            m_next->early += records;
            m_next->unreadable += unreadable;
        });
    connect(&reading, &PhotoReading::rested, this, &Library::takeFirst);
    connect(&reading, &PhotoReading::failed, this, [this](const QString& reason) {
        dropNext();
        emit problem(Texts::tr("Could not read metadata: %1").arg(reason));
    });
    reading.setPace(PhotoReading::Pace::untilFirst);
}

void Library::takeFirst()
{
    if (m_next->reading->hasRead()) {
        m_next->hasArrived = true;
        // It may take its time until somebody opens it: the walk rests.
        endListingTask();
        return emit arrived();
    }
    if (m_walk) {
        // There may be others.
        m_walk->leftOut = m_next->reading->leftOut();
        forgetNext();
        return m_walk->pieces->setPaused(false);
    }
    const QString text = m_next->reading->leftOutText().value_or(Texts::tr("No supported images were found."));
    dropNext();
    emit problem(text);
}

bool Library::hasArrived() const
{
    return m_next && m_next->hasArrived;
}

void Library::dropNext()
{
    if (m_next && m_walk)
        endListing();
    forgetNext();
}

void Library::forgetNext()
{
    if (!m_next)
        return;
    // It may be what is speaking.
    m_next->reading->end();
    m_next->reading.release()->deleteLater();
    m_next.reset();
    if (m_reading)
        m_reading->setPaused(false);
}

void Library::dropArrived()
{
    if (hasArrived())
        dropNext();
}

void Library::open()
{
    if (hasArrived())
        show(std::exchange(m_next, nullptr));
}

void Library::show(const std::shared_ptr<Load>& load)
{
    const Announcer::Together together(m_announcer);
    put(*load);
    load->reading->disconnect(this);
    follow(std::move(load->reading));
    // What a save of ours has written meanwhile is read again.
    QList<QUrl> again;
    for (const ImageRecord& photo : std::as_const(load->early))
        if (m_refresh.writes().wasWritten(photo.url, load->writes))
            again.append(photo.url);
    load->early.removeIf([&again](const ImageRecord& photo) { return again.contains(photo.url); });
    m_reading->addAgain(again + readOtherwise(m_photos.records(), load->sidecars));
    emit opened();
    takeRead(load->early, load->unreadable);
    m_reading->setPace(PhotoReading::Pace::all);
    if (m_walk) {
        if (!m_listing)
            beginListing();
        m_walk->watched = load->listing.watched();
        m_walk->isShown = true;
        m_walk->pieces->setPaused(false);
    }
}

void Library::put(Load& load)
{
    m_cancelled.reset();
    m_photos.open(std::move(load.photos));
    m_details.begin();
    const bool hasOtherName = std::exchange(m_folderName, load.listing.label) != load.listing.label;
    const bool isOtherFolder = std::exchange(m_folderURL, load.listing.folder) != load.listing.folder;
    if (hasOtherName || isOtherFolder)
        m_announcer.announce(Change::folder);
    // A walk that is under way would be overtaken by a look.
    m_refresh.begin(m_walk ? QList<QUrl>() : load.listing.watched(), !load.listing.tops.isEmpty());
}

void Library::close()
{
    const Announcer::Together together(m_announcer);
    endListing();
    dropNext();
    m_tasks.cancelShownRefreshes();
    follow(nullptr);
    Load nothing;
    put(nothing);
}

// --- Reading what is open ---

SidecarPolicy Library::sidecars() const
{
    return m_service ? m_service->sidecars : SidecarPolicy();
}

// Of what was read before, or known from the cache.
QList<QUrl> Library::readOtherwise(const QList<ImageRecord>& photos, const SidecarPolicy& before) const
{
    QList<QUrl> concerned;
    if (const SidecarChange change{ before, sidecars() }; change.from != change.to)
        for (const ImageRecord& photo : photos)
            if (!photo.isUnread && change.concerns(photo.url))
                concerned.append(photo.url);
    return concerned;
}

void Library::setSidecars(const SidecarPolicy& policy)
{
    if (!m_service || m_service->sidecars == policy)
        return;
    const Announcer::Together together(m_announcer);
    const SidecarPolicy before = std::exchange(m_service->sidecars, policy);
    m_refresh.setSidecars(policy);
    m_details.setSidecars(policy);
    if (m_next)
        m_next->reading->setSidecars(policy);
    if (!m_reading)
        return;
    m_reading->setSidecars(policy);
    const QList<QUrl> again = readOtherwise(m_photos.records(), before);
    m_reading->addAgain(again);
    // Also where the user wanted no further ones to be read.
    m_reading->require(again);
}

std::unique_ptr<PhotoReading> Library::newReading()
{
    return std::make_unique<PhotoReading>(m_announcer, m_tasks, *m_service, m_cache, m_refresh.writes());
}

void Library::follow(std::unique_ptr<PhotoReading> reading)
{
    if (m_reading) {
        m_reading->disconnect(this);
        m_reading->end();
        m_reading.release()->deleteLater();
    }
    m_reading = std::move(reading);
    if (!m_reading)
        return;
    connect(m_reading.get(), &PhotoReading::read, this, &Library::takeRead);
    connect(m_reading.get(), &PhotoReading::rested, this, &Library::takeRested);
    connect(m_reading.get(), &PhotoReading::failed, this, &Library::takeFailed);
}

void Library::takeRead(const QList<ImageRecord>& records, const QList<QUrl>& unreadable)
{
    const Announcer::Together together(m_announcer);
    const QList<QUrl> changed = m_photos.fill(records);
    m_details.outdate(urlsOf(records));
    QList<int> positions;
    for (const QUrl& photo : unreadable)
        if (const int at = m_photos.position(photo); at >= 0)
            positions.append(at);
    std::sort(positions.begin(), positions.end());
    for (const QUrl& photo : m_reading->tooSlow())
        m_refresh.leaveAlone(photo);
    if (!changed.isEmpty())
        emit read(changed);
    if (!positions.isEmpty())
        emit this->unreadable(positions);
}

void Library::takeRested()
{
    // More is to come.
    if (isWalkShown())
        return;
    const Announcer::Together together(m_announcer);
    std::optional<QString> text = m_reading->takeLeftOutText();
    const bool isNothing = m_photos.records().isEmpty() && !m_reading->hasRead();
    if (isNothing && !text)
        text = Texts::tr("No supported images were found.");
    if (isNothing)
        emit nothingReadable();
    if (text)
        emit problem(*text);
}

void Library::takeFailed(const QString& reason)
{
    const Announcer::Together together(m_announcer);
    const QList<ImageRecord>& photos = m_photos.records();
    if (std::all_of(photos.cbegin(), photos.cend(), [](const ImageRecord& photo) { return photo.isUnread; }))
        emit nothingReadable();
    emit problem(Texts::tr("Could not read metadata: %1").arg(reason));
}

void Library::setFirst(const std::optional<QUrl>& photo)
{
    m_first = photo;
    if (m_reading)
        m_reading->setFirst(photo);
}

void Library::setInView(const QList<QUrl>& photos)
{
    m_inView = photos;
    m_details.setInView(photos);
    if (m_reading)
        m_reading->setInView(photos);
}

void Library::require(const QList<QUrl>& photos)
{
    if (m_reading)
        m_reading->require(photos);
}

void Library::cancelReads()
{
    const Announcer::Together together(m_announcer);
    m_tasks.cancelShownRefreshes();
    m_details.cancel();
    const bool isOther = m_listing && !isWalkShown();
    if (m_next && (!m_next->hasArrived || m_walk))
        return dropNext();
    if (isWalkShown()) {
        m_walk->pieces.reset();
        m_cancelled = std::move(m_walk);
        m_announcer.announce(Change::watching);
    }
    endListing();
    if (m_reading && !isOther)
        m_reading->cancel();
}

void Library::resumeReading()
{
    const Announcer::Together together(m_announcer);
    if (const auto cancelled = std::exchange(m_cancelled, nullptr)) {
        endListing();
        beginListing();
        walk(cancelled->given);
        m_walk->watched = cancelled->watched;
        m_walk->isShown = true;
        m_announcer.announce(Change::watching);
    }
    if (m_reading)
        m_reading->setPace(PhotoReading::Pace::all);
    m_details.resume();
}

void Library::readAgain()
{
    if (!m_service || m_photos.records().isEmpty() || m_listing)
        return;
    const Announcer::Together together(m_announcer);
    beginListing();
    runInBackground(
        this,
        [photos = urlsOf(m_photos.records())] {
            ReadQueue queue;
            queue.add(photos);
            return queue;
        },
        [this, serial = ++m_loads](ReadQueue queue) {
            // Something else may be open by now.
            if (serial != m_loads)
                return;
            const Announcer::Together together(m_announcer);
            const qsizetype count = queue.left();
            m_details.readAgain();
            follow(newReading());
            m_reading->begin(std::move(queue), count);
            m_reading->setInView(m_inView);
            m_reading->setFirst(m_first);
            m_reading->setPace(PhotoReading::Pace::all);
            endListing();
        });
}

void Library::noteRead(const QList<QUrl>& photos)
{
    m_details.outdate(photos);
    if (m_reading)
        m_reading->drop(photos);
}

}  // namespace Quorbel
