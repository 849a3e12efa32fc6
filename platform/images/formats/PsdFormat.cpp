#include "platform/images/formats/PsdFormat.h"

#include "platform/images/color/ColorManagement.h"
#include "platform/images/formats/PsdReader.h"
#include "platform/images/gate/HeaderGate.h"

#include <QBuffer>
#include <QImageReader>

#include <cstring>

namespace Quorbel {

namespace {

using Mode = PsdHeader::Mode;

DecodedFrame decoded(QImage image, QByteArray icc = {})
{
    DecodedFrame frame;
    if (!image.isNull())
        frame = { .outcome = DecodedImage::Outcome::decoded, .image = std::move(image), .icc = std::move(icc) };
    return frame;
}

QImage grayOf(const PsdPlanes& planes)
{
    QImage image(planes.size, QImage::Format_Grayscale8);
    for (int y = 0; y < planes.size.height() && !image.isNull(); ++y)
        std::memcpy(image.scanLine(y), planes.row(0, y), size_t(planes.size.width()));
    return image;
}

QImage indexedOf(const PsdPlanes& planes, const QByteArray& palette)
{
    constexpr int colors = 256;  // all reds, then all greens, then all blues
    QImage image(planes.size, QImage::Format_RGB32);
    for (int y = 0; y < planes.size.height() && !image.isNull(); ++y) {
        const uchar* from = planes.row(0, y);
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < planes.size.width(); ++x) {
            const auto part = [&](int band) { return int(quint8(palette.at(band * colors + from[x]))); };
            to[x] = qRgb(part(0), part(1), part(2));
        }
    }
    return image;
}

QImage rgbOf(const PsdPlanes& planes)
{
    QImage image(planes.size, QImage::Format_RGB32);
    for (int y = 0; y < planes.size.height() && !image.isNull(); ++y) {
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < planes.size.width(); ++x)
            to[x] = qRgb(planes.row(0, y)[x], planes.row(1, y)[x], planes.row(2, y)[x]);
    }
    return image;
}

// Channels side by side, `count` bytes a pixel; ink is stored with 0 as its full amount.
QByteArray interleaved(const PsdPlanes& planes, int count, bool inverted)
{
    QByteArray bytes(qsizetype(planes.size.width()) * planes.size.height() * count, Qt::Uninitialized);
    char* to = bytes.data();
    for (int y = 0; y < planes.size.height(); ++y)
        for (int x = 0; x < planes.size.width(); ++x)
            for (int channel = 0; channel < count; ++channel)
                *to++ = char(inverted ? 255 - planes.row(channel, y)[x] : planes.row(channel, y)[x]);
    return bytes;
}

// The flattened picture lies on white; taking the white away again leaves premultiplied colours.
QImage withTransparency(const QImage& image, const PsdPlanes& planes, int channel)
{
    QImage result(image.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height() && !result.isNull(); ++y) {
        const uchar* alpha = planes.row(channel, y);
        const auto* from = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        auto* to = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int opacity = alpha[x], white = 255 - opacity;
            const auto part = [&](int value) { return qBound(0, value - white, opacity); };
            to[x] = qRgba(part(qRed(from[x])), part(qGreen(from[x])), part(qBlue(from[x])), opacity);
        }
    }
    return result;
}

DecodedFrame frameOf(const PsdHeader& header, const PsdPlanes& planes)
{
    // Samples of 32 bits were given a display's curve when they were read, in place of their linear profile's.
    const QByteArray icc = header.depth == 32 ? QByteArray() : header.icc;
    QImage image;
    switch (header.mode) {
    case Mode::cmyk:
        image = ColorManagement::fromCMYK(interleaved(planes, 4, true), planes.size, header.icc);
        break;
    case Mode::lab:
        image = ColorManagement::fromLab(interleaved(planes, 3, false), planes.size);
        break;
    case Mode::indexed:
        image = indexedOf(planes, header.palette);
        break;
    case Mode::rgb:
        image = ColorManagement::toSRGB(rgbOf(planes), icc);
        break;
    default:
        image = ColorManagement::toSRGB(grayOf(planes), icc);
        break;
    }
    const int colors = header.colorChannels();
    if (header.hasTransparency && planes.count > colors && !image.isNull())
        image = withTransparency(image.convertToFormat(QImage::Format_RGB32), planes, colors);
    return decoded(image);
}

DecodedFrame thumbnailOf(PsdReader& reader, const PsdHeader& header)
{
    constexpr qint64 mostPixels = 2'000'000;
    QByteArray bytes = reader.thumbnail(header);
    QBuffer buffer(&bytes);
    if (bytes.isEmpty() || !buffer.open(QIODevice::ReadOnly))
        return {};
    const auto inner = HeaderGate::read(buffer, ImageFormat::jpeg);
    if (!inner || qint64(inner->size.width()) * inner->size.height() > mostPixels)
        return {};
    const QImage image = QImageReader(&buffer, "jpeg").read();
    return decoded(header.thumbnailIsBGR ? image.rgbSwapped() : image);
}

}  // namespace

DecodedFrame PsdFormat::decode(const DecodeSource& source)
{
    PsdReader reader(source.device);
    const auto header = reader.header();
    if (!header)
        return {};
    if (!HeaderGate::allows(header->size, false)) {
        DecodedFrame refused;
        refused.outcome = DecodedImage::Outcome::tooLarge;
        return refused;
    }
    if (header->isFlattened && header->isReadable()) {
        const PsdPlanes planes = reader.planes(*header, source.longSide, source.cancel);
        if (!planes.samples.isEmpty())
            return frameOf(*header, planes);
    }
    return thumbnailOf(reader, *header);
}

DecodedFrame PsdFormat::thumbnail(const DecodeSource& source)
{
    PsdReader reader(source.device);
    const auto header = reader.header();
    return header ? thumbnailOf(reader, *header) : DecodedFrame();
}

}  // namespace Quorbel
