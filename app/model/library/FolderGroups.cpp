#include "app/model/library/FolderGroups.h"

#include <algorithm>

namespace Quorbel {

bool FolderGroups::update(QList<FolderGroup> groups)
{
    if (!m_folded.isEmpty())
        for (FolderGroup& group : groups)
            group.isFolded = m_folded.contains(group.folder);
    if (groups == m_list)
        return false;
    m_list = std::move(groups);
    return true;
}

bool FolderGroups::setFolded(const QList<QUrl>& folders, bool on)
{
    for (const QUrl& folder : folders) {
        if (on)
            m_folded.insert(folder);
        else
            m_folded.remove(folder);
    }
    bool isAnyOther = false;
    for (FolderGroup& group : m_list) {
        const bool isFolded = m_folded.contains(group.folder);
        isAnyOther = isAnyOther || group.isFolded != isFolded;
        group.isFolded = isFolded;
    }
    return isAnyOther;
}

bool FolderGroups::isFolded(qsizetype row) const
{
    const auto behind = std::upper_bound(
        m_list.cbegin(), m_list.cend(), row, [](qsizetype at, const FolderGroup& group) { return at < group.first; });
    return behind != m_list.cbegin() && std::prev(behind)->isFolded;
}

}  // namespace Quorbel
