#include "platform/files/FileEventStream.h"

#include <QFile>
#include <QSocketNotifier>

#include <array>
#include <cstring>
#include <sys/inotify.h>
#include <unistd.h>

namespace Quorbel {

namespace {

constexpr uint32_t watched = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_CLOSE_WRITE | IN_MODIFY
    | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;

}  // namespace

FileEventStream::FileEventStream(const QString& folder, int latency, QObject* parent)
    : QObject(parent)
    , m_descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    m_latency.setSingleShot(true);
    m_latency.setInterval(latency);
    connect(&m_latency, &QTimer::timeout, this, &FileEventStream::eventsArrived);
    if (m_descriptor < 0 || inotify_add_watch(m_descriptor, QFile::encodeName(folder).constData(), watched) < 0) {
        close();
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &FileEventStream::drain);
}

FileEventStream::~FileEventStream()
{
    close();
}

void FileEventStream::drain()
{
    alignas(inotify_event) std::array<char, 65536> buffer;
    bool isGone = false;
    for (ssize_t size = 0; (size = read(m_descriptor, buffer.data(), buffer.size())) > 0;) {
        for (ssize_t offset = 0; offset < size;) {
            inotify_event event;
            std::memcpy(&event, buffer.data() + offset, sizeof event);
            isGone = isGone || (event.mask & IN_IGNORED) != 0;
            offset += ssize_t(sizeof event) + ssize_t(event.len);
        }
    }
    if (!m_latency.isActive())
        m_latency.start();
    if (isGone)
        close();
}

void FileEventStream::close()
{
    if (m_notifier) {
        // It may be the one that is just calling.
        m_notifier->setEnabled(false);
        m_notifier.release()->deleteLater();
    }
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    m_descriptor = -1;
}

}  // namespace Quorbel
