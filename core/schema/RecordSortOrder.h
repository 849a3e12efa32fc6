// The orders of the photo list. Thread: any. Pure, but for the user's locale (see Text.h).
#pragma once

#include "core/schema/Enumerations.h"
#include "core/schema/ImageRecord.h"

namespace Quorbel {

enum class RecordSortOrder { nameAsc, nameDesc, dateNewest, dateOldest };

template <>
struct RawValues<RecordSortOrder> {
    static const QList<std::pair<RecordSortOrder, QString>>& table();
};

/// The records in this order; stable. Dates are the file system's creation dates; records without one come last.
QList<ImageRecord> sorted(RecordSortOrder order, const QList<ImageRecord>& records);

}  // namespace Quorbel
