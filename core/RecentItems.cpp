#include "core/RecentItems.h"

#include <QSet>

namespace Quorbel::RecentItems {

QStringList updated(const QStringList& current, const QStringList& adding, int limit)
{
    QStringList result;
    QSet<QString> added;
    for (auto path = adding.crbegin(); path != adding.crend(); ++path) {
        if (!added.contains(*path)) {
            added.insert(*path);
            result.append(*path);
        }
    }
    for (const QString& path : current)
        if (!added.contains(path))
            result.append(path);
    return result.first(qBound(qsizetype(0), qsizetype(limit), result.size()));
}

}  // namespace Quorbel::RecentItems
