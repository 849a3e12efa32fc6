// Reads what a file's header claims, and refuses what would not fit the machine, before any decoder sees the file:
// a few hundred bytes can ask for gigabytes.
// Thread: any. Costs 0.1 to 5 ms; holds a few kilobytes.
#pragma once

#include "platform/images/formats/ImageFormat.h"

#include <QSize>

#include <optional>

namespace Quorbel {

struct ImageHeader {
    QSize size{};  ///< pixels, as stored
    bool wholeFrame = true;  ///< a decoder must hold every pixel at once; otherwise it streams rows
    int components = 3;  ///< colour channels; 4 in a JPEG means CMYK
    int orientation = 1;  ///< EXIF's 1 to 8
    bool hasOrientation = false;
    qint64 exifAt = -1;  ///< where the EXIF block's TIFF structure begins in the file; -1: none
    bool untagged = false;  ///< PNG: no profile, and a gamma that is sRGB's or absent
};

namespace HeaderGate {

/// Most pixels that are decoded when rows stream through.
constexpr qint64 maxStreamedPixels = 400'000'000;
/// Most pixels where the whole frame is held: about 400 MB.
constexpr qint64 maxWholePixels = 100'000'000;

/// Whether a frame of that size may be decoded.
bool allows(QSize size, bool wholeFrame);
/// The header as allows() and the plausibility of the file's length see it.
bool allows(const ImageHeader& header, qint64 fileBytes);

/// What the header says, for JPEG, PNG, GIF, WebP and TIFF; nothing for others and for broken ones. The device's
/// position is put back to the start.
std::optional<ImageHeader> read(QIODevice& device, ImageFormat format);

}  // namespace HeaderGate

}  // namespace Quorbel
