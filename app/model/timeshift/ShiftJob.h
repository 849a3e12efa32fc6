// One shift of times from beginning to end, away from the main thread: what the files hold is read, what becomes of it
// is written and kept for undoing, and then read again and compared to the letter.
// Thread: any but the main one for run() and check(): both block on ExifTool. The texts are pure.
#pragma once

#include "app/model/saving/SaveHistory.h"
#include "core/save/shift/PhotoShift.h"

#include <stop_token>

namespace Quorbel::ShiftJob {

struct Order {
    QList<QUrl> targets{};
    QHash<QUrl, TimeShift> shifts{};  ///< of each target
    WriteOptions options{};

    bool setsZone() const { return !shifts.isEmpty() && shifts.cbegin()->zone.has_value(); }
};

/// What the files hold, read ahead of the write.
struct Looked {
    OldValues values{};
    QHash<QUrl, FileStamp> stamps{};  ///< of the targets, when they were read
    std::optional<QString> error{};  ///< they could not be read: why
    bool isCancelled = false;
    SidecarPolicy sidecars{};  ///< by which files were looked at
};

/// Reads the targets in slices, and counts them. Never throws.
Looked look(const MetadataService& service, const Order& order, TaskProgress& progress, const std::stop_token& stop);

/// What the write came to.
struct Written {
    std::optional<QString> error{};  ///< nothing was changed: why
    QHash<QUrl, PhotoShift> photos{};  ///< of the targets that could be read
    QHash<QUrl, FileTags> before{};  ///< what they held
    QList<FileFailure> failures{};  ///< targets that the tool named, or that a failed run was to write
    WriteNotes notes{};
    std::optional<SaveHistory::Undoable> undoable{};  ///< what can be taken back now; nothing without a history
};

/// Writes, and counts meanwhile the files that are done. Photos that changed since the look are looked at again. All of
/// them share a start of the tool, or as few as hold what they are asked. Never throws.
Written run(const MetadataService& service, const Order& order, const Looked& looked,
    const std::shared_ptr<SaveHistory>& history, TaskProgress& progress);

/// What the files hold afterwards.
struct Checked {
    QList<ImageRecord> records{};  ///< of the targets that could be read again, in their order
    QList<FileFailure> failures{};  ///< targets that are what they were, or nobody knows what
    QMap<QString, QStringList> differing{};  ///< names of targets that changed otherwise than asked, and in which tags
    std::optional<QString> error{};  ///< the files could not be read again; then all else is empty
};

/// Reads the targets again and compares all their dates, times and zones with what was to become of them, those too
/// that were to stay. Targets that are too slow are not read. Never throws; of a read that was stopped the result means
/// nothing.
Checked check(const MetadataService& service, const Order& order, const Written& written, const QSet<QUrl>& tooSlow,
    TaskProgress& progress, const std::stop_token& stop, const std::shared_ptr<RecordCache>& cache = {});

/// For the banner; nothing when all went well and nothing was left alone.
std::optional<QString> message(const Order& order, const Written& written, const Checked& checked);

}  // namespace Quorbel::ShiftJob
