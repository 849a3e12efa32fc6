#include "platform/images/formats/Jpeg2000Format.h"

#include "platform/images/Release.h"
#include "platform/images/color/ColorManagement.h"
#include "platform/images/gate/HeaderGate.h"

#include <QtEndian>

#include <openjpeg.h>

#include <array>
#include <memory>
#include <vector>

namespace Quorbel {

namespace {

using Stream = std::unique_ptr<opj_stream_t, Release<opj_stream_destroy>>;
using Codec = std::unique_ptr<opj_codec_t, Release<opj_destroy_codec>>;
using Image = std::unique_ptr<opj_image_t, Release<opj_image_destroy>>;

// --- Header ---

struct CodestreamSize {
    QSize size{};
    qint64 tiles = 0;
    int components = 0;
};

// Where the codestream begins: at once, or in the box "jp2c".
qint64 codestreamAt(QIODevice& device, ImageFormat format)
{
    constexpr int maxBoxes = 1024;
    qint64 at = 0;
    for (int i = 0; i < maxBoxes && format == ImageFormat::jp2; ++i) {
        device.seek(at);
        const QByteArray head = device.read(16);
        if (head.size() < 16)
            return -1;
        const auto length = qFromBigEndian<quint32>(head.constData());
        const bool isLong = length == 1;
        if (head.sliced(4, 4) == "jp2c")
            return at + (isLong ? 16 : 8);
        const qint64 step = isLong ? qFromBigEndian<qint64>(head.constData() + 8) : length;
        if (step < 8 || step > device.size() - at)
            return -1;
        at += step;
    }
    return format == ImageFormat::jp2 ? -1 : 0;
}

// The SIZ segment, which always comes first.
std::optional<CodestreamSize> readSize(QIODevice& device, ImageFormat format)
{
    const qint64 at = codestreamAt(device, format);
    device.seek(qMax<qint64>(at, 0));
    const QByteArray head = device.read(42);
    device.seek(0);
    if (at < 0 || head.size() < 42 || !head.startsWith(QByteArrayView("\xff\x4f\xff\x51", 4)))
        return std::nullopt;
    const auto number = [&](int index) {
        return qint64(qFromBigEndian<quint32>(head.constData() + 8 + qsizetype(index) * 4));
    };
    const qint64 right = number(0), bottom = number(1), left = number(2), top = number(3);
    const qint64 tileWidth = number(4), tileHeight = number(5), tileLeft = number(6), tileTop = number(7);
    if (right <= left || bottom <= top || right - left > INT_MAX || bottom - top > INT_MAX || tileWidth <= 0
        || tileHeight <= 0)
        return std::nullopt;
    CodestreamSize size;
    size.size = QSize(int(right - left), int(bottom - top));
    size.tiles = ((right - tileLeft + tileWidth - 1) / tileWidth) * ((bottom - tileTop + tileHeight - 1) / tileHeight);
    size.components = qFromBigEndian<quint16>(head.constData() + 40);
    return size;
}

// --- Reading ---

QIODevice& deviceOf(void* userdata)
{
    return *static_cast<QIODevice*>(userdata);
}

OPJ_SIZE_T readBytes(void* buffer, OPJ_SIZE_T count, void* from)
{
    const qint64 got = deviceOf(from).read(static_cast<char*>(buffer), qint64(count));
    return got > 0 ? OPJ_SIZE_T(got) : OPJ_SIZE_T(-1);
}

OPJ_OFF_T skipBytes(OPJ_OFF_T count, void* from)
{
    QIODevice& device = deviceOf(from);
    return count >= 0 && device.pos() + count <= device.size() && device.seek(device.pos() + count) ? count : -1;
}

OPJ_BOOL seekTo(OPJ_OFF_T position, void* from)
{
    return position >= 0 && position <= deviceOf(from).size() && deviceOf(from).seek(position);
}

Stream openStream(QIODevice& device)
{
    Stream stream(opj_stream_default_create(OPJ_TRUE));
    opj_stream_set_user_data(stream.get(), &device, nullptr);
    opj_stream_set_user_data_length(stream.get(), OPJ_UINT64(device.size()));
    opj_stream_set_read_function(stream.get(), readBytes);
    opj_stream_set_skip_function(stream.get(), skipBytes);
    opj_stream_set_seek_function(stream.get(), seekTo);
    return stream;
}

// How often the picture can be halved and still is as large as asked.
int reductionFor(const opj_codestream_info_v2_t& info, QSize size, int longSide)
{
    const opj_tccp_info_t* components = info.m_default_tile_info.tccp_info;
    int levels = components ? int(components[0].numresolutions) - 1 : 0;
    for (OPJ_UINT32 i = 1; components && i < info.nbcomps; ++i)
        levels = qMin(levels, int(components[i].numresolutions) - 1);
    int reduction = 0;
    while (reduction < levels && (qMax(size.width(), size.height()) >> (reduction + 1)) >= longSide)
        ++reduction;
    return reduction;
}

Image decodeAt(const DecodeSource& source, ImageFormat format, QSize size)
{
    source.device.seek(0);
    const Stream stream = openStream(source.device);
    const Codec codec(opj_create_decompress(format == ImageFormat::jp2 ? OPJ_CODEC_JP2 : OPJ_CODEC_J2K));
    opj_dparameters_t parameters{};
    opj_set_default_decoder_parameters(&parameters);
    opj_image_t* header = nullptr;
    // Strict, as it is by default: the lenient mode of version 2.5.0 reads beyond its memory when a file is cut off.
    if (!codec || !opj_setup_decoder(codec.get(), &parameters) || !opj_read_header(stream.get(), codec.get(), &header))
        return {};
    Image image(header);
    opj_codestream_info_v2_t* info = opj_get_cstr_info(codec.get());
    const int reduction = info ? reductionFor(*info, size, source.longSide) : 0;
    opj_destroy_cstr_info(&info);
    if (reduction > 0 && !opj_set_decoded_resolution_factor(codec.get(), OPJ_UINT32(reduction)))
        return {};
    const QSize reduced(size.width() >> reduction, size.height() >> reduction);
    if (!HeaderGate::allows(reduced.expandedTo(QSize(1, 1)), true))
        return {};
    return opj_decode(codec.get(), stream.get(), image.get()) ? std::move(image) : Image();
}

// --- Pixels ---

// One channel, eight bits, stretched to the picture's size where it is subsampled.
class Channel {
public:
    Channel(const opj_image_comp_t& component, QSize size)
        : m_component(component)
        , m_size(size)
        , m_offset(component.sgnd ? qint64(1) << (component.prec - 1) : 0)
        , m_most((qint64(1) << component.prec) - 1)
    {
    }
    static bool isUsable(const opj_image_comp_t& component)
    {
        return component.data && component.w > 0 && component.h > 0 && component.prec >= 1 && component.prec <= 31;
    }
    // Writes one row of the picture, as wide as that is.
    void read(int y, uchar* to) const
    {
        const int width = m_size.width();
        const qint64 row = qint64(y) * m_component.h / m_size.height();
        const OPJ_INT32* from = m_component.data + row * m_component.w;
        if (m_most == 255 && m_component.w == OPJ_UINT32(width)) {
            const int offset = int(m_offset);
            for (int x = 0; x < width; ++x)
                to[x] = uchar(qBound(-offset, from[x], 255 - offset) + offset);
            return;
        }
        for (int x = 0; x < width; ++x) {
            const qint64 value = from[qint64(x) * m_component.w / width] + m_offset;
            to[x] = uchar(qBound<qint64>(0, value, m_most) * 255 / m_most);
        }
    }

private:
    const opj_image_comp_t& m_component;
    QSize m_size;
    qint64 m_offset;
    qint64 m_most;
};

uchar clampedByte(double value)
{
    return uchar(qBound(0.0, value + 0.5, 255.0));
}

// ITU-R BT.601, full range.
QRgb fromYCC(int y, int cb, int cr, int alpha)
{
    return qRgba(clampedByte(y + 1.402 * (cr - 128)), clampedByte(y - 0.344136 * (cb - 128) - 0.714136 * (cr - 128)),
        clampedByte(y + 1.772 * (cb - 128)), alpha);
}

bool isYCC(const opj_image_t& image)
{
    return image.color_space == OPJ_CLRSPC_SYCC
        || (image.color_space != OPJ_CLRSPC_SRGB && image.numcomps >= 3 && image.comps[0].dx == 1
            && image.comps[1].dx > 1 && image.comps[2].dx > 1);
}

// The rows of several channels, one at a time.
class Rows {
public:
    Rows(const QList<Channel>& channels, QSize size)
        : m_channels(channels)
        , m_width(size_t(size.width()))
        , m_bytes(size_t(channels.size()) * m_width)
    {
    }
    void read(int y)
    {
        for (qsizetype i = 0; i < m_channels.size(); ++i)
            m_channels[i].read(y, m_bytes.data() + size_t(i) * m_width);
    }
    // Stays where it is from row to row.
    const uchar* of(int channel) const { return m_bytes.data() + size_t(channel) * m_width; }

private:
    const QList<Channel>& m_channels;
    size_t m_width;
    std::vector<uchar> m_bytes;
};

QByteArray inksOf(const QList<Channel>& channels, QSize size)
{
    QByteArray inks(qsizetype(size.width()) * size.height() * 4, Qt::Uninitialized);
    char* to = inks.data();
    Rows rows(channels, size);
    for (int y = 0; y < size.height(); ++y) {
        rows.read(y);
        for (int x = 0; x < size.width(); ++x)
            for (int channel = 0; channel < 4; ++channel)
                *to++ = char(rows.of(channel)[x]);
    }
    return inks;
}

QImage colorsOf(const QList<Channel>& colors, const Channel* alpha, QSize size, bool ycc)
{
    QImage result(size, alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    Rows rows(colors, size);
    const bool gray = colors.size() < 3;
    const uchar *first = rows.of(0), *second = rows.of(gray ? 0 : 1), *third = rows.of(gray ? 0 : 2);
    std::vector<uchar> opacity(size_t(size.width()), 255);
    for (int y = 0; y < result.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(result.scanLine(y));
        rows.read(y);
        if (alpha)
            alpha->read(y, opacity.data());
        for (int x = 0; x < size.width(); ++x) {
            const int opaque = opacity[size_t(x)];
            row[x] = ycc && !gray ? fromYCC(first[x], second[x], third[x], opaque)
                                  : qRgba(first[x], second[x], third[x], opaque);
        }
    }
    return result;
}

DecodedFrame frameOf(const opj_image_t& image)
{
    constexpr OPJ_UINT32 mostChannels = 5;
    DecodedFrame frame;
    QList<Channel> channels;
    std::optional<Channel> alpha;
    const QSize size(int(image.comps[0].w), int(image.comps[0].h));
    for (OPJ_UINT32 i = 0; i < qMin(image.numcomps, mostChannels); ++i) {
        const opj_image_comp_t& component = image.comps[i];
        if (!Channel::isUsable(component))
            return frame;
        if (component.alpha)
            alpha.emplace(component, size);
        else
            channels.append(Channel(component, size));
    }
    if (channels.isEmpty())
        return frame;
    QByteArray icc;
    if (image.icc_profile_buf && image.icc_profile_len > 0)
        icc = QByteArray(reinterpret_cast<const char*>(image.icc_profile_buf), qsizetype(image.icc_profile_len));
    if (image.color_space == OPJ_CLRSPC_CMYK && channels.size() >= 4) {
        frame.image = ColorManagement::fromCMYK(inksOf(channels, size), size, icc);
    } else {
        frame.image = colorsOf(channels, alpha ? &*alpha : nullptr, size, isYCC(image));
        frame.icc = icc;
    }
    frame.outcome = DecodedImage::Outcome::decoded;
    return frame;
}

}  // namespace

DecodedFrame Jpeg2000Format::decode(const DecodeSource& source, ImageFormat format)
{
    // The library keeps some ten kilobytes for every tile and channel before it looks at the first one.
    constexpr qint64 mostTiles = 4096;
    constexpr int mostComponents = 16;
    const auto size = readSize(source.device, format);
    if (!size)
        return {};
    DecodedFrame refused;
    refused.outcome = DecodedImage::Outcome::tooLarge;
    if (!HeaderGate::allows(size->size, false) || size->tiles > mostTiles || size->components > mostComponents)
        return refused;
    const Image image = decodeAt(source, format, size->size);
    return image && image->numcomps > 0 && image->comps ? frameOf(*image) : DecodedFrame();
}

}  // namespace Quorbel
