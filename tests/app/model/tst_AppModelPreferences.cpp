// Settings and recently opened items across launches, stores that hold nonsense, and what stays as it was while nobody
// asks for more.
#include "tests/app/model/ModelFixture.h"
#include "tests/support/RecordedTool.h"

#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

class tst_AppModelPreferences : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void firstLaunch();
    void roundTrip();
    void wrongTypes_data();
    void wrongTypes();
    void recentsKeepTen();
    void recentThatIsGone();
    void singleRecentSurvivesTheFile();
    void withoutEditsBesideRawFiles();
};

void tst_AppModelPreferences::firstLaunch()
{
    ModelFixture f;
    QCOMPARE(QStringList({ f->preferences().showNamespace() ? u"on"_s : u"off"_s,
                 f->preferences().backupOriginals() ? u"on"_s : u"off"_s,
                 f->preferences().writeSidecar() ? u"on"_s : u"off"_s,
                 f->preferences().confirmMassEdit() ? u"on"_s : u"off"_s,
                 f->preferences().saveDontAsk() ? u"on"_s : u"off"_s,
                 f->preferences().stripSpecialChars() ? u"on"_s : u"off"_s }),
        QStringList({ u"off"_s, u"on"_s, u"off"_s, u"on"_s, u"off"_s, u"on"_s }));
    QCOMPARE(f->sortOrder(), RecordSortOrder::nameAsc);
    QCOMPARE(f->preferences().colorOverride(), std::nullopt);
    QVERIFY(f->preferences().recentPaths().isEmpty());
    QStringList keys = f->preferences().store().allKeys();
    keys.sort();
    QCOMPARE(keys, QStringList({ u"renamePattern"_s, u"sortOrder"_s }));
    QCOMPARE(f->preferences().store().value(u"renamePattern"_s), QVariant(u"%Date%_%Title%"_s));
    QCOMPARE(f->preferences().store().value(u"sortOrder"_s), QVariant(u"nameAsc"_s));
}

void tst_AppModelPreferences::roundTrip()
{
    ModelFixture f;
    f->preferences().showNamespace.set(true);
    f->preferences().backupOriginals.set(false);
    f->preferences().writeSidecar.set(true);
    f->preferences().confirmMassEdit.set(false);
    f->preferences().saveDontAsk.set(true);
    f->setBatchDontAskSession(true);
    f->preferences().stripSpecialChars.set(false);
    f->preferences().renamePattern.set(u"a, b; %Title% = \"ü\""_s);
    f->setSortOrder(RecordSortOrder::dateOldest);
    f->preferences().colorOverride.set(ColorScheme::dark);
    f->preferences().rawBeside.set(true);
    f->preferences().dngBeside.set(true);
    f->preferences().sidecarNaming.set(SidecarNaming::full);
    f.relaunch();
    QCOMPARE(f->sidecarPolicy(), (SidecarPolicy{ true, true, SidecarNaming::full }));
    QVERIFY(f->preferences().showNamespace() && !f->preferences().backupOriginals() && f->preferences().writeSidecar());
    QVERIFY(
        !f->preferences().confirmMassEdit() && f->preferences().saveDontAsk() && !f->preferences().stripSpecialChars());
    QVERIFY(!f->batchDontAskSession());
    QCOMPARE(f->preferences().renamePattern(), u"a, b; %Title% = \"ü\""_s);
    QCOMPARE(f->sortOrder(), RecordSortOrder::dateOldest);
    QCOMPARE(f->preferences().colorOverride(), ColorScheme::dark);
    f->preferences().colorOverride.set(ColorScheme::highContrast);
    f.relaunch();
    QCOMPARE(f->preferences().colorOverride(), ColorScheme::highContrast);
    f->preferences().colorOverride.set(std::nullopt);
    QVERIFY(!f->preferences().store().contains(u"appearance"_s));
    f.relaunch();
    QCOMPARE(f->preferences().colorOverride(), std::nullopt);
}

void tst_AppModelPreferences::wrongTypes_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addRow("number") << QVariant(1);
    QTest::addRow("other text") << QVariant(u"yes"_s);
    QTest::addRow("list") << QVariant(QVariantList{ 1, 2 });
    QTest::addRow("bytes") << QVariant(QByteArray("\x01"));
    QTest::addRow("null") << QVariant();
}

void tst_AppModelPreferences::wrongTypes()
{
    QFETCH(QVariant, value);
    ModelFixture f;
    for (const QString& key : { u"showNamespace"_s, u"backupOriginals"_s, u"writeSidecar"_s, u"confirmMassEdit"_s,
             u"saveDontAsk"_s, u"stripSpecialChars"_s, u"sortOrder"_s, u"appearance"_s, u"rawBeside"_s, u"dngBeside"_s,
             u"sidecarNaming"_s, u"recentItems"_s })
        f.services.preferences->setValue(key, value);
    if (value.typeId() != QMetaType::QString)
        f.services.preferences->setValue(u"renamePattern"_s, value);
    for (int launch = 0; launch < 2; ++launch) {
        // Once from the store as it stands in memory, once from its file.
        if (launch == 0)
            f.model = std::make_unique<AppModel>(f.services);
        else
            f.relaunch();
        QVERIFY(!f->preferences().showNamespace() && f->preferences().backupOriginals()
            && !f->preferences().writeSidecar());
        QVERIFY(f->preferences().confirmMassEdit() && !f->preferences().saveDontAsk()
            && f->preferences().stripSpecialChars());
        QCOMPARE(f->preferences().renamePattern(), u"%Date%_%Title%"_s);
        QCOMPARE(f->sortOrder(), RecordSortOrder::nameAsc);
        QCOMPARE(f->sidecarPolicy(), SidecarPolicy());
        QCOMPARE(f->preferences().colorOverride(), std::nullopt);
        QVERIFY(f->preferences().recentPaths().isEmpty());
    }
}

void tst_AppModelPreferences::recentsKeepTen()
{
    FakeTool tool;
    ModelFixture f(MetadataService{ tool.runner() });
    QStringList expected;
    for (int i = 1; i <= 11; ++i) {
        const QString name = u"folder, %1"_s.arg(i);
        QVERIFY(QDir(f.folder.path()).mkpath(name));
        f.folder.add(name + u"/x.jpg"_s);
        QVERIFY(f.load({ f.url(name), f.url(u"nowhere"_s) }));
        expected.prepend(f.folder.path(name));
    }
    expected.removeLast();
    QCOMPARE(f->preferences().recentPaths(), expected);
    f.relaunch();
    QCOMPARE(f->preferences().recentPaths(), expected);
    f->openRecent(f->recentURLs().at(4));
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->folderName(), u"folder, 7"_s);
    expected.move(4, 0);
    QCOMPARE(f->preferences().recentPaths(), expected);
    f->clearRecents();
    f.relaunch();
    QVERIFY(f->preferences().recentPaths().isEmpty());
}

void tst_AppModelPreferences::recentThatIsGone()
{
    FakeTool tool;
    ModelFixture f(MetadataService{ tool.runner() });
    QVERIFY(QDir(f.folder.path()).mkpath(u"gone"_s));
    f.folder.add(u"gone/x.jpg"_s);
    f.folder.add(u"y.jpg"_s);
    QVERIFY(f.load({ f.url(u"gone"_s) }));
    QVERIFY(f.open());
    QVERIFY(QDir(f.folder.path(u"gone"_s)).removeRecursively());
    for (int time = 0; time < 2; ++time) {
        f->setErrorMessage(std::nullopt);
        f->openRecent(f.url(u"gone"_s));
        QCOMPARE(f->errorMessage(), u"“gone” could no longer be found."_s);
        QCOMPARE(f->preferences().recentPaths(), QStringList{ f.folder.path() });
        QCOMPARE(f->folderURL(), f.folderURL());
    }
}

void tst_AppModelPreferences::singleRecentSurvivesTheFile()
{
    FakeTool tool;
    ModelFixture f(MetadataService{ tool.runner() });
    f.folder.add(u"y.jpg"_s);
    QVERIFY(f.open());
    f.relaunch();
    QCOMPARE(f->preferences().recentPaths(), QStringList{ f.folder.path() });
}

// As long as nobody asked for it, sidecars beside raw photos lead to no run, and to no argument of one.
void tst_AppModelPreferences::withoutEditsBesideRawFiles()
{
    QList<QStringList> runs[2];
    for (const bool hasSidecars : { false, true }) {
        const RecordedTool tool;
        ModelFixture photos(tool.service());
        const QTemporaryDir journal;
        photos.services.journalPath = journal.filePath(u"undo"_s);
        photos.relaunch();
        photos->preferences().saveDontAsk.set(true);
        photos->preferences().backupOriginals.set(false);
        writeFile(photos.folder.path(u"a.NEF"_s), tiffBytes());
        for (const QString& name : { u"a.xmp"_s, u"a.NEF.xmp"_s })
            if (hasSidecars)
                exiftool({ u"-q"_s, u"-XMP-dc:Title=Theirs"_s, photos.folder.path(name) });
        QVERIFY(photos.open());
        photos.click(u"a.NEF"_s);
        QCOMPARE(photos->draftValues().value(u"title"_s), QString());
        photos->setSingle(u"title"_s, u"Ours"_s);
        photos->requestSave();
        QVERIFY(photos.waitUntilIdle());
        QCOMPARE(photos.onDisk(u"a.NEF"_s, u"XMP:Title"_s).toString(), u"Ours"_s);
        photos->undoSave();
        QVERIFY(photos.waitUntilIdle());
        QCOMPARE(photos->errorMessage(), std::nullopt);
        for (QStringList run : tool.runs()) {
            QVERIFY2(!run.join(u' ').contains(u".xmp"_s), qPrintable(run.join(u' ')));
            runs[hasSidecars].append(run.replaceInStrings(photos.folder.path(), u"folder"_s));
        }
    }
    QVERIFY(runs[0].size() > 5);
    // Some run at the same time.
    for (QList<QStringList>& some : runs)
        std::sort(some.begin(), some.end());
    QCOMPARE(runs[1], runs[0]);
}

QTEST_GUILESS_MAIN(tst_AppModelPreferences)
#include "tst_AppModelPreferences.moc"
