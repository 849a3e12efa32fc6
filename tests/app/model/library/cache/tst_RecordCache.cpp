// The cache of records: what it gives is what a read would give, and whatever happens to photo or tool, never anything
// else.
#include "app/model/library/PhotoReader.h"
#include "app/model/library/cache/RecordCode.h"
#include "core/schema/FieldSchema.h"
#include "tests/app/model/library/cache/CachedPhotos.h"

#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

#include <fcntl.h>
#include <limits>
#include <sys/stat.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// The date of modification as it was, so that only the rest tells.
void setBack(const QString& path, const struct stat& before)
{
    const timespec times[2]{ before.st_atim, before.st_mtim };
    QCOMPARE(utimensat(AT_FDCWD, localName(path).constData(), times, 0), 0);
}

}  // namespace

class tst_RecordCache : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void code_data();
    void code();
    void brokenSeals();
    void equalsRead();
    void invalidations_data();
    void invalidations();
    void sidecars_data();
    void sidecars();
    void anotherReader_data();
    void anotherReader();
    void toolIsNotRun();
    void trust();
};

void tst_RecordCache::code_data()
{
    QTest::addColumn<ImageRecord>("record");
    QTest::addColumn<bool>("isKept");
    const auto with = [](auto&& change) {
        ImageRecord record;
        change(record);
        return record;
    };
    QTest::newRow("nothing") << ImageRecord() << true;
    QTest::newRow("not read") << ImageRecord{ .isUnread = true } << false;
    QTest::newRow("numbers") << with([](ImageRecord& record) {
        record.pixelWidth = std::numeric_limits<int>::max();
        record.pixelHeight = std::numeric_limits<int>::min();
        record.fileSize = std::numeric_limits<qint64>::max();
    }) << true;
    QTest::newRow("small numbers") << with([](ImageRecord& record) {
        record.pixelWidth = 0;
        record.pixelHeight = -1;
        record.fileSize = 1;
    }) << true;
    QTest::newRow("no number at all fits")
        << with([](ImageRecord& record) { record.fileSize = std::numeric_limits<qint64>::min(); }) << false;
    QTest::newRow("texts") << with([](ImageRecord& record) {
        record.fileType = u"JPEG"_s;
        record.values = { { u"title"_s, QString() }, { u"description"_s, u"東京 \U0001F600"_s + QChar(0) + u"\n"_s },
            { u"headline"_s, QString(100'000, u'ä') } };
        record.lists = { { u"keywords"_s, { u""_s, u"b"_s, u"a"_s, u"a"_s } }, { u"people"_s, {} } };
        record.custom = { { u"Mood"_s, u""_s }, { u"Ämter"_s, u"x"_s } };
        record.camera = { { u"ISO"_s, u"100"_s }, { u"Camera"_s, u""_s } };
    }) << true;
    QTest::newRow("half a character") << with([](ImageRecord& record) {
        record.values = { { u"title"_s, QString(QChar(0xD83D)) } };
    }) << false;
    QTest::newRow("a field of another schema") << with([](ImageRecord& record) {
        record.values = { { u"mood"_s, u"calm"_s } };
    }) << false;
    QTest::newRow("every field") << with([](ImageRecord& record) {
        for (const FieldSpec& field : FieldSchema::all())
            record.values.insert(field.id, field.label);
    }) << true;
}

void tst_RecordCache::code()
{
    QFETCH(ImageRecord, record);
    QFETCH(bool, isKept);
    const PhotoFile file{ .url = QUrl::fromLocalFile(u"/photos/50% of #1?.jpg"_s), .modified = -1 };
    record.url = file.url;
    record.fileName = u"50% of #1?.jpg"_s;
    record.contentModificationDate = file.modificationDate();
    const QByteArray encoded = RecordCode::encoded(record);
    QCOMPARE(!encoded.isEmpty(), isKept);
    if (isKept)
        QCOMPARE(RecordCode::opened(RecordCode::sealed(encoded, file, "reader"), file, "reader"), record);
}

// One bit wrong, or an end missing, and it is no record; nor is it one of another file or reader.
void tst_RecordCache::brokenSeals()
{
    const PhotoFile file{
        .url = QUrl::fromLocalFile(u"/photos/a.jpg"_s), .device = 1, .inode = 2, .size = 3, .modified = 4, .changed = 5
    };
    const QByteArray good = RecordCode::sealed(RecordCode::encoded(recordOf(file, u"Dawn"_s)), file, "reader");
    QVERIFY(RecordCode::opened(good, file, "reader"));
    for (qsizetype at = 0; at < good.size(); ++at) {
        QCOMPARE(RecordCode::opened(good.first(at), file, "reader"), std::nullopt);
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray bad = good;
            bad[at] = char(bad.at(at) ^ 1 << bit);
            QCOMPARE(RecordCode::opened(bad, file, "reader"), std::nullopt);
        }
    }
    QCOMPARE(RecordCode::opened(good, file, "another"), std::nullopt);
    QList<PhotoFile> others(6, file);
    others[0].url = QUrl::fromLocalFile(u"/photos/b.jpg"_s);
    ++others[1].device;
    ++others[2].inode;
    ++others[3].size;
    ++others[4].modified;
    ++others[5].changed;
    for (const PhotoFile& other : std::as_const(others))
        QCOMPARE(RecordCode::opened(good, other, "reader"), std::nullopt);
    // What was kept before anybody knew of sidecars still opens.
    QCOMPARE(RecordCode::sealed("content", file, "reader").first(16).toHex(), "9b0c6bafa6227755208e3861bf66ee3c");
}

// Real photos and broken ones: read, from the cache, and from the cache as the next start of the program opens it.
void tst_RecordCache::equalsRead()
{
    const QStringList paths = realPhotos(u"valid"_s, 100'000) + realPhotos(u"malformed"_s, 100'000);
    if (paths.isEmpty())
        QSKIP("QUORBEL_TEST_PHOTOS names no folder of photos");
    QList<QUrl> urls;
    for (const QString& path : paths)
        if (!path.endsWith(u"/xmp-deep-nesting.png"))  // keeps the tool busy for half an hour
            urls.append(QUrl::fromLocalFile(path));
    const PhotoFolder folder;
    const RecordCache::Options options{ .folder = folder.path(u"records"_s) };
    const MetadataService service{ realTool() };
    auto cache = std::make_unique<RecordCache>(options, service.runner);
    const QList<PhotoFile> files = looks(urls);
    const RecordCache::Beginning beginning = cache->begin(files);
    TaskProgress progress;
    const PhotoReader::Result read = PhotoReader::read(service, urls, progress, {});
    QVERIFY(read.records.size() > paths.size() / 2);
    QHash<QUrl, PhotoFile> before;
    for (const PhotoFile& file : files)
        before.insert(file.url, file);
    QList<RecordCache::Read> reads;
    for (const ImageRecord& record : read.records)
        reads.append({ before.value(record.url), record });
    cache->put(beginning, reads);
    cache->waitUntilWritten();
    for (int round = 0; round < 3; ++round) {
        if (round == 2)
            cache = std::make_unique<RecordCache>(options, service.runner);
        const Records found = cache->find(files);
        QCOMPARE(found.size(), read.records.size());
        for (const ImageRecord& record : read.records)
            QCOMPARE(found.value(record.url), record);
    }
}

void tst_RecordCache::invalidations_data()
{
    QTest::addColumn<std::function<void(const QString&)>>("change");
    QTest::addColumn<bool>("isFound");
    const auto row = [](const char* name, bool isFound, const std::function<void(const QString&)>& change) {
        QTest::newRow(name) << change << isFound;
    };
    row("nothing", true, [](const QString&) {});
    row("looked at", true, [](const QString& path) { readFile(path); });
    row("other content of the same size, date set back", false, [](const QString& path) {
        struct stat before { };
        QCOMPARE(stat(localName(path).constData(), &before), 0);
        QByteArray bytes = readFile(path);
        bytes[bytes.size() - 3] = char(bytes.at(bytes.size() - 3) ^ 1);
        writeFile(path, bytes);
        setBack(path, before);
    });
    row("another file of the same size and date in its place", false, [](const QString& path) {
        struct stat before { };
        QCOMPARE(stat(localName(path).constData(), &before), 0);
        writeFile(path + u".new"_s, readFile(path));
        setBack(path + u".new"_s, before);
        QCOMPARE(::rename(localName(path + u".new"_s).constData(), localName(path).constData()), 0);
    });
    row("longer", false, [](const QString& path) { writeFile(path, readFile(path) + "x"); });
    row("date", false, [](const QString& path) {
        const timespec times[2]{ { 0, UTIME_NOW }, { 1'000'000'000, 0 } };
        QCOMPARE(utimensat(AT_FDCWD, localName(path).constData(), times, 0), 0);
    });
    row("rights", false, [](const QString& path) { QCOMPARE(::chmod(localName(path).constData(), 0640), 0); });
    row("renamed and back", false, [](const QString& path) {
        QVERIFY(QFile::rename(path, path + u".away"_s));
        QVERIFY(QFile::rename(path + u".away"_s, path));
    });
    row("gone", false, [](const QString& path) { QVERIFY(QFile::remove(path)); });
    row("a link to a photo that is known", false, [](const QString& path) {
        QVERIFY(QFile::remove(path));
        QVERIFY(QFile::link(QFileInfo(path).path() + u"/1.jpg"_s, path));
    });
}

void tst_RecordCache::invalidations()
{
    QFETCH(std::function<void(const QString&)>, change);
    QFETCH(bool, isFound);
    const Setting setting(3);
    setting.put();
    Records expected = setting.records();
    change(setting.photos.path(u"0.jpg"_s));
    if (!isFound)
        expected.remove(setting.urls.constFirst());
    QCOMPARE(setting.found(), expected);
    // Once it is read again, that holds.
    setting.put();
    QCOMPARE(setting.found(), setting.records());
}

void tst_RecordCache::sidecars_data()
{
    QTest::addColumn<std::function<void(const PhotoFolder&, SidecarPolicy&)>>("change");
    QTest::addColumn<QStringList>("found");
    const auto row = [](const char* name, const QStringList& found,
                         const std::function<void(const PhotoFolder&, SidecarPolicy&)>& change) {
        QTest::newRow(name) << change << found;
    };
    const QString with = u"with.cr2"_s;
    const QString without = u"without.cr2"_s;
    row("nothing", { with, without }, [](const PhotoFolder&, SidecarPolicy&) {});
    row("another content of the same size, date set back", { without }, [](const PhotoFolder& folder, SidecarPolicy&) {
        const QString path = folder.path(u"with.xmp"_s);
        struct stat before { };
        QCOMPARE(stat(localName(path).constData(), &before), 0);
        writeFile(path, "y");
        setBack(path, before);
    });
    row("gone", { without },
        [](const PhotoFolder& folder, SidecarPolicy&) { QVERIFY(QFile::remove(folder.path(u"with.xmp"_s))); });
    row("another one goes before it", { without },
        [](const PhotoFolder& folder, SidecarPolicy&) { writeFile(folder.path(u"with.cr2.xmp"_s), "x"); });
    row("a first one", { with },
        [](const PhotoFolder& folder, SidecarPolicy&) { writeFile(folder.path(u"without.XMP"_s), "x"); });
    row("edits go into the file", { without },
        [](const PhotoFolder&, SidecarPolicy& policy) { policy.isRawBeside = false; });
}

void tst_RecordCache::sidecars()
{
    QFETCH(std::function<void(const PhotoFolder&, SidecarPolicy&)>, change);
    QFETCH(QStringList, found);
    const Setting setting;
    SidecarPolicy policy{ .isRawBeside = true };
    const QList<QUrl> urls{ setting.photos.add(u"with.cr2"_s), setting.photos.add(u"without.cr2"_s) };
    writeFile(setting.photos.path(u"with.xmp"_s), "x");
    const auto files = [&] {
        return QList{ *PhotoFile::at(urls[0], policy).file, *PhotoFile::at(urls[1], policy).file };
    };
    RecordCache cache(setting.options(), setting.tool.runner());
    QList<RecordCache::Read> reads;
    const QList<PhotoFile> before = files();
    for (const PhotoFile& file : before)
        reads.append({ file, recordOf(file, u"Dawn"_s) });
    cache.put(cache.begin(before), reads);
    cache.waitUntilWritten();
    change(setting.photos, policy);
    const Records known = cache.find(files());
    QStringList names;
    for (const ImageRecord& record : known) {
        names.append(record.fileName);
        QCOMPARE(record.sidecarName, record.fileName == u"with.cr2"_s ? u"with.xmp"_s : QString());
        QCOMPARE(record.sidecarModificationDate.has_value(), !record.sidecarName.isEmpty());
    }
    names.sort();
    QCOMPARE(names, found);
}

void tst_RecordCache::anotherReader_data()
{
    QTest::addColumn<std::function<void(Setting&)>>("change");
    QTest::addColumn<bool>("isFound");
    const auto row = [](const char* name, bool isFound, const std::function<void(Setting&)>& change) {
        QTest::newRow(name) << change << isFound;
    };
    row("the same", true, [](Setting&) {});
    row("another version", false, [](Setting& setting) {
        setting.tell("12.58");
        const QString script = setting.tool.scriptPath();
        writeFile(script, readFile(script) + "\n");
    });
    row("the same version installed anew", true, [](Setting& setting) {
        const QString script = setting.tool.scriptPath();
        writeFile(script, readFile(script) + "\n");
    });
    row("another time zone", false, [](Setting&) { qputenv("TZ", "Asia/Tokyo"); });
    row("a configuration beside the tool", false, [](Setting& setting) {
        writeFile(QFileInfo(setting.tool.scriptPath()).path() + u"/.ExifTool_config"_s, "1;\n");
    });
    row("a configuration of the user's", false, [](Setting& setting) {
        writeFile(setting.beside.path(u".ExifTool_config"_s), "1;\n");
        qputenv("EXIFTOOL_HOME", localName(setting.beside.path()));
    });
    row("no answer any more", false, [](Setting& setting) {
        setting.tool.answerAlways({ .exitCode = 1 });
        const QString script = setting.tool.scriptPath();
        writeFile(script, readFile(script) + "\n");
    });
}

void tst_RecordCache::anotherReader()
{
    QFETCH(std::function<void(Setting&)>, change);
    QFETCH(bool, isFound);
    const QByteArray zone = qgetenv("TZ");
    const auto restore = qScopeGuard([&zone] {
        qputenv("TZ", zone);
        qunsetenv("EXIFTOOL_HOME");
    });
    Setting setting(2);
    setting.put();
    const Records known = setting.records();
    change(setting);
    const Records found = setting.found();
    qputenv("TZ", zone);
    QCOMPARE(found, isFound ? known : Records());
}

// The version is asked for once, as long as the tool is the same; not at all before there is anything to give.
void tst_RecordCache::toolIsNotRun()
{
    const Setting setting(2);
    QCOMPARE(setting.found(), Records());
    QCOMPARE(setting.tool.calls().size(), 0);
    setting.put();
    QCOMPARE(setting.tool.calls(), QList<QStringList>({ { u"-ver"_s, u"-v2"_s } }));
    QCOMPARE(setting.found().size(), 2);
    setting.put();
    QCOMPARE(setting.found().size(), 2);
    QCOMPARE(setting.tool.calls().size(), 1);
    // Installed anew: asked once, though only for what is there already.
    const QString script = setting.tool.scriptPath();
    writeFile(script, readFile(script) + "\n");
    for (int i = 0; i < 2; ++i)
        QCOMPARE(setting.found().size(), 2);
    QCOMPARE(setting.tool.calls().size(), 2);
}

// What was read counts only when the file did not change, and could not have changed without another date.
void tst_RecordCache::trust()
{
    const Setting setting(5);
    RecordCache cache(setting.options(), setting.tool.runner());
    const QList<PhotoFile> files = looks(setting.urls);
    // Written this very moment: for that much is waited.
    const RecordCache::Beginning beginning = cache.begin(files);
    const Records records = setting.records();
    const auto put = [&](int photo, const RecordCache::Beginning& begun, const PhotoFile& before) {
        cache.put(begun, { { before, records.value(setting.urls.at(photo)) } });
        cache.waitUntilWritten();
    };
    put(0, beginning, files.at(0));
    // Read in the same tick of the clock.
    put(1, { files.at(1).changed, beginning.reader }, files.at(1));
    // Changed between the look and the end of the read.
    writeFile(setting.photos.path(u"2.jpg"_s), "changed");
    put(2, beginning, files.at(2));
    // By another tool, which is gone.
    put(3, { beginning.now, "another" }, files.at(3));
    // Where dates are whole seconds, two may pass.
    PhotoFile coarse = files.at(4);
    coarse.changed -= coarse.changed % 1'000'000'000;
    put(4, { coarse.changed + 1'900'000'000, beginning.reader }, coarse);
    const QUrl only = setting.urls.constFirst();
    QCOMPARE(cache.find(looks(setting.urls)), Records({ { only, records.value(only) } }));
}

QTEST_GUILESS_MAIN(tst_RecordCache)
#include "tst_RecordCache.moc"
