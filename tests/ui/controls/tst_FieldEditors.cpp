#include "tests/ui/UiSupport.h"
#include "ui/controls/FlowLayout.h"
#include "ui/controls/RatingEditor.h"
#include "ui/controls/SuggestionList.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/attached/CodesChip.h"
#include "ui/controls/attached/SearchMenu.h"
#include "ui/controls/keywords/KeywordChip.h"
#include "ui/controls/keywords/KeywordEditor.h"
#include "ui/controls/pickers/ChoiceList.h"
#include "ui/controls/pickers/OffsetPicker.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/tokens/TokenEdit.h"

#include <QClipboard>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalSpy>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

// A keyword editor with an owner behind it: keeps a list without doubles, as the inspector's draft does.
struct KeywordOwner {
    explicit KeywordOwner(Test::Stage& stage, const QStringList& chips = {})
        : editor(stage.add(new KeywordEditor))
    {
        editor->setPlaceholder(u"Add keyword + ↵"_s);
        editor->setChips(chips);
        QObject::connect(editor, &KeywordEditor::added, editor, [this](const QString& keyword) {
            added.append(keyword);
            editor->setChips(
                editor->chips().contains(keyword) ? editor->chips() : editor->chips() + QStringList(keyword));
        });
        QObject::connect(editor, &KeywordEditor::removed, editor, [this](const QString& keyword) {
            QStringList left = editor->chips();
            left.removeOne(keyword);
            editor->setChips(left);
        });
        stage.show();
        editor->entry()->setFocus();
    }
    QWidget* focused() const { return QApplication::focusWidget(); }
    void press(std::initializer_list<Qt::Key> keys) const
    {
        for (const Qt::Key key : keys)
            QTest::keyClick(focused(), key);
    }
    void type(const QString& text) const { QTest::keyClicks(focused(), text); }
    SuggestionList* suggestions() const { return editor->window()->findChild<SuggestionList*>(); }

    KeywordEditor* editor;
    QStringList added{};
};

// What an input method holds, and what it hands over.
void compose(QWidget* widget, const QString& composed, const QString& commit = {})
{
    QInputMethodEvent event(composed, {});
    event.setCommitString(commit);
    QApplication::sendEvent(widget, &event);
}

// js and AB stand for something.
std::optional<QString> codeText(const QString& code)
{
    static const QMap<QString, QString> texts{ { u"js"_s, u"Jane = Smith"_s }, { u"AB"_s, u"Ana"_s } };
    return texts.contains(code) ? std::optional(texts.value(code)) : std::nullopt;
}

// What somebody does in a field whose codes are known: letters are typed, "<" is Undo, ">" Redo, "^" goes to the
// beginning, "|" pastes "=js=".
template <typename Field>
QString typed(Field* field, const QString& keys)
{
    for (const QChar key : keys) {
        if (key == u'<' || key == u'>')
            QTest::keySequence(field, key == u'<' ? QKeySequence::Undo : QKeySequence::Redo);
        else if (key == u'^')
            QTest::keyClick(field, Qt::Key_Home);
        else if (key == u'|')
            QTest::keySequence(field, QKeySequence::Paste);
        else
            QTest::keyClick(field, key.toLatin1());
    }
    return field->property("plainText").isValid() ? field->property("plainText").toString()
                                                  : field->property("text").toString();
}

QList<QWidget*> boxes(QWidget* parent, const QList<QSize>& sizes)
{
    QList<QWidget*> made;
    for (const QSize& size : sizes) {
        made.append(new QWidget(parent));
        made.last()->setFixedSize(size);
    }
    return made;
}

}  // namespace

class tst_FieldEditors : public QObject {
    Q_OBJECT

private slots:
    void init() { Test::failOnWarnings(); }

    void flowLayoutWraps_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<QList<QSize>>("sizes");
        QTest::addColumn<QList<QPoint>>("places");
        QTest::addColumn<int>("height");
        const QList<QSize> three{ { 40, 20 }, { 40, 30 }, { 40, 20 } };
        QTest::newRow("one line") << 200 << three << QList<QPoint>{ { 0, 0 }, { 45, 0 }, { 90, 0 } } << 30;
        QTest::newRow("exactly fits") << 85 << three << QList<QPoint>{ { 0, 0 }, { 45, 0 }, { 0, 35 } } << 55;
        QTest::newRow("one short") << 84 << three << QList<QPoint>{ { 0, 0 }, { 0, 25 }, { 0, 60 } } << 80;
        QTest::newRow("fits none") << 10 << three << QList<QPoint>{ { 0, 0 }, { 0, 25 }, { 0, 60 } } << 80;
        QTest::newRow("empty") << 100 << QList<QSize>{} << QList<QPoint>{} << 0;
    }
    void flowLayoutWraps()
    {
        QFETCH(int, width);
        QFETCH(QList<QSize>, sizes);
        QFETCH(QList<QPoint>, places);
        QWidget parent;
        auto* flow = new FlowLayout(5, &parent);
        const QList<QWidget*> items = boxes(&parent, sizes);
        for (QWidget* item : items)
            flow->addWidget(item);
        QTEST(flow->heightForWidth(width), "height");
        flow->setGeometry(QRect(0, 0, width, 500));
        for (qsizetype i = 0; i < items.size(); ++i) {
            QCOMPARE(items.at(i)->pos(), places.at(i));
            QCOMPARE(items.at(i)->size(), sizes.at(i));
        }
    }

    // Laid out once, and not for ever: each layout would ask for the next.
    void keywordsRest()
    {
        Test::Stage stage(Theme::light());
        auto* keywords = stage.add(new KeywordEditor);
        stage.show();
        keywords->setChips({ u"lake"_s, u"autumn"_s });
        struct Count : QObject {
            int requests = 0;
            bool eventFilter(QObject*, QEvent* event) override
            {
                requests += event->type() == QEvent::LayoutRequest ? 1 : 0;
                return false;
            }
        } count;
        keywords->installEventFilter(&count);
        QTest::qWait(100);
        QVERIFY2(count.requests < 10, qPrintable(QString::number(count.requests)));
    }

    void codesBecomeTexts_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const QString& keys, const QString& text) {
            QTest::newRow(name) << keys << text;
        };
        row("alone", u"=js="_s, u"Jane = Smith"_s);
        row("among words", u"by =js=, and =AB=!"_s, u"by Jane = Smith, and Ana!"_s);
        row("in a word", u"x=AB=y"_s, u"xAnay"_s);
        row("in front of words", u"end^=AB="_s, u"Anaend"_s);
        row("undone once", u"by =js=<"_s, u"by =js="_s);
        row("undone, and typed on", u"by =js=< x"_s, u"by =js= x"_s);
        row("undone and done again", u"by =js=<> x"_s, u"by Jane = Smith x"_s);
        row("typed on, and that undone", u"=js= x<"_s, u"Jane = Smith"_s);
        row("typed on, and all undone", u"by =js= x<<"_s, u"by =js="_s);
        row("another one after it was undone", u"=js=< =AB="_s, u"=js= Ana"_s);
        row("not known", u"=zz= x"_s, u"=zz= x"_s);
        row("another case is another's business", u"=ab="_s, u"=ab="_s);
        row("empty", u"a == b"_s, u"a == b"_s);
        row("twice the first sign", u"==js="_s, u"=Jane = Smith"_s);
        row("blanks", u"a = AB = c"_s, u"a = AB = c"_s);
        row("web addresses", u"http://x.y/?a=js=b www.x?c=AB= =AB="_s, u"http://x.y/?a=js=b www.x?c=AB= Ana"_s);
        row("pasted", u"|"_s, u"=js="_s);
        row("pasted, then a sign", u"|="_s, u"=js=="_s);
    }
    void codesBecomeTexts()
    {
        QFETCH(QString, keys);
        QFETCH(QString, text);
        QGuiApplication::clipboard()->setText(u"=js="_s);
        Test::Stage stage;
        auto* field = stage.add(new QBTextField);
        auto* area = stage.add(new QBTextArea);
        auto* tokens = stage.add(new TokenEdit(false));
        auto* keywords = stage.add(new KeywordEditor);
        stage.show();
        field->setCodes(codeText);
        area->setCodes(codeText);
        tokens->setCodes(codeText);
        keywords->setCodes(codeText);
        const QSignalSpy told(field, &QLineEdit::textEdited);
        QCOMPARE(typed(field, keys), text);
        QCOMPARE(told.constLast().constFirst(), text);
        const QSignalSpy toldOfArea(area, &QBTextArea::textEdited);
        QCOMPARE(typed(area, keys), text);
        QCOMPARE(toldOfArea.constLast().constFirst(), text);
        QCOMPARE(typed(keywords->entry(), keys), text);
        QCOMPARE(typed(tokens, keys), text);
    }

    // With a letter beside it or without: it lies in the middle of its line, and all of it is seen.
    void tokenAloneInItsLine()
    {
        Test::Stage stage;
        auto* alone = stage.add(new TokenEdit(false));
        auto* beside = stage.add(new TokenEdit(false));
        stage.show();
        const TokenEditPiece token{ {}, InlineToken{ u"Place"_s, {}, u"%Place%"_s } };
        alone->setPieces({ token });
        beside->setPieces({ token, { u" g"_s, {} } });
        QCOMPARE(alone->height(), beside->height());
        const QRect chip(0, 0, 50, alone->height());
        QCOMPARE(alone->grab(chip).toImage(), beside->grab(chip).toImage());
    }

    // Some input methods hand over each letter, some whole words; what is only composed is not typed yet.
    void inputMethodsFinishCodes()
    {
        Test::Stage stage;
        auto* field = stage.add(new QBTextField);
        auto* area = stage.add(new QBTextArea);
        stage.show();
        field->setCodes(codeText);
        area->setCodes(codeText);
        for (QWidget* widget : QList<QWidget*>{ field, area }) {
            widget->setFocus();
            compose(widget, {}, u"=AB"_s);
            compose(widget, u"="_s);
            compose(widget, {}, u"="_s);
        }
        QCOMPARE(field->text(), u"Ana"_s);
        QCOMPARE(area->text(), u"Ana"_s);
        field->setReadOnly(true);
        QTest::keyClicks(field, u"=AB="_s);
        QCOMPARE(field->text(), u"Ana"_s);
    }

    // A syllable that is half typed is drawn, and nothing else: no edit, and no placeholder under it.
    void whatIsComposedIsNoEditYet()
    {
        Test::Stage stage;
        auto* field = stage.add(new QBTextField);
        auto* area = stage.add(new QBTextArea);
        auto* tokens = stage.add(new TokenEdit(true));
        QStringList edits;
        connect(field, &QLineEdit::textEdited, field, [&] { edits.append(u"field"_s); });
        connect(area, &QBTextArea::textEdited, area, [&] { edits.append(u"area"_s); });
        connect(tokens, &TokenEdit::edited, tokens, [&] { edits.append(u"tokens"_s); });
        field->setPlaceholder(u"██████"_s);
        area->setPlaceholder(u"██████"_s);
        stage.show();
        const auto isPlaceholderSeen = [](QWidget* widget) {
            return Test::pixelsLike(widget->grab().toImage(), Theme::light().muted) > 100;
        };
        for (QWidget* widget : QList<QWidget*>{ field, area, tokens }) {
            widget->setFocus();
            QCOMPARE(isPlaceholderSeen(widget), widget != tokens);
            compose(widget, u"██"_s);
            QCOMPARE(edits, QStringList());
            QVERIFY(!isPlaceholderSeen(widget));
            QVERIFY(Test::pixelsLike(widget->grab().toImage(), Theme::light().text) > 100);
            compose(widget, {});
            QCOMPARE(edits, QStringList());
            QCOMPARE(isPlaceholderSeen(widget), widget != tokens);
            compose(widget, u"か"_s);
            compose(widget, {}, u"蚊"_s);
            QCOMPARE(std::exchange(edits, {}).size(), 1);
        }
        QCOMPARE(field->text() + area->text() + tokens->toPlainText(), u"蚊蚊蚊"_s);
    }

    void aCompositionAddsNoKeyword()
    {
        Test::Stage stage;
        KeywordOwner owner(stage, { u"lake"_s });
        QLineEdit* entry = owner.editor->entry();
        compose(entry, u"とうきょう"_s);
        for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Left, Qt::Key_Space }) {
            owner.press({ key });
            QVERIFY(entry->hasFocus());
        }
        QCOMPARE(owner.added, QStringList());
        entry->clear();
        compose(entry, u"とうきょう"_s);
        compose(entry, {}, u"東京"_s);
        QCOMPARE(owner.added, QStringList());
        QCOMPARE(entry->text(), u"東京"_s);
        owner.press({ Qt::Key_Return });
        QCOMPARE(owner.added, QStringList{ u"東京"_s });
    }

    void editedFieldsAreAmber_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void editedFieldsAreAmber()
    {
        QFETCH(bool, dark);
        const Theme& theme = dark ? Theme::dark() : Theme::light();
        Test::Stage stage(theme);
        auto* field = stage.add(new QBTextField);
        auto* area = stage.add(new QBTextArea);
        auto* picker = stage.add(new OffsetPicker({}, u"—"_s));
        auto* keywords = stage.add(new KeywordEditor);
        stage.show();
        const QList<QWidget*> all{ field, area, picker, keywords };
        for (QWidget* editor : all)
            QCOMPARE(Test::colorAt(editor, { 120, 6 }), theme.field);
        field->setEdited(true);
        area->setEdited(true);
        picker->setEdited(true);
        keywords->setEdited(true);
        for (QWidget* editor : all) {
            QCOMPARE(Test::colorAt(editor, { 120, 6 }), theme.amberBg);
            QCOMPARE(Test::colorAt(editor, { 120, 0 }), theme.amberLine);
        }
    }

    void boundTextTellsOfTheUsersChangesOnly()
    {
        Test::Stage stage;
        auto* field = stage.add(new QBTextField);
        auto* area = stage.add(new QBTextArea);
        stage.show();
        QSignalSpy fieldEdits(field, &QLineEdit::textEdited);
        QSignalSpy areaEdits(area, &QBTextArea::textEdited);
        field->setBoundText(u"Zürich"_s);
        area->setBoundText(u"Zürich"_s);
        QCOMPARE(fieldEdits.count() + areaEdits.count(), 0);
        QTest::keyClick(field, Qt::Key_Home);
        QTest::keyClicks(field, u"x"_s);
        // The binding echoes what was typed: the cursor stays where it is.
        field->setBoundText(u"xZürich"_s);
        QTest::keyClicks(field, u"y"_s);
        QCOMPARE(field->text(), u"xyZürich"_s);
        QTest::keyClicks(area, u"a"_s);
        area->setBoundText(u"aZürich"_s);
        QTest::keyClicks(area, u"b"_s);
        QCOMPARE(area->text(), u"abZürich"_s);
        QCOMPARE(fieldEdits.count(), 2);
        QCOMPARE(areaEdits.last().first().toString(), u"abZürich"_s);
    }

    void thePlaceholderShowsWhileEmpty()
    {
        Test::Stage stage;
        auto* field = stage.add(new QBTextField);
        auto* area = stage.add(new QBTextArea);
        for (const QString& text : { u"████"_s, QString() }) {
            field->setPlaceholder(text);
            area->setPlaceholder(text);
            stage.show();
            const bool expected = !text.isEmpty();
            QCOMPARE(Test::pixelsLike(field->grab().toImage(), Theme::light().muted) > 50, expected);
            QCOMPARE(Test::pixelsLike(area->grab().toImage(), Theme::light().muted) > 50, expected);
        }
        field->setPlaceholder(u"████"_s);
        QTest::keyClicks(field, u"i"_s);
        QVERIFY(Test::pixelsLike(field->grab().toImage(), Theme::light().muted) < 20);
        // Set by Qt's own name it is the same placeholder.
        auto* plain = stage.add(new QBTextField);
        plain->setPlaceholderText(u"████"_s);
        QVERIFY(Test::pixelsLike(plain->grab().toImage(), Theme::light().muted) > 50);
    }

    void theAreaGrowsWithItsTextAndTabLeavesIt()
    {
        Test::Stage stage;
        auto* area = stage.add(new QBTextArea);
        auto* next = stage.add(new QBTextField);
        stage.show();
        QCOMPARE(area->height(), px(54));
        area->setFocus();
        for (int line = 1; line < 9; ++line) {
            area->insertPlainText(line == 4 ? u"日本語 of another font"_s : u"line"_s);
            QTest::keyClick(area, Qt::Key_Return);
            QCOMPARE(area->verticalScrollBar()->maximum(), 0);  // no line out of sight
        }
        QTRY_VERIFY(area->height() >= 5 * QFontMetrics(area->font()).height() + 2 * px(8));
        area->setBoundText(QString(400, u'x') + u" words to be wrapped into the width of the field"_s);
        const int wide = area->height();
        area->setFixedWidth(200);
        QTRY_VERIFY(area->height() > wide);
        area->setBoundText(u"short"_s);
        QTRY_COMPARE(area->height(), px(54));
        QTest::keyClick(area, Qt::Key_Tab);
        QVERIFY(next->hasFocus());
        QCOMPARE(area->text(), u"short"_s);
    }

    void typedKeywords_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<QString>("left");
        QTest::newRow("plain") << u"lake"_s << QStringList{ u"lake"_s } << QString();
        QTest::newRow("spaces around") << u"  reed bank "_s << QStringList{ u"reed bank"_s } << QString();
        QTest::newRow("spaces only stay") << u"   "_s << QStringList{} << u"   "_s;
        QTest::newRow("nothing") << QString() << QStringList{} << QString();
        QTest::newRow("a path") << u" Places > France > Paris"_s << QStringList{ u"Places > France > Paris"_s }
                                << QString();
        QTest::newRow("a comma is part of it") << u"a, b"_s << QStringList{ u"a, b"_s } << QString();
    }
    void typedKeywords()
    {
        QFETCH(QString, typed);
        Test::Stage stage;
        KeywordOwner owner(stage);
        owner.type(typed);
        owner.press({ Qt::Key_Return });
        QTEST(owner.added, "added");
        QTEST(owner.editor->entry()->text(), "left");
        QCOMPARE(owner.editor->chips(), owner.added);
    }

    void pastedKeywords_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<QString>("left");
        QTest::newRow("one stays in the entry") << u"still water"_s << QStringList{} << u"still water"_s;
        QTest::newRow("one line end only") << u" still water\n"_s << QStringList{} << u"still water"_s;
        QTest::newRow("commas") << u"lake, autumn ,,evening"_s << QStringList{ u"lake"_s, u"autumn"_s, u"evening"_s }
                                << QString();
        QTest::newRow("paths") << u"Places|France|Paris, A > B"_s << QStringList{ u"Places|France|Paris"_s, u"A > B"_s }
                               << QString();
        QTest::newRow("lines") << u"lake\r\nautumn\n"_s << QStringList{ u"lake"_s, u"autumn"_s } << QString();
    }
    void pastedKeywords()
    {
        QFETCH(QString, pasted);
        Test::Stage stage;
        KeywordOwner owner(stage);
        QGuiApplication::clipboard()->setText(pasted);
        QTest::keyClick(owner.focused(), Qt::Key_V, Qt::ControlModifier);
        QTEST(owner.added, "added");
        QTEST(owner.editor->entry()->text(), "left");
    }

    void chipsAreReachedByKeys_data()
    {
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<QStringList>("left");
        const QStringList all{ u"lake"_s, u"autumn"_s, u"evening"_s };
        QTest::newRow("backspace selects") << QList<int>{ Qt::Key_Backspace } << all;
        QTest::newRow("again removes") << QList<int>{ Qt::Key_Backspace, Qt::Key_Backspace } << all.mid(0, 2);
        QTest::newRow("left, left, delete")
            << QList<int>{ Qt::Key_Left, Qt::Key_Left, Qt::Key_Delete } << QStringList{ u"lake"_s, u"evening"_s };
        QTest::newRow("to the first and back") << QList<int>{ Qt::Key_Left, Qt::Key_Home, Qt::Key_Right, Qt::Key_Right,
            Qt::Key_Right, Qt::Key_Backspace } << all;
        QTest::newRow("all, one by one") << QList<int>{ Qt::Key_Left, Qt::Key_Home, Qt::Key_Delete, Qt::Key_Delete,
            Qt::Key_Delete } << QStringList{};
    }
    void chipsAreReachedByKeys()
    {
        QFETCH(QList<int>, keys);
        Test::Stage stage;
        KeywordOwner owner(stage, { u"lake"_s, u"autumn"_s, u"evening"_s });
        for (const int key : keys)
            owner.press({ Qt::Key(key) });
        QTEST(owner.editor->chips(), "left");
        // Whatever was selected, typing goes on in the entry.
        owner.type(u"new"_s);
        QCOMPARE(owner.editor->entry()->text(), u"new"_s);
    }

    void theCrossRemovesItsChip()
    {
        Test::Stage stage;
        KeywordOwner owner(stage, { u"lake"_s, u"autumn"_s, u"evening"_s });
        const auto crosses = owner.editor->findChildren<QBIconButton*>();
        QCOMPARE(crosses.size(), 3);
        QCOMPARE(crosses.at(1)->accessibleName(), u"Remove autumn"_s);
        QTest::mouseClick(crosses.at(1), Qt::LeftButton);
        QCOMPARE(owner.editor->chips(), QStringList({ u"lake"_s, u"evening"_s }));
    }

    void manyKeywordsWrapAndNoneIsWiderThanTheEditor()
    {
        Test::Stage stage;
        KeywordOwner owner(stage, { u"lake"_s });
        QCOMPARE(owner.editor->height(), px(30));
        QStringList many;
        for (int i = 0; i < 40; ++i)
            many.append(u"keyword %1"_s.arg(i));
        many.append(QString(200, u'w'));
        owner.editor->setChips(many);
        QTRY_VERIFY(owner.editor->height() > 5 * px(28));
        for (const QWidget* child : owner.editor->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (child->isVisible())
                QVERIFY2(owner.editor->rect().contains(child->geometry()), child->metaObject()->className());
        }
        owner.editor->setChips({ u"lake"_s });
        QTRY_COMPARE(owner.editor->height(), px(30));
    }

    void completions_data()
    {
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<QStringList>("added");
        QTest::newRow("tab takes the first") << QList<int>{ Qt::Key_Tab } << QStringList{ u"autumn"_s };
        QTest::newRow("down, down, return")
            << QList<int>{ Qt::Key_Down, Qt::Key_Down, Qt::Key_Return } << QStringList{ u"Auckland"_s };
        QTest::newRow("return without choosing") << QList<int>{ Qt::Key_Return } << QStringList{ u"au"_s };
        QTest::newRow("escape, return") << QList<int>{ Qt::Key_Escape, Qt::Key_Return } << QStringList{ u"au"_s };
    }
    void completions()
    {
        QFETCH(QList<int>, keys);
        Test::Stage stage;
        KeywordOwner owner(stage, { u"aunt"_s });
        owner.editor->setCompletions([](const QString& prefix) {
            QList<KeywordSuggestion> found;
            if (prefix == u"au"_s)
                for (const QString& keyword : { u"aunt"_s, u"autumn"_s, u"Auckland"_s })
                    found.append({ keyword, keyword });
            return found;
        });
        owner.type(u"au"_s);
        QCOMPARE(owner.suggestions()->rows().size(), 2);
        for (const int key : keys)
            owner.press({ Qt::Key(key) });
        QTEST(owner.added, "added");
        QVERIFY(owner.suggestions()->isHidden());
        QCOMPARE(owner.editor->entry()->text(), QString());
    }

    void chipsTellWhereKeywordsStand_data()
    {
        QTest::addColumn<QList<QStringList>>("parents");
        QTest::addColumn<QString>("spoken");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("no path") << QList<QStringList>{} << u"lake"_s << QString();
        QTest::newRow("a path") << QList<QStringList>{ { u"Places"_s, u"Switzerland"_s } }
                                << u"lake, in Places, Switzerland"_s << u"lake\nPlaces ▸ Switzerland ▸ lake"_s;
        QTest::newRow("two paths") << QList<QStringList>{ { u"Nature"_s }, { u"Places"_s } }
                                   << u"lake, in Nature; in Places"_s << u"lake\nNature ▸ lake\nPlaces ▸ lake"_s;
        QTest::newRow("two scripts") << QList<QStringList>{ { u"أماكن"_s } } << u"lake, in أماكن"_s
                                     << u"lake\n\u200eأماكن\u200e ▸ \u200elake"_s;
    }
    void chipsTellWhereKeywordsStand()
    {
        QFETCH(QList<QStringList>, parents);
        Test::Stage stage;
        KeywordOwner owner(stage);
        owner.editor->setChips({ u"lake"_s, u"autumn"_s }, { { u"lake"_s, parents } });
        auto* chip = owner.editor->findChild<KeywordChip*>();
        QAccessibleInterface* described = QAccessible::queryAccessibleInterface(chip);
        QTEST(described->text(QAccessible::Name), "spoken");
        QCOMPARE(described->text(QAccessible::Description), QString());
        QTEST(chip->toolTip(), "toolTip");
        QCOMPARE(owner.editor->findChildren<KeywordChip*>().at(1)->accessibleName(), u"autumn"_s);
        // The path that is drawn is the first one.
        const QFontMetrics metrics(chip->font());
        const int before = chip->width();
        owner.editor->setChips({ u"lake"_s });
        QCOMPARE(chip->toolTip(), QString());
        const int least = parents.isEmpty() ? 0 : metrics.horizontalAdvance(parents.first().join(QString()));
        QVERIFY(before - chip->width() >= least);
        QVERIFY(parents.isEmpty() == (before == chip->width()));
    }

    // Whatever was shown before: what is decided follows from chips and width.
    void parentsStandInFrontWhileAllFitTwoLines()
    {
        Test::Stage stage;
        KeywordOwner owner(stage);
        const QStringList all{ u"Zürichsee"_s, u"lake"_s, u"autumn"_s, u"evening"_s };
        const KeywordEditor::Parents parents{ { u"Zürichsee"_s, { { u"Places"_s, u"Switzerland"_s } } },
            { u"lake"_s, { { u"Nature"_s } } } };
        const auto chips = [&] { return owner.editor->findChildren<KeywordChip*>(); };
        const auto isShown = [&] { return chips().first()->sizeHint().width() == chips().first()->widthWithParents(); };
        QSet<bool> seen;
        QHash<int, bool> atWidth;
        for (const int step : { -7, 7 })
            for (int width = step < 0 ? 460 : 117; width >= 117 && width <= 460; width += step) {
                owner.editor->setFixedWidth(width);
                owner.editor->setChips(all, parents);
                QCoreApplication::processEvents();
                seen.insert(isShown());
                QCOMPARE(atWidth.value(width, isShown()), isShown());
                atWidth.insert(width, isShown());
                if (isShown())
                    QVERIFY(chips().last()->y() < 2 * px(28));
                for (const KeywordChip* chip : chips())
                    QVERIFY(owner.editor->rect().contains(chip->geometry()));
            }
        QCOMPARE(seen.size(), 2);
        // One more where there is no room, and away again.
        owner.editor->setFixedWidth(460);
        owner.editor->setChips(all + QStringList(QString(60, u'w')) + QStringList(QString(61, u'w')), parents);
        QVERIFY(!isShown());
        owner.editor->setChips(all, parents);
        QVERIFY(isShown());
        // A path that is longer than a line leaves the keyword to be read.
        owner.editor->setChips({ u"lake"_s }, { { u"lake"_s, { { QString(80, u'x'), QString(80, u'y') } } } });
        QVERIFY(isShown());
        QVERIFY(owner.editor->rect().contains(chips().first()->geometry()));
        QCOMPARE(owner.editor->height(), 2 * px(28) + 4);
    }

    void completionsTellWhereKeywordsStand()
    {
        Test::Stage stage;
        KeywordOwner owner(stage);
        owner.editor->setChips({ u"Paris"_s }, { { u"Paris"_s, { { u"Places"_s, u"France"_s } } } });
        QString asked;
        owner.editor->setCompletions([&](const QString& typed) -> QList<KeywordSuggestion> {
            asked = typed;
            return { { u"Paris"_s, u"Paris"_s }, { u"Parma"_s, u"Parma"_s },
                { u"Places|France|Paris"_s, u"Paris"_s, { u"Places"_s, u"France"_s } },
                { u"Places|Texas|Paris"_s, u"Paris"_s, { u"Places"_s, u"Texas"_s } } };
        });
        owner.type(u"Places > "_s);
        QCOMPARE(asked, u"Places > "_s);
        // What the chips say already is not offered; another place of the same keyword is.
        QCOMPARE(owner.suggestions()->rows().size(), 2);
        const SuggestionRow row = owner.suggestions()->rows().at(1);
        QCOMPARE(row.title, u"Paris"_s);
        QCOMPARE(row.subtitle, u"Places ▸ Texas"_s);
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(owner.suggestions());
        QCOMPARE(list->child(0)->text(QAccessible::Name), u"Parma"_s);
        QCOMPARE(list->child(1)->text(QAccessible::Name), u"Paris, in Places, Texas"_s);
        owner.press({ Qt::Key_Down, Qt::Key_Down, Qt::Key_Return });
        QCOMPARE(owner.added, QStringList{ u"Places|Texas|Paris"_s });
    }

    void ratings_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("clickedStar");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("after");
        const auto click = [](const char* name, const QString& before, int star, const QString& after) {
            QTest::newRow(name) << before << star << 0 << after;
        };
        const auto press = [](const char* name, const QString& before, Qt::Key key, const QString& after) {
            QTest::newRow(name) << before << 0 << int(key) << after;
        };
        click("third of two", u"2"_s, 3, u"3"_s);
        click("third of three clears", u"3"_s, 3, u"0"_s);
        click("first of none", QString(), 1, u"1"_s);
        click("fifth of garbage", u"abc"_s, 5, u"5"_s);
        click("fifth of seven", u"7"_s, 5, u"5"_s);
        click("fifth of five clears", u"5"_s, 5, u"0"_s);
        press("digit", u"1"_s, Qt::Key_4, u"4"_s);
        press("zero", u"5"_s, Qt::Key_0, u"0"_s);
        press("the digit that is shown stays", u"3"_s, Qt::Key_3, u"3"_s);
        press("right", u"3"_s, Qt::Key_Right, u"4"_s);
        press("right at the end", u"5"_s, Qt::Key_Right, u"5"_s);
        press("left", QString(), Qt::Key_Left, u"0"_s);
        press("six means nothing", u"2"_s, Qt::Key_6, u"2"_s);
    }
    void ratings()
    {
        QFETCH(QString, before);
        QFETCH(int, clickedStar);
        QFETCH(int, key);
        Test::Stage stage;
        auto* editor = stage.add(new RatingEditor);
        stage.show();
        editor->setValue(before);
        if (clickedStar > 0)
            QTest::mouseClick(editor, Qt::LeftButton, {}, QPoint((clickedStar - 1) * 26 + 7, 15));
        else
            QTest::keyClick(editor, Qt::Key(key));
        QTEST(editor->value(), "after");
    }

    void starsAreFilledUpToTheRating_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("filled");
        QTest::newRow("none") << QString() << 0;
        QTest::newRow("garbage") << u"abc"_s << 0;
        QTest::newRow("three") << u"3"_s << 3;
        QTest::newRow("beyond") << u"9"_s << 5;
        QTest::newRow("rejected") << u"-1"_s << 0;
    }
    void starsAreFilledUpToTheRating()
    {
        QFETCH(QString, value);
        QFETCH(int, filled);
        Test::Stage stage;
        auto* editor = stage.add(new RatingEditor);
        stage.show();
        editor->setValue(value);
        const QImage picture = editor->grab().toImage();
        for (int star = 0; star < 5; ++star)
            QCOMPARE(picture.pixelColor(star * 26 + 7, 15) == Theme::light().text, star < filled);
        QAccessibleInterface* described = QAccessible::queryAccessibleInterface(editor);
        QCOMPARE(described->role(), QAccessible::Slider);
        QCOMPARE(described->valueInterface()->currentValue().toInt(), filled);
    }

    void offsetsArePickedFromTheMenu_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("picked");
        QTest::addColumn<QString>("after");
        QTest::newRow("a value") << QString() << u"+02:00"_s << u"+02:00"_s;
        QTest::newRow("blank") << u"+02:00"_s << u"—"_s << QString();
    }
    void offsetsArePickedFromTheMenu()
    {
        QFETCH(QString, before);
        QFETCH(QString, picked);
        QFETCH(QString, after);
        Test::Stage stage;
        auto* picker = stage.add(new OffsetPicker({ u"+01:00"_s, u"+02:00"_s, u"+05:45"_s }, u"—"_s));
        stage.show();
        picker->setValue(before);
        QCOMPARE(picker->text(), before.isEmpty() ? u"—"_s : before);
        QSignalSpy edits(picker, &OffsetPicker::valueEdited);
        QTest::mouseClick(picker, Qt::LeftButton);
        auto* list = picker->findChild<ChoiceList*>();
        QVERIFY(list && list->isVisible());
        QListWidget* rows = list->rows();
        QCOMPARE(rows->count(), 4);
        QCOMPARE(rows->currentItem()->text(), before.isEmpty() ? u"—"_s : before);
        rows->setCurrentItem(rows->findItems(picked, Qt::MatchExactly).value(0));
        QTest::keyClick(rows, Qt::Key_Return);
        QCOMPARE(edits.value(0).value(0).toString(), after);
        QCOMPARE(edits.count(), 1);
        QTRY_VERIFY(!picker->findChild<ChoiceList*>());
    }

    void aLongListOfOffsetsScrollsToTheValue_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("none") << QString();
        QTest::newRow("in the middle") << u"o20"_s;
        QTest::newRow("at the end") << u"o39"_s;
    }
    void aLongListOfOffsetsScrollsToTheValue()
    {
        QFETCH(QString, value);
        QStringList offsets;
        for (int i = 0; i < 40; ++i)
            offsets.append(u"o%1"_s.arg(i, 2, 10, QLatin1Char('0')));
        Test::Stage stage;
        auto* picker = stage.add(new OffsetPicker(offsets, u"—"_s));
        stage.show();
        picker->setValue(value);
        QSignalSpy edits(picker, &OffsetPicker::valueEdited);
        picker->setFocus();
        QTest::keyClick(picker, Qt::Key_Down);
        auto* list = picker->findChild<ChoiceList*>();
        QVERIFY(list);
        QListWidget* rows = list->rows();
        const QRect shown = rows->viewport()->rect();
        QCOMPARE(shown.height(), 10 * px(28));
        QVERIFY(shown.contains(rows->visualItemRect(rows->currentItem())));
        QCOMPARE(rows->visualItemRect(rows->currentItem()).top() % px(28), 0);
        QCOMPARE(rows->currentItem()->text(), value.isEmpty() ? u"—"_s : value);
        // The first letters lead to a row, Escape takes none, a click takes one.
        QTest::keyClicks(rows, u"o07"_s);
        QCOMPARE(rows->currentItem()->text(), u"o07"_s);
        QTest::keyClick(rows, Qt::Key_Escape);
        QTRY_VERIFY(!picker->findChild<ChoiceList*>());
        QCOMPARE(edits.count(), 0);
        QTest::mouseClick(picker, Qt::LeftButton);
        rows = picker->findChild<ChoiceList*>()->rows();
        rows->scrollToItem(rows->item(12));
        QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, rows->visualItemRect(rows->item(12)).center());
        QCOMPARE(edits.value(0).value(0).toString(), u"o11"_s);
    }

    void copyAndPasteAreInTheMenuOfAField()
    {
        Test::Stage stage;
        auto* field = stage.add(new QBTextField);
        stage.show();
        field->setBoundText(u"Zürich"_s);
        field->selectAll();
        QContextMenuEvent event(QContextMenuEvent::Mouse, { 20, 15 }, field->mapToGlobal(QPoint(20, 15)));
        QApplication::sendEvent(field, &event);
        auto* menu = field->findChild<ThemedMenu*>();
        QVERIFY(menu);
        for (QAction* action : menu->actions()) {
            if (action->text() == u"Cut"_s)
                action->trigger();
        }
        menu->close();
        QCOMPARE(field->text(), QString());
        QCOMPARE(QGuiApplication::clipboard()->text(), u"Zürich"_s);
    }

    void chipOfCodes_data()
    {
        QTest::addColumn<QStringList>("codes");
        QTest::addColumn<int>("room");
        QTest::addColumn<QString>("shown");
        const QStringList three{ u"de"_s, u"en-US"_s, u"fr"_s };
        const QStringList six = three + QStringList{ u"it"_s, u"pl"_s, u"zh-Hans"_s };
        QTest::newRow("one") << three.first(1) << 500 << u"de"_s;
        QTest::newRow("three") << three << 500 << u"de en-US fr"_s;
        QTest::newRow("more") << six << 500 << u"de en-US +4"_s;
        QTest::newRow("less room") << six << 70 << u"de +5"_s;
        QTest::newRow("no room") << six << 10 << u"+6"_s;
    }
    void chipOfCodes()
    {
        QFETCH(QStringList, codes);
        QFETCH(int, room);
        Test::Stage stage;
        auto* chip = stage.add(new CodesChip);
        QList<CodesChip::Code> all;
        for (const QString& code : std::as_const(codes))
            all.append({ code });
        chip->setCodes(all);
        chip->setRoom(room);
        stage.show();
        QTEST(chip->shownText(), "shown");
    }

    // Where something lies over the end of a field, no text and no click of the text's goes.
    void roomAtTheEndOfAField()
    {
        Test::Stage stage;
        auto* field = stage.add(new QBTextField);
        auto* area = stage.add(new QBTextArea);
        stage.show();
        field->setText(QString(u'm').repeated(100));
        area->setBoundText(QString(u'm').repeated(100));
        field->setCursorPosition(0);
        const auto inkAtEnd = [](QWidget* editor) {
            const QImage end = editor->grab(QRect(editor->width() - 90, 10, 80, 10)).toImage();
            return Test::pixelsLike(end, Theme::light().text);
        };
        QVERIFY(inkAtEnd(field) > 0);
        QVERIFY(inkAtEnd(area) > 0);
        field->setRoomAtEnd(100);
        area->setRoomAtEnd(100);
        QCOMPARE(inkAtEnd(field), 0);
        QCOMPARE(inkAtEnd(area), 0);
    }

    void searchMenuFinds_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("all") << QString() << QStringList{ u"de"_s, u"sw"_s, u"en"_s, u"gsw"_s, u"es"_s };
        QTest::newRow("a code first") << u"sw"_s << QStringList{ u"sw"_s, u"gsw"_s };
        QTest::newRow("begin of a name") << u"ger"_s << QStringList{ u"de"_s, u"gsw"_s };
        QTest::newRow("within a name") << u" English"_s << QStringList{ u"en"_s };
        QTest::newRow("an English name") << u"spanish"_s << QStringList{ u"es"_s };
        QTest::newRow("what is not listed") << u"en-gb"_s << QStringList{ u"en-GB"_s };
        QTest::newRow("nothing") << u"xyz"_s << QStringList();
    }
    void searchMenuFinds()
    {
        QFETCH(QString, typed);
        Test::Stage stage;
        auto* opener = stage.add(new CodesChip);
        stage.show();
        auto* menu = new SearchMenu(u"Languages"_s, u"Search"_s, opener);
        menu->setNothingFound(u"Nothing"_s);
        menu->setOther([](const QString& text) {
            return text == u"en-gb"_s ? std::optional(SearchMenuRow{ u"English (UK)"_s, u"en-GB"_s }) : std::nullopt;
        });
        menu->setRows({ { u"German"_s, u"de"_s }, { u"Swahili"_s, u"sw"_s }, { u"American English"_s, u"en"_s },
            { u"Swiss German"_s, u"gsw"_s }, { u"Español"_s, u"es"_s, u"Spanish"_s } });
        menu->open(QRect(opener->mapToGlobal(QPoint()), opener->size()), 240);
        QTest::keyClicks(menu->field(), typed);
        QStringList found;
        for (int row = 0; row < menu->list()->count(); ++row)
            found.append(menu->list()->item(row)->data(Qt::UserRole).toString());
        QTEST(found, "found");
        QCOMPARE(Test::labels(menu).contains(u"Nothing"_s), found.isEmpty());
        QSignalSpy picked(menu, &SearchMenu::picked);
        const QPointer<SearchMenu> open = menu;
        for (const Qt::Key key : { Qt::Key_Down, Qt::Key_Return })
            QTest::keyClick(menu->field(), key);
        QCOMPARE(picked.size(), found.isEmpty() ? 0 : 1);
        if (!found.isEmpty())
            QCOMPARE(picked.at(0).at(0).value<SearchMenuRow>().code, found.value(1, found.first()));
        QCOMPARE(open && open->isVisible(), found.isEmpty());
        delete open;
    }
};

QTEST_MAIN(tst_FieldEditors)
#include "tst_FieldEditors.moc"
