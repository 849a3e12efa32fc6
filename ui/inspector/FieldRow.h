// One row of the inspector: tick, label, editor, and the lines under the editor.
// Thread: the main thread. Shows a state and hands back what the user does; knows nothing of the model.
#pragma once

#include "core/schema/FieldSchema.h"
#include "core/schema/LocationFill.h"
#include "ui/controls/KeywordEditor.h"

#include <QDateTime>
#include <QWidget>

#include <functional>
#include <optional>

class QHBoxLayout;
class QVBoxLayout;

namespace Quorbel {

class PlaceProvider;
class QBCheckbox;
class QBIconButton;
class TwoLineLabel;
class WrappedLine;

/// All that a row shows.
struct FieldRowState {
    QString label{};
    QString text{};  ///< of an editor of one value
    QStringList items{};  ///< of a keyword editor
    QString placeholder{};
    bool italicPlaceholder = false;
    bool batch = false;  ///< has a tick
    bool included = false;  ///< the tick
    bool edited = false;
    bool removable = false;
    QString namespaceLine{};  ///< none when empty
    QString helpLine{};  ///< none when empty
    bool operator==(const FieldRowState&) const = default;
};

/// Which editor a row gets, and what that editor asks.
struct FieldRowParts {
    FieldKind kind = FieldKind::text;
    bool searchesPlaces = false;  ///< a text editor with place suggestions
    PlaceProvider* places = nullptr;  ///< not owned; may be null
    KeywordEditor::Completions completions{};
    std::function<QDateTime()> now{};  ///< local time for the button "Now"
};

class FieldRow;

/// An editor as its row sees it.
struct RowEditor {
    QWidget* widget = nullptr;
    QWidget* input = nullptr;  ///< the part that takes the keyboard; carries the accessible name
    QList<QWidget*> tabStops{};
    std::function<void(const FieldRowState& state, bool fresh)> show{};
};

/// Makes the editor that fits and connects its signals to those of the row.
RowEditor makeRowEditor(const FieldRowParts& parts, FieldRow& row);

class FieldRow final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FieldRow)

public:
    explicit FieldRow(const FieldRowParts& parts, QWidget* parent = nullptr);

    /// Applies what differs. `fresh`: the row shows another photo now, so the undo history and a half-typed keyword
    /// go even where the texts are equal; otherwise an editor that shows its text already is left alone.
    void setState(const FieldRowState& state, bool fresh);
    const FieldRowState& state() const { return m_state; }
    /// The part of the editor that takes the keyboard.
    QWidget* input() const { return m_editor.input; }
    QBCheckbox* tick() const { return m_tick; }  ///< null until the row was in a batch
    QBIconButton* removeButton() const { return m_remove; }  ///< null until the row was removable
    /// What takes Tab, in order.
    QList<QWidget*> tabStops() const;
    /// Where the edited dot goes: the middle of the label's first line, from the row's top.
    int dotCentre() const;

signals:
    void textEdited(const QString& text);
    void itemAdded(const QString& item);
    void itemRemoved(const QString& item);
    void placePicked(const Quorbel::LocationFill::Result& result);
    void tickClicked();
    void removeClicked();
    /// A tab stop was made after the row was.
    void tabStopsChanged();

private:
    void showTick();
    void showRemove();
    void showLines();
    void describe();
    WrappedLine* makeLine(bool mono);

    bool m_multiline;
    RowEditor m_editor;
    FieldRowState m_state{};
    QHBoxLayout* m_line;
    QVBoxLayout* m_column;
    TwoLineLabel* m_label;
    QBCheckbox* m_tick = nullptr;
    QBIconButton* m_remove = nullptr;
    WrappedLine* m_namespace = nullptr;
    WrappedLine* m_help = nullptr;
};

}  // namespace Quorbel
