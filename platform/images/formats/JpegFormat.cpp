#include "platform/images/formats/JpegFormat.h"

#include "platform/images/color/ColorManagement.h"

#include <QSize>

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>
// Behind it: it needs its types.
#include <jerror.h>

namespace Quorbel {

namespace {

// What a decoding makes, and what it is asked. The library ends on an error by jumping: what the jump passes over must
// have no destructors, so everything that owns memory is in here, outside of the reading functions.
struct Decoding {
    int longSide = 0;
    std::stop_token cancel{};
    QImage image{};  ///< gray or RGB32
    QByteArray inks{};  ///< instead, where there are four
    QSize size{};
    QByteArray icc{};
    bool isIncomplete = false;
    std::jmp_buf target{};
};

Decoding& of(j_common_ptr info)
{
    return *static_cast<Decoding*>(info->client_data);
}

[[noreturn]] void leave(j_common_ptr info)
{
    of(info).isIncomplete = true;
    std::longjmp(of(info).target, 1);
}

void keepSilent(j_common_ptr) { }

// Of the library's warnings those after which pixels are missing or wrong.
void noteDamage(j_common_ptr info, int level)
{
    constexpr std::array damages{ JWRN_JPEG_EOF, JWRN_HIT_MARKER, JWRN_HUFF_BAD_CODE, JWRN_MUST_RESYNC,
        JWRN_ARITH_BAD_CODE };
    if (level < 0 && std::find(damages.begin(), damages.end(), info->err->msg_code) != damages.end())
        of(info).isIncomplete = true;
}

void leaveOnceCancelled(j_common_ptr info)
{
    if (of(info).cancel.stop_requested())
        leave(info);
}

// The library's input: a guarded device, which breaks off when its time is over.
struct Input {
    jpeg_source_mgr manager{};
    QIODevice* device = nullptr;
    std::array<JOCTET, 65536> buffer{};
};

boolean fill(j_decompress_ptr info)
{
    auto& input = *reinterpret_cast<Input*>(info->src);
    qint64 got = input.device->read(reinterpret_cast<char*>(input.buffer.data()), qint64(input.buffer.size()));
    if (got <= 0) {
        WARNMS(info, JWRN_JPEG_EOF);
        input.buffer[0] = 0xFF;
        input.buffer[1] = JPEG_EOI;
        got = 2;
    }
    input.manager.next_input_byte = input.buffer.data();
    input.manager.bytes_in_buffer = size_t(got);
    return TRUE;
}

void skip(j_decompress_ptr info, long count)
{
    jpeg_source_mgr& manager = *info->src;
    while (count > long(manager.bytes_in_buffer)) {
        count -= long(manager.bytes_in_buffer);
        fill(info);
        // At the end there is nothing to skip but what was put there.
        if (manager.bytes_in_buffer == 2 && manager.next_input_byte[1] == JPEG_EOI)
            return;
    }
    if (count > 0) {
        manager.next_input_byte += count;
        manager.bytes_in_buffer -= size_t(count);
    }
}

void readFrom(Input& input, QIODevice& device)
{
    input.device = &device;
    input.manager.init_source = [](j_decompress_ptr) {};
    input.manager.fill_input_buffer = fill;
    input.manager.skip_input_data = skip;
    input.manager.resync_to_restart = jpeg_resync_to_restart;
    input.manager.term_source = [](j_decompress_ptr) {};
}

// The coarsest of the library's scales that is still as large as asked.
unsigned scaleFor(const jpeg_decompress_struct& info, int longSide)
{
    unsigned denominator = 8;
    while (denominator > 1 && qMax(info.image_width, info.image_height) / denominator < unsigned(longSide))
        denominator /= 2;
    return denominator;
}

void takeProfile(jpeg_decompress_struct& info, Decoding& decoding)
{
    JOCTET* data = nullptr;
    unsigned length = 0;
    if (jpeg_read_icc_profile(&info, &data, &length))
        decoding.icc = QByteArray(reinterpret_cast<const char*>(data), qsizetype(length));
    std::free(data);
}

// A row of the picture, to be written to.
JSAMPROW rowOf(Decoding& decoding, int y)
{
    const qsizetype stride = qsizetype(decoding.size.width()) * 4;
    return decoding.inks.isEmpty() ? decoding.image.scanLine(y)
                                   : reinterpret_cast<JSAMPROW>(decoding.inks.data() + stride * y);
}

void makeRoom(const jpeg_decompress_struct& info, Decoding& decoding)
{
    decoding.size = QSize(int(info.output_width), int(info.output_height));
    if (info.out_color_space == JCS_CMYK) {
        const char none = info.saw_Adobe_marker ? '\xff' : '\0';
        decoding.inks = QByteArray(qsizetype(info.output_width) * 4 * qsizetype(info.output_height), none);
        return;
    }
    const bool isGray = info.out_color_space == JCS_GRAYSCALE;
    decoding.image = QImage(decoding.size, isGray ? QImage::Format_Grayscale8 : QImage::Format_RGB32);
    decoding.image.fill(Qt::gray);
}

// Rows until the end or the first error; those before it are kept.
void readRows(jpeg_decompress_struct& info, Decoding& decoding)
{
    jpeg_save_markers(&info, JPEG_APP0 + 2, 0xFFFF);
    jpeg_read_header(&info, TRUE);
    takeProfile(info, decoding);
    info.out_color_space = info.num_components == 4  ? JCS_CMYK
        : info.num_components == 1                   ? JCS_GRAYSCALE
        : QSysInfo::ByteOrder == QSysInfo::BigEndian ? JCS_EXT_ARGB
                                                     : JCS_EXT_BGRA;
    info.scale_num = 1;
    info.scale_denom = scaleFor(info, decoding.longSide);
    jpeg_start_decompress(&info);
    makeRoom(info, decoding);
    while (info.output_scanline < info.output_height && (!decoding.image.isNull() || !decoding.inks.isEmpty())) {
        JSAMPROW row = rowOf(decoding, int(info.output_scanline));
        jpeg_read_scanlines(&info, &row, 1);
    }
}

void read(QIODevice& device, Decoding& decoding)
{
    jpeg_decompress_struct info{};
    jpeg_error_mgr errors{};
    jpeg_progress_mgr progress{};
    Input input;
    readFrom(input, device);
    info.err = jpeg_std_error(&errors);
    errors.error_exit = leave;
    errors.output_message = keepSilent;
    errors.emit_message = noteDamage;
    progress.progress_monitor = leaveOnceCancelled;
    info.client_data = &decoding;
    if (setjmp(decoding.target) == 0) {
        jpeg_create_decompress(&info);
        info.src = &input.manager;
        info.progress = &progress;
        readRows(info, decoding);
    }
    for (qsizetype i = 0; info.saw_Adobe_marker && i < decoding.inks.size(); ++i)
        decoding.inks[i] = char(255 - quint8(decoding.inks[i]));
    jpeg_destroy_decompress(&info);
}

}  // namespace

DecodedFrame JpegFormat::decode(const DecodeSource& source)
{
    Decoding decoding{ .longSide = source.longSide, .cancel = source.cancel };
    read(source.device, decoding);
    DecodedFrame frame;
    if (!decoding.inks.isEmpty()) {
        frame.image = ColorManagement::fromCMYK(decoding.inks, decoding.size, decoding.icc);
    } else {
        frame.image = decoding.image;
        frame.icc = decoding.icc;
    }
    frame.isIncomplete = decoding.isIncomplete;
    if (!frame.image.isNull())
        frame.outcome = DecodedImage::Outcome::decoded;
    return frame;
}

}  // namespace Quorbel
