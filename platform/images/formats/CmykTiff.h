// TIFFs of four inks, as they come from prepress: Qt's reader mixes the inks by the plain formula and drops their
// profile. Read here: strips of 8 or 16 bits a sample, channels interleaved, stored plainly, packed or by LZW.
// Thread: any. Our own reader; holds one strip and the reduced picture.
#pragma once

#include "platform/images/DecodedImage.h"

namespace Quorbel::CmykTiff {

/// Outcome unsupported for TIFFs that hold something else, or inks in another arrangement.
DecodedFrame decode(const DecodeSource& source);

}  // namespace Quorbel::CmykTiff
