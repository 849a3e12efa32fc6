#include "core/schema/RecordSortOrder.h"

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

}  // namespace Quorbel
