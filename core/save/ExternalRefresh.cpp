#include "core/save/ExternalRefresh.h"

#include "core/schema/CustomFields.h"

namespace Quorbel::ExternalRefresh {

using namespace Qt::StringLiterals;

bool isModified(const std::optional<QDateTime>& asRead, const std::optional<QDateTime>& now)
{
    return asRead && now && *now != *asRead;
}

QList<QUrl> modifiedURLs(const QList<ImageRecord>& records, const ModificationDate& mtimeOf)
{
    QList<QUrl> urls;
    for (const ImageRecord& record : records) {
        if (record.contentModificationDate && isModified(record.contentModificationDate, mtimeOf(record)))
            urls.append(record.url);
    }
    return urls;
}

Drafts mergeDrafts(const ImageRecord& record, const Drafts& drafts, const QSet<QString>& edited)
{
    // In a fixed order, so that custom fields new to the record always come out in the same one.
    QStringList ids = edited.values();
    ids.sort();
    Drafts merged{ record.values, record.lists, record.custom };
    for (const QString& id : std::as_const(ids)) {
        if (const auto name = CustomFields::nameIn(id)) {
            const qsizetype i = CustomFields::indexOf(drafts.customs, *name);
            CustomFields::put(merged.customs, { *name, i < 0 ? u""_s : drafts.customs.at(i).value });
        } else if (drafts.lists.contains(id)) {
            merged.lists.insert(id, drafts.lists.value(id));
        } else {
            merged.values.insert(id, drafts.values.value(id, u""_s));
        }
    }
    return merged;
}

}  // namespace Quorbel::ExternalRefresh
