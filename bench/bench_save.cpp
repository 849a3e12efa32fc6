// What the model adds to ExifTool when one photo is saved: from the request to "No unsaved changes", against the bare
// write and the bare pair of reads that prove it, one after the other, with the same arguments. Runs alternate; medians
// are compared. The user is given a moment between typing and saving, which is when the model looks ahead; without it,
// and for batches, the same as information.
#include "app/model/AppModel.h"
#include "bench/BareTool.h"
#include "bench/Measure.h"
#include "tests/support/Support.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <cstdio>
#include <functional>

using namespace Quorbel;
using namespace Quorbel::Bench;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

constexpr double bound = 1.15;
constexpr int thinking = 600;  // milliseconds between typing and saving

void pause(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void saveBare(const QStringList& paths, const QString& title)
{
    BareTool::run(
        QStringList{ u"-overwrite_original"_s, u"-m"_s, u"-XMP-dc:Title="_s + title, u"-IPTC:ObjectName="_s + title }
        + paths);
    BareTool::read(paths);
}

// A model over a folder of so many small JPEGs, all of which are selected.
class SavedPhotos {
public:
    explicit SavedPhotos(int count)
    {
        for (int i = 0; i < count; ++i)
            m_paths.append(
                m_folder.add(u"IMG_%1.jpg"_s.arg(i, 4, 10, QLatin1Char('0')), jpegBytes(640, 480)).toLocalFile());
        AppModelServices services{ .service = MetadataService{ startedTool() },
            .preferences = std::make_shared<QSettings>(m_state.path(u"settings.ini"_s), QSettings::IniFormat),
            .journalPath = m_state.path(u"undo"_s) };
        m_model = std::make_unique<AppModel>(services);
        m_model->preferences().backupOriginals.set(false);
        m_model->preferences().saveDontAsk.set(true);
        m_model->preferences().confirmMassEdit.set(false);
        m_model->load({ QUrl::fromLocalFile(m_folder.path()) });
        waitUntil([this] { return m_model->records().size() == m_paths.size() && !m_model->isWorking(); });
        m_model->selectAllPhotos();
    }

    void compare(int rounds, int pauseBefore)
    {
        QList<Cost> ours;
        QList<Cost> bare;
        for (int round = 0; round < rounds; ++round) {
            // Whoever goes second finds warmer caches; take turns.
            const auto runOurs = [&] { ours.append(save(u"Ours %1"_s.arg(++m_titles), pauseBefore)); };
            const auto runBareOnes = [&] {
                bare.append(measure([&] { saveBare(m_paths, u"Bare %1"_s.arg(++m_titles)); }));
            };
            if (round % 2) {
                runBareOnes();
                runOurs();
            } else {
                runOurs();
                runBareOnes();
            }
            // The model takes notice of what the bare run wrote.
            pause(thinking);
            waitUntil([this] { return !m_model->isWorking(); });
        }
        m_ratio = medianWall(ours) / medianWall(bare);
        const QString what =
            u"%1 photo%2, saved %3"_s.arg(m_paths.size())
                .arg(m_paths.size() == 1 ? u""_s : u"s"_s, pauseBefore ? u"after a moment"_s : u"at once"_s);
        std::printf("%s: wall %.0f ms against %.0f ms bare, ratio %.3f; CPU %.0f ms against %.0f ms\n",
            qPrintable(what), medianWall(ours), medianWall(bare), m_ratio, medianCpu(ours), medianCpu(bare));
        std::fflush(stdout);
    }

    double ratio() const { return m_ratio; }

private:
    Cost save(const QString& title, int pauseBefore)
    {
        if (m_model->isBatch())
            m_model->setBatch(u"title"_s, title);
        else
            m_model->setSingle(u"title"_s, title);
        pause(pauseBefore);
        const Cost cost = measure([this] {
            m_model->requestSave();
            waitUntil([this] { return m_model->unsavedCount() == 0 && !m_model->isSaving(); });
        });
        if (m_model->errorMessage())
            qFatal("The save failed: %s", qPrintable(*m_model->errorMessage()));
        if (m_model->records().constFirst().values.value(u"title"_s) != title || !m_model->canUndoSave())
            qFatal("The save was none");
        return cost;
    }

    void waitUntil(const std::function<bool()>& isDone)
    {
        while (!isDone())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    PhotoFolder m_folder;
    PhotoFolder m_state;
    QStringList m_paths;
    std::unique_ptr<AppModel> m_model;
    int m_titles = 0;
    double m_ratio = 0;
};

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const int rounds = argc > 1 ? QByteArray(argv[1]).toInt() : 25;
    SavedPhotos one(1);
    one.compare(rounds, thinking);
    const bool isGood = one.ratio() <= bound;
    report("one photo: from Save to no unsaved changes", one.ratio(), "x bare", bound, u"medians of %1"_s.arg(rounds));
    one.compare(rounds / 2, 0);
    for (const int count : { 50, 500 })
        SavedPhotos(count).compare(count > 100 ? 3 : 5, thinking);
    return isGood ? 0 : 1;
}
