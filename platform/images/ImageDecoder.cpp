#include "platform/images/ImageDecoder.h"

#include "platform/images/Orientation.h"
#include "platform/images/WholeFrameTurn.h"
#include "platform/images/color/ColorManagement.h"
#include "platform/images/formats/CmykTiff.h"
#include "platform/images/formats/ExifThumbnail.h"
#include "platform/images/formats/HeifFormat.h"
#include "platform/images/formats/Jpeg2000Format.h"
#include "platform/images/formats/JpegFormat.h"
#include "platform/images/formats/JxlFormat.h"
#include "platform/images/formats/PsdFormat.h"
#include "platform/images/formats/QtFormats.h"
#include "platform/images/formats/RawFormat.h"
#include "platform/images/gate/GuardedFile.h"
#include "platform/images/gate/HeaderGate.h"

#include <QBuffer>

#include <cmath>

namespace Quorbel {

namespace {

using Outcome = DecodedImage::Outcome;

DecodedFrame withOutcome(Outcome outcome)
{
    DecodedFrame frame;
    frame.outcome = outcome;
    return frame;
}

DecodedFrame turnedAs(const ImageHeader& header, DecodedFrame frame)
{
    frame.orientation = header.orientation;
    return frame;
}

DecodedFrame decodeQtFormat(const DecodeSource& source, ImageFormat format, const ImageHeader& header)
{
    if (format == ImageFormat::jpeg && (header.components == 4 || source.isWhole)) {
        const WholeFrameTurn turn(source.isWhole ? header.size : QSize(), source.cancel);
        return turnedAs(header, JpegFormat::decode(source));
    }
    if (format == ImageFormat::tiff && header.components >= 4) {
        const DecodedFrame inks = CmykTiff::decode(source);
        source.device.seek(0);
        if (inks.outcome != Outcome::unsupported)
            return turnedAs(header, inks);
    }
    const WholeFrameTurn turn(header.wholeFrame || source.isWhole ? header.size : QSize(), source.cancel);
    return QtFormats::decode(source, format, header);
}

// The long side with which a picture of that size has at most so many pixels.
int longSideFor(QSize size, qint64 mostPixels)
{
    const double pixels = double(size.width()) * size.height();
    return int(qMax(size.width(), size.height()) * qMin(1.0, std::sqrt(double(mostPixels) / pixels)));
}

DecodedFrame decodeQtFormat(const DecodeSource& given, ImageFormat format)
{
    const auto header = HeaderGate::read(given.device, format);
    if (!header)
        return withOutcome(Outcome::damaged);
    if (!HeaderGate::allows(*header, given.device.size()))
        return withOutcome(Outcome::tooLarge);
    DecodeSource source = given;
    if (source.isWhole)
        source.longSide = longSideFor(header->size, source.mostPixels);
    DecodedFrame frame = decodeQtFormat(source, format, *header);
    if (frame.image.width() < header->size.width())
        frame.photo = header->size;
    return frame;
}

DecodedFrame decodeFrame(const DecodeSource& source)
{
    switch (const ImageFormat format = detectFormat(source.device, source.path)) {
    case ImageFormat::jpeg:
    case ImageFormat::png:
    case ImageFormat::gif:
    case ImageFormat::webp:
    case ImageFormat::tiff:
        return decodeQtFormat(source, format);
    case ImageFormat::heif:
    case ImageFormat::avif:
        return HeifFormat::decode(source);
    case ImageFormat::jxl:
        return JxlFormat::decode(source);
    case ImageFormat::jp2:
    case ImageFormat::j2k:
        return Jpeg2000Format::decode(source, format);
    case ImageFormat::psd:
        return PsdFormat::decode(source);
    case ImageFormat::raw:
        return RawFormat::decode(source);
    default:
        return withOutcome(Outcome::unsupported);
    }
}

QImage scaledDown(const QImage& image, int longSide)
{
    if (qMax(image.width(), image.height()) <= longSide)
        return image;
    const QSize size = image.size().scaled(longSide, longSide, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

DecodedImage decodeSource(const DecodeSource& source)
{
    const DecodedFrame frame = source.device.size() == 0 ? withOutcome(Outcome::damaged) : decodeFrame(source);
    if (source.cancel.stop_requested())
        return { .outcome = Outcome::cancelled };
    if (frame.outcome != Outcome::decoded || frame.image.isNull())
        return { .outcome = frame.outcome == Outcome::decoded ? Outcome::damaged : frame.outcome };
    // Scale first, then manage colours on what is left, then turn: each step sees the fewest pixels.
    const QImage small = scaledDown(frame.image, source.longSide);
    const QImage managed = ColorManagement::toSRGB(small, frame.icc);
    DecodedImage decoded{ .outcome = Outcome::decoded, .image = Orientation::upright(managed, frame.orientation) };
    // Of the photo itself only its size is known: it stands or lies as its picture does.
    const bool isTurned =
        (frame.photo.width() < frame.photo.height()) != (decoded.image.width() < decoded.image.height());
    decoded.photo = isTurned ? frame.photo.transposed() : frame.photo;
    decoded.isPreview = frame.isPreview;
    decoded.isIncomplete = frame.isIncomplete;
    return decoded;
}

}  // namespace

DecodedImage ImageDecoder::decode(const QString& path, int longSide, const std::stop_token& cancel)
{
    GuardedFile file(path, cancel);
    if (!file.openRegular())
        return { .outcome = Outcome::damaged };
    return decodeSource({ .device = file, .path = path, .longSide = longSide, .cancel = cancel });
}

DecodedImage ImageDecoder::decodeWhole(const QString& path, qint64 mostPixels, const std::stop_token& cancel)
{
    GuardedFile file(path, cancel);
    if (!file.openRegular())
        return { .outcome = Outcome::damaged };
    // No picture that is held whole has a longer side.
    constexpr int longest = 1 << 20;
    return decodeSource({ .device = file,
        .path = path,
        .longSide = longest,
        .isWhole = true,
        .mostPixels = mostPixels,
        .cancel = cancel });
}

DecodedImage ImageDecoder::decode(const QByteArray& bytes, int longSide, const std::stop_token& cancel)
{
    QBuffer buffer;
    buffer.setData(bytes);
    if (!buffer.open(QIODevice::ReadOnly))
        return { .outcome = Outcome::damaged };
    return decodeSource({ .device = buffer, .path = {}, .longSide = longSide, .cancel = cancel });
}

bool ImageDecoder::hasOrientation(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    const auto header =
        buffer.open(QIODevice::ReadOnly) ? HeaderGate::read(buffer, detectFormat(buffer, {})) : std::nullopt;
    return header && header->hasOrientation;
}

QImage ImageDecoder::embeddedThumbnail(const QString& path, const std::stop_token& cancel)
{
    constexpr int placeholderSide = 320;
    GuardedFile file(path, cancel);
    if (!file.openRegular())
        return {};
    const ImageFormat format = detectFormat(file, path);
    const DecodeSource source{ .device = file, .path = path, .longSide = placeholderSide, .cancel = cancel };
    DecodedFrame frame;
    if (format == ImageFormat::heif || format == ImageFormat::avif) {
        frame = HeifFormat::thumbnail(source);
    } else if (format == ImageFormat::psd) {
        frame = PsdFormat::thumbnail(source);
    } else if (const auto header = HeaderGate::read(file, format)) {
        frame.image = ExifThumbnail::croppedToAspect(ExifThumbnail::read(file, *header), header->size);
        frame.orientation = header->orientation;
    }
    if (frame.image.isNull())
        return {};
    return Orientation::upright(ColorManagement::toSRGB(frame.image, frame.icc), frame.orientation);
}

}  // namespace Quorbel
