// What fills the window while nothing is open: a box to drop things on, two buttons, and whether
// what is in a folder's folders is opened with it.
// Thread: the main thread. The window handles the drops; this shows that one hovers.
#pragma once

#include <QWidget>

namespace Quorbel {

class AppModel;
class DropBox;
class ProgressFoot;

class LaunchView final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LaunchView)

public:
    explicit LaunchView(AppModel& model, QWidget* parent = nullptr);

    /// True while a drag hovers over the window.
    void setTargeted(bool targeted);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    QWidget* buildSubfolders(AppModel& model);
    void placeProgress();

    DropBox* m_box;
    QWidget* m_subfolders;
    ProgressFoot* m_progress;
};

}  // namespace Quorbel
