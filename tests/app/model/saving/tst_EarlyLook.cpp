// The look at what a save replaces begins with the first edit. Whatever happens between the two, the save replaces, and
// undo brings back, what the files held when it began.
#include "app/model/saving/EarlyLook.h"
#include "core/save/together/PhotoPlans.h"
#include "tests/app/model/JournaledPhotos.h"

#include <QRegularExpression>
#include <QTest>
#include <QThreadPool>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// The real tool. It writes down its runs, and looks at all tags wait, or fail, when they are told to.
class WatchedTool {
public:
    WatchedTool()
    {
        QByteArray script = R"perl(#!/usr/bin/perl
my ($dir) = $0 =~ m{^(.*)/};
my %has = map { $_ => 1 } @ARGV;
my $kind = $has{'-php'} ? ($has{'-IPTC:Keywords'} && $has{'-EXIF:Artist'} ? 'all' : 'some') : $has{'-json'} ? 'read' : 'write';
open my $log, '>>', "$dir/log"; syswrite $log, "$kind\n"; close $log;
if ($kind eq 'all') {
    select undef, undef, undef, 0.005 while -e "$dir/shut";
    exit 1 if -e "$dir/fails";
}
exec TOOL, @ARGV;
)perl";
        script.replace("TOOL", toolForPerl());
        writeFile(m_directory.filePath(u"exiftool"_s), script);
        forget();
    }
    ~WatchedTool() { open(); }
    Q_DISABLE_COPY_MOVE(WatchedTool)

    MetadataService service() const
    {
        return { { QUrl::fromLocalFile(m_directory.filePath(u"exiftool"_s)), realTool().perlURL } };
    }
    void shut() const { writeFile(m_directory.filePath(u"shut"_s), {}); }
    void open() const { QFile::remove(m_directory.filePath(u"shut"_s)); }
    void fail() const { writeFile(m_directory.filePath(u"fails"_s), {}); }
    void forget() const { writeFile(m_directory.filePath(u"log"_s), {}); }
    /// "all some write": the runs so far, up to the first write.
    QByteArray untilWrite() const
    {
        const QByteArray runs = readFile(m_directory.filePath(u"log"_s)).trimmed().replace('\n', ' ');
        const qsizetype end = runs.indexOf("write");
        return end < 0 ? runs : runs.first(end + 5);
    }

private:
    QTemporaryDir m_directory;
};

// Photos titled with their names, under a model that keeps a journal.
struct LookedAt : JournaledPhotos {
    explicit LookedAt(const WatchedTool& tool, const QStringList& names = { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s })
        : JournaledPhotos(tool.service(), names)
    {
        QTest::qWait(50);  // dates that are just being made are not trusted
        services.stallInterval = std::chrono::milliseconds(1000);
        beginJournal();
    }
    bool undo() { return JournaledPhotos::undo() && model->errorMessage() == std::nullopt; }
    QByteArray tags(const QUrl& photo) const
    {
        return exiftool({ "-php", "-b", "-n", "-a", "-G1", "-XMP:all", "-IPTC:all", "-EXIF:all", "--XMPToolkit",
            photo.toLocalFile() });
    }
};

using Step = std::function<void(LookedAt& f)>;

void setTitle(const QString& path, const QString& title)
{
    exiftool({ u"-q"_s, u"-overwrite_original_in_place"_s, u"-XMP-dc:Title="_s + title, path });
}

}  // namespace

Q_DECLARE_METATYPE(Step)

class tst_EarlyLook : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void isAllThatASaveNeeds_data()
    {
        QTest::addColumn<QString>("selected");
        QTest::addColumn<Step>("edit");
        if (isSlowRun())
            QTest::newRow("one") << u"a"_s << Step([](LookedAt& f) { f->setSingle(u"title"_s, u"X"_s); });
        QTest::newRow("several") << u"abc"_s << Step([](LookedAt& f) { f->setBatch(u"title"_s, u"X"_s); });
        if (isSlowRun())
            QTest::newRow("a list that the homes differ in")
                << u"a"_s << Step([](LookedAt& f) { f->addSingleListItem(u"keywords"_s, u"X"_s); });
        QTest::newRow("a text that IPTC must be encoded anew for") << u"a"_s << Step([](LookedAt& f) {
            f->setSingle(u"title"_s, u"東京"_s);
            f->addSingleListItem(u"keywords"_s, u"新"_s);
        });
        if (isSlowRun())
            QTest::newRow("a custom field")
                << u"a"_s << Step([](LookedAt& f) { f->addCustomField(u"Mood"_s, u"X"_s); });
        QTest::newRow("a link") << u"l"_s << Step([](LookedAt& f) { f->setSingle(u"title"_s, u"X"_s); });
    }
    void isAllThatASaveNeeds()
    {
        QFETCH(QString, selected);
        QFETCH(Step, edit);
        const WatchedTool tool;
        LookedAt f(tool);
        const PhotoFolder elsewhere;
        const QUrl real = elsewhere.add(u"real.jpg"_s);
        exiftool({ u"-q"_s, u"-overwrite_original"_s, u"-IPTC:Keywords=only in IPTC"_s,
            u"-XMP-dc:Subject=only in XMP"_s, u"-XMP-dc:Title-de=Titel"_s, u"-IPTC:City=Zürich"_s,
            f.url(u"a.jpg"_s).toLocalFile(), real.toLocalFile() });
        QVERIFY(QFile::link(real.toLocalFile(), f.folder.path(u"l.jpg"_s)));
        QTest::qWait(50);
        QVERIFY(f.open());
        f.select(selected);
        tool.forget();
        QMap<QUrl, QByteArray> before;
        for (const QString& name : jpgs(selected))
            before.insert(f.url(name), f.tags(f.url(name)));
        edit(f);
        QTRY_COMPARE(tool.untilWrite(), "all");
        QVERIFY(QThreadPool::globalInstance()->waitForDone(30'000));
        QVERIFY(f.save());
        QVERIFY(f->errorMessage().value_or(QString()).isEmpty() || f->errorMessage()->contains(u"brought together"_s));
        QCOMPARE(f->unsavedCount(), 0);
        const QByteArray runs = tool.untilWrite();
        // Only how the IPTC is encoded is still asked for.
        QVERIFY2(runs == "all write" || (runs == "all some write" && f->draftValues().value(u"title"_s) == u"東京"_s),
            runs.constData());
        f->setErrorMessage(std::nullopt);
        QVERIFY(f.undo());
        for (auto photo = before.cbegin(); photo != before.cend(); ++photo)
            QCOMPARE(f.tags(photo.key()), *photo);
    }

    // What somebody else does between the first edit and the save is what undo brings back.
    void isThrownAwayWhenAFileChanges_data()
    {
        QTest::addColumn<Step>("change");
        QTest::addColumn<QString>("title");  // of photo "a" after all
        QTest::newRow("written in place, its date put back") << Step([](LookedAt& f) {
            const QByteArray path = QFile::encodeName(f.folder.path(u"a.jpg"_s));
            struct stat before { };
            QCOMPARE(stat(path.constData(), &before), 0);
            setTitle(f.folder.path(u"a.jpg"_s), u"other"_s);  // as long as before
            const timespec times[2] = { before.st_atim, before.st_mtim };
            QCOMPARE(utimensat(AT_FDCWD, path.constData(), times, 0), 0);
            struct stat after { };
            QCOMPARE(stat(path.constData(), &after), 0);
            QCOMPARE(after.st_size, before.st_size);
        }) << u"other"_s;
        QTest::newRow("replaced") << Step([](LookedAt& f) {
            const PhotoFolder elsewhere;
            const QString path = elsewhere.add(u"a.jpg"_s).toLocalFile();
            setTitle(path, u"other"_s);
            QFile::remove(f.folder.path(u"a.jpg"_s));
            QVERIFY(QFile::copy(path, f.folder.path(u"a.jpg"_s)));
        }) << u"other"_s;
        if (isSlowRun())
            QTest::newRow("renamed") << Step([](LookedAt& f) {
                f->preferences().renamePattern.set(u"d"_s);
                f->performRename();
                QCOMPARE(f.primary(), u"d.jpg"_s);
            }) << u"a.jpg"_s;
        QTest::newRow("the look failed") << Step() << u"a.jpg"_s;
    }
    void isThrownAwayWhenAFileChanges()
    {
        QFETCH(Step, change);
        QFETCH(QString, title);
        const WatchedTool tool;
        LookedAt f(tool, { u"a.jpg"_s });
        if (!change)
            tool.fail();
        QVERIFY(f.open());
        tool.forget();
        f->setSingle(u"headline"_s, u"X"_s);
        f->setSingle(u"title"_s, u"X"_s);
        QTRY_COMPARE(tool.untilWrite(), "all");
        QVERIFY(QThreadPool::globalInstance()->waitForDone(30'000));
        if (change)
            change(f);
        QVERIFY(f.save());
        QCOMPARE(f->unsavedCount(), 0);
        // A refresh, which has noticed, may have looked at all once more.
        const QByteArray runs = tool.untilWrite();
        QVERIFY2(runs.startsWith("all") && runs != "all write", runs.constData());
        QVERIFY(f.undo());
        const QString name = f.primary();
        QCOMPARE(f.onDisk(name, u"XMP:Title"_s), QJsonValue(title));
        QVERIFY(f.onDisk(name, u"XMP:Headline"_s).isUndefined());
    }

    void aSaveWaitsForIt_data()
    {
        QTest::addColumn<bool>("ends");
        QTest::addColumn<QByteArray>("runs");
        QTest::newRow("it ends") << true << QByteArray("all write");
        QTest::newRow("it stalls") << false << QByteArray("all some write");
    }
    void aSaveWaitsForIt()
    {
        QFETCH(bool, ends);
        QFETCH(QByteArray, runs);
        const WatchedTool tool;
        LookedAt f(tool, { u"a.jpg"_s });
        if (ends) {
            f.services.stallInterval = std::chrono::minutes(1);
            f.relaunch();
        }
        QVERIFY(f.open());
        tool.shut();
        tool.forget();
        f->setSingle(u"title"_s, u"X"_s);
        // It is no work that one sees, and keeps no read waiting.
        QTRY_COMPARE(tool.untilWrite(), "all");
        QVERIFY(!f->isWorking());
        f.folder.add(u"b.jpg"_s);
        f->refresh();
        QTRY_VERIFY(f->records().size() == 2 && !f->records().at(1).isUnread);
        tool.forget();
        f->requestSave();
        QVERIFY(f->isSaving());
        if (ends) {
            QTest::qWait(100);
            QCOMPARE(tool.untilWrite(), "");
            tool.open();
        }
        QVERIFY(f.waitUntilIdle());
        QCOMPARE(f->errorMessage(), std::nullopt);
        QCOMPARE("all " + tool.untilWrite(), runs);
        QVERIFY(f.undo());
        QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s), QJsonValue(u"a.jpg"_s));
    }

    // Of two photos that are edited one after the other each has its own; edits that are taken back need none.
    void followsTheSelection()
    {
        const WatchedTool tool;
        LookedAt f(tool);
        QVERIFY(f.open());
        tool.forget();
        f->setSingle(u"title"_s, u"typed"_s);
        f->setSingle(u"title"_s, u"a.jpg"_s);
        f.click(u"b.jpg"_s);
        QVERIFY(f.waitUntilIdle());
        f->setSingle(u"title"_s, u"B"_s);
        f.click(u"c.jpg"_s);  // saves b
        QVERIFY(f.waitUntilIdle());
        QCOMPARE(f.primary(), u"c.jpg"_s);
        QCOMPARE(f->undoSaveText(), u"Undo Save of “b.jpg”"_s);
        f->setSingle(u"title"_s, u"C"_s);
        QVERIFY(f.save());
        QVERIFY(f.undo());
        QVERIFY(f.undo());
        for (const QString& name : jpgs(u"abc"_s))
            QCOMPARE(f.onDisk(name, u"XMP:Title"_s), QJsonValue(name));
    }

    // What was typed during a save is looked at when that has ended: the look before it is of another photo's text.
    void followsASave()
    {
        const WatchedTool tool;
        LookedAt f(tool, { u"a.jpg"_s });
        QVERIFY(f.open());
        f->setSingle(u"title"_s, u"first"_s);
        f->requestSave();
        QVERIFY(f->isSaving());
        f->setSingle(u"title"_s, u"second"_s);
        QVERIFY(f.waitUntilIdle());
        QCOMPARE(f->unsavedCount(), 1);
        QVERIFY(f.save());
        QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s), QJsonValue(u"second"_s));
        QVERIFY(f.undo());
        QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:Title"_s), QJsonValue(u"first"_s));
    }

    void aReadOnlyFileIsRefused()
    {
        const WatchedTool tool;
        LookedAt f(tool, { u"a.jpg"_s });
        QVERIFY(f.open());
        f->setSingle(u"title"_s, u"X"_s);
        QVERIFY(QThreadPool::globalInstance()->waitForDone(30'000));
        QCOMPARE(chmod(QFile::encodeName(f.folder.path(u"a.jpg"_s)).constData(), 0444), 0);
        tool.forget();
        QVERIFY(f.save());
        QCOMPARE(f->errorMessage(), u"Could not save: a.jpg is read-only."_s);
        QCOMPARE(f->unsavedCount(), 1);
        QVERIFY(!f->canUndoSave());
        QVERIFY(!tool.untilWrite().contains("write"));
    }

    // Nobody waits for it: not a photo that is not saved, not the end of the program. And none of many photos.
    void endsWithWhatItIsFor()
    {
        const WatchedTool tool;
        LookedAt f(tool);
        QVERIFY(f.open());
        tool.shut();
        f->setSingle(u"title"_s, u"X"_s);
        QTRY_VERIFY(tool.untilWrite().endsWith("all"));
        f->discardSaveDialog();
        f.click(u"b.jpg"_s);
        QVERIFY(QThreadPool::globalInstance()->waitForDone(30'000));
        f->setSingle(u"title"_s, u"X"_s);
        QTRY_VERIFY(tool.untilWrite().endsWith("all all"));
        f.model.reset();
        QVERIFY(QThreadPool::globalInstance()->waitForDone(30'000));

        EarlyLook look({ f.url(u"a.jpg"_s) }, std::chrono::minutes(1));
        look.giveUp();
        look.look(tool.service());
        QVERIFY(!look.values({ f.url(u"a.jpg"_s) }));
    }

    void isOfThesePhotos_data()
    {
        QTest::addColumn<QStringList>("targets");
        QTest::addColumn<bool>("isUsable");
        QTest::newRow("the photos") << jpgs(u"ba"_s) << true;
        QTest::newRow("one of them") << jpgs(u"b"_s) << true;
        QTest::newRow("another one") << jpgs(u"ac"_s) << false;
    }
    void isOfThesePhotos()
    {
        QFETCH(QStringList, targets);
        const WatchedTool tool;
        const LookedAt f(tool);
        EarlyLook look({ f.url(u"a.jpg"_s), f.url(u"b.jpg"_s) }, std::chrono::minutes(1));
        look.look(tool.service());
        QList<QUrl> urls;
        for (const QString& name : targets)
            urls.append(f.url(name));
        const auto values = look.values(urls);
        QTEST(values.has_value(), "isUsable");
        if (values)
            QCOMPARE(
                *values, tool.service().oldValues(PhotoPlans::allTags(), { f.url(u"a.jpg"_s), f.url(u"b.jpg"_s) }));
    }
};

QTEST_GUILESS_MAIN(tst_EarlyLook)
#include "tst_EarlyLook.moc"
