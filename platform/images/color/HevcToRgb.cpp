#include "platform/images/color/HevcToRgb.h"

#include <QSize>
#include <QtEndian>

#include <libde265/de265.h>
#include <libheif/heif.h>
#include <libheif/heif_plugin.h>

#include <array>
#include <cmath>
#include <mutex>
#include <optional>

namespace Quorbel {

namespace {

struct LumaCoding {
    int matrix = heif_matrix_coefficients_unspecified;  // ITU-T H.273, 8.3
    bool fullRange = false;
};

// What the object on this thread asks for.
struct Request {
    bool active = false;
    std::optional<LumaCoding> container{};
};
thread_local Request request;

heif_error done()
{
    return { heif_error_Ok, heif_suberror_Unspecified, "" };
}

heif_error refused()
{
    return { heif_error_Decoder_plugin_error, heif_suberror_Unspecified, "not for this decoder" };
}

// --- Colours ---

// From luma and chroma to RGB, in 65536ths.
struct Matrix {
    std::array<int, 256> luma{};
    int redFromCr = 0, greenFromCb = 0, greenFromCr = 0, blueFromCb = 0;

    // From the weights of red and blue in luma.
    static Matrix of(double red, double blue, bool full)
    {
        constexpr double one = 65536, half = 32768;
        const double scale = full ? one : one * 255 / 219, chroma = full ? one : one * 255 / 224;
        const double green = 1 - red - blue;
        const auto rounded = [](double value) { return int(std::lround(value)); };
        Matrix matrix;
        for (int y = 0; y < 256; ++y)
            matrix.luma[size_t(y)] = rounded(scale * (full ? y : y - 16) + half);
        matrix.redFromCr = rounded(chroma * 2 * (1 - red));
        matrix.greenFromCb = rounded(-chroma * 2 * blue * (1 - blue) / green);
        matrix.greenFromCr = rounded(-chroma * 2 * red * (1 - red) / green);
        matrix.blueFromCb = rounded(chroma * 2 * (1 - blue));
        return matrix;
    }
};

// Nothing for those that photos do not have.
std::optional<Matrix> matrixOf(LumaCoding coding)
{
    switch (coding.matrix) {
    case heif_matrix_coefficients_ITU_R_BT_709_5:
        return Matrix::of(0.2126, 0.0722, coding.fullRange);
    case heif_matrix_coefficients_unspecified:
    case heif_matrix_coefficients_ITU_R_BT_470_6_System_B_G:
    case heif_matrix_coefficients_ITU_R_BT_601_6:
        return Matrix::of(0.299, 0.114, coding.fullRange);
    default:
        return std::nullopt;
    }
}

// The sums of a matrix lie in [-384, 640): a table bounds them in one step.
constexpr int lowestSum = -384;
constexpr auto boundedSums = [] {
    std::array<uint8_t, 1024> bytes{};
    for (int i = 0; i < 1024; ++i)
        bytes[size_t(i)] = uint8_t(i + lowestSum < 0 ? 0 : i + lowestSum > 255 ? 255 : i + lowestSum);
    return bytes;
}();

uint8_t bounded(int sum)
{
    return boundedSums[size_t((sum >> 16) - lowestSum)];
}

// --- Planes ---

struct Planes {
    std::array<const uint8_t*, 3> bytes{};
    std::array<int, 3> stride{};
    const uint8_t* row(size_t plane, int y) const { return bytes[plane] + qsizetype(y) * stride[plane]; }
};

// Eight bits, chroma at half the width and height. Nothing for all else.
std::optional<Planes> planesOf(const de265_image* picture, QSize size)
{
    Planes planes;
    const QSize half((size.width() + 1) / 2, (size.height() + 1) / 2);
    if (size.isEmpty() || de265_get_chroma_format(picture) != de265_chroma_420)
        return std::nullopt;
    for (int i = 0; i < 3; ++i) {
        const QSize own(de265_get_image_width(picture, i), de265_get_image_height(picture, i));
        planes.bytes[size_t(i)] = de265_get_image_plane(picture, i, &planes.stride[size_t(i)]);
        if (de265_get_bits_per_pixel(picture, i) != 8 || own != (i == 0 ? size : half) || !planes.bytes[size_t(i)])
            return std::nullopt;
    }
    return planes;
}

// Writes one row of red, green and blue.
void convertRow(const Planes& from, const Matrix& matrix, int y, int width, const std::array<uint8_t*, 3>& to)
{
    const uint8_t *lumas = from.row(0, y), *cbs = from.row(1, y / 2), *crs = from.row(2, y / 2);
    uint8_t *reds = to[0], *greens = to[1], *blues = to[2];
    for (int x = 0; x < width; ++x) {
        const int luma = matrix.luma[lumas[x]], cb = cbs[x / 2] - 128, cr = crs[x / 2] - 128;
        reds[x] = bounded(luma + matrix.redFromCr * cr);
        greens[x] = bounded(luma + matrix.greenFromCb * cb + matrix.greenFromCr * cr);
        blues[x] = bounded(luma + matrix.blueFromCb * cb);
    }
}

heif_error toImage(const de265_image* picture, heif_image** result)
{
    static constexpr std::array channels{ heif_channel_R, heif_channel_G, heif_channel_B };
    const LumaCoding stream{ de265_get_image_matrix_coefficients(picture),
        de265_get_image_full_range_flag(picture) != 0 };
    const QSize size(de265_get_image_width(picture, 0), de265_get_image_height(picture, 0));
    const auto matrix = matrixOf(request.container.value_or(stream));
    const auto planes = planesOf(picture, size);
    if (!matrix || !planes
        || heif_image_create(size.width(), size.height(), heif_colorspace_RGB, heif_chroma_444, result).code
            != heif_error_Ok)
        return refused();
    std::array<uint8_t*, 3> to{};
    std::array<int, 3> stride{};
    for (size_t i = 0; i < 3; ++i) {
        if (heif_image_add_plane(*result, channels[i], size.width(), size.height(), 8).code == heif_error_Ok)
            to[i] = heif_image_get_plane(*result, channels[i], &stride[i]);
        if (!to[i]) {
            heif_image_release(*result);
            *result = nullptr;
            return refused();
        }
    }
    for (int y = 0; y < size.height(); ++y) {
        convertRow(*planes, *matrix, y, size.width(), to);
        for (size_t i = 0; i < 3; ++i)
            to[i] += stride[i];
    }
    return done();
}

// --- The decoder, as libheif calls it ---

de265_decoder_context* decoderOf(void* raw)
{
    return static_cast<de265_decoder_context*>(raw);
}

// Units of the stream, each with its length in four bytes in front of it.
heif_error push(void* raw, const void* data, size_t size)
{
    const auto* at = static_cast<const uint8_t*>(data);
    while (size > 4) {
        const size_t length = qFromBigEndian<quint32>(at);
        if (length > size - 4 || length > size_t(INT_MAX)
            || !de265_isOK(de265_push_NAL(decoderOf(raw), at + 4, int(length), 0, nullptr)))
            return refused();
        at += 4 + length;
        size -= 4 + length;
    }
    return done();
}

heif_error decode(void* raw, heif_image** result)
{
    *result = nullptr;
    de265_flush_data(decoderOf(raw));
    for (int more = 1; more != 0 && de265_decode(decoderOf(raw), &more) == DE265_OK;) {
        if (const de265_image* picture = de265_get_next_picture(decoderOf(raw)))
            return toImage(picture, result);
    }
    return refused();
}

const heif_decoder_plugin& plugin()
{
    constexpr int ahead = 200;  // libheif's own decoders say 100
    static const heif_decoder_plugin plugin{
        .plugin_api_version = 3,
        .get_plugin_name = [] { return "HEVC to RGB"; },
        .init_plugin = nullptr,
        .deinit_plugin = nullptr,
        .does_support_format = [](heif_compression_format format) -> int {
            return request.active && format == heif_compression_HEVC ? ahead : 0;
        },
        .new_decoder = [](void** decoder) -> heif_error {
            *decoder = de265_new_decoder();
            return *decoder ? done() : refused();
        },
        .free_decoder = [](void* decoder) { de265_free_decoder(decoderOf(decoder)); },
        .push_data = push,
        .decode_image = decode,
        .set_strict_decoding = [](void*, int) {},
        .id_name = "quorbel-hevc",
    };
    return plugin;
}

}  // namespace

HevcToRgb::HevcToRgb(const heif_image_handle* image)
{
    static std::once_flag registered;
    std::call_once(registered, [] { heif_register_decoder_plugin(&plugin()); });
    heif_color_profile_nclx* nclx = nullptr;
    request.active = heif_image_handle_has_alpha_channel(image) == 0
        && heif_image_handle_get_luma_bits_per_pixel(image) == 8
        && heif_image_handle_get_chroma_bits_per_pixel(image) == 8;
    if (heif_image_handle_get_nclx_color_profile(image, &nclx).code == heif_error_Ok && nclx) {
        request.container = LumaCoding{ int(nclx->matrix_coefficients), nclx->full_range_flag != 0 };
        heif_nclx_color_profile_free(nclx);
    }
}

HevcToRgb::~HevcToRgb()
{
    request = {};
}

}  // namespace Quorbel
