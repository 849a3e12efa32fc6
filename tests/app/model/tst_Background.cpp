// Work in the background: whom it reports to, and that one job does not hold up another.
#include "app/model/Background.h"

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

QTEST_GUILESS_MAIN(tst_Background)
#include "tst_Background.moc"
