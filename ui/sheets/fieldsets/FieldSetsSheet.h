// Makes, changes and deletes the user's own sets of fields; those that come with the program can be looked at and
// copied. Thread: the main thread. Shows the model and calls it; nothing is stored before it is confirmed.
#pragma once

#include "app/model/fieldsets/FieldSets.h"
#include "ui/sheets/ListSheet.h"

class QListWidget;

namespace Quorbel {

class AppModel;
class FieldTicks;
class QBButton;
class QBIconButton;
class QBTextField;
class WrappedLine;

class FieldSetsSheet final : public ListSheet {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FieldSetsSheet)

public:
    /// While they are edited. The model must outlive this.
    explicit FieldSetsSheet(AppModel& model, QWidget* parent = nullptr);

    QString title() const override;
    void confirm() override;
    void cancel() override;
    QWidget* initialFocus() override;

private:
    QWidget* buildForm();
    void fillList();
    void show();
    void judge();
    void addSet(const FieldSet& set);
    void addCopy();
    void removeSet();
    FieldSet shown() const;
    QString shownName() const;
    /// The one of the user's own that is shown; null while it is another.
    FieldSets::Edited* edited();

    FieldSets& m_sets;
    QList<FieldSets::Edited> m_own;
    int m_row = 0;  ///< those that come with the program, and behind them the own ones
    bool m_isFilling = false;
    QListWidget* m_list;
    QBIconButton* m_remove;
    QBTextField* m_name;
    QBTextField* m_query;
    FieldTicks* m_ticks;
    WrappedLine* m_problem;
    QBButton* m_store;
};

}  // namespace Quorbel
