#include "app/shell/Menus.h"

#include "app/model/AppModel.h"
#include "app/model/library/filter/Filtering.h"
#include "app/model/pairs/Pairing.h"
#include "app/model/renaming/PhotosRenaming.h"
#include "app/model/sidecars/MovingOver.h"
#include "app/model/timeshift/TimeShifting.h"
#include "app/model/words/FieldPasting.h"
#include "app/shell/FieldSetMenu.h"
#include "app/shell/HandsMenu.h"
#include "app/shell/QuickKeywordsMenu.h"
#include "app/shell/TemplatesMenu.h"
#include "app/shell/TextCommands.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/ThemedMenuBar.h"
#include "ui/sheets/ShortcutsSheet.h"
#include "ui/window/ContentView.h"
#include "ui/window/WindowBar.h"

#include <QDir>

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

// A path as people write it: their home is "~".
QString shownPath(const QUrl& url)
{
    const QString path = url.toLocalFile();
    const QString home = QDir::homePath();
    return path.startsWith(home + QLatin1Char('/')) ? QLatin1Char('~') + path.mid(home.size()) : path;
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

void Menus::addFileMenu(const MenuCommands& commands)
{
    ThemedMenu* menu = addMenu(u"&File"_s);
    menu->addCommand(u"&Open…"_s, keysFor(QKeySequence::Open, Qt::CTRL | Qt::Key_O), [this] { m_model.openPanel(); });
    menu->addCommand(u"Open with Su&bfolders…"_s, { Qt::CTRL | Qt::SHIFT | Qt::Key_O },
        [this] { m_model.openPanelWithSubfolders(); });
    m_recents = menu->addThemedMenu(u"Open &Recent"_s);
    connect(m_recents, &QMenu::aboutToShow, this, &Menus::fillRecents);
    connect(&m_model.preferences(), &Preferences::changed, this, &Menus::fillRecents);
    fillRecents();
    menu->addSeparator();
    m_save = menu->addCommand(
        u"&Save"_s, keysFor(QKeySequence::Save, Qt::CTRL | Qt::Key_S), [this] { m_model.requestSave(); });
    m_hands->addToFile(menu);
    m_rename = menu->addCommand(u"Re&name…"_s, { Qt::Key_F2 }, [this] { m_model.setRenameOpen(true); });
    m_renamePhotos =
        menu->addCommand(u"Rename P&hotos…"_s, { Qt::SHIFT | Qt::Key_F2 }, [this] { m_model.renaming().open(); });
    addMoves(menu);
    menu->addSeparator();
    m_refresh = menu->addCommand(
        u"Re&fresh"_s, keysFor(QKeySequence::Refresh, Qt::CTRL | Qt::Key_R), [this] { m_model.refresh(); });
    m_close = menu->addCommand(
        u"&Close Folder"_s, keysFor(QKeySequence::Close, Qt::CTRL | Qt::Key_W), [this] { m_model.requestClose(); });
    menu->addSeparator();
    menu->addCommand(
        u"Se&ttings…"_s, keysFor(QKeySequence::Preferences, Qt::CTRL | Qt::Key_Comma), commands.openSettings);
    menu->addSeparator();
    menu->addCommand(u"&Quit"_s, keysFor(QKeySequence::Quit, Qt::CTRL | Qt::Key_Q), [this] { m_model.requestQuit(); });
}

void Menus::addMoves(ThemedMenu* menu)
{
    MovingOver& moving = m_model.movingOver();
    m_intoPhotos =
        menu->addCommand(u"Write Sidecars &Into Photos…"_s, {}, [&moving] { moving.request(MoveWay::intoPhotos); });
    m_intoSidecars =
        menu->addCommand(u"Write &Metadata Into Sidecars…"_s, {}, [&moving] { moving.request(MoveWay::intoSidecars); });
}

void Menus::fillRecents()
{
    m_recents->clear();
    const QList<QUrl> urls = m_model.recentURLs();
    for (const QUrl& url : urls)
        m_recents->addCommand(ThemedMenu::literal(shownPath(url)), {}, [this, url] { m_model.openRecent(url); });
    m_recents->addSeparator();
    m_recents->addCommand(u"Clear Menu"_s, {}, [this] { m_model.clearRecents(); });
    m_recents->menuAction()->setEnabled(!urls.isEmpty());
}

void Menus::addEditMenu()
{
    ThemedMenu* menu = addMenu(u"&Edit"_s);
    TextCommands::addHistory(*menu);
    m_undoSave = menu->addCommand(u"Undo Sa&ve"_s, {}, [this] { m_model.undoSave(); });
    m_undoRename = menu->addCommand(u"Und&o Rename"_s, {}, [this] { m_model.renaming().undo(); });
    m_bringBack = menu->addThemedMenu(u"&Bring Back Edits"_s);
    connect(&m_model, &AppModel::leftEditsChanged, this, &Menus::fillBringBack);
    fillBringBack();
    menu->addSeparator();
    TextCommands::addClipboard(*menu);
    addFieldCommands(menu);
    menu->addSeparator();
    new TemplatesMenu(m_model, menu);
    m_hands->addToEdit(menu);
    menu->addSeparator();
    menu->addCommand(u"Select &All"_s, keysFor(QKeySequence::SelectAll, Qt::CTRL | Qt::Key_A), [this] {
        if (!TextCommands::selectAll())
            m_model.selectAllPhotos();
    });
    m_find = menu->addCommand(
        u"&Search"_s, keysFor(QKeySequence::Find, Qt::CTRL | Qt::Key_F), [this] { m_content.focusSearch(); });
    menu->addSeparator();
    new QuickKeywordsMenu(m_model.quickKeywords(), menu);
    m_shiftTime = menu->addCommand(u"S&hift Time…"_s, {}, [this] { m_model.timeShifting().request(); });
    m_agree = menu->addCommand(u"Make Them A&gree"_s, {}, [this] { m_model.requestMakeAgree(); });
}

void Menus::addFieldCommands(ThemedMenu* menu)
{
    m_copyFields =
        menu->addCommand(u"Copy Fi&elds"_s, { Qt::CTRL | Qt::SHIFT | Qt::Key_C }, [this] { m_model.pasting().copy(); });
    m_pasteFields = menu->addCommand(
        u"Paste Fiel&ds…"_s, { Qt::CTRL | Qt::SHIFT | Qt::Key_V }, [this] { m_model.pasting().ask(); });
    m_pasteAgain = menu->addCommand(
        u"Paste Fields Aga&in"_s, { Qt::CTRL | Qt::ALT | Qt::Key_V }, [this] { m_model.pasting().pasteAgain(); });
}

void Menus::fillBringBack()
{
    m_bringBack->clear();
    const QList<LeftEdits>& left = m_model.leftEdits();
    for (int i = 0; i < int(left.size()); ++i)
        m_bringBack->addCommand(ThemedMenu::literal(u"%1 — %2"_s.arg(left.at(i).names(), left.at(i).fields())), {},
            [this, i] { m_model.bringBack(i); });
    m_bringBack->menuAction()->setEnabled(!left.isEmpty());
}

void Menus::addViewMenu()
{
    ThemedMenu* menu = addMenu(u"&View"_s);
    m_hands->addToView(menu);
    menu->addSeparator();
    m_preview = menu->addCommand(
        u"Show preview"_s, { Qt::CTRL | Qt::SHIFT | Qt::Key_P }, [this] { m_content.togglePreview(); });
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
    addPairing(menu);
    new FieldSetMenu(m_model, menu);
    menu->addSeparator();
    addGaps(menu);
    menu->addSeparator();
    m_readAgain = menu->addCommand(u"Read &Again"_s, { Qt::SHIFT | Qt::Key_F5 }, [this] { m_model.readAgain(); });
}

// The tick follows once what is unsaved was saved or left, or not at all.
void Menus::addPairing(ThemedMenu* menu)
{
    QAction* pairs = menu->addAction(u"Pair Raw and &JPEG"_s);
    pairs->setCheckable(true);
    const auto tick = [this, pairs] { pairs->setChecked(m_model.pairing().isOn()); };
    connect(pairs, &QAction::triggered, &m_model, [this, tick](bool on) {
        m_model.pairing().setOn(on);
        tick();
    });
    connect(&m_model.preferences(), &Preferences::changed, pairs, tick);
    tick();
}

void Menus::addGaps(ThemedMenu* menu)
{
    Filtering& filtering = m_model.filtering();
    m_nextGap =
        menu->addCommand(u"Next &Gap"_s, { Qt::Key_F8 }, [&filtering] { filtering.goToGap(Filtering::Way::next); });
    m_previousGap = menu->addCommand(
        u"Previo&us Gap"_s, { Qt::SHIFT | Qt::Key_F8 }, [&filtering] { filtering.goToGap(Filtering::Way::previous); });
    m_clearFilters = menu->addCommand(
        u"Clear &Filters"_s, { Qt::CTRL | Qt::SHIFT | Qt::Key_F }, [&filtering] { filtering.clear(); });
}

void Menus::addHelpMenu(const MenuCommands& commands)
{
    ThemedMenu* menu = addMenu(u"&Help"_s);
    menu->addCommand(u"Quorbel &Help"_s, keysFor(QKeySequence::HelpContents, Qt::Key_F1), commands.openHelp);
    menu->addCommand(u"&Keyboard Shortcuts"_s, { Qt::CTRL | Qt::Key_F1 }, [this] { showShortcuts(); });
    menu->addSeparator();
    if (commands.checkForUpdates)
        menu->addCommand(u"Check for &Updates…"_s, {}, commands.checkForUpdates);
    menu->addCommand(u"&About Quorbel"_s, {}, commands.showAbout);
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
    m_undoSave->setText(ThemedMenu::literal(m_model.undoSaveText()).replace(u"Undo Save"_s, u"Undo Sa&ve"_s));
    m_rename->setEnabled(m_model.canRename());
    m_renamePhotos->setEnabled(m_model.renaming().canOpen());
    m_undoRename->setEnabled(m_model.renaming().canUndo());
    m_undoRename->setText(
        ThemedMenu::literal(m_model.renaming().undoText()).replace(u"Undo Rename"_s, u"Und&o Rename"_s));
    m_refresh->setEnabled(m_model.canRefresh());
    m_close->setEnabled(any);
    m_find->setEnabled(any);
    m_readAgain->setEnabled(any);
    m_shiftTime->setEnabled(m_model.timeShifting().isPossible());
    m_intoPhotos->setEnabled(m_model.movingOver().isPossible());
    m_intoSidecars->setEnabled(m_model.movingOver().isPossible());
    m_agree->setEnabled(m_model.canMakeAgree());
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
