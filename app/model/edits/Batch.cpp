#include "app/model/edits/Batch.h"

#include "core/schema/CustomFields.h"

namespace Quorbel {

QSet<QString> Batch::include() const
{
    return QSet<QString>(edits.scalars.keyBegin(), edits.scalars.keyEnd());
}

QMap<QString, QString> Batch::values() const
{
    QMap<QString, QString> all = unticked;
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

void Batch::toggle(const QString& id)
{
    if (edits.scalars.contains(id))
        unticked.insert(id, edits.scalars.take(id));
    else
        edits.scalars.insert(id, unticked.take(id));
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
}

void Batch::clearList(const QString& id)
{
    edits.added.remove(id);
}

void Batch::setCustom(const QString& name, const QString& value)
{
    const qsizetype i = CustomFields::indexOf(edits.customs, name);
    if (value == (i < 0 ? QString() : edits.customs.at(i).value))
        return;
    CustomFields::put(edits.customs, { name, value });
}

void Batch::addCustom(const CustomValue& custom)
{
    edits.customs.removeIf([&custom](const CustomValue& other) { return other.name == custom.name; });
    edits.customs.append(custom);
}

void Batch::toggleCustom(const QString& name)
{
    if (edits.customs.removeIf([&name](const CustomValue& custom) { return custom.name == name; }) == 0)
        edits.customs.append({ name, QString() });
}

void Batch::forget(const QString& id)
{
    edits.scalars.remove(id);
    edits.added.remove(id);
    unticked.remove(id);
}

Batch Batch::afterSave(const Batch& saved, const QSet<QString>& differing) const
{
    Batch rest{ edits.minus(saved.edits, differing), unticked };
    // A text that was unticked while the save ran is the one that was written.
    QMap<QString, QString> known = saved.unticked;
    known.insert(saved.edits.scalars);
    rest.unticked.removeIf([&](const auto& entry) {
        return !differing.contains(entry.key()) && known.contains(entry.key())
            && known.value(entry.key()) == entry.value();
    });
    return rest;
}

}  // namespace Quorbel
