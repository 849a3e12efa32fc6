#include "platform/images/gate/HeaderGate.h"

#include "platform/images/formats/TiffReader.h"

#include <QtEndian>

#include <cmath>

namespace Quorbel {

namespace {

constexpr quint16 orientationTag = 274;

quint16 big16(const QByteArray& bytes, qsizetype at)
{
    return qFromBigEndian<quint16>(bytes.constData() + at);
}
quint32 big32(const QByteArray& bytes, qsizetype at)
{
    return qFromBigEndian<quint32>(bytes.constData() + at);
}
quint32 little32(const QByteArray& bytes, qsizetype at)
{
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}
int little24(const QByteArray& bytes, qsizetype at)
{
    return quint8(bytes[at]) | quint8(bytes[at + 1]) << 8 | quint8(bytes[at + 2]) << 16;
}

void readOrientation(QIODevice& device, ImageHeader& header)
{
    if (header.exifAt < 0)
        return;
    const TiffReader tiff(device, header.exifAt);
    const auto value = tiff.directory(tiff.firstDirectory()).number(orientationTag).value_or(0);
    header.hasOrientation = value >= 1 && value <= 8;
    header.orientation = header.hasOrientation ? int(value) : 1;
}

bool isFrameMarker(int marker)
{
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Only a sequential JPEG whose first scan carries every channel streams; libjpeg buffers all others whole.
bool isSequentialFrame(int marker)
{
    return marker == 0xC0 || marker == 0xC1 || marker == 0xC9;
}

// Where the next marker lies, behind whatever does not belong there; fill bytes and stuffed zeros are no markers. Just
// as libjpeg looks for it, so that both see the same header. -1: none before `end`.
qint64 nextMarker(QIODevice& device, qint64 at, qint64 end)
{
    constexpr qint64 step = 4096;
    while (at < end && device.seek(at)) {
        const QByteArray bytes = device.read(step);
        if (bytes.size() < 2)
            break;
        for (qsizetype i = 0; i + 1 < bytes.size(); ++i)
            if (quint8(bytes[i]) == 0xFF && quint8(bytes[i + 1]) != 0xFF && bytes[i + 1] != 0)
                return at + i;
        at += bytes.size() - 1;
    }
    return -1;
}

// The first bytes of the segment at `at`, which moves on over stray bytes; too few where there is none.
QByteArray readSegmentStart(QIODevice& device, qint64& at, qint64& strayBytes)
{
    constexpr qint64 longest = 18;  // as much as anybody looks at
    const QByteArray start = device.seek(at) ? device.read(longest) : QByteArray();
    if (start.size() >= 2 && quint8(start[0]) == 0xFF && quint8(start[1]) != 0xFF && start[1] != 0)
        return start;
    const qint64 found = start.isEmpty() ? -1 : nextMarker(device, at, at + strayBytes);
    if (found < 0 || !device.seek(found))
        return {};
    strayBytes -= found - at;
    at = found;
    return device.read(longest);
}

std::optional<ImageHeader> readJpeg(QIODevice& device)
{
    constexpr int maxSegments = 4096;  // an embedded profile takes up to 255, extended XMP some hundred
    ImageHeader header;
    qint64 at = 2, strayBytes = 4LL * 1024 * 1024;  // as many are skipped, all in all
    for (int i = 0; i < maxSegments; ++i) {
        const QByteArray start = readSegmentStart(device, at, strayBytes);
        if (start.size() < 4)
            return std::nullopt;
        const int marker = quint8(start[1]);
        if (marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7)) {
            at += 2;  // markers without a length
            continue;
        }
        if (marker == 0xE1 && header.exifAt < 0 && start.sliced(4).startsWith(QByteArrayView("Exif\0", 5)))
            header.exifAt = at + 10;
        if (isFrameMarker(marker) && start.size() >= 10) {
            header.size = QSize(big16(start, 7), big16(start, 5));
            header.components = quint8(start[9]);
            header.wholeFrame = !isSequentialFrame(marker);
        }
        if (marker == 0xDA) {
            header.wholeFrame = header.wholeFrame || (start.size() > 4 && quint8(start[4]) < header.components);
            break;
        }
        if (marker == 0xD9)
            break;
        at += 2 + qMax<int>(2, big16(start, 2));
    }
    if (header.size.isEmpty())
        return std::nullopt;
    readOrientation(device, header);
    return header;
}

std::optional<ImageHeader> readPng(QIODevice& device)
{
    constexpr int maxChunks = 2000;
    constexpr double sRGBGamma = 1 / 2.2;
    device.seek(0);
    const QByteArray start = device.read(33);
    if (start.size() < 33 || start.sliced(12, 4) != "IHDR")
        return std::nullopt;
    ImageHeader header;
    header.size = QSize(int(qMin<quint32>(big32(start, 16), INT_MAX)), int(qMin<quint32>(big32(start, 20), INT_MAX)));
    const int depth = quint8(start[24]), colorType = quint8(start[25]), interlace = quint8(start[28]);
    const bool trueColor = colorType == 2 || colorType == 6;
    // The reader can scale rows while they stream, but holding an ordinary frame and scaling it at once is cheaper.
    constexpr qint64 comfortable = 40'000'000;
    header.wholeFrame =
        interlace != 0 || !trueColor || depth != 8 || qint64(header.size.width()) * header.size.height() <= comfortable;
    bool tagged = false, pixelsBegun = false;
    qint64 at = 33;
    for (int i = 0; i < maxChunks && (!pixelsBegun || header.exifAt < 0); ++i) {
        device.seek(at);
        const QByteArray chunk = device.read(12);
        if (chunk.size() < 12)
            break;
        const QByteArray name = chunk.sliced(4, 4);
        if (name == "gAMA")
            tagged = tagged || std::abs(big32(chunk, 8) / 1e5 - sRGBGamma) > 0.05 * sRGBGamma;
        else if (name == "iCCP")
            tagged = true;
        else if (name == "eXIf")
            header.exifAt = at + 8;
        else if (name == "IDAT")
            pixelsBegun = true;  // a profile stands before the pixels, EXIF may follow them
        else if (name == "IEND")
            break;
        at += 12 + qint64(big32(chunk, 0));
    }
    header.untagged = !tagged;
    readOrientation(device, header);
    return header;
}

std::optional<ImageHeader> readGif(QIODevice& device)
{
    device.seek(0);
    const QByteArray start = device.read(10);
    if (start.size() < 10)
        return std::nullopt;
    ImageHeader header;
    header.size =
        QSize(qFromLittleEndian<quint16>(start.constData() + 6), qFromLittleEndian<quint16>(start.constData() + 8));
    return header;
}

// The EXIF chunk of a WebP file stands after the pixels; the chunks are few.
void findWebpExif(QIODevice& device, ImageHeader& header)
{
    constexpr int maxChunks = 64;  // an animation's frames come before the EXIF chunk; longer ones stay unturned
    qint64 at = 12;
    for (int i = 0; i < maxChunks; ++i) {
        device.seek(at);
        const QByteArray chunk = device.read(14);
        if (chunk.size() < 8)
            return;
        if (chunk.startsWith("EXIF")) {
            header.exifAt = at + 8 + (chunk.sliced(8).startsWith("Exif") ? 6 : 0);
            readOrientation(device, header);
            return;
        }
        const qint64 length = little32(chunk, 4);
        at += 8 + length + (length & 1);
    }
}

std::optional<ImageHeader> readWebp(QIODevice& device)
{
    device.seek(0);
    const QByteArray start = device.read(30);
    if (start.size() < 30)
        return std::nullopt;
    const QByteArray kind = start.sliced(12, 4);
    ImageHeader header;
    if (kind == "VP8X") {
        header.size = QSize(1 + little24(start, 24), 1 + little24(start, 27));
        findWebpExif(device, header);
    } else if (kind == "VP8L") {
        const quint32 bits = little32(start, 21);
        header.size = QSize(1 + int(bits & 0x3FFF), 1 + int(bits >> 14 & 0x3FFF));
    } else if (kind == "VP8 ") {
        header.size = QSize(little32(start, 26) & 0x3FFF, little32(start, 26) >> 16 & 0x3FFF);
    } else {
        return std::nullopt;
    }
    return header;
}

std::optional<ImageHeader> readTiff(QIODevice& device)
{
    constexpr quint16 widthTag = 256, heightTag = 257, samplesTag = 277;
    const TiffReader tiff(device);
    const TiffDirectory first = tiff.directory(tiff.firstDirectory());
    const auto width = first.number(widthTag), height = first.number(heightTag);
    if (!width || !height)
        return std::nullopt;
    ImageHeader header;
    header.size = QSize(int(qMin<quint32>(*width, INT_MAX)), int(qMin<quint32>(*height, INT_MAX)));
    header.components = int(first.number(samplesTag).value_or(1));
    header.exifAt = 0;
    readOrientation(device, header);
    return header;
}

}  // namespace

bool HeaderGate::allows(QSize size, bool wholeFrame)
{
    const qint64 pixels = qint64(size.width()) * size.height();
    return !size.isEmpty() && pixels <= (wholeFrame ? maxWholePixels : maxStreamedPixels);
}

bool HeaderGate::allows(const ImageHeader& header, qint64 fileBytes)
{
    // A blank JPEG needs one bit for each block of 64 pixels; a quarter of that leaves room for cut-off files. The
    // small ones are left to the decoder, which shows what there is.
    constexpr qint64 mostPixelsInAByte = 2048, alwaysPlausible = 16'000'000;
    const qint64 pixels = qint64(header.size.width()) * header.size.height();
    const bool plausible = pixels <= alwaysPlausible || pixels / mostPixelsInAByte <= fileBytes;
    return allows(header.size, header.wholeFrame) && (plausible || !header.wholeFrame);
}

std::optional<ImageHeader> HeaderGate::read(QIODevice& device, ImageFormat format)
{
    std::optional<ImageHeader> header;
    switch (format) {
    case ImageFormat::jpeg:
        header = readJpeg(device);
        break;
    case ImageFormat::png:
        header = readPng(device);
        break;
    case ImageFormat::gif:
        header = readGif(device);
        break;
    case ImageFormat::webp:
        header = readWebp(device);
        break;
    case ImageFormat::tiff:
        header = readTiff(device);
        break;
    default:
        break;
    }
    device.seek(0);
    return header;
}

}  // namespace Quorbel
