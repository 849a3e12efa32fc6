#include "app/model/library/RecordIndex.h"

#include "core/text/Text.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <utility>

namespace Quorbel {

namespace {

// Room for what is added later: growing moves everything.
qsizetype withRoom(qsizetype count)
{
    return count + count / 2 + 64;
}

bool isByDate(RecordSortOrder order)
{
    return order == RecordSortOrder::dateNewest || order == RecordSortOrder::dateOldest;
}

// Both sorted: one list out of two, in steps over numbers and comparisons of the new ones alone.
template <typename Less>
std::vector<int> merged(const std::vector<int>& old, const std::vector<int>& fresh, const Less& less)
{
    std::vector<int> all;
    all.reserve(size_t(withRoom(qsizetype(old.size()) + qsizetype(fresh.size()))));
    auto from = old.cbegin();
    for (const int position : fresh) {
        const auto to = std::upper_bound(from, old.cend(), position, less);
        all.insert(all.end(), from, to);
        all.push_back(position);
        from = to;
    }
    all.insert(all.end(), from, old.cend());
    return all;
}

}  // namespace

RecordIndex::Entry::Entry(const ImageRecord& record)
    : url(record.url)
    , fileName(record.fileName)
    , lowerName(record.fileName.toLower())
    , nameKey(Text::naturalSortKey(record.fileName))
{
    setCreationDate(record.creationDate);
}

void RecordIndex::Entry::setName(const ImageRecord& record)
{
    if (fileName == record.fileName)
        return;
    fileName = record.fileName;
    lowerName = fileName.toLower();
    nameKey = Text::naturalSortKey(fileName);
}

void RecordIndex::Entry::setCreationDate(const std::optional<QDateTime>& date)
{
    if (creationDate == date)
        return;
    creationDate = date;
    created = date ? std::optional(date->toMSecsSinceEpoch()) : std::nullopt;
}

void RecordIndex::reset(
    const QList<ImageRecord>& records, RecordSortOrder order, FolderOrder folders, const std::stop_token& stop)
{
    const bool isPairing = m_isPairing;
    *this = {};
    m_isPairing = isPairing;
    m_folders = std::move(folders);
    const qsizetype room = std::max(withRoom(records.size()), m_folders.isOrdering() ? roomForWalk : 0);
    m_entries.reserve(size_t(room));
    m_positions.reserve(size_t(room));
    m_marks.reserve(size_t(room));
    m_ids.reserve(room);
    if (m_isPairing)
        m_pairs.reserve(records.size());
    for (const ImageRecord& record : records) {
        if (stop.stop_requested())
            return;
        add(record);
    }
    m_byName.resize(m_entries.size());
    std::iota(m_byName.begin(), m_byName.end(), 0);
    std::sort(m_byName.begin(), m_byName.end(), [this](int a, int b) { return isBefore(a, b); });
    if (stop.stop_requested())
        return;
    rank(m_byName);
    sortedBy(order);
}

void RecordIndex::add(const ImageRecord& record)
{
    Entry& added = m_entries.emplace_back(record);
    added.id = int(m_positions.size());
    added.folder = m_folders.enter(record.url);
    m_positions.push_back(int(m_entries.size()) - 1);
    tally(m_marks.emplace_back(RecordTraits::of(record)), 1);
    if (!m_ids.contains(record.url))
        m_ids.insert(record.url, added.id);
    if (!m_isPairing)
        return;
    m_pairs.add(added.id, record.url);
    m_isCounted = false;
}

int RecordIndex::position(const QUrl& url) const
{
    const auto id = m_ids.constFind(url);
    return id == m_ids.cend() ? -1 : m_positions[size_t(*id)];
}

void RecordIndex::append(const QList<ImageRecord>& records)
{
    std::vector<int> fresh(size_t(records.size()) - m_entries.size());
    std::iota(fresh.begin(), fresh.end(), int(m_entries.size()));
    for (const int position : fresh)
        add(records.at(position));
    put(std::move(fresh));
}

void RecordIndex::replace(const QList<int>& positions, const QList<ImageRecord>& records)
{
    std::vector<int> moved;
    for (const int position : positions) {
        const Entry& old = entry(position);
        RecordTraits said = RecordTraits::of(records.at(position));
        said.traits |= mark(position).traits & ~RecordTraits::mask();
        change(old.id, said);
        if (old.url != records.at(position).url || old.fileName != records.at(position).fileName
            || old.creationDate != records.at(position).creationDate)
            moved.push_back(position);
    }
    follow(moved, records);
}

void RecordIndex::rename(const QList<int>& positions, const QList<ImageRecord>& records)
{
    follow(std::vector<int>(positions.cbegin(), positions.cend()), records);
}

void RecordIndex::follow(const std::vector<int>& moved, const QList<ImageRecord>& records)
{
    if (moved.empty())
        return;
    take(moved);
    for (const int position : moved)
        follow(position, records.at(position));
    put(moved);
}

// The photo of this position is this one now.
void RecordIndex::follow(int position, const ImageRecord& record)
{
    Entry& old = m_entries[size_t(position)];
    if (old.url != record.url) {
        if (m_ids.value(old.url, -1) == old.id)
            m_ids.remove(old.url);
        m_ids.insert(record.url, old.id);
        m_folders.leave(old.folder);
        old.folder = m_folders.enter(record.url);
        if (m_isPairing) {
            m_pairs.remove(old.id, old.url);
            m_pairs.add(old.id, record.url);
            m_isCounted = false;
        }
    }
    old.url = record.url;
    old.setName(record);
    old.setCreationDate(record.creationDate);
}

void RecordIndex::remove(const QList<int>& positions)
{
    std::vector<int> newPosition(m_entries.size());
    auto next = positions.cbegin();
    int kept = 0;
    for (int i = 0; i < int(m_entries.size()); ++i) {
        Entry& old = m_entries[size_t(i)];
        if (next != positions.cend() && *next == i) {
            ++next;
            newPosition[size_t(i)] = -1;
            m_positions[size_t(old.id)] = -1;
            tally(std::exchange(m_marks[size_t(old.id)], {}), -1);
            m_folders.leave(old.folder);
            if (m_ids.value(old.url, -1) == old.id)
                m_ids.remove(old.url);
            m_isCounted = m_isCounted && !m_isPairing;
            if (m_isPairing)
                m_pairs.remove(old.id, old.url);
            continue;
        }
        newPosition[size_t(i)] = kept;
        m_positions[size_t(old.id)] = kept;
        if (kept != i) {
            m_nameRank[size_t(kept)] = m_nameRank[size_t(i)];
            m_entries[size_t(kept)] = std::move(old);
        }
        ++kept;
    }
    m_entries.erase(m_entries.begin() + kept, m_entries.end());
    m_nameRank.resize(size_t(kept));
    for (std::vector<int>* sorted : { &m_byName, &m_sorted }) {
        std::erase_if(*sorted, [&newPosition](int position) { return newPosition[size_t(position)] < 0; });
        for (int& position : *sorted)
            position = newPosition[size_t(position)];
    }
}

// --- Two files of one shot ---

void RecordIndex::setPairing(bool on)
{
    if (m_isPairing == on)
        return;
    m_isPairing = on;
    m_isCounted = false;
    m_pairs.clear();
    if (!on)
        return;
    m_pairs.reserve(qsizetype(m_entries.size()));
    for (const Entry& entry : m_entries)
        m_pairs.add(entry.id, entry.url);
}

// One that is held stands for itself: it is edited without the other file.
bool RecordIndex::isHidden(int id) const
{
    return m_isPairing && m_pairs.rawOf(id) >= 0 && !m_marks[size_t(id)].traits.testFlag(PhotoTrait::held);
}

int RecordIndex::hiddenBehind(int position) const
{
    const int picture = m_isPairing ? m_pairs.pictureOf(entry(position).id) : -1;
    return picture >= 0 && isHidden(picture) ? m_positions[size_t(picture)] : -1;
}

int RecordIndex::standingFor(int position) const
{
    const int id = entry(position).id;
    return isHidden(id) ? m_positions[size_t(m_pairs.rawOf(id))] : -1;
}

// --- Traits ---

void RecordIndex::countAll() const
{
    m_counts = {};
    m_starCounts = {};
    m_isCounted = true;
    m_hidden = 0;
    for (const Entry& entry : m_entries) {
        if (isHidden(entry.id))
            ++m_hidden;
        else
            tally(m_marks[size_t(entry.id)], 1);
    }
}

int RecordIndex::photos() const
{
    if (!m_isCounted)
        countAll();
    return int(m_entries.size()) - m_hidden;
}

void RecordIndex::tally(const Mark& mark, int step) const
{
    if (!m_isCounted)
        return;
    for (uint bits = mark.traits.toInt(); bits != 0; bits &= bits - 1)
        m_counts.at(size_t(std::countr_zero(bits))) += step;
    m_starCounts.at(size_t(mark.stars)) += step;
}

bool RecordIndex::change(int id, const Mark& next)
{
    Mark& mark = m_marks[size_t(id)];
    if (mark == next)
        return false;
    m_isCounted = m_isCounted && !m_isPairing;
    tally(mark, -1);
    mark = next;
    tally(mark, 1);
    return true;
}

bool RecordIndex::setTrait(int position, PhotoTrait trait, bool on)
{
    Mark next = mark(position);
    next.traits.setFlag(trait, on);
    return change(entry(position).id, next);
}

bool RecordIndex::setOnly(PhotoTrait trait, const QList<int>& positions)
{
    std::vector<bool> isOne(m_entries.size());
    for (const int position : positions)
        isOne[size_t(position)] = true;
    bool isOther = false;
    for (int position = 0; position < int(m_entries.size()); ++position)
        isOther = setTrait(position, trait, isOne[size_t(position)]) || isOther;
    return isOther;
}

void RecordIndex::moveTrait(PhotoTrait from, PhotoTrait to)
{
    for (int position = 0; position < int(m_entries.size()); ++position) {
        setTrait(position, to, traits(position).testFlag(from));
        setTrait(position, from, false);
    }
}

int RecordIndex::count(PhotoTrait trait) const
{
    if (!m_isCounted)
        countAll();
    return m_counts.at(size_t(std::countr_zero(uint(trait))));
}

int RecordIndex::countOfStars(int least) const
{
    if (!m_isCounted)
        countAll();
    return std::accumulate(m_starCounts.cbegin() + std::clamp(least, 0, 5), m_starCounts.cend(), 0);
}

bool RecordIndex::passes(int position, const PhotoFilter& filter) const
{
    const Mark& photo = mark(position);
    return (photo.traits & filter.traits) == filter.traits && photo.stars >= filter.stars;
}

// --- Rows ---

qsizetype RecordIndex::rowOf(int position, const QList<int>& rows, RecordSortOrder order)
{
    // The rows are a part of this, in the same order.
    qsizetype row = 0;
    for (const int other : sortedBy(order)) {
        if (other == position)
            break;
        if (row < rows.size() && rows.at(row) == other)
            ++row;
    }
    return row;
}

QList<int> RecordIndex::rows(const PhotoFilter& filter, RecordSortOrder order)
{
    const std::vector<int>& all = sortedBy(order);
    if (filter.isEmpty() && !m_isPairing)
        return QList<int>(all.cbegin(), all.cend());
    QList<int> found;
    found.reserve(filter.isEmpty() ? qsizetype(all.size()) : 0);
    for (const int position : all)
        if (isListed(position, filter) && holdsName(position, filter.needle))
            found.append(position);
    return found;
}

// Of a pair, either name does.
bool RecordIndex::holdsName(int position, const QString& needle) const
{
    if (entry(position).lowerName.contains(needle))
        return true;
    const int picture = hiddenBehind(position);
    return picture >= 0 && entry(picture).lowerName.contains(needle);
}

QList<FolderGroup> RecordIndex::groups(const QList<int>& rows) const
{
    QList<FolderGroup> groups;
    if (!m_folders.isOrdering())
        return groups;
    int last = -1;
    for (qsizetype row = 0; row < rows.size(); ++row) {
        const int number = entry(rows.at(row)).folder;
        if (number != last) {
            const FolderOrder::Folder& folder = m_folders.folder(number);
            groups.append({ .folder = folder.url, .parents = folder.parents, .name = folder.name, .first = row });
            last = number;
        }
        ++groups.last().count;
    }
    return groups;
}

// By folder and name; photos of equal names as they stand in the list.
bool RecordIndex::isBefore(int a, int b) const
{
    if (entry(a).folder != entry(b).folder)
        return folderRank(a) < folderRank(b);
    const int order = entry(a).nameKey.compare(entry(b).nameKey);
    return order != 0 ? order < 0 : a < b;
}

RecordIndex::DateKey RecordIndex::dateKey(int position, bool newestFirst) const
{
    const qint64 created = entry(position).created.value_or(0);
    return { folderRank(position), !entry(position).created, newestFirst ? -created : created,
        m_nameRank[size_t(position)], position };
}

// Where two photos were ranked before, their old ranks tell whether their names are equal.
void RecordIndex::rank(const std::vector<int>& fresh)
{
    std::vector<bool> isFresh(m_entries.size());
    for (const int position : fresh)
        isFresh[size_t(position)] = true;
    const auto areEqual = [&](int a, int b) {
        if (isFresh[size_t(a)] || isFresh[size_t(b)])
            return entry(a).folder == entry(b).folder && entry(a).nameKey.compare(entry(b).nameKey) == 0;
        return m_nameRank[size_t(a)] == m_nameRank[size_t(b)];
    };
    std::vector<int> ranks(m_entries.size());
    int rank = 0;
    for (size_t i = 0; i < m_byName.size(); ++i) {
        if (i > 0 && !areEqual(m_byName[i - 1], m_byName[i]))
            ++rank;
        ranks[size_t(m_byName[i])] = rank;
    }
    m_nameRank = std::move(ranks);
}

// Out of what is sorted; the entries stay.
void RecordIndex::take(const std::vector<int>& positions)
{
    std::vector<bool> isTaken(m_entries.size());
    for (const int position : positions)
        isTaken[size_t(position)] = true;
    for (std::vector<int>* sorted : { &m_byName, &m_sorted })
        std::erase_if(*sorted, [&isTaken](int position) { return isTaken[size_t(position)]; });
}

// Into what is sorted.
void RecordIndex::put(std::vector<int> positions)
{
    const auto byName = [this](int a, int b) { return isBefore(a, b); };
    std::sort(positions.begin(), positions.end(), byName);
    m_byName = merged(m_byName, positions, byName);
    rank(positions);
    if (!m_sortedBy)
        return;
    if (!isByDate(*m_sortedBy)) {
        const RecordSortOrder order = *m_sortedBy;
        m_sortedBy.reset();
        sortedBy(order);
        return;
    }
    const bool newestFirst = m_sortedBy == RecordSortOrder::dateNewest;
    const auto byDate = [this, newestFirst](int a, int b) { return dateKey(a, newestFirst) < dateKey(b, newestFirst); };
    std::sort(positions.begin(), positions.end(), byDate);
    m_sorted = merged(m_sorted, positions, byDate);
}

const std::vector<int>& RecordIndex::sortedBy(RecordSortOrder order)
{
    if (m_sortedBy == order)
        return m_sorted;
    switch (order) {
    case RecordSortOrder::nameAsc:
        m_sorted = m_byName;
        break;
    case RecordSortOrder::nameDesc:
        m_sorted = namesDescending();
        break;
    case RecordSortOrder::dateNewest:
    case RecordSortOrder::dateOldest:
        m_sorted = byDate(order == RecordSortOrder::dateNewest);
        break;
    }
    m_sortedBy = order;
    return m_sorted;
}

// The runs of equal names in reverse, each run in its own order: what a stable sort gives. The folders stay where they
// are.
std::vector<int> RecordIndex::namesDescending() const
{
    std::vector<int> result;
    result.reserve(m_byName.size());
    for (auto from = m_byName.cbegin(); from != m_byName.cend();) {
        const int folder = entry(*from).folder;
        const auto to = m_folders.isOrdering()
            ? std::find_if(from, m_byName.cend(), [&](int position) { return entry(position).folder != folder; })
            : m_byName.cend();
        for (auto end = to; end != from;) {
            const int rank = m_nameRank[size_t(*std::prev(end))];
            auto begin = end;
            while (begin != from && m_nameRank[size_t(*std::prev(begin))] == rank)
                --begin;
            result.insert(result.end(), begin, end);
            end = begin;
        }
        from = to;
    }
    return result;
}

std::vector<int> RecordIndex::byDate(bool newestFirst) const
{
    std::vector<DateKey> keys;
    keys.reserve(m_entries.size());
    for (int i = 0; i < int(m_entries.size()); ++i)
        keys.push_back(dateKey(i, newestFirst));
    std::sort(keys.begin(), keys.end());
    std::vector<int> result;
    result.reserve(keys.size());
    for (const DateKey& key : keys)
        result.push_back(key.position);
    return result;
}

}  // namespace Quorbel
