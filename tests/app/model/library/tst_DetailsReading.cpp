// When the details of photos are read and when not, what becomes of answers that come too late, and the list of those
// photos whose homes disagree: the reading alone, over photos that are open.
#include "app/model/Background.h"
#include "app/model/library/FolderRefresh.h"
#include "app/model/library/cache/RecordCache.h"
#include "app/model/library/details/DetailsReading.h"
#include "tests/support/Support.h"

#include <QMutex>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

Q_DECLARE_METATYPE(Quorbel::RunningTasks::Kind)

namespace {

constexpr int patience = 30000;  // ms

// Stands in for the tool: answers at once, or once it is opened; homes disagree in photos whose names have a "d". It is
// called in the background.
class Asked {
public:
    QHash<QUrl, PhotoDetails> answer(const QList<ImageRecord>& photos, const ReadControl& control)
    {
        QStringList names;
        for (const ImageRecord& photo : photos)
            names.append(photo.fileName);
        {
            const QMutexLocker lock(&m_mutex);
            m_runs.append(names);
        }
        while (isShut && !control.stop.stop_requested())
            QThread::msleep(1);
        if (control.stop.stop_requested())
            throw CancelledError();
        QHash<QUrl, PhotoDetails> answer;
        for (const ImageRecord& photo : photos)
            if (const auto details = of(photo, control))
                answer.insert(photo.url, *details);
        return answer;
    }
    // What is said of one photo; nothing for none.
    std::function<std::optional<PhotoDetails>(const ImageRecord&, const ReadControl&)> of =
        [](const ImageRecord& photo, const ReadControl&) { return detailsOf(photo); };
    static PhotoDetails detailsOf(const ImageRecord& photo)
    {
        PhotoDetails details{ .url = photo.url, .paths = { u"Names|"_s + photo.fileName } };
        if (photo.fileName.contains(u'd'))
            details.disagreements.insert(
                u"title"_s, { { u"XMP-dc:Title"_s, { u"a"_s }, true }, { u"IPTC:ObjectName"_s, { u"b"_s }, false } });
        return details;
    }
    // Names of the photos in each run so far; takes them away.
    QList<QStringList> runs()
    {
        const QMutexLocker lock(&m_mutex);
        return std::exchange(m_runs, {});
    }
    qsizetype count()
    {
        const QMutexLocker lock(&m_mutex);
        return m_runs.size();
    }
    std::atomic<bool> isShut = false;

private:
    QMutex m_mutex;
    QList<QStringList> m_runs;
};

// Photos that are open, and nothing else of the model. "000.jpg", "001.jpg" …; every tenth has a "d": "010d.jpg".
struct Photos {
    explicit Photos(int count, const std::shared_ptr<RecordCache>& cache = {})
    {
        for (int i = 0; i < count; ++i)
            names.append(u"%1%2.jpg"_s.arg(i, 4, 10, QChar(u'0')).arg(i % 10 == 0 ? u"d"_s : QString()));
        for (const QString& name : std::as_const(names))
            folder.add(name, "x");
        open(cache);
    }
    ~Photos() { asked->isShut = false; }
    Q_DISABLE_COPY_MOVE(Photos)

    void open(const std::shared_ptr<RecordCache>& cache)
    {
        QList<ImageRecord> records;
        for (const QString& name : std::as_const(names)) {
            records.append(PhotoFile::at(url(name)).file->unreadRecord());
            records.last().isUnread = false;
        }
        list.open(OpenPhotos::of(records, RecordSortOrder::nameAsc, false));
        reading = std::make_unique<DetailsReading>(announcer, tasks, list, refresh.writes(), cache);
        reading->setAsking(
            [asked = asked](const auto& photos, const auto& control) { return asked->answer(photos, control); }, 1ms);
        reading->begin();
    }
    QUrl url(const QString& name) const { return folder.url(name); }
    QList<QUrl> urls(qsizetype from, qsizetype count) const
    {
        QList<QUrl> urls;
        for (const QString& name : names.mid(from, count))
            urls.append(url(name));
        return urls;
    }
    QStringList listed() const
    {
        QStringList shown;
        for (const int row : list.visibleRows())
            shown.append(list.records().at(row).fileName);
        return shown;
    }
    const PhotoDetails* details(const QString& name) const { return reading->store().find(url(name)); }
    // Nothing is read, and nothing is going to be.
    bool rest() const
    {
        return QTest::qWaitFor([this] { return !reading->census().isLooking; }, patience);
    }
    void select(const QString& name) { reading->setSelected(url(name), { url(name) }); }

    PhotoFolder folder;
    QStringList names;
    std::shared_ptr<Asked> asked = std::make_shared<Asked>();
    QMap<Change, int> changes;
    Announcer announcer{ [this](Change change) { ++changes[change]; } };
    RunningTasks tasks{ announcer, 200ms };
    PhotoList list{ announcer, RecordSortOrder::nameAsc };
    FolderRefresh refresh{ announcer, tasks, list, std::nullopt };
    std::unique_ptr<DetailsReading> reading;
};

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

QStringList joined(const QList<QStringList>& runs)
{
    QStringList all;
    for (const QStringList& run : runs)
        all += run;
    return sorted(all);
}

}  // namespace

class tst_DetailsReading : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void whatIsOfInterest();
    void givesWay_data();
    void givesWay();
    void allOfMany();
    void othersAreReadMeanwhile();
    void lateAnswers_data();
    void lateAnswers();
    void photosThatFail();
    void toolThatAlwaysFails();
    void stalledPhoto();
    void leftAtAnyMoment();
    void fromTheCache();
    void filter();
    void knownPaths();
};

void tst_DetailsReading::whatIsOfInterest()
{
    Photos f(500);
    QTest::qWait(20);
    QCOMPARE(f.asked->count(), 0);
    f.select(f.names.at(99));
    QTRY_COMPARE_WITH_TIMEOUT(f.asked->count(), 1, patience);
    f.reading->setInView(f.urls(100, 40));
    QTRY_COMPARE_WITH_TIMEOUT(f.asked->count(), 3, patience);
    QCOMPARE(f.asked->runs(), QList({ f.names.mid(99, 1), f.names.mid(100, 32), f.names.mid(132, 8) }));
    QTRY_VERIFY_WITH_TIMEOUT(f.details(f.names.at(139)), patience);
    QCOMPARE(*f.details(f.names.at(110)), Asked::detailsOf(*f.list.record(f.url(f.names.at(110)))));
    // Known is known.
    f.select(f.names.at(110));
    // A batch, the first one in front; of too many photos, that one alone.
    const QList<QUrl> batch = f.urls(200, 100);
    f.reading->setSelected(batch.at(50), { batch.cbegin(), batch.cend() });
    QTRY_VERIFY_WITH_TIMEOUT(f.reading->store().known() == 141, patience);
    const QList<QStringList> runs = f.asked->runs();
    QCOMPARE(runs.size(), 2);
    QCOMPARE(runs.constFirst().size(), 64);
    QCOMPARE(runs.constFirst().constFirst(), f.names.at(250));
    QCOMPARE(joined(runs), f.names.mid(200, 100));
    const QList<QUrl> all = f.urls(0, 500);
    f.reading->setSelected(all.at(7), { all.cbegin(), all.cend() });
    QTRY_COMPARE_WITH_TIMEOUT(f.asked->count(), 1, patience);
    QTest::qWait(20);
    QCOMPARE(f.asked->runs(), QList({ f.names.mid(7, 1) }));
    QCOMPARE(f.reading->census(), (DetailsReading::Census{ 14, 358, false, false }));
    QCOMPARE(f.listed(), f.names);
    QCOMPARE(f.tasks.isWorking(), false);
}

void tst_DetailsReading::givesWay_data()
{
    QTest::addColumn<RunningTasks::Kind>("kind");
    using enum RunningTasks::Kind;
    QTest::newRow("load") << load;
    QTest::newRow("slice") << slice;
    QTest::newRow("save") << write;
    QTest::newRow("check") << check;
    QTest::newRow("refresh") << refresh;
}

// What runs is ended at once, nothing begins, and all of it is done in the end.
void tst_DetailsReading::givesWay()
{
    QFETCH(RunningTasks::Kind, kind);
    Photos f(300);
    f.asked->isShut = true;
    f.reading->setFiltering(true);
    f.select(f.names.at(250));
    QTRY_COMPARE_WITH_TIMEOUT(f.asked->count(), 2, patience);
    const RunningTasks::Task task = f.tasks.begin(kind, 1);
    // They have ended, though nobody let them.
    QVERIFY(QTest::qWaitFor([] { return patientThreads().activeThreadCount() == 0; }, patience));
    f.asked->isShut = false;
    QCOMPARE(joined(f.asked->runs()).size(), 201);
    f.select(f.names.at(10));
    f.reading->setInView(f.urls(20, 5));
    f.reading->outdate(f.urls(30, 1));
    QTest::qWait(150);
    QCOMPARE(f.asked->count(), 0);
    QCOMPARE(f.reading->store().known(), 0);
    f.tasks.end(task.id);
    QVERIFY(f.rest());
    QCOMPARE(f.reading->census(), (DetailsReading::Census{ 30, 0, false, true }));
    QVERIFY(!f.tasks.isWorking());
}

// Found are more and more, until somebody cancels; then it goes on where it was.
void tst_DetailsReading::allOfMany()
{
    Photos f(2000);
    f.asked->of = [asked = f.asked.get()](const ImageRecord& photo, const ReadControl&) {
        if (photo.fileName.startsWith(u"0399"_s))
            asked->isShut = true;
        return Asked::detailsOf(photo);
    };
    QList<ImageRecord> unread{ f.list.records().at(5), f.list.records().at(1995) };
    for (ImageRecord& photo : unread)
        photo.isUnread = true;
    f.list.replace(unread);
    f.reading->setFiltering(true);
    QVERIFY(f.tasks.isWorking() && f.reading->census().isLooking);
    QTRY_VERIFY_WITH_TIMEOUT(f.reading->store().known() >= 400 && f.asked->isShut, patience);
    const QStringList first = f.listed();
    QVERIFY(first.size() >= 40 && first.size() < 200);
    QCOMPARE(f.tasks.progress()->total, 2000);
    QTRY_VERIFY_WITH_TIMEOUT(f.tasks.progress()->done >= 400, patience);
    f.reading->cancel();
    QVERIFY(!f.tasks.isWorking());
    QVERIFY(QTest::qWaitFor([] { return patientThreads().activeThreadCount() == 0; }, patience));
    QTest::qWait(20);
    const DetailsReading::Census census = f.reading->census();
    QCOMPARE(census.unknown, 2000 - f.reading->store().known());
    QVERIFY(census.isFiltering && !census.isLooking);
    QCOMPARE(f.listed(), first);
    f.asked->runs();
    f.asked->isShut = false;
    f.asked->of = [](const ImageRecord& photo, const ReadControl&) { return Asked::detailsOf(photo); };
    f.reading->resume();
    QVERIFY(f.rest());
    QCOMPARE(joined(f.asked->runs()).size(), census.unknown - 2);
    QCOMPARE(f.reading->census(), (DetailsReading::Census{ 200, 2, false, true }));
    QCOMPARE(f.listed().size(), 200);
    // One that is read later is looked at then.
    unread[1].isUnread = false;
    f.list.fill({ unread.at(1) });
    f.reading->outdate({ unread.at(1).url });
    QTRY_COMPARE_WITH_TIMEOUT(f.reading->census().unknown, 1, patience);
    QVERIFY(f.rest());
    f.reading->setFiltering(false);
    QCOMPARE(f.listed(), f.names);
    QCOMPARE(f.reading->census().unknown, 1);
}

// Nobody who clicks waits for two hundred others.
void tst_DetailsReading::othersAreReadMeanwhile()
{
    Photos f(300);
    f.asked->isShut = true;
    f.reading->setFiltering(true);
    QTRY_COMPARE_WITH_TIMEOUT(f.asked->count(), 1, patience);
    f.select(f.names.at(3));
    QTRY_COMPARE_WITH_TIMEOUT(f.asked->count(), 2, patience);
    QCOMPARE(f.asked->runs().constLast(), f.names.mid(3, 1));
    // A click further ends what nobody looks at any more, and nothing else.
    f.select(f.names.at(4));
    QTRY_COMPARE_WITH_TIMEOUT(f.asked->count(), 1, patience);
    QCOMPARE(f.asked->runs().constLast(), f.names.mid(4, 1));
    f.asked->isShut = false;
    QVERIFY(f.rest());
    QCOMPARE(f.reading->census().unknown, 0);
}

void tst_DetailsReading::lateAnswers_data()
{
    QTest::addColumn<std::function<void(Photos&, const QUrl&)>>("change");
    QTest::addColumn<int>("further");
    const auto row = [](const char* name, int further, const std::function<void(Photos&, const QUrl&)>& change) {
        QTest::newRow(name) << change << further;
    };
    row("nothing happened", 0, [](Photos&, const QUrl&) {});
    row("read again", 1, [](Photos& f, const QUrl& photo) { f.reading->outdate({ photo }); });
    row("saved", 1, [](Photos& f, const QUrl& photo) {
        f.refresh.beginWriting({ photo });
        f.refresh.endWriting(true);
    });
    row("changed on disk", 1, [](Photos&, const QUrl& photo) { writeFile(photo.toLocalFile(), "y"); });
    row("gone from the list", -1, [](Photos& f, const QUrl& photo) {
        f.list.remove({ f.list.position(photo) });
        f.reading->forget({ photo });
    });
}

// An answer that was read before a change is none.
void tst_DetailsReading::lateAnswers()
{
    QFETCH(std::function<void(Photos&, const QUrl&)>, change);
    QFETCH(int, further);
    Photos f(1);
    const QUrl photo = f.url(f.names.constFirst());
    f.asked->isShut = true;
    f.select(f.names.constFirst());
    QTRY_COMPARE_WITH_TIMEOUT(f.asked->count(), 1, patience);
    change(f, photo);
    f.asked->isShut = false;
    if (further < 0) {
        QVERIFY(QTest::qWaitFor([] { return patientThreads().activeThreadCount() == 0; }, patience));
        QTest::qWait(20);
        QCOMPARE(f.details(f.names.constFirst()), nullptr);
        QCOMPARE(f.reading->census(), DetailsReading::Census());
        return;
    }
    QTRY_VERIFY_WITH_TIMEOUT(f.details(f.names.constFirst()), patience);
    QCOMPARE(f.asked->count(), 1 + further);
    // Under another name it is still known; once it changed, not any more, though what was is remembered.
    ImageRecord renamed = f.list.records().constFirst();
    QVERIFY(QFile::rename(photo.toLocalFile(), f.folder.path(u"x.jpg"_s)));
    f.list.rename({ photo, f.url(u"x.jpg"_s) });
    f.reading->rename({ photo, f.url(u"x.jpg"_s) });
    QCOMPARE(f.details(u"x.jpg"_s)->url, f.url(u"x.jpg"_s));
    QCOMPARE(f.reading->census(), (DetailsReading::Census{ 1, 0, false, false }));
    f.reading->setSelected(std::nullopt, {});
    f.reading->outdate({ f.url(u"x.jpg"_s) });
    QCOMPARE(f.details(u"x.jpg"_s), nullptr);
    QVERIFY(f.reading->store().findLast(f.url(u"x.jpg"_s)));
    QCOMPARE(f.reading->census(), (DetailsReading::Census{ 1, 1, false, false }));
}

void tst_DetailsReading::photosThatFail()
{
    Photos f(250);
    // The tool dies at one, has no answer to another, and a third changes whenever it is read.
    f.asked->of = [](const ImageRecord& photo, const ReadControl&) -> std::optional<PhotoDetails> {
        const QString name = photo.fileName.left(4);
        if (name == u"0077")
            throw LaunchError(u"killed"_s);
        if (name == u"0079") {
            QFile file(photo.url.toLocalFile());
            if (!file.open(QIODevice::Append) || file.write("x") != 1)
                return std::nullopt;
        }
        return name == u"0078" ? std::nullopt : std::optional(Asked::detailsOf(photo));
    };
    f.reading->setFiltering(true);
    QVERIFY(f.rest());
    QCOMPARE(f.reading->census(), (DetailsReading::Census{ 25, 3, false, true }));
    for (const int photo : { 77, 78, 79 })
        QVERIFY(!f.details(f.names.at(photo)));
    const auto reason = [&f](int photo) { return f.reading->failure(f.url(f.names.at(photo)))->reason; };
    QCOMPARE(reason(77), LaunchError(u"killed"_s).description());
    QCOMPARE(reason(78), u"ExifTool told nothing of it"_s);
    QCOMPARE(reason(79), u"keeps changing"_s);
    QVERIFY(!f.reading->failure(f.url(f.names.at(80))));
    // Not again, until it changes.
    f.asked->runs();
    f.asked->of = [](const ImageRecord& photo, const ReadControl&) { return Asked::detailsOf(photo); };
    f.select(f.names.at(77));
    f.reading->resume();
    QTest::qWait(50);
    QCOMPARE(f.asked->count(), 0);
    f.reading->outdate(f.urls(77, 1));
    QTRY_VERIFY_WITH_TIMEOUT(f.details(f.names.at(77)), patience);
    QCOMPARE(f.reading->census().unknown, 2);
    QVERIFY(!f.reading->failure(f.url(f.names.at(77))));
    // Or somebody asks for it: once.
    f.asked->runs();
    f.asked->of = [](const ImageRecord&, const ReadControl&) { return std::optional<PhotoDetails>(); };
    const QString name = f.names.at(78);
    f.select(name);
    f.reading->tryAgain(f.url(name));
    QVERIFY(f.reading->failure(f.url(name))->isTriedAgain);
    QTRY_VERIFY_WITH_TIMEOUT(!f.reading->failure(f.url(name))->isTriedAgain, patience);
    QTest::qWait(50);
    QCOMPARE(f.asked->runs(), QList<QStringList>({ QStringList{ name } }));
}

void tst_DetailsReading::toolThatAlwaysFails()
{
    Photos f(400);
    f.asked->of = [](const ImageRecord&, const ReadControl&) -> std::optional<PhotoDetails> {
        throw LaunchError(u"no memory"_s);
    };
    QSignalSpy problems(f.reading.get(), &DetailsReading::problem);
    f.reading->setFiltering(true);
    QVERIFY(f.rest());
    QCOMPARE(problems.size(), 1);
    QVERIFY(problems.constFirst().constFirst().toString().startsWith(u"Could not read metadata: "_s));
    QVERIFY(f.asked->runs().size() < 40);
    f.select(f.names.at(250));
    QTest::qWait(50);
    QCOMPARE(f.asked->count(), 0);
    QVERIFY(f.reading->failure(f.url(f.names.at(250))));
    QVERIFY(!f.tasks.isWorking());
    f.asked->of = [](const ImageRecord& photo, const ReadControl&) { return Asked::detailsOf(photo); };
    f.reading->tryAgain(f.url(f.names.at(250)));
    QTRY_VERIFY_WITH_TIMEOUT(f.details(f.names.at(250)), patience);
    QVERIFY(!f.reading->failure(f.url(f.names.at(250))));
    f.reading->resume();
    QVERIFY(f.rest());
    QVERIFY(f.reading->census().unknown < 40);
}

// The tool does not get done with one: nobody is asked, and the others are read.
void tst_DetailsReading::stalledPhoto()
{
    Photos f(20);
    f.asked->of = [](const ImageRecord& photo, const ReadControl& control) {
        if (photo.fileName != u"0007.jpg"_s)
            return Asked::detailsOf(photo);
        // This process holds it open.
        QFile file(photo.url.toLocalFile());
        if (file.open(QIODevice::ReadOnly))
            control.started(QCoreApplication::applicationPid());
        while (!control.stop.stop_requested())
            QThread::msleep(1);
        throw CancelledError();
    };
    f.reading->setInView(f.urls(0, 20));
    QTRY_COMPARE_WITH_TIMEOUT(f.reading->store().known(), 19, patience);
    QVERIFY(!f.details(u"0007.jpg"_s));
    QCOMPARE(f.asked->runs().size(), 2);
    QVERIFY(!f.changes.contains(Change::stalledFile) && !f.changes.contains(Change::isWorking));
    f.reading->setFiltering(true);
    QVERIFY(f.rest());
    QCOMPARE(f.asked->count(), 0);
    QCOMPARE(f.reading->census().unknown, 1);
}

void tst_DetailsReading::leftAtAnyMoment()
{
    Photos f(300);
    f.asked->isShut = true;
    f.reading->setFiltering(true);
    QTRY_COMPARE_WITH_TIMEOUT(f.asked->count(), 1, patience);
    f.list.open({});
    f.reading->begin();
    QVERIFY(QTest::qWaitFor([] { return patientThreads().activeThreadCount() == 0; }, patience));
    QCOMPARE(f.reading->census(), DetailsReading::Census());
    QVERIFY(!f.tasks.isWorking());
    f.open({});
    f.select(f.names.constFirst());
    QTRY_COMPARE_WITH_TIMEOUT(f.asked->count(), 2, patience);
    f.reading.reset();
    QVERIFY(QTest::qWaitFor([] { return patientThreads().activeThreadCount() == 0; }, patience));
    QVERIFY(!f.tasks.isWorking());
}

void tst_DetailsReading::fromTheCache()
{
    FakeTool tool;
    tool.answerAlways({ .standardOutput = "12.57\n" });
    const PhotoFolder beside;
    const auto cache =
        std::make_shared<RecordCache>(RecordCache::Options{ .folder = beside.path(u"records"_s) }, tool.runner());
    Photos f(2100, cache);
    // Details stand beside records.
    QList<RecordCache::Read> records;
    QList<PhotoFile> files;
    for (const ImageRecord& photo : f.list.records()) {
        files.append(*PhotoFile::at(photo.url).file);
        records.append({ files.constLast(), photo });
    }
    cache->put(cache->begin(files), records);
    f.reading->setFiltering(true);
    QVERIFY(f.rest());
    QCOMPARE(joined(f.asked->runs()), f.names);
    cache->waitUntilWritten();
    // One changed, in place and with its date as it was.
    const QString changed = f.names.at(1234);
    writeFile(f.folder.path(changed), "y");
    const DetailsStore before = f.reading->store();
    f.open(cache);
    f.reading->setFiltering(true);
    QVERIFY(f.rest());
    QCOMPARE(f.asked->runs(), QList({ QStringList{ changed } }));
    QCOMPARE(f.reading->census(), (DetailsReading::Census{ 210, 0, false, true }));
    for (const QString& name : std::as_const(f.names))
        QCOMPARE(*f.details(name), *before.find(f.url(name)));
    // Who reads again believes nothing.
    f.reading->readAgain();
    f.reading->outdate(f.urls(10, 1));
    QTRY_COMPARE_WITH_TIMEOUT(f.asked->count(), 1, patience);
    QCOMPARE(f.asked->runs(), QList({ f.names.mid(10, 1) }));
}

// Beside the search, in every order; and what is edited stays until it is left.
void tst_DetailsReading::filter()
{
    Photos f(60);
    f.reading->setFiltering(true);
    QVERIFY(f.rest());
    const QStringList all{ u"0000d.jpg"_s, u"0010d.jpg"_s, u"0020d.jpg"_s, u"0030d.jpg"_s, u"0040d.jpg"_s,
        u"0050d.jpg"_s };
    QCOMPARE(f.listed(), all);
    f.list.setOrder(RecordSortOrder::nameDesc);
    QCOMPARE(f.listed().constFirst(), u"0050d.jpg"_s);
    f.list.setOrder(RecordSortOrder::nameAsc);
    f.list.setSearch(u"1"_s);
    QCOMPARE(f.listed(), QStringList{ u"0010d.jpg"_s });
    f.list.setSearch({});
    f.list.remove({ 0, 1, 2, 3, 4, 5 });
    const QList<QUrl> gone = f.urls(0, 6);
    f.reading->forget({ gone.cbegin(), gone.cend() });
    QCOMPARE(f.listed(), all.mid(1));
    QCOMPARE(f.reading->census().disagreeing, 5);
    f.list.rename({ f.url(u"0020d.jpg"_s), f.url(u"z.jpg"_s) });
    f.reading->rename({ f.url(u"0020d.jpg"_s), f.url(u"z.jpg"_s) });
    QCOMPARE(f.listed(), (QStringList{ u"0010d.jpg"_s, u"0030d.jpg"_s, u"0040d.jpg"_s, u"0050d.jpg"_s, u"z.jpg"_s }));
    QVERIFY(QFile::rename(f.folder.path(u"0020d.jpg"_s), f.folder.path(u"z.jpg"_s)));
    // They agree from now on. While one waits for its new answer it stays, and while it is edited.
    f.asked->of = [](const ImageRecord& photo, const ReadControl&) { return PhotoDetails{ .url = photo.url }; };
    f.reading->setHeld({ f.url(u"0030d.jpg"_s) });
    f.asked->isShut = true;
    f.reading->outdate({ f.url(u"z.jpg"_s), f.url(u"0030d.jpg"_s) });
    QCOMPARE(f.listed().size(), 5);
    f.asked->isShut = false;
    QTRY_VERIFY_WITH_TIMEOUT(f.details(u"z.jpg"_s), patience);
    QCOMPARE(f.listed(), (QStringList{ u"0010d.jpg"_s, u"0030d.jpg"_s, u"0040d.jpg"_s, u"0050d.jpg"_s }));
    QVERIFY(f.details(u"0030d.jpg"_s)->disagreements.isEmpty());
    f.reading->setHeld({});
    QCOMPARE(f.listed(), (QStringList{ u"0010d.jpg"_s, u"0040d.jpg"_s, u"0050d.jpg"_s }));
    QCOMPARE(f.reading->census(), (DetailsReading::Census{ 3, 0, false, true }));
}

void tst_DetailsReading::knownPaths()
{
    DetailsStore store;
    const auto put = [&store](const QString& name, const QStringList& paths) {
        store.put({ .url = QUrl::fromLocalFile(name), .paths = paths });
    };
    put(u"/a"_s, { u"Places|France|Paris"_s, u"Nature|lake"_s });
    put(u"/b"_s, { u"Places|Texas|Paris"_s, u"Nature|lake"_s });
    put(u"/c"_s, { u"Places|Texas|Paris"_s, u"Paris|hotels"_s });
    put(u"/c"_s, { u"Places|Texas|Paris"_s, u"Paris|hotels"_s });
    QCOMPARE(
        store.paths(u"pA"_s, 9), (QStringList{ u"Places|Texas|Paris"_s, u"Places|France|Paris"_s, u"Paris|hotels"_s }));
    QCOMPARE(store.paths(u"pla"_s, 1), QStringList{ u"Places|Texas|Paris"_s });
    QCOMPARE(store.paths(u"ris"_s, 9), QStringList());
    QCOMPARE(store.paths(u"places|"_s, 9), (QStringList{ u"Places|Texas|Paris"_s, u"Places|France|Paris"_s }));
    QCOMPARE(store.paths(u"Places|Fr"_s, 9), QStringList{ u"Places|France|Paris"_s });
    QCOMPARE(store.paths(u"France|"_s, 9), QStringList());
    store.forget(QUrl::fromLocalFile(u"/a"_s));
    QCOMPARE(store.paths(u"par"_s, 9), (QStringList{ u"Places|Texas|Paris"_s, u"Paris|hotels"_s }));
    QCOMPARE(store.paths(u""_s, 0), QStringList());
}

QTEST_GUILESS_MAIN(tst_DetailsReading)
#include "tst_DetailsReading.moc"
