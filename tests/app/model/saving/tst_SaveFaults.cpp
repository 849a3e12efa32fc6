// Saves that are struck at random moments: the tool is killed, the program, or both; the folder goes away, the disk is
// full, permissions are taken away. Whatever happens, each photo is the old one or a whole new one, and what was typed
// for an unsaved one is still there, with a banner that names the photo.
// QUORBEL_SLOW_TESTS=1 plays hundreds of rounds; QUORBEL_FAULT_SEED repeats those of an earlier run.
#include "core/save/journal/SaveJournal.h"
#include "core/tool/TemporaryFiles.h"
#include "tests/app/model/ModelFixture.h"
#include "tests/app/model/saving/SaveFaults.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utime.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

constexpr uid_t nobody = 65534;  // the user without any rights of its own

void makeOld(const QString& path)
{
    const time_t twoDaysAgo = time(nullptr) - 2 * 24 * 60 * 60;
    const utimbuf times{ twoDaysAgo, twoDaysAgo };
    QCOMPARE(utime(qPrintable(path), &times), 0);
}

// Marks a file so that not even the administrator can change or replace it. False where that is impossible.
bool setImmutable(const QString& path, bool on)
{
    const int file = ::open(qPrintable(path), O_RDONLY | O_CLOEXEC);
    int flags = 0;
    bool isSet = file >= 0 && ioctl(file, FS_IOC_GETFLAGS, &flags) == 0;
    flags = on ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
    isSet = isSet && ioctl(file, FS_IOC_SETFLAGS, &flags) == 0;
    if (file >= 0)
        close(file);
    return isSet;
}

bool remountReadOnly(const QString& mountPoint)
{
    // Refused while the tool has a file open for writing: then a moment later.
    return QTest::qWaitFor(
        [&] { return mount("tmpfs", qPrintable(mountPoint), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0; }, 5000);
}

// A folder for photos, and a model in this process that opens and saves them.
struct BatchPhotos : ModelFixture {
    // Tools that are killed here are to be gone at once.
    BatchPhotos()
        : ModelFixture(MetadataService{ startedTool() })
        , directory(folder.path(u"trip"_s))
    {
        model->preferences().backupOriginals.set(false);
        QDir().mkpath(directory);
    }
    void save(const QString& title)
    {
        editAll(*model, title);
        model->requestSave();
    }
    void verify(const StruckPhotos& photos, const QString& title) const
    {
        QVERIFY(!model->isSaving());
        QCOMPARE(photos.secondNames(), QStringList());
        verifyNothingLost(photos, title, Aftermath::of(*model));
    }

    QString directory;
};

// What one moment does to the photos' folder, and how it is made good afterwards.
struct Loss {
    bool needsRoot = false;
    bool isMounted = false;  // the folder is a file system of its own
    std::function<bool(const QString& folder)> take{};
    std::function<bool(const QString& folder)> giveBack{};
};

}  // namespace

Q_DECLARE_METATYPE(Loss)

class tst_SaveFaults : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void toolIsKilled();
    void programIsKilled();
    void programIsKilledHalfWay_data();
    void programIsKilledHalfWay();
    void folderGoesAway();
    void diskIsFull();
    void permissionIsTaken_data();
    void permissionIsTaken();

private:
    int rounds(int few) const { return isSlowRun() ? few * 30 : few; }
    // Text that needs the IPTC to be re-encoded by a run of its own, in every other round.
    static QString titleOf(int round) { return (round % 2 ? u"東京 %1"_s : u"Title %1"_s).arg(round); }
    void verifyNextStart(const StruckPhotos& photos, const QString& directory, const QString& state);

    // A time into a save, in milliseconds: in the last third it only reads the photos back.
    int anyMoment() { return m_random.bounded(m_saveTime * 2 / 3 + 1); }

    QRandomGenerator m_random;
    int m_saveTime = 1;  // ms; of a save that nothing strikes, on this machine as busy as it is
};

void tst_SaveFaults::initTestCase()
{
    m_random = seededMoments();
    BatchPhotos batch;
    batch.services.journalPath = batch.settings.filePath(u"undo"_s);
    batch.relaunch();
    const StruckPhotos photos(batch.directory);
    QVERIFY(batch.load(photos.urls()));
    QElapsedTimer timer;
    timer.start();
    batch.save(titleOf(1));
    QVERIFY(batch.waitUntilIdle());
    QCOMPARE(photos.unsaved(titleOf(1)), QStringList());
    m_saveTime = int(timer.elapsed());
}

void tst_SaveFaults::toolIsKilled()
{
    int kills = 0;
    for (int round = 0; round < rounds(3); ++round) {
        BatchPhotos batch;
        const StruckPhotos photos(batch.directory);
        QVERIFY(batch.load({ QUrl::fromLocalFile(batch.directory) }));
        batch.save(titleOf(round));
        QTest::qWait(anyMoment());
        const QList<pid_t> running = runningTools();
        for (const pid_t pid : running)
            kills += kill(pid, SIGKILL) == 0 ? 1 : 0;
        QVERIFY(batch.waitUntilIdle());
        batch.verify(photos, titleOf(round));
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("%d runs of the tool killed", kills);
    QVERIFY2(kills > 0, "no round met a running tool");
}

// What the killed program left is dealt with by the next one, and no photo is out of its reach.
void tst_SaveFaults::verifyNextStart(const StruckPhotos& photos, const QString& directory, const QString& state)
{
    const QString temporary = state + u"/tmp"_s;
    TemporaryFiles::clearAbandoned(temporary, QDateTime::currentDateTime().addSecs(2 * 60 * 60));
    QCOMPARE(QDir(temporary).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
    BatchPhotos next;
    next.services.journalPath = state + u"/undo"_s;
    next.relaunch();
    QVERIFY(next.load({ QUrl::fromLocalFile(directory) }));
    QCOMPARE(next->records().size(), StruckPhotos::names().size());
    QCOMPARE(photos.secondNames(), QStringList());
    next.save(u"again"_s);
    QVERIFY(next.waitUntilIdle());
    const QStringList leftovers = photos.leftovers();
    if (!leftovers.isEmpty()) {
        QVERIFY2(next->errorMessage().value_or(QString()).contains(leftovers.constFirst()), "a leftover goes unnamed");
        QCOMPARE(photos.unsaved(u"again"_s), StruckPhotos::names());
        next.verify(photos, u"again"_s);
        for (const QString& name : leftovers)
            makeOld(photos.path(name));
        next->setErrorMessage({});
        next->requestSave();
        QVERIFY(next.waitUntilIdle());
    }
    QCOMPARE(next->errorMessage(), std::nullopt);
    QCOMPARE(photos.unsaved(u"again"_s), QStringList());
    QCOMPARE(photos.leftovers(), QStringList());
    QVERIFY(next->canUndoSave());
}

void tst_SaveFaults::programIsKilled()
{
    int kills = 0;
    int leftovers = 0;
    for (int round = 0; round < rounds(2); ++round) {
        const PhotoFolder folder;
        const PhotoFolder state;
        const StruckPhotos photos(folder.path());
        const SaveJournal journal(state.path(u"undo"_s));
        const JournalEntry before{ .writtenTags = { u"XMP-dc:Title"_s } };
        const auto number = journal.add(before);
        const bool withItsTool = round % 4 < 2;
        OtherProgram program(
            { .folder = folder.path(), .state = state.path(), .title = titleOf(round), .backup = round % 3 != 0 });
        QVERIFY(program.waitForSave());
        QTest::qWait(anyMoment());
        withItsTool ? program.killWithItsTool() : program.kill();
        program.waitForEnd();
        kills += program.wasKilled() ? 1 : 0;
        photos.unsaved(titleOf(round));
        leftovers += photos.leftovers().isEmpty() ? 0 : 1;
        QCOMPARE(journal.load(number.value()), before);
        // A save that was cut while it was noted down is no save.
        if (const auto last = journal.load(journal.saves().constLast()); last && last != before)
            QCOMPARE(last->files.size(), StruckPhotos::names().size());
        if (!QTest::currentTestFailed())
            verifyNextStart(photos, folder.path(), state.path());
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("%d programs killed, %d left a temporary file", kills, leftovers);
    QVERIFY2(kills > 0, "no round met a running save");
}

// Between the run that prepares the photos and the one that writes them.
void tst_SaveFaults::programIsKilledHalfWay_data()
{
    QTest::addColumn<bool>("isOpened");
    QTest::addRow("and the folder opened") << true;
    QTest::addRow("and a photo saved") << false;
}

void tst_SaveFaults::programIsKilledHalfWay()
{
    QFETCH(bool, isOpened);
    const PhotoFolder folder;
    const PhotoFolder state;
    const StruckPhotos photos(folder.path());
    OtherProgram program({ .folder = folder.path(), .state = state.path(), .title = titleOf(1) });
    QVERIFY(program.waitForSave());
    QVERIFY(QTest::qWaitFor([&photos] { return !photos.secondNames().isEmpty(); }));
    // A program that opens the folder meanwhile leaves it alone.
    program.pause();
    const QStringList secondNames = photos.secondNames();
    BatchPhotos other;
    QVERIFY(other.load({ QUrl::fromLocalFile(folder.path()) }));
    QCOMPARE(photos.secondNames(), secondNames);
    program.killWithItsTool();
    program.waitForEnd();
    QVERIFY(program.wasKilled());
    QCOMPARE(photos.secondNames(), secondNames);
    photos.unsaved(titleOf(1));
    if (isOpened) {
        verifyNextStart(photos, folder.path(), state.path());
        return;
    }
    other->preferences().saveDontAsk.set(true);
    other->setSingle(u"title"_s, u"again"_s);
    other->requestSave();
    QVERIFY(other.waitUntilIdle());
    QCOMPARE(photos.secondNames(), QStringList());
}

void tst_SaveFaults::folderGoesAway()
{
    for (int round = 0; round < rounds(2); ++round) {
        BatchPhotos batch;
        const StruckPhotos photos(batch.directory);
        // Opened one by one, so that the folder is not watched: what a watched folder loses leaves the screen.
        QVERIFY(batch.load(photos.urls()));
        batch.save(titleOf(round));
        // At any moment, or while the photos have second names.
        if (round % 2 == 0)
            QTest::qWait(anyMoment());
        else
            QVERIFY(QTest::qWaitFor([&photos] { return !photos.secondNames().isEmpty(); }));
        QVERIFY(QDir().rename(batch.directory, batch.directory + u"-away"_s));
        QVERIFY(batch.waitUntilIdle());
        QVERIFY(QDir().rename(batch.directory + u"-away"_s, batch.directory));
        batch.verify(photos, titleOf(round));
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_SaveFaults::diskIsFull()
{
    for (int round = 0; round < rounds(2); ++round) {
        BatchPhotos batch;
        const QByteArray mountPoint = batch.directory.toLocal8Bit();
        if (geteuid() != 0 || mount("tmpfs", mountPoint.constData(), "tmpfs", 0, "size=256k") != 0)
            QSKIP("mounting a small disk needs root");
        const auto unmount = qScopeGuard([&mountPoint] { umount2(mountPoint.constData(), MNT_DETACH); });
        const StruckPhotos photos(batch.directory);
        QVERIFY(batch.load(photos.urls()));
        // Room for some of the photos. The file lies beside them for the length of the save alone.
        const QString fillerPath = batch.directory + u"/filler"_s;
        QFile filler(fillerPath);
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(4096, 'x')) == 4096) { }
        QVERIFY(filler.resize(filler.size() - 4096 * m_random.bounded(8)));
        editAll(*batch.model, titleOf(round));
        batch->setBatch(u"description"_s, QString(5000, u'x'));
        batch->requestSave();
        QVERIFY(batch.waitUntilIdle());
        QVERIFY(filler.remove());
        batch.verify(photos, titleOf(round));
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_SaveFaults::permissionIsTaken_data()
{
    const auto mode = [](const QString& name, mode_t bits) {
        return [name, bits](const QString& folder) { return chmod(qPrintable(folder + u'/' + name), bits) == 0; };
    };
    const auto immutable = [](bool on) {
        return [on](const QString& folder) { return setImmutable(folder + u"/c.jpg"_s, on); };
    };
    const auto always = [](const QString&) { return true; };
    QTest::addColumn<Loss>("loss");
    QTest::addRow("folder") << Loss{ .take = mode(u"."_s, 0555), .giveBack = mode(u"."_s, 0755) };
    QTest::addRow("photo") << Loss{ .take = mode(u"c.jpg"_s, 0444), .giveBack = mode(u"c.jpg"_s, 0644) };
    QTest::addRow("immutable photo") << Loss{
        .needsRoot = true, .take = immutable(true), .giveBack = immutable(false)
    };
    QTest::addRow("read-only file system")
        << Loss{ .needsRoot = true, .isMounted = true, .take = remountReadOnly, .giveBack = always };
}

void tst_SaveFaults::permissionIsTaken()
{
    QFETCH(Loss, loss);
    const bool isRoot = geteuid() == 0;
    if (loss.needsRoot && !isRoot)
        QSKIP("only root can take this permission away");
    int struck = 0;
    for (int round = 0; round < rounds(1); ++round) {
        const PhotoFolder folder;
        const PhotoFolder state;
        if (loss.isMounted && mount("tmpfs", qPrintable(folder.path()), "tmpfs", 0, "size=8m") != 0)
            QSKIP("this system does not let root mount");
        const auto unmount = qScopeGuard([&] {
            if (loss.isMounted)
                umount2(qPrintable(folder.path()), MNT_DETACH);
        });
        // Permissions do not bind root, so the program runs as somebody else.
        const uid_t user = isRoot ? nobody : 0;
        const StruckPhotos photos(folder.path(), user);
        OtherProgram program({ .folder = folder.path(), .state = state.path(), .title = titleOf(round), .user = user });
        if (!program.waitForSave())
            QSKIP("another user cannot run the program from where it lies");
        QTest::qWait(anyMoment());
        if (!loss.take(folder.path()))
            QSKIP("the temporary folder's file system does not know this permission");
        program.waitForEnd();
        QVERIFY(loss.giveBack(folder.path()));
        const Aftermath after = program.aftermath();
        struck += after.banner.isEmpty() ? 0 : 1;
        verifyNothingLost(photos, titleOf(round), after);
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("%d of %d saves struck", struck, rounds(1));
}

QTEST_GUILESS_MAIN(tst_SaveFaults)
#include "tst_SaveFaults.moc"
