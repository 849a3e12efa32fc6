// New names for many photos: the plan as a table, the moves on real files, with other programs in between and killed at
// every step.
#include "core/renaming/RenameHistory.h"
#include "core/renaming/RenameSet.h"
#include "core/schema/FieldID.h"
#include "tests/support/Support.h"

#include <QDir>
#include <QScopeGuard>
#include <QTest>

#include <csignal>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// "a.jpg|2024-10-12 14:30|Title": name, date, title.
ImageRecord photo(const QString& folder, const QString& text)
{
    const QStringList parts = text.split(u'|');
    ImageRecord record{ .url = QUrl::fromLocalFile(folder + u'/' + parts.at(0)), .fileName = parts.at(0) };
    record.fileName = record.url.fileName();
    if (!parts.value(1).isEmpty())
        record.values.insert(FieldID::date, parts.at(1));
    if (!parts.value(2).isEmpty())
        record.values.insert(FieldID::title, parts.at(2));
    return record;
}

// Every file's content by its name: what a rename must not change but for the names.
QMap<QString, QString> contents(const QString& folder)
{
    QMap<QString, QString> held;
    const QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden);
    for (const QString& name : names)
        held.insert(name, QString::fromUtf8(readFile(folder + u'/' + name)));
    return held;
}

void make(const QString& folder, const QStringList& names)
{
    QDir().mkpath(folder);
    for (const QString& name : names)
        writeFile(folder + u'/' + name, name.toUtf8());
}

// "a>b c.jpg>d.jpg": photos and their new names.
FolderRenaming renaming(const QString& folder, const QString& moves)
{
    FolderRenaming result{ .folder = folder };
    for (const QString& move : moves.split(u' ')) {
        const QStringList names = move.split(u'>');
        result.files.append({ names.at(0), names.at(1), !names.at(0).endsWith(u".xmp"_s) });
    }
    return result;
}

}  // namespace

class tst_Renaming : public QObject {
    Q_OBJECT

private slots:
    void plan_data();
    void plan();
    void folders();
    void manyOfOneName();
    void moves_data();
    void moves();
    void othersInBetween_data();
    void othersInBetween();
    void killed_data();
    void killed();
    void takenBack();
    void takenBackBesideOthers();
    void takenBackInPart();
};

void tst_Renaming::plan_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("photos");
    QTest::addColumn<QStringList>("others");
    QTest::addColumn<QStringList>("rows");  // "new name|words"
    QTest::addColumn<QString>("moves");
    const QString all = u"%Date%_%Title%_%Counter%"_s;
    QTest::addRow("values") << all << QStringList{ u"a.jpg|2024-10-12 10:00|Reed bank"_s, u"b.JPG|2024-10-13|Çay"_s }
                            << QStringList()
                            << QStringList{ u"2024-10-12_Reed-bank_0001.jpg|"_s, u"2024-10-13_Cay_0002.JPG|"_s }
                            << u"a.jpg>2024-10-12_Reed-bank_0001.jpg b.JPG>2024-10-13_Cay_0002.JPG"_s;
    QTest::addRow("missing") << all << QStringList{ u"a.jpg|2024-10-12"_s } << QStringList()
                             << QStringList{ u"2024-10-12_0001.jpg|becomes 2024-10-12_0001.jpg"_s }
                             << u"a.jpg>2024-10-12_0001.jpg"_s;
    QTest::addRow("a default is not missing") << u"%Title|none%"_s << QStringList{ u"a.jpg"_s } << QStringList()
                                              << QStringList{ u"none.jpg|"_s } << u"a.jpg>none.jpg"_s;
    QTest::addRow("forms") << u"%Date:yyMMdd%-%Counter:10+5%"_s
                           << QStringList{ u"a.jpg|2024-10-12"_s, u"b.jpg|2024-10-12"_s } << QStringList()
                           << QStringList{ u"241012-10.jpg|"_s, u"241012-15.jpg|"_s }
                           << u"a.jpg>241012-10.jpg b.jpg>241012-15.jpg"_s;
    QTest::addRow("taken by another file, in any case")
        << u"%Title%"_s << QStringList{ u"a.jpg||New"_s } << QStringList{ u"NEW.jpg"_s, u"new-2.JPG"_s }
        << QStringList{ u"New-3.jpg|name taken, so -3"_s } << u"a.jpg>New-3.jpg"_s;
    QTest::addRow("taken by one another")
        << u"%Title%"_s << QStringList{ u"a.jpg||x"_s, u"b.jpg||X"_s, u"c.png||x"_s } << QStringList()
        << QStringList{ u"x.jpg|"_s, u"X-2.jpg|name taken, so -2"_s, u"x.png|"_s }
        << u"a.jpg>x.jpg b.jpg>X-2.jpg c.png>x.png"_s;
    QTest::addRow("swap") << u"%Title%"_s << QStringList{ u"a.jpg||b"_s, u"b.jpg||a"_s } << QStringList()
                          << QStringList{ u"b.jpg|"_s, u"a.jpg|"_s } << u"a.jpg>b.jpg b.jpg>a.jpg"_s;
    QTest::addRow("who has the name keeps it")
        << u"%Title%"_s << QStringList{ u"a.jpg||x"_s, u"x.jpg||x"_s } << QStringList()
        << QStringList{ u"x-2.jpg|name taken, so -2"_s, u"x.jpg|"_s } << u"a.jpg>x-2.jpg"_s;
    QTest::addRow("once more changes nothing")
        << u"%Title%"_s << QStringList{ u"x-2.jpg||x"_s, u"x-3.jpg||x"_s, u"x.jpg||x"_s } << QStringList()
        << QStringList{ u"x-2.jpg|name taken, so -2"_s, u"x-3.jpg|name taken, so -3"_s, u"x.jpg|"_s } << QString();
    QTest::addRow("the case alone") << u"%Title%"_s << QStringList{ u"new.jpg||New"_s } << QStringList()
                                    << QStringList{ u"New.jpg|"_s } << u"new.jpg>New.jpg"_s;
    QTest::addRow("raw and picture are one shot, companions go along")
        << u"%Title%_%Counter%"_s << QStringList{ u"I1.CR2"_s, u"I1.JPG||Sea"_s, u"I2.JPG||Sky"_s }
        << QStringList{ u"I1.xmp"_s, u"I1.CR2.xmp"_s, u"I1.JPG_original"_s, u"I2.XMP"_s, u"I2.txt"_s }
        << QStringList{ u"Sea_0001.CR2|"_s, u"Sea_0001.JPG|"_s, u"Sky_0002.JPG|"_s }
        << u"I1.CR2>Sea_0001.CR2 I1.JPG>Sea_0001.JPG I1.CR2.xmp>Sea_0001.CR2.xmp I1.xmp>Sea_0001.xmp "
           "I1.JPG_original>Sea_0001.JPG_original I2.JPG>Sky_0002.JPG I2.XMP>Sky_0002.XMP"_s;
    QTest::addRow("of a pair all goes along")
        << u"+%Title%"_s << QStringList{ u"I1.CR3||Sea"_s }
        << QStringList{ u"I1.JPG"_s, u"I1.xmp"_s, u"I1.CR3.xmp"_s, u"I1.xmp_original"_s, u"I1.JPG_original"_s,
               u"I1.CR3.pp3"_s, u"I1.pp3"_s, u"I1.CR3.DOP"_s, u"I1.WAV"_s, u"I1.txt"_s, u"I1.x.pp3"_s, u"I10.pp3"_s }
        << QStringList{ u"Sea.CR3|with I1.JPG"_s }
        << u"I1.CR3>Sea.CR3 I1.JPG>Sea.JPG I1.xmp>Sea.xmp I1.CR3.xmp>Sea.CR3.xmp I1.xmp_original>Sea.xmp_original "
           "I1.JPG_original>Sea.JPG_original I1.CR3.pp3>Sea.CR3.pp3 I1.pp3>Sea.pp3 I1.CR3.DOP>Sea.CR3.DOP "
           "I1.WAV>Sea.WAV"_s;
    QTest::addRow("settings need their name, too")
        << u"+%Title%"_s << QStringList{ u"I1.CR3||Sea"_s } << QStringList{ u"I1.CR3.pp3"_s, u"sea.cr3.PP3"_s }
        << QStringList{ u"Sea-2.CR3|name taken, so -2"_s } << u"I1.CR3>Sea-2.CR3 I1.CR3.pp3>Sea-2.CR3.pp3"_s;
    QTest::addRow("only of pairs") << u"%Title%"_s << QStringList{ u"I1.CR3||Sea"_s }
                                   << QStringList{ u"I1.CR3.pp3"_s, u"I1.WAV"_s } << QStringList{ u"Sea.CR3|"_s }
                                   << u"I1.CR3>Sea.CR3"_s;
    QTest::addRow("the raw file that is not among them goes along")
        << u"%Title%"_s << QStringList{ u"I1.jpg||Sea"_s } << QStringList{ u"I1.nef"_s, u"I1.tif"_s }
        << QStringList{ u"Sea.jpg|with I1.nef"_s } << u"I1.jpg>Sea.jpg I1.nef>Sea.nef"_s;
    QTest::addRow("a pair takes a name that is free for both")
        << u"%Title%"_s << QStringList{ u"I1.jpg||Sea"_s, u"I1.nef||Sea"_s } << QStringList{ u"sea.NEF"_s }
        << QStringList{ u"Sea-2.jpg|name taken, so -2"_s, u"Sea-2.nef|name taken, so -2"_s }
        << u"I1.jpg>Sea-2.jpg I1.nef>Sea-2.nef"_s;
    QTest::addRow("a sidecar needs its name, too")
        << u"%Title%"_s << QStringList{ u"a.jpg||Sea"_s } << QStringList{ u"a.xmp"_s, u"Sea.xmp"_s }
        << QStringList{ u"Sea-2.jpg|name taken, so -2"_s } << u"a.jpg>Sea-2.jpg a.xmp>Sea-2.xmp"_s;
    QTest::addRow("no raw, no pair: the first takes the sidecar along")
        << u"%Counter%"_s << QStringList{ u"a.jpg"_s, u"a.png"_s } << QStringList{ u"a.xmp"_s }
        << QStringList{ u"0001.jpg|"_s, u"0002.png|"_s } << u"a.jpg>0001.jpg a.xmp>0001.xmp a.png>0002.png"_s;
    QTest::addRow("a raw file's sidecar stays with it")
        << u"%Title%"_s << QStringList{ u"I1.tif||Sea"_s, u"I2.tif||Sea"_s }
        << QStringList{ u"I1.CR3"_s, u"I1.xmp"_s, u"I1.tif.xmp"_s, u"I2.xmp"_s }
        << QStringList{ u"Sea.tif|"_s, u"Sea-2.tif|name taken, so -2"_s }
        << u"I1.tif>Sea.tif I1.tif.xmp>Sea.tif.xmp I2.tif>Sea-2.tif I2.xmp>Sea-2.xmp"_s;
    QTest::addRow("no raw file comes to another's sidecar")
        << u"%Title%"_s << QStringList{ u"I1.CR3||Sea"_s, u"D9.NEF||Sea"_s, u"D8.DNG||Sky"_s }
        << QStringList{ u"I1.xmp"_s, u"Sky.XMP"_s }
        << QStringList{ u"Sea.CR3|"_s, u"Sea-2.NEF|name taken, so -2"_s, u"Sky-2.DNG|name taken, so -2"_s }
        << u"I1.CR3>Sea.CR3 I1.xmp>Sea.xmp D9.NEF>Sea-2.NEF D8.DNG>Sky-2.DNG"_s;
    QTest::addRow("slash") << u"a/%Title%"_s << QStringList{ u"a.jpg||x"_s } << QStringList()
                           << QStringList{ u"a.jpg|a file name cannot hold “/”"_s } << QString();
    QTest::addRow("dots alone") << u".."_s << QStringList{ u"a.jpg"_s } << QStringList()
                                << QStringList{ u"untitled.jpg|"_s } << u"a.jpg>untitled.jpg"_s;
    QTest::addRow("values cannot hold a slash, nor a token")
        << u"%Title%"_s << QStringList{ u"a.jpg|2024-10-12|x/%Date%"_s } << QStringList()
        << QStringList{ u"xDate.jpg|"_s } << u"a.jpg>xDate.jpg"_s;
    const QString longest(251, u'x');
    QTest::addRow("as long as can be") << u"%Title%"_s << QStringList{ u"a.jpg||"_s + longest } << QStringList()
                                       << QStringList{ longest + u".jpg|"_s } << u"a.jpg>"_s + longest + u".jpg"_s;
    QTest::addRow("too long with its number, and with its backup")
        << u"%Title%"_s << QStringList{ u"a.jpg||"_s + longest, u"b.jpg||"_s + longest.chopped(5) }
        << QStringList{ longest + u".jpg"_s, u"b.jpg_original"_s }
        << QStringList{ u"a.jpg|too long for a file name"_s, u"b.jpg|too long for a file name"_s } << QString();
    QTest::addRow("gone meanwhile") << u"%Counter%"_s << QStringList{ u"!a.jpg"_s, u"b.jpg"_s } << QStringList()
                                    << QStringList{ u"a.jpg|not there any more"_s, u"0002.jpg|"_s } << QString();
}

void tst_Renaming::plan()
{
    QFETCH(QString, pattern);
    QFETCH(QStringList, photos);
    QFETCH(QStringList, others);
    QFETCH(QStringList, rows);
    QFETCH(QString, moves);
    FolderListing listing{ .names = others };
    QList<ImageRecord> records;
    for (QString text : std::as_const(photos)) {
        const bool isGone = text.startsWith(u'!');
        records.append(photo(u"/p"_s, text.remove(u'!')));
        if (!isGone)
            listing.names.append(records.constLast().fileName);
    }
    // "+": of pairs.
    using Kind = CompanionNames::Kind;
    const Kind kind = pattern.startsWith(u'+') ? Kind::all : Kind::ofMetadata;
    const RenameSet set(records, { { u"/p"_s, listing } }, kind);
    const RenamePlan plan = set.plan({ .pattern = kind == Kind::all ? pattern.sliced(1) : pattern });
    QStringList told;
    qsizetype marked = 0;
    bool isPossible = true;
    for (const RenameRow& row : plan.rows) {
        told.append(row.newName + u'|' + row.words());
        marked += row.isMarked() ? 1 : 0;
        isPossible = isPossible && row.obstacle == RenameRow::Obstacle::none;
    }
    QCOMPARE(told, rows);
    QCOMPARE(plan.marked, marked);
    QCOMPARE(plan.isPossible, isPossible);
    if (!isPossible)
        return;
    QStringList planned;
    for (const FolderRenaming& folder : plan.folders)
        for (const FileRenaming& file : folder.files)
            planned.append(file.from + u'>' + file.to);
    QStringList expected = moves.split(u' ', Qt::SkipEmptyParts);
    // Companions come in the order of the listing.
    planned.sort();
    expected.sort();
    QCOMPARE(planned, expected);
}

void tst_Renaming::folders()
{
    const QList<ImageRecord> photos{ photo(u"/p"_s, u"a.jpg||x"_s), photo(u"/p/q"_s, u"a.jpg||x"_s),
        photo(u"/p/locked"_s, u"a.jpg||x"_s) };
    const FolderListing listing{ .names = { u"a.jpg"_s } };
    const RenameSet set(photos,
        { { u"/p"_s, listing }, { u"/p/q"_s, listing },
            { u"/p/locked"_s, { .names = { u"a.jpg"_s, u"a.cr2"_s }, .isWritable = false } } });
    const RenamePlan plan = set.plan({ .pattern = u"%Title%%Place%"_s });
    QCOMPARE(plan.folders.size(), 2);
    QCOMPARE(plan.folders.at(0), renaming(u"/p"_s, u"a.jpg>x.jpg"_s));
    QCOMPARE(plan.folders.at(1), renaming(u"/p/q"_s, u"a.jpg>x.jpg"_s));
    QCOMPARE(plan.rows.at(2).words(), u"its folder is read-only"_s);
    QVERIFY(!plan.isPossible);
    QCOMPARE(set.along(), QList<QUrl>{ QUrl::fromLocalFile(u"/p/locked/a.cr2"_s) });
    // What is shown of a missing value: the pieces, then the extension.
    const QList<RenderedPiece>& pieces = plan.rows.at(0).pieces;
    QCOMPARE(pieces.size(), 3);
    QCOMPARE(pieces.at(1).kind, RenderedPiece::Kind::missing);
    QCOMPARE(pieces.at(2).text, u".jpg"_s);
    QVERIFY(!plan.rows.at(2).isUnchanged() == false && plan.rows.at(2).pieces.isEmpty());
}

// Numbers are not looked for from the beginning each time.
void tst_Renaming::manyOfOneName()
{
    QList<ImageRecord> photos;
    FolderListing listing;
    for (int i = 0; i < 20000; ++i) {
        photos.append(photo(u"/p"_s, u"i%1.jpg||x"_s.arg(i)));
        listing.names.append(photos.constLast().fileName);
    }
    const RenamePlan plan = RenameSet(photos, { { u"/p"_s, listing } }).plan({ .pattern = u"%Title%"_s });
    QCOMPARE(plan.rows.constLast().newName, u"x-20000.jpg"_s);
    QCOMPARE(plan.marked, 19999);
}

void tst_Renaming::moves_data()
{
    QTest::addColumn<QString>("moves");
    QTest::addRow("plain") << u"a.jpg>x.jpg b.jpg>y.jpg a.xmp>x.xmp"_s;
    QTest::addRow("swap") << u"a.jpg>b.jpg b.jpg>a.jpg a.xmp>b.xmp"_s;
    QTest::addRow("ring") << u"a.jpg>b.jpg b.jpg>c.jpg c.jpg>a.jpg"_s;
    QTest::addRow("chain") << u"a.jpg>b.jpg b.jpg>c.jpg c.jpg>d.jpg"_s;
    QTest::addRow("case") << u"a.jpg>A.jpg b.jpg>a.JPG"_s;
}

// A rename, and then back.
void tst_Renaming::moves()
{
    QFETCH(QString, moves);
    const PhotoFolder folder;
    const QString photos = folder.path(u"photos"_s);
    make(photos, { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s, u"other.txt"_s });
    if (moves.contains(u"a.xmp"_s))
        make(photos, { u"a.xmp"_s });
    const QMap<QString, QString> before = contents(photos);
    QMap<QString, QString> after = before;
    const FolderRenaming wanted = renaming(photos, moves);
    RenameHistory::Paths told;
    for (const FileRenaming& file : wanted.files)
        after.remove(file.from);
    for (const FileRenaming& file : wanted.files) {
        after.insert(file.to, before.value(file.from));
        if (file.isPhoto)
            told.append({ photos + u'/' + file.from, photos + u'/' + file.to });
    }
    RenameHistory::Paths heard;
    RenameHistory history(
        folder.path(u"journal"_s), [&](const QString&, const RenameHistory::Paths& paths) { heard = paths; });
    const RenameHistory::Outcome outcome = history.rename({ wanted });
    QCOMPARE(contents(photos), after);
    QCOMPARE(outcome.problems, QStringList());
    QCOMPARE(outcome.photos, told);
    QCOMPARE(heard, told);
    QCOMPARE(RenameHistory::name(outcome.next), u"Undo Rename of %1 Photos"_s.arg(told.size()));
    // As after a restart.
    RenameHistory later(folder.path(u"journal"_s));
    QCOMPARE(later.open(), outcome.next);
    const RenameHistory::Outcome undone = later.undo(outcome.next.number);
    QCOMPARE(contents(photos), before);
    QCOMPARE(undone.problems, QStringList());
    QCOMPARE(undone.photos.size(), told.size());
    QCOMPARE(RenameHistory::name(undone.next), u"Undo Rename"_s);
    QCOMPARE(later.undo(outcome.next.number).problems, QStringList{ u"it was undone already"_s });
}

void tst_Renaming::othersInBetween_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("problem");
    QTest::addRow("another program takes a name") << u"take"_s << u"“z.jpg” is there already"_s;
    QTest::addRow("a photo goes") << u"remove"_s << u"“c.jpg”: No such file or directory"_s;
    QTest::addRow("somebody cancels") << u"cancel"_s << QString();
    QTest::addRow("the folder becomes read-only") << u"lock"_s << u"“c.jpg”: Permission denied"_s;
}

// All or nothing in a folder; the folder before it keeps its new names.
void tst_Renaming::othersInBetween()
{
    QFETCH(QString, what);
    QFETCH(QString, problem);
    const PhotoFolder folder;
    const QString first = folder.path(u"first"_s);
    const QString photos = folder.path(u"second"_s);
    make(first, { u"a.jpg"_s });
    make(photos, { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s });
    const bool isLocked = what == u"lock";
    if (isLocked && geteuid() == 0)
        for (const QString& path : { folder.path(), first, photos })
            QCOMPARE(chown(QFile::encodeName(path).constData(), 65534, 65534), 0);
    const auto asOther = [&](auto action) {
        const bool isOther = isLocked && geteuid() == 0 && seteuid(65534) == 0;
        const auto back = qScopeGuard([isOther] {
            if (isOther && seteuid(0) != 0)
                qFatal("still another user");
        });
        return action();
    };
    RenameHistory history(folder.path(u"journal"_s));
    const QList<FolderRenaming> wanted{ renaming(first, u"a.jpg>x.jpg"_s),
        renaming(photos, u"a.jpg>b.jpg b.jpg>a.jpg c.jpg>z.jpg"_s) };
    const QMap<QString, QString> before = contents(photos);
    const auto goesOn = [&](qsizetype done) {
        if (done < 3)
            return true;
        if (what == u"take")
            writeFile(photos + u"/z.jpg"_s, "other");
        else if (what == u"remove")
            QFile::remove(photos + u"/c.jpg"_s);
        else if (isLocked)
            chmod(QFile::encodeName(photos).constData(), 0555);
        return what != u"cancel";
    };
    const RenameHistory::Outcome outcome = asOther([&] { return history.rename(wanted, goesOn); });
    QCOMPARE(outcome.problems, problem.isEmpty() ? QStringList() : QStringList{ problem });
    QCOMPARE(outcome.isGivenUp, what == u"cancel");
    QCOMPARE(outcome.photos.size(), 1);
    QCOMPARE(contents(first).keys(), QStringList{ u"x.jpg"_s });
    chmod(QFile::encodeName(photos).constData(), 0755);
    if (isLocked) {
        // Nothing could be moved back; the next start does.
        QVERIFY(contents(photos) != before);
        RenameHistory(folder.path(u"journal"_s)).open();
    }
    QMap<QString, QString> after = before;
    if (what == u"take")
        after.insert(u"z.jpg"_s, u"other"_s);
    if (what == u"remove")
        after.remove(u"c.jpg"_s);
    QCOMPARE(contents(photos), after);
    QCOMPARE(RenameHistory(folder.path(u"journal"_s)).open().photos, 1);
}

void tst_Renaming::killed_data()
{
    QTest::addColumn<bool>("undoing");
    QTest::addRow("renaming") << false;
    QTest::addRow("taking back") << true;
}

// Before every single step; the next start finds each folder with all of its old names or all of its new ones, no file
// with a name that was only on the way, and nothing lost.
void tst_Renaming::killed()
{
    QFETCH(bool, undoing);
    int kills = 0;
    for (int step = 0; step < 11; ++step) {
        const PhotoFolder folder;
        const QString first = folder.path(u"first"_s);
        const QString second = folder.path(u"second"_s);
        make(first, { u"a.jpg"_s, u"b.jpg"_s });
        make(second, { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s });
        const QList<FolderRenaming> wanted{ renaming(first, u"a.jpg>b.jpg b.jpg>a.jpg"_s),
            renaming(second, u"a.jpg>b.jpg b.jpg>x.jpg c.jpg>C.jpg"_s) };
        const auto before = std::pair(contents(first), contents(second));
        qint64 number = 0;
        if (undoing)
            number = RenameHistory(folder.path(u"journal"_s)).rename(wanted).next.number;
        const auto between = std::pair(contents(first), contents(second));
        const pid_t child = fork();
        if (child == 0) {
            int asked = 0;
            const auto goesOn = [&](qsizetype) {
                if (asked++ == step)
                    raise(SIGKILL);
                return true;
            };
            RenameHistory history(folder.path(u"journal"_s));
            if (undoing)
                history.undo(number, goesOn);
            else
                history.rename(wanted, goesOn);
            _exit(0);
        }
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        kills += WIFSIGNALED(status) ? 1 : 0;
        RenameHistory history(folder.path(u"journal"_s));
        const RenameHistory::Undoable found = history.open();
        const auto after = std::pair(contents(first), contents(second));
        const bool isFirstMoved = step >= 4;
        const bool isAllMoved = step >= 9;
        // Of the folders that were done the names are new, or, when taken back, the old ones again.
        if (undoing) {
            QCOMPARE(after.first, isFirstMoved ? before.first : between.first);
            QCOMPARE(after.second, isAllMoved ? before.second : between.second);
            QCOMPARE(found.photos, (isFirstMoved ? 0 : 2) + (isAllMoved ? 0 : 3));
        } else {
            QCOMPARE(after.first == before.first, !isFirstMoved);
            QCOMPARE(after.second == before.second, !isAllMoved);
            QCOMPARE(found.photos, (isFirstMoved ? 2 : 0) + (isAllMoved ? 3 : 0));
        }
        for (const auto& held : { after.first, after.second })
            for (const QString& name : held.keys())
                QVERIFY2(!name.startsWith(u".quorbel"_s), qPrintable(name));
        QCOMPARE(after.first.size() + after.second.size(), 5);
    }
    QCOMPARE(kills, 9);
}

// Companions that came since go along; another rename on top is taken back first.
void tst_Renaming::takenBack()
{
    const PhotoFolder folder;
    const QString photos = folder.path(u"photos"_s);
    make(photos, { u"a.jpg"_s, u"b.jpg"_s });
    RenameHistory history(folder.path(u"journal"_s));
    history.rename({ renaming(photos, u"a.jpg>x.jpg b.jpg>y.jpg"_s) });
    make(photos, { u"x.jpg_original"_s, u"x.xmp"_s });
    RenameHistory::Undoable next = history.rename({ renaming(photos, u"y.jpg>b.jpg"_s) }).next;
    QCOMPARE(RenameHistory::name(next), u"Undo Rename of “b.jpg”"_s);
    next = history.undo(next.number).next;
    QCOMPARE(next.photos, 2);
    next = history.undo(next.number).next;
    QCOMPARE(next.photos, 0);
    QCOMPARE(contents(photos).keys(), QStringList({ u"a.jpg"_s, u"a.jpg_original"_s, u"a.xmp"_s, u"b.jpg"_s }));
    const RenameJournal journal(folder.path(u"journal"_s));
    for (int i = 0; i < 25; ++i)
        journal.noteDone(journal.begin(u"mark"_s).value_or(0));
    QCOMPARE(journal.numbers().size(), RenameJournal::limit);
}

// What was there by then of another photo stays with it.
void tst_Renaming::takenBackBesideOthers()
{
    const PhotoFolder folder;
    const QString photos = folder.path(u"photos"_s);
    make(photos, { u"a.jpg"_s, u"x.CR3"_s, u"x.xmp"_s });
    RenameHistory history(folder.path(u"journal"_s));
    const RenameHistory::Undoable done = history.rename({ renaming(photos, u"a.jpg>x.jpg"_s) }).next;
    make(photos, { u"x.jpg.xmp"_s });
    history.undo(done.number);
    QCOMPARE(contents(photos).keys(), QStringList({ u"a.jpg"_s, u"a.jpg.xmp"_s, u"x.CR3"_s, u"x.xmp"_s }));
}

// A folder whose photos are not as they were left stays as it is, and is named.
void tst_Renaming::takenBackInPart()
{
    const PhotoFolder folder;
    const QString first = folder.path(u"first"_s);
    const QString second = folder.path(u"second"_s);
    make(first, { u"a.jpg"_s, u"b.jpg"_s });
    make(second, { u"a.jpg"_s });
    RenameHistory history(folder.path(u"journal"_s));
    const QList<FolderRenaming> wanted{ renaming(first, u"a.jpg>x.jpg b.jpg>y.jpg"_s),
        renaming(second, u"a.jpg>x.jpg"_s) };
    const RenameHistory::Undoable done = history.rename(wanted).next;
    QFile::remove(first + u"/y.jpg"_s);
    QCOMPARE(history.latest().photos, 1);
    RenameHistory::Outcome undone = history.undo(done.number);
    QCOMPARE(undone.problems, QStringList{ u"“y.jpg” is not there any more"_s });
    QCOMPARE(contents(first).keys(), QStringList{ u"x.jpg"_s });
    QCOMPARE(contents(second).keys(), QStringList{ u"a.jpg"_s });
    QCOMPARE(undone.next.photos, 0);
    make(first, { u"y.jpg"_s, u"a.jpg"_s });
    undone = history.undo(done.number);
    QCOMPARE(undone.problems, QStringList{ u"“a.jpg” is there already"_s });
    QCOMPARE(contents(first).keys(), QStringList({ u"a.jpg"_s, u"x.jpg"_s, u"y.jpg"_s }));
    QCOMPARE(undone.next.photos, 2);
}

QTEST_GUILESS_MAIN(tst_Renaming)

#include "tst_Renaming.moc"
