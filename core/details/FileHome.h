// A home in the own file of a photo whose edits go beside it: it is read, and shown beside the sidecar's, but never
// written. Until a view names it, nobody knows how the file is called: photos are renamed.
// Thread: any. Pure.
#pragma once

#include "core/schema/PhotoDetails.h"

namespace Quorbel::FileHome {

/// The home, as one of the photo's own file.
FieldHome of(FieldHome home);
bool is(const FieldHome& home);
/// "IMG_1.CR3: EXIF:Artist"; other homes are told as they are.
FieldHome named(FieldHome home, const QString& fileName);

}  // namespace Quorbel::FileHome
