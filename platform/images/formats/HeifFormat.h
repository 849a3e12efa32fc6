// HEIC, HEIF and AVIF through libheif. The file's own rotation is applied there, so EXIF's orientation is not.
// Thread: any.
#pragma once

#include "platform/images/DecodedImage.h"

namespace Quorbel::HeifFormat {

/// The primary image, or one of its thumbnails when that is large enough for what is asked.
DecodedFrame decode(const DecodeSource& source);

/// The smallest thumbnail in the file, upright; its colours are not managed. Null when there is none.
DecodedFrame thumbnail(const DecodeSource& source);

}  // namespace Quorbel::HeifFormat
