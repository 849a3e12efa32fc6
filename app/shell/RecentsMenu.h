// File ▸ Open Recent: what was open before. Thread: the main thread. Shows the model and calls it.
#pragma once

#include <QObject>

namespace Quorbel {

class AppModel;
class ThemedMenu;

class RecentsMenu final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RecentsMenu)

public:
    /// Adds itself to the menu, which it belongs to.
    RecentsMenu(AppModel& model, ThemedMenu* menu);

private:
    void fill();

    AppModel& m_model;
    ThemedMenu* m_menu;
};

}  // namespace Quorbel
