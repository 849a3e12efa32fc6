#include "app/model/library/details/DetailsInSight.h"

namespace Quorbel {

namespace {

// Of more selected photos only those in view are read.
constexpr qsizetype mostSelected = 256;
// What is one run.
constexpr qsizetype selectedAtOnce = 64;
constexpr qsizetype inViewAtOnce = 32;

}  // namespace

void DetailsInSight::setSelected(const std::optional<QUrl>& first, const QSet<QUrl>& photos)
{
    m_first = first;
    m_selected = photos;
}

QList<QUrl> DetailsInSight::nextSelected(const Filter& isWanted) const
{
    QList<QUrl> wanted;
    if (m_first && isWanted(*m_first))
        wanted.append(*m_first);
    if (m_selected.size() > mostSelected)
        return wanted;
    for (const QUrl& photo : m_selected) {
        if (wanted.size() == selectedAtOnce)
            break;
        if (photo != m_first && isWanted(photo))
            wanted.append(photo);
    }
    return wanted;
}

QList<QUrl> DetailsInSight::nextInView(const Filter& isWanted) const
{
    QList<QUrl> wanted;
    for (const QUrl& photo : m_inView)
        if (wanted.size() < inViewAtOnce && isWanted(photo))
            wanted.append(photo);
    return wanted;
}

}  // namespace Quorbel
