// JPEG 2000 (JP2 files, bare codestreams, high-throughput ones) through OpenJPEG, decoded at a reduced resolution.
// Thread: any.
#pragma once

#include "platform/images/DecodedImage.h"
#include "platform/images/formats/ImageFormat.h"

namespace Quorbel::Jpeg2000Format {

/// `format` is jp2 or j2k.
DecodedFrame decode(const DecodeSource& source, ImageFormat format);

}  // namespace Quorbel::Jpeg2000Format
