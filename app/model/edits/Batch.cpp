#include "app/model/edits/Batch.h"

#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/KeywordPath.h"

namespace Quorbel {

QSet<QString> Batch::include() const
{
    return QSet<QString>(edits.scalars.keyBegin(), edits.scalars.keyEnd());
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
    unticked.remove(id);
    edits.scalars.insert(id, value);
}

void Batch::toggle(const QString& id, const QString& seen)
{
    if (edits.scalars.contains(id))
        unticked.insert(id, edits.scalars.take(id));
    else
        edits.scalars.insert(id, unticked.contains(id) ? unticked.take(id) : seen);
}

void Batch::addItem(const QString& id, const QString& item)
{
    QStringList items = edits.added.value(id);
    if (item.isEmpty() || items.contains(item))
        return;
    edits.added.insert(id, items << item);
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

void Batch::clearList(const QString& id)
{
    edits.added.remove(id);
    if (id == FieldID::keywords)
        edits.paths.clear();
}

void Batch::setCustom(const QString& name, const QString& value)
{
    unticked.remove(CustomFields::key(name));
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
    const qsizetype i = CustomFields::indexOf(edits.customs, name);
    if (i < 0)
        return setCustom(name, customText(name).value_or(seen));
    unticked.insert(CustomFields::key(name), edits.customs.takeAt(i).value);
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
    unticked.removeIf([&id](const auto& entry) {
        const auto language = FieldLanguages::languageIn(entry.key());
        return entry.key() == id || (language && language->field->id == id);
    });
}

void Batch::take(const Edits& newEdits)
{
    edits = newEdits;
    for (const QString& key : edits.keys())
        unticked.remove(key);
    for (const CustomValue& custom : edits.customs)
        if (!customNames.contains(custom.name))
            customNames.append(custom.name);
}

Batch Batch::afterSave(const Batch& saved, const QSet<QString>& differing) const
{
    Batch rest{ edits.minus(saved.edits, differing), unticked, customNames };
    // A text that was unticked while the save ran is the one that was written.
    QMap<QString, QString> known = saved.unticked;
    known.insert(saved.edits.scalars);
    for (const CustomValue& custom : saved.edits.customs)
        known.insert(CustomFields::key(custom.name), custom.value);
    rest.unticked.removeIf([&](const auto& entry) {
        return !differing.contains(entry.key()) && known.contains(entry.key())
            && known.value(entry.key()) == entry.value();
    });
    rest.customNames.removeIf([&rest](const QString& name) { return !rest.customText(name); });
    return rest;
}

}  // namespace Quorbel
