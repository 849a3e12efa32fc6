// What the cache of records takes to keep and to give back 10,000 and 50,000 photos, and a few of many. Processor time
// of this process, its writer's included; medians. The ratio of the two folders is the claim: time grows no faster than
// the number of photos, with a tenth for noise.
#include "app/model/library/cache/RecordCache.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 5;
constexpr int few = 100;
constexpr double bound = 1.1 * 5;

double cpuMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    if (QFile file(path); !file.open(QIODevice::WriteOnly) || file.write(bytes) < 0)
        qFatal("cannot write %s", qPrintable(path));
}

// As a phone's photo gives it, once somebody has described it.
ImageRecord recordOf(const PhotoFile& file, int number)
{
    ImageRecord record = file.unreadRecord();
    record.isUnread = false;
    record.pixelWidth = 4032;
    record.pixelHeight = 3024;
    record.values = { { u"title"_s, u"Dawn over the lake, %1"_s.arg(number) },
        { u"description"_s, u"The first light of the day on the hills, seen from the pier; number %1."_s.arg(number) },
        { u"date"_s,
            u"2026-05-%1 06:%2"_s.arg(number % 28 + 1, 2, 10, QChar(u'0')).arg(number % 60, 2, 10, QChar(u'0')) },
        { u"creator"_s, u"A. Photographer"_s }, { u"copyright"_s, u"© 2026 A. Photographer"_s },
        { u"place"_s, u"Lucerne"_s }, { u"country"_s, u"Switzerland"_s },
        { u"coords"_s, u"47.05%1, 8.30%1"_s.arg(number % 100) }, { u"software"_s, u"17.4"_s } };
    record.lists = { { u"keywords"_s, { u"lake"_s, u"dawn"_s, u"hills"_s, u"day %1"_s.arg(number % 50) } } };
    record.camera = { { u"Camera"_s, u"Maker Phone 12"_s }, { u"Lens"_s, u"back camera 4.25mm f/1.6"_s },
        { u"ISO"_s, QString::number(32 + number % 8 * 25) }, { u"Shutter"_s, u"1/%1"_s.arg(60 + number % 40) },
        { u"Aperture"_s, u"1.6"_s }, { u"Focal length"_s, u"4.2 mm"_s }, { u"Color space"_s, u"Uncalibrated"_s } };
    return record;
}

struct Folder {
    QTemporaryDir photos;
    QTemporaryDir cache;
    QList<PhotoFile> files;
    QList<RecordCache::Read> reads;

    explicit Folder(int count)
    {
        for (int i = 0; i < count; ++i) {
            const QString path = photos.filePath(u"IMG_%1.jpg"_s.arg(i));
            writeFile(path, "photo");
            files.append(*PhotoFile::at(QUrl::fromLocalFile(path)).file);
            reads.append({ files.constLast(), recordOf(files.constLast(), i) });
        }
    }
};

struct Times {
    double put = 0;
    double find = 0;
    double findWall = 0;
    double few = 0;
};

Times measure(const Folder& folder, const ExifToolRunner& tool)
{
    std::vector<double> put, find, wall, some;
    for (int round = 0; round < rounds; ++round) {
        const QString path = folder.cache.filePath(QString::number(round));
        {
            RecordCache cache({ .folder = path }, tool);
            const double before = cpuMilliseconds();
            const auto beginning = cache.begin(folder.files);
            // As reads end: in slices.
            for (qsizetype i = 0; i < folder.reads.size(); i += 200)
                cache.put(beginning, folder.reads.sliced(i, std::min<qsizetype>(200, folder.reads.size() - i)));
            cache.waitUntilWritten();
            put.push_back(cpuMilliseconds() - before);
        }
        RecordCache cache({ .folder = path }, tool);
        QElapsedTimer timer;
        timer.start();
        double before = cpuMilliseconds();
        const auto found = cache.find(folder.files);
        find.push_back(cpuMilliseconds() - before);
        wall.push_back(double(timer.nsecsElapsed()) / 1e6);
        if (found.size() != folder.files.size() || found.value(folder.files.at(7).url) != folder.reads.at(7).record)
            qFatal("not all were found");
        before = cpuMilliseconds();
        if (cache.find(folder.files.sliced(folder.files.size() / 2, few)).size() != few)
            qFatal("not all were found");
        some.push_back(cpuMilliseconds() - before);
    }
    return { median(put), median(find), median(wall), median(some) };
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir work;
    writeFile(work.filePath(u"exiftool"_s), "print \"12.57\\n\";\n");
    const ExifToolRunner tool{ QUrl::fromLocalFile(work.filePath(u"exiftool"_s)),
        QUrl::fromLocalFile(u"/usr/bin/perl"_s) };
    Times times[2];
    const int counts[2]{ 10'000, 50'000 };
    for (int i = 0; i < 2; ++i) {
        times[i] = measure(Folder(counts[i]), tool);
        std::printf("%d photos: put %.0f ms, find %.0f ms (%.0f ms by the clock), find %d of them %.2f ms\n", counts[i],
            times[i].put, times[i].find, times[i].findWall, few, times[i].few);
    }
    const double find = times[1].find / times[0].find;
    const double put = times[1].put / times[0].put;
    std::printf("50,000 against 10,000: find %.2f, put %.2f (bound %.1f); %d of them: %.2f\n", find, put, bound, few,
        times[1].few / times[0].few);
    return find <= bound && put <= bound ? 0 : 1;
}
