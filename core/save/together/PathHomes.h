// What becomes of the keyword paths of one photo when keywords are taken away and paths are gained. Each home that the
// photo has keeps its own items, in its own form: nothing is brought together that nobody touched.
// Thread: any. Pure.
#pragma once

#include "core/tool/Assignment.h"
#include "core/tool/TagDump.h"

namespace Quorbel::PathHomes {

/// Removes from every home in `held` the paths whose last element is one of the keywords (paths with it inside stay),
/// unless they are gained at the same time, and adds the gained ones to the homes that the photo has; to those made for
/// new ones where it has none, or none that can hold the path. Keywords are told apart by case. Only adds and removes.
QList<Assignment> change(const QStringList& takenAway, const QStringList& gained, const FileTags& held);

}  // namespace Quorbel::PathHomes
