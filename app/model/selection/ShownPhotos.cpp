#include "app/model/selection/ShownPhotos.h"

#include <algorithm>
#include <cstdlib>

namespace Quorbel {

std::optional<QUrl> ShownPhotos::from(const QList<ImageRecord>& records, const QList<int>& visibleRows,
    const QList<FolderGroup>& groups, qsizetype row, int places)
{
    const auto isFolded = [&groups](qsizetype at) {
        const auto behind = std::upper_bound(groups.cbegin(), groups.cend(), at,
            [](qsizetype one, const FolderGroup& group) { return one < group.first; });
        return behind != groups.cbegin() && std::prev(behind)->isFolded;
    };
    const int step = places < 0 ? -1 : 1;
    int left = std::abs(places);
    row = row < 0 && step < 0 ? visibleRows.size() - 1 : row + step;
    for (; left > 0 && row >= 0 && row < visibleRows.size(); row += step)
        if (!isFolded(row) && --left == 0)
            return records.at(visibleRows.at(row)).url;
    return std::nullopt;
}

}  // namespace Quorbel
