#include "app/model/library/FolderScan.h"

#include "core/schema/ImageTypes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <chrono>
#include <filesystem>
#include <thread>

namespace Quorbel {

std::optional<QList<QUrl>> FolderScan::entries(const QString& folder)
{
    namespace fs = std::filesystem;
    const QString clean = QDir::cleanPath(folder);
    const QString prefix = clean.endsWith(u'/') ? clean : clean + u'/';
    QList<QUrl> found;
    std::error_code error;
    fs::directory_iterator entry(QFile::encodeName(clean).toStdString(), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        const QUrl url = QUrl::fromLocalFile(prefix + QFile::decodeName(name.c_str()));
        if (ImageTypes::isImage(url))
            found.append(url);
    }
    return error ? std::nullopt : std::optional(found);
}

FolderScan FolderScan::of(const QUrl& folder)
{
    FolderScan scan;
    auto found = entries(folder.toLocalFile());
    // A folder that is being removed is empty for a moment before it is gone.
    if (found && found->isEmpty()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        found = entries(folder.toLocalFile());
    }
    scan.isListed = found.has_value();
    for (const QUrl& url : found.value_or(QList<QUrl>())) {
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
