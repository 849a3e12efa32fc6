// Saves that take several runs of the tool: a photo gets all of it or stays as it was, what other programs left in its
// IPTC stays what it meant, and the way back is exact. Sidecars, and values that no run can carry.
#include "core/MetadataService.h"
#include "core/save/SaveVerification.h"
#include "core/save/originals/OriginalKeeper.h"
#include "core/save/originals/OriginalsFolder.h"
#include "tests/support/RealService.h"
#include "tests/support/RefusedExif.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

QByteArray iptcBlock(const QUrl& photo)
{
    return exiftool({ u"-b"_s, u"-IPTC"_s, u"-a"_s, photo.toLocalFile() });
}

struct State {
    QByteArray bytes{};
    ino_t inode = 0;
    qint64 modified = 0;
    bool operator==(const State&) const = default;
};

State stateOf(const QUrl& photo)
{
    struct stat status { };
    stat(QFile::encodeName(photo.toLocalFile()).constData(), &status);
    return { readFile(photo.toLocalFile()), status.st_ino, status.st_mtim.tv_nsec };
}

const EditPlan captioned{ .scalars = { { "title", u"東京"_s }, { "description", u"塔"_s } } };

}  // namespace

class tst_SaveRuns : public QObject {
    Q_OBJECT

private slots:
    // The run that prepares its IPTC succeeds, the one that writes the values does not.
    void refusedPhotoIsUnchanged_data()
    {
        QTest::addColumn<bool>("backup");
        QTest::addColumn<bool>("hasBackup");
        QTest::addColumn<QByteArray>("photo");
        for (const bool hasIptc : { true, false }) {
            QByteArray bytes = jpegWithBrokenExif();
            if (hasIptc) {
                const PhotoFolder folder;
                const QUrl photo = folder.add(u"a.jpg"_s, bytes);
                exiftool({ "-q", "-overwrite_original", "-IPTC:City=Zürich", photo.toLocalFile() });
                bytes = readFile(photo.toLocalFile());
            }
            const char* iptc = hasIptc ? "with IPTC" : "without IPTC";
            QTest::addRow("%s, no backup", iptc) << false << false << bytes;
            QTest::addRow("%s, backup", iptc) << true << false << bytes;
            QTest::addRow("%s, backup, one is there", iptc) << true << true << bytes;
        }
    }
    void refusedPhotoIsUnchanged()
    {
        QFETCH(bool, backup);
        QFETCH(bool, hasBackup);
        QFETCH(QByteArray, photo);
        const PhotoFolder folder;
        const QUrl refused = folder.add(u"a.jpg"_s, photo);
        const QUrl taken = folder.add(u"b.jpg"_s);
        QFile::remove(taken.toLocalFile() + u"_original"_s);
        if (hasBackup)
            folder.add(u"a.jpg_original"_s, "an older backup");
        QStringList names = folder.names();
        if (backup)
            names.append(u"b.jpg_original"_s);
        names.sort();
        const State before = stateOf(refused);
        const auto service = realService();
        const JournalEntry entry = service.journalEntry(captioned, { refused, taken });

        const QString said = problem([&] {
            service.write(captioned, { refused, taken }, { .backupOriginals = backup });
        });
        QVERIFY2(said.contains(u"Bad format (0) for IFD0 entry 0"_s), qPrintable(said));
        QCOMPARE(stateOf(refused), before);
        QCOMPARE(folder.names(), names);
        if (hasBackup)
            QCOMPARE(readFile(folder.path(u"a.jpg_original"_s)), QByteArray("an older backup"));
        QCOMPARE(FileStamp::of(refused.toLocalFile()), entry.files.constFirst().before);  // nothing to undo
        QCOMPARE(tagValue(taken, u"-IPTC:ObjectName"_s), "東京");
    }

    // A run that is killed names nobody: what it did not get to is put back, what it did is saved.
    void killedHalfWay()
    {
        const PhotoFolder folder;
        const QUrl photo = folder.add(u"a.jpg"_s);
        const PhotoFolder tool;
        const QUrl script = tool.add(u"exiftool"_s,
            "kill 'KILL', $$ if grep { /^-XMP-dc:Title=/ } @ARGV;\nexec " + toolForPerl() + ", @ARGV;\n");
        const State before = stateOf(photo);
        const MetadataService service{ { script, realTool().perlURL } };
        QVERIFY_THROWS_EXCEPTION(ToolError, service.write(captioned, { photo }, { .backupOriginals = true }));
        QCOMPARE(stateOf(photo), before);
        QCOMPARE(folder.names(), QStringList("a.jpg"));
    }

    void writesTheHomesThatTakeIt()
    {
        const PhotoFolder folder;
        const QUrl broken = folder.add(u"a.jpg"_s, jpegWithBrokenExif());
        const QUrl text = folder.add(u"b.jpg"_s, "a text");
        EditPlan plan = captioned;
        plan.scalars.insert({ { u"coords"_s, u"-33.5, 70.25"_s }, { u"offsetOriginal"_s, u"+01:00"_s } });
        plan.customs = { { u"Mood"_s, u"calm"_s } };
        const auto service = realService();
        const State before = stateOf(broken);
        const auto refused = service.refusedHomes(plan, { broken, text });
        // One that is no photo refuses them all: nothing can be offered for it.
        QCOMPARE(refused,
            (QMap<QUrl, QMap<QString, QString>>{
                { broken, { { u"EXIF"_s, u"Bad format (0) for IFD0 entry 0"_s } } } }));
        QCOMPARE(stateOf(broken), before);

        plan.leftOut = { u"EXIF"_s };
        service.write(plan, { broken }, {});
        QCOMPARE(tagValue(broken, u"-IPTC:ObjectName"_s), "東京");
        QCOMPARE(tagValue(broken, u"-XMP-dc:Description"_s), "塔");
        QCOMPARE(tagValue(broken, u"-XMP-Quorbel:Mood"_s), "calm");
        const auto record = service.read({ broken }).constFirst();
        QCOMPARE(record.values.value(u"coords"_s), u"-33.500000, 70.250000"_s);
        // A field that has no other home is not saved, and does not count as such.
        QCOMPARE(SaveVerification::differences(plan, record), QStringList("offsetOriginal"));

        plan.leftOut = { u"EXIF"_s, u"XMP"_s };
        for (const auto& assignment : MetadataWriter::assignments(plan))
            QVERIFY2(assignment.tag.startsWith(u"IPTC:"_s), qPrintable(assignment.tag));
    }

    void undeclaredTextKeepsItsMeaning_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QByteArray>("shown");
        QTest::addRow("UTF-8") << u"a.jpg"_s << QByteArray("Zürich") << QByteArray("Zürich");
        QTest::addRow("Latin 1") << u"a.tif"_s << QByteArray("Z\xfcrich") << QByteArray("Zürich");
        QTest::addRow("both, so Latin 1")
            << u"a.png"_s << QByteArray("Z\xfcrich Zürich") << QByteArray("Zürich ZÃ¼rich");
    }
    void undeclaredTextKeepsItsMeaning()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, stored);
        QFETCH(QByteArray, shown);
        const PhotoFolder folder;
        const QUrl photo = folder.add(name);
        writeFile(folder.path(u"city"_s), stored);
        exiftool({ "-q", "-overwrite_original", "-charset", "iptc=UTF8", "-IPTC:Contact=Otto",
            "-IPTC:TimeCreated=07:13:48+01:00", u"-IPTC:City<="_s + folder.path(u"city"_s), photo.toLocalFile() });
        const QByteArray block = iptcBlock(photo);
        QVERIFY(block.contains(stored));
        const auto service = realService();
        JournalEntry entry = service.journalEntry(captioned, { photo });
        service.write(captioned, { photo }, {});
        QCOMPARE(tagValue(photo, u"-IPTC:City"_s), shown);
        QCOMPARE(tagValue(photo, u"-IPTC:ObjectName"_s), "東京");

        // The field that no edit named is again what it was, in its own bytes.
        entry.files.first().after = *FileStamp::of(photo.toLocalFile());
        const auto outcome = service.undo(entry);
        QCOMPARE(outcome.restored, QList<QUrl>{ photo });
        QVERIFY(outcome.inexact.isEmpty());
        QCOMPARE(iptcBlock(photo), block);
        QCOMPARE(tagValue(photo, u"-XMP-dc:Title"_s), "");
    }

    void undoTakesTheIptcAwayThatItMade()
    {
        const PhotoFolder folder;
        const QUrl photo = folder.add(u"a.jpg"_s);
        const auto service = realService();
        JournalEntry entry = service.journalEntry(captioned, { photo });
        service.write(captioned, { photo }, {});
        QVERIFY(!iptcBlock(photo).isEmpty());
        entry.files.first().after = *FileStamp::of(photo.toLocalFile());
        QVERIFY(service.undo(entry).inexact.isEmpty());
        QCOMPARE(iptcBlock(photo), "");
    }

    // Where the tool does not put it back after all, undo says so.
    void undoSaysThatItIsInexact()
    {
        const PhotoFolder folder;
        const QUrl photo = folder.add(u"a.jpg"_s);
        const QByteArray path = photo.toLocalFile().toUtf8();
        const auto answer = [&path](const QByteArray& block) {
            return FakeTool::Answer{ .standardOutput =
                                         "Array(Array(\n  \"SourceFile\" => \"" + path + "\",\n" + block + "));\n" };
        };
        FakeTool tool;
        tool.answer(1, answer("\"IPTC:IPTC\" => \"\\x1c\\x02Z\\x00\\x01\\xfc\""));
        tool.answer(3, answer("\"IPTC:IPTC\" => \"\\x1c\\x02Z\\x00\\x02\\xc3\\xbc\""));
        const MetadataService service{ tool.runner() };
        const JournalEntry entry = service.journalEntry(captioned, { photo });
        QCOMPARE(service.undo(entry).inexact, QList<QUrl>{ photo });
        QVERIFY(tool.calls()[1].contains(u"-IPTC:IPTC#=\\x1c\\x02Z\\x00\\x01\\xfc"_s));
    }

    void severalBlocksAreLeftAlone_data()
    {
        QTest::addColumn<bool>("isDeclared");
        QTest::addRow("undeclared") << false;
        QTest::addRow("UTF-8 in all") << true;
    }
    void severalBlocksAreLeftAlone()
    {
        QFETCH(bool, isDeclared);
        const PhotoFolder folder;
        // A second block, as some editors leave it: behind the first, in an APP13 segment of its own.
        QList<QByteArray> segments;
        for (const QByteArray& city : { QByteArray("Zuerich"), QByteArray("Bern") }) {
            const QUrl part = folder.add(u"part.jpg"_s);
            QStringList arguments{ "-q", "-overwrite_original", u"-IPTC:City=%1"_s.arg(QString::fromUtf8(city)),
                u"-IPTC:By-line=%1 Ä"_s.arg(QString::fromUtf8(city)), part.toLocalFile() };
            if (isDeclared)
                arguments.prepend(u"-IPTC:CodedCharacterSet=UTF8"_s);
            exiftool(arguments);
            const QByteArray bytes = readFile(part.toLocalFile());
            const auto at = bytes.indexOf(QByteArray::fromHex("ffed"));
            segments.append(bytes.mid(at, 2 + uchar(bytes[at + 2]) * 256 + uchar(bytes[at + 3])));
        }
        QFile::remove(folder.path(u"part.jpg"_s));
        const QUrl photo = folder.add(u"a.jpg"_s, jpegBytes().insert(2, segments[0] + segments[1]));
        const QUrl plain = folder.add(u"b.jpg"_s);
        const QByteArray cities = tagValue(photo, u"-IPTC:City"_s);
        QCOMPARE(cities, "Zuerich\nBern");
        const QByteArray blocks = iptcBlock(photo);

        const auto service = realService();
        JournalEntry entry = service.journalEntry(captioned, { photo });
        WriteNotes notes;
        service.write(captioned, { photo, plain }, {}, {}, &notes);
        QCOMPARE(notes.iptcLeftAlone, isDeclared ? QList<QUrl>() : QList<QUrl>{ photo });
        QCOMPARE(tagValue(photo, u"-IPTC:City"_s), cities);
        QCOMPARE(iptcBlock(photo) == blocks, !isDeclared);
        QCOMPARE(tagValue(photo, u"-XMP-dc:Title"_s), "東京");
        QCOMPARE(tagValue(plain, u"-IPTC:ObjectName"_s), "東京");
        entry.files.first().after = *FileStamp::of(photo.toLocalFile());
        QVERIFY(service.undo(entry).inexact.isEmpty());
        QCOMPARE(tagValue(photo, u"-XMP-dc:Title"_s), "");
        QCOMPARE(tagValue(photo, u"-IPTC:City"_s), cities);
        if (!isDeclared)
            QCOMPARE(iptcBlock(photo), blocks);
    }

    void tellsWhatAllItsRunsSaid()
    {
        FakeTool tool;
        const QList<QUrl> files{ QUrl::fromLocalFile(u"/p/a.jpg"_s), QUrl::fromLocalFile(u"/p/b.jpg"_s),
            QUrl::fromLocalFile(u"/p/c.jpg"_s) };
        tool.answer(2, { .standardError = "Error: Bad IPTC - /p/a.jpg\n", .exitCode = 1 });
        tool.answer(3, { .standardError = "Error: Bad EXIF - /p/b.jpg\n", .exitCode = 1 });
        const QString said = problem([&] { MetadataService{ tool.runner() }.write(captioned, files, {}); });
        QCOMPARE(writeFailures(said, files),
            (QList<FileFailure>{ { files[0], u"Bad IPTC"_s }, { files[1], u"Bad EXIF"_s } }));
        QCOMPARE(tool.calls()[2].last(2), QStringList({ "/p/b.jpg", "/p/c.jpg" }));
    }

    void keepsWhatIsStillOwned()
    {
        const PhotoFolder folder;
        folder.add(u"a.jpg"_s);
        {
            OriginalsFolder owned(folder.path());
            QVERIFY(owned.keep("a.jpg"));
            QCOMPARE(OriginalsFolder::clearAbandoned(folder.path(), QDateTime::currentDateTime().addDays(2)), 0);
            QCOMPARE(folder.names().size(), 2);
        }
        QCOMPARE(folder.names(), QStringList("a.jpg"));
    }

    void putsBackWhereverTheFolderIs()
    {
        const PhotoFolder folder;
        QVERIFY(QDir(folder.path()).mkdir(u"trip"_s));
        const QUrl photo = folder.add(u"trip/a.jpg"_s);
        const State before = stateOf(photo);
        {
            OriginalKeeper originals({ photo });
            folder.add(u"prepared"_s, "prepared");
            QVERIFY(std::rename(qPrintable(folder.path(u"prepared"_s)), qPrintable(photo.toLocalFile())) == 0);
            originals.notePrepared();
            QVERIFY(QDir(folder.path()).rename(u"trip"_s, u"moved"_s));
        }
        QCOMPARE(stateOf(folder.url(u"moved/a.jpg"_s)), before);
        QCOMPARE(QDir(folder.path(u"moved"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList("a.jpg"));
    }

    // What a killed program left, and what has happened since.
    void clearsAbandonedOriginals_data()
    {
        using Change = std::function<void(const PhotoFolder&)>;
        const auto moveTo = [](const QString& computer) {
            return [computer](const PhotoFolder& folder) {
                const QString name = folder.names().constFirst();
                QVERIFY(QDir(folder.path()).rename(name, u".quorbel-"_s + computer + name.mid(17)));
            };
        };
        QTest::addColumn<Change>("change");
        QTest::addColumn<int>("hours");
        QTest::addColumn<QStringList>("names");
        const QStringList same{ u"a.jpg"_s };
        QTest::addRow("nothing") << Change([](const auto&) {}) << 0 << same;
        QTest::addRow("the photo lost its name")
            << Change([](const PhotoFolder& folder) { QFile::remove(folder.path(u"a.jpg"_s)); }) << 0 << same;
        QTest::addRow("it was renamed") << Change([](const PhotoFolder& folder) {
            QFile::rename(folder.path(u"a.jpg"_s), folder.path(u"b.jpg"_s));
        }) << 0 << QStringList{ u"b.jpg"_s };
        QTest::addRow("another computer's, a day old") << Change(moveTo(u"00000000"_s)) << 25 << same;
        QTest::addRow("another computer's, younger") << Change(moveTo(u"00000000"_s)) << 23 << QStringList();
        QTest::addRow("not our name") << Change(moveTo(u"notes"_s)) << 25 << QStringList();
    }
    void clearsAbandonedOriginals()
    {
        QFETCH(std::function<void(const PhotoFolder&)>, change);
        QFETCH(int, hours);
        QFETCH(QStringList, names);
        const PhotoFolder folder;
        const State before = stateOf(folder.add(u"a.jpg"_s));
        const pid_t owner = fork();
        if (owner == 0) {
            OriginalsFolder abandoned(folder.path());
            _exit(abandoned.keep("a.jpg") ? 0 : 1);
        }
        int end = 1;
        QCOMPARE(waitpid(owner, &end, 0), owner);
        QCOMPARE(end, 0);
        change(folder);
        const QStringList left = folder.names();
        QCOMPARE(left.size(), folder.names().contains(u"a.jpg"_s) || names.contains(u"b.jpg"_s) ? 2 : 1);
        OriginalsFolder::clearAbandoned(folder.path(), QDateTime::currentDateTime().addSecs(hours * 3600));
        QCOMPARE(folder.names(), names.isEmpty() ? left : names);
        if (!names.isEmpty())
            QCOMPARE(stateOf(folder.url(names.constFirst())), before);
    }

    // A tag called Error fails a run that finds nothing to copy.
    void captionsAPhotoWithATagCalledError()
    {
        const PhotoFolder folder;
        constexpr qsizetype afterHeader = 33;
        const QByteArray chunk =
            QByteArray::fromHex("0000000a") + "tEXtError" + '\0' + "0.05" + QByteArray::fromHex("cefc2aa5");
        const QUrl photo = folder.add(u"a.png"_s, pngBytes().insert(afterHeader, chunk));
        QCOMPARE(problem([&] { realService().write(captioned, { photo }, { .backupOriginals = false }); }), QString());
        const auto values = exiv2Values(photo);
        QCOMPARE(values.value(u"Iptc.Application2.ObjectName"_s), QStringList(u"東京"_s));
        QCOMPARE(values.value(u"Xmp.dc.title"_s), QStringList(u"lang=\"x-default\" 東京"_s));
        QVERIFY(readFile(photo.toLocalFile()).contains(chunk));
    }

    void sidecarLosesWhatIsCleared()
    {
        const PhotoFolder folder;
        const QUrl photo = folder.add(u"a.jpg"_s);
        const QUrl sidecar = folder.url(u"a.xmp"_s);
        folder.add(u"config"_s, MetadataWriter::customConfig({ u"Mood"_s }).toUtf8());
        exiftool({ "-config", folder.path(u"config"_s), "-q", "-XMP-dc:Title=old", "-XMP-dc:Subject=a",
            "-XMP-photoshop:City=kept", "-XMP-exif:GPSLatitude=1", "-XMP-exif:GPSLongitude=2", "-XMP-Quorbel:Mood=calm",
            "-o", sidecar.toLocalFile() });
        const auto service = realService();
        service.write({ .scalars = { { "headline", "new" } } }, { photo }, { .writeSidecar = true });
        QCOMPARE(tagValue(sidecar, u"-XMP-Quorbel:Mood"_s), "calm");
        QCOMPARE(tagValue(sidecar, u"-XMP-photoshop:Headline"_s), "new");
        service.write({ .scalars = { { "title", "" }, { "coords", "" }, { "headline", "" } },
                          .lists = { { "keywords", {} } },
                          .customs = { { "Mood", "" } } },
            { photo }, { .writeSidecar = true });
        QCOMPARE(QString::fromUtf8(exiftool({ "-s", "-G1", "-XMP:all", "--XMPToolkit", sidecar.toLocalFile() }))
                     .simplified(),
            u"[XMP-photoshop] City : kept"_s);
    }

    void sidecarIsTreatedLikeAPhoto()
    {
        const PhotoFolder folder;
        const PhotoFolder elsewhere;
        const QUrl photo = folder.add(u"a.jpg"_s);
        const QString real = elsewhere.path(u"real.xmp"_s);
        exiftool({ "-q", "-XMP-dc:Title=old", "-o", real });
        QVERIFY(QFile::link(real, folder.path(u"a.xmp"_s)));
        const bool hasAttributes = setxattr(QFile::encodeName(real).constData(), "user.rated", "yes", 3, 0) == 0;
        QVERIFY(QFile::setPermissions(real, QFile::ReadOwner | QFile::WriteOwner));
        const auto service = realService();
        const WriteOptions options{ .writeSidecar = true };
        EditPlan plan{ .scalars = { { "title", "new" } } };
        JournalEntry entry = service.journalEntry(plan, { photo }, options);
        WriteNotes notes;
        service.write(plan, { photo }, options, {}, &notes);
        QVERIFY(notes.sidecars.isEmpty());
        QVERIFY(QFileInfo(folder.path(u"a.xmp"_s)).isSymLink());
        QCOMPARE(tagValue(QUrl::fromLocalFile(real), u"-XMP-dc:Title"_s), "new");
        const auto isAsItWas = [&] {
            char value[4] = {};
            return QFileInfo(folder.path(u"a.xmp"_s)).isSymLink()
                && QFile::permissions(real)
                == (QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser)
                && (!hasAttributes || getxattr(QFile::encodeName(real).constData(), "user.rated", value, 3) == 3);
        };
        QVERIFY(isAsItWas());

        QVERIFY(QFile::setPermissions(real, QFile::ReadOwner));
        service.write({ .scalars = { { "title", "newer" } } }, { photo }, options, {}, &notes);
        QCOMPARE(notes.sidecars, (QList<FileFailure>{ { folder.url(u"a.xmp"_s), u"read-only"_s } }));
        QCOMPARE(tagValue(QUrl::fromLocalFile(real), u"-XMP-dc:Title"_s), "new");
        QCOMPARE(tagValue(photo, u"-XMP-dc:Title"_s), "newer");

        JournalSidecar& sidecar = entry.files.first().sidecar;
        sidecar.after = FileStamp::of(sidecar.path);
        QVERIFY(!sidecar.restore());
        QVERIFY(QFile::setPermissions(real, QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(sidecar.restore());
        QVERIFY(isAsItWas());
        QCOMPARE(tagValue(QUrl::fromLocalFile(real), u"-XMP-dc:Title"_s), "old");
    }

    void valueThatNoArgumentHolds_data()
    {
        QTest::addColumn<EditPlan>("plan");
        QTest::addColumn<QString>("label");
        const QString fits(128 * 1024 - 1 - 18, u'x');  // beside "-XMP-dc:Title=" and "-IPTC:ObjectName="
        const QString umlauts(70 * 1024, u'ü');
        QTest::addRow("fits") << EditPlan{ .scalars = { { "title", fits } } } << QString();
        QTest::addRow("text") << EditPlan{ .scalars = { { "title", fits + u"xx"_s } } } << u"Title"_s;
        QTest::addRow("of two bytes a character")
            << EditPlan{ .scalars = { { "description", umlauts } } } << u"Description"_s;
        QTest::addRow("item") << EditPlan{ .lists = { { "keywords", { "a", umlauts } } } } << u"Keywords"_s;
        QTest::addRow("custom") << EditPlan{ .customs = { { "Mood", umlauts } } } << u"Mood"_s;
    }
    void valueThatNoArgumentHolds()
    {
        QFETCH(EditPlan, plan);
        QFETCH(QString, label);
        const PhotoFolder folder;
        const QUrl photo = folder.add(u"a.jpg"_s);
        const QString said = problem([&] { realService().write(plan, { photo }, {}); });
        QCOMPARE(said,
            label.isEmpty() ? QString()
                            : u"“%1” is too long: a value may have 128 KiB at most. Nothing was written."_s.arg(label));
        QCOMPARE(readFile(photo.toLocalFile()) == jpegBytes(), !label.isEmpty());
    }

    void saysWhyInTheToolsOwnWords_data()
    {
        QTest::addColumn<QString>("messages");
        QTest::addColumn<QStringList>("tags");
        QTest::addColumn<QStringList>("refusals");
        QTest::addColumn<QString>("reason");
        const QString dates = u"Warning: Invalid date/time (use YYYY) in ExifIFD:DateTimeOriginal (PrintConvInv)\n"
                              "Warning: Invalid date/time (use YYYY) in XMP-photoshop:DateCreated (PrintConvInv)\n"_s;
        const QString nothing = u"Nothing to do.\n"_s;
        QTest::addRow("a cause, two tags")
            << dates + nothing << QStringList{ u"EXIF:DateTimeOriginal"_s, u"XMP-photoshop:DateCreated"_s }
            << QStringList{ u"Invalid date/time (use YYYY) in ExifIFD:DateTimeOriginal, XMP-photoshop:DateCreated"_s }
            << u"Invalid date/time (use YYYY) in ExifIFD:DateTimeOriginal, XMP-photoshop:DateCreated"_s;
        QTest::addRow("of another field")
            << dates + u"Warning: Not a floating point number for XMP-xmp:Rating\n"_s << QStringList{ u"XMP:Rating"_s }
            << QStringList{ u"Not a floating point number for XMP-xmp:Rating"_s }
            << u"Invalid date/time (use YYYY) in ExifIFD:DateTimeOriginal, XMP-photoshop:DateCreated; "
               "Not a floating point number for XMP-xmp:Rating"_s;
        QTest::addRow("tag in the middle")
            << u"Warning: Can't convert IPTC:Urgency (not in PrintConv)\n"_s << QStringList{ u"IPTC:Urgency"_s }
            << QStringList{ u"Can't convert IPTC:Urgency (not in PrintConv)"_s }
            << u"Can't convert IPTC:Urgency (not in PrintConv)"_s;
        QTest::addRow("of a file")
            << u"Warning: Odd XMP - /p/a - b.jpg\nError: Not a valid JPG (looks more like a TXT) - /p/a - b.jpg\n"
               "    0 image files updated\n    1 files weren't updated due to errors\n"_s
            << QStringList{ u"XMP-dc:Title"_s } << QStringList() << u"Not a valid JPG (looks more like a TXT)"_s;
    }
    void saysWhyInTheToolsOwnWords()
    {
        QFETCH(QString, messages);
        QFETCH(QStringList, tags);
        QTEST(refusals(messages, tags), "refusals");
        QTEST(toolReason(ToolError(ToolError::ExecFailed{ 1, messages }, messages)), "reason");
    }
};

QTEST_GUILESS_MAIN(tst_SaveRuns)
#include "tst_SaveRuns.moc"
