#include "platform/images/formats/HeifFormat.h"

#include "platform/images/Release.h"
#include "platform/images/WholeFrameTurn.h"
#include "platform/images/color/HevcToRgb.h"
#include "platform/images/formats/HeifTransformations.h"
#include "platform/images/formats/HeifView.h"
#include "platform/images/gate/HeaderGate.h"
#include "platform/images/gate/HeifHeader.h"

#include <QColorSpace>
#include <QThread>
#include <QtEndian>

#include <libheif/heif.h>

#include <algorithm>
#include <memory>

namespace Quorbel {

namespace {

using Context = std::unique_ptr<heif_context, Release<heif_context_free>>;
using Handle = std::unique_ptr<heif_image_handle, Release<heif_image_handle_release>>;
using Options = std::unique_ptr<heif_decoding_options, Release<heif_decoding_options_free>>;
using Image = std::unique_ptr<heif_image, Release<heif_image_release>>;
using Nclx = std::unique_ptr<heif_color_profile_nclx, Release<heif_nclx_color_profile_free>>;

bool fine(const heif_error& error)
{
    return error.code == heif_error_Ok;
}

// What the library reads of a file.
struct Input {
    QIODevice& device;
    QList<HeifPatch> patches{};

    bool read(char* data, qint64 length)
    {
        const qint64 from = device.pos();
        if (device.read(data, length) != length)
            return false;
        for (const HeifPatch& patch : std::as_const(patches))
            patch.apply(from, data, length);
        return true;
    }
};

Input& inputOf(void* userdata)
{
    return *static_cast<Input*>(userdata);
}

// Reading through our device is what makes cancelling reach the library.
const heif_reader& deviceReader()
{
    static const heif_reader reader{
        .reader_api_version = 1,
        .get_position = [](void* to) -> int64_t { return inputOf(to).device.pos(); },
        .read = [](void* data, size_t size, void* to) -> int {
            return inputOf(to).read(static_cast<char*>(data), qint64(size)) ? 0 : 1;
        },
        .seek = [](int64_t position, void* to) -> int { return inputOf(to).device.seek(position) ? 0 : 1; },
        .wait_for_file_size =
            [](int64_t size, void* to) {
                return size > inputOf(to).device.size() ? heif_reader_grow_status_size_beyond_eof
                                                        : heif_reader_grow_status_size_reached;
            },
    };
    return reader;
}

// A file opened up to its primary image.
class OpenFile {
    Q_DISABLE_COPY_MOVE(OpenFile)

public:
    OpenFile(const DecodeSource& source, const QList<HeifPatch>& patches)
        : m_input{ source.device, patches }
        , m_context(heif_context_alloc())
    {
        source.device.seek(0);
        heif_context_set_max_decoding_threads(m_context.get(), qMax(1, QThread::idealThreadCount() - 1));
        heif_image_handle* handle = nullptr;
        if (fine(heif_context_read_from_reader(m_context.get(), &deviceReader(), &m_input, nullptr))
            && fine(heif_context_get_primary_image_handle(m_context.get(), &handle)))
            m_primary.reset(handle);
    }
    // Null when the file could not be opened.
    const Handle& primary() const { return m_primary; }

private:
    Input m_input;
    Context m_context;
    Handle m_primary;
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

// Whether a thumbnail shows all of the picture the same way up, as far as its shape tells.
bool sameShape(QSize one, QSize other)
{
    constexpr double rounding = 0.02;
    const double a = double(one.width()) / one.height(), b = double(other.width()) / other.height();
    return std::abs(a - b) <= rounding * b;
}

// An image of the file.
struct Item {
    Handle handle{};
    quint32 id = 0;
};

// The smallest thumbnail of at least that long side; null when there is none.
Item thumbnailItem(const Handle& primary, int longSide)
{
    Item best;
    for (const heif_item_id id : thumbnailIds(primary)) {
        heif_image_handle* found = nullptr;
        if (!fine(heif_image_handle_get_thumbnail(primary.get(), id, &found)))
            continue;
        Handle thumbnail(found);
        if (!HeaderGate::allows(sizeOf(thumbnail), true) || longSideOf(thumbnail) < longSide
            || !sameShape(sizeOf(thumbnail), sizeOf(primary)))
            continue;
        if (!best.handle || longSideOf(thumbnail) < longSideOf(best.handle))
            best = { std::move(thumbnail), id };
    }
    return best;
}

// Colours given as code points (ITU-T H.273). Curves other than sRGB's and the video ones, which displays show
// alike, are left as they are.
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

// One channel of a decoded image, eight bits a sample.
class Plane {
public:
    Plane(const Image& image, heif_channel channel, QSize size)
        : m_row(size.width(), '\xff')  // a channel that is not there is opaque
    {
        if (heif_image_get_width(image.get(), channel) != size.width()
            || heif_image_get_height(image.get(), channel) != size.height())
            return;
        m_bytes = heif_image_get_plane_readonly(image.get(), channel, &m_stride);
        m_surplus = qMax(0, heif_image_get_bits_per_pixel_range(image.get(), channel) - 8);
    }
    bool isThere() const { return m_bytes != nullptr; }
    // Valid until the next call.
    const uchar* row(int y)
    {
        auto* row = reinterpret_cast<uchar*>(m_row.data());
        if (!m_bytes)
            return row;
        const uchar* stored = m_bytes + qsizetype(y) * m_stride;
        if (m_surplus == 0)
            return stored;
        // Deep samples lie in two bytes each, in the processor's order.
        for (qsizetype x = 0; x < m_row.size(); ++x)
            row[x] = uchar(qMin(255, qFromUnaligned<quint16>(stored + x * 2) >> m_surplus));
        return row;
    }

private:
    const uchar* m_bytes = nullptr;
    int m_stride = 0;
    int m_surplus = 0;  // bits beyond eight
    QByteArray m_row;
};

QImage pixelsOf(const Image& image, bool premultiplied)
{
    const QSize size(heif_image_get_primary_width(image.get()), heif_image_get_primary_height(image.get()));
    Plane red(image, heif_channel_R, size), green(image, heif_channel_G, size), blue(image, heif_channel_B, size);
    Plane alpha(image, heif_channel_Alpha, size);
    if (size.isEmpty() || !red.isThere() || !green.isThere() || !blue.isThere())
        return {};
    QImage pixels(size,
        !alpha.isThere()    ? QImage::Format_RGB32
            : premultiplied ? QImage::Format_ARGB32_Premultiplied
                            : QImage::Format_ARGB32);
    for (int y = 0; y < pixels.height(); ++y) {
        const uchar *r = red.row(y), *g = green.row(y), *b = blue.row(y), *a = alpha.row(y);
        auto* row = reinterpret_cast<QRgb*>(pixels.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            row[x] = qRgba(r[x], g[x], b[x], a[x]);
    }
    return pixels;
}

// Null when the library cannot decode it. In planes, as it has them: interleaving is cheaper here than there.
Image decodedImage(const Handle& handle, bool asStored)
{
    const Options options(heif_decoding_options_alloc());
    options->ignore_transformations = asStored ? 1 : 0;
    heif_image* image = nullptr;
    const heif_error error =
        heif_decode_image(handle.get(), &image, heif_colorspace_RGB, heif_chroma_444, options.get());
    return Image(fine(error) ? image : nullptr);
}

// The same, the quick way when the picture allows it.
Image quicklyDecodedImage(const Handle& handle, bool asStored)
{
    const HevcToRgb quick(handle.get());
    return decodedImage(handle, asStored);
}

QImage pixelsOf(const Handle& handle, bool asStored, const DecodeSource& source)
{
    Image image = quicklyDecodedImage(handle, asStored);
    if (!image && !source.cancel.stop_requested())
        image = decodedImage(handle, asStored);
    return image ? pixelsOf(image, heif_image_handle_is_premultiplied_alpha(handle.get()) != 0) : QImage();
}

// Some cameras code more than they declare, to fill the blocks of the codec: bars at the right and at the bottom,
// before the picture is cut, turned and mirrored.
QImage withoutPadding(const Handle& handle, const QList<HeifTransformation>& steps, const DecodeSource& source)
{
    const QSize declared(
        heif_image_handle_get_ispe_width(handle.get()), heif_image_handle_get_ispe_height(handle.get()));
    QImage pixels = pixelsOf(handle, true, source);
    const QRect picture = QRect(QPoint(), declared) & pixels.rect();
    if (!picture.isEmpty() && picture != pixels.rect())
        pixels = pixels.copy(picture);
    for (const HeifTransformation& step : steps)
        pixels = step.applied(pixels);
    return pixels;
}

DecodedFrame decodeItem(const Handle& handle, quint32 id, const HeifItems& items, const DecodeSource& source)
{
    const auto steps = HeifTransformation::of(source.device, items, id);
    const bool isCut = std::any_of(steps.cbegin(), steps.cend(),
        [](const HeifTransformation& step) { return step.kind == HeifTransformation::Kind::cut; });
    DecodedFrame frame;
    QImage pixels = isCut ? QImage() : pixelsOf(handle, false, source);
    // What is cut shows no padding by its size: it is cut around the wrong middle. And deep pictures are not mirrored
    // there.
    const bool isPadded = pixels.width() > sizeOf(handle).width() || pixels.height() > sizeOf(handle).height();
    if (isPadded || (pixels.isNull() && !steps.isEmpty() && !source.cancel.stop_requested()))
        pixels = withoutPadding(handle, steps, source);
    if (pixels.isNull())
        return frame;
    frame.image = qMax(pixels.width(), pixels.height()) > source.longSide
        ? pixels.scaled(source.longSide, source.longSide, Qt::KeepAspectRatio, Qt::SmoothTransformation)
        : std::move(pixels);
    frame.icc = profileOf(handle);
    frame.outcome = DecodedImage::Outcome::decoded;
    return frame;
}

bool isAllowed(QSize coded)
{
    return coded.isEmpty() || HeaderGate::allows(coded, true);
}

// The thumbnail out of a view of the file in which nothing else needs to be read. The photo itself may be too large.
DecodedFrame decodeThumbnail(const DecodeSource& source, const HeifItems& items, int longSide)
{
    const HeifPatch view = onlyThumbnails(source.device, items);
    const QSize own = largestCodedFrame(source.device, items, items.withParts(items.thumbnails()));
    if (view.bytes.isEmpty() || !isAllowed(own.isEmpty() ? largestCodedFrame(source.device) : own))
        return {};
    const OpenFile file(source, { view, plainReferences(source.device, items) });
    const Item thumbnail = file.primary() ? thumbnailItem(file.primary(), longSide) : Item();
    if (!thumbnail.handle)
        return {};
    DecodedFrame frame = decodeItem(thumbnail.handle, thumbnail.id, items, source);
    if (frame.icc.isEmpty())
        frame.icc = profileOf(file.primary());
    return frame;
}

}  // namespace

DecodedFrame HeifFormat::decode(const DecodeSource& source)
{
    const HeifItems items = HeifItems::of(source.device);
    DecodedFrame refused;
    refused.outcome = DecodedImage::Outcome::tooLarge;
    if (DecodedFrame frame = decodeThumbnail(source, items, source.longSide);
        frame.outcome == DecodedImage::Outcome::decoded)
        return frame;
    if (!isAllowed(largestCodedFrame(source.device)))
        return refused;
    const OpenFile file(source, { plainReferences(source.device, items) });
    if (!file.primary())
        return {};
    if (!HeaderGate::allows(sizeOf(file.primary()), true))
        return refused;
    const WholeFrameTurn turn(sizeOf(file.primary()), source.cancel);
    return source.cancel.stop_requested() ? DecodedFrame() : decodeItem(file.primary(), items.primary, items, source);
}

DecodedFrame HeifFormat::thumbnail(const DecodeSource& source)
{
    return decodeThumbnail(source, HeifItems::of(source.device), 1);
}

}  // namespace Quorbel
