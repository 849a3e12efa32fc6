#include "app/model/thumbnails/ThumbnailStore.h"

#include "app/model/thumbnails/RawPreview.h"
#include "app/model/thumbnails/ThumbnailDiskCache.h"
#include "platform/images/ImageModule.h"

#include <QDir>
#include <QElapsedTimer>
#include <QMutex>
#include <QStandardPaths>
#include <QThread>
#include <QThreadPool>
#include <QTimer>

#include <array>
#include <chrono>
#include <cmath>
#include <utility>

#include <sys/resource.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int previewLongSide = 1400;
constexpr int smallLongSide = 90;  // points
// Previews that wait at once. More than a stack of cards shows; running through a folder asks for hundreds.
constexpr qsizetype mostPreviewsWaiting = 16;
// After this one run of the tool for one file's preview is given up: some damaged files keep it busy for minutes.
constexpr std::chrono::seconds toolTimeAllowed{ 30 };
// How long a store that is being destroyed waits for decoders that cannot be interrupted.
constexpr int shutdownPatience = 2000;  // milliseconds

// Decoding must not compete with the window for the processor. On Linux the nice value is a thread's own.
void lowerPriority()
{
    constexpr int nice = 10;
    static thread_local const bool lowered = setpriority(PRIO_PROCESS, 0, nice) == 0;
    Q_UNUSED(lowered)
}

}  // namespace

ThumbnailStoreOptions ThumbnailStoreOptions::forUser()
{
    ThumbnailStoreOptions options;
    options.cacheFolder = QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + u"/thumbnails"_s;
    options.sharedFolder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + u"/thumbnails"_s;
    return options;
}

// What the workers use. Jobs share it, so that it outlives the store for as long as one of them runs.
struct ThumbnailStore::PictureMaker {
    struct Photo {
        QString path{};
        FileVersion version{};
    };

    ThumbnailStoreOptions options{};
    ThumbnailDiskCache disk;

    explicit PictureMaker(const ThumbnailStoreOptions& from)
        : options(from)
        , disk(from.cacheFolder)
    {
        if (!options.decode)
            options.decode = [](const QString& path, int longSide, const std::stop_token& stop) {
                return ImageModule::loaded().decode(path, longSide, stop);
            };
        if (!options.embedded)
            options.embedded = [](const QString& path, const std::stop_token& stop) {
                return ImageModule::loaded().embeddedThumbnail(path, stop);
            };
    }

    Outcome look(const Photo& photo, int longSide, const std::stop_token& stop) const
    {
        if (QImage image = disk.load(disk.key(photo.path, photo.version, longSide)); !image.isNull())
            return { .image = std::move(image), .final = true, .isDecoded = true };
        QImage image = options.embedded(photo.path, stop);
        if (image.isNull())
            image = sharedThumbnail(options.sharedFolder, photo.path, qMin(longSide, 256));
        return { .image = std::move(image) };
    }

    Outcome decode(const Photo& photo, int longSide, const std::stop_token& stop) const
    {
        constexpr qint64 worthKeeping = 60;  // milliseconds; a kept preview loads in ten
        QElapsedTimer clock;
        clock.start();
        DecodedImage decoded = options.decode(photo.path, longSide, stop);
        if (decoded.outcome == DecodedImage::Outcome::needsTool && options.tool)
            return { .needsTool = true };
        if (decoded.outcome != DecodedImage::Outcome::decoded)
            return { .image = sharedThumbnail(options.sharedFolder, photo.path, qMin(longSide, 256)), .final = true };
        if (longSide < previewLongSide || clock.elapsed() >= worthKeeping)
            keepOnDisk(photo, longSide, decoded.image);
        return { .image = std::move(decoded.image), .final = true, .isDecoded = true };
    }

    // One run serves both sizes: the larger image is kept on disk for the request that comes next.
    Outcome runTool(const Photo& photo, int longSide, const std::stop_token& stop) const
    {
        QImage large = disk.load(disk.key(photo.path, photo.version, previewLongSide));
        if (large.isNull()) {
            large = rawPreview(*options.tool, photo.path, previewLongSide, stop).image;
            keepOnDisk(photo, previewLongSide, large);
        }
        const bool isDecoded = !large.isNull();
        if (qMax(large.width(), large.height()) <= longSide)
            return { .image = std::move(large), .final = true, .isDecoded = isDecoded };
        QImage image = large.scaled(longSide, longSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        keepOnDisk(photo, longSide, image);
        return { .image = std::move(image), .final = true, .isDecoded = true };
    }

    // Not if the file is another one by now: nobody knows then which of them was decoded.
    void keepOnDisk(const Photo& photo, int longSide, const QImage& image) const
    {
        if (FileVersion::of(photo.path) == photo.version)
            disk.save(disk.key(photo.path, photo.version, longSide), image);
    }
};

// Where workers leave what they made. Emptied of its store before that is gone, under the lock.
struct ThumbnailStore::Mailbox {
    QMutex mutex{};
    ThumbnailStore* store = nullptr;

    void post(const Key& key, qint64 ticket, Outcome outcome)
    {
        const QMutexLocker lock(&mutex);
        if (!store)
            return;
        QMetaObject::invokeMethod(
            store, [to = store, key, ticket, outcome = std::move(outcome)] { to->finish(key, ticket, outcome); },
            Qt::QueuedConnection);
    }
};

ThumbnailStore::ThumbnailStore(ThumbnailStoreOptions options, QObject* parent)
    : QObject(parent)
    , m_options(std::move(options))
    , m_pictureMaker(std::make_shared<PictureMaker>(m_options))
    , m_mailbox(std::make_shared<Mailbox>())
    , m_pool(std::make_unique<QThreadPool>())
    , m_toolPool(std::make_unique<QThreadPool>())
    , m_lanes(m_options.workers > 0 ? m_options.workers : qMax(1, QThread::idealThreadCount() - 1))
    , m_small(m_options.smallBytes)
    , m_previews(m_options.previewBytes)
{
    m_mailbox->store = this;
    m_pool->setMaxThreadCount(m_lanes);
    m_toolPool->setMaxThreadCount(1);
}

void ThumbnailStore::pruneDisk()
{
    m_toolPool->start([maker = m_pictureMaker] {
        lowerPriority();
        maker->disk.prune(maker->options.cacheFolderBytes);
    });
}

ThumbnailStore::~ThumbnailStore()
{
    {
        const QMutexLocker lock(&m_mailbox->mutex);
        m_mailbox->store = nullptr;
    }
    for (Job& job : m_jobs)
        job.stop.request_stop();
    for (auto* pool : { &m_pool, &m_toolPool }) {
        (*pool)->clear();
        // A pool's destructor waits without end. What still runs then holds nothing but shared values, so its pool
        // is left to it.
        if (!(*pool)->waitForDone(shutdownPatience))
            static_cast<void>(pool->release());
    }
}

ThumbnailStore::Entry ThumbnailStore::entry(const QUrl& url, Kind kind) const
{
    const Key key{ url, kind };
    if (const auto badge = m_badges.find(key); badge != m_badges.end() && isCurrent(url, *badge, false))
        return { .state = State::badge };
    if (Held* held = cache(kind).object(url); held && isCurrent(url, held->seen, false))
        return { .state = held->final ? State::ready : State::placeholder,
            .image = held->image,
            .isStandIn = held->final && held->isStandIn };
    return { .state = m_jobs.contains(key) ? State::loading : State::none };
}

// `looks`: looks at the file in any case, otherwise only after lookAgain().
bool ThumbnailStore::isCurrent(const QUrl& url, Seen& seen, bool looks) const
{
    if (m_beingWritten.contains(url) || (!looks && seen.look == m_looks))
        return true;
    if (FileVersion::of(url.toLocalFile()) != seen.version)
        return false;
    seen.look = m_looks;
    return true;
}

// What is held of a file that is another one by now. Whether there was anything.
bool ThumbnailStore::forgetStale(const Key& key)
{
    const auto badge = m_badges.find(key);
    Held* held = cache(key.kind).contains(key.url) ? cache(key.kind).object(key.url) : nullptr;
    const bool badgeIsStale = badge != m_badges.end() && !isCurrent(key.url, *badge, true);
    const bool heldIsStale = held && !isCurrent(key.url, held->seen, true);
    if (badgeIsStale)
        m_badges.erase(badge);
    if (heldIsStale)
        cache(key.kind).remove(key.url);
    return badgeIsStale || heldIsStale;
}

ThumbnailStore::Entry ThumbnailStore::request(const QUrl& url, Kind kind)
{
    const Key key{ url, kind };
    for (const Kind either : { Kind::small, Kind::preview })
        forgetStale({ url, either });
    const Entry known = entry(url, kind);
    if (known.state == State::ready || known.state == State::badge || !url.isLocalFile())
        return known;
    Job& job = m_jobs[key];
    const bool isNew = job.ticket == 0;
    if (isNew && kind == Kind::preview && known.state == State::none) {
        // The row's own picture, enlarged, is a better wait than an empty column.
        if (const Held* small = m_small.object(url))
            m_previews.insert(url, new Held{ .image = small->image, .seen = small->seen }, small->image.sizeInBytes());
    }
    if (!job.running) {
        m_queue.erase(rankOf(key, job));
        job.ticket = ++m_lastTicket;
        enqueue(key, job);
    }
    if (isNew && kind == Kind::preview)
        dropOldPreviews();
    dispatch();
    return entry(url, kind);
}

void ThumbnailStore::setVisible(const QList<QUrl>& urls, const QList<QUrl>& near)
{
    m_visible = QSet<QUrl>(urls.cbegin(), urls.cend());
    m_near = QSet<QUrl>(near.cbegin(), near.cend());
    QList<Key> gone, moved;
    for (auto it = m_jobs.cbegin(); it != m_jobs.cend(); ++it) {
        const Band band = bandOf(it.key());
        if (it.key().kind == Kind::small && band == Band::rest)
            gone.append(it.key());
        else if (band != it->band && !it->running)
            moved.append(it.key());
    }
    for (const Key& key : std::as_const(moved)) {
        Job& job = m_jobs[key];
        m_queue.erase(rankOf(key, job));
        enqueue(key, job);
    }
    for (const Key& key : std::as_const(gone))
        drop(key);
    for (qsizetype i = near.size(); i-- > 0;)  // the newest is served first: the nearest is asked for last
        request(near[i], Kind::small);
    dispatch();
    for (const Key& key : std::as_const(gone))
        emit entryChanged(key.url, key.kind);
}

void ThumbnailStore::invalidate(const QList<QUrl>& urls)
{
    QList<Key> changed;
    for (const QUrl& url : urls) {
        for (const Kind kind : { Kind::small, Kind::preview }) {
            const Key key{ url, kind };
            const bool wasMade = drop(key);
            if (forgetStale(key) || wasMade)
                changed.append(key);
        }
    }
    announceStale(changed);
}

void ThumbnailStore::rename(const NewNames& names)
{
    QList<std::pair<QUrl, QUrl>> files = names.list();
    files.removeIf([](const auto& file) { return file.first == file.second; });
    QList<Key> changed;
    for (const Kind kind : { Kind::small, Kind::preview })
        changed += carry(files, kind);
    carryOnDisk(files, std::nullopt);
    for (const Key& key : std::as_const(changed))
        emit entryChanged(key.url, key.kind);
}

// All leave their old places before one comes to its new one: two may have swapped theirs. Whose entries changed.
QList<ThumbnailStore::Key> ThumbnailStore::carry(const QList<std::pair<QUrl, QUrl>>& files, Kind kind)
{
    QHash<QUrl, Held*> held;
    QHash<QUrl, Seen> badges;
    QList<Key> changed;
    for (const auto& [source, destination] : files) {
        const Key from{ source, kind }, to{ destination, kind };
        const qsizetype before = held.size() + badges.size();
        if (Held* image = cache(kind).take(source))
            held.insert(destination, image);
        if (m_badges.contains(from))
            badges.insert(destination, m_badges.take(from));
        const bool wasMade = drop(from);
        if (drop(to) || wasMade || held.size() + badges.size() > before
            || entry(destination, kind).state != State::none)
            changed << from << to;
    }
    for (const auto& [source, destination] : files) {
        m_badges.remove({ destination, kind });
        cache(kind).remove(destination);
        if (Held* image = held.value(destination))
            cache(kind).insert(destination, image, image->image.sizeInBytes());
        if (const auto badge = badges.constFind(destination); badge != badges.cend())
            m_badges.insert({ destination, kind }, *badge);
    }
    return changed;
}

void ThumbnailStore::beginWriting(const QList<QUrl>& urls)
{
    // What belongs to another file already must not pass for the picture of the one that is about to be written.
    m_beingWritten.clear();
    const QSet<QUrl> photos(urls.cbegin(), urls.cend());
    QSet<Key> known(m_badges.keyBegin(), m_badges.keyEnd());
    for (const Kind kind : { Kind::small, Kind::preview })
        for (const QUrl& url : cache(kind).keys())
            known.insert({ url, kind });
    QList<Key> changed;
    for (const Key& key : std::as_const(known))
        if (photos.contains(key.url) && forgetStale(key))
            changed.append(key);
    m_beingWritten = photos;
    announceStale(changed);
}

void ThumbnailStore::endWriting(const QList<QUrl>& written)
{
    for (const QUrl& url : written) {
        if (!m_beingWritten.contains(url))
            continue;
        for (const Kind kind : { Kind::small, Kind::preview }) {
            const auto badge = m_badges.find({ url, kind });
            Seen* seen = cache(kind).contains(url) ? &cache(kind).object(url)->seen
                : badge != m_badges.end()          ? &*badge
                                                   : nullptr;
            if (!seen)
                continue;
            const FileVersion before = std::exchange(seen->version, FileVersion::of(url.toLocalFile()));
            if (before != seen->version)
                carryOnDisk({ { url, url } }, before);
        }
    }
    m_beingWritten.clear();
}

// `version`: of the file that the images were made of; nothing when only its name is another one now.
void ThumbnailStore::carryOnDisk(const QList<std::pair<QUrl, QUrl>>& files, std::optional<FileVersion> version) const
{
    if (files.isEmpty())
        return;
    m_pool->start(
        [maker = m_pictureMaker, files, version, sides = std::array{ longSide(Kind::small), longSide(Kind::preview) }] {
            lowerPriority();
            for (const auto& [from, to] : files) {
                const QString path = to.toLocalFile();
                const FileVersion now = FileVersion::of(path);
                for (const int side : sides)
                    maker->disk.carry(maker->disk.key(from.toLocalFile(), version.value_or(now), side),
                        maker->disk.key(path, now, side));
            }
        });
}

void ThumbnailStore::setDevicePixelRatio(qreal ratio)
{
    const int before = longSide(Kind::small);
    m_options.devicePixelRatio = ratio;
    if (longSide(Kind::small) == before)
        return;
    // Requests under way would deliver the old size; what is held serves until it is made anew.
    QList<Key> changed;
    for (const Key& key : m_jobs.keys()) {
        if (key.kind != Kind::small)
            continue;
        drop(key);
        changed.append(key);
    }
    for (const QUrl& url : m_small.keys()) {
        m_small.object(url)->final = false;
        changed.append({ url, Kind::small });
    }
    announceStale(changed);
}

void ThumbnailStore::announceStale(const QList<Key>& keys)
{
    for (const Key& key : keys) {
        if (key.kind == Kind::small && m_visible && m_visible->contains(key.url))
            request(key.url, key.kind);
    }
    for (const Key& key : keys)
        emit entryChanged(key.url, key.kind);
}

qsizetype ThumbnailStore::bytesHeld(Kind kind) const
{
    return cache(kind).totalCost();
}

int ThumbnailStore::longSide(Kind kind) const
{
    return kind == Kind::preview ? previewLongSide
                                 : int(std::ceil(smallLongSide * qMax(1.0, m_options.devicePixelRatio)));
}

ThumbnailStore::Band ThumbnailStore::bandOf(const Key& key) const
{
    if (key.kind == Kind::preview || !m_visible || m_visible->contains(key.url))
        return Band::visible;
    return m_near.contains(key.url) ? Band::near : Band::rest;
}

ThumbnailStore::Rank ThumbnailStore::rankOf(const Key& key, const Job& job) const
{
    // The tool is slow and runs alone: whatever else waits goes first.
    const Band band = job.step == Step::tool ? Band::rest : job.band;
    return { job.step == Step::tool, band, job.step, key.kind != Kind::preview, -job.ticket };
}

void ThumbnailStore::enqueue(const Key& key, Job& job)
{
    job.running = false;
    job.band = bandOf(key);
    m_queue.emplace(rankOf(key, job), key);
}

// Whether it was being made.
bool ThumbnailStore::drop(const Key& key)
{
    const auto job = m_jobs.constFind(key);
    if (job == m_jobs.cend())
        return false;
    std::stop_source(job->stop).request_stop();
    m_queue.erase(rankOf(key, *job));
    m_jobs.erase(job);
    return true;
}

void ThumbnailStore::dropOldPreviews()
{
    QMap<qint64, Key> waiting;
    for (auto it = m_jobs.cbegin(); it != m_jobs.cend(); ++it) {
        if (it.key().kind == Kind::preview)
            waiting.insert(it->ticket, it.key());
    }
    while (waiting.size() > mostPreviewsWaiting)
        drop(waiting.take(waiting.firstKey()));
}

void ThumbnailStore::dispatch()
{
    while (!m_queue.empty()) {
        const Key key = m_queue.begin()->second;
        Job& job = m_jobs[key];
        const bool isTool = job.step == Step::tool;
        // One job more than there are threads: a thread that ends one finds the next without waiting for us.
        if (isTool ? m_toolRunning || m_running > 0 : m_running > m_lanes)
            return;
        m_queue.erase(m_queue.begin());
        job.running = true;
        if (isTool)
            m_toolRunning = true;
        else
            ++m_running;
        start(key, job);
    }
}

void ThumbnailStore::start(const Key& key, const Job& job)
{
    using Work = Outcome (PictureMaker::*)(const PictureMaker::Photo&, int, const std::stop_token&) const;
    const bool isTool = job.step == Step::tool;
    const Work work = isTool     ? &PictureMaker::runTool
        : job.step == Step::look ? &PictureMaker::look
                                 : &PictureMaker::decode;
    if (isTool) {
        QTimer::singleShot(toolTimeAllowed, this, [stop = job.stop]() mutable { stop.request_stop(); });
    }
    (isTool ? m_toolPool : m_pool)
        ->start([maker = m_pictureMaker, mailbox = m_mailbox, key, side = longSide(key.kind), work, isTool,
                    ticket = job.ticket, stop = job.stop.get_token()] {
            lowerPriority();
            Outcome outcome;
            const QString path = key.url.toLocalFile();
            const FileVersion version = FileVersion::of(path);
            if (!stop.stop_requested())
                outcome = (*maker.*work)({ path, version }, side, stop);
            outcome.fromTool = isTool;
            outcome.version = version;
            outcome.isOutdated = FileVersion::of(path) != version;
            mailbox->post(key, ticket, std::move(outcome));
        });
}

void ThumbnailStore::finish(const Key& key, qint64 ticket, const Outcome& outcome)
{
    if (outcome.fromTool)
        m_toolRunning = false;
    else
        --m_running;
    const auto found = m_jobs.find(key);
    if (found == m_jobs.end() || found->ticket != ticket) {
        dispatch();  // dropped, or asked for anew since: nobody waits for this one
        return;
    }
    QList<Key> changed{ key };
    if (outcome.isOutdated) {
        m_jobs.erase(found);  // of which file it is nobody knows: who still shows it asks again
    } else if (found->step == Step::look && !outcome.final) {
        found->impression = outcome.image;
        if (!showMeanwhile(key, outcome))
            changed.clear();
        found->step = Step::decode;
        enqueue(key, *found);
    } else if (outcome.needsTool) {
        found->step = Step::tool;
        enqueue(key, *found);
        changed.clear();
    } else if (outcome.isDecoded) {
        m_jobs.erase(found);
        keep(key, { .image = outcome.image, .final = true, .seen = { outcome.version, m_looks } });
    } else {
        changed = settleWithout(key, outcome);
    }
    dispatch();
    for (const Key& one : std::as_const(changed))
        emit entryChanged(one.url, one.kind);
}

// Whether there is something new to show until the picture is made.
bool ThumbnailStore::showMeanwhile(const Key& key, const Outcome& outcome)
{
    const Held* held = cache(key.kind).object(key.url);
    if (outcome.image.isNull() || (held && held->seen.version == outcome.version))
        return false;
    keep(key, { .image = outcome.image, .seen = { outcome.version, m_looks } });
    return true;
}

// The photo cannot be decoded. What was shown of it meanwhile stays, or the best that was found on the way; without any
// it has a badge. Returns what changed. What even the tool finds no picture in has none of the other size: a run for
// that one would be the same again.
QList<ThumbnailStore::Key> ThumbnailStore::settleWithout(const Key& key, const Outcome& outcome)
{
    const Key other{ key.url, key.kind == Kind::small ? Kind::preview : Kind::small };
    const bool forBoth = outcome.fromTool && entry(other.url, other.kind).state != State::ready;
    const QList<Key> settled = forBoth ? QList<Key>{ key, other } : QList<Key>{ key };
    const auto takeLarger = [](QImage& best, const QImage& image) {
        if (qMax(image.width(), image.height()) > qMax(best.width(), best.height()))
            best = image;
    };
    for (const Key& one : settled) {
        QImage best = outcome.image;
        takeLarger(best, m_jobs.value(one).impression);
        if (const Held* held = cache(one.kind).object(one.url); held && held->seen.version == outcome.version)
            takeLarger(best, held->image);
        drop(one);
        cache(one.kind).remove(one.url);
        if (best.isNull())
            m_badges.insert(one, { outcome.version, m_looks });
        else
            keep(one, { .image = best, .final = true, .isStandIn = true, .seen = { outcome.version, m_looks } });
    }
    return settled;
}

void ThumbnailStore::keep(const Key& key, Held held)
{
    const qsizetype bytes = held.image.sizeInBytes();
    cache(key.kind).insert(key.url, new Held(std::move(held)), bytes);
}

}  // namespace Quorbel
