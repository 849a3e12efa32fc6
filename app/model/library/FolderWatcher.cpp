#include "app/model/library/FolderWatcher.h"

#include "app/model/MainThread.h"
#include "platform/files/FileEventStream.h"
#include "platform/files/FolderWatches.h"

namespace Quorbel {

namespace {

constexpr int streamLatency = 200;  // ms
constexpr int debounce = 300;  // ms

}  // namespace

FolderWatcher::FolderWatcher(std::function<void()> onChange)
    : m_watches(std::make_shared<FolderWatches>(mostFolders))
    , m_stream(std::make_unique<FileEventStream>(m_watches, streamLatency))
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

}  // namespace Quorbel
