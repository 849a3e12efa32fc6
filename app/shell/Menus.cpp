#include "app/shell/Menus.h"

#include "app/model/AppModel.h"
#include "app/model/library/filter/Filtering.h"
#include "app/model/renaming/PhotosRenaming.h"
#include "app/model/templates/Templates.h"
#include "app/model/timeshift/TimeShifting.h"
#include "app/model/words/FieldPasting.h"
#include "app/model/words/QuickKeywords.h"
#include "app/shell/FieldSetMenu.h"
#include "app/shell/HandsMenu.h"
#include "core/schema/KeywordPath.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/ThemedMenuBar.h"
#include "ui/inspector/keywords/QuickSetMenu.h"
#include "ui/sheets/ShortcutsSheet.h"
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

using namespace Qt::StringLiterals;

namespace {

// The platform's keys for a command, and ours where the platform has none.
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

bool isWritable(const QWidget& widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return !line->isReadOnly();
    const auto* area = qobject_cast<const QPlainTextEdit*>(&widget);
    return area && !area->isReadOnly();
}

bool canCut(const QWidget& widget)
{
    return isWritable(widget) && hasSelectedText(widget);
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

bool canPaste(const QWidget& widget)
{
    const QMimeData* data = QApplication::clipboard()->mimeData();
    return isWritable(widget) && data && data->hasText();
}

// A path as people write it: their home is "~".
QString shownPath(const QUrl& url)
{
    const QString path = url.toLocalFile();
    const QString home = QDir::homePath();
    return path.startsWith(home + QLatin1Char('/')) ? QLatin1Char('~') + path.mid(home.size()) : path;
}

// Menus take "&" for the mark of a mnemonic.
QString literal(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

Menus::Menus(AppModel& model, ContentView& content, const MenuCommands& commands)
    : QObject(&content)
    , m_model(model)
    , m_content(content)
    , m_hands(new HandsMenu(model, content))
{
    addFileMenu(commands);
    addEditMenu();
    addViewMenu();
    addHelpMenu(commands);
    for (const auto change : { &AppModel::recordsChanged, &AppModel::selectionChanged, &AppModel::unreadSelectedChanged,
             &AppModel::folderChanged, &AppModel::isSavingChanged, &AppModel::editsChanged,
             &AppModel::canUndoSaveChanged, &AppModel::detailsChanged, &AppModel::disagreementsChanged })
        connect(&model, change, this, &Menus::followState);
    for (const auto change : { &PhotosRenaming::undoChanged, &PhotosRenaming::progressChanged })
        connect(&model.renaming(), change, this, &Menus::followState);
    connect(&model.preferences(), &Preferences::changed, this, &Menus::followState);
    connect(&model.filtering(), &Filtering::changed, this, &Menus::followState);
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
    ThemedMenu* menu = addMenu(u"&File"_s);
    add(menu, u"&Open…"_s, keysFor(QKeySequence::Open, Qt::CTRL | Qt::Key_O), [this] { m_model.openPanel(); });
    add(menu, u"Open with Su&bfolders…"_s, { Qt::CTRL | Qt::SHIFT | Qt::Key_O },
        [this] { m_model.openPanelWithSubfolders(); });
    m_recents = menu->addThemedMenu(u"Open &Recent"_s);
    connect(m_recents, &QMenu::aboutToShow, this, &Menus::fillRecents);
    connect(&m_model.preferences(), &Preferences::changed, this, &Menus::fillRecents);
    fillRecents();
    menu->addSeparator();
    m_save =
        add(menu, u"&Save"_s, keysFor(QKeySequence::Save, Qt::CTRL | Qt::Key_S), [this] { m_model.requestSave(); });
    m_hands->addToFile(menu);
    m_rename = add(menu, u"Re&name…"_s, { Qt::Key_F2 }, [this] { m_model.setRenameOpen(true); });
    m_renamePhotos = add(menu, u"Rename P&hotos…"_s, { Qt::SHIFT | Qt::Key_F2 }, [this] { m_model.renaming().open(); });
    menu->addSeparator();
    m_refresh =
        add(menu, u"Re&fresh"_s, keysFor(QKeySequence::Refresh, Qt::CTRL | Qt::Key_R), [this] { m_model.refresh(); });
    m_close = add(menu, u"&Close Folder"_s, keysFor(QKeySequence::Close, Qt::CTRL | Qt::Key_W),
        [this] { m_model.requestClose(); });
    menu->addSeparator();
    add(menu, u"Se&ttings…"_s, keysFor(QKeySequence::Preferences, Qt::CTRL | Qt::Key_Comma), commands.openSettings);
    menu->addSeparator();
    add(menu, u"&Quit"_s, keysFor(QKeySequence::Quit, Qt::CTRL | Qt::Key_Q), [this] { m_model.requestQuit(); });
}

void Menus::fillRecents()
{
    m_recents->clear();
    const QList<QUrl> urls = m_model.recentURLs();
    for (const QUrl& url : urls)
        add(m_recents, literal(shownPath(url)), {}, [this, url] { m_model.openRecent(url); });
    m_recents->addSeparator();
    add(m_recents, u"Clear Menu"_s, {}, [this] { m_model.clearRecents(); });
    m_recents->menuAction()->setEnabled(!urls.isEmpty());
}

void Menus::addEditMenu()
{
    ThemedMenu* menu = addMenu(u"&Edit"_s);
    addEditing(menu, u"&Undo"_s, QKeySequence::Undo, "undo", canUndo);
    addEditing(menu, u"&Redo"_s, QKeySequence::Redo, "redo", canRedo);
    m_undoSave = add(menu, u"Undo Sa&ve"_s, {}, [this] { m_model.undoSave(); });
    m_undoRename = add(menu, u"Und&o Rename"_s, {}, [this] { m_model.renaming().undo(); });
    m_bringBack = menu->addThemedMenu(u"&Bring Back Edits"_s);
    connect(&m_model, &AppModel::leftEditsChanged, this, &Menus::fillBringBack);
    fillBringBack();
    menu->addSeparator();
    addEditing(menu, u"Cu&t"_s, QKeySequence::Cut, "cut", canCut);
    addEditing(menu, u"&Copy"_s, QKeySequence::Copy, "copy", hasSelectedText);
    addEditing(menu, u"&Paste"_s, QKeySequence::Paste, "paste", canPaste);
    addFieldCommands(menu);
    menu->addSeparator();
    addTemplates(menu);
    m_hands->addToEdit(menu);
    menu->addSeparator();
    add(menu, u"Select &All"_s, keysFor(QKeySequence::SelectAll, Qt::CTRL | Qt::Key_A), [this] {
        QWidget* focus = QApplication::focusWidget();
        if (isTextEditor(focus))
            QMetaObject::invokeMethod(focus, "selectAll");
        else
            m_model.selectAllPhotos();
    });
    m_find =
        add(menu, u"&Search"_s, keysFor(QKeySequence::Find, Qt::CTRL | Qt::Key_F), [this] { m_content.focusSearch(); });
    menu->addSeparator();
    addQuickKeywords(menu);
    m_shiftTime = add(menu, u"S&hift Time…"_s, {}, [this] { m_model.timeShifting().request(); });
    m_agree = add(menu, u"Make Them A&gree"_s, {}, [this] { m_model.requestMakeAgree(); });
}

void Menus::addFieldCommands(QMenu* menu)
{
    m_copyFields =
        add(menu, u"Copy Fi&elds"_s, { Qt::CTRL | Qt::SHIFT | Qt::Key_C }, [this] { m_model.pasting().copy(); });
    m_pasteFields =
        add(menu, u"Paste Fiel&ds…"_s, { Qt::CTRL | Qt::SHIFT | Qt::Key_V }, [this] { m_model.pasting().ask(); });
    m_pasteAgain = add(
        menu, u"Paste Fields Aga&in"_s, { Qt::CTRL | Qt::ALT | Qt::Key_V }, [this] { m_model.pasting().pasteAgain(); });
}

void Menus::fillBringBack()
{
    m_bringBack->clear();
    const QList<LeftEdits>& left = m_model.leftEdits();
    for (int i = 0; i < int(left.size()); ++i)
        add(m_bringBack, literal(u"%1 — %2"_s.arg(left.at(i).names(), left.at(i).fields())), {},
            [this, i] { m_model.bringBack(i); });
    m_bringBack->menuAction()->setEnabled(!left.isEmpty());
}

void Menus::addTemplates(ThemedMenu* menu)
{
    m_templates = menu->addThemedMenu(u"Te&mplates"_s);
    // Outlives the others of its menu, which are made anew.
    m_saveAsTemplate = new QAction(u"Save as Template…"_s, this);
    connect(m_saveAsTemplate, &QAction::triggered, this, [this] { m_model.templates().saveAsTemplate(); });
    connect(&m_model.templates().store(), &TemplateStore::changed, this, &Menus::fillTemplates);
    connect(&m_model.templates(), &Templates::canApplyChanged, this, &Menus::followTemplates);
    fillTemplates();
}

void Menus::fillTemplates()
{
    m_templates->clear();
    for (const TemplateStore::Entry& entry : m_model.templates().store().all()) {
        QList<QKeySequence> keys;
        if (const int digit = entry.value().digit; digit > 0)
            keys.append(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_0 + digit)));
        const auto apply = [this, id = entry.id] { m_model.templates().apply(id); };
        add(m_templates, literal(entry.value().name), keys, apply)->setData(entry.id);
    }
    m_templates->addSeparator();
    m_templates->addAction(m_saveAsTemplate);
    add(m_templates, u"Templates…"_s, {}, [this] { m_model.templates().setOpen(true); });
    followTemplates();
}

void Menus::followTemplates()
{
    m_saveAsTemplate->setEnabled(m_model.templates().canSaveAsTemplate());
    for (QAction* action : m_templates->actions())
        if (action->data().isValid())
            action->setEnabled(m_model.templates().canApply());
}

void Menus::addQuickKeywords(ThemedMenu* menu)
{
    m_quick = menu->addThemedMenu(u"Quick &Keywords"_s);
    // Later: what changes them may be one of these entries.
    connect(&m_model.quickKeywords(), &QuickKeywords::changed, this, &Menus::fillQuickKeywords, Qt::QueuedConnection);
    fillQuickKeywords();
}

void Menus::fillQuickKeywords()
{
    m_quick->clear();
    QuickKeywords& quick = m_model.quickKeywords();
    const QStringList keywords = quick.keywords();
    for (int i = 0; i < int(keywords.size()); ++i) {
        const bool hasKey = i < QuickKeywords::withKeys;
        const auto path = KeywordPath::fromTyped(keywords.at(i));
        add(m_quick, literal(path ? KeywordPath::shown(*path) : keywords.at(i)),
            hasKey ? QList<QKeySequence>{ QKeyCombination(Qt::ALT, Qt::Key(Qt::Key_1 + i)) } : QList<QKeySequence>(),
            [&quick, i] { quick.give(i); });
    }
    m_quick->addSeparator();
    addQuickSets(*m_quick, quick);
}

// A command for the text field that has the focus. Fields take its keys themselves; the action shows them and
// serves the mouse. Asked whether it is possible when the menu opens.
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
    ThemedMenu* menu = addMenu(u"&View"_s);
    m_hands->addToView(menu);
    menu->addSeparator();
    m_preview =
        add(menu, u"Show preview"_s, { Qt::CTRL | Qt::SHIFT | Qt::Key_P }, [this] { m_content.togglePreview(); });
    m_disagreements = menu->addAction(u"Show &Disagreements"_s);
    m_disagreements->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_D);
    m_disagreements->setCheckable(true);
    connect(m_disagreements, &QAction::triggered, &m_model,
        [this](bool on) { m_model.filtering().setOn(PhotoTrait::disagreement, on); });
    QAction* names = menu->addAction(u"Show &namespace details"_s);
    names->setCheckable(true);
    names->setChecked(m_model.preferences().showNamespace());
    connect(names, &QAction::toggled, &m_model, [this](bool on) { m_model.preferences().showNamespace.set(on); });
    connect(&m_model.preferences(), &Preferences::changed, names,
        [this, names] { names->setChecked(m_model.preferences().showNamespace()); });
    new FieldSetMenu(m_model, menu);
    menu->addSeparator();
    addGaps(menu);
    menu->addSeparator();
    m_readAgain = add(menu, u"Read &Again"_s, { Qt::SHIFT | Qt::Key_F5 }, [this] { m_model.readAgain(); });
}

void Menus::addGaps(QMenu* menu)
{
    Filtering& filtering = m_model.filtering();
    m_nextGap = add(menu, u"Next &Gap"_s, { Qt::Key_F8 }, [&filtering] { filtering.goToGap(Filtering::Way::next); });
    m_previousGap = add(menu, u"Previo&us Gap"_s, { Qt::SHIFT | Qt::Key_F8 },
        [&filtering] { filtering.goToGap(Filtering::Way::previous); });
    m_clearFilters =
        add(menu, u"Clear &Filters"_s, { Qt::CTRL | Qt::SHIFT | Qt::Key_F }, [&filtering] { filtering.clear(); });
}

void Menus::addHelpMenu(const MenuCommands& commands)
{
    ThemedMenu* menu = addMenu(u"&Help"_s);
    add(menu, u"Quorbel &Help"_s, keysFor(QKeySequence::HelpContents, Qt::Key_F1), commands.openHelp);
    add(menu, u"&Keyboard Shortcuts"_s, { Qt::CTRL | Qt::Key_F1 }, [this] { showShortcuts(); });
    menu->addSeparator();
    if (commands.checkForUpdates)
        add(menu, u"Check for &Updates…"_s, {}, commands.checkForUpdates);
    add(menu, u"&About Quorbel"_s, {}, commands.showAbout);
}

// Of the menus as they are now.
void Menus::showShortcuts()
{
    auto* sheet = new ShortcutsSheet(Shortcuts::ofMenus(*m_content.bar()->menuBar()) + Shortcuts::inPlaces());
    connect(sheet, &ShortcutsSheet::closed, &m_content, [this, sheet] { m_content.sheets()->dismiss(sheet); });
    m_content.sheets()->present(sheet);
}

void Menus::followState()
{
    const bool any = !m_model.records().isEmpty();
    m_save->setEnabled(m_model.unsavedCount() >= 1);
    m_save->setText(m_model.isBatch() ? u"&Apply to %1"_s.arg(m_model.selection().size()) : u"&Save"_s);
    m_undoSave->setEnabled(m_model.canUndoSave());
    m_undoSave->setText(literal(m_model.undoSaveText()).replace(u"Undo Save"_s, u"Undo Sa&ve"_s));
    m_rename->setEnabled(m_model.canRename());
    m_renamePhotos->setEnabled(m_model.renaming().canOpen());
    m_undoRename->setEnabled(m_model.renaming().canUndo());
    m_undoRename->setText(literal(m_model.renaming().undoText()).replace(u"Undo Rename"_s, u"Und&o Rename"_s));
    m_refresh->setEnabled(m_model.canRefresh());
    m_close->setEnabled(any);
    m_find->setEnabled(any);
    m_readAgain->setEnabled(any);
    m_shiftTime->setEnabled(m_model.timeShifting().isPossible());
    m_agree->setEnabled(m_model.canMakeAgree());
    followTemplates();
    m_copyFields->setEnabled(m_model.pasting().canCopy());
    m_pasteFields->setEnabled(m_model.pasting().canPaste());
    m_pasteAgain->setEnabled(m_model.pasting().canPaste());
    m_disagreements->setEnabled(any);
    m_disagreements->setChecked(m_model.showsDisagreements());
    m_preview->setEnabled(any);
    m_nextGap->setEnabled(any);
    m_previousGap->setEnabled(any);
    const Filtering& filtering = m_model.filtering();
    m_clearFilters->setEnabled(filtering.isOn() || !filtering.text().isEmpty());
    m_preview->setText(m_content.previewShown() ? u"Hide &preview"_s : u"Show &preview"_s);
}

}  // namespace Quorbel
