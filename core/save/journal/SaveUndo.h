// Takes saves back: reads what a save is about to replace, and writes it back later.
// Thread: any; blocks on ExifTool. SaveJournal keeps the entries in between.
#pragma once

#include "core/save/journal/JournalEntry.h"
#include "core/tool/ExifToolRunner.h"
#include "core/tool/WriteFailures.h"

#include <functional>

namespace Quorbel {

struct EditPlan;
struct WriteOptions;

/// What taking a save back came to.
struct UndoOutcome {
    QList<QUrl> restored{};
    QList<QUrl> changedSince{};  ///< left alone: somebody else changed or removed them after the save
    QList<FileFailure> failed{};
    QList<QUrl> inexact{};  ///< of the restored: those that do not hold quite what they held
};

/// What files hold in the tags that a save may replace, by their paths.
using OldValues = QHash<QByteArray, FileTags>;

namespace SaveUndo {

/// The type of a file (ExifTool's name), among its old values.
QString typeTag();
/// What the files behind these targets hold in the tags that some save may replace, read in one run; with their types,
/// and their tags called Error. Throws the runner's errors.
OldValues oldValues(
    const ExifToolRunner& runner, const QStringList& tags, const QList<QUrl>& targets, const ReadControl& control);
/// What a save is about to replace in the targets, picked out of what they hold in these or more tags, and in their
/// sidecars, if those are written as well; sidecars and times of the files are those of now. `planOf`: all that it
/// assigns in a target. A sidecar that a photo's edits go to is kept as it is, whole.
JournalEntry journalEntry(const OldValues& known, const std::function<EditPlan(const QUrl&)>& planOf,
    const QList<QUrl>& targets, const WriteOptions& options);
/// Writes the old values of a save back, one run for each distinct set of them, many in one start of the tool, without
/// new backups. A file that is
/// read-only or blocked, or whose run fails, is named in the outcome and does not keep others from theirs.
UndoOutcome undo(const ExifToolRunner& runner, const JournalEntry& entry);

}  // namespace SaveUndo

}  // namespace Quorbel
