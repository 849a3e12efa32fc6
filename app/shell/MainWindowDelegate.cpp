#include "app/shell/MainWindowDelegate.h"

#include "app/model/AppModel.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/sheets/Sheet.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMainWindow>
#include <QScreen>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize{ 1240, 800 };  // points

QString geometryKey()
{
    return u"windowGeometry"_s;
}

}  // namespace

MainWindowDelegate::MainWindowDelegate(AppModel& model, QMainWindow& window, SheetHost& sheets)
    : QObject(&window)
    , m_model(model)
    , m_window(window)
    , m_sheets(sheets)
{
    window.installEventFilter(this);
}

void MainWindowDelegate::restoreGeometry()
{
    if (m_window.restoreGeometry(m_model.preferences().store().value(geometryKey()).toByteArray()))
        return;
    const QSize screen = m_window.screen() ? m_window.screen()->availableSize() : usualSize;
    const QSize wanted(px(usualSize.width()), px(usualSize.height()));
    m_window.resize(wanted.boundedTo(screen * 9 / 10).expandedTo(m_window.minimumSize()));
}

void MainWindowDelegate::quit()
{
    m_model.preferences().store().setValue(geometryKey(), m_window.saveGeometry());
    m_quitting = true;
    QApplication::quit();
}

bool MainWindowDelegate::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide || event->type() == QEvent::WindowStateChange)
        m_model.setOnScreen(m_window.isVisible() && !m_window.isMinimized());
    if (event->type() != QEvent::Close || m_quitting)
        return QObject::eventFilter(watched, event);
    // Closing the window ends the program, by way of the model, which asks about unsaved edits first.
    event->ignore();
    if (SheetBody* sheet = m_sheets.current())
        sheet->cancel();
    m_model.requestQuit();
    return true;
}

}  // namespace Quorbel
