// Renaming the one selected photo from a pattern and its draft.
#include "tests/app/model/ModelFixture.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

#include <sys/mount.h>
#include <unistd.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

class tst_AppModelRenaming : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void preview_data();
    void preview();
    void token_data();
    void token();
    void companionsComeAlong();
    void failure();
    void namesThatArePaths_data();
    void namesThatArePaths();
    void goneNameIsTakenOver_data();
    void goneNameIsTakenOver();
    void sheetFollowsNoOtherPhoto();
    void onlyTheCaseChanges_data();
    void onlyTheCaseChanges();
};

void tst_AppModelRenaming::preview_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("strict");
    QTest::addColumn<QString>("name");
    const QString date = u"2026-07-14 14:30"_s;
    QTest::addRow("date and time") << u"%Date%_%Time%"_s << date << QString() << true << u"2026-07-14_1430.JPG"_s;
    QTest::addRow("no time") << u"%Date%_%Time%"_s << u"2026-07-14"_s << QString() << true << u"2026-07-14.JPG"_s;
    QTest::addRow("strict") << u"%Title%"_s << QString() << u"Zürich: sea"_s << true << u"Zurich-sea.JPG"_s;
    QTest::addRow("not strict") << u"%Title%"_s << QString() << u"Zürich: sea"_s << false << u"Zürich-sea.JPG"_s;
    QTest::addRow("taken but for case") << u"%Title%"_s << QString() << u"Taken"_s << true << u"Taken-2.JPG"_s;
    QTest::addRow("its own name") << u"%Original%"_s << QString() << QString() << true << u"My.Photo.JPG"_s;
    QTest::addRow("nothing left") << u"%Title%"_s << QString() << u"!"_s << true << u"untitled.JPG"_s;
}

void tst_AppModelRenaming::preview()
{
    QFETCH(QString, pattern);
    QFETCH(QString, date);
    QFETCH(QString, title);
    QFETCH(bool, strict);
    QFETCH(QString, name);
    ModelFixture f;
    f.folder.add(u"My.Photo.JPG"_s);
    f.folder.add(u"taken.jpg"_s);
    QVERIFY(f.open());
    QVERIFY(!f->canRename());
    f->setSingle(u"title"_s, u"  "_s);
    QVERIFY(!f->canRename());
    f->setSingle(u"creator"_s, u"Ana"_s);
    QVERIFY(f->canRename());
    f->setSingle(u"date"_s, date);
    f->setSingle(u"title"_s, title);
    f->preferences().stripSpecialChars.set(strict);
    f->preferences().renamePattern.set(pattern);
    // Without strictness dots survive, with it they do not: only the original's own name shows the difference.
    if (pattern == u"%Original%")
        f->preferences().stripSpecialChars.set(false);
    QCOMPARE(f->renamePreview(), name);
    f->performRename();
    QCOMPARE(f.primary(), name);
    QVERIFY(QFile::exists(f.folder.path(name)));
    QCOMPARE(f->errorMessage(), std::nullopt);
    f->selectAllPhotos();
    QVERIFY(!f->canRename());
}

void tst_AppModelRenaming::token_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("result");
    QTest::addRow("empty") << QString() << u"%Title%"_s;
    QTest::addRow("behind a token") << u"%Date%"_s << u"%Date%%Title%"_s;
    QTest::addRow("behind a separator") << u"%Date%_"_s << u"%Date%_%Title%"_s;
    QTest::addRow("behind text") << u"trip"_s << u"trip_%Title%"_s;
}

void tst_AppModelRenaming::token()
{
    QFETCH(QString, pattern);
    QFETCH(QString, result);
    ModelFixture f;
    f->preferences().renamePattern.set(pattern);
    f->insertRenameToken(u"%Title%"_s);
    QCOMPARE(f->preferences().renamePattern(), result);
}

void tst_AppModelRenaming::companionsComeAlong()
{
    GatedTool tool;
    ModelFixture f(tool.service());
    f.folder.add(u"a.jpg"_s);
    QVERIFY(f.open());
    f->preferences().writeSidecar.set(true);
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"title"_s, u"New"_s);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    f->preferences().renamePattern.set(u"%Title%"_s);
    f->performRename();
    QCOMPARE(f.folder.names(), QStringList({ u"New.jpg"_s, u"New.jpg_original"_s, u"New.xmp"_s }));
    f->setSingle(u"headline"_s, u"after"_s);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.onDisk(u"New.jpg"_s, u"XMP:Headline"_s), QJsonValue(u"after"_s));
}

void tst_AppModelRenaming::failure()
{
    GatedTool tool;
    ModelFixture f(tool.service());
    f.folder.add(u"a.jpg"_s);
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"x"_s);
    f->preferences().renamePattern.set(u"x"_s.repeated(300));
    f->performRename();
    QVERIFY(f->errorMessage().value_or(QString()).startsWith(u"Could not rename: "_s));
    QCOMPARE(f.primary(), u"a.jpg"_s);
    QVERIFY(f->record(f.url(u"a.jpg"_s)));
    f->setErrorMessage({});
    f->preferences().saveDontAsk.set(true);
    tool.shut();
    f->requestSave();
    QVERIFY(tool.waitForRun());
    f->preferences().renamePattern.set(u"%Title%"_s);
    f->performRename();
    QCOMPARE(f->errorMessage(), u"Could not rename: “a.jpg” is being saved."_s);
    tool.release();
    QVERIFY(f.waitUntilIdle());
}

void tst_AppModelRenaming::namesThatArePaths_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addRow("into a folder") << u"sub/%Title%"_s;
    QTest::addRow("out of it") << u"../%Title%"_s;
    QTest::addRow("from the root") << u"/%Title%"_s;
}

void tst_AppModelRenaming::namesThatArePaths()
{
    QFETCH(QString, pattern);
    ModelFixture f;
    f.folder.add(u"a.jpg"_s);
    QVERIFY(QDir(f.folder.path()).mkpath(u"sub"_s));
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"x/y"_s);
    f->preferences().renamePattern.set(u"%Title%"_s);
    QCOMPARE(f->renameProblem(), std::nullopt);
    f->preferences().renamePattern.set(pattern);
    QCOMPARE(f->renameProblem(), u"A file name cannot hold “/”."_s);
    f->performRename();
    QCOMPARE(f->errorMessage(), u"Could not rename: A file name cannot hold “/”."_s);
    QVERIFY(QFile::exists(f.folder.path(u"a.jpg"_s)));
    QCOMPARE(f.primary(), u"a.jpg"_s);
}

void tst_AppModelRenaming::goneNameIsTakenOver_data()
{
    QTest::addColumn<bool>("opensFiles");
    QTest::addRow("a folder") << false;
    QTest::addRow("single files, which nobody watches") << true;
}

// Another program deletes a photo, and ours takes its name before anybody has noticed.
void tst_AppModelRenaming::goneNameIsTakenOver()
{
    QFETCH(bool, opensFiles);
    ModelFixture f;
    f.addTitled({ u"a.jpg"_s, u"b.jpg"_s });
    QVERIFY(opensFiles ? f.load({ f.url(u"a.jpg"_s), f.url(u"b.jpg"_s) }) : f.open());
    f.click(u"b.jpg"_s);
    QVERIFY(QFile::remove(f.folder.path(u"a.jpg"_s)));
    f->preferences().renamePattern.set(u"a"_s);
    f->performRename();
    QCOMPARE(f.visible(), QStringList{ u"a.jpg"_s });
    QCOMPARE(f.primary(), u"a.jpg"_s);
    QCOMPARE(f->primaryRecord()->values.value(u"title"_s), u"b.jpg"_s);
    QCOMPARE(f->draftValues().value(u"title"_s), u"b.jpg"_s);
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->records().size(), 1);
}

void tst_AppModelRenaming::sheetFollowsNoOtherPhoto()
{
    ModelFixture f;
    f.addTitled({ u"a.jpg"_s, u"b.jpg"_s });
    QVERIFY(f.open());
    f->preferences().renamePattern.set(u"new"_s);
    f->setRenameOpen(true);
    QVERIFY(QFile::remove(f.folder.path(u"a.jpg"_s)));
    QTRY_COMPARE_WITH_TIMEOUT(f.primary(), u"b.jpg"_s, 30000);
    QVERIFY(!f->renameOpen());
    QCOMPARE(f->errorMessage(), u"“a.jpg” was removed by another program."_s);
    f->setRenameOpen(true);
    f->performRename();
    QVERIFY(f->renameOpen());
    QCOMPARE(f.primary(), u"new.jpg"_s);
}

void tst_AppModelRenaming::onlyTheCaseChanges_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QStringList>("mounting");
    QTest::addRow("FAT") << u"mkfs.vfat"_s << QStringList{ u"-o"_s, u"loop,utf8"_s };
    QTest::addRow("exFAT") << u"mkfs.exfat"_s << QStringList{ u"-t"_s, u"exfat-fuse"_s, u"-o"_s, u"loop"_s };
}

// On disks that know no difference of case, where they may be mounted.
void tst_AppModelRenaming::onlyTheCaseChanges()
{
    QFETCH(QString, format);
    QFETCH(QStringList, mounting);
    const auto runs = [](const QString& program, const QStringList& arguments) {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    };
    const QTemporaryDir directory;
    const QString image = directory.filePath(u"disk"_s);
    writeFile(image, QByteArray(8 << 20, '\0'));
    if (geteuid() != 0 || !runs(format, { image }))
        QSKIP("making a disk needs root and its program");
    ModelFixture f;
    if (!runs(u"mount"_s, mounting + QStringList{ image, f.folder.path() }))
        QSKIP("this machine mounts no such disks");
    const auto unmount = qScopeGuard([&f] { umount2(qPrintable(f.folder.path()), MNT_DETACH); });
    f.folder.add(u"a.jpg"_s);
    f.folder.add(u"a.xmp"_s);
    QVERIFY(f.open());
    f->setSingle(u"creator"_s, u"Ana"_s);
    f->preferences().renamePattern.set(u"A"_s);
    f->performRename();
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f.folder.names(), QStringList({ u"A.jpg"_s, u"A.xmp"_s }));
    QCOMPARE(f.primary(), u"A.jpg"_s);
    QCOMPARE(f->unsavedCount(), 1);
}

QTEST_GUILESS_MAIN(tst_AppModelRenaming)
#include "tst_AppModelRenaming.moc"
