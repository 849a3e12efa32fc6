// Which photos are read next.
#include "app/model/library/reading/ReadQueue.h"

#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

QList<QUrl> photos(int from, int count)
{
    QList<QUrl> urls;
    for (int i = from; i < from + count; ++i)
        urls.append(QUrl::fromLocalFile(u"/photos/%1.jpg"_s.arg(i)));
    return urls;
}

ReadQueue queueOf(int count)
{
    ReadQueue queue;
    queue.add(photos(0, count));
    return queue;
}

}  // namespace

class tst_ReadQueue : public QObject {
    Q_OBJECT

private slots:
    void fewAreOneRead();
    void whoIsLookedAtComesFirst();
    void demanded();
    void whatComesBack();
};

void tst_ReadQueue::fewAreOneRead()
{
    ReadQueue few = queueOf(64);
    few.setFirst(photos(5, 1).constFirst());
    QCOMPARE(few.next(false), photos(0, 64));
    QCOMPARE(few.next(false), QList<QUrl>());
    ReadQueue many = queueOf(65);
    QCOMPARE(many.next(false).size(), 65);  // nobody looks at one of them yet
    ReadQueue looked = queueOf(65);
    looked.setFirst(photos(5, 1).constFirst());
    QCOMPARE(looked.next(false), photos(5, 1));
    // The rest is few by now, and still no whole.
    looked.setFirst(photos(7, 1).constFirst());
    QCOMPARE(looked.next(false), photos(7, 1));
}

void tst_ReadQueue::whoIsLookedAtComesFirst()
{
    ReadQueue queue = queueOf(1000);
    queue.setFirst(photos(500, 1).constFirst());
    queue.setInView(photos(490, 40));
    queue.require(photos(900, 2));
    QCOMPARE(queue.next(false), photos(500, 1));
    const QList<QUrl> inView = queue.next(false);
    QCOMPARE(inView, photos(490, 10) + photos(501, 22));
    QCOMPARE(queue.next(false), photos(523, 7));
    QCOMPARE(queue.next(false), photos(900, 2));
    QCOMPARE(queue.next(false), photos(0, 200));
    queue.setInView(photos(300, 1));
    QCOMPARE(queue.next(false), photos(300, 1));
    QCOMPARE(queue.next(false), photos(200, 100) + photos(301, 100));
    QCOMPARE(queue.waiting(), 1000 - 1 - 32 - 7 - 2 - 200 - 1 - 200);
    QCOMPARE(queue.left(), 1000);
}

void tst_ReadQueue::demanded()
{
    ReadQueue queue = queueOf(10);
    queue.setInView(photos(0, 10));
    QCOMPARE(queue.next(true), QList<QUrl>());
    queue.setFirst(photos(3, 1).constFirst());
    queue.require(photos(5, 2));
    QCOMPARE(queue.next(true), photos(3, 1));
    QCOMPARE(queue.next(true), photos(5, 2));
    QCOMPARE(queue.next(true), QList<QUrl>());
    QCOMPARE(queue.nextFirst(), QList<QUrl>());  // it is being read
}

void tst_ReadQueue::whatComesBack()
{
    ReadQueue queue = queueOf(300);
    QCOMPARE(queue.next(false), photos(0, 200));
    queue.end(photos(0, 150));
    queue.putBack(photos(0, 200));
    QCOMPARE(queue.waiting(), 150);
    QCOMPARE(queue.left(), 150);
    // Halves of what failed are read by themselves, without what is done by then.
    queue.addPart(photos(150, 25));
    queue.addPart(photos(175, 25));
    queue.end(photos(180, 20));
    QCOMPARE(queue.next(false), photos(175, 5));
    QCOMPARE(queue.next(false), photos(150, 25));
    QCOMPARE(queue.next(false), photos(200, 100));
    QCOMPARE(queue.waiting(), 0);
    queue.end(photos(150, 30) + photos(200, 100));
    QCOMPARE(queue.left(), 0);
}

QTEST_GUILESS_MAIN(tst_ReadQueue)
#include "tst_ReadQueue.moc"
