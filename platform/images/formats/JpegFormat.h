// JPEGs through libjpeg itself, where Qt's reader does not do: those of four inks, which it mixes into RGB by the plain
// formula, dropping the profile that says what they look like; and those that are wanted whole, of which it does not
// tell whether anything is missing. Silent, and ends soon once it is cancelled.
// Thread: any.
#pragma once

#include "platform/images/DecodedImage.h"

namespace Quorbel::JpegFormat {

/// What could be read is decoded, and marked as incomplete where that is not all.
DecodedFrame decode(const DecodeSource& source);

}  // namespace Quorbel::JpegFormat
