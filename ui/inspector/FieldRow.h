// One row of the inspector: tick, label, editor, and the lines under the editor.
// Thread: the main thread. Shows a state and hands back what the user does; knows nothing of the model.
#pragma once

#include "core/schema/LocationFill.h"
#include "ui/inspector/RowEditor.h"

#include <QWidget>

#include <array>

class QHBoxLayout;
class QVBoxLayout;

namespace Quorbel {

class CountLine;
class FieldBlock;
class QBCheckbox;
class QBIconButton;
class RowExtras;
class TwoLineLabel;
class WrappedLine;

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
    QWidget* input() const { return m_editor.changingInput ? m_editor.changingInput() : m_editor.input; }
    /// What takes Tab, in order.
    QList<QWidget*> tabStops() const;
    /// Where the edited dot goes: the middle of the label's first line, from the row's top.
    int dotCenter() const;
    /// Takes the section's whole width below its label: the cards of structures, which begin further left.
    bool isWide() const { return m_isWide; }
    /// Of a wide row not always.
    bool hasLabel() const;

signals:
    void textEdited(const QString& text);
    /// All items of a list, in their new order.
    void itemsEdited(const QStringList& items);
    void itemAdded(const QString& item);
    void itemRemoved(const QString& item);
    void placePicked(const Quorbel::LocationFill::Result& result);
    void tickClicked();
    void removeClicked();
    /// What this place holds is to be the field's value.
    void homeUsed(const Quorbel::FieldHome& home);
    void agreeAsked();
    /// The rows of the field's other languages are to be shown, or not; asked for by keyboard or mouse.
    void languagesAsked(bool open);
    /// A language is to be added; the menu opens under the anchor.
    void languageMenuAsked(QWidget* anchor);
    /// A tab stop was made after the row was.
    void tabStopsChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    bool isMultiline() const { return m_kind == FieldKind::multiline; }
    void addHead();
    void addCount(int limit);
    void restyle();
    void setStacked(bool stacked);
    void showHead();
    void showBlock();
    void showTick();
    void showRemove();
    void showLines();
    void describe();
    enum class Line { held, note, tags, help };
    void showLine(Line which, const QString& text);

    FieldKind m_kind;
    bool m_isLanguage;
    bool m_isWide;
    bool m_isAlone;  ///< wide, and named by its section
    QString m_purpose;  ///< what the text is for, told beside how long it is; "" for most
    bool m_stacked = false;  ///< the label stands over the editor, not beside it
    RowEditor m_editor;
    FieldRowState m_state{};
    QHBoxLayout* m_line;
    QVBoxLayout* m_column;
    TwoLineLabel* m_label;
    RowExtras* m_extras;
    QHBoxLayout* m_head = nullptr;  ///< over the editor of a wide row: tick, label, button
    QVBoxLayout* m_under = nullptr;  ///< of a wide row: what the lines under the editor stand in
    CountLine* m_count = nullptr;  ///< of a text that is not to become long
    FieldBlock* m_block = nullptr;  ///< until the row was unread
    QBCheckbox* m_tick = nullptr;  ///< until the row was in a batch
    QBIconButton* m_remove = nullptr;  ///< until the row was removable
    std::array<WrappedLine*, 4> m_lines{};  ///< under the editor, in the order of Line; each until it was needed
};

}  // namespace Quorbel
