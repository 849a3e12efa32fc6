// The cache of records when its file is harmed, gone, full, of an earlier version, out of reach or shared: never
// anything else than a read would give, and nobody else may read it.
#include "tests/app/model/library/cache/CachedPhotos.h"

#include <QDirIterator>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>

#include <sys/stat.h>
#include <thread>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

void flip(const QString& path, qsizetype at, char bits)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(at));
    char byte = 0;
    QVERIFY(file.getChar(&byte));
    QVERIFY(file.seek(at));
    QVERIFY(file.putChar(char(byte ^ bits)));
}

int modeOf(const QString& path)
{
    struct stat status { };
    return stat(localName(path).constData(), &status) == 0 ? int(status.st_mode & 0777) : -1;
}

}  // namespace

class tst_HarmedCache : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void damage_data();
    void damage();
    void anyByte();
    void removedWhileOpen();
    void nowhereToWrite_data();
    void nowhereToWrite();
    void bounds_data();
    void bounds();
    void twoAtOnce();
    void forTheOwnerAlone();
    void cacheOfAnEarlierVersion();
};

void tst_HarmedCache::damage_data()
{
    QTest::addColumn<std::function<void(const QString&)>>("harm");
    const auto row = [](const char* name, const std::function<void(const QString&)>& harm) {
        QTest::newRow(name) << harm;
    };
    row("half of it", [](const QString& path) { QVERIFY(QFile::resize(path, QFileInfo(path).size() / 2)); });
    row("its first page", [](const QString& path) { QVERIFY(QFile::resize(path, 4096)); });
    row("nothing of it", [](const QString& path) { QVERIFY(QFile::resize(path, 0)); });
    row("garbage", [](const QString& path) { writeFile(path, QByteArray(50'000, 'x')); });
    row("garbage behind its head",
        [](const QString& path) { writeFile(path, readFile(path).first(100) + QByteArray(50'000, 'x')); });
    row("another format", [](const QString& path) { flip(path, 63, 0x70); });  // its version, as the file has it
    row("no tables", [](const QString& path) {
        QByteArray bytes = readFile(path);
        bytes.replace("CREATE TABLE record", "CREATE TABLE recard");
        writeFile(path, bytes);
    });
    row("a folder in its place", [](const QString& path) {
        QVERIFY(QFile::remove(path));
        QVERIFY(QDir().mkdir(path));
    });
    row("gone", [](const QString& path) { QVERIFY(QFile::remove(path)); });
    row("gone with its folder", [](const QString& path) { QVERIFY(QDir(QFileInfo(path).path()).removeRecursively()); });
}

// Found is nothing wrong, then or later; and after the next reads it is whole again. Without a word.
void tst_HarmedCache::damage()
{
    QFETCH(std::function<void(const QString&)>, harm);
    const Setting setting(300);
    setting.put();
    const Records records = setting.records();
    QCOMPARE(setting.found(), records);
    harm(setting.file());
    const Records found = setting.found();
    for (const ImageRecord& record : found)
        QCOMPARE(record, records.value(record.url));
    setting.put();
    QCOMPARE(setting.found(), records);
}

// One byte somewhere in the file.
void tst_HarmedCache::anyByte()
{
    const Setting setting(40);
    setting.put();
    const Records records = setting.records();
    const QByteArray good = readFile(setting.file());
    QRandomGenerator random(1);
    int harmed = 0;
    for (int round = 0; round < 300; ++round) {
        flip(setting.file(), random.bounded(good.size()), char(1 << random.bounded(8)));
        const Records found = setting.found();
        for (const ImageRecord& record : found)
            QCOMPARE(record, records.value(record.url));
        harmed += found.size() < records.size() ? 1 : 0;
        if (round % 50 == 0) {
            setting.put();
            QVERIFY(setting.found().size() <= records.size());
        }
        QDir(setting.beside.path(u"records"_s)).removeRecursively();
        QDir().mkpath(setting.beside.path(u"records"_s));
        writeFile(setting.file(), good);
    }
    QVERIFY(harmed > 10);
}

void tst_HarmedCache::removedWhileOpen()
{
    const Setting setting(3);
    RecordCache one(setting.options(), setting.tool.runner());
    RecordCache other(setting.options(), setting.tool.runner());
    setting.put(one);
    setting.put(other);
    QVERIFY(QDir(setting.beside.path(u"records"_s)).removeRecursively());
    QCOMPARE(one.find(looks(setting.urls)), Records());
    setting.put(other);
    QCOMPARE(one.find(looks(setting.urls)), setting.records());
    setting.put(one);
    QCOMPARE(other.find(looks(setting.urls)), setting.records());
    QCOMPARE(setting.found(), setting.records());
}

void tst_HarmedCache::nowhereToWrite_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("none") << QString();
    QTest::newRow("below a file") << u"file/records"_s;
    QTest::newRow("a system's") << u"/proc/self/records"_s;
}

void tst_HarmedCache::nowhereToWrite()
{
    QFETCH(QString, folder);
    const Setting setting(2);
    writeFile(setting.beside.path(u"file"_s), "x");
    if (!folder.isEmpty() && !folder.startsWith(u'/'))
        folder = setting.beside.path(folder);
    RecordCache cache({ .folder = folder }, setting.tool.runner());
    setting.put(cache);
    QCOMPARE(cache.find(looks(setting.urls)), Records());
    QCOMPARE(setting.beside.names(), QStringList{ u"file"_s });
}

void tst_HarmedCache::bounds_data()
{
    QTest::addColumn<qint64>("mostPhotos");
    QTest::addColumn<qint64>("mostBytes");
    QTest::newRow("photos") << qint64(200) << (qint64(1) << 30);
    QTest::newRow("bytes") << (qint64(1) << 30) << qint64(120'000);
}

// What was asked for last stays.
void tst_HarmedCache::bounds()
{
    QFETCH(qint64, mostPhotos);
    QFETCH(qint64, mostBytes);
    Setting setting(100);
    auto options = setting.options();
    options.mostPhotos = mostPhotos;
    options.mostBytes = mostBytes;
    options.useStep = 0;
    RecordCache cache(options, setting.tool.runner());
    setting.put(cache);
    const QList<QUrl> liked = setting.urls.first(20);
    for (int round = 1; round < 12; ++round) {
        for (int i = 0; i < 100; ++i)
            setting.urls[i] = setting.photos.add(u"%1-%2.jpg"_s.arg(round).arg(i));
        setting.put(cache);
        QTest::qWait(3);  // another time of use
        QCOMPARE(cache.find(looks(liked)).size(), liked.size());
        cache.waitUntilWritten();
    }
    QCOMPARE(cache.find(looks(setting.urls)).size(), setting.urls.size());
    QList<QUrl> all;
    const QStringList names = setting.photos.names();
    for (const QString& name : names)
        all.append(setting.photos.url(name));
    const qsizetype kept = cache.find(looks(all)).size();
    QVERIFY2(kept >= liked.size() + setting.urls.size() && kept < all.size() / 2, qPrintable(QString::number(kept)));
    if (mostPhotos < all.size())
        QVERIFY2(kept <= mostPhotos, qPrintable(QString::number(kept)));
    else
        QVERIFY(QFileInfo(setting.file()).size() <= 2 * mostBytes);
}

// Two programs: both write and both find, and nothing is lost.
void tst_HarmedCache::twoAtOnce()
{
    const Setting setting(200);
    const Records records = setting.records();
    const auto work = [&setting, &records](int first) {
        RecordCache cache(setting.options(), setting.tool.runner());
        for (int i = first; i < setting.urls.size(); i += 2) {
            const QList<PhotoFile> files = looks({ setting.urls.at(i) });
            cache.put(cache.begin(files), { { files.constFirst(), records.value(setting.urls.at(i)) } });
            if (i % 10 < 2)
                cache.waitUntilWritten();
            for (const ImageRecord& record : cache.find(looks(setting.urls)))
                if (record != records.value(record.url))
                    qFatal("another record than was put");
        }
    };
    std::jthread other(work, 0);
    work(1);
    other.join();
    QCOMPARE(setting.found(), records);
}

void tst_HarmedCache::forTheOwnerAlone()
{
    const Setting setting(2);
    const mode_t usual = umask(0);
    const auto restore = qScopeGuard([usual] { umask(usual); });
    RecordCache cache(setting.options(), setting.tool.runner());
    setting.put(cache);
    QCOMPARE(modeOf(setting.beside.path(u"records"_s)), 0700);
    int files = 0;
    for (QDirIterator it(setting.beside.path(u"records"_s), QDir::Files); it.hasNext(); ++files)
        QCOMPARE(modeOf(it.next()), 0600);
    QVERIFY(files > 0);
}

// What is known in it stays, and there is room for more.
void tst_HarmedCache::cacheOfAnEarlierVersion()
{
    FakeTool tool;
    tool.answerAlways({ .standardOutput = "12.57\n" });
    const PhotoFolder beside;
    const RecordCache::Options options{ .folder = beside.path(u"records"_s) };
    const PhotoFolder photos;
    const PhotoFile file = *PhotoFile::at(photos.add(u"a.jpg"_s)).file;
    ImageRecord record = file.unreadRecord();
    record.isUnread = false;
    const PhotoDetails details{ .url = file.url,
        .texts = { { u"title@de"_s, u"Ä"_s } },
        .paths = { u"A|B"_s },
        .disagreements = { { u"title"_s, { { u"X"_s, { u"1"_s, u"2"_s }, true }, { u"Y"_s, {}, false, true } } } },
        .hasCredentials = true };
    const auto keep = [&](bool withDetails) {
        RecordCache cache(options, tool.runner());
        cache.put(cache.begin({ file }), { { file, record } });
        if (withDetails)
            cache.putDetails(cache.begin({ file }), { { file, details } });
        cache.waitUntilWritten();
    };
    const auto found = [&] {
        RecordCache cache(options, tool.runner());
        return std::pair(cache.find({ file }).size(), cache.findDetails({ file }).value(file.url));
    };
    keep(false);
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"earlier"_s);
        database.setDatabaseName(beside.path(u"records/records.db"_s));
        QVERIFY(database.open());
        QVERIFY(QSqlQuery(database).exec(u"DROP TABLE details"_s));
    }
    QSqlDatabase::removeDatabase(u"earlier"_s);
    QCOMPARE(found(), std::pair(qsizetype(1), PhotoDetails()));
    keep(true);
    QCOMPARE(found(), std::pair(qsizetype(1), details));
}

QTEST_GUILESS_MAIN(tst_HarmedCache)
#include "tst_HarmedCache.moc"
