#include "ui/window/FileDrop.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

namespace Quorbel {

namespace {

// Those items that are file URLs; other items of a mixed drop are left out.
QList<QUrl> fileUrls(const QMimeData& data)
{
    QList<QUrl> files;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            files.append(url);
    return files;
}

}  // namespace

FileDrop::FileDrop(QWidget* window)
    : QObject(window)
    , m_window(window)
{
    window->setAcceptDrops(true);
    qApp->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop:
        break;
    default:
        return false;
    }
    if (watched == m_window)
        return windowEvent(event);
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget->window() != m_window || event->type() == QEvent::DragLeave)
        return false;
    // A text field would take a file's path as text. Refused there, Qt offers the drag to the parents, up to the
    // window.
    auto* drag = static_cast<QDropEvent*>(event);
    if (!drag->mimeData()->hasUrls())
        return false;
    drag->ignore();
    return true;
}

bool FileDrop::windowEvent(QEvent* event)
{
    if (event->type() == QEvent::DragLeave) {
        emit targetedChanged(false);
        return true;
    }
    auto* drag = static_cast<QDropEvent*>(event);
    if (!m_enabled || fileUrls(*drag->mimeData()).isEmpty()) {
        drag->ignore();
        return true;
    }
    drag->setDropAction(Qt::CopyAction);
    drag->accept();
    if (event->type() == QEvent::DragEnter)
        emit targetedChanged(true);
    else if (event->type() == QEvent::Drop)
        drop(*drag);
    return true;
}

void FileDrop::drop(QDropEvent& event)
{
    emit targetedChanged(false);
    emit dropped(fileUrls(*event.mimeData()));
}

}  // namespace Quorbel
