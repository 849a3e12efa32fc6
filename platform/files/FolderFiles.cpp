#include "platform/files/FolderFiles.h"

#include <QFile>

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace Quorbel {

namespace {

qint64 milliseconds(const timespec& time)
{
    return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1'000'000;
}

// False: it is no file.
bool look(int folder, const dirent& entry, FolderFiles::Stamp& stamp)
{
    struct stat status { };
    if (fstatat(folder, entry.d_name, &status, 0) != 0)
        return true;
    if (!S_ISREG(status.st_mode))
        return false;
    stamp = { milliseconds(status.st_mtim), qint64(status.st_ctim.tv_sec) * 1'000'000'000 + status.st_ctim.tv_nsec,
        qint64(status.st_size) };
    return true;
}

}  // namespace

FolderFiles FolderFiles::of(
    const QString& folder, const std::function<bool(const QString& name)>& wanted, const std::stop_token& stop)
{
    FolderFiles found;
    const int descriptor = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return found;
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(fdopendir(descriptor), &closedir);
    struct stat status { };
    if (!listing || fstat(descriptor, &status) != 0)
        return found;
    found.device = status.st_dev;
    while (!stop.stop_requested()) {
        errno = 0;
        const dirent* entry = readdir(listing.get());
        if (!entry) {
            found.isListed = errno == 0;
            break;
        }
        File file{ QFile::decodeName(entry->d_name) };
        if (!wanted(file.name))
            continue;
        // The file of a name that is no text cannot be reached by it.
        if (file.name.contains(QChar::ReplacementCharacter) || look(descriptor, *entry, file.stamp))
            found.files.append(file);
    }
    return found;
}

}  // namespace Quorbel
