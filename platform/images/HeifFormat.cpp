#include "platform/images/HeifFormat.h"

#include "platform/images/HeaderGate.h"
#include "platform/images/HeifHeader.h"
#include "platform/images/WholeFrameTurn.h"

#include <QColorSpace>
#include <QThread>

#include <libheif/heif.h>

#include <memory>

namespace Quorbel {

namespace {

template <auto release>
struct Release {
    template <typename T>
    void operator()(T* object) const
    {
        release(object);
    }
};
using Context = std::unique_ptr<heif_context, Release<heif_context_free>>;
using Handle = std::unique_ptr<heif_image_handle, Release<heif_image_handle_release>>;
using Image = std::unique_ptr<heif_image, Release<heif_image_release>>;
using Options = std::unique_ptr<heif_decoding_options, Release<heif_decoding_options_free>>;
using Nclx = std::unique_ptr<heif_color_profile_nclx, Release<heif_nclx_color_profile_free>>;

bool fine(const heif_error& error)
{
    return error.code == heif_error_Ok;
}

QIODevice& deviceOf(void* userdata)
{
    return *static_cast<QIODevice*>(userdata);
}

/// Reading through our device is what makes cancelling reach the library.
const heif_reader& deviceReader()
{
    static const heif_reader reader{
        .reader_api_version = 1,
        .get_position = [](void* to) -> int64_t { return deviceOf(to).pos(); },
        .read = [](void* data, size_t size, void* to) -> int {
            return deviceOf(to).read(static_cast<char*>(data), qint64(size)) == qint64(size) ? 0 : 1;
        },
        .seek = [](int64_t position, void* to) -> int { return deviceOf(to).seek(position) ? 0 : 1; },
        .wait_for_file_size =
            [](int64_t size, void* to) {
                return size > deviceOf(to).size() ? heif_reader_grow_status_size_beyond_eof
                                                  : heif_reader_grow_status_size_reached;
            },
    };
    return reader;
}

/// A file opened up to its primary image.
struct OpenFile {
    Context context{ heif_context_alloc() };
    Handle primary{};

    explicit OpenFile(const DecodeSource& source)
    {
        heif_context_set_max_decoding_threads(context.get(), qMax(1, QThread::idealThreadCount() - 1));
        heif_image_handle* handle = nullptr;
        if (fine(heif_context_read_from_reader(context.get(), &deviceReader(), &source.device, nullptr))
            && fine(heif_context_get_primary_image_handle(context.get(), &handle)))
            primary.reset(handle);
    }
};

QSize sizeOf(const Handle& handle)
{
    return { heif_image_handle_get_width(handle.get()), heif_image_handle_get_height(handle.get()) };
}

int longSideOf(const Handle& handle)
{
    return qMax(sizeOf(handle).width(), sizeOf(handle).height());
}

QList<heif_item_id> thumbnailIds(const Handle& primary)
{
    QList<heif_item_id> ids(qBound(0, heif_image_handle_get_number_of_thumbnails(primary.get()), 8));
    ids.resize(heif_image_handle_get_list_of_thumbnail_IDs(primary.get(), ids.data(), int(ids.size())));
    return ids;
}

/// Whether a thumbnail shows all of the picture the same way up, as far as its shape tells.
bool sameShape(QSize one, QSize other)
{
    constexpr double rounding = 0.02;
    const double a = double(one.width()) / one.height(), b = double(other.width()) / other.height();
    return std::abs(a - b) <= rounding * b;
}

/// The smallest thumbnail of at least that long side; null when there is none.
Handle thumbnailHandle(const Handle& primary, int longSide)
{
    Handle best;
    for (const heif_item_id id : thumbnailIds(primary)) {
        heif_image_handle* found = nullptr;
        if (!fine(heif_image_handle_get_thumbnail(primary.get(), id, &found)))
            continue;
        Handle thumbnail(found);
        if (sizeOf(thumbnail).isEmpty() || longSideOf(thumbnail) < longSide
            || !sameShape(sizeOf(thumbnail), sizeOf(primary)))
            continue;
        if (!best || longSideOf(thumbnail) < longSideOf(best))
            best = std::move(thumbnail);
    }
    return best;
}

/// Colours given as code points (ITU-T H.273). Curves other than sRGB's and the video ones, which displays show
/// alike, are left as they are.
QByteArray profileOfCodePoints(const Handle& handle)
{
    heif_color_profile_nclx* found = nullptr;
    if (!fine(heif_image_handle_get_nclx_color_profile(handle.get(), &found)) || !found)
        return {};
    const Nclx nclx(found);
    switch (nclx->color_primaries) {
    case heif_color_primaries_SMPTE_EG_432_1:
        return QColorSpace(QColorSpace::Primaries::DciP3D65, QColorSpace::TransferFunction::SRgb).iccProfile();
    case heif_color_primaries_ITU_R_BT_2020_2_and_2100_0:
        return QColorSpace({ 0.3127, 0.3290 }, { 0.708, 0.292 }, { 0.170, 0.797 }, { 0.131, 0.046 },
            QColorSpace::TransferFunction::SRgb)
            .iccProfile();
    default:
        return {};
    }
}

QByteArray profileOf(const Handle& handle)
{
    constexpr size_t largest = 16UL * 1024 * 1024;
    const size_t length = heif_image_handle_get_raw_color_profile_size(handle.get());
    if (length == 0 || length > largest)
        return profileOfCodePoints(handle);
    QByteArray icc(qsizetype(length), Qt::Uninitialized);
    return fine(heif_image_handle_get_raw_color_profile(handle.get(), icc.data())) ? icc : QByteArray();
}

QImage pixelsOf(const Image& image, bool alpha, bool premultiplied)
{
    const int width = heif_image_get_primary_width(image.get()), height = heif_image_get_primary_height(image.get());
    int stride = 0;
    const uint8_t* plane = heif_image_get_plane_readonly(image.get(), heif_channel_interleaved, &stride);
    if (!plane || width <= 0 || height <= 0)
        return {};
    const auto format = !alpha ? QImage::Format_RGB888
        : premultiplied        ? QImage::Format_RGBA8888_Premultiplied
                               : QImage::Format_RGBA8888;
    return QImage(plane, width, height, stride, format);
}

DecodedFrame decodeHandle(const Handle& handle, const DecodeSource& source)
{
    const bool alpha = heif_image_handle_has_alpha_channel(handle.get()) != 0;
    const bool premultiplied = heif_image_handle_is_premultiplied_alpha(handle.get()) != 0;
    const Options options(heif_decoding_options_alloc());
    options->convert_hdr_to_8bit = 1;
    heif_image* decoded = nullptr;
    DecodedFrame frame;
    if (!fine(heif_decode_image(handle.get(), &decoded, heif_colorspace_RGB,
            alpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, options.get())))
        return frame;
    const Image image(decoded);
    const QImage pixels = pixelsOf(image, alpha, premultiplied);
    if (pixels.isNull())
        return frame;
    // The pixels belong to the library: scale them, or copy them, before they go.
    frame.image = qMax(pixels.width(), pixels.height()) > source.longSide
        ? pixels.scaled(source.longSide, source.longSide, Qt::KeepAspectRatio, Qt::SmoothTransformation)
        : pixels.copy();
    frame.icc = profileOf(handle);
    frame.outcome = DecodedImage::Outcome::decoded;
    return frame;
}

}  // namespace

DecodedFrame HeifFormat::decode(const DecodeSource& source)
{
    const QSize coded = largestCodedFrame(source.device);
    DecodedFrame refused;
    refused.outcome = DecodedImage::Outcome::tooLarge;
    if (!coded.isEmpty() && !HeaderGate::allows(coded, true))
        return refused;
    const OpenFile file(source);
    if (!file.primary)
        return {};
    if (!HeaderGate::allows(sizeOf(file.primary), true))
        return refused;
    if (const Handle thumbnail = thumbnailHandle(file.primary, source.longSide)) {
        if (DecodedFrame frame = decodeHandle(thumbnail, source); frame.outcome == DecodedImage::Outcome::decoded) {
            if (frame.icc.isEmpty())
                frame.icc = profileOf(file.primary);
            return frame;
        }
    }
    const WholeFrameTurn turn(sizeOf(file.primary), source.cancel);
    return source.cancel.stop_requested() ? DecodedFrame() : decodeHandle(file.primary, source);
}

DecodedFrame HeifFormat::thumbnail(const DecodeSource& source)
{
    const QSize coded = largestCodedFrame(source.device);
    if (!coded.isEmpty() && !HeaderGate::allows(coded, true))
        return {};
    const OpenFile file(source);
    const Handle smallest = file.primary ? thumbnailHandle(file.primary, 1) : Handle();
    return smallest ? decodeHandle(smallest, source) : DecodedFrame();
}

}  // namespace Quorbel
