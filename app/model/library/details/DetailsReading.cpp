#include "app/model/library/details/DetailsReading.h"

#include "app/model/Background.h"
#include "app/model/library/reading/OwnWrites.h"
#include "core/language/Texts.h"

#include <QThread>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype readAtOnce = 200;
// So many of all are looked for in the cache at once, as long as it knows any.
constexpr qsizetype lookedForAtOnce = 2000;
// While all photos are looked at: the pause after something else has run.
constexpr std::chrono::milliseconds shortDelay{ 100 };

qsizetype patientRunsAtOnce()
{
    return std::max(1, QThread::idealThreadCount() / 2);
}

}  // namespace

DetailsReading::DetailsReading(Announcer& announcer, RunningTasks& tasks, PhotoList& photos, const OwnWrites& writes,
    std::shared_ptr<RecordCache> cache)
    : m_announcer(announcer)
    , m_tasks(tasks)
    , m_photos(photos)
    , m_writes(writes)
    , m_cache(std::move(cache))
    , m_survey(tasks)
{
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &DetailsReading::schedule);
    connect(&m_tasks, &RunningTasks::busyChanged, this, [this] {
        if (!m_tasks.isBusy())
            return wake();
        for (const Run& run : m_running)
            stop(run);
    });
}

DetailsReading::~DetailsReading()
{
    drop();
}

void DetailsReading::setAsking(DetailsReader::Ask ask, std::chrono::milliseconds delay)
{
    m_ask = std::move(ask);
    m_delay = delay;
}

DetailsReading::Census DetailsReading::census() const
{
    // Where files of one shot are one photo, those that can be listed.
    const qsizetype disagreeing =
        m_photos.isPairing() ? m_photos.index().count(PhotoTrait::disagreement) : m_store.disagreeing();
    return { disagreeing, m_photos.records().size() - m_store.known(), m_survey.isLooking(),
        m_photos.wanted().testFlag(PhotoTrait::disagreement) };
}

std::optional<DetailsFailure> DetailsReading::failure(const QUrl& photo) const
{
    return m_store.isKnown(photo) ? std::nullopt : m_failures.of(photo);
}

void DetailsReading::tell()
{
    m_announcer.assign(m_told, census(), Change::disagreements);
}

// --- What is wanted ---

void DetailsReading::begin()
{
    const Announcer::Together together(m_announcer);
    if (m_store.known() > 0)
        m_announcer.announce(Change::details);
    drop();
    m_isCacheAsked = true;
    m_isCacheUseful = true;
    tell();
    wake();
}

void DetailsReading::drop()
{
    for (const Run& run : std::exchange(m_running, {})) {
        m_tasks.stop(run.id);
        m_tasks.end(run.id);
    }
    m_required.clear();
    m_survey.drop();
    m_reading.clear();
    m_failures = {};
    m_parts.clear();
    m_kept.clear();
    discardInBackground(std::exchange(m_store, {}));
}

void DetailsReading::setSelected(const std::optional<QUrl>& first, const QSet<QUrl>& photos)
{
    m_inSight.setSelected(first, photos);
    wake();
}

void DetailsReading::setInView(const QList<QUrl>& photos)
{
    m_inSight.setInView(photos);
    wake();
}

void DetailsReading::setPaused(bool on)
{
    m_isPaused = on;
    if (!on)
        return wake();
    for (const Run& run : m_running)
        stop(run);
}

void DetailsReading::outdate(const QList<QUrl>& photos)
{
    const Announcer::Together together(m_announcer);
    QList<QUrl> known;
    for (const QUrl& photo : photos) {
        m_failures.forget(photo);
        for (Run& run : m_running)
            run.outdated.insert(photo);
        if (m_store.outdate(photo))
            known.append(photo);
    }
    if (!known.isEmpty()) {
        m_announcer.announce(Change::details);
        emit changed(known);
    }
    tell();
    wake();
}

void DetailsReading::noteAdded()
{
    tell();
    wake();
}

void DetailsReading::forget(const QSet<QUrl>& photos)
{
    const Announcer::Together together(m_announcer);
    bool wasAnyKnown = false;
    for (const QUrl& photo : photos) {
        wasAnyKnown = m_store.forget(photo) || wasAnyKnown;
        m_failures.forget(photo);
        m_kept.remove(photo);
    }
    if (wasAnyKnown)
        m_announcer.announce(Change::details);
    tell();
}

void DetailsReading::rename(const NewNames& names)
{
    const Announcer::Together together(m_announcer);
    if (m_store.rename(names))
        m_announcer.announce(Change::details);
    m_failures.rename(names);
    m_kept = names.of(m_kept);
    m_survey.rename(names);
    // What is being read under a name may be another photo's by now.
    for (Run& run : m_running)
        for (const auto& [source, destination] : names.list())
            run.outdated << source << destination;
    wake();
}

void DetailsReading::readAgain()
{
    m_isCacheAsked = false;
    m_isCacheUseful = false;
}

void DetailsReading::setFiltering(bool on)
{
    const Announcer::Together together(m_announcer);
    m_photos.setWanted(m_photos.wanted().setFlag(PhotoTrait::disagreement, on));
    if (on)
        resume();
    else
        cancel();
    tell();
}

void DetailsReading::cancel()
{
    const Announcer::Together together(m_announcer);
    m_survey.setOn(false, false);
    m_required.clear();
    for (const Run& run : m_running)
        if (run.lane == Lane::patient)
            stop(run);
    m_survey.end();
    tell();
}

void DetailsReading::resume()
{
    const Announcer::Together together(m_announcer);
    m_failures.trust();
    const bool isOn = m_photos.wanted().testFlag(PhotoTrait::disagreement);
    m_survey.setOn(isOn, isOn && m_ask && m_store.known() + m_failures.photos() < m_photos.records().size());
    schedule();
    tell();
}

void DetailsReading::tryAgain(const QUrl& photo)
{
    const Announcer::Together together(m_announcer);
    if (!failure(photo))
        return;
    m_failures.tryAgain(photo);
    m_announcer.announce(Change::details);
    schedule();
}

void DetailsReading::setHeld(const QSet<QUrl>& photos)
{
    m_held = photos;
    QList<QUrl> released;
    for (const QUrl& photo : std::as_const(m_kept))
        if (!m_held.contains(photo))
            released.append(photo);
    for (const QUrl& photo : std::as_const(released))
        m_kept.remove(photo);
    m_photos.setTrait(PhotoTrait::disagreement, released, false);
}

// --- What is read next ---

void DetailsReading::wake()
{
    if (m_ask)
        m_soon.start(m_survey.isOn() ? std::min(m_delay, shortDelay) : m_delay);
}

void DetailsReading::schedule()
{
    if (!m_ask || m_tasks.isBusy() || m_isPaused || m_failures.isGivenUp())
        return;
    const Announcer::Together together(m_announcer);
    startSelected();
    startPatient();
    tell();
}

void DetailsReading::startSelected()
{
    const auto running =
        std::find_if(m_running.cbegin(), m_running.cend(), [](const Run& run) { return run.lane == Lane::selected; });
    if (running == m_running.cend()) {
        if (const QList<QUrl> photos = nextSelected(); !photos.isEmpty())
            start(Lane::selected, photos);
        return;
    }
    const auto isSelected = [this](const QUrl& photo) { return m_inSight.isSelected(photo); };
    if (std::none_of(running->photos.cbegin(), running->photos.cend(), isSelected))
        stop(*running);
}

void DetailsReading::startPatient()
{
    const auto runs = [this] {
        return std::count_if(
            m_running.cbegin(), m_running.cend(), [](const Run& run) { return run.lane == Lane::patient; });
    };
    while (runs() < patientRunsAtOnce()) {
        QList<QUrl> photos = nextPart();
        if (photos.isEmpty())
            photos = nextRequired();
        if (photos.isEmpty())
            photos = nextInView();
        if (photos.isEmpty() && m_survey.isOn())
            photos = nextOfAll();
        if (photos.isEmpty())
            return;
        start(Lane::patient, photos);
    }
}

bool DetailsReading::isWanted(const ImageRecord& photo) const
{
    return !photo.isUnread && !m_failures.isLeftAlone(photo.url) && !m_store.isKnown(photo.url);
}

bool DetailsReading::isWanted(const QUrl& photo) const
{
    const ImageRecord* record = m_photos.record(photo);
    return record && isWanted(*record);
}

// They are read even where they are part of a larger run: that may take its time.
QList<QUrl> DetailsReading::nextSelected() const
{
    return m_inSight.nextSelected([this](const QUrl& photo) { return isWanted(photo); });
}

QList<QUrl> DetailsReading::nextInView() const
{
    return m_inSight.nextInView([this](const QUrl& photo) { return isToBeRead(photo); });
}

QList<QUrl> DetailsReading::nextPart()
{
    QList<QUrl> part;
    while (part.isEmpty() && !m_parts.empty()) {
        part = std::move(m_parts.back());
        m_parts.pop_back();
        part.removeIf([this](const QUrl& photo) { return !isToBeRead(photo); });
    }
    return part;
}

QList<QUrl> DetailsReading::nextRequired()
{
    QList<QUrl> next;
    for (const QUrl& photo : std::as_const(m_required))
        if (next.size() < readAtOnce && isToBeRead(photo))
            next.append(photo);
    return next;
}

bool DetailsReading::require(const QList<QUrl>& photos)
{
    const Announcer::Together together(m_announcer);
    const bool isFirst = m_required.isEmpty();
    m_required = m_ask && !m_failures.isGivenUp() ? photos : QList<QUrl>();
    m_required.removeIf([this](const QUrl& photo) { return !isWanted(photo); });
    if (m_required.isEmpty()) {
        if (!m_survey.isOn())
            m_survey.end();
        return true;
    }
    if (isFirst)
        m_requiredInAll = m_required.size();
    m_survey.show(m_requiredInAll - m_required.size(), m_requiredInAll);
    schedule();
    return false;
}

// Of all photos; none when the look at them is at its end.
QList<QUrl> DetailsReading::nextOfAll()
{
    const auto take = [this] {
        return m_survey.take(ofAllAtOnce(), [this](const QUrl& photo) { return isToBeRead(photo); });
    };
    QList<QUrl> next = take();
    if (next.isEmpty()) {
        m_survey.setPhotos(allWanted());
        next = take();
    }
    if (!next.isEmpty())
        m_survey.show(m_store.known(), m_photos.records().size() - m_failures.photos());
    else if (m_running.empty())
        m_survey.end();
    return next;
}

qsizetype DetailsReading::ofAllAtOnce() const
{
    return m_cache && m_isCacheUseful ? lookedForAtOnce : readAtOnce;
}

QList<QUrl> DetailsReading::allWanted() const
{
    QList<QUrl> wanted;
    for (const ImageRecord& photo : m_photos.records())
        if (isWanted(photo))
            wanted.append(photo.url);
    return wanted;
}

// --- Runs ---

void DetailsReading::start(Lane lane, const QList<QUrl>& photos)
{
    const RunningTasks::Task task =
        m_tasks.begin(RunningTasks::Kind::details, photos.size(), photos, lane == Lane::patient ? m_survey.task() : 0);
    m_running.push_back({ task.id, lane, photos, m_writes.count(), {} });
    m_reading.unite(QSet<QUrl>(photos.cbegin(), photos.cend()));
    DetailsReader::Order order{
        .most = readAtOnce, .cache = m_cache, .isCacheAsked = m_isCacheAsked, .sidecars = m_sidecars
    };
    order.photos.reserve(photos.size());
    for (const QUrl& photo : photos)
        order.photos.append(*m_photos.record(photo));
    runPatiently(
        this,
        [ask = m_ask, order = std::move(order), progress = task.progress, stop = task.stop.get_token()] {
            return DetailsReader::read(ask, order, *progress, stop);
        },
        [this, id = task.id](const DetailsReader::Result& result) { finish(id, result); });
}

void DetailsReading::stop(const Run& run)
{
    m_tasks.stop(run.id);
}

void DetailsReading::finish(int id, const DetailsReader::Result& result)
{
    const auto ended = std::find_if(m_running.begin(), m_running.end(), [id](const Run& run) { return run.id == id; });
    if (ended == m_running.end())
        return;
    const Announcer::Together together(m_announcer);
    const Run run = *ended;
    m_running.erase(ended);
    m_reading.subtract(QSet<QUrl>(run.photos.cbegin(), run.photos.cend()));
    const std::optional<RunningTasks::Task> task = m_tasks.end(id);
    const int failures = m_failures.serial();
    if (task && task->skipped)
        m_failures.note(*task->skipped, Texts::tr("took too long"));
    take(run, result);
    if (m_survey.isShown() && run.lane == Lane::patient) {
        m_isCacheUseful = m_isCacheUseful && (result.known > 0 || result.isCancelled);
        m_survey.putBack(run.photos);
        m_survey.setDone(m_store.known());
    }
    if (result.error)
        noteFailure(result.asked, *result.error);
    else if (!result.asked.isEmpty() && !result.isCancelled)
        m_failures.noteSuccess();
    // That nothing will be known is news, too.
    if (m_failures.serial() != failures)
        m_announcer.announce(Change::details);
    schedule();
    tell();
}

// Without what changed since the run began, and what is gone.
void DetailsReading::take(const Run& run, const DetailsReader::Result& result)
{
    const auto isOfNow = [&](const QUrl& photo) {
        return isOpen(photo) && !run.outdated.contains(photo) && !m_writes.wasWritten(photo, run.writes);
    };
    QList<QUrl> found;
    for (const PhotoDetails& details : result.found) {
        if (!isOfNow(details.url))
            continue;
        m_store.put(details);
        m_failures.forget(details.url);
        found.append(details.url);
    }
    for (auto photo = result.unreadable.cbegin(); photo != result.unreadable.cend(); ++photo)
        if (isOfNow(photo.key()))
            m_failures.note(photo.key(), *photo);
    for (const QUrl& photo : result.changed)
        if (isOfNow(photo))
            m_failures.noteChange(photo);
    if (found.isEmpty())
        return;
    list(found);
    m_announcer.announce(Change::details);
    emit changed(found);
}

// The list hears which of these disagree.
void DetailsReading::list(const QList<QUrl>& photos)
{
    QList<QUrl> disagreeing;
    QList<QUrl> agreeing;
    for (const QUrl& photo : photos) {
        if (m_store.disagrees(photo)) {
            disagreeing.append(photo);
            m_kept.remove(photo);
        } else if (m_held.contains(photo)) {
            m_kept.insert(photo);
        } else {
            agreeing.append(photo);
        }
    }
    m_photos.setTrait(PhotoTrait::disagreement, agreeing, false);
    m_photos.setTrait(PhotoTrait::disagreement, disagreeing, true);
}

// The halves of what failed as a whole are read by themselves, until the photo is found at which the tool fails.
void DetailsReading::noteFailure(const QList<QUrl>& photos, const QString& reason)
{
    if (photos.size() < 2) {
        for (const QUrl& photo : photos)
            m_failures.note(photo, reason);
        return;
    }
    const qsizetype half = photos.size() / 2;
    m_parts.push_back(photos.first(half));
    m_parts.push_back(photos.sliced(half));
    m_failures.noteRun(reason);
    if (!m_failures.isGivenUp())
        return;
    m_parts.clear();
    if (!m_survey.isOn())
        return;
    cancel();
    emit problem(Texts::tr("Could not read metadata: %1").arg(reason));
}

}  // namespace Quorbel
