// The window against Qt's own: painting while a list of 50,000 photos scrolls (off screen), and the time from start to
// the first picture with a folder of 1,000 photos given, against a program that shows an empty Qt Widgets window. Both
// programs are started in turn: on an X server of their own when there is one to start, with the session bus that every
// desktop has and without one, and off screen. Without a window system the empty window costs next to nothing, so that
// the bound is for the former.
#include "app/model/AppModel.h"
#include "app/model/thumbnails/ThumbnailStore.h"
#include "tests/support/Support.h"
#include "ui/controls/theme/Theme.h"
#include "ui/sidebar/SidebarList.h"
#include "ui/sidebar/SidebarView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QListView>
#include <QProcess>
#include <QScrollBar>
#include <QStringListModel>
#include <QThread>

#include <algorithm>
#include <csignal>
#include <cstdio>

#include <unistd.h>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

constexpr int rowCount = 50'000;
constexpr int frames = 400;
constexpr QSize listSize(288, 900);
constexpr int startPhotos = 1'000;
constexpr int starts = 31;
constexpr int pause = 50;  // ms between two starts: what was killed takes a while to go

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

// Milliseconds a frame: one step of the scroll bar and the painting of what then shows.
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

// A folder of one-byte photos, and the tool's answer for them.
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
            answers.append(
                { { u"SourceFile"_s, path }, { u"File:ImageWidth"_s, 5184 }, { u"File:ImageHeight"_s, 3888 } });
        }
        m_tool.answerAlways({ .standardOutput = Test::toolJson(answers) });
    }
    AppModelServices services()
    {
        AppModelServices services;
        services.service = MetadataService{ m_tool.runner() };
        services.preferences = std::make_shared<QSettings>(m_settings.filePath(u"s.ini"_s), QSettings::IniFormat);
        return services;
    }
    QUrl folder() const { return QUrl::fromLocalFile(m_folder.path()); }

private:
    static QString name(int i) { return u"IMG_%1.jpg"_s.arg(i, 5, 10, QLatin1Char('0')); }

    Test::PhotoFolder m_folder;
    Test::FakeTool m_tool;
    QTemporaryDir m_settings;
};

// A store whose images are there at once, so that frames paint them.
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

// Milliseconds from the start of a process to its line "first paint" on standard error; then it is killed with
// whatever it started: a tool that went on reading would slow the next start down.
double startTime(const QString& program, const QStringList& arguments, const QProcessEnvironment& environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setReadChannel(QProcess::StandardError);
    process.setChildProcessModifier([] { ::setpgid(0, 0); });
    QElapsedTimer clock;
    clock.start();
    process.start(program, arguments);
    QByteArray said;
    while (!said.contains("first paint"))
        if (process.waitForReadyRead(30'000))
            said += process.readAllStandardError();
        else if (process.state() == QProcess::NotRunning)
            qFatal("%s ended before it painted: %s", qPrintable(program), said.constData());
    const double milliseconds = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    ::kill(-static_cast<pid_t>(process.processId()), SIGKILL);
    process.waitForFinished();
    QThread::msleep(pause);
    return milliseconds;
}

// An environment with a home of its own, in which the feed was asked a moment ago: nothing goes to the network.
QProcessEnvironment environmentIn(const QTemporaryDir& home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QUORBEL_TRACE_START"_s, u"1"_s);
    for (const QString& variable : { u"HOME"_s, u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s, u"XDG_RUNTIME_DIR"_s })
        environment.insert(variable, home.path());
    QSettings settings(home.filePath(u"Quorbel/Quorbel.ini"_s), QSettings::IniFormat);
    settings.setValue(u"lastUpdateCheck"_s, QDateTime::currentDateTimeUtc().toString(Qt::ISODate));
    return environment;
}

// Starts a server that says its address in its first line, and ends with this object. The address is empty when there
// is no such server.
class Server {
public:
    Server(const QString& program, const QStringList& arguments)
    {
        m_process.start(program, arguments);
        if (m_process.waitForStarted() && m_process.waitForReadyRead(10'000))
            m_address = QString::fromLatin1(m_process.readLine().trimmed());
    }
    ~Server()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Server)
    const QString& address() const { return m_address; }

private:
    QProcess m_process;
    QString m_address;
};

struct Desktop {
    const char* name;
    QString platform;
    QString display;
    QString bus;  // the address of the session bus
};

void benchStartOn(const Desktop& desktop, const QString& photos)
{
    const QTemporaryDir home;
    QProcessEnvironment environment = environmentIn(home);
    environment.insert(u"QT_QPA_PLATFORM"_s, desktop.platform);
    environment.insert(u"DISPLAY"_s, desktop.display);
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, desktop.bus);
    const QString here = QCoreApplication::applicationDirPath();
    startTime(here + u"/quorbel"_s, { photos }, environment);  // once to warm up
    QList<double> ours;
    QList<double> empty;
    for (int i = 0; i < starts; ++i) {  // in turn, so that both meet the same machine
        empty.append(startTime(here + u"/empty_window"_s, {}, environment));
        ours.append(startTime(here + u"/quorbel"_s, { photos }, environment));
    }
    std::sort(ours.begin(), ours.end());
    std::sort(empty.begin(), empty.end());
    std::printf("start to first picture on %s, 1,000 photos given, median of %d: %.0f ms, an empty window %.0f ms, "
                "ratio %.2f; quickest: %.0f ms, %.0f ms, ratio %.2f (bound 1.5)\n",
        desktop.name, starts, median(ours), median(empty), median(ours) / median(empty), ours.first(), empty.first(),
        ours.first() / empty.first());
    std::fflush(stdout);
}

void benchStart()
{
    const Test::PhotoFolder photos;
    for (int i = 0; i < startPhotos; ++i)
        photos.add(u"IMG_%1.jpg"_s.arg(i, 4, 10, QLatin1Char('0')));
    const Server bus(u"dbus-daemon"_s, { u"--session"_s, u"--nofork"_s, u"--print-address"_s });
    const Server windows(u"Xvfb"_s, { u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1600x1000x24"_s });
    const QString noBus = u"disabled:"_s;
    const QString xcb = u"xcb"_s;
    const QString display = QLatin1Char(':') + windows.address();
    if (windows.address().isEmpty()) {
        std::printf("start on xcb: not measured, no Xvfb\n");
    } else {
        if (!bus.address().isEmpty())
            benchStartOn({ "xcb with a session bus", xcb, display, bus.address() }, photos.path());
        benchStartOn({ "xcb without a session bus", xcb, display, noBus }, photos.path());
    }
    benchStartOn({ "offscreen", u"offscreen"_s, {}, noBus }, photos.path());
}

}  // namespace

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchScrolling();
    benchStart();
    return 0;
}
