// One write to photos, with what ExifTool would lose looked after: the files behind links, text that the files' IPTC
// encoding cannot hold, the hemisphere of positions in XMP, extended attributes, mode and owner, and the photo itself
// when the tool is killed half-way.
// Thread: any; blocks on ExifTool. Knows nothing of fields or plans.
#pragma once

#include "core/save/Preparation.h"
#include "core/save/WriteNotes.h"
#include "core/tool/ExifToolRunner.h"

namespace Quorbel::SafeWriter {

/// Runs the command over the targets and returns the tool's standard output. `customNames` are the custom fields among
/// its tags; the preparations run before it, over some of the targets. A file that does not take the command is what it
/// was, whatever other runs it needed before. Throws the runner's errors (that of several runs with the messages of
/// all) and FileError; AssignmentConflict, and SaveGuard::FileProblem when a file is read-only or blocked, before
/// anything is changed.
QString write(const ExifToolRunner& runner, const WriteCommand& command, const QList<QUrl>& targets, bool backup,
    const QStringList& customNames, const QList<Preparation>& preparations = {}, WriteNotes* notes = nullptr);

}  // namespace Quorbel::SafeWriter
