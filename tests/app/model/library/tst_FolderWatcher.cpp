// The folder watcher alone: what it reports, that it reports once, and which of many folders.
#include "app/model/library/FolderWatcher.h"
#include "platform/files/FolderWatches.h"
#include "tests/support/Support.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <utime.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// Watches folders and counts the calls.
struct Watched {
    explicit Watched(const QStringList& folders)
    {
        for (const QString& folder : folders)
            isAdded = watcher.watches()->add(folder) && isAdded;
    }
    int calls = 0;
    bool isAdded = true;
    FolderWatcher watcher{ [this] { ++calls; } };
};

}  // namespace

class tst_FolderWatcher : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void reports_data();
    void reports();
    void coalesces();
    void silentWhenStopped();
    void manyFolders();
    void renamedFolder();
    void limit();
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
    const Watched watched({ folder.path() });
    QVERIFY(watched.isAdded);
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
    QTRY_COMPARE(watched.calls, 1);
}

void tst_FolderWatcher::coalesces()
{
    const PhotoFolder folder;
    const Watched watched({ folder.path() });
    for (int i = 0; i < 10; ++i) {
        folder.add(u"%1.jpg"_s.arg(i));
        QTest::qWait(60);
    }
    QTRY_COMPARE(watched.calls, 1);
    QTest::qWait(800);
    QCOMPARE(watched.calls, 1);
    // Reading is no change.
    QVERIFY(!readFile(folder.path(u"1.jpg"_s)).isEmpty());
    QTest::qWait(800);
    QCOMPARE(watched.calls, 1);
}

void tst_FolderWatcher::silentWhenStopped()
{
    const PhotoFolder folder;
    Watched watched({ folder.path() });
    folder.add(u"a.jpg"_s);
    QTest::qWait(300);
    watched.watcher.stop();
    QTest::qWait(600);
    QCOMPARE(watched.calls, 0);
    QVERIFY(!Watched({ folder.path(u"nowhere"_s) }).isAdded);
}

void tst_FolderWatcher::manyFolders()
{
    const PhotoFolder folder;
    for (const QString& name : { u"a"_s, u"b"_s, u"c"_s })
        QVERIFY(QDir(folder.path()).mkdir(name));
    Watched watched({ folder.path(), folder.path(u"a"_s), folder.path(u"b"_s), folder.path(u"c"_s) });
    folder.add(u"a/1.jpg"_s);
    folder.add(u"c/1.jpg"_s);
    QTRY_COMPARE(watched.calls, 1);
    // What is no longer asked for is silent, and that it is so is no news.
    watched.watcher.watches()->keep({ folder.path(u"a"_s), folder.path(u"c"_s) });
    folder.add(u"b/1.jpg"_s);
    QTest::qWait(800);
    QCOMPARE(watched.calls, 1);
    folder.add(u"c/2.jpg"_s);
    QTRY_COMPARE(watched.calls, 2);
}

// The same folder is watched under its new name, and another one under the old.
void tst_FolderWatcher::renamedFolder()
{
    const PhotoFolder folder;
    QDir here(folder.path());
    QVERIFY(here.mkdir(u"old"_s));
    Watched watched({ folder.path(u"old"_s) });
    QVERIFY(here.rename(u"old"_s, u"new"_s) && here.mkdir(u"old"_s));
    QTRY_COMPARE(watched.calls, 1);
    FolderWatches& watches = *watched.watcher.watches();
    QVERIFY(watches.add(folder.path(u"new"_s)));
    watches.keep({ folder.path(u"new"_s) });
    folder.add(u"new/1.jpg"_s);
    QTRY_COMPARE(watched.calls, 2);
    QVERIFY(watches.add(folder.path(u"old"_s)));
    folder.add(u"old/1.jpg"_s);
    QTRY_COMPARE(watched.calls, 3);
}

void tst_FolderWatcher::limit()
{
    const PhotoFolder folder;
    FolderWatches watches(2);
    QVERIFY(QDir(folder.path()).mkdir(u"a"_s) && QDir(folder.path()).mkdir(u"b"_s));
    QVERIFY(watches.add(folder.path()) && watches.add(folder.path(u"a"_s)));
    QVERIFY(!watches.add(folder.path(u"b"_s)));
    QVERIFY(watches.add(folder.path()));
    watches.keep({ folder.path() });
    QVERIFY(watches.add(folder.path(u"b"_s)));
}

QTEST_GUILESS_MAIN(tst_FolderWatcher)
#include "tst_FolderWatcher.moc"
