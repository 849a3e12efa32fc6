#include "tests/platform/images/ImageFiles.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <QTemporaryDir>
#include <QtEndian>

#include <cstdio>

#include <jpeglib.h>
#include <jxl/encode_cxx.h>
#include <lcms2.h>
#include <libheif/heif.h>
#include <openjpeg.h>
#include <tiffio.h>

using namespace Qt::StringLiterals;

#ifdef __SANITIZE_ADDRESS__
// The HEVC encoder, which only tests use, never frees some of its rows.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions()  // NOLINT(bugprone-reserved-identifier)
{
    return "leak:libx265";
}
#endif

namespace ImageFiles {

namespace {

template <typename T>
QByteArray big(T value)
{
    QByteArray bytes(sizeof(T), '\0');
    qToBigEndian<T>(value, bytes.data());
    return bytes;
}

template <typename T>
QByteArray little(T value)
{
    QByteArray bytes(sizeof(T), '\0');
    qToLittleEndian<T>(value, bytes.data());
    return bytes;
}

struct TiffCallbacks {
    static QBuffer& buffer(thandle_t handle) { return *static_cast<QBuffer*>(handle); }
    static tmsize_t read(thandle_t handle, void* data, tmsize_t length)
    {
        return buffer(handle).read(static_cast<char*>(data), length);
    }
    static tmsize_t write(thandle_t handle, void* data, tmsize_t length)
    {
        return buffer(handle).write(static_cast<const char*>(data), length);
    }
    static toff_t seek(thandle_t handle, toff_t offset, int from)
    {
        QBuffer& to = buffer(handle);
        const qint64 start = from == SEEK_CUR ? to.pos() : from == SEEK_END ? to.size() : 0;
        return to.seek(start + qint64(offset)) ? toff_t(to.pos()) : toff_t(-1);
    }
    static int close(thandle_t) { return 0; }
    static toff_t size(thandle_t handle) { return toff_t(buffer(handle).size()); }
};

// The part of the picture of `inks` that lies at that place, as samples of a tile, a strip or one plane of them.
QByteArray tiffSamples(const QByteArray& inks, QSize size, QRect part, const ImageFiles::TiffLayout& layout, int plane)
{
    QByteArray samples;
    const auto add = [&](int value) {
        const auto deep = quint16(value * 257);
        samples += layout.bits == 8 ? QByteArray(1, char(value))
                                    : QByteArray(reinterpret_cast<const char*>(&deep), sizeof deep);
    };
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x) {
            const bool inside = x < size.width() && y < size.height();
            const auto ink = [&](int i) {
                return inside && i < 4 ? quint8(inks[(qsizetype(y) * size.width() + x) * 4 + i]) : 0;
            };
            for (int i = layout.planes ? plane : 0; i < (layout.planes ? plane + 1 : 4 + layout.extra); ++i)
                add(ink(i));
        }
    return samples;
}

void writeTiffPixels(TIFF* tiff, const QByteArray& inks, QSize size, const ImageFiles::TiffLayout& layout)
{
    const QSize unit =
        layout.tile ? QSize(layout.tile, layout.tile) : QSize(size.width(), qMin(layout.rowsPerStrip, size.height()));
    quint32 index = 0;
    for (int plane = 0; plane < (layout.planes ? 4 + layout.extra : 1); ++plane)
        for (int y = 0; y < size.height(); y += unit.height())
            for (int x = 0; x < size.width(); x += unit.width(), ++index) {
                const int rows = layout.tile ? unit.height() : qMin(unit.height(), size.height() - y);
                QByteArray samples = tiffSamples(inks, size, QRect(x, y, unit.width(), rows), layout, plane);
                if (layout.tile)
                    TIFFWriteEncodedTile(tiff, index, samples.data(), samples.size());
                else
                    TIFFWriteEncodedStrip(tiff, index, samples.data(), samples.size());
            }
}

// The pixels as the library takes them.
heif_image* heifImage(const QImage& image, int bits = 8)
{
    const bool isDeep = bits > 8;
    const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
    heif_image* pixels = nullptr;
    heif_image_create(rgb.width(), rgb.height(), heif_colorspace_RGB,
        isDeep ? heif_chroma_interleaved_RRGGBB_LE : heif_chroma_interleaved_RGB, &pixels);
    heif_image_add_plane(pixels, heif_channel_interleaved, rgb.width(), rgb.height(), bits);
    int stride = 0;
    uint8_t* plane = heif_image_get_plane(pixels, heif_channel_interleaved, &stride);
    for (int y = 0; y < rgb.height(); ++y) {
        const uchar* row = rgb.constScanLine(y);
        uint8_t* to = plane + qsizetype(y) * stride;
        for (int i = 0; i < rgb.width() * 3; ++i) {
            if (isDeep)
                qToLittleEndian(quint16(row[i] << (bits - 8)), to + 2 * i);
            else
                to[i] = row[i];
        }
    }
    return pixels;
}

void enlarge(QByteArray& file, qsizetype at, qsizetype by)
{
    file.replace(at, 4, big<quint32>(qFromBigEndian<quint32>(file.constData() + at) + quint32(by)));
}

// What lies behind the tables has moved.
void shiftLocations(QByteArray& file, qsizetype by)
{
    qsizetype at = file.indexOf("iloc") + 4;
    const auto number = [&](qsizetype length) {
        quint64 value = 0;
        for (; length > 0; --length)
            value = value << 8 | quint8(file[at++]);
        return value;
    };
    const auto shift = [&](qsizetype length) {
        const quint64 value = number(length) + quint64(by);
        for (qsizetype i = 0; i < length; ++i)
            file[at - 1 - i] = char(value >> (8 * i) & 0xFF);
    };
    const auto version = number(1);
    number(3);
    const auto sizes = number(2);
    const auto offset = qsizetype(sizes >> 12), length = qsizetype(sizes >> 8 & 15), base = qsizetype(sizes >> 4 & 15);
    for (auto items = number(version < 2 ? 2 : 4); items > 0; --items) {
        number(version < 2 ? 2 : 4);
        const bool inFile = version == 0 || (number(2) & 15) == 0;
        number(2 + base);
        for (auto extents = number(2); extents > 0; --extents) {
            number(version == 0 ? 0 : qsizetype(sizes & 15));
            if (inFile)
                shift(offset);
            else
                number(offset);
            number(length);
        }
    }
}

// Bytes put into the tables, inside boxes of these types.
void insertInBoxes(QByteArray& file, qsizetype at, const QByteArray& bytes, const QList<QByteArray>& boxes)
{
    for (const QByteArray& box : boxes)
        enlarge(file, file.indexOf(box) - 4, bytes.size());
    file.insert(at, bytes);
    shiftLocations(file, bytes.size());
}

// A sequence parameter set as far as the size, and the array of a decoder's record that holds it.
QByteArray sequenceArray(QSize size)
{
    QByteArray bits = QByteArray("0100001000000001") + "0000" + "000" + "1" + QByteArray(96, '1') + "1" + "010";
    for (const int side : { size.width(), size.height() }) {
        const QByteArray value = QByteArray::number(side + 1, 2);
        bits += QByteArray(value.size() - 1, '0') + value;
    }
    bits += QByteArray(8 - bits.size() % 8, '1');
    QByteArray unit;
    for (qsizetype i = 0; i < bits.size(); i += 8)
        unit += char(bits.mid(i, 8).toInt(nullptr, 2));
    return QByteArray("\x21\0\1", 3) + big<quint16>(quint16(unit.size())) + unit;
}

}  // namespace

QImage quarters(QSize size, QImage::Format format)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    const int w = size.width() / 2, h = size.height() / 2;
    painter.fillRect(0, 0, w, h, QColor(220, 20, 20));
    painter.fillRect(w, 0, size.width() - w, h, QColor(20, 180, 20));
    painter.fillRect(0, h, w, size.height() - h, QColor(20, 20, 220));
    painter.end();
    return image.convertToFormat(format);
}

QByteArray written(const QImage& image, const char* format, int quality, bool progressive)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    writer.setProgressiveScanWrite(progressive);
    writer.write(image);
    return bytes;
}

QByteArray heif(const QImage& image, bool av1, const HeifExtras& extras)
{
    heif_context* context = heif_context_alloc();
    heif_encoder* encoder = nullptr;
    heif_context_get_encoder_for_format(context, av1 ? heif_compression_AV1 : heif_compression_HEVC, &encoder);
    heif_encoder_set_lossy_quality(encoder, extras.quality);
    heif_encoder_set_parameter(encoder, av1 ? "speed" : "preset", av1 ? "9" : "ultrafast");
    heif_image* pixels = heifImage(image, extras.bits);
    heif_image* small = heifImage(extras.thumbnailOf.isNull() ? image : extras.thumbnailOf, extras.bits);
    if (!extras.icc.isEmpty())
        heif_image_set_raw_color_profile(pixels, "prof", extras.icc.constData(), size_t(extras.icc.size()));
    heif_color_profile_nclx* nclx = heif_nclx_color_profile_alloc();
    nclx->matrix_coefficients = heif_matrix_coefficients(extras.matrix);
    nclx->full_range_flag = extras.fullRange ? 1 : 0;
    heif_encoding_options* options = heif_encoding_options_alloc();
    if (extras.matrix != HeifExtras().matrix || !extras.fullRange) {
        heif_image_set_nclx_color_profile(pixels, nclx);
        options->macOS_compatibility_workaround_no_nclx_profile = 0;
    }
    heif_image_handle *primary = nullptr, *thumbnail = nullptr;
    heif_context_encode_image(context, pixels, encoder, options, &primary);
    if (extras.thumbnail > 0)
        heif_context_encode_thumbnail(context, small, primary, encoder, options, extras.thumbnail, &thumbnail);
    if (extras.metadata)
        heif_context_add_XMP_metadata(context, primary, "<x/>", 4);
    heif_encoding_options_free(options);
    heif_nclx_color_profile_free(nclx);
    QByteArray bytes;
    heif_writer writer{ .writer_api_version = 1,
        .write = [](heif_context*, const void* data, size_t size, void* to) -> heif_error {
            static_cast<QByteArray*>(to)->append(static_cast<const char*>(data), qsizetype(size));
            return { heif_error_Ok, heif_suberror_Unspecified, "" };
        } };
    heif_context_write(context, &writer, &bytes);
    heif_image_handle_release(thumbnail);
    heif_image_handle_release(primary);
    heif_image_release(small);
    heif_image_release(pixels);
    heif_encoder_release(encoder);
    heif_context_free(context);
    return bytes;
}

QByteArray heifWithProperty(QByteArray file, int item, const QByteArray& type, const QByteArray& content)
{
    const qsizetype boxAt = file.indexOf("ipco") - 4, end = boxAt + qFromBigEndian<quint32>(file.constData() + boxAt);
    char number = 1;
    for (qsizetype at = boxAt + 8; at < end; at += qFromBigEndian<quint32>(file.constData() + at))
        ++number;
    insertInBoxes(file, end, big<quint32>(quint32(8 + content.size())) + type + content, { "meta", "iprp", "ipco" });
    qsizetype entry = file.indexOf("ipma") + 12;
    while (qFromBigEndian<quint16>(file.constData() + entry) != item)
        entry += 3 + quint8(file[entry + 2]);
    file[entry + 2] = char(file[entry + 2] + 1);
    insertInBoxes(
        file, entry + 2 + quint8(file[entry + 2]), QByteArray(1, char(0x80 | number)), { "meta", "iprp", "ipma" });
    return file;
}

QByteArray heifReferring(QByteArray file, const QByteArray& type, int target, const QByteArray& as)
{
    const qsizetype at = file.indexOf(type, file.indexOf("iref"));
    file.replace(at, 4, as.isEmpty() ? type : as);
    const auto count = qFromBigEndian<quint16>(file.constData() + at + 6);
    file.replace(at + 6, 2, big<quint16>(quint16(count + 1)));
    enlarge(file, at - 4, 2);
    insertInBoxes(file, at + 8 + 2 * count, big<quint16>(quint16(target)), { "meta", "iref" });
    return file;
}

QByteArray heifDeclaring(QByteArray file, int picture, QSize size)
{
    qsizetype at = file.indexOf("ispe");
    for (; picture > 0; --picture)
        at = file.indexOf("ispe", at + 4);
    return file.replace(at + 8, 8, big<quint32>(quint32(size.width())) + big<quint32>(quint32(size.height())));
}

QByteArray heifCoding(QByteArray file, QSize size)
{
    const qsizetype record = file.indexOf("hvcC") + 4;
    file[record + 22] = char(file[record + 22] + 1);
    insertInBoxes(file, record + 23, sequenceArray(size), { "meta", "iprp", "ipco", "hvcC" });
    return file;
}

QByteArray jxl(const QImage& image, const QByteArray& icc)
{
    const bool alpha = image.hasAlphaChannel();
    const QImage rgba = image.convertToFormat(alpha ? QImage::Format_RGBA8888 : QImage::Format_RGBX8888);
    const auto encoder = JxlEncoderMake(nullptr);
    JxlBasicInfo info{};
    JxlEncoderInitBasicInfo(&info);
    info.xsize = uint32_t(rgba.width());
    info.ysize = uint32_t(rgba.height());
    info.bits_per_sample = 8;
    info.num_extra_channels = 1;
    info.alpha_bits = 8;
    JxlEncoderSetBasicInfo(encoder.get(), &info);
    JxlColorEncoding color{};
    JxlColorEncodingSetToSRGB(&color, JXL_FALSE);
    if (icc.isEmpty())
        JxlEncoderSetColorEncoding(encoder.get(), &color);
    else
        JxlEncoderSetICCProfile(encoder.get(), reinterpret_cast<const uint8_t*>(icc.constData()), size_t(icc.size()));
    const JxlPixelFormat layout{ 4, JXL_TYPE_UINT8, JXL_NATIVE_ENDIAN, 0 };
    JxlEncoderFrameSettings* settings = JxlEncoderFrameSettingsCreate(encoder.get(), nullptr);
    JxlEncoderFrameSettingsSetOption(settings, JXL_ENC_FRAME_SETTING_EFFORT, 3);
    JxlEncoderAddImageFrame(settings, &layout, rgba.constBits(), size_t(rgba.sizeInBytes()));
    JxlEncoderCloseInput(encoder.get());
    QByteArray bytes(16LL * 1024 * 1024, '\0');
    auto* next = reinterpret_cast<uint8_t*>(bytes.data());
    size_t room = size_t(bytes.size());
    JxlEncoderProcessOutput(encoder.get(), &next, &room);
    bytes.truncate(bytes.size() - qsizetype(room));
    return bytes;
}

QByteArray jpeg2000(const QImage& image, bool boxed, const QByteArray& icc)
{
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath(u"image.jp2"_s).toLocal8Bit();
    opj_cparameters_t parameters{};
    opj_set_default_encoder_parameters(&parameters);
    parameters.tcp_numlayers = 1;
    parameters.tcp_rates[0] = 10;
    parameters.cp_disto_alloc = 1;
    parameters.tcp_mct = 1;
    std::array<opj_image_cmptparm_t, 3> channels{};
    for (auto& channel : channels)
        channel = { .dx = 1,
            .dy = 1,
            .w = OPJ_UINT32(image.width()),
            .h = OPJ_UINT32(image.height()),
            .x0 = 0,
            .y0 = 0,
            .prec = 8,
            .bpp = 8,
            .sgnd = 0 };
    opj_image_t* planes = opj_image_create(3, channels.data(), OPJ_CLRSPC_SRGB);
    planes->x1 = OPJ_UINT32(image.width());
    planes->y1 = OPJ_UINT32(image.height());
    for (int y = 0, at = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x, ++at) {
            const QRgb pixel = image.pixel(x, y);
            planes->comps[0].data[at] = qRed(pixel);
            planes->comps[1].data[at] = qGreen(pixel);
            planes->comps[2].data[at] = qBlue(pixel);
        }
    }
    opj_codec_t* codec = opj_create_compress(boxed ? OPJ_CODEC_JP2 : OPJ_CODEC_J2K);
    opj_setup_encoder(codec, &parameters, planes);
    opj_stream_t* stream = opj_stream_create_default_file_stream(path.constData(), OPJ_FALSE);
    opj_start_compress(codec, planes, stream);
    opj_encode(codec, stream);
    opj_end_compress(codec, stream);
    opj_stream_destroy(stream);
    opj_destroy_codec(codec);
    opj_image_destroy(planes);
    QFile file(QString::fromLocal8Bit(path));
    QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const qsizetype headerAt = bytes.indexOf("jp2h") - 4, colorAt = bytes.indexOf("colr") - 4;
    if (icc.isEmpty() || headerAt < 0 || colorAt < 0)
        return bytes;
    // The encoder knows the box of colours only with an enumerated space.
    const QByteArray box = big<quint32>(quint32(icc.size()) + 11) + "colr" + QByteArray("\2\0\0", 3) + icc;
    const auto before = qFromBigEndian<quint32>(bytes.constData() + colorAt);
    const auto header = qFromBigEndian<quint32>(bytes.constData() + headerAt);
    bytes.replace(colorAt, before, box);
    return bytes.replace(headerAt, 4, big<quint32>(header - before + quint32(box.size())));
}

QByteArray psd(const QImage& image, int mode, bool packed, bool large, int depth, const QByteArray& icc)
{
    const int channels = mode == 4 ? 4 : mode == 1 ? 1 : 3;
    const auto sample = [&](int channel, int x, int y) {
        const QRgb pixel = image.pixel(x, y);
        const std::array parts{ qRed(pixel), qGreen(pixel), qBlue(pixel), 255 };  // the fourth: no black ink
        return char(parts[size_t(channel)]);
    };
    QByteArray lengths, rows;
    for (int channel = 0; channel < channels; ++channel) {
        for (int y = 0; y < image.height(); ++y) {
            QByteArray row;
            for (int x = 0; x < image.width(); ++x) {
                if (packed)
                    row += '\0';  // a run of one literal byte
                row += QByteArray(depth / 8, sample(channel, x, y));
            }
            rows += row;
            lengths += large ? big<quint32>(quint32(row.size())) : big<quint16>(quint16(row.size()));
        }
    }
    const QByteArray resources = icc.isEmpty() ? QByteArray()
                                               : "8BIM" + big<quint16>(1039) + big<quint16>(0)
            + big<quint32>(quint32(icc.size())) + icc + QByteArray(icc.size() % 2, '\0');
    return "8BPS" + big<quint16>(large ? 2 : 1) + QByteArray(6, '\0') + big<quint16>(quint16(channels))
        + big<quint32>(quint32(image.height())) + big<quint32>(quint32(image.width())) + big<quint16>(quint16(depth))
        + big<quint16>(quint16(mode)) + big<quint32>(0) + big<quint32>(quint32(resources.size())) + resources
        + (large ? big<quint64>(0) : big<quint32>(0)) + big<quint16>(packed ? 1 : 0) + (packed ? lengths : QByteArray())
        + rows;
}

QByteArray gif(const QImage& image)
{
    // Codes of nine bits with a clear code before the table would grow: larger than need be, and simple.
    const QImage indexed = image.convertToFormat(QImage::Format_Indexed8);
    QByteArray palette, codes;
    for (int i = 0; i < 256; ++i) {
        const QRgb color = i < indexed.colorCount() ? indexed.color(i) : 0;
        palette += QByteArray() + char(qRed(color)) + char(qGreen(color)) + char(qBlue(color));
    }
    quint32 bits = 0;
    int held = 0;
    const auto put = [&](quint32 code) {
        bits |= code << held;
        for (held += 9; held >= 8; held -= 8, bits >>= 8)
            codes += char(bits & 0xFF);
    };
    for (int y = 0, count = 0; y < indexed.height(); ++y) {
        for (int x = 0; x < indexed.width(); ++x, ++count) {
            if (count % 200 == 0)
                put(256);
            put(quint32(indexed.pixelIndex(x, y)));
        }
    }
    put(257);
    codes += char(bits & 0xFF);
    QByteArray blocks;
    for (qsizetype at = 0; at < codes.size(); at += 255) {
        const QByteArray block = codes.mid(at, 255);
        blocks += char(block.size()) + block;
    }
    const QByteArray size = little<quint16>(quint16(image.width())) + little<quint16>(quint16(image.height()));
    return "GIF89a" + size + QByteArray("\xF7\0\0", 3) + palette + ',' + QByteArray(4, '\0') + size + '\0' + '\x08'
        + blocks + '\0' + ';';
}

QByteArray cmykJpeg(QSize size, const QByteArray& inks, const QByteArray& icc)
{
    jpeg_compress_struct info{};
    jpeg_error_mgr errors{};
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char* out = nullptr;
    unsigned long length = 0;
    jpeg_mem_dest(&info, &out, &length);
    info.image_width = JDIMENSION(size.width());
    info.image_height = JDIMENSION(size.height());
    info.input_components = 4;
    info.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&info);
    jpeg_start_compress(&info, TRUE);
    if (!icc.isEmpty())
        jpeg_write_icc_profile(&info, reinterpret_cast<const JOCTET*>(icc.constData()), unsigned(icc.size()));
    QByteArray inverted = inks;
    for (char& ink : inverted)
        ink = char(255 - quint8(ink));
    while (info.next_scanline < info.image_height) {
        auto* row = reinterpret_cast<JSAMPROW>(inverted.data() + qsizetype(info.next_scanline) * size.width() * 4);
        jpeg_write_scanlines(&info, &row, 1);
    }
    jpeg_finish_compress(&info);
    QByteArray bytes(reinterpret_cast<const char*>(out), qsizetype(length));
    jpeg_destroy_compress(&info);
    free(out);
    return bytes;
}

QByteArray inksOf(const QImage& image)
{
    QByteArray inks;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            inks +=
                QByteArray() + char(255 - qRed(pixel)) + char(255 - qGreen(pixel)) + char(255 - qBlue(pixel)) + '\0';
        }
    return inks;
}

QByteArray cmykTiff(QSize size, const QByteArray& inks, const QByteArray& icc, const TiffLayout& layout)
{
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    TIFF* tiff = TIFFClientOpen("made", layout.bigEndian ? "wb" : "wl", &buffer, TiffCallbacks::read,
        TiffCallbacks::write, TiffCallbacks::seek, TiffCallbacks::close, TiffCallbacks::size, nullptr, nullptr);
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, size.width());
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, size.height());
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, layout.bits);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, 4 + layout.extra);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_SEPARATED);
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, layout.compression);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, layout.planes ? PLANARCONFIG_SEPARATE : PLANARCONFIG_CONTIG);
    if (layout.differences)
        TIFFSetField(tiff, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL);
    if (layout.tile) {
        TIFFSetField(tiff, TIFFTAG_TILEWIDTH, layout.tile);
        TIFFSetField(tiff, TIFFTAG_TILELENGTH, layout.tile);
    } else {
        TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, qMin(layout.rowsPerStrip, size.height()));
    }
    if (!icc.isEmpty())
        TIFFSetField(tiff, TIFFTAG_ICCPROFILE, quint32(icc.size()), icc.constData());
    // The directory first: a file that is cut off then still has one, as those of most programs have.
    TIFFDeferStrileArrayWriting(tiff);
    TIFFWriteCheck(tiff, layout.tile != 0, "made");
    TIFFWriteDirectory(tiff);
    TIFFSetDirectory(tiff, 0);
    writeTiffPixels(tiff, inks, size, layout);
    TIFFForceStrileArrayWriting(tiff);
    TIFFClose(tiff);
    return buffer.data();
}

QByteArray grayInkProfile()
{
    cmsHPROFILE profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 2.1);
    cmsSetDeviceClass(profile, cmsSigOutputClass);
    cmsSetColorSpace(profile, cmsSigCmykData);
    cmsSetPCS(profile, cmsSigLabData);
    cmsPipeline* pipeline = cmsPipelineAlloc(nullptr, 4, 3);
    cmsStage* table = cmsStageAllocCLut16bit(nullptr, 2, 4, 3, nullptr);
    cmsStageSampleCLut16bit(
        table,
        [](const cmsUInt16Number*, cmsUInt16Number* lab, void*) -> cmsInt32Number {
            lab[0] = 0x8000;  // L* of 50
            lab[1] = lab[2] = 0x8000;
            return TRUE;
        },
        nullptr, 0);
    cmsPipelineInsertStage(pipeline, cmsAT_BEGIN, table);
    for (const auto tag : { cmsSigAToB0Tag, cmsSigAToB1Tag })
        cmsWriteTag(profile, tag, pipeline);
    cmsUInt32Number length = 0;
    cmsSaveProfileToMem(profile, nullptr, &length);
    QByteArray bytes(qsizetype(length), '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &length);
    cmsPipelineFree(pipeline);
    cmsCloseProfile(profile);
    return bytes;
}

QByteArray exifBlock(int orientation, const QByteArray& thumbnail)
{
    const auto entry = [](quint16 tag, quint16 type, quint32 value) {
        const QByteArray bytes = type == 3 ? little<quint16>(quint16(value)) + QByteArray(2, '\0') : little(value);
        return little(tag) + little(type) + little<quint32>(1) + bytes;
    };
    constexpr quint32 secondAt = 8 + 2 + 12 + 4, thumbnailAt = secondAt + 2 + 24 + 4;
    QByteArray block = QByteArray("II*\0", 4) + little<quint32>(8) + little<quint16>(1)
        + entry(274, 3, quint32(orientation)) + little<quint32>(thumbnail.isEmpty() ? 0 : secondAt);
    if (!thumbnail.isEmpty())
        block += little<quint16>(2) + entry(513, 4, thumbnailAt) + entry(514, 4, quint32(thumbnail.size()))
            + little<quint32>(0) + thumbnail;
    return block;
}

QByteArray withExif(const QByteArray& jpeg, const QByteArray& exif)
{
    const QByteArray payload = QByteArray("Exif\0\0", 6) + exif;
    return jpeg.first(2) + "\xff\xe1" + big<quint16>(quint16(payload.size() + 2)) + payload + jpeg.sliced(2);
}

QByteArray pngWithChunk(const QByteArray& png, const QByteArray& type, const QByteArray& data)
{
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : type + data) {
        crc ^= quint8(byte);
        for (int i = 0; i < 8; ++i)
            crc = crc & 1 ? crc >> 1 ^ 0xEDB88320U : crc >> 1;
    }
    constexpr qsizetype afterHeader = 33;
    return png.first(afterHeader) + big<quint32>(quint32(data.size())) + type + data + big<quint32>(~crc)
        + png.sliced(afterHeader);
}

QByteArray webpWithExif(QByteArray webp, const QByteArray& exif)
{
    constexpr qsizetype flagsAt = 20;
    constexpr char hasExif = 0x08;
    webp[flagsAt] = char(webp[flagsAt] | hasExif);
    webp += "EXIF" + little(quint32(exif.size())) + exif + QByteArray(exif.size() % 2, '\0');
    return webp.replace(4, 4, little(quint32(webp.size() - 8)));
}

QByteArray tiffClaiming(QByteArray tiff, quint16 tag, quint32 value)
{
    const auto first = qFromLittleEndian<quint32>(tiff.constData() + 4);
    const int count = qFromLittleEndian<quint16>(tiff.constData() + first);
    for (qsizetype at = first + 2; at < first + 2 + 12LL * count; at += 12)
        if (qFromLittleEndian<quint16>(tiff.constData() + at) == tag)
            return tiff.replace(at + 2, 10, little<quint16>(4) + little<quint32>(1) + little(value));
    return {};
}

QByteArray tiffTurned(QByteArray tiff, int orientation)
{
    const QByteArray entry = little<quint16>(274) + little<quint16>(3) + little<quint32>(1);
    const qsizetype at = tiff.indexOf(entry);
    return at < 0 ? QByteArray() : tiff.replace(at + entry.size(), 2, little(quint16(orientation)));
}

QByteArray dng(const QImage& image, const QByteArray& preview, QSize claimed)
{
    QByteArray directories, blobs, sensor;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const std::array parts{ qRed(pixel), qGreen(pixel), qBlue(pixel) };
            sensor += little(quint16(parts[size_t(x % 2 + y % 2)] * 257));
        }
    constexpr quint32 firstAt = 8, blobsAt = 1024;
    const auto kept = [&](const QByteArray& bytes) {
        const auto at = blobsAt + quint32(blobs.size());
        blobs += bytes + QByteArray(bytes.size() % 2, '\0');
        return at;
    };
    int entries = 0;
    const auto entry = [&](quint16 tag, quint16 type, quint32 count, quint32 value) {
        directories += little(tag) + little(type) + little(count) + little(value);
        ++entries;
    };
    const auto frame = [&](QSize size, quint32 bits, quint32 compression, quint32 photometric, const QByteArray& data,
                           quint32 samples) {
        entry(256, 4, 1, quint32(size.width()));
        entry(257, 4, 1, quint32(size.height()));
        entry(258, 3, samples, samples == 1 ? bits : kept(little(quint16(bits)).repeated(samples)));
        entry(259, 3, 1, compression);
        entry(262, 3, 1, photometric);
        entry(273, 4, 1, kept(data));
        entry(277, 3, 1, samples);
        entry(278, 4, 1, quint32(size.height()));
        entry(279, 4, 1, quint32(data.size()));
    };
    const auto closed = [&] {
        const QByteArray directory = little(quint16(entries)) + directories + little(quint32(0));
        directories.clear();
        entries = 0;
        return directory;
    };
    entry(254, 4, 1, 0);
    frame(claimed.isValid() ? claimed : image.size(), 16, 1, 32803, sensor, 1);
    entry(33421, 3, 2, 2 | 2 << 16);
    entry(33422, 1, 4, 0 | 1 << 8 | 1 << 16 | 2 << 24);
    const quint32 sensorAt = kept(closed());
    entry(254, 4, 1, 1);
    if (!preview.isEmpty())
        frame(image.size(), 8, 7, 6, preview, 3);
    entry(330, 4, 1, sensorAt);
    entry(50706, 1, 4, 1 | 4 << 8);
    entry(50708, 2, 5, kept(QByteArray("Made\0", 5)));
    return QByteArray("II*\0", 4) + little(firstAt) + closed().leftJustified(blobsAt - firstAt, '\0') + blobs;
}

QByteArray bomb(const QByteArray& format)
{
    const QByteArray jpegStart("\xff\xd8\xff\xe0\x00\x10JFIF\0\1\1\0\0\1\0\1\0\0", 20);
    const auto frame = [](char marker, const QByteArray& size) {
        return QByteArray("\xff") + marker + QByteArray("\0\x11\x08", 3) + size
            + QByteArray("\x03\x01\x22\0\x02\x11\x01\x03\x11\x01", 10);
    };
    const auto scan = [](int channels) {
        QByteArray bytes = QByteArray("\xff\xda\0", 3) + char(6 + 2 * channels) + char(channels);
        for (int i = 1; i <= channels; ++i)
            bytes += QByteArray() + char(i) + '\0';
        return bytes + QByteArray("\0\x3f\0", 3) + QByteArray(400, '\x55');
    };
    const QByteArray most("\xff\xdc\xff\xdc", 4), large("\x27\x10\x27\x10", 4);  // 65,500 and 10,000 a side
    if (format == "progressive jpg")
        return jpegStart + frame('\xc2', most) + scan(3);
    if (format == "progressive jpg below the limit")
        return jpegStart + frame('\xc2', large) + scan(3);
    if (format == "sequential jpg in several scans")
        return jpegStart + frame('\xc0', most) + scan(1);
    if (format == "png")
        return pngWithChunk(QByteArray("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR", 16) + big<quint32>(100000)
                + big<quint32>(100000) + QByteArray("\x08\x06\0\0\0\0\0\0\0", 9),
            "IDAT", QByteArray(64, 'x'));
    if (format == "gif")
        return QByteArray("GIF89a\xff\xff\xff\xff\xf7\0\0", 13) + QByteArray(900, '\0');
    if (format == "webp")
        return QByteArray("RIFF\x40\0\0\0WEBPVP8X\x0a\0\0\0\0\0\0\0\xff\xff\xff\xff\xff\xff", 30)
            + QByteArray(64, '\0');
    if (format == "tiff") {
        QByteArray bytes = exifBlock(1);
        const QByteArray entries = QByteArray("\x00\x01\x04\0\1\0\0\0\xff\xff\xff\x0f", 12)
            + QByteArray("\x01\x01\x04\0\1\0\0\0\xff\xff\xff\x0f", 12);
        return bytes.first(8) + QByteArray("\2\0", 2) + entries + QByteArray(64, '\0');
    }
    if (format == "psd")
        return "8BPS" + QByteArray("\0\1\0\0\0\0\0\0\0\3", 10) + big<quint32>(290000) + big<quint32>(290000)
            + QByteArray("\0\x08\0\x03", 4) + QByteArray(64, '\0');
    if (format == "j2k")
        return QByteArray("\xff\x4f\xff\x51\0\x2f\0\0", 8) + big<quint32>(200000) + big<quint32>(200000)
            + QByteArray(8, '\0') + big<quint32>(200000) + big<quint32>(200000) + QByteArray(8, '\0')
            + QByteArray("\0\3\7\1\1\7\1\1\7\1\1", 11) + QByteArray(64, '\0');
    if (format == "j2k of many tiles")
        return QByteArray("\xff\x4f\xff\x51\0\x2f\0\0", 8) + big<quint32>(10000) + big<quint32>(10000)
            + QByteArray(8, '\0') + big<quint32>(40) + big<quint32>(40) + QByteArray(8, '\0')
            + QByteArray("\0\3\7\1\1\7\1\1\7\1\1", 11) + QByteArray(64, '\0');
    if (format == "jxl")  // a bare codestream whose size header holds two 30-bit numbers of ones
        return QByteArray("\xff\x0a\xfe\xff\xff\xff\xf1\xff\xff\xff\x0f\x50", 12) + QByteArray(64, '\0');
    if (format == "dng")
        return dng(quarters({ 64, 48 }), {}, { 60000, 60000 });
    if (format == "embedded thumbnail")
        return withExif(written(quarters({ 64, 48 }), "jpg"), exifBlock(1, bomb("progressive jpg")));
    QByteArray file = heif(quarters({ 64, 64 }), format.startsWith("avif"));
    if (format == "heic" || format == "avif")
        return file.replace(file.indexOf("ispe") + 8, 8, big<quint32>(32000) + big<quint32>(32000));
    // A modest claim in the container, a monstrous one in the sequence header that the AV1 decoder will believe.
    const QByteArray sequence("\x0a\x06\x18\x3f\xff\xff\xff\xff", 8);
    file.insert(file.indexOf("av1C") + 8, sequence);
    for (const char* box : { "av1C", "ipco", "iprp", "meta" }) {
        const qsizetype at = file.indexOf(box) - 4;
        file.replace(at, 4, big<quint32>(qFromBigEndian<quint32>(file.constData() + at) + quint32(sequence.size())));
    }
    return file;
}

}  // namespace ImageFiles
