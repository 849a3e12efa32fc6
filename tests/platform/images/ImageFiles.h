// Image files made on the spot, in every format that has a writer at hand; the others byte by byte.
#pragma once

#include <QByteArray>
#include <QImage>

namespace ImageFiles {

/// Four quarters: red, green; blue, white. Sharp edges at half the width and height.
QImage quarters(QSize size, QImage::Format format = QImage::Format_RGB32);

/// Through Qt's writers: "jpg", "png", "webp", "tiff".
QByteArray written(const QImage& image, const char* format, int quality = 95, bool progressive = false);
struct HeifExtras {
    int thumbnail = 0;  ///< adds one of that long side
    QImage thumbnailOf{};  ///< another picture than the file's
    int quality = 90;
    QByteArray icc{};
    int matrix = 6;  ///< of luma and chroma: 1 is BT.709's, 6 BT.601's
    bool fullRange = true;
    int bits = 8;  ///< a sample
    bool metadata = false;  ///< adds an item of XMP
};
/// HEVC or AV1 in a HEIF container.
QByteArray heif(const QImage& image, bool av1, const HeifExtras& extras = {});
/// The same file with one more property of that item, at the end.
QByteArray heifWithProperty(QByteArray file, int item, const QByteArray& type, const QByteArray& content);
/// The same file in which the first reference of that type is to one more item, and bears another type if one is given.
QByteArray heifReferring(QByteArray file, const QByteArray& type, int target, const QByteArray& as = {});
/// The same file in which its first or second picture has another size than it is coded in.
QByteArray heifDeclaring(QByteArray file, int picture, QSize size);
/// The same file, whose first decoder's record speaks of frames of that size as well.
QByteArray heifCoding(QByteArray file, QSize size);
QByteArray jxl(const QImage& image, const QByteArray& icc = {});
/// `boxed`: a JP2 file; otherwise the bare codestream.
QByteArray jpeg2000(const QImage& image, bool boxed, const QByteArray& icc = {});
/// A flattened Photoshop file: 3 is RGB, 1 gray, 4 CMYK, 9 is Lab with `image`'s channels taken as they are.
QByteArray psd(
    const QImage& image, int mode, bool packed, bool large = false, int depth = 8, const QByteArray& icc = {});
QByteArray gif(const QImage& image);
/// Four inks, 255 meaning full, as Adobe's programs write them.
QByteArray cmykJpeg(QSize size, const QByteArray& inks, const QByteArray& icc = {});
struct TiffLayout {
    int compression = 1;  ///< TIFF's numbers: 1 stored, 5 LZW, 8 Deflate, 32773 packed
    bool differences = false;  ///< each sample as the difference to the pixel before
    bool planes = false;  ///< one ink after the other
    int tile = 0;  ///< side of the tiles; 0: strips
    int rowsPerStrip = 1 << 20;
    int bits = 8;  ///< a sample
    bool bigEndian = false;
    int extra = 0;  ///< samples after the inks
};
/// The same as a TIFF, its directory before its pixels.
QByteArray cmykTiff(QSize size, const QByteArray& inks, const QByteArray& icc = {}, const TiffLayout& layout = {});
/// The picture's colours as amounts of ink, no black.
QByteArray inksOf(const QImage& image);
/// An ICC profile that shows every mix of inks as the same middle gray.
QByteArray grayInkProfile();

/// A TIFF structure with an orientation and, when given, a JPEG thumbnail.
QByteArray exifBlock(int orientation, const QByteArray& thumbnail = {});
QByteArray withExif(const QByteArray& jpeg, const QByteArray& exif);
/// Only for the extended kind of file, which Qt writes for pictures with a colour space.
QByteArray webpWithExif(QByteArray webp, const QByteArray& exif);
/// Changes the orientation that Qt's writer has put into a TIFF.
QByteArray tiffTurned(QByteArray tiff, int orientation);
/// The same little-endian TIFF with another value in that entry of its first directory.
QByteArray tiffClaiming(QByteArray tiff, quint16 tag, quint32 value);
QByteArray pngWithChunk(const QByteArray& png, const QByteArray& type, const QByteArray& data);

/// A raw file: the picture as an RGGB sensor sees it, and a JPEG as its preview unless that is empty. `claimed`: the
/// sensor's size according to the header, when that is not the truth.
QByteArray dng(const QImage& image, const QByteArray& preview, QSize claimed = {});

/// A header that asks for far more pixels than are allowed, with next to nothing behind it. The names of the formats
/// are those of the test's rows.
QByteArray bomb(const QByteArray& format);

}  // namespace ImageFiles
