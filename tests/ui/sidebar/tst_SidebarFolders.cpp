// The list of photos of a folder that is open with the folders in it: headings, what folds them, how they stay in
// sight.
#include "app/model/thumbnails/ThumbnailStore.h"
#include "tests/app/model/ModelFixture.h"
#include "tests/ui/UiSupport.h"
#include "ui/sidebar/SidebarDelegate.h"
#include "ui/sidebar/SidebarList.h"
#include "ui/sidebar/SidebarView.h"

#include <QAccessible>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QScrollBar>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

const QStringList photos{ u"Alps/Lake/l1.jpg"_s, u"Alps/Lake/l2.jpg"_s, u"Alps/Lake/l3.jpg"_s, u"Alps/Lake/l4.jpg"_s,
    u"Alps/Lake/l5.jpg"_s, u"Alps/Pass/p1.jpg"_s, u"Alps/Pass/p2.jpg"_s, u"Zoo/z1.jpg"_s, u"Zoo/z2.jpg"_s,
    u"Zoo/z3.jpg"_s };

// Keys as people write them: "Down", "Shift+End", "Alt+Left", "l".
void typeKeys(QWidget* into, const QString& keys)
{
    for (const QString& key : keys.split(u' ', Qt::SkipEmptyParts)) {
        const QKeyCombination combination = QKeySequence(key)[0];
        QTest::keyClick(into, combination.key(), combination.keyboardModifiers());
    }
}

}  // namespace

class tst_SidebarFolders : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void rowsKnowTheirPlace_data();
    void rowsKnowTheirPlace();
    void headingsAreToldToEyeAndEar();
    void keys_data();
    void keys();
    void clicks_data();
    void clicks();
    void rangesLeaveOutWhatIsFolded();
    void headingStaysUntilTheNextPushesIt();
    void foldingLeavesTheHeadingWhereItIs();
    void keyboardIsNeverUnderAHeading();
    void searchWithinFolders();
    void foldedPhotosTakeNoThumbnails();
    void photosThatComeMoveNothing();
    void oneFolderHasNoHeadings();

private:
    SidebarList* list() { return m_view->list(); }
    int rowOf(const QString& name) const
    {
        const QAbstractItemModel* rows = m_view->list()->model();
        for (int row = 0; row < rows->rowCount(); ++row)
            if (rows->index(row, 0).data().toString() == name)
                return row;
        return -1;
    }
    QRect rectOf(const QString& name) { return list()->visualRect(list()->model()->index(rowOf(name), 0)); }
    QString here() { return list()->currentIndex().data().toString().section(u'.', 0, 0); }
    // "-Alps / Lake +Alps / Pass p1 p2": the rows, headings with what a click does to them.
    QString shown() const
    {
        QStringList texts;
        const QAbstractItemModel* rows = m_view->list()->model();
        for (int row = 0; row < rows->rowCount(); ++row) {
            const QModelIndex index = rows->index(row, 0);
            const QString spoken = index.data(Qt::AccessibleTextRole).toString();
            const QString mark = spoken.endsWith(u"collapsed"_s) ? u"+"_s
                : spoken.endsWith(u"expanded"_s)                 ? u"-"_s
                                                                 : QString();
            texts.append(mark + index.data().toString().section(u'.', 0, 0));
        }
        return texts.join(u' ');
    }
    // Names of the selected photos, as the rows show it and as the model says.
    QString selected() const
    {
        QStringList names;
        for (const QModelIndex& index : m_view->list()->selectionModel()->selectedRows())
            names.append(index.data().toString().section(u'.', 0, 0));
        names.sort();
        return names.join(u' ');
    }
    QString chosen() const { return m_fixture->selected().join(u' ').remove(u".jpg"_s); }
    void resizeTo(int listHeight) { m_view->setFixedSize(288, m_view->listTop() + listHeight); }

    std::unique_ptr<ModelFixture> m_fixture;
    std::unique_ptr<Stage> m_stage;
    QPointer<SidebarView> m_view;
    QList<QUrl> m_opened;
};

void tst_SidebarFolders::initTestCase()
{
    m_fixture = std::make_unique<ModelFixture>();
    m_fixture->services.openUrl = [this](const QUrl& url) { m_opened.append(url); };
    m_fixture->relaunch();
    for (const QString& photo : photos) {
        QVERIFY(QDir(m_fixture->folder.path()).mkpath(QFileInfo(photo).path()));
        m_fixture->folder.add(photo);
    }
}

void tst_SidebarFolders::init()
{
    failOnWarnings();
    m_view = nullptr;
    m_stage = std::make_unique<Stage>();
    if ((*m_fixture)->folderGroups().isEmpty()) {
        (*m_fixture)->load({ m_fixture->folderURL() }, true);
        QVERIFY(m_fixture->waitUntilIdle());
    }
    (*m_fixture)->setSearch({});
    (*m_fixture)->setAllFolded(false);
    m_fixture->click(photos.constFirst());
    m_opened.clear();
    m_view = m_stage->add(new SidebarView(*m_fixture->model, nullptr));
    resizeTo(800);
    m_stage->show();
    list()->setFocus();
    QCOMPARE(shown(), u"-Alps / Lake l1 l2 l3 l4 l5 -Alps / Pass p1 p2 -Zoo z1 z2 z3"_s);
}

void tst_SidebarFolders::rowsKnowTheirPlace_data()
{
    QTest::addColumn<QList<int>>("counts");  // of photos, negative where folded
    QTest::newRow("one group") << QList<int>{ 3 };
    QTest::newRow("some folded") << QList<int>{ 2, -3, -1, 4 };
    QTest::newRow("folded at both ends") << QList<int>{ -5, 1, 1, -2 };
    QTest::newRow("all folded") << QList<int>{ -1, -1, -7 };
    QList<int> many;
    for (int i = 0; i < 2'000; ++i)
        many.append(i % 7 == 0 ? -25 : 25);
    QTest::newRow("many") << many;
}

// Whatever is asked for, the answer is that of one walk from the top.
void tst_SidebarFolders::rowsKnowTheirPlace()
{
    QFETCH(QList<int>, counts);
    QList<FolderGroup> groups;
    qsizetype all = 0;
    for (const int count : counts) {
        groups.append({ .first = all, .count = std::abs(count), .isFolded = count < 0 });
        all += std::abs(count);
    }
    const GroupedRows rows(groups, all);
    const RowPitch pitch{ 32, 56 };
    int row = 0;
    int top = 0;
    const auto check = [&](int group, qsizetype photo, int height) {
        QCOMPARE(rows.groupAt(row), group);
        QCOMPARE(rows.headingAt(row), photo < 0 ? group : -1);
        QCOMPARE(rows.photoAt(row), photo);
        QCOMPARE(photo < 0 ? rows.rowOfHeading(group) : rows.rowOfPhoto(photo), row);
        QCOMPARE(rows.top(row, pitch), top);
        QCOMPARE(rows.rowAt(top, pitch), row);
        QCOMPARE(rows.rowAt(top + height - 1, pitch), row);
        ++row;
        top += height;
    };
    for (int group = 0; group < groups.size(); ++group) {
        check(group, -1, pitch.heading);
        for (qsizetype photo = groups[group].first; photo < groups[group].first + groups[group].count; ++photo) {
            QCOMPARE(rows.groupOfPhoto(photo), group);
            if (groups[group].isFolded)
                QCOMPARE(rows.rowOfPhoto(photo), -1);
            else
                check(group, photo, pitch.photo);
        }
    }
    QCOMPARE(rows.count(), row);
    QCOMPARE(rows.top(row, pitch), top);
    QCOMPARE(rows.rowAt(-1, pitch), 0);
    QCOMPARE(rows.rowAt(top + 100, pitch), row - 1);
    QCOMPARE(rows.photoAt(row), -1);
}

void tst_SidebarFolders::headingsAreToldToEyeAndEar()
{
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(list());
    QCOMPARE(spoken->childCount(), 13);
    QCOMPARE(spoken->child(0)->text(QAccessible::Name), u"Alps / Lake, 5 photos, expanded"_s);
    (*m_fixture)->selectAllPhotos();
    QVERIFY(!spoken->child(0)->state().selectable);
    QVERIFY(!spoken->child(6)->state().selected);
    QVERIFY(spoken->child(7)->state().selected);
    (*m_fixture)->setFolded(m_fixture->url(u"Alps/Lake"_s), true);
    QCOMPARE(spoken->child(0)->text(QAccessible::Name), u"Alps / Lake, 5 photos, collapsed"_s);
    QCOMPARE(spoken->child(1)->text(QAccessible::Name), u"Alps / Pass, 2 photos, expanded"_s);

    const QRect heading = rectOf(u"Zoo"_s);
    QCOMPARE(heading.height(), SidebarDelegate::pitches().heading);
    QCOMPARE(rectOf(u"z1.jpg"_s).top(), heading.bottom() + 1);
    const auto chevron = [&] { return list()->viewport()->grab({ heading.topLeft(), QSize(24, 30) }).toImage(); };
    const QImage open = chevron();
    (*m_fixture)->setFolded(m_fixture->url(u"Zoo"_s), true);
    QVERIFY(chevron() != open);
}

void tst_SidebarFolders::keys_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("where");
    QTest::addColumn<QString>("choice");
    const QString all = u"-Alps / Lake l1 l2 l3 l4 l5 -Alps / Pass p1 p2 -Zoo z1 z2 z3"_s;
    const QString noPass = u"-Alps / Lake l1 l2 l3 l4 l5 +Alps / Pass -Zoo z1 z2 z3"_s;
    const QString none = u"+Alps / Lake +Alps / Pass +Zoo"_s;
    const auto row = [](const char* name, const QString& from, const QString& keys, const QString& rows,
                         const QString& where,
                         const QString& choice) { QTest::newRow(name) << from << keys << rows << where << choice; };
    row("down passes over an open heading", u"Alps/Lake/l5"_s, u"Down"_s, all, u"p1"_s, u"p1"_s);
    row("up too", u"Zoo/z1"_s, u"Up"_s, all, u"p2"_s, u"p2"_s);
    row("up at the first photo", u"Alps/Lake/l1"_s, u"Up"_s, all, u"l1"_s, u"l1"_s);
    row("left goes to the heading", u"Alps/Pass/p2"_s, u"Left"_s, all, u"Alps / Pass"_s, u"p2"_s);
    row("and folds", u"Alps/Pass/p2"_s, u"Left Left"_s, noPass, u"Alps / Pass"_s, u"p2"_s);
    row("and no more", u"Alps/Pass/p2"_s, u"Left Left Left"_s, noPass, u"Alps / Pass"_s, u"p2"_s);
    row("right unfolds", u"Alps/Pass/p2"_s, u"Left Left Right"_s, all, u"Alps / Pass"_s, u"p2"_s);
    row("then goes to the first photo", u"Alps/Pass/p2"_s, u"Left Left Right Right"_s, all, u"p1"_s, u"p1"_s);
    row("and stays there", u"Alps/Pass/p2"_s, u"Left Right Right"_s, all, u"p1"_s, u"p1"_s);
    row("return", u"Alps/Pass/p2"_s, u"Left Return"_s, noPass, u"Alps / Pass"_s, u"p2"_s);
    row("space, twice", u"Alps/Pass/p2"_s, u"Left Space Space"_s, all, u"Alps / Pass"_s, u"p2"_s);
    row("with alt, all", u"Alps/Pass/p2"_s, u"Alt+Left"_s, none, u"Alps / Pass"_s, u"p2"_s);
    row("and back", u"Alps/Pass/p2"_s, u"Alt+Left Alt+Right"_s, all, u"p2"_s, u"p2"_s);
    row("alt and return", u"Alps/Pass/p2"_s, u"Left Alt+Return"_s, none, u"Alps / Pass"_s, u"p2"_s);
    row("down stops at a folded one", u"Alps/Pass/p2"_s, u"Left Left Up Down"_s, noPass, u"Alps / Pass"_s, u"l5"_s);
    row("and goes on", u"Alps/Pass/p2"_s, u"Left Left Down"_s, noPass, u"z1"_s, u"z1"_s);
    row("back to the photo that is selected", u"Zoo/z1"_s, u"Left Down"_s, all, u"z1"_s, u"z1"_s);
    row("home and end among folded ones", u"Alps/Pass/p2"_s, u"Alt+Left End Home"_s, none, u"Alps / Lake"_s, u"p2"_s);
    row("page down over headings", u"Alps/Lake/l1"_s, u"PgDown"_s, all, u"z3"_s, u"z3"_s);
    row("a range passes over folded ones", u"Alps/Pass/p2"_s, u"Left Left Up Shift+Down"_s, noPass, u"z1"_s,
        u"l5 z1"_s);
    row("ctrl moves alone", u"Alps/Lake/l5"_s, u"Ctrl+Down"_s, all, u"p1"_s, u"l5"_s);
    row("all, from a heading", u"Alps/Pass/p2"_s, u"Left Left Ctrl+A"_s, noPass, u"Alps / Pass"_s,
        u"l1 l2 l3 l4 l5 p1 p2 z1 z2 z3"_s);
    row("letters find photos", u"Alps/Pass/p2"_s, u"Left Z 3"_s, all, u"z3"_s, u"z3"_s);
}

void tst_SidebarFolders::keys()
{
    QFETCH(QString, from);
    QFETCH(QString, keys);
    m_fixture->click(from + u".jpg"_s);
    typeKeys(list(), keys);
    QTEST(shown(), "rows");
    QTEST(here(), "where");
    QTEST(chosen(), "choice");
    QCOMPARE(m_opened, QList<QUrl>());
    // What is selected and not folded away looks so.
    QStringList looks;
    for (const QString& name : chosen().split(u' '))
        if (rowOf(name + u".jpg"_s) >= 0)
            looks.append(name);
    QCOMPARE(selected(), looks.join(u' '));
}

void tst_SidebarFolders::clicks_data()
{
    QTest::addColumn<QString>("act");
    QTest::addColumn<QString>("rows");
    const QString all = u"-Alps / Lake l1 l2 l3 l4 l5 -Alps / Pass p1 p2 -Zoo z1 z2 z3"_s;
    const QString noPass = u"-Alps / Lake l1 l2 l3 l4 l5 +Alps / Pass -Zoo z1 z2 z3"_s;
    QTest::newRow("one") << u"click"_s << noPass;
    QTest::newRow("and another") << u"click click"_s << all;
    QTest::newRow("with alt") << u"alt"_s << u"+Alps / Lake +Alps / Pass +Zoo"_s;
    QTest::newRow("with alt, and again") << u"alt alt"_s << all;
    QTest::newRow("a double one is one") << u"click double"_s << noPass;
    QTest::newRow("with the right button") << u"right"_s << all;
    QTest::newRow("with shift and ctrl") << u"shift ctrl"_s << all;
    QTest::newRow("a drag over photos") << u"drag"_s << noPass;
}

void tst_SidebarFolders::clicks()
{
    QFETCH(QString, act);
    QWidget* area = list()->viewport();
    for (const QString& each : act.split(u' ')) {
        const QPoint heading = rectOf(u"Alps / Pass"_s).center();
        if (each == u"double")
            QTest::mouseDClick(area, Qt::LeftButton, {}, heading);
        else if (each == u"drag") {
            QTest::mousePress(area, Qt::LeftButton, {}, heading);
            QTest::mouseMove(area, heading + QPoint(0, 120));
            QTest::mouseRelease(area, Qt::LeftButton, {}, heading + QPoint(0, 120));
        } else
            QTest::mouseClick(area, each == u"right" ? Qt::RightButton : Qt::LeftButton,
                each == u"alt"         ? Qt::AltModifier
                    : each == u"shift" ? Qt::ShiftModifier
                    : each == u"ctrl"  ? Qt::ControlModifier
                                       : Qt::NoModifier,
                heading);
    }
    QTEST(shown(), "rows");
    QCOMPARE(chosen(), u"l1"_s);
    QCOMPARE(m_opened, QList<QUrl>());
    // The keys go on from the photo that is selected, not from where the mouse was.
    if (rowOf(u"l1.jpg"_s) >= 0)
        QCOMPARE(here(), u"l1"_s);
}

void tst_SidebarFolders::rangesLeaveOutWhatIsFolded()
{
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, rectOf(u"Alps / Pass"_s).center());
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, rectOf(u"l4.jpg"_s).center());
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::ShiftModifier, rectOf(u"z2.jpg"_s).center());
    QCOMPARE(chosen(), u"l4 l5 z1 z2"_s);
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, rectOf(u"Alps / Pass"_s).center());
    QCOMPARE(selected(), u"l4 l5 z1 z2"_s);
    // A selection that is folded away stays, and is seen again.
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, rectOf(u"Zoo"_s).center());
    QCOMPARE(selected(), u"l4 l5"_s);
    QCOMPARE(chosen(), u"l4 l5 z1 z2"_s);
    QCOMPARE(here(), u"Zoo"_s);  // its primary photo is in there
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, rectOf(u"Zoo"_s).center());
    QCOMPARE(selected(), u"l4 l5 z1 z2"_s);
}

void tst_SidebarFolders::headingStaysUntilTheNextPushesIt()
{
    resizeTo(200);
    QScrollBar* bar = list()->verticalScrollBar();
    const auto picture = [this] { return list()->viewport()->grab().toImage(); };  // without the scroll bar
    const QImage atTop = picture();
    const int height = SidebarDelegate::headingHeight();
    const auto lineUnder = [&](int y) {
        const QImage seen = picture();
        const QColor line = Theme::light().line;
        return seen.pixelColor(0, y) == line && seen.pixelColor(seen.width() - 1, y) == line;
    };
    bar->setValue(0);
    QVERIFY(!list()->stuckLine());
    QVERIFY(!lineUnder(rectOf(u"Alps / Lake"_s).top() + height - 1));
    bar->setValue(100);
    QCOMPARE(rectOf(u"Alps / Lake"_s).top(), 0);
    QCOMPARE(list()->stuckLine(), std::optional(height - 1));
    QVERIFY(lineUnder(height - 1));
    QCOMPARE(list()->indexAt({ 100, 10 }).row(), 0);
    // Pushed by the next one, which takes its place.
    bar->setValue(bar->value() + rectOf(u"Alps / Pass"_s).top() - height / 2);
    QCOMPARE(rectOf(u"Alps / Pass"_s).top(), height / 2);
    QCOMPARE(rectOf(u"Alps / Lake"_s).top(), height / 2 - height);
    QVERIFY(lineUnder(height / 2 - 1));
    QCOMPARE(list()->indexAt({ 100, height / 2 }).row(), rowOf(u"Alps / Pass"_s));
    bar->setValue(bar->value() + height);
    QCOMPARE(rectOf(u"Alps / Pass"_s).top(), 0);
    QVERIFY(rectOf(u"Alps / Lake"_s).bottom() < 0);
    bar->setValue(0);
    QCOMPARE(picture(), atTop);
}

void tst_SidebarFolders::foldingLeavesTheHeadingWhereItIs()
{
    resizeTo(200);
    QScrollBar* bar = list()->verticalScrollBar();
    bar->setValue(150);
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, { 100, 10 });  // the one that stays at the top
    QCOMPARE(shown(), u"+Alps / Lake -Alps / Pass p1 p2 -Zoo z1 z2 z3"_s);
    QCOMPARE(rectOf(u"Alps / Lake"_s).top(), 0);
    QVERIFY(rectOf(u"p1.jpg"_s).top() > 0);
    (*m_fixture)->setAllFolded(false);
    bar->setValue(200);
    const int y = rectOf(u"Alps / Pass"_s).top();
    QVERIFY(y > SidebarDelegate::headingHeight() && y < 160);
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, rectOf(u"Alps / Pass"_s).center());
    QCOMPARE(rectOf(u"Alps / Pass"_s).top(), y);
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::AltModifier, rectOf(u"Alps / Pass"_s).center());
    QCOMPARE(shown(), u"-Alps / Lake l1 l2 l3 l4 l5 -Alps / Pass p1 p2 -Zoo z1 z2 z3"_s);
    QCOMPARE(rectOf(u"Alps / Pass"_s).top(), y);
}

// Wherever the keys lead, the row is seen whole, with the heading of its folder.
void tst_SidebarFolders::keyboardIsNeverUnderAHeading()
{
    resizeTo(200);
    const QStringList ways{ u"Down"_s, u"Up"_s, u"PgDown"_s, u"PgUp"_s };
    for (const QString& key : ways) {
        m_fixture->click(key.endsWith(u"own"_s) ? photos.constFirst() : photos.constLast());
        for (int i = 0; i < photos.size(); ++i) {
            typeKeys(list(), key);
            const QRect row = rectOf(here() + u".jpg"_s);
            QVERIFY2(row.top() >= SidebarDelegate::headingHeight(), qPrintable(key + u' ' + here()));
            QVERIFY2(row.bottom() <= list()->viewport()->height(), qPrintable(key + u' ' + here()));
        }
    }
    QCOMPARE(here(), u"l1"_s);
    QCOMPARE(list()->verticalScrollBar()->value(), 0);
}

void tst_SidebarFolders::searchWithinFolders()
{
    auto* search = m_view->findChild<QLineEdit*>();
    QTest::keyClicks(search, u"2"_s);
    QCOMPARE(shown(), u"-Alps / Lake l2 -Alps / Pass p2 -Zoo z2"_s);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(list());
    QCOMPARE(spoken->child(0)->text(QAccessible::Name), u"Alps / Lake, 1 photo, expanded"_s);
    search->clear();
    QTest::keyClicks(search, u"z"_s);
    QCOMPARE(shown(), u"-Zoo z1 z2 z3"_s);
    QTest::keyClick(search, Qt::Key_Down);
    QCOMPARE(chosen(), u"z1"_s);
    // What is found stays folded; the keyboard gets to its heading and leaves the selection alone.
    (*m_fixture)->setFolded(m_fixture->url(u"Zoo"_s), true);
    QTest::keyClick(search, Qt::Key_Down);
    QCOMPARE(here(), u"Zoo"_s);
    QCOMPARE(chosen(), u"z1"_s);
    search->setFocus();
    QTest::keyClicks(search, u"nowhere"_s);
    QCOMPARE(shown(), QString());
    QCOMPARE(list()->accessibleDescription(), u"No matching photos."_s);
    QTest::keyClick(search, Qt::Key_Escape);
    QCOMPARE(shown(), u"-Alps / Lake l1 l2 l3 l4 l5 -Alps / Pass p1 p2 +Zoo"_s);
}

void tst_SidebarFolders::foldedPhotosTakeNoThumbnails()
{
    ThumbnailStoreOptions options;
    options.workers = 1;
    options.decode = [](const QString&, int, const std::stop_token&) { return DecodedImage{}; };
    options.embedded = [](const QString&, const std::stop_token&) { return QImage(); };
    ThumbnailStore thumbs(options);
    (*m_fixture)->setFolded(m_fixture->url(u"Alps/Lake"_s), true);
    SidebarView view(*m_fixture->model, &thumbs);
    view.setFixedSize(288, view.listTop() + 150);
    view.show();
    const auto state = [&](const QString& name) {
        return thumbs.entry(m_fixture->url(name), ThumbnailStore::Kind::small).state;
    };
    QTRY_COMPARE(state(u"Alps/Pass/p1.jpg"_s), ThumbnailStore::State::badge);
    QTest::qWait(100);
    QCOMPARE(state(u"Alps/Lake/l1.jpg"_s), ThumbnailStore::State::none);
    QTest::mouseClick(view.list()->viewport(), Qt::LeftButton, {},
        view.list()->visualRect(view.list()->model()->index(0, 0)).center());
    QTRY_COMPARE(state(u"Alps/Lake/l1.jpg"_s), ThumbnailStore::State::badge);
}

// Another program puts photos above those that one looks at.
void tst_SidebarFolders::photosThatComeMoveNothing()
{
    resizeTo(200);
    QScrollBar* bar = list()->verticalScrollBar();
    bar->setValue(bar->maximum() - 20);
    QTest::qWait(0);
    const int y = rectOf(u"z2.jpg"_s).top();
    const QString fresh = m_fixture->folder.path(u"a.jpg"_s);
    writeFile(fresh, jpegBytes());
    QTRY_VERIFY_WITH_TIMEOUT(rowOf(u"a.jpg"_s) >= 0, 30'000);
    QCOMPARE(rectOf(u"z2.jpg"_s).top(), y);
    QVERIFY(QFile::remove(fresh));
    QTRY_VERIFY_WITH_TIMEOUT(rowOf(u"a.jpg"_s) < 0, 30'000);
    QCOMPARE(rectOf(u"z2.jpg"_s).top(), y);
}

void tst_SidebarFolders::oneFolderHasNoHeadings()
{
    const auto picture = [this] { return list()->viewport()->grab().toImage(); };
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, rectOf(u"l1.jpg"_s).center());
    const QImage before = picture();
    (*m_fixture)->load({ m_fixture->url(u"Zoo"_s) }, false);
    QVERIFY(m_fixture->waitUntilIdle());
    QCOMPARE(shown(), u"z1 z2 z3"_s);
    QCOMPARE(list()->viewport()->geometry().topLeft(), QPoint(6, 6));
    QCOMPARE(rectOf(u"z1.jpg"_s).topLeft(), QPoint(0, 0));
    typeKeys(list(), u"Down Left Right Alt+Left"_s);
    QCOMPARE(chosen(), u"z2"_s);
    (*m_fixture)->load({ m_fixture->folderURL() }, true);
    QVERIFY(m_fixture->waitUntilIdle());
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, rectOf(u"l1.jpg"_s).center());
    QTRY_COMPARE(picture(), before);  // once the foot is gone
}

QTEST_MAIN(tst_SidebarFolders)
#include "tst_SidebarFolders.moc"
