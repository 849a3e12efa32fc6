#include "core/save/originals/OriginalsFolder.h"

#include <QCryptographicHash>
#include <QFile>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSysInfo>
#include <QUuid>

#include <array>
#include <cerrno>
#include <cstdio>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 day = qint64(24) * 60 * 60;  // seconds
constexpr int openFolder = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
const QByteArray prefix(".quorbel-");
// A copy that is not whole yet; no photo is called so.
const QByteArray partName("copy.part");

// Which computer a name is of: its locks are not seen from others.
const QString& thisComputer()
{
    static const QString computer = [] {
        const QByteArray id = QSysInfo::machineUniqueId() + QSysInfo::machineHostName().toUtf8();
        return QString::fromLatin1(QCryptographicHash::hash(id, QCryptographicHash::Sha256).toHex().first(8));
    }();
    return computer;
}

// A photo's name as seen from the hidden folder.
QByteArray beside(const QByteArray& name)
{
    return "../" + name;
}

QList<QByteArray> entries(int folder, const QByteArray& prefix = {})
{
    QList<QByteArray> names;
    DIR* const stream = fdopendir(openat(folder, ".", openFolder));
    if (!stream)
        return names;
    while (const dirent* entry = readdir(stream))
        if (const QByteArrayView name(entry->d_name); name != "." && name != ".." && name.startsWith(prefix))
            names.append(name.toByteArray());
    closedir(stream);
    return names;
}

// Whether the folder's owner is gone; it is locked then.
bool isAbandoned(int folder, const QByteArray& name, const QDateTime& now)
{
    struct stat status { };
    if (fstat(folder, &status) != 0 || status.st_uid != geteuid())
        return false;
    const bool isLocked = flock(folder, LOCK_EX | LOCK_NB) == 0;
    if (!isLocked && errno == EWOULDBLOCK)
        return false;
    const bool isOurs = name.contains(thisComputer().toLatin1());
    return (isLocked && isOurs) || QDateTime::fromSecsSinceEpoch(status.st_ctim.tv_sec).secsTo(now) > day;
}

// Gives the photo its name back where nothing bears it, unless it goes on under yet another one: then it was renamed.
void settle(int folder, const QByteArray& name)
{
    struct stat kept { };
    struct stat photo { };
    const bool isMissing = name != partName && fstatat(folder, name.constData(), &kept, AT_SYMLINK_NOFOLLOW) == 0
        && kept.st_nlink == 1 && fstatat(folder, beside(name).constData(), &photo, AT_SYMLINK_NOFOLLOW) != 0
        && errno == ENOENT;
    if (!isMissing) {
        unlinkat(folder, name.constData(), 0);
        return;
    }
    const QByteArray target = beside(name);
    if (renameat2(folder, name.constData(), folder, target.constData(), RENAME_NOREPLACE) != 0 && errno == EINVAL)
        renameat(folder, name.constData(), folder, target.constData());
}

}  // namespace

OriginalsFolder::OriginalsFolder(const QString& photos)
{
    const int parent = open(QFile::encodeName(photos).constData(), openFolder);
    constexpr int attempts = 5;  // somebody may clear a folder away before it is locked
    for (int i = 0; parent >= 0 && m_folder < 0 && i < attempts; ++i)
        if (!make(parent) && m_error != ENOENT)
            break;
    if (parent < 0)
        m_error = errno;
    else
        close(parent);
}

OriginalsFolder::~OriginalsFolder()
{
    if (m_folder < 0)
        return;
    for (const auto& name : std::as_const(m_kept))
        unlinkat(m_folder, name.constData(), 0);
    unlinkat(m_folder, beside(m_name).constData(), AT_REMOVEDIR);
    close(m_folder);
}

bool OriginalsFolder::make(int photos)
{
    const QString id = QUuid::createUuid().toString(QUuid::Id128);
    m_name = u".quorbel-%1-%2.before"_s.arg(thisComputer(), id).toLatin1();
    int folder = -1;
    struct stat made { };
    struct stat seen { };
    if (mkdirat(photos, m_name.constData(), S_IRWXU) == 0)
        folder = openat(photos, m_name.constData(), openFolder | O_NOFOLLOW);
    m_error = errno;
    if (folder < 0)
        return false;
    flock(folder, LOCK_EX);
    if (fstat(folder, &made) != 0 || fstatat(photos, m_name.constData(), &seen, AT_SYMLINK_NOFOLLOW) != 0
        || made.st_ino != seen.st_ino) {
        m_error = ENOENT;
        close(folder);
        return false;
    }
    m_folder = folder;
    return true;
}

bool OriginalsFolder::keep(const QByteArray& name)
{
    if (m_folder < 0) {
        errno = m_error;
        return false;
    }
    if (linkat(m_folder, beside(name).constData(), m_folder, name.constData(), 0) != 0 && !copy(name))
        return false;
    m_kept.append(name);
    return true;
}

bool OriginalsFolder::copy(const QByteArray& name) const
{
    const int from = openat(m_folder, beside(name).constData(), O_RDONLY | O_CLOEXEC);
    const int to = openat(m_folder, partName.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    struct stat status { };
    bool isWhole = from >= 0 && to >= 0 && fstat(from, &status) == 0;
    for (ssize_t count = 1; isWhole && count > 0;) {
        std::array<char, 65536> bytes;
        count = read(from, bytes.data(), bytes.size());
        isWhole = count >= 0 && write(to, bytes.data(), size_t(count)) == count;
    }
    const timespec times[2] = { { 0, UTIME_OMIT }, status.st_mtim };
    if (isWhole && fchmod(to, status.st_mode & 07777U) != 0) { }  // not every file system has modes
    isWhole = isWhole && futimens(to, times) == 0
        && renameat(m_folder, partName.constData(), m_folder, name.constData()) == 0;
    const int error = errno;
    for (const int file : { from, to })
        if (file >= 0)
            close(file);
    if (!isWhole)
        unlinkat(m_folder, partName.constData(), 0);
    errno = error;
    return isWhole;
}

bool OriginalsFolder::putBack(const QByteArray& name) const
{
    return renameat(m_folder, name.constData(), m_folder, beside(name).constData()) == 0;
}

bool OriginalsFolder::status(const QByteArray& name, struct stat& status) const
{
    return fstatat(m_folder, beside(name).constData(), &status, 0) == 0;
}

void OriginalsFolder::removePhoto(const QByteArray& name) const
{
    unlinkat(m_folder, beside(name).constData(), 0);
}

int OriginalsFolder::clearAbandoned(const QString& photos, const QDateTime& now)
{
    const int parent = open(QFile::encodeName(photos).constData(), openFolder);
    if (parent < 0)
        return 0;
    const auto closeParent = qScopeGuard([parent] { close(parent); });
    int cleared = 0;
    const auto names = entries(parent, prefix);
    for (const auto& name : names) {
        const int folder =
            isName(QString::fromLatin1(name)) ? openat(parent, name.constData(), openFolder | O_NOFOLLOW) : -1;
        if (folder < 0)
            continue;
        if (isAbandoned(folder, name, now)) {
            const auto kept = entries(folder);
            for (const auto& photo : kept)
                settle(folder, photo);
            cleared += unlinkat(parent, name.constData(), AT_REMOVEDIR) == 0 ? 1 : 0;
        }
        close(folder);
    }
    return cleared;
}

bool OriginalsFolder::isName(const QString& name)
{
    static const QRegularExpression ours(u"^\\.quorbel-[0-9a-f]{8}-[0-9a-f]{32}\\.before$"_s);
    return ours.match(name).hasMatch();
}

}  // namespace Quorbel
