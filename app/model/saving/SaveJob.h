// One save from beginning to end, away from the main thread, and the texts that tell the user what came of it.
// Thread: any but the main one for run() and check(): both block on ExifTool. The texts are pure.
#pragma once

#include "app/model/library/PhotoReader.h"
#include "app/model/saving/EarlyLook.h"
#include "app/model/saving/SaveHistory.h"
#include "core/MetadataService.h"
#include "core/save/together/PhotoPlans.h"

#include <future>

namespace Quorbel::SaveJob {

/// What the write came to. Every target was written when there is no error.
struct Written {
    std::optional<QString> error{};  ///< the error's description
    /// The tool ran, and failed: some of the targets may be written all the same. Otherwise an error means that
    /// nothing was changed.
    bool isPartial = false;
    QList<FileFailure> failures{};  ///< the targets that the tool named, with its reasons
    /// What the history can take back now; none without a history. There by the end of check(), or of run() where no
    /// check follows.
    std::shared_future<SaveHistory::Undoable> undoable{};
    bool isUntouched = false;  ///< no target was replaced
    WriteNotes notes{};
    QStringList leftOut{};  ///< homes that the plan was written without
    /// Failed targets that would take a part of the plan: the homes that they refuse, and why.
    QMap<QUrl, QMap<QString, QString>> refusedHomes{};
    QHash<QUrl, PhotoPlan> photos{};  ///< what was asked of each target
    bool mayBeSaved = false;  ///< some target may hold the plan: check() is to follow
};

/// What was on screen of the lists that are to be replaced, by target.
using SeenLists = QHash<QUrl, ListHomes::SeenLists>;

/// What one save is given.
struct Order {
    EditPlan plan{};  ///< of the targets that have none of their own
    QList<QUrl> targets{};
    WriteOptions options{};
    SeenLists seen{};
    std::shared_ptr<EarlyLook> look{};  ///< at what the save replaces; may be absent
    QHash<QUrl, EditPlan> own{};  ///< by target; those with equal plans share a run
    /// Homes are made to agree: what comes together was asked for.
    bool isAgreement = false;
    /// Which photos are written beside, whatever the settings say; nothing: those that the service says.
    std::optional<SidecarPolicy> sidecars{};
};

/// Writes, and counts meanwhile the files that are done. Lists that differ between their homes are brought together,
/// and what belongs together with an edited field is written with it (PhotoPlans): one run for each distinct set, many
/// of them in one start of the tool. What
/// it replaces goes into the history, where there is one; a history that cannot be kept does not stop the save. Never
/// throws.
Written run(const MetadataService& service, const Order& order, const std::shared_ptr<SaveHistory>& history,
    TaskProgress& progress);

/// What the files hold afterwards.
struct Checked {
    QList<ImageRecord> records{};  ///< of the targets that were saved, in their order
    QList<FileFailure> failures{};  ///< the targets that were not
    QStringList differences{};  ///< keys of fields that some saved target holds otherwise than was written
    QMap<QString, QStringList> joined{};  ///< field id to the names of the targets whose homes were brought together
    std::optional<QString> error{};  ///< the files could not be read again; then all else is empty
};

/// Reads the targets again, looks at the same time into all their homes, and compares them, in all homes of the fields,
/// with what was to be written, languages, keyword paths and further homes of dates included. After a failed run a
/// target counts as saved when it holds all of its plan and the tool did not name it. Targets that are too slow are not
/// read: nobody knows what they hold, so they count as not saved. Never throws; of a read that was stopped the result
/// means nothing.
Checked check(const MetadataService& service, const Order& order, const Written& written, const QSet<QUrl>& tooSlow,
    TaskProgress& progress, const std::stop_token& stop, const std::shared_ptr<RecordCache>& cache = {});

/// "Keywords of 2 photos differed between IPTC and XMP and were brought together: a.jpg, b.jpg"; at least one field.
QString joinedText(const QMap<QString, QStringList>& joined);
/// "Could not save 2 of 40 photos: a.jpg (Not a valid JPG), b.jpg (…)"; at least one failure.
QString failuresText(const QList<FileFailure>& failures, qsizetype targetCount);

}  // namespace Quorbel::SaveJob
