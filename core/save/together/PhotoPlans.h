// What a save asks of each of its photos: its plan, and with it what belongs together with the edited fields. Which
// tags those are is decided here alone, from what each photo holds just before the save. Thread: any. The decisions are
// pure; decide() asks the file system for the files behind links.
#pragma once

#include "core/iptc/IptcValues.h"
#include "core/save/EditPlan.h"
#include "core/save/ListHomes.h"
#include "core/save/journal/SaveUndo.h"

#include <functional>
#include <optional>

namespace Quorbel {

/// One photo's.
struct PhotoPlan {
    EditPlan plan{};  ///< what is written
    ListHomes::Change lists{};  ///< its preparation comes first, where the plan appends
    QMap<QString, QString> keptTexts{};  ///< texts in further languages that are there before and after
    /// By id of fields of structures: what the photo holds afterwards.
    QMap<QString, QStringList> structures{};
    /// Why the photo cannot be saved without a loss; then nothing is to be written.
    QString problem{};
    bool operator==(const PhotoPlan&) const = default;

    /// All that the photo is to hold afterwards.
    EditPlan expected() const;
    /// The plan with the values of its preparation: all that the save of this photo assigns.
    EditPlan whole() const;
};

namespace PhotoPlans {

/// What has to be known of the photos to decide, and to take the save back: all that it may assign.
QStringList tagsBefore(const QList<EditPlan>& plans);
/// The same for whatever plan: for whoever reads before it is known which.
const QStringList& allTags();
/// Whether something may belong together with the fields of these plans.
bool needLook(const QList<EditPlan>& plans);
/// Ids of the structures that they change, which are looked at in a run of their own (IptcRead).
QStringList structuresOf(const QList<EditPlan>& plans);
/// Decides what becomes of those, where `held` says what the photo holds of them.
void decideStructures(PhotoPlan& photo, const IptcValues& held);

/// `planOf`: the plan of a target. `before`: what the files behind the targets hold, in tagsBefore(); nothing when that
/// could not be found out: then every language is kept that may be there. A field with languages keeps them in all
/// photos when one of them has any, so that one command does for all.
QHash<QUrl, PhotoPlan> decide(const QList<QUrl>& targets, const std::function<EditPlan(const QUrl&)>& planOf,
    const std::optional<OldValues>& before, const QHash<QUrl, ListHomes::SeenLists>& seen);

}  // namespace PhotoPlans

}  // namespace Quorbel
