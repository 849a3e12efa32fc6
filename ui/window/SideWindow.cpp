#include "ui/window/SideWindow.h"

#include <QKeyEvent>

namespace Quorbel {

SideWindow::SideWindow(const QString& title, QWidget* parent)
    : QWidget(parent)
{
    setWindowTitle(title);
}

void SideWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Close))
        close();
    else
        QWidget::keyPressEvent(event);
}

}  // namespace Quorbel
