#include "app/model/edits/Draft.h"

#include "core/schema/CustomFields.h"

namespace Quorbel {

Draft Draft::of(const ImageRecord& photo)
{
    return { .edits = { .subjects = { photo.url } }, .shown = { photo.values, photo.lists, photo.custom } };
}

void Draft::setScalar(const QString& id, const QString& value)
{
    if (shown.values.value(id) == value)
        return;
    shown.values.insert(id, value);
    edits.scalars.insert(id, value);
}

void Draft::addItem(const QString& id, const QString& item)
{
    QStringList items = shown.lists.value(id);
    if (item.isEmpty() || items.contains(item))
        return;
    items.append(item);
    shown.lists.insert(id, items);
    edits.lists.insert(id, items);
}

void Draft::removeItem(const QString& id, const QString& item)
{
    QStringList items = shown.lists.value(id);
    if (items.removeAll(item) == 0)
        return;
    shown.lists.insert(id, items);
    edits.lists.insert(id, items);
}

void Draft::setCustom(const QString& name, const QString& value)
{
    const qsizetype i = CustomFields::indexOf(shown.customs, name);
    if (value == (i < 0 ? QString() : shown.customs.at(i).value))
        return;
    CustomFields::put(shown.customs, { name, value });
    CustomFields::put(edits.customs, { name, value });
}

void Draft::forget(const QString& id)
{
    shown.values.remove(id);
    shown.lists.remove(id);
    edits.scalars.remove(id);
    edits.lists.remove(id);
}

void Draft::rebase(const ImageRecord& photo)
{
    edits.subjects = { photo.url };
    shown = edits.onto(photo);
}

void Draft::take(const Edits& newEdits, const ImageRecord& photo)
{
    edits = newEdits;
    rebase(photo);
}

}  // namespace Quorbel
