#include "app/model/thumbnails/RawPreview.h"

#include "platform/images/ImageModule.h"
#include "platform/images/Orientation.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// "6000 4000", standing or lying as the image does. No photo is smaller than its preview.
QSize sizeFrom(const QByteArray& told, QSize image)
{
    const QList<QByteArray> sides = told.split(' ');
    const QSize size(sides.value(0).toInt(), sides.value(1).toInt());
    if (qMax(size.width(), size.height()) < qMax(image.width(), image.height()))
        return {};
    return (size.width() < size.height()) == (image.width() < image.height()) ? size : size.transposed();
}

}  // namespace

RawPreview rawPreview(const ExifToolRunner& tool, const QString& path, int longSide, const std::stop_token& stop)
{
    const QStringList previews{ u"PreviewImage"_s, u"JpgFromRaw"_s, u"ThumbnailImage"_s };
    QMap<QString, QByteArray> found;
    try {
        found = tool.readBinary(
            previews + QStringList{ u"EXIF:Orientation"_s, u"Composite:ImageSize"_s }, QUrl::fromLocalFile(path), stop);
    } catch (const Error&) {
        return {};
    }
    const ImageModule& decoders = ImageModule::loaded();
    const auto sideOf = [](const QImage& image) { return qMax(image.width(), image.height()); };
    QImage best;
    for (const QString& tag : previews) {
        const QByteArray bytes = found.value(tag);
        const QImage image = decoders.decodeBytes(bytes, longSide, stop).image;
        if (sideOf(image) <= sideOf(best))
            continue;
        // A preview without a word of its own on how it lies is turned as the raw file says.
        best = decoders.hasOrientation(bytes) ? image
                                              : Orientation::upright(image, found.value(u"Orientation"_s, "1").toInt());
        if (sideOf(best) >= longSide)
            break;
    }
    return { best, sizeFrom(found.value(u"ImageSize"_s), best.size()) };
}

}  // namespace Quorbel
