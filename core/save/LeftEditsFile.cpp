#include "core/save/LeftEditsFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Programs that may run at the same time, each with a file of its own.
constexpr int mostPrograms = 16;

constexpr int staleAfter = 60 * 60 * 1000;  // milliseconds

// A file that is none of ours, or a damaged one, is put aside: somebody may still read in it what was typed.
QList<LeftEdits> load(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const auto list = LeftEditsList::fromJson(file.readAll());
    file.close();
    if (list)
        return *list;
    QFile::remove(path + u".damaged"_s);
    QFile::rename(path, path + u".damaged"_s);
    return {};
}

std::unique_ptr<QLockFile> lockedFor(const QString& path)
{
    auto lock = std::make_unique<QLockFile>(path + u".lock"_s);
    // The lock of a program that has ended is given away at once. The time is for one whose machine had another name
    // then, and so cannot be told from one that runs elsewhere. A program that runs here keeps its lock however old.
    lock->setStaleLockTime(staleAfter);
    return lock->tryLock(0) ? std::move(lock) : nullptr;
}

}  // namespace

LeftEditsFile::LeftEditsFile(const QString& path)
    : m_path(path)
{
}

LeftEditsFile::~LeftEditsFile() = default;

QString LeftEditsFile::pathOf(int slot) const
{
    if (slot == 1)
        return m_path;
    const QFileInfo info(m_path);
    return info.dir().filePath(u"%1-%2.%3"_s.arg(info.completeBaseName()).arg(slot).arg(info.suffix()));
}

QList<LeftEdits> LeftEditsFile::found()
{
    const std::scoped_lock lock(m_mutex);
    takeOver();
    return m_found;
}

// The first file that no other program has becomes ours; what others left behind moves into it.
void LeftEditsFile::takeOver()
{
    if (std::exchange(m_hasLooked, true) || m_isClosed || !QDir().mkpath(QFileInfo(m_path).path()))
        return;
    std::vector<Slot> abandoned;
    for (int i = 1; i <= mostPrograms; ++i) {
        const QString path = pathOf(i);
        if (m_own && !QFile::exists(path))
            continue;
        std::unique_ptr<QLockFile> lock = lockedFor(path);
        if (!lock)
            continue;
        m_found.append(load(path));
        Slot slot{ path, std::move(lock) };
        if (m_own)
            abandoned.push_back(std::move(slot));
        else
            m_own = std::move(slot);
    }
    std::stable_sort(
        m_found.begin(), m_found.end(), [](const LeftEdits& a, const LeftEdits& b) { return a.leftAt > b.leftAt; });
    if (m_found.size() > LeftEditsList::limit)
        m_found.resize(LeftEditsList::limit);
    if (!abandoned.empty() && write(m_found))
        for (const Slot& slot : abandoned)
            QFile::remove(slot.path);
}

bool LeftEditsFile::store(const QList<LeftEdits>& list, int serial)
{
    const std::scoped_lock lock(m_mutex);
    takeOver();
    if (m_isClosed || !m_own)
        return false;
    if (serial <= m_serial)
        return true;
    m_serial = serial;
    return write(list);
}

bool LeftEditsFile::write(const QList<LeftEdits>& list) const
{
    if (list.isEmpty())
        return !QFile::exists(m_own->path) || QFile::remove(m_own->path);
    QSaveFile file(m_own->path);
    // Private: it holds what the user wrote.
    return file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)
        && file.write(LeftEditsList::toJson(list)) >= 0 && file.commit();
}

void LeftEditsFile::close()
{
    const std::scoped_lock lock(m_mutex);
    m_isClosed = true;
    m_own.reset();
}

}  // namespace Quorbel
