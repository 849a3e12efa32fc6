#include "app/shell/Menus.h"

#include "app/model/AppModel.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/ThemedMenuBar.h"
#include "ui/window/ContentView.h"
#include "ui/window/WindowBar.h"

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>

namespace Quorbel {

namespace {

/// The platform's keys for a command, and ours where the platform has none.
QList<QKeySequence> keysFor(QKeySequence::StandardKey key, const QKeySequence& ours)
{
    QList<QKeySequence> keys = QKeySequence::keyBindings(key);
    if (!keys.contains(ours))
        keys.prepend(ours);
    return keys;
}

bool isTextEditor(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget);
}

bool hasSelectedText(const QWidget& widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->hasSelectedText();
    const auto* area = qobject_cast<const QPlainTextEdit*>(&widget);
    return area && area->textCursor().hasSelection();
}

bool canUndo(const QWidget& widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->isUndoAvailable();
    const auto* area = qobject_cast<const QPlainTextEdit*>(&widget);
    return area && area->document()->isUndoAvailable();
}

bool canRedo(const QWidget& widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->isRedoAvailable();
    const auto* area = qobject_cast<const QPlainTextEdit*>(&widget);
    return area && area->document()->isRedoAvailable();
}

bool canPaste(const QWidget&)
{
    const QMimeData* data = QApplication::clipboard()->mimeData();
    return data && data->hasText();
}

/// A path as people write it: their home is "~".
QString shownPath(const QUrl& url)
{
    const QString path = url.toLocalFile();
    const QString home = QDir::homePath();
    return path.startsWith(home + QLatin1Char('/')) ? QLatin1Char('~') + path.mid(home.size()) : path;
}

/// Menus take "&" for the mark of a mnemonic.
QString literal(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

Menus::Menus(AppModel& model, ContentView& content, const MenuCommands& commands)
    : QObject(&content)
    , m_model(model)
    , m_content(content)
{
    addFileMenu(commands);
    addEditMenu();
    addViewMenu();
    addHelpMenu(commands);
    for (const auto change : { &AppModel::recordsChanged, &AppModel::selectionChanged, &AppModel::folderURLChanged,
             &AppModel::isSavingChanged, &AppModel::isWorkingChanged, &AppModel::editedSingleChanged,
             &AppModel::batchIncludeChanged, &AppModel::batchListsChanged, &AppModel::batchValuesChanged,
             &AppModel::batchCustomsChanged, &AppModel::renamePatternChanged, &AppModel::canUndoSaveChanged })
        connect(&model, change, this, &Menus::followState);
    connect(&content, &ContentView::previewShownChanged, this, &Menus::followState);
    followState();
}

ThemedMenu* Menus::addMenu(const QString& title)
{
    auto* menu = new ThemedMenu(title, m_content.bar()->menuBar());
    m_content.bar()->menuBar()->addMenu(menu);
    return menu;
}

QAction* Menus::add(QMenu* menu, const QString& text, const QList<QKeySequence>& keys, std::function<void()> run)
{
    QAction* action = menu->addAction(text);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, [run = std::move(run)] { run(); });
    return action;
}

void Menus::addFileMenu(const MenuCommands& commands)
{
    ThemedMenu* menu = addMenu(QStringLiteral("&File"));
    add(menu, QStringLiteral("&Open…"), keysFor(QKeySequence::Open, Qt::CTRL | Qt::Key_O),
        [this] { m_model.openPanel(); });
    m_recents = menu->addThemedMenu(QStringLiteral("Open &Recent"));
    connect(m_recents, &QMenu::aboutToShow, this, &Menus::fillRecents);
    connect(&m_model, &AppModel::recentPathsChanged, this, &Menus::fillRecents);
    fillRecents();
    menu->addSeparator();
    m_save = add(menu, QStringLiteral("&Save"), keysFor(QKeySequence::Save, Qt::CTRL | Qt::Key_S),
        [this] { m_model.requestSave(); });
    m_rename = add(menu, QStringLiteral("Re&name…"), { Qt::Key_F2 }, [this] { m_model.setRenameOpen(true); });
    menu->addSeparator();
    m_refresh = add(menu, QStringLiteral("Re&fresh"), keysFor(QKeySequence::Refresh, Qt::CTRL | Qt::Key_R),
        [this] { m_model.refresh(); });
    m_close = add(menu, QStringLiteral("&Close Folder"), keysFor(QKeySequence::Close, Qt::CTRL | Qt::Key_W),
        [this] { m_model.requestClose(); });
    menu->addSeparator();
    add(menu, QStringLiteral("Se&ttings…"), keysFor(QKeySequence::Preferences, Qt::CTRL | Qt::Key_Comma),
        commands.openSettings);
    menu->addSeparator();
    add(menu, QStringLiteral("&Quit"), keysFor(QKeySequence::Quit, Qt::CTRL | Qt::Key_Q),
        [this] { m_model.requestQuit(); });
}

void Menus::fillRecents()
{
    m_recents->clear();
    const QList<QUrl> urls = m_model.recentURLs();
    for (const QUrl& url : urls)
        add(m_recents, literal(shownPath(url)), {}, [this, url] { m_model.openRecent(url); });
    m_recents->addSeparator();
    add(m_recents, QStringLiteral("Clear Menu"), {}, [this] { m_model.clearRecents(); });
    m_recents->menuAction()->setEnabled(!urls.isEmpty());
}

void Menus::addEditMenu()
{
    ThemedMenu* menu = addMenu(QStringLiteral("&Edit"));
    addEditing(menu, QStringLiteral("&Undo"), QKeySequence::Undo, "undo", canUndo);
    addEditing(menu, QStringLiteral("&Redo"), QKeySequence::Redo, "redo", canRedo);
    m_undoSave = add(menu, QStringLiteral("Undo Sa&ve"), {}, [this] { m_model.undoSave(); });
    menu->addSeparator();
    addEditing(menu, QStringLiteral("Cu&t"), QKeySequence::Cut, "cut", hasSelectedText);
    addEditing(menu, QStringLiteral("&Copy"), QKeySequence::Copy, "copy", hasSelectedText);
    addEditing(menu, QStringLiteral("&Paste"), QKeySequence::Paste, "paste", canPaste);
    menu->addSeparator();
    add(menu, QStringLiteral("Select &All"), keysFor(QKeySequence::SelectAll, Qt::CTRL | Qt::Key_A), [this] {
        QWidget* focus = QApplication::focusWidget();
        if (isTextEditor(focus))
            QMetaObject::invokeMethod(focus, "selectAll");
        else
            m_model.selectAllPhotos();
    });
    m_find = add(menu, QStringLiteral("&Search"), keysFor(QKeySequence::Find, Qt::CTRL | Qt::Key_F),
        [this] { m_content.focusSearch(); });
}

/// A command for the text field that has the focus. Fields take its keys themselves; the action shows them and
/// serves the mouse. Asked whether it is possible when the menu opens.
void Menus::addEditing(QMenu* menu, const QString& text, QKeySequence::StandardKey key, const char* slot,
    const std::function<bool(const QWidget&)>& possible)
{
    QAction* action = add(menu, text, QKeySequence::keyBindings(key).mid(0, 1), [slot] {
        if (QWidget* focus = QApplication::focusWidget(); isTextEditor(focus))
            QMetaObject::invokeMethod(focus, slot);
    });
    connect(menu, &QMenu::aboutToShow, action, [action, possible] {
        const QWidget* focus = QApplication::focusWidget();
        action->setEnabled(isTextEditor(focus) && possible(*focus));
    });
    // A disabled action would keep its keys from working once the menu is closed.
    connect(
        menu, &QMenu::aboutToHide, action, [action] { action->setEnabled(true); }, Qt::QueuedConnection);
}

void Menus::addViewMenu()
{
    ThemedMenu* menu = addMenu(QStringLiteral("&View"));
    m_preview = add(menu, QStringLiteral("Show preview"), { Qt::CTRL | Qt::SHIFT | Qt::Key_P },
        [this] { m_content.togglePreview(); });
    QAction* names = menu->addAction(QStringLiteral("Show &namespace details"));
    names->setCheckable(true);
    names->setChecked(m_model.showNamespace());
    connect(names, &QAction::toggled, &m_model, &AppModel::setShowNamespace);
    connect(&m_model, &AppModel::showNamespaceChanged, names,
        [this, names] { names->setChecked(m_model.showNamespace()); });
}

void Menus::addHelpMenu(const MenuCommands& commands)
{
    ThemedMenu* menu = addMenu(QStringLiteral("&Help"));
    add(menu, QStringLiteral("Quorbel &Help"), keysFor(QKeySequence::HelpContents, Qt::Key_F1), commands.openHelp);
    menu->addSeparator();
    if (commands.checkForUpdates)
        add(menu, QStringLiteral("Check for &Updates…"), {}, commands.checkForUpdates);
    add(menu, QStringLiteral("&About Quorbel"), {}, commands.showAbout);
}

void Menus::followState()
{
    const bool any = !m_model.records().isEmpty();
    m_save->setEnabled(m_model.unsavedCount() >= 1);
    m_save->setText(
        m_model.isBatch() ? QStringLiteral("&Apply to %1").arg(m_model.selection().size()) : QStringLiteral("&Save"));
    m_undoSave->setEnabled(m_model.canUndoSave());
    m_rename->setEnabled(m_model.canRename());
    m_refresh->setEnabled(m_model.canRefresh());
    m_close->setEnabled(any);
    m_find->setEnabled(any);
    m_preview->setEnabled(any);
    m_preview->setText(m_content.previewShown() ? QStringLiteral("Hide &preview") : QStringLiteral("Show &preview"));
}

}  // namespace Quorbel
