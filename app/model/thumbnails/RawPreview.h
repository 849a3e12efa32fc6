// The preview inside a raw file that no library here reads, taken out by ExifTool.
// Thread: any; blocks for one run of the tool, some tenths of a second.
#pragma once

#include "core/tool/ExifToolRunner.h"

#include <QImage>

namespace Quorbel {

struct RawPreview {
    QImage image{};
    QSize photo{};  ///< how large the photo itself is, as upright as the image; empty where the tool does not say
};

/// The first of its previews that is large enough, else the largest: upright, sRGB, its long side at most `longSide`
/// pixels; null when the file holds no preview that can be decoded, when the tool fails, or when stopped.
RawPreview rawPreview(const ExifToolRunner& tool, const QString& path, int longSide, const std::stop_token& stop);

}  // namespace Quorbel
