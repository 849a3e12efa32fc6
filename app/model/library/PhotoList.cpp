#include "app/model/library/PhotoList.h"

#include "app/model/Background.h"
#include "core/renaming/FolderListing.h"
#include "core/text/Text.h"

#include <QDeadlineTimer>

#include <algorithm>

namespace Quorbel {

namespace {

// A sidecar goes along with its photo, whose name without extension it begins with.
QString renamedSidecar(const ImageRecord& photo, const QString& newName)
{
    const QString base = CompanionNames::baseOf(photo.fileName);
    const bool goesAlong = !photo.sidecarName.isEmpty() && photo.sidecarName.startsWith(base);
    return goesAlong ? CompanionNames::baseOf(newName) + photo.sidecarName.sliced(base.size()) : photo.sidecarName;
}

}  // namespace

OpenPhotos OpenPhotos::of(
    QList<ImageRecord> records, const ListForm& form, bool isWatched, FolderOrder folders, const std::stop_token& stop)
{
    OpenPhotos photos{ .records = std::move(records) };
    // Room for what is added later: growing moves everything.
    const qsizetype room = photos.records.size() + photos.records.size() / 4;
    photos.records.reserve(folders.isOrdering() ? std::max(room, RecordIndex::roomForWalk) : room);
    photos.index.setPairing(form.isPairing);
    photos.index.reset(photos.records, form.order, std::move(folders), stop);
    for (const ImageRecord& record : std::as_const(photos.records)) {
        if (stop.stop_requested())
            return photos;
        photos.keywords.add(record);
    }
    if (isWatched)
        photos.files = std::make_shared<KnownFiles>(photos.records);
    return photos;
}

const ImageRecord* PhotoList::record(const QUrl& url) const
{
    const int at = position(url);
    return at < 0 ? nullptr : &m_open.records.at(at);
}

void PhotoList::setSearch(const QString& text)
{
    const Announcer::Together together(m_announcer);
    if (!m_announcer.assign(m_search, text, Change::search))
        return;
    const QString needle = Text::trimmed(text).toLower();
    if (needle == m_filter.needle)
        return;
    m_filter.needle = needle;
    updateVisibleRows(false);
}

// --- Which of them are listed ---

void PhotoList::setWanted(PhotoTraits traits, int leastStars)
{
    if (m_filter.traits == traits && m_filter.stars == leastStars)
        return;
    m_filter.traits = traits;
    m_filter.stars = leastStars;
    const Announcer::Together together(m_announcer);
    updateVisibleRows(false);
}

void PhotoList::setTrait(PhotoTrait trait, const QList<QUrl>& photos, bool on)
{
    bool isOther = false;
    for (const QUrl& photo : photos)
        if (const int at = position(photo); at >= 0)
            isOther = m_open.index.setTrait(at, trait, on) || isOther;
    if (isOther)
        traitsChanged(trait);
}

void PhotoList::setOnly(PhotoTrait trait, const QList<int>& positions)
{
    if (m_open.index.setOnly(trait, positions))
        traitsChanged(trait);
}

void PhotoList::traitsChanged(PhotoTrait trait)
{
    const bool parts = m_isPairing && trait == PhotoTrait::held;
    if (!parts && (!m_filter.isLimiting() || !(m_filter.traits | PhotoTrait::held).testFlag(trait)))
        return;
    const Announcer::Together together(m_announcer);
    updateVisibleRows(false);
}

void PhotoList::find(const QString& text)
{
    m_finding.begin(text);
    if (text.isEmpty())
        endFinding();
}

// The clock is asked now and then: that costs as much as a look at a photo.
void PhotoList::findOn(std::chrono::milliseconds budget)
{
    constexpr int stride = 32;
    const QDeadlineTimer end(budget);
    while (m_finding.isRunning()) {
        for (int i = 0; i < stride && m_finding.at < m_open.records.size(); ++i, ++m_finding.at) {
            const bool isRuledOut =
                m_finding.isNarrowing() && !m_open.index.traits(m_finding.at).testFlag(PhotoTrait::holdsText);
            const bool isFound = !isRuledOut && m_finding.isNext(m_open.records.at(m_finding.at));
            m_open.index.setTrait(m_finding.at, PhotoTrait::nextText, isFound);
        }
        if (m_finding.at == m_open.records.size())
            return endFinding();
        if (end.hasExpired())
            return;
    }
}

void PhotoList::endFinding()
{
    m_filter.text = m_finding.end();
    m_open.index.moveTrait(PhotoTrait::nextText, PhotoTrait::holdsText);
    m_filter.traits.setFlag(PhotoTrait::holdsText, !m_filter.text.isEmpty());
    const Announcer::Together together(m_announcer);
    updateVisibleRows(false);
}

// The photo is new, or another one.
void PhotoList::markText(int position)
{
    if (!m_finding.isOn())
        return;
    const ImageRecord& photo = m_open.records.at(position);
    m_open.index.setTrait(position, PhotoTrait::holdsText, m_finding.isFound(photo));
    m_open.index.setTrait(position, PhotoTrait::nextText, m_finding.isNext(photo));
}

std::optional<QUrl> PhotoList::shownNear(const QUrl& photo)
{
    const qsizetype count = m_visibleRows.size();
    const int at = position(photo);
    const qsizetype from = at < 0 ? 0 : rowOf(at);
    for (qsizetype step = 0; step < count; ++step) {
        const qsizetype row = from + step < count ? from + step : count - 1 - step;
        if (!m_groups.isFolded(row))
            return m_open.records.at(m_visibleRows.at(row)).url;
    }
    return std::nullopt;
}

void PhotoList::setOrder(RecordSortOrder order)
{
    const Announcer::Together together(m_announcer);
    if (m_announcer.assign(m_order, order, Change::sortOrder))
        updateVisibleRows(false);
}

void PhotoList::setPairing(bool on)
{
    m_isPairing = on;
    if (m_open.index.isPairing() == on)
        return;
    m_open.index.setPairing(on);
    const Announcer::Together together(m_announcer);
    updateVisibleRows(false);
}

std::optional<QUrl> PhotoList::pictureOf(const QUrl& raw) const
{
    const int at = m_isPairing ? position(raw) : -1;
    const int picture = at < 0 ? -1 : m_open.index.hiddenBehind(at);
    return picture < 0 ? std::nullopt : std::optional(m_open.records.at(picture).url);
}

std::optional<QUrl> PhotoList::rawOf(const QUrl& picture) const
{
    const int at = m_isPairing ? position(picture) : -1;
    const int raw = at < 0 ? -1 : m_open.index.standingFor(at);
    return raw < 0 ? std::nullopt : std::optional(m_open.records.at(raw).url);
}

void PhotoList::setFolded(const QList<QUrl>& folders, bool on)
{
    if (m_groups.setFolded(folders, on))
        m_announcer.announce(Change::folderGroups);
}

void PhotoList::open(OpenPhotos photos)
{
    if (!photos.index.folders().isSame(folders()))
        m_groups.unfoldAll();
    std::swap(m_open, photos);
    m_open.index.setPairing(m_isPairing);
    discardInBackground(std::move(photos));
    m_filter = { .needle = m_filter.needle };
    m_finding = {};
    keepCreationDates();
    contentChanged(true, true);
}

QList<QUrl> PhotoList::firstOnScreen(OpenPhotos& photos, qsizetype most) const
{
    QList<QUrl> first;
    for (const int row : photos.index.rows({ .needle = m_filter.needle }, m_order).mid(0, most))
        first.append(photos.records.at(row).url);
    return first;
}

void PhotoList::keepCreationDates()
{
    QList<ImageRecord> known;
    const QList<QUrl> urls = m_creationDates.photos();
    for (const QUrl& url : urls)
        if (const ImageRecord* photo = record(url))
            known.append(*photo);
    putAll(m_creationDates.applied(known));
}

// In the place of what was there.
void PhotoList::put(int position, const ImageRecord& record)
{
    ImageRecord& old = m_open.records[position];
    if (old.url == record.url && old.contentModificationDate != record.contentModificationDate)
        m_open.index.setTrait(position, PhotoTrait::changed, true);
    m_open.keywords.remove(old);
    m_open.keywords.add(record);
    if (m_open.files && old.url != record.url)
        m_open.files->forget(old.url);
    if (m_open.files)
        m_open.files->note(record);
    old = record;
}

void PhotoList::putSaved(QList<ImageRecord> some)
{
    for (ImageRecord& saved : some)
        if (const ImageRecord* before = record(saved.url))
            m_creationDates.keep(*before, saved);
    m_hasPutSaved = !putAll(some).isEmpty() || m_hasPutSaved;
}

bool PhotoList::endSaved()
{
    if (!std::exchange(m_hasPutSaved, false))
        return false;
    contentChanged(true, false);
    return true;
}

bool PhotoList::replace(const QList<ImageRecord>& fresh)
{
    if (putAll(m_creationDates.applied(fresh)).isEmpty())
        return false;
    contentChanged(true, false);
    return true;
}

QList<QUrl> PhotoList::fill(const QList<ImageRecord>& fresh)
{
    const bool areUnread = std::all_of(fresh.cbegin(), fresh.cend(), [this](const ImageRecord& photo) {
        const ImageRecord* before = record(photo.url);
        return !before || before->isUnread;
    });
    const QList<int> changed = putAll(m_creationDates.applied(fresh));
    if (changed.isEmpty())
        return {};
    QList<QUrl> urls;
    for (const int at : changed)
        urls.append(m_open.records.at(at).url);
    contentChanged(!areUnread, false);
    return urls;
}

// Each in the place of the one with its URL; where any differed.
QList<int> PhotoList::putAll(const QList<ImageRecord>& fresh)
{
    QList<int> changed;
    for (const ImageRecord& record : fresh) {
        const int at = position(record.url);
        if (at < 0 || m_open.records.at(at) == record)
            continue;
        put(at, record);
        changed.append(at);
    }
    if (changed.isEmpty())
        return changed;
    m_open.index.replace(changed, m_open.records);
    for (const int at : std::as_const(changed))
        markText(at);
    return changed;
}

void PhotoList::remove(const QList<int>& positions)
{
    for (const int at : positions) {
        m_open.keywords.remove(m_open.records.at(at));
        if (m_open.files)
            m_open.files->forget(m_open.records.at(at).url);
    }
    auto next = positions.cbegin();
    int at = 0;
    m_open.records.removeIf([&](const ImageRecord&) {
        const bool isGone = next != positions.cend() && *next == at++;
        next += isGone ? 1 : 0;
        return isGone;
    });
    m_open.index.remove(positions);
    m_finding.at = 0;
    contentChanged(true, true);
}

bool PhotoList::append(const QList<ImageRecord>& fresh)
{
    const qsizetype before = m_open.records.size();
    const QList<ImageRecord> dated = m_creationDates.applied(fresh);
    for (const ImageRecord& record : dated) {
        if (contains(record.url))
            continue;
        m_open.records.append(record);
        m_open.keywords.add(record);
        if (m_open.files)
            m_open.files->note(record);
    }
    if (m_open.records.size() == before)
        return false;
    m_open.index.append(m_open.records);
    for (qsizetype at = before; at < m_open.records.size(); ++at)
        markText(int(at));
    contentChanged(false, true);
    return true;
}

void PhotoList::rename(const NewNames& names)
{
    ++m_renames;
    m_creationDates.rename(names);
    QList<int> positions;
    for (const auto& [source, destination] : names.list())
        if (const int at = position(source); at >= 0) {
            positions.append(at);
            if (m_open.files)
                m_open.files->forget(source);
        }
    if (positions.isEmpty())
        return;
    // Behind the loss of all old names: a new one may be among those.
    std::sort(positions.begin(), positions.end());
    for (const int at : std::as_const(positions)) {
        ImageRecord& photo = m_open.records[at];
        photo.url = names.of(photo.url);
        photo.sidecarName = renamedSidecar(photo, photo.url.fileName());
        photo.fileName = photo.url.fileName();
        if (m_open.files)
            m_open.files->note(photo);
    }
    m_open.index.rename(positions, m_open.records);
    // All hold what they held, in their places.
    contentChanged(false, true);
}

void PhotoList::contentChanged(bool isHeldChanged, bool photosChanged)
{
    const Announcer::Together together(m_announcer);
    ++m_serial;
    m_heldSerial += isHeldChanged ? 1 : 0;
    m_announcer.announce(Change::records);
    updateVisibleRows(photosChanged);
}

void PhotoList::updateVisibleRows(bool photosChanged)
{
    QList<int> rows = m_open.index.rows(m_filter, m_order);
    if (m_groups.update(m_open.index.groups(rows)))
        m_announcer.announce(Change::folderGroups);
    if (!m_announcer.assign(m_visibleRows, std::move(rows), Change::visibleRows) && photosChanged)
        m_announcer.announce(Change::visibleRows);
}

}  // namespace Quorbel
