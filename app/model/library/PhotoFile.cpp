#include "app/model/library/PhotoFile.h"

#include "core/language/Texts.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString systemReason(int error)
{
    return Texts::inSentence(QString::fromLocal8Bit(std::strerror(error)));
}

QString reasonFor(int error, const QByteArray& path, const QUrl& url)
{
    // Qt holds a name as text, and a byte that is none as this character: the name does not lead back.
    if (error == ENOENT && url.fileName().contains(QChar::ReplacementCharacter))
        //: why a file cannot be read, in brackets behind its name
        return Texts::tr("its name is not UTF-8");
    struct stat status { };
    const bool isLink = lstat(path.constData(), &status) == 0 && S_ISLNK(status.st_mode);
    if (isLink && (error == ENOENT || error == ELOOP))
        //: why a file cannot be read, in brackets behind its name
        return Texts::tr("broken link");
    const bool isGone = error == ENOENT || error == ENOTDIR;
    return isGone ? QString() : systemReason(error);
}

qint64 nanoseconds(const struct statx_timestamp& time)
{
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

// As the tool would name it, so that nothing changes on screen once it has.
QString typeByExtension(const QString& fileName)
{
    const QString extension = QFileInfo(fileName).suffix().toUpper();
    if (extension == u"JPG")
        return u"JPEG"_s;
    return extension == u"TIF" ? u"TIFF"_s : extension;
}

QDateTime dateOf(qint64 nanoseconds)
{
    const qint64 rest = nanoseconds % 1'000'000;
    return QDateTime::fromMSecsSinceEpoch(nanoseconds / 1'000'000 - (rest < 0 ? 1 : 0));
}

// What is no file, or cannot be looked at, is none.
PhotoFile::Sidecar sidecarAt(const QString& path)
{
    struct statx status { };
    if (path.isEmpty()
        || statx(AT_FDCWD, QFile::encodeName(path).constData(), AT_STATX_SYNC_AS_STAT, STATX_BASIC_STATS, &status) != 0)
        return {};
    if (!S_ISREG(status.stx_mode))
        return {};
    return { path.sliced(path.lastIndexOf(u'/') + 1), status.stx_ino, qint64(status.stx_size),
        nanoseconds(status.stx_mtime), nanoseconds(status.stx_ctime) };
}

PhotoFile::Look lookAt(const QUrl& url)
{
    const QByteArray path = QFile::encodeName(url.toLocalFile());
    struct statx status { };
    if (statx(AT_FDCWD, path.constData(), AT_STATX_SYNC_AS_STAT, STATX_BASIC_STATS | STATX_BTIME, &status) != 0)
        return { {}, reasonFor(errno, path, url) };
    if (!S_ISREG(status.stx_mode))
        return {};
    if (status.stx_size == 0)
        //: said of a file without a byte, in brackets behind its name
        return { {}, Texts::tr("empty", "of a file") };
    // The effective user is the one that the tool will run as.
    if (faccessat(AT_FDCWD, path.constData(), R_OK, AT_EACCESS) != 0)
        return { {}, systemReason(errno) };
    const bool hasBirth = (status.stx_mask & STATX_BTIME) != 0;
    return { PhotoFile{ .url = url,
                 .device = makedev(status.stx_dev_major, status.stx_dev_minor),
                 .inode = status.stx_ino,
                 .size = qint64(status.stx_size),
                 .modified = nanoseconds(status.stx_mtime),
                 .changed = nanoseconds(status.stx_ctime),
                 .created = hasBirth ? std::optional(nanoseconds(status.stx_btime)) : std::nullopt },
        {} };
}

}  // namespace

PhotoFile::Look PhotoFile::at(const QUrl& url, const SidecarPolicy& sidecars)
{
    return sidecars.isInUse() ? at(url, sidecars, sidecars.existing(url)) : lookAt(url);
}

PhotoFile::Look PhotoFile::at(const QUrl& url, const SidecarPolicy& sidecars, const QString& sidecar)
{
    Look look = lookAt(url);
    if (look.file && sidecars.isBeside(url)) {
        look.file->isBeside = true;
        look.file->sidecar = sidecarAt(sidecar);
    }
    return look;
}

std::optional<PhotoFile> PhotoFile::again() const
{
    return at(url, { .isRawBeside = isBeside, .isDngBeside = isBeside }).file;
}

QUrl PhotoFile::sidecarURL() const
{
    const QString path = url.toLocalFile();
    return QUrl::fromLocalFile(path.left(path.lastIndexOf(u'/') + 1) + sidecar.name);
}

bool PhotoFile::isOf(const ImageRecord& record) const
{
    return record.contentModificationDate == modificationDate() && record.sidecarName == sidecar.name
        && record.sidecarModificationDate == sidecar.modificationDate();
}

std::optional<QDateTime> PhotoFile::Sidecar::modificationDate() const
{
    return name.isEmpty() ? std::nullopt : std::optional(dateOf(modified));
}

QDateTime PhotoFile::modificationDate() const
{
    return dateOf(modified);
}

std::optional<QDateTime> PhotoFile::creationDate() const
{
    return created ? std::optional(dateOf(*created)) : std::nullopt;
}

ImageRecord PhotoFile::unreadRecord() const
{
    ImageRecord record{ .isUnread = true, .url = url, .fileName = url.fileName() };
    record.fileType = typeByExtension(record.fileName);
    record.fileSize = size;
    record.creationDate = creationDate();
    record.contentModificationDate = modificationDate();
    record.sidecarName = sidecar.name;
    record.sidecarModificationDate = sidecar.modificationDate();
    return record;
}

}  // namespace Quorbel
