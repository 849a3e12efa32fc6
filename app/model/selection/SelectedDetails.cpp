#include "app/model/selection/SelectedDetails.h"

#include "app/model/library/PhotoList.h"
#include "core/save/Agreement.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/KeywordPath.h"

namespace Quorbel {

SelectedDetails::SelectedDetails(const PhotoList& list, const SelectedPhotos& selected, Source source)
    : m_list(list)
    , m_selected(selected)
    , m_source(std::move(source))
{
}

std::optional<QString> SelectedDetails::sharedValue(const QString& key) const
{
    if (!PhotoDetails::hold(key))
        return m_selected.sharedValue(key);
    const Summary& held = summary();
    if (held.known == 0 || held.unknown > 0)
        return std::nullopt;
    const auto text = held.texts.constFind(key);
    if (text == held.texts.cend())
        return QString();
    return text->isShared && text->holders == held.known ? std::optional(text->value) : std::nullopt;
}

bool SelectedDetails::holds(const QString& key) const
{
    return summary().texts.contains(key) || summary().lists.contains(key);
}

QStringList SelectedDetails::codes(const QString& id) const
{
    QStringList codes;
    const QMap<QString, Text>& texts = summary().texts;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        if (const auto language = FieldLanguages::languageIn(text.key()); language && language->field->id == id)
            codes.append(language->code);
    return codes;
}

QStringList SelectedDetails::pathsOf(const QString& keyword) const
{
    return summary().paths.value(keyword);
}

void SelectedDetails::merge(Summary& summary, const ImageRecord& record, const PhotoDetails& details)
{
    for (auto held = details.texts.cbegin(); held != details.texts.cend(); ++held) {
        Text& text = summary.texts[held.key()];
        if (text.holders++ == 0)
            text.value = *held;
        else
            text.isShared = text.isShared && text.value == *held;
    }
    for (auto list = details.lists.cbegin(); list != details.lists.cend(); ++list)
        summary.lists.insert(list.key());
    for (const QString& path : details.paths)
        if (QStringList& paths = summary.paths[KeywordPath::keyword(path)]; !paths.contains(path))
            paths.append(path);
    if (details.hasCredentials)
        summary.sealed.append(record.url);
    if (!details.disagreements.isEmpty()) {
        ++summary.disagreeing;
        summary.canAgree = summary.canAgree || !Agreement::plan(record, details).isEmpty();
    }
    ++summary.known;
}

const SelectedDetails::Summary& SelectedDetails::summary() const
{
    const QList<int>& rows = m_selected.rows();
    // The same list, not merely an equal one: positions may hold other photos by now.
    if (m_summary && m_summary->rows.constData() == rows.constData())
        return *m_summary;
    Summary summary{ .rows = rows };
    // Mostly those that were on screen are known, and nobody has to ask for thousands of others.
    const qsizetype known = m_source.known();
    for (qsizetype i = 0; i < rows.size() && summary.known < known; ++i) {
        const ImageRecord& record = m_list.records().at(rows.at(i));
        if (const PhotoDetails* details = m_source.of(record.url))
            merge(summary, record, *details);
    }
    summary.unknown = int(rows.size()) - summary.known;
    m_summary = std::move(summary);
    return *m_summary;
}

}  // namespace Quorbel
