// Keywords of many photos.
#include "app/model/AppModel.h"

namespace Quorbel {

const QList<AppModel::KeywordCount>& AppModel::selectedKeywords() const
{
    return checked(m_selectedKeywords).list();
}

int AppModel::selectedKeywordPhotos() const
{
    return checked(m_selectedKeywords).photos();
}

void AppModel::takeBatchItemAway(const QString& id, const QString& item)
{
    if (isBatch())
        editing().takeBatchItemAway(id, item);
}

void AppModel::keepBatchItem(const QString& id, const QString& item)
{
    if (isBatch())
        editing().keepBatchItem(id, item);
}

}  // namespace Quorbel
