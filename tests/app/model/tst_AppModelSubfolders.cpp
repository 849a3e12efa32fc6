// A folder that is open with the folders in it.
#include "tests/app/model/ModelFixture.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

struct Tree : ModelFixture {
    explicit Tree(const QStringList& photos = { u"top.jpg"_s, u"Alps/b.jpg"_s, u"Alps/a.jpg"_s, u"Alps/Lake/c.jpg"_s,
                      u"Alps/Lake/a.jpg"_s, u"Zoo/z.jpg"_s })
    {
        for (const QString& name : photos)
            addTo(name);
    }
    QUrl addTo(const QString& name) const
    {
        QDir(folder.path()).mkpath(QFileInfo(name).path());
        return folder.add(name);
    }
    bool openAll()
    {
        model->load({ folderURL() }, true);
        return waitUntilIdle() && !model->records().isEmpty();
    }
    QString below(const QUrl& url) const { return QDir(folder.path()).relativeFilePath(url.toLocalFile()); }
    /// Paths below the folder, in the order on screen.
    QString shown() const
    {
        QStringList paths;
        for (const ImageRecord& record : model->visibleRecords())
            paths.append(below(record.url));
        return paths.join(u' ');
    }
    QString chosen() const
    {
        QStringList paths;
        for (const ImageRecord& record : model->selectedRecords())
            paths.append(below(record.url));
        paths.sort();
        return paths.join(u' ');
    }
    /// "Alps / Lake 2@3": two photos from position 3 on; "-" in front of a folded one.
    QString groups() const
    {
        QStringList texts;
        for (const FolderGroup& group : model->folderGroups()) {
            const QString parents = group.parents.isEmpty() ? QString() : group.parents + u" / "_s;
            const QString name = group.folder == folderURL() ? u"top"_s : group.name;
            texts.append(
                (group.isFolded ? u"-"_s : QString()) + parents + name + u" %1@%2"_s.arg(group.count).arg(group.first));
        }
        return texts.join(u", "_s);
    }
};

// 700 photos in 50 folders; the tool waits at a gate, so nothing of them is read.
struct Forest : Tree {
    Forest()
        : Tree(QStringList{})
    {
        services.service = gate.service();
        relaunch();
        gate.shut();
        for (int i = 0; i < count; ++i) {
            if (i % 14 == 0)
                QDir(folder.path()).mkpath(u"forest/%1"_s.arg(i / 14));
            writeFile(folder.path(u"forest/%1/%2.jpg"_s.arg(i / 14).arg(i % 14)), "x");
        }
    }
    void load() const { model->load({ url(u"forest"_s) }, true); }
    /// Does it once when the first photos are there.
    void atFirst(const std::function<void()>& act) const
    {
        QObject::connect(
            model.get(), &AppModel::photosOpened, model.get(), [act] { act(); }, Qt::SingleShotConnection);
    }

    static constexpr int count = 700;
    GatedTool gate;
};

bool isRead(const ImageRecord& record)
{
    return !record.isUnread;
}

}  // namespace

class tst_AppModelSubfolders : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void opening();
    void whoAsksForThem_data();
    void whoAsksForThem();
    void severalFolders();
    void orderWithin_data();
    void orderWithin();
    void search();
    void folding();
    void stepping();
    void foldsEndWithTheFolder();
    void clicks_data();
    void clicks();
    void foldedSelection();
    void broughtBack();
    void renaming();
    void othersChangeTheTree();
    void shownWhileFound();
    void endedInTheMiddle_data();
    void endedInTheMiddle();
    void overWhatIsOpen();
    void firstPhotosCannotBeRead_data();
    void firstPhotosCannotBeRead();
    void nothingFound_data();
    void nothingFound();
};

void tst_AppModelSubfolders::opening()
{
    Tree f;
    QVERIFY(f.openAll());
    QCOMPARE(f.shown(), u"top.jpg Alps/a.jpg Alps/b.jpg Alps/Lake/a.jpg Alps/Lake/c.jpg Zoo/z.jpg"_s);
    QCOMPARE(f.groups(), u"top 1@0, Alps 2@1, Alps / Lake 2@3, Zoo 1@5"_s);
    QCOMPARE(f->folderGroups().constFirst().name, f->folderName());
    QCOMPARE(f->folderName(), QDir(f.folder.path()).dirName());
    QCOMPARE(f->folderURL(), f.folderURL());
    QCOMPARE(f->recentURLs(), QList<QUrl>{ f.folderURL() });
    QCOMPARE(f->folderCountText(), u"6 photos in 4 folders"_s);
    QCOMPARE(f.chosen(), u"top.jpg"_s);
    f->selectAllPhotos();
    QCOMPARE(f->folderCountText(), u"6 photos in 4 folders · 6 selected"_s);
    // The records themselves come in the order of the walk.
    QStringList records;
    for (const ImageRecord& record : f->records())
        records.append(f.below(record.url));
    QCOMPARE(records.join(u' '), f.shown());

    const Announcements announced(*f.model);
    QVERIFY(f.open());
    QCOMPARE(f.shown(), u"top.jpg"_s);
    QCOMPARE(f.groups(), QString());
    QCOMPARE(announced.counts().value(u"folderGroupsChanged"_s), 1);
    QCOMPARE(f->folderCountText(), u"1 photo"_s);

    const Tree lonely({ u"a/1.jpg"_s });
    lonely->load({ lonely.folderURL() }, true);
    QTRY_COMPARE(lonely->folderCountText(), u"1 photo in 1 folder"_s);
    lonely->closeFolder();
    QCOMPARE(lonely->folderCountText(), u"0 photos"_s);
    QVERIFY(lonely->folderGroups().isEmpty());
}

void tst_AppModelSubfolders::whoAsksForThem_data()
{
    QTest::addColumn<bool>("setting");
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("isWithThem");
    for (const bool setting : { false, true }) {
        for (const QString& way : { u"dropped"_s, u"recent"_s, u"panel"_s })
            QTest::addRow("%s, setting %d", qPrintable(way), setting) << setting << way << setting;
        QTest::addRow("panel with subfolders, setting %d", setting) << setting << u"panel with subfolders"_s << true;
    }
}

void tst_AppModelSubfolders::whoAsksForThem()
{
    QFETCH(bool, setting);
    QFETCH(QString, way);
    QFETCH(bool, isWithThem);
    Tree f;
    f.services.openPanel = [&f](const auto& done) { done({ f.folderURL() }); };
    f.services.openFolderPanel = f.services.openPanel;
    f.relaunch();
    f->preferences().openSubfolders.set(setting);
    f.relaunch();
    if (way == u"dropped")
        f->requestLoad({ f.folderURL() });
    else if (way == u"recent")
        f->openRecent(f.folderURL());
    else if (way == u"panel")
        f->openPanel();
    else
        f->openPanelWithSubfolders();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->records().size(), isWithThem ? 6 : 1);
    QCOMPARE(f->folderGroups().isEmpty(), !isWithThem);
}

void tst_AppModelSubfolders::severalFolders()
{
    Tree f;
    f->load({ f.url(u"Zoo"_s), f.url(u"Alps"_s), f.url(u"top.jpg"_s), f.url(u"Zoo/z.jpg"_s) }, true);
    QVERIFY(f.waitUntilIdle());
    // A photo that was given alone lies in its own folder, "tst_…".
    QCOMPARE(f.shown(), u"Alps/a.jpg Alps/b.jpg Alps/Lake/a.jpg Alps/Lake/c.jpg top.jpg Zoo/z.jpg"_s);
    QCOMPARE(f->folderURL(), std::nullopt);
    QCOMPARE(f->folderName(), u"Alps"_s);
    f->load({ f.url(u"top.jpg"_s) }, true);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.shown(), u"top.jpg"_s);
    QCOMPARE(f.groups(), QString());
}

void tst_AppModelSubfolders::orderWithin_data()
{
    QTest::addColumn<RecordSortOrder>("order");
    QTest::addColumn<QString>("shown");
    using enum RecordSortOrder;
    QTest::newRow("by name") << nameAsc << u"b/1.jpg b/2.jpg b/3.jpg c/1.jpg c/2.jpg"_s;
    QTest::newRow("by name, backwards") << nameDesc << u"b/3.jpg b/2.jpg b/1.jpg c/2.jpg c/1.jpg"_s;
    QTest::newRow("oldest") << dateOldest << u"b/2.jpg b/1.jpg b/3.jpg c/2.jpg c/1.jpg"_s;
    QTest::newRow("newest") << dateNewest << u"b/3.jpg b/1.jpg b/2.jpg c/1.jpg c/2.jpg"_s;
}

void tst_AppModelSubfolders::orderWithin()
{
    QFETCH(RecordSortOrder, order);
    Tree f(QStringList{});
    // Created in this order.
    for (const QString& name : { u"b/2.jpg"_s, u"c/2.jpg"_s, u"b/1.jpg"_s, u"c/1.jpg"_s, u"b/3.jpg"_s }) {
        f.addTo(name);
        QTest::qWait(10);
    }
    QVERIFY(f.openAll());
    f->setSortOrder(order);
    QTEST(f.shown(), "shown");
    QCOMPARE(f.groups(), u"b 3@0, c 2@3"_s);
}

void tst_AppModelSubfolders::search()
{
    Tree f;
    QVERIFY(f.openAll());
    const Announcements announced(*f.model);
    f->setSearch(u"a."_s);
    QCOMPARE(f.shown(), u"Alps/a.jpg Alps/Lake/a.jpg"_s);
    QCOMPARE(f.groups(), u"Alps 1@0, Alps / Lake 1@1"_s);
    QCOMPARE(announced.counts().value(u"folderGroupsChanged"_s), 1);
    f->setSearch(u"nothing"_s);
    QCOMPARE(f.groups(), QString());
    QCOMPARE(f->folderCountText(), u"6 photos in 4 folders"_s);
    f->setSearch({});
    QCOMPARE(f.groups(), u"top 1@0, Alps 2@1, Alps / Lake 2@3, Zoo 1@5"_s);
}

void tst_AppModelSubfolders::folding()
{
    Tree f;
    QVERIFY(f.openAll());
    const QString rows = f.shown();
    const Announcements announced(*f.model);
    f->setFolded(f.url(u"Alps"_s), true);
    // The folders in it are groups of their own.
    QCOMPARE(f.groups(), u"top 1@0, -Alps 2@1, Alps / Lake 2@3, Zoo 1@5"_s);
    QCOMPARE(f.shown(), rows);
    QCOMPARE(announced.counts(), (QMap<QString, int>{ { u"folderGroupsChanged"_s, 1 } }));
    f->setFolded(f.url(u"Alps"_s), true);
    f->setFolded(f.url(u"nowhere"_s), true);
    QCOMPARE(announced.counts().value(u"folderGroupsChanged"_s), 1);
    // Whatever happens to the list meanwhile.
    f->setSearch(u"z"_s);
    f->setSortOrder(RecordSortOrder::nameDesc);
    f->setSearch({});
    QCOMPARE(f.groups(), u"top 1@0, -Alps 2@1, Alps / Lake 2@3, Zoo 1@5"_s);
    f->setSearch(u"z"_s);
    f->setAllFolded(true);
    f->setSearch({});
    QCOMPARE(f.groups(), u"-top 1@0, -Alps 2@1, -Alps / Lake 2@3, -Zoo 1@5"_s);
    f->setAllFolded(false);
    QCOMPARE(f.groups(), u"top 1@0, Alps 2@1, Alps / Lake 2@3, Zoo 1@5"_s);
}

// From photo to photo as the list shows them.
void tst_AppModelSubfolders::stepping()
{
    Tree f;
    QVERIFY(f.openAll());
    const auto walk = [&f](int places) {
        QStringList walked;
        for (; f->canStep(places); walked.append(f.chosen()))
            f->step(places);
        return walked.join(u' ');
    };
    QStringList shown = f.shown().split(u' ');
    QCOMPARE(f.chosen(), shown.constFirst());
    QCOMPARE(walk(1), shown.mid(1).join(u' '));
    // Folded photos are passed over; from one that folded itself away it goes on beside it.
    f->setFolded(f.url(u"Alps"_s), true);
    shown.removeIf([](const QString& path) { return path.startsWith(u"Alps/"_s) && path.count(u'/') == 1; });
    QCOMPARE(walk(-1), QStringList(shown.crbegin() + 1, shown.crend()).join(u' '));
    f->tap(f.url(u"Alps/a.jpg"_s), false, false);
    QVERIFY(f->canStep(1));
    f->step(1);
    QCOMPARE(f.chosen(), u"Alps/Lake/a.jpg"_s);
    // The guard asks as it does for a click, and the step goes on afterwards.
    f->setSingle(u"title"_s, u"X"_s);
    f->step(1);
    QVERIFY(f->saveOpen());
    f->discardSaveDialog();
    QCOMPARE(f.chosen(), u"Alps/Lake/c.jpg"_s);
    // From a photo that the search hides to the first that it shows, or back to the last.
    f->setSearch(u"z"_s);
    QVERIFY(f->canStep(-1));
    f->step(1);
    QCOMPARE(f.chosen(), u"Zoo/z.jpg"_s);
    QVERIFY(!f->canStep(1) && !f->canStep(-1));
}

void tst_AppModelSubfolders::foldsEndWithTheFolder()
{
    Tree f;
    QVERIFY(f.openAll());
    f->setAllFolded(true);
    QVERIFY(f.openAll());
    QCOMPARE(f.groups(), u"-top 1@0, -Alps 2@1, -Alps / Lake 2@3, -Zoo 1@5"_s);
    f->closeFolder();
    QVERIFY(f.openAll());
    QCOMPARE(f.groups(), u"top 1@0, Alps 2@1, Alps / Lake 2@3, Zoo 1@5"_s);
}

void tst_AppModelSubfolders::clicks_data()
{
    // "+" behind a photo: Shift; "-Alps" folds, "+Alps" unfolds.
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("selected");
    QTest::newRow("over headings") << u"Alps/b.jpg Alps/Lake/c.jpg+"_s
                                   << u"Alps/Lake/a.jpg Alps/Lake/c.jpg Alps/b.jpg"_s;
    QTest::newRow("over a folded group") << u"-Alps/Lake Alps/b.jpg Zoo/z.jpg+"_s << u"Alps/b.jpg Zoo/z.jpg"_s;
    QTest::newRow("upwards") << u"-Alps Zoo/z.jpg top.jpg+"_s << u"Alps/Lake/a.jpg Alps/Lake/c.jpg Zoo/z.jpg top.jpg"_s;
    QTest::newRow("from a photo that was folded since: like a plain click")
        << u"Alps/b.jpg -Alps Zoo/z.jpg+"_s << u"Zoo/z.jpg"_s;
    QTest::newRow("unfolded again") << u"Alps/b.jpg -Alps -Alps/Lake +Alps Zoo/z.jpg+"_s << u"Alps/b.jpg Zoo/z.jpg"_s;
}

void tst_AppModelSubfolders::clicks()
{
    QFETCH(QString, steps);
    Tree f;
    QVERIFY(f.openAll());
    for (const QString& step : steps.split(u' ')) {
        if (step.startsWith(u'-') || step.startsWith(u'+'))
            f->setFolded(f.url(step.mid(1)), step.startsWith(u'-'));
        else
            f.click(step.chopped(step.endsWith(u'+') ? 1 : 0), step.endsWith(u'+'));
    }
    QTEST(f.chosen(), "selected");
}

void tst_AppModelSubfolders::foldedSelection()
{
    Tree f;
    QVERIFY(f.openAll());
    f.click(u"Alps/a.jpg"_s);
    f->setAllFolded(true);
    QCOMPARE(f.chosen(), u"Alps/a.jpg"_s);
    f->selectAllPhotos();
    QCOMPARE(f->selection().size(), 6);
    QCOMPARE(f->primary(), f.url(u"Alps/a.jpg"_s));
}

void tst_AppModelSubfolders::broughtBack()
{
    Tree f;
    QVERIFY(f.openAll());
    f.click(u"Alps/Lake/a.jpg"_s);
    f->setSingle(u"title"_s, u"Typed"_s);
    // One click leaves the edits behind.
    f->requestClose();
    f->discardSaveDialog();
    QCOMPARE(f->leftEdits().size(), 1);
    QVERIFY(f.openAll());
    f->setAllFolded(true);
    f->bringBack(0);
    QCOMPARE(f.chosen(), u"Alps/Lake/a.jpg"_s);
    QCOMPARE(f->draftValues().value(u"title"_s), u"Typed"_s);
    // They are to be seen.
    QCOMPARE(f.groups(), u"-top 1@0, -Alps 2@1, Alps / Lake 2@3, -Zoo 1@5"_s);
    QCOMPARE(f->records().size(), 6);
}

void tst_AppModelSubfolders::renaming()
{
    Tree f;
    f->preferences().renamePattern.set(u"%Title%"_s);
    QVERIFY(f.openAll());
    f.click(u"Alps/Lake/c.jpg"_s);
    // "b" is taken in another folder alone.
    f->setSingle(u"title"_s, u"b"_s);
    QCOMPARE(f->renamePreview(), u"b.jpg"_s);
    f->performRename();
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f.shown(), u"top.jpg Alps/a.jpg Alps/b.jpg Alps/Lake/a.jpg Alps/Lake/b.jpg Zoo/z.jpg"_s);
    f->setSingle(u"title"_s, u"a"_s);
    QCOMPARE(f->renamePreview(), u"a-2.jpg"_s);
}

void tst_AppModelSubfolders::othersChangeTheTree()
{
    Tree f;
    QVERIFY(f.openAll());
    QTRY_VERIFY(f->canRefresh());
    f->setFolded(f.url(u"Alps"_s), true);
    f.click(u"Zoo/z.jpg"_s);
    f.addTo(u"Alps/aa.jpg"_s);
    f.addTo(u"Beach/Day 2/x.jpg"_s);
    f.addTo(u".hidden/x.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f.groups(), u"top 1@0, -Alps 3@1, Alps / Lake 2@4, Beach / Day 2 1@6, Zoo 1@7"_s, 20000);
    QCOMPARE(f->folderCountText(), u"8 photos in 5 folders"_s);
    QCOMPARE(f.shown().section(u' ', 1, 3), u"Alps/a.jpg Alps/aa.jpg Alps/b.jpg"_s);
    // A folder that came since is watched too.
    f.addTo(u"Beach/Day 2/y.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 9, 20000);
    QDir(f.folder.path(u"Zoo"_s)).removeRecursively();
    QDir(f.folder.path(u"Alps"_s)).removeRecursively();
    QTRY_COMPARE_WITH_TIMEOUT(f.groups(), u"top 1@0, Beach / Day 2 2@1"_s, 20000);
    QCOMPARE(f->folderCountText(), u"3 photos in 2 folders"_s);
    QCOMPARE(f.chosen(), u"top.jpg"_s);
    // It is still the folder that was folded.
    f.addTo(u"Alps/b.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f.groups(), u"top 1@0, -Alps 1@1, Beach / Day 2 2@2"_s, 20000);
}

void tst_AppModelSubfolders::shownWhileFound()
{
    Forest f;
    QList<qsizetype> sizes;
    QStringList texts;
    connect(f.model.get(), &AppModel::recordsChanged, this, [&] {
        if (sizes.isEmpty() || sizes.constLast() != f->records().size()) {
            sizes.append(f->records().size());
            texts.append(f->folderCountText());
        }
    });
    f.load();
    QTRY_COMPARE(f->records().size(), Forest::count);
    QVERIFY(sizes.constFirst() <= 50);
    for (qsizetype i = 1; i < sizes.size(); ++i)
        QVERIFY2(sizes.at(i) - sizes.at(i - 1) <= 500, qPrintable(QString::number(sizes.at(i))));
    QCOMPARE(
        texts.constFirst(), u"%1 photos in %2 folders"_s.arg(sizes.constFirst()).arg((sizes.constFirst() + 13) / 14));
    QCOMPARE(texts.constLast(), u"700 photos in 50 folders"_s);
    QCOMPARE(f->primary(), f.url(u"forest/0/0.jpg"_s));
    QCOMPARE(f->unreadSelected(), 1);
    for (qsizetype i = 0; i < Forest::count; ++i)
        QCOMPARE(f.below(f->records().at(f->visibleRows().at(i)).url), u"forest/%1/%2.jpg"_s.arg(i / 14).arg(i % 14));
    QVERIFY(f->isWorking());
    // All of it waits to be read.
    QTRY_COMPARE(f->progress().value_or(Progress()).total, Forest::count);
}

void tst_AppModelSubfolders::endedInTheMiddle_data()
{
    QTest::addColumn<QString>("how");
    for (const QString& how : { u"cancel"_s, u"close"_s, u"load"_s, u"destroy"_s })
        QTest::newRow(qPrintable(how)) << how;
}

void tst_AppModelSubfolders::endedInTheMiddle()
{
    QFETCH(QString, how);
    Forest f;
    f.addTo(u"other/1.jpg"_s);
    bool isEnded = false;
    f.atFirst([&] {
        isEnded = true;
        if (how == u"cancel")
            f->cancelRead();
        else if (how == u"close")
            f->closeFolder();
        else if (how == u"load")
            f->load({ f.url(u"other"_s) }, false);
    });
    f.load();
    if (how == u"destroy") {
        QTRY_VERIFY(isEnded);
        f.model.reset();
        return;
    }
    QTRY_VERIFY(isEnded);
    f.gate.release();
    QVERIFY(f.waitUntilIdle());
    QTest::qWait(100);
    if (how == u"cancel") {
        // What was found stays.
        QVERIFY(f->records().size() > 0 && f->records().size() <= 50);
        QCOMPARE(f->folderName(), u"forest"_s);
        // Refresh goes on with it.
        QVERIFY(f->canRefresh());
        f->refresh();
        QTRY_COMPARE(f->records().size(), Forest::count);
        QCOMPARE(f->folderGroups().size(), 50);
        QTRY_VERIFY(std::count_if(f->records().cbegin(), f->records().cend(), isRead) > 1);
        f->cancelRead();
        QVERIFY(f.waitUntilIdle());
    } else {
        QCOMPARE(f.shown(), how == u"load" ? u"other/1.jpg"_s : QString());
        QCOMPARE(f.groups(), QString());
    }
    QCOMPARE(f->errorMessage(), std::nullopt);
}

void tst_AppModelSubfolders::overWhatIsOpen()
{
    Forest f;
    f.addTo(u"other/1.jpg"_s);
    f.gate.release();
    QVERIFY(f.ModelFixture::load({ f.url(u"other"_s) }));
    f->setSingle(u"title"_s, u"Typed"_s);
    f.gate.shut();
    f.load();
    QVERIFY(f.gate.waitForRun());
    QTest::qWait(200);
    QCOMPARE(f.shown(), u"other/1.jpg"_s);
    f.gate.release();
    QTRY_VERIFY(f->saveOpen());
    // Nothing of it is lost while the question is open, and nothing goes on.
    QTRY_VERIFY(!f->isWorking());
    QCOMPARE(f.shown(), u"other/1.jpg"_s);
    f.gate.shut();
    f->discardSaveDialog();
    QTRY_COMPARE(f->records().size(), Forest::count);
    QCOMPARE(f->folderGroups().size(), 50);
}

// The walk goes on until there is something to show.
void tst_AppModelSubfolders::firstPhotosCannotBeRead_data()
{
    QTest::addColumn<bool>("isSomethingOpen");
    QTest::newRow("over what is open") << true;
    QTest::newRow("with nothing open") << false;
}

void tst_AppModelSubfolders::firstPhotosCannotBeRead()
{
    QFETCH(bool, isSomethingOpen);
    Forest f;
    f.addTo(u"other/1.jpg"_s);
    f.addTo(u"forest/49/good.jpg"_s);
    f.gate.release();
    if (isSomethingOpen)
        QVERIFY(f.ModelFixture::load({ f.url(u"other"_s) }));
    f.gate.shut();
    f.load();
    QVERIFY(f.gate.waitForRun());
    for (int i = 0; i < 49; ++i)
        QDir(f.folder.path(u"forest/%1"_s.arg(i))).removeRecursively();
    f.gate.release();
    QTRY_COMPARE(f.shown().split(u' ').constLast(), u"forest/49/good.jpg"_s);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->folderCountText(), u"15 photos in 1 folder"_s);
    QCOMPARE(f.chosen(), u"forest/49/0.jpg"_s);
    QCOMPARE(f->errorMessage(), std::nullopt);
}

void tst_AppModelSubfolders::nothingFound_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("text");
    QTest::newRow("no photo") << u"empty/a/notes.txt"_s << u"No supported images were found."_s;
    QTest::newRow("none that can be read")
        << u"empty/a/1.jpg"_s << u"1 file could not be read and was left out: 1.jpg (empty)"_s;
}

void tst_AppModelSubfolders::nothingFound()
{
    QFETCH(QString, file);
    Tree f;
    QVERIFY(f.open());
    QDir(f.folder.path()).mkpath(QFileInfo(file).path());
    f.folder.add(file, {});
    f->load({ f.url(u"empty"_s) }, true);
    QVERIFY(f.waitUntilIdle());
    QTEST(f->errorMessage().value_or(QString()), "text");
    QCOMPARE(f.shown(), u"top.jpg"_s);
    QCOMPARE(f->recentURLs(), QList<QUrl>{ f.folderURL() });
}

QTEST_GUILESS_MAIN(tst_AppModelSubfolders)
#include "tst_AppModelSubfolders.moc"
