#include "app/model/saving/ReplacedFilesPoll.h"

#include <QFile>

#include <chrono>
#include <sys/stat.h>

namespace Quorbel {

namespace {

using std::chrono::steady_clock;

constexpr std::chrono::milliseconds shortestPause{ 100 };
// Of the time, at most one part in this many goes into looking, however many files there are.
constexpr int idleShare = 20;

bool identity(const QByteArray& path, quint64& device, quint64& inode)
{
    struct stat status { };
    if (stat(path.constData(), &status) != 0)
        return false;
    device = status.st_dev;
    inode = status.st_ino;
    return true;
}

}  // namespace

ReplacedFilesPoll::ReplacedFilesPoll(const QList<QUrl>& targets, std::atomic<qsizetype>& done)
    : m_done(done)
{
    m_waiting.reserve(size_t(targets.size()));
    for (const QUrl& url : targets) {
        Target target{ QFile::encodeName(url.toLocalFile()) };
        if (identity(target.path, target.device, target.inode))
            m_waiting.push_back(std::move(target));
    }
    m_thread = std::jthread([this](const std::stop_token& stop) { poll(stop); });
}

ReplacedFilesPoll::~ReplacedFilesPoll() = default;

void ReplacedFilesPoll::poll(const std::stop_token& stop)
{
    std::chrono::nanoseconds pause = shortestPause;
    std::unique_lock lock(m_mutex);
    while (!stop.stop_requested()) {
        m_wake.wait_for(lock, stop, pause, [] { return false; });
        if (stop.stop_requested())
            return;
        const auto begin = steady_clock::now();
        countReplaced();
        pause = std::max<std::chrono::nanoseconds>(shortestPause, (steady_clock::now() - begin) * idleShare);
    }
}

void ReplacedFilesPoll::countReplaced()
{
    const auto replaced = std::erase_if(m_waiting, [](const Target& target) {
        quint64 device = 0;
        quint64 inode = 0;
        // For a moment between backup and replacement there is no file: not finished yet.
        return identity(target.path, device, inode) && (device != target.device || inode != target.inode);
    });
    m_done += qsizetype(replaced);
}

}  // namespace Quorbel
