#include "platform/images/ImageDecoder.h"

#include "platform/images/ColorManagement.h"
#include "platform/images/ExifThumbnail.h"
#include "platform/images/GuardedFile.h"
#include "platform/images/HeaderGate.h"
#include "platform/images/Orientation.h"
#include "platform/images/QtFormats.h"

#include <QBuffer>

#include <chrono>
#include <mutex>

namespace Quorbel {

namespace {

using Outcome = DecodedImage::Outcome;

/// Held while a large frame is in memory: two at once could double a quarter of a gigabyte on every core.
class WholeFrameTurn {
public:
    /// Waits for its turn, unless the frame is small or the request is cancelled.
    WholeFrameTurn(qint64 pixels, const std::stop_token& cancel)
    {
        constexpr qint64 smallFrame = 4'000'000;
        static std::timed_mutex turn;
        if (pixels <= smallFrame)
            return;
        m_lock = std::unique_lock(turn, std::defer_lock);
        while (!cancel.stop_requested() && !m_lock.try_lock_for(std::chrono::milliseconds(20))) { }
    }

private:
    std::unique_lock<std::timed_mutex> m_lock;
};

DecodedFrame withOutcome(Outcome outcome)
{
    DecodedFrame frame;
    frame.outcome = outcome;
    return frame;
}

DecodedFrame decodeQtFormat(const DecodeSource& source, ImageFormat format)
{
    const auto header = HeaderGate::read(source.device, format);
    if (!header)
        return withOutcome(Outcome::damaged);
    if (!HeaderGate::allows(*header, source.device.size()))
        return withOutcome(Outcome::tooLarge);
    const qint64 pixels = qint64(header->size.width()) * header->size.height();
    const WholeFrameTurn turn(header->wholeFrame ? pixels : 0, source.cancel);
    return QtFormats::decode(source, format, *header);
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
    case ImageFormat::raw:
        return withOutcome(Outcome::needsTool);
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
    return { .outcome = Outcome::decoded, .image = Orientation::upright(managed, frame.orientation) };
}

}  // namespace

DecodedImage ImageDecoder::decode(const QString& path, int longSide, const std::stop_token& cancel)
{
    GuardedFile file(path, cancel);
    if (!file.openRegular())
        return { .outcome = Outcome::damaged };
    return decodeSource({ .device = file, .path = path, .longSide = longSide, .cancel = cancel });
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
    GuardedFile file(path, cancel);
    if (!file.openRegular())
        return {};
    const ImageFormat format = detectFormat(file, path);
    const auto header = HeaderGate::read(file, format);
    if (!header)
        return {};
    const QImage image = ExifThumbnail::croppedToAspect(ExifThumbnail::read(file, *header), header->size);
    return image.isNull() ? image : Orientation::upright(ColorManagement::toSRGB(image, {}), header->orientation);
}

}  // namespace Quorbel
