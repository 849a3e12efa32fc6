// What photos hold beside their records, read in one run of ExifTool.
// Thread: any; blocks on ExifTool.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/schema/PhotoDetails.h"
#include "core/tool/ExifToolRunner.h"

#include <QHash>

namespace Quorbel::DetailsRead {

/// Without the photos that could not be read. Throws the runner's errors.
QHash<QUrl, PhotoDetails> of(
    const ExifToolRunner& runner, const QList<ImageRecord>& photos, const ReadControl& control = {});

}  // namespace Quorbel::DetailsRead
