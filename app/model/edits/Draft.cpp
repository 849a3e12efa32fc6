#include "app/model/edits/Draft.h"

#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/KeywordPath.h"

namespace Quorbel {

Draft Draft::of(const ImageRecord& photo, const PhotoDetails& details)
{
    Draft draft;
    draft.rebase(photo, details);
    return draft;
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
    setItems(id, items);
}

// What the list holds is not known: the photo gains the item, whatever it holds.
void Draft::addUnseenItem(const QString& id, const QString& item)
{
    edits.addItems(id, { item });
    shown.lists[id].append(item);
}

void Draft::removeItem(const QString& id, const QString& item)
{
    QStringList items = shown.lists.value(id);
    if (items.removeAll(item) == 0)
        return;
    setItems(id, items);
    edits.dropStrayPaths();
}

void Draft::setItems(const QString& id, const QStringList& items)
{
    if (shown.lists.value(id) == items)
        return;
    shown.lists.insert(id, items);
    edits.lists.insert(id, items);
    edits.added.remove(id);
    edits.removed.remove(id);
}

void Draft::addPath(const QString& path)
{
    addItem(FieldID::keywords, KeywordPath::keyword(path));
    if (!edits.paths.contains(path))
        edits.paths.append(path);
}

void Draft::confirmScalar(const QString& id, const QString& value)
{
    shown.values.insert(id, value);
    edits.scalars.insert(id, value);
}

void Draft::confirmList(const QString& id, const QStringList& items, const QStringList& givenUp)
{
    shown.lists.insert(id, items);
    edits.lists.insert(id, items);
    edits.givenUp.insert(id, givenUp);
    edits.dropStrayPaths();
}

void Draft::setCustom(const QString& name, const QString& value)
{
    const qsizetype i = CustomFields::indexOf(shown.customs, name);
    if (value == (i < 0 ? QString() : shown.customs.at(i).value))
        return;
    CustomFields::put(shown.customs, { name, value });
    CustomFields::put(edits.customs, { name, value });
}

void Draft::lay(const Edits& laid, const PhotoDetails* details)
{
    for (auto text = laid.scalars.cbegin(); text != laid.scalars.cend(); ++text) {
        if (!details && PhotoDetails::hold(text.key()))
            confirmScalar(text.key(), *text);
        else
            setScalar(text.key(), *text);
    }
    for (auto list = laid.lists.cbegin(); list != laid.lists.cend(); ++list)
        if (const QStringList givenUp = laid.givenUp.value(list.key());
            shown.lists.value(list.key()) != *list || !givenUp.isEmpty())
            confirmList(list.key(), *list, givenUp);
    for (auto items = laid.removed.cbegin(); items != laid.removed.cend(); ++items)
        for (const QString& item : *items)
            removeItem(items.key(), item);
    for (auto items = laid.added.cbegin(); items != laid.added.cend(); ++items)
        for (const QString& item : *items) {
            if (!details && PhotoDetails::hold(items.key()))
                addUnseenItem(items.key(), item);
            else
                addItem(items.key(), item);
        }
    for (const QString& path : laid.paths) {
        if (details && details->paths.contains(path))
            addItem(FieldID::keywords, KeywordPath::keyword(path));
        else
            addPath(path);
    }
    for (const CustomValue& custom : laid.customs)
        setCustom(custom.name, custom.value);
}

void Draft::forget(const QString& id)
{
    shown.values.remove(id);
    shown.lists.remove(id);
    for (const QString& key : edits.keys())
        if (const auto language = FieldLanguages::languageIn(key); language && language->field->id == id)
            shown.values.remove(key);
    edits.forget(id);
}

void Draft::rebase(const ImageRecord& photo, const PhotoDetails& details)
{
    edits.subjects = { photo.url };
    edits.addKeywordsOfPaths(photo.lists.value(FieldID::keywords));
    if (!details.url.isEmpty())
        takeUnseen(details);
    shown = edits.onto(photo, details);
}

// Items that were added when nobody knew to what.
void Draft::takeUnseen(const PhotoDetails& details)
{
    for (const QString& id : edits.added.keys()) {
        if (!PhotoDetails::hold(id))
            continue;
        QStringList items = details.lists.value(id);
        for (const QString& item : edits.added.take(id))
            if (!items.contains(item))
                items.append(item);
        if (items != details.lists.value(id))
            edits.lists.insert(id, items);
    }
}

void Draft::take(const Edits& newEdits, const ImageRecord& photo, const PhotoDetails& details)
{
    edits = newEdits;
    rebase(photo, details);
}

}  // namespace Quorbel
