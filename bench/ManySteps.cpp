#include "bench/ManySteps.h"

#include "bench/Measure.h"
#include "bench/PauseWatch.h"

#include <cstdio>

namespace Quorbel::Bench {

using namespace Qt::StringLiterals;

namespace {

constexpr double pauseBound = 50;  // ms

ExifToolRunner tool()
{
    const auto found = ExifToolRunner::locate();
    if (!found)
        qFatal("no ExifTool");
    return *found;
}

}  // namespace

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
        watch.printLongestEvents();
}

ManySteps::ManySteps()
    : m_window(tool(), OpenWindow::Thumbnails::on)
    , m_model(m_window.model())
{
    m_model.preferences().backupOriginals.set(false);
    m_model.preferences().confirmMassEdit.set(false);
}

void ManySteps::open(int photos)
{
    step(
        "open", [this] { m_model.load({ QUrl::fromLocalFile(m_folder.path()) }); },
        [&] { return m_window.hasRead(photos); });
}

void ManySteps::selectAll(int photos)
{
    step(
        "select all", [this] { m_model.selectAllPhotos(); }, [&] { return m_model.selection().size() == photos; });
}

void ManySteps::save(const char* what)
{
    step(
        what, [this] { m_model.requestSave(); }, [this] { return m_model.unsavedCount() == 0 && isIdle(); });
    printError();
}

void ManySteps::undoSave()
{
    step(
        "undo of that", [this] { m_model.undoSave(); }, [this] { return isIdle(); });
}

void ManySteps::printError() const
{
    if (m_model.errorMessage())
        std::printf("    %s\n", qPrintable(m_model.errorMessage()->left(200)));
}

}  // namespace Quorbel::Bench
