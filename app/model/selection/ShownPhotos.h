// The photos that can be seen in the list, one after the other: those that pass search and filter, without those that a
// folded folder hides.
// Thread: any. Pure.
#pragma once

#include "app/model/library/FolderGroups.h"
#include "core/schema/ImageRecord.h"

#include <optional>

namespace Quorbel::ShownPhotos {

/// The photo so many seen ones away from this row of the visible ones, negative: in front of it; nothing where the list
/// ends before. From outside of the list (row -1) the first one, or backwards the last one, is the next.
std::optional<QUrl> from(const QList<ImageRecord>& records, const QList<int>& visibleRows,
    const QList<FolderGroup>& groups, qsizetype row, int places);

}  // namespace Quorbel::ShownPhotos
