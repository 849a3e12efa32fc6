// What the program puts around the content: menus and keys, closing, settings, help, files from a command line.
#include "app/model/words/CodeReplacements.h"
#include "app/model/words/FieldPasting.h"
#include "app/model/words/QuickKeywords.h"
#include "app/shell/AppDelegate.h"
#include "app/shell/MainWindowDelegate.h"
#include "app/shell/Menus.h"
#include "app/shell/OpenPanel.h"
#include "app/shell/SessionEnd.h"
#include "app/shell/TerminationSignals.h"
#include "tests/ui/window/WindowFixture.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/ThemedMenuBar.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/pickers/SegmentedPicker.h"
#include "ui/sheets/MessageSheet.h"
#include "ui/sidebar/DisagreementsBar.h"
#include "ui/sidebar/NothingListed.h"
#include "ui/sidebar/SidebarList.h"
#include "ui/window/HelpView.h"
#include "ui/window/SettingsView.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <csignal>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

class tst_Shell : public QObject {
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void shortcuts();
    void renameFollowsItsCauses();
    void selectAllIsTheFieldsFirst();
    void fieldsAreCopiedFromWithinAText();
    void recentItems();
    void editsAreBroughtBack();
    void pairsFromTheMenu();
    void photosThatDisagreeAreListed();
    void signalsKeepEdits_data();
    void signalsKeepEdits();
    void endOfTheSession_data();
    void endOfTheSession();
    void menusRestUnderASheet();
    void closingAsksAboutUnsavedEdits();
    void geometryIsRemembered();
    void nobodyLooksForAHiddenWindow();
    void filesFromACommandLine_data();
    void filesFromACommandLine();
    void settingsShowAndWritePreferences();
    void settingsOfRawFiles();
    void settingsTellOfCodes();
    void onlySecureAddressesOfAPlaceServiceAreKept();
    void helpNamesThisPlatformsKeys();
    void noticesAnswer();
    void openPanelTakesFoldersAndFiles();

private:
    static QAction* action(const WindowFixture& fixture, const QString& text)
    {
        for (auto* action : fixture.window->findChildren<QAction*>())
            if (action->text().remove(QLatin1Char('&')) == text)
                return action;
        return nullptr;
    }
};

void tst_Shell::shortcuts()
{
    WindowFixture fixture;
    int help = 0;
    new Menus(*fixture.model.model, *fixture.content, { .openSettings = {}, .openHelp = [&] { ++help; } });
    fixture.open({ u"a.jpg"_s, u"b.jpg"_s });
    fixture.show();
    QWidget* window = fixture.window.get();
    QVERIFY(!action(fixture, u"Save"_s)->isEnabled());
    fixture.model->setSingle(u"title"_s, u"New"_s);
    QuickKeywords& quick = fixture.model->quickKeywords();
    quick.beginNew();
    quick.store({ u"Race day"_s, { u"start"_s, u"finish"_s } });
    QTRY_VERIFY(action(fixture, u"finish"_s));
    QTest::keyClick(window, Qt::Key_2, Qt::AltModifier);
    QCOMPARE(fixture.model->draftLists().value(u"keywords"_s), QStringList{ u"finish"_s });
    QTest::keyClick(window, Qt::Key_S, Qt::ControlModifier);
    QVERIFY(fixture.model->saveOpen());
    fixture.model->discardSaveDialog();
    QTest::keyClick(window, Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(fixture.panels, 1);
    QTest::keyClick(window, Qt::Key_F1);
    QCOMPARE(help, 1);
    QVERIFY(action(fixture, u"Refresh"_s)->isEnabled());
    // What another program wrote is seen after Ctrl+R at the latest.
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=Elsewhere"_s, fixture.model.folder.path(u"a.jpg"_s) });
    QTest::keyClick(window, Qt::Key_R, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(fixture.model->draftValues().value(u"title"_s), u"Elsewhere"_s, 30'000);
    QVERIFY(action(fixture, u"Read Again"_s)->isEnabled());
    const QSignalSpy working(fixture.model.model.get(), &AppModel::isWorkingChanged);
    QTest::keyClick(window, Qt::Key_F5, Qt::ShiftModifier);
    QVERIFY(fixture.model->isWorking() || !working.isEmpty());
    QTRY_VERIFY_WITH_TIMEOUT(!fixture.model->isWorking(), 30'000);
    QTest::keyClick(window, Qt::Key_W, Qt::ControlModifier);
    QVERIFY(fixture.model->records().isEmpty());
    QVERIFY(!action(fixture, u"Refresh"_s)->isEnabled());
    QVERIFY(!action(fixture, u"Read Again"_s)->isEnabled());
    QVERIFY(!action(fixture, u"Check for Updates…"_s));  // no feed in this build
}

// F2 and the menu say the same as the model, whatever it was that changed its mind.
void tst_Shell::renameFollowsItsCauses()
{
    WindowFixture fixture;
    new Menus(*fixture.model.model, *fixture.content, { .openSettings = {}, .openHelp = {} });
    fixture.open({ u"a.jpg"_s, u"b.jpg"_s });
    fixture.show();
    AppModel& model = *fixture.model.model;
    const auto isEnabled = [&] { return action(fixture, u"Rename…"_s)->isEnabled(); };
    // Another program takes the photo's title away, and gives it another one.
    for (const QString& title : { QString(), u"There"_s, QString() }) {
        exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title="_s + title, fixture.model.folder.path(u"a.jpg"_s) });
        QTRY_COMPARE_WITH_TIMEOUT(model.draftValues().value(u"title"_s), title, 30'000);
        QCOMPARE(isEnabled(), !title.isEmpty());
    }
    model.setSingle(u"creator"_s, u"Ana"_s);
    QVERIFY(isEnabled());
    model.setSingle(u"creator"_s, QString());
    QVERIFY(!isEnabled());
    model.setSingle(u"place"_s, u"Bern"_s);
    model.selectAllPhotos();
    QVERIFY(!isEnabled());
    fixture.model.click(u"a.jpg"_s);
    model.setSingle(u"place"_s, u"Bern"_s);
    QVERIFY(isEnabled());
    QTest::keyClick(fixture.window.get(), Qt::Key_F2);
    QVERIFY(model.renameOpen());
    model.closeFolder();
    QVERIFY(!isEnabled());
}

void tst_Shell::selectAllIsTheFieldsFirst()
{
    WindowFixture fixture;
    new Menus(*fixture.model.model, *fixture.content, {});
    fixture.open({ u"a.jpg"_s, u"b.jpg"_s });
    fixture.show();
    auto* field = fixture.window->findChild<QLineEdit*>(u"field"_s);
    field->setText(u"words"_s);
    field->setFocus();
    field->deselect();
    action(fixture, u"Select All"_s)->trigger();
    QCOMPARE(field->selectedText(), u"words"_s);
    QCOMPARE(fixture.model->selection().size(), 1);
    action(fixture, u"Cut"_s)->trigger();
    QVERIFY(field->text().isEmpty());
    action(fixture, u"Undo"_s)->trigger();
    QCOMPARE(field->text(), u"words"_s);
    fixture.window->findChild<SidebarList*>()->setFocus();
    QTest::keyClick(fixture.window->focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(fixture.model->selection().size(), 2);
}

// The keys are ours, although a text knows a plain paste of its own.
void tst_Shell::fieldsAreCopiedFromWithinAText()
{
    WindowFixture fixture;
    new Menus(*fixture.model.model, *fixture.content, {});
    fixture.show();
    QVERIFY(!action(fixture, u"Copy Fields"_s)->isEnabled() && !action(fixture, u"Paste Fields…"_s)->isEnabled());
    fixture.open({ u"a.jpg"_s, u"b.jpg"_s });
    auto* line = fixture.window->findChild<QLineEdit*>(u"field"_s);
    auto* area = new QBTextArea(fixture.inspector);
    auto* ours = new QBTextField(fixture.inspector);
    for (QWidget* widget : QList<QWidget*>{ area, ours }) {
        widget->move(0, widget == area ? 60 : 30);
        widget->show();
    }
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers more) {
        QTest::keyClick(fixture.window->focusWidget(), key, Qt::ControlModifier | more);
    };
    for (QWidget* widget : QList<QWidget*>{ line, ours, area, fixture.window->findChild<SidebarList*>() }) {
        QCOMPARE(fixture.model.primary(), u"a.jpg"_s);
        widget->setFocus();
        QApplication::clipboard()->clear();
        press(Qt::Key_C, Qt::ShiftModifier);
        QVERIFY2(QApplication::clipboard()->text().contains(u"a.jpg"_s), widget->metaObject()->className());
        fixture.model.click(u"b.jpg"_s);
        widget->setFocus();
        press(Qt::Key_V, Qt::ShiftModifier);
        QVERIFY(fixture.model->pasting().isOpen());
        fixture.model->pasting().close();
        press(Qt::Key_V, Qt::AltModifier);
        QCOMPARE(fixture.model->draftValues().value(u"title"_s), u"a.jpg"_s);
        fixture.model.click(u"a.jpg"_s);
        fixture.model->discardSaveDialog();
    }
    QVERIFY(line->text().isEmpty() && ours->text().isEmpty() && area->text().isEmpty());
}

void tst_Shell::recentItems()
{
    WindowFixture fixture;
    new Menus(*fixture.model.model, *fixture.content, {});
    fixture.show();
    QMenu* recents = action(fixture, u"Open Recent"_s)->menu<QMenu*>();
    QVERIFY(!recents->menuAction()->isEnabled());
    fixture.open({ u"a & b.jpg"_s });
    const QUrl photo = fixture.model.url(u"a & b.jpg"_s);
    QVERIFY(fixture.model.load({ photo }));
    QCOMPARE(recents->actions().first()->text().replace(QLatin1String("&&"), QLatin1String("&")), photo.toLocalFile());
    recents->actions().at(1)->trigger();
    QTRY_COMPARE(fixture.model->folderURL(), fixture.model.folderURL());
    action(fixture, u"Clear Menu"_s)->trigger();
    QVERIFY(fixture.model->preferences().recentPaths().isEmpty());
    QVERIFY(!recents->menuAction()->isEnabled());
}

void tst_Shell::editsAreBroughtBack()
{
    WindowFixture fixture;
    new Menus(*fixture.model.model, *fixture.content, {});
    fixture.open({ u"a & b.jpg"_s, u"c.jpg"_s });
    fixture.show();
    QMenu* menu = action(fixture, u"Bring Back Edits"_s)->menu<QMenu*>();
    QVERIFY(!menu->menuAction()->isEnabled());
    fixture.model->setSingle(u"title"_s, u"First"_s);
    fixture.model.click(u"c.jpg"_s);
    fixture.model->discardSaveDialog();
    fixture.model->setSingle(u"creator"_s, u"Second"_s);
    fixture.model.click(u"a & b.jpg"_s);
    fixture.model->discardSaveDialog();
    QVERIFY(menu->menuAction()->isEnabled());
    QStringList texts;
    for (const QAction* item : menu->actions())
        texts.append(item->text());
    QCOMPARE(texts, (QStringList{ u"c.jpg — Creator"_s, u"a && b.jpg — Title"_s }));
    menu->actions().at(1)->trigger();
    QCOMPARE(fixture.model->draftValues().value(u"title"_s), u"First"_s);
    QCOMPARE(menu->actions().size(), 1);
}

// The tick says what is, also while the question about edits of a pair stands.
void tst_Shell::pairsFromTheMenu()
{
    WindowFixture fixture;
    new Menus(*fixture.model.model, *fixture.content, {});
    fixture.model.folder.add(u"a.NEF"_s, tiffBytes());
    fixture.open({ u"a.jpg"_s, u"b.jpg"_s });
    fixture.show();
    auto* list = fixture.window->findChild<SidebarList*>();
    QAction* pairs = action(fixture, u"Pair Raw and JPEG"_s);
    QVERIFY(!pairs->isChecked());
    pairs->trigger();
    QVERIFY(pairs->isChecked());
    QCOMPARE(list->model()->rowCount(), 2);
    fixture.model.click(u"a.NEF"_s);
    fixture.model->setSingle(u"title"_s, u"New"_s);
    pairs->trigger();
    QVERIFY(fixture.model->saveOpen() && pairs->isChecked());
    QCOMPARE(list->model()->rowCount(), 2);
    fixture.model->discardSaveDialog();
    QVERIFY(!pairs->isChecked());
    QCOMPARE(list->model()->rowCount(), 3);
}

// From the keys, the menu and the line under the search.
void tst_Shell::photosThatDisagreeAreListed()
{
    WindowFixture fixture;
    const auto isShut = std::make_shared<std::atomic<bool>>(false);
    fixture.window.reset();
    fixture.model.lookAtDetails([isShut, service = MetadataService{ realTool() }](
                                    const QList<ImageRecord>& photos, const ReadControl& control) {
        while (*isShut && !control.stop.stop_requested())
            QThread::msleep(1);
        return service.details(photos, control);
    });
    fixture.build();
    new Menus(*fixture.model.model, *fixture.content, {});
    QAction* show = action(fixture, u"Show Disagreements"_s);
    QVERIFY(!show->isEnabled());
    fixture.model.addTitled({ u"agree.jpg"_s, u"differ.jpg"_s });
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Rights=One"_s, u"-EXIF:Copyright=Other"_s,
        fixture.model.folder.path(u"differ.jpg"_s) });
    QVERIFY(fixture.model.open());
    fixture.show();
    QWidget* window = fixture.window.get();
    auto* list = window->findChild<SidebarList*>();
    auto* bar = window->findChild<DisagreementsBar*>();
    QVERIFY(!bar->isVisible() && !show->isChecked());
    const int listTop = list->y();
    QTest::keyClick(window, Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(show->isEnabled() && show->isChecked() && bar->isVisible());
    QTRY_COMPARE_WITH_TIMEOUT(fixture.model.visible(), QStringList{ u"differ.jpg"_s }, 30'000);
    QTRY_COMPARE_WITH_TIMEOUT(labels(bar), QStringList{ u"1 photo disagrees"_s }, 30'000);
    QTRY_VERIFY(list->y() > listTop);
    fixture.model.click(u"differ.jpg"_s);
    const auto canAgree = [&] { return action(fixture, u"Make Them Agree"_s)->isEnabled(); };
    QTRY_COMPARE(canAgree(), fixture.model->canMakeAgree());
    // What another program mends is no longer listed.
    exiftool({ u"-overwrite_original"_s, u"-EXIF:Copyright=One"_s, fixture.model.folder.path(u"differ.jpg"_s) });
    fixture.model->refresh();
    QTRY_COMPARE_WITH_TIMEOUT(list->accessibleDescription(), u"All places agree"_s, 30'000);
    QTRY_COMPARE(canAgree(), fixture.model->canMakeAgree());
    QVERIFY(!fixture.button(u"Look at them"_s));
    // Photos that are opened now are looked at only when somebody asks. What was in view a moment ago would be looked
    // at unasked.
    *isShut = true;
    fixture.model->cancelDisagreements();
    fixture.model->readAgain();
    fixture.model->cancelDisagreements();
    QTRY_COMPARE_WITH_TIMEOUT(list->accessibleDescription(), u"2 photos not looked at yet"_s, 30'000);
    QTRY_VERIFY(fixture.button(u"Look at them"_s));
    QTest::mouseClick(window->findChild<NothingListed*>()->findChild<QAbstractButton*>(), Qt::LeftButton);
    QVERIFY(fixture.model->disagreements().isLooking);
    *isShut = false;
    QTRY_COMPARE_WITH_TIMEOUT(list->accessibleDescription(), u"All places agree"_s, 30'000);
    QTest::mouseClick(fixture.button(u"Show all photos"_s), Qt::LeftButton);
    QVERIFY(!show->isChecked() && !bar->isVisible());
    QCOMPARE(fixture.model.visible().size(), 2);
}

void tst_Shell::signalsKeepEdits_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
    QTest::newRow("SIGINT") << SIGINT;
}

void tst_Shell::signalsKeepEdits()
{
    QFETCH(int, signal);
    ModelFixture model;
    int quits = 0;
    model.services.quit = [&] { ++quits; };
    model.services.leftEditsPath = model.settings.filePath(u"unsaved.json"_s);
    model.services.keepInterval = std::chrono::hours(1);
    model.relaunch();
    const TerminationSignals ending([&] { model->quitKeepingEdits(); });
    model.addTitled({ u"a.jpg"_s });
    QVERIFY(model.open());
    model->setSingle(u"title"_s, u"Mine"_s);
    QVERIFY(!QFile::exists(model.services.leftEditsPath));
    QCOMPARE(::raise(signal), 0);
    QTRY_COMPARE_WITH_TIMEOUT(quits, 1, 30'000);
    const auto kept = LeftEditsList::fromJson(readFile(model.services.leftEditsPath));
    QVERIFY(kept && kept->size() == 1);
    QCOMPARE(kept->constFirst().edits.scalars.value(u"title"_s), u"Mine"_s);
}

void tst_Shell::endOfTheSession_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("mayEnd");
    QTest::newRow("save") << u"save"_s << true;
    QTest::newRow("discard") << u"discard"_s << true;
    QTest::newRow("cancel") << u"cancel"_s << false;
    QTest::newRow("nothing to ask") << QString() << true;
}

// As quitting: the question, its answer, and the end or not.
void tst_Shell::endOfTheSession()
{
    QFETCH(QString, answer);
    QFETCH(bool, mayEnd);
    ModelFixture model;
    int quits = 0;
    model.services.quit = [&] { ++quits; };
    model.relaunch();
    model.addTitled({ u"a.jpg"_s });
    QVERIFY(model.open());
    if (!answer.isEmpty())
        model->setSingle(u"title"_s, u"Mine"_s);
    connect(model.model.get(), &AppModel::saveOpenChanged, this, [&] {
        if (!model->saveOpen())
            return;
        QTimer::singleShot(0, model.model.get(), [&] { model.answerSave(answer); });
    });
    SessionEnd session(*model.model, [&] { model->requestQuit(); });
    QCOMPARE(session.ask(), mayEnd);
    QCOMPARE(quits, mayEnd ? 1 : 0);
    QCOMPARE(model.onDisk(u"a.jpg"_s, u"XMP:Title"_s).toString(), answer == u"save"_s ? u"Mine"_s : u"a.jpg"_s);
}

void tst_Shell::menusRestUnderASheet()
{
    WindowFixture fixture;
    new Menus(*fixture.model.model, *fixture.content, {});
    fixture.open({ u"a.jpg"_s, u"b.jpg"_s });
    fixture.show();
    fixture.model->setAddOpen(true);
    QTest::keyClick(fixture.window->focusWidget(), Qt::Key_O, Qt::ControlModifier);
    QTest::keyClick(fixture.window->focusWidget(), Qt::Key_W, Qt::ControlModifier);
    QCOMPARE(fixture.panels, 0);
    QCOMPARE(fixture.model->records().size(), 2);
    fixture.model->setAddOpen(false);
    QTest::keyClick(fixture.window->focusWidget(), Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(fixture.panels, 1);
}

void tst_Shell::closingAsksAboutUnsavedEdits()
{
    WindowFixture fixture;
    int quits = 0;
    fixture.window.reset();
    fixture.model.services.quit = [&] { ++quits; };
    fixture.model.relaunch();
    fixture.build();
    MainWindowDelegate delegate(*fixture.model.model, *fixture.window, *fixture.content->sheets());
    fixture.open({ u"a.jpg"_s });
    fixture.show();
    fixture.model->setSingle(u"title"_s, u"New"_s);
    fixture.window->close();
    QVERIFY(fixture.window->isVisible());
    QVERIFY(fixture.model->saveOpen());
    fixture.model->cancelSaveDialog();
    QCOMPARE(quits, 0);
    // With another sheet open, closing lets go of that one first.
    fixture.model->setAddOpen(true);
    fixture.window->close();
    QVERIFY(!fixture.model->addOpen());
    QVERIFY(fixture.model->saveOpen());
    fixture.model->discardSaveDialog();
    QCOMPARE(quits, 1);
}

void tst_Shell::geometryIsRemembered()
{
    WindowFixture fixture;
    {
        MainWindowDelegate delegate(*fixture.model.model, *fixture.window, *fixture.content->sheets());
        delegate.restoreGeometry();
        QVERIFY(fixture.window->width() >= 900 && fixture.window->height() >= 600);
        fixture.show();
        fixture.window->setGeometry(120, 90, 1010, 640);
        delegate.quit();
    }
    fixture.build();
    MainWindowDelegate delegate(*fixture.model.model, *fixture.window, *fixture.content->sheets());
    delegate.restoreGeometry();
    fixture.show();
    QCOMPARE(fixture.window->size(), QSize(1010, 640));
}

// Where the system tells of no changes, the folder is looked at while its photos can be seen.
void tst_Shell::nobodyLooksForAHiddenWindow()
{
    WindowFixture f;
    const auto looks = std::make_shared<std::atomic<int>>(0);
    f.model.services.fileSystemOf = [looks](const QString&) {
        ++*looks;
        return FileSystem{ {}, false };
    };
    f.model.services.lookInterval = std::chrono::milliseconds(50);
    f.window.reset();
    f.model.relaunch();
    f.build();
    MainWindowDelegate delegate(*f.model.model, *f.window, *f.content->sheets());
    f.show();
    f.open({ u"a.jpg"_s });
    QTRY_VERIFY(*looks > 3);
    f.window->showMinimized();
    QTest::qWait(500);
    const int before = *looks;
    QTest::qWait(500);
    QCOMPARE(int(*looks), before);
    f.window->showNormal();
    QTRY_VERIFY(*looks > before + 1);
}

void tst_Shell::filesFromACommandLine_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("path");
    const QString here = QDir::currentPath();
    QTest::newRow("absolute") << u"/p/a b.jpg"_s << u"/p/a b.jpg"_s;
    QTest::newRow("relative") << u"../x/./b.jpg"_s << QDir::cleanPath(here + u"/../x/b.jpg"_s);
    QTest::newRow("folder with a slash") << u"/p/dir/"_s << u"/p/dir"_s;
    QTest::newRow("URL") << u"file:///p/Z%C3%BCrich%20%231.jpg"_s << u"/p/Zürich #1.jpg"_s;
    QTest::newRow("name like an escape") << u"/p/a%20b.jpg"_s << u"/p/a%20b.jpg"_s;
    QTest::newRow("name with a colon") << u"a:b.jpg"_s << here + u"/a:b.jpg"_s;
}

void tst_Shell::filesFromACommandLine()
{
    QFETCH(QString, argument);
    QFETCH(QString, path);
    QCOMPARE(AppDelegate::urlsOf({ argument }).first().toLocalFile(), path);
}

void tst_Shell::settingsShowAndWritePreferences()
{
    ModelFixture model(std::nullopt);
    SettingsView view(*model.model, {});
    view.show();
    const auto named = [&](const QString& name) -> QBSwitch* {
        for (auto* toggle : view.findChildren<QBSwitch*>())
            if (toggle->accessibleName() == name)
                return toggle;
        return nullptr;
    };
    QBSwitch* backups = named(u"Back up original before writing"_s);
    QVERIFY(backups->isChecked());
    QTest::mouseClick(backups, Qt::LeftButton);
    QVERIFY(!model->preferences().backupOriginals());
    QTest::keyClick(named(u"Strip special characters"_s), Qt::Key_Space);
    QVERIFY(!model->preferences().stripSpecialChars());
    model->preferences().writeSidecar.set(true);
    QVERIFY(named(u"Also write a sidecar .xmp file"_s)->isChecked());

    auto* pattern = view.findChild<QBTextField*>();
    QCOMPARE(pattern->text(), u"%Date%_%Title%"_s);
    QTest::keyClicks(pattern, u"x"_s);
    QCOMPARE(model->preferences().renamePattern(), u"%Date%_%Title%x"_s);

    auto* appearance = view.findChild<SegmentedPicker*>();
    QCOMPARE(appearance->currentIndex(), 0);
    appearance->setFocus();
    QTest::keyClick(appearance, Qt::Key_Right);
    QCOMPARE(model->preferences().colorOverride(), ColorScheme::light);
    QTest::keyClick(appearance, Qt::Key_Right);
    QCOMPARE(model->preferences().colorOverride(), ColorScheme::dark);
    QTest::keyClick(appearance, Qt::Key_Right);
    QCOMPARE(model->preferences().colorOverride(), ColorScheme::highContrast);
    model->preferences().colorOverride.set(std::nullopt);
    QCOMPARE(appearance->currentIndex(), 0);
}

void tst_Shell::settingsOfRawFiles()
{
    ModelFixture model(std::nullopt);
    SettingsView view(*model.model, {});
    view.show();
    const auto named = [&](const QString& name) -> SegmentedPicker* {
        for (auto* picker : view.findChildren<SegmentedPicker*>())
            if (picker->accessibleName() == name)
                return picker;
        return nullptr;
    };
    const QString untouched = u"The raw file stays untouched. Other programs find the words in the sidecar."_s;
    QVERIFY(!labels(&view).contains(untouched));
    QTest::keyClick(named(u"Edits of raw photos"_s), Qt::Key_Right);
    QVERIFY(labels(&view).contains(untouched));
    QTest::keyClick(named(u"Name of new sidecars"_s), Qt::Key_Right);
    QCOMPARE(model->sidecarPolicy(), (SidecarPolicy{ true, false, SidecarNaming::full }));
    model->preferences().rawBeside.set(false);
    model->preferences().dngBeside.set(true);
    QCOMPARE(named(u"Edits of raw photos"_s)->currentIndex(), 0);
    QCOMPARE(named(u"Edits of DNG photos"_s)->currentIndex(), 1);
    // In the usual width the choices go below the name, in a wider window beside it.
    SegmentedPicker* raw = named(u"Edits of raw photos"_s);
    const auto leftOf = [&view](const QWidget* widget) { return widget->mapTo(&view, QPoint()).x(); };
    const int below = leftOf(raw);
    view.resize(view.width() + 120, view.height());
    QTRY_VERIFY(leftOf(raw) > below + 100);
}

void tst_Shell::settingsTellOfCodes()
{
    ModelFixture model(std::nullopt);
    const PhotoFolder folder;
    const QString path = folder.path(u"players.txt"_s);
    writeFile(path, "js\tJane\nab Ana\n");
    model->codes().setChooser([&path](const auto& chosen) { chosen(path); });
    SettingsView view(*model.model, {});
    view.show();
    QVERIFY(labels(&view).contains(u"No file"_s));
    QVERIFY(!button(&view, u"Clear"_s)->isEnabled());
    click(button(&view, u"Choose…"_s));
    QTRY_VERIFY(labels(&view).contains(u"1 code."_s));
    QVERIFY(labels(&view).contains(u"players.txt"_s) && labels(&view).contains(u"Line 2 has no tab: “ab Ana”"_s));
    QVERIFY(QFile::remove(path));
    QTRY_VERIFY(labels(&view).contains(u"“players.txt” is not there any more."_s));
    QVERIFY(!labels(&view).contains(u"Line 2 has no tab: “ab Ana”"_s));
    click(button(&view, u"Clear"_s));
    QVERIFY(labels(&view).contains(u"No file"_s));
    QCOMPARE(model->codes().file(), QString());
}

void tst_Shell::onlySecureAddressesOfAPlaceServiceAreKept()
{
    ModelFixture model(std::nullopt);
    SettingsView view(*model.model, {});
    auto* field = view.findChildren<QBTextField*>().last();
    QCOMPARE(field->placeholder(), u"https://…"_s);
    const auto enter = [field](const QString& text) {
        field->selectAll();
        field->insert(text);
        emit field->textEdited(field->text());
    };
    enter(u" https://places.example/api "_s);
    QCOMPARE(model->preferences().placeService(), u"https://places.example/api"_s);
    QVERIFY(field->toolTip().isEmpty());
    for (const QString& address :
        { u"http://places.example"_s, u"places.example"_s, u"file:///etc/passwd"_s, u"https://"_s }) {
        enter(address);
        QCOMPARE(model->preferences().placeService(), u"https://places.example/api"_s);
        QCOMPARE(field->text(), address);
        QVERIFY2(!field->toolTip().isEmpty(), qPrintable(address));
    }
    enter(QString());
    QVERIFY(model->preferences().placeService().isEmpty());
    QVERIFY(field->toolTip().isEmpty());
}

void tst_Shell::helpNamesThisPlatformsKeys()
{
    HelpView help;
    help.show();
    auto* topics = help.findChild<QListWidget*>();
    QStringList titles;
    QString text;
    for (int row = 0; row < topics->count(); ++row) {
        topics->setCurrentRow(row);
        const auto labels = help.findChildren<QLabel*>();
        titles.append(labels.first()->text());
        for (const auto* label : labels)
            text += label->text() + QLatin1Char('\n');
    }
    QCOMPARE(titles,
        (QStringList{ u"Getting Started"_s, u"The Interface"_s, u"Editing Metadata"_s, u"From Photo to Photo"_s,
            u"Several Languages"_s, u"Keyword Paths"_s, u"Places That Disagree"_s, u"Finding Gaps"_s,
            u"IPTC Fields & Field Sets"_s, u"Shifting Times"_s, u"Batch Editing"_s, u"Copying Fields & Codes"_s,
            u"Templates"_s, u"Renaming Files"_s, u"Saving & Backups"_s, u"Raw Files"_s, u"Settings"_s }));
    for (const QString& foreign : { u"⌘"_s, u"⇧"_s, u"Finder"_s })
        QVERIFY2(!text.contains(foreign), qPrintable(foreign));
    QVERIFY(text.contains(u"Choose File ▸ Open… (Ctrl+O), or drag photos onto the window."_s));
    QVERIFY(text.contains(u"Right-click a photo in your file manager and choose Open With ▸ Quorbel."_s));
}

void tst_Shell::noticesAnswer()
{
    WindowFixture fixture;
    fixture.show();
    SheetHost& sheets = *fixture.content->sheets();
    QList<qsizetype> answers;
    const auto ask = [&] {
        presentMessage(sheets, u"sparkles"_s, u"Quorbel 2.0 is available"_s, u"Faster."_s,
            { u"Download"_s, u"Later"_s }, [&](qsizetype button) { answers.append(button); });
    };
    ask();
    QTest::mouseClick(fixture.button(u"Later"_s), Qt::LeftButton);
    ask();
    QTest::keyClick(fixture.window->focusWidget(), Qt::Key_Escape);
    ask();
    QTest::mouseClick(fixture.button(u"Download"_s), Qt::LeftButton);
    QCOMPARE(answers, (QList<qsizetype>{ 1, 1, 0 }));
    QVERIFY(!sheets.current());
}

void tst_Shell::openPanelTakesFoldersAndFiles()
{
    PhotoFolder folder;
    folder.add(u"a.jpg"_s);
    QVERIFY(QDir(folder.path()).mkdir(u"inner"_s));
    QWidget window;
    const auto chooseOf = [&](OpenPanel::Choice choice, const std::function<void(OpenPanel&)>& use) {
        std::optional<QList<QUrl>> chosen;
        OpenPanel::open(&window, Theme::light(), choice, [&](const QList<QUrl>& urls) { chosen = urls; });
        auto* panel = window.findChild<OpenPanel*>();
        panel->setDirectory(folder.path());
        use(*panel);
        QTest::qWait(0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return chosen;
    };
    const auto typed = [](const QString& name) {
        return [name](OpenPanel& panel) {
            auto* field = panel.findChild<QLineEdit*>();
            field->setText(name);  // pasted: typing may bring up completions, which take Return for themselves
            QTest::keyClick(field, Qt::Key_Return);
        };
    };
    const auto press = [](QDialogButtonBox::StandardButton button) {
        return [button](OpenPanel& panel) {
            QTest::mouseClick(panel.findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
        };
    };
    const auto choose = [&](const auto& use) { return chooseOf(OpenPanel::Choice::any, use); };
    QCOMPARE(choose(typed(u"a.jpg"_s)), QList<QUrl>{ folder.url(u"a.jpg"_s) });
    QCOMPARE(choose(typed(folder.path(u"inner"_s))), QList<QUrl>{ folder.url(u"inner"_s) });
    QCOMPARE(choose(press(QDialogButtonBox::Open)), QList<QUrl>{ QUrl::fromLocalFile(folder.path()) });
    QCOMPARE(choose(press(QDialogButtonBox::Cancel)), QList<QUrl>{});

    const auto chooseFolder = [&](const auto& use) { return chooseOf(OpenPanel::Choice::folder, use); };
    QCOMPARE(chooseFolder(typed(u"inner"_s)), QList<QUrl>{ folder.url(u"inner"_s) });
    QCOMPARE(chooseFolder(press(QDialogButtonBox::Open)), QList<QUrl>{ QUrl::fromLocalFile(folder.path()) });
    QVERIFY(!chooseFolder(typed(folder.path(u"a.jpg"_s))));  // no folder: the panel stays
}

int main(int argc, char* argv[])
{
    return runOnLargeScreen<tst_Shell>(argc, argv);
}

#include "tst_Shell.moc"
