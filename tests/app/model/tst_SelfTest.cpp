// The self-test as people start it: the installed program as a child process, its exit status and what it says.
#include "tests/support/Support.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

struct Outcome {
    int status = -1;
    QString output{};
    QString error{};
};

Outcome runProgram(
    const QString& path, const QString& tool, const QString& program = QString::fromUtf8(QUORBEL_PROGRAM))
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QUORBEL_SELFTEST"_s, path);
    if (tool.isEmpty())
        environment.remove(u"QUORBEL_EXIFTOOL"_s);
    else
        environment.insert(u"QUORBEL_EXIFTOOL"_s, tool);
    // No display may be needed.
    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    environment.remove(u"DISPLAY"_s);
    environment.remove(u"WAYLAND_DISPLAY"_s);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, {});
    if (!process.waitForFinished(60'000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
        QString::fromUtf8(process.readAllStandardError()) };
}

QByteArray recordOf(const QString& path, const QJsonObject& more)
{
    QJsonObject object = more;
    object.insert(u"SourceFile"_s, path);
    return toolJson({ object });
}

}  // namespace

class tst_SelfTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void passes()
    {
        const PhotoFolder folder;
        folder.add(u"b.jpg"_s);
        const QUrl target = folder.add(u"A.jpg"_s, jpegBytes(40, 30));
        folder.add(u"a.jpg"_s);
        folder.add(u"0.txt"_s);
        QVERIFY(QDir(folder.path()).mkpath(u"0.jpg/inner.jpg"_s));  // a folder is no photo
        const ExifToolRunner tool = realTool();
        exiftool({ "-q", "-overwrite_original", "-XMP-photoshop:Headline=old", "-XMP-dc:Title=T",
            "-IPTC:Keywords=a \"b\" \\", "-IPTC:Keywords=c", "-EXIF:Model=X1", target.toLocalFile() });
        const auto untouched = readFile(folder.path(u"a.jpg"_s));
        const auto outcome = runProgram(folder.path(), tool.exiftoolURL.toLocalFile());
        QString error = outcome.error;
        error.replace(QRegularExpression(u"SelfTest-\\d{10,}\\)"_s), u"SelfTest-TIME)"_s);
        QVERIFY(error.contains(u" [JPEG · 40×30 · "_s));
        error.replace(QRegularExpression(u" \\[JPEG[^\\]]*\\]"_s), u" [DETAIL]"_s);
        QCOMPARE(error,
            u"SELFTEST exiftool: "_s + tool.exiftoolURL.toLocalFile()
                + u"\nSELFTEST read 3 record(s)\n"
                  "  first: A.jpg [DETAIL] title=T keywords=[\"a \\\"b\\\" \\\\\", \"c\"] camera=[\"Camera\"]\n"
                  "SELFTEST write round-trip OK (headline=SelfTest-TIME)\n"
                  "SELFTEST PASS\n"_s);
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.output, QString());
        QVERIFY(!exiftoolValues(target).contains(u"XMP:Headline"_s));
        QCOMPARE(readFile(folder.path(u"a.jpg"_s)), untouched);
        QCOMPARE(folder.names().size(), 5);  // no backup
    }

    void findsNoTool()
    {
        const PhotoFolder prefix;
        QVERIFY(QDir(prefix.path()).mkpath(u"bin"_s));
        const QString program = prefix.path(u"bin/quorbel"_s);
        QVERIFY(QFile::copy(QString::fromUtf8(QUORBEL_PROGRAM), program));
        const auto outcome = runProgram(prefix.path(), {}, program);
        QCOMPARE(outcome.error, u"SELFTEST FAIL: ExifTool not located in bundle\n"_s);
        QCOMPARE(outcome.status, 2);
        QCOMPARE(outcome.output, QString());
    }

    void findsNoImages()
    {
        const PhotoFolder folder;
        folder.add(u"movie.mov"_s);
        FakeTool tool;
        const auto outcome = runProgram(folder.path(), tool.scriptPath());
        QCOMPARE(outcome.error, u"SELFTEST exiftool: "_s + tool.scriptPath() + u"\nSELFTEST FAIL: no images\n"_s);
        QCOMPARE(outcome.status, 3);
        QVERIFY(tool.calls().isEmpty());
    }

    void valueIsNotReadBack_data()
    {
        QTest::addColumn<QString>("headline");
        QTest::addColumn<QString>("got");
        QTest::addRow("none") << QString() << "nil";
        QTest::addRow("another") << "before"
                                 << "before";
    }

    void valueIsNotReadBack()
    {
        QFETCH(QString, headline);
        QFETCH(QString, got);
        const PhotoFolder folder;
        const QString photo = folder.add(u"a.dat"_s).toLocalFile();  // one file is taken as it is
        FakeTool tool;
        tool.answerAlways({ .standardOutput = recordOf(photo,
                                headline.isNull() ? QJsonObject() : QJsonObject{ { "XMP:Headline", headline } }) });
        const auto outcome = runProgram(photo, tool.scriptPath());
        QCOMPARE(outcome.error,
            u"SELFTEST exiftool: "_s + tool.scriptPath()
                + u"\nSELFTEST read 1 record(s)\n  first: a.dat [DAT] title=— keywords=[] camera=[]\n"
                  "SELFTEST FAIL: write not read back (got "_s
                + got + u")\n"_s);
        QCOMPARE(outcome.status, 4);
        QCOMPARE(outcome.output, QString());
        const auto calls = tool.calls();
        QCOMPARE(calls.size(), 5);  // two reads of two runs each, and the write between; no clean-up
        QCOMPARE(calls[2].mid(0, 2), (QStringList{ "-overwrite_original", "-m" }));
    }

    void toolFails_data()
    {
        QTest::addColumn<int>("failingRun");
        QTest::addRow("first read") << 1;
        QTest::addRow("write") << 3;
        QTest::addRow("second read") << 5;
    }

    void toolFails()
    {
        QFETCH(int, failingRun);
        const PhotoFolder folder;
        folder.add(u"a.jpg"_s);
        FakeTool tool;
        tool.answer(failingRun, { .standardError = "Error: disk on fire", .exitCode = 1 });
        const auto outcome = runProgram(folder.path(), tool.scriptPath());
        QVERIFY2(outcome.error.endsWith(u"\nSELFTEST FAIL: ExifTool exited with code 1: Error: disk on fire\n"_s),
            qPrintable(outcome.error));
        QCOMPARE(outcome.status, 5);
        QCOMPARE(outcome.output, QString());
        QCOMPARE(tool.calls().size(), failingRun);
    }

    void missingPathIsAFile_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addRow("gone") << "/nowhere/a.jpg";
        QTest::addRow("empty") << "";
    }

    void missingPathIsAFile()
    {
        QFETCH(QString, path);
        const auto outcome = runProgram(path, realTool().exiftoolURL.toLocalFile());
        QVERIFY2(
            outcome.error.contains(u"\nSELFTEST FAIL: ExifTool exited with code 1: "_s), qPrintable(outcome.error));
        QCOMPARE(outcome.status, 5);
    }
};

QTEST_GUILESS_MAIN(tst_SelfTest)
#include "tst_SelfTest.moc"
