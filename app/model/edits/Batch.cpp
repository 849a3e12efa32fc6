#include "app/model/edits/Batch.h"

#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/KeywordPath.h"

namespace Quorbel {

namespace {

// Those of a field of the schema, or of a custom field.
QHash<QUrl, QString> ownTexts(const QHash<QUrl, OwnEdits>& own, const QString& key)
{
    const auto name = CustomFields::nameIn(key);
    QHash<QUrl, QString> texts;
    for (auto one = own.cbegin(); one != own.cend(); ++one) {
        if (const auto text = one->scalars.constFind(key); text != one->scalars.cend())
            texts.insert(one.key(), *text);
        else if (const qsizetype i = name ? CustomFields::indexOf(one->customs, *name) : -1; i >= 0)
            texts.insert(one.key(), one->customs.at(i).value);
    }
    return texts;
}

}  // namespace

QSet<QString> Batch::include() const
{
    QSet<QString> ids(edits.scalars.keyBegin(), edits.scalars.keyEnd());
    for (const OwnEdits& one : edits.own)
        for (auto text = one.scalars.cbegin(); text != one.scalars.cend(); ++text)
            ids.insert(text.key());
    return ids;
}

QMap<QString, QString> Batch::values() const
{
    QMap<QString, QString> all = unticked;
    all.removeIf([](const auto& entry) { return CustomFields::nameIn(entry.key()).has_value(); });
    all.insert(edits.scalars);
    return all;
}

void Batch::setScalar(const QString& id, const QString& value)
{
    const auto ticked = edits.scalars.constFind(id);
    if (ticked != edits.scalars.cend() && *ticked == value)
        return;
    // What was unticked before somebody types anew is gone; what he types over is not.
    if (!putAside(id) && ticked == edits.scalars.cend())
        setAside.remove(id);
    unticked.remove(id);
    edits.scalars.insert(id, value);
}

void Batch::toggle(const QString& id, const QString& seen)
{
    if (putAside(id))
        return;
    if (edits.scalars.contains(id))
        unticked.insert(id, edits.scalars.take(id));
    else if (unticked.contains(id) || !bringBackOwn(id))
        edits.scalars.insert(id, unticked.contains(id) ? unticked.take(id) : seen);
}

// Whether there were texts that differ, which are no edit now.
bool Batch::putAside(const QString& key)
{
    if (!edits.hasOwn(key))
        return false;
    const QHash<QUrl, QString> texts = ownTexts(edits.own, key);
    if (texts.isEmpty())
        return false;
    setAside.insert(key, texts);
    edits.forgetOwn(key);
    return true;
}

bool Batch::bringBackOwn(const QString& key)
{
    if (!setAside.contains(key))
        return false;
    const QHash<QUrl, QString> texts = setAside.take(key);
    const auto name = CustomFields::nameIn(key);
    edits.scalars.remove(key);
    edits.customs.removeIf([&name](const CustomValue& custom) { return custom.name == name; });
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        if (name)
            CustomFields::put(edits.own[text.key()].customs, { *name, *text });
        else
            edits.own[text.key()].scalars.insert(key, *text);
    }
    return true;
}

void Batch::addItem(const QString& id, const QString& item)
{
    if (!item.isEmpty() && !edits.added.value(id).contains(item))
        edits.addItems(id, { item });
}

void Batch::setAdded(const QString& id, const QStringList& items)
{
    if (items.isEmpty())
        edits.added.remove(id);
    else
        edits.added.insert(id, items);
}

void Batch::removeItem(const QString& id, const QString& item)
{
    QStringList items = edits.added.value(id);
    if (items.removeAll(item) == 0)
        return;
    edits.added.insert(id, items);
    if (id == FieldID::keywords)
        edits.paths.removeIf([&item](const QString& path) { return KeywordPath::keyword(path) == item; });
}

void Batch::addPath(const QString& path)
{
    addItem(FieldID::keywords, KeywordPath::keyword(path));
    if (!edits.paths.contains(path))
        edits.paths.append(path);
}

void Batch::takeItemAway(const QString& id, const QString& item)
{
    if (!item.isEmpty() && !edits.removed.value(id).contains(item))
        edits.removeItems(id, { item });
}

void Batch::keepItem(const QString& id, const QString& item)
{
    QStringList items = edits.removed.value(id);
    if (items.removeAll(item) == 0)
        return;
    if (items.isEmpty())
        edits.removed.remove(id);
    else
        edits.removed.insert(id, items);
}

void Batch::clearList(const QString& id)
{
    edits.added.remove(id);
    edits.removed.remove(id);
    edits.forgetOwn(id);
    if (id == FieldID::keywords)
        edits.paths.clear();
}

void Batch::setCustom(const QString& name, const QString& value)
{
    const QString key = CustomFields::key(name);
    if (!putAside(key) && CustomFields::indexOf(edits.customs, name) < 0)
        setAside.remove(key);
    unticked.remove(key);
    if (!customNames.contains(name))
        customNames.append(name);
    CustomFields::put(edits.customs, { name, value });
}

void Batch::addCustom(const CustomValue& custom)
{
    edits.customs.removeIf([&custom](const CustomValue& other) { return other.name == custom.name; });
    customNames.removeAll(custom.name);
    setCustom(custom.name, custom.value);
}

void Batch::toggleCustom(const QString& name, const QString& seen)
{
    const QString key = CustomFields::key(name);
    if (putAside(key))
        return;
    const qsizetype i = CustomFields::indexOf(edits.customs, name);
    if (i >= 0)
        unticked.insert(key, edits.customs.takeAt(i).value);
    else if (unticked.contains(key) || !bringBackOwn(key))
        setCustom(name, customText(name).value_or(seen));
}

std::optional<QString> Batch::customText(const QString& name) const
{
    if (const qsizetype i = CustomFields::indexOf(edits.customs, name); i >= 0)
        return edits.customs.at(i).value;
    const auto text = unticked.constFind(CustomFields::key(name));
    return text == unticked.cend() ? std::nullopt : std::optional(*text);
}

void Batch::forget(const QString& id)
{
    edits.forget(id);
    const auto isOfField = [&id](const auto& entry) {
        const auto language = FieldLanguages::languageIn(entry.key());
        return entry.key() == id || (language && language->field->id == id);
    };
    unticked.removeIf(isOfField);
    setAside.removeIf(isOfField);
}

void Batch::take(const Edits& newEdits)
{
    const Edits old = std::exchange(edits, newEdits);
    QStringList keys = edits.keys().values();
    keys.sort();
    QStringList names = CustomFields::names(edits.customs);
    for (const QString& key : std::as_const(keys)) {
        unticked.remove(key);
        const auto name = CustomFields::nameIn(key);
        if (name)
            names.append(*name);
        // What stands aside belongs to what was typed over it.
        const bool isTypedOver =
            name ? edits.customs != old.customs : edits.scalars.value(key) != old.scalars.value(key);
        if (isTypedOver || edits.hasOwn(key))
            setAside.remove(key);
    }
    customNames.append(names);
    customNames.removeDuplicates();
}

void Batch::keepOnly(const QSet<QUrl>& photos)
{
    edits = edits.onlyOf(photos);
    for (QHash<QUrl, QString>& texts : setAside)
        texts.removeIf([&photos](const auto& text) { return !photos.contains(text.key()); });
    setAside.removeIf([](const auto& entry) { return entry.value().isEmpty(); });
}

void Batch::rename(const NewNames& names)
{
    edits.subjects = names.of(edits.subjects);
    edits.own = names.of(edits.own);
    for (QHash<QUrl, QString>& texts : setAside)
        texts = names.of(texts);
}

Batch Batch::afterSave(const Batch& saved, const QSet<QString>& differing) const
{
    Batch rest{ edits.minus(saved.edits, differing), unticked, setAside, customNames };
    // A text that was unticked while the save ran is the one that was written.
    QMap<QString, QString> known = saved.unticked;
    known.insert(saved.edits.scalars);
    for (const CustomValue& custom : saved.edits.customs)
        known.insert(CustomFields::key(custom.name), custom.value);
    rest.unticked.removeIf([&](const auto& entry) {
        return !differing.contains(entry.key()) && known.contains(entry.key())
            && known.value(entry.key()) == entry.value();
    });
    rest.setAside.removeIf([&](const auto& entry) {
        return !differing.contains(entry.key())
            && (saved.setAside.value(entry.key()) == entry.value()
                || ownTexts(saved.edits.own, entry.key()) == entry.value());
    });
    rest.customNames.removeIf([&rest](const QString& name) {
        const QString key = CustomFields::key(name);
        return !rest.customText(name) && !rest.setAside.contains(key) && !rest.edits.hasOwn(key);
    });
    return rest;
}

}  // namespace Quorbel
