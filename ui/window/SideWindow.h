// A window beside the main one: the help, the settings. Thread: the main thread. Knows nothing of what it shows.
#pragma once

#include <QWidget>

namespace Quorbel {

/// Closes with Escape and with the desktop's key for closing.
class SideWindow : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SideWindow)

public:
    explicit SideWindow(const QString& title, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace Quorbel
