#include "platform/images/formats/RawFormat.h"

#include "platform/images/Orientation.h"
#include "platform/images/Release.h"
#include "platform/images/WholeFrameTurn.h"
#include "platform/images/formats/ExifThumbnail.h"
#include "platform/images/formats/ImageFormat.h"
#include "platform/images/formats/QtFormats.h"
#include "platform/images/gate/HeaderGate.h"

#include <QBuffer>
#include <QFile>

#include <libraw/libraw.h>

#include <memory>

namespace Quorbel {

namespace {

using Outcome = DecodedImage::Outcome;
using Processed = std::unique_ptr<libraw_processed_image_t, Release<LibRaw::dcraw_clear_mem>>;

// EXIF's number for LibRaw's: 3 is upside down, 5 and 6 are quarter turns.
int orientationOf(int flip)
{
    switch (flip) {
    case 3:
        return 3;
    case 5:
        return 8;
    case 6:
        return 6;
    default:
        return 1;
    }
}

int stopWanted(void* token, LibRaw_progress, int, int)
{
    return static_cast<const std::stop_token*>(token)->stop_requested() ? 1 : 0;
}

QSize sensorSize(const LibRaw& raw)
{
    return { raw.imgdata.sizes.width, raw.imgdata.sizes.height };
}

// With the margins that are masked or cut off: what developing has to hold.
QSize wholeSensorSize(const LibRaw& raw)
{
    return sensorSize(raw).expandedTo({ raw.imgdata.sizes.raw_width, raw.imgdata.sizes.raw_height });
}

// Some cameras store the preview upright already: then it stands while the sensor lies.
int previewOrientation(QSize preview, const LibRaw& raw)
{
    const int orientation = orientationOf(raw.imgdata.sizes.flip);
    const QSize sensor = sensorSize(raw);
    const bool sensorLies = sensor.width() >= sensor.height(), previewLies = preview.width() >= preview.height();
    return Orientation::isQuarterTurn(orientation) && sensorLies != previewLies ? 1 : orientation;
}

DecodedFrame jpegPreview(const QByteArray& bytes, const DecodeSource& source)
{
    QBuffer buffer;
    buffer.setData(bytes);
    if (!buffer.open(QIODevice::ReadOnly))
        return {};
    const auto header = HeaderGate::read(buffer, ImageFormat::jpeg);
    if (!header || !HeaderGate::allows(*header, buffer.size()))
        return {};
    return QtFormats::decode({ .device = buffer, .path = {}, .longSide = source.longSide, .cancel = source.cancel },
        ImageFormat::jpeg, *header);
}

// Damaged when LibRaw made nothing, or something else than eight bits of gray or RGB.
DecodedFrame bitmapOf(const Processed& made)
{
    DecodedFrame frame;
    if (!made || made->type != LIBRAW_IMAGE_BITMAP || made->bits != 8 || (made->colors != 3 && made->colors != 1)
        || made->data_size < quint64(made->width) * made->height * made->colors)
        return frame;
    frame.image = QImage(made->data, made->width, made->height, qsizetype(made->width) * made->colors,
        made->colors == 3 ? QImage::Format_RGB888 : QImage::Format_Grayscale8)
                      .copy();
    frame.outcome = frame.image.isNull() ? Outcome::damaged : Outcome::decoded;
    return frame;
}

DecodedFrame previewOf(LibRaw& raw, const DecodeSource& source)
{
    constexpr int letterboxed = 200;  // pixels; larger previews have the picture's own shape
    if (raw.unpack_thumb() != LIBRAW_SUCCESS)
        return {};
    const auto& thumbnail = raw.imgdata.thumbnail;
    int error = 0;
    DecodedFrame frame;
    if (thumbnail.tformat == LIBRAW_THUMBNAIL_JPEG && thumbnail.thumb)
        frame = jpegPreview(QByteArray::fromRawData(thumbnail.thumb, qsizetype(thumbnail.tlength)), source);
    else
        frame = bitmapOf(Processed(raw.dcraw_make_mem_thumb(&error)));
    if (frame.outcome != Outcome::decoded)
        return frame;
    if (qMax(frame.image.width(), frame.image.height()) <= letterboxed)
        frame.image = ExifThumbnail::croppedToAspect(frame.image, sensorSize(raw));
    frame.orientation = previewOrientation(frame.image.size(), raw);
    return frame;
}

// The sensor's data, a quarter of its pixels, developed with the camera's own white balance. LibRaw turns it.
DecodedFrame developed(LibRaw& raw)
{
    raw.imgdata.params.half_size = 1;
    raw.imgdata.params.use_camera_wb = 1;
    raw.imgdata.params.output_bps = 8;
    int error = 0;
    if (raw.unpack() != LIBRAW_SUCCESS || raw.dcraw_process() != LIBRAW_SUCCESS)
        return {};
    return bitmapOf(Processed(raw.dcraw_make_mem_image(&error)));
}

// As large as asked, or as what developing would give.
bool isLargeEnough(const DecodedFrame& frame, int longSide, QSize sensor)
{
    const int developedSide = qMax(sensor.width(), sensor.height()) / 2;
    return frame.outcome == Outcome::decoded
        && qMax(frame.image.width(), frame.image.height()) >= qMin(longSide, developedSide);
}

// Says of a picture what it was made of.
DecodedFrame ofSensor(const LibRaw& raw, DecodedFrame frame)
{
    frame.photo = sensorSize(raw);
    frame.isPreview = true;
    return frame;
}

}  // namespace

DecodedFrame RawFormat::decode(const DecodeSource& source)
{
    constexpr unsigned mostMegabytes = 1024;
    constexpr int worthALook = 800;  // pixels
    DecodedFrame refused;
    refused.outcome = Outcome::needsTool;
    if (source.path.isEmpty())
        return refused;
    // A quarter of a megabyte: too much for a thread's stack.
    const auto raw = std::make_unique<LibRaw>();
    std::stop_token cancel = source.cancel;
    raw->set_progress_handler(stopWanted, &cancel);
    raw->set_dataerror_handler(nullptr, nullptr);  // it would print
    raw->imgdata.params.max_raw_memory_mb = mostMegabytes;
    if (raw->open_file(QFile::encodeName(source.path).constData()) != LIBRAW_SUCCESS)
        return refused;
    const QSize sensor = wholeSensorSize(*raw);
    const DecodedFrame preview = ofSensor(*raw, previewOf(*raw, source));
    // A close look is at what the camera made of it, unless that is a mere thumbnail.
    if (isLargeEnough(preview, source.isWhole ? worthALook : source.longSide, sensorSize(*raw)))
        return preview;
    if (sensor.isEmpty() || !HeaderGate::allows(sensor, true) || cancel.stop_requested())
        return preview.outcome == Outcome::decoded ? preview : refused;
    const WholeFrameTurn turn(sensor, cancel);
    const DecodedFrame whole = ofSensor(*raw, developed(*raw));
    if (whole.outcome == Outcome::decoded)
        return whole;
    return preview.outcome == Outcome::decoded ? preview : refused;
}

}  // namespace Quorbel
