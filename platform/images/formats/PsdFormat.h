// Photoshop files: the flattened picture that most of them carry, or the thumbnail among their resources.
// Thread: any. Our own reader; holds no more than the reduced picture and one row.
#pragma once

#include "platform/images/DecodedImage.h"

namespace Quorbel::PsdFormat {

DecodedFrame decode(const DecodeSource& source);

/// The JPEG thumbnail of 160 pixels or so that was written with the file. Null when there is none.
DecodedFrame thumbnail(const DecodeSource& source);

}  // namespace Quorbel::PsdFormat
