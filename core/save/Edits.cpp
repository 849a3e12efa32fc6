#include "core/save/Edits.h"

#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/KeywordPath.h"

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

// Whether the photo holds this text already, as far as is known.
bool holdsText(const ImageRecord& photo, const PhotoDetails* details, const QString& key, const QString& text)
{
    if (!FieldLanguages::languageIn(key))
        return photo.values.value(key) == text;
    return details && details->languages.value(key) == text;
}

}  // namespace

int Edits::count() const
{
    return int(keys().size());
}

bool Edits::edited(const QString& key) const
{
    if (const auto name = CustomFields::nameIn(key))
        return CustomFields::indexOf(customs, *name) >= 0;
    return scalars.contains(key) || lists.contains(key) || !added.value(key).isEmpty()
        || (key == FieldID::keywords && !paths.isEmpty());
}

QSet<QString> Edits::keys() const
{
    const QStringList ids = scalars.keys() + lists.keys() + withoutEmpty(added).keys();
    QSet<QString> keys(ids.cbegin(), ids.cend());
    if (!paths.isEmpty())
        keys.insert(FieldID::keywords);
    for (const CustomValue& custom : customs)
        keys.insert(CustomFields::key(custom.name));
    return keys;
}

EditPlan Edits::plan() const
{
    EditPlan plan{ .scalars = scalars, .lists = lists, .customs = customs, .paths = paths };
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
    rest.givenUp.removeIf([&rest](const auto& entry) { return !rest.lists.contains(entry.key()); });
    if (!differing.contains(FieldID::keywords))
        rest.paths.removeIf([&saved](const QString& path) { return saved.paths.contains(path); });
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

Edits Edits::foldedInto(const ImageRecord& photo, const PhotoDetails* details) const
{
    Edits folded{ .scalars = scalars,
        .lists = lists,
        .paths = paths,
        .givenUp = givenUp,
        .customs = customs,
        .subjects = { photo.url } };
    folded.scalars.removeIf([&](const auto& entry) { return holdsText(photo, details, entry.key(), entry.value()); });
    for (auto items = added.cbegin(); items != added.cend(); ++items)
        folded.lists.insert(items.key(), withItems(photo.lists.value(items.key()), *items));
    folded.lists.removeIf([&](const auto& entry) {
        return photo.lists.value(entry.key()) == entry.value() && givenUp.value(entry.key()).isEmpty();
    });
    folded.dropStrayPaths();
    folded.addKeywordsOfPaths(photo.lists.value(FieldID::keywords));
    if (details)
        folded.paths.removeIf([details](const QString& path) { return details->paths.contains(path); });
    folded.customs.removeIf([&](const CustomValue& custom) {
        const qsizetype i = CustomFields::indexOf(photo.custom, custom.name);
        return custom.value == (i < 0 ? QString() : photo.custom.at(i).value);
    });
    return folded;
}

ExternalRefresh::Drafts Edits::onto(const ImageRecord& photo, const QMap<QString, QString>& languages) const
{
    ExternalRefresh::Drafts drafts{ scalars, lists, customs };
    for (auto items = added.cbegin(); items != added.cend(); ++items)
        drafts.lists.insert(items.key(), withItems(photo.lists.value(items.key()), *items));
    QSet<QString> laidOver = keys();
    if (!drafts.lists.contains(FieldID::keywords))
        laidOver.remove(FieldID::keywords);  // only paths: the list stays
    ExternalRefresh::Drafts seen = ExternalRefresh::mergeDrafts(photo, drafts, laidOver);
    for (auto text = languages.cbegin(); text != languages.cend(); ++text)
        if (!scalars.contains(text.key()))
            seen.values.insert(text.key(), *text);
    return seen;
}

Edits Edits::merged(const Edits& other) const
{
    Edits merged = *this;
    merged.scalars.insert(other.scalars);
    for (auto list = other.lists.cbegin(); list != other.lists.cend(); ++list) {
        merged.lists.insert(list.key(), *list);
        merged.givenUp.insert(list.key(), other.givenUp.value(list.key()));
    }
    merged.givenUp = withoutEmpty(merged.givenUp);
    for (auto items = other.added.cbegin(); items != other.added.cend(); ++items)
        merged.added.insert(items.key(), withItems(merged.added.value(items.key()), *items));
    merged.paths = withItems(paths, other.paths);
    merged.dropStrayPaths();
    for (const CustomValue& custom : other.customs)
        CustomFields::put(merged.customs, custom);
    return merged;
}

void Edits::dropStrayPaths()
{
    const auto list = lists.constFind(FieldID::keywords);
    if (list != lists.cend())
        paths.removeIf([&list](const QString& path) { return !list->contains(KeywordPath::keyword(path)); });
}

void Edits::addKeywordsOfPaths(const QStringList& held)
{
    QStringList keywords;
    for (const QString& path : std::as_const(paths))
        keywords.append(KeywordPath::keyword(path));
    const QStringList before = lists.value(FieldID::keywords, held);
    if (const QStringList all = withItems(before, keywords); all != before)
        lists.insert(FieldID::keywords, all);
}

void Edits::forget(const QString& id)
{
    scalars.removeIf([&id](const auto& entry) {
        const auto language = FieldLanguages::languageIn(entry.key());
        return entry.key() == id || (language && language->field->id == id);
    });
    lists.remove(id);
    givenUp.remove(id);
    added.remove(id);
    if (id == FieldID::keywords)
        paths.clear();
}

}  // namespace Quorbel
