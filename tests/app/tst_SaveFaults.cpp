// Saves that are struck at random moments: the tool is killed, the folder goes away, the disk is full. Whatever
// happens, each photo is the old one or a whole new one, and what was typed for an unsaved one is still there, with a
// banner. QUORBEL_SLOW_TESTS=1 plays hundreds of rounds; QUORBEL_FAULT_SEED repeats those of an earlier run.
#include "tests/app/ModelFixture.h"

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

#include <csignal>
#include <sys/mount.h>
#include <unistd.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

constexpr int longestSave = 500;  // ms; a bit more than a save usually takes

/// Processes that this one has started and that run.
QList<pid_t> runningTools()
{
    QList<pid_t> found;
    const QStringList threads = QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& thread : threads) {
        const QByteArray list = readFile(u"/proc/self/task/%1/children"_s.arg(thread));
        for (const QByteArray& pid : list.split(' '))
            if (!pid.trimmed().isEmpty())
                found.append(pid.trimmed().toInt());
    }
    return found;
}

struct Photo {
    QString path{};
    QByteArray bytes{};
    QImage pixels{};
};

/// A batch of photos with metadata of their own, open and selected, with edits.
struct Batch : ModelFixture {
    explicit Batch(const QString& newTitle)
        : title(newTitle)
    {
        addTitled(names);
        remember(folder.path());
        model->setConfirmMassEdit(false);
        model->setBackupOriginals(false);
    }
    void remember(const QString& directory)
    {
        photos.clear();
        for (const QString& name : names) {
            const QString path = QDir(directory).filePath(name);
            photos.append({ path, readFile(path), QImage(path) });
        }
    }
    void edit() const
    {
        model->selectAllPhotos();
        model->setBatch(u"title"_s, title);
        model->addBatchListItem(u"keywords"_s, u"sky"_s);
    }

    const QStringList names{ u"a.jpg"_s, u"b.png"_s, u"c.jpg"_s, u"d.png"_s, u"e.jpg"_s };
    QString title;
    QList<Photo> photos;
};

/// Paths of the photos that do not hold the new title. Fails when one is damaged.
QStringList unsavedPhotos(const Batch& batch)
{
    QStringList unsaved;
    for (const Photo& photo : batch.photos) {
        const QByteArray now = readFile(photo.path);
        if (now == photo.bytes) {
            unsaved.append(photo.path);
            continue;
        }
        const QJsonObject tags = exiftoolValues(QUrl::fromLocalFile(photo.path));
        if (tags.contains(u"ExifTool:Error"_s) || tags.contains(u"ExifTool:Warning"_s)
            || QImage(photo.path) != photo.pixels)
            QTest::qFail(qPrintable(u"damaged: "_s + photo.path), __FILE__, __LINE__);
        if (tags.value(u"XMP:Title"_s).toString() != batch.title)
            unsaved.append(photo.path);
    }
    return unsaved;
}

/// Photos without the new values are still selected with them, and the banner speaks of it.
void verifyNothingLost(const Batch& batch)
{
    const QStringList unsaved = unsavedPhotos(batch);
    if (QTest::currentTestFailed())
        return;
    QVERIFY(!batch->isSaving());
    if (unsaved.isEmpty())
        return;
    QVERIFY2(batch->errorMessage().has_value(), "unsaved, and nobody says so");
    for (const QString& path : unsaved)
        QVERIFY2(batch->selection().contains(QUrl::fromLocalFile(path)), qPrintable(path));
    const QString typed =
        batch->isBatch() ? batch->batchValues().value(u"title"_s) : batch->draftValues().value(u"title"_s);
    QCOMPARE(typed, batch.title);
    const QStringList items =
        batch->isBatch() ? batch->batchLists().value(u"keywords"_s) : batch->draftLists().value(u"keywords"_s);
    QVERIFY(items.contains(u"sky"_s));
    QVERIFY(batch->unsavedCount() > 0);
}

}  // namespace

class TestSaveFaults : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void toolIsKilled();
    void folderGoesAway();
    void diskIsFull();

private:
    int rounds(int few) const { return qEnvironmentVariableIsSet("QUORBEL_SLOW_TESTS") ? few * 20 : few; }
    /// Text that needs the IPTC to be re-encoded by a run of its own, in every other round.
    static QString titleOf(int round) { return (round % 2 ? u"東京 %1"_s : u"Title %1"_s).arg(round); }

    QRandomGenerator m_random;
};

void TestSaveFaults::initTestCase()
{
    bool isGiven = false;
    quint32 seed = qEnvironmentVariable("QUORBEL_FAULT_SEED").toUInt(&isGiven);
    if (!isGiven)
        seed = QRandomGenerator::global()->generate();
    m_random.seed(seed);
    qInfo("QUORBEL_FAULT_SEED=%u", seed);
}

void TestSaveFaults::toolIsKilled()
{
    int kills = 0;
    for (int round = 0; round < rounds(10); ++round) {
        Batch batch(titleOf(round));
        QVERIFY(batch.open());
        batch.edit();
        batch->requestSave();
        QTest::qWait(m_random.bounded(longestSave));
        const QList<pid_t> running = runningTools();
        for (const pid_t pid : running)
            kills += kill(pid, SIGKILL) == 0 ? 1 : 0;
        QVERIFY(batch.waitUntilIdle());
        verifyNothingLost(batch);
        if (QTest::currentTestFailed())
            return;
    }
    QVERIFY2(kills > 0, "no round met a running tool");
}

void TestSaveFaults::folderGoesAway()
{
    for (int round = 0; round < rounds(4); ++round) {
        Batch batch(titleOf(round));
        // The photos' own folder: the one above must outlive it.
        const QString folder = batch.folder.path(u"trip"_s);
        QVERIFY(QDir().mkpath(folder));
        for (const QString& name : batch.names)
            QVERIFY(QFile::rename(batch.folder.path(name), folder + u'/' + name));
        batch.remember(folder);
        QList<QUrl> urls;
        for (const Photo& photo : std::as_const(batch.photos))
            urls.append(QUrl::fromLocalFile(photo.path));
        // Opened one by one, so that the folder is not watched: what a watched folder loses leaves the screen.
        QVERIFY(batch.load(urls));
        batch.edit();
        batch->requestSave();
        QTest::qWait(m_random.bounded(longestSave));
        QVERIFY(QDir().rename(folder, folder + u"-away"_s));
        QVERIFY(batch.waitUntilIdle());
        QVERIFY(QDir().rename(folder + u"-away"_s, folder));
        verifyNothingLost(batch);
        if (QTest::currentTestFailed())
            return;
    }
}

void TestSaveFaults::diskIsFull()
{
    for (int round = 0; round < rounds(3); ++round) {
        Batch batch(titleOf(round));
        const QString disk = batch.folder.path(u"disk"_s);
        const QByteArray mountPoint = disk.toLocal8Bit();
        QVERIFY(QDir().mkpath(disk));
        if (geteuid() != 0 || mount("tmpfs", mountPoint.constData(), "tmpfs", 0, "size=256k") != 0)
            QSKIP("mounting a small disk needs root");
        const auto unmount = qScopeGuard([&mountPoint] { umount2(mountPoint.constData(), MNT_DETACH); });
        for (const QString& name : batch.names)
            writeFile(disk + u'/' + name, readFile(batch.folder.path(name)));
        batch.remember(disk);
        QVERIFY(batch.load({ QUrl::fromLocalFile(disk) }));
        batch.edit();
        // Room for some of the photos.
        QFile filler(disk + u"/filler"_s);
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(4096, 'x')) == 4096) { }
        QVERIFY(filler.resize(filler.size() - 4096 * m_random.bounded(8)));
        batch->setBatch(u"description"_s, QString(5000, u'x'));
        batch->requestSave();
        QVERIFY(batch.waitUntilIdle());
        verifyNothingLost(batch);
        if (QTest::currentTestFailed())
            return;
    }
}

QTEST_GUILESS_MAIN(TestSaveFaults)
#include "tst_SaveFaults.moc"
