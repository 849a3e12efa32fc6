// Compares what a save was asked to write with what the file holds afterwards. Thread: any. Pure.
#pragma once

#include "core/save/EditPlan.h"
#include "core/schema/ImageRecord.h"
#include "core/tool/TagDump.h"

namespace Quorbel::SaveVerification {

/// The keys (field ids, "custom:" + name, FieldLanguages::key()) of the plan that the photo does not hold, in schema
/// order, languages and customs last. Values are compared in the normal form of their kind: dates to the minute,
/// ratings as stars, positions to six decimals, lists without blank items; in append mode every item must be among the
/// record's, and none that is taken away. A field that was written to some of its homes only may show what the home
/// that was left out still holds: that is no difference. `stored`, where it is known: what the file holds in the tags
/// of the plan. Then every home that the photo's format has a place for counts, not only the one that is shown; what is
/// written together with a field counts as the field's, and texts in further languages count too.
QStringList differences(const EditPlan& plan, const ImageRecord& record, const FileTags* stored = nullptr);
/// Whether the plan writes what the record does not show.
bool hasHiddenHomes(const EditPlan& plan);

/// The labels of such keys, for the user: "Coordinates", "Job ID", a custom field's name.
QStringList labels(const QStringList& keys);

}  // namespace Quorbel::SaveVerification
