// Two starts of the program, the second in a process of its own: this executable, told to hand over or to crash.
#include "app/shell/SingleInstance.h"

#include <QFileInfo>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

constexpr auto handOverArgument = "--hand-over-to";
constexpr auto crashArgument = "--listen-and-crash";

// What the second start hands over, whatever its arguments look like.
HandOver sample()
{
    return { { QUrl::fromLocalFile(u"/photos/a b.jpg"_s), QUrl::fromLocalFile(u"/photos/Zürich #1%20.jpg"_s) },
        "token-1" };
}

}  // namespace

class tst_SingleInstance : public QObject {
    Q_OBJECT

private slots:
    void init();
    void secondStartHandsItsFilesOver();
    void aloneThereIsNobodyToTakeThem();
    void theSocketOfACrashedProgramIsTakenOver();
    void oneOfTwoListens();
    void aHungProgramIsLeftAlone();
    void garbageHandsOverNothing();

private:
    QString path() const { return m_folder->filePath(u"q.socket"_s); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_SingleInstance::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_SingleInstance::secondStartHandsItsFilesOver()
{
    SingleInstance running(path());
    QList<HandOver> received;
    QVERIFY(running.listen([&](const HandOver& what) { received.append(what); }));

    QProcess second;
    second.start(QCoreApplication::applicationFilePath(), { QLatin1String(handOverArgument), path() });
    QTRY_COMPARE_WITH_TIMEOUT(second.state(), QProcess::NotRunning, 30'000);
    QCOMPARE(second.exitCode(), 0);
    QCOMPARE(received, QList<HandOver>{ sample() });
}

void tst_SingleInstance::aloneThereIsNobodyToTakeThem()
{
    const SingleInstance first(path());
    QVERIFY(!first.handOver(sample()));
}

void tst_SingleInstance::theSocketOfACrashedProgramIsTakenOver()
{
    QProcess crashing;
    crashing.start(QCoreApplication::applicationFilePath(), { QLatin1String(crashArgument), path() });
    QTRY_COMPARE_WITH_TIMEOUT(crashing.state(), QProcess::NotRunning, 30'000);
    QVERIFY(QFileInfo::exists(path()));
    const SingleInstance other(path());
    QVERIFY(!other.handOver(sample()));

    SingleInstance next(path());
    QVERIFY(next.listen([](const HandOver&) {}));
    QLocalSocket socket;
    socket.connectToServer(path());
    QVERIFY(socket.waitForConnected(1'000));
}

void tst_SingleInstance::oneOfTwoListens()
{
    SingleInstance first(path());
    SingleInstance second(path());
    QVERIFY(first.listen([](const HandOver&) {}));
    QVERIFY(!second.listen([](const HandOver&) {}));
    QVERIFY(QFileInfo::exists(path()));
}

// A program that accepts but never answers must not keep the next start from opening a window.
void tst_SingleInstance::aHungProgramIsLeftAlone()
{
    QLocalServer hung;
    QVERIFY(hung.listen(path()));
    const SingleInstance next(path());
    QVERIFY(!next.handOver(sample()));
}

void tst_SingleInstance::garbageHandsOverNothing()
{
    SingleInstance running(path());
    QList<HandOver> received;
    QVERIFY(running.listen([&](const HandOver& what) { received.append(what); }));
    QLocalSocket socket;
    socket.connectToServer(path());
    QVERIFY(socket.waitForConnected(1'000));
    socket.write("\x01\x02 {]\n");
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(received.first(), HandOver{});
}

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String(handOverArgument))
        return SingleInstance(arguments.value(2)).handOver(sample()) ? 0 : 1;
    if (arguments.value(1) == QLatin1String(crashArgument)) {
        SingleInstance listening(arguments.value(2));
        _exit(listening.listen([](const HandOver&) {}) ? 0 : 1);  // leaves the socket behind
    }
    tst_SingleInstance test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_SingleInstance.moc"
