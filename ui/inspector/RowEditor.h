// The editor inside a row of the inspector, one for each kind of field.
// Thread: the main thread. Knows the row that it reports to, nothing of the model.
#pragma once

#include "core/schema/FieldSchema.h"
#include "ui/controls/keywords/KeywordSuggestion.h"
#include "ui/controls/text/TypedCode.h"
#include "ui/inspector/FieldRowState.h"

#include <QDateTime>
#include <QList>

#include <functional>

class QWidget;

namespace Quorbel {

class FieldRow;
class PlaceProvider;

/// Which editor a row gets, and what that editor asks.
struct FieldRowParts {
    FieldKind kind = FieldKind::text;
    bool searchesPlaces = false;  ///< a text editor with place suggestions
    PlaceProvider* places = nullptr;  ///< not owned; may be null
    std::function<QList<KeywordSuggestion>(const QString& typed)> completions{};  ///< best first
    CodeTexts codes{};  ///< what short codes in texts and keywords stand for
    std::function<QDateTime()> now{};  ///< local time for the button "Now"
    bool isLanguage = false;  ///< below the row of its field, and less prominent
    const FieldSpec* field = nullptr;  ///< of IptcSchema; null for other rows
    bool isAlone = false;  ///< its section is named after it: the row of a structure needs no label
    QString vocabulary{};  ///< of a text that is mostly one of its codes; "" for other texts
    int mostCharacters = 0;  ///< of a text area: counts up to these, and warns beyond them; 0 where it does not
};

/// An editor as its row sees it.
struct RowEditor {
    QWidget* widget = nullptr;
    QWidget* input = nullptr;  ///< the part that takes the keyboard; carries the accessible name
    QList<QWidget*> tabStops{};
    /// `fresh`: the row shows another photo now; see FieldRow::setState().
    std::function<void(const FieldRowState& state, bool fresh)> show{};
    std::function<QList<QWidget*>()> changingStops{};  ///< instead of tabStops, of an editor whose stops change
    std::function<QWidget*()> changingInput{};  ///< instead of `input`, which then only carries the name
};

/// Makes the editor that fits and connects its signals to those of the row.
RowEditor makeRowEditor(const FieldRowParts& parts, FieldRow& row);

}  // namespace Quorbel
