// Hands that stay on the keys, in the whole window: from photo to photo within a field, stars, the same as before; and
// that no key is promised twice, or in vain.
#include "core/language/Languages.h"
#include "core/language/Texts.h"
#include "tests/app/shell/HandsWindow.h"
#include "tests/support/OtherLanguage.h"
#include "ui/controls/RatingEditor.h"
#include "ui/controls/ThemedMenuBar.h"
#include "ui/controls/keywords/KeywordEditor.h"
#include "ui/sheets/ShortcutsSheet.h"
#include "ui/sidebar/SidebarList.h"

#include <QMenu>
#include <QScopeGuard>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

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

int main(int argc, char* argv[])
{
    return runOnLargeScreen<tst_Hands>(argc, argv);
}

#include "tst_Hands.moc"
