// What folds, what holds codes, and what counts.
#include "tests/ui/LayoutAudit.h"
#include "tests/ui/controls/FormParts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/pickers/CodePopover.h"

#include <QListWidget>
#include <QSignalSpy>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

void keepPicture(QWidget* widget, const QString& name)
{
    if (const QString folder = qEnvironmentVariable("QUORBEL_TEST_PICTURES"); !folder.isEmpty())
        widget->grab().save(folder + u'/' + name + u".png"_s);
}

void setTextSize(qreal points)
{
    QFont font = QApplication::font();
    font.setPointSizeF(points);
    QApplication::setFont(font);
}

CodePopover* openPopover()
{
    return qobject_cast<CodePopover*>(QApplication::activePopupWidget());
}

// How much of the upper edge of an editor has this color, in percent.
int edgeOf(QWidget* editor, const QColor& color)
{
    const QRect edge(20, 0, editor->width() - 40, 1);
    const QImage picture = editor->grab(edge).toImage();
    return 100 * pixelsLike(picture, color) / (picture.width() * picture.height());
}

void show(QWidget* window)
{
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
}

}  // namespace

class tst_FormParts : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { setTextSize(10); }
    void init() { failOnWarnings(); }
    void cleanup() { setTextSize(10); }

    void linesFold_data()
    {
        QTest::addColumn<bool>("open");
        QTest::addColumn<QKeySequence>("key");
        QTest::addColumn<QList<bool>>("asked");
        QTest::newRow("a click opens") << false << QKeySequence() << QList<bool>{ true };
        QTest::newRow("a click folds") << true << QKeySequence() << QList<bool>{ false };
        QTest::newRow("space") << false << QKeySequence(Qt::Key_Space) << QList<bool>{ true };
        QTest::newRow("return") << true << QKeySequence(Qt::Key_Return) << QList<bool>{ false };
        QTest::newRow("right") << false << QKeySequence(Qt::Key_Right) << QList<bool>{ true };
        QTest::newRow("right, open") << true << QKeySequence(Qt::Key_Right) << QList<bool>{};
        QTest::newRow("left") << true << QKeySequence(Qt::Key_Left) << QList<bool>{ false };
        QTest::newRow("left, folded") << false << QKeySequence(Qt::Key_Left) << QList<bool>{};
        QTest::newRow("another's keys") << false << QKeySequence(Qt::ALT | Qt::Key_Right) << QList<bool>{};
    }
    void linesFold()
    {
        QFETCH(bool, open);
        QFETCH(QKeySequence, key);
        QFETCH(QList<bool>, asked);
        FormParts form(Theme::light());
        show(form.window());
        form.contact->setOpen(open);
        form.folded->setOpen(open);
        for (QWidget* line : QList<QWidget*>{ form.contact, form.folded->input() }) {
            QSignalSpy spy(line, SIGNAL(openAsked(bool)));
            line->setFocus(Qt::TabFocusReason);
            if (key.isEmpty())
                QTest::mouseClick(line, Qt::LeftButton);
            else
                QTest::keyClick(line, key[0].key(), key[0].keyboardModifiers());
            QCOMPARE(spy.size(), asked.size());
            if (!asked.isEmpty())
                QCOMPARE(spy.at(0).at(0).toBool(), asked.at(0));
        }
    }

    // The summary while folded, the count while open; and what has no room, in the tooltip.
    void aHeadingSaysWhatIsBelow()
    {
        FormParts form(Theme::light());
        show(form.window());
        form.shown->setOpen(false);
        QVERIFY(audit(form.shown).texts.contains(u"Rapperswil-Jona"_s));
        QVERIFY(!audit(form.shown).texts.contains(u"2 places"_s));
        QCOMPARE(form.shown->toolTip(), QString());
        form.shown->setSummary({ u"Rapperswil-Jona"_s, QString(200, u'm') });
        QCOMPARE(form.shown->toolTip(), form.shown->summary().text());
        form.shown->setOpen(true);
        QVERIFY(!audit(form.shown).texts.contains(u"Rapperswil-Jona"_s));
        QVERIFY(audit(form.shown).texts.contains(u"2 places"_s));
        QCOMPARE(form.shown->toolTip(), QString());
    }

    void screenReadersHearWhatFolds()
    {
        FormParts form(Theme::light());
        show(form.window());
        QAccessibleInterface* heading = QAccessible::queryAccessibleInterface(form.contact);
        QCOMPARE(heading->role(), QAccessible::Button);
        QCOMPARE(heading->text(QAccessible::Name), u"CONTACT"_s);
        QCOMPARE(heading->text(QAccessible::Description), u"edited, Mara Lindqvist · Zürich · 1 phone, 1 e-mail"_s);
        QVERIFY(heading->state().expandable && heading->state().collapsed && !heading->state().expanded);
        QSignalSpy asked(form.contact, &FoldLine::openAsked);
        heading->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(asked.size(), 1);
        form.contact->setOpen(true);
        QVERIFY(heading->state().expanded && !heading->state().collapsed);
        QAccessibleInterface* card = QAccessible::queryAccessibleInterface(form.open);
        QCOMPARE(card->role(), QAccessible::Grouping);
        QCOMPARE(card->text(QAccessible::Name), u"Rapperswil-Jona"_s);
        // Nothing is said twice.
        form.contact->setEdited(false);
        form.contact->setSummary({ u"CONTACT"_s, {} });
        QCOMPARE(heading->text(QAccessible::Description), QString());
    }

    void cardsMoveByKeys()
    {
        FormParts form(Theme::light());
        auto* inner = new ItemCard(u"name"_s);
        auto* field = new QBTextField;
        auto* area = new QBTextArea;
        inner->setSummary({ u"Inner"_s, {} });
        inner->setContent(field);
        form.folded->setContent(area);
        form.open->content()->layout()->addWidget(inner);
        show(form.window());
        for (ItemCard* card : { inner, form.folded }) {
            card->setOpen(true);
            card->setCanMove(true, false);
        }
        form.open->setCanMove(true, true);
        QSignalSpy outerMoves(form.open, &ItemCard::moveAsked);
        QSignalSpy moves(form.folded, &ItemCard::moveAsked);
        QSignalSpy innerMoves(inner, &ItemCard::moveAsked);
        for (QWidget* editor : QList<QWidget*>{ field, area })
            for (const Qt::Key key : { Qt::Key_Up, Qt::Key_Down }) {
                editor->setFocus();
                QTest::keyClick(editor, key, Qt::ControlModifier | Qt::ShiftModifier);
            }
        QCOMPARE(QList<QVariantList>(innerMoves), QList<QVariantList>{ { -1 } });
        QCOMPARE(QList<QVariantList>(moves), QList<QVariantList>{ { -1 } });
        QCOMPARE(outerMoves.size(), 0);
        form.open->input()->setFocus();
        QTest::keyClick(form.open->input(), Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(QList<QVariantList>(outerMoves), QList<QVariantList>{ { 1 } });
        // The keyboard stays where one sees it.
        area->setFocus();
        form.folded->setOpen(false);
        QVERIFY(form.folded->input()->hasFocus());
    }

    void cardsAreRemoved()
    {
        FormParts form(Theme::light());
        show(form.window());
        QSignalSpy asked(form.open, &ItemCard::removeAsked);
        QTest::keyClick(form.open->input(), Qt::Key_Delete);
        QCOMPARE(asked.size(), 0);
        form.open->setOpen(false);
        QTest::keyClick(form.open->input(), Qt::Key_Delete);
        QCOMPARE(asked.size(), 1);
        form.open->setOpen(true);
        form.open->setCanMove(false, true);
        click(button(form.open, u"Actions for this place"_s));
        auto* menu = qobject_cast<ThemedMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        keepPicture(menu, u"card-menu"_s);
        QStringList titles;
        for (const QAction* action : menu->actions())
            if (!action->isSeparator())
                titles.append(action->text() + (action->isEnabled() ? QString() : u" (off)"_s));
        QCOMPARE(titles, QStringList({ u"Copy from Location"_s, u"Move Up (off)"_s, u"Move Down"_s, u"Remove"_s }));
        menu->actions().constLast()->trigger();
        menu->close();
        QCOMPARE(asked.size(), 2);
    }

    // Those of a card begin where those of the form do.
    void editorsAreInLine()
    {
        FormParts form(Theme::light());
        show(form.window());
        const auto* inCard = form.open->content()->findChild<QBTextField*>();
        QCOMPARE(inCard->mapTo(form.open, QPoint()).x(), px(EditedDot::room + 104 + 7));
        QCOMPARE(form.open->width() - inCard->mapTo(form.open, QPoint(inCard->width(), 0)).x(), px(11));
        QCOMPARE(form.folded->height(), px(42));
        QCOMPARE(form.contact->height(), px(34));
    }

    void codesArePicked_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("keys");  // "v" Down, "^" Up, "!" Return, "~" Escape, "<" Backspace; else typed
        QTest::addColumn<QStringList>("rows");  // the first of those in the list at the end; none while it is closed
        QTest::addColumn<QString>("after");
        const QString first = u"Digital capture sampled from real life"_s;
        const auto row = [](const char* name, const QString& before, const QString& keys, const QStringList& rows,
                             const QString& after) { QTest::newRow(name) << before << keys << rows << after; };
        row("opens at the code", u"c4"_s, u"v"_s, { u"None"_s, first }, u"c4"_s);
        row("and returns it", u"c4"_s, u"v!"_s, {}, u"c4"_s);
        row("typed", {}, u"vSCREEN!"_s, {}, u"c4"_s);
        row("typed on the closed field", {}, u"captu"_s, { first, u"Multi-frame computational capture"_s }, {});
        row("the next but one", {}, u"captuvv!"_s, {}, u"c3"_s);
        row("round the end", {}, u"captu^!"_s, {}, u"c4"_s);
        row("escape", u"c4"_s, u"vneg~"_s, {}, u"c4"_s);
        row("none", u"c2"_s, u"v^^!"_s, {}, {});
        row("backspace", u"c2"_s, u"<"_s, {}, {});
        row("nothing found", u"c2"_s, u"vqqq!"_s, {}, u"c2"_s);
        row("an unknown code is there", u"9x9"_s, u"v"_s, { u"None"_s, u"9x9"_s, first }, u"9x9"_s);
        row("and can be found", u"9x9"_s, u"v9x!"_s, {}, u"9x9"_s);
    }
    void codesArePicked()
    {
        QFETCH(QString, before);
        QFETCH(QString, keys);
        QFETCH(QStringList, rows);
        FormParts form(Theme::light());
        show(form.window());
        form.code->setCode(before);
        form.code->setFocus();
        const QMap<QChar, Qt::Key> named{ { u'v', Qt::Key_Down }, { u'^', Qt::Key_Up }, { u'!', Qt::Key_Return },
            { u'~', Qt::Key_Escape }, { u'<', Qt::Key_Backspace } };
        for (const QChar key : std::as_const(keys)) {
            QWidget* focus = openPopover() ? static_cast<QWidget*>(openPopover()->field()) : form.code;
            if (!named.contains(key))
                QTest::keyClick(focus, key.toLatin1());
            else
                QTest::keyClick(focus, named.value(key));
        }
        CodePopover* list = openPopover();
        QStringList shown;
        for (int i = 0; list && i < rows.size(); ++i)
            shown.append(list->list()->item(i) ? list->list()->item(i)->text() : QString());
        QCOMPARE(shown, rows);
        if (list)
            list->close();
        QTEST(form.code->code(), "after");
    }

    void aListOfCodesSaysWhatItFound_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void aListOfCodesSaysWhatItFound()
    {
        QFETCH(bool, dark);
        FormParts form(dark ? Theme::dark() : Theme::light());
        show(form.window());
        form.code->setFocus();
        QTest::keyClick(form.code, Qt::Key_Down);
        CodePopover* list = openPopover();
        QVERIFY(list);
        const int high = list->height();
        const auto keep = [&](const QString& what) {
            keepPicture(list, u"codes-%1-%2"_s.arg(what, dark ? u"dark"_s : u"light"_s));
        };
        keep(u"all"_s);
        QVERIFY(audit(list).texts.contains(u"20 of 20 · stored as a code"_s));
        QTest::keyClicks(list->field(), u"captu"_s);
        keep(u"found"_s);
        QVERIFY(audit(list).texts.contains(u"4 of 20 · stored as a code"_s));
        QCOMPARE(high - list->height(), 2 * px(44));
        QAccessibleInterface* picker = QAccessible::queryAccessibleInterface(form.code);
        QCOMPARE(picker->role(), QAccessible::ComboBox);
        QCOMPARE(picker->text(QAccessible::Value), u"Digital capture sampled from real life"_s);
        QVERIFY(picker->state().expanded);
        QAccessibleInterface* rows = QAccessible::queryAccessibleInterface(list->list());
        QCOMPARE(rows->child(0)->text(QAccessible::Name),
            u"Digital capture sampled from real life, Taken with a camera, chosen"_s);
        QCOMPARE(rows->child(3)->text(QAccessible::Name), u"Screen capture, What a display showed"_s);
        QTest::keyClicks(list->field(), u"qqq"_s);
        keep(u"nothing"_s);
        QVERIFY(labels(list).contains(u"Nothing found"_s));
        list->close();
        QVERIFY(picker->state().collapsed);
    }

    // What one types must not move the field under it, wherever there is room for the list.
    void theFieldOfAListStays_data()
    {
        QTest::addColumn<int>("above");
        QTest::newRow("opens below") << 0;
        QTest::newRow("opens above") << 310;
    }
    void theFieldOfAListStays()
    {
        QFETCH(int, above);
        Stage stage;
        stage.add(new QWidget)->setFixedHeight(above);
        auto* picker = stage.add(new CodePicker(u"Code"_s));
        picker->setSource(codes());
        picker->setPlaceholder(u"Required by "_s + QString(80, u'm'));
        stage.show();
        QTest::keyClick(picker, Qt::Key_Down);
        CodePopover* list = openPopover();
        QVERIFY(list);
        const auto top = [list] { return list->field()->mapToGlobal(QPoint()); };
        const QPoint before = top();
        QCOMPARE(before.y() < picker->mapToGlobal(QPoint()).y(), above > 0);
        for (const QString& typed : { u"captu"_s, u"captuq"_s, u"c"_s, QString() }) {
            list->field()->setText(typed);
            QCOMPARE(top(), before);
        }
        list->close();
        QVERIFY(audit(picker).faults.isEmpty());
    }

    // The owner keeps them, as the form does.
    void severalCodes()
    {
        FormParts form(Theme::light());
        CodesPicker* picker = form.subjects;
        const auto change = [picker](const QString& code, bool adds) {
            QStringList codes = picker->codes();
            if (adds)
                codes.append(code);
            else
                codes.removeOne(code);
            picker->setCodes(codes);
        };
        connect(picker, &CodesPicker::added, this, [&](const QString& code) { change(code, true); });
        connect(picker, &CodesPicker::removed, this, [&](const QString& code) { change(code, false); });
        show(form.window());
        const auto pick = [&](const QString& typed) {
            QTest::keyClick(picker->input(), Qt::Key_Down);
            QVERIFY(openPopover());
            QTest::keyClicks(openPopover()->field(), typed);
            QTest::keyClick(openPopover()->field(), Qt::Key_Return);
        };
        pick(u"multi"_s);
        QCOMPARE(picker->codes(), QStringList({ u"c4"_s, u"c3"_s, u"http://x.y/9x9"_s, u"c2"_s }));
        pick(u"screen"_s);
        QCOMPARE(picker->codes(), QStringList({ u"c3"_s, u"http://x.y/9x9"_s, u"c2"_s }));
        click(button(picker, u"Remove http://x.y/9x9"_s));
        picker->input()->setFocus(Qt::TabFocusReason);
        for (const Qt::Key key : { Qt::Key_Left, Qt::Key_Left, Qt::Key_Delete })
            QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(picker->codes(), QStringList{ u"c2"_s });
        QCOMPARE(QApplication::focusWidget()->accessibleName(), u"Multi-frame computational capture"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
        picker->setPlaceholder(u"Required by "_s + QString(80, u'm'));
        QCOMPARE(audit(picker).faults, QStringList());
        QCOMPARE(picker->codes(), QStringList());
        QVERIFY(picker->input()->hasFocus());
        QTRY_COMPARE(picker->height(), px(30));
    }

    // Dashes while nothing is in it, to be read though no content.
    void wantedFieldsHaveDashes_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void wantedFieldsHaveDashes()
    {
        QFETCH(bool, dark);
        const Theme& theme = dark ? Theme::dark() : Theme::light();
        Stage stage(theme);
        auto* field = stage.add(new QBTextField);
        auto* area = stage.add(new QBTextArea);
        auto* keywords = stage.add(new KeywordEditor);
        auto* code = stage.add(new CodePicker(u"Code"_s));
        auto* codes = stage.add(new CodesPicker(u"Codes"_s, u"Add"_s));
        const auto setWanted = [](auto* editor) {
            editor->setPlaceholder(u"████"_s);
            editor->setWanted(true);
        };
        setWanted(field);
        setWanted(area);
        setWanted(keywords);
        setWanted(code);
        setWanted(codes);
        stage.show();
        const QList<QWidget*> all{ field, area, keywords, code, codes };
        for (QWidget* editor : all) {
            const int dashes = edgeOf(editor, theme.derived.dashedLine);
            QVERIFY2(dashes > 30 && dashes < 80, qPrintable(QString::number(dashes)));
            QVERIFY(pixelsLike(editor->grab().toImage(), theme.derived.label) > 50);
        }
        field->setText(u"x"_s);
        area->setBoundText(u"x"_s);
        keywords->setChips({ u"x"_s });
        code->setCode(u"x"_s);
        codes->setCodes({ u"x"_s });
        for (QWidget* editor : all)
            QCOMPARE(edgeOf(editor, theme.fieldLine), 100);
    }

    void charactersAreCounted_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("count");
        QTest::newRow("none") << QString() << 0;
        QTest::newRow("lines") << u"a\nb"_s << 3;
        QTest::newRow("an accent of its own") << u"Zu\u0308rich"_s << 6;
        QTest::newRow("one emoji of several") << u"👩‍🚒!"_s << 2;
        QTest::newRow("as many as can be") << QString(250, u'x') << 250;
        QTest::newRow("too many") << QString(251, u'x') << 251;
    }
    void charactersAreCounted()
    {
        QFETCH(QString, text);
        FormParts form(Theme::light());
        show(form.window());
        form.area->setBoundText(text);
        QTEST(form.count->count(), "count");
        QVERIFY(labels(form.count).contains(u"%1 of 250"_s.arg(form.count->count())));
        const int amber = pixelsLike(form.count->grab().toImage(), Theme::light().derived.amberText);
        QCOMPARE(amber > 0, text.size() > 250);
        form.area->setFocus();
        QTest::keyClicks(form.area, u"more"_s);
        QVERIFY(form.area->text().contains(u"more"_s));
    }

    // Nothing is cut off or covered, whatever the size of texts; and all of it can be hit.
    void partsFitAtAnySize_data()
    {
        QTest::addColumn<qreal>("points");
        QTest::addColumn<int>("width");
        for (const int width : { 330, 520 })
            for (const qreal points : { 9, 11, 14, 17, 20 })
                QTest::addRow("%g pt, %d wide", points, width) << points << width;
    }
    void partsFitAtAnySize()
    {
        QFETCH(qreal, points);
        QFETCH(int, width);
        for (const Theme& theme : { Theme::light(), Theme::dark() }) {
            FormParts form(theme, width);
            show(form.window());
            setTextSize(points);
            // Each line that is added somewhere moves what is around it.
            for (int i = 0; i < 4; ++i) {
                form.window()->resize(width, form.window()->sizeHint().height());
                QTest::qWait(0);
            }
            (theme.isDark ? form.folded->input() : form.contact)->setFocus(Qt::TabFocusReason);
            keepPicture(
                form.window(), u"parts-%1-%2-%3pt"_s.arg(theme.isDark ? u"dark"_s : u"light"_s).arg(width).arg(points));
            const QStringList faults = audit(form.window()).faults;
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
            QList<QWidget*> targets{ form.contact, form.code, form.subjects->input(), form.folded->input() };
            targets += form.open->tabStops();
            for (const QWidget* target : std::as_const(targets))
                QVERIFY(target->height() >= px(24));
        }
    }
};

QTEST_MAIN(tst_FormParts)
#include "tst_FormParts.moc"
