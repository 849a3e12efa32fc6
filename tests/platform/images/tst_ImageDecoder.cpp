// Every format that is promised, right way up and in the right colours; and what must never be decoded.
#include "platform/images/ImageDecoder.h"
#include "platform/images/gate/HeifHeader.h"
#include "tests/platform/images/ImageFiles.h"

#include <QBuffer>
#include <QColorSpace>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Quorbel;
using namespace Qt::StringLiterals;

using Outcome = DecodedImage::Outcome;

namespace {

struct Named {
    QByteArray name{};
    QByteArray bytes{};
};

// TIFFs of four inks as programs arrange them: TIFF's numbers of the compressions are in ImageFiles.h.
QList<Named> inkTiffs(QSize size, const QByteArray& inks, const QByteArray& icc = {})
{
    using Layout = ImageFiles::TiffLayout;
    const QList<std::pair<QByteArray, Layout>> layouts{
        { "stored", Layout{ .rowsPerStrip = 7 } },
        { "one strip by lzw", Layout{ .compression = 5, .differences = true } },
        { "packed", Layout{ .compression = 32773, .rowsPerStrip = 16 } },
        { "deflate", Layout{ .compression = 8, .differences = true, .rowsPerStrip = 16 } },
        { "tiles", Layout{ .tile = 48 } },
        { "tiles by deflate", Layout{ .compression = 8, .tile = 32, .bits = 16 } },
        { "planes", Layout{ .planes = true, .rowsPerStrip = 20 } },
        { "planes of tiles by lzw", Layout{ .compression = 5, .planes = true, .tile = 64 } },
        { "deep by lzw", Layout{ .compression = 5, .differences = true, .rowsPerStrip = 9, .bits = 16 } },
        { "deep the other way", Layout{ .rowsPerStrip = 30, .bits = 16, .bigEndian = true } },
        { "with a fifth sample", Layout{ .compression = 5, .rowsPerStrip = 30, .extra = 1 } },
        { "planes with a fifth", Layout{ .planes = true, .rowsPerStrip = 30, .extra = 1 } },
    };
    QList<Named> files;
    for (const auto& [name, layout] : layouts)
        files.append({ "cmyk " + name + ".tif", ImageFiles::cmykTiff(size, inks, icc, layout) });
    return files;
}

// One file of every format, 320 × 200 pixels in four quarters.
const QList<Named>& everyFile()
{
    const QImage image = ImageFiles::quarters({ 320, 200 });
    static const QList<Named> others{
        { "jpg", ImageFiles::written(image, "jpg") },
        { "progressive.jpg", ImageFiles::written(image, "jpg", 95, true) },
        { "png", ImageFiles::written(image, "png") },
        { "deep.png", ImageFiles::written(image.convertToFormat(QImage::Format_RGBX64), "png") },
        { "palette.png", ImageFiles::written(image.convertToFormat(QImage::Format_Indexed8), "png") },
        { "gif", ImageFiles::gif(image) },
        { "webp", ImageFiles::written(image, "webp") },
        { "tiff", ImageFiles::written(image, "tiff") },
        { "deep.tif", ImageFiles::written(image.convertToFormat(QImage::Format_RGBX64), "tiff") },
        { "cmyk.jpg", ImageFiles::cmykJpeg({ 320, 200 }, ImageFiles::inksOf(image)) },
        { "heic", ImageFiles::heif(image, false) },
        { "thumbnail.hif", ImageFiles::heif(image, false, { .thumbnail = 160 }) },
        { "avif", ImageFiles::heif(image, true) },
        { "dng", ImageFiles::dng(image, ImageFiles::written(image, "jpg")) },
        { "jxl", ImageFiles::jxl(image) },
        { "jp2", ImageFiles::jpeg2000(image, true) },
        { "j2k", ImageFiles::jpeg2000(image, false) },
        { "psd", ImageFiles::psd(image, 3, true) },
        { "raw.psd", ImageFiles::psd(image, 3, false) },
        { "deep.psd", ImageFiles::psd(image, 3, false, false, 16) },
        { "cmyk.psd", ImageFiles::psd(image, 4, true) },
        { "psb", ImageFiles::psd(image, 3, true, true) },
    };
    static const QList<Named> files = others + inkTiffs({ 320, 200 }, ImageFiles::inksOf(image));
    return files;
}

bool isNear(QRgb one, QRgb other, int tolerance)
{
    return qAbs(qRed(one) - qRed(other)) <= tolerance && qAbs(qGreen(one) - qGreen(other)) <= tolerance
        && qAbs(qBlue(one) - qBlue(other)) <= tolerance;
}

// The first quarter whose middle has another colour than it should; empty when all are right.
QString wrongQuarter(const QImage& image, const QImage& expected, int tolerance)
{
    for (const double x : { 0.25, 0.75 }) {
        for (const double y : { 0.25, 0.75 }) {
            const QRgb got = image.pixel(int(x * image.width()), int(y * image.height()));
            const QRgb want = expected.pixel(int(x * expected.width()), int(y * expected.height()));
            if (!isNear(got, want, tolerance))
                return u"at %1, %2: #%3, not #%4"_s.arg(x).arg(y).arg(got, 0, 16).arg(want, 0, 16);
        }
    }
    return {};
}

int magentaPixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            count += color.green() < 90 && color.red() > 180 && color.blue() > 180 ? 1 : 0;
        }
    return count;
}

// The megabytes that decoding this file, and its own thumbnail, adds at its highest, measured in a process of its own,
// and its outcome.
std::pair<Outcome, int> decodeApart(const QString& path)
{
    const auto peak = [](const char* field) {
        QFile status(u"/proc/self/status"_s);
        if (!status.open(QIODevice::ReadOnly))
            return 0;
        const QByteArray text = status.readAll();
        return text.mid(text.indexOf(field) + qsizetype(qstrlen(field))).trimmed().split(' ').first().toInt();
    };
    int ends[2];
    if (pipe(ends) != 0)
        return { Outcome::decoded, INT_MAX };
    const pid_t child = fork();
    if (child == 0) {
        QFile reset(u"/proc/self/clear_refs"_s);
        if (reset.open(QIODevice::WriteOnly))
            reset.write("5");  // forgets the parent's peak
        reset.close();
        const int before = peak("VmRSS:");
        ImageDecoder::embeddedThumbnail(path);
        const int outcome = int(ImageDecoder::decode(path, 256).outcome);
        const int report[2]{ outcome, (peak("VmHWM:") - before) / 1024 };
        const auto sent = write(ends[1], report, sizeof report);
        _exit(sent == sizeof report ? 0 : 1);
    }
    close(ends[1]);
    int report[2]{ 0, INT_MAX };
    const auto got = read(ends[0], report, sizeof report);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return got == sizeof report ? std::pair(Outcome(report[0]), report[1]) : std::pair(Outcome::decoded, INT_MAX);
}

}  // namespace

class tst_ImageDecoder : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(m_folder.isValid()); }

    void everyFormat_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("bytes");
        for (const auto& [name, bytes] : everyFile())
            QTest::newRow(name.constData()) << name << bytes;
    }
    void everyFormat()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, bytes);
        const QImage expected = ImageFiles::quarters({ 320, 200 });
        for (const int side : { 80, 160, 1400 }) {
            const DecodedImage got = ImageDecoder::decode(stored(bytes, name), side);
            QCOMPARE(got.outcome, Outcome::decoded);
            const int width = qMin(side, 320);
            QCOMPARE(got.image.size(), QSize(width, width * 5 / 8));
            QVERIFY(got.image.format() == QImage::Format_RGB32
                || got.image.format() == QImage::Format_ARGB32_Premultiplied);
            QCOMPARE(wrongQuarter(got.image, expected, 12), QString());
        }
        // The same bytes under an extension that lies.
        for (const char* other : { "wrong.jpg", "wrong.heic", "wrong.gpr", "none" }) {
            if (QByteArray(other) == "wrong.gpr" && (bytes.startsWith("II") || bytes.startsWith("MM")))
                continue;  // TIFF content under a raw extension is raw
            const DecodedImage got = ImageDecoder::decode(stored(bytes, other), 80);
            QCOMPARE(wrongQuarter(got.image, expected, 12), QString());
        }
    }

    // Cut off anywhere, a file gives what there is or nothing: it ends, and what it gives has the right size.
    void truncated_data() { everyFormat_data(); }
    void truncated()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, bytes);
        QList<qsizetype> lengths;
        for (qsizetype length = 1; length < qMin<qsizetype>(bytes.size(), 160); length += 7)
            lengths.append(length);
        for (int part = 1; part < 16; ++part)
            lengths.append(bytes.size() * part / 16);
        lengths.append(bytes.size() - 1);
        for (const qsizetype length : std::as_const(lengths)) {
            const DecodedImage got = ImageDecoder::decode(stored(bytes.first(length), name), 80);
            QCOMPARE(got.image.isNull(), got.outcome != Outcome::decoded);
            QVERIFY(got.image.isNull() || got.image.size() == QSize(80, 50));
            QVERIFY2(length > 24 || got.image.isNull(), "a picture out of a bare signature");
        }
    }

    void notAPicture_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<Outcome>("outcome");
        const QByteArray tiff = ImageFiles::written(ImageFiles::quarters({ 32, 20 }), "tiff");
        QTest::newRow("empty") << QByteArray("a.jpg") << QByteArray() << Outcome::damaged;
        QTest::newRow("text") << QByteArray("a.jpg") << QByteArray("hello, I am no picture") << Outcome::unsupported;
        QTest::newRow("raw that is none") << QByteArray("a.nef") << QByteArray("hello") << Outcome::needsTool;
        QTest::newRow("TIFF under a raw extension") << QByteArray("a.dng") << tiff << Outcome::needsTool;
        QTest::newRow("jpeg xr") << QByteArray("a.jxr") << QByteArray("II\xbc\x01" + QByteArray(60, '\0'))
                                 << Outcome::unsupported;
    }
    void notAPicture()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, bytes);
        QTEST(ImageDecoder::decode(stored(bytes, name), 80).outcome, "outcome");
    }

    void notAFile()
    {
        const QString folder = m_folder.filePath(u"folder.jpg"_s), pipe = m_folder.filePath(u"pipe.jpg"_s);
        QVERIFY(QDir().mkpath(folder));
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        for (const QString& path : { folder, pipe, m_folder.filePath(u"missing.jpg"_s) }) {
            QCOMPARE(ImageDecoder::decode(path, 80).outcome, Outcome::damaged);
            QVERIFY(ImageDecoder::embeddedThumbnail(path).isNull());
        }
    }

    void bombHeaderIsRefused_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<Outcome>("expected");
        for (const char* format :
            { "progressive jpg", "progressive jpg below the limit", "sequential jpg in several scans", "png", "gif",
                "webp", "tiff", "psd", "j2k", "j2k of many tiles", "jxl", "heic", "avif", "avif sequence" })
            QTest::newRow(format) << QByteArray(format) << Outcome::tooLarge;
        QTest::newRow("dng") << QByteArray("dng") << Outcome::needsTool;
        QTest::newRow("embedded thumbnail") << QByteArray("embedded thumbnail") << Outcome::decoded;
    }
    void bombHeaderIsRefused()
    {
        QFETCH(QByteArray, format);
        const auto [outcome, megabytes] = decodeApart(stored(ImageFiles::bomb(format), "bomb"));
        QTEST(outcome, "expected");
        QVERIFY2(megabytes < 50, qPrintable(QString::number(megabytes)));
    }

    void codedFrameIsReadFromTheDecodersRecord()
    {
        QByteArray bytes = ImageFiles::heif(ImageFiles::quarters({ 1000, 600 }), false);
        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        const QSize coded = largestCodedFrame(buffer);
        // Coding units of up to 64 pixels are filled up.
        QVERIFY(coded.width() >= 1000 && coded.width() < 1064 && coded.height() >= 600 && coded.height() < 664);
    }

    // A thumbnail that is large enough is all that is read: what is wrong with the photo itself does not matter then.
    void heifThumbnailStandsForThePhoto()
    {
        QByteArray bytes = ImageFiles::heif(ImageFiles::quarters({ 320, 200 }), false, { .thumbnail = 160 });
        bytes.replace(bytes.indexOf("mdat") + 4, 4, "\xff\xff\xff\xff");  // the length of the photo's first unit
        const QString path = stored(bytes, "a.heic");
        for (const int side : { 80, 160 }) {
            const QImage image = ImageDecoder::decode(path, side).image;
            QCOMPARE(image.size(), QSize(side, side * 5 / 8));
            QCOMPARE(wrongQuarter(image, ImageFiles::quarters({ 320, 200 }), 12), QString());
        }
        QCOMPARE(ImageDecoder::embeddedThumbnail(path).size(), QSize(160, 100));
        QCOMPARE(ImageDecoder::decode(path, 1400).outcome, Outcome::damaged);
    }

    void uprightAndManaged_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<int>("orientation");
        for (const char* format : { "jpg", "png", "webp", "tiff" })
            for (int orientation = 1; orientation <= 8; ++orientation)
                QTest::addRow("%s %d", format, orientation) << QByteArray(format) << orientation;
    }
    void uprightAndManaged()
    {
        QFETCH(QByteArray, format);
        QFETCH(int, orientation);
        const QColorSpace wide(QColorSpace::AdobeRgb);
        QImage image = ImageFiles::quarters({ 96, 64 });
        image.setColorSpace(wide);
        const QByteArray exif = ImageFiles::exifBlock(orientation);
        QByteArray bytes = ImageFiles::written(image, format.constData());
        if (format == "jpg")
            bytes = ImageFiles::withExif(bytes, exif);
        else if (format == "png")
            bytes = ImageFiles::pngWithChunk(bytes, "eXIf", exif);
        else if (format == "webp")
            bytes = ImageFiles::webpWithExif(bytes, exif);
        else
            bytes = ImageFiles::tiffTurned(bytes, orientation);
        const DecodedImage got = ImageDecoder::decode(stored(bytes, "a"), 48);

        QImage expected = image.convertedToColorSpace(QColorSpace::SRgb);
        // Row and column of the stored picture that are the top and the left of the upright one (EXIF 2.3, 4.6.4).
        static constexpr std::array<std::array<int, 4>, 8> turned{ { { 1, 0, 0, 1 }, { -1, 0, 0, 1 }, { -1, 0, 0, -1 },
            { 1, 0, 0, -1 }, { 0, 1, 1, 0 }, { 0, 1, -1, 0 }, { 0, -1, -1, 0 }, { 0, -1, 1, 0 } } };
        const auto& m = turned[size_t(orientation - 1)];
        expected = expected.transformed(QTransform(m[0], m[1], m[2], m[3], 0, 0));
        QCOMPARE(got.image.size(), expected.size().scaled(48, 48, Qt::KeepAspectRatio));
        QCOMPARE(wrongQuarter(got.image, expected, 6), QString());
    }

    void profileIsFollowed_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QImage image = ImageFiles::quarters({ 96, 64 });
        const QByteArray icc = QColorSpace(QColorSpace::AdobeRgb).iccProfile();
        QTest::newRow("heic") << ImageFiles::heif(image, false, { .icc = icc });
        QTest::newRow("avif") << ImageFiles::heif(image, true, { .icc = icc });
        QTest::newRow("thumbnail") << ImageFiles::heif(image, false, { .thumbnail = 64, .icc = icc });
        QTest::newRow("jxl") << ImageFiles::jxl(image, icc);
        QTest::newRow("jp2") << ImageFiles::jpeg2000(image, true, icc);
        QTest::newRow("psd") << ImageFiles::psd(image, 3, true, false, 8, icc);
    }
    void profileIsFollowed()
    {
        QFETCH(QByteArray, bytes);
        QImage expected = ImageFiles::quarters({ 96, 64 });
        expected.setColorSpace(QColorSpace::AdobeRgb);
        expected.convertToColorSpace(QColorSpace::SRgb);
        QCOMPARE(wrongQuarter(ImageDecoder::decode(stored(bytes, "a"), 48).image, expected, 14), QString());
    }

    void untaggedStaysAsItIs_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QImage gray(64, 48, QImage::Format_RGB32);
        gray.fill(qRgb(20, 20, 20));
        const QByteArray png = ImageFiles::written(gray, "png");
        QTest::newRow("png") << png;
        QTest::newRow("png with sRGB's gamma") << ImageFiles::pngWithChunk(png, "gAMA", QByteArray("\0\0\xb1\x8f", 4));
        QTest::newRow("deep png") << ImageFiles::written(gray.convertToFormat(QImage::Format_Grayscale16), "png");
        QTest::newRow("jpg") << ImageFiles::written(gray, "jpg", 100);
        QTest::newRow("gray jpg") << ImageFiles::written(gray.convertToFormat(QImage::Format_Grayscale8), "jpg", 100);
        QTest::newRow("palette png") << ImageFiles::written(gray.convertToFormat(QImage::Format_Indexed8), "png");
        QTest::newRow("gif") << ImageFiles::gif(gray);
        QTest::newRow("webp") << ImageFiles::written(gray, "webp", 100);
        QTest::newRow("tiff") << ImageFiles::written(gray, "tiff");
        QTest::newRow("psd") << ImageFiles::psd(gray, 3, true);
        QTest::newRow("heic") << ImageFiles::heif(gray, false);
        QTest::newRow("avif") << ImageFiles::heif(gray, true);
        QTest::newRow("jxl") << ImageFiles::jxl(gray);
        QTest::newRow("jp2") << ImageFiles::jpeg2000(gray, true);
        QTest::newRow("j2k") << ImageFiles::jpeg2000(gray, false);
        QTest::newRow("dng's preview") << ImageFiles::dng(gray, ImageFiles::written(gray, "jpg", 100));
    }
    void untaggedStaysAsItIs()
    {
        QFETCH(QByteArray, bytes);
        const QImage image = ImageDecoder::decode(stored(bytes, "a"), 32).image;
        QVERIFY(!image.isNull());
        QVERIFY2(isNear(image.pixel(16, 12), qRgb(20, 20, 20), 1), qPrintable(image.pixelColor(16, 12).name()));
    }

    void fourInks_data()
    {
        QTest::addColumn<QByteArray>("inks");
        QTest::addColumn<bool>("profile");
        QTest::addColumn<QColor>("color");
        QTest::newRow("cyan by the formula") << QByteArray("\xff\0\0\0", 4) << false << QColor(0, 255, 255);
        QTest::newRow("paper by the formula") << QByteArray("\0\0\0\0", 4) << false << QColor(255, 255, 255);
        QTest::newRow("black by the formula") << QByteArray("\0\0\0\xff", 4) << false << QColor(0, 0, 0);
        QTest::newRow("cyan by a profile") << QByteArray("\xff\0\0\0", 4) << true << QColor(119, 119, 119);
    }
    void fourInks()
    {
        QFETCH(QByteArray, inks);
        QFETCH(bool, profile);
        QFETCH(QColor, color);
        const QByteArray icc = profile ? ImageFiles::grayInkProfile() : QByteArray(), all = inks.repeated(64LL * 48);
        QList<Named> files = inkTiffs({ 64, 48 }, all, icc);
        files.append({ "cmyk.jpg", ImageFiles::cmykJpeg({ 64, 48 }, all, icc) });
        for (const auto& [name, bytes] : std::as_const(files)) {
            const QImage image = ImageDecoder::decode(stored(bytes, "a"), 32).image;
            QCOMPARE(image.size(), QSize(32, 24));
            QVERIFY2(isNear(image.pixel(16, 12), color.rgb(), 4),
                qPrintable(QString::fromLatin1(name) + image.pixelColor(16, 12).name()));
        }
    }

    // What the directory claims, and the pixels do not hold: it costs neither memory nor the process.
    void absurdInks_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray inks("\xff\0\0\0", 4);
        const auto row = [&](const char* name, quint16 tag, quint32 value, const ImageFiles::TiffLayout& layout) {
            const QByteArray tiff = ImageFiles::cmykTiff({ 640, 480 }, inks.repeated(640LL * 480), {}, layout);
            QTest::newRow(name) << ImageFiles::tiffClaiming(tiff, tag, value);
        };
        const ImageFiles::TiffLayout strip{ .compression = 5 }, tiles{ .compression = 8, .tile = 64 };
        row("a strip of 4 GB", 279, 0xFFFFFFFF, strip);
        row("a stored strip of 4 GB", 279, 0xFFFFFFFF, {});
        row("a strip behind the end", 273, 0xFFFFFF00, strip);
        row("no rows in a strip", 278, 0, strip);
        row("strips that are not there", 257, 20'000, { .compression = 5, .rowsPerStrip = 1 });
        row("rows of 30,000 pixels", 256, 30'000, strip);
        row("tiles of 400 MB", 322, 1'600'000, tiles);
        row("tiles of 16 GB", 323, 64'000'000, tiles);
        row("tiles without a width", 322, 0, tiles);
        row("65,535 samples", 277, 65'535, strip);
        row("no samples", 277, 0, strip);
        row("a compression that is none", 259, 4711, strip);
    }
    void absurdInks()
    {
        QFETCH(QByteArray, bytes);
        QElapsedTimer clock;
        clock.start();
        const auto [outcome, megabytes] = decodeApart(stored(bytes, "a.tif"));
        QVERIFY2(outcome == Outcome::decoded || outcome == Outcome::damaged, qPrintable(QString::number(int(outcome))));
        QVERIFY2(megabytes < 50, qPrintable(QString::number(megabytes)));
        QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
    }

    // Each byte of the directory and of the first pixels wrong once.
    void corruptInks_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        for (const auto& [name, bytes] : inkTiffs({ 96, 64 }, ImageFiles::inksOf(ImageFiles::quarters({ 96, 64 }))))
            QTest::newRow(name.constData()) << bytes;
    }
    void corruptInks()
    {
        QFETCH(QByteArray, bytes);
        for (qsizetype at = 8; at < qMin<qsizetype>(bytes.size(), 400); ++at) {
            for (const int flip : { 0x01, 0x80, 0xFF }) {
                QByteArray wrong = bytes;
                wrong[at] = char(wrong[at] ^ flip);
                const DecodedImage got = ImageDecoder::decode(wrong, 32);
                QCOMPARE(got.image.isNull(), got.outcome != Outcome::decoded);
            }
        }
    }

    void transparencyIsKept()
    {
        QImage image(64, 48, QImage::Format_ARGB32);
        image.fill(QColor(200, 0, 0, 128));
        for (const QByteArray& bytes :
            { ImageFiles::written(image, "png"), ImageFiles::written(image, "webp"), ImageFiles::jxl(image) }) {
            const QImage got = ImageDecoder::decode(stored(bytes, "a"), 32).image;
            QCOMPARE(got.format(), QImage::Format_ARGB32_Premultiplied);
            const QColor middle = got.pixelColor(16, 12);
            QVERIFY(qAbs(middle.alpha() - 128) <= 2 && qAbs(middle.red() - 200) <= 3 && middle.green() <= 3);
        }
    }

    // Cameras put a 3:2 photo between black bars into a 4:3 thumbnail, and editors leave old ones behind.
    void embeddedThumbnailIsCutToThePhotosShape()
    {
        QImage thumbnail(160, 120, QImage::Format_RGB32);
        thumbnail.fill(Qt::black);
        QPainter(&thumbnail).fillRect(0, 7, 160, 106, QColor(250, 200, 0));
        const QByteArray exif = ImageFiles::exifBlock(6, ImageFiles::written(thumbnail, "jpg"));
        const QString path =
            stored(ImageFiles::withExif(ImageFiles::written(ImageFiles::quarters({ 600, 400 }), "jpg"), exif), "a.jpg");
        const QImage first = ImageDecoder::embeddedThumbnail(path);
        QVERIFY(qAbs(first.width() - 106) <= 1 && first.height() == 160);
        for (const QPoint corner : { QPoint(0, 0), QPoint(first.width() - 1, 159) })
            QVERIFY2(isNear(first.pixel(corner), qRgb(250, 200, 0), 90), qPrintable(first.pixelColor(corner).name()));
        const QImage photo = ImageDecoder::decode(path, 120).image;
        QCOMPARE(wrongQuarter(photo, ImageFiles::quarters({ 600, 400 }).transformed(QTransform().rotate(90)), 12),
            QString());
    }

    // How luma and chroma are meant stands in the container or, when that is silent, in the stream.
    void heifLumaAndChroma_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        for (const int matrix : { 1, 6, 9, 7 })  // BT.709, BT.601, BT.2020, and one that is left to the library
            for (const bool full : { true, false }) {
                const QImage image = ImageFiles::quarters({ 96, 64 });
                QByteArray bytes = ImageFiles::heif(image, false, { .matrix = matrix, .fullRange = full });
                QTest::addRow("matrix %d, %s", matrix, full ? "full" : "studio") << bytes;
                bytes.replace("colrnclx", "freenclx");
                QTest::addRow("matrix %d, %s, in the stream", matrix, full ? "full" : "studio") << bytes;
            }
    }
    void heifLumaAndChroma()
    {
        QFETCH(QByteArray, bytes);
        const QImage image = ImageDecoder::decode(stored(bytes, "a.heic"), 96).image;
        QCOMPARE(wrongQuarter(image, ImageFiles::quarters({ 96, 64 }), 4), QString());
    }

    void heifContainerGoesBeforeTheStream()
    {
        QImage gray(96, 64, QImage::Format_RGB32);
        gray.fill(qRgb(200, 200, 200));
        QByteArray bytes = ImageFiles::heif(gray, false, { .matrix = 1, .fullRange = true });
        const qsizetype range = bytes.indexOf("colrnclx") + 14;
        QCOMPARE(uchar(bytes.at(range)), 0x80);
        bytes[range] = 0;  // studio range now; the stream still says full
        const QImage image = ImageDecoder::decode(stored(bytes, "a.heic"), 96).image;
        const QRgb stretched = qRgb(214, 214, 214);  // (200 - 16) * 255 / 219
        QVERIFY2(isNear(image.pixel(48, 32), stretched, 3), qPrintable(image.pixelColor(48, 32).name()));
    }

    // A HEIC's thumbnail stands for the photo, so it must not be one with bars.
    void heifThumbnailOfAnotherShapeIsNotThePhoto()
    {
        QImage barred(320, 240, QImage::Format_RGB32);
        barred.fill(Qt::black);
        const QByteArray bytes =
            ImageFiles::heif(ImageFiles::quarters({ 320, 200 }), false, { .thumbnail = 160, .thumbnailOf = barred });
        const QImage photo = ImageDecoder::decode(stored(bytes, "a.heic"), 80).image;
        QCOMPARE(photo.size(), QSize(80, 50));
        QCOMPARE(wrongQuarter(photo, ImageFiles::quarters({ 320, 200 }), 12), QString());
    }

    // Cameras fill the codec's blocks, and declare what of it is the picture. Held against what the library makes of
    // the same file without the bars, at eight bits: deep pictures it cannot mirror.
    void heifPaddingIsCutOff_data()
    {
        QTest::addColumn<ImageFiles::HeifExtras>("extras");
        QTest::addColumn<QList<Named>>("steps");
        const auto turned = [](char quarters) { return Named{ "irot", QByteArray(1, quarters) }; };
        const auto mirrored = [](char axis) { return Named{ "imir", QByteArray(1, axis) }; };
        const QList<std::pair<const char*, QList<Named>>> ways{
            { "as it is", {} },
            { "turned", { turned(1) } },
            { "upside down", { turned(2) } },
            { "turned the other way", { turned(3) } },
            { "mirrored", { mirrored(0) } },
            { "mirrored the other way", { mirrored(1) } },
            { "turned and mirrored", { turned(1), mirrored(0) } },
            { "mirrored and turned", { mirrored(1), turned(3) } },
        };
        for (const auto& [name, steps] : ways) {
            QTest::addRow("photo %s", name) << ImageFiles::HeifExtras{} << steps;
            QTest::addRow("thumbnail %s", name) << ImageFiles::HeifExtras{ .thumbnail = 112 } << steps;
            QTest::addRow("deep thumbnail %s", name) << ImageFiles::HeifExtras{ .thumbnail = 112, .bits = 10 } << steps;
        }
    }
    void heifPaddingIsCutOff()
    {
        QFETCH(ImageFiles::HeifExtras, extras);
        QFETCH(QList<Named>, steps);
        const QImage picture = ImageFiles::quarters({ 96, 64 });
        QImage padded(112, 88, QImage::Format_RGB32);
        padded.fill(Qt::magenta);
        QPainter(&padded).drawImage(0, 0, picture);
        const auto withSteps = [&](QByteArray file, int items) {
            for (int item = 1; item <= items; ++item)
                for (const auto& [type, content] : steps)
                    file = ImageFiles::heifWithProperty(file, item, type, content);
            return file;
        };
        const QByteArray plain = withSteps(ImageFiles::heif(picture, false), 1);
        const QImage expected = ImageDecoder::decode(stored(plain, "plain.heic"), 96).image;
        extras.thumbnailOf = padded.scaled(padded.size() * 2);  // only what is larger than a thumbnail gets one
        const bool isThumbnail = extras.thumbnail > 0;
        QByteArray file = ImageFiles::heif(isThumbnail ? ImageFiles::quarters({ 480, 320 }) : padded, false, extras);
        file = withSteps(ImageFiles::heifDeclaring(file, isThumbnail ? 1 : 0, { 96, 64 }), isThumbnail ? 2 : 1);
        const QImage image = ImageDecoder::decode(stored(file, "a.hif"), 96).image;
        QCOMPARE(image.size(), expected.size());
        QCOMPARE(wrongQuarter(image, expected, 12), QString());
        QCOMPARE(magentaPixels(image), 0);
        if (isThumbnail)
            QCOMPARE(magentaPixels(ImageDecoder::embeddedThumbnail(stored(file, "a.hif"))), 0);
    }

    // A part that is cut out lies around the middle of what is declared, not of what is coded.
    void heifPartIsCutOutOfTheDeclared()
    {
        QImage padded(112, 88, QImage::Format_RGB32);
        padded.fill(Qt::magenta);
        QPainter(&padded).drawImage(0, 0, ImageFiles::quarters({ 96, 64 }));
        const auto fraction = [](int above, int below) {
            QByteArray bytes(8, '\0');
            qToBigEndian(above, bytes.data());
            qToBigEndian(below, bytes.data() + 4);
            return bytes;
        };
        const QByteArray file = ImageFiles::heifDeclaring(ImageFiles::heif(padded, false), 0, { 96, 64 });
        const QByteArray cut = fraction(160, 2) + fraction(48, 1) + fraction(0, 1) + fraction(-8, 2);
        const QImage image =
            ImageDecoder::decode(stored(ImageFiles::heifWithProperty(file, 1, "clap", cut), "a.hif"), 96).image;
        QCOMPARE(image.size(), QSize(80, 48));
        QCOMPARE(magentaPixels(image), 0);
        // The picture's middle, at 48, 32, is now at 40, 28.
        QVERIFY2(isNear(image.pixel(33, 21), qRgb(220, 20, 20), 30), qPrintable(image.pixelColor(33, 21).name()));
        QVERIFY2(isNear(image.pixel(47, 35), qRgb(255, 255, 255), 30), qPrintable(image.pixelColor(47, 35).name()));
        for (const QByteArray& absurd : { fraction(0, 0).repeated(4), fraction(-5, 1).repeated(4),
                 fraction(INT_MAX, 1).repeated(4), fraction(INT_MIN, -1).repeated(4), QByteArray("\0", 1) }) {
            const QByteArray bytes = ImageFiles::heifWithProperty(file, 1, "clap", absurd);
            const DecodedImage got = ImageDecoder::decode(stored(bytes, "a.hif"), 96);
            QCOMPARE(got.image.isNull(), got.outcome != Outcome::decoded);
        }
    }

    // Phones let gain maps, metadata and thumbnails belong to two pictures of one file; libheif 1.15 refuses it for
    // that.
    void heifReferencesToSeveral_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("hasThumbnail");
        const auto file = [](bool metadata) {
            return ImageFiles::heif(
                ImageFiles::quarters({ 320, 200 }), false, { .thumbnail = 160, .metadata = metadata });
        };
        const QByteArray gainMap = QByteArray(4, '\0') + "urn:com:example:aux:gainmap" + '\0';
        const auto auxiliary = [&](const QByteArray& bytes) {
            return ImageFiles::heifReferring(
                ImageFiles::heifWithProperty(bytes, 2, "auxC", gainMap), "thmb", 9, "auxl");
        };
        QTest::newRow("metadata") << ImageFiles::heifReferring(file(true), "cdsc", 2) << true;
        QTest::newRow("metadata of what is not there") << ImageFiles::heifReferring(file(true), "cdsc", 99) << true;
        QTest::newRow("auxiliary image") << auxiliary(file(false)) << false;
        QTest::newRow("auxiliary image and metadata")
            << ImageFiles::heifReferring(auxiliary(file(true)), "cdsc", 9) << false;
        QTest::newRow("thumbnail") << ImageFiles::heifReferring(file(true), "thmb", 9) << true;
        QTest::newRow("thumbnail of three")
            << ImageFiles::heifReferring(ImageFiles::heifReferring(file(true), "thmb", 9), "thmb", 8) << true;
        QTest::newRow("thumbnail and no room") << ImageFiles::heifReferring(file(false), "thmb", 9) << false;
    }
    void heifReferencesToSeveral()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, hasThumbnail);
        const QString path = stored(bytes, "a.heic");
        for (const int side : { 80, 320 }) {
            const DecodedImage got = ImageDecoder::decode(path, side);
            QCOMPARE(got.outcome, Outcome::decoded);
            QCOMPARE(got.image.size(), QSize(side, side * 5 / 8));
            QCOMPARE(wrongQuarter(got.image, ImageFiles::quarters({ 320, 200 }), 12), QString());
        }
        QCOMPARE(!ImageDecoder::embeddedThumbnail(path).isNull(), hasThumbnail);
    }

    // A photo beyond what may be held has its thumbnail, at next to no cost.
    void heifBeyondTheLimitHasItsThumbnail_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QSize large(17888, 11180);
        const QByteArray file = ImageFiles::heif(ImageFiles::quarters({ 320, 200 }), false, { .thumbnail = 160 });
        QTest::newRow("put together") << ImageFiles::heifDeclaring(file, 0, large);
        QTest::newRow("in one frame") << ImageFiles::heifCoding(ImageFiles::heifDeclaring(file, 0, large), large);
    }
    void heifBeyondTheLimitHasItsThumbnail()
    {
        QFETCH(QByteArray, bytes);
        const QString path = stored(bytes, "a.heic");
        QCOMPARE(wrongQuarter(ImageDecoder::decode(path, 90).image, ImageFiles::quarters({ 320, 200 }), 12), QString());
        QCOMPARE(ImageDecoder::embeddedThumbnail(path).size(), QSize(160, 100));
        QCOMPARE(ImageDecoder::decode(path, 1400).outcome, Outcome::tooLarge);
        QVERIFY(decodeApart(path).second < 50);
    }

    // The same where it is the thumbnail that a decoder would need gigabytes for.
    void heifThumbnailBeyondTheLimitIsNotDecoded()
    {
        QByteArray file = ImageFiles::heif(ImageFiles::quarters({ 320, 200 }), false, { .thumbnail = 160 });
        // The first record becomes the thumbnail's too.
        const qsizetype record = file.indexOf("hvcC");
        const QByteArray second =
            ImageFiles::heifCoding(file.replace(file.indexOf("hvcC", record + 4), 4, "hvcX"), { 60000, 60000 });
        file = ImageFiles::heifWithProperty(second, 2, "hvcC", second.mid(second.indexOf("hvcC") + 4, 200));
        QVERIFY(ImageDecoder::embeddedThumbnail(stored(file, "a.heic")).isNull());
        const auto [outcome, megabytes] = decodeApart(stored(file, "a.heic"));
        QCOMPARE(outcome, Outcome::tooLarge);
        QVERIFY2(megabytes < 50, qPrintable(QString::number(megabytes)));
    }

    // Each byte of the tables wrong once.
    void corruptHeifTables()
    {
        const QByteArray gainMap = QByteArray(4, '\0') + "urn:com:example:aux:gainmap" + '\0';
        QByteArray bytes =
            ImageFiles::heif(ImageFiles::quarters({ 64, 40 }), false, { .thumbnail = 32, .metadata = true });
        bytes = ImageFiles::heifWithProperty(bytes, 1, "irot", QByteArray(1, 1));
        bytes = ImageFiles::heifWithProperty(bytes, 2, "clap", QByteArray("\0\0\0\1", 4).repeated(8));
        bytes = ImageFiles::heifReferring(ImageFiles::heifReferring(bytes, "thmb", 9), "cdsc", 2);
        for (qsizetype at = bytes.indexOf("meta") - 4; at < bytes.indexOf("mdat"); ++at) {
            for (const int flip : { 0x01, 0xFF }) {
                QByteArray wrong = bytes;
                wrong[at] = char(wrong[at] ^ flip);
                const DecodedImage got = ImageDecoder::decode(wrong, 48);
                QCOMPARE(got.image.isNull(), got.outcome != Outcome::decoded);
            }
        }
    }

    // Some programs leave bytes between the segments; every decoder looks for the next marker, and so must the gate.
    void strayBytesInJpegs_data()
    {
        QTest::addColumn<QByteArray>("stray");
        QTest::newRow("one") << QByteArray(1, '\0');
        QTest::newRow("a text") << QByteArray("left over by somebody");
        QTest::newRow("stuffed zeros") << QByteArray("\xff\0\xff\xff\0\x12", 6);
        QTest::newRow("fill bytes") << QByteArray(7, '\xff');
        QTest::newRow("across a block") << QByteArray(4096 - 20, 'x');
        QTest::newRow("many") << QByteArray(100'000, '\0') + QByteArray("\xff\0", 2);
    }
    void strayBytesInJpegs()
    {
        QFETCH(QByteArray, stray);
        const QByteArray plain = ImageFiles::withExif(
            ImageFiles::written(ImageFiles::quarters({ 320, 200 }), "jpg"), ImageFiles::exifBlock(3));
        // The starts of all segments, up to the pixels.
        for (qsizetype at = 2; quint8(plain[at + 1]) != 0xDA;
             at += 2 + qFromBigEndian<quint16>(plain.constData() + at + 2)) {
            QByteArray bytes = plain;
            const DecodedImage got = ImageDecoder::decode(stored(bytes.insert(at, stray), "a.jpg"), 80);
            QCOMPARE(got.outcome, Outcome::decoded);
            QCOMPARE(wrongQuarter(got.image, ImageFiles::quarters({ 320, 200 }).mirrored(true, true), 12), QString());
        }
        for (const char* format : { "progressive jpg", "sequential jpg in several scans" }) {
            QByteArray bomb = ImageFiles::bomb(format);
            const auto [outcome, megabytes] = decodeApart(stored(bomb.insert(20, stray), "bomb"));
            QCOMPARE(outcome, Outcome::tooLarge);
            QVERIFY2(megabytes < 50, qPrintable(QString::number(megabytes)));
        }
    }

    void rawWithoutAPreviewIsDeveloped()
    {
        const QImage image = ImageFiles::quarters({ 320, 200 });
        const QImage developed = ImageDecoder::decode(stored(ImageFiles::dng(image, {}), "a.dng"), 80).image;
        QCOMPARE(developed.size(), QSize(80, 50));
        const QRgb red = developed.pixel(20, 12), green = developed.pixel(60, 12), blue = developed.pixel(20, 37);
        QVERIFY(qRed(red) > 2 * qGreen(red) && qGreen(green) > 2 * qRed(green) && qBlue(blue) > 2 * qRed(blue));
    }

    // For a close look: all pixels, or as many as are allowed; of a raw file its preview, and what that is a preview
    // of.
    void wholePictures()
    {
        constexpr qint64 enough = 100'000'000;
        for (const auto& [name, bytes] : everyFile()) {
            const QString path = stored(bytes, name);
            const DecodedImage whole = ImageDecoder::decodeWhole(path, enough);
            QCOMPARE(whole.image, ImageDecoder::decode(path, 10'000).image);
            QCOMPARE(whole.isPreview, name == "dng");
            QVERIFY(whole.photo.isEmpty() || whole.isPreview);
            QVERIFY(!whole.isIncomplete);
        }
        const QString turned =
            stored(ImageFiles::withExif(
                       ImageFiles::written(ImageFiles::quarters({ 320, 200 }), "jpg"), ImageFiles::exifBlock(6)),
                "turned.jpg");
        const DecodedImage reduced = ImageDecoder::decodeWhole(turned, 16'000);
        QCOMPARE(reduced.image.size(), QSize(100, 160));
        QCOMPARE(reduced.photo, QSize(200, 320));
        // What is cut off is shown as far as it goes, and known to be no more than that.
        for (const QByteArray& bytes : { ImageFiles::written(ImageFiles::quarters({ 320, 200 }), "jpg"),
                 ImageFiles::written(ImageFiles::quarters({ 320, 200 }), "jpg", 95, true),
                 ImageFiles::cmykJpeg({ 320, 200 }, ImageFiles::inksOf(ImageFiles::quarters({ 320, 200 }))) }) {
            const DecodedImage cut =
                ImageDecoder::decodeWhole(stored(bytes.chopped(bytes.size() / 8), "cut.jpg"), enough);
            QCOMPARE(cut.image.size(), QSize(320, 200));
            QVERIFY(cut.isIncomplete);
            QVERIFY(qRed(cut.image.pixel(40, 20)) > 150 && qGreen(cut.image.pixel(40, 20)) < 100);
        }
        const QByteArray preview = ImageFiles::written(ImageFiles::quarters({ 400, 250 }), "jpg");
        const DecodedImage raw = ImageDecoder::decodeWhole(
            stored(ImageFiles::dng(ImageFiles::quarters({ 640, 400 }), preview), "whole.dng"), enough);
        QCOMPARE(raw.image.size(), QSize(400, 250));
        QVERIFY(raw.isPreview);
        QCOMPARE(raw.photo, QSize(640, 400));
    }

    void cancelledBeforeItBegins()
    {
        std::stop_source stop;
        stop.request_stop();
        for (const auto& [name, bytes] : everyFile()) {
            const DecodedImage got = ImageDecoder::decode(stored(bytes, name), 80, stop.get_token());
            QCOMPARE(got.outcome, Outcome::cancelled);
            QVERIFY(got.image.isNull());
        }
    }

    void realPhotos_data()
    {
        QTest::addColumn<QString>("path");
        const QString root = qEnvironmentVariable("QUORBEL_TEST_PHOTOS");
        for (QDirIterator it(root, QDir::Files, QDirIterator::Subdirectories); !root.isEmpty() && it.hasNext();) {
            const QString path = it.next();
            if (path.contains(u"/valid/"_s) || path.contains(u"/malformed/"_s))
                QTest::newRow(qPrintable(QFileInfo(path).dir().dirName() + u'/' + it.fileName())) << path;
        }
        if (root.isEmpty())
            QTest::newRow("none") << QString();
    }
    void realPhotos()
    {
        QFETCH(QString, path);
        if (path.isEmpty())
            QSKIP("QUORBEL_TEST_PHOTOS names no folder");
        const DecodedImage got = ImageDecoder::decode(path, 90);
        QCOMPARE(got.image.isNull(), got.outcome != Outcome::decoded);
        QVERIFY(qMax(got.image.width(), got.image.height()) <= 90);
        ImageDecoder::embeddedThumbnail(path);
        // What the valid ones cannot be: cut-off PNGs and a JP2 whose boxes are misspelt are in there on purpose.
        static const QStringList undecodable{ u"exif.png"_s, u"photo_52_header.png"_s, u"expected_to_read.jp2"_s };
        static const QStringList unread{ u"jxr"_s, u"tsv"_s, u"exv"_s };
        const QFileInfo info(path);
        if (path.contains(u"/valid/"_s) && !undecodable.contains(info.fileName()) && !unread.contains(info.suffix()))
            QVERIFY(got.outcome == Outcome::decoded || got.outcome == Outcome::needsTool);
    }

private:
    QString stored(const QByteArray& bytes, const QByteArray& name)
    {
        const QString path = m_folder.filePath(QString::fromLatin1(name));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_ImageDecoder)
#include "tst_ImageDecoder.moc"
