// Shows what writing sidecars into photos, or photos' metadata into sidecars, would do to how many, and asks whether
// to. Thread: the main thread. Shows the model's MovingOver and calls it.
#pragma once

#include "ui/sheets/Sheet.h"

namespace Quorbel {

class MoveTable;
class MovingOver;
class QBButton;
class ThemedLabel;
class WrappedLine;

class MoveOverSheet final : public SheetBody {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MoveOverSheet)

public:
    /// It must outlive this, and be open.
    explicit MoveOverSheet(MovingOver& moving, QWidget* parent = nullptr);

    QString title() const override;
    void confirm() override;
    void cancel() override;
    QWidget* initialFocus() override;

private:
    QWidget* buildHeadings();
    QWidget* buildNotes();
    QString state() const;
    void refresh();

    MovingOver& m_moving;
    bool m_isInto;  ///< photos, not sidecars
    MoveTable* m_table;
    QList<WrappedLine*> m_notes;
    QBButton* m_dismiss;
    QBButton* m_write;
};

}  // namespace Quorbel
