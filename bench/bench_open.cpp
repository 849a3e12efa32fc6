// Opening folders of 2,000, 10,000 and 50,000 photos, in the whole window: what is on screen when, what a folder costs
// that was open before, how long the main thread pauses, and what memory it takes. Against bare runs of ExifTool over
// the same photos in the same run. See docs/performance.md.
// Usage: bench_open [ROW…]; without a name, all rows but the long ones. Each row is a process of its own.
// QUORBEL_BENCH_TRIES: how often each is measured, where that is not to be the usual.
#include "bench/BareTool.h"
#include "bench/Measure.h"
#include "bench/OpenWindow.h"
#include "bench/PauseWatch.h"
#include "bench/PhotoFolders.h"
#include "ui/sidebar/SidebarList.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScrollBar>
#include <QThread>

#include <algorithm>
#include <cstdio>

#include <malloc.h>
#include <sched.h>

using namespace Quorbel;
using namespace Quorbel::Bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int sample = 2'000;  // photos that are really read, where reading all would take minutes
constexpr int many = 10'000;
constexpr int most = 50'000;
constexpr double pauseBound = 16;  // ms
constexpr double memoryBound = 350;  // MiB
constexpr auto bareVariable = "QUORBEL_BENCH_BARE";  // milliseconds a photo
constexpr auto callsVariable = "QUORBEL_BENCH_CALLS";

using Thumbnails = OpenWindow::Thumbnails;

ExifToolRunner realTool()
{
    const auto tool = ExifToolRunner::locate();
    if (!tool)
        qFatal("ExifTool was not found");
    return *tool;
}

int triesOf(int usual)
{
    const int wanted = qEnvironmentVariableIntValue("QUORBEL_BENCH_TRIES");
    return wanted > 0 ? wanted : usual;
}

// What the two runs over so many photos take, as measured over the sample.
double bareTime(int count)
{
    return qEnvironmentVariable(bareVariable).toDouble() * count;
}

void measureBare(const PhotoFolders& folders)
{
    const QStringList photos = PhotoFolders::paths(folders.folder(sample), sample);
    QList<Cost> costs;
    for (int i = 0; i < triesOf(3); ++i)
        costs.append(measure([&] { BareTool::read(photos); }));
    std::printf("the two bare runs over %d photos: %.0f ms wall, %.0f ms CPU (median)\n", sample, medianWall(costs),
        medianCpu(costs));
    qputenv(bareVariable, QByteArray::number(medianWall(costs) / sample));
}

QString told(double milliseconds, double bare, const char* baseline)
{
    return u"%1 ms, %2 %3 ms"_s.arg(milliseconds, 0, 'f', 0).arg(QLatin1String(baseline)).arg(bare, 0, 'f', 0);
}

template <typename Once>
QList<double> repeated(Once once)
{
    QList<double> taken;
    for (int i = 0; i < triesOf(5); ++i)
        taken.append(once());
    return taken;
}

void rowsOnScreen(const PhotoFolders& folders)
{
    const QString folder = folders.folder(many);
    const double ours = median(repeated([&] {
        OpenWindow window(realTool(), Thumbnails::on);
        return window.load(folder, [&] { return window.hasPainted(many); });
    }));
    report(
        "10,000 photos: rows on screen", ours / bareTime(many), "x", 0.005, told(ours, bareTime(many), "bare reads"));
}

// From nothing open, or with a photo open.
void firstFields(const PhotoFolders& folders, const char* what, const QString& before)
{
    const QString folder = folders.folder(many);
    const QString photo = PhotoFolders::paths(folder, 1).constFirst();
    QList<double> bare;
    const double ours = median(repeated([&] {
        bare.append(measure([&] { BareTool::read({ photo }); }).wall);
        OpenWindow window(realTool(), Thumbnails::on);
        if (!before.isEmpty())
            window.load(before, [&] { return window.hasRead(1); });
        return window.load(folder, [&] { return window.showsFields(photo); });
    }));
    report(what, ours / median(bare), "x", 3, told(ours, median(bare), "bare pair on it"));
}

void fields(const PhotoFolders& folders)
{
    firstFields(folders, "10,000 photos: fields of the first", {});
}

void fieldsOver(const PhotoFolders& folders)
{
    firstFields(folders, "the same over what is open", folders.folder(1));
}

void readAll(const PhotoFolders& folders, int count, int tries, bool inSlices, const char* what, double bound)
{
    const QString folder = folders.folder(count);
    const QStringList photos = PhotoFolders::paths(folder, count);
    QList<Cost> ours;
    QList<Cost> bare;
    for (int i = 0; i < triesOf(tries); ++i) {
        ours.append(measure([&] {
            OpenWindow window(realTool(), Thumbnails::off);
            window.load(folder, [&] { return window.hasRead(count); });
        }));
        bare.append(measure([&] {
            if (inSlices)
                BareTool::readSlices(photos, 32, 200, QThread::idealThreadCount());
            else
                BareTool::read(photos);
        }));
    }
    report(what, medianWall(ours) / medianWall(bare), "x", bound,
        told(medianWall(ours), medianWall(bare), inSlices ? "bare slices" : "bare reads")
            + u", CPU ratio %1"_s.arg(medianCpu(ours) / medianCpu(bare), 0, 'f', 3));
}

void all(const PhotoFolders& folders)
{
    readAll(folders, sample, 5, true, "2,000 photos: all read", 1.1);
}

// Until all records are shown, where details are read once all else rests, and where they never are; by turns.
void details(const PhotoFolders& folders)
{
    using Details = OpenWindow::Details;
    const QString folder = folders.folder(sample);
    QMap<Details, QList<Cost>> costs;
    for (int i = 0; i < triesOf(5); ++i)
        for (const Details how : { i % 2 == 0 ? Details::on : Details::off, i % 2 == 0 ? Details::off : Details::on })
            costs[how].append(measure([&] {
                OpenWindow window(realTool(), Thumbnails::on, {}, how);
                window.load(folder, [&] { return window.hasRead(sample); });
            }));
    const double with = medianWall(costs.value(Details::on));
    const double without = medianWall(costs.value(Details::off));
    report("2,000 photos: all read, with details", with / without, "x", 1.02,
        told(with, without, "without")
            + u", CPU ratio %1"_s.arg(
                medianCpu(costs.value(Details::on)) / medianCpu(costs.value(Details::off)), 0, 'f', 3));
}

double allocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks) + static_cast<double>(info.hblkhd);
}

// What is held of photos with nothing to tell, and of such where all there is disagrees.
void detailsMemory(const PhotoFolders&)
{
    QList<QUrl> photos;
    for (int i = 0; i < most; ++i)
        photos.append(QUrl::fromLocalFile(u"/photos/2026/trip/IMG_%1.jpg"_s.arg(i)));
    const auto perPhoto = [&photos](const std::function<PhotoDetails(int)>& of) {
        DetailsStore store;
        const double before = allocatedBytes();
        for (int i = 0; i < most; ++i) {
            PhotoDetails details = of(i);
            details.url = photos.at(i);
            store.put(std::move(details));
        }
        return (allocatedBytes() - before) / most;
    };
    const double plain = perPhoto([](int) { return PhotoDetails(); });
    const double rich = perPhoto([](int i) {
        const QString number = QString::number(i);
        return PhotoDetails{ .texts = { { u"title@de"_s, u"Letztes Licht am See "_s + number } },
            .paths = { u"Places|Switzerland|Lake "_s + QString::number(i % 200), u"Nature|lake"_s },
            .disagreements = { { u"title"_s,
                { { u"XMP-dc:Title"_s, { u"Last light on the lake "_s + number }, true },
                    { u"IPTC:ObjectName"_s, { u"Last light "_s + number } } } } } };
    });
    report("50,000 photos: details, where there are none", plain, " bytes a photo", 128, {});
    report("50,000 photos: details, where there are many", rich, " bytes a photo", 2048, {});
}

void allOfMany(const PhotoFolders& folders)
{
    readAll(folders, many, 1, true, "10,000 photos: all read", 1.1);
}

void oneCore(const PhotoFolders& folders)
{
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(0, &one);
    sched_setaffinity(0, sizeof one, &one);
    readAll(folders, sample, 3, false, "2,000 photos: all read, on one core", 1.1);
}

// The files of each run of the tool since the last call.
QList<QByteArrayList> runs(const QString& log)
{
    QList<QByteArrayList> list;
    QFile file(log);
    if (file.open(QIODevice::ReadOnly))
        while (!file.atEnd())
            list.append(file.readLine().trimmed().split(' '));
    QFile::remove(log);
    return list;
}

// A folder that was read before; by the stand-in, which is quicker.
class KnownFolder {
public:
    KnownFolder(const PhotoFolders& folders, int count)
        : m_folders(folders)
        , m_count(count)
        , m_folder(folders.folder(count))
    {
        qputenv(callsVariable, QFile::encodeName(log()));
        open();
        // What was read is written in the background.
        QThread::sleep(3);
        runs(log());
    }

    double open()
    {
        const auto opened = window();
        return opened->load(m_folder, [&] { return opened->hasRead(m_count); });
    }
    /// A window that knows what was read.
    std::unique_ptr<OpenWindow> window() const
    {
        return std::make_unique<OpenWindow>(m_folders.standIn(), Thumbnails::on, m_work.filePath(u"records"_s));
    }
    QList<QByteArrayList> runsSinceThen() const { return runs(log()); }

private:
    QString log() const { return m_work.filePath(u"calls"_s); }

    const PhotoFolders& m_folders;
    int m_count;
    QString m_folder;
    QTemporaryDir m_work;
};

void again(const PhotoFolders& folders)
{
    KnownFolder folder(folders, many);
    const double ours = median(repeated([&] { return folder.open(); }));
    report("10,000 photos again: runs of the tool", double(folder.runsSinceThen().size()), "", 0, {});
    report(
        "10,000 photos again: all fields", ours / bareTime(many), "x", 0.01, told(ours, bareTime(many), "bare reads"));
    KnownFolder large(folders, most);
    const double more = median(repeated([&] { return large.open(); }));
    report("50,000 photos again, against 10,000", more / ours, "x", double(most) / many, told(more, ours, "against"));
}

void changed(const PhotoFolders& folders)
{
    KnownFolder folder(folders, many);
    const QString photo = PhotoFolders::paths(folders.folder(many), many).at(4321);
    // Another file in its place, of the same bytes.
    const QString copy = photo + u".copy"_s;
    if (!QFile::copy(photo, copy) || !QFile::remove(photo) || !QFile::rename(copy, photo))
        qFatal("cannot replace %s", qPrintable(photo));
    const double ours = folder.open();
    QSet<QByteArray> read;
    for (const QByteArrayList& files : folder.runsSinceThen())
        read.unite(QSet<QByteArray>(files.begin(), files.end()));
    const bool isRight = read == QSet<QByteArray>{ QFile::encodeName(photo) };
    report("one of 10,000 changed: wrong photos read", isRight ? 0 : double(read.size()), "", 0,
        u"%1 ms"_s.arg(ours, 0, 'f', 0));
}

// Loads the folder while the list scrolls, so that thumbnails come in all the time.
void reportPauses(OpenWindow& window, const QString& folder, const char* how)
{
    auto& watch = *static_cast<PauseWatch*>(qApp);
    watch.begin();
    window.model().load({ QUrl::fromLocalFile(folder) });
    QDeadlineTimer nextStep(0);
    QDeadlineTimer nextLook(0);
    for (bool isRead = false; !isRead;) {
        watch.turn();
        if (nextStep.hasExpired()) {
            nextStep.setRemainingTime(100);
            QScrollBar* bar = window.list().verticalScrollBar();
            bar->setValue(bar->value() >= bar->maximum() ? 0 : bar->value() + bar->pageStep());
        }
        if (nextLook.hasExpired()) {
            nextLook.setRemainingTime(1000);
            isRead = window.hasRead(most);
        }
    }
    const auto longest = watch.longest();
    report(qPrintable(u"50,000 photos: longest pause (%1)"_s.arg(QLatin1String(how))), longest.wall, " ms", pauseBound,
        u"CPU %1 ms; %2 pauses beyond"_s.arg(longest.cpu, 0, 'f', 1).arg(watch.longerThan(pauseBound)));
    for (const auto& event : watch.longestEvents())
        std::printf("    %6.1f ms, CPU %.1f ms  %s\n", event.wall, event.cpu, event.what.constData());
}

void large(const PhotoFolders& folders, const ExifToolRunner& tool, const char* name)
{
    OpenWindow window(tool, Thumbnails::on);
    window.load(folders.folder(1), [&] { return window.hasRead(1); });
    const double before = residentMiB();
    reportPauses(window, folders.folder(most), name);
    const double pictures = static_cast<double>(window.pictureBytes()) / 1024 / 1024;
    report("50,000 photos: resident memory", residentMiB() - pictures, " MiB", memoryBound,
        u"without %1 MiB of pictures; %2 before, %3 at most"_s.arg(pictures, 0, 'f', 0)
            .arg(before, 0, 'f', 0)
            .arg(residentMiB(true), 0, 'f', 0));
}

void largeQuick(const PhotoFolders& folders)
{
    large(folders, folders.standIn(), "quick tool");
}

void largeAgain(const PhotoFolders& folders)
{
    const KnownFolder known(folders, most);
    reportPauses(*known.window(), folders.folder(most), "again");
}

void largeReal(const PhotoFolders& folders)
{
    large(folders, realTool(), "ExifTool");
}

struct Row {
    const char* name;
    bool needsBare;
    bool isLong;
    void (*run)(const PhotoFolders&);
};

constexpr Row rows[]{
    { "rows", true, false, rowsOnScreen },
    { "fields", false, false, fields },
    { "fields-over", false, false, fieldsOver },
    { "all", false, false, all },
    { "details", false, false, details },
    { "details-memory", false, false, detailsMemory },
    { "all-10000", false, true, allOfMany },
    { "one-core", false, false, oneCore },
    { "again", true, false, again },
    { "changed", false, false, changed },
    { "large", false, false, largeQuick },
    { "large-again", false, false, largeAgain },
    { "large-real", false, true, largeReal },
};

const Row* rowNamed(const QString& name)
{
    for (const Row& row : rows)
        if (name == QLatin1String(row.name))
            return &row;
    return nullptr;
}

// Each row in a process of its own: none finds the memory or the caches of another.
int runRows(const QStringList& names)
{
    const PhotoFolders folders;
    for (const Row& row : rows) {
        if (names.isEmpty() ? row.isLong : !names.contains(QLatin1String(row.name)))
            continue;
        if (row.needsBare && !qEnvironmentVariableIsSet(bareVariable))
            measureBare(folders);
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QCoreApplication::applicationFilePath(), { u"--row"_s, QLatin1String(row.name) });
        process.waitForFinished(-1);
        if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
            return 1;
    }
    return 0;
}

}  // namespace

int main(int argc, char* argv[])
{
    const PauseWatch application(argc, argv);
    QStringList arguments = QApplication::arguments().sliced(1);
    const bool isRow = arguments.value(0) == QLatin1String("--row");
    if (isRow)
        arguments.removeFirst();
    for (const QString& name : std::as_const(arguments)) {
        const Row* row = rowNamed(name);
        if (!row) {
            std::fprintf(stderr, "no row %s\n", qPrintable(name));
            return 2;
        }
        if (isRow) {
            row->run(PhotoFolders());
            return 0;
        }
    }
    return runRows(arguments);
}
