#include "platform/files/FolderWatches.h"

#include <QFile>

#include <sys/inotify.h>
#include <unistd.h>

namespace Quorbel {

namespace {

constexpr uint32_t watched = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_CLOSE_WRITE | IN_MODIFY
    | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;

}  // namespace

FolderWatches::FolderWatches(int most)
    : m_most(most)
    , m_descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
}

FolderWatches::~FolderWatches()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

bool FolderWatches::add(const QString& folder)
{
    const std::scoped_lock lock(m_changing);
    const bool isNew = !m_watched.contains(folder);
    if (m_descriptor < 0 || (isNew && m_watched.size() >= m_most))
        return false;
    // Of a folder that is watched, the queue gives the same number again.
    const int number = inotify_add_watch(m_descriptor, QFile::encodeName(folder).constData(), watched);
    if (number >= 0)
        m_watched.insert(folder, number);
    return number >= 0;
}

void FolderWatches::keep(const QSet<QString>& folders)
{
    const std::scoped_lock lock(m_changing);
    QSet<int> dropped;
    m_watched.removeIf([&](const auto& entry) {
        if (folders.contains(entry.key()))
            return false;
        dropped.insert(entry.value());
        return true;
    });
    // A folder that was renamed has its number under both names.
    for (const int number : std::as_const(m_watched))
        dropped.remove(number);
    for (const int number : std::as_const(dropped))
        inotify_rm_watch(m_descriptor, number);
}

}  // namespace Quorbel
