#include "app/model/library/reading/OwnWrites.h"

#include <algorithm>

namespace Quorbel {

void OwnWrites::begin(const QSet<QUrl>& photos)
{
    m_photos = photos;
    ++m_count;
}

void OwnWrites::end()
{
    ++m_count;
    for (const QUrl& photo : std::as_const(m_photos))
        m_last.insert(photo, m_count);
    m_photos.clear();
}

void OwnWrites::beginRenaming()
{
    m_isRenaming = true;
    ++m_count;
}

void OwnWrites::endRenaming(const NewNames& names)
{
    m_isRenaming = false;
    ++m_count;
    for (const auto& [source, destination] : names.list())
        for (const QUrl& photo : { source, destination })
            m_last.insert(photo, m_count);
}

void OwnWrites::noteSidecars(const SidecarChange& change)
{
    m_sidecarChanges.emplace_back(++m_count, change);
}

bool OwnWrites::wasWritten(const QUrl& photo, int since) const
{
    const auto concerns = [&](const auto& change) { return change.first > since && change.second.concerns(photo); };
    return isBeingWritten(photo) || m_last.value(photo) > since
        || std::any_of(m_sidecarChanges.cbegin(), m_sidecarChanges.cend(), concerns);
}

}  // namespace Quorbel
