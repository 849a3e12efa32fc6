// Raw files with their sidecars, in the whole window with the real ExifTool: shots of a raw file and a JPEG as one
// photo each, and words that move between photos and sidecars. How long the main thread pauses, and how long it takes.
// Usage: bench_sidecars [SHOTS]; 2,500, which are 5,000 files, when none are said.
#include "app/model/pairs/Pairing.h"
#include "app/model/sidecars/MovingOver.h"
#include "bench/ManySteps.h"
#include "bench/PauseWatch.h"
#include "tests/support/Support.h"

#include <QDir>
#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace Quorbel;
using namespace Quorbel::Bench;

namespace {

constexpr int defaultShots = 2500;

class Shoot final : ManySteps {
public:
    explicit Shoot(int shots)
        : m_shots(shots)
    {
        addShots();
        m_model.preferences().saveDontAsk.set(true);
        m_model.preferences().rawBeside.set(true);
    }

    void run()
    {
        open(2 * m_shots);
        pairs();
        moves();
    }

private:
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
        save("save: sidecars and JPEGs");
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
        save("save");
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
        printError();
    }

    int m_shots;
};

}  // namespace

int main(int argc, char* argv[])
{
    const PauseWatch application(argc, argv);
    const int asked = QApplication::arguments().value(1).toInt();
    Shoot(asked > 0 ? asked : defaultShots).run();
    return 0;
}
