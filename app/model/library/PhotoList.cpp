#include "app/model/library/PhotoList.h"

#include "core/schema/FieldID.h"
#include "core/text/Text.h"

#include <algorithm>

namespace Quorbel {

const ImageRecord* PhotoList::record(const QUrl& url) const
{
    const int at = position(url);
    return at < 0 ? nullptr : &m_records.at(at);
}

void PhotoList::setSearch(const QString& text)
{
    const Announcer::Together together(m_announcer);
    if (!m_announcer.assign(m_search, text, Change::search))
        return;
    const QString needle = Text::trimmed(text).toLower();
    if (needle == m_needle)
        return;
    m_needle = needle;
    updateVisibleRows(false);
}

void PhotoList::setOrder(RecordSortOrder order)
{
    const Announcer::Together together(m_announcer);
    if (m_announcer.assign(m_order, order, Change::sortOrder))
        updateVisibleRows(false);
}

void PhotoList::open(QList<ImageRecord> records)
{
    m_index.reset(records);
    m_announcer.assign(m_records, std::move(records), Change::records);
    contentChanged();
    updateVisibleRows(true);
}

bool PhotoList::replace(const QList<ImageRecord>& fresh)
{
    bool isChanged = false;
    for (const ImageRecord& record : fresh) {
        const int at = position(record.url);
        if (at < 0 || m_records.at(at) == record)
            continue;
        m_records[at] = record;
        m_index.replace(at, record);
        isChanged = true;
    }
    if (!isChanged)
        return false;
    m_announcer.announce(Change::records);
    contentChanged();
    updateVisibleRows(false);
    return true;
}

void PhotoList::remove(const QList<int>& positions)
{
    QSet<QUrl> gone;
    for (const int at : positions)
        gone.insert(m_records.at(at).url);
    m_records.removeIf([&gone](const ImageRecord& record) { return gone.contains(record.url); });
    m_index.remove(positions);
    m_announcer.announce(Change::records);
    contentChanged();
    updateVisibleRows(true);
}

bool PhotoList::append(const QList<ImageRecord>& fresh)
{
    const qsizetype before = m_records.size();
    for (const ImageRecord& record : fresh) {
        if (contains(record.url))
            continue;
        m_records.append(record);
        m_index.append(record);
    }
    if (m_records.size() == before)
        return false;
    m_announcer.announce(Change::records);
    contentChanged();
    updateVisibleRows(true);
    return true;
}

void PhotoList::rename(const QUrl& source, const QUrl& destination)
{
    const int at = position(source);
    m_records[at].url = destination;
    m_records[at].fileName = destination.fileName();
    m_index.replace(at, m_records.at(at));
    m_announcer.announce(Change::records);
    contentChanged();
    updateVisibleRows(true);
}

void PhotoList::contentChanged()
{
    ++m_serial;
    m_keywordsByUse.reset();
}

void PhotoList::updateVisibleRows(bool photosChanged)
{
    QList<int> rows = m_index.rows(m_needle, m_order);
    if (!m_announcer.assign(m_visibleRows, std::move(rows), Change::visibleRows) && photosChanged)
        m_announcer.announce(Change::visibleRows);
}

const QStringList& PhotoList::keywordsByUse() const
{
    if (m_keywordsByUse)
        return *m_keywordsByUse;
    QHash<QString, int> uses;
    for (const ImageRecord& record : m_records)
        for (const QString& keyword : record.lists.value(FieldID::keywords))
            ++uses[keyword];
    QStringList keywords = uses.keys();
    std::sort(keywords.begin(), keywords.end(), [&uses](const QString& a, const QString& b) {
        if (const int difference = uses.value(a) - uses.value(b))
            return difference > 0;
        const int order = Text::naturalCompare(a, b);
        return order != 0 ? order < 0 : a < b;
    });
    m_keywordsByUse = std::move(keywords);
    return *m_keywordsByUse;
}

QStringList PhotoList::keywordCompletions(const QString& prefix, int limit) const
{
    QStringList found;
    for (const QString& keyword : keywordsByUse()) {
        if (found.size() >= limit)
            break;
        if (keyword.startsWith(prefix, Qt::CaseInsensitive))
            found.append(keyword);
    }
    return found;
}

}  // namespace Quorbel
