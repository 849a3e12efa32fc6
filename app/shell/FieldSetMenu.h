// View ▸ Field Set: which fields are on screen. Thread: the main thread. Shows the model and calls it.
#pragma once

#include <QObject>

namespace Quorbel {

class AppModel;
class ThemedMenu;

class FieldSetMenu final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FieldSetMenu)

public:
    /// Adds itself to the menu, which it belongs to.
    FieldSetMenu(AppModel& model, ThemedMenu* menu);

private:
    void fill();

    AppModel& m_model;
    ThemedMenu* m_menu;
};

}  // namespace Quorbel
