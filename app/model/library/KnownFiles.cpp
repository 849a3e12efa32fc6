#include "app/model/library/KnownFiles.h"

#include "core/text/Text.h"

#include <QSet>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString pathIn(const QString& folder, const QString& name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

std::optional<qint64> milliseconds(const std::optional<QDateTime>& date)
{
    return date ? std::optional(date->toMSecsSinceEpoch()) : std::nullopt;
}

}  // namespace

/// One scan beside what is known.
struct KnownFiles::Comparison {
    const KnownFiles& known;
    const FolderScan& scan;
    bool isAsked = false;
    QSet<QString> away{};
    FolderNews news{};

    void run();

private:
    bool isAway(const QString& path, const FolderScan::Folder& found) const;
    QString nearest(QString path) const;
    void compare(const QString& path, const Folder& folder);
    void lookForFurther(const QString& path, const FolderScan::Folder& found);
    bool isNews(const FolderNews::File& seen) const;
};

void KnownFiles::Comparison::run()
{
    for (auto found = scan.folders.cbegin(); found != scan.folders.cend(); ++found)
        if (isAway(found.key(), found.value()))
            away.insert(found.key());
    // One of the folders that were given; of those in it, only those that held photos are missed.
    news.isAway = std::any_of(away.cbegin(), away.cend(),
        [this](const QString& path) { return nearest(PhotoPlace::of(path).folder).isEmpty() || path == u"/"_s; });
    for (auto folder = known.m_folders.cbegin(); folder != known.m_folders.cend(); ++folder)
        compare(folder.key(), folder.value());
    for (auto found = scan.folders.cbegin(); found != scan.folders.cend(); ++found)
        lookForFurther(found.key(), found.value());
    std::sort(news.further.begin(), news.further.end(), [](const FolderNews::File& a, const FolderNews::File& b) {
        return Text::naturalCompare(a.url.fileName(), b.url.fileName()) < 0;
    });
}

// Where a disk was mounted and is no more, there is an empty folder of another disk.
bool KnownFiles::Comparison::isAway(const QString& path, const FolderScan::Folder& found) const
{
    if (!found.isListed)
        return true;
    const auto device = known.m_devices.constFind(path);
    return found.photos.isEmpty() && !found.hasFolders && device != known.m_devices.cend() && *device != found.device;
}

// The folder itself, or the nearest one around it that was looked at; "" where there is none: then it is not about it.
QString KnownFiles::Comparison::nearest(QString path) const
{
    while (!path.isEmpty() && !scan.folders.contains(path)) {
        const QString around = PhotoPlace::of(path).folder;
        path = around == path ? QString() : around;
    }
    return path;
}

void KnownFiles::Comparison::compare(const QString& path, const Folder& folder)
{
    const QString speaker = nearest(path);
    if (folder.dates.isEmpty() || speaker.isEmpty())
        return;
    if (away.contains(speaker)) {
        news.isAway = true;
        return;
    }
    const auto found = scan.folders.constFind(path);
    const bool isThere = found != scan.folders.cend();
    QList<QUrl>& gone = isThere && found->photos.isEmpty() ? news.emptied : news.gone;
    for (auto file = folder.dates.cbegin(); file != folder.dates.cend(); ++file) {
        const SidecarStamp sidecar = isThere ? found->sidecars.value(file.key()) : SidecarStamp();
        const auto now = isThere ? found->photos.constFind(file.key()) : decltype(found->photos.cend()){};
        if (!isThere || now == found->photos.cend()) {
            gone.append(QUrl::fromLocalFile(pathIn(path, file.key())));
        } else if ((file.value() && now->modified && *now->modified != *file.value())
            || sidecar != folder.sidecars.value(file.key())) {
            const FolderNews::File seen{ QUrl::fromLocalFile(pathIn(path, file.key())), *now, sidecar };
            if (isNews(seen))
                news.changed.append(seen);
        }
    }
}

void KnownFiles::Comparison::lookForFurther(const QString& path, const FolderScan::Folder& found)
{
    const auto folder = known.m_folders.constFind(path);
    for (auto photo = found.photos.cbegin(); photo != found.photos.cend(); ++photo) {
        if (folder != known.m_folders.cend() && folder->dates.contains(photo.key()))
            continue;
        const FolderNews::File seen{ QUrl::fromLocalFile(pathIn(path, photo.key())), photo.value(),
            found.sidecars.value(photo.key()) };
        if (isNews(seen))
            news.further.append(seen);
    }
}

bool KnownFiles::Comparison::isNews(const FolderNews::File& seen) const
{
    const auto vain = known.m_unreadable.constFind(seen.url.toLocalFile());
    return isAsked || vain == known.m_unreadable.cend() || !isSame(*vain, seen);
}

bool KnownFiles::isSame(const Step& vain, const FolderNews::File& seen)
{
    return vain.stamp == seen.stamp && vain.sidecar == seen.sidecar;
}

KnownFiles::KnownFiles(const QList<ImageRecord>& photos)
{
    for (const ImageRecord& photo : photos)
        take(noteOf(photo));
}

KnownFiles::Step KnownFiles::noteOf(const ImageRecord& photo)
{
    return { Step::What::note, photo.url, photo.contentModificationDate, {},
        { photo.sidecarName, milliseconds(photo.sidecarModificationDate) } };
}

void KnownFiles::note(const ImageRecord& photo)
{
    add(noteOf(photo));
}

void KnownFiles::forget(const QUrl& photo)
{
    add({ Step::What::forget, photo });
}

void KnownFiles::noteUnreadable(const QList<FolderNews::File>& files)
{
    for (const FolderNews::File& file : files)
        add({ Step::What::unreadable, file.url, {}, file.stamp, file.sidecar });
}

void KnownFiles::add(const Step& step)
{
    const std::scoped_lock lock(m_noting);
    m_steps.push_back(step);
}

void KnownFiles::catchUp()
{
    std::vector<Step> steps;
    {
        const std::scoped_lock lock(m_noting);
        steps.swap(m_steps);
    }
    for (const Step& step : steps)
        take(step);
}

void KnownFiles::take(const Step& step)
{
    if (step.what == Step::What::unreadable) {
        m_unreadable.insert(step.photo.toLocalFile(), step);
        return;
    }
    const PhotoPlace place = PhotoPlace::of(step.photo);
    Folder& folder = m_folders[place.folder];
    if (step.what == Step::What::forget)
        folder.dates.remove(place.name);
    else
        folder.dates.insert(place.name, milliseconds(step.modified));
    if (!step.sidecar.name.isEmpty())
        folder.sidecars.insert(place.name, step.sidecar);
    else if (!folder.sidecars.isEmpty())
        folder.sidecars.remove(place.name);
    if (!m_unreadable.isEmpty())
        m_unreadable.remove(step.photo.toLocalFile());
}

FolderNews KnownFiles::look(const std::function<FolderScan()>& scan, bool isAsked)
{
    const std::scoped_lock lock(m_looking);
    // Before the scan: what is noted during it may be younger than what the scan sees.
    catchUp();
    const FolderScan found = scan();
    Comparison comparison{ *this, found, isAsked };
    comparison.run();
    for (auto folder = found.folders.cbegin(); folder != found.folders.cend(); ++folder)
        if (folder->isListed && !comparison.away.contains(folder.key()))
            m_devices.insert(folder.key(), folder->device);
    return comparison.news;
}

}  // namespace Quorbel
