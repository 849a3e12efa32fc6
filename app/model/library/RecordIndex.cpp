#include "app/model/library/RecordIndex.h"

#include "core/text/Text.h"

#include <algorithm>
#include <numeric>
#include <tuple>

namespace Quorbel {

RecordIndex::Entry::Entry(const ImageRecord& record)
    : url(record.url)
    , fileName(record.fileName)
    , lowerName(record.fileName.toLower())
    , nameKey(Text::naturalSortKey(record.fileName))
{
    if (record.creationDate)
        created = record.creationDate->toMSecsSinceEpoch();
}

void RecordIndex::reset(const QList<ImageRecord>& records)
{
    m_entries.clear();
    m_entries.reserve(size_t(records.size()));
    for (const ImageRecord& record : records)
        m_entries.emplace_back(record);
    m_byName.clear();
    m_sortedBy.reset();
    rebuildPositions();
}

void RecordIndex::append(const ImageRecord& record)
{
    const int position = int(m_entries.size());
    m_entries.emplace_back(record);
    if (!m_positions.contains(record.url))
        m_positions.insert(record.url, position);
    m_byName.clear();
    m_sortedBy.reset();
}

void RecordIndex::replace(int position, const ImageRecord& record)
{
    Entry& entry = m_entries[size_t(position)];
    const bool isRenamed = entry.url != record.url;
    const auto created = record.creationDate ? std::optional(record.creationDate->toMSecsSinceEpoch()) : std::nullopt;
    if (entry.created != created) {
        entry.created = created;
        if (m_sortedBy == RecordSortOrder::dateNewest || m_sortedBy == RecordSortOrder::dateOldest)
            m_sortedBy.reset();
    }
    if (entry.fileName != record.fileName) {
        entry = Entry(record);
        m_byName.clear();
        m_sortedBy.reset();
    }
    if (isRenamed) {
        entry.url = record.url;
        rebuildPositions();
    }
}

void RecordIndex::remove(const QList<int>& positions)
{
    auto next = positions.cbegin();
    size_t kept = 0;
    for (size_t i = 0; i < m_entries.size(); ++i) {
        if (next != positions.cend() && *next == int(i)) {
            ++next;
            continue;
        }
        if (kept != i)
            m_entries[kept] = std::move(m_entries[i]);
        ++kept;
    }
    m_entries.erase(m_entries.begin() + std::ptrdiff_t(kept), m_entries.end());
    m_byName.clear();
    m_sortedBy.reset();
    rebuildPositions();
}

QList<int> RecordIndex::rows(const QString& needle, RecordSortOrder order)
{
    const std::vector<int>& all = sortedBy(order);
    if (needle.isEmpty())
        return QList<int>(all.cbegin(), all.cend());
    QList<int> found;
    for (const int position : all)
        if (m_entries[size_t(position)].lowerName.contains(needle))
            found.append(position);
    return found;
}

void RecordIndex::rebuildPositions()
{
    m_positions.clear();
    m_positions.reserve(qsizetype(m_entries.size()));
    // Backwards, so that the first of two equal URLs is the one that stays.
    for (size_t i = m_entries.size(); i-- > 0;)
        m_positions.insert(m_entries[i].url, int(i));
}

void RecordIndex::sortNames()
{
    m_byName.resize(m_entries.size());
    std::iota(m_byName.begin(), m_byName.end(), 0);
    std::sort(m_byName.begin(), m_byName.end(), [this](int a, int b) {
        const int order = m_entries[size_t(a)].nameKey.compare(m_entries[size_t(b)].nameKey);
        return order != 0 ? order < 0 : a < b;
    });
    m_nameRank.resize(m_entries.size());
    int rank = 0;
    for (size_t i = 0; i < m_byName.size(); ++i) {
        const auto current = size_t(m_byName[i]);
        if (i > 0 && m_entries[size_t(m_byName[i - 1])].nameKey.compare(m_entries[current].nameKey) != 0)
            ++rank;
        m_nameRank[current] = rank;
    }
}

const std::vector<int>& RecordIndex::sortedBy(RecordSortOrder order)
{
    if (m_sortedBy == order)
        return m_sorted;
    if (m_byName.size() != m_entries.size())
        sortNames();
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

// The runs of equal names in reverse, each run in its own order: what a stable sort gives.
std::vector<int> RecordIndex::namesDescending() const
{
    std::vector<int> result;
    result.reserve(m_byName.size());
    for (auto end = m_byName.cend(); end != m_byName.cbegin();) {
        const int rank = m_nameRank[size_t(*std::prev(end))];
        auto begin = end;
        while (begin != m_byName.cbegin() && m_nameRank[size_t(*std::prev(begin))] == rank)
            --begin;
        result.insert(result.end(), begin, end);
        end = begin;
    }
    return result;
}

std::vector<int> RecordIndex::byDate(bool newestFirst) const
{
    struct Key {
        bool isUndated;
        qint64 date;
        int rank;
        int position;
    };
    std::vector<Key> keys;
    keys.reserve(m_entries.size());
    for (size_t i = 0; i < m_entries.size(); ++i) {
        const qint64 created = m_entries[i].created.value_or(0);
        keys.push_back({ !m_entries[i].created, newestFirst ? -created : created, m_nameRank[i], int(i) });
    }
    std::sort(keys.begin(), keys.end(), [](const Key& a, const Key& b) {
        return std::tie(a.isUndated, a.date, a.rank, a.position) < std::tie(b.isUndated, b.date, b.rank, b.position);
    });
    std::vector<int> result;
    result.reserve(keys.size());
    for (const Key& key : keys)
        result.push_back(key.position);
    return result;
}

}  // namespace Quorbel
