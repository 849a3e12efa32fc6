#include "app/model/library/StallWatch.h"

#include <QDir>
#include <QFileInfo>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int looksPerInterval = 20;

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

}  // namespace

void StallWatch::look(qint64 processID)
{
    if (processID != m_processID) {
        m_processID = processID;
        m_open.clear();
    } else if (!m_nextLook.hasExpired()) {
        return;
    }
    m_nextLook = QDeadlineTimer(m_interval / looksPerInterval);
    if (processID == 0)
        return;
    const QSet<QString> paths = openFiles(processID);
    m_open.removeIf([&paths](const auto& entry) { return !paths.contains(entry.key()); });
    for (const QString& path : paths)
        if (!m_open.contains(path))
            m_open.insert(path, QDeadlineTimer(m_interval));
}

QSet<QString> StallWatch::stalled() const
{
    QSet<QString> paths;
    for (auto file = m_open.cbegin(); file != m_open.cend(); ++file)
        if (file.value().hasExpired())
            paths.insert(file.key());
    return paths;
}

}  // namespace Quorbel
