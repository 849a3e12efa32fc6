// The inspector as a person uses it, over photos written and read by the real tool.
#include "app/model/AppModel.h"
#include "app/model/fieldsets/FieldSets.h"
#include "app/model/library/filter/Filtering.h"
#include "app/model/pairs/Pairing.h"
#include "tests/ui/UiSupport.h"
#include "tests/ui/inspector/InspectorFixture.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/SuggestionList.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/keywords/KeywordChip.h"
#include "ui/controls/pickers/ChoicePicker.h"
#include "ui/inspector/CameraSection.h"
#include "ui/inspector/head/BatchBanner.h"
#include "ui/inspector/head/PhotoHeader.h"
#include "ui/places/LocationMap.h"
#include "ui/places/LocationSearchField.h"
#include "ui/places/MapPreview.h"

#include <QApplication>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSignalSpy>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

const QStringList alike{ u"-XMP-dc:Creator=Mara"_s };
const QStringList located{ u"-GPSLatitude=47.3769"_s, u"-GPSLatitudeRef=N"_s, u"-GPSLongitude=8.5417"_s,
    u"-GPSLongitudeRef=E"_s };

// Three photos that share a creator and differ in their titles; the first knows its camera.
void addThree(InspectorFixture& f)
{
    f.add(u"a.jpg"_s, alike + QStringList{ u"-XMP-dc:Title=One"_s, u"-EXIF:Model=E-M5"_s, u"-EXIF:ISO=200"_s });
    f.add(u"b.jpg"_s, alike + QStringList{ u"-XMP-dc:Title=Two"_s });
    f.add(u"c.jpg"_s, alike + QStringList{ u"-XMP-dc:Title=Two"_s });
}

// The tick of a row; null while there is none to be seen.
QBCheckbox* tick(const InspectorFixture& f, const QString& id)
{
    auto* box = f.editor<QBCheckbox>(id);
    return box && box->isVisible() ? box : nullptr;
}

QWidget* footerOf(const InspectorFixture& f)
{
    return f.view->findChild<InspectorFooter*>();
}

void type(QWidget* field, const QString& text)
{
    QTest::mouseClick(field, Qt::LeftButton);
    QTest::keyClicks(QApplication::focusWidget(), text);
}

// What Tab goes through from a control until it is back there, or for too long.
QStringList tabStopsFrom(QWidget* first)
{
    QStringList names;
    first->setFocus(Qt::TabFocusReason);
    do {
        const QWidget* focus = QApplication::focusWidget();
        const auto* pressed = qobject_cast<const QAbstractButton*>(focus);
        names.append(pressed && !pressed->text().isEmpty() ? pressed->text() : focus->accessibleName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != first && names.size() < 50);
    return names;
}

}  // namespace

// What a screen reader says of a widget's children, one after the other.
static QStringList spokenRows(QWidget* widget)
{
    QStringList names;
    const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(widget);
    for (int i = 0; i < told->childCount(); ++i)
        if (!told->child(i)->state().invisible)
            names.append(told->child(i)->text(QAccessible::Name));
    return names;
}

class tst_InspectorView : public QObject {
    Q_OBJECT

private slots:
    void init();
    void showsOnePhoto();
    void showsSeveralPhotos();
    void tellsWhereEditsGo();
    void theBannerTellsOfPlacesThatDiffer_data();
    void theBannerTellsOfPlacesThatDiffer();
    void showsNothing();
    void placeholders_data();
    void placeholders();
    void typingReachesTheModel_data();
    void typingReachesTheModel();
    void ticks_data();
    void ticks();
    void batchShowsWhatAllShare_data();
    void batchShowsWhatAllShare();
    void keywordsOfOnePhoto();
    void keywordsStandInTrees();
    void keywordsOfSeveral();
    void nowReplacesTheDate();
    void ratingByMouseAndKey();
    void footer_data();
    void footer();
    void footerButtons();
    void footerOfLeftEdits();
    void mapFollowsTheCoordinates();
    void fillsPlaceFromCoordinates();
    void picksAPlace();
    void rowsAreReused();
    void typingKeepsTheCaret();
    void undoStaysWithItsPhoto();
    void halfTypedKeywordStaysBehind();
    void addedFieldTakesTheFocusAndGoesAgain();
    void aChosenSet();
    void namespaceLines();
    void tabGoesFromTopToBottom();
    void tellsScreenReaders();
    void keepsTheCaretInSight();
    void keepsTheFocusClearOfTheBanner();
    void notesWhatIsNoDate_data();
    void notesWhatIsNoDate();
};

void tst_InspectorView::init()
{
    QTest::failOnWarning(QRegularExpression(u"^(?!.*propagateSizeHints)."_s));
}

void tst_InspectorView::showsOnePhoto()
{
    InspectorFixture f;
    addThree(f);
    QVERIFY(f.open());
    QVERIFY(f.view->findChild<PhotoHeader*>()->isVisible());
    QVERIFY(!f.view->findChild<BatchBanner*>()->isVisible());
    QCOMPARE(labels(f.view->findChild<PhotoHeader*>()),
        QStringList({ u"a.jpg"_s, f.model().primaryRecord()->detailLine() }));
    QCOMPARE(f.editor<QBTextField>(u"title"_s)->text(), u"One"_s);
    QVERIFY(!tick(f, u"title"_s));
    QVERIFY(f.view->findChild<CameraSection*>()->isVisible());
    QCOMPARE(
        spokenRows(f.view->findChild<CameraSection*>()).mid(0, 2), QStringList({ u"Camera: E-M5"_s, u"ISO: 200"_s }));
    f.click(u"b.jpg"_s);
    QCOMPARE(f.editor<QBTextField>(u"title"_s)->text(), u"Two"_s);
    QCOMPARE(f.model().unsavedCount(), 0);
}

void tst_InspectorView::tellsWhereEditsGo()
{
    InspectorFixture f;
    const QString longName = u"a"_s + QString(120, u'x') + u"_1"_s;
    for (const QString& name : { u"1.cr2"_s, u"2.cr2"_s, u"3.jpg"_s, longName + u".cr2"_s })
        f.photos.folder.add(name, jpegBytes());
    QVERIFY(f.open());
    auto* header = f.view->findChild<PhotoHeader*>();
    auto* banner = f.view->findChild<BatchBanner*>();
    QCOMPARE(labels(header).size(), 2);
    f.model().preferences().rawBeside.set(true);
    QVERIFY(f.photos.waitUntilIdle());
    QCOMPARE(labels(header).last(), u"Edits go to 1.xmp"_s);
    // What is left out of a long name is told by the tooltip.
    f.click(longName + u".cr2"_s);
    QTRY_VERIFY(labels(header).last().endsWith(u"xx_1.xmp"_s));
    QVERIFY(labels(header).last().startsWith(u"Edits go to axx"_s) && labels(header).last().contains(u'…'));
    QLabel* line = header->findChildren<QLabel*>().last();
    QCOMPARE(line->toolTip(), f.photos.folder.path(longName + u".xmp"_s));
    QCOMPARE(line->accessibleName(), u"Edits go to "_s + longName + u".xmp"_s);
    QVERIFY(header->rect().contains(QRect(line->mapTo(header, QPoint()), line->size())));
    // Of two names each is left with its ends.
    f.photos.folder.add(longName + u".jpg"_s, jpegBytes());
    QVERIFY(f.photos.open());
    f.model().pairing().setOn(true);
    f.click(longName + u".cr2"_s);
    QTRY_VERIFY2(labels(header).last().endsWith(u"xx_1.jpg"_s), qPrintable(labels(header).last()));
    QVERIFY2(labels(header).last().contains(u"_1.xmp and axx"_s), qPrintable(labels(header).last()));
    f.model().pairing().setOn(false);
    f.click(u"3.jpg"_s);
    QCOMPARE(labels(header).size(), 2);
    const QString hint = u"Tick a field to write it to all selected files."_s;
    f.click(u"1.cr2"_s, false, true);
    QCOMPARE(banner->accessibleDescription(), hint + u" Edits of 1 photo go to 1.xmp."_s);
    f.click(u"2.cr2"_s, false, true);
    QCOMPARE(banner->accessibleDescription(), hint + u" Edits of 2 photos go to sidecars."_s);
    f.click(u"3.jpg"_s, false, true);
    QCOMPARE(banner->accessibleDescription(), hint + u" Edits go to 2 sidecars."_s);
}

void tst_InspectorView::theBannerTellsOfPlacesThatDiffer_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("isUnderTheText");
    QTest::newRow("wide") << 480 << false;
    QTest::newRow("less wide") << 420 << false;
    QTest::newRow("narrow") << 300 << true;
    QTest::newRow("too narrow") << 200 << true;
}

void tst_InspectorView::theBannerTellsOfPlacesThatDiffer()
{
    QFETCH(int, width);
    Stage stage;
    auto* banner = stage.add(new BatchBanner);
    banner->setFixedWidth(width);
    banner->setPhotos(40, {});
    stage.show();
    QVERIFY(!button(banner, u"Make them agree"_s));
    const int height = banner->height();
    const QString text = u"12 photos have places that differ"_s;
    banner->setDisagreements(text, false);
    QVERIFY(!banner->agree()->isEnabled());
    banner->setDisagreements(text, true);
    QCOMPARE(banner->height(), height);
    const auto shown = banner->findChildren<QLabel*>();
    const QRect said(shown.first()->mapTo(banner, QPoint()), shown.first()->size());
    const QRect agree(banner->agree()->mapTo(banner, QPoint()), banner->agree()->size());
    QTEST(agree.top() > said.bottom(), "isUnderTheText");
    QVERIFY(banner->rect().contains(said) && banner->rect().contains(agree) && !said.intersects(agree));
    QCOMPARE(banner->agree()->accessibleDescription(), text);
    const QSignalSpy pressed(banner->agree(), &QAbstractButton::clicked);
    QTest::keyClick(banner->agree(), Qt::Key_Space);
    QCOMPARE(pressed.size(), 1);
    // Where edits go is said where there is a line for it.
    banner->setPhotos(40, {}, u"Edits go to 40 sidecars."_s);
    const QImage picture = banner->grab().toImage();
    banner->setPhotos(40, {}, u"Edits go to 38 sidecars."_s);
    QCOMPARE(banner->grab().toImage() == picture, agree.top() > said.bottom());
    banner->setDisagreements({}, true);
    QVERIFY(!banner->agree()->isVisible());
}

void tst_InspectorView::showsSeveralPhotos()
{
    InspectorFixture f;
    addThree(f);
    QVERIFY(f.open());
    f.model().selectAllPhotos();
    QVERIFY(!f.view->findChild<PhotoHeader*>()->isVisible());
    QVERIFY(f.view->findChild<BatchBanner*>()->isVisible());
    QCOMPARE(f.view->findChild<BatchBanner*>()->accessibleName(), u"Editing 3 photos"_s);
    QVERIFY(!f.view->findChild<CameraSection*>()->isVisible());
    QVERIFY(tick(f, u"title"_s));
    QVERIFY(!tick(f, u"title"_s)->isChecked());
    QCOMPARE(f.editor<QBTextField>(u"creator"_s)->text(), u"Mara"_s);
    QVERIFY(!tick(f, u"creator"_s)->isChecked());
    f.click(u"a.jpg"_s);
    QVERIFY(!tick(f, u"title"_s));
}

void tst_InspectorView::showsNothing()
{
    InspectorFixture f;
    addThree(f);
    QVERIFY(f.open());
    f.model().closeFolder();
    QVERIFY(f.model().selection().isEmpty());
    QCOMPARE(labels(f.view), QStringList{ u"No photo selected"_s });
    QVERIFY(!button(f.view, u"Save"_s));
}

void tst_InspectorView::placeholders_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("several");
    const auto multiple = u"Multiple values — leave unchanged"_s;
    QTest::addRow("title differs") << u"title"_s << u"Untitled"_s << multiple;
    QTest::addRow("creator is shared") << u"creator"_s << u"Add a creator…"_s << u"Add a creator…"_s;
    QTest::addRow("copyright") << u"copyright"_s << u"Add a copyright notice…"_s << u"Add a copyright notice…"_s;
    QTest::addRow("date") << u"date"_s << u"YYYY-MM-DD HH:MM"_s << u"YYYY-MM-DD HH:MM"_s;
    QTest::addRow("place") << u"place"_s << u"Add a place…"_s << u"Add a place…"_s;
    QTest::addRow("coordinates") << u"coords"_s << u"lat, lon"_s << u"lat, lon"_s;
    QTest::addRow("headline") << u"headline"_s << u"Add a headline…"_s << u"Add a headline…"_s;
    QTest::addRow("event") << u"event"_s << u"Add an event…"_s << u"Add an event…"_s;
    QTest::addRow("no text of its own") << u"credit"_s << QString() << QString();
}

void tst_InspectorView::placeholders()
{
    QFETCH(const QString, id);
    QFETCH(const QString, one);
    QFETCH(const QString, several);
    InspectorFixture f;
    addThree(f);
    QVERIFY(f.open());
    f.model().addKnownField(id);
    QCOMPARE(f.editor<QBTextField>(id)->placeholderText(), one);
    f.model().selectAllPhotos();
    f.model().addKnownField(id);
    QCOMPARE(f.editor<QBTextField>(id)->placeholderText(), several);
    QCOMPARE(f.editor<QBTextField>(id)->text(), id == u"creator"_s ? u"Mara"_s : QString());
    f.model().toggleBatchInclude(id);
    QCOMPARE(f.editor<QBTextField>(id)->placeholderText(), one);
}

void tst_InspectorView::typingReachesTheModel_data()
{
    QTest::addColumn<QString>("id");
    QTest::addRow("text") << u"title"_s;
    QTest::addRow("several lines") << u"description"_s;
    QTest::addRow("coordinates") << u"coords"_s;
    QTest::addRow("date") << u"date"_s;
    QTest::addRow("place") << u"place"_s;
}

void tst_InspectorView::typingReachesTheModel()
{
    QFETCH(const QString, id);
    InspectorFixture f;
    f.add(u"a.jpg"_s, {});
    f.add(u"b.jpg"_s, {});
    QVERIFY(f.open());
    const auto input = [&] { return f.row(id)->tabStops().constFirst(); };
    type(input(), u"12"_s);
    QCOMPARE(f.model().draftValues().value(id), u"12"_s);
    QCOMPARE(f.model().editedSingle(), QSet<QString>{ id });
    QCOMPARE(labels(footerOf(f)), QStringList{ u"1 unsaved change"_s });
    f.model().preferences().saveDontAsk.set(true);
    f.model().discardSaveDialog();
    f.model().selectAllPhotos();
    QCOMPARE(f.model().batchValues(), (QMap<QString, QString>()));
    type(f.row(id)->tabStops().at(1), u"34"_s);
    QCOMPARE(f.model().batchValues().value(id), u"34"_s);
    QVERIFY(f.model().batchInclude().contains(id));
    QVERIFY(tick(f, id)->isChecked());
    QVERIFY(labels(f.row(id)).contains(u"Will be written to all 2 photos"_s));
}

void tst_InspectorView::ticks_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("ticksWhenEmpty");
    QTest::addRow("text: writes an empty value") << u"title"_s << true;
    QTest::addRow("rating") << u"rating"_s << true;
    QTest::addRow("keywords: only by adding") << u"keywords"_s << false;
    QTest::addRow("a field of the user's own") << u"custom:Mood"_s << true;
}

void tst_InspectorView::ticks()
{
    QFETCH(const QString, id);
    QFETCH(const bool, ticksWhenEmpty);
    InspectorFixture f;
    f.add(u"a.jpg"_s, {});
    f.add(u"b.jpg"_s, {});
    QVERIFY(f.open());
    f.model().selectAllPhotos();
    f.model().addKnownField(u"rating"_s);
    f.model().addCustomField(u"Mood"_s, u"calm"_s);
    const bool custom = id.startsWith(u"custom:"_s);
    if (!custom) {
        f.model().toggleBatchCustom(u"Mood"_s);
        click(tick(f, id));
        QCOMPARE(tick(f, id)->isChecked(), ticksWhenEmpty);
        QCOMPARE(f.model().unsavedCount(), ticksWhenEmpty ? 1 : 0);
    }
    if (id == u"keywords"_s)
        f.model().addBatchListItem(id, u"sky"_s);
    QVERIFY(tick(f, id)->isChecked());
    QCOMPARE(f.model().unsavedCount(), 1);
    click(tick(f, id));
    QCOMPARE(f.model().unsavedCount(), 0);
    // The row keeps its text for the next tick.
    if (custom)
        QCOMPARE(f.row(id)->state().text, u"calm"_s);
}

void tst_InspectorView::batchShowsWhatAllShare_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("shared");
    QTest::addRow("text") << u"creator"_s << u"Ana"_s;
    QTest::addRow("rating") << u"rating"_s << u"4"_s;
    QTest::addRow("a field of the user's own") << u"custom:Mood"_s << u"calm"_s;
    QTest::addRow("differs") << u"title"_s << QString();
}

void tst_InspectorView::batchShowsWhatAllShare()
{
    QFETCH(const QString, id);
    QFETCH(const QString, shared);
    InspectorFixture f;
    for (const QString& name : { u"a"_s, u"b"_s })
        f.add(name + u".jpg"_s, { u"-XMP-dc:Creator=Ana"_s, u"-XMP-xmp:Rating=4"_s, u"-XMP-dc:Title="_s + name });
    QVERIFY(f.open());
    f.model().selectAllPhotos();
    f.model().addCustomField(u"Mood"_s, u"calm"_s);
    f.model().setBatchDontAskSession(true);
    f.model().requestSave();
    QVERIFY(f.photos.waitUntilIdle());
    QCOMPARE(f.row(id)->state().text, shared);
    QVERIFY(!f.row(id)->state().edited && !f.row(id)->state().included);
    QCOMPARE(f.row(id)->state().placeholder == u"Multiple values — leave unchanged"_s, shared.isEmpty());
    if (shared.isEmpty())
        return;
    // A tick writes what one sees.
    click(tick(f, id));
    QCOMPARE(f.row(id)->state().text, shared);
    QVERIFY(f.row(id)->state().included);
    f.model().requestSave();
    QVERIFY(f.photos.waitUntilIdle());
    QCOMPARE(f.row(id)->state().text, shared);
}

// Read from a photo, typed, completed, and in a batch.
void tst_InspectorView::keywordsStandInTrees()
{
    InspectorFixture f;
    f.photos.lookAtDetails();
    f.add(u"a.jpg"_s,
        { u"-IPTC:Keywords=Paris"_s, u"-XMP-dc:Subject=Paris"_s, u"-XMP-lr:HierarchicalSubject=Places|France|Paris"_s,
            u"-XMP-dc:Rights=One"_s, u"-EXIF:Copyright=Other"_s });
    f.add(u"b.jpg"_s, {});
    QVERIFY(f.open());
    auto* editor = f.editor<KeywordEditor>(u"keywords"_s);
    const auto spoken = [&] {
        QStringList names;
        for (const KeywordChip* chip : editor->findChildren<KeywordChip*>())
            if (chip->isVisible())
                names.append(chip->accessibleName());
        return names;
    };
    const QString paris = u"Paris, in Places, France"_s;
    const QString rome = u"Rome, in Places, Italy"_s;
    QTRY_COMPARE_WITH_TIMEOUT(spoken(), QStringList{ paris }, 30'000);
    type(editor->entry(), u"Places > Italy > Rome\r"_s);
    QCOMPARE(spoken(), QStringList({ paris, rome }));
    QCOMPARE(f.model().draftLists().value(u"keywords"_s), QStringList({ u"Paris"_s, u"Rome"_s }));
    f.click(u"b.jpg"_s);
    f.model().discardSaveDialog();
    QCOMPARE(spoken(), QStringList());
    for (const QString& typed : { u"pa"_s, u"Places > "_s, u"places|fr"_s }) {
        type(editor->entry(), typed);
        QTest::keyClick(editor->entry(), Qt::Key_Up);  // the last one
        QTest::keyClick(editor->entry(), Qt::Key_Return);
        QCOMPARE(spoken(), QStringList{ paris });
        click(button(editor, u"Remove Paris"_s));
    }
    f.model().selectAllPhotos();
    f.model().discardSaveDialog();
    type(editor->entry(), u"Places|Italy|Rome\r"_s);
    QCOMPARE(spoken(), QStringList{ rome });
    QCOMPARE(f.model().batchLists().value(u"keywords"_s), QStringList{ u"Rome"_s });
    auto* banner = f.view->findChild<BatchBanner*>();
    QVERIFY(labels(banner).contains(u"1 photo has places that differ"_s));
}

void tst_InspectorView::keywordsOfOnePhoto()
{
    InspectorFixture f;
    f.add(u"a.jpg"_s, { u"-IPTC:Keywords=lake"_s });
    QVERIFY(f.open());
    auto* editor = f.editor<KeywordEditor>(u"keywords"_s);
    QCOMPARE(editor->chips(), QStringList{ u"lake"_s });
    type(editor->entry(), u" reed \r"_s);
    QCOMPARE(f.model().draftLists().value(u"keywords"_s), QStringList({ u"lake"_s, u"reed"_s }));
    QCOMPARE(editor->chips(), QStringList({ u"lake"_s, u"reed"_s }));
    QVERIFY(f.model().editedSingle().contains(u"keywords"_s));
    click(button(editor, u"Remove lake"_s));
    QCOMPARE(f.model().draftLists().value(u"keywords"_s), QStringList{ u"reed"_s });
    QCOMPARE(editor->chips(), QStringList{ u"reed"_s });
}

void tst_InspectorView::keywordsOfSeveral()
{
    InspectorFixture f;
    f.add(u"a.jpg"_s, { u"-IPTC:Keywords=lake"_s });
    f.add(u"b.jpg"_s, {});
    QVERIFY(f.open());
    f.model().selectAllPhotos();
    auto* editor = f.editor<KeywordEditor>(u"keywords"_s);
    QCOMPARE(editor->chips(), QStringList());
    type(editor->entry(), u"sky\r"_s);
    QCOMPARE(f.model().batchLists().value(u"keywords"_s), QStringList{ u"sky"_s });
    QVERIFY(labels(f.row(u"keywords"_s)).contains(u"appends — existing values kept"_s));
    QVERIFY(tick(f, u"keywords"_s)->isChecked());
    click(button(editor, u"Remove sky"_s));
    QCOMPARE(f.model().unsavedCount(), 0);
    QVERIFY(!labels(f.row(u"keywords"_s)).contains(u"appends — existing values kept"_s));
}

void tst_InspectorView::nowReplacesTheDate()
{
    InspectorFixture f;
    f.add(u"a.jpg"_s, { u"-EXIF:DateTimeOriginal=2001:02:03 04:05:06"_s });
    f.photos.services.now = [] { return QDateTime({ 2026, 7, 14 }, { 9, 5, 59 }); };
    f.photos.relaunch();
    QVERIFY(f.open());
    QCOMPARE(f.editor<QBTextField>(u"date"_s)->text(), u"2001-02-03 04:05"_s);
    click(button(f.row(u"date"_s), u"Now"_s));
    QCOMPARE(f.model().draftValues().value(u"date"_s), u"2026-07-14 09:05"_s);
    QCOMPARE(f.editor<QBTextField>(u"date"_s)->text(), u"2026-07-14 09:05"_s);
}

void tst_InspectorView::ratingByMouseAndKey()
{
    InspectorFixture f;
    f.add(u"a.jpg"_s, { u"-XMP:Rating=3"_s });
    QVERIFY(f.open());
    auto* stars = f.editor<RatingEditor>(u"rating"_s);
    QCOMPARE(stars->rating(), 3);
    QTest::keyClick(stars, Qt::Key_5);
    QCOMPARE(f.model().draftValues().value(u"rating"_s), u"5"_s);
    QCOMPARE(stars->rating(), 5);
}

void tst_InspectorView::footer_data()
{
    QTest::addColumn<bool>("several");
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QString>("text");
    QTest::addRow("one photo, nothing") << false << QStringList() << u"No unsaved changes"_s;
    QTest::addRow("one photo, one") << false << QStringList{ u"title"_s } << u"1 unsaved change"_s;
    QTest::addRow("one photo, three") << false << QStringList{ u"title"_s, u"creator"_s, u"place"_s }
                                      << u"3 unsaved changes"_s;
    QTest::addRow("several, nothing") << true << QStringList() << u"No unsaved changes"_s;
    QTest::addRow("several, one") << true << QStringList{ u"title"_s } << u"1 field → 2 files"_s;
    QTest::addRow("several, two") << true << QStringList{ u"title"_s, u"creator"_s } << u"2 fields → 2 files"_s;
}

void tst_InspectorView::footer()
{
    QFETCH(const bool, several);
    QFETCH(const QStringList, fields);
    QFETCH(const QString, text);
    InspectorFixture f;
    f.add(u"a.jpg"_s, {});
    f.add(u"b.jpg"_s, {});
    QVERIFY(f.open());
    if (several)
        f.model().selectAllPhotos();
    for (const QString& id : fields)
        several ? f.model().setBatch(id, u"x"_s) : f.model().setSingle(id, u"x"_s);
    QCOMPARE(labels(footerOf(f)), QStringList{ text });
    QVERIFY(button(footerOf(f), several ? u"Add field to all"_s : u"Add field"_s));
    const QAbstractButton* save = button(footerOf(f), several ? u"Apply to 2"_s : u"Save"_s);
    QVERIFY(save);
    QCOMPARE(save->isEnabled(), !fields.isEmpty());
}

// Said in the place of "No unsaved changes", on two lines where one does not hold it; gone with the next edit.
void tst_InspectorView::footerOfLeftEdits()
{
    InspectorFixture f;
    for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s })
        f.add(name, alike);  // so Rename… stands beside the line
    QVERIFY(f.open());
    const QString offer = u"Bring back"_s;
    QVERIFY(!button(footerOf(f), offer));
    f.click(u"b.jpg"_s, false, true);
    f.model().setBatch(u"title"_s, u"x"_s);
    f.model().setBatch(u"creator"_s, u"y"_s);
    f.click(u"c.jpg"_s);
    QCOMPARE(labels(footerOf(f)), QStringList{ u"2 edits of 2 photos left unsaved"_s });
    QVERIFY(button(footerOf(f), offer));
    f.model().setSingle(u"title"_s, u"z"_s);
    QCOMPARE(labels(footerOf(f)), QStringList{ u"1 unsaved change"_s });
    f.click(u"a.jpg"_s);
    f.model().discardSaveDialog();
    QCOMPARE(labels(footerOf(f)), QStringList{ u"1 edit of 1 photo left unsaved"_s });

    const auto lineOf = [&f, offer] {
        const QAbstractButton* shown = button(footerOf(f), offer);
        const auto* text = shown->parentWidget()->findChild<QLabel*>();
        return std::pair(text->geometry(), shown->geometry());
    };
    QVERIFY(lineOf().second.top() >= lineOf().first.bottom());
    f.window->resize(430, f.window->height());
    f.settle();
    QCOMPARE(labels(footerOf(f)), QStringList{ u"1 edit left unsaved"_s });
    f.window->resize(900, f.window->height());
    f.settle();
    QCOMPARE(labels(footerOf(f)).join(QString()), u"1 edit of 1 photo left unsaved · "_s);
    QCOMPARE(lineOf().second.top(), lineOf().first.top());
    QVERIFY(lineOf().second.left() > lineOf().first.right());

    QAbstractButton* bringBack = button(footerOf(f), offer);
    QVERIFY(tabStopsFrom(bringBack).contains(offer));
    bringBack->setFocus();
    QTest::keyClick(bringBack, Qt::Key_Space);
    QCOMPARE(f.photos.primary(), u"c.jpg"_s);
    QCOMPARE(f.model().draftValues().value(u"title"_s), u"z"_s);
    QVERIFY(!button(footerOf(f), offer));
    QCOMPARE(QApplication::focusWidget(), button(footerOf(f), u"Save"_s));
}

void tst_InspectorView::footerButtons()
{
    InspectorFixture f;
    f.add(u"a.jpg"_s, {});
    QVERIFY(f.open());
    QVERIFY(!button(footerOf(f), u"Rename…"_s));
    type(f.editor<QBTextField>(u"title"_s), u"Dusk"_s);
    click(button(footerOf(f), u"Rename…"_s));
    QVERIFY(f.model().renameOpen());
    click(button(footerOf(f), u"Add field"_s));
    QVERIFY(f.model().addOpen());
    f.model().preferences().saveDontAsk.set(true);
    click(button(footerOf(f), u"Save"_s));
    QVERIFY(f.model().isSaving());
    QVERIFY(button(footerOf(f), u"Saving…"_s));
    QVERIFY(f.photos.waitUntilIdle());
    QVERIFY(button(footerOf(f), u"Save"_s));
    QCOMPARE(labels(footerOf(f)), QStringList{ u"No unsaved changes"_s });
    QCOMPARE(f.photos.onDisk(u"a.jpg"_s, u"XMP:Title"_s).toString(), u"Dusk"_s);
}

void tst_InspectorView::mapFollowsTheCoordinates()
{
    InspectorFixture f;
    f.add(u"a.jpg"_s, {});
    QVERIFY(f.open());
    auto* map = f.view->findChild<MapPreview*>();
    QVERIFY(!map->isVisible());
    auto* field = f.editor<QBTextField>(u"coords"_s);
    type(field, u"47.5, 8"_s);
    QVERIFY(map->isVisible());
    QCOMPARE(map->accessibleName(), u"Map of 47.500000, 8.000000"_s);
    QTest::keyClick(field, Qt::Key_Backspace);
    QVERIFY(!map->isVisible());
}

void tst_InspectorView::fillsPlaceFromCoordinates()
{
    InspectorFixture f;
    f.add(u"a.jpg"_s, located);
    f.add(u"b.jpg"_s, located + QStringList{ u"-XMP-photoshop:Country=Schweiz"_s });
    QVERIFY(f.open());
    auto* link = button(f.view, u"Fill place from coordinates"_s);
    click(link);
    QCOMPARE(f.model().draftValues().value(u"place"_s), u"Zürich"_s);
    QCOMPARE(f.model().draftValues().value(u"country"_s), u"Switzerland"_s);
    QCOMPARE(f.model().draftValues().value(u"coords"_s), f.model().primaryRecord()->values.value(u"coords"_s));
    QVERIFY(!f.model().editedSingle().contains(u"coords"_s));
    QCOMPARE(f.editor<QBTextField>(u"place"_s)->text(), u"Zürich"_s);
    QVERIFY(!link->isVisible());
    f.model().discardSaveDialog();
    f.model().setSingle(u"coords"_s, u"-40, 8"_s);
    click(link);
    QVERIFY(labels(f.view->findChild<LocationMap*>()).contains(u"Couldn't look that up"_s));
    QVERIFY(!f.model().editedSingle().contains(u"place"_s));
    f.model().discardSaveDialog();
    f.click(u"b.jpg"_s);
    QVERIFY(f.view->findChild<MapPreview*>()->isVisible());
    QVERIFY(!link->isVisible());
}

void tst_InspectorView::picksAPlace()
{
    InspectorFixture f;
    f.add(u"a.jpg"_s, {});
    QVERIFY(f.open());
    auto* field = f.editor<LocationSearchField>(u"place"_s);
    type(field, u"Para"_s);
    QTRY_VERIFY(f.window->findChild<SuggestionList*>() && f.window->findChild<SuggestionList*>()->isVisible());
    QTest::keyClick(field, Qt::Key_Down);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(f.model().draftValues().value(u"place"_s), u"Zürich"_s);
    QCOMPARE(f.model().draftValues().value(u"sublocation"_s), u"Paradeplatz"_s);
    QCOMPARE(f.model().draftValues().value(u"coords"_s), u"47.370000, 8.540000"_s);
    QCOMPARE(field->text(), u"Zürich"_s);
    QVERIFY(f.row(u"sublocation"_s));
}

void tst_InspectorView::rowsAreReused()
{
    InspectorFixture f;
    addThree(f);
    QVERIFY(f.open());
    const FieldRow* title = f.row(u"title"_s);
    const QList<FieldRow*> before = f.view->findChildren<FieldRow*>();
    f.click(u"b.jpg"_s);
    type(f.editor<QBTextField>(u"title"_s), u"x"_s);
    f.model().discardSaveDialog();
    f.model().selectAllPhotos();
    f.click(u"a.jpg"_s);
    QCOMPARE(f.row(u"title"_s), title);
    QCOMPARE(f.view->findChildren<FieldRow*>().size(), before.size());
}

void tst_InspectorView::typingKeepsTheCaret()
{
    InspectorFixture f;
    addThree(f);
    QVERIFY(f.open());
    auto* title = f.editor<QBTextField>(u"title"_s);
    type(title, {});
    title->setCursorPosition(1);
    QTest::keyClicks(title, u"--"_s);
    QCOMPARE(title->text(), u"O--ne"_s);
    QCOMPARE(title->cursorPosition(), 3);
    // The same value again, as after a save: the caret and the undo history stay.
    f.model().preferences().saveDontAsk.set(true);
    f.model().requestSave();
    QVERIFY(f.photos.waitUntilIdle());
    QCOMPARE(title->cursorPosition(), 3);
    QVERIFY(title->isUndoAvailable());
    QCOMPARE(f.model().unsavedCount(), 0);
}

void tst_InspectorView::undoStaysWithItsPhoto()
{
    InspectorFixture f;
    addThree(f);
    QVERIFY(f.open());
    f.click(u"b.jpg"_s);
    auto* title = f.editor<QBTextField>(u"title"_s);
    type(title, u"x"_s);
    QTest::keyClick(title, Qt::Key_Backspace);
    QCOMPARE(title->text(), u"Two"_s);
    f.model().discardSaveDialog();
    f.click(u"c.jpg"_s);
    QCOMPARE(title->text(), u"Two"_s);
    QTest::keyClick(title, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(title->text(), u"Two"_s);
    QCOMPARE(f.model().unsavedCount(), 0);
}

void tst_InspectorView::halfTypedKeywordStaysBehind()
{
    InspectorFixture f;
    addThree(f);
    QVERIFY(f.open());
    auto* editor = f.editor<KeywordEditor>(u"keywords"_s);
    type(editor->entry(), u"sun"_s);
    f.model().setSingle(u"title"_s, u"Other"_s);
    QCOMPARE(editor->entry()->text(), u"sun"_s);
    f.model().discardSaveDialog();
    f.click(u"b.jpg"_s);
    QCOMPARE(editor->entry()->text(), QString());
}

void tst_InspectorView::addedFieldTakesTheFocusAndGoesAgain()
{
    InspectorFixture f;
    addThree(f);
    QVERIFY(f.open());
    QVERIFY(!f.row(u"headline"_s));
    f.model().addKnownField(u"headline"_s);
    QVERIFY(f.row(u"headline"_s)->isVisible());
    QTRY_COMPARE(QApplication::focusWidget(), f.editor<QBTextField>(u"headline"_s));
    click(button(f.row(u"headline"_s), u"Remove this field"_s));
    QVERIFY(!f.row(u"headline"_s));
    QVERIFY(!f.model().sessionAddedKnownIDs().contains(u"headline"_s));
    QVERIFY(!button(f.row(u"title"_s), u"Remove this field"_s));
    for (const bool several : { false, true }) {
        if (several) {
            f.model().discardSaveDialog();
            f.model().selectAllPhotos();
        }
        f.model().addCustomField(several ? u"Weather"_s : u"Mood"_s, u"calm"_s);
        QTRY_COMPARE(
            QApplication::focusWidget(), f.editor<QBTextField>(several ? u"custom:Weather"_s : u"custom:Mood"_s));
    }
}

void tst_InspectorView::aChosenSet()
{
    InspectorFixture f;
    f.add(u"a.jpg"_s, { u"-XMP-dc:Title=T"_s, u"-XMP-photoshop:Source=S"_s });
    QVERIFY(f.open());
    auto* picker = f.view->findChild<PhotoHeader*>()->findChild<ChoicePicker*>();
    const auto note = [&] { return f.view->findChild<SectionHeader*>()->accessibleDescription(); };
    QVERIFY(!picker->isVisible());
    QVERIFY(f.row(u"copyright"_s) && !f.row(u"description"_s)->state().wanted && note().isEmpty());
    f.model().fieldSets().choose(u"Captions"_s);
    QVERIFY(picker->isVisible());
    QCOMPARE(picker->titles().value(picker->current()), u"Captions"_s);
    QVERIFY(!f.row(u"copyright"_s) && !f.row(u"source"_s) && f.row(u"captionWriter"_s));
    QCOMPARE(note(), u"1 of 3 filled · next gap F8"_s);
    QCOMPARE(f.row(u"description"_s)->state().placeholder, u"Required by Captions"_s);
    QVERIFY(!f.row(u"title"_s)->state().wanted && !f.row(u"captionWriter"_s)->state().wanted);
    QTest::keyClicks(f.editor<QBTextArea>(u"description"_s), u"D"_s);
    QVERIFY(!f.row(u"description"_s)->state().wanted);
    QCOMPARE(note(), u"2 of 3 filled · next gap F8"_s);
    f.model().addSingleListItem(u"keywords"_s, u"word"_s);
    QCOMPARE(note(), u"3 of 3 filled"_s);
    emit picker->picked(0);
    QVERIFY(f.row(u"copyright"_s) && !f.row(u"captionWriter"_s) && picker->isVisible());
    QCOMPARE(note(), QString());
    // Where a set wants nothing, the usual gaps lead also to fields that it leaves out.
    f.model().fieldSets().edit();
    f.model().fieldSets().store({ { {}, { u"Own"_s, { u"title"_s }, {} } } }, u"Own"_s);
    QVERIFY(!f.row(u"creator"_s));
    f.view->findChild<InspectorForm*>()->reveal(u"description"_s)->input()->setFocus();
    f.model().filtering().goToGap(Filtering::Way::next);
    QTRY_COMPARE(QApplication::focusWidget(), f.editor<QBTextField>(u"date"_s));
}

void tst_InspectorView::namespaceLines()
{
    InspectorFixture f;
    addThree(f);
    QVERIFY(f.open());
    f.model().addCustomField(u"Mood"_s, u"calm"_s);
    const auto line = u"XMP-dc:title · IPTC:ObjectName"_s;
    QVERIFY(!labels(f.row(u"title"_s)).contains(line));
    f.model().preferences().showNamespace.set(true);
    QVERIFY(labels(f.row(u"title"_s)).contains(line));
    QVERIFY(labels(f.row(u"custom:Mood"_s)).contains(u"XMP-Quorbel:Mood"_s));
    f.model().preferences().showNamespace.set(false);
    QVERIFY(!labels(f.row(u"title"_s)).contains(line));
}

void tst_InspectorView::tabGoesFromTopToBottom()
{
    InspectorFixture f;
    f.add(u"a.jpg"_s, located);
    f.add(u"b.jpg"_s, {});
    QVERIFY(f.open({ 520, 1400 }));
    // Made last, but not shown last.
    f.model().addKnownField(u"country"_s);
    f.model().addCustomField(u"Mood"_s, u"calm"_s);
    f.model().setSingle(u"title"_s, u"T"_s);
    InspectorFixture::settle();
    QCOMPARE(tabStopsFrom(f.editor<QBTextField>(u"title"_s)),
        QStringList({ u"Title"_s, u"Description"_s, u"Date taken"_s, u"Now"_s, u"Keywords"_s, u"Creator"_s,
            u"Copyright"_s, u"Place"_s, u"Coordinates"_s, u"Country"_s, u"Remove this field"_s,
            u"Fill place from coordinates"_s, u"Mood"_s, u"Rename…"_s, u"Add field"_s, u"Save"_s }));
    // The ticks of several photos come and go, and photos bring rows that others do not have.
    f.model().discardSaveDialog();
    f.model().selectAllPhotos();
    InspectorFixture::settle();
    QCOMPARE(tabStopsFrom(tick(f, u"title"_s)).mid(0, 7),
        QStringList({ u"Write Title to all selected files"_s, u"Title"_s, u"Write Description to all selected files"_s,
            u"Description"_s, u"Write Date taken to all selected files"_s, u"Date taken"_s, u"Now"_s }));
    f.click(u"b.jpg"_s);
    InspectorFixture::settle();
    QCOMPARE(tabStopsFrom(f.editor<QBTextField>(u"title"_s)),
        QStringList({ u"Title"_s, u"Description"_s, u"Date taken"_s, u"Now"_s, u"Keywords"_s, u"Creator"_s,
            u"Copyright"_s, u"Place"_s, u"Coordinates"_s, u"Bring back"_s, u"Add field"_s }));
}

void tst_InspectorView::tellsScreenReaders()
{
    InspectorFixture f;
    addThree(f);
    QVERIFY(f.open());
    auto* title = f.editor<QBTextField>(u"title"_s);
    QCOMPARE(title->accessibleName(), u"Title"_s);
    QCOMPARE(title->accessibleDescription(), QString());
    type(title, u"x"_s);
    QCOMPARE(title->accessibleDescription(), u"edited"_s);
    QCOMPARE(f.editor<KeywordEditor>(u"keywords"_s)->entry()->accessibleName(), u"Keywords"_s);
    f.model().discardSaveDialog();
    f.model().selectAllPhotos();
    f.model().setBatch(u"title"_s, u"All"_s);
    QCOMPARE(title->accessibleDescription(), u"Will be written to all 3 photos"_s);
    QVERIFY(button(f.row(u"title"_s), u"Write Title to all selected files"_s));
}

void tst_InspectorView::keepsTheCaretInSight()
{
    InspectorFixture f;
    addThree(f);
    QVERIFY(f.open({ 520, 420 }));
    auto* area = f.editor<QBTextArea>(u"description"_s);
    type(area->viewport(), {});
    for (int i = 0; i < 30; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTest::keyClicks(QApplication::focusWidget(), u"end"_s);
    const QWidget* viewport = f.view->findChild<QScrollArea*>()->viewport();
    QTRY_VERIFY(viewport->rect().contains(area->viewport()->mapTo(f.window.get(), area->cursorRect().center())
        - viewport->mapTo(f.window.get(), QPoint())));
    QTest::keyClick(area, Qt::Key_Tab);
    auto* date = f.editor<QBTextField>(u"date"_s);
    QCOMPARE(QApplication::focusWidget(), date);
    QTRY_VERIFY(viewport->rect().contains(QRect(date->mapTo(f.window.get(), QPoint()), date->size())));
}

void tst_InspectorView::keepsTheFocusClearOfTheBanner()
{
    InspectorFixture f;
    addThree(f);
    QVERIFY(f.open({ 520, 420 }));
    const QWidget* viewport = f.view->findChild<QScrollArea*>()->viewport();
    const auto isClear = [&](const QWidget* field, int inset) {
        const QPoint top = field->mapTo(f.window.get(), QPoint()) - viewport->mapTo(f.window.get(), QPoint());
        return viewport->rect().adjusted(0, 0, 0, -inset).contains(QRect(top, field->size()));
    };
    // It comes while the field has the focus, and it is there when the next field gets it; so for a lower window.
    auto* keywords = f.editor<KeywordEditor>(u"keywords"_s)->entry();
    keywords->setFocus();
    f.view->setBottomInset(160);
    QTRY_VERIFY(isClear(keywords, 160));
    auto* creator = f.editor<QBTextField>(u"creator"_s);
    creator->setFocus();
    QTRY_VERIFY(isClear(creator, 160));
    f.window->resize(520, 360);
    QTRY_VERIFY(isClear(creator, 160));
}

void tst_InspectorView::notesWhatIsNoDate_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("note");
    QTest::addRow("date") << u"date"_s << u"Harbour at dawn"_s << u"Not a date: YYYY-MM-DD HH:MM"_s;
    QTest::addRow("no such day") << u"date"_s << u"2021-02-30"_s << u"Not a date: YYYY-MM-DD HH:MM"_s;
    QTest::addRow("position") << u"coords"_s << u"somewhere"_s << u"Not a position: lat, lon"_s;
    QTest::addRow("a date that is one") << u"date"_s << u"2021-02-28"_s << QString();
}

void tst_InspectorView::notesWhatIsNoDate()
{
    QFETCH(QString, id);
    QFETCH(QString, text);
    QFETCH(QString, note);
    InspectorFixture f;
    addThree(f);
    QVERIFY(f.open());
    auto* editor = f.editor<QBTextField>(id);
    const auto isNoted = [&] {
        return labels(f.row(id)).contains(note) && editor->accessibleDescription().contains(note);
    };
    const auto hasNote = [&] { return labels(f.row(id)).join(u' ').contains(u"Not a"_s); };
    f.model().setSingle(id, text);
    QCOMPARE(hasNote(), !note.isEmpty());
    QVERIFY(isNoted() || note.isEmpty());
    QVERIFY2(f.model().unsavedCount() == 1 && button(f.view, u"Save"_s)->isEnabled(), "saving stays possible");
    f.model().setSingle(id, {});
    QVERIFY(!hasNote());
    f.model().discardSaveDialog();
    f.model().selectAllPhotos();
    f.model().setBatch(id, text);
    QCOMPARE(hasNote(), !note.isEmpty());
    QVERIFY(isNoted() || note.isEmpty());
    f.model().toggleBatchInclude(id);
    QVERIFY2(!hasNote(), "what is not ticked is not written");
}

QTEST_MAIN(tst_InspectorView)
#include "tst_InspectorView.moc"
