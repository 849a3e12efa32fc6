// One write to photos, with what ExifTool would lose looked after: the files behind links, text that the files' IPTC
// encoding cannot hold, the hemisphere of positions in XMP, extended attributes, mode and owner, and the photo itself
// when the tool is killed half-way.
// Thread: any; blocks on ExifTool. Knows nothing of fields or plans.
#pragma once

#include "core/save/Preparation.h"
#include "core/save/WriteNotes.h"
#include "core/tool/ExifToolRunner.h"

namespace Quorbel::SafeWriter {

/// What some of a save's targets are given.
struct Portion {
    WriteCommand command{};
    QList<QUrl> targets{};
    QStringList customNames{};  ///< the custom fields among the command's tags
    QList<Preparation> preparations{};  ///< run before it, over some of the targets
    bool mayBeNew = false;  ///< targets that are not there are made (see NewFiles)
};

/// What came of several portions.
struct Outcome {
    QString output{};  ///< the tool's standard output
    QList<QUrl> done{};  ///< the targets that hold their command now, as far as the tool said
    QMap<qsizetype, QString> refused{};  ///< portions of which nothing was written, by position: why
    std::optional<ToolError> error{};  ///< of the runs that failed, with the messages of all
};

/// Runs the command over the targets and returns the tool's standard output. `customNames` are the custom fields among
/// its tags; the preparations run before it, over some of the targets. A file that does not take the command is what it
/// was, whatever other runs it needed before. Throws the runner's errors (that of several runs with the messages of
/// all) and FileError; AssignmentConflict, and SaveGuard::FileProblem when a file is read-only or blocked, before
/// anything is changed.
QString write(const ExifToolRunner& runner, const WriteCommand& command, const QList<QUrl>& targets, bool backup,
    const QStringList& customNames, const QList<Preparation>& preparations = {}, WriteNotes* notes = nullptr);

/// The same for portions that share no target, however many there are, in as few starts of the tool as hold their
/// arguments. A portion with a file that is read-only or blocked is refused, and keeps none of the others from being
/// written. Throws the runner's errors where the tool could not be started at all, and FileError.
Outcome writeEach(
    const ExifToolRunner& runner, const QList<Portion>& portions, bool backup, WriteNotes* notes = nullptr);

}  // namespace Quorbel::SafeWriter
