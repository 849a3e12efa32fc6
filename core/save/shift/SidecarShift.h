// What a shift of time makes of a photo whose edits go beside it: its sidecar takes what moves, and the photo's own
// file stays. A date that only the photo holds comes into the sidecar; one that is hidden there stays hidden. Thread:
// any. Pure.
#pragma once

#include "core/save/EditPlan.h"
#include "core/save/shift/PhotoShift.h"

namespace Quorbel::SidecarShift {

/// The tags that have to be known of the sidecar, named as assignments name them; of the photo, those of PhotoShift.
const QStringList& tags();
/// Of what a sidecar holds, what stands in tags().
FileTags among(const FileTags& held);
/// `sidecar`, `photo`: what the two files hold in these tags or more, as it is stored; nothing of a sidecar that is not
/// there. The note is written with what moves.
PhotoShift of(const TimeShift& shift, const FileTags& sidecar, const FileTags& photo, const SidecarNote& note);

}  // namespace Quorbel::SidecarShift
