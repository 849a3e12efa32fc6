// What a save asks of a photo's sidecar: the edits of the photo, told for a file that need not hold what the photo
// does. A list that gains an item is written whole, since the sidecar's list hides the file's; a field that is emptied
// stays as an empty text where the file holds one.
// Thread: any. Pure.
#pragma once

#include "core/iptc/IptcValues.h"
#include "core/save/EditPlan.h"
#include "core/save/ListHomes.h"
#include "core/tool/TagDump.h"

namespace Quorbel {

struct SidecarPlan {
    EditPlan plan{};
    FileTags held{};  ///< what stands in the sidecar, and of the lists that are edited what stands in the file
    ListHomes::SeenLists seen{};  ///< of those, what the user saw

    /// What one of the two files holds.
    struct Held {
        FileTags tags{};  ///< in tagsOf() and more
        IptcValues iptc{};  ///< of the fields of iptcOf()
    };

    /// The tags that have to be known of both files.
    static QStringList tagsOf(const EditPlan& plan);
    /// Ids of the fields of IptcSchema that have to be known of both.
    static QStringList iptcOf(const EditPlan& plan);
    /// "yyyy:MM:dd HH:mm:ss+hh:mm": now.
    static QString savedAt();
    /// What is noted in the sidecar of a photo of this name; `sidecar`: what stands there in the tags of no plan.
    static SidecarNote note(const QString& photo, const FileTags& sidecar, const QString& savedAt);
    /// `photo`: the name of its file. `seen`: as with PhotoPlans::decide(). `savedAt`: as in SidecarNote.
    static SidecarPlan of(const EditPlan& plan, const QString& photo, const Held& sidecar, const Held& file,
        const ListHomes::SeenLists& seen, const QString& savedAt);
};

}  // namespace Quorbel
