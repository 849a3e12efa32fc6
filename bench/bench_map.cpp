// How long a map preview takes to draw, at double density and 620 × 96 points: CPU time on one thread, medians, and as
// a ratio to drawing 10,000 random antialiased lines onto an image of the same size in the same run.
// Usage: bench_map [PLACES_FOLDER]; the build tree's by default.
#include "platform/places/map/MapPainter.h"

#include <QGuiApplication>
#include <QPainter>
#include <QRandomGenerator>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

constexpr QSize points(620, 96);
constexpr qreal density = 2;
constexpr int runs = 21;
constexpr double mostPlain = 60;  // ms
constexpr double mostWidened = 250;  // ms

template <typename Work>
double medianMilliseconds(Work work)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        const auto start = std::clock();
        work();
        times.push_back(1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC);
    }
    std::nth_element(times.begin(), times.begin() + runs / 2, times.end());
    return times[runs / 2];
}

void drawLines()
{
    QImage image(points * density, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QRandomGenerator random(1);
    const auto anywhere = [&] {
        return QPointF(random.bounded(double(image.width())), random.bounded(double(image.height())));
    };
    for (int i = 0; i < 10000; ++i)
        painter.drawLine(QLineF(anywhere(), anywhere()));
}

struct Sample {
    const char* name;
    GeoPoint center;
};

constexpr Sample samples[] = {
    { "Paris", { 48.8584, 2.2945 } },
    { "Tokyo", { 35.6586, 139.7454 } },
    { "New York", { 40.7484, -73.9857 } },
    { "Bergen, fjords", { 60.39, 5.32 } },
    { "Savonlinna, lakes", { 61.87, 28.88 } },
    { "Fiji", { -16.8, 179.99 } },
    { "Null Island", { 0, 0 } },
    { "South Pacific", { -48.9, -123.4 } },
    { "Baffin Island", { 70, -75 } },
    { "89 N", { 89, 0 } },
    { "89 S", { -89, 0 } },
};

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const auto folder = argc > 1 ? QString::fromLocal8Bit(argv[1])
                                 : QGuiApplication::applicationDirPath() + u"/../share/quorbel/places"_s;
    const auto data = MapData::open(folder);
    if (!data) {
        std::printf("map: no map files in %s\n", qPrintable(folder));
        return 1;
    }
    const double baseline = medianMilliseconds(drawLines);
    std::printf("%-20s %8.1f ms  baseline: 10,000 random antialiased lines\n", "lines", baseline);
    bool isWithin = true;
    for (const auto& sample : samples) {
        MapRequest request;
        request.center = sample.center;
        request.size = points;
        request.devicePixelRatio = density;
        double across = 0;
        const auto time =
            medianMilliseconds([&] { across = drawMap(*data, request, [] { return false; }).kilometersAcross; });
        const double most = across > request.kilometersAcross ? mostWidened : mostPlain;
        isWithin = isWithin && time <= most;
        std::printf("%-20s %8.1f ms  %.3f of the baseline, at most %.0f ms, %.0f km across\n", sample.name, time,
            time / baseline, most, across);
    }
    return isWithin ? 0 : 1;
}
