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

QStringList withoutItems(QStringList list, const QStringList& items)
{
    list.removeIf([&items](const QString& item) { return items.contains(item); });
    return list;
}

// Items that a save added or took away are no edit any more.
void dropSavedItems(
    QMap<QString, QStringList>& now, const QMap<QString, QStringList>& saved, const QSet<QString>& differing)
{
    for (auto list = now.begin(); list != now.end(); ++list)
        if (!differing.contains(list.key()))
            *list = withoutItems(*list, saved.value(list.key()));
    now = withoutEmpty(now);
}

void dropSavedCustoms(QList<CustomValue>& now, const QList<CustomValue>& saved, const QSet<QString>& differing)
{
    now.removeIf([&](const CustomValue& custom) {
        return !differing.contains(CustomFields::key(custom.name)) && saved.contains(custom);
    });
}

QStringList keysOf(const QList<CustomValue>& customs)
{
    QStringList keys;
    for (const CustomValue& custom : customs)
        keys.append(CustomFields::key(custom.name));
    return keys;
}

void insertKeys(QSet<QString>& keys, const QMap<QString, QString>& texts)
{
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        keys.insert(text.key());
}

// Of lists that gain or lose something.
void insertKeys(QSet<QString>& keys, const QMap<QString, QStringList>& lists)
{
    for (auto list = lists.cbegin(); list != lists.cend(); ++list)
        if (!list->isEmpty())
            keys.insert(list.key());
}

bool isWithoutItems(const QMap<QString, QStringList>& lists)
{
    return std::all_of(lists.cbegin(), lists.cend(), [](const QStringList& items) { return items.isEmpty(); });
}

bool holdsKey(const OwnEdits& one, const QString& key, const std::optional<QString>& customName)
{
    return one.scalars.contains(key) || one.added.contains(key) || one.removed.contains(key)
        || (customName && CustomFields::indexOf(one.customs, *customName) >= 0);
}

// Items that lists gain and lose: what comes later goes before what came first.
void moveItems(
    QMap<QString, QStringList>& to, QMap<QString, QStringList>& from, const QString& id, const QStringList& items)
{
    if (const QStringList all = withItems(to.value(id), items); !all.isEmpty())
        to.insert(id, all);
    if (!from.contains(id))
        return;
    const QStringList rest = withoutItems(from.value(id), items);
    if (rest.isEmpty())
        from.remove(id);
    else
        from.insert(id, rest);
}

// Whether the photo holds this text already, as far as is known.
bool holdsText(const ImageRecord& photo, const PhotoDetails* details, const QString& key, const QString& text)
{
    if (!PhotoDetails::hold(key))
        return photo.values.value(key) == text;
    return details && details->texts.value(key) == text;
}

// Nothing where it is not known.
std::optional<QStringList> heldItems(const ImageRecord& photo, const PhotoDetails* details, const QString& id)
{
    if (!PhotoDetails::hold(id))
        return photo.lists.value(id);
    return details ? std::optional(details->lists.value(id)) : std::nullopt;
}

// Those of a photo's lists of which it is not known what they hold stay as they are.
void foldItems(Edits& folded, const Edits& edits, const ImageRecord& photo, const PhotoDetails* details)
{
    const auto fold = [&](const QMap<QString, QStringList>& from, QMap<QString, QStringList>& unfolded, auto change) {
        for (auto items = from.cbegin(); items != from.cend(); ++items) {
            const auto held = heldItems(photo, details, items.key());
            if (const auto list = folded.lists.constFind(items.key()); list != folded.lists.cend())
                folded.lists.insert(items.key(), change(*list, *items));
            else if (held)
                folded.lists.insert(items.key(), change(*held, *items));
            else
                unfolded.insert(items.key(), *items);
        }
    };
    fold(edits.added, folded.added, withItems);
    fold(edits.removed, folded.removed, withoutItems);
    folded.lists.removeIf([&](const auto& entry) {
        const auto held = heldItems(photo, details, entry.key());
        return held && *held == entry.value() && edits.givenUp.value(entry.key()).isEmpty();
    });
}

bool isOfRecord(const QString& id)
{
    return !PhotoDetails::hold(id);
}

// Those of fields of the fixed catalogue.
QMap<QString, QStringList> ofRecords(QMap<QString, QStringList> lists)
{
    lists.removeIf([](const auto& entry) { return !isOfRecord(entry.key()); });
    return lists;
}

QMap<QString, ListChange> iptcChanges(const Edits& edits)
{
    QMap<QString, ListChange> changes;
    for (auto list = edits.lists.cbegin(); list != edits.lists.cend(); ++list)
        if (!isOfRecord(list.key()))
            changes[list.key()].whole = *list;
    for (auto items = edits.added.cbegin(); items != edits.added.cend(); ++items)
        if (!isOfRecord(items.key()) && !items->isEmpty())
            changes[items.key()].added = *items;
    for (auto items = edits.removed.cbegin(); items != edits.removed.cend(); ++items)
        if (!isOfRecord(items.key()) && !items->isEmpty())
            changes[items.key()].removed = *items;
    return changes;
}

}  // namespace

// Not by counting: it is asked at every key, of the edits of many photos.
bool Edits::isEmpty() const
{
    const auto isNone = [](const OwnEdits& one) {
        return one.scalars.isEmpty() && one.customs.isEmpty() && isWithoutItems(one.added)
            && isWithoutItems(one.removed);
    };
    return scalars.isEmpty() && lists.isEmpty() && paths.isEmpty() && customs.isEmpty() && isWithoutItems(added)
        && isWithoutItems(removed) && std::all_of(own.cbegin(), own.cend(), isNone);
}

int Edits::count() const
{
    return int(keys().size());
}

bool Edits::edited(const QString& key) const
{
    if (const auto name = CustomFields::nameIn(key); name && CustomFields::indexOf(customs, *name) >= 0)
        return true;
    return scalars.contains(key) || lists.contains(key) || !added.value(key).isEmpty() || !removed.value(key).isEmpty()
        || (key == FieldID::keywords && !paths.isEmpty()) || hasOwn(key);
}

QSet<QString> Edits::keys() const
{
    QSet<QString> keys;
    insertKeys(keys, scalars);
    insertKeys(keys, added);
    insertKeys(keys, removed);
    for (auto list = lists.cbegin(); list != lists.cend(); ++list)
        keys.insert(list.key());
    for (const OwnEdits& one : own) {
        insertKeys(keys, one.scalars);
        insertKeys(keys, one.added);
        insertKeys(keys, one.removed);
        for (const CustomValue& custom : one.customs)
            keys.insert(CustomFields::key(custom.name));
    }
    if (!paths.isEmpty())
        keys.insert(FieldID::keywords);
    for (const CustomValue& custom : customs)
        keys.insert(CustomFields::key(custom.name));
    return keys;
}

Edits Edits::of(const QUrl& photo) const
{
    Edits one = *this;
    one.subjects = { photo };
    const OwnEdits mine = own.value(photo);
    one.own.clear();
    one.scalars.insert(mine.scalars);
    for (auto items = mine.added.cbegin(); items != mine.added.cend(); ++items)
        one.addItems(items.key(), *items);
    for (auto items = mine.removed.cbegin(); items != mine.removed.cend(); ++items)
        one.removeItems(items.key(), *items);
    for (const CustomValue& custom : mine.customs)
        CustomFields::put(one.customs, custom);
    return one;
}

Edits Edits::onlyOf(const QSet<QUrl>& photos) const
{
    Edits some = *this;
    some.subjects.removeIf([&photos](const QUrl& photo) { return !photos.contains(photo); });
    // Mostly all of them are: then nothing is copied.
    if (!std::all_of(own.keyBegin(), own.keyEnd(), [&photos](const QUrl& photo) { return photos.contains(photo); }))
        some.own.removeIf([&photos](const auto& entry) { return !photos.contains(entry.key()); });
    return some;
}

EditPlan Edits::plan() const
{
    EditPlan plan{ .scalars = scalars, .lists = ofRecords(lists), .customs = customs, .paths = paths };
    plan.iptcLists = iptcChanges(*this);
    const QMap<QString, QStringList> gained = withoutEmpty(ofRecords(added));
    const QMap<QString, QStringList> lost = withoutEmpty(ofRecords(removed));
    if (plan.lists.isEmpty() && !(gained.isEmpty() && lost.isEmpty())) {
        plan.lists = gained;
        plan.removed = lost;
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
    dropSavedItems(rest.added, saved.added, differing);
    dropSavedItems(rest.removed, saved.removed, differing);
    dropSavedCustoms(rest.customs, saved.customs, differing);
    for (auto one = rest.own.begin(); one != rest.own.end(); ++one) {
        const OwnEdits written = saved.own.value(one.key());
        dropSaved(one->scalars, written.scalars, differing);
        dropSavedItems(one->added, written.added, differing);
        dropSavedItems(one->removed, written.removed, differing);
        dropSavedCustoms(one->customs, written.customs, differing);
    }
    rest.own.removeIf([](const auto& entry) { return entry.value().isEmpty(); });
    return rest;
}

Edits Edits::foldedInto(const ImageRecord& photo, const PhotoDetails* details) const
{
    if (!own.isEmpty())
        return of(photo.url).foldedInto(photo, details);
    Edits folded{ .scalars = scalars,
        .lists = lists,
        .paths = paths,
        .givenUp = givenUp,
        .customs = customs,
        .subjects = { photo.url } };
    folded.scalars.removeIf([&](const auto& entry) { return holdsText(photo, details, entry.key(), entry.value()); });
    foldItems(folded, *this, photo, details);
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

ExternalRefresh::Drafts Edits::onto(const ImageRecord& photo, const PhotoDetails& details) const
{
    if (!own.isEmpty())
        return of(photo.url).onto(photo, details);
    ExternalRefresh::Drafts drafts{ scalars, lists, customs };
    const auto heldBy = [&](const QString& id) {
        return drafts.lists.value(id, isOfRecord(id) ? photo.lists.value(id) : details.lists.value(id));
    };
    for (auto items = added.cbegin(); items != added.cend(); ++items)
        drafts.lists.insert(items.key(), withItems(heldBy(items.key()), *items));
    for (auto items = removed.cbegin(); items != removed.cend(); ++items)
        drafts.lists.insert(items.key(), withoutItems(heldBy(items.key()), *items));
    QSet<QString> laidOver = keys();
    if (!drafts.lists.contains(FieldID::keywords))
        laidOver.remove(FieldID::keywords);  // only paths: the list stays
    ExternalRefresh::Drafts seen = ExternalRefresh::mergeDrafts(photo, drafts, laidOver);
    for (auto text = details.texts.cbegin(); text != details.texts.cend(); ++text)
        if (!scalars.contains(text.key()))
            seen.values.insert(text.key(), *text);
    for (auto list = details.lists.cbegin(); list != details.lists.cend(); ++list)
        if (!drafts.lists.contains(list.key()))
            seen.lists.insert(list.key(), *list);
    return seen;
}

Edits Edits::merged(const Edits& other, const QList<QUrl>& photos) const
{
    Edits merged = *this;
    merged.shareOut(other.own, photos);
    for (const QString& key : other.scalars.keys() + other.lists.keys() + keysOf(other.customs))
        merged.forgetOwn(key);
    merged.scalars.insert(other.scalars);
    for (auto list = other.lists.cbegin(); list != other.lists.cend(); ++list) {
        merged.lists.insert(list.key(), *list);
        merged.added.remove(list.key());
        merged.removed.remove(list.key());
        merged.givenUp.insert(list.key(), other.givenUp.value(list.key()));
    }
    merged.givenUp = withoutEmpty(merged.givenUp);
    for (auto items = other.added.cbegin(); items != other.added.cend(); ++items)
        merged.addItems(items.key(), *items);
    for (auto items = other.removed.cbegin(); items != other.removed.cend(); ++items)
        merged.removeItems(items.key(), *items);
    for (const QString& path : other.paths)
        merged.removed[FieldID::keywords].removeAll(KeywordPath::keyword(path));
    merged.removed = withoutEmpty(merged.removed);
    merged.paths = withItems(merged.paths, other.paths);
    merged.dropStrayPaths();
    for (const CustomValue& custom : other.customs)
        CustomFields::put(merged.customs, custom);
    merged.mergeOwn(other.own);
    return merged;
}

// A common text becomes one of each photo where only some are about to get another.
void Edits::shareOut(const QHash<QUrl, OwnEdits>& others, const QList<QUrl>& photos)
{
    QHash<QString, int> given;
    for (const OwnEdits& one : others) {
        for (auto text = one.scalars.cbegin(); text != one.scalars.cend(); ++text)
            ++given[text.key()];
        for (const CustomValue& custom : one.customs)
            ++given[CustomFields::key(custom.name)];
    }
    const auto isOfSome = [&given, &photos](const QString& key) {
        const int count = given.value(key);
        return count > 0 && count < photos.size();
    };
    QMap<QString, QString> texts = scalars;
    texts.removeIf([&isOfSome](const auto& text) { return !isOfSome(text.key()); });
    QList<CustomValue> values = customs;
    values.removeIf([&isOfSome](const CustomValue& custom) { return !isOfSome(CustomFields::key(custom.name)); });
    if (texts.isEmpty() && values.isEmpty())
        return;
    for (const QUrl& photo : photos) {
        own[photo].scalars.insert(texts);
        for (const CustomValue& custom : std::as_const(values))
            CustomFields::put(own[photo].customs, custom);
    }
}

void Edits::mergeOwn(const QHash<QUrl, OwnEdits>& others)
{
    QSet<QString> texts;
    for (const OwnEdits& one : others) {
        insertKeys(texts, one.scalars);
        for (const CustomValue& custom : one.customs)
            texts.insert(CustomFields::key(custom.name));
    }
    scalars.removeIf([&texts](const auto& text) { return texts.contains(text.key()); });
    customs.removeIf([&texts](const CustomValue& common) { return texts.contains(CustomFields::key(common.name)); });
    if (own.isEmpty()) {
        own = others;
        return;
    }
    own.reserve(own.size() + others.size());
    for (auto one = others.cbegin(); one != others.cend(); ++one) {
        const auto known = own.find(one.key());
        if (known == own.end()) {
            own.insert(one.key(), *one);
            continue;
        }
        known->scalars.insert(one->scalars);
        for (auto items = one->added.cbegin(); items != one->added.cend(); ++items)
            moveItems(known->added, known->removed, items.key(), *items);
        for (auto items = one->removed.cbegin(); items != one->removed.cend(); ++items)
            moveItems(known->removed, known->added, items.key(), *items);
        for (const CustomValue& custom : one->customs)
            CustomFields::put(known->customs, custom);
    }
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

void Edits::addItems(const QString& id, const QStringList& items)
{
    if (const auto list = lists.find(id); list != lists.end())
        *list = withItems(*list, items);
    else
        moveItems(added, removed, id, items);
    dropOwnItems(id, items);
}

void Edits::removeItems(const QString& id, const QStringList& items)
{
    if (const auto list = lists.find(id); list != lists.end())
        *list = withoutItems(*list, items);
    else
        moveItems(removed, added, id, items);
    dropOwnItems(id, items);
    if (id == FieldID::keywords)
        paths.removeIf([&items](const QString& path) { return items.contains(KeywordPath::keyword(path)); });
}

void Edits::dropOwnItems(const QString& id, const QStringList& items)
{
    const auto holds = [&](const QMap<QString, QStringList>& lists) {
        const auto list = lists.constFind(id);
        return list != lists.cend()
            && std::any_of(items.cbegin(), items.cend(), [&list](const QString& item) { return list->contains(item); });
    };
    const auto holdsSome = [&](const OwnEdits& one) { return holds(one.added) || holds(one.removed); };
    if (std::none_of(own.cbegin(), own.cend(), holdsSome))
        return;
    for (OwnEdits& one : own)
        for (QMap<QString, QStringList>* lists : { &one.added, &one.removed })
            if (holds(*lists)) {
                lists->insert(id, withoutItems(lists->value(id), items));
                *lists = withoutEmpty(*lists);
            }
    own.removeIf([](const auto& entry) { return entry.value().isEmpty(); });
}

bool Edits::hasOwn(const QString& key) const
{
    const auto name = CustomFields::nameIn(key);
    return std::any_of(own.cbegin(), own.cend(), [&](const OwnEdits& one) { return holdsKey(one, key, name); });
}

void Edits::forgetOwn(const QString& key)
{
    if (!hasOwn(key))
        return;
    const auto name = CustomFields::nameIn(key);
    bool hasNone = false;
    for (OwnEdits& one : own) {
        one.scalars.remove(key);
        one.added.remove(key);
        one.removed.remove(key);
        if (const qsizetype i = name ? CustomFields::indexOf(one.customs, *name) : -1; i >= 0)
            one.customs.removeAt(i);
        hasNone = hasNone || one.isEmpty();
    }
    if (hasNone)
        own.removeIf([](const auto& entry) { return entry.value().isEmpty(); });
}

void Edits::rename(const QUrl& source, const QUrl& destination)
{
    rename({ { source, destination } });
}

void Edits::rename(const QHash<QUrl, QUrl>& names)
{
    QSet<QUrl> taken;
    for (const QUrl& name : names)
        if (!names.contains(name))
            taken.insert(name);
    subjects.removeIf([&taken](const QUrl& photo) { return taken.contains(photo); });
    for (QUrl& photo : subjects)
        photo = names.value(photo, photo);
    QHash<QUrl, OwnEdits> renamed;
    for (auto one = own.cbegin(); one != own.cend(); ++one)
        if (!taken.contains(one.key()))
            renamed.insert(names.value(one.key(), one.key()), *one);
    own = renamed;
}

void Edits::forget(const QString& id)
{
    for (const QString& key : keys())
        if (const auto language = FieldLanguages::languageIn(key); key == id || (language && language->field->id == id))
            forgetOwn(key);
    scalars.removeIf([&id](const auto& entry) {
        const auto language = FieldLanguages::languageIn(entry.key());
        return entry.key() == id || (language && language->field->id == id);
    });
    lists.remove(id);
    givenUp.remove(id);
    added.remove(id);
    removed.remove(id);
    if (id == FieldID::keywords)
        paths.clear();
}

}  // namespace Quorbel
