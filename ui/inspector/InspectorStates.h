// What the inspector says about a model: the state of each row, the texts of its footer.
// Thread: the main thread. Reads the model, changes nothing, knows no widget.
#pragma once

#include "ui/controls/keywords/KeywordSuggestion.h"
#include "ui/inspector/FieldRowState.h"

namespace Quorbel {

class AppModel;
class SelectedHolders;
struct LeftNotice;
struct CustomValue;
struct FieldSpec;

namespace InspectorStates {

/// Whether none of the selected photos has been read yet: there is nothing to show and nothing to type into.
bool isUnread(const AppModel& model);
/// "Reading 812 more…", or "812 not read yet" after the user gave that up; "" when all selected photos were read.
QString readingText(const AppModel& model);

/// Codes of the further languages in which the field is on screen, those that will be taken away among them.
QStringList languageCodes(const AppModel& model, const QString& id);
/// Whether the text under this key (FieldLanguages::key()) will be taken away.
bool isTakenAway(const AppModel& model, const QString& key);

FieldRowState fieldRow(const AppModel& model, const FieldSpec& field);
/// The text of a field in one further language; `isLast` of those on screen.
FieldRowState languageRow(const AppModel& model, const FieldSpec& field, const QString& code, bool isLast);
/// What completes a keyword or a path of keywords that is being typed: the keywords that are used most, each with the
/// paths that lead to it behind it, and then other paths. At most so many of each.
QList<KeywordSuggestion> keywordSuggestions(const AppModel& model, const QString& typed, int limit);
/// "12 photos have places that differ", of those selected; "" where none is known to have any.
QString disagreementsText(const AppModel& model);
FieldRowState customRow(const AppModel& model, const CustomValue& custom);

/// Of a field that is not known yet, or that cannot be: then it says so.
FieldRowState unreadRow(const AppModel& model, const FieldSpec& field);
/// Why the fields beside the record will not be known: "Could not be read (took too long)"; "" while they may be.
QString unreadText(const AppModel& model);
/// "in 12 of 40", in whatever way several photos hold a field of IptcSchema; "" where none is known to, and where all
/// hold the same text, which is to be seen then.
QString heldText(const AppModel& model, const SelectedHolders& holders, const QString& id);

/// The text that an editor of this field shows now.
QString currentText(const AppModel& model, const QString& id);

QString unsavedText(const AppModel& model);
/// "3 edits of 5 photos left unsaved"
QString leftText(const LeftNotice& left);
/// "3 edits left unsaved"
QString briefLeftText(const LeftNotice& left);
QString addTitle(const AppModel& model);
/// The title of the button that saves, or applies to several.
QString saveTitle(const AppModel& model);

}  // namespace InspectorStates

}  // namespace Quorbel
