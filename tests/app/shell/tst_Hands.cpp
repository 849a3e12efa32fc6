// Hands that stay on the keys, in the whole window: from photo to photo within a field, stars, the same as before; and
// that no key is promised twice, or in vain.
#include "app/shell/Menus.h"
#include "core/language/Languages.h"
#include "core/language/Texts.h"
#include "tests/app/model/ModelFixture.h"
#include "tests/support/OtherLanguage.h"
#include "tests/ui/UiSupport.h"
#include "tests/ui/window/WindowFixture.h"
#include "ui/closeup/CloseupLine.h"
#include "ui/closeup/CloseupView.h"
#include "ui/controls/BriefNote.h"
#include "ui/controls/RatingEditor.h"
#include "ui/controls/ThemedMenuBar.h"
#include "ui/controls/keywords/KeywordEditor.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/InspectorForm.h"
#include "ui/inspector/InspectorView.h"
#include "ui/inspector/KeptField.h"
#include "ui/sheets/SaveDialogView.h"
#include "ui/sheets/ShortcutsSheet.h"
#include "ui/sidebar/SidebarList.h"

#include <QDir>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScopeGuard>

#include <atomic>
#include <mutex>
#include <thread>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// The window with its menus and the real inspector, over photos a, b and c: "a" has all fields, "b" and "c" few.
struct HandsWindow : ModelFixture {
    HandsWindow()
    {
        services.endEditing = [] {
            QWidget* focus = QApplication::focusWidget();
            if (qobject_cast<QLineEdit*>(focus) || qobject_cast<QPlainTextEdit*>(focus))
                focus->clearFocus();
        };
        relaunch();
        static const QList<QByteArray> photos{ photo({ u"-XMP-dc:Title=One"_s, u"-XMP-dc:Description=Long"_s,
                                                   u"-XMP-iptcExt:Event=Final"_s, u"-XMP-dc:Subject=sea"_s,
                                                   u"-XMP:Rating=2"_s }),
            photo({ u"-XMP-dc:Title=Two"_s, u"-XMP-dc:Description=Longer"_s, u"-XMP:Rating=3"_s }),
            photo({ u"-XMP-dc:Title=Three"_s }) };
        QDir(folder.path()).mkdir(u"x"_s);
        for (int i = 0; i < 3; ++i)
            folder.add(QChar(u'a' + i) + u".jpg"_s, photos.at(i));
        folder.add(u"x/d.jpg"_s, photos.at(2));
    }
    static QByteArray photo(const QStringList& tags)
    {
        const PhotoFolder folder;
        const QString path = folder.add(u"x.jpg"_s).toLocalFile();
        exiftool(QStringList{ u"-overwrite_original"_s } + tags + QStringList{ path });
        return readFile(path);
    }
    // What a close look decodes: pixels that tell where they are (red and green), and in which photo (blue).
    WholePicturesOptions pictures{ .decode = [this](const QString& path, qint64, const std::stop_token& stop) {
        while (isShut && !stop.stop_requested())
            std::this_thread::yield();
        QImage image(photoSize, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                reinterpret_cast<QRgb*>(image.scanLine(y))[x] = qRgb(x % 256, y % 256, numberOf(path));
        if (outcome != DecodedImage::Outcome::decoded || stop.stop_requested())
            return DecodedImage{ .outcome = outcome };
        return DecodedImage{ outcome, image, QSize(6000, 4000), path.endsWith(u"c.jpg"_s), path.endsWith(u"b.jpg"_s) };
    } };
    static int numberOf(const QString& path) { return 40 * (path.at(path.size() - 5).unicode() - u'a'); }
    CloseupView* closeup() const { return window->findChild<CloseupView*>(); }
    bool show(bool withSubfolders = false)
    {
        window = std::make_unique<QMainWindow>();
        ContentFactories factories;
        factories.inspector = [this](QWidget* parent) {
            return inspector = new InspectorView(*model, nullptr, nullptr, nullptr, parent);
        };
        factories.keptField = [](QWidget* view) { return &static_cast<InspectorView*>(view)->keptField(); };
        factories.closeup = [this](QWidget* over) { return new CloseupView(*model, nullptr, pictures, over); };
        factories.save = [this] { return new SaveDialogView(*model); };
        content = new ContentView(*model, nullptr, scheme, window.get(), factories);
        window->setMenuWidget(content->bar());
        window->setCentralWidget(content);
        window->resize(1200, 900);
        new Menus(*model, *content, { .openSettings = [] {}, .openHelp = [] {} });
        window->show();
        window->activateWindow();
        model->load({ folderURL() }, withSubfolders);
        return QTest::qWaitForWindowActive(window.get()) && waitUntilIdle() && !model->records().isEmpty();
    }
    // At this photo, with nothing unsaved and nothing over the list, whatever was done before.
    void standAt(const QString& name)
    {
        // One that was left is gone only with the next turn of the event loop.
        if (closeup() && closeup()->isVisible())
            content->toggleCloseup();
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        click(name == u"a.jpg"_s ? u"b.jpg"_s : u"a.jpg"_s);
        model->discardSaveDialog();
        click(name);
        model->discardSaveDialog();
        QCoreApplication::processEvents();
    }
    QWidget* input(const QString& key) const
    {
        const FieldRow* row = inspector->findChild<InspectorForm*>()->row(key);
        return row ? row->input() : nullptr;
    }
    void press(int key, Qt::KeyboardModifiers modifiers) const
    {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : window.get(), Qt::Key(key), modifiers);
    }
    // What is selected in the field that has the keyboard.
    static QString selectedText()
    {
        if (const auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget()))
            return line->selectedText();
        const auto* area = qobject_cast<QPlainTextEdit*>(QApplication::focusWidget());
        return area ? area->textCursor().selectedText() : QString();
    }
    QString note() const
    {
        return window->findChild<BriefNote*>()->isVisible() ? content->window()->findChild<BriefNote*>()->text()
                                                            : QString();
    }

    static constexpr QSize photoSize{ 3000, 2000 };
    std::atomic<bool> isShut = false;
    std::atomic<DecodedImage::Outcome> outcome = DecodedImage::Outcome::decoded;
    SystemScheme scheme;
    std::unique_ptr<QMainWindow> window;
    ContentView* content = nullptr;
    InspectorView* inspector = nullptr;
};

// By the entry's text, without the marks of mnemonics.
QAction* actionOf(const QWidget& window, const QString& text)
{
    for (auto* action : window.findChildren<QAction*>())
        if (action->text().remove(u'&') == text)
            return action;
    return nullptr;
}

}  // namespace

class tst_Hands : public QObject {
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void theFieldIsKept_data();
    void theFieldIsKept();
    void theGuardComesBetween();
    void goesOn();
    void starsAndTheSameAsBefore();
    void noKeyTwice_data();
    void noKeyTwice();
    void toldKeysExist();
    void theSheetOfShortcuts();
    void shortcutsInAnotherLanguage();
    void placesOfACloseLook_data();
    void placesOfACloseLook();
    void aCloseLook();
    void aCloseLookBeforeAndWithoutAPicture();
    void onlyWhatIsLookedAtIsDecoded();
    void aPhotoThatChangedIsDecodedAgain();
    void picturesKeepWithinTheirBound();
};

void tst_Hands::theFieldIsKept_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("selected");  // of a, b and c: the text that is selected
    QTest::newRow("a text") << u"title"_s << QStringList{ u"Two"_s, u"Three"_s };
    QTest::newRow("an area") << u"description"_s << QStringList{ u"Longer"_s, QString() };
    QTest::newRow("keywords") << u"keywords"_s << QStringList{ QString(), QString() };
    QTest::newRow("stars, which are put on screen") << u"rating"_s << QStringList{ QString(), QString() };
    QTest::newRow("a field that the next photos lack") << u"event"_s << QStringList{ QString(), QString() };
}

void tst_Hands::theFieldIsKept()
{
    QFETCH(QString, key);
    QFETCH(QStringList, selected);
    HandsWindow f;
    QVERIFY(f.show());
    f.input(key)->setFocus();
    for (const QString& text : selected) {
        f.press(Qt::Key_Down, Qt::AltModifier);
        QTRY_VERIFY(f.input(key) && f.input(key)->hasFocus());
        QCOMPARE(f.selectedText(), text);
        QCOMPARE(f->unsavedCount(), 0);
    }
    QCOMPARE(f.primary(), u"c.jpg"_s);
    // At the end the field stays as it is, and takes the key for nothing else.
    f.press(Qt::Key_Down, Qt::AltModifier);
    QVERIFY(f.input(key)->hasFocus());
    QCOMPARE(f->unsavedCount(), 0);
    f.press(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(f.primary(), u"b.jpg"_s);
    QTRY_COMPARE(f.selectedText(), selected.constFirst());
    // The list keeps the keyboard where it has it.
    auto* list = f.window->findChild<SidebarList*>();
    list->setFocus();
    f.press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(f.primary(), u"c.jpg"_s);
    QVERIFY(list->hasFocus());
}

void tst_Hands::theGuardComesBetween()
{
    HandsWindow f;
    QVERIFY(f.show());
    f.input(u"title"_s)->setFocus();
    QTest::keyClicks(f.input(u"title"_s), u"!"_s);
    f.press(Qt::Key_Down, Qt::AltModifier);
    QVERIFY(f->saveOpen());
    f->cancelSaveDialog();
    QCOMPARE(f.primary(), u"a.jpg"_s);
    QTRY_VERIFY(f.input(u"title"_s)->hasFocus());
    f.press(Qt::Key_Down, Qt::AltModifier);
    QVERIFY(f->saveOpen());
    f->discardSaveDialog();
    QCOMPARE(f.primary(), u"b.jpg"_s);
    QTRY_COMPARE(f.selectedText(), u"Two"_s);
    // Who went elsewhere meanwhile is not called back.
    f.window->findChild<SidebarList*>()->setFocus();
    f.click(u"c.jpg"_s);
    QCoreApplication::processEvents();
    QVERIFY(!f.input(u"title"_s)->hasFocus());
}

void tst_Hands::goesOn()
{
    HandsWindow f;
    QVERIFY(f.show());
    f->preferences().saveDontAsk.set(true);
    f->preferences().backupOriginals.set(false);
    f.input(u"keywords"_s)->setFocus();
    QTest::keyClicks(f.input(u"keywords"_s), u"beach"_s);
    f.press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(f.primary(), u"b.jpg"_s);
    QTRY_VERIFY(f.input(u"keywords"_s)->hasFocus());
    QVERIFY(f.waitUntilIdle());
    // What was half typed went with it.
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Subject"_s).toVariant().toStringList(), (QStringList{ u"sea"_s, u"beach"_s }));
    f.press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(f.primary(), u"c.jpg"_s);
    QVERIFY(f.note().isEmpty());
    f.press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(f.primary(), u"c.jpg"_s);
    QCOMPARE(f.note(), u"This is the last photo"_s);
}

void tst_Hands::starsAndTheSameAsBefore()
{
    HandsWindow f;
    QVERIFY(f.show());
    QAction* same = actionOf(*f.window, u"Same as Photo Before"_s);
    QVERIFY(!same->isEnabled());
    auto* list = f.window->findChild<SidebarList*>();
    list->setFocus();
    f.press(Qt::Key_5, {});
    QCOMPARE(f->draftValues().value(u"rating"_s), u"5"_s);
    QVERIFY(list->hasFocus());
    // A name that is typed has its digits, in the list and in a field.
    f.press(Qt::Key_B, {});
    f->discardSaveDialog();
    QCOMPARE(f.primary(), u"b.jpg"_s);
    f.press(Qt::Key_1, {});
    QCOMPARE(f->unsavedCount(), 0);
    f.input(u"title"_s)->setFocus();
    f.press(Qt::Key_4, {});
    QVERIFY(f->draftValues().value(u"title"_s).contains(u'4'));
    f.press(Qt::Key_4, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(f->draftValues().value(u"rating"_s), u"4"_s);
    QVERIFY(f.input(u"title"_s)->hasFocus());
    QVERIFY(same->isEnabled());
    f.press(Qt::Key_Apostrophe, Qt::ControlModifier);
    QCOMPARE(f->draftValues().value(u"title"_s), u"One"_s);
    QVERIFY(f.note().isEmpty());
    f.press(Qt::Key_Apostrophe, Qt::ControlModifier);
    QCOMPARE(f.note(), u"Nothing else in the photo before"_s);
    // Of many, the stars come on screen and take no keyboard.
    f->discardSaveDialog();
    f.select(u"bc"_s);
    f.input(u"title"_s)->setFocus();
    f.press(Qt::Key_1, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(f->batchValues().value(u"rating"_s), u"1"_s);
    QCoreApplication::processEvents();
    QVERIFY(f.input(u"rating"_s) && f.input(u"title"_s)->hasFocus());
}

// In the window, and no letter twice in one menu.
void tst_Hands::noKeyTwice_data()
{
    QTest::addColumn<QString>("language");
    const QDir folder(qEnvironmentVariable("QUORBEL_TEST_SHARE") + u"/translations"_s);
    const QStringList files = folder.entryList({ u"quorbel_*.qm"_s });
    QVERIFY(files.size() > 1);
    QTest::newRow("en") << u"en"_s;
    for (const QString& file : files)
        QTest::newRow(qPrintable(file)) << QString(file).remove(u"quorbel_"_s).remove(u".qm"_s);
}

// Neither a key nor, within a menu, a letter; and each language has as many letters as English.
void tst_Hands::noKeyTwice()
{
    QFETCH(QString, language);
    QVERIFY(Languages::use(language, qEnvironmentVariable("QUORBEL_TEST_SHARE") + u"/translations"_s));
    const auto english = qScopeGuard([] { Texts::use(nullptr); });
    HandsWindow f;
    QVERIFY(f.show());
    QMap<QString, QString> taken;
    QStringList clashes;
    int marked = 0;
    const std::function<void(const QMenu&)> check = [&](const QMenu& menu) {
        QMap<QChar, QString> letters;
        for (const QAction* action : menu.actions()) {
            const QString text = action->text();
            for (const QKeySequence& key : action->shortcuts()) {
                if (taken.contains(key.toString()))
                    clashes.append(key.toString() + u": "_s + text + u", "_s + taken.value(key.toString()));
                taken.insert(key.toString(), text);
            }
            const qsizetype mark = QString(text).replace(u"&&"_s, u"  "_s).indexOf(u'&');
            const QChar letter = mark < 0 ? QChar() : text.at(mark + 1).toLower();
            if (mark >= 0 && letters.contains(letter))
                clashes.append(menu.title() + u": "_s + text + u", "_s + letters.value(letter));
            if (mark >= 0) {
                letters.insert(letter, text);
                ++marked;
            }
            if (const auto* submenu = action->menu<QMenu*>())
                check(*submenu);
        }
    };
    for (const QAction* action : f.content->bar()->menuBar()->actions())
        check(*action->menu<QMenu*>());
    QVERIFY(taken.size() > 20);
    QVERIFY2(clashes.isEmpty(), qPrintable(clashes.join(u"; "_s)));
    static int ofEnglish = 0;  // the first row
    if (language == u"en")
        ofEnglish = marked;
    QCOMPARE(marked, ofEnglish);
}

// Each key of the table is taken where the table says.
void tst_Hands::toldKeysExist()
{
    HandsWindow f;
    f.lookAtDetails();
    QVERIFY(f.show(true));
    QVERIFY(!f->folderGroups().isEmpty());
    auto* search = f.window->findChildren<QLineEdit*>().constFirst();
    for (auto* field : f.window->findChildren<QLineEdit*>())
        if (field->accessibleName() == u"Search"_s)
            search = field;
    // Rows come and go with the photo: asked for when they are needed.
    const QMap<ShortcutPlace, std::function<QWidget*()>> widgets{
        { ShortcutPlace::list, [&f] { return f.window->findChild<SidebarList*>(); } },
        { ShortcutPlace::field, [&f] { return f.input(u"title"_s); } },
        { ShortcutPlace::keywords, [&f] { return f.input(u"keywords"_s); } },
        { ShortcutPlace::stars, [&f] { return f.input(u"rating"_s); } },
        { ShortcutPlace::search, [search] { return search; } }
    };
    QCOMPARE(widgets.size() + 2, Shortcuts::inPlaces().size());
    const auto isTaken = [](QWidget* target, QKeyCombination key) {
        const QList<QAction*> actions = target->actions();
        if (std::any_of(actions.cbegin(), actions.cend(),
                [key](const QAction* action) { return action->shortcut() == QKeySequence(key); }))
            return true;
        const bool isLetter = key.key() < Qt::Key_Escape && key.key() != Qt::Key_Space;
        QKeyEvent event(
            QEvent::KeyPress, key.key(), key.keyboardModifiers(), isLetter ? QString(QChar(key.key())) : QString());
        QApplication::sendEvent(target, &event);
        return event.isAccepted();
    };
    for (auto place = widgets.cbegin(); place != widgets.cend(); ++place) {
        for (const Shortcut& shortcut : Shortcuts::in(place.key()).rows) {
            // Within the keywords one key leads to where the next one works.
            const bool follows = place.key() == ShortcutPlace::keywords
                && shortcut.does != Shortcuts::in(place.key()).rows.constFirst().does;
            if (!follows) {
                f.standAt(u"a.jpg"_s);
                QVERIFY((*place)());
                (*place)()->setFocus();
            }
            for (const QKeyCombination key : shortcut.keys) {
                QWidget* target = follows ? QApplication::focusWidget() : (*place)();
                QVERIFY2(target && isTaken(target, key),
                    qPrintable(shortcut.does + u" in "_s
                        + QString::fromLatin1(target ? target->metaObject()->className() : "nothing")));
            }
        }
    }
    f.standAt(u"a.jpg"_s);
    f.content->toggleCloseup();
    for (const Shortcut& shortcut : Shortcuts::in(ShortcutPlace::closeup).rows)
        for (const QKeyCombination key : shortcut.keys)
            QVERIFY2(isTaken(f.closeup(), key), qPrintable(shortcut.does));
    QVERIFY(!isTaken(f.closeup(), Qt::Key_Insert));
    QVERIFY(!isTaken(f.window->findChild<SidebarList*>(), Qt::Key_Insert));
}

QStringList shownShortcuts(const QWidget* sheet)
{
    QStringList texts;
    for (const QWidget* row : sheet->findChildren<QWidget*>())
        if (row->isVisible() && QString::fromLatin1(row->metaObject()->className()).endsWith(u"ShortcutRow"_s))
            texts.append(row->accessibleName());
    return texts;
}

void tst_Hands::theSheetOfShortcuts()
{
    HandsWindow f;
    QVERIFY(f.show());
    f.press(Qt::Key_F1, Qt::ControlModifier);
    auto* sheet = f.window->findChild<ShortcutsSheet*>();
    QVERIFY(sheet);
    const auto shown = [sheet] { return shownShortcuts(sheet); };
    // The menus' own, the rows of digits as one.
    const QStringList all = shown();
    for (const QString& text : { u"Save and Next Photo: Ctrl+Return"_s, u"Rating: Ctrl+Alt+0 … 5"_s, u"Rate: 0 … 5"_s,
             u"Keyboard Shortcuts: Ctrl+F1"_s })
        QVERIFY2(all.contains(text), qPrintable(text + u" not in "_s + all.join(u'\n')));
    auto* query = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(query && sheet->isAncestorOf(query));
    QTest::keyClicks(query, u"photo before"_s);
    QCOMPARE(shown(), QStringList{ u"Same as Photo Before: Ctrl+'"_s });
    QCOMPARE(query->accessibleDescription(), shown().constFirst());
    query->clear();
    QTest::keyClicks(query, u"on the stars"_s);
    QCOMPARE(shown().size(), 2);
    query->clear();
    QTest::keyClicks(query, u"xyzzy"_s);
    QVERIFY(labels(sheet).contains(u"No such shortcut."_s));
    QTest::keyClick(query, Qt::Key_Escape);
    QVERIFY(!f.content->sheets()->current());
}

// In a language whose texts have no letters for keys, these stand behind.
void tst_Hands::shortcutsInAnotherLanguage()
{
    const OtherLanguage german(
        { { "Same as Photo Be&fore", u"Wie im Foto davor (&F)"_s }, { "On the stars", u"Auf den Sternen"_s } });
    HandsWindow f;
    QVERIFY(f.show());
    f.press(Qt::Key_F1, Qt::ControlModifier);
    auto* sheet = f.window->findChild<ShortcutsSheet*>();
    auto* query = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(sheet && query);
    for (const QString& typed : { u"foto davor"_s, u"photo before"_s }) {
        query->setText(typed);
        QCOMPARE(shownShortcuts(sheet), QStringList{ u"Wie im Foto davor: Ctrl+'"_s });
    }
    for (const QString& typed : { u"sternen"_s, u"on the stars"_s }) {
        query->setText(typed);
        QCOMPARE(shownShortcuts(sheet).size(), 2);
    }
}

void tst_Hands::placesOfACloseLook_data()
{
    // In a view of 1,000 × 800, of a photo of 4,000 × 2,000 unless it is said otherwise.
    QTest::addColumn<CloseupPlace>("place");
    QTest::addColumn<QSize>("photo");
    QTest::addColumn<QRectF>("rect");
    const QSize photo(4000, 2000), view(1000, 800);
    const CloseupPlace fitted;
    QTest::newRow("fitted") << fitted << photo << QRectF(0, 150, 1000, 500);
    QTest::newRow("a small one is not enlarged") << fitted << QSize(100, 60) << QRectF(450, 370, 100, 60);
    // The photo's (1000, 1000) lies under (250, 400).
    const CloseupPlace at = fitted.zoomed(1, { 250, 400 }, photo, view);
    QTest::newRow("what is pointed at stays") << at << photo << QRectF(-750, -600, 4000, 2000);
    QTest::newRow("no farther than the edge")
        << fitted.zoomed(1, { 0, 150 }, photo, view) << photo << QRectF(0, 0, 4000, 2000);
    QTest::newRow("panned") << at.panned({ -100, 50 }, photo, view) << photo << QRectF(-850, -550, 4000, 2000);
    QTest::newRow("panned beyond") << at.panned({ -9000, 9000 }, photo, view) << photo << QRectF(-3000, 0, 4000, 2000);
    QTest::newRow("a step larger") << fitted.stepped(1, photo, view) << photo << QRectF(-500, -100, 2000, 1000);
    QTest::newRow("two steps") << fitted.stepped(1, photo, view).stepped(1, photo, view) << photo
                               << QRectF(-1500, -600, 4000, 2000);
    // Whatever the next photo's size.
    QTest::newRow("and back") << fitted.stepped(1, photo, view).stepped(-1, photo, view) << QSize(2000, 4000)
                              << QRectF(300, 0, 400, 800);
    QTest::newRow("not without end") << fitted.zoomed(99, { 500, 400 }, photo, view) << photo
                                     << QRectF(-15500, -7600, 32000, 16000);
    // The same part of a photo that stands.
    QTest::newRow("the neighbor's") << at << QSize(2000, 4000) << QRectF(-125, -1600, 2000, 4000);
    QTest::newRow("a narrow neighbor's") << at << QSize(800, 4000) << QRectF(100, -1600, 800, 4000);
}

void tst_Hands::placesOfACloseLook()
{
    QFETCH(CloseupPlace, place);
    QFETCH(QSize, photo);
    QFETCH(QRectF, rect);
    QCOMPARE(place.rect(photo, { 1000, 800 }), rect);
}

void tst_Hands::aCloseLook()
{
    HandsWindow f;
    QVERIFY(f.show());
    auto* list = f.window->findChild<SidebarList*>();
    list->setFocus();
    f.press(Qt::Key_Space, {});
    CloseupView* look = f.closeup();
    QVERIFY(look && look->isVisible() && look->hasFocus());
    QCOMPARE(look->geometry(), f.window->rect());
    QTRY_VERIFY(look->seen().isSharp);
    QCOMPARE(look->text().spoken().section(u", "_s, 0, 2), u"a.jpg, 1 of 3, 2 stars"_s);
    QCOMPARE(look->accessibleName(), look->text().spoken());
    // A click shows the pixels that are there, one for one.
    const QPoint spot(300, 300);
    const auto colorAt = [look](QPoint at) { return look->grab().toImage().pixel(at); };
    const QRectF fitted = look->place().rect(f.photoSize, look->size());
    const double scale = f.photoSize.width() / fitted.width();
    const QPointF under = (QPointF(spot) + QPointF(.5, .5) - fitted.topLeft()) * scale;
    QTest::mouseClick(look, Qt::LeftButton, {}, spot);
    QCOMPARE(look->place().zoom, 1.0);
    const QRgb first = colorAt(spot);
    QVERIFY(std::abs(qRed(first) - int(under.x()) % 256) <= 2 && std::abs(qGreen(first) - int(under.y()) % 256) <= 2);
    QCOMPARE(colorAt(spot + QPoint(7, 5)), qRgb((qRed(first) + 7) % 256, (qGreen(first) + 5) % 256, 0));
    // The hand moves it.
    QTest::mousePress(look, Qt::LeftButton, {}, spot);
    QTest::mouseMove(look, spot + QPoint(-30, -20));
    QTest::mouseRelease(look, Qt::LeftButton, {}, spot + QPoint(-30, -20));
    const QRgb moved = qRgb((qRed(first) + 30) % 256, (qGreen(first) + 20) % 256, 0);
    QCOMPARE(colorAt(spot), moved);
    // The neighbor is there already, and seen at the same place.
    QTRY_VERIFY(look->pictures().picture(f.url(u"b.jpg"_s)));
    f.press(Qt::Key_Right, {});
    QCOMPARE(f.primary(), u"b.jpg"_s);
    QVERIFY(look->seen().isSharp);
    QCOMPARE(look->text().note, u"damaged: not all of it can be shown · reduced to 3000 × 2000 of 6000 × 4000"_s);
    QCOMPARE(colorAt(spot), qRgb(qRed(moved), qGreen(moved), 40));
    f.press(Qt::Key_4, {});
    QCOMPARE(f->draftValues().value(u"rating"_s), u"4"_s);
    QCOMPARE(look->text().stars, 4);
    // What lies behind gets no key.
    f.input(u"title"_s)->setFocus();
    QVERIFY(look->hasFocus());
    // The guard asks over it.
    f.press(Qt::Key_Down, {});
    QVERIFY(f->saveOpen() && !look->hasFocus());
    f->discardSaveDialog();
    QCOMPARE(f.primary(), u"c.jpg"_s);
    QVERIFY(look->hasFocus());
    QTRY_COMPARE(look->text().note, u"preview 3000 × 2000 of 6000 × 4000"_s);
    f.press(Qt::Key_Z, {});
    QVERIFY(look->place().isFitted());
    f.press(Qt::Key_Escape, {});
    QTRY_VERIFY(!f.closeup());
    QVERIFY(list->hasFocus());
    QCOMPARE(list->currentIndex().data().toString().contains(u"c.jpg"_s), true);
    // From a field back into it.
    f.input(u"title"_s)->setFocus();
    f.press(Qt::Key_F11, {});
    QVERIFY(f.closeup()->hasFocus());
    f.press(Qt::Key_F11, {});
    QTRY_VERIFY(!f.closeup());
    QVERIFY(f.input(u"title"_s)->hasFocus());
}

void tst_Hands::aCloseLookBeforeAndWithoutAPicture()
{
    HandsWindow f;
    QVERIFY(f.show());
    f.isShut = true;
    f.content->toggleCloseup();
    QVERIFY(!f.closeup()->seen().isSharp);
    QCOMPARE(f.closeup()->accessibleDescription(), u"Reading…"_s);
    f.isShut = false;
    QTRY_VERIFY(f.closeup()->seen().isSharp);
    QCOMPARE(f.closeup()->accessibleDescription(), QString());
    f.content->toggleCloseup();
    f.outcome = DecodedImage::Outcome::damaged;
    f.content->toggleCloseup();
    QTRY_COMPARE(f.closeup()->accessibleDescription(), u"This photo is damaged: there is nothing in it to show."_s);
    // Nothing is left to look at.
    f->closeFolder();
    QTRY_VERIFY(!f.closeup());
}

// Whoever holds the arrow down runs past a hundred photos.
void tst_Hands::onlyWhatIsLookedAtIsDecoded()
{
    std::atomic<bool> isShut = true;
    std::mutex mutex;
    QStringList whole;
    WholePictures pictures({ .decode = [&](const QString& path, qint64, const std::stop_token& stop) {
        while (isShut && !stop.stop_requested())
            std::this_thread::yield();
        if (stop.stop_requested())
            return DecodedImage{ .outcome = DecodedImage::Outcome::cancelled };
        const std::lock_guard lock(mutex);
        whole.append(path);
        return DecodedImage{ DecodedImage::Outcome::decoded, QImage(10, 10, QImage::Format_RGB32) };
    } });
    const auto url = [](int i) { return QUrl::fromLocalFile(u"/nowhere/%1"_s.arg(i)); };
    for (int i = 0; i < 100; ++i) {
        pictures.look(url(i), { url(i + 1), url(i - 1) });
        QCoreApplication::processEvents();
    }
    QVERIFY(!pictures.picture(url(99)));
    isShut = false;
    QTRY_VERIFY(pictures.picture(url(98)) && pictures.running() == 0);
    QCOMPARE(whole, (QStringList{ u"/nowhere/99"_s, u"/nowhere/100"_s, u"/nowhere/98"_s }));
}

void tst_Hands::aPhotoThatChangedIsDecodedAgain()
{
    const PhotoFolder folder;
    const QUrl photo = folder.add(u"a.jpg"_s);
    std::atomic<int> decoded = 0;
    WholePictures pictures({ .decode = [&decoded](const QString&, qint64, const std::stop_token&) {
        return DecodedImage{ DecodedImage::Outcome::decoded, QImage(++decoded, 1, QImage::Format_RGB32) };
    } });
    const auto width = [&pictures, &photo] {
        const WholePicture* picture = pictures.picture(photo);
        return picture ? picture->size().width() : 0;
    };
    pictures.look(photo, {});
    QTRY_COMPARE(width(), 1);
    pictures.look(photo, {});
    QCOMPARE(pictures.running(), 0);
    QFile file(photo.toLocalFile());
    QVERIFY(file.open(QIODevice::Append) && file.write("more") == 4);
    file.close();
    pictures.look(photo, {});
    QTRY_COMPARE(width(), 2);
}

void tst_Hands::picturesKeepWithinTheirBound()
{
    constexpr qsizetype bound = 3 * 400'000;
    WholePictures pictures(
        { .mostBytes = bound, .decode = [](const QString& path, qint64, const std::stop_token&) {
             const int side = path.endsWith(u"/7"_s) ? 1000 : 300;  // one is larger than all that there is room for
             return DecodedImage{ DecodedImage::Outcome::decoded, QImage(side, side, QImage::Format_RGB32) };
         } });
    const auto url = [](int i) { return QUrl::fromLocalFile(u"/nowhere/%1"_s.arg(i)); };
    for (int i = 0; i < 20; ++i) {
        pictures.look(url(i), { url(i + 1), url(i - 1) });
        QTRY_VERIFY(pictures.picture(url(i)) && pictures.running() == 0);
        QVERIFY(pictures.bytesHeld() <= (i == 7 ? 4'000'000 : bound));
        QCOMPARE(pictures.picture(url(i + 1)) != nullptr, i != 6 && i != 7);
    }
    pictures.clear();
    QCOMPARE(pictures.bytesHeld(), 0);
}

int main(int argc, char* argv[])
{
    return runOnLargeScreen<tst_Hands>(argc, argv);
}

#include "tst_Hands.moc"
