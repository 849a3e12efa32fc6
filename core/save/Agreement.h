// What has to be written so that the homes of a photo's fields agree: the value that is shown of each field whose homes
// do not, or the one of the field's own first home, where another standard's tag is shown. Thread: any. Pure.
#pragma once

#include "core/save/EditPlan.h"
#include "core/schema/PhotoDetails.h"
#include "core/tool/TagDump.h"

namespace Quorbel::Agreement {

/// Empty where nothing is to be written. Not among its fields is one of which only a tag of another standard, or the
/// own file of a photo whose edits go beside it, says something else, since those are never written; and a text that
/// some home keeps as several items (creators), which would become one.
EditPlan plan(const ImageRecord& photo, const PhotoDetails& details);
/// The tags of the plan's dates, which are shown to the minute. `isBeside`: of a photo whose edits go beside it, as its
/// sidecar has them.
QStringList dateTags(const EditPlan& plan, bool isBeside = false);
/// The plan with its dates to the second, as one of their homes has them. `stored`: what the photo holds in those tags.
/// A sidecar's homes also take fractions of a second and zones over.
EditPlan withSeconds(EditPlan plan, const FileTags& stored, bool isBeside = false);

}  // namespace Quorbel::Agreement
