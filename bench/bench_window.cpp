// The window against Qt's own: painting while a list of 50,000 photos scrolls, and the time from start to the first
// picture with a folder of 1,000 photos. Runs off screen, with a home of its own.
// bench_window --empty-window is the other side of the second comparison: a bare Qt Widgets window.
#include "app/AppModel.h"
#include "app/ThumbnailStore.h"
#include "app/shell/StartTrace.h"
#include "tests/support/Support.h"
#include "ui/SidebarList.h"
#include "ui/SidebarView.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QListView>
#include <QProcess>
#include <QScrollBar>
#include <QStringListModel>
#include <QThread>

#include <algorithm>
#include <cstdio>

#include <unistd.h>

using namespace Quorbel;

namespace {

constexpr int rowCount = 50'000;
constexpr int frames = 400;
constexpr QSize listSize(288, 900);
constexpr int startPhotos = 1'000;
constexpr int starts = 15;

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

/// Milliseconds a frame: one step of the scroll bar and the painting of what then shows.
QList<double> scrollFrames(QWidget& window, QAbstractScrollArea& list)
{
    QImage frame(window.size(), QImage::Format_ARGB32_Premultiplied);
    QScrollBar* bar = list.verticalScrollBar();
    QList<double> times;
    QElapsedTimer clock;
    for (int i = 0; i < frames; ++i) {
        // Every frame elsewhere in the list: nothing of the frame before can be moved along.
        clock.start();
        bar->setValue(static_cast<int>(static_cast<qint64>(bar->maximum()) * i / frames));
        window.render(&frame);
        times.append(static_cast<double>(clock.nsecsElapsed()) / 1e6);
        QCoreApplication::processEvents();
    }
    return times;
}

/// A folder of one-byte photos, and the tool's answer for them.
class ManyPhotos {
public:
    explicit ManyPhotos(int count)
    {
        const QByteArray first = m_folder.path(name(0)).toLocal8Bit();
        Test::writeFile(m_folder.path(name(0)), "x");
        QList<QJsonObject> answers;
        for (int i = 0; i < count; ++i) {
            const QString path = m_folder.path(name(i));
            if (i > 0 && ::link(first.constData(), path.toLocal8Bit().constData()) != 0)
                qFatal("no link");
            answers.append({ { QStringLiteral("SourceFile"), path }, { QStringLiteral("File:ImageWidth"), 5184 },
                { QStringLiteral("File:ImageHeight"), 3888 } });
        }
        m_tool.answerAlways({ .standardOutput = Test::toolJson(answers) });
    }
    AppModelServices services()
    {
        AppModelServices services;
        services.service = MetadataService{ m_tool.runner() };
        services.preferences =
            std::make_shared<QSettings>(m_settings.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
        return services;
    }
    QUrl folder() const { return QUrl::fromLocalFile(m_folder.path()); }

private:
    static QString name(int i) { return QStringLiteral("IMG_%1.jpg").arg(i, 5, 10, QLatin1Char('0')); }

    Test::PhotoFolder m_folder;
    Test::FakeTool m_tool;
    QTemporaryDir m_settings;
};

/// A store whose images are there at once, so that frames paint them.
ThumbnailStoreOptions readyImages()
{
    ThumbnailStoreOptions options;
    options.decode = [](const QString&, int, const std::stop_token&) {
        DecodedImage decoded;
        decoded.outcome = DecodedImage::Outcome::decoded;
        decoded.image = QImage(90, 60, QImage::Format_RGB32);
        decoded.image.fill(Qt::darkGreen);
        return decoded;
    };
    options.embedded = [](const QString&, const std::stop_token&) { return QImage(); };
    return options;
}

void benchScrolling()
{
    ManyPhotos photos(rowCount);
    AppModel model(photos.services());
    ThumbnailStore thumbs(readyImages());
    model.load({ photos.folder() });
    while (model.isWorking())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    if (model.records().size() != rowCount)
        qFatal("%lld photos instead of %d", static_cast<long long>(model.records().size()), rowCount);

    SidebarView sidebar(model, &thumbs);
    setTheme(&sidebar, Theme::light());
    sidebar.resize(listSize);
    sidebar.show();
    QCoreApplication::processEvents();
    scrollFrames(sidebar, *sidebar.list());  // once to warm up
    const double ours = median(scrollFrames(sidebar, *sidebar.list()));

    QStringList names;
    for (const ImageRecord& record : model.records())
        names.append(record.fileName);
    QStringListModel plainModel(names);
    QListView plain;
    plain.setUniformItemSizes(true);
    plain.setModel(&plainModel);
    plain.resize(listSize);
    plain.show();
    QCoreApplication::processEvents();
    scrollFrames(plain, plain);
    const double theirs = median(scrollFrames(plain, plain));
    std::printf("scroll 50,000 rows, median frame: %.2f ms (bound 4), a QListView of names %.2f ms, ratio %.2f\n", ours,
        theirs, ours / theirs);
    std::fflush(stdout);
}

/// Milliseconds from the start of a process to its line "first paint" on standard error; then it is killed.
double startTime(const QString& program, const QStringList& arguments)
{
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QUORBEL_TRACE_START"), QStringLiteral("1"));
    for (const QString& variable : { QStringLiteral("HOME"), QStringLiteral("XDG_CONFIG_HOME"),
             QStringLiteral("XDG_CACHE_HOME"), QStringLiteral("XDG_RUNTIME_DIR") })
        environment.insert(variable, home.path());
    QProcess process;
    process.setProcessEnvironment(environment);
    QElapsedTimer clock;
    clock.start();
    process.setReadChannel(QProcess::StandardError);
    process.start(program, arguments);
    QByteArray said;
    while (!said.contains("first paint"))
        if (process.waitForReadyRead(30'000))
            said += process.readAllStandardError();
        else if (process.state() == QProcess::NotRunning)
            qFatal("%s ended before it painted: %s", qPrintable(program), said.constData());
    const double milliseconds = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    process.kill();
    process.waitForFinished();
    return milliseconds;
}

void benchStart()
{
    const Test::PhotoFolder photos;
    for (int i = 0; i < startPhotos; ++i)
        photos.add(QStringLiteral("IMG_%1.jpg").arg(i, 4, 10, QLatin1Char('0')));
    const QString here = QCoreApplication::applicationDirPath();
    QList<double> ours;
    QList<double> empty;
    for (int i = 0; i < starts; ++i) {  // in turn, so that both meet the same machine
        empty.append(startTime(QCoreApplication::applicationFilePath(), { QStringLiteral("--empty-window") }));
        ours.append(startTime(here + QStringLiteral("/quorbel"), { photos.path() }));
    }
    std::printf("start to first picture, 1,000 photos given, median of %d: %.0f ms, an empty window %.0f ms, ratio "
                "%.2f (bound 1.5)\n",
        starts, median(ours), median(empty), median(ours) / median(empty));
    std::printf("the same, best of %d: %.0f ms, %.0f ms, ratio %.2f\n", starts,
        *std::min_element(ours.begin(), ours.end()), *std::min_element(empty.begin(), empty.end()),
        *std::min_element(ours.begin(), ours.end()) / *std::min_element(empty.begin(), empty.end()));
}

int emptyWindow()
{
    QWidget window;
    window.resize(1240, 800);
    StartTrace::watch(&window);
    window.show();
    return QApplication::exec();
}

}  // namespace

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(QStringLiteral("--empty-window")))
        return emptyWindow();
    benchScrolling();
    benchStart();
    return 0;
}
