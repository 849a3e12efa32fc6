// Other programs at work in the open folder, and our own doings there, which are no news.
#include "tests/app/model/ModelFixture.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// Photos "a" to "e", each titled with its name, open behind a gated tool; "a" is selected.
struct OpenFolder : GatedTool, ModelFixture {
    OpenFolder()
        : ModelFixture(service())
    {
        for (const QChar letter : u"abcde"_s)
            folder.add(letter + u".jpg"_s, titled());
        isRead = open();
    }
    static const QByteArray& titled()
    {
        static const QByteArray bytes = [] {
            const PhotoFolder folder;
            const QString path = folder.add(u"x.jpg"_s).toLocalFile();
            exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=disk"_s, path });
            return readFile(path);
        }();
        return bytes;
    }
    void remove(const QString& letters) const
    {
        for (const QChar letter : letters)
            QFile::remove(folder.path(letter + u".jpg"_s));
    }
    bool isRead = false;
};

}  // namespace

class tst_AppModelWatching : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void outsideChangeKeepsEdits();
    void batchEditsSurviveChanges();
    void addedPhotosComeAtOnce();
    void unreadableNewcomersAreSilent();
    void removal_data();
    void removal();
    void lastBatchPhotoInheritsTheEdits();
    void leftEditsAreReported();
    void outsideRename();
    void removedFolderKeepsAll();
    void folderThatComesBackIsWatchedAgain();
    void ownRenameIsNoChange();
    void ownSaveIsNoChange();
    void changeDuringReReadIsSeen();
    void staleReadLosesAgainstSave();
    void closedFolderStaysClosed();
    void loadEndsInALook_data();
    void loadEndsInALook();
    void saveDuringALoadIsNotHidden_data();
    void saveDuringALoadIsNotHidden();
};

void tst_AppModelWatching::outsideChangeKeepsEdits()
{
    OpenFolder f;
    QVERIFY(f.isRead);
    QList<QUrl> modified;
    f->onImagesModified = [&modified](const QList<QUrl>& urls) { modified += urls; };
    f->setSingle(u"headline"_s, u"typed"_s);
    f->addCustomField(u"Mood"_s, u"calm"_s);
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=outside"_s, u"-XMP-photoshop:Headline=outside"_s,
        f.folder.path(u"a.jpg"_s), f.folder.path(u"b.jpg"_s) });
    QTRY_COMPARE_WITH_TIMEOUT(f->draftValues().value(u"title"_s), u"outside"_s, 30000);
    QCOMPARE(f->draftValues().value(u"headline"_s), u"typed"_s);
    QCOMPARE(f->draftCustoms(), (QList<CustomValue>{ { u"Mood"_s, u"calm"_s } }));
    QCOMPARE(f->unsavedCount(), 2);
    QCOMPARE(f->record(f.url(u"b.jpg"_s))->values.value(u"headline"_s), u"outside"_s);
    QCOMPARE(modified, (QList<QUrl>{ f.url(u"a.jpg"_s), f.url(u"b.jpg"_s) }));
    QVERIFY(!f->isWorking());
}

void tst_AppModelWatching::batchEditsSurviveChanges()
{
    OpenFolder f;
    f.select(u"abc"_s);
    f->setBatch(u"title"_s, u"typed"_s);
    f->addBatchListItem(u"keywords"_s, u"sky"_s);
    f.remove(u"cd"_s);
    f.folder.add(u"new.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), QStringList({ u"a.jpg"_s, u"b.jpg"_s, u"e.jpg"_s, u"new.jpg"_s }), 30000);
    QCOMPARE(f.selected(), jpgs(u"ab"_s));
    QCOMPARE(f->batchValues().value(u"title"_s), u"typed"_s);
    QCOMPARE(f->unsavedCount(), 2);
}

void tst_AppModelWatching::addedPhotosComeAtOnce()
{
    OpenFolder f;
    const Announcements announced(*f.model);
    for (int i = 0; i < 10; ++i)
        f.folder.add(u"0%1.jpg"_s.arg(i), OpenFolder::titled());
    QVERIFY(QDir(f.folder.path()).mkpath(u"sub"_s));
    f.folder.add(u"sub/deep.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 15, 30000);
    // Together, not one by one; the look that ends the load may have come while they were added.
    QCOMPARE(announced.counts().keys(),
        QStringList({ u"disagreementsChanged"_s, u"recordsChanged"_s, u"visibleRowsChanged"_s }));
    QVERIFY(announced.counts().value(u"recordsChanged"_s) <= 2);
    // At the end of the records, first on screen, and the selection stays.
    QCOMPARE(f->records().at(5).fileName, u"00.jpg"_s);
    QCOMPARE(f.visible().constFirst(), u"00.jpg"_s);
    QCOMPARE(f->records().at(5).values.value(u"title"_s), u"disk"_s);
    QCOMPARE(f.selected(), jpgs(u"a"_s));
}

void tst_AppModelWatching::unreadableNewcomersAreSilent()
{
    OpenFolder f;
    f.folder.add(u"empty.jpg"_s, {});
    QVERIFY(QFile::link(f.folder.path(u"gone"_s), f.folder.path(u"link.jpg"_s)));
    f.folder.add(u"good.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 6, 30000);
    QCOMPARE(f->errorMessage(), std::nullopt);
    // What was empty is taken in when it is filled.
    f.folder.add(u"empty.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 7, 30000);
}

void tst_AppModelWatching::removal_data()
{
    QTest::addColumn<QString>("select");
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("remove");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("primary");
    QTest::addRow("others") << u"b"_s << QString() << u"ad"_s << u"b"_s << u"b"_s;
    QTest::addRow("the only selected one") << u"c"_s << QString() << u"c"_s << u"a"_s << u"a"_s;
    QTest::addRow("the primary: nearest stays") << u"abe"_s << QString() << u"e"_s << u"ab"_s << u"b"_s;
    QTest::addRow("of two as near, the later") << u"bdc"_s << QString() << u"c"_s << u"bd"_s << u"d"_s;
    QTest::addRow("the nearest goes too") << u"adc"_s << QString() << u"cd"_s << u"a"_s << u"a"_s;
    QTest::addRow("only hidden ones stay selected") << u"ab"_s << u"b"_s << u"b"_s << u"a"_s << u"a"_s;
    QTest::addRow("all") << u"b"_s << QString() << u"abcde"_s << QString() << QString();
}

void tst_AppModelWatching::removal()
{
    QFETCH(QString, select);
    QFETCH(QString, search);
    QFETCH(QString, remove);
    QFETCH(QString, selected);
    QFETCH(QString, primary);
    OpenFolder f;
    f.select(select);
    f->setSearch(search);
    f.remove(remove);
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 5 - remove.size(), 30000);
    QCOMPARE(f.selected(), jpgs(selected));
    QCOMPARE(f.primary(), primary.isEmpty() ? QString() : primary + u".jpg"_s);
    QCOMPARE(f->draftValues().value(u"title"_s), primary.isEmpty() ? QString() : u"disk"_s);
}

void tst_AppModelWatching::lastBatchPhotoInheritsTheEdits()
{
    OpenFolder f;
    f.select(u"ab"_s);
    f->setBatch(u"title"_s, u"typed"_s);
    f->addBatchListItem(u"keywords"_s, u"sky"_s);
    f->addCustomField(u"Mood"_s, u"calm"_s);
    f.remove(u"b"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f.selected(), jpgs(u"a"_s), 30000);
    QCOMPARE(f->draftValues().value(u"title"_s), u"typed"_s);
    QCOMPARE(f->editedSingle(), (QSet<QString>{ u"title"_s, u"keywords"_s, u"custom:Mood"_s }));
    QVERIFY(f->batchInclude().isEmpty());
}

void tst_AppModelWatching::leftEditsAreReported()
{
    OpenFolder f;
    f->setSingle(u"title"_s, u"typed"_s);
    f.remove(u"a"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f.primary(), u"b.jpg"_s, 30000);
    QCOMPARE(f->errorMessage(),
        u"“a.jpg” was removed by another program. Its unsaved changes are kept: Edit ▸ Bring Back Edits."_s);
    QCOMPARE(f->unsavedCount(), 0);
}

void tst_AppModelWatching::outsideRename()
{
    OpenFolder f;
    f.select(u"c"_s);
    f->setSingle(u"title"_s, u"typed"_s);
    QVERIFY(QFile::rename(f.folder.path(u"b.jpg"_s), f.folder.path(u"z.jpg"_s)));
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), jpgs(u"acdez"_s), 30000);
    QCOMPARE(f->records().constLast().fileName, u"z.jpg"_s);
    QCOMPARE(f.primary(), u"c.jpg"_s);
    QCOMPARE(f->draftValues().value(u"title"_s), u"typed"_s);
}

void tst_AppModelWatching::removedFolderKeepsAll()
{
    OpenFolder f;
    QVERIFY(QDir(f.folder.path()).mkpath(u"sub"_s));
    f.folder.add(u"sub/x.jpg"_s);
    QVERIFY(f.load({ f.url(u"sub"_s) }));
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"title"_s, u"typed"_s);
    QVERIFY(QDir(f.folder.path(u"sub"_s)).removeRecursively());
    QTest::qWait(1000);
    f->refresh();
    QVERIFY(!QTest::qWaitFor([&f] { return f->records().isEmpty(); }, 500));
    QCOMPARE(f->unsavedCount(), 1);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QVERIFY(f->errorMessage().value_or(QString()).startsWith(u"Could not save: "_s));
    QCOMPARE(f->draftValues().value(u"title"_s), u"typed"_s);
}

void tst_AppModelWatching::folderThatComesBackIsWatchedAgain()
{
    OpenFolder f;
    const QString path = f.folder.path(u"sub"_s);
    QVERIFY(QDir().mkpath(path));
    writeFile(path + u"/x.jpg"_s, OpenFolder::titled());
    QVERIFY(f.load({ QUrl::fromLocalFile(path) }));
    QVERIFY(QDir(path).removeRecursively());
    QTest::qWait(700);
    QVERIFY(QDir().mkpath(path));
    writeFile(path + u"/y.jpg"_s, OpenFolder::titled());
    f->refresh();
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), QStringList{ u"y.jpg"_s }, 30000);
    writeFile(path + u"/z.jpg"_s, OpenFolder::titled());
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), QStringList({ u"y.jpg"_s, u"z.jpg"_s }), 30000);
}

void tst_AppModelWatching::ownRenameIsNoChange()
{
    OpenFolder f;
    f.select(u"b"_s);
    f->setSingle(u"title"_s, u"Sunset"_s);
    f->preferences().renamePattern.set(u"%Title%"_s);
    const auto* before = f->records().constData();
    {
        const Announcements announced(*f.model);
        f->performRename();
        QCOMPARE(announced.counts(),
            (QMap<QString, int>{ { u"recordsChanged"_s, 1 }, { u"visibleRowsChanged"_s, 1 },
                { u"selectionChanged"_s, 1 }, { u"primaryChanged"_s, 1 } }));
    }
    QCOMPARE(before, f->records().constData());
    QCOMPARE(f.primary(), u"Sunset.jpg"_s);
    QCOMPARE(f.selected(), QStringList{ u"Sunset.jpg"_s });
    QCOMPARE(f->draftValues().value(u"title"_s), u"Sunset"_s);
    QCOMPARE(f->unsavedCount(), 1);
    // The watcher sees one removal and one addition; neither is news.
    const Announcements announced(*f.model);
    QTest::qWait(1500);
    QCOMPARE(announced.counts(), (QMap<QString, int>()));
}

void tst_AppModelWatching::ownSaveIsNoChange()
{
    OpenFolder f;
    bool isTold = false;
    f->onImagesModified = [&isTold](const QList<QUrl>&) { isTold = true; };
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"title"_s, u"typed"_s);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    const Announcements announced(*f.model);
    QTest::qWait(1500);
    QCOMPARE(announced.counts(), (QMap<QString, int>()));
    QVERIFY(!isTold);
}

void tst_AppModelWatching::changeDuringReReadIsSeen()
{
    OpenFolder f;
    f.shut("a.jpg");
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=first"_s, f.folder.path(u"a.jpg"_s) });
    QVERIFY(f.waitForRun());
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=second"_s, f.folder.path(u"a.jpg"_s) });
    QTest::qWait(700);
    f.release();
    QTRY_COMPARE_WITH_TIMEOUT(f->draftValues().value(u"title"_s), u"second"_s, 30000);
}

void tst_AppModelWatching::staleReadLosesAgainstSave()
{
    OpenFolder f;
    f->preferences().saveDontAsk.set(true);
    f.shut("-struct");  // the second of a read's two runs: the first one has seen the old title
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=outside"_s, f.folder.path(u"a.jpg"_s) });
    QVERIFY(f.waitForRun());
    f->setSingle(u"title"_s, u"typed"_s);
    f->requestSave();
    QTRY_COMPARE_WITH_TIMEOUT(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s), QJsonValue(u"typed"_s), 30000);
    f.release();
    QVERIFY(f.waitUntilIdle());
    QTest::qWait(1000);
    QCOMPARE(f->record(f.url(u"a.jpg"_s))->values.value(u"title"_s), u"typed"_s);
    QCOMPARE(f->draftValues().value(u"title"_s), u"typed"_s);
    QCOMPARE(f->unsavedCount(), 0);
}

void tst_AppModelWatching::closedFolderStaysClosed()
{
    OpenFolder f;
    f.shut();
    f.folder.add(u"new.jpg"_s);
    QVERIFY(f.waitForRun());
    f->closeFolder();
    QVERIFY(!f->canRefresh());
    f.release();
    f.folder.add(u"newer.jpg"_s);
    QTest::qWait(1000);
    QVERIFY(f->records().isEmpty());
}

void tst_AppModelWatching::loadEndsInALook_data()
{
    QTest::addColumn<QString>("change");
    QTest::addRow("changed") << u"changed"_s;
    QTest::addRow("added") << u"added"_s;
}

// What happens behind the back of a load, before anything is watched.
void tst_AppModelWatching::loadEndsInALook()
{
    QFETCH(QString, change);
    OpenFolder f;
    f->closeFolder();
    f.shut("-XMP-Quorbel:all");  // the second of the two runs: the first has seen the old state
    f->load({ f.folderURL() });
    QVERIFY(f.waitForRun());
    if (change == u"changed")
        exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=outside"_s, f.folder.path(u"c.jpg"_s) });
    else
        f.folder.add(u"new.jpg"_s);
    f.release();
    QVERIFY(f.waitUntilIdle());
    if (change == u"changed")
        QTRY_COMPARE_WITH_TIMEOUT(f->record(f.url(u"c.jpg"_s))->values.value(u"title"_s), u"outside"_s, 10000);
    else
        QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 6, 10000);
    QCOMPARE(f->errorMessage(), std::nullopt);
}

void tst_AppModelWatching::saveDuringALoadIsNotHidden_data()
{
    QTest::addColumn<bool>("opensFiles");
    QTest::addRow("a folder") << false;
    QTest::addRow("files, which nothing watches") << true;
}

// The load has read the photo before the save wrote it, and ends after the save.
void tst_AppModelWatching::saveDuringALoadIsNotHidden()
{
    QFETCH(bool, opensFiles);
    OpenFolder f;
    f->preferences().saveDontAsk.set(true);
    f->addSingleListItem(u"keywords"_s, u"saved"_s);
    f.shut("-XMP-Quorbel:all\nc.jpg");  // the load's second run, and none of the save's
    f->load(opensFiles ? QList<QUrl>{ f.url(u"a.jpg"_s), f.url(u"c.jpg"_s) } : QList<QUrl>{ f.folderURL() });
    QVERIFY(f.waitForRun());
    f->requestSave();
    QTRY_COMPARE_WITH_TIMEOUT(f->isSaving(), false, 30000);
    QCOMPARE(f->unsavedCount(), 0);
    f.release();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->draftLists().value(u"keywords"_s), QStringList{ u"saved"_s });
    f->addSingleListItem(u"keywords"_s, u"added"_s);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"IPTC:Keywords"_s), (QJsonArray{ u"saved"_s, u"added"_s }));
}

QTEST_GUILESS_MAIN(tst_AppModelWatching)
#include "tst_AppModelWatching.moc"
