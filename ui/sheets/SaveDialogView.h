// Asks before a write: one photo's edits, or the changes to several.
// Thread: the main thread. Shows the model as it is when the dialog opens, and hands its answers to it.
#pragma once

#include "ui/sheets/Sheet.h"

class QVBoxLayout;

namespace Quorbel {

class AppModel;
class QBButton;
class QBCheckbox;

class SaveDialogView final : public SheetBody {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SaveDialogView)

public:
    /// The model must outlive this.
    explicit SaveDialogView(AppModel& model, QWidget* parent = nullptr);

    void confirm() override;
    void cancel() override;
    QWidget* initialFocus() override;

private:
    QVBoxLayout* buildTexts();
    QWidget* buildChanges();
    void buildCheckbox();
    QList<QBButton*> buildButtons();

    AppModel& m_model;
    bool m_single;
    QBCheckbox* m_dontAsk = nullptr;
    QBButton* m_confirm = nullptr;
};

}  // namespace Quorbel
