// Which fields of a photo say one thing here and another there.
// Thread: any. Pure.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/schema/PhotoDetails.h"
#include "core/text/JSONValue.h"

namespace Quorbel::Disagreements {

/// As in PhotoDetails. `tags`: what the details run found; the record tells what is shown.
QMap<QString, QList<FieldHome>> of(const ImageRecord& photo, const JSONObject& tags);
/// The same of a photo whose edits go beside it: the homes of its sidecar, where that decides, then those of its own
/// file (FileHome), each against what is shown. `sidecar`: what was found there, nothing where there is none.
QMap<QString, QList<FieldHome>> beside(const ImageRecord& photo, const JSONObject& file, const JSONObject& sidecar);

}  // namespace Quorbel::Disagreements
