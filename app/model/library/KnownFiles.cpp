#include "app/model/library/KnownFiles.h"

#include "core/save/ExternalRefresh.h"
#include "core/text/Text.h"

#include <algorithm>

namespace Quorbel {

KnownFiles::KnownFiles(const QList<ImageRecord>& photos)
{
    m_files.reserve(photos.size());
    for (const ImageRecord& photo : photos)
        m_files.insert(photo.url, photo.contentModificationDate);
}

void KnownFiles::note(const ImageRecord& photo)
{
    const std::scoped_lock lock(m_noting);
    m_steps.push_back({ photo.url, photo.contentModificationDate, false });
}

void KnownFiles::forget(const QUrl& photo)
{
    const std::scoped_lock lock(m_noting);
    m_steps.push_back({ photo, std::nullopt, true });
}

void KnownFiles::catchUp()
{
    std::vector<Step> steps;
    {
        const std::scoped_lock lock(m_noting);
        steps.swap(m_steps);
    }
    for (const Step& step : steps) {
        if (step.isForgotten)
            m_files.remove(step.photo);
        else
            m_files.insert(step.photo, step.modified);
    }
}

FolderNews KnownFiles::look(const QUrl& folder)
{
    const FolderScan scan = FolderScan::of(folder);
    FolderNews news{ .isListed = scan.isListed };
    if (!scan.isListed)
        return news;
    const std::scoped_lock lock(m_looking);
    catchUp();
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        const auto now = scan.photos.constFind(file.key());
        if (now == scan.photos.cend())
            news.gone.append(file.key());
        else if (ExternalRefresh::isModified(file.value(), now.value()))
            news.changed.append(file.key());
    }
    for (auto photo = scan.photos.cbegin(); photo != scan.photos.cend(); ++photo)
        if (!m_files.contains(photo.key()))
            news.further.append(photo.key());
    std::sort(news.further.begin(), news.further.end(),
        [](const QUrl& a, const QUrl& b) { return Text::naturalCompare(a.fileName(), b.fileName()) < 0; });
    return news;
}

}  // namespace Quorbel
