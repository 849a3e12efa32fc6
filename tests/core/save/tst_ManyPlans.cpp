// Photos that are asked different things, saved and taken back in one start of the tool: what the files hold is what a
// start for each would have left, and whatever becomes of one of them is its own affair.
#include "core/MetadataService.h"
#include "core/save/SaveVerification.h"
#include "core/save/journal/JournalTags.h"
#include "core/save/together/PhotoPlans.h"
#include "tests/support/RealService.h"
#include "tests/support/RefusedExif.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

using Lists = QMap<QString, QStringList>;
constexpr auto append = MetadataWriter::ListMode::append;

// The real tool, and a note of each start; `prelude` is run before it, in Perl.
class NotedTool {
public:
    explicit NotedTool(const QByteArray& prelude = {})
    {
        writeFile(m_script,
            "open my $log, '>>', '" + m_log.toUtf8() + "'; print $log scalar(grep { $_ eq '-execute' } @ARGV),\n"
                + "\" @ARGV[0]\\n\"; close $log;\n" + prelude + "exec " + toolForPerl() + ", @ARGV;\n");
    }
    MetadataService service() const { return { { QUrl::fromLocalFile(m_script), realTool().perlURL } }; }
    /// The commands behind the first one, of each start that writes.
    QList<int> furtherCommands() const
    {
        QList<int> numbers;
        for (const QByteArray& line : readFile(m_log).split('\n'))
            if (line.endsWith("-echo4") || line.endsWith("-config") || line.endsWith("-overwrite_original"))
                numbers.append(line.split(' ').constFirst().toInt());
        return numbers;
    }

private:
    PhotoFolder m_folder;
    QString m_script = m_folder.path(u"exiftool"_s);
    QString m_log = m_folder.path(u"log"_s);
};

struct Asked {
    QString name{};
    QStringList held{};  // as the tool gets it
    EditPlan plan{};
    QList<Assignment> preparation{};
};

// Texts that argument files would change, every kind of assignment, and what takes runs of its own.
QList<Asked> asked()
{
    const QString odd = u"  $HOME @x \\n “东京”\n\tsecond line = 1 "_s;
    return { { u"a.jpg"_s, { u"-XMP-dc:Title=Old"_s, u"-XMP-dc:Title-de=Alt"_s, u"-IPTC:City=Zürich"_s },
                 { .scalars = { { u"title"_s, odd }, { u"title@fr"_s, u"Vieux"_s } },
                     .keptLanguages = { u"XMP-dc:Title"_s } } },
        { u"b.tif"_s, { u"-XMP-dc:Subject=old"_s, u"-XMP-dc:Subject=x"_s, u"-IPTC:Keywords=old"_s },
            { .lists = { { u"keywords"_s, { u"a, b"_s, u"x"_s } } },
                .listMode = append,
                .removed = { { u"keywords"_s, { u"old"_s } } } },
            { { u"IPTC:Keywords"_s, Assignment::Operation::remove, u"x"_s },
                { u"IPTC:Keywords"_s, Assignment::Operation::add, u"x"_s } } },
        { u"c.png"_s, { u"-XMP-photoshop:City=Bern"_s, u"-XMP-dc:Subject=gone"_s },
            { .scalars = { { u"place"_s, {} }, { u"coords"_s, u"-33.5, -70.25"_s } },
                .listMode = append,
                .removed = { { u"keywords"_s, { u"gone"_s } } } } },
        { u"d.jpg"_s, {}, { .scalars = { { u"coords"_s, u"33.5, 70.25"_s } }, .customs = { { u"Mood"_s, odd } } } },
        { u"e.webp"_s, { u"-EXIF:Artist=Ana"_s },
            { .lists = { { u"people"_s, { u"B"_s, u"A"_s } } }, .customs = { { u"Film"_s, u"HP5"_s } } } },
        { u"f.jpg"_s, {}, { .scalars = { { u"rating"_s, u"5"_s }, { u"title"_s, u"f"_s } } } } };
}

QList<SavePortion> portionsIn(const PhotoFolder& folder)
{
    QList<SavePortion> portions;
    for (const Asked& one : asked()) {
        const QUrl photo = folder.add(one.name);
        if (!one.held.isEmpty())
            exiftool(QStringList{ u"-q"_s, u"-overwrite_original"_s } + one.held + QStringList{ photo.toLocalFile() });
        SavePortion portion{ one.plan, { photo }, {} };
        if (!one.preparation.isEmpty())
            portion.preparations = { { { .assignments = one.preparation }, { photo } } };
        portions.append(portion);
    }
    return portions;
}

// All tags of all files, without what tells when and where they were written.
QByteArray dump(const PhotoFolder& folder)
{
    return exiftool(
        { u"-a"_s, u"-G1"_s, u"-s"_s, u"-n"_s, u"-ec"_s, u"--System:all"_s, u"--SourceFile"_s, folder.path() })
        .replace(folder.path().toUtf8(), "");
}

QList<SavePortion> titled(const QList<QUrl>& photos)
{
    QList<SavePortion> portions;
    for (const QUrl& photo : photos)
        portions.append({ { .scalars = { { u"title"_s, photo.fileName() } } }, { photo }, {} });
    return portions;
}

QStringList titles(const QList<QUrl>& photos)
{
    QStringList titles;
    for (const QUrl& photo : photos)
        titles.append(QString::fromUtf8(tagValue(photo, u"-XMP-dc:Title"_s)));
    return titles;
}

}  // namespace

class tst_ManyPlans : public QObject {
    Q_OBJECT

private slots:
    void sharesStarts_data()
    {
        QTest::addColumn<int>("runs");
        QTest::addColumn<int>("most");
        QTest::addColumn<QList<int>>("counts");
        QTest::addRow("one") << 1 << 10 << QList<int>{ 1 };
        QTest::addRow("as many as fit") << 5 << 260 << QList<int>{ 2, 2, 1 };
        QTest::addRow("each alone where none fits") << 3 << 10 << QList<int>{ 1, 1, 1 };
        QTest::addRow("all") << 5 << 10'000 << QList<int>{ 5 };
        QTest::addRow("none") << 0 << 10 << QList<int>{};
    }
    void sharesStarts()
    {
        QFETCH(int, runs);
        QFETCH(int, most);
        QList<WriteRun> all;
        for (int i = 0; i < runs; ++i)
            all.append({ { .assignments = { { u"T"_s, Assignment::Operation::set, QString::number(i) } } },
                { QUrl::fromLocalFile(u"/p/%1.jpg"_s.arg(i)) } });
        QList<int> counts;
        QStringList files;
        for (const CommandBatch::Process& process :
            CommandBatch::processes(all, { u"-o"_s, u"-"_s }, u"mark"_s, most)) {
            QCOMPARE(process.first, files.size());
            counts.append(int(process.count));
            const QStringList commands = process.arguments.join(u'|').split(u"|-execute|"_s);
            QCOMPARE(commands.size(), process.count);
            for (qsizetype i = 0; i < commands.size(); ++i)
                QCOMPARE(
                    commands[i], u"-echo4|mark %1 ${status}|-o|-|-m|-T=%2|/p/%2.jpg"_s.arg(i).arg(files.size() + i));
            files += commands;
        }
        QTEST(counts, "counts");
    }

    void tellsWhatEachSaid()
    {
        const auto said = CommandBatch::said(
            "Warning: w\nmark 0 0\nError: mark 1 0\n  mark 9\nmark 1 1\nmark 7 0\nrest", u"mark"_s, 4);
        QCOMPARE(said[0].messages, "Warning: w\n");
        QVERIFY(said[0].hasEnded && said[0].status == 0);
        QCOMPARE(said[1].messages, "Error: mark 1 0\n  mark 9\n");
        QVERIFY(said[1].hasEnded && said[1].status == 1);
        QCOMPARE(said[2].messages, "rest");
        QVERIFY(!said[2].hasEnded && !said[3].hasEnded && said[3].messages.isEmpty());
    }

    // Keywords that are taken away: in every spelling that some home has, and nothing else with them.
    void takesEverySpellingAway_data()
    {
        QTest::addColumn<QStringList>("iptc");
        QTest::addColumn<QStringList>("xmp");
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<QStringList>("removed");
        QTest::addColumn<QString>("before");  // runs
        QTest::addColumn<QStringList>("gone");
        const QString damaged = u"ZÃ¼rich"_s;
        const QStringList zurich{ u"Zürich"_s };
        QTest::addRow("as it is") << QStringList{ u"a"_s, u"b"_s } << QStringList{ u"a"_s, u"c"_s } << QStringList()
                                  << QStringList{ u"a"_s } << QString() << QStringList{ u"a"_s };
        QTest::addRow("damaged in one home") << zurich << QStringList{ damaged } << QStringList() << zurich
                                             << u"-XMP-dc:Subject-=ZÃ¼rich"_s << QStringList{ u"Zürich"_s, damaged };
        QTest::addRow("shown as a number")
            << QStringList{ u"1.10"_s } << QStringList() << QStringList() << QStringList{ u"1.1"_s }
            << u"-IPTC:Keywords-=1.10"_s << QStringList{ u"1.10"_s, u"1.1"_s };
        QTest::addRow("beside one that is added")
            << QStringList{ u"a"_s, u"b"_s } << QStringList{ u"a"_s } << QStringList{ u"x"_s } << QStringList{ u"a"_s }
            << u"-XMP-dc:Subject-=b -XMP-dc:Subject+=b"_s << QStringList{ u"a"_s };
        QTest::addRow("nowhere") << QStringList{ u"b"_s } << QStringList() << QStringList() << QStringList{ u"a"_s }
                                 << QString() << QStringList{ u"a"_s };
    }
    void takesEverySpellingAway()
    {
        QFETCH(QStringList, iptc);
        QFETCH(QStringList, xmp);
        QFETCH(QStringList, added);
        QFETCH(QStringList, removed);
        QFETCH(QStringList, gone);
        FileTags held;
        for (const QString& item : iptc)
            held[u"IPTC:Keywords"_s].append(item.toUtf8());
        for (const QString& item : xmp)
            held[u"XMP-dc:Subject"_s].append(item.toUtf8());
        EditPlan plan{ .listMode = append, .removed = { { u"keywords"_s, removed } } };
        if (!added.isEmpty())
            plan.lists.insert(u"keywords"_s, added);
        const ListHomes::Change change = ListHomes::change(plan, held, u"JPEG"_s, {});
        QTEST(arguments(change.preparation).join(u' '), "before");
        QCOMPARE(change.takenAway, (Lists{ { u"keywords"_s, gone } }));
        QCOMPARE(change.joined.isEmpty(), added.isEmpty());

        // What is still in some home was not taken away.
        plan = PhotoPlan{ plan, change, {} }.expected();
        ImageRecord record{ .lists = { { u"keywords"_s, added + QStringList{ u"b"_s } } } };
        FileTags after{ { u"IPTC:Keywords"_s, { "b", "x" } }, { u"XMP-dc:Subject"_s, { "b", "x" } } };
        QCOMPARE(SaveVerification::differences(plan, record, &after), QStringList());
        for (const QString& item : std::as_const(gone)) {
            FileTags hidden = after;
            hidden[u"XMP-dc:Subject"_s].append(item.toUtf8());
            QCOMPARE(SaveVerification::differences(plan, record, &hidden), QStringList{ u"keywords"_s });
            ImageRecord shown = record;
            shown.lists[u"keywords"_s].append(item);
            QCOMPARE(SaveVerification::differences(plan, shown), QStringList{ u"keywords"_s });
        }
        plan.leftOut = { u"XMP"_s };
        QCOMPARE(SaveVerification::differences(plan, record, &after), QStringList());
    }

    // And the way back, in one start too.
    void leavesWhatAStartEachWouldHaveLeft()
    {
        const PhotoFolder together;
        const PhotoFolder apart;
        const QList<SavePortion> portions = portionsIn(together);
        const QByteArray before = dump(together);
        const NotedTool tool;
        const auto planOf = [&](const QUrl& target) {
            for (const SavePortion& portion : portions)
                if (portion.targets.contains(target))
                    return portion.plan;
            return EditPlan();
        };
        QList<QUrl> targets;
        QStringList tags;
        for (const SavePortion& portion : portions) {
            targets += portion.targets;
            tags += JournalTags::writtenTags(portion.plan);
        }
        const auto service = tool.service();
        JournalEntry entry = SaveUndo::journalEntry(service.oldValues(tags, targets), planOf, targets, {});
        WriteNotes notes;
        const PortionsOutcome outcome = service.writeEach(portions, {}, &notes);
        QVERIFY(!outcome.error && outcome.refused.isEmpty());
        // The encoding of IPTC, what comes before, the values without and with custom fields, and the sign.
        QCOMPARE(tool.furtherCommands(), QList<int>({ 0, 0, 3, 1, 0 }));

        for (const SavePortion& portion : portionsIn(apart))
            realService().write(portion.plan, portion.targets, {}, portion.preparations);
        QCOMPARE(QString::fromUtf8(dump(together)), QString::fromUtf8(dump(apart)));
        QCOMPARE(tagValue(together.url(u"a.jpg"_s), u"-IPTC:City"_s), "Zürich");

        for (JournalFile& file : entry.files)
            file.after = *FileStamp::of(file.path);
        const UndoOutcome undone = service.undo(entry);
        QCOMPARE(undone.restored.size(), targets.size());
        QVERIFY(undone.failed.isEmpty() && undone.inexact.isEmpty());
        QCOMPARE(tool.furtherCommands().last(), 5);
        QCOMPARE(QString::fromUtf8(dump(together)), QString::fromUtf8(before));
    }

    // One that the tool refuses, one that is read-only, one that another save holds.
    void keepsNobodyFromTheirs()
    {
        const PhotoFolder folder;
        const QUrl good = folder.add(u"a.jpg"_s);
        const QUrl broken = folder.add(u"b.jpg"_s, jpegWithBrokenExif());
        const QUrl readOnly = folder.add(u"c.jpg"_s);
        const QUrl blocked = folder.add(u"d.jpg"_s);
        folder.add(u"d.jpg_exiftool_tmp"_s, "half");
        const QUrl last = folder.add(u"e.jpg"_s);
        QVERIFY(QFile::setPermissions(readOnly.toLocalFile(), QFile::ReadOwner));
        QList<SavePortion> portions = titled({ good, broken, readOnly, blocked, last });
        portions[1].plan.scalars.insert(u"description"_s, u"东京"_s);  // IPTC is prepared first
        portions[4].plan.scalars.insert(u"headline"_s, QString(200'000, u'x'));
        portions.append(titled({ folder.add(u"f.jpg"_s) }));
        const QByteArray before = readFile(broken.toLocalFile());
        const auto service = realService();
        WriteNotes notes;
        const PortionsOutcome outcome = service.writeEach(portions, { .backupOriginals = true }, &notes);
        QCOMPARE(outcome.refused.keys(), QList<qsizetype>({ 2, 3, 4 }));
        QCOMPARE(outcome.refused.value(2), u"c.jpg is read-only."_s);
        QVERIFY(outcome.refused.value(4).contains(u"Headline"_s));
        QVERIFY(outcome.error);
        QCOMPARE(writeFailures(outcome.error->messages(), { good, broken, last }),
            (QList<FileFailure>{ { broken, u"Bad format (0) for IFD0 entry 0"_s } }));
        QCOMPARE(titles({ good, last, portions[5].targets[0] }), QStringList({ u"a.jpg"_s, {}, u"f.jpg"_s }));
        QCOMPARE(readFile(broken.toLocalFile()), before);
        QCOMPARE(folder.names().filter(u"_original"_s), QStringList({ u"a.jpg_original"_s, u"f.jpg_original"_s }));
        // Which homes refuse it, for each its own plan; nothing is changed.
        portions[0].plan.scalars.insert(u"description"_s, u"d"_s);
        const auto homes = service.refusedHomes(portions.first(2));
        QCOMPARE(homes,
            (QMap<QUrl, QMap<QString, QString>>{
                { broken, { { u"EXIF"_s, u"Bad format (0) for IFD0 entry 0"_s } } } }));
        QCOMPARE(titles({ good }), QStringList{ u"a.jpg"_s });
    }

    // The tool is killed behind the second of four.
    void killedHalfWay()
    {
        const PhotoFolder folder;
        QList<QUrl> photos;
        for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s, u"d.jpg"_s })
            photos.append(folder.add(name));
        const NotedTool tool("my @parts = split /\\x1f-execute\\x1f/, join(\"\\x1f\", @ARGV);\n"
                             "if (@parts > 2) { @ARGV = split /\\x1f/, join(\"\\x1f-execute\\x1f\", @parts[0, 1]);\n"
                             "system "
            + toolForPerl() + ", @ARGV; kill 'KILL', $$; }\n");
        const PortionsOutcome outcome = tool.service().writeEach(titled(photos), {});
        QVERIFY(outcome.error);
        QVERIFY(writeFailures(outcome.error->messages(), photos).isEmpty());
        QCOMPARE(titles(photos), QStringList({ u"a.jpg"_s, u"b.jpg"_s, {}, {} }));
        QCOMPARE(folder.names().size(), 4);
    }
};

QTEST_GUILESS_MAIN(tst_ManyPlans)
#include "tst_ManyPlans.moc"
