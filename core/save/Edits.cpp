#include "core/save/Edits.h"

#include "core/schema/CustomFields.h"

#include <algorithm>

namespace Quorbel {

namespace {

QStringList withItems(QStringList list, const QStringList& items)
{
    for (const QString& item : items)
        if (!list.contains(item))
            list.append(item);
    return list;
}

QMap<QString, QStringList> withoutEmpty(QMap<QString, QStringList> lists)
{
    lists.removeIf([](const auto& entry) { return entry.value().isEmpty(); });
    return lists;
}

// Takes out what the save wrote: entries that are the same in both.
template <typename Value>
void dropSaved(QMap<QString, Value>& now, const QMap<QString, Value>& saved, const QSet<QString>& differing)
{
    now.removeIf([&](const auto& entry) {
        return !differing.contains(entry.key()) && saved.contains(entry.key())
            && saved.value(entry.key()) == entry.value();
    });
}

}  // namespace

int Edits::count() const
{
    return int(scalars.size() + lists.size() + withoutEmpty(added).size() + customs.size());
}

bool Edits::edited(const QString& key) const
{
    if (const auto name = CustomFields::nameIn(key))
        return CustomFields::indexOf(customs, *name) >= 0;
    return scalars.contains(key) || lists.contains(key) || !added.value(key).isEmpty();
}

QSet<QString> Edits::keys() const
{
    const QStringList ids = scalars.keys() + lists.keys() + withoutEmpty(added).keys();
    QSet<QString> keys(ids.cbegin(), ids.cend());
    for (const CustomValue& custom : customs)
        keys.insert(CustomFields::key(custom.name));
    return keys;
}

EditPlan Edits::plan() const
{
    EditPlan plan{ .scalars = scalars, .lists = lists, .customs = customs };
    if (lists.isEmpty() && !withoutEmpty(added).isEmpty()) {
        plan.lists = withoutEmpty(added);
        plan.listMode = MetadataWriter::ListMode::append;
    }
    return plan;
}

Edits Edits::minus(const Edits& saved, const QSet<QString>& differing) const
{
    Edits rest = *this;
    dropSaved(rest.scalars, saved.scalars, differing);
    dropSaved(rest.lists, saved.lists, differing);
    for (auto list = rest.added.begin(); list != rest.added.end(); ++list)
        if (!differing.contains(list.key()))
            for (const QString& item : saved.added.value(list.key()))
                list->removeAll(item);
    rest.added = withoutEmpty(rest.added);
    rest.customs.removeIf([&](const CustomValue& custom) {
        return !differing.contains(CustomFields::key(custom.name)) && saved.customs.contains(custom);
    });
    return rest;
}

Edits Edits::foldedInto(const ImageRecord& photo) const
{
    Edits folded{ .scalars = scalars, .lists = lists, .customs = customs, .subjects = { photo.url } };
    folded.scalars.removeIf([&](const auto& entry) { return photo.values.value(entry.key()) == entry.value(); });
    for (auto items = added.cbegin(); items != added.cend(); ++items)
        folded.lists.insert(items.key(), withItems(photo.lists.value(items.key()), *items));
    folded.lists.removeIf([&](const auto& entry) { return photo.lists.value(entry.key()) == entry.value(); });
    folded.customs.removeIf([&](const CustomValue& custom) {
        const qsizetype i = CustomFields::indexOf(photo.custom, custom.name);
        return custom.value == (i < 0 ? QString() : photo.custom.at(i).value);
    });
    return folded;
}

ExternalRefresh::Drafts Edits::onto(const ImageRecord& photo) const
{
    ExternalRefresh::Drafts drafts{ scalars, lists, customs };
    for (auto items = added.cbegin(); items != added.cend(); ++items)
        drafts.lists.insert(items.key(), withItems(photo.lists.value(items.key()), *items));
    return ExternalRefresh::mergeDrafts(photo, drafts, keys());
}

Edits Edits::merged(const Edits& other) const
{
    Edits merged = *this;
    merged.scalars.insert(other.scalars);
    merged.lists.insert(other.lists);
    for (auto items = other.added.cbegin(); items != other.added.cend(); ++items)
        merged.added.insert(items.key(), withItems(merged.added.value(items.key()), *items));
    for (const CustomValue& custom : other.customs)
        CustomFields::put(merged.customs, custom);
    return merged;
}

}  // namespace Quorbel
