// Makes a small picture of a photo file: finds out by content what the file is, refuses what its header shows to be
// dangerous, decodes it no larger than needed, and returns it upright and in sRGB.
// Thread: any, several at once; frames that must be held whole are decoded one at a time, whoever asks.
// Starts no program, writes nothing, knows nothing of caches.
#pragma once

#include "platform/images/DecodedImage.h"

namespace Quorbel::ImageDecoder {

/// The file's picture, its long side at most `longSide` pixels, never enlarged. When `cancel` is triggered, returns
/// as soon as the library in use lets go.
DecodedImage decode(const QString& path, int longSide, const std::stop_token& cancel = {});

/// The picture with all pixels that there are; one of more than `mostPixels` is reduced to fewer. Of a camera's raw
/// file the preview inside it, at its size.
DecodedImage decodeWhole(const QString& path, qint64 mostPixels, const std::stop_token& cancel = {});

/// The same as decode() from memory, for a preview that was taken out of a file.
DecodedImage decode(const QByteArray& bytes, int longSide, const std::stop_token& cancel = {});

/// Whether an image in memory says itself how it was held.
bool hasOrientation(const QByteArray& bytes);

/// A first impression in a fraction of a millisecond: the thumbnail that a camera put into the EXIF block, cropped to
/// the photo's true aspect. It may be stale, so it is never the final picture. Null when there is none.
QImage embeddedThumbnail(const QString& path, const std::stop_token& cancel = {});

}  // namespace Quorbel::ImageDecoder
