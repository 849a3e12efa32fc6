#include "platform/images/formats/ExifThumbnail.h"

#include "platform/images/formats/TiffReader.h"

#include <QBuffer>
#include <QImageReader>

namespace Quorbel {

QImage ExifThumbnail::read(QIODevice& device, const ImageHeader& header)
{
    constexpr quint16 offsetTag = 513, lengthTag = 514;
    constexpr quint32 longest = 512 * 1024;  // the whole block fits 64 kB in a JPEG; TIFF and PNG may hold more
    constexpr qint64 mostPixels = 2'000'000;
    if (header.exifAt < 0)
        return {};
    const TiffReader tiff(device, header.exifAt);
    const TiffDirectory second = tiff.directory(tiff.directory(tiff.firstDirectory()).next);
    const auto offset = second.number(offsetTag), length = second.number(lengthTag);
    if (!offset || !length || *length > longest)
        return {};
    QByteArray bytes = tiff.bytes(*offset, *length);
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::ReadOnly))
        return {};
    const auto inner = HeaderGate::read(buffer, ImageFormat::jpeg);
    if (!inner || qint64(inner->size.width()) * inner->size.height() > mostPixels)
        return {};
    return QImageReader(&buffer, "jpeg").read();
}

QImage ExifThumbnail::croppedToAspect(const QImage& image, QSize full)
{
    if (image.isNull() || full.isEmpty())
        return image;
    const QSize inner = full.scaled(image.size(), Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    // Sizes are rounded to pixels: a bar narrower than that is none.
    if (image.width() - inner.width() <= 1 && image.height() - inner.height() <= 1)
        return image;
    return image.copy(QRect(QPoint((image.width() - inner.width()) / 2, (image.height() - inner.height()) / 2), inner));
}

}  // namespace Quorbel
