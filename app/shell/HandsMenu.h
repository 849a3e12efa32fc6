// The commands for hands that stay on the keys: from photo to photo, stars, the same as before, a close look.
// Thread: the main thread. Adds them to the menus that it is given.
#pragma once

#include <QObject>

class QAction;

namespace Quorbel {

class AppModel;
class ContentView;
class ThemedMenu;

class HandsMenu final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HandsMenu)

public:
    /// Belongs to the content.
    HandsMenu(AppModel& model, ContentView& content);
    /// Behind Save.
    void addToFile(ThemedMenu* menu);
    void addToEdit(ThemedMenu* menu);
    void addToView(ThemedMenu* menu);

private:
    void addRating(ThemedMenu* menu);
    void showRating();
    void followState();

    AppModel& m_model;
    ContentView& m_content;
    QAction* m_saveAndGoOn = nullptr;
    ThemedMenu* m_rating = nullptr;
    QAction* m_sameAsBefore = nullptr;
    QAction* m_next = nullptr;
    QAction* m_previous = nullptr;
    QAction* m_look = nullptr;
};

}  // namespace Quorbel
