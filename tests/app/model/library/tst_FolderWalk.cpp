#include "app/model/library/FolderWalk.h"
#include "tests/support/Support.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <filesystem>

#include <unistd.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// "a/1.jpg" is a photo, "a/" a folder, "a -> b" a link from a to b (as it stands, from the link's own folder), "a = b"
// a second name. Paths are below `root`.
void make(const QString& root, const QStringList& tree)
{
    for (const QString& line : tree) {
        const QString path = root + u'/' + line.section(u' ', 0, 0);
        QDir().mkpath(path.endsWith(u'/') ? path : QFileInfo(path).path());
        if (line.contains(u" -> "_s))
            std::filesystem::create_symlink(
                line.section(u' ', 2).replace(u"ROOT"_s, root).toStdString(), path.toStdString());
        else if (line.contains(u" = "_s))
            std::filesystem::create_hard_link((root + u'/' + line.section(u' ', 2)).toStdString(), path.toStdString());
        else if (!path.endsWith(u'/'))
            writeFile(path, line.contains(u"empty"_s) ? QByteArray() : "x");
    }
}

struct Walked {
    QStringList photos{};
    QStringList unfit{};  ///< with the reason
    QStringList folders{};
    QStringList unlisted{};
    QList<qsizetype> pieces{};  ///< photos in each
    bool isEnded = false;  ///< there was a last piece
    bool isWhole = false;
};

Walked walked(const QString& root, const QStringList& tops, std::stop_token stop = {},
    const std::function<void(const Walked&)>& after = {})
{
    QList<QUrl> urls;
    for (const QString& top : tops)
        urls.append(QUrl::fromLocalFile(root + u'/' + top));
    Walked walked;
    const auto below = [&root](const QUrl& url) { return url.toLocalFile().mid(root.size() + 1); };
    walked.isWhole = FolderWalk::through(urls, {}, stop, [&](const FolderWalk::Found& found) {
        walked.pieces.append(found.photos.size());
        walked.isEnded = found.isLast;
        for (const FolderWalk::Photo& photo : found.photos)
            if (photo.look.file)
                walked.photos.append(below(photo.url));
            else
                walked.unfit.append(below(photo.url) + u": "_s + photo.look.reason);
        for (const FolderWalk::Folder& folder : found.folders)
            (folder.isListed ? walked.folders : walked.unlisted).append(below(folder.url));
        if (after)
            after(walked);
    });
    return walked;
}

}  // namespace

class tst_FolderWalk : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void trees_data()
    {
        QTest::addColumn<QString>("tree");
        QTest::addColumn<QString>("photos");
        QTest::addColumn<QString>("folders");
        const auto row = [](const char* name, const QString& tree, const QString& photos, const QString& folders) {
            QTest::newRow(name) << tree << photos << folders;
        };
        row("its own photos, then the folders in it, in natural order",
            u"t/b/1.jpg, t/10.jpg, t/9.jpg, t/a10/1.jpg, t/a9/z/1.jpg, t/a9/2.jpg, t/notes.txt"_s,
            u"t/9.jpg, t/10.jpg, t/a9/2.jpg, t/a9/z/1.jpg, t/a10/1.jpg, t/b/1.jpg"_s, u"t, t/a9, t/a9/z, t/a10, t/b"_s);
        row("empty folders", u"t/a/, t/b/c/, t/b/1.jpg"_s, u"t/b/1.jpg"_s, u"t, t/a, t/b, t/b/c"_s);
        row("hidden folders are left out, hidden files are not", u"t/.h/1.jpg, t/a/.h/b/1.jpg, t/a/.2.jpg"_s,
            u"t/a/.2.jpg"_s, u"t, t/a"_s);
        row("a folder with the name of a photo", u"t/a.jpg/1.jpg"_s, u"t/a.jpg/1.jpg"_s, u"t, t/a.jpg"_s);
        row("links to itself and to what it lies in", u"t/a/1.jpg, t/a/l -> ., t/a/m -> .., t/a/n -> ../.."_s,
            u"t/a/1.jpg"_s, u"t, t/a"_s);
        row("a link to the whole computer", u"t/1.jpg, t/l -> /"_s, u"t/1.jpg"_s, u"t"_s);
        row("two links to each other", u"t/1.jpg, t/l -> m, t/m -> l"_s, u"t/1.jpg"_s, u"t"_s);
        row("a link to a folder that comes anyway", u"t/a -> z, t/z/1.jpg"_s, u"t/z/1.jpg"_s, u"t, t/z"_s);
        row("a link to a folder elsewhere", u"t/a/l -> ROOT/o, o/b/1.jpg"_s, u"t/a/l/b/1.jpg"_s,
            u"t, t/a, t/a/l, t/a/l/b"_s);
        row("two links to one folder elsewhere", u"t/l -> ROOT/o, t/m -> ROOT/o, o/1.jpg"_s, u"t/l/1.jpg"_s,
            u"t, t/l"_s);
        row("links in a circle through elsewhere",
            u"t/l -> ROOT/o, o/1.jpg, o/back -> ROOT/t, o/p -> ROOT/p, p/2.jpg, "
            "p/back -> ROOT/o"_s,
            u"t/l/1.jpg, t/l/p/2.jpg"_s, u"t, t/l, t/l/p"_s);
        row("a link into a hidden folder", u"t/l -> .h/b, t/.h/b/1.jpg"_s, u"t/l/1.jpg"_s, u"t, t/l"_s);
        row("a link into a folder that was entered through another", u"t/l -> ROOT/o, t/m -> ROOT/o/b, o/b/1.jpg"_s,
            u"t/l/b/1.jpg"_s, u"t, t/l, t/l/b"_s);
        row("a link to a photo that comes anyway", u"t/a/l.jpg -> ../z/1.jpg, t/z/1.jpg"_s, u"t/z/1.jpg"_s,
            u"t, t/a, t/z"_s);
        row("links to a photo elsewhere", u"t/a/l.jpg -> ROOT/o/1.jpg, t/b/m.jpg -> ROOT/o/1.jpg, o/1.jpg"_s,
            u"t/a/l.jpg"_s, u"t, t/a, t/b"_s);
        row("a link to a photo that comes through a link to its folder",
            u"t/a.jpg -> ROOT/o/1.jpg, t/l -> ROOT/o, o/1.jpg, o/2.jpg"_s, u"t/a.jpg, t/l/2.jpg"_s, u"t, t/l"_s);
        row("second names are photos of their own", u"t/a/1.jpg, t/b/2.jpg = t/a/1.jpg"_s, u"t/a/1.jpg, t/b/2.jpg"_s,
            u"t, t/a, t/b"_s);
        row("names in many scripts",
            u"t/Ö/ß.jpg, t/О/ж.jpg, t/山/川.jpg, t/خ/ص.jpg, t/🏔/🌊.jpg, t/O/s.jpg, t/%25/#?.jpg"_s,
            u"t/%25/#?.jpg, t/🏔/🌊.jpg, t/O/s.jpg, t/Ö/ß.jpg, t/О/ж.jpg, t/خ/ص.jpg, t/山/川.jpg"_s,
            u"t, t/%25, t/🏔, t/O, t/Ö, t/О, t/خ, t/山"_s);
        const QString deep = u"t"_s + u"/d"_s.repeated(30);
        QStringList levels;
        for (int depth = 0; depth <= 30; ++depth)
            levels.append(u"t"_s + u"/d"_s.repeated(depth));
        row("thirty levels deep", deep + u"/1.jpg"_s, deep + u"/1.jpg"_s, levels.join(u", "_s));
    }
    void trees()
    {
        QFETCH(QString, tree);
        const PhotoFolder folder;
        make(folder.path(), tree.split(u", "_s));
        const Walked found = walked(folder.path(), { u"t"_s });
        QTEST(found.photos.join(u", "_s), "photos");
        QTEST(found.folders.join(u", "_s), "folders");
        QCOMPARE(found.unlisted, QStringList());
        QVERIFY(found.isWhole);
    }

    void tops_data()
    {
        QTest::addColumn<QStringList>("tops");
        QTest::addColumn<QString>("photos");
        QTest::newRow("one in another") << QStringList{ u"t"_s, u"t/b"_s } << u"t/b/1.jpg"_s;
        QTest::newRow("twice") << QStringList{ u"t"_s, u"t"_s } << u"t/b/1.jpg"_s;
        QTest::newRow("by name") << QStringList{ u"u"_s, u"t"_s } << u"t/b/1.jpg, u/1.jpg"_s;
        QTest::newRow("a hidden one") << QStringList{ u"t/.h"_s } << u"t/.h/1.jpg"_s;
        QTest::newRow("a link") << QStringList{ u"l"_s } << u"l/b/1.jpg"_s;
        QTest::newRow("none") << QStringList{ u"nowhere"_s } << QString();
    }
    void tops()
    {
        QFETCH(QStringList, tops);
        const PhotoFolder folder;
        make(folder.path(), { u"t/b/1.jpg"_s, u"t/.h/1.jpg"_s, u"u/1.jpg"_s, u"l -> t"_s });
        QTEST(walked(folder.path(), tops).photos.join(u", "_s), "photos");
    }

    // What cannot be photos is told of, so that a watcher does not take it for gone.
    void unfitFiles()
    {
        const PhotoFolder folder;
        make(folder.path(), { u"a/empty.jpg"_s, u"a/l.jpg -> nowhere"_s, u"b/1.jpg"_s });
        const std::filesystem::path odd = folder.path(u"c"_s).toStdString() + "\xff";
        std::filesystem::create_directory(odd);
        const Walked found = walked(folder.path(), { {} });
        std::filesystem::remove(odd);
        QCOMPARE(found.photos, QStringList{ u"b/1.jpg"_s });
        QCOMPARE(found.unfit,
            QStringList({ u"a/empty.jpg: empty"_s, u"a/l.jpg: broken link"_s, u"c\uFFFD: its name is not UTF-8"_s }));
    }

    void unreadableFolder()
    {
        const PhotoFolder folder;
        make(folder.path(), { u"t/a/1.jpg"_s, u"t/b/2.jpg"_s });
        const std::filesystem::path locked = folder.path(u"t/a"_s).toStdString();
        std::filesystem::permissions(locked, std::filesystem::perms::none);
        if (geteuid() == 0) {
            std::filesystem::permissions(folder.path().toStdString(), std::filesystem::perms(0755));
            if (seteuid(65534) != 0)
                QSKIP("cannot become another user here");
        }
        const Walked found = walked(folder.path(), { u"t"_s });
        (void)!seteuid(getuid());
        std::filesystem::permissions(locked, std::filesystem::perms::owner_all);
        QCOMPARE(found.photos, QStringList{ u"t/b/2.jpg"_s });
        QCOMPARE(found.unlisted, QStringList{ u"t/a"_s });
        QVERIFY(found.isWhole);
    }

    void folderVanishes()
    {
        const PhotoFolder folder;
        QStringList tree{ u"t/z/1.jpg"_s };
        for (int i = 0; i < 200; ++i)
            tree.append(u"t/a/%1.jpg"_s.arg(i));
        make(folder.path(), tree);
        const Walked found = walked(folder.path(), { u"t"_s }, {},
            [&folder](const Walked&) { QDir(folder.path(u"t/z"_s)).removeRecursively(); });
        QCOMPARE(found.photos.size(), 200);
        QCOMPARE(found.folders, QStringList({ u"t"_s, u"t/a"_s }));
        QVERIFY(found.isWhole);
    }

    void comesInPieces()
    {
        const PhotoFolder folder;
        QStringList tree;
        for (int i = 0; i < 700; ++i)
            tree.append(u"%1/%2.jpg"_s.arg(i / 7).arg(i % 7));
        make(folder.path(), tree);
        const Walked found = walked(folder.path(), { {} });
        QCOMPARE(found.photos, tree);
        QVERIFY(found.isEnded);
        QVERIFY(found.pieces.constFirst() <= 50);
        QVERIFY(*std::max_element(found.pieces.cbegin(), found.pieces.cend()) <= 500);
    }

    void stops()
    {
        const PhotoFolder folder;
        QStringList tree;
        for (int i = 0; i < 300; ++i)
            tree.append(u"%1/%2.jpg"_s.arg(i / 100).arg(i % 100));
        make(folder.path(), tree);
        std::stop_source stop;
        const Walked found =
            walked(folder.path(), { {} }, stop.get_token(), [&stop](const Walked&) { stop.request_stop(); });
        QVERIFY(!found.isWhole);
        QVERIFY(found.photos.size() <= 50);
        // Half a folder must not pass for the whole of it.
        QCOMPARE(found.folders, QStringList{ QString() });
        QCOMPARE(found.unlisted, QStringList{ u"0"_s });
    }
};

QTEST_GUILESS_MAIN(tst_FolderWalk)
#include "tst_FolderWalk.moc"
