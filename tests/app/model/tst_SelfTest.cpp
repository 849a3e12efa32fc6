// The self-test as people start it: the installed program as a child process, its exit status and what it says.
#include "tests/support/Support.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;

namespace {

struct Outcome {
    int status = -1;
    QString output{};
    QString error{};
};

Outcome runProgram(const QString& path, const QString& tool, const QString& program = QStringLiteral(QUORBEL_PROGRAM))
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QUORBEL_SELFTEST"), path);
    if (tool.isEmpty())
        environment.remove(QStringLiteral("QUORBEL_EXIFTOOL"));
    else
        environment.insert(QStringLiteral("QUORBEL_EXIFTOOL"), tool);
    // No display may be needed.
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
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
    object.insert(QStringLiteral("SourceFile"), path);
    return toolJson({ object });
}

}  // namespace

class tst_SelfTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QTest::failOnWarning(QRegularExpression(QStringLiteral("."))); }

    void passes()
    {
        const PhotoFolder folder;
        folder.add(QStringLiteral("b.jpg"));
        const QUrl target = folder.add(QStringLiteral("A.jpg"), jpegBytes(40, 30));
        folder.add(QStringLiteral("a.jpg"));
        folder.add(QStringLiteral("0.txt"));
        QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("0.jpg/inner.jpg")));  // a folder is no photo
        const ExifToolRunner tool = realTool();
        tool.write({ "-XMP-photoshop:Headline=old", "-XMP-dc:Title=T", "-IPTC:Keywords=a \"b\" \\", "-IPTC:Keywords=c",
                       "-EXIF:Model=X1" },
            { target }, false);
        const auto untouched = readFile(folder.path(QStringLiteral("a.jpg")));
        const auto outcome = runProgram(folder.path(), tool.exiftoolURL.toLocalFile());
        QString error = outcome.error;
        error.replace(QRegularExpression(QStringLiteral("SelfTest-\\d{10,}\\)")), QStringLiteral("SelfTest-TIME)"));
        QVERIFY(error.contains(QStringLiteral(" [JPEG · 40×30 · ")));
        error.replace(QRegularExpression(QStringLiteral(" \\[JPEG[^\\]]*\\]")), QStringLiteral(" [DETAIL]"));
        QCOMPARE(error,
            QStringLiteral("SELFTEST exiftool: ") + tool.exiftoolURL.toLocalFile()
                + QStringLiteral(
                    "\nSELFTEST read 3 record(s)\n"
                    "  first: A.jpg [DETAIL] title=T keywords=[\"a \\\"b\\\" \\\\\", \"c\"] camera=[\"Camera\"]\n"
                    "SELFTEST write round-trip OK (headline=SelfTest-TIME)\n"
                    "SELFTEST PASS\n"));
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.output, QString());
        QVERIFY(!exiftoolValues(target).contains(QStringLiteral("XMP:Headline")));
        QCOMPARE(readFile(folder.path(QStringLiteral("a.jpg"))), untouched);
        QCOMPARE(folder.names().size(), 5);  // no backup
    }

    void findsNoTool()
    {
        const PhotoFolder prefix;
        QVERIFY(QDir(prefix.path()).mkpath(QStringLiteral("bin")));
        const QString program = prefix.path(QStringLiteral("bin/quorbel"));
        QVERIFY(QFile::copy(QStringLiteral(QUORBEL_PROGRAM), program));
        const auto outcome = runProgram(prefix.path(), {}, program);
        QCOMPARE(outcome.error, QStringLiteral("SELFTEST FAIL: ExifTool not located in bundle\n"));
        QCOMPARE(outcome.status, 2);
        QCOMPARE(outcome.output, QString());
    }

    void findsNoImages()
    {
        const PhotoFolder folder;
        folder.add(QStringLiteral("movie.mov"));
        FakeTool tool;
        const auto outcome = runProgram(folder.path(), tool.scriptPath());
        QCOMPARE(outcome.error,
            QStringLiteral("SELFTEST exiftool: ") + tool.scriptPath() + QStringLiteral("\nSELFTEST FAIL: no images\n"));
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
        const QString photo = folder.add(QStringLiteral("a.dat")).toLocalFile();  // one file is taken as it is
        FakeTool tool;
        tool.answerAlways({ .standardOutput = recordOf(photo,
                                headline.isNull() ? QJsonObject() : QJsonObject{ { "XMP:Headline", headline } }) });
        const auto outcome = runProgram(photo, tool.scriptPath());
        QCOMPARE(outcome.error,
            QStringLiteral("SELFTEST exiftool: ") + tool.scriptPath()
                + QStringLiteral("\nSELFTEST read 1 record(s)\n  first: a.dat [DAT] title=— keywords=[] camera=[]\n"
                                 "SELFTEST FAIL: write not read back (got ")
                + got + QStringLiteral(")\n"));
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
        folder.add(QStringLiteral("a.jpg"));
        FakeTool tool;
        tool.answer(failingRun, { .standardError = "Error: disk on fire", .exitCode = 1 });
        const auto outcome = runProgram(folder.path(), tool.scriptPath());
        QVERIFY2(outcome.error.endsWith(
                     QStringLiteral("\nSELFTEST FAIL: ExifTool exited with code 1: Error: disk on fire\n")),
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
        QVERIFY2(outcome.error.contains(QStringLiteral("\nSELFTEST FAIL: ExifTool exited with code 1: ")),
            qPrintable(outcome.error));
        QCOMPARE(outcome.status, 5);
    }
};

QTEST_GUILESS_MAIN(tst_SelfTest)
#include "tst_SelfTest.moc"
