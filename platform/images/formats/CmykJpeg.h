// JPEGs of four inks. Qt's reader mixes the inks into RGB by the plain formula and drops the profile that says what
// they look like; here they stay inks until the profile has been applied.
// Thread: any.
#pragma once

#include "platform/images/DecodedImage.h"

namespace Quorbel::CmykJpeg {

DecodedFrame decode(const DecodeSource& source);

}  // namespace Quorbel::CmykJpeg
