#include "core/schema/RecentItems.h"

#include <QSet>

namespace Quorbel::RecentItems {

QStringList updated(const QStringList& current, const QStringList& adding, int limit)
{
    QStringList result;
    QSet<QString> added;
    for (qsizetype i = adding.size() - 1; i >= 0; --i) {
        if (!added.contains(adding[i])) {
            added.insert(adding[i]);
            result.append(adding[i]);
        }
    }
    for (const QString& path : current)
        if (!added.contains(path))
            result.append(path);
    return result.first(qBound(qsizetype(0), qsizetype(limit), result.size()));
}

}  // namespace Quorbel::RecentItems
