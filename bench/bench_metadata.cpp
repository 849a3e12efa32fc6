// What the engine adds to ExifTool: reading 1,000 JPEGs and saving 200, each against the bare runs of the tool that
// the same work needs (same arguments, output thrown away). Runs alternate; medians are compared.
// Photos: the JPEGs below the folder named by QUORBEL_TEST_PHOTOS, copied over and over; without it, generated ones.
#include "bench/BareTool.h"
#include "bench/Measure.h"
#include "core/MetadataService.h"
#include "tests/support/Support.h"

#include <QDirIterator>

#include <cstdio>
#include <functional>

using namespace Quorbel;
using namespace Quorbel::Bench;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

constexpr int readCount = 1000;
constexpr int saveCount = 200;
constexpr int rounds = 5;

void compare(const char* name, const std::function<void(int round)>& ours, const std::function<void(int round)>& bare)
{
    QList<Cost> oursCosts;
    QList<Cost> bareCosts;
    for (int round = 0; round < rounds; ++round) {
        const auto runOurs = [&] { oursCosts.append(measure([&] { ours(2 * round); })); };
        const auto runBare = [&] { bareCosts.append(measure([&] { bare(2 * round + 1); })); };
        // Whoever goes second finds warmer caches; take turns.
        if (round % 2) {
            runBare();
            runOurs();
        } else {
            runOurs();
            runBare();
        }
    }
    std::printf(
        "%s: wall %.0f ms against %.0f ms bare, ratio %.3f (target 1.03); CPU %.0f ms against %.0f ms, ratio %.3f\n",
        name, medianWall(oursCosts), medianWall(bareCosts), medianWall(oursCosts) / medianWall(bareCosts),
        medianCpu(oursCosts), medianCpu(bareCosts), medianCpu(oursCosts) / medianCpu(bareCosts));
    std::fflush(stdout);
}

QList<QByteArray> samplePhotos()
{
    QList<QByteArray> samples;
    QDirIterator files(qEnvironmentVariable("QUORBEL_TEST_PHOTOS", u"/nonexistent"_s), { u"*.jpg"_s, u"*.jpeg"_s },
        QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        if (const QString path = files.next();
            path.contains(QLatin1String("/valid/")) || !path.contains(QLatin1String("/malformed/")))
            samples.append(readFile(path));
    if (samples.isEmpty())
        samples.append(jpegBytes(640, 480));
    return samples;
}

QList<QUrl> makePhotos(const PhotoFolder& folder, const QList<QByteArray>& samples)
{
    QList<QUrl> photos;
    for (int i = 0; i < readCount; ++i)
        photos.append(folder.add(u"IMG_%1.jpg"_s.arg(i, 4, 10, QLatin1Char('0')), samples[i % samples.size()]));
    std::printf("%d photos, copies of %d\n", readCount, int(samples.size()));
    return photos;
}

QStringList paths(const QList<QUrl>& photos)
{
    QStringList list;
    for (const auto& photo : photos)
        list.append(photo.toLocalFile());
    return list;
}

EditPlan planOf(int round)
{
    return { .scalars = { { "headline", QString::number(round) } }, .lists = { { "people", { "Ann", "Bo" } } } };
}

// Copies of those samples that the tool agrees to write to: what a camera made can still be refused.
QList<QUrl> writable(const MetadataService& service, const QList<QUrl>& photos, qsizetype sampleCount)
{
    QList<bool> accepted(sampleCount, true);
    for (qsizetype sample = 0; sample < sampleCount; ++sample) {
        try {
            service.write(planOf(-1), { photos[sample] }, {});
        } catch (const ToolError&) {
            accepted[sample] = false;
        }
    }
    QList<QUrl> targets;
    for (qsizetype i = 0; i < photos.size() && targets.size() < saveCount; ++i)
        if (accepted[i % sampleCount])
            targets.append(photos[i]);
    return targets;
}

}  // namespace

int main()
{
    const MetadataService service{ startedTool() };
    const PhotoFolder folder;
    const auto samples = samplePhotos();
    const auto photos = makePhotos(folder, samples);
    compare(
        "read of 1,000 JPEGs", [&](int) { service.read(photos); }, [&](int) { BareTool::read(paths(photos)); });

    const auto targets = writable(service, photos, samples.size());
    compare(
        "save of 200 photos", [&](int round) { service.write(planOf(round), targets, {}); },
        [&](int round) {
            BareTool::run(QStringList{ "-overwrite_original", "-m", "-XMP-photoshop:Headline=" + QString::number(round),
                              "-IPTC:Headline=" + QString::number(round), "-XMP-iptcExt:PersonInImage=",
                              "-XMP-iptcExt:PersonInImage=Ann", "-XMP-iptcExt:PersonInImage=Bo" }
                + paths(targets));
        });
    return 0;
}
