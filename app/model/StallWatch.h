// Finds the photo that a running tool does not get done with. The tool prints in large pieces, so what it has printed
// does not tell where it is; the files that its process holds open do.
// Thread: one at a time, and not the main one: to find a photo behind links takes a look at each file.
#pragma once

#include <QDeadlineTimer>
#include <QHash>
#include <QList>
#include <QString>
#include <QUrl>

#include <chrono>
#include <optional>

namespace Quorbel {

class StallWatch final {
public:
    /// `interval`: how long a file must be open without pause to count as stalling.
    explicit StallWatch(std::chrono::milliseconds interval)
        : m_interval(interval)
    {
    }

    /// Looks at the process (0: none runs) that reads these files. The one, if any, that was open at every look for the
    /// whole interval.
    std::optional<QUrl> look(qint64 processID, const QList<QUrl>& files);

private:
    struct OpenFile {
        QDeadlineTimer stalls{};  ///< when it counts as stalling
        bool isLookedUp = false;
        std::optional<QUrl> photo{};  ///< nothing before the look-up, and where it is no photo of the read
    };

    std::chrono::milliseconds m_interval;
    qint64 m_processID = 0;
    QHash<QString, OpenFile> m_open{};  ///< by path, free of links
};

}  // namespace Quorbel
