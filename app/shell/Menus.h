// The main window's menus and their shortcuts. Thread: the main thread.
#pragma once

#include <QObject>

#include <functional>

class QAction;

namespace Quorbel {

class AppModel;
class ContentView;
class HandsMenu;
class ThemedMenu;

/// The commands that are not the model's own.
struct MenuCommands {
    std::function<void()> openSettings{};
    std::function<void()> openHelp{};
    std::function<void()> checkForUpdates{};  ///< empty: not offered
    std::function<void()> showAbout{};
};

class Menus final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Menus)

public:
    /// Fills the content's menu bar; belongs to the content.
    Menus(AppModel& model, ContentView& content, const MenuCommands& commands);

private:
    void addFileMenu(const MenuCommands& commands);
    void addEditMenu();
    void addFieldCommands(ThemedMenu* menu);
    void addMoves(ThemedMenu* menu);
    void addViewMenu();
    void addPairing(ThemedMenu* menu);
    void addGaps(ThemedMenu* menu);
    void addHelpMenu(const MenuCommands& commands);
    ThemedMenu* addMenu(const QString& english);
    void showShortcuts();
    void fillBringBack();
    void followState();

    AppModel& m_model;
    ContentView& m_content;
    HandsMenu* m_hands;
    ThemedMenu* m_bringBack = nullptr;
    QAction* m_save = nullptr;
    QAction* m_undoSave = nullptr;
    QAction* m_rename = nullptr;
    QAction* m_renamePhotos = nullptr;
    QAction* m_undoRename = nullptr;
    QAction* m_refresh = nullptr;
    QAction* m_close = nullptr;
    QAction* m_readAgain = nullptr;
    QAction* m_shiftTime = nullptr;
    QAction* m_intoPhotos = nullptr;
    QAction* m_intoSidecars = nullptr;
    QAction* m_agree = nullptr;
    QAction* m_disagreements = nullptr;
    QAction* m_preview = nullptr;
    QAction* m_nextGap = nullptr;
    QAction* m_previousGap = nullptr;
    QAction* m_clearFilters = nullptr;
    QAction* m_find = nullptr;
    QAction* m_copyFields = nullptr;
    QAction* m_pasteFields = nullptr;
    QAction* m_pasteAgain = nullptr;
};

}  // namespace Quorbel
