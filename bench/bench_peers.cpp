// From the start of a program to its list with the first picture, for a folder of 10,000 photos: ours beside geeqie and
// gthumb, each in the whole of the same screen, in turn. Told by the pixels of the screen, looked at twenty times a
// second. "new": with a home in which it never ran; "again": in the same home, a second time.
// Usage: bench_peers [TRIES]. QUORBEL_BENCH_PICTURES names a folder for what was seen. See docs/performance.md.
#include "bench/Desktop.h"
#include "bench/Measure.h"
#include "bench/PhotoFolders.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QSet>
#include <QSettings>
#include <QStandardPaths>
#include <QThread>

#include <cstdio>
#include <vector>

#include <csignal>
#include <unistd.h>

using namespace Quorbel::Bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int photoCount = 10'000;
constexpr int interval = 50;  // ms between two looks
constexpr int longest = 30'000;  // ms
constexpr int bandHeight = 24;
constexpr int colorCount = 150;  // that only a photo has

struct Program {
    QString name{};
    QString path{};
    QRect list{};  ///< where it is on the screen
    double filled = 0;  ///< the share of the list's bands that are not empty once it is there
};

// The share of the rectangle's bands in which something is drawn.
double filledBands(const QImage& screen, const QRect& list)
{
    int filled = 0;
    const int bands = list.height() / bandHeight;
    for (int band = 0; band < bands; ++band) {
        int drawn = 0;
        const QRgb ground = screen.pixel(list.topLeft() + QPoint(1, band * bandHeight));
        for (int y = list.top() + band * bandHeight; y < list.top() + (band + 1) * bandHeight; y += 2)
            for (int x = list.left(); x <= list.right(); x += 2)
                drawn += screen.pixel(x, y) != ground ? 1 : 0;
        filled += drawn >= 15 ? 1 : 0;
    }
    return static_cast<double>(filled) / bands;
}

// Colors of four bits a channel that are neither gray nor nearly so.
int colors(const QImage& screen)
{
    std::vector<bool> seen(4096);
    int count = 0;
    for (int y = 0; y < screen.height(); y += 2) {
        const auto* line = reinterpret_cast<const QRgb*>(screen.constScanLine(y));
        for (int x = 0; x < screen.width(); x += 2) {
            const int red = qRed(line[x]);
            const int green = qGreen(line[x]);
            const int blue = qBlue(line[x]);
            if (std::max({ red, green, blue }) - std::min({ red, green, blue }) < 40)
                continue;
            const int color = (red >> 4) << 8 | (green >> 4) << 4 | blue >> 4;
            count += seen[color] ? 0 : 1;
            seen[color] = true;
        }
    }
    return count;
}

void keep(const QImage& screen, const QString& name)
{
    if (const QString folder = qEnvironmentVariable("QUORBEL_BENCH_PICTURES"); !folder.isEmpty())
        screen.save(folder + u'/' + name + u".png"_s);
}

struct Seen {
    double list = 0;  ///< milliseconds from the start
    double picture = 0;  ///< list and first picture
};

Seen watch(const Program& program, const Desktop& desktop, const QElapsedTimer& clock, const QString& name)
{
    Seen seen;
    QImage screen;
    while (clock.elapsed() < longest) {
        const double now = static_cast<double>(clock.nsecsElapsed()) / 1e6;
        QImage next = desktop.picture();
        if (next != screen) {
            const bool isList = filledBands(next, program.list) >= program.filled;
            const bool isPicture = colors(next) >= colorCount;
            if (isList && seen.list == 0)
                seen.list = now;
            if (isList && isPicture) {
                seen.picture = now;
                keep(screen, name + u"-before"_s);
                keep(next, name + u"-there"_s);
                return seen;
            }
            screen = next;
        }
        QThread::msleep(std::max<qint64>(1, interval - clock.elapsed() % interval));
    }
    keep(screen, name + u"-never"_s);
    return { longest, longest };
}

Seen start(
    const Program& program, const Desktop& desktop, const QString& home, const QString& folder, const QString& name)
{
    QProcess process;
    process.setProcessEnvironment(desktop.environment(home));
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setChildProcessModifier([] { ::setpgid(0, 0); });
    QElapsedTimer clock;
    clock.start();
    process.start(program.path, { folder });
    const Seen seen = watch(program, desktop, clock, name);
    QThread::sleep(2);  // what it keeps for the next time is written meanwhile
    keep(desktop.picture(), name + u"-later"_s);
    ::kill(-static_cast<pid_t>(process.processId()), SIGTERM);
    if (!process.waitForFinished(5000))
        ::kill(-static_cast<pid_t>(process.processId()), SIGKILL);
    process.waitForFinished();
    QThread::msleep(500);
    return seen;
}

// A home in which the feed was asked a moment ago: nothing goes to the network.
void prepare(const QTemporaryDir& home)
{
    QSettings settings(home.filePath(u".config/Quorbel/Quorbel.ini"_s), QSettings::IniFormat);
    settings.setValue(u"lastUpdateCheck"_s, QDateTime::currentDateTimeUtc().toString(Qt::ISODate));
}

struct Times {
    QList<double> list{};
    QList<double> picture{};
};

void comparePeers(const QList<Program>& programs, const Desktop& desktop, const QString& folder, int tries)
{
    QMap<QString, Times> times;
    for (int i = 0; i < tries; ++i)
        for (const Program& program : programs) {
            const QTemporaryDir home;
            prepare(home);
            for (const QString& state : { u"new"_s, u"again"_s }) {
                const QString name = program.name + u' ' + state;
                const Seen seen = start(program, desktop, home.path(), folder, QString(name).replace(u' ', u'-'));
                times[name].list.append(seen.list);
                times[name].picture.append(seen.picture);
            }
        }
    for (const QString& state : { u"new"_s, u"again"_s })
        for (const Program& program : programs) {
            const Times& its = times[program.name + u' ' + state];
            const Times& first = times[programs.constFirst().name + u' ' + state];
            std::printf("%-8s %-6s list %6.0f ms, list and first picture %6.0f ms, %5.2f times ours\n",
                qPrintable(program.name), qPrintable(state), median(its.list), median(its.picture),
                median(its.picture) / median(first.picture));
        }
}

}  // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    setvbuf(stdout, nullptr, _IOLBF, 0);
    const int tries = QCoreApplication::arguments().value(1).toInt();
    const PhotoFolders folders;
    const Desktop desktop;
    if (!desktop.isRunning()) {
        std::printf("not measured: Xvfb, openbox or dbus-daemon is missing\n");
        return 0;
    }
    QList<Program> programs{ { u"quorbel"_s, QCoreApplication::applicationDirPath() + u"/quorbel"_s,
        QRect(8, 140, 260, 800), 0.8 } };
    const QString geeqie = QStandardPaths::findExecutable(u"geeqie"_s);
    const QString gthumb = QStandardPaths::findExecutable(u"gthumb"_s);
    if (!geeqie.isEmpty())
        programs.append({ u"geeqie"_s, geeqie, QRect(20, 210, 210, 720), 0.8 });
    if (!gthumb.isEmpty())
        programs.append({ u"gthumb"_s, gthumb, QRect(300, 110, 1290, 780), 0.3 });
    comparePeers(programs, desktop, folders.folder(photoCount), tries > 0 ? tries : 5);
    return 0;
}
