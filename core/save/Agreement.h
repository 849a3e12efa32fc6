// What has to be written so that the homes of a photo's fields agree: the value that is shown of each field whose homes
// do not. Thread: any. Pure.
#pragma once

#include "core/save/EditPlan.h"
#include "core/schema/PhotoDetails.h"

namespace Quorbel::Agreement {

/// Empty where nothing is to be written. Not among its fields is one of which only a tag of another standard says
/// something else, since that tag is never written; and a text that some home keeps as several items (creators), which
/// would become one.
EditPlan plan(const ImageRecord& photo, const PhotoDetails& details);

}  // namespace Quorbel::Agreement
