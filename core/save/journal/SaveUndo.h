// Takes saves back: reads what a save is about to replace, and writes it back later.
// Thread: any; blocks on ExifTool. SaveJournal keeps the entries in between.
#pragma once

#include "core/save/journal/JournalEntry.h"
#include "core/tool/ExifToolRunner.h"
#include "core/tool/WriteFailures.h"

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

/// What the plan is about to replace in the targets, read in one run, and in their sidecars, if those are written as
/// well; in passing, of what type (ExifTool's name) each file is, by its path. Throws the runner's errors.
JournalEntry journalEntry(const ExifToolRunner& runner, const EditPlan& plan, const QList<QUrl>& targets,
    const WriteOptions& options, QHash<QString, QString>* fileTypes = nullptr);
/// What these photos hold in all tags that some plan may replace, read in one run. Throws the runner's errors.
OldValues oldValues(const ExifToolRunner& runner, const QList<QUrl>& targets, const ReadControl& control);
/// journalEntry() as of the moment at which these values were read, but for the sidecars and the times of the files,
/// which are those of now.
JournalEntry journalEntry(const OldValues& known, const EditPlan& plan, const QList<QUrl>& targets,
    const WriteOptions& options, QHash<QString, QString>* fileTypes = nullptr);
/// Writes the old values of a save back, one run for each distinct set of them, without new backups. A file that is
/// read-only or blocked, or whose run fails, is named in the outcome and does not keep others from theirs.
UndoOutcome undo(const ExifToolRunner& runner, const JournalEntry& entry);

}  // namespace SaveUndo

}  // namespace Quorbel
