// Image files made on the spot, in every format that has a writer at hand; the others byte by byte.
#pragma once

#include <QByteArray>
#include <QImage>

namespace ImageFiles {

/// Four quarters: red, green; blue, white. Sharp edges at half the width and height.
QImage quarters(QSize size, QImage::Format format = QImage::Format_RGB32);

/// Through Qt's writers: "jpg", "png", "webp", "tiff".
QByteArray written(const QImage& image, const char* format, int quality = 95, bool progressive = false);
/// HEVC or AV1 in a HEIF container; `thumbnail` > 0 adds one of that long side.
QByteArray heif(const QImage& image, bool av1, int thumbnail = 0, int quality = 90);
QByteArray jxl(const QImage& image);
/// `boxed`: a JP2 file; otherwise the bare codestream.
QByteArray jpeg2000(const QImage& image, bool boxed);
/// A flattened Photoshop file: 3 is RGB, 1 gray, 4 CMYK, 9 is Lab with `image`'s channels taken as they are.
QByteArray psd(const QImage& image, int mode, bool packed, bool large = false, int depth = 8);
QByteArray gif(const QImage& image);
/// Four inks, 255 meaning full, as Adobe's programs write them.
QByteArray cmykJpeg(QSize size, const QByteArray& inks, const QByteArray& icc = {});
/// The same as a TIFF of one strip, stored or by LZW with differences.
QByteArray cmykTiff(QSize size, const QByteArray& inks, const QByteArray& icc, bool lzw);
/// The picture's colours as amounts of ink, no black.
QByteArray inksOf(const QImage& image);
/// An ICC profile that shows every mix of inks as the same middle gray.
QByteArray grayInkProfile();

/// A TIFF structure with an orientation and, when given, a JPEG thumbnail.
QByteArray exifBlock(int orientation, const QByteArray& thumbnail = {});
QByteArray withExif(const QByteArray& jpeg, const QByteArray& exif);
QByteArray pngWithChunk(const QByteArray& png, const QByteArray& type, const QByteArray& data);

/// A header that asks for far more pixels than are allowed, with next to nothing behind it. The names of the formats
/// are those of the test's rows.
QByteArray bomb(const QByteArray& format);

}  // namespace ImageFiles
