// What photos hold beside their records, read in one run of ExifTool, and one over their sidecars.
// Thread: any; blocks on ExifTool.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/schema/PhotoDetails.h"
#include "core/sidecar/SidecarPolicy.h"
#include "core/tool/ExifToolRunner.h"

#include <QHash>

namespace Quorbel::DetailsRead {

/// Without the photos that could not be read. What their sidecars hold stands over what they do, as in the records; it
/// takes one run more, where there are any. Throws the runner's errors.
QHash<QUrl, PhotoDetails> of(const ExifToolRunner& runner, const SidecarPolicy& policy,
    const QList<ImageRecord>& photos, const ReadControl& control = {});

}  // namespace Quorbel::DetailsRead
