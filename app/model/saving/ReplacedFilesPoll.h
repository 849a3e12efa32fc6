// Counts, while ExifTool writes, the files that it has finished: it writes a new file beside each and puts it in
// the old one's place, so a finished file is another file under the old name.
// Thread: made and destroyed on the writing thread; looks at the files on a thread of its own.
#pragma once

#include <QList>
#include <QUrl>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

namespace Quorbel {

class ReplacedFilesPoll final {
public:
    /// Make it before the write begins. `done` must outlive it.
    ReplacedFilesPoll(const QList<QUrl>& targets, std::atomic<qsizetype>& done);
    ~ReplacedFilesPoll();
    Q_DISABLE_COPY_MOVE(ReplacedFilesPoll)

private:
    struct Target {
        QByteArray path;
        quint64 device = 0;
        quint64 inode = 0;
    };

    void poll(const std::stop_token& stop);
    void countReplaced();

    std::vector<Target> m_waiting;
    std::atomic<qsizetype>& m_done;
    std::mutex m_mutex;
    std::condition_variable_any m_wake;
    std::jthread m_thread;
};

}  // namespace Quorbel
