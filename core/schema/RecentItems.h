// The list of what was opened last. Thread: any. Pure.
#pragma once

#include <QStringList>

namespace Quorbel::RecentItems {

/// Items that are kept.
constexpr int limit = 10;

/// Each path to add moves to the front in turn, so the last one ends up first; no path twice; at most `limit`.
QStringList updated(const QStringList& current, const QStringList& adding, int limit);

}  // namespace Quorbel::RecentItems
