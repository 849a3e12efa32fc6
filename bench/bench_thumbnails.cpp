// What thumbnails and previews cost, in user processor time, against the programs that are known to be quick at it.
// Both sides decode the same distinct files in one run of a program and end in a JPEG. The ratio judged is that of the
// whole runs; the one without each side's start-up is printed beside it.
// Usage: bench_thumbnails [WORD]   (only the comparisons whose name holds this word; QUORBEL_TEST_PHOTOS may name a
// folder of real photos, which then join in)
#include "platform/images/ImageDecoder.h"
#include "tests/platform/images/ImageFiles.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

// Something with the statistics of a photo: soft shapes at all scales, and grain.
QImage scene(QSize size, quint32 seed)
{
    QRandomGenerator random(seed);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::gray);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int across = 4; across <= 1024; across *= 3) {
        QImage octave(across, across * 2 / 3, QImage::Format_RGB32);
        for (int y = 0; y < octave.height(); ++y)
            for (int x = 0; x < across; ++x)
                octave.setPixel(x, y, random.generate() | 0xFF000000);
        painter.setOpacity(across == 4 ? 1 : 0.35);
        painter.drawImage(image.rect(), octave);
    }
    painter.end();
    for (int y = 0; y < size.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const int grain = int(random.generate() & 7) - 4;
            const auto part = [&](int value) { return qBound(0, value + grain, 255); };
            row[x] = qRgb(part(qRed(row[x])), part(qGreen(row[x])), part(qBlue(row[x])));
        }
    }
    return image;
}

double seconds(const timeval& time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

// User seconds of one run of a program. A process of its own also for our side: Qt's scaling threads do not
// survive a bare fork.
double programTime(const QStringList& command)
{
    std::vector<QByteArray> bytes;
    for (const QString& argument : command)
        bytes.push_back(QFile::encodeName(argument));
    std::vector<char*> pointers;
    pointers.reserve(bytes.size() + 1);
    for (QByteArray& argument : bytes)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        setenv("VIPS_CONCURRENCY", "1", 1);
        setenv("MAGICK_THREAD_LIMIT", "1", 1);
        execvp(pointers[0], pointers.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        std::printf("   (%s failed: status %d)\n", pointers[0], status);
    return seconds(usage.ru_utime);
}

QByteArray asJpeg(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(75);  // as vipsthumbnail does
    writer.write(image);
    return bytes;
}

void decodeAll(const QStringList& files, int longSide)
{
    for (const QString& file : files) {
        const DecodedImage image = ImageDecoder::decode(file, longSide);
        if (asJpeg(image.image).isEmpty())
            std::printf("   (not decoded: %s)\n", qPrintable(file));
    }
}

constexpr int embeddedRounds = 10;  // one pass is too short to measure

void embeddedAll(const QStringList& files)
{
    for (int round = 0; round < embeddedRounds; ++round)
        for (const QString& file : files)
            ImageDecoder::embeddedThumbnail(file);
}

class Bench {
public:
    explicit Bench(QString word)
        : m_word(std::move(word))
    {
    }
    void run()
    {
        QImage(1, 1, QImage::Format_RGB32).save(dotFile());
        jpegs();
        heifs();
        const auto made = [this](const char* name, int count, QByteArray (*encode)(const QImage&)) {
            return [=, this] { return synthetic(name, count, middle, encode); };
        };
        compare("AVIF of 6 megapixels to 256", 1.10, made("a.avif", 3, &Bench::avif), 256);
        compare("JPEG XL of 6 megapixels to 256", 1.10, made("a.jxl", 3, &Bench::jxl), 256);
        compare("PNG of 6 megapixels to 256", 1.10, made("a.png", 4, &Bench::png), 256);
        compare("PNG of 6 megapixels to 1,400", 1.10, made("a.png", 4, &Bench::png), 1400);
        compare("WebP of 6 megapixels to 256", 1.10, made("a.webp", 6, &Bench::webp), 256);
        compare("TIFF of four inks, stored, to 256", 0.10, made("stored.tif", 4, &Bench::storedInks), 256);
        compare("TIFF of four inks by LZW to 256", 0.40, made("lzw.tif", 4, &Bench::inksByLzw), 256);
        jpeg2000s();
        bombs();
    }

private:
    using Files = std::function<QStringList()>;  // the files of a comparison, made when it is wanted

    void jpegs()
    {
        const Files large = [this] { return synthetic("large.jpg", 8, { 6000, 4000 }, &Bench::jpeg); };
        compare("JPEG of 24 megapixels to 256", 0.90, large, 256);
        compare("JPEG of 24 megapixels to 1,400", 0.65, large, 1400);
        const Files folder = [this] {
            return synthetic("camera.jpg", 30, { 2400, 1600 }, &Bench::jpeg) + real(u"jpg"_s, 1'000'000);
        };
        compare("folder of camera JPEGs to 256", 0.65, folder, 256);
        compareEmbedded("first pass from embedded thumbnails", 0.05, folder, 256);
    }

    void heifs()
    {
        const Files made = [this] { return synthetic("a.heic", 16, middle, &Bench::heicWithThumbnail); };
        compare("HEIC with a thumbnail to 256", 0.20, made, 256);
        const QStringList phones = real(u"heic"_s, 0);
        if (!phones.isEmpty())
            compare(
                "HEIC of phones with a thumbnail to 256", 0.20, [&] { return copies(phones, 8); }, 256);
        // The thumbnail is too small for this.
        compare(
            "HEIC of 6 megapixels, whole, to 1,400", 1.10, [&] { return made().first(3); }, 1400);
    }

    // What is decoded is as large whatever the photo measures: the larger the photo, the less it costs beside the
    // whole.
    void jpeg2000s()
    {
        compareWithMagick(
            "JPEG 2000 of 24 megapixels to 256", 0.05,
            [this] {
                return synthetic("large.jp2", 3, { 6000, 4000 }, &Bench::jp2);
            },
            256);
        compareWithMagick(
            "JPEG 2000 of 6 megapixels to 256", 0.05, [this] { return synthetic("a.jp2", 10, middle, &Bench::jp2); },
            256);
        const QStringList photos = real(u"jpg"_s, 8'000'000) + real(u"heic"_s, 0);
        if (photos.isEmpty())
            return;
        compareWithMagick(
            "JPEG 2000 made of real photos to 256", 0.05, [&] { return asJpeg2000(photos); }, 256);
    }

    static constexpr QSize middle{ 3000, 2000 };

    static QByteArray jpeg(const QImage& image)
    {
        const QImage small = image.scaled(160, 107, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const QByteArray exif = ImageFiles::exifBlock(1, ImageFiles::written(small, "jpg", 80));
        return ImageFiles::withExif(ImageFiles::written(image, "jpg", 90), exif);
    }
    // A phone spends about a bit on a pixel; at this quality so do these.
    static QByteArray heicWithThumbnail(const QImage& image)
    {
        return ImageFiles::heif(image, false, { .thumbnail = 320, .quality = 35 });
    }
    static QByteArray avif(const QImage& image) { return ImageFiles::heif(image, true); }
    static QByteArray jxl(const QImage& image) { return ImageFiles::jxl(image); }
    static QByteArray png(const QImage& image) { return ImageFiles::written(image, "png", 50); }
    static QByteArray webp(const QImage& image) { return ImageFiles::written(image, "webp", 85); }
    static QByteArray storedInks(const QImage& image)
    {
        return ImageFiles::cmykTiff(image.size(), ImageFiles::inksOf(image), {}, { .rowsPerStrip = 16 });
    }
    static QByteArray inksByLzw(const QImage& image)
    {
        return ImageFiles::cmykTiff(
            image.size(), ImageFiles::inksOf(image), {}, { .compression = 5, .differences = true, .rowsPerStrip = 16 });
    }
    static QByteArray jp2(const QImage& image) { return ImageFiles::jpeg2000(image, true); }

    // The files of that name, which are made once.
    QStringList synthetic(const char* name, int count, QSize size, QByteArray (*encode)(const QImage&))
    {
        QStringList files;
        for (int i = 0; i < count; ++i) {
            QFile file(m_folder.filePath(u"%1-%2"_s.arg(i).arg(QLatin1StringView(name))));
            if (file.exists()
                || (file.open(QIODevice::WriteOnly) && file.write(encode(scene(size, quint32(i + 1)))) > 0))
                files.append(file.fileName());
        }
        return files;
    }

    // Each file several times under names of its own: a few alone are too quick to measure.
    QStringList copies(const QStringList& files, int times) const
    {
        QStringList all;
        for (int i = 0; i < times; ++i)
            for (const QString& file : files)
                if (const QString copy = m_folder.filePath(u"%1-%2"_s.arg(i).arg(QFileInfo(file).fileName()));
                    QFile::copy(file, copy))
                    all.append(copy);
        return all;
    }

    // The same pictures in that format, which real photos seldom come in.
    QStringList asJpeg2000(const QStringList& photos) const
    {
        constexpr int wholePicture = 20'000;  // longer than any of them
        QStringList files;
        for (const QString& photo : photos) {
            QFile file(m_folder.filePath(QFileInfo(photo).fileName() + u".jp2"_s));
            if (file.open(QIODevice::WriteOnly) && file.write(jp2(ImageDecoder::decode(photo, wholePicture).image)) > 0)
                files.append(file.fileName());
        }
        return files;
    }

    // Real photos of that extension with at least so many pixels (JPEG) or which hold a thumbnail (HEIC).
    static QStringList real(const QString& extension, qint64 pixels)
    {
        QStringList files;
        const QString root = qEnvironmentVariable("QUORBEL_TEST_PHOTOS") + u"/valid"_s;
        for (QDirIterator it(root, { u"*."_s + extension }, QDir::Files); it.hasNext();) {
            const QString path = it.next();
            const QSize size = QImageReader(path).size();
            QFile file(path);
            const bool whole = file.open(QIODevice::ReadOnly) && file.readAll().endsWith("\xff\xd9");
            if (extension == u"heic" ? !ImageDecoder::embeddedThumbnail(path).isNull()
                                     : whole && qint64(size.width()) * size.height() >= pixels)
                files.append(path);
        }
        return files;
    }

    void compare(const char* what, double target, const Files& made, int longSide) const
    {
        compareWithVips(what, target, made, longSide,
            [&](const QStringList& files) { return ourCost(u"--decode"_s, longSide, files); });
    }

    void compareEmbedded(const char* what, double target, const Files& made, int longSide) const
    {
        compareWithVips(what, target, made, longSide, [&](const QStringList& files) {
            const Cost all = ourCost(u"--embedded"_s, longSide, files);
            return Cost{ all.startUp + (all.run - all.startUp) / embeddedRounds, all.startUp };
        });
    }

    void compareWithVips(const char* what, double target, const Files& made, int longSide, const auto& ours) const
    {
        if (!isWanted(what))
            return;
        const QStringList files = made();
        const QStringList command{ u"vipsthumbnail"_s, u"--size"_s, QString::number(longSide), u"-o"_s,
            m_folder.filePath(u"out-%s.jpg"_s) };
        report(
            what, target, files.size(), [&] { return ours(files); }, [&] { return costOf(command, files); },
            "vipsthumbnail");
    }

    void compareWithMagick(const char* what, double target, const Files& made, int longSide) const
    {
        if (!isWanted(what))
            return;
        const QStringList files = made();
        const QString size = u"%1x%1"_s.arg(longSide);
        report(
            what, target, files.size(), [&] { return ourCost(u"--decode"_s, longSide, files); },
            [&] {
                Cost sum{ 0, 0 };
                for (const QString& file : files)
                    sum.run += programTime(
                        { u"/usr/bin/convert-im6.q16"_s, file, u"-resize"_s, size, m_folder.filePath(u"m.jpg"_s) });
                return sum;
            },
            "convert");
    }

    bool isWanted(const char* what) const { return QLatin1StringView(what).contains(m_word, Qt::CaseInsensitive); }

    struct Cost {
        double run = 1e9;  // user seconds of the whole run
        double startUp = 1e9;  // of a run over a picture of one pixel
        void keepLeast(const Cost& other)
        {
            run = std::min(run, other.run);
            startUp = std::min(startUp, other.startUp);
        }
    };

    Cost costOf(const QStringList& command, const QStringList& files) const
    {
        return { programTime(command + files), programTime(command + QStringList{ dotFile() }) };
    }
    Cost ourCost(const QString& mode, int longSide, const QStringList& files) const
    {
        return costOf({ u"/proc/self/exe"_s, mode, QString::number(longSide) }, files);
    }

    // A picture of one pixel: what decoding it costs is start-up.
    QString dotFile() const { return m_folder.filePath(u"dot.jpg"_s); }

    // The least of five rounds on each side: what the machine does besides only ever adds.
    static void report(const char* what, double target, qsizetype count, const std::function<Cost()>& ours,
        const std::function<Cost()>& baseline, const char* name)
    {
        Cost mine, theirs;
        for (int round = 0; round < 5; ++round) {
            mine.keepLeast(ours());
            theirs.keepLeast(baseline());
        }
        const double files = double(count), ms = 1000 / files;
        std::printf("%-44s %3d files  %7.2f ms  %s %7.2f ms  ratio %.3f (at most %.2f)%s  without start-up %.3f\n",
            what, int(count), mine.run * ms, name, theirs.run * ms, mine.run / theirs.run, target,
            mine.run <= target * theirs.run ? "" : " MISSED",
            (mine.run - mine.startUp) / (theirs.run - theirs.startUp));
        std::fflush(stdout);
    }

    // Wall time from opening to refusal.
    void bombs()
    {
        if (!isWanted("bomb header"))
            return;
        for (const char* format : { "progressive jpg", "png", "gif", "webp", "tiff", "psd", "j2k", "j2k of many tiles",
                 "jxl", "heic", "avif", "dng" }) {
            QFile file(m_folder.filePath(u"bomb"_s));
            if (!file.open(QIODevice::WriteOnly))
                return;
            file.write(ImageFiles::bomb(format));
            file.close();
            QElapsedTimer clock;
            clock.start();
            const auto outcome = ImageDecoder::decode(file.fileName(), 256).outcome;
            const double ms = double(clock.nsecsElapsed()) / 1e6;
            // What a raw file holds is looked for by the tool then, which decodes no pixels.
            const auto refused =
                qstrcmp(format, "dng") == 0 ? DecodedImage::Outcome::needsTool : DecodedImage::Outcome::tooLarge;
            std::printf("bomb header, %-35s %8.2f ms  (at most 50)%s\n", format, ms,
                outcome == refused && ms <= 50 ? "" : "  MISSED");
        }
    }

    QTemporaryDir m_folder;
    QString m_word;
};

}  // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--decode")
        decodeAll(arguments.sliced(3), arguments.value(2).toInt());
    else if (arguments.value(1) == u"--embedded")
        embeddedAll(arguments.sliced(3));
    else
        Bench(arguments.value(1)).run();
    return 0;
}
