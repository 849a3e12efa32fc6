#include "app/RawPreview.h"

#include "platform/images/ImageModule.h"
#include "platform/images/Orientation.h"

using namespace Qt::StringLiterals;

namespace Quorbel {

namespace {

/// The tool's words for EXIF's eight numbers.
int orientationNamed(const QString& words)
{
    static const QStringList names{ u"Horizontal (normal)"_s, u"Mirror horizontal"_s, u"Rotate 180"_s,
        u"Mirror vertical"_s, u"Mirror horizontal and rotate 270 CW"_s, u"Rotate 90 CW"_s,
        u"Mirror horizontal and rotate 90 CW"_s, u"Rotate 270 CW"_s };
    return int(names.indexOf(words)) + 1;
}

/// A preview without a word of its own on how it lies is turned as the raw file says.
QImage turned(const ExifToolRunner& tool, const QUrl& file, const QImage& image, const std::stop_token& stop)
{
    const auto objects = tool.read({ u"EXIF:Orientation"_s }, { file }, { .progress = {}, .stop = stop });
    const JSONObject first = objects.value(0);
    const auto found = first.constFind(u"EXIF:Orientation"_s);
    const int orientation = found == first.cend() ? 1 : orientationNamed(found->stringValue().value_or(QString()));
    return Orientation::upright(image, orientation);
}

}  // namespace

QImage rawPreview(const ExifToolRunner& tool, const QString& path, int longSide, const std::stop_token& stop)
{
    const ImageModule& decoders = ImageModule::loaded();
    const QUrl file = QUrl::fromLocalFile(path);
    for (const QString& tag : { u"PreviewImage"_s, u"JpgFromRaw"_s, u"ThumbnailImage"_s }) {
        try {
            const QByteArray bytes = tool.readBinary(tag, file, stop);
            const DecodedImage decoded = decoders.decodeBytes(bytes, longSide, stop);
            if (decoded.outcome == DecodedImage::Outcome::decoded)
                return decoders.hasOrientation(bytes) ? decoded.image : turned(tool, file, decoded.image, stop);
        } catch (const Error&) {
            // A file that the tool cannot read under one tag it may read under the next.
            if (stop.stop_requested())
                return {};
        }
    }
    return {};
}

}  // namespace Quorbel
