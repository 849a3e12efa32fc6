#include "app/model/library/FolderScan.h"

#include "core/schema/ImageTypes.h"
#include "core/text/Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <filesystem>
#include <utility>
#include <vector>

namespace Quorbel {

namespace {

/// Nothing when the folder cannot be listed to its end: half a listing would pass for files removed.
std::optional<QList<QUrl>> imageEntries(const QString& folder)
{
    namespace fs = std::filesystem;
    const QString clean = QDir::cleanPath(folder);
    const QString prefix = clean.endsWith(u'/') ? clean : clean + u'/';
    QList<QUrl> entries;
    std::error_code error;
    fs::directory_iterator entry(QFile::encodeName(clean).toStdString(), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        const QUrl url = QUrl::fromLocalFile(prefix + QFile::decodeName(name.c_str()));
        if (ImageTypes::isImage(url))
            entries.append(url);
    }
    return error ? std::nullopt : std::optional(entries);
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
            files.append(imageEntries(path).value_or(QList<QUrl>()));
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
    const auto entries = imageEntries(folder.toLocalFile());
    scan.isListed = entries.has_value();
    for (const QUrl& url : entries.value_or(QList<QUrl>())) {
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
