#include "app/model/StallWatch.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <sys/stat.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Files that a process holds open; none when it is gone.
QSet<QString> openFiles(qint64 processID)
{
    QSet<QString> paths;
    const QDir descriptors(u"/proc/%1/fd"_s.arg(processID));
    const QFileInfoList links = descriptors.entryInfoList(QDir::Files | QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo& link : links)
        if (const QString path = link.symLinkTarget(); !path.isEmpty())
            paths.insert(path);
    return paths;
}

std::optional<struct stat> statusOf(const QString& path)
{
    struct stat status { };
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? std::optional(status) : std::nullopt;
}

// The photo that is this file: by its path, or, where links lead there, by what they lead to.
std::optional<QUrl> photoAt(const QString& path, const QList<QUrl>& files)
{
    for (const QUrl& file : files)
        if (file.toLocalFile() == path)
            return file;
    const auto wanted = statusOf(path);
    if (!wanted || !S_ISREG(wanted->st_mode))
        return std::nullopt;
    for (const QUrl& file : files)
        if (const auto found = statusOf(file.toLocalFile());
            found && found->st_ino == wanted->st_ino && found->st_dev == wanted->st_dev)
            return file;
    return std::nullopt;
}

}  // namespace

std::optional<QUrl> StallWatch::look(qint64 processID, const QList<QUrl>& files)
{
    if (processID != std::exchange(m_processID, processID))
        m_open.clear();
    if (processID == 0)
        return std::nullopt;
    const QSet<QString> paths = openFiles(processID);
    m_open.removeIf([&paths](const auto& entry) { return !paths.contains(entry.key()); });
    for (const QString& path : paths)
        if (!m_open.contains(path))
            m_open.insert(path, { .stalls = QDeadlineTimer(m_interval) });
    for (auto file = m_open.begin(); file != m_open.end(); ++file) {
        if (!file->stalls.hasExpired())
            continue;
        if (!std::exchange(file->isLookedUp, true))
            file->photo = photoAt(file.key(), files);
        if (file->photo)
            return file->photo;
    }
    return std::nullopt;
}

}  // namespace Quorbel
