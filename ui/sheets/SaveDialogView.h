// Asks before a write: one photo's edits, or the changes to several.
// Thread: the main thread. Shows the model as it is when the dialog opens, and hands its answers to it.
#pragma once

#include "app/model/AppModel.h"
#include "ui/sheets/Sheet.h"

#include <optional>

class QVBoxLayout;

namespace Quorbel {

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
    QWidget* buildCredentials();
    void buildCheckbox();
    QList<QBButton*> buildButtons();
    QString confirmTitle() const;

    AppModel& m_model;
    bool m_single;
    std::optional<AppModel::AgreementQuestion> m_question;  ///< asked instead, where it is one; costly for many photos
    QBCheckbox* m_dontAsk = nullptr;
    QBButton* m_confirm = nullptr;
};

}  // namespace Quorbel
