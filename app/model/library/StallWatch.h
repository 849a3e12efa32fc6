// Finds the photo that a running tool does not get done with. The tool prints in large pieces, so what it has printed
// does not tell where it is; the files that its process holds open do.
// Thread: one at a time. Asks the system's process table; pure otherwise.
#pragma once

#include <QDeadlineTimer>
#include <QSet>
#include <QString>

#include <chrono>

namespace Quorbel {

class StallWatch final {
public:
    /// `interval`: how long a file must be open without pause to count as stalling.
    explicit StallWatch(std::chrono::milliseconds interval)
        : m_interval(interval)
    {
    }

    /// Looks at the process, though no more often than makes sense; call it as often as you like. 0: none runs.
    void look(qint64 processID);
    /// Paths, free of links, that were open at every look for the whole interval. Not only photos.
    QSet<QString> stalled() const;

private:
    std::chrono::milliseconds m_interval;
    qint64 m_processID = 0;
    QDeadlineTimer m_nextLook{ 0 };
    /// Open files, with the time when they count as stalling.
    QHash<QString, QDeadlineTimer> m_open{};
};

}  // namespace Quorbel
