// Raw files with their sidecars, in the whole window with the real ExifTool: shots of a raw file and a JPEG as one
// photo each, and words that move between photos and sidecars. How long the main thread pauses, and how long it takes.
// Usage: bench_sidecars [SHOTS]; 2,500, which are 5,000 files, when none are said.
#include "app/model/pairs/Pairing.h"
#include "app/model/sidecars/MovingOver.h"
#include "bench/Measure.h"
#include "bench/OpenWindow.h"
#include "bench/PauseWatch.h"
#include "tests/support/Support.h"

#include <QDir>
#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace Quorbel;
using namespace Quorbel::Bench;

namespace {

constexpr double pauseBound = 50;  // ms
constexpr int defaultShots = 2500;

// Begins something, and watches the main thread until it is done.
void step(const char* what, const std::function<void()>& begin, const std::function<bool()>& isDone)
{
    auto& watch = *static_cast<PauseWatch*>(qApp);
    QElapsedTimer clock;
    clock.start();
    watch.begin();
    watch.handle(begin);
    while (!isDone())
        watch.turn();
    const double seconds = static_cast<double>(clock.elapsed()) / 1000;
    for (int i = 0; i < 20; ++i)
        watch.turn();  // what it leaves behind for later
    report(what, watch.longest().wall, " ms", pauseBound,
        u"longest pause; CPU %1 ms; %2 s in all"_s.arg(watch.longest().cpu, 0, 'f', 1).arg(seconds, 0, 'f', 1));
    if (watch.longest().wall > pauseBound)
        for (const auto& event : watch.longestEvents())
            std::printf("    %6.1f ms, CPU %.1f ms  %s\n", event.wall, event.cpu, event.what.constData());
}

class Shoot {
public:
    explicit Shoot(int shots)
        : m_shots(shots)
        , m_window(tool(), OpenWindow::Thumbnails::on)
        , m_model(m_window.model())
    {
        addShots();
        Preferences& preferences = m_model.preferences();
        preferences.backupOriginals.set(false);
        preferences.confirmMassEdit.set(false);
        preferences.saveDontAsk.set(true);
        preferences.rawBeside.set(true);
    }

    void run()
    {
        step(
            "open", [this] { m_model.load({ QUrl::fromLocalFile(m_folder.path()) }); },
            [this] { return m_window.hasRead(2 * m_shots); });
        pairs();
        moves();
    }

private:
    static ExifToolRunner tool()
    {
        const auto found = ExifToolRunner::locate();
        if (!found)
            qFatal("no ExifTool");
        return *found;
    }

    // Copies of two photos with words of their own.
    void addShots() const
    {
        const QString raw = m_folder.filePath(u"raw.tif"_s);
        const QString jpeg = m_folder.filePath(u"picture.jpg"_s);
        Test::writeFile(raw, Test::tiffBytes(640, 480));
        Test::writeFile(jpeg, Test::jpegBytes(640, 480));
        Test::exiftool({ u"-q"_s, u"-overwrite_original"_s, u"-XMP-dc:Title=Of the camera"_s,
            u"-EXIF:Artist=Somebody"_s, u"-IPTC:Keywords=lake"_s, u"-XMP-dc:Subject=lake"_s,
            u"-XMP-lr:HierarchicalSubject=Nature|lake"_s, u"-EXIF:DateTimeOriginal=2024:10:12 17:48:00"_s, raw, jpeg });
        for (int i = 0; i < m_shots; ++i) {
            const QString name = m_folder.filePath(u"IMG_%1"_s.arg(i, 5, 10, QChar(u'0')));
            if (!QFile::copy(raw, name + u".NEF"_s) || !QFile::copy(jpeg, name + u".jpg"_s))
                qFatal("cannot copy %s", qPrintable(name));
        }
        QFile::remove(raw);
        QFile::remove(jpeg);
    }

    bool isIdle() const { return !m_model.isSaving() && !m_model.isWorking(); }
    void undoSave()
    {
        step(
            "undo of that", [this] { m_model.undoSave(); }, [this] { return isIdle(); });
    }
    void selectAll(int photos)
    {
        step(
            "select all", [this] { m_model.selectAllPhotos(); }, [&] { return m_model.selection().size() == photos; });
    }

    void pairs()
    {
        step(
            "pairs as one", [this] { m_model.pairing().setOn(true); },
            [this] { return m_model.visibleRows().size() == m_shots; });
        selectAll(m_shots);
        step(
            "a keyword and a title for all",
            [this] {
                m_model.addBatchListItem(u"keywords"_s, u"final"_s);
                m_model.setBatch(u"title"_s, u"Final"_s);
            },
            [] { return true; });
        step(
            "save: sidecars and JPEGs", [this] { m_model.requestSave(); },
            [this] { return m_model.unsavedCount() == 0 && isIdle(); });
        if (m_model.errorMessage())
            std::printf("    %s\n", qPrintable(m_model.errorMessage()->left(200)));
        undoSave();
        step(
            "each for itself", [this] { m_model.pairing().setOn(false); },
            [this] { return m_model.visibleRows().size() == 2 * m_shots; });
    }

    void moves()
    {
        selectAll(2 * m_shots);
        move(MoveWay::intoSidecars, "into sidecars: the sheet", "into sidecars");
        selectAll(2 * m_shots);
        // Something that the photos do not hold.
        step(
            "a headline beside", [this] { m_model.setBatch(u"headline"_s, u"Beside"_s); }, [] { return true; });
        step(
            "save", [this] { m_model.requestSave(); }, [this] { return m_model.unsavedCount() == 0 && isIdle(); });
        move(MoveWay::intoPhotos, "into photos: the sheet", "into photos");
        undoSave();
    }

    void move(MoveWay way, const char* sheet, const char* what)
    {
        MovingOver& moving = m_model.movingOver();
        step(
            sheet, [&] { moving.request(way); }, [&] { return moving.isOpen() && moving.looked() == moving.photos(); });
        std::printf("    %lld photos\n", static_cast<long long>(moving.preview().plans.size()));
        step(
            what, [&] { moving.move(); }, [this] { return isIdle(); });
        if (m_model.errorMessage())
            std::printf("    %s\n", qPrintable(m_model.errorMessage()->left(200)));
    }

    int m_shots;
    QTemporaryDir m_folder;
    OpenWindow m_window;
    AppModel& m_model;
};

}  // namespace

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    PauseWatch application(argc, argv);
    setvbuf(stdout, nullptr, _IOLBF, 0);
    const int asked = QApplication::arguments().value(1).toInt();
    Shoot(asked > 0 ? asked : defaultShots).run();
    return 0;
}
