// What limits the list beside the search, and the way from gap to gap: before a model with real photos, and by hand.
#include "app/model/library/filter/Filtering.h"
#include "tests/app/model/ModelFixture.h"
#include "tests/ui/UiSupport.h"
#include "ui/controls/BriefNote.h"
#include "ui/controls/RatingEditor.h"
#include "ui/controls/attached/MenuRow.h"
#include "ui/controls/keywords/KeywordChip.h"
#include "ui/inspector/InspectorView.h"
#include "ui/sidebar/FilterMenu.h"
#include "ui/sidebar/SidebarList.h"
#include "ui/sidebar/SidebarView.h"

#include <QHBoxLayout>
#include <QLineEdit>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20'000;

const QList<PhotoTrait>& offered()
{
    using enum PhotoTrait;
    static const QList<PhotoTrait> traits{ noTitle, noDescription, noKeywords, noDate, noPlace, noCreator, noCopyright,
        unrated, edited, changed };
    return traits;
}

// a lacks nothing; b everything; c has a blank title and three stars; d is rejected, and has keywords; e has a place.
struct Photos : ModelFixture {
    explicit Photos(const Photos* like = nullptr)
    {
        for (const QString& name : jpgs(u"abcde"_s))
            folder.add(name, like ? readFile(like->folder.path(name)) : jpegBytes());
        if (!like)
            fill();
        quieten();
    }
    // One run for all.
    void fill() const
    {
        const QMap<QString, QStringList> tags{
            { u"a.jpg"_s,
                { u"-XMP-dc:Title=Lake"_s, u"-XMP-dc:Description=By the water"_s, u"-XMP-dc:Subject=ZÜRICH"_s,
                    u"-EXIF:DateTimeOriginal=2026:05:09 10:00:00"_s, u"-XMP-photoshop:City=Horn"_s,
                    u"-XMP-dc:Creator=Mara"_s, u"-XMP-dc:Rights=Free"_s, u"-XMP:Rating=5"_s } },
            { u"c.jpg"_s, { u"-XMP-dc:Title= "_s, u"-XMP:Rating=3"_s, u"-EXIF:Model=Nikon D3"_s } },
            { u"d.jpg"_s, { u"-XMP-dc:Subject=forest"_s, u"-XMP:Rating=-1"_s } },
            { u"e.jpg"_s, { u"-XMP-photoshop:City=Zürich"_s } },
        };
        QStringList arguments;
        for (auto photo = tags.cbegin(); photo != tags.cend(); ++photo)
            arguments +=
                *photo + QStringList{ u"-overwrite_original"_s, u"-q"_s, folder.path(photo.key()), u"-execute"_s };
        arguments.removeLast();
        exiftool(arguments);
    }
    void quieten() const
    {
        model->preferences().backupOriginals.set(false);
        model->preferences().saveDontAsk.set(true);
        model->preferences().confirmMassEdit.set(false);
    }
    Filtering& filters() const { return model->filtering(); }
    void set(PhotoTraits traits) const
    {
        for (const PhotoTrait trait : offered())
            filters().setOn(trait, traits.testFlag(trait));
    }
    /// The letters of the photos in the list.
    QString listed() const
    {
        QString letters;
        for (const QString& name : visible())
            letters += name.at(0);
        return letters;
    }
};

}  // namespace

class tst_Filtering : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void listsWhatIsAskedFor_data();
    void listsWhatIsAskedFor();
    void findsATextInAnyField_data();
    void findsATextInAnyField();
    void leavesByASave();
    void asksBeforeEditsAreLeft();
    void manyLeaveAtOnce();
    void editedAndChanged();
    void endsWithOtherPhotos();
    void unreadPhotosCountNowhere();
    void goesFromGapToGap();
    void menuStaysOpen();
    void chipsGoByKey();

private:
    Photos& open();
    void show(SidebarView** sidebar, InspectorView** inspector = nullptr);

    std::unique_ptr<Photos> m_photos;
    std::unique_ptr<Stage> m_stage;
};

void tst_Filtering::initTestCase()
{
    m_photos = std::make_unique<Photos>();
    QVERIFY(m_photos->open());
}

void tst_Filtering::init()
{
    failOnWarnings();
    m_stage.reset();
}

// As they were at first.
Photos& tst_Filtering::open()
{
    m_photos->filters().clear();
    (*m_photos)->setSearch({});
    m_photos->click(u"a.jpg"_s);
    return *m_photos;
}

void tst_Filtering::show(SidebarView** sidebar, InspectorView** inspector)
{
    m_stage = std::make_unique<Stage>();
    m_stage->window()->resize(1000, 900);
    auto* row = m_stage->add(new QWidget);
    auto* line = new QHBoxLayout(row);
    *sidebar = new SidebarView(*m_photos->model, nullptr);
    (*sidebar)->setFixedSize(288, 600);
    line->addWidget(*sidebar);
    if (inspector) {
        *inspector = new InspectorView(*m_photos->model, nullptr, nullptr, nullptr);
        (*inspector)->setFixedSize(430, 600);
        line->addWidget(*inspector);
    }
    m_stage->show();
}

void tst_Filtering::listsWhatIsAskedFor_data()
{
    using enum PhotoTrait;
    QTest::addColumn<PhotoTraits>("traits");
    QTest::addColumn<int>("stars");
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("listed");
    const auto row = [](const char* name, PhotoTraits traits, const QString& listed, int stars = 0,
                         const QString& search = {}) { QTest::newRow(name) << traits << stars << search << listed; };
    row("nothing", {}, u"abcde"_s);
    row("no title, and a blank one", noTitle, u"bcde"_s);
    row("no description", noDescription, u"bcde"_s);
    row("no keywords", noKeywords, u"bce"_s);
    row("no date", noDate, u"bcde"_s);
    row("no place", noPlace, u"bcd"_s);
    row("no creator", noCreator, u"bcde"_s);
    row("no copyright", noCopyright, u"bcde"_s);
    row("rejected is rated", unrated, u"be"_s);
    row("one star", {}, u"ac"_s, 1);
    row("four stars", {}, u"a"_s, 4);
    row("two together", noKeywords | noPlace, u"bc"_s);
    row("with stars", noTitle, u"c"_s, 3);
    row("with the search", noTitle, u"d"_s, 0, u"D.J"_s);
    row("what cannot be", unrated, QString(), 1);
}

void tst_Filtering::listsWhatIsAskedFor()
{
    QFETCH(PhotoTraits, traits);
    QFETCH(int, stars);
    QFETCH(QString, search);
    QFETCH(QString, listed);
    Photos& f = open();
    f->setSearch(search);
    f.set(traits);
    f.filters().setLeastStars(stars);
    QCOMPARE(f.listed(), listed);
    // Each alone, whatever the list shows.
    for (const PhotoTrait trait : offered())
        if (search.isEmpty() && stars == 0 && traits == trait)
            QCOMPARE(f.filters().count(trait), listed.size());
    if (!traits)
        QCOMPARE(f.filters().countOfStars(stars), listed.size());
    const QString shown = f.filters().isOn() ? u"5 photos · %1 shown"_s.arg(listed.size()) : u"5 photos"_s;
    QCOMPARE(f->folderCountText(), shown);
    f->selectAllPhotos();
    QCOMPARE(f.selected().size(), listed.size());
    f.filters().clear();
    QCOMPARE(f.filters().isOn(), false);
}

void tst_Filtering::findsATextInAnyField_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("listed");
    QTest::newRow("keyword and place in any case") << u" zür "_s << u"ae"_s;
    QTest::newRow("words of a description") << u"the WATER"_s << u"a"_s;
    QTest::newRow("camera") << u"nikon"_s << u"c"_s;
    QTest::newRow("no name of a file") << u".jpg"_s << QString();
    QTest::newRow("part of the one before") << u"f"_s << u"ad"_s;
    QTest::newRow("which goes on") << u"fo"_s << u"d"_s;
    QTest::newRow("and is shortened again") << u"f"_s << u"ad"_s;
    QTest::newRow("blanks are none") << u"  "_s << u"abcde"_s;
}

// Each text follows the one before it, as somebody types.
void tst_Filtering::findsATextInAnyField()
{
    QFETCH(QString, text);
    QFETCH(QString, listed);
    Photos& f = *m_photos;
    f.filters().setText(text);
    QCOMPARE(f.filters().text(), text);
    QTRY_COMPARE(f.listed(), listed);
    QTRY_COMPARE(f.filters().isOn(), !text.trimmed().isEmpty());
}

// The photo stays while its title is not saved. Then the next one takes its place.
void tst_Filtering::leavesByASave()
{
    Photos& f = open();
    f.filters().setOn(PhotoTrait::noTitle, true);
    QCOMPARE(f.primary(), u"b.jpg"_s);
    f.click(u"c.jpg"_s);
    f->setSingle(u"title"_s, u"Filled"_s);
    QTRY_COMPARE(f.filters().count(PhotoTrait::edited), 1);
    QCOMPARE(f.listed(), u"bcde"_s);
    f->requestSave();
    QTRY_COMPARE_WITH_TIMEOUT(f.listed(), u"bde"_s, patience);
    QCOMPARE(f.selected(), jpgs(u"d"_s));
    QCOMPARE(f.filters().count(PhotoTrait::noTitle), 3);
    QCOMPARE(f.filters().count(PhotoTrait::edited), 0);
    // The last one: the one before it.
    f.click(u"e.jpg"_s);
    f->setSingle(u"title"_s, u"Filled"_s);
    f->requestSave();
    QTRY_COMPARE_WITH_TIMEOUT(f.listed(), u"bd"_s, patience);
    QCOMPARE(f.selected(), jpgs(u"d"_s));
    // What a click waits for has the last word.
    f->setSingle(u"title"_s, u"Filled"_s);
    f.click(u"b.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f.listed(), u"b"_s, patience);
    QCOMPARE(f.selected(), jpgs(u"b"_s));
    QVERIFY(f.waitUntilIdle());
    exiftool({ u"-overwrite_original"_s, u"-q"_s, u"-XMP-dc:Title="_s, u"-IPTC:ObjectName="_s,
        f.folder.path(u"c.jpg"_s), f.folder.path(u"d.jpg"_s), f.folder.path(u"e.jpg"_s) });
    f->refresh();
    QTRY_COMPARE_WITH_TIMEOUT(f.listed(), u"bcde"_s, patience);
    QVERIFY(f.waitUntilIdle());
}

void tst_Filtering::asksBeforeEditsAreLeft()
{
    Photos& f = open();
    f->preferences().saveDontAsk.set(false);
    f->setSingle(u"headline"_s, u"Unsaved"_s);
    f.filters().setOn(PhotoTrait::noTitle, true);
    QVERIFY(f->saveOpen());
    f->cancelSaveDialog();
    // The photo that is edited stays, though it has a title.
    QTRY_COMPARE(f.listed(), u"abcde"_s);
    QCOMPARE(f.selected(), jpgs(u"a"_s));
    QCOMPARE(f->unsavedCount(), 1);
    f.filters().setOn(PhotoTrait::noPlace, true);
    QVERIFY(f->saveOpen());
    f->discardSaveDialog();
    QTRY_COMPARE(f.listed(), u"bcd"_s);
    QCOMPARE(f.selected(), jpgs(u"b"_s));
    QCOMPARE(f.filters().count(PhotoTrait::edited), 1);
    QCOMPARE(f->leftEdits().size(), 1);
    f->bringBack(0);
    QTRY_COMPARE(f.listed(), u"abcd"_s);
    QCOMPARE(f.selected(), jpgs(u"a"_s));
    f->preferences().saveDontAsk.set(true);
    f->requestSave();
    QTRY_COMPARE_WITH_TIMEOUT(f.listed(), u"bcd"_s, patience);
    QCOMPARE(f.selected(), jpgs(u"b"_s));
}

// A selection shrinks to what passes; where nothing does it is empty, and comes back with the list.
void tst_Filtering::manyLeaveAtOnce()
{
    Photos& f = open();
    f->selectAllPhotos();
    f.click(u"d.jpg"_s, false, true);
    f.click(u"d.jpg"_s, false, true);
    QCOMPARE(f.primary(), u"d.jpg"_s);
    f.filters().setOn(PhotoTrait::noKeywords, true);
    QCOMPARE(f.selected(), jpgs(u"bce"_s));
    QCOMPARE(f.primary(), u"e.jpg"_s);
    f.filters().setLeastStars(5);
    QCOMPARE(f.listed(), QString());
    QCOMPARE(f.selected(), QStringList());
    f.filters().setLeastStars(0);
    QCOMPARE(f.selected(), jpgs(u"e"_s));
    f.filters().clear();
    QCOMPARE(f.selected(), jpgs(u"e"_s));
}

void tst_Filtering::editedAndChanged()
{
    Photos f(m_photos.get());
    QVERIFY(f.open());
    QCOMPARE(f.filters().count(PhotoTrait::changed), 0);
    f.select(u"bc"_s);
    f->addBatchListItem(u"keywords"_s, u"new"_s);
    QTRY_COMPARE(f.filters().count(PhotoTrait::edited), 2);
    f.click(u"e.jpg"_s);  // left behind, they wait
    f->setSingle(u"title"_s, u"New"_s);
    QTRY_COMPARE(f.filters().count(PhotoTrait::edited), 3);
    f.filters().setOn(PhotoTrait::edited, true);
    QCOMPARE(f.listed(), u"bce"_s);
    f->requestSave();
    QTRY_COMPARE_WITH_TIMEOUT(f.listed(), u"bc"_s, patience);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.filters().count(PhotoTrait::changed), 1);
    exiftool({ u"-overwrite_original"_s, u"-q"_s, u"-XMP-dc:Title=Other"_s, f.folder.path(u"d.jpg"_s) });
    f->refresh();
    QTRY_COMPARE_WITH_TIMEOUT(f.filters().count(PhotoTrait::changed), 2, patience);
    f.filters().clear();
    f.filters().setOn(PhotoTrait::changed, true);
    QCOMPARE(f.listed(), u"de"_s);
    QVERIFY(f.open());
    QCOMPARE(f.filters().count(PhotoTrait::changed), 0);
}

void tst_Filtering::endsWithOtherPhotos()
{
    Photos& f = open();
    QSignalSpy changes(&f.filters(), &Filtering::changed);
    f.filters().setOn(PhotoTrait::noPlace, true);
    f.filters().setLeastStars(1);
    f.filters().setText(u"nikon"_s);
    QTRY_COMPARE(f.filters().filter().text, u"nikon"_s);
    QCOMPARE(f.listed(), u"c"_s);
    changes.clear();
    QVERIFY(f.open());
    QCOMPARE(f.listed(), u"abcde"_s);
    QVERIFY(!f.filters().isOn() && f.filters().text().isEmpty() && f.filters().leastStars() == 0);
    QCOMPARE(changes.count(), 1);
}

void tst_Filtering::unreadPhotosCountNowhere()
{
    const GatedTool tool;
    ModelFixture f(tool.service());
    f.addTitled(jpgs(u"ab"_s));
    tool.shut("-n");
    f->load({ f.folderURL() });
    QTRY_COMPARE(f->records().size(), 2);
    Filtering& filters = f->filtering();
    filters.setOn(PhotoTrait::noKeywords, true);
    QCOMPARE(f.visible(), QStringList());
    QCOMPARE(filters.unread(), 2);
    QCOMPARE(filters.count(PhotoTrait::noKeywords), 0);
    QCOMPARE(filters.count(PhotoTrait::unrated), 0);
    tool.release();
    QVERIFY(f.waitUntilIdle());
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), jpgs(u"ab"_s), patience);
    QCOMPARE(filters.unread(), 0);
    QCOMPARE(filters.count(PhotoTrait::noKeywords), 2);
    QTRY_COMPARE(f.selected().size(), 1);
}

// Down the form of one photo, then on to the next; round once, and back.
void tst_Filtering::goesFromGapToGap()
{
    Photos& f = open();
    SidebarView* sidebar = nullptr;
    InspectorView* inspector = nullptr;
    show(&sidebar, &inspector);
    const auto note = [&] { return sidebar->findChild<BriefNote*>()->text(); };
    const auto at = [&] {
        QCoreApplication::processEvents();
        const QWidget* focus = QApplication::focusWidget();
        return f.primary().left(1) + u' ' + (inspector->isAncestorOf(focus) ? focus->accessibleName() : QString());
    };
    const auto go = [&](Filtering::Way way) {
        f.filters().goToGap(way);
        QTest::qWait(0);
        return at();
    };
    using enum Filtering::Way;
    f.click(u"d.jpg"_s);
    sidebar->list()->setFocus();
    QStringList seen;
    for (int i = 0; i < 7; ++i)
        seen.append(go(next));
    QCOMPARE(seen,
        (QStringList{ u"d Title"_s, u"d Description"_s, u"d Date taken"_s, u"d Creator"_s, u"d Copyright"_s,
            u"d Place"_s, u"e Title"_s }));
    QCOMPARE(note(), QString());
    // Of what is filtered for only, and a text that is not saved fills the gap of its photo.
    f.filters().setOn(PhotoTrait::noKeywords, true);
    QCOMPARE(go(next), u"e Keywords"_s);
    QCOMPARE(go(next), u"b Keywords"_s);
    QCOMPARE(note(), u"Started again at the top"_s);
    auto* said = sidebar->findChild<BriefNote*>();
    QCOMPARE(QAccessible::queryAccessibleInterface(said)->role(), QAccessible::AlertMessage);
    sidebar->resize(sidebar->width(), sidebar->height() - 150);
    QVERIFY(sidebar->list()->rect().contains(said->geometry()));
    QCOMPARE(go(previous), u"e Keywords"_s);
    QCOMPARE(note(), u"Started again at the end"_s);
    QCOMPARE(go(previous), u"c Keywords"_s);
    f->addSingleListItem(u"keywords"_s, u"word"_s);
    sidebar->list()->setFocus();
    // The question comes first.
    f->preferences().saveDontAsk.set(false);
    f.filters().goToGap(next);
    QVERIFY(f->saveOpen());
    QCOMPARE(f.primary(), u"c.jpg"_s);
    f->discardSaveDialog();
    QTRY_COMPARE(at(), u"e Keywords"_s);
    f->preferences().saveDontAsk.set(true);
    f->setSearch(u"a.jpg"_s);
    f.filters().clear();
    f.click(u"a.jpg"_s);
    f.filters().goToGap(next);
    QCOMPARE(note(), u"No gaps left"_s);
}

void tst_Filtering::menuStaysOpen()
{
    Photos& f = open();
    SidebarView* sidebar = nullptr;
    show(&sidebar);
    QTest::mouseClick(button(sidebar, u"Filter images"_s), Qt::LeftButton);
    const QPointer<FilterMenu> menu = sidebar->findChild<FilterMenu*>();
    QVERIFY(menu && menu->isVisible());
    const auto row = [&](const QString& name) { return qobject_cast<MenuRow*>(button(menu, name)); };
    const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    QCOMPARE(menu->box().width(), 236);
    press(Qt::Key_Down);
    QVERIFY(row(u"No title, 4 photos"_s)->hasFocus());
    press(Qt::Key_Space);
    QVERIFY(menu && menu->isVisible());
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(row(u"No title, 4 photos"_s));
    QVERIFY(spoken->role() == QAccessible::CheckBox && spoken->state().checked);
    QTest::mouseClick(row(u"No keywords, 3 photos"_s), Qt::LeftButton);
    QCOMPARE(f.listed(), u"bce"_s);
    QCOMPARE(row(u"No keywords, 3 photos"_s)->trailing(), u"3"_s);
    menu->findChild<RatingEditor*>()->setFocus();
    press(Qt::Key_3);
    QCOMPARE(f.listed(), u"c"_s);
    QCOMPARE(menu->findChild<RatingEditor*>()->accessibleName(), u"At least 3 stars, 2 photos"_s);
    QCOMPARE(sidebar->findChildren<KeywordChip*>().size(), 3);
    // Round to the end, and in the field.
    press(Qt::Key_Up);
    QVERIFY(row(u"Unrated, 2 photos"_s)->hasFocus());
    auto* field = menu->findChild<QLineEdit*>();
    field->setFocus();
    QTest::keyClicks(field, u"lake"_s);
    QTRY_COMPARE(f.listed(), QString());
    QCOMPARE(sidebar->list()->accessibleDescription(), u"Nothing left"_s);
    QTest::keyClick(field, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_VERIFY(!menu);
    QCOMPARE(f.listed(), u"abcde"_s);
}

// What assistive tools find to be seen, from the top down.
static QStringList spokenWithin(QAccessibleInterface* top)
{
    QStringList names;
    for (int i = 0; top && i < top->childCount(); ++i) {
        QAccessibleInterface* child = top->child(i);
        if (!child || child->state().invisible)
            continue;
        names.append(child->text(QAccessible::Name));
        names += spokenWithin(child);
    }
    return names;
}

void tst_Filtering::chipsGoByKey()
{
    Photos& f = open();
    SidebarView* sidebar = nullptr;
    show(&sidebar);
    const int top = sidebar->listTop();
    f.set(PhotoTrait::noTitle | PhotoTrait::noDescription | PhotoTrait::noKeywords | PhotoTrait::noPlace
        | PhotoTrait::noCopyright | PhotoTrait::noCreator);
    const auto chips = [&] {
        QStringList names;
        for (const KeywordChip* chip : sidebar->findChildren<KeywordChip*>())
            if (chip->isVisible())
                names.append(chip->accessibleName());
        return names;
    };
    // Two lines, and a way to the others.
    QTRY_COMPARE(sidebar->listTop(), top + 2 * 28 + 9 - 5);
    QVERIFY(chips().size() < 6 && chips().first() == u"No title"_s);
    QVERIFY(button(sidebar, u"%1 more filters"_s.arg(6 - chips().size())));
    f.set(PhotoTrait::noTitle | PhotoTrait::noPlace);
    QTRY_COMPARE(chips(), (QStringList{ u"No title"_s, u"No place"_s }));
    QTRY_COMPARE(sidebar->listTop(), top + 28 + 9 - 5);
    sidebar->findChildren<KeywordChip*>().first()->setFocus();
    const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    press(Qt::Key_Right);
    press(Qt::Key_Delete);
    QCOMPARE(chips(), QStringList{ u"No title"_s });
    QCOMPARE(f.listed(), u"bcde"_s);
    press(Qt::Key_Backspace);
    QVERIFY(!f.filters().isOn() && sidebar->list()->hasFocus());
    QTRY_COMPARE(sidebar->listTop(), top);
    // Where nothing is left, the list says so.
    f.filters().setLeastStars(5);
    f.filters().setOn(PhotoTrait::noTitle, true);
    QAbstractButton* clear = button(sidebar, u"Clear filters"_s);
    QVERIFY(clear);
    const QStringList spoken = spokenWithin(QAccessible::queryAccessibleInterface(sidebar));
    QVERIFY(spoken.contains(u"Nothing left"_s) && spoken.contains(u"Clear filters"_s));
    QTest::mouseClick(clear, Qt::LeftButton);
    QCOMPARE(f.listed(), u"abcde"_s);
    QCOMPARE(f.selected().size(), 1);
}

QTEST_MAIN(tst_Filtering)
#include "tst_Filtering.moc"
