// What moving a photo's metadata over asks of it: what its sidecar holds goes into the photo's own file, or what the
// file holds, and the sidecar does not, goes into the sidecar.
// Thread: any. Pure.
#pragma once

#include "core/save/EditPlan.h"
#include "core/save/ListHomes.h"
#include "core/schema/PhotoDetails.h"
#include "core/tool/TagDump.h"

namespace Quorbel {

enum class MoveWay { intoPhotos, intoSidecars };

/// What one file holds.
struct HeldFields {
    ImageRecord record{};  ///< as it is shown
    PhotoDetails details{};
    FileTags tags{};  ///< as it is stored
};

/// A photo and its sidecar, each read for itself.
struct MovedPhoto {
    HeldFields file{};
    HeldFields sidecar{};  ///< empty where there is none
    ImageRecord together{};  ///< the file's, with the sidecar's over it
};

struct MovePlan {
    enum class Change { gains, changes, loses };

    EditPlan plan{};
    ListHomes::SeenLists seen{};  ///< what the file that is written shows of its lists
    /// What becomes of the fields of that file. Keys: field ids, FieldLanguages::key(), CustomFields::key().
    QMap<QString, Change> changes{};
    QStringList kept{};  ///< keys of what the sidecar holds otherwise than the file, and keeps
    /// Keys of what could not be written as it stands: a rejection among the ratings, several creators, half a date,
    /// members of structures that the tool does not know.
    QStringList odd{};

    /// Into the file: fields that the sidecar holds otherwise, or holds empty. Into the sidecar: fields that it does
    /// not hold.
    static MovePlan of(MoveWay way, const MovedPhoto& photo);
    /// Tags that have to be known of both files.
    static const QStringList& tags();
};

}  // namespace Quorbel
