// What small events cost the main thread, in the whole window, while 100,000 photos are open: against one plain scan
// over the records in the same run. Each is the longest time for which the main thread is busy without a look at its
// events, as processor time; medians of several. The bounds are what 16 ms are on a quiet machine, or less.
#include "app/model/AppModel.h"
#include "bench/ManyPhotos.h"
#include "bench/Measure.h"
#include "platform/desktop/SystemScheme.h"
#include "ui/inspector/InspectorView.h"
#include "ui/sheets/RenameSheet.h"
#include "ui/window/ContentView.h"
#include "ui/window/WindowBar.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QMainWindow>
#include <QThread>

#include <algorithm>
#include <cstdio>

using namespace Quorbel;
using namespace Quorbel::Bench;
using namespace Qt::StringLiterals;

namespace {

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

class Window {
public:
    explicit Window(AppModel& model)
    {
        ContentFactories factories;
        factories.inspector = [&model](QWidget* parent) {
            return new InspectorView(model, nullptr, nullptr, nullptr, parent);
        };
        factories.rename = [&model] { return new RenameSheet(model); };
        auto* content = new ContentView(model, nullptr, m_scheme, &m_window, factories);
        m_window.setMenuWidget(content->bar());
        m_window.setCentralWidget(content);
        m_window.resize(1280, 900);
        m_window.show();
    }

private:
    SystemScheme m_scheme;
    QMainWindow m_window;
};

class Events {
public:
    Events()
        : m_model(m_photos.services())
        , m_window(m_model)
    {
        m_model.load({ m_photos.folder() });
        settle([this] { return !m_model.isWorking(); });
        if (m_model.records().size() != ManyPhotos::count)
            qFatal("%s", qPrintable(m_model.errorMessage().value_or(u"not all photos were read"_s)));
    }

    void run()
    {
        const double scan = plainScan();
        std::printf("%-44s %8.3f ms\n", "a plain scan over 100,000 records", scan);
        const auto report = [scan](const char* what, double taken, double most) {
            std::printf("%-44s %8.3f ms  %7.3f x scan  (at most %.2f)%s\n", what, taken, taken / scan, most,
                taken / scan > most ? "  MISSED" : "");
        };
        report("a refresh without a change", repeated(&Events::refresh), 0.2);
        report("one file added", repeated(&Events::addFile), 1.5);
        report("one file replaced by another", repeated(&Events::replaceFile), 1);
        report("one file removed", repeated(&Events::removeFile), 1.7);
        report("a key in the rename sheet", renameKeys(), 0.7);
        // The file's new name must be free at that moment: a folder that changed since is listed once more.
        report("a rename, with a look at the folder", repeated(&Events::rename), 25);
        report("the keywords after a change", repeated(&Events::completeKeyword), 0.4);
        report("looks for what stalls a load", repeated(&Events::stall), 0.5);
        report("closing", repeated(&Events::close), 0.5);
        report("opening again", repeated(&Events::open), 1.7);
    }

private:
    // The longest time without a look at the events, until the condition holds and a second has passed since.
    template <typename Condition>
    double settle(Condition holds)
    {
        double longest = 0;
        QDeadlineTimer quiet(1000);
        while (!quiet.hasExpired()) {
            const double begin = cpuMilliseconds();
            QCoreApplication::processEvents();
            longest = std::max(longest, cpuMilliseconds() - begin);
            if (!holds())
                quiet.setRemainingTime(1000);
            QThread::usleep(500);
        }
        return longest;
    }

    template <typename Act, typename Condition>
    double longest(Act act, Condition holds)
    {
        const double begin = cpuMilliseconds();
        act();
        const double taken = cpuMilliseconds() - begin;
        return std::max(taken, settle(holds));
    }

    double repeated(double (Events::*event)(int))
    {
        std::vector<double> taken;
        for (int i = 0; i < 3; ++i)
            taken.push_back((this->*event)(i));
        return median(taken);
    }

    // Looks once at every record.
    double plainScan() const
    {
        std::vector<double> taken;
        qsizetype found = 0;
        const QUrl wanted = QUrl::fromLocalFile(u"/none.jpg"_s);
        for (int i = 0; i < 21; ++i) {
            const double begin = cpuMilliseconds();
            for (const ImageRecord& record : m_model.records())
                found += record.url == wanted ? 1 : 0;
            taken.push_back(cpuMilliseconds() - begin);
        }
        if (found != 0)
            qFatal("found what is not there");
        return median(taken);
    }

    qsizetype size() const { return m_model.records().size(); }

    double refresh(int)
    {
        // Nothing tells that a look has found nothing.
        const QDeadlineTimer over(3000);
        return longest([this] { m_model.refresh(); }, [&over] { return over.hasExpired(); });
    }

    double addFile(int i)
    {
        m_photos.add(u"IMG_500_new%1.jpg"_s.arg(i));
        return longest([this] { m_model.refresh(); }, [this, i] { return size() == ManyPhotos::count + i + 1; });
    }

    double replaceFile(int i)
    {
        const QUrl url = m_model.records().at(i * 31 + 7).url;
        const auto before = m_model.record(url)->contentModificationDate;
        m_photos.add(url.fileName());
        return longest(
            [this] { m_model.refresh(); }, [&] { return m_model.record(url)->contentModificationDate != before; });
    }

    double removeFile(int i)
    {
        QFile::remove(m_photos.path(u"IMG_500_new%1.jpg"_s.arg(i)));
        return longest([this] { m_model.refresh(); }, [this, i] { return size() == ManyPhotos::count + 2 - i; });
    }

    double renameKeys()
    {
        m_model.tap(m_model.records().constFirst().url, false, false);
        m_model.setSingle(u"title"_s, u"Lake"_s);
        m_model.setRenameOpen(true);
        settle([] { return true; });
        std::vector<double> taken;
        for (const QString& pattern : { u"%Title%a"_s, u"%Title%ab"_s, u"%Title%abc"_s, u"%Title%ab"_s })
            taken.push_back(longest([&] { m_model.preferences().renamePattern.set(pattern); }, [] { return true; }));
        m_model.setRenameOpen(false);
        settle([] { return true; });
        return median(taken);
    }

    double rename(int i)
    {
        m_model.preferences().renamePattern.set(u"renamed%1"_s.arg(i));
        m_model.setRenameOpen(true);
        // The folder is listed meanwhile: who renames sooner waits for that.
        const QDeadlineTimer over(3000);
        settle([&over] { return over.hasExpired(); });
        m_model.setRenameOpen(false);
        return longest([this] { m_model.performRename(); }, [] { return true; });
    }

    double completeKeyword(int i)
    {
        (void)m_model.keywordCompletions(u"la"_s, 8);
        m_photos.add(u"IMG_501_new%1.jpg"_s.arg(i));
        m_model.refresh();
        settle([this, i] { return size() == ManyPhotos::count + i + 1; });
        return longest([this] { (void)m_model.keywordCompletions(u"la"_s, 8); }, [] { return true; });
    }

    // All photos are read again, by a tool that does not get on.
    double stall(int)
    {
        m_photos.stall(true);
        const double taken = longest(
            [this] { m_model.load({ m_photos.folder() }); }, [this] { return m_model.stalledFile().has_value(); });
        m_photos.stall(false);
        m_model.cancelRead();
        settle([this] { return !m_model.isWorking(); });
        return taken;
    }

    double close(int)
    {
        m_model.setSingle(u"title"_s, u"Title 1"_s);
        const double taken = longest([this] { m_model.closeFolder(); }, [] { return true; });
        open(0);
        return taken;
    }

    double open(int)
    {
        return longest(
            [this] { m_model.load({ m_photos.folder() }); }, [this] { return !m_model.isWorking() && size() > 0; });
    }

    ManyPhotos m_photos;
    AppModel m_model;
    Window m_window;
};

}  // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    setvbuf(stdout, nullptr, _IOLBF, 0);
    Events().run();
    return 0;
}
