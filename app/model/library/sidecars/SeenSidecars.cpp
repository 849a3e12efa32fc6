#include "app/model/library/sidecars/SeenSidecars.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

bool SeenSidecars::isWanted(const QString& fileName) const
{
    return m_policy.isInUse() && (fileName.endsWith(u".xmp"_s) || fileName.endsWith(u".XMP"_s));
}

QString SeenSidecars::of(const QUrl& photo) const
{
    if (m_paths.isEmpty() || !m_policy.isBeside(photo))
        return {};
    const QString path = photo.toLocalFile();
    for (const QString& stem : { path, path.left(path.lastIndexOf(u'.')) })
        for (const QString& suffix : { u".xmp"_s, u".XMP"_s })
            if (m_paths.contains(stem + suffix))
                return stem + suffix;
    return {};
}

}  // namespace Quorbel
