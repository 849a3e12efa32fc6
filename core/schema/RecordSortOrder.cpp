#include "core/schema/RecordSortOrder.h"

#include "core/text/Text.h"

#include <algorithm>
#include <vector>

namespace Quorbel {

using namespace Qt::StringLiterals;

const QList<std::pair<RecordSortOrder, QString>>& RawValues<RecordSortOrder>::table()
{
    static const QList<std::pair<RecordSortOrder, QString>> rows{
        { RecordSortOrder::nameAsc, u"nameAsc"_s },
        { RecordSortOrder::nameDesc, u"nameDesc"_s },
        { RecordSortOrder::dateNewest, u"dateNewest"_s },
        { RecordSortOrder::dateOldest, u"dateOldest"_s },
    };
    return rows;
}

namespace {

// What a record is compared by, worked out once: comparing names afresh would cost ten times as much.
struct Entry {
    qsizetype index = 0;
    QCollatorSortKey name;
    std::optional<qint64> created{};  ///< milliseconds since 1970
};

bool precedes(RecordSortOrder order, const Entry& a, const Entry& b)
{
    if (order == RecordSortOrder::nameAsc)
        return a.name.compare(b.name) < 0;
    if (order == RecordSortOrder::nameDesc)
        return b.name.compare(a.name) < 0;
    if (a.created.has_value() != b.created.has_value())
        return a.created.has_value();
    if (a.created == b.created)
        return a.name.compare(b.name) < 0;
    return order == RecordSortOrder::dateNewest ? *a.created > *b.created : *a.created < *b.created;
}

}  // namespace

QList<ImageRecord> sorted(RecordSortOrder order, const QList<ImageRecord>& records)
{
    std::vector<Entry> entries;
    entries.reserve(records.size());
    for (qsizetype i = 0; i < records.size(); ++i) {
        std::optional<qint64> created;
        if (records[i].creationDate)
            created = records[i].creationDate->toMSecsSinceEpoch();
        entries.push_back({ i, Text::naturalSortKey(records[i].fileName), created });
    }
    std::stable_sort(
        entries.begin(), entries.end(), [order](const Entry& a, const Entry& b) { return precedes(order, a, b); });

    QList<ImageRecord> result;
    result.reserve(records.size());
    for (const Entry& entry : entries)
        result.append(records[entry.index]);
    return result;
}

}  // namespace Quorbel
