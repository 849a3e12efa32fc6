#include "core/save/SaveGuard.h"

#include "core/language/Texts.h"
#include "core/save/Companions.h"
#include "core/text/Text.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Quorbel::SaveGuard {

using namespace Qt::StringLiterals;

namespace {

// A leftover this old belongs to no running tool, in seconds.
constexpr qint64 leftoverAge = qint64(24) * 60 * 60;

QByteArray nativePath(const QUrl& file)
{
    return QFile::encodeName(file.toLocalFile());
}

QByteArray nativeBackupPath(const QUrl& photo)
{
    return QFile::encodeName(Companions::backupPath(photo.toLocalFile()));
}

QMap<QByteArray, QByteArray> extendedAttributes(const QByteArray& path)
{
    QMap<QByteArray, QByteArray> attributes;
    const ssize_t listSize = listxattr(path.constData(), nullptr, 0);
    if (listSize <= 0)
        return attributes;
    QByteArray names(listSize, Qt::Uninitialized);
    const ssize_t got = listxattr(path.constData(), names.data(), size_t(names.size()));
    if (got <= 0)
        return attributes;
    names.truncate(got);
    for (const auto& name : names.split('\0')) {
        const ssize_t size = name.isEmpty() ? -1 : getxattr(path.constData(), name.constData(), nullptr, 0);
        if (size < 0)
            continue;
        QByteArray value(size, Qt::Uninitialized);
        if (getxattr(path.constData(), name.constData(), value.data(), size_t(size)) == size)
            attributes.insert(name, value);
    }
    return attributes;
}

}  // namespace

QList<QUrl> filesBehindLinks(const QList<QUrl>& targets)
{
    QList<QUrl> files;
    files.reserve(targets.size());
    for (const auto& target : targets) {
        const QFileInfo info(target.toLocalFile());
        const QString real = info.isSymLink() ? info.canonicalFilePath() : QString();
        files.append(real.isEmpty() ? target : QUrl::fromLocalFile(real));
    }
    return files;
}

QList<FileFailure> ofTargets(const QList<FileFailure>& failures, const QList<QUrl>& targets)
{
    const QList<QUrl> files = filesBehindLinks(targets);
    QHash<QUrl, QString> reasons;
    for (const FileFailure& failure : failures)
        reasons.insert(failure.file, failure.reason);
    QList<FileFailure> named;
    for (qsizetype i = 0; i < files.size(); ++i)
        if (const auto reason = reasons.constFind(files.at(i)); reason != reasons.cend())
            named.append({ targets.at(i), *reason });
    return named;
}

bool isReadOnly(const QUrl& file)
{
    const QByteArray path = nativePath(file);
    struct stat status { };
    if (stat(path.constData(), &status) != 0)
        return false;  // its absence is for the tool to report
    // The administrator may write to anything; a file without any write bit is still meant to stay as it is.
    constexpr mode_t anyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
    return (status.st_mode & anyWrite) == 0 || access(path.constData(), W_OK) != 0;
}

void requireWritable(const QList<QUrl>& files)
{
    QStringList folders;
    for (const auto& file : files)
        if (QFileInfo(file.toLocalFile()).isDir())
            folders.append(file.fileName());
    if (!folders.isEmpty())
        throw FileProblem(Texts::tr("%1 (is a folder|are folders); nothing was written.", nullptr, folders.size())
                              .arg(Text::listed(folders)));
    QStringList names;
    for (const auto& file : files)
        if (isReadOnly(file))
            names.append(file.fileName());
    if (names.isEmpty())
        return;
    if (files.size() == 1)
        throw FileProblem(Texts::tr("%1 is read-only.").arg(names.constFirst()));
    //: %2 names the photos
    throw FileProblem(Texts::tr("%n of %1 photos (is|are) read-only: %2; nothing was written.", nullptr, names.size())
                          .arg(QString::number(files.size()), Text::listed(names)));
}

void clearLeftovers(const QList<QUrl>& files, const QDateTime& now)
{
    QStringList young;
    for (const auto& file : files) {
        const QFileInfo leftover(file.toLocalFile() + u"_exiftool_tmp"_s);
        if (!leftover.exists())
            continue;
        const bool old = leftover.lastModified().secsTo(now) > leftoverAge;
        if (!old || !QFile::remove(leftover.filePath()))
            young.append(leftover.fileName());
    }
    if (young.isEmpty())
        return;
    throw FileProblem(
        Texts::tr("Another save is under way or was cut off: %1 lies beside the photo. If no other program "
                  "is saving, delete it and save again. Nothing was written.")
            .arg(Text::listed(young)));
}

BackupKeeper::BackupKeeper(const QList<QUrl>& files)
{
    for (const auto& file : files)
        if (link(nativePath(file).constData(), nativeBackupPath(file).constData()) == 0)
            m_made.append(file);
}

BackupKeeper::~BackupKeeper()
{
    for (const auto& photo : m_made) {
        const QByteArray backup = nativeBackupPath(photo);
        struct stat now { };
        struct stat before { };
        if (stat(nativePath(photo).constData(), &now) == 0 && stat(backup.constData(), &before) == 0
            && now.st_dev == before.st_dev && now.st_ino == before.st_ino)
            unlink(backup.constData());
    }
}

AttributeKeeper::AttributeKeeper(const QList<QUrl>& files)
{
    for (const auto& file : files) {
        const QByteArray path = nativePath(file);
        struct stat status { };
        if (stat(path.constData(), &status) != 0)
            continue;
        m_byPath.insert(path,
            { .mode = status.st_mode & 07777U,
                .owner = status.st_uid,
                .group = status.st_gid,
                .extended = extendedAttributes(path) });
    }
}

void AttributeKeeper::restore() const
{
    for (auto it = m_byPath.cbegin(); it != m_byPath.cend(); ++it) {
        const char* path = it.key().constData();
        struct stat status { };
        if (stat(path, &status) != 0)
            continue;
        // Whether it is another file cannot be told by its inode: after two runs the number may be in use again.
        if (status.st_uid != it->owner || status.st_gid != it->group) {
            // Changing the group alone may be allowed where changing the owner is not.
            if (chown(path, it->owner, it->group) != 0 && chown(path, uid_t(-1), it->group) != 0) { }
        }
        if ((status.st_mode & 07777U) != it->mode)
            chmod(path, it->mode);
        for (auto attribute = it->extended.cbegin(); attribute != it->extended.cend(); ++attribute)
            setxattr(path, attribute.key().constData(), attribute->constData(), size_t(attribute->size()), 0);
    }
}

}  // namespace Quorbel::SaveGuard
