// Work in the background: whom it reports to, and that one job does not hold up another.
#include "app/model/BackgroundPieces.h"

#include <QRegularExpression>
#include <QSemaphore>
#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

class tst_Background : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void jobOutlivesItsOwner();
    void resultsEndElsewhere();
    void piecesTakeTurns();
    void piecesEndWithTheirOwner();
};

void tst_Background::jobOutlivesItsOwner()
{
    auto owner = std::make_unique<QObject>();
    QSemaphore mayEnd;
    std::atomic<bool> hasEnded = false;
    bool isDelivered = false;
    runInBackground(
        owner.get(),
        [&] {
            mayEnd.acquire();
            hasEnded = true;
            return std::make_unique<int>(7);
        },
        [&](const std::unique_ptr<int>&) { isDelivered = true; });
    owner.reset();
    mayEnd.release();
    QTRY_VERIFY(hasEnded);
    QTest::qWait(50);
    QVERIFY(!isDelivered);
    // While one hangs, and more than there are cores, others run; the result may destroy the owner.
    QSemaphore hang;
    QObject patient;
    int hanging = 0;
    for (int i = 0; i < 8; ++i)
        runInBackground(
            &patient, [&] { hang.acquire(); }, [&] { ++hanging; });
    auto* doomed = new QObject;
    runInBackground(
        doomed, [] { return std::make_unique<int>(7); },
        [&](const std::unique_ptr<int>& result) {
            isDelivered = *result == 7;
            delete doomed;
        });
    QTRY_VERIFY(isDelivered);
    hang.release(8);
    QTRY_COMPARE(hanging, 8);
}

// A result may be of many photos: the thread that takes it does not wait until all of it is gone.
void tst_Background::resultsEndElsewhere()
{
    struct Result {
        std::atomic<QThread*>* ended;
        ~Result() { *ended = QThread::currentThread(); }
    };
    std::atomic<QThread*> resultEnded = nullptr;
    std::atomic<QThread*> heldEnded = nullptr;
    QThread* taken = nullptr;
    runInBackground(
        this, [&] { return std::make_unique<Result>(&resultEnded); },
        [&, held = std::make_shared<Result>(&heldEnded)](
            const std::unique_ptr<Result>&) { taken = QThread::currentThread(); });
    QTRY_VERIFY(resultEnded && heldEnded);
    QCOMPARE(taken, QThread::currentThread());
    QVERIFY(resultEnded != taken && heldEnded != taken);
}

// Ten pieces lie ready at once: what else waits is not kept waiting for all of them.
void tst_Background::piecesTakeTurns()
{
    QList<int> seen;
    const auto job = [](const BackgroundPieces<std::unique_ptr<int>>::Give& give) {
        for (int i = 0; i < 10; ++i)
            give(std::make_unique<int>(i));
    };
    bool isDone = false;
    QTimer other;
    connect(&other, &QTimer::timeout, this, [&seen] { seen.append(-1); });
    BackgroundPieces<std::unique_ptr<int>> pieces(
        job, [&seen](const std::unique_ptr<int>& piece) { seen.append(*piece); }, [&isDone] { isDone = true; });
    pieces.setPaused(true);
    QTest::qWait(50);
    QCOMPARE(seen, QList<int>());
    QVERIFY(!isDone);
    other.start(0);
    pieces.setPaused(false);
    QTRY_VERIFY(isDone);
    for (int i = 0; i < 9; ++i) {
        const qsizetype at = seen.indexOf(i);
        QVERIFY(at >= 0);
        QVERIFY2(seen.at(at + 1) == -1, qPrintable(u"nothing between %1 and the next"_s.arg(i)));
    }
    QCOMPARE(seen.count(9), 1);
}

void tst_Background::piecesEndWithTheirOwner()
{
    QSemaphore mayGoOn;
    std::atomic<bool> hasEnded = false;
    int taken = 0;
    std::unique_ptr<BackgroundPieces<int>> pieces;
    pieces = std::make_unique<BackgroundPieces<int>>(
        [&](const BackgroundPieces<int>::Give& give) {
            give(1);
            give(2);
            mayGoOn.acquire();
            give(3);
            hasEnded = true;
        },
        [&](int) {
            ++taken;
            pieces.reset();
        },
        [&] { taken = 100; });
    QTRY_COMPARE(taken, 1);
    mayGoOn.release();
    QTRY_VERIFY(hasEnded);
    QTest::qWait(50);
    QCOMPARE(taken, 1);
}

QTEST_GUILESS_MAIN(tst_Background)
#include "tst_Background.moc"
