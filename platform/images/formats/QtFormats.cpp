#include "platform/images/formats/QtFormats.h"

#include <QColorSpace>
#include <QImageReader>

#include <mutex>

#include <tiffio.h>

namespace Quorbel {

namespace {

QByteArray readerName(ImageFormat format)
{
    switch (format) {
    case ImageFormat::jpeg:
        return "jpeg";
    case ImageFormat::png:
        return "png";
    case ImageFormat::gif:
        return "gif";
    case ImageFormat::webp:
        return "webp";
    default:
        return "tiff";
    }
}

}  // namespace

DecodedFrame QtFormats::decode(const DecodeSource& source, ImageFormat format, const ImageHeader& header)
{
    // The gate has judged the size; the reader's own limit must let through what the gate does: 16 bits a channel.
    constexpr int megabytes = int(HeaderGate::maxWholePixels * 8 / (1024LL * 1024)) + 1;
    static std::once_flag isPrepared;
    std::call_once(isPrepared, [] {
        QImageReader::setAllocationLimit(megabytes);
        // The reader leaves it to the library to print what is odd about a file.
        TIFFSetWarningHandler(nullptr);
        TIFFSetErrorHandler(nullptr);
    });

    QImageReader reader(&source.device, readerName(format));
    // The reader's own turning drops the colour profile of quarter turns.
    reader.setAutoTransform(false);
    const bool held = format == ImageFormat::png && header.wholeFrame;
    if (!held && qMax(header.size.width(), header.size.height()) > source.longSide) {
        const QSize target = header.size.scaled(source.longSide, source.longSide, Qt::KeepAspectRatio);
        reader.setScaledSize(target.expandedTo(QSize(1, 1)));
    }
    DecodedFrame frame;
    if (!reader.read(&frame.image))
        return frame;
    if (!header.untagged)
        frame.icc = frame.image.colorSpace().iccProfile();
    frame.image.setColorSpace({});
    frame.orientation = header.orientation;
    frame.outcome = DecodedImage::Outcome::decoded;
    return frame;
}

}  // namespace Quorbel
