// Renaming the one selected photo from a pattern and its draft.
#include "app/model/renaming/PhotosRenaming.h"
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
    void manyAtOnce();
    void manyWaitForTheirEdits();
    void manySwapAndEditsFollow();
    void manyAreTakenBackAfterARestart();
    void theSheetOfManyFollowsTheSelection();
};

namespace {

// The names of the sheet's plan, once it is worked out.
QStringList planned(ModelFixture& f)
{
    PhotosRenaming& renaming = f->renaming();
    QStringList names;
    if (!QTest::qWaitFor([&] { return renaming.isCurrent(); }, 10000))
        return names;
    for (const RenameRow& row : renaming.plan()->rows)
        names.append(row.newName);
    return names;
}

bool waitForRename(ModelFixture& f)
{
    return QTest::qWaitFor([&] { return !f->renaming().isRunning() && !f->isSaving(); }, 30000);
}

void withJournal(ModelFixture& f)
{
    f.services.journalPath = f.settings.filePath(u"undo"_s);
    f.relaunch();
}

}  // namespace

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

// List, selection and order follow in one step, and nothing is read again: the tool is shut.
void tst_AppModelRenaming::manyAtOnce()
{
    GatedTool tool;
    ModelFixture f(tool.service());
    f.addTitled(jpgs(u"abc"_s));
    f.folder.add(u"a.nef"_s);
    QVERIFY(f.open());
    f.select(u"acb"_s);
    f->setSortOrder(RecordSortOrder::nameDesc);
    PhotosRenaming& renaming = f->renaming();
    QVERIFY(renaming.canOpen());
    renaming.open();
    QVERIFY(renaming.isOpen());
    renaming.pattern.set(u"x%Counter%_%Headline%"_s);
    renaming.counterDigits.set(2);
    QCOMPARE(planned(f), QStringList({ u"x01.jpg"_s, u"x02.jpg"_s, u"x03.jpg"_s }));
    QCOMPARE(renaming.plan()->marked, 3);
    tool.shut();
    QSignalSpy records(f.model.get(), &AppModel::recordsChanged);
    QSignalSpy rows(f.model.get(), &AppModel::visibleRowsChanged);
    int pictures = 0;
    renaming.onImagesRenamed = [&](const NewNames& names) { pictures += int(names.list().size()); };
    renaming.rename();
    QVERIFY(renaming.isRunning());
    QVERIFY(waitForRename(f));
    QVERIFY(!renaming.isOpen());
    QCOMPARE(f.folder.names(), QStringList({ u"x01.jpg"_s, u"x02.jpg"_s, u"x03.jpg"_s, u"x03.nef"_s }));
    QCOMPARE(f.visible(), QStringList({ u"x03.nef"_s, u"x03.jpg"_s, u"x02.jpg"_s, u"x01.jpg"_s }));
    QCOMPARE(f.selected(), QStringList({ u"x01.jpg"_s, u"x02.jpg"_s, u"x03.jpg"_s }));
    QCOMPARE(f.primary(), u"x02.jpg"_s);
    QCOMPARE(records.count(), 1);
    QCOMPARE(rows.count(), 1);
    QCOMPARE(pictures, 4);
    QCOMPARE(f->record(f.url(u"x01.jpg"_s))->values.value(u"title"_s), u"c.jpg"_s);
    QCOMPARE(f->selectedRows().size(), 3);
    QCOMPARE(f->sharedValue(u"title"_s), std::nullopt);
    f.click(u"x01.jpg"_s);
    QCOMPARE(f->sharedValue(u"title"_s), u"c.jpg"_s);
    QCOMPARE(f->selectedRows().size(), 1);
    QVERIFY(QTest::qWaitFor([&] { return f->canRefresh() && !f->isWorking(); }));
    tool.release();
    f->refresh();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.visible().size(), 4);
    QCOMPARE(f->errorMessage(), std::nullopt);
}

// Names are made of what is saved: edits are saved or left before.
void tst_AppModelRenaming::manyWaitForTheirEdits()
{
    ModelFixture f;
    f.addTitled(jpgs(u"ab"_s));
    QVERIFY(f.open());
    f.select(u"ab"_s);
    PhotosRenaming& renaming = f->renaming();
    f->setBatch(u"headline"_s, u"Final"_s);
    renaming.open();
    QVERIFY(f->saveOpen());
    QVERIFY(!renaming.isOpen());
    f->cancelSaveDialog();
    QVERIFY(!renaming.isOpen());
    renaming.open();
    f->confirmSaveDialog();
    QVERIFY(QTest::qWaitFor([&] { return renaming.isOpen(); }, 30000));
    renaming.pattern.set(u"%Headline%"_s);
    QCOMPARE(planned(f), QStringList({ u"Final.jpg"_s, u"Final-2.jpg"_s }));
    // Asked for before the names of the last key are there.
    renaming.pattern.set(u"%Headline%_%Counter%"_s);
    renaming.rename();
    QVERIFY(QTest::qWaitFor([&] { return !renaming.isOpen(); }, 30000));
    QVERIFY(waitForRename(f));
    QCOMPARE(f.visible(), QStringList({ u"Final_0001.jpg"_s, u"Final_0002.jpg"_s }));
}

void tst_AppModelRenaming::manySwapAndEditsFollow()
{
    ModelFixture f;
    withJournal(f);
    f.addTitled(jpgs(u"abc"_s));
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=b"_s, f.folder.path(u"a.jpg"_s) });
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=a"_s, f.folder.path(u"b.jpg"_s) });
    QVERIFY(f.open());
    f->preferences().saveDontAsk.set(true);
    f.click(u"a.jpg"_s);
    f->setSingle(u"headline"_s, u"saved"_s);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QVERIFY(QTest::qWaitFor([&] { return !f->isSaving(); }));
    f.select(u"bc"_s);
    f->setBatch(u"headline"_s, u"left"_s);
    f.click(u"a.jpg"_s);
    QCOMPARE(f->leftEdits().size(), 1);
    f.select(u"ab"_s);
    PhotosRenaming& renaming = f->renaming();
    renaming.open();
    renaming.pattern.set(u"%Title%"_s);
    QCOMPARE(planned(f), QStringList({ u"b.jpg"_s, u"a.jpg"_s }));
    renaming.rename();
    QVERIFY(waitForRename(f));
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f->record(f.url(u"a.jpg"_s))->values.value(u"title"_s), u"a"_s);
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s), u"a"_s);
    QCOMPARE(f->leftEdits().constFirst().edits.subjects, QList<QUrl>({ f.url(u"a.jpg"_s), f.url(u"c.jpg"_s) }));
    // Undo Save finds its photo under its name of today.
    QVERIFY(QTest::qWaitFor([&] { return f->undoSaveText() == u"Undo Save of “b.jpg”"; }));
    f->undoSave();
    QVERIFY(f.waitUntilIdle());
    QVERIFY(QTest::qWaitFor([&] { return !f->isSaving(); }));
    QVERIFY(f.onDisk(u"b.jpg"_s, u"XMP:Headline"_s).isUndefined());
    QCOMPARE(f->errorMessage(), std::nullopt);
}

// With edits that are unsaved by then, and a photo that is not open.
void tst_AppModelRenaming::manyAreTakenBackAfterARestart()
{
    ModelFixture f;
    withJournal(f);
    f.addTitled(jpgs(u"ab"_s));
    QVERIFY(f.open());
    QVERIFY(!f->renaming().canUndo());
    f.select(u"ab"_s);
    f->renaming().open();
    f->renaming().pattern.set(u"x%Counter%"_s);
    QCOMPARE(planned(f).size(), 2);
    // Given up; then another program takes a name between the plan and the move.
    f->renaming().rename();
    f->renaming().cancel();
    QVERIFY(waitForRename(f));
    QVERIFY(f->renaming().isOpen());
    QCOMPARE(planned(f), QStringList({ u"x0001.jpg"_s, u"x0002.jpg"_s }));
    writeFile(f.folder.path(u"x0002.jpg"_s), "other");
    f->renaming().rename();
    QVERIFY(waitForRename(f));
    QCOMPARE(f->errorMessage(), u"Could not rename: “x0002.jpg” is there already. All photos keep their names."_s);
    QCOMPARE(f.folder.names(), QStringList({ u"a.jpg"_s, u"b.jpg"_s, u"x0002.jpg"_s }));
    QFile::remove(f.folder.path(u"x0002.jpg"_s));
    f.select(u"ab"_s);
    f->renaming().open();
    QCOMPARE(planned(f).size(), 2);
    f->renaming().rename();
    QVERIFY(waitForRename(f));
    QVERIFY(f->renaming().canUndo());
    f.relaunch();
    QVERIFY(QTest::qWaitFor([&] { return f->renaming().canUndo(); }));
    QCOMPARE(f->renaming().undoText(), u"Undo Rename of 2 Photos"_s);
    QVERIFY(f.load({ f.url(u"x0001.jpg"_s) }));
    f->setSingle(u"headline"_s, u"unsaved"_s);
    QVERIFY(QTest::qWaitFor([&] { return f->renaming().canUndo(); }));
    f->renaming().undo();
    QVERIFY(QTest::qWaitFor([&] { return f.primary() == u"a.jpg" && !f->isSaving(); }, 10000));
    QCOMPARE(f.folder.names(), jpgs(u"ab"_s));
    QCOMPARE(f->draftValues().value(u"headline"_s), u"unsaved"_s);
    QCOMPARE(f->unsavedCount(), 1);
    QVERIFY(!f->renaming().canUndo());
    QCOMPARE(f->errorMessage(), std::nullopt);
}

void tst_AppModelRenaming::theSheetOfManyFollowsTheSelection()
{
    ModelFixture f;
    f.addTitled(jpgs(u"abc"_s));
    QVERIFY(f.open());
    QVERIFY(!f->renaming().canOpen());
    f.select(u"abc"_s);
    f->renaming().open();
    f->renaming().pattern.set(u"%Title%"_s);
    QCOMPARE(planned(f).size(), 3);
    QVERIFY(f->renaming().canRename());
    f->renaming().pattern.set(u" "_s);
    QVERIFY(!f->renaming().canRename());
    f->renaming().pattern.set(u"a/b"_s);
    QCOMPARE(planned(f), jpgs(u"abc"_s));
    QVERIFY(!f->renaming().canRename());
    QFile::remove(f.folder.path(u"b.jpg"_s));
    f->refresh();
    QVERIFY(QTest::qWaitFor([&] { return f->selection().size() == 2; }, 10000));
    QCOMPARE(planned(f).size(), 2);
    QFile::remove(f.folder.path(u"c.jpg"_s));
    f->refresh();
    QVERIFY(QTest::qWaitFor([&] { return !f->renaming().isOpen(); }, 10000));
}

QTEST_GUILESS_MAIN(tst_AppModelRenaming)
#include "tst_AppModelRenaming.moc"
