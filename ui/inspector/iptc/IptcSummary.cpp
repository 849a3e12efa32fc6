#include "ui/inspector/iptc/IptcSummary.h"

#include "app/model/AppModel.h"
#include "core/iptc/IptcSchema.h"
#include "core/iptc/ShownText.h"
#include "core/iptc/StructureText.h"
#include "core/language/Texts.h"
#include "core/schema/FieldLanguages.h"
#include "ui/inspector/InspectorStates.h"
#include "ui/inspector/iptc/CardTexts.h"

#include <algorithm>

namespace Quorbel::IptcSummary {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostOfText = 60;  // characters of one value, so that others get their place

// Of several photos what they share, and what lists gain.
QStringList itemsOf(const AppModel& model, const FieldSpec& field)
{
    if (field.isList())
        return (model.isBatch() ? model.batchLists() : model.draftLists()).value(field.id);
    const QString text = InspectorStates::currentText(model, field.id).trimmed();
    return text.isEmpty() ? QStringList() : QStringList(text);
}

QString shortened(const QString& text)
{
    const QString line = text.simplified();
    return line.size() <= mostOfText ? line : line.left(mostOfText).trimmed() + u'…';
}

// People are told by name; what has more than a title is told by its first item.
QString structuresText(const StructureSpec& structure, const QStringList& items)
{
    QStringList titles;
    for (const QString& item : items) {
        titles.append(StructureText::title(structure, item));
        if (titles.constLast().isEmpty() || !StructureText::subtitle(structure, item).isEmpty())
            return StructureText::summary(structure, items);
    }
    return titles.join(u", "_s);
}

QString valueText(const AppModel& model, const FieldSpec& field)
{
    QStringList items = itemsOf(model, field);
    if (items.isEmpty())
        return {};
    if (const StructureSpec* structure = IptcStructures::spec(field.structure))
        return structuresText(*structure, items);
    for (QString& item : items)
        item = shortened(ShownText::of(field.id, item));
    const QString text = items.join(u", "_s);
    // A number alone says nothing.
    return field.kind == FieldKind::number ? Texts::shown(field.label) + u' ' + text : text;
}

// Of several photos also how many hold something, with the field's name unless the section is there for just this one.
QString textOf(const AppModel& model, const FieldSpec& field, const QString& held)
{
    const QString value = valueText(model, field);
    if (held.isEmpty())
        return value;
    const auto isThere = [&field](const FieldSpec& other) { return other.section == field.section; };
    const bool isAlone = std::count_if(IptcSchema::all().cbegin(), IptcSchema::all().cend(), isThere) == 1;
    const QString told = isAlone ? held : Texts::shown(field.label) + u' ' + held;
    return value.isEmpty() ? told : value + u" · "_s + told;
}

}  // namespace

Summary of(const AppModel& model, const QStringList& ids, const std::function<QString(const QString& id)>& held,
    const QString& behind)
{
    QStringList parts;
    for (const QString& id : ids)
        if (const QString text = textOf(model, *FieldSchema::spec(id), held(id)); !text.isEmpty())
            parts.append(text);
    if (parts.isEmpty())
        return { behind, {} };
    if (!behind.isEmpty())
        parts.append(behind);
    // The first title in the color of texts, what is told of it in that of labels.
    QStringList pieces = parts.join(u" · "_s).split(u" · "_s);
    const QString first = pieces.takeFirst();
    return { first, pieces.join(u" · "_s) };
}

QString countText(const AppModel& model, const QStringList& ids)
{
    const FieldSpec* field = ids.size() == 1 ? FieldSchema::spec(ids.constFirst()) : nullptr;
    const StructureSpec* structure = field && field->isSeveral ? IptcStructures::spec(field->structure) : nullptr;
    if (!structure)
        return {};
    const qsizetype count = itemsOf(model, *field).size();
    return count == 0 ? QString() : CardTexts::counted(*structure, count);
}

bool isEdited(const AppModel& model, const QStringList& ids)
{
    QSet<QString> keys = model.isBatch() ? model.batchInclude() : model.editedSingle();
    if (model.isBatch()) {
        const auto take = [&keys](const QStringList& more) { keys.unite({ more.cbegin(), more.cend() }); };
        take(model.batchOwn().keys());
        take(model.nonEmptyBatchLists().keys());
    }
    return std::any_of(keys.cbegin(), keys.cend(), [&ids](const QString& key) {
        const auto language = FieldLanguages::languageIn(key);
        return ids.contains(language ? language->field->id : key);
    });
}

}  // namespace Quorbel::IptcSummary
