#include "app/model/library/cache/RecordCache.h"

#include "app/model/library/SharedTexts.h"
#include "app/model/library/cache/DetailsCode.h"
#include "app/model/library/cache/RecordCode.h"
#include "app/model/library/cache/RecordDatabase.h"
#include "platform/files/FileSystem.h"

#include <QDataStream>
#include <QDateTime>
#include <QIODevice>

#include <algorithm>
#include <ctime>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// As many are written in one transaction; others wait for as long.
constexpr qsizetype mostInOneGo = 2000;
// How often the bounds are looked at, in photos written.
constexpr qint64 pruneInterval = 10'000;
// What a photo takes, about, in bytes.
constexpr qint64 usualSize = 700;

qint64 clockNow()
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME_COARSE, &now);
    return qint64(now.tv_sec) * 1'000'000'000 + now.tv_nsec;
}

// How finely the dates of files can be trusted, by device.
class ClockSteps {
public:
    // In nanoseconds.
    qint64 of(const PhotoFile& file)
    {
        auto known = m_steps.constFind(file.device);
        if (known == m_steps.cend())
            known = m_steps.insert(file.device, FileSystem::of(file.url.toLocalFile()).clockStep.count());
        // One that is older than its kind may keep whole seconds.
        return file.lastChanged() % aSecond == 0 ? std::max(*known, coarse) : *known;
    }

    // Whether a change since then would have given the file another date.
    bool canTrust(const PhotoFile& file, qint64 then)
    {
        const qint64 step = of(file);
        // Where the date of the change is kept coarsely, it may not be kept at all.
        const qint64 newest = step < aSecond ? file.lastChanged()
                                             : std::max({ file.lastChanged(), file.modified, file.sidecar.modified });
        return newest + step <= then;
    }

private:
    static constexpr qint64 aSecond = 1'000'000'000;
    static constexpr qint64 coarse = 2 * aSecond;

    QHash<quint64, qint64> m_steps;
};

QByteArray packed(const ToolAnswer& answer)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << answer.version << answer.folders << answer.library;
    return bytes;
}

// What a row of details is sealed for.
QByteArray detailsReader(const QByteArray& reader)
{
    static const QByteArray fingerprint = DetailsCode::fingerprint();
    return reader + fingerprint;
}

ToolAnswer unpacked(const QByteArray& bytes)
{
    ToolAnswer answer;
    QDataStream stream(bytes);
    stream >> answer.version >> answer.folders >> answer.library;
    return stream.status() == QDataStream::Ok ? answer : ToolAnswer();
}

}  // namespace

RecordCache::RecordCache(Options options, ExifToolRunner runner)
    : m_options(std::move(options))
    , m_runner(std::move(runner))
{
}

RecordCache::~RecordCache() = default;

QHash<QUrl, ImageRecord> RecordCache::find(const QList<PhotoFile>& files, const std::stop_token& stop)
{
    SharedTexts texts;
    QHash<QUrl, ImageRecord> found;
    const qint64 unnoted = QDateTime::currentMSecsSinceEpoch() - m_options.useStep;
    lookFor(files, stop, [&](RecordDatabase& database, const PhotoFile& file, const QByteArray& reader, Work& work) {
        const auto row = database.row(file.url.toLocalFile());
        auto record = row ? RecordCode::opened(row->content, file, reader) : std::nullopt;
        if (!record)
            return;
        if (found.isEmpty())
            found.reserve(files.size());
        texts.share(*record);
        found.insert(file.url, *std::move(record));
        if (row->used <= unnoted)
            work.used.append(row->number);
    });
    return found;
}

QHash<QUrl, PhotoDetails> RecordCache::findDetails(const QList<PhotoFile>& files, const std::stop_token& stop)
{
    QHash<QUrl, PhotoDetails> found;
    lookFor(files, stop, [&found](RecordDatabase& database, const PhotoFile& file, const QByteArray& reader, Work&) {
        const auto row = database.details(file.url.toLocalFile());
        const auto content = row ? RecordCode::unsealed(*row, file, detailsReader(reader)) : std::nullopt;
        auto details = content ? DetailsCode::decoded(*content) : std::nullopt;
        if (!details)
            return;
        details->url = file.url;
        found.insert(file.url, *std::move(details));
    });
    return found;
}

void RecordCache::lookFor(const QList<PhotoFile>& files, const std::stop_token& stop, const Look& look)
{
    if (m_options.folder.isEmpty() || files.isEmpty())
        return;
    RecordDatabase database(m_options.folder, RecordDatabase::Use::read);
    Work work;
    if (const auto asks = database.isOpen() && !database.isEmpty() ? reader(database, &work.hasAnswer) : std::nullopt) {
        database.beginReading();
        for (const PhotoFile& file : files) {
            if (stop.stop_requested())
                break;
            look(database, file, *asks, work);
        }
    }
    if (database.isDamaged())
        work.damaged = database.inode();
    if (!work.isEmpty())
        add([&work](Work& all) {
            all.used += work.used;
            all.hasAnswer = all.hasAnswer || work.hasAnswer;
            all.damaged = work.damaged ? work.damaged : all.damaged;
        });
}

RecordCache::Beginning RecordCache::begin(const QList<PhotoFile>& files) const
{
    constexpr qint64 longestTick = 50'000'000;
    ClockSteps steps;
    const qint64 now = clockNow();
    qint64 trusted = now;  // from when on all that can be trusted soon, can
    for (const PhotoFile& file : files)
        // Newer kernels date some changes more finely than this clock: they seem to lie ahead of it.
        if (file.lastChanged() + longestTick > now && file.lastChanged() < now + longestTick)
            if (const qint64 step = steps.of(file); step <= longestTick)
                trusted = std::max(trusted, file.lastChanged() + step);
    while (clockNow() < trusted)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return { clockNow(), ReaderIdentity::toolStamp(m_runner) + ReaderIdentity::surroundings(m_runner) };
}

void RecordCache::put(const Beginning& beginning, QList<Read> reads)
{
    if (!m_options.folder.isEmpty() && !reads.isEmpty())
        add([&](Work& work) { work.puts.append({ .beginning = beginning, .reads = std::move(reads) }); });
}

void RecordCache::putDetails(const Beginning& beginning, QList<DetailsRead> reads)
{
    if (!m_options.folder.isEmpty() && !reads.isEmpty())
        add([&](Work& work) { work.puts.append({ .beginning = beginning, .details = std::move(reads) }); });
}

void RecordCache::waitUntilWritten()
{
    std::unique_lock lock(m_waiting);
    m_changed.wait(lock, [this] { return m_work.isEmpty() && !m_isWriting; });
}

// The tool's answer that holds now: the one in memory, the one on disk, or that of a run.
std::optional<QByteArray> RecordCache::reader(RecordDatabase& database, bool* hasRun)
{
    const std::scoped_lock lock(m_asking);
    const QByteArray stamp = ReaderIdentity::toolStamp(m_runner);
    if (m_toolStamp != stamp || !m_answer.isValid()) {
        m_toolStamp = stamp;
        m_answer = unpacked(database.fact(stamp).value_or(QByteArray()));
    }
    if (!m_answer.isValid()) {
        try {
            m_answer = ToolAnswer::of(m_runner);
        } catch (const std::exception&) {
            m_answer = {};
        }
        if (hasRun)
            *hasRun = m_answer.isValid();
    }
    return m_answer.isValid() ? std::optional(ReaderIdentity::of(m_answer, ReaderIdentity::surroundings(m_runner)))
                              : std::nullopt;
}

void RecordCache::keepAnswer(RecordDatabase& database)
{
    const std::scoped_lock lock(m_asking);
    const QByteArray answer = packed(m_answer);
    if (m_answer.isValid() && database.fact(m_toolStamp) != answer)
        database.keepFact(m_toolStamp, answer);
}

void RecordCache::add(const std::function<void(Work&)>& change)
{
    const std::scoped_lock lock(m_waiting);
    change(m_work);
    if (!m_writer.joinable())
        m_writer = std::jthread([this](const std::stop_token& stop) { runWriter(stop); });
    m_changed.notify_all();
}

// What is there when the program ends is still written.
void RecordCache::runWriter(const std::stop_token& stop)
{
    std::unique_ptr<RecordDatabase> database;
    std::unique_lock lock(m_waiting);
    while (m_changed.wait(lock, stop, [this] { return !m_work.isEmpty(); })) {
        const Work work = takeSome();
        m_isWriting = true;
        lock.unlock();
        write(work, database);
        lock.lock();
        m_isWriting = false;
        m_changed.notify_all();
    }
}

// Others that write wait for as long as one transaction takes.
RecordCache::Work RecordCache::takeSome()
{
    Work some = std::exchange(m_work, {});
    qsizetype reads = 0;
    qsizetype puts = 0;
    while (puts < some.puts.size() && reads < mostInOneGo)
        reads += some.puts.at(puts++).size();
    m_work.puts = some.puts.sliced(puts);
    some.puts.resize(puts);
    return some;
}

void RecordCache::write(const Work& work, std::unique_ptr<RecordDatabase>& database)
{
    if (work.damaged)
        RecordDatabase::remove(m_options.folder, *work.damaged);
    // Whoever removed the file did so to be rid of it.
    if (database && !database->isInPlace())
        database.reset();
    for (const bool isLast : { false, true }) {
        if (!database)
            database = std::make_unique<RecordDatabase>(m_options.folder, RecordDatabase::Use::write);
        if (tryWrite(work, *database))
            return;
        const std::optional<quint64> damaged = database->isDamaged() ? std::optional(database->inode()) : std::nullopt;
        database.reset();
        if (!damaged || isLast)
            return;
        RecordDatabase::remove(m_options.folder, *damaged);
    }
}

bool RecordCache::tryWrite(const Work& work, RecordDatabase& database)
{
    if (!database.isOpen())
        return false;
    const auto asks = reader(database);
    const Rows written = asks ? rows(work, *asks) : Rows();
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (!database.begin())
        return false;
    keepAnswer(database);
    for (const Row& row : written.records)
        database.put(row.path, row.content, now);
    for (const Row& row : written.details)
        database.putDetails(row.path, row.content);
    for (const qint64 number : work.used)
        database.use(number, now);
    if (!database.commit())
        return false;
    prune(database, written.records.size());
    return true;
}

// Those that can be trusted.
RecordCache::Rows RecordCache::rows(const Work& work, const QByteArray& reader) const
{
    const QByteArray now = ReaderIdentity::toolStamp(m_runner) + ReaderIdentity::surroundings(m_runner);
    ClockSteps steps;
    Rows rows;
    const auto add = [](QList<Row>& list, const PhotoFile& file, const QByteArray& bytes, const QByteArray& reader) {
        if (!bytes.isEmpty())
            list.append({ file.url.toLocalFile(), RecordCode::sealed(bytes, file, reader) });
    };
    for (const Put& put : work.puts) {
        if (put.beginning.reader != now)
            continue;
        const auto isTrusted = [&](const PhotoFile& before) {
            return steps.canTrust(before, put.beginning.now) && before.again() == before;
        };
        for (const Read& read : put.reads)
            if (isTrusted(read.before))
                add(rows.records, read.before, RecordCode::encoded(read.record), reader);
        for (const DetailsRead& read : put.details)
            if (isTrusted(read.before))
                add(rows.details, read.before, DetailsCode::encoded(read.details), detailsReader(reader));
    }
    return rows;
}

void RecordCache::prune(RecordDatabase& database, qsizetype written)
{
    constexpr qint64 mostRemovedAtOnce = 5000;
    m_untilPruned -= written;
    if (m_untilPruned > 0)
        return;
    const qint64 twentieth = std::min(m_options.mostPhotos, m_options.mostBytes / usualSize) / 20;
    m_untilPruned = std::clamp<qint64>(twentieth, 1, pruneInterval);
    for (;;) {
        const qint64 photos = database.count();
        const qint64 bytes = database.size();
        if (photos <= m_options.mostPhotos && bytes <= m_options.mostBytes)
            return;
        // Somewhat below the bounds, so that it is not at them again at once.
        const double most = 0.95
            * std::min<double>(
                double(m_options.mostPhotos), double(photos) * double(m_options.mostBytes) / double(bytes));
        const qint64 surplus = std::max<qint64>(photos - qint64(most), 1);
        if (!database.begin())
            return;
        database.removeOldest(std::min(surplus, mostRemovedAtOnce));
        if (photos == 0 || !database.commit())
            return;
    }
}

}  // namespace Quorbel
