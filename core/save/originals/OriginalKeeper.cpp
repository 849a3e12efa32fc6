#include "core/save/originals/OriginalKeeper.h"

#include "core/language/Texts.h"
#include "core/save/Companions.h"
#include "core/text/Errors.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <sys/stat.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QByteArray backupName(const QByteArray& name)
{
    return QFile::encodeName(Companions::backupPath(QFile::decodeName(name)));
}

}  // namespace

OriginalKeeper::OriginalKeeper(const QList<QUrl>& photos)
{
    for (const auto& photo : photos) {
        const QFileInfo file(photo.toLocalFile());
        if (!file.exists())
            continue;
        OriginalsFolder& folder = m_folders.try_emplace(file.path(), file.path()).first->second;
        const QByteArray name = QFile::encodeName(file.fileName());
        if (!folder.keep(name))
            throw FileError(Texts::tr("Cannot keep a copy of “%1”"), photo, qt_error_string(errno));
        struct stat backup { };
        Kept kept{ .folder = &folder, .name = name, .hadBackup = folder.status(backupName(name), backup) };
        kept.before = kept.prepared = identityOf(kept);
        m_kept.append(kept);
    }
}

OriginalKeeper::~OriginalKeeper()
{
    for (const auto& kept : std::as_const(m_kept)) {
        const Identity now = identityOf(kept);
        if (now == kept.before || now != kept.prepared)
            continue;
        if (kept.folder->putBack(kept.name) && !kept.hadBackup)
            kept.folder->removePhoto(backupName(kept.name));
    }
}

void OriginalKeeper::notePrepared()
{
    for (auto& kept : m_kept)
        kept.prepared = identityOf(kept);
}

OriginalKeeper::Identity OriginalKeeper::identityOf(const Kept& kept)
{
    struct stat status { };
    if (!kept.folder->status(kept.name, status))
        return {};
    return { .device = status.st_dev,
        .inode = status.st_ino,
        .seconds = status.st_mtim.tv_sec,
        .nanoseconds = status.st_mtim.tv_nsec,
        .size = status.st_size };
}

}  // namespace Quorbel
