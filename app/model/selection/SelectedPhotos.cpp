#include "app/model/selection/SelectedPhotos.h"

#include "app/model/library/PhotoList.h"

#include <algorithm>
#include <utility>

namespace Quorbel {

namespace {

// Records mostly share the texts of their keys, and then nothing has to be compared.
bool isSameText(const QString& a, const QString& b)
{
    return a.constData() == b.constData() ? a.size() == b.size() : a == b;
}

}  // namespace

void SelectedPhotos::set(const Selection& selection)
{
    ++m_serial;
    follow(selection);
}

void SelectedPhotos::follow(const Selection& selection)
{
    const Announcer::Together together(m_announcer);
    m_selection.anchor = selection.anchor;
    if (m_announcer.assign(m_selection.photos, selection.photos, Change::selection)) {
        forgetIfOutdated();
        const std::optional<QList<int>> before = std::exchange(m_rows, std::nullopt);
        // Photos that only got other names hold together what they held.
        if (!before || before->size() != m_selection.photos.size() || rows() != *before)
            m_summary.reset();
    }
    m_announcer.assign(m_selection.primary, selection.primary, Change::primary);
}

const ImageRecord* SelectedPhotos::primaryRecord() const
{
    return m_selection.primary ? m_list.record(*m_selection.primary) : nullptr;
}

void SelectedPhotos::forgetIfOutdated() const
{
    if (m_listSerial == m_list.heldSerial())
        return;
    m_listSerial = m_list.heldSerial();
    m_rows.reset();
    m_summary.reset();
}

const QList<int>& SelectedPhotos::rows() const
{
    forgetIfOutdated();
    if (m_rows)
        return *m_rows;
    QList<int> rows;
    rows.reserve(m_selection.photos.size());
    for (const QUrl& photo : m_selection.photos)
        if (const int position = m_list.position(photo); position >= 0)
            rows.append(position);
    std::sort(rows.begin(), rows.end());
    m_rows = std::move(rows);
    return *m_rows;
}

QList<QUrl> SelectedPhotos::urls() const
{
    QList<QUrl> urls;
    urls.reserve(rows().size());
    for (const int row : rows())
        urls.append(m_list.records().at(row).url);
    return urls;
}

std::optional<QString> SelectedPhotos::sharedValue(const QString& id) const
{
    if (summary().read == 0)
        return std::nullopt;
    const std::vector<Field>& fields = summary().fields;
    const auto field = std::lower_bound(fields.cbegin(), fields.cend(), id,
        [](const Field& candidate, const QString& wanted) { return candidate.id < wanted; });
    if (field == fields.cend() || field->id != id)
        return QString();
    return field->isShared ? std::optional(field->value) : std::nullopt;
}

// Takes one more record's scalar values into the fields. Both sides are sorted by id, so one pass compares them.
void SelectedPhotos::mergeFields(std::vector<Field>& fields, const QMap<QString, QString>& values, bool isFirst)
{
    auto field = fields.begin();
    for (auto value = values.cbegin(); value != values.cend(); ++value, ++field) {
        while (field != fields.end() && !isSameText(field->id, value.key()) && field->id < value.key()) {
            field->isShared = field->isShared && field->value.isEmpty();
            ++field;
        }
        if (field == fields.end() || !isSameText(field->id, value.key()))
            field = fields.insert(field, { value.key(), value.value(), isFirst || value->isEmpty() });
        else if (field->isShared)
            field->isShared = isSameText(field->value, value.value());
    }
    for (; field != fields.end(); ++field)
        field->isShared = field->isShared && field->value.isEmpty();
}

void SelectedPhotos::mergeCustom(QMap<QString, Custom>& customs, const CustomValue& custom)
{
    Custom& known = customs[custom.name.toLower()];
    if (known.holders++ == 0) {
        known.name = custom.name;
        known.value = custom.value;
    } else if (known.isShared)
        known.isShared = isSameText(known.value, custom.value);
}

QStringList SelectedPhotos::customNames() const
{
    QStringList names;
    for (const Custom& custom : summary().customs)
        names.append(custom.name);
    names.sort();
    return names;
}

std::optional<QString> SelectedPhotos::sharedCustom(const QString& name) const
{
    if (summary().read == 0)
        return std::nullopt;
    const auto custom = summary().customs.constFind(name.toLower());
    if (custom == summary().customs.cend())
        return QString();
    const bool isEverywhere = custom->holders == summary().read || custom->value.isEmpty();
    return custom->isShared && isEverywhere ? std::optional(custom->value) : std::nullopt;
}

// One more photo, in any order.
void SelectedPhotos::merge(Summary& summary, const ImageRecord& record)
{
    if (record.isUnread) {
        ++summary.unread;
        return;
    }
    mergeFields(summary.fields, record.values, summary.read == 0);
    for (auto list = record.lists.cbegin(); list != record.lists.cend(); ++list)
        if (!list->isEmpty() && !summary.heldLists.contains(list.key()))
            summary.heldLists.append(list.key());
    for (const CustomValue& custom : record.custom)
        mergeCustom(summary.customs, custom);
    ++summary.read;
}

bool SelectedPhotos::holds(const QString& id) const
{
    const Summary& held = summary();
    return held.heldLists.contains(id)
        || std::any_of(held.fields.cbegin(), held.fields.cend(), [&id](const Field& field) { return field.id == id; });
}

void SelectedPhotos::takeRead(const QList<QUrl>& photos)
{
    forgetIfOutdated();
    // Where one was read before, the list counts as another one.
    if (!m_summary || m_summary->unread == 0)
        return;
    for (const QUrl& photo : photos) {
        const ImageRecord* record = m_selection.photos.contains(photo) ? m_list.record(photo) : nullptr;
        if (!record || record->isUnread)
            continue;
        --m_summary->unread;
        merge(*m_summary, *record);
    }
}

const SelectedPhotos::Summary& SelectedPhotos::summary() const
{
    forgetIfOutdated();
    if (m_summary)
        return *m_summary;
    Summary summary;
    for (const int row : rows())
        merge(summary, m_list.records().at(row));
    m_summary = std::move(summary);
    return *m_summary;
}

}  // namespace Quorbel
