// Builds a file-name pattern from tokens and shows the name that it gives.
// Thread: the main thread. Shows the model and calls it.
#pragma once

#include "ui/sheets/Sheet.h"

class QVBoxLayout;

namespace Quorbel {

class AppModel;
class QBButton;
class QBTextField;
class ThemedLabel;
class WrappedLine;

class RenameSheet final : public SheetBody {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RenameSheet)

public:
    /// The model must outlive this.
    explicit RenameSheet(AppModel& model, QWidget* parent = nullptr);

    QString title() const override;
    void confirm() override;
    void cancel() override;
    QWidget* initialFocus() override;

private:
    QWidget* buildTokens();
    void connectModel();
    void refresh();

    AppModel& m_model;
    QBTextField* m_pattern;
    WrappedLine* m_preview;
    ThemedLabel* m_problem;
    QBButton* m_rename;
};

}  // namespace Quorbel
