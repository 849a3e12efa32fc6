#include "core/save/FileMove.h"

#include <QFile>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace Quorbel {

int FileMove::withoutReplacing(const QString& from, const QString& to)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray destination = QFile::encodeName(to);
    if (renameat2(AT_FDCWD, source.constData(), AT_FDCWD, destination.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // A second name and then the loss of the first is as safe, if the file system knows hard links.
    if (link(source.constData(), destination.constData()) == 0)
        return unlink(source.constData()) == 0 ? 0 : errno;
    if (errno != EPERM && errno != EOPNOTSUPP && errno != ENOSYS)
        return errno;
    if (faccessat(AT_FDCWD, destination.constData(), F_OK, AT_SYMLINK_NOFOLLOW) == 0)
        return EEXIST;
    return std::rename(source.constData(), destination.constData()) == 0 ? 0 : errno;
}

}  // namespace Quorbel
