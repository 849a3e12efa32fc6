// What a look makes of what it sees. Folders that may not be read are played: whoever runs the tests may read all.
#include "app/model/library/KnownFiles.h"

#include "app/model/library/sidecars/SeenSidecars.h"

#include <QTemporaryDir>

#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

// "/top/a.jpg=5": the photo and its date; known to have 1.
FolderFiles::Stamp stampOf(const QString& text)
{
    const qint64 date = text.contains(u'=') ? text.section(u'=', 1).toLongLong() : 1;
    return { date, date, 100 };
}

QList<ImageRecord> records(const QStringList& paths)
{
    QList<ImageRecord> records;
    for (const QString& path : paths)
        records.append(ImageRecord{
            .url = QUrl::fromLocalFile(path), .contentModificationDate = QDateTime::fromMSecsSinceEpoch(1) });
    return records;
}

// Folders end with a slash, one that could not be listed with "/!", one of another disk with "/@".
FolderScan scanOf(const QStringList& paths)
{
    FolderScan scan;
    for (const QString& path : paths) {
        const PhotoPlace place = PhotoPlace::of(path.section(u'=', 0, 0));
        FolderScan::Folder& folder = scan.folders[place.folder];
        if (place.name.isEmpty() || place.name == u"@")
            folder.isListed = true;
        folder.device = place.name == u"@" ? 2 : 1;
        if (place.name.contains(u'.'))
            folder.photos.insert(place.name, stampOf(path));
        if (const auto around = scan.folders.find(PhotoPlace::of(place.folder).folder); around != scan.folders.end())
            around->hasFolders = true;
    }
    return scan;
}

QStringList paths(const QList<QUrl>& urls)
{
    QStringList paths;
    for (const QUrl& url : urls)
        paths.append(url.toLocalFile());
    paths.sort();
    return paths;
}

QStringList paths(const QList<FolderNews::File>& files)
{
    QList<QUrl> urls;
    for (const FolderNews::File& file : files)
        urls.append(file.url);
    return paths(urls);
}

}  // namespace

class tst_KnownFiles : public QObject {
    Q_OBJECT

private slots:
    void news_data();
    void news();
    void readInVain();
    void sidecars_data();
    void sidecars();
    void sidecarsAreFoundAsThePolicyFindsThem();
};

void tst_KnownFiles::news_data()
{
    QTest::addColumn<QStringList>("known");
    QTest::addColumn<QStringList>("seen");
    QTest::addColumn<QStringList>("gone");
    QTest::addColumn<QStringList>("emptied");
    QTest::addColumn<QStringList>("changed");
    QTest::addColumn<QStringList>("further");
    QTest::addColumn<bool>("isAway");
    const QStringList none;
    const QStringList tree{ u"/t/a.jpg"_s, u"/t/s/b.jpg"_s, u"/t/s/u/c.jpg"_s };
    QTest::addRow("nothing new") << tree
                                 << QStringList{ u"/t/"_s, u"/t/a.jpg"_s, u"/t/s/"_s, u"/t/s/b.jpg"_s, u"/t/s/u/"_s,
                                        u"/t/s/u/c.jpg"_s }
                                 << none << none << none << none << false;
    QTest::addRow("one of each") << QStringList{ u"/t/a.jpg"_s, u"/t/b.jpg"_s }
                                 << QStringList{ u"/t/"_s, u"/t/b.jpg=2"_s, u"/t/c.jpg"_s }
                                 << QStringList{ u"/t/a.jpg"_s } << none << QStringList{ u"/t/b.jpg"_s }
                                 << QStringList{ u"/t/c.jpg"_s } << false;
    QTest::addRow("a folder is gone with those in it")
        << tree << QStringList{ u"/t/"_s, u"/t/a.jpg"_s } << QStringList{ u"/t/s/b.jpg"_s, u"/t/s/u/c.jpg"_s } << none
        << none << none << false;
    QTest::addRow("a folder is empty") << tree
                                       << QStringList{ u"/t/"_s, u"/t/a.jpg"_s, u"/t/s/"_s, u"/t/s/u/"_s,
                                              u"/t/s/u/c.jpg"_s }
                                       << none << QStringList{ u"/t/s/b.jpg"_s } << none << none << false;
    QTest::addRow("a folder may not be read any more")
        << tree << QStringList{ u"/t/"_s, u"/t/a.jpg"_s, u"/t/s/!"_s } << none << none << none << none << true;
    QTest::addRow("one that never could")
        << QStringList{ u"/t/a.jpg"_s } << QStringList{ u"/t/"_s, u"/t/a.jpg"_s, u"/t/lost/!"_s } << none << none
        << none << none << false;
    QTest::addRow("the top is gone") << tree << QStringList{ u"/t/!"_s } << none << none << none << none << true;
    QTest::addRow("the disk of a folder is gone")
        << tree << QStringList{ u"/t/"_s, u"/t/a.jpg"_s, u"/t/s/@"_s } << none << none << none << none << true;
    QTest::addRow("files of elsewhere are not spoken of")
        << QStringList{ u"/t/a.jpg"_s, u"/else/x.jpg"_s, u"/tt/y.jpg"_s } << QStringList{ u"/t/"_s, u"/t/a.jpg"_s }
        << none << none << none << none << false;
    QTest::addRow("in natural order") << QStringList{ u"/t/a.jpg"_s }
                                      << QStringList{ u"/t/"_s, u"/t/a.jpg"_s, u"/t/n10.jpg"_s, u"/t/n9.jpg"_s } << none
                                      << none << none << QStringList{ u"/t/n10.jpg"_s, u"/t/n9.jpg"_s } << false;
}

void tst_KnownFiles::news()
{
    QFETCH(QStringList, known);
    QFETCH(QStringList, seen);
    KnownFiles files(records(known));
    // All folders were seen once, on their own disk.
    QStringList before = known;
    for (const QString& path : std::as_const(known))
        for (QString folder = PhotoPlace::of(path).folder; folder.size() > 1; folder = PhotoPlace::of(folder).folder)
            before.append(folder + u'/');
    (void)files.look([&] { return scanOf(before); }, false);
    const FolderNews news = files.look([&] { return scanOf(seen); }, false);
    QTEST(paths(news.gone), "gone");
    QTEST(paths(news.emptied), "emptied");
    QTEST(paths(news.changed), "changed");
    QTEST(paths(news.further), "further");
    QTEST(news.isAway, "isAway");
    for (qsizetype i = 1; i < news.further.size(); ++i)
        QVERIFY(news.further.at(i - 1).url.fileName().size() <= news.further.at(i).url.fileName().size());
}

void tst_KnownFiles::readInVain()
{
    KnownFiles files(records({ u"/t/a.jpg"_s }));
    const auto further = [&files](const QString& photo, bool isAsked = false) {
        const auto scan = [&photo] { return scanOf({ u"/t/"_s, u"/t/a.jpg"_s, photo }); };
        return paths(files.look(scan, isAsked).further).size();
    };
    QCOMPARE(further(u"/t/b.jpg"_s), 1);
    files.noteUnreadable({ { QUrl::fromLocalFile(u"/t/b.jpg"_s), stampOf(u"/t/b.jpg"_s) } });
    QCOMPARE(further(u"/t/b.jpg"_s), 0);
    QCOMPARE(further(u"/t/b.jpg"_s, true), 1);
    QCOMPARE(further(u"/t/b.jpg=2"_s), 1);
    // Once it could be read, it is as any other.
    files.note(records({ u"/t/b.jpg"_s }).constFirst());
    QCOMPARE(further(u"/t/b.jpg"_s), 0);
    files.forget(QUrl::fromLocalFile(u"/t/b.jpg"_s));
    QCOMPARE(further(u"/t/b.jpg"_s), 1);
}

void tst_KnownFiles::sidecars_data()
{
    QTest::addColumn<SidecarStamp>("known");
    QTest::addColumn<SidecarStamp>("seen");
    QTest::addColumn<bool>("isNews");
    QTest::addRow("none") << SidecarStamp() << SidecarStamp() << false;
    QTest::addRow("the same") << SidecarStamp{ u"a.xmp"_s, 5 } << SidecarStamp{ u"a.xmp"_s, 5 } << false;
    QTest::addRow("made") << SidecarStamp() << SidecarStamp{ u"a.xmp"_s, 5 } << true;
    QTest::addRow("written") << SidecarStamp{ u"a.xmp"_s, 5 } << SidecarStamp{ u"a.xmp"_s, 6 } << true;
    QTest::addRow("gone") << SidecarStamp{ u"a.xmp"_s, 5 } << SidecarStamp() << true;
    QTest::addRow("another name") << SidecarStamp{ u"a.xmp"_s, 5 } << SidecarStamp{ u"a.cr2.xmp"_s, 5 } << true;
}

void tst_KnownFiles::sidecars()
{
    QFETCH(SidecarStamp, known);
    QFETCH(SidecarStamp, seen);
    QFETCH(bool, isNews);
    const auto record = [](const SidecarStamp& sidecar) {
        ImageRecord photo = records({ u"/t/a.cr2"_s }).constFirst();
        photo.sidecarName = sidecar.name;
        if (sidecar.modified)
            photo.sidecarModificationDate = QDateTime::fromMSecsSinceEpoch(*sidecar.modified);
        return photo;
    };
    FolderScan scan = scanOf({ u"/t/"_s, u"/t/a.cr2"_s });
    if (!seen.name.isEmpty())
        scan.folders[u"/t"_s].sidecars.insert(u"a.cr2"_s, seen);
    KnownFiles files({ record(known) });
    const FolderNews news = files.look([&scan] { return scan; }, false);
    QCOMPARE(paths(news.changed), isNews ? QStringList{ u"/t/a.cr2"_s } : QStringList());
    // Once it is read again, that holds.
    files.note(record(seen));
    QVERIFY(files.look([&scan] { return scan; }, false).changed.isEmpty());
}

// Of all sidecars that a photo may have, any of them there or not.
void tst_KnownFiles::sidecarsAreFoundAsThePolicyFindsThem()
{
    const QTemporaryDir folder;
    const SidecarPolicy policy{ .isRawBeside = true };
    const QStringList names{ u"a.b.CR2.xmp"_s, u"a.b.CR2.XMP"_s, u"a.b.xmp"_s, u"a.b.XMP"_s, u"a.xmp"_s };
    const QUrl photo = QUrl::fromLocalFile(folder.filePath(u"a.b.CR2"_s));
    for (int there = 0; there < 32; ++there) {
        SeenSidecars seen(policy);
        for (int i = 0; i < names.size(); ++i) {
            const QString path = folder.filePath(names.at(i));
            QFile file(path);
            if ((there >> i & 1) == 0) {
                file.remove();
                continue;
            }
            QVERIFY(file.open(QIODevice::WriteOnly) && seen.isWanted(names.at(i)));
            seen.add(path);
        }
        QCOMPARE(seen.of(photo), policy.existing(photo));
        QCOMPARE(seen.of(QUrl::fromLocalFile(folder.filePath(u"a.b.jpg"_s))), QString());
    }
    QVERIFY(!SeenSidecars({}).isWanted(u"a.xmp"_s));
}

QTEST_GUILESS_MAIN(tst_KnownFiles)
#include "tst_KnownFiles.moc"
