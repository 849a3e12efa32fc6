// The file events of some folders, from the kernel (inotify): file-level, in batches, without what happened.
// Thread: that of its event loop. Knows nothing of photos.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>

namespace Quorbel {

class FolderWatches;

class FileEventStream final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FileEventStream)

public:
    /// A batch is announced `latency` milliseconds after its first event; events of that time, and those lost to an
    /// overflow of the kernel's queue, are part of it.
    FileEventStream(std::shared_ptr<FolderWatches> watches, int latency, QObject* parent = nullptr);
    ~FileEventStream() override;

signals:
    void eventsArrived();

private:
    void drain();

    std::shared_ptr<FolderWatches> m_watches;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_latency;
};

}  // namespace Quorbel
