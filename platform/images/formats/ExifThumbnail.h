// The thumbnail in a photo's EXIF block: 160 pixels or so, one small read away.
// Thread: the one that owns the device.
#pragma once

#include "platform/images/gate/HeaderGate.h"

#include <QImage>

namespace Quorbel::ExifThumbnail {

/// The JPEG thumbnail of the block that the header found, as stored; null when there is none.
QImage read(QIODevice& device, const ImageHeader& header);

/// Cuts away the black bars that cameras add when their thumbnails are 4:3 and the photo is not: the middle of the
/// image with the aspect of `full`.
QImage croppedToAspect(const QImage& image, QSize full);

}  // namespace Quorbel::ExifThumbnail
