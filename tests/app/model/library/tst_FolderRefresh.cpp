// Folders where the system does not tell of changes, trees of folders, and looks that take their time. What another
// machine does is played by changes that the kernel tells nobody of: a write through mapped memory, and a link that
// leads to another folder now.
#include "platform/files/FolderWatches.h"
#include "tests/app/model/ModelFixture.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSemaphore>
#include <QStandardPaths>
#include <QTest>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <mutex>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// A kind of file system that does not answer while it is held. Shared with looks, which may live longer.
class Kind {
public:
    explicit Kind(bool tells)
        : m_tells(tells)
    {
    }
    std::function<FileSystem(const QString&)> asked() const
    {
        return [state = m_state, tells = m_tells](const QString& path) {
            ++state->looks;
            if (QString held = state->heldPath(); !held.isEmpty() && path.endsWith(held)) {
                ++state->hanging;
                state->gate.acquire();
                --state->hanging;
            }
            return FileSystem{ u"made up"_s, tells, 2s };
        };
    }
    void hold(const QString& path) const { m_state->setHeld(path); }
    bool waitUntilHeld() const
    {
        return QTest::qWaitFor([this] { return m_state->hanging > 0; }, 10000);
    }
    void release() const
    {
        m_state->setHeld({});
        m_state->gate.release(100);
    }
    int looks() const { return m_state->looks; }
    bool waitForLooks(int further) const
    {
        return QTest::qWaitFor([this, wanted = looks() + further] { return looks() >= wanted; }, 10000);
    }

private:
    struct State {
        std::atomic<int> looks = 0;
        std::atomic<int> hanging = 0;
        QSemaphore gate;
        std::mutex mutex;
        QString held;
        QString heldPath()
        {
            const std::scoped_lock lock(mutex);
            return held;
        }
        void setHeld(const QString& path)
        {
            const std::scoped_lock lock(mutex);
            held = path;
        }
    };
    bool m_tells;
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

// Two photos, each titled with its name, in "one", which is open under the name of a link to it.
struct LinkedFolder : GatedTool, ModelFixture {
    explicit LinkedFolder(bool tells)
        : ModelFixture(service())
        , kind(tells)
    {
        addFolder(u"one"_s, { u"a.jpg"_s, u"b.jpg"_s });
        lead(folder.path(u"one"_s));
        services.fileSystemOf = kind.asked();
        services.lookInterval = 50ms;
        relaunch();
        isOpen = load({ url(u"link"_s) }) && QTest::qWaitFor([this] { return kind.looks() > 0; });
    }
    ~LinkedFolder() { kind.release(); }
    Q_DISABLE_COPY_MOVE(LinkedFolder)

    void addFolder(const QString& name, const QStringList& photos) const
    {
        if (!QDir(folder.path()).mkdir(name))
            qFatal("no folder");
        QStringList titled;
        for (const QString& photo : photos)
            titled.append(name + u'/' + photo);
        addTitled(titled);
    }
    // From one moment to the next.
    void lead(const QString& path) const
    {
        const QString next = folder.path(u"next"_s);
        if (!QFile::link(path, next) || rename(qPrintable(next), qPrintable(folder.path(u"link"_s))) != 0)
            qFatal("no link");
    }
    QString title(const QString& name) const
    {
        const ImageRecord* record = model->record(url(u"link/"_s + name));
        return record ? record->values.value(u"title"_s) : QString();
    }

    Kind kind;
    bool isOpen = false;
};

// Another text in the place of one of the same length; the kernel tells nobody while this lives.
class SilentWrite {
public:
    SilentWrite(const QString& path, const QByteArray& before, const QByteArray& after)
        : m_file(open(qPrintable(path), O_RDWR | O_CLOEXEC))
    {
        struct stat status { };
        fstat(m_file, &status);
        void* bytes = mmap(nullptr, size_t(status.st_size), PROT_READ | PROT_WRITE, MAP_SHARED, m_file, 0);
        const qsizetype at = QByteArray::fromRawData(static_cast<char*>(bytes), status.st_size).indexOf(before);
        if (m_file < 0 || bytes == MAP_FAILED || at < 0 || before.size() != after.size())
            qFatal("no such text");
        std::copy(after.cbegin(), after.cend(), static_cast<char*>(bytes) + at);
        msync(bytes, size_t(status.st_size), MS_SYNC);
        munmap(bytes, size_t(status.st_size));
    }
    ~SilentWrite() { close(m_file); }
    Q_DISABLE_COPY_MOVE(SilentWrite)

private:
    int m_file;
};

// A folder behind a program: what happens in "behind" shows in "mount".
class ProgramMount {
public:
    explicit ProgramMount(const PhotoFolder& folder)
        : m_mount(folder.path(u"mount"_s))
        , m_behind(folder.path(u"behind"_s))
    {
    }
    ~ProgramMount() { unmount(); }
    Q_DISABLE_COPY_MOVE(ProgramMount)
    // Why it does not work on this machine; nothing when it does.
    std::optional<QString> mount()
    {
        const QString program = QStandardPaths::findExecutable(u"bindfs"_s);
        if (program.isEmpty())
            return u"There is no bindfs on this machine."_s;
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(program, { u"-f"_s, m_behind, m_mount });
        const bool isUp =
            QTest::qWaitFor([this] { return isMounted() || m_process.state() == QProcess::NotRunning; }, 10000);
        if (isUp && isMounted())
            return std::nullopt;
        return u"bindfs cannot mount here: "_s + QString::fromLocal8Bit(m_process.readAll()).trimmed();
    }
    void unmount()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        stop(false);
        m_process.terminate();
        m_process.waitForFinished();
    }
    void stop(bool on) const { kill(pid_t(m_process.processId()), on ? SIGSTOP : SIGCONT); }

private:
    bool isMounted() const
    {
        struct stat inside { };
        struct stat outside { };
        return stat(qPrintable(m_mount), &inside) == 0 && stat(qPrintable(m_behind), &outside) == 0
            && inside.st_dev != outside.st_dev;
    }
    QString m_mount;
    QString m_behind;
    QProcess m_process;
};

// A list and its refresh alone, with a hand on what is read.
struct BareRefresh {
    explicit BareRefresh(bool tells)
        : kind(tells)
    {
        refresh.setLooks({ kind.asked(), 50ms });
    }
    ~BareRefresh() { kind.release(); }
    Q_DISABLE_COPY_MOVE(BareRefresh)

    ImageRecord unread(const QString& name) const { return PhotoFile::at(folder.url(name)).file->unreadRecord(); }
    ImageRecord read(const QString& name) const
    {
        TaskProgress progress;
        return PhotoReader::read({ realTool() }, { folder.url(name) }, progress, {}).records.constFirst();
    }
    void begin(const QList<ImageRecord>& records)
    {
        photos.open(OpenPhotos::of(records, RecordSortOrder::nameAsc, true));
        refresh.begin({ QUrl::fromLocalFile(folder.path()) }, false);
    }
    QString title(const QString& name) const { return photos.record(folder.url(name))->values.value(u"title"_s); }

    PhotoFolder folder;
    Kind kind;
    Announcer announcer{ [](Change) {} };
    RunningTasks tasks{ announcer, 10s };
    PhotoList photos{ announcer, RecordSortOrder::nameAsc };
    FolderRefresh refresh{ announcer, tasks, photos, MetadataService{ realTool() } };
};

}  // namespace

class tst_FolderRefresh : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void silentChange_data();
    void silentChange();
    void otherFilesShow();
    void hiddenWindow();
    void awayAndBack_data();
    void awayAndBack();
    void oneLookAtATime();
    void hangingLook();
    void saveDuringALook();
    void readsDuringALook();
    void changesOfUnreadPhotos_data();
    void changesOfUnreadPhotos();
    void unreadableOnce();
    void subfoldersComeAndGo();
    void moreFoldersThanAreWatched();
    void programMount();
};

void tst_FolderRefresh::silentChange_data()
{
    QTest::addColumn<bool>("tells");
    QTest::addRow("the system would tell") << true;
    QTest::addRow("nobody tells") << false;
}

void tst_FolderRefresh::silentChange()
{
    QFETCH(bool, tells);
    LinkedFolder f(tells);
    QVERIFY(f.isOpen);
    QTRY_COMPARE(f->watching(), (Watching{ tells ? Watching::How::told : Watching::How::looking, 1, 1 }));
    QCOMPARE(f.title(u"b.jpg"_s), u"b.jpg"_s);
    const SilentWrite write(f.folder.path(u"one/b.jpg"_s), ">b.jpg<", ">B.JPG<");
    if (tells) {
        QTest::qWait(1000);
        QCOMPARE(f.title(u"b.jpg"_s), u"b.jpg"_s);
        f->refresh();
    }
    QTRY_COMPARE_WITH_TIMEOUT(f.title(u"b.jpg"_s), u"B.JPG"_s, 30000);
}

void tst_FolderRefresh::otherFilesShow()
{
    LinkedFolder f(false);
    QVERIFY(f.isOpen);
    f->setSingle(u"headline"_s, u"typed"_s);
    f.addFolder(u"two"_s, { u"a.jpg"_s, u"c.jpg"_s });
    f.lead(f.folder.path(u"two"_s));
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), QStringList({ u"a.jpg"_s, u"c.jpg"_s }), 30000);
    QCOMPARE(f->unsavedCount(), 1);
    QCOMPARE(f->draftValues().value(u"headline"_s), u"typed"_s);
}

void tst_FolderRefresh::hiddenWindow()
{
    LinkedFolder f(false);
    QVERIFY(f.isOpen && f.kind.waitForLooks(2));
    f->setOnScreen(false);
    QTest::qWait(500);
    const int looks = f.kind.looks();
    QTest::qWait(1000);
    QCOMPARE(f.kind.looks(), looks);
    f->setOnScreen(true);
    QVERIFY(f.kind.waitForLooks(2));
}

void tst_FolderRefresh::awayAndBack_data()
{
    QTest::addColumn<bool>("tells");
    QTest::addColumn<bool>("isOnAnotherDisk");
    QTest::addRow("the disk goes, nobody tells") << false << true;
    QTest::addRow("the disk goes, and nobody tells that it is back") << true << true;
    QTest::addRow("all files go") << false << false;
}

void tst_FolderRefresh::awayAndBack()
{
    QFETCH(bool, tells);
    QFETCH(bool, isOnAnotherDisk);
    LinkedFolder f(tells);
    QVERIFY(f.isOpen);
    f->setSingle(u"title"_s, u"typed"_s);
    const QTemporaryDir empty(isOnAnotherDisk ? u"/dev/shm/q"_s : f.folder.path(u"empty"_s));
    struct stat here { };
    struct stat there { };
    QCOMPARE(stat(qPrintable(f.folder.path()), &here) + stat(qPrintable(empty.path()), &there), 0);
    if (isOnAnotherDisk && here.st_dev == there.st_dev)
        QSKIP("There is one disk alone on this machine.");
    f.lead(empty.path());
    f->refresh();
    if (!isOnAnotherDisk) {
        QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 0, 30000);
        QCOMPARE(f->leftEdits().size(), 1);
        return;
    }
    QVERIFY(f.kind.waitForLooks(10));
    QCOMPARE(f->records().size(), 2);
    QCOMPARE(f->unsavedCount(), 1);
    f.addFolder(u"two"_s, { u"a.jpg"_s, u"c.jpg"_s });
    f.lead(f.folder.path(u"two"_s));
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), QStringList({ u"a.jpg"_s, u"c.jpg"_s }), 30000);
    QCOMPARE(f->draftValues().value(u"title"_s), u"typed"_s);
}

void tst_FolderRefresh::oneLookAtATime()
{
    LinkedFolder f(true);
    QVERIFY(f.isOpen);
    QTest::qWait(500);
    const int before = f.kind.looks();
    f.kind.hold(u"link"_s);
    for (int i = 0; i < 5; ++i) {
        f->refresh();
        f.folder.add(u"one/new%1.jpg"_s.arg(i));
        QTest::qWait(200);
    }
    QCOMPARE(f.kind.looks(), before + 1);
    f.kind.release();
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 7, 30000);
}

// A disk that does not answer any more: the program goes on, with another folder, and ends.
void tst_FolderRefresh::hangingLook()
{
    LinkedFolder f(false);
    QVERIFY(f.isOpen);
    f.kind.hold(u"link"_s);
    QVERIFY(f.kind.waitUntilHeld());
    f.addFolder(u"other"_s, { u"x.jpg"_s });
    QVERIFY(f.load({ f.url(u"other"_s) }));
    f.folder.add(u"other/y.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f.visible(), QStringList({ u"x.jpg"_s, u"y.jpg"_s }), 30000);
    f.model.reset();
    QVERIFY(f.kind.waitUntilHeld());
}

void tst_FolderRefresh::saveDuringALook()
{
    LinkedFolder f(true);
    QVERIFY(f.isOpen);
    QTest::qWait(500);
    f->preferences().saveDontAsk.set(true);
    f->setSingle(u"title"_s, u"typed"_s);
    f.kind.hold(u"link"_s);
    f->refresh();
    QVERIFY(f.kind.waitUntilHeld());
    f->requestSave();
    QTRY_COMPARE_WITH_TIMEOUT(f->isSaving(), false, 30000);
    QCOMPARE(f->unsavedCount(), 0);
    bool isTold = false;
    f->onImagesModified = [&isTold](const QList<QUrl>&) { isTold = true; };
    const Announcements announced(*f.model);
    f.kind.release();
    QTest::qWait(1500);
    QCOMPARE(announced.counts(), (QMap<QString, int>()));
    QVERIFY(!isTold);
    QCOMPARE(f.title(u"a.jpg"_s), u"typed"_s);
}

// While photos are read they arrive all the time: a look that takes long counts all the same.
void tst_FolderRefresh::readsDuringALook()
{
    BareRefresh f(true);
    f.folder.add(u"a.jpg"_s);
    f.folder.add(u"b.jpg"_s);
    f.begin({ f.unread(u"a.jpg"_s), f.unread(u"b.jpg"_s) });
    QTRY_COMPARE(f.kind.looks(), 1);
    QTest::qWait(500);
    f.kind.hold(f.folder.path());
    f.folder.add(u"c.jpg"_s);
    QVERIFY(f.kind.waitUntilHeld());
    f.photos.replace({ f.read(u"a.jpg"_s) });
    f.kind.release();
    QTRY_VERIFY_WITH_TIMEOUT(f.photos.contains(f.folder.url(u"c.jpg"_s)), 30000);
    QCOMPARE(f.kind.looks(), 2);
}

void tst_FolderRefresh::changesOfUnreadPhotos_data()
{
    QTest::addColumn<bool>("isReadInTime");
    QTest::addRow("the read that comes sees the change") << true;
    QTest::addRow("the read was before the change") << false;
}

// Whoever reads the photo for the first time will see the change, or not; then it is read again.
void tst_FolderRefresh::changesOfUnreadPhotos()
{
    QFETCH(bool, isReadInTime);
    BareRefresh f(true);
    f.folder.add(u"a.jpg"_s);
    const ImageRecord early = f.read(u"a.jpg"_s);
    f.begin({ f.unread(u"a.jpg"_s) });
    QTRY_COMPARE(f.kind.looks(), 1);
    const QSignalSpy reread(&f.refresh, &FolderRefresh::reread);
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=outside"_s, f.folder.path(u"a.jpg"_s) });
    f.refresh.refresh();
    QVERIFY(f.kind.waitForLooks(3));
    QVERIFY(f.photos.records().constFirst().isUnread);
    QCOMPARE(reread.count(), 0);
    f.photos.replace({ isReadInTime ? f.read(u"a.jpg"_s) : early });
    QTRY_COMPARE_WITH_TIMEOUT(f.title(u"a.jpg"_s), u"outside"_s, 30000);
    QTest::qWait(500);
    QCOMPARE(reread.count(), isReadInTime ? 0 : 1);
    // Nothing is owed any more.
    const int looks = f.kind.looks();
    QTest::qWait(500);
    QCOMPARE(f.kind.looks(), looks);
}

// At each look the file is there that the tool cannot read: one try is enough, until it is another file.
void tst_FolderRefresh::unreadableOnce()
{
    LinkedFolder f(false);
    QVERIFY(f.isOpen);
    f.folder.add(u"one/broken.jpg"_s, QByteArray(64, '\1'));
    f.shut("broken.jpg");
    QVERIFY(f.waitForRun());
    f.release();
    QVERIFY(f.kind.waitForLooks(2));
    // A run would stand at the gate, and no look would follow.
    f.shut("broken.jpg");
    QVERIFY(f.kind.waitForLooks(5));
    f.release();
    QCOMPARE(f->records().size(), 2);
    f.folder.add(u"one/broken.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 3, 30000);
}

void tst_FolderRefresh::subfoldersComeAndGo()
{
    ModelFixture f;
    QVERIFY(QDir(f.folder.path()).mkdir(u"old"_s));
    f.addTitled({ u"a.jpg"_s, u"old/b.jpg"_s });
    f->load({ f.folderURL() }, true);
    QVERIFY(f.waitUntilIdle());
    QTRY_COMPARE(f->watching(), (Watching{ Watching::How::told, 2, 2 }));
    QVERIFY(QDir(f.folder.path()).mkpath(u"new/deep"_s) && QDir(f.folder.path()).mkpath(u"old/.hidden"_s));
    f.folder.add(u"new/deep/c.jpg"_s);
    f.folder.add(u"old/.hidden/no.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 3, 30000);
    QCOMPARE(f->watching(), (Watching{ Watching::How::told, 4, 4 }));
    // The folder that came is watched, too.
    f.folder.add(u"new/deep/d.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 4, 30000);
    QVERIFY(QDir(f.folder.path(u"old"_s)).removeRecursively());
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 3, 30000);
    QVERIFY(QDir(f.folder.path()).rename(u"new/deep"_s, u"moved"_s));
    QTRY_VERIFY_WITH_TIMEOUT(f->record(f.url(u"moved/d.jpg"_s)), 30000);
    QCOMPARE(f->records().size(), 3);
    f.folder.add(u"moved/e.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 4, 30000);
}

void tst_FolderRefresh::moreFoldersThanAreWatched()
{
    ModelFixture f;
    f.addTitled({ u"a.jpg"_s });
    for (int i = 1; i <= 1001; ++i)
        QVERIFY(QDir(f.folder.path()).mkdir(QString::number(i)));
    f->load({ f.folderURL() }, true);
    QVERIFY(f.waitUntilIdle());
    QTRY_COMPARE(f->watching(), (Watching{ Watching::How::partly, 1002, 1000 }));
    f.folder.add(u"1001/b.jpg"_s);
    QTest::qWait(1500);
    QCOMPARE(f->records().size(), 1);
    f->refresh();
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 2, 30000);
    QVERIFY(QDir(f.folder.path()).rmdir(u"7"_s) && QDir(f.folder.path()).rmdir(u"8"_s));
    QTRY_COMPARE_WITH_TIMEOUT(f->watching(), (Watching{ Watching::How::told, 1000, 1000 }), 30000);
    f.folder.add(u"1001/c.jpg"_s);
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 3, 30000);
}

void tst_FolderRefresh::programMount()
{
    ModelFixture f;
    f.services.lookInterval = 200ms;
    f.relaunch();
    ProgramMount program(f.folder);
    QVERIFY(QDir(f.folder.path()).mkdir(u"behind"_s) && QDir(f.folder.path()).mkdir(u"mount"_s));
    f.addTitled({ u"behind/a.jpg"_s, u"behind/b.jpg"_s });
    if (const auto problem = program.mount())
        QSKIP(qPrintable(*problem));
    QVERIFY(f.load({ f.url(u"mount"_s) }));
    QTRY_COMPARE(f->watching(), (Watching{ Watching::How::looking, 1, 1 }));
    // Another program, behind the mount.
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Title=outside"_s, f.folder.path(u"behind/b.jpg"_s) });
    QTRY_COMPARE_WITH_TIMEOUT(f->record(f.url(u"mount/b.jpg"_s))->values.value(u"title"_s), u"outside"_s, 30000);
    // It does not answer: looks wait, the model does not.
    program.stop(true);
    f.folder.add(u"behind/c.jpg"_s);
    QTest::qWait(1000);
    f->setSingle(u"title"_s, u"typed"_s);
    f->refresh();
    QCOMPARE(f->unsavedCount(), 1);
    QCOMPARE(f->records().size(), 2);
    program.stop(false);
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 3, 30000);
    // It ends, and an empty folder is left; then it is there again.
    program.unmount();
    QTest::qWait(1500);
    QCOMPARE(f->records().size(), 3);
    QVERIFY(QFile::remove(f.folder.path(u"behind/c.jpg"_s)));
    QCOMPARE(program.mount(), std::nullopt);
    QTRY_COMPARE_WITH_TIMEOUT(f->records().size(), 2, 30000);
    QCOMPARE(f->draftValues().value(u"title"_s), u"typed"_s);
}

QTEST_GUILESS_MAIN(tst_FolderRefresh)
#include "tst_FolderRefresh.moc"
