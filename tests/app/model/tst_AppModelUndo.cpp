// Taking saves back: across restarts and renames, around others' work, through failures.
#include "tests/app/model/JournaledPhotos.h"

#include <QDir>
#include <QLockFile>
#include <QRegularExpression>
#include <QTest>
#include <QThreadPool>

#include <sys/stat.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

struct TitledPhotos : JournaledPhotos {
    using JournaledPhotos::JournaledPhotos;
    QMap<QString, QString> titles() const
    {
        QMap<QString, QString> titles;
        for (const ImageRecord& record : model->records())
            titles.insert(record.fileName, record.values.value(u"title"_s));
        return titles;
    }
};

}  // namespace

class tst_AppModelUndo : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void undoSurvivesARestart();
    void undoFollowsRenames();
    void undoTakesSidecarsBack();
    void undoLeavesOthersWorkAlone();
    void undoThroughALink_data();
    void undoThroughALink();
    void undoThatFailsInPart();
    void undoIsTriedAgainAfterTheToolWasCut();
    void unwritableJournalDoesNotStopASave();
    void noOlderSaveIsTakenBackInstead_data();
    void noOlderSaveIsTakenBackInstead();
    void aSaveLeavesTheOthersInTheJournalAlone();
    void twoProgramsTakeBackTheirOwn();
    void oneProgramAtATimeTakesBack();
    void earlierVersionsJournalIsTakenOver();
};

void tst_AppModelUndo::undoSurvivesARestart()
{
    TitledPhotos f;
    QVERIFY(f.open());
    QVERIFY(!f->canUndoSave());
    f->selectAllPhotos();
    f->setBatch(u"title"_s, u"X"_s);
    f->setBatch(u"creator"_s, u"東京"_s);
    QVERIFY(f.save());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QVERIFY(f->canUndoSave());
    f.click(u"a.jpg"_s);
    f->setSingle(u"title"_s, u"Y"_s);
    QVERIFY(f.save());
    f.relaunch();
    QTRY_VERIFY(f->canUndoSave());
    QVERIFY(f.open());
    f->setSingle(u"headline"_s, u"typed"_s);
    QVERIFY(f.undo());
    QCOMPARE(f->draftValues().value(u"title"_s), u"X"_s);
    // Edits that are not saved yet stay.
    QCOMPARE(f->draftValues().value(u"headline"_s), u"typed"_s);
    QCOMPARE(f->editedSingle(), QSet<QString>{ u"headline"_s });
    QVERIFY(f->canUndoSave());
    QVERIFY(f.undo());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QVERIFY(!f->canUndoSave());
    for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s }) {
        QCOMPARE(f.onDisk(name, u"XMP:Title"_s), QJsonValue(name));
        QVERIFY(f.onDisk(name, u"XMP:Creator"_s).isUndefined());
        QCOMPARE(f->record(f.url(name))->values.value(u"title"_s), name);
    }
}

void tst_AppModelUndo::undoFollowsRenames()
{
    TitledPhotos f;
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"Renamed"_s);
    QVERIFY(f.save());
    f->preferences().renamePattern.set(u"%Title%"_s);
    f->performRename();
    QCOMPARE(f.primary(), u"Renamed.jpg"_s);
    QVERIFY(f.undo());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f.onDisk(u"Renamed.jpg"_s, u"XMP:Title"_s), QJsonValue(u"a.jpg"_s));
}

// Photo "a" has a sidecar of another program's, "b" has none.
void tst_AppModelUndo::undoTakesSidecarsBack()
{
    TitledPhotos f;
    const QString sidecar = f.folder.path(u"a.xmp"_s);
    exiftool({ u"-XMP-dc:Title=foreign"_s, u"-XMP-crs:Exposure2012=+1.5"_s, sidecar });
    const QByteArray foreign = readFile(sidecar);
    f->preferences().writeSidecar.set(true);
    QVERIFY(f.open());
    f->selectAllPhotos();
    for (const QString& headline : { u"X"_s, u"Y"_s }) {
        f->setBatch(u"headline"_s, headline);
        QVERIFY(f.save());
    }
    QVERIFY(readFile(sidecar) != foreign && QFile::exists(f.folder.path(u"b.xmp"_s)));
    f.click(u"a.jpg"_s);
    f->preferences().renamePattern.set(u"c"_s);
    f->performRename();
    QVERIFY(f.undo());
    QCOMPARE(f.onDisk(u"c.xmp"_s, u"XMP:Headline"_s), QJsonValue(u"X"_s));
    QCOMPARE(f.onDisk(u"b.xmp"_s, u"XMP:Headline"_s), QJsonValue(u"X"_s));
    QVERIFY(f.undo());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(readFile(f.folder.path(u"c.xmp"_s)), foreign);
    QVERIFY(!QFile::exists(f.folder.path(u"b.xmp"_s)));
}

void tst_AppModelUndo::undoLeavesOthersWorkAlone()
{
    TitledPhotos f;
    QVERIFY(f.open());
    f->selectAllPhotos();
    for (const QString& title : { u"X"_s, u"Y"_s }) {
        f->setBatch(u"title"_s, title);
        QVERIFY(f.save());
    }
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=another program's"_s, f.folder.path(u"a.jpg"_s) });
    QVERIFY(f.undo());
    QCOMPARE(f->errorMessage(), u"Undone, but 1 photo changed since and was left alone: a.jpg"_s);
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s), QJsonValue(u"another program's"_s));
    // Nor does the save before that one become a way to it.
    QVERIFY(f.undo());
    QCOMPARE(f->errorMessage(), u"Undone, but 1 photo changed since and was left alone: a.jpg"_s);
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s), QJsonValue(u"another program's"_s));
    QCOMPARE(f.onDisk(u"b.jpg"_s, u"XMP:Title"_s), QJsonValue(u"b.jpg"_s));
    QVERIFY(!f->canUndoSave());
}

void tst_AppModelUndo::undoThroughALink_data()
{
    QTest::addColumn<bool>("isRenamed");
    if (isSlowRun())
        QTest::newRow("as it was") << false;
    QTest::newRow("renamed") << true;
}

void tst_AppModelUndo::undoThroughALink()
{
    QFETCH(bool, isRenamed);
    TitledPhotos f({ u"a.jpg"_s });
    const PhotoFolder elsewhere;
    const QString link = f.folder.path(u"a.jpg"_s);
    const QUrl real = elsewhere.add(u"real.jpg"_s, readFile(link));
    QVERIFY(QFile::remove(link) && QFile::link(real.toLocalFile(), link));
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"X"_s);
    QVERIFY(f.save());
    QCOMPARE(exiftoolValues(real).value(u"XMP:Title"_s), QJsonValue(u"X"_s));
    f->preferences().renamePattern.set(u"renamed"_s);
    if (isRenamed)
        f->performRename();
    QCOMPARE(f.primary(), isRenamed ? u"renamed.jpg"_s : u"a.jpg"_s);
    QVERIFY(f.undo());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QVERIFY(QFileInfo(f->primary()->toLocalFile()).isSymLink());
    QCOMPARE(exiftoolValues(real).value(u"XMP:Title"_s), QJsonValue(u"a.jpg"_s));
    QCOMPARE(f->draftValues().value(u"title"_s), u"a.jpg"_s);
}

// Every photo had another title, so each is a run of its own; two of them cannot be written to.
void tst_AppModelUndo::undoThatFailsInPart()
{
    const QStringList names{ u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s };
    TitledPhotos f(names);
    QVERIFY(f.open());
    f->selectAllPhotos();
    for (const QString& title : { u"X"_s, u"Y"_s }) {
        f->setBatch(u"title"_s, title);
        QVERIFY(f.save());
    }
    QVERIFY(QFile::setPermissions(f.folder.path(u"b.jpg"_s), QFile::ReadOwner));
    const QString leftover = f.folder.add(u"c.jpg_exiftool_tmp"_s, "half").toLocalFile();
    QVERIFY(f.undo());
    const QString banner = f->errorMessage().value_or(QString());
    QVERIFY2(banner.startsWith(u"Could not undo the save of 2 photos: b.jpg (read-only), c.jpg ("_s)
            && banner.contains(u"c.jpg_exiftool_tmp lies beside the photo"_s),
        qPrintable(banner));
    QCOMPARE(f.titles().values(), QStringList({ u"X"_s, u"Y"_s, u"Y"_s }));
    QVERIFY(f->canUndoSave());

    f->setErrorMessage({});
    QVERIFY(QFile::setPermissions(f.folder.path(u"b.jpg"_s), QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(QFile::remove(leftover));
    QVERIFY(f.undo());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f.titles().values(), QStringList({ u"X"_s, u"X"_s, u"X"_s }));
    QVERIFY(f.undo());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f.titles().values(), names);
    QVERIFY(!f->canUndoSave());
}

// A tool that is killed says nothing about what it has done: what it restored must not pass for another's work.
void tst_AppModelUndo::undoIsTriedAgainAfterTheToolWasCut()
{
    TitledPhotos f({ u"a.jpg"_s, u"b.jpg"_s });
    QVERIFY(f.open());
    f->selectAllPhotos();
    f->setBatch(u"headline"_s, u"X"_s);
    QVERIFY(f.save());
    const QTemporaryDir tools;
    const QString script = tools.filePath(u"exiftool"_s);
    writeFile(script, "system " + toolForPerl() + ", @ARGV; kill 'KILL', $$ if grep { $_ eq '-m' } @ARGV;\n");
    f.services.service = MetadataService{ { QUrl::fromLocalFile(script), realTool().perlURL } };
    f.relaunch();
    QTRY_VERIFY(f->canUndoSave());
    QVERIFY(f.open());
    QVERIFY(f.undo());
    QVERIFY(f->errorMessage().value_or(QString()).startsWith(u"Could not undo the save of 2 photos: a.jpg ("_s));
    QVERIFY(!f->record(f.url(u"a.jpg"_s))->values.contains(u"headline"_s));
    f.services.service = MetadataService{ realTool() };
    f.relaunch();
    QTRY_VERIFY(f->canUndoSave());
    QVERIFY(f.undo());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QVERIFY(!f->canUndoSave());
}

void tst_AppModelUndo::unwritableJournalDoesNotStopASave()
{
    TitledPhotos f;
    writeFile(f.settings.filePath(u"state"_s), "a file where a folder should be");
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"X"_s);
    QVERIFY(f.save());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s), QJsonValue(u"X"_s));
    QVERIFY(!f->canUndoSave());
}

void tst_AppModelUndo::noOlderSaveIsTakenBackInstead_data()
{
    QTest::addColumn<bool>("looksBefore");
    QTest::addRow("the journal takes no more") << true;
    QTest::addRow("what the save replaces cannot be read") << false;
}

// Saves of "a", "b", "c": the one of "b" is not in the journal, and undoing it must not undo "a".
void tst_AppModelUndo::noOlderSaveIsTakenBackInstead()
{
    QFETCH(const bool, looksBefore);
    TitledPhotos f({ u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s });
    const QString broken = f.settings.filePath(u"broken"_s);
    const QTemporaryDir tools;
    const QString script = tools.filePath(u"exiftool"_s);
    writeFile(script,
        "exit 1 if -e '" + broken.toUtf8() + "' and grep { $_ eq '-php' } @ARGV;\nexec " + toolForPerl()
            + ", @ARGV;\n");
    f.services.service = MetadataService{ { QUrl::fromLocalFile(script), realTool().perlURL } };
    f.relaunch();
    QVERIFY(f.open());
    const auto saveOf = [&f](const QString& name) {
        f.click(name);
        f->setSingle(u"title"_s, u"X"_s);
        return f.save();
    };
    QVERIFY(saveOf(u"a.jpg"_s));
    QCOMPARE(f->undoSaveText(), u"Undo Save of “a.jpg”"_s);
    const QString journal = f.services.journalPath;
    if (looksBefore)
        QVERIFY(QDir().rename(journal, journal + u"-away"_s));
    writeFile(looksBefore ? journal : broken, "in the way");
    QVERIFY(saveOf(u"b.jpg"_s));
    QVERIFY(!f->canUndoSave());
    QCOMPARE(f->undoSaveText(), u"Undo Save"_s);
    QVERIFY(QFile::remove(looksBefore ? journal : broken));
    if (looksBefore)
        QVERIFY(QDir().rename(journal + u"-away"_s, journal));
    QVERIFY(saveOf(u"c.jpg"_s));
    QCOMPARE(f->undoSaveText(), u"Undo Save of “c.jpg”"_s);
    QVERIFY(f.undo());
    QVERIFY(!f->canUndoSave());
    QCOMPARE(f.titles().values(), QStringList({ u"X"_s, u"X"_s, u"c.jpg"_s }));
}

void tst_AppModelUndo::aSaveLeavesTheOthersInTheJournalAlone()
{
    TitledPhotos f;
    QVERIFY(f.open());
    const QDir journal(f.services.journalPath);
    const auto files = [&journal] {
        QMap<QString, quint64> inodes;
        for (const QFileInfo& file : journal.entryInfoList(QDir::Files)) {
            struct stat status = {};
            if (stat(qPrintable(file.filePath()), &status) == 0)
                inodes.insert(file.fileName(), status.st_ino);
        }
        return inodes;
    };
    f->selectAllPhotos();
    f->setBatch(u"headline"_s, u"X"_s);
    QVERIFY(f.save());
    QCOMPARE(f->undoSaveText(), u"Undo Save of 2 photos"_s);
    const auto before = files();
    QCOMPARE(before.size(), 1);
    f.click(u"b.jpg"_s);
    f->setSingle(u"title"_s, u"Y"_s);
    QVERIFY(f.save());
    auto after = files();
    QCOMPARE(after.size(), 2);
    QCOMPARE(after.value(before.firstKey()), before.first());
    // What is undone goes, and the menu names the one before, also when a photo of it got another name.
    QVERIFY(f.undo());
    QCOMPARE(files().value(before.firstKey()), before.first());
    QCOMPARE(f->undoSaveText(), u"Undo Save of 2 photos"_s);
    QVERIFY(f.undo());
    QCOMPARE(files().size(), 0);
    f->setSingle(u"title"_s, u"Z"_s);
    QVERIFY(f.save());
    f->preferences().renamePattern.set(u"new"_s);
    f->performRename();
    QTRY_COMPARE(f->undoSaveText(), u"Undo Save of “new.jpg”"_s);
}

void tst_AppModelUndo::twoProgramsTakeBackTheirOwn()
{
    TitledPhotos f({ u"a.jpg"_s });
    TitledPhotos g({ u"b.jpg"_s });
    g.services.journalPath = f.services.journalPath;
    g.relaunch();
    QVERIFY(f.open() && g.open());
    for (TitledPhotos* program : { &f, &g }) {
        (*program)->setSingle(u"title"_s, u"X"_s);
        QVERIFY(program->save());
    }
    QCOMPARE(f->undoSaveText(), u"Undo Save of “a.jpg”"_s);
    QVERIFY(f.undo());
    QCOMPARE(f.titles().values(), QStringList{ u"a.jpg"_s });
    QCOMPARE(exiftoolValues(g.url(u"b.jpg"_s)).value(u"XMP:Title"_s), QJsonValue(u"X"_s));
    // Now the other one's is the last, and whoever is quicker takes it back.
    QCOMPARE(f->undoSaveText(), u"Undo Save of “b.jpg”"_s);
    QVERIFY(f.undo());
    QVERIFY(g.undo());
    QCOMPARE(g->errorMessage(), u"Could not undo the save: it was undone already"_s);
    QVERIFY(!f->canUndoSave() && !g->canUndoSave());
    QCOMPARE(exiftoolValues(g.url(u"b.jpg"_s)).value(u"XMP:Title"_s), QJsonValue(u"b.jpg"_s));
}

void tst_AppModelUndo::oneProgramAtATimeTakesBack()
{
    TitledPhotos f;
    QVERIFY(f.open());
    f->setSingle(u"title"_s, u"X"_s);
    QVERIFY(f.save());
    QLockFile other(f.services.journalPath + u".lock"_s);
    QVERIFY(other.tryLock());
    QVERIFY(f.undo());
    QCOMPARE(f->errorMessage(), u"Could not undo the save: another Quorbel is undoing one at this moment"_s);
    QVERIFY(f->canUndoSave());
    other.unlock();
    QVERIFY(f.undo());
    QCOMPARE(f.titles().values(), QStringList({ u"a.jpg"_s, u"b.jpg"_s }));
}

// One file held all saves once.
void tst_AppModelUndo::earlierVersionsJournalIsTakenOver()
{
    TitledPhotos f;
    QVERIFY(f.open());
    QByteArrayList saves;
    for (const QString& title : { u"X"_s, u"Y"_s }) {
        f->setSingle(u"title"_s, title);
        QVERIFY(f.save());
        const QFileInfoList files = QDir(f.services.journalPath).entryInfoList(QDir::Files);
        saves.append(readFile(files.constLast().filePath()));
    }
    f.relaunch();
    QVERIFY(QDir(f.services.journalPath).removeRecursively());
    const QString old = f.services.journalPath + u".json"_s;
    writeFile(old, '[' + saves.join(',') + ']');
    f.relaunch();
    QTRY_VERIFY(f->canUndoSave());
    QVERIFY(!QFile::exists(old));
    QVERIFY(f.open());
    for (const QString& title : { u"X"_s, u"a.jpg"_s }) {
        QVERIFY(f.undo());
        QCOMPARE(f->errorMessage(), std::nullopt);
        QCOMPARE(f->draftValues().value(u"title"_s), title);
    }
    QVERIFY(!f->canUndoSave());
}

QTEST_GUILESS_MAIN(tst_AppModelUndo)
#include "tst_AppModelUndo.moc"
