// The orders of the photo list. Thread: any. Dates are the file system's creation dates.
#pragma once

#include "core/schema/Enumerations.h"

namespace Quorbel {

enum class RecordSortOrder { nameAsc, nameDesc, dateNewest, dateOldest };

template <>
struct RawValues<RecordSortOrder> {
    static const QList<std::pair<RecordSortOrder, QString>>& table();
};

}  // namespace Quorbel
