// The inspector and the list while photos are read, as a person meets them. A gate holds back what is to stay unread.
#include "app/model/AppModel.h"
#include "tests/ui/UiSupport.h"
#include "tests/ui/inspector/HalfRead.h"
#include "ui/controls/Toggles.h"
#include "ui/inspector/CameraSection.h"
#include "ui/inspector/KeptField.h"
#include "ui/inspector/head/BatchBanner.h"
#include "ui/inspector/head/PhotoHeader.h"
#include "ui/places/MapPreview.h"
#include "ui/window/ProgressFoot.h"

#include <QApplication>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

QScrollBar* barOf(const HalfRead& f)
{
    return f.view->findChild<QScrollArea*>()->verticalScrollBar();
}

QAbstractButton* footerButton(const HalfRead& f, const QString& name)
{
    return button(f.view->findChild<InspectorFooter*>(), name);
}

QStringList footerLabels(const HalfRead& f)
{
    return labels(f.view->findChild<InspectorFooter*>());
}

bool saysReading(const HalfRead& f)
{
    return labels(f.view->findChild<InspectorForm*>()).contains(u"Reading…"_s);
}

void type(QWidget* field, const QString& text)
{
    QTest::mouseClick(field, Qt::LeftButton);
    QTest::keyClicks(QApplication::focusWidget(), text);
}

// What can be typed into, ticked or pressed in a form now.
QStringList controls(const QWidget* form)
{
    QStringList names;
    for (const QWidget* widget : form->findChildren<QWidget*>())
        if (widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus)
            names.append(widget->accessibleName());
    return names;
}

}  // namespace

class tst_UnreadPhotos : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^(?!.*propagateSizeHints)."_s)); }
    void blocksUntilTheRecordComes();
    void nothingFlashesForARecordThatComesSoon();
    void theKeyboardComesBack();
    void theScrollPositionStays();
    void aBatchCountsWhatIsKnown();
    void noneOfABatchIsRead();
    void applyWaitsForTheRest();
    void theFootKeepsItsWordsForAShortSave();
};

void tst_UnreadPhotos::blocksUntilTheRecordComes()
{
    HalfRead f;
    QVERIFY(f.openHalf());
    const auto* form = f.view->findChild<InspectorForm*>();
    QTRY_VERIFY(saysReading(f));
    QCOMPARE(f.photos.primary(), u"a.jpg"_s);
    QCOMPARE(labels(f.view->findChild<PhotoHeader*>()).first(), u"a.jpg"_s);
    QVERIFY(labels(f.view->findChild<PhotoHeader*>()).last().startsWith(u"JPEG · "_s));
    QCOMPARE(controls(form), QStringList());
    QCOMPARE(form->accessibleName(), u"Reading metadata"_s);
    for (const QString& id : { u"title"_s, u"description"_s, u"date"_s, u"keywords"_s, u"coords"_s, u"rating"_s })
        QVERIFY2(f.row(id) && f.row(id)->isVisible(), qPrintable(id));
    QCOMPARE(f.row(u"title"_s)->height(), 30);
    QCOMPARE(f.row(u"description"_s)->height(), 54);
    QVERIFY(!f.view->findChild<CameraSection*>()->isVisible());
    QVERIFY(!f.view->findChild<MapPreview*>()->isVisible());
    QVERIFY(!f.model().canRename());
    for (const QString& name : { u"Rename…"_s, u"Add field"_s, u"Save"_s })
        QVERIFY2(footerButton(f, name) && !footerButton(f, name)->isEnabled(), qPrintable(name));

    QVERIFY(f.readAll());
    QVERIFY(!saysReading(f));
    QCOMPARE(form->accessibleName(), QString());
    QCOMPARE(f.editor<QBTextField>(u"title"_s)->text(), u"One"_s);
    QVERIFY(f.editor<QBTextField>(u"title"_s)->isVisible());
    QVERIFY(f.view->findChild<CameraSection*>()->isVisible());
    QVERIFY(f.view->findChild<MapPreview*>()->isVisible());
    QVERIFY(footerButton(f, u"Rename…"_s)->isEnabled() && footerButton(f, u"Add field"_s)->isEnabled());
    type(f.editor<QBTextField>(u"title"_s), u"!"_s);
    QCOMPARE(f.model().unsavedCount(), 1);
}

// What was there stays for a moment, out of reach.
void tst_UnreadPhotos::nothingFlashesForARecordThatComesSoon()
{
    HalfRead f;
    QVERIFY(f.openHalf());
    f.click(u"b.jpg"_s);
    auto* title = f.editor<QBTextField>(u"title"_s);
    QCOMPARE(title->text(), u"Two"_s);
    title->setFocus();
    f.click(u"a.jpg"_s);
    QCOMPARE(labels(f.view->findChild<PhotoHeader*>()).first(), u"a.jpg"_s);
    QVERIFY(title->isVisible() && !saysReading(f));
    QTest::mouseClick(
        f.window->windowHandle(), Qt::LeftButton, {}, title->mapTo(f.window.get(), title->rect().center()));
    QVERIFY(QApplication::focusWidget() != title);
    QTest::keyClicks(QApplication::focusWidget(), u"x"_s);
    emit f.row(u"title"_s)->textEdited(u"x"_s);
    QCOMPARE(f.model().unsavedCount(), 0);
    // Back before anything had changed: the photo's own values, and its own undo.
    f.click(u"b.jpg"_s);
    QCOMPARE(title->text(), u"Two"_s);
    QVERIFY(!title->isUndoAvailable());
    QTest::qWait(200);
    QVERIFY(!saysReading(f) && title->isVisible());
}

void tst_UnreadPhotos::theKeyboardComesBack()
{
    enum class Way { click, clickAndLeave, step };
    for (const Way way : { Way::click, Way::clickAndLeave, Way::step }) {
        const bool leaves = way == Way::clickAndLeave;
        HalfRead f;
        QVERIFY(f.openHalf());
        QLineEdit elsewhere(f.window.get());
        elsewhere.show();
        f.click(u"b.jpg"_s);
        auto* creator = f.editor<QBTextField>(u"creator"_s);
        creator->setFocus();
        if (way == Way::step) {
            // As the shell does it: what is typed is committed by taking the keyboard away.
            f.view->keptField().keep();
            creator->clearFocus();
            f.model().step(-1);
            QCOMPARE(f.photos.primary(), u"a.jpg"_s);
        } else {
            f.click(u"a.jpg"_s);
        }
        QTRY_VERIFY(saysReading(f));
        QTest::keyClicks(QApplication::focusWidget() ? QApplication::focusWidget() : f.window.get(), u"abc 5\r"_s);
        QCOMPARE(f.model().unsavedCount(), 0);
        if (leaves)
            elsewhere.setFocus();
        QVERIFY(f.readAll());
        f.settle();
        QCOMPARE(QApplication::focusWidget(), leaves ? static_cast<QWidget*>(&elsewhere) : creator);
        QTest::keyClicks(QApplication::focusWidget(), u"Mara"_s);
        QCOMPARE(f.model().draftValues().value(u"creator"_s), leaves ? QString() : u"Mara"_s);
    }
}

void tst_UnreadPhotos::theScrollPositionStays()
{
    HalfRead f;
    QVERIFY(f.openHalf({ 520, 420 }));
    QTRY_VERIFY(saysReading(f));
    f.settle();
    QCOMPARE(f.row(u"title"_s)->height(), 30);  // scrolled, not squeezed
    QVERIFY(barOf(f)->maximum() > 0);
    f.click(u"b.jpg"_s);
    f.settle();
    barOf(f)->setValue(barOf(f)->maximum());
    const int lowest = barOf(f)->value();
    QVERIFY(lowest > 100);
    f.click(u"a.jpg"_s);
    QTRY_VERIFY(saysReading(f));
    f.settle();
    QCOMPARE(barOf(f)->value(), lowest);
    QVERIFY(f.readAll());
    f.settle();
    QCOMPARE(barOf(f)->value(), lowest);
    // A form that is low by itself is no higher than it needs to be.
    barOf(f)->setValue(0);
    f.window->resize(520, 1400);
    f.settle();
    QCOMPARE(barOf(f)->maximum(), 0);
}

void tst_UnreadPhotos::aBatchCountsWhatIsKnown()
{
    HalfRead f;
    QVERIFY(f.openHalf());
    f.model().selectAllPhotos();
    const auto* banner = f.view->findChild<BatchBanner*>();
    QCOMPARE(banner->accessibleName(), u"Editing 72 photos"_s);
    QCOMPARE(banner->accessibleDescription(), u"Reading 1 more…"_s);
    QCOMPARE(f.editor<QBTextField>(u"title"_s)->text(), u"Two"_s);
    auto* creator = f.editor<QBTextField>(u"creator"_s);
    type(creator, u"Mara"_s);
    creator->setCursorPosition(2);
    QVERIFY(f.readAll());
    QCOMPARE(banner->accessibleDescription(), u"Tick a field to write it to all selected files."_s);
    QCOMPARE(f.editor<QBTextField>(u"title"_s)->text(), QString());
    QCOMPARE(f.row(u"title"_s)->state().placeholder, u"Multiple values — leave unchanged"_s);
    QCOMPARE(QApplication::focusWidget(), creator);
    QCOMPARE(creator->text(), u"Mara"_s);
    QCOMPARE(creator->cursorPosition(), 2);
}

void tst_UnreadPhotos::noneOfABatchIsRead()
{
    HalfRead f;
    QVERIFY(f.openUnread());
    f.model().selectAllPhotos();
    QTRY_VERIFY(saysReading(f));
    QCOMPARE(f.view->findChild<BatchBanner*>()->accessibleDescription(), u"Reading 72 more…"_s);
    QCOMPARE(controls(f.view->findChild<InspectorForm*>()), QStringList());
    QVERIFY(!footerButton(f, u"Add field to all"_s)->isEnabled());
    QVERIFY(!footerButton(f, u"Rename…"_s));
    QVERIFY(f.readAll());
    QVERIFY(f.editor<QBCheckbox>(u"title"_s)->isVisible());
    QVERIFY(footerButton(f, u"Add field to all"_s)->isEnabled());
    // Nothing is selected, and then what is unread again: no values of before.
    f.model().closeFolder();
    f.tool.shut();
    f.model().load({ f.photos.folderURL() });
    QTRY_COMPARE_WITH_TIMEOUT(f.model().records().size(), 72, 30'000);
    QCOMPARE(controls(f.view->findChild<InspectorForm*>()), QStringList());
    QVERIFY(f.readAll());
}

void tst_UnreadPhotos::applyWaitsForTheRest()
{
    HalfRead f;
    QVERIFY(f.openHalf());
    f.model().setBatchDontAskSession(true);
    f.click(u"b.jpg"_s);
    f.click(u"a.jpg"_s, false, true);
    ProgressFoot foot(f.model());
    type(f.editor<QBTextField>(u"copyright"_s), u"Mara"_s);
    click(footerButton(f, u"Apply to 2"_s));
    QTRY_VERIFY(foot.isVisible());
    QCOMPARE(foot.accessibleName(), u"Reading 71 of 72 photos…"_s);
    QCOMPARE(footerLabels(f), QStringList{ u"Reading 1 more…"_s });
    QVERIFY(footerButton(f, u"Saving…"_s) && !footerButton(f, u"Saving…"_s)->isEnabled());
    // Given up: the edits stay.
    click(button(&foot, u"Cancel"_s));
    QTRY_COMPARE(footerLabels(f), QStringList{ u"1 field → 2 files"_s });
    QVERIFY(footerButton(f, u"Apply to 2"_s)->isEnabled());
    QCOMPARE(f.view->findChild<BatchBanner*>()->accessibleDescription(), u"1 not read yet"_s);
    click(footerButton(f, u"Apply to 2"_s));
    QCOMPARE(footerLabels(f), QStringList{ u"Reading 1 more…"_s });
    f.tool.release();
    QTRY_COMPARE_WITH_TIMEOUT(footerLabels(f), QStringList{ u"No unsaved changes"_s }, 30'000);
    QCOMPARE(f.photos.onDisk(u"a.jpg"_s, u"XMP:Rights"_s).toString(), u"Mara"_s);
    QCOMPARE(f.photos.onDisk(u"a.jpg"_s, u"XMP:Title"_s).toString(), u"One"_s);
}

// A photo that is saved while others are read is done in a moment.
void tst_UnreadPhotos::theFootKeepsItsWordsForAShortSave()
{
    HalfRead f;
    QVERIFY(f.openHalf());
    ProgressFoot foot(f.model());
    QTRY_COMPARE(foot.accessibleName(), u"Reading 71 of 72 photos…"_s);
    f.click(u"b.jpg"_s);
    f.tool.shut();  // the save, too
    f.model().preferences().saveDontAsk.set(true);
    f.model().setSingle(u"title"_s, u"New"_s);
    f.model().requestSave();
    QVERIFY(f.model().isSaving());
    QCOMPARE(foot.accessibleName(), u"Reading 71 of 72 photos…"_s);
    QVERIFY(button(&foot, u"Cancel"_s));
    QTRY_VERIFY(foot.accessibleName().startsWith(u"Saving "_s));
    QVERIFY(!button(&foot, u"Cancel"_s));
    QVERIFY(f.readAll());
    QTRY_VERIFY_WITH_TIMEOUT(!foot.isVisible(), 30'000);
}

QTEST_MAIN(tst_UnreadPhotos)
#include "tst_UnreadPhotos.moc"
