#include "platform/files/FileEventStream.h"

#include "platform/files/FolderWatches.h"

#include <array>
#include <cstring>
#include <sys/inotify.h>
#include <unistd.h>

namespace Quorbel {

FileEventStream::FileEventStream(std::shared_ptr<FolderWatches> watches, int latency, QObject* parent)
    : QObject(parent)
    , m_watches(std::move(watches))
{
    m_latency.setSingleShot(true);
    m_latency.setInterval(latency);
    connect(&m_latency, &QTimer::timeout, this, &FileEventStream::eventsArrived);
    if (m_watches->descriptor() < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_watches->descriptor(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &FileEventStream::drain);
}

FileEventStream::~FileEventStream() = default;

void FileEventStream::drain()
{
    alignas(inotify_event) std::array<char, 65536> buffer;
    bool isNews = false;
    for (ssize_t size = 0; (size = read(m_watches->descriptor(), buffer.data(), buffer.size())) > 0;) {
        for (ssize_t offset = 0; offset < size;) {
            inotify_event event;
            std::memcpy(&event, buffer.data() + offset, sizeof event);
            // The end of a watch alone is no news: what ended it was told before, or it was our own doing.
            isNews = isNews || event.mask != IN_IGNORED;
            offset += ssize_t(sizeof event) + ssize_t(event.len);
        }
    }
    if (isNews && !m_latency.isActive())
        m_latency.start();
}

}  // namespace Quorbel
