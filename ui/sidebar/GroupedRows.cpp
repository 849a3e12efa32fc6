#include "ui/sidebar/GroupedRows.h"

#include <algorithm>

namespace Quorbel {

GroupedRows::GroupedRows(QList<FolderGroup> groups, qsizetype photos)
    : m_groups(std::move(groups))
    , m_count(int(photos))
{
    if (m_groups.isEmpty())
        return;
    m_headings.reserve(size_t(m_groups.size()));
    m_count = 0;
    for (const FolderGroup& group : std::as_const(m_groups)) {
        m_headings.push_back(m_count);
        m_count += 1 + (group.isFolded ? 0 : int(group.count));
    }
}

int GroupedRows::groupAt(int row) const
{
    if (row < 0 || row >= m_count || m_groups.isEmpty())
        return -1;
    return int(std::upper_bound(m_headings.cbegin(), m_headings.cend(), row) - m_headings.cbegin()) - 1;
}

int GroupedRows::headingAt(int row) const
{
    const int group = groupAt(row);
    return group >= 0 && m_headings[size_t(group)] == row ? group : -1;
}

qsizetype GroupedRows::photoAt(int row) const
{
    if (row < 0 || row >= m_count)
        return -1;
    const int group = groupAt(row);
    if (group < 0)
        return row;
    const int behind = row - m_headings[size_t(group)];
    return behind == 0 ? -1 : m_groups.at(group).first + behind - 1;
}

int GroupedRows::groupOfPhoto(qsizetype photo) const
{
    const auto isBefore = [](qsizetype position, const FolderGroup& group) { return position < group.first; };
    const auto next = std::upper_bound(m_groups.cbegin(), m_groups.cend(), photo, isBefore);
    return int(next - m_groups.cbegin()) - 1;
}

int GroupedRows::groupOfFolder(const QUrl& folder) const
{
    const auto found = std::find_if(
        m_groups.cbegin(), m_groups.cend(), [&folder](const FolderGroup& group) { return group.folder == folder; });
    return found == m_groups.cend() ? -1 : int(found - m_groups.cbegin());
}

int GroupedRows::rowOfPhoto(qsizetype photo) const
{
    if (m_groups.isEmpty())
        return photo < m_count ? int(photo) : -1;
    const int group = groupOfPhoto(photo);
    if (group < 0 || m_groups.at(group).isFolded)
        return -1;
    return m_headings[size_t(group)] + 1 + int(photo - m_groups.at(group).first);
}

int GroupedRows::top(int row, RowPitch pitch) const
{
    const auto above = std::lower_bound(m_headings.cbegin(), m_headings.cend(), row);
    const int headings = int(above - m_headings.cbegin());
    return headings * pitch.heading + (row - headings) * pitch.photo;
}

int GroupedRows::rowAt(int y, RowPitch pitch) const
{
    if (m_count == 0)
        return -1;
    if (m_groups.isEmpty())
        return qBound(0, y / pitch.photo, m_count - 1);
    const auto isAbove = [&](const int& heading) { return top(heading, pitch) <= y; };
    const auto next = std::partition_point(m_headings.cbegin() + 1, m_headings.cend(), isAbove);
    const int heading = *std::prev(next);
    const int below = y - top(heading, pitch) - pitch.heading;
    const int end = next == m_headings.cend() ? m_count : *next;
    return below < 0 ? heading : qMin(heading + 1 + below / pitch.photo, end - 1);
}

}  // namespace Quorbel
