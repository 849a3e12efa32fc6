// JPEG XL through libjxl, which applies the image's own orientation.
// Thread: any.
#pragma once

#include "platform/images/DecodedImage.h"

namespace Quorbel::JxlFormat {

/// The first frame.
DecodedFrame decode(const DecodeSource& source);

}  // namespace Quorbel::JxlFormat
