// Which fields of a photo say one thing here and another there.
// Thread: any. Pure.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/schema/PhotoDetails.h"
#include "core/text/JSONValue.h"

namespace Quorbel::Disagreements {

/// As in PhotoDetails. `tags`: what the details run found; the record tells what is shown.
QMap<QString, QList<FieldHome>> of(const ImageRecord& photo, const JSONObject& tags);

}  // namespace Quorbel::Disagreements
