// What the headings of 2,000 folders with 50,000 photos cost the main thread, in the whole window: against one plain
// scan over the records in the same run. Each is the longest time for which the main thread is busy without a look at
// its events, as processor time; medians of three. The bounds are what 16 ms are on a quiet machine, or less.
#include "app/model/AppModel.h"
#include "bench/Measure.h"
#include "platform/desktop/SystemScheme.h"
#include "ui/inspector/InspectorView.h"
#include "ui/sidebar/SidebarList.h"
#include "ui/window/ContentView.h"
#include "ui/window/WindowBar.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QMainWindow>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <unistd.h>

using namespace Quorbel;
using namespace Quorbel::Bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int folders = 2'000;
constexpr int photosOfEach = 25;

// Stands in for ExifTool: a value for each file that it is given.
const char* const tool = R"perl(#!/usr/bin/perl
use strict;
my @files = grep { m{^/} } @ARGV;
print "[", join(",\n", map { "{\"SourceFile\":\"$_\",\"XMP:Title\":\"Lake\"}" } @files), "]\n";
)perl";

void write(const QString& path, const char* bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) < 0)
        qFatal("cannot write %s", qPrintable(path));
}

class Folders {
public:
    Folders()
    {
        write(m_work.filePath(u"exiftool"_s), tool);
        const QByteArray first = QFile::encodeName(m_work.filePath(u"first.jpg"_s));
        write(m_work.filePath(u"first.jpg"_s), "x");
        for (int i = 0; i < folders; ++i) {
            const QString folder = m_top.filePath(u"Trip %1/Day %2"_s.arg(i / 40).arg(i % 40));
            QDir().mkpath(folder);
            for (int j = 0; j < photosOfEach; ++j)  // links cost less than files
                if (::link(first.constData(), QFile::encodeName(folder + u"/IMG_%1.jpg"_s.arg(j)).constData()) != 0)
                    qFatal("cannot make photos in %s", qPrintable(folder));
        }
    }

    QUrl top() const { return QUrl::fromLocalFile(m_top.path()); }
    AppModelServices services() const
    {
        AppModelServices services;
        services.service = MetadataService{ { QUrl::fromLocalFile(m_work.filePath(u"exiftool"_s)),
            QUrl::fromLocalFile(u"/usr/bin/perl"_s) } };
        services.preferences = std::make_shared<QSettings>(m_work.filePath(u"settings.ini"_s), QSettings::IniFormat);
        return services;
    }

private:
    QTemporaryDir m_top{ u"/dev/shm/q"_s };
    QTemporaryDir m_work{ u"/dev/shm/w"_s };
};

class Headings {
public:
    Headings()
        : m_model(m_folders.services())
    {
        ContentFactories factories;
        factories.inspector = [this](QWidget* parent) {
            return new InspectorView(m_model, nullptr, nullptr, nullptr, parent);
        };
        auto* content = new ContentView(m_model, nullptr, m_scheme, &m_window, factories);
        m_window.setMenuWidget(content->bar());
        m_window.setCentralWidget(content);
        m_window.resize(1280, 900);
        m_window.show();
    }

    void run()
    {
        m_model.load({ m_folders.top() }, true);
        settle([this] { return !m_model.isWorking() && !m_model.records().isEmpty(); });
        if (m_model.records().size() != folders * photosOfEach || m_model.folderGroups().size() != folders)
            qFatal("%s", qPrintable(m_model.errorMessage().value_or(u"not all photos are there"_s)));
        m_list = m_window.findChild<SidebarList*>();
        const double scan = plainScan();
        std::printf("%-44s %8.3f ms\n", "a plain scan over 50,000 records", scan);
        const auto report = [&](const char* what, const std::function<void()>& act, const std::function<void()>& undo) {
            QList<double> taken;
            for (int i = 0; i < 3; ++i) {
                undo();
                settle([] { return true; });
                taken.append(longest(act));
            }
            const double ratio = median(taken) / scan;
            std::printf("%-44s %8.3f ms  %7.2f x scan  (at most %.1f)%s\n", what, median(taken), ratio, bound,
                ratio > bound ? "  MISSED" : "");
        };
        const auto fold = [&] {
            const QUrl folder = m_model.folderGroups().at(folders / 2).folder;
            const auto one = [this, folder](bool on) { return [this, folder, on] { m_model.setFolded(folder, on); }; };
            const auto all = [this](bool on) { return [this, on] { m_model.setAllFolded(on); }; };
            report("one folder folded", one(true), one(false));
            report("one folder unfolded", one(false), one(true));
            report("all folded", all(true), all(false));
            report("all unfolded", all(false), all(true));
        };
        const auto press = [this](Qt::Key key) {
            return [this, key] {
                QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
                QApplication::sendEvent(m_list, &down);
            };
        };
        const auto scroll = [this](int pixels) {
            return [bar = m_list->verticalScrollBar(), pixels] { bar->setValue(bar->value() + pixels); };
        };
        fold();
        report("from the first row to the last", press(Qt::Key_End), press(Qt::Key_Home));
        report("a thousand pixels further", scroll(1'000), [] {});
        m_model.selectAllPhotos();
        settle([] { return true; });
        std::puts("with all photos selected:");
        fold();
    }

private:
    static constexpr double bound = 5;  // times the scan

    // The longest time without a look at the events, until the condition holds and half a second has passed since.
    template <typename Condition>
    double settle(Condition holds)
    {
        double longest = 0;
        QDeadlineTimer quiet(500);
        while (!quiet.hasExpired()) {
            const double begin = cpuMilliseconds();
            QCoreApplication::processEvents();
            longest = std::max(longest, cpuMilliseconds() - begin);
            if (!holds())
                quiet.setRemainingTime(500);
            QThread::usleep(500);
        }
        return longest;
    }

    double longest(const std::function<void()>& act)
    {
        const double begin = cpuMilliseconds();
        act();
        const double taken = cpuMilliseconds() - begin;
        return std::max(taken, settle([] { return true; }));
    }

    // Looks once at every record.
    double plainScan() const
    {
        QList<double> taken;
        qsizetype found = 0;
        const QUrl wanted = QUrl::fromLocalFile(u"/none.jpg"_s);
        for (int i = 0; i < 21; ++i) {
            const double begin = cpuMilliseconds();
            for (const ImageRecord& record : m_model.records())
                found += record.url == wanted ? 1 : 0;
            taken.append(cpuMilliseconds() - begin);
        }
        if (found != 0)
            qFatal("found what is not there");
        return median(taken);
    }

    Folders m_folders;
    AppModel m_model;
    SystemScheme m_scheme;
    QMainWindow m_window;
    SidebarList* m_list = nullptr;
};

}  // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    setvbuf(stdout, nullptr, _IOLBF, 0);
    Headings().run();
    return 0;
}
