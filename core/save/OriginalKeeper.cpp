#include "core/save/OriginalKeeper.h"

#include "core/save/Companions.h"
#include "core/text/Errors.h"
#include "core/tool/TemporaryFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

OriginalKeeper::OriginalKeeper(const QList<QUrl>& photos)
{
    QSet<QString> folders;
    for (const auto& photo : photos) {
        const QString path = photo.toLocalFile();
        const QString folder = QFileInfo(path).path();
        if (!QFileInfo::exists(path))
            continue;
        if (!folders.contains(folder))
            TemporaryFiles::clearAbandonedOriginals(folder);
        folders.insert(folder);
        Kept kept{ .photo = QFile::encodeName(path),
            .original = QFile::encodeName(folder + u'/' + TemporaryFiles::newOriginalName()),
            .hadBackup = QFileInfo::exists(Companions::backupPath(path)) };
        kept.before = kept.prepared = identityOf(kept.photo);
        try {
            keep(kept);
        } catch (const FileError&) {
            release();
            throw;
        }
        m_kept.append(kept);
    }
}

OriginalKeeper::~OriginalKeeper()
{
    for (const auto& kept : std::as_const(m_kept)) {
        const Identity now = identityOf(kept.photo);
        if (now == kept.before || now != kept.prepared)
            continue;
        if (std::rename(kept.original.constData(), kept.photo.constData()) != 0)
            continue;
        if (!kept.hadBackup)
            QFile::remove(Companions::backupPath(QFile::decodeName(kept.photo)));
    }
    release();
}

void OriginalKeeper::notePrepared()
{
    for (auto& kept : m_kept)
        kept.prepared = identityOf(kept.photo);
}

OriginalKeeper::Identity OriginalKeeper::identityOf(const QByteArray& path)
{
    struct stat status { };
    if (stat(path.constData(), &status) != 0)
        return {};
    return { .device = status.st_dev,
        .inode = status.st_ino,
        .seconds = status.st_mtim.tv_sec,
        .nanoseconds = status.st_mtim.tv_nsec,
        .size = status.st_size };
}

void OriginalKeeper::keep(const Kept& kept)
{
    if (link(kept.photo.constData(), kept.original.constData()) == 0)
        return;
    QFile photo(QFile::decodeName(kept.photo));
    const QString original = QFile::decodeName(kept.original);
    const timespec times[2] = { { 0, UTIME_OMIT }, { time_t(kept.before.seconds), long(kept.before.nanoseconds) } };
    if (!photo.copy(original) || utimensat(AT_FDCWD, kept.original.constData(), times, 0) != 0) {
        QFile::remove(original);
        throw FileError(u"Cannot keep a copy of"_s, QUrl::fromLocalFile(photo.fileName()), photo.errorString());
    }
}

void OriginalKeeper::release()
{
    for (const auto& kept : std::as_const(m_kept))
        unlink(kept.original.constData());
    m_kept.clear();
}

}  // namespace Quorbel
