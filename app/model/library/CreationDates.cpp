#include "app/model/library/CreationDates.h"

namespace Quorbel {

void CreationDates::keep(const ImageRecord& before, ImageRecord& fresh)
{
    if (!before.creationDate || !fresh.creationDate || before.creationDate == fresh.creationDate)
        return;
    m_dates.insert(fresh.url, { *fresh.creationDate, *before.creationDate });
    fresh.creationDate = before.creationDate;
}

QList<ImageRecord> CreationDates::applied(QList<ImageRecord> fresh) const
{
    if (m_dates.isEmpty())
        return fresh;
    for (ImageRecord& record : fresh)
        if (const auto dates = m_dates.constFind(record.url);
            dates != m_dates.cend() && record.creationDate == dates->file)
            record.creationDate = dates->photo;
    return fresh;
}

}  // namespace Quorbel
