// The one entry point through which photos are read, written and renamed.
// Thread: any, but never the interface's: every call blocks on ExifTool. Holds no state; copy it freely.
#pragma once

#include "core/save/EditPlan.h"
#include "core/save/SaveJournal.h"
#include "core/schema/ImageRecord.h"
#include "core/tool/ExifToolRunner.h"
#include "core/tool/WriteFailures.h"

#include <QSet>

#include <optional>

namespace Quorbel {

/// What taking a save back came to.
struct UndoOutcome {
    QList<QUrl> restored{};
    QList<QUrl> changedSince{};  ///< left alone: somebody else changed or removed them after the save
    QList<FileFailure> failed{};
    QList<QUrl> inexact{};  ///< of the restored: those that do not hold quite what they held
};

struct MetadataService {
    ExifToolRunner runner{};

    /// A service around the located tool; nothing when there is none.
    static std::optional<MetadataService> locate();
    QUrl toolURL() const { return runner.exiftoolURL; }

    /// One record a URL, in their order, from exactly two runs of the tool. Progress counts the files of the main
    /// run. Throws the runner's errors; then there are no records at all.
    QList<ImageRecord> read(const QList<QUrl>& urls, const ReadControl& control = {}) const;
    /// Writes the plan to all targets in one run (plus one a file when sidecars are on) and returns the tool's
    /// standard output; "" when nothing was run. A symbolic link stands for the file that it points to; extended
    /// attributes, mode and owner survive. Text that a file's IPTC cannot hold as it is encoded is preceded by one
    /// run that re-encodes it. Throws the runner's errors, FileError, and SaveGuard::FileProblem when a file is
    /// read-only or blocked; then nothing was changed.
    QString write(const EditPlan& plan, const QList<QUrl>& targets, const WriteOptions& options) const;
    /// What the plan is about to replace in the targets, read in one run, and in their sidecars, if those are written
    /// as well. Throws the runner's errors.
    JournalEntry journalEntry(const EditPlan& plan, const QList<QUrl>& targets, const WriteOptions& options = {}) const;
    /// Writes the old values of a save back, one run for each distinct set of them, without new backups. A file that
    /// is read-only or blocked, or whose run fails, is named in the outcome and does not keep others from theirs.
    UndoOutcome undo(const JournalEntry& entry) const;
    /// Moves the photo within its file system, and with it its sidecar and its backup as far as they exist. Never
    /// replaces a file: throws FileError when the destination exists or the main move fails; a companion whose
    /// new name is taken stays where it is.
    void renameFile(const QUrl& source, const QUrl& destination) const;

    bool operator==(const MetadataService&) const = default;

private:
    void checkRestored(const JournalEntry& entry, const QSet<QUrl>& doubtful, UndoOutcome& outcome) const;
};

}  // namespace Quorbel
