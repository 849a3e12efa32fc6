// JPEG, PNG, GIF, WebP and TIFF through Qt's own readers, scaled while they are read.
// Thread: any.
#pragma once

#include "platform/images/DecodedImage.h"
#include "platform/images/gate/HeaderGate.h"

namespace Quorbel::QtFormats {

/// The first frame. The header must have passed the gate.
DecodedFrame decode(const DecodeSource& source, ImageFormat format, const ImageHeader& header);

}  // namespace Quorbel::QtFormats
