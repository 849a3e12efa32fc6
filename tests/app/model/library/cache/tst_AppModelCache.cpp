// Folders that are opened again: no photo is read twice, and none is missed that changed. With the real tool, counted.
#include "tests/app/model/ModelFixture.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// The real tool, and what it was asked for.
class CountedTool {
public:
    CountedTool()
    {
        QByteArray script = R"perl(#!/usr/bin/perl
my ($dir) = $0 =~ m{^(.*)/};
open my $f, '>>', "$dir/runs";
print $f join("\t", @ARGV), "\n";
close $f;
exec TOOL, @ARGV;
)perl";
        script.replace("TOOL", toolForPerl());
        writeFile(m_directory.filePath(u"exiftool"_s), script);
        forget();
    }
    MetadataService service() const
    {
        return { { QUrl::fromLocalFile(m_directory.filePath(u"exiftool"_s)), realTool().perlURL } };
    }
    void forget() const { writeFile(m_directory.filePath(u"runs"_s), {}); }
    int runs() const { return int(readFile(m_directory.filePath(u"runs"_s)).count('\n')); }
    // Names of the photos in those runs, each once, sorted.
    QStringList photos() const
    {
        QStringList names;
        const QString text = QString::fromUtf8(readFile(m_directory.filePath(u"runs"_s)));
        for (const QString& argument : text.split(QRegularExpression(u"[\\t\\n]"_s)))
            if (argument.startsWith(u'/') && argument.endsWith(u".jpg"_s))
                names.append(QFileInfo(argument).fileName());
        names.sort();
        names.removeDuplicates();
        return names;
    }

private:
    QTemporaryDir m_directory;
};

// A program over a folder of photos that were all read once, started anew.
struct KnownFolder {
    CountedTool tool;
    QTemporaryDir cache;
    ModelFixture fixture{ tool.service() };
    QList<ImageRecord> read;

    explicit KnownFolder(const QStringList& names)
    {
        fixture.services.recordCachePath = cache.filePath(u"records"_s);
        fixture.relaunch();
        fixture.addTitled(names);
        QVERIFY(fixture.open());
        read = fixture->records();
        startAnew();
    }
    void startAnew()
    {
        fixture.relaunch();
        tool.forget();
    }
    void openAgain() { QVERIFY(fixture.open()); }
};

}  // namespace

class tst_AppModelCache : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void nothingChanged();
    void oneChanged();
    void inPlaceOfAnother();
    void savedPhotos();
    void readAgain();
    void withoutTheCache();
    void furtherPhoto();
};

void tst_AppModelCache::nothingChanged()
{
    KnownFolder known(jpgs(u"abcde"_s));
    known.openAgain();
    QCOMPARE(known.fixture->records(), known.read);
    QCOMPARE(known.fixture->records().constFirst().values.value(u"title"_s), u"a.jpg"_s);
    QCOMPARE(known.fixture->unreadSelected(), 0);
    known.fixture->refresh();
    QVERIFY(known.fixture.waitUntilIdle());
    // The same folder in the same program.
    known.openAgain();
    QCOMPARE(known.fixture->records(), known.read);
    QCOMPARE(known.tool.runs(), 0);
}

void tst_AppModelCache::oneChanged()
{
    KnownFolder known(jpgs(u"abcde"_s));
    exiftool(
        { u"-overwrite_original"_s, u"-P"_s, u"-XMP-dc:Title=x.jpg"_s, known.fixture.url(u"c.jpg"_s).toLocalFile() });
    known.openAgain();
    QCOMPARE(known.tool.photos(), jpgs(u"c"_s));
    QCOMPARE(known.fixture->records().at(2).values.value(u"title"_s), u"x.jpg"_s);
    QList<ImageRecord> others = known.fixture->records();
    others[2] = known.read.at(2);
    QCOMPARE(others, known.read);
    known.startAnew();
    known.openAgain();
    QCOMPARE(known.tool.runs(), 0);
}

// What is open goes at once when the other folder is known.
void tst_AppModelCache::inPlaceOfAnother()
{
    KnownFolder known(jpgs(u"abc"_s));
    const PhotoFolder other;
    other.add(u"z.jpg"_s);
    QVERIFY(known.fixture.load({ QUrl::fromLocalFile(other.path()) }));
    QCOMPARE(known.fixture.visible(), jpgs(u"z"_s));
    known.tool.forget();
    known.openAgain();
    QCOMPARE(known.fixture->records(), known.read);
    QCOMPARE(known.tool.runs(), 0);
    QCOMPARE(known.fixture->errorMessage(), std::nullopt);
}

void tst_AppModelCache::savedPhotos()
{
    KnownFolder known(jpgs(u"ab"_s));
    known.openAgain();
    known.fixture.click(u"a.jpg"_s);
    known.fixture->setSingle(u"title"_s, u"New"_s);
    known.fixture->requestSave();
    if (known.fixture->saveOpen())
        known.fixture->confirmSaveDialog();
    QVERIFY(known.fixture.waitUntilIdle());
    QCOMPARE(known.fixture->unsavedCount(), 0);
    const QList<ImageRecord> saved = known.fixture->records();
    known.startAnew();
    known.openAgain();
    QCOMPARE(known.tool.runs(), 0);
    QCOMPARE(known.fixture->records().at(0).values, saved.at(0).values);
    QCOMPARE(known.fixture->records().at(0).values.value(u"title"_s), u"New"_s);
}

void tst_AppModelCache::readAgain()
{
    KnownFolder known(jpgs(u"abc"_s));
    known.openAgain();
    known.fixture.click(u"b.jpg"_s);
    known.fixture->setSingle(u"title"_s, u"mine"_s);
    QCOMPARE(known.tool.runs(), 0);
    known.fixture->readAgain();
    QVERIFY(known.fixture.waitUntilIdle());
    QCOMPARE(known.tool.photos(), jpgs(u"abc"_s));
    QCOMPARE(known.fixture->records(), known.read);
    // Unsaved edits stay, and what was read is known again.
    QCOMPARE(known.fixture->draftValues().value(u"title"_s), u"mine"_s);
    known.startAnew();
    known.openAgain();
    QCOMPARE(known.tool.runs(), 0);
}

// Removed at any time: all is read as at first.
void tst_AppModelCache::withoutTheCache()
{
    KnownFolder known(jpgs(u"abc"_s));
    QVERIFY(QDir(known.cache.filePath(u"records"_s)).removeRecursively());
    known.openAgain();
    QCOMPARE(known.tool.photos(), jpgs(u"abc"_s));
    QCOMPARE(known.fixture->records(), known.read);
    known.startAnew();
    known.openAgain();
    QCOMPARE(known.tool.runs(), 0);
}

void tst_AppModelCache::furtherPhoto()
{
    KnownFolder known(jpgs(u"ab"_s));
    known.fixture.folder.add(u"new.jpg"_s);
    known.openAgain();
    QCOMPARE(known.tool.photos(), QStringList{ u"new.jpg"_s });
    QCOMPARE(known.fixture->records().size(), 3);
}

QTEST_GUILESS_MAIN(tst_AppModelCache)
#include "tst_AppModelCache.moc"
