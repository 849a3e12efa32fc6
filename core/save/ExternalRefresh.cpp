#include "core/save/ExternalRefresh.h"

#include <algorithm>

namespace Quorbel::ExternalRefresh {

using namespace Qt::StringLiterals;

namespace {

CustomValue* findCustom(QList<CustomValue>& customs, const QString& name)
{
    const auto it = std::find_if(
        customs.begin(), customs.end(), [&name](const CustomValue& custom) { return custom.name == name; });
    return it == customs.end() ? nullptr : &*it;
}

QString draftOfCustom(const QList<CustomValue>& customs, const QString& name)
{
    for (const CustomValue& custom : customs)
        if (custom.name == name)
            return custom.value;
    return u""_s;
}

void keepCustom(QList<CustomValue>& customs, const QString& name, const QString& value)
{
    if (CustomValue* custom = findCustom(customs, name))
        custom->value = value;
    else
        customs.append({ name, value });
}

}  // namespace

QList<QUrl> modifiedURLs(const QList<ImageRecord>& records, const ModificationDate& mtimeOf)
{
    QList<QUrl> urls;
    for (const ImageRecord& record : records) {
        if (!record.contentModificationDate)
            continue;
        const std::optional<QDateTime> now = mtimeOf(record);
        if (now && *now != *record.contentModificationDate)
            urls.append(record.url);
    }
    return urls;
}

Drafts mergeDrafts(const ImageRecord& record, const Drafts& drafts, const QSet<QString>& edited)
{
    static const QString customPrefix = u"custom:"_s;
    // In a fixed order, so that custom fields new to the record always come out in the same one.
    QStringList ids = edited.values();
    ids.sort();
    Drafts merged{ record.values, record.lists, record.custom };
    for (const QString& id : std::as_const(ids)) {
        if (id.startsWith(customPrefix)) {
            const QString name = id.sliced(customPrefix.size());
            keepCustom(merged.customs, name, draftOfCustom(drafts.customs, name));
        } else if (drafts.lists.contains(id)) {
            merged.lists.insert(id, drafts.lists.value(id));
        } else {
            merged.values.insert(id, drafts.values.value(id, u""_s));
        }
    }
    return merged;
}

}  // namespace Quorbel::ExternalRefresh
