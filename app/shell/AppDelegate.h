// Starts the program: the self-test or the window, and what arrives while it runs. Thread: the main thread.
// The only place where the model and the views are put together.
#pragma once

#include "app/shell/Menus.h"
#include "app/shell/QuorbelApp.h"
#include "app/shell/SingleInstance.h"

#include <QMainWindow>
#include <QPointer>

namespace Quorbel {

class ContentView;
class HelpView;
class MainWindowDelegate;
class SettingsView;
class SystemScheme;
class ToolTips;

class AppDelegate final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AppDelegate)

public:
    /// Runs the self-test, and ends the process, when QUORBEL_SELFTEST is in the environment; call it before
    /// anything that needs a display.
    static void willFinishLaunching(int argc, char* argv[]);

    AppDelegate();
    ~AppDelegate() override;

    /// Hands `what` to a program that runs already; true when one took it: there is then nothing to start.
    bool handOver(const HandOver& what) const;
    /// Shows the window, opens the files, begins to listen for further starts and looks for updates.
    void finishLaunching(const QList<QUrl>& urls);

    /// Files and folders from a command line: paths, relative ones against the working folder, or file URLs.
    static QList<QUrl> urlsOf(const QStringList& arguments);

private:
    void buildWindow();
    void finishAfterFirstPaint(const QList<QUrl>& urls);
    MenuCommands menuCommands();
    WindowHooks hooks();
    void received(const HandOver& what);
    void openSettings();
    void chooseCodeFile(const std::function<void(const QString&)>& chosen);
    void openHelp();
    void showAbout();
    void showNotice(const Notice& notice, const std::function<void(qsizetype)>& answered);
    void applyThemes();
    void endEditing();

    SingleInstance m_instance;
    std::unique_ptr<QuorbelApp> m_app;
    std::unique_ptr<QMainWindow> m_window;  ///< before m_app goes, in the destructor
    SystemScheme* m_systemScheme;
    ContentView* m_content = nullptr;
    MainWindowDelegate* m_windowDelegate = nullptr;
    QPointer<SettingsView> m_settings{};
    QPointer<HelpView> m_help{};
};

}  // namespace Quorbel
