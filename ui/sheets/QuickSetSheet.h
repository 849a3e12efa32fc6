// Makes a named set of quick keywords, changes or deletes one. Thread: the main thread. Shows the model and calls it.
#pragma once

#include "ui/sheets/Sheet.h"

#include <QStringList>

namespace Quorbel {

class AppModel;
class KeywordEditor;
class QBButton;
class QBTextField;
class ThemedLabel;

class QuickSetSheet final : public SheetBody {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuickSetSheet)

public:
    /// While QuickKeywords::edited() holds a set. The model must outlive this.
    explicit QuickSetSheet(AppModel& model, QWidget* parent = nullptr);

    QString title() const override;
    void confirm() override;
    void cancel() override;
    QWidget* initialFocus() override;

private:
    void buildKeywords();
    QList<QBButton*> buildButtons();
    void show();
    void add(const QString& typed);

    AppModel& m_model;
    bool m_isNew;
    QStringList m_keywords;  ///< as they are typed
    QBTextField* m_name;
    KeywordEditor* m_editor;
    ThemedLabel* m_problem;
    QBButton* m_store;
};

}  // namespace Quorbel
