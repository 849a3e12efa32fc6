// What hangs on a row beside its editor: the mark of places that disagree, the chip of its languages, the button that
// adds one.
// Thread: the main thread. Part of a FieldRow, for which it reports; knows nothing of the model.
#pragma once

#include "ui/inspector/FieldRowState.h"
#include "ui/inspector/RowEditor.h"

#include <QObject>
#include <QPointer>

class QAction;
class QVBoxLayout;

namespace Quorbel {

class CodesChip;
class HomesPopover;
class MarkButton;
class QBIconButton;
class QBTextButton;
class TwoLineLabel;

class RowExtras final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RowExtras)

public:
    /// The column holds the editor and the lines under it.
    RowExtras(FieldRow& row, const RowEditor& editor, TwoLineLabel& label, QVBoxLayout& column);
    void show(const FieldRowState& state);
    /// Whether the pointer is in the row.
    void setHovered(bool on);
    /// Lays everything over the row where it belongs now.
    void place();
    /// What lines under the editor stand behind.
    QWidget* lastUnderEditor() const;
    QList<QWidget*> stopsBesideEditor() const;
    QList<QWidget*> stopsBelow() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showMark(const FieldRowState& state);
    void showChip(const FieldRowState& state);
    void showAdding(const FieldRowState& state);
    void showActions(const FieldRowState& state);
    void offer();
    void openPlaces();
    void setRoomAtEnd(int pixels);

    FieldRow& m_row;
    RowEditor m_editor;
    TwoLineLabel& m_label;
    QVBoxLayout& m_column;
    RowHomes m_places{};
    RowLanguages m_languages{};
    bool m_isHovered = false;
    // Each until it was needed.
    MarkButton* m_mark = nullptr;
    QPointer<HomesPopover> m_popover;
    CodesChip* m_chip = nullptr;
    QBIconButton* m_offer = nullptr;
    QBTextButton* m_add = nullptr;
    QAction* m_open = nullptr;
    QAction* m_close = nullptr;
};

}  // namespace Quorbel
