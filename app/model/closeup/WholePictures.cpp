#include "app/model/closeup/WholePictures.h"

#include "app/model/Background.h"
#include "app/model/MainThread.h"
#include "app/model/thumbnails/RawPreview.h"
#include "platform/images/ImageModule.h"

#include <QThreadPool>

#include <algorithm>

#include <sys/resource.h>
#include <unistd.h>

namespace Quorbel {

namespace {

constexpr int smallestLevel = 1'000;  // pixels, long side; no smaller one is made
constexpr int shutdownPatience = 2'000;  // milliseconds

// An eighth of the machine's, within reason.
qsizetype usualBytes()
{
    constexpr qsizetype megabyte = 1024LL * 1024;
    const qsizetype memory = qsizetype(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE);
    return std::clamp(memory / 8, 160 * megabyte, 512 * megabyte);
}

// On Linux the nice value is a thread's own.
void lowerPriority()
{
    constexpr int nice = 10;
    static thread_local const bool lowered = setpriority(PRIO_PROCESS, 0, nice) == 0;
    Q_UNUSED(lowered)
}

// Two channels at once: each pixel is the mean of four.
QImage halved(const QImage& image)
{
    const QSize size(image.width() / 2, image.height() / 2);
    QImage half(size, image.format());
    if (half.isNull())
        return half;
    constexpr quint32 mask = 0x00ff00ff;
    const auto mean = [](quint32 a, quint32 b, quint32 c, quint32 d) {
        const quint32 low = ((a & mask) + (b & mask) + (c & mask) + (d & mask)) >> 2 & mask;
        const quint32 high = ((a >> 8 & mask) + (b >> 8 & mask) + (c >> 8 & mask) + (d >> 8 & mask)) >> 2 & mask;
        return low | high << 8;
    };
    for (int y = 0; y < size.height(); ++y) {
        const auto* upper = reinterpret_cast<const quint32*>(image.constScanLine(2 * y));
        const auto* lower = reinterpret_cast<const quint32*>(image.constScanLine(2 * y + 1));
        auto* to = reinterpret_cast<quint32*>(half.scanLine(y));
        for (qsizetype x = 0; x < size.width(); ++x)
            to[x] = mean(upper[2 * x], upper[2 * x + 1], lower[2 * x], lower[2 * x + 1]);
    }
    return half;
}

QList<QImage> levelsOf(const QImage& image, const std::stop_token& stop)
{
    QList<QImage> levels{ image };
    while (!stop.stop_requested() && qMax(levels.constLast().width(), levels.constLast().height()) / 2 >= smallestLevel
        && image.depth() == 32) {
        const QImage half = halved(levels.constLast());
        if (half.isNull())
            break;
        levels.append(half);
    }
    return levels;
}

}  // namespace

qsizetype WholePicture::bytes() const
{
    qsizetype bytes = 0;
    for (const QImage& level : levels)
        bytes += level.sizeInBytes();
    return bytes;
}

// What the threads use: it outlives the pictures for as long as one of them runs.
struct WholePictures::Decoder {
    WholePicturesOptions options{};

    WholePicture make(const QString& path, const std::stop_token& stop) const
    {
        DecodedImage decoded = options.decode ? options.decode(path, options.mostPixels, stop)
                                              : ImageModule::loaded().decodeWhole(path, options.mostPixels, stop);
        if (decoded.outcome == DecodedImage::Outcome::needsTool && options.tool) {
            constexpr int longest = 20'000;
            const RawPreview preview = rawPreview(*options.tool, path, longest, stop);
            decoded.image = preview.image;
            decoded.photo = preview.photo;
            decoded.isPreview = true;
            if (!decoded.image.isNull())
                decoded.outcome = DecodedImage::Outcome::decoded;
        }
        WholePicture picture{ .photo = decoded.photo,
            .isPreview = decoded.isPreview,
            .isIncomplete = decoded.isIncomplete,
            .outcome = decoded.outcome };
        if (!decoded.image.isNull())
            picture.levels = levelsOf(decoded.image, stop);
        return picture;
    }
};

WholePictures::WholePictures(WholePicturesOptions options, QObject* parent)
    : QObject(parent)
    , m_mostBytes(options.mostBytes > 0 ? options.mostBytes : usualBytes())
    , m_pool(std::make_unique<QThreadPool>())
    , m_aheadPool(std::make_unique<QThreadPool>())
{
    m_decoder = std::make_shared<const Decoder>(Decoder{ std::move(options) });
    m_pool->setMaxThreadCount(1);
    m_aheadPool->setMaxThreadCount(1);
}

WholePictures::~WholePictures()
{
    cancelAllBut({});
    for (auto* pool : { &m_pool, &m_aheadPool }) {
        (*pool)->clear();
        // What still runs holds nothing but shared values: its pool is left to it.
        if (!(*pool)->waitForDone(shutdownPatience))
            static_cast<void>(pool->release());
    }
}

const WholePicture* WholePictures::picture(const QUrl& photo) const
{
    const auto held = m_held.constFind(photo);
    return held == m_held.cend() ? nullptr : &held->picture;
}

qsizetype WholePictures::bytesHeld() const
{
    qsizetype bytes = 0;
    for (const Held& held : m_held)
        bytes += held.picture.bytes();
    return bytes;
}

void WholePictures::look(const QUrl& photo, const QList<QUrl>& ahead)
{
    requireMainThread("WholePictures::look");
    const QList<QUrl> wanted = QList<QUrl>{ photo } + ahead;
    if (wanted != m_wanted)
        m_tooMuch.clear();
    // The one that is looked at waits for none of the others.
    cancelAllBut(wanted == m_wanted ? wanted : QList<QUrl>{ photo });
    m_wanted = wanted;
    if (const auto held = m_held.find(photo); held != m_held.end()) {
        held->seen = ++m_looks;
        // The picture of before serves until there is another one.
        if (held->version != FileVersion::of(photo.toLocalFile()) && !m_jobs.contains(photo))
            start(photo, false);
    }
    makeRoom();
    pump();
}

void WholePictures::clear()
{
    m_wanted.clear();
    cancelAllBut({});
    m_held.clear();
}

void WholePictures::cancelAllBut(const QList<QUrl>& photos)
{
    m_jobs.removeIf([&photos](auto job) {
        const bool isOver = !photos.contains(job.key());
        if (isOver)
            job.value().stop.request_stop();
        return isOver;
    });
}

// The one that is looked at first; then one ahead at a time.
void WholePictures::pump()
{
    for (const QUrl& photo : std::as_const(m_wanted)) {
        const bool isAhead = photo != m_wanted.constFirst();
        if (m_jobs.contains(photo))
            return;
        if (m_held.contains(photo) || m_tooMuch.contains(photo))
            continue;
        start(photo, isAhead);
        return;
    }
}

void WholePictures::start(const QUrl& photo, bool isAhead)
{
    Job job;
    job.ticket = ++m_tickets;
    m_jobs.insert(photo, job);
    ++m_running;
    runIn(
        isAhead ? *m_aheadPool : *m_pool, this,
        [decoder = m_decoder, path = photo.toLocalFile(), stop = job.stop.get_token(), isAhead] {
            if (isAhead)
                lowerPriority();
            Held made;
            made.version = FileVersion::of(path);
            if (!stop.stop_requested())
                made.picture = decoder->make(path, stop);
            return made;
        },
        [this, photo, ticket = job.ticket](Held made) {
            --m_running;
            finish(photo, ticket, std::move(made));
        });
}

void WholePictures::finish(const QUrl& photo, int ticket, Held made)
{
    const auto job = m_jobs.constFind(photo);
    if (job == m_jobs.cend() || job->ticket != ticket)
        return discardInBackground(std::move(made));
    m_jobs.erase(job);
    made.seen = ++m_looks;
    m_held.emplace(photo, std::move(made));
    makeRoom();
    emit changed(photo);
    pump();
}

// Those that were looked at longest ago go first, then those ahead that are the least likely.
void WholePictures::makeRoom()
{
    while (bytesHeld() > m_mostBytes && !m_held.isEmpty()) {
        const auto rank = [this](const QUrl& photo) {
            const qsizetype at = m_wanted.indexOf(photo);
            return at < 0 ? std::pair(0, qsizetype(m_held.value(photo).seen)) : std::pair(1, -at);
        };
        const QList<QUrl> photos = m_held.keys();
        const QUrl first = *std::min_element(
            photos.cbegin(), photos.cend(), [&rank](const QUrl& a, const QUrl& b) { return rank(a) < rank(b); });
        if (!m_wanted.isEmpty() && first == m_wanted.constFirst())
            return;
        if (m_wanted.contains(first))
            m_tooMuch.append(first);
        m_held.remove(first);
    }
}

}  // namespace Quorbel
