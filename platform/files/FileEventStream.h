// The file events of one folder, from the kernel (inotify): file-level, in batches, without what happened.
// Thread: that of its event loop. Knows nothing of photos.
#pragma once

#include <QObject>
#include <QTimer>

#include <memory>

class QSocketNotifier;

namespace Quorbel {

class FileEventStream final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FileEventStream)

public:
    /// Watches the immediate entries of the folder from now on: created, deleted, moved, written, closed after
    /// writing, attributes changed. A batch is announced `latency` milliseconds after its first event; events of
    /// that time, and those lost to an overflow of the kernel's queue, are part of it.
    FileEventStream(const QString& folder, int latency, QObject* parent = nullptr);
    ~FileEventStream() override;

    /// Whether events can still arrive: the stream could be created, and the folder was not removed since.
    bool isActive() const { return m_notifier != nullptr; }

signals:
    void eventsArrived();

private:
    void drain();
    void close();

    int m_descriptor = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_latency;
};

}  // namespace Quorbel
