// Which kind of file this is, told by its first bytes: extensions lie.
// Thread: any. Reads a few hundred bytes, never the pixels.
#pragma once

#include <QIODevice>
#include <QString>

namespace Quorbel {

enum class ImageFormat { unknown, jpeg, png, gif, webp, tiff, heif, avif, jxl, jp2, j2k, psd, raw, jxr };

/// The format of the open device; its position is put back to the start. `path` is looked at in one case: TIFF
/// content under a camera's raw extension is raw, because a TIFF loader would read the sensor's data as a picture.
ImageFormat detectFormat(QIODevice& device, const QString& path);

/// Whether the path ends in one of the cameras' raw extensions.
bool hasRawExtension(const QString& path);

}  // namespace Quorbel
