#include "app/model/selection/SelectedKeywords.h"

#include "app/model/Background.h"
#include "app/model/library/PhotoList.h"
#include "core/schema/FieldID.h"

#include <algorithm>
#include <chrono>

namespace Quorbel {

namespace {

constexpr qsizetype fewPhotos = 300;  // that are counted at once
// While photos are read, their slices come faster than this; nobody reads counts that change more often.
constexpr std::chrono::milliseconds pause{ 250 };

bool comesFirst(const KeywordCount& a, const KeywordCount& b)
{
    if (a.photos != b.photos)
        return a.photos > b.photos;
    const int order = a.keyword.compare(b.keyword, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a.keyword < b.keyword;
}

}  // namespace

SelectedKeywords::SelectedKeywords(Announcer& announcer, const PhotoList& list, const SelectedPhotos& selected)
    : m_announcer(announcer)
    , m_list(list)
    , m_selected(selected)
{
    m_again.setSingleShot(true);
    m_again.setInterval(pause);
    connect(&m_again, &QTimer::timeout, this, &SelectedKeywords::begin);
}

void SelectedKeywords::update()
{
    const QSet<QUrl> photos = m_selected.isBatch() ? m_selected.selection().photos : QSet<QUrl>();
    const bool isOther = photos != m_photos;
    if (!isOther && (photos.isEmpty() || m_listSerial == m_list.serial()))
        return;
    m_photos = photos;
    if (photos.size() <= fewPhotos) {
        ++m_counting;
        m_isCounting = false;
        m_again.stop();
        return take(count(held()));
    }
    if (isOther) {
        ++m_counting;
        m_isCounting = false;
        m_again.stop();
        m_announcer.assign(m_told, {}, Change::selectedKeywords);
        return begin();
    }
    // One after the other, with a pause.
    if (!m_isCounting && !m_again.isActive())
        m_again.start();
}

void SelectedKeywords::begin()
{
    m_isCounting = true;
    runInBackground(
        this, [keywords = held()] { return count(keywords); },
        [this, counting = m_counting](const Counted& counted) {
            if (counting != m_counting)
                return;
            m_isCounting = false;
            take(counted);
            if (m_listSerial != m_list.serial())
                m_again.start();
        });
}

void SelectedKeywords::take(const Counted& counted)
{
    m_announcer.assign(m_told, counted, Change::selectedKeywords);
}

// The lists are shared with the records: nothing is copied.
QList<QStringList> SelectedKeywords::held()
{
    m_listSerial = m_list.serial();
    QList<QStringList> keywords;
    keywords.reserve(m_photos.size());
    if (m_photos.isEmpty())
        return keywords;
    for (const int row : m_selected.rows())
        if (const ImageRecord& record = m_list.records().at(row); !record.isUnread)
            keywords.append(record.lists.value(FieldID::keywords));
    return keywords;
}

SelectedKeywords::Counted SelectedKeywords::count(const QList<QStringList>& keywords)
{
    QHash<QString, int> photos;
    for (const QStringList& held : keywords)
        for (qsizetype i = 0; i < held.size(); ++i)
            if (held.indexOf(held.at(i)) == i)  // once a photo
                ++photos[held.at(i)];
    Counted counted{ .photos = int(keywords.size()) };
    counted.list.reserve(photos.size());
    for (auto found = photos.cbegin(); found != photos.cend(); ++found)
        counted.list.append({ found.key(), *found });
    std::sort(counted.list.begin(), counted.list.end(), comesFirst);
    return counted;
}

}  // namespace Quorbel
