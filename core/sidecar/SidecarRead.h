// What sidecars hold, put over the records of their photos.
// Thread: any; blocks on ExifTool.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/sidecar/SidecarPolicy.h"
#include "core/tool/ExifToolRunner.h"
#include "core/tool/WriteFailures.h"

namespace Quorbel::SidecarRead {

/// Reads the sidecars of those of the photos that have one, all in one pair of runs, and puts what they hold over the
/// records. A photo whose sidecar cannot be read keeps its own values; those sidecars are returned, with the reason.
/// Throws the runner's errors when the tool fails as a whole.
QList<FileFailure> overlay(
    const ExifToolRunner& runner, const SidecarPolicy& policy, QList<ImageRecord>& photos, const ReadControl& control);

}  // namespace Quorbel::SidecarRead
