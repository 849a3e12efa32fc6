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
#include "app/shell/RecentsMenu.h"
#include "app/shell/TemplatesMenu.h"
#include "app/shell/TextCommands.h"
#include "core/language/Texts.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/ThemedMenuBar.h"
#include "ui/sheets/ShortcutsSheet.h"
#include "ui/window/ContentView.h"
#include "ui/window/Shortcuts.h"
#include "ui/window/WindowBar.h"

#include <QRegularExpression>

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

// The text, chosen by the same letter as the command that it says more of; where it has no such letter, by none.
QString withKeyOf(const QString& command, const QString& text)
{
    // Scripts without Latin letters have it behind the text: "保存(&S)".
    static const QRegularExpression behind(u"\\(&.\\)"_s);
    if (const auto key = behind.match(command); key.hasMatch())
        return text + key.captured();
    const qsizetype mark = command.indexOf(u'&');
    const qsizetype at = mark < 0 ? -1 : text.indexOf(command.at(mark + 1), 0, Qt::CaseInsensitive);
    return at < 0 ? text : text.left(at) + u'&' + text.mid(at);
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

ThemedMenu* Menus::addMenu(const QString& english)
{
    auto* menu = new ThemedMenu(Texts::shown(english), m_content.bar()->menuBar());
    Shortcuts::name(*menu->menuAction(), english);
    m_content.bar()->menuBar()->addMenu(menu);
    return menu;
}

void Menus::addFileMenu(const MenuCommands& commands)
{
    //: A menu: what concerns files and the program.
    ThemedMenu* menu = addMenu(Texts::mark("&File"));
    Shortcuts::addCommand(*menu, Texts::mark("&Open…"), keysFor(QKeySequence::Open, Qt::CTRL | Qt::Key_O),
        [this] { m_model.openPanel(); });
    Shortcuts::addCommand(*menu, Texts::mark("Open with Su&bfolders…"), { Qt::CTRL | Qt::SHIFT | Qt::Key_O },
        [this] { m_model.openPanelWithSubfolders(); });
    new RecentsMenu(m_model, menu);
    menu->addSeparator();
    m_save = Shortcuts::addCommand(*menu, Texts::mark("&Save"), keysFor(QKeySequence::Save, Qt::CTRL | Qt::Key_S),
        [this] { m_model.requestSave(); });
    m_hands->addToFile(menu);
    m_rename =
        Shortcuts::addCommand(*menu, Texts::mark("Re&name…"), { Qt::Key_F2 }, [this] { m_model.setRenameOpen(true); });
    m_renamePhotos = Shortcuts::addCommand(
        *menu, Texts::mark("Rename P&hotos…"), { Qt::SHIFT | Qt::Key_F2 }, [this] { m_model.renaming().open(); });
    addMoves(menu);
    menu->addSeparator();
    m_refresh = Shortcuts::addCommand(*menu, Texts::mark("Re&fresh"),
        keysFor(QKeySequence::Refresh, Qt::CTRL | Qt::Key_R), [this] { m_model.refresh(); });
    m_close = Shortcuts::addCommand(*menu, Texts::mark("&Close Folder"),
        keysFor(QKeySequence::Close, Qt::CTRL | Qt::Key_W), [this] { m_model.requestClose(); });
    menu->addSeparator();
    Shortcuts::addCommand(*menu, Texts::mark("Se&ttings…"),
        keysFor(QKeySequence::Preferences, Qt::CTRL | Qt::Key_Comma), commands.openSettings);
    menu->addSeparator();
    Shortcuts::addCommand(*menu, Texts::mark("&Quit"), keysFor(QKeySequence::Quit, Qt::CTRL | Qt::Key_Q),
        [this] { m_model.requestQuit(); });
}

void Menus::addMoves(ThemedMenu* menu)
{
    MovingOver& moving = m_model.movingOver();
    m_intoPhotos = Shortcuts::addCommand(
        *menu, Texts::mark("Write Sidecars &Into Photos…"), {}, [&moving] { moving.request(MoveWay::intoPhotos); });
    m_intoSidecars = Shortcuts::addCommand(
        *menu, Texts::mark("Write &Metadata Into Sidecars…"), {}, [&moving] { moving.request(MoveWay::intoSidecars); });
}

void Menus::addEditMenu()
{
    //: A menu: what changes photos and texts.
    ThemedMenu* menu = addMenu(Texts::mark("&Edit"));
    TextCommands::addHistory(*menu);
    m_undoSave = Shortcuts::addCommand(*menu, Texts::mark("Undo Sa&ve"), {}, [this] { m_model.undoSave(); });
    m_undoRename = Shortcuts::addCommand(*menu, Texts::mark("Und&o Rename"), {}, [this] { m_model.renaming().undo(); });
    m_bringBack = menu->addThemedMenu(Texts::tr("&Bring Back Edits"));
    connect(&m_model, &AppModel::leftEditsChanged, this, &Menus::fillBringBack);
    fillBringBack();
    menu->addSeparator();
    TextCommands::addClipboard(*menu);
    addFieldCommands(menu);
    menu->addSeparator();
    new TemplatesMenu(m_model, menu);
    m_hands->addToEdit(menu);
    menu->addSeparator();
    Shortcuts::addCommand(
        *menu, Texts::mark("Select &All"), keysFor(QKeySequence::SelectAll, Qt::CTRL | Qt::Key_A), [this] {
            if (!TextCommands::selectAll())
                m_model.selectAllPhotos();
        });
    //: A verb.
    m_find = Shortcuts::addCommand(*menu, Texts::mark("&Search"), keysFor(QKeySequence::Find, Qt::CTRL | Qt::Key_F),
        [this] { m_content.focusSearch(); });
    menu->addSeparator();
    new QuickKeywordsMenu(m_model.quickKeywords(), menu);
    m_shiftTime =
        Shortcuts::addCommand(*menu, Texts::mark("S&hift Time…"), {}, [this] { m_model.timeShifting().request(); });
    //: Them: the places of a photo that should hold the same.
    m_agree = Shortcuts::addCommand(*menu, Texts::mark("Make Them A&gree"), {}, [this] { m_model.requestMakeAgree(); });
}

void Menus::addFieldCommands(ThemedMenu* menu)
{
    m_copyFields = Shortcuts::addCommand(
        *menu, Texts::mark("Copy Fi&elds"), { Qt::CTRL | Qt::SHIFT | Qt::Key_C }, [this] { m_model.pasting().copy(); });
    m_pasteFields = Shortcuts::addCommand(*menu, Texts::mark("Paste Fiel&ds…"), { Qt::CTRL | Qt::SHIFT | Qt::Key_V },
        [this] { m_model.pasting().ask(); });
    m_pasteAgain = Shortcuts::addCommand(*menu, Texts::mark("Paste Fields Aga&in"), { Qt::CTRL | Qt::ALT | Qt::Key_V },
        [this] { m_model.pasting().pasteAgain(); });
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
    //: A menu: what is on screen.
    ThemedMenu* menu = addMenu(Texts::mark("&View"));
    m_hands->addToView(menu);
    menu->addSeparator();
    m_preview = Shortcuts::addCommand(*menu, Texts::mark("Show &preview"), { Qt::CTRL | Qt::SHIFT | Qt::Key_P },
        [this] { m_content.togglePreview(); });
    m_disagreements = menu->addAction(QString());
    Shortcuts::name(*m_disagreements, Texts::mark("Show &Disagreements"));
    m_disagreements->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_D);
    m_disagreements->setCheckable(true);
    connect(m_disagreements, &QAction::triggered, &m_model,
        [this](bool on) { m_model.filtering().setOn(PhotoTrait::disagreement, on); });
    QAction* names = menu->addAction(Texts::tr("Show &namespace details"));
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
    m_readAgain = Shortcuts::addCommand(
        *menu, Texts::mark("Read &Again"), { Qt::SHIFT | Qt::Key_F5 }, [this] { m_model.readAgain(); });
}

// The tick follows once what is unsaved was saved or left, or not at all.
void Menus::addPairing(ThemedMenu* menu)
{
    QAction* pairs = menu->addAction(Texts::tr("Pair Raw and &JPEG"));
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
    m_nextGap = Shortcuts::addCommand(
        *menu, Texts::mark("Next &Gap"), { Qt::Key_F8 }, [&filtering] { filtering.goToGap(Filtering::Way::next); });
    m_previousGap = Shortcuts::addCommand(*menu, Texts::mark("Previo&us Gap"), { Qt::SHIFT | Qt::Key_F8 },
        [&filtering] { filtering.goToGap(Filtering::Way::previous); });
    m_clearFilters = Shortcuts::addCommand(*menu, Texts::mark("Clear &Filters"), { Qt::CTRL | Qt::SHIFT | Qt::Key_F },
        [&filtering] { filtering.clear(); });
}

void Menus::addHelpMenu(const MenuCommands& commands)
{
    ThemedMenu* menu = addMenu(Texts::mark("&Help"));
    Shortcuts::addCommand(
        *menu, Texts::mark("Quorbel &Help"), keysFor(QKeySequence::HelpContents, Qt::Key_F1), commands.openHelp);
    Shortcuts::addCommand(
        *menu, Texts::mark("&Keyboard Shortcuts"), { Qt::CTRL | Qt::Key_F1 }, [this] { showShortcuts(); });
    menu->addSeparator();
    if (commands.checkForUpdates)
        Shortcuts::addCommand(*menu, Texts::mark("Check for &Updates…"), {}, commands.checkForUpdates);
    Shortcuts::addCommand(*menu, Texts::mark("&About Quorbel"), {}, commands.showAbout);
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
    m_save->setText(
        m_model.isBatch() ? Texts::tr("&Apply to %n", "photos", m_model.selection().size()) : Texts::tr("&Save"));
    m_undoSave->setEnabled(m_model.canUndoSave());
    m_undoSave->setText(withKeyOf(Texts::tr("Undo Sa&ve"), ThemedMenu::literal(m_model.undoSaveText())));
    m_rename->setEnabled(m_model.canRename());
    m_renamePhotos->setEnabled(m_model.renaming().canOpen());
    m_undoRename->setEnabled(m_model.renaming().canUndo());
    m_undoRename->setText(withKeyOf(Texts::tr("Und&o Rename"), ThemedMenu::literal(m_model.renaming().undoText())));
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
    Shortcuts::name(*m_preview, m_content.previewShown() ? Texts::mark("Hide &preview") : Texts::mark("Show &preview"));
}

}  // namespace Quorbel
