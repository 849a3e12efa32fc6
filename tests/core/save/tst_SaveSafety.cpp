// What a save keeps: every script in every standard, links, attributes, read-only files, and the way back.
#include "core/MetadataService.h"
#include "core/save/SafeWriter.h"
#include "core/save/SaveGuard.h"
#include "core/save/SaveVerification.h"
#include "core/save/journal/SaveJournal.h"
#include "core/schema/FieldSchema.h"
#include "core/tool/IptcEncoding.h"
#include "core/tool/TemporaryFiles.h"
#include "tests/support/RealService.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <utime.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

EditPlan titlePlan(const QString& title)
{
    return { .scalars = { { "title", title } } };
}

// The real tool, but killed before it gives a file another name for the n-th time (the first is 0).
class CutTool {
public:
    explicit CutTool(int n)
    {
        writeFile(m_folder.path(u"Cut.pm"_s),
            "package Cut; my $left = " + QByteArray::number(n)
                + "; BEGIN { *CORE::GLOBAL::rename = sub { kill 'KILL', $$ unless $left--; CORE::rename($_[0], $_[1]) "
                  "} } 1;\n");
        writeFile(script(),
            "exec $^X, '-I" + m_folder.path().toUtf8() + "', '-MCut', '" + realTool().exiftoolURL.toLocalFile().toUtf8()
                + "', @ARGV;\n");
    }
    MetadataService service() const { return { { QUrl::fromLocalFile(script()), realTool().perlURL } }; }

private:
    QString script() const { return m_folder.path(u"exiftool"_s); }

    PhotoFolder m_folder;
};

void makeOld(const QString& path, qint64 seconds)
{
    const time_t then = time(nullptr) - seconds;
    const utimbuf times{ then, then };
    QCOMPARE(utime(QFile::encodeName(path).constData(), &times), 0);
}

}  // namespace

class tst_SaveSafety : public QObject {
    Q_OBJECT

private slots:
    void knowsWindowsLatin1_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("fits");
        QTest::addRow("ASCII") << "plain\ttext\n" << true;
        QTest::addRow("Latin 1") << "Zürich ÿ £" << true;
        QTest::addRow("the page's own") << "€ “quotes” … – — Œ Ž ™" << true;
        QTest::addRow("Central European") << "Łódź" << false;
        QTest::addRow("decomposed") << u"Zu\u0308rich"_s << false;
        QTest::addRow("Chinese") << "東京" << false;
        QTest::addRow("emoji") << "🏔" << false;
        QTest::addRow("C1 control") << QString(QChar(0x81)) << false;
    }
    void knowsWindowsLatin1()
    {
        QFETCH(QString, text);
        const Assignment title{ .tag = u"XMP-dc:Title"_s, .value = text };
        const Assignment city{ .tag = u"IPTC:City"_s, .value = text };
        QTEST(!IptcEncoding::needsUtf8({ title, city }), "fits");
        QVERIFY(!IptcEncoding::needsUtf8({ title }));
    }

    // What the file holds, and the start of what becomes of it.
    void reencodesInARunOfItsOwn_data()
    {
        QTest::addColumn<QByteArray>("held");
        QTest::addColumn<QStringList>("options");
        QTest::addRow("IPTC") << QByteArray("Array(Array(\n  \"SourceFile\" => \"/p/a.jpg\",\n"
                                            "  \"IPTC:City\" => \"Paris\"\n));\n")
                              << QStringList{ "-tagsfromfile", "@", "-iptc:all", "--iptc:TimeSent",
                                     "--iptc:ReleaseTime", "--iptc:ExpirationTime", "--iptc:TimeCreated",
                                     "--iptc:DigitalCreationTime" };
        QTest::addRow("none") << QByteArray() << QStringList();
    }
    void reencodesInARunOfItsOwn()
    {
        QFETCH(QByteArray, held);
        QFETCH(QStringList, options);
        FakeTool tool;
        tool.answer(1, { .standardOutput = held });
        const QList<QUrl> files{ QUrl::fromLocalFile(u"/p/a.jpg"_s) };
        const EditPlan plan{ .scalars = { { "category", u"東京"_s } } };
        MetadataService{ tool.runner() }.write(plan, files, { .backupOriginals = false });
        const QStringList begin{ "-overwrite_original", "-m" };
        QCOMPARE(tool.calls(),
            (QList<QStringList>{ { "-php", "-G1", "-a", "-n", "-b", "-charset", "iptc=UTF8", "-IPTC:all", "/p/a.jpg" },
                begin + options + QStringList{ "-IPTC:CodedCharacterSet=UTF8", "/p/a.jpg" },
                begin + QStringList{ u"-IPTC:Category=東京"_s, "/p/a.jpg" } }));

        FakeTool failing;
        failing.answerAlways({ .standardError = "no", .exitCode = 1 });
        QVERIFY(!problem([&] { MetadataService{ failing.runner() }.write(plan, files, {}); }).isEmpty());
        QCOMPARE(failing.calls().size(), 1);  // the write itself was not begun
    }

    // Not even the run that would re-encode their texts is begun.
    void refusesWhatTheToolWouldMix()
    {
        FakeTool tool;
        const TemporaryFilesProbe temporary;
        const WriteCommand command{ .assignments = { { .tag = u"IPTC:Keywords"_s, .value = u"東京"_s },
                                        { u"IPTC:Keywords"_s, Assignment::Operation::add, u"b"_s } } };
        const QList<QUrl> files{ QUrl::fromLocalFile(u"/p/a.jpg"_s) };
        const QString said = problem([&] { SafeWriter::write(tool.runner(), command, files, true, { u"Mood"_s }); });
        QVERIFY2(said.contains(u"IPTC:Keywords"_s), qPrintable(said));
        QVERIFY(tool.calls().isEmpty());
        QCOMPARE(temporary.names(), QStringList());
    }

    void keepsEveryScript_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addRow("Latin") << "Zürich Łódź Ærø";
        QTest::addRow("Cyrillic, Greek") << "Москва Αθήνα";
        QTest::addRow("Hebrew, Arabic") << "ירושלים القاهرة";
        QTest::addRow("Devanagari, combining marks") << u"वाराणसी Zu\u0308rich ạ̈"_s;
        QTest::addRow("Chinese, Japanese, Korean") << "北京 東京タワー 서울";
        QTest::addRow("emoji") << "🏔️👩‍👩‍👧 sky";
    }
    void keepsEveryScript()
    {
        QFETCH(QString, text);
        PhotoFolder folder;
        const QUrl photo = folder.add(u"a.jpg"_s);
        // What is there already, undeclared and thus Latin 1, must survive the change of encoding.
        exiftool({ "-q", "-overwrite_original", "-IPTC:Contact=Jürg", "-IPTC:Keywords=Süd", photo.toLocalFile() });

        EditPlan plan{ .lists = { { "keywords", { text, "Süd" } }, { "people", { text } } },
            .listMode = MetadataWriter::ListMode::append };
        for (const auto& field : FieldSchema::all())
            if (field.kind == FieldKind::text || field.kind == FieldKind::multiline)
                plan.scalars.insert(field.id, text);
        plan.scalars.remove(u"urgency"_s);  // a digit by its standard
        const auto service = realService();
        service.write(plan, { photo }, {});

        const auto record = service.read({ photo }).constFirst();
        QCOMPARE(SaveVerification::differences(plan, record), QStringList());
        QCOMPARE(record.lists.value(u"keywords"_s), QStringList({ text, "Süd" }));
        QCOMPARE(tagValue(photo, u"-IPTC:Contact"_s), "Jürg");
        const auto exiv2 = exiv2Values(photo);
        QStringList tags;
        for (const auto& field : FieldSchema::all())
            if (plan.scalars.contains(field.id))
                for (const auto& tag : field.writeTags)
                    tags.append(u'-' + tag);
        const auto stored = exiftool(QStringList{ "-s3" } + tags + QStringList(photo.toLocalFile()));
        QCOMPARE(QString::fromUtf8(stored).trimmed().split(u'\n'), QStringList(tags.size(), text));
        for (const auto* key : { "Iptc.Application2.City", "Iptc.Application2.Caption", "Iptc.Application2.ObjectName",
                 "Xmp.photoshop.City", "Xmp.photoshop.Headline", "Exif.Image.Artist" })
            QCOMPARE(exiv2.value(QString::fromLatin1(key)), QStringList(text));
    }

    void keepsTimesWithoutZone()
    {
        PhotoFolder folder;
        const QUrl photo = folder.add(u"a.jpg"_s);
        exiftool({ "-q", "-overwrite_original", "-IPTC:TimeCreated=07:13:48+00:00", photo.toLocalFile() });
        // The tool itself writes no time without a zone: the zone's five bytes become an empty urgency.
        const QByteArray zoned("\x1c\x02\x3c\x00\x0b\x30\x37\x31\x33\x34\x38+0000", 16);
        const QByteArray zoneless("\x1c\x02\x3c\x00\x06\x30\x37\x31\x33\x34\x38\x1c\x02\x0a\x00\x00", 16);
        writeFile(photo.toLocalFile(), readFile(photo.toLocalFile()).replace(zoned, zoneless));
        QCOMPARE(tagValue(photo, u"-IPTC:TimeCreated"_s), "07:13:48");
        realService().write(titlePlan(u"東京"_s), { photo }, {});
        QCOMPARE(tagValue(photo, u"-IPTC:TimeCreated"_s), "07:13:48");
        QCOMPARE(tagValue(photo, u"-IPTC:ObjectName"_s), "東京");
    }

    void verifiesInTheNormalFormOfTheKind_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("found");
        QTest::addColumn<bool>("same");
        QTest::addRow("text") << "title"
                              << "a"
                              << "a" << true;
        QTest::addRow("text lost") << "title"
                                   << "東京"
                                   << "??" << false;
        QTest::addRow("text that looks like a number") << "title"
                                                       << "1.10"
                                                       << "1.1" << true;
        QTest::addRow("text that looks like a boolean") << "title"
                                                        << "TRUE"
                                                        << "true" << true;
        QTest::addRow("case of a text") << "title"
                                        << "A"
                                        << "a" << false;
        QTest::addRow("date") << "date"
                              << "2024-5-6"
                              << "2024-05-06 00:00" << true;
        QTest::addRow("date refused") << "date"
                                      << "last summer"
                                      << "" << false;
        QTest::addRow("stars") << "rating"
                               << "7"
                               << "5" << true;
        QTest::addRow("rating refused") << "rating"
                                        << "five"
                                        << "" << false;
        QTest::addRow("position") << "coords"
                                  << "48.8584 N, 2.2945 W"
                                  << "48.858400, -2.294500" << true;
        QTest::addRow("position that does not parse") << "coords"
                                                      << "abc"
                                                      << "48.858400, 2.294500" << false;
        QTest::addRow("deleted") << "title"
                                 << ""
                                 << "" << true;
        QTest::addRow("not deleted") << "title"
                                     << ""
                                     << "old" << false;
    }
    void verifiesInTheNormalFormOfTheKind()
    {
        QFETCH(QString, id);
        QFETCH(QString, written);
        QFETCH(QString, found);
        ImageRecord record;
        if (!found.isEmpty())
            record.values.insert(id, found);
        const auto keys = SaveVerification::differences({ .scalars = { { id, written } } }, record);
        QTEST(keys.isEmpty(), "same");
    }

    void verifiesListsAndCustoms()
    {
        using Mode = MetadataWriter::ListMode;
        const ImageRecord record{ .lists = { { "keywords", { "a", "b", "5" } } }, .custom = { { "Mood", "calm" } } };
        const auto keys = [&record](const QStringList& items, Mode mode, const QString& mood) {
            return SaveVerification::differences(
                { .lists = { { "keywords", items } }, .customs = { { "mood", mood } }, .listMode = mode }, record);
        };
        QCOMPARE(keys({ " a", "b", "", "5" }, Mode::replace, "calm"), QStringList());
        QCOMPARE(keys({ "b", "a", "5" }, Mode::replace, "calm"), QStringList("keywords"));
        QCOMPARE(keys({ "a" }, Mode::replace, "calm"), QStringList("keywords"));
        QCOMPARE(keys({ "5", "a" }, Mode::append, "wild"), QStringList("custom:mood"));
        QCOMPARE(keys({ "c" }, Mode::append, "calm"), QStringList("keywords"));
        QCOMPARE(SaveVerification::labels({ "jobId", "coords", "custom:mood" }),
            QStringList({ "Job ID", "Coordinates", "mood" }));
    }

    void writesThroughLinksAndKeepsAttributes()
    {
        PhotoFolder folder;
        PhotoFolder elsewhere;
        const QUrl photo = elsewhere.add(u"real.jpg"_s);
        const QByteArray path = QFile::encodeName(photo.toLocalFile());
        QVERIFY(QFile::link(photo.toLocalFile(), folder.path(u"link.jpg"_s)));
        if (setxattr(path.constData(), "user.rated", "yes", 3, 0) != 0)
            QSKIP("the temporary folder's file system has no extended attributes");
        QCOMPARE(chmod(path.constData(), 0640), 0);

        for (const bool backup : { true, false }) {
            realService().write(titlePlan(u"東京"_s), { folder.url(u"link.jpg"_s) }, { .backupOriginals = backup });
            QVERIFY(QFileInfo(folder.path(u"link.jpg"_s)).isSymLink());
            QCOMPARE(tagValue(photo, u"-IPTC:ObjectName"_s), "東京");
            struct stat status { };
            QCOMPARE(stat(path.constData(), &status), 0);
            QCOMPARE(status.st_mode & 07777, mode_t(0640));
            char value[4] = {};
            QCOMPARE(getxattr(path.constData(), "user.rated", value, 3), ssize_t(3));
        }
    }

    void refusesReadOnlyFiles()
    {
        PhotoFolder folder;
        QList<QUrl> urls;
        for (const auto* name : { "a.jpg", "b.jpg", "c.jpg" })
            urls.append(folder.add(QString::fromLatin1(name)));
        QVERIFY(QFile::setPermissions(urls[1].toLocalFile(), QFile::ReadOwner | QFile::ReadGroup));
        const QByteArray before = readFile(urls[0].toLocalFile());
        const auto service = realService();
        QCOMPARE(problem([&] { service.write(titlePlan("x"), { urls[1] }, {}); }), u"b.jpg is read-only."_s);
        QCOMPARE(problem([&] { service.write(titlePlan("x"), urls, {}); }),
            u"1 of 3 photos is read-only: b.jpg; nothing was written."_s);
        QCOMPARE(readFile(urls[0].toLocalFile()), before);
    }

    void dealsWithLeftovers()
    {
        PhotoFolder folder;
        const QUrl photo = folder.add(u"a.jpg"_s);
        const QString leftover = folder.path(u"a.jpg_exiftool_tmp"_s);
        writeFile(leftover, "half");
        const auto service = realService();
        QVERIFY(problem([&] { service.write(titlePlan("x"), { photo }, {}); }).contains(u"a.jpg_exiftool_tmp"_s));
        QVERIFY(QFile::exists(leftover));
        makeOld(leftover, qint64(25) * 60 * 60);
        service.write(titlePlan("x"), { photo }, {});
        QCOMPARE(tagValue(photo, u"-XMP-dc:Title"_s), "x");
        QCOMPARE(folder.names(), QStringList("a.jpg"));
    }

    void cutBetweenItsSteps_data()
    {
        QTest::addColumn<bool>("backup");
        QTest::addRow("with a backup") << true;
        QTest::addRow("without") << false;
    }
    void cutBetweenItsSteps()
    {
        QFETCH(bool, backup);
        bool isCut = true;
        for (int step = 0; isCut; ++step) {
            PhotoFolder folder;
            const QUrl photo = folder.add(u"a.jpg"_s);
            const QString path = photo.toLocalFile();
            isCut = !problem([&] {
                CutTool(step).service().write(titlePlan("x"), { photo }, { .backupOriginals = backup });
            }).isEmpty();
            QVERIFY2(QFile::exists(path), "no photo is left under its name");
            if (isCut)
                QCOMPARE(readFile(path), jpegBytes());
            else
                QCOMPARE(tagValue(photo, u"-XMP-dc:Title"_s), "x");
            const QString original = path + u"_original"_s;
            QCOMPARE(QFile::exists(original), backup && !isCut);
            QVERIFY(!QFile::exists(original) || readFile(original) == jpegBytes());
            QVERIFY(isCut || step > 0);  // the tool was cut at least once
        }
    }

    void namesTheFilesThatFailed_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addRow("in one run") << "x";
        QTest::addRow("in two runs, for their encoding") << "東京";
    }
    void namesTheFilesThatFailed()
    {
        QFETCH(QString, title);
        PhotoFolder folder;
        const QUrl good = folder.add(u"a.jpg"_s);
        const QUrl bad = folder.add(u"b - c.jpg"_s, "text, no photo");
        try {
            realService().write(titlePlan(title), { good, bad }, {});
            QFAIL("a file that is no photo was written to");
        } catch (const ToolError& error) {
            const auto failures = writeFailures(error, { good, bad });
            QCOMPARE(failures.size(), 1);
            QCOMPARE(failures[0].file, bad);
            QVERIFY2(failures[0].reason.startsWith(u"Not a valid JPG"_s), qPrintable(failures[0].reason));
        }
        QCOMPARE(tagValue(good, u"-IPTC:ObjectName"_s), title.toUtf8());
        // One byte that is no text, in a warning about another file, does not hide the names.
        FakeTool tool;
        tool.answerAlways({ .standardError = "Warning: Odd \xff - /p/x.jpg\nError: Odd - /p/y.jpg\n", .exitCode = 1 });
        const QList<QUrl> named{ QUrl::fromLocalFile(u"/p/y.jpg"_s) };
        try {
            MetadataService{ tool.runner() }.write(titlePlan("x"), named, {});
            QFAIL("a failed run passed for a good one");
        } catch (const ToolError& error) {
            QCOMPARE(writeFailures(error, named), (QList<FileFailure>{ { .file = named[0], .reason = u"Odd"_s } }));
        }
        const ToolError silent(ToolError::ExecFailed{ 9, {} });
        QCOMPARE(writeFailures(silent, { good, bad }).size(), 2);
    }

    // XMP knows no reference beside the number of a position: what is written there needs its sign.
    void positionKeepsItsHemisphereInXmp_data()
    {
        QTest::addColumn<QList<double>>("position");
        QTest::addRow("south, west") << QList{ -33.5, -70.25 };
        QTest::addRow("south, east") << QList{ -33.5, 151.25 };
        QTest::addRow("north, west") << QList{ 33.5, -70.25 };
        QTest::addRow("north, east") << QList{ 33.5, 70.25 };
    }
    void positionKeepsItsHemisphereInXmp()
    {
        QFETCH(QList<double>, position);
        PhotoFolder folder;
        const QUrl inBoth = folder.add(u"a.jpg"_s), plain = folder.add(u"b.jpg"_s);
        const QUrl broken = folder.add(u"c.jpg"_s, "text, no photo");
        const QUrl inXmpOnly = folder.add(
            u"d.gif"_s, QByteArray("GIF89a\1\0\1\0\x80\0\0\0\0\0\xff\xff\xff,\0\0\0\0\1\0\1\0\0\2\2D\1\0;", 35));
        exiftool({ "-q", "-overwrite_original", "-XMP-exif:GPSLatitude=1", "-XMP-exif:GPSLongitude=2",
            "-XMP-drone-dji:GPSLatitude=1", "-XMP-drone-dji:GPSLongitude=2", inBoth.toLocalFile() });
        const EditPlan plan{ .scalars = { { "coords", u"%1, %2"_s.arg(position[0]).arg(position[1]) } } };
        QVERIFY(!problem([&] { realService().write(plan, { inBoth, plain, broken, inXmpOnly }, {}); }).isEmpty());
        const auto held = [](const QString& group, const QUrl& photo) {
            QList<double> numbers;
            const QByteArray answer = exiftool({ "-n", "-s3", u"-%1:GPSLatitude"_s.arg(group),
                u"-%1:GPSLongitude"_s.arg(group), photo.toLocalFile() });
            for (const QByteArray& line : answer.trimmed().split('\n'))
                numbers.append(line.toDouble());
            return numbers;
        };
        for (const char* group : { "Composite", "XMP-exif", "XMP-drone-dji" })
            QCOMPARE(held(QString::fromLatin1(group), inBoth), position);
        QCOMPARE(held(u"Composite"_s, plain), position);
        QCOMPARE(exiftool({ "-s3", "-XMP:all", "--XMPToolkit", plain.toLocalFile() }), QByteArray());
        QCOMPARE(held(u"XMP-exif"_s, inXmpOnly), position);
    }

    void takesASaveBack()
    {
        PhotoFolder folder;
        const QUrl a = folder.add(u"a & 'b' <c>.jpg"_s);
        const QUrl b = folder.add(u"b.png"_s);
        const QUrl c = folder.add(u"c.jpg"_s);
        exiftool({ "-q", "-overwrite_original", "-XMP-dc:Title=1.10", "-XMP-dc:Title-de=Zwei\nZeilen & <mehr>",
            "-IPTC:ObjectName=1.10", "-IPTC:Keywords=Süd", "-IPTC:Keywords=b", "-XMP-dc:Subject=Süd",
            "-GPSLatitude=33.5", "-GPSLatitudeRef=S", "-GPSLongitude=70.25", "-GPSLongitudeRef=W", "-IPTC:Urgency=5",
            "-EXIF:DateTimeOriginal=2020:01:02 03:04:05", a.toLocalFile() });
        const auto tags = [](const QUrl& url) {
            auto lines =
                exiftool({ "-G1", "-a", "-s", "-n", "-XMP:all", "-IPTC:all", "-EXIF:all", "--XMPToolkit",
                             "--CodedCharacterSet", "--EnvelopeRecordVersion", "--GPSVersionID", url.toLocalFile() })
                    .split('\n');
            std::sort(lines.begin(), lines.end());  // the order inside a file may change
            return lines;
        };
        const auto beforeA = tags(a);
        const auto beforeB = tags(b);

        const auto service = realService();
        const EditPlan plan{ .scalars = { { "title", u"東京"_s }, { "coords", "1, 2" }, { "urgency", "" },
                                 { "date", "2024-05-06" } },
            .lists = { { "keywords", { u"新"_s } } },
            .customs = { { "mood", "calm" } } };
        const QList<QUrl> all{ a, b, c };
        JournalEntry entry = service.journalEntry(plan, all);
        QCOMPARE(entry.files.size(), 3);
        service.write(plan, all, {});
        for (auto& file : entry.files)
            file.after = *FileStamp::of(file.path);
        QVERIFY(tags(a) != beforeA);

        PhotoFolder state;
        const SaveJournal journal(state.path(u"new/journal"_s));
        const auto loaded = journal.load(journal.add(entry).value());
        QCOMPARE(loaded, entry);

        writeFile(c.toLocalFile(), jpegBytes(9, 9));  // somebody else was there
        const auto outcome = service.undo(*loaded);
        QCOMPARE(outcome.restored.size(), 2);
        QCOMPARE(outcome.changedSince, QList<QUrl>{ c });
        QVERIFY(outcome.failed.isEmpty());
        QCOMPARE(tags(a), beforeA);
        QCOMPARE(tags(b), beforeB);
        QCOMPARE(readFile(c.toLocalFile()), jpegBytes(9, 9));
    }

    // Values and names as other programs leave them: every byte comes back, and of every group and language.
    void takesASaveOfOddTextsBack()
    {
        const QStringList texts{ "-XMP-dc:Title=C:\\\\new \\\\x41", "-IPTC:Caption-Abstract=one\\rtwo\\r\\nthree ",
            "-XMP-dc:Subject=a\\rb", "-XMP-dc:Subject^=", "-IPTC:Keywords=one\\x01two", "-IPTC:Keywords=1.10",
            "-EXIF:Artist=J\\xfcrg", "-EXIF:Copyright=photographer\\x00editor",
            "-EXIF:Software^=", "-XMP-iptcExt:Event=Party", "-XMP-iptcExt:Event-de=Feier", "-XMP-xmp:Rating=2",
            "-XMP-acdsee:Rating=5", "-XMP-drone-dji:GPSLatitude=10.5", "-XMP-exif:GPSLongitude=-20.5" };
        PhotoFolder folder;
        QList<QUrl> photos;
        for (const char* name : { "a b.jpg", "a\tb.jpg", "c\001\r\nd.jpg" })
            photos.append(folder.add(QString::fromLatin1(name)));
        QStringList paths;
        for (const auto& photo : photos)
            paths.append(photo.toLocalFile());
        exiftool(
            QStringList{ "-q", "-ec", "-overwrite_original", "-XMP-photoshop:Headline<$FileName" } + texts + paths);
        const QStringList dump{ "-php", "-b", "-n", "-a", "-G1", "-XMP:all", "-IPTC:all", "-EXIF:all", "--XMPToolkit",
            "--CodedCharacterSet", "--EnvelopeRecordVersion", "--GPSVersionID" };
        const auto tags = [&] {
            auto lines = exiftool(dump + paths).replace("),", ")").replace(",\n", "\n").split('\n');
            std::sort(lines.begin(), lines.end());
            return lines;
        };
        const auto before = tags();

        const auto service = realService();
        EditPlan plan{ .lists = { { "keywords", { u"新"_s } } } };
        for (const char* id : { "title", "description", "creator", "copyright", "software", "event", "headline" })
            plan.scalars.insert(QString::fromLatin1(id), u"新"_s);
        plan.scalars.insert({ { "rating", "3" }, { "coords", "-33.5, 70.25" } });
        // One that is gone by now keeps nobody from the journal.
        JournalEntry entry = service.journalEntry(plan, photos + QList<QUrl>{ folder.url(u"gone.jpg"_s) });
        QCOMPARE(entry.files.size(), photos.size());
        service.write(plan, photos, {});
        for (auto& file : entry.files)
            file.after = *FileStamp::of(file.path);
        QVERIFY(tags() != before);
        PhotoFolder state;
        const SaveJournal journal(state.path(u"journal"_s));
        const auto loaded = journal.load(journal.add(entry).value());
        QCOMPARE(loaded, entry);
        const auto outcome = service.undo(*loaded);
        QCOMPARE(outcome.restored.size(), photos.size());
        QVERIFY(outcome.inexact.isEmpty());
        QCOMPARE(tags(), before);
    }

    // What the tool says of an undo is not all that is known of it: the files are.
    void looksAtWhatItTookBack_data()
    {
        QTest::addColumn<QByteArray>("error");
        QTest::addColumn<QByteArray>("title");  // of b.jpg afterwards
        QTest::addColumn<qsizetype>("restored");
        QTest::addColumn<qsizetype>("inexact");
        QTest::addRow("all is well") << QByteArray() << QByteArray("\"old\"") << qsizetype(2) << qsizetype(0);
        QTest::addRow("refused by the tool") << QByteArray() << QByteArray("\"new\"") << qsizetype(2) << qsizetype(1);
        QTest::addRow("one failed and is named")
            << QByteArray("Error: Odd - ") << QByteArray("\"old\"") << qsizetype(1) << qsizetype(0);
        QTest::addRow("one failed and is named, the other was left out")
            << QByteArray("Error: Odd - ") << QByteArray("\"new\"") << qsizetype(0) << qsizetype(0);
        QTest::addRow("an answer that breaks off")
            << QByteArray() << QByteArray("\"ne") << qsizetype(2) << qsizetype(0);
    }
    void looksAtWhatItTookBack()
    {
        QFETCH(QByteArray, error);
        QFETCH(QByteArray, title);
        PhotoFolder folder;
        const QUrl a = folder.add(u"a.jpg"_s);
        const QUrl b = folder.add(u"b.jpg"_s);
        JournalEntry entry{ .writtenTags = { "XMP-dc:Title" } };
        for (const auto& url : { a, b })
            entry.files.append({ .path = url.toLocalFile(),
                .after = *FileStamp::of(url.toLocalFile()),
                .tags = { { "XMP-dc:Title", { "old" } } } });
        const auto object = [](const QUrl& url, const QByteArray& value) {
            return "Array(\n  \"SourceFile\" => \"" + url.toLocalFile().toUtf8() + "\",\n  \"XMP-dc:Title\" => " + value
                + "\n)";
        };
        FakeTool tool;
        if (!error.isEmpty())
            tool.answer(1, { .standardError = error + a.toLocalFile().toUtf8() + '\n', .exitCode = 1 });
        tool.answer(2, { .standardOutput = "Array(" + object(a, "\"old\"") + ",\n" + object(b, title) + ");\n" });
        const auto outcome = MetadataService{ tool.runner() }.undo(entry);
        QTEST(outcome.restored.size(), "restored");
        QTEST(outcome.inexact.size(), "inexact");
        QCOMPARE(outcome.restored.size() + outcome.failed.size(), 2);
    }

    void journalKeepsTheNewestAndFollows()
    {
        PhotoFolder folder;
        const QString photo = folder.add(u"a.jpg"_s).toLocalFile();
        const SaveJournal journal(folder.path(u"journal"_s));
        const auto entryOf = [&photo](int i) {
            return JournalEntry{ .savedAt = QDateTime::fromMSecsSinceEpoch(i, Qt::UTC),
                .writtenTags = { QString::number(i) },
                .files = { { .path = photo, .before = { i, i }, .after = { i + 1, i + 1 } } } };
        };
        for (int i = 0; i < SaveJournal::limit + 5; ++i)
            QVERIFY(journal.add(entryOf(i)));
        const QList<qint64> saves = journal.saves();
        QCOMPARE(saves.size(), SaveJournal::limit);
        const JournalEntry last = journal.load(saves.constLast()).value();
        QCOMPARE(last, entryOf(SaveJournal::limit + 4));

        QVERIFY(journal.removeUndone(saves.constLast(), last, {}));  // the file now stands as the save before left it
        QCOMPARE(journal.saves(), saves.first(saves.size() - 1));
        QCOMPARE(journal.load(saves.at(saves.size() - 2))->files[0].after, FileStamp::of(photo).value());
        QVERIFY(journal.noteRenames({ { photo, u"/there.jpg"_s }, { u"/there.jpg"_s, u"/elsewhere.jpg"_s } }));
        QCOMPARE(journal.load(saves.constFirst())->files[0].path, u"/elsewhere.jpg"_s);
        // Two that swap their names, told twice.
        for (int times = 0; times < 2; ++times)
            QVERIFY(journal.noteRenamesTogether(
                u"id"_s, { { u"/elsewhere.jpg"_s, u"/x.jpg"_s }, { u"/x.jpg"_s, u"/elsewhere.jpg"_s } }));
        QCOMPARE(journal.load(saves.constFirst())->files[0].path, u"/x.jpg"_s);
        // A later save of a photo with the old name is another photo's.
        QCOMPARE(journal.load(journal.add(entryOf(1)).value())->files[0].path, photo);

        const QStringList names = QDir(folder.path(u"journal"_s)).entryList(QDir::Files);
        writeFile(folder.path(u"journal/"_s + names.constFirst()), "{ half a journal");
        QCOMPARE(journal.load(journal.saves().constFirst()), std::nullopt);
        for (const QString& name : names) {
            QCOMPARE(QFile::permissions(folder.path(u"journal/"_s + name)) & (QFile::ReadGroup | QFile::ReadOther),
                QFile::Permissions());
        }
    }

    void journalFollowsSidecars_data()
    {
        QTest::addColumn<QString>("sidecar");
        QTest::addColumn<bool>("isForItself");
        QTest::addColumn<QString>("renamed");
        QTest::addColumn<QString>("now");  // after one rename, and after one of many
        const QString a = u"/a.CR3"_s;
        QTest::newRow("mirror") << u"/a.xmp"_s << false << a << u"/b.xmp /b.xmp"_s;
        QTest::newRow("of the whole name") << u"/a.CR3.xmp"_s << true << a << u"/b.CR3.xmp /b.CR3.xmp"_s;
        QTest::newRow("in capitals") << u"/a.XMP"_s << true << a << u"/b.XMP /b.XMP"_s;
        QTest::newRow("mirror, another photo of the name") << u"/a.xmp"_s << false << u"/a.png"_s << u"/b.xmp /b.xmp"_s;
        QTest::newRow("edits, another photo of the name") << u"/a.xmp"_s << true << u"/a.jpg"_s << u"/a.xmp /b.xmp"_s;
        QTest::newRow("another photo") << u"/a.xmp"_s << true << u"/aa.CR3"_s << u"/a.xmp /a.xmp"_s;
    }
    void journalFollowsSidecars()
    {
        QFETCH(QString, sidecar);
        QFETCH(bool, isForItself);
        QFETCH(QString, renamed);
        const PhotoFolder folder;
        JournalFile file{ .path = isForItself ? sidecar : u"/a.CR3"_s, .link = isForItself ? u"/a.CR3"_s : QString() };
        file.sidecar.path = sidecar;
        const QString to = u"/b"_s + renamed.sliced(renamed.lastIndexOf(u'.'));
        QStringList now;
        for (const bool areTogether : { false, true }) {
            const SaveJournal journal(folder.path(areTogether ? u"together"_s : u"single"_s));
            const qint64 save = journal.add({ .files = { file } }).value();
            QVERIFY(areTogether ? journal.noteRenamesTogether(u"id"_s, { { renamed, to } })
                                : journal.noteRenames({ { renamed, to } }));
            const JournalFile followed = journal.load(save)->files.constFirst();
            QCOMPARE(followed.path == followed.sidecar.path, isForItself);
            now.append(followed.sidecar.path);
        }
        QTEST(now.join(u' '), "now");
    }

    void clearsOnlyItsAbandonedTemporaryFiles()
    {
        const PhotoFolder folder;
        const QString ours = TemporaryFiles::newConfigName();
        const QString young = TemporaryFiles::newConfigName();
        const QStringList abandoned{ ours, ours + u".aB3xYz"_s };
        const QStringList halfWritten{ u"unsaved.json.aB3xYz"_s, u"unsaved-2.json.aB3xYz"_s };
        const QStringList kept{ u"quorbel-notes.conf"_s, ours + u".kept"_s, young, u"unsaved.json"_s,
            u"unsaved.json.backup2"_s, u"unsaved-2.json.damaged"_s };
        for (const auto& name : abandoned + halfWritten + kept) {
            writeFile(folder.path(name), "x");
            QFile file(folder.path(name));
            QVERIFY(file.open(QIODevice::ReadWrite));
            const int age = name == young ? 3500 : 3700;  // seconds
            QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-age), QFileDevice::FileModificationTime));
        }
        QCOMPARE(TemporaryFiles::clearAbandoned(folder.path()), 2);
        QCOMPARE(TemporaryFiles::clearHalfWritten(folder.path()), 2);
        QStringList left = kept;
        left.sort();
        QCOMPARE(folder.names(), left);
    }
};

QTEST_GUILESS_MAIN(tst_SaveSafety)
#include "tst_SaveSafety.moc"
