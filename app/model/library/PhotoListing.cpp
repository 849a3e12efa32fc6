#include "app/model/library/PhotoListing.h"

#include "app/model/library/FolderScan.h"
#include "app/model/library/FolderWalk.h"
#include "app/model/library/sidecars/SeenSidecars.h"
#include "core/save/originals/OriginalsFolder.h"
#include "core/schema/ImageTypes.h"
#include "core/text/Text.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <vector>

namespace Quorbel {

namespace {

QList<QUrl> inNaturalOrder(const QList<QUrl>& urls)
{
    struct Keyed {
        QCollatorSortKey key;
        QUrl url;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(size_t(urls.size()));
    for (const QUrl& url : urls)
        keyed.push_back({ Text::naturalSortKey(url.fileName()), url });
    std::stable_sort(
        keyed.begin(), keyed.end(), [](const Keyed& a, const Keyed& b) { return a.key.compare(b.key) < 0; });
    QList<QUrl> sorted;
    sorted.reserve(urls.size());
    QSet<QUrl> seen;
    seen.reserve(urls.size());
    for (const Keyed& entry : keyed) {
        // A photo given beside its own folder is still one photo.
        if (seen.contains(entry.url))
            continue;
        seen.insert(entry.url);
        sorted.append(entry.url);
    }
    return sorted;
}

}  // namespace

bool PhotoListing::isWorthListing(const QList<QUrl>& urls)
{
    return std::any_of(urls.cbegin(), urls.cend(), [](const QUrl& url) {
        const QFileInfo info(url.toLocalFile());
        return url.isLocalFile() && info.exists() && (info.isDir() || ImageTypes::isImage(url));
    });
}

PhotoListing PhotoListing::of(const QList<QUrl>& urls, const SidecarPolicy& sidecars)
{
    PhotoListing listing;
    SeenSidecars seen(sidecars);
    QSet<QString> listed;
    QList<QUrl> files;
    for (const QUrl& url : urls) {
        const QString path = QDir::cleanPath(url.toLocalFile());
        const QFileInfo info(path);
        if (!url.isLocalFile() || !info.exists())
            continue;
        listing.existing.append(url);
        if (info.isDir()) {
            listing.label = QDir(path).dirName();
            listing.folder = url;
            OriginalsFolder::clearAbandoned(path);
            files.append(FolderScan::entries(path, &seen).value_or(QList<QUrl>()));
            listed.insert(path);
        } else if (ImageTypes::isImage(url)) {
            files.append(QUrl::fromLocalFile(path));
        }
    }
    files = inNaturalOrder(files);
    if (listing.label.isEmpty() && !files.isEmpty())
        listing.label = QFileInfo(files.constFirst().toLocalFile()).dir().dirName();
    listing.files.reserve(files.size());
    for (const QUrl& file : std::as_const(files)) {
        const bool isSeen = listed.contains(PhotoPlace::of(file).folder);
        const PhotoFile::Look look =
            isSeen ? PhotoFile::at(file, sidecars, seen.of(file)) : PhotoFile::at(file, sidecars);
        if (look.file)
            listing.files.append(*look.file);
        else if (!look.reason.isEmpty())
            listing.leftOut.append({ file.fileName(), look.reason });
    }
    if (urls.size() != 1)
        listing.folder.reset();
    return listing;
}

void PhotoListing::withSubfolders(const QList<QUrl>& urls, const SidecarPolicy& sidecars, const std::stop_token& stop,
    const std::function<void(PhotoListing)>& take)
{
    PhotoListing frame;
    QList<QUrl> loose;
    for (const QUrl& url : urls) {
        const QUrl clean = QUrl::fromLocalFile(QDir::cleanPath(url.toLocalFile()));
        const QFileInfo info(clean.toLocalFile());
        if (!url.isLocalFile() || !info.exists())
            continue;
        frame.existing.append(url);
        (info.isDir() ? frame.tops : loose).append(clean);
    }
    if (frame.tops.isEmpty())
        return take(of(urls, sidecars));
    frame.label = QDir(frame.tops.constLast().toLocalFile()).dirName();
    if (urls.size() == 1)
        frame.folder = urls.constFirst();
    // What was given beside its own folder is still one photo.
    QSet<QUrl> walked;
    Part next = Part::first;
    const auto hand = [&](PhotoListing piece, bool isLast) {
        if (piece.files.isEmpty() && piece.leftOut.isEmpty())
            return;
        const bool isWhole = isLast && next == Part::first;
        piece.part = piece.files.isEmpty() ? Part::further : isWhole ? Part::whole : std::exchange(next, Part::further);
        take(std::move(piece));
    };
    FolderWalk::through(frame.tops, sidecars, stop, [&](const FolderWalk::Found& found) {
        PhotoListing piece = frame;
        piece.add(found);
        if (!loose.isEmpty())
            for (const PhotoFile& file : std::as_const(piece.files))
                walked.insert(file.url);
        hand(std::move(piece), found.isLast && loose.isEmpty());
    });
    PhotoListing rest = of(loose, sidecars);
    frame.files = std::move(rest.files);
    frame.leftOut = std::move(rest.leftOut);
    frame.files.removeIf([&walked](const PhotoFile& file) { return walked.contains(file.url); });
    hand(std::move(frame), true);
}

void PhotoListing::add(const FolderWalk::Found& found)
{
    for (const FolderWalk::Photo& photo : found.photos)
        if (photo.look.file)
            files.append(*photo.look.file);
        else if (!photo.look.reason.isEmpty())
            leftOut.append({ photo.url.fileName(), photo.look.reason });
}

QList<QUrl> PhotoListing::watched() const
{
    return tops.isEmpty() && folder ? QList{ *folder } : tops;
}

FolderOrder PhotoListing::folderOrder() const
{
    QStringList paths;
    for (const QUrl& top : tops)
        paths.append(top.toLocalFile());
    return { paths, existing.size() > 1 };
}

}  // namespace Quorbel
