// The runner against a tool that records what it is given and misbehaves on demand.
#include "core/tool/ExifToolRunner.h"
#include "tests/support/Support.h"

#include <QDir>
#include <QTest>

#include <csignal>
#include <thread>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

using Answer = FakeTool::Answer;

QList<QUrl> files(int count)
{
    QList<QUrl> urls;
    for (int i = 0; i < count; ++i)
        urls.append(QUrl::fromLocalFile(u"/photos/%1.jpg"_s.arg(i)));
    return urls;
}

QByteArray replyFor(const QList<QUrl>& urls)
{
    QList<QJsonObject> objects;
    for (const auto& url : urls)
        objects.append({ { "SourceFile", url.toLocalFile() }, { "XMP:Title", "\n  \"SourceFile\": no" },
            { "XMP:Nested", QJsonObject{ { "SourceFile", "inner" } } } });
    return toolJson(objects);
}

// The tool error that the call throws; fails the test by an unlikely one when it throws none.
template <typename Call>
ToolError::Payload thrownBy(Call call)
{
    try {
        call();
    } catch (const ToolError& error) {
        return error.payload();
    }
    return ToolError::DecodeFailed{ u"nothing was thrown"_s };
}

}  // namespace

class tst_ExifToolRunner : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QTest::failOnWarning(QRegularExpression(u"."_s));
        qunsetenv("QUORBEL_EXIFTOOL");
    }

    void locates_data()
    {
        QTest::addColumn<QString>("environment");
        QTest::addColumn<QStringList>("existing");
        QTest::addColumn<QString>("found");
        const QString share = u"1/2/3/4/5/6/7/prefix/share/quorbel/exiftool/exiftool"_s;
        const auto vendor = [](const QString& at) { return at + u"vendor/exiftool/exiftool"_s; };
        const QString nearest = vendor(u"1/2/3/4/5/6/7/"_s);
        const QString farthest = vendor(u"1/2/"_s);
        QTest::addRow("its own directory wins over a checkout") << "" << QStringList{ share, nearest } << share;
        QTest::addRow("nearest vendor directory") << "" << QStringList{ nearest, farthest } << nearest;
        QTest::addRow("sixth level up") << "" << QStringList{ farthest } << farthest;
        QTest::addRow("seventh level is too far") << "" << QStringList{ vendor(u"1/"_s) } << "";
        QTest::addRow("not beside bin and share") << "" << QStringList{ vendor(u"1/2/3/4/5/6/7/prefix/"_s) } << "";
        QTest::addRow("environment wins, executable or not") << "mine" << QStringList{ share, u"mine"_s } << "mine";
        QTest::addRow("environment names nothing") << "gone" << QStringList{ share } << share;
    }

    void locates()
    {
        QFETCH(QString, environment);
        QFETCH(QStringList, existing);
        QFETCH(QString, found);
        const PhotoFolder folder;
        for (const auto& name : existing) {
            QVERIFY(QDir().mkpath(QFileInfo(folder.path(name)).path()));
            writeFile(folder.path(name), {});
        }
        if (!environment.isEmpty())
            qputenv("QUORBEL_EXIFTOOL", QFile::encodeName(folder.path(environment)));
        const auto runner = ExifToolRunner::locate(folder.path(u"1/2/3/4/5/6/7/prefix"_s));
        qunsetenv("QUORBEL_EXIFTOOL");
        QCOMPARE(runner.has_value(), !found.isEmpty());
        if (runner) {
            QCOMPARE(runner->exiftoolURL, folder.url(found));
            QCOMPARE(runner->perlURL, QUrl::fromLocalFile(u"/usr/bin/perl"_s));
        }
    }

    void commandLines()
    {
        FakeTool tool;
        const auto runner = tool.runner();
        const QUrl odd = QUrl::fromLocalFile(u"/photos/$HOME 'a' \"b\"\nc.jpg"_s);
        const QString oddPath = odd.toLocalFile();
        const QUrl config = QUrl::fromLocalFile(u"/dev/null"_s);
        const QList<QUrl> photos{ odd, files(1).first() };
        runner.read({ u"XMP:Title"_s, u"FileSize#"_s }, photos);
        runner.readCustomNamespace(photos);
        const WriteCommand one{ .assignments = { { .tag = u"A"_s, .value = u"1"_s } } };
        runner.write(
            { .options = { u"-ec"_s }, .assignments = { { .tag = u"A"_s, .value = u"$x y"_s }, { .tag = u"B"_s } } },
            photos, false);
        runner.write(one, { odd }, true, config);
        runner.write(one, { odd }, false, config);
        runner.readBinary({ u"PreviewImage"_s, u"EXIF:Orientation"_s }, odd);
        // None of these starts the tool.
        runner.write({}, photos, false);
        runner.write(one, {}, false);
        QVERIFY(runner.read({ u"XMP:Title"_s }, {}).isEmpty());
        const QString zero = u"/photos/0.jpg"_s;
        const QList<QStringList> expected{
            { "-json", "-G0", "-struct", "-c", "%.6f", "-XMP:Title", "-FileSize#", oddPath, zero },
            { "-json", "-G1", "-struct", "-XMP-Quorbel:all", oddPath, zero },
            { "-overwrite_original", "-m", "-ec", "-A=$x y", "-B=", oddPath, zero },
            { "-config", "/dev/null", "-m", "-A=1", oddPath },
            { "-config", "/dev/null", "-overwrite_original", "-m", "-A=1", oddPath },
            { "-json", "-b", "-n", "-PreviewImage", "-EXIF:Orientation", oddPath },
        };
        QCOMPARE(tool.calls(), expected);
    }

    void fails_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::addRow("standard error") << Answer{
            .standardOutput = "[{}]", .standardError = "Error: x\n", .exitCode = 1
        } << 1 << "Error: x\n";
        QTest::addRow("standard output, when that is all")
            << Answer{ .standardOutput = "said here", .exitCode = 255 } << 255 << "said here";
        QTest::addRow("error text that is no UTF-8")
            << Answer{ .standardOutput = "fine", .standardError = "\xFF", .exitCode = 2 } << 2 << "fine";
        QTest::addRow("killed") << Answer{ .standardOutput = "[{}]", .standardError = "half", .signal = SIGKILL }
                                << int(SIGKILL) << "half";
    }

    void fails()
    {
        QFETCH(Answer, answer);
        QFETCH(int, code);
        QFETCH(QString, text);
        FakeTool tool;
        tool.answerAlways(answer);
        const ToolError::Payload expected = ToolError::ExecFailed{ code, text };
        QVERIFY(thrownBy([&] { tool.runner().read({ u"T"_s }, files(1)); }) == expected);
        QVERIFY(thrownBy([&] { tool.runner().write({ .assignments = { { .tag = u"T"_s } } }, files(1), true); })
            == expected);
    }

    void cannotStart()
    {
        const PhotoFolder folder;
        auto runner = FakeTool().runner();  // its script is gone with it
        const auto read = [&runner] { runner.read({ u"T"_s }, files(1)); };
        QVERIFY(thrownBy(read) == ToolError::Payload(ToolError::ToolNotFound{}));
        const FakeTool tool;
        runner = tool.runner();
        runner.perlURL = folder.url(u"perl"_s);
        QVERIFY(thrownBy(read) == ToolError::Payload(ToolError::PerlNotFound{ runner.perlURL }));
        folder.add(u"perl"_s, "not a program");
        QVERIFY_THROWS_EXCEPTION(LaunchError, read());
    }

    void undecodable_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QString>("quoted");
        QTest::addRow("garbage") << QByteArray("  no JSON \n") << "no JSON";
        QTest::addRow("half an array") << QByteArray("[{\"A\": 1},\n{\"B\": ") << "[{\"A\": 1},\n{\"B\":";
        QTest::addRow("no array") << QByteArray("{}") << "{}";
        QTest::addRow("no objects") << QByteArray("[{}, 1]") << "[{}, 1]";
        QTest::addRow("400 characters, not bytes") << QByteArray("[") + QByteArray("\xF0\x9F\x8C\xB2").repeated(500)
                                                   << u'[' + QString::fromUtf8("\xF0\x9F\x8C\xB2").repeated(399);
    }

    void undecodable()
    {
        QFETCH(QByteArray, output);
        QFETCH(QString, quoted);
        FakeTool tool;
        tool.answerAlways({ .standardOutput = output });
        const auto payload = thrownBy([&] { tool.runner().read({ u"T"_s }, files(2)); });
        const auto* failure = std::get_if<ToolError::DecodeFailed>(&payload);
        QVERIFY(failure);
        QVERIFY2(failure->detail.endsWith(u" — output: "_s + quoted), qPrintable(failure->detail));
        QVERIFY(failure->detail.indexOf(u" — output: "_s) > 5);  // the decoder's reason stands before it
    }

    void silenceIsAnEmptyObjectPerFile()
    {
        FakeTool tool;
        tool.answer(1, { .standardOutput = " \n" });
        tool.answer(2, { .standardOutput = "[{\"A\": \"\xFC\"}]" });  // Latin 1
        tool.answer(3, { .standardOutput = "\xFF" });
        const QList<JSONObject> empty(3);
        QCOMPARE(tool.runner().read({ u"T"_s }, files(3)), empty);
        QCOMPARE(tool.runner().read({ u"T"_s }, files(3)), empty);
        QCOMPARE(tool.runner().write({ .assignments = { { .tag = u"T"_s } } }, files(1), true), QString());
    }

    void outputAsPrinted()
    {
        FakeTool tool;
        tool.answer(1, { .standardOutput = "12.57\n" });
        tool.answer(2, { .standardOutput = "    1 image files updated\n" });
        tool.answer(3, { .standardOutput = R"([{"SourceFile": "a", "T": "base64:/9gACg==", "U": 6}])" });
        QCOMPARE(tool.runner().version(), u"12.57"_s);
        QCOMPARE(tool.runner().write({ .assignments = { { .tag = u"T"_s } } }, files(1), true),
            u"    1 image files updated\n"_s);
        const auto found = tool.runner().readBinary({ u"T"_s, u"U"_s }, files(1).first());
        QCOMPARE(found.value(u"T"_s), QByteArray("\xFF\xD8\0\n", 4));
        QCOMPARE(found.value(u"U"_s), QByteArray("6"));
    }

    void muchOnBothPipes()
    {
        FakeTool tool;
        tool.answerAlways({ .standardOutput = replyFor(files(20'000)), .noiseBytes = 50'000'000 });
        QCOMPARE(tool.runner().read({ u"T"_s }, files(20'000)).size(), 20'000);
    }

    void longCommandLine()
    {
        // More than the 2 MiB that the usual stack limit allows.
        QList<QUrl> many;
        for (int i = 0; i < 20'000; ++i)
            many.append(QUrl::fromLocalFile(u'/' + u"directory/"_s.repeated(24) + QString::number(i)));
        FakeTool tool;
        tool.runner().readCustomNamespace(many);
        QCOMPARE(tool.calls().first().size(), many.size() + 4);
        // More than Linux carries at all is an error that says so.
        QVERIFY_THROWS_EXCEPTION(LaunchError, tool.runner().readCustomNamespace(many + many));
    }

    void progress_data()
    {
        QTest::addColumn<qsizetype>("pieceSize");
        for (const qsizetype size : { 1, 7, 64, 0 })
            QTest::addRow("pieces of %d", int(size)) << size;
    }

    void progress()
    {
        QFETCH(qsizetype, pieceSize);
        FakeTool tool;
        // One object more than was asked for, as for a folder named like a photo.
        tool.answerAlways({ .standardOutput = replyFor(files(4)), .pieceSize = pieceSize });
        QList<qsizetype> seen;
        tool.runner().read({ u"T"_s }, files(3), { .progress = [&](qsizetype count) { seen.append(count); } });
        QCOMPARE(seen.last(), 3);
        for (qsizetype i = 1; i < seen.size(); ++i)
            QVERIFY(seen[i] > seen[i - 1]);
        if (pieceSize == 1)
            QCOMPARE(seen, (QList<qsizetype>{ 1, 2, 3 }));
    }

    void cancels_data()
    {
        QTest::addColumn<bool>("deaf");
        QTest::addRow("tool ends when asked") << false;
        QTest::addRow("tool must be killed") << true;
    }

    void cancels()
    {
        QFETCH(bool, deaf);
        FakeTool tool;
        tool.answerAlways({ .standardOutput = replyFor(files(1)), .holds = true, .deaf = deaf });
        std::stop_source stop;
        // Stops as soon as the tool is known to run, from another thread.
        std::jthread stopper;
        const auto firstFile = [&](qsizetype) { stopper = std::jthread([&] { stop.request_stop(); }); };
        QVERIFY_THROWS_EXCEPTION(CancelledError,
            tool.runner().read({ u"T"_s }, files(1), { .progress = firstFile, .stop = stop.get_token() }));
        QVERIFY_THROWS_EXCEPTION(
            CancelledError, tool.runner().readCustomNamespace(files(1), { .stop = stop.get_token() }));
        QCOMPARE(tool.calls().size(), 1);  // nothing is started for a read that is cancelled already
    }
};

QTEST_GUILESS_MAIN(tst_ExifToolRunner)
#include "tst_ExifToolRunner.moc"
