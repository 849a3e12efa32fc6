// The main window: columns, bar, drops, banner, sheets, progress and appearance, as a person meets them.
#include "app/model/pairs/Pairing.h"
#include "app/model/thumbnails/ThumbnailStore.h"
#include "tests/support/RefusedExif.h"
#include "tests/ui/window/WindowFixture.h"
#include "ui/controls/ResizeHandle.h"
#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/sidebar/SidebarList.h"
#include "ui/sidebar/SidebarView.h"
#include "ui/window/ColumnRow.h"
#include "ui/window/ErrorBanner.h"
#include "ui/window/LaunchView.h"
#include "ui/window/PreviewColumnView.h"
#include "ui/window/ProgressFoot.h"
#include "ui/window/WindowGrowth.h"

#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScopeGuard>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// Whether the box to drop things on is drawn in the green of a drag that hovers.
bool looksTargeted(QWidget* launch)
{
    return pixelsLike(launch->grab().toImage(), colorFromHex(u"cfe0a8"_s)) > 10'000;
}

// Drags over, or drops on, a widget the way that the platform's drag and drop does; whether it was accepted.
template <typename Event>
bool drag(QWidget* widget, const QList<QUrl>& urls, const QString& text = {})
{
    QMimeData data;
    if (!urls.isEmpty())
        data.setUrls(urls);
    if (!text.isEmpty())
        data.setText(text);
    if constexpr (std::is_same_v<Event, QDropEvent>) {
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
        event.ignore();
        QCoreApplication::sendEvent(widget, &event);
        return event.isAccepted();
    } else {
        Event event(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
        event.ignore();
        QCoreApplication::sendEvent(widget, &event);
        return event.isAccepted();
    }
}

// Ends a drag that is not dropped. Without it Qt keeps the widget under the last one, also when that is gone.
void endDrag(QWidget* widget)
{
    QDragLeaveEvent event;
    QCoreApplication::sendEvent(widget, &event);
}

QPalette paletteOf(const QColor& window, const QColor& text)
{
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    return palette;
}

// "a.jpg" is red, all others are blue.
ThumbnailStoreOptions redAndBlue()
{
    ThumbnailStoreOptions options;
    options.decode = [](const QString& path, int, const std::stop_token&) {
        DecodedImage decoded;
        decoded.outcome = DecodedImage::Outcome::decoded;
        decoded.image = QImage(300, 200, QImage::Format_RGB32);
        decoded.image.fill(path.endsWith(QLatin1String("a.jpg")) ? Qt::red : Qt::blue);
        return decoded;
    };
    options.embedded = [](const QString&, const std::stop_token&) { return QImage(); };
    return options;
}

}  // namespace

class tst_ContentView : public QObject {
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void launchViewUntilPhotosAreOpen();
    void subfoldersAreOpenedWhereTheSwitchSaysSo();
    void refreshTellsWhatIsNotReported_data();
    void refreshTellsWhatIsNotReported();
    void theKeyboardIsNotLost_data();
    void theKeyboardIsNotLost();
    void theDragLineIsWhole();
    void columnWidths_data();
    void columnWidths();
    void previewNeedsRoomAndToBeWanted();
    void widening_data();
    void widening();
    void sidebarWidthIsKeptInItsLimits();
    void dropsAnywhere();
    void dropsOfNothingUseful();
    void saveButtonSaysWhatItDoes();
    void settingsMenuFlipsItsFlags();
    void bannerStaysUntilItIsDismissed();
    void theBannersTextCanBeReadToItsEndAndCopied();
    void theBannerShowsWholeLines_data();
    void theBannerShowsWholeLines();
    void theBannerOffersToSaveTheRest_data();
    void theBannerOffersToSaveTheRest();
    void withoutTheToolTheBannerSaysSo();
    void sheetTakesTheKeyboard();
    void progressOfALongRead();
    void progressOfALongWrite();
    void appearanceIsFollowedLive();
    void previewShowsThePhotoOrTheStack();
    void previewSaysThatItIsAThumbnail();
    void aRawFileAndItsPictureAreOneRow();
};

void tst_ContentView::launchViewUntilPhotosAreOpen()
{
    WindowFixture fixture;
    fixture.show();
    QVERIFY(fixture.window->findChild<LaunchView*>()->isVisible());
    QVERIFY(!fixture.window->findChild<SidebarView*>()->isVisible());
    QCOMPARE(fixture.window->windowTitle(), u"Quorbel"_s);
    QTest::mouseClick(fixture.button(u"Open Folder…"_s), Qt::LeftButton);
    QTest::mouseClick(fixture.button(u"Open Image…"_s), Qt::LeftButton);
    QCOMPARE(fixture.panels, 2);
    const auto* launch = fixture.window->findChild<LaunchView*>();
    const auto inLaunch = [launch](QWidget* widget) { return QRect(widget->mapTo(launch, QPoint()), widget->size()); };
    QWidget* box = launch->findChild<QWidget*>(u"dropBox"_s);
    const QRect block = inLaunch(box).united(inLaunch(fixture.button(u"Open with subfolders"_s)));
    QVERIFY(std::abs(block.center().y() - launch->rect().center().y()) <= 1);

    fixture.open({ u"a.jpg"_s, u"b.jpg"_s });
    QVERIFY(!fixture.window->findChild<LaunchView*>()->isVisible());
    QVERIFY(fixture.window->findChild<SidebarView*>()->isVisible());
    QCOMPARE(fixture.window->windowTitle(), QFileInfo(fixture.model.folder.path()).fileName());
    QCOMPARE(fixture.content->bar()->accessibleDescription(), u"2 photos"_s);
    // The arrow keys go through the photos at once.
    QTest::keyClick(fixture.window->focusWidget(), Qt::Key_Down);
    QCOMPARE(fixture.model.primary(), u"b.jpg"_s);

    fixture.model->closeFolder();
    QVERIFY(fixture.window->findChild<LaunchView*>()->isVisible());
}

// By mouse, by its name beside it and by keyboard; remembered; followed by a drop.
void tst_ContentView::subfoldersAreOpenedWhereTheSwitchSaysSo()
{
    WindowFixture fixture;
    fixture.show();
    const auto toggle = [&] { return fixture.button(u"Open with subfolders"_s); };
    const auto isOn = [&] { return fixture.model->preferences().openSubfolders(); };
    QVERIFY(!toggle()->isChecked() && !isOn());
    QTest::mouseClick(toggle(), Qt::LeftButton);
    QVERIFY(toggle()->isChecked() && isOn());
    QWidget* name = toggle()->parentWidget()->findChild<QLabel*>();
    QTest::mouseClick(name, Qt::LeftButton);
    QVERIFY(!toggle()->isChecked() && !isOn());
    QTest::keyClick(toggle(), Qt::Key_Space);
    QVERIFY(isOn());
    fixture.window.reset();
    fixture.model.relaunch();
    fixture.build();
    fixture.show();
    QVERIFY(toggle()->isChecked());

    QVERIFY(QDir(fixture.model.folder.path()).mkdir(u"inner"_s));
    fixture.model.addTitled({ u"a.jpg"_s, u"inner/b.jpg"_s });
    QVERIFY(drag<QDragEnterEvent>(fixture.window.get(), { fixture.model.folderURL() }));
    QVERIFY(drag<QDropEvent>(fixture.window.get(), { fixture.model.folderURL() }));
    QVERIFY(fixture.model.waitUntilIdle());
    QCOMPARE(fixture.model.visible(), (QStringList{ u"a.jpg"_s, u"b.jpg"_s }));
    QCOMPARE(fixture.content->bar()->accessibleDescription(), u"2 photos in 2 folders"_s);
}

void tst_ContentView::refreshTellsWhatIsNotReported_data()
{
    QTest::addColumn<bool>("tells");
    QTest::addColumn<int>("subfolders");
    QTest::addColumn<QString>("hint");
    QTest::addRow("the system tells") << true << 0 << QString();
    QTest::addRow("it does not") << false << 0
                                 << u"This folder does not report changes; Quorbel looks every few seconds."_s;
    QTest::addRow("of some it does not")
        << false << 2 << u"Not all of these folders report changes; Quorbel looks every few seconds."_s;
    QTest::addRow("too many folders")
        << true << 1000 << u"Only 1000 of 1001 folders report changes. Refresh to see what changed in the others."_s;
}

void tst_ContentView::refreshTellsWhatIsNotReported()
{
    QFETCH(bool, tells);
    QFETCH(int, subfolders);
    QFETCH(QString, hint);
    WindowFixture f;
    f.model.services.fileSystemOf = [tells](const QString&) { return FileSystem{ {}, tells }; };
    f.window.reset();
    f.model.relaunch();
    f.build();
    f.show();
    f.model.addTitled({ u"a.jpg"_s });
    for (int i = 0; i < subfolders; ++i)
        QVERIFY(QDir(f.model.folder.path()).mkdir(QString::number(i)));
    f.model->load({ f.model.folderURL() }, subfolders > 0);
    QVERIFY(f.model.waitUntilIdle());
    QAbstractButton* refresh = f.button(u"Refresh folder"_s);
    QTRY_COMPARE(refresh->accessibleDescription(), hint);
    QCOMPARE(refresh->toolTip(), hint.isEmpty() ? u"Refresh folder"_s : u"Refresh folder\n"_s + hint);
    f.model->closeFolder();
    QTRY_COMPARE(refresh->toolTip(), u"Refresh folder"_s);
}

void tst_ContentView::theKeyboardIsNotLost_data()
{
    QTest::addColumn<bool>("fieldHasIt");
    QTest::newRow("nothing had it") << false;
    QTest::newRow("a field had it") << true;
}

void tst_ContentView::theKeyboardIsNotLost()
{
    QFETCH(bool, fieldHasIt);
    WindowFixture fixture;
    // As the program does before photos are left.
    fixture.model.services.endEditing = [&fixture] {
        if (QWidget* focus = fixture.window->focusWidget())
            focus->clearFocus();
    };
    fixture.model.relaunch();
    fixture.build();
    fixture.open({ u"a.jpg"_s, u"b.jpg"_s });
    fixture.show();
    auto* list = fixture.window->findChild<SidebarList*>();
    auto* field = fixture.inspector->findChild<QLineEdit*>(u"field"_s);
    const PhotoFolder other;
    other.add(u"c.jpg"_s);
    other.add(u"d.jpg"_s);

    // Other photos: their list gets it.
    fieldHasIt ? field->setFocus() : field->clearFocus();
    fixture.model->requestLoad({ QUrl::fromLocalFile(other.path()) });
    QTRY_COMPARE(fixture.model.primary(), u"c.jpg"_s);
    QCOMPARE(QApplication::focusWidget(), list);
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(fixture.model.primary(), u"d.jpg"_s);

    // None: no button looks chosen, and Tab begins with the first.
    fieldHasIt ? field->setFocus() : field->clearFocus();
    fixture.model->requestClose();
    QTRY_VERIFY(fixture.model->records().isEmpty());
    QCOMPARE(QApplication::focusWidget(), fixture.content);
    QTest::keyClick(fixture.content, Qt::Key_Tab);
    QVERIFY(qobject_cast<QAbstractButton*>(QApplication::focusWidget()));

    // And the list again with the next ones.
    fixture.model->requestLoad({ QUrl::fromLocalFile(other.path()) });
    QTRY_COMPARE(QApplication::focusWidget(), list);
}

void tst_ContentView::theDragLineIsWhole()
{
    WindowFixture fixture;
    fixture.open({ u"a.jpg"_s });
    fixture.show();
    auto* handle = fixture.window->findChild<ResizeHandle*>();
    QTest::mousePress(handle, Qt::LeftButton, {}, QPoint(3, 10));
    const QImage picture = handle->grab().toImage();
    QTest::mouseRelease(handle, Qt::LeftButton, {}, QPoint(3, 10));
    for (int y = 0; y < picture.height(); ++y)
        for (int x = picture.width() - 3; x < picture.width(); ++x)
            QCOMPARE(picture.pixelColor(x, y), picture.pixelColor(picture.width() - 1, 0));
}

void tst_ContentView::columnWidths_data()
{
    QTest::addColumn<int>("window");
    QTest::addColumn<int>("inspector");
    QTest::addColumn<int>("preview");  // 0: not shown
    QTest::newRow("narrowest") << 900 << 605 << 0;
    QTest::newRow("just too narrow for the preview") << 1099 << 804 << 0;
    QTest::newRow("just wide enough") << 1100 << 430 << 375;
    QTest::newRow("the inspector grows first") << 1150 << 480 << 375;
    QTest::newRow("then only the preview grows") << 1440 << 520 << 625;
}

void tst_ContentView::columnWidths()
{
    QFETCH(int, window);
    QFETCH(int, inspector);
    QFETCH(int, preview);
    WindowFixture fixture;
    fixture.open({ u"a.jpg"_s });
    fixture.window->resize(window, 700);
    fixture.show();
    auto* column = fixture.window->findChild<PreviewColumnView*>();
    QCOMPARE(fixture.window->findChild<SidebarView*>()->width(), 288);
    QCOMPARE(fixture.inspector->width(), inspector);
    QCOMPARE(column->isVisible() ? column->width() : 0, preview);
    QCOMPARE(fixture.content->previewShown(), preview > 0);
}

void tst_ContentView::previewNeedsRoomAndToBeWanted()
{
    WindowFixture fixture;
    fixture.open({ u"a.jpg"_s });
    fixture.show();
    QTest::mouseClick(fixture.button(u"Hide preview"_s), Qt::LeftButton);
    QVERIFY(!fixture.content->previewShown());
    QCOMPARE(fixture.window->width(), 1200);
    // The choice outlives the program.
    fixture.build();
    fixture.show();
    QVERIFY(!fixture.content->previewShown());
    // In a narrow window the choice alone shows nothing, or little: the window grows.
    for (const int narrow : { 1000, 1150 }) {
        fixture.window->resize(narrow, 700);
        if (fixture.content->previewShown())
            QTest::mouseClick(fixture.button(u"Hide preview"_s), Qt::LeftButton);
        QTest::mouseClick(fixture.button(u"Show preview"_s), Qt::LeftButton);
        QTRY_COMPARE(fixture.window->width(), 1180);
        QVERIFY(fixture.content->previewShown());
    }
    // Made narrow by hand, it offers the preview again; pressing it does not switch it off.
    fixture.window->resize(1000, 700);
    QVERIFY(!fixture.content->previewShown());
    QTest::mouseClick(fixture.button(u"Show preview"_s), Qt::LeftButton);
    QTRY_VERIFY(fixture.content->previewShown());
}

void tst_ContentView::widening_data()
{
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QRect>("grown");
    const QRect screen(0, 30, 1920, 1050);
    QTest::newRow("keeps the centre") << QRect(400, 100, 1000, 700) << screen << QRect(310, 100, 1180, 700);
    QTest::newRow("stops at the right edge") << QRect(900, 100, 1000, 700) << screen << QRect(740, 100, 1180, 700);
    QTest::newRow("stops at the left edge") << QRect(10, 100, 1000, 700) << screen << QRect(0, 100, 1180, 700);
    QTest::newRow("no wider than the screen")
        << QRect(50, 50, 900, 700) << QRect(0, 0, 1024, 768) << QRect(0, 50, 1024, 700);
    QTest::newRow("wide enough") << QRect(50, 50, 1300, 700) << screen << QRect(50, 50, 1300, 700);
    QTest::newRow("second screen, left of the first")
        << QRect(-1000, 50, 900, 700) << QRect(-1280, 0, 1280, 1024) << QRect(-1180, 50, 1180, 700);
}

void tst_ContentView::widening()
{
    QFETCH(QRect, frame);
    QFETCH(QRect, screen);
    QFETCH(QRect, grown);
    QCOMPARE(widened(frame, screen, 1180), grown);
}

void tst_ContentView::sidebarWidthIsKeptInItsLimits()
{
    WindowFixture fixture;
    fixture.open({ u"a.jpg"_s });
    fixture.show();
    const auto dragBy = [&](int dx) {
        auto* handle = fixture.window->findChild<ResizeHandle*>();
        const QPoint start = handle->rect().center();
        QTest::mousePress(handle, Qt::LeftButton, {}, start);
        // The handle moves along, so the way is told in the screen's coordinates.
        const QPoint end = handle->mapToGlobal(start) + QPoint(dx, 0);
        QTest::mouseMove(handle, handle->mapFromGlobal(end));
        QTest::mouseRelease(handle, Qt::LeftButton, {}, handle->mapFromGlobal(end));
    };
    const auto width = [&] { return fixture.window->findChild<SidebarView*>()->width(); };
    dragBy(60);
    QCOMPARE(width(), 348);
    fixture.build();
    fixture.show();
    QCOMPARE(width(), 348);
    dragBy(400);
    QCOMPARE(width(), 420);
    dragBy(-900);
    QCOMPARE(width(), 200);
    fixture.model->preferences().store().setValue(u"sidebarWidth"_s, u"wide"_s);
    fixture.build();
    fixture.show();
    QCOMPARE(width(), 288);
}

void tst_ContentView::dropsAnywhere()
{
    WindowFixture fixture;
    fixture.model.addTitled({ u"a.jpg"_s, u"b.jpg"_s });
    fixture.show();
    auto* launch = fixture.window->findChild<LaunchView*>();
    QVERIFY(drag<QDragEnterEvent>(fixture.window.get(), { fixture.model.folderURL() }));
    QVERIFY(looksTargeted(launch));
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(fixture.window.get(), &leave);
    QVERIFY(!looksTargeted(launch));

    QVERIFY(drag<QDragEnterEvent>(fixture.window.get(), { fixture.model.folderURL() }));
    QVERIFY(drag<QDropEvent>(fixture.window.get(), { fixture.model.folderURL() }));
    QVERIFY(!looksTargeted(launch));
    QVERIFY(fixture.model.waitUntilIdle());
    QCOMPARE(fixture.model.visible(), (QStringList{ u"a.jpg"_s, u"b.jpg"_s }));

    // Over a text field, too, files are the window's; text stays the field's.
    auto* field = fixture.window->findChild<QLineEdit*>(u"field"_s);
    const QUrl b = fixture.model.url(u"b.jpg"_s);
    QVERIFY(drag<QDragEnterEvent>(field, { b }));
    QVERIFY(looksTargeted(launch));
    QVERIFY(drag<QDropEvent>(fixture.window.get(), { b }));
    QVERIFY(fixture.model.waitUntilIdle());
    QTRY_COMPARE(fixture.model.visible(), QStringList{ u"b.jpg"_s });
    QVERIFY(field->text().isEmpty());
    QVERIFY(drag<QDragEnterEvent>(field, {}, u"words"_s));
    endDrag(field);
}

void tst_ContentView::dropsOfNothingUseful()
{
    WindowFixture fixture;
    fixture.open({ u"a.jpg"_s });
    fixture.show();
    QVERIFY(!drag<QDragEnterEvent>(fixture.window.get(), {}, u"words"_s));
    QVERIFY(!drag<QDragEnterEvent>(fixture.window.get(), { QUrl(u"https://example.org/a.jpg"_s) }));
    // A file that is no photo is accepted, and refused in words.
    const QString note = fixture.model.folder.path(u"note.txt"_s);
    writeFile(note, "x");
    QVERIFY(drag<QDragEnterEvent>(fixture.window.get(), { QUrl::fromLocalFile(note) }));
    QVERIFY(drag<QDropEvent>(fixture.window.get(), { QUrl::fromLocalFile(note) }));
    QTRY_COMPARE(fixture.model->errorMessage(), u"No supported images were found."_s);
    QCOMPARE(fixture.model.visible(), QStringList{ u"a.jpg"_s });
    // Under a sheet the window takes nothing.
    fixture.model->setAddOpen(true);
    QVERIFY(!drag<QDragEnterEvent>(fixture.window.get(), { fixture.model.folderURL() }));
    endDrag(fixture.window.get());
}

void tst_ContentView::saveButtonSaysWhatItDoes()
{
    WindowFixture fixture;
    fixture.open({ u"a.jpg"_s, u"b.jpg"_s });
    fixture.show();
    QVERIFY(!fixture.button(u"Save"_s)->isEnabled());
    fixture.model->setSingle(u"title"_s, u"New"_s);
    QVERIFY(fixture.button(u"Save"_s)->isEnabled());
    fixture.model->preferences().saveDontAsk.set(true);
    QTest::mouseClick(fixture.button(u"Save"_s), Qt::LeftButton);
    QVERIFY(!fixture.button(u"Saving…"_s)->isEnabled());
    QTRY_VERIFY_WITH_TIMEOUT(!fixture.model->isSaving(), 30'000);
    QCOMPARE(fixture.model.onDisk(u"a.jpg"_s, u"XMP:Title"_s).toString(), u"New"_s);

    fixture.model->selectAllPhotos();
    QVERIFY(!fixture.button(u"Apply to 2"_s)->isEnabled());
    QCOMPARE(fixture.content->bar()->accessibleDescription(), u"2 photos · 2 selected"_s);
    fixture.model->setBatch(u"title"_s, u"Both"_s);
    QVERIFY(fixture.button(u"Apply to 2"_s)->isEnabled());
}

void tst_ContentView::settingsMenuFlipsItsFlags()
{
    WindowFixture fixture;
    fixture.show();
    const auto flip = [&](const QString& text) {
        QTest::mouseClick(fixture.button(u"Settings"_s), Qt::LeftButton);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return false;
        for (QAction* action : menu->actions())
            if (action->text() == text) {
                const bool was = action->isChecked();
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                return !was;
            }
        return false;
    };
    QVERIFY(flip(u"Show namespace details"_s));
    QVERIFY(fixture.model->preferences().showNamespace());
    QVERIFY(!flip(u"Back up originals before writing"_s));  // on by default: now off
    QVERIFY(!fixture.model->preferences().backupOriginals());
    QVERIFY(flip(u"Also write sidecar .xmp"_s));
    QVERIFY(fixture.model->preferences().writeSidecar());
}

void tst_ContentView::bannerStaysUntilItIsDismissed()
{
    WindowFixture fixture;
    fixture.open({ u"a.jpg"_s });
    fixture.show();
    auto* banner = fixture.window->findChild<ErrorBanner*>();
    QVERIFY(!banner->isVisible());
    const QString text = u"Could not save: "_s + u"a long reason "_s.repeated(60);
    fixture.model->setErrorMessage(text);
    QVERIFY(banner->isVisible());
    QCOMPARE(banner->accessibleName(), text);
    QCOMPARE(banner->width(), 560);
    QCOMPARE(banner->geometry().center().x(), (fixture.content->width() - 1) / 2);
    QCOMPARE(banner->geometry().bottom() + 1, fixture.content->height() - 54 - 16);
    fixture.window->resize(900, 600);
    QCOMPARE(banner->geometry().bottom() + 1, fixture.content->height() - 54 - 16);
    QTest::mouseClick(fixture.button(u"Dismiss"_s), Qt::LeftButton);
    QVERIFY(!banner->isVisible());
    QVERIFY(!fixture.model->errorMessage());
}

void tst_ContentView::theBannersTextCanBeReadToItsEndAndCopied()
{
    WindowFixture fixture;
    fixture.open({ u"a.jpg"_s });
    fixture.show();
    auto* banner = fixture.window->findChild<ErrorBanner*>();
    fixture.model->setErrorMessage(u"One line."_s);
    const int oneLine = banner->height();
    QStringList names;
    for (int i = 0; i < 200; ++i)
        names.append(u"IMG_%1.jpg"_s.arg(i));
    const QString message = u"These photos were not saved: "_s + names.join(u", "_s);
    fixture.model->setErrorMessage(message);
    auto* text = banner->findChild<QPlainTextEdit*>();
    QVERIFY(text);
    const int line = QFontMetrics(text->font()).height();
    QVERIFY(banner->height() > oneLine + 4 * line && banner->height() <= oneLine + 5 * line);

    // By keyboard: Tab comes to it, Ctrl+End to its end.
    fixture.window->findChild<SidebarList*>()->setFocus();
    for (int i = 0; i < 40 && QApplication::focusWidget() != text; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), text);
    QTest::keySequence(text, QKeySequence::MoveToEndOfDocument);
    QVERIFY(text->viewport()->rect().contains(text->cursorRect().center()));
    QTest::keySequence(text, QKeySequence::SelectAll);
    QTest::keySequence(text, QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), message);
    QTest::keyClicks(text, u"x"_s);
    QCOMPARE(text->toPlainText(), message);

    // By mouse.
    QTest::keySequence(text, QKeySequence::MoveToStartOfDocument);
    QTest::mouseDClick(text->viewport(), Qt::LeftButton, {}, QPoint(10, line / 2));
    QTest::keySequence(text, QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"These"_s);
    QTest::keyClick(text, Qt::Key_Tab);
    QVERIFY(QApplication::focusWidget() != text);
}

void tst_ContentView::theBannerShowsWholeLines_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<QString>("word");
    for (const int points : { 9, 10, 14, 20 })
        QTest::addRow("%d pt", points) << points << u"Jagdpgj "_s;
    QTest::addRow("another script") << 10 << u"写真 "_s;
}

// None cut at the lower edge, none under the scroll bar.
void tst_ContentView::theBannerShowsWholeLines()
{
    QFETCH(int, points);
    QFETCH(QString, word);
    const QFont before = QApplication::font();
    const auto restore = qScopeGuard([&] { QApplication::setFont(before); });
    QFont font = before;
    font.setPointSize(points);
    QApplication::setFont(font);
    WindowFixture fixture;
    fixture.open({ u"a.jpg"_s });
    fixture.show();
    fixture.model->setErrorMessage(word.repeated(300));
    const auto* text = fixture.window->findChild<ErrorBanner*>()->findChild<QPlainTextEdit*>();
    const QWidget* port = text->viewport();
    int lines = 0;
    for (QTextCursor cursor(text->document()); text->cursorRect(cursor).top() < port->height() - 1; ++lines) {
        QVERIFY(text->cursorRect(cursor).bottom() < port->height());
        QVERIFY(cursor.movePosition(QTextCursor::Down));
    }
    QCOMPARE(lines, 6);
    const auto* bar = text->findChild<OverlayScrollBar*>();
    QVERIFY(bar->isVisible());
    QVERIFY(port->geometry().right() < bar->x());
}

void tst_ContentView::theBannerOffersToSaveTheRest_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("byKeyboard");
    QTest::addRow("narrow, by keyboard") << ContentView::minimumWindow << true;
    QTest::addRow("wide, by mouse") << QSize(1600, 1000) << false;
}

void tst_ContentView::theBannerOffersToSaveTheRest()
{
    QFETCH(QSize, size);
    QFETCH(bool, byKeyboard);
    WindowFixture fixture;
    fixture.model.folder.add(u"a.jpg"_s, jpegWithBrokenExif());
    QVERIFY(fixture.model.open());
    fixture.window->resize(size);
    fixture.show();
    fixture.model->preferences().saveDontAsk.set(true);
    fixture.model->setSingle(u"title"_s, u"Harbour"_s);
    fixture.model->setSingle(u"description"_s, u"At dawn"_s);
    fixture.model->requestSave();
    QVERIFY(fixture.model.waitUntilIdle());

    auto* banner = fixture.window->findChild<ErrorBanner*>();
    auto* text = banner->findChild<QPlainTextEdit*>();
    QAbstractButton* offer = fixture.button(u"Save without EXIF"_s);
    QVERIFY(offer);
    QCOMPARE(QAccessible::queryAccessibleInterface(offer)->text(QAccessible::Name), u"Save without EXIF"_s);
    QVERIFY(banner->rect().adjusted(8, 8, -8, -8).contains(offer->geometry()));
    QVERIFY(!text->geometry().intersects(offer->geometry()));
    QCOMPARE(offer->size(), offer->sizeHint());
    if (byKeyboard) {
        fixture.window->findChild<SidebarList*>()->setFocus();
        for (int i = 0; i < 40 && QApplication::focusWidget() != offer; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), offer);
        // From the message to what can be done about it.
        QTest::keyClick(offer, Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), text);
        QTest::keyClick(text, Qt::Key_Tab);
        QTest::keyClick(offer, Qt::Key_Return);
    } else {
        QTest::mouseClick(offer, Qt::LeftButton);
    }
    QVERIFY(fixture.model.waitUntilIdle());
    QVERIFY(!banner->isVisible());
    QVERIFY(!offer->isVisible());
    QVERIFY(QApplication::focusWidget() && QApplication::focusWidget()->isVisible());
    QCOMPARE(fixture.model->unsavedCount(), 0);
    QCOMPARE(fixture.model.onDisk(u"a.jpg"_s, u"XMP:Description"_s), QJsonValue(u"At dawn"_s));
}

void tst_ContentView::withoutTheToolTheBannerSaysSo()
{
    WindowFixture fixture(std::optional<MetadataService>{});
    fixture.show();
    QVERIFY(fixture.window->findChild<ErrorBanner*>()->isVisible());
    QCOMPARE(fixture.window->findChild<ErrorBanner*>()->accessibleName(),
        u"ExifTool could not be found in the app bundle. Metadata cannot be read or written."_s);
}

void tst_ContentView::sheetTakesTheKeyboard()
{
    WindowFixture fixture;
    fixture.open({ u"a.jpg"_s });
    fixture.show();
    auto* field = fixture.window->findChild<QLineEdit*>(u"field"_s);
    field->setFocus();
    fixture.model->setAddOpen(true);
    auto* sheet = dynamic_cast<SampleSheet*>(fixture.content->sheets()->current());
    QVERIFY(sheet);
    QCOMPARE(fixture.window->focusWidget(), sheet->first);
    // Tab goes round inside, both ways.
    const auto tab = [&](bool back) {
        QTest::keyClick(fixture.window->focusWidget(), back ? Qt::Key_Backtab : Qt::Key_Tab,
            back ? Qt::ShiftModifier : Qt::NoModifier);
        return fixture.window->focusWidget();
    };
    QCOMPARE(tab(false), sheet->second);
    QCOMPARE(tab(false), sheet->first);
    QCOMPARE(tab(true), sheet->second);
    // Neither the mouse nor a call takes the focus out.
    const QPoint outside = field->mapTo(fixture.window.get(), QPoint(3, 3));
    QVERIFY(!fixture.window->childAt(outside) || fixture.window->childAt(outside) != field);
    field->setFocus();
    QVERIFY(sheet->isAncestorOf(fixture.window->focusWidget()));

    QTest::keyClick(fixture.window->focusWidget(), Qt::Key_Escape);
    QCOMPARE(SampleSheet::cancelled, 1);
    QVERIFY(!fixture.model->addOpen());
    QVERIFY(!fixture.content->sheets()->current());
    QCOMPARE(fixture.window->focusWidget(), field);

    // A field that gives the focus up, so that its text counts before the sheet asks, goes on where it was.
    field->clearFocus();
    fixture.model->setAddOpen(true);
    QTest::keyClick(fixture.window->focusWidget(), Qt::Key_Escape);
    QCOMPARE(fixture.window->focusWidget(), field);

    fixture.model->setRenameOpen(true);
    QTest::keyClick(fixture.window->focusWidget(), Qt::Key_Return);
    QCOMPARE(SampleSheet::confirmed, 1);
    QVERIFY(!fixture.model->renameOpen());
}

void tst_ContentView::progressOfALongRead()
{
    FakeTool tool;
    tool.answerAlways({ .holds = true });
    WindowFixture fixture(MetadataService{ tool.runner() });
    fixture.show();
    fixture.model.folder.add(u"a.jpg"_s);
    fixture.model->load({ fixture.model.folderURL() });
    QTRY_COMPARE(fixture.model->records().size(), 1);
    QVERIFY(!fixture.window->findChild<LaunchView*>()->isVisible());
    auto* foot = fixture.window->findChild<SidebarView*>()->findChild<ProgressFoot*>();
    QVERIFY(!foot->isVisible());  // work that ends soon shows nothing
    QTRY_VERIFY(foot->isVisible());
    QCOMPARE(foot->accessibleName(), u"Reading 0 of 1 photos…"_s);
    QTest::mouseClick(fixture.button(u"Cancel"_s), Qt::LeftButton);
    QTRY_VERIFY(!fixture.model->isWorking());
    QVERIFY(!foot->isVisible());
    QCOMPARE(fixture.model->records().size(), 1);  // what is listed stays
}

void tst_ContentView::progressOfALongWrite()
{
    FakeTool tool;
    WindowFixture fixture(MetadataService{ tool.runner() });
    const QUrl photo = fixture.model.folder.add(u"a.jpg"_s);
    tool.answerAlways({ .standardOutput = toolJson({ { { u"SourceFile"_s, photo.toLocalFile() } } }) });
    QVERIFY(fixture.model.open());
    fixture.show();
    tool.answerAlways({ .holds = true });
    fixture.model->preferences().saveDontAsk.set(true);
    fixture.model->setSingle(u"title"_s, u"New"_s);
    fixture.model->requestSave();
    auto* foot = fixture.window->findChild<SidebarView*>()->findChild<ProgressFoot*>();
    QTRY_VERIFY(foot->isVisible());
    QVERIFY(foot->accessibleName().startsWith(u"Saving "_s));
    QVERIFY(!fixture.button(u"Cancel"_s));
    tool.release();
    QTRY_VERIFY_WITH_TIMEOUT(!foot->isVisible(), 30'000);
}

void tst_ContentView::appearanceIsFollowedLive()
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(paletteOf(Qt::white, Qt::black));
    WindowFixture fixture;
    fixture.show();
    const auto ground = [&] { return colorAt(fixture.content, QPoint(5, fixture.content->height() - 5)); };
    QCOMPARE(ground(), Theme::light().bg);
    QApplication::setPalette(paletteOf(Qt::black, Qt::white));
    QTRY_COMPARE(ground(), Theme::dark().bg);
    fixture.model->preferences().colorOverride.set(ColorScheme::light);
    QCOMPARE(ground(), Theme::light().bg);
    QApplication::setPalette(paletteOf(Qt::white, Qt::black));
    fixture.model->preferences().colorOverride.set(ColorScheme::dark);
    QCOMPARE(ground(), Theme::dark().bg);
    // High contrast, in the desktop's light or dark.
    fixture.model->preferences().colorOverride.set(ColorScheme::highContrast);
    QCOMPARE(Theme::of(fixture.content), HighContrast::palette(false));
    QApplication::setPalette(paletteOf(Qt::black, Qt::white));
    QTRY_COMPARE(Theme::of(fixture.content), HighContrast::palette(true));
    QApplication::setPalette(paletteOf(Qt::white, Qt::black));
    fixture.model->preferences().colorOverride.set(std::nullopt);
    QTRY_COMPARE(ground(), Theme::light().bg);
    QApplication::setPalette(before);
}

void tst_ContentView::previewShowsThePhotoOrTheStack()
{
    ThumbnailStore thumbs(redAndBlue());
    WindowFixture fixture(&thumbs);
    fixture.open({ u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s });
    fixture.window->resize(1440, 900);
    fixture.show();
    auto* preview = fixture.window->findChild<PreviewColumnView*>();
    const QPoint middle(preview->width() / 2, (preview->height() - 54) / 2);
    QTRY_COMPARE(colorAt(preview, middle), QColor(Qt::red));
    QCOMPARE(preview->accessibleName(), u"Preview of a.jpg"_s);
    // At most 560 wide.
    QCOMPARE(colorAt(preview, middle - QPoint(278, 0)), QColor(Qt::red));
    QVERIFY(colorAt(preview, middle - QPoint(283, 0)) != QColor(Qt::red));
    fixture.model.click(u"b.jpg"_s);
    QTRY_COMPARE(colorAt(preview, middle), QColor(Qt::blue));
    fixture.model->selectAllPhotos();
    QCOMPARE(preview->accessibleName(), u"3 photos selected"_s);
    QTRY_COMPARE(colorAt(preview, middle), QColor(Qt::blue));  // the primary's card lies in front
}

// The picture is what one sees and opens, and both types are told, to the eye and to the ear.
void tst_ContentView::aRawFileAndItsPictureAreOneRow()
{
    ThumbnailStore thumbs(redAndBlue());
    WindowFixture fixture(&thumbs);
    QList<QUrl> opened;
    fixture.window.reset();
    fixture.model.services.openUrl = [&opened](const QUrl& url) { opened.append(url); };
    fixture.model.relaunch();
    fixture.build(&thumbs);
    fixture.model.folder.add(u"a.NEF"_s, tiffBytes());
    fixture.open({ u"a.jpg"_s, u"b.jpg"_s });
    fixture.window->resize(1440, 900);
    fixture.show();
    fixture.model.click(u"a.NEF"_s);
    auto* preview = fixture.window->findChild<PreviewColumnView*>();
    const QPoint middle(preview->width() / 2, (preview->height() - 54) / 2);
    QTRY_COMPARE(colorAt(preview, middle), QColor(Qt::blue));
    auto* list = fixture.window->findChild<SidebarList*>();
    QCOMPARE(list->model()->rowCount(), 3);

    fixture.model->pairing().setOn(true);
    QCOMPARE(list->model()->rowCount(), 2);
    QTRY_COMPARE(colorAt(preview, middle), QColor(Qt::red));
    QCOMPARE(preview->accessibleName(), u"Preview of a.NEF and a.jpg"_s);
    const QModelIndex row = list->model()->index(0, 0);
    const QPoint thumbnail = list->visualRect(row).topLeft() + QPoint(26, 26);
    QTRY_COMPARE(colorAt(list->viewport(), thumbnail), QColor(Qt::red));
    QCOMPARE(row.data(Qt::AccessibleTextRole).toString(), u"a.NEF and a.jpg"_s);
    const QString line = row.data(Qt::AccessibleDescriptionRole).toString();
    QVERIFY2(line.startsWith(u"NEF + JPEG · "_s), qPrintable(line));
    QVERIFY(row.data(Qt::ToolTipRole).toString().startsWith(u"a.NEF and a.jpg\n"_s));
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(row).center());
    QCOMPARE(opened, QList<QUrl>{ fixture.model.url(u"a.jpg"_s) });
}

// A photo of which nothing but its thumbnail can be shown is not passed off as sharp.
void tst_ContentView::previewSaysThatItIsAThumbnail()
{
    ThumbnailStoreOptions options;
    options.decode = [](const QString& path, int, const std::stop_token&) {
        DecodedImage decoded;
        decoded.outcome = DecodedImage::Outcome::tooLarge;
        if (path.endsWith(QLatin1String("b.jpg"))) {
            decoded.outcome = DecodedImage::Outcome::decoded;
            decoded.image = QImage(160, 120, QImage::Format_RGB32);
            decoded.image.fill(Qt::red);
        }
        return decoded;
    };
    options.embedded = [](const QString&, const std::stop_token&) {
        QImage image(160, 120, QImage::Format_RGB32);
        image.fill(Qt::red);
        return image;
    };
    ThumbnailStore thumbs(options);
    WindowFixture fixture(&thumbs);
    fixture.open({ u"a.jpg"_s, u"b.jpg"_s });
    fixture.window->resize(1440, 900);
    fixture.show();
    auto* preview = fixture.window->findChild<PreviewColumnView*>();
    const auto redPixels = [&] {
        const QImage shown = preview->grab().toImage();
        int count = 0;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                count += shown.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
        return count;
    };
    QTRY_COMPARE(preview->accessibleName(), u"Preview of a.jpg, thumbnail only"_s);
    const int withWord = redPixels();
    fixture.model.click(u"b.jpg"_s);
    QTRY_VERIFY(thumbs.entry(fixture.model.url(u"b.jpg"_s), ThumbnailStore::Kind::preview).state
        == ThumbnailStore::State::ready);
    QCOMPARE(preview->accessibleName(), u"Preview of b.jpg"_s);
    // Both as large as the column allows, one with a word on it.
    QVERIFY(withWord > 300 * 300 && redPixels() > withWord + 1000);
}

int main(int argc, char* argv[])
{
    return runOnLargeScreen<tst_ContentView>(argc, argv);
}

#include "tst_ContentView.moc"
