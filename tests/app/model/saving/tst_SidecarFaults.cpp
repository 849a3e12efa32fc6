// Saves beside raw photos that are struck at random moments, as in tst_SaveFaults: each photo is what it was, each
// sidecar is the old one or a whole new one, with all that another program keeps in it, and what was typed for an
// unsaved photo is still there. QUORBEL_SLOW_TESTS=1 plays 300 rounds; QUORBEL_FAULT_SEED repeats those of an earlier
// run.
#include "tests/app/model/ModelFixture.h"
#include "tests/app/model/saving/SaveFaults.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

#include <csignal>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

constexpr uid_t nobody = 65534;  // the user without any rights of its own

struct Raws : ModelFixture {
    Raws()
        : ModelFixture(MetadataService{ startedTool() })
        , directory(folder.path(u"trip"_s))
    {
        QDir().mkpath(directory);
        services.journalPath = settings.filePath(u"undo"_s);
        relaunch();
        model->preferences().rawBeside.set(true);
    }
    void save(const QString& title)
    {
        editAll(*model, title);
        model->requestSave();
    }
    void verify(const StruckRaws& photos, const QString& title) const
    {
        verifyNothingLost(photos.unsaved(title), title, Aftermath::of(*model));
    }

    QString directory;
};

}  // namespace

class tst_SidecarFaults : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void toolIsKilled();
    void programIsKilled();
    void diskIsFull();
    void folderIsClosed();

private:
    static int rounds(int few, int many) { return isSlowRun() ? many : few; }
    static QString titleOf(int round) { return u"東京 %1"_s.arg(round); }
    int anyMoment() { return m_random.bounded(m_saveTime * 2 / 3 + 1); }
    void verifyNextStart(const StruckRaws& photos, const QString& directory);

    QRandomGenerator m_random;
    int m_saveTime = 1;  // ms; of a save that nothing strikes, on this machine as busy as it is
};

void tst_SidecarFaults::initTestCase()
{
    m_random = seededMoments();
    Raws raws;
    const StruckRaws photos(raws.directory);
    QVERIFY(raws.load({ QUrl::fromLocalFile(raws.directory) }));
    QElapsedTimer timer;
    timer.start();
    raws.save(titleOf(1));
    QVERIFY(raws.waitUntilIdle());
    QCOMPARE(photos.unsaved(titleOf(1)), QStringList());
    QCOMPARE(photos.leftovers(), QStringList());
    m_saveTime = int(timer.elapsed());
}

void tst_SidecarFaults::toolIsKilled()
{
    int kills = 0;
    for (int round = 0; round < rounds(2, 100); ++round) {
        Raws raws;
        const StruckRaws photos(raws.directory);
        QVERIFY(raws.load({ QUrl::fromLocalFile(raws.directory) }));
        raws.save(titleOf(round));
        QTest::qWait(anyMoment());
        for (const pid_t pid : runningTools())
            kills += kill(pid, SIGKILL) == 0 ? 1 : 0;
        QVERIFY(raws.waitUntilIdle());
        raws.verify(photos, titleOf(round));
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("%d runs of the tool killed", kills);
}

// The next program finds all photos, and can save and take back.
void tst_SidecarFaults::verifyNextStart(const StruckRaws& photos, const QString& directory)
{
    for (const QString& name : photos.leftovers())
        if (name.endsWith(u"_exiftool_tmp"_s))
            QFile::remove(photos.path(name));
    Raws next;
    QVERIFY(next.load({ QUrl::fromLocalFile(directory) }));
    QCOMPARE(next->errorMessage(), std::nullopt);
    QCOMPARE(next->records().size(), StruckRaws::names().size());
    next.save(u"again"_s);
    QVERIFY(next.waitUntilIdle());
    QCOMPARE(next->errorMessage(), std::nullopt);
    QCOMPARE(photos.unsaved(u"again"_s), QStringList());
    next->undoSave();
    QVERIFY(next.waitUntilIdle());
    QCOMPARE(next->errorMessage(), std::nullopt);
    QCOMPARE(photos.unsaved(u"again"_s), StruckRaws::names());
}

void tst_SidecarFaults::programIsKilled()
{
    int kills = 0;
    for (int round = 0; round < rounds(2, 100); ++round) {
        const PhotoFolder folder;
        const PhotoFolder state;
        const StruckRaws photos(folder.path());
        OtherProgram program(
            { .folder = folder.path(), .state = state.path(), .title = titleOf(round), .beside = true });
        QVERIFY(program.waitForSave());
        QTest::qWait(anyMoment());
        round % 2 ? program.killWithItsTool() : program.kill();
        program.waitForEnd();
        kills += program.wasKilled() ? 1 : 0;
        photos.unsaved(titleOf(round));
        if (!QTest::currentTestFailed())
            verifyNextStart(photos, folder.path());
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("%d programs killed", kills);
}

void tst_SidecarFaults::diskIsFull()
{
    for (int round = 0; round < rounds(1, 50); ++round) {
        Raws raws;
        const QByteArray mountPoint = raws.directory.toLocal8Bit();
        if (geteuid() != 0 || mount("tmpfs", mountPoint.constData(), "tmpfs", 0, "size=1m") != 0)
            QSKIP("mounting a small disk needs root");
        const auto unmount = qScopeGuard([&mountPoint] { umount2(mountPoint.constData(), MNT_DETACH); });
        const StruckRaws photos(raws.directory);
        QVERIFY(raws.load({ QUrl::fromLocalFile(raws.directory) }));
        QFile filler(raws.directory + u"/.quorbel-filler"_s);
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(4096, 'x')) == 4096) { }
        QVERIFY(filler.resize(filler.size() - 4096 * m_random.bounded(8)));
        editAll(*raws.model, titleOf(round));
        raws->setBatch(u"description"_s, QString(5000, u'x'));
        raws->requestSave();
        QVERIFY(raws.waitUntilIdle());
        QVERIFY(filler.remove());
        raws.verify(photos, titleOf(round));
        QCOMPARE(photos.leftovers(), QStringList());
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_SidecarFaults::folderIsClosed()
{
    int struck = 0;
    for (int round = 0; round < rounds(1, 50); ++round) {
        const PhotoFolder folder;
        const PhotoFolder state;
        const uid_t user = geteuid() == 0 ? nobody : 0;
        const StruckRaws photos(folder.path(), user);
        OtherProgram program(
            { .folder = folder.path(), .state = state.path(), .title = titleOf(round), .beside = true, .user = user });
        if (!program.waitForSave())
            QSKIP("another user cannot run the program from where it lies");
        QTest::qWait(anyMoment());
        QCOMPARE(chmod(qPrintable(folder.path()), 0555), 0);
        program.waitForEnd();
        QCOMPARE(chmod(qPrintable(folder.path()), 0755), 0);
        const Aftermath after = program.aftermath();
        struck += after.banner.isEmpty() ? 0 : 1;
        verifyNothingLost(photos.unsaved(titleOf(round)), titleOf(round), after);
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("%d saves struck", struck);
}

QTEST_GUILESS_MAIN(tst_SidecarFaults)
#include "tst_SidecarFaults.moc"
