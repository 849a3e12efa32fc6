#include "platform/images/formats/CmykJpeg.h"

#include "platform/images/color/ColorManagement.h"

#include <QSize>

#include <csetjmp>
#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

namespace Quorbel {

namespace {

// The library ends on an error by jumping. What the jump passes over must have no destructors, so everything that
// owns memory is declared outside of the reading function.
struct Jump {
    jpeg_error_mgr manager{};
    std::jmp_buf target{};
};

struct Inks {
    QSize size{};
    QByteArray samples{};
    QByteArray icc{};
};

[[noreturn]] void leave(j_common_ptr info)
{
    std::longjmp(reinterpret_cast<Jump*>(info->err)->target, 1);
}

void keepSilent(j_common_ptr) { }

// The coarsest of the library's scales that is still as large as asked.
unsigned scaleFor(const jpeg_decompress_struct& info, int longSide)
{
    unsigned denominator = 8;
    while (denominator > 1 && qMax(info.image_width, info.image_height) / denominator < unsigned(longSide))
        denominator /= 2;
    return denominator;
}

void takeProfile(jpeg_decompress_struct& info, Inks& inks)
{
    JOCTET* data = nullptr;
    unsigned length = 0;
    if (jpeg_read_icc_profile(&info, &data, &length))
        inks.icc = QByteArray(reinterpret_cast<const char*>(data), qsizetype(length));
    std::free(data);
}

// Rows until the end or the first error; those before it are kept.
void readRows(jpeg_decompress_struct& info, Inks& inks)
{
    jpeg_save_markers(&info, JPEG_APP0 + 2, 0xFFFF);
    jpeg_read_header(&info, TRUE);
    takeProfile(info, inks);
    info.out_color_space = JCS_CMYK;
    info.scale_denom = scaleFor(info, inks.size.width());
    jpeg_start_decompress(&info);
    const bool inverted = info.saw_Adobe_marker;
    inks.size = QSize(int(info.output_width), int(info.output_height));
    const qsizetype stride = qsizetype(info.output_width) * 4;
    inks.samples = QByteArray(stride * qsizetype(info.output_height), inverted ? '\xff' : '\0');
    while (info.output_scanline < info.output_height) {
        auto* row = reinterpret_cast<JSAMPROW>(inks.samples.data() + stride * qsizetype(info.output_scanline));
        if (jpeg_read_scanlines(&info, &row, 1) == 0)
            break;
    }
    for (qsizetype i = 0; inverted && i < inks.samples.size(); ++i)
        inks.samples[i] = char(255 - quint8(inks.samples[i]));
}

// `inks.size` holds the long side wanted on entry.
void readInks(const QByteArray& file, Inks& inks)
{
    jpeg_decompress_struct info{};
    Jump jump;
    info.err = jpeg_std_error(&jump.manager);
    jump.manager.error_exit = leave;
    jump.manager.output_message = keepSilent;
    if (setjmp(jump.target) == 0) {
        jpeg_create_decompress(&info);
        jpeg_mem_src(
            &info, reinterpret_cast<const unsigned char*>(file.constData()), static_cast<unsigned long>(file.size()));
        readRows(info, inks);
    }
    jpeg_destroy_decompress(&info);
}

}  // namespace

DecodedFrame CmykJpeg::decode(const DecodeSource& source)
{
    constexpr qint64 largestFile = 512LL * 1024 * 1024;
    const QByteArray file = source.device.read(largestFile);
    Inks inks{ .size = QSize(source.longSide, source.longSide) };
    readInks(file, inks);
    DecodedFrame frame;
    if (inks.samples.isEmpty())
        return frame;
    frame.image = ColorManagement::fromCMYK(inks.samples, inks.size, inks.icc);
    frame.outcome = DecodedImage::Outcome::decoded;
    return frame;
}

}  // namespace Quorbel
