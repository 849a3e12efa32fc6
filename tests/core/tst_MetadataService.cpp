// The service against a recorded tool: exact command lines, matching, failures, what is left behind.
#include "core/MetadataService.h"
#include "core/tool/MetadataReader.h"
#include "tests/support/Support.h"

#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

QJsonObject titled(const QString& sourceFile, const QString& title)
{
    return { { "SourceFile", sourceFile }, { "XMP:Title", title } };
}

QStringList titles(const QList<ImageRecord>& records)
{
    QStringList list;
    for (const auto& record : records)
        list.append(record.values.value(u"title"_s, u"-"_s));
    return list;
}

template <typename Call>
bool failsWith(qint32 code, Call call)
{
    try {
        call();
    } catch (const ToolError& error) {
        const auto* failure = std::get_if<ToolError::ExecFailed>(&error.payload());
        return failure && failure->code == code;
    }
    return false;
}

}  // namespace

class tst_MetadataService : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void readsInTwoRuns()
    {
        FakeTool tool;
        const QList<QUrl> urls{ QUrl::fromLocalFile(u"/p/a.jpg"_s), QUrl::fromLocalFile(u"/p/b.jpg"_s) };
        const auto records = MetadataService{ tool.runner() }.read(urls);
        QStringList main{ "-json", "-G0", "-struct", "-c", "%.6f" };
        for (const auto& tag : MetadataReader::readTags())
            main.append(u'-' + tag);
        QCOMPARE(tool.calls(),
            (QList<QStringList>{ main + QStringList{ "/p/a.jpg", "/p/b.jpg" },
                { "-json", "-G1", "-struct", "-XMP-Quorbel:all", "/p/a.jpg", "/p/b.jpg" } }));
        QCOMPARE(records.size(), 2);  // silence: records that hold names only
        QCOMPARE(records[1].fileName, u"b.jpg"_s);
        QCOMPARE(records[1].fileType, u"JPG"_s);
        QVERIFY(!records[1].contentModificationDate);
        QVERIFY(MetadataService{ tool.runner() }.read({}).isEmpty());
        QCOMPARE(tool.calls().size(), 2);
    }

    void matchesObjectsToFiles_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char* name, const QList<QJsonObject>& objects, const QStringList& expected) {
            QTest::addRow("%s", name) << toolJson(objects) << expected;
        };
        row("any order", { titled("/p/c.jpg", "C"), titled("/p/a.jpg", "A"), titled("/p/b.jpg", "B") },
            { "A", "B", "C" });
        row("path spelled differently",
            { titled("/p/c.jpg", "C"), titled("/p/./b.jpg", "B"), titled("/p/x/..//a.jpg", "A") }, { "A", "B", "C" });
        row("unknown path: by position",
            { titled("/p/a.jpg", "A"), titled("/p/?.jpg", "second"), titled("/p/c.jpg", "C") }, { "A", "second", "C" });
        row("fewer objects than files", { titled("/p/b.jpg", "B") }, { "B", "B", "-" });
        row("a later object replaces an earlier one",
            { titled("/p/a.jpg", "A"), titled("/p/b.jpg", "old"), titled("/p/b.jpg", "B") }, { "A", "B", "B" });
    }

    void matchesObjectsToFiles()
    {
        QFETCH(QByteArray, json);
        QFETCH(QStringList, expected);
        FakeTool tool;
        tool.answer(1, { .standardOutput = json });
        // The custom run has no say by position, and is matched by path as well.
        tool.answer(2,
            { .standardOutput = toolJson({ { { "SourceFile", "/p/z.jpg" }, { "XMP-Quorbel:Mood", "lost" } },
                  { { "SourceFile", "/p/c.jpg" }, { "XMP-Quorbel:Mood", "calm" } } }) });
        const auto records = MetadataService{ tool.runner() }.read({ QUrl::fromLocalFile(u"/p/a.jpg"_s),
            QUrl::fromLocalFile(u"/p/b.jpg"_s), QUrl::fromLocalFile(u"/p/c.jpg"_s) });
        QCOMPARE(titles(records), expected);
        QVERIFY(records[0].custom.isEmpty() && records[1].custom.isEmpty());
        QCOMPARE(records[2].custom, (QList<CustomValue>{ { "Mood", "calm" } }));
    }

    void progressOfAllRuns_data()
    {
        QTest::addColumn<bool>("searches");
        QTest::addRow("two runs") << false;
        QTest::addRow("three, to find a culprit") << true;
    }

    void progressOfAllRuns()
    {
        QFETCH(bool, searches);
        const PhotoFolder folder;
        QList<QUrl> urls;
        QList<QJsonObject> objects;
        for (int i = 0; i < 8; ++i) {
            urls.append(folder.add(QString::number(i) + u".jpg"_s));
            objects.append(titled(urls.last().toLocalFile(), u"x"_s));
        }
        FakeTool tool;
        // In pieces so small that each file is counted by itself.
        tool.answerAlways({ .standardOutput = toolJson(objects), .pieceSize = 40 });
        if (searches)
            tool.answer(1, { .standardOutput = toolJson(objects), .exitCode = 1, .pieceSize = 40 });
        QList<qsizetype> seen;
        const MetadataService service{ tool.runner() };
        const auto read = service.readEach(urls, { .progress = [&](qsizetype done) { seen.append(done); } });
        QCOMPARE(read.records.size(), 8);
        QVERIFY(std::is_sorted(seen.cbegin(), seen.cend()));
        // Pieces may arrive together, but not all of a run as one.
        QVERIFY(std::any_of(seen.cbegin(), seen.cend(), [](qsizetype done) { return done > 0 && done < 4; }));
        QVERIFY(std::any_of(seen.cbegin(), seen.cend(), [](qsizetype done) { return done > 4 && done < 8; }));
        QCOMPARE(seen.last(), 8);
        QCOMPARE(tool.calls().size(), searches ? 3 : 2);
    }

    void eitherRunCanFailARead()
    {
        const QList<QUrl> urls{ QUrl::fromLocalFile(u"/p/a.jpg"_s) };
        for (const int failing : { 1, 2 }) {
            FakeTool tool;
            tool.answerAlways({ .standardOutput = toolJson({ titled("/p/a.jpg", "A") }) });
            tool.answer(failing, { .standardOutput = "[{}]", .standardError = "Error", .exitCode = 7 });
            QVERIFY(failsWith(7, [&] { MetadataService{ tool.runner() }.read(urls); }));
            QCOMPARE(tool.calls().size(), failing);
        }
    }

    void writes_data()
    {
        QTest::addColumn<EditPlan>("plan");
        QTest::addColumn<WriteOptions>("options");
        QTest::addColumn<QList<QStringList>>("calls");  // CONFIG stands for the configuration file
        const auto row = [](const char* name, const EditPlan& plan, const WriteOptions& options,
                             const QList<QStringList>& calls) {
            QTest::addRow("%s", name) << plan << options << calls;
        };
        const QStringList files{ "/p/a.jpg", "/p/b.c.png" };
        row("nothing", {}, {}, {});
        row("unknown fields only", { .scalars = { { "Title", "x" } }, .lists = { { "no", { "x" } } } }, {}, {});
        row("a custom name that cannot be stored", { .customs = { { "123", "x" } } }, { true, true }, {});
        row("scalars, then lists, then customs",
            { .scalars = { { "category", "SPO" }, { "offsetOriginal", "" } },
                .lists = { { "people", { "Ann", " Bo " } } },
                .customs = { { "My mood", "calm" }, { "A", "" } } },
            {},
            { QStringList{ "-config", "CONFIG", "-overwrite_original", "-m", "-IPTC:Category=SPO",
                  "-EXIF:OffsetTimeOriginal=", "-XMP-iptcExt:PersonInImage=", "-XMP-iptcExt:PersonInImage=Ann",
                  "-XMP-iptcExt:PersonInImage=Bo", "-XMP-Quorbel:Mymood=calm", "-XMP-Quorbel:A=" }
                + files });
        row("appended, with backups",
            { .lists = { { "people", { "Ann" } } }, .listMode = MetadataWriter::ListMode::append }, { true, false },
            { QStringList{ "-m", "-XMP-iptcExt:PersonInImage-=Ann", "-XMP-iptcExt:PersonInImage+=Ann" } + files });
        row("sidecars", { .scalars = { { "category", "x" } } }, { true, true },
            { QStringList{ "-m", "-IPTC:Category=x" } + files,
                { "-overwrite_original", "-m", "-tagsfromfile", "/p/a.jpg", "-xmp:all", "/p/a.xmp" },
                { "-overwrite_original", "-m", "-tagsfromfile", "/p/b.c.png", "-xmp:all", "/p/b.c.xmp" } });
    }

    void writes()
    {
        QFETCH(EditPlan, plan);
        QFETCH(WriteOptions, options);
        QFETCH(QList<QStringList>, calls);
        FakeTool tool;
        const TemporaryFilesProbe temporary;
        tool.answerAlways({ .standardError = "a sidecar's failure", .exitCode = 1 });
        tool.answer(1, { .standardOutput = "2 image files updated\n" });
        const QString output = MetadataService{ tool.runner() }.write(
            plan, { QUrl::fromLocalFile(u"/p/a.jpg"_s), QUrl::fromLocalFile(u"/p/b.c.png"_s) }, options);
        QCOMPARE(output, calls.isEmpty() ? QString() : u"2 image files updated\n"_s);
        auto made = tool.calls();
        if (!made.isEmpty() && made.first().first() == QLatin1String("-config")) {
            static const QRegularExpression name(u"/quorbel-[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\\.conf$"_s);
            QVERIFY2(made.first()[1].startsWith(temporary.path()) && name.match(made.first()[1]).hasMatch(),
                qPrintable(made.first()[1]));
            made.first()[1] = u"CONFIG"_s;
            QCOMPARE(tool.config(1), "600\n" + MetadataWriter::customConfig({ "A", "My mood" }).toUtf8());
        }
        QCOMPARE(made, calls);
        QCOMPARE(temporary.names(), QStringList{});
        QCOMPARE(MetadataService{ tool.runner() }.write(plan, {}, options), QString());
    }

    // One save with every kind of field, the texts' encoding and the position's sign in runs of their own.
    void writesEveryKindOfField()
    {
        const EditPlan plan{ .scalars = { { "title", "a=b+=c" }, { "description", "" }, { "date", "2024-5-6" },
                                 { "rating", "9" }, { "coords", "33.5 S, 70.25 E" }, { "category", u"東京"_s },
                                 { "offsetOriginal", "+02:00" } },
            .lists = { { "keywords", { "x", " y=z " } } },
            .customs = { { "My mood", "-calm=" } } };
        FakeTool tool;
        MetadataService{ tool.runner() }.write(plan, { QUrl::fromLocalFile(u"/p/a.jpg"_s) }, {});
        auto calls = tool.calls();
        QCOMPARE(calls.size(), 4);
        QCOMPARE(calls.takeFirst().last(2), (QStringList{ "-IPTC:all", "/p/a.jpg" }));
        QCOMPARE(calls[0].last(2), (QStringList{ "-IPTC:CodedCharacterSet=UTF8", "/p/a.jpg" }));
        QCOMPARE(calls[1].sliced(2),
            (QStringList{ "-overwrite_original", "-m", u"-IPTC:Category=東京"_s, "-GPSLatitude=33.500000",
                "-GPSLatitudeRef=S", "-GPSLongitude=70.250000", "-GPSLongitudeRef=E",
                "-EXIF:DateTimeOriginal=2024:05:06 00:00:00", "-XMP-photoshop:DateCreated=2024:05:06 00:00:00",
                "-XMP-dc:Description=", "-IPTC:Caption-Abstract=", "-EXIF:ImageDescription=",
                "-EXIF:OffsetTimeOriginal=+02:00", "-XMP:Rating=5", "-XMP-dc:Title=a=b+=c", "-IPTC:ObjectName=a=b+=c",
                "-IPTC:Keywords=", "-IPTC:Keywords=x", "-IPTC:Keywords=y=z", "-XMP-dc:Subject=", "-XMP-dc:Subject=x",
                "-XMP-dc:Subject=y=z", "-XMP-Quorbel:Mymood=-calm=", "/p/a.jpg" }));
        QCOMPARE(calls[2],
            (QStringList{ "-overwrite_original", "-m", "-n", "-wm", "w", "-XMP:GPSLatitude=-33.500000",
                "-XMP:GPSLongitude=70.250000", "/p/a.jpg" }));
    }

    // What the journal reads of that, and what undo writes back, byte for byte.
    void undoesByStoredValues()
    {
        const PhotoFolder folder;
        const QUrl photo = folder.add(u"a.jpg"_s);
        const QString path = photo.toLocalFile();
        const QByteArray before = "Array(Array(\n  \"SourceFile\" => \"" + path.toUtf8()
            + "\",\n  \"GPS:GPSLatitude\" => 33.5,\n  \"IPTC:Keywords\" => Array(\"a\\\\b\", \"\", \"1.10\"),\n"
              "  \"XMP-dc:Title-de\" => \"Süd\\nJ\xFCrg\",\n  \"XMP-Quorbel:Mood\" => \"calm\",\n"
              "  \"XMP-Quorbel:Other\" => \"not touched\"\n));\n";
        const EditPlan plan{ .scalars = { { "coords", "-1, 2" }, { "title", "x" } },
            .lists = { { "keywords", { "x" } } },
            .customs = { { "mood", "wild" } },
            .listMode = MetadataWriter::ListMode::append };
        FakeTool tool;
        tool.answerAlways({ .standardOutput = before });
        const MetadataService service{ tool.runner() };
        const auto outcome = service.undo(service.journalEntry(plan, { photo }));
        QCOMPARE(outcome.restored, QList<QUrl>{ photo });
        QVERIFY(outcome.inexact.isEmpty());
        const QStringList dump{ "-php", "-G1", "-a", "-n", "-b", "-GPS:GPSLatitude", "-XMP:GPSLatitude",
            "-GPS:GPSLatitudeRef", "-XMP:GPSLatitudeRef", "-GPS:GPSLongitude", "-XMP:GPSLongitude",
            "-GPS:GPSLongitudeRef", "-XMP:GPSLongitudeRef", "-XMP-dc:Title", "-XMP-dc:Title-*", "-IPTC:ObjectName",
            "-IPTC:Keywords", "-XMP-dc:Subject", "-XMP-Quorbel:all" };
        auto calls = tool.calls();
        QCOMPARE(calls.size(), 3);
        // Before the save, the type says which tags the file has a place for, and the block what items that only XMP
        // holds would meet in IPTC.
        QCOMPARE(calls[0],
            dump.first(dump.size() - 1)
                + QStringList(
                    { "-IPTC:IPTC", "-IPTC:CodedCharacterSet", dump.constLast(), "-File:FileType", "-Error", path }));
        QCOMPARE(calls[1].sliced(2),
            (QStringList{ "-overwrite_original", "-m", "-ec", "-GPSLatitude=", "-GPSLatitudeRef=", "-GPSLongitude=",
                "-GPSLongitudeRef=", "-XMP-dc:Title=", "-IPTC:ObjectName=", "-IPTC:Keywords=", "-XMP-dc:Subject=",
                "-XMP-Quorbel:mood=", "-GPS:GPSLatitude#=33.5", "-IPTC:Keywords#=a\\\\b", "-IPTC:Keywords#^=",
                "-IPTC:Keywords#=1.10", "-XMP-Quorbel:Mood#=calm", "-XMP-dc:Title-de#=S\\xc3\\xbcd\nJ\\xfcrg", path }));
        QCOMPARE(calls[2], dump + QStringList{ path });
    }

    void failedWriteLeavesNothing()
    {
        FakeTool tool;
        const TemporaryFilesProbe temporary;
        const QList<QUrl> targets{ QUrl::fromLocalFile(u"/p/a.jpg"_s) };
        const EditPlan plan{ .customs = { { "Mood", "calm" } } };
        tool.answer(1, { .standardOutput = "half", .signal = 9 });
        QVERIFY(failsWith(9, [&] { MetadataService{ tool.runner() }.write(plan, targets, { false, true }); }));
        QCOMPARE(tool.calls().size(), 1);  // no sidecar after a failed write
        auto withoutPerl = tool.runner();
        withoutPerl.perlURL = QUrl::fromLocalFile(u"/nowhere/perl"_s);
        QVERIFY_THROWS_EXCEPTION(ToolError, MetadataService{ withoutPerl }.write(plan, targets, {}));
        QCOMPARE(temporary.names(), QStringList{});
    }

    void configurationThatCannotBeWritten()
    {
        FakeTool tool;
        const QByteArray before = qgetenv("TMPDIR");
        for (const char* directory : { "/nowhere", "/dev/null" }) {
            qputenv("TMPDIR", directory);
            QString text;
            try {
                MetadataService{ tool.runner() }.write(
                    { .customs = { { "Mood", "calm" } } }, { QUrl::fromLocalFile(u"/p/a.jpg"_s) }, {});
            } catch (const FileError& error) {
                text = error.description();
            }
            QVERIFY2(text.contains(QLatin1String(directory)), qPrintable(text));
        }
        qputenv("TMPDIR", before);
        QVERIFY(tool.calls().isEmpty());
    }

    void renames_data()
    {
        QTest::addColumn<QStringList>("before");
        QTest::addColumn<QStringList>("after");  // name=first owner of the content
        QTest::addRow("alone") << QStringList{ "a.jpg" } << QStringList{ "b.jpg=a.jpg" };
        QTest::addRow("with companions") << QStringList{ "a.jpg", "a.xmp",
            "a.jpg_original" } << QStringList{ "b.jpg=a.jpg", "b.jpg_original=a.jpg_original", "b.xmp=a.xmp" };
        QTest::addRow("never replaces a photo")
            << QStringList{ "a.jpg", "a.xmp", "b.jpg" } << QStringList{ "a.jpg=a.jpg", "a.xmp=a.xmp", "b.jpg=b.jpg" };
        QTest::addRow("never replaces a companion")
            << QStringList{ "a.jpg", "a.xmp", "b.xmp", "a.jpg_original", "b.jpg_original" }
            << QStringList{ "a.jpg_original=a.jpg_original", "a.xmp=a.xmp", "b.jpg=a.jpg",
                   "b.jpg_original=b.jpg_original", "b.xmp=b.xmp" };
        QTest::addRow("source is gone") << QStringList{ "a.xmp" } << QStringList{ "a.xmp=a.xmp" };
    }

    void renames()
    {
        QFETCH(QStringList, before);
        QFETCH(QStringList, after);
        const PhotoFolder folder;
        for (const auto& name : before)
            folder.add(name, name.toUtf8());
        const MetadataService service;
        const bool moves = after.contains(u"b.jpg=a.jpg"_s);
        QString error;
        try {
            service.renameFile(folder.url(u"a.jpg"_s), folder.url(u"b.jpg"_s));
        } catch (const FileError& failure) {
            error = failure.description();
        }
        QCOMPARE(error.isEmpty(), moves);
        QVERIFY(moves || error.contains(folder.path(u"a.jpg"_s)));
        QStringList found;
        for (const auto& name : folder.names())
            found.append(name + u'=' + QString::fromUtf8(readFile(folder.path(name))));
        QCOMPARE(found, after);
    }
};

QTEST_GUILESS_MAIN(tst_MetadataService)
#include "tst_MetadataService.moc"
