#include "ui/inspector/InspectorStates.h"

#include "app/model/AppModel.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldCheck.h"
#include "core/schema/FieldID.h"
#include "core/tool/MetadataWriter.h"

#include <algorithm>

namespace Quorbel::InspectorStates {

using namespace Qt::StringLiterals;

namespace {

QString placeholderOf(const QString& id)
{
    static const QHash<QString, QString> placeholders{
        { FieldID::title, u"Untitled"_s },
        { FieldID::description, u"Add a description…"_s },
        { FieldID::place, u"Add a place…"_s },
        { FieldID::creator, u"Add a creator…"_s },
        { FieldID::copyright, u"Add a copyright notice…"_s },
        { FieldID::date, u"YYYY-MM-DD HH:MM"_s },
        { FieldID::coords, u"lat, lon"_s },
        { FieldID::headline, u"Add a headline…"_s },
        { FieldID::event, u"Add an event…"_s },
    };
    return placeholders.value(id);
}

QString plural(qsizetype count)
{
    return count == 1 ? QString() : u"s"_s;
}

QString willBeWritten(const AppModel& model)
{
    return u"Will be written to all %1 photos"_s.arg(model.selection().size());
}

void addListState(const AppModel& model, const FieldSpec& field, FieldRowState& state)
{
    state.placeholder = state.batch ? u"Add to all + ↵"_s : u"Add keyword + ↵"_s;
    state.items = state.batch ? model.batchLists().value(field.id) : model.draftLists().value(field.id);
    state.included = state.batch && !state.items.isEmpty();
    if (state.included)
        state.helpLine = u"appends — existing values kept"_s;
}

void showMultipleValues(FieldRowState& state)
{
    state.italicPlaceholder = true;
    state.placeholder = u"Multiple values — leave unchanged"_s;
}

void addTextState(const AppModel& model, const FieldSpec& field, FieldRowState& state)
{
    state.text = currentText(model, field.id);
    state.included = state.batch && model.batchInclude().contains(field.id);
    if (state.included)
        state.helpLine = willBeWritten(model);
    state.placeholder = placeholderOf(field.id);
    if (state.batch && !state.included && !model.sharedValue(field.id))
        showMultipleValues(state);
}

}  // namespace

QString currentText(const AppModel& model, const QString& id)
{
    if (!model.isBatch())
        return model.draftValues().value(id);
    const QMap<QString, QString>& typed = model.batchValues();
    const auto text = typed.constFind(id);
    return text != typed.cend() ? *text : model.sharedValue(id).value_or(QString());
}

bool isUnread(const AppModel& model)
{
    return !model.selection().isEmpty() && model.unreadSelected() == model.selection().size();
}

QString readingText(const AppModel& model)
{
    const int unread = model.unreadSelected();
    if (unread == 0)
        return {};
    return (model.isWorking() ? u"Reading %1 more…"_s : u"%1 not read yet"_s).arg(unread);
}

FieldRowState unreadRow(const FieldSpec& field)
{
    return { .label = field.label, .unread = true };
}

FieldRowState fieldRow(const AppModel& model, const FieldSpec& field)
{
    FieldRowState state;
    state.label = field.label;
    state.batch = model.isBatch();
    state.edited = (state.batch ? model.batchInclude() : model.editedSingle()).contains(field.id);
    state.removable = model.isRemovableAddedField(field.id);
    if (model.preferences().showNamespace())
        state.namespaceLine = field.namespaceHint;
    if (field.isList())
        addListState(model, field, state);
    else
        addTextState(model, field, state);
    if (state.edited)
        state.noteLine = FieldCheck::note(field, state.text);
    return state;
}

FieldRowState customRow(const AppModel& model, const CustomValue& custom)
{
    FieldRowState state;
    state.label = custom.name;
    state.text = custom.value;
    state.batch = model.isBatch();
    if (state.batch) {
        const QList<CustomValue>& written = model.batchCustoms();
        state.included = std::any_of(
            written.cbegin(), written.cend(), [&custom](const CustomValue& v) { return v.name == custom.name; });
        state.edited = state.included;
        if (state.included)
            state.helpLine = willBeWritten(model);
        else if (!model.sharedCustom(custom.name))
            showMultipleValues(state);
    } else {
        state.edited = model.editedSingle().contains(CustomFields::key(custom.name));
    }
    state.fixed = !CustomFields::isWritable(custom.name);
    if (state.fixed)
        state.helpLine = u"A field of this name cannot be changed here"_s;
    if (model.preferences().showNamespace())
        state.namespaceLine = MetadataWriter::customNamespacePrefix() + u':' + custom.name;
    return state;
}

QString unsavedText(const AppModel& model)
{
    const int count = model.unsavedCount();
    if (model.isAwaitingRecords())
        return readingText(model);
    if (count == 0)
        return u"No unsaved changes"_s;
    if (!model.isBatch())
        return u"%1 unsaved change%2"_s.arg(count).arg(plural(count));
    return u"%1 field%2 → %3 files"_s.arg(count).arg(plural(count)).arg(model.selection().size());
}

QString leftText(const LeftNotice& left)
{
    return u"%1 edit%2 of %3 photo%4 left unsaved"_s.arg(left.edits)
        .arg(plural(left.edits))
        .arg(left.photos)
        .arg(plural(left.photos));
}

QString briefLeftText(const LeftNotice& left)
{
    return u"%1 edit%2 left unsaved"_s.arg(left.edits).arg(plural(left.edits));
}

QString addTitle(const AppModel& model)
{
    return model.isBatch() ? u"Add field to all"_s : u"Add field"_s;
}

QString saveTitle(const AppModel& model)
{
    if (model.isSaving())
        return u"Saving…"_s;
    return model.isBatch() ? u"Apply to %1"_s.arg(model.selection().size()) : u"Save"_s;
}

}  // namespace Quorbel::InspectorStates
