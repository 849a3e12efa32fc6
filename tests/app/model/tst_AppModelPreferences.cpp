// Settings and recently opened items across launches, and stores that hold nonsense.
#include "tests/app/model/ModelFixture.h"

#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

using namespace Quorbel::Test;
class TestAppModelPreferences : public QObject {
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
};

void TestAppModelPreferences::firstLaunch()
{
    ModelFixture f;
    QCOMPARE(QStringList({ f->showNamespace() ? u"on"_s : u"off"_s, f->backupOriginals() ? u"on"_s : u"off"_s,
                 f->writeSidecar() ? u"on"_s : u"off"_s, f->confirmMassEdit() ? u"on"_s : u"off"_s,
                 f->saveDontAsk() ? u"on"_s : u"off"_s, f->stripSpecialChars() ? u"on"_s : u"off"_s }),
        QStringList({ u"off"_s, u"on"_s, u"off"_s, u"on"_s, u"off"_s, u"on"_s }));
    QCOMPARE(f->sortOrder(), RecordSortOrder::nameAsc);
    QCOMPARE(f->colorOverride(), std::nullopt);
    QVERIFY(f->recentPaths().isEmpty());
    QStringList keys = f->preferences().allKeys();
    keys.sort();
    QCOMPARE(keys, QStringList({ u"renamePattern"_s, u"sortOrder"_s }));
    QCOMPARE(f->preferences().value(u"renamePattern"_s), QVariant(u"%Date%_%Title%"_s));
    QCOMPARE(f->preferences().value(u"sortOrder"_s), QVariant(u"nameAsc"_s));
}

void TestAppModelPreferences::roundTrip()
{
    ModelFixture f;
    f->setShowNamespace(true);
    f->setBackupOriginals(false);
    f->setWriteSidecar(true);
    f->setConfirmMassEdit(false);
    f->setSaveDontAsk(true);
    f->setBatchDontAskSession(true);
    f->setStripSpecialChars(false);
    f->setRenamePattern(u"a, b; %Title% = \"ü\""_s);
    f->setSortOrder(RecordSortOrder::dateOldest);
    f->setColorOverride(ColorScheme::dark);
    f.relaunch();
    QVERIFY(f->showNamespace() && !f->backupOriginals() && f->writeSidecar());
    QVERIFY(!f->confirmMassEdit() && f->saveDontAsk() && !f->stripSpecialChars());
    QVERIFY(!f->batchDontAskSession());
    QCOMPARE(f->renamePattern(), u"a, b; %Title% = \"ü\""_s);
    QCOMPARE(f->sortOrder(), RecordSortOrder::dateOldest);
    QCOMPARE(f->colorOverride(), ColorScheme::dark);
    f->setColorOverride(std::nullopt);
    QVERIFY(!f->preferences().contains(u"appearance"_s));
    f.relaunch();
    QCOMPARE(f->colorOverride(), std::nullopt);
}

void TestAppModelPreferences::wrongTypes_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addRow("number") << QVariant(1);
    QTest::addRow("other text") << QVariant(u"yes"_s);
    QTest::addRow("list") << QVariant(QVariantList{ 1, 2 });
    QTest::addRow("bytes") << QVariant(QByteArray("\x01"));
    QTest::addRow("null") << QVariant();
}

void TestAppModelPreferences::wrongTypes()
{
    QFETCH(QVariant, value);
    ModelFixture f;
    for (const QString& key : { u"showNamespace"_s, u"backupOriginals"_s, u"writeSidecar"_s, u"confirmMassEdit"_s,
             u"saveDontAsk"_s, u"stripSpecialChars"_s, u"sortOrder"_s, u"appearance"_s, u"recentItems"_s })
        f.services.preferences->setValue(key, value);
    if (value.typeId() != QMetaType::QString)
        f.services.preferences->setValue(u"renamePattern"_s, value);
    for (int launch = 0; launch < 2; ++launch) {
        // Once from the store as it stands in memory, once from its file.
        if (launch == 0)
            f.model = std::make_unique<AppModel>(f.services);
        else
            f.relaunch();
        QVERIFY(!f->showNamespace() && f->backupOriginals() && !f->writeSidecar());
        QVERIFY(f->confirmMassEdit() && !f->saveDontAsk() && f->stripSpecialChars());
        QCOMPARE(f->renamePattern(), u"%Date%_%Title%"_s);
        QCOMPARE(f->sortOrder(), RecordSortOrder::nameAsc);
        QCOMPARE(f->colorOverride(), std::nullopt);
        QVERIFY(f->recentPaths().isEmpty());
    }
}

void TestAppModelPreferences::recentsKeepTen()
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
    QCOMPARE(f->recentPaths(), expected);
    f.relaunch();
    QCOMPARE(f->recentPaths(), expected);
    f->openRecent(f->recentURLs().at(4));
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->folderName(), u"folder, 7"_s);
    expected.move(4, 0);
    QCOMPARE(f->recentPaths(), expected);
    f->clearRecents();
    f.relaunch();
    QVERIFY(f->recentPaths().isEmpty());
}

void TestAppModelPreferences::recentThatIsGone()
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
        QCOMPARE(f->recentPaths(), QStringList{ f.folder.path() });
        QCOMPARE(f->folderURL(), f.folderURL());
    }
}

void TestAppModelPreferences::singleRecentSurvivesTheFile()
{
    FakeTool tool;
    ModelFixture f(MetadataService{ tool.runner() });
    f.folder.add(u"y.jpg"_s);
    QVERIFY(f.open());
    f.relaunch();
    QCOMPARE(f->recentPaths(), QStringList{ f.folder.path() });
}

QTEST_GUILESS_MAIN(TestAppModelPreferences)
#include "tst_AppModelPreferences.moc"
