// Edit ▸ Templates: fills the selected photos, and opens the sheet. Thread: the main thread. Shows the model and calls
// it.
#pragma once

#include <QObject>

class QAction;

namespace Quorbel {

class AppModel;
class ThemedMenu;

class TemplatesMenu final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TemplatesMenu)

public:
    /// Adds itself to the menu, which it belongs to.
    TemplatesMenu(AppModel& model, ThemedMenu* menu);

private:
    void fill();
    void followState();

    AppModel& m_model;
    ThemedMenu* m_menu;
    QAction* m_saveAsTemplate;
};

}  // namespace Quorbel
