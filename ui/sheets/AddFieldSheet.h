// Adds a field to the inspector: one of the schema that is not shown yet, or one of the user's own.
// Thread: the main thread. Shows the model and calls it; writes no file.
#pragma once

#include "ui/sheets/Sheet.h"

#include <QStringList>

class QVBoxLayout;

namespace Quorbel {

class AddableFieldList;
class AppModel;
class QBButton;
class QBTextField;
class ThemedLabel;

class AddFieldSheet final : public SheetBody {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AddFieldSheet)

public:
    /// The model must outlive this.
    explicit AddFieldSheet(AppModel& model, QWidget* parent = nullptr);

    QString title() const override;
    void confirm() override;
    void cancel() override;
    QWidget* initialFocus() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    QWidget* buildCustom();
    void filter();
    void judgeName();

    AppModel& m_model;
    QBTextField* m_query;
    AddableFieldList* m_list;
    QBTextField* m_name;
    QBTextField* m_value;
    ThemedLabel* m_verdict;
    QBButton* m_add;
};

}  // namespace Quorbel
