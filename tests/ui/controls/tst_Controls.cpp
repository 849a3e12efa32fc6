#include "tests/ui/UiSupport.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/ResizeHandle.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/ThemedMenuBar.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/ToolTips.h"
#include "ui/controls/pickers/SegmentedPicker.h"
#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/PopupFrame.h"

#include <QHelpEvent>
#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

// What surrounds a control, where its ring would be.
int ringPixels(QWidget* control)
{
    const QPoint topLeft = control->mapTo(control->window(), QPoint(0, 0));
    const QRect around = QRect(topLeft, control->size()).adjusted(-5, -5, 5, 5);
    return Test::pixelsLike(control->window()->grab(around).toImage(), Theme::of(control).focus);
}

class PaintCounter final : public QObject {
public:
    explicit PaintCounter(QWidget* widget)
        : QObject(widget)
    {
        widget->installEventFilter(this);
    }
    int count() const { return m_count; }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int m_count = 0;
};

}  // namespace

class tst_Controls : public QObject {
    Q_OBJECT

private slots:
    void init() { Test::failOnWarnings(); }

    void buttonsAnswerToMouseAndKeyboard_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<int>("clicks");
        QTest::newRow("mouse") << 0 << true << 1;
        QTest::newRow("space") << int(Qt::Key_Space) << true << 1;
        QTest::newRow("return") << int(Qt::Key_Return) << true << 1;
        QTest::newRow("disabled, mouse") << 0 << false << 0;
        QTest::newRow("disabled, return") << int(Qt::Key_Return) << false << 0;
    }
    void buttonsAnswerToMouseAndKeyboard()
    {
        QFETCH(int, key);
        QFETCH(bool, enabled);
        Test::Stage stage;
        const QList<ThemedButton*> buttons{ stage.add(new QBButton(u"Save"_s, QBButtonKind::primary)),
            stage.add(new QBIconButton(u"plus"_s, u"Add"_s)), stage.add(new QBTextButton(u"Select all"_s)),
            stage.add(new TokenChip(u"Date"_s)), stage.add(new QBCheckbox(u"Tick"_s, nullptr)) };
        stage.show();
        for (ThemedButton* button : buttons) {
            QSignalSpy clicked(button, &QAbstractButton::clicked);
            button->setEnabled(enabled);
            button->setFocus(Qt::TabFocusReason);
            if (key == 0)
                QTest::mouseClick(button, Qt::LeftButton);
            else
                QTest::keyClick(button, Qt::Key(key));
            QTEST(int(clicked.count()), "clicks");
        }
    }

    void disabledPrimaryHasAFillOfItsOwn()
    {
        Test::Stage stage;
        auto* button = stage.add(new QBButton(u"Save"_s, QBButtonKind::primary));
        stage.show();
        QCOMPARE(Test::colorAt(button, { 5, 15 }), Theme::light().accent);
        button->setEnabled(false);
        QCOMPARE(Test::colorAt(button, { 5, 15 }), Theme::light().derived.primaryOff);
    }

    void aCheckboxOnlyShowsItsState()
    {
        Test::Stage stage;
        auto* box = stage.add(new QBCheckbox);
        stage.show();
        QTest::mouseClick(box, Qt::LeftButton);
        QVERIFY(!box->isChecked());
        QCOMPARE(Test::colorAt(box, { 8, 3 }), Theme::light().field);
        box->setChecked(true);
        QCOMPARE(Test::colorAt(box, { 8, 3 }), Theme::light().accent);
        box->setAmber(true);
        QCOMPARE(Test::colorAt(box, { 8, 3 }), Theme::light().amber);
    }

    void aSwitchFlipsItself()
    {
        Test::Stage stage;
        auto* box = stage.add(new QBSwitch);
        stage.show();
        QSignalSpy toggled(box, &QAbstractButton::toggled);
        QTest::mouseClick(box, Qt::LeftButton);
        QCOMPARE(Test::colorAt(box, { 5, 10 }), Theme::light().accent);
        QTest::keyClick(box, Qt::Key_Space);
        QCOMPARE(Test::colorAt(box, { 29, 10 }), Theme::light().scroll);
        QCOMPARE(toggled.count(), 2);
    }

    void aPickerIsDrivenByMouseAndArrows()
    {
        Test::Stage stage;
        auto* picker = stage.add(new SegmentedPicker({ u"System"_s, u"Light"_s, u"Dark"_s }));
        stage.show();
        QSignalSpy picked(picker, &SegmentedPicker::picked);
        QTest::mouseClick(picker, Qt::LeftButton, {}, QPoint(190, 15));
        QCOMPARE(picker->currentIndex(), 2);
        QTest::keyClick(picker, Qt::Key_Right);
        QTest::keyClick(picker, Qt::Key_Left);
        QTest::keyClick(picker, Qt::Key_Home);
        QCOMPARE(picker->currentIndex(), 0);
        QCOMPARE(picked.count(), 3);
    }

    void aPickerSpeaksAsRadioButtons()
    {
        Test::Stage stage;
        auto* picker = stage.add(new SegmentedPicker({ u"Into the file"_s, u"Beside it"_s }));
        picker->setAccessibleName(u"Edits"_s);
        picker->setSpoken({ u"Write into the file"_s, u"Write beside it"_s });
        stage.show();
        const QAccessibleInterface* group = QAccessible::queryAccessibleInterface(picker);
        QCOMPARE(group->role(), QAccessible::Grouping);
        QCOMPARE(group->text(QAccessible::Name), u"Edits"_s);
        QCOMPARE(group->childCount(), 2);
        QAccessibleInterface* beside = group->child(1);
        QCOMPARE(beside->role(), QAccessible::RadioButton);
        QCOMPARE(beside->text(QAccessible::Name), u"Write beside it"_s);
        QVERIFY(!beside->state().checked);
        QCOMPARE(group->indexOfChild(beside), 1);
        QSignalSpy picked(picker, &SegmentedPicker::picked);
        beside->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(picked.count(), 1);
        QVERIFY(beside->state().checked && !group->child(0)->state().checked);
        picker->setFocus();
        QCOMPARE(group->focusChild(), beside);
    }

    void theHandleKeepsWithinItsLimits_data()
    {
        QTest::addColumn<int>("dragBy");
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<double>("width");
        QTest::newRow("drag right") << 40 << QList<int>{} << 328.0;
        QTest::newRow("drag left beyond") << -300 << QList<int>{} << 200.0;
        QTest::newRow("drag right beyond") << 300 << QList<int>{} << 420.0;
        QTest::newRow("right arrow") << 0 << QList<int>{ Qt::Key_Right, Qt::Key_Right } << 308.0;
        QTest::newRow("end, then right") << 0 << QList<int>{ Qt::Key_End, Qt::Key_Right } << 420.0;
        QTest::newRow("home") << 0 << QList<int>{ Qt::Key_Home } << 200.0;
    }
    void theHandleKeepsWithinItsLimits()
    {
        QFETCH(int, dragBy);
        QFETCH(QList<int>, keys);
        QFETCH(double, width);
        Test::Stage stage;
        auto* handle = stage.add(new ResizeHandle(288, 200, 420, 288));
        stage.show();
        double told = 0;
        connect(handle, &ResizeHandle::widthSettled, this, [&told](double w) { told = w; });
        if (dragBy != 0) {
            QTest::mousePress(handle, Qt::LeftButton, {}, QPoint(3, 10));
            QTest::mouseMove(handle, QPoint(3 + dragBy, 10));
            QTest::mouseRelease(handle, Qt::LeftButton, {}, QPoint(3 + dragBy, 10));
        }
        for (const int key : keys)
            QTest::keyClick(handle, Qt::Key(key));
        QCOMPARE(handle->columnWidth(), width);
        QCOMPARE(told, width);
    }

    void assistiveToolsMoveTheHandle_data()
    {
        QTest::addColumn<double>("asked");
        QTest::addColumn<double>("width");
        QTest::newRow("within") << 320.0 << 320.0;
        QTest::newRow("beyond") << 900.0 << 420.0;
    }
    void assistiveToolsMoveTheHandle()
    {
        QFETCH(double, asked);
        QFETCH(double, width);
        Test::Stage stage;
        auto* handle = stage.add(new ResizeHandle(288, 200, 420, 288));
        stage.show();
        QSignalSpy changed(handle, &ResizeHandle::widthChanged);
        QSignalSpy settled(handle, &ResizeHandle::widthSettled);
        QAccessible::queryAccessibleInterface(handle)->valueInterface()->setCurrentValue(asked);
        QCOMPARE(handle->columnWidth(), width);
        QCOMPARE(changed.value(0).value(0).toDouble(), width);
        QCOMPARE(settled.value(0).value(0).toDouble(), width);
    }

    void ringsShowForTheKeyboardOnly()
    {
        Test::Stage stage;
        auto* button = stage.add(new QBButton(u"Save"_s));
        stage.add(new ThemedLabel(u"Far enough for the rings not to meet"_s));
        auto* other = stage.add(new QBButton(u"Cancel"_s));
        stage.show();
        const int none = ringPixels(button);
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(button->hasFocus());
        QCOMPARE(ringPixels(button), none);
        other->setFocus(Qt::TabFocusReason);
        button->setFocus(Qt::BacktabFocusReason);
        QVERIFY(ringPixels(button) > none + 100);
        other->setFocus(Qt::TabFocusReason);
        QCOMPARE(ringPixels(button), none);
    }

    void aRingFollowsItsControlThroughAScroll()
    {
        Test::Stage stage;
        auto* area = stage.add(new QScrollArea);
        area->setMinimumHeight(300);
        auto* content = new QWidget;
        content->resize(300, 1000);
        auto* button = new QBButton(u"Save"_s, QBButtonKind::secondary, content);
        button->setGeometry(20, 200, 80, 30);
        area->setWidget(content);
        stage.show();
        button->setFocus(Qt::TabFocusReason);
        const int shown = ringPixels(button);
        area->verticalScrollBar()->setValue(100);
        QCOMPARE(ringPixels(button), shown);
        button->move(40, 220);
        QCOMPARE(ringPixels(button), shown);
    }

    void aFocusedControlAtRestPaintsNothing()
    {
        Test::Stage stage;
        auto* button = stage.add(new QBButton(u"Save"_s));
        stage.show();
        button->setFocus(Qt::TabFocusReason);
        QTest::qWait(50);
        PaintCounter counter(button);
        QTest::qWait(100);
        QCOMPARE(counter.count(), 0);
        button->update();
        QTest::qWait(50);
        QCOMPARE(counter.count(), 1);
    }

    void screenReadersAreToldWhatThingsAre_data()
    {
        QTest::addColumn<QWidget*>("widget");
        QTest::addColumn<QAccessible::Role>("role");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("action");
        const auto row = [](const char* title, QWidget* widget, QAccessible::Role role, const QString& name,
                             const QString& action) { QTest::newRow(title) << widget << role << name << action; };
        row("button", new QBButton(u"Save"_s), QAccessible::Button, u"Save"_s, u"Press"_s);
        row("icon", new QBIconButton(u"plus"_s, u"Add"_s), QAccessible::Button, u"Add"_s, u"Press"_s);
        row("check box", new QBCheckbox(u"Tick"_s, nullptr), QAccessible::CheckBox, u"Tick"_s, u"Toggle"_s);
        row("section", new SectionHeader(u"COMMON"_s), QAccessible::Heading, u"COMMON"_s, {});
        auto* narrow = new ThemedLabel(u"Too long to be seen"_s, TextRole::text);
        narrow->setToolTip(narrow->text());
        row("shortened label", narrow, QAccessible::StaticText, u"Too long to be seen"_s, {});
        row("divider", new LabeledDivider(u"ADVANCED"_s), QAccessible::Heading, u"ADVANCED"_s, {});
        row("handle", new ResizeHandle(288, 200, 420, 288), QAccessible::Splitter, u"Column width"_s, {});
    }
    void screenReadersAreToldWhatThingsAre()
    {
        QFETCH(QWidget*, widget);
        QFETCH(QString, action);
        const std::unique_ptr<QWidget> owner(widget);
        QAccessibleInterface* described = QAccessible::queryAccessibleInterface(widget);
        QVERIFY(described);
        QTEST(described->role(), "role");
        QTEST(described->text(QAccessible::Name), "name");
        QVERIFY(described->text(QAccessible::Description) != described->text(QAccessible::Name));
        if (action.isEmpty())
            return;
        QSignalSpy clicked(qobject_cast<QAbstractButton*>(widget), &QAbstractButton::clicked);
        described->actionInterface()->doAction(action);
        QCOMPARE(clicked.count(), 1);
    }

    void aMenuMarksWhatIsOnAndRunsWhatIsChosen()
    {
        Test::Stage stage;
        stage.show();
        ThemedMenu menu(stage.window());
        menu.addHeader(u"Sort by"_s);
        QAction* first = menu.addAction(u"Name"_s);
        QAction* second = menu.addAction(u"Date"_s);
        first->setCheckable(true);
        first->setChecked(true);
        QSignalSpy chosen(second, &QAction::triggered);
        menu.popup(stage.window()->mapToGlobal(QPoint(10, 10)));
        QCOMPARE(menu.actionGeometry(second).height(), px(28));
        QTest::mouseMove(&menu, menu.actionGeometry(second).center());
        menu.setActiveAction(second);
        QCOMPARE(Test::colorAt(&menu, menu.actionGeometry(second).center() + QPoint(40, 9)), Theme::light().sel);
        const QRect mark(menu.actionGeometry(first).topLeft() + QPoint(8, 0), QSize(14, 28));
        const QImage checked = menu.grab(mark).toImage();
        first->setChecked(false);
        QVERIFY(menu.grab(mark).toImage() != checked);
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(second).center());
        QCOMPARE(chosen.count(), 1);
        QVERIFY(!menu.isVisible());
    }

    void aMenuStandsOutFromThePanel_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<bool>("composed");
        QTest::newRow("light") << false << true;
        QTest::newRow("dark") << true << true;
        QTest::newRow("light, nothing composes windows") << false << false;
    }
    void aMenuStandsOutFromThePanel()
    {
        QFETCH(bool, dark);
        QFETCH(bool, composed);
        const Theme& theme = dark ? Theme::dark() : Theme::light();
        PopupFrame::setComposed([composed] { return composed; });
        const auto restore = qScopeGuard([] { PopupFrame::setComposed({}); });
        Test::Stage stage(theme);
        auto* anchor = stage.add(new QBButton(u"Menu"_s));
        stage.show();
        ThemedMenu menu(stage.window());
        QAction* only = menu.addAction(u"Name"_s);
        menu.popUpUnder(anchor);
        const QRect row = menu.actionGeometry(only);
        QImage picture(menu.size(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        menu.render(&picture, {}, {}, QWidget::DrawChildren);
        const auto at = [&](QPoint pos) { return picture.pixelColor(pos); };
        // The edge, half-way down the left side, and 4 pixels beyond it.
        QPoint edge(row.left(), row.center().y());
        while (at(edge - QPoint(1, 0)) == theme.panel)
            edge -= QPoint(1, 0);
        edge -= QPoint(1, 0);
        QVERIFY(Test::contrast(at(edge), theme.panel) > 1.35);
        const QPoint box = menu.mapToGlobal(QPoint(edge.x(), 0));
        QVERIFY2(std::abs(box.x() - anchor->mapToGlobal(QPoint()).x()) <= 1, "the box, not the shadow, is in line");
        if (composed) {
            QVERIFY(at(edge - QPoint(4, 0)).alpha() > 8);
            QVERIFY(at(QPoint(row.center().x(), picture.height() - 24)).alpha() > 8);
            QVERIFY(at({ 0, 0 }).alpha() < 8);
        } else {
            QCOMPARE(edge.x(), 0);
        }
        // A click beside the box, on the shadow or not, closes it.
        QTest::mouseClick(&menu, Qt::LeftButton, {}, edge - QPoint(4, 0));
        QVERIFY(!menu.isVisible());
    }

    void theMouseOnAShadowMeansTheMenuBarBelow()
    {
        Test::Stage stage;
        auto* bar = stage.add(new ThemedMenuBar);
        QList<ThemedMenu*> menus;
        for (const QString& title : { u"File"_s, u"Edit"_s }) {
            menus.append(new ThemedMenu(title, bar));
            menus.last()->addAction(u"A command with a long name"_s);
            bar->addMenu(menus.last());
        }
        stage.show();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menus.at(0)->menuAction()).center());
        QTRY_VERIFY(menus.at(0)->isVisible());
        const QPoint onEdit = bar->actionGeometry(menus.at(1)->menuAction()).center() + QPoint(0, 6);
        const QPoint inFile = menus.at(0)->mapFromGlobal(bar->mapToGlobal(onEdit));
        QVERIFY2(menus.at(0)->rect().contains(inFile), "the shadow reaches over the bar");
        QTest::mouseMove(menus.at(0), inFile);
        QTRY_VERIFY(menus.at(1)->isVisible());
        menus.at(1)->close();
    }

    // Qt repaints the place of an entry, and drops its menu from there: it must be all that is painted for it.
    void anEntryOfTheMenuBarIsAsHighAsTheBar()
    {
        Test::Stage stage;
        auto* bar = stage.add(new ThemedMenuBar);
        auto* menu = new ThemedMenu(u"File"_s, bar);
        menu->addAction(u"A command"_s);
        bar->addMenu(menu);
        stage.show();
        const QRect entry = bar->actionGeometry(menu->menuAction());
        QCOMPARE(entry.top(), 0);
        QCOMPARE(entry.height(), bar->height());
    }

    void popupsDropDownWhereThereIsRoom_data()
    {
        QTest::addColumn<QRect>("anchor");
        QTest::addColumn<QPoint>("topLeft");
        QTest::newRow("below") << QRect(100, 100, 150, 30) << QPoint(100, 133);
        QTest::newRow("above") << QRect(100, 700, 150, 30) << QPoint(100, 397);
        QTest::newRow("not beyond the right edge") << QRect(950, 100, 150, 30) << QPoint(824, 133);
        QTest::newRow("not beyond the left edge") << QRect(-50, 100, 150, 30) << QPoint(0, 133);
    }
    void popupsDropDownWhereThereIsRoom()
    {
        QFETCH(QRect, anchor);
        QFETCH(QPoint, topLeft);
        QCOMPARE(PopupFrame::placed(anchor, { 200, 300 }, { 0, 0, 1024, 768 }), QRect(topLeft, QSize(200, 300)));
    }

    void theOverlayScrollBarDragsTheView()
    {
        Test::Stage stage;
        auto* area = stage.add(new QScrollArea);
        area->setFixedSize(200, 200);
        auto* content = new QWidget;
        content->resize(180, 1000);
        area->setWidget(content);
        OverlayScrollBar* bar = OverlayScrollBar::attach(area);
        stage.show();
        QVERIFY(bar->isVisible());
        QTest::mousePress(bar, Qt::LeftButton, {}, QPoint(5, 10));
        QTest::mouseMove(bar, QPoint(5, 300));
        QTest::mouseRelease(bar, Qt::LeftButton, {}, QPoint(5, 300));
        QCOMPARE(area->verticalScrollBar()->value(), area->verticalScrollBar()->maximum());
        content->resize(180, 100);
        QTRY_VERIFY(!bar->isVisible());
    }

    void anElidedLabelTellsTheRestInItsTooltip()
    {
        Test::Stage stage;
        auto* label = stage.add(new ThemedLabel(u"A rather long file name that goes on.jpg"_s));
        label->setElided(true);
        label->setFixedWidth(80);
        stage.show();
        QCOMPARE(label->toolTip(), label->text());
        label->setFixedWidth(450);
        QCOMPARE(label->toolTip(), QString());
    }

    void rowsOfAListHaveTooltipsOfTheTheme()
    {
        Test::Stage stage;
        const ToolTips tips;
        auto* list = stage.add(new QListWidget);
        for (const QString& tip : { u"one"_s, u"<two>"_s })
            (new QListWidgetItem(u"row"_s, list))->setToolTip(tip);
        stage.show();
        const QPoint second = list->visualItemRect(list->item(1)).center();
        QHelpEvent help(QEvent::ToolTip, second, list->viewport()->mapToGlobal(second));
        QApplication::sendEvent(list->viewport(), &help);
        const auto* shown = list->viewport()->findChild<QLabel*>();
        QVERIFY(shown && shown->isVisible());
        QCOMPARE(shown->text(), u"<two>"_s);
        QCOMPARE(shown->palette().color(QPalette::WindowText), Theme::light().selText);
    }
};

QTEST_MAIN(tst_Controls)
#include "tst_Controls.moc"
