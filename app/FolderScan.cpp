#include "app/FolderScan.h"

#include "core/ImageRecord.h"
#include "core/Text.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <utility>
#include <vector>

namespace Quorbel {

namespace {

constexpr QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

QList<QUrl> imageEntries(const QString& folder)
{
    const QString clean = QDir::cleanPath(folder);
    const QString prefix = clean.endsWith(u'/') ? clean : clean + u'/';
    QList<QUrl> entries;
    QDirIterator iterator(clean, everything);
    while (iterator.hasNext()) {
        iterator.next();
        const QUrl url = QUrl::fromLocalFile(prefix + iterator.fileName());
        if (ImageTypes::isImage(url))
            entries.append(url);
    }
    return entries;
}

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

PhotoListing PhotoListing::of(const QList<QUrl>& urls)
{
    PhotoListing listing;
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
            files.append(imageEntries(path));
        } else if (ImageTypes::isImage(url)) {
            files.append(QUrl::fromLocalFile(path));
        }
    }
    listing.files = inNaturalOrder(files);
    if (listing.label.isEmpty() && !listing.files.isEmpty())
        listing.label = QFileInfo(listing.files.constFirst().toLocalFile()).dir().dirName();
    if (urls.size() != 1)
        listing.folder.reset();
    return listing;
}

FolderScan FolderScan::of(const QUrl& folder)
{
    FolderScan scan;
    const QFileInfo info(folder.toLocalFile());
    scan.isListed = info.isDir() && info.isReadable() && info.isExecutable();
    if (!scan.isListed)
        return scan;
    const QList<QUrl> entries = imageEntries(folder.toLocalFile());
    for (const QUrl& url : entries) {
        const QFileInfo file(url.toLocalFile());
        if (!file.exists())
            scan.photos.insert(url, std::nullopt);
        else if (file.isFile())
            scan.photos.insert(url, file.lastModified());
    }
    return scan;
}

std::optional<QDateTime> modificationDate(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() ? std::optional(info.lastModified()) : std::nullopt;
}

}  // namespace Quorbel
