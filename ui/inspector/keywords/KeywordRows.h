// What stands under the keyword field of several photos: the keywords that they hold, and quick keywords.
// Thread: the main thread. Shows the model and calls it.
#pragma once

#include <QWidget>

namespace Quorbel {

class AppModel;
class HeldKeywords;
class QuickStrip;

class KeywordRows final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KeywordRows)

public:
    explicit KeywordRows(AppModel& model, QWidget* parent = nullptr);
    /// Shows the model as it is now. Hidden while one photo is selected.
    void refresh();
    QList<QWidget*> tabStops() const;

private:
    AppModel& m_model;
    HeldKeywords* m_held;
    QuickStrip* m_quick;
};

}  // namespace Quorbel
