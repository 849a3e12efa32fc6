// Asks which of the copied fields the selected photos get, and says of each what that would replace.
// Thread: the main thread. Shows the model's pasting and calls it; writes no file.
#pragma once

#include "ui/sheets/Sheet.h"

class QHBoxLayout;
class QVBoxLayout;

namespace Quorbel {

class AppModel;
class PasteFieldRow;
class QBButton;
class ScrollArea;
class ThumbnailStore;
class WrappedLine;

class PasteFieldsSheet final : public SheetBody {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PasteFieldsSheet)

public:
    /// The store may be null. Both must outlive this.
    PasteFieldsSheet(AppModel& model, ThumbnailStore* thumbs, QWidget* parent = nullptr);

    QString title() const override;
    void confirm() override;
    void cancel() override;
    QWidget* initialFocus() override;

private:
    QHBoxLayout* buildHeader(ThumbnailStore* thumbs);
    QHBoxLayout* buildFoot();
    void buildRows();
    void orderTabStops();
    void refresh();
    void move(int from, int step);

    AppModel& m_model;
    ScrollArea* m_list;
    QList<PasteFieldRow*> m_rows;
    QList<QWidget*> m_before;  ///< what Tab comes to in front of the rows
    WrappedLine* m_note;
    QBButton* m_dismiss;
    QBButton* m_paste;
};

}  // namespace Quorbel
