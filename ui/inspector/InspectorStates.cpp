#include "ui/inspector/InspectorStates.h"

#include "app/model/AppModel.h"
#include "app/model/iptc/FieldNotes.h"
#include "app/model/iptc/SelectedHolders.h"
#include "core/iptc/ShownText.h"
#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldCheck.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/KeywordPath.h"
#include "core/text/Text.h"
#include "core/tool/MetadataWriter.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace Quorbel::InspectorStates {

using namespace Qt::StringLiterals;

namespace {

QString placeholderOf(const QString& id)
{
    static const QHash<QString, QString> placeholders{
        { FieldID::title, Texts::tr("Untitled") },
        { FieldID::description, Texts::tr("Add a description…") },
        { FieldID::place, Texts::tr("Add a place…") },
        { FieldID::creator, Texts::tr("Add a creator…") },
        { FieldID::copyright, Texts::tr("Add a copyright notice…") },
        { FieldID::date, u"YYYY-MM-DD HH:MM"_s },
        { FieldID::coords, u"lat, lon"_s },
        { FieldID::headline, Texts::tr("Add a headline…") },
        { FieldID::event, Texts::tr("Add an event…") },
    };
    return placeholders.value(id);
}

QString willBeWritten(const AppModel& model)
{
    return Texts::tr("Will be written to all %n photos", nullptr, model.selection().size());
}

// Where keywords stand in trees of keywords; people stand in none.
QMap<QString, QList<QStringList>> parentsOf(const AppModel& model, const QStringList& keywords)
{
    QMap<QString, QList<QStringList>> all;
    for (const QString& keyword : keywords)
        for (const QString& path : model.pathsOf(keyword)) {
            QStringList parents = KeywordPath::elements(path);
            parents.removeLast();
            if (!parents.isEmpty())
                all[keyword].append(parents);
        }
    return all;
}

// The beginning of a path, as paths begin: "Places|Fr", and "Places|" where the next element is still to come. Nothing
// while it is a plain keyword.
std::optional<QString> pathBeingTyped(const QString& typed)
{
    static const QRegularExpression between(uR"(\||\s>(?:\s|$))"_s);
    QStringList elements = typed.split(between);
    if (elements.size() < 2)
        return std::nullopt;
    for (QString& element : elements)
        element = Text::trimmed(element);
    return elements.join(u'|');
}

// What is added, what is taken away, and what only some photos gain or lose.
QString listHelp(const AppModel& model, const QString& id, bool adds)
{
    QStringList parts;
    if (adds)
        //: What a save does to a list of each photo.
        parts.append(Texts::tr("appends — existing values kept"));
    if (const qsizetype gone = model.batchRemoved().value(id).size(); gone > 0)
        //: %n: how many items of a list, as keywords.
        parts.append(Texts::tr("%n taken away", nullptr, gone));
    if (const auto own = model.batchOwn().constFind(id); own != model.batchOwn().cend())
        parts.append(own->told(model.selection().size()));
    return parts.join(u" · "_s);
}

// In the empty end of a list.
QString addingPlaceholder(const FieldSpec& field)
{
    //: ↵ is the Return key, which adds what was typed to a list.
    static const QString id = Texts::tr("Add ID + ↵");
    static const QHash<QString, QString> placeholders{
        { u"iptc.modelAges"_s, Texts::tr("Add age + ↵") },
        { u"iptc.modelReleaseIds"_s, id },
        { u"iptc.eventIds"_s, id },
        { u"iptc.organisationNames"_s, Texts::tr("Add organisation + ↵") },
        { u"iptc.organisationCodes"_s, Texts::tr("Add code + ↵") },
        { u"iptc.propertyReleaseIds"_s, id },
    };
    return placeholders.value(field.id, Texts::tr("Add keyword + ↵"));
}

// What is wrong with what was typed, with the first such item of a list.
QString noteOf(const FieldSpec& field, const FieldRowState& state)
{
    for (const QString& text : field.isList() ? state.items : QStringList(state.text))
        if (const QString note = FieldCheck::note(field, text); !note.isEmpty())
            return note;
    return {};
}

void addListState(const AppModel& model, const FieldSpec& field, FieldRowState& state)
{
    state.placeholder = state.batch ? Texts::tr("Add to all + ↵") : addingPlaceholder(field);
    state.items = state.batch ? model.batchLists().value(field.id) : model.draftLists().value(field.id);
    if (field.id == FieldID::keywords)
        state.itemParents = parentsOf(model, state.items);
    if (state.batch)
        state.helpLine = listHelp(model, field.id, !state.items.isEmpty());
    state.included = !state.helpLine.isEmpty();
}

// Cards have no placeholder of their own, and mark those that the photo does not hold.
void addStructureState(const AppModel& model, const FieldSpec& field, FieldRowState& state)
{
    if (state.italicPlaceholder && state.helpLine.isEmpty())
        state.helpLine = state.placeholder;
    const PhotoDetails* details =
        state.batch || !state.edited || !model.primary() ? nullptr : model.details(*model.primary());
    if (details)
        state.held = details->lists.value(field.id) + QStringList(details->texts.value(field.id));
}

void showMultipleValues(FieldRowState& state)
{
    state.italicPlaceholder = true;
    state.placeholder = Texts::tr("Multiple values — leave unchanged");
}

// A field of the batch whose text differs from photo to photo says so in its place, and to screen readers.
bool showOwnTexts(const AppModel& model, const QString& key, FieldRowState& state)
{
    const auto own = model.batchOwn().constFind(key);
    if (!state.batch || own == model.batchOwn().cend())
        return false;
    const qsizetype selected = model.selection().size();
    state.text.clear();
    state.included = true;
    state.edited = true;
    state.italicPlaceholder = true;
    OwnSummary shown = *own;
    shown.text = ShownText::of(key, own->text);
    state.placeholder = shown.told(selected);
    //: %1 and %n: numbers of photos.
    const QString some = Texts::tr("Will be written to %1 of %n photos", nullptr, selected).arg(own->photos);
    state.helpLine = own->photos == selected ? willBeWritten(model) : some;
    return true;
}

// `key`: of the field, or of its text in a further language.
void addTextState(const AppModel& model, const QString& key, FieldRowState& state)
{
    if (showOwnTexts(model, key, state))
        return;
    state.text = currentText(model, key);
    state.included = state.batch && model.batchInclude().contains(key);
    if (state.included)
        state.helpLine = willBeWritten(model);
    state.placeholder = placeholderOf(key);
    if (state.batch && !state.included && !model.sharedValue(key))
        showMultipleValues(state);
}

const QSet<QString>& editedKeys(const AppModel& model)
{
    return model.isBatch() ? model.batchInclude() : model.editedSingle();
}

bool isEdited(const AppModel& model, const QString& key)
{
    return editedKeys(model).contains(key);
}

void addLanguages(const AppModel& model, const FieldSpec& field, FieldRowState& state)
{
    state.languages.isPossible = !field.languageTag().isEmpty() && !model.detailsFailure();
    if (!state.languages.isPossible)
        return;
    const QStringList codes = languageCodes(model, field.id);
    for (const QString& code : codes) {
        const QString key = FieldLanguages::key(field.id, code);
        state.languages.codes.append({ code, isTakenAway(model, key) });
        state.languages.isEdited = state.languages.isEdited || isEdited(model, key);
    }
}

}  // namespace

QString currentText(const AppModel& model, const QString& id)
{
    if (!model.isBatch())
        return model.draftValues().value(id);
    if (model.batchOwn().contains(id))
        return {};
    const QMap<QString, QString>& typed = model.batchValues();
    const auto text = typed.constFind(id);
    return text != typed.cend() ? *text : model.sharedValue(id).value_or(QString());
}

// A text that is emptied is taken away, with its language.
bool isTakenAway(const AppModel& model, const QString& key)
{
    return isEdited(model, key) && !model.batchOwn().contains(key) && currentText(model, key).trimmed().isEmpty();
}

QStringList languageCodes(const AppModel& model, const QString& id)
{
    QStringList codes = model.languages(id);
    for (const QString& key : editedKeys(model))
        if (const auto language = FieldLanguages::languageIn(key);
            language && language->field->id == id && !codes.contains(language->code) && isTakenAway(model, key))
            codes.append(language->code);
    codes.sort();
    return codes;
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
    //: %1: how many photos.
    return (model.isWorking() ? Texts::tr("Reading %1 more…", nullptr, unread)
                              : Texts::tr("%1 not read yet", nullptr, unread))
        .arg(unread);
}

FieldRowState unreadRow(const AppModel& model, const FieldSpec& field)
{
    return { .label = Texts::shown(field.label),
        .unread = true,
        .unreadText = PhotoDetails::hold(field.id) ? unreadText(model) : QString() };
}

QString unreadText(const AppModel& model)
{
    const std::optional<DetailsFailure> failure = model.detailsFailure();
    //: %1 is the reason: "took too long"
    return failure && !failure->isTriedAgain ? Texts::tr("Could not be read (%1)").arg(failure->reason) : QString();
}

QString heldText(const AppModel& model, const SelectedHolders& selected, const QString& id)
{
    if (!model.isBatch() || !PhotoDetails::hold(id))
        return {};
    const SelectedHolders::Count holders = selected.of(id);
    if (holders.photos == 0 || !model.sharedValue(id).value_or(QString()).isEmpty())
        return {};
    const qsizetype count = model.selection().size();
    const QString all = QLocale().toString(count);
    //: A field holds something in all photos, or in some of them. The numbers are of photos.
    if (holders.photos == count)
        return Texts::tr("in all %1").arg(all);
    return (holders.unknown > 0 ? Texts::tr("in %1 or more of %2") : Texts::tr("in %1 of %2"))
        .arg(QLocale().toString(holders.photos), all);
}

FieldRowState fieldRow(const AppModel& model, const FieldSpec& field)
{
    FieldRowState state;
    state.label = Texts::shown(field.label);
    state.batch = model.isBatch();
    state.edited = isEdited(model, field.id);
    state.removable = model.isRemovableAddedField(field.id);
    if (model.preferences().showNamespace())
        state.namespaceLine = field.namespaceHint;
    if (field.isList())
        addListState(model, field, state);
    else
        addTextState(model, field.id, state);
    // Editors that show no placeholder say it below.
    if ((field.kind == FieldKind::rating || field.kind == FieldKind::offset) && model.batchOwn().contains(field.id))
        state.helpLine.prepend(state.placeholder + u" · "_s);
    if (field.kind == FieldKind::structure)
        addStructureState(model, field, state);
    if (state.edited || (state.batch && state.included))
        state.noteLine = noteOf(field, state);
    // Of the length of texts their editors tell.
    if (state.noteLine.isEmpty() && field.kind == FieldKind::code)
        state.noteLine = FieldNotes::of(model, field.id);
    addLanguages(model, field, state);
    if (!state.batch && !state.edited)
        state.places.homes = model.differingHomes(field.id);
    state.places.canAgree = !state.places.homes.isEmpty() && model.canMakeAgree();
    return state;
}

FieldRowState languageRow(const AppModel& model, const FieldSpec& field, const QString& code, bool isLast)
{
    const QString key = FieldLanguages::key(field.id, code);
    FieldRowState state;
    state.language = { code, FieldLanguages::label(key), isTakenAway(model, key), isLast };
    state.label = FieldLanguages::name(code);
    state.batch = model.isBatch();
    state.edited = isEdited(model, key);
    state.removable = true;
    if (model.preferences().showNamespace())
        state.namespaceLine = FieldLanguages::tag(key);
    addTextState(model, key, state);
    if (state.language.isGone) {
        state.helpLine.clear();
        const auto photos = model.selection().size();
        state.noteLine = state.batch ? Texts::tr("Will be taken away from all %n photos", nullptr, photos)
                                     : Texts::tr("Will be taken away");
    }
    return state;
}

QList<KeywordSuggestion> keywordSuggestions(const AppModel& model, const QString& typed, int limit)
{
    const std::optional<QString> path = pathBeingTyped(typed);
    const QString prefix = Text::trimmed(typed);
    QStringList paths = model.pathCompletions(path.value_or(prefix), limit);
    QList<KeywordSuggestion> suggestions;
    const auto addPath = [&](const QString& known) {
        suggestions.append({ known, KeywordPath::keyword(known), KeywordPath::elements(KeywordPath::parents(known)) });
    };
    if (!path)
        for (const QString& keyword : model.keywordCompletions(prefix, limit)) {
            suggestions.append({ keyword, keyword });
            paths.removeIf([&](const QString& known) {
                const bool isItsOwn = KeywordPath::keyword(known) == keyword;
                if (isItsOwn)
                    addPath(known);
                return isItsOwn;
            });
        }
    std::for_each(paths.cbegin(), paths.cend(), addPath);
    return suggestions;
}

QString disagreementsText(const AppModel& model)
{
    const int count = model.selectedDisagreements();
    if (count == 0)
        return {};
    //: %1: how many photos. Places: several within a photo that hold the same field.
    return Texts::tr("%1 photo(s) (has|have) places that differ", nullptr, count).arg(QLocale().toString(count));
}

FieldRowState customRow(const AppModel& model, const CustomValue& custom)
{
    FieldRowState state;
    state.label = custom.name;
    state.text = custom.value;
    state.batch = model.isBatch();
    if (showOwnTexts(model, CustomFields::key(custom.name), state)) {
        // said
    } else if (state.batch) {
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
        state.helpLine = Texts::tr("A field of this name cannot be changed here");
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
        return Texts::tr("No unsaved changes");
    if (!model.isBatch())
        return Texts::tr("%n unsaved change(s)", nullptr, count);
    //: Of so many fields the values will go into files. %1: “12 files”.
    return Texts::tr("%n field(s) → %1", nullptr, count)
        .arg(Texts::tr("%n file(s)", nullptr, model.selection().size()));
}

QString leftText(const LeftNotice& left)
{
    //: Somebody went on without saving them. %1: “5 photos”.
    return Texts::tr("%n edit(s) of %1 left unsaved", nullptr, left.edits)
        .arg(Texts::tr("%n photo(s)", nullptr, left.photos));
}

QString briefLeftText(const LeftNotice& left)
{
    //: Somebody went on without saving them.
    return Texts::tr("%n edit(s) left unsaved", nullptr, left.edits);
}

QString addTitle(const AppModel& model)
{
    return model.isBatch() ? Texts::tr("Add field to all") : Texts::tr("Add field");
}

QString saveTitle(const AppModel& model)
{
    if (model.isSaving())
        return Texts::tr("Saving…");
    //: Button: saves what was edited into photos. %1: how many these are.
    return model.isBatch() ? Texts::tr("Apply to %1").arg(model.selection().size()) : Texts::tr("Save");
}

}  // namespace Quorbel::InspectorStates
