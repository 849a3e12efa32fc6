// Cameras' raw files through LibRaw: the preview that the camera put inside, else the sensor's data at half size.
// Thread: any.
#pragma once

#include "platform/images/DecodedImage.h"

namespace Quorbel::RawFormat {

/// What LibRaw refuses comes back as needsTool.
DecodedFrame decode(const DecodeSource& source);

}  // namespace Quorbel::RawFormat
