// What the main window does as a window: how it closes, where it was last time, and whether it can be seen.
// Thread: the main thread.
#pragma once

#include <QObject>

class QMainWindow;

namespace Quorbel {

class AppModel;
class SheetHost;

class MainWindowDelegate final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MainWindowDelegate)

public:
    /// Installs itself on the window, which must outlive it, as must the others.
    MainWindowDelegate(AppModel& model, QMainWindow& window, SheetHost& sheets);

    /// Puts the window where it was last time, or in a size that suits the screen.
    void restoreGeometry();
    /// The model agreed to the end of the program: stores the geometry and lets the window close.
    void quit();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    AppModel& m_model;
    QMainWindow& m_window;
    SheetHost& m_sheets;
    bool m_quitting = false;
};

}  // namespace Quorbel
