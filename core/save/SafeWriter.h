// One write to photos, with what ExifTool would lose looked after: the files behind links, text that the files' IPTC
// encoding cannot hold, the hemisphere of positions in XMP, extended attributes, mode and owner, and the photo itself
// when the tool is killed half-way.
// Thread: any; blocks on ExifTool. Knows nothing of fields or plans.
#pragma once

#include "core/tool/ExifToolRunner.h"

namespace Quorbel::SafeWriter {

/// Runs the command over the targets and returns the tool's standard output. `customNames` are the custom fields among
/// its tags. Throws the runner's errors and FileError; AssignmentConflict, and SaveGuard::FileProblem when a file is
/// read-only or blocked, before anything is changed.
QString write(const ExifToolRunner& runner, const WriteCommand& command, const QList<QUrl>& targets, bool backup,
    const QStringList& customNames);

}  // namespace Quorbel::SafeWriter
