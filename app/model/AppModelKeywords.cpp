// Keywords of many photos.
#include "app/model/AppModel.h"

namespace Quorbel {

const QList<AppModel::KeywordCount>& AppModel::selectedKeywords() const
{
    static const QList<KeywordCount> none;
    return none;
}

void AppModel::takeBatchItemAway(const QString&, const QString&) { }

void AppModel::keepBatchItem(const QString&, const QString&) { }

}  // namespace Quorbel
