// The folder watcher alone: what it reports, and that it reports once.
#include "app/model/library/FolderWatcher.h"
#include "tests/support/Support.h"

#include <QRegularExpression>
#include <QTest>

#include <utime.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

class tst_FolderWatcher : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void reports_data();
    void reports();
    void coalesces();
    void silentWhenStopped();
};

void tst_FolderWatcher::reports_data()
{
    QTest::addColumn<QString>("what");
    for (const char* what : { "create", "write in place", "delete", "rename", "touch" })
        QTest::addRow("%s", what) << QString::fromLatin1(what);
}

void tst_FolderWatcher::reports()
{
    QFETCH(QString, what);
    const PhotoFolder folder;
    const QString path = folder.add(u"a.jpg"_s).toLocalFile();
    int calls = 0;
    FolderWatcher watcher(QUrl::fromLocalFile(folder.path()), [&calls] { ++calls; });
    QVERIFY(watcher.isWatching());
    if (what == u"create") {
        folder.add(u"b.jpg"_s);
    } else if (what == u"write in place") {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite) && file.write("x") == 1);
    } else if (what == u"delete") {
        QVERIFY(QFile::remove(path));
    } else if (what == u"rename") {
        QVERIFY(QFile::rename(path, folder.path(u"z"_s)));
    } else {
        const utimbuf times{ 1000, 1000 };
        QCOMPARE(utime(qPrintable(path), &times), 0);
    }
    QTRY_COMPARE(calls, 1);
}

void tst_FolderWatcher::coalesces()
{
    const PhotoFolder folder;
    int calls = 0;
    FolderWatcher watcher(QUrl::fromLocalFile(folder.path()), [&calls] { ++calls; });
    for (int i = 0; i < 10; ++i) {
        folder.add(u"%1.jpg"_s.arg(i));
        QTest::qWait(60);
    }
    QTRY_COMPARE(calls, 1);
    QTest::qWait(800);
    QCOMPARE(calls, 1);
    // Reading is no change.
    QVERIFY(!readFile(folder.path(u"1.jpg"_s)).isEmpty());
    QTest::qWait(800);
    QCOMPARE(calls, 1);
}

void tst_FolderWatcher::silentWhenStopped()
{
    const PhotoFolder folder;
    int calls = 0;
    FolderWatcher watcher(QUrl::fromLocalFile(folder.path()), [&calls] { ++calls; });
    folder.add(u"a.jpg"_s);
    QTest::qWait(300);
    watcher.stop();
    QVERIFY(!watcher.isWatching());
    QTest::qWait(600);
    QCOMPARE(calls, 0);
    const FolderWatcher nowhere(QUrl::fromLocalFile(folder.path(u"nowhere"_s)), [&calls] { ++calls; });
    QVERIFY(!nowhere.isWatching());
}

QTEST_GUILESS_MAIN(tst_FolderWatcher)
#include "tst_FolderWatcher.moc"
