// Opening a folder with 2,000 folders and 50,000 photos in it, in the whole window: when the first rows are on screen,
// when all are, and how long the main thread pauses meanwhile. Against `find`, which walks through the same folders and
// looks at the same files, in the same run. The tool is one that does not answer: nothing is read.
#include "bench/Measure.h"
#include "bench/OpenWindow.h"
#include "bench/PauseWatch.h"
#include "tests/support/Support.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <cstdio>

#include <unistd.h>

using namespace Quorbel;
using namespace Quorbel::Bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int folders = 2'000;
constexpr int photos = 50'000;
constexpr double pauseBound = 16;  // ms

// Three levels: "12/4/…".
class Tree {
public:
    Tree()
    {
        Test::writeFile(m_work.filePath(u"photo.jpg"_s), Test::jpegBytes());
        Test::writeFile(m_work.filePath(u"exiftool"_s), "sleep 600;\n");
        const QByteArray photo = QFile::encodeName(m_work.filePath(u"photo.jpg"_s));
        for (int i = 0; i < photos; ++i) {
            const int folder = i / (photos / folders);
            const QString path =
                u"%1/%2/Trip %3/Day %4"_s.arg(m_work.path(), u"tree"_s).arg(folder / 50).arg(folder % 50);
            if (i % (photos / folders) == 0 && !QDir().mkpath(path))
                qFatal("cannot make folders in %s", qPrintable(m_work.path()));
            // Names of one file: the tree then takes no more memory than its names.
            const QString name = u"%1/IMG_%2.jpg"_s.arg(path).arg(i * 7919 % 10'000);
            if (link(photo.constData(), QFile::encodeName(name).constData()) != 0)
                qFatal("cannot make photos in %s", qPrintable(m_work.path()));
        }
    }
    QString path() const { return m_work.filePath(u"tree"_s); }
    ExifToolRunner tool() const
    {
        return { QUrl::fromLocalFile(m_work.filePath(u"exiftool"_s)), QUrl::fromLocalFile(u"/usr/bin/perl"_s) };
    }

private:
    QTemporaryDir m_work{ u"/dev/shm/q"_s };
};

double find(const Tree& tree)
{
    return measure([&tree] {
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        process.start(u"find"_s, { tree.path(), u"-type"_s, u"f"_s, u"-printf"_s, u"%p %s %T@ %C@\\n"_s });
        process.waitForFinished(-1);
    }).wall;
}

std::unique_ptr<OpenWindow> window(const Tree& tree)
{
    auto made = std::make_unique<OpenWindow>(tree.tool(), OpenWindow::Thumbnails::on);
    made->model().preferences().openSubfolders.set(true);
    return made;
}

void reportTime(const char* what, const QList<double>& ours, double bare, double bound)
{
    report(what, median(ours) / bare, "x", bound,
        u"%1 ms, find %2 ms"_s.arg(median(ours), 0, 'f', 0).arg(bare, 0, 'f', 0));
}

void measureTimes(const Tree& tree)
{
    QList<double> bare;
    QList<double> first;
    QList<double> all;
    for (int i = 0; i < 5; ++i) {
        bare.append(find(tree));
        // One window at a time: the end of one waits for all that runs.
        auto shown = window(tree);
        first.append(shown->load(tree.path(), [&] { return shown->hasPainted(1); }));
        shown.reset();
        shown = window(tree);
        all.append(shown->load(tree.path(), [&] { return shown->hasPainted(photos); }));
    }
    reportTime("50,000 photos in 2,000 folders: first rows", first, median(bare), 1);
    reportTime("all rows", all, median(bare), 15);
}

void measurePauses(const Tree& tree)
{
    auto& watch = *static_cast<PauseWatch*>(qApp);
    const auto shown = window(tree);
    watch.begin();
    shown->model().load({ QUrl::fromLocalFile(tree.path()) });
    while (!shown->hasPainted(photos))
        watch.turn();
    const auto longest = watch.longest();
    report("longest pause meanwhile", longest.wall, " ms", pauseBound,
        u"CPU %1 ms; %2 pauses beyond"_s.arg(longest.cpu, 0, 'f', 1).arg(watch.longerThan(pauseBound)));
    watch.printLongestEvents();
}

}  // namespace

int main(int argc, char* argv[])
{
    const PauseWatch application(argc, argv);
    const Tree tree;
    measureTimes(tree);
    measurePauses(tree);
    return 0;
}
