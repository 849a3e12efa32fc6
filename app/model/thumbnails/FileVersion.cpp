#include "app/model/thumbnails/FileVersion.h"

#include <QFile>

#include <sys/stat.h>

namespace Quorbel {

FileVersion FileVersion::of(const QString& path)
{
    struct stat status { };
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return { .size = qint64(status.st_size),
        .seconds = qint64(status.st_mtim.tv_sec),
        .nanoseconds = qint64(status.st_mtim.tv_nsec),
        .inode = quint64(status.st_ino) };
}

}  // namespace Quorbel
