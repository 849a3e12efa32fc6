#include "app/model/library/FolderScan.h"

#include "app/model/library/FolderWalk.h"
#include "app/model/library/sidecars/SeenSidecars.h"
#include "core/schema/ImageTypes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

namespace Quorbel {

namespace {

FolderFiles::Stamp stampOf(const PhotoFile::Look& look)
{
    if (!look.file)
        return {};
    const qint64 rest = look.file->modified % 1'000'000;
    return { look.file->modified / 1'000'000 - (rest < 0 ? 1 : 0), look.file->changed, look.file->size };
}

SidecarStamp sidecarOf(const PhotoFile::Look& look)
{
    const auto date = look.file ? look.file->sidecar.modificationDate() : std::nullopt;
    return date ? SidecarStamp{ look.file->sidecar.name, date->toMSecsSinceEpoch() } : SidecarStamp();
}

quint64 deviceOf(const QString& folder)
{
    struct stat status { };
    return stat(QFile::encodeName(folder).constData(), &status) == 0 ? status.st_dev : 0;
}

}  // namespace

std::optional<QList<QUrl>> FolderScan::entries(const QString& folder, SeenSidecars* sidecars)
{
    namespace fs = std::filesystem;
    const QString clean = QDir::cleanPath(folder);
    const QString prefix = clean.endsWith(u'/') ? clean : clean + u'/';
    QList<QUrl> found;
    std::error_code error;
    fs::directory_iterator entry(QFile::encodeName(clean).toStdString(), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        const QString path = prefix + QFile::decodeName(name.c_str());
        const QUrl url = QUrl::fromLocalFile(path);
        if (ImageTypes::isImage(url))
            found.append(url);
        else if (sidecars && sidecars->isWanted(path) && !entry->is_directory(error))
            sidecars->add(path);
    }
    return error ? std::nullopt : std::optional(found);
}

FolderScan FolderScan::of(const QList<QUrl>& folders, bool withSubfolders, const SidecarPolicy& sidecars,
    const Entering& entering, const std::stop_token& stop)
{
    FolderScan scan;
    QList<QUrl> tops;
    for (const QUrl& folder : folders)
        tops.append(QUrl::fromLocalFile(QDir::cleanPath(folder.toLocalFile())));
    if (withSubfolders)
        scan.addWalk(tops, sidecars, entering, stop);
    else
        for (const QUrl& top : std::as_const(tops))
            scan.addFolder(top.toLocalFile(), sidecars, entering, stop);
    return scan;
}

void FolderScan::addFolder(
    const QString& path, const SidecarPolicy& sidecars, const Entering& entering, const std::stop_token& stop)
{
    entering(path);
    SeenSidecars seen(sidecars);
    const auto isWanted = [&seen](const QString& name) { return ImageTypes::isImageName(name) || seen.isWanted(name); };
    const FolderFiles found = FolderFiles::of(path, isWanted, stop);
    Folder& folder = folders[path];
    folder.isListed = found.isListed;
    folder.device = found.device;
    folder.photos.reserve(found.files.size());
    const QString prefix = path.endsWith(u'/') ? path : path + u'/';
    QHash<QString, FolderFiles::Stamp> stamps;  // of sidecars, by path
    for (const FolderFiles::File& file : found.files) {
        if (!seen.isWanted(file.name)) {
            folder.photos.insert(file.name, file.stamp);
        } else if (file.stamp.modified) {
            seen.add(prefix + file.name);
            stamps.insert(prefix + file.name, file.stamp);
        }
    }
    if (stamps.isEmpty())
        return;
    for (auto photo = folder.photos.cbegin(); photo != folder.photos.cend(); ++photo)
        if (const QString at = seen.of(QUrl::fromLocalFile(prefix + photo.key())); !at.isEmpty())
            folder.sidecars.insert(photo.key(), { at.sliced(prefix.size()), stamps.value(at).modified });
}

void FolderScan::addWalk(
    const QList<QUrl>& tops, const SidecarPolicy& sidecars, const Entering& entering, const std::stop_token& stop)
{
    const auto take = [this](const FolderWalk::Found& found) {
        for (const FolderWalk::Photo& photo : found.photos) {
            const PhotoPlace place = PhotoPlace::of(photo.url);
            // What the tool could not read is there all the same, but what is no file at all.
            if (photo.look.file || !photo.look.reason.isEmpty())
                folders[place.folder].photos.insert(place.name, stampOf(photo.look));
            if (const SidecarStamp sidecar = sidecarOf(photo.look); !sidecar.name.isEmpty())
                folders[place.folder].sidecars.insert(place.name, sidecar);
        }
        for (const FolderWalk::Folder& walked : found.folders) {
            const QString path = walked.url.toLocalFile();
            Folder& folder = folders[path];
            folder.isListed = walked.isListed;
            folder.device = deviceOf(path);
        }
    };
    FolderWalk::through(tops, sidecars, stop, take, entering);
    const QStringList paths = folders.keys();
    for (const QString& path : paths)
        if (const auto around = folders.find(PhotoPlace::of(path).folder);
            around != folders.end() && path != around.key())
            around->hasFolders = true;
}

PhotoPlace PhotoPlace::of(const QUrl& photo)
{
    return of(photo.toLocalFile());
}

PhotoPlace PhotoPlace::of(const QString& path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    return { path.left(std::max<qsizetype>(slash, 1)), path.sliced(slash + 1) };
}

std::optional<QDateTime> modificationDate(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() ? std::optional(info.lastModified()) : std::nullopt;
}

}  // namespace Quorbel
