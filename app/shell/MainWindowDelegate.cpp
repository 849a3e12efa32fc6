#include "app/shell/MainWindowDelegate.h"

#include "app/model/AppModel.h"
#include "ui/sheets/Sheet.h"
#include "ui/window/ContentView.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMainWindow>
#include <QScreen>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize{ 1240, 800 };  // device-independent pixels

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
    m_window.setMinimumSize(ContentView::minimumWindow);
    if (m_window.restoreGeometry(m_model.preferences().store().value(geometryKey()).toByteArray()))
        return;
    const QSize screen = m_window.screen() ? m_window.screen()->availableSize() : usualSize;
    m_window.resize(usualSize.boundedTo(screen * 9 / 10).expandedTo(ContentView::minimumWindow));
}

void MainWindowDelegate::quit()
{
    m_model.preferences().store().setValue(geometryKey(), m_window.saveGeometry());
    m_quitting = true;
    QApplication::quit();
}

bool MainWindowDelegate::eventFilter(QObject* watched, QEvent* event)
{
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
