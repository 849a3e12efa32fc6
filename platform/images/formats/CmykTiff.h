// TIFFs of four inks, as they come from prepress: Qt's reader mixes the inks by the plain formula and drops their
// profile. libtiff unpacks them, in strips or tiles, interleaved or in planes, of 8 or 16 bits a sample.
// Thread: any. Holds one packed strip or one row of tiles, and the reduced picture.
#pragma once

#include "platform/images/DecodedImage.h"

namespace Quorbel::CmykTiff {

/// Outcome unsupported for TIFFs that hold something else, or inks in another arrangement.
DecodedFrame decode(const DecodeSource& source);

}  // namespace Quorbel::CmykTiff
