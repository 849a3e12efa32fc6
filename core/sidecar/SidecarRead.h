// What sidecars hold, put over the records of their photos.
// Thread: any; blocks on ExifTool.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/sidecar/SidecarPolicy.h"
#include "core/text/JSONValue.h"
#include "core/tool/ExifToolRunner.h"
#include "core/tool/WriteFailures.h"

#include <QHash>

namespace Quorbel::SidecarRead {

/// What one sidecar holds, as MetadataReader::overlay() takes it.
struct Answer {
    JSONObject main{};
    JSONObject custom{};
    QString reason{};  ///< why it cannot be read; then it holds nothing
};

/// Reads these sidecars in one pair of runs; by path, without those that are gone. Throws the runner's errors when the
/// tool fails as a whole.
QHash<QString, Answer> of(const ExifToolRunner& runner, const QStringList& paths, const ReadControl& control);

/// Why what the tool read of a sidecar, its type and warning among it, does not count; "" where it does. What the tool
/// reads of files that are no XMP, or half of one, is nothing, and no error to it.
QString reasonIn(const JSONObject& read);

/// Reads the sidecars of those of the photos that have one, all in one pair of runs, and puts what they hold over the
/// records. A photo whose sidecar cannot be read keeps its own values; those sidecars are returned, with the reason.
/// Throws the runner's errors when the tool fails as a whole.
QList<FileFailure> overlay(
    const ExifToolRunner& runner, const SidecarPolicy& policy, QList<ImageRecord>& photos, const ReadControl& control);

}  // namespace Quorbel::SidecarRead
