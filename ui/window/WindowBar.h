// The bar at the top of the window: menus, what is open, and the tools. Thread: the main thread.
// Shows AppModel and calls it; what the preview button does is the window's.
#pragma once

#include <QWidget>

class QHBoxLayout;

namespace Quorbel {

class AppModel;
class QBButton;
class QBIconButton;
class ThemedMenuBar;

/// 52 points high; set it with QMainWindow::setMenuWidget().
class WindowBar final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WindowBar)

public:
    explicit WindowBar(AppModel& model, QWidget* parent = nullptr);

    /// Made by the first call, empty: the program fills it. (Making a menu bar takes Qt longer than all the rest of
    /// the window, so that a program that starts can show itself first.)
    ThemedMenuBar* menuBar();
    /// Whether the preview column is shown now: what its button says.
    void setPreviewShown(bool shown);
    /// While off, neither the menus nor their shortcuts do anything: a sheet is open.
    void setEnabledMenus(bool enabled);
    QSize sizeHint() const override;

signals:
    void previewToggled();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QBIconButton* addTool(QHBoxLayout* line, const QString& icon, const QString& name);
    void openSettingsMenu();
    void follow();
    void followWatching();
    QString shownTitle() const;
    void paintTitles(QPainter& painter) const;

    AppModel& m_model;
    QHBoxLayout* m_line;
    ThemedMenuBar* m_menus = nullptr;
    QWidget* m_tools;
    QBIconButton* m_refresh = nullptr;
    QBIconButton* m_preview = nullptr;
    QBIconButton* m_settings = nullptr;
    QBButton* m_save = nullptr;
};

}  // namespace Quorbel
