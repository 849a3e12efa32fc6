#include "app/model/library/FolderWatcher.h"

#include "app/model/MainThread.h"
#include "platform/files/FileEventStream.h"

namespace Quorbel {

namespace {

constexpr int streamLatency = 200;  // ms
constexpr int debounce = 300;  // ms

}  // namespace

FolderWatcher::FolderWatcher(const QUrl& url, std::function<void()> onChange)
    : m_stream(std::make_unique<FileEventStream>(url.toLocalFile(), streamLatency))
    , m_onChange(std::move(onChange))
{
    requireMainThread("FolderWatcher");
    m_pending.setSingleShot(true);
    m_pending.setInterval(debounce);
    connect(m_stream.get(), &FileEventStream::eventsArrived, &m_pending, qOverload<>(&QTimer::start));
    connect(&m_pending, &QTimer::timeout, this, [this] { m_onChange(); });
}

FolderWatcher::~FolderWatcher()
{
    stop();
}

void FolderWatcher::stop()
{
    m_pending.stop();
    m_stream.reset();
}

bool FolderWatcher::isWatching() const
{
    return m_stream && m_stream->isActive();
}

}  // namespace Quorbel
